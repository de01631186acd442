// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/inspector/InspectorFacts.h"

#include <QWidget>

#include <functional>

namespace lorva {

class ToggleSwitch;

/// A feature: its name and its switch; a press on the name switches, too. Asks for the feature's
/// tip where the pointer or the keyboard rests. Thread: main.
class FeatureRow final : public QWidget
{
    Q_OBJECT
public:
    /// `group`: what the feature is listed under, for assistive technology.
    FeatureRow(const OpenTypeFeatureRecord &feature, const FeatureNotes &notes,
               const QString &group, QWidget *parent);

    /// Without a word.
    void setOn(bool isOn);
    const FeatureNotes &notes() const { return m_notes; }

    std::function<void(bool)> onToggled;
    std::function<void()> onTipWanted;
    std::function<void()> onTipUnwanted;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void placeParts();
    void wantTip(bool isWanted) const;

    const FeatureNotes m_notes;
    ToggleSwitch *m_switch;
};

} // namespace lorva
