// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/GlyphOutlines.h"

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

using OutlineVisitor = std::function<void(const LayoutLine &line, const QPainterPath &outline)>;

/// The outlines of a layout, within one budget of segments. Glyphs of a line whose boxes touch are
/// gathered into one path.
class LayoutOutliner
{
public:
    explicit LayoutOutliner(const OutlineVisitor &visit)
        : m_visit(visit)
    {
    }

    void visitLine(const LayoutLine &line)
    {
        for (const GlyphRun &run : line.runs)
            addRun(line, run);
        flush(line);
    }

private:
    void addRun(const LayoutLine &line, const GlyphRun &run)
    {
        if (!m_outliner || m_outliner->font() != run.font)
            m_outliner.emplace(run.font);
        for (const PositionedGlyph &glyph : run.glyphs) {
            if (m_budget <= 0)
                return;
            QPainterPath outline;
            m_budget -= m_outliner->append(outline, glyph.glyph, line.origin + glyph.position);
            if (!outline.isEmpty())
                addOutline(line, outline);
        }
    }

    void addOutline(const LayoutLine &line, const QPainterPath &outline)
    {
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
            m_visit(line, m_group);
        m_group = {};
        m_box = {};
    }

    const OutlineVisitor &m_visit;
    std::optional<GlyphOutliner> m_outliner;
    int m_budget = kMaxLayoutSegments;
    QPainterPath m_group;
    QRectF m_box;
};

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

void forEachOutline(
    const TextLayout &layout,
    const std::function<void(const LayoutLine &line, const QPainterPath &outline)> &visit)
{
    LayoutOutliner outliner(visit);
    for (const LayoutLine &line : layout.lines())
        outliner.visitLine(line);
}

} // namespace lorva
