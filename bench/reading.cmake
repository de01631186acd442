# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
lorva_add_benchmark(reading_benchmark SOURCES ReadingBenchmark.cpp LINK lorva_text lorva_install PkgConfig::HARFBUZZ)
