// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/Sheet.h"

#include "ui/sheets/SheetFooter.h"
#include "ui/sheets/SheetText.h"
#include "ui/style/Palette.h"
#include "ui/style/Popover.h"
#include "ui/style/ReducedMotion.h"
#include "ui/style/Style.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QVariantAnimation>

#include <algorithm>

namespace lorva {

namespace {

constexpr int kWindowMargin = spacing::k24;
constexpr int kFadeMilliseconds = 150;
constexpr double kDimOnLight = 0.18;
constexpr double kDimOnDark = 0.4;
constexpr double kBodyAlpha = 0.72;
constexpr double kNoteAlpha = 0.6;
/// A heading that is longer is somebody's damaged name.
constexpr int kHeadingLines = 3;
/// The panel's centre lies above the window's, where the eye rests.
constexpr double kCentreFromTop = 0.38;
/// The panel comes with the last third of the fade, so that its texts never lie on a half-dimmed
/// ground.
constexpr double kPanelComes = 2.0 / 3.0;

} // namespace

Sheet::Sheet(QWidget &window, const QString &name, QAccessible::Role role)
    : QWidget(&window)
    , m_panel(new SheetPanel(role, this))
{
    setObjectName(name);
    m_panel->setObjectName(partName(QLatin1String("Panel")));
    setFocusPolicy(Qt::StrongFocus);
    // What is dragged over the window ends here.
    setAcceptDrops(true);
    window.installEventFilter(this);
}

Sheet::~Sheet()
{
    // Parts that go lose the focus while we are half gone already.
    qApp->disconnect(this);
}

QString Sheet::partName(QLatin1String part) const
{
    return objectName() + u'.' + part;
}

void Sheet::addHeading(const QString &text)
{
    m_panel->setAccessibleName(text);
    SheetText *heading = m_panel->addText(
        text, interfaceFont(InterfaceSize::heading, InterfaceWeight::semibold), 1, 0);
    heading->setMaximumLineCount(kHeadingLines);
    heading->setObjectName(partName(QLatin1String("Title")));
}

SheetText *Sheet::addBody(const QString &text)
{
    if (text.isEmpty())
        return nullptr;
    SheetText *body =
        m_panel->addText(text, interfaceFont(InterfaceSize::body), kBodyAlpha, spacing::k8);
    body->setObjectName(partName(QLatin1String("Body")));
    return body;
}

SheetText *Sheet::addNote(const QString &text)
{
    if (text.isEmpty())
        return nullptr;
    SheetText *note =
        m_panel->addText(text, interfaceFont(InterfaceSize::label), kNoteAlpha, spacing::k8);
    note->setObjectName(partName(QLatin1String("Note")));
    return note;
}

void Sheet::addButton(QPushButton *button)
{
    m_panel->footer().addButton(button);
    addStop(button);
}

void Sheet::present(Qt::FocusReason reason)
{
    closePopups();
    m_focusBefore = window()->focusWidget();
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { keepFocus(now); });
    m_firstReason = reason;
    layOut();
    const bool isAnimated = !prefersReducedMotion(this);
    if (isAnimated)
        setProgress(0);
    show();
    raise();
    takeFocus();
    QAccessibleEvent shown(m_panel,
                           m_panel->role() == QAccessible::AlertMessage ? QAccessible::Alert
                                                                        : QAccessible::DialogStart);
    QAccessible::updateAccessibility(&shown);
    if (isAnimated)
        fadeIn();
}

/// What they hang from has the focus again then, and gets it back from here.
void Sheet::closePopups()
{
    const auto belongsHere = [this](const QWidget *popup) {
        while (popup && popup != window())
            popup = popup->parentWidget();
        return popup != nullptr;
    };
    // A menu that stayed open would still act.
    QWidget *last = nullptr;
    for (QWidget *popup = QApplication::activePopupWidget();
         popup && popup != last && belongsHere(popup); popup = QApplication::activePopupWidget()) {
        popup->close();
        last = popup;
    }
    for (Popover *popover : window()->findChildren<Popover *>(Qt::FindDirectChildrenOnly))
        popover->close();
}

