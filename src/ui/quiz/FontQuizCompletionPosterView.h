// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>
#include <QWidget>

namespace lorva {

/// What the player has sorted: how many families went where.
struct FontQuizCounts
{
    int total = 0;
    int serif = 0;
    int sans = 0;
    int display = 0;
    int mono = 0;
    int script = 0;
    int decorative = 0;

    bool operator==(const FontQuizCounts &) const = default;
};

/// The sentences of the poster. Month and ordinal are English, as the sentence is. Thread: any.
QString posterText(const QString &fullName, const QDate &date);

/// The end of the font quiz: what was sorted, as a poster, which can be kept as a picture.
/// Thread: main.
class FontQuizCompletionPosterView final : public QWidget
{
    Q_OBJECT
public:
    using Counts = FontQuizCounts;

    explicit FontQuizCompletionPosterView(QWidget *parent = nullptr);
    ~FontQuizCompletionPosterView() override;

    void setContent(const Counts &counts, const QDate &completionDate, const QString &fullName);
    const Counts &counts() const { return m_counts; }
    QDate completionDate() const { return m_completionDate; }
    /// Gives the keyboard to its first button.
    void focusPage();

Q_SIGNALS:
    /// The user has seen it.
    void doneWanted();

private:
    Counts m_counts;
    QDate m_completionDate;
    QString m_fullName;
};

} // namespace lorva
