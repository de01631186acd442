// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/layout/LineBreaker.h"

#include <algorithm>

namespace lorva {

namespace {

/// Widths are sums in another order than the widths that they are compared with.
constexpr double kTolerance = 1.0 / 256;
/// Shaping a cut line anew can widen it; after so many earlier breaks it may stand out a little.
constexpr int kMaxRetries = 8;

} // namespace

BrokenLine LineBreaker::line(int start, int lineEnd) const
{
    return {start, lineEnd, m_paragraph.trimmedEnd(start, lineEnd), m_paragraph.cut(start, lineEnd),
            false};
}

bool LineBreaker::isTooWide(const BrokenLine &line, double available) const
{
    return visibleWidth(line.runs, line.visibleEnd) > available + kTolerance;
}

bool LineBreaker::restFits(int start, double available) const
{
    const int visibleEnd = m_paragraph.trimmedEnd(start, end());
    return m_paragraph.width(start, visibleEnd) <= available + kTolerance;
}

BrokenLine LineBreaker::rest(int start) const
{
    return line(start, end());
}

int LineBreaker::lastFittingWordBreak(int start, double available)
{
    int best = start;
    for (int at = start; at < end();) {
        const int next = m_words.following(at);
        const int visibleEnd = m_paragraph.trimmedEnd(at, next);
        if (m_paragraph.width(start, visibleEnd) > available + kTolerance)
            break;
        best = at = next;
    }
    return best;
}

int LineBreaker::lastFittingGraphemeBreak(int start, double available)
{
    int best = start;
    for (int at = start; at < end();) {
        const int next = m_graphemes.following(at);
        if (m_paragraph.width(start, next) > available + kTolerance
            && m_paragraph.trimmedEnd(at, next) > at)
            break;
        best = at = next;
    }
    return best;
}

/// The last break of a line before `index`: between words if there is one, else between graphemes.
int LineBreaker::breakBefore(int start, int index)
{
    const int word = m_words.preceding(index);
    return word > start ? word : std::max(start, m_graphemes.preceding(index));
}

BrokenLine LineBreaker::wrap(int start, double available)
{
    int lineEnd = restFits(start, available) ? end() : lastFittingWordBreak(start, available);
    if (lineEnd <= start)
        lineEnd = lastFittingGraphemeBreak(start, available);
    if (lineEnd <= start)
        lineEnd = m_graphemes.following(start);
    BrokenLine broken = line(start, lineEnd);
    for (int retry = 0; retry < kMaxRetries && isTooWide(broken, available); ++retry) {
        const int earlier = breakBefore(start, broken.end);
        if (earlier <= start)
            break;
        broken = line(start, earlier);
    }
    return broken;
}

BrokenLine LineBreaker::truncate(int start, double available)
{
    const double ellipsisWidth = [&] {
        const ShapedRun ellipsis = m_paragraph.ellipsisAt(end());
        return visibleWidth({&ellipsis, 1}, end() + 1);
    }();
    const double room = available - ellipsisWidth;
    int cut = restFits(start, room) ? end() : lastFittingGraphemeBreak(start, room);
    BrokenLine broken = line(start, m_paragraph.trimmedEnd(start, cut));
    for (int retry = 0; retry < kMaxRetries && broken.end > start && isTooWide(broken, room);
         ++retry) {
        cut = std::max(start, m_graphemes.preceding(broken.end));
        broken = line(start, m_paragraph.trimmedEnd(start, cut));
    }
    broken.runs.push_back(m_paragraph.ellipsisAt(broken.end));
    broken.visibleEnd = broken.end + 1;
    broken.hasEllipsis = true;
    return broken;
}

} // namespace lorva
