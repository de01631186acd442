// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

#include <optional>
#include <vector>

namespace lorva {

/// What a drawing comes to once everything that it repeats by reference is there: a few lines can
/// repeat themselves to billions of shapes. Built in document order, then asked once. Thread: one.
class SvgReferences
{
public:
    struct Weight
    {
        double elements = 0;
        double bytes = 0;
    };

    /// Opens an element within the one that is open.
    void begin(const QString &id, const QString &repeatedId, qsizetype bytes);
    void end();
    size_t elementCount() const { return m_elements.size(); }
    /// Absent when something repeats itself, or repeats what repeats too deep.
    std::optional<Weight> expanded();

private:
    enum class State { unknown, open, known };
    struct Element
    {
        std::vector<size_t> children;
        QString repeatedId;
        Weight own;
        Weight whole;
        State state = State::unknown;
    };

    bool expand(size_t index, int depth);
    bool expandRepeated(Element &element, int depth);

    std::vector<Element> m_elements;
    std::vector<size_t> m_open;
    QMultiHash<QString, size_t> m_byId;
};

} // namespace lorva
