// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "LorvactlSupport.h"
#include "platform/PreferenceDatabase.h"
#include "support/AdverseSystem.h"
#include "support/FontBuilder.h"

#include <map>

#include <dirent.h>

namespace lorva::test {

/// A home of the case's own with six families of two foundries and no preferences yet.
class OrganizationHome : public testing::Test
{
protected:
    OrganizationHome()
        : data(makeCaseFolder())
        , folder(data.child("Lorva"))
    {
        // Also for AsOrdinaryUser.
        ::chmod(data.c_str(), 0755);
        ::chmod(TestHome::instance().home().c_str(), 0755);
        qputenv("XDG_DATA_HOME", data.bytes());
        for (const auto &[family, manufacturer] : kFamilies) {
            const QString name = QString::fromLatin1(family);
            writeFile(TestHome::instance().systemFonts(), fileName(family),
                      FontBuilder(name)
                          .postScriptName(name)
                          .manufacturer(QString::fromLatin1(manufacturer))
                          .build());
        }
    }
    ~OrganizationHome() override
    {
        for (const auto &each : kFamilies)
            ::unlink(TestHome::instance().systemFonts().child(fileName(each.first)).c_str());
        const FilePath usual = TestHome::instance().home().child(".local").child("share");
        qputenv("XDG_DATA_HOME", usual.bytes());
    }

    /// From now on lorvactl runs in another home that nobody has used.
    void moveToEmptyHome()
    {
        data = TestHome::instance().makeFolder(data.fileName() + "-2");
        folder = data.child("Lorva");
        qputenv("XDG_DATA_HOME", data.bytes());
    }

    /// Nothing removes the key.
    void store(const char *key, const std::optional<PreferenceRow> &row) const
    {
        auto database = PreferenceDatabase::open(folder, QDeadlineTimer(QDeadlineTimer::Forever));
        ASSERT_TRUE(database) << database.error().detail.toStdString();
        EXPECT_TRUE(database->write(QString::fromLatin1(key), row));
    }

    /// The bytes of each file of our own; of SQLite's shared index only that it is there.
    std::map<QByteArray, QByteArray> files() const
    {
        std::map<QByteArray, QByteArray> all;
        DIR *const listing = ::opendir(folder.c_str());
        while (const dirent *entry = listing ? ::readdir(listing) : nullptr) {
            const QByteArray name = entry->d_name;
            all[name] = name.endsWith("-shm") ? QByteArray() : readFile(folder.child(name));
        }
        if (listing)
            ::closedir(listing);
        return all;
    }

    FilePath data;
    FilePath folder;

private:
    static constexpr std::pair<const char *, const char *> kFamilies[]{
        {"Alpha", "Klim Type Foundry"}, {"Beta", "Klim Type Foundry"},
        {"Gamma", "Klim Type Foundry"}, {"Delta", "Acme Fonts Ltd."},
        {"delta", "Acme Fonts Ltd."},   {"Zeta", "Acme Fonts Ltd."},
    };
    static QByteArray fileName(const char *family) { return QByteArray(family) + ".ttf"; }
};

} // namespace lorva::test
