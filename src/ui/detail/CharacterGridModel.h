// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/Font.h"
#include "text/GlyphNames.h"
#include "ui/detail/CharacterBlocks.h"

#include <QObject>
#include <QPointer>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <optional>

namespace lorva {

/// All that a face has, listed.
struct CharacterListing
{
    std::vector<CharacterGridSection> sections;
    /// As charactersByGlyph().
    std::vector<char32_t> characterOfGlyph;
    std::shared_ptr<const GlyphNames> glyphNames;
};

/// Reads the face. Thread: any.
CharacterListing listCharacters(const Font &face);

/// Which face's characters are shown, and which are on the way.
///
/// A request supersedes the one that runs: its result is dropped when it comes. Owns its threads,
/// and waits for them at its end. Thread: main; faces are listed on a worker.
class CharacterGridModel final : public QObject
{
    Q_OBJECT
public:
    using Work = std::function<CharacterListing()>;
    using Done = std::function<void(CharacterListing)>;
    /// Does the work some time and then hands its result over on the main thread, if at all.
    using Runner = std::function<void(Work, Done)>;

    explicit CharacterGridModel(QObject *parent = nullptr);
    /// Runs its work elsewhere.
    CharacterGridModel(Runner runner, QObject *parent);
    ~CharacterGridModel() override;

    /// Lists `face` unless what the key stands for is shown or on the way. An empty key: nothing.
    void request(const QString &key, const Font &face);

    const std::vector<CharacterGridSection> &characterSections() const
    {
        return m_listing->sections;
    }
    const std::shared_ptr<const CharacterListing> &listing() const { return m_listing; }
    /// Whose characters are shown.
    const std::optional<QString> &cachedCharacterGridKey() const
    {
        return m_cachedCharacterGridKey;
    }
    const std::optional<QString> &pendingCharacterGridKey() const
    {
        return m_pendingCharacterGridKey;
    }
    int characterGridGeneration() const { return m_characterGridGeneration; }
    bool isEnumeratingCharacters() const { return m_isEnumeratingCharacters; }

Q_SIGNALS:
    /// Other characters, or others on the way.
    void changed();

private:
    void begin(const std::optional<QString> &key);
    void finish(int generation, CharacterListing listing);

    QThreadPool m_pool;
    Runner m_run;
    /// The characterSections, and what belongs to them. Never null.
    std::shared_ptr<const CharacterListing> m_listing;
    std::optional<QString> m_cachedCharacterGridKey;
    std::optional<QString> m_pendingCharacterGridKey;
    int m_characterGridGeneration = 0;
    bool m_isEnumeratingCharacters = false;
};

} // namespace lorva
