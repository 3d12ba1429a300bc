<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_US">
<context>
    <name>AboutBox</name>
    <message>
        <source>Product: %1</source>
        <translation>Product: %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Over</translation>
    </message>
    <message>
        <source>A small editor that shows what the library does.</source>
        <translation>Een kleine editor die laat zien wat de bibliotheek kan.</translation>
    </message>
</context>
<context>
    <name>BinCommands</name>
    <message>
        <source>Files…</source>
        <translation>Bestanden…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>Map…</translation>
    </message>
    <message>
        <source>From a device…</source>
        <translation>Van een apparaat…</translation>
    </message>
    <message>
        <source>Place at the play head</source>
        <translation>Bij de afspeelkop plaatsen</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>In-punt instellen</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Uit-punt instellen</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>In- en uit-punt wissen</translation>
    </message>
    <message>
        <source>Make a proxy</source>
        <translation>Proxy maken</translation>
    </message>
    <message>
        <source>Cancel the proxy</source>
        <translation>Maken van proxy annuleren</translation>
    </message>
    <message>
        <source>Use the proxy</source>
        <translation>Proxy gebruiken</translation>
    </message>
    <message>
        <source>Locate…</source>
        <translation>Bestand zoeken…</translation>
    </message>
    <message>
        <source>Search a folder for offline media…</source>
        <translation>Map doorzoeken naar offline media…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Remove all unused</source>
        <translation>Alle ongebruikte verwijderen</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Media toevoegen</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Map toevoegen</translation>
    </message>
    <message>
        <source>Import from a device</source>
        <translation>Importeren van een apparaat</translation>
    </message>
    <message>
        <source>None of the files was found.</source>
        <translation>Geen van de bestanden is gevonden.</translation>
    </message>
    <message>
        <source>The files that were found cannot be read.</source>
        <translation>De gevonden bestanden kunnen niet worden gelezen.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) found.</source>
        <translation>
            <numerusform>%n bestand gevonden.</numerusform>
            <numerusform>%n bestanden gevonden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>Waar is %1?</translation>
    </message>
    <message>
        <source>%1 (%1);;All files (*)</source>
        <translation>%1 (%1);;Alle bestanden (*)</translation>
    </message>
    <message>
        <source>Folder with the media</source>
        <translation>Map met de media</translation>
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
        <translation>in %1, uit %2</translation>
    </message>
    <message>
        <source>proxy: %1 %</source>
        <translation>proxy: %1%</translation>
    </message>
    <message>
        <source>proxy: in use</source>
        <translation>proxy: in gebruik</translation>
    </message>
    <message>
        <source>proxy: not in use</source>
        <translation>proxy: niet in gebruik</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lezen…</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Kan niet worden gelezen</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) on the timeline</source>
        <translation>
            <numerusform>%n clip op de tijdlijn</numerusform>
            <numerusform>%n clips op de tijdlijn</numerusform>
        </translation>
    </message>
    <message>
        <source>not on the timeline</source>
        <translation>niet op de tijdlijn</translation>
    </message>
</context>
<context>
    <name>BinPanel</name>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Search the media</source>
        <translation>Media doorzoeken</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lijst</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Toevoegen…</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Drop media here, or add files and folders.</source>
        <translation>Sleep media hierheen of voeg bestanden en mappen toe.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Niets gevonden</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>%n bestand geselecteerd</numerusform>
            <numerusform>%n bestanden geselecteerd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n file(s)…</source>
        <translation>
            <numerusform>%n bestand wordt gelezen…</numerusform>
            <numerusform>%n bestanden worden gelezen…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read as media.</source>
        <translation>%1 kan niet als media worden gelezen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more cannot be read as media.</source>
        <translation>
            <numerusform>%1 en nog %n bestand kunnen niet als media worden gelezen.</numerusform>
            <numerusform>%1 en nog %n bestanden kunnen niet als media worden gelezen.</numerusform>
        </translation>
    </message>
    <message>
        <source>No proxy of %1: %2</source>
        <translation>Geen proxy van %1: %2</translation>
    </message>
