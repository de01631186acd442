// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/DetailSection.h"
#include "ui/detail/DetailSpecimen.h"

namespace lorva {

/// The large preview, in which one types: caret, selection, clipboard, input methods and undo, all
/// in the face that is shown.
///
/// Thread: main. Units: points.
class DetailPreviewView final : public DetailSection
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
    /// The user is typing here, or has just done so: the keyboard is here.
    bool isEditing() const;
    int heightFor(int width) const override;

Q_SIGNALS:
    /// The user changed the text, and no input method is composing. May be blank.
    void textEdited(const QString &text);
    /// The keyboard came or went.
    void editingChanged();
};

} // namespace lorva
