# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
lorva_add_benchmark(reading_bench SOURCES ReadingBenchmark.cpp LINK lorva_text PkgConfig::HARFBUZZ)
