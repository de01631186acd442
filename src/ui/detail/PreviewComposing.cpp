// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Input methods in the large preview.

#include "ui/detail/DetailPreviewView.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QTextFormat>

#include <algorithm>

namespace lorva {

void DetailPreviewView::inputMethodEvent(QInputMethodEvent *event)
{
    const QString before = m_edit.text();
    const QString composedBefore = composedText();
    const bool hasText = !event->preeditString().isEmpty() || !event->commitString().isEmpty()
        || event->replacementLength() > 0;
    if (hasText && !isComposing())
        m_edit.eraseSelection(EditableText::Kind::typing);
    m_composition = {};
    if (event->replacementLength() > 0) {
        const int start = m_edit.caret().index + event->replacementStart();
        m_edit.erase(start, start + event->replacementLength(), EditableText::Kind::typing);
    }
    m_edit.insert(event->commitString(), EditableText::Kind::typing);
    compose(*event);
    m_motion.forget();
    if (composedText() != composedBefore) {
        invalidatePlacement();
        tellHeight();
    }
    settle(before);
    event->accept();
}

/// Takes over what is not final yet.
void DetailPreviewView::compose(const QInputMethodEvent &event)
{
    m_composition.text = editableText(event.preeditString());
    const int length = int(m_composition.text.size());
    m_composition.cursor = length;
    for (const QInputMethodEvent::Attribute &attribute : event.attributes()) {
        const int start = std::clamp(attribute.start, 0, length);
        const int end = std::clamp(attribute.start + attribute.length, start, length);
        if (attribute.type == QInputMethodEvent::Cursor) {
            m_composition.cursor = attribute.length > 0 ? start : -1;
        } else if (attribute.type == QInputMethodEvent::TextFormat) {
            const QTextFormat format = attribute.value.value<QTextFormat>();
            if (format.hasProperty(QTextFormat::BackgroundBrush)) {
                m_composition.markStart = start;
                m_composition.markEnd = end;
            }
        } else if (attribute.type == QInputMethodEvent::Selection && !isComposing()) {
            m_edit.select(attribute.start, attribute.start + attribute.length);
        }
    }
}

/// The input method gives what it has; what it keeps was not meant.
void DetailPreviewView::finishComposing()
{
    if (!isComposing())
        return;
    QGuiApplication::inputMethod()->commit();
    if (!isComposing())
        return;
    m_composition = {};
    QGuiApplication::inputMethod()->reset();
    invalidatePlacement();
    tellHeight();
    settle(m_edit.text());
}

QVariant DetailPreviewView::inputMethodQuery(Qt::InputMethodQuery query) const
{
    const QString &text = m_edit.text();
    const int caret = m_edit.caret().index;
    switch (query) {
    case Qt::ImEnabled:
        return true;
    case Qt::ImHints:
        return int(Qt::ImhMultiLine);
    case Qt::ImCursorRectangle:
        return caretRectIn(shownCaret());
    case Qt::ImAnchorRectangle:
        return QRectF(caretRectAt({m_edit.anchor(), false}));
    case Qt::ImCursorPosition:
    case Qt::ImAbsolutePosition:
        return caret;
    case Qt::ImAnchorPosition:
        return m_edit.anchor();
    case Qt::ImSurroundingText:
        return text;
    case Qt::ImCurrentSelection:
        return m_edit.selectedText();
    case Qt::ImTextBeforeCursor:
        return text.left(caret);
    case Qt::ImTextAfterCursor:
        return text.mid(caret);
    default:
        return DetailSection::inputMethodQuery(query);
    }
}

} // namespace lorva
