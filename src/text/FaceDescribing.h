// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FaceTables.h"
#include "text/names/NameTable.h"

namespace lorva {

/// What the small tables of one face say, read together in one opening: enough to describe the face
/// and all its named instances.
struct FaceFacts
{
    QByteArray nameBytes;
    NameTable names;
    FaceTraits traits;
    FvarTable fvar;

    bool hasReadableName() const;
};

FaceFacts readFaceFacts(const OpenedFile &file, const SfntDirectory &directory,
                        NameSelection selection = NameSelection::withInstances);

/// The descriptors of one face as FontFile::descriptors() gives them, at most `room` of them.
std::vector<FaceDescriptor> describeFace(const FaceFacts &facts, int faceIndex, size_t room);

/// Name of an instance: its subfamily record; empty when that cannot be read.
QString instanceName(const FaceFacts &facts, const FvarInstance &instance);

/// PostScript name of an instance (Adobe Technical Note 5902): its own record, the face's name for
/// the default instance, else a generated one.
QString instancePostScriptName(const FaceFacts &facts, const FvarInstance &instance);

/// NameTable::familyNames() of a face; empty where the naming table cannot be read.
std::vector<QString> readFamilyNames(const OpenedFile &file, const SfntDirectory &directory);

QString familyName(const NameTable &names);
QString styleName(const NameTable &names);

} // namespace lorva
