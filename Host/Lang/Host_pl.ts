<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>AboutBox</name>
    <message>
        <source>Product: %1</source>
        <translation>Produkt: %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>A small editor that shows what the library does.</source>
        <translation>Mały edytor, który pokazuje możliwości biblioteki.</translation>
    </message>
</context>
<context>
    <name>BinCommands</name>
    <message>
        <source>Files…</source>
        <translation>Pliki…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>Folder…</translation>
    </message>
    <message>
        <source>From a device…</source>
        <translation>Z urządzenia…</translation>
    </message>
    <message>
        <source>Place at the play head</source>
        <translation>Umieść w miejscu głowicy</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Ustaw punkt wejścia</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Ustaw punkt wyjścia</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Wyczyść punkty wejścia i wyjścia</translation>
    </message>
    <message>
        <source>Make a proxy</source>
        <translation>Utwórz proxy</translation>
    </message>
    <message>
        <source>Cancel the proxy</source>
        <translation>Anuluj tworzenie proxy</translation>
    </message>
    <message>
        <source>Use the proxy</source>
        <translation>Użyj proxy</translation>
    </message>
    <message>
        <source>Locate…</source>
        <translation>Wskaż plik…</translation>
    </message>
    <message>
        <source>Search a folder for offline media…</source>
        <translation>Szukaj multimediów offline w folderze…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Remove all unused</source>
        <translation>Usuń wszystkie nieużywane</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Dodawanie multimediów</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Dodawanie folderu</translation>
    </message>
    <message>
        <source>Import from a device</source>
        <translation>Import z urządzenia</translation>
    </message>
    <message>
        <source>None of the files was found.</source>
        <translation>Nie znaleziono żadnego z plików.</translation>
    </message>
    <message>
        <source>The files that were found cannot be read.</source>
        <translation>Nie można odczytać znalezionych plików.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) found.</source>
        <translation>
            <numerusform>Znaleziono %n plik.</numerusform>
            <numerusform>Znaleziono %n pliki.</numerusform>
            <numerusform>Znaleziono %n plików.</numerusform>
        </translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>Gdzie jest %1?</translation>
    </message>
    <message>
        <source>%1 (%1);;All files (*)</source>
        <translation>%1 (%1);;Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Folder with the media</source>
        <translation>Folder z multimediami</translation>
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
        <translation>wejście %1, wyjście %2</translation>
    </message>
    <message>
        <source>proxy: %1 %</source>
        <translation>proxy: %1%</translation>
    </message>
    <message>
        <source>proxy: in use</source>
        <translation>proxy: w użyciu</translation>
    </message>
    <message>
        <source>proxy: not in use</source>
        <translation>proxy: nieużywane</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Odczyt…</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Nie można odczytać</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) on the timeline</source>
        <translation>
            <numerusform>%n klip na osi czasu</numerusform>
            <numerusform>%n klipy na osi czasu</numerusform>
            <numerusform>%n klipów na osi czasu</numerusform>
        </translation>
    </message>
    <message>
        <source>not on the timeline</source>
        <translation>brak na osi czasu</translation>
    </message>
</context>
<context>
    <name>BinPanel</name>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Search the media</source>
        <translation>Szukaj multimediów</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Siatka</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Dodaj…</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Multimedia</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>Drop media here, or add files and folders.</source>
        <translation>Upuść tu multimedia albo dodaj pliki i foldery.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nic nie znaleziono</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>Wybrano %n plik</numerusform>
            <numerusform>Wybrano %n pliki</numerusform>
            <numerusform>Wybrano %n plików</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n file(s)…</source>
        <translation>
            <numerusform>Odczyt %n pliku…</numerusform>
            <numerusform>Odczyt %n plików…</numerusform>
            <numerusform>Odczyt %n plików…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read as media.</source>
        <translation>Nie można odczytać %1 jako multimediów.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more cannot be read as media.</source>
        <translation>
            <numerusform>Nie można odczytać %1 i jeszcze %n pliku jako multimediów.</numerusform>
            <numerusform>Nie można odczytać %1 i jeszcze %n plików jako multimediów.</numerusform>
            <numerusform>Nie można odczytać %1 i jeszcze %n plików jako multimediów.</numerusform>
        </translation>
    </message>
    <message>
        <source>No proxy of %1: %2</source>
        <translation>Brak proxy dla %1: %2</translation>
    </message>
