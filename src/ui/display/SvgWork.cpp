// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/SvgWork.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>

#include <cmath>
#include <limits>

namespace lorva {

namespace {

// Measured on one core of a slow machine, rounded up.
constexpr double kPerShape = 1500;
constexpr double kPerPoint = 40;
constexpr double kPerPixel = 3;
constexpr double kPerLetter = 800;
/// An edge leaves a cell in each pixel that it crosses …
constexpr double kPerCell = 90;
/// … and is followed from its beginning anew for each band of rows that it reaches.
constexpr double kBandRows = 40;
/// … where each cell is put in order among those of its row.
constexpr double kPerCellPassed = 0.1;
/// A curve becomes at least so many edges.
constexpr double kEdgesPerCurve = 8;
constexpr double kPerDash = 2000;
/// A stroke is an outline on both sides of its line, with joins.
constexpr double kStrokeFactor = 6;

/// What rasterizing depends on, in device pixels.
struct Outline
{
    QRectF bounds;
    double lengthPx = 0;
    /// The pixels that the edges cross, inside the picture …
    double cells = 0;
    /// … and how often they are crossed, band by band.
    double cellsFollowed = 0;
    double points = 0;
};

class WorkMeter final : public QPaintEngine
{
public:
    explicit WorkMeter(QSize sizePx)
        : QPaintEngine(AllFeatures)
        , m_picture(QPointF(0, 0), QSizeF(sizePx))
    {
    }

    double work() const { return m_work; }

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState &) override { }

    void drawPath(const QPainterPath &path) override
    {
        Outline outline;
        QPointF last;
        for (int i = 0; i < path.elementCount(); ++i)
            addPoint(outline, path.elementAt(i), last, edgeKind(path.elementAt(i)));
        addOutline(outline);
    }

    void drawPolygon(const QPointF *points, int count, PolygonDrawMode) override
    {
        Outline outline;
        QPointF last;
        for (int i = 0; i < count; ++i)
            addPoint(outline, points[i], last, i == 0 ? Edge::none : Edge::line);
        addOutline(outline);
    }

    void drawPixmap(const QRectF &rect, const QPixmap &, const QRectF &) override { addRect(rect); }
    void drawImage(const QRectF &rect, const QImage &, const QRectF &,
                   Qt::ImageConversionFlags) override
    {
        addRect(rect);
    }
    void drawTextItem(const QPointF &at, const QTextItem &item) override
    {
        const double height = item.ascent() + item.descent();
        addRect(QRectF(at.x(), at.y() - item.ascent(), item.width(), height));
        m_work += kPerLetter * double(item.text().size());
    }

private:
    enum class Edge { none, line, curve };

    static Edge edgeKind(const QPainterPath::Element &element)
    {
        if (element.isMoveTo())
            return Edge::none;
        return element.isLineTo() ? Edge::line : Edge::curve;
    }

    void addPoint(Outline &outline, QPointF point, QPointF &last, Edge edge)
    {
        const QPointF mapped = state->transform().map(point);
        const QRectF dot(mapped, QSizeF(0, 0));
        outline.bounds = outline.points > 0
            ? QRectF(QPointF(std::min(outline.bounds.left(), mapped.x()),
                             std::min(outline.bounds.top(), mapped.y())),
                     QPointF(std::max(outline.bounds.right(), mapped.x()),
                             std::max(outline.bounds.bottom(), mapped.y())))
            : dot;
        ++outline.points;
        if (edge != Edge::none)
            addEdge(outline, mapped - last, edge);
        last = mapped;
    }

    void addEdge(Outline &outline, QPointF span, Edge edge) const
    {
        const double rows = std::min(std::abs(span.y()), m_picture.height());
        const double cells = std::min(std::abs(span.x()), m_picture.width()) + rows + 2;
        const double edgeRows = edge == Edge::curve ? rows / kEdgesPerCurve : rows;
        outline.lengthPx += std::hypot(span.x(), span.y());
        outline.cells += cells;
        outline.cellsFollowed += cells * (1 + edgeRows / kBandRows);
    }

    void addOutline(const Outline &outline)
    {
        if (state->brush().style() != Qt::NoBrush)
            m_work += fillWork(outline);
        if (state->pen().style() != Qt::NoPen)
            m_work += strokeWork(outline);
        if (!std::isfinite(m_work))
            m_work = std::numeric_limits<double>::infinity();
    }

    double fillWork(const Outline &outline) const
    {
        const QRectF seen = outline.bounds.adjusted(-1, -1, 1, 1).intersected(m_picture);
        const double perRow =
            std::min(outline.cells / std::max(1.0, seen.height()), m_picture.width());
        return kPerShape + kPerPoint * outline.points + kPerPixel * seen.width() * seen.height()
            + kPerCell * outline.cellsFollowed + kPerCellPassed * outline.cells * perRow;
    }

    double strokeWork(const Outline &outline) const
    {
        const QPen pen = state->pen();
        const QTransform transform = state->transform();
        const double scale = std::sqrt(std::abs(transform.determinant()));
        const double widthPx =
            std::max(1.0, pen.isCosmetic() ? pen.widthF() : pen.widthF() * scale);
        Outline stroked = outline;
        stroked.bounds.adjust(-widthPx, -widthPx, widthPx, widthPx);
        stroked.cells += outline.points * std::min(widthPx, m_picture.width());
        return kStrokeFactor * fillWork(stroked) + dashWork(outline, pen, widthPx);
    }

    static double dashWork(const Outline &outline, const QPen &pen, double widthPx)
    {
        double pattern = 0;
        for (const double part : pen.dashPattern())
            pattern += std::abs(part) * widthPx;
        const bool isDashed = pen.style() != Qt::SolidLine;
        return isDashed ? kPerDash * outline.lengthPx / std::max(pattern, 1e-6) : 0;
    }

    void addRect(const QRectF &rect)
    {
        const QRectF seen = state->transform().mapRect(rect).intersected(m_picture);
        m_work += kPerShape + kPerPixel * seen.width() * seen.height();
    }

    const QRectF m_picture;
    double m_work = 0;
};

/// A device of that size whose engine only measures.
class MeteredDevice final : public QPaintDevice
{
public:
    explicit MeteredDevice(QSize sizePx)
        : m_sizePx(sizePx)
        , m_meter(sizePx)
    {
    }

    QPaintEngine *paintEngine() const override { return &m_meter; }
    double work() const { return m_meter.work(); }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmWidthMM:
            return m_sizePx.width();
        case PdmHeight:
        case PdmHeightMM:
            return m_sizePx.height();
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return 96;
        }
    }

private:
    const QSize m_sizePx;
    mutable WorkMeter m_meter;
};

} // namespace

double svgWork(QSvgRenderer &renderer, QSize sizePx)
{
    MeteredDevice device(sizePx);
    QPainter painter(&device);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(sizePx)));
    painter.end();
    return device.work();
}

} // namespace lorva
