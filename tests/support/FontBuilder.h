// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <map>
#include <string>
#include <vector>

namespace lorva::test {

/// Builds tiny but real font files: every table that a reader asks for, a box for every character.
///
///     FontBuilder("Foo",
///     "Bold").postScriptName("Foo-Bold").weightClass(700).codePoints(U"Aa1").build()
///
/// Glyph 0 is a hollow box; each further glyph belongs to one code point, in code-point order, and
/// is a box of 500 by capHeight() units (xHeight() for lower-case letters) on an advance of 600;
/// white space has no ink. Without codePoints() the font maps ASCII. Later settings win over
/// earlier ones.
class FontBuilder
{
public:
    explicit FontBuilder(const QString &family = "Fixture", const QString &style = "Regular");

    /// A Windows Unicode name record (OpenType `name`), English unless another language is given.
    FontBuilder &name(int nameId, const QString &text, int language = 0x409);
    /// A name record of any platform with the bytes as they stand.
    FontBuilder &rawName(int platform, int encoding, int language, int nameId,
                         const QByteArray &bytes);
    FontBuilder &withoutNames();
    FontBuilder &family(const QString &text) { return name(1, text); }
    FontBuilder &style(const QString &text) { return name(2, text); }
    FontBuilder &postScriptName(const QString &text) { return name(6, text); }
    FontBuilder &manufacturer(const QString &text) { return name(8, text); }

    FontBuilder &weightClass(int value);
    /// Marks the face italic: fsSelection bit 0, macStyle bit 1, an italic angle of −12 degrees.
    FontBuilder &italic();
    FontBuilder &fsSelection(int bits);
    FontBuilder &macStyle(int bits);
    FontBuilder &italicAngle(double degrees);
    FontBuilder &unitsPerEm(int units);
    FontBuilder &capHeight(int units);
    FontBuilder &xHeight(int units);
    /// Of OS/2; versions below 2 have no cap height.
    FontBuilder &os2Version(int version);

    FontBuilder &codePoints(const std::u32string &characters);
    FontBuilder &advance(char32_t character, int units);
    /// A GSUB single substitution that the feature switches on.
    FontBuilder &substitution(const char *feature, char32_t from, char32_t to);

    FontBuilder &axis(const char *tag, double minimum, double standard, double maximum,
                      bool isHidden = false);
    /// Coordinates in the order of the axes. An empty PostScript name leaves the record out.
    FontBuilder &instance(const QString &name, const std::vector<double> &coordinates,
                          const QString &postScriptName = {});

    /// Adds or replaces a table with the bytes as they stand.
    FontBuilder &table(const char *tag, const QByteArray &bytes);
    FontBuilder &withoutTable(const char *tag);
    FontBuilder &withoutOs2() { return withoutTable("OS/2"); }
    FontBuilder &withoutCmap() { return withoutTable("cmap"); }
    /// The first four bytes of the file; 0x00010000 if never set.
    FontBuilder &sfntVersion(quint32 version);

    QByteArray build() const;
    /// The glyph that build() gives a character; 0 when it is not mapped.
    int glyphOf(char32_t character) const;

    /// A `ttcf` collection of whole font files.
    static QByteArray collection(const QList<QByteArray> &fonts);
    /// A resource-fork suitcase that holds the fonts as `sfnt` resources.
    static QByteArray dfont(const QList<QByteArray> &fonts);

private:
    struct NameRecord
    {
        int platform;
        int encoding;
        int language;
        int nameId;
        QByteArray bytes;
    };
    struct Axis
    {
        QByteArray tag;
        double minimum;
        double standard;
        double maximum;
        bool isHidden;
        int nameId;
    };
    struct Instance
    {
        int nameId;
        int postScriptNameId;
        std::vector<double> coordinates;
    };
    struct Substitution
    {
        QByteArray feature;
        char32_t from;
        char32_t to;
    };

    int addName(const QString &text);
    std::map<QByteArray, QByteArray> standardTables() const;
    int boxHeight(char32_t character) const;
    QByteArray nameTable() const;
    QByteArray os2Table() const;
    QByteArray headTable() const;
    QByteArray hheaTable() const;
    QByteArray hmtxTable() const;
    QByteArray maxpTable() const;
    QByteArray postTable() const;
    QByteArray cmapTable() const;
    QByteArray fvarTable() const;
    QByteArray gsubTable() const;
    void addOutlines(std::map<QByteArray, QByteArray> &tables) const;

    std::vector<NameRecord> m_names;
    std::vector<Axis> m_axes;
    std::vector<Instance> m_instances;
    std::vector<Substitution> m_substitutions;
    std::map<char32_t, int> m_glyphs;
    std::map<char32_t, int> m_advances;
    /// A null array stands for a table left out.
    std::map<QByteArray, QByteArray> m_tables;
    quint32 m_sfntVersion = 0x00010000;
    int m_nextNameId = 256;
    int m_weightClass = 400;
    int m_fsSelection = 0x40;
    int m_macStyle = 0;
    double m_italicAngle = 0;
    int m_unitsPerEm = 1000;
    int m_capHeight = 700;
    int m_xHeight = 500;
    int m_os2Version = 4;
};

} // namespace lorva::test
