// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QStringList>

namespace lorva {

/// Finds the row whose label begins with what is typed. Thread: main.
class SidebarTypeAhead
{
public:
    /// Letters that follow each other this closely (the desktop's setting) belong to one search.
    bool isRunning() const;
    /// Adds what was typed and gives the place of the next fitting label, going round from
    /// `current` (−1: from the top); −1 when none fits. The same key again goes on to the next.
    qsizetype find(const QString &typed, const QStringList &labels, qsizetype current);

private:
    QString m_typed;
    QElapsedTimer m_sinceLast;
};

} // namespace lorva
