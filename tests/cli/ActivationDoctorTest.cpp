// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ActivationHome.h"
#include "platform/RunLock.h"

namespace lorva {
namespace {

using test::path;
using testing::HasSubstr;
using testing::Not;

class ActivationDoctor : public test::ActivationHome
{
protected:
    std::string told(int exitCode) const
    {
        return test::toldByDoctor(exitCode, [this] { return everything(); });
    }
    FilePath link() const
    {
        namespace fs = std::filesystem;
        const fs::path folder = links().bytes().toStdString();
        return FilePath(QByteArray::fromStdString(fs::directory_iterator(folder)->path().string()));
    }
    FilePath links() const { return fonts.child("lorva-registered"); }
};

TEST_F(ActivationDoctor, ComparesBooksAndDisk)
{
    const FilePath alpha = addFont(library, "Alpha");
    const FilePath beta = addFont(library, "Beta");
    const QStringList registerAlpha{"activate", path(alpha), "--method=register"};
    done(registerAlpha);
    done({"activate", path(beta), "--method=copy"});
    std::string text = told(0);
    EXPECT_THAT(text, HasSubstr("books and disk agree: 1 copied, 1 registered\n"));
    EXPECT_THAT(text, HasSubstr("note\tsandboxes\t1 font file outside the Fonts folder"));

    const FilePath linked = link();
    ::unlink(linked.c_str());
    EXPECT_THAT(told(1),
                HasSubstr(line("wrong", alpha).substr(0, 6 + size_t(alpha.bytes().size()))
                          + "\tregistered, but its link is missing"));
    done(registerAlpha); // mends it
    EXPECT_TRUE(isListed("Alpha"));

    ::rename(alpha.c_str(), library.child("moved").c_str());
    EXPECT_THAT(told(0), HasSubstr(path(alpha).toStdString() + "\tregistered, but gone;"));
    ::rename(library.child("moved").c_str(), alpha.c_str());

    const FilePath preferences = data.child("Lorva").child("preferences.sqlite");
    ::rename(preferences.c_str(), root.child("kept").c_str());
    EXPECT_THAT(told(0), HasSubstr(path(alpha).toStdString() + "\tactive by a link"));
    ::unlink(alpha.c_str());
    EXPECT_THAT(told(0), HasSubstr(path(alpha).toStdString() + "\tgone, and the books do not"));
    ::rename(root.child("kept").c_str(), preferences.c_str());

    const FilePath copy = fonts.child("Beta-Regular.ttf");
    ::unlink(copy.c_str());
    test::writeFile(fonts, "other.txt", "the Fonts folder is there");
    EXPECT_THAT(told(0), HasSubstr(path(copy).toStdString() + "\ta copy that has gone"));
}

TEST_F(ActivationDoctor, TellsOfRuns)
{
    const FilePath support = makeFolder("data/Lorva");
    const FilePath journal = test::writeFile(support, "activation-journal.json", "{}");
    EXPECT_THAT(told(0), HasSubstr(path(journal).toStdString() + "\ta program ended while"));
    const auto lock = RunLock::take(support.child("activation.lock"), {});
    ASSERT_TRUE(lock);
    const std::string text = told(0);
    EXPECT_THAT(text, HasSubstr("activation.lock\tanother program is switching"));
    EXPECT_THAT(text, Not(HasSubstr("a program ended while")));
}

TEST_F(ActivationDoctor, LooksAtWatchedFolders)
{
    const FilePath inner = makeFolder("library/inner");
    const FilePath gone = makeFolder("gone");
    done({"folders", "add", path(library), path(inner), path(gone)});
    ::rmdir(gone.c_str());
    const std::string text = told(0);
    for (const QString &words :
         {QString("ok\t" + path(library) + "\twatched\n"),
          QString("note\t" + path(inner) + "\tlies in " + path(library) + ","),
          QString("note\t" + path(gone) + "\tnot there now;")})
        EXPECT_THAT(text, HasSubstr(words.toStdString()));
}

} // namespace
} // namespace lorva
