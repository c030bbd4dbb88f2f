#pragma once

#include <set>
#include <string>
#include <string_view>
#include <unordered_map>

namespace lexiform::train {

/// Tells what Turkish forms may be, from their roots and the order of their suffixes (Oflazer 1994,
/// "Two-level description of Turkish morphology"; here a regular approximation of it).
class TurkishForms {
public:
    /// Adds a root in lower case with its part of speech as a letter, n where it is a noun; a verb (v) is
    /// given as its infinitive.
    void addRoot(std::string_view root, char pos);

    /// The letters of what `form`, in lower case, may be, in alphabetical order; empty where no root of
    /// those added begins it. Besides the letters of the roots: f finite verb, p participle or verbal
    /// noun, g converb, i inflected noun, k noun with a copula.
    [[nodiscard]] std::string classesOf(std::string_view form) const;

private:
    void analyse(std::string_view root, std::string_view suffixes, std::set<char>& classes) const;
    void analyseHardened(std::string_view root, std::string_view suffixes, std::set<char>& classes) const;

    std::unordered_map<std::string, std::set<char>> roots_;
};

} // namespace lexiform::train
