// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontFamilySubset.h"
#include "ui/detail/ComparisonFaces.h"
#include "ui/detail/ComparisonPage.h"
#include "ui/detail/DetailSection.h"
#include "ui/detail/DetailSpecimen.h"
#include "ui/detail/TextInk.h"

#include <QPointer>

#include <vector>

namespace lorva {

class IconButton;
class PaneButton;
class Popover;
class SegmentedControl;

/// The style that is shown beside up to three other families on the same text, or laid over them.
///
/// A family that is compared with itself is not shown, but comes back when another one is shown.
/// Nothing is set or painted while it is hidden. Thread: main. Units: points.
class ComparisonView final : public DetailSection
{
    Q_OBJECT
public:
    static constexpr int kMostOthers = 3;

    explicit ComparisonView(std::shared_ptr<FontResolver> resolver, QWidget *parent = nullptr);
    ~ComparisonView() override;

    void apply(const DetailSpecimen &specimen);
    /// The weight and slant of the style that is shown: others are shown in their nearest.
    void setStyle(const FontStyleRecord &style);
    /// What can be chosen to compare with; what is compared and no longer there goes.
    void setFamilies(const FontFamilySubset &families);
    QStringList otherFamilies() const;
    void setOtherFamilies(const QStringList &names);
    /// What is shown, for a file: at this widget's width.
    SpecimenPage page() const;
    int heightFor(int width) const override;
    bool isSettled() const;

Q_SIGNALS:
    /// By the user.
    void otherFamiliesChanged(const QStringList &names);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setUpControls();
    void change();
    void refresh();
    void placeControls(int width) const;
    int headerHeight(int width) const;
    void applyColors();
    void placeButtons();
    Comparison comparison() const;
    /// Those of the compared that are not the family that is shown.
    std::vector<const ComparisonFaces::Face *> shownFaces() const;
    const ComparisonPage &pageFor(int width) const;
    void openPicker();
    void choose(const QString &name);
    void takeOut(size_t shownFace);
    void userChose(const QStringList &names);

    DetailSpecimen m_specimen;
    ComparisonFaces m_faces;
    ComparisonMode m_shownMode = ComparisonMode::beside;
    bool m_matchesXHeight = false;
    SegmentedControl *m_mode;
    SegmentedControl *m_match;
    PaneButton *m_add;
    std::vector<IconButton *> m_removers;
    QPointer<Popover> m_popover;
    /// The page of m_pageWidth; −1 when something changed since.
    mutable ComparisonPage m_page;
    mutable int m_pageWidth = -1;
    std::vector<TextInk> m_inks;
    int m_toldHeight = -1;
};

} // namespace lorva
