// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextCarets.h"

#include <QString>

#include <vector>

namespace lorva {

/// What may stand in an edited text: line breaks of every kind become line feeds, tabs spaces;
/// other control characters and halves of surrogate pairs are left out.
QString editableText(QStringView text);

/// A text that someone edits: caret, selection and what can be undone. Knows nothing of how it
/// looks: whoever has it in a layout says where the caret goes.
///
/// Always true: text as editableText() gives it, of at most `mostUnits` units; indices within it.
/// Thread: main. Units: UTF-16 units.
class EditableText
{
public:
    enum class Selecting { no, yes };
    /// Neighbouring changes of one kind are undone together, until the caret moves. `single` stays
    /// by itself.
    enum class Kind { typing, erasing, single };

    explicit EditableText(int mostUnits)
        : m_mostUnits(mostUnits)
    {
    }

    const QString &text() const { return m_text; }
    TextPosition caret() const { return m_state.caret; }
    int anchor() const { return m_state.anchor; }
    int selectionStart() const;
    int selectionEnd() const;
    bool hasSelection() const { return anchor() != caret().index; }
    QString selectedText() const;
    bool canUndo() const { return m_done > 0; }
    bool canRedo() const { return m_done < m_changes.size(); }

    /// Another text, with the caret at its end. Forgets what could be undone.
    void reset(const QString &text);
    void moveTo(TextPosition to, Selecting selecting = Selecting::no);
    void select(int anchor, int caret);

    // Each says whether the text is another one now.

    /// In place of the selection; as much as there is room for.
    bool insert(const QString &text, Kind kind);
    bool erase(int start, int end, Kind kind);
    bool eraseSelection(Kind kind) { return erase(selectionStart(), selectionEnd(), kind); }
    bool undo();
    bool redo();
    /// What is typed from now on is undone by itself.
    void endRun() { m_isRunOpen = false; }

private:
    struct State
    {
        TextPosition caret;
        int anchor = 0;
    };
    struct Change
    {
        int at = 0;
        QString removed;
        QString inserted;
        State before;
        State after;
        Kind kind = Kind::single;
    };

    int clamped(int index) const;
    bool replace(int start, int end, const QString &with, Kind kind);
    bool joinsLast(const Change &change) const;
    void join(const Change &change);
    void record(const Change &change);

    const int m_mostUnits;
    QString m_text;
    State m_state;
    std::vector<Change> m_changes;
    /// How many of them hold.
    size_t m_done = 0;
    bool m_isRunOpen = false;
};

} // namespace lorva
