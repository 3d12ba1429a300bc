<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>AboutBox</name>
    <message>
        <source>Product: %1</source>
        <translation>Prodotto: %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>A small editor that shows what the library does.</source>
        <translation>Un piccolo editor che mostra che cosa fa la libreria.</translation>
    </message>
</context>
<context>
    <name>BinCommands</name>
    <message>
        <source>Files…</source>
        <translation>File…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>Cartella…</translation>
    </message>
    <message>
        <source>From a device…</source>
        <translation>Da un dispositivo…</translation>
    </message>
    <message>
        <source>Place at the play head</source>
        <translation>Colloca all’indicatore</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Imposta punto di entrata</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Imposta punto di uscita</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Cancella punti di entrata e uscita</translation>
    </message>
    <message>
        <source>Make a proxy</source>
        <translation>Crea un proxy</translation>
    </message>
    <message>
        <source>Cancel the proxy</source>
        <translation>Annulla il proxy</translation>
    </message>
    <message>
        <source>Use the proxy</source>
        <translation>Usa il proxy</translation>
    </message>
    <message>
        <source>Locate…</source>
        <translation>Individua…</translation>
    </message>
    <message>
        <source>Search a folder for offline media…</source>
        <translation>Cerca in una cartella i media offline…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Remove all unused</source>
        <translation>Rimuovi tutti gli inutilizzati</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Aggiungi media</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Aggiungi una cartella</translation>
    </message>
    <message>
        <source>Import from a device</source>
        <translation>Importa da un dispositivo</translation>
    </message>
    <message>
        <source>None of the files was found.</source>
        <translation>Nessuno dei file è stato trovato.</translation>
    </message>
    <message>
        <source>The files that were found cannot be read.</source>
        <translation>Impossibile leggere i file trovati.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) found.</source>
        <translation>
            <numerusform>%n file trovato.</numerusform>
            <numerusform>%n file trovati.</numerusform>
        </translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>Dov’è %1?</translation>
    </message>
    <message>
        <source>%1 (%1);;All files (*)</source>
        <translation>%1 (%1);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Folder with the media</source>
        <translation>Cartella con i media</translation>
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
        <translation>entrata %1, uscita %2</translation>
    </message>
    <message>
        <source>proxy: %1 %</source>
        <translation>proxy: %1%</translation>
    </message>
    <message>
        <source>proxy: in use</source>
        <translation>proxy: in uso</translation>
    </message>
    <message>
        <source>proxy: not in use</source>
        <translation>proxy: non in uso</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lettura…</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Impossibile da leggere</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) on the timeline</source>
        <translation>
            <numerusform>%n clip nella timeline</numerusform>
            <numerusform>%n clip nella timeline</numerusform>
        </translation>
    </message>
    <message>
        <source>not on the timeline</source>
        <translation>non è nella timeline</translation>
    </message>
</context>
<context>
    <name>BinPanel</name>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Search the media</source>
        <translation>Cerca nei media</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Griglia</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Elenco</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Aggiungi…</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>Drop media here, or add files and folders.</source>
        <translation>Trascina qui i media o aggiungi file e cartelle.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nessun risultato</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>%n file selezionato</numerusform>
            <numerusform>%n file selezionati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n file(s)…</source>
        <translation>
            <numerusform>Lettura di %n file…</numerusform>
            <numerusform>Lettura di %n file…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read as media.</source>
        <translation>%1 non può essere letto come file multimediale.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more cannot be read as media.</source>
        <translation>
            <numerusform>%1 e %n altro non possono essere letti come file multimediali.</numerusform>
            <numerusform>%1 e altri %n non possono essere letti come file multimediali.</numerusform>
        </translation>
    </message>
    <message>
        <source>No proxy of %1: %2</source>
        <translation>Nessun proxy di %1: %2</translation>
    </message>
