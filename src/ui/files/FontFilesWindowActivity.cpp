// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// What the window shows and does about what is active, the inspector, and the end of the window.

#include "ui/files/FontFilesWindow.h"

#include "base/RunThen.h"
#include "model/LorvaAppModel.h"
#include "ui/files/FontFilesFooter.h"
#include "ui/files/FontFilesPage.h"

#include <QCloseEvent>

#include <chrono>
#include <utility>

namespace lorva {

namespace {

constexpr std::chrono::seconds kClosePatience{5};

} // namespace

// --- What is active ---

void FontFilesWindow::lookAtActivations()
{
    const FontInstallationService *service = m_model.installationService();
    if (!service || !m_given)
        return;
    const auto look = [given = m_given, books = service->books()](const std::stop_token &) {
        return givenActivations(*given, *books);
    };
    m_look.cancel();
    m_look = runThen(m_pool, this, look, [this](GivenActivations known) {
        m_known = std::move(known);
        m_areActivationsKnown = true;
        applyActivations();
    });
}

void FontFilesWindow::applyActivations()
{
    FontFilesOffer offer = fontFilesOffer(m_state.families, shownFamily(), m_known);
    offer.hasFailures = m_activation.hasFailures() && !m_state.isEmpty();
    m_footer->apply(offer);
    m_page->showActivations(m_known.styles);
    applyInspector();
    layOut();
}

// --- The inspector ---

void FontFilesWindow::applyInspector()
{
    const FontFamilyRecord *family = shownFamily();
    if (!family) {
        m_inspector->showFace({}, std::nullopt);
        return;
    }
    const auto found = m_known.activationByFamily.constFind(family->familyName);
    m_inspector->showFace(m_page->face(),
                          found == m_known.activationByFamily.cend() ? std::nullopt
                                                                     : std::optional(*found));
}

bool FontFilesWindow::showsInspector() const
{
    return shownFamily() && (isNarrow() ? m_isInspectorOverPage : m_isInspectorWanted);
}

void FontFilesWindow::toggleInspector()
{
    bool &isShown = isNarrow() ? m_isInspectorOverPage : m_isInspectorWanted;
    isShown = !isShown;
    layOut();
}

void FontFilesWindow::inspectorFeaturesChanged(
    const std::optional<std::vector<FeaturePair>> &enabled)
{
    m_page->setFeatureSettings(enabled);
}

void FontFilesWindow::inspectorAxesChanged(const std::vector<VariationSetting> &values)
{
    m_page->setVariationAxes(values);
}

void FontFilesWindow::inspectorFileWanted(const FilePath &file)
{
    if (m_services.desktop)
        m_services.desktop->showFile(file);
}

void FontFilesWindow::inspectorLinkWanted(const QUrl &link)
{
    if (m_services.desktop)
        m_services.desktop->openLink(link);
}

// --- The end ---

bool FontFilesWindow::isSwitching() const
{
    return m_activation.isRunning() || (mustWait && mustWait());
}

/// The files that are being switched are finished and written down first. A disk that hangs is not
/// waited for.
bool FontFilesWindow::closesNow()
{
    if (m_isClosing || !isSwitching())
        return true;
    m_isClosing = true;
    setEnabled(false);
    m_closePatience.start(kClosePatience);
    return false;
}

void FontFilesWindow::closeWhenDone()
{
    if (m_isClosing && !isSwitching())
        close();
}

/// It is wanted again, or has closed.
void FontFilesWindow::stopClosing()
{
    m_closePatience.stop();
    if (std::exchange(m_isClosing, false))
        setEnabled(true);
}

void FontFilesWindow::closeEvent(QCloseEvent *event)
{
    if (!closesNow()) {
        event->ignore();
        return;
    }
    stopClosing();
    clear();
}

} // namespace lorva
