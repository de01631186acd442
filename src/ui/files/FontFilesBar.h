// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/FontDetailState.h"

#include <QWidget>

namespace lorva {

class IconButton;
class SegmentedControl;
class SpecimenSlider;

/// The bar over the page of an opened font file: what is shown, how large, and in which way.
/// Follows the desktop's colours. Thread: main. Units: points.
class FontFilesBar final : public QWidget
{
    Q_OBJECT
public:
    explicit FontFilesBar(QWidget *parent = nullptr);

    void setTitle(const QString &title);
    void setPointSize(double pointSize);
    void setStage(DetailStage stage);
    void setInspectorShown(bool isShown);
    /// Nothing is shown that the controls could be about.
    void setControlsShown(bool areShown);

Q_SIGNALS:
    // By the user.
    void pointSizeChosen(double pointSize);
    void stageChosen(DetailStage stage);
    void inspectorToggled();

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void takeColors();
    void layOut();

    SpecimenSlider *m_size;
    SegmentedControl *m_stages;
    IconButton *m_inspector;
    QString m_title;
    QRect m_titleRect;
    bool m_areControlsShown = true;
};

} // namespace lorva
