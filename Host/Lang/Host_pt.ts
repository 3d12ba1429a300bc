<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
<context>
    <name>AboutBox</name>
    <message>
        <source>Product: %1</source>
        <translation>Produto: %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>A small editor that shows what the library does.</source>
        <translation>Um pequeno editor que mostra o que a biblioteca faz.</translation>
    </message>
</context>
<context>
    <name>BinCommands</name>
    <message>
        <source>Files…</source>
        <translation>Ficheiros…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>Pasta…</translation>
    </message>
    <message>
        <source>From a device…</source>
        <translation>De um dispositivo…</translation>
    </message>
    <message>
        <source>Place at the play head</source>
        <translation>Colocar no cursor de reprodução</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Marcar ponto de entrada</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Marcar ponto de saída</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Limpar pontos de entrada e saída</translation>
    </message>
    <message>
        <source>Make a proxy</source>
        <translation>Criar um proxy</translation>
    </message>
    <message>
        <source>Cancel the proxy</source>
        <translation>Cancelar o proxy</translation>
    </message>
    <message>
        <source>Use the proxy</source>
        <translation>Usar o proxy</translation>
    </message>
    <message>
        <source>Locate…</source>
        <translation>Localizar…</translation>
    </message>
    <message>
        <source>Search a folder for offline media…</source>
        <translation>Procurar numa pasta a multimédia offline…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Remove all unused</source>
        <translation>Remover todos os não utilizados</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Adicionar multimédia</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Adicionar uma pasta</translation>
    </message>
    <message>
        <source>Import from a device</source>
        <translation>Importar de um dispositivo</translation>
    </message>
    <message>
        <source>None of the files was found.</source>
        <translation>Nenhum dos ficheiros foi encontrado.</translation>
    </message>
    <message>
        <source>The files that were found cannot be read.</source>
        <translation>Não é possível ler os ficheiros encontrados.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) found.</source>
        <translation>
            <numerusform>%n ficheiro encontrado.</numerusform>
            <numerusform>%n ficheiros encontrados.</numerusform>
        </translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>Onde está %1?</translation>
    </message>
    <message>
        <source>%1 (%1);;All files (*)</source>
        <translation>%1 (%1);;Todos os ficheiros (*)</translation>
    </message>
    <message>
        <source>Folder with the media</source>
        <translation>Pasta com a multimédia</translation>
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
        <translation>entrada %1, saída %2</translation>
    </message>
    <message>
        <source>proxy: %1 %</source>
        <translation>proxy: %1%</translation>
    </message>
    <message>
        <source>proxy: in use</source>
        <translation>proxy: em uso</translation>
    </message>
    <message>
        <source>proxy: not in use</source>
        <translation>proxy: não usado</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>A ler…</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Não é possível ler</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) on the timeline</source>
        <translation>
            <numerusform>%n clipe na linha de tempo</numerusform>
            <numerusform>%n clipes na linha de tempo</numerusform>
        </translation>
    </message>
    <message>
        <source>not on the timeline</source>
        <translation>não está na linha de tempo</translation>
    </message>
</context>
<context>
    <name>BinPanel</name>
    <message>
        <source>Search</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>Search the media</source>
        <translation>Procurar na multimédia</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grelha</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Adicionar…</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Multimédia</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>Drop media here, or add files and folders.</source>
        <translation>Largue aqui a multimédia ou adicione ficheiros e pastas.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nada encontrado</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>%n ficheiro selecionado</numerusform>
            <numerusform>%n ficheiros selecionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n file(s)…</source>
        <translation>
            <numerusform>A ler %n ficheiro…</numerusform>
            <numerusform>A ler %n ficheiros…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read as media.</source>
        <translation>%1 não pode ser lido como multimédia.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more cannot be read as media.</source>
        <translation>
            <numerusform>%1 e mais %n não podem ser lidos como multimédia.</numerusform>
            <numerusform>%1 e mais %n não podem ser lidos como multimédia.</numerusform>
        </translation>
    </message>
    <message>
        <source>No proxy of %1: %2</source>
        <translation>Sem proxy de %1: %2</translation>
    </message>
