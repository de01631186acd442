// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QRectF>

#include <memory>
#include <optional>

namespace lorva {

class SvgLibrary;

/// A document that is ready to be drawn. It must be one that SvgDocument has written: nothing is
/// guarded here. Thread: any, one at a time per object.
class SvgDrawing
{
public:
    /// Null when the library is missing or cannot read the document.
    static std::unique_ptr<SvgDrawing> load(const QByteArray &xml);
    ~SvgDrawing();
    SvgDrawing(const SvgDrawing &) = delete;
    SvgDrawing &operator=(const SvgDrawing &) = delete;

    /// What the element of that id touches when the document is a square of `side`; null when it
    /// shows nothing. Nothing when it cannot be told.
    std::optional<QRectF> inkBounds(const QByteArray &id, double side) const;
    /// Draws the element into the picture (premultiplied ARGB), the document being `size` pixels
    /// large with its top left at `at`. False when that fails.
    bool render(QImage &picture, const QByteArray &id, QPointF at, QSizeF size) const;

private:
    struct Handle;
    SvgDrawing();

    std::unique_ptr<Handle> m_handle;
};

} // namespace lorva
