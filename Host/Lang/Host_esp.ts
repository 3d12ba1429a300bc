<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>AboutBox</name>
    <message>
        <source>Product: %1</source>
        <translation>Producto: %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>A small editor that shows what the library does.</source>
        <translation>Un pequeño editor que muestra lo que hace la biblioteca.</translation>
    </message>
</context>
<context>
    <name>BinCommands</name>
    <message>
        <source>Files…</source>
        <translation>Archivos…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>Carpeta…</translation>
    </message>
    <message>
        <source>From a device…</source>
        <translation>Desde un dispositivo…</translation>
    </message>
    <message>
        <source>Place at the play head</source>
        <translation>Colocar en el cabezal</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Marcar punto de entrada</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Marcar punto de salida</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Borrar puntos de entrada y salida</translation>
    </message>
    <message>
        <source>Make a proxy</source>
        <translation>Crear un proxy</translation>
    </message>
    <message>
        <source>Cancel the proxy</source>
        <translation>Cancelar el proxy</translation>
    </message>
    <message>
        <source>Use the proxy</source>
        <translation>Usar el proxy</translation>
    </message>
    <message>
        <source>Locate…</source>
        <translation>Localizar…</translation>
    </message>
    <message>
        <source>Search a folder for offline media…</source>
        <translation>Buscar en una carpeta los medios sin conexión…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove all unused</source>
        <translation>Quitar todo lo no utilizado</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Añadir medios</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Añadir una carpeta</translation>
    </message>
    <message>
        <source>Import from a device</source>
        <translation>Importar desde un dispositivo</translation>
    </message>
    <message>
        <source>None of the files was found.</source>
        <translation>No se ha encontrado ninguno de los archivos.</translation>
    </message>
    <message>
        <source>The files that were found cannot be read.</source>
        <translation>Los archivos encontrados no se pueden leer.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) found.</source>
        <translation>
            <numerusform>Se ha encontrado %n archivo.</numerusform>
            <numerusform>Se han encontrado %n archivos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>¿Dónde está %1?</translation>
    </message>
    <message>
        <source>%1 (%1);;All files (*)</source>
        <translation>%1 (%1);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Folder with the media</source>
        <translation>Carpeta con los medios</translation>
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
        <translation>entrada %1, salida %2</translation>
    </message>
    <message>
        <source>proxy: %1 %</source>
        <translation>proxy: %1 %</translation>
    </message>
    <message>
        <source>proxy: in use</source>
        <translation>proxy: en uso</translation>
    </message>
    <message>
        <source>proxy: not in use</source>
        <translation>proxy: sin usar</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>No se puede leer</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) on the timeline</source>
        <translation>
            <numerusform>%n clip en la línea de tiempo</numerusform>
            <numerusform>%n clips en la línea de tiempo</numerusform>
        </translation>
    </message>
    <message>
        <source>not on the timeline</source>
        <translation>no está en la línea de tiempo</translation>
    </message>
</context>
<context>
    <name>BinPanel</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search the media</source>
        <translation>Buscar en los medios</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Cuadrícula</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Añadir…</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medios</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Drop media here, or add files and folders.</source>
        <translation>Suelte aquí los medios o añada archivos y carpetas.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>No se ha encontrado nada</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>%n archivo seleccionado</numerusform>
            <numerusform>%n archivos seleccionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n file(s)…</source>
        <translation>
            <numerusform>Leyendo %n archivo…</numerusform>
            <numerusform>Leyendo %n archivos…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read as media.</source>
        <translation>%1 no se puede leer como multimedia.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more cannot be read as media.</source>
        <translation>
            <numerusform>%1 y %n más no se pueden leer como multimedia.</numerusform>
            <numerusform>%1 y %n más no se pueden leer como multimedia.</numerusform>
        </translation>
    </message>
    <message>
        <source>No proxy of %1: %2</source>
        <translation>No hay proxy de %1: %2</translation>
    </message>
