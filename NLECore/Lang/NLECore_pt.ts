<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
<context>
    <name>NLECore</name>
    <message>
        <source>Uncompressed 4:2:2, 10 bits</source>
        <translation>Sem compressão 4:2:2, 10 bits</translation>
    </message>
    <message>
        <source>MPEG transport stream</source>
        <translation>Fluxo de transporte MPEG</translation>
    </message>
    <message>
        <source>MPEG program stream</source>
        <translation>Fluxo de programa MPEG</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>GIF animado</translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation>Sequência PNG</translation>
    </message>
    <message>
        <source>TIFF sequence</source>
        <translation>Sequência TIFF</translation>
    </message>
    <message>
        <source>JPEG sequence</source>
        <translation>Sequência JPEG</translation>
    </message>
    <message>
        <source>MPEG-4 sound</source>
        <translation>Áudio MPEG-4</translation>
    </message>
    <message>
        <source>Ogg sound</source>
        <translation>Áudio Ogg</translation>
    </message>
    <message>
        <source>Windows Media sound</source>
        <translation>Áudio Windows Media</translation>
    </message>
    <message>
        <source>H.264 for archives</source>
        <translation>H.264 para arquivo</translation>
    </message>
    <message>
        <source>H.264 for streaming</source>
        <translation>H.264 para transmissão</translation>
    </message>
    <message>
        <source>H.264 lossless</source>
        <translation>H.264 sem perdas</translation>
    </message>
    <message>
        <source>H.265 10 bits</source>
        <translation>H.265 de 10 bits</translation>
    </message>
    <message>
        <source>VP9 with alpha</source>
        <translation>VP9 com canal alfa</translation>
    </message>
    <message>
        <source>TIFF sequence 16 bits</source>
        <translation>Sequência TIFF de 16 bits</translation>
    </message>
    <message>
        <source>MPEG-2 interlaced</source>
        <translation>MPEG-2 entrelaçado</translation>
    </message>
    <message>
        <source>WAV 24 bits</source>
        <translation>WAV de 24 bits</translation>
    </message>
    <message>
        <source>No failure</source>
        <translation>Nenhum erro</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>Something that has to be given is missing</source>
        <translation>Falta um elemento necessário</translation>
    </message>
    <message>
        <source>A value that is not accepted</source>
        <translation>Valor não aceite</translation>
    </message>
    <message>
        <source>Outside of the range</source>
        <translation>Fora do intervalo</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>Não existe nada com este nome</translation>
    </message>
    <message>
        <source>There is nothing of this number</source>
        <translation>Não existe nada com este número</translation>
    </message>
    <message>
        <source>Not possible at this time</source>
        <translation>Não é possível neste momento</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>Não disponível</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Memória insuficiente</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>A value that cannot be changed</source>
        <translation>Este valor não pode ser alterado</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>Este valor não existe</translation>
    </message>
    <message>
        <source>There is nothing to show or to write</source>
        <translation>Não há nada para mostrar nem escrever</translation>
    </message>
    <message>
        <source>This object cannot be used there</source>
        <translation>Este objeto não pode ser usado aí</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>O ficheiro não existe</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Não é possível ler o ficheiro</translation>
    </message>
    <message>
        <source>The file is damaged or of no known format</source>
        <translation>O ficheiro está danificado ou tem um formato desconhecido</translation>
    </message>
    <message>
        <source>The file or folder cannot be written</source>
        <translation>Não é possível escrever no ficheiro ou na pasta</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>O disco está cheio</translation>
    </message>
    <message>
        <source>There is no format of this name to write</source>
        <translation>Não há nenhum formato de escrita com este nome</translation>
    </message>
    <message>
        <source>The format does not take these settings</source>
        <translation>O formato não aceita estas definições</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Exposição</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>Nível de preto</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brilho</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Pivô</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturação</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Equilíbrio de brancos</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Matiz</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Curvas</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Principal</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Vermelho</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Lookup table</source>
        <translation>Tabela de consulta (LUT)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Intensidade</translation>
    </message>
    <message>
        <source>Chroma key</source>
        <translation>Chroma key</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerância</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Suavidade</translation>
    </message>
    <message>
        <source>Spill removal</source>
        <translation>Remoção de derrame</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Topo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Fundo</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vinheta</translation>
    </message>
    <message>
        <source>Centre across</source>
        <translation>Centro horizontal</translation>
    </message>
    <message>
        <source>Centre down</source>
        <translation>Centro vertical</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Preto e branco</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequência</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>Ressonância</translation>
    </message>
    <message>
        <source>Target loudness</source>
        <translation>Sonoridade pretendida</translation>
    </message>
    <message>
        <source>Highest true peak</source>
        <translation>Pico real máximo</translation>
    </message>
    <message>
        <source>Measured loudness</source>
        <translation>Sonoridade medida</translation>
    </message>
    <message>
        <source>Measured loudness range</source>
        <translation>Intervalo de sonoridade medido</translation>
    </message>
    <message>
        <source>Measured true peak</source>
        <translation>Pico real medido</translation>
    </message>
    <message>
        <source>Attack</source>
        <translation>Ataque</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Libertação</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Limiar</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>Compressor</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Rácio</translation>
    </message>
    <message>
        <source>Make-up gain</source>
        <translation>Ganho de compensação</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Limitador</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Noise gate</source>
        <translation>Porta de ruído</translation>
    </message>
    <message>
        <source>Reduction</source>
        <translation>Redução</translation>
    </message>
    <message>
        <source>Reverb</source>
        <translation>Reverberação</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo de reverberação</translation>
    </message>
    <message>
        <source>First reflection</source>
        <translation>Primeira reflexão</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mistura</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Eco</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Atraso</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nível</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Repetições</translation>
    </message>
    <message>
        <source>High pass</source>
        <translation>Passa-alto</translation>
    </message>
    <message>
        <source>Low pass</source>
        <translation>Passa-baixo</translation>
    </message>
    <message>
        <source>De-esser</source>
        <translation>De-esser</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profundidade</translation>
    </message>
    <message>
        <source>Loudness normalisation</source>
        <translation>Normalização da sonoridade</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Desfocagem</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Nitidez</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Espelho</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Redução de ruído</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Força</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>Sombra projetada</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>Desvio horizontal</translation>
    </message>
    <message>
        <source>Offset down</source>
        <translation>Desvio vertical</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidade</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Tipo de letra</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Negrito</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Itálico</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>Espaçamento entre letras</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Espaçamento entre linhas</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direção</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automática</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Da esquerda para a direita</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Da direita para a esquerda</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alinhamento</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Posição vertical</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Meio</translation>
    </message>
    <message>
        <source>Shift to the right</source>
        <translation>Deslocação para a direita</translation>
    </message>
    <message>
        <source>Shift downwards</source>
        <translation>Deslocação para baixo</translation>
    </message>
    <message>
        <source>Longest line</source>
        <translation>Comprimento máximo da linha</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margem</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Outline colour</source>
        <translation>Cor do contorno</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>Cor da sombra</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>Sombra para a direita</translation>
    </message>
    <message>
        <source>Shadow downwards</source>
        <translation>Sombra para baixo</translation>
    </message>
    <message>
        <source>Shadow blur</source>
        <translation>Desfocagem da sombra</translation>
    </message>
    <message>
        <source>Box colour</source>
        <translation>Cor da caixa</translation>
    </message>
    <message>
        <source>Box padding</source>
        <translation>Espaçamento interior da caixa</translation>
    </message>
    <message>
        <source>Box corners</source>
        <translation>Cantos da caixa</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Aparecer gradualmente</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Desaparecer gradualmente</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Texto rolante</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Para cima</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Para baixo</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>Para a esquerda</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>Para a direita</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Transição de áudio</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Equal power</source>
        <translation>Potência constante</translation>
    </message>
    <message>
        <source>No fade</source>
        <translation>Sem transição</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Inverter</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Para baixo à direita</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Para baixo à esquerda</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Para cima à direita</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Para cima à esquerda</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Dissolução</translation>
    </message>
    <message>
        <source>Dip to colour</source>
        <translation>Dissolução para cor</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Varrimento</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Círculo</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Losango</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Relógio</translation>
    </message>
    <message>
        <source>Barn doors</source>
        <translation>Portas de celeiro</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>Empurrar</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Deslizar</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>An effect was left out</source>
        <translation>Um efeito foi omitido</translation>
    </message>
    <message>
        <source>A transition was left out</source>
        <translation>Uma transição foi omitida</translation>
    </message>
    <message>
        <source>A clip of an unknown kind shows an empty picture</source>
        <translation>Um clipe de tipo desconhecido mostra uma imagem vazia</translation>
    </message>
    <message>
        <source>A clip that plays backwards plays forwards</source>
        <translation>Um clipe reproduzido ao contrário é reproduzido para a frente</translation>
    </message>
    <message>
        <source>A change of speed was left out or is only close</source>
        <translation>Uma alteração de velocidade foi omitida ou é só aproximada</translation>
    </message>
    <message>
        <source>A file is missing; its clip is offline</source>
        <translation>Falta um ficheiro; o clipe está offline</translation>
    </message>
    <message>
        <source>A part of the document cannot be used</source>
        <translation>Uma parte do documento não pode ser usada</translation>
    </message>
    <message>
        <source>Markers are kept as text only</source>
        <translation>Os marcadores são mantidos apenas como texto</translation>
    </message>
    <message>
        <source>A volume, balance or opacity is only close</source>
        <translation>Um volume, balanço ou opacidade é só aproximado</translation>
    </message>
    <message>
        <source>There is no such device</source>
        <translation>O dispositivo não existe</translation>
    </message>
    <message>
        <source>The track is locked</source>
        <translation>A faixa está bloqueada</translation>
    </message>
    <message>
        <source>Clips would overlap</source>
        <translation>Os clipes ficariam sobrepostos</translation>
    </message>
    <message>
        <source>The clip has no more material</source>
        <translation>O clipe não tem mais material</translation>
    </message>
    <message>
        <source>Nothing would be left of the clip</source>
        <translation>Não sobraria nada do clipe</translation>
    </message>
    <message>
        <source>A transition cannot be cut</source>
        <translation>Uma transição não pode ser cortada</translation>
    </message>
</context>
</TS>
