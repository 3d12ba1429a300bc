<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en_US">
<context>
    <name>AboutBox</name>
    <message>
        <source>Product: %1</source>
        <translation>Produkt: %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>A small editor that shows what the library does.</source>
        <translation>En liten redigerare som visar vad biblioteket kan.</translation>
    </message>
</context>
<context>
    <name>BinCommands</name>
    <message>
        <source>Files…</source>
        <translation>Filer…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>Mapp…</translation>
    </message>
    <message>
        <source>From a device…</source>
        <translation>Från en enhet…</translation>
    </message>
    <message>
        <source>Place at the play head</source>
        <translation>Placera vid spelhuvudet</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Ange inpunkt</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Ange utpunkt</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Rensa in- och utpunkt</translation>
    </message>
    <message>
        <source>Make a proxy</source>
        <translation>Skapa proxy</translation>
    </message>
    <message>
        <source>Cancel the proxy</source>
        <translation>Avbryt skapandet av proxy</translation>
    </message>
    <message>
        <source>Use the proxy</source>
        <translation>Använd proxy</translation>
    </message>
    <message>
        <source>Locate…</source>
        <translation>Leta upp…</translation>
    </message>
    <message>
        <source>Search a folder for offline media…</source>
        <translation>Sök i en mapp efter medier som är offline…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Remove all unused</source>
        <translation>Ta bort alla oanvända</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Lägg till medier</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Lägg till en mapp</translation>
    </message>
    <message>
        <source>Import from a device</source>
        <translation>Importera från en enhet</translation>
    </message>
    <message>
        <source>None of the files was found.</source>
        <translation>Ingen av filerna hittades.</translation>
    </message>
    <message>
        <source>The files that were found cannot be read.</source>
        <translation>Filerna som hittades kan inte läsas.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) found.</source>
        <translation>
            <numerusform>%n fil hittades.</numerusform>
            <numerusform>%n filer hittades.</numerusform>
        </translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>Var finns %1?</translation>
    </message>
    <message>
        <source>%1 (%1);;All files (*)</source>
        <translation>%1 (%1);;Alla filer (*)</translation>
    </message>
    <message>
        <source>Folder with the media</source>
        <translation>Mapp med medierna</translation>
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
        <translation>in %1, ut %2</translation>
    </message>
    <message>
        <source>proxy: %1 %</source>
        <translation>proxy: %1 %</translation>
    </message>
    <message>
        <source>proxy: in use</source>
        <translation>proxy: används</translation>
    </message>
    <message>
        <source>proxy: not in use</source>
        <translation>proxy: används inte</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Läser…</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Kan inte läsas</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) on the timeline</source>
        <translation>
            <numerusform>%n klipp på tidslinjen</numerusform>
            <numerusform>%n klipp på tidslinjen</numerusform>
        </translation>
    </message>
    <message>
        <source>not on the timeline</source>
        <translation>inte på tidslinjen</translation>
    </message>
</context>
<context>
    <name>BinPanel</name>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Search the media</source>
        <translation>Sök bland medierna</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Rutnät</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Lägg till…</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medier</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>Drop media here, or add files and folders.</source>
        <translation>Dra medier hit eller lägg till filer och mappar.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Inget hittades</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>%n fil vald</numerusform>
            <numerusform>%n filer valda</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n file(s)…</source>
        <translation>
            <numerusform>Läser %n fil…</numerusform>
            <numerusform>Läser %n filer…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read as media.</source>
        <translation>%1 kan inte läsas som media.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more cannot be read as media.</source>
        <translation>
            <numerusform>%1 och %n fil till kan inte läsas som media.</numerusform>
            <numerusform>%1 och %n filer till kan inte läsas som media.</numerusform>
        </translation>
    </message>
    <message>
        <source>No proxy of %1: %2</source>
        <translation>Ingen proxy för %1: %2</translation>
    </message>
