#pragma once

#include "platform/qt/documents/DocumentQuestions.h"

#include <QStringList>

#include <deque>
#include <optional>

namespace lexiform::qt {

/// Answers as the test sets it, and notes what it was asked, in order.
class NotedQuestions : public DocumentQuestions {
public:
    UnsavedAnswer askToSave(QWidget& /*window*/, const QString& name) override {
        asked.append("save " + name + "?");
        if (unsavedInTurn.empty()) return unsaved;
        const UnsavedAnswer next = unsavedInTurn.front();
        unsavedInTurn.pop_front();
        return next;
    }
    OtherTextAnswer askToSaveOtherText(QWidget& /*window*/, const QString& name) override {
        asked.append("other text into " + name + "?");
        return otherText;
    }
    bool askToSaveWithoutEdits(QWidget& /*window*/, const QString& name) override {
        asked.append(name + " without edits?");
        return confirms;
    }
    bool askToOverwriteChange(QWidget& /*window*/, const QString& name) override {
        asked.append("overwrite changed " + name + "?");
        return confirms;
    }
    bool askToRevert(QWidget& /*window*/, const QString& name) override {
        asked.append("revert " + name + "?");
        return confirms;
    }
    std::optional<SaveTarget> chooseTarget(QWidget& /*window*/, const SaveTarget& offered) override {
        asked.append("where?");
        proposal = offered;
        if (targetsInTurn.empty()) return target;
        const auto next = targetsInTurn.front();
        targetsInTurn.pop_front();
        return next;
    }
    void tellNotSaved(QWidget& /*window*/, const QString& name, const QString& reason) override {
        failures.append(name + ": " + reason);
    }

    UnsavedAnswer unsaved = UnsavedAnswer::discard;
    std::deque<UnsavedAnswer> unsavedInTurn; ///< before `unsaved`, one for each question
    OtherTextAnswer otherText = OtherTextAnswer::cancel;
    bool confirms = false;
    std::optional<SaveTarget> target;
    std::deque<std::optional<SaveTarget>> targetsInTurn; ///< before `target`, one for each question
    std::optional<SaveTarget> proposal;
    QStringList asked;
    QStringList failures;
};

} // namespace lexiform::qt
