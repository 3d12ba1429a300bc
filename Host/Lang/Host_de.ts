<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>ButtonPage</name>
    <message>
        <source>Buttons</source>
        <translation>Schaltflächen</translation>
    </message>
    <message>
        <source>Several states</source>
        <translation>Mehrere Zustände</translation>
    </message>
    <message>
        <source>Image and text</source>
        <translation>Bild und Text</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Reiter</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Beschriftungen</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Letztes Signal</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>noch keines</translation>
    </message>
    <message>
        <source>Pressed %1</source>
        <translation>%1 gedrückt</translation>
    </message>
    <message>
        <source>Clicked %1 at (%2, %3)</source>
        <translation>%1 geklickt bei (%2, %3)</translation>
    </message>
    <message>
        <source>Entered %1</source>
        <translation>%1 betreten</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>%1 verlassen</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Mit Symbol</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Eingeschaltet</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Clicked %1, shows %2</source>
        <translation>%1 geklickt, zeigt %2</translation>
    </message>
    <message>
        <source>Clicked %1</source>
        <translation>%1 geklickt</translation>
    </message>
    <message>
        <source>Image left</source>
        <translation>Bild links</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Image right</source>
        <translation>Bild rechts</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Selected %1</source>
        <translation>%1 ausgewählt</translation>
    </message>
    <message>
        <source>for a language from right to left</source>
        <translation>für eine Sprache von rechts nach links</translation>
    </message>
    <message>
        <source>for a language from left to right</source>
        <translation>für eine Sprache von links nach rechts</translation>
    </message>
</context>
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
    <message>
        <source>Write a film of all media files to this file, whose suffix chooses how it is encoded.</source>
        <translation>Einen Film aus allen Mediendateien in diese Datei schreiben; ihre Endung bestimmt, wie er kodiert wird.</translation>
    </message>
    <message>
        <source>Preset that the film is encoded with.</source>
        <translation>Vorgabe, nach der der Film kodiert wird.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>List the presets for films.</source>
        <translation>Die Vorgaben für Filme auflisten.</translation>
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
    <name>DragPage</name>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Letztes Signal</translation>
    </message>
    <message>
        <source>drag begins at %1</source>
        <translation>Ziehen beginnt bei %1</translation>
    </message>
    <message>
        <source>drag ends at %1</source>
        <translation>Ziehen endet bei %1</translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>Es gibt keine Vorgabe „%1“.</translation>
    </message>
    <message>
        <source>The engine has no presets.</source>
        <translation>Die Engine hat keine Vorgaben.</translation>
    </message>
    <message>
        <source>encoded: %1 %</source>
        <translation>kodiert: %1 %</translation>
    </message>
    <message>
        <source>%1 is not written; the log tells why.</source>
        <translation>%1 wird nicht geschrieben; das Protokoll sagt, warum.</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Ruler</source>
        <translation>Lineal</translation>
    </message>
    <message>
        <source>Drag the play head; the wheel scrolls, with Ctrl it zooms; a double click fits all.</source>
        <translation>Ziehen Sie die Abspielmarke; das Mausrad rollt, mit Strg zoomt es; ein Doppelklick zeigt alles.</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Schieberegler</translation>
    </message>
    <message>
        <source>Drag, use the wheel, or the arrow keys.</source>
        <translation>Ziehen Sie, oder nehmen Sie das Mausrad oder die Pfeiltasten.</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Schaltflächen und Beschriftungen</translation>
    </message>
    <message>
        <source>The last line tells what they signal.</source>
        <translation>Die letzte Zeile sagt, was sie melden.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Copies media from cameras, phones and cards.</source>
        <translation>Kopiert Medien von Kameras, Telefonen und Karten.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Sprachen</translation>
    </message>
    <message>
        <source>A choice reaches every window at once.</source>
        <translation>Eine Wahl erreicht sofort jedes Fenster.</translation>
    </message>
    <message>
        <source>Shows the library&apos;s widgets.</source>
        <translation>Zeigt die Bedienelemente der Bibliothek.</translation>
    </message>
    <message>
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Mit der Seite &lt;name&gt; beginnen.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>Die Namen der Seiten auflisten.</translation>
    </message>
    <message>
        <source>Write a picture of the page to &lt;file&gt;.</source>
        <translation>Ein Bild der Seite in &lt;file&gt; schreiben.</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>%1 lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>no page %1</source>
        <translation>keine Seite %1</translation>
    </message>
    <message>
        <source>Drag values</source>
        <translation>Werte ziehen</translation>
    </message>
    <message>
        <source>Drag on a number, with Shift faster, with Ctrl slower; a click edits it.</source>
        <translation>Ziehen Sie an einer Zahl, mit Umschalt schneller, mit Strg langsamer; ein Klick bearbeitet sie.</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Player</translation>
    </message>
    <message>
        <source>Open a file and play it; K plays and pauses, comma and full stop step a frame.</source>
        <translation>Eine Datei öffnen und abspielen; K startet und hält an, Komma und Punkt gehen ein Bild weiter.</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>CommonLib widgets</source>
        <translation>CommonLib-Bedienelemente</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
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
    <message>
        <source>There is no language %1. Known are: %2</source>
        <translation>Die Sprache %1 gibt es nicht. Bekannt sind: %2</translation>
    </message>
