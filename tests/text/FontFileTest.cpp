// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/FontFile.h"

#include "text/FontLimits.h"
#include "text/OpenedFile.h"
#include "text/ReadingSupport.h"

#include <gmock/gmock.h>

#include <dirent.h>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace lorva::test {

namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

ErrorKind openErrorKind(const FilePath &path)
{
    const auto file = FontFile::open(path);
    EXPECT_FALSE(file);
    if (file)
        return ErrorKind::usage;
    const QString detail = file.error().detail;
    EXPECT_TRUE(detail.startsWith(path.displayText() + u": ")) << qUtf8Printable(detail);
    EXPECT_FALSE(detail.contains(u'\n') || detail.endsWith(u'.')) << qUtf8Printable(detail);
    return file.error().kind;
}

QByteArray bigEndian(std::initializer_list<quint32> numbers)
{
    QByteArray bytes;
    for (const quint32 number : numbers)
        for (int shift = 24; shift >= 0; shift -= 8)
            bytes.append(char(number >> shift));
    return bytes;
}

int openDescriptorCount()
{
    int count = 0;
    DIR *folder = ::opendir("/proc/self/fd");
    while (::readdir(folder))
        ++count;
    ::closedir(folder);
    return count;
}

} // namespace

TEST(FontFile, SaysWhatIsWrongWithBytesThatAreNoFont)
{
    const QByteArray font = FontBuilder().build();
    struct Case
    {
        const char *what;
        QByteArray bytes;
        ErrorKind expected;
    };
    const Case cases[] = {
        {"empty", "", ErrorKind::truncated},
        {"text", "This is a letter to my aunt.", ErrorKind::unsupported},
        {"one byte", "O", ErrorKind::unsupported},
        {"zeros", QByteArray(4096, '\0'), ErrorKind::unsupported},
        {"WOFF", "wOFF" + QByteArray(64, '\0'), ErrorKind::unsupported},
        {"WOFF2", "wOF2" + QByteArray(64, '\0'), ErrorKind::unsupported},
        {"Type 1 ASCII", "%!PS-AdobeFont-1.0: Foo", ErrorKind::unsupported},
        {"Type 1 binary", QByteArray("\x80\x01\x00\x10\x00\x00%!PS", 10), ErrorKind::unsupported},
        {"BDF", "STARTFONT 2.1\n", ErrorKind::unsupported},
        {"PCF",
         "\x01"
         "fcp"
             + QByteArray(64, '\0'),
         ErrorKind::unsupported},
        {"compressed", QByteArray("\x1f\x8b\x08") + QByteArray(64, '\0'), ErrorKind::unsupported},
        {"header only", font.left(8), ErrorKind::truncated},
        {"no directory", font.left(12), ErrorKind::truncated},
        {"half", font.left(font.size() / 2), ErrorKind::truncated},
        {"no tables", bigEndian({0x00010000, 0, 0}), ErrorKind::malformed},
        {"65,535 tables", bigEndian({0x00010000, 0xFFFF0000, 0}), ErrorKind::malformed},
        {"collection of none", "ttcf" + bigEndian({0x00010000, 0}), ErrorKind::truncated},
        {"collection without its list", "ttcf" + bigEndian({0x00010000, 65535}),
         ErrorKind::truncated},
        {"suitcase without fonts", FontBuilder::dfont({}), ErrorKind::unsupported},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(openErrorKind(writeFont(c.bytes)), c.expected);
    }
}

