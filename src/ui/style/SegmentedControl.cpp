// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/SegmentedControl.h"

#include "ui/style/ControlColors.h"
#include "ui/style/DeviceSpace.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"
#include "ui/style/SymbolImage.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <numeric>

namespace lorva {

namespace {

constexpr int kHeight = 24;
constexpr int kSegmentWidth = 30;
constexpr int kPadding = 2;
constexpr double kRadius = 7;
constexpr double kSegmentRadius = kRadius - kPadding;
constexpr double kSymbolSize = 16;
/// A variant's name comes from a font.
constexpr int kWidestText = 200;

QFont textFont()
{
    return interfaceFont(InterfaceSize::label, InterfaceWeight::medium);
}

/// Long words give way to short ones, so that one of each can be read.
std::vector<int> widthsWithin(std::vector<int> widths, int room)
{
    if (widths.empty())
        return widths;
    int missing = std::accumulate(widths.begin(), widths.end(), -room);
    for (; missing > 0 && std::ranges::max(widths) > 0; --missing)
        --*std::ranges::max_element(widths);
    for (size_t i = 0; missing < 0; ++missing, ++i)
        ++widths[i % widths.size()];
    return widths;
}

bool isKeyboardFocus(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
        || reason == Qt::ShortcutFocusReason;
}

} // namespace

class SegmentedControl::Segment final : public QAbstractButton
{
public:
    Segment(QString symbol, const QString &label, SegmentedControl *parent)
        : QAbstractButton(parent)
        , m_symbol(std::move(symbol))
        , m_control(parent)
    {
        setCheckable(true);
        // The group keeps one chosen; this is what makes it a radio button to assistive technology.
        setAutoExclusive(true);
        // Clicking must not take the keyboard away from the specimens.
        setFocusPolicy(Qt::TabFocus);
        setAccessibleName(label);
        if (m_symbol.isEmpty())
            setText(QString(label).replace(u'&', QStringLiteral("&&")));
        if (!m_symbol.isEmpty() || wantedWidth() == kWidestText)
            setToolTip(label);
    }

    int wantedWidth() const
    {
        if (!m_symbol.isEmpty())
            return kSegmentWidth;
        return textSegmentWidth(accessibleName());
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        const int step = isRightToLeft() ? -1 : 1;
        switch (event->key()) {
        case Qt::Key_Left:
            m_control->chooseBeside(this, -step);
            break;
        case Qt::Key_Right:
            m_control->chooseBeside(this, step);
            break;
        default:
            QAbstractButton::keyPressEvent(event);
        }
    }

    void focusInEvent(QFocusEvent *event) override
    {
        m_showsFocus = isKeyboardFocus(event->reason());
        QAbstractButton::focusInEvent(event);
    }

    void paintEvent(QPaintEvent *) override
    {
        const ControlColors colors =
            ControlColors::from(m_control->m_foreground, m_control->m_background);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF box = QRectF(rect()).adjusted(kPadding, kPadding, -kPadding, -kPadding);
        if (isChecked())
            drawRaised(painter, box, kSegmentRadius, colors);
        if (hasFocus() && m_showsFocus)
            drawFocusRing(painter, box, kSegmentRadius);
        const QColor ink = isChecked() ? colors.inkOnRaised : colors.ink;
        if (m_symbol.isEmpty())
            paintText(painter, ink);
        else
            paintSymbol(painter, ink);
    }

private:
    void paintText(QPainter &painter, const QColor &color) const
    {
        painter.setFont(textFont());
        painter.setPen(withAlpha(color, isEnabled() ? 1.0 : 0.4));
        const QRect room = rect().adjusted(spacing::k8, 0, -spacing::k8, 0);
        const QString shown =
            QFontMetrics(textFont()).elidedText(accessibleName(), Qt::ElideRight, room.width());
        painter.drawText(room, int(Qt::AlignCenter) | int(Qt::TextSingleLine), shown);
    }

    void paintSymbol(QPainter &painter, QColor color) const
    {
        if (!isEnabled())
            color.setAlphaF(color.alphaF() * 0.4f);
        const DeviceSpace device(painter);
        const QPointF corner((width() - kSymbolSize) / 2, (height() - kSymbolSize) / 2);
        device.drawImage(corner, {}, symbolImage(m_symbol, kSymbolSize, color, device.ratio()));
    }

    const QString m_symbol;
    SegmentedControl *const m_control;
    bool m_showsFocus = false;
};

SegmentedControl::SegmentedControl(QWidget *parent)
    : QWidget(parent)
    , m_group(new QButtonGroup(this))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(m_group, &QButtonGroup::idClicked, this, &SegmentedControl::activated);
}

