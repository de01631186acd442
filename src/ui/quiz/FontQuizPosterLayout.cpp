// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizPosterPage.h"

#include "base/GroupedNumber.h"
#include "ui/quiz/FontQuizCategories.h"
#include "ui/quiz/FontQuizCompletionPosterView.h"
#include "ui/quiz/FontQuizPosterLines.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QCoreApplication>
#include <QEasingCurve>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QMarginsF>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

constexpr int kCategories = kFontQuizTiles;
/// A page of this many points, seen as a square, has type of the sizes below.
constexpr double kUnitSide = 1180;
constexpr double kLabelSize = 15;
constexpr double kCategoryNumberSize = 62;
constexpr double kCategoryNameSize = 15;
constexpr double kDotSize = 11;
/// Of a name beside its dot, in dots.
constexpr double kNameInset = 1.75;
constexpr double kSentenceSize = 19;
/// Of the page's height.
constexpr double kMostSentence = 0.34;
constexpr double kMostTotal = 0.44;
/// Digits this large stand too far apart otherwise; percent.
constexpr double kTotalSpacing = 97;
/// At which numbers are measured to find the size that fits.
constexpr double kSizeTried = 1000;
constexpr double kQuiet = 0.6;
constexpr double kZero = 0.35;
/// What has no colour yet.
constexpr double kBlank = 0.1;
/// So near, two colours of a gradient meet in an edge.
constexpr double kEdge = 1e-6;

// The bloom: when a part begins, and how long it takes, as shares of the whole.
constexpr double kTotalTime = 0.72;
constexpr double kFirstCategory = 0.14;
constexpr double kCategoryStep = 0.06;
constexpr double kCategoryTime = 0.5;

struct Colors
{
    QColor ground;
    QColor ink;
    std::array<QColor, kCategories> categories;
};

Colors colorsOf(bool isDark)
{
    if (isDark) {
        return {QColor(0x1c, 0x1b, 0x19),
                QColor(0xed, 0xeb, 0xe7),
                {QColor(0xf2, 0x6b, 0x3a), QColor(0x55, 0x9c, 0x83), QColor(0xf5, 0xcf, 0x5c),
                 QColor(0x72, 0x86, 0xd8), QColor(0xcf, 0x4d, 0x73), QColor(0xcf, 0xc0, 0xee)}};
    }
    return {QColor(0xee, 0xed, 0xe8),
            QColor(0x1d, 0x1c, 0x1a),
            {QColor(0xf2, 0x6b, 0x3a), QColor(0x1f, 0x4a, 0x3d), QColor(0xee, 0xb8, 0x2d),
             QColor(0x22, 0x2e, 0x58), QColor(0x8f, 0x1f, 0x3f), QColor(0xab, 0x96, 0xdc)}};
}

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FontQuizPoster)
};

std::array<int, kCategories> numbersOf(const FontQuizCounts &counts)
{
    return {counts.serif, counts.sans,   counts.display,
            counts.mono,  counts.script, counts.decorative};
}

std::array<QString, kCategories> names()
{
    std::array<QString, kCategories> names;
    for (int i = 0; i < kCategories; ++i)
        names[size_t(i)] = fontQuizCategoryName(i + 1);
    return names;
}

/// How high a digit stands over its baseline.
double digitHeight(const QFont &font)
{
    return -QFontMetricsF(font).tightBoundingRect(QStringLiteral("0")).top();
}

double widthOf(const QString &words, const QFont &font)
{
    return QFontMetricsF(font).horizontalAdvance(words);
}

std::array<QString, kCategories> formatted(const std::array<int, kCategories> &numbers)
{
    std::array<QString, kCategories> texts;
    std::ranges::transform(numbers, texts.begin(),
                           [](int number) { return groupedNumber(number); });
    return texts;
}

/// One size for all of them, `size` at most, in which none is wider than `width`.
QFont fittingFont(const std::array<QString, kCategories> &texts, double size, double width)
{
    for (const QString &words : texts) {
        const double wide = widthOf(words, posterFont(kSizeTried, QFont::Medium));
        if (wide > 0)
            size = std::min(size, std::floor(kSizeTried * width / wide));
    }
    return posterFont(size, QFont::Medium);
}

double shareOf(double progress, double begin, double duration)
{
    const double share = std::clamp((progress - begin) / duration, 0.0, 1.0);
    return QEasingCurve(QEasingCurve::OutCubic).valueForProgress(share);
}

FontQuizNumberLayer layerOf(int count, double share)
{
    return {int(std::lround(count * share)), std::min(share * 1.5, 1.0)};
}

