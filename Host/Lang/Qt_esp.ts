<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Muestra la ayuda de las opciones de la línea de órdenes.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Muestra la ayuda con las opciones propias de Qt.</translation>
    </message>
</context>
</TS>
