// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Whole runs through the model over a real preference file: what a person does, what views are
// told, and what is there after a restart.

#include "base/NotificationCentre.h"
#include "model/LorvaAppModel.h"
#include "platform/SqlitePreferenceStore.h"
#include "support/LibraryFixture.h"

#include <gmock/gmock.h>

namespace lorva {
namespace {

using test::FontBuilder;
using test::LibraryFixture;
using ::testing::IsEmpty;

class OrganizedLibrary : public testing::Test
{
protected:
    OrganizedLibrary()
    {
        static int cases = 0;
        home = test::TestHome::instance().makeFolder("organized" + QByteArray::number(++cases));
        restart();
    }

    /// A new process over the same home; its catalog is not loaded yet.
    void restart()
    {
        library.restart(home.child("Lorva"),
                        std::make_unique<SqlitePreferenceStore>(home.child("Lorva")));
    }

    void add(const QString &family, const QString &maker = {}, const QString &otherName = {})
    {
        FontBuilder font(family);
        if (!maker.isEmpty())
            font.manufacturer(maker);
        if (!otherName.isEmpty())
            font.name(1, otherName, 0x411);
        library.fonts->files.push_back(
            test::writeFile(home.child("fonts"), family.toUtf8() + ".ttf", font.build()));
    }

    QStringList visible(const BrowserSource &source)
    {
        library.model->select(source);
        return library.visibleNames();
    }

    QStringList found(const QString &query)
    {
        library.model->setSearchQuery(query);
        return library.visibleNames();
    }

    QStringList foundryNames() const
    {
        QStringList names;
        for (const FoundryCollectionRecord &foundry : library.model->foundryCollections())
            names.append(foundry.name);
        return names;
    }

    LorvaAppModel &model() { return *library.model; }

