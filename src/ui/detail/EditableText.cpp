// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/EditableText.h"

#include "base/TextBeginning.h"

#include <algorithm>
#include <utility>

namespace lorva {

namespace {

/// More steps than anybody takes back.
constexpr size_t kMostChanges = 500;

bool isLineBreak(char16_t unit)
{
    return (unit >= u'\n' && unit <= u'\r') || unit == 0x85 || unit == 0x2028 || unit == 0x2029;
}

bool isControl(char16_t unit)
{
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
}

} // namespace

QString editableText(QStringView text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool hasNext = i + 1 < text.size();
        if (c.isHighSurrogate() && hasNext && text[i + 1].isLowSurrogate()) {
            result += c;
            result += text[++i];
        } else if (isLineBreak(c.unicode())) {
            i += c == u'\r' && hasNext && text[i + 1] == u'\n' ? 1 : 0;
            result += u'\n';
        } else if (c == u'\t') {
            result += u' ';
        } else if (!c.isSurrogate() && !isControl(c.unicode())) {
            result += c;
        }
    }
    return result;
}

int EditableText::clamped(int index) const
{
    return std::clamp(index, 0, int(m_text.size()));
}

int EditableText::selectionStart() const
{
    return std::min(anchor(), caret().index);
}

int EditableText::selectionEnd() const
{
    return std::max(anchor(), caret().index);
}

QString EditableText::selectedText() const
{
    return m_text.mid(selectionStart(), selectionEnd() - selectionStart());
}

void EditableText::reset(const QString &text)
{
    m_text = textBeginning(editableText(text), m_mostUnits);
    m_changes.clear();
    m_done = 0;
    select(int(m_text.size()), int(m_text.size()));
}

void EditableText::moveTo(TextPosition to, Selecting selecting)
{
    to.index = clamped(to.index);
    m_state.caret = to;
    if (selecting == Selecting::no)
        m_state.anchor = to.index;
    endRun();
}

void EditableText::select(int anchor, int caret)
{
    m_state = {{clamped(caret), clamped(caret) > clamped(anchor)}, clamped(anchor)};
    endRun();
}

bool EditableText::insert(const QString &text, Kind kind)
{
    const int start = selectionStart();
    const int end = selectionEnd();
    const qsizetype room = m_mostUnits - (m_text.size() - (end - start));
    const QString inserted = textBeginning(editableText(text), room);
    // Nothing that may stand here is no reason to take the selection away.
    return !inserted.isEmpty() && replace(start, end, inserted, kind);
}

bool EditableText::erase(int start, int end, Kind kind)
{
    start = clamped(start);
    end = clamped(end);
    return start < end && replace(start, end, {}, kind);
}

bool EditableText::replace(int start, int end, const QString &with, Kind kind)
{
    const Change change{start, m_text.mid(start, end - start), with, m_state, {}, kind};
    m_text.replace(start, end - start, with);
    const int after = start + int(with.size());
    // What was typed belongs to the caret, also where two directions meet.
    m_state = {{after, !with.isEmpty()}, after};
    record(change);
    return change.removed != change.inserted;
}

/// Typed text goes on where the last change ended; erasing goes on at either side of its place. A
/// line is a step of its own.
bool EditableText::joinsLast(const Change &change) const
{
    if (!m_isRunOpen || m_done == 0 || change.kind == Kind::single)
        return false;
    const Change &last = m_changes[m_done - 1];
    if (last.kind != change.kind)
        return false;
    if (change.kind == Kind::typing)
        return change.removed.isEmpty() && change.at == last.at + last.inserted.size()
            && !last.inserted.endsWith(u'\n');
    return change.at == last.at || change.at + change.removed.size() == last.at;
}

void EditableText::join(const Change &change)
{
    Change &last = m_changes[m_done - 1];
    last.inserted += change.inserted;
    if (change.at < last.at)
        last.removed.prepend(change.removed);
    else
        last.removed += change.removed;
    last.at = std::min(last.at, change.at);
    last.after = m_state;
}

void EditableText::record(const Change &change)
{
    const bool joins = joinsLast(change);
    m_changes.resize(m_done);
    if (joins) {
        join(change);
    } else {
        if (m_changes.size() >= kMostChanges)
            m_changes.erase(m_changes.begin());
        m_changes.push_back(change);
        m_changes.back().after = m_state;
        m_done = m_changes.size();
    }
    m_isRunOpen = true;
}

bool EditableText::undo()
{
    if (!canUndo())
        return false;
    const Change &change = m_changes[--m_done];
    m_text.replace(change.at, change.inserted.size(), change.removed);
    m_state = change.before;
    endRun();
    return true;
}

bool EditableText::redo()
{
    if (!canRedo())
        return false;
    const Change &change = m_changes[m_done++];
    m_text.replace(change.at, change.removed.size(), change.inserted);
    m_state = change.after;
    endRun();
    return true;
}

} // namespace lorva