</context>
<context>
    <name>ButtonPage</name>
    <message>
        <source>Buttons</source>
        <translation>Botones</translation>
    </message>
    <message>
        <source>Several states</source>
        <translation>Varios estados</translation>
    </message>
    <message>
        <source>Image and text</source>
        <translation>Imagen y texto</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Pestañas</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Última señal</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>todavía ninguna</translation>
    </message>
    <message>
        <source>Pressed %1</source>
        <translation>Pulsado: %1</translation>
    </message>
    <message>
        <source>Clicked %1 at (%2, %3)</source>
        <translation>Clic en %1, posición (%2, %3)</translation>
    </message>
    <message>
        <source>Entered %1</source>
        <translation>Entrada en %1</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>Salida de %1</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Con icono</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorito</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Clicked %1, shows %2</source>
        <translation>Clic en %1, muestra %2</translation>
    </message>
    <message>
        <source>Clicked %1</source>
        <translation>Clic en %1</translation>
    </message>
    <message>
        <source>Image left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Image right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medios</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Títulos</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
    <message>
        <source>Selected %1</source>
        <translation>Seleccionado: %1</translation>
    </message>
    <message>
        <source>for a language from right to left</source>
        <translation>para un idioma de derecha a izquierda</translation>
    </message>
    <message>
        <source>for a language from left to right</source>
        <translation>para un idioma de izquierda a derecha</translation>
    </message>
</context>
<context>
    <name>ClipActions</name>
    <message>
        <source>Add transition</source>
        <translation>Añadir transición</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Añadir título</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>Cambiar velocidad</translation>
    </message>
    <message>
        <source>Add effect</source>
        <translation>Añadir efecto</translation>
    </message>
    <message>
        <source>Remove effect</source>
        <translation>Quitar efecto</translation>
    </message>
    <message>
        <source>Move effect</source>
        <translation>Mover efecto</translation>
    </message>
    <message>
        <source>Switch effect</source>
        <translation>Activar o desactivar efecto</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Cambiar transición</translation>
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
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Imagen completa</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>Cuadro completo</translation>
    </message>
    <message>
        <source>Stretched</source>
        <translation>Estirada</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>Píxel a píxel</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> fot.</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Reducción de ruido</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotación</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Centre X</source>
        <translation>Centro X</translation>
    </message>
    <message>
        <source>Centre Y</source>
        <translation>Centro Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Anchura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplicar</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Trama</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Superponer</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Oscurecer</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Aclarar</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Sumar</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Colour dodge</source>
        <translation>Sobreexponer color</translation>
    </message>
    <message>
        <source>Colour burn</source>
        <translation>Subexponer color</translation>
    </message>
    <message>
        <source>Hard light</source>
        <translation>Luz fuerte</translation>
    </message>
    <message>
        <source>Soft light</source>
        <translation>Luz suave</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Exclusión</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Fundido de entrada</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Fundido de salida</translation>
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
        <translation>Color</translation>
    </message>
</context>
<context>
    <name>ClipStrip</name>
    <message>
        <source>Opening</source>
        <translation>Apertura</translation>
    </message>
    <message>
        <source>Harbour at dawn</source>
        <translation>Puerto al amanecer</translation>
    </message>
    <message>
        <source>Interview, part 1</source>
        <translation>Entrevista, parte 1</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>Mercado</translation>
    </message>
    <message>
        <source>Interview, part 2</source>
        <translation>Entrevista, parte 2</translation>
    </message>
    <message>
        <source>Night drive</source>
        <translation>Viaje nocturno</translation>
    </message>
</context>
<context>
    <name>CommonLibDemo</name>
    <message>
        <source>The log %1 cannot be opened; going on without it.</source>
        <translation>No se puede abrir el registro %1; se continúa sin él.</translation>
    </message>
    <message>
        <source>The engine is missing or does not start: %1</source>
        <translation>Falta el motor o no se inicia: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>No se puede crear la carpeta %1.</translation>
    </message>
    <message>
        <source>Tells what media files are and writes a contact sheet of each.</source>
        <translation>Indica qué son los archivos multimedia y escribe una hoja de contactos de cada uno.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Muestra esta ayuda.</translation>
    </message>
    <message>
        <source>Folder for results.</source>
        <translation>Carpeta para los resultados.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>CARPETA</translation>
    </message>
    <message>
        <source>Log file, by default %1 among the results.</source>
        <translation>Archivo de registro; por defecto, %1 junto a los resultados.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ARCHIVO</translation>
    </message>
    <message>
        <source>Print the log as well.</source>
        <translation>Muestra también el registro.</translation>
    </message>
    <message>
        <source>Media files.</source>
        <translation>Archivos multimedia.</translation>
    </message>
    <message>
        <source>MEDIA…</source>
        <translation>MEDIOS…</translation>
    </message>
    <message>
        <source>No media file named.</source>
        <translation>No se ha indicado ningún archivo multimedia.</translation>
    </message>
    <message>
        <source>Write a film of all media files to this file, whose suffix chooses how it is encoded.</source>
        <translation>Escribir una película con todos los archivos multimedia en este archivo, cuya extensión decide cómo se codifica.</translation>
    </message>
    <message>
        <source>Preset that the film is encoded with.</source>
        <translation>Ajuste predefinido con el que se codifica la película.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>List the presets for films.</source>
        <translation>Mostrar los ajustes predefinidos para películas.</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>sin imagen</translation>
    </message>
