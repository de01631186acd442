# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
lorva_add_benchmark(organize_benchmark
  SOURCES OrganizeBenchmark.cpp OrganizeNames.cpp LINK lorva_organize lorva_records)
target_include_directories(organize_benchmark PRIVATE "${PROJECT_SOURCE_DIR}")
