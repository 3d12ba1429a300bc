<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ro_RO" sourcelanguage="en_US">
<context>
    <name>AboutBox</name>
    <message>
        <source>Product: %1</source>
        <translation>Produs: %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Despre</translation>
    </message>
    <message>
        <source>A small editor that shows what the library does.</source>
        <translation>Un mic editor care arată ce face biblioteca.</translation>
    </message>
</context>
<context>
    <name>BinCommands</name>
    <message>
        <source>Files…</source>
        <translation>Fișiere…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>Dosar…</translation>
    </message>
    <message>
        <source>From a device…</source>
        <translation>De pe un dispozitiv…</translation>
    </message>
    <message>
        <source>Place at the play head</source>
        <translation>Plasează la capul de redare</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Stabilește punctul de intrare</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Stabilește punctul de ieșire</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Șterge punctele de intrare și ieșire</translation>
    </message>
    <message>
        <source>Make a proxy</source>
        <translation>Creează un proxy</translation>
    </message>
    <message>
        <source>Cancel the proxy</source>
        <translation>Anulează proxy-ul</translation>
    </message>
    <message>
        <source>Use the proxy</source>
        <translation>Folosește proxy-ul</translation>
    </message>
    <message>
        <source>Locate…</source>
        <translation>Localizează…</translation>
    </message>
    <message>
        <source>Search a folder for offline media…</source>
        <translation>Caută într-un dosar media offline…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Elimină</translation>
    </message>
    <message>
        <source>Remove all unused</source>
        <translation>Elimină tot ce nu este folosit</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Adaugă media</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Adaugă un dosar</translation>
    </message>
    <message>
        <source>Import from a device</source>
        <translation>Importă de pe un dispozitiv</translation>
    </message>
    <message>
        <source>None of the files was found.</source>
        <translation>Niciunul dintre fișiere nu a fost găsit.</translation>
    </message>
    <message>
        <source>The files that were found cannot be read.</source>
        <translation>Fișierele găsite nu pot fi citite.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) found.</source>
        <translation>
            <numerusform>%n fișier găsit.</numerusform>
            <numerusform>%n fișiere găsite.</numerusform>
            <numerusform>%n de fișiere găsite.</numerusform>
        </translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>Unde este %1?</translation>
    </message>
    <message>
        <source>%1 (%1);;All files (*)</source>
        <translation>%1 (%1);;Toate fișierele (*)</translation>
    </message>
    <message>
        <source>Folder with the media</source>
        <translation>Dosarul cu media</translation>
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
        <translation>intrare %1, ieșire %2</translation>
    </message>
    <message>
        <source>proxy: %1 %</source>
        <translation>proxy: %1%</translation>
    </message>
    <message>
        <source>proxy: in use</source>
        <translation>proxy: în uz</translation>
    </message>
    <message>
        <source>proxy: not in use</source>
        <translation>proxy: nefolosit</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Se citește…</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Nu poate fi citit</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) on the timeline</source>
        <translation>
            <numerusform>%n clip pe linia de timp</numerusform>
            <numerusform>%n clipuri pe linia de timp</numerusform>
            <numerusform>%n de clipuri pe linia de timp</numerusform>
        </translation>
    </message>
    <message>
        <source>not on the timeline</source>
        <translation>nu este pe linia de timp</translation>
    </message>
</context>
<context>
    <name>BinPanel</name>
    <message>
        <source>Search</source>
        <translation>Caută</translation>
    </message>
    <message>
        <source>Search the media</source>
        <translation>Caută în media</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grilă</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Listă</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Adaugă…</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalii</translation>
    </message>
    <message>
        <source>Drop media here, or add files and folders.</source>
        <translation>Plasați aici media sau adăugați fișiere și dosare.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nimic găsit</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>%n fișier selectat</numerusform>
            <numerusform>%n fișiere selectate</numerusform>
            <numerusform>%n de fișiere selectate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n file(s)…</source>
        <translation>
            <numerusform>Se citește %n fișier…</numerusform>
            <numerusform>Se citesc %n fișiere…</numerusform>
            <numerusform>Se citesc %n de fișiere…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read as media.</source>
        <translation>%1 nu poate fi citit ca media.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more cannot be read as media.</source>
        <translation>
            <numerusform>%1 și încă %n nu pot fi citite ca media.</numerusform>
            <numerusform>%1 și încă %n nu pot fi citite ca media.</numerusform>
            <numerusform>%1 și încă %n nu pot fi citite ca media.</numerusform>
        </translation>
    </message>
    <message>
        <source>No proxy of %1: %2</source>
        <translation>Fără proxy pentru %1: %2</translation>
    </message>