</context>
<context>
    <name>ButtonPage</name>
    <message>
        <source>Buttons</source>
        <translation>Knoppen</translation>
    </message>
    <message>
        <source>Several states</source>
        <translation>Meerdere standen</translation>
    </message>
    <message>
        <source>Image and text</source>
        <translation>Afbeelding en tekst</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Tabbladen</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Labels</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Laatste signaal</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>nog geen</translation>
    </message>
    <message>
        <source>Pressed %1</source>
        <translation>%1 ingedrukt</translation>
    </message>
    <message>
        <source>Clicked %1 at (%2, %3)</source>
        <translation>%1 aangeklikt op (%2, %3)</translation>
    </message>
    <message>
        <source>Entered %1</source>
        <translation>%1 binnengegaan</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>%1 verlaten</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normaal</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Met pictogram</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favoriet</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Ingeschakeld</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Uitgeschakeld</translation>
    </message>
    <message>
        <source>Clicked %1, shows %2</source>
        <translation>%1 aangeklikt, toont %2</translation>
    </message>
    <message>
        <source>Clicked %1</source>
        <translation>%1 aangeklikt</translation>
    </message>
    <message>
        <source>Image left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>Erboven</translation>
    </message>
    <message>
        <source>Image right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Eronder</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Titels</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effecten</translation>
    </message>
    <message>
        <source>Selected %1</source>
        <translation>%1 geselecteerd</translation>
    </message>
    <message>
        <source>for a language from right to left</source>
        <translation>voor een taal van rechts naar links</translation>
    </message>
    <message>
        <source>for a language from left to right</source>
        <translation>voor een taal van links naar rechts</translation>
    </message>
</context>
<context>
    <name>ClipActions</name>
    <message>
        <source>Add transition</source>
        <translation>Overgang toevoegen</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Titel toevoegen</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>Snelheid wijzigen</translation>
    </message>
    <message>
        <source>Add effect</source>
        <translation>Effect toevoegen</translation>
    </message>
    <message>
        <source>Remove effect</source>
        <translation>Effect verwijderen</translation>
    </message>
    <message>
        <source>Move effect</source>
        <translation>Effect verplaatsen</translation>
    </message>
    <message>
        <source>Switch effect</source>
        <translation>Effect in- of uitschakelen</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Overgang wijzigen</translation>
    </message>
</context>
<context>
    <name>ClipFields</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Passend maken</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Hele beeld</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>Hele kader</translation>
    </message>
    <message>
        <source>Stretched</source>
        <translation>Uitgerekt</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>Pixel voor pixel</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Dekking</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> fr</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Ruisonderdrukking</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotatie</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Centre X</source>
        <translation>Midden X</translation>
    </message>
    <message>
        <source>Centre Y</source>
        <translation>Midden Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breedte</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hoogte</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normaal</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Vermenigvuldigen</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bleken</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Bedekken</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Donkerder</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Lichter</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Optellen</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Verschil</translation>
    </message>
    <message>
        <source>Colour dodge</source>
        <translation>Kleur tegenhouden</translation>
    </message>
    <message>
        <source>Colour burn</source>
        <translation>Kleur doordrukken</translation>
    </message>
    <message>
        <source>Hard light</source>
        <translation>Fel licht</translation>
    </message>
    <message>
        <source>Soft light</source>
        <translation>Zwak licht</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Uitsluiting</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balans</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Toonhoogte</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Dempen</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Infaden</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Uitfaden</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source> st</source>
        <translation> ht</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Kleur</translation>
    </message>
</context>
<context>
    <name>ClipStrip</name>
    <message>
        <source>Opening</source>
        <translation>Opening</translation>
    </message>
    <message>
        <source>Harbour at dawn</source>
        <translation>Haven bij dageraad</translation>
    </message>
    <message>
        <source>Interview, part 1</source>
        <translation>Interview, deel 1</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>Markt</translation>
    </message>
    <message>
        <source>Interview, part 2</source>
        <translation>Interview, deel 2</translation>
    </message>
    <message>
        <source>Night drive</source>
        <translation>Nachtrit</translation>
    </message>
</context>
<context>
    <name>CommonLibDemo</name>
    <message>
        <source>The log %1 cannot be opened; going on without it.</source>
        <translation>Het logboek %1 kan niet worden geopend; er wordt zonder verdergegaan.</translation>
    </message>
    <message>
        <source>The engine is missing or does not start: %1</source>
        <translation>De engine ontbreekt of start niet: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>De map %1 kan niet worden gemaakt.</translation>
    </message>
    <message>
        <source>Tells what media files are and writes a contact sheet of each.</source>
        <translation>Vertelt wat mediabestanden zijn en schrijft van elk een contactblad.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Deze hulp tonen.</translation>
    </message>
    <message>
        <source>Folder for results.</source>
        <translation>Map voor resultaten.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>MAP</translation>
    </message>
    <message>
        <source>Log file, by default %1 among the results.</source>
        <translation>Logbestand, standaard %1 bij de resultaten.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>BESTAND</translation>
    </message>
    <message>
        <source>Print the log as well.</source>
        <translation>Ook het logboek tonen.</translation>
    </message>
    <message>
        <source>Media files.</source>
        <translation>Mediabestanden.</translation>
    </message>
    <message>
        <source>MEDIA…</source>
        <translation>MEDIA…</translation>
    </message>
    <message>
        <source>No media file named.</source>
        <translation>Geen mediabestand genoemd.</translation>
    </message>
    <message>
        <source>Write a film of all media files to this file, whose suffix chooses how it is encoded.</source>
        <translation>Een film van alle mediabestanden naar dit bestand schrijven; de extensie bepaalt de codering.</translation>
    </message>
    <message>
        <source>Preset that the film is encoded with.</source>
        <translation>Voorinstelling waarmee de film wordt gecodeerd.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAAM</translation>
    </message>
    <message>
        <source>List the presets for films.</source>
        <translation>De voorinstellingen voor films tonen.</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>geen beeld</translation>
    </message>