</context>
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
    <name>ClipActions</name>
    <message>
        <source>Add transition</source>
        <translation>Aggiungi transizione</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Aggiungi titolo</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>Modifica velocità</translation>
    </message>
    <message>
        <source>Add effect</source>
        <translation>Aggiungi effetto</translation>
    </message>
    <message>
        <source>Remove effect</source>
        <translation>Rimuovi effetto</translation>
    </message>
    <message>
        <source>Move effect</source>
        <translation>Sposta effetto</translation>
    </message>
    <message>
        <source>Switch effect</source>
        <translation>Attiva o disattiva effetto</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Modifica transizione</translation>
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
        <translation>Adattamento</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Immagine intera</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>Riempi il quadro</translation>
    </message>
    <message>
        <source>Stretched</source>
        <translation>Stirata</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>Pixel per pixel</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacità</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> fot.</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Riduzione del rumore</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Centre X</source>
        <translation>Centro X</translation>
    </message>
    <message>
        <source>Centre Y</source>
        <translation>Centro Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Larghezza</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altezza</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Moltiplica</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Scolora</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Sovrapponi</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Scurisci</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Schiarisci</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Somma</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenza</translation>
    </message>
    <message>
        <source>Colour dodge</source>
        <translation>Scherma colore</translation>
    </message>
    <message>
        <source>Colour burn</source>
        <translation>Brucia colore</translation>
    </message>
    <message>
        <source>Hard light</source>
        <translation>Luce intensa</translation>
    </message>
    <message>
        <source>Soft light</source>
        <translation>Luce soffusa</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Esclusione</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Bilanciamento</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Intonazione</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Disattiva audio</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Dissolvenza in entrata</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Dissolvenza in uscita</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source> st</source>
        <translation> st</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Colore</translation>
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
    <name>Editor</name>
    <message>
        <source>A small editor.</source>
        <translation>Un piccolo editor.</translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;.</source>
        <translation>Scrive un’immagine della finestra in &lt;file&gt;.</translation>
    </message>
    <message>
        <source>A project to open, and media for the bin.</source>
        <translation>Un progetto da aprire e media per il raccoglitore.</translation>
    </message>
    <message>
        <source>The engine is missing.</source>
        <translation>Il motore manca.</translation>
    </message>
    <message>
        <source>Make a small film of the media by itself, and put pictures, the film and a report into &lt;folder&gt;.</source>
        <translation>Realizzare da sé un piccolo film con i file multimediali e mettere immagini, film e un rapporto in &lt;cartella&gt;.</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>Media</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Timeline</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Esporta…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>Lift from in to out point</source>
        <translation>Preleva dal punto di entrata a quello di uscita</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>Preleva</translation>
    </message>
    <message>
        <source>Extract from in to out point</source>
        <translation>Estrai dal punto di entrata a quello di uscita</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Estrai</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>M&amp;edia</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>&amp;Timeline</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Riproduzione</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Barra degli strumenti</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Senza titolo</translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s) on the file, in the log</source>
        <translation>
            <numerusform>%n osservazione sul file, nel registro</numerusform>
            <numerusform>%n osservazioni sul file, nel registro</numerusform>
        </translation>
    </message>
    <message>
        <source>Set an in and an out point first.</source>
        <translation>Imposta prima un punto di entrata e uno di uscita.</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Recupero</translation>
    </message>
    <message>
        <source>The editor has ended unexpectedly. Changes of %1 until %2 can be opened.</source>
        <translation>L’editor si è chiuso in modo imprevisto. È possibile aprire le modifiche di %1 fino a: %2.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Films are being written. End that?</source>
        <translation>È in corso la scrittura di filmati. Interromperla?</translation>
    </message>
    <message>
        <source>Render the preview, or stop it</source>
        <translation>Esegui il rendering dell’anteprima, o fermalo</translation>
    </message>
    <message>
        <source>%1 cannot be written to.</source>
        <translation>Impossibile scrivere in %1.</translation>
    </message>
    <message>
        <source>Light style</source>
        <translation>Stile chiaro</translation>
    </message>
</context>
<context>
    <name>EffectsSection</name>
    <message>
        <source>Add effect</source>
        <translation>Aggiungi effetto</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Apply earlier</source>
        <translation>Applica prima</translation>
    </message>
    <message>
        <source>Apply later</source>
        <translation>Applica dopo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
