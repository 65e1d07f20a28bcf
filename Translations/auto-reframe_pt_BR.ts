<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Auto Reframe</source>
        <translation>Sobre o Auto Reframe</translation>
    </message>
    <message>
        <source>Auto Reframe %1</source>
        <translation>Auto Reframe %1</translation>
    </message>
    <message>
        <source>Keeps the subject of a video in the picture. Everything runs on this computer.</source>
        <translation>Mantém o assunto de um vídeo na imagem. Tudo é executado neste computador.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licenças</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>AnalysisPlot</name>
    <message>
        <source>left</source>
        <translation>esquerda</translation>
    </message>
    <message>
        <source>top</source>
        <translation>topo</translation>
    </message>
    <message>
        <source>right</source>
        <translation>direita</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>base</translation>
    </message>
    <message>
        <source>The crop&apos;s path over the evidence</source>
        <translation>Trajeto do corte sobre os indícios</translation>
    </message>
    <message>
        <source>Evidence by signal</source>
        <translation>Indícios por sinal</translation>
    </message>
    <message>
        <source>strong</source>
        <translation>forte</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
</context>
<context>
    <name>AnalysisReport</name>
    <message>
        <source>1 frame</source>
        <translation>1 quadro</translation>
    </message>
    <message numerus="yes">
        <source>%n frames</source>
        <translation>
            <numerusform>%n quadro</numerusform>
            <numerusform>%n quadros</numerusform>
        </translation>
    </message>
    <message>
        <source>The crop</source>
        <translation>O corte</translation>
    </message>
    <message>
        <source>Frames of the video with the crop drawn</source>
        <translation>Quadros do vídeo com o corte desenhado</translation>
    </message>
    <message>
        <source>Path of the crop</source>
        <translation>Trajeto do corte</translation>
    </message>
    <message>
        <source>Time runs from left to right. The left of the picture is at the bottom, its right at the top. A brighter spot has more evidence.</source>
        <translation>O tempo corre da esquerda para a direita. A esquerda da imagem fica embaixo e a direita, em cima. Um ponto mais claro tem mais indícios.</translation>
    </message>
    <message>
        <source>Time runs from left to right. The bottom of the picture is at the bottom, its top at the top. A brighter spot has more evidence.</source>
        <translation>O tempo corre da esquerda para a direita. A base da imagem fica embaixo e o topo, em cima. Um ponto mais claro tem mais indícios.</translation>
    </message>
    <message>
        <source>centre of the crop</source>
        <translation>centro do corte</translation>
    </message>
    <message>
        <source>edges of the crop</source>
        <translation>bordas do corte</translation>
    </message>
    <message>
        <source>centre with the most evidence</source>
        <translation>centro com mais indícios</translation>
    </message>
    <message>
        <source>start of a shot, numbered above</source>
        <translation>início de um plano, numerado acima</translation>
    </message>
    <message>
        <source>Evidence by signal</source>
        <translation>Indícios por sinal</translation>
    </message>
    <message>
        <source>How much stronger each signal is at the centre with the most evidence than at an average place.</source>
        <translation>Quanto cada sinal é mais forte no centro com mais indícios do que em um lugar médio.</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Planos</translation>
    </message>
    <message>
        <source>Travel is the sum of all movements of the crop in the shot, in percent of the width of the picture. Confidence falls if the evidence outside of the crop is as strong as inside, or if single signals want the crop elsewhere; where it is low, look at the shot.</source>
        <translation>O percurso é a soma de todos os movimentos do corte no plano, em porcentagem da largura da imagem. A confiança cai quando há indícios fora do corte tão fortes quanto dentro ou sinais que o querem em outro lugar; onde for baixa, verifique o plano.</translation>
    </message>
    <message>
        <source>Travel is the sum of all movements of the crop in the shot, in percent of the height of the picture. Confidence falls if the evidence outside of the crop is as strong as inside, or if single signals want the crop elsewhere; where it is low, look at the shot.</source>
        <translation>O percurso é a soma de todos os movimentos do corte no plano, em porcentagem da altura da imagem. A confiança cai quando há indícios fora do corte tão fortes quanto dentro ou sinais que o querem em outro lugar; onde for baixa, verifique o plano.</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Plano</translation>
    </message>
    <message>
        <source>First frame</source>
        <translation>Primeiro quadro</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Segundos</translation>
    </message>
    <message>
        <source>Dominant signal</source>
        <translation>Sinal dominante</translation>
    </message>
    <message>
        <source>Travel of the crop</source>
        <translation>Percurso do corte</translation>
    </message>
    <message>
        <source>Confidence</source>
        <translation>Confiança</translation>
    </message>
    <message>
        <source>%1 at %2:%3</source>
        <translation>%1 em %2:%3</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Tamanho do arquivo</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Quadros por segundo</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Corte</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>fast</source>
        <translation>rápida</translation>
    </message>
    <message>
        <source>slow</source>
        <translation>lenta</translation>
    </message>
    <message>
        <source>auto</source>
        <translation>automática</translation>
    </message>
    <message>
        <source>none: the crop is centred</source>
        <translation>nenhum: o corte está centralizado</translation>
    </message>
    <message>
        <source>%1, %2 %</source>
        <translation>%1, %2%</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>AutoReframeOptions</name>
    <message>
        <source>%1
Try auto-reframe --help.</source>
        <translation>%1
Consulte auto-reframe --help.</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Mostrar este texto.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar a versão.</translation>
    </message>
    <message>
        <source>Turns videos into another aspect ratio and keeps their subject in the picture.
The command line program for many files at once is reframe.</source>
        <translation>Converte vídeos para outra proporção e mantém o assunto na imagem.
O programa de linha de comando para muitos arquivos de uma vez é o reframe.</translation>
    </message>
    <message>
        <source>Videos to open the library with.</source>
        <translation>Vídeos com os quais abrir a biblioteca.</translation>
    </message>
    <message>
        <source>Language of the texts: %1. Otherwise the one chosen in the menu, or that of the system.</source>
        <translation>Idioma dos textos: %1. Caso contrário, o escolhido no menu ou o do sistema.</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source>Shorts, Reels, Stories</source>
        <translation>Shorts, Reels, Stories</translation>
    </message>
    <message>
        <source>Feed, portrait</source>
        <translation>Feed, retrato</translation>
    </message>
    <message>
        <source>Feed, square</source>
        <translation>Feed, quadrado</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Cinema</translation>
    </message>
    <message>
        <source>Widescreen</source>
        <translation>Widescreen</translation>
    </message>
    <message>
        <source>Classic television</source>
        <translation>Televisão clássica</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automática</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lenta</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rápida</translation>
    </message>
    <message>
        <source>As large as the crop</source>
        <translation>Tão grande quanto o corte</translation>
    </message>
    <message>
        <source>Shorter side %1 pixels</source>
        <translation>Lado menor de %1 pixels</translation>
    </message>
    <message>
        <source>Choose an aspect ratio.</source>
        <translation>Escolha uma proporção.</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>Escolha uma pasta.</translation>
    </message>
    <message>
        <source>The selected videos have this aspect ratio already.</source>
        <translation>Os vídeos selecionados já têm esta proporção.</translation>
    </message>
    <message numerus="yes">
        <source>%n files: %1</source>
        <translation>
            <numerusform>%n arquivo: %1</numerusform>
            <numerusform>%n arquivos: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reframe %n Videos</source>
        <translation>
            <numerusform>Reenquadrar %n vídeo</numerusform>
            <numerusform>Reenquadrar %n vídeos</numerusform>
        </translation>
    </message>
    <message>
        <source>Aspect Ratios</source>
        <translation>Proporções</translation>
    </message>
    <message>
        <source>Motion Speed</source>
        <translation>Velocidade do movimento</translation>
    </message>
    <message>
        <source>How readily the crop follows the subject</source>
        <translation>Com que rapidez o corte acompanha o assunto</translation>
    </message>
    <message>
        <source>Output Size</source>
        <translation>Tamanho de saída</translation>
    </message>
    <message>
        <source>The size of the exported videos</source>
        <translation>O tamanho dos vídeos exportados</translation>
    </message>
    <message>
        <source>File Name, with %1</source>
        <translation>Nome do arquivo, com %1</translation>
    </message>
    <message>
        <source>What stands in braces is replaced for each file.</source>
        <translation>O que está entre chaves é substituído em cada arquivo.</translation>
    </message>
    <message>
        <source>The folder for the exported videos</source>
        <translation>A pasta dos vídeos exportados</translation>
    </message>
    <message>
        <source>Reframe All</source>
        <translation>Reenquadrar tudo</translation>
    </message>
    <message>
        <source>%1 pixels high</source>
        <translation>%1 pixels de altura</translation>
    </message>
    <message numerus="yes">
        <source>%n files, enlarged beyond their crops: %1</source>
        <translation>
            <numerusform>%n arquivo, ampliado além do corte: %1</numerusform>
            <numerusform>%n arquivos, ampliados além dos cortes: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CropFinder</name>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>Não é possível reenquadrar %1: %2.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has no moving picture.</source>
        <translation>Não é possível reenquadrar %1: não tem imagem em movimento.</translation>
    </message>
    <message>
        <source>Cannot use %1: it has the crops of %2 frames, and %3 has %4 frames.</source>
        <translation>Não é possível usar %1: contém os cortes de %2 quadros, e %3 tem %4 quadros.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has the aspect ratio %2 already.</source>
        <translation>Não é possível reenquadrar %1: já tem a proporção %2.</translation>
    </message>
    <message numerus="yes">
        <source>Cannot reframe %1: it has only %n frames; %2 are needed.</source>
        <translation>
            <numerusform>Não é possível reenquadrar %1: tem apenas %n quadro; são necessários %2.</numerusform>
            <numerusform>Não é possível reenquadrar %1: tem apenas %n quadros; são necessários %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CropRenderSettings</name>
    <message>
        <source>its picture of %1 x %2 pixels is too small</source>
        <translation>a imagem de %1 x %2 pixels é pequena demais</translation>
    </message>
</context>
<context>
    <name>CropTrackDialog</name>
    <message>
        <source>Enter a file name.</source>
        <translation>Digite um nome de arquivo.</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>Escolha uma pasta.</translation>
    </message>
    <message>
        <source>Save Crop Track</source>
        <translation>Salvar trilha de corte</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>The file gets a number if there is one of this name</source>
        <translation>Se já existir um arquivo com este nome, um número é acrescentado</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>The command line reads both</source>
        <translation>A linha de comando lê os dois</translation>
    </message>
    <message>
        <source>The folder for the crop track</source>
        <translation>A pasta da trilha de corte</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Export for %1</source>
        <translation>Exportar para %1</translation>
    </message>
    <message>
        <source>The folder for the project or the keyframes</source>
        <translation>A pasta do projeto ou dos quadros-chave</translation>
    </message>
</context>
<context>
    <name>CropTrackFile</name>
    <message>
        <source>it is a folder</source>
        <translation>é uma pasta</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>não é um arquivo comum</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>Não é possível abrir %1: %2.</translation>
    </message>
    <message>
        <source>Cannot use %1: it is too large for a crop track of a video of %2 frames.</source>
        <translation>Não é possível usar %1: é grande demais para a trilha de corte de um vídeo de %2 quadros.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>Não é possível ler %1: %2.</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds no frames.</source>
        <translation>Não é possível usar %1: não contém quadros.</translation>
    </message>