TEST(FontFile, OpensOnlyRegularFilesAndNeverWaits)
{
    const FilePath folder = TestHome::instance().makeFolder("odd");
    const FilePath fifo = folder.child("fifo.ttf");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    const FilePath circle = folder.child("circle.ttf");
    ASSERT_EQ(::symlink("circle.ttf", circle.c_str()), 0);
    const FilePath broken = folder.child("broken.ttf");
    ASSERT_EQ(::symlink("nowhere.ttf", broken.c_str()), 0);
    const FilePath socketPath = folder.child("s.ttf");
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    ASSERT_LT(size_t(socketPath.bytes().size()), sizeof address.sun_path);
    std::memcpy(address.sun_path, socketPath.c_str(), size_t(socketPath.bytes().size()));
    ASSERT_EQ(::bind(socket, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);

    EXPECT_EQ(openErrorKind(fifo), ErrorKind::notRegularFile);
    EXPECT_EQ(openErrorKind(socketPath), ErrorKind::notRegularFile);
    EXPECT_EQ(openErrorKind(folder), ErrorKind::notRegularFile);
    EXPECT_EQ(openErrorKind(FilePath("/dev/null")), ErrorKind::notRegularFile);
    EXPECT_EQ(openErrorKind(circle), ErrorKind::notFound);
    EXPECT_EQ(openErrorKind(broken), ErrorKind::notFound);
    EXPECT_EQ(openErrorKind(folder.child("missing.ttf")), ErrorKind::notFound);
    ::close(socket);
}

TEST(FontFile, RefusesWhatItMayNotRead)
{
    const FilePath path = writeFont(FontBuilder().build());
    ASSERT_EQ(::chmod(path.c_str(), 0), 0);
    constexpr uid_t kNobody = 65534;
    const uid_t before = ::geteuid();
    if (before == 0) {
        ASSERT_EQ(::seteuid(kNobody), 0);
    }
    EXPECT_EQ(openErrorKind(path), ErrorKind::permissionDenied);
    ASSERT_EQ(::seteuid(before), 0);
}

TEST(FontFile, RefusesAGiantSparseFile)
{
    const FilePath path = writeFont(FontBuilder().build());
    if (::truncate(path.c_str(), off_t(5) << 30) != 0)
        GTEST_SKIP() << "the temporary folder takes no sparse files";
    EXPECT_EQ(openErrorKind(path), ErrorKind::tooLarge);
}

TEST(FontFile, ReadsFacesFromEveryContainer)
{
    const QByteArray roman = FontBuilder("Foo").postScriptName("Foo-Regular").build();
    const QByteArray bold =
        FontBuilder("Foo", "Bold").postScriptName("Foo-Bold").weightClass(700).build();
    const char *kRoman = "0/-1 Foo|Regular|Foo-Regular w0.00 s0.00";
    const char *kBold = "1/-1 Foo|Bold|Foo-Bold w0.40 s0.00";
    EXPECT_THAT(describe(writeFont(roman)), ElementsAre(kRoman));
    EXPECT_THAT(describe(writeFont(FontBuilder::collection({roman, bold}))),
                ElementsAre(kRoman, kBold));
    EXPECT_THAT(describe(writeFont(FontBuilder::dfont({roman, bold}))), ElementsAre(kRoman, kBold));

    const auto face = openFace(writeFont(FontBuilder::dfont({roman, bold})), {1, -1});
    ASSERT_TRUE(face);
    EXPECT_EQ(face->glyphFor(U'A'), quint32(FontBuilder().glyphOf(U'A')));
}

TEST(FontFile, LeavesDamagedFacesOutAndKeepsTheOthers)
{
    const QByteArray sound = FontBuilder("Sound").build();
    QByteArray bytes = FontBuilder::collection({FontBuilder("Lost").build(), sound});
    bytes.replace(12 + 8, 4, "none");
    EXPECT_THAT(describe(writeFont(bytes)), ElementsAre("1/-1 Sound|Regular| w0.00 s0.00"));
    const auto lost = openFont(writeFont(bytes))->face({0, -1});
    ASSERT_FALSE(lost);
    EXPECT_EQ(lost.error().kind, ErrorKind::unsupported);
}

TEST(FontFile, BoundsACollectionThatClaims65535Faces)
{
    const QByteArray font = FontBuilder().build();
    QByteArray bytes = FontBuilder::collection({font, font});
    bytes.replace(8, 4, bigEndian({65535}));
    const auto file = openFont(writeFont(bytes));
    ASSERT_TRUE(file);
    EXPECT_LE(file->faceCount(), kMaxFacesPerFile);
    EXPECT_THAT(*file->descriptors(), SizeIs(2));

    QByteArray same = "ttcf" + bigEndian({0x00010000, 65535});
    const quint32 start = 12 + 4 * 65535;
    for (int i = 0; i < 65535; ++i)
        same += bigEndian({start});
    same += QByteArray(FontBuilder::collection({font})).mid(16);
    EXPECT_EQ(openFont(writeFont(same))->faceCount(), kMaxFacesPerFile);
}

TEST(FontFile, CountsAFaceOnlyWithANameOrACharacterMap)
{
    EXPECT_THAT(describe(writeFont(FontBuilder("Named").withoutCmap().build())), SizeIs(1));
    EXPECT_THAT(describe(writeFont(FontBuilder().withoutNames().build())),
                ElementsAre("0/-1 || w0.00 s0.00"));

    const FilePath path = writeFont(FontBuilder().withoutNames().withoutCmap().build());
    const auto none = openFont(path)->descriptors();
    ASSERT_FALSE(none);
    EXPECT_EQ(none.error().kind, ErrorKind::malformed);
    EXPECT_FALSE(
        openFont(writeFont(FontBuilder().withoutNames().codePoints(U"").build()))->descriptors());
}

TEST(FontFile, RefusesFacesAndInstancesThatItDoesNotHave)
{
    const auto file = openFont(
        writeFont(FontBuilder().axis("wght", 100, 400, 900).instance("Bold", {700}).build()));
    for (const FaceKey key : {FaceKey{1, -1}, FaceKey{-1, -1}, FaceKey{0, 1}, FaceKey{0, -2}}) {
        const auto face = file->face(key);
        ASSERT_FALSE(face) << key.faceIndex << ' ' << key.namedInstance;
        EXPECT_EQ(face.error().kind, ErrorKind::notFound);
    }
    EXPECT_TRUE(file->face({0, 0}));
}

TEST(FontFile, HoldsNoDescriptorUnlessAskedTo)
{
    const FilePath path = writeFont(FontBuilder().build());
    const int before = openDescriptorCount();
    {
        const auto opened = FontFile::openForReading(path);
        EXPECT_EQ(openDescriptorCount(), before + 1);
        EXPECT_TRUE(opened->file->descriptors());
        EXPECT_EQ((*opened->file->face({}))->glyphFor(U'A'), 34u);
        EXPECT_EQ(openDescriptorCount(), before + 1);
    }
    const auto face = openFace(path);
    EXPECT_EQ(face->metrics().unitsPerEm, 1000);
    EXPECT_EQ(face->names().family, QLatin1String("Fixture"));
    EXPECT_EQ(openDescriptorCount(), before);
}

TEST(FontFile, RefusesAFileThatChangedAfterItWasOpened)
{
    const QByteArray font = FontBuilder().build();
    const FilePath path = writeFont(font, "changing.ttf");
    const auto file = openFont(path);
    const auto face = openFace(path);
    ASSERT_EQ(::truncate(path.c_str(), font.size() / 2), 0);

    EXPECT_FALSE(file->descriptors());
    EXPECT_FALSE(file->face({}));
    EXPECT_FALSE(file->reach({}, {}));
    EXPECT_EQ(face->names(), FaceNames());
    EXPECT_EQ(face->glyphFor(U'A'), std::nullopt);
    EXPECT_EQ(face->metrics().capHeight, 700);
    EXPECT_TRUE(face->familyNamesInAllLanguages().empty());
}

TEST(FontFile, ReadsEmptyTablesFromAFileThatShrinksWhileItIsOpen)
{
    const QByteArray font = FontBuilder().build();
    const FilePath path = writeFont(font + QByteArray(8192, '\0'));
    const auto opened = FontFile::openForReading(path);
    ASSERT_TRUE(opened);
    ASSERT_EQ(::truncate(path.c_str(), 4096), 0);
    EXPECT_TRUE(opened->opening->bytes(5000, 100).isNull());
    EXPECT_TRUE(opened->opening->bytes(quint64(-50), 100).isNull());
    const auto face = opened->file->face({});
    ASSERT_TRUE(face);
    EXPECT_TRUE((*face)->shapingFont({}));
}

TEST(FontFile, ReadsCollectionsOfTenCjkFaces)
{
    const FilePath path = realFont("opentype/noto/NotoSansCJK-Bold.ttc");
    const auto lines = describe(path);
    ASSERT_THAT(lines, SizeIs(10));
    EXPECT_EQ(lines[0], "0/-1 Noto Sans CJK JP|Bold|NotoSansCJKjp-Bold w0.40 s0.00");
    EXPECT_EQ(lines[9], "9/-1 Noto Sans Mono CJK HK|Bold|NotoSansMonoCJKhk-Bold w0.40 s0.00");
    EXPECT_EQ(openFace(path, {3, -1})->formatNumber(), 3);
}

} // namespace lorva::test