</context>
<context>
    <name>ButtonPage</name>
    <message>
        <source>Buttons</source>
        <translation>Botões</translation>
    </message>
    <message>
        <source>Several states</source>
        <translation>Vários estados</translation>
    </message>
    <message>
        <source>Image and text</source>
        <translation>Imagem e texto</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Separadores</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Último sinal</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>ainda nenhum</translation>
    </message>
    <message>
        <source>Pressed %1</source>
        <translation>Premido: %1</translation>
    </message>
    <message>
        <source>Clicked %1 at (%2, %3)</source>
        <translation>Clique em %1, posição (%2, %3)</translation>
    </message>
    <message>
        <source>Entered %1</source>
        <translation>Entrada em %1</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>Saída de %1</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Com ícone</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorito</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Clicked %1, shows %2</source>
        <translation>Clique em %1, mostra %2</translation>
    </message>
    <message>
        <source>Clicked %1</source>
        <translation>Clique em %1</translation>
    </message>
    <message>
        <source>Image left</source>
        <translation>À esquerda</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>Em cima</translation>
    </message>
    <message>
        <source>Image right</source>
        <translation>À direita</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Em baixo</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Multimédia</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Áudio</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Títulos</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efeitos</translation>
    </message>
    <message>
        <source>Selected %1</source>
        <translation>Selecionado: %1</translation>
    </message>
    <message>
        <source>for a language from right to left</source>
        <translation>para um idioma da direita para a esquerda</translation>
    </message>
    <message>
        <source>for a language from left to right</source>
        <translation>para um idioma da esquerda para a direita</translation>
    </message>
</context>
<context>
    <name>ClipActions</name>
    <message>
        <source>Add transition</source>
        <translation>Adicionar transição</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Adicionar título</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>Alterar velocidade</translation>
    </message>
    <message>
        <source>Add effect</source>
        <translation>Adicionar efeito</translation>
    </message>
    <message>
        <source>Remove effect</source>
        <translation>Remover efeito</translation>
    </message>
    <message>
        <source>Move effect</source>
        <translation>Mover efeito</translation>
    </message>
    <message>
        <source>Switch effect</source>
        <translation>Ativar ou desativar efeito</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Alterar transição</translation>
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
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Imagem inteira</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>Preencher o quadro</translation>
    </message>
    <message>
        <source>Stretched</source>
        <translation>Esticada</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>Píxel a píxel</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidade</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> fot.</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Redução de ruído</translation>
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
        <translation>Rotação</translation>
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
        <translation>Largura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplicar</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Ecrã</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Sobrepor</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Escurecer</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Clarear</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Somar</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferença</translation>
    </message>
    <message>
        <source>Colour dodge</source>
        <translation>Esquivar cor</translation>
    </message>
    <message>
        <source>Colour burn</source>
        <translation>Queimar cor</translation>
    </message>
    <message>
        <source>Hard light</source>
        <translation>Luz forte</translation>
    </message>
    <message>
        <source>Soft light</source>
        <translation>Luz suave</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Exclusão</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balanço</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Tom</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Sem som</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Entrada gradual</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Saída gradual</translation>
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
        <translation>Cor</translation>
    </message>
</context>
<context>
    <name>ClipStrip</name>
    <message>
        <source>Opening</source>
        <translation>Abertura</translation>
    </message>
    <message>
        <source>Harbour at dawn</source>
        <translation>Porto ao amanhecer</translation>
    </message>
    <message>
        <source>Interview, part 1</source>
        <translation>Entrevista, parte 1</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>Mercado</translation>
    </message>
    <message>
        <source>Interview, part 2</source>
        <translation>Entrevista, parte 2</translation>
    </message>
    <message>
        <source>Night drive</source>
        <translation>Viagem noturna</translation>
    </message>
</context>
<context>
    <name>CommonLibDemo</name>
    <message>
        <source>The log %1 cannot be opened; going on without it.</source>
        <translation>Não é possível abrir o registo %1; continua-se sem ele.</translation>
    </message>
    <message>
        <source>The engine is missing or does not start: %1</source>
        <translation>O motor está em falta ou não arranca: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Não é possível criar a pasta %1.</translation>
    </message>
    <message>
        <source>Tells what media files are and writes a contact sheet of each.</source>
        <translation>Indica o que são os ficheiros multimédia e escreve uma folha de contactos de cada um.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Mostra esta ajuda.</translation>
    </message>
    <message>
        <source>Folder for results.</source>
        <translation>Pasta para os resultados.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>PASTA</translation>
    </message>
    <message>
        <source>Log file, by default %1 among the results.</source>
        <translation>Ficheiro de registo; por omissão, %1 junto dos resultados.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FICHEIRO</translation>
    </message>
    <message>
        <source>Print the log as well.</source>
        <translation>Mostra também o registo.</translation>
    </message>
    <message>
        <source>Media files.</source>
        <translation>Ficheiros multimédia.</translation>
    </message>
    <message>
        <source>MEDIA…</source>
        <translation>MULTIMÉDIA…</translation>
    </message>
    <message>
        <source>No media file named.</source>
        <translation>Nenhum ficheiro multimédia indicado.</translation>
    </message>
    <message>
        <source>Write a film of all media files to this file, whose suffix chooses how it is encoded.</source>
        <translation>Gravar um filme com todos os ficheiros multimédia neste ficheiro, cuja extensão escolhe a codificação.</translation>
    </message>
    <message>
        <source>Preset that the film is encoded with.</source>
        <translation>Predefinição com que o filme é codificado.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>List the presets for films.</source>
        <translation>Listar as predefinições para filmes.</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>sem imagem</translation>
    </message>
