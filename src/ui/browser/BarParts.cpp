// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/browser/BarParts.h"

#include "ui/style/Hairline.h"
#include "ui/style/LineField.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include <cmath>

namespace lorva {

namespace {

constexpr double kTitleAlpha = 0.5;
/// A name may be a whole page of its font.
constexpr qsizetype kLongestTitle = 300;
/// Over an image, whose own brightness is anyone's.
constexpr double kVeilAlpha = 0.32;

QFont titleFont()
{
    return interfaceFont(InterfaceSize::title, InterfaceWeight::semibold);
}

void paintTitle(QPainter &painter, const QRect &room, const QString &title,
                const QColor &foreground, Qt::LayoutDirection direction)
{
    const QFont font = titleFont();
    const Qt::Alignment leading =
        QStyle::visualAlignment(direction, Qt::AlignLeft | Qt::AlignVCenter) | Qt::AlignAbsolute;
    painter.setFont(font);
    painter.setPen(withAlpha(foreground, kTitleAlpha));
    painter.drawText(
        room, int(leading) | Qt::TextSingleLine,
        QFontMetrics(font).elidedText(title.left(kLongestTitle), Qt::ElideRight, room.width()));
}

} // namespace

void paintBarGround(QPainter &painter, const QRect &bar, const QColor &foreground,
                    const QColor &background)
{
    if (background.alpha() < 255)
        painter.fillRect(bar, withAlpha(groundUnder(foreground, background), kVeilAlpha));
}

int barTitleWidth(const QString &title)
{
    // A fraction of a point less, and its last letters would go.
    return int(std::ceil(QFontMetricsF(titleFont()).horizontalAdvance(title.left(kLongestTitle))))
        + 1;
}

void paintTopBar(QPainter &painter, const QWidget &bar, const QRect &titleRoom,
                 const QString &title, const PaneColors &colors)
{
    paintBarGround(painter, bar.rect(), colors.foreground, colors.background);
    paintTitle(painter, titleRoom, title, colors.foreground, bar.layoutDirection());
    drawHairline(
        painter, bar.rect(), Qt::BottomEdge,
        hairlineColor(colors.foreground, groundUnder(colors.foreground, colors.background)));
}

void placePart(QWidget *part, const std::optional<QRect> &place)
{
    if (place)
        part->setGeometry(*place);
    part->setVisible(place.has_value());
}

BarSearch::BarSearch(const QString &objectName, const QString &placeholder, QWidget *bar)
    : QObject(bar)
    , m_field(new LineField(bar))
{
    m_field->setObjectName(objectName);
    m_field->setAccessibleName(placeholder);
    m_field->setSymbol(QStringLiteral("magnifyingglass"));
    m_field->setPlaceholderText(placeholder);
    m_field->setClearable(true);
    m_field->installEventFilter(this);
    connect(m_field, &LineField::textSettled, this, [this](const QString &text) {
        if (!m_suppressCallbacks)
            Q_EMIT changed(text);
    });
}

void BarSearch::showQuery(const QString &query)
{
    if (m_field->isComposing() || m_field->text() == query)
        return;
    m_suppressCallbacks = true;
    m_field->setText(query);
    m_suppressCallbacks = false;
}

void BarSearch::focus()
{
    m_field->setFocus(Qt::ShortcutFocusReason);
    m_field->selectAll();
}

/// True when the key had a meaning beyond the text.
bool BarSearch::keyPressed(int key)
{
    switch (key) {
    case Qt::Key_Escape:
        if (m_field->text().isEmpty())
            Q_EMIT left();
        else
            m_field->clearByUser();
        return true;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT left();
        return true;
    default:
        return false;
    }
}

bool BarSearch::eventFilter(QObject *watched, QEvent *event)
{
    if (m_field->isComposing())
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::ShortcutOverride
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return event->type() == QEvent::KeyPress && keyPressed(static_cast<QKeyEvent *>(event)->key());
}

} // namespace lorva
