# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
# RapidJSON is only here to be compared with; the program itself never links it.
lorva_add_benchmark(records_benchmark SOURCES RecordsBenchmark.cpp LINK lorva_records)
find_path(LORVA_RAPIDJSON_INCLUDE rapidjson/reader.h)
if(LORVA_RAPIDJSON_INCLUDE)
  target_include_directories(records_benchmark SYSTEM PRIVATE ${LORVA_RAPIDJSON_INCLUDE})
  target_compile_definitions(records_benchmark PRIVATE LORVA_HAS_RAPIDJSON)
endif()
