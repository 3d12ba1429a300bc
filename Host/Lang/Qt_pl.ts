<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Wyświetla pomoc dotyczącą opcji wiersza poleceń.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Wyświetla pomoc wraz z opcjami Qt.</translation>
    </message>
</context>
</TS>
