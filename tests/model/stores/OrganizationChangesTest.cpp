// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/OrganizationChanges.h"
#include "model/records/StyleCategories.h"
#include "model/stores/OrganizationEdit.h"

#include <gmock/gmock.h>

#include <random>

namespace lorva {
namespace {

QString fromPoints(std::u32string_view points)
{
    return QString::fromUcs4(points.data(), qsizetype(points.size()));
}

TEST(CleanedName, isOneLineOfWhatShows)
{
    const std::vector<std::pair<QString, QString>> names{
        {"Posters", "Posters"},
        {"  Two\t\nlines \r\n here ", "Two lines here"},
        {fromPoints(U"a\u2028b\u2029c\u0085d\u00A0e\u3000f"), "a b c d e f"},
        {QString(QChar(u'\0')) + fromPoints(U"a\u0001b\u007Fc\u009Fd"), "abcd"},
        {fromPoints(U"\u202Aa\u202Bb\u202Cc\u202Dd\u202Ee"), "abcde"},
        {fromPoints(U"\u2066a\u2067b\u2068c\u2069d\u200Ee\u200Ff\u061Cg"), "abcdefg"},
        {fromPoints(U"a\u200Bb\uFEFFc\u00ADd\u2060e"), "abcde"},
        {fromPoints(U"\u200B\u200C\u200D\uFEFF\u2060"), ""},
        {fromPoints(U"\u3164\uFFA0\u2800 \uFE0F\U000E0041"), ""},
        {" \t\n", ""},
        {"", ""},
        {u'a' + QString(QChar(0xD800)) + u'b' + QString(QChar(0xDC00)), "ab"},
        {fromPoints(U"نام\u200Cها"), fromPoints(U"نام\u200Cها")},
        {fromPoints(U"\U0001F469\u200D\U0001F52C"), fromPoints(U"\U0001F469\u200D\U0001F52C")},
        {fromPoints(U"漢字 ｶﾅ"), fromPoints(U"漢字 ｶﾅ")},
        {"e\u0301te\u0301", "e\u0301te\u0301"}};
    for (const auto &[name, cleaned] : names)
        EXPECT_EQ(cleanedName(name), cleaned) << name.toStdString();
}

TEST(CleanedName, isCutBetweenCharacters)
{
    const QString letter = fromPoints(U"g\u0308\u0323"); // 3 units
    const QString smile = fromPoints(U"\U0001F600"); // 2 units
    const QString scientist = fromPoints(U"\U0001F469\u200D\U0001F52C"); // 5 units
    const std::vector<std::tuple<QString, qsizetype>> cases{
        {"x", 255}, {letter, 255}, {smile, 254}, {scientist, 255}, {"ab ", 254}};
    for (const auto &[text, size] : cases) {
        const QString cut = cleanedName(text.repeated(10'000));
        EXPECT_EQ(cut.size(), size) << text.toStdString();
        EXPECT_EQ(cut, text.repeated(10'000).left(size));
    }
    EXPECT_EQ(cleanedName(u'x' + scientist.repeated(100)), u'x' + scientist.repeated(50));
    EXPECT_EQ(cleanedName(u'x' + QString(QChar(0x0301)).repeated(10'000)).size(), kLongestName);
    EXPECT_EQ(cleanedName(u'x' + fromPoints(U"\U0001D165").repeated(10'000)).size(), kLongestName);
    EXPECT_EQ(cleanedName(fromPoints(U"\U0001D165").repeated(10'000)).size(), kLongestName - 1);
}

/// Collections "1" Posters and "2" Été; the own category "u" Mine beside the default ones.
Organization someOrganization()
{
    Organization out;
    out.collections = {{"2", "Été", {}}, {"1", "Posters", {"Inter", "Amiri", "Lato"}}};
    out.styleCategories = defaultStyleCategories();
    out.styleCategories[0].familyNames = QStringList{"Amiri", "Georgia", "Zilla"};
    out.styleCategories.push_back({"u", "Mine", {"Inter"}});
    out.styleCategories.push_back({"v", "Yours", {}});
    out.foundries.overrides.insert("Inter", "rsms");
    return out;
}

struct Refusal
{
    const char *what;
    std::function<Result<void>(Organization &)> change;
    ErrorKind kind;
};

TEST(OrganizationChanges, refusalsLeaveEverythingAsItWas)
{
    const QString decomposed = QStringLiteral("e\u0301te\u0301");
    const std::vector<Refusal> refusals{
        {"empty", [](auto &o) { return createCollection(o, "n", " \n"); }, ErrorKind::invalidValue},
        {"same name", [](auto &o) { return createCollection(o, "n", "pOSTERS"); },
         ErrorKind::invalidValue},
        {"same letters", [=](auto &o) { return createCollection(o, "n", decomposed); },
         ErrorKind::invalidValue},
        {"same id", [](auto &o) { return createCollection(o, "1", "New"); },
         ErrorKind::invalidValue},
        {"rename to another's", [](auto &o) { return renameCollection(o, "2", "posters\t"); },
         ErrorKind::invalidValue},
        {"rename to nothing", [](auto &o) { return renameCollection(o, "2", ""); },
         ErrorKind::invalidValue},
        {"rename unknown", [](auto &o) { return renameCollection(o, "x", "New"); },
         ErrorKind::notFound},
        {"delete unknown", [](auto &o) { return deleteCollection(o, "Posters"); },
         ErrorKind::notFound},
        {"add to unknown", [](auto &o) { return addFamilies(o, "x", {"A"}); }, ErrorKind::notFound},
        {"remove from unknown", [](auto &o) { return removeFamilies(o, "x", {"A"}); },
         ErrorKind::notFound},
        {"set unknown", [](auto &o) { return setFamilies(o, "x", {"A"}); }, ErrorKind::notFound},
        {"category of a default's name",
         [](auto &o) { return createStyleCategory(o, "n", "sans-serif"); },
         ErrorKind::invalidValue},
        {"category of a default's id", [](auto &o) { return createStyleCategory(o, "mono", "N"); },
         ErrorKind::invalidValue},
        {"rename default", [](auto &o) { return renameStyleCategory(o, "sans", "Grotesk"); },
         ErrorKind::invalidValue},
        {"delete default", [](auto &o) { return deleteStyleCategory(o, "serif"); },
         ErrorKind::invalidValue},
        {"rename unknown category", [](auto &o) { return renameStyleCategory(o, "x", "N"); },
         ErrorKind::notFound},
        {"delete unknown category", [](auto &o) { return deleteStyleCategory(o, "x"); },
         ErrorKind::notFound},
        {"style unknown", [](auto &o) { return setStyle(o, {"Amiri"}, "x"); }, ErrorKind::notFound},
        {"foundry's empty name", [](auto &o) { return renameFoundry(o, "klim", "\u200B"); },
         ErrorKind::invalidValue}};
    for (const Refusal &refusal : refusals) {
        Organization organization = someOrganization();
        const Result<void> result = refusal.change(organization);
        ASSERT_FALSE(result) << refusal.what;
        EXPECT_EQ(result.error().kind, refusal.kind) << refusal.what;
        EXPECT_FALSE(result.error().detail.contains(u'%')) << result.error().detail.toStdString();
        EXPECT_TRUE(organization == someOrganization()) << refusal.what;
    }
}

TEST(OrganizationChanges, collectionsStaySortedAndMembersStayOnce)
{
    Organization organization = someOrganization();
    ASSERT_TRUE(createCollection(organization, "3", "  ete\n"));
    ASSERT_TRUE(renameCollection(organization, "1", "ÉTÉ 2"));
    ASSERT_TRUE(renameCollection(organization, "1", "été 2")); // its own name in another case
    ASSERT_TRUE(addFamilies(organization, "1", {"Lato", "", "Zilla", "Inter", "Zilla", "Bodoni"}));
    ASSERT_TRUE(removeFamilies(organization, "1", {"Amiri", "Nobody", ""}));
    ASSERT_TRUE(setFamilies(organization, "3", {"B", "A", "", "B"}));
    const std::vector<FontCollectionRecord> expected{
        {"3", "ete", {"B", "A"}},
        {"2", "Été", {}},
        {"1", "été 2", {"Inter", "Lato", "Zilla", "Bodoni"}}};
    EXPECT_TRUE(organization.collections == expected);
}

TEST(OrganizationChanges, freeNamesTakeTheLowestNumber)
{
    Organization organization;
    const QString longest = QString(300, u'n');
    for (const char *const expected : {"Untitled", "Untitled 2", "Untitled 3"}) {
        const QString name = freeCollectionName(organization, "Untitled");
        EXPECT_EQ(name, QString::fromLatin1(expected));
        ASSERT_TRUE(createCollection(organization, newGroupingID(), name.toUpper()));
        ASSERT_TRUE(createCollection(organization, newGroupingID(),
                                     freeCollectionName(organization, longest)));
    }
    ASSERT_TRUE(deleteCollection(organization, organization.collections[4].id));
    EXPECT_EQ(freeCollectionName(organization, "untitled"), "untitled 2");
}

QStringList members(const Organization &organization, const QString &categoryID)
{
    for (const FontStyleCategoryRecord &each : organization.styleCategories) {
        if (each.id == categoryID)
            return each.familyNames;
    }
    return {"no such category"};
}

TEST(OrganizationChanges, aFamilyIsInOneStyleCategory)
{
    Organization organization = someOrganization();
    ASSERT_TRUE(setStyle(organization, {"éclair", "Inter", "", "Zilla", "éclair"}, "serif"));
    EXPECT_EQ(members(organization, "serif"),
              QStringList({"Amiri", "éclair", "Georgia", "Inter", "Zilla"}));
    EXPECT_EQ(members(organization, "u"), QStringList());
    ASSERT_TRUE(setStyle(organization, {"Georgia", "amiri"}, std::nullopt));
    EXPECT_EQ(members(organization, "serif"), QStringList({"Amiri", "éclair", "Inter", "Zilla"}));

    QStringList many;
    for (int i = 999; i >= 0; --i)
        many.append(QStringLiteral("Family %1").arg(i, 3, 10, QLatin1Char('0')));
    ASSERT_TRUE(setStyle(organization, many, "u"));
    ASSERT_TRUE(setStyle(organization, {"family 500"}, "u"));
    EXPECT_EQ(members(organization, "u").size(), 1001);
    EXPECT_EQ(members(organization, "u").mid(499, 4),
              QStringList({"Family 499", "Family 500", "family 500", "Family 501"}));
}

TEST(OrganizationChanges, foundriesTakeCorrections)
{
    Organization organization;
    setFoundry(organization, {"Inter", "", "Lato"}, "");
    setFoundry(organization, {"Lato", "Amiri"}, "klim");
    resetFoundry(organization, {"Amiri", "Nobody"});
    ASSERT_TRUE(renameFoundry(organization, "klim", " Klim\n& Co "));
    ASSERT_TRUE(renameFoundry(organization, "rsms", "Rasmus"));
    ASSERT_TRUE(renameFoundry(organization, "rsms", std::nullopt));
    for (const char *const id : {"klim", "", "rsms"})
        dismissFoundry(organization, QString::fromLatin1(id));
    bringBackFoundry(organization, "klim");
    const FoundryCorrections expected{
        {{"Inter", ""}, {"Lato", "klim"}}, {{"klim", "Klim & Co"}}, {"rsms"}};
    EXPECT_TRUE(organization.foundries == expected);
}

/// Draws changes at random, always the same ones for one seed.
class Dice
{
public:
    explicit Dice(unsigned seed)
        : m_engine(seed)
    {
    }
    int below(int end) { return std::uniform_int_distribution(0, end - 1)(m_engine); }
    QString family() { return QStringLiteral("F%1").arg(below(12)); }
    QStringList families()
    {
        QStringList out;
        for (int i = below(6); i >= 0; --i)
            out.append(family());
        return out;
    }
    /// One that nothing has had yet, as newGroupingID() gives.
    QString newID() { return QString::number(++m_lastID); }
    /// Of something made lately, which may be gone.
    QString id() { return QString::number(m_lastID - below(12)); }
    QString name() { return QStringLiteral("Name %1").arg(below(9)); }
    std::optional<QString> category()
    {
        const QStringList ids{"serif", "sans", "mono", id(), id(), id()};
        const int drawn = below(int(ids.size()) + 1);
        return drawn == ids.size() ? std::nullopt : std::optional(ids[drawn]);
    }

private:
    std::mt19937 m_engine;
    int m_lastID = 0;
};

using RandomChange = std::function<void(Organization &, Dice &)>;

const std::vector<RandomChange> kRandomChanges{
    [](auto &o, auto &dice) { static_cast<void>(createCollection(o, dice.newID(), dice.name())); },
    [](auto &o, auto &dice) { static_cast<void>(renameCollection(o, dice.id(), dice.name())); },
    [](auto &o, auto &dice) { static_cast<void>(deleteCollection(o, dice.id())); },
    [](auto &o, auto &dice) { static_cast<void>(addFamilies(o, dice.id(), dice.families())); },
    [](auto &o, auto &dice) { static_cast<void>(removeFamilies(o, dice.id(), dice.families())); },
    [](auto &o, auto &dice) { static_cast<void>(setFamilies(o, dice.id(), dice.families())); },
    [](auto &o, auto &dice) {
        static_cast<void>(createStyleCategory(o, dice.newID(), dice.name()));
    },
    [](auto &o, auto &dice) { static_cast<void>(renameStyleCategory(o, dice.id(), dice.name())); },
    [](auto &o, auto &dice) { static_cast<void>(deleteStyleCategory(o, dice.id())); },
    [](auto &o, auto &dice) { static_cast<void>(setStyle(o, dice.families(), dice.category())); },
    [](auto &o, auto &dice) { setFoundry(o, dice.families(), dice.id()); },
    [](auto &o, auto &dice) { resetFoundry(o, dice.families()); },
    [](auto &o, auto &dice) { static_cast<void>(renameFoundry(o, dice.id(), dice.name())); },
    [](auto &o, auto &dice) { static_cast<void>(renameFoundry(o, dice.id(), std::nullopt)); },
    [](auto &o, auto &dice) { dismissFoundry(o, dice.id()); },
    [](auto &o, auto &dice) { bringBackFoundry(o, dice.id()); }};

void changeOften(Organization &organization, Dice &dice, int times)
{
    for (int i = 0; i < times; ++i)
        kRandomChanges[size_t(dice.below(int(kRandomChanges.size())))](organization, dice);
}

TEST(OrganizationEdit, leadsFromOneToTheOtherAndBack)
{
    Dice dice(4711);
    Organization before;
    before.styleCategories = defaultStyleCategories();
    for (int round = 0; round < 3000; ++round) {
        Organization after = before;
        changeOften(after, dice, 1 + dice.below(12));
        const OrganizationEdit edit = difference(before, after);
        EXPECT_EQ(edit.isEmpty(), before == after) << round;

        Organization changed = before;
        apply(edit, changed);
        ASSERT_TRUE(changed == after) << round;
        apply(edit.inverted(), changed);
        ASSERT_TRUE(changed == before) << round;
        before = std::move(after);
    }
}

using Change = std::function<void(Organization &)>;

struct Undoing
{
    const char *what;
    Change own;
    Change others;
    /// What is left in the end, as a change of what there was at first.
    Change expected;
};

void PrintTo(const Undoing &row, std::ostream *out)
{
    *out << row.what;
}

class UndoAfterOthers : public testing::TestWithParam<Undoing>
{
};

TEST_P(UndoAfterOthers, takesBackNoMoreThanItsOwn)
{
    const Organization before = someOrganization();
    Organization organization = before;
    GetParam().own(organization);
    const OrganizationEdit edit = difference(before, organization);
    ASSERT_FALSE(edit.isEmpty());
    GetParam().others(organization);
    apply(edit.inverted(), organization);

    Organization expected = before;
    GetParam().expected(expected);
    EXPECT_EQ(difference(expected, organization), OrganizationEdit());
    EXPECT_TRUE(organization == expected);
}

#define CHANGE(call) [](Organization &o) { static_cast<void>(call); }

INSTANTIATE_TEST_SUITE_P(Changes, UndoAfterOthers,
                         testing::Values(
                             Undoing{"deletedAndAnotherMade", CHANGE(deleteCollection(o, "1")),
                                     CHANGE(createCollection(o, "9", "Another")),
                                     CHANGE(createCollection(o, "9", "Another"))},
                             Undoing{"deletedAndMadeAgain", CHANGE(deleteCollection(o, "1")),
                                     [](Organization &o) {
                                         o.collections.push_back({"1", "Theirs", {"Lato"}});
                                     },
                                     [](Organization &o) {
                                         o.collections[1] = {"1", "Theirs", {"Lato"}};
                                     }},
                             Undoing{"addedAndOneRemoved",
                                     CHANGE(addFamilies(o, "1", QStringList({"A", "B"}))),
                                     CHANGE(removeFamilies(o, "1", {"A"})), [](Organization &) {}},
                             Undoing{"addedAndOthersAdded", CHANGE(addFamilies(o, "1", {"A"})),
                                     CHANGE(addFamilies(o, "1", {"B"})),
                                     CHANGE(addFamilies(o, "1", {"B"}))},
                             Undoing{"addedAndCollectionDeleted",
                                     CHANGE(addFamilies(o, "1", {"A"})),
                                     CHANGE(deleteCollection(o, "1")),
                                     CHANGE(deleteCollection(o, "1"))},
                             Undoing{"removedAndAddedAgain",
                                     CHANGE(removeFamilies(o, "1", {"Inter"})),
                                     CHANGE(addFamilies(o, "1", {"Inter"})),
                                     CHANGE(setFamilies(o, "1",
                                                        QStringList({"Amiri", "Lato", "Inter"})))},
                             Undoing{"reorderedAndOneRemoved",
                                     CHANGE(setFamilies(o, "1",
                                                        QStringList({"Lato", "Amiri", "Inter"}))),
                                     CHANGE(removeFamilies(o, "1", {"Amiri"})),
                                     CHANGE(removeFamilies(o, "1", {"Amiri"}))},
                             Undoing{"createdAndFilled", CHANGE(createCollection(o, "9", "New")),
                                     CHANGE(addFamilies(o, "9", {"A"})), [](Organization &) {}},
                             Undoing{"renamedAndFilled", CHANGE(renameCollection(o, "1", "Alpha")),
                                     CHANGE(addFamilies(o, "1", {"A"})),
                                     CHANGE(addFamilies(o, "1", {"A"}))},
                             Undoing{"deletedAndItsNameTaken", CHANGE(deleteCollection(o, "1")),
                                     CHANGE(createCollection(o, "9", "posters")),
                                     [](Organization &o) {
                                         o.collections[1].name = "Posters 2";
                                         o.collections.insert(o.collections.begin() + 1,
                                                              {"9", "posters", {}});
                                     }},
                             Undoing{"renamedAndItsNameTaken",
                                     CHANGE(renameCollection(o, "1", "Alpha")),
                                     CHANGE(createCollection(o, "9", "Posters")),
                                     [](Organization &o) {
                                         o.collections[1].name = "Posters 2";
                                         o.collections.insert(o.collections.begin() + 1,
                                                              {"9", "Posters", {}});
                                     }},
                             Undoing{"categoryDeletedAndItsNameTaken",
                                     CHANGE(deleteStyleCategory(o, "u")),
                                     CHANGE(renameStyleCategory(o, "v", "mine")),
                                     [](Organization &o) {
                                         o.styleCategories[6].name = "Mine 2";
                                         o.styleCategories[7].name = "mine";
                                     }},
                             Undoing{"renamedAndDeleted", CHANGE(renameCollection(o, "1", "Alpha")),
                                     CHANGE(deleteCollection(o, "1")),
                                     CHANGE(deleteCollection(o, "1"))},
                             Undoing{"styledAndMovedElsewhere",
                                     CHANGE(setStyle(o, {"Georgia"}, "mono")),
                                     CHANGE(setStyle(o, {"Georgia"}, "u")), [](Organization &) {}},
                             Undoing{"styledAndOthersStyled",
                                     CHANGE(setStyle(o, {"Zilla"}, "mono")),
                                     CHANGE(setStyle(o, QStringList({"B", "C", "Zz"}), "serif")),
                                     CHANGE(setStyle(o, QStringList({"B", "C", "Zz"}), "serif"))},
                             Undoing{"styledAndItsOldCategoryDeleted",
                                     CHANGE(setStyle(o, {"Inter"}, "mono")),
                                     CHANGE(deleteStyleCategory(o, "u")),
                                     CHANGE(deleteStyleCategory(o, "u"))},
                             Undoing{"categoryDeletedAndItsFamilyStyled",
                                     CHANGE(deleteStyleCategory(o, "u")),
                                     CHANGE(setStyle(o, {"Inter"}, "sans")), [](Organization &) {}},
                             Undoing{
                                 "overriddenAndOthersOverridden",
                                 CHANGE(setFoundry(o, {"Inter"}, "klim")),
                                 CHANGE(setFoundry(o, QStringList({"Inter", "Lato"}), "dinamo")),
                                 CHANGE(setFoundry(o, {"Lato"}, "dinamo"))},
                             Undoing{"dismissedAndAnotherDismissed",
                                     CHANGE(dismissFoundry(o, "klim")),
                                     CHANGE(dismissFoundry(o, "dinamo")),
                                     CHANGE(dismissFoundry(o, "dinamo"))}),
                         [](const auto &undoing) { return undoing.param.what; });

TEST(OrganizationEdit, aFamilyOfTwoCategoriesGoesBackToBoth)
{
    Organization before = someOrganization();
    before.styleCategories[1].familyNames = QStringList{"Amiri"}; // another program's doing
    Organization organization = before;
    ASSERT_TRUE(setStyle(organization, {"Amiri"}, "mono"));
    apply(difference(before, organization).inverted(), organization);
    EXPECT_TRUE(organization == before);
}

} // namespace
} // namespace lorva