</context>
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
    <name>ClipActions</name>
    <message>
        <source>Add transition</source>
        <translation>Lägg till övergång</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Lägg till titel</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>Ändra hastighet</translation>
    </message>
    <message>
        <source>Add effect</source>
        <translation>Lägg till effekt</translation>
    </message>
    <message>
        <source>Remove effect</source>
        <translation>Ta bort effekt</translation>
    </message>
    <message>
        <source>Move effect</source>
        <translation>Flytta effekt</translation>
    </message>
    <message>
        <source>Switch effect</source>
        <translation>Slå på eller av effekt</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Ändra övergång</translation>
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
        <translation>Anpassning</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Hela bilden</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>Hela ytan</translation>
    </message>
    <message>
        <source>Stretched</source>
        <translation>Utsträckt</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>Pixel för pixel</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacitet</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> bildr.</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Brusreducering</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volym</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Centre X</source>
        <translation>Centrum X</translation>
    </message>
    <message>
        <source>Centre Y</source>
        <translation>Centrum Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Bredd</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höjd</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Läge</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplicera</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Överlagra</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Mörkare</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Ljusare</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Addera</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differens</translation>
    </message>
    <message>
        <source>Colour dodge</source>
        <translation>Färgskugga</translation>
    </message>
    <message>
        <source>Colour burn</source>
        <translation>Färgefterbelysning</translation>
    </message>
    <message>
        <source>Hard light</source>
        <translation>Hårt ljus</translation>
    </message>
    <message>
        <source>Soft light</source>
        <translation>Mjukt ljus</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Uteslutning</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balans</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Tonhöjd</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Tyst</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Tona in</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Tona ut</translation>
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
        <translation>Färg</translation>
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
    <name>Editor</name>
    <message>
        <source>A small editor.</source>
        <translation>En liten redigerare.</translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;.</source>
        <translation>Skriv en bild av fönstret till &lt;file&gt;.</translation>
    </message>
    <message>
        <source>A project to open, and media for the bin.</source>
        <translation>Ett projekt att öppna och medier till mediebiblioteket.</translation>
    </message>
    <message>
        <source>The engine is missing.</source>
        <translation>Motorn saknas.</translation>
    </message>
    <message>
        <source>Make a small film of the media by itself, and put pictures, the film and a report into &lt;folder&gt;.</source>
        <translation>Gör själv en liten film av medierna och lägg bilder, filmen och en rapport i &lt;mapp&gt;.</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>Media</source>
        <translation>Medier</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Egenskaper</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Tidslinje</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Logg</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arkiv</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportera…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ångra</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gör om</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Redigera</translation>
    </message>
    <message>
        <source>Lift from in to out point</source>
        <translation>Lyft ut från in- till utpunkt</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>Lyft ut</translation>
    </message>
    <message>
        <source>Extract from in to out point</source>
        <translation>Extrahera från in- till utpunkt</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extrahera</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Medier</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>&amp;Tidslinje</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Uppspelning</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visa</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hjälp</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Kortkommandon</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Verktygsfält</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Namnlös</translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s) on the file, in the log</source>
        <translation>
            <numerusform>%n anmärkning om filen, i loggen</numerusform>
            <numerusform>%n anmärkningar om filen, i loggen</numerusform>
        </translation>
    </message>
    <message>
        <source>Set an in and an out point first.</source>
        <translation>Ange först en in- och en utpunkt.</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Återställning</translation>
    </message>
    <message>
        <source>The editor has ended unexpectedly. Changes of %1 until %2 can be opened.</source>
        <translation>Redigeraren avslutades oväntat. Ändringar i %1 fram till %2 kan öppnas.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Films are being written. End that?</source>
        <translation>Filmer håller på att skrivas. Vill du avbryta det?</translation>
    </message>
    <message>
        <source>Render the preview, or stop it</source>
        <translation>Rendera förhandsvisningen, eller stoppa</translation>
    </message>
    <message>
        <source>%1 cannot be written to.</source>
        <translation>Det går inte att skriva till %1.</translation>
    </message>
    <message>
        <source>Light style</source>
        <translation>Ljus stil</translation>
    </message>
</context>
<context>
    <name>EffectsSection</name>
    <message>
        <source>Add effect</source>
        <translation>Lägg till effekt</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ljud</translation>
    </message>
    <message>
        <source>Apply earlier</source>
        <translation>Tillämpa tidigare</translation>
    </message>
    <message>
        <source>Apply later</source>
        <translation>Tillämpa senare</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
