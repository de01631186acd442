// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/SvgPathWork.h"

#include "text/FontLimits.h"

#include <QByteArray>
#include <QPointF>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <span>
#include <vector>

namespace lorva {

namespace {

/// Crossings are counted between heights, one for every few lines, at most so many; lines that end
/// in between are taken as they are there, so that what is missed is small.
constexpr size_t kMaxBands = 64;
constexpr size_t kLinesPerBand = 4;
/// Beyond, numbers are damage.
constexpr double kMaxCoordinate = 1e12;

struct Line
{
    QPointF upper;
    QPointF lower;

    double xAt(double y) const
    {
        if (y <= upper.y())
            return upper.x();
        if (y >= lower.y())
            return lower.x();
        const double part = (y - upper.y()) / (lower.y() - upper.y());
        return upper.x() + part * (lower.x() - upper.x());
    }
};

/// The numbers and letters of path data or of a list of points.
class Tokens
{
public:
    explicit Tokens(QStringView text)
        : m_bytes(text.toLatin1())
    {
    }

    bool atEnd()
    {
        while (here() != '\0' && std::strchr(" ,\t\r\n\f", here()) != nullptr)
            ++m_at;
        return here() == '\0';
    }
    bool atLetter() { return !atEnd() && (here() | 32) >= 'a' && (here() | 32) <= 'z'; }
    char letter() { return m_bytes.constData()[m_at++]; }
    /// False where there is none.
    bool number(double &value)
    {
        if (atEnd() || atLetter())
            return false;
        const char *const begin = m_bytes.constData() + m_at;
        char *end = nullptr;
        value = std::strtod(begin, &end);
        if (end == begin || !(std::abs(value) <= kMaxCoordinate))
            return false;
        m_at += end - begin;
        return true;
    }
    /// Of an arc: one digit, with nothing behind it.
    bool flag()
    {
        if (atEnd() || (here() != '0' && here() != '1'))
            return false;
        ++m_at;
        return true;
    }

private:
    /// There is always a zero behind the last one.
    char here() const { return m_bytes.constData()[m_at]; }

    QByteArray m_bytes;
    qsizetype m_at = 0;
};

/// Reads path data (SVG 2, section 9.3) as the lines of its control points.
class LineReader
{
public:
    explicit LineReader(QStringView text)
        : m_tokens(text)
    {
    }

    void readPath()
    {
        char command = '\0';
        while (!m_tokens.atEnd()) {
            if (m_tokens.atLetter())
                command = m_tokens.letter();
            else if (command == '\0' || (command | 32) == 'z')
                return;
            if (!step(command))
                return;
            if ((command | 32) == 'm')
                command = command == 'm' ? 'l' : 'L';
        }
        close();
    }

    void readPoints()
    {
        bool isFirst = true;
        for (QPointF point; pair(point, {}); isFirst = false)
            isFirst ? moveTo(point) : lineTo(point);
        close();
    }

    const std::vector<Line> &lines() const { return m_lines; }
    double arcCount() const { return m_arcCount; }
    double pointCount() const { return m_pointCount; }

private:
    bool pair(QPointF &point, QPointF from)
    {
        double x = 0;
        double y = 0;
        if (!m_tokens.number(x) || !m_tokens.number(y))
            return false;
        point = from + QPointF(x, y);
        return true;
    }

    bool step(char command)
    {
        const bool isRelative = command >= 'a';
        const QPointF from = isRelative ? m_last : QPointF();
        switch (command | 32) {
        case 'm':
            return moveStep(from);
        case 'l':
        case 't':
            return lineSteps(from, 1);
        case 'q':
        case 's':
            return lineSteps(from, 2);
        case 'c':
            return lineSteps(from, 3);
        case 'h':
        case 'v':
            return straightStep(command, isRelative);
        case 'a':
            return arcStep(from);
        case 'z':
            close();
            return true;
        default:
            return false;
        }
    }

    bool moveStep(QPointF from)
    {
        QPointF point;
        if (!pair(point, from))
            return false;
        close();
        moveTo(point);
        return true;
    }

