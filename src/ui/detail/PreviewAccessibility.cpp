// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/PreviewAccessibility.h"

#include "ui/detail/DetailPreviewView.h"

#include <QAccessibleWidget>

#include <algorithm>

namespace lorva {

namespace {

class AccessiblePreview final : public QAccessibleWidget,
                                public QAccessibleTextInterface,
                                public QAccessibleEditableTextInterface
{
public:
    explicit AccessiblePreview(DetailPreviewView *view)
        : QAccessibleWidget(view, QAccessible::EditableText)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface *>(this);
        if (type == QAccessible::EditableTextInterface)
            return static_cast<QAccessibleEditableTextInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? editor().text() : QAccessibleWidget::text(kind);
    }
    void setText(QAccessible::Text kind, const QString &text) override
    {
        if (kind == QAccessible::Value)
            view().replace(0, characterCount(), text);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = true;
        state.multiLine = true;
        state.selectableText = true;
        return state;
    }

    void selection(int index, int *start, int *end) const override
    {
        const bool isThere = index == 0 && editor().hasSelection();
        *start = isThere ? editor().selectionStart() : 0;
        *end = isThere ? editor().selectionEnd() : 0;
    }
    int selectionCount() const override { return editor().hasSelection() ? 1 : 0; }
    void addSelection(int start, int end) override { view().select(start, end); }
    void removeSelection(int index) override
    {
        if (index == 0)
            setCursorPosition(cursorPosition());
    }
    void setSelection(int index, int start, int end) override
    {
        if (index == 0)
            view().select(start, end);
    }
    int cursorPosition() const override { return editor().caret().index; }
    void setCursorPosition(int position) override { view().select(position, position); }
    QString text(int start, int end) const override
    {
        return editor().text().mid(start, end - start);
    }
    int characterCount() const override { return int(editor().text().size()); }

    QRect characterRect(int offset) const override
    {
        const int next = view().placement().carets.next(offset);
        const QRect character =
            view().caretRectAt({offset, false}) | view().caretRectAt({next, true});
        return {view().mapToGlobal(character.topLeft()), character.size()};
    }
    int offsetAtPoint(const QPoint &point) const override
    {
        const QPoint at = view().mapFromGlobal(point);
        return view().rect().contains(at) ? view().positionAt(at).index : -1;
    }
    void scrollToSubstring(int start, int end) override
    {
        const QRect rect = view().caretRectAt({end, true}) | view().caretRectAt({start, false});
        Q_EMIT view().revealWanted(rect);
    }
    /// One font and one colour throughout.
    QString attributes(int, int *start, int *end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }

    void deleteText(int start, int end) override { view().replace(start, end, {}); }
    void insertText(int offset, const QString &text) override
    {
        view().replace(offset, offset, text);
    }
    void replaceText(int start, int end, const QString &text) override
    {
        view().replace(start, end, text);
    }

private:
    DetailPreviewView &view() const { return *static_cast<DetailPreviewView *>(object()); }
    const EditableText &editor() const { return view().editor(); }
};

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *view = qobject_cast<DetailPreviewView *>(object);
    return view ? new AccessiblePreview(view) : nullptr;
}

} // namespace

void installPreviewAccessibility()
{
    [[maybe_unused]] static const bool once = [] {
        QAccessible::installFactory(makeAccessible);
        return true;
    }();
}

void announceText(DetailPreviewView &view, const QString &before)
{
    if (!QAccessible::isActive())
        return;
    const QString &after = view.editor().text();
    const auto [beforeAt, afterAt] =
        std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto same = beforeAt - before.begin();
    // From behind, but not into what is the same at the front.
    auto sameAtEnd = std::min(before.end() - beforeAt, after.end() - afterAt);
    const auto fromEnd =
        std::mismatch(before.rbegin(), before.rbegin() + sameAtEnd, after.rbegin());
    sameAtEnd = fromEnd.first - before.rbegin();
    QAccessibleTextUpdateEvent event(&view, int(same),
                                     before.mid(same, before.size() - sameAtEnd - same),
                                     after.mid(same, after.size() - sameAtEnd - same));
    QAccessible::updateAccessibility(&event);
}

void announceCaret(DetailPreviewView &view)
{
    if (!QAccessible::isActive())
        return;
    const EditableText &editor = view.editor();
    QAccessibleTextSelectionEvent selection(&view, editor.selectionStart(), editor.selectionEnd());
    selection.setCursorPosition(editor.caret().index);
    QAccessible::updateAccessibility(&selection);
    QAccessibleTextCursorEvent caret(&view, editor.caret().index);
    QAccessible::updateAccessibility(&caret);
}

} // namespace lorva
