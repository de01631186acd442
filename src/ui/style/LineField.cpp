// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/LineField.h"

#include "ui/style/ControlColors.h"
#include "ui/style/DeviceSpace.h"
#include "ui/style/IconButton.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"
#include "ui/style/SymbolImage.h"

#include <QApplication>
#include <QFocusEvent>
#include <QPainter>
#include <QProxyStyle>

namespace lorva {

namespace {

constexpr int kHeight = 28;
constexpr int kWidth = 220;
constexpr double kRadius = 8;
constexpr double kBedAlpha = 0.08;
constexpr double kPlaceholderAlpha = 0.55;
constexpr double kSymbolAlpha = 0.7;
constexpr double kSymbolSize = 16;
constexpr int kClearSide = 22;
constexpr double kCaretWidth = 1.5;
constexpr double kDisabledOpacity = 0.4;

/// A text field's own caret has the text's colour, so it is switched off and drawn by us.
class CaretlessStyle final : public QProxyStyle
{
public:
    static CaretlessStyle *shared()
    {
        static CaretlessStyle *const style = [] {
            auto *made = new CaretlessStyle;
            made->setParent(qApp);
            return made;
        }();
        return style;
    }

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        return metric == PM_TextCursorWidth ? 0 : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

} // namespace

LineField::LineField(QWidget *parent)
    : QLineEdit(parent)
    , m_blink([this] { update(); })
{
    setStyle(CaretlessStyle::shared());
    setFrame(false);
    setFont(interfaceFont(InterfaceSize::body));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
    connect(this, &QLineEdit::textEdited, this, &LineField::settle);
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!m_isComposing)
            m_settledText = text();
        placeParts();
    });
    connect(this, &QLineEdit::cursorPositionChanged, this, &LineField::restartCaret);
    connect(this, &QLineEdit::selectionChanged, this, qOverload<>(&QWidget::update));
    takeColors();
    placeParts();
}

void LineField::setSymbol(const QString &symbol)
{
    m_symbol = symbol;
    placeParts();
    update();
}

void LineField::setClearable(bool isClearable)
{
    if (isClearable == (m_clear != nullptr))
        return;
    delete m_clear;
    m_clear = nullptr;
    if (isClearable) {
        m_clear = new IconButton(QStringLiteral("xmark.circle.fill"), tr("Clear"), this);
        m_clear->setObjectName(QStringLiteral("clearButton"));
        // The keyboard has Escape, or Select All and Delete.
        m_clear->setFocusPolicy(Qt::NoFocus);
        m_clear->setCursor(Qt::ArrowCursor);
        connect(m_clear, &QAbstractButton::clicked, this, &LineField::clearByUser);
    }
    takeColors();
    placeParts();
}

void LineField::setColors(const QColor &foreground, const QColor &background)
{
    m_paneColors = Colors{foreground, background};
    takeColors();
}

void LineField::clearByUser()
{
    selectAll();
    del();
}

QSize LineField::sizeHint() const
{
    return QSize(kWidth, kHeight);
}

QSize LineField::minimumSizeHint() const
{
    return QSize(kHeight * 2, kHeight);
}

LineField::Colors LineField::colors() const
{
    if (m_paneColors)
        return *m_paneColors;
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    return {neutral.text, neutral.ground};
}

void LineField::takeColors()
{
    const auto [foreground, background] = colors();
    const QColor ground = blended(background, Qt::white);
    const QColor ink = controlColor(foreground, background);
    m_bed = withAlpha(ink, kBedAlpha);
    // On a middle gray the bed goes the other way rather than come too near to the text.
    if (controlColor(ink, blended(m_bed, ground)) != ink)
        m_bed = withAlpha(contrastingNeutral(ink), kBedAlpha);
    const QColor bed = blended(m_bed, ground);
    QPalette own = palette();
    own.setColor(QPalette::Base, Qt::transparent);
    own.setColor(QPalette::Text, ink);
    own.setColor(QPalette::PlaceholderText, quietColor(ink, bed, kPlaceholderAlpha));
    own.setColor(QPalette::Highlight, accentColor());
    own.setColor(QPalette::HighlightedText, contrastingNeutral(accentColor()));
    m_takesColors = true;
    setPalette(own);
    m_takesColors = false;
    if (m_clear)
        m_clear->setColors(ink, bed);
    update();
}

