<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>AboutBox</name>
    <message>
        <source>Product: %1</source>
        <translation>Product: %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>A small editor that shows what the library does.</source>
        <translation>A small editor that shows what the library does.</translation>
    </message>
</context>
<context>
    <name>BinCommands</name>
    <message>
        <source>Files…</source>
        <translation>Files…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>Folder…</translation>
    </message>
    <message>
        <source>From a device…</source>
        <translation>From a device…</translation>
    </message>
    <message>
        <source>Place at the play head</source>
        <translation>Place at the play head</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Set in point</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Set out point</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Clear in and out point</translation>
    </message>
    <message>
        <source>Make a proxy</source>
        <translation>Make a proxy</translation>
    </message>
    <message>
        <source>Cancel the proxy</source>
        <translation>Cancel the proxy</translation>
    </message>
    <message>
        <source>Use the proxy</source>
        <translation>Use the proxy</translation>
    </message>
    <message>
        <source>Locate…</source>
        <translation>Locate…</translation>
    </message>
    <message>
        <source>Search a folder for offline media…</source>
        <translation>Search a folder for offline media…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Remove all unused</source>
        <translation>Remove all unused</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Add media</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Add a folder</translation>
    </message>
    <message>
        <source>Import from a device</source>
        <translation>Import from a device</translation>
    </message>
    <message>
        <source>None of the files was found.</source>
        <translation>None of the files was found.</translation>
    </message>
    <message>
        <source>The files that were found cannot be read.</source>
        <translation>The files that were found cannot be read.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) found.</source>
        <translation>
            <numerusform>%n file found.</numerusform>
            <numerusform>%n files found.</numerusform>
        </translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>Where is %1?</translation>
    </message>
    <message>
        <source>%1 (%1);;All files (*)</source>
        <translation>%1 (%1);;All files (*)</translation>
    </message>
    <message>
        <source>Folder with the media</source>
        <translation>Folder with the media</translation>
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
        <translation>in %1, out %2</translation>
    </message>
    <message>
        <source>proxy: %1 %</source>
        <translation>proxy: %1 %</translation>
    </message>
    <message>
        <source>proxy: in use</source>
        <translation>proxy: in use</translation>
    </message>
    <message>
        <source>proxy: not in use</source>
        <translation>proxy: not in use</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Reading…</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Cannot be read</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) on the timeline</source>
        <translation>
            <numerusform>%n clip on the timeline</numerusform>
            <numerusform>%n clips on the timeline</numerusform>
        </translation>
    </message>
    <message>
        <source>not on the timeline</source>
        <translation>not on the timeline</translation>
    </message>
</context>
<context>
    <name>BinPanel</name>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Search the media</source>
        <translation>Search the media</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grid</translation>
    </message>
    <message>
        <source>List</source>
        <translation>List</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Add…</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Drop media here, or add files and folders.</source>
        <translation>Drop media here, or add files and folders.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nothing found</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>%n file selected</numerusform>
            <numerusform>%n files selected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n file(s)…</source>
        <translation>
            <numerusform>Reading %n file…</numerusform>
            <numerusform>Reading %n files…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read as media.</source>
        <translation>%1 cannot be read as media.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more cannot be read as media.</source>
        <translation>
            <numerusform>%1 and %n more cannot be read as media.</numerusform>
            <numerusform>%1 and %n more cannot be read as media.</numerusform>
        </translation>
    </message>
    <message>
        <source>No proxy of %1: %2</source>
        <translation>No proxy of %1: %2</translation>
    </message>
