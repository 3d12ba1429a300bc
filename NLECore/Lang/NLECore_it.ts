<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>NLECore</name>
    <message>
        <source>Uncompressed 4:2:2, 10 bits</source>
        <translation>Non compresso 4:2:2, 10 bit</translation>
    </message>
    <message>
        <source>MPEG transport stream</source>
        <translation>Flusso di trasporto MPEG</translation>
    </message>
    <message>
        <source>MPEG program stream</source>
        <translation>Flusso di programma MPEG</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>GIF animata</translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation>Sequenza PNG</translation>
    </message>
    <message>
        <source>TIFF sequence</source>
        <translation>Sequenza TIFF</translation>
    </message>
    <message>
        <source>JPEG sequence</source>
        <translation>Sequenza JPEG</translation>
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
        <translation>H.264 per archivio</translation>
    </message>
    <message>
        <source>H.264 for streaming</source>
        <translation>H.264 per streaming</translation>
    </message>
    <message>
        <source>H.264 lossless</source>
        <translation>H.264 senza perdita</translation>
    </message>
    <message>
        <source>H.265 10 bits</source>
        <translation>H.265 a 10 bit</translation>
    </message>
    <message>
        <source>VP9 with alpha</source>
        <translation>VP9 con canale alfa</translation>
    </message>
    <message>
        <source>TIFF sequence 16 bits</source>
        <translation>Sequenza TIFF a 16 bit</translation>
    </message>
    <message>
        <source>MPEG-2 interlaced</source>
        <translation>MPEG-2 interlacciato</translation>
    </message>
    <message>
        <source>WAV 24 bits</source>
        <translation>WAV a 24 bit</translation>
    </message>
    <message>
        <source>No failure</source>
        <translation>Nessun errore</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Operazione non riuscita</translation>
    </message>
    <message>
        <source>Something that has to be given is missing</source>
        <translation>Manca un elemento necessario</translation>
    </message>
    <message>
        <source>A value that is not accepted</source>
        <translation>Valore non accettato</translation>
    </message>
    <message>
        <source>Outside of the range</source>
        <translation>Fuori intervallo</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>Non esiste nulla con questo nome</translation>
    </message>
    <message>
        <source>There is nothing of this number</source>
        <translation>Non esiste nulla con questo numero</translation>
    </message>
    <message>
        <source>Not possible at this time</source>
        <translation>Non possibile in questo momento</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>Non disponibile</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Memoria insufficiente</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>A value that cannot be changed</source>
        <translation>Questo valore non può essere modificato</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>Questo valore non esiste</translation>
    </message>
    <message>
        <source>There is nothing to show or to write</source>
        <translation>Non c’è nulla da mostrare o da scrivere</translation>
    </message>
    <message>
        <source>This object cannot be used there</source>
        <translation>Questo oggetto non può essere usato lì</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Il file non esiste</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Impossibile leggere il file</translation>
    </message>
    <message>
        <source>The file is damaged or of no known format</source>
        <translation>Il file è danneggiato o ha un formato sconosciuto</translation>
    </message>
    <message>
        <source>The file or folder cannot be written</source>
        <translation>Impossibile scrivere nel file o nella cartella</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Il disco è pieno</translation>
    </message>
    <message>
        <source>There is no format of this name to write</source>
        <translation>Nessun formato di scrittura ha questo nome</translation>
    </message>
    <message>
        <source>The format does not take these settings</source>
        <translation>Il formato non accetta queste impostazioni</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Esposizione</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>Livello del nero</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrasto</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Perno</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Bilanciamento del bianco</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Tinta</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Curve</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Principale</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
    <message>
        <source>Lookup table</source>
        <translation>Tabella di ricerca (LUT)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Quantità</translation>
    </message>
    <message>
        <source>Chroma key</source>
        <translation>Chiave cromatica</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolleranza</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Morbidezza</translation>
    </message>
    <message>
        <source>Spill removal</source>
        <translation>Soppressione dello spill</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Ritaglia</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>In alto</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>In basso</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignettatura</translation>
    </message>
    <message>
        <source>Centre across</source>
        <translation>Centro orizzontale</translation>
    </message>
    <message>
        <source>Centre down</source>
        <translation>Centro verticale</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Bianco e nero</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenza</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>Risonanza</translation>
    </message>
    <message>
        <source>Target loudness</source>
        <translation>Loudness di destinazione</translation>
    </message>
    <message>
        <source>Highest true peak</source>
        <translation>Picco reale massimo</translation>
    </message>
    <message>
        <source>Measured loudness</source>
        <translation>Loudness misurata</translation>
    </message>
    <message>
        <source>Measured loudness range</source>
        <translation>Intervallo di loudness misurato</translation>
    </message>
    <message>
        <source>Measured true peak</source>
        <translation>Picco reale misurato</translation>
    </message>
    <message>
        <source>Attack</source>
        <translation>Attacco</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Rilascio</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Soglia</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>Compressore</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Rapporto</translation>
    </message>
    <message>
        <source>Make-up gain</source>
        <translation>Guadagno di compensazione</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Limitatore</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Noise gate</source>
        <translation>Noise gate</translation>
    </message>
    <message>
        <source>Reduction</source>
        <translation>Riduzione</translation>
    </message>
    <message>
        <source>Reverb</source>
        <translation>Riverbero</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo di riverbero</translation>
    </message>
    <message>
        <source>First reflection</source>
        <translation>Prima riflessione</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mix</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Eco</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Ritardo</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Livello</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Ripetizioni</translation>
    </message>
    <message>
        <source>High pass</source>
        <translation>Passa alto</translation>
    </message>
    <message>
        <source>Low pass</source>
        <translation>Passa basso</translation>
    </message>
    <message>
        <source>De-esser</source>
        <translation>De-esser</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profondità</translation>
    </message>
    <message>
        <source>Loudness normalisation</source>
        <translation>Normalizzazione della loudness</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Sfocatura</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Nitidezza</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Specchio</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Riduzione del rumore</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Intensità</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>Ombra esterna</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>Scostamento orizzontale</translation>
    </message>
    <message>
        <source>Offset down</source>
        <translation>Scostamento verticale</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacità</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Carattere</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Grassetto</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Corsivo</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>Spaziatura caratteri</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Interlinea</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direzione</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatica</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Da sinistra a destra</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Da destra a sinistra</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Allineamento</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Posizione verticale</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Al centro</translation>
    </message>
    <message>
        <source>Shift to the right</source>
        <translation>Spostamento a destra</translation>
    </message>
    <message>
        <source>Shift downwards</source>
        <translation>Spostamento in basso</translation>
    </message>
    <message>
        <source>Longest line</source>
        <translation>Lunghezza massima della riga</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margine</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Outline colour</source>
        <translation>Colore del contorno</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>Colore dell’ombra</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>Ombra a destra</translation>
    </message>
    <message>
        <source>Shadow downwards</source>
        <translation>Ombra in basso</translation>
    </message>
    <message>
        <source>Shadow blur</source>
        <translation>Sfocatura dell’ombra</translation>
    </message>
    <message>
        <source>Box colour</source>
        <translation>Colore del riquadro</translation>
    </message>
    <message>
        <source>Box padding</source>
        <translation>Spaziatura interna del riquadro</translation>
    </message>
    <message>
        <source>Box corners</source>
        <translation>Angoli del riquadro</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Dissolvenza in entrata</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Dissolvenza in uscita</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Scorrimento</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Verso l’alto</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Verso il basso</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>Verso sinistra</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>Verso destra</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Dissolvenza audio</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Lineare</translation>
    </message>
    <message>
        <source>Equal power</source>
        <translation>Potenza costante</translation>
    </message>
    <message>
        <source>No fade</source>
        <translation>Nessuna dissolvenza</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Inverti</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>In basso a destra</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>In basso a sinistra</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>In alto a destra</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>In alto a sinistra</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Dissolvenza incrociata</translation>
    </message>
    <message>
        <source>Dip to colour</source>
        <translation>Dissolvenza in colore</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Tendina</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cerchio</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Rombo</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Orologio</translation>
    </message>
    <message>
        <source>Barn doors</source>
        <translation>Porte a battente</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>Spinta</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Scivolamento</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>An effect was left out</source>
        <translation>Un effetto è stato omesso</translation>
    </message>
    <message>
        <source>A transition was left out</source>
        <translation>Una transizione è stata omessa</translation>
    </message>
    <message>
        <source>A clip of an unknown kind shows an empty picture</source>
        <translation>Una clip di tipo sconosciuto mostra un’immagine vuota</translation>
    </message>
    <message>
        <source>A clip that plays backwards plays forwards</source>
        <translation>Una clip riprodotta all’indietro viene riprodotta in avanti</translation>
    </message>
    <message>
        <source>A change of speed was left out or is only close</source>
        <translation>Un cambio di velocità è omesso o solo approssimato</translation>
    </message>
    <message>
        <source>A file is missing; its clip is offline</source>
        <translation>Manca un file; la sua clip è offline</translation>
    </message>
    <message>
        <source>A part of the document cannot be used</source>
        <translation>Una parte del documento non è utilizzabile</translation>
    </message>
    <message>
        <source>Markers are kept as text only</source>
        <translation>I marcatori sono conservati solo come testo</translation>
    </message>
    <message>
        <source>A volume, balance or opacity is only close</source>
        <translation>Un volume, un bilanciamento o un’opacità è solo approssimato</translation>
    </message>
    <message>
        <source>There is no such device</source>
        <translation>Il dispositivo non esiste</translation>
    </message>
    <message>
        <source>The track is locked</source>
        <translation>La traccia è bloccata</translation>
    </message>
    <message>
        <source>Clips would overlap</source>
        <translation>Le clip si sovrapporrebbero</translation>
    </message>
    <message>
        <source>The clip has no more material</source>
        <translation>La clip non ha altro materiale</translation>
    </message>
    <message>
        <source>Nothing would be left of the clip</source>
        <translation>Non resterebbe nulla della clip</translation>
    </message>
    <message>
        <source>A transition cannot be cut</source>
        <translation>Una transizione non può essere tagliata</translation>
    </message>
</context>
</TS>