</context>
<context>
    <name>ButtonPage</name>
    <message>
        <source>Buttons</source>
        <translation>Przyciski</translation>
    </message>
    <message>
        <source>Several states</source>
        <translation>Kilka stanów</translation>
    </message>
    <message>
        <source>Image and text</source>
        <translation>Obraz i tekst</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Karty</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etykiety</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Ostatni sygnał</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>jeszcze żaden</translation>
    </message>
    <message>
        <source>Pressed %1</source>
        <translation>Wciśnięto %1</translation>
    </message>
    <message>
        <source>Clicked %1 at (%2, %3)</source>
        <translation>Kliknięto %1 w (%2, %3)</translation>
    </message>
    <message>
        <source>Entered %1</source>
        <translation>Wejście na %1</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>Opuszczono %1</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Zwykły</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Z ikoną</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Ulubione</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Zaznaczony</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Wyłączony</translation>
    </message>
    <message>
        <source>Clicked %1, shows %2</source>
        <translation>Kliknięto %1, pokazuje %2</translation>
    </message>
    <message>
        <source>Clicked %1</source>
        <translation>Kliknięto %1</translation>
    </message>
    <message>
        <source>Image left</source>
        <translation>Z lewej</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>U góry</translation>
    </message>
    <message>
        <source>Image right</source>
        <translation>Z prawej</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>U dołu</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Multimedia</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Napisy</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efekty</translation>
    </message>
    <message>
        <source>Selected %1</source>
        <translation>Wybrano %1</translation>
    </message>
    <message>
        <source>for a language from right to left</source>
        <translation>dla języka pisanego od prawej do lewej</translation>
    </message>
    <message>
        <source>for a language from left to right</source>
        <translation>dla języka pisanego od lewej do prawej</translation>
    </message>
</context>
<context>
    <name>ClipActions</name>
    <message>
        <source>Add transition</source>
        <translation>Dodanie przejścia</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Dodanie napisu</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>Zmiana prędkości</translation>
    </message>
    <message>
        <source>Add effect</source>
        <translation>Dodanie efektu</translation>
    </message>
    <message>
        <source>Remove effect</source>
        <translation>Usunięcie efektu</translation>
    </message>
    <message>
        <source>Move effect</source>
        <translation>Przesunięcie efektu</translation>
    </message>
    <message>
        <source>Switch effect</source>
        <translation>Przełączenie efektu</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Zmiana przejścia</translation>
    </message>
</context>
<context>
    <name>ClipFields</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Dopasowanie</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Cały obraz</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>Cały kadr</translation>
    </message>
    <message>
        <source>Stretched</source>
        <translation>Rozciągnięcie</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>Piksel w piksel</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Krycie</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> kl.</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Redukcja szumu</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Głośność</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Obrót</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Centre X</source>
        <translation>Środek X</translation>
    </message>
    <message>
        <source>Centre Y</source>
        <translation>Środek Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Szerokość</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Wysokość</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Tryb</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Zwykły</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Mnożenie</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Mnożenie odwrotności</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Nakładka</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Ciemniej</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Jaśniej</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodawanie</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Różnica</translation>
    </message>
    <message>
        <source>Colour dodge</source>
        <translation>Rozjaśnianie koloru</translation>
    </message>
    <message>
        <source>Colour burn</source>
        <translation>Ściemnianie koloru</translation>
    </message>
    <message>
        <source>Hard light</source>
        <translation>Ostre światło</translation>
    </message>
    <message>
        <source>Soft light</source>
        <translation>Łagodne światło</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Wykluczenie</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balans</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Wysokość dźwięku</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Wycisz</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Narastanie</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Wyciszanie</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source> st</source>
        <translation> półt.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Kolor</translation>
    </message>