</context>
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
    <name>ClipActions</name>
    <message>
        <source>Add transition</source>
        <translation>Add transition</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Add title</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>Change speed</translation>
    </message>
    <message>
        <source>Add effect</source>
        <translation>Add effect</translation>
    </message>
    <message>
        <source>Remove effect</source>
        <translation>Remove effect</translation>
    </message>
    <message>
        <source>Move effect</source>
        <translation>Move effect</translation>
    </message>
    <message>
        <source>Switch effect</source>
        <translation>Switch effect</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Change transition</translation>
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
        <translation>Fit</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Whole picture</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>Whole frame</translation>
    </message>
    <message>
        <source>Stretched</source>
        <translation>Stretched</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>Pixel for pixel</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacity</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> fr</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Noise reduction</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
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
        <translation>Centre X</translation>
    </message>
    <message>
        <source>Centre Y</source>
        <translation>Centre Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Height</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiply</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Screen</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Overlay</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Darken</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Lighten</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Difference</translation>
    </message>
    <message>
        <source>Colour dodge</source>
        <translation>Colour dodge</translation>
    </message>
    <message>
        <source>Colour burn</source>
        <translation>Colour burn</translation>
    </message>
    <message>
        <source>Hard light</source>
        <translation>Hard light</translation>
    </message>
    <message>
        <source>Soft light</source>
        <translation>Soft light</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Exclusion</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Pitch</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Mute</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Fade in</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Fade out</translation>
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
        <translation>Colour</translation>
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
    <name>Editor</name>
    <message>
        <source>A small editor.</source>
        <translation>A small editor.</translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;.</source>
        <translation>Write a picture of the window to &lt;file&gt;.</translation>
    </message>
    <message>
        <source>A project to open, and media for the bin.</source>
        <translation>A project to open, and media for the bin.</translation>
    </message>
    <message>
        <source>The engine is missing.</source>
        <translation>The engine is missing.</translation>
    </message>
    <message>
        <source>Make a small film of the media by itself, and put pictures, the film and a report into &lt;folder&gt;.</source>
        <translation>Make a small film of the media by itself, and put pictures, the film and a report into &lt;folder&gt;.</translation>
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
        <translation>Properties</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Timeline</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Export…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>Lift from in to out point</source>
        <translation>Lift from in to out point</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>Lift</translation>
    </message>
    <message>
        <source>Extract from in to out point</source>
        <translation>Extract from in to out point</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extract</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Media</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>&amp;Timeline</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Play</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Keyboard shortcuts</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Tool bar</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Untitled</translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s) on the file, in the log</source>
        <translation>
            <numerusform>%n remark on the file, in the log</numerusform>
            <numerusform>%n remarks on the file, in the log</numerusform>
        </translation>
    </message>
    <message>
        <source>Set an in and an out point first.</source>
        <translation>Set an in and an out point first.</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Recovery</translation>
    </message>
    <message>
        <source>The editor has ended unexpectedly. Changes of %1 until %2 can be opened.</source>
        <translation>The editor has ended unexpectedly. Changes of %1 until %2 can be opened.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Films are being written. End that?</source>
        <translation>Films are being written. End that?</translation>
    </message>
    <message>
        <source>Render the preview, or stop it</source>
        <translation>Render the preview, or stop it</translation>
    </message>
    <message>
        <source>%1 cannot be written to.</source>
        <translation>%1 cannot be written to.</translation>
    </message>
    <message>
        <source>Light style</source>
        <translation>Light style</translation>
    </message>
</context>
<context>
    <name>EffectsSection</name>
    <message>
        <source>Add effect</source>
        <translation>Add effect</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>Apply earlier</source>
        <translation>Apply earlier</translation>
    </message>
    <message>
        <source>Apply later</source>
        <translation>Apply later</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
</context>
<context>
    <name>ExportCheck</name>
    <message>
        <source>This cannot be combined</source>
        <translation>This cannot be combined</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>There is no such preset.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>The processor encodes and decodes.</source>
        <translation>The processor encodes and decodes.</translation>
    </message>
    <message>
        <source>The processor encodes; the graphics hardware helps to decode.</source>
        <translation>The processor encodes; the graphics hardware helps to decode.</translation>
    </message>
    <message>
        <source>Add to the queue</source>
        <translation>Add to the queue</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Films</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Preset</translation>
    </message>
    <message>
        <source>film</source>
        <translation>film</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Choose a file</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Height</translation>
    </message>
    <message>
        <source>As the project</source>
        <translation>As the project</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Frame rate</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
    <message>
        <source>From in to out</source>
        <translation>From in to out</translation>
    </message>
    <message>
        <source>In point</source>
        <translation>In point</translation>
    </message>
    <message>
        <source>Out point</source>
        <translation>Out point</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Range</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Still picture…</source>
        <translation>Still picture…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Writes the frame under the play head</source>
        <translation>Writes the frame under the play head</translation>
    </message>
    <message>
        <source>The project cannot be copied.</source>
        <translation>The project cannot be copied.</translation>
    </message>
    <message>
        <source>Still picture</source>
        <translation>Still picture</translation>
    </message>
    <message>
        <source>/frame %1.png</source>
        <translation>/frame %1.png</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.tif *.bmp)</source>
        <translation>Pictures (*.png *.jpg *.tif *.bmp)</translation>
    </message>
    <message>
        <source>%1 is in the queue already.</source>
        <translation>%1 is in the queue already.</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 is there already. Replace it?</translation>
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
    <name>ExportQueue</name>
    <message>
        <source>%1 is not written</source>
        <translation>%1 is not written</translation>
    </message>
</context>
<context>
    <name>ExportQueueView</name>
    <message>
        <source>No films yet</source>
        <translation>No films yet</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Waiting</translation>
    </message>
    <message>
        <source>Being written</source>
        <translation>Being written</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 left</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Written</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelled</translation>
    </message>
    <message>
        <source>Take from the list</source>
        <translation>Take from the list</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Projects</source>
        <translation>Projects</translation>
    </message>
    <message>
        <source>New</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Open…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Save as…</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Open recent</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Save changes</translation>
    </message>
    <message>
        <source>The project has changes that are not saved.</source>
        <translation>The project has changes that are not saved.</translation>
    </message>