</context>
<context>
    <name>ButtonPage</name>
    <message>
        <source>Buttons</source>
        <translation>Butoane</translation>
    </message>
    <message>
        <source>Several states</source>
        <translation>Mai multe stări</translation>
    </message>
    <message>
        <source>Image and text</source>
        <translation>Imagine și text</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etichete</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Ultimul semnal</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>încă niciunul</translation>
    </message>
    <message>
        <source>Pressed %1</source>
        <translation>Apăsat: %1</translation>
    </message>
    <message>
        <source>Clicked %1 at (%2, %3)</source>
        <translation>Clic pe %1 la (%2, %3)</translation>
    </message>
    <message>
        <source>Entered %1</source>
        <translation>Intrare în %1</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>Ieșire din %1</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Cu pictogramă</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Bifat</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Dezactivat</translation>
    </message>
    <message>
        <source>Clicked %1, shows %2</source>
        <translation>Clic pe %1, arată %2</translation>
    </message>
    <message>
        <source>Clicked %1</source>
        <translation>Clic pe %1</translation>
    </message>
    <message>
        <source>Image left</source>
        <translation>La stânga</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>Deasupra</translation>
    </message>
    <message>
        <source>Image right</source>
        <translation>La dreapta</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Dedesubt</translation>
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
        <translation>Titluri</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efecte</translation>
    </message>
    <message>
        <source>Selected %1</source>
        <translation>Selectat: %1</translation>
    </message>
    <message>
        <source>for a language from right to left</source>
        <translation>pentru o limbă de la dreapta la stânga</translation>
    </message>
    <message>
        <source>for a language from left to right</source>
        <translation>pentru o limbă de la stânga la dreapta</translation>
    </message>
</context>
<context>
    <name>ClipActions</name>
    <message>
        <source>Add transition</source>
        <translation>Adaugă tranziție</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Adaugă titlu</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>Modifică viteza</translation>
    </message>
    <message>
        <source>Add effect</source>
        <translation>Adaugă efect</translation>
    </message>
    <message>
        <source>Remove effect</source>
        <translation>Elimină efectul</translation>
    </message>
    <message>
        <source>Move effect</source>
        <translation>Mută efectul</translation>
    </message>
    <message>
        <source>Switch effect</source>
        <translation>Activează sau dezactivează efectul</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Modifică tranziția</translation>
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
        <translation>Încadrare</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Imagine întreagă</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>Umple cadrul</translation>
    </message>
    <message>
        <source>Stretched</source>
        <translation>Întinsă</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>Pixel cu pixel</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacitate</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> cadre</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Reducerea zgomotului</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volum</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotație</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Centre X</source>
        <translation>Centru X</translation>
    </message>
    <message>
        <source>Centre Y</source>
        <translation>Centru Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Lățime</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Înălțime</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplicare</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Ecran</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Suprapunere</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Întunecare</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Luminare</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adunare</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferență</translation>
    </message>
    <message>
        <source>Colour dodge</source>
        <translation>Supraexpunere de culoare</translation>
    </message>
    <message>
        <source>Colour burn</source>
        <translation>Subexpunere de culoare</translation>
    </message>
    <message>
        <source>Hard light</source>
        <translation>Lumină puternică</translation>
    </message>
    <message>
        <source>Soft light</source>
        <translation>Lumină difuză</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Excludere</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balans</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Înălțimea sunetului</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Fără sunet</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Intrare treptată</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Ieșire treptată</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source> st</source>
        <translation> st</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Culoare</translation>
    </message>
</context>
<context>
    <name>ClipStrip</name>
    <message>
        <source>Opening</source>
        <translation>Deschidere</translation>
    </message>
    <message>
        <source>Harbour at dawn</source>
        <translation>Portul în zori</translation>
    </message>
    <message>
        <source>Interview, part 1</source>
        <translation>Interviu, partea 1</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>Piața</translation>
    </message>
    <message>
        <source>Interview, part 2</source>
        <translation>Interviu, partea 2</translation>
    </message>
    <message>
        <source>Night drive</source>
        <translation>Drum de noapte</translation>
    </message>
</context>
<context>
    <name>CommonLibDemo</name>
    <message>
        <source>The log %1 cannot be opened; going on without it.</source>
        <translation>Jurnalul %1 nu poate fi deschis; se continuă fără el.</translation>
    </message>
    <message>
        <source>The engine is missing or does not start: %1</source>
        <translation>Motorul lipsește sau nu pornește: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Dosarul %1 nu poate fi creat.</translation>
    </message>
    <message>
        <source>Tells what media files are and writes a contact sheet of each.</source>
        <translation>Descrie fișierele media și scrie câte o planșă de contact pentru fiecare.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Afișează acest ajutor.</translation>
    </message>
    <message>
        <source>Folder for results.</source>
        <translation>Dosarul pentru rezultate.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>DOSAR</translation>
    </message>
    <message>
        <source>Log file, by default %1 among the results.</source>
        <translation>Fișierul jurnal, implicit %1 printre rezultate.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FIȘIER</translation>
    </message>
    <message>
        <source>Print the log as well.</source>
        <translation>Afișează și jurnalul.</translation>
    </message>
    <message>
        <source>Media files.</source>
        <translation>Fișiere media.</translation>
    </message>
    <message>
        <source>MEDIA…</source>
        <translation>MEDIA…</translation>
    </message>
    <message>
        <source>No media file named.</source>
        <translation>Nu a fost indicat niciun fișier media.</translation>
    </message>
    <message>
        <source>Write a film of all media files to this file, whose suffix chooses how it is encoded.</source>
        <translation>Scrie un film din toate fișierele media în acest fișier, a cărui extensie alege codarea.</translation>
    </message>
    <message>
        <source>Preset that the film is encoded with.</source>
        <translation>Presetarea cu care este codat filmul.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NUME</translation>
    </message>
    <message>
        <source>List the presets for films.</source>
        <translation>Listează presetările pentru filme.</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>fără imagine</translation>
    </message>
