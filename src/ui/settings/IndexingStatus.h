// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/ScanProgress.h"

#include <QWidget>

namespace lorva {

class IconButton;
class SettingsLabel;
class TextButton;

/// What the settings say about a scan that was started there: how far it is, with a way to end it;
/// then what it has come to, and what was refused, each until dismissed. Keeps its room while it
/// has nothing to say, so that nothing jumps. Thread: main.
class IndexingStatus final : public QWidget
{
    Q_OBJECT
public:
    explicit IndexingStatus(QWidget *parent = nullptr);

    void showIndexing(const QString &message);
    void showCompletion(const IndexingCompletion &completion);
    /// Neither indexing nor a completion.
    void showNothing();
    /// Besides those; empty for none.
    void setProblem(const QString &words);

Q_SIGNALS:
    void cancelWanted();
    void dismissWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    QWidget *makeProblem();
    QWidget *makeIndexing();
    QWidget *makeCompletion();
    void showOnly(QWidget *part);
    void takeColors();

    SettingsLabel *m_problemText;
    IconButton *m_problemDismiss;
    QWidget *m_problem;
    SettingsLabel *m_message;
    TextButton *m_cancel;
    QWidget *m_indexing;
    SettingsLabel *m_title;
    SettingsLabel *m_body;
    IconButton *m_dismiss;
    QWidget *m_completion;
};

} // namespace lorva