</context>
<context>
    <name>DragPage</name>
    <message>
        <source>Opacity</source>
        <translation>Opacidade</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotação</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Último sinal</translation>
    </message>
    <message>
        <source>drag begins at %1</source>
        <translation>o arrasto começa em %1</translation>
    </message>
    <message>
        <source>drag ends at %1</source>
        <translation>o arrasto termina em %1</translation>
    </message>
</context>
<context>
    <name>Editor</name>
    <message>
        <source>A small editor.</source>
        <translation>Um pequeno editor.</translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;.</source>
        <translation>Escreve uma imagem da janela em &lt;file&gt;.</translation>
    </message>
    <message>
        <source>A project to open, and media for the bin.</source>
        <translation>Um projeto para abrir e multimédia para a biblioteca.</translation>
    </message>
    <message>
        <source>The engine is missing.</source>
        <translation>O motor está em falta.</translation>
    </message>
    <message>
        <source>Make a small film of the media by itself, and put pictures, the film and a report into &lt;folder&gt;.</source>
        <translation>Fazer automaticamente um pequeno filme com os ficheiros multimédia e colocar imagens, o filme e um relatório em &lt;pasta&gt;.</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>Media</source>
        <translation>Multimédia</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriedades</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Linha de tempo</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registo</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Ficheiro</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Anular</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>Lift from in to out point</source>
        <translation>Levantar do ponto de entrada ao de saída</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>Levantar</translation>
    </message>
    <message>
        <source>Extract from in to out point</source>
        <translation>Extrair do ponto de entrada ao de saída</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extrair</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Multimédia</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>&amp;Linha de tempo</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reprodução</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Ajuda</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Barra de ferramentas</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sem título</translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s) on the file, in the log</source>
        <translation>
            <numerusform>%n observação sobre o ficheiro, no registo</numerusform>
            <numerusform>%n observações sobre o ficheiro, no registo</numerusform>
        </translation>
    </message>
    <message>
        <source>Set an in and an out point first.</source>
        <translation>Marque primeiro um ponto de entrada e um de saída.</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Recuperação</translation>
    </message>
    <message>
        <source>The editor has ended unexpectedly. Changes of %1 until %2 can be opened.</source>
        <translation>O editor terminou inesperadamente. É possível abrir as alterações de %1 até %2.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Films are being written. End that?</source>
        <translation>Estão a ser gravados filmes. Interromper?</translation>
    </message>
    <message>
        <source>Render the preview, or stop it</source>
        <translation>Processar a pré-visualização, ou parar</translation>
    </message>
    <message>
        <source>%1 cannot be written to.</source>
        <translation>Não é possível escrever em %1.</translation>
    </message>
    <message>
        <source>Light style</source>
        <translation>Estilo claro</translation>
    </message>
</context>
<context>
    <name>EffectsSection</name>
    <message>
        <source>Add effect</source>
        <translation>Adicionar efeito</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Som</translation>
    </message>
    <message>
        <source>Apply earlier</source>
        <translation>Aplicar antes</translation>
    </message>
    <message>
        <source>Apply later</source>
        <translation>Aplicar depois</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
