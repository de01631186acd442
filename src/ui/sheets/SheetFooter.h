// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <vector>

namespace lorva {

/// The last line of a sheet: its buttons, and a control that begins the line. What does not fit
/// goes onto further lines. Mirrored where one reads from right to left. Thread: main.
class SheetFooter final : public QWidget
{
    Q_OBJECT
public:
    /// How far it reaches over its column at both sides: room for the focus ring of its first
    /// control.
    static constexpr int kOverhang = 3;

    using QWidget::QWidget;

    /// The most important one first: it stands at the end of the line.
    void addButton(QWidget *button);
    void setLead(QWidget *lead);
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Place
    {
        QWidget *part;
        QRect rect;
    };

    std::vector<Place> placesFor(int width) const;
    void addLead(std::vector<Place> &places, int width) const;
    void place();

    QWidget *m_lead = nullptr;
    std::vector<QWidget *> m_buttons;
};

} // namespace lorva
