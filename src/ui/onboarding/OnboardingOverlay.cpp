// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/onboarding/OnboardingOverlay.h"

#include "base/Trace.h"
#include "ui/onboarding/WindowReveal.h"
#include "ui/sheets/SheetFooter.h"
#include "ui/sheets/SheetPanel.h"
#include "ui/sheets/SheetText.h"
#include "ui/style/Palette.h"
#include "ui/style/ReducedMotion.h"
#include "ui/style/Style.h"
#include "ui/style/TextButton.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QGraphicsOpacityEffect>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace lorva {

namespace {

using namespace std::chrono_literals;
using std::chrono::nanoseconds;

constexpr nanoseconds kRise = 520ms;
constexpr nanoseconds kFade = 350ms;
constexpr int kRiseHeight = 28;
constexpr int kWindowMargin = spacing::k24;
constexpr double kBodyAlpha = 0.72;
constexpr double kNoteAlpha = 0.6;
/// Where the eye rests; the pile lies below.
constexpr double kCentreFromTop = 0.42;

double shareOf(nanoseconds time, nanoseconds whole)
{
    return std::clamp(double(time.count()) / double(whole.count()), 0.0, 1.0);
}

double easedOut(double share)
{
    return 1 - (1 - share) * (1 - share) * (1 - share);
}

bool isModifier(int key)
{
    constexpr int keys[]{Qt::Key_Shift,   Qt::Key_Control,
                         Qt::Key_Alt,     Qt::Key_Meta,
                         Qt::Key_AltGr,   Qt::Key_CapsLock,
                         Qt::Key_NumLock, Qt::Key_ScrollLock,
                         Qt::Key_Super_L, Qt::Key_Super_R,
                         Qt::Key_Hyper_L, Qt::Key_Hyper_R,
                         Qt::Key_unknown, 0};
    return std::ranges::find(keys, key) != std::end(keys);
}

/// A dialog stands for its window in task bars and among the windows that one switches between.
Qt::WindowFlags flagsFor(OnboardingOverlay::Placement placement)
{
    return placement == OnboardingOverlay::Placement::window
        ? Qt::Dialog | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint
        : Qt::Widget;
}

} // namespace

OnboardingOverlay::OnboardingOverlay(QWidget &mainWindow, Placement placement,
                                     const WelcomeText &text, std::shared_ptr<FrameClock> clock,
                                     std::function<void(End)> ended)
    : QWidget(&mainWindow, flagsFor(placement))
    , m_mainWindow(&mainWindow)
    , m_placement(placement)
    , m_clock(std::move(clock))
    , m_ended(std::move(ended))
    , m_focusBefore(mainWindow.focusWidget())
{
    setObjectName(QStringLiteral("OnboardingOverlay"));
    setWindowTitle(tr("Welcome to Lorva"));
    setAccessibleName(windowTitle());
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    // What is dragged over the window ends here.
    setAcceptDrops(true);
    buildCard(text);
    mainWindow.installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { keepFocus(now); });
}

OnboardingOverlay::~OnboardingOverlay()
{
    // Parts that go lose the focus while we are half gone already.
    qApp->disconnect(this);
    m_clock->stop();
}

void OnboardingOverlay::buildCard(const WelcomeText &text)
{
    m_card = new SheetPanel(QAccessible::Dialog, this);
    m_card->setObjectName(QStringLiteral("WelcomeCard"));
    m_card->setAccessibleName(windowTitle());
    m_card->addText(windowTitle(), interfaceFont(InterfaceSize::heading, InterfaceWeight::semibold),
                    1, 0);
    const QStringList paragraphs = text.body.split(QStringLiteral("\n\n"), Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < paragraphs.size(); ++i) {
        const bool isNote = i > 0 && i == paragraphs.size() - 1;
        m_card->addText(paragraphs[i],
                        interfaceFont(isNote ? InterfaceSize::label : InterfaceSize::body),
                        isNote ? kNoteAlpha : kBodyAlpha, i == 0 ? spacing::k8 : spacing::k12);
    }
    m_card->setAccessibleDescription(text.body);
    m_button = new TextButton(text.button, TextButton::Kind::prominent);
    m_button->setObjectName(QStringLiteral("WelcomeContinue"));
    connect(m_button, &QPushButton::clicked, this, [this] { end(End::continued); });
    m_card->footer().addButton(m_button);
    m_card->hide();
}

void OnboardingOverlay::begin(std::unique_ptr<LetterFall> fall)
{
    m_fall = std::move(fall);
    coverMainWindow();
    show();
    raise();
    activateWindow();
    if (m_fall) {
        setAccessibleDescription(tr("Letters of your fonts fall. Press any key to go on."));
        takeFocus();
        startClock();
        return;
    }
    riseCard();
}