</context>
<context>
    <name>ImportPage</name>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Folder to import into</source>
        <translation>Ordner, in den importiert wird</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>Fortschritt des Imports</translation>
    </message>
    <message>
        <source>Import into</source>
        <translation>Importieren nach</translation>
    </message>
    <message>
        <source>No device found</source>
        <translation>Kein Gerät gefunden</translation>
    </message>
    <message>
        <source>Connect a camera, a phone or a card reader, switch it on and unlock it.</source>
        <translation>Schließen Sie eine Kamera, ein Telefon oder einen Kartenleser an, schalten Sie das Gerät ein und entsperren Sie es.</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>%1 wird geöffnet…</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>Unlock the device and allow access to its files, then choose it again.</source>
        <translation>Entsperren Sie das Gerät, erlauben Sie den Zugriff auf seine Dateien und wählen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 wurde entfernt</translation>
    </message>
    <message>
        <source>Connect it again to go on.</source>
        <translation>Schließen Sie es wieder an, um fortzufahren.</translation>
    </message>
    <message>
        <source>Chosen files: %1 (%2)</source>
        <translation>Gewählte Dateien: %1 (%2)</translation>
    </message>
    <message>
        <source>Reading the content… %1 files</source>
        <translation>Inhalt wird gelesen… Dateien: %1</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>Unbenanntes Gerät</translation>
    </message>
    <message>
        <source>%1 files on the device</source>
        <translation>Dateien auf dem Gerät: %1</translation>
    </message>
    <message>
        <source>The device stopped answering; this may not be all of it.</source>
        <translation>Das Gerät antwortet nicht mehr; vielleicht ist das nicht alles.</translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation>In diesen Ordner kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Importing… %1 of %2</source>
        <translation>Import läuft… %1 von %2</translation>
    </message>
    <message>
        <source>Imported files: %1 of %2.</source>
        <translation>Importierte Dateien: %1 von %2.</translation>
    </message>
    <message>
        <source>The device was removed during the import.</source>
        <translation>Das Gerät wurde während des Imports entfernt.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>Nicht importiert: %1</translation>
    </message>
    <message>
        <source>Delete from the device afterwards</source>
        <translation>Danach vom Gerät löschen</translation>
    </message>
    <message>
        <source>This folder has room for %1 only.</source>
        <translation>In diesem Ordner ist nur Platz für %1.</translation>
    </message>
</context>
<context>
    <name>ImportTree</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Content of the device</source>
        <translation>Inhalt des Geräts</translation>
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
        <source>%Ln clip(s) selected</source>
        <translation>
            <numerusform>%Ln Clip ausgewählt</numerusform>
            <numerusform>%Ln Clips ausgewählt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>Pegelanzeige</translation>
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
        <translation>Stream %1: %2</translation>
    </message>
    <message>
        <source>sample rates: %1</source>
        <translation>Abtastraten: %1</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
</context>
<context>
    <name>PlayerPage</name>
    <message>
        <source>Nothing is open.</source>
        <translation>Nichts ist geöffnet.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Ein Bild zurück</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Ein Bild vor</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen…</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Sichere Bereiche</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Ausfüllen</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Größe des Bildes</translation>
    </message>
    <message>
        <source>Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms</source>
        <translation>Letzte Sekunde: %1 gezeigt, %2 ausgelassen, %3 verspätet, %4 aus dem Cache, Abweichung %5 ms</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>%1 kann nicht abgespielt werden.</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>Bereit: %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
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
<context>
    <name>ScaleUnitSlider</name>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
</context>
<context>
    <name>SliderPage</name>
    <message>
        <source>Seek bar</source>
        <translation>Wiedergabeleiste</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Other chunk and groove</source>
        <translation>Anderer Füllbereich und andere Rille</translation>
    </message>
    <message>
        <source>From right to left</source>
        <translation>Von rechts nach links</translation>
    </message>
    <message>
        <source>Empty range</source>
        <translation>Leerer Bereich</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Zoom bar</source>
        <translation>Zoomleiste</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Mirrored layout</source>
        <translation>Gespiegelte Anordnung</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Balken</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>Andere Farben</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Senkrecht</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Lineal</translation>
    </message>
</context>
</TS>
