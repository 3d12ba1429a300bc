<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>NLECore</name>
    <message>
        <source>Uncompressed 4:2:2, 10 bits</source>
        <translation>Uncompressed 4:2:2, 10 bits</translation>
    </message>
    <message>
        <source>MPEG transport stream</source>
        <translation>MPEG transport stream</translation>
    </message>
    <message>
        <source>MPEG program stream</source>
        <translation>MPEG program stream</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>Animated GIF</translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation>PNG sequence</translation>
    </message>
    <message>
        <source>TIFF sequence</source>
        <translation>TIFF sequence</translation>
    </message>
    <message>
        <source>JPEG sequence</source>
        <translation>JPEG sequence</translation>
    </message>
    <message>
        <source>MPEG-4 sound</source>
        <translation>MPEG-4 sound</translation>
    </message>
    <message>
        <source>Ogg sound</source>
        <translation>Ogg sound</translation>
    </message>
    <message>
        <source>Windows Media sound</source>
        <translation>Windows Media sound</translation>
    </message>
    <message>
        <source>H.264 for archives</source>
        <translation>H.264 for archives</translation>
    </message>
    <message>
        <source>H.264 for streaming</source>
        <translation>H.264 for streaming</translation>
    </message>
    <message>
        <source>H.264 lossless</source>
        <translation>H.264 lossless</translation>
    </message>
    <message>
        <source>H.265 10 bits</source>
        <translation>H.265 10 bits</translation>
    </message>
    <message>
        <source>VP9 with alpha</source>
        <translation>VP9 with alpha</translation>
    </message>
    <message>
        <source>TIFF sequence 16 bits</source>
        <translation>TIFF sequence 16 bits</translation>
    </message>
    <message>
        <source>MPEG-2 interlaced</source>
        <translation>MPEG-2 interlaced</translation>
    </message>
    <message>
        <source>WAV 24 bits</source>
        <translation>WAV 24 bits</translation>
    </message>
    <message>
        <source>No failure</source>
        <translation>No failure</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Something that has to be given is missing</source>
        <translation>Something that has to be given is missing</translation>
    </message>
    <message>
        <source>A value that is not accepted</source>
        <translation>A value that is not accepted</translation>
    </message>
    <message>
        <source>Outside of the range</source>
        <translation>Outside of the range</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>There is nothing of this name</translation>
    </message>
    <message>
        <source>There is nothing of this number</source>
        <translation>There is nothing of this number</translation>
    </message>
    <message>
        <source>Not possible at this time</source>
        <translation>Not possible at this time</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>Not offered</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Out of memory</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelled</translation>
    </message>
    <message>
        <source>A value that cannot be changed</source>
        <translation>A value that cannot be changed</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>There is no such value</translation>
    </message>
    <message>
        <source>There is nothing to show or to write</source>
        <translation>There is nothing to show or to write</translation>
    </message>
    <message>
        <source>This object cannot be used there</source>
        <translation>This object cannot be used there</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>There is no such file</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>The file cannot be read</translation>
    </message>
    <message>
        <source>The file is damaged or of no known format</source>
        <translation>The file is damaged or of no known format</translation>
    </message>
    <message>
        <source>The file or folder cannot be written</source>
        <translation>The file or folder cannot be written</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>The disk is full</translation>
    </message>
    <message>
        <source>There is no format of this name to write</source>
        <translation>There is no format of this name to write</translation>
    </message>
    <message>
        <source>The format does not take these settings</source>
        <translation>The format does not take these settings</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Exposure</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>Black level</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Pivot</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>White balance</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Tint</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Curves</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Master</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Lookup table</source>
        <translation>Lookup table</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>Chroma key</source>
        <translation>Chroma key</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Colour</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerance</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Softness</translation>
    </message>
    <message>
        <source>Spill removal</source>
        <translation>Spill removal</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Crop</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignette</translation>
    </message>
    <message>
        <source>Centre across</source>
        <translation>Centre across</translation>
    </message>
    <message>
        <source>Centre down</source>
        <translation>Centre down</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Black and white</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>Resonance</translation>
    </message>
    <message>
        <source>Target loudness</source>
        <translation>Target loudness</translation>
    </message>
    <message>
        <source>Highest true peak</source>
        <translation>Highest true peak</translation>
    </message>
    <message>
        <source>Measured loudness</source>
        <translation>Measured loudness</translation>
    </message>
    <message>
        <source>Measured loudness range</source>
        <translation>Measured loudness range</translation>
    </message>
    <message>
        <source>Measured true peak</source>
        <translation>Measured true peak</translation>
    </message>
    <message>
        <source>Attack</source>
        <translation>Attack</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Release</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Threshold</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>Compressor</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Ratio</translation>
    </message>
    <message>
        <source>Make-up gain</source>
        <translation>Make-up gain</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Limiter</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limit</translation>
    </message>
    <message>
        <source>Noise gate</source>
        <translation>Noise gate</translation>
    </message>
    <message>
        <source>Reduction</source>
        <translation>Reduction</translation>
    </message>
    <message>
        <source>Reverb</source>
        <translation>Reverb</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>First reflection</source>
        <translation>First reflection</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mix</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Echo</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Delay</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Repeats</translation>
    </message>
    <message>
        <source>High pass</source>
        <translation>High pass</translation>
    </message>
    <message>
        <source>Low pass</source>
        <translation>Low pass</translation>
    </message>
    <message>
        <source>De-esser</source>
        <translation>De-esser</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Depth</translation>
    </message>
    <message>
        <source>Loudness normalisation</source>
        <translation>Loudness normalisation</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Blur</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Sharpen</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Mirror</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Left and right</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>Top and bottom</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Noise reduction</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Strength</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>Drop shadow</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>Offset across</translation>
    </message>
    <message>
        <source>Offset down</source>
        <translation>Offset down</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacity</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Bold</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italic</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>Letter spacing</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Line spacing</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Left to right</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Right to left</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alignment</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Middle</translation>
    </message>
    <message>
        <source>Shift to the right</source>
        <translation>Shift to the right</translation>
    </message>
    <message>
        <source>Shift downwards</source>
        <translation>Shift downwards</translation>
    </message>
    <message>
        <source>Longest line</source>
        <translation>Longest line</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margin</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Outline</translation>
    </message>
    <message>
        <source>Outline colour</source>
        <translation>Outline colour</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>Shadow colour</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>Shadow to the right</translation>
    </message>
    <message>
        <source>Shadow downwards</source>
        <translation>Shadow downwards</translation>
    </message>
    <message>
        <source>Shadow blur</source>
        <translation>Shadow blur</translation>
    </message>
    <message>
        <source>Box colour</source>
        <translation>Box colour</translation>
    </message>
    <message>
        <source>Box padding</source>
        <translation>Box padding</translation>
    </message>
    <message>
        <source>Box corners</source>
        <translation>Box corners</translation>
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
        <source>Roll</source>
        <translation>Roll</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Down</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>To the left</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>To the right</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Equal power</source>
        <translation>Equal power</translation>
    </message>
    <message>
        <source>No fade</source>
        <translation>No fade</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Reverse</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Down right</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Down left</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Up right</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Up left</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Dissolve</translation>
    </message>
    <message>
        <source>Dip to colour</source>
        <translation>Dip to colour</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Wipe</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Circle</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Diamond</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Clock</translation>
    </message>
    <message>
        <source>Barn doors</source>
        <translation>Barn doors</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>Push</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Slide</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>An effect was left out</source>
        <translation>An effect was left out</translation>
    </message>
    <message>
        <source>A transition was left out</source>
        <translation>A transition was left out</translation>
    </message>
    <message>
        <source>A clip of an unknown kind shows an empty picture</source>
        <translation>A clip of an unknown kind shows an empty picture</translation>
    </message>
    <message>
        <source>A clip that plays backwards plays forwards</source>
        <translation>A clip that plays backwards plays forwards</translation>
    </message>
    <message>
        <source>A change of speed was left out or is only close</source>
        <translation>A change of speed was left out or is only close</translation>
    </message>
    <message>
        <source>A file is missing; its clip is offline</source>
        <translation>A file is missing; its clip is offline</translation>
    </message>
    <message>
        <source>A part of the document cannot be used</source>
        <translation>A part of the document cannot be used</translation>
    </message>
    <message>
        <source>Markers are kept as text only</source>
        <translation>Markers are kept as text only</translation>
    </message>
    <message>
        <source>A volume, balance or opacity is only close</source>
        <translation>A volume, balance or opacity is only close</translation>
    </message>
    <message>
        <source>There is no such device</source>
        <translation>There is no such device</translation>
    </message>
    <message>
        <source>The track is locked</source>
        <translation>The track is locked</translation>
    </message>
    <message>
        <source>Clips would overlap</source>
        <translation>Clips would overlap</translation>
    </message>
    <message>
        <source>The clip has no more material</source>
        <translation>The clip has no more material</translation>
    </message>
    <message>
        <source>Nothing would be left of the clip</source>
        <translation>Nothing would be left of the clip</translation>
    </message>
    <message>
        <source>A transition cannot be cut</source>
        <translation>A transition cannot be cut</translation>
    </message>
</context>
</TS>
