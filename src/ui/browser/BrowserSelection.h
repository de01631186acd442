// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSet>
#include <QStringList>

#include <vector>

namespace lorva {

/// Which cards are selected, and how clicks, keys and a rubber band change that.
///
/// Knows the cards by name, so that a selection outlives another order and other cards. One of the
/// selected is the current one: what the rest of the window follows, and where keys go on from. The
/// anchor is where a range starts.
/// Always true: the current card is selected; without a current card none is.
/// A value, cheap to copy. Thread: any.
class BrowserSelection
{
public:
    /// The cards in display order. What is no longer among them leaves the selection.
    void setItems(const QStringList &ids);
    const QStringList &items() const { return m_items; }
    /// −1 for a card that there is not.
    int indexOf(const QString &id) const { return m_indexByID.value(id, -1); }

    /// Empty without a selection.
    const QString &currentID() const { return m_currentID; }
    /// −1 without a selection.
    int current() const { return m_currentID.isEmpty() ? -1 : indexOf(m_currentID); }
    bool isSelected(int index) const;
    int count() const { return int(m_selected.size()); }
    /// In display order.
    QStringList selectedIDs() const;

    // Indices are those of items(), or −1 for the ground beside the cards.

    /// That card and no other; the ground: none.
    void choose(int index);
    /// Takes that card in or out. The anchor moves there.
    void toggle(int index);
    enum class Others { drop, keep };
    /// All from the anchor to that card.
    void extendTo(int index, Others others = Others::drop);
    void selectAll();
    /// What a menu on that card is about: all selected ones if it is among them, else it alone.
    void chooseForMenu(int index);
    enum class Band { replace, add, toggle };
    /// What a rubber band over those cards makes of the selection that it began with.
    void applyBand(const std::vector<int> &touched, Band band);
    /// Follows what the window shows elsewhere: a selected card becomes the current one, any other
    /// the only one, and an empty or unknown name leaves none.
    void mirror(const QString &id);

    bool operator==(const BrowserSelection &) const = default;

private:
    void settleCurrent(int near);

    QStringList m_items;
    QHash<QString, int> m_indexByID;
    QSet<QString> m_selected;
    QString m_currentID;
    QString m_anchorID;
};

} // namespace lorva