</context>
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
        <translation>Brak silnika lub nie można go uruchomić: %1</translation>
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
    <message>
        <source>Write a film of all media files to this file, whose suffix chooses how it is encoded.</source>
        <translation>Zapisz film ze wszystkich plików multimedialnych w tym pliku; jego rozszerzenie wybiera kodowanie.</translation>
    </message>
    <message>
        <source>Preset that the film is encoded with.</source>
        <translation>Zestaw ustawień, z którym film jest kodowany.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAZWA</translation>
    </message>
    <message>
        <source>List the presets for films.</source>
        <translation>Wyświetl zestawy ustawień dla filmów.</translation>
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
    <name>DragPage</name>
    <message>
        <source>Opacity</source>
        <translation>Krycie</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Obrót</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skala</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Wyłączony</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Ostatni sygnał</translation>
    </message>
    <message>
        <source>drag begins at %1</source>
        <translation>przeciąganie zaczyna się od %1</translation>
    </message>
    <message>
        <source>drag ends at %1</source>
        <translation>przeciąganie kończy się na %1</translation>
    </message>
</context>
<context>
    <name>Editor</name>
    <message>
        <source>A small editor.</source>
        <translation>Mały edytor.</translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;.</source>
        <translation>Zapisz obraz okna do &lt;file&gt;.</translation>
    </message>
    <message>
        <source>A project to open, and media for the bin.</source>
        <translation>Projekt do otwarcia i multimedia do zasobnika.</translation>
    </message>
    <message>
        <source>The engine is missing.</source>
        <translation>Brak silnika.</translation>
    </message>
    <message>
        <source>Make a small film of the media by itself, and put pictures, the film and a report into &lt;folder&gt;.</source>
        <translation>Samodzielnie zrobić z multimediów mały film i umieścić obrazy, film i raport w &lt;folderze&gt;.</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>Media</source>
        <translation>Multimedia</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Właściwości</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Oś czasu</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Dziennik</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Eksportuj…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edycja</translation>
    </message>
    <message>
        <source>Lift from in to out point</source>
        <translation>Wyjmij od punktu wejścia do wyjścia</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>Wyjęcie</translation>
    </message>
    <message>
        <source>Extract from in to out point</source>
        <translation>Wytnij z przesunięciem od punktu wejścia do wyjścia</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Wycięcie z przesunięciem</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Multimedia</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>&amp;Oś czasu</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>Od&amp;twarzanie</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Widok</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Skróty klawiszowe</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Pasek narzędzi</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Bez nazwy</translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s) on the file, in the log</source>
        <translation>
            <numerusform>%n uwaga do pliku, w dzienniku</numerusform>
            <numerusform>%n uwagi do pliku, w dzienniku</numerusform>
            <numerusform>%n uwag do pliku, w dzienniku</numerusform>
        </translation>
    </message>
    <message>
        <source>Set an in and an out point first.</source>
        <translation>Najpierw ustaw punkty wejścia i wyjścia.</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Odzyskiwanie</translation>
    </message>
    <message>
        <source>The editor has ended unexpectedly. Changes of %1 until %2 can be opened.</source>
        <translation>Edytor nieoczekiwanie zakończył pracę. Można otworzyć zmiany w %1 wprowadzone do %2.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksport</translation>
    </message>
    <message>
        <source>Films are being written. End that?</source>
        <translation>Trwa zapisywanie filmów. Przerwać?</translation>
    </message>
    <message>
        <source>Render the preview, or stop it</source>
        <translation>Renderuj podgląd lub zatrzymaj</translation>
    </message>
    <message>
        <source>%1 cannot be written to.</source>
        <translation>Nie można zapisać w %1.</translation>
    </message>
    <message>
        <source>Light style</source>
        <translation>Jasny styl</translation>
    </message>
</context>
<context>
    <name>EffectsSection</name>
    <message>
        <source>Add effect</source>
        <translation>Dodaj efekt</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Dźwięk</translation>
    </message>
    <message>
        <source>Apply earlier</source>
        <translation>Stosuj wcześniej</translation>
    </message>
    <message>
        <source>Apply later</source>
        <translation>Stosuj później</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