    FilePath home;
    LibraryFixture library;
};

TEST_F(OrganizedLibrary, IsSortedByNamesOnceAndKeptThen)
{
    add(QStringLiteral("Plain Sans"));
    add(QStringLiteral("Fine Serif"));
    add(QStringLiteral("Nothing Said"));
    ASSERT_TRUE(library.load());
    EXPECT_EQ(visible(BrowserSource::style(QStringLiteral("sans"))), (QStringList{"Plain Sans"}));
    EXPECT_EQ(visible(BrowserSource::style(QStringLiteral("serif"))), (QStringList{"Fine Serif"}));
    EXPECT_EQ(model().styleIDByFamily().value(QStringLiteral("Nothing Said")), QString());
    ASSERT_TRUE(model().setStyle({QStringLiteral("Plain Sans")}, QStringLiteral("display")));

    restart();
    add(QStringLiteral("Late Sans"));
    ASSERT_TRUE(library.load());
    EXPECT_THAT(visible(BrowserSource::style(QStringLiteral("sans"))), IsEmpty())
        << "families that come later are left to their owner";
    EXPECT_EQ(visible(BrowserSource::style(QStringLiteral("display"))),
              (QStringList{"Plain Sans"}));
    EXPECT_EQ(visible(BrowserSource::style(QStringLiteral("no such style"))),
              (QStringList{"Fine Serif", "Late Sans", "Nothing Said", "Plain Sans"}));
}

TEST_F(OrganizedLibrary, ALibraryThatCannotBeFoundIsNotTakenAsSorted)
{
    ASSERT_TRUE(library.load());
    add(QStringLiteral("Plain Sans"));
    ASSERT_TRUE(library.load());
    EXPECT_EQ(visible(BrowserSource::style(QStringLiteral("sans"))), (QStringList{"Plain Sans"}));
}

TEST_F(OrganizedLibrary, FoundriesFollowTheFontsAndTheUser)
{
    for (const char *name : {"Aaa", "Bbb"})
        add(QString::fromLatin1(name), QStringLiteral("Acme Fonts Ltd."));
    for (const char *name : {"Ccc", "Ddd", "Eee"})
        add(QString::fromLatin1(name), QStringLiteral("Zeta Type Foundry"));
    add(QStringLiteral("PP One"));
    add(QStringLiteral("PP Two"));
    add(QStringLiteral("Alone"), QStringLiteral("Lonely"));
    ASSERT_TRUE(library.load());
    EXPECT_EQ(foundryNames(), (QStringList{"Acme", "Pangram Pangram", "Zeta"}));

    ASSERT_TRUE(model().setFoundry({QStringLiteral("Ccc"), QStringLiteral("Alone")},
                                   QStringLiteral("acme")));
    ASSERT_TRUE(model().renameFoundry(QStringLiteral("acme"), QStringLiteral("Wile E.")));
    EXPECT_EQ(foundryNames(), (QStringList{"Pangram Pangram", "Wile E.", "Zeta"}));
    EXPECT_EQ(visible(BrowserSource::foundry(QStringLiteral("acme"))),
              (QStringList{"Aaa", "Alone", "Bbb", "Ccc"}));
    ASSERT_TRUE(model().dismissFoundry(QStringLiteral("acme")));
    EXPECT_EQ(model().selectedSource(), BrowserSource::allFonts());
    EXPECT_EQ(model().foundryIDByFamily().value(QStringLiteral("Ccc")), QString());

    restart();
    ASSERT_TRUE(library.load());
    EXPECT_EQ(foundryNames(), (QStringList{"Pangram Pangram", "Zeta"}));
    ASSERT_EQ(model().dismissedFoundries().size(), 1u);
    EXPECT_EQ(model().dismissedFoundries().front().name, QStringLiteral("Wile E."));
    ASSERT_TRUE(model().bringBackFoundry(QStringLiteral("acme")));
    ASSERT_TRUE(model().resetFoundry({QStringLiteral("Ccc")}));
    EXPECT_EQ(visible(BrowserSource::foundry(QStringLiteral("zeta"))),
              (QStringList{"Ccc", "Ddd", "Eee"}));
}

TEST_F(OrganizedLibrary, SearchesOverlookCaseMarksWidthAndKana)
{
    add(QStringLiteral("Gill Sans"), QStringLiteral("Monotype"));
    add(QString::fromUtf8("Söhne"), QStringLiteral("Klim"));
    add(QStringLiteral("Hiragino"), {}, QString::fromUtf8("ヒラギノ角ゴ"));
    ASSERT_TRUE(library.load());
    const struct
    {
        const char *query;
        QStringList names;
    } rows[]{
        {" \t\n", {"Gill Sans", "Hiragino", QString::fromUtf8("Söhne")}},
        {"GILL", {"Gill Sans"}},
        {" gill s ", {"Gill Sans"}},
        {"ｇｉｌｌ", {"Gill Sans"}},
        {"sohne", {QString::fromUtf8("Söhne")}},
        {"SÖHNE", {QString::fromUtf8("Söhne")}},
        {"monotype", {"Gill Sans"}},
        {"ひらぎの", {"Hiragino"}},
        {"ﾋﾗｷﾞﾉ", {"Hiragino"}},
        {"gill sans\nmono", {}},
        {"nowhere", {}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(found(QString::fromUtf8(row.query)), row.names) << row.query;
    library.model->select(BrowserSource::style(QStringLiteral("serif")));
    EXPECT_THAT(found(QStringLiteral("gill")), IsEmpty()) << "a search stays within its source";
}

TEST_F(OrganizedLibrary, TheSnapshotIsSearchedBeforeTheScanEnds)
{
    add(QStringLiteral("Aaa"), QStringLiteral("Acme"));
    add(QStringLiteral("Bbb"), QStringLiteral("Acme"));
    ASSERT_TRUE(library.load());
    restart();
    library.fonts->hold();
    model().loadCatalog();
    ASSERT_TRUE(test::waitUntil([&] { return !model().foundryCollections().empty(); }));
    EXPECT_TRUE(model().isLoading());
    EXPECT_EQ(found(QStringLiteral("bb")), (QStringList{"Bbb"}));
    model().setSearchQuery({});
    EXPECT_EQ(visible(BrowserSource::active()).size(), 2);
    library.fonts->letGo();
    EXPECT_TRUE(test::waitUntil([&] { return !model().isLoading(); }));
}

TEST_F(OrganizedLibrary, DeletingTheSelectedCollectionShowsAllFontsAndUndoBringsItBack)
{
    library.addFamilies(QStringLiteral("F"), 3);
    ASSERT_TRUE(library.load());
    const QString id = model().createCollection(QStringLiteral("Logos")).value();
    EXPECT_THAT(visible(BrowserSource::collection(id)), IsEmpty());
    ASSERT_TRUE(model().addFamilies(id, {"F 002", "Not Here", "F 000"}));
    EXPECT_EQ(library.visibleNames(), (QStringList{"F 000", "F 002"}));
    EXPECT_TRUE(model().isMember(QStringLiteral("F 002"), id));
    model().selectFamily(QStringLiteral("F 002"));
    ASSERT_TRUE(model().removeFamilies(id, {"F 002"}));
    EXPECT_EQ(model().selectedFamilyName(), std::nullopt) << "it is not shown any more";

    int changes = 0;
    model().onChange = [&] { ++changes; };
    const qint64 generation = model().membershipGeneration();
    ASSERT_TRUE(model().deleteCollection(id));
    EXPECT_EQ(changes, 1);
    EXPECT_GT(model().membershipGeneration(), generation);
    EXPECT_EQ(model().selectedSource(), BrowserSource::allFonts());
    EXPECT_EQ(library.visibleNames().size(), 3);

    EXPECT_EQ(model().undoStack().undoText(), QStringLiteral("Delete Collection"));
    model().undoStack().undo();
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(visible(BrowserSource::collection(id)), (QStringList{"F 000"}));
    restart();
    library.addFamily(QStringLiteral("Not Here"));
    ASSERT_TRUE(library.load());
    EXPECT_EQ(visible(BrowserSource::collection(id)), (QStringList{"F 000", "Not Here"}))
        << "members wait for their fonts";
}

TEST_F(OrganizedLibrary, EveryChangeGoesBackAndForthByItsName)
{
    add(QStringLiteral("Aaa"), QStringLiteral("Acme"));
    add(QStringLiteral("Bbb"), QStringLiteral("Acme"));
    ASSERT_TRUE(library.load());
    const QString family = QStringLiteral("Aaa");
    const QString id = model().createCollection(QStringLiteral("One")).value();
    const QString style = model().createStyleCategory(QStringLiteral("Signs")).value();
    model().undoStack().clear();

    const struct
    {
        const char *name;
        std::function<Result<void>()> change;
    } rows[]{
        {"New Collection",
         [&] { return model().createCollection(QStringLiteral("Two")).map([](const auto &) {}); }},
        {"Rename Collection", [&] { return model().renameCollection(id, QStringLiteral("Uno")); }},
        {"Add to Collection",
         [&] {
             return model().addFamilies(id, {family, "Bbb"});
         }},
        {"Remove from Collection", [&] { return model().removeFamilies(id, {family}); }},
        {"Change Style", [&] { return model().setStyle({family}, style); }},
        {"Change Style",
         [&] {
             return model().setStyle({family, "Bbb"}, "mono");
         }},
        {"Rename Style", [&] { return model().renameStyleCategory(style, QStringLiteral("S")); }},
        {"Delete Style", [&] { return model().deleteStyleCategory(style); }},
        {"Change Foundry", [&] { return model().setFoundry({family}, QString()); }},
        {"Change Foundry", [&] { return model().resetFoundry({family}); }},
        {"Rename Foundry", [&] { return model().renameFoundry("acme", QStringLiteral("ACME")); }},
        {"Hide Foundry", [&] { return model().dismissFoundry("acme"); }},
        {"Show Foundry", [&] { return model().bringBackFoundry("acme"); }},
        {"Delete Collection", [&] { return model().deleteCollection(id); }},
    };
    const auto shown = [&] {
        return std::tuple(model().collections(), model().styleCategories(),
                          model().foundryCollections(), model().dismissedFoundries());
    };
    std::vector<decltype(shown())> states{shown()};
    for (const auto &row : rows) {
        ASSERT_TRUE(row.change()) << row.name;
        EXPECT_EQ(model().undoStack().undoText(), QString::fromLatin1(row.name));
        EXPECT_NE(shown(), states.back()) << row.name;
        states.push_back(shown());
    }
    for (size_t i = std::size(rows); i-- > 0;) {
        model().undoStack().undo();
        EXPECT_EQ(shown(), states[i]) << rows[i].name;
    }
    for (size_t i = 0; i < std::size(rows); ++i) {
        model().undoStack().redo();
        EXPECT_EQ(shown(), states[i + 1]) << rows[i].name;
    }
}

TEST_F(OrganizedLibrary, WhatCannotBeDoneChangesNothingAndIsNotUndone)
{
    ASSERT_TRUE(library.load());
    const QString id = model().createCollection(QStringLiteral("One")).value();
    model().undoStack().clear();
    int changes = 0;
    model().onChange = [&] { ++changes; };
    EXPECT_EQ(model().createCollection(QStringLiteral(" \n ")).error().kind,
              ErrorKind::invalidValue);
    EXPECT_EQ(model().createCollection(QStringLiteral("ONE")).error().kind,
              ErrorKind::invalidValue);
    EXPECT_EQ(model().addFamilies(QStringLiteral("no such id"), {"F"}).error().kind,
              ErrorKind::notFound);
    EXPECT_EQ(model().renameStyleCategory(QStringLiteral("sans"), QStringLiteral("S")).has_value(),
              false);
    EXPECT_TRUE(model().removeFamilies(id, {"Never There"}));
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(model().undoStack().count(), 0);
    EXPECT_EQ(model().freeCollectionName(QStringLiteral("One")), QStringLiteral("One 2"));
}

/// Two windows, or a window and lorvactl, over one home.
TEST_F(OrganizedLibrary, ChangesOfTwoProcessesMeet)
{
    ASSERT_TRUE(library.load());
    const QString logos = model().createCollection(QStringLiteral("Logos")).value();
    ASSERT_TRUE(model().addFamilies(logos, {"A", "B"}));
    LibraryFixture other;
    other.restart(home.child("Other"),
                  std::make_unique<SqlitePreferenceStore>(home.child("Lorva")));
    ASSERT_TRUE(other.load());

    ASSERT_TRUE(other.model->addFamilies(logos, {"C"}));
    ASSERT_TRUE(other.model->setStyle({"A"}, QStringLiteral("mono")));
    ASSERT_TRUE(model().addFamilies(logos, {"D"})) << "over what the other has written";
    EXPECT_EQ(model().collections().front().familyNames, (QStringList{"A", "B", "C", "D"}));
    EXPECT_TRUE(test::waitUntil([&] {
        return model().styleIDByFamily().value(QStringLiteral("A")) == "mono";
    })) << "noticed without being asked";
    EXPECT_TRUE(test::waitUntil([&] { return other.model->isMember(QStringLiteral("D"), logos); }));

    // Undo takes back one's own, and nothing of the other's.
    ASSERT_TRUE(other.model->removeFamilies(logos, {"B"}));
    model().undoStack().undo();
    model().undoStack().undo();
    EXPECT_EQ(model().collections().front().familyNames, (QStringList{"C"}));
}

TEST_F(OrganizedLibrary, WhatOthersAddBetweenUndoAndRedoStays)
{
    ASSERT_TRUE(library.load());
    const QString logos = model().createCollection(QStringLiteral("Logos")).value();
    ASSERT_TRUE(model().deleteCollection(logos));
    QUndoStack &undo = model().undoStack();
    SqlitePreferenceStore others(home.child("Lorva"));
    CollectionStore collections(others);
    const auto addElsewhere = [&](const QString &family) {
        std::vector<FontCollectionRecord> all = collections.load();
        all.front().familyNames.append(family);
        collections.save(all);
    };
    undo.undo();
    addElsewhere(QStringLiteral("C"));
    undo.redo();
    EXPECT_TRUE(model().collections().empty());
    undo.undo();
    EXPECT_TRUE(model().isMember(QStringLiteral("C"), logos));
    undo.undo();
    undo.redo();
    EXPECT_TRUE(model().isMember(QStringLiteral("C"), logos));
}

TEST_F(OrganizedLibrary, WhatOthersDidIsShownByAChangeThatDoesNothing)
{
    library.addFamilies(QStringLiteral("F"), 2);
    ASSERT_TRUE(library.load());
    const QString id = model().createCollection(QStringLiteral("Logos")).value();
    EXPECT_THAT(visible(BrowserSource::collection(id)), IsEmpty());
    SqlitePreferenceStore others(home.child("Lorva"));
    CollectionStore(others).save({{id, QStringLiteral("Logos"), {"F 001"}}});
    model().undoStack().clear();
    ASSERT_TRUE(model().addFamilies(id, {"F 001"}));
    EXPECT_EQ(library.visibleNames(), (QStringList{"F 001"}));
    EXPECT_EQ(model().undoStack().count(), 0);
}

TEST_F(OrganizedLibrary, OtherProcessesChangeTheSidebarAndTheDisplay)
{
    SqlitePreferenceStore others(home.child("Lorva"));
    FoundryStore(others).setCollapsed(QStringLiteral("styles"), true);
    others.setBoolean(QStringLiteral("vantrel.merid.hideQuizPromoInSidebar"), true);
    SourceDisplaySettings settings;
    settings.browserPointSize = 50;
    settings.browserFontWeight = -3;
    settings.customForegroundColorHex = QStringLiteral("red");
    DisplaySettingsStore(others).set(settings, kSharedDisplaySettingsKey);
    EXPECT_TRUE(test::waitUntil([&] {
        return model().collapsedGroups().contains(QStringLiteral("styles"))
            && model().hidesQuizPromoInSidebar() && model().browserPointSize() == 50;
    }));
    EXPECT_EQ(model().browserFontWeight(), 400) << "what makes no sense counts as absent";
    EXPECT_EQ(model().customForegroundColorHex(), QStringLiteral("#FFFFFF"));
}

TEST_F(OrganizedLibrary, IsSortedAnewOnlyWhereThatIsDue)
{
    add(QStringLiteral("Plain Sans"));
    add(QStringLiteral("Fira Mono"));
    add(QStringLiteral("Heiti"));
    const QString sorted = QStringLiteral("vantrel.merid.stylesClassified.v3");
    const auto sansAfterLoad = [&] {
        EXPECT_TRUE(library.load());
        return visible(BrowserSource::style(QStringLiteral("sans")));
    };
    library.preferences->setBoolean(QStringLiteral("vantrel.merid.stylesClassified.v2"), true);
    EXPECT_EQ(sansAfterLoad(), (QStringList{"Heiti"})) << "an earlier version knew Latin names";

    // Another process sorts, or the user does, while the worker is at it.
    library.preferences->remove(sorted);
    library.fonts->hold();
    model().loadCatalog();
    ASSERT_TRUE(model().setStyle({"Plain Sans"}, QStringLiteral("display")));
    library.fonts->letGo();
    ASSERT_TRUE(test::waitUntil([&] { return !model().isLoading(); }));
    EXPECT_EQ(model().styleIDByFamily().value(QStringLiteral("Plain Sans")), "display");
    EXPECT_EQ(library.preferences->boolean(sorted), true);
}

TEST_F(OrganizedLibrary, TheLogoOfEarlierVersionsMovesIntoTheDisplaySettings)
{
    library.preferences->setData(QStringLiteral("vantrel.merid.logo"),
                                 R"({"imageData":"AAEC","sizeRatio":1.5,"spacing":0.5})");
    library.restart(home.child("Lorva"));
    EXPECT_EQ(model().display().logoImageData, QByteArray("\0\1\2", 3));
    EXPECT_EQ(model().display().logoSizeRatio, 0.15);
    EXPECT_EQ(model().display().logoSpacing, 0.5);
}

TEST_F(OrganizedLibrary, DisplaySettingsBelongToTheirSource)
{
    ASSERT_TRUE(library.load());
    const QString id = model().createCollection(QStringLiteral("Dark")).value();
    model().select(BrowserSource::style(QStringLiteral("sans")));
    model().setSampleText(QStringLiteral("Shared"));
    model().setCustomBackgroundColorHex(QStringLiteral("#a1b2c3"));
    model().setCustomBackgroundColorHex(QStringLiteral("red"));
    model().select(BrowserSource::collection(id));
    EXPECT_EQ(model().sampleText(), QStringLiteral("Shared"));
    model().setColorMode(ColorMode::black);
    model().setPointSize(99);
    model().setFontWeight(612.4);
    model().setLogoImageData("logo");

    restart();
    EXPECT_EQ(model().colorMode(), ColorMode::white);
    EXPECT_EQ(model().browserPointSize(), 36);
    EXPECT_EQ(model().customBackgroundColorHex(), QStringLiteral("#A1B2C3"));
    model().setSampleText(QStringLiteral("Changed"));
    model().select(BrowserSource::collection(id));
    EXPECT_EQ(model().colorMode(), ColorMode::black);
    EXPECT_EQ(model().browserPointSize(), 99);
    EXPECT_EQ(model().browserFontWeight(), 612);
    EXPECT_EQ(model().display().logoImageData, "logo");
    EXPECT_EQ(model().sampleText(), QStringLiteral("Changed"))
        << "what the collection never changed follows the others";
    ASSERT_TRUE(model().deleteCollection(id));
    EXPECT_EQ(model().colorMode(), ColorMode::white);
}

TEST_F(OrganizedLibrary, WhatTheProgramIsStartedWithIsNotRemembered)
{
    SourceDisplaySettings start;
    start.browserPointSize = 72;
    start.sampleText = QStringLiteral("Start");
    model().setDisplayForThisRun(start);
    start.browserFontWeight = 5000;
    model().setDisplayForThisRun(start);
    EXPECT_EQ(model().browserFontWeight(), 900);
    EXPECT_EQ(model().browserPointSize(), 72);
    model().setSampleText(QStringLiteral("Typed"));
    EXPECT_EQ(model().sampleText(), QStringLiteral("Typed"));
    const QString id = model().createCollection(QStringLiteral("C")).value();
    model().select(BrowserSource::collection(id));
    model().setPointSize(50);
    model().select(BrowserSource::allFonts());
    EXPECT_EQ(model().browserPointSize(), 72) << "only the collection was changed";
    model().select(BrowserSource::collection(id));
    EXPECT_EQ(model().browserPointSize(), 50);
    restart();
    EXPECT_EQ(model().browserPointSize(), 36);
    EXPECT_EQ(model().sampleText(), QStringLiteral("Typed"));
}

TEST_F(OrganizedLibrary, RequestsForAScanThatComeTogetherMakeOne)
{
    ASSERT_TRUE(library.load());
    int loads = 0;
    bool wasLoading = false;
    model().onChange = [&] {
        loads += model().isLoading() && !wasLoading;
        wasLoading = model().isLoading();
    };
    model().requestCatalogReconcile();
    QTimer second;
    second.setSingleShot(true);
    QObject::connect(&second, &QTimer::timeout, &model(), &LorvaAppModel::requestCatalogReconcile);
    second.start(LorvaAppModel::kReconcileDelay / 2);
    // Longer than a scan of its own would need after either request.
    QTimer end;
    end.setSingleShot(true);
    end.start(LorvaAppModel::kReconcileDelay * 2);
    ASSERT_TRUE(test::waitUntil([&] { return !end.isActive() && !model().isLoading(); }));
    EXPECT_EQ(loads, 1);
}

TEST_F(OrganizedLibrary, SidebarAndQuizRemember)
{
    model().toggleGroupCollapsed(QStringLiteral("styles"));
    model().toggleGroupCollapsed(QStringLiteral("library"));
    model().toggleGroupCollapsed(QStringLiteral("library"));
    model().setHasSeenQuizIntro();
    restart();
    EXPECT_EQ(model().collapsedGroups(), QSet<QString>{"styles"});
    EXPECT_TRUE(model().hasSeenQuizIntro());
    EXPECT_FALSE(model().hidesQuizPromoInSidebar());
    model().hideQuizPromoInSidebar();
    EXPECT_TRUE(model().hidesQuizPromoInSidebar());
}

TEST_F(OrganizedLibrary, CountsWhatEachPlaceShows)
{
    for (const char *name : {"Aaa Sans", "Bbb Sans"})
        add(QString::fromLatin1(name), QStringLiteral("Acme Fonts Ltd."));
    add(QStringLiteral("Ccc Serif"));
    EXPECT_EQ(model().counts().styles.size(), 0) << "nothing is known before the first scan";
    ASSERT_TRUE(library.load());
    const QString id = *model().createCollection(QStringLiteral("Mine"));
    ASSERT_TRUE(model().addFamilies(id, {QStringLiteral("Ccc Serif"), QStringLiteral("Away")}));

    const SidebarCounts before = model().counts();
    EXPECT_EQ(before.all, 3);
    EXPECT_EQ(before.active, 3);
    EXPECT_EQ(before.inactive, 0);
    EXPECT_EQ(before.styles.value(QStringLiteral("sans")), 2);
    EXPECT_EQ(before.collections.value(id), 1) << "a family that is not here is not shown either";
    ASSERT_EQ(model().foundryCollections().size(), 1U);
    EXPECT_EQ(before.foundries.value(model().foundryCollections().front().id), 2);

    ASSERT_TRUE(model().setStyle({QStringLiteral("Aaa Sans")}, std::nullopt));
    EXPECT_EQ(model().counts().styles.value(QStringLiteral("sans")), 1);
    library.fonts->files.pop_back();
    ASSERT_TRUE(library.load());
    EXPECT_EQ(model().counts().all, 2);
    EXPECT_EQ(model().counts().collections.value(id), 0);
}

TEST_F(OrganizedLibrary, SeveralFamiliesEnterACollectionUnlessAllAreInIt)
{
    const QString id = *model().createCollection(QStringLiteral("Mine"));
    const QStringList two{QStringLiteral("A"), QStringLiteral("B")};
    ASSERT_TRUE(model().toggleFamilies(id, {QStringLiteral("A")}));
    ASSERT_TRUE(model().toggleFamilies(id, two));
    EXPECT_EQ(model().collections().front().familyNames, two);
    ASSERT_TRUE(model().toggleFamilies(id, two));
    EXPECT_THAT(model().collections().front().familyNames, IsEmpty());
    EXPECT_FALSE(model().toggleFamilies(QStringLiteral("no such collection"), two));
}

TEST_F(OrganizedLibrary, FoldersForThisRunAreForgottenWithIt)
{
    const FilePath extra = home.child("extra");
    test::writeFile(extra, "Extra.ttf", FontBuilder(QStringLiteral("Extra")).build());
    add(QStringLiteral("Usual"));
    ASSERT_TRUE(library.load());
    model().addFoldersForThisRun({extra});
    ASSERT_TRUE(library.load());
    EXPECT_EQ(library.visibleNames(), (QStringList{"Extra", "Usual"}));
    restart();
    ASSERT_TRUE(library.load());
    EXPECT_EQ(library.visibleNames(), (QStringList{"Usual"}));
}

TEST_F(OrganizedLibrary, AHeldControlIsWrittenOnceItIsLetGo)
{
    const auto stored = [this] {
        return DisplaySettingsStore(*library.preferences).settings(QStringLiteral("allFonts"));
    };
    model().setDisplayHeld(true);
    model().setPointSize(50);
    model().setPointSize(60);
    EXPECT_EQ(model().browserPointSize(), 60);
    EXPECT_EQ(stored(), std::nullopt) << "nothing is written while the hand is on it";
    model().setDisplayHeld(false);
    EXPECT_EQ(stored()->browserPointSize, 60);

    model().setDisplayHeld(true);
    model().setPointSize(70);
    model().select(BrowserSource::collection(*model().createCollection(QStringLiteral("Mine"))));
    EXPECT_EQ(stored()->browserPointSize, 70) << "another source ends it";
    model().setPointSize(80);
    restart();
    EXPECT_EQ(model().browserPointSize(), 70) << "80 is the collection's";
    EXPECT_EQ(
        library.preferences->data(QStringLiteral("vantrel.merid.displaySettings"))->contains("80"),
        true)
        << "the end writes what is held";
}

TEST_F(OrganizedLibrary, ResettingGoesBackToWhatTheSourceWouldShow)
{
    model().setPointSize(90);
    model().setLogoImageData("logo");
    const QString id = *model().createCollection(QStringLiteral("Mine"));
    model().select(BrowserSource::collection(id));
    model().setPointSize(40);
    model().setColorMode(ColorMode::black);
    model().resetDisplay();
    EXPECT_EQ(model().browserPointSize(), 90) << "what all sources share";
    EXPECT_EQ(model().colorMode(), ColorMode::white);
    model().select(BrowserSource::allFonts());
    model().resetDisplay();
    EXPECT_EQ(model().display(), DisplayValues());
    restart();
    EXPECT_EQ(model().display(), DisplayValues());
}

} // namespace
} // namespace lorva
