#pragma once

#include "base/AttributedText.h"

#include <QMimeData>

namespace lexiform::qt {

/// A coloured text for the clipboard: plain, and as HTML and RTF, which are written when somebody asks.
/// They take the colours of the light appearance, since they end up on paper white. The RTF is that of a
/// saved document.
class ColouredMimeData : public QMimeData {
    Q_OBJECT

public:
    /// `plain` holds the characters exactly; `coloured` the same as UTF-8.
    ColouredMimeData(const QString& plain, AttributedText coloured);

    [[nodiscard]] QStringList formats() const override;
    [[nodiscard]] bool hasFormat(const QString& format) const override;

protected:
    [[nodiscard]] QVariant retrieveData(const QString& format, QMetaType type) const override;

private:
    AttributedText coloured_;
};

} // namespace lexiform::qt
