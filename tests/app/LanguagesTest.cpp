// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Every surface of the program in every language, and in one that is longer than any and like none:
// what is left of English there went past the translation.

#include "app/LaunchHelp.h"
#include "app/LorvaApplicationDelegate.h"
#include "base/TextColumns.h"
#include "base/Translations.h"
#include "platform/linux/XdgFolders.h"
#include "platform/UserAccount.h"
#include "support/FontBuilder.h"
#include "support/PseudoTranslator.h"
#include "support/TestHome.h"
#include "support/TextAudit.h"
#include "support/Waiting.h"
#include "ui/browser/FontBrowserViewController.h"
#include "ui/detail/FontDetailViewController.h"
#include "ui/discover/DiscoverFoundry.h"
#include "ui/display/SampleTexts.h"
#include "ui/LorvaRootSplitViewController.h"
#include "ui/quiz/FontQuizViewController.h"
#include "ui/sheets/AlertSheet.h"
#include "ui/style/ReducedMotion.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDate>
#include <QDir>
#include <QFontDatabase>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

MATCHER_P(HasSubstr, words, "")
{
    return arg.contains(QLatin1String(words));
}

/// Names that hold no ASCII letter, so that every one found is the program's.
const QString kSerif = QStringLiteral("Ωμέγα");
const QString kSans = QStringLiteral("Δέλτα");
const std::string kPseudo = "pseudo";

/// A language as users have it, but for its ellipses: "…" is only ever what elision leaves.
class InstalledTranslator final : public QTranslator
{
public:
    explicit InstalledTranslator(const QString &language)
    {
        EXPECT_TRUE(load(QStringLiteral("lorva_") + language, QStringLiteral(":/translations")));
    }
    QString translate(const char *context, const char *source, const char *disambiguation,
                      int n) const override
    {
        return QTranslator::translate(context, source, disambiguation, n).replace(u'…', u'⋯');
    }
};

class Languages : public testing::TestWithParam<std::string>
{
protected:
    Languages()
    {
        setReducedMotionOverride(true);
        useInterfaceFonts();
        if (GetParam() == kPseudo)
            m_translator = std::make_unique<test::PseudoTranslator>();
        else
            m_translator =
                std::make_unique<InstalledTranslator>(QString::fromStdString(GetParam()));
        m_audit.isPseudo = GetParam() == kPseudo;
        QCoreApplication::installTranslator(m_translator.get());
        QDir(xdgFolders().applicationSupport.displayText()).removeRecursively();
        const auto &home = test::TestHome::instance();
        for (const QString &family : {kSerif, kSans})
            for (const char *style : {"Regular", "Bold"})
                test::writeFile(home.systemFonts(), family.toUtf8() + style + ".ttf",
                                test::FontBuilder(family, QString::fromLatin1(style))
                                    .weightClass(style[0] == 'B' ? 700 : 400)
                                    .codePoints(U"Aa 123")
                                    .build());
        m_audit.data = {home.home().displayText(), QStringLiteral("Regular"),
                        QStringLiteral("Bold"), QStringLiteral("Lorva"), userFullName(),
                        QStringLiteral("system-fonts"), QStringLiteral(".ttf"),
                        // Not translated in any language.
                        QStringLiteral(" styles"), QStringLiteral(" style")};
        // The pseudo language has no dates of its own.
        for (const int days : {0, 1}) {
            const QDate date = QDate::currentDate().addDays(days);
            for (const char *ending : {"st", "nd", "rd", "th"})
                m_audit.data << QLocale::c().toString(date, u"MMMM\u00A0d") + QLatin1String(ending);
        }
        for (const DiscoverFoundry &foundry : discoverFoundries())
            m_audit.data << foundry.title << foundry.url.host();
        for (const SampleTextGroup &group : sampleTextGroups())
            for (const char16_t *text : group.texts)
                m_audit.data << QString::fromUtf16(text);
    }
    ~Languages() override
    {
        m_delegate.reset();
        QCoreApplication::removeTranslator(m_translator.get());
        setReducedMotionOverride(std::nullopt);
    }

