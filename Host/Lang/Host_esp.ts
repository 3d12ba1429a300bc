<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
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
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>sin imagen</translation>
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
        <source>%n clip(s) selected</source>
        <translation>
            <numerusform>%n clip seleccionado</numerusform>
            <numerusform>%n clips seleccionados</numerusform>
        </translation>
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
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <extracomment>&quot;LTR&quot; where text runs from left to right, &quot;RTL&quot; where it runs from right to left.</extracomment>
        <translation>LTR</translation>
    </message>
</context>
</TS>
