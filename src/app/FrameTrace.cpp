// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/FrameTrace.h"

#include "base/Trace.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace lorva {

namespace {

class FrameRecorder final : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::UpdateRequest || m_isInFrame)
            return false;
        // Delivered from here, so that its end is seen.
        m_isInFrame = true;
        const TraceStage stage("frame");
        QCoreApplication::sendEvent(watched, event);
        m_isInFrame = false;
        return true;
    }

private:
    bool m_isInFrame = false;
};

} // namespace

void traceFrames(QWidget &window)
{
    if (isTracing())
        window.installEventFilter(new FrameRecorder(&window));
}

} // namespace lorva