</context>
<context>
    <name>ExportCheck</name>
    <message>
        <source>This cannot be combined</source>
        <translation>Tych ustawień nie można połączyć</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>Nie ma takiego zestawu ustawień.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>The processor encodes and decodes.</source>
        <translation>Koduje i dekoduje procesor.</translation>
    </message>
    <message>
        <source>The processor encodes; the graphics hardware helps to decode.</source>
        <translation>Koduje procesor; w dekodowaniu pomaga sprzęt graficzny.</translation>
    </message>
    <message>
        <source>Add to the queue</source>
        <translation>Dodaj do kolejki</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksport</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Filmy</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Zestaw ustawień</translation>
    </message>
    <message>
        <source>film</source>
        <translation>film</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Wybierz plik</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Szerokość</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Wysokość</translation>
    </message>
    <message>
        <source>As the project</source>
        <translation>Jak w projekcie</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 kl./s</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Liczba klatek na sekundę</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Dźwięk</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Całość</translation>
    </message>
    <message>
        <source>From in to out</source>
        <translation>Od wejścia do wyjścia</translation>
    </message>
    <message>
        <source>In point</source>
        <translation>Punkt wejścia</translation>
    </message>
    <message>
        <source>Out point</source>
        <translation>Punkt wyjścia</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Zakres</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Sprzęt</translation>
    </message>
    <message>
        <source>Still picture…</source>
        <translation>Obraz nieruchomy…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Writes the frame under the play head</source>
        <translation>Zapisuje klatkę w miejscu głowicy</translation>
    </message>
    <message>
        <source>The project cannot be copied.</source>
        <translation>Nie można skopiować projektu.</translation>
    </message>
    <message>
        <source>Still picture</source>
        <translation>Obraz nieruchomy</translation>
    </message>
    <message>
        <source>/frame %1.png</source>
        <translation>/klatka %1.png</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.tif *.bmp)</source>
        <translation>Obrazy (*.png *.jpg *.tif *.bmp)</translation>
    </message>
    <message>
        <source>%1 is in the queue already.</source>
        <translation>%1 jest już w kolejce.</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 już istnieje. Zastąpić?</translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>Nie ma zestawu ustawień „%1”.</translation>
    </message>
    <message>
        <source>The engine has no presets.</source>
        <translation>Silnik nie ma zestawów ustawień.</translation>
    </message>
    <message>
        <source>encoded: %1 %</source>
        <translation>zakodowano: %1 %</translation>
    </message>
    <message>
        <source>%1 is not written; the log tells why.</source>
        <translation>Plik %1 nie został zapisany; dziennik podaje powód.</translation>
    </message>
</context>
<context>
    <name>ExportQueue</name>
    <message>
        <source>%1 is not written</source>
        <translation>Plik %1 nie został zapisany</translation>
    </message>
</context>
<context>
    <name>ExportQueueView</name>
    <message>
        <source>No films yet</source>
        <translation>Nie ma jeszcze filmów</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Oczekuje</translation>
    </message>
    <message>
        <source>Being written</source>
        <translation>Zapisywanie</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Pozostało %1</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Zapisano</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Anulowano</translation>
    </message>
    <message>
        <source>Take from the list</source>
        <translation>Usuń z listy</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Projects</source>
        <translation>Projekty</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nowy</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Otwórz…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Zapisz jako…</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Otwórz ostatnie</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Bez nazwy</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Zapisywanie zmian</translation>
    </message>
    <message>
        <source>The project has changes that are not saved.</source>
        <translation>W projekcie są niezapisane zmiany.</translation>
    </message>
</context>
<context>
    <name>FileEditor</name>
    <message>
        <source>No file</source>
        <translation>Brak pliku</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Wybierz plik</translation>
    </message>
</context>
<context>
    <name>FontEditor</name>
    <message>
        <source>System font</source>
        <translation>Czcionka systemowa</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Ruler</source>
        <translation>Linijka</translation>
    </message>
    <message>
        <source>Drag the play head; the wheel scrolls, with Ctrl it zooms; a double click fits all.</source>
        <translation>Przeciągnij głowicę; kółko przewija, z Ctrl powiększa; podwójne kliknięcie pokazuje całość.</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Suwaki</translation>
    </message>
    <message>
        <source>Drag, use the wheel, or the arrow keys.</source>
        <translation>Przeciągaj, użyj kółka albo klawiszy strzałek.</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Przyciski i etykiety</translation>
    </message>
    <message>
        <source>The last line tells what they signal.</source>
        <translation>Ostatni wiersz mówi, co sygnalizują.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Copies media from cameras, phones and cards.</source>
        <translation>Kopiuje multimedia z aparatów, telefonów i kart.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Języki</translation>
    </message>
    <message>
        <source>A choice reaches every window at once.</source>
        <translation>Wybór od razu dociera do każdego okna.</translation>
    </message>
    <message>
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Zacznij od strony &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>Wypisz nazwy stron.</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>nie można zapisać %1</translation>
    </message>
    <message>
        <source>no page %1</source>
        <translation>brak strony %1</translation>
    </message>
    <message>
        <source>Drag values</source>
        <translation>Przeciąganie wartości</translation>
    </message>
    <message>
        <source>Drag on a number, with Shift faster, with Ctrl slower; a click edits it.</source>
        <translation>Przeciągaj liczbę, z Shift szybciej, z Ctrl wolniej; kliknięcie ją edytuje.</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Odtwarzacz</translation>
    </message>
    <message>
        <source>Open a file and play it; K plays and pauses, comma and full stop step a frame.</source>
        <translation>Otwórz plik i odtwórz go; K odtwarza i wstrzymuje, przecinek i kropka przesuwają o klatkę.</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>CommonLib widgets</source>
        <translation>Kontrolki CommonLib</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Strony</translation>
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
    <message>
        <source>There is no language %1. Known are: %2</source>
        <translation>Nie ma języka %1. Dostępne: %2</translation>
    </message>