</context>
<context>
    <name>ExportCheck</name>
    <message>
        <source>This cannot be combined</source>
        <translation>Det här kan inte kombineras</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>Förinställningen finns inte.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>The processor encodes and decodes.</source>
        <translation>Processorn kodar och avkodar.</translation>
    </message>
    <message>
        <source>The processor encodes; the graphics hardware helps to decode.</source>
        <translation>Processorn kodar; grafikhårdvaran hjälper till att avkoda.</translation>
    </message>
    <message>
        <source>Add to the queue</source>
        <translation>Lägg till i kön</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Filmer</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Förinställning</translation>
    </message>
    <message>
        <source>film</source>
        <translation>film</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Välj en fil</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Bredd</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höjd</translation>
    </message>
    <message>
        <source>As the project</source>
        <translation>Som projektet</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 bilder/s</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Bildfrekvens</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ljud</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Allt</translation>
    </message>
    <message>
        <source>From in to out</source>
        <translation>Från in till ut</translation>
    </message>
    <message>
        <source>In point</source>
        <translation>Inpunkt</translation>
    </message>
    <message>
        <source>Out point</source>
        <translation>Utpunkt</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Intervall</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hårdvara</translation>
    </message>
    <message>
        <source>Still picture…</source>
        <translation>Stillbild…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>Writes the frame under the play head</source>
        <translation>Skriver bildrutan vid spelhuvudet</translation>
    </message>
    <message>
        <source>The project cannot be copied.</source>
        <translation>Projektet kan inte kopieras.</translation>
    </message>
    <message>
        <source>Still picture</source>
        <translation>Stillbild</translation>
    </message>
    <message>
        <source>/frame %1.png</source>
        <translation>/bildruta %1.png</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.tif *.bmp)</source>
        <translation>Bilder (*.png *.jpg *.tif *.bmp)</translation>
    </message>
    <message>
        <source>%1 is in the queue already.</source>
        <translation>%1 finns redan i kön.</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 finns redan. Ersätta?</translation>
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
    <name>ExportQueue</name>
    <message>
        <source>%1 is not written</source>
        <translation>%1 skrivs inte</translation>
    </message>
</context>
<context>
    <name>ExportQueueView</name>
    <message>
        <source>No films yet</source>
        <translation>Inga filmer än</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Väntar</translation>
    </message>
    <message>
        <source>Being written</source>
        <translation>Skrivs</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 kvar</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Skriven</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Avbruten</translation>
    </message>
    <message>
        <source>Take from the list</source>
        <translation>Ta bort från listan</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Projects</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nytt</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öppna…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Spara som…</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Öppna senaste</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Namnlös</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Spara ändringar</translation>
    </message>
    <message>
        <source>The project has changes that are not saved.</source>
        <translation>Projektet har ändringar som inte har sparats.</translation>
    </message>
</context>
<context>
    <name>FileEditor</name>
    <message>
        <source>No file</source>
        <translation>Ingen fil</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Välj en fil</translation>
    </message>
</context>
<context>
    <name>FontEditor</name>
    <message>
        <source>System font</source>
        <translation>Systemtypsnitt</translation>
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
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Börja med sidan &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>Lista sidornas namn.</translation>
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
    <message>
        <source>Another window has a device open. Close that window, then choose this device again.</source>
        <translation>Ett annat fönster har en enhet öppen. Stäng det fönstret och välj sedan den här enheten igen.</translation>
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
    <name>KeyFrameBar</name>
    <message>
        <source>Previous key frame</source>
        <translation>Föregående nyckelbildruta</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Nyckelbildruta</translation>
    </message>
    <message>
        <source>Next key frame</source>
        <translation>Nästa nyckelbildruta</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Håll</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linjär</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Mjuk</translation>
    </message>
    <message>
        <source>To the next key frame</source>
        <translation>Till nästa nyckelbildruta</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
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
    <name>LevelHeader</name>
    <message>
        <source>Level %1</source>
        <translation>Spår %1</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Lås</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Dölj</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Tyst</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>Solo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
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
    <name>LogView</name>
    <message>
        <source>Log</source>
        <translation>Logg</translation>
    </message>
</context>
<context>
    <name>MediaBin</name>
    <message>
        <source>Add media</source>
        <translation>Lägg till medier</translation>
    </message>
    <message>
        <source>Remove media</source>
        <translation>Ta bort medier</translation>
    </message>
    <message>
        <source>Relink media</source>
        <translation>Länka om medier</translation>
    </message>
    <message>
        <source>Use the media itself</source>
        <translation>Använd själva medierna</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Använd proxy</translation>
    </message>
    <message>
        <source>Set in and out point</source>
        <translation>Ange in- och utpunkt</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Rensa in- och utpunkt</translation>
    </message>
    <message>
        <source>Place a clip</source>
        <translation>Placera ett klipp</translation>
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
    <name>MovementKeys</name>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Vridning</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Shift right</source>
        <translation>Förskjutning åt höger</translation>
    </message>
    <message>
        <source>Shift up</source>
        <translation>Förskjutning uppåt</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Breddfaktor</translation>
    </message>
    <message>
        <source>Height factor</source>
        <translation>Höjdfaktor</translation>
    </message>
    <message>
        <source>Opacity factor</source>
        <translation>Opacitetsfaktor</translation>
    </message>