void OnboardingOverlay::settleForPicture(std::unique_ptr<LetterFall> fall, bool showsCard)
{
    m_clock->stop();
    m_isClockRunning = false;
    m_fall = std::move(fall);
    m_fall->settle();
    m_phase = showsCard ? Phase::card : Phase::scene;
    setCardProgress(showsCard ? 1 : 0);
    placeCard();
    takeFocus();
    update();
}

void OnboardingOverlay::coverMainWindow()
{
    // A window manager that makes it smaller would uncover what it hides.
    if (m_placement == Placement::window)
        setFixedSize(m_mainWindow->size());
    setGeometry(m_placement == Placement::window ? m_mainWindow->geometry() : m_mainWindow->rect());
}

void OnboardingOverlay::takeFocus()
{
    // A ring around the only button, which Return presses anyway, would say nothing.
    if (m_phase == Phase::scene)
        setFocus(Qt::OtherFocusReason);
    else
        m_button->setFocus(Qt::OtherFocusReason);
}

void OnboardingOverlay::keepFocus(const QWidget *now)
{
    const bool isElsewhere =
        now && now->window() == m_mainWindow && now != this && !isAncestorOf(now);
    if (!isElsewhere || hasEnded())
        return;
    activateWindow();
    takeFocus();
}

void OnboardingOverlay::startClock()
{
    if (std::exchange(m_isClockRunning, true))
        return;
    m_clock->start([this](nanoseconds passed) { frame(passed); });
}

void OnboardingOverlay::stopWhenQuiet()
{
    const bool isQuiet = m_phase == Phase::card && (!m_fall || m_fall->isAtRest());
    if (!isQuiet)
        return;
    m_clock->stop();
    m_isClockRunning = false;
}

void OnboardingOverlay::frame(nanoseconds passed)
{
    const TraceStage stage("welcome: frame");
    const QPointer<OnboardingOverlay> self(this);
    const QRegion changed = moveOn(passed);
    if (!self || isHidden())
        return;
    // At once, so that no frame is left out and each is measured whole.
    if (!changed.isEmpty())
        repaint(changed);
    stopWhenQuiet();
}

QRegion OnboardingOverlay::moveOn(nanoseconds passed)
{
    m_phaseTime += passed;
    if (m_phase == Phase::leaving)
        return fadeOut();
    QRegion changed;
    if (m_fall) {
        m_fall->advance(passed);
        changed = m_fall->takeChanged();
    }
    if (m_phase == Phase::scene && m_fall->isOver())
        riseCard();
    if (m_phase == Phase::cardRises) {
        changed |= setCardProgress(shareOf(m_phaseTime, kRise));
        if (m_phaseTime >= kRise)
            m_phase = Phase::card;
    }
    return changed;
}

void OnboardingOverlay::skip()
{
    // Those in the air come to rest beneath the card.
    m_fall->endSupply();
    m_phase = Phase::card;
    setAccessibleDescription({});
    setCardProgress(1);
    takeFocus();
    update();
}

void OnboardingOverlay::riseCard()
{
    const bool isAnimated = !prefersReducedMotion(this);
    if (m_fall)
        m_fall->endSupply();
    m_phase = isAnimated ? Phase::cardRises : Phase::card;
    setAccessibleDescription({});
    m_phaseTime = nanoseconds(0);
    setCardProgress(isAnimated ? 0 : 1);
    m_card->show();
    takeFocus();
    if (isAnimated)
        startClock();
}

QRect OnboardingOverlay::setCardProgress(double progress)
{
    const QRect before = m_card->surfaceRect();
    if (m_cardProgress == 0 && progress > 0) {
        QAccessibleEvent shown(m_card, QAccessible::DialogStart);
        QAccessible::updateAccessibility(&shown);
    }
    m_cardProgress = easedOut(progress);
    auto *effect = qobject_cast<QGraphicsOpacityEffect *>(m_card->graphicsEffect());
    if (progress >= 1)
        m_card->setGraphicsEffect(nullptr);
    else if (!effect)
        m_card->setGraphicsEffect(effect = new QGraphicsOpacityEffect);
    if (effect && progress < 1)
        effect->setOpacity(m_cardProgress);
    m_card->setVisible(progress > 0 || m_phase != Phase::scene);
    placeCard();
    return before | m_card->surfaceRect();
}