</context>
<context>
    <name>FileEditor</name>
    <message>
        <source>No file</source>
        <translation>No file</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Choose a file</translation>
    </message>
</context>
<context>
    <name>FontEditor</name>
    <message>
        <source>System font</source>
        <translation>System font</translation>
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
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Begin with the page &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>List the names of the pages.</translation>
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
    <message>
        <source>Another window has a device open. Close that window, then choose this device again.</source>
        <translation>Another window has a device open. Close that window, then choose this device again.</translation>
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
    <name>KeyFrameBar</name>
    <message>
        <source>Previous key frame</source>
        <translation>Previous key frame</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Key frame</translation>
    </message>
    <message>
        <source>Next key frame</source>
        <translation>Next key frame</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Hold</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Smooth</translation>
    </message>
    <message>
        <source>To the next key frame</source>
        <translation>To the next key frame</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>Language</translation>
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
    <name>LevelHeader</name>
    <message>
        <source>Level %1</source>
        <translation>Level %1</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Lock</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Hide</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Mute</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>Solo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
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
    <name>LogView</name>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
</context>
<context>
    <name>MediaBin</name>
    <message>
        <source>Add media</source>
        <translation>Add media</translation>
    </message>
    <message>
        <source>Remove media</source>
        <translation>Remove media</translation>
    </message>
    <message>
        <source>Relink media</source>
        <translation>Relink media</translation>
    </message>
    <message>
        <source>Use the media itself</source>
        <translation>Use the media itself</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Use a proxy</translation>
    </message>
    <message>
        <source>Set in and out point</source>
        <translation>Set in and out point</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Clear in and out point</translation>
    </message>
    <message>
        <source>Place a clip</source>
        <translation>Place a clip</translation>
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
    <name>MovementKeys</name>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Shift right</source>
        <translation>Shift right</translation>
    </message>
    <message>
        <source>Shift up</source>
        <translation>Shift up</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Width factor</translation>
    </message>
    <message>
        <source>Height factor</source>
        <translation>Height factor</translation>
    </message>
    <message>
        <source>Opacity factor</source>
        <translation>Opacity factor</translation>
    </message>
</context>
<context>
    <name>MovementSection</name>
    <message>
        <source>Movement</source>
        <translation>Movement</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Key frame</translation>
    </message>
    <message>
        <source>Change movement</source>
        <translation>Change movement</translation>
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
        <translation> fr</translation>
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
        <translation>Place picture</translation>
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
    <name>PlayerPanel</name>
    <message>
        <source>Play or pause</source>
        <translation>Play or pause</translation>
    </message>
    <message>
        <source>Play backwards</source>
        <translation>Play backwards</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Play forwards</source>
        <translation>Play forwards</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Loop</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Back one frame</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Forward one frame</translation>
    </message>
    <message>
        <source>Go to beginning</source>
        <translation>Go to beginning</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>Go to end</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Set in point</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Set out point</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Clear in and out point</translation>
    </message>
    <message>
        <source>Go to in point</source>
        <translation>Go to in point</translation>
    </message>
    <message>
        <source>Go to out point</source>
        <translation>Go to out point</translation>
    </message>
    <message>
        <source>Set or remove marker</source>
        <translation>Set or remove marker</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Mute</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Safe areas</translation>
    </message>
    <message>
        <source>Picture on full screen</source>
        <translation>Picture on full screen</translation>
    </message>
    <message>
        <source>Timecode of the play head</source>
        <translation>Timecode of the play head</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Play head</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>The project cannot be made</source>
        <translation>The project cannot be made</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 cannot be opened</translation>
    </message>
    <message>
        <source>%1 cannot be saved</source>
        <translation>%1 cannot be saved</translation>
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
        <translation>Frame rate</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>Preview scale</source>
        <translation>Preview scale</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Height</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Sample rate</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>Bits of a colour</source>
        <translation>Bits of a colour</translation>
    </message>
    <message>
        <source>Smooth scaling</source>
        <translation>Smooth scaling</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Mute</translation>
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
        <translation>Properties</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Project</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Colour</translation>
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
        <translation>Drawing</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effects</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Add title</translation>
    </message>
    <message>
        <source>Mixer, level %1</source>
        <translation>Mixer, level %1</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Transition</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>Placement</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Blending</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>Movement</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Transitions</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameters</translation>
    </message>