</context>
<context>
    <name>DragPage</name>
    <message>
        <source>Opacity</source>
        <translation>Dekking</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotatie</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Schaal</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Uitgeschakeld</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Laatste signaal</translation>
    </message>
    <message>
        <source>drag begins at %1</source>
        <translation>slepen begint bij %1</translation>
    </message>
    <message>
        <source>drag ends at %1</source>
        <translation>slepen eindigt bij %1</translation>
    </message>
</context>
<context>
    <name>Editor</name>
    <message>
        <source>A small editor.</source>
        <translation>Een kleine editor.</translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;.</source>
        <translation>Schrijf een afbeelding van het venster naar &lt;file&gt;.</translation>
    </message>
    <message>
        <source>A project to open, and media for the bin.</source>
        <translation>Een te openen project en media voor de bin.</translation>
    </message>
    <message>
        <source>The engine is missing.</source>
        <translation>De engine ontbreekt.</translation>
    </message>
    <message>
        <source>Make a small film of the media by itself, and put pictures, the film and a report into &lt;folder&gt;.</source>
        <translation>Zelfstandig een kleine film van de media maken en beelden, de film en een verslag in &lt;map&gt; zetten.</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>Media</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschappen</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Tijdlijn</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Logboek</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporteren…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Be&amp;werken</translation>
    </message>
    <message>
        <source>Lift from in to out point</source>
        <translation>Van in- tot uit-punt uitlichten</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>Uitlichten</translation>
    </message>
    <message>
        <source>Extract from in to out point</source>
        <translation>Van in- tot uit-punt extraheren</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extraheren</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Media</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>&amp;Tijdlijn</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Afspelen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Weer&amp;gave</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Sneltoetsen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Over</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Werkbalk</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Naamloos</translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s) on the file, in the log</source>
        <translation>
            <numerusform>%n opmerking over het bestand, in het logboek</numerusform>
            <numerusform>%n opmerkingen over het bestand, in het logboek</numerusform>
        </translation>
    </message>
    <message>
        <source>Set an in and an out point first.</source>
        <translation>Stel eerst een in- en een uit-punt in.</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Herstel</translation>
    </message>
    <message>
        <source>The editor has ended unexpectedly. Changes of %1 until %2 can be opened.</source>
        <translation>De editor is onverwacht beëindigd. Wijzigingen in %1 tot %2 kunnen worden geopend.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporteren</translation>
    </message>
    <message>
        <source>Films are being written. End that?</source>
        <translation>Er worden films geschreven. Wilt u dat stoppen?</translation>
    </message>
    <message>
        <source>Render the preview, or stop it</source>
        <translation>Voorbeeld renderen of stoppen</translation>
    </message>
    <message>
        <source>%1 cannot be written to.</source>
        <translation>In %1 kan niet worden geschreven.</translation>
    </message>
    <message>
        <source>Light style</source>
        <translation>Lichte stijl</translation>
    </message>
</context>
<context>
    <name>EffectsSection</name>
    <message>
        <source>Add effect</source>
        <translation>Effect toevoegen</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Beeld</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Geluid</translation>
    </message>
    <message>
        <source>Apply earlier</source>
        <translation>Eerder toepassen</translation>
    </message>
    <message>
        <source>Apply later</source>
        <translation>Later toepassen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
