// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/UpdateCommands.h"

#include "commands/ScriptedPresenter.h"
#include "commands/UpdateAlerts.h"
#include "support/Waiting.h"

#include <gmock/gmock.h>

namespace lorva {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Answers when the case says so.
class ScriptedUpdater final : public UpdaterController
{
public:
    explicit ScriptedUpdater(Result<void> start)
        : m_start(std::move(start))
    {
    }
    Result<void> start() override { return m_start; }
    bool canCheckForUpdates() const override { return m_start.has_value() && !isLooking; }
    void checkForUpdates() override
    {
        isLooking = true;
        ++looks;
    }
    void cancelCheck() override { isLooking = false; }
    void answer(const UpdateOutcome &outcome)
    {
        isLooking = false;
        onOutcome(outcome);
    }

    bool isLooking = false;
    int looks = 0;

private:
    const Result<void> m_start;
};

class LinkRecorder final : public DesktopOpener
{
public:
    void openLink(const QUrl &link) override { links << link.toString(); }
    void showFile(const FilePath &) override { }
    QStringList links;
};

const Release kNew{
    QStringLiteral("9.1"), QDate(2026, 11, 2), QUrl(QStringLiteral("https://example.org/9.1")), {}};

struct UpdateCommandsTest : ::testing::Test
{
    explicit UpdateCommandsTest(Result<void> start = {})
        : updater(std::move(start))
    {
        QObject::connect(&commands, &UpdateCommands::changed, &commands, [this] { ++changes; });
    }

    ScriptedUpdater updater;
    test::ScriptedPresenter presenter;
    std::shared_ptr<LinkRecorder> desktop = std::make_shared<LinkRecorder>();
    UpdateCommands commands{updater, presenter, desktop, QStringLiteral("1.0")};
    int changes = 0;
};

TEST_F(UpdateCommandsTest, LooksOnceAtATimeAndOnlyAfterTheStart)
{
    commands.checkForUpdates();
    EXPECT_EQ(updater.looks, 0);
    EXPECT_FALSE(commands.canCheckForUpdates());
    commands.start();
    EXPECT_TRUE(commands.canCheckForUpdates());
    commands.checkForUpdates();
    EXPECT_FALSE(commands.canCheckForUpdates());
    EXPECT_EQ(changes, 2);
    commands.checkForUpdates();
    EXPECT_EQ(updater.looks, 1);
    EXPECT_TRUE(presenter.progress.front()->isShown);

    updater.answer({UpdateOutcome::Kind::upToDate, kNew});
    EXPECT_FALSE(presenter.progress.front()->isShown);
    EXPECT_TRUE(commands.canCheckForUpdates());
    EXPECT_EQ(changes, 3);
    EXPECT_THAT(
        presenter.alerts,
        ElementsAre(updateAlert({UpdateOutcome::Kind::upToDate, kNew}, QStringLiteral("1.0"))));
    presenter.press(0);
    EXPECT_THAT(desktop->links, IsEmpty()) << "there is no page to see";
}

TEST_F(UpdateCommandsTest, OpensThePageOfANewerReleaseIfTheUserWants)
{
    commands.start();
    for (const int button : {1, 0}) {
        commands.checkForUpdates();
        updater.answer({UpdateOutcome::Kind::newer, kNew});
        presenter.press(button);
    }
    EXPECT_THAT(desktop->links, ElementsAre(kNew.page.toString()));
}

TEST_F(UpdateCommandsTest, EndsTheLookForThoseWhoStopWaiting)
{
    commands.start();
    commands.checkForUpdates();
    presenter.progress.front()->cancel();
    EXPECT_TRUE(test::waitUntil([this] { return !presenter.progress.front()->isShown; }));
    EXPECT_FALSE(updater.isLooking);
    EXPECT_THAT(presenter.alerts, IsEmpty());
    EXPECT_TRUE(commands.canCheckForUpdates()) << "at once";
    commands.checkForUpdates();
    updater.answer({UpdateOutcome::Kind::newer, kNew});
    EXPECT_EQ(presenter.alerts.size(), 1U) << "the next look is a new one";
}

struct UpdateCommandsWithoutFeed : UpdateCommandsTest
{
    UpdateCommandsWithoutFeed()
        : UpdateCommandsTest(failure(ErrorKind::unsupported, QStringLiteral("no feed")))
    {
    }
};

TEST_F(UpdateCommandsWithoutFeed, TellsThoseWhoAsk)
{
    commands.start();
    ASSERT_TRUE(commands.canCheckForUpdates());
    commands.checkForUpdates();
    EXPECT_EQ(updater.looks, 0);
    EXPECT_THAT(
        presenter.alerts,
        ElementsAre(noUpdatesAlert(Error{ErrorKind::unsupported, QStringLiteral("no feed")})));
    EXPECT_THAT(presenter.progress, IsEmpty());
}

} // namespace
} // namespace lorva
