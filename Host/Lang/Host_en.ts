<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>ButtonPage</name>
    <message>
        <source>Buttons</source>
        <translation>Buttons</translation>
    </message>
    <message>
        <source>Several states</source>
        <translation>Several states</translation>
    </message>
    <message>
        <source>Image and text</source>
        <translation>Image and text</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Tabs</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Labels</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Last signal</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>none yet</translation>
    </message>
    <message>
        <source>Pressed %1</source>
        <translation>Pressed %1</translation>
    </message>
    <message>
        <source>Clicked %1 at (%2, %3)</source>
        <translation>Clicked %1 at (%2, %3)</translation>
    </message>
    <message>
        <source>Entered %1</source>
        <translation>Entered %1</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>Left %1</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>With icon</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favourite</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Checked</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>Clicked %1, shows %2</source>
        <translation>Clicked %1, shows %2</translation>
    </message>
    <message>
        <source>Clicked %1</source>
        <translation>Clicked %1</translation>
    </message>
    <message>
        <source>Image left</source>
        <translation>Image left</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>On top</translation>
    </message>
    <message>
        <source>Image right</source>
        <translation>Image right</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Below</translation>
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
        <translation>Titles</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effects</translation>
    </message>
    <message>
        <source>Selected %1</source>
        <translation>Selected %1</translation>
    </message>
    <message>
        <source>for a language from right to left</source>
        <translation>for a language from right to left</translation>
    </message>
    <message>
        <source>for a language from left to right</source>
        <translation>for a language from left to right</translation>
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
    <message>
        <source>Write a film of all media files to this file, whose suffix chooses how it is encoded.</source>
        <translation>Write a film of all media files to this file, whose suffix chooses how it is encoded.</translation>
    </message>
    <message>
        <source>Preset that the film is encoded with.</source>
        <translation>Preset that the film is encoded with.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>List the presets for films.</source>
        <translation>List the presets for films.</translation>
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
    <name>DragPage</name>
    <message>
        <source>Opacity</source>
        <translation>Opacity</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Scale</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Last signal</translation>
    </message>
    <message>
        <source>drag begins at %1</source>
        <translation>drag begins at %1</translation>
    </message>
    <message>
        <source>drag ends at %1</source>
        <translation>drag ends at %1</translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>There is no preset &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The engine has no presets.</source>
        <translation>The engine has no presets.</translation>
    </message>
    <message>
        <source>encoded: %1 %</source>
        <translation>encoded: %1 %</translation>
    </message>
    <message>
        <source>%1 is not written; the log tells why.</source>
        <translation>%1 is not written; the log tells why.</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Ruler</source>
        <translation>Ruler</translation>
    </message>
    <message>
        <source>Drag the play head; the wheel scrolls, with Ctrl it zooms; a double click fits all.</source>
        <translation>Drag the play head; the wheel scrolls, with Ctrl it zooms; a double click fits all.</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Sliders</translation>
    </message>
    <message>
        <source>Drag, use the wheel, or the arrow keys.</source>
        <translation>Drag, use the wheel, or the arrow keys.</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Buttons and labels</translation>
    </message>
    <message>
        <source>The last line tells what they signal.</source>
        <translation>The last line tells what they signal.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Copies media from cameras, phones and cards.</source>
        <translation>Copies media from cameras, phones and cards.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Languages</translation>
    </message>
    <message>
        <source>A choice reaches every window at once.</source>
        <translation>A choice reaches every window at once.</translation>
    </message>
    <message>
        <source>Shows the library&apos;s widgets.</source>
        <translation>Shows the library&apos;s widgets.</translation>
    </message>
    <message>
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Begin with the page &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>List the names of the pages.</translation>
    </message>
    <message>
        <source>Write a picture of the page to &lt;file&gt;.</source>
        <translation>Write a picture of the page to &lt;file&gt;.</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>cannot write %1</translation>
    </message>
    <message>
        <source>no page %1</source>
        <translation>no page %1</translation>
    </message>
    <message>
        <source>Drag values</source>
        <translation>Drag values</translation>
    </message>
    <message>
        <source>Drag on a number, with Shift faster, with Ctrl slower; a click edits it.</source>
        <translation>Drag on a number, with Shift faster, with Ctrl slower; a click edits it.</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Player</translation>
    </message>
    <message>
        <source>Open a file and play it; K plays and pauses, comma and full stop step a frame.</source>
        <translation>Open a file and play it; K plays and pauses, comma and full stop step a frame.</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>CommonLib widgets</source>
        <translation>CommonLib widgets</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
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
    <message>
        <source>There is no language %1. Known are: %2</source>
        <translation>There is no language %1. Known are: %2</translation>
    </message>