</context>
<context>
    <name>ImportPage</name>
    <message>
        <source>Refresh</source>
        <translation>Odśwież</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wybierz…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Urządzenie</translation>
    </message>
    <message>
        <source>Folder to import into</source>
        <translation>Folder docelowy importu</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>Postęp importu</translation>
    </message>
    <message>
        <source>Import into</source>
        <translation>Importuj do</translation>
    </message>
    <message>
        <source>No device found</source>
        <translation>Nie znaleziono urządzenia</translation>
    </message>
    <message>
        <source>Connect a camera, a phone or a card reader, switch it on and unlock it.</source>
        <translation>Podłącz aparat, telefon lub czytnik kart, włącz go i odblokuj.</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>Otwieranie: %1…</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>Nie można otworzyć: %1</translation>
    </message>
    <message>
        <source>Unlock the device and allow access to its files, then choose it again.</source>
        <translation>Odblokuj urządzenie, zezwól na dostęp do plików i wybierz je ponownie.</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>Odłączono: %1</translation>
    </message>
    <message>
        <source>Connect it again to go on.</source>
        <translation>Podłącz je ponownie, aby kontynuować.</translation>
    </message>
    <message>
        <source>Chosen files: %1 (%2)</source>
        <translation>Wybrane pliki: %1 (%2)</translation>
    </message>
    <message>
        <source>Reading the content… %1 files</source>
        <translation>Odczyt zawartości… Pliki: %1</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>Urządzenie bez nazwy</translation>
    </message>
    <message>
        <source>%1 files on the device</source>
        <translation>Pliki na urządzeniu: %1</translation>
    </message>
    <message>
        <source>The device stopped answering; this may not be all of it.</source>
        <translation>Urządzenie przestało odpowiadać; to może nie być wszystko.</translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation>W tym folderze nie można zapisywać.</translation>
    </message>
    <message>
        <source>Importing… %1 of %2</source>
        <translation>Importowanie… %1 z %2</translation>
    </message>
    <message>
        <source>Imported files: %1 of %2.</source>
        <translation>Zaimportowane pliki: %1 z %2.</translation>
    </message>
    <message>
        <source>The device was removed during the import.</source>
        <translation>Urządzenie odłączono podczas importu.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Anulowano.</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>Nie zaimportowano: %1</translation>
    </message>
    <message>
        <source>Delete from the device afterwards</source>
        <translation>Potem usuń z urządzenia</translation>
    </message>
    <message>
        <source>This folder has room for %1 only.</source>
        <translation>W tym folderze jest miejsce tylko na %1.</translation>
    </message>
    <message>
        <source>Another window has a device open. Close that window, then choose this device again.</source>
        <translation>Inne okno ma otwarte urządzenie. Zamknij tamto okno i wybierz to urządzenie ponownie.</translation>
    </message>
</context>
<context>
    <name>ImportTree</name>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Zmodyfikowano</translation>
    </message>
    <message>
        <source>Content of the device</source>
        <translation>Zawartość urządzenia</translation>
    </message>
