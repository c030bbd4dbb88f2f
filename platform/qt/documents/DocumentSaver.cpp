#include "platform/qt/documents/DocumentSaver.h"

#include "platform/qt/documents/savedText.h"
#include "platform/qt/windows/DocumentWindow.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <utility>

namespace lexiform::qt {

namespace {

QString reasonOf(const DocumentError& error) {
    return QCoreApplication::translate("DocumentSaver", "Its window shows nothing that can be saved (%1 %2).")
        .arg(QString::fromStdString(error.domain))
        .arg(error.code);
}

} // namespace

DocumentSaver::DocumentSaver(DocumentQuestions& questions, FileSaver write, OpenElsewhere isOpenElsewhere)
    : questions_(questions), write_(std::move(write)), isOpenElsewhere_(std::move(isOpenElsewhere)) {}

bool DocumentSaver::save(OpenedDocument& document) {
    if (!document.fileURL || !isWritable(document.fileType)) return saveAs(document);
    if (savesItsText(document)) return saveHere(document);
    DocumentWindow& window = *windowOf(document);
    switch (questions_.askToSaveOtherText(window, window.displayName())) {
    case OtherTextAnswer::saveAs:
        return saveThere(document);
    case OtherTextAnswer::replace:
        return saveHere(document);
    case OtherTextAnswer::cancel:
        break;
    }
    return false;
}

bool DocumentSaver::saveHere(OpenedDocument& document) {
    const QString path = pathOf(document);
    const FileStamp now = stampOf(path);
    DocumentWindow& window = *windowOf(document);
    const bool changed = now != FileStamp() && now != document.stamp;
    if (changed && !questions_.askToOverwriteChange(window, window.displayName())) return false;
    return write(document, {path, document.fileType});
}

bool DocumentSaver::saveAs(OpenedDocument& document) {
    DocumentWindow& window = *windowOf(document);
    const bool losesEdits = window.isEdited() && !savesItsText(document);
    if (losesEdits && !questions_.askToSaveWithoutEdits(window, window.displayName())) return false;
    return saveThere(document);
}

bool DocumentSaver::saveThere(OpenedDocument& document) {
    const auto target = chooseTarget(document);
    return target && write(document, *target);
}

std::optional<SaveTarget> DocumentSaver::chooseTarget(const OpenedDocument& document) {
    DocumentWindow& window = *windowOf(document);
    auto target = questions_.chooseTarget(window, proposalFor(document));
    while (target && isOpenElsewhere_(document, target->path)) {
        questions_.tellNotSaved(
            window, QFileInfo(target->path).fileName(),
            QCoreApplication::translate("DocumentSaver", "A file of that name is open in another window. "
                                                         "Close that window first, or take another name."));
        target = questions_.chooseTarget(window, *target);
    }
    return target;
}

bool DocumentSaver::write(OpenedDocument& document, const SaveTarget& target) {
    DocumentWindow& window = *windowOf(document);
    const QString name = QFileInfo(target.path).fileName();
    const auto bytes = document.dataOfType(target.type);
    if (!bytes.succeeded()) {
        questions_.tellNotSaved(window, name, reasonOf(bytes.fault()));
        return false;
    }
    const auto written = write_(target.path, bytes.value());
    if (!written.succeeded()) {
        questions_.tellNotSaved(window, name, written.fault().reason);
        return false;
    }
    setPath(document, target.path);
    document.fileType = target.type;
    document.stamp = stampOf(target.path);
    document.holdsBytesOfFile = false;
    window.setDisplayName(name);
    window.markSaved();
    return true;
}

// A viewed file keeps its name but for the extension.
SaveTarget DocumentSaver::proposalFor(const OpenedDocument& document) {
    const std::string type = isWritable(document.fileType) ? document.fileType : std::string(newDocumentType);
    const QString path = pathOf(document);
    const QFileInfo info(path.isEmpty() ? windowOf(document)->displayName() : path);
    const QString name = path.isEmpty() ? info.fileName() : info.completeBaseName();
    const QString folder = path.isEmpty() ? QDir::homePath() : info.absolutePath();
    return {folder + u'/' + name + u'.' + extensionOf(type), type};
}

} // namespace lexiform::qt
