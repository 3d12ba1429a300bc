<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_AE" sourcelanguage="en_US">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>يعرض مساعدة خيارات سطر الأوامر.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>يعرض المساعدة مع الخيارات الخاصة بـ Qt.</translation>
    </message>
</context>
</TS>
