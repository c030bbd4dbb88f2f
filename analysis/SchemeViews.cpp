#include "analysis/ViewController.h"
#include "analysis/shownText.h"
#include "base/Unicode.h"
#include "base/present.h"

namespace lexiform {

namespace {

// The items of the types pop-up; an item's view has the item's number, but for the standard types.
constexpr int scriptView = 0;
constexpr int languageView = 1;
constexpr int standardTypesItem = 3;

constexpr std::size_t shortLength = 5;

constexpr std::string_view keyDefault = "theKeyStr";
constexpr std::string_view titleDefault = "windowTitle";

Colour colourOf(std::int64_t position) {
    return ViewController::stdColours.at(static_cast<std::size_t>(position) %
                                         ViewController::stdColours.size());
}

std::int64_t positionShown(const TaggedText& records, std::size_t i, int view) {
    switch (view) {
    case scriptView:
        return records.script(i);
    case languageView:
        return records.lang(i);
    default:
        return records.type(i);
    }
}

/// One slot per class colour, each the values of that colour, with `comma` between.
class KeySlots {
public:
    explicit KeySlots(std::string_view comma) : comma_(comma) {}

    void add(std::size_t position, std::string_view value) {
        std::string& slot = slots_[position % slots_.size()];
        if (!slot.empty()) slot += comma_;
        slot += value;
    }

    /// All slots, the empty ones included, so that line k always belongs to colour k.
    [[nodiscard]] std::string joined() const {
        std::string lines = slots_.front();
        for (std::size_t k = 1; k < slots_.size(); ++k)
            lines.append("\n\n").append(slots_[k]);
        return lines;
    }

private:
    std::string_view comma_;
    std::array<std::string, ViewController::stdColours.size()> slots_;
};

} // namespace

void ViewController::parse2PopupAction() {
    if (taggedText.empty()) return;
    const int item = present(typesPopup)->indexOfSelectedItem();
    if (item == standardTypesItem)
        parseText();
    else
        showSchemeView(item);
}

void ViewController::showSchemeView(int schemeView) {
    noteShown(schemeView);
    AttributedText listing;
    for (std::size_t i = 0; i < taggedText.size(); ++i)
        listing.append(shownText(taggedText, i, schemeView),
                       colourOf(positionShown(taggedText, i, schemeView)));
    if (TextStorage* storage = present(outtextTextbox).textStorage()) storage->replace(listing);

    if (schemeView == languageView)
        showSchemeKey(indLangs);
    else
        showSchemeKey(schemeView == scriptView ? indScripts : indTypes);
}

// The field beside the output pane is narrow and gets short forms; the palette has room for them whole.
void ViewController::showSchemeKey(const std::vector<std::string>& index) {
    KeySlots shortKey(",");
    KeySlots fullKey(", ");
    for (std::size_t i = 0; i < index.size(); ++i) {
        shortKey.add(i, firstCharacters(index[i], shortLength));
        fullKey.add(i, index[i]);
    }
    present(colourKeyText).setStringValue(shortKey.joined());
    UserDefaults& defaults = present(services_.defaults);
    defaults.setString(fullKey.joined(), keyDefault);
    defaults.setString(window().title(), titleDefault);
}

} // namespace lexiform
