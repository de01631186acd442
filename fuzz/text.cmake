# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
lorva_add_fuzzer(lorva_text_fuzzer SOURCES TextFuzzer.cpp FontTrials.cpp FontMutator.cpp LINK lorva_text)
