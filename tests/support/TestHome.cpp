// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "support/TestHome.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <sys/stat.h>

namespace lorva::test {

namespace {

constexpr char kFontsConf[] = R"(<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig>
  <dir>%1</dir>
  <dir>%2</dir>
  <cachedir>%3</cachedir>
</fontconfig>
)";

} // namespace

TestHome &TestHome::instance()
{
    static TestHome home;
    return home;
}

FilePath TestHome::root() const
{
    return FilePath::fromText(m_dir->path());
}

FilePath TestHome::userFonts() const
{
    return home().child(".local").child("share").child("fonts");
}

FilePath TestHome::makeFolder(const QByteArray &name) const
{
    const FilePath folder = root().child(name);
    ::mkdir(folder.c_str(), 0700);
    return folder;
}

void TestHome::setUp()
{
    m_dir.emplace();
    const FilePath data = home().child(".local").child("share");
    for (const FilePath &folder :
         {home(), home().child(".local"), data, userFonts(), systemFonts(), root().child("cache"),
          root().child("config"), root().child("runtime")})
        ::mkdir(folder.c_str(), 0700);

    const QByteArray conf = QString::fromUtf8(kFontsConf)
                                .arg(systemFonts().displayText(), userFonts().displayText(),
                                     root().child("cache").child("fontconfig").displayText())
                                .toUtf8();
    writeFile(root(), "fonts.conf", conf);

    ::setenv("HOME", home().c_str(), 1);
    ::setenv("XDG_DATA_HOME", data.c_str(), 1);
    ::setenv("XDG_CACHE_HOME", root().child("cache").c_str(), 1);
    ::setenv("XDG_CONFIG_HOME", root().child("config").c_str(), 1);
    ::setenv("XDG_RUNTIME_DIR", root().child("runtime").c_str(), 1);
    ::setenv("XDG_DATA_DIRS", root().child("data-dirs").c_str(), 1);
    ::setenv("FONTCONFIG_FILE", root().child("fonts.conf").c_str(), 1);
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::setenv("LC_ALL", "C.UTF-8", 1);
    ::unsetenv("LANGUAGE");
}

FilePath writeFile(const FilePath &folder, const QByteArray &name, const QByteArray &bytes)
{
    ::mkdir(folder.c_str(), 0700);
    const FilePath path = folder.child(name);
    FILE *file = std::fopen(path.c_str(), "wb");
    if (!file) {
        ADD_FAILURE() << "cannot write " << path.c_str();
        return path;
    }
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), file);
    std::fclose(file);
    return path;
}

QByteArray readFile(const FilePath &path)
{
    QByteArray bytes;
    if (FILE *file = std::fopen(path.c_str(), "rb")) {
        char buffer[65536];
        while (const size_t got = std::fread(buffer, 1, sizeof buffer, file))
            bytes.append(buffer, qsizetype(got));
        std::fclose(file);
    }
    return bytes;
}

FilePath realFont(const QByteArray &pathBelowUsrShareFonts)
{
    const FilePath path(QByteArray("/usr/share/fonts/") + pathBelowUsrShareFonts);
    struct stat info;
    if (::stat(path.c_str(), &info) != 0)
        ADD_FAILURE() << path.c_str() << " is missing; scripts/test installs the font packages";
    return path;
}

} // namespace lorva::test
