<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>ButtonPage</name>
    <message>
        <source>Buttons</source>
        <translation>Pulsanti</translation>
    </message>
    <message>
        <source>Several states</source>
        <translation>Più stati</translation>
    </message>
    <message>
        <source>Image and text</source>
        <translation>Immagine e testo</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Schede</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etichette</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Ultimo segnale</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>ancora nessuno</translation>
    </message>
    <message>
        <source>Pressed %1</source>
        <translation>Premuto: %1</translation>
    </message>
    <message>
        <source>Clicked %1 at (%2, %3)</source>
        <translation>Clic su %1 in (%2, %3)</translation>
    </message>
    <message>
        <source>Entered %1</source>
        <translation>Entrato in %1</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>Uscito da %1</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Con icona</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Preferito</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Selezionato</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Clicked %1, shows %2</source>
        <translation>Clic su %1, mostra %2</translation>
    </message>
    <message>
        <source>Clicked %1</source>
        <translation>Clic su %1</translation>
    </message>
    <message>
        <source>Image left</source>
        <translation>A sinistra</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>Sopra</translation>
    </message>
    <message>
        <source>Image right</source>
        <translation>A destra</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Sotto</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Titoli</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effetti</translation>
    </message>
    <message>
        <source>Selected %1</source>
        <translation>Selezionato: %1</translation>
    </message>
    <message>
        <source>for a language from right to left</source>
        <translation>per una lingua da destra a sinistra</translation>
    </message>
    <message>
        <source>for a language from left to right</source>
        <translation>per una lingua da sinistra a destra</translation>
    </message>
</context>
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
        <translation>File di registro, per impostazione predefinita %1 tra i risultati.</translation>
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
    <message>
        <source>Write a film of all media files to this file, whose suffix chooses how it is encoded.</source>
        <translation>Scrive un filmato di tutti i file multimediali in questo file, la cui estensione sceglie la codifica.</translation>
    </message>
    <message>
        <source>Preset that the film is encoded with.</source>
        <translation>Preimpostazione con cui il filmato è codificato.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>List the presets for films.</source>
        <translation>Elenca le preimpostazioni per i filmati.</translation>
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
    <name>DragPage</name>
    <message>
        <source>Opacity</source>
        <translation>Opacità</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Scala</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Ultimo segnale</translation>
    </message>
    <message>
        <source>drag begins at %1</source>
        <translation>il trascinamento inizia a %1</translation>
    </message>
    <message>
        <source>drag ends at %1</source>
        <translation>il trascinamento finisce a %1</translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>Non esiste la preimpostazione «%1».</translation>
    </message>
    <message>
        <source>The engine has no presets.</source>
        <translation>Il motore non ha preimpostazioni.</translation>
    </message>
    <message>
        <source>encoded: %1 %</source>
        <translation>codificato: %1 %</translation>
    </message>
    <message>
        <source>%1 is not written; the log tells why.</source>
        <translation>%1 non viene scritto; il registro spiega perché.</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Ruler</source>
        <translation>Righello</translation>
    </message>
    <message>
        <source>Drag the play head; the wheel scrolls, with Ctrl it zooms; a double click fits all.</source>
        <translation>Trascina l’indicatore; la rotellina scorre, con Ctrl ingrandisce; un doppio clic mostra tutto.</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Cursori</translation>
    </message>
    <message>
        <source>Drag, use the wheel, or the arrow keys.</source>
        <translation>Trascina, usa la rotellina o i tasti freccia.</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Pulsanti ed etichette</translation>
    </message>
    <message>
        <source>The last line tells what they signal.</source>
        <translation>L’ultima riga dice che cosa segnalano.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>Copies media from cameras, phones and cards.</source>
        <translation>Copia i media da fotocamere, telefoni e schede.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Lingue</translation>
    </message>
    <message>
        <source>A choice reaches every window at once.</source>
        <translation>La scelta raggiunge subito ogni finestra.</translation>
    </message>
    <message>
        <source>Shows the library&apos;s widgets.</source>
        <translation>Mostra i controlli della libreria.</translation>
    </message>
    <message>
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Comincia dalla pagina &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>Elenca i nomi delle pagine.</translation>
    </message>
    <message>
        <source>Write a picture of the page to &lt;file&gt;.</source>
        <translation>Scrive un’immagine della pagina in &lt;file&gt;.</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>impossibile scrivere %1</translation>
    </message>
    <message>
        <source>no page %1</source>
        <translation>nessuna pagina %1</translation>
    </message>
    <message>
        <source>Drag values</source>
        <translation>Trascinare valori</translation>
    </message>
    <message>
        <source>Drag on a number, with Shift faster, with Ctrl slower; a click edits it.</source>
        <translation>Trascina un numero, con Maiusc più veloce, con Ctrl più lento; un clic lo modifica.</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Lettore</translation>
    </message>
    <message>
        <source>Open a file and play it; K plays and pauses, comma and full stop step a frame.</source>
        <translation>Apri un file e riproducilo; K avvia e mette in pausa, virgola e punto spostano di un fotogramma.</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>CommonLib widgets</source>
        <translation>Controlli di CommonLib</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
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
    <message>
        <source>There is no language %1. Known are: %2</source>
        <translation>La lingua %1 non esiste. Lingue note: %2</translation>
    </message>