</context>
<context>
    <name>ExportCheck</name>
    <message>
        <source>This cannot be combined</source>
        <translation>Esta combinação não é possível</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>Esta predefinição não existe.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>The processor encodes and decodes.</source>
        <translation>O processador codifica e descodifica.</translation>
    </message>
    <message>
        <source>The processor encodes; the graphics hardware helps to decode.</source>
        <translation>O processador codifica; o hardware gráfico ajuda a descodificar.</translation>
    </message>
    <message>
        <source>Add to the queue</source>
        <translation>Adicionar à fila</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Filmes</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Predefinição</translation>
    </message>
    <message>
        <source>film</source>
        <translation>filme</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Escolher um ficheiro</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>As the project</source>
        <translation>Como o projeto</translation>
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
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Taxa de fotogramas</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Som</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tudo</translation>
    </message>
    <message>
        <source>From in to out</source>
        <translation>Da entrada à saída</translation>
    </message>
    <message>
        <source>In point</source>
        <translation>Ponto de entrada</translation>
    </message>
    <message>
        <source>Out point</source>
        <translation>Ponto de saída</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Still picture…</source>
        <translation>Imagem fixa…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Writes the frame under the play head</source>
        <translation>Grava o fotograma sob o cursor de reprodução</translation>
    </message>
    <message>
        <source>The project cannot be copied.</source>
        <translation>Não é possível copiar o projeto.</translation>
    </message>
    <message>
        <source>Still picture</source>
        <translation>Imagem fixa</translation>
    </message>
    <message>
        <source>/frame %1.png</source>
        <translation>/fotograma %1.png</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.tif *.bmp)</source>
        <translation>Imagens (*.png *.jpg *.tif *.bmp)</translation>
    </message>
    <message>
        <source>%1 is in the queue already.</source>
        <translation>%1 já está na fila.</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 já existe. Substituir?</translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>Não há nenhuma predefinição «%1».</translation>
    </message>
    <message>
        <source>The engine has no presets.</source>
        <translation>O motor não tem predefinições.</translation>
    </message>
    <message>
        <source>encoded: %1 %</source>
        <translation>codificado: %1 %</translation>
    </message>
    <message>
        <source>%1 is not written; the log tells why.</source>
        <translation>%1 não é gravado; o registo diz porquê.</translation>
    </message>
</context>
<context>
    <name>ExportQueue</name>
    <message>
        <source>%1 is not written</source>
        <translation>%1 não foi gravado</translation>
    </message>
</context>
<context>
    <name>ExportQueueView</name>
    <message>
        <source>No films yet</source>
        <translation>Ainda não há filmes</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>Being written</source>
        <translation>A gravar</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Tempo restante: %1</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Gravado</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Take from the list</source>
        <translation>Retirar da lista</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Projects</source>
        <translation>Projetos</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Abrir recente</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sem título</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Guardar as alterações</translation>
    </message>
    <message>
        <source>The project has changes that are not saved.</source>
        <translation>O projeto tem alterações não guardadas.</translation>
    </message>
</context>
<context>
    <name>FileEditor</name>
    <message>
        <source>No file</source>
        <translation>Nenhum ficheiro</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Escolher um ficheiro</translation>
    </message>
</context>
<context>
    <name>FontEditor</name>
    <message>
        <source>System font</source>
        <translation>Tipo de letra do sistema</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Ruler</source>
        <translation>Régua</translation>
    </message>
    <message>
        <source>Drag the play head; the wheel scrolls, with Ctrl it zooms; a double click fits all.</source>
        <translation>Arraste o cursor de reprodução; a roda desloca e, com Ctrl, amplia; um duplo clique ajusta tudo.</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Controlos deslizantes</translation>
    </message>
    <message>
        <source>Drag, use the wheel, or the arrow keys.</source>
        <translation>Arraste, use a roda ou as teclas de seta.</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Botões e etiquetas</translation>
    </message>
    <message>
        <source>The last line tells what they signal.</source>
        <translation>A última linha diz o que assinalam.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Copies media from cameras, phones and cards.</source>
        <translation>Copia multimédia de câmaras, telemóveis e cartões.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Idiomas</translation>
    </message>
    <message>
        <source>A choice reaches every window at once.</source>
        <translation>A escolha chega de imediato a todas as janelas.</translation>
    </message>
    <message>
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Começa pela página &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>Lista os nomes das páginas.</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>não é possível escrever %1</translation>
    </message>
    <message>
        <source>no page %1</source>
        <translation>não há página %1</translation>
    </message>
    <message>
        <source>Drag values</source>
        <translation>Arrastar valores</translation>
    </message>
    <message>
        <source>Drag on a number, with Shift faster, with Ctrl slower; a click edits it.</source>
        <translation>Arraste um número, com Shift mais depressa, com Ctrl mais devagar; um clique edita-o.</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Leitor</translation>
    </message>
    <message>
        <source>Open a file and play it; K plays and pauses, comma and full stop step a frame.</source>
        <translation>Abra um ficheiro e reproduza-o; K reproduz e pausa, a vírgula e o ponto avançam um fotograma.</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>CommonLib widgets</source>
        <translation>Controlos da CommonLib</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>HostLanguage</name>
    <message>
        <source>Language of the texts from now on, such as German.</source>
        <translation>Idioma dos textos a partir de agora, por exemplo German.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>There is no language %1. Known are: %2</source>
        <translation>O idioma %1 não existe. Idiomas conhecidos: %2</translation>
    </message>
