// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/ImageThumbnail.h"

#include "ui/display/BackgroundImages.h"
#include "ui/style/ControlColors.h"
#include "ui/style/MenuLook.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"
#include "ui/style/SymbolImage.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>

namespace lorva {

namespace {

/// Ring and gap around the picture.
constexpr int kRoom = 4;
constexpr double kRadius = 6;
constexpr double kRingWidth = 2;
constexpr int kPlusSize = 16;

} // namespace

ImageThumbnail::ImageThumbnail(Kind kind, const QString &id, const QString &name, QWidget *parent)
    : FocusRinged(parent)
    , m_kind(kind)
    , m_id(id)
{
    setObjectName(QLatin1String("background:") + id);
    setFixedSize(sizeHint());
    setToolTip(name);
    setAccessibleName(name);
    setCheckable(kind != Kind::adding);
    // This is also what makes it a radio button to assistive technology.
    setAutoExclusive(kind != Kind::adding);
    setAttribute(Qt::WA_Hover);
    if (kind == Kind::user)
        setAccessibleDescription(tr("Delete removes it."));
}

void ImageThumbnail::setImage(const QImage &image)
{
    m_image = image;
    update();
}

QSize ImageThumbnail::sizeHint() const
{
    return kImageSize + QSize(2 * kRoom, 2 * kRoom);
}

void ImageThumbnail::keyPressEvent(QKeyEvent *event)
{
    const bool isDelete = event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace;
    if (isDelete && m_kind == Kind::user)
        Q_EMIT removalRequested();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void ImageThumbnail::contextMenuEvent(QContextMenuEvent *event)
{
    if (m_kind != Kind::user)
        return;
    QMenu *menu = makeMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("backgroundMenu"));
    // Queued: it takes this thumbnail away, and the menu with it.
    connect(menu->addAction(tr("Remove")), &QAction::triggered, this,
            &ImageThumbnail::removalRequested, Qt::QueuedConnection);
    menu->popup(event->globalPos());
}

void ImageThumbnail::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF box = QRectF(rect()).adjusted(kRoom, kRoom, -kRoom, -kRoom);
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    paintTile(painter, box);
    painter.setBrush(Qt::NoBrush);
    if (isChecked()) {
        painter.setPen(QPen(withAlpha(neutral.text, 0.85), kRingWidth));
        painter.drawRoundedRect(box.adjusted(-3, -3, 3, 3), kRadius + 3, kRadius + 3);
    }
    if (hasFocusRing())
        drawFocusRing(painter, box, kRadius);
}

void ImageThumbnail::paintTile(QPainter &painter, const QRectF &box)
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    const QSize sizePx = (box.size() * devicePixelRatioF()).toSize();
    if (m_kind == Kind::builtIn && m_image.size() != sizePx)
        m_image = drawBackgroundImage(m_id, sizePx);
    QPainterPath shape;
    shape.addRoundedRect(box, kRadius, kRadius);
    painter.fillPath(shape, withAlpha(neutral.text, underMouse() ? 0.09 : 0.06));
    if (m_kind == Kind::adding) {
        paintPlus(painter, box);
        return;
    }
    if (!m_image.isNull()) {
        QBrush brush(m_image);
        brush.setTransform(
            QTransform::fromTranslate(box.x(), box.y())
                .scale(box.width() / m_image.width(), box.height() / m_image.height()));
        painter.fillPath(shape, brush);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(withAlpha(neutral.text, underMouse() ? 0.3 : 0.1), 1));
    painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), kRadius - 0.5, kRadius - 0.5);
}

void ImageThumbnail::paintPlus(QPainter &painter, const QRectF &box) const
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    const QPointF corner = box.center() - QPointF(kPlusSize / 2.0, kPlusSize / 2.0);
    painter.drawImage(corner,
                      symbolImage(QStringLiteral("plus"), kPlusSize, withAlpha(neutral.text, 0.7),
                                  devicePixelRatioF()));
}

} // namespace lorva