    bool lineSteps(QPointF from, int count)
    {
        for (int i = 0; i < count; ++i) {
            QPointF point;
            if (!pair(point, from))
                return false;
            lineTo(point);
        }
        return true;
    }

    bool straightStep(char command, bool isRelative)
    {
        double value = 0;
        if (!m_tokens.number(value))
            return false;
        QPointF to = m_last;
        double &changed = (command | 32) == 'h' ? to.rx() : to.ry();
        changed = isRelative ? changed + value : value;
        lineTo(to);
        return true;
    }

    bool arcStep(QPointF from)
    {
        std::array<double, 3> shape{};
        for (double &one : shape) {
            if (!m_tokens.number(one))
                return false;
        }
        QPointF point;
        if (!m_tokens.flag() || !m_tokens.flag() || !pair(point, from))
            return false;
        ++m_arcCount;
        lineTo(point);
        return true;
    }

    void moveTo(QPointF point)
    {
        m_start = point;
        m_last = point;
    }

    void lineTo(QPointF point)
    {
        ++m_pointCount;
        if (point.y() != m_last.y())
            m_lines.push_back(point.y() > m_last.y() ? Line{m_last, point} : Line{point, m_last});
        m_last = point;
    }

    void close() { lineTo(m_start); }

    Tokens m_tokens;
    std::vector<Line> m_lines;
    QPointF m_start;
    QPointF m_last;
    double m_arcCount = 0;
    double m_pointCount = 0;
};

/// How many pairs stand in the wrong order. Sorts them.
double inversions(std::span<double> values)
{
    if (values.size() < 2)
        return 0;
    const size_t half = values.size() / 2;
    const auto left = values.first(half);
    const auto right = values.subspan(half);
    double count = inversions(left) + inversions(right);
    size_t i = 0;
    for (const double value : right) {
        while (i < left.size() && left[i] <= value)
            ++i;
        count += double(left.size() - i);
    }
    std::inplace_merge(values.begin(), values.begin() + std::ptrdiff_t(half), values.end());
    return count;
}

/// Heights that part the ends of lines into equal shares: wherever lines gather, heights do.
std::vector<double> bandEdges(const std::vector<Line> &lines)
{
    std::vector<double> ends;
    ends.reserve(2 * lines.size());
    for (const Line &line : lines) {
        ends.push_back(line.upper.y());
        ends.push_back(line.lower.y());
    }
    std::sort(ends.begin(), ends.end());
    std::vector<double> edges;
    const size_t bands = std::clamp<size_t>(lines.size() / kLinesPerBand, 1, kMaxBands);
    edges.reserve(bands + 1);
    for (size_t band = 0; band <= bands; ++band)
        edges.push_back(ends[std::min(ends.size() - 1, band * ends.size() / bands)]);
    edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
    return edges;
}

double crossingsWithin(const std::vector<Line> &lines, double top, double bottom)
{
    std::vector<std::pair<double, double>> places;
    for (const Line &line : lines) {
        if (line.upper.y() < bottom && line.lower.y() > top)
            places.emplace_back(line.xAt(top), line.xAt(bottom));
    }
    std::sort(places.begin(), places.end());
    std::vector<double> below;
    below.reserve(places.size());
    for (const auto &[above, under] : places)
        below.push_back(under);
    return inversions(below);
}

LineReader readLines(QStringView points, bool isPathData)
{
    LineReader reader(points);
    if (isPathData)
        reader.readPath();
    else
        reader.readPoints();
    return reader;
}

} // namespace

double svgCrossings(QStringView points, bool isPathData)
{
    const LineReader reader = readLines(points, isPathData);
    // Arcs bulge far beyond the lines between their ends.
    double crossings = reader.arcCount() * reader.arcCount();
    if (reader.lines().empty())
        return crossings;
    const std::vector<double> edges = bandEdges(reader.lines());
    for (size_t i = 1; i < edges.size() && crossings <= kMaxSvgCrossings; ++i)
        crossings += crossingsWithin(reader.lines(), edges[i - 1], edges[i]);
    return crossings;
}

double svgMostCrossings(QStringView points, bool isPathData)
{
    const double count = readLines(points, isPathData).pointCount();
    return count * count / 4;
}

} // namespace lorva
