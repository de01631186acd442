// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizViewController.h"

namespace lorva {

FontQuizViewController::FontQuizViewController(LorvaAppModel &model,
                                               std::shared_ptr<FontResolver> resolver,
                                               QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_resolver(std::move(resolver))
{
    setObjectName(QStringLiteral("FontQuizViewController"));
}

FontQuizViewController::~FontQuizViewController() = default;

void FontQuizViewController::start() { }

void FontQuizViewController::choose(int) { }

void FontQuizViewController::showPoster() { }

bool FontQuizViewController::isSettled() const
{
    return true;
}

} // namespace lorva
