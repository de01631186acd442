// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/Translations.h"
#include "support/QtPrinters.h"

#include <QDate>
#include <QLocale>

#include <gtest/gtest.h>

namespace lorva {
namespace {

struct WantedRow
{
    const char *name;
    QStringList wanted;
    QString language;
};

class TextLanguage : public testing::TestWithParam<WantedRow>
{
};

TEST_P(TextLanguage, IsTheFirstOneThatTheUserWantsAndThatIsThere)
{
    EXPECT_EQ(textLanguageFor(GetParam().wanted), GetParam().language);
}

INSTANTIATE_TEST_SUITE_P(Rows, TextLanguage,
                         testing::Values(WantedRow{"Nothing", {}, "en"},
                                         WantedRow{"Empty", {""}, "en"},
                                         WantedRow{"NoLocale", {"C.UTF-8"}, "en"},
                                         WantedRow{"Nonsense", {"?", "7"}, "en"},
                                         WantedRow{"German", {"de_AT.UTF-8"}, "de"},
                                         WantedRow{"GermanWithVariant", {"de_DE@euro"}, "de"},
                                         WantedRow{"Japanese", {"ja"}, "ja"},
                                         WantedRow{"Korean", {"ko-KR"}, "ko"},
                                         WantedRow{"Chinese", {"zh"}, "zh_CN"},
                                         WantedRow{"China", {"zh_CN.UTF-8"}, "zh_CN"},
                                         WantedRow{"Singapore", {"zh_SG"}, "zh_CN"},
                                         WantedRow{"Taiwan", {"zh_TW.UTF-8"}, "zh_TW"},
                                         WantedRow{"HongKong", {"zh_HK.UTF-8"}, "zh_TW"},
                                         WantedRow{"ScriptBeforeRegion", {"zh-Hant-CN"}, "zh_TW"},
                                         WantedRow{"TheSecondBest", {"fr_FR", "ko", "de"}, "ko"},
                                         WantedRow{"EnglishBeforeOthers", {"en_GB", "de"}, "en"}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST(Translations, BringTheirDatesAndLists)
{
    EXPECT_EQ(QLocale().language(), QLocale::C) << "English without a region stays as it is";
    qputenv("LANGUAGE", "ja");
    installTranslations(QStringLiteral("ja"));
    EXPECT_EQ(QLocale().toString(QDate(2026, 11, 22), QLocale::LongFormat),
              QStringLiteral("2026年11月22日日曜日"));
    EXPECT_EQ(QLocale().createSeparatedList({"A", "B", "C"}), QStringLiteral("A、B、C"));
    QLocale::setDefault(QLocale::system());
    qunsetenv("LANGUAGE");
}

} // namespace
} // namespace lorva
