<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>AboutBox</name>
    <message>
        <source>Product: %1</source>
        <translation>Produkt: %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>A small editor that shows what the library does.</source>
        <translation>Ein kleiner Editor, der zeigt, was die Bibliothek kann.</translation>
    </message>
</context>
<context>
    <name>BinCommands</name>
    <message>
        <source>Files…</source>
        <translation>Dateien…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>Ordner…</translation>
    </message>
    <message>
        <source>From a device…</source>
        <translation>Von einem Gerät…</translation>
    </message>
    <message>
        <source>Place at the play head</source>
        <translation>An der Abspielmarke platzieren</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>In-Punkt setzen</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Out-Punkt setzen</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>In- und Out-Punkt löschen</translation>
    </message>
    <message>
        <source>Make a proxy</source>
        <translation>Proxy erstellen</translation>
    </message>
    <message>
        <source>Cancel the proxy</source>
        <translation>Proxy-Erstellung abbrechen</translation>
    </message>
    <message>
        <source>Use the proxy</source>
        <translation>Proxy verwenden</translation>
    </message>
    <message>
        <source>Locate…</source>
        <translation>Datei suchen…</translation>
    </message>
    <message>
        <source>Search a folder for offline media…</source>
        <translation>Ordner nach Offline-Medien durchsuchen…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove all unused</source>
        <translation>Alle unbenutzten entfernen</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Medien hinzufügen</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Import from a device</source>
        <translation>Von einem Gerät importieren</translation>
    </message>
    <message>
        <source>None of the files was found.</source>
        <translation>Keine der Dateien wurde gefunden.</translation>
    </message>
    <message>
        <source>The files that were found cannot be read.</source>
        <translation>Die gefundenen Dateien lassen sich nicht lesen.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) found.</source>
        <translation>
            <numerusform>%n Datei gefunden.</numerusform>
            <numerusform>%n Dateien gefunden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>Wo ist %1?</translation>
    </message>
    <message>
        <source>%1 (%1);;All files (*)</source>
        <translation>%1 (%1);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Folder with the media</source>
        <translation>Ordner mit den Medien</translation>
    </message>
</context>
<context>
    <name>BinDelegate</name>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
</context>
<context>
    <name>BinModel</name>
    <message>
        <source>in %1, out %2</source>
        <translation>In %1, Out %2</translation>
    </message>
    <message>
        <source>proxy: %1 %</source>
        <translation>Proxy: %1 %</translation>
    </message>
    <message>
        <source>proxy: in use</source>
        <translation>Proxy: in Verwendung</translation>
    </message>
    <message>
        <source>proxy: not in use</source>
        <translation>Proxy: nicht in Verwendung</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Nicht lesbar</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) on the timeline</source>
        <translation>
            <numerusform>%n Clip auf der Timeline</numerusform>
            <numerusform>%n Clips auf der Timeline</numerusform>
        </translation>
    </message>
    <message>
        <source>not on the timeline</source>
        <translation>nicht auf der Timeline</translation>
    </message>
</context>
<context>
    <name>BinPanel</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search the media</source>
        <translation>Medien durchsuchen</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Hinzufügen…</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Drop media here, or add files and folders.</source>
        <translation>Ziehen Sie Medien hierher oder fügen Sie Dateien und Ordner hinzu.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>%n Datei ausgewählt</numerusform>
            <numerusform>%n Dateien ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n file(s)…</source>
        <translation>
            <numerusform>%n Datei wird gelesen…</numerusform>
            <numerusform>%n Dateien werden gelesen…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read as media.</source>
        <translation>%1 lässt sich nicht als Mediendatei lesen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more cannot be read as media.</source>
        <translation>
            <numerusform>%1 und %n weitere Datei lassen sich nicht als Mediendateien lesen.</numerusform>
            <numerusform>%1 und %n weitere Dateien lassen sich nicht als Mediendateien lesen.</numerusform>
        </translation>
    </message>
    <message>
        <source>No proxy of %1: %2</source>
        <translation>Kein Proxy von %1: %2</translation>
    </message>
