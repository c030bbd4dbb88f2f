#pragma once

#include "analysis/ViewController.h"
#include "tests/support/PlainDoubles.h"
#include "tests/support/ScriptedTagger.h"

#include <memory>
#include <string>

namespace lexiform {

/// A document window's controller with every control connected to a plain double, a text in its
/// input pane, and a tagger that knows the tags of some words.
struct WindowUnderTest {
    explicit WindowUnderTest(std::string text = "", ScriptedTagger::Script tags = {})
        : input(std::make_shared<PlainTextPane>(std::move(text))),
          controller(makeController(scriptedTaggers(std::move(tags), tagger))) {
        connect();
    }

    /// A window whose passes get their taggers from `makeTagger`.
    WindowUnderTest(std::string text, TaggerFactory makeTagger)
        : input(std::make_shared<PlainTextPane>(std::move(text))),
          controller(makeController(std::move(makeTagger))) {
        connect();
    }

    std::shared_ptr<TaggerCalls> tagger = std::make_shared<TaggerCalls>();
    std::shared_ptr<PlainTextPane> input;
    std::shared_ptr<PlainTextPane> output = std::make_shared<PlainTextPane>();
    std::shared_ptr<PlainTextPane> concordance = std::make_shared<PlainTextPane>();
    std::shared_ptr<PlainTextField> key = std::make_shared<PlainTextField>();
    std::shared_ptr<PlainProgressIndicator> spinner = std::make_shared<PlainProgressIndicator>();
    std::shared_ptr<PlainPopUpButton> popup = std::make_shared<PlainPopUpButton>();
    std::shared_ptr<PlainView> view = std::make_shared<PlainView>();
    std::shared_ptr<PlainUserDefaults> defaults = std::make_shared<PlainUserDefaults>();
    std::shared_ptr<PlainFileWriter> files = std::make_shared<PlainFileWriter>();
    /// Every panel that was made, in order.
    std::shared_ptr<std::vector<std::shared_ptr<PlainSavePanel>>> panels =
        std::make_shared<std::vector<std::shared_ptr<PlainSavePanel>>>();
    std::shared_ptr<ViewController> controller;

private:
    std::shared_ptr<ViewController> makeController(TaggerFactory makeTagger) {
        const auto makePanel = [all = panels]() -> std::shared_ptr<SavePanel> {
            all->push_back(std::make_shared<PlainSavePanel>());
            return all->back();
        };
        return std::make_shared<ViewController>(std::move(makeTagger),
                                                AnalysisServices{defaults, makePanel, files});
    }

    void connect() {
        controller->intextTextbox = input;
        controller->outtextTextbox = output;
        controller->concordTextbox = concordance;
        controller->colourKeyText = key;
        controller->progressSpinner = spinner;
        controller->typesPopup = popup;
        controller->view = view;
    }
};

} // namespace lexiform