</context>
<context>
    <name>CropTrackParser</name>
    <message>
        <source>Cannot use %1: it is no crop track (line %2).</source>
        <translation>Não é possível usar %1: não é uma trilha de corte (linha %2).</translation>
    </message>
    <message>
        <source>Cannot use %1: frame %2 is no rectangle inside the picture.</source>
        <translation>Não é possível usar %1: o quadro %2 não é um retângulo dentro da imagem.</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds more frames than the video, which has %2.</source>
        <translation>Não é possível usar %1: contém mais quadros que o vídeo, que tem %2.</translation>
    </message>
    <message>
        <source>Cannot use %1: it is a crop track of version %2, and this program reads version 1.</source>
        <translation>Não é possível usar %1: é uma trilha de corte da versão %2, e este programa lê a versão 1.</translation>
    </message>
</context>
<context>
    <name>CropWait</name>
    <message>
        <source>Auto Reframe</source>
        <translation>Auto Reframe</translation>
    </message>
    <message>
        <source>Analyzing %1</source>
        <translation>Analisando %1</translation>
    </message>
</context>
<context>
    <name>DialogEdits</name>
    <message>
        <source>As large as the crop</source>
        <translation>Tão grande quanto o corte</translation>
    </message>
    <message>
        <source>%1 pixels high</source>
        <translation>%1 pixels de altura</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
</context>
<context>
    <name>ExportCard</name>
    <message numerus="yes">
        <source>%n to look at</source>
        <translation>
            <numerusform>%n para verificar</numerusform>
            <numerusform>%n para verificar</numerusform>
        </translation>
    </message>
    <message>
        <source>Progress of %1</source>
        <translation>Progresso de %1</translation>
    </message>
    <message>
        <source>Cancel %1</source>
        <translation>Cancelar %1</translation>
    </message>
    <message>
        <source>Retry %1</source>
        <translation>Repetir %1</translation>
    </message>
    <message>
        <source>Look at the doubtful shots of %1</source>
        <translation>Verificar os planos duvidosos de %1</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>Mostrar %1 na pasta</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Paused · %1</source>
        <translation>Pausado · %1</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Aguardando</translation>
    </message>
    <message>
        <source>Analyzing · %1</source>
        <translation>Analisando · %1</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Cancelando…</translation>
    </message>
    <message>
        <source>Done · %1</source>
        <translation>Pronto · %1</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Not finished</source>
        <translation>Não concluído</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Export it again</source>
        <translation>Exportar novamente</translation>
    </message>
    <message>
        <source>Show the file in its folder</source>
        <translation>Mostrar o arquivo na pasta</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>Remover da lista</translation>
    </message>
    <message>
        <source>Opens the video at these settings and its first doubtful shot; N leads to the next one.</source>
        <translation>Abre o vídeo com estas configurações no primeiro plano duvidoso; N leva ao próximo.</translation>
    </message>
</context>
<context>
    <name>ExportForMenu</name>
    <message>
        <source>Export for</source>
        <translation>Exportar para</translation>
    </message>
    <message>
        <source>%1 (.%2)…</source>
        <translation>%1 (.%2)…</translation>
    </message>
</context>
<context>
    <name>ExportManners</name>
    <message>
        <source>Exported %1</source>
        <translation>%1 exportado</translation>
    </message>
    <message>
        <source>Cannot export %1</source>
        <translation>Não é possível exportar %1</translation>
    </message>
    <message>
        <source>Videos are being exported</source>
        <translation>Vídeos estão sendo exportados</translation>
    </message>
</context>
<context>
    <name>ExportPanel</name>
    <message>
        <source>Exports</source>
        <translation>Exportações</translation>
    </message>
    <message>
        <source>Clear finished</source>
        <translation>Limpar concluídas</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Remove the finished exports from the list; their files stay</source>
        <translation>Remover da lista as exportações concluídas; os arquivos permanecem</translation>
    </message>
    <message>
        <source>Export those that the last run did not finish</source>
        <translation>Exportar o que a última sessão não concluiu</translation>
    </message>
    <message>
        <source>Remove those that the last run did not finish from the list</source>
        <translation>Remover da lista o que a última sessão não concluiu</translation>
    </message>
    <message>
        <source>Videos that you export from the Auto Reframe window appear here.</source>
        <translation>Os vídeos exportados na janela Auto Reframe aparecem aqui.</translation>
    </message>
    <message numerus="yes">
        <source>%n exports not finished</source>
        <translation>
            <numerusform>%n exportação não concluída</numerusform>
            <numerusform>%n exportações não concluídas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportRecord</name>
    <message>
        <source>Cannot export: no name or no folder was given.</source>
        <translation>Não é possível exportar: falta o nome ou a pasta.</translation>
    </message>
    <message>
        <source>Cannot export %1: no picture size was given.</source>
        <translation>Não é possível exportar %1: falta o tamanho da imagem.</translation>
    </message>
</context>
<context>
    <name>FarmOptions</name>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>Não é possível abrir %1: %2.</translation>
    </message>
    <message>
        <source>Cannot read the folder %1.</source>
        <translation>Não é possível ler a pasta %1.</translation>
    </message>
    <message>
        <source>Of a folder that is an input, take the videos in its subfolders too.</source>
        <translation>Se uma entrada for uma pasta, usar também os vídeos das subpastas.</translation>
    </message>
    <message>
        <source>Read more inputs from FILE, one a line; - is standard input.</source>
        <translation>Ler mais entradas de FILE, uma por linha; - é a entrada padrão.</translation>
    </message>
    <message>
        <source>Write progress and results to FILE as JSON lines, whatever is printed.</source>
        <translation>Gravar o progresso e os resultados em FILE como linhas JSON, seja o que for exibido.</translation>
    </message>
    <message>
        <source>Skip inputs whose results are there already, from the same content, settings and version; replace results of other settings.</source>
        <translation>Ignorar entradas cujos resultados já existem, do mesmo conteúdo, ajustes e versão; substituir resultados de outros ajustes.</translation>
    </message>
    <message>
        <source>Only the frames A to B, counted from 0, or the part K of N: with --apply, render them without sound; otherwise write the pictures that the analysis takes of them (.pictures).</source>
        <translation>Apenas os quadros A a B, contados a partir de 0, ou a parte K de N: com --apply, renderizá-los sem som; caso contrário, gravar as imagens que a análise usa deles (.pictures).</translation>
    </message>
    <message>
        <source>The first input is a video, the others are all its parts, as --frames wrote them; the results are those of the whole video.</source>
        <translation>A primeira entrada é um vídeo e as outras são todas as suas partes, como --frames as gravou; os resultados são os do vídeo inteiro.</translation>
    </message>
</context>
<context>
    <name>FollowOption</name>
    <message>
        <source>the video ends after %1 s</source>
        <translation>o vídeo termina depois de %1 s</translation>
    </message>
    <message>
        <source>it lies outside the picture of %1x%2 pixels</source>
        <translation>está fora da imagem de %1x%2 pixels</translation>
    </message>
</context>
<context>
    <name>FoundSignals</name>
    <message>
        <source>motion</source>
        <translation>movimento</translation>
    </message>
    <message>
        <source>movers</source>
        <translation>móveis</translation>
    </message>
    <message>
        <source>saliency</source>
        <translation>saliência</translation>
    </message>
    <message>
        <source>faces</source>
        <translation>rostos</translation>
    </message>
    <message>
        <source>detected</source>
        <translation>detectados</translation>
    </message>
    <message>
        <source>motion: what the camera&apos;s own movement does not explain</source>
        <translation>movimento: o que o movimento da própria câmera não explica</translation>
    </message>
    <message>
        <source>movers: what travels through the shot, however small</source>
        <translation>móveis: o que atravessa o plano, por menor que seja</translation>
    </message>
    <message>
        <source>saliency: what stands out in a still picture</source>
        <translation>saliência: o que se destaca em uma imagem parada</translation>
    </message>
    <message>
        <source>detected: people and animals</source>
        <translation>detectados: pessoas e animais</translation>
    </message>
    <message>
        <source>it is not clear who speaks</source>
        <translation>não está claro quem fala</translation>
    </message>
    <message>
        <source>who speaks is hardly clear</source>
        <translation>mal se sabe quem fala</translation>
    </message>
    <message>
        <source>nothing stands out</source>
        <translation>nada se destaca</translation>
    </message>
    <message>
        <source>people or animals are in several places</source>
        <translation>há pessoas ou animais em vários lugares</translation>
    </message>
    <message>
        <source>what stands out is in several places</source>
        <translation>o que se destaca está em vários lugares</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>holds who speaks</source>
        <translation>fixa-se em quem fala</translation>
    </message>
    <message>
        <source>follows who speaks</source>
        <translation>acompanha quem fala</translation>
    </message>
    <message>
        <source>follows who speaks, with 1 cut</source>
        <translation>acompanha quem fala, com 1 corte</translation>
    </message>
    <message numerus="yes">
        <source>follows who speaks, with %n cuts</source>
        <translation>
            <numerusform>acompanha quem fala, com %n corte</numerusform>
            <numerusform>acompanha quem fala, com %n cortes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FramesOption</name>
    <message>
        <source>its last frame is %1</source>
        <translation>seu último quadro é %1</translation>
    </message>
    <message>
        <source>it has %1 frames only</source>
        <translation>ele tem apenas %1 quadros</translation>
    </message>
</context>
<context>
    <name>HelpDialog</name>
    <message>
        <source>Import videos</source>
        <translation>Importar vídeos</translation>
    </message>
    <message>
        <source>Select all videos</source>
        <translation>Selecionar todos os vídeos</translation>
    </message>
    <message>
        <source>Select several videos</source>
        <translation>Selecionar vários vídeos</translation>
    </message>
    <message>
        <source>Ctrl+Click, Shift+Click</source>
        <translation>Ctrl+clique, Shift+clique</translation>
    </message>
    <message>
        <source>Reframe the selected video</source>
        <translation>Reenquadrar o vídeo selecionado</translation>
    </message>
    <message>
        <source>Reframe all selected videos</source>
        <translation>Reenquadrar todos os vídeos selecionados</translation>
    </message>
    <message>
        <source>Remove from the library</source>
        <translation>Remover da biblioteca</translation>
    </message>
    <message>
        <source>Show this list</source>
        <translation>Mostrar esta lista</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Play, pause</source>
        <translation>Reproduzir, pausar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>Previous edit point</source>
        <translation>Ponto de edição anterior</translation>
    </message>
    <message>
        <source>Next edit point</source>
        <translation>Próximo ponto de edição</translation>
    </message>
    <message>
        <source>Delete the edit point</source>
        <translation>Excluir o ponto de edição</translation>
    </message>
    <message>
        <source>Previous doubtful shot</source>
        <translation>Plano duvidoso anterior</translation>
    </message>
    <message>
        <source>Next doubtful shot</source>
        <translation>Próximo plano duvidoso</translation>
    </message>
    <message>
        <source>Move the crop by a pixel</source>
        <translation>Mover o corte em um pixel</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Teclas de seta</translation>
    </message>
    <message>
        <source>Move the crop by 10 pixels</source>
        <translation>Mover o corte em 10 pixels</translation>
    </message>
    <message>
        <source>Shift+Arrow keys</source>
        <translation>Shift+teclas de seta</translation>
    </message>
    <message>
        <source>Back to automatic in this shot</source>
        <translation>Voltar ao automático neste plano</translation>
    </message>
    <message>
        <source>Point at the middle of the crop</source>
        <translation>Apontar para o centro do corte</translation>
    </message>
    <message>
        <source>Remove the box</source>
        <translation>Remover a caixa</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Biblioteca</translation>
    </message>
    <message>
        <source>Auto Reframe Window</source>
        <translation>Janela Auto Reframe</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>HostMediaBackend</name>
    <message>
        <source>Cannot open %1: it has no moving picture.</source>
        <translation>Não é possível abrir %1: não tem imagem em movimento.</translation>
    </message>
