#pragma once

#include "analysis/OperationQueue.h"
#include "analysis/StringList.h"
#include "analysis/TaggedText.h"
#include "analysis/WordDictionary.h"
#include "analysis/WordLookUp.h"
#include "analysis/tagger/Tagger.h"
#include "base/Colour.h"
#include "ports/FileWriter.h"
#include "ports/PopUpButton.h"
#include "ports/ProgressIndicator.h"
#include "ports/SavePanel.h"
#include "ports/ScrollView.h"
#include "ports/TextField.h"
#include "ports/TextPane.h"
#include "ports/UserDefaults.h"
#include "ports/ViewControllerBase.h"
#include "ports/Window.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform {

/// What a document window's commands ask of the desktop besides its own panes and controls.
struct AnalysisServices {
    std::shared_ptr<UserDefaults> defaults;
    std::function<std::shared_ptr<SavePanel>()> makeSavePanel;
    std::shared_ptr<FileWriter> files;
};

/// The state and the commands of one document window's analysis.
///
/// The window's layout connects the panes and controls by storing them in the fields, before the
/// window comes on screen; a command that needs one which is absent stops the program. Everything
/// runs on the main thread, inside the event that triggers it. Every pass rebuilds its state and
/// never merges with an earlier one.
class ViewController : public ViewControllerBase,
                       public WindowDelegate,
                       public std::enable_shared_from_this<ViewController> {
public:
    /// A controller with every field at its default; `makeTagger` gives each pass its tagger.
    explicit ViewController(TaggerFactory makeTagger, AnalysisServices services = {});

    std::string inputText;
    std::int64_t totWordC = 0;

    WordDictionary verbs;
    WordDictionary nouns;
    WordDictionary adjectives;
    WordDictionary adverbs;
    WordDictionary pronouns;
    WordDictionary determiners;
    WordDictionary particles;
    WordDictionary prepositions;
    WordDictionary conjunctions;
    WordDictionary names;

    StringList tagWords;
    StringList tagScripts;
    StringList tagLangs;
    StringList tagTypes;
    StringList tagLemmas;
    TaggedText taggedText;
    std::vector<std::string> indScripts;
    std::vector<std::string> indLangs;
    std::vector<std::string> indTypes;

    /// Entry k is the colour of the class in line k of `stdColourKeys`, empty lines not counted.
    static constexpr std::array<Colour, 9> stdColours = {Colour::gray,  Colour::red,    Colour::blue,
                                                         Colour::green, Colour::purple, Colour::yellow,
                                                         Colour::brown, Colour::pink,   Colour::orange};
    static constexpr std::array<std::string_view, 5> theMenuItems = {"Script", "Language", "Types",
                                                                     "Types (std)", "Lemmas"};
    static constexpr std::string_view stdColourKeys =
        "particle\n\nverb\n\nnoun\n\nadjective\n\nadverb\n\npronoun\n\ndeterminer\n\npreposition\n\n"
        "conjunction";

    /// The ten word dictionaries in their order.
    static constexpr std::array<WordDictionary ViewController::*, 10> wordDictionaries();

    std::weak_ptr<PopUpButton> typesPopup;
    std::weak_ptr<ScrollView> intextScroller;
    std::shared_ptr<TextPane> intextTextbox;
    std::weak_ptr<ScrollView> outtextScroller;
    std::shared_ptr<TextPane> outtextTextbox;
    std::weak_ptr<ScrollView> concordScroller;
    std::shared_ptr<TextPane> concordTextbox;
    std::shared_ptr<TextField> colourKeyText;
    std::shared_ptr<ProgressIndicator> progressSpinner;
    const OperationQueue processingQueue{4};

    /// The window has come on screen: fills and disables the types pop-up, runs the lexical pass when
    /// the input pane holds text, and hides the busy indicator.
    void viewDidAppear() override;

    /// The lexical pass: tags the input pane's text, counts every word into the dictionary of its
    /// class, and writes the text, coloured by class, into the output pane with the key beside it.
    void parseText();
    /// The lexical pass on demand: it also drops the multi-scheme records and disables the pop-up.
    void parseButton();

    /// The multi-scheme pass: tags the input pane's text by script, language, name type or lexical
    /// class, and lemma, keeps a record of every token, shows the view by type and enables the pop-up.
    /// Without a tagger, or when the schemes disagree on the number of tokens, there are no records.
    void multiParse();
    /// Builds the records and their indexes from the five lists of tags. Lists of unequal length give
    /// no records and leave the indexes as they were.
    void buildTaggedText();

    /// Shows what the types pop-up has selected; does nothing while there are no records.
    void parse2PopupAction();
    /// Writes the records into the output pane and the matching key beside it. View 0 is coloured by
    /// script, 1 by language, every other by type; view 4 shows lemmas and every other the words.
    void showSchemeView(int schemeView);
    /// Writes the values of an index, by the colours of their positions, into the key field, cut short
    /// to five characters, and whole into the user defaults, together with the window's title.
    void showSchemeKey(const std::vector<std::string>& index);

    /// Lists the words of every class with their counts in the concordance pane; from the lemmas of
    /// the records when there are any.
    void listConcButton();
    /// Rebuilds the word dictionaries from the records.
    void recountTaggedText();
    /// The texts of the output pane that the list counts as `word`, in lower case and each once, the longest
    /// first; none without records.
    [[nodiscard]] std::vector<std::string> formsListedAs(std::string_view word) const;
    /// The section of one class, empty for a dictionary without words; adds its total to `totWordC`.
    [[nodiscard]] std::string listWordDict(const WordDictionary& dictionary, std::string_view heading);

    /// Asks where, and then writes the concordance pane as it is now into a text file. A failure is
    /// told at the end of the output pane.
    void saveConcButton();

    /// Puts `text` in the place of all that the input pane holds, in the default text colour.
    void setInputText(std::string_view text);
    /// Adds `text` to the end of the output pane in the default text colour, with nothing between.
    void appendOutputText(std::string_view text);

    /// What is known of the token that the output pane shows at a byte of its text: from the records
    /// where it shows a view of them, else by tagging the paragraph. Nothing where no token is.
    [[nodiscard]] std::optional<WordDetails> shownWordAt(std::size_t byte);

    /// Empties the ten word dictionaries and leaves everything else alone, `totWordC` included.
    void clearWordDicts();

private:
    [[nodiscard]] std::optional<WordDetails> recordShownAt(std::size_t byte) const;
    /// The output pane is about to show a view of the records, or, given none, the lexical pass.
    void noteShown(std::optional<int> view);
    /// The window that shows the controller's view; stops the program when there is none.
    [[nodiscard]] Window& window() const;

    TaggerFactory makeTagger_;
    AnalysisServices services_;
    std::optional<int> shownView_;
    std::optional<WordLookUp> lookUp_; ///< of the text that the output pane shows, once asked
};

constexpr std::array<WordDictionary ViewController::*, 10> ViewController::wordDictionaries() {
    return {&ViewController::verbs,     &ViewController::nouns,        &ViewController::adjectives,
            &ViewController::adverbs,   &ViewController::pronouns,     &ViewController::determiners,
            &ViewController::particles, &ViewController::prepositions, &ViewController::conjunctions,
            &ViewController::names};
}

} // namespace lexiform
