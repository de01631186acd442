// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/WindowFrameStore.h"

#include "platform/PreferenceStore.h"

#include <array>
#include <cstdlib>

namespace lorva {

namespace {

/// X11 and Wayland count window positions in 16 bits; beyond this a number is damage.
constexpr int kFarthest = 65535;

} // namespace

QString windowFrameText(const QRect &frame)
{
    return QStringLiteral("%1 %2 %3 %4")
        .arg(frame.x())
        .arg(frame.y())
        .arg(frame.width())
        .arg(frame.height());
}

std::optional<QRect> windowFrameFromText(const QString &text)
{
    const QStringList words = text.split(u' ');
    std::array<int, 4> numbers{};
    if (words.size() != qsizetype(numbers.size()))
        return std::nullopt;
    for (size_t i = 0; i < numbers.size(); ++i) {
        bool isNumber = false;
        numbers[i] = words[qsizetype(i)].toInt(&isNumber);
        if (!isNumber || std::abs(qint64(numbers[i])) > kFarthest)
            return std::nullopt;
    }
    const auto [x, y, width, height] = numbers;
    if (width <= 0 || height <= 0)
        return std::nullopt;
    const QRect frame(x, y, width, height);
    // Number parsing forgives signs, zeros and tabs that we never write.
    return windowFrameText(frame) == text ? std::optional(frame) : std::nullopt;
}

WindowFrameStore::WindowFrameStore(PreferenceStore &preferences, QString key)
    : m_preferences(preferences)
    , m_key(std::move(key))
{
}

std::optional<QRect> WindowFrameStore::load() const
{
    const std::optional<QString> text = m_preferences.string(m_key);
    return text ? windowFrameFromText(*text) : std::nullopt;
}

void WindowFrameStore::save(const QRect &frame)
{
    if (!frame.isEmpty())
        m_preferences.setString(m_key, windowFrameText(frame));
}

} // namespace lorva