int SegmentedControl::addSegment(const QString &symbol, const QString &label)
{
    return append(new Segment(symbol, label, this));
}

int SegmentedControl::addTextSegment(const QString &text)
{
    return append(new Segment({}, text, this));
}

int SegmentedControl::append(Segment *segment)
{
    const int index = int(m_group->buttons().size());
    m_group->addButton(segment, index);
    updateGeometry();
    placeSegments();
    segment->show();
    return index;
}

int SegmentedControl::textSegmentWidth(const QString &text)
{
    const int natural = QFontMetrics(textFont()).horizontalAdvance(text.left(kWidestText));
    return std::min(natural + 2 * spacing::k12, kWidestText);
}

void SegmentedControl::setNaturalWidths(bool isNatural)
{
    m_hasNaturalWidths = isNatural;
    updateGeometry();
    placeSegments();
}

/// Later, as far as the widgets go: a segment may be the one that has just been pressed.
void SegmentedControl::clear()
{
    for (QAbstractButton *segment : m_group->buttons()) {
        m_group->removeButton(segment);
        segment->hide();
        segment->setParent(nullptr);
        segment->deleteLater();
    }
    updateGeometry();
}

std::vector<int> SegmentedControl::wantedWidths() const
{
    std::vector<int> widths;
    for (const QAbstractButton *button : m_group->buttons())
        widths.push_back(static_cast<const Segment *>(button)->wantedWidth());
    return widths;
}

std::vector<int> SegmentedControl::segmentWidths() const
{
    std::vector<int> widths = wantedWidths();
    if (!m_hasNaturalWidths && !widths.empty())
        std::ranges::fill(widths, std::ranges::max(widths));
    return widths;
}

int SegmentedControl::currentIndex() const
{
    return m_group->checkedId();
}

void SegmentedControl::setCurrentIndex(int index)
{
    if (QAbstractButton *segment = m_group->button(index))
        segment->setChecked(true);
}

void SegmentedControl::setColors(const QColor &foreground, const QColor &background)
{
    m_foreground = foreground;
    m_background = background;
    update();
}

void SegmentedControl::focusCurrent()
{
    if (QAbstractButton *segment = m_group->checkedButton())
        segment->setFocus(Qt::TabFocusReason);
}

QSize SegmentedControl::sizeHint() const
{
    const std::vector<int> widths = segmentWidths();
    return QSize(std::accumulate(widths.begin(), widths.end(), 2 * kPadding), kHeight);
}

/// Moves the keyboard and the choice to a neighbour, as the user's doing.
void SegmentedControl::chooseBeside(QAbstractButton *segment, int step)
{
    QAbstractButton *neighbour = m_group->button(m_group->id(segment) + step);
    if (!neighbour || !neighbour->isEnabled())
        return;
    neighbour->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    neighbour->click();
}

std::vector<int> SegmentedControl::placedWidths() const
{
    std::vector<int> widths = segmentWidths();
    const int missing = sizeHint().width() - width();
    if (missing > 0 && m_hasNaturalWidths && !widths.empty())
        widths.back() = std::max(widths.back() - missing, 0);
    else if (missing > 0)
        widths = widthsWithin(wantedWidths(), width() - 2 * kPadding);
    // Room that is left over is shared out.
    if (missing < 0 && !widths.empty())
        for (int &segment : widths)
            segment += -missing / int(widths.size());
    return widths;
}

/// The segments overlap by their padding, which leaves their shadows and focus rings room.
void SegmentedControl::placeSegments()
{
    const QList<QAbstractButton *> segments = m_group->buttons();
    const std::vector<int> widths = placedWidths();
    const QRect all(0, 0, std::accumulate(widths.begin(), widths.end(), 2 * kPadding), kHeight);
    int left = 0;
    for (qsizetype i = 0; i < segments.size(); ++i) {
        const QRect logical(left, 0, widths[size_t(i)] + 2 * kPadding, kHeight);
        segments[i]->setGeometry(QStyle::visualRect(layoutDirection(), all, logical));
        left += widths[size_t(i)];
    }
}

void SegmentedControl::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        placeSegments();
}

void SegmentedControl::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ControlColors::from(m_foreground, m_background).bed);
    painter.drawRoundedRect(rect(), kRadius, kRadius);
}

void SegmentedControl::resizeEvent(QResizeEvent *)
{
    placeSegments();
}

} // namespace lorva
