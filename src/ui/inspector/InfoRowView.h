// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/inspector/InspectorStates.h"
#include "ui/sheets/SheetText.h"

#include <QWidget>

#include <functional>

namespace lorva {

class CopyButton;
class InfoValueText;
class QuietButton;

/// A fact of the info tab: its label, its value, and what can be done with it. A value without a
/// label takes the whole width. Thread: main.
class InfoRowView final : public QWidget
{
    Q_OBJECT
public:
    /// `place`: where it stands, for its object name.
    InfoRowView(const InfoRow &row, const QString &place, QWidget *parent);

    int heightForWidth(int width) const override;
    std::function<void(const QUrl &)> onLink;
    std::function<void()> onFile;
    /// The row needs another height now.
    std::function<void()> onResized;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void alignValue();
    void addMore();
    void addAction(const QString &place);
    WrappedText labelText() const;
    bool isLabelLong() const;
    int actionLeft(const QWidget &action) const;
    int valueLeft() const;
    int valueWidth(int width) const;
    void placeParts();
    void place(QWidget *part, const QRect &where) const;

    const InfoRow m_row;
    InfoValueText *m_text = nullptr;
    CopyButton *m_copy = nullptr;
    QuietButton *m_more = nullptr;
    QuietButton *m_action = nullptr;
};

} // namespace lorva
