<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>コマンドラインオプションのヘルプを表示します。</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Qt 固有のオプションを含むヘルプを表示します。</translation>
    </message>
</context>
</TS>
