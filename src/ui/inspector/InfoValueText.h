// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTextEdit>

namespace lorva {

/// A value of the info tab: wrapped wherever it must be, selectable by pointer and keyboard. Copies
/// the selection, or all of it where nothing is selected. Long values are shown by their beginning
/// until expanded, but copied whole. Thread: main.
class InfoValueText final : public QTextEdit
{
    Q_OBJECT
public:
    InfoValueText(QString value, QWidget *parent);

    /// Only a beginning is shown.
    bool isCut() const { return m_isCut; }
    void expand();
    int heightForWidth(int width) const override;
    void copyAll() const;
    /// The keyboard brought the focus here.
    bool hasFocusRing() const { return hasFocus() && m_showsFocus; }

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;
    /// There is nothing to scroll here; what lies around it scrolls.
    void wheelEvent(QWheelEvent *event) override;

private:
    void copySelection();
    void takeColors();

    const QString m_value;
    bool m_isCut = false;
    bool m_takesColors = false;
    bool m_showsFocus = false;
};

} // namespace lorva
