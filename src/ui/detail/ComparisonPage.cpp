// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/ComparisonPage.h"

#include "base/TextBeginning.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QCoreApplication>
#include <QFontMetrics>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

constexpr double kCaptionAlpha = 0.5;
constexpr int kCaptionHeight = kCaptionButtonSide;
constexpr double kColumnGap = spacing::k32;
constexpr double kRowGap = spacing::k32;
constexpr double kTextGap = spacing::k16;
constexpr double kLegendGap = spacing::k20;
constexpr double kDotSide = 8;
/// Ems that a column needs to hold a few words.
constexpr double kNarrowestColumnEms = 5;
constexpr double kLeastScale = 0.25;
constexpr double kMostScale = 4;
/// No caption has room for more; a font may bring a name of 64 kilobytes, which is measured.
constexpr qsizetype kLongestName = 300;

QString captionOf(const ComparedFace &face)
{
    const QString whole = face.familyName.left(kLongestName) + QLatin1Char(' ') + face.styleName;
    const QString name = whole.left(kLongestName).trimmed();
    if (face.font.isNull() || !face.font.isStandIn())
        return name;
    return QCoreApplication::translate("ComparisonView", "%1 — not available").arg(name);
}

struct TextLine
{
    QString text;
    bool isRightToLeft = false;
};

double spacingOf(const DetailSpecimen &specimen, const Font &font)
{
    return specimen.letterSpacing * font.pointSize();
}

std::vector<TextLine> brokenLines(const DetailSpecimen &specimen, const Font &font, double width)
{
    TextLayoutOptions options;
    options.width = width;
    options.letterSpacing = spacingOf(specimen, font);
    options.maximumLines = kMostComparedLines;
    const QString text = textBeginning(specimen.text, kMostComparedCharacters);
    const TextLayout layout(text, font, options);
    std::vector<TextLine> lines;
    for (const LayoutLine &line : layout.lines())
        lines.push_back(
            {text.mid(line.textStart, line.textEnd - line.textStart), line.isRightToLeft});
    return lines;
}

/// Baselines that several fonts share.
struct LineGrid
{
    double ascent = 0;
    double pitch = 0;
    double descent = 0;

    void makeRoomFor(const Font &font)
    {
        if (font.isNull())
            return;
        ascent = std::max(ascent, font.ascent());
        descent = std::max(descent, font.descent());
        gap = std::max(gap, font.lineGap());
        // A font whose tables say nothing has lines all the same.
        pitch = std::max(std::ceil(ascent + descent + gap), std::ceil(font.pointSize()));
    }
    double heightOf(size_t lines) const
    {
        return lines == 0 ? pitch : std::ceil(ascent + descent + double(lines - 1) * pitch);
    }

private:
    double gap = 0;
};

class ComparisonLayouter
{
public:
    ComparisonLayouter(const Comparison &comparison, double width, bool isMirrored)
        : m_comparison(comparison)
        , m_specimen(comparison.specimen)
        , m_width(width)
        , m_isMirrored(isMirrored)
        , m_ink(controlColor(m_specimen.foreground, m_specimen.background))
    {
        m_faces.push_back({m_specimen.familyName, m_specimen.styleName, m_specimen.font});
        for (ComparedFace face : comparison.others) {
            face.font = comparedFont(face.font, m_specimen.font, comparison.matchesXHeight);
            m_faces.push_back(std::move(face));
        }
    }

    ComparisonPage layOut()
    {
        m_result.page.title = m_specimen.familyName + QLatin1Char(' ') + m_specimen.styleName;
        if (m_comparison.mode == ComparisonMode::beside)
            layOutBeside();
        else
            layOutOverlaid();
        makeRoomForOverhang();
        m_result.page.size = QSizeF(m_width, std::ceil(m_bottom));
        return std::move(m_result);
    }

private:
    static bool isDrawn(const Font &font) { return !font.isNull() && !font.isStandIn(); }