</context>
<context>
    <name>ImportPage</name>
    <message>
        <source>Refresh</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Escolher…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Folder to import into</source>
        <translation>Pasta de destino</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>Progresso da importação</translation>
    </message>
    <message>
        <source>Import into</source>
        <translation>Importar para</translation>
    </message>
    <message>
        <source>No device found</source>
        <translation>Nenhum dispositivo encontrado</translation>
    </message>
    <message>
        <source>Connect a camera, a phone or a card reader, switch it on and unlock it.</source>
        <translation>Ligue uma câmara, um telemóvel ou um leitor de cartões, ative-o e desbloqueie-o.</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>A abrir %1…</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>Não é possível abrir %1</translation>
    </message>
    <message>
        <source>Unlock the device and allow access to its files, then choose it again.</source>
        <translation>Desbloqueie o dispositivo, permita o acesso aos seus ficheiros e escolha-o novamente.</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 foi removido</translation>
    </message>
    <message>
        <source>Connect it again to go on.</source>
        <translation>Ligue-o novamente para continuar.</translation>
    </message>
    <message>
        <source>Chosen files: %1 (%2)</source>
        <translation>Ficheiros escolhidos: %1 (%2)</translation>
    </message>
    <message>
        <source>Reading the content… %1 files</source>
        <translation>A ler o conteúdo… Ficheiros: %1</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>Dispositivo sem nome</translation>
    </message>
    <message>
        <source>%1 files on the device</source>
        <translation>Ficheiros no dispositivo: %1</translation>
    </message>
    <message>
        <source>The device stopped answering; this may not be all of it.</source>
        <translation>O dispositivo deixou de responder; isto pode não ser tudo.</translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation>Não é possível escrever nesta pasta.</translation>
    </message>
    <message>
        <source>Importing… %1 of %2</source>
        <translation>A importar… %1 de %2</translation>
    </message>
    <message>
        <source>Imported files: %1 of %2.</source>
        <translation>Ficheiros importados: %1 de %2.</translation>
    </message>
    <message>
        <source>The device was removed during the import.</source>
        <translation>O dispositivo foi removido durante a importação.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>Não importado: %1</translation>
    </message>
    <message>
        <source>Delete from the device afterwards</source>
        <translation>Eliminar depois do dispositivo</translation>
    </message>
    <message>
        <source>This folder has room for %1 only.</source>
        <translation>Esta pasta só tem espaço para %1.</translation>
    </message>
    <message>
        <source>Another window has a device open. Close that window, then choose this device again.</source>
        <translation>Outra janela tem um dispositivo aberto. Feche essa janela e escolha novamente este dispositivo.</translation>
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
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Content of the device</source>
        <translation>Conteúdo do dispositivo</translation>
    </message>
</context>
<context>
    <name>KeyFrameBar</name>
    <message>
        <source>Previous key frame</source>
        <translation>Fotograma-chave anterior</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Fotograma-chave</translation>
    </message>
    <message>
        <source>Next key frame</source>
        <translation>Fotograma-chave seguinte</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Manter</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Suave</translation>
    </message>
    <message>
        <source>To the next key frame</source>
        <translation>Até ao fotograma-chave seguinte</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Import media…</source>
        <translation>Importar multimédia…</translation>
    </message>
    <message>
        <source>Split at the play head</source>
        <translation>Dividir no cursor de reprodução</translation>
    </message>
    <message>
        <source>Add a transition</source>
        <translation>Adicionar uma transição</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Anular</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Guardar o projeto</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>Font of the language:</source>
        <translation>Tipo de letra do idioma:</translation>
    </message>
    <message>
        <source>Drawn in:</source>
        <translation>Desenhado com:</translation>
    </message>
    <message>
        <source>Reading direction:</source>
        <translation>Direção de leitura:</translation>
    </message>
    <message>
        <source>Clips:</source>
        <translation>Clipes:</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Exemplo</translation>
    </message>
    <message>
        <source>right to left</source>
        <translation>da direita para a esquerda</translation>
    </message>
    <message>
        <source>left to right</source>
        <translation>da esquerda para a direita</translation>
    </message>
    <message numerus="yes">
        <source>%Ln clip(s) selected</source>
        <translation>
            <numerusform>%Ln clipe selecionado</numerusform>
            <numerusform>%Ln clipes selecionados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LevelHeader</name>
    <message>
        <source>Level %1</source>
        <translation>Faixa %1</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Bloquear</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Sem som</translation>
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
        <translation>Medidor de nível</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Log</source>
        <translation>Registo</translation>
    </message>
