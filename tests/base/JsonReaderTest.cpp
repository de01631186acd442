// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/Json.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

namespace lorva {

struct Chapter
{
    QString title;
    qint64 pages = 0;
    std::optional<double> rating;
    std::optional<QByteArray> cover;
    bool operator==(const Chapter &) const = default;
};

template <class Fields, JsonRecordOf<Chapter> Record>
void jsonFields(Fields &fields, Record &chapter)
{
    fields("title", chapter.title);
    fields("pages", chapter.pages);
    fields("rating", chapter.rating);
    fields("cover", chapter.cover);
}

struct Book
{
    std::vector<Chapter> chapters;
    std::optional<std::map<QString, quint8>> index;
    std::optional<FilePath> file;
    bool operator==(const Book &) const = default;
};

template <class Fields, JsonRecordOf<Book> Record>
void jsonFields(Fields &fields, Record &book)
{
    fields("chapters", book.chapters);
    fields("index", book.index);
    fields("file", book.file);
}

namespace {

constexpr char kWholeBook[] =
    R"({"chapters":[{"title":"One \u00e9\ud83d\ude00","pages":12,"rating":4.5,"cover":"AP8="},)"
    R"({"title":"","pages":-3}],"index":{"a b":1,"c":255},"file":"file:///a%20b"})";

Book wholeBook()
{
    Book book;
    book.chapters = {{QStringLiteral("One é\U0001F600"), 12, 4.5, QByteArray("\0\xFF", 2)},
                     {QString(), -3, {}, {}}};
    book.index = {{QStringLiteral("a b"), quint8(1)}, {QStringLiteral("c"), quint8(255)}};
    book.file = FilePath("/a b");
    return book;
}

TEST(JsonReader, ReadsNestedRecords)
{
    const Result<Book> book = decodeJson<Book>(kWholeBook);
    ASSERT_TRUE(book) << book.error().detail.toStdString();
    EXPECT_EQ(*book, wholeBook());
    EXPECT_EQ(decodeJson<Book>(encodeJson(*book)), wholeBook());
}

TEST(JsonReader, TakesKeysInAnyOrderAndPassesOverOthers)
{
    const char *const texts[]{
        R"({"pages":5,"title":"x"})",
        " \t\r\n{ \"pages\" : 5 , \"title\" : \"x\" } \n",
        R"({"new":{"a":[1,2.5e3,{"b":null}],"title":"no"},"title":"x","z":[],"pages":5,"q":"\n"})",
        R"({"t\u0069tle":"x","pages":5})",
        R"({"title":"x","pages":5,"rating":null,"cover":null})",
        R"({"titles":1,"titl":2,"":3,"title":"x","pages":5})",
        R"({"k":1,"k":2,"title":"x","pages":5})",
    };
    for (const char *text : texts) {
        const Result<Chapter> chapter = decodeJson<Chapter>(text);
        ASSERT_TRUE(chapter) << text << ": " << chapter.error().detail.toStdString();
        EXPECT_EQ(*chapter, (Chapter{QStringLiteral("x"), 5, {}, {}})) << text;
    }
}

struct DamageCase
{
    QByteArray json;
    ErrorKind kind;
    const char *detail;
};

template <class T>
void expectFailures(std::span<const DamageCase> cases)
{
    for (const DamageCase &each : cases) {
        const Result<T> result = decodeJson<T>(each.json);
        ASSERT_FALSE(result) << each.json.left(200).constData();
        EXPECT_EQ(result.error().detail.toStdString(), each.detail)
            << each.json.left(200).constData();
        EXPECT_EQ(result.error().kind, each.kind) << each.json.left(200).constData();
    }
}

TEST(JsonReader, NamesTheKeyThatFailed)
{
    const DamageCase cases[]{
        {"[]", ErrorKind::typeMismatch, "expected an object"},
        {"3", ErrorKind::typeMismatch, "expected an object"},
        {"{}", ErrorKind::missingKey, "chapters: missing"},
        {R"({"chapters":{}})", ErrorKind::typeMismatch, "chapters: expected an array"},
        {R"({"chapters":null})", ErrorKind::typeMismatch, "chapters: expected an array"},
        {R"({"chapters":[{"title":"a","pages":1},7]})", ErrorKind::typeMismatch,
         "chapters[1]: expected an object"},
        {R"({"chapters":[{"pages":1}]})", ErrorKind::missingKey, "chapters[0].title: missing"},
        {R"({"chapters":[{"title":1,"pages":1}]})", ErrorKind::typeMismatch,
         "chapters[0].title: expected a string"},
        {R"({"chapters":[{"title":null,"pages":1}]})", ErrorKind::typeMismatch,
         "chapters[0].title: expected a string"},
        {R"({"chapters":[{"title":"","pages":1.0}]})", ErrorKind::typeMismatch,
         "chapters[0].pages: expected an integer"},
        {R"({"chapters":[{"title":"","pages":"1"}]})", ErrorKind::typeMismatch,
         "chapters[0].pages: expected an integer"},
        {R"({"chapters":[{"title":"","pages":true}]})", ErrorKind::typeMismatch,
         "chapters[0].pages: expected an integer"},
        {R"({"chapters":[{"title":"","pages":9223372036854775808}]})", ErrorKind::invalidValue,
         "chapters[0].pages: the integer is out of range"},
        {R"({"chapters":[{"title":"","pages":-9223372036854775809}]})", ErrorKind::invalidValue,
         "chapters[0].pages: the integer is out of range"},
        {R"({"chapters":[{"title":"","pages":1,"rating":"4"}]})", ErrorKind::typeMismatch,
         "chapters[0].rating: expected a number"},
        {R"({"chapters":[{"title":"","pages":1,"rating":1e999}]})", ErrorKind::typeMismatch,
         "chapters[0].rating: expected a number"},
        {R"({"chapters":[{"title":"","pages":1,"cover":"AP8"}]})", ErrorKind::invalidValue,
         "chapters[0].cover: broken base64"},
        {R"({"chapters":[{"title":"","pages":1,"cover":"A*8="}]})", ErrorKind::invalidValue,
         "chapters[0].cover: broken base64"},
        {R"({"chapters":[{"title":"","pages":1,"pages":1}]})", ErrorKind::malformed,
         "chapters[0].pages: duplicate key"},
        {R"({"chapters":[],"index":{"a b":256}})", ErrorKind::invalidValue,
         "index[\"a b\"]: the integer is out of range"},
        {R"({"chapters":[],"index":{"a":1,"a":1}})", ErrorKind::malformed,
         "index.a: duplicate key"},
        {R"({"chapters":[],"file":"http://x/"})", ErrorKind::invalidValue,
         "file: \"http://x/\" is no file URL: it does not begin with file:"},
    };
    expectFailures<Book>(cases);
}

TEST(JsonReader, RefusesMalformedTextWhereverItStands)
{
    const QByteArray nested = QByteArray(100'000, '[') + QByteArray(100'000, ']');
    const QByteArray justTooDeep =
        QByteArray(JsonReader::kMaxDepth, '[') + QByteArray(JsonReader::kMaxDepth, ']');
    const QByteArray bads[]{
        "",
        " ",
        "{",
        "}",
        "[",
        "{\"title\"",
        "{\"title\":",
        "{\"title\":\"x\"",
        "{\"title\":\"x\",}",
        R"({"title":"x","pages":5}})",
        R"({"title":"x","pages":5} x)",
        R"({"title":"x","pages":5}{})",
        R"({"title":"x" "pages":5})",
        R"({"title" "x","pages":5})",
        R"({title:"x","pages":5})",
        R"({"title":"x","pages":5,})",
        R"({,"title":"x","pages":5})",
        R"({"title":"x","pages":05})",
        R"({"title":"x","pages":+5})",
        R"({"title":"x","pages":5x})",
        R"({"title":"x"y,"pages":5})",
        R"({"title":'x',"pages":5})",
        R"({"title":"x","pages":5]})",
        R"(["title":"x","pages":5])",
        // in what nobody reads
        R"({"u":tru,"title":"x","pages":5})",
        R"({"u":[1 2],"title":"x","pages":5})",
        R"({"u":{"a"},"title":"x","pages":5})",
        R"({"u":"\q","title":"x","pages":5})",
        R"({"u":1.,"title":"x","pages":5})",
        R"({"u":nul,"title":"x","pages":5})",
        R"({"u":[1,],"title":"x","pages":5})",
        R"({"u":{"\ud800":1},"title":"x","pages":5})",
        R"({"u":[{]}],"title":"x","pages":5})",
        // strings
        R"({"title":"\ud800","pages":5})",
        R"({"title":"\udc00","pages":5})",
        R"({"title":"\ud800\u0041","pages":5})",
        R"({"title":"\ud800x","pages":5})",
        R"({"title":"\u12g4","pages":5})",
        R"({"title":"\x","pages":5})",
        "{\"title\":\"\xFF\",\"pages\":5}",
        "{\"title\":\"\xED\xA0\x80\",\"pages\":5}",
        "{\"title\":\"\xC0\xAF\",\"pages\":5}",
        "{\"title\":\"a\nb\",\"pages\":5}",
        QByteArray("{\"title\":\"a\0b\",\"pages\":5}", 25),
        QByteArray("{\"title\":\"ab\",\"pages\":5}\0", 25),
        "\xEF\xBB\xBF{\"title\":\"x\",\"pages\":5}",
        // depth
        "{\"u\":" + nested + ",\"title\":\"x\",\"pages\":5}",
        nested,
        "{\"u\":" + justTooDeep + ",\"title\":\"x\",\"pages\":5}",
    };
    for (const QByteArray &bad : bads)
        EXPECT_FALSE(decodeJson<Chapter>(bad)) << bad.left(200).constData();
    const QByteArray fits =
        "{\"u\":" + justTooDeep.mid(1).chopped(1) + ",\"title\":\"x\",\"pages\":5}";
    EXPECT_TRUE(decodeJson<Chapter>(fits));
}

TEST(JsonReader, SaysWhatIsMalformed)
{
    const DamageCase cases[]{
        {"", ErrorKind::malformed, "the document is empty"},
        {"{\"title\":\"\xFF\"}", ErrorKind::malformed, "invalid UTF-8"},
        {"{\"title\":\"a\nb\"}", ErrorKind::malformed, "control character in a string"},
        {R"({"title":"\ud800","pages":5})", ErrorKind::malformed,
         "title: broken escape in a string"},
        {R"({"title":"x","pages":5}{})", ErrorKind::malformed, "text after the end"},
        {R"({"title":"x","pages":5} 1)", ErrorKind::malformed, "malformed JSON"},
        {R"({"title":"\udc00x","pages":5})", ErrorKind::malformed,
         "title: broken escape in a string"},
        {R"({"u":[0,{"v":nul}]})", ErrorKind::malformed, "u[1].v: malformed JSON"},
        {R"({"a\nb":1 2})", ErrorKind::malformed, "malformed JSON"},
    };
    expectFailures<Chapter>(cases);
}

/// Every byte of a document damaged in many ways: whatever a second reader calls broken JSON must
/// fail here too, and nothing may crash.
TEST(JsonReader, AgreesWithASecondReaderAboutDamage)
{
    const QByteArray whole = kWholeBook;
    int accepted = 0;
    int refused = 0;
    const auto check = [&](const QByteArray &json) {
        const bool isRead = decodeJson<Book>(json).has_value();
        QJsonParseError error;
        QJsonDocument::fromJson(json, &error);
        if (error.error != QJsonParseError::NoError) {
            EXPECT_FALSE(isRead) << json.constData();
        }
        ++(isRead ? accepted : refused);
    };
    for (qsizetype at = 0; at < whole.size(); ++at) {
        check(whole.first(at));
        check(QByteArray(whole).remove(at, 1));
        for (const char byte :
             {'"', '\\', ',', ':', '[', ']', '{', '}', '0', '-', 'x', ' ', '\0', '\n', '\xFF'}) {
            check(QByteArray(whole).insert(at, byte));
            QByteArray changed = whole;
            changed[at] = byte;
            check(changed);
        }
    }
    // Damage inside a string is another string; damage to the structure is not.
    EXPECT_GT(accepted, 300);
    EXPECT_GT(refused, 3000);
}

TEST(JsonReader, TheFirstFailureSticks)
{
    JsonReader in("[1,\"x\",2]");
    std::vector<qint64> numbers;
    in.readArray([&] {
        qint64 number = 0;
        in.read(number);
        numbers.push_back(number);
    });
    in.fail(ErrorKind::usage, QStringLiteral("later"));
    QString text;
    in.read(text);
    EXPECT_EQ(numbers, (std::vector<qint64>{1, 0}));
    EXPECT_EQ(in.finish(),
              (Error{ErrorKind::typeMismatch, QStringLiteral("[1]: expected an integer")}));
}

} // namespace

} // namespace lorva
