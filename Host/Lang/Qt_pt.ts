<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Guardar tudo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Sim par&amp;a tudo</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>Nã&amp;o para tudo</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Interromper</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Restaurar predefinições</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>Des&amp;fazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;lar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>Des&amp;fazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;lar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copiar &amp;ligação</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Aumentar</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Diminuir</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Selecionar tudo</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Utilização: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[opções]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opções:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumentos:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Mostra a versão.</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Mostra a ajuda das opções da linha de comandos.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Mostra a ajuda com as opções próprias do Qt.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Opção desconhecida «%1».</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Opções desconhecidas: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Falta o valor depois de «%1».</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Valor inesperado depois de «%1».</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Escolher</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Procurar pasta</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Procurar em:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Pasta:</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Pastas</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nome do ficheiro:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Ficheiros do tipo:</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos os ficheiros (*)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os ficheiros (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Recuar</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Recuar</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Pasta superior</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Ir para a pasta superior</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Criar pasta nova</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Criar uma pasta nova</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Pasta nova</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>Pasta &amp;nova</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Muda&amp;r o nome</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostrar ficheiros &amp;ocultos</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Vista em lista</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Mudar para a vista em lista</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Vista de detalhes</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Mudar para a vista de detalhes</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lista de locais e marcadores</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Locais recentes</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Ficheiros</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Ficheiro %1</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Pasta de ficheiros</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidade</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>O meu computador</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 já existe.
Quer substituí-lo?</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
A pasta não foi encontrada.
Verifique se o nome da pasta está certo.</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
O ficheiro não foi encontrado.
Verifique se o nome do ficheiro está certo.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Quer mesmo eliminar «%1»?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>«%1» está protegido contra escrita.
Quer eliminá-lo mesmo assim?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Não foi possível eliminar a pasta.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Data de modificação</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>O meu computador</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nome de ficheiro inválido</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;O nome «%1» não pode ser usado.&lt;/b&gt;&lt;p&gt;Experimente outro nome, com menos caracteres ou sem pontuação.</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>Mostrar detalhes…</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Ocultar detalhes…</translation>
    </message>
</context>
<context>
    <name>QProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
</TS>
