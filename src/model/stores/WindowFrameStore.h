// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>

#include <optional>

namespace lorva {

class PreferenceStore;

/// Keeps the main window's frame across starts, as "x y width height" in logical pixels.
///
/// Holds a reference to the preference store, which outlives it, and no cache. Thread: main.
class WindowFrameStore
{
public:
    explicit WindowFrameStore(
        PreferenceStore &preferences,
        QString key = QStringLiteral("vantrel.merid.windowFrame.LorvaMainWindow"));

    /// Nothing when no frame was saved or what is stored is none.
    std::optional<QRect> load() const;
    /// An empty frame is not saved.
    void save(const QRect &frame);

private:
    PreferenceStore &m_preferences;
    const QString m_key;
};

/// The stored form of a frame.
QString windowFrameText(const QRect &frame);
/// Reads windowFrameText()'s form and no other; nothing for a frame without area or with a
/// coordinate beyond what any desktop has.
std::optional<QRect> windowFrameFromText(const QString &text);

} // namespace lorva
