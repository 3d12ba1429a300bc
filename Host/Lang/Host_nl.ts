<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_US">
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
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>geen beeld</translation>
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
        <source>%n clip(s) selected</source>
        <translation>
            <numerusform>%n clip geselecteerd</numerusform>
            <numerusform>%n clips geselecteerd</numerusform>
        </translation>
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
