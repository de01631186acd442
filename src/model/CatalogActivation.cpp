// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "model/CatalogActivation.h"

#include <algorithm>

namespace lorva {

struct CatalogActivation::State final : ActivationState
{
    PlatformFolders folders;
    std::vector<FilePath> watchedFolders;
    /// Absent until the first scan.
    std::optional<QSet<FilePath>> watched;

    std::optional<FontFamilyActivation> activation(const FontFamilyRecord &family) const override;
    bool isWatched(const FilePath &file) const;
    bool isActive(const FilePath &file) const;
};

bool CatalogActivation::State::isWatched(const FilePath &file) const
{
    if (watched)
        return watched->contains(file);
    return std::ranges::any_of(watchedFolders,
                               [&](const FilePath &folder) { return file.isInside(folder); });
}

bool CatalogActivation::State::isActive(const FilePath &file) const
{
    if (!isWatched(file))
        return true;
    const auto holds = [&](const FilePath &folder) { return file.isInside(folder); };
    return holds(folders.userFonts) || holds(folders.allUsersFonts)
        || std::ranges::any_of(folders.systemFonts, holds);
}

std::optional<FontFamilyActivation> CatalogActivation::State::activation(
    const FontFamilyRecord &family) const
{
    int withFile = 0;
    int active = 0;
    for (const FontStyleRecord &style : family.styles) {
        if (!style.fileURL)
            continue;
        ++withFile;
        active += isActive(*style.fileURL) ? 1 : 0;
    }
    if (withFile == 0)
        return std::nullopt;
    if (active == 0)
        return FontFamilyActivation::inactive();
    return FontFamilyActivation::active(std::nullopt, active < withFile);
}

CatalogActivation::CatalogActivation(PlatformFolders folders)
{
    State state;
    state.folders = std::move(folders);
    m_state = std::make_shared<const State>(std::move(state));
}

CatalogActivation::~CatalogActivation() = default;

std::shared_ptr<const ActivationState> CatalogActivation::state() const
{
    return m_state;
}

void CatalogActivation::setWatchedFolders(std::vector<FilePath> folders)
{
    State state = *m_state;
    state.watchedFolders = std::move(folders);
    m_state = std::make_shared<const State>(std::move(state));
}

void CatalogActivation::setWatchedFontURLs(QSet<FilePath> urls)
{
    State state = *m_state;
    state.watched = std::move(urls);
    m_state = std::make_shared<const State>(std::move(state));
}

void CatalogActivation::reconcile(const FontFamilyList &, std::function<void()> done)
{
    done();
}

} // namespace lorva
