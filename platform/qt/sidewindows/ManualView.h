#pragma once

#include "platform/qt/sidewindows/ManualPages.h"

#include <QLabel>
#include <QLineEdit>
#include <QPdfDocument>
#include <QToolBar>

namespace lexiform::qt {

/// The manual: a bar with page, search and zoom over its pages.
class ManualView : public QWidget {
    Q_OBJECT

public:
    explicit ManualView(QWidget* parent = nullptr);

    /// Null for none. The document must outlive the view or be taken out of it.
    void setDocument(QPdfDocument* document, const QList<ManualLink>& links = {});
    /// Whether pages are as wide as the view.
    void setFitted(bool fitted);
    [[nodiscard]] ManualPages* pages() const { return pages_; }

    /// Goes to the next place with what is searched, from the last one to the first; false without any,
    /// and then to the first that is found later.
    bool findNext();

protected:
    void changeEvent(QEvent* event) override;

private:
    void dressSurround();
    [[nodiscard]] QToolBar* makeBar();
    QAction* addCommand(QToolBar* bar, const QString& title, const QString& toolTip,
                        const QList<QKeySequence>& keys);
    void addKeys();
    void forgetMatch();
    void goToPage(int page);
    void zoomBy(qreal factor);
    void showPlace();

    ManualPages* pages_;
    QPdfSearchModel* search_;
    QLabel* page_;
    QLabel* zoom_;
    QLineEdit* wanted_;
    QAction* back_ = nullptr;
    QAction* forward_ = nullptr;
    int match_ = -1;
    bool awaitsMatch_ = false; ///< the next place was asked for before there was any
};

} // namespace lexiform::qt
