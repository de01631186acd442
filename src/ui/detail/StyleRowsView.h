// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/DetailSection.h"
#include "ui/detail/FontDetailState.h"
#include "ui/preview/FontResolver.h"

namespace lorva {

/// The styles of the variant that is shown, each in its own face, with a control that switches it.
///
/// Thread: main. Units: points.
class StyleRowsView final : public DetailSection
{
    Q_OBJECT
public:
    explicit StyleRowsView(std::shared_ptr<FontResolver> resolver, QWidget *parent = nullptr);
    ~StyleRowsView() override;

    /// `selectedStyleID`: the style that the preview shows.
    void apply(const FontDetailState &state, const std::vector<FontStyleRecord> &styles,
               const QString &selectedStyleID);
    void setColors(const QColor &foreground, const QColor &background);
    int heightFor(int width) const override;
    void setVisibleBand(int top, int bottom) override;
    /// Every row in sight shows its face.
    bool isSettled() const;

Q_SIGNALS:
    /// The preview should show it.
    void styleChosen(const FontStyleRecord &style);
    void activationWanted(const FontStyleRecord &style);
    void deactivationWanted(const FontStyleRecord &style);
};

} // namespace lorva
