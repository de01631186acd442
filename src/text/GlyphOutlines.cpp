// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/GlyphOutlines.h"

#include "text/color/ColorGlyphs.h"
#include "text/FontLimits.h"

#include <hb.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace lorva {

namespace {

/// The widest real glyphs take some twenty ems; the rasteriser slows down far from the image.
constexpr double kMaxReachEms = 64;
/// kMaxLayoutCharacters of a rather intricate face.
constexpr int kMaxLayoutSegments = 1'000'000;

/// What HarfBuzz draws with.
struct OutlinePen
{
    QPainterPath path;
    QPointF origin;
    double scale = 0;
    double reach = 0;
    int segments = 0;
    bool isUsable = true;

    /// False once the glyph has used its budget.
    bool spend()
    {
        isUsable = isUsable && ++segments <= kMaxOutlineSegments;
        return isUsable;
    }

    QPointF point(float x, float y)
    {
        const QPointF offset(double(x) * scale, -double(y) * scale);
        // Written so that a coordinate that is no number fails too.
        if (!(std::abs(offset.x()) <= reach && std::abs(offset.y()) <= reach))
            isUsable = false;
        return origin + offset;
    }
};

void moveTo(hb_draw_funcs_t *, void *data, hb_draw_state_t *, float x, float y, void *)
{
    auto &pen = *static_cast<OutlinePen *>(data);
    if (const QPointF to = pen.point(x, y); pen.spend())
        pen.path.moveTo(to);
}

void lineTo(hb_draw_funcs_t *, void *data, hb_draw_state_t *, float x, float y, void *)
{
    auto &pen = *static_cast<OutlinePen *>(data);
    if (const QPointF to = pen.point(x, y); pen.spend())
        pen.path.lineTo(to);
}

void quadraticTo(hb_draw_funcs_t *, void *data, hb_draw_state_t *, float x1, float y1, float x,
                 float y, void *)
{
    auto &pen = *static_cast<OutlinePen *>(data);
    const QPointF control = pen.point(x1, y1);
    if (const QPointF to = pen.point(x, y); pen.spend())
        pen.path.quadTo(control, to);
}

void cubicTo(hb_draw_funcs_t *, void *data, hb_draw_state_t *, float x1, float y1, float x2,
             float y2, float x, float y, void *)
{
    auto &pen = *static_cast<OutlinePen *>(data);
    const QPointF first = pen.point(x1, y1);
    const QPointF second = pen.point(x2, y2);
    if (const QPointF to = pen.point(x, y); pen.spend())
        pen.path.cubicTo(first, second, to);
}

void closePath(hb_draw_funcs_t *, void *data, hb_draw_state_t *, void *)
{
    auto &pen = *static_cast<OutlinePen *>(data);
    if (pen.isUsable)
        pen.path.closeSubpath();
}

using DrawFuncsPtr = std::unique_ptr<hb_draw_funcs_t, decltype(&hb_draw_funcs_destroy)>;

hb_draw_funcs_t *drawFuncs()
{
    static const DrawFuncsPtr funcs = [] {
        DrawFuncsPtr made(hb_draw_funcs_create(), &hb_draw_funcs_destroy);
        hb_draw_funcs_set_move_to_func(made.get(), moveTo, nullptr, nullptr);
        hb_draw_funcs_set_line_to_func(made.get(), lineTo, nullptr, nullptr);
        hb_draw_funcs_set_quadratic_to_func(made.get(), quadraticTo, nullptr, nullptr);
        hb_draw_funcs_set_cubic_to_func(made.get(), cubicTo, nullptr, nullptr);
        hb_draw_funcs_set_close_path_func(made.get(), closePath, nullptr, nullptr);
        hb_draw_funcs_make_immutable(made.get());
        return made;
    }();
    return funcs.get();
}

void drawGlyph(hb_font_t *font, quint32 glyph, OutlinePen &pen)
{
#if HB_VERSION_ATLEAST(7, 0, 0)
    hb_font_draw_glyph(font, glyph, drawFuncs(), &pen);
#else
    hb_font_get_glyph_shape(font, glyph, drawFuncs(), &pen);
#endif
}

/// The hollow box that stands for a missing glyph of a face that draws none itself.
QPainterPath missingGlyphBox(const Font &font, QPointF at, double advance)
{
    // Shares of the advance, of the em, and again of the em.
    constexpr double kBearing = 0.1;
    constexpr double kCapHeight = 0.7;
    constexpr double kStroke = 0.05;
    const double capHeight =
        font.capHeight() > 0 ? font.capHeight() : kCapHeight * font.pointSize();
    const QRectF box(at.x() + kBearing * advance, at.y() - capHeight, (1 - 2 * kBearing) * advance,
                     capHeight);
    const double stroke =
        std::min({std::max(1.0, kStroke * font.pointSize()), box.width() / 4, box.height() / 4});
    QPainterPath hole;
    hole.addRect(box.adjusted(stroke, stroke, -stroke, -stroke));
    QPainterPath path;
    path.addRect(box);
    path.addPath(hole.toReversed());
    return path;
}

enum class ColorGlyphUse { pictures, outlines };

/// One of the fonts of a layout.
struct RunFont
{
    RunFont(const Font &font, ColorGlyphUse use)
        : outliner(font)
    {
        if (use == ColorGlyphUse::pictures && !font.isNull() && mayHaveColor(*font.face()))
            colors.emplace(font);
    }

    GlyphOutliner outliner;
    /// Only for a font that may have some.
    std::optional<ColorGlyphs> colors;
};

/// Goes through a layout within one budget of segments.
class LayoutWalker
{
public:
    LayoutWalker(InkVisitor &visitor, ColorGlyphUse use)
        : m_visitor(visitor)
        , m_use(use)
    {
    }