</context>
<context>
    <name>DragPage</name>
    <message>
        <source>Opacity</source>
        <translation>Opacitate</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotație</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Scară</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Dezactivat</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Ultimul semnal</translation>
    </message>
    <message>
        <source>drag begins at %1</source>
        <translation>tragerea începe la %1</translation>
    </message>
    <message>
        <source>drag ends at %1</source>
        <translation>tragerea se termină la %1</translation>
    </message>
</context>
<context>
    <name>Editor</name>
    <message>
        <source>A small editor.</source>
        <translation>Un mic editor.</translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;.</source>
        <translation>Scrie o imagine a ferestrei în &lt;file&gt;.</translation>
    </message>
    <message>
        <source>A project to open, and media for the bin.</source>
        <translation>Un proiect de deschis și media pentru colecție.</translation>
    </message>
    <message>
        <source>The engine is missing.</source>
        <translation>Motorul lipsește.</translation>
    </message>
    <message>
        <source>Make a small film of the media by itself, and put pictures, the film and a report into &lt;folder&gt;.</source>
        <translation>Realizează singur un mic film din fișierele media și pune imagini, filmul și un raport în &lt;dosar&gt;.</translation>
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
        <translation>Proprietăți</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Linie de timp</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Jurnal</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fișier</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportă…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ieșire</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Anulează</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refă</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editare</translation>
    </message>
    <message>
        <source>Lift from in to out point</source>
        <translation>Ridică de la punctul de intrare la cel de ieșire</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>Ridică</translation>
    </message>
    <message>
        <source>Extract from in to out point</source>
        <translation>Extrage de la punctul de intrare la cel de ieșire</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extrage</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Media</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>&amp;Linie de timp</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Redare</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Vizualizare</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Ajutor</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Comenzi rapide de la tastatură</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Despre</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Bară de instrumente</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Fără titlu</translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s) on the file, in the log</source>
        <translation>
            <numerusform>%n observație despre fișier, în jurnal</numerusform>
            <numerusform>%n observații despre fișier, în jurnal</numerusform>
            <numerusform>%n de observații despre fișier, în jurnal</numerusform>
        </translation>
    </message>
    <message>
        <source>Set an in and an out point first.</source>
        <translation>Stabiliți mai întâi un punct de intrare și unul de ieșire.</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Recuperare</translation>
    </message>
    <message>
        <source>The editor has ended unexpectedly. Changes of %1 until %2 can be opened.</source>
        <translation>Editorul s-a închis neașteptat. Modificările din %1 până la %2 pot fi deschise.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Films are being written. End that?</source>
        <translation>Se scriu filme. Întrerupeți scrierea?</translation>
    </message>
    <message>
        <source>Render the preview, or stop it</source>
        <translation>Randează previzualizarea sau oprește</translation>
    </message>
    <message>
        <source>%1 cannot be written to.</source>
        <translation>Nu se poate scrie în %1.</translation>
    </message>
    <message>
        <source>Light style</source>
        <translation>Stil deschis</translation>
    </message>
</context>
<context>
    <name>EffectsSection</name>
    <message>
        <source>Add effect</source>
        <translation>Adaugă efect</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagine</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sunet</translation>
    </message>
    <message>
        <source>Apply earlier</source>
        <translation>Aplică mai devreme</translation>
    </message>
    <message>
        <source>Apply later</source>
        <translation>Aplică mai târziu</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Elimină</translation>
    </message>
