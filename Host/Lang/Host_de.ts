<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>ClipStrip</name>
    <message>
        <source>Opening</source>
        <translation>Vorspann</translation>
    </message>
    <message>
        <source>Harbour at dawn</source>
        <translation>Hafen im Morgengrauen</translation>
    </message>
    <message>
        <source>Interview, part 1</source>
        <translation>Interview, Teil 1</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>Markt</translation>
    </message>
    <message>
        <source>Interview, part 2</source>
        <translation>Interview, Teil 2</translation>
    </message>
    <message>
        <source>Night drive</source>
        <translation>Nachtfahrt</translation>
    </message>
</context>
<context>
    <name>CommonLibDemo</name>
    <message>
        <source>The log %1 cannot be opened; going on without it.</source>
        <translation>Das Protokoll %1 lässt sich nicht öffnen; es geht ohne weiter.</translation>
    </message>
    <message>
        <source>The engine is missing or does not start: %1</source>
        <translation>Die Engine fehlt oder startet nicht: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Der Ordner %1 lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <source>Tells what media files are and writes a contact sheet of each.</source>
        <translation>Sagt, was Mediendateien sind, und schreibt von jeder einen Kontaktbogen.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Diese Hilfe ausgeben.</translation>
    </message>
    <message>
        <source>Folder for results.</source>
        <translation>Ordner für Ergebnisse.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>ORDNER</translation>
    </message>
    <message>
        <source>Log file, by default %1 among the results.</source>
        <translation>Protokolldatei, sonst %1 bei den Ergebnissen.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>Print the log as well.</source>
        <translation>Auch das Protokoll ausgeben.</translation>
    </message>
    <message>
        <source>Media files.</source>
        <translation>Mediendateien.</translation>
    </message>
    <message>
        <source>MEDIA…</source>
        <translation>MEDIEN…</translation>
    </message>
    <message>
        <source>No media file named.</source>
        <translation>Keine Mediendatei genannt.</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>kein Bild</translation>
    </message>
</context>
<context>
    <name>HostLanguage</name>
    <message>
        <source>Language of the texts from now on, such as German.</source>
        <translation>Sprache der Texte von nun an, etwa German.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Import media…</source>
        <translation>Medien importieren…</translation>
    </message>
    <message>
        <source>Split at the play head</source>
        <translation>An der Abspielmarke teilen</translation>
    </message>
    <message>
        <source>Add a transition</source>
        <translation>Übergang hinzufügen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Sprache:</translation>
    </message>
    <message>
        <source>Font of the language:</source>
        <translation>Schrift der Sprache:</translation>
    </message>
    <message>
        <source>Drawn in:</source>
        <translation>Gezeichnet mit:</translation>
    </message>
    <message>
        <source>Reading direction:</source>
        <translation>Leserichtung:</translation>
    </message>
    <message>
        <source>Clips:</source>
        <translation>Clips:</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Beispiel</translation>
    </message>
    <message>
        <source>right to left</source>
        <translation>von rechts nach links</translation>
    </message>
    <message>
        <source>left to right</source>
        <translation>von links nach rechts</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) selected</source>
        <translation>
            <numerusform>%n Clip ausgewählt</numerusform>
            <numerusform>%n Clips ausgewählt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaJob</name>
    <message>
        <source>does not exist</source>
        <translation>gibt es nicht</translation>
    </message>
    <message>
        <source>is a folder, not a media file</source>
        <translation>ist ein Ordner, keine Mediendatei</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>may not be read by this user</source>
        <translation>darf von diesem Benutzer nicht gelesen werden</translation>
    </message>
    <message>
        <source>cannot be read as media</source>
        <translation>lässt sich nicht als Mediendatei lesen</translation>
    </message>
    <message>
        <source>holds neither picture nor sound</source>
        <translation>enthält weder Bild noch Ton</translation>
    </message>
    <message>
        <source>has no frames</source>
        <translation>hat keine Bilder</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>Bild %1</translation>
    </message>
    <message>
        <source>picture %1 of %2: frame %3, %4</source>
        <translation>Aufnahme %1 von %2: Bild %3, %4</translation>
    </message>
    <message>
        <source>%1, not decoded</source>
        <translation>%1, nicht dekodiert</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation>keines seiner Bilder lässt sich dekodieren</translation>
    </message>
    <message>
        <source>%1 of %2 pictures cannot be decoded; the file may be damaged</source>
        <translation>%1 von %2 Bildern lassen sich nicht dekodieren; die Datei ist vielleicht beschädigt</translation>
    </message>
    <message>
        <source>wave form: part %1 of %2</source>
        <translation>Wellenform: Teil %1 von %2</translation>
    </message>
    <message>
        <source>its sound cannot be decoded</source>
        <translation>sein Ton lässt sich nicht dekodieren</translation>
    </message>
    <message>
        <source>the result cannot be written to %1</source>
        <translation>das Ergebnis lässt sich nicht nach %1 schreiben</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>geschrieben: %1</translation>
    </message>
</context>
<context>
    <name>MediaReport</name>
    <message>
        <source>unknown codec</source>
        <translation>unbekannter Codec</translation>
    </message>
    <message>
        <source>video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>rotated by %1°</source>
        <translation>um %1° gedreht</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 Bilder/s</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s)</source>
        <translation>
            <numerusform>%n Kanal</numerusform>
            <numerusform>%n Kanäle</numerusform>
        </translation>
    </message>
    <message>
        <source>other</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>Still picture, %1</source>
        <translation>Standbild, %1</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>No picture and no sound</source>
        <translation>Kein Bild und kein Ton</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
    <message>
        <source>stream %1: %2</source>
        <translation>Strom %1: %2</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <extracomment>&quot;LTR&quot; where text runs from left to right, &quot;RTL&quot; where it runs from right to left.</extracomment>
        <translation>LTR</translation>
    </message>
</context>
</TS>
