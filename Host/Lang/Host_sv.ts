<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en_US">
<context>
    <name>ButtonPage</name>
    <message>
        <source>Buttons</source>
        <translation>Knappar</translation>
    </message>
    <message>
        <source>Several states</source>
        <translation>Flera lägen</translation>
    </message>
    <message>
        <source>Image and text</source>
        <translation>Bild och text</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Flikar</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketter</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Senaste signal</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>inget än</translation>
    </message>
    <message>
        <source>Pressed %1</source>
        <translation>%1 nedtryckt</translation>
    </message>
    <message>
        <source>Clicked %1 at (%2, %3)</source>
        <translation>%1 klickad vid (%2, %3)</translation>
    </message>
    <message>
        <source>Entered %1</source>
        <translation>Gick in i %1</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>Lämnade %1</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Med ikon</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Markerad</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inaktiverad</translation>
    </message>
    <message>
        <source>Clicked %1, shows %2</source>
        <translation>%1 klickad, visar %2</translation>
    </message>
    <message>
        <source>Clicked %1</source>
        <translation>%1 klickad</translation>
    </message>
    <message>
        <source>Image left</source>
        <translation>Vänster</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>Ovanför</translation>
    </message>
    <message>
        <source>Image right</source>
        <translation>Höger</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Nedanför</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medier</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Ljud</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Titlar</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekter</translation>
    </message>
    <message>
        <source>Selected %1</source>
        <translation>%1 vald</translation>
    </message>
    <message>
        <source>for a language from right to left</source>
        <translation>för ett språk från höger till vänster</translation>
    </message>
    <message>
        <source>for a language from left to right</source>
        <translation>för ett språk från vänster till höger</translation>
    </message>
</context>
<context>
    <name>ClipStrip</name>
    <message>
        <source>Opening</source>
        <translation>Inledning</translation>
    </message>
    <message>
        <source>Harbour at dawn</source>
        <translation>Hamnen i gryningen</translation>
    </message>
    <message>
        <source>Interview, part 1</source>
        <translation>Intervju, del 1</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>Marknad</translation>
    </message>
    <message>
        <source>Interview, part 2</source>
        <translation>Intervju, del 2</translation>
    </message>
    <message>
        <source>Night drive</source>
        <translation>Nattkörning</translation>
    </message>
</context>
<context>
    <name>CommonLibDemo</name>
    <message>
        <source>The log %1 cannot be opened; going on without it.</source>
        <translation>Loggen %1 kan inte öppnas; fortsätter utan den.</translation>
    </message>
    <message>
        <source>The engine is missing or does not start: %1</source>
        <translation>Motorn saknas eller startar inte: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Mappen %1 kan inte skapas.</translation>
    </message>
    <message>
        <source>Tells what media files are and writes a contact sheet of each.</source>
        <translation>Berättar vad mediefiler är och skriver en kontaktkarta för var och en.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Visa den här hjälpen.</translation>
    </message>
    <message>
        <source>Folder for results.</source>
        <translation>Mapp för resultat.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>MAPP</translation>
    </message>
    <message>
        <source>Log file, by default %1 among the results.</source>
        <translation>Loggfil, annars %1 bland resultaten.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FIL</translation>
    </message>
    <message>
        <source>Print the log as well.</source>
        <translation>Visa även loggen.</translation>
    </message>
    <message>
        <source>Media files.</source>
        <translation>Mediefiler.</translation>
    </message>
    <message>
        <source>MEDIA…</source>
        <translation>MEDIER…</translation>
    </message>
    <message>
        <source>No media file named.</source>
        <translation>Ingen mediefil angiven.</translation>
    </message>
    <message>
        <source>Write a film of all media files to this file, whose suffix chooses how it is encoded.</source>
        <translation>Skriv en film av alla mediefiler till den här filen, vars ändelse bestämmer kodningen.</translation>
    </message>
    <message>
        <source>Preset that the film is encoded with.</source>
        <translation>Förinställning som filmen kodas med.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAMN</translation>
    </message>
    <message>
        <source>List the presets for films.</source>
        <translation>Lista förinställningarna för filmer.</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>ingen bild</translation>
    </message>
