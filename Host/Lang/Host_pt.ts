<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
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
        <source>Shows the library&apos;s widgets.</source>
        <translation>Mostra os controlos da biblioteca.</translation>
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
        <source>Write a picture of the page to &lt;file&gt;.</source>
        <translation>Escreve uma imagem da página em &lt;file&gt;.</translation>
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
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>Medidor de nível</translation>
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
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Régua</translation>
    </message>
</context>
</TS>