</context>
<context>
    <name>DragPage</name>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotación</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Última señal</translation>
    </message>
    <message>
        <source>drag begins at %1</source>
        <translation>el arrastre empieza en %1</translation>
    </message>
    <message>
        <source>drag ends at %1</source>
        <translation>el arrastre termina en %1</translation>
    </message>
</context>
<context>
    <name>Editor</name>
    <message>
        <source>A small editor.</source>
        <translation>Un pequeño editor.</translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;.</source>
        <translation>Escribe una imagen de la ventana en &lt;file&gt;.</translation>
    </message>
    <message>
        <source>A project to open, and media for the bin.</source>
        <translation>Un proyecto que abrir y medios para la bandeja.</translation>
    </message>
    <message>
        <source>The engine is missing.</source>
        <translation>Falta el motor.</translation>
    </message>
    <message>
        <source>Make a small film of the media by itself, and put pictures, the film and a report into &lt;folder&gt;.</source>
        <translation>Hacer automáticamente una pequeña película con los medios y dejar imágenes, la película y un informe en &lt;carpeta&gt;.</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>Media</source>
        <translation>Medios</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Línea de tiempo</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>Lift from in to out point</source>
        <translation>Levantar del punto de entrada al de salida</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>Levantar</translation>
    </message>
    <message>
        <source>Extract from in to out point</source>
        <translation>Extraer del punto de entrada al de salida</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extraer</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Medios</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>&amp;Línea de tiempo</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reproducción</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s) on the file, in the log</source>
        <translation>
            <numerusform>%n observación sobre el archivo, en el registro</numerusform>
            <numerusform>%n observaciones sobre el archivo, en el registro</numerusform>
        </translation>
    </message>
    <message>
        <source>Set an in and an out point first.</source>
        <translation>Marque primero un punto de entrada y uno de salida.</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Recuperación</translation>
    </message>
    <message>
        <source>The editor has ended unexpectedly. Changes of %1 until %2 can be opened.</source>
        <translation>El editor se ha cerrado inesperadamente. Se pueden abrir los cambios de %1 hasta %2.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Films are being written. End that?</source>
        <translation>Se están escribiendo películas. ¿Desea interrumpirlo?</translation>
    </message>
    <message>
        <source>Render the preview, or stop it</source>
        <translation>Renderizar la vista previa, o detenerla</translation>
    </message>
    <message>
        <source>%1 cannot be written to.</source>
        <translation>No se puede escribir en %1.</translation>
    </message>
    <message>
        <source>Light style</source>
        <translation>Estilo claro</translation>
    </message>
</context>
<context>
    <name>EffectsSection</name>
    <message>
        <source>Add effect</source>
        <translation>Añadir efecto</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>Apply earlier</source>
        <translation>Aplicar antes</translation>
    </message>
    <message>
        <source>Apply later</source>
        <translation>Aplicar después</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