/// Text between the symbol and the button, whichever way the window reads.
void LineField::placeParts()
{
    const bool showsClear = m_clear && !text().isEmpty();
    const int before = m_symbol.isEmpty() ? spacing::k8 : spacing::k28;
    const int after = showsClear ? kClearSide + spacing::k4 : spacing::k8;
    // The text field itself keeps two points on either side.
    const QMargins margins(before - 2, 0, after - 2, 0);
    setTextMargins(isRightToLeft() ? QMargins(margins.right(), 0, margins.left(), 0) : margins);
    // With the window, whatever language the text or the keyboard has.
    const Qt::Alignment leading = isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    setAlignment(leading | Qt::AlignAbsolute | Qt::AlignVCenter);
    if (!m_clear)
        return;
    const QRect logical(width() - kClearSide - 3, (height() - kClearSide) / 2, kClearSide,
                        kClearSide);
    m_clear->setGeometry(QStyle::visualRect(layoutDirection(), rect(), logical));
    m_clear->setVisible(showsClear);
}

void LineField::inputMethodEvent(QInputMethodEvent *event)
{
    // Before the base class, which reports changes on the way.
    m_isComposing = !event->preeditString().isEmpty();
    QLineEdit::inputMethodEvent(event);
    settle();
    restartCaret();
}

void LineField::settle()
{
    if (m_isComposing || text() == m_settledText)
        return;
    m_settledText = text();
    Q_EMIT textSettled(m_settledText);
}

void LineField::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    placeParts();
}

void LineField::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_takesColors)
        takeColors();
    else if (event->type() == QEvent::LayoutDirectionChange)
        placeParts();
}

void LineField::focusInEvent(QFocusEvent *event)
{
    m_showsFocus = showsFocusRing(event->reason(), m_showsFocus);
    QLineEdit::focusInEvent(event);
    restartCaret();
}

void LineField::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    m_blink.stop();
    update();
}

void LineField::restartCaret()
{
    m_blink.restart(hasFocus());
    update();
}

void LineField::paintCaret(QPainter &painter) const
{
    if (!hasFocus() || isReadOnly() || !m_blink.isLit() || hasSelectedText())
        return;
    const QColor ink = palette().color(QPalette::Text);
    const QColor ground = blended(colors().background, Qt::white);
    const QRectF around(cursorRect());
    painter.fillRect(
        QRectF(around.center().x() - kCaretWidth / 2, around.top(), kCaretWidth, around.height()),
        caretColor(ink, ground));
}

void LineField::paintEvent(QPaintEvent *event)
{
    const QColor ink = palette().color(QPalette::Text);
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        if (!isEnabled())
            painter.setOpacity(kDisabledOpacity);
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_bed);
        painter.drawRoundedRect(rect(), kRadius, kRadius);
        const QRect symbol(spacing::k8, (height() - int(kSymbolSize)) / 2, int(kSymbolSize),
                           int(kSymbolSize));
        const DeviceSpace device(painter);
        if (!m_symbol.isEmpty()) {
            device.drawImage(
                QStyle::visualRect(layoutDirection(), rect(), symbol).topLeft(), {},
                symbolImage(m_symbol, kSymbolSize, withAlpha(ink, kSymbolAlpha), device.ratio()));
        }
    }
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    paintCaret(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    if (hasFocus() && m_showsFocus)
        drawFocusRing(painter, QRectF(rect()).adjusted(2, 2, -2, -2), kRadius - 2);
}

} // namespace lorva
