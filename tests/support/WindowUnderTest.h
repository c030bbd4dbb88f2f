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
          controller(std::make_shared<ViewController>(scriptedTaggers(std::move(tags), tagger))) {
        controller->intextTextbox = input;
        controller->outtextTextbox = output;
        controller->concordTextbox = concordance;
        controller->colourKeyText = key;
        controller->progressSpinner = spinner;
        controller->typesPopup = popup;
        controller->view = view;
    }

    std::shared_ptr<TaggerCalls> tagger = std::make_shared<TaggerCalls>();
    std::shared_ptr<PlainTextPane> input;
    std::shared_ptr<PlainTextPane> output = std::make_shared<PlainTextPane>();
    std::shared_ptr<PlainTextPane> concordance = std::make_shared<PlainTextPane>();
    std::shared_ptr<PlainTextField> key = std::make_shared<PlainTextField>();
    std::shared_ptr<PlainProgressIndicator> spinner = std::make_shared<PlainProgressIndicator>();
    std::shared_ptr<PlainPopUpButton> popup = std::make_shared<PlainPopUpButton>();
    std::shared_ptr<PlainView> view = std::make_shared<PlainView>();
    std::shared_ptr<ViewController> controller;
};

} // namespace lexiform
