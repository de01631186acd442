// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/InfoValueText.h"

#include "ui/inspector/InspectorLook.h"
#include "ui/style/ControlColors.h"
#include "ui/style/MenuLook.h"

#include <QAbstractTextDocumentLayout>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

/// About eight lines.
constexpr qsizetype kLongestShort = 280;
constexpr qsizetype kMostShortLines = 8;
constexpr qsizetype kLongestCut = 240;
constexpr qsizetype kMostCutLines = 6;

qsizetype endOfLine(const QString &text, qsizetype count)
{
    qsizetype end = -1;
    for (qsizetype i = 0; i < count; ++i) {
        end = text.indexOf(u'\n', end + 1);
        if (end < 0)
            return text.size();
    }
    return end;
}

/// The beginning, not within a pair of surrogates; nothing where the whole is short enough.
QString beginningOf(const QString &text)
{
    if (text.size() <= kLongestShort && text.count(u'\n') < kMostShortLines)
        return {};
    qsizetype end = std::min(kLongestCut, endOfLine(text, kMostCutLines));
    if (end > 0 && text[end - 1].isHighSurrogate())
        --end;
    return QString(text.left(end).trimmed() % u'…');
}

} // namespace

InfoValueText::InfoValueText(QString value, QWidget *parent)
    : QTextEdit(parent)
    , m_value(std::move(value))
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setFocusPolicy(Qt::StrongFocus);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(0);
    document()->setDefaultFont(interfaceFont(InterfaceSize::label));
    const QString beginning = beginningOf(m_value);
    m_isCut = !beginning.isEmpty();
    setPlainText(m_isCut ? beginning : m_value);
    takeColors();
}

void InfoValueText::expand()
{
    m_isCut = false;
    setPlainText(m_value);
}

int InfoValueText::heightForWidth(int width) const
{
    document()->setTextWidth(width);
    return int(std::ceil(document()->documentLayout()->documentSize().height()));
}

void InfoValueText::copyAll() const
{
    QGuiApplication::clipboard()->setText(m_value);
}

void InfoValueText::copySelection()
{
    if (textCursor().hasSelection())
        copy();
    else
        copyAll();
}

void InfoValueText::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *menu = makeMenu(this);
    menu->setObjectName(QStringLiteral("InfoMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(tr("Copy")), &QAction::triggered, this, &InfoValueText::copySelection);
    connect(menu->addAction(tr("Select All")), &QAction::triggered, this, &QTextEdit::selectAll);
    menu->popup(event->globalPos());
}

void InfoValueText::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        copySelection();
    else
        QTextEdit::keyPressEvent(event);
}

void InfoValueText::focusInEvent(QFocusEvent *event)
{
    m_showsFocus = showsFocusRing(event->reason(), m_showsFocus);
    QTextEdit::focusInEvent(event);
    parentWidget()->update();
}

/// What is selected in one value must not seem to be copied from another.
void InfoValueText::focusOutEvent(QFocusEvent *event)
{
    QTextEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
        QTextCursor cursor = textCursor();
        cursor.clearSelection();
        setTextCursor(cursor);
    }
    parentWidget()->update();
}

void InfoValueText::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void InfoValueText::takeColors()
{
    QPalette own = palette();
    own.setColor(QPalette::Base, Qt::transparent);
    own.setColor(QPalette::Text, inspectorInk());
    own.setColor(QPalette::Highlight, accentColor());
    own.setColor(QPalette::HighlightedText, contrastingNeutral(accentColor()));
    m_takesColors = true;
    setPalette(own);
    m_takesColors = false;
}

void InfoValueText::changeEvent(QEvent *event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_takesColors)
        takeColors();
}

} // namespace lorva