</context>
<context>
    <name>ExportCheck</name>
    <message>
        <source>This cannot be combined</source>
        <translation>Dit kan niet worden gecombineerd</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>Deze voorinstelling bestaat niet.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>The processor encodes and decodes.</source>
        <translation>De processor codeert en decodeert.</translation>
    </message>
    <message>
        <source>The processor encodes; the graphics hardware helps to decode.</source>
        <translation>De processor codeert; de grafische hardware helpt bij het decoderen.</translation>
    </message>
    <message>
        <source>Add to the queue</source>
        <translation>Aan wachtrij toevoegen</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporteren</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Films</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Voorinstelling</translation>
    </message>
    <message>
        <source>film</source>
        <translation>film</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Bestand kiezen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breedte</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hoogte</translation>
    </message>
    <message>
        <source>As the project</source>
        <translation>Zoals het project</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Framesnelheid</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Geluid</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>From in to out</source>
        <translation>Van in tot uit</translation>
    </message>
    <message>
        <source>In point</source>
        <translation>In-punt</translation>
    </message>
    <message>
        <source>Out point</source>
        <translation>Uit-punt</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereik</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Still picture…</source>
        <translation>Stilstaand beeld…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Writes the frame under the play head</source>
        <translation>Schrijft het frame bij de afspeelkop</translation>
    </message>
    <message>
        <source>The project cannot be copied.</source>
        <translation>Het project kan niet worden gekopieerd.</translation>
    </message>
    <message>
        <source>Still picture</source>
        <translation>Stilstaand beeld</translation>
    </message>
    <message>
        <source>/frame %1.png</source>
        <translation>/frame %1.png</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.tif *.bmp)</source>
        <translation>Afbeeldingen (*.png *.jpg *.tif *.bmp)</translation>
    </message>
    <message>
        <source>%1 is in the queue already.</source>
        <translation>%1 staat al in de wachtrij.</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 bestaat al. Vervangen?</translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>Er is geen voorinstelling ‘%1’.</translation>
    </message>
    <message>
        <source>The engine has no presets.</source>
        <translation>De engine heeft geen voorinstellingen.</translation>
    </message>
    <message>
        <source>encoded: %1 %</source>
        <translation>gecodeerd: %1 %</translation>
    </message>
    <message>
        <source>%1 is not written; the log tells why.</source>
        <translation>%1 wordt niet geschreven; het logboek vertelt waarom.</translation>
    </message>
</context>
<context>
    <name>ExportQueue</name>
    <message>
        <source>%1 is not written</source>
        <translation>%1 wordt niet geschreven</translation>
    </message>
</context>
<context>
    <name>ExportQueueView</name>
    <message>
        <source>No films yet</source>
        <translation>Nog geen films</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wacht</translation>
    </message>
    <message>
        <source>Being written</source>
        <translation>Wordt geschreven</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>nog %1</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Geschreven</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Geannuleerd</translation>
    </message>
    <message>
        <source>Take from the list</source>
        <translation>Uit de lijst halen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Projects</source>
        <translation>Projecten</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nieuw</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Openen…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Opslaan als…</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Recente openen</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Naamloos</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Wijzigingen opslaan</translation>
    </message>
    <message>
        <source>The project has changes that are not saved.</source>
        <translation>Het project bevat niet-opgeslagen wijzigingen.</translation>
    </message>
</context>
<context>
    <name>FileEditor</name>
    <message>
        <source>No file</source>
        <translation>Geen bestand</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Bestand kiezen</translation>
    </message>
</context>
<context>
    <name>FontEditor</name>
    <message>
        <source>System font</source>
        <translation>Systeemlettertype</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Ruler</source>
        <translation>Liniaal</translation>
    </message>
    <message>
        <source>Drag the play head; the wheel scrolls, with Ctrl it zooms; a double click fits all.</source>
        <translation>Sleep de afspeelkop; het wiel schuift, met Ctrl zoomt het; dubbelklikken toont alles.</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Schuifregelaars</translation>
    </message>
    <message>
        <source>Drag, use the wheel, or the arrow keys.</source>
        <translation>Sleep, gebruik het wiel of de pijltoetsen.</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Knoppen en labels</translation>
    </message>
    <message>
        <source>The last line tells what they signal.</source>
        <translation>De laatste regel vertelt wat ze melden.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importeren</translation>
    </message>
    <message>
        <source>Copies media from cameras, phones and cards.</source>
        <translation>Kopieert media van camera’s, telefoons en kaarten.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Talen</translation>
    </message>
    <message>
        <source>A choice reaches every window at once.</source>
        <translation>Een keuze bereikt meteen elk venster.</translation>
    </message>
    <message>
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Begin met de pagina &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>Toon de namen van de pagina’s.</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>kan %1 niet schrijven</translation>
    </message>
    <message>
        <source>no page %1</source>
        <translation>geen pagina %1</translation>
    </message>
    <message>
        <source>Drag values</source>
        <translation>Waarden slepen</translation>
    </message>
    <message>
        <source>Drag on a number, with Shift faster, with Ctrl slower; a click edits it.</source>
        <translation>Sleep aan een getal, met Shift sneller, met Ctrl langzamer; een klik bewerkt het.</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Speler</translation>
    </message>
    <message>
        <source>Open a file and play it; K plays and pauses, comma and full stop step a frame.</source>
        <translation>Open een bestand en speel het af; K speelt en pauzeert, komma en punt gaan één frame terug of vooruit.</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>CommonLib widgets</source>
        <translation>CommonLib-bedieningselementen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagina’s</translation>
    </message>
</context>
<context>
    <name>HostLanguage</name>
    <message>
        <source>Language of the texts from now on, such as German.</source>
        <translation>Taal van de teksten vanaf nu, bijvoorbeeld German.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAAM</translation>
    </message>
    <message>
        <source>There is no language %1. Known are: %2</source>
        <translation>De taal %1 bestaat niet. Bekend zijn: %2</translation>
    </message>
