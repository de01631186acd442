// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/BitmapTables.h"
#include "text/color/ColorGlyphSource.h"
#include "text/color/GlyphPicture.h"
#include "text/color/SvgDocument.h"
#include "text/color/SvgDrawing.h"
#include "text/FontFaceData.h"
#include "text/FontLimits.h"

#include <QPainter>

#include <cmath>
#include <mutex>
#include <numeric>
#include <unordered_map>

namespace lorva {

namespace {

constexpr quint64 kDocumentRecordBytes = 12;
/// What is drawn farther from a glyph's origin belongs to no text.
constexpr double kMaxReachEms = 8;
/// Around the ink, for the softness of edges.
constexpr double kMarginPx = 1;
/// Places within a pixel that pictures are made for.
constexpr double kPhases = 4;
/// Where no pixels are made, so that print is sharp.
constexpr double kLeastVectorScale = 4;
/// Documents of one glyph that are ready to be drawn.
constexpr size_t kMaxReadyDrawings = 32;

// What drawing may cost: so many pixels filled by elements, composed of layers, and rows followed
// along outlines. At these bounds none was seen to take more than a second.
constexpr double kMaxFilledPixels = 2e8;
constexpr double kMaxLayerPixels = 3.2e7;
constexpr double kMaxOutlineRows = 2.5e8;

// Other work for a glyph at its bounds, as shares of such a drawing.
constexpr double kCrossingsShare = 0.5;
constexpr double kMeasuringShare = 0.25;
constexpr double kWritingShare = 0.02;

/// The largest side of a picture that such a glyph may take.
double affordableSide(const SvgReferences::Weight &weight)
{
    const double byFill = std::sqrt(kMaxFilledPixels / std::max(1.0, weight.elements));
    const double byLayers = std::sqrt(kMaxLayerPixels / std::max(1.0, weight.layers));
    const double byOutlines = kMaxOutlineRows / std::max(1.0, weight.bytes);
    return std::min({double(kMaxGlyphPictureSide), byFill, byLayers, byOutlines});
}

/// What a picture of so many pixels costs; 1 is the most that one may.
double drawingWork(const SvgReferences::Weight &weight, QSize pixels)
{
    const double area = double(pixels.width()) * pixels.height();
    return weight.elements * area / kMaxFilledPixels + weight.layers * area / kMaxLayerPixels
        + weight.bytes * pixels.height() / kMaxOutlineRows
        + kCrossingsShare * weight.crossings / kMaxSvgCrossings;
}

double measuringWork(const SvgReferences::Weight &weight, qsizetype documentBytes)
{
    return kMeasuringShare
        * std::max(weight.elements / kMaxSvgElements, weight.bytes / kMaxSvgAttributeBytes)
        + kWritingShare * double(documentBytes) / double(kMaxSvgDocumentBytes);
}

/// Documents of a font, read when first asked for; each serves a range of glyphs (OpenType `SVG `).
class SvgDocuments
{
public:
    explicit SvgDocuments(const Font &font)
        : m_table(font, fontTag('S', 'V', 'G', ' '))
        , m_list(m_table.view().from(m_table.view().u32(2)))
    {
    }

    bool isEmpty() const { return m_list.u16(0) == 0; }
    void beginText() { m_bytesLeft = kMaxSvgBytesPerText; }
    bool isUsedUp() const { return m_bytesLeft <= 0; }
    qsizetype bytesKept() const
    {
        return std::accumulate(m_kept.begin(), m_kept.end(), qsizetype(0),
                               [](qsizetype sum, const Kept &kept) { return sum + kept.bytes(); });
    }

    /// Null when there is none that can be drawn from. Good until the next call.
    SvgDocument *find(quint32 glyph)
    {
        const auto record = findRecord(glyph);
        if (!record)
            return nullptr;
        const quint32 offset = m_list.u32(*record + 4);
        const auto known = std::find_if(m_kept.begin(), m_kept.end(),
                                        [=](const Kept &kept) { return kept.offset == offset; });
        if (known != m_kept.end())
            m_kept.splice(m_kept.begin(), m_kept, known);
        else
            keep(offset, read(m_list.bytes(offset, m_list.u32(*record + 8))));
        return m_kept.front().document ? &*m_kept.front().document : nullptr;
    }

private:
    struct Kept
    {
        quint32 offset = 0;
        Result<SvgDocument> document;

        qsizetype bytes() const { return document ? document->size() : 0; }
    };

