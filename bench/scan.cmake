# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
lorva_add_benchmark(scan_benchmark SOURCES ScanBenchmark.cpp LINK lorva_catalog)
target_include_directories(scan_benchmark PRIVATE "${PROJECT_SOURCE_DIR}")
if(TARGET lorvactl)
  target_compile_definitions(scan_benchmark PRIVATE LORVACTL_PATH="$<TARGET_FILE:lorvactl>")
  add_dependencies(scan_benchmark lorvactl)
endif()
