// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <vector>

namespace lorva {

class SpecimenSlider;

/// The sliders that found no room in the bar, one below the other with their names, for a popover.
/// Neutral colours. Thread: main.
class MoreSlidersPanel final : public QWidget
{
    Q_OBJECT
public:
    explicit MoreSlidersPanel(bool hasSize, QWidget *parent = nullptr);

    const std::vector<SpecimenSlider *> &sliders() const { return m_sliders; }

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void takeColors();

    std::vector<SpecimenSlider *> m_sliders;
};

} // namespace lorva
