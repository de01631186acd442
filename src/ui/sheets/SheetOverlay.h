// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/Alert.h"
#include "ui/style/SoftShadow.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <vector>

class QLabel;
class QPushButton;
class QScrollArea;

namespace lorva {

/// One alert over a window: the dimmed ground, and the panel with its texts and buttons.
///
/// Lies inside the window and covers it, so that it looks the same on every desktop. Keeps the
/// keyboard's focus until it is answered, and gives it back then. Deletes itself. Thread: main.
class SheetOverlay final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kPanelWidth = 480;

    /// `answered` is called once, when the sheet has gone.
    SheetOverlay(QWidget &window, const Alert &alert, std::function<void(int)> answered);
    ~SheetOverlay() override;

    /// Takes the focus and fades in.
    void present();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void addTexts(const Alert &alert);
    void addButtons(const Alert &alert);
    void layOut();
    int placeButtons(const QRect &column, int bottom);
    void colorTexts();
    void takeFocus();
    void keepFocus(QWidget *now);
    void answer(int button);
    void setProgress(double progress);

    const std::function<void(int)> m_answered;
    QPointer<QWidget> m_focusBefore;
    /// What assistive technology knows as the alert.
    QWidget *m_panel;
    QLabel *m_title = nullptr;
    QLabel *m_body = nullptr;
    QScrollArea *m_bodyArea;
    /// In the alert's order.
    std::vector<QPushButton *> m_buttons;
    QPushButton *m_default = nullptr;
    int m_cancelIndex = 0;
    SoftShadow m_shadow;
    double m_progress = 1.0;
    bool m_isAnswered = false;
};

} // namespace lorva
