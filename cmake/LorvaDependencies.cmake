# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
# Every library the project uses, found once. CONTRIBUTING.md says what each is for.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets Concurrent DBus LinguistTools Network Svg)
find_package(PkgConfig REQUIRED)
pkg_check_modules(HARFBUZZ REQUIRED IMPORTED_TARGET harfbuzz>=6.0)
pkg_check_modules(FONTCONFIG REQUIRED IMPORTED_TARGET fontconfig>=2.14)
pkg_check_modules(ICU REQUIRED IMPORTED_TARGET icu-uc icu-i18n)
pkg_check_modules(SQLITE REQUIRED IMPORTED_TARGET sqlite3)
pkg_check_modules(SIMDJSON REQUIRED IMPORTED_TARGET simdjson)
pkg_check_modules(SODIUM REQUIRED IMPORTED_TARGET libsodium>=1.0.18)
pkg_check_modules(SECCOMP REQUIRED IMPORTED_TARGET libseccomp>=2.5)
find_package(tl-expected REQUIRED)
find_package(ZLIB REQUIRED)
find_package(box2d 2.4 REQUIRED)
# Its headers alone: the library is loaded when the first SVG glyph is drawn (text/color/SvgLibrary.h).
pkg_check_modules(RSVG REQUIRED librsvg-2.0>=2.52)

if(LORVA_BUILD_TESTS)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
  find_package(GTest REQUIRED)
endif()
if(LORVA_BUILD_BENCHMARKS)
  find_package(benchmark REQUIRED)
endif()
