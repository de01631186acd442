# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
# The builder of the tests' fonts, without the rest of what tests need.
add_executable(lorva_generate_library
  GenerateLibrary.cpp GeneratedFamily.cpp LibraryGenerator.cpp
  "${PROJECT_SOURCE_DIR}/tests/support/FontBuilder.cpp")
target_include_directories(lorva_generate_library PRIVATE "${PROJECT_SOURCE_DIR}"
                                                          "${PROJECT_SOURCE_DIR}/tests")
target_link_libraries(lorva_generate_library PRIVATE lorva_flags lorva_base)
