// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// What the toolkit makes of the interface's fonts, in a process of its own, because it reads them
// only once: "interface_font_probe small|all[=LANGUAGE] TEXT…" prints one "name: value" per line.
#include "platform/linux/SmallFontconfig.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGlyphRun>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>
#include <QTextStream>

namespace {

QString residentMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return {};
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return QString::fromLatin1(line.mid(6).trimmed());
    }
    return {};
}

QList<QGlyphRun> glyphRuns(const QString &text, const QFont &font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    return layout.glyphRuns();
}

int missingGlyphs(const QString &text)
{
    int missing = 0;
    for (const QGlyphRun &run : glyphRuns(text, QGuiApplication::font()))
        missing += int(run.glyphIndexes().count(0));
    return missing;
}

/// Of what shows the text beside a font for Latin.
QString familiesOf(const QString &text)
{
    QStringList families;
    for (const QGlyphRun &run : glyphRuns(text, QFont(QStringLiteral("DejaVu Sans"))))
        families << run.rawFont().familyName();
    return families.join(u';');
}

void paintLabel()
{
    QImage image(200, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(0);
    QPainter painter(&image);
    painter.drawText(image.rect(), QStringLiteral("All Fonts"));
}

} // namespace

int main(int argc, char **argv)
{
    QElapsedTimer clock;
    clock.start();
    const QByteArray mode(argc > 1 ? argv[1] : "");
    if (const qsizetype at = mode.indexOf('='); at >= 0)
        lorva::useFontsForLanguage(QString::fromLatin1(mode.mid(at + 1)));
    if (mode.startsWith("small"))
        lorva::useSmallFontconfigForInterface();
    const qint64 prepared = clock.nsecsElapsed();
    QGuiApplication application(argc, argv);
    paintLabel();

    QTextStream out(stdout);
    out << "prepared us: " << prepared / 1000 << '\n';
    out << "label us: " << clock.nsecsElapsed() / 1000 << '\n';
    out << "memory: " << residentMemory() << '\n';
    const QFontInfo info(QGuiApplication::font());
    out << "font: " << info.family() << '\n';
    out << "weights:";
    for (const int weight : QList<int>{400, 500, 600, 700}) {
        QFont font;
        font.setWeight(QFont::Weight(weight));
        out << ' ' << QRawFont::fromFont(font).weight();
    }
    out << '\n';
    out << "families: " << QFontDatabase::families().join(u';') << '\n';
    for (int i = 2; i < argc; ++i) {
        const QString text = QString::fromUtf8(argv[i]);
        out << "missing " << argv[i] << ": " << missingGlyphs(text) << '\n';
        out << "shown " << argv[i] << ": " << familiesOf(text) << '\n';
    }
    return 0;
}
