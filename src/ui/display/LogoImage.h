// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "base/RunThen.h"

#include <QByteArray>
#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <functional>
#include <optional>

namespace lorva {

/// The user's logo, ready to be shown: decoded once, on a worker, from the bytes that are stored.
///
/// Thread: main.
class LogoImage final : public QObject
{
    Q_OBJECT
public:
    /// Larger ones are scaled down: even the largest specimen shows a logo of some hundred pixels.
    static constexpr int kMaximumSidePx = 1024;

    explicit LogoImage(QObject *parent = nullptr);
    ~LogoImage() override;

    /// What image() gives has changed.
    std::function<void()> onChange;

    /// The picture in these bytes; absent while it is being decoded, which this begins, and when
    /// there is none in them.
    std::optional<QImage> image(const QByteArray &bytes);
    /// It is being decoded.
    bool isWaiting() const { return m_isWaiting; }

    /// What to store of an image file, small enough to be stored with every source. Fails as
    /// readSafeImage().
    static Result<QByteArray> storable(const QByteArray &bytes);

private:
    QByteArray m_bytes;
    std::optional<QImage> m_image;
    bool m_isWaiting = false;
    RunHandle m_run;
    QThreadPool m_pool;
};

} // namespace lorva