</context>
<context>
    <name>ExportCheck</name>
    <message>
        <source>This cannot be combined</source>
        <translation>Această combinație nu este posibilă</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>Această presetare nu există.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>The processor encodes and decodes.</source>
        <translation>Procesorul codează și decodează.</translation>
    </message>
    <message>
        <source>The processor encodes; the graphics hardware helps to decode.</source>
        <translation>Procesorul codează; hardware-ul grafic ajută la decodare.</translation>
    </message>
    <message>
        <source>Add to the queue</source>
        <translation>Adaugă la coadă</translation>
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
        <translation>Presetare</translation>
    </message>
    <message>
        <source>film</source>
        <translation>film</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Alege un fișier</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fișier</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Lățime</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Înălțime</translation>
    </message>
    <message>
        <source>As the project</source>
        <translation>Ca proiectul</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 cadre/s</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensiune</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Frecvența cadrelor</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sunet</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tot</translation>
    </message>
    <message>
        <source>From in to out</source>
        <translation>De la intrare la ieșire</translation>
    </message>
    <message>
        <source>In point</source>
        <translation>Punct de intrare</translation>
    </message>
    <message>
        <source>Out point</source>
        <translation>Punct de ieșire</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Interval</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Still picture…</source>
        <translation>Imagine statică…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Închide</translation>
    </message>
    <message>
        <source>Writes the frame under the play head</source>
        <translation>Scrie cadrul de sub capul de redare</translation>
    </message>
    <message>
        <source>The project cannot be copied.</source>
        <translation>Proiectul nu poate fi copiat.</translation>
    </message>
    <message>
        <source>Still picture</source>
        <translation>Imagine statică</translation>
    </message>
    <message>
        <source>/frame %1.png</source>
        <translation>/cadru %1.png</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.tif *.bmp)</source>
        <translation>Imagini (*.png *.jpg *.tif *.bmp)</translation>
    </message>
    <message>
        <source>%1 is in the queue already.</source>
        <translation>%1 este deja în coadă.</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 există deja. Se înlocuiește?</translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>Nu există presetarea „%1”.</translation>
    </message>
    <message>
        <source>The engine has no presets.</source>
        <translation>Motorul nu are presetări.</translation>
    </message>
    <message>
        <source>encoded: %1 %</source>
        <translation>codat: %1 %</translation>
    </message>
    <message>
        <source>%1 is not written; the log tells why.</source>
        <translation>%1 nu este scris; jurnalul spune de ce.</translation>
    </message>
</context>
<context>
    <name>ExportQueue</name>
    <message>
        <source>%1 is not written</source>
        <translation>%1 nu a fost scris</translation>
    </message>
</context>
<context>
    <name>ExportQueueView</name>
    <message>
        <source>No films yet</source>
        <translation>Încă nu există filme</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>În așteptare</translation>
    </message>
    <message>
        <source>Being written</source>
        <translation>Se scrie</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Timp rămas: %1</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Scris</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Anulat</translation>
    </message>
    <message>
        <source>Take from the list</source>
        <translation>Scoate din listă</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anulează</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Projects</source>
        <translation>Proiecte</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nou</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Deschide…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvează</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Salvează ca…</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Deschide recente</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Fără titlu</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Salvează modificările</translation>
    </message>
    <message>
        <source>The project has changes that are not saved.</source>
        <translation>Proiectul are modificări nesalvate.</translation>
    </message>
</context>
<context>
    <name>FileEditor</name>
    <message>
        <source>No file</source>
        <translation>Niciun fișier</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Alege un fișier</translation>
    </message>
</context>
<context>
    <name>FontEditor</name>
    <message>
        <source>System font</source>
        <translation>Fontul sistemului</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Ruler</source>
        <translation>Riglă</translation>
    </message>
    <message>
        <source>Drag the play head; the wheel scrolls, with Ctrl it zooms; a double click fits all.</source>
        <translation>Trageți capul de redare; rotița derulează, cu Ctrl mărește; un dublu clic afișează totul.</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Glisoare</translation>
    </message>
    <message>
        <source>Drag, use the wheel, or the arrow keys.</source>
        <translation>Trageți, folosiți rotița sau tastele săgeți.</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Butoane și etichete</translation>
    </message>
    <message>
        <source>The last line tells what they signal.</source>
        <translation>Ultimul rând arată ce semnalează.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importă</translation>
    </message>
    <message>
        <source>Copies media from cameras, phones and cards.</source>
        <translation>Copiază media de pe camere, telefoane și carduri.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Limbi</translation>
    </message>
    <message>
        <source>A choice reaches every window at once.</source>
        <translation>Alegerea ajunge imediat la toate ferestrele.</translation>
    </message>
    <message>
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Începe cu pagina &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>Listează numele paginilor.</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>nu se poate scrie %1</translation>
    </message>
    <message>
        <source>no page %1</source>
        <translation>nu există pagina %1</translation>
    </message>
    <message>
        <source>Drag values</source>
        <translation>Tragerea valorilor</translation>
    </message>
    <message>
        <source>Drag on a number, with Shift faster, with Ctrl slower; a click edits it.</source>
        <translation>Trageți de un număr, cu Shift mai repede, cu Ctrl mai încet; un clic îl editează.</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Player</translation>
    </message>
    <message>
        <source>Open a file and play it; K plays and pauses, comma and full stop step a frame.</source>
        <translation>Deschideți un fișier și redați-l; K redă și pune pe pauză, virgula și punctul avansează un cadru.</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>CommonLib widgets</source>
        <translation>Elemente CommonLib</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagini</translation>
    </message>