</context>
<context>
    <name>MediaBin</name>
    <message>
        <source>Add media</source>
        <translation>Adicionar multimédia</translation>
    </message>
    <message>
        <source>Remove media</source>
        <translation>Remover multimédia</translation>
    </message>
    <message>
        <source>Relink media</source>
        <translation>Religar multimédia</translation>
    </message>
    <message>
        <source>Use the media itself</source>
        <translation>Usar a multimédia original</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Usar um proxy</translation>
    </message>
    <message>
        <source>Set in and out point</source>
        <translation>Marcar pontos de entrada e saída</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Limpar pontos de entrada e saída</translation>
    </message>
    <message>
        <source>Place a clip</source>
        <translation>Colocar um clipe</translation>
    </message>
</context>
<context>
    <name>MediaJob</name>
    <message>
        <source>does not exist</source>
        <translation>não existe</translation>
    </message>
    <message>
        <source>is a folder, not a media file</source>
        <translation>é uma pasta, não um ficheiro multimédia</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>não é um ficheiro normal</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>está vazio</translation>
    </message>
    <message>
        <source>may not be read by this user</source>
        <translation>não pode ser lido por este utilizador</translation>
    </message>
    <message>
        <source>cannot be read as media</source>
        <translation>não pode ser lido como multimédia</translation>
    </message>
    <message>
        <source>holds neither picture nor sound</source>
        <translation>não contém imagem nem som</translation>
    </message>
    <message>
        <source>has no frames</source>
        <translation>não tem fotogramas</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>fotograma %1</translation>
    </message>
    <message>
        <source>picture %1 of %2: frame %3, %4</source>
        <translation>imagem %1 de %2: fotograma %3, %4</translation>
    </message>
    <message>
        <source>%1, not decoded</source>
        <translation>%1, não descodificado</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation>nenhuma das suas imagens pode ser descodificada</translation>
    </message>
    <message>
        <source>%1 of %2 pictures cannot be decoded; the file may be damaged</source>
        <translation>%1 de %2 imagens não podem ser descodificadas; o ficheiro pode estar danificado</translation>
    </message>
    <message>
        <source>wave form: part %1 of %2</source>
        <translation>forma de onda: parte %1 de %2</translation>
    </message>
    <message>
        <source>its sound cannot be decoded</source>
        <translation>o seu som não pode ser descodificado</translation>
    </message>
    <message>
        <source>the result cannot be written to %1</source>
        <translation>o resultado não pode ser escrito em %1</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>escrito: %1</translation>
    </message>
</context>
<context>
    <name>MediaReport</name>
    <message>
        <source>unknown codec</source>
        <translation>codec desconhecido</translation>
    </message>
    <message>
        <source>video</source>
        <translation>vídeo</translation>
    </message>
    <message>
        <source>rotated by %1°</source>
        <translation>rodado %1°</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>áudio</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s)</source>
        <translation>
            <numerusform>%n canal</numerusform>
            <numerusform>%n canais</numerusform>
        </translation>
    </message>
    <message>
        <source>other</source>
        <translation>outro</translation>
    </message>
    <message>
        <source>Still picture, %1</source>
        <translation>Imagem fixa, %1</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Som</translation>
    </message>
    <message>
        <source>No picture and no sound</source>
        <translation>Sem imagem nem som</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n fotograma</numerusform>
            <numerusform>%n fotogramas</numerusform>
        </translation>
    </message>
    <message>
        <source>stream %1: %2</source>
        <translation>fluxo %1: %2</translation>
    </message>
    <message>
        <source>sample rates: %1</source>
        <translation>taxas de amostragem: %1</translation>
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
        <translation>Rotação</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Shift right</source>
        <translation>Deslocação para a direita</translation>
    </message>
    <message>
        <source>Shift up</source>
        <translation>Deslocação para cima</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Fator de largura</translation>
    </message>
    <message>
        <source>Height factor</source>
        <translation>Fator de altura</translation>
    </message>
    <message>
        <source>Opacity factor</source>
        <translation>Fator de opacidade</translation>
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
        <translation>Fotograma-chave</translation>
    </message>
    <message>
        <source>Change movement</source>
        <translation>Alterar movimento</translation>
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
        <translation>Posicionar imagem</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Imagem</translation>
    </message>