</context>
<context>
    <name>KrAutoReframeDialog</name>
    <message>
        <source>AutoReframe_Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Auto Reframe</source>
        <translation>Auto Reframe</translation>
    </message>
    <message>
        <source>Analysis error. Please try again.</source>
        <translation>Erro na análise. Tente novamente.</translation>
    </message>
    <message>
        <source>This video is too short. Please try a different video.</source>
        <translation>Este vídeo é curto demais. Tente outro vídeo.</translation>
    </message>
    <message>
        <source>You&apos;ve chosen the same aspect ratio as the original video. Please select a different aspect ratio.</source>
        <translation>Você escolheu a mesma proporção do vídeo original. Selecione outra proporção.</translation>
    </message>
    <message>
        <source>Converting video. Please wait...</source>
        <translation>Convertendo o vídeo. Aguarde...</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>Deseja mesmo sair?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>All supported files(%1;);</source>
        <translation>Todos os arquivos compatíveis(%1;);</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Unknown error, please try again</source>
        <translation>Erro desconhecido, tente novamente</translation>
    </message>
</context>
<context>
    <name>KrAutoReframeExportDlg</name>
    <message>
        <source>Export to MP4</source>
        <translation>Exportar para MP4</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Save to:</source>
        <translation>Salvar em:</translation>
    </message>
    <message>
        <source>Please make sure you have selected a valid folder.</source>
        <translation>Selecione uma pasta válida.</translation>
    </message>
    <message>
        <source>Please check write permission, or choose another path to continue.</source>
        <translation>Verifique a permissão de gravação ou escolha outro local para continuar.</translation>
    </message>
    <message>
        <source>The outputted file path is too long, please choose another path to continue.</source>
        <translation>O caminho do arquivo de saída é longo demais; escolha outro local para continuar.</translation>
    </message>
    <message>
        <source>There is not enough space in the specified output directory, please choose another one.
Dise Space needed :%1 MB, remaining:%2 MB.</source>
        <translation>Não há espaço suficiente na pasta de saída; escolha outra.
Espaço necessário: %1 MB, disponível: %2 MB.</translation>
    </message>
</context>
<context>
    <name>KrAutoReframePlayerControlBar</name>
    <message>
        <source>Backward (%1)</source>
        <translation>Voltar (%1)</translation>
    </message>
    <message>
        <source>Forward (%1)</source>
        <translation>Avançar (%1)</translation>
    </message>
    <message>
        <source>Stop (%1)</source>
        <translation>Parar (%1)</translation>
    </message>
    <message>
        <source>Play (%1)</source>
        <translation>Reproduzir (%1)</translation>
    </message>
    <message>
        <source>Pause (%1)</source>
        <translation>Pausar (%1)</translation>
    </message>
    <message>
        <source>Undo (%1)</source>
        <translation>Desfazer (%1)</translation>
    </message>
    <message>
        <source>Redo (%1)</source>
        <translation>Refazer (%1)</translation>
    </message>
    <message>
        <source>Delete (%1)</source>
        <translation>Excluir (%1)</translation>
    </message>
    <message>
        <source>Previous Edit Point (%1)</source>
        <translation>Ponto de edição anterior (%1)</translation>
    </message>
    <message>
        <source>Next Edit Point (%1)</source>
        <translation>Próximo ponto de edição (%1)</translation>
    </message>
</context>
<context>
    <name>KrAutoReframePropertyPanel</name>
    <message>
        <source>Auto</source>
        <translation>Automática</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rápida</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lenta</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Replace File</source>
        <translation>Substituir arquivo</translation>
    </message>
    <message>
        <source>Adjust Frame</source>
        <translation>Ajustar corte</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Proporção</translation>
    </message>
    <message>
        <source>Motion Speed</source>
        <translation>Velocidade do movimento</translation>
    </message>
    <message>
        <source>Analyze</source>
        <translation>Analisar</translation>
    </message>
    <message>
        <source>AutoReframe_Restart</source>
        <translation>Analisar de novo</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
</context>
<context>
    <name>KrCropKeys</name>
    <message>
        <source>Picture</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>The arrow keys move the crop, with Shift in larger steps.</source>
        <translation>As teclas de seta movem o corte; com Shift, em passos maiores.</translation>
    </message>
</context>
<context>
    <name>KrDialogExtension</name>
    <message>
        <source>The crop follows your choice</source>
        <translation>O corte acompanha sua escolha</translation>
    </message>
    <message>
        <source>The crop avoids your choice</source>
        <translation>O corte evita sua escolha</translation>
    </message>
    <message>
        <source>The crop is held</source>
        <translation>O corte fica fixo</translation>
    </message>
    <message>
        <source>The whole picture is shown</source>
        <translation>A imagem inteira é mostrada</translation>
    </message>
    <message>
        <source>The analysis decides</source>
        <translation>A análise decide</translation>
    </message>
    <message>
        <source>Lost from %1: point again</source>
        <translation>Perdido a partir de %1: aponte de novo</translation>
    </message>
    <message>
        <source>Perhaps lost from %1: look, and point again</source>
        <translation>Talvez perdido a partir de %1: verifique e aponte de novo</translation>
    </message>
    <message>
        <source>Settings changed: analyze again</source>
        <translation>Configurações alteradas: analise de novo</translation>
    </message>
    <message numerus="yes">
        <source>%n choices are kept, but not in this cut of the video</source>
        <translation>
            <numerusform>%n escolha é mantida, mas não nesta montagem do vídeo</numerusform>
            <numerusform>%n escolhas são mantidas, mas não nesta montagem do vídeo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n choices were moved to where their pictures are</source>
        <translation>
            <numerusform>%n escolha foi movida para onde está sua imagem</numerusform>
            <numerusform>%n escolhas foram movidas para onde estão suas imagens</numerusform>
        </translation>
    </message>
    <message>
        <source>Following: %1 %</source>
        <translation>Acompanhando: %1%</translation>
    </message>
    <message>
        <source>Your edit stays here</source>
        <translation>Sua edição é mantida aqui</translation>
    </message>
</context>
<context>
    <name>KrDoubtfulShots</name>
    <message>
        <source>Previous Doubtful Shot (%1)</source>
        <translation>Plano duvidoso anterior (%1)</translation>
    </message>
    <message>
        <source>Next Doubtful Shot (%1)</source>
        <translation>Próximo plano duvidoso (%1)</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n shots to look at</source>
        <translation>
            <numerusform>%1 de %n plano para verificar</numerusform>
            <numerusform>%1 de %n planos para verificar</numerusform>
        </translation>
    </message>
    <message>
        <source>All doubtful shots seen</source>
        <translation>Todos os planos duvidosos foram vistos</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>Plano %1 de %2</translation>
    </message>
    <message>
        <source>nothing stands out</source>
        <translation>nada se destaca</translation>
    </message>
    <message>
        <source>what stands out is in several places, far apart</source>
        <translation>o que se destaca está em vários lugares, bem afastados</translation>
    </message>
    <message>
        <source>several people or animals, far apart</source>
        <translation>várias pessoas ou animais, bem afastados</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>KrEditPictures</name>
    <message numerus="yes">
        <source>%n edit points are kept, but not in this cut of the video</source>
        <translation>
            <numerusform>%n ponto de edição é mantido, mas não nesta montagem do vídeo</numerusform>
            <numerusform>%n pontos de edição são mantidos, mas não nesta montagem do vídeo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit points were moved to where their pictures are</source>
        <translation>
            <numerusform>%n ponto de edição foi movido para onde estão suas imagens</numerusform>
            <numerusform>%n pontos de edição foram movidos para onde estão suas imagens</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KrExportStatus</name>
    <message>
        <source>Progress of the export</source>
        <translation>Progresso da exportação</translation>
    </message>
    <message>
        <source>The size of the exported video in pixels.</source>
        <translation>O tamanho do vídeo exportado em pixels.</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <source>Opens the folder of the exported video.</source>
        <translation>Abre a pasta do vídeo exportado.</translation>
    </message>
    <message>
        <source>Output: %1 × %2</source>
        <translation>Saída: %1 × %2</translation>
    </message>
    <message>
        <source>Waiting in the export queue</source>
        <translation>Na fila de exportação</translation>
    </message>
    <message>
        <source>Exporting: %1 %</source>
        <translation>Exportando: %1%</translation>
    </message>
    <message>
        <source>Exported</source>
        <translation>Exportado</translation>
    </message>
    <message>
        <source>Export cancelled</source>
        <translation>Exportação cancelada</translation>
    </message>
    <message>
        <source>Output: %1 × %2, enlarged</source>
        <translation>Saída: %1 × %2, ampliada</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Saída</translation>
    </message>
    <message>
        <source>The size in which the video is exported.</source>
        <translation>O tamanho em que o vídeo é exportado.</translation>
    </message>
</context>
<context>
    <name>KrFollowControls</name>
    <message>
        <source>This looks like background</source>
        <translation>Isto parece o fundo</translation>
    </message>
    <message>
        <source>Hold the Crop Here in This Shot</source>
        <translation>Fixar o corte aqui neste plano</translation>
    </message>
    <message>
        <source>Follow This Anyway</source>
        <translation>Acompanhar mesmo assim</translation>
    </message>
    <message>
        <source>Follow This</source>
        <translation>Acompanhar isto</translation>
    </message>
    <message>
        <source>Not This</source>
        <translation>Isto não</translation>
    </message>
    <message>
        <source>Hold the Crop in This Shot</source>
        <translation>Fixar o corte neste plano</translation>
    </message>
    <message>
        <source>Show the Whole Picture in This Shot</source>
        <translation>Mostrar a imagem inteira neste plano</translation>
    </message>
    <message>
        <source>Back to Automatic</source>
        <translation>Voltar ao automático</translation>
    </message>
</context>
<context>
    <name>KrMessageDialog</name>
    <message>
        <source>Auto Reframe</source>
        <translation>Auto Reframe</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>KrRatioComparison</name>
    <message>
        <source>Compare Aspect Ratios</source>
        <translation>Comparar proporções</translation>
    </message>
</context>
<context>
    <name>KrRatioPane</name>
    <message>
        <source>Result in %1:%2</source>
        <translation>Resultado em %1:%2</translation>
    </message>
    <message>
        <source>%1:%2</source>
        <translation>%1:%2</translation>
    </message>
    <message>
        <source>%1 · finding the crop…</source>
        <translation>%1 · procurando o corte…</translation>
    </message>
    <message>
        <source>%1 · %2 × %3</source>
        <translation>%1 · %2 × %3</translation>
    </message>
    <message>
        <source>%1 · analyze the video again</source>
        <translation>%1 · analise de novo</translation>
    </message>
