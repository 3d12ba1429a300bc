<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>ClipStrip</name>
    <message>
        <source>Opening</source>
        <translation>Czołówka</translation>
    </message>
    <message>
        <source>Harbour at dawn</source>
        <translation>Port o świcie</translation>
    </message>
    <message>
        <source>Interview, part 1</source>
        <translation>Wywiad, część 1</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>Targ</translation>
    </message>
    <message>
        <source>Interview, part 2</source>
        <translation>Wywiad, część 2</translation>
    </message>
    <message>
        <source>Night drive</source>
        <translation>Nocna jazda</translation>
    </message>
</context>
<context>
    <name>CommonLibDemo</name>
    <message>
        <source>The log %1 cannot be opened; going on without it.</source>
        <translation>Nie można otworzyć dziennika %1; praca bez niego.</translation>
    </message>
    <message>
        <source>The engine is missing or does not start: %1</source>
        <translation>Brak silnika lub się nie uruchamia: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Nie można utworzyć folderu %1.</translation>
    </message>
    <message>
        <source>Tells what media files are and writes a contact sheet of each.</source>
        <translation>Opisuje pliki multimedialne i zapisuje stykówkę każdego z nich.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Wyświetla tę pomoc.</translation>
    </message>
    <message>
        <source>Folder for results.</source>
        <translation>Folder na wyniki.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>FOLDER</translation>
    </message>
    <message>
        <source>Log file, by default %1 among the results.</source>
        <translation>Plik dziennika, domyślnie %1 wśród wyników.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>PLIK</translation>
    </message>
    <message>
        <source>Print the log as well.</source>
        <translation>Wyświetla także dziennik.</translation>
    </message>
    <message>
        <source>Media files.</source>
        <translation>Pliki multimedialne.</translation>
    </message>
    <message>
        <source>MEDIA…</source>
        <translation>MEDIA…</translation>
    </message>
    <message>
        <source>No media file named.</source>
        <translation>Nie podano pliku multimedialnego.</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>brak obrazu</translation>
    </message>
</context>
<context>
    <name>HostLanguage</name>
    <message>
        <source>Language of the texts from now on, such as German.</source>
        <translation>Język tekstów od tej chwili, na przykład German.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAZWA</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Import media…</source>
        <translation>Importuj multimedia…</translation>
    </message>
    <message>
        <source>Split at the play head</source>
        <translation>Podziel w miejscu głowicy</translation>
    </message>
    <message>
        <source>Add a transition</source>
        <translation>Dodaj przejście</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Zapisz projekt</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Eksportuj…</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Język:</translation>
    </message>
    <message>
        <source>Font of the language:</source>
        <translation>Czcionka języka:</translation>
    </message>
    <message>
        <source>Drawn in:</source>
        <translation>Rysowane czcionką:</translation>
    </message>
    <message>
        <source>Reading direction:</source>
        <translation>Kierunek czytania:</translation>
    </message>
    <message>
        <source>Clips:</source>
        <translation>Klipy:</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Przykład</translation>
    </message>
    <message>
        <source>right to left</source>
        <translation>od prawej do lewej</translation>
    </message>
    <message>
        <source>left to right</source>
        <translation>od lewej do prawej</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) selected</source>
        <translation>
            <numerusform>wybrano %n klip</numerusform>
            <numerusform>wybrano %n klipy</numerusform>
            <numerusform>wybrano %n klipów</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaJob</name>
    <message>
        <source>does not exist</source>
        <translation>nie istnieje</translation>
    </message>
    <message>
        <source>is a folder, not a media file</source>
        <translation>to folder, a nie plik multimedialny</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>nie jest zwykłym plikiem</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>jest pusty</translation>
    </message>
    <message>
        <source>may not be read by this user</source>
        <translation>nie może być czytany przez tego użytkownika</translation>
    </message>
    <message>
        <source>cannot be read as media</source>
        <translation>nie daje się odczytać jako multimedia</translation>
    </message>
    <message>
        <source>holds neither picture nor sound</source>
        <translation>nie zawiera obrazu ani dźwięku</translation>
    </message>
    <message>
        <source>has no frames</source>
        <translation>nie ma klatek</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>klatka %1</translation>
    </message>
    <message>
        <source>picture %1 of %2: frame %3, %4</source>
        <translation>obraz %1 z %2: klatka %3, %4</translation>
    </message>
    <message>
        <source>%1, not decoded</source>
        <translation>%1, nie zdekodowano</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation>żadnego z jego obrazów nie da się zdekodować</translation>
    </message>
    <message>
        <source>%1 of %2 pictures cannot be decoded; the file may be damaged</source>
        <translation>nie da się zdekodować %1 z %2 obrazów; plik może być uszkodzony</translation>
    </message>
    <message>
        <source>wave form: part %1 of %2</source>
        <translation>przebieg fali: część %1 z %2</translation>
    </message>
    <message>
        <source>its sound cannot be decoded</source>
        <translation>nie da się zdekodować jego dźwięku</translation>
    </message>
    <message>
        <source>the result cannot be written to %1</source>
        <translation>nie można zapisać wyniku w %1</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>zapisano: %1</translation>
    </message>
</context>
<context>
    <name>MediaReport</name>
    <message>
        <source>unknown codec</source>
        <translation>nieznany kodek</translation>
    </message>
    <message>
        <source>video</source>
        <translation>wideo</translation>
    </message>
    <message>
        <source>rotated by %1°</source>
        <translation>obrócone o %1°</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 kl./s</translation>
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
            <numerusform>%n kanał</numerusform>
            <numerusform>%n kanały</numerusform>
            <numerusform>%n kanałów</numerusform>
        </translation>
    </message>
    <message>
        <source>other</source>
        <translation>inne</translation>
    </message>
    <message>
        <source>Still picture, %1</source>
        <translation>Obraz nieruchomy, %1</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Wideo</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Dźwięk</translation>
    </message>
    <message>
        <source>No picture and no sound</source>
        <translation>Brak obrazu i dźwięku</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n klatka</numerusform>
            <numerusform>%n klatki</numerusform>
            <numerusform>%n klatek</numerusform>
        </translation>
    </message>
    <message>
        <source>stream %1: %2</source>
        <translation>strumień %1: %2</translation>
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