    void visitLine(const LayoutLine &line)
    {
        for (const GlyphRun &run : line.runs)
            addRun(line, run);
        flush(line);
    }

private:
    /// Lines go back and forth between a few fonts; sources of pictures are costly to make anew.
    RunFont &fontOf(const GlyphRun &run)
    {
        const auto found = std::find_if(m_fonts.begin(), m_fonts.end(), [&](const auto &candidate) {
            return candidate->outliner.font() == run.font;
        });
        if (found != m_fonts.end())
            return **found;
        m_fonts.push_back(std::make_unique<RunFont>(run.font, m_use));
        return *m_fonts.back();
    }

    void addRun(const LayoutLine &line, const GlyphRun &run)
    {
        RunFont &font = fontOf(run);
        for (const PositionedGlyph &glyph : run.glyphs) {
            if (m_budget <= 0)
                return;
            if (!font.colors || !showPicture(line, *font.colors, glyph))
                addOutline(line, font.outliner, glyph);
        }
    }

    bool showPicture(const LayoutLine &line, ColorGlyphs &colors, const PositionedGlyph &glyph)
    {
        if (!colors.has(glyph.glyph))
            return false;
        flush(line);
        return m_visitor.picture(line, colors, glyph.glyph, line.origin + glyph.position);
    }

    void addOutline(const LayoutLine &line, GlyphOutliner &outliner, const PositionedGlyph &glyph)
    {
        const QPointF at = line.origin + glyph.position;
        QPainterPath outline;
        m_budget -= outliner.append(outline, glyph.glyph, at);
        if (outline.isEmpty() && glyph.glyph == 0 && glyph.advance > 0)
            outline = missingGlyphBox(outliner.font(), at, outliner.missingAdvance(glyph.advance));
        if (outline.isEmpty())
            return;
        const QRectF box = outline.controlPointRect();
        if (!m_group.isEmpty() && !m_box.intersects(box))
            flush(line);
        m_group.setFillRule(Qt::WindingFill);
        m_group.addPath(outline);
        m_box |= box;
    }

    void flush(const LayoutLine &line)
    {
        if (!m_group.isEmpty())
            m_visitor.outline(line, m_group);
        m_group = {};
        m_box = {};
    }

    InkVisitor &m_visitor;
    const ColorGlyphUse m_use;
    std::vector<std::unique_ptr<RunFont>> m_fonts;
    int m_budget = kMaxLayoutSegments;
    QPainterPath m_group;
    QRectF m_box;
};

using OutlineVisit = std::function<void(const LayoutLine &line, const QPainterPath &outline)>;

class OutlineVisitor : public InkVisitor
{
public:
    explicit OutlineVisitor(const OutlineVisit &visit)
        : m_visit(visit)
    {
    }

    void outline(const LayoutLine &line, const QPainterPath &outline) override
    {
        m_visit(line, outline);
    }
    bool picture(const LayoutLine &, ColorGlyphs &, quint32, QPointF) override { return false; }

private:
    const OutlineVisit &m_visit;
};

class BoundsVisitor : public InkVisitor
{
public:
    void outline(const LayoutLine &, const QPainterPath &outline) override
    {
        bounds |= outline.boundingRect();
    }

    bool picture(const LayoutLine &, ColorGlyphs &glyphs, quint32 glyph, QPointF at) override
    {
        const QRectF box = glyphs.bounds(glyph);
        if (!box.isEmpty())
            bounds |= box.translated(at);
        return true;
    }

    QRectF bounds;
};

void visitLayout(const TextLayout &layout, InkVisitor &visitor, ColorGlyphUse use)
{
    LayoutWalker walker(visitor, use);
    for (const LayoutLine &line : layout.lines())
        walker.visitLine(line);
}

} // namespace

GlyphOutliner::GlyphOutliner(const Font &font)
    : m_font(font)
    , m_shapingFont(font.shapingFont())
{
    if (font.isNull())
        return;
    m_pointsPerUnit = font.pointSize() / std::max(1, font.face()->metrics().unitsPerEm);
    m_reach = kMaxReachEms * font.pointSize();
}

int GlyphOutliner::append(QPainterPath &path, quint32 glyph, QPointF at)
{
    if (m_inkless.contains(glyph))
        return 0;
    OutlinePen pen;
    pen.origin = at;
    pen.scale = m_pointsPerUnit;
    pen.reach = m_reach;
    drawGlyph(m_shapingFont.get(), glyph, pen);
    if (pen.isUsable && !pen.path.isEmpty())
        path.addPath(pen.path);
    else
        m_inkless.insert(glyph);
    return pen.segments;
}

double GlyphOutliner::advance(quint32 glyph) const
{
    const double own = hb_font_get_glyph_h_advance(m_shapingFont.get(), glyph) * m_pointsPerUnit;
    return own > 0 && own <= m_reach ? own : 0;
}

double GlyphOutliner::missingAdvance(double otherwise) const
{
    const double own = advance(0);
    return own > 0 ? own : otherwise;
}

void visitInk(const TextLayout &layout, InkVisitor &visitor)
{
    visitLayout(layout, visitor, ColorGlyphUse::pictures);
}

void forEachOutline(const TextLayout &layout, const OutlineVisit &visit)
{
    OutlineVisitor visitor(visit);
    visitLayout(layout, visitor, ColorGlyphUse::outlines);
}

QRectF inkBoundsOf(const TextLayout &layout)
{
    BoundsVisitor visitor;
    visitInk(layout, visitor);
    return visitor.bounds;
}

} // namespace lorva
