#include "platform/qt/windows/ApplicationActions.h"
#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QMenuBar>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

struct ManualCommand {
    QString menu;
    QString title;
    QList<QKeySequence> keys;
};

QString withoutMnemonic(QString title) {
    return title.remove(u'&');
}

// The lines of the manual's table of commands, from which its page of keys is made.
QList<ManualCommand> manualCommands() {
    QFile table(QStringLiteral(LEXIFORM_SOURCE_DIR "/resources/manual/commands.tsv"));
    if (!table.open(QIODevice::ReadOnly)) return {};
    QList<ManualCommand> commands;
    for (const QString& line : QString::fromUtf8(table.readAll()).split(u'\n', Qt::SkipEmptyParts).mid(1)) {
        const QStringList cells = line.split(u'\t');
        ManualCommand command{.menu = cells.at(0), .title = cells.at(1), .keys = {}};
        for (const QString& keys : cells.at(2).split(QStringLiteral(" or "), Qt::SkipEmptyParts))
            command.keys.append(QKeySequence::fromString(keys));
        commands.append(command);
    }
    return commands;
}

// The commands of a menu under the titles that the manual gives them; those of its submenus with its own
// before.
void collect(const QMenu& menu, const QString& before, QHash<QString, const QAction*>& found) {
    for (const QAction* action : menu.actions()) {
        const QString title = before + withoutMnemonic(action->text());
        if (action->menu())
            collect(*action->menu(), title + QStringLiteral(" > "), found);
        else if (!action->isSeparator())
            found.insert(title, action);
    }
}

class ManualCommandsTest : public testing::Test {
protected:
    // The commands of every menu but the list of windows, which names documents.
    ManualCommandsTest() {
        desktop.application = &actions;
        desktop.documents.newDocument();
        for (const QAction* menu : desktop.window().menuBar()->actions())
            if (withoutMnemonic(menu->text()) != QStringLiteral("Window"))
                collect(*menu->menu(), withoutMnemonic(menu->text()) + QStringLiteral(": "), found);
    }

    static QString nameOf(const ManualCommand& command) {
        return command.menu + QStringLiteral(": ") + command.title;
    }

    QObject owner;
    ApplicationActions actions = makeApplicationActions(&owner);
    DesktopUnderTest desktop;
    QHash<QString, const QAction*> found;
};

TEST_F(ManualCommandsTest, everyCommandOfTheManualIsInItsMenuWithItsKeys) {
    ASSERT_FALSE(manualCommands().isEmpty());
    for (const ManualCommand& command : manualCommands()) {
        const QAction* action = found.value(nameOf(command));
        ASSERT_TRUE(action) << nameOf(command).toStdString();
        for (const QKeySequence& keys : command.keys)
            EXPECT_TRUE(action->shortcuts().contains(keys)) << nameOf(command).toStdString();
        EXPECT_EQ(command.keys.isEmpty(), action->shortcuts().isEmpty()) << nameOf(command).toStdString();
    }
}

TEST_F(ManualCommandsTest, everyCommandOfTheMenusIsInTheManual) {
    QStringList told;
    for (const ManualCommand& command : manualCommands())
        told.append(nameOf(command));
    for (auto command = found.keyBegin(); command != found.keyEnd(); ++command)
        EXPECT_TRUE(told.contains(*command)) << command->toStdString();
}

} // namespace
} // namespace lexiform::qt