</context>
<context>
    <name>MovementSection</name>
    <message>
        <source>Movement</source>
        <translation>Rörelse</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Nyckelbildruta</translation>
    </message>
    <message>
        <source>Change movement</source>
        <translation>Ändra rörelse</translation>
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
        <translation> bildr.</translation>
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
        <translation>Placera bild</translation>
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
    <name>PlayerPanel</name>
    <message>
        <source>Play or pause</source>
        <translation>Spela eller pausa</translation>
    </message>
    <message>
        <source>Play backwards</source>
        <translation>Spela baklänges</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppa</translation>
    </message>
    <message>
        <source>Play forwards</source>
        <translation>Spela framlänges</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Slinga</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>En bildruta bakåt</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>En bildruta framåt</translation>
    </message>
    <message>
        <source>Go to beginning</source>
        <translation>Gå till början</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>Gå till slutet</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Ange inpunkt</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Ange utpunkt</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Rensa in- och utpunkt</translation>
    </message>
    <message>
        <source>Go to in point</source>
        <translation>Gå till inpunkten</translation>
    </message>
    <message>
        <source>Go to out point</source>
        <translation>Gå till utpunkten</translation>
    </message>
    <message>
        <source>Set or remove marker</source>
        <translation>Sätt eller ta bort markör</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Tyst</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Säkra områden</translation>
    </message>
    <message>
        <source>Picture on full screen</source>
        <translation>Bild i helskärm</translation>
    </message>
    <message>
        <source>Timecode of the play head</source>
        <translation>Spelhuvudets tidskod</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Spelhuvud</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volym</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>The project cannot be made</source>
        <translation>Projektet kan inte skapas</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 kan inte öppnas</translation>
    </message>
    <message>
        <source>%1 cannot be saved</source>
        <translation>%1 kan inte sparas</translation>
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
        <translation>Bildfrekvens</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> bilder/s</translation>
    </message>
    <message>
        <source>Preview scale</source>
        <translation>Förhandsvisningens skala</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Bakgrund</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Bredd</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höjd</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Samplingsfrekvens</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanaler</translation>
    </message>
    <message>
        <source>Bits of a colour</source>
        <translation>Bitar per färg</translation>
    </message>
    <message>
        <source>Smooth scaling</source>
        <translation>Mjuk skalning</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volym</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balans</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Tyst</translation>
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
        <translation>Egenskaper</translation>
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
        <translation>Färg</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Klipp</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Återgivning</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekter</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Lägg till titel</translation>
    </message>
    <message>
        <source>Mixer, level %1</source>
        <translation>Mixer, spår %1</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Övergång</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>Placering</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Blandning</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>Rörelse</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hastighet</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ljud</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Övergångar</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametrar</translation>
    </message>
