// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/display/DisplayControls.h"
#include "ui/style/Palette.h"

#include <QAbstractButton>
#include <QImage>
#include <QLabel>
#include <QPointer>
#include <QScrollArea>

#include <functional>
#include <vector>

class QVBoxLayout;

namespace lorva {

class OverlayScrollBar;

/// What the panels hold between their paddings, in points.
inline constexpr int kPanelContentWidth = 240;
inline constexpr int kPanelPadding = 16;

/// A panel of neutral colours that follow the desktop while it is open. Thread: main.
class NeutralPanel : public DisplayPanel
{
    Q_OBJECT
public:
    explicit NeutralPanel(QWidget *parent);

protected:
    static NeutralColors colors() { return neutralColors(isDarkDesktop()); }
    /// Hands the colours to what does not take them itself; the last call of a constructor.
    virtual void takeColors() = 0;
    void changeEvent(QEvent *event) override;
};

/// A line or a paragraph of a panel, in the neutral colours of the desktop. Thread: main.
class PanelLabel final : public QLabel
{
    Q_OBJECT
public:
    enum class Kind {
        /// Over a group; semibold.
        caption,
        body,
        /// A value; tabular.
        figure,
        /// Why something was not done; hidden while there is nothing to say.
        problem,
    };

    PanelLabel(const QString &text, Kind kind, QWidget *parent);
    /// Shows the words as a sentence, or hides.
    void setProblem(const QString &words);

protected:
    void changeEvent(QEvent *event) override;

private:
    void takeColors();
    const Kind m_kind;
};

/// Scrolls a column of the panel without a frame, its knob over the content. Thread: main.
class PanelScrollArea final : public QScrollArea
{
    Q_OBJECT
public:
    explicit PanelScrollArea(QWidget *content, QWidget *parent);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    OverlayScrollBar *m_bar;
};

/// Makes one stop of the tab key of many buttons: the arrow keys move within. Thread: main.
class ArrowFocus final : public QObject
{
    Q_OBJECT
public:
    /// `columns`: how many stand side by side.
    ArrowFocus(int columns, QObject *parent);
    /// `home`: the one that the tab key reaches first.
    void setButtons(const std::vector<QAbstractButton *> &buttons, QAbstractButton *home);
    void setHome(QAbstractButton *home);
    /// The keyboard went there.
    std::function<void(QWidget *)> onMoved;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    qsizetype neighbour(qsizetype index, int key) const;
    std::vector<QPointer<QAbstractButton>> m_buttons;
    const int m_columns;
};

/// Lets none of exclusive buttons be the chosen one, or this one.
void setChosen(QAbstractButton &button, bool isChosen);

} // namespace lorva
