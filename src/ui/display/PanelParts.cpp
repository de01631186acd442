// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/PanelParts.h"

#include "base/Sentence.h"
#include "ui/style/OverlayScrollBar.h"
#include "ui/style/Style.h"

#include <QEvent>
#include <QKeyEvent>
#include <QScrollBar>

namespace lorva {

namespace {

constexpr double kQuiet = 0.6;

QColor problemColor()
{
    return isDarkDesktop() ? QColor(0xff, 0x8f, 0x85) : QColor(0xb3, 0x26, 0x1e);
}

QFont fontOf(PanelLabel::Kind kind)
{
    switch (kind) {
    case PanelLabel::Kind::caption:
        return interfaceFont(InterfaceSize::caption, InterfaceWeight::semibold);
    case PanelLabel::Kind::figure:
        return interfaceFont(InterfaceSize::caption, InterfaceWeight::regular, Figures::tabular);
    case PanelLabel::Kind::body:
    case PanelLabel::Kind::problem:
        break;
    }
    return interfaceFont(InterfaceSize::label);
}

} // namespace

NeutralPanel::NeutralPanel(QWidget *parent)
    : DisplayPanel(parent)
{
    setFixedWidth(kPanelContentWidth + 2 * kPanelPadding);
}

void NeutralPanel::changeEvent(QEvent *event)
{
    DisplayPanel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        takeColors();
        update();
    }
}

PanelLabel::PanelLabel(const QString &text, Kind kind, QWidget *parent)
    : QLabel(text, parent)
    , m_kind(kind)
{
    setFont(fontOf(kind));
    setTextFormat(Qt::PlainText);
    setWordWrap(kind == Kind::problem);
    setVisible(kind != Kind::problem);
    takeColors();
}

void PanelLabel::setProblem(const QString &words)
{
    //: A reason becomes a sentence of its own.
    setText(words.isEmpty() || endsSentence(words) ? words : tr("%1.").arg(words));
    setVisible(!words.isEmpty());
}

void PanelLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColors();
}

void PanelLabel::takeColors()
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    QColor ink = neutral.text;
    if (m_kind == Kind::problem)
        ink = problemColor();
    else if (m_kind != Kind::body)
        ink = quietColor(neutral.text, neutral.ground, kQuiet);
    QPalette own = palette();
    if (own.color(QPalette::WindowText) == ink)
        return;
    own.setColor(QPalette::WindowText, ink);
    setPalette(own);
}

PanelScrollArea::PanelScrollArea(QWidget *content, QWidget *parent)
    : QScrollArea(parent)
    , m_bar(new OverlayScrollBar(this))
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(content);
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    m_bar->follow(verticalScrollBar());
    m_bar->setForeground(neutralColors(isDarkDesktop()).text);
}

void PanelScrollArea::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    m_bar->adapt();
}

void PanelScrollArea::changeEvent(QEvent *event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        m_bar->setForeground(neutralColors(isDarkDesktop()).text);
}

ArrowFocus::ArrowFocus(int columns, QObject *parent)
    : QObject(parent)
    , m_columns(columns)
{
}

void ArrowFocus::setButtons(const std::vector<QAbstractButton *> &buttons, QAbstractButton *home)
{
    for (const QPointer<QAbstractButton> &former : m_buttons) {
        if (former)
            former->removeEventFilter(this);
    }
    m_buttons.assign(buttons.begin(), buttons.end());
    for (QAbstractButton *button : buttons)
        button->installEventFilter(this);
    setHome(home);
}

void ArrowFocus::setHome(QAbstractButton *home)
{
    if (!home && !m_buttons.empty())
        home = m_buttons.front();
    for (const QPointer<QAbstractButton> &button : m_buttons) {
        if (button)
            button->setFocusPolicy(button == home ? Qt::TabFocus : Qt::NoFocus);
    }
}

qsizetype ArrowFocus::neighbour(qsizetype index, int key) const
{
    const bool isMirrored = m_buttons[size_t(index)]->isRightToLeft();
    switch (key) {
    case Qt::Key_Left:
        return index + (isMirrored ? 1 : -1);
    case Qt::Key_Right:
        return index + (isMirrored ? -1 : 1);
    case Qt::Key_Up:
        return index - m_columns;
    case Qt::Key_Down:
        return index + m_columns;
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return qsizetype(m_buttons.size()) - 1;
    default:
        return -1;
    }
}

bool ArrowFocus::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto found = std::find(m_buttons.begin(), m_buttons.end(), watched);
    if (found == m_buttons.end())
        return false;
    const int key = static_cast<QKeyEvent *>(event)->key();
    const qsizetype next = neighbour(found - m_buttons.begin(), key);
    const bool isArrow = key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up
        || key == Qt::Key_Down || key == Qt::Key_Home || key == Qt::Key_End;
    if (next < 0 || next >= qsizetype(m_buttons.size()) || !m_buttons[size_t(next)])
        return isArrow;
    QAbstractButton *button = m_buttons[size_t(next)];
    setHome(button);
    button->setFocus(Qt::TabFocusReason);
    if (onMoved)
        onMoved(button);
    return true;
}

void setChosen(QAbstractButton &button, bool isChosen)
{
    const bool wasExclusive = button.autoExclusive();
    button.setAutoExclusive(false);
    button.setChecked(isChosen);
    button.setAutoExclusive(wasExclusive);
}

} // namespace lorva