</context>
<context>
    <name>PropertyForm</name>
    <message>
        <source>Back to the preset</source>
        <translation>Återställ standardvärdet</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Ändra %1</translation>
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
    <name>ShortcutList</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Kortkommandon</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Kommando</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tangenter</translation>
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
    <name>SpeedSection</name>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hastighet</translation>
    </message>
    <message>
        <source>Back to the preset</source>
        <translation>Återställ standardvärdet</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>The frame cannot be drawn</source>
        <translation>Bildrutan kan inte ritas</translation>
    </message>
    <message>
        <source>%1 is not written: %2</source>
        <translation>%1 skrivs inte: %2</translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>Colour</source>
        <translation>Färg</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Sammansatt klipp</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Flytta</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Fäst</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Roll</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Trimma</translation>
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
        <translation>Klipp ut</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiera</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Klistra in</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Klistra in emellan</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Ta bort och stäng luckan</translation>
    </message>
    <message>
        <source>Split at play head</source>
        <translation>Dela vid spelhuvudet</translation>
    </message>
    <message>
        <source>Trim begin to play head</source>
        <translation>Trimma början till spelhuvudet</translation>
    </message>
    <message>
        <source>Trim end to play head</source>
        <translation>Trimma slutet till spelhuvudet</translation>
    </message>
    <message>
        <source>Close gap at play head</source>
        <translation>Stäng luckan vid spelhuvudet</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppera</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Dela upp grupp</translation>
    </message>
    <message>
        <source>Lock or unlock level</source>
        <translation>Lås eller lås upp spår</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Markera alla</translation>
    </message>
    <message>
        <source>Select at play head</source>
        <translation>Markera vid spelhuvudet</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Avmarkera alla</translation>
    </message>
    <message>
        <source>Frame earlier</source>
        <translation>En bildruta tidigare</translation>
    </message>
    <message>
        <source>Frame later</source>
        <translation>En bildruta senare</translation>
    </message>
    <message>
        <source>Second earlier</source>
        <translation>En sekund tidigare</translation>
    </message>
    <message>
        <source>Second later</source>
        <translation>En sekund senare</translation>
    </message>
    <message>
        <source>Level up</source>
        <translation>Ett spår upp</translation>
    </message>
    <message>
        <source>Level down</source>
        <translation>Ett spår ned</translation>
    </message>
    <message>
        <source>Previous cut</source>
        <translation>Föregående klippunkt</translation>
    </message>
    <message>
        <source>Next cut</source>
        <translation>Nästa klippunkt</translation>
    </message>
    <message>
        <source>Selection tool</source>
        <translation>Markeringsverktyg</translation>
    </message>
    <message>
        <source>Ripple tool</source>
        <translation>Ripple-verktyg</translation>
    </message>
    <message>
        <source>Roll tool</source>
        <translation>Roll-verktyg</translation>
    </message>
    <message>
        <source>Slip tool</source>
        <translation>Slip-verktyg</translation>
    </message>
    <message>
        <source>Slide tool</source>
        <translation>Slide-verktyg</translation>
    </message>
    <message>
        <source>Razor tool</source>
        <translation>Rakblad</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zooma in</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zooma ut</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Anpassa till fönstret</translation>
    </message>
    <message>
        <source>Taller levels</source>
        <translation>Gör spåren högre</translation>
    </message>
    <message>
        <source>Lower levels</source>
        <translation>Gör spåren lägre</translation>
    </message>
    <message>
        <source>Ripple trim</source>
        <translation>Ripple-trimma</translation>
    </message>
    <message>
        <source>Hide or show level</source>
        <translation>Dölj eller visa spår</translation>
    </message>
    <message>
        <source>Mute or unmute level</source>
        <translation>Tysta eller slå på spår</translation>
    </message>
    <message>
        <source>Level solo or not</source>
        <translation>Spår solo eller inte</translation>
    </message>
</context>
<context>
    <name>TimelineCommands</name>
    <message>
        <source>Split</source>
        <translation>Dela</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Klipp ut</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Klistra in</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppera</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Dela upp grupp</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Flytta</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Ta bort och stäng luckan</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Klistra in emellan</translation>
    </message>
    <message>
        <source>Close gap</source>
        <translation>Stäng luckan</translation>
    </message>
    <message>
        <source>Lock level</source>
        <translation>Lås spår</translation>
    </message>
    <message>
        <source>Unlock level</source>
        <translation>Lås upp spår</translation>
    </message>
    <message>
        <source>Rename level</source>
        <translation>Byt namn på spår</translation>
    </message>
</context>
<context>
    <name>TimelinePanel</name>
    <message>
        <source>Timeline</source>
        <translation>Tidslinje</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Spelhuvud</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Klipp</translation>
    </message>
    <message>
        <source>%1, level %2, frames %3 to %4</source>
        <translation>%1, spår %2, bildrutor %3 till %4</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Linjal</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>Split</source>
        <translation>Dela</translation>
    </message>
    <message>
        <source>Insert media</source>
        <translation>Infoga medier</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Lägg till medier</translation>
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
        <translation>Typ</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Längd</translation>
    </message>
</context>
<context>
    <name>TransitionSection</name>
    <message>
        <source>At the beginning</source>
        <translation>I början</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>I slutet</translation>
    </message>
</context>
<context>
    <name>Transport</name>
    <message>
        <source>Remove marker</source>
        <translation>Ta bort markör</translation>
    </message>
    <message>
        <source>Set marker</source>
        <translation>Sätt markör</translation>
    </message>
</context>
</TS>
