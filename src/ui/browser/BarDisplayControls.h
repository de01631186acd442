// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/SpecimenSlider.h"
#include "ui/display/DisplayControls.h"

#include <QPointer>

#include <functional>
#include <map>
#include <vector>

namespace lorva {

class ColorModeChips;
class IconButton;
class MoreSlidersPanel;
class Popover;

/// The controls of a bar that set how specimens look: sliders, colour chips and the logo, and the
/// panels that open from them, one at a time.
///
/// Makes its widgets as children of the bar, which lays them out; a slider that finds no room moves
/// behind the "more" button. What apply() brings is never reported back. Panels are made when they
/// are opened, and go with this object, telling nobody. Thread: main.
class BarDisplayControls final : public QObject
{
    Q_OBJECT
public:
    using Kind = SpecimenSlider::Kind;
    enum class Panel { colors, backgroundImage, logo, sampleText };

    /// `kinds`: of the sliders, in their order. `moreLabel`: what is behind the "more" button.
    BarDisplayControls(std::vector<Kind> kinds, const QString &moreLabel, QWidget *bar);
    ~BarDisplayControls() override;

    /// Does not own it; it must outlive this object. A value of a slider is told by onValueChosen.
    void setDelegate(DisplayControlsDelegate *delegate);
    std::function<void(Kind kind, double value)> onValueChosen;
    /// The button that the sample texts hang from; without it they cannot be opened.
    void setSampleTextButton(QWidget *button) { m_sampleTextButton = button; }

    void apply(const DisplayControlsState &state, const std::map<Kind, double> &values);
    /// `background` is opaque: see groundUnder().
    void setColors(const QColor &foreground, const QColor &background);
    /// Opens the panel at its control; does nothing while it is open.
    void openPanel(Panel panel);

    SpecimenSlider *slider(Kind kind) const { return m_sliders.at(kind); }
    IconButton *moreButton() const { return m_more; }
    ColorModeChips *chips() const { return m_chips; }
    IconButton *logoButton() const { return m_logo; }

private:
    void connectSlider(SpecimenSlider *slider);
    void connectParts();
    void openMore();
    void openAt(QWidget *content, QWidget *anchor, const QString &name);
    QWidget *anchorOf(Panel panel) const;
    DisplayPanel *makePanel(Panel panel);

    QWidget *const m_bar;
    DisplayControlsDelegate *m_delegate = nullptr;
    const std::vector<Kind> m_kinds;
    const std::map<Kind, SpecimenSlider *> m_sliders;
    IconButton *const m_more;
    ColorModeChips *const m_chips;
    IconButton *const m_logo;
    QPointer<QWidget> m_sampleTextButton;
    QPointer<Popover> m_popover;
    QPointer<DisplayPanel> m_panel;
    QPointer<MoreSlidersPanel> m_morePanel;
    Panel m_openPanel = Panel::colors;
    DisplayControlsState m_display;
    std::map<Kind, double> m_values;
};

} // namespace lorva
