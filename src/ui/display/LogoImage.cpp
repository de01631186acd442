// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/display/LogoImage.h"

#include "ui/display/SafeImage.h"

#include <QBuffer>

namespace lorva {

namespace {

/// Stored as it came up to here, so that a drawing stays a drawing.
constexpr qsizetype kMaximumStoredBytes = qsizetype(512) * 1024;

} // namespace

LogoImage::LogoImage(QObject *parent)
    : QObject(parent)
{
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.logo"));
    m_pool.setMaxThreadCount(1);
}

LogoImage::~LogoImage()
{
    m_run.cancel();
    m_pool.waitForDone();
}

std::optional<QImage> LogoImage::image(const QByteArray &bytes)
{
    if (bytes == m_bytes)
        return m_image;
    m_run.cancel();
    m_bytes = bytes;
    m_image.reset();
    m_isWaiting = !bytes.isEmpty();
    if (!m_isWaiting)
        return m_image;
    m_run = runThen(
        m_pool, this,
        [bytes](const std::stop_token &) { return readSafeImage(bytes, kMaximumSidePx); },
        [this](const Result<QImage> &image) {
            m_isWaiting = false;
            if (image)
                m_image = *image;
            if (onChange)
                onChange();
        });
    return m_image;
}

Result<QByteArray> LogoImage::storable(const QByteArray &bytes)
{
    const Result<QImage> image = readSafeImage(bytes, kMaximumSidePx);
    if (!image)
        return tl::unexpected(image.error());
    if (bytes.size() <= kMaximumStoredBytes)
        return bytes;
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    if (!image->save(&buffer, "PNG"))
        return failure(ErrorKind::ioFailure,
                       QCoreApplication::translate("LogoImage", "The image could not be kept."));
    return png;
}

} // namespace lorva
