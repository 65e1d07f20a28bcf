<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Auto Reframe</source>
        <translation>Acerca de Auto Reframe</translation>
    </message>
    <message>
        <source>Auto Reframe %1</source>
        <translation>Auto Reframe %1</translation>
    </message>
    <message>
        <source>Keeps the subject of a video in the picture. Everything runs on this computer.</source>
        <translation>Mantiene el sujeto de un vídeo dentro de la imagen. Todo se ejecuta en este equipo.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licencias</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>AnalysisPlot</name>
    <message>
        <source>left</source>
        <translation>izquierda</translation>
    </message>
    <message>
        <source>top</source>
        <translation>arriba</translation>
    </message>
    <message>
        <source>right</source>
        <translation>derecha</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>abajo</translation>
    </message>
    <message>
        <source>The crop&apos;s path over the evidence</source>
        <translation>Recorrido del encuadre sobre los indicios</translation>
    </message>
    <message>
        <source>Evidence by signal</source>
        <translation>Indicios por señal</translation>
    </message>
    <message>
        <source>strong</source>
        <translation>fuerte</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
</context>
<context>
    <name>AnalysisReport</name>
    <message>
        <source>1 frame</source>
        <translation>1 fotograma</translation>
    </message>
    <message numerus="yes">
        <source>%n frames</source>
        <translation>
            <numerusform>%n fotograma</numerusform>
            <numerusform>%n fotogramas</numerusform>
        </translation>
    </message>
    <message>
        <source>The crop</source>
        <translation>El encuadre</translation>
    </message>
    <message>
        <source>Frames of the video with the crop drawn</source>
        <translation>Fotogramas del vídeo con el encuadre dibujado</translation>
    </message>
    <message>
        <source>Path of the crop</source>
        <translation>Recorrido del encuadre</translation>
    </message>
    <message>
        <source>Time runs from left to right. The left of the picture is at the bottom, its right at the top. A brighter spot has more evidence.</source>
        <translation>El tiempo va de izquierda a derecha. La izquierda de la imagen está abajo y su derecha, arriba. Un punto más claro tiene más indicios.</translation>
    </message>
    <message>
        <source>Time runs from left to right. The bottom of the picture is at the bottom, its top at the top. A brighter spot has more evidence.</source>
        <translation>El tiempo va de izquierda a derecha. La parte inferior de la imagen está abajo y la superior, arriba. Un punto más claro tiene más indicios.</translation>
    </message>
    <message>
        <source>centre of the crop</source>
        <translation>centro del encuadre</translation>
    </message>
    <message>
        <source>edges of the crop</source>
        <translation>bordes del encuadre</translation>
    </message>
    <message>
        <source>centre with the most evidence</source>
        <translation>centro con más indicios</translation>
    </message>
    <message>
        <source>start of a shot, numbered above</source>
        <translation>inicio de un plano, numerado arriba</translation>
    </message>
    <message>
        <source>Evidence by signal</source>
        <translation>Indicios por señal</translation>
    </message>
    <message>
        <source>How much stronger each signal is at the centre with the most evidence than at an average place.</source>
        <translation>Cuánto más fuerte es cada señal en el centro con más indicios que en un lugar medio.</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Planos</translation>
    </message>
    <message>
        <source>Travel is the sum of all movements of the crop in the shot, in percent of the width of the picture. Confidence falls if the evidence outside of the crop is as strong as inside, or if single signals want the crop elsewhere; where it is low, look at the shot.</source>
        <translation>El recorrido es la suma de todos los movimientos del encuadre en el plano, en porcentaje del ancho de la imagen. La confianza baja cuando hay indicios fuera del encuadre tan fuertes como dentro o señales que lo quieren en otro lugar; donde sea baja, revisar el plano.</translation>
    </message>
    <message>
        <source>Travel is the sum of all movements of the crop in the shot, in percent of the height of the picture. Confidence falls if the evidence outside of the crop is as strong as inside, or if single signals want the crop elsewhere; where it is low, look at the shot.</source>
        <translation>El recorrido es la suma de todos los movimientos del encuadre en el plano, en porcentaje del alto de la imagen. La confianza baja cuando hay indicios fuera del encuadre tan fuertes como dentro o señales que lo quieren en otro lugar; donde sea baja, revisar el plano.</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Plano</translation>
    </message>
    <message>
        <source>First frame</source>
        <translation>Primer fotograma</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Segundos</translation>
    </message>
    <message>
        <source>Dominant signal</source>
        <translation>Señal dominante</translation>
    </message>
    <message>
        <source>Travel of the crop</source>
        <translation>Recorrido del encuadre</translation>
    </message>
    <message>
        <source>Confidence</source>
        <translation>Confianza</translation>
    </message>
    <message>
        <source>%1 at %2:%3</source>
        <translation>%1 en %2:%3</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Tamaño del archivo</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Fotogramas por segundo</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Encuadre</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
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
        <translation>ninguna: el encuadre está centrado</translation>
    </message>
    <message>
        <source>%1, %2 %</source>
        <translation>%1, %2&#xa0;%</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>AutoReframeOptions</name>
    <message>
        <source>%1
Try auto-reframe --help.</source>
        <translation>%1
Consultar auto-reframe --help.</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Mostrar este texto.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar la versión.</translation>
    </message>
    <message>
        <source>Turns videos into another aspect ratio and keeps their subject in the picture.
The command line program for many files at once is reframe.</source>
        <translation>Convierte vídeos a otra relación de aspecto y mantiene su sujeto dentro de la imagen.
El programa de línea de órdenes para muchos archivos a la vez es reframe.</translation>
    </message>
    <message>
        <source>Videos to open the library with.</source>
        <translation>Vídeos con los que abrir la biblioteca.</translation>
    </message>
    <message>
        <source>Language of the texts: %1. Otherwise the one chosen in the menu, or that of the system.</source>
        <translation>Idioma de los textos: %1. Si no, el elegido en el menú o el del sistema.</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source>Shorts, Reels, Stories</source>
        <translation>Shorts, Reels, historias</translation>
    </message>
    <message>
        <source>Feed, portrait</source>
        <translation>Feed, vertical</translation>
    </message>
    <message>
        <source>Feed, square</source>
        <translation>Feed, cuadrado</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Cine</translation>
    </message>
    <message>
        <source>Widescreen</source>
        <translation>Panorámico</translation>
    </message>
    <message>
        <source>Classic television</source>
        <translation>Televisión clásica</translation>
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
        <translation>Tan grande como el encuadre</translation>
    </message>
    <message>
        <source>Shorter side %1 pixels</source>
        <translation>Lado corto de %1 píxeles</translation>
    </message>
    <message>
        <source>Choose an aspect ratio.</source>
        <translation>Elegir una relación de aspecto.</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>Elegir una carpeta.</translation>
    </message>
    <message>
        <source>The selected videos have this aspect ratio already.</source>
        <translation>Los vídeos seleccionados ya tienen esta relación de aspecto.</translation>
    </message>
    <message numerus="yes">
        <source>%n files: %1</source>
        <translation>
            <numerusform>%n archivo: %1</numerusform>
            <numerusform>%n archivos: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reframe %n Videos</source>
        <translation>
            <numerusform>Reencuadrar %n vídeo</numerusform>
            <numerusform>Reencuadrar %n vídeos</numerusform>
        </translation>
    </message>
    <message>
        <source>Aspect Ratios</source>
        <translation>Relaciones de aspecto</translation>
    </message>
    <message>
        <source>Motion Speed</source>
        <translation>Velocidad de movimiento</translation>
    </message>
    <message>
        <source>How readily the crop follows the subject</source>
        <translation>Con qué rapidez el encuadre sigue al sujeto</translation>
    </message>
    <message>
        <source>Output Size</source>
        <translation>Tamaño de salida</translation>
    </message>
    <message>
        <source>The size of the exported videos</source>
        <translation>El tamaño de los vídeos exportados</translation>
    </message>
    <message>
        <source>File Name, with %1</source>
        <translation>Nombre del archivo, con %1</translation>
    </message>
    <message>
        <source>What stands in braces is replaced for each file.</source>
        <translation>Lo que está entre llaves se sustituye en cada archivo.</translation>
    </message>
    <message>
        <source>The folder for the exported videos</source>
        <translation>La carpeta de los vídeos exportados</translation>
    </message>
    <message>
        <source>Reframe All</source>
        <translation>Reencuadrar todo</translation>
    </message>
    <message>
        <source>%1 pixels high</source>
        <translation>%1 píxeles de alto</translation>
    </message>
    <message numerus="yes">
        <source>%n files, enlarged beyond their crops: %1</source>
        <translation>
            <numerusform>%n archivo, ampliado más que su encuadre: %1</numerusform>
            <numerusform>%n archivos, ampliados más que sus encuadres: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CropFinder</name>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>No se puede reencuadrar %1: %2.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has no moving picture.</source>
        <translation>No se puede reencuadrar %1: no tiene imagen en movimiento.</translation>
    </message>
    <message>
        <source>Cannot use %1: it has the crops of %2 frames, and %3 has %4 frames.</source>
        <translation>No se puede usar %1: contiene los encuadres de %2 fotogramas y %3 tiene %4.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has the aspect ratio %2 already.</source>
        <translation>No se puede reencuadrar %1: ya tiene la relación de aspecto %2.</translation>
    </message>
    <message numerus="yes">
        <source>Cannot reframe %1: it has only %n frames; %2 are needed.</source>
        <translation>
            <numerusform>No se puede reencuadrar %1: solo tiene %n fotograma; se necesitan %2.</numerusform>
            <numerusform>No se puede reencuadrar %1: solo tiene %n fotogramas; se necesitan %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CropRenderSettings</name>
    <message>
        <source>its picture of %1 x %2 pixels is too small</source>
        <translation>su imagen de %1 x %2 píxeles es demasiado pequeña</translation>
    </message>
</context>
<context>
    <name>CropTrackDialog</name>
    <message>
        <source>Enter a file name.</source>
        <translation>Escribir un nombre de archivo.</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>Elegir una carpeta.</translation>
    </message>
    <message>
        <source>Save Crop Track</source>
        <translation>Guardar pista de encuadre</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nombre del archivo</translation>
    </message>
    <message>
        <source>The file gets a number if there is one of this name</source>
        <translation>Si ya existe un archivo con este nombre, se añade un número</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>The command line reads both</source>
        <translation>La línea de órdenes lee ambos</translation>
    </message>
    <message>
        <source>The folder for the crop track</source>
        <translation>La carpeta de la pista de encuadre</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Export for %1</source>
        <translation>Exportar para %1</translation>
    </message>
    <message>
        <source>The folder for the project or the keyframes</source>
        <translation>La carpeta del proyecto o de los fotogramas clave</translation>
    </message>
</context>
<context>
    <name>CropTrackFile</name>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>No se puede abrir %1: %2.</translation>
    </message>
    <message>
        <source>Cannot use %1: it is too large for a crop track of a video of %2 frames.</source>
        <translation>No se puede usar %1: es demasiado grande para la pista de encuadre de un vídeo de %2 fotogramas.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds no frames.</source>
        <translation>No se puede usar %1: no contiene fotogramas.</translation>
    </message>
