// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontFamilySubset.h"
#include "ui/detail/DetailSection.h"
#include "ui/detail/DetailSpecimen.h"
#include "ui/detail/SpecimenPage.h"
#include "ui/preview/FontResolver.h"

namespace lorva {

/// The style that is shown beside up to three other families on the same text, or laid over them.
///
/// Thread: main. Units: points.
class ComparisonView final : public DetailSection
{
    Q_OBJECT
public:
    static constexpr int kMostOthers = 3;

    explicit ComparisonView(std::shared_ptr<FontResolver> resolver, QWidget *parent = nullptr);
    ~ComparisonView() override;

    void apply(const DetailSpecimen &specimen);
    /// The weight and slant of the style that is shown: others are shown in their nearest.
    void setStyle(const FontStyleRecord &style);
    /// What can be chosen to compare with; what is compared and no longer there goes.
    void setFamilies(const FontFamilySubset &families);
    QStringList otherFamilies() const;
    void setOtherFamilies(const QStringList &names);
    /// What is shown, for a file: at this widget's width.
    SpecimenPage page() const;
    int heightFor(int width) const override;
    bool isSettled() const;
};

} // namespace lorva
