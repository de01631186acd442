# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
# ccache only caches files that use a precompiled header when it may ignore the header's time stamp.
find_program(LORVA_CCACHE ccache)
if(LORVA_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      "${CMAKE_COMMAND}" -E env
      "CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime"
      "${LORVA_CCACHE}")
endif()
