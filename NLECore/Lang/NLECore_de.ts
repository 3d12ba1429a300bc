<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>NLECore</name>
    <message>
        <source>Uncompressed 4:2:2, 10 bits</source>
        <translation>Unkomprimiert 4:2:2, 10 Bit</translation>
    </message>
    <message>
        <source>MPEG transport stream</source>
        <translation>MPEG-Transportstrom</translation>
    </message>
    <message>
        <source>MPEG program stream</source>
        <translation>MPEG-Programmstrom</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>Animiertes GIF</translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation>PNG-Sequenz</translation>
    </message>
    <message>
        <source>TIFF sequence</source>
        <translation>TIFF-Sequenz</translation>
    </message>
    <message>
        <source>JPEG sequence</source>
        <translation>JPEG-Sequenz</translation>
    </message>
    <message>
        <source>MPEG-4 sound</source>
        <translation>MPEG-4-Audio</translation>
    </message>
    <message>
        <source>Ogg sound</source>
        <translation>Ogg-Audio</translation>
    </message>
    <message>
        <source>Windows Media sound</source>
        <translation>Windows-Media-Audio</translation>
    </message>
    <message>
        <source>H.264 for archives</source>
        <translation>H.264 für Archive</translation>
    </message>
    <message>
        <source>H.264 for streaming</source>
        <translation>H.264 für Streaming</translation>
    </message>
    <message>
        <source>H.264 lossless</source>
        <translation>H.264 verlustfrei</translation>
    </message>
    <message>
        <source>H.265 10 bits</source>
        <translation>H.265 10 Bit</translation>
    </message>
    <message>
        <source>VP9 with alpha</source>
        <translation>VP9 mit Alphakanal</translation>
    </message>
    <message>
        <source>TIFF sequence 16 bits</source>
        <translation>TIFF-Sequenz 16 Bit</translation>
    </message>
    <message>
        <source>MPEG-2 interlaced</source>
        <translation>MPEG-2 mit Halbbildern</translation>
    </message>
    <message>
        <source>WAV 24 bits</source>
        <translation>WAV 24 Bit</translation>
    </message>
    <message>
        <source>No failure</source>
        <translation>Kein Fehler</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Something that has to be given is missing</source>
        <translation>Eine notwendige Angabe fehlt</translation>
    </message>
    <message>
        <source>A value that is not accepted</source>
        <translation>Dieser Wert wird nicht angenommen</translation>
    </message>
    <message>
        <source>Outside of the range</source>
        <translation>Außerhalb des Wertebereichs</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>Es gibt nichts mit diesem Namen</translation>
    </message>
    <message>
        <source>There is nothing of this number</source>
        <translation>Es gibt nichts mit dieser Nummer</translation>
    </message>
    <message>
        <source>Not possible at this time</source>
        <translation>Zurzeit nicht möglich</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>Wird nicht angeboten</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Nicht genug Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>A value that cannot be changed</source>
        <translation>Dieser Wert kann nicht geändert werden</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>Diesen Wert gibt es nicht</translation>
    </message>
    <message>
        <source>There is nothing to show or to write</source>
        <translation>Es gibt nichts zu zeigen oder zu schreiben</translation>
    </message>
    <message>
        <source>This object cannot be used there</source>
        <translation>Dieses Objekt kann dort nicht verwendet werden</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Die Datei gibt es nicht</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Die Datei kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>The file is damaged or of no known format</source>
        <translation>Die Datei ist beschädigt oder hat kein bekanntes Format</translation>
    </message>
    <message>
        <source>The file or folder cannot be written</source>
        <translation>In die Datei oder den Ordner kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Der Datenträger ist voll</translation>
    </message>
    <message>
        <source>There is no format of this name to write</source>
        <translation>Es gibt kein Format dieses Namens, das geschrieben werden kann</translation>
    </message>
    <message>
        <source>The format does not take these settings</source>
        <translation>Das Format erlaubt diese Einstellungen nicht</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Belichtung</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>Schwarzwert</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Drehpunkt</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Weißabgleich</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Farbtemperatur</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Gradationskurven</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Master</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Lookup table</source>
        <translation>Lookup-Tabelle (LUT)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Chroma key</source>
        <translation>Chroma-Key</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Toleranz</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Weiche Kante</translation>
    </message>
    <message>
        <source>Spill removal</source>
        <translation>Spill-Unterdrückung</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignette</translation>
    </message>
    <message>
        <source>Centre across</source>
        <translation>Mitte horizontal</translation>
    </message>
    <message>
        <source>Centre down</source>
        <translation>Mitte vertikal</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>Resonanz</translation>
    </message>
    <message>
        <source>Target loudness</source>
        <translation>Ziellautheit</translation>
    </message>
    <message>
        <source>Highest true peak</source>
        <translation>Höchster True Peak</translation>
    </message>
    <message>
        <source>Measured loudness</source>
        <translation>Gemessene Lautheit</translation>
    </message>
    <message>
        <source>Measured loudness range</source>
        <translation>Gemessener Lautheitsbereich</translation>
    </message>
    <message>
        <source>Measured true peak</source>
        <translation>Gemessener True Peak</translation>
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
        <translation>Schwellenwert</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>Kompressor</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Verhältnis</translation>
    </message>
    <message>
        <source>Make-up gain</source>
        <translation>Aufholverstärkung</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Limiter</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Obergrenze</translation>
    </message>
    <message>
        <source>Noise gate</source>
        <translation>Noise Gate</translation>
    </message>
    <message>
        <source>Reduction</source>
        <translation>Absenkung</translation>
    </message>
    <message>
        <source>Reverb</source>
        <translation>Nachhall</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Nachhallzeit</translation>
    </message>
    <message>
        <source>First reflection</source>
        <translation>Erste Reflexion</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mischverhältnis</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Echo</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Wiederholungen</translation>
    </message>
    <message>
        <source>High pass</source>
        <translation>Hochpass</translation>
    </message>
    <message>
        <source>Low pass</source>
        <translation>Tiefpass</translation>
    </message>
    <message>
        <source>De-esser</source>
        <translation>De-Esser</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Tiefe</translation>
    </message>
    <message>
        <source>Loudness normalisation</source>
        <translation>Lautheitsnormalisierung</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Weichzeichnen</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Schärfen</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Rauschunterdrückung</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>Schlagschatten</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>Versatz horizontal</translation>
    </message>
    <message>
        <source>Offset down</source>
        <translation>Versatz vertikal</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>Zeichenabstand</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Zeilenabstand</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Von links nach rechts</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Von rechts nach links</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Zentriert</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Vertikale Position</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Shift to the right</source>
        <translation>Verschiebung nach rechts</translation>
    </message>
    <message>
        <source>Shift downwards</source>
        <translation>Verschiebung nach unten</translation>
    </message>
    <message>
        <source>Longest line</source>
        <translation>Größte Zeilenlänge</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Randabstand</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Outline colour</source>
        <translation>Konturfarbe</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>Schattenfarbe</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>Schatten nach rechts</translation>
    </message>
    <message>
        <source>Shadow downwards</source>
        <translation>Schatten nach unten</translation>
    </message>
    <message>
        <source>Shadow blur</source>
        <translation>Schatten weichzeichnen</translation>
    </message>
    <message>
        <source>Box colour</source>
        <translation>Farbe des Hintergrundfelds</translation>
    </message>
    <message>
        <source>Box padding</source>
        <translation>Innenabstand des Hintergrundfelds</translation>
    </message>
    <message>
        <source>Box corners</source>
        <translation>Eckenradius des Hintergrundfelds</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Einblenden</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Lauftext</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>Nach links</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>Nach rechts</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Tonüberblendung</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Equal power</source>
        <translation>Konstante Leistung</translation>
    </message>
    <message>
        <source>No fade</source>
        <translation>Keine Blende</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Umgekehrt</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Nach rechts unten</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Nach links unten</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Nach rechts oben</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Nach links oben</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Überblendung</translation>
    </message>
    <message>
        <source>Dip to colour</source>
        <translation>Farbblende</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Wischblende</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreisblende</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Rautenblende</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhrblende</translation>
    </message>
    <message>
        <source>Barn doors</source>
        <translation>Flügeltüren</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>Schieben</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Gleiten</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>An effect was left out</source>
        <translation>Ein Effekt wurde ausgelassen</translation>
    </message>
    <message>
        <source>A transition was left out</source>
        <translation>Ein Übergang wurde ausgelassen</translation>
    </message>
    <message>
        <source>A clip of an unknown kind shows an empty picture</source>
        <translation>Ein Clip unbekannter Art zeigt ein leeres Bild</translation>
    </message>
    <message>
        <source>A clip that plays backwards plays forwards</source>
        <translation>Ein rückwärts laufender Clip läuft hier vorwärts</translation>
    </message>
    <message>
        <source>A change of speed was left out or is only close</source>
        <translation>Eine Geschwindigkeitsänderung fehlt oder ist nur angenähert</translation>
    </message>
    <message>
        <source>A file is missing; its clip is offline</source>
        <translation>Eine Datei fehlt; ihr Clip ist offline</translation>
    </message>
    <message>
        <source>A part of the document cannot be used</source>
        <translation>Ein Teil des Dokuments ist nicht verwendbar</translation>
    </message>
    <message>
        <source>Markers are kept as text only</source>
        <translation>Marken bleiben nur als Text erhalten</translation>
    </message>
    <message>
        <source>A volume, balance or opacity is only close</source>
        <translation>Lautstärke, Balance oder Deckkraft ist nur angenähert</translation>
    </message>
    <message>
        <source>There is no such device</source>
        <translation>Dieses Gerät gibt es nicht</translation>
    </message>
    <message>
        <source>The track is locked</source>
        <translation>Die Spur ist gesperrt</translation>
    </message>
    <message>
        <source>Clips would overlap</source>
        <translation>Clips würden sich überlappen</translation>
    </message>
    <message>
        <source>The clip has no more material</source>
        <translation>Der Clip hat kein weiteres Material</translation>
    </message>
    <message>
        <source>Nothing would be left of the clip</source>
        <translation>Vom Clip bliebe nichts übrig</translation>
    </message>
    <message>
        <source>A transition cannot be cut</source>
        <translation>Ein Übergang kann nicht geschnitten werden</translation>
    </message>
</context>
</TS>
