// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CharacterGridModel.h"

#include "base/RunThen.h"
#include "base/Trace.h"

namespace lorva {

CharacterListing listCharacters(const Font &face)
{
    const TraceStage stage("characters: list");
    if (face.isNull())
        return {};
    CharacterListing listing;
    listing.sections = enumerateCharacters(readCharacters(*face.face()));
    listing.characterOfGlyph = charactersByGlyph(*face.face());
    listing.glyphNames = std::make_shared<GlyphNames>(*face.face());
    return listing;
}

CharacterGridModel::CharacterGridModel(QObject *parent)
    : CharacterGridModel({}, parent)
{
    m_run = [this](Work work, Done done) {
        runThen(
            m_pool, this, [work = std::move(work)](const std::stop_token &) { return work(); },
            std::move(done));
    };
}

CharacterGridModel::CharacterGridModel(Runner runner, QObject *parent)
    : QObject(parent)
    , m_run(std::move(runner))
    , m_listing(std::make_shared<CharacterListing>())
{
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.character-grid"));
    // The work of someone who waits: a newer request need not wait for the one that it supersedes.
    m_pool.setMaxThreadCount(2);
    m_pool.setThreadPriority(QThread::NormalPriority);
}

CharacterGridModel::~CharacterGridModel()
{
    m_pool.clear();
    m_pool.waitForDone();
}

void CharacterGridModel::request(const QString &key, const Font &face)
{
    if (key.isEmpty()) {
        if (m_cachedCharacterGridKey || m_pendingCharacterGridKey)
            begin(std::nullopt);
        return;
    }
    const std::optional<QString> &current =
        m_isEnumeratingCharacters ? m_pendingCharacterGridKey : m_cachedCharacterGridKey;
    if (current == key)
        return;
    begin(key);
    m_run(
        [face] { return listCharacters(face); },
        [guard = QPointer(this), generation = m_characterGridGeneration](CharacterListing listing) {
            if (guard)
                guard->finish(generation, std::move(listing));
        });
}

void CharacterGridModel::begin(const std::optional<QString> &key)
{
    ++m_characterGridGeneration;
    m_pendingCharacterGridKey = key;
    m_cachedCharacterGridKey.reset();
    m_isEnumeratingCharacters = key.has_value();
    m_listing = std::make_shared<CharacterListing>();
    Q_EMIT changed();
}

void CharacterGridModel::finish(int generation, CharacterListing listing)
{
    if (generation != m_characterGridGeneration)
        return;
    m_listing = std::make_shared<const CharacterListing>(std::move(listing));
    m_cachedCharacterGridKey = std::exchange(m_pendingCharacterGridKey, std::nullopt);
    m_isEnumeratingCharacters = false;
    Q_EMIT changed();
}

} // namespace lorva
