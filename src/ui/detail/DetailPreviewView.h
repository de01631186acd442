// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/DetailSection.h"
#include "ui/detail/DetailSpecimen.h"
#include "ui/detail/EditableText.h"
#include "ui/detail/PreviewKeys.h"
#include "ui/detail/PreviewPicture.h"
#include "ui/style/Caret.h"
#include "ui/style/TextEditing.h"

#include <QBasicTimer>
#include <QElapsedTimer>

#include <optional>

class QMenu;
class QMimeData;

namespace lorva {

/// The large preview, in which one types: caret, selection, clipboard, input methods and undo, all
/// in the face that is shown.
///
/// Thread: main. Units: points.
class DetailPreviewView final : public DetailSection, public TextEditing
{
    Q_OBJECT
public:
    explicit DetailPreviewView(QWidget *parent = nullptr);
    ~DetailPreviewView() override;

    /// Shows the specimen. A text that differs from what is typed replaces it, and what could be
    /// undone is forgotten; the same text keeps caret, selection and history.
    void apply(const DetailSpecimen &specimen);
    /// What is typed, without what an input method composes.
    QString text() const;
    /// The user is typing here, or has just done so: the keyboard is here. A menu or another window
    /// in front of this one changes nothing.
    bool isEditing() const;
    int heightFor(int width) const override;
    void setVisibleBand(int top, int bottom) override;

    // For whoever reads and edits by other means than keys.

    const EditableText &editor() const { return m_edit; }
    /// As set at the present width, with what is being composed.
    const PreviewPlacement &placement() const;
    /// Of an index of text(); as wide as the caret.
    QRect caretRectAt(TextPosition position) const;
    TextPosition positionAt(QPointF point) const;
    void select(int anchor, int caret);
    /// As the user's doing, which can be undone.
    void replace(int start, int end, const QString &text);

    bool canUndo() const override { return m_edit.canUndo(); }
    bool canRedo() const override { return m_edit.canRedo(); }
    void undo() override;
    void redo() override;
    void copy() override;
    void selectAll() override;

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

Q_SIGNALS:
    /// The user changed the text, and no input method is composing. May be blank.
    void textEdited(const QString &text);
    /// The keyboard came or went.
    void editingChanged();

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    /// What an input method composes, at the caret.
    struct Composition
    {
        QString text;
        /// Units into it; less than 0: not shown.
        int cursor = 0;
        /// The part that the next key is about, in units of it.
        int markStart = 0;
        int markEnd = 0;
    };
    /// The mouse button is down, and what it goes over is selected.
    struct Drag
    {
        SelectionUnit unit = SelectionUnit::character;
        /// What was taken first stays selected.
        std::pair<int, int> first;
        QPoint at;
    };

    bool isComposing() const { return !m_composition.text.isEmpty(); }
    QString composedText() const;
    const PreviewPlacement &placementFor(int width) const;
    void invalidatePlacement();
    void tellHeight();
    TextPosition shownCaret() const;
    QRectF caretRectIn(TextPosition position) const;
    void updateCaret();
    void paintSelection(QPainter &painter) const;
    void paintComposition(QPainter &painter) const;
    void paintCaret(QPainter &painter) const;

    bool perform(const EditCommand &command);
    void moveCaret(CaretMove move, EditableText::Selecting selecting);
    bool erase(EditCommand::Kind kind);
    bool paste(const QMimeData *source);
    void shareSelection() const;
    void settle(const QString &textBefore);
    void finishComposing();
    void compose(const QInputMethodEvent &event);
    void press(QPoint at, SelectionUnit unit, bool extends);
    void dragTo(QPoint at);
    bool isThirdClick(QPoint at) const;
    QMenu *makeEditMenu();
    bool takesDrop(const QMimeData &source) const;

    DetailSpecimen m_specimen;
    EditableText m_edit;
    CaretMotion m_motion;
    Composition m_composition;
    QString m_toldText;
    /// For one width, made when asked for.
    mutable std::optional<PreviewPlacement> m_placement;
    mutable int m_placedWidth = -1;
    /// What heightFor() was asked last, and gave.
    mutable int m_askedWidth = -1;
    mutable int m_toldHeight = -1;
    PreviewPicture m_picture;
    CaretBlink m_blink;
    bool m_hasKeyboard = false;
    std::optional<Drag> m_drag;
    std::optional<TextPosition> m_dropAt;
    QElapsedTimer m_sinceDoubleClick;
    QPoint m_doubleClickAt;
    QBasicTimer m_autoscroll;
    int m_bandTop = 0;
    int m_bandBottom = 0;
};

} // namespace lorva
