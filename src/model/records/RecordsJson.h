// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Json.h"
#include "model/records/Activation.h"
#include "model/records/BrowserSource.h"
#include "model/records/DisplayRecords.h"
#include "model/records/FontRecords.h"
#include "model/records/GroupingRecords.h"

namespace lorva {

// The JSON forms of the records, for decodeJson() and encodeJson() alone and inside other types: an
// object whose keys are the field names. Absent fields are left out. A record that does not decode
// is never built in part.

void readJson(JsonReader &in, FontStyleRecord &out);
void writeJson(JsonWriter &out, const FontStyleRecord &value);
void readJson(JsonReader &in, FontFamilyRecord &out);
void writeJson(JsonWriter &out, const FontFamilyRecord &value);

void readJson(JsonReader &in, FontCollectionRecord &out);
void writeJson(JsonWriter &out, const FontCollectionRecord &value);
void readJson(JsonReader &in, FontStyleCategoryRecord &out);
void writeJson(JsonWriter &out, const FontStyleCategoryRecord &value);
void readJson(JsonReader &in, FoundryCollectionRecord &out);
void writeJson(JsonWriter &out, const FoundryCollectionRecord &value);

void readJson(JsonReader &in, LogoConfiguration &out);
void writeJson(JsonWriter &out, const LogoConfiguration &value);
void readJson(JsonReader &in, SourceDisplaySettings &out);
void writeJson(JsonWriter &out, const SourceDisplaySettings &value);

/// An object with one key, the kind's name, over an object that holds a grouping's id under "_0":
/// {"style":{"_0":"serif"}}, {"allFonts":{}}.
void readJson(JsonReader &in, BrowserSource &out);
void writeJson(JsonWriter &out, const BrowserSource &value);

// Enumerations are strings, but ColorMode, which is its number.

void readJson(JsonReader &in, WritingScript &out);
void writeJson(JsonWriter &out, const WritingScript &value);
void readJson(JsonReader &in, InstallMethod &out);
void writeJson(JsonWriter &out, const InstallMethod &value);
void readJson(JsonReader &in, ViewMode &out);
void writeJson(JsonWriter &out, const ViewMode &value);
void readJson(JsonReader &in, ColorMode &out);
void writeJson(JsonWriter &out, const ColorMode &value);

/// The stored string of an enumerator, for stores that keep it outside JSON.
QString storedName(WritingScript script);
QString storedName(InstallMethod method);
QString storedName(ViewMode mode);
/// The enumerator stored as `name`; nothing for any other text.
std::optional<WritingScript> writingScriptFromName(QStringView name);
std::optional<InstallMethod> installMethodFromName(QStringView name);
std::optional<ViewMode> viewModeFromName(QStringView name);

QByteArray encodeFamilies(const std::vector<FontFamilyRecord> &families);
/// Fails as a whole: the place in the error says which family ("[3].styles[0].weight").
Result<std::vector<FontFamilyRecord>> decodeFamilies(QByteArray json);

} // namespace lorva