</context>
<context>
    <name>KrViewMenu</name>
    <message>
        <source>View</source>
        <translation>Exibição</translation>
    </message>
    <message>
        <source>Safe Zones</source>
        <translation>Zonas seguras</translation>
    </message>
    <message>
        <source>Dims what players of vertical videos cover with texts and buttons. For 9:16 only.</source>
        <translation>Escurece o que os players de vídeos verticais cobrem com textos e botões. Apenas para 9:16.</translation>
    </message>
    <message>
        <source>Thirds</source>
        <translation>Terços</translation>
    </message>
    <message>
        <source>A grid that divides the result into thirds.</source>
        <translation>Uma grade que divide o resultado em terços.</translation>
    </message>
    <message>
        <source>Headroom</source>
        <translation>Espaço acima da cabeça</translation>
    </message>
    <message>
        <source>The band in which the top of a head belongs.</source>
        <translation>A faixa em que deve ficar o topo de uma cabeça.</translation>
    </message>
    <message>
        <source>Compare Aspect Ratios…</source>
        <translation>Comparar proporções…</translation>
    </message>
    <message>
        <source>Shows the results of several aspect ratios side by side.</source>
        <translation>Mostra lado a lado os resultados de várias proporções.</translation>
    </message>
</context>
<context>
    <name>KxAacEncoder</name>
    <message>
        <source>the AAC encoder is missing</source>
        <translation>falta o codificador AAC</translation>
    </message>
    <message>
        <source>sound of %1 Hz and %2 channels is not supported</source>
        <translation>som de %1 Hz e %2 canais não é compatível</translation>
    </message>
    <message>
        <source>the sound encoder does not start (%1)</source>
        <translation>o codificador de som não inicia (%1)</translation>
    </message>
</context>
<context>
    <name>KxAudioReader</name>
    <message>
        <source>it has no such sound track</source>
        <translation>não tem essa trilha de som</translation>
    </message>
</context>
<context>
    <name>KxAudioTrack</name>
    <message>
        <source>its sound format (%1) is not supported</source>
        <translation>o formato de som (%1) não é compatível</translation>
    </message>
    <message>
        <source>its sound is damaged</source>
        <translation>o som está danificado</translation>
    </message>
</context>
<context>
    <name>KxAutoReframeService</name>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>Não é possível analisar %1: %2.</translation>
    </message>
    <message>
        <source>the stored choices</source>
        <translation>as escolhas salvas</translation>
    </message>
</context>
<context>
    <name>KxAvError</name>
    <message>
        <source>it was cancelled</source>
        <translation>foi cancelado</translation>
    </message>
    <message>
        <source>it ends too early</source>
        <translation>termina cedo demais</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>está danificado</translation>
    </message>
    <message>
        <source>its format is not supported</source>
        <translation>o formato não é compatível</translation>
    </message>
</context>
<context>
    <name>KxCacheFolder</name>
    <message>
        <source>Cannot make the cache folder %1: %2.</source>
        <translation>Não é possível criar a pasta de cache %1: %2.</translation>
    </message>
</context>
<context>
    <name>KxChoicesFormat</name>
    <message>
        <source>Cannot use %1: %2.</source>
        <translation>Não é possível usar %1: %2.</translation>
    </message>
    <message>
        <source>choice %1 has no valid time (&quot;%2&quot;), in seconds</source>
        <translation>a escolha %1 não tem um tempo válido (“%2”), em segundos</translation>
    </message>
    <message>
        <source>choice %1 has &quot;%2&quot; that are no list</source>
        <translation>a escolha %1 tem “%2” que não é uma lista</translation>
    </message>
    <message>
        <source>it has more than %1 seeds and boxes</source>
        <translation>tem mais de %1 pontos de partida e caixas</translation>
    </message>
    <message>
        <source>choice %1 has a box that is not left, top, width and height in fractions of the picture</source>
        <translation>a escolha %1 tem uma caixa que não é esquerda, topo, largura e altura em frações da imagem</translation>
    </message>
    <message>
        <source>choice %1 has no &quot;seeds&quot; that show what it means</source>
        <translation>a escolha %1 não tem “seeds” que mostrem o que ela significa</translation>
    </message>
    <message>
        <source>choice %1 has more than %2 &quot;pictures&quot;</source>
        <translation>a escolha %1 tem mais de %2 “pictures”</translation>
    </message>
    <message>
        <source>choice %1 has &quot;pictures&quot; that are not times with 16 hexadecimal digits</source>
        <translation>a escolha %1 tem “pictures” que não são tempos com 16 dígitos hexadecimais</translation>
    </message>
    <message>
        <source>choice %1 has no known &quot;kind&quot;; it is follow, avoid, hold, fit or automatic</source>
        <translation>a escolha %1 não tem um “kind” conhecido; pode ser follow, avoid, hold, fit ou automatic</translation>
    </message>
    <message>
        <source>choice %1 ends before it begins</source>
        <translation>a escolha %1 termina antes de começar</translation>
    </message>
    <message>
        <source>choice %1 has no &quot;centre&quot; in fractions of the picture</source>
        <translation>a escolha %1 não tem “centre” em frações da imagem</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>tem mais de %1 bytes</translation>
    </message>
    <message>
        <source>it is no list of choices (JSON, byte %1)</source>
        <translation>não é uma lista de escolhas (JSON, byte %1)</translation>
    </message>
    <message>
        <source>it is of version %1, and this program reads version %2</source>
        <translation>é da versão %1, e este programa lê a versão %2</translation>
    </message>
    <message>
        <source>it has no &quot;version&quot;</source>
        <translation>não tem “version”</translation>
    </message>
    <message>
        <source>it has no list of &quot;choices&quot;</source>
        <translation>não tem uma lista de “choices”</translation>
    </message>
    <message>
        <source>it has more than %1 choices</source>
        <translation>tem mais de %1 escolhas</translation>
    </message>
    <message>
        <source>Cannot open %1: it is not a regular file.</source>
        <translation>Não é possível abrir %1: não é um arquivo comum.</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>Não é possível abrir %1: %2.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>Não é possível ler %1: %2.</translation>
    </message>
</context>
<context>
    <name>KxDetectorFiles</name>
    <message>
        <source>it is a folder</source>
        <translation>é uma pasta</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>não é um arquivo comum</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>não pode ser lido</translation>
    </message>
    <message>
        <source>it is too large for a detector</source>
        <translation>é grande demais para um detector</translation>
    </message>
    <message>
        <source>its checksum is unknown (no SHA256SUMS beside it names the file)</source>
        <translation>a soma de verificação é desconhecida (nenhum SHA256SUMS na pasta cita o arquivo)</translation>
    </message>
    <message>
        <source>it is damaged (SHA256SUMS has another checksum)</source>
        <translation>está danificado (SHA256SUMS tem outra soma de verificação)</translation>
    </message>
    <message>
        <source>Cannot use the detector %1: %2.</source>
        <translation>Não é possível usar o detector %1: %2.</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>essa pasta não existe</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>não é uma pasta</translation>
    </message>
    <message>
        <source>it has neither %1 nor %2</source>
        <translation>não tem nem %1 nem %2</translation>
    </message>
    <message>
        <source>Cannot use the models in %1: %2.</source>
        <translation>Não é possível usar os modelos em %1: %2.</translation>
    </message>
    <message>
        <source>The detector of people and animals is not installed; the analysis works without it.</source>
        <translation>O detector de pessoas e animais não está instalado; a análise funciona sem ele.</translation>
    </message>
    <message>
        <source>it is not NanoDet-g as OpenCV can run it</source>
        <translation>não é o NanoDet-g como o OpenCV consegue executar</translation>
    </message>
    <message>
        <source>it is not a face detector that OpenCV can run</source>
        <translation>não é um detector de rostos que o OpenCV consiga executar</translation>
    </message>
</context>
<context>
    <name>KxEncoderProof</name>
    <message>
        <source>there is nothing to compare it with</source>
        <translation>não há nada com que comparar</translation>
    </message>
    <message>
        <source>of %1 pictures it wrote %2</source>
        <translation>de %1 imagens, gravou %2</translation>
    </message>
    <message>
        <source>its pictures have another size or format</source>
        <translation>as imagens têm outro tamanho ou formato</translation>
    </message>
    <message>
        <source>its picture %1 differs too much (%2 dB, %3 are needed)</source>
        <translation>a imagem %1 difere demais (%2 dB, são necessários %3)</translation>
    </message>
</context>
<context>
    <name>KxFittedCutter</name>
    <message>
        <source>Cannot cut a picture: the rectangle to cut out is empty.</source>
        <translation>Não é possível recortar uma imagem: o retângulo a recortar está vazio.</translation>
    </message>
    <message>
        <source>Cannot cut a picture: memory ran out.</source>
        <translation>Não é possível recortar uma imagem: memória insuficiente.</translation>
    </message>
</context>
<context>
    <name>KxFollowPass</name>
    <message>
        <source>Cannot follow in %1: %2.</source>
        <translation>Não é possível acompanhar em %1: %2.</translation>
    </message>
</context>
<context>
    <name>KxFrameCutter</name>
    <message>
        <source>Cannot cut a picture: the rectangle to cut out is empty.</source>
        <translation>Não é possível recortar uma imagem: o retângulo a recortar está vazio.</translation>
    </message>
    <message>
        <source>Cannot cut a picture: its pixel format &quot;%1&quot; cannot be converted.</source>
        <translation>Não é possível recortar uma imagem: o formato de pixels “%1” não pode ser convertido.</translation>
    </message>
    <message>
        <source>Cannot cut a picture: memory ran out.</source>
        <translation>Não é possível recortar uma imagem: memória insuficiente.</translation>
    </message>
    <message>
        <source>Cannot cut a picture: it cannot be scaled from %1 x %2 to %3 x %4.</source>
        <translation>Não é possível recortar uma imagem: ela não pode ser redimensionada de %1 x %2 para %3 x %4.</translation>
    </message>
</context>
<context>
    <name>KxInputFile</name>
    <message>
        <source>it is a single picture, not a video</source>
        <translation>é uma imagem única, não um vídeo</translation>
    </message>
    <message>
        <source>it is a list of other files, not a video</source>
        <translation>é uma lista de outros arquivos, não um vídeo</translation>
    </message>
    <message>
        <source>it is not a video file</source>
        <translation>não é um arquivo de vídeo</translation>
    </message>
    <message>
        <source>it has more than %1 streams</source>
        <translation>tem mais de %1 fluxos</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>Não é possível abrir %1: %2.</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>foi cancelado</translation>
    </message>
    <message>
        <source>reading it takes too long</source>
        <translation>a leitura demora demais</translation>
    </message>
    <message>
        <source>it is damaged or incomplete</source>
        <translation>está danificado ou incompleto</translation>
    </message>
    <message>
        <source>it is a link to a file that does not exist</source>
        <translation>é um link para um arquivo que não existe</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>esse arquivo não existe</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>é uma pasta</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>não é um arquivo comum</translation>
    </message>
    <message>
        <source>permission is denied</source>
        <translation>permissão negada</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vazio</translation>
    </message>
    <message>
        <source>its pictures are too large (%1 x %2)</source>
        <translation>as imagens são grandes demais (%1 x %2)</translation>
    </message>
    <message>
        <source>it has sound but no moving picture</source>
        <translation>tem som, mas não imagem em movimento</translation>
    </message>
    <message>
        <source>it has no moving picture</source>
        <translation>não tem imagem em movimento</translation>
    </message>
    <message>
        <source>its name is not valid UTF-8; rename it</source>
        <translation>o nome não é UTF-8 válido; renomeie-o</translation>
    </message>
</context>
<context>
    <name>KxJoinedPictures</name>
    <message>
        <source>%1 does not hold pictures of a part of this video</source>
        <translation>%1 não contém imagens de uma parte deste vídeo</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 está danificado</translation>
    </message>
    <message>
        <source>%1 begins with other pictures than the part before ends with; analyse the video as a whole</source>
        <translation>%1 começa com imagens diferentes das que encerram a parte anterior; analise o vídeo inteiro</translation>
    </message>