</context>
<context>
    <name>ImportPage</name>
    <message>
        <source>Refresh</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Scegli…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Folder to import into</source>
        <translation>Cartella di destinazione</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>Avanzamento dell’importazione</translation>
    </message>
    <message>
        <source>Import into</source>
        <translation>Importa in</translation>
    </message>
    <message>
        <source>No device found</source>
        <translation>Nessun dispositivo trovato</translation>
    </message>
    <message>
        <source>Connect a camera, a phone or a card reader, switch it on and unlock it.</source>
        <translation>Collega una fotocamera, un telefono o un lettore di schede, accendilo e sbloccalo.</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>Apertura di %1…</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>Impossibile aprire %1</translation>
    </message>
    <message>
        <source>Unlock the device and allow access to its files, then choose it again.</source>
        <translation>Sblocca il dispositivo, consenti l’accesso ai suoi file e sceglilo di nuovo.</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 è stato rimosso</translation>
    </message>
    <message>
        <source>Connect it again to go on.</source>
        <translation>Ricollegalo per continuare.</translation>
    </message>
    <message>
        <source>Chosen files: %1 (%2)</source>
        <translation>File scelti: %1 (%2)</translation>
    </message>
    <message>
        <source>Reading the content… %1 files</source>
        <translation>Lettura del contenuto… File: %1</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>Dispositivo senza nome</translation>
    </message>
    <message>
        <source>%1 files on the device</source>
        <translation>File sul dispositivo: %1</translation>
    </message>
    <message>
        <source>The device stopped answering; this may not be all of it.</source>
        <translation>Il dispositivo non risponde più; potrebbe mancare qualcosa.</translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation>In questa cartella non si può scrivere.</translation>
    </message>
    <message>
        <source>Importing… %1 of %2</source>
        <translation>Importazione… %1 di %2</translation>
    </message>
    <message>
        <source>Imported files: %1 of %2.</source>
        <translation>File importati: %1 di %2.</translation>
    </message>
    <message>
        <source>The device was removed during the import.</source>
        <translation>Il dispositivo è stato rimosso durante l’importazione.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annullato.</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>Non importato: %1</translation>
    </message>
    <message>
        <source>Delete from the device afterwards</source>
        <translation>Elimina poi dal dispositivo</translation>
    </message>
    <message>
        <source>This folder has room for %1 only.</source>
        <translation>In questa cartella c’è spazio solo per %1.</translation>
    </message>
</context>
<context>
    <name>ImportTree</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modificato</translation>
    </message>
    <message>
        <source>Content of the device</source>
        <translation>Contenuto del dispositivo</translation>
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
        <source>%Ln clip(s) selected</source>
        <translation>
            <numerusform>%Ln clip selezionata</numerusform>
            <numerusform>%Ln clip selezionate</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>Indicatore di livello</translation>
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
    <message>
        <source>sample rates: %1</source>
        <translation>frequenze di campionamento: %1</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Immagine</translation>
    </message>
</context>
<context>
    <name>PlayerPage</name>
    <message>
        <source>Nothing is open.</source>
        <translation>Non c’è nulla di aperto.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Indietro di un fotogramma</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Avanti di un fotogramma</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Ciclo</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Apri…</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Disattiva audio</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Aree sicure</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Riempi</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Dimensione dell’immagine</translation>
    </message>
    <message>
        <source>Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms</source>
        <translation>Ultimo secondo: %1 mostrati, %2 saltati, %3 in ritardo, %4 dalla cache, scarto %5 ms</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>Impossibile riprodurre %1.</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>Pronto: %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
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
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ingrandisci</translation>
    </message>
</context>
<context>
    <name>SliderPage</name>
    <message>
        <source>Seek bar</source>
        <translation>Barra di riproduzione</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Other chunk and groove</source>
        <translation>Altro riempimento e altra scanalatura</translation>
    </message>
    <message>
        <source>From right to left</source>
        <translation>Da destra a sinistra</translation>
    </message>
    <message>
        <source>Empty range</source>
        <translation>Intervallo vuoto</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Zoom bar</source>
        <translation>Barra dello zoom</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Mirrored layout</source>
        <translation>Disposizione speculare</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Barra</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>Altri colori</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Verticale</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Righello</translation>
    </message>
</context>
</TS>
