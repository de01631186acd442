// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "commands/StyleActivations.h"

#include "support/LibraryFixture.h"

#include <gtest/gtest.h>

namespace lorva {
namespace {

using test::FontBuilder;

FontStyleRecord style(const QString &label, qint64 weight, const char *file)
{
    FontStyleRecord record;
    record.id = label;
    record.label = label;
    record.weight = weight;
    if (file)
        record.fileURL = FilePath(QByteArray(file));
    return record;
}

class StyleActivationsTest : public testing::Test
{
protected:
    StyleActivationsTest()
    {
        watched = test::TestHome::instance().makeFolder("styles");
        test::writeFile(watched, "styles-one.ttf", FontBuilder("One").build());
        test::writeFile(watched, "styles-bold.ttf",
                        FontBuilder("One", "Bold").weightClass(700).build());
        const FilePath fonts = test::TestHome::instance().userFonts();
        test::writeFile(fonts, "styles-bold.ttf",
                        FontBuilder("One", "Bold").weightClass(700).build());
        *library.watchedFolders = {watched};
        library.restart(test::TestHome::instance().makeFolder("styles-support"));
        EXPECT_TRUE(library.load());
    }

    FilePath watched;
    test::LibraryFixture library;
};

TEST_F(StyleActivationsTest, KnowsEachStyleByItself)
{
    const FontFamilyRecord *one = library.model->family(QStringLiteral("One"));
    ASSERT_NE(one, nullptr);
    const StyleActivations found = styleActivations(*library.model, *one);
    QHash<QString, FontFamilyActivation> byLabel;
    for (const FontStyleRecord &each : one->styles)
        byLabel.insert(each.label, found.activationByStyleID.value(each.id));
    EXPECT_EQ(byLabel.size(), 2);
    EXPECT_EQ(byLabel.value("Regular"), FontFamilyActivation::inactive());
    EXPECT_EQ(byLabel.value("Bold"), FontFamilyActivation::active(InstallMethod::copy, false));
    EXPECT_TRUE(found.labelsInSameFile.isEmpty());
}

TEST_F(StyleActivationsTest, SaysWhatSharesAFileAndNothingThatItDoesNotKnow)
{
    FontFamilyRecord family;
    family.styles = {style("Bold", 700, "/nowhere/pair.ttc"),
                     style("Thin", 100, "/nowhere/thin.ttf"),
                     style("Light", 300, "/nowhere/pair.ttc"),
                     style("Lost", 400, nullptr),
                     style("Gone", 400, nullptr),
                     style("Book", 400, "/nowhere/pair.ttc")};
    StyleActivations found = styleActivations(*library.model, family);
    EXPECT_TRUE(found.activationByStyleID.isEmpty()) << "the disk was looked at";
    QStringList sharing = found.labelsInSameFile.keys();
    sharing.sort();
    EXPECT_EQ(sharing, QStringList({"Bold", "Book", "Light"}));
    EXPECT_EQ(found.labelsInSameFile.value("Book"), QStringList({"Light", "Bold"}));

    family.styles.clear();
    for (int i = 0; i < 400; ++i)
        family.styles.push_back(
            style(QStringLiteral("S%1").arg(i, 3, 10, QChar(u'0')), 400, "/one"));
    found = styleActivations(*library.model, family);
    const QStringList others = found.labelsInSameFile.value("S001");
    ASSERT_EQ(others.size(), 25);
    EXPECT_EQ(others.mid(0, 2), QStringList({"S000", "S002"}));
    EXPECT_EQ(others.back(), "375 more");
}

} // namespace
} // namespace lorva
