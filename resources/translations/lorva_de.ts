<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>lorvactl</name>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>unbekannte Option %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 nimmt keinen Wert</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 braucht einen Wert</translation>
    </message>
    <message>
        <source>%1 takes a whole number from %2 to %3</source>
        <translation>%1 nimmt eine ganze Zahl von %2 bis %3</translation>
    </message>
    <message>
        <source>%1; see %2</source>
        <translation>%1; siehe %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 Byte</numerusform>
            <numerusform>%1 Bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>not there yet; the first change makes it</source>
        <translation>noch nicht da; die erste Änderung legt sie an</translation>
    </message>
    <message>
        <source>changes can be written</source>
        <translation>Änderungen können geschrieben werden</translation>
    </message>
    <message>
        <source>not there yet</source>
        <translation>noch nicht da</translation>
    </message>
    <message>
        <source>one JSON object instead</source>
        <translation>stattdessen ein JSON-Objekt</translation>
    </message>
    <message>
        <source>collection %1 deleted</source>
        <translation>Sammlung %1 gelöscht</translation>
    </message>
    <message numerus="yes">
        <source>collection %1 created with %n families</source>
        <translation>
            <numerusform>Sammlung %1 mit %n Familie angelegt</numerusform>
            <numerusform>Sammlung %1 mit %n Familien angelegt</numerusform>
        </translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familie</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Vollständiger Name</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>there is no family %1</source>
        <translation>es gibt keine Familie %1</translation>
    </message>
    <message>
        <source>unknown verb %1</source>
        <translation>unbekanntes Verb %1</translation>
    </message>
    <message>
        <source>there is no collection %1</source>
        <translation>es gibt keine Sammlung %1</translation>
    </message>
    <message>
        <source>there is a collection %1 already</source>
        <translation>es gibt schon eine Sammlung %1</translation>
    </message>
    <message>
        <source>%1 is not in collection %2</source>
        <translation>%1 ist nicht in der Sammlung %2</translation>
    </message>
    <message>
        <source>there is no style %1</source>
        <translation>es gibt keinen Stil %1</translation>
    </message>
    <message>
        <source>there is no foundry %1</source>
        <translation>es gibt keine Gießerei %1</translation>
    </message>
    <message>
        <source>Usage:</source>
        <extracomment>before the ways in which a command is called, in its help</extracomment>
        <translation>Aufruf:</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>diese Hilfe zeigen</translation>
    </message>
    <message>
        <source>nothing to change</source>
        <translation>nichts zu ändern</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>es fehlt ein Befehl</translation>
    </message>
    <message>
        <source>unknown command %1</source>
        <translation>unbekannter Befehl %1</translation>
    </message>
    <message>
        <source>Read the cache</source>
        <translation>Zwischenspeicher lesen</translation>
    </message>
    <message>
        <source>Find files</source>
        <translation>Dateien suchen</translation>
    </message>
    <message>
        <source>Read faces</source>
        <translation>Schnitte lesen</translation>
    </message>
    <message>
        <source>Identify families</source>
        <translation>Familien bestimmen</translation>
    </message>
    <message>
        <source>Group families</source>
        <translation>Familien gruppieren</translation>
    </message>
    <message>
        <source>Fonts: %1 found, %2 read, %3 unchanged</source>
        <translation>Schriften: %1 gefunden, %2 gelesen, %3 unverändert</translation>
    </message>
    <message numerus="yes">
        <source>%1 styles</source>
        <extracomment>the part &quot;%1 with %2&quot; of what a scan found</extracomment>
        <translation>
            <numerusform>%1 Schnitt</numerusform>
            <numerusform>%1 Schnitten</numerusform>
        </translation>
    </message>
    <message>
        <source>Families: %1 with %2, %3 newly identified</source>
        <translation>Familien: %1 mit %2, %3 neu bestimmt</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>Insgesamt</translation>
    </message>
    <message>
        <source>Asks the makers of Lorva over the network whether there is a newer release. Nothing is downloaded or installed. One line tells that this is the newest; of a newer one the first line tells version, day and page, and the second, if there is one, what is new. The exit status is 0 in both cases, and 1 when neither could be found out, as in a build whose updates come with the system&apos;s.</source>
        <translation>Fragt die Macher von Lorva über das Netz, ob es eine neuere Version gibt. Nichts wird heruntergeladen oder installiert. Eine Zeile sagt, dass diese die neueste ist; von einer neueren nennt die erste Zeile Version, Tag und Seite, und die zweite, wenn es eine gibt, was neu ist. Der Rückgabewert ist in beiden Fällen 0, und 1, wenn weder das eine noch das andere herauszufinden war, wie bei einem Programm, dessen Neuerungen mit denen des Systems kommen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <extracomment>a name within a message, in the quotation marks of the language</extracomment>
        <translation>„%1“</translation>
    </message>
    <message numerus="yes">
        <source>%n families</source>
        <translation>
            <numerusform>%n Familie</numerusform>
            <numerusform>%n Familien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n font files</source>
        <translation>
            <numerusform>%n Schriftdatei</numerusform>
            <numerusform>%n Schriftdateien</numerusform>
        </translation>
    </message>
</context>
</TS>
