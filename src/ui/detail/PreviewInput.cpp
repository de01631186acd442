// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// What keys, menus and the clipboard do to the large preview.

#include "ui/detail/DetailPreviewView.h"
#include "ui/detail/PreviewAccessibility.h"
#include "ui/style/MenuLook.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>

namespace lorva {

namespace {

using Kind = EditCommand::Kind;
using Selecting = EditableText::Selecting;

QString withKey(const QString &text, QKeySequence::StandardKey key)
{
    return text + u'\t' + QKeySequence(key).toString(QKeySequence::NativeText);
}

} // namespace

bool DetailPreviewView::event(QEvent *event)
{
    // Before the window's own Undo and Copy.
    if (event->type() == QEvent::ShortcutOverride
        && editCommandFor(*static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return DetailSection::event(event);
}

void DetailPreviewView::keyPressEvent(QKeyEvent *event)
{
    const std::optional<EditCommand> command = editCommandFor(*event);
    if (!command || !perform(*command))
        event->ignore();
}

/// False: the key goes on to the page.
bool DetailPreviewView::perform(const EditCommand &command)
{
    finishComposing();
    const QString before = m_edit.text();
    switch (command.kind) {
    case Kind::leave:
        clearFocus();
        return true;
    case Kind::move:
        moveCaret(command.move, command.selects ? Selecting::yes : Selecting::no);
        return true;
    case Kind::copy:
        copy();
        return true;
    case Kind::selectAll:
        selectAll();
        return true;
    case Kind::type:
        m_edit.insert(command.text, EditableText::Kind::typing);
        break;
    case Kind::paste:
        paste(QGuiApplication::clipboard()->mimeData());
        break;
    case Kind::cut:
        copy();
        m_edit.eraseSelection(EditableText::Kind::single);
        break;
    case Kind::undo:
        m_edit.undo();
        break;
    case Kind::redo:
        m_edit.redo();
        break;
    case Kind::eraseBefore:
    case Kind::eraseAfter:
    case Kind::eraseWordBefore:
    case Kind::eraseWordAfter:
        erase(command.kind);
        break;
    }
    m_motion.forget();
    settle(before);
    return true;
}

void DetailPreviewView::moveCaret(CaretMove move, Selecting selecting)
{
    const TextCarets &carets = placement().carets;
    const bool isStep = move == CaretMove::left || move == CaretMove::right;
    if (isStep && selecting == Selecting::no && m_edit.hasSelection()) {
        m_motion.forget();
        m_edit.moveTo(CaretMotion::collapsed(carets, m_edit.selectionStart(), m_edit.selectionEnd(),
                                             move == CaretMove::right));
    } else {
        m_edit.moveTo(m_motion.moved(carets, m_edit.caret(), move), selecting);
    }
    settle(m_edit.text());
    if (selecting == Selecting::yes)
        shareSelection();
}

bool DetailPreviewView::erase(Kind kind)
{
    if (m_edit.hasSelection())
        return m_edit.eraseSelection(EditableText::Kind::single);
    const TextCarets &carets = placement().carets;
    const int at = m_edit.caret().index;
    switch (kind) {
    case Kind::eraseBefore:
        return m_edit.erase(carets.previous(at), at, EditableText::Kind::erasing);
    case Kind::eraseAfter:
        return m_edit.erase(at, carets.next(at), EditableText::Kind::erasing);
    case Kind::eraseWordBefore:
        return m_edit.erase(carets.previousWord(at), at, EditableText::Kind::erasing);
    default:
        return m_edit.erase(at, carets.nextWord(at), EditableText::Kind::erasing);
    }
}

void DetailPreviewView::copy()
{
    if (m_edit.hasSelection())
        QGuiApplication::clipboard()->setText(m_edit.selectedText());
}

bool DetailPreviewView::paste(const QMimeData *source)
{
    return source && source->hasText() && m_edit.insert(source->text(), EditableText::Kind::single);
}

/// What is selected can be pasted with the middle button where the desktop has that.
void DetailPreviewView::shareSelection() const
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (m_edit.hasSelection() && clipboard->supportsSelection())
        clipboard->setText(m_edit.selectedText(), QClipboard::Selection);
}

void DetailPreviewView::undo()
{
    perform({Kind::undo, {}, false, {}});
}

void DetailPreviewView::redo()
{
    perform({Kind::redo, {}, false, {}});
}

void DetailPreviewView::selectAll()
{
    select(0, int(m_edit.text().size()));
    shareSelection();
}

void DetailPreviewView::select(int anchor, int caret)
{
    m_edit.select(anchor, caret);
    m_motion.forget();
    settle(m_edit.text());
}

void DetailPreviewView::replace(int start, int end, const QString &text)
{
    finishComposing();
    const QString before = m_edit.text();
    m_edit.select(start, end);
    if (!m_edit.insert(text, EditableText::Kind::single))
        m_edit.eraseSelection(EditableText::Kind::single);
    m_motion.forget();
    settle(before);
}

/// After everything that the user did to text or caret.
void DetailPreviewView::settle(const QString &textBefore)
{
    const bool hasChanged = m_edit.text() != textBefore;
    if (hasChanged)
        invalidatePlacement();
    m_blink.restart(hasFocus());
    update();
    updateMicroFocus();
    if (hasChanged) {
        announceText(*this, textBefore);
        // The page makes room before it is asked to show the caret.
        tellHeight();
    }
    announceCaret(*this);
    if (!isComposing() && m_edit.text() != m_toldText) {
        m_toldText = m_edit.text();
        Q_EMIT textEdited(m_toldText);
    }
    Q_EMIT revealWanted(caretRectIn(shownCaret()).toAlignedRect());
}

void DetailPreviewView::focusInEvent(QFocusEvent *event)
{
    DetailSection::focusInEvent(event);
    m_blink.restart(true);
    update();
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        Q_EMIT revealWanted(caretRectIn(shownCaret()).toAlignedRect());
    if (std::exchange(m_hasKeyboard, true))
        return;
    Q_EMIT editingChanged();
}

void DetailPreviewView::focusOutEvent(QFocusEvent *event)
{
    DetailSection::focusOutEvent(event);
    const Qt::FocusReason reason = event->reason();
    m_blink.stop();
    update();
    if (reason == Qt::PopupFocusReason)
        return;
    finishComposing();
    m_edit.endRun();
    if (reason == Qt::ActiveWindowFocusReason || !std::exchange(m_hasKeyboard, false))
        return;
    Q_EMIT editingChanged();
}

void DetailPreviewView::contextMenuEvent(QContextMenuEvent *event)
{
    finishComposing();
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    const QRect caret = caretRectAt(m_edit.caret());
    QMenu *menu = makeEditMenu();
    menu->popup(isByKey ? mapToGlobal(caret.bottomLeft()) : event->globalPos());
}

QMenu *DetailPreviewView::makeEditMenu()
{
    QMenu *menu = makeMenu(this);
    menu->setObjectName(QStringLiteral("previewMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [this, menu](const char *name, const QString &text, Kind kind, bool isUseful) {
        QAction *action = menu->addAction(text, this, [this, kind] {
            perform({kind, {}, false, {}});
        });
        action->setObjectName(QLatin1String(name));
        action->setEnabled(isUseful);
    };
    const bool hasSelection = m_edit.hasSelection();
    const QMimeData *clipboard = QGuiApplication::clipboard()->mimeData();
    add("previewUndo", withKey(tr("Undo"), QKeySequence::Undo), Kind::undo, m_edit.canUndo());
    add("previewRedo", withKey(tr("Redo"), QKeySequence::Redo), Kind::redo, m_edit.canRedo());
    menu->addSeparator();
    add("previewCut", withKey(tr("Cut"), QKeySequence::Cut), Kind::cut, hasSelection);
    add("previewCopy", withKey(tr("Copy"), QKeySequence::Copy), Kind::copy, hasSelection);
    add("previewPaste", withKey(tr("Paste"), QKeySequence::Paste), Kind::paste,
        clipboard && clipboard->hasText());
    add("previewDelete", tr("Delete"), Kind::eraseAfter, hasSelection);
    menu->addSeparator();
    add("previewSelectAll", withKey(tr("Select All"), QKeySequence::SelectAll), Kind::selectAll,
        !m_edit.text().isEmpty());
    return menu;
}

} // namespace lorva
