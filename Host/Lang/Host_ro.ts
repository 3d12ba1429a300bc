<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ro_RO" sourcelanguage="en_US">
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
        <source>Shows the library&apos;s widgets.</source>
        <translation>Arată elementele de interfață ale bibliotecii.</translation>
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
        <source>Write a picture of the page to &lt;file&gt;.</source>
        <translation>Scrie o imagine a paginii în &lt;file&gt;.</translation>
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
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>Indicator de nivel</translation>
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
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Riglă</translation>
    </message>
</context>
</TS>
