# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
lorva_add_fuzzer(lorva_cache_fuzzer SOURCES CacheFuzzer.cpp LINK lorva_catalog)
