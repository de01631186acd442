// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/GuardedMapping.h"
#include "text/OpenedFile.h"
#include "text/WarmFaces.h"

#include "text/LayoutSupport.h"

#include "text/GlyphPainter.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

using namespace lorva;
using namespace lorva::test;

namespace {

constexpr int kPage = 4096;

/// A file of letters, open for everything.
class LetterFile
{
public:
    explicit LetterFile(int pages)
        : m_path(writeFile(TestHome::instance().makeFolder("letters"), "letters",
                           QByteArray(qsizetype(pages) * kPage, 'x')))
        , m_fd(::open(m_path.c_str(), O_RDWR))
    {
    }
    ~LetterFile() { ::close(m_fd); }
    LetterFile(const LetterFile &) = delete;
    LetterFile &operator=(const LetterFile &) = delete;

    int fd() const { return m_fd; }
    void cutTo(int pages) { EXPECT_EQ(::ftruncate(m_fd, off_t(pages) * kPage), 0); }

private:
    const FilePath m_path;
    const int m_fd;
};

// What follows runs in child processes: each starts with the signal as it found it.

[[noreturn]] void end(bool isRight)
{
    std::_Exit(isRight ? 0 : 1);
}

[[noreturn]] void readsZerosWhereTheFileWasCut()
{
    LetterFile file(8);
    const auto mapping = GuardedMapping::map(file.fd(), kPage + 100, 5 * kPage);
    const auto other = GuardedMapping::map(file.fd(), 0, 2 * kPage);
    file.cutTo(3);
    bool isRight = mapping && other && mapping->data()[0] == 'x';
    for (int i = 2 * kPage; isRight && i < 5 * kPage; ++i)
        isRight = mapping->data()[i] == 0;
    end(isRight && other->data()[kPage] == 'x');
}

volatile sig_atomic_t foreignFaults = 0;

void foreignHandler(int, siginfo_t *info, void *)
{
    foreignFaults = foreignFaults + 1;
    char *const page = static_cast<char *>(info->si_addr)
        - reinterpret_cast<quintptr>(info->si_addr) % quintptr(kPage);
    static_cast<void>(
        ::mmap(page, kPage, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED, -1, 0));
}

[[noreturn]] void leavesForeignFaultsToTheirHandler()
{
    struct sigaction action = {};
    action.sa_sigaction = foreignHandler;
    action.sa_flags = SA_SIGINFO;
    ::sigaction(SIGBUS, &action, nullptr);
    LetterFile file(4);
    const auto mapping = GuardedMapping::map(file.fd(), 0, 4 * kPage);
    const auto *foreign = static_cast<const volatile char *>(
        ::mmap(nullptr, 4 * kPage, PROT_READ, MAP_PRIVATE, file.fd(), 0));
    file.cutTo(1);
    const bool isOurs = mapping->data()[2 * kPage] == 0 && foreignFaults == 0;
    const bool isTheirs = foreign[2 * kPage] == 0 && foreignFaults == 1;
    end(isOurs && isTheirs);
}

/// A fault that nobody handles must still end the process, with our handler in place.
[[noreturn]] void diesOfForeignFaults()
{
    ::signal(SIGBUS, SIG_DFL);
    LetterFile file(4);
    const auto mapping = GuardedMapping::map(file.fd(), 0, 4 * kPage);
    const auto *foreign = static_cast<const volatile char *>(
        ::mmap(nullptr, 4 * kPage, PROT_READ, MAP_PRIVATE, file.fd(), 0));
    file.cutTo(1);
    end(foreign[2 * kPage] == 'x');
}

TEST(GuardedMappingDeathTest, ReadsZerosWhereTheFileWasCut)
{
    EXPECT_EXIT(readsZerosWhereTheFileWasCut(), ::testing::ExitedWithCode(0), "");
}

TEST(GuardedMappingDeathTest, LeavesForeignFaultsToTheirHandler)
{
    EXPECT_EXIT(leavesForeignFaultsToTheirHandler(), ::testing::ExitedWithCode(0), "");
}

TEST(GuardedMappingDeathTest, DiesOfForeignFaultsThatNobodyHandles)
{
    EXPECT_EXIT(diesOfForeignFaults(), ::testing::KilledBySignal(SIGBUS), "");
}

TEST(GuardedMapping, ManyAtOnceAreRefusedAndSlotsComeBack)
{
    LetterFile file(1);
    for (int round = 0; round < 3; ++round) {
        std::vector<std::unique_ptr<GuardedMapping>> mappings;
        while (auto mapping = GuardedMapping::map(file.fd(), 10, 100))
            mappings.push_back(std::move(mapping));
        EXPECT_GT(mappings.size(), 100u);
        EXPECT_EQ(mappings.back()->data()[99], 'x');
    }
    EXPECT_EQ(GuardedMapping::map(-1, 0, 100), nullptr);
    EXPECT_EQ(GuardedMapping::map(file.fd(), 0, 0), nullptr);
}

TEST(GuardedMapping, OnlyInstalledFilesAreMapped)
{
    const FilePath own =
        writeFile(TestHome::instance().makeFolder("own"), "own.ttf", QByteArray(2 * kPage, 'x'));
    const auto ownFile = OpenedFile::open(own);
    const auto installed = OpenedFile::open(realFont("truetype/dejavu/DejaVuSans.ttf"));
    ASSERT_TRUE(ownFile && installed);
    EXPECT_EQ((*ownFile)->map(0, kPage), nullptr);
    EXPECT_NE((*installed)->map(0, kPage), nullptr);
    EXPECT_EQ((*installed)->map((*installed)->size() - 1, 2), nullptr);
    EXPECT_EQ((*installed)->map(~quint64(0), 1), nullptr);
}

/// The large outlines of an installed font cost what is looked at, those of one's own file all;
/// both look the same.
TEST(GuardedMapping, MappedOutlinesAreTheSameAsReadOnes)
{
    const FilePath installed = realFont("opentype/noto/NotoSansCJK-Regular.ttc");
    const FilePath own =
        writeFile(TestHome::instance().makeFolder("own"), "own.ttc", readFile(installed));
    const auto use = [](const FilePath &path) {
        WarmFaces::instance().clear();
        const qint64 before = WarmFaces::tableBytes();
        const Font font(openFace(path, {3, -1}), 20);
        const QPainterPath outlines =
            GlyphPainter::path(TextLayout(QStringLiteral("永和直骨 Aa"), font));
        return std::pair(outlines, WarmFaces::tableBytes() - before);
    };
    const auto [mapped, mappedBytes] = use(installed);
    const auto [read, readBytes] = use(own);
    EXPECT_FALSE(mapped.isEmpty());
    EXPECT_EQ(mapped, read);
    EXPECT_LT(mappedBytes, readBytes / 3);
}

} // namespace