</context>
<context>
    <name>PlayerPage</name>
    <message>
        <source>Nothing is open.</source>
        <translation>Nada está aberto.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posição</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Recuar um fotograma</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Avançar um fotograma</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Ciclo</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Sem som</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Áreas seguras</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Preencher</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Tamanho da imagem</translation>
    </message>
    <message>
        <source>Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms</source>
        <translation>Último segundo: %1 mostrados, %2 omitidos, %3 atrasados, %4 da cache, desvio %5 ms</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>Não é possível reproduzir %1.</translation>
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
        <translation>Reproduzir ou pausar</translation>
    </message>
    <message>
        <source>Play backwards</source>
        <translation>Reproduzir para trás</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Play forwards</source>
        <translation>Reproduzir para a frente</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Ciclo</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Recuar um fotograma</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Avançar um fotograma</translation>
    </message>
    <message>
        <source>Go to beginning</source>
        <translation>Ir para o início</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>Ir para o fim</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Marcar ponto de entrada</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Marcar ponto de saída</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Limpar pontos de entrada e saída</translation>
    </message>
    <message>
        <source>Go to in point</source>
        <translation>Ir para o ponto de entrada</translation>
    </message>
    <message>
        <source>Go to out point</source>
        <translation>Ir para o ponto de saída</translation>
    </message>
    <message>
        <source>Set or remove marker</source>
        <translation>Pôr ou remover marcador</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Sem som</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Áreas seguras</translation>
    </message>
    <message>
        <source>Picture on full screen</source>
        <translation>Imagem em ecrã inteiro</translation>
    </message>
    <message>
        <source>Timecode of the play head</source>
        <translation>Código de tempo do cursor de reprodução</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Cursor de reprodução</translation>
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
        <translation>Não é possível criar o projeto</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>Não é possível abrir %1</translation>
    </message>
    <message>
        <source>%1 cannot be saved</source>
        <translation>Não é possível guardar %1</translation>
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
        <translation>Taxa de fotogramas</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>Preview scale</source>
        <translation>Escala da pré-visualização</translation>
    </message>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fundo</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Taxa de amostragem</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canais</translation>
    </message>
    <message>
        <source>Bits of a colour</source>
        <translation>Bits por cor</translation>
    </message>
    <message>
        <source>Smooth scaling</source>
        <translation>Redimensionamento suave</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balanço</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Sem som</translation>
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
        <translation>Propriedades</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projeto</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clipe</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Desenho</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efeitos</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Adicionar título</translation>
    </message>
    <message>
        <source>Mixer, level %1</source>
        <translation>Misturador, faixa %1</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Transição</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>Posição e tamanho</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Mistura</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>Movimento</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Som</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Transições</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parâmetros</translation>
    </message>
</context>
<context>
    <name>PropertyForm</name>
    <message>
        <source>Back to the preset</source>
        <translation>Repor o valor predefinido</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Alterar «%1»</translation>
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
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
</context>
<context>
    <name>ShortcutList</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
