// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/SegmentPicker.h"

#include <QColor>
#include <QStringList>
#include <QWidget>

namespace lorva {

class PaneButton;
class SegmentedControl;

/// The bar at the foot of the detail pane: a segment for each variant of the family, and a menu for
/// those that find no room.
///
/// Thread: main. Units: points.
class VariantBar final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kHeight = 48;

    explicit VariantBar(QWidget *parent = nullptr);
    ~VariantBar() override;

    /// Whoever lays this bar out hides it with fewer than two labels.
    void apply(const QStringList &labels, const QString &selected);
    void setColors(const QColor &foreground, const QColor &background);
    /// What is shown as segments at the present width, and what is in the menu.
    const SegmentPickerState &picker() const { return m_picker; }

Q_SIGNALS:
    void variantSelected(const QString &label);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void layOut();
    void showPicker(SegmentPickerState picker);
    void openMenu();

    SegmentedControl *m_segments;
    PaneButton *m_more;
    QStringList m_labels;
    QString m_selected;
    SegmentPickerState m_picker;
    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
};

} // namespace lorva
