<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en_US">
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Spara alla</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öppna</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Ja till &amp;alla</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nej</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>Nej till a&amp;lla</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Avbryt nu</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorera</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Förkasta</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Verkställ</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Återställ standardvärden</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ångra</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Gör om</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Klipp &amp;ut</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiera</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Klistra &amp;in</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Markera alla</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ångra</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Gör om</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Klipp &amp;ut</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiera</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Klistra &amp;in</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Markera alla</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopiera &amp;länkadress</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Step up</source>
        <translation>Ö&amp;ka</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Mi&amp;nska</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Markera alla</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Användning: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[flaggor]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Flaggor:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argument:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Visar versionsinformation.</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Visar hjälp om kommandoradens flaggor.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Visar hjälp med de flaggor som är Qt:s egna.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Okänd flagga ”%1”.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Okända flaggor: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Värde saknas efter ”%1”.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Oväntat värde efter ”%1”.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Open</source>
        <translation>Öppna</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ppna</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Spara</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Spara som</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Välj</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Sök mapp</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Leta i:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Mapp:</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Mappar</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Fil&amp;namn:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Filer av typen:</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alla filer (*)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alla filer (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Bakåt</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Gå bakåt</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Framåt</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Gå framåt</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Överordnad mapp</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Gå till överordnad mapp</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Skapa ny mapp</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Skapa en ny mapp</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Ny mapp</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Ny mapp</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Byt namn</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Ta bort</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Visa &amp;dolda filer</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Listvy</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Byt till listvy</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Detaljvy</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Byt till detaljvy</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Sidopanel</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lista över platser och bokmärken</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Senaste platser</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-fil</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Filmapp</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Enhet</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Min dator</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Okänd</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 finns redan.
Vill du ersätta den?</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Mappen hittades inte.
Kontrollera att mappens namn är rätt.</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Filen hittades inte.
Kontrollera att filens namn är rätt.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Vill du verkligen ta bort ”%1”?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>”%1” är skrivskyddad.
Vill du ta bort den ändå?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Det gick inte att ta bort mappen.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Sort</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Ändrad</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Dator</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Min dator</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Ogiltigt filnamn</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;Namnet ”%1” kan inte användas.&lt;/b&gt;&lt;p&gt;Försök med ett annat namn, med färre tecken eller utan skiljetecken.</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>Visa detaljer…</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Dölj detaljer…</translation>
    </message>
</context>
<context>
    <name>QProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
</context>
</TS>
