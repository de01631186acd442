// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/DetailSection.h"
#include "ui/detail/DetailSpecimen.h"
#include "ui/detail/SpecimenPage.h"

namespace lorva {

/// The same line in falling sizes.
///
/// Thread: main. Units: points.
class WaterfallView final : public DetailSection
{
    Q_OBJECT
public:
    explicit WaterfallView(QWidget *parent = nullptr);
    ~WaterfallView() override;

    void apply(const DetailSpecimen &specimen);
    /// What is shown, for a file: at this widget's width.
    SpecimenPage page() const;
    int heightFor(int width) const override;
    void setVisibleBand(int top, int bottom) override;
};

} // namespace lorva