void OnboardingOverlay::placeCard()
{
    const QSize margins(2 * kWindowMargin, 2 * kWindowMargin);
    m_card->fitInto((size() - margins).expandedTo({0, 0}));
    const int lowest = height() - m_card->height() - kWindowMargin;
    const int top = std::clamp(int(height() * kCentreFromTop) - m_card->height() / 2, kWindowMargin,
                               std::max(kWindowMargin, lowest));
    const int below = int(kRiseHeight * (1 - m_cardProgress));
    m_card->move((width() - m_card->width()) / 2, top + below);
}

bool OnboardingOverlay::event(QEvent *event)
{
    // No shortcut of the window acts meanwhile.
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    // Tab would only move the focus.
    if (event->type() == QEvent::KeyPress && m_phase == Phase::scene) {
        keyPressEvent(static_cast<QKeyEvent *>(event));
        return true;
    }
    return QWidget::event(event);
}

bool OnboardingOverlay::eventFilter(QObject *watched, QEvent *event)
{
    const bool isMoved = event->type() == QEvent::Resize || event->type() == QEvent::Move;
    if (watched == m_mainWindow && isMoved)
        coverMainWindow();
    // What came later must not lie over it.
    if (watched == m_mainWindow && event->type() == QEvent::ChildAdded
        && m_placement == Placement::inside)
        QMetaObject::invokeMethod(this, &QWidget::raise, Qt::QueuedConnection);
    return QWidget::eventFilter(watched, event);
}

void OnboardingOverlay::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    // A key that is held goes on repeating after it has skipped the scene, or started the program.
    if (event->isAutoRepeat() || isModifier(event->key()) || m_phase == Phase::leaving)
        return;
    if (m_phase == Phase::scene)
        return skip();
    const bool isChord = event->modifiers() & ~Qt::KeypadModifier;
    const bool presses = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter
        || event->key() == Qt::Key_Space;
    if (presses && !isChord)
        m_button->click();
}

void OnboardingOverlay::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    if (m_phase == Phase::scene)
        skip();
}

bool OnboardingOverlay::focusNextPrevChild(bool)
{
    if (m_phase != Phase::scene)
        m_button->setFocus(Qt::TabFocusReason);
    return true;
}

void OnboardingOverlay::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    if (!m_lastSeen.isNull()) {
        painter.setOpacity(1 - shareOf(m_phaseTime, kFade));
        painter.drawPixmap(0, 0, m_lastSeen);
        return;
    }
    const bool isDark = isDarkDesktop();
    painter.fillRect(event->rect(), welcomeGround(isDark));
    if (m_fall)
        m_fall->paint(painter, event->region(), isDark);
    if (m_cardProgress == 0 || !m_card->surfaceRect().intersects(event->rect()))
        return;
    painter.setOpacity(m_cardProgress);
    m_card->paintSurface(painter);
}

void OnboardingOverlay::resizeEvent(QResizeEvent *)
{
    placeCard();
    if (!m_fall || hasEnded())
        return;
    m_fall->resize(size());
    if (isVisible() && !m_fall->isAtRest())
        startClock();
}

void OnboardingOverlay::closeEvent(QCloseEvent *event)
{
    event->accept();
    deleteLater();
    end(End::absent);
}

void OnboardingOverlay::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange && m_card)
        placeCard();
    if (event->type() == QEvent::PaletteChange)
        update();
}

void OnboardingOverlay::end(End end)
{
    if (hasEnded())
        return;
    const auto ended = std::exchange(m_ended, nullptr);
    if (m_fall)
        m_fall->freeze();
    if (end == End::continued)
        leave();
    const QPointer<QWidget> mainWindow = m_mainWindow;
    const QPointer<QWidget> focus = m_focusBefore;
    ended(end);
    if (mainWindow)
        mainWindow->activateWindow();
    if (focus)
        focus->setFocus(Qt::OtherFocusReason);
}

void OnboardingOverlay::leave()
{
    m_phase = Phase::leaving;
    m_phaseTime = nanoseconds(0);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    if (prefersReducedMotion(this)) {
        hide();
        deleteLater();
        return;
    }
    if (m_placement == Placement::inside) {
        m_lastSeen = grab();
        setAttribute(Qt::WA_OpaquePaintEvent, false);
        m_card->hide();
    }
    startClock();
}

QRegion OnboardingOverlay::fadeOut()
{
    if (m_phaseTime >= kFade) {
        m_clock->stop();
        hide();
        deleteLater();
        return {};
    }
    if (m_placement == Placement::inside)
        return rect();
    setWindowOpacity(1 - shareOf(m_phaseTime, kFade));
    return {};
}

} // namespace lorva
