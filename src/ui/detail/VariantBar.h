// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QStringList>
#include <QWidget>

namespace lorva {

/// The bar at the foot of the detail pane: a segment for each variant of the family, and a menu for
/// those that find no room.
///
/// Thread: main. Units: points.
class VariantBar final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kHeight = 48;

    explicit VariantBar(QWidget *parent = nullptr);
    ~VariantBar() override;

    /// Whoever lays this bar out hides it with fewer than two labels.
    void apply(const QStringList &labels, const QString &selected);
    void setColors(const QColor &foreground, const QColor &background);

Q_SIGNALS:
    void variantSelected(const QString &label);
};

} // namespace lorva