    /// What cannot be read was inflated for nothing, as far as may be.
    Result<SvgDocument> read(QByteArrayView bytes)
    {
        // Not translated: nobody is told.
        if (isUsedUp())
            return failure(ErrorKind::tooLarge, QStringLiteral("the text takes too many drawings"));
        Result<SvgDocument> document = SvgDocument::read(bytes);
        m_bytesLeft -= document ? document->size() : kMaxSvgDocumentBytes;
        return document;
    }

    std::optional<quint64> findRecord(quint32 glyph) const
    {
        quint32 low = 0;
        quint32 high = m_list.u16(0);
        while (low < high) {
            const quint32 middle = low + (high - low) / 2;
            const quint64 at = 2 + kDocumentRecordBytes * middle;
            if (glyph < m_list.u16(at))
                high = middle;
            else if (glyph > m_list.u16(at + 2))
                low = middle + 1;
            else
                return at;
        }
        return std::nullopt;
    }

    void keep(quint32 offset, Result<SvgDocument> document)
    {
        m_kept.push_front({offset, std::move(document)});
        qsizetype bytes = 0;
        for (auto it = m_kept.begin(); it != m_kept.end(); ++it) {
            bytes += it->bytes();
            if (bytes > kMaxKeptSvgBytes && it != m_kept.begin()) {
                m_kept.erase(it, m_kept.end());
                return;
            }
        }
    }

    HeldTable m_table;
    TableView m_list;
    std::list<Kept> m_kept;
    qsizetype m_bytesLeft = kMaxSvgBytesPerText;
};

/// What is known of a glyph once it was asked for.
struct KnownGlyph
{
    bool isDrawable = false;
    bool usesForeground = false;
    SvgReferences::Weight weight;
    /// In SvgDocument::kEmSide to an em, y down.
    QRectF ink;
};

struct PictureRequest
{
    quint32 glyph = 0;
    QSizeF scale;
    QPointF phase;
    QRgb foreground = 0;
};

class SvgGlyphs
{
public:
    explicit SvgGlyphs(const Font &font)
        : m_font(font)
        , m_documents(font)
        , m_palette(chosenColors(font))
        , m_unitsPerEm(std::max(1, font.face()->metrics().unitsPerEm))
        , m_pointsPerUnit(font.pointSize() / SvgDocument::kEmSide)
    {
    }

    const Font &font() const { return m_font; }
    bool isEmpty() const { return m_documents.isEmpty(); }
    /// Whether the next text would find the same in them as in new ones, in little memory.
    bool mayServeAgain() const
    {
        return m_documents.bytesKept() <= kMaxSvgDocumentBytes && !m_documents.isUsedUp()
            && m_work <= kMaxSvgWorkPerText;
    }
    void beginText()
    {
        m_ready.clear();
        m_documents.beginText();
        m_work = 0;
    }

    bool has(quint32 glyph) { return known(glyph).isDrawable; }

    QRectF bounds(quint32 glyph)
    {
        const QRectF ink = known(glyph).ink;
        return {ink.topLeft() * m_pointsPerUnit, ink.size() * m_pointsPerUnit};
    }

    bool paint(QPainter &painter, quint32 glyph, const QColor &foreground)
    {
        const KnownGlyph &what = known(glyph);
        if (!what.isDrawable)
            return false;
        const QRectF ink = bounds(glyph);
        if (ink.isEmpty())
            return true;
        const PictureSpace space(painter);
        PictureRequest request{glyph, usableScale(space, what, ink), {}, foreground.rgba()};
        if (!what.usesForeground)
            request.foreground = qRgb(0, 0, 0);
        if (space.isUpright() && request.scale == space.scale())
            return paintAligned(painter, space, request, ink, what.weight.layers > 0);
        return paintScaled(painter, request, ink);
    }

private:
    static QByteArray elementId(quint32 glyph) { return "glyph" + QByteArray::number(glyph); }

    const KnownGlyph &known(quint32 glyph)
    {
        if (const auto found = m_known.find(glyph); found != m_known.end())
            return found->second;
        return m_known.emplace(glyph, look(glyph)).first->second;
    }

