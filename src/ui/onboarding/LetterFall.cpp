// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/onboarding/LetterFall.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace lorva {

namespace {

using namespace std::chrono_literals;
using std::chrono::nanoseconds;

constexpr nanoseconds kShower = 2s;
/// A library of usual size is known by then.
constexpr nanoseconds kWaitForFamilies = 600ms;
/// Without any letter until then there is no scene.
constexpr nanoseconds kWaitForLetters = 2s;
constexpr nanoseconds kLongestScene = 4800ms;
/// While the library is not known, letters of one font come, but few: the others are to come.
constexpr int kMostOfSystemFont = 14;
constexpr nanoseconds kSystemFontInterval = 110ms;

constexpr double kPointsForLetter = 26000;
constexpr int kFewest = 40;
constexpr int kMost = 70;
constexpr double kUsualArea = 1720.0 * 920;
constexpr double kSmallest = 60;
constexpr double kLargest = 220;

/// Steps of the golden ratio: spread evenly, and no two neighbours alike.
double spread(int number, double step)
{
    const double value = 0.5 + number * step;
    return value - std::floor(value);
}

constexpr double kGolden = 0.6180339887498949;
constexpr double kSilver = 0.4142135623730951;
constexpr double kPlastic = 0.7548776662466927;

struct Hues
{
    QRgb ground;
    /// The first one is the ink, which most letters have.
    std::array<QRgb, 5> letters;
};

constexpr Hues kLight{0xffeeece6, {0xff23211f, 0xfff0653a, 0xff2f5d62, 0xffe3b04b, 0xffc9c3b6}};
constexpr Hues kDark{0xff191817, {0xffece7de, 0xfff2734a, 0xff6fa8a6, 0xffe0b252, 0xff4b4742}};

constexpr std::array<int, 12> kColorOrder{0, 1, 0, 4, 0, 2, 0, 3, 0, 0, 4, 1};

const Hues &hues(bool isDark)
{
    return isDark ? kDark : kLight;
}

int countFor(QSize size)
{
    return std::clamp(int(double(size.width()) * size.height() / kPointsForLetter), kFewest, kMost);
}

double scaleFor(QSize size)
{
    return std::clamp(std::sqrt(double(size.width()) * size.height() / kUsualArea), 0.4, 1.3);
}

double reachOf(const QPainterPath &outline)
{
    const QRectF box = outline.boundingRect();
    return std::hypot(std::max(-box.left(), box.right()), std::max(-box.top(), box.bottom()));
}

/// Moved by less than anyone could see.
bool looksAlike(const QTransform &a, const QTransform &b)
{
    return std::abs(a.dx() - b.dx()) + std::abs(a.dy() - b.dy()) < 0.04
        && std::abs(a.m11() - b.m11()) + std::abs(a.m12() - b.m12()) < 0.0004;
}

} // namespace

QColor welcomeGround(bool isDark)
{
    return QColor::fromRgba(hues(isDark).ground);
}

LetterFall::LetterFall(std::unique_ptr<LetterSupply> supply, QSize size)
    : m_scene(size)
    , m_supply(std::move(supply))
    , m_size(size)
    , m_wantedCount(countFor(size))
    , m_scale(scaleFor(size))
{
    m_supply->pointSize = [this](int number) { return pointSize(number); };
    // So that the first ones are ready when they are wanted.
    if (auto letter = m_supply->take())
        drop(*letter);
}

double LetterFall::pointSize(int number) const
{
    return m_scale * (kSmallest + (kLargest - kSmallest) * std::pow(spread(number, kPlastic), 1.2));
}

void LetterFall::resize(QSize size)
{
    m_size = size;
    m_scene.resize(size);
    for (Letter &letter : m_letters)
        letter.wasShown = false;
}

nanoseconds LetterFall::interval() const
{
    return m_supply->hasFamilies() ? kShower / m_wantedCount : kSystemFontInterval;
}

