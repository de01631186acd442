// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QRect>

#include <functional>

namespace lorva {

class LineField;

/// Edits the sample text in the place of one card's specimen.
///
/// Return, and the focus going elsewhere, commit; Escape restores. An edit that changes nothing
/// commits nothing. Owns the field while the edit runs. Thread: main.
class InlineEditHandler final : public QObject
{
    Q_OBJECT
public:
    /// A specimen is a line: what could never be seen need not be typed.
    static constexpr int kMostCharacters = 5000;

    explicit InlineEditHandler(QObject *parent);
    ~InlineEditHandler() override;

    /// The text changed, and no input method is composing. May be empty.
    std::function<void(const QString &text)> onLiveChange;
    /// A new text that is not blank. The edit has ended.
    std::function<void(const QString &text)> onCommit;
    /// The edit has ended, in whatever way; before onCommit. `hadFocus`: it needs another place.
    std::function<void(bool hadFocus)> onEnd;

    struct Place
    {
        /// The specimen's.
        QRect rect;
        Qt::Alignment alignment = Qt::AlignCenter;
        QColor foreground;
        QColor background;
    };
    /// Ends an edit that runs, and begins one with all of `text` selected and the focus.
    void begin(QWidget *parent, const QString &text, const Place &place);
    /// Nothing without an edit.
    void setPlace(const Place &place);
    bool isActive() const;
    void commit() { end(true); }
    void cancel() { end(false); }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void end(bool commits);
    bool pressKey(int key);
    void align();

    /// On its own when the parent dies first.
    QPointer<LineField> m_field;
    QString m_initialText;
    Qt::Alignment m_alignment = Qt::AlignCenter;
};

} // namespace lorva
