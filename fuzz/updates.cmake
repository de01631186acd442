# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
lorva_add_fuzzer(lorva_feed_fuzzer SOURCES FeedFuzzer.cpp LINK lorva_platform PkgConfig::SODIUM)
