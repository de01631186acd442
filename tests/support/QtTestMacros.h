// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

// These macros return from the case silently under GoogleTest: a comparison that fails would pass.
#undef QVERIFY
#undef QVERIFY2
#undef QCOMPARE
#undef QTRY_VERIFY
#undef QTRY_VERIFY2
#undef QTRY_COMPARE
#undef QTRY_VERIFY_WITH_TIMEOUT
#undef QTRY_COMPARE_WITH_TIMEOUT
#undef QFAIL
#undef QSKIP
#define LORVA_NO_QT_TEST_MACRO(...)                                                                \
    static_assert(false, "passes silently under GoogleTest; use EXPECT_ or ASSERT_ or waitUntil()")
#define QVERIFY LORVA_NO_QT_TEST_MACRO
#define QVERIFY2 LORVA_NO_QT_TEST_MACRO
#define QCOMPARE LORVA_NO_QT_TEST_MACRO
#define QTRY_VERIFY LORVA_NO_QT_TEST_MACRO
#define QTRY_VERIFY2 LORVA_NO_QT_TEST_MACRO
#define QTRY_COMPARE LORVA_NO_QT_TEST_MACRO
#define QTRY_VERIFY_WITH_TIMEOUT LORVA_NO_QT_TEST_MACRO
#define QTRY_COMPARE_WITH_TIMEOUT LORVA_NO_QT_TEST_MACRO
#define QFAIL LORVA_NO_QT_TEST_MACRO
#define QSKIP LORVA_NO_QT_TEST_MACRO