</context>
<context>
    <name>CropTrackParser</name>
    <message>
        <source>Cannot use %1: it is no crop track (line %2).</source>
        <translation>No se puede usar %1: no es una pista de encuadre (línea %2).</translation>
    </message>
    <message>
        <source>Cannot use %1: frame %2 is no rectangle inside the picture.</source>
        <translation>No se puede usar %1: el fotograma %2 no es un rectángulo dentro de la imagen.</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds more frames than the video, which has %2.</source>
        <translation>No se puede usar %1: contiene más fotogramas que el vídeo, que tiene %2.</translation>
    </message>
    <message>
        <source>Cannot use %1: it is a crop track of version %2, and this program reads version 1.</source>
        <translation>No se puede usar %1: es una pista de encuadre de la versión %2 y este programa lee la versión 1.</translation>
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
        <translation>Analizando %1</translation>
    </message>
</context>
<context>
    <name>DialogEdits</name>
    <message>
        <source>As large as the crop</source>
        <translation>Tan grande como el encuadre</translation>
    </message>
    <message>
        <source>%1 pixels high</source>
        <translation>%1 píxeles de alto</translation>
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
            <numerusform>%n por revisar</numerusform>
            <numerusform>%n por revisar</numerusform>
        </translation>
    </message>
    <message>
        <source>Progress of %1</source>
        <translation>Progreso de %1</translation>
    </message>
    <message>
        <source>Cancel %1</source>
        <translation>Cancelar %1</translation>
    </message>
    <message>
        <source>Retry %1</source>
        <translation>Reintentar %1</translation>
    </message>
    <message>
        <source>Look at the doubtful shots of %1</source>
        <translation>Revisar los planos dudosos de %1</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>Mostrar %1 en su carpeta</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Paused · %1</source>
        <translation>En pausa · %1</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Analyzing · %1</source>
        <translation>Analizando · %1</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Cancelando…</translation>
    </message>
    <message>
        <source>Done · %1</source>
        <translation>Listo · %1</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Not finished</source>
        <translation>Sin terminar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Export it again</source>
        <translation>Exportarlo de nuevo</translation>
    </message>
    <message>
        <source>Show the file in its folder</source>
        <translation>Mostrar el archivo en su carpeta</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>Quitar de la lista</translation>
    </message>
    <message>
        <source>Opens the video at these settings and its first doubtful shot; N leads to the next one.</source>
        <translation>Abre el vídeo con estos ajustes en su primer plano dudoso; N lleva al siguiente.</translation>
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
        <translation>No se puede exportar %1</translation>
    </message>
    <message>
        <source>Videos are being exported</source>
        <translation>Se están exportando vídeos</translation>
    </message>
</context>
<context>
    <name>ExportPanel</name>
    <message>
        <source>Exports</source>
        <translation>Exportaciones</translation>
    </message>
    <message>
        <source>Clear finished</source>
        <translation>Borrar listos</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Remove the finished exports from the list; their files stay</source>
        <translation>Quitar de la lista las exportaciones terminadas; sus archivos se conservan</translation>
    </message>
    <message>
        <source>Export those that the last run did not finish</source>
        <translation>Exportar lo que la última sesión no terminó</translation>
    </message>
    <message>
        <source>Remove those that the last run did not finish from the list</source>
        <translation>Quitar de la lista lo que la última sesión no terminó</translation>
    </message>
    <message>
        <source>Videos that you export from the Auto Reframe window appear here.</source>
        <translation>Aquí aparecen los vídeos exportados desde la ventana Auto Reframe.</translation>
    </message>
    <message numerus="yes">
        <source>%n exports not finished</source>
        <translation>
            <numerusform>%n exportación sin terminar</numerusform>
            <numerusform>%n exportaciones sin terminar</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportRecord</name>
    <message>
        <source>Cannot export: no name or no folder was given.</source>
        <translation>No se puede exportar: falta el nombre o la carpeta.</translation>
    </message>
    <message>
        <source>Cannot export %1: no picture size was given.</source>
        <translation>No se puede exportar %1: falta el tamaño de la imagen.</translation>
    </message>
</context>
<context>
    <name>FarmOptions</name>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>No se puede abrir %1: %2.</translation>
    </message>
    <message>
        <source>Cannot read the folder %1.</source>
        <translation>No se puede leer la carpeta %1.</translation>
    </message>
    <message>
        <source>Of a folder that is an input, take the videos in its subfolders too.</source>
        <translation>Si una entrada es una carpeta, tomar también los vídeos de sus subcarpetas.</translation>
    </message>
    <message>
        <source>Read more inputs from FILE, one a line; - is standard input.</source>
        <translation>Leer más entradas de FILE, una por línea; - es la entrada estándar.</translation>
    </message>
    <message>
        <source>Write progress and results to FILE as JSON lines, whatever is printed.</source>
        <translation>Escribir el progreso y los resultados en FILE como líneas JSON, se muestre lo que se muestre.</translation>
    </message>
    <message>
        <source>Skip inputs whose results are there already, from the same content, settings and version; replace results of other settings.</source>
        <translation>Omitir las entradas cuyos resultados ya existen, con el mismo contenido, ajustes y versión; reemplazar los resultados de otros ajustes.</translation>
    </message>
    <message>
        <source>Only the frames A to B, counted from 0, or the part K of N: with --apply, render them without sound; otherwise write the pictures that the analysis takes of them (.pictures).</source>
        <translation>Solo los fotogramas A a B, contados desde 0, o la parte K de N: con --apply, renderizarlos sin sonido; si no, escribir las imágenes que el análisis toma de ellos (.pictures).</translation>
    </message>
    <message>
        <source>The first input is a video, the others are all its parts, as --frames wrote them; the results are those of the whole video.</source>
        <translation>La primera entrada es un vídeo y las demás son todas sus partes, tal como las escribió --frames; los resultados son los del vídeo completo.</translation>
    </message>
</context>
<context>
    <name>FollowOption</name>
    <message>
        <source>the video ends after %1 s</source>
        <translation>el vídeo termina después de %1 s</translation>
    </message>
    <message>
        <source>it lies outside the picture of %1x%2 pixels</source>
        <translation>está fuera de la imagen de %1x%2 píxeles</translation>
    </message>
</context>
<context>
    <name>FoundSignals</name>
    <message>
        <source>motion</source>
        <translation>movimiento</translation>
    </message>
    <message>
        <source>movers</source>
        <translation>móviles</translation>
    </message>
    <message>
        <source>saliency</source>
        <translation>saliencia</translation>
    </message>
    <message>
        <source>faces</source>
        <translation>caras</translation>
    </message>
    <message>
        <source>detected</source>
        <translation>detectado</translation>
    </message>
    <message>
        <source>motion: what the camera&apos;s own movement does not explain</source>
        <translation>movimiento: lo que no explica el movimiento de la cámara</translation>
    </message>
    <message>
        <source>movers: what travels through the shot, however small</source>
        <translation>móviles: lo que recorre el plano, por pequeño que sea</translation>
    </message>
    <message>
        <source>saliency: what stands out in a still picture</source>
        <translation>saliencia: lo que destaca en una imagen fija</translation>
    </message>
    <message>
        <source>detected: people and animals</source>
        <translation>detectado: personas y animales</translation>
    </message>
    <message>
        <source>it is not clear who speaks</source>
        <translation>no está claro quién habla</translation>
    </message>
    <message>
        <source>who speaks is hardly clear</source>
        <translation>apenas está claro quién habla</translation>
    </message>
    <message>
        <source>nothing stands out</source>
        <translation>nada destaca</translation>
    </message>
    <message>
        <source>people or animals are in several places</source>
        <translation>hay personas o animales en varios lugares</translation>
    </message>
    <message>
        <source>what stands out is in several places</source>
        <translation>lo que destaca está en varios lugares</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>holds who speaks</source>
        <translation>se mantiene en quien habla</translation>
    </message>
    <message>
        <source>follows who speaks</source>
        <translation>sigue a quien habla</translation>
    </message>
    <message>
        <source>follows who speaks, with 1 cut</source>
        <translation>sigue a quien habla, con 1 corte</translation>
    </message>
    <message numerus="yes">
        <source>follows who speaks, with %n cuts</source>
        <translation>
            <numerusform>sigue a quien habla, con %n corte</numerusform>
            <numerusform>sigue a quien habla, con %n cortes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FramesOption</name>
    <message>
        <source>its last frame is %1</source>
        <translation>su último fotograma es %1</translation>
    </message>
    <message>
        <source>it has %1 frames only</source>
        <translation>solo tiene %1 fotogramas</translation>
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
        <translation>Seleccionar todos los vídeos</translation>
    </message>
    <message>
        <source>Select several videos</source>
        <translation>Seleccionar varios vídeos</translation>
    </message>
    <message>
        <source>Ctrl+Click, Shift+Click</source>
        <translation>Ctrl+clic, Mayús+clic</translation>
    </message>
    <message>
        <source>Reframe the selected video</source>
        <translation>Reencuadrar el vídeo seleccionado</translation>
    </message>
    <message>
        <source>Reframe all selected videos</source>
        <translation>Reencuadrar todos los vídeos seleccionados</translation>
    </message>
    <message>
        <source>Remove from the library</source>
        <translation>Quitar de la biblioteca</translation>
    </message>
    <message>
        <source>Show this list</source>
        <translation>Mostrar esta lista</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Play, pause</source>
        <translation>Reproducir, pausar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Previous edit point</source>
        <translation>Punto de edición anterior</translation>
    </message>
    <message>
        <source>Next edit point</source>
        <translation>Punto de edición siguiente</translation>
    </message>
    <message>
        <source>Delete the edit point</source>
        <translation>Eliminar el punto de edición</translation>
    </message>
    <message>
        <source>Previous doubtful shot</source>
        <translation>Plano dudoso anterior</translation>
    </message>
    <message>
        <source>Next doubtful shot</source>
        <translation>Plano dudoso siguiente</translation>
    </message>
    <message>
        <source>Move the crop by a pixel</source>
        <translation>Mover el encuadre un píxel</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Teclas de flecha</translation>
    </message>
    <message>
        <source>Move the crop by 10 pixels</source>
        <translation>Mover el encuadre 10 píxeles</translation>
    </message>
    <message>
        <source>Shift+Arrow keys</source>
        <translation>Mayús+teclas de flecha</translation>
    </message>
    <message>
        <source>Back to automatic in this shot</source>
        <translation>Volver a automático en este plano</translation>
    </message>
    <message>
        <source>Point at the middle of the crop</source>
        <translation>Señalar el centro del encuadre</translation>
    </message>
    <message>
        <source>Remove the box</source>
        <translation>Quitar el recuadro</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Biblioteca</translation>
    </message>
    <message>
        <source>Auto Reframe Window</source>
        <translation>Ventana Auto Reframe</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>HostMediaBackend</name>
    <message>
        <source>Cannot open %1: it has no moving picture.</source>
        <translation>No se puede abrir %1: no tiene imagen en movimiento.</translation>
    </message>