</context>
<context>
    <name>ImportPage</name>
    <message>
        <source>Refresh</source>
        <translation>Vernieuwen</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Kiezen…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importeren</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Apparaat</translation>
    </message>
    <message>
        <source>Folder to import into</source>
        <translation>Map om in te importeren</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>Voortgang van het importeren</translation>
    </message>
    <message>
        <source>Import into</source>
        <translation>Importeren in</translation>
    </message>
    <message>
        <source>No device found</source>
        <translation>Geen apparaat gevonden</translation>
    </message>
    <message>
        <source>Connect a camera, a phone or a card reader, switch it on and unlock it.</source>
        <translation>Sluit een camera, telefoon of kaartlezer aan, zet het apparaat aan en ontgrendel het.</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>%1 wordt geopend…</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 kan niet worden geopend</translation>
    </message>
    <message>
        <source>Unlock the device and allow access to its files, then choose it again.</source>
        <translation>Ontgrendel het apparaat, sta toegang tot de bestanden toe en kies het opnieuw.</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 is verwijderd</translation>
    </message>
    <message>
        <source>Connect it again to go on.</source>
        <translation>Sluit het weer aan om door te gaan.</translation>
    </message>
    <message>
        <source>Chosen files: %1 (%2)</source>
        <translation>Gekozen bestanden: %1 (%2)</translation>
    </message>
    <message>
        <source>Reading the content… %1 files</source>
        <translation>Inhoud wordt gelezen… Bestanden: %1</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>Naamloos apparaat</translation>
    </message>
    <message>
        <source>%1 files on the device</source>
        <translation>Bestanden op het apparaat: %1</translation>
    </message>
    <message>
        <source>The device stopped answering; this may not be all of it.</source>
        <translation>Het apparaat antwoordt niet meer; dit is misschien niet alles.</translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation>In deze map kan niet worden geschreven.</translation>
    </message>
    <message>
        <source>Importing… %1 of %2</source>
        <translation>Importeren… %1 van %2</translation>
    </message>
    <message>
        <source>Imported files: %1 of %2.</source>
        <translation>Geïmporteerde bestanden: %1 van %2.</translation>
    </message>
    <message>
        <source>The device was removed during the import.</source>
        <translation>Het apparaat is tijdens het importeren verwijderd.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Geannuleerd.</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>Niet geïmporteerd: %1</translation>
    </message>
    <message>
        <source>Delete from the device afterwards</source>
        <translation>Daarna van het apparaat verwijderen</translation>
    </message>
    <message>
        <source>This folder has room for %1 only.</source>
        <translation>In deze map is maar plaats voor %1.</translation>
    </message>
    <message>
        <source>Another window has a device open. Close that window, then choose this device again.</source>
        <translation>Een ander venster heeft een apparaat geopend. Sluit dat venster en kies dit apparaat opnieuw.</translation>
    </message>
</context>
<context>
    <name>ImportTree</name>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Gewijzigd</translation>
    </message>
    <message>
        <source>Content of the device</source>
        <translation>Inhoud van het apparaat</translation>
    </message>
</context>
<context>
    <name>KeyFrameBar</name>
    <message>
        <source>Previous key frame</source>
        <translation>Vorig keyframe</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Keyframe</translation>
    </message>
    <message>
        <source>Next key frame</source>
        <translation>Volgend keyframe</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Vasthouden</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Lineair</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Vloeiend</translation>
    </message>
    <message>
        <source>To the next key frame</source>
        <translation>Tot het volgende keyframe</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Import media…</source>
        <translation>Media importeren…</translation>
    </message>
    <message>
        <source>Split at the play head</source>
        <translation>Splitsen bij de afspeelkop</translation>
    </message>
    <message>
        <source>Add a transition</source>
        <translation>Overgang toevoegen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Project opslaan</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporteren…</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Taal:</translation>
    </message>
    <message>
        <source>Font of the language:</source>
        <translation>Lettertype van de taal:</translation>
    </message>
    <message>
        <source>Drawn in:</source>
        <translation>Getekend in:</translation>
    </message>
    <message>
        <source>Reading direction:</source>
        <translation>Leesrichting:</translation>
    </message>
    <message>
        <source>Clips:</source>
        <translation>Clips:</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Voorbeeld</translation>
    </message>
    <message>
        <source>right to left</source>
        <translation>van rechts naar links</translation>
    </message>
    <message>
        <source>left to right</source>
        <translation>van links naar rechts</translation>
    </message>
    <message numerus="yes">
        <source>%Ln clip(s) selected</source>
        <translation>
            <numerusform>%Ln clip geselecteerd</numerusform>
            <numerusform>%Ln clips geselecteerd</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LevelHeader</name>
    <message>
        <source>Level %1</source>
        <translation>Spoor %1</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Vergrendelen</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Verbergen</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Dempen</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>Solo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>Niveaumeter</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Log</source>
        <translation>Logboek</translation>
    </message>
