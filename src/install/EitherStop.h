// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <stop_token>

namespace lorva {

/// A stop that is asked for when either of two others is, while this lives. Thread: any.
class EitherStop
{
public:
    EitherStop(const std::stop_token &one, const std::stop_token &other)
        : m_one(one, [this] { m_stop.request_stop(); })
        , m_other(other, [this] { m_stop.request_stop(); })
    {
    }
    EitherStop(const EitherStop &) = delete;
    EitherStop &operator=(const EitherStop &) = delete;

    std::stop_token token() const { return m_stop.get_token(); }

private:
    std::stop_source m_stop;
    const std::stop_callback<std::function<void()>> m_one;
    const std::stop_callback<std::function<void()>> m_other;
};

} // namespace lorva
