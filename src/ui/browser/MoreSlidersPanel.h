// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/SpecimenSlider.h"

#include <QWidget>

#include <vector>

namespace lorva {

/// The sliders that found no room in the bar, one below the other with their names, for a popover.
/// Neutral colours. Thread: main.
class MoreSlidersPanel final : public QWidget
{
    Q_OBJECT
public:
    explicit MoreSlidersPanel(const std::vector<SpecimenSlider::Kind> &kinds,
                              QWidget *parent = nullptr);

    const std::vector<SpecimenSlider *> &sliders() const { return m_sliders; }

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void takeColors();

    std::vector<SpecimenSlider *> m_sliders;
};

} // namespace lorva