    KnownGlyph look(quint32 glyph)
    {
        SvgDocument *const document =
            m_work <= kMaxSvgWorkPerText ? m_documents.find(glyph) : nullptr;
        if (document == nullptr)
            return {};
        const QByteArray id = elementId(glyph);
        const Result<SvgReferences::Weight> weight = document->weight(QString::fromLatin1(id));
        if (!weight)
            return {};
        m_work += measuringWork(*weight, document->size());
        const SvgDocument::Written written = document->write(
            QString::fromLatin1(id), {.unitsPerEm = m_unitsPerEm, .isToBeMeasured = true},
            {m_palette, qRgb(0, 0, 0)});
        const std::unique_ptr<SvgDrawing> drawing = SvgDrawing::load(written.xml);
        const std::optional<QRectF> ink =
            drawing ? drawing->inkBounds(id, SvgDocument::kEmSide) : std::nullopt;
        if (!ink)
            return {};
        return {true, written.usesForeground, *weight, usableInk(*ink)};
    }

    static QRectF usableInk(const QRectF &measured)
    {
        constexpr double reach = kMaxReachEms * SvgDocument::kEmSide;
        return measured.intersected({-reach, -reach, 2 * reach, 2 * reach});
    }

    /// The device's, unless pictures at that scale would cost too much.
    static QSizeF usableScale(const PictureSpace &space, const KnownGlyph &what, const QRectF &ink)
    {
        QSizeF scale = space.scale();
        if (space.isVector())
            scale = scale.expandedTo({kLeastVectorScale, kLeastVectorScale});
        const double side = std::max(ink.width() * scale.width(), ink.height() * scale.height());
        const double most = affordableSide(what.weight) - 2 * kMarginPx - 1;
        return side > most ? scale * (most / side) : scale;
    }

    /// For the very pixels. Parts that are composed apart would be blurred between pixels.
    bool paintAligned(QPainter &painter, const PictureSpace &space, PictureRequest request,
                      const QRectF &ink, bool hasLayers)
    {
        const QPointF corner = space.toDevice(ink.topLeft());
        const double phases = hasLayers ? 1 : kPhases;
        const QPointF placed(std::round(corner.x() * phases) / phases,
                             std::round(corner.y() * phases) / phases);
        const QPoint pixel(int(std::floor(placed.x())), int(std::floor(placed.y())));
        request.phase = placed - pixel;
        const QImage image = picture(request, ink);
        if (image.isNull())
            return false;
        constexpr int margin = int(kMarginPx);
        drawDevicePixels(painter, image, pixel - QPoint(margin, margin));
        return true;
    }

    bool paintScaled(QPainter &painter, const PictureRequest &request, const QRectF &ink)
    {
        const QImage image = picture(request, ink);
        if (image.isNull())
            return false;
        const QPointF margin(kMarginPx / request.scale.width(), kMarginPx / request.scale.height());
        const QSizeF size(image.width() / request.scale.width(),
                          image.height() / request.scale.height());
        drawIntoRect(painter, image, {ink.topLeft() - margin, size});
        return true;
    }

    QImage picture(const PictureRequest &request, const QRectF &ink)
    {
        const auto phase =
            quint64(request.phase.x() * kPhases * kPhases + request.phase.y() * kPhases);
        const PictureCache::Key key{request.glyph, request.scale.width(), request.scale.height(),
                                    quint64(request.foreground) << 8 | phase};
        QImage image = m_pictures.find(key);
        if (!image.isNull())
            return image;
        image = drawn(request, ink);
        if (!image.isNull())
            m_pictures.insert(key, image);
        return image;
    }

    QImage drawn(const PictureRequest &request, const QRectF &ink)
    {
        if (m_work > kMaxSvgWorkPerText)
            return {};
        const SvgDrawing *const drawing = readyDrawing(request.glyph, request.foreground, ink);
        if (drawing == nullptr)
            return {};
        const QSizeF size(ink.width() * request.scale.width(),
                          ink.height() * request.scale.height());
        QImage image(int(std::ceil(size.width() + request.phase.x() + 2 * kMarginPx)),
                     int(std::ceil(size.height() + request.phase.y() + 2 * kMarginPx)),
                     QImage::Format_ARGB32_Premultiplied);
        if (image.isNull())
            return {};
        m_work += drawingWork(known(request.glyph).weight, image.size());
        image.fill(Qt::transparent);
        const QPointF at = request.phase + QPointF(kMarginPx, kMarginPx);
        return drawing->render(image, elementId(request.glyph), at, size) ? image : QImage();
    }

