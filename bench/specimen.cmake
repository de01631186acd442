# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
lorva_add_benchmark(specimen_benchmark SOURCES SpecimenBenchmark.cpp LINK lorva_text lorva_install PkgConfig::HARFBUZZ)
