// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/PageExport.h"
#include "ui/quiz/FontQuizPosterPage.h"

#include <QDate>
#include <QString>
#include <QVariantAnimation>
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

/// The sentences of the poster. Month and ordinal are English, as the sentence is. A name from
/// right-to-left scripts is isolated, so that it leaves the order of the rest alone; without a name
/// nobody is named. Thread: any.
QString posterText(const QString &fullName, const QDate &date);

class PanelLabel;
class TextButton;

/// The end of the font quiz: what was sorted, as a poster, which can be kept as a picture. Its
/// numbers bloom when it first shows a content; with reduced motion they are there at once.
///
/// Opaque. Thread: main.
class FontQuizCompletionPosterView final : public QWidget
{
    Q_OBJECT
public:
    using Counts = FontQuizCounts;

    explicit FontQuizCompletionPosterView(QWidget *parent = nullptr);
    ~FontQuizCompletionPosterView() override;

    void setContent(const Counts &counts, const QDate &completionDate, const QString &fullName);
    /// The player's name is known now; nothing blooms anew.
    void setFullName(const QString &fullName);
    const Counts &counts() const { return m_counts; }
    QDate completionDate() const { return m_completionDate; }
    /// Gives the keyboard to the button that ends it, which tells assistive technology what the
    /// poster says.
    void focusPage();

    /// Nothing blooms, and no picture is being written.
    bool isSettled() const;
    /// As it is kept: a sheet of its own size.
    FontQuizPosterPage page() const;

Q_SIGNALS:
    /// The user has seen it.
    void doneWanted();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void startBloom();
    void setProgress(double progress);
    void savePicture();
    void placeParts();
    FontQuizPosterPage laidOut(const FontQuizPosterSetting &setting) const;

    Counts m_counts;
    QDate m_completionDate;
    QString m_sentence;
    TextButton *m_saveButton;
    TextButton *m_doneButton;
    PanelLabel *m_problemLabel;
    QVariantAnimation m_bloom;
    double m_progress = 0;
    bool m_hasBloomed = false;
    PageExport m_export;
};

} // namespace lorva
