// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Which panes are shown, where, and who of them has the keyboard.

#include "ui/browser/FontBrowserViewController.h"
#include "ui/detail/DetailTopBar.h"
#include "ui/detail/FontDetailViewController.h"
#include "ui/discover/DiscoverViewController.h"
#include "ui/display/LogoImage.h"
#include "ui/display/LorvaWindowBackgroundView.h"
#include "ui/LorvaRootSplitViewController.h"
#include "ui/quiz/FontQuizViewController.h"
#include "ui/sheets/AlertSheet.h"
#include "ui/sidebar/ProjectSidebarViewController.h"
#include "ui/sidebar/SidebarFooter.h"

#include <QApplication>
#include <QResizeEvent>
#include <QStyle>

#include <utility>

namespace lorva {

namespace {

constexpr int kSidebarWidth = ProjectSidebarViewController::kWidth;

} // namespace

/// What is left keeps what it shows; nobody sees it.
void LorvaRootSplitViewController::showPane(Pane pane)
{
    const Pane before = std::exchange(m_pane, pane);
    if (before == pane)
        return;
    const bool hadKeyboard = hasKeyboard(before);
    updateVisibility();
    // Whoever walks through the sidebar stays there.
    if (hadKeyboard || before == Pane::detail || pane == Pane::detail)
        focusPane();
    if (before == Pane::detail && pane == Pane::browser)
        m_browser->revealSelection();
}

QWidget *LorvaRootSplitViewController::widgetOf(Pane pane) const
{
    switch (pane) {
    case Pane::detail:
        return m_detail;
    case Pane::discover:
        return m_discover;
    case Pane::browser:
        break;
    }
    return m_browser;
}

bool LorvaRootSplitViewController::hasKeyboard(Pane pane) const
{
    const QWidget *focused = QApplication::focusWidget();
    return focused && widgetOf(pane)->isAncestorOf(focused);
}

void LorvaRootSplitViewController::focusPane()
{
    switch (m_pane) {
    case Pane::detail:
        m_detail->focusPage();
        break;
    case Pane::discover:
        m_discover->focusPage();
        break;
    case Pane::browser:
        m_browser->focusCards();
        break;
    }
}

/// Shows first and hides then, so that the keyboard is not handed around in between.
void LorvaRootSplitViewController::updateVisibility()
{
    const bool isCovered = m_quiz != nullptr;
    m_sidebar->setVisible(!isCovered);
    m_footer->setVisible(!isCovered);
    if (!isCovered)
        widgetOf(m_pane)->show();
    for (const Pane pane : {Pane::browser, Pane::detail, Pane::discover})
        if (QWidget *widget = widgetOf(pane); widget && (isCovered || pane != m_pane))
            widget->hide();
    if (m_inspector && (isCovered || m_pane != Pane::detail))
        m_inspector->hide();
}

void LorvaRootSplitViewController::handleOpenFontQuizNotification()
{
    openQuiz();
}

void LorvaRootSplitViewController::openQuiz()
{
    if (m_quiz || hasAlertSheet(*window()))
        return;
    m_focusBeforeQuiz = QApplication::focusWidget();
    m_quiz =
        new FontQuizViewController(m_model, makeFontResolver(m_model.fontLibraryService()), this);
    m_quiz->onClose = [this] { closeQuiz(); };
    m_quiz->setGeometry(rect());
    m_quiz->show();
    m_quiz->raise();
    m_quiz->setFocus();
    updateVisibility();
    render();
}

/// It may be its own call that ends here.
void LorvaRootSplitViewController::closeQuiz()
{
    FontQuizViewController *quiz = std::exchange(m_quiz, nullptr);
    if (!quiz)
        return;
    quiz->onClose = nullptr;
    updateVisibility();
    render();
    if (m_focusBeforeQuiz && m_focusBeforeQuiz->isVisible())
        m_focusBeforeQuiz->setFocus();
    else
        focusPane();
    quiz->hide();
    quiz->deleteLater();
}

bool LorvaRootSplitViewController::isPaneSettled() const
{
    switch (m_pane) {
    case Pane::detail:
        return m_detail->isSettled() && m_inspector->isSettled();
    case Pane::discover:
        return m_discover->isSettled();
    case Pane::browser:
        break;
    }
    return m_browser->isSettled();
}

bool LorvaRootSplitViewController::isSettled() const
{
    if (m_quiz)
        return m_quiz->isSettled();
    return isPaneSettled() && !m_logo->isWaiting() && !m_background->isWaiting();
}

void LorvaRootSplitViewController::layOut()
{
    const auto place = [this](QWidget *widget, const QRect &logical) {
        widget->setGeometry(QStyle::visualRect(layoutDirection(), rect(), logical));
    };
    const int footerHeight = SidebarFooter::kHeight;
    const QRect pane(kSidebarWidth, 0, std::max(width() - kSidebarWidth, 0), height());
    place(m_sidebar, {0, 0, kSidebarWidth, std::max(height() - footerHeight, 0)});
    place(m_footer, {0, height() - footerHeight, kSidebarWidth, footerHeight});
    place(m_background, pane);
    place(m_browser, pane);
    if (m_discover)
        place(m_discover, pane);
    if (m_quiz)
        m_quiz->setGeometry(rect());
    layOutPanes(pane);
}

/// In a narrow window the inspector lies over the page, which keeps its width.
void LorvaRootSplitViewController::layOutPanes(const QRect &pane)
{
    if (!m_detail)
        return;
    const bool isBeside = width() >= kInspectorWidth && !m_inspector->isHidden();
    const int inspectorWidth = std::min(FontInspectorViewController::kWidth, pane.width());
    const int top = isBeside ? 0 : DetailTopBar::kHeight;
    const auto place = [this](QWidget *widget, const QRect &logical) {
        widget->setGeometry(QStyle::visualRect(layoutDirection(), rect(), logical));
    };
    place(m_detail, pane.adjusted(0, 0, isBeside ? -inspectorWidth : 0, 0));
    place(
        m_inspector,
        {pane.right() + 1 - inspectorWidth, top, inspectorWidth, std::max(pane.height() - top, 0)});
    m_inspector->raise();
}

void LorvaRootSplitViewController::resizeEvent(QResizeEvent *event)
{
    layOut();
    const bool isNarrow = width() < kInspectorWidth;
    if (isDetailOpen() && isNarrow != (event->oldSize().width() < kInspectorWidth))
        scheduleRender();
}

void LorvaRootSplitViewController::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        layOut();
    QWidget::changeEvent(event);
}

} // namespace lorva
