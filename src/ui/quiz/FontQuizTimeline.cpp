// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizTimeline.h"

#include "base/Trace.h"

#include <QPointer>
#include <QTimerEvent>

#include <algorithm>
#include <vector>

namespace lorva {

namespace {

constexpr int kFrameMilliseconds = 16;
/// A program that was held up goes on where it was instead of leaping.
constexpr std::chrono::milliseconds kLongestStep{48};

} // namespace

void FontQuizTimeline::run(const QByteArray &name, Milliseconds duration, Step step,
                           std::function<void()> done)
{
    const auto shared = std::make_shared<Step>(std::move(step));
    m_tracks.insert_or_assign(
        name, Track{std::max(duration, Milliseconds(1)), {}, shared, std::move(done)});
    watchClock();
    (*shared)(0.0);
}

void FontQuizTimeline::drop(const QByteArray &name)
{
    m_tracks.erase(name);
    watchClock();
}

void FontQuizTimeline::finish(const QByteArray &name)
{
    const auto found = m_tracks.find(name);
    if (found != m_tracks.end())
        stepTrack(name, found->second.duration);
}

void FontQuizTimeline::setManual()
{
    m_isManual = true;
    watchClock();
}

/// A step or an end may begin and drop tracks, or delete all this.
void FontQuizTimeline::advance(Milliseconds time)
{
    const TraceStage stage("quiz: step");
    std::vector<QByteArray> names;
    for (const auto &[name, track] : m_tracks)
        names.push_back(name);
    const QPointer<FontQuizTimeline> guard(this);
    for (const QByteArray &name : names) {
        if (guard)
            stepTrack(name, time);
    }
}

void FontQuizTimeline::stepTrack(const QByteArray &name, Milliseconds time)
{
    const auto found = m_tracks.find(name);
    if (found == m_tracks.end())
        return;
    Track &track = found->second;
    track.elapsed = std::min(track.elapsed + time, track.duration);
    const std::shared_ptr<Step> step = track.step;
    const double share = double(track.elapsed.count()) / double(track.duration.count());
    if (track.elapsed < track.duration)
        return (*step)(share);
    const std::function<void()> done = std::move(track.done);
    m_tracks.erase(found);
    watchClock();
    (*step)(1.0);
    if (done)
        done();
}

void FontQuizTimeline::watchClock()
{
    if (m_isManual || m_tracks.empty())
        return m_timer.stop();
    if (m_timer.isActive())
        return;
    m_clock.start();
    m_timer.start(kFrameMilliseconds, Qt::PreciseTimer, this);
}

void FontQuizTimeline::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_timer.timerId())
        advance(std::min(Milliseconds(m_clock.restart()), kLongestStep));
}

} // namespace lorva