</context>
<context>
    <name>MediaBin</name>
    <message>
        <source>Add media</source>
        <translation>Media toevoegen</translation>
    </message>
    <message>
        <source>Remove media</source>
        <translation>Media verwijderen</translation>
    </message>
    <message>
        <source>Relink media</source>
        <translation>Media opnieuw koppelen</translation>
    </message>
    <message>
        <source>Use the media itself</source>
        <translation>De media zelf gebruiken</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Proxy gebruiken</translation>
    </message>
    <message>
        <source>Set in and out point</source>
        <translation>In- en uit-punt instellen</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>In- en uit-punt wissen</translation>
    </message>
    <message>
        <source>Place a clip</source>
        <translation>Clip plaatsen</translation>
    </message>
</context>
<context>
    <name>MediaJob</name>
    <message>
        <source>does not exist</source>
        <translation>bestaat niet</translation>
    </message>
    <message>
        <source>is a folder, not a media file</source>
        <translation>is een map, geen mediabestand</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>is geen gewoon bestand</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>is leeg</translation>
    </message>
    <message>
        <source>may not be read by this user</source>
        <translation>mag door deze gebruiker niet worden gelezen</translation>
    </message>
    <message>
        <source>cannot be read as media</source>
        <translation>kan niet als media worden gelezen</translation>
    </message>
    <message>
        <source>holds neither picture nor sound</source>
        <translation>bevat beeld noch geluid</translation>
    </message>
    <message>
        <source>has no frames</source>
        <translation>heeft geen frames</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>frame %1</translation>
    </message>
    <message>
        <source>picture %1 of %2: frame %3, %4</source>
        <translation>beeld %1 van %2: frame %3, %4</translation>
    </message>
    <message>
        <source>%1, not decoded</source>
        <translation>%1, niet gedecodeerd</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation>geen van de beelden kan worden gedecodeerd</translation>
    </message>
    <message>
        <source>%1 of %2 pictures cannot be decoded; the file may be damaged</source>
        <translation>%1 van %2 beelden kunnen niet worden gedecodeerd; het bestand is mogelijk beschadigd</translation>
    </message>
    <message>
        <source>wave form: part %1 of %2</source>
        <translation>golfvorm: deel %1 van %2</translation>
    </message>
    <message>
        <source>its sound cannot be decoded</source>
        <translation>het geluid kan niet worden gedecodeerd</translation>
    </message>
    <message>
        <source>the result cannot be written to %1</source>
        <translation>het resultaat kan niet naar %1 worden geschreven</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>geschreven: %1</translation>
    </message>
</context>
<context>
    <name>MediaReport</name>
    <message>
        <source>unknown codec</source>
        <translation>onbekende codec</translation>
    </message>
    <message>
        <source>video</source>
        <translation>video</translation>
    </message>
    <message>
        <source>rotated by %1°</source>
        <translation>%1° gedraaid</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>audio</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s)</source>
        <translation>
            <numerusform>%n kanaal</numerusform>
            <numerusform>%n kanalen</numerusform>
        </translation>
    </message>
    <message>
        <source>other</source>
        <translation>overig</translation>
    </message>
    <message>
        <source>Still picture, %1</source>
        <translation>Stilstaand beeld, %1</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Geluid</translation>
    </message>
    <message>
        <source>No picture and no sound</source>
        <translation>Geen beeld en geen geluid</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n frame</numerusform>
            <numerusform>%n frames</numerusform>
        </translation>
    </message>
    <message>
        <source>stream %1: %2</source>
        <translation>stream %1: %2</translation>
    </message>
    <message>
        <source>sample rates: %1</source>
        <translation>samplefrequenties: %1</translation>
    </message>
</context>
<context>
    <name>MovementKeys</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Draaiing</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Shift right</source>
        <translation>Verschuiving naar rechts</translation>
    </message>
    <message>
        <source>Shift up</source>
        <translation>Verschuiving omhoog</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Breedtefactor</translation>
    </message>
    <message>
        <source>Height factor</source>
        <translation>Hoogtefactor</translation>
    </message>
    <message>
        <source>Opacity factor</source>
        <translation>Dekkingsfactor</translation>
    </message>
</context>
<context>
    <name>MovementSection</name>
    <message>
        <source>Movement</source>
        <translation>Beweging</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Keyframe</translation>
    </message>
    <message>
        <source>Change movement</source>
        <translation>Beweging wijzigen</translation>
    </message>
</context>
<context>
    <name>ParameterFields</name>
    <message>
        <source> %</source>
        <translation>%</translation>
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
        <translation> fr</translation>
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
        <translation>Beeld plaatsen</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Beeld</translation>
    </message>
