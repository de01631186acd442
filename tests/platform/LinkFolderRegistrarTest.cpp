// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/LinkFolderRegistrar.h"

#include "platform/linux/XdgFolders.h"
#include "support/AdverseSystem.h"
#include "support/FontBuilder.h"

#include <QProcess>

#include <gmock/gmock.h>

#include <algorithm>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva {
namespace {

using test::FontBuilder;
using test::TestHome;
using test::writeFile;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::UnorderedElementsAre;

/// What a program that starts now lists.
std::string listedFonts()
{
    QProcess process;
    process.start(QStringLiteral("fc-list"),
                  {QStringLiteral("--format=%{family}|%{postscriptname}|%{file}\\n")});
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0);
    return process.readAllStandardOutput().toStdString();
}

int codeOf(const std::optional<FontManagerError> &error)
{
    return error ? error->code : 0;
}

class LinkFolderRegistrarTest : public testing::Test
{
protected:
    int add(const FilePath &file) { return codeOf(registrar.registerFont(file, user)); }
    int remove(const FilePath &file) { return codeOf(registrar.unregisterFont(file, user)); }
    FilePath linkOf(const FilePath &file) const
    {
        return links.child(LinkFolderRegistrar::linkName(file));
    }
    std::vector<FontManagerError> addAll(const std::vector<FilePath> &files)
    {
        std::vector<FontManagerError> all;
        size_t calls = 0;
        registrar.registerFonts(files, [&](const auto &errors, bool isDone) {
            EXPECT_EQ(isDone, calls == files.size());
            ++calls;
            all.insert(all.end(), errors.begin(), errors.end());
            return true;
        });
        EXPECT_EQ(calls, files.size() + 1);
        return all;
    }
    /// Of the link folder, hidden ones too.
    std::vector<std::string> names() const
    {
        std::vector<std::string> found;
        DIR *const stream = ::opendir(links.c_str());
        while (const dirent *const entry = stream ? ::readdir(stream) : nullptr) {
            const std::string name = entry->d_name;
            if (name != "." && name != "..")
                found.push_back(name);
        }
        if (stream)
            ::closedir(stream);
        return found;
    }

    static constexpr RegistrationScope user = RegistrationScope::user;
    const FilePath sources = test::makeCaseFolder();
    const FilePath links = xdgFolders().registeredLinks();
    LinkFolderRegistrar registrar{links};
};

TEST_F(LinkFolderRegistrarTest, EveryProgramSeesWhatIsRegisteredUntilItIsWithdrawn)
{
    const QByteArray font = FontBuilder("Far Away").postScriptName("FarAway-Regular").build();
    const FilePath file = writeFile(sources, "far.ttf", font);
    EXPECT_THAT(listedFonts(), Not(HasSubstr("Far Away")));

    EXPECT_EQ(add(file), 0);
    EXPECT_THAT(listedFonts(), HasSubstr("Far Away|FarAway-Regular"));
    EXPECT_THAT(registrar.registeredFonts(), ElementsAre(file));
    EXPECT_EQ(add(file), FontManagerError::kAlreadyRegistered);

    EXPECT_EQ(remove(file), 0);
    EXPECT_THAT(listedFonts(), Not(HasSubstr("Far Away")));
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(remove(file), FontManagerError::kNotRegistered);
    EXPECT_EQ(test::readFile(file), font);
}

