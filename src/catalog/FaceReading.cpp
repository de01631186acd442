// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FaceReading.h"

#include "catalog/StyleWeight.h"
#include "text/OpenedFile.h"

#include <QLoggingCategory>

#include <algorithm>

namespace lorva {

namespace {

Q_LOGGING_CATEGORY(logRead, "lorva.catalog.read", QtWarningMsg)

bool isAboutContents(ErrorKind kind)
{
    return kind != ErrorKind::permissionDenied && kind != ErrorKind::ioFailure
        && kind != ErrorKind::notFound;
}

void noteManufacturer(FaceReading &reading, const FaceDescriptor &descriptor)
{
    const auto isSameFamily = [&](const auto &known) {
        return known.first == descriptor.familyName;
    };
    if (descriptor.manufacturer.isEmpty()
        || std::any_of(reading.manufacturers.begin(), reading.manufacturers.end(), isSameFamily))
        return;
    reading.manufacturers.emplace_back(descriptor.familyName, descriptor.manufacturer);
}

FaceReading unreadable(const Error &error)
{
    qCInfo(logRead).noquote() << error.detail;
    FaceReading reading;
    reading.isLasting = isAboutContents(error.kind);
    return reading;
}

} // namespace

QString styleLabel(const QString &styleName)
{
    const QString label = styleName.trimmed();
    return label.isEmpty() ? QStringLiteral("Regular") : label;
}

QString styleId(const QString &familyName, const QString &label, const QString &postScriptName)
{
    if (!postScriptName.isEmpty())
        return postScriptName;
    return familyName + QStringLiteral("::") + label;
}

std::optional<ParsedEntry> parsedEntry(const FaceDescriptor &descriptor, const FilePath &file)
{
    if (descriptor.familyName.isEmpty())
        return std::nullopt;
    ParsedEntry entry;
    entry.familyName = descriptor.familyName;
    FontStyleRecord &style = entry.style;
    style.label = styleLabel(descriptor.styleName);
    style.postScriptName = descriptor.postScriptName;
    style.id = styleId(descriptor.familyName, style.label, descriptor.postScriptName);
    style.weight = styleWeight(style.label, descriptor.traits);
    style.isItalic = isItalicStyle(style.label, descriptor.traits);
    style.fileURL = file;
    return entry;
}

FaceReading readFaces(const FilePath &file,
                      const std::function<bool(const QString &familyName)> &isNewFamily)
{
    const auto opened = FontFile::openForReading(file);
    if (!opened)
        return unreadable(opened.error());
    const auto descriptors = opened->file->descriptors();
    if (!descriptors)
        return unreadable(descriptors.error());
    FaceReading reading;
    reading.entries.reserve(descriptors->size());
    for (const FaceDescriptor &descriptor : *descriptors) {
        std::optional<ParsedEntry> entry = parsedEntry(descriptor, file);
        if (!entry)
            continue;
        noteManufacturer(reading, descriptor);
        reading.entries.push_back(*std::move(entry));
    }
    reading.identifications = identifyFamilies(*opened->file, *descriptors, isNewFamily);
    reading.isLasting = !opened->opening->hasFailed();
    return reading;
}

} // namespace lorva
