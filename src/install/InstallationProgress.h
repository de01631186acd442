// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>

namespace lorva {

/// Tells how far a run is: looks at its counter some thirty times a second, so that no run is
/// slowed down by who looks on. Thread: main, but for the counter.
class InstallationProgress final : public QObject
{
public:
    using Tell = std::function<void(int done, int total)>;

    InstallationProgress(int total, Tell tell);

    /// What the run counts with.
    const std::shared_ptr<std::atomic<int>> &counter() const { return m_counter; }

    /// Tells that nothing is done yet, and from now on what is. Whoever is told may destroy this.
    void begin();
    /// Tells what was not told yet; nothing more comes after that, and nothing at all without
    /// begin(). Whoever is told may destroy this.
    void end();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void tellWhatIsNew();

    const int m_total;
    const Tell m_tell;
    const std::shared_ptr<std::atomic<int>> m_counter;
    int m_timer = 0;
    int m_told = -1;
};

} // namespace lorva
