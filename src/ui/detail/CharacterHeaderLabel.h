// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

namespace lorva {

/// The name of a section over a hairline. Thread: main.
class CharacterHeaderLabel final : public QWidget
{
    Q_OBJECT
public:
    explicit CharacterHeaderLabel(QWidget *parent);

    /// Shown in upper case.
    void setText(const QString &text);
    /// As it is shown.
    const QString &text() const { return m_text; }
    void setColors(const QColor &foreground, const QColor &lineColor);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_text;
    QColor m_foreground = Qt::black;
    QColor m_lineColor = Qt::lightGray;
};

} // namespace lorva
