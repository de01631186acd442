# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT

# What every target of the project is compiled with; warnings become errors only in the presets, so that
# packagers with another compiler can build.
add_library(lorva_flags INTERFACE)
target_compile_options(lorva_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
target_compile_definitions(lorva_flags INTERFACE
  QT_NO_CAST_TO_ASCII QT_RESTRICTED_CAST_FROM_ASCII QT_NO_URL_CAST_FROM_STRING
  QT_USE_QSTRINGBUILDER QT_NO_FOREACH QT_NO_KEYWORDS
  LORVA_VERSION="${PROJECT_VERSION}")
target_include_directories(lorva_flags INTERFACE "${PROJECT_SOURCE_DIR}/src")
target_link_libraries(lorva_flags INTERFACE Qt6::Core Qt6::Gui tl::expected)

# One precompiled header per kind of target, compiled once and reused: most of a file's compile time is
# spent in Qt's and the standard library's headers.
function(_lorva_add_pch kind)
  cmake_parse_arguments(ARG "" "" "LINK;HEADERS" ${ARGN})
  set(source "${PROJECT_BINARY_DIR}/pch/${kind}.cpp")
  if(NOT EXISTS "${source}")
    file(WRITE "${source}" "")
  endif()
  add_library(lorva_pch_${kind} OBJECT "${source}")
  set_target_properties(lorva_pch_${kind} PROPERTIES AUTOMOC OFF AUTORCC OFF)
  target_link_libraries(lorva_pch_${kind} PRIVATE lorva_flags ${ARG_LINK})
  target_precompile_headers(lorva_pch_${kind} PRIVATE ${ARG_HEADERS})
endfunction()

set(_lorva_core_headers
  <algorithm> <array> <atomic> <chrono> <cmath> <functional> <map> <memory> <mutex> <optional> <set>
  <span> <string> <string_view> <unordered_map> <utility> <variant> <vector>
  <QByteArray> <QHash> <QImage> <QList> <QObject> <QString> <QStringList> <tl/expected.hpp>)
_lorva_add_pch(core HEADERS ${_lorva_core_headers})
_lorva_add_pch(widgets LINK Qt6::Widgets HEADERS ${_lorva_core_headers} <QtGui> <QtWidgets>)
if(LORVA_BUILD_TESTS)
  set(_lorva_test_headers ${_lorva_core_headers} "${PROJECT_SOURCE_DIR}/tests/support/QtPrinters.h"
                          <gtest/gtest.h> <gmock/gmock.h>)
  _lorva_add_pch(test LINK GTest::gtest GTest::gmock HEADERS ${_lorva_test_headers})
endif()

# lorva_add_module(name [WIDGETS] SOURCES … [LINK …] [PRIVATE_LINK …])
#
# The static library of one folder. Each of its public headers is also compiled alone, so that no header
# leans on what its includer happened to include before it.
function(lorva_add_module name)
  cmake_parse_arguments(ARG "WIDGETS" "" "SOURCES;HEADERS;LINK;PRIVATE_LINK" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  if(ARG_HEADERS)
    target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}/src"
                                  FILES ${ARG_HEADERS})
    set_target_properties(${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
  endif()
  target_link_libraries(${name} PUBLIC lorva_flags ${ARG_LINK} PRIVATE ${ARG_PRIVATE_LINK})
  if(ARG_WIDGETS)
    target_link_libraries(${name} PUBLIC Qt6::Widgets)
    target_precompile_headers(${name} REUSE_FROM lorva_pch_widgets)
  else()
    target_precompile_headers(${name} REUSE_FROM lorva_pch_core)
  endif()
endfunction()

# lorva_add_tests(name [WIDGETS] SOURCES … [LINK …])
#
# One test binary per module; every case is a CTest case and so a process of its own.
function(lorva_add_tests name)
  cmake_parse_arguments(ARG "WIDGETS" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE lorva_flags lorva_test_support ${ARG_LINK}
                                        GTest::gtest GTest::gmock)
  if(ARG_WIDGETS)
    target_link_libraries(${name} PRIVATE Qt6::Widgets Qt6::Test)
    # Its own: Qt's test module defines a macro with the folder of each target.
    target_precompile_headers(${name} PRIVATE ${_lorva_test_headers} <QtWidgets>
                              "${PROJECT_SOURCE_DIR}/tests/support/QtTestMacros.h")
  else()
    target_precompile_headers(${name} REUSE_FROM lorva_pch_test)
  endif()
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()

# lorva_add_benchmark(name SOURCES … [LINK …])
function(lorva_add_benchmark name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE lorva_flags ${ARG_LINK} benchmark::benchmark)
endfunction()
