# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
lorva_add_benchmark(specimen_bench SOURCES SpecimenBenchmark.cpp LINK lorva_text PkgConfig::HARFBUZZ)
