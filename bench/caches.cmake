# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
lorva_add_benchmark(caches_benchmark SOURCES CachesBenchmark.cpp LINK lorva_catalog)
target_include_directories(caches_benchmark PRIVATE "${PROJECT_SOURCE_DIR}")
