<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>ClipStrip</name>
    <message>
        <source>Opening</source>
        <translation>Opening</translation>
    </message>
    <message>
        <source>Harbour at dawn</source>
        <translation>Harbour at dawn</translation>
    </message>
    <message>
        <source>Interview, part 1</source>
        <translation>Interview, part 1</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>Market</translation>
    </message>
    <message>
        <source>Interview, part 2</source>
        <translation>Interview, part 2</translation>
    </message>
    <message>
        <source>Night drive</source>
        <translation>Night drive</translation>
    </message>
</context>
<context>
    <name>CommonLibDemo</name>
    <message>
        <source>The log %1 cannot be opened; going on without it.</source>
        <translation>The log %1 cannot be opened; going on without it.</translation>
    </message>
    <message>
        <source>The engine is missing or does not start: %1</source>
        <translation>The engine is missing or does not start: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>The folder %1 cannot be made.</translation>
    </message>
    <message>
        <source>Tells what media files are and writes a contact sheet of each.</source>
        <translation>Tells what media files are and writes a contact sheet of each.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Print this help.</translation>
    </message>
    <message>
        <source>Folder for results.</source>
        <translation>Folder for results.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>FOLDER</translation>
    </message>
    <message>
        <source>Log file, by default %1 among the results.</source>
        <translation>Log file, by default %1 among the results.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>Print the log as well.</source>
        <translation>Print the log as well.</translation>
    </message>
    <message>
        <source>Media files.</source>
        <translation>Media files.</translation>
    </message>
    <message>
        <source>MEDIA…</source>
        <translation>MEDIA…</translation>
    </message>
    <message>
        <source>No media file named.</source>
        <translation>No media file named.</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>no picture</translation>
    </message>
</context>
<context>
    <name>HostLanguage</name>
    <message>
        <source>Language of the texts from now on, such as German.</source>
        <translation>Language of the texts from now on, such as German.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Import media…</source>
        <translation>Import media…</translation>
    </message>
    <message>
        <source>Split at the play head</source>
        <translation>Split at the play head</translation>
    </message>
    <message>
        <source>Add a transition</source>
        <translation>Add a transition</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Save the project</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Export…</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Language:</translation>
    </message>
    <message>
        <source>Font of the language:</source>
        <translation>Font of the language:</translation>
    </message>
    <message>
        <source>Drawn in:</source>
        <translation>Drawn in:</translation>
    </message>
    <message>
        <source>Reading direction:</source>
        <translation>Reading direction:</translation>
    </message>
    <message>
        <source>Clips:</source>
        <translation>Clips:</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Sample</translation>
    </message>
    <message>
        <source>right to left</source>
        <translation>right to left</translation>
    </message>
    <message>
        <source>left to right</source>
        <translation>left to right</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) selected</source>
        <translation>
            <numerusform>%n clip selected</numerusform>
            <numerusform>%n clips selected</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaJob</name>
    <message>
        <source>does not exist</source>
        <translation>does not exist</translation>
    </message>
    <message>
        <source>is a folder, not a media file</source>
        <translation>is a folder, not a media file</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>is not a regular file</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>is empty</translation>
    </message>
    <message>
        <source>may not be read by this user</source>
        <translation>may not be read by this user</translation>
    </message>
    <message>
        <source>cannot be read as media</source>
        <translation>cannot be read as media</translation>
    </message>
    <message>
        <source>holds neither picture nor sound</source>
        <translation>holds neither picture nor sound</translation>
    </message>
    <message>
        <source>has no frames</source>
        <translation>has no frames</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>frame %1</translation>
    </message>
    <message>
        <source>picture %1 of %2: frame %3, %4</source>
        <translation>picture %1 of %2: frame %3, %4</translation>
    </message>
    <message>
        <source>%1, not decoded</source>
        <translation>%1, not decoded</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation>none of its pictures can be decoded</translation>
    </message>
    <message>
        <source>%1 of %2 pictures cannot be decoded; the file may be damaged</source>
        <translation>%1 of %2 pictures cannot be decoded; the file may be damaged</translation>
    </message>
    <message>
        <source>wave form: part %1 of %2</source>
        <translation>wave form: part %1 of %2</translation>
    </message>
    <message>
        <source>its sound cannot be decoded</source>
        <translation>its sound cannot be decoded</translation>
    </message>
    <message>
        <source>the result cannot be written to %1</source>
        <translation>the result cannot be written to %1</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>written: %1</translation>
    </message>
</context>
<context>
    <name>MediaReport</name>
    <message>
        <source>unknown codec</source>
        <translation>unknown codec</translation>
    </message>
    <message>
        <source>video</source>
        <translation>video</translation>
    </message>
    <message>
        <source>rotated by %1°</source>
        <translation>rotated by %1°</translation>
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
            <numerusform>%n channel</numerusform>
            <numerusform>%n channels</numerusform>
        </translation>
    </message>
    <message>
        <source>other</source>
        <translation>other</translation>
    </message>
    <message>
        <source>Still picture, %1</source>
        <translation>Still picture, %1</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>No picture and no sound</source>
        <translation>No picture and no sound</translation>
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