</context>
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
    <name>ClipActions</name>
    <message>
        <source>Add transition</source>
        <translation>Übergang hinzufügen</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Titel hinzufügen</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>Geschwindigkeit ändern</translation>
    </message>
    <message>
        <source>Add effect</source>
        <translation>Effekt hinzufügen</translation>
    </message>
    <message>
        <source>Remove effect</source>
        <translation>Effekt entfernen</translation>
    </message>
    <message>
        <source>Move effect</source>
        <translation>Effekt verschieben</translation>
    </message>
    <message>
        <source>Switch effect</source>
        <translation>Effekt ein- oder ausschalten</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Übergang ändern</translation>
    </message>
</context>
<context>
    <name>ClipFields</name>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassung</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Ganzes Bild</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>Ganze Fläche</translation>
    </message>
    <message>
        <source>Stretched</source>
        <translation>Gestreckt</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>Pixelgenau</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> Bld.</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Rauschunterdrückung</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Centre X</source>
        <translation>Mitte X</translation>
    </message>
    <message>
        <source>Centre Y</source>
        <translation>Mitte Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplizieren</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Negativ multiplizieren</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Ineinanderkopieren</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Abdunkeln</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Aufhellen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Addieren</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Colour dodge</source>
        <translation>Farbig abwedeln</translation>
    </message>
    <message>
        <source>Colour burn</source>
        <translation>Farbig nachbelichten</translation>
    </message>
    <message>
        <source>Hard light</source>
        <translation>Hartes Licht</translation>
    </message>
    <message>
        <source>Soft light</source>
        <translation>Weiches Licht</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Ausschluss</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Tonhöhe</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Einblenden</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source> st</source>
        <translation> HT</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
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
    <name>Editor</name>
    <message>
        <source>A small editor.</source>
        <translation>Ein kleiner Editor.</translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;.</source>
        <translation>Ein Bild des Fensters in &lt;file&gt; schreiben.</translation>
    </message>
    <message>
        <source>A project to open, and media for the bin.</source>
        <translation>Ein zu öffnendes Projekt und Medien für die Medienablage.</translation>
    </message>
    <message>
        <source>The engine is missing.</source>
        <translation>Die Engine fehlt.</translation>
    </message>
    <message>
        <source>Make a small film of the media by itself, and put pictures, the film and a report into &lt;folder&gt;.</source>
        <translation>Aus den Medien selbsttätig einen kleinen Film machen und Bilder, den Film und einen Bericht in &lt;Ordner&gt; ablegen.</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Timeline</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Lift from in to out point</source>
        <translation>Von In- bis Out-Punkt herausheben</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>Herausheben</translation>
    </message>
    <message>
        <source>Extract from in to out point</source>
        <translation>Von In- bis Out-Punkt extrahieren</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extrahieren</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Medien</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>&amp;Timeline</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s) on the file, in the log</source>
        <translation>
            <numerusform>%n Hinweis zur Datei, im Protokoll</numerusform>
            <numerusform>%n Hinweise zur Datei, im Protokoll</numerusform>
        </translation>
    </message>
    <message>
        <source>Set an in and an out point first.</source>
        <translation>Setzen Sie zuerst einen In- und einen Out-Punkt.</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Wiederherstellung</translation>
    </message>
    <message>
        <source>The editor has ended unexpectedly. Changes of %1 until %2 can be opened.</source>
        <translation>Der Editor wurde unerwartet beendet. Änderungen an %1 bis %2 können geöffnet werden.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Films are being written. End that?</source>
        <translation>Es werden gerade Filme geschrieben. Abbrechen?</translation>
    </message>
    <message>
        <source>Render the preview, or stop it</source>
        <translation>Vorschau rendern oder anhalten</translation>
    </message>
    <message>
        <source>%1 cannot be written to.</source>
        <translation>In %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Light style</source>
        <translation>Heller Stil</translation>
    </message>