    const SvgDrawing *readyDrawing(quint32 glyph, QRgb foreground, const QRectF &ink)
    {
        const auto found = std::find_if(m_ready.begin(), m_ready.end(), [=](const Ready &ready) {
            return ready.glyph == glyph && ready.foreground == foreground;
        });
        if (found != m_ready.end()) {
            m_ready.splice(m_ready.begin(), m_ready, found);
            return m_ready.front().drawing.get();
        }
        SvgDocument *const document = m_documents.find(glyph);
        if (document == nullptr)
            return nullptr;
        const QRectF units(ink.topLeft() / m_pointsPerUnit, ink.size() / m_pointsPerUnit);
        const SvgDocument::Written written = document->write(
            QString::fromLatin1(elementId(glyph)), {.viewBox = units, .unitsPerEm = m_unitsPerEm},
            {m_palette, foreground});
        m_ready.push_front({glyph, foreground, SvgDrawing::load(written.xml)});
        if (m_ready.size() > kMaxReadyDrawings)
            m_ready.pop_back();
        return m_ready.front().drawing.get();
    }

    struct Ready
    {
        quint32 glyph = 0;
        QRgb foreground = 0;
        std::unique_ptr<SvgDrawing> drawing;
    };

    const Font m_font;
    SvgDocuments m_documents;
    const std::vector<QRgb> m_palette;
    const double m_unitsPerEm;
    const double m_pointsPerUnit;
    std::unordered_map<quint32, KnownGlyph> m_known;
    std::list<Ready> m_ready;
    PictureCache m_pictures{kMaxKeptPictureBytes};
    double m_work = 0;
};

/// The glyphs of the fonts that were drawn last. A specimen is measured and then painted; reading
/// its documents for each would take twice as long. Thread: any.
class IdleSvgGlyphs
{
public:
    static IdleSvgGlyphs &instance()
    {
        // Never destroyed: workers may still be drawing while the process ends.
        static auto *idle = new IdleSvgGlyphs;
        return *idle;
    }

    std::unique_ptr<SvgGlyphs> take(const Font &font)
    {
        const std::lock_guard lock(m_mutex);
        const auto found = std::find_if(m_idle.begin(), m_idle.end(),
                                        [&](const auto &glyphs) { return glyphs->font() == font; });
        if (found == m_idle.end())
            return nullptr;
        std::unique_ptr<SvgGlyphs> glyphs = std::move(*found);
        m_idle.erase(found);
        return glyphs;
    }

    void keep(std::unique_ptr<SvgGlyphs> glyphs)
    {
        if (!glyphs->mayServeAgain())
            return;
        glyphs->beginText();
        std::list<std::unique_ptr<SvgGlyphs>> dropped; // freed after the lock
        const std::lock_guard lock(m_mutex);
        m_idle.push_front(std::move(glyphs));
        if (m_idle.size() > kMost)
            dropped.splice(dropped.begin(), m_idle, std::prev(m_idle.end()));
    }

private:
    static constexpr size_t kMost = 2;

    std::mutex m_mutex;
    std::list<std::unique_ptr<SvgGlyphs>> m_idle;
};

/// Has the glyphs for as long as one text takes.
class BorrowedSvgGlyphs final : public ColorGlyphSource
{
public:
    explicit BorrowedSvgGlyphs(std::unique_ptr<SvgGlyphs> glyphs)
        : m_glyphs(std::move(glyphs))
    {
    }
    ~BorrowedSvgGlyphs() override { IdleSvgGlyphs::instance().keep(std::move(m_glyphs)); }
    BorrowedSvgGlyphs(const BorrowedSvgGlyphs &) = delete;
    BorrowedSvgGlyphs &operator=(const BorrowedSvgGlyphs &) = delete;

    bool has(quint32 glyph) override { return m_glyphs->has(glyph); }
    QRectF bounds(quint32 glyph) override { return m_glyphs->bounds(glyph); }
    bool paint(QPainter &painter, quint32 glyph, const QColor &foreground) override
    {
        return m_glyphs->paint(painter, glyph, foreground);
    }

private:
    std::unique_ptr<SvgGlyphs> m_glyphs;
};

} // namespace

std::unique_ptr<ColorGlyphSource> makeSvgGlyphs(const Font &font)
{
    if (font.isNull() || !font.face()->data().directory.has(fontTag('S', 'V', 'G', ' ')))
        return nullptr;
    std::unique_ptr<SvgGlyphs> glyphs = IdleSvgGlyphs::instance().take(font);
    if (!glyphs)
        glyphs = std::make_unique<SvgGlyphs>(font);
    return glyphs->isEmpty() ? nullptr : std::make_unique<BorrowedSvgGlyphs>(std::move(glyphs));
}

} // namespace lorva
