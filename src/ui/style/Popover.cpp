// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/Popover.h"

#include "ui/style/Palette.h"
#include "ui/style/ReducedMotion.h"
#include "ui/style/SoftShadow.h"
#include "ui/style/Style.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QGraphicsOpacityEffect>
#include <QKeyEvent>
#include <QPainter>
#include <QPropertyAnimation>
#include <QScrollArea>
#include <QScrollBar>

namespace lorva {

namespace {

constexpr double kRadius = 10;
constexpr int kWindowMargin = spacing::k8;
constexpr int kAnchorGap = 6;
constexpr int kFadeMs = 120;
constexpr double kLineAlpha = 0.14;

/// Where a panel of that size hangs from its anchor, all in the window's points.
QRect placeBeside(const QRect &anchor, QSize size, const QRect &room)
{
    size = size.boundedTo(room.size());
    const int below = anchor.bottom() + 1 + kAnchorGap;
    const int above = anchor.top() - kAnchorGap - size.height();
    const bool fitsBelow = below + size.height() <= room.bottom() + 1;
    const int y = fitsBelow || above < room.top() ? below : above;
    const int x = anchor.center().x() - size.width() / 2;
    const int lastX = room.right() + 1 - size.width();
    const int lastY = room.bottom() + 1 - size.height();
    return QRect(QPoint(std::clamp(x, room.left(), std::max(room.left(), lastX)),
                        std::clamp(y, room.top(), std::max(room.top(), lastY))),
                 size);
}

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    if (auto *popover = qobject_cast<Popover *>(object))
        return new QAccessibleWidget(popover, QAccessible::Dialog);
    return nullptr;
}

} // namespace

/// Lies beneath the panel and lets every press through.
class Popover::Shadow final : public QWidget
{
public:
    explicit Shadow(QWidget *parent)
        : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    void surround(const QRect &panel) { setGeometry(SoftShadow::outerRect(panel)); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        m_shadow.draw(painter, rect(), kRadius);
    }

private:
    SoftShadow m_shadow;
};

Popover *Popover::open(QWidget *content, QWidget *anchor, const QString &name)
{
    auto *popover = new Popover(content, anchor, {});
    // A press does not give our controls the focus; where the anchor has it, the keyboard opened
    // this.
    const bool isByKeyboard = popover->m_focusBefore == anchor;
    popover->open(name, isByKeyboard ? Qt::TabFocusReason : Qt::OtherFocusReason);
    return popover;
}

Popover *Popover::openAt(QWidget *content, QWidget *anchor, const QRect &part, const QString &name,
                         Qt::FocusReason reason)
{
    auto *popover = new Popover(content, anchor, part);
    popover->open(name, reason);
    return popover;
}

void Popover::open(const QString &name, Qt::FocusReason reason)
{
    [[maybe_unused]] static const bool once = (QAccessible::installFactory(&makeAccessible), true);
    setAccessibleName(name);
    place();
    m_shadow->show();
    show();
    raise();
    fadeIn();
    takeFocus(reason);
}

Popover::Popover(QWidget *content, QWidget *anchor, const QRect &part)
    : QWidget(anchor->window())
    , m_content(content)
    , m_anchor(anchor)
    , m_part(part)
    , m_focusBefore(anchor->window()->focusWidget())
    , m_shadow(new Shadow(anchor->window()))
    , m_scroll(new QScrollArea(this))
{
    setObjectName(QStringLiteral("Popover"));
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setWidgetResizable(true);
    m_scroll->setWidget(content);
    m_scroll->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    content->installEventFilter(this);
    anchor->window()->installEventFilter(this);
    qApp->installEventFilter(this);
    connect(anchor, &QObject::destroyed, this, &Popover::close);
    connect(content, &QObject::destroyed, this, &Popover::close);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { followFocus(now); });
}

Popover::~Popover()
{
    m_isClosed = true;
    // Our parts tell of their end, and of the focus that they lose, while we are half gone already.
    qApp->disconnect(this);
    for (QObject *part : {m_content.data(), m_anchor.data()}) {
        if (part)
            part->disconnect(this);
    }
    delete m_shadow;
}

void Popover::close()
{
    if (std::exchange(m_isClosed, true))
        return;
    qApp->removeEventFilter(this);
    giveFocusBack();
    hide();
    if (m_shadow)
        m_shadow->hide();
    deleteLater();
    Q_EMIT closed();
}

void Popover::setColors(const QColor &ink, const QColor &ground)
{
    m_colors = std::pair(ink, ground);
    update();
}

/// In the window's points.
QRect Popover::anchorRect() const
{
    const QRect rect = m_part.isNull() ? m_anchor->rect() : m_part;
    return {m_anchor->mapTo(parentWidget(), rect.topLeft()), rect.size()};
}

bool Popover::isAnchorInSight() const
{
    if (!m_anchor || !m_anchor->isVisible())
        return false;
    QRect seen = m_part.isNull() ? m_anchor->rect() : m_part;
    for (const QWidget *at = m_anchor; at != parentWidget(); at = at->parentWidget())
        seen = seen.intersected(at->rect()).translated(at->pos());
    return m_part.isNull() || seen.intersects(parentWidget()->rect());
}

