<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en_US">
<context>
    <name>NLECore</name>
    <message>
        <source>Uncompressed 4:2:2, 10 bits</source>
        <translation>Okomprimerad 4:2:2, 10 bitar</translation>
    </message>
    <message>
        <source>MPEG transport stream</source>
        <translation>MPEG-transportström</translation>
    </message>
    <message>
        <source>MPEG program stream</source>
        <translation>MPEG-programström</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>Animerad GIF</translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation>PNG-sekvens</translation>
    </message>
    <message>
        <source>TIFF sequence</source>
        <translation>TIFF-sekvens</translation>
    </message>
    <message>
        <source>JPEG sequence</source>
        <translation>JPEG-sekvens</translation>
    </message>
    <message>
        <source>MPEG-4 sound</source>
        <translation>MPEG-4-ljud</translation>
    </message>
    <message>
        <source>Ogg sound</source>
        <translation>Ogg-ljud</translation>
    </message>
    <message>
        <source>Windows Media sound</source>
        <translation>Windows Media-ljud</translation>
    </message>
    <message>
        <source>H.264 for archives</source>
        <translation>H.264 för arkiv</translation>
    </message>
    <message>
        <source>H.264 for streaming</source>
        <translation>H.264 för strömning</translation>
    </message>
    <message>
        <source>H.264 lossless</source>
        <translation>H.264 förlustfri</translation>
    </message>
    <message>
        <source>H.265 10 bits</source>
        <translation>H.265 10 bitar</translation>
    </message>
    <message>
        <source>VP9 with alpha</source>
        <translation>VP9 med alfakanal</translation>
    </message>
    <message>
        <source>TIFF sequence 16 bits</source>
        <translation>TIFF-sekvens 16 bitar</translation>
    </message>
    <message>
        <source>MPEG-2 interlaced</source>
        <translation>MPEG-2 sammanflätad</translation>
    </message>
    <message>
        <source>WAV 24 bits</source>
        <translation>WAV 24 bitar</translation>
    </message>
    <message>
        <source>No failure</source>
        <translation>Inget fel</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Misslyckades</translation>
    </message>
    <message>
        <source>Something that has to be given is missing</source>
        <translation>Något nödvändigt saknas</translation>
    </message>
    <message>
        <source>A value that is not accepted</source>
        <translation>Värdet godtas inte</translation>
    </message>
    <message>
        <source>Outside of the range</source>
        <translation>Utanför intervallet</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>Det finns inget med detta namn</translation>
    </message>
    <message>
        <source>There is nothing of this number</source>
        <translation>Det finns inget med detta nummer</translation>
    </message>
    <message>
        <source>Not possible at this time</source>
        <translation>Inte möjligt just nu</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>Erbjuds inte</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Slut på minne</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Avbrutet</translation>
    </message>
    <message>
        <source>A value that cannot be changed</source>
        <translation>Värdet kan inte ändras</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>Värdet finns inte</translation>
    </message>
    <message>
        <source>There is nothing to show or to write</source>
        <translation>Det finns inget att visa eller skriva</translation>
    </message>
    <message>
        <source>This object cannot be used there</source>
        <translation>Objektet kan inte användas där</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Filen finns inte</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Filen kan inte läsas</translation>
    </message>
    <message>
        <source>The file is damaged or of no known format</source>
        <translation>Filen är skadad eller har ett okänt format</translation>
    </message>
    <message>
        <source>The file or folder cannot be written</source>
        <translation>Det går inte att skriva till filen eller mappen</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Disken är full</translation>
    </message>
    <message>
        <source>There is no format of this name to write</source>
        <translation>Det finns inget skrivformat med detta namn</translation>
    </message>
    <message>
        <source>The format does not take these settings</source>
        <translation>Formatet tillåter inte de här inställningarna</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Exponering</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>Svartnivå</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Ljusstyrka</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Pivotpunkt</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Mättnad</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Vitbalans</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Färgtemperatur</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Färgton</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Kurvor</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Huvudkurva</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Röd</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grön</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blå</translation>
    </message>
    <message>
        <source>Lookup table</source>
        <translation>Uppslagstabell (LUT)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Mängd</translation>
    </message>
    <message>
        <source>Chroma key</source>
        <translation>Kromanyckel</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Färg</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerans</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Mjuk kant</translation>
    </message>
    <message>
        <source>Spill removal</source>
        <translation>Ta bort färgspill</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Beskär</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vänster</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Överkant</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Höger</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Underkant</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vinjett</translation>
    </message>
    <message>
        <source>Centre across</source>
        <translation>Centrum horisontellt</translation>
    </message>
    <message>
        <source>Centre down</source>
        <translation>Centrum vertikalt</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Svartvitt</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frekvens</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>Resonans</translation>
    </message>
    <message>
        <source>Target loudness</source>
        <translation>Målljudstyrka</translation>
    </message>
    <message>
        <source>Highest true peak</source>
        <translation>Högsta sanna topp</translation>
    </message>
    <message>
        <source>Measured loudness</source>
        <translation>Uppmätt ljudstyrka</translation>
    </message>
    <message>
        <source>Measured loudness range</source>
        <translation>Uppmätt ljudstyrkeomfång</translation>
    </message>
    <message>
        <source>Measured true peak</source>
        <translation>Uppmätt sann topp</translation>
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
        <translation>Tröskel</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>Kompressor</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Förhållande</translation>
    </message>
    <message>
        <source>Make-up gain</source>
        <translation>Kompensationsförstärkning</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Limiter</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Gräns</translation>
    </message>
    <message>
        <source>Noise gate</source>
        <translation>Brusgrind</translation>
    </message>
    <message>
        <source>Reduction</source>
        <translation>Dämpning</translation>
    </message>
    <message>
        <source>Reverb</source>
        <translation>Efterklang</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Efterklangstid</translation>
    </message>
    <message>
        <source>First reflection</source>
        <translation>Första reflexion</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mix</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Eko</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Fördröjning</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivå</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Upprepningar</translation>
    </message>
    <message>
        <source>High pass</source>
        <translation>Högpass</translation>
    </message>
    <message>
        <source>Low pass</source>
        <translation>Lågpass</translation>
    </message>
    <message>
        <source>De-esser</source>
        <translation>De-esser</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Djup</translation>
    </message>
    <message>
        <source>Loudness normalisation</source>
        <translation>Ljudstyrkenormalisering</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Oskärpa</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Skärpa</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Spegelvänd</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Horisontellt</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>Vertikalt</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Brusreducering</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Styrka</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>Skugga</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>Förskjutning horisontellt</translation>
    </message>
    <message>
        <source>Offset down</source>
        <translation>Förskjutning vertikalt</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacitet</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Typsnitt</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fet</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>Teckenavstånd</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Radavstånd</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Riktning</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisk</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Från vänster till höger</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Från höger till vänster</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Justering</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centrerad</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Vertikal placering</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitten</translation>
    </message>
    <message>
        <source>Shift to the right</source>
        <translation>Förskjutning åt höger</translation>
    </message>
    <message>
        <source>Shift downwards</source>
        <translation>Förskjutning nedåt</translation>
    </message>
    <message>
        <source>Longest line</source>
        <translation>Största radlängd</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Marginal</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Outline colour</source>
        <translation>Konturfärg</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>Skuggfärg</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>Skugga åt höger</translation>
    </message>
    <message>
        <source>Shadow downwards</source>
        <translation>Skugga nedåt</translation>
    </message>
    <message>
        <source>Shadow blur</source>
        <translation>Skuggans oskärpa</translation>
    </message>
    <message>
        <source>Box colour</source>
        <translation>Rutans färg</translation>
    </message>
    <message>
        <source>Box padding</source>
        <translation>Rutans innermarginal</translation>
    </message>
    <message>
        <source>Box corners</source>
        <translation>Rutans hörn</translation>
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
        <source>Roll</source>
        <translation>Rullande text</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ingen</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Uppåt</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nedåt</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>Åt vänster</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>Åt höger</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ljudövergång</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linjär</translation>
    </message>
    <message>
        <source>Equal power</source>
        <translation>Konstant effekt</translation>
    </message>
    <message>
        <source>No fade</source>
        <translation>Ingen övergång</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Omvänd</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Nedåt åt höger</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Nedåt åt vänster</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Uppåt åt höger</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Uppåt åt vänster</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horisontellt</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikalt</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Övertoning</translation>
    </message>
    <message>
        <source>Dip to colour</source>
        <translation>Toning via färg</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Svep</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cirkel</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Romb</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Klocka</translation>
    </message>
    <message>
        <source>Barn doors</source>
        <translation>Slagdörrar</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>Tryck</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Glidning</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>An effect was left out</source>
        <translation>En effekt utelämnades</translation>
    </message>
    <message>
        <source>A transition was left out</source>
        <translation>En övergång utelämnades</translation>
    </message>
    <message>
        <source>A clip of an unknown kind shows an empty picture</source>
        <translation>Ett klipp av okänt slag visar en tom bild</translation>
    </message>
    <message>
        <source>A clip that plays backwards plays forwards</source>
        <translation>Ett klipp som spelas baklänges spelas framlänges</translation>
    </message>
    <message>
        <source>A change of speed was left out or is only close</source>
        <translation>En hastighetsändring utelämnades eller är bara ungefärlig</translation>
    </message>
    <message>
        <source>A file is missing; its clip is offline</source>
        <translation>En fil saknas; dess klipp är offline</translation>
    </message>
    <message>
        <source>A part of the document cannot be used</source>
        <translation>En del av dokumentet kan inte användas</translation>
    </message>
    <message>
        <source>Markers are kept as text only</source>
        <translation>Markörer behålls bara som text</translation>
    </message>
    <message>
        <source>A volume, balance or opacity is only close</source>
        <translation>En volym, balans eller opacitet är bara ungefärlig</translation>
    </message>
    <message>
        <source>There is no such device</source>
        <translation>Enheten finns inte</translation>
    </message>
    <message>
        <source>The track is locked</source>
        <translation>Spåret är låst</translation>
    </message>
    <message>
        <source>Clips would overlap</source>
        <translation>Klippen skulle överlappa varandra</translation>
    </message>
    <message>
        <source>The clip has no more material</source>
        <translation>Klippet har inte mer material</translation>
    </message>
    <message>
        <source>Nothing would be left of the clip</source>
        <translation>Inget skulle bli kvar av klippet</translation>
    </message>
    <message>
        <source>A transition cannot be cut</source>
        <translation>En övergång kan inte klippas</translation>
    </message>
</context>
</TS>
