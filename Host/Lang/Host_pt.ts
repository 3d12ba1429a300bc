<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
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
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>sem imagem</translation>
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
        <source>%n clip(s) selected</source>
        <translation>
            <numerusform>%n clipe selecionado</numerusform>
            <numerusform>%n clipes selecionados</numerusform>
        </translation>
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
