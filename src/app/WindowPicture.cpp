// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/WindowPicture.h"

#include "base/AtomicFile.h"
#include "commands/LorvaSettingsViewModel.h"
#include "model/LorvaAppModel.h"
#include "ui/LorvaRootSplitViewController.h"
#include "ui/onboarding/OnboardingOverlayController.h"
#include "ui/quiz/FontQuizViewController.h"
#include "ui/sheets/AlertSheet.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImage>
#include <QPixmap>

#include <algorithm>
#include <cstdio>
#include <limits>

namespace lorva {

namespace {

constexpr int kPlayedCards = 8;

} // namespace

WindowPicture::WindowPicture(const LaunchOptions &options, Scene scene)
    : m_options(options)
    , m_scene(std::move(scene))
{
}

bool WindowPicture::isReady()
{
    if (m_scene.model.isLoading())
        return false;
    // The result may not have been drawn yet.
    m_scene.root.render();
    if (!m_scene.root.isSettled() || playsCard())
        return false;
    if (!std::exchange(m_wasOpened, true))
        open();
    return isOpen() && m_scene.root.isSettled();
}

void WindowPicture::open()
{
    if (m_options.sheet)
        openSheet();
    if (m_options.welcome && m_scene.extras().welcome)
        m_scene.extras().welcome->settleForPicture(*m_options.welcome == LaunchWelcome::card);
}

/// Somebody has played for a while. What a picture sorts is kept nowhere. True: a card was played.
bool WindowPicture::playsCard()
{
    constexpr int kTiles[]{1, 2, 2, 3, 6, 1, 4, 2, 5, 3};
    FontQuizViewController *quiz = m_scene.root.quiz();
    const int wanted =
        m_options.quiz == LaunchQuiz::poster ? std::numeric_limits<int>::max() : kPlayedCards;
    if (!quiz || quiz->phase() != FontQuizViewController::Phase::playing || m_played >= wanted)
        return false;
    quiz->choose(kTiles[m_played++ % int(std::size(kTiles))]);
    return true;
}

void WindowPicture::openSheet()
{
    ActivationCommands &activation = m_scene.root.activation();
    const QStringList names(m_options.selectedFamily.value_or(QString()));
    switch (*m_options.sheet) {
    case LaunchSheet::activate:
        activation.activate(names);
        break;
    case LaunchSheet::deactivate:
        activation.deactivate(names);
        break;
    case LaunchSheet::history:
        activation.showHistory();
        break;
    case LaunchSheet::settings:
        m_scene.showSettings();
        break;
    }
}

bool WindowPicture::isOpen() const
{
    if (m_options.quiz && !m_scene.root.isQuizOpen())
        return false;
    if (!m_options.sheet)
        return true;
    return m_scene.extras().settings ? knowsFolders() : hasAlertSheet(*m_scene.root.window());
}

bool WindowPicture::knowsFolders() const
{
    const LorvaSettingsViewModel &settings = *m_scene.extras().settingsViewModel;
    return std::ranges::all_of(settings.folders(), [&](const WatchedFolder &folder) {
        return settings.look(folder.id).has_value();
    });
}

QWidget *WindowPicture::shown() const
{
    const Extras extras = m_scene.extras();
    if (extras.welcome && extras.welcome->overlay())
        return extras.welcome->overlay();
    return extras.settings ? extras.settings : m_scene.root.window();
}

void WindowPicture::take()
{
    writePictureAndEnd(*shown(), *m_options.screenshot);
}

void writePictureAndEnd(QWidget &shown, const FilePath &target)
{
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    const bool isEncoded = shown.grab().toImage().save(&buffer, "PNG");
    const Result<void> written = isEncoded
        ? writeFileAtomically(target, png)
        : failure(ErrorKind::ioFailure,
                  QCoreApplication::translate("WindowPicture", "the picture could not be encoded"));
    if (!written)
        std::fprintf(stderr, "lorva: %s\n", qPrintable(written.error().detail));
    QCoreApplication::exit(written ? 0 : 1);
}

} // namespace lorva
