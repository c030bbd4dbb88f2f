#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace lexiform::train {

/// Tells `visitor` forms of a Turkish noun or adjective `root`, lower case: number, possessor and case, with
/// the harmony of vowels and the softening of a last consonant both done and left out, since no rule tells
/// which.
void forEachTurkishNounForm(std::string_view root, const std::function<void(const std::string&)>& visitor);

/// The same for the tenses, persons, participles and negation of the verb with the infinitive `root` +
/// mek/mak.
void forEachTurkishVerbForm(std::string_view root, const std::function<void(const std::string&)>& visitor);

} // namespace lexiform::train