</context>
<context>
    <name>KeyFrameBar</name>
    <message>
        <source>Previous key frame</source>
        <translation>Poprzednia klatka kluczowa</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Klatka kluczowa</translation>
    </message>
    <message>
        <source>Next key frame</source>
        <translation>Następna klatka kluczowa</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Wstrzymanie</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Liniowo</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Płynnie</translation>
    </message>
    <message>
        <source>To the next key frame</source>
        <translation>Do następnej klatki kluczowej</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>Język</translation>
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
        <source>%Ln clip(s) selected</source>
        <translation>
            <numerusform>wybrano %Ln klip</numerusform>
            <numerusform>wybrano %Ln klipy</numerusform>
            <numerusform>wybrano %Ln klipów</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LevelHeader</name>
    <message>
        <source>Level %1</source>
        <translation>Ścieżka %1</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Zablokuj</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ukryj</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Wycisz</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>Solo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>Wskaźnik poziomu</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Log</source>
        <translation>Dziennik</translation>
    </message>
</context>
<context>
    <name>MediaBin</name>
    <message>
        <source>Add media</source>
        <translation>Dodanie multimediów</translation>
    </message>
    <message>
        <source>Remove media</source>
        <translation>Usunięcie multimediów</translation>
    </message>
    <message>
        <source>Relink media</source>
        <translation>Ponowne połączenie multimediów</translation>
    </message>
    <message>
        <source>Use the media itself</source>
        <translation>Użycie oryginalnych multimediów</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Użycie proxy</translation>
    </message>
    <message>
        <source>Set in and out point</source>
        <translation>Ustawienie punktów wejścia i wyjścia</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Wyczyszczenie punktów wejścia i wyjścia</translation>
    </message>
    <message>
        <source>Place a clip</source>
        <translation>Umieszczenie klipu</translation>
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
    <message>
        <source>sample rates: %1</source>
        <translation>częstotliwości próbkowania: %1</translation>
    </message>
</context>
<context>
    <name>MovementKeys</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Obrót</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Shift right</source>
        <translation>Przesunięcie w prawo</translation>
    </message>
    <message>
        <source>Shift up</source>
        <translation>Przesunięcie w górę</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Mnożnik szerokości</translation>
    </message>
    <message>
        <source>Height factor</source>
        <translation>Mnożnik wysokości</translation>
    </message>
    <message>
        <source>Opacity factor</source>
        <translation>Mnożnik krycia</translation>
    </message>
</context>
<context>
    <name>MovementSection</name>
    <message>
        <source>Movement</source>
        <translation>Ruch</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Klatka kluczowa</translation>
    </message>
    <message>
        <source>Change movement</source>
        <translation>Zmiana ruchu</translation>
    </message>
</context>
<context>
    <name>ParameterFields</name>
    <message>
        <source> %</source>
        <translation>%</translation>
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
        <translation> kl.</translation>
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
        <translation>Umieszczenie obrazu</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Obraz</translation>
    </message>
</context>
<context>
    <name>PlayerPage</name>
    <message>
        <source>Nothing is open.</source>
        <translation>Nic nie jest otwarte.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Pozycja</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Jedna klatka wstecz</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Odtwórz</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Jedna klatka naprzód</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Prędkość</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Pętla</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Otwórz…</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Wycisz</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Głośność</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Obszary bezpieczne</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Dopasuj</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Wypełnij</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Wielkość obrazu</translation>
    </message>
    <message>
        <source>Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms</source>
        <translation>Ostatnia sekunda: pokazane %1, pominięte %2, spóźnione %3, z pamięci podręcznej %4, odchyłka %5 ms</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>Nie można odtworzyć %1.</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>Gotowe: %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