</context>
<context>
    <name>KrAutoReframeDialog</name>
    <message>
        <source>AutoReframe_Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Auto Reframe</source>
        <translation>Auto Reframe</translation>
    </message>
    <message>
        <source>Analysis error. Please try again.</source>
        <translation>Error de análisis. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>This video is too short. Please try a different video.</source>
        <translation>Este vídeo es demasiado corto. Pruebe con otro vídeo.</translation>
    </message>
    <message>
        <source>You&apos;ve chosen the same aspect ratio as the original video. Please select a different aspect ratio.</source>
        <translation>Ha elegido la misma relación de aspecto que la del vídeo original. Seleccione otra relación de aspecto.</translation>
    </message>
    <message>
        <source>Converting video. Please wait...</source>
        <translation>Convirtiendo el vídeo. Espere...</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>¿Seguro que desea salir?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>All supported files(%1;);</source>
        <translation>Todos los archivos compatibles(%1;);</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Unknown error, please try again</source>
        <translation>Error desconocido, inténtelo de nuevo</translation>
    </message>
</context>
<context>
    <name>KrAutoReframeExportDlg</name>
    <message>
        <source>Export to MP4</source>
        <translation>Exportar a MP4</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Save to:</source>
        <translation>Guardar en:</translation>
    </message>
    <message>
        <source>Please make sure you have selected a valid folder.</source>
        <translation>Seleccione una carpeta válida.</translation>
    </message>
    <message>
        <source>Please check write permission, or choose another path to continue.</source>
        <translation>Compruebe el permiso de escritura o elija otra ubicación para continuar.</translation>
    </message>
    <message>
        <source>The outputted file path is too long, please choose another path to continue.</source>
        <translation>La ruta del archivo de salida es demasiado larga; elija otra ubicación para continuar.</translation>
    </message>
    <message>
        <source>There is not enough space in the specified output directory, please choose another one.
Dise Space needed :%1 MB, remaining:%2 MB.</source>
        <translation>No hay espacio suficiente en la carpeta de salida; elija otra.
Espacio necesario: %1 MB, disponible: %2 MB.</translation>
    </message>
</context>
<context>
    <name>KrAutoReframePlayerControlBar</name>
    <message>
        <source>Backward (%1)</source>
        <translation>Atrás (%1)</translation>
    </message>
    <message>
        <source>Forward (%1)</source>
        <translation>Adelante (%1)</translation>
    </message>
    <message>
        <source>Stop (%1)</source>
        <translation>Detener (%1)</translation>
    </message>
    <message>
        <source>Play (%1)</source>
        <translation>Reproducir (%1)</translation>
    </message>
    <message>
        <source>Pause (%1)</source>
        <translation>Pausar (%1)</translation>
    </message>
    <message>
        <source>Undo (%1)</source>
        <translation>Deshacer (%1)</translation>
    </message>
    <message>
        <source>Redo (%1)</source>
        <translation>Rehacer (%1)</translation>
    </message>
    <message>
        <source>Delete (%1)</source>
        <translation>Eliminar (%1)</translation>
    </message>
    <message>
        <source>Previous Edit Point (%1)</source>
        <translation>Punto de edición anterior (%1)</translation>
    </message>
    <message>
        <source>Next Edit Point (%1)</source>
        <translation>Punto de edición siguiente (%1)</translation>
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
        <translation>Reemplazar archivo</translation>
    </message>
    <message>
        <source>Adjust Frame</source>
        <translation>Ajustar encuadre</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Relación de aspecto</translation>
    </message>
    <message>
        <source>Motion Speed</source>
        <translation>Velocidad de movimiento</translation>
    </message>
    <message>
        <source>Analyze</source>
        <translation>Analizar</translation>
    </message>
    <message>
        <source>AutoReframe_Restart</source>
        <translation>Volver a analizar</translation>
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
        <translation>Imagen</translation>
    </message>
    <message>
        <source>The arrow keys move the crop, with Shift in larger steps.</source>
        <translation>Las teclas de flecha mueven el encuadre; con Mayús, en pasos más grandes.</translation>
    </message>
</context>
<context>
    <name>KrDialogExtension</name>
    <message>
        <source>The crop follows your choice</source>
        <translation>El encuadre sigue su elección</translation>
    </message>
    <message>
        <source>The crop avoids your choice</source>
        <translation>El encuadre evita su elección</translation>
    </message>
    <message>
        <source>The crop is held</source>
        <translation>El encuadre se mantiene fijo</translation>
    </message>
    <message>
        <source>The whole picture is shown</source>
        <translation>Se muestra la imagen completa</translation>
    </message>
    <message>
        <source>The analysis decides</source>
        <translation>Decide el análisis</translation>
    </message>
    <message>
        <source>Lost from %1: point again</source>
        <translation>Perdido desde %1: señalar de nuevo</translation>
    </message>
    <message>
        <source>Perhaps lost from %1: look, and point again</source>
        <translation>Quizá perdido desde %1: comprobar y señalar de nuevo</translation>
    </message>
    <message>
        <source>Settings changed: analyze again</source>
        <translation>Ajustes modificados: reanalizar</translation>
    </message>
    <message numerus="yes">
        <source>%n choices are kept, but not in this cut of the video</source>
        <translation>
            <numerusform>%n elección se conserva, pero no en este montaje del vídeo</numerusform>
            <numerusform>%n elecciones se conservan, pero no en este montaje del vídeo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n choices were moved to where their pictures are</source>
        <translation>
            <numerusform>%n elección se movió a donde está su imagen</numerusform>
            <numerusform>%n elecciones se movieron a donde están sus imágenes</numerusform>
        </translation>
    </message>
    <message>
        <source>Following: %1 %</source>
        <translation>Siguiendo: %1&#xa0;%</translation>
    </message>
    <message>
        <source>Your edit stays here</source>
        <translation>Su edición se conserva aquí</translation>
    </message>
</context>
<context>
    <name>KrDoubtfulShots</name>
    <message>
        <source>Previous Doubtful Shot (%1)</source>
        <translation>Plano dudoso anterior (%1)</translation>
    </message>
    <message>
        <source>Next Doubtful Shot (%1)</source>
        <translation>Plano dudoso siguiente (%1)</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n shots to look at</source>
        <translation>
            <numerusform>%1 de %n plano por revisar</numerusform>
            <numerusform>%1 de %n planos por revisar</numerusform>
        </translation>
    </message>
    <message>
        <source>All doubtful shots seen</source>
        <translation>Todos los planos dudosos vistos</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>Plano %1 de %2</translation>
    </message>
    <message>
        <source>nothing stands out</source>
        <translation>nada destaca</translation>
    </message>
    <message>
        <source>what stands out is in several places, far apart</source>
        <translation>lo que destaca está en varios lugares, muy separados</translation>
    </message>
    <message>
        <source>several people or animals, far apart</source>
        <translation>varias personas o animales, muy separados</translation>
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
            <numerusform>%n punto de edición se conserva, pero no en este montaje del vídeo</numerusform>
            <numerusform>%n puntos de edición se conservan, pero no en este montaje del vídeo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit points were moved to where their pictures are</source>
        <translation>
            <numerusform>%n punto de edición se movió a donde están sus imágenes</numerusform>
            <numerusform>%n puntos de edición se movieron a donde están sus imágenes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KrExportStatus</name>
    <message>
        <source>Progress of the export</source>
        <translation>Progreso de la exportación</translation>
    </message>
    <message>
        <source>The size of the exported video in pixels.</source>
        <translation>El tamaño del vídeo exportado en píxeles.</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Opens the folder of the exported video.</source>
        <translation>Abre la carpeta del vídeo exportado.</translation>
    </message>
    <message>
        <source>Output: %1 × %2</source>
        <translation>Salida: %1 × %2</translation>
    </message>
    <message>
        <source>Waiting in the export queue</source>
        <translation>En la cola de exportación</translation>
    </message>
    <message>
        <source>Exporting: %1 %</source>
        <translation>Exportando: %1&#xa0;%</translation>
    </message>
    <message>
        <source>Exported</source>
        <translation>Exportado</translation>
    </message>
    <message>
        <source>Export cancelled</source>
        <translation>Exportación cancelada</translation>
    </message>
    <message>
        <source>Output: %1 × %2, enlarged</source>
        <translation>Salida: %1 × %2, ampliada</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>The size in which the video is exported.</source>
        <translation>El tamaño con el que se exporta el vídeo.</translation>
    </message>
</context>
<context>
    <name>KrFollowControls</name>
    <message>
        <source>This looks like background</source>
        <translation>Esto parece el fondo</translation>
    </message>
    <message>
        <source>Hold the Crop Here in This Shot</source>
        <translation>Fijar el encuadre aquí en este plano</translation>
    </message>
    <message>
        <source>Follow This Anyway</source>
        <translation>Seguirlo de todos modos</translation>
    </message>
    <message>
        <source>Follow This</source>
        <translation>Seguir esto</translation>
    </message>
    <message>
        <source>Not This</source>
        <translation>Esto no</translation>
    </message>
    <message>
        <source>Hold the Crop in This Shot</source>
        <translation>Fijar el encuadre en este plano</translation>
    </message>
    <message>
        <source>Show the Whole Picture in This Shot</source>
        <translation>Mostrar la imagen completa en este plano</translation>
    </message>
    <message>
        <source>Back to Automatic</source>
        <translation>Volver a automático</translation>
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
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>KrRatioComparison</name>
    <message>
        <source>Compare Aspect Ratios</source>
        <translation>Comparar relaciones de aspecto</translation>
    </message>
</context>
<context>
    <name>KrRatioPane</name>
    <message>
        <source>Result in %1:%2</source>
        <translation>Resultado en %1:%2</translation>
    </message>
    <message>
        <source>%1:%2</source>
        <translation>%1:%2</translation>
    </message>
    <message>
        <source>%1 · finding the crop…</source>
        <translation>%1 · buscando el encuadre…</translation>
    </message>
    <message>
        <source>%1 · %2 × %3</source>
        <translation>%1 · %2 × %3</translation>
    </message>
    <message>
        <source>%1 · analyze the video again</source>
        <translation>%1 · volver a analizar</translation>
    </message>
</context>
<context>
    <name>KrViewMenu</name>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>Safe Zones</source>
        <translation>Zonas seguras</translation>
    </message>
    <message>
        <source>Dims what players of vertical videos cover with texts and buttons. For 9:16 only.</source>
        <translation>Oscurece lo que los reproductores de vídeo vertical cubren con textos y botones. Solo para 9:16.</translation>
    </message>
    <message>
        <source>Thirds</source>
        <translation>Tercios</translation>
    </message>
    <message>
        <source>A grid that divides the result into thirds.</source>
        <translation>Una cuadrícula que divide el resultado en tercios.</translation>
    </message>
    <message>
        <source>Headroom</source>
        <translation>Aire sobre la cabeza</translation>
    </message>
    <message>
        <source>The band in which the top of a head belongs.</source>
        <translation>La franja en la que debe quedar la parte superior de una cabeza.</translation>
    </message>
    <message>
        <source>Compare Aspect Ratios…</source>
        <translation>Comparar relaciones de aspecto…</translation>
    </message>
    <message>
        <source>Shows the results of several aspect ratios side by side.</source>
        <translation>Muestra en paralelo los resultados de varias relaciones de aspecto.</translation>
    </message>
