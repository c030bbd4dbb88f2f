#include "platform/qt/windows/StatusLine.h"

#include "platform/qt/theme/CaptionFont.h"

#include <QLocale>

namespace lexiform::qt {

namespace {

constexpr int lineHeight = 30;
constexpr int trailingInset = 20;
constexpr int leadingInset = 30; // a status bar itself adds the rest to the window's left text edge

} // namespace

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent), label_(new QLabel(this)), edited_(new QLabel(this)) {
    setSizeGripEnabled(false);
    setMinimumHeight(lineHeight);
    for (QLabel* label : {label_, edited_}) {
        new CaptionFont(*label);
        label->setForegroundRole(QPalette::PlaceholderText);
    }
    label_->setContentsMargins(leadingInset, 0, 0, 0);
    edited_->setContentsMargins(0, 0, trailingInset, 0);
    addWidget(label_, 1);
    addPermanentWidget(edited_);
}

void StatusLine::showParsed(std::int64_t words) {
    label_->setText(words == 0 ? tr("Parsed") : tr("%1, parsed").arg(counted(words)));
}

void StatusLine::showMultiParsed(std::int64_t words) {
    label_->setText(words == 0 ? tr("Multi-parsed") : tr("%1, multi-parsed").arg(counted(words)));
}

QString StatusLine::counted(std::int64_t words) {
    if (words == 1) return tr("1 word");
    return tr("%1 words").arg(QLocale().toString(static_cast<qlonglong>(words)));
}

void StatusLine::showUnparsed() {
    label_->setText(tr("Not parsed yet"));
}

void StatusLine::showNothing() {
    label_->clear();
}

void StatusLine::showEdited(bool edited) {
    edited_->setText(edited ? tr("Edited") : QString());
}

} // namespace lexiform::qt
