# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
# FreeType is what the engine is compared with; the program itself does without it.
pkg_check_modules(FREETYPE REQUIRED IMPORTED_TARGET freetype2)
lorva_add_benchmark(text_benchmark SOURCES TextBenchmark.cpp FreeTypeSpecimen.cpp
  LINK lorva_text lorva_install PkgConfig::HARFBUZZ PkgConfig::FREETYPE)
