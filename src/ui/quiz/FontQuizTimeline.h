// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>

#include <chrono>
#include <functional>
#include <map>
#include <memory>

namespace lorva {

/// What moves in the quiz, and its time: everything goes on in one step for each frame, so that one
/// frame shows one moment.
///
/// Thread: main.
class FontQuizTimeline final : public QObject
{
    Q_OBJECT
public:
    using Milliseconds = std::chrono::milliseconds;
    /// Gets the share of the time that is over, 0 … 1, without easing.
    using Step = std::function<void(double share)>;

    using QObject::QObject;

    /// Steps at once with 0, then at every frame, with 1 at its end, and then calls `done`. What
    /// ran under that name is dropped as by drop().
    void run(const QByteArray &name, Milliseconds duration, Step step,
             std::function<void()> done = {});
    /// Neither steps nor ends any more.
    void drop(const QByteArray &name);
    /// Goes to the end of it at once.
    void finish(const QByteArray &name);
    bool isRunning(const QByteArray &name) const { return m_tracks.contains(name); }
    bool isRunning() const { return !m_tracks.empty(); }

    /// From now on time goes on only by advance().
    void setManual();
    void advance(Milliseconds time);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    struct Track
    {
        Milliseconds duration;
        Milliseconds elapsed{0};
        /// Shared with the call that runs: it may drop the track, and what it remembers counts.
        std::shared_ptr<Step> step;
        std::function<void()> done;
    };

    void stepTrack(const QByteArray &name, Milliseconds time);
    void watchClock();

    std::map<QByteArray, Track> m_tracks;
    QBasicTimer m_timer;
    QElapsedTimer m_clock;
    bool m_isManual = false;
};

} // namespace lorva
