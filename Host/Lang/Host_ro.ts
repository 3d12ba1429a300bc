<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ro_RO" sourcelanguage="en_US">
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
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>fără imagine</translation>
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
        <source>%n clip(s) selected</source>
        <translation>
            <numerusform>%n clip selectat</numerusform>
            <numerusform>%n clipuri selectate</numerusform>
            <numerusform>%n de clipuri selectate</numerusform>
        </translation>
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