/// The total's fill: bands from top to bottom, each as high as its category's share.
QBrush bandsOf(const std::array<int, kCategories> &numbers, const Colors &colors,
               const QRectF &digits, double share)
{
    double total = 0;
    for (const int number : numbers)
        total += number;
    const QColor blank = withAlpha(colors.ink, total > 0 ? kBlank : kZero);
    if (total <= 0 || share <= 0)
        return blank;
    // It rises from the digits' feet.
    QLinearGradient bands(digits.topLeft(), digits.bottomLeft());
    double at = 1 - share;
    const auto band = [&bands](double from, double to, const QColor &color) {
        bands.setColorAt(std::min(from + kEdge, 1.0), color);
        bands.setColorAt(std::clamp(to, 0.0, 1.0), color);
    };
    if (at > kEdge)
        band(-kEdge, at, blank);
    for (int i = 0; i < kCategories; ++i) {
        const double next = at + share * numbers[size_t(i)] / total;
        if (numbers[size_t(i)] > 0)
            band(at <= 0 ? -kEdge : at, next, colors.categories[size_t(i)]);
        at = next;
    }
    return bands;
}

/// Puts the parts together, from the page's foot up: what is left over is the total's.
class PosterBuilder
{
public:
    PosterBuilder(const FontQuizCounts &counts, const FontQuizPosterSetting &setting)
        : m_counts(counts)
        , m_setting(setting)
        , m_colors(colorsOf(setting.isDark))
        , m_room(QRectF({}, setting.size).marginsRemoved(fontQuizPosterMargins(setting.size)))
        , m_unit(std::sqrt(setting.size.width() * setting.size.height()) / kUnitSide)
        , m_layers(fontQuizNumberLayers(counts, setting.progress))
    {
    }

    FontQuizPosterPage build(const QString &sentence)
    {
        m_page.size = m_setting.size;
        m_page.ground = m_colors.ground;
        //: A big number stands below it: so many fonts were organized.
        m_page.title = Texts::tr("Fonts organized");
        placeSentence(sentence);
        placeCategories();
        placeTotal();
        return std::move(m_page);
    }

private:
    double scaled(double points) const { return std::max(points * m_unit, kSmallestPosterSize); }
    bool isRightToLeft() const { return m_setting.direction == Qt::RightToLeft; }

    /// `x` counts from the side where lines begin; `width` is the text's own.
    void put(const QString &words, const QFont &font, double x, double baseline,
             const QBrush &brush)
    {
        const double width = widthOf(words, font);
        const double left = isRightToLeft() ? m_room.right() - x - width : m_room.left() + x;
        m_page.texts.push_back({words, font, QPointF(left, baseline), brush});
    }

    /// A large digit's own bearing would set it off from everything below.
    void putNumber(int number, const QFont &font, double x, double baseline, const QBrush &brush)
    {
        const QString shown = groupedNumber(number);
        const QRectF ink = QFontMetricsF(font).tightBoundingRect(shown);
        const double bearing = isRightToLeft() ? widthOf(shown, font) - ink.right() : ink.left();
        put(shown, font, x - bearing, baseline, brush);
    }

    /// Beside the corner, or above it where too little room is left there.
    void placeSentence(const QString &sentence)
    {
        const QSizeF corner = m_setting.corner;
        const double beside = m_room.width() - corner.width() - 2 * spacing::k20;
        const bool isAbove = beside < m_room.width() / 2;
        const double above = isAbove ? corner.height() + spacing::k12 : 0;
        const FontQuizPosterLines lines =
            fittingPosterLines(sentence, scaled(kSentenceSize), isAbove ? m_room.width() : beside,
                               m_setting.size.height() * kMostSentence - above);
        const double share = shareOf(m_setting.progress, 0.5, 0.5);
        const double height = std::max(lines.height() + above, corner.height());
        m_foot = m_room.bottom() - height;
        double baseline = m_foot + QFontMetricsF(lines.font).ascent();
        for (const FontQuizPosterLines::Line &line : lines.lines) {
            const double alpha = line.paragraph > 0 ? kQuiet : 1;
            if (!line.text.isEmpty())
                put(line.text, lines.font, 0, baseline, withAlpha(m_colors.ink, alpha * share));
            baseline += lines.pitch;
        }
    }

    void placeCategories()
    {
        const double gap = std::max(spacing::k20 * m_unit, 12.0);
        const double column = (m_room.width() - (kCategories - 1) * gap) / kCategories;
        const QFont numberFont =
            fittingFont(formatted(numbersOf(m_counts)), scaled(kCategoryNumberSize), column);
        const double dot = std::round(std::max(kDotSize * m_unit, 8.0));
        const double nameSize = std::max(kCategoryNameSize * m_unit, 11.0);
        const QFont nameFont = fittingFont(names(), nameSize, column - dot * kNameInset);
        const double nameBaseline = m_foot - std::max(52 * m_unit, 28.0);
        const double numberBaseline = nameBaseline - nameSize * 1.9;
        for (int i = 0; i < kCategories; ++i) {
            const double x = i * (column + gap);
            placeNumber(size_t(i), x, numberBaseline, numberFont);
            placeName(size_t(i), x, nameBaseline, dot, nameFont);
        }
        m_foot = numberBaseline - digitHeight(numberFont);
    }