</context>
<context>
    <name>KxLanguage</name>
    <message>
        <source>Language of the texts: %1. Otherwise that of the system.</source>
        <translation>Idioma dos textos: %1. Caso contrário, o do sistema.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an available language; choose one of %2.</source>
        <translation>“%1” não é um idioma disponível; escolha um de %2.</translation>
    </message>
</context>
<context>
    <name>KxMediaLibraryUtils</name>
    <message>
        <source>Cannot open %1: it has no moving picture.</source>
        <translation>Não é possível abrir %1: não tem imagem em movimento.</translation>
    </message>
</context>
<context>
    <name>KxMediaPlayerPresenter</name>
    <message>
        <source>Cannot show the timeline: it holds no video.</source>
        <translation>Não é possível mostrar a linha do tempo: não contém vídeo.</translation>
    </message>
    <message>
        <source>Cannot show %1: %2.</source>
        <translation>Não é possível mostrar %1: %2.</translation>
    </message>
    <message>
        <source>its pictures cannot be decoded</source>
        <translation>as imagens não podem ser decodificadas</translation>
    </message>
</context>
<context>
    <name>KxMessageBox</name>
    <message>
        <source>Do not show this again</source>
        <translation>Não mostrar novamente</translation>
    </message>
</context>
<context>
    <name>KxMp4Writer</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>Não é possível gravar %1: %2.</translation>
    </message>
    <message>
        <source>pictures of %1 x %2 pixels cannot be encoded; both have to be even</source>
        <translation>imagens de %1 x %2 pixels não podem ser codificadas; os dois números devem ser pares</translation>
    </message>
    <message>
        <source>the frame rate is unknown</source>
        <translation>a taxa de quadros é desconhecida</translation>
    </message>
    <message>
        <source>there is no picture to write</source>
        <translation>não há imagem para gravar</translation>
    </message>
</context>
<context>
    <name>KxOpenFileLineEdit</name>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Escolher uma pasta</translation>
    </message>
</context>
<context>
    <name>KxOpenFileName</name>
    <message>
        <source>All files(%1)</source>
        <translation>Todos os arquivos(%1)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
</context>
<context>
    <name>KxOutputFile</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>Não é possível gravar %1: %2.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>é uma pasta</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>não é um arquivo comum</translation>
    </message>
    <message>
        <source>no free name was found in its folder</source>
        <translation>nenhum nome livre foi encontrado na pasta</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>a pasta %1 não existe</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 não é uma pasta</translation>
    </message>
</context>
<context>
    <name>KxOutputSize</name>
    <message>
        <source>the size %1 x %2 does not have the shape of the crop; %1 x %3 does</source>
        <translation>o tamanho %1 x %2 não tem a forma do corte; %1 x %3 tem</translation>
    </message>
</context>
<context>
    <name>KxPictureFeed</name>
    <message>
        <source>Cannot render %1: %2.</source>
        <translation>Não é possível renderizar %1: %2.</translation>
    </message>
    <message>
        <source>Cannot render %1 at frame %2. %3</source>
        <translation>Não é possível renderizar %1 no quadro %2. %3</translation>
    </message>
    <message>
        <source>Memory ran out.</source>
        <translation>Memória insuficiente.</translation>
    </message>
</context>
<context>
    <name>KxPictureFilter</name>
    <message>
        <source>it yields no picture</source>
        <translation>não produz imagem</translation>
    </message>
</context>
<context>
    <name>KxPicturesFile</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>Não é possível gravar %1: %2.</translation>
    </message>
    <message>
        <source>%1 is cut off or damaged: it decodes only in part.</source>
        <translation>%1 está cortado ou danificado: só é decodificado em parte.</translation>
    </message>
</context>
<context>
    <name>KxPlayerToolBarBase</name>
    <message>
        <source>Play (%1)</source>
        <translation>Reproduzir (%1)</translation>
    </message>
    <message>
        <source>Pause (%1)</source>
        <translation>Pausar (%1)</translation>
    </message>
    <message>
        <source>Stop (%1)</source>
        <translation>Parar (%1)</translation>
    </message>
    <message>
        <source>Backward (%1)</source>
        <translation>Voltar (%1)</translation>
    </message>
    <message>
        <source>Forward (%1)</source>
        <translation>Avançar (%1)</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Reproduzir ou pausar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posição</translation>
    </message>
</context>
<context>
    <name>KxProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>KxRenderSound</name>
    <message>
        <source>The sound is silent; its loudness is not changed.</source>
        <translation>O som é silencioso; a intensidade não é alterada.</translation>
    </message>
    <message>
        <source>The loudness of the sound is not changed: %1.</source>
        <translation>A intensidade do som não é alterada: %1.</translation>
    </message>
    <message>
        <source>The sound is encoded again: %1.</source>
        <translation>O som é codificado de novo: %1.</translation>
    </message>
    <message>
        <source>The sound is left out. %1</source>
        <translation>O som é omitido. %1</translation>
    </message>
</context>
<context>
    <name>KxRenderSource</name>
    <message>
        <source>Cannot render the timeline: it shows no file.</source>
        <translation>Não é possível renderizar a linha do tempo: não mostra nenhum arquivo.</translation>
    </message>
</context>
<context>
    <name>KxRenderer</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>Não é possível gravar %1: %2.</translation>
    </message>
    <message>
        <source>a resolution of %1 x %2 is not possible</source>
        <translation>uma resolução de %1 x %2 não é possível</translation>
    </message>
    <message>
        <source>it is the very file that is rendered</source>
        <translation>é o próprio arquivo que está sendo renderizado</translation>
    </message>
    <message>
        <source>Cannot render %1: it is damaged.</source>
        <translation>Não é possível renderizar %1: está danificado.</translation>
    </message>
    <message>
        <source>%1 is damaged or incomplete: only %2 of %3 frames could be rendered.</source>
        <translation>%1 está danificado ou incompleto: apenas %2 de %3 quadros puderam ser renderizados.</translation>
    </message>
    <message>
        <source>The sound of %1 is damaged and ends early.</source>
        <translation>O som de %1 está danificado e termina antes da hora.</translation>
    </message>
    <message>
        <source>%1 frames a second are not possible</source>
        <translation>%1 quadros por segundo não são possíveis</translation>
    </message>
    <message>
        <source>Cannot render %1: %2.</source>
        <translation>Não é possível renderizar %1: %2.</translation>
    </message>
    <message>
        <source>its parts have %1 of %2 frames</source>
        <translation>suas partes têm %1 de %2 quadros</translation>
    </message>
    <message>
        <source>there is no picture to write</source>
        <translation>não há imagem para gravar</translation>
    </message>
</context>
<context>
    <name>KxSoundPackets</name>
    <message>
        <source>the time stamps of the file jump</source>
        <translation>os carimbos de tempo do arquivo saltam</translation>
    </message>
    <message>
        <source>there is no such sound track</source>
        <translation>essa trilha de som não existe</translation>
    </message>
    <message>
        <source>MP4 cannot hold %1</source>
        <translation>MP4 não pode conter %1</translation>
    </message>
</context>
<context>
    <name>KxSystemError</name>
    <message>
        <source>the file would become too large for its disk</source>
        <translation>o arquivo ficaria grande demais para o disco</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>esse arquivo não existe</translation>
    </message>
    <message>
        <source>permission is denied</source>
        <translation>permissão negada</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>o disco é somente leitura</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>o disco informa um erro</translation>
    </message>
    <message>
        <source>memory ran out</source>
        <translation>memória insuficiente</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>há arquivos abertos demais</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>o nome é longo demais</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>é uma pasta</translation>
    </message>
    <message>
        <source>its reader has gone</source>
        <translation>o leitor encerrou</translation>
    </message>
    <message>
        <source>it is in use</source>
        <translation>está em uso</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>o disco está cheio</translation>
    </message>
</context>
<context>
    <name>KxSystemFile</name>
    <message>
        <source>another program has it open</source>
        <translation>outro programa está com ele aberto</translation>
    </message>
</context>
<context>
    <name>KxThread</name>
    <message>
        <source>memory ran out</source>
        <translation>memória insuficiente</translation>
    </message>
    <message>
        <source>an unknown error occurred</source>
        <translation>ocorreu um erro desconhecido</translation>
    </message>
</context>
<context>
    <name>KxThumbnailPicture</name>
    <message>
        <source>Cannot show %1: no picture could be read.</source>
        <translation>Não é possível mostrar %1: nenhuma imagem pôde ser lida.</translation>
    </message>
</context>
<context>
    <name>KxThumbnailer</name>
    <message>
        <source>Cannot show %1: %2.</source>
        <translation>Não é possível mostrar %1: %2.</translation>
    </message>
</context>
<context>
    <name>KxToneMapper</name>
    <message>
        <source>Cannot convert a picture of high dynamic range: %1.</source>
        <translation>Não é possível converter uma imagem de alta faixa dinâmica: %1.</translation>
    </message>
</context>
<context>
    <name>KxTopLevelWindowTitleBar</name>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>KxVideoAnalysis</name>
    <message>
        <source>Choice %1 is applied %2 s earlier, where its pictures are in %3.</source>
        <translation>A escolha %1 é aplicada %2 s antes, onde estão suas imagens em %3.</translation>
    </message>
    <message>
        <source>Choice %1 is applied %2 s later, where its pictures are in %3.</source>
        <translation>A escolha %1 é aplicada %2 s depois, onde estão suas imagens em %3.</translation>
    </message>
    <message>
        <source>Choice %1 is not applied: its pictures are not in %2.</source>
        <translation>A escolha %1 não é aplicada: suas imagens não estão em %2.</translation>
    </message>
    <message>
        <source>The aspect ratio %1:%2 has a side that is not positive.</source>
        <translation>A proporção %1:%2 tem um lado que não é positivo.</translation>
    </message>
    <message>
        <source>Cannot analyse %1: its time stamps span %2 frames, the limit is %3.</source>
        <translation>Não é possível analisar %1: os carimbos de tempo abrangem %2 quadros; o limite é %3.</translation>
    </message>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>Não é possível analisar %1: %2.</translation>
    </message>
    <message>
        <source>%1 is cut off or damaged: it decodes only in part.</source>
        <translation>%1 está cortado ou danificado: só é decodificado em parte.</translation>
    </message>
    <message>
        <source>What is followed is lost from %1 s to %2 s: point at it again there.</source>
        <translation>O que é acompanhado se perde de %1 s a %2 s: aponte de novo ali.</translation>
    </message>
    <message>
        <source>Choice %1 is not applied: its time is outside of %2.</source>
        <translation>A escolha %1 não é aplicada: seu tempo está fora de %2.</translation>
    </message>
</context>
<context>
    <name>KxVideoDecoder</name>
    <message>
        <source>its video format (%1) is not supported</source>
        <translation>o formato de vídeo (%1) não é compatível</translation>
    </message>
    <message>
        <source>its video stream is damaged</source>
        <translation>o fluxo de vídeo está danificado</translation>
    </message>
</context>
<context>
    <name>KxVideoEncoder</name>
    <message>
        <source>the video encoder %1 is missing</source>
        <translation>falta o codificador de vídeo %1</translation>
    </message>
    <message>
        <source>the video encoder %1 does not start (%2)</source>
        <translation>o codificador de vídeo %1 não inicia (%2)</translation>
    </message>
