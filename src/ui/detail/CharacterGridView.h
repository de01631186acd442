// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/Font.h"
#include "ui/detail/DetailSection.h"

#include <QColor>

namespace lorva {

/// Every character that a face can draw, or every glyph that it has, in cells.
///
/// Thread: main; characters are listed on a worker. Units: points.
class CharacterGridView final : public DetailSection
{
    Q_OBJECT
public:
    explicit CharacterGridView(QWidget *parent = nullptr);
    ~CharacterGridView() override;

    /// Lists the characters of `face` unless those of `key` are shown or on the way. A newer
    /// request supersedes the one that runs. An empty key shows nothing.
    void requestCharacterGrid(const QString &key, const Font &face);
    /// What the glyphs are drawn with: the face with the user's axis values. The popover tells the
    /// glyphs of it.
    void setPreviewFace(const Font &face);
    /// `background` may be transparent (over an image).
    void setColors(const QColor &foreground, const QColor &background);
    /// A character, "U+0041", or part of a name; empty: all.
    void setSearch(const QString &query);
    /// Gives the keyboard to the cells.
    void focusCells();
    int heightFor(int width) const override;
    void setVisibleBand(int top, int bottom) override;
    /// What is in sight is painted.
    bool isSettled() const;
};

} // namespace lorva
