// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/DetailSection.h"
#include "ui/detail/FontDetailState.h"
#include "ui/preview/FontResolver.h"

#include <map>

namespace lorva {

class StyleRowView;

/// The styles of the variant that is shown, each in its own face, with a control that switches it.
///
/// Only the rows in sight exist, and the one that the tab key leads to. The arrow keys go from row
/// to row. Thread: main. Units: points.
class StyleRowsView final : public DetailSection
{
    Q_OBJECT
public:
    explicit StyleRowsView(std::shared_ptr<FontResolver> resolver, QWidget *parent = nullptr);
    ~StyleRowsView() override;

    /// `selectedStyleID`: the style that the preview shows.
    void apply(const FontDetailState &state, const std::vector<FontStyleRecord> &styles,
               const QString &selectedStyleID);
    void setColors(const QColor &foreground, const QColor &background);
    int heightFor(int width) const override;
    void setVisibleBand(int top, int bottom) override;
    /// Every row in sight shows its face.
    bool isSettled() const;

Q_SIGNALS:
    /// The preview should show it.
    void styleChosen(const FontStyleRecord &style);
    void activationWanted(const FontStyleRecord &style);
    void deactivationWanted(const FontStyleRecord &style);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// What the rows show of a state of the detail view.
    struct Shown
    {
        QString familyName;
        std::vector<FontStyleRecord> styles;
        QHash<QString, FontFamilyActivation> activations;
        QHash<QString, QStringList> labelsInSameFile;
        QString selectedStyleID;
        bool prefersWorker = false;

        bool operator==(const Shown &) const = default;
    };

    QRect rowRect(int index) const;
    bool isNeeded(int index) const;
    void bringRowsUpToDate();
    void dropRows();
    StyleRowView *ensureRow(int index);
    void connectRow(StyleRowView *row, int index);
    void configureRow(StyleRowView *row, int index) const;
    void makeTabStop(int index);
    void step(int index, int by);

    const std::shared_ptr<FontResolver> m_resolver;
    Shown m_shown;
    std::map<int, StyleRowView *> m_rows;
    /// The one that the tab key leads to.
    int m_tabStop = 0;
    int m_bandTop = 0;
    int m_bandBottom = 0;
    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
};

} // namespace lorva