</context>
<context>
    <name>KxVideoPart</name>
    <message>
        <source>it has no picture</source>
        <translation>não tem nenhuma imagem</translation>
    </message>
</context>
<context>
    <name>KxVideoParts</name>
    <message>
        <source>Cannot join %1 to %2: it was encoded in another way.</source>
        <translation>Não é possível juntar %1 a %2: foi codificado de outra forma.</translation>
    </message>
    <message>
        <source>Cannot join %1: its time stamps are damaged.</source>
        <translation>Não é possível juntar %1: as marcas de tempo estão danificadas.</translation>
    </message>
    <message>
        <source>Cannot join %1: it is damaged.</source>
        <translation>Não é possível juntar %1: o arquivo está danificado.</translation>
    </message>
</context>
<context>
    <name>KxVideoSource</name>
    <message>
        <source>it was cancelled</source>
        <translation>foi cancelado</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>está danificado</translation>
    </message>
    <message>
        <source>no picture of it can be decoded, it is damaged</source>
        <translation>nenhuma imagem pode ser decodificada, está danificado</translation>
    </message>
    <message>
        <source>it is a single picture, not a video</source>
        <translation>é uma imagem única, não um vídeo</translation>
    </message>
    <message>
        <source>it cannot be read from the start again</source>
        <translation>não pode ser lido de novo desde o início</translation>
    </message>
    <message>
        <source>its time stamps are damaged</source>
        <translation>os carimbos de tempo estão danificados</translation>
    </message>
</context>
<context>
    <name>KxWindowsNames</name>
    <message>
        <source>its name contains a control character</source>
        <translation>o nome contém um caractere de controle</translation>
    </message>
    <message>
        <source>a name cannot contain the character %1</source>
        <translation>um nome não pode conter o caractere %1</translation>
    </message>
    <message>
        <source>%1 is the name of a device</source>
        <translation>%1 é o nome de um dispositivo</translation>
    </message>
    <message>
        <source>a name cannot end with a dot or a space</source>
        <translation>um nome não pode terminar com ponto ou espaço</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>o nome é longo demais</translation>
    </message>
</context>
<context>
    <name>LibraryConnection</name>
    <message>
        <source>another program is using it</source>
        <translation>outro programa está usando a biblioteca</translation>
    </message>
    <message>
        <source>it is write-protected</source>
        <translation>está protegida contra gravação</translation>
    </message>
    <message>
        <source>the disk cannot be read or written</source>
        <translation>o disco não pode ser lido ou gravado</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>está danificado</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>o disco está cheio</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>não pode ser aberta</translation>
    </message>
</context>
<context>
    <name>LibraryOpening</name>
    <message>
        <source>Cannot open the library %1: %2. What you do now is not saved.</source>
        <translation>Não é possível abrir a biblioteca %1: %2. O que você fizer agora não será salvo.</translation>
    </message>
    <message>
        <source>its backup %1 cannot be written</source>
        <translation>o backup %1 não pode ser gravado</translation>
    </message>
    <message>
        <source>it was written by a newer version of this program</source>
        <translation>foi gravada por uma versão mais nova deste programa</translation>
    </message>
    <message>
        <source>its folder cannot be made</source>
        <translation>a pasta não pode ser criada</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>não é um arquivo comum</translation>
    </message>
    <message>
        <source>another program is opening it</source>
        <translation>outro programa está abrindo-a</translation>
    </message>
    <message>
        <source>its folder cannot be written to</source>
        <translation>não é possível gravar na pasta</translation>
    </message>
    <message>
        <source>it is damaged, and it cannot be renamed</source>
        <translation>está danificada e não pode ser renomeada</translation>
    </message>
    <message>
        <source>The library was damaged. It was renamed to %1, and a new one was begun.</source>
        <translation>A biblioteca estava danificada. Ela foi renomeada para %1, e uma nova foi criada.</translation>
    </message>
</context>
<context>
    <name>LibraryStore</name>
    <message>
        <source>Cannot read the library %1: %2. What you do now is not saved.</source>
        <translation>Não é possível ler a biblioteca %1: %2. O que você fizer agora não será salvo.</translation>
    </message>
    <message>
        <source>Cannot save the library %1: %2.</source>
        <translation>Não é possível salvar a biblioteca %1: %2.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%n files that are no videos were skipped</source>
        <translation>
            <numerusform>%n arquivo que não é vídeo foi ignorado</numerusform>
            <numerusform>%n arquivos que não são vídeos foram ignorados</numerusform>
        </translation>
    </message>
    <message>
        <source>Auto Reframe</source>
        <translation>Auto Reframe</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Reframe All…</source>
        <translation>Reenquadrar tudo…</translation>
    </message>
    <message>
        <source>Auto Reframe…</source>
        <translation>Auto Reframe…</translation>
    </message>
    <message>
        <source>Add videos to the library</source>
        <translation>Adicionar vídeos à biblioteca</translation>
    </message>
    <message>
        <source>Reframe all selected videos without looking at each</source>
        <translation>Reenquadrar todos os vídeos selecionados sem verificar cada um</translation>
    </message>
    <message>
        <source>Reframe the selected videos one after the other</source>
        <translation>Reenquadrar os vídeos selecionados um após o outro</translation>
    </message>
    <message>
        <source>No videos yet</source>
        <translation>Ainda não há vídeos</translation>
    </message>
    <message numerus="yes">
        <source>%n videos</source>
        <translation>
            <numerusform>%n vídeo</numerusform>
            <numerusform>%n vídeos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n selecionado</numerusform>
            <numerusform>%n selecionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n exports are not finished. They are cancelled when you quit.</source>
        <translation>
            <numerusform>%n exportação não foi concluída. Ela será cancelada ao sair.</numerusform>
            <numerusform>%n exportações não foram concluídas. Elas serão canceladas ao sair.</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <translation>Continuar exportando</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>All supported files</source>
        <translation>Todos os arquivos compatíveis</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Import Folder</source>
        <translation>Importar pasta</translation>
    </message>
    <message>
        <source>Import Folder…</source>
        <translation>Importar pasta…</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Abrir recente</translation>
    </message>
    <message>
        <source>Save Crop Track…</source>
        <translation>Salvar trilha de corte…</translation>
    </message>
    <message>
        <source>Open Crop Track…</source>
        <translation>Abrir trilha de corte…</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>About Auto Reframe</source>
        <translation>Sobre o Auto Reframe</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>… e mais %n.</numerusform>
            <numerusform>… e mais %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Find %1</source>
        <translation>Localizar %1</translation>
    </message>
    <message>
        <source>The content of this file differs from that of %1.</source>
        <translation>O conteúdo deste arquivo é diferente do de %1.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Use This File</source>
        <translation>Usar este arquivo</translation>
    </message>
    <message>
        <source>Your edits are kept, but may not fit this file.</source>
        <translation>Suas edições são mantidas, mas podem não se ajustar a este arquivo.</translation>
    </message>
    <message>
        <source>This computer may be too slow for the analysis. To try anyway, start it again.</source>
        <translation>Este computador pode ser lento demais para a análise. Para tentar mesmo assim, inicie-a de novo.</translation>
    </message>
    <message>
        <source>Continue with %1?</source>
        <translation>Continuar com %1?</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message numerus="yes">
        <source>%n selected videos are left.</source>
        <translation>
            <numerusform>Resta %n vídeo selecionado.</numerusform>
            <numerusform>Restam %n vídeos selecionados.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is no longer in the library. Import it to look at its shots.</source>
        <translation>%1 não está mais na biblioteca. Importe-o para verificar os planos.</translation>
    </message>
    <message>
        <source>Language of the System</source>
        <translation>Idioma do sistema</translation>
    </message>
    <message>
        <source>The crop track was saved.</source>
        <translation>A trilha de corte foi salva.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <source>Open Crop Track</source>
        <translation>Abrir trilha de corte</translation>
    </message>
    <message>
        <source>Crop tracks</source>
        <translation>Trilhas de corte</translation>
    </message>
    <message>
        <source>The file for %1 was saved.</source>
        <translation>O arquivo para %1 foi salvo.</translation>
    </message>
</context>
<context>
    <name>MediaBackendLoader</name>
    <message>
        <source>Cannot load the video engine: %1.</source>
        <translation>Não é possível carregar o mecanismo de vídeo: %1.</translation>
    </message>
</context>
<context>
    <name>MediaLibrary</name>
    <message>
        <source>There are no videos in %1.</source>
        <translation>Não há vídeos em %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n videos in %1 were left out: their names are not valid UTF-8. Rename them.</source>
        <translation>
            <numerusform>%n vídeo de %1 foi deixado de fora: o nome não é UTF-8 válido. Renomeie-o.</numerusform>
            <numerusform>%n vídeos de %1 foram deixados de fora: os nomes não são UTF-8 válido. Renomeie-os.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaLibraryModel</name>
    <message>
        <source>Drop videos here</source>
        <translation>Solte vídeos aqui</translation>
    </message>
    <message>
        <source>%1 was not found. Right-click to find it.</source>
        <translation>%1 não foi encontrado. Clique com o botão direito para localizá-lo.</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Abrindo…</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Arquivo não encontrado</translation>
    </message>
</context>
<context>
    <name>MediaLibraryView</name>
    <message>
        <source>Videos</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Find File…</source>
        <translation>Localizar arquivo…</translation>
    </message>
    <message>
        <source>Auto Reframe…</source>
        <translation>Auto Reframe…</translation>
    </message>
    <message>
        <source>Reframe All…</source>
        <translation>Reenquadrar tudo…</translation>
    </message>
    <message>
        <source>Save Crop Track…</source>
        <translation>Salvar trilha de corte…</translation>
    </message>
    <message>
        <source>Open Crop Track…</source>
        <translation>Abrir trilha de corte…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <source>Remove from Library</source>
        <translation>Remover da biblioteca</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Drop videos here</source>
        <translation>Solte vídeos aqui</translation>
    </message>
    <message>
        <source>or click to choose files</source>
        <translation>ou clique para escolher arquivos</translation>
    </message>
</context>
<context>
    <name>MediaLoader</name>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>Não é possível abrir %1: %2.</translation>
    </message>
</context>
<context>
    <name>MediaText</name>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;MB</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;KB</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>faltam %1 s</translation>
    </message>
    <message>
        <source>%1 min %2 s left</source>
        <translation>faltam %1 min %2 s</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>faltam %1 h %2 min</translation>
    </message>
    <message numerus="yes">
        <source>%n of your edits are not in this cut of the video</source>
        <translation>
            <numerusform>%n edição não está nesta montagem do vídeo</numerusform>
            <numerusform>%n edições não estão nesta montagem do vídeo</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OutputNames</name>
    <message>
        <source>There is no %1. Use %2.</source>
        <translation>Não existe %1. Use %2.</translation>
    </message>
    <message>
        <source>Enter a file name.</source>
        <translation>Digite um nome de arquivo.</translation>
    </message>