</context>
<context>
    <name>EffectsSection</name>
    <message>
        <source>Add effect</source>
        <translation>Effekt hinzufügen</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Apply earlier</source>
        <translation>Früher anwenden</translation>
    </message>
    <message>
        <source>Apply later</source>
        <translation>Später anwenden</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>ExportCheck</name>
    <message>
        <source>This cannot be combined</source>
        <translation>Das lässt sich nicht kombinieren</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>Diese Vorgabe gibt es nicht.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>The processor encodes and decodes.</source>
        <translation>Der Prozessor kodiert und dekodiert.</translation>
    </message>
    <message>
        <source>The processor encodes; the graphics hardware helps to decode.</source>
        <translation>Der Prozessor kodiert; die Grafikhardware hilft beim Dekodieren.</translation>
    </message>
    <message>
        <source>Add to the queue</source>
        <translation>In die Warteschlange</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Filme</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>As the project</source>
        <translation>Wie das Projekt</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 Bilder/s</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>From in to out</source>
        <translation>Von In bis Out</translation>
    </message>
    <message>
        <source>In point</source>
        <translation>In-Punkt</translation>
    </message>
    <message>
        <source>Out point</source>
        <translation>Out-Punkt</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Still picture…</source>
        <translation>Standbild…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Writes the frame under the play head</source>
        <translation>Schreibt das Bild an der Abspielmarke</translation>
    </message>
    <message>
        <source>The project cannot be copied.</source>
        <translation>Das Projekt lässt sich nicht kopieren.</translation>
    </message>
    <message>
        <source>Still picture</source>
        <translation>Standbild</translation>
    </message>
    <message>
        <source>/frame %1.png</source>
        <translation>/Bild %1.png</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.tif *.bmp)</source>
        <translation>Bilder (*.png *.jpg *.tif *.bmp)</translation>
    </message>
    <message>
        <source>%1 is in the queue already.</source>
        <translation>%1 ist schon in der Warteschlange.</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 gibt es schon. Ersetzen?</translation>
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
    <name>ExportQueue</name>
    <message>
        <source>%1 is not written</source>
        <translation>%1 wird nicht geschrieben</translation>
    </message>
</context>
<context>
    <name>ExportQueueView</name>
    <message>
        <source>No films yet</source>
        <translation>Noch keine Filme</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Being written</source>
        <translation>Wird geschrieben</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Geschrieben</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Take from the list</source>
        <translation>Aus der Liste nehmen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Projects</source>
        <translation>Projekte</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Speichern unter…</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Änderungen speichern</translation>
    </message>
    <message>
        <source>The project has changes that are not saved.</source>
        <translation>Das Projekt hat ungespeicherte Änderungen.</translation>
    </message>
</context>
<context>
    <name>FileEditor</name>
    <message>
        <source>No file</source>
        <translation>Keine Datei</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Datei wählen</translation>
    </message>
</context>
<context>
    <name>FontEditor</name>
    <message>
        <source>System font</source>
        <translation>Systemschrift</translation>
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
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Mit der Seite &lt;name&gt; beginnen.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>Die Namen der Seiten auflisten.</translation>
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
    <message>
        <source>Another window has a device open. Close that window, then choose this device again.</source>
        <translation>Ein anderes Fenster hat ein Gerät geöffnet. Schließen Sie jenes Fenster und wählen Sie dieses Gerät dann erneut.</translation>
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
    <name>KeyFrameBar</name>
    <message>
        <source>Previous key frame</source>
        <translation>Voriges Keyframe</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Keyframe</translation>
    </message>
    <message>
        <source>Next key frame</source>
        <translation>Nächstes Keyframe</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Weich</translation>
    </message>
    <message>
        <source>To the next key frame</source>
        <translation>Bis zum nächsten Keyframe</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
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
    <name>LevelHeader</name>
    <message>
        <source>Level %1</source>
        <translation>Spur %1</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>Solo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
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
    <name>LogView</name>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
</context>
<context>
    <name>MediaBin</name>
    <message>
        <source>Add media</source>
        <translation>Medien hinzufügen</translation>
    </message>
    <message>
        <source>Remove media</source>
        <translation>Medien entfernen</translation>
    </message>
    <message>
        <source>Relink media</source>
        <translation>Medien neu verknüpfen</translation>
    </message>
    <message>
        <source>Use the media itself</source>
        <translation>Medien selbst verwenden</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Proxy verwenden</translation>
    </message>
    <message>
        <source>Set in and out point</source>
        <translation>In- und Out-Punkt setzen</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>In- und Out-Punkt löschen</translation>
    </message>
    <message>
        <source>Place a clip</source>
        <translation>Clip platzieren</translation>
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
    <name>MovementKeys</name>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Shift right</source>
        <translation>Verschiebung nach rechts</translation>
    </message>
    <message>
        <source>Shift up</source>
        <translation>Verschiebung nach oben</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Breitenfaktor</translation>
    </message>
    <message>
        <source>Height factor</source>
        <translation>Höhenfaktor</translation>
    </message>
    <message>
        <source>Opacity factor</source>
        <translation>Deckkraftfaktor</translation>
    </message>
