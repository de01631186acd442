// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "support/LibraryFixture.h"
#include "ui/detail/DetailPreviewView.h"
#include "ui/files/FontFilesFooter.h"
#include "ui/files/FontFilesPage.h"
#include "ui/files/FontFilesWindow.h"
#include "ui/sheets/Sheet.h"
#include "ui/style/ReducedMotion.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>

namespace lorva::test {

/// A window over a folder with the fonts One (two files) and Two, none of which is in the library.
class FontFilesFixture : public testing::Test
{
protected:
    FontFilesFixture()
    {
        setReducedMotionOverride(true);
        std::filesystem::remove_all(library.folders.userFonts.c_str());
        static int cases = 0;
        const QByteArray number = QByteArray::number(++cases);
        folder = TestHome::instance().makeFolder("downloads" + number);
        library.restart(TestHome::instance().makeFolder("files-support" + number));
        add("one.ttf", FontBuilder("One").codePoints(U"Aabc 123"));
        add("one-bold.ttf", FontBuilder("One", "Bold").weightClass(700).codePoints(U"Aabc 123"));
        add("two.ttf", FontBuilder("Two").codePoints(U"Aa"));
        makeWindow();
    }
    ~FontFilesFixture() override { setReducedMotionOverride(std::nullopt); }

    void add(const QByteArray &name, FontBuilder builder)
    {
        writeFile(folder, name, builder.build());
    }
    void makeWindow()
    {
        window = std::make_unique<FontFilesWindow>(
            *library.model, FontFilesServices{library.fonts, library.systemFont, nullptr, nullptr});
        window->onLibraryWanted = [this](const QString &family) { wanted << family; };
        window->onDropped = [this](const std::vector<FilePath> &files) { dropped = files; };
    }
    void open(std::initializer_list<const char *> names)
    {
        std::vector<FilePath> files;
        for (const char *name : names)
            files.push_back(folder.child(name));
        window->open(files);
        window->present();
        settle();
    }
    void settle()
    {
        EXPECT_TRUE(waitUntil([this] { return window->isSettled(); }));
    }

    template <class Widget>
    Widget &part(const char *name)
    {
        auto *found = window->findChild<Widget *>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
    QAbstractButton &button(const char *name) { return part<QAbstractButton>(name); }
    void click(const char *name) { QTest::mouseClick(&button(name), Qt::LeftButton); }
    QAbstractItemView &list() { return part<QAbstractItemView>("FontFilesListView"); }
    FontFilesPage &page() { return part<FontFilesPage>("FontFilesPage"); }
    DetailPreviewView &preview() { return *window->findChild<DetailPreviewView *>(); }
    std::string shown()
    {
        if (!page().isVisible())
            return window->findChild<QWidget *>(QStringLiteral("BrowserEmptyStateView"))
                ->accessibleName()
                .toStdString();
        const DisplayedFace &face = page().face();
        return QStringList{face.familyName, face.style.label}.join(u' ').toStdString();
    }
    QString status() { return part<FontFilesFooter>("FontFilesFooter").offer().status; }
    bool becomes(const char *text)
    {
        return waitUntil([&] { return status() == QString::fromUtf8(text); });
    }
    /// The sheet that is open: presses the button of that text.
    void answer(const QString &text)
    {
        ASSERT_TRUE(waitUntil([&] { return sheetButton(text) != nullptr; })) << text.toStdString();
        QTest::mouseClick(sheetButton(text), Qt::LeftButton);
    }
    QAbstractButton *sheetButton(const QString &text)
    {
        const auto *sheet = window->findChild<Sheet *>();
        if (!sheet || sheet->isDismissed())
            return nullptr;
        for (auto *each : sheet->findChildren<QAbstractButton *>())
            if (each->isVisible() && (each->text() == text || each->accessibleName() == text))
                return each;
        return nullptr;
    }
    void copyShownFamily()
    {
        click("fontFilesActivate");
        answer(QStringLiteral("Copy to Fonts Folder"));
        answer(QStringLiteral("Done"));
        EXPECT_TRUE(becomes("Active, copied to the Fonts folder"));
    }

    LibraryFixture library;
    FilePath folder;
    std::unique_ptr<FontFilesWindow> window;
    QStringList wanted;
    std::vector<FilePath> dropped;
};

} // namespace lorva::test