</context>
<context>
    <name>KxAacEncoder</name>
    <message>
        <source>the AAC encoder is missing</source>
        <translation>falta el codificador AAC</translation>
    </message>
    <message>
        <source>sound of %1 Hz and %2 channels is not supported</source>
        <translation>no se admite sonido de %1 Hz y %2 canales</translation>
    </message>
    <message>
        <source>the sound encoder does not start (%1)</source>
        <translation>el codificador de sonido no se inicia (%1)</translation>
    </message>
</context>
<context>
    <name>KxAudioReader</name>
    <message>
        <source>it has no such sound track</source>
        <translation>no tiene esa pista de sonido</translation>
    </message>
</context>
<context>
    <name>KxAudioTrack</name>
    <message>
        <source>its sound format (%1) is not supported</source>
        <translation>su formato de sonido (%1) no se admite</translation>
    </message>
    <message>
        <source>its sound is damaged</source>
        <translation>su sonido está dañado</translation>
    </message>
</context>
<context>
    <name>KxAutoReframeService</name>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>No se puede analizar %1: %2.</translation>
    </message>
    <message>
        <source>the stored choices</source>
        <translation>las elecciones guardadas</translation>
    </message>
</context>
<context>
    <name>KxAvError</name>
    <message>
        <source>it was cancelled</source>
        <translation>se canceló</translation>
    </message>
    <message>
        <source>it ends too early</source>
        <translation>termina demasiado pronto</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>está dañado</translation>
    </message>
    <message>
        <source>its format is not supported</source>
        <translation>su formato no se admite</translation>
    </message>
</context>
<context>
    <name>KxCacheFolder</name>
    <message>
        <source>Cannot make the cache folder %1: %2.</source>
        <translation>No se puede crear la carpeta de caché %1: %2.</translation>
    </message>
</context>
<context>
    <name>KxChoicesFormat</name>
    <message>
        <source>Cannot use %1: %2.</source>
        <translation>No se puede usar %1: %2.</translation>
    </message>
    <message>
        <source>choice %1 has no valid time (&quot;%2&quot;), in seconds</source>
        <translation>la elección %1 no tiene un tiempo válido («%2»), en segundos</translation>
    </message>
    <message>
        <source>choice %1 has &quot;%2&quot; that are no list</source>
        <translation>la elección %1 tiene «%2» que no es una lista</translation>
    </message>
    <message>
        <source>it has more than %1 seeds and boxes</source>
        <translation>tiene más de %1 puntos de partida y recuadros</translation>
    </message>
    <message>
        <source>choice %1 has a box that is not left, top, width and height in fractions of the picture</source>
        <translation>la elección %1 tiene un recuadro que no es izquierda, arriba, ancho y alto en fracciones de la imagen</translation>
    </message>
    <message>
        <source>choice %1 has no &quot;seeds&quot; that show what it means</source>
        <translation>la elección %1 no tiene «seeds» que muestren a qué se refiere</translation>
    </message>
    <message>
        <source>choice %1 has more than %2 &quot;pictures&quot;</source>
        <translation>la elección %1 tiene más de %2 «pictures»</translation>
    </message>
    <message>
        <source>choice %1 has &quot;pictures&quot; that are not times with 16 hexadecimal digits</source>
        <translation>la elección %1 tiene «pictures» que no son tiempos con 16 dígitos hexadecimales</translation>
    </message>
    <message>
        <source>choice %1 has no known &quot;kind&quot;; it is follow, avoid, hold, fit or automatic</source>
        <translation>la elección %1 no tiene un «kind» conocido; puede ser follow, avoid, hold, fit o automatic</translation>
    </message>
    <message>
        <source>choice %1 ends before it begins</source>
        <translation>la elección %1 termina antes de empezar</translation>
    </message>
    <message>
        <source>choice %1 has no &quot;centre&quot; in fractions of the picture</source>
        <translation>la elección %1 no tiene «centre» en fracciones de la imagen</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>tiene más de %1 bytes</translation>
    </message>
    <message>
        <source>it is no list of choices (JSON, byte %1)</source>
        <translation>no es una lista de elecciones (JSON, byte %1)</translation>
    </message>
    <message>
        <source>it is of version %1, and this program reads version %2</source>
        <translation>es de la versión %1 y este programa lee la versión %2</translation>
    </message>
    <message>
        <source>it has no &quot;version&quot;</source>
        <translation>no tiene «version»</translation>
    </message>
    <message>
        <source>it has no list of &quot;choices&quot;</source>
        <translation>no tiene una lista de «choices»</translation>
    </message>
    <message>
        <source>it has more than %1 choices</source>
        <translation>tiene más de %1 elecciones</translation>
    </message>
    <message>
        <source>Cannot open %1: it is not a regular file.</source>
        <translation>No se puede abrir %1: no es un archivo normal.</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>No se puede abrir %1: %2.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
</context>
<context>
    <name>KxDetectorFiles</name>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>it is too large for a detector</source>
        <translation>es demasiado grande para un detector</translation>
    </message>
    <message>
        <source>its checksum is unknown (no SHA256SUMS beside it names the file)</source>
        <translation>su suma de comprobación es desconocida (ningún SHA256SUMS de la carpeta nombra el archivo)</translation>
    </message>
    <message>
        <source>it is damaged (SHA256SUMS has another checksum)</source>
        <translation>está dañado (SHA256SUMS tiene otra suma de comprobación)</translation>
    </message>
    <message>
        <source>Cannot use the detector %1: %2.</source>
        <translation>No se puede usar el detector %1: %2.</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>no existe esa carpeta</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>no es una carpeta</translation>
    </message>
    <message>
        <source>it has neither %1 nor %2</source>
        <translation>no tiene ni %1 ni %2</translation>
    </message>
    <message>
        <source>Cannot use the models in %1: %2.</source>
        <translation>No se pueden usar los modelos de %1: %2.</translation>
    </message>
    <message>
        <source>The detector of people and animals is not installed; the analysis works without it.</source>
        <translation>El detector de personas y animales no está instalado; el análisis funciona sin él.</translation>
    </message>
    <message>
        <source>it is not NanoDet-g as OpenCV can run it</source>
        <translation>no es NanoDet-g tal como OpenCV puede ejecutarlo</translation>
    </message>
    <message>
        <source>it is not a face detector that OpenCV can run</source>
        <translation>no es un detector de caras que OpenCV pueda ejecutar</translation>
    </message>
</context>
<context>
    <name>KxEncoderProof</name>
    <message>
        <source>there is nothing to compare it with</source>
        <translation>no hay nada con qué compararlo</translation>
    </message>
    <message>
        <source>of %1 pictures it wrote %2</source>
        <translation>de %1 imágenes escribió %2</translation>
    </message>
    <message>
        <source>its pictures have another size or format</source>
        <translation>sus imágenes tienen otro tamaño o formato</translation>
    </message>
    <message>
        <source>its picture %1 differs too much (%2 dB, %3 are needed)</source>
        <translation>su imagen %1 difiere demasiado (%2 dB, se necesitan %3)</translation>
    </message>
</context>
<context>
    <name>KxFittedCutter</name>
    <message>
        <source>Cannot cut a picture: the rectangle to cut out is empty.</source>
        <translation>No se puede recortar una imagen: el rectángulo que se debe recortar está vacío.</translation>
    </message>
    <message>
        <source>Cannot cut a picture: memory ran out.</source>
        <translation>No se puede recortar una imagen: no hay memoria suficiente.</translation>
    </message>
</context>
<context>
    <name>KxFollowPass</name>
    <message>
        <source>Cannot follow in %1: %2.</source>
        <translation>No se puede seguir en %1: %2.</translation>
    </message>
</context>
<context>
    <name>KxFrameCutter</name>
    <message>
        <source>Cannot cut a picture: the rectangle to cut out is empty.</source>
        <translation>No se puede recortar una imagen: el rectángulo que se debe recortar está vacío.</translation>
    </message>
    <message>
        <source>Cannot cut a picture: its pixel format &quot;%1&quot; cannot be converted.</source>
        <translation>No se puede recortar una imagen: su formato de píxeles «%1» no se puede convertir.</translation>
    </message>
    <message>
        <source>Cannot cut a picture: memory ran out.</source>
        <translation>No se puede recortar una imagen: no hay memoria suficiente.</translation>
    </message>
    <message>
        <source>Cannot cut a picture: it cannot be scaled from %1 x %2 to %3 x %4.</source>
        <translation>No se puede recortar una imagen: no se puede escalar de %1 x %2 a %3 x %4.</translation>
    </message>
</context>
<context>
    <name>KxInputFile</name>
    <message>
        <source>it is a single picture, not a video</source>
        <translation>es una imagen suelta, no un vídeo</translation>
    </message>
    <message>
        <source>it is a list of other files, not a video</source>
        <translation>es una lista de otros archivos, no un vídeo</translation>
    </message>
    <message>
        <source>it is not a video file</source>
        <translation>no es un archivo de vídeo</translation>
    </message>
    <message>
        <source>it has more than %1 streams</source>
        <translation>tiene más de %1 flujos</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>No se puede abrir %1: %2.</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>se canceló</translation>
    </message>
    <message>
        <source>reading it takes too long</source>
        <translation>su lectura tarda demasiado</translation>
    </message>
    <message>
        <source>it is damaged or incomplete</source>
        <translation>está dañado o incompleto</translation>
    </message>
    <message>
        <source>it is a link to a file that does not exist</source>
        <translation>es un enlace a un archivo que no existe</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>no existe ese archivo</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>permission is denied</source>
        <translation>permiso denegado</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>its pictures are too large (%1 x %2)</source>
        <translation>sus imágenes son demasiado grandes (%1 x %2)</translation>
    </message>
    <message>
        <source>it has sound but no moving picture</source>
        <translation>tiene sonido pero no imagen en movimiento</translation>
    </message>
    <message>
        <source>it has no moving picture</source>
        <translation>no tiene imagen en movimiento</translation>
    </message>
    <message>
        <source>its name is not valid UTF-8; rename it</source>
        <translation>su nombre no es UTF-8 válido; cámbielo</translation>
    </message>
</context>
<context>
    <name>KxJoinedPictures</name>
    <message>
        <source>%1 does not hold pictures of a part of this video</source>
        <translation>%1 no contiene imágenes de una parte de este vídeo</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 está dañado</translation>
    </message>
    <message>
        <source>%1 begins with other pictures than the part before ends with; analyse the video as a whole</source>
        <translation>%1 empieza con imágenes distintas de las que terminan la parte anterior; analice el vídeo completo</translation>
    </message>
</context>
<context>
    <name>KxLanguage</name>
    <message>
        <source>Language of the texts: %1. Otherwise that of the system.</source>
        <translation>Idioma de los textos: %1. Si no, el del sistema.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an available language; choose one of %2.</source>
        <translation>«%1» no es un idioma disponible; elegir entre %2.</translation>
    </message>