</context>
<context>
    <name>OutputOptions</name>
    <message>
        <source>--size takes even numbers up to 16384 such as 1080x1920, or a height such as 1920p; &quot;%1&quot; is neither.</source>
        <translation>--size aceita números pares até 16384, como 1080x1920, ou uma altura como 1920p; “%1” não é nenhum dos dois.</translation>
    </message>
    <message>
        <source>--fps takes a number from 1 to 240; &quot;%1&quot; is none.</source>
        <translation>--fps aceita um número de 1 a 240; “%1” não é.</translation>
    </message>
    <message>
        <source>--quality takes a number from 0 to 100; &quot;%1&quot; is none.</source>
        <translation>--quality aceita um número de 0 a 100; “%1” não é.</translation>
    </message>
    <message>
        <source>--bitrate takes bits a second from 10k to 300M; &quot;%1&quot; are none.</source>
        <translation>--bitrate aceita bits por segundo de 10k a 300M; “%1” não são.</translation>
    </message>
    <message>
        <source>--codec takes h264, hevc or av1; &quot;%1&quot; is none of them.</source>
        <translation>--codec aceita h264, hevc ou av1; “%1” não é nenhum deles.</translation>
    </message>
    <message>
        <source>--encoder takes auto, software, vaapi, nvenc or qsv; &quot;%1&quot; is none of them.</source>
        <translation>--encoder aceita auto, software, vaapi, nvenc ou qsv; “%1” não é nenhum deles.</translation>
    </message>
    <message>
        <source>--hdr takes keep or tonemap; &quot;%1&quot; is neither.</source>
        <translation>--hdr aceita keep ou tonemap; “%1” não é nenhum dos dois.</translation>
    </message>
    <message>
        <source>--sound takes copy or encode; &quot;%1&quot; is neither.</source>
        <translation>--sound aceita copy ou encode; “%1” não é nenhum dos dois.</translation>
    </message>
    <message>
        <source>--loudness takes LUFS from -70 to -5; &quot;%1&quot; are none.</source>
        <translation>--loudness aceita LUFS de -70 a -5; “%1” não são.</translation>
    </message>
    <message>
        <source>--quality and --bitrate exclude each other.</source>
        <translation>--quality e --bitrate excluem um ao outro.</translation>
    </message>
    <message>
        <source>--loudness changes the sound, which --sound copy does not.</source>
        <translation>--loudness altera o som, e --sound copy não.</translation>
    </message>
    <message>
        <source>--hdr keep needs --codec hevc.</source>
        <translation>--hdr keep requer --codec hevc.</translation>
    </message>
    <message>
        <source>--hdr keep needs --encoder software or auto.</source>
        <translation>--hdr keep requer --encoder software ou auto.</translation>
    </message>
    <message>
        <source>Size of the result, or its height, such as 1080x1920 or 1920p; as large as the crop when not given.</source>
        <translation>Tamanho do resultado, ou sua altura, como 1080x1920 ou 1920p; tão grande quanto o corte se não for indicado.</translation>
    </message>
    <message>
        <source>Frames a second of the result; those of the source when not given.</source>
        <translation>Quadros por segundo do resultado; os do original se não for indicado.</translation>
    </message>
    <message>
        <source>Constant quality from 0 to 100, about alike in each codec, instead of a bit rate.</source>
        <translation>Qualidade constante de 0 a 100, parecida em todos os codecs, em vez de uma taxa de bits.</translation>
    </message>
    <message>
        <source>Bits a second of the picture, such as 800k or 6M; those of the source when not given.</source>
        <translation>Bits por segundo da imagem, como 800k ou 6M; os do original se não for indicado.</translation>
    </message>
    <message>
        <source>Codec of the picture: h264, hevc or av1 (h264).</source>
        <translation>Codec da imagem: h264, hevc ou av1 (h264).</translation>
    </message>
    <message>
        <source>What encodes the picture: software, vaapi, nvenc, qsv, or auto: hardware if ten frames of the video show that it works (software).</source>
        <translation>O que codifica a imagem: software, vaapi, nvenc, qsv, ou auto: hardware se dez quadros do vídeo mostrarem que funciona (software).</translation>
    </message>
    <message>
        <source>What becomes of a picture in high dynamic range: tonemap to the usual range, or keep, as 10-bit HEVC (tonemap).</source>
        <translation>O que fazer com uma imagem de alta faixa dinâmica: tonemap para a faixa usual, ou keep, como HEVC de 10 bits (tonemap).</translation>
    </message>
    <message>
        <source>Bring the sound to this loudness in LUFS (EBU R128), such as -14.</source>
        <translation>Levar o som a esta intensidade em LUFS (EBU R128), como -14.</translation>
    </message>
    <message>
        <source>What becomes of the sound: encode as AAC, or copy bit for bit where MP4 can hold it. When not given, AAC in mono or stereo that nothing changes is copied, and any other sound is encoded.</source>
        <translation>O que é feito do som: encode codifica em AAC, copy copia bit a bit onde o MP4 puder contê-lo. Se não for indicado, AAC mono ou estéreo que nada altera é copiado e qualquer outro som é codificado.</translation>
    </message>
</context>
<context>
    <name>PreviewOverlay</name>
    <message>
        <source>Frame %1</source>
        <translation>Quadro %1</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>Plano %1 de %2</translation>
    </message>
    <message>
        <source>confidence %1</source>
        <translation>confiança %1</translation>
    </message>
</context>
<context>
    <name>QueueBar</name>
    <message>
        <source>%1 of %2 done</source>
        <translation>%1 de %2 concluídos</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n com falha</numerusform>
            <numerusform>%n com falha</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n done</source>
        <translation>
            <numerusform>%n concluído</numerusform>
            <numerusform>%n concluídos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cancelled</source>
        <translation>
            <numerusform>%n cancelado</numerusform>
            <numerusform>%n cancelados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n to look at</source>
        <translation>
            <numerusform>%n para verificar</numerusform>
            <numerusform>%n para verificar</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausado</translation>
    </message>
    <message>
        <source>Progress of all exports</source>
        <translation>Progresso de todas as exportações</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Go on with the exports</source>
        <translation>Continuar as exportações</translation>
    </message>
    <message>
        <source>Interrupt the exports for a while</source>
        <translation>Interromper as exportações por um tempo</translation>
    </message>
    <message>
        <source>Cancel all</source>
        <translation>Cancelar tudo</translation>
    </message>
    <message>
        <source>Cancel all exports of Reframe All that are not done</source>
        <translation>Cancelar todas as exportações de Reenquadrar tudo que não foram concluídas</translation>
    </message>
    <message>
        <source>Retry failed</source>
        <translation>Repetir falhas</translation>
    </message>
    <message>
        <source>Export those that failed again</source>
        <translation>Exportar de novo as que falharam</translation>
    </message>
    <message>
        <source>Look at them</source>
        <translation>Verificar</translation>
    </message>
    <message>
        <source>Open the first video that has doubtful shots</source>
        <translation>Abrir o primeiro vídeo que tem planos duvidosos</translation>
    </message>
    <message numerus="yes">
        <source>%n without all edits</source>
        <translation>
            <numerusform>%n sem todas as edições</numerusform>
            <numerusform>%n sem todas as edições</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReframeJob</name>
    <message>
        <source>%1: %2 analysed</source>
        <translation>%1: %2 analisados</translation>
    </message>
    <message>
        <source>%1: %2 -&gt; %3</source>
        <translation>%1: %2 -&gt; %3</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 quadro</translation>
    </message>
    <message numerus="yes">
        <source>%n frames</source>
        <translation>
            <numerusform>%n quadro</numerusform>
            <numerusform>%n quadros</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has no moving picture.</source>
        <translation>Não é possível reenquadrar %1: não tem imagem em movimento.</translation>
    </message>
    <message>
        <source>Cannot follow %1 in %2: %3.</source>
        <translation>Não é possível acompanhar %1 em %2: %3.</translation>
    </message>
    <message>
        <source>Cannot write %1: it is one of the inputs.</source>
        <translation>Não é possível gravar %1: é uma das entradas.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it is too short (%2; 32 are needed).</source>
        <translation>Não é possível reenquadrar %1: é curto demais (%2; são necessários 32).</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has the aspect ratio %2:%3 already.</source>
        <translation>Não é possível reenquadrar %1: já tem a proporção %2:%3.</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds %2 of the %3 of %4.</source>
        <translation>Não é possível usar %1: contém %2 e eram esperados %3 (%4).</translation>
    </message>
    <message>
        <source>Cannot reframe %1: the analysis found nothing.</source>
        <translation>Não é possível reenquadrar %1: a análise não encontrou nada.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: there is no video in this folder.</source>
        <translation>Não é possível reenquadrar %1: não há vídeos nesta pasta.</translation>
    </message>
    <message>
        <source>Cannot draw the contact sheet of %1.</source>
        <translation>Não é possível desenhar a folha de contatos de %1.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>Não é possível reenquadrar %1: %2.</translation>
    </message>
    <message>
        <source>%1: %2 -&gt; %3 (encoded by %4)</source>
        <translation>%1: %2 -&gt; %3 (codificado por %4)</translation>
    </message>
    <message>
        <source>frames %1 to %2</source>
        <translation>quadros %1 a %2</translation>
    </message>
    <message>
        <source>%1: skipped, up to date: %2</source>
        <translation>%1: ignorado, já está atualizado: %2</translation>
    </message>
    <message>
        <source>The picture of %1 is enlarged: its size, %2 x %3, is above that of the crop, %4 x %5.</source>
        <translation>A imagem de %1 é ampliada: seu tamanho, %2 x %3, está acima do tamanho do corte, %4 x %5.</translation>
    </message>
</context>
<context>
    <name>ReframeJobParts</name>
    <message>
        <source>Cannot take that part of %1: %2.</source>
        <translation>Não é possível usar essa parte de %1: %2.</translation>
    </message>
    <message>
        <source>Cannot join %1: pictures are for an analysis, and with --apply there is none.</source>
        <translation>Não é possível juntar %1: as imagens são para uma análise e, com --apply, não há análise.</translation>
    </message>
    <message>
        <source>Cannot join %1: parts of the video need the crop track that they were made with (--apply).</source>
        <translation>Não é possível juntar %1: as partes do vídeo precisam da trilha de corte com que foram feitas (--apply).</translation>
    </message>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>Não é possível analisar %1: %2.</translation>
    </message>