</context>
<context>
    <name>PlayerPage</name>
    <message>
        <source>Nothing is open.</source>
        <translation>Er is niets geopend.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Positie</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Eén frame terug</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Afspelen</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Eén frame vooruit</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Snelheid</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Herhalen</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Openen…</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Dempen</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Veilige zones</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Passend</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Vullend</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Grootte van het beeld</translation>
    </message>
    <message>
        <source>Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms</source>
        <translation>Laatste seconde: %1 getoond, %2 overgeslagen, %3 te laat, %4 uit de cache, afwijking %5 ms</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>%1 kan niet worden afgespeeld.</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>Gereed: %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauze</translation>
    </message>
</context>
<context>
    <name>PlayerPanel</name>
    <message>
        <source>Play or pause</source>
        <translation>Afspelen of pauzeren</translation>
    </message>
    <message>
        <source>Play backwards</source>
        <translation>Achteruit afspelen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Play forwards</source>
        <translation>Vooruit afspelen</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Herhalen</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Eén frame terug</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Eén frame vooruit</translation>
    </message>
    <message>
        <source>Go to beginning</source>
        <translation>Naar het begin</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>Naar het einde</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>In-punt instellen</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Uit-punt instellen</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>In- en uit-punt wissen</translation>
    </message>
    <message>
        <source>Go to in point</source>
        <translation>Naar in-punt</translation>
    </message>
    <message>
        <source>Go to out point</source>
        <translation>Naar uit-punt</translation>
    </message>
    <message>
        <source>Set or remove marker</source>
        <translation>Markering plaatsen of verwijderen</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Dempen</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Veilige zones</translation>
    </message>
    <message>
        <source>Picture on full screen</source>
        <translation>Beeld op volledig scherm</translation>
    </message>
    <message>
        <source>Timecode of the play head</source>
        <translation>Tijdcode van de afspeelkop</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Afspeelkop</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>The project cannot be made</source>
        <translation>Het project kan niet worden gemaakt</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 kan niet worden geopend</translation>
    </message>
    <message>
        <source>%1 cannot be saved</source>
        <translation>%1 kan niet worden opgeslagen</translation>
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
        <translation>Framesnelheid</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>Preview scale</source>
        <translation>Schaal van voorbeeld</translation>
    </message>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Achtergrond</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breedte</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hoogte</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Samplefrequentie</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanalen</translation>
    </message>
    <message>
        <source>Bits of a colour</source>
        <translation>Bits per kleur</translation>
    </message>
    <message>
        <source>Smooth scaling</source>
        <translation>Vloeiend schalen</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balans</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Dempen</translation>
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
        <translation>Eigenschappen</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Project</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Kleur</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Indeling</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Weergave</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effecten</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Titel toevoegen</translation>
    </message>
    <message>
        <source>Mixer, level %1</source>
        <translation>Mixer, spoor %1</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Overgang</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>Plaatsing</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Menging</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>Beweging</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Snelheid</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Geluid</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Overgangen</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameters</translation>
    </message>
</context>
<context>
    <name>PropertyForm</name>
    <message>
        <source>Back to the preset</source>
        <translation>Standaardwaarde herstellen</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>%1 wijzigen</translation>
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
        <translation>Uitzoomen</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Inzoomen</translation>
    </message>
</context>
<context>
    <name>ShortcutList</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Sneltoetsen</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Opdracht</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Toetsen</translation>
    </message>
</context>
<context>
    <name>SliderPage</name>
    <message>
        <source>Seek bar</source>
        <translation>Afspeelbalk</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normaal</translation>
    </message>
    <message>
        <source>Other chunk and groove</source>
        <translation>Andere vulling en groef</translation>
    </message>
    <message>
        <source>From right to left</source>
        <translation>Van rechts naar links</translation>
    </message>
    <message>
        <source>Empty range</source>
        <translation>Leeg bereik</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Uitgeschakeld</translation>
    </message>
    <message>
        <source>Zoom bar</source>
        <translation>Zoombalk</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Mirrored layout</source>
        <translation>Gespiegelde indeling</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Balk</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>Andere kleuren</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Rechtop</translation>
    </message>
