#include "platform/qt/windows/interfaceLanguage.h"

#include "platform/qt/windows/ApplicationActions.h"
#include "platform/qt/windows/wordDetailsText.h"
#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QDir>
#include <QMenuBar>
#include <QSet>
#include <QTranslator>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

const QString sources = QStringLiteral(LEXIFORM_SOURCE_DIR "/resources/translations");

struct Message {
    QString source;
    QString translation;
    bool isFinished = true;
};

QList<Message> messagesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QXmlStreamReader reader(&file);
    QList<Message> messages;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) continue;
        if (reader.name() == QLatin1String("source")) messages.append({reader.readElementText(), {}, true});
        if (reader.name() != QLatin1String("translation")) continue;
        messages.last().isFinished = !reader.attributes().hasAttribute("type");
        // A message that counts has one text for each number.
        messages.last().translation = reader.readElementText(QXmlStreamReader::IncludeChildElements);
    }
    EXPECT_FALSE(reader.hasError()) << path.toStdString() << ": " << reader.errorString().toStdString();
    return messages;
}

QString placesIn(const QString& text) {
    QString places;
    for (const QString& place : {QStringLiteral("%1"), QStringLiteral("%2"), QStringLiteral("%3")})
        if (text.contains(place)) places += place;
    return places;
}

QChar mnemonicOf(const QString& title) {
    const qsizetype mark = QString(title).replace("&&", "__").indexOf(u'&');
    return mark < 0 ? QChar() : title.at(mark + 1).toLower();
}

void expectDistinctMnemonics(const QString& menu, const QList<QAction*>& actions) {
    QSet<QChar> taken;
    for (const QAction* action : actions) {
        const QChar mnemonic = mnemonicOf(action->text());
        if (mnemonic.isNull()) continue;
        EXPECT_FALSE(taken.contains(mnemonic))
            << (menu + QStringLiteral(" > ") + action->text()).toStdString();
        taken.insert(mnemonic);
    }
}

// The window of a desktop in a language, as long as the test runs.
class Translations : public testing::TestWithParam<const char*> {
protected:
    ~Translations() override {
        for (QTranslator* translator : qApp->findChildren<QTranslator*>())
            delete translator;
    }

    DocumentWindow& openIn(const QString& locale) {
        translateInterface(*qApp, QLocale(locale),
                           QCoreApplication::applicationDirPath() + "/../share/lexiform/translations");
        actions = makeApplicationActions(&owner);
        desktop.application = &actions;
        desktop.documents.newDocument();
        return desktop.window();
    }

    static QStringList menusOf(const DocumentWindow& window) {
        QStringList titles;
        for (const QAction* menu : window.menuBar()->actions())
            titles.append(menu->text().remove(u'&'));
        return titles;
    }

    QObject owner;
    ApplicationActions actions{};
    DesktopUnderTest desktop;
};

TEST_F(Translations, putTheMenusIntoGerman) {
    EXPECT_EQ(menusOf(openIn("de_AT")),
              (QStringList{"Datei", "Bearbeiten", "Text", "Ansicht", "Werkzeuge", "Fenster", "Hilfe"}));
}

TEST_F(Translations, leaveTheMenusInEnglishForALanguageWithoutOne) {
    EXPECT_EQ(menusOf(openIn("fi_FI")).first(), "File");
}

TEST_F(Translations, leaveTextsAloneThatAreFoundByTheirWords) {
    DocumentWindow& window = openIn("de_DE");
    EXPECT_EQ(actions.updateState->text(), "Update not checked");
    EXPECT_EQ(window.toolBar()->typesPopUp()->itemText(3), "Types (std)");
    window.panes()->input()->insertPlainText("The cat sat.");
    window.textActions().parse->trigger();
    EXPECT_TRUE(window.panes()->key()->text().starts_with("particle\n\nverb"));
}

// A script and a language have one form of their name, which agrees with what is before it.
TEST_F(Translations, tellOfAWordInFormsThatAgree) {
    const WordDetails word{.type = "Noun", .lemma = "chat", .language = "fr", .script = "Cyrl"};
    openIn("es_ES");
    EXPECT_EQ(textOf(word), "sustantivo\nLema: chat\nIdioma: francés\nSistema de escritura: cirílico");
    openIn("fr_FR");
    EXPECT_EQ(textOf(word),
              "nom\nLemme\u202f: chat\nLangue\u202f: français\nSystème d’écriture\u202f: cyrillique");
    openIn("de_DE");
    EXPECT_EQ(textOf(word), "Substantiv\nLemma: chat\nSprache: Französisch\nSchrift: Kyrillisch");
}

TEST_F(Translations, countWordsInFormsThatAgree) {
    for (const auto& [locale, parsed] : {std::pair{"fr_FR", "3 mots, texte analysé"},
                                         {"es_ES", "3 palabras, texto analizado"},
                                         {"de_DE", "3 Wörter, analysiert"}}) {
        const DocumentWindow& window = openIn(locale);
        window.statusLine()->showParsed(3);
        EXPECT_EQ(window.statusLine()->text(), parsed);
    }
}

TEST_P(Translations, areWholeForEveryText) {
    const auto messages = messagesOf(sources + "/lexiform_" + GetParam() + ".ts");
    ASSERT_GT(messages.size(), 150);
    for (const Message& message : messages) {
        EXPECT_TRUE(message.isFinished) << message.source.toStdString();
        EXPECT_FALSE(message.translation.isEmpty()) << message.source.toStdString();
        EXPECT_EQ(placesIn(message.translation), placesIn(message.source)) << message.source.toStdString();
        EXPECT_EQ(message.translation.contains(u'&'), message.source.contains(u'&'))
            << message.source.toStdString();
    }
}

// The one that is the same everywhere is found by its words.
TEST_P(Translations, leaveNoCommandInEnglish) {
    QStringList english;
    for (const Message& message : messagesOf(sources + "/lexiform_" + GetParam() + ".ts"))
        if (message.translation != message.source) english.append(message.source);
    DocumentWindow& window = openIn(GetParam());
    for (const QAction* action : window.findChildren<QAction*>())
        EXPECT_FALSE(english.contains(action->text())) << action->text().toStdString();
}

TEST_P(Translations, giveEachCommandOfAMenuALetterOfItsOwn) {
    DocumentWindow& window = openIn(GetParam());
    expectDistinctMnemonics("menu bar", window.menuBar()->actions());
    for (const QMenu* menu : window.menuBar()->findChildren<QMenu*>())
        expectDistinctMnemonics(menu->title(), menu->actions());
}

INSTANTIATE_TEST_SUITE_P(Languages, Translations, testing::Values("de", "fr", "es"));

} // namespace
} // namespace lexiform::qt
