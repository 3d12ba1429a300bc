<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_US">
<context>
    <name>NLECore</name>
    <message>
        <source>Uncompressed 4:2:2, 10 bits</source>
        <translation>Ongecomprimeerd 4:2:2, 10 bits</translation>
    </message>
    <message>
        <source>MPEG transport stream</source>
        <translation>MPEG-transportstream</translation>
    </message>
    <message>
        <source>MPEG program stream</source>
        <translation>MPEG-programmastream</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>Geanimeerde GIF</translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation>PNG-reeks</translation>
    </message>
    <message>
        <source>TIFF sequence</source>
        <translation>TIFF-reeks</translation>
    </message>
    <message>
        <source>JPEG sequence</source>
        <translation>JPEG-reeks</translation>
    </message>
    <message>
        <source>MPEG-4 sound</source>
        <translation>MPEG-4-audio</translation>
    </message>
    <message>
        <source>Ogg sound</source>
        <translation>Ogg-audio</translation>
    </message>
    <message>
        <source>Windows Media sound</source>
        <translation>Windows Media-audio</translation>
    </message>
    <message>
        <source>H.264 for archives</source>
        <translation>H.264 voor archief</translation>
    </message>
    <message>
        <source>H.264 for streaming</source>
        <translation>H.264 voor streaming</translation>
    </message>
    <message>
        <source>H.264 lossless</source>
        <translation>H.264 zonder verlies</translation>
    </message>
    <message>
        <source>H.265 10 bits</source>
        <translation>H.265 10 bits</translation>
    </message>
    <message>
        <source>VP9 with alpha</source>
        <translation>VP9 met alfakanaal</translation>
    </message>
    <message>
        <source>TIFF sequence 16 bits</source>
        <translation>TIFF-reeks 16 bits</translation>
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
        <translation>Geen fout</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>Something that has to be given is missing</source>
        <translation>Er ontbreekt een noodzakelijk gegeven</translation>
    </message>
    <message>
        <source>A value that is not accepted</source>
        <translation>Deze waarde wordt niet geaccepteerd</translation>
    </message>
    <message>
        <source>Outside of the range</source>
        <translation>Buiten het bereik</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>Er is niets met deze naam</translation>
    </message>
    <message>
        <source>There is nothing of this number</source>
        <translation>Er is niets met dit nummer</translation>
    </message>
    <message>
        <source>Not possible at this time</source>
        <translation>Op dit moment niet mogelijk</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>Niet beschikbaar</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Onvoldoende geheugen</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Geannuleerd</translation>
    </message>
    <message>
        <source>A value that cannot be changed</source>
        <translation>Deze waarde kan niet worden gewijzigd</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>Deze waarde bestaat niet</translation>
    </message>
    <message>
        <source>There is nothing to show or to write</source>
        <translation>Er is niets om weer te geven of te schrijven</translation>
    </message>
    <message>
        <source>This object cannot be used there</source>
        <translation>Dit object kan daar niet worden gebruikt</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Het bestand bestaat niet</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Het bestand kan niet worden gelezen</translation>
    </message>
    <message>
        <source>The file is damaged or of no known format</source>
        <translation>Het bestand is beschadigd of heeft een onbekende indeling</translation>
    </message>
    <message>
        <source>The file or folder cannot be written</source>
        <translation>Er kan niet in het bestand of de map worden geschreven</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>De schijf is vol</translation>
    </message>
    <message>
        <source>There is no format of this name to write</source>
        <translation>Er is geen schrijfindeling met deze naam</translation>
    </message>
    <message>
        <source>The format does not take these settings</source>
        <translation>De indeling accepteert deze instellingen niet</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Belichting</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>Zwartniveau</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helderheid</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Draaipunt</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Verzadiging</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Witbalans</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Kleurtemperatuur</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Tint</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Curven</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Hoofdcurve</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rood</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Groen</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blauw</translation>
    </message>
    <message>
        <source>Lookup table</source>
        <translation>Opzoektabel (LUT)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Hoeveelheid</translation>
    </message>
    <message>
        <source>Chroma key</source>
        <translation>Chromakey</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Kleur</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerantie</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Zachte rand</translation>
    </message>
    <message>
        <source>Spill removal</source>
        <translation>Spillonderdrukking</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Bijsnijden</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Boven</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Onder</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignet</translation>
    </message>
    <message>
        <source>Centre across</source>
        <translation>Midden horizontaal</translation>
    </message>
    <message>
        <source>Centre down</source>
        <translation>Midden verticaal</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Zwart-wit</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequentie</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>Resonantie</translation>
    </message>
    <message>
        <source>Target loudness</source>
        <translation>Doelluidheid</translation>
    </message>
    <message>
        <source>Highest true peak</source>
        <translation>Hoogste werkelijke piek</translation>
    </message>
    <message>
        <source>Measured loudness</source>
        <translation>Gemeten luidheid</translation>
    </message>
    <message>
        <source>Measured loudness range</source>
        <translation>Gemeten luidheidsbereik</translation>
    </message>
    <message>
        <source>Measured true peak</source>
        <translation>Gemeten werkelijke piek</translation>
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
        <translation>Drempel</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>Compressor</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Verhouding</translation>
    </message>
    <message>
        <source>Make-up gain</source>
        <translation>Compensatieversterking</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Limiter</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limiet</translation>
    </message>
    <message>
        <source>Noise gate</source>
        <translation>Noise gate</translation>
    </message>
    <message>
        <source>Reduction</source>
        <translation>Reductie</translation>
    </message>
    <message>
        <source>Reverb</source>
        <translation>Galm</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Galmtijd</translation>
    </message>
    <message>
        <source>First reflection</source>
        <translation>Eerste reflectie</translation>
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
        <translation>Vertraging</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Herhalingen</translation>
    </message>
    <message>
        <source>High pass</source>
        <translation>Hoogdoorlaat</translation>
    </message>
    <message>
        <source>Low pass</source>
        <translation>Laagdoorlaat</translation>
    </message>
    <message>
        <source>De-esser</source>
        <translation>De-esser</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Diepte</translation>
    </message>
    <message>
        <source>Loudness normalisation</source>
        <translation>Luidheidsnormalisatie</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Vervagen</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Verscherpen</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Spiegelen</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Horizontaal</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>Verticaal</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Ruisonderdrukking</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Sterkte</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>Slagschaduw</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>Verschuiving horizontaal</translation>
    </message>
    <message>
        <source>Offset down</source>
        <translation>Verschuiving verticaal</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Dekking</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Lettertype</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Vet</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Cursief</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>Letterafstand</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Regelafstand</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richting</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Van links naar rechts</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Van rechts naar links</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Uitlijning</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Gecentreerd</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Verticale positie</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Midden</translation>
    </message>
    <message>
        <source>Shift to the right</source>
        <translation>Verschuiving naar rechts</translation>
    </message>
    <message>
        <source>Shift downwards</source>
        <translation>Verschuiving omlaag</translation>
    </message>
    <message>
        <source>Longest line</source>
        <translation>Maximale regellengte</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Omtrek</translation>
    </message>
    <message>
        <source>Outline colour</source>
        <translation>Omtrekkleur</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>Schaduwkleur</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>Schaduw naar rechts</translation>
    </message>
    <message>
        <source>Shadow downwards</source>
        <translation>Schaduw omlaag</translation>
    </message>
    <message>
        <source>Shadow blur</source>
        <translation>Schaduwvervaging</translation>
    </message>
    <message>
        <source>Box colour</source>
        <translation>Kleur van het kader</translation>
    </message>
    <message>
        <source>Box padding</source>
        <translation>Opvulling van het kader</translation>
    </message>
    <message>
        <source>Box corners</source>
        <translation>Hoeken van het kader</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Infaden</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Uitfaden</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rollende tekst</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Geen</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Omhoog</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Omlaag</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>Naar links</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>Naar rechts</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Audio-overgang</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Lineair</translation>
    </message>
    <message>
        <source>Equal power</source>
        <translation>Constant vermogen</translation>
    </message>
    <message>
        <source>No fade</source>
        <translation>Geen overgang</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Omkeren</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Naar rechtsonder</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Naar linksonder</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Naar rechtsboven</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Naar linksboven</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontaal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Verticaal</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Overvloeien</translation>
    </message>
    <message>
        <source>Dip to colour</source>
        <translation>Via kleur overvloeien</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Veeg</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cirkel</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Ruit</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Klok</translation>
    </message>
    <message>
        <source>Barn doors</source>
        <translation>Klapdeuren</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>Duwen</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Schuiven</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>An effect was left out</source>
        <translation>Een effect is weggelaten</translation>
    </message>
    <message>
        <source>A transition was left out</source>
        <translation>Een overgang is weggelaten</translation>
    </message>
    <message>
        <source>A clip of an unknown kind shows an empty picture</source>
        <translation>Een clip van een onbekend type toont een leeg beeld</translation>
    </message>
    <message>
        <source>A clip that plays backwards plays forwards</source>
        <translation>Een clip die achteruit speelt, speelt hier vooruit</translation>
    </message>
    <message>
        <source>A change of speed was left out or is only close</source>
        <translation>Een snelheidswijziging is weggelaten of benaderd</translation>
    </message>
    <message>
        <source>A file is missing; its clip is offline</source>
        <translation>Een bestand ontbreekt; de clip is offline</translation>
    </message>
    <message>
        <source>A part of the document cannot be used</source>
        <translation>Een deel van het document is onbruikbaar</translation>
    </message>
    <message>
        <source>Markers are kept as text only</source>
        <translation>Markeringen blijven alleen als tekst bewaard</translation>
    </message>
    <message>
        <source>A volume, balance or opacity is only close</source>
        <translation>Een volume, balans of dekking is benaderd</translation>
    </message>
    <message>
        <source>There is no such device</source>
        <translation>Het apparaat bestaat niet</translation>
    </message>
    <message>
        <source>The track is locked</source>
        <translation>Het spoor is vergrendeld</translation>
    </message>
    <message>
        <source>Clips would overlap</source>
        <translation>Clips zouden elkaar overlappen</translation>
    </message>
    <message>
        <source>The clip has no more material</source>
        <translation>De clip heeft niet meer materiaal</translation>
    </message>
    <message>
        <source>Nothing would be left of the clip</source>
        <translation>Er zou niets van de clip overblijven</translation>
    </message>
    <message>
        <source>A transition cannot be cut</source>
        <translation>Een overgang kan niet worden geknipt</translation>
    </message>
</context>
</TS>