</context>
<context>
    <name>HostLanguage</name>
    <message>
        <source>Language of the texts from now on, such as German.</source>
        <translation>Limba textelor de acum înainte, de exemplu German.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NUME</translation>
    </message>
    <message>
        <source>There is no language %1. Known are: %2</source>
        <translation>Nu există limba %1. Limbi disponibile: %2</translation>
    </message>
</context>
<context>
    <name>ImportPage</name>
    <message>
        <source>Refresh</source>
        <translation>Reîmprospătează</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Alege…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anulează</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importă</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispozitiv</translation>
    </message>
    <message>
        <source>Folder to import into</source>
        <translation>Dosarul în care se importă</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>Progresul importului</translation>
    </message>
    <message>
        <source>Import into</source>
        <translation>Importă în</translation>
    </message>
    <message>
        <source>No device found</source>
        <translation>Niciun dispozitiv găsit</translation>
    </message>
    <message>
        <source>Connect a camera, a phone or a card reader, switch it on and unlock it.</source>
        <translation>Conectați o cameră, un telefon sau un cititor de carduri, porniți-l și deblocați-l.</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>Se deschide %1…</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 nu poate fi deschis</translation>
    </message>
    <message>
        <source>Unlock the device and allow access to its files, then choose it again.</source>
        <translation>Deblocați dispozitivul, permiteți accesul la fișiere, apoi alegeți-l din nou.</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 a fost îndepărtat</translation>
    </message>
    <message>
        <source>Connect it again to go on.</source>
        <translation>Reconectați-l pentru a continua.</translation>
    </message>
    <message>
        <source>Chosen files: %1 (%2)</source>
        <translation>Fișiere alese: %1 (%2)</translation>
    </message>
    <message>
        <source>Reading the content… %1 files</source>
        <translation>Se citește conținutul… Fișiere: %1</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>Dispozitiv fără nume</translation>
    </message>
    <message>
        <source>%1 files on the device</source>
        <translation>Fișiere pe dispozitiv: %1</translation>
    </message>
    <message>
        <source>The device stopped answering; this may not be all of it.</source>
        <translation>Dispozitivul nu mai răspunde; este posibil să nu fie tot.</translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation>Nu se poate scrie în acest dosar.</translation>
    </message>
    <message>
        <source>Importing… %1 of %2</source>
        <translation>Se importă… %1 din %2</translation>
    </message>
    <message>
        <source>Imported files: %1 of %2.</source>
        <translation>Fișiere importate: %1 din %2.</translation>
    </message>
    <message>
        <source>The device was removed during the import.</source>
        <translation>Dispozitivul a fost îndepărtat în timpul importului.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Anulat.</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>Neimportat: %1</translation>
    </message>
    <message>
        <source>Delete from the device afterwards</source>
        <translation>Șterge apoi de pe dispozitiv</translation>
    </message>
    <message>
        <source>This folder has room for %1 only.</source>
        <translation>În acest dosar este loc doar pentru %1.</translation>
    </message>
    <message>
        <source>Another window has a device open. Close that window, then choose this device again.</source>
        <translation>O altă fereastră are un dispozitiv deschis. Închideți acea fereastră, apoi alegeți din nou acest dispozitiv.</translation>
    </message>
</context>
<context>
    <name>ImportTree</name>
    <message>
        <source>Name</source>
        <translation>Nume</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensiune</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modificat</translation>
    </message>
    <message>
        <source>Content of the device</source>
        <translation>Conținutul dispozitivului</translation>
    </message>
</context>
<context>
    <name>KeyFrameBar</name>
    <message>
        <source>Previous key frame</source>
        <translation>Cadrul-cheie anterior</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Cadru-cheie</translation>
    </message>
    <message>
        <source>Next key frame</source>
        <translation>Cadrul-cheie următor</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Menținere</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Liniară</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Lină</translation>
    </message>
    <message>
        <source>To the next key frame</source>
        <translation>Până la cadrul-cheie următor</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>Limbă</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Import media…</source>
        <translation>Importă media…</translation>
    </message>
    <message>
        <source>Split at the play head</source>
        <translation>Împarte la capul de redare</translation>
    </message>
    <message>
        <source>Add a transition</source>
        <translation>Adaugă o tranziție</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Anulează</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Salvează proiectul</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportă…</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Limbă:</translation>
    </message>
    <message>
        <source>Font of the language:</source>
        <translation>Fontul limbii:</translation>
    </message>
    <message>
        <source>Drawn in:</source>
        <translation>Desenat cu:</translation>
    </message>
    <message>
        <source>Reading direction:</source>
        <translation>Direcția de citire:</translation>
    </message>
    <message>
        <source>Clips:</source>
        <translation>Clipuri:</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Exemplu</translation>
    </message>
    <message>
        <source>right to left</source>
        <translation>de la dreapta la stânga</translation>
    </message>
    <message>
        <source>left to right</source>
        <translation>de la stânga la dreapta</translation>
    </message>
    <message numerus="yes">
        <source>%Ln clip(s) selected</source>
        <translation>
            <numerusform>%Ln clip selectat</numerusform>
            <numerusform>%Ln clipuri selectate</numerusform>
            <numerusform>%Ln de clipuri selectate</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LevelHeader</name>
    <message>
        <source>Level %1</source>
        <translation>Pista %1</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Blochează</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ascunde</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Fără sunet</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>Solo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nume</translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>Indicator de nivel</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Log</source>
        <translation>Jurnal</translation>
    </message>
