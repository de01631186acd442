# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
lorva_add_benchmark(model_benchmark SOURCES ModelBenchmark.cpp LINK lorva_model)