</context>
<context>
    <name>PlayerPanel</name>
    <message>
        <source>Play or pause</source>
        <translation>Odtwórz lub wstrzymaj</translation>
    </message>
    <message>
        <source>Play backwards</source>
        <translation>Odtwarzaj wstecz</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Play forwards</source>
        <translation>Odtwarzaj do przodu</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Pętla</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Jedna klatka wstecz</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Jedna klatka naprzód</translation>
    </message>
    <message>
        <source>Go to beginning</source>
        <translation>Przejdź na początek</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>Przejdź na koniec</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Ustaw punkt wejścia</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Ustaw punkt wyjścia</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Wyczyść punkty wejścia i wyjścia</translation>
    </message>
    <message>
        <source>Go to in point</source>
        <translation>Przejdź do punktu wejścia</translation>
    </message>
    <message>
        <source>Go to out point</source>
        <translation>Przejdź do punktu wyjścia</translation>
    </message>
    <message>
        <source>Set or remove marker</source>
        <translation>Ustaw lub usuń znacznik</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Wycisz</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Obszary bezpieczne</translation>
    </message>
    <message>
        <source>Picture on full screen</source>
        <translation>Obraz na pełnym ekranie</translation>
    </message>
    <message>
        <source>Timecode of the play head</source>
        <translation>Kod czasowy głowicy</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Głowica</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Głośność</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>The project cannot be made</source>
        <translation>Nie można utworzyć projektu</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>Nie można otworzyć %1</translation>
    </message>
    <message>
        <source>%1 cannot be saved</source>
        <translation>Nie można zapisać %1</translation>
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
        <translation>Liczba klatek na sekundę</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> kl./s</translation>
    </message>
    <message>
        <source>Preview scale</source>
        <translation>Skala podglądu</translation>
    </message>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Tło</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Szerokość</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Wysokość</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Częstotliwość próbkowania</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanały</translation>
    </message>
    <message>
        <source>Bits of a colour</source>
        <translation>Bity na kolor</translation>
    </message>
    <message>
        <source>Smooth scaling</source>
        <translation>Wygładzanie przy skalowaniu</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Głośność</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balans</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Wycisz</translation>
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
        <translation>Właściwości</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Napis</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Kolor</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Klip</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Rysowanie</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efekty</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Dodaj napis</translation>
    </message>
    <message>
        <source>Mixer, level %1</source>
        <translation>Mikser, ścieżka %1</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Przejście</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>Położenie</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Mieszanie</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>Ruch</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Prędkość</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Dźwięk</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Przejścia</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametry</translation>
    </message>
</context>
<context>
    <name>PropertyForm</name>
    <message>
        <source>Back to the preset</source>
        <translation>Przywróć wartość domyślną</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Zmiana: %1</translation>
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
        <translation>Pomniejsz</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Powiększ</translation>
    </message>
</context>
<context>
    <name>ShortcutList</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Skróty klawiszowe</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Polecenie</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Klawisze</translation>
    </message>
</context>
<context>
    <name>SliderPage</name>
    <message>
        <source>Seek bar</source>
        <translation>Pasek przewijania odtwarzania</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Zwykły</translation>
    </message>
    <message>
        <source>Other chunk and groove</source>
        <translation>Inne wypełnienie i rowek</translation>
    </message>
    <message>
        <source>From right to left</source>
        <translation>Od prawej do lewej</translation>
    </message>
    <message>
        <source>Empty range</source>
        <translation>Pusty zakres</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Wyłączony</translation>
    </message>
    <message>
        <source>Zoom bar</source>
        <translation>Pasek powiększenia</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Mirrored layout</source>
        <translation>Układ lustrzany</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Pasek</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>Inne kolory</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Pionowo</translation>
    </message>
