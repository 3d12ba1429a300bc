<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>ClipStrip</name>
    <message>
        <source>Opening</source>
        <translation>Apertura</translation>
    </message>
    <message>
        <source>Harbour at dawn</source>
        <translation>Porto all’alba</translation>
    </message>
    <message>
        <source>Interview, part 1</source>
        <translation>Intervista, parte 1</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>Mercato</translation>
    </message>
    <message>
        <source>Interview, part 2</source>
        <translation>Intervista, parte 2</translation>
    </message>
    <message>
        <source>Night drive</source>
        <translation>Viaggio notturno</translation>
    </message>
</context>
<context>
    <name>CommonLibDemo</name>
    <message>
        <source>The log %1 cannot be opened; going on without it.</source>
        <translation>Impossibile aprire il registro %1; si prosegue senza.</translation>
    </message>
    <message>
        <source>The engine is missing or does not start: %1</source>
        <translation>Il motore manca o non si avvia: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Impossibile creare la cartella %1.</translation>
    </message>
    <message>
        <source>Tells what media files are and writes a contact sheet of each.</source>
        <translation>Descrive i file multimediali e scrive un provino a contatto di ciascuno.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Mostra questo aiuto.</translation>
    </message>
    <message>
        <source>Folder for results.</source>
        <translation>Cartella dei risultati.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>CARTELLA</translation>
    </message>
    <message>
        <source>Log file, by default %1 among the results.</source>
        <translation>File di registro, in mancanza %1 tra i risultati.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>Print the log as well.</source>
        <translation>Mostra anche il registro.</translation>
    </message>
    <message>
        <source>Media files.</source>
        <translation>File multimediali.</translation>
    </message>
    <message>
        <source>MEDIA…</source>
        <translation>MEDIA…</translation>
    </message>
    <message>
        <source>No media file named.</source>
        <translation>Nessun file multimediale indicato.</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>nessuna immagine</translation>
    </message>
</context>
<context>
    <name>HostLanguage</name>
    <message>
        <source>Language of the texts from now on, such as German.</source>
        <translation>Lingua dei testi d’ora in poi, per esempio German.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Import media…</source>
        <translation>Importa media…</translation>
    </message>
    <message>
        <source>Split at the play head</source>
        <translation>Dividi all’indicatore</translation>
    </message>
    <message>
        <source>Add a transition</source>
        <translation>Aggiungi una transizione</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Salva il progetto</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Esporta…</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Lingua:</translation>
    </message>
    <message>
        <source>Font of the language:</source>
        <translation>Carattere della lingua:</translation>
    </message>
    <message>
        <source>Drawn in:</source>
        <translation>Disegnato con:</translation>
    </message>
    <message>
        <source>Reading direction:</source>
        <translation>Direzione di lettura:</translation>
    </message>
    <message>
        <source>Clips:</source>
        <translation>Clip:</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Esempio</translation>
    </message>
    <message>
        <source>right to left</source>
        <translation>da destra a sinistra</translation>
    </message>
    <message>
        <source>left to right</source>
        <translation>da sinistra a destra</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) selected</source>
        <translation>
            <numerusform>%n clip selezionata</numerusform>
            <numerusform>%n clip selezionate</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaJob</name>
    <message>
        <source>does not exist</source>
        <translation>non esiste</translation>
    </message>
    <message>
        <source>is a folder, not a media file</source>
        <translation>è una cartella, non un file multimediale</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>non è un file normale</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>è vuoto</translation>
    </message>
    <message>
        <source>may not be read by this user</source>
        <translation>non può essere letto da questo utente</translation>
    </message>
    <message>
        <source>cannot be read as media</source>
        <translation>non può essere letto come file multimediale</translation>
    </message>
    <message>
        <source>holds neither picture nor sound</source>
        <translation>non contiene né immagini né audio</translation>
    </message>
    <message>
        <source>has no frames</source>
        <translation>non ha fotogrammi</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>fotogramma %1</translation>
    </message>
    <message>
        <source>picture %1 of %2: frame %3, %4</source>
        <translation>immagine %1 di %2: fotogramma %3, %4</translation>
    </message>
    <message>
        <source>%1, not decoded</source>
        <translation>%1, non decodificato</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation>nessuna delle sue immagini può essere decodificata</translation>
    </message>
    <message>
        <source>%1 of %2 pictures cannot be decoded; the file may be damaged</source>
        <translation>%1 immagini su %2 non possono essere decodificate; il file potrebbe essere danneggiato</translation>
    </message>
    <message>
        <source>wave form: part %1 of %2</source>
        <translation>forma d’onda: parte %1 di %2</translation>
    </message>
    <message>
        <source>its sound cannot be decoded</source>
        <translation>il suo audio non può essere decodificato</translation>
    </message>
    <message>
        <source>the result cannot be written to %1</source>
        <translation>il risultato non può essere scritto in %1</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>scritto: %1</translation>
    </message>
</context>
<context>
    <name>MediaReport</name>
    <message>
        <source>unknown codec</source>
        <translation>codec sconosciuto</translation>
    </message>
    <message>
        <source>video</source>
        <translation>video</translation>
    </message>
    <message>
        <source>rotated by %1°</source>
        <translation>ruotato di %1°</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
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
            <numerusform>%n canale</numerusform>
            <numerusform>%n canali</numerusform>
        </translation>
    </message>
    <message>
        <source>other</source>
        <translation>altro</translation>
    </message>
    <message>
        <source>Still picture, %1</source>
        <translation>Immagine fissa, %1</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>No picture and no sound</source>
        <translation>Né immagini né audio</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n fotogramma</numerusform>
            <numerusform>%n fotogrammi</numerusform>
        </translation>
    </message>
    <message>
        <source>stream %1: %2</source>
        <translation>flusso %1: %2</translation>
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
