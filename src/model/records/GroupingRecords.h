// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace lorva {

// Three records of one shape. They are types of their own so that a foundry never lands in a list
// of collections.

/// A collection that the user made.
struct FontCollectionRecord
{
    QString id;
    /// As shown in the sidebar.
    QString name;
    /// In the stored order.
    QStringList familyNames;

    bool operator==(const FontCollectionRecord &) const = default;
};

/// A style category: Serif, Sans-Serif, …
struct FontStyleCategoryRecord
{
    QString id;
    QString name;
    QStringList familyNames;

    bool operator==(const FontStyleCategoryRecord &) const = default;
};

/// The families of one foundry.
struct FoundryCollectionRecord
{
    QString id;
    QString name;
    QStringList familyNames;

    bool operator==(const FoundryCollectionRecord &) const = default;
};

} // namespace lorva