</context>
<context>
    <name>KxMediaLibraryUtils</name>
    <message>
        <source>Cannot open %1: it has no moving picture.</source>
        <translation>No se puede abrir %1: no tiene imagen en movimiento.</translation>
    </message>
</context>
<context>
    <name>KxMediaPlayerPresenter</name>
    <message>
        <source>Cannot show the timeline: it holds no video.</source>
        <translation>No se puede mostrar la línea de tiempo: no contiene vídeo.</translation>
    </message>
    <message>
        <source>Cannot show %1: %2.</source>
        <translation>No se puede mostrar %1: %2.</translation>
    </message>
    <message>
        <source>its pictures cannot be decoded</source>
        <translation>sus imágenes no se pueden descodificar</translation>
    </message>
</context>
<context>
    <name>KxMessageBox</name>
    <message>
        <source>Do not show this again</source>
        <translation>No volver a mostrar</translation>
    </message>
</context>
<context>
    <name>KxMp4Writer</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>No se puede escribir %1: %2.</translation>
    </message>
    <message>
        <source>pictures of %1 x %2 pixels cannot be encoded; both have to be even</source>
        <translation>no se pueden codificar imágenes de %1 x %2 píxeles; ambos números deben ser pares</translation>
    </message>
    <message>
        <source>the frame rate is unknown</source>
        <translation>se desconoce la velocidad de fotogramas</translation>
    </message>
    <message>
        <source>there is no picture to write</source>
        <translation>no hay ninguna imagen que escribir</translation>
    </message>
</context>
<context>
    <name>KxOpenFileLineEdit</name>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
</context>
<context>
    <name>KxOpenFileName</name>
    <message>
        <source>All files(%1)</source>
        <translation>Todos los archivos(%1)</translation>
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
        <translation>No se puede escribir %1: %2.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>no free name was found in its folder</source>
        <translation>no se encontró un nombre libre en su carpeta</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>la carpeta %1 no existe</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 no es una carpeta</translation>
    </message>
</context>
<context>
    <name>KxOutputSize</name>
    <message>
        <source>the size %1 x %2 does not have the shape of the crop; %1 x %3 does</source>
        <translation>el tamaño %1 x %2 no tiene la forma del encuadre; %1 x %3 sí</translation>
    </message>
</context>
<context>
    <name>KxPictureFeed</name>
    <message>
        <source>Cannot render %1: %2.</source>
        <translation>No se puede procesar %1: %2.</translation>
    </message>
    <message>
        <source>Cannot render %1 at frame %2. %3</source>
        <translation>No se puede procesar %1 en el fotograma %2. %3</translation>
    </message>
    <message>
        <source>Memory ran out.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
</context>
<context>
    <name>KxPictureFilter</name>
    <message>
        <source>it yields no picture</source>
        <translation>no produce ninguna imagen</translation>
    </message>
</context>
<context>
    <name>KxPicturesFile</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>No se puede escribir %1: %2.</translation>
    </message>
    <message>
        <source>%1 is cut off or damaged: it decodes only in part.</source>
        <translation>%1 está cortado o dañado: solo se descodifica en parte.</translation>
    </message>
</context>
<context>
    <name>KxPlayerToolBarBase</name>
    <message>
        <source>Play (%1)</source>
        <translation>Reproducir (%1)</translation>
    </message>
    <message>
        <source>Pause (%1)</source>
        <translation>Pausar (%1)</translation>
    </message>
    <message>
        <source>Stop (%1)</source>
        <translation>Detener (%1)</translation>
    </message>
    <message>
        <source>Backward (%1)</source>
        <translation>Atrás (%1)</translation>
    </message>
    <message>
        <source>Forward (%1)</source>
        <translation>Adelante (%1)</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Reproducir o pausar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
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
        <translation>El sonido es silencioso; no se cambia su sonoridad.</translation>
    </message>
    <message>
        <source>The loudness of the sound is not changed: %1.</source>
        <translation>No se cambia la sonoridad del sonido: %1.</translation>
    </message>
    <message>
        <source>The sound is encoded again: %1.</source>
        <translation>El sonido se codifica de nuevo: %1.</translation>
    </message>
    <message>
        <source>The sound is left out. %1</source>
        <translation>Se omite el sonido. %1</translation>
    </message>
</context>
<context>
    <name>KxRenderSource</name>
    <message>
        <source>Cannot render the timeline: it shows no file.</source>
        <translation>No se puede procesar la línea de tiempo: no muestra ningún archivo.</translation>
    </message>
</context>
<context>
    <name>KxRenderer</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>No se puede escribir %1: %2.</translation>
    </message>
    <message>
        <source>a resolution of %1 x %2 is not possible</source>
        <translation>no es posible una resolución de %1 x %2</translation>
    </message>
    <message>
        <source>it is the very file that is rendered</source>
        <translation>es el mismo archivo que se está procesando</translation>
    </message>
    <message>
        <source>Cannot render %1: it is damaged.</source>
        <translation>No se puede procesar %1: está dañado.</translation>
    </message>
    <message>
        <source>%1 is damaged or incomplete: only %2 of %3 frames could be rendered.</source>
        <translation>%1 está dañado o incompleto: solo se pudieron procesar %2 de %3 fotogramas.</translation>
    </message>
    <message>
        <source>The sound of %1 is damaged and ends early.</source>
        <translation>El sonido de %1 está dañado y termina antes de tiempo.</translation>
    </message>
    <message>
        <source>%1 frames a second are not possible</source>
        <translation>no son posibles %1 fotogramas por segundo</translation>
    </message>
    <message>
        <source>Cannot render %1: %2.</source>
        <translation>No se puede procesar %1: %2.</translation>
    </message>
    <message>
        <source>its parts have %1 of %2 frames</source>
        <translation>sus partes tienen %1 de %2 fotogramas</translation>
    </message>
    <message>
        <source>there is no picture to write</source>
        <translation>no hay ninguna imagen que escribir</translation>
    </message>
</context>
<context>
    <name>KxSoundPackets</name>
    <message>
        <source>the time stamps of the file jump</source>
        <translation>las marcas de tiempo del archivo saltan</translation>
    </message>
    <message>
        <source>there is no such sound track</source>
        <translation>no existe esa pista de sonido</translation>
    </message>
    <message>
        <source>MP4 cannot hold %1</source>
        <translation>MP4 no puede contener %1</translation>
    </message>
</context>
<context>
    <name>KxSystemError</name>
    <message>
        <source>the file would become too large for its disk</source>
        <translation>el archivo sería demasiado grande para su disco</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>no existe ese archivo</translation>
    </message>
    <message>
        <source>permission is denied</source>
        <translation>permiso denegado</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>el disco es de solo lectura</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>el disco informa de un error</translation>
    </message>
    <message>
        <source>memory ran out</source>
        <translation>no hay memoria suficiente</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>hay demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>su nombre es demasiado largo</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>its reader has gone</source>
        <translation>el receptor se ha cerrado</translation>
    </message>
    <message>
        <source>it is in use</source>
        <translation>está en uso</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>el disco está lleno</translation>
    </message>
</context>
<context>
    <name>KxSystemFile</name>
    <message>
        <source>another program has it open</source>
        <translation>otro programa lo tiene abierto</translation>
    </message>
</context>
<context>
    <name>KxThread</name>
    <message>
        <source>memory ran out</source>
        <translation>no hay memoria suficiente</translation>
    </message>
    <message>
        <source>an unknown error occurred</source>
        <translation>se produjo un error desconocido</translation>
    </message>
</context>
<context>
    <name>KxThumbnailPicture</name>
    <message>
        <source>Cannot show %1: no picture could be read.</source>
        <translation>No se puede mostrar %1: no se pudo leer ninguna imagen.</translation>
    </message>
</context>
<context>
    <name>KxThumbnailer</name>
    <message>
        <source>Cannot show %1: %2.</source>
        <translation>No se puede mostrar %1: %2.</translation>
    </message>
</context>
<context>
    <name>KxToneMapper</name>
    <message>
        <source>Cannot convert a picture of high dynamic range: %1.</source>
        <translation>No se puede convertir una imagen de alto rango dinámico: %1.</translation>
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
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>KxVideoAnalysis</name>
    <message>
        <source>Choice %1 is applied %2 s earlier, where its pictures are in %3.</source>
        <translation>La elección %1 se aplica %2 s antes, donde están sus imágenes en %3.</translation>
    </message>
    <message>
        <source>Choice %1 is applied %2 s later, where its pictures are in %3.</source>
        <translation>La elección %1 se aplica %2 s después, donde están sus imágenes en %3.</translation>
    </message>
    <message>
        <source>Choice %1 is not applied: its pictures are not in %2.</source>
        <translation>La elección %1 no se aplica: sus imágenes no están en %2.</translation>
    </message>
    <message>
        <source>The aspect ratio %1:%2 has a side that is not positive.</source>
        <translation>La relación de aspecto %1:%2 tiene un lado que no es positivo.</translation>
    </message>
    <message>
        <source>Cannot analyse %1: its time stamps span %2 frames, the limit is %3.</source>
        <translation>No se puede analizar %1: sus marcas de tiempo abarcan %2 fotogramas; el límite es %3.</translation>
    </message>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>No se puede analizar %1: %2.</translation>
    </message>
    <message>
        <source>%1 is cut off or damaged: it decodes only in part.</source>
        <translation>%1 está cortado o dañado: solo se descodifica en parte.</translation>
    </message>
    <message>
        <source>What is followed is lost from %1 s to %2 s: point at it again there.</source>
        <translation>Lo que se sigue se pierde de %1 s a %2 s: señalarlo de nuevo ahí.</translation>
    </message>
    <message>
        <source>Choice %1 is not applied: its time is outside of %2.</source>
        <translation>La elección %1 no se aplica: su tiempo está fuera de %2.</translation>
    </message>
</context>
<context>
    <name>KxVideoDecoder</name>
    <message>
        <source>its video format (%1) is not supported</source>
        <translation>su formato de vídeo (%1) no se admite</translation>
    </message>
    <message>
        <source>its video stream is damaged</source>
        <translation>su flujo de vídeo está dañado</translation>
    </message>
</context>
<context>
    <name>KxVideoEncoder</name>
    <message>
        <source>the video encoder %1 is missing</source>
        <translation>falta el codificador de vídeo %1</translation>
    </message>
    <message>
        <source>the video encoder %1 does not start (%2)</source>
        <translation>el codificador de vídeo %1 no se inicia (%2)</translation>
    </message>
</context>
<context>
    <name>KxVideoPart</name>
    <message>
        <source>it has no picture</source>
        <translation>no tiene ninguna imagen</translation>
    </message>
</context>
<context>
    <name>KxVideoParts</name>
    <message>
        <source>Cannot join %1 to %2: it was encoded in another way.</source>
        <translation>No se puede unir %1 a %2: se codificó de otra manera.</translation>
    </message>
    <message>
        <source>Cannot join %1: its time stamps are damaged.</source>
        <translation>No se puede unir %1: sus marcas de tiempo están dañadas.</translation>
    </message>
    <message>
        <source>Cannot join %1: it is damaged.</source>
        <translation>No se puede unir %1: está dañado.</translation>
    </message>
