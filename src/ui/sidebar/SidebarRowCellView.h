// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

#include <functional>

namespace lorva {

/// The field in which the name of a row is edited in its place.
///
/// Keeps the name as it was; an empty or unchanged text is never handed on. Thread: main.
class SidebarRowCellView final : public QLineEdit
{
    Q_OBJECT
public:
    using Completion = std::function<void(const QString &newName)>;

    SidebarRowCellView(Completion completion, QWidget *parent);

    /// Fills the field, once: what the user has typed since is kept when the row changes meanwhile.
    void begin(const QString &name);
    /// Hands the new name on, once.
    void commit();
    const QString &valueBeforeEditing() const { return m_valueBeforeEditing; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void adoptColors();

    Completion m_completion;
    QString m_valueBeforeEditing;
    bool m_hasBegun = false;
};

} // namespace lorva