</context>
<context>
    <name>DragPage</name>
    <message>
        <source>Opacity</source>
        <translation>Opacitet</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skala</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inaktiverad</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Senaste signal</translation>
    </message>
    <message>
        <source>drag begins at %1</source>
        <translation>dragningen börjar vid %1</translation>
    </message>
    <message>
        <source>drag ends at %1</source>
        <translation>dragningen slutar vid %1</translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>Det finns ingen förinställning ”%1”.</translation>
    </message>
    <message>
        <source>The engine has no presets.</source>
        <translation>Motorn har inga förinställningar.</translation>
    </message>
    <message>
        <source>encoded: %1 %</source>
        <translation>kodat: %1 %</translation>
    </message>
    <message>
        <source>%1 is not written; the log tells why.</source>
        <translation>%1 skrivs inte; loggen berättar varför.</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Ruler</source>
        <translation>Linjal</translation>
    </message>
    <message>
        <source>Drag the play head; the wheel scrolls, with Ctrl it zooms; a double click fits all.</source>
        <translation>Dra spelhuvudet; hjulet rullar, med Ctrl zoomar det; ett dubbelklick visar allt.</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Skjutreglage</translation>
    </message>
    <message>
        <source>Drag, use the wheel, or the arrow keys.</source>
        <translation>Dra, använd hjulet eller piltangenterna.</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Knappar och etiketter</translation>
    </message>
    <message>
        <source>The last line tells what they signal.</source>
        <translation>Sista raden visar vad de signalerar.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importera</translation>
    </message>
    <message>
        <source>Copies media from cameras, phones and cards.</source>
        <translation>Kopierar medier från kameror, telefoner och kort.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>A choice reaches every window at once.</source>
        <translation>Ett val når genast alla fönster.</translation>
    </message>
    <message>
        <source>Shows the library&apos;s widgets.</source>
        <translation>Visar bibliotekets kontroller.</translation>
    </message>
    <message>
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Börja med sidan &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>Lista sidornas namn.</translation>
    </message>
    <message>
        <source>Write a picture of the page to &lt;file&gt;.</source>
        <translation>Skriv en bild av sidan till &lt;file&gt;.</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>kan inte skriva %1</translation>
    </message>
    <message>
        <source>no page %1</source>
        <translation>ingen sida %1</translation>
    </message>
    <message>
        <source>Drag values</source>
        <translation>Dra värden</translation>
    </message>
    <message>
        <source>Drag on a number, with Shift faster, with Ctrl slower; a click edits it.</source>
        <translation>Dra i ett tal, med Skift snabbare, med Ctrl långsammare; ett klick redigerar det.</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Spelare</translation>
    </message>
    <message>
        <source>Open a file and play it; K plays and pauses, comma and full stop step a frame.</source>
        <translation>Öppna en fil och spela den; K spelar och pausar, komma och punkt stegar en bildruta.</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>CommonLib widgets</source>
        <translation>CommonLib-kontroller</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Sidor</translation>
    </message>
</context>
<context>
    <name>HostLanguage</name>
    <message>
        <source>Language of the texts from now on, such as German.</source>
        <translation>Språk för texterna från och med nu, till exempel German.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAMN</translation>
    </message>
    <message>
        <source>There is no language %1. Known are: %2</source>
        <translation>Språket %1 finns inte. Kända språk: %2</translation>
    </message>