</context>
<context>
    <name>ReframeOptions</name>
    <message>
        <source>Aspect ratio of the result (9:16); several with commas between them: the video is looked at once.</source>
        <translation>Proporção do resultado (9:16); várias separadas por vírgulas: o vídeo é examinado uma só vez.</translation>
    </message>
    <message>
        <source>How readily the crop follows: auto, fast or slow (auto).</source>
        <translation>Com que rapidez o corte acompanha: auto, fast ou slow (auto).</translation>
    </message>
    <message>
        <source>Where several people talk, follow who speaks: auto or off (auto).</source>
        <translation>Quando várias pessoas falam, acompanhar quem fala: auto ou off (auto).</translation>
    </message>
    <message>
        <source>Where to write the video; beside the input when not given.</source>
        <translation>Onde gravar o vídeo; ao lado da entrada se não for indicado.</translation>
    </message>
    <message>
        <source>Write the crop of every frame, as .json or .csv.</source>
        <translation>Gravar o corte de cada quadro, como .json ou .csv.</translation>
    </message>
    <message>
        <source>Write the crop as a project or as keyframes for another program: .mlt, .kdenlive, .fcpxml, .txt (After Effects) or .ffscript (ffmpeg). A suffix alone, such as mlt, names the file after the video. May be given several times.</source>
        <translation>Gravar o corte como projeto ou como quadros-chave para outro programa: .mlt, .kdenlive, .fcpxml, .txt (After Effects) ou .ffscript (ffmpeg). Um sufixo sozinho, como mlt, dá ao arquivo o nome do vídeo. Pode ser indicado várias vezes.</translation>
    </message>
    <message>
        <source>Take the crops from FILE instead of analysing.</source>
        <translation>Usar os cortes de FILE em vez de analisar.</translation>
    </message>
    <message>
        <source>Decide as FILE says (.json): what to follow, to avoid, where to hold the crop or to show the whole picture.</source>
        <translation>Decidir como FILE (.json) indica: o que acompanhar, o que evitar, onde fixar o corte ou mostrar a imagem inteira.</translation>
    </message>
    <message>
        <source>Write what --choices and --follow decided to FILE (.json), with what its pictures look like, for this or another cut of the video.</source>
        <translation>Gravar em FILE (.json) o que --choices e --follow decidiram, com a aparência das imagens, para esta ou outra montagem do vídeo.</translation>
    </message>
    <message>
        <source>Follow what is at the point X,Y, or in the box from X,Y of the size W,H, through its shot. TIME in seconds, or a frame (75f); the place in pixels, or in fractions of the picture. May be given several times.</source>
        <translation>Acompanhar o que está no ponto X,Y, ou na caixa a partir de X,Y com tamanho W,H, durante todo o plano. TIME em segundos, ou um quadro (75f); o lugar em pixels ou em frações da imagem. Pode ser indicado várias vezes.</translation>
    </message>
    <message>
        <source>Write the source with the crop drawn: a contact sheet as .png, or all of it, with sound and with what the analysis found, as .mp4.</source>
        <translation>Gravar o original com o corte desenhado: uma folha de contatos como .png, ou tudo, com som e com o que a análise encontrou, como .mp4.</translation>
    </message>
    <message>
        <source>Write a page (.html) that shows what the analysis found.</source>
        <translation>Gravar uma página (.html) que mostra o que a análise encontrou.</translation>
    </message>
    <message>
        <source>Keep what an analysis saw in FOLDER, or nowhere, instead of the usual folder.</source>
        <translation>Guardar o que uma análise viu em FOLDER, ou em nenhum lugar, em vez da pasta habitual.</translation>
    </message>
    <message>
        <source>Use the optional detectors in FOLDER, or none, instead of those that are installed.</source>
        <translation>Usar os detectores opcionais em FOLDER, ou nenhum, em vez dos instalados.</translation>
    </message>
    <message>
        <source>Analyse only; write no video.</source>
        <translation>Apenas analisar; não gravar vídeo.</translation>
    </message>
    <message>
        <source>Replace existing files instead of adding a number to the name.</source>
        <translation>Substituir arquivos existentes em vez de acrescentar um número ao nome.</translation>
    </message>
    <message>
        <source>Print progress and results as JSON lines.</source>
        <translation>Mostrar o progresso e os resultados como linhas JSON.</translation>
    </message>
    <message>
        <source>Print errors only.</source>
        <translation>Mostrar apenas os erros.</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Mostrar este texto.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar a versão.</translation>
    </message>
    <message>
        <source>%1
Try reframe --help.</source>
        <translation>%1
Consulte reframe --help.</translation>
    </message>
    <message>
        <source>%1 or .%2</source>
        <translation>%1 ou .%2</translation>
    </message>
    <message>
        <source>No input file was given.</source>
        <translation>Nenhum arquivo de entrada foi indicado.</translation>
    </message>
    <message>
        <source>--output and --no-video exclude each other.</source>
        <translation>--output e --no-video excluem um ao outro.</translation>
    </message>
    <message>
        <source>--report shows what an analysis found, and with --apply there is none.</source>
        <translation>--report mostra o que uma análise encontrou, e com --apply não há nenhuma.</translation>
    </message>
    <message>
        <source>--apply takes one input.</source>
        <translation>--apply aceita uma única entrada.</translation>
    </message>
    <message>
        <source>--apply takes one aspect ratio.</source>
        <translation>--apply aceita uma única proporção.</translation>
    </message>
    <message>
        <source>--save-choices takes one aspect ratio.</source>
        <translation>--save-choices aceita uma única proporção.</translation>
    </message>
    <message>
        <source>--choices and --follow take one input.</source>
        <translation>--choices e --follow aceitam uma única entrada.</translation>
    </message>
    <message>
        <source>--choices and --follow guide the analysis, and with --apply there is none.</source>
        <translation>--choices e --follow orientam a análise, e com --apply não há nenhuma.</translation>
    </message>
    <message>
        <source>--save-choices writes what --choices and --follow decided, and neither was given.</source>
        <translation>--save-choices grava o que --choices e --follow decidiram, e nenhum foi indicado.</translation>
    </message>
    <message>
        <source>--edit-list takes the name of a .%1 file or such a suffix alone; %2 is neither.</source>
        <translation>--edit-list aceita o nome de um arquivo .%1 ou apenas um desses sufixos; %2 não é nenhum dos dois.</translation>
    </message>
    <message>
        <source>With several inputs or aspect ratios --edit-list takes a suffix alone; write %1 instead of %2.</source>
        <translation>Com várias entradas ou proporções, --edit-list aceita apenas um sufixo; escreva %1 em vez de %2.</translation>
    </message>
    <message>
        <source>With several inputs or aspect ratios %1 must name an existing folder; %2 is none.</source>
        <translation>Com várias entradas ou proporções, %1 deve indicar uma pasta existente; %2 não é.</translation>
    </message>
    <message>
        <source>%1 takes an existing folder or the name of a .%2 file; %3 is neither.</source>
        <translation>%1 aceita uma pasta existente ou o nome de um arquivo .%2; %3 não é nenhum dos dois.</translation>
    </message>
    <message>
        <source>%1 begins like an option; as a file it is written ./%1.</source>
        <translation>%1 começa como uma opção; como arquivo, escreve-se ./%1.</translation>
    </message>
    <message>
        <source>Turns a video into another aspect ratio and keeps its subject in the picture.</source>
        <translation>Converte um vídeo para outra proporção e mantém o assunto na imagem.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no aspect ratio; write two whole numbers such as 9:16, neither more than 20 times the other.</source>
        <translation>“%1” não é uma proporção; escreva dois números inteiros como 9:16, nenhum deles maior que 20 vezes o outro.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no speed; it is auto, fast or slow.</source>
        <translation>“%1” não é uma velocidade; pode ser auto, fast ou slow.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nothing to follow; write a time and a place such as 3.5@640,360, or a time and a box such as 3.5@0.4,0.2,0.1,0.5.</source>
        <translation>“%1” não é algo a acompanhar; escreva um tempo e um lugar como 3.5@640,360, ou um tempo e uma caixa como 3.5@0.4,0.2,0.1,0.5.</translation>
    </message>
    <message>
        <source>--speaker takes auto or off; &quot;%1&quot; is neither.</source>
        <translation>--speaker aceita auto ou off; “%1” não é nenhum dos dois.</translation>
    </message>
    <message>
        <source>--status must not name an input.</source>
        <translation>--status não pode indicar uma entrada.</translation>
    </message>
    <message>
        <source>The video files to reframe; a folder is all videos in it.</source>
        <translation>Os arquivos de vídeo a reenquadrar; uma pasta são todos os vídeos nela.</translation>
    </message>
    <message>
        <source>--frames takes one input.</source>
        <translation>--frames aceita uma entrada.</translation>
    </message>
    <message>
        <source>--frames takes one aspect ratio.</source>
        <translation>--frames aceita uma proporção.</translation>
    </message>
    <message>
        <source>--frames with --apply renders a part of the video, and --no-video excludes that.</source>
        <translation>--frames com --apply renderiza uma parte do vídeo, e --no-video exclui isso.</translation>
    </message>
    <message>
        <source>--frames does a part of the work; files about the whole video, and choices, are for --join.</source>
        <translation>--frames faz uma parte do trabalho; arquivos sobre o vídeo inteiro e escolhas são para --join.</translation>
    </message>
    <message>
        <source>--join takes a video and then its parts.</source>
        <translation>--join aceita um vídeo e depois as suas partes.</translation>
    </message>
    <message>
        <source>--frames takes frames such as 0-2999, or a part such as 3/8; &quot;%1&quot; is neither.</source>
        <translation>--frames aceita quadros como 0-2999 ou uma parte como 3/8; &quot;%1&quot; não é nenhum dos dois.</translation>
    </message>
    <message>
        <source>The name of an input file is empty.</source>
        <translation>O nome de um arquivo de entrada está vazio.</translation>
    </message>
    <message>
        <source>--%1 needs a value, and an empty one was given.</source>
        <translation>--%1 precisa de um valor, e foi indicado um vazio.</translation>
    </message>
</context>
<context>
    <name>ReframeParts</name>
    <message>
        <source>Cannot join %1: it is a part of another video than %2.</source>
        <translation>Não é possível juntar %1: é uma parte de um vídeo diferente de %2.</translation>
    </message>
    <message>
        <source>Cannot join %1: it was made with other settings or by another version (&quot;%2&quot;; now &quot;%3&quot;).</source>
        <translation>Não é possível juntar %1: foi feito com outras configurações ou por outra versão (&quot;%2&quot;; agora &quot;%3&quot;).</translation>
    </message>
    <message>
        <source>Cannot join the parts of %1: the frames %2 to %3 are missing.</source>
        <translation>Não é possível juntar as partes de %1: faltam os quadros %2 a %3.</translation>
    </message>
    <message>
        <source>Cannot join %1 and %2: both have the frames %3 to %4.</source>
        <translation>Não é possível juntar %1 e %2: ambos têm os quadros %3 a %4.</translation>
    </message>
    <message>
        <source>Cannot join %1: it is no part that --frames wrote.</source>
        <translation>Não é possível juntar %1: não é uma parte gravada por --frames.</translation>
    </message>
    <message>
        <source>Cannot join %1 and %2: only one of them holds pictures of the analysis.</source>
        <translation>Não é possível juntar %1 e %2: só um deles contém imagens da análise.</translation>
    </message>
</context>
<context>
    <name>ReframeProgram</name>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>Não é possível reenquadrar %1: %2.</translation>
    </message>
</context>
<context>
    <name>ReframeReporter</name>
    <message>
        <source>%1: analyzing %2 %%3</source>
        <translation>%1: analisando %2%%3</translation>
    </message>
    <message>
        <source>%1: drawing the preview %2 %%3</source>
        <translation>%1: desenhando a prévia %2%%3</translation>
    </message>
    <message>
        <source>%1: rendering %2 %%3</source>
        <translation>%1: renderizando %2%%3</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Aviso: %1</translation>
    </message>
    <message>
        <source>Cannot write to standard output: %1.</source>
        <translation>Não é possível gravar na saída padrão: %1.</translation>
    </message>
    <message>
        <source>an error occurred</source>
        <translation>ocorreu um erro</translation>
    </message>
    <message>
        <source>%1: interrupted.</source>
        <translation>%1: interrompido.</translation>
    </message>
    <message>
        <source>%1: interrupted after %2 was written.</source>
        <translation>%1: interrompido depois que %2 foi gravado.</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Cannot write to the folder %1.</source>
        <translation>Não é possível gravar na pasta %1.</translation>
    </message>
    <message>
        <source>Save To</source>
        <translation>Salvar em</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>StatusFile</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>Não é possível gravar %1: %2.</translation>
    </message>
</context>
<context>
    <name>TimeLeft</name>
    <message>
        <source>, %1 s left</source>
        <translation>, faltam %1 s</translation>
    </message>
    <message>
        <source>, %1 min %2 s left</source>
        <translation>, faltam %1 min %2 s</translation>
    </message>
</context>
</TS>