    /// Texts are measured as on a real desktop, in every script.
    static void useInterfaceFonts()
    {
        for (const char *file :
             {"truetype/dejavu/DejaVuSans.ttf", "opentype/noto/NotoSansCJK-Regular.ttc"})
            ASSERT_GE(QFontDatabase::addApplicationFont(test::realFont(file).displayText()), 0);
        QApplication::setFont(QFont(QStringList{"DejaVu Sans", "Noto Sans CJK JP"}));
    }
    LorvaRootSplitViewController &launch(LaunchOptions options = {}, size_t families = 2)
    {
        options.skipsWelcome = !options.welcome;
        m_delegate = std::make_unique<LorvaApplicationDelegate>(
            options, nullptr, options.welcome ? programParts() : ProgramParts());
        m_delegate->applicationDidFinishLaunching();
        m_delegate->window()->resize(1280, 860);
        m_delegate->window()->activateWindow();
        EXPECT_TRUE(test::waitUntil([&] {
            return !m_delegate->model().isLoading()
                && m_delegate->model().allFamilies()->size() == families && isSettled();
        }));
        return *m_delegate->rootController();
    }
    bool isSettled() { return m_delegate->rootController()->isSettled(); }

    void settle()
    {
        m_delegate->rootController()->render();
        EXPECT_TRUE(test::waitUntil([this] { return isSettled(); }));
    }
    /// What is wrong on every window that is open.
    QStringList faults() const
    {
        QStringList found;
        for (QWidget *window : QApplication::topLevelWidgets())
            if (window->isVisible())
                found << m_audit.faults(*window);
        return found;
    }
    void check(const char *surface)
    {
        const QStringList found = faults();
        EXPECT_THAT(found, IsEmpty()) << surface << ":\n" << found.join(u'\n').toStdString();
    }
    QWidget *part(const char *name) const
    {
        for (QWidget *widget : QApplication::allWidgets())
            if (widget->objectName() == QLatin1String(name) && widget->isVisible())
                return widget;
        ADD_FAILURE() << "there is no " << name;
        return nullptr;
    }
    void click(const char *name)
    {
        if (QWidget *widget = part(name))
            QTest::mouseClick(widget, Qt::LeftButton);
        settle();
    }
    void closePopups()
    {
        while (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
    }
    void checkPopup(const char *button)
    {
        click(button);
        check(button);
        closePopups();
    }

    std::unique_ptr<QTranslator> m_translator;
    test::TextAudit m_audit;
    std::unique_ptr<LorvaApplicationDelegate> m_delegate;
};

TEST_P(Languages, CoversTheBrowser)
{
    launch();
    check("cards");
    m_delegate->model().setViewMode(ViewMode::list);
    settle();
    check("list");
    m_delegate->rootController()->browserActions().browserSearchTextChanged(QStringLiteral("?"));
    settle();
    check("nothing found");
}

TEST_P(Languages, CoversEveryKindOfSource)
{
    launch();
    for (const BrowserSource &source :
         {BrowserSource::active(), BrowserSource::inactive(),
          BrowserSource::style(m_delegate->model().styleCategories().front().id)}) {
        m_delegate->model().select(source);
        settle();
        check("a source");
    }
}

TEST_P(Languages, CoversTheDisplayControls)
{
    launch();
    for (const char *button : {"sampleTextButton", "customChip", "imageChip", "logoButton"})
        checkPopup(button);
}

TEST_P(Languages, CoversTheMenus)
{
    launch();
    for (QMenu *menu : m_delegate->window()->findChildren<QMenu *>()) {
        menu->popup({});
        check(qPrintable("menu " + menu->title()));
        menu->close();
    }
    QWidget *cards = part("BrowserCollectionView");
    QTest::mouseClick(m_delegate->rootController()->browser().findChild<QWidget *>(
                          QStringLiteral("FontCollectionItem")),
                      Qt::LeftButton);
    QTest::keyClick(cards, Qt::Key_Menu);
    check("a card's menu");
}

TEST_P(Languages, CoversOneFamilyInDepth)
{
    LorvaRootSplitViewController &root = launch();
    m_delegate->model().openDetail(kSerif);
    settle();
    check("the family");
    root.detailActions().detailStageChanged(DetailStage::waterfall);
    settle();
    check("waterfall");
    root.detailActions().detailStageChanged(DetailStage::comparison);
    settle();
    check("comparison");
    using Tab = FontInspectorViewController::Tab;
    for (const Tab tab : {Tab::features, Tab::info}) {
        root.showInspectorTab(tab);
        settle();
        check("inspector");
    }
    checkPopup("detailMenuButton");
}

TEST_P(Languages, CoversSwitchingFontsOn)
{
    LorvaRootSplitViewController &root = launch();
    root.activation().showHistory();
    ASSERT_TRUE(test::waitUntil([&] { return hasAlertSheet(*m_delegate->window()); }));
    check("history");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    root.activation().deactivate({kSerif});
    ASSERT_TRUE(test::waitUntil([&] { return hasAlertSheet(*m_delegate->window()); }));
    check("a refusal");
}

TEST_P(Languages, CoversTheQuestionHowToSwitchOn)
{
    const FilePath folder = test::TestHome::instance().home().child("Ζώνη");
    QDir().mkpath(folder.displayText());
    test::writeFile(folder, "a.ttf", test::FontBuilder(QStringLiteral("Ζήτα")).build());
    LaunchOptions options;
    options.folders = {folder};
    LorvaRootSplitViewController &root = launch(options, 3);
    root.activation().activate({QStringLiteral("Ζήτα")});
    ASSERT_TRUE(test::waitUntil([&] { return hasAlertSheet(*m_delegate->window()); }));
    check("the question");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QDir(folder.displayText()).removeRecursively();
}

TEST_P(Languages, CoversSettings)
{
    launch();
    const QList<QAction *> actions = m_delegate->window()->actions();
    const auto settings =
        std::ranges::find(actions, QStringLiteral("Menu.Settings"), &QAction::objectName);
    ASSERT_NE(settings, actions.end());
    (*settings)->trigger();
    settle();
    check("settings");
}

TEST_P(Languages, CoversTheWelcome)
{
    LaunchOptions options;
    options.welcome = LaunchWelcome::card;
    launch(options);
    ASSERT_TRUE(part("WelcomeCard"));
    check("welcome");
}

TEST_P(Languages, CoversTheSmallestWindow)
{
    LorvaRootSplitViewController &root = launch();
    m_delegate->window()->resize(LorvaApplicationDelegate::kMinimumContentSize);
    settle();
    m_audit.mayShorten = {QStringLiteral("BrowserTopBar")};
    check("cards");
    m_delegate->model().openDetail(kSerif);
    settle();
    check("the family");
    root.openQuiz();
    settle();
    check("the quiz");
}

TEST_P(Languages, CoversTheQuiz)
{
    LorvaRootSplitViewController &root = launch();
    root.openQuiz();
    ASSERT_TRUE(root.isQuizOpen());
    settle();
    check("introduction");
    QTest::keyClick(m_delegate->window()->windowHandle(), Qt::Key_Return);
    settle();
    check("a card");
    root.quiz()->choose(1);
    settle();
    root.quiz()->choose(2);
    settle();
    check("the poster");
}

TEST_P(Languages, LeavesHelpWithinATerminal)
{
    const QString help = launchHelp();
    EXPECT_TRUE(help.contains(QLatin1String("\n  --help ")));
    for (const QString &line : help.split(u'\n'))
        EXPECT_LE(displayWidth(line), 80) << line.toStdString();
}

TEST_P(Languages, CoversDiscover)
{
    launch();
    m_delegate->model().select(BrowserSource::discover());
    settle();
    check("discover");
}

/// English has no translation that could be too long.
std::vector<std::string> languages()
{
    std::vector<std::string> names{kPseudo};
    for (const QString &each : textLanguages())
        if (each != QLatin1String("en"))
            names.push_back(each.toStdString());
    return names;
}

INSTANTIATE_TEST_SUITE_P(All, Languages, testing::ValuesIn(languages()),
                         [](const auto &row) { return row.param; });

/// What the cases above would see of faults.
TEST(TextAudit, SeesEveryKindOfFault)
{
    test::PseudoTranslator translator;
    const QString translated = translator.translate("", "Some words");
    test::TextAudit audit;
    audit.data = {QStringLiteral("Fixture")};
    QWidget window;
    window.resize(300, 100);
    QLabel label(&window);
    const auto faults = [&](const QString &text, const QRect &where) {
        label.setGeometry(where);
        label.setText(text);
        label.show();
        return audit.faults(window);
    };
    const QRect wide(0, 0, 300, 40);
    EXPECT_THAT(faults(translated, wide), IsEmpty());
    EXPECT_THAT(faults(QStringLiteral("Fixture"), wide), IsEmpty()) << "a name";
    EXPECT_THAT(faults(QStringLiteral("Words"), wide), ElementsAre(HasSubstr("not translated")));
    EXPECT_THAT(faults(translated, QRect(0, 0, 30, 40)), ElementsAre(HasSubstr("cut")));
    EXPECT_THAT(faults(translated, QRect(0, 0, 300, 4)), ElementsAre(HasSubstr("cut")));
    EXPECT_THAT(faults(translated.left(5) + u'…', wide), ElementsAre(HasSubstr("elided")));
    label.hide();
    window.setToolTip(QStringLiteral("A tip"));
    EXPECT_THAT(audit.faults(window), ElementsAre(HasSubstr("tool tip")));
}

} // namespace
} // namespace lorva
