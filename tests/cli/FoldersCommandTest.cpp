// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ActivationHome.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace lorva {
namespace {

using test::expectFailure;
using test::lorvactl;
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
    const QJsonArray json = QJsonDocument::fromJson(lorvactl({"folders", "--json"}).out).array();
    ASSERT_EQ(json.size(), 2);
    EXPECT_EQ(json[0].toObject()["lastKnownPath"], path(library));
    EXPECT_EQ(json[0].toObject()["fontFiles"], 1);
    EXPECT_EQ(json[1].toObject()["isThere"], false);

    expectFailure(lorvactl({"folders", "remove", path(other), "nope"}), 1,
                  "there is no watched folder \"nope\"");
    EXPECT_EQ(done({"folders", "remove", path(other) + "/"}), listing(other, "not there"));
    const QString id = json[0].toObject()["id"].toString();
    EXPECT_EQ(done({"folders", "remove", id, path(link)}), listing(library, "1 font file"));
    EXPECT_EQ(done({"folders"}), "");
    EXPECT_TRUE(exists(library.child("Alpha-Regular.ttf")));
}

TEST_F(FoldersCommand, AddsAllOrNone)
{
    const FilePath file = test::writeFile(library, "file", "");
    struct Case
    {
        QStringList arguments;
        int exitCode;
        const char *words;
    };
    for (const Case &each : {
             Case{{"folders", "add", path(library), path(root.child("gone"))}, 1, "gone"},
             {{"folders", "add", path(library), path(file)}, 1, "is no folder"},
             {{"folders", "add", path(library), ""}, 2, "no empty name"},
             {{"folders", "add"}, 2, "add needs a folder"},
             {{"folders", "remove"}, 2, "remove needs a folder"},
             {{"folders", "list", "more"}, 2, "fewer words"},
             {{"folders", "move"}, 2, "unknown verb move"},
         })
        expectFailure(lorvactl(each.arguments), each.exitCode, each.words);
    const auto odd =
        test::shell(QStringLiteral("mkdir %1/$(printf '\\377') && lorvactl folders add "
                                   "%1/*")
                        .arg(path(makeFolder("odd"))));
    expectFailure(odd, 1, "is no UTF-8 text");
    EXPECT_EQ(done({"folders"}), "");
}

} // namespace
} // namespace lorva
