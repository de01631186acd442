// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/onboarding/FrameClock.h"
#include "ui/onboarding/LetterFall.h"
#include "ui/onboarding/OnboardingOverlayController.h"

#include <QPixmap>
#include <QPointer>
#include <QWidget>

#include <chrono>
#include <functional>
#include <memory>

class QPushButton;

namespace lorva {

class SheetPanel;

/// The welcome as it is seen: the ground that covers the main window, the scene on it, and then the
/// card, which has the focus. When it has ended it fades out and deletes itself, whoever still
/// knows it; it goes with the main window, and then tells nobody.
///
/// Thread: main. Units: points.
class OnboardingOverlay final : public QWidget
{
    Q_OBJECT
public:
    /// A window of its own over the main window, or, where windows can neither be placed nor
    /// transparent, inside of it.
    enum class Placement { window, inside };
    using End = OnboardingOverlayController::End;

    /// `ended` is called once, unless the overlay goes before; the overlay may be deleted in it.
    OnboardingOverlay(QWidget &mainWindow, Placement placement, const WelcomeText &text,
                      std::shared_ptr<FrameClock> clock, std::function<void(End)> ended);
    ~OnboardingOverlay() override;

    /// Shows itself, with the scene or at once with the card.
    void begin(std::unique_ptr<LetterFall> fall);
    /// Shows this state and nothing moving. Takes seconds.
    void settleForPicture(std::unique_ptr<LetterFall> fall, bool showsCard);
    bool hasEnded() const { return !m_ended; }
    /// Null without a scene.
    const LetterFall *fall() const { return m_fall.get(); }

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    enum class Phase { scene, cardRises, card, leaving };

    void buildCard(const WelcomeText &text);
    void coverMainWindow();
    void takeFocus();
    void keepFocus(const QWidget *now);
    void startClock();
    void stopWhenQuiet();
    void frame(std::chrono::nanoseconds passed);
    QRegion moveOn(std::chrono::nanoseconds passed);
    void skip();
    void riseCard();
    QRect setCardProgress(double progress);
    void placeCard();
    void end(End end);
    void leave();
    QRegion fadeOut();

    const QPointer<QWidget> m_mainWindow;
    const Placement m_placement;
    const std::shared_ptr<FrameClock> m_clock;
    std::function<void(End)> m_ended;
    QPointer<QWidget> m_focusBefore;
    std::unique_ptr<LetterFall> m_fall;
    SheetPanel *m_card = nullptr;
    QPushButton *m_button = nullptr;
    Phase m_phase = Phase::scene;
    bool m_isClockRunning = false;
    std::chrono::nanoseconds m_phaseTime{0};
    double m_cardProgress = 0;
    /// While it fades out inside of the main window: the last that was seen.
    QPixmap m_lastSeen;
};

} // namespace lorva
