<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ro_RO" sourcelanguage="en_US">
<context>
    <name>NLECore</name>
    <message>
        <source>Uncompressed 4:2:2, 10 bits</source>
        <translation>Necomprimat 4:2:2, 10 biți</translation>
    </message>
    <message>
        <source>MPEG transport stream</source>
        <translation>Flux de transport MPEG</translation>
    </message>
    <message>
        <source>MPEG program stream</source>
        <translation>Flux de program MPEG</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>GIF animat</translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation>Secvență PNG</translation>
    </message>
    <message>
        <source>TIFF sequence</source>
        <translation>Secvență TIFF</translation>
    </message>
    <message>
        <source>JPEG sequence</source>
        <translation>Secvență JPEG</translation>
    </message>
    <message>
        <source>MPEG-4 sound</source>
        <translation>Audio MPEG-4</translation>
    </message>
    <message>
        <source>Ogg sound</source>
        <translation>Audio Ogg</translation>
    </message>
    <message>
        <source>Windows Media sound</source>
        <translation>Audio Windows Media</translation>
    </message>
    <message>
        <source>H.264 for archives</source>
        <translation>H.264 pentru arhivare</translation>
    </message>
    <message>
        <source>H.264 for streaming</source>
        <translation>H.264 pentru streaming</translation>
    </message>
    <message>
        <source>H.264 lossless</source>
        <translation>H.264 fără pierderi</translation>
    </message>
    <message>
        <source>H.265 10 bits</source>
        <translation>H.265 pe 10 biți</translation>
    </message>
    <message>
        <source>VP9 with alpha</source>
        <translation>VP9 cu canal alfa</translation>
    </message>
    <message>
        <source>TIFF sequence 16 bits</source>
        <translation>Secvență TIFF pe 16 biți</translation>
    </message>
    <message>
        <source>MPEG-2 interlaced</source>
        <translation>MPEG-2 întrețesut</translation>
    </message>
    <message>
        <source>WAV 24 bits</source>
        <translation>WAV pe 24 de biți</translation>
    </message>
    <message>
        <source>No failure</source>
        <translation>Nicio eroare</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Operațiune eșuată</translation>
    </message>
    <message>
        <source>Something that has to be given is missing</source>
        <translation>Lipsește un element necesar</translation>
    </message>
    <message>
        <source>A value that is not accepted</source>
        <translation>Valoare neacceptată</translation>
    </message>
    <message>
        <source>Outside of the range</source>
        <translation>În afara intervalului</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>Nu există nimic cu acest nume</translation>
    </message>
    <message>
        <source>There is nothing of this number</source>
        <translation>Nu există nimic cu acest număr</translation>
    </message>
    <message>
        <source>Not possible at this time</source>
        <translation>Nu este posibil în acest moment</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>Indisponibil</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Memorie insuficientă</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Anulat</translation>
    </message>
    <message>
        <source>A value that cannot be changed</source>
        <translation>Această valoare nu poate fi modificată</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>Această valoare nu există</translation>
    </message>
    <message>
        <source>There is nothing to show or to write</source>
        <translation>Nu există nimic de afișat sau de scris</translation>
    </message>
    <message>
        <source>This object cannot be used there</source>
        <translation>Acest obiect nu poate fi folosit acolo</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Fișierul nu există</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Fișierul nu poate fi citit</translation>
    </message>
    <message>
        <source>The file is damaged or of no known format</source>
        <translation>Fișierul este deteriorat sau are un format necunoscut</translation>
    </message>
    <message>
        <source>The file or folder cannot be written</source>
        <translation>Nu se poate scrie în fișier sau în dosar</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Discul este plin</translation>
    </message>
    <message>
        <source>There is no format of this name to write</source>
        <translation>Nu există niciun format de scriere cu acest nume</translation>
    </message>
    <message>
        <source>The format does not take these settings</source>
        <translation>Formatul nu acceptă aceste setări</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Expunere</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>Nivel de negru</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminozitate</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Pivot</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturație</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Balans de alb</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatură de culoare</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Nuanță</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Curbe</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Principală</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Roșu</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Albastru</translation>
    </message>
    <message>
        <source>Lookup table</source>
        <translation>Tabel de căutare (LUT)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fișier</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Intensitate</translation>
    </message>
    <message>
        <source>Chroma key</source>
        <translation>Cheie de culoare</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Culoare</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Toleranță</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Margini moi</translation>
    </message>
    <message>
        <source>Spill removal</source>
        <translation>Eliminarea reflexiei de culoare</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Decupare</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Stânga</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Sus</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Dreapta</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Jos</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vinietă</translation>
    </message>
    <message>
        <source>Centre across</source>
        <translation>Centru pe orizontală</translation>
    </message>
    <message>
        <source>Centre down</source>
        <translation>Centru pe verticală</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Alb-negru</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecvență</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>Rezonanță</translation>
    </message>
    <message>
        <source>Target loudness</source>
        <translation>Intensitate sonoră țintă</translation>
    </message>
    <message>
        <source>Highest true peak</source>
        <translation>Vârf real maxim</translation>
    </message>
    <message>
        <source>Measured loudness</source>
        <translation>Intensitate sonoră măsurată</translation>
    </message>
    <message>
        <source>Measured loudness range</source>
        <translation>Interval de intensitate sonoră măsurat</translation>
    </message>
    <message>
        <source>Measured true peak</source>
        <translation>Vârf real măsurat</translation>
    </message>
    <message>
        <source>Attack</source>
        <translation>Atac</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Revenire</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Prag</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>Compresor</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Raport</translation>
    </message>
    <message>
        <source>Make-up gain</source>
        <translation>Câștig de compensare</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Limitator</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limită</translation>
    </message>
    <message>
        <source>Noise gate</source>
        <translation>Poartă de zgomot</translation>
    </message>
    <message>
        <source>Reduction</source>
        <translation>Reducere</translation>
    </message>
    <message>
        <source>Reverb</source>
        <translation>Reverberație</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Durata reverberației</translation>
    </message>
    <message>
        <source>First reflection</source>
        <translation>Prima reflexie</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mixaj</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Ecou</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Întârziere</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Repetări</translation>
    </message>
    <message>
        <source>High pass</source>
        <translation>Trece-sus</translation>
    </message>
    <message>
        <source>Low pass</source>
        <translation>Trece-jos</translation>
    </message>
    <message>
        <source>De-esser</source>
        <translation>De-esser</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Adâncime</translation>
    </message>
    <message>
        <source>Loudness normalisation</source>
        <translation>Normalizarea intensității sonore</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Estompare</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensiune</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Accentuarea clarității</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Oglindire</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Orizontală</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>Verticală</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Reducerea zgomotului</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Putere</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>Umbră</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>Decalaj pe orizontală</translation>
    </message>
    <message>
        <source>Offset down</source>
        <translation>Decalaj pe verticală</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacitate</translation>
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
        <translation>Aldin</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Cursiv</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>Spațiere între litere</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Spațiere între rânduri</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direcție</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automată</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>De la stânga la dreapta</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>De la dreapta la stânga</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Aliniere</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centru</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Poziție verticală</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mijloc</translation>
    </message>
    <message>
        <source>Shift to the right</source>
        <translation>Deplasare la dreapta</translation>
    </message>
    <message>
        <source>Shift downwards</source>
        <translation>Deplasare în jos</translation>
    </message>
    <message>
        <source>Longest line</source>
        <translation>Lungimea maximă a rândului</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margine</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contur</translation>
    </message>
    <message>
        <source>Outline colour</source>
        <translation>Culoarea conturului</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>Culoarea umbrei</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>Umbră spre dreapta</translation>
    </message>
    <message>
        <source>Shadow downwards</source>
        <translation>Umbră în jos</translation>
    </message>
    <message>
        <source>Shadow blur</source>
        <translation>Estomparea umbrei</translation>
    </message>
    <message>
        <source>Box colour</source>
        <translation>Culoarea casetei</translation>
    </message>
    <message>
        <source>Box padding</source>
        <translation>Spațiu în interiorul casetei</translation>
    </message>
    <message>
        <source>Box corners</source>
        <translation>Colțurile casetei</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Apariție treptată</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Dispariție treptată</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Derulare</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Niciuna</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>În sus</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>În jos</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>Spre stânga</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>Spre dreapta</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titlu</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Tranziție audio</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Liniară</translation>
    </message>
    <message>
        <source>Equal power</source>
        <translation>Putere constantă</translation>
    </message>
    <message>
        <source>No fade</source>
        <translation>Fără tranziție</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Inversează</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>În jos spre dreapta</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>În jos spre stânga</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>În sus spre dreapta</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>În sus spre stânga</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Orizontală</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Verticală</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Dizolvare</translation>
    </message>
    <message>
        <source>Dip to colour</source>
        <translation>Trecere prin culoare</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Ștergere</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cerc</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Romb</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Ceas</translation>
    </message>
    <message>
        <source>Barn doors</source>
        <translation>Uși batante</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>Împingere</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Glisare</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>An effect was left out</source>
        <translation>Un efect a fost omis</translation>
    </message>
    <message>
        <source>A transition was left out</source>
        <translation>O tranziție a fost omisă</translation>
    </message>
    <message>
        <source>A clip of an unknown kind shows an empty picture</source>
        <translation>Un clip de tip necunoscut afișează o imagine goală</translation>
    </message>
    <message>
        <source>A clip that plays backwards plays forwards</source>
        <translation>Un clip redat invers este redat înainte</translation>
    </message>
    <message>
        <source>A change of speed was left out or is only close</source>
        <translation>O schimbare de viteză a fost omisă sau este doar aproximată</translation>
    </message>
    <message>
        <source>A file is missing; its clip is offline</source>
        <translation>Lipsește un fișier; clipul său este offline</translation>
    </message>
    <message>
        <source>A part of the document cannot be used</source>
        <translation>O parte a documentului nu poate fi folosită</translation>
    </message>
    <message>
        <source>Markers are kept as text only</source>
        <translation>Marcajele sunt păstrate doar ca text</translation>
    </message>
    <message>
        <source>A volume, balance or opacity is only close</source>
        <translation>Un volum, un balans sau o opacitate este doar aproximată</translation>
    </message>
    <message>
        <source>There is no such device</source>
        <translation>Dispozitivul nu există</translation>
    </message>
    <message>
        <source>The track is locked</source>
        <translation>Pista este blocată</translation>
    </message>
    <message>
        <source>Clips would overlap</source>
        <translation>Clipurile s-ar suprapune</translation>
    </message>
    <message>
        <source>The clip has no more material</source>
        <translation>Clipul nu mai are material</translation>
    </message>
    <message>
        <source>Nothing would be left of the clip</source>
        <translation>Nu ar mai rămâne nimic din clip</translation>
    </message>
    <message>
        <source>A transition cannot be cut</source>
        <translation>O tranziție nu poate fi tăiată</translation>
    </message>
</context>
</TS>
