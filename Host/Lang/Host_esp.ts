<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
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
        <source>Shows the library&apos;s widgets.</source>
        <translation>Muestra los controles de la biblioteca.</translation>
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
        <source>Write a picture of the page to &lt;file&gt;.</source>
        <translation>Escribe una imagen de la página en &lt;file&gt;.</translation>
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
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>Medidor de nivel</translation>
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
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Regla</translation>
    </message>
</context>
</TS>