void Popover::place()
{
    if (m_isClosed || !m_anchor || !m_content)
        return;
    const QRect room = parentWidget()->rect().adjusted(kWindowMargin, kWindowMargin, -kWindowMargin,
                                                       -kWindowMargin);
    QSize wanted = m_content->sizeHint().expandedTo(m_content->minimumSize());
    if (m_content->hasHeightForWidth())
        wanted.setHeight(m_content->heightForWidth(wanted.width()));
    if (wanted.height() > room.height())
        wanted.rwidth() += m_scroll->verticalScrollBar()->sizeHint().width();
    setGeometry(placeBeside(anchorRect(), wanted, room));
    m_scroll->setGeometry(rect());
    if (m_shadow)
        m_shadow->surround(geometry());
}

/// After the layouts have done their work.
void Popover::placeLater()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (isAnchorInSight())
                place();
            else
                close();
        },
        Qt::QueuedConnection);
}

void Popover::fadeIn()
{
    if (prefersReducedMotion(this))
        return;
    for (QWidget *part : {static_cast<QWidget *>(this), static_cast<QWidget *>(m_shadow)}) {
        auto *effect = new QGraphicsOpacityEffect(part);
        effect->setOpacity(0);
        part->setGraphicsEffect(effect);
        auto *fade = new QPropertyAnimation(effect, "opacity", effect);
        fade->setStartValue(0.0);
        fade->setEndValue(1.0);
        fade->setDuration(kFadeMs);
        connect(fade, &QAbstractAnimation::finished, part, [part] {
            // Not while the animation, which dies with it, is still at work.
            QMetaObject::invokeMethod(
                part, [part] { part->setGraphicsEffect(nullptr); }, Qt::QueuedConnection);
        });
        fade->start();
    }
}

void Popover::takeFocus(Qt::FocusReason reason)
{
    QWidget *first = neighbourInside(this, true);
    if (!first) {
        setFocusPolicy(Qt::StrongFocus);
        first = this;
    }
    first->setFocus(reason);
}

void Popover::giveFocusBack()
{
    QWidget *focus = parentWidget()->focusWidget();
    if (!focus || (focus != this && !isAncestorOf(focus)))
        return;
    focus->clearFocus();
    if (m_focusBefore && m_focusBefore->isVisible())
        m_focusBefore->setFocus(Qt::PopupFocusReason);
}

void Popover::followFocus(QWidget *now)
{
    const bool isElsewhere =
        now && now != this && !isAncestorOf(now) && now->window() == parentWidget();
    if (isElsewhere && !m_isClosed)
        close();
}

bool Popover::isOutside(const QObject *watched) const
{
    const auto *widget = qobject_cast<const QWidget *>(watched);
    return widget && widget->window() == parentWidget() && widget != this && !isAncestorOf(widget);
}

bool Popover::isOnAnchor(const QObject *watched) const
{
    const auto *widget = qobject_cast<const QWidget *>(watched);
    return m_anchor && widget && (widget == m_anchor || m_anchor->isAncestorOf(widget));
}

/// What is scrolled moves the anchor without telling it.
bool Popover::isAroundAnchor(const QObject *watched) const
{
    const auto *widget = qobject_cast<const QWidget *>(watched);
    return m_anchor && widget && widget != parentWidget()
        && (widget == m_anchor || widget->isAncestorOf(m_anchor));
}

bool Popover::eventFilter(QObject *watched, QEvent *event)
{
    if (m_isClosed)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (!isOutside(watched))
            break;
        close();
        // The anchor would only open it again.
        return m_part.isNull() && isOnAnchor(watched);
    case QEvent::Resize:
        if (watched == parentWidget())
            placeLater();
        break;
    case QEvent::LayoutRequest:
        if (watched == m_content)
            placeLater();
        break;
    case QEvent::Move:
    case QEvent::Hide:
        if (isAroundAnchor(watched))
            placeLater();
        break;
    default:
        break;
    }
    return false;
}

bool Popover::event(QEvent *event)
{
    // Escape is ours before any shortcut of the window.
    if (event->type() == QEvent::ShortcutOverride
        && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Cancel)) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void Popover::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel))
        close();
    // Nothing typed here is meant for what lies beneath.
    event->accept();
}

void Popover::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

QWidget *Popover::neighbourInside(QWidget *from, bool next) const
{
    QWidget *at = from;
    do {
        at = next ? at->nextInFocusChain() : at->previousInFocusChain();
        const bool takesTab = (at->focusPolicy() & Qt::TabFocus) != 0;
        if (takesTab && isAncestorOf(at) && at->isVisibleTo(this) && at->isEnabled())
            return at;
    } while (at && at != from);
    return nullptr;
}

bool Popover::focusNextPrevChild(bool next)
{
    QWidget *focus = parentWidget()->focusWidget();
    QWidget *from = focus && isAncestorOf(focus) ? focus : this;
    if (QWidget *neighbour = neighbourInside(from, next))
        neighbour->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void Popover::paintEvent(QPaintEvent *)
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    const QColor ink = m_colors ? m_colors->first : neutral.text;
    const QColor ground = m_colors ? m_colors->second : neutral.ground;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double hair = 1.0 / devicePixelRatioF();
    painter.setPen(QPen(blended(withAlpha(ink, kLineAlpha), ground), hair));
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(hair / 2, hair / 2, -hair / 2, -hair / 2),
                            kRadius, kRadius);
}

} // namespace lorva