</context>
<context>
    <name>MediaBin</name>
    <message>
        <source>Add media</source>
        <translation>Adaugă media</translation>
    </message>
    <message>
        <source>Remove media</source>
        <translation>Elimină media</translation>
    </message>
    <message>
        <source>Relink media</source>
        <translation>Reconectează media</translation>
    </message>
    <message>
        <source>Use the media itself</source>
        <translation>Folosește media originală</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Folosește un proxy</translation>
    </message>
    <message>
        <source>Set in and out point</source>
        <translation>Stabilește punctele de intrare și ieșire</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Șterge punctele de intrare și ieșire</translation>
    </message>
    <message>
        <source>Place a clip</source>
        <translation>Plasează un clip</translation>
    </message>
</context>
<context>
    <name>MediaJob</name>
    <message>
        <source>does not exist</source>
        <translation>nu există</translation>
    </message>
    <message>
        <source>is a folder, not a media file</source>
        <translation>este un dosar, nu un fișier media</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>nu este un fișier obișnuit</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>este gol</translation>
    </message>
    <message>
        <source>may not be read by this user</source>
        <translation>nu poate fi citit de acest utilizator</translation>
    </message>
    <message>
        <source>cannot be read as media</source>
        <translation>nu poate fi citit ca media</translation>
    </message>
    <message>
        <source>holds neither picture nor sound</source>
        <translation>nu conține nici imagine, nici sunet</translation>
    </message>
    <message>
        <source>has no frames</source>
        <translation>nu are cadre</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>cadrul %1</translation>
    </message>
    <message>
        <source>picture %1 of %2: frame %3, %4</source>
        <translation>imaginea %1 din %2: cadrul %3, %4</translation>
    </message>
    <message>
        <source>%1, not decoded</source>
        <translation>%1, nedecodată</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation>niciuna dintre imaginile sale nu poate fi decodată</translation>
    </message>
    <message>
        <source>%1 of %2 pictures cannot be decoded; the file may be damaged</source>
        <translation>%1 din %2 imagini nu pot fi decodate; fișierul poate fi deteriorat</translation>
    </message>
    <message>
        <source>wave form: part %1 of %2</source>
        <translation>forma de undă: partea %1 din %2</translation>
    </message>
    <message>
        <source>its sound cannot be decoded</source>
        <translation>sunetul său nu poate fi decodat</translation>
    </message>
    <message>
        <source>the result cannot be written to %1</source>
        <translation>rezultatul nu poate fi scris în %1</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>scris: %1</translation>
    </message>
</context>
<context>
    <name>MediaReport</name>
    <message>
        <source>unknown codec</source>
        <translation>codec necunoscut</translation>
    </message>
    <message>
        <source>video</source>
        <translation>video</translation>
    </message>
    <message>
        <source>rotated by %1°</source>
        <translation>rotit cu %1°</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 cadre/s</translation>
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
            <numerusform>%n canal</numerusform>
            <numerusform>%n canale</numerusform>
            <numerusform>%n de canale</numerusform>
        </translation>
    </message>
    <message>
        <source>other</source>
        <translation>altele</translation>
    </message>
    <message>
        <source>Still picture, %1</source>
        <translation>Imagine statică, %1</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sunet</translation>
    </message>
    <message>
        <source>No picture and no sound</source>
        <translation>Fără imagine și fără sunet</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n cadru</numerusform>
            <numerusform>%n cadre</numerusform>
            <numerusform>%n de cadre</numerusform>
        </translation>
    </message>
    <message>
        <source>stream %1: %2</source>
        <translation>fluxul %1: %2</translation>
    </message>
    <message>
        <source>sample rates: %1</source>
        <translation>rate de eșantionare: %1</translation>
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
        <translation>Rotire</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Shift right</source>
        <translation>Deplasare la dreapta</translation>
    </message>
    <message>
        <source>Shift up</source>
        <translation>Deplasare în sus</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Factor de lățime</translation>
    </message>
    <message>
        <source>Height factor</source>
        <translation>Factor de înălțime</translation>
    </message>
    <message>
        <source>Opacity factor</source>
        <translation>Factor de opacitate</translation>
    </message>