</context>
<context>
    <name>KxVideoSource</name>
    <message>
        <source>it was cancelled</source>
        <translation>se canceló</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>está dañado</translation>
    </message>
    <message>
        <source>no picture of it can be decoded, it is damaged</source>
        <translation>no se puede descodificar ninguna imagen, está dañado</translation>
    </message>
    <message>
        <source>it is a single picture, not a video</source>
        <translation>es una imagen suelta, no un vídeo</translation>
    </message>
    <message>
        <source>it cannot be read from the start again</source>
        <translation>no se puede volver a leer desde el principio</translation>
    </message>
    <message>
        <source>its time stamps are damaged</source>
        <translation>sus marcas de tiempo están dañadas</translation>
    </message>
</context>
<context>
    <name>KxWindowsNames</name>
    <message>
        <source>its name contains a control character</source>
        <translation>su nombre contiene un carácter de control</translation>
    </message>
    <message>
        <source>a name cannot contain the character %1</source>
        <translation>un nombre no puede contener el carácter %1</translation>
    </message>
    <message>
        <source>%1 is the name of a device</source>
        <translation>%1 es el nombre de un dispositivo</translation>
    </message>
    <message>
        <source>a name cannot end with a dot or a space</source>
        <translation>un nombre no puede terminar con un punto o un espacio</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>su nombre es demasiado largo</translation>
    </message>
</context>
<context>
    <name>LibraryConnection</name>
    <message>
        <source>another program is using it</source>
        <translation>otro programa la está usando</translation>
    </message>
    <message>
        <source>it is write-protected</source>
        <translation>está protegida contra escritura</translation>
    </message>
    <message>
        <source>the disk cannot be read or written</source>
        <translation>el disco no se puede leer o escribir</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>está dañado</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>el disco está lleno</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>no se puede abrir</translation>
    </message>
</context>
<context>
    <name>LibraryOpening</name>
    <message>
        <source>Cannot open the library %1: %2. What you do now is not saved.</source>
        <translation>No se puede abrir la biblioteca %1: %2. Lo que haga ahora no se guardará.</translation>
    </message>
    <message>
        <source>its backup %1 cannot be written</source>
        <translation>su copia de seguridad %1 no se puede escribir</translation>
    </message>
    <message>
        <source>it was written by a newer version of this program</source>
        <translation>la escribió una versión más reciente de este programa</translation>
    </message>
    <message>
        <source>its folder cannot be made</source>
        <translation>no se puede crear su carpeta</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>another program is opening it</source>
        <translation>otro programa la está abriendo</translation>
    </message>
    <message>
        <source>its folder cannot be written to</source>
        <translation>no se puede escribir en su carpeta</translation>
    </message>
    <message>
        <source>it is damaged, and it cannot be renamed</source>
        <translation>está dañada y no se puede renombrar</translation>
    </message>
    <message>
        <source>The library was damaged. It was renamed to %1, and a new one was begun.</source>
        <translation>La biblioteca estaba dañada. Se renombró a %1 y se creó una nueva.</translation>
    </message>
</context>
<context>
    <name>LibraryStore</name>
    <message>
        <source>Cannot read the library %1: %2. What you do now is not saved.</source>
        <translation>No se puede leer la biblioteca %1: %2. Lo que haga ahora no se guardará.</translation>
    </message>
    <message>
        <source>Cannot save the library %1: %2.</source>
        <translation>No se puede guardar la biblioteca %1: %2.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%n files that are no videos were skipped</source>
        <translation>
            <numerusform>Se omitió %n archivo que no es un vídeo</numerusform>
            <numerusform>Se omitieron %n archivos que no son vídeos</numerusform>
        </translation>
    </message>
    <message>
        <source>Auto Reframe</source>
        <translation>Auto Reframe</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Reframe All…</source>
        <translation>Reencuadrar todo…</translation>
    </message>
    <message>
        <source>Auto Reframe…</source>
        <translation>Auto Reframe…</translation>
    </message>
    <message>
        <source>Add videos to the library</source>
        <translation>Añadir vídeos a la biblioteca</translation>
    </message>
    <message>
        <source>Reframe all selected videos without looking at each</source>
        <translation>Reencuadrar todos los vídeos seleccionados sin revisar cada uno</translation>
    </message>
    <message>
        <source>Reframe the selected videos one after the other</source>
        <translation>Reencuadrar los vídeos seleccionados uno tras otro</translation>
    </message>
    <message>
        <source>No videos yet</source>
        <translation>Aún no hay vídeos</translation>
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
            <numerusform>%n seleccionado</numerusform>
            <numerusform>%n seleccionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n exports are not finished. They are cancelled when you quit.</source>
        <translation>
            <numerusform>%n exportación no ha terminado. Se cancelará al salir.</numerusform>
            <numerusform>%n exportaciones no han terminado. Se cancelarán al salir.</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <translation>Seguir exportando</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>All supported files</source>
        <translation>Todos los archivos compatibles</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Import Folder</source>
        <translation>Importar carpeta</translation>
    </message>
    <message>
        <source>Import Folder…</source>
        <translation>Importar carpeta…</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Abrir reciente</translation>
    </message>
    <message>
        <source>Save Crop Track…</source>
        <translation>Guardar pista de encuadre…</translation>
    </message>
    <message>
        <source>Open Crop Track…</source>
        <translation>Abrir pista de encuadre…</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>About Auto Reframe</source>
        <translation>Acerca de Auto Reframe</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>… y %n más.</numerusform>
            <numerusform>… y %n más.</numerusform>
        </translation>
    </message>
    <message>
        <source>Find %1</source>
        <translation>Buscar %1</translation>
    </message>
    <message>
        <source>The content of this file differs from that of %1.</source>
        <translation>El contenido de este archivo es distinto del de %1.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Use This File</source>
        <translation>Usar este archivo</translation>
    </message>
    <message>
        <source>Your edits are kept, but may not fit this file.</source>
        <translation>Sus ediciones se conservan, pero puede que no encajen con este archivo.</translation>
    </message>
    <message>
        <source>This computer may be too slow for the analysis. To try anyway, start it again.</source>
        <translation>Este equipo puede ser demasiado lento para el análisis. Para intentarlo de todos modos, inícielo otra vez.</translation>
    </message>
    <message>
        <source>Continue with %1?</source>
        <translation>¿Continuar con %1?</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message numerus="yes">
        <source>%n selected videos are left.</source>
        <translation>
            <numerusform>Queda %n vídeo seleccionado.</numerusform>
            <numerusform>Quedan %n vídeos seleccionados.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is no longer in the library. Import it to look at its shots.</source>
        <translation>%1 ya no está en la biblioteca. Impórtelo para revisar sus planos.</translation>
    </message>
    <message>
        <source>Language of the System</source>
        <translation>Idioma del sistema</translation>
    </message>
    <message>
        <source>The crop track was saved.</source>
        <translation>Se guardó la pista de encuadre.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Open Crop Track</source>
        <translation>Abrir pista de encuadre</translation>
    </message>
    <message>
        <source>Crop tracks</source>
        <translation>Pistas de encuadre</translation>
    </message>
    <message>
        <source>The file for %1 was saved.</source>
        <translation>Se guardó el archivo para %1.</translation>
    </message>
</context>
<context>
    <name>MediaBackendLoader</name>
    <message>
        <source>Cannot load the video engine: %1.</source>
        <translation>No se puede cargar el motor de vídeo: %1.</translation>
    </message>
</context>
<context>
    <name>MediaLibrary</name>
    <message>
        <source>There are no videos in %1.</source>
        <translation>No hay vídeos en %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n videos in %1 were left out: their names are not valid UTF-8. Rename them.</source>
        <translation>
            <numerusform>Se ha omitido %n vídeo de %1: su nombre no es UTF-8 válido. Cámbielo.</numerusform>
            <numerusform>Se han omitido %n vídeos de %1: sus nombres no son UTF-8 válido. Cámbielos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaLibraryModel</name>
    <message>
        <source>Drop videos here</source>
        <translation>Soltar vídeos aquí</translation>
    </message>
    <message>
        <source>%1 was not found. Right-click to find it.</source>
        <translation>No se encontró %1. Clic derecho para buscarlo.</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Abriendo…</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Archivo no encontrado</translation>
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
        <translation>Buscar archivo…</translation>
    </message>
    <message>
        <source>Auto Reframe…</source>
        <translation>Auto Reframe…</translation>
    </message>
    <message>
        <source>Reframe All…</source>
        <translation>Reencuadrar todo…</translation>
    </message>
    <message>
        <source>Save Crop Track…</source>
        <translation>Guardar pista de encuadre…</translation>
    </message>
    <message>
        <source>Open Crop Track…</source>
        <translation>Abrir pista de encuadre…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Remove from Library</source>
        <translation>Quitar de la biblioteca</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Drop videos here</source>
        <translation>Soltar vídeos aquí</translation>
    </message>
    <message>
        <source>or click to choose files</source>
        <translation>o hacer clic para elegir archivos</translation>
    </message>
</context>
<context>
    <name>MediaLoader</name>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>No se puede abrir %1: %2.</translation>
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
        <translation>quedan %1 s</translation>
    </message>
    <message>
        <source>%1 min %2 s left</source>
        <translation>quedan %1 min %2 s</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>quedan %1 h %2 min</translation>
    </message>
    <message numerus="yes">
        <source>%n of your edits are not in this cut of the video</source>
        <translation>
            <numerusform>%n edición no está en este montaje del vídeo</numerusform>
            <numerusform>%n ediciones no están en este montaje del vídeo</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OutputNames</name>
    <message>
        <source>There is no %1. Use %2.</source>
        <translation>No existe %1. Usar %2.</translation>
    </message>
    <message>
        <source>Enter a file name.</source>
        <translation>Escribir un nombre de archivo.</translation>
    </message>
