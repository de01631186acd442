// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizGame.h"

#include "base/NotificationCentre.h"
#include "model/LorvaAppModel.h"

#include <QScopedValueRollback>

#include <utility>

namespace lorva {

namespace {

QSet<QString> familyNames(const FontFamilyList &families)
{
    QSet<QString> names;
    names.reserve(qsizetype(families->size()));
    for (const FontFamilyRecord &family : *families)
        names.insert(family.familyName);
    return names;
}

} // namespace

FontQuizGame::FontQuizGame(LorvaAppModel &model, FontQuizDeck::Random random, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_random(std::move(random))
    , m_catalogGeneration(model.catalogGeneration())
    , m_membershipGeneration(model.membershipGeneration())
{
    deal();
    NotificationCentre::shared().observe(LorvaAppModel::changeNotification(), this,
                                         [this](const void *sender) {
                                             if (sender == &m_model)
                                                 modelChanged();
                                         });
    connect(&m_model.undoStack(), &QUndoStack::indexChanged, this, &FontQuizGame::forgetSteps);
}

/// Cards that are seen already stay where they are if all of them still are what waits.
void FontQuizGame::deal()
{
    const FontFamilyList families = m_model.allFamilies();
    if (!m_deck.isDealtFrom(*families, m_model.styleIDByFamily()))
        m_deck = FontQuizDeck(*families, m_model.styleIDByFamily(), m_random);
    m_dealtFrom = int(families->size());
}

/// Somebody else has done, undone or redone something.
void FontQuizGame::forgetSteps()
{
    if (!m_isOwnChange)
        m_undoSteps = 0;
}

Result<void> FontQuizGame::choose(int tile)
{
    const int indexBefore = m_model.undoStack().index();
    {
        const QScopedValueRollback own(m_isOwnChange, true);
        const Result<void> written =
            m_model.setStyle({m_deck.currentFamily()}, fontQuizCategoryID(tile));
        if (!written)
            return written;
    }
    m_deck.choose(tile);
    m_undoSteps = m_model.undoStack().index() > indexBefore ? m_undoSteps + 1 : 0;
    // What others have written came with it.
    modelChanged();
    return {};
}

Result<void> FontQuizGame::takeBack()
{
    const auto last = m_deck.lastChoice();
    if (!last)
        return {};
    if (m_undoSteps == 0)
        return m_model.setStyle({last->familyName}, std::nullopt);
    const int steps = m_undoSteps - 1;
    m_model.undoStack().undo();
    m_undoSteps = steps;
    if (!m_model.styleIDByFamily().contains(last->familyName))
        return {};
    // The stack has moved although the change was not taken: what it would undo next is another
    // family's choice.
    m_undoSteps = 0;
    return m_model.setStyle({last->familyName}, std::nullopt);
}

void FontQuizGame::modelChanged()
{
    if (m_isOwnChange)
        return;
    const bool hasOtherCatalog = m_catalogGeneration != m_model.catalogGeneration();
    if (!hasOtherCatalog && m_membershipGeneration == m_model.membershipGeneration())
        return;
    m_catalogGeneration = m_model.catalogGeneration();
    m_membershipGeneration = m_model.membershipGeneration();
    if (!hasOtherCatalog || m_hasBegun)
        return reconcile(hasOtherCatalog);
    deal();
    if (onCatalog)
        onCatalog();
}

void FontQuizGame::reconcile(bool hasOtherCatalog)
{
    const QSet<QString> present =
        hasOtherCatalog ? familyNames(m_model.allFamilies()) : QSet<QString>();
    const FontQuizDeck::Difference difference =
        m_deck.reconcile(m_model.styleIDByFamily(), hasOtherCatalog ? &present : nullptr);
    if (hasOtherCatalog && onCatalog)
        onCatalog();
    if (!difference.isEmpty() && onChange)
        onChange(difference);
}

} // namespace lorva