</context>
<context>
    <name>ImportPage</name>
    <message>
        <source>Refresh</source>
        <translation>Uppdatera</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Välj…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importera</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Enhet</translation>
    </message>
    <message>
        <source>Folder to import into</source>
        <translation>Mapp att importera till</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>Importens förlopp</translation>
    </message>
    <message>
        <source>Import into</source>
        <translation>Importera till</translation>
    </message>
    <message>
        <source>No device found</source>
        <translation>Ingen enhet hittades</translation>
    </message>
    <message>
        <source>Connect a camera, a phone or a card reader, switch it on and unlock it.</source>
        <translation>Anslut en kamera, en telefon eller en kortläsare, slå på den och lås upp den.</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>Öppnar %1…</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 kan inte öppnas</translation>
    </message>
    <message>
        <source>Unlock the device and allow access to its files, then choose it again.</source>
        <translation>Lås upp enheten, tillåt åtkomst till dess filer och välj den igen.</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 togs bort</translation>
    </message>
    <message>
        <source>Connect it again to go on.</source>
        <translation>Anslut den igen för att fortsätta.</translation>
    </message>
    <message>
        <source>Chosen files: %1 (%2)</source>
        <translation>Valda filer: %1 (%2)</translation>
    </message>
    <message>
        <source>Reading the content… %1 files</source>
        <translation>Läser innehållet… Filer: %1</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>Namnlös enhet</translation>
    </message>
    <message>
        <source>%1 files on the device</source>
        <translation>Filer på enheten: %1</translation>
    </message>
    <message>
        <source>The device stopped answering; this may not be all of it.</source>
        <translation>Enheten slutade svara; det här är kanske inte allt.</translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation>Det går inte att skriva i den här mappen.</translation>
    </message>
    <message>
        <source>Importing… %1 of %2</source>
        <translation>Importerar… %1 av %2</translation>
    </message>
    <message>
        <source>Imported files: %1 of %2.</source>
        <translation>Importerade filer: %1 av %2.</translation>
    </message>
    <message>
        <source>The device was removed during the import.</source>
        <translation>Enheten togs bort under importen.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Avbrutet.</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>Inte importerat: %1</translation>
    </message>
    <message>
        <source>Delete from the device afterwards</source>
        <translation>Ta bort från enheten efteråt</translation>
    </message>
    <message>
        <source>This folder has room for %1 only.</source>
        <translation>Den här mappen har bara plats för %1.</translation>
    </message>
</context>
<context>
    <name>ImportTree</name>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Ändrad</translation>
    </message>
    <message>
        <source>Content of the device</source>
        <translation>Enhetens innehåll</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Import media…</source>
        <translation>Importera medier…</translation>
    </message>
    <message>
        <source>Split at the play head</source>
        <translation>Dela vid spelhuvudet</translation>
    </message>
    <message>
        <source>Add a transition</source>
        <translation>Lägg till en övergång</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ångra</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Spara projektet</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportera…</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Språk:</translation>
    </message>
    <message>
        <source>Font of the language:</source>
        <translation>Språkets typsnitt:</translation>
    </message>
    <message>
        <source>Drawn in:</source>
        <translation>Ritas med:</translation>
    </message>
    <message>
        <source>Reading direction:</source>
        <translation>Läsriktning:</translation>
    </message>
    <message>
        <source>Clips:</source>
        <translation>Klipp:</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Exempel</translation>
    </message>
    <message>
        <source>right to left</source>
        <translation>från höger till vänster</translation>
    </message>
    <message>
        <source>left to right</source>
        <translation>från vänster till höger</translation>
    </message>
    <message numerus="yes">
        <source>%Ln clip(s) selected</source>
        <translation>
            <numerusform>%Ln klipp valt</numerusform>
            <numerusform>%Ln klipp valda</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>Nivåmätare</translation>
    </message>
