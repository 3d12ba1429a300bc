<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Mostra la guida alle opzioni della riga di comando.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Mostra la guida con le opzioni proprie di Qt.</translation>
    </message>
</context>
</TS>