</context>
<context>
    <name>ExportCheck</name>
    <message>
        <source>This cannot be combined</source>
        <translation>Esto no se puede combinar</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>No existe ese ajuste predefinido.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>The processor encodes and decodes.</source>
        <translation>El procesador codifica y decodifica.</translation>
    </message>
    <message>
        <source>The processor encodes; the graphics hardware helps to decode.</source>
        <translation>El procesador codifica; el hardware gráfico ayuda a decodificar.</translation>
    </message>
    <message>
        <source>Add to the queue</source>
        <translation>Añadir a la cola</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Películas</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Ajuste predefinido</translation>
    </message>
    <message>
        <source>film</source>
        <translation>película</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Elegir un archivo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Anchura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>As the project</source>
        <translation>Como el proyecto</translation>
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
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Velocidad de fotogramas</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>From in to out</source>
        <translation>De la entrada a la salida</translation>
    </message>
    <message>
        <source>In point</source>
        <translation>Punto de entrada</translation>
    </message>
    <message>
        <source>Out point</source>
        <translation>Punto de salida</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Still picture…</source>
        <translation>Imagen fija…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Writes the frame under the play head</source>
        <translation>Escribe el fotograma que está bajo el cabezal</translation>
    </message>
    <message>
        <source>The project cannot be copied.</source>
        <translation>No se puede copiar el proyecto.</translation>
    </message>
    <message>
        <source>Still picture</source>
        <translation>Imagen fija</translation>
    </message>
    <message>
        <source>/frame %1.png</source>
        <translation>/fotograma %1.png</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.tif *.bmp)</source>
        <translation>Imágenes (*.png *.jpg *.tif *.bmp)</translation>
    </message>
    <message>
        <source>%1 is in the queue already.</source>
        <translation>%1 ya está en la cola.</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 ya existe. ¿Reemplazarlo?</translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>No hay ningún ajuste predefinido «%1».</translation>
    </message>
    <message>
        <source>The engine has no presets.</source>
        <translation>El motor no tiene ajustes predefinidos.</translation>
    </message>
    <message>
        <source>encoded: %1 %</source>
        <translation>codificado: %1 %</translation>
    </message>
    <message>
        <source>%1 is not written; the log tells why.</source>
        <translation>%1 no se escribe; el registro explica por qué.</translation>
    </message>
</context>
<context>
    <name>ExportQueue</name>
    <message>
        <source>%1 is not written</source>
        <translation>%1 no se ha escrito</translation>
    </message>
</context>
<context>
    <name>ExportQueueView</name>
    <message>
        <source>No films yet</source>
        <translation>Todavía no hay películas</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Being written</source>
        <translation>Escribiéndose</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Tiempo restante: %1</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Escrita</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelada</translation>
    </message>
    <message>
        <source>Take from the list</source>
        <translation>Quitar de la lista</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Projects</source>
        <translation>Proyectos</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Abrir reciente</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Guardar los cambios</translation>
    </message>
    <message>
        <source>The project has changes that are not saved.</source>
        <translation>El proyecto tiene cambios sin guardar.</translation>
    </message>
</context>
<context>
    <name>FileEditor</name>
    <message>
        <source>No file</source>
        <translation>Ningún archivo</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Elegir un archivo</translation>
    </message>
</context>
<context>
    <name>FontEditor</name>
    <message>
        <source>System font</source>
        <translation>Tipo de letra del sistema</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Ruler</source>
        <translation>Regla</translation>
    </message>
    <message>
        <source>Drag the play head; the wheel scrolls, with Ctrl it zooms; a double click fits all.</source>
        <translation>Arrastre el cabezal; la rueda desplaza y, con Ctrl, amplía; un doble clic lo ajusta todo.</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Deslizadores</translation>
    </message>
    <message>
        <source>Drag, use the wheel, or the arrow keys.</source>
        <translation>Arrastre o use la rueda o las teclas de flecha.</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Botones y etiquetas</translation>
    </message>
    <message>
        <source>The last line tells what they signal.</source>
        <translation>La última línea indica qué señalan.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Copies media from cameras, phones and cards.</source>
        <translation>Copia medios de cámaras, teléfonos y tarjetas.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Idiomas</translation>
    </message>
    <message>
        <source>A choice reaches every window at once.</source>
        <translation>La elección llega al instante a todas las ventanas.</translation>
    </message>
    <message>
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Empieza por la página &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>Enumera los nombres de las páginas.</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>no se puede escribir %1</translation>
    </message>
    <message>
        <source>no page %1</source>
        <translation>no existe la página %1</translation>
    </message>
    <message>
        <source>Drag values</source>
        <translation>Arrastrar valores</translation>
    </message>
    <message>
        <source>Drag on a number, with Shift faster, with Ctrl slower; a click edits it.</source>
        <translation>Arrastre un número: con Mayús, más rápido; con Ctrl, más despacio; un clic lo edita.</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Reproductor</translation>
    </message>
    <message>
        <source>Open a file and play it; K plays and pauses, comma and full stop step a frame.</source>
        <translation>Abra un archivo y reprodúzcalo; K reproduce y pausa, la coma y el punto avanzan un fotograma.</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>CommonLib widgets</source>
        <translation>Controles de CommonLib</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>HostLanguage</name>
    <message>
        <source>Language of the texts from now on, such as German.</source>
        <translation>Idioma de los textos a partir de ahora, por ejemplo German.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>There is no language %1. Known are: %2</source>
        <translation>No hay ningún idioma %1. Se conocen: %2</translation>
    </message>