</context>
<context>
    <name>MovementSection</name>
    <message>
        <source>Movement</source>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Keyframe</translation>
    </message>
    <message>
        <source>Change movement</source>
        <translation>Bewegung ändern</translation>
    </message>
</context>
<context>
    <name>ParameterFields</name>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source> EV</source>
        <translation> EV</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> Bld.</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source> K</source>
        <translation> K</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
</context>
<context>
    <name>PictureHandles</name>
    <message>
        <source>Place picture</source>
        <translation>Bild platzieren</translation>
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
    <name>PlayerPanel</name>
    <message>
        <source>Play or pause</source>
        <translation>Abspielen oder anhalten</translation>
    </message>
    <message>
        <source>Play backwards</source>
        <translation>Rückwärts abspielen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Play forwards</source>
        <translation>Vorwärts abspielen</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Ein Bild zurück</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Ein Bild vor</translation>
    </message>
    <message>
        <source>Go to beginning</source>
        <translation>Zum Anfang</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>Zum Ende</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>In-Punkt setzen</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Out-Punkt setzen</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>In- und Out-Punkt löschen</translation>
    </message>
    <message>
        <source>Go to in point</source>
        <translation>Zum In-Punkt</translation>
    </message>
    <message>
        <source>Go to out point</source>
        <translation>Zum Out-Punkt</translation>
    </message>
    <message>
        <source>Set or remove marker</source>
        <translation>Marke setzen oder entfernen</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Sichere Bereiche</translation>
    </message>
    <message>
        <source>Picture on full screen</source>
        <translation>Bild als Vollbild</translation>
    </message>
    <message>
        <source>Timecode of the play head</source>
        <translation>Timecode der Abspielmarke</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Abspielmarke</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>The project cannot be made</source>
        <translation>Das Projekt lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>%1 cannot be saved</source>
        <translation>%1 lässt sich nicht speichern</translation>
    </message>
</context>
<context>
    <name>ProjectFields</name>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> Bilder/s</translation>
    </message>
    <message>
        <source>Preview scale</source>
        <translation>Vorschau-Skalierung</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Bits of a colour</source>
        <translation>Bits je Farbe</translation>
    </message>
    <message>
        <source>Smooth scaling</source>
        <translation>Weiche Skalierung</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>Solo</translation>
    </message>
</context>
<context>
    <name>PropertiesPanel</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Titel hinzufügen</translation>
    </message>
    <message>
        <source>Mixer, level %1</source>
        <translation>Mixer, Spur %1</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Übergang</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>Platzierung</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Mischung</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Übergänge</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
