// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FontRegistrar.h"

#include <QSet>

#include <mutex>

namespace lorva {

/// Registration as fontconfig knows it: in a folder of its own, inside the user's font folder, one
/// symbolic link per file under a name that is unique to the file's whole path.
///
/// A link's name is "<hash of the path>-<the file's name>", cut to the length that names may have:
/// it keeps the extension and never begins with a dot, so that fontconfig takes it. Links are made
/// and removed atomically; what else lies in the folder is left alone. Several processes may do so
/// at once. The process scope is a set in this object.
class LinkFolderRegistrar final : public FontRegistrar
{
public:
    /// The folder is made, with its parents, when the first link is.
    explicit LinkFolderRegistrar(FilePath linkFolder);

    std::optional<FontManagerError> registerFont(const FilePath &file,
                                                 RegistrationScope scope) override;
    std::optional<FontManagerError> unregisterFont(const FilePath &file,
                                                   RegistrationScope scope) override;
    void registerFonts(const std::vector<FilePath> &files, const Progress &progress) override;
    void unregisterFonts(const std::vector<FilePath> &files, const Progress &progress) override;
    std::vector<FilePath> registeredFonts() const override;
    /// Sets the folder's time, so that fontconfig does not trust what it remembers of it; does
    /// nothing when there is no folder.
    void announceChanges() override;

    /// The name of a file's link.
    static QByteArray linkName(const FilePath &file);

private:
    const FilePath m_linkFolder;
    std::mutex m_mutex;
    QSet<FilePath> m_processFonts;
};

} // namespace lorva