</context>
<context>
    <name>ImportPage</name>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Folder to import into</source>
        <translation>Carpeta de destino</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>Progreso de la importación</translation>
    </message>
    <message>
        <source>Import into</source>
        <translation>Importar en</translation>
    </message>
    <message>
        <source>No device found</source>
        <translation>No se ha encontrado ningún dispositivo</translation>
    </message>
    <message>
        <source>Connect a camera, a phone or a card reader, switch it on and unlock it.</source>
        <translation>Conecte una cámara, un teléfono o un lector de tarjetas, enciéndalo y desbloquéelo.</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>Abriendo %1…</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>No se puede abrir %1</translation>
    </message>
    <message>
        <source>Unlock the device and allow access to its files, then choose it again.</source>
        <translation>Desbloquee el dispositivo, permita el acceso a sus archivos y vuelva a elegirlo.</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>Se ha retirado %1</translation>
    </message>
    <message>
        <source>Connect it again to go on.</source>
        <translation>Vuelva a conectarlo para continuar.</translation>
    </message>
    <message>
        <source>Chosen files: %1 (%2)</source>
        <translation>Archivos elegidos: %1 (%2)</translation>
    </message>
    <message>
        <source>Reading the content… %1 files</source>
        <translation>Leyendo el contenido… Archivos: %1</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>Dispositivo sin nombre</translation>
    </message>
    <message>
        <source>%1 files on the device</source>
        <translation>Archivos en el dispositivo: %1</translation>
    </message>
    <message>
        <source>The device stopped answering; this may not be all of it.</source>
        <translation>El dispositivo ha dejado de responder; puede que no esté todo.</translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation>No se puede escribir en esta carpeta.</translation>
    </message>
    <message>
        <source>Importing… %1 of %2</source>
        <translation>Importando… %1 de %2</translation>
    </message>
    <message>
        <source>Imported files: %1 of %2.</source>
        <translation>Archivos importados: %1 de %2.</translation>
    </message>
    <message>
        <source>The device was removed during the import.</source>
        <translation>El dispositivo se retiró durante la importación.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>No importado: %1</translation>
    </message>
    <message>
        <source>Delete from the device afterwards</source>
        <translation>Eliminar después del dispositivo</translation>
    </message>
    <message>
        <source>This folder has room for %1 only.</source>
        <translation>En esta carpeta solo caben %1.</translation>
    </message>
    <message>
        <source>Another window has a device open. Close that window, then choose this device again.</source>
        <translation>Otra ventana tiene un dispositivo abierto. Cierre esa ventana y vuelva a elegir este dispositivo.</translation>
    </message>
</context>
<context>
    <name>ImportTree</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Content of the device</source>
        <translation>Contenido del dispositivo</translation>
    </message>
</context>
<context>
    <name>KeyFrameBar</name>
    <message>
        <source>Previous key frame</source>
        <translation>Fotograma clave anterior</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Fotograma clave</translation>
    </message>
    <message>
        <source>Next key frame</source>
        <translation>Fotograma clave siguiente</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Mantener</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Lineal</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Suave</translation>
    </message>
    <message>
        <source>To the next key frame</source>
        <translation>Hasta el fotograma clave siguiente</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Import media…</source>
        <translation>Importar medios…</translation>
    </message>
    <message>
        <source>Split at the play head</source>
        <translation>Dividir en el cabezal</translation>
    </message>
    <message>
        <source>Add a transition</source>
        <translation>Añadir una transición</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Guardar el proyecto</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>Font of the language:</source>
        <translation>Tipo de letra del idioma:</translation>
    </message>
    <message>
        <source>Drawn in:</source>
        <translation>Dibujado con:</translation>
    </message>
    <message>
        <source>Reading direction:</source>
        <translation>Dirección de lectura:</translation>
    </message>
    <message>
        <source>Clips:</source>
        <translation>Clips:</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Muestra</translation>
    </message>
    <message>
        <source>right to left</source>
        <translation>de derecha a izquierda</translation>
    </message>
    <message>
        <source>left to right</source>
        <translation>de izquierda a derecha</translation>
    </message>
    <message numerus="yes">
        <source>%Ln clip(s) selected</source>
        <translation>
            <numerusform>%Ln clip seleccionado</numerusform>
            <numerusform>%Ln clips seleccionados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LevelHeader</name>
    <message>
        <source>Level %1</source>
        <translation>Pista %1</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Bloquear</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>Solo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>Medidor de nivel</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