</context>
<context>
    <name>ExportCheck</name>
    <message>
        <source>This cannot be combined</source>
        <translation>Questa combinazione non è possibile</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>Questa preimpostazione non esiste.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>The processor encodes and decodes.</source>
        <translation>Il processore codifica e decodifica.</translation>
    </message>
    <message>
        <source>The processor encodes; the graphics hardware helps to decode.</source>
        <translation>Il processore codifica; l’hardware grafico aiuta a decodificare.</translation>
    </message>
    <message>
        <source>Add to the queue</source>
        <translation>Aggiungi alla coda</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Filmati</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Preimpostazione</translation>
    </message>
    <message>
        <source>film</source>
        <translation>filmato</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Scegli un file</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Larghezza</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altezza</translation>
    </message>
    <message>
        <source>As the project</source>
        <translation>Come il progetto</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Frequenza fotogrammi</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutto</translation>
    </message>
    <message>
        <source>From in to out</source>
        <translation>Dall’entrata all’uscita</translation>
    </message>
    <message>
        <source>In point</source>
        <translation>Punto di entrata</translation>
    </message>
    <message>
        <source>Out point</source>
        <translation>Punto di uscita</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Intervallo</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Still picture…</source>
        <translation>Immagine fissa…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Writes the frame under the play head</source>
        <translation>Scrive il fotogramma sotto l’indicatore</translation>
    </message>
    <message>
        <source>The project cannot be copied.</source>
        <translation>Impossibile copiare il progetto.</translation>
    </message>
    <message>
        <source>Still picture</source>
        <translation>Immagine fissa</translation>
    </message>
    <message>
        <source>/frame %1.png</source>
        <translation>/fotogramma %1.png</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.tif *.bmp)</source>
        <translation>Immagini (*.png *.jpg *.tif *.bmp)</translation>
    </message>
    <message>
        <source>%1 is in the queue already.</source>
        <translation>%1 è già in coda.</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 esiste già. Sostituirlo?</translation>
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
    <name>ExportQueue</name>
    <message>
        <source>%1 is not written</source>
        <translation>%1 non è stato scritto</translation>
    </message>
</context>
<context>
    <name>ExportQueueView</name>
    <message>
        <source>No films yet</source>
        <translation>Ancora nessun filmato</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Being written</source>
        <translation>In scrittura</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Tempo rimanente: %1</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Scritto</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>Take from the list</source>
        <translation>Togli dall’elenco</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Projects</source>
        <translation>Progetti</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Apri…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Salva con nome…</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Apri recente</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Senza titolo</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Salva le modifiche</translation>
    </message>
    <message>
        <source>The project has changes that are not saved.</source>
        <translation>Il progetto contiene modifiche non salvate.</translation>
    </message>
</context>
<context>
    <name>FileEditor</name>
    <message>
        <source>No file</source>
        <translation>Nessun file</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Scegli un file</translation>
    </message>
</context>
<context>
    <name>FontEditor</name>
    <message>
        <source>System font</source>
        <translation>Carattere di sistema</translation>
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
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Comincia dalla pagina &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>Elenca i nomi delle pagine.</translation>
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
    <message>
        <source>Another window has a device open. Close that window, then choose this device again.</source>
        <translation>Un’altra finestra ha aperto un dispositivo. Chiudi quella finestra e scegli di nuovo questo dispositivo.</translation>
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
    <name>KeyFrameBar</name>
    <message>
        <source>Previous key frame</source>
        <translation>Fotogramma chiave precedente</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Fotogramma chiave</translation>
    </message>
    <message>
        <source>Next key frame</source>
        <translation>Fotogramma chiave successivo</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Mantieni</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Lineare</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Graduale</translation>
    </message>
    <message>
        <source>To the next key frame</source>
        <translation>Fino al fotogramma chiave successivo</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
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
    <name>LevelHeader</name>
    <message>
        <source>Level %1</source>
        <translation>Traccia %1</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Blocca</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Nascondi</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Disattiva audio</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>Solo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
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
    <name>LogView</name>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
</context>
<context>
    <name>MediaBin</name>
    <message>
        <source>Add media</source>
        <translation>Aggiungi media</translation>
    </message>
    <message>
        <source>Remove media</source>
        <translation>Rimuovi media</translation>
    </message>
    <message>
        <source>Relink media</source>
        <translation>Ricollega media</translation>
    </message>
    <message>
        <source>Use the media itself</source>
        <translation>Usa i media originali</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Usa un proxy</translation>
    </message>
    <message>
        <source>Set in and out point</source>
        <translation>Imposta punti di entrata e uscita</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Cancella punti di entrata e uscita</translation>
    </message>
    <message>
        <source>Place a clip</source>
        <translation>Colloca una clip</translation>
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
    <name>MovementKeys</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Shift right</source>
        <translation>Spostamento a destra</translation>
    </message>
    <message>
        <source>Shift up</source>
        <translation>Spostamento in alto</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Fattore di larghezza</translation>
    </message>
    <message>
        <source>Height factor</source>
        <translation>Fattore di altezza</translation>
    </message>
    <message>
        <source>Opacity factor</source>
        <translation>Fattore di opacità</translation>
    </message>
