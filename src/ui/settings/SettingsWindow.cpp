// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/settings/SettingsWindow.h"

#include "commands/LorvaSettingsViewModel.h"
#include "ui/settings/FontsSettingsTab.h"
#include "ui/sheets/WindowPresenter.h"
#include "ui/style/Palette.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace lorva {

namespace {

constexpr int kWidth = 560;
constexpr int kNarrowest = 440;
constexpr int kHeight = 540;

/// Where a window of this size covers the middle of the other, its title bar on the screen.
QPoint overCentreOf(const QWidget &other, QSize size)
{
    const QRect area = other.screen()->availableGeometry();
    const QRect inner = other.geometry();
    const QRect outer = other.frameGeometry();
    const QMargins frame(inner.left() - outer.left(), inner.top() - outer.top(),
                         outer.right() - inner.right(), outer.bottom() - inner.bottom());
    QRect place(QPoint(), size.grownBy(frame));
    place.moveCenter(outer.center());
    place.moveRight(std::min(place.right(), area.right()));
    place.moveBottom(std::min(place.bottom(), area.bottom()));
    return {std::max(place.left(), area.left()), std::max(place.top(), area.top())};
}

} // namespace

SettingsWindow::SettingsWindow(LorvaSettingsViewModel &viewModel, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_viewModel(viewModel)
    , m_fontsTab(new FontsSettingsTab(viewModel, this))
{
    setObjectName(QStringLiteral("SettingsWindow"));
    setWindowTitle(tr("Settings"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_fontsTab);
    setMinimumWidth(kNarrowest);
    resize(kWidth, std::max(kHeight, layout->heightForWidth(kWidth)));
    m_fontsTab->onFoldersWanted = [this](const FolderQuestion &question, auto done) {
        if (!m_presenter)
            m_presenter = std::make_unique<WindowPresenter>(*this);
        m_presenter->askFolders(question, std::move(done));
    };
    // The toolkit knows the desktops' own closing key of some desktops only.
    auto *closing = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_W), this);
    connect(closing, &QShortcut::activated, this, &QWidget::close);
}

SettingsWindow::~SettingsWindow() = default;

void SettingsWindow::present()
{
    // Afterwards it stays where the user leaves it.
    if (parentWidget() && !testAttribute(Qt::WA_Moved))
        move(overCentreOf(*parentWidget()->window(), size()));
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void SettingsWindow::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), neutralColors(isDarkDesktop()).ground);
}

void SettingsWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void SettingsWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_viewModel.refresh();
    if (event->type() == QEvent::PaletteChange)
        update();
}

} // namespace lorva
