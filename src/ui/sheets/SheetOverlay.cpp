// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/SheetOverlay.h"

#include "ui/sheets/SheetText.h"
#include "ui/style/Palette.h"
#include "ui/style/Popover.h"
#include "ui/style/ReducedMotion.h"
#include "ui/style/Style.h"
#include "ui/style/TextButton.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>
#include <QStyle>
#include <QVariantAnimation>

#include <algorithm>

namespace lorva {

namespace {

constexpr int kPadding = spacing::k28;
constexpr int kWindowMargin = spacing::k24;
constexpr double kRadius = 14;
constexpr int kFadeMilliseconds = 150;
constexpr double kDimOnLight = 0.18;
constexpr double kDimOnDark = 0.4;
constexpr double kBodyAlpha = 0.72;
/// A title that is longer is somebody's damaged name.
constexpr int kTitleLines = 3;
/// Its centre lies above the window's, where the eye rests.
constexpr double kCentreFromTop = 0.38;

/// Its role tells assistive technology to read it out at once.
class Panel final : public QWidget
{
public:
    using QWidget::QWidget;
};

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *panel = dynamic_cast<Panel *>(object);
    return panel ? new QAccessibleWidget(panel, QAccessible::AlertMessage) : nullptr;
}

void installAccessibleFactory()
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(makeAccessible);
        return true;
    }();
    Q_UNUSED(isInstalled)
}

TextButton::Kind kindOf(const Alert::Button &button, bool isFirst)
{
    if (button.role == Alert::Role::destructive)
        return TextButton::Kind::destructive;
    return isFirst ? TextButton::Kind::prominent : TextButton::Kind::plain;
}

int cancelIndex(const std::vector<Alert::Button> &buttons)
{
    const auto found = std::ranges::find(buttons, Alert::Role::cancel, &Alert::Button::role);
    return int(found == buttons.end() ? buttons.size() - 1 : size_t(found - buttons.begin()));
}

/// The first that loses nothing; Return must not delete.
int defaultIndex(const std::vector<Alert::Button> &buttons)
{
    const auto found = std::ranges::find_if(
        buttons, [](const auto &button) { return button.role != Alert::Role::destructive; });
    return int(found == buttons.end() ? 0 : found - buttons.begin());
}

} // namespace

SheetOverlay::SheetOverlay(QWidget &window, const Alert &alert, std::function<void(int)> answered)
    : QWidget(&window)
    , m_answered(std::move(answered))
    , m_panel(new Panel(this))
    , m_bodyArea(new QScrollArea(m_panel))
{
    Q_ASSERT(!alert.buttons.empty());
    installAccessibleFactory();
    setObjectName(QStringLiteral("AlertSheet"));
    setFocusPolicy(Qt::StrongFocus);
    // What is dragged over the window ends here.
    setAcceptDrops(true);
    addTexts(alert);
    addButtons(alert);
    colorTexts();
    window.installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { keepFocus(now); });
}

SheetOverlay::~SheetOverlay() = default;

void SheetOverlay::addTexts(const Alert &alert)
{
    m_panel->setObjectName(QStringLiteral("AlertSheet.Panel"));
    m_panel->setAccessibleName(alert.title);
    m_panel->setAccessibleDescription(alert.body);
    auto *title = new SheetText(
        alert.title, interfaceFont(InterfaceSize::heading, InterfaceWeight::semibold), m_panel);
    title->setMaximumLineCount(kTitleLines);
    title->setObjectName(QStringLiteral("AlertSheet.Title"));
    m_title = title;
    m_body = new SheetText(alert.body, interfaceFont(InterfaceSize::body), nullptr);
    m_body->setObjectName(QStringLiteral("AlertSheet.Body"));
    m_bodyArea->setWidget(m_body);
    m_bodyArea->setFrameShape(QFrame::NoFrame);
    m_bodyArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_bodyArea->setFocusPolicy(Qt::NoFocus);
    m_bodyArea->viewport()->setAutoFillBackground(false);
    m_body->setAutoFillBackground(false);
}

void SheetOverlay::addButtons(const Alert &alert)
{
    m_cancelIndex = cancelIndex(alert.buttons);
    for (size_t i = 0; i < alert.buttons.size(); ++i) {
        auto *button =
            new TextButton(alert.buttons[i].text, kindOf(alert.buttons[i], i == 0), m_panel);
        button->setObjectName(QStringLiteral("AlertSheet.Button%1").arg(i));
        button->setAutoDefault(true);
        connect(button, &QPushButton::clicked, this, [this, i] { answer(int(i)); });
        m_buttons.push_back(button);
    }
    m_default = m_buttons[size_t(defaultIndex(alert.buttons))];
}

void SheetOverlay::present()
{
    // What they hang from has the focus again then, and gets it back from here.
    for (Popover *popover : window()->findChildren<Popover *>(Qt::FindDirectChildrenOnly))
        popover->close();
    m_focusBefore = window()->focusWidget();
    layOut();
    const bool isAnimated = !prefersReducedMotion(this);
    if (isAnimated)
        setProgress(0);
    show();
    raise();
    takeFocus();
    QAccessibleEvent alertEvent(m_panel, QAccessible::Alert);
    QAccessible::updateAccessibility(&alertEvent);
    if (!isAnimated)
        return;
    auto *fade = new QVariantAnimation(this);
    fade->setDuration(kFadeMilliseconds);
    fade->setStartValue(0.0);
    fade->setEndValue(1.0);
    fade->setEasingCurve(QEasingCurve::OutCubic);
    connect(fade, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { setProgress(value.toDouble()); });
    fade->start(QAbstractAnimation::DeleteWhenStopped);
}

