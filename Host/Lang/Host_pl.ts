<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
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
        <source>Shows the library&apos;s widgets.</source>
        <translation>Pokazuje kontrolki biblioteki.</translation>
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
        <source>Write a picture of the page to &lt;file&gt;.</source>
        <translation>Zapisz obraz strony do &lt;file&gt;.</translation>
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
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>Wskaźnik poziomu</translation>
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
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Linijka</translation>
    </message>
</context>
</TS>