</context>
<context>
    <name>MovementSection</name>
    <message>
        <source>Movement</source>
        <translation>Mișcare</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Cadru-cheie</translation>
    </message>
    <message>
        <source>Change movement</source>
        <translation>Modifică mișcarea</translation>
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
        <translation> cadre</translation>
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
        <translation>Așază imaginea</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Imagine</translation>
    </message>
</context>
<context>
    <name>PlayerPage</name>
    <message>
        <source>Nothing is open.</source>
        <translation>Nimic nu este deschis.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Poziție</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Înapoi cu un cadru</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Redă</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Înainte cu un cadru</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Viteză</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Buclă</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Deschide…</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Fără sunet</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volum</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Zone sigure</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Încadrare</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Umplere</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Dimensiunea imaginii</translation>
    </message>
    <message>
        <source>Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms</source>
        <translation>Ultima secundă: %1 afișate, %2 omise, %3 întârziate, %4 din cache, abatere %5 ms</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>%1 nu poate fi redat.</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>Gata: %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauză</translation>
    </message>
</context>
<context>
    <name>PlayerPanel</name>
    <message>
        <source>Play or pause</source>
        <translation>Redă sau pune pe pauză</translation>
    </message>
    <message>
        <source>Play backwards</source>
        <translation>Redă invers</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Oprește</translation>
    </message>
    <message>
        <source>Play forwards</source>
        <translation>Redă înainte</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Buclă</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Înapoi cu un cadru</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Înainte cu un cadru</translation>
    </message>
    <message>
        <source>Go to beginning</source>
        <translation>Mergi la început</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>Mergi la sfârșit</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Stabilește punctul de intrare</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Stabilește punctul de ieșire</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Șterge punctele de intrare și ieșire</translation>
    </message>
    <message>
        <source>Go to in point</source>
        <translation>Mergi la punctul de intrare</translation>
    </message>
    <message>
        <source>Go to out point</source>
        <translation>Mergi la punctul de ieșire</translation>
    </message>
    <message>
        <source>Set or remove marker</source>
        <translation>Pune sau elimină marcajul</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Fără sunet</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Zone sigure</translation>
    </message>
    <message>
        <source>Picture on full screen</source>
        <translation>Imagine pe tot ecranul</translation>
    </message>
    <message>
        <source>Timecode of the play head</source>
        <translation>Codul de timp al capului de redare</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Cap de redare</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volum</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>The project cannot be made</source>
        <translation>Proiectul nu poate fi creat</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 nu poate fi deschis</translation>
    </message>
    <message>
        <source>%1 cannot be saved</source>
        <translation>%1 nu poate fi salvat</translation>
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
        <translation>Frecvența cadrelor</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> cadre/s</translation>
    </message>
    <message>
        <source>Preview scale</source>
        <translation>Scara previzualizării</translation>
    </message>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fundal</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Lățime</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Înălțime</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Rată de eșantionare</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canale</translation>
    </message>
    <message>
        <source>Bits of a colour</source>
        <translation>Biți pe culoare</translation>
    </message>
    <message>
        <source>Smooth scaling</source>
        <translation>Scalare lină</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volum</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balans</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Fără sunet</translation>
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
        <translation>Proprietăți</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Proiect</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titlu</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Culoare</translation>
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
        <translation>Desenare</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efecte</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Adaugă titlu</translation>
    </message>
    <message>
        <source>Mixer, level %1</source>
        <translation>Mixer, pista %1</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Tranziție</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>Poziție și dimensiune</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Amestec</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>Mișcare</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Viteză</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sunet</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Tranziții</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametri</translation>
    </message>
</context>
<context>
    <name>PropertyForm</name>
    <message>
        <source>Back to the preset</source>
        <translation>Revino la valoarea implicită</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Modifică „%1”</translation>
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
        <translation>Micșorează</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Mărește</translation>
    </message>
</context>
<context>
    <name>ShortcutList</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Comenzi rapide de la tastatură</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comandă</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Taste</translation>
    </message>
