# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
lorva_add_fuzzer(lorva_text_fuzzer SOURCES TextFuzzer.cpp LINK lorva_text)
