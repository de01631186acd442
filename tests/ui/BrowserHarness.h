// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PreviewFonts.h"
#include "support/Waiting.h"
#include "ui/browser/BrowserCollectionView.h"
#include "ui/browser/BrowserTopBar.h"
#include "ui/browser/FontBrowserViewController.h"
#include "ui/browser/FontCardContentView.h"
#include "ui/browser/FontCollectionItem.h"
#include "ui/style/ReducedMotion.h"

#include <QTest>

#include <gmock/gmock.h>

namespace lorva::test {

/// Every family in the same face, at once.
class OneFaceResolver final : public FontResolver
{
public:
    Font font = fontWith(U"Aa 123 Some other text");
    /// By family, the weight of the style asked for last; 0: none in particular.
    mutable QHash<QString, qint64> askedWeights;

    std::optional<Font> cachedFont(const QString &family,
                                   const std::optional<FontStyleRecord> &style,
                                   double pointSize) const override
    {
        askedWeights.insert(family, style ? style->weight : 0);
        return font.withPointSize(pointSize);
    }
    Font resolve(const QString &, const std::optional<FontStyleRecord> &,
                 double pointSize) const override
    {
        return font.withPointSize(pointSize);
    }
    void resolveAsync(PendingResolve) override { }
    void prewarm(std::vector<PrewarmFace>, double) override { }
};

/// Hears everything, and does nothing about it.
class SilentBrowserDelegate : public FontBrowserDelegate
{
public:
    void browserSelectionChanged(const std::optional<QString> &) override { }
    void browserOpenDetail(const QString &) override { }
    void browserViewModeChanged(ViewMode) override { }
    void browserSearchTextChanged(const QString &) override { }
    void browserStyleChosen(const QStringList &, const std::optional<QString> &) override { }
    void browserCollectionToggled(const QStringList &, const QString &) override { }
    void browserFoundryChosen(const QStringList &, const QString &) override { }
    void browserActivationWanted(const QStringList &) override { }
    void browserRemainingActivationWanted(const QStringList &) override { }
    void browserDeactivationWanted(const QStringList &) override { }
    void browserWatchFolderWanted() override { }
    void displayPointSizeChanged(double) override { }
    void displayFontWeightChanged(int) override { }
    void displayColorModeChanged(ColorMode) override { }
    void displayCustomForegroundChanged(const QString &) override { }
    void displayCustomBackgroundChanged(const QString &) override { }
    void displayBackgroundImageChosen(const QString &) override { }
    void displayUserImageChosen(const QString &) override { }
    void displayUserImageAdded(const QByteArray &, Answer) override { }
    void displayUserImageRemoved(const QString &) override { }
    void displayImageForegroundChanged(const QString &) override { }
    void displayLogoChosen(const QByteArray &, Answer) override { }
    void displayLogoSizeRatioChanged(double) override { }
    void displayLogoSpacingChanged(double) override { }
    void displayLogoVisibilityChanged(bool) override { }
    void displaySampleTextChanged(const QString &) override { }
    void displayReset() override { }
    void displayHoldChanged(bool) override { }
};

/// Notes what the user did.
class RecordingBrowserDelegate : public SilentBrowserDelegate
{
public:
    QStringList log;

    void browserSelectionChanged(const std::optional<QString> &name) override
    {
        log.append(QStringLiteral("selected %1").arg(name.value_or(QStringLiteral("-"))));
    }
    void browserOpenDetail(const QString &name) override
    {
        log.append(QStringLiteral("open %1").arg(name));
    }
    void browserStyleChosen(const QStringList &names, const std::optional<QString> &id) override
    {
        note("style", names, id.value_or(QStringLiteral("-")));
    }
    void browserCollectionToggled(const QStringList &names, const QString &id) override
    {
        note("collection", names, id);
    }
    void browserFoundryChosen(const QStringList &names, const QString &id) override
    {
        note("foundry", names, id);
    }
    void browserActivationWanted(const QStringList &names) override { note("activate", names, {}); }
    void browserRemainingActivationWanted(const QStringList &names) override
    {
        note("complete", names, {});
    }
    void browserDeactivationWanted(const QStringList &names) override
    {
        note("deactivate", names, {});
    }
    void browserWatchFolderWanted() override { log.append(QStringLiteral("watch")); }
    void displaySampleTextChanged(const QString &text) override
    {
        log.append(QStringLiteral("sample %1").arg(text));
    }

private:
    void note(const char *what, const QStringList &names, const QString &id)
    {
        log.append(
            QStringLiteral("%1 %2 of %3").arg(QString::fromLatin1(what), id, names.join(u'+')));
    }
};

/// A browser of two columns and three rows a screen in a window of its own.
class BrowserHarness : public ::testing::Test
{
protected:
    explicit BrowserHarness(QStringList names = letters(20))
    {
        setReducedMotionOverride(true);
        setFamilies(names);
        browser.setDelegate(&delegate);
        browser.resize(800, 660 + BrowserTopBar::kHeight);
        apply();
        browser.show();
        browser.activateWindow();
        view().setFocus(Qt::OtherFocusReason);
    }
    ~BrowserHarness() override { setReducedMotionOverride(std::nullopt); }
    void SetUp() override
    {
        ASSERT_TRUE(waitUntil([this] { return view().hasFocus(); }));
    }

    /// "A", "B", "C", …
    static QStringList letters(int count)
    {
        QStringList names;
        for (int i = 0; i < count; ++i)
            names.append(QChar(u'A' + i));
        return names;
    }
    void setFamilies(const QStringList &names)
    {
        std::vector<FontFamilyRecord> families;
        for (const QString &name : names) {
            FontStyleRecord style;
            style.fileURL = FilePath::fromText(QStringLiteral("/fonts/%1.otf").arg(name));
            families.push_back({name, {style}, {}, {}, {}});
        }
        state.families = makeFamilyList(std::move(families));
    }
    void apply() { browser.apply(state); }
    BrowserCollectionView &view() { return browser.collectionView(); }
    QString selected() { return browser.selectedNames().join(QString()); }
    QPoint at(int index)
    {
        return view().viewportRect(view().arrangement().cardRect(index)).center();
    }
    void click(int index, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(view().viewport(), Qt::LeftButton, modifiers, at(index));
    }
    void key(int code, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&view(), Qt::Key(code), modifiers);
    }
    void pressAt(QPoint place, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mousePress(view().viewport(), Qt::LeftButton, modifiers, place);
    }
    void moveTo(QPoint place)
    {
        QMouseEvent move(QEvent::MouseMove, place, view().viewport()->mapToGlobal(place),
                         Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(view().viewport(), &move);
    }
    void releaseAt(QPoint place)
    {
        QTest::mouseRelease(view().viewport(), Qt::LeftButton, {}, place);
    }
    const FontCardContentView &card(int index) { return view().visibleItem(index)->contentView(); }

    FontBrowserState state;
    RecordingBrowserDelegate delegate;
    const std::shared_ptr<OneFaceResolver> resolver = std::make_shared<OneFaceResolver>();
    FontBrowserViewController browser{resolver};
};

} // namespace lorva::test
