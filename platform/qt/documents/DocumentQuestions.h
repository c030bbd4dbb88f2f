#pragma once

#include <QString>
#include <QWidget>

#include <cstdint>
#include <optional>
#include <string>

namespace lexiform::qt {

enum class UnsavedAnswer : std::uint8_t { save, discard, cancel };
enum class OtherTextAnswer : std::uint8_t { saveAs, replace, cancel };

/// Where a document is to be saved, and as what.
struct SaveTarget {
    QString path;
    std::string type;
};

/// What a person is asked and told about a document. Each question waits for its answer.
class DocumentQuestions {
public:
    virtual ~DocumentQuestions() = default;

    /// The document is edited and about to be closed.
    virtual UnsavedAnswer askToSave(QWidget& window, const QString& name) = 0;
    /// What would be saved is not the text of the input pane, or not that of the file.
    virtual OtherTextAnswer askToSaveOtherText(QWidget& window, const QString& name) = 0;
    /// The person's edits, which would count as saved, are not in the output pane. True when what is there
    /// may be saved.
    virtual bool askToSaveWithoutEdits(QWidget& window, const QString& name) = 0;
    /// Another program changed the file. True when it may be overwritten.
    virtual bool askToOverwriteChange(QWidget& window, const QString& name) = 0;
    /// The document is edited and about to go back to its file. True when it may.
    virtual bool askToRevert(QWidget& window, const QString& name) = 0;
    /// Nothing when the person chose nowhere. An existing file has been asked about.
    virtual std::optional<SaveTarget> chooseTarget(QWidget& window, const SaveTarget& proposal) = 0;
    /// `reason` is a sentence.
    virtual void tellNotSaved(QWidget& window, const QString& name, const QString& reason) = 0;
};

} // namespace lexiform::qt
