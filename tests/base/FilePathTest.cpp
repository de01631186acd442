// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/FilePath.h"

#include <gtest/gtest.h>

namespace lorva {

namespace {

std::string text(const QByteArray &bytes)
{
    return bytes.toStdString();
}

struct UrlCase
{
    QByteArray path;
    QByteArray url;
};

TEST(FilePath, BecomesAUrlAndComesBack)
{
    const UrlCase cases[]{
        {"/", "file:///"},
        {"/fonts/Inter-Bold_2.otf~", "file:///fonts/Inter-Bold_2.otf~"},
        {"/a b/c%d.ttf", "file:///a%20b/c%25d.ttf"},
        {"/q?x#y&z=1+2", "file:///q%3Fx%23y%26z%3D1%2B2"},
        {"/line\nbreak", "file:///line%0Abreak"},
        {"/\xE6\x98\x8E\xE6\x9C\x9D.ttc", "file:///%E6%98%8E%E6%9C%9D.ttc"},
        {"/no-utf8-\xFF\x80.ttf", "file:///no-utf8-%FF%80.ttf"},
        {"/back\\slash\"quote", "file:///back%5Cslash%22quote"},
    };
    for (const UrlCase &each : cases) {
        EXPECT_EQ(text(FilePath(each.path).toUrl()), text(each.url));
        const Result<FilePath> back = FilePath::fromUrl(each.url);
        ASSERT_TRUE(back) << each.url.constData();
        EXPECT_EQ(text(back->bytes()), text(each.path));
    }
}

TEST(FilePath, AcceptsHowOthersWriteUrls)
{
    const UrlCase cases[]{
        {"/a b", "FILE:///a b"}, {"/a", "file://localhost/a"},    {"/a", "file://LocalHost/a"},
        {"/a", "file:/a"},       {"/\xC3\xA9", "file:///%c3%a9"}, {"/\xC3\xA9", "file:///\xC3\xA9"},
    };
    for (const UrlCase &each : cases) {
        const Result<FilePath> path = FilePath::fromUrl(each.url);
        ASSERT_TRUE(path) << each.url.constData();
        EXPECT_EQ(text(path->bytes()), text(each.path));
    }
}

TEST(FilePath, RefusesWhatIsNoFileUrl)
{
    const QByteArray urls[]{
        "",
        "file",
        "file:",
        "file://",
        "/a",
        "http://localhost/a",
        "files:///a",
        "file:a",
        "file://server/a",
        "file://localhost",
        "file://localhostess/a",
        "file:///a%",
        "file:///a%4",
        "file:///a%zz",
        "file:///a%4g",
        "file:///a%00b",
        QByteArray("file:///a\0b", 11),
        "file:///a?b",
        "file:///a#b",
    };
    for (const QByteArray &url : urls) {
        const Result<FilePath> path = FilePath::fromUrl(url);
        ASSERT_FALSE(path) << url.constData();
        EXPECT_EQ(path.error().kind, ErrorKind::invalidValue);
        EXPECT_TRUE(path.error().detail.contains(u"no file URL"));
    }
}

TEST(FilePath, TakesPathsApart)
{
    struct Case
    {
        QByteArray path, name, extension, parent;
    };
    const Case cases[]{
        {"/fonts/Inter.OTF", "Inter.OTF", "otf", "/fonts"},
        {"/fonts/.hidden", ".hidden", "", "/fonts"},
        {"/fonts/.hidden.ttf", ".hidden.ttf", "ttf", "/fonts"},
        {"/fonts/a.b.TTC", "a.b.TTC", "ttc", "/fonts"},
        {"/fonts.d/plain", "plain", "", "/fonts.d"},
        {"/fonts/dot.", "dot.", "", "/fonts"},
        {"/top.ttf", "top.ttf", "ttf", "/"},
        {"/", "", "", "/"},
        {"bare", "bare", "", ""},
        {"", "", "", ""},
    };
    for (const Case &each : cases) {
        const FilePath path(each.path);
        EXPECT_EQ(text(path.fileName()), text(each.name)) << each.path.constData();
        EXPECT_EQ(text(path.lowerCaseExtension()), text(each.extension)) << each.path.constData();
        EXPECT_EQ(text(path.parent().bytes()), text(each.parent)) << each.path.constData();
    }
}

TEST(FilePath, ChildDoublesNoSlash)
{
    EXPECT_EQ(text(FilePath("/").child("a").bytes()), "/a");
    EXPECT_EQ(text(FilePath("/a").child("b").bytes()), "/a/b");
    EXPECT_EQ(text(FilePath("/a/").child("b").bytes()), "/a/b");
}

TEST(FilePath, KnowsWhatLiesInside)
{
    struct Case
    {
        QByteArray path, folder;
        bool isInside;
    };
    const Case cases[]{
        {"/a/b", "/a", true},  {"/a", "/a", true},   {"/a/b/c", "/a/", true},
        {"/a", "/", true},     {"/ab", "/a", false}, {"/a", "/a/b", false},
        {"/A/b", "/a", false}, {"/a", "", false},    {"/a/b", "/a/b/", true},
    };
    for (const Case &each : cases)
        EXPECT_EQ(FilePath(each.path).isInside(FilePath(each.folder)), each.isInside)
            << each.path.constData() << " in " << each.folder.constData();
}

TEST(FilePath, ShowsAnyBytesOnOneLine)
{
    EXPECT_EQ(FilePath("/a\nb\tc").displayText(), QStringLiteral("/a b c"));
    EXPECT_EQ(FilePath("/a\xFF"
                       "b")
                  .displayText(),
              QStringLiteral("/a\uFFFDb"));
    EXPECT_EQ(FilePath("/\xE2\x80\xA8x").displayText(), QStringLiteral("/ x"));
    EXPECT_FALSE(FilePath("/a\xFF").isUtf8());
    EXPECT_TRUE(FilePath("/\xC3\xA9").isUtf8());
}

TEST(FilePath, OrdersByBytes)
{
    EXPECT_LT(FilePath("/B"), FilePath("/a"));
    EXPECT_LT(FilePath("/z"), FilePath("/\xC3\xA9"));
    EXPECT_LT(FilePath("/a"), FilePath("/a/b"));
}

} // namespace

} // namespace lorva