</context>
<context>
    <name>MediaJob</name>
    <message>
        <source>does not exist</source>
        <translation>finns inte</translation>
    </message>
    <message>
        <source>is a folder, not a media file</source>
        <translation>är en mapp, inte en mediefil</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>är ingen vanlig fil</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>är tom</translation>
    </message>
    <message>
        <source>may not be read by this user</source>
        <translation>får inte läsas av den här användaren</translation>
    </message>
    <message>
        <source>cannot be read as media</source>
        <translation>kan inte läsas som media</translation>
    </message>
    <message>
        <source>holds neither picture nor sound</source>
        <translation>innehåller varken bild eller ljud</translation>
    </message>
    <message>
        <source>has no frames</source>
        <translation>har inga bildrutor</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>bildruta %1</translation>
    </message>
    <message>
        <source>picture %1 of %2: frame %3, %4</source>
        <translation>bild %1 av %2: bildruta %3, %4</translation>
    </message>
    <message>
        <source>%1, not decoded</source>
        <translation>%1, inte avkodad</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation>ingen av dess bilder kan avkodas</translation>
    </message>
    <message>
        <source>%1 of %2 pictures cannot be decoded; the file may be damaged</source>
        <translation>%1 av %2 bilder kan inte avkodas; filen kan vara skadad</translation>
    </message>
    <message>
        <source>wave form: part %1 of %2</source>
        <translation>vågform: del %1 av %2</translation>
    </message>
    <message>
        <source>its sound cannot be decoded</source>
        <translation>dess ljud kan inte avkodas</translation>
    </message>
    <message>
        <source>the result cannot be written to %1</source>
        <translation>resultatet kan inte skrivas till %1</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>skrivet: %1</translation>
    </message>
</context>
<context>
    <name>MediaReport</name>
    <message>
        <source>unknown codec</source>
        <translation>okänd kodek</translation>
    </message>
    <message>
        <source>video</source>
        <translation>video</translation>
    </message>
    <message>
        <source>rotated by %1°</source>
        <translation>roterad %1°</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 bilder/s</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>ljud</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s)</source>
        <translation>
            <numerusform>%n kanal</numerusform>
            <numerusform>%n kanaler</numerusform>
        </translation>
    </message>
    <message>
        <source>other</source>
        <translation>övrigt</translation>
    </message>
    <message>
        <source>Still picture, %1</source>
        <translation>Stillbild, %1</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ljud</translation>
    </message>
    <message>
        <source>No picture and no sound</source>
        <translation>Ingen bild och inget ljud</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n bildruta</numerusform>
            <numerusform>%n bildrutor</numerusform>
        </translation>
    </message>
    <message>
        <source>stream %1: %2</source>
        <translation>ström %1: %2</translation>
    </message>
    <message>
        <source>sample rates: %1</source>
        <translation>samplingsfrekvenser: %1</translation>
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
        <translation>Ingenting är öppet.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>En bildruta bakåt</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Spela</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>En bildruta framåt</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hastighet</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Slinga</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öppna…</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Tyst</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volym</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Säkra områden</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Anpassa</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Fyll</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Bildens storlek</translation>
    </message>
    <message>
        <source>Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms</source>
        <translation>Senaste sekunden: %1 visade, %2 överhoppade, %3 sena, %4 från cachen, avvikelse %5 ms</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>%1 kan inte spelas.</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>Klar: %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
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
        <translation>Zooma ut</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zooma in</translation>
    </message>
</context>
<context>
    <name>SliderPage</name>
    <message>
        <source>Seek bar</source>
        <translation>Uppspelningsreglage</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Other chunk and groove</source>
        <translation>Annan fyllning och skåra</translation>
    </message>
    <message>
        <source>From right to left</source>
        <translation>Från höger till vänster</translation>
    </message>
    <message>
        <source>Empty range</source>
        <translation>Tomt intervall</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inaktiverad</translation>
    </message>
    <message>
        <source>Zoom bar</source>
        <translation>Zoomreglage</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Mirrored layout</source>
        <translation>Spegelvänd layout</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Stapel</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>Andra färger</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Lodrät</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Linjal</translation>
    </message>
</context>
</TS>
