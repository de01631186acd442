// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/GlyphInkStore.h"

#include "base/RunThen.h"
#include "base/Trace.h"
#include "text/color/ColorGlyphSource.h"

#include <mutex>

namespace lorva {

namespace {

/// A window of 4K has some 1,500 cells; this keeps what lies around it, too.
constexpr size_t kMostInks = 6000;
constexpr int kWorkers = 2;
/// Small, so that what comes into sight does not wait for what has left it.
constexpr size_t kBatch = 24;
/// Of a frame's 16; drawing needs the rest.
constexpr qint64 kRoundMs = 4;

} // namespace

/// Making a painter reads the face; workers borrow them.
struct GlyphInkStore::Painters
{
    explicit Painters(GlyphLook paintedLook)
        : look(std::move(paintedLook))
    {
    }

    std::unique_ptr<GlyphInkPainter> borrow()
    {
        {
            const std::lock_guard lock(mutex);
            if (!idle.empty()) {
                std::unique_ptr<GlyphInkPainter> painter = std::move(idle.back());
                idle.pop_back();
                return painter;
            }
        }
        return std::make_unique<GlyphInkPainter>(look);
    }

    void giveBack(std::unique_ptr<GlyphInkPainter> painter)
    {
        const std::lock_guard lock(mutex);
        idle.push_back(std::move(painter));
    }

    const GlyphLook look;
    std::mutex mutex;
    std::vector<std::unique_ptr<GlyphInkPainter>> idle;
};

GlyphInkStore::GlyphInkStore(QObject *parent)
    : QObject(parent)
    , m_cache(kMostInks)
    , m_painters(std::make_shared<Painters>(m_look))
{
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.character-ink"));
    m_pool.setMaxThreadCount(kWorkers);
    m_round.start();
}

GlyphInkStore::~GlyphInkStore()
{
    m_stop.request_stop();
    m_pool.clear();
    m_pool.waitForDone();
}

bool GlyphInkStore::setLook(GlyphLook look)
{
    if (look.font.isNull() || !mayHaveColor(*look.font.face()))
        look.foreground = Qt::black;
    if (look == m_look)
        return false;
    m_look = std::move(look);
    m_painters = std::make_shared<Painters>(m_look);
    m_cache.clear();
    m_wanted.clear();
    m_next = 0;
    m_underWay.clear();
    m_stop.request_stop();
    m_stop = std::stop_source();
    m_running = 0;
    ++m_generation;
    return true;
}

std::optional<GlyphInk> GlyphInkStore::findOrPaint(quint32 glyph)
{
    std::optional<GlyphInk> ink = m_cache.find(glyph);
    if (ink || m_round.elapsed() >= kRoundMs)
        return ink;
    std::unique_ptr<GlyphInkPainter> painter = m_painters->borrow();
    ink = painter->paint(glyph);
    m_painters->giveBack(std::move(painter));
    m_cache.insert(glyph, *ink);
    return ink;
}

void GlyphInkStore::want(const std::vector<quint32> &glyphs)
{
    m_wanted = glyphs;
    m_next = 0;
    startWorkers();
}

std::vector<quint32> GlyphInkStore::nextBatch()
{
    std::vector<quint32> batch;
    while (m_next < m_wanted.size() && batch.size() < kBatch) {
        const quint32 glyph = m_wanted[m_next++];
        if (!m_cache.find(glyph) && m_underWay.insert(glyph).second)
            batch.push_back(glyph);
    }
    return batch;
}

void GlyphInkStore::startWorkers()
{
    while (m_running < kWorkers) {
        const std::vector<quint32> batch = nextBatch();
        if (batch.empty())
            return;
        ++m_running;
        runThen(
            m_pool, this,
            [painters = m_painters, batch, stop = m_stop.get_token()](const std::stop_token &) {
                const TraceStage stage("characters: paint");
                std::unique_ptr<GlyphInkPainter> painter = painters->borrow();
                Batch painted;
                for (size_t i = 0; i < batch.size() && !stop.stop_requested(); ++i)
                    painted.emplace_back(batch[i], painter->paint(batch[i]));
                painters->giveBack(std::move(painter));
                return painted;
            },
            [this, generation = m_generation](const Batch &painted) { take(generation, painted); });
    }
}

void GlyphInkStore::take(quint64 generation, const Batch &batch)
{
    if (generation != m_generation)
        return;
    --m_running;
    for (const auto &[glyph, ink] : batch) {
        m_underWay.erase(glyph);
        m_cache.insert(glyph, ink);
    }
    startWorkers();
    Q_EMIT arrived();
}

} // namespace lorva
