#include "platform/qt/windows/wordDetailsText.h"

#include "analysis/tagger/LexicalTag.h"

#include <QCoreApplication>
#include <QStringList>

#include <unicode/uloc.h>

#include <array>
#include <string_view>

namespace lexiform::qt {

namespace {

struct ClassWord {
    std::string_view tag;
    const char* name;
};

constexpr std::array<ClassWord, 27> classWords = {{
    {NLTagNoun, QT_TRANSLATE_NOOP("WordDetails", "noun")},
    {NLTagVerb, QT_TRANSLATE_NOOP("WordDetails", "verb")},
    {NLTagAdjective, QT_TRANSLATE_NOOP("WordDetails", "adjective")},
    {NLTagAdverb, QT_TRANSLATE_NOOP("WordDetails", "adverb")},
    {NLTagPronoun, QT_TRANSLATE_NOOP("WordDetails", "pronoun")},
    {NLTagDeterminer, QT_TRANSLATE_NOOP("WordDetails", "determiner")},
    {NLTagParticle, QT_TRANSLATE_NOOP("WordDetails", "particle")},
    {NLTagPreposition, QT_TRANSLATE_NOOP("WordDetails", "preposition")},
    {NLTagNumber, QT_TRANSLATE_NOOP("WordDetails", "number")},
    {NLTagConjunction, QT_TRANSLATE_NOOP("WordDetails", "conjunction")},
    {NLTagInterjection, QT_TRANSLATE_NOOP("WordDetails", "interjection")},
    {NLTagClassifier, QT_TRANSLATE_NOOP("WordDetails", "classifier")},
    {NLTagIdiom, QT_TRANSLATE_NOOP("WordDetails", "idiom")},
    {NLTagOtherWord, QT_TRANSLATE_NOOP("WordDetails", "other word")},
    {NLTagSentenceTerminator, QT_TRANSLATE_NOOP("WordDetails", "end of a sentence")},
    {NLTagOpenQuote, QT_TRANSLATE_NOOP("WordDetails", "opening quotation mark")},
    {NLTagCloseQuote, QT_TRANSLATE_NOOP("WordDetails", "closing quotation mark")},
    {NLTagOpenParenthesis, QT_TRANSLATE_NOOP("WordDetails", "opening bracket")},
    {NLTagCloseParenthesis, QT_TRANSLATE_NOOP("WordDetails", "closing bracket")},
    {NLTagWordJoiner, QT_TRANSLATE_NOOP("WordDetails", "word joiner")},
    {NLTagDash, QT_TRANSLATE_NOOP("WordDetails", "dash")},
    {NLTagOtherPunctuation, QT_TRANSLATE_NOOP("WordDetails", "punctuation")},
    {NLTagPersonalName, QT_TRANSLATE_NOOP("WordDetails", "name of a person")},
    {NLTagPlaceName, QT_TRANSLATE_NOOP("WordDetails", "name of a place")},
    {NLTagOrganizationName, QT_TRANSLATE_NOOP("WordDetails", "name of an organisation")},
    {NLTagParagraphBreak, nullptr},
    {NLTagOtherWhitespace, nullptr},
}};

/// A tag that has no name of its own is told as it is.
QString classWordOf(const std::string& tag) {
    for (const ClassWord& row : classWords)
        if (row.tag == tag && row.name != nullptr)
            return QCoreApplication::translate("WordDetails", row.name);
    return QString::fromStdString(tag);
}

bool isWhiteSpace(const WordDetails& details) {
    return details.type == NLTagOtherWhitespace || details.type == NLTagParagraphBreak;
}

using DisplayName = int32_t (*)(const char* locale, const char* inLocale, UChar* result, int32_t capacity,
                                UErrorCode* status);

/// What `display` calls a locale in the language of the interface.
QString displayNameOf(const std::string& locale, DisplayName display) {
    //: The code of the language that this is translated into; languages and scripts are named in it.
    const QByteArray own = QCoreApplication::translate("WordDetails", "en").toLatin1();
    std::array<UChar, 100> name{};
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length =
        display(locale.c_str(), own.constData(), name.data(), static_cast<int32_t>(name.size()), &status);
    return U_FAILURE(status) ? QString() : QString::fromUtf16(name.data(), length);
}

} // namespace

QString textOf(const WordDetails& details) {
    if (isWhiteSpace(details)) return {};
    QStringList lines;
    if (details.type) lines.append(classWordOf(*details.type));
    if (details.lemma)
        lines.append(QCoreApplication::translate("WordDetails", "Lemma: %1")
                         .arg(QString::fromStdString(*details.lemma)));
    if (details.language)
        lines.append(QCoreApplication::translate("WordDetails", "Language: %1")
                         .arg(displayNameOf(*details.language, uloc_getDisplayName)));
    if (details.script)
        lines.append(QCoreApplication::translate("WordDetails", "Script: %1")
                         .arg(displayNameOf("und_" + *details.script, uloc_getDisplayScript)));
    return lines.join(u'\n');
}

} // namespace lexiform::qt