</context>
<context>
    <name>SpeedSection</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Prędkość</translation>
    </message>
    <message>
        <source>Back to the preset</source>
        <translation>Przywróć wartość domyślną</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>The frame cannot be drawn</source>
        <translation>Nie można narysować klatki</translation>
    </message>
    <message>
        <source>%1 is not written: %2</source>
        <translation>Plik %1 nie został zapisany: %2</translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>Colour</source>
        <translation>Kolor</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Klip złożony</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Przeniesienie</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Przyciąganie</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Przesunięcie cięcia</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Przycięcie</translation>
    </message>
    <message>
        <source>Slip</source>
        <translation>Przesunięcie zawartości</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Przesunięcie między klipami</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Wytnij</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Wklej</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Wklej z przesunięciem</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Usuń z przesunięciem</translation>
    </message>
    <message>
        <source>Split at play head</source>
        <translation>Podziel w miejscu głowicy</translation>
    </message>
    <message>
        <source>Trim begin to play head</source>
        <translation>Przytnij początek do głowicy</translation>
    </message>
    <message>
        <source>Trim end to play head</source>
        <translation>Przytnij koniec do głowicy</translation>
    </message>
    <message>
        <source>Close gap at play head</source>
        <translation>Zamknij lukę w miejscu głowicy</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupuj</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Rozgrupuj</translation>
    </message>
    <message>
        <source>Lock or unlock level</source>
        <translation>Zablokuj lub odblokuj ścieżkę</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message>
        <source>Select at play head</source>
        <translation>Zaznacz w miejscu głowicy</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Usuń zaznaczenie</translation>
    </message>
    <message>
        <source>Frame earlier</source>
        <translation>Klatkę wcześniej</translation>
    </message>
    <message>
        <source>Frame later</source>
        <translation>Klatkę później</translation>
    </message>
    <message>
        <source>Second earlier</source>
        <translation>Sekundę wcześniej</translation>
    </message>
    <message>
        <source>Second later</source>
        <translation>Sekundę później</translation>
    </message>
    <message>
        <source>Level up</source>
        <translation>Ścieżkę wyżej</translation>
    </message>
    <message>
        <source>Level down</source>
        <translation>Ścieżkę niżej</translation>
    </message>
    <message>
        <source>Previous cut</source>
        <translation>Poprzednie cięcie</translation>
    </message>
    <message>
        <source>Next cut</source>
        <translation>Następne cięcie</translation>
    </message>
    <message>
        <source>Selection tool</source>
        <translation>Narzędzie zaznaczania</translation>
    </message>
    <message>
        <source>Ripple tool</source>
        <translation>Narzędzie przycinania z przesunięciem</translation>
    </message>
    <message>
        <source>Roll tool</source>
        <translation>Narzędzie przesuwania cięcia</translation>
    </message>
    <message>
        <source>Slip tool</source>
        <translation>Narzędzie przesuwania zawartości</translation>
    </message>
    <message>
        <source>Slide tool</source>
        <translation>Narzędzie przesuwania między klipami</translation>
    </message>
    <message>
        <source>Razor tool</source>
        <translation>Żyletka</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Powiększ</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Pomniejsz</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Dopasuj do okna</translation>
    </message>
    <message>
        <source>Taller levels</source>
        <translation>Zwiększ wysokość ścieżek</translation>
    </message>
    <message>
        <source>Lower levels</source>
        <translation>Zmniejsz wysokość ścieżek</translation>
    </message>
    <message>
        <source>Ripple trim</source>
        <translation>Przycięcie z przesunięciem</translation>
    </message>
    <message>
        <source>Hide or show level</source>
        <translation>Ukryj lub pokaż ścieżkę</translation>
    </message>
    <message>
        <source>Mute or unmute level</source>
        <translation>Wycisz lub włącz ścieżkę</translation>
    </message>
    <message>
        <source>Level solo or not</source>
        <translation>Ścieżka solo lub nie</translation>
    </message>
</context>
<context>
    <name>TimelineCommands</name>
    <message>
        <source>Split</source>
        <translation>Podział</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usunięcie</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Wycięcie</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Wklejenie</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupowanie</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Rozgrupowanie</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Przeniesienie</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Usunięcie z przesunięciem</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Wklejenie z przesunięciem</translation>
    </message>
    <message>
        <source>Close gap</source>
        <translation>Zamknięcie luki</translation>
    </message>
    <message>
        <source>Lock level</source>
        <translation>Zablokowanie ścieżki</translation>
    </message>
    <message>
        <source>Unlock level</source>
        <translation>Odblokowanie ścieżki</translation>
    </message>
    <message>
        <source>Rename level</source>
        <translation>Zmiana nazwy ścieżki</translation>
    </message>
</context>
<context>
    <name>TimelinePanel</name>
    <message>
        <source>Timeline</source>
        <translation>Oś czasu</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Głowica</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Klipy</translation>
    </message>
    <message>
        <source>%1, level %2, frames %3 to %4</source>
        <translation>%1, ścieżka %2, klatki od %3 do %4</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Linijka</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>Split</source>
        <translation>Podział</translation>
    </message>
    <message>
        <source>Insert media</source>
        <translation>Wstawienie multimediów</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Dodanie multimediów</translation>
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
        <translation>Rodzaj</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Długość</translation>
    </message>
</context>
<context>
    <name>TransitionSection</name>
    <message>
        <source>At the beginning</source>
        <translation>Na początku</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>Na końcu</translation>
    </message>
</context>
<context>
    <name>Transport</name>
    <message>
        <source>Remove marker</source>
        <translation>Usunięcie znacznika</translation>
    </message>
    <message>
        <source>Set marker</source>
        <translation>Ustawienie znacznika</translation>
    </message>
</context>
</TS>