void SheetOverlay::setProgress(double progress)
{
    m_progress = progress;
    // The panel comes with the last third, so that its texts never lie on a half-dimmed ground.
    const bool wasVisible = m_panel->isVisible();
    m_panel->setVisible(progress > 2.0 / 3.0);
    if (!wasVisible && m_panel->isVisible() && hasFocus())
        takeFocus();
    update();
}

void SheetOverlay::takeFocus()
{
    QWidget *target = m_panel->isVisible() ? static_cast<QWidget *>(m_default) : this;
    target->setFocus(Qt::OtherFocusReason);
}

void SheetOverlay::layOut()
{
    setGeometry(window()->rect());
    const int panelWidth = std::min(kPanelWidth, width() - 2 * kWindowMargin);
    const int textWidth = panelWidth - 2 * kPadding;
    const int titleHeight = m_title->heightForWidth(textWidth);
    const int buttonHeight = m_buttons.front()->sizeHint().height();
    const int bodyTop = kPadding + titleHeight + spacing::k8;
    const int rest = spacing::k24 + buttonHeight + kPadding;
    const int room = height() - 2 * kWindowMargin - bodyTop - rest;
    const int wholeBody = m_body->text().isEmpty() ? 0 : m_body->heightForWidth(textWidth);
    const int bodyHeight = std::clamp(wholeBody, 0, std::max(room, 0));
    const int panelHeight = bodyTop + bodyHeight + rest;

    const int top = std::clamp(int(height() * kCentreFromTop) - panelHeight / 2, kWindowMargin,
                               std::max(kWindowMargin, height() - panelHeight - kWindowMargin));
    m_panel->setGeometry((width() - panelWidth) / 2, top, panelWidth, panelHeight);
    m_title->setGeometry(kPadding, kPadding, textWidth, titleHeight);
    m_bodyArea->setVerticalScrollBarPolicy(wholeBody > bodyHeight ? Qt::ScrollBarAsNeeded
                                                                  : Qt::ScrollBarAlwaysOff);
    m_bodyArea->setGeometry(kPadding, bodyTop, textWidth, bodyHeight);
    m_body->resize(textWidth, wholeBody);
    placeButtons({kPadding, 0, textWidth, panelHeight}, panelHeight - kPadding);
    update();
}

int SheetOverlay::placeButtons(const QRect &column, int bottom)
{
    // The most important one stands at the end of the line.
    int right = column.right() + 1;
    for (QPushButton *button : m_buttons) {
        QSize size = button->sizeHint();
        size.setWidth(std::min(size.width(), column.width()));
        const QRect rect(QPoint(right - size.width(), bottom - size.height()), size);
        button->setGeometry(QStyle::visualRect(layoutDirection(), m_panel->rect(), rect));
        right = rect.left() - spacing::k8;
    }
    return right;
}

void SheetOverlay::colorTexts()
{
    const NeutralColors colors = neutralColors(isDarkDesktop());
    QPalette title = m_title->palette();
    title.setColor(QPalette::WindowText, colors.text);
    m_title->setPalette(title);
    QPalette body = m_body->palette();
    body.setColor(QPalette::WindowText, blended(withAlpha(colors.text, kBodyAlpha), colors.ground));
    m_body->setPalette(body);
}

bool SheetOverlay::event(QEvent *event)
{
    // No shortcut of the window acts while it waits for an answer.
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

bool SheetOverlay::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        layOut();
    // What came later must not lie over it.
    if (watched == parent() && event->type() == QEvent::ChildAdded)
        QMetaObject::invokeMethod(this, &QWidget::raise, Qt::QueuedConnection);
    return QWidget::eventFilter(watched, event);
}

void SheetOverlay::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        answer(m_cancelIndex);
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        m_default->click();
    event->accept();
}

bool SheetOverlay::focusNextPrevChild(bool next)
{
    const auto focused = std::ranges::find(m_buttons, focusWidget());
    const int count = int(m_buttons.size());
    const int index = focused == m_buttons.end() ? 0 : int(focused - m_buttons.begin());
    // From the default on; the first button stands last in the line.
    const int following = (index + (next ? 1 : count - 1)) % count;
    m_buttons[size_t(following)]->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void SheetOverlay::keepFocus(QWidget *now)
{
    const bool isElsewhere = now && now->window() == window() && now != this && !isAncestorOf(now);
    if (isElsewhere && !m_isAnswered)
        takeFocus();
}

void SheetOverlay::answer(int button)
{
    if (std::exchange(m_isAnswered, true))
        return;
    const std::function<void(int)> answered = m_answered;
    const QPointer<QWidget> focusBefore = m_focusBefore;
    hide();
    if (focusBefore)
        focusBefore->setFocus(Qt::OtherFocusReason);
    deleteLater();
    answered(button);
}

void SheetOverlay::paintEvent(QPaintEvent *)
{
    const bool isDark = isDarkDesktop();
    const NeutralColors colors = neutralColors(isDark);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(),
                     withAlpha(Qt::black, (isDark ? kDimOnDark : kDimOnLight) * m_progress));
    painter.setOpacity(m_progress);
    m_shadow.draw(painter, SoftShadow::outerRect(m_panel->geometry()), kRadius);
    const QRectF panel = m_panel->geometry();
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.ground);
    painter.drawRoundedRect(panel, kRadius, kRadius);
    if (!isDark)
        return;
    // A shadow is not seen on a dark ground.
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(withAlpha(colors.text, 0.13), 1));
    painter.drawRoundedRect(panel.adjusted(0.5, 0.5, -0.5, -0.5), kRadius - 0.5, kRadius - 0.5);
}

void SheetOverlay::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        layOut();
    if (event->type() == QEvent::PaletteChange) {
        colorTexts();
        update();
    }
}

} // namespace lorva
