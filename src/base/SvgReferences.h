// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace lorva {

/// What a drawing comes to once everything that it repeats by reference is there: a few lines can
/// repeat themselves to billions of shapes. Built in document order, then asked. Thread: one.
class SvgReferences
{
public:
    struct Weight
    {
        double elements = 0;
        double bytes = 0;
        /// Elements that a renderer composes apart: masked, clipped, translucent or blended ones.
        double layers = 0;
        /// Of outlines, in whatever unit the one who builds counts in.
        double length = 0;
        /// Of outlines with themselves; filling one takes that long.
        double crossings = 0;
    };

    /// Opens an element within the one that is open. Empty ids count for nothing.
    void begin(const QString &id, const QStringList &repeatedIds, const Weight &own);
    void end();
    size_t elementCount() const { return m_elements.size(); }
    /// Of the whole; absent when something repeats itself, or repeats what repeats too deep.
    std::optional<Weight> expanded();
    /// The same of the element that was begun as the index-th.
    std::optional<Weight> expanded(size_t index);

private:
    enum class State { unknown, open, known };
    struct Element
    {
        std::vector<size_t> children;
        QStringList repeatedIds;
        Weight own;
        Weight whole;
        /// How deep its children and what it repeats lie in each other.
        int height = 0;
        State state = State::unknown;
    };
    /// Of the elements of one name.
    struct Repeated
    {
        Weight heaviest;
        int height = 0;
    };

    bool expand(size_t index, int depth);
    bool expandRepeated(Element &element, const QString &id, int depth);

    std::vector<Element> m_elements;
    std::vector<size_t> m_open;
    QMultiHash<QString, size_t> m_byId;
    QHash<QString, Repeated> m_repeated;
};

} // namespace lorva