</context>
<context>
    <name>MovementSection</name>
    <message>
        <source>Movement</source>
        <translation>Movimento</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Fotogramma chiave</translation>
    </message>
    <message>
        <source>Change movement</source>
        <translation>Modifica movimento</translation>
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
        <translation> fot.</translation>
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
        <translation>Posiziona immagine</translation>
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
    <name>PlayerPanel</name>
    <message>
        <source>Play or pause</source>
        <translation>Riproduci o metti in pausa</translation>
    </message>
    <message>
        <source>Play backwards</source>
        <translation>Riproduci all’indietro</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arresta</translation>
    </message>
    <message>
        <source>Play forwards</source>
        <translation>Riproduci in avanti</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Ciclo</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Indietro di un fotogramma</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Avanti di un fotogramma</translation>
    </message>
    <message>
        <source>Go to beginning</source>
        <translation>Vai all’inizio</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>Vai alla fine</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Imposta punto di entrata</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Imposta punto di uscita</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Cancella punti di entrata e uscita</translation>
    </message>
    <message>
        <source>Go to in point</source>
        <translation>Vai al punto di entrata</translation>
    </message>
    <message>
        <source>Go to out point</source>
        <translation>Vai al punto di uscita</translation>
    </message>
    <message>
        <source>Set or remove marker</source>
        <translation>Inserisci o rimuovi marcatore</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Disattiva audio</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Aree sicure</translation>
    </message>
    <message>
        <source>Picture on full screen</source>
        <translation>Immagine a schermo intero</translation>
    </message>
    <message>
        <source>Timecode of the play head</source>
        <translation>Timecode dell’indicatore</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Indicatore</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>The project cannot be made</source>
        <translation>Impossibile creare il progetto</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>Impossibile aprire %1</translation>
    </message>
    <message>
        <source>%1 cannot be saved</source>
        <translation>Impossibile salvare %1</translation>
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
        <translation>Frequenza fotogrammi</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>Preview scale</source>
        <translation>Scala dell’anteprima</translation>
    </message>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Sfondo</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Larghezza</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altezza</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Frequenza di campionamento</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canali</translation>
    </message>
    <message>
        <source>Bits of a colour</source>
        <translation>Bit per colore</translation>
    </message>
    <message>
        <source>Smooth scaling</source>
        <translation>Ridimensionamento uniforme</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Bilanciamento</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Disattiva audio</translation>
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
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Progetto</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Disegno</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effetti</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Aggiungi titolo</translation>
    </message>
    <message>
        <source>Mixer, level %1</source>
        <translation>Mixer, traccia %1</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Transizione</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>Posizione e dimensione</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Fusione</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>Movimento</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Transizioni</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametri</translation>
    </message>