void LetterFall::letIn(nanoseconds time)
{
    m_now += time;
    if (!m_supply)
        return;
    if (m_now >= kWaitForFamilies)
        m_supply->allowSystemFont();
    const int most = m_supply->hasFamilies() ? m_wantedCount : kMostOfSystemFont;
    while (count() < most && m_nextLetter <= m_now) {
        std::optional<FallingLetter> letter = m_supply->take();
        // Those that are late do not come all at once.
        m_nextLetter = letter ? m_nextLetter + interval() : m_now + 1ns;
        if (letter)
            drop(*letter);
    }
    if (count() >= m_wantedCount)
        m_supply.reset();
}

/// There or further up, where no other letter is on its way: two that begin in each other never
/// come apart.
QPointF LetterFall::freePlace(QPointF at, double reach) const
{
    for (int i = 0; i < count(); ++i) {
        const QRectF box(at - QPointF(reach, reach), 2 * QSizeF(reach, reach));
        const QRectF other = m_scene.bounds(i);
        if (!other.intersects(box))
            continue;
        at.setY(other.top() - reach * 1.05);
        i = -1;
    }
    return at;
}

void LetterFall::drop(const FallingLetter &letter)
{
    const int number = count();
    if (number == 0)
        m_firstLetter = m_now;
    const double reach = reachOf(letter.outline);
    const double free = std::max(0.0, m_size.width() - 2 * reach);
    const double x = reach + free * spread(number, kGolden);
    const LetterScene::Entry entry{freePlace({x, -reach * 1.05}, reach),
                                   1.4 * (spread(number, kSilver) - 0.5),
                                   {60 * (spread(number, kPlastic) - 0.5), 420},
                                   3.2 * (spread(number, kGolden + kSilver) - 0.5)};
    m_scene.add(letter.parts, entry);
    const int color = kColorOrder[size_t(number) % kColorOrder.size()];
    m_letters.push_back({letter.outline, reach, color, {}, false});
}

void LetterFall::advance(nanoseconds time)
{
    if (m_isFrozen)
        return;
    letIn(time);
    m_scene.advance(time);
}

bool LetterFall::isOver() const
{
    if (m_letters.empty())
        return !m_supply || m_now >= kWaitForLetters;
    return isAtRest() || m_now - m_firstLetter >= kLongestScene;
}

bool LetterFall::isAtRest() const
{
    return m_isFrozen || (!m_supply && m_scene.isAtRest());
}

void LetterFall::freeze()
{
    m_isFrozen = true;
    endSupply();
}

void LetterFall::settle()
{
    while (m_supply && count() < m_wantedCount) {
        if (!m_supply->hasFamilies())
            m_supply->allowSystemFont();
        std::optional<FallingLetter> letter = m_supply->takeNow();
        if (!letter)
            break;
        drop(*letter);
        for (int i = 0; i < 2; ++i)
            m_scene.advance(kShower / m_wantedCount / 2);
    }
    endSupply();
    m_scene.settle();
}

QRect LetterFall::rectOf(const QTransform &transform, const Letter &letter) const
{
    const QPointF centre(transform.dx(), transform.dy());
    const QPointF reach(letter.reach + 2, letter.reach + 2);
    return QRectF(centre - reach, centre + reach).toAlignedRect();
}

QRegion LetterFall::takeChanged()
{
    QRegion changed;
    for (size_t i = 0; i < m_letters.size(); ++i) {
        Letter &letter = m_letters[i];
        const QTransform now = m_scene.transform(int(i));
        if (letter.wasShown && looksAlike(now, letter.shown))
            continue;
        if (letter.wasShown)
            changed |= rectOf(letter.shown, letter);
        changed |= rectOf(now, letter);
        letter.shown = now;
        letter.wasShown = true;
    }
    return changed & QRect(QPoint(), m_size);
}

void LetterFall::paint(QPainter &painter, const QRegion &exposed, bool isDark) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    const QTransform base = painter.transform();
    for (size_t i = 0; i < m_letters.size(); ++i) {
        const Letter &letter = m_letters[i];
        const QTransform now = m_scene.transform(int(i));
        if (!exposed.intersects(rectOf(now, letter)))
            continue;
        painter.setTransform(now * base);
        painter.fillPath(letter.outline,
                         QColor::fromRgba(hues(isDark).letters[size_t(letter.color)]));
    }
    painter.setTransform(base);
}

} // namespace lorva
