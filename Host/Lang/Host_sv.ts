<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en_US">
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
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>ingen bild</translation>
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
        <source>%n clip(s) selected</source>
        <translation>
            <numerusform>%n klipp valt</numerusform>
            <numerusform>%n klipp valda</numerusform>
        </translation>
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