</context>
<context>
    <name>PropertyForm</name>
    <message>
        <source>Back to the preset</source>
        <translation>Auf Standardwert zurücksetzen</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>%1 ändern</translation>
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
    <name>ShortcutList</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
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
    <name>SpeedSection</name>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Back to the preset</source>
        <translation>Auf Standardwert zurücksetzen</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>The frame cannot be drawn</source>
        <translation>Das Bild lässt sich nicht zeichnen</translation>
    </message>
    <message>
        <source>%1 is not written: %2</source>
        <translation>%1 wird nicht geschrieben: %2</translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Verbundclip</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Einrasten</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rollen</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Trimmen</translation>
    </message>
    <message>
        <source>Slip</source>
        <translation>Slip</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Slide</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Dazwischen einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Löschen und Lücke schließen</translation>
    </message>
    <message>
        <source>Split at play head</source>
        <translation>An der Abspielmarke teilen</translation>
    </message>
    <message>
        <source>Trim begin to play head</source>
        <translation>Anfang bis zur Abspielmarke trimmen</translation>
    </message>
    <message>
        <source>Trim end to play head</source>
        <translation>Ende bis zur Abspielmarke trimmen</translation>
    </message>
    <message>
        <source>Close gap at play head</source>
        <translation>Lücke an der Abspielmarke schließen</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppieren</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Gruppierung aufheben</translation>
    </message>
    <message>
        <source>Lock or unlock level</source>
        <translation>Spur sperren oder entsperren</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Select at play head</source>
        <translation>An der Abspielmarke auswählen</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Frame earlier</source>
        <translation>Ein Bild früher</translation>
    </message>
    <message>
        <source>Frame later</source>
        <translation>Ein Bild später</translation>
    </message>
    <message>
        <source>Second earlier</source>
        <translation>Eine Sekunde früher</translation>
    </message>
    <message>
        <source>Second later</source>
        <translation>Eine Sekunde später</translation>
    </message>
    <message>
        <source>Level up</source>
        <translation>Eine Spur höher</translation>
    </message>
    <message>
        <source>Level down</source>
        <translation>Eine Spur tiefer</translation>
    </message>
    <message>
        <source>Previous cut</source>
        <translation>Voriger Schnitt</translation>
    </message>
    <message>
        <source>Next cut</source>
        <translation>Nächster Schnitt</translation>
    </message>
    <message>
        <source>Selection tool</source>
        <translation>Auswahlwerkzeug</translation>
    </message>
    <message>
        <source>Ripple tool</source>
        <translation>Ripple-Werkzeug</translation>
    </message>
    <message>
        <source>Roll tool</source>
        <translation>Rollwerkzeug</translation>
    </message>
    <message>
        <source>Slip tool</source>
        <translation>Slip-Werkzeug</translation>
    </message>
    <message>
        <source>Slide tool</source>
        <translation>Slide-Werkzeug</translation>
    </message>
    <message>
        <source>Razor tool</source>
        <translation>Rasierklinge</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>An Fenster anpassen</translation>
    </message>
    <message>
        <source>Taller levels</source>
        <translation>Spuren höher machen</translation>
    </message>
    <message>
        <source>Lower levels</source>
        <translation>Spuren niedriger machen</translation>
    </message>
    <message>
        <source>Ripple trim</source>
        <translation>Ripple-Trimmen</translation>
    </message>
    <message>
        <source>Hide or show level</source>
        <translation>Spur aus- oder einblenden</translation>
    </message>
    <message>
        <source>Mute or unmute level</source>
        <translation>Spur stumm oder hörbar</translation>
    </message>
    <message>
        <source>Level solo or not</source>
        <translation>Spur solo oder nicht</translation>
    </message>
</context>
<context>
    <name>TimelineCommands</name>
    <message>
        <source>Split</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppieren</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Gruppierung aufheben</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Löschen und Lücke schließen</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Dazwischen einfügen</translation>
    </message>
    <message>
        <source>Close gap</source>
        <translation>Lücke schließen</translation>
    </message>
    <message>
        <source>Lock level</source>
        <translation>Spur sperren</translation>
    </message>
    <message>
        <source>Unlock level</source>
        <translation>Spur entsperren</translation>
    </message>
    <message>
        <source>Rename level</source>
        <translation>Spur umbenennen</translation>
    </message>
</context>
<context>
    <name>TimelinePanel</name>
    <message>
        <source>Timeline</source>
        <translation>Timeline</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Abspielmarke</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clips</translation>
    </message>
    <message>
        <source>%1, level %2, frames %3 to %4</source>
        <translation>%1, Spur %2, Bilder %3 bis %4</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Lineal</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>Split</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Insert media</source>
        <translation>Medien dazwischen einfügen</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Medien hinzufügen</translation>
    </message>
</context>
<context>
    <name>TransitionForm</name>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
</context>
<context>
    <name>TransitionSection</name>
    <message>
        <source>At the beginning</source>
        <translation>Am Anfang</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>Am Ende</translation>
    </message>
</context>
<context>
    <name>Transport</name>
    <message>
        <source>Remove marker</source>
        <translation>Marke entfernen</translation>
    </message>
    <message>
        <source>Set marker</source>
        <translation>Marke setzen</translation>
    </message>
</context>
</TS>