</context>
<context>
    <name>PropertyForm</name>
    <message>
        <source>Back to the preset</source>
        <translation>Back to the preset</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Change %1</translation>
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
    <name>ShortcutList</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Keyboard shortcuts</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Command</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Keys</translation>
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
    <name>SpeedSection</name>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Back to the preset</source>
        <translation>Back to the preset</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>The frame cannot be drawn</source>
        <translation>The frame cannot be drawn</translation>
    </message>
    <message>
        <source>%1 is not written: %2</source>
        <translation>%1 is not written: %2</translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>Colour</source>
        <translation>Colour</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Composite</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Move</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Snap</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Roll</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Trim</translation>
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
        <translation>Cut</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Paste insert</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Ripple delete</translation>
    </message>
    <message>
        <source>Split at play head</source>
        <translation>Split at play head</translation>
    </message>
    <message>
        <source>Trim begin to play head</source>
        <translation>Trim begin to play head</translation>
    </message>
    <message>
        <source>Trim end to play head</source>
        <translation>Trim end to play head</translation>
    </message>
    <message>
        <source>Close gap at play head</source>
        <translation>Close gap at play head</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Ungroup</translation>
    </message>
    <message>
        <source>Lock or unlock level</source>
        <translation>Lock or unlock level</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>Select at play head</source>
        <translation>Select at play head</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Select none</translation>
    </message>
    <message>
        <source>Frame earlier</source>
        <translation>Frame earlier</translation>
    </message>
    <message>
        <source>Frame later</source>
        <translation>Frame later</translation>
    </message>
    <message>
        <source>Second earlier</source>
        <translation>Second earlier</translation>
    </message>
    <message>
        <source>Second later</source>
        <translation>Second later</translation>
    </message>
    <message>
        <source>Level up</source>
        <translation>Level up</translation>
    </message>
    <message>
        <source>Level down</source>
        <translation>Level down</translation>
    </message>
    <message>
        <source>Previous cut</source>
        <translation>Previous cut</translation>
    </message>
    <message>
        <source>Next cut</source>
        <translation>Next cut</translation>
    </message>
    <message>
        <source>Selection tool</source>
        <translation>Selection tool</translation>
    </message>
    <message>
        <source>Ripple tool</source>
        <translation>Ripple tool</translation>
    </message>
    <message>
        <source>Roll tool</source>
        <translation>Roll tool</translation>
    </message>
    <message>
        <source>Slip tool</source>
        <translation>Slip tool</translation>
    </message>
    <message>
        <source>Slide tool</source>
        <translation>Slide tool</translation>
    </message>
    <message>
        <source>Razor tool</source>
        <translation>Razor tool</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Fit to window</translation>
    </message>
    <message>
        <source>Taller levels</source>
        <translation>Taller levels</translation>
    </message>
    <message>
        <source>Lower levels</source>
        <translation>Lower levels</translation>
    </message>
    <message>
        <source>Ripple trim</source>
        <translation>Ripple trim</translation>
    </message>
    <message>
        <source>Hide or show level</source>
        <translation>Hide or show level</translation>
    </message>
    <message>
        <source>Mute or unmute level</source>
        <translation>Mute or unmute level</translation>
    </message>
    <message>
        <source>Level solo or not</source>
        <translation>Level solo or not</translation>
    </message>
</context>
<context>
    <name>TimelineCommands</name>
    <message>
        <source>Split</source>
        <translation>Split</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Ungroup</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Move</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Ripple delete</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Paste insert</translation>
    </message>
    <message>
        <source>Close gap</source>
        <translation>Close gap</translation>
    </message>
    <message>
        <source>Lock level</source>
        <translation>Lock level</translation>
    </message>
    <message>
        <source>Unlock level</source>
        <translation>Unlock level</translation>
    </message>
    <message>
        <source>Rename level</source>
        <translation>Rename level</translation>
    </message>
</context>
<context>
    <name>TimelinePanel</name>
    <message>
        <source>Timeline</source>
        <translation>Timeline</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Play head</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clips</translation>
    </message>
    <message>
        <source>%1, level %2, frames %3 to %4</source>
        <translation>%1, level %2, frames %3 to %4</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Ruler</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>Split</source>
        <translation>Split</translation>
    </message>
    <message>
        <source>Insert media</source>
        <translation>Insert media</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Add media</translation>
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
        <translation>Kind</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Length</translation>
    </message>
</context>
<context>
    <name>TransitionSection</name>
    <message>
        <source>At the beginning</source>
        <translation>At the beginning</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>At the end</translation>
    </message>
</context>
<context>
    <name>Transport</name>
    <message>
        <source>Remove marker</source>
        <translation>Remove marker</translation>
    </message>
    <message>
        <source>Set marker</source>
        <translation>Set marker</translation>
    </message>
</context>
</TS>
