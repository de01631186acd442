// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "LorvactlSupport.h"
#include "support/AdverseSystem.h"
#include "support/FontBuilder.h"

#include <filesystem>
#include <map>

namespace lorva::test {

/// A home of the case's own, with a fontconfig of its own that lists the Fonts folder and one of
/// the system, and a library of fonts that nobody has switched on.
class ActivationHome : public testing::Test
{
protected:
    ActivationHome()
        : root(makeCaseFolder())
        , data(makeFolder("data"))
        , fonts(makeFolder("data/fonts"))
        , library(makeFolder("library"))
        , m_usualConfiguration(qgetenv("FONTCONFIG_FILE"))
    {
        const QByteArray configuration = "<fontconfig><dir>" + fonts.bytes() + "</dir><dir>"
            + makeFolder("system").bytes() + "</dir><cachedir>" + root.child("cache").bytes()
            + "</cachedir></fontconfig>";
        qputenv("FONTCONFIG_FILE", writeFile(root, "fonts.conf", configuration).bytes());
        qputenv("XDG_DATA_HOME", data.bytes());
        addFont(root.child("system"), "Sys");
    }
    ~ActivationHome() override
    {
        qputenv("FONTCONFIG_FILE", m_usualConfiguration);
        const FilePath usual = TestHome::instance().home().child(".local").child("share");
        qputenv("XDG_DATA_HOME", usual.bytes());
    }

    FilePath makeFolder(const QByteArray &name) const
    {
        const FilePath folder = root.child(name);
        ::mkdir(folder.c_str(), 0700);
        return folder;
    }

    /// FAMILY-STYLE.ttf with the PostScript name FAMILY-STYLE.
    static FilePath addFont(const FilePath &folder, const QString &family,
                            const QString &style = QStringLiteral("Regular"))
    {
        const QString name = family % u'-' % style;
        return writeFile(folder, QString(name % QStringLiteral(".ttf")).toUtf8(),
                         FontBuilder(family, style).postScriptName(name).build());
    }

    /// What a fresh process finds by this pattern: "Alpha", ":postscriptname=Alpha-Regular".
    static QByteArray listed(const QString &pattern)
    {
        QProcess process;
        process.start(QStringLiteral("fc-list"),
                      {pattern, QStringLiteral("postscriptname"), QStringLiteral("family")});
        return finished(process).out;
    }
    static bool isListed(const QString &family)
    {
        const bool byFamily = !listed(family).isEmpty();
        const bool byName = !listed(QString(QStringLiteral(":postscriptname=") % family
                                            % QStringLiteral("-Regular")))
                                 .isEmpty();
        EXPECT_EQ(byFamily, byName) << family.toStdString();
        return byFamily;
    }

    /// Every entry below the case's folder but fontconfig's cache: what a link leads to, and the
    /// bytes of files; of SQLite's shared index only that it is there.
    std::map<std::string, QByteArray> everything() const
    {
        namespace fs = std::filesystem;
        std::map<std::string, QByteArray> all;
        for (const auto &entry : fs::recursive_directory_iterator(root.bytes().toStdString())) {
            const std::string name = entry.path().string();
            const FilePath file{QByteArray::fromStdString(name)};
            if (file.isInside(root.child("cache")))
                continue;
            if (entry.is_symlink())
                all[name] = QByteArray::fromStdString(fs::read_symlink(entry.path()).string());
            else if (entry.is_regular_file() && !name.ends_with("-shm"))
                all[name] = readFile(file);
            else
                all[name] = {};
        }
        return all;
    }

    static bool exists(const FilePath &file) { return ::access(file.c_str(), F_OK) == 0; }
    FilePath trash(const QByteArray &name) const
    {
        return data.child("Trash").child("files").child(name);
    }

    /// Runs it, expects success without a word on standard error, and gives the output.
    static std::string done(const QStringList &arguments)
    {
        const Outcome outcome = lorvactl(arguments);
        EXPECT_EQ(outcome.exitCode, 0) << arguments.join(u' ').toStdString();
        EXPECT_EQ(outcome.error, "") << arguments.join(u' ').toStdString();
        return outcome.out.toStdString();
    }
    static std::string line(const char *word, const FilePath &file)
    {
        return std::string(word) + '\t' + file.bytes().toStdString() + '\n';
    }

    const FilePath root;
    const FilePath data;
    const FilePath fonts;
    const FilePath library;

private:
    const QByteArray m_usualConfiguration;
};

} // namespace lorva::test