</context>
<context>
    <name>ImportPage</name>
    <message>
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choose…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>Folder to import into</source>
        <translation>Folder to import into</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>Progress of the import</translation>
    </message>
    <message>
        <source>Import into</source>
        <translation>Import into</translation>
    </message>
    <message>
        <source>No device found</source>
        <translation>No device found</translation>
    </message>
    <message>
        <source>Connect a camera, a phone or a card reader, switch it on and unlock it.</source>
        <translation>Connect a camera, a phone or a card reader, switch it on and unlock it.</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>Opening %1…</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 cannot be opened</translation>
    </message>
    <message>
        <source>Unlock the device and allow access to its files, then choose it again.</source>
        <translation>Unlock the device and allow access to its files, then choose it again.</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 was removed</translation>
    </message>
    <message>
        <source>Connect it again to go on.</source>
        <translation>Connect it again to go on.</translation>
    </message>
    <message>
        <source>Chosen files: %1 (%2)</source>
        <translation>Chosen files: %1 (%2)</translation>
    </message>
    <message>
        <source>Reading the content… %1 files</source>
        <translation>Reading the content… %1 files</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>Unnamed device</translation>
    </message>
    <message>
        <source>%1 files on the device</source>
        <translation>%1 files on the device</translation>
    </message>
    <message>
        <source>The device stopped answering; this may not be all of it.</source>
        <translation>The device stopped answering; this may not be all of it.</translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation>Nothing can be written into this folder.</translation>
    </message>
    <message>
        <source>Importing… %1 of %2</source>
        <translation>Importing… %1 of %2</translation>
    </message>
    <message>
        <source>Imported files: %1 of %2.</source>
        <translation>Imported files: %1 of %2.</translation>
    </message>
    <message>
        <source>The device was removed during the import.</source>
        <translation>The device was removed during the import.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelled.</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>Not imported: %1</translation>
    </message>
    <message>
        <source>Delete from the device afterwards</source>
        <translation>Delete from the device afterwards</translation>
    </message>
    <message>
        <source>This folder has room for %1 only.</source>
        <translation>This folder has room for %1 only.</translation>
    </message>
</context>
<context>
    <name>ImportTree</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modified</translation>
    </message>
    <message>
        <source>Content of the device</source>
        <translation>Content of the device</translation>
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
        <source>%Ln clip(s) selected</source>
        <translation>
            <numerusform>%Ln clip selected</numerusform>
            <numerusform>%Ln clips selected</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>Level meter</translation>
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
    <message>
        <source>sample rates: %1</source>
        <translation>sample rates: %1</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Picture</translation>
    </message>
</context>
<context>
    <name>PlayerPage</name>
    <message>
        <source>Nothing is open.</source>
        <translation>Nothing is open.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Back one frame</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Forward one frame</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Loop</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Open…</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Mute</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Safe areas</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Fit</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Fill</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Size of the picture</translation>
    </message>
    <message>
        <source>Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms</source>
        <translation>Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>%1 cannot be played.</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>Ready: %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
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
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom in</translation>
    </message>
</context>
<context>
    <name>SliderPage</name>
    <message>
        <source>Seek bar</source>
        <translation>Seek bar</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Other chunk and groove</source>
        <translation>Other chunk and groove</translation>
    </message>
    <message>
        <source>From right to left</source>
        <translation>From right to left</translation>
    </message>
    <message>
        <source>Empty range</source>
        <translation>Empty range</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>Zoom bar</source>
        <translation>Zoom bar</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Mirrored layout</source>
        <translation>Mirrored layout</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Bar</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>Other colours</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Upright</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Ruler</translation>
    </message>
</context>
</TS>