void Sheet::fadeIn()
{
    auto *fade = new QVariantAnimation(this);
    fade->setDuration(kFadeMilliseconds);
    fade->setStartValue(0.0);
    fade->setEndValue(1.0);
    fade->setEasingCurve(QEasingCurve::OutCubic);
    connect(fade, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { setProgress(value.toDouble()); });
    fade->start(QAbstractAnimation::DeleteWhenStopped);
}

void Sheet::setProgress(double progress)
{
    m_progress = progress;
    const bool comes = m_panel->isHidden() && progress > kPanelComes;
    m_panel->setVisible(progress > kPanelComes);
    if (comes && hasFocus())
        takeFocus();
    update();
}

void Sheet::takeFocus()
{
    QWidget *target = m_firstFocus ? m_firstFocus : m_default;
    if (!target || m_panel->isHidden() || !target->isEnabled())
        target = this;
    target->setFocus(m_firstReason);
}

void Sheet::layOut()
{
    setGeometry(window()->rect());
    const QSize margins(2 * kWindowMargin, 2 * kWindowMargin);
    m_panel->fitInto((size() - margins).expandedTo({0, 0}));
    const int lowest = height() - m_panel->height() - kWindowMargin;
    const int top = std::clamp(int(height() * kCentreFromTop) - m_panel->height() / 2,
                               kWindowMargin, std::max(kWindowMargin, lowest));
    m_panel->move((width() - m_panel->width()) / 2, top);
    update();
}

bool Sheet::event(QEvent *event)
{
    // No shortcut of the window acts meanwhile.
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

bool Sheet::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize && !m_isDismissed)
        layOut();
    // What came later must not lie over it.
    if (watched == parent() && event->type() == QEvent::ChildAdded)
        QMetaObject::invokeMethod(this, &QWidget::raise, Qt::QueuedConnection);
    return QWidget::eventFilter(watched, event);
}

void Sheet::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        cancel();
    else if (isReturn && m_default && m_default->isEnabled())
        m_default->click();
    event->accept();
}

bool Sheet::focusNextPrevChild(bool next)
{
    std::vector<QWidget *> stops;
    std::ranges::copy_if(m_stops, std::back_inserter(stops),
                         [](const QWidget *stop) { return stop->isEnabled(); });
    if (stops.empty()) {
        setFocus(Qt::OtherFocusReason);
        return true;
    }
    const auto focused = std::ranges::find(stops, focusWidget());
    const size_t count = stops.size();
    const size_t before = next ? count - 1 : 0;
    const size_t index = focused == stops.end() ? before : size_t(focused - stops.begin());
    stops[(index + (next ? 1 : count - 1)) % count]->setFocus(next ? Qt::TabFocusReason
                                                                   : Qt::BacktabFocusReason);
    return true;
}

void Sheet::keepFocus(QWidget *now)
{
    const bool isElsewhere = now && now->window() == window() && now != this && !isAncestorOf(now);
    if (isElsewhere && !m_isDismissed)
        takeFocus();
    else if (now && m_panel->isAncestorOf(now))
        m_panel->reveal(*now);
}

void Sheet::dismiss()
{
    if (std::exchange(m_isDismissed, true))
        return;
    const QPointer<QWidget> focusBefore = m_focusBefore;
    hide();
    if (focusBefore)
        focusBefore->setFocus(Qt::OtherFocusReason);
    deleteLater();
}

void Sheet::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(
        rect(), withAlpha(Qt::black, (isDarkDesktop() ? kDimOnDark : kDimOnLight) * m_progress));
    painter.setOpacity(m_progress);
    m_panel->paintSurface(painter);
}

void Sheet::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        layOut();
    if (event->type() == QEvent::PaletteChange)
        update();
}

} // namespace lorva
