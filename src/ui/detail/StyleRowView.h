// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/Activation.h"
#include "ui/detail/StyleRowName.h"
#include "ui/style/FocusRinged.h"

#include <QAbstractButton>
#include <QStringList>

namespace lorva {

class StyleRowPill;

/// All that one style row shows.
struct StyleRowState
{
    QString familyName;
    FontStyleRecord style;
    /// Nothing: it cannot be switched.
    std::optional<FontFamilyActivation> activation;
    /// The labels of other styles in the same file.
    QStringList labelsInSameFile;
    /// The preview shows it.
    bool isSelected = false;
    /// Its face is loaded by a worker.
    bool prefersWorker = false;

    bool operator==(const StyleRowState &) const = default;
};

/// One style: its name in its own face, its weight, and what switches it. A press chooses it.
///
/// Thread: main. Units: points.
class StyleRowView final : public FocusRinged<QAbstractButton>
{
    Q_OBJECT
public:
    static constexpr int kHeight = 46;

    explicit StyleRowView(std::shared_ptr<FontResolver> resolver, QWidget *parent = nullptr);

    void configure(const StyleRowState &state);
    const StyleRowState &state() const { return m_state; }
    /// `background` is opaque: see groundUnder().
    void setColors(const QColor &foreground, const QColor &background);
    /// What switches the style; hidden where nothing does.
    StyleRowPill *pill() const { return m_pill; }
    bool isWaiting() const { return m_name->isWaiting(); }
    /// Nobody will see it any more.
    void stopWaiting() { m_name->stopWaiting(); }
    /// Whether the tab key leads to it.
    void setTabStop(bool isTabStop);
    QSize sizeHint() const override { return {0, kHeight}; }

Q_SIGNALS:
    void activationWanted();
    void deactivationWanted();
    /// The keyboard should go to the row so many further on.
    void stepWanted(int step);

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QString shownName() const;
    StyleNameLook look(double devicePixelRatio) const;
    QRect visual(const QRect &logical) const;
    double nameRoom() const;
    void showPill();
    void describe();
    void placePill();
    double paintName(QPainter &painter);
    void paintTogether(QPainter &painter, double nameWidth) const;
    void paintWeight(QPainter &painter) const;
    void paintMark(QPainter &painter, double nameWidth) const;

    StyleRowName *const m_name;
    StyleRowPill *const m_pill;
    StyleRowState m_state;
    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
};

} // namespace lorva
