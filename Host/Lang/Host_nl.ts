<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_US">
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
        <source>Shows the library&apos;s widgets.</source>
        <translation>Toont de bedieningselementen van de bibliotheek.</translation>
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
        <source>Write a picture of the page to &lt;file&gt;.</source>
        <translation>Schrijf een afbeelding van de pagina naar &lt;file&gt;.</translation>
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
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>Niveaumeter</translation>
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
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Liniaal</translation>
    </message>
</context>
</TS>
