// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>

#include <vector>

namespace lorva {

/// The smallest type of the poster's sentences.
inline constexpr double kSmallestPosterSize = 12;

/// The interface's font at any size (points) and weight. Thread: main.
QFont posterFont(double size, int weight);

/// Sentences in lines of a width, and to which paragraph each belongs.
struct FontQuizPosterLines
{
    struct Line
    {
        QString text;
        int paragraph = 0;
    };
    std::vector<Line> lines;
    QFont font;
    double pitch = 0;

    double height() const { return double(lines.size()) * pitch; }
};

/// In a size that lets them fit into `height` (points), `size` at most; in the smallest one they
/// may take more. Lines are no wider than is good to read. Thread: main.
FontQuizPosterLines fittingPosterLines(const QString &sentences, double size, double width,
                                       double height);

} // namespace lorva