</context>
<context>
    <name>OutputOptions</name>
    <message>
        <source>--size takes even numbers up to 16384 such as 1080x1920, or a height such as 1920p; &quot;%1&quot; is neither.</source>
        <translation>--size admite números pares hasta 16384, como 1080x1920, o una altura como 1920p; «%1» no es ninguna de las dos cosas.</translation>
    </message>
    <message>
        <source>--fps takes a number from 1 to 240; &quot;%1&quot; is none.</source>
        <translation>--fps admite un número de 1 a 240; «%1» no lo es.</translation>
    </message>
    <message>
        <source>--quality takes a number from 0 to 100; &quot;%1&quot; is none.</source>
        <translation>--quality admite un número de 0 a 100; «%1» no lo es.</translation>
    </message>
    <message>
        <source>--bitrate takes bits a second from 10k to 300M; &quot;%1&quot; are none.</source>
        <translation>--bitrate admite bits por segundo de 10k a 300M; «%1» no lo son.</translation>
    </message>
    <message>
        <source>--codec takes h264, hevc or av1; &quot;%1&quot; is none of them.</source>
        <translation>--codec admite h264, hevc o av1; «%1» no es ninguno de ellos.</translation>
    </message>
    <message>
        <source>--encoder takes auto, software, vaapi, nvenc or qsv; &quot;%1&quot; is none of them.</source>
        <translation>--encoder admite auto, software, vaapi, nvenc o qsv; «%1» no es ninguno de ellos.</translation>
    </message>
    <message>
        <source>--hdr takes keep or tonemap; &quot;%1&quot; is neither.</source>
        <translation>--hdr admite keep o tonemap; «%1» no es ninguno de los dos.</translation>
    </message>
    <message>
        <source>--sound takes copy or encode; &quot;%1&quot; is neither.</source>
        <translation>--sound admite copy o encode; «%1» no es ninguno de los dos.</translation>
    </message>
    <message>
        <source>--loudness takes LUFS from -70 to -5; &quot;%1&quot; are none.</source>
        <translation>--loudness admite LUFS de -70 a -5; «%1» no lo son.</translation>
    </message>
    <message>
        <source>--quality and --bitrate exclude each other.</source>
        <translation>--quality y --bitrate se excluyen entre sí.</translation>
    </message>
    <message>
        <source>--loudness changes the sound, which --sound copy does not.</source>
        <translation>--loudness cambia el sonido y --sound copy no.</translation>
    </message>
    <message>
        <source>--hdr keep needs --codec hevc.</source>
        <translation>--hdr keep necesita --codec hevc.</translation>
    </message>
    <message>
        <source>--hdr keep needs --encoder software or auto.</source>
        <translation>--hdr keep necesita --encoder software o auto.</translation>
    </message>
    <message>
        <source>Size of the result, or its height, such as 1080x1920 or 1920p; as large as the crop when not given.</source>
        <translation>Tamaño del resultado, o su altura, como 1080x1920 o 1920p; tan grande como el encuadre si no se indica.</translation>
    </message>
    <message>
        <source>Frames a second of the result; those of the source when not given.</source>
        <translation>Fotogramas por segundo del resultado; los del original si no se indica.</translation>
    </message>
    <message>
        <source>Constant quality from 0 to 100, about alike in each codec, instead of a bit rate.</source>
        <translation>Calidad constante de 0 a 100, parecida en todos los códecs, en lugar de una tasa de bits.</translation>
    </message>
    <message>
        <source>Bits a second of the picture, such as 800k or 6M; those of the source when not given.</source>
        <translation>Bits por segundo de la imagen, como 800k o 6M; los del original si no se indica.</translation>
    </message>
    <message>
        <source>Codec of the picture: h264, hevc or av1 (h264).</source>
        <translation>Códec de la imagen: h264, hevc o av1 (h264).</translation>
    </message>
    <message>
        <source>What encodes the picture: software, vaapi, nvenc, qsv, or auto: hardware if ten frames of the video show that it works (software).</source>
        <translation>Qué codifica la imagen: software, vaapi, nvenc, qsv o auto: hardware si diez fotogramas del vídeo muestran que funciona (software).</translation>
    </message>
    <message>
        <source>What becomes of a picture in high dynamic range: tonemap to the usual range, or keep, as 10-bit HEVC (tonemap).</source>
        <translation>Qué se hace con una imagen de alto rango dinámico: tonemap al rango habitual, o keep, como HEVC de 10 bits (tonemap).</translation>
    </message>
    <message>
        <source>Bring the sound to this loudness in LUFS (EBU R128), such as -14.</source>
        <translation>Llevar el sonido a esta sonoridad en LUFS (EBU R128), como -14.</translation>
    </message>
    <message>
        <source>What becomes of the sound: encode as AAC, or copy bit for bit where MP4 can hold it. When not given, AAC in mono or stereo that nothing changes is copied, and any other sound is encoded.</source>
        <translation>Qué se hace con el sonido: encode lo codifica como AAC, copy lo copia bit a bit cuando MP4 puede contenerlo. Si no se indica, el AAC en mono o estéreo que nada cambia se copia y cualquier otro sonido se codifica.</translation>
    </message>
</context>
<context>
    <name>PreviewOverlay</name>
    <message>
        <source>Frame %1</source>
        <translation>Fotograma %1</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>Plano %1 de %2</translation>
    </message>
    <message>
        <source>confidence %1</source>
        <translation>confianza %1</translation>
    </message>
</context>
<context>
    <name>QueueBar</name>
    <message>
        <source>%1 of %2 done</source>
        <translation>%1 de %2 listos</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n con error</numerusform>
            <numerusform>%n con error</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n done</source>
        <translation>
            <numerusform>%n listo</numerusform>
            <numerusform>%n listos</numerusform>
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
            <numerusform>%n por revisar</numerusform>
            <numerusform>%n por revisar</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Progress of all exports</source>
        <translation>Progreso de todas las exportaciones</translation>
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
        <translation>Continuar con las exportaciones</translation>
    </message>
    <message>
        <source>Interrupt the exports for a while</source>
        <translation>Interrumpir las exportaciones por un tiempo</translation>
    </message>
    <message>
        <source>Cancel all</source>
        <translation>Cancelar todo</translation>
    </message>
    <message>
        <source>Cancel all exports of Reframe All that are not done</source>
        <translation>Cancelar todas las exportaciones de Reencuadrar todo que no estén listas</translation>
    </message>
    <message>
        <source>Retry failed</source>
        <translation>Reintentar errores</translation>
    </message>
    <message>
        <source>Export those that failed again</source>
        <translation>Exportar de nuevo las que dieron error</translation>
    </message>
    <message>
        <source>Look at them</source>
        <translation>Revisarlos</translation>
    </message>
    <message>
        <source>Open the first video that has doubtful shots</source>
        <translation>Abrir el primer vídeo que tenga planos dudosos</translation>
    </message>
    <message numerus="yes">
        <source>%n without all edits</source>
        <translation>
            <numerusform>%n sin todas las ediciones</numerusform>
            <numerusform>%n sin todas las ediciones</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReframeJob</name>
    <message>
        <source>%1: %2 analysed</source>
        <translation>%1: %2 analizados</translation>
    </message>
    <message>
        <source>%1: %2 -&gt; %3</source>
        <translation>%1: %2 -&gt; %3</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 fotograma</translation>
    </message>
    <message numerus="yes">
        <source>%n frames</source>
        <translation>
            <numerusform>%n fotograma</numerusform>
            <numerusform>%n fotogramas</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has no moving picture.</source>
        <translation>No se puede reencuadrar %1: no tiene imagen en movimiento.</translation>
    </message>
    <message>
        <source>Cannot follow %1 in %2: %3.</source>
        <translation>No se puede seguir %1 en %2: %3.</translation>
    </message>
    <message>
        <source>Cannot write %1: it is one of the inputs.</source>
        <translation>No se puede escribir %1: es una de las entradas.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it is too short (%2; 32 are needed).</source>
        <translation>No se puede reencuadrar %1: es demasiado corto (%2; se necesitan 32).</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has the aspect ratio %2:%3 already.</source>
        <translation>No se puede reencuadrar %1: ya tiene la relación de aspecto %2:%3.</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds %2 of the %3 of %4.</source>
        <translation>No se puede usar %1: contiene %2 y se esperaban %3 (%4).</translation>
    </message>
    <message>
        <source>Cannot reframe %1: the analysis found nothing.</source>
        <translation>No se puede reencuadrar %1: el análisis no encontró nada.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: there is no video in this folder.</source>
        <translation>No se puede reencuadrar %1: no hay ningún vídeo en esta carpeta.</translation>
    </message>
    <message>
        <source>Cannot draw the contact sheet of %1.</source>
        <translation>No se puede dibujar la hoja de contactos de %1.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>No se puede reencuadrar %1: %2.</translation>
    </message>
    <message>
        <source>%1: %2 -&gt; %3 (encoded by %4)</source>
        <translation>%1: %2 -&gt; %3 (codificado por %4)</translation>
    </message>
    <message>
        <source>frames %1 to %2</source>
        <translation>fotogramas %1 a %2</translation>
    </message>
    <message>
        <source>%1: skipped, up to date: %2</source>
        <translation>%1: omitido, ya está al día: %2</translation>
    </message>
    <message>
        <source>The picture of %1 is enlarged: its size, %2 x %3, is above that of the crop, %4 x %5.</source>
        <translation>La imagen de %1 se amplía: su tamaño, %2 x %3, supera el del encuadre, %4 x %5.</translation>
    </message>
</context>
<context>
    <name>ReframeJobParts</name>
    <message>
        <source>Cannot take that part of %1: %2.</source>
        <translation>No se puede tomar esa parte de %1: %2.</translation>
    </message>
    <message>
        <source>Cannot join %1: pictures are for an analysis, and with --apply there is none.</source>
        <translation>No se puede unir %1: las imágenes son para un análisis y con --apply no lo hay.</translation>
    </message>
    <message>
        <source>Cannot join %1: parts of the video need the crop track that they were made with (--apply).</source>
        <translation>No se puede unir %1: las partes del vídeo necesitan la pista de recorte con la que se hicieron (--apply).</translation>
    </message>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>No se puede analizar %1: %2.</translation>
    </message>
