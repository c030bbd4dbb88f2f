#pragma once

#include "linguistics/text/Analysis.h"

#include <cstddef>
#include <set>
#include <tuple>

namespace lexiform::train {

/// Names by place and type: start, end, type.
using NameSpans = std::set<std::tuple<std::size_t, std::size_t, linguistics::NameType>>;

/// Joins the words of names to spans as they come.
class NameGatherer {
public:
    /// Adds the names to `names`, which must outlive it; the last one at its end.
    explicit NameGatherer(NameSpans& names) : names_(names) {}
    ~NameGatherer() { close(); }
    NameGatherer(const NameGatherer&) = delete;
    NameGatherer& operator=(const NameGatherer&) = delete;

    /// The next word, its type `none` outside names; `begins` parts it from a name before it.
    void add(TextRange range, linguistics::NameType type, bool begins) {
        using linguistics::NameType;
        if (type == NameType::none || begins || type != type_) close();
        if (type == NameType::none) return;
        if (type_ == NameType::none) start_ = range.start;
        type_ = type;
        end_ = range.end();
    }

    /// No name goes on across this.
    void close() {
        using linguistics::NameType;
        if (type_ != NameType::none) names_.emplace(start_, end_, type_);
        type_ = NameType::none;
    }

private:
    NameSpans& names_;
    linguistics::NameType type_ = linguistics::NameType::none;
    std::size_t start_ = 0, end_ = 0;
};

} // namespace lexiform::train
