// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/UserActivation.h"

#include "cli/ActivationSubjects.h"
#include "cli/Console.h"
#include "cli/Texts.h"
#include "platform/linux/DesktopTrash.h"
#include "platform/linux/LinkFolderRegistrar.h"
#include "platform/linux/XdgFolders.h"

#include <QEventLoop>

namespace lorva::cli {

namespace {

constexpr std::chrono::seconds kPatienceAtEnd(5);

void waitFor(const std::function<void(std::function<void()> done)> &start)
{
    QEventLoop loop;
    bool isDone = false;
    start([&] {
        isDone = true;
        loop.quit();
    });
    if (!isDone)
        loop.exec();
}

} // namespace

UserActivation::UserActivation(Purpose purpose)
    : m_folders(xdgFolders())
    , m_watchedFolders(m_user.preferences())
    , m_service(std::make_unique<FontInstallationService>(
          std::make_unique<FontInstallationStore>(m_user.preferences()),
          FontInstallationService::Dependencies{
              m_folders, std::make_shared<LinkFolderRegistrar>(m_folders.registeredLinks()),
              std::make_shared<DesktopTrash>(), purpose == Purpose::changes}))
{
}

UserActivation::~UserActivation() = default;

Result<void> UserActivation::checkShown(std::initializer_list<OrganizationPart> shown)
{
    if (const Result<void> checked = m_user.checkRead(); !checked)
        return checked;
    for (const UnreadablePart &each : unreadableParts(m_user.preferences(), shown))
        return failure(ErrorKind::malformed,
                       Texts::tr("%1; lorvactl doctor tells more").arg(textOf(each)));
    return {};
}

Result<void> UserActivation::checkChanged(std::initializer_list<OrganizationPart> changed)
{
    if (const Result<void> checked = m_user.checkRead(); !checked)
        return checked;
    for (const UnreadablePart &each : unreadableParts(m_user.preferences(), changed))
        warn(Texts::tr("%1 and counts as absent").arg(textOf(each)));
    return {};
}

std::vector<FilePath> UserActivation::foldersToScan(const std::vector<FilePath> &more) const
{
    std::vector<FilePath> folders;
    for (const WatchedFolder &each : m_watchedFolders.load()) {
        if (FilePath folder = folderURL(each); !folder.isEmpty())
            folders.push_back(std::move(folder));
    }
    folders.insert(folders.end(), more.begin(), more.end());
    return folders;
}

void UserActivation::reconcile()
{
    waitFor([&](std::function<void()> done) {
        m_service->reconcile(makeFamilyList(), std::move(done));
    });
}

InstallationOutcome UserActivation::run(
    const std::function<void(FontInstallationService::Done)> &start)
{
    InstallationOutcome ended;
    waitFor([&](const std::function<void()> &done) {
        start([&ended, done](InstallationOutcome outcome) {
            ended = std::move(outcome);
            done();
        });
    });
    return ended;
}

Result<void> UserActivation::finishWriting()
{
    if (m_user.preferences().writeLastChanges(kPatienceAtEnd))
        return {};
    return m_user.checkWritten();
}

UserActivation::Purpose purposeOf(const ActivationRequest &request)
{
    return request.isDryRun ? UserActivation::Purpose::looks : UserActivation::Purpose::changes;
}

} // namespace lorva::cli
