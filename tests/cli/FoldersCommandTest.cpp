// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ActivationHome.h"

namespace lorva {
namespace {

using test::expect;
using test::path;

using FoldersCommand = test::ActivationHome;

std::string listing(const FilePath &folder, const char *state)
{
    return folder.bytes().toStdString() + '\t' + state + '\n';
}

TEST_F(FoldersCommand, AddsListsAndRemoves)
{
    addFont(library, "Alpha");
    test::writeFile(library, "notes.txt", "no font");
    const FilePath link = root.child("link");
    ASSERT_EQ(::symlink(library.c_str(), link.c_str()), 0);
    const FilePath other = makeFolder("other");

    EXPECT_EQ(done({"folders"}), "");
    EXPECT_EQ(done({"folders", "add", path(link), path(library), path(library) + "/"}),
              listing(library, "1 font file"));
    EXPECT_EQ(done({"folders", "add", path(library), path(other)}), listing(other, "0 font files"));
    EXPECT_THAT(done({"status", "Alpha"}), testing::StartsWith("Alpha\tinactive\n"));
    for (const QStringList &words : {QStringList{"list"}, QStringList{"search", "alph"}})
        EXPECT_THAT(done(words), testing::StartsWith("Alpha\tRegular\n"))
            << "watched folders belong to the library";

    ::rmdir(other.c_str());
    EXPECT_EQ(done({"folders", "list"}),
              listing(library, "1 font file") + listing(other, "not there"));
    const QJsonArray json = test::json({"folders"}).array();
    ASSERT_EQ(json.size(), 2);
    EXPECT_EQ(json[0].toObject()["lastKnownPath"], path(library));
    EXPECT_EQ(json[0].toObject()["fontFiles"], 1);
    EXPECT_EQ(json[1].toObject()["isThere"], false);

    expect({{{"folders", "remove", path(other), "nope"}, "no watched folder \"nope\"", 1}});
    EXPECT_EQ(done({"folders", "remove", path(other) + "/"}), listing(other, "not there"));
    const QString id = json[0].toObject()["id"].toString();
    EXPECT_EQ(done({"folders", "remove", id, path(link)}), listing(library, "1 font file"));
    EXPECT_EQ(done({"folders"}), "");
    EXPECT_TRUE(exists(library.child("Alpha-Regular.ttf")));
}

TEST_F(FoldersCommand, AddsAllOrNone)
{
    const FilePath file = test::writeFile(library, "file", "");
    expect({
        {{"folders", "add", path(library), path(root.child("gone"))}, "gone", 1},
        {{"folders", "add", path(library), path(file)}, "is no folder", 1},
        {{"folders", "add", path(library), ""}, "no empty name", 2},
        {{"folders", "add"}, "add needs a folder", 2},
        {{"folders", "remove"}, "remove needs a folder", 2},
        {{"folders", "list", "more"}, "fewer words", 2},
        {{"folders", "move"}, "unknown verb move", 2},
    });
    // Removed at once, as Qt's temporary folder cannot remove what is no text.
    const auto odd =
        test::shell(QStringLiteral("cd %1; mkdir \"$(printf '\\377')\"; lorvactl folders add *; "
                                   "code=$?; rmdir *; exit $code")
                        .arg(path(makeFolder("odd"))));
    test::expectFailure(odd, 1, "is no UTF-8 text");
    EXPECT_EQ(done({"folders"}), "");
}

} // namespace
} // namespace lorva