</context>
<context>
    <name>ReframeOptions</name>
    <message>
        <source>Aspect ratio of the result (9:16); several with commas between them: the video is looked at once.</source>
        <translation>Relación de aspecto del resultado (9:16); varias separadas por comas: el vídeo se mira una sola vez.</translation>
    </message>
    <message>
        <source>How readily the crop follows: auto, fast or slow (auto).</source>
        <translation>Con qué rapidez sigue el encuadre: auto, fast o slow (auto).</translation>
    </message>
    <message>
        <source>Where several people talk, follow who speaks: auto or off (auto).</source>
        <translation>Cuando hablan varias personas, seguir a quien habla: auto u off (auto).</translation>
    </message>
    <message>
        <source>Where to write the video; beside the input when not given.</source>
        <translation>Dónde escribir el vídeo; junto a la entrada si no se indica.</translation>
    </message>
    <message>
        <source>Write the crop of every frame, as .json or .csv.</source>
        <translation>Escribir el encuadre de cada fotograma, como .json o .csv.</translation>
    </message>
    <message>
        <source>Write the crop as a project or as keyframes for another program: .mlt, .kdenlive, .fcpxml, .txt (After Effects) or .ffscript (ffmpeg). A suffix alone, such as mlt, names the file after the video. May be given several times.</source>
        <translation>Escribir el encuadre como proyecto o como fotogramas clave para otro programa: .mlt, .kdenlive, .fcpxml, .txt (After Effects) o .ffscript (ffmpeg). Un sufijo solo, como mlt, da al archivo el nombre del vídeo. Se puede indicar varias veces.</translation>
    </message>
    <message>
        <source>Take the crops from FILE instead of analysing.</source>
        <translation>Tomar los encuadres de FILE en lugar de analizar.</translation>
    </message>
    <message>
        <source>Decide as FILE says (.json): what to follow, to avoid, where to hold the crop or to show the whole picture.</source>
        <translation>Decidir como indica FILE (.json): qué seguir, qué evitar, dónde fijar el encuadre o mostrar la imagen completa.</translation>
    </message>
    <message>
        <source>Write what --choices and --follow decided to FILE (.json), with what its pictures look like, for this or another cut of the video.</source>
        <translation>Escribir en FILE (.json) lo que decidieron --choices y --follow, con el aspecto de sus imágenes, para este u otro montaje del vídeo.</translation>
    </message>
    <message>
        <source>Follow what is at the point X,Y, or in the box from X,Y of the size W,H, through its shot. TIME in seconds, or a frame (75f); the place in pixels, or in fractions of the picture. May be given several times.</source>
        <translation>Seguir lo que está en el punto X,Y, o en el recuadro desde X,Y de tamaño W,H, durante todo su plano. TIME en segundos, o un fotograma (75f); el lugar en píxeles o en fracciones de la imagen. Se puede indicar varias veces.</translation>
    </message>
    <message>
        <source>Write the source with the crop drawn: a contact sheet as .png, or all of it, with sound and with what the analysis found, as .mp4.</source>
        <translation>Escribir el original con el encuadre dibujado: una hoja de contactos como .png, o todo, con sonido y con lo que encontró el análisis, como .mp4.</translation>
    </message>
    <message>
        <source>Write a page (.html) that shows what the analysis found.</source>
        <translation>Escribir una página (.html) que muestra lo que encontró el análisis.</translation>
    </message>
    <message>
        <source>Keep what an analysis saw in FOLDER, or nowhere, instead of the usual folder.</source>
        <translation>Guardar lo que vio un análisis en FOLDER, o en ningún sitio, en lugar de la carpeta habitual.</translation>
    </message>
    <message>
        <source>Use the optional detectors in FOLDER, or none, instead of those that are installed.</source>
        <translation>Usar los detectores opcionales de FOLDER, o ninguno, en lugar de los instalados.</translation>
    </message>
    <message>
        <source>Analyse only; write no video.</source>
        <translation>Solo analizar; no escribir vídeo.</translation>
    </message>
    <message>
        <source>Replace existing files instead of adding a number to the name.</source>
        <translation>Reemplazar los archivos existentes en lugar de añadir un número al nombre.</translation>
    </message>
    <message>
        <source>Print progress and results as JSON lines.</source>
        <translation>Mostrar el progreso y los resultados como líneas JSON.</translation>
    </message>
    <message>
        <source>Print errors only.</source>
        <translation>Mostrar solo los errores.</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Mostrar este texto.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar la versión.</translation>
    </message>
    <message>
        <source>%1
Try reframe --help.</source>
        <translation>%1
Consultar reframe --help.</translation>
    </message>
    <message>
        <source>%1 or .%2</source>
        <translation>%1 o .%2</translation>
    </message>
    <message>
        <source>No input file was given.</source>
        <translation>No se indicó ningún archivo de entrada.</translation>
    </message>
    <message>
        <source>--output and --no-video exclude each other.</source>
        <translation>--output y --no-video se excluyen entre sí.</translation>
    </message>
    <message>
        <source>--report shows what an analysis found, and with --apply there is none.</source>
        <translation>--report muestra lo que encontró un análisis, y con --apply no hay ninguno.</translation>
    </message>
    <message>
        <source>--apply takes one input.</source>
        <translation>--apply admite una sola entrada.</translation>
    </message>
    <message>
        <source>--apply takes one aspect ratio.</source>
        <translation>--apply admite una sola relación de aspecto.</translation>
    </message>
    <message>
        <source>--save-choices takes one aspect ratio.</source>
        <translation>--save-choices admite una sola relación de aspecto.</translation>
    </message>
    <message>
        <source>--choices and --follow take one input.</source>
        <translation>--choices y --follow admiten una sola entrada.</translation>
    </message>
    <message>
        <source>--choices and --follow guide the analysis, and with --apply there is none.</source>
        <translation>--choices y --follow guían el análisis, y con --apply no hay ninguno.</translation>
    </message>
    <message>
        <source>--save-choices writes what --choices and --follow decided, and neither was given.</source>
        <translation>--save-choices escribe lo que decidieron --choices y --follow, y no se indicó ninguno.</translation>
    </message>
    <message>
        <source>--edit-list takes the name of a .%1 file or such a suffix alone; %2 is neither.</source>
        <translation>--edit-list admite el nombre de un archivo .%1 o solo uno de esos sufijos; %2 no es ninguna de las dos cosas.</translation>
    </message>
    <message>
        <source>With several inputs or aspect ratios --edit-list takes a suffix alone; write %1 instead of %2.</source>
        <translation>Con varias entradas o relaciones de aspecto, --edit-list admite solo un sufijo; escribir %1 en lugar de %2.</translation>
    </message>
    <message>
        <source>With several inputs or aspect ratios %1 must name an existing folder; %2 is none.</source>
        <translation>Con varias entradas o relaciones de aspecto, %1 debe nombrar una carpeta existente; %2 no lo es.</translation>
    </message>
    <message>
        <source>%1 takes an existing folder or the name of a .%2 file; %3 is neither.</source>
        <translation>%1 admite una carpeta existente o el nombre de un archivo .%2; %3 no es ninguna de las dos cosas.</translation>
    </message>
    <message>
        <source>%1 begins like an option; as a file it is written ./%1.</source>
        <translation>%1 empieza como una opción; como archivo se escribe ./%1.</translation>
    </message>
    <message>
        <source>Turns a video into another aspect ratio and keeps its subject in the picture.</source>
        <translation>Convierte un vídeo a otra relación de aspecto y mantiene su sujeto dentro de la imagen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no aspect ratio; write two whole numbers such as 9:16, neither more than 20 times the other.</source>
        <translation>«%1» no es una relación de aspecto; escribir dos números enteros como 9:16, ninguno mayor que 20 veces el otro.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no speed; it is auto, fast or slow.</source>
        <translation>«%1» no es una velocidad; puede ser auto, fast o slow.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nothing to follow; write a time and a place such as 3.5@640,360, or a time and a box such as 3.5@0.4,0.2,0.1,0.5.</source>
        <translation>«%1» no indica nada que seguir; escribir un tiempo y un lugar como 3.5@640,360, o un tiempo y un recuadro como 3.5@0.4,0.2,0.1,0.5.</translation>
    </message>
    <message>
        <source>--speaker takes auto or off; &quot;%1&quot; is neither.</source>
        <translation>--speaker admite auto u off; «%1» no es ninguno de los dos.</translation>
    </message>
    <message>
        <source>--status must not name an input.</source>
        <translation>--status no debe indicar una entrada.</translation>
    </message>
    <message>
        <source>The video files to reframe; a folder is all videos in it.</source>
        <translation>Los archivos de vídeo que se reencuadran; una carpeta son todos los vídeos que contiene.</translation>
    </message>
    <message>
        <source>--frames takes one input.</source>
        <translation>--frames admite una entrada.</translation>
    </message>
    <message>
        <source>--frames takes one aspect ratio.</source>
        <translation>--frames admite una relación de aspecto.</translation>
    </message>
    <message>
        <source>--frames with --apply renders a part of the video, and --no-video excludes that.</source>
        <translation>--frames con --apply renderiza una parte del vídeo, y --no-video lo excluye.</translation>
    </message>
    <message>
        <source>--frames does a part of the work; files about the whole video, and choices, are for --join.</source>
        <translation>--frames hace una parte del trabajo; los archivos sobre el vídeo completo y las decisiones son para --join.</translation>
    </message>
    <message>
        <source>--join takes a video and then its parts.</source>
        <translation>--join admite un vídeo y después sus partes.</translation>
    </message>
    <message>
        <source>--frames takes frames such as 0-2999, or a part such as 3/8; &quot;%1&quot; is neither.</source>
        <translation>--frames admite fotogramas como 0-2999 o una parte como 3/8; «%1» no es ninguna de las dos cosas.</translation>
    </message>
    <message>
        <source>The name of an input file is empty.</source>
        <translation>El nombre de un archivo de entrada está vacío.</translation>
    </message>
    <message>
        <source>--%1 needs a value, and an empty one was given.</source>
        <translation>--%1 necesita un valor y se ha indicado uno vacío.</translation>
    </message>
</context>
<context>
    <name>ReframeParts</name>
    <message>
        <source>Cannot join %1: it is a part of another video than %2.</source>
        <translation>No se puede unir %1: es una parte de un vídeo distinto de %2.</translation>
    </message>
    <message>
        <source>Cannot join %1: it was made with other settings or by another version (&quot;%2&quot;; now &quot;%3&quot;).</source>
        <translation>No se puede unir %1: se hizo con otros ajustes o con otra versión («%2»; ahora «%3»).</translation>
    </message>
    <message>
        <source>Cannot join the parts of %1: the frames %2 to %3 are missing.</source>
        <translation>No se pueden unir las partes de %1: faltan los fotogramas %2 a %3.</translation>
    </message>
    <message>
        <source>Cannot join %1 and %2: both have the frames %3 to %4.</source>
        <translation>No se pueden unir %1 y %2: ambos tienen los fotogramas %3 a %4.</translation>
    </message>
    <message>
        <source>Cannot join %1: it is no part that --frames wrote.</source>
        <translation>No se puede unir %1: no es una parte escrita por --frames.</translation>
    </message>
    <message>
        <source>Cannot join %1 and %2: only one of them holds pictures of the analysis.</source>
        <translation>No se pueden unir %1 y %2: solo uno de ellos contiene imágenes del análisis.</translation>
    </message>
</context>
<context>
    <name>ReframeProgram</name>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>No se puede reencuadrar %1: %2.</translation>
    </message>
</context>
<context>
    <name>ReframeReporter</name>
    <message>
        <source>%1: analyzing %2 %%3</source>
        <translation>%1: analizando %2&#xa0;%%3</translation>
    </message>
    <message>
        <source>%1: drawing the preview %2 %%3</source>
        <translation>%1: dibujando la vista previa %2&#xa0;%%3</translation>
    </message>
    <message>
        <source>%1: rendering %2 %%3</source>
        <translation>%1: generando el vídeo %2&#xa0;%%3</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Advertencia: %1</translation>
    </message>
    <message>
        <source>Cannot write to standard output: %1.</source>
        <translation>No se puede escribir en la salida estándar: %1.</translation>
    </message>
    <message>
        <source>an error occurred</source>
        <translation>se produjo un error</translation>
    </message>
    <message>
        <source>%1: interrupted.</source>
        <translation>%1: interrumpido.</translation>
    </message>
    <message>
        <source>%1: interrupted after %2 was written.</source>
        <translation>%1: interrumpido después de escribir %2.</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Cannot write to the folder %1.</source>
        <translation>No se puede escribir en la carpeta %1.</translation>
    </message>
    <message>
        <source>Save To</source>
        <translation>Guardar en</translation>
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
        <translation>No se puede escribir %1: %2.</translation>
    </message>
</context>
<context>
    <name>TimeLeft</name>
    <message>
        <source>, %1 s left</source>
        <translation>, quedan %1 s</translation>
    </message>
    <message>
        <source>, %1 min %2 s left</source>
        <translation>, quedan %1 min %2 s</translation>
    </message>
</context>
</TS>