</context>
<context>
    <name>MediaBin</name>
    <message>
        <source>Add media</source>
        <translation>Añadir medios</translation>
    </message>
    <message>
        <source>Remove media</source>
        <translation>Quitar medios</translation>
    </message>
    <message>
        <source>Relink media</source>
        <translation>Volver a enlazar medios</translation>
    </message>
    <message>
        <source>Use the media itself</source>
        <translation>Usar los medios originales</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Usar un proxy</translation>
    </message>
    <message>
        <source>Set in and out point</source>
        <translation>Marcar puntos de entrada y salida</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Borrar puntos de entrada y salida</translation>
    </message>
    <message>
        <source>Place a clip</source>
        <translation>Colocar un clip</translation>
    </message>
</context>
<context>
    <name>MediaJob</name>
    <message>
        <source>does not exist</source>
        <translation>no existe</translation>
    </message>
    <message>
        <source>is a folder, not a media file</source>
        <translation>es una carpeta, no un archivo multimedia</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>may not be read by this user</source>
        <translation>este usuario no puede leerlo</translation>
    </message>
    <message>
        <source>cannot be read as media</source>
        <translation>no se puede leer como multimedia</translation>
    </message>
    <message>
        <source>holds neither picture nor sound</source>
        <translation>no contiene ni imagen ni sonido</translation>
    </message>
    <message>
        <source>has no frames</source>
        <translation>no tiene fotogramas</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>fotograma %1</translation>
    </message>
    <message>
        <source>picture %1 of %2: frame %3, %4</source>
        <translation>imagen %1 de %2: fotograma %3, %4</translation>
    </message>
    <message>
        <source>%1, not decoded</source>
        <translation>%1, no decodificado</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation>no se puede decodificar ninguna de sus imágenes</translation>
    </message>
    <message>
        <source>%1 of %2 pictures cannot be decoded; the file may be damaged</source>
        <translation>no se pueden decodificar %1 de %2 imágenes; el archivo puede estar dañado</translation>
    </message>
    <message>
        <source>wave form: part %1 of %2</source>
        <translation>forma de onda: parte %1 de %2</translation>
    </message>
    <message>
        <source>its sound cannot be decoded</source>
        <translation>no se puede decodificar su sonido</translation>
    </message>
    <message>
        <source>the result cannot be written to %1</source>
        <translation>no se puede escribir el resultado en %1</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>escrito: %1</translation>
    </message>
</context>
<context>
    <name>MediaReport</name>
    <message>
        <source>unknown codec</source>
        <translation>códec desconocido</translation>
    </message>
    <message>
        <source>video</source>
        <translation>vídeo</translation>
    </message>
    <message>
        <source>rotated by %1°</source>
        <translation>girado %1°</translation>
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
            <numerusform>%n canal</numerusform>
            <numerusform>%n canales</numerusform>
        </translation>
    </message>
    <message>
        <source>other</source>
        <translation>otro</translation>
    </message>
    <message>
        <source>Still picture, %1</source>
        <translation>Imagen fija, %1</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>No picture and no sound</source>
        <translation>Sin imagen ni sonido</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n fotograma</numerusform>
            <numerusform>%n fotogramas</numerusform>
        </translation>
    </message>
    <message>
        <source>stream %1: %2</source>
        <translation>flujo %1: %2</translation>
    </message>
    <message>
        <source>sample rates: %1</source>
        <translation>frecuencias de muestreo: %1</translation>
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
        <translation>Giro</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Shift right</source>
        <translation>Desplazamiento a la derecha</translation>
    </message>
    <message>
        <source>Shift up</source>
        <translation>Desplazamiento hacia arriba</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Factor de anchura</translation>
    </message>
    <message>
        <source>Height factor</source>
        <translation>Factor de altura</translation>
    </message>
    <message>
        <source>Opacity factor</source>
        <translation>Factor de opacidad</translation>
    </message>
