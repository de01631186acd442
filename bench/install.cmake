# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
lorva_add_benchmark(install_benchmark SOURCES InstallBenchmark.cpp LINK lorva_catalog lorva_install)
target_include_directories(install_benchmark PRIVATE "${PROJECT_SOURCE_DIR}")
