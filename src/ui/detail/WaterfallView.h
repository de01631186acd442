// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/DetailSection.h"
#include "ui/detail/DetailSpecimen.h"
#include "ui/detail/TextInk.h"
#include "ui/detail/WaterfallRows.h"

#include <optional>
#include <vector>

namespace lorva {

/// The same line in falling sizes. Only what is in sight is set and painted.
///
/// Owns the pixels of the lines in and near sight. Thread: main. Units: points.
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
    /// How many lines hold pixels.
    int paintedLines() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void forgetLines();
    TextInk &line(size_t index);

    DetailSpecimen m_specimen;
    std::vector<WaterfallRow> m_rows;
    /// For each row; absent until it is painted.
    std::vector<std::optional<TextInk>> m_lines;
};

} // namespace lorva
