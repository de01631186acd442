# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
# The readers alone, without the widgets above them.
set(image_sources)
foreach(name IN ITEMS JpegScan SafeImage SafeSvg SvgSanitizer SvgWork)
  list(APPEND image_sources "${PROJECT_SOURCE_DIR}/src/ui/display/${name}.cpp")
endforeach()
lorva_add_fuzzer(lorva_image_fuzzer SOURCES ImageFuzzer.cpp ${image_sources} LINK Qt6::Svg lorva_base)