</context>
<context>
    <name>MovementSection</name>
    <message>
        <source>Movement</source>
        <translation>Movimiento</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Fotograma clave</translation>
    </message>
    <message>
        <source>Change movement</source>
        <translation>Cambiar movimiento</translation>
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
        <translation> fot.</translation>
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
        <translation>Colocar imagen</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
</context>
<context>
    <name>PlayerPage</name>
    <message>
        <source>Nothing is open.</source>
        <translation>No hay nada abierto.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Retroceder un fotograma</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Avanzar un fotograma</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Bucle</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Zonas seguras</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Tamaño de la imagen</translation>
    </message>
    <message>
        <source>Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms</source>
        <translation>Último segundo: %1 mostrados, %2 omitidos, %3 tarde, %4 de la caché, desfase %5 ms</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>%1 no se puede reproducir.</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>Listo: %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
</context>
<context>
    <name>PlayerPanel</name>
    <message>
        <source>Play or pause</source>
        <translation>Reproducir o pausar</translation>
    </message>
    <message>
        <source>Play backwards</source>
        <translation>Reproducir hacia atrás</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Play forwards</source>
        <translation>Reproducir hacia delante</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Bucle</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Retroceder un fotograma</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Avanzar un fotograma</translation>
    </message>
    <message>
        <source>Go to beginning</source>
        <translation>Ir al principio</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>Ir al final</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Marcar punto de entrada</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Marcar punto de salida</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Borrar puntos de entrada y salida</translation>
    </message>
    <message>
        <source>Go to in point</source>
        <translation>Ir al punto de entrada</translation>
    </message>
    <message>
        <source>Go to out point</source>
        <translation>Ir al punto de salida</translation>
    </message>
    <message>
        <source>Set or remove marker</source>
        <translation>Poner o quitar marcador</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Zonas seguras</translation>
    </message>
    <message>
        <source>Picture on full screen</source>
        <translation>Imagen a pantalla completa</translation>
    </message>
    <message>
        <source>Timecode of the play head</source>
        <translation>Código de tiempo del cabezal</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Cabezal</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>The project cannot be made</source>
        <translation>No se puede crear el proyecto</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>No se puede abrir %1</translation>
    </message>
    <message>
        <source>%1 cannot be saved</source>
        <translation>No se puede guardar %1</translation>
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
        <translation>Velocidad de fotogramas</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>Preview scale</source>
        <translation>Escala de la vista previa</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Anchura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Frecuencia de muestreo</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>Bits of a colour</source>
        <translation>Bits por color</translation>
    </message>
    <message>
        <source>Smooth scaling</source>
        <translation>Escalado suave</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
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
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dibujo</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Añadir título</translation>
    </message>
    <message>
        <source>Mixer, level %1</source>
        <translation>Mezclador, pista %1</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Transición</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>Posición y tamaño</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Fusión</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>Movimiento</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Transiciones</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parámetros</translation>
    </message>
</context>
<context>
    <name>PropertyForm</name>
    <message>
        <source>Back to the preset</source>
        <translation>Restablecer el valor predeterminado</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Cambiar «%1»</translation>
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
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Acercar</translation>
    </message>
</context>
<context>
    <name>ShortcutList</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
