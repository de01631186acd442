// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <QByteArray>
#include <QTemporaryDir>

#include <optional>

namespace lorva::test {

/// The world of one test process: a private home, private XDG folders, and a fontconfig that sees
/// only the fonts that the case puts there. Made by the test main before any case runs.
class TestHome
{
public:
    static TestHome &instance();

    FilePath root() const;
    FilePath home() const { return root().child("home"); }
    /// The user's own font folder ($XDG_DATA_HOME/fonts); fontconfig lists what lies here.
    FilePath userFonts() const;
    /// A folder that fontconfig lists too, standing for the system's.
    FilePath systemFonts() const { return root().child("system-fonts"); }
    /// A new empty folder that nothing else looks at.
    FilePath makeFolder(const QByteArray &name) const;

    void setUp();

private:
    std::optional<QTemporaryDir> m_dir;
};

/// Writes `bytes` to a new file in `folder` (which is made if missing) and gives its path. Names
/// may be any bytes.
FilePath writeFile(const FilePath &folder, const QByteArray &name, const QByteArray &bytes);
/// The whole file; empty when it cannot be read.
QByteArray readFile(const FilePath &path);

/// A font file of a Debian package, by a path below /usr/share/fonts. Fails the running case when
/// it is not installed (scripts/test installs it).
FilePath realFont(const QByteArray &pathBelowUsrShareFonts);

} // namespace lorva::test
