// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/LorvaAppModel.h"
#include "ui/preview/FontResolver.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace lorva {

/// The font quiz: deals the families that have no style category yet, one card at a time; the
/// player sorts each into one of six. It covers the window while it is open; a new one is made each
/// time, and its deck with it.
///
/// Every choice is written at once. Does not own the model, which must outlive it. Thread: main.
class FontQuizViewController final : public QWidget
{
    Q_OBJECT
public:
    enum class Phase { intro, playing, done };

    /// Deals the deck and shows the introduction.
    FontQuizViewController(LorvaAppModel &model, std::shared_ptr<FontResolver> resolver,
                           QWidget *parent = nullptr);
    ~FontQuizViewController() override;

    /// The player wants to leave; the quiz may be deleted when it returns to the event loop.
    std::function<void()> onClose;

    Phase phase() const { return m_phase; }
    /// As if Start were pressed; only in the introduction, and with a deck that is not empty.
    void start();
    /// Puts the current card onto a tile's pile, 1 … 6. Ignored while one flies, or out of play.
    void choose(int tile);
    /// Shows the end of the game as it is now: for a picture of the poster.
    void showPoster();
    /// What is shown has been drawn: faces have arrived, nothing flies.
    bool isSettled() const;

private:
    LorvaAppModel &m_model;
    const std::shared_ptr<FontResolver> m_resolver;
    Phase m_phase = Phase::intro;
};

} // namespace lorva