    void layOutBeside()
    {
        const int columns =
            comparisonColumns(int(m_faces.size()), m_width, m_specimen.font.pointSize());
        for (size_t first = 0; first < m_faces.size(); first += size_t(columns)) {
            if (first > 0)
                m_bottom += kRowGap;
            layOutRow(first, std::min(first + size_t(columns), m_faces.size()), columns);
        }
    }

    void layOutRow(size_t first, size_t end, int columns)
    {
        const double columnWidth = (m_width - (columns - 1) * kColumnGap) / columns;
        LineGrid grid;
        for (size_t i = first; i < end; ++i)
            grid.makeRoomFor(isDrawn(m_faces[i].font) ? m_faces[i].font : m_specimen.font);
        const double top = m_bottom;
        size_t most = 0;
        for (size_t i = first; i < end; ++i) {
            double x = double(i - first) * (columnWidth + kColumnGap);
            if (m_isMirrored)
                x = m_width - x - columnWidth;
            const QRectF column(x, top, columnWidth, kCaptionHeight);
            addCaption(i, column);
            m_result.page.rules.push_back({column, line()});
            const Font &font = m_faces[i].font;
            if (!isDrawn(font))
                continue;
            const std::vector<TextLine> lines = brokenLines(m_specimen, font, columnWidth);
            most = std::max(most, lines.size());
            addLines(lines, font, m_specimen.foreground, textTop(column), grid, column);
        }
        m_bottom = top + kCaptionHeight + kTextGap + grid.heightOf(most);
    }

    void layOutOverlaid()
    {
        m_bottom = addLegend();
        const QRectF rule(0, 0, m_width, m_bottom);
        m_result.page.rules.push_back({rule, line()});
        LineGrid grid;
        for (const ComparedFace &face : m_faces)
            grid.makeRoomFor(isDrawn(face.font) ? face.font : Font());
        std::vector<TextLine> lines;
        if (!m_specimen.font.isNull())
            lines = brokenLines(m_specimen, m_specimen.font, m_width);
        for (size_t i = 0; i < m_faces.size(); ++i) {
            if (isDrawn(m_faces[i].font))
                addLines(lines, m_faces[i].font, colorOf(i), m_bottom + kTextGap, grid, rule);
        }
        m_bottom += kTextGap + grid.heightOf(lines.size());
    }

    static double textTop(const QRectF &caption) { return caption.bottom() + kTextGap; }

    QColor line() const { return hairlineColor(m_specimen.foreground, m_specimen.background); }
    QColor colorOf(size_t face) const
    {
        return face == 0
            ? m_specimen.foreground
            : comparisonTint(int(face) - 1, m_specimen.foreground, m_specimen.background);
    }

    void addLines(const std::vector<TextLine> &lines, const Font &font, const QColor &color,
                  double top, const LineGrid &grid, const QRectF &room)
    {
        double baseline = std::ceil(top + grid.ascent);
        for (const TextLine &line : lines) {
            TextLayoutOptions options;
            options.letterSpacing = spacingOf(m_specimen, font);
            options.direction =
                line.isRightToLeft ? TextDirection::rightToLeft : TextDirection::leftToRight;
            TextLayout layout(line.text, font, options);
            if (!layout.lines().empty()) {
                const double free = line.isRightToLeft ? room.width() - layout.size().width() : 0;
                const QPointF origin(room.left() + free,
                                     baseline - layout.lines().front().origin.y());
                m_result.page.texts.push_back({std::move(layout), origin, color});
                m_result.rooms.push_back(room);
            }
            baseline += grid.pitch;
        }
    }

