<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>NLECore</name>
    <message>
        <source>Uncompressed 4:2:2, 10 bits</source>
        <translation>Sin comprimir 4:2:2, 10 bits</translation>
    </message>
    <message>
        <source>MPEG transport stream</source>
        <translation>Flujo de transporte MPEG</translation>
    </message>
    <message>
        <source>MPEG program stream</source>
        <translation>Flujo de programa MPEG</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>GIF animado</translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation>Secuencia PNG</translation>
    </message>
    <message>
        <source>TIFF sequence</source>
        <translation>Secuencia TIFF</translation>
    </message>
    <message>
        <source>JPEG sequence</source>
        <translation>Secuencia JPEG</translation>
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
        <translation>Audio de Windows Media</translation>
    </message>
    <message>
        <source>H.264 for archives</source>
        <translation>H.264 para archivo</translation>
    </message>
    <message>
        <source>H.264 for streaming</source>
        <translation>H.264 para streaming</translation>
    </message>
    <message>
        <source>H.264 lossless</source>
        <translation>H.264 sin pérdidas</translation>
    </message>
    <message>
        <source>H.265 10 bits</source>
        <translation>H.265 de 10 bits</translation>
    </message>
    <message>
        <source>VP9 with alpha</source>
        <translation>VP9 con canal alfa</translation>
    </message>
    <message>
        <source>TIFF sequence 16 bits</source>
        <translation>Secuencia TIFF de 16 bits</translation>
    </message>
    <message>
        <source>MPEG-2 interlaced</source>
        <translation>MPEG-2 entrelazado</translation>
    </message>
    <message>
        <source>WAV 24 bits</source>
        <translation>WAV de 24 bits</translation>
    </message>
    <message>
        <source>No failure</source>
        <translation>Ningún error</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Something that has to be given is missing</source>
        <translation>Falta un dato necesario</translation>
    </message>
    <message>
        <source>A value that is not accepted</source>
        <translation>Valor no admitido</translation>
    </message>
    <message>
        <source>Outside of the range</source>
        <translation>Fuera del intervalo</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>No hay nada con ese nombre</translation>
    </message>
    <message>
        <source>There is nothing of this number</source>
        <translation>No hay nada con ese número</translation>
    </message>
    <message>
        <source>Not possible at this time</source>
        <translation>No es posible en este momento</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Memoria insuficiente</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>A value that cannot be changed</source>
        <translation>Este valor no se puede cambiar</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>No existe ese valor</translation>
    </message>
    <message>
        <source>There is nothing to show or to write</source>
        <translation>No hay nada que mostrar ni escribir</translation>
    </message>
    <message>
        <source>This object cannot be used there</source>
        <translation>Este objeto no se puede usar ahí</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>El archivo no existe</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>No se puede leer el archivo</translation>
    </message>
    <message>
        <source>The file is damaged or of no known format</source>
        <translation>El archivo está dañado o tiene un formato desconocido</translation>
    </message>
    <message>
        <source>The file or folder cannot be written</source>
        <translation>No se puede escribir en el archivo o la carpeta</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>El disco está lleno</translation>
    </message>
    <message>
        <source>There is no format of this name to write</source>
        <translation>No hay ningún formato de salida con ese nombre</translation>
    </message>
    <message>
        <source>The format does not take these settings</source>
        <translation>El formato no admite estos ajustes</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Exposición</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>Nivel de negro</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Pivote</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Balance de blancos</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Matiz</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Curvas</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Maestra</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Lookup table</source>
        <translation>Tabla de consulta (LUT)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Chroma key</source>
        <translation>Incrustación por croma</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerancia</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Suavidad</translation>
    </message>
    <message>
        <source>Spill removal</source>
        <translation>Supresión de derrame</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Viñeta</translation>
    </message>
    <message>
        <source>Centre across</source>
        <translation>Centro horizontal</translation>
    </message>
    <message>
        <source>Centre down</source>
        <translation>Centro vertical</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Blanco y negro</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>Resonancia</translation>
    </message>
    <message>
        <source>Target loudness</source>
        <translation>Sonoridad objetivo</translation>
    </message>
    <message>
        <source>Highest true peak</source>
        <translation>Pico real máximo</translation>
    </message>
    <message>
        <source>Measured loudness</source>
        <translation>Sonoridad medida</translation>
    </message>
    <message>
        <source>Measured loudness range</source>
        <translation>Rango de sonoridad medido</translation>
    </message>
    <message>
        <source>Measured true peak</source>
        <translation>Pico real medido</translation>
    </message>
    <message>
        <source>Attack</source>
        <translation>Ataque</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Liberación</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Umbral</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>Compresor</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Relación</translation>
    </message>
    <message>
        <source>Make-up gain</source>
        <translation>Ganancia de compensación</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Limitador</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Límite</translation>
    </message>
    <message>
        <source>Noise gate</source>
        <translation>Puerta de ruido</translation>
    </message>
    <message>
        <source>Reduction</source>
        <translation>Reducción</translation>
    </message>
    <message>
        <source>Reverb</source>
        <translation>Reverberación</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo de reverberación</translation>
    </message>
    <message>
        <source>First reflection</source>
        <translation>Primera reflexión</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mezcla</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Eco</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Retardo</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Repeticiones</translation>
    </message>
    <message>
        <source>High pass</source>
        <translation>Paso alto</translation>
    </message>
    <message>
        <source>Low pass</source>
        <translation>Paso bajo</translation>
    </message>
    <message>
        <source>De-esser</source>
        <translation>De-esser</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profundidad</translation>
    </message>
    <message>
        <source>Loudness normalisation</source>
        <translation>Normalización de sonoridad</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Desenfoque</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Enfocar</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Espejo</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Reducción de ruido</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Intensidad</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>Sombra paralela</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>Desplazamiento horizontal</translation>
    </message>
    <message>
        <source>Offset down</source>
        <translation>Desplazamiento vertical</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Tipo de letra</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Negrita</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Cursiva</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>Espaciado entre letras</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Interlineado</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automática</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>De izquierda a derecha</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>De derecha a izquierda</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alineación</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Posición vertical</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Shift to the right</source>
        <translation>Desplazamiento a la derecha</translation>
    </message>
    <message>
        <source>Shift downwards</source>
        <translation>Desplazamiento hacia abajo</translation>
    </message>
    <message>
        <source>Longest line</source>
        <translation>Longitud máxima de línea</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margen</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Outline colour</source>
        <translation>Color del contorno</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>Color de la sombra</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>Sombra a la derecha</translation>
    </message>
    <message>
        <source>Shadow downwards</source>
        <translation>Sombra hacia abajo</translation>
    </message>
    <message>
        <source>Shadow blur</source>
        <translation>Desenfoque de la sombra</translation>
    </message>
    <message>
        <source>Box colour</source>
        <translation>Color del cuadro</translation>
    </message>
    <message>
        <source>Box padding</source>
        <translation>Relleno del cuadro</translation>
    </message>
    <message>
        <source>Box corners</source>
        <translation>Esquinas del cuadro</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Aparición gradual</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Desaparición gradual</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Desplazamiento del texto</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hacia arriba</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Hacia abajo</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>Hacia la izquierda</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>Hacia la derecha</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Fundido de audio</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Lineal</translation>
    </message>
    <message>
        <source>Equal power</source>
        <translation>Potencia constante</translation>
    </message>
    <message>
        <source>No fade</source>
        <translation>Sin fundido</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Invertir</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Arriba a la izquierda</translation>
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
        <translation>Disolución</translation>
    </message>
    <message>
        <source>Dip to colour</source>
        <translation>Fundido a color</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Barrido</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Círculo</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Rombo</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Reloj</translation>
    </message>
    <message>
        <source>Barn doors</source>
        <translation>Puertas de granero</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>Empuje</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Deslizamiento</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>An effect was left out</source>
        <translation>Se omitió un efecto</translation>
    </message>
    <message>
        <source>A transition was left out</source>
        <translation>Se omitió una transición</translation>
    </message>
    <message>
        <source>A clip of an unknown kind shows an empty picture</source>
        <translation>Un clip de tipo desconocido muestra una imagen vacía</translation>
    </message>
    <message>
        <source>A clip that plays backwards plays forwards</source>
        <translation>Un clip que se reproduce hacia atrás se reproduce hacia delante</translation>
    </message>
    <message>
        <source>A change of speed was left out or is only close</source>
        <translation>Un cambio de velocidad se omitió o solo es aproximado</translation>
    </message>
    <message>
        <source>A file is missing; its clip is offline</source>
        <translation>Falta un archivo; su clip está sin conexión</translation>
    </message>
    <message>
        <source>A part of the document cannot be used</source>
        <translation>Una parte del documento no se puede usar</translation>
    </message>
    <message>
        <source>Markers are kept as text only</source>
        <translation>Los marcadores solo se conservan como texto</translation>
    </message>
    <message>
        <source>A volume, balance or opacity is only close</source>
        <translation>Un volumen, un balance o una opacidad es solo aproximado</translation>
    </message>
    <message>
        <source>There is no such device</source>
        <translation>El dispositivo no existe</translation>
    </message>
    <message>
        <source>The track is locked</source>
        <translation>La pista está bloqueada</translation>
    </message>
    <message>
        <source>Clips would overlap</source>
        <translation>Los clips se superpondrían</translation>
    </message>
    <message>
        <source>The clip has no more material</source>
        <translation>El clip no tiene más material</translation>
    </message>
    <message>
        <source>Nothing would be left of the clip</source>
        <translation>No quedaría nada del clip</translation>
    </message>
    <message>
        <source>A transition cannot be cut</source>
        <translation>Una transición no se puede cortar</translation>
    </message>
</context>
</TS>
