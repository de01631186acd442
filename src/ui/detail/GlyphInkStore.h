// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/BoundedCache.h"
#include "ui/detail/GlyphInk.h"

#include <QElapsedTimer>
#include <QThreadPool>

#include <stop_token>
#include <unordered_set>
#include <vector>

namespace lorva {

/// The pixels of the glyphs of one look: painted when asked for, at once or by workers, and kept
/// while they are among those used last.
///
/// Owns its threads, and waits for them at its end. Thread: main.
class GlyphInkStore final : public QObject
{
    Q_OBJECT
public:
    explicit GlyphInkStore(QObject *parent = nullptr);
    ~GlyphInkStore() override;

    /// Forgets everything made for another one; true if it did. The foreground concerns only fonts
    /// that may have coloured glyphs.
    bool setLook(GlyphLook look);
    const GlyphLook &look() const { return m_look; }

    /// If it is at hand.
    std::optional<GlyphInk> find(quint32 glyph) { return m_cache.find(glyph); }
    /// At hand, or painted at once while this round's time lasts.
    std::optional<GlyphInk> findOrPaint(quint32 glyph);
    /// A new round of findOrPaint(), which may take the main thread a few milliseconds altogether.
    void startRound() { m_round.start(); }
    /// What workers are to paint, the most urgent first, in place of what they were asked for
    /// before; what is at hand is passed over.
    void want(const std::vector<quint32> &glyphs);
    /// Something is still being painted.
    bool isBusy() const { return m_running > 0 || m_next < m_wanted.size(); }

Q_SIGNALS:
    /// More is at hand.
    void arrived();

private:
    struct Painters;
    using Batch = std::vector<std::pair<quint32, GlyphInk>>;

    void startWorkers();
    std::vector<quint32> nextBatch();
    void take(quint64 generation, const Batch &batch);

    QThreadPool m_pool;
    GlyphLook m_look;
    BoundedCache<quint32, GlyphInk> m_cache;
    /// Painters of the present look that nobody uses.
    std::shared_ptr<Painters> m_painters;
    QElapsedTimer m_round;
    std::vector<quint32> m_wanted;
    size_t m_next = 0;
    std::unordered_set<quint32> m_underWay;
    /// Stops the workers of the present look.
    std::stop_source m_stop;
    int m_running = 0;
    quint64 m_generation = 0;
};

} // namespace lorva