    /// The caption of a face within `rect`, and behind it the button that takes it out.
    void addCaption(size_t face, const QRectF &rect)
    {
        const bool hasButton = face > 0;
        const double room = rect.width() - (hasButton ? kCaptionButtonSide : 0);
        SpecimenPage::Caption caption;
        caption.text = captionOf(m_faces[face]);
        const double width = std::min(
            room,
            double(
                QFontMetrics(interfaceFont(InterfaceSize::caption)).horizontalAdvance(caption.text))
                + 1);
        const double left = m_isMirrored ? rect.right() - width : rect.left();
        caption.rect = QRectF(left, rect.top(), width, rect.height());
        caption.alignment = m_isMirrored ? Qt::AlignRight : Qt::AlignLeft;
        caption.color = withAlpha(m_ink, kCaptionAlpha);
        m_result.page.captions.push_back(caption);
        if (!hasButton)
            return;
        const double x = m_isMirrored ? left - kCaptionButtonSide : caption.rect.right();
        m_result.buttons.emplace_back(int(std::round(x)), int(rect.top()), kCaptionButtonSide,
                                      kCaptionButtonSide);
    }

    /// Gives its height.
    double addLegend()
    {
        const QFontMetrics metrics(interfaceFont(InterfaceSize::caption));
        double x = 0;
        double top = 0;
        for (size_t i = 0; i < m_faces.size(); ++i) {
            const double dot = kDotSide + spacing::k8;
            const double text = metrics.horizontalAdvance(captionOf(m_faces[i])) + 1;
            const double width = std::min(m_width, dot + text + (i > 0 ? kCaptionButtonSide : 0));
            if (x > 0 && x + width > m_width) {
                x = 0;
                top += kCaptionHeight;
            }
            const double left = m_isMirrored ? m_width - x - width : x;
            const double dotLeft = m_isMirrored ? left + width - kDotSide : left;
            m_result.page.dots.push_back(
                {QRectF(dotLeft, top + (kCaptionHeight - kDotSide) / 2, kDotSide, kDotSide),
                 colorOf(i)});
            addCaption(i,
                       QRectF(m_isMirrored ? left : left + dot, top, width - dot, kCaptionHeight));
            x += width + kLegendGap;
        }
        return top + kCaptionHeight;
    }

    /// The feet of letters that hang over the leading edge would be cut: everything moves by as
    /// much, so that origins stay common.
    void makeRoomForOverhang()
    {
        double left = 0;
        double right = 0;
        for (const SpecimenPage::Text &text : m_result.page.texts) {
            const QRectF ink = text.layout.inkBounds().translated(text.origin);
            if (text.layout.lines().front().isRightToLeft)
                right = std::max(right, ink.right() - m_width);
            else
                left = std::max(left, -ink.left());
        }
        const double most = kColumnGap / 2;
        for (SpecimenPage::Text &text : m_result.page.texts) {
            const bool isRightToLeft = text.layout.lines().front().isRightToLeft;
            text.origin.rx() += isRightToLeft ? -std::min(right, most) : std::min(left, most);
        }
    }

    const Comparison &m_comparison;
    const DetailSpecimen &m_specimen;
    const double m_width;
    const bool m_isMirrored;
    const QColor m_ink;
    /// The specimen's own first.
    std::vector<ComparedFace> m_faces;
    ComparisonPage m_result;
    double m_bottom = 0;
};

} // namespace

ComparisonPage layOutComparison(const Comparison &comparison, double width, bool isMirrored)
{
    return ComparisonLayouter(comparison, std::max(1.0, width), isMirrored).layOut();
}

int comparisonColumns(int faces, double width, double pointSize)
{
    for (int columns = faces; columns > 1; --columns) {
        // Three and one would leave the last alone in a row of its own.
        const bool leavesOne = columns > 2 && faces % columns == 1;
        const double columnWidth = (width - (columns - 1) * kColumnGap) / columns;
        if (!leavesOne && columnWidth >= kNarrowestColumnEms * pointSize)
            return columns;
    }
    return 1;
}

Font comparedFont(const Font &other, const Font &specimen, bool matchesXHeight)
{
    if (other.isNull() || specimen.isNull())
        return other;
    const Font sized = other.withPointSize(specimen.pointSize());
    const double own = sized.xHeight();
    const double wanted = specimen.xHeight();
    if (!matchesXHeight || !(own > 0) || !(wanted > 0))
        return sized;
    const double scale = std::clamp(wanted / own, kLeastScale, kMostScale);
    return sized.withPointSize(specimen.pointSize() * scale);
}

} // namespace lorva
