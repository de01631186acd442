// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/Font.h"

#include <QColor>
#include <QImage>
#include <QWidget>

class QLayout;
class QVBoxLayout;

namespace lorva {

/// Which character, in which face, the popover tells of.
struct CharacterPopoverContent
{
    /// Empty: a glyph that no character leads to.
    QString character;
    Font font;
    /// 0 when the face has none.
    quint32 glyphIndex = 0;
    QString glyphName;
    QColor foregroundColor = Qt::black;
    QColor backgroundColor = Qt::white;
};

/// Names one character of a face, large, with what it takes to write it elsewhere.
///
/// Thread: main. Units: points.
class CharacterPopoverViewController final : public QWidget
{
    Q_OBJECT
public:
    explicit CharacterPopoverViewController(CharacterPopoverContent content,
                                            QWidget *parent = nullptr);

    const QString &character() const { return m_content.character; }
    const Font &font() const { return m_content.font; }
    quint32 glyphIndex() const { return m_content.glyphIndex; }
    /// "U+0041"; empty without a character.
    const QString &codePoint() const { return m_codePoint; }
    /// Its name, else its alias, else empty.
    const QString &unicodeName() const { return m_unicodeName; }
    const QColor &foregroundColor() const { return m_content.foregroundColor; }
    const QColor &backgroundColor() const { return m_content.backgroundColor; }

Q_SIGNALS:
    void copyWanted(const QString &text);
    void trayWanted(const QString &character);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void addTexts(QVBoxLayout &column);
    void addFacts(QVBoxLayout &column);
    /// Null without a character.
    QLayout *makeButtons();

    const CharacterPopoverContent m_content;
    QString m_codePoint;
    QString m_unicodeName;
};

} // namespace lorva
