// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/LorvaApplicationDelegate.h"
#include "base/Translations.h"
#include "platform/linux/XdgFolders.h"
#include "platform/UserAccount.h"
#include "support/FontBuilder.h"
#include "support/PseudoTranslator.h"
#include "support/TestHome.h"
#include "support/TextAudit.h"
#include "support/Waiting.h"
#include "ui/discover/DiscoverFoundry.h"
#include "ui/display/SampleTexts.h"
#include "ui/LorvaRootSplitViewController.h"
#include "ui/sheets/AlertSheet.h"
#include "ui/style/ReducedMotion.h"

#include <QAction>
#include <QApplication>
#include <QDate>
#include <QDir>
#include <QFontDatabase>
#include <QMainWindow>
#include <QMenu>
#include <QTest>

#include <gmock/gmock.h>

namespace lorva::test {

/// Names that hold no ASCII letter, so that every one found is the program's.
inline const QString kSerif = QStringLiteral("Ωμέγα");
inline const QString kSans = QStringLiteral("Δέλτα");
inline const QString kFoundry = QStringLiteral("Εργαστήρι");
inline const std::string kPseudo = "pseudo";

/// A language as users have it, but for its ellipses: "…" is only ever what elision leaves.
class InstalledTranslator final : public QTranslator
{
public:
    explicit InstalledTranslator(const QString &language)
    {
        EXPECT_TRUE(load(QStringLiteral("lorva_") + language, QStringLiteral(":/translations")));
    }
    QString translate(const char *context, const char *source, const char *disambiguation,
                      int n) const override
    {
        return QTranslator::translate(context, source, disambiguation, n).replace(u'…', u'⋯');
    }
};

/// The program in one language, its parameter, and what is wrong with what it shows.
class Languages : public testing::TestWithParam<std::string>
{
protected:
    Languages()
    {
        setReducedMotionOverride(true);
        useInterfaceFonts();
        if (GetParam() == kPseudo)
            m_translator = std::make_unique<PseudoTranslator>();
        else
            m_translator =
                std::make_unique<InstalledTranslator>(QString::fromStdString(GetParam()));
        m_audit.isPseudo = GetParam() == kPseudo;
        QCoreApplication::installTranslator(m_translator.get());
        QDir(xdgFolders().applicationSupport.displayText()).removeRecursively();
        const auto &home = TestHome::instance();
        for (const QString &family : {kSerif, kSans})
            for (const char *style : {"Regular", "Bold"})
                writeFile(home.systemFonts(), family.toUtf8() + style + ".ttf",
                          FontBuilder(family, QString::fromLatin1(style))
                              .weightClass(style[0] == 'B' ? 700 : 400)
                              .manufacturer(kFoundry)
                              .codePoints(U"Aa 123")
                              .substitution("smcp", U'a', U'A')
                              .build());
        m_audit.data = {home.home().displayText(),
                        QStringLiteral("Regular"),
                        QStringLiteral("Bold"),
                        QStringLiteral("Lorva"),
                        userFullName(),
                        QStringLiteral("system-fonts"),
                        QStringLiteral(".ttf"),
                        QStringLiteral("ttf")};
        // The pseudo language has no dates of its own.
        for (const int days : {0, 1}) {
            const QDate date = QDate::currentDate().addDays(days);
            for (const char *ending : {"st", "nd", "rd", "th"})
                m_audit.data << QLocale::c().toString(date, u"MMMM\u00A0d") + QLatin1String(ending);
        }
        for (const DiscoverFoundry &foundry : discoverFoundries())
            m_audit.data << foundry.title << foundry.url.host();
        for (const SampleTextGroup &group : sampleTextGroups())
            for (const char16_t *text : group.texts)
                m_audit.data << QString::fromUtf16(text);
    }
    ~Languages() override
    {
        m_delegate.reset();
        QCoreApplication::removeTranslator(m_translator.get());
        setReducedMotionOverride(std::nullopt);
    }

    /// Texts are measured as on a real desktop, in every script.
    static void useInterfaceFonts()
    {
        for (const char *file :
             {"truetype/dejavu/DejaVuSans.ttf", "opentype/noto/NotoSansCJK-Regular.ttc"})
            ASSERT_GE(QFontDatabase::addApplicationFont(realFont(file).displayText()), 0);
        QApplication::setFont(QFont(QStringList{"DejaVu Sans", "Noto Sans CJK JP"}));
    }
    LorvaRootSplitViewController &launch(LaunchOptions options = {}, size_t families = 2)
    {
        options.skipsWelcome = !options.welcome;
        m_delegate = std::make_unique<LorvaApplicationDelegate>(
            options, nullptr, options.welcome ? programParts() : ProgramParts());
        m_delegate->applicationDidFinishLaunching();
        m_delegate->window()->resize(1280, 860);
        m_delegate->window()->activateWindow();
        EXPECT_TRUE(waitUntil([&] {
            return !m_delegate->model().isLoading()
                && m_delegate->model().allFamilies()->size() == families && isSettled();
        }));
        return *m_delegate->rootController();
    }
    bool isSettled() { return m_delegate->rootController()->isSettled(); }

    void settle()
    {
        m_delegate->rootController()->render();
        EXPECT_TRUE(waitUntil([this] { return isSettled(); }));
    }
    /// What is wrong on every window that is open.
    QStringList faults() const
    {
        QStringList found;
        for (QWidget *window : QApplication::topLevelWidgets())
            if (window->isVisible())
                found << m_audit.faults(*window);
        return found;
    }
    void check(const char *surface)
    {
        const QStringList found = faults();
        EXPECT_THAT(found, testing::IsEmpty()) << surface << ":\n"
                                               << found.join(u'\n').toStdString();
    }
    QWidget *part(const char *name) const
    {
        for (QWidget *widget : QApplication::allWidgets())
            if (widget->objectName() == QLatin1String(name) && widget->isVisible())
                return widget;
        ADD_FAILURE() << "there is no " << name;
        return nullptr;
    }
    void click(const char *name)
    {
        if (QWidget *widget = part(name))
            QTest::mouseClick(widget, Qt::LeftButton);
        settle();
    }
    void closePopups()
    {
        while (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
    }
    void checkPopup(const char *button)
    {
        click(button);
        check(button);
        closePopups();
    }

    /// A menu and all that open from it.
    void checkMenu(QMenu &menu, const QString &place)
    {
        menu.popup({});
        const QStringList found = m_audit.faults(menu);
        EXPECT_THAT(found, testing::IsEmpty()) << place.toStdString() << ":\n"
                                               << found.join(u'\n').toStdString();
        for (const QAction *action : menu.actions())
            if (action->menu())
                checkMenu(*action->menu(), QString(place % u" > " % action->text()));
        menu.close();
    }
    void checkOpenMenu(const char *place)
    {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu) << place;
        checkMenu(*menu, QString::fromUtf8(place));
    }
    void checkSheet(const char *sheet)
    {
        ASSERT_TRUE(waitUntil([this] { return hasAlertSheet(*m_delegate->window()); }));
        check(sheet);
    }
    void leaveSheet()
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        ASSERT_TRUE(waitUntil([this] { return !hasAlertSheet(*m_delegate->window()); }));
    }

    std::unique_ptr<QTranslator> m_translator;
    TextAudit m_audit;
    std::unique_ptr<LorvaApplicationDelegate> m_delegate;
};

/// English has no translation that could be too long.
inline std::vector<std::string> languages()
{
    std::vector<std::string> names{kPseudo};
    for (const QString &each : textLanguages())
        if (each != QLatin1String("en"))
            names.push_back(each.toStdString());
    return names;
}

} // namespace lorva::test