</context>
<context>
    <name>SpeedSection</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Snelheid</translation>
    </message>
    <message>
        <source>Back to the preset</source>
        <translation>Standaardwaarde herstellen</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>The frame cannot be drawn</source>
        <translation>Het frame kan niet worden getekend</translation>
    </message>
    <message>
        <source>%1 is not written: %2</source>
        <translation>%1 wordt niet geschreven: %2</translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>Colour</source>
        <translation>Kleur</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Samengestelde clip</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verplaatsen</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Magnetisch</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Roll</translation>
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
        <translation>Knippen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Plakken</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Plakken en invoegen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Verwijderen en gat sluiten</translation>
    </message>
    <message>
        <source>Split at play head</source>
        <translation>Splitsen bij de afspeelkop</translation>
    </message>
    <message>
        <source>Trim begin to play head</source>
        <translation>Begin trimmen tot de afspeelkop</translation>
    </message>
    <message>
        <source>Trim end to play head</source>
        <translation>Einde trimmen tot de afspeelkop</translation>
    </message>
    <message>
        <source>Close gap at play head</source>
        <translation>Gat bij de afspeelkop sluiten</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groeperen</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Groepering opheffen</translation>
    </message>
    <message>
        <source>Lock or unlock level</source>
        <translation>Spoor vergrendelen of ontgrendelen</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles selecteren</translation>
    </message>
    <message>
        <source>Select at play head</source>
        <translation>Selecteren bij de afspeelkop</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Niets selecteren</translation>
    </message>
    <message>
        <source>Frame earlier</source>
        <translation>Eén frame eerder</translation>
    </message>
    <message>
        <source>Frame later</source>
        <translation>Eén frame later</translation>
    </message>
    <message>
        <source>Second earlier</source>
        <translation>Eén seconde eerder</translation>
    </message>
    <message>
        <source>Second later</source>
        <translation>Eén seconde later</translation>
    </message>
    <message>
        <source>Level up</source>
        <translation>Eén spoor omhoog</translation>
    </message>
    <message>
        <source>Level down</source>
        <translation>Eén spoor omlaag</translation>
    </message>
    <message>
        <source>Previous cut</source>
        <translation>Vorig montagepunt</translation>
    </message>
    <message>
        <source>Next cut</source>
        <translation>Volgend montagepunt</translation>
    </message>
    <message>
        <source>Selection tool</source>
        <translation>Selectiegereedschap</translation>
    </message>
    <message>
        <source>Ripple tool</source>
        <translation>Ripple-gereedschap</translation>
    </message>
    <message>
        <source>Roll tool</source>
        <translation>Roll-gereedschap</translation>
    </message>
    <message>
        <source>Slip tool</source>
        <translation>Slip-gereedschap</translation>
    </message>
    <message>
        <source>Slide tool</source>
        <translation>Slide-gereedschap</translation>
    </message>
    <message>
        <source>Razor tool</source>
        <translation>Scheermes</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Inzoomen</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Uitzoomen</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Passend in venster</translation>
    </message>
    <message>
        <source>Taller levels</source>
        <translation>Sporen hoger maken</translation>
    </message>
    <message>
        <source>Lower levels</source>
        <translation>Sporen lager maken</translation>
    </message>
    <message>
        <source>Ripple trim</source>
        <translation>Ripple-trimmen</translation>
    </message>
    <message>
        <source>Hide or show level</source>
        <translation>Spoor verbergen of tonen</translation>
    </message>
    <message>
        <source>Mute or unmute level</source>
        <translation>Spoor dempen of hoorbaar maken</translation>
    </message>
    <message>
        <source>Level solo or not</source>
        <translation>Spoor solo of niet</translation>
    </message>
</context>
<context>
    <name>TimelineCommands</name>
    <message>
        <source>Split</source>
        <translation>Splitsen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Knippen</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Plakken</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groeperen</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Groepering opheffen</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verplaatsen</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Verwijderen en gat sluiten</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Plakken en invoegen</translation>
    </message>
    <message>
        <source>Close gap</source>
        <translation>Gat sluiten</translation>
    </message>
    <message>
        <source>Lock level</source>
        <translation>Spoor vergrendelen</translation>
    </message>
    <message>
        <source>Unlock level</source>
        <translation>Spoor ontgrendelen</translation>
    </message>
    <message>
        <source>Rename level</source>
        <translation>Spoor hernoemen</translation>
    </message>
</context>
<context>
    <name>TimelinePanel</name>
    <message>
        <source>Timeline</source>
        <translation>Tijdlijn</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Afspeelkop</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clips</translation>
    </message>
    <message>
        <source>%1, level %2, frames %3 to %4</source>
        <translation>%1, spoor %2, frames %3 tot %4</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Liniaal</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>Split</source>
        <translation>Splitsen</translation>
    </message>
    <message>
        <source>Insert media</source>
        <translation>Media invoegen</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Media toevoegen</translation>
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
        <translation>Soort</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duur</translation>
    </message>
</context>
<context>
    <name>TransitionSection</name>
    <message>
        <source>At the beginning</source>
        <translation>Aan het begin</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>Aan het einde</translation>
    </message>
</context>
<context>
    <name>Transport</name>
    <message>
        <source>Remove marker</source>
        <translation>Markering verwijderen</translation>
    </message>
    <message>
        <source>Set marker</source>
        <translation>Markering plaatsen</translation>
    </message>
</context>
</TS>
