// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "model/records/Activation.h"
#include "model/records/FontRecords.h"
#include "platform/PlatformFolders.h"

#include <QSet>

#include <optional>

namespace lorva {

/// Answers whether a family is switched on for the whole system.
///
/// Thread: main.
class ActivationProvider
{
public:
    virtual ~ActivationProvider() = default;
    /// Nothing for a family that the user cannot switch: one without any file.
    virtual std::optional<FontFamilyActivation> activation(
        const FontFamilyRecord &family) const = 0;
    /// What lies in these counts as watched until a scan has said what does.
    virtual void setWatchedFolders(std::vector<FilePath> folders) = 0;
    /// The font files that came from watched folders; replaced whole after each scan.
    virtual void setWatchedFontURLs(QSet<FilePath> urls) = 0;
};

/// Activation as the catalog alone knows it: what the system offers is active without a recorded
/// method, what only lies in a watched folder is inactive. A watched folder inside a font folder of
/// the system switches nothing off.
class CatalogActivation final : public ActivationProvider
{
public:
    explicit CatalogActivation(PlatformFolders folders)
        : m_folders(std::move(folders))
    {
    }

    std::optional<FontFamilyActivation> activation(const FontFamilyRecord &family) const override;
    void setWatchedFolders(std::vector<FilePath> folders) override
    {
        m_watchedFolders = std::move(folders);
    }
    void setWatchedFontURLs(QSet<FilePath> urls) override { m_watched = std::move(urls); }

private:
    bool isWatched(const FilePath &file) const;
    bool isActive(const FilePath &file) const;

    PlatformFolders m_folders;
    std::vector<FilePath> m_watchedFolders;
    /// Empty until the first scan.
    std::optional<QSet<FilePath>> m_watched;
};

} // namespace lorva
