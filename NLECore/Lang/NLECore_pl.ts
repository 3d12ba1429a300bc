<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>NLECore</name>
    <message>
        <source>Uncompressed 4:2:2, 10 bits</source>
        <translation>Bez kompresji 4:2:2, 10 bitów</translation>
    </message>
    <message>
        <source>MPEG transport stream</source>
        <translation>Strumień transportowy MPEG</translation>
    </message>
    <message>
        <source>MPEG program stream</source>
        <translation>Strumień programowy MPEG</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>Animowany GIF</translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation>Sekwencja PNG</translation>
    </message>
    <message>
        <source>TIFF sequence</source>
        <translation>Sekwencja TIFF</translation>
    </message>
    <message>
        <source>JPEG sequence</source>
        <translation>Sekwencja JPEG</translation>
    </message>
    <message>
        <source>MPEG-4 sound</source>
        <translation>Dźwięk MPEG-4</translation>
    </message>
    <message>
        <source>Ogg sound</source>
        <translation>Dźwięk Ogg</translation>
    </message>
    <message>
        <source>Windows Media sound</source>
        <translation>Dźwięk Windows Media</translation>
    </message>
    <message>
        <source>H.264 for archives</source>
        <translation>H.264 do archiwum</translation>
    </message>
    <message>
        <source>H.264 for streaming</source>
        <translation>H.264 do strumieniowania</translation>
    </message>
    <message>
        <source>H.264 lossless</source>
        <translation>H.264 bezstratny</translation>
    </message>
    <message>
        <source>H.265 10 bits</source>
        <translation>H.265 10-bitowy</translation>
    </message>
    <message>
        <source>VP9 with alpha</source>
        <translation>VP9 z kanałem alfa</translation>
    </message>
    <message>
        <source>TIFF sequence 16 bits</source>
        <translation>Sekwencja TIFF 16-bitowa</translation>
    </message>
    <message>
        <source>MPEG-2 interlaced</source>
        <translation>MPEG-2 z przeplotem</translation>
    </message>
    <message>
        <source>WAV 24 bits</source>
        <translation>WAV 24-bitowy</translation>
    </message>
    <message>
        <source>No failure</source>
        <translation>Brak błędu</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Niepowodzenie</translation>
    </message>
    <message>
        <source>Something that has to be given is missing</source>
        <translation>Brakuje wymaganego elementu</translation>
    </message>
    <message>
        <source>A value that is not accepted</source>
        <translation>Niedozwolona wartość</translation>
    </message>
    <message>
        <source>Outside of the range</source>
        <translation>Poza zakresem</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>Nie ma niczego o tej nazwie</translation>
    </message>
    <message>
        <source>There is nothing of this number</source>
        <translation>Nie ma niczego o tym numerze</translation>
    </message>
    <message>
        <source>Not possible at this time</source>
        <translation>W tej chwili niemożliwe</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>Niedostępne</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Za mało pamięci</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Anulowano</translation>
    </message>
    <message>
        <source>A value that cannot be changed</source>
        <translation>Tej wartości nie można zmienić</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>Nie ma takiej wartości</translation>
    </message>
    <message>
        <source>There is nothing to show or to write</source>
        <translation>Nie ma niczego do wyświetlenia ani do zapisania</translation>
    </message>
    <message>
        <source>This object cannot be used there</source>
        <translation>Tego obiektu nie można tam użyć</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Plik nie istnieje</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Nie można odczytać pliku</translation>
    </message>
    <message>
        <source>The file is damaged or of no known format</source>
        <translation>Plik jest uszkodzony lub ma nieznany format</translation>
    </message>
    <message>
        <source>The file or folder cannot be written</source>
        <translation>Nie można zapisać w pliku lub folderze</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Dysk jest pełny</translation>
    </message>
    <message>
        <source>There is no format of this name to write</source>
        <translation>Nie ma formatu zapisu o tej nazwie</translation>
    </message>
    <message>
        <source>The format does not take these settings</source>
        <translation>Format nie przyjmuje tych ustawień</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Ekspozycja</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>Poziom czerni</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Jasność</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Punkt obrotu</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Nasycenie</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Balans bieli</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura barwowa</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Odcień</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Krzywe</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Główna</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Czerwony</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zielony</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Niebieski</translation>
    </message>
    <message>
        <source>Lookup table</source>
        <translation>Tablica LUT</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Intensywność</translation>
    </message>
    <message>
        <source>Chroma key</source>
        <translation>Kluczowanie kolorem</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Kolor</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerancja</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Miękkość krawędzi</translation>
    </message>
    <message>
        <source>Spill removal</source>
        <translation>Usuwanie zafarbu</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Kadrowanie</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Lewo</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Góra</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Prawo</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Dół</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Winieta</translation>
    </message>
    <message>
        <source>Centre across</source>
        <translation>Środek w poziomie</translation>
    </message>
    <message>
        <source>Centre down</source>
        <translation>Środek w pionie</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Czarno-biały</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Częstotliwość</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>Rezonans</translation>
    </message>
    <message>
        <source>Target loudness</source>
        <translation>Docelowa głośność</translation>
    </message>
    <message>
        <source>Highest true peak</source>
        <translation>Najwyższy szczyt rzeczywisty</translation>
    </message>
    <message>
        <source>Measured loudness</source>
        <translation>Zmierzona głośność</translation>
    </message>
    <message>
        <source>Measured loudness range</source>
        <translation>Zmierzony zakres głośności</translation>
    </message>
    <message>
        <source>Measured true peak</source>
        <translation>Zmierzony szczyt rzeczywisty</translation>
    </message>
    <message>
        <source>Attack</source>
        <translation>Atak</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Zwolnienie</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Próg</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>Kompresor</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Stopień kompresji</translation>
    </message>
    <message>
        <source>Make-up gain</source>
        <translation>Wzmocnienie wyrównujące</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Limiter</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limit</translation>
    </message>
    <message>
        <source>Noise gate</source>
        <translation>Bramka szumów</translation>
    </message>
    <message>
        <source>Reduction</source>
        <translation>Redukcja</translation>
    </message>
    <message>
        <source>Reverb</source>
        <translation>Pogłos</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas pogłosu</translation>
    </message>
    <message>
        <source>First reflection</source>
        <translation>Pierwsze odbicie</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Miks</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Echo</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Opóźnienie</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Poziom</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Liczba powtórzeń</translation>
    </message>
    <message>
        <source>High pass</source>
        <translation>Filtr górnoprzepustowy</translation>
    </message>
    <message>
        <source>Low pass</source>
        <translation>Filtr dolnoprzepustowy</translation>
    </message>
    <message>
        <source>De-esser</source>
        <translation>De-esser</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Głębokość</translation>
    </message>
    <message>
        <source>Loudness normalisation</source>
        <translation>Normalizacja głośności</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Rozmycie</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Wyostrzenie</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Odbicie lustrzane</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>W poziomie</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>W pionie</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Redukcja szumu</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Siła</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>Cień</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>Przesunięcie w poziomie</translation>
    </message>
    <message>
        <source>Offset down</source>
        <translation>Przesunięcie w pionie</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Krycie</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Czcionka</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Pogrubienie</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursywa</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>Odstęp między literami</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Interlinia</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Kierunek</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatyczny</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Od lewej do prawej</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Od prawej do lewej</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Wyrównanie</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Do środka</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Położenie w pionie</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Środek</translation>
    </message>
    <message>
        <source>Shift to the right</source>
        <translation>Przesunięcie w prawo</translation>
    </message>
    <message>
        <source>Shift downwards</source>
        <translation>Przesunięcie w dół</translation>
    </message>
    <message>
        <source>Longest line</source>
        <translation>Największa długość wiersza</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margines</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Outline colour</source>
        <translation>Kolor konturu</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>Kolor cienia</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>Cień w prawo</translation>
    </message>
    <message>
        <source>Shadow downwards</source>
        <translation>Cień w dół</translation>
    </message>
    <message>
        <source>Shadow blur</source>
        <translation>Rozmycie cienia</translation>
    </message>
    <message>
        <source>Box colour</source>
        <translation>Kolor ramki tła</translation>
    </message>
    <message>
        <source>Box padding</source>
        <translation>Margines wewnętrzny ramki</translation>
    </message>
    <message>
        <source>Box corners</source>
        <translation>Narożniki ramki</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Pojawianie się</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Zanikanie</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Przewijanie</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>W górę</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>W dół</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>W lewo</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>W prawo</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Napis</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Przenikanie dźwięku</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Liniowe</translation>
    </message>
    <message>
        <source>Equal power</source>
        <translation>Stała moc</translation>
    </message>
    <message>
        <source>No fade</source>
        <translation>Bez przenikania</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Odwróć</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>W prawo w dół</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>W lewo w dół</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>W prawo w górę</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>W lewo w górę</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Poziomo</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Pionowo</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Przenikanie</translation>
    </message>
    <message>
        <source>Dip to colour</source>
        <translation>Przejście przez kolor</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Wycieranie</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Okrąg</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Romb</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Zegar</translation>
    </message>
    <message>
        <source>Barn doors</source>
        <translation>Wrota</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>Wypychanie</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Wsuwanie</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Powiększenie</translation>
    </message>
    <message>
        <source>An effect was left out</source>
        <translation>Pominięto efekt</translation>
    </message>
    <message>
        <source>A transition was left out</source>
        <translation>Pominięto przejście</translation>
    </message>
    <message>
        <source>A clip of an unknown kind shows an empty picture</source>
        <translation>Klip nieznanego rodzaju pokazuje pusty obraz</translation>
    </message>
    <message>
        <source>A clip that plays backwards plays forwards</source>
        <translation>Klip odtwarzany wstecz jest odtwarzany do przodu</translation>
    </message>
    <message>
        <source>A change of speed was left out or is only close</source>
        <translation>Zmianę prędkości pominięto lub jest tylko przybliżona</translation>
    </message>
    <message>
        <source>A file is missing; its clip is offline</source>
        <translation>Brakuje pliku; jego klip jest offline</translation>
    </message>
    <message>
        <source>A part of the document cannot be used</source>
        <translation>Części dokumentu nie można użyć</translation>
    </message>
    <message>
        <source>Markers are kept as text only</source>
        <translation>Znaczniki zachowano tylko jako tekst</translation>
    </message>
    <message>
        <source>A volume, balance or opacity is only close</source>
        <translation>Głośność, balans lub krycie są tylko przybliżone</translation>
    </message>
    <message>
        <source>There is no such device</source>
        <translation>Urządzenie nie istnieje</translation>
    </message>
    <message>
        <source>The track is locked</source>
        <translation>Ścieżka jest zablokowana</translation>
    </message>
    <message>
        <source>Clips would overlap</source>
        <translation>Klipy nachodziłyby na siebie</translation>
    </message>
    <message>
        <source>The clip has no more material</source>
        <translation>Klip nie ma więcej materiału</translation>
    </message>
    <message>
        <source>Nothing would be left of the clip</source>
        <translation>Z klipu nic by nie zostało</translation>
    </message>
    <message>
        <source>A transition cannot be cut</source>
        <translation>Przejścia nie można przeciąć</translation>
    </message>
</context>
</TS>
