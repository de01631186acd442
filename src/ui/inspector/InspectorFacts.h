// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/LanguageCoverage.h"
#include "text/FaceInformation.h"
#include "text/Font.h"
#include "ui/inspector/InspectorStates.h"

#include <QLocale>

#include <stop_token>

namespace lorva {

/// What a person reads of a feature beside its switch.
struct FeatureNotes
{
    /// The record's name, or the feature's friendly one where the font only has a tag for it.
    QString title;
    FontTag tag = 0;
    /// The font's own explanation.
    QString toolTip;
    /// What the values 1, 2, … of a character variant are called.
    QStringList valueNames;
    bool operator==(const FeatureNotes &) const = default;
};

/// All that the inspector reads of a face, axes aside: these follow its settings.
struct InspectorFacts
{
    std::vector<FontFeature> offered;
    std::vector<OpenTypeFeatureRecord> features;
    /// One for each feature.
    std::vector<FeatureNotes> notes;
    std::vector<NamedInstance> instances;
    FontMetadataInfo metadata;
    /// What stands below the sections of the metadata.
    std::vector<InfoSection> furtherSections;
};

/// Reads the file, which may take tens of milliseconds. Thread: any. A face that cannot be read
/// gives empty facts. `book` may be null.
InspectorFacts readInspectorFacts(const FontFace &face, const OrthographyBook *book,
                                  const std::stop_token &stop);

/// "License", "Embedding" and "Links"; those that the font tells nothing of are left out.
std::vector<InfoSection> legalSections(const FaceInformation &information);
InfoSection linksSection(const FaceInformation &information);

/// The languages by the names that `locale` has for them: those supported, and those nearly so with
/// what is missing. No rows where there are none.
std::vector<InfoSection> languageSections(const std::vector<LanguageCoverage> &coverage,
                                          const QLocale &locale);

/// The address, if it leads to the web; anything else that a font may hold is no link.
QUrl webLink(const QString &text);

} // namespace lorva
