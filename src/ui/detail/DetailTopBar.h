// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/FontDetailState.h"

#include <QColor>
#include <QWidget>

#include <functional>

class QMenu;

namespace lorva {

/// The bar over the detail page: back, the family's name, what sets the preview's look, and the
/// search for characters.
///
/// As BrowserTopBar: it takes the colours of the pane, and what apply() brings is never reported
/// back. Thread: main. Units: points.
class DetailTopBar final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kHeight = 52;

    explicit DetailTopBar(QWidget *parent = nullptr);
    ~DetailTopBar() override;

    /// Does not own it; it must outlive this bar.
    void setDelegate(FontDetailDelegate *delegate);
    void apply(const FontDetailState &state);
    void setColors(const QColor &foreground, const QColor &background);
    /// Empties the search without reporting it.
    void clearSearch();
    /// Gives the keyboard to the search field, with all its text selected.
    void focusSearch();
    /// What hangs from the "more" button at the end of the bar; made anew when it is opened.
    std::function<QMenu *(QWidget *parent)> makeMenu;

Q_SIGNALS:
    void searchChanged(const QString &query);
    /// The user is done with the search field: the characters take the keyboard.
    void searchLeft();
};

} // namespace lorva
