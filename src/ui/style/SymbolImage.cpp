// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/SymbolImage.h"

#include "base/BoundedCache.h"

#include <QLoggingCategory>
#include <QPainter>
#include <QSvgRenderer>

#include <cmath>

Q_LOGGING_CATEGORY(symbolLog, "lorva.ui.symbols", QtWarningMsg)

// Resources of a static library are only linked in when someone asks for them; the macro must stand
// outside of every namespace.
static void initSymbolResources()
{
    Q_INIT_RESOURCE(symbols);
}

namespace lorva {

namespace {

constexpr size_t kKeptSymbols = 256;

QImage drawSymbol(const QString &name, int devicePx, const QColor &color)
{
    QSvgRenderer renderer(QString(QLatin1String(":/symbols/") + name + QLatin1String(".svg")));
    if (!renderer.isValid()) {
        qCWarning(symbolLog) << "no symbol named" << name;
        return {};
    }
    QImage image(devicePx, devicePx, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    return image;
}

} // namespace

QImage symbolImage(const QString &name, double sizePt, const QColor &color, double devicePixelRatio)
{
    [[maybe_unused]] static const bool once = (initSymbolResources(), true);
    static BoundedCache<QString, QImage> kept(kKeptSymbols);
    const int devicePx = std::max(1, int(std::lround(sizePt * devicePixelRatio)));
    const QString key = name + u'|' + QString::number(devicePx) + u'|' + color.name(QColor::HexArgb)
        + u'|' + QString::number(devicePixelRatio);
    if (const std::optional<QImage> found = kept.find(key))
        return *found;
    QImage image = drawSymbol(name, devicePx, color);
    if (!image.isNull())
        image.setDevicePixelRatio(devicePixelRatio);
    kept.insert(key, image);
    return image;
}

} // namespace lorva