</context>
<context>
    <name>PropertyForm</name>
    <message>
        <source>Back to the preset</source>
        <translation>Ripristina il valore predefinito</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Modifica «%1»</translation>
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
    <name>ShortcutList</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasti</translation>
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
    <name>SpeedSection</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Back to the preset</source>
        <translation>Ripristina il valore predefinito</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>The frame cannot be drawn</source>
        <translation>Impossibile disegnare il fotogramma</translation>
    </message>
    <message>
        <source>%1 is not written: %2</source>
        <translation>%1 non è stato scritto: %2</translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>Colour</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Clip composta</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Sposta</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Aggancio</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Roll</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Rifila</translation>
    </message>
    <message>
        <source>Slip</source>
        <translation>Slip</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Slide</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Taglia</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Incolla</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Incolla inserendo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Elimina con ripple</translation>
    </message>
    <message>
        <source>Split at play head</source>
        <translation>Dividi all’indicatore</translation>
    </message>
    <message>
        <source>Trim begin to play head</source>
        <translation>Rifila l’inizio fino all’indicatore</translation>
    </message>
    <message>
        <source>Trim end to play head</source>
        <translation>Rifila la fine fino all’indicatore</translation>
    </message>
    <message>
        <source>Close gap at play head</source>
        <translation>Chiudi lo spazio all’indicatore</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Raggruppa</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Separa</translation>
    </message>
    <message>
        <source>Lock or unlock level</source>
        <translation>Blocca o sblocca traccia</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Select at play head</source>
        <translation>Seleziona all’indicatore</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Deseleziona tutto</translation>
    </message>
    <message>
        <source>Frame earlier</source>
        <translation>Un fotogramma prima</translation>
    </message>
    <message>
        <source>Frame later</source>
        <translation>Un fotogramma dopo</translation>
    </message>
    <message>
        <source>Second earlier</source>
        <translation>Un secondo prima</translation>
    </message>
    <message>
        <source>Second later</source>
        <translation>Un secondo dopo</translation>
    </message>
    <message>
        <source>Level up</source>
        <translation>Una traccia più su</translation>
    </message>
    <message>
        <source>Level down</source>
        <translation>Una traccia più giù</translation>
    </message>
    <message>
        <source>Previous cut</source>
        <translation>Taglio precedente</translation>
    </message>
    <message>
        <source>Next cut</source>
        <translation>Taglio successivo</translation>
    </message>
    <message>
        <source>Selection tool</source>
        <translation>Strumento di selezione</translation>
    </message>
    <message>
        <source>Ripple tool</source>
        <translation>Strumento Ripple</translation>
    </message>
    <message>
        <source>Roll tool</source>
        <translation>Strumento Roll</translation>
    </message>
    <message>
        <source>Slip tool</source>
        <translation>Strumento Slip</translation>
    </message>
    <message>
        <source>Slide tool</source>
        <translation>Strumento Slide</translation>
    </message>
    <message>
        <source>Razor tool</source>
        <translation>Strumento lametta</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Adatta alla finestra</translation>
    </message>
    <message>
        <source>Taller levels</source>
        <translation>Aumenta l’altezza delle tracce</translation>
    </message>
    <message>
        <source>Lower levels</source>
        <translation>Riduci l’altezza delle tracce</translation>
    </message>
    <message>
        <source>Ripple trim</source>
        <translation>Rifila con ripple</translation>
    </message>
    <message>
        <source>Hide or show level</source>
        <translation>Nascondi o mostra traccia</translation>
    </message>
    <message>
        <source>Mute or unmute level</source>
        <translation>Disattiva o riattiva audio della traccia</translation>
    </message>
    <message>
        <source>Level solo or not</source>
        <translation>Traccia in solo o no</translation>
    </message>
</context>
<context>
    <name>TimelineCommands</name>
    <message>
        <source>Split</source>
        <translation>Dividi</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Taglia</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Incolla</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Raggruppa</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Separa</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Sposta</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Elimina con ripple</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Incolla inserendo</translation>
    </message>
    <message>
        <source>Close gap</source>
        <translation>Chiudi lo spazio</translation>
    </message>
    <message>
        <source>Lock level</source>
        <translation>Blocca traccia</translation>
    </message>
    <message>
        <source>Unlock level</source>
        <translation>Sblocca traccia</translation>
    </message>
    <message>
        <source>Rename level</source>
        <translation>Rinomina traccia</translation>
    </message>
</context>
<context>
    <name>TimelinePanel</name>
    <message>
        <source>Timeline</source>
        <translation>Timeline</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Indicatore</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>%1, level %2, frames %3 to %4</source>
        <translation>%1, traccia %2, fotogrammi da %3 a %4</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Righello</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>Split</source>
        <translation>Dividi</translation>
    </message>
    <message>
        <source>Insert media</source>
        <translation>Inserisci media</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Aggiungi media</translation>
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
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durata</translation>
    </message>
</context>
<context>
    <name>TransitionSection</name>
    <message>
        <source>At the beginning</source>
        <translation>All’inizio</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>Alla fine</translation>
    </message>
</context>
<context>
    <name>Transport</name>
    <message>
        <source>Remove marker</source>
        <translation>Rimuovi marcatore</translation>
    </message>
    <message>
        <source>Set marker</source>
        <translation>Inserisci marcatore</translation>
    </message>
</context>
</TS>
