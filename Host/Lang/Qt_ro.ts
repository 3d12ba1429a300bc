<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ro_RO" sourcelanguage="en_US">
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvare</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Salvare totală</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Deschidere</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Da</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Da pentru to&amp;ate</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nu</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>Nu pentru t&amp;oate</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Întrerupere</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reîncercare</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorare</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Închidere</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anulare</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Renunțare</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajutor</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicare</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetare</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Restaurare valori implicite</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>An&amp;ulare acțiune</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refacere</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Tăiere</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiere</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Li&amp;pire</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ștergere</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selectare totală</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>An&amp;ulare acțiune</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refacere</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Tăiere</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiere</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Li&amp;pire</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ștergere</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selectare totală</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copiere adresă &amp;link</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Mărire</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Micșora&amp;re</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Selectare totală</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Utilizare: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[opțiuni]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opțiuni:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumente:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Afișează versiunea.</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Afișează ajutorul pentru opțiunile liniei de comandă.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Afișează ajutorul, inclusiv opțiunile proprii Qt.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Opțiune necunoscută „%1”.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Opțiuni necunoscute: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Lipsește valoarea după „%1”.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Valoare neașteptată după „%1”.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Open</source>
        <translation>Deschidere</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Deschidere</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salvare</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salvare ca</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Alegere</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Căutare dosar</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Căutare în:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Dosar:</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Dosare</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nume fișier:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Fișiere de tip:</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Toate fișierele (*)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Toate fișierele (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Înapoi</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Înapoi</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Înainte</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Înainte</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Dosar superior</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Mergi la dosarul superior</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Creare dosar nou</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Creează un dosar nou</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Dosar nou</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>Dosar &amp;nou</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Redenumire</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Șt&amp;ergere</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ștergere</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminare</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Afișare fișiere &amp;ascunse</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Vizualizare listă</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Comută la vizualizarea listă</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Vizualizare detalii</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Comută la vizualizarea detaliilor</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Bară laterală</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Listă de locuri și marcaje</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Locuri recente</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fișiere</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fișier</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Fișier %1</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dosar</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Dosar de fișiere</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unitate</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Computerul meu</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Necunoscut</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 există deja.
Doriți să îl înlocuiți?</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Dosarul nu a fost găsit.
Verificați numele dosarului.</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Fișierul nu a fost găsit.
Verificați numele fișierului.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Sigur doriți să ștergeți „%1”?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>„%1” este protejat la scriere.
Doriți totuși să îl ștergeți?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Dosarul nu a putut fi șters.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nume</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensiune</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tip</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tip</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Data modificării</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Computerul meu</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nume de fișier nevalid</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;Numele „%1” nu poate fi folosit.&lt;/b&gt;&lt;p&gt;Încercați alt nume, mai scurt sau fără semne de punctuație.</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>Afișare detalii…</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Ascundere detalii…</translation>
    </message>
</context>
<context>
    <name>QProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Anulare</translation>
    </message>
</context>
</TS>
