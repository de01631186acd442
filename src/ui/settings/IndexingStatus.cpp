// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/settings/IndexingStatus.h"

#include "ui/settings/SettingsLabel.h"
#include "ui/sheets/ProgressIndicators.h"
#include "ui/style/IconButton.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"
#include "ui/style/TextButton.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace lorva {

namespace {

/// The two lines of a completion.
constexpr int kRoom = 40;

QHBoxLayout *addRow(QWidget &row)
{
    auto *layout = new QHBoxLayout(&row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing::k8);
    return layout;
}

IconButton *addDismiss(QHBoxLayout &layout, const QString &name)
{
    auto *button = new IconButton(QStringLiteral("xmark.circle.fill"),
                                  IndexingStatus::tr("Dismiss"), layout.parentWidget());
    button->setObjectName(name);
    layout.addWidget(button, 0, Qt::AlignVCenter);
    return button;
}

} // namespace

IndexingStatus::IndexingStatus(QWidget *parent)
    : QWidget(parent)
    , m_problem(makeProblem())
    , m_indexing(makeIndexing())
    , m_completion(makeCompletion())
{
    setObjectName(QStringLiteral("Settings.Status"));
    setMinimumHeight(kRoom);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing::k4);
    layout->addWidget(m_problem);
    layout->addWidget(m_indexing);
    layout->addWidget(m_completion);
    layout->addStretch();
    m_problem->hide();
    showNothing();
    takeColors();
    connect(m_cancel, &QAbstractButton::clicked, this, &IndexingStatus::cancelWanted);
    connect(m_dismiss, &QAbstractButton::clicked, this, &IndexingStatus::dismissWanted);
    connect(m_problemDismiss, &QAbstractButton::clicked, this, [this] { setProblem({}); });
}

QWidget *IndexingStatus::makeProblem()
{
    auto *row = new QWidget(this);
    QHBoxLayout *layout = addRow(*row);
    m_problemText = new SettingsLabel({}, SettingsLabel::Kind::strong, row);
    m_problemText->setObjectName(QStringLiteral("Settings.Problem"));
    layout->addWidget(m_problemText, 1);
    m_problemDismiss = addDismiss(*layout, QStringLiteral("Settings.DismissProblem"));
    return row;
}

QWidget *IndexingStatus::makeIndexing()
{
    auto *row = new QWidget(this);
    QHBoxLayout *layout = addRow(*row);
    m_message = new SettingsLabel({}, SettingsLabel::Kind::secondary, row);
    m_message->setObjectName(QStringLiteral("Settings.IndexingMessage"));
    m_cancel = new TextButton(tr("Cancel"), TextButton::Kind::plain, row);
    m_cancel->setObjectName(QStringLiteral("Settings.Cancel"));
    layout->addWidget(new QuietSpinner(row));
    layout->addWidget(m_message, 1);
    layout->addWidget(m_cancel);
    return row;
}

QWidget *IndexingStatus::makeCompletion()
{
    auto *row = new QWidget(this);
    QHBoxLayout *layout = addRow(*row);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(spacing::k2);
    m_title = new SettingsLabel({}, SettingsLabel::Kind::strong, row);
    m_title->setObjectName(QStringLiteral("Settings.CompletionTitle"));
    m_body = new SettingsLabel({}, SettingsLabel::Kind::secondary, row);
    m_body->setObjectName(QStringLiteral("Settings.CompletionBody"));
    texts->addWidget(m_title);
    texts->addWidget(m_body);
    layout->addLayout(texts, 1);
    m_dismiss = addDismiss(*layout, QStringLiteral("Settings.Dismiss"));
    return row;
}

void IndexingStatus::showOnly(QWidget *part)
{
    m_indexing->setVisible(part == m_indexing);
    m_completion->setVisible(part == m_completion);
}

void IndexingStatus::showIndexing(const QString &message)
{
    m_message->setText(message);
    showOnly(m_indexing);
}

void IndexingStatus::showCompletion(const IndexingCompletion &completion)
{
    const bool isNew = !m_completion->isVisible() || m_title->text() != completion.title;
    m_title->setText(completion.title);
    m_body->setText(completion.body);
    showOnly(m_completion);
    if (!isNew)
        return;
    // It comes by itself, so it is read out by itself.
    //: A headline, and the sentence below it; spoken.
    m_title->setAccessibleName(tr("%1. %2").arg(completion.title, completion.body));
    QAccessibleEvent event(m_title, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void IndexingStatus::showNothing()
{
    showOnly(nullptr);
}

void IndexingStatus::setProblem(const QString &words)
{
    m_problemText->setText(words);
    m_problem->setVisible(!words.isEmpty());
    if (words.isEmpty())
        return;
    QAccessibleEvent event(m_problemText, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void IndexingStatus::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColors();
}

void IndexingStatus::takeColors()
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    for (IconButton *button : {m_dismiss, m_problemDismiss})
        button->setColors(neutral.text, neutral.ground);
}

} // namespace lorva