</context>
<context>
    <name>SliderPage</name>
    <message>
        <source>Seek bar</source>
        <translation>Bară de redare</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Other chunk and groove</source>
        <translation>Altă umplere și alt șanț</translation>
    </message>
    <message>
        <source>From right to left</source>
        <translation>De la dreapta la stânga</translation>
    </message>
    <message>
        <source>Empty range</source>
        <translation>Interval gol</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Dezactivat</translation>
    </message>
    <message>
        <source>Zoom bar</source>
        <translation>Bară de zoom</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Mirrored layout</source>
        <translation>Dispunere în oglindă</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Bară</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>Alte culori</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Vertical</translation>
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
        <translation>Viteză</translation>
    </message>
    <message>
        <source>Back to the preset</source>
        <translation>Revino la valoarea implicită</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>The frame cannot be drawn</source>
        <translation>Cadrul nu poate fi desenat</translation>
    </message>
    <message>
        <source>%1 is not written: %2</source>
        <translation>%1 nu a fost scris: %2</translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>Colour</source>
        <translation>Culoare</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Clip compus</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mută</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Aliniere magnetică</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Roll</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Ajustează capătul</translation>
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
        <translation>Taie</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiază</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Lipește</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Lipește prin inserare</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Șterge</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Șterge cu ripple</translation>
    </message>
    <message>
        <source>Split at play head</source>
        <translation>Împarte la capul de redare</translation>
    </message>
    <message>
        <source>Trim begin to play head</source>
        <translation>Ajustează începutul la capul de redare</translation>
    </message>
    <message>
        <source>Trim end to play head</source>
        <translation>Ajustează sfârșitul la capul de redare</translation>
    </message>
    <message>
        <source>Close gap at play head</source>
        <translation>Închide golul la capul de redare</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupează</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Degrupează</translation>
    </message>
    <message>
        <source>Lock or unlock level</source>
        <translation>Blochează sau deblochează pista</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Selectează tot</translation>
    </message>
    <message>
        <source>Select at play head</source>
        <translation>Selectează la capul de redare</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Deselectează tot</translation>
    </message>
    <message>
        <source>Frame earlier</source>
        <translation>Cu un cadru mai devreme</translation>
    </message>
    <message>
        <source>Frame later</source>
        <translation>Cu un cadru mai târziu</translation>
    </message>
    <message>
        <source>Second earlier</source>
        <translation>Cu o secundă mai devreme</translation>
    </message>
    <message>
        <source>Second later</source>
        <translation>Cu o secundă mai târziu</translation>
    </message>
    <message>
        <source>Level up</source>
        <translation>Cu o pistă mai sus</translation>
    </message>
    <message>
        <source>Level down</source>
        <translation>Cu o pistă mai jos</translation>
    </message>
    <message>
        <source>Previous cut</source>
        <translation>Tăietura anterioară</translation>
    </message>
    <message>
        <source>Next cut</source>
        <translation>Tăietura următoare</translation>
    </message>
    <message>
        <source>Selection tool</source>
        <translation>Instrument de selecție</translation>
    </message>
    <message>
        <source>Ripple tool</source>
        <translation>Instrument Ripple</translation>
    </message>
    <message>
        <source>Roll tool</source>
        <translation>Instrument Roll</translation>
    </message>
    <message>
        <source>Slip tool</source>
        <translation>Instrument Slip</translation>
    </message>
    <message>
        <source>Slide tool</source>
        <translation>Instrument Slide</translation>
    </message>
    <message>
        <source>Razor tool</source>
        <translation>Instrument lamă</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Mărește</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Micșorează</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Încadrează în fereastră</translation>
    </message>
    <message>
        <source>Taller levels</source>
        <translation>Mărește înălțimea pistelor</translation>
    </message>
    <message>
        <source>Lower levels</source>
        <translation>Micșorează înălțimea pistelor</translation>
    </message>
    <message>
        <source>Ripple trim</source>
        <translation>Ajustează capătul cu ripple</translation>
    </message>
    <message>
        <source>Hide or show level</source>
        <translation>Ascunde sau arată pista</translation>
    </message>
    <message>
        <source>Mute or unmute level</source>
        <translation>Oprește sau pornește sunetul pistei</translation>
    </message>
    <message>
        <source>Level solo or not</source>
        <translation>Pistă solo sau nu</translation>
    </message>
</context>
<context>
    <name>TimelineCommands</name>
    <message>
        <source>Split</source>
        <translation>Împarte</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Șterge</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Taie</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Lipește</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupează</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Degrupează</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mută</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Șterge cu ripple</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Lipește prin inserare</translation>
    </message>
    <message>
        <source>Close gap</source>
        <translation>Închide golul</translation>
    </message>
    <message>
        <source>Lock level</source>
        <translation>Blochează pista</translation>
    </message>
    <message>
        <source>Unlock level</source>
        <translation>Deblochează pista</translation>
    </message>
    <message>
        <source>Rename level</source>
        <translation>Redenumește pista</translation>
    </message>
</context>
<context>
    <name>TimelinePanel</name>
    <message>
        <source>Timeline</source>
        <translation>Linie de timp</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Cap de redare</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clipuri</translation>
    </message>
    <message>
        <source>%1, level %2, frames %3 to %4</source>
        <translation>%1, pista %2, cadrele %3–%4</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Riglă</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>Split</source>
        <translation>Împarte</translation>
    </message>
    <message>
        <source>Insert media</source>
        <translation>Inserează media</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Adaugă media</translation>
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
        <translation>Tip</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durată</translation>
    </message>
</context>
<context>
    <name>TransitionSection</name>
    <message>
        <source>At the beginning</source>
        <translation>La început</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>La sfârșit</translation>
    </message>
</context>
<context>
    <name>Transport</name>
    <message>
        <source>Remove marker</source>
        <translation>Elimină marcajul</translation>
    </message>
    <message>
        <source>Set marker</source>
        <translation>Pune un marcaj</translation>
    </message>
</context>
</TS>