    void placeNumber(size_t index, double x, double baseline, const QFont &font)
    {
        const FontQuizNumberLayer &layer = m_layers[index + 1];
        const bool isZero = numbersOf(m_counts)[index] == 0;
        const double rise = (1 - layer.opacity) * spacing::k16 * m_unit;
        put(groupedNumber(layer.shown), font, x, baseline + rise,
            withAlpha(m_colors.ink, layer.opacity * (isZero ? kZero : 1)));
    }

    void placeName(size_t index, double x, double baseline, double dot, const QFont &font)
    {
        const double opacity = m_layers[index + 1].opacity;
        const double left = isRightToLeft() ? m_room.right() - x - dot : m_room.left() + x;
        const double middle = baseline - QFontMetricsF(font).capHeight() / 2;
        m_page.dots.push_back({QRectF(left, middle - dot / 2, dot, dot),
                               withAlpha(m_colors.categories[index], opacity)});
        put(names()[index], font, x + dot * kNameInset, baseline,
            withAlpha(m_colors.ink, kQuiet * opacity));
    }

    /// Fits its number, from the digits' tops to the feet of what separates thousands, between
    /// `top` and m_foot.
    QFont totalFont(double top, double below) const
    {
        QFont font = posterFont(kSizeTried, QFont::Bold);
        font.setLetterSpacing(QFont::PercentageSpacing, kTotalSpacing);
        const QString number = groupedNumber(m_counts.total);
        const double wide = widthOf(number, font);
        const double high = digitHeight(font);
        if (!(wide > 0) || !(high > 0))
            return posterFont(kSmallestPosterSize, QFont::Bold);
        const double deep = std::max(QFontMetricsF(font).tightBoundingRect(number).bottom(), 0.0);
        const double room = m_foot - top;
        const double share =
            std::min({(room - below) / high, (room - below / 2) / (high + deep),
                      m_setting.size.height() * kMostTotal / high, m_room.width() / wide});
        font.setPixelSize(std::max(int(kSizeTried * share), int(kSmallestPosterSize)));
        return font;
    }

    void placeTotal()
    {
        const QFont labelFont = posterFont(scaled(kLabelSize), QFont::DemiBold);
        const double above = std::max(30 * m_unit, 18.0);
        const double below = std::max(56 * m_unit, 26.0);
        const double top = m_room.top() + QFontMetricsF(labelFont).capHeight() + above;
        const QFont font = totalFont(top, below);
        const double height = digitHeight(font);
        const QRectF ink = QFontMetricsF(font).tightBoundingRect(groupedNumber(m_counts.total));
        const double baseline = m_foot - std::max(below, ink.bottom() + below / 2);
        const QRectF digits(0, baseline - height, 1, height);
        const double share = shareOf(m_setting.progress, 0, kTotalTime);
        putNumber(m_layers[0].shown, font, 0, baseline,
                  bandsOf(numbersOf(m_counts), m_colors, digits, share));
        put(Texts::tr("Fonts organized"), labelFont, 0, std::round(digits.top() - above),
            withAlpha(m_colors.ink, kQuiet));
    }

    const FontQuizCounts &m_counts;
    const FontQuizPosterSetting &m_setting;
    const Colors m_colors;
    const QRectF m_room;
    const double m_unit;
    const std::array<FontQuizNumberLayer, 7> m_layers;
    FontQuizPosterPage m_page;
    /// What is placed already begins here.
    double m_foot = 0;
};

} // namespace

std::array<FontQuizNumberLayer, 7> fontQuizNumberLayers(const FontQuizCounts &counts,
                                                        double progress)
{
    std::array<FontQuizNumberLayer, 7> layers{
        layerOf(counts.total, shareOf(progress, 0, kTotalTime))};
    const std::array<int, kCategories> numbers = numbersOf(counts);
    for (size_t i = 0; i < kCategories; ++i) {
        const double begin = kFirstCategory + double(i) * kCategoryStep;
        layers[i + 1] = layerOf(numbers[i], shareOf(progress, begin, kCategoryTime));
    }
    return layers;
}

QMarginsF fontQuizPosterMargins(const QSizeF &size)
{
    const double side = std::round(std::clamp(size.width() * 0.07, 40.0, 190.0));
    const double foot = std::round(std::clamp(size.height() * 0.075, 32.0, 120.0));
    // The window's own button stands above.
    return {side, std::max(foot, 64.0), side, foot};
}

FontQuizPosterPage fontQuizPosterPage(const FontQuizCounts &counts, const QString &sentence,
                                      const FontQuizPosterSetting &setting)
{
    return PosterBuilder(counts, setting).build(sentence);
}

} // namespace lorva
