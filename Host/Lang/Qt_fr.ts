<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Affiche l’aide des options de la ligne de commande.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Affiche l’aide avec les options propres à Qt.</translation>
    </message>
</context>
</TS>
