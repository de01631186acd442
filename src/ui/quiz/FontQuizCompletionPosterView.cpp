// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizCompletionPosterView.h"

namespace lorva {

QString posterText(const QString &, const QDate &)
{
    return {};
}

FontQuizCompletionPosterView::FontQuizCompletionPosterView(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("FontQuizCompletionPosterView"));
}

FontQuizCompletionPosterView::~FontQuizCompletionPosterView() = default;

void FontQuizCompletionPosterView::setContent(const Counts &counts, const QDate &completionDate,
                                              const QString &fullName)
{
    m_counts = counts;
    m_completionDate = completionDate;
    m_fullName = fullName;
}

void FontQuizCompletionPosterView::focusPage() { }

} // namespace lorva