TEST_F(LinkFolderRegistrarTest, OddNamesAreListedToo)
{
    QByteArray longName; // three bytes a letter, so that some cut falls into one
    for (int i = 0; i < 83; ++i)
        longName.append("字");
    const std::vector<QByteArray> odd{
        "with space.otf",  "with\nnewline.ttf",           ".hidden.ttf",
        longName + ".ttf", QByteArray(251, 'x') + ".otf", QByteArray(250, 'x') + ".otf"};
    std::vector<FilePath> files;
    for (const QByteArray &name : odd)
        files.push_back(writeFile(sources, name,
                                  FontBuilder(QStringLiteral("Odd %1").arg(files.size())).build()));
    const FilePath other = TestHome::instance().makeFolder("other");
    files.push_back(writeFile(other, odd.front(), FontBuilder("Odd 6").build()));

    EXPECT_THAT(addAll(files), IsEmpty());
    const std::string listed = listedFonts();
    for (size_t i = 0; i < files.size(); ++i)
        EXPECT_THAT(listed, HasSubstr("Odd " + std::to_string(i) + "|"));
    for (const std::string &name : names()) {
        EXPECT_LE(name.size(), 255U);
        EXPECT_TRUE(QByteArray::fromStdString(name).isValidUtf8());
    }
    std::ranges::sort(files);
    EXPECT_EQ(registrar.registeredFonts(), files);
    for (const FilePath &file : files)
        EXPECT_EQ(remove(file), 0);
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(LinkFolderRegistrarTest, AFileThatHasGoneIsListedUntilTheChangeIsAnnounced)
{
    const FilePath file = writeFile(sources, "gone.ttf", FontBuilder("Soon Gone").build());
    EXPECT_EQ(add(file), 0);
    EXPECT_THAT(listedFonts(), HasSubstr("Soon Gone"));
    ::unlink(file.c_str());
    registrar.announceChanges();
    EXPECT_THAT(listedFonts(), Not(HasSubstr("Soon Gone")));
    EXPECT_THAT(registrar.registeredFonts(), ElementsAre(file));
    EXPECT_EQ(remove(file), 0);
}

TEST_F(LinkFolderRegistrarTest, WhatOthersPutIntoTheFolderStays)
{
    const FilePath file = writeFile(sources, "a.ttf", "a");
    const FilePath blocked = writeFile(sources, "b.ttf", "b");
    ::mkdir(links.c_str(), 0700);
    // A link that leads elsewhere is replaced, anything else is not.
    ASSERT_EQ(::symlink("/else/where", linkOf(file).c_str()), 0);
    writeFile(links, linkOf(blocked).fileName(), "a plain file");
    ASSERT_EQ(::symlink(blocked.c_str(), links.child("by-hand.ttf").c_str()), 0);
    EXPECT_THAT(registrar.registeredFonts(), IsEmpty());
    EXPECT_EQ(remove(file), FontManagerError::kNotRegistered);
    EXPECT_EQ(remove(blocked), FontManagerError::kNotRegistered);

    EXPECT_EQ(add(file), 0);
    const std::vector<FontManagerError> errors = addAll({file, blocked});
    ASSERT_EQ(errors.size(), 1U);
    EXPECT_EQ(errors.front().code, FontManagerError::kCannotRegister);
    EXPECT_THAT(errors.front().fontURLs, ElementsAre(blocked));
    EXPECT_THAT(registrar.registeredFonts(), ElementsAre(file));
    EXPECT_EQ(test::readFile(linkOf(blocked)), "a plain file");
    EXPECT_THAT(names(),
                UnorderedElementsAre(linkOf(file).fileName().toStdString(),
                                     linkOf(blocked).fileName().toStdString(), "by-hand.ttf"));
}

TEST_F(LinkFolderRegistrarTest, EndsAfterTheFileThatItIsToldAt)
{
    std::vector<FilePath> files;
    for (const char *name : {"1.ttf", "2.ttf", "3.ttf", "4.ttf"})
        files.push_back(writeFile(sources, name, name));
    int calls = 0;
    const auto untilSecond = [&](const auto &errors, bool isDone) {
        EXPECT_TRUE(errors.empty());
        EXPECT_EQ(isDone, ++calls == 3);
        return calls < 2;
    };
    registrar.registerFonts(files, untilSecond);
    EXPECT_THAT(registrar.registeredFonts(), ElementsAre(files[0], files[1]));
    EXPECT_EQ(calls, 3);
    addAll(files);
    calls = 0;
    registrar.unregisterFonts(files, untilSecond);
    EXPECT_THAT(registrar.registeredFonts(), ElementsAre(files[2], files[3]));
    EXPECT_EQ(calls, 3);
}

TEST_F(LinkFolderRegistrarTest, AFolderThatCannotBeUsedFailsEveryFile)
{
    const FilePath one = writeFile(sources, "1.ttf", "1");
    const FilePath two = writeFile(sources, "2.ttf", "2");
    const FilePath readOnly = TestHome::instance().makeFolder("read-only");
    ::chmod(readOnly.c_str(), 0555);
    ::chmod(sources.c_str(), 0755);
    const test::AsOrdinaryUser nobody;
    for (const FilePath &folder : {one, one.child("below"), readOnly, readOnly.child("below")}) {
        SCOPED_TRACE(folder.c_str());
        LinkFolderRegistrar broken(folder);
        std::vector<FilePath> failed;
        broken.registerFonts({one, two}, [&](const auto &errors, bool) {
            for (const FontManagerError &error : errors) {
                EXPECT_EQ(error.code, FontManagerError::kCannotRegister);
                EXPECT_FALSE(error.detail.isEmpty());
                failed.insert(failed.end(), error.fontURLs.begin(), error.fontURLs.end());
            }
            return true;
        });
        EXPECT_THAT(failed, ElementsAre(one, two));
        EXPECT_EQ(codeOf(broken.unregisterFont(one, RegistrationScope::user)),
                  FontManagerError::kNotRegistered);
        EXPECT_THAT(broken.registeredFonts(), IsEmpty());
        broken.announceChanges();
    }
}

TEST_F(LinkFolderRegistrarTest, OnlyWholePathsAreTaken)
{
    for (const char *const path : {"", "relative.ttf"})
        EXPECT_EQ(add(FilePath(path)), FontManagerError::kCannotRegister);
    EXPECT_EQ(add(FilePath(QByteArray("/a\0b.ttf", 8))), FontManagerError::kCannotRegister);
    EXPECT_EQ(add(FilePath(QByteArray("/" + QByteArray(5000, 'x')))),
              FontManagerError::kCannotRegister);
    EXPECT_THAT(addAll({}), IsEmpty());
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(LinkFolderRegistrarTest, TheProcessScopeReachesNobodyElse)
{
    const FilePath file("/fonts/p.ttf");
    constexpr RegistrationScope process = RegistrationScope::process;
    EXPECT_EQ(codeOf(registrar.registerFont(file, process)), 0);
    EXPECT_EQ(codeOf(registrar.registerFont(file, process)), FontManagerError::kAlreadyRegistered);
    EXPECT_EQ(remove(file), FontManagerError::kNotRegistered);
    EXPECT_EQ(codeOf(registrar.unregisterFont(file, process)), 0);
    EXPECT_EQ(codeOf(registrar.unregisterFont(file, process)), FontManagerError::kNotRegistered);
    EXPECT_THAT(names(), IsEmpty());
}

} // namespace
} // namespace lorva
