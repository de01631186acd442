// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

namespace lorva {

class LineField;
class OverlayScrollBar;

/// The places of the names that contain `filter`, whatever the case; all for an empty one.
/// Thread: any.
std::vector<int> matchingNames(const QStringList &names, const QString &filter);

/// A search field over a list of families, to lie in a popover. The keyboard stays in the field:
/// arrows move through the list, Return takes the family. Only rows in sight cost anything.
/// Thread: main.
class FamilyPicker final : public QWidget
{
    Q_OBJECT
public:
    explicit FamilyPicker(QStringList names, QWidget *parent = nullptr);
    ~FamilyPicker() override;

    QSize sizeHint() const override;

Q_SIGNALS:
    void chosen(const QString &name);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    class Rows;
    class Look;
    class View;

    void filter(const QString &text);
    void takeColors();
    void choose(int row);
    bool isForList(int key) const;

    Rows *m_rows;
    LineField *m_field;
    View *m_view;
    OverlayScrollBar *m_scrollBar;
};

} // namespace lorva
