// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/Translations.h"
#include "support/TestHome.h"

#include <QApplication>

#include <gmock/gmock.h>

// Every test binary shares this main: one offscreen application, a private home, no system fonts.
int main(int argc, char **argv)
{
    ::testing::InitGoogleMock(&argc, argv);
    // Listing the cases, as the build does, needs no application and no home.
    if (::testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    lorva::test::TestHome::instance().setUp();
    QApplication application(argc, argv);
    lorva::installTranslations(QStringLiteral("en"));
    return RUN_ALL_TESTS();
}
