// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/SvgDrawing.h"

#include "text/color/SvgLibrary.h"

#include <cmath>

namespace lorva {

namespace {

/// What CSS calls an inch; only lengths in other units than the document's depend on it.
constexpr double kPixelsPerInch = 96;

QByteArray fragment(const QByteArray &id)
{
    return '#' + id;
}

/// An error that is only ever looked at for being there.
class IgnoredError
{
public:
    explicit IgnoredError(const SvgLibrary &library)
        : m_library(library)
    {
    }
    ~IgnoredError()
    {
        if (m_error != nullptr)
            m_library.freeError(m_error);
    }
    IgnoredError(const IgnoredError &) = delete;
    IgnoredError &operator=(const IgnoredError &) = delete;

    GError **place() { return &m_error; }

private:
    const SvgLibrary &m_library;
    GError *m_error = nullptr;
};

bool isFinite(const RsvgRectangle &rect)
{
    return std::isfinite(rect.x) && std::isfinite(rect.y) && std::isfinite(rect.width)
        && std::isfinite(rect.height);
}

} // namespace

struct SvgDrawing::Handle
{
    const SvgLibrary &library;
    RsvgHandle *document;

    Handle(const SvgLibrary &itsLibrary, RsvgHandle *itsDocument)
        : library(itsLibrary)
        , document(itsDocument)
    {
    }
    ~Handle() { library.unref(document); }
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;
};

SvgDrawing::SvgDrawing() = default;
SvgDrawing::~SvgDrawing() = default;

std::unique_ptr<SvgDrawing> SvgDrawing::load(const QByteArray &xml)
{
    const SvgLibrary *const library = SvgLibrary::shared();
    if (library == nullptr)
        return nullptr;
    IgnoredError error(*library);
    RsvgHandle *const document = library->newFromData(
        reinterpret_cast<const guint8 *>(xml.constData()), gsize(xml.size()), error.place());
    if (document == nullptr)
        return nullptr;
    library->setDpi(document, kPixelsPerInch);
    std::unique_ptr<SvgDrawing> drawing(new SvgDrawing);
    drawing->m_handle = std::make_unique<Handle>(*library, document);
    return drawing;
}

std::optional<QRectF> SvgDrawing::inkBounds(const QByteArray &id, double side) const
{
    const SvgLibrary &library = m_handle->library;
    IgnoredError error(library);
    const RsvgRectangle viewport{0, 0, side, side};
    RsvgRectangle ink{};
    if (!library.geometryForLayer(m_handle->document, fragment(id).constData(), &viewport, &ink,
                                  nullptr, error.place())
        || !isFinite(ink))
        return std::nullopt;
    return QRectF(ink.x, ink.y, ink.width, ink.height);
}

bool SvgDrawing::render(QImage &picture, const QByteArray &id, QPointF at, QSizeF size) const
{
    const SvgLibrary &library = m_handle->library;
    IgnoredError error(library);
    // Its pixels are words of the machine's order, as QImage's are.
    cairo_surface_t *const surface =
        library.newSurface(picture.bits(), CAIRO_FORMAT_ARGB32, picture.width(), picture.height(),
                           int(picture.bytesPerLine()));
    cairo_t *const context = library.newContext(surface);
    library.translate(context, at.x(), at.y());
    const RsvgRectangle viewport{0, 0, size.width(), size.height()};
    const bool isDrawn = library.renderLayer(m_handle->document, context, fragment(id).constData(),
                                             &viewport, error.place())
        && library.status(context) == CAIRO_STATUS_SUCCESS;
    library.destroyContext(context);
    library.flushSurface(surface);
    library.destroySurface(surface);
    return isDrawn;
}

} // namespace lorva
