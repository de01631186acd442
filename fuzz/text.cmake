# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
add_executable(lorva_text_fuzzer TextFuzzer.cpp)
target_link_libraries(lorva_text_fuzzer PRIVATE lorva_flags lorva_text)
target_compile_options(lorva_text_fuzzer PRIVATE -fsanitize=address,undefined,fuzzer)
target_link_options(lorva_text_fuzzer PRIVATE -fsanitize=address,undefined,fuzzer)