</context>
<context>
    <name>SliderPage</name>
    <message>
        <source>Seek bar</source>
        <translation>Barra de reproducción</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Other chunk and groove</source>
        <translation>Otro relleno y otra ranura</translation>
    </message>
    <message>
        <source>From right to left</source>
        <translation>De derecha a izquierda</translation>
    </message>
    <message>
        <source>Empty range</source>
        <translation>Intervalo vacío</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Zoom bar</source>
        <translation>Barra de zoom</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Mirrored layout</source>
        <translation>Disposición reflejada</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Barra</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>Otros colores</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Vertical</translation>
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
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Back to the preset</source>
        <translation>Restablecer el valor predeterminado</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>The frame cannot be drawn</source>
        <translation>No se puede dibujar el fotograma</translation>
    </message>
    <message>
        <source>%1 is not written: %2</source>
        <translation>%1 no se ha escrito: %2</translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Clip compuesto</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Ajuste magnético</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Roll</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Recortar</translation>
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
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Pegar insertando</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Eliminar con ripple</translation>
    </message>
    <message>
        <source>Split at play head</source>
        <translation>Dividir en el cabezal</translation>
    </message>
    <message>
        <source>Trim begin to play head</source>
        <translation>Recortar el inicio hasta el cabezal</translation>
    </message>
    <message>
        <source>Trim end to play head</source>
        <translation>Recortar el final hasta el cabezal</translation>
    </message>
    <message>
        <source>Close gap at play head</source>
        <translation>Cerrar el hueco en el cabezal</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Agrupar</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Desagrupar</translation>
    </message>
    <message>
        <source>Lock or unlock level</source>
        <translation>Bloquear o desbloquear pista</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Select at play head</source>
        <translation>Seleccionar en el cabezal</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>No seleccionar nada</translation>
    </message>
    <message>
        <source>Frame earlier</source>
        <translation>Un fotograma antes</translation>
    </message>
    <message>
        <source>Frame later</source>
        <translation>Un fotograma después</translation>
    </message>
    <message>
        <source>Second earlier</source>
        <translation>Un segundo antes</translation>
    </message>
    <message>
        <source>Second later</source>
        <translation>Un segundo después</translation>
    </message>
    <message>
        <source>Level up</source>
        <translation>Una pista más arriba</translation>
    </message>
    <message>
        <source>Level down</source>
        <translation>Una pista más abajo</translation>
    </message>
    <message>
        <source>Previous cut</source>
        <translation>Corte anterior</translation>
    </message>
    <message>
        <source>Next cut</source>
        <translation>Corte siguiente</translation>
    </message>
    <message>
        <source>Selection tool</source>
        <translation>Herramienta de selección</translation>
    </message>
    <message>
        <source>Ripple tool</source>
        <translation>Herramienta Ripple</translation>
    </message>
    <message>
        <source>Roll tool</source>
        <translation>Herramienta Roll</translation>
    </message>
    <message>
        <source>Slip tool</source>
        <translation>Herramienta Slip</translation>
    </message>
    <message>
        <source>Slide tool</source>
        <translation>Herramienta Slide</translation>
    </message>
    <message>
        <source>Razor tool</source>
        <translation>Herramienta cuchilla</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Ajustar a la ventana</translation>
    </message>
    <message>
        <source>Taller levels</source>
        <translation>Aumentar la altura de las pistas</translation>
    </message>
    <message>
        <source>Lower levels</source>
        <translation>Reducir la altura de las pistas</translation>
    </message>
    <message>
        <source>Ripple trim</source>
        <translation>Recortar con ripple</translation>
    </message>
    <message>
        <source>Hide or show level</source>
        <translation>Ocultar o mostrar pista</translation>
    </message>
    <message>
        <source>Mute or unmute level</source>
        <translation>Silenciar o activar pista</translation>
    </message>
    <message>
        <source>Level solo or not</source>
        <translation>Pista en solo o no</translation>
    </message>
</context>
<context>
    <name>TimelineCommands</name>
    <message>
        <source>Split</source>
        <translation>Dividir</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Agrupar</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Desagrupar</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Eliminar con ripple</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Pegar insertando</translation>
    </message>
    <message>
        <source>Close gap</source>
        <translation>Cerrar el hueco</translation>
    </message>
    <message>
        <source>Lock level</source>
        <translation>Bloquear pista</translation>
    </message>
    <message>
        <source>Unlock level</source>
        <translation>Desbloquear pista</translation>
    </message>
    <message>
        <source>Rename level</source>
        <translation>Cambiar nombre de pista</translation>
    </message>
</context>
<context>
    <name>TimelinePanel</name>
    <message>
        <source>Timeline</source>
        <translation>Línea de tiempo</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Cabezal</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clips</translation>
    </message>
    <message>
        <source>%1, level %2, frames %3 to %4</source>
        <translation>%1, pista %2, fotogramas %3 a %4</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Regla</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>Split</source>
        <translation>Dividir</translation>
    </message>
    <message>
        <source>Insert media</source>
        <translation>Insertar medios</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Añadir medios</translation>
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
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duración</translation>
    </message>
</context>
<context>
    <name>TransitionSection</name>
    <message>
        <source>At the beginning</source>
        <translation>Al principio</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>Al final</translation>
    </message>
</context>
<context>
    <name>Transport</name>
    <message>
        <source>Remove marker</source>
        <translation>Quitar marcador</translation>
    </message>
    <message>
        <source>Set marker</source>
        <translation>Poner marcador</translation>
    </message>
</context>
</TS>