</context>
<context>
    <name>SliderPage</name>
    <message>
        <source>Seek bar</source>
        <translation>Barra de reprodução</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Other chunk and groove</source>
        <translation>Outro preenchimento e outra ranhura</translation>
    </message>
    <message>
        <source>From right to left</source>
        <translation>Da direita para a esquerda</translation>
    </message>
    <message>
        <source>Empty range</source>
        <translation>Intervalo vazio</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Zoom bar</source>
        <translation>Barra de zoom</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Mirrored layout</source>
        <translation>Disposição espelhada</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Barra</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>Outras cores</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Vertical</translation>
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
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>Back to the preset</source>
        <translation>Repor o valor predefinido</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>The frame cannot be drawn</source>
        <translation>Não é possível desenhar o fotograma</translation>
    </message>
    <message>
        <source>%1 is not written: %2</source>
        <translation>%1 não foi gravado: %2</translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>Colour</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Clipe composto</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Ajuste magnético</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Roll</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Aparar</translation>
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
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Colar inserindo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Eliminar com ripple</translation>
    </message>
    <message>
        <source>Split at play head</source>
        <translation>Dividir no cursor de reprodução</translation>
    </message>
    <message>
        <source>Trim begin to play head</source>
        <translation>Aparar o início até ao cursor de reprodução</translation>
    </message>
    <message>
        <source>Trim end to play head</source>
        <translation>Aparar o fim até ao cursor de reprodução</translation>
    </message>
    <message>
        <source>Close gap at play head</source>
        <translation>Fechar o espaço no cursor de reprodução</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Agrupar</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Desagrupar</translation>
    </message>
    <message>
        <source>Lock or unlock level</source>
        <translation>Bloquear ou desbloquear faixa</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Select at play head</source>
        <translation>Selecionar no cursor de reprodução</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Desselecionar tudo</translation>
    </message>
    <message>
        <source>Frame earlier</source>
        <translation>Um fotograma antes</translation>
    </message>
    <message>
        <source>Frame later</source>
        <translation>Um fotograma depois</translation>
    </message>
    <message>
        <source>Second earlier</source>
        <translation>Um segundo antes</translation>
    </message>
    <message>
        <source>Second later</source>
        <translation>Um segundo depois</translation>
    </message>
    <message>
        <source>Level up</source>
        <translation>Uma faixa acima</translation>
    </message>
    <message>
        <source>Level down</source>
        <translation>Uma faixa abaixo</translation>
    </message>
    <message>
        <source>Previous cut</source>
        <translation>Corte anterior</translation>
    </message>
    <message>
        <source>Next cut</source>
        <translation>Corte seguinte</translation>
    </message>
    <message>
        <source>Selection tool</source>
        <translation>Ferramenta de seleção</translation>
    </message>
    <message>
        <source>Ripple tool</source>
        <translation>Ferramenta Ripple</translation>
    </message>
    <message>
        <source>Roll tool</source>
        <translation>Ferramenta Roll</translation>
    </message>
    <message>
        <source>Slip tool</source>
        <translation>Ferramenta Slip</translation>
    </message>
    <message>
        <source>Slide tool</source>
        <translation>Ferramenta Slide</translation>
    </message>
    <message>
        <source>Razor tool</source>
        <translation>Ferramenta lâmina</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Ajustar à janela</translation>
    </message>
    <message>
        <source>Taller levels</source>
        <translation>Aumentar a altura das faixas</translation>
    </message>
    <message>
        <source>Lower levels</source>
        <translation>Reduzir a altura das faixas</translation>
    </message>
    <message>
        <source>Ripple trim</source>
        <translation>Aparar com ripple</translation>
    </message>
    <message>
        <source>Hide or show level</source>
        <translation>Ocultar ou mostrar faixa</translation>
    </message>
    <message>
        <source>Mute or unmute level</source>
        <translation>Silenciar ou ativar faixa</translation>
    </message>
    <message>
        <source>Level solo or not</source>
        <translation>Faixa a solo ou não</translation>
    </message>
</context>
<context>
    <name>TimelineCommands</name>
    <message>
        <source>Split</source>
        <translation>Dividir</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Agrupar</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Desagrupar</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Eliminar com ripple</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Colar inserindo</translation>
    </message>
    <message>
        <source>Close gap</source>
        <translation>Fechar o espaço</translation>
    </message>
    <message>
        <source>Lock level</source>
        <translation>Bloquear faixa</translation>
    </message>
    <message>
        <source>Unlock level</source>
        <translation>Desbloquear faixa</translation>
    </message>
    <message>
        <source>Rename level</source>
        <translation>Mudar nome da faixa</translation>
    </message>
</context>
<context>
    <name>TimelinePanel</name>
    <message>
        <source>Timeline</source>
        <translation>Linha de tempo</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Cursor de reprodução</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clipes</translation>
    </message>
    <message>
        <source>%1, level %2, frames %3 to %4</source>
        <translation>%1, faixa %2, fotogramas %3 a %4</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Régua</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>Split</source>
        <translation>Dividir</translation>
    </message>
    <message>
        <source>Insert media</source>
        <translation>Inserir multimédia</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Adicionar multimédia</translation>
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
        <translation>Duração</translation>
    </message>
</context>
<context>
    <name>TransitionSection</name>
    <message>
        <source>At the beginning</source>
        <translation>No início</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>No fim</translation>
    </message>
</context>
<context>
    <name>Transport</name>
    <message>
        <source>Remove marker</source>
        <translation>Remover marcador</translation>
    </message>
    <message>
        <source>Set marker</source>
        <translation>Pôr marcador</translation>
    </message>
</context>
</TS>
