#include "platform/qt/panes/softBreak.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace lexiform::qt {

namespace {

// How far back from the limit a space is looked for.
constexpr qsizetype searched = 600;

bool invitesABreak(QChar before) {
    return before == u' ' || before == u'\t' || before == u'\u3000';
}

// A cluster boundary at or before `wanted` that is certain without a look at what comes before:
// two plain characters are never in one cluster.
qsizetype certainBoundary(QStringView line, qsizetype wanted) {
    const auto plain = [&](qsizetype at) { return line[at].unicode() < 0x80; };
    qsizetype start = std::max<qsizetype>(wanted, 0);
    while (start > 0 && !(plain(start - 1) && plain(start)))
        --start;
    return start;
}

// The last boundary after a space, else the last one of all, up to `limit`; 0 for none.
qsizetype goodBoundary(QStringView window, qsizetype limit) {
    QTextBoundaryFinder clusters(QTextBoundaryFinder::Grapheme, window.data(), window.size());
    clusters.setPosition(limit);
    qsizetype at = clusters.isAtBoundary() ? limit : clusters.toPreviousBoundary();
    const qsizetype nearest = at;
    while (at > std::max<qsizetype>(0, limit - searched)) {
        if (invitesABreak(window[at - 1])) return at;
        at = clusters.toPreviousBoundary();
    }
    return std::max<qsizetype>(nearest, 0);
}

// The end of the cluster in which the limit lies, or of what is taken of one that will not end.
qsizetype clusterEnd(QStringView window, qsizetype limit) {
    QTextBoundaryFinder clusters(QTextBoundaryFinder::Grapheme, window.data(), window.size());
    clusters.setPosition(limit);
    const qsizetype end = clusters.toNextBoundary();
    if (end > 0 && end < window.size()) return end;
    return window.back().isHighSurrogate() ? window.size() - 1 : window.size();
}

} // namespace

qsizetype softBreakIn(QStringView line, qsizetype limit) {
    if (line.size() <= limit) return line.size();
    const qsizetype start = certainBoundary(line, limit - searched);
    const QStringView rest = line.sliced(start);
    // Some characters past the limit tell whether it is a boundary.
    constexpr qsizetype context = 64;
    const qsizetype near = limit - start;
    const qsizetype good = goodBoundary(rest.first(std::min(rest.size(), near + context)), near);
    if (start + good > 0) return start + good;
    return clusterEnd(rest.first(std::min(rest.size(), longestCluster)), near);
}

} // namespace lexiform::qt
