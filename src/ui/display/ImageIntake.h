// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <functional>

class QImage;
class QMimeData;
class QWidget;

namespace lorva {

/// How an image file comes into a panel: chosen in a dialog, dropped, or dropped as a picture.
///
/// Files are read on a worker, regular ones only and never more than a bound; what cannot be read
/// is said in words. Owns nothing but its dialog. Thread: main.
class ImageIntake final : public QObject
{
    Q_OBJECT
public:
    /// `host`: the widget that the dialog belongs to.
    ImageIntake(qsizetype mostBytes, QWidget *host);

    /// Asks for a file; returns at once.
    void choose();
    /// A file or a picture that might be one; families of fonts are none.
    static bool canTake(const QMimeData &data);
    void take(const QMimeData &data);
    /// In the user's place: the file that the next choose() gives. Empty: the user cancels.
    static void setNextChosenFile(const FilePath &file);

    std::function<void(const QByteArray &bytes)> onBytes;
    std::function<void(const QString &words)> onProblem;

private:
    void read(const FilePath &file);
    void encode(const QImage &picture);

    const qsizetype m_mostBytes;
    QWidget *const m_host;
    unsigned m_generation = 0;
};

} // namespace lorva
