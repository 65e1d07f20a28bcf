<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Auto Reframe</source>
        <translation>Über Auto Reframe</translation>
    </message>
    <message>
        <source>Auto Reframe %1</source>
        <translation>Auto Reframe %1</translation>
    </message>
    <message>
        <source>Keeps the subject of a video in the picture. Everything runs on this computer.</source>
        <translation>Hält das Motiv eines Videos im Bild. Alles läuft auf diesem Computer.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Lizenzen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>AnalysisPlot</name>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>top</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>The crop&apos;s path over the evidence</source>
        <translation>Weg des Ausschnitts über den Hinweisen</translation>
    </message>
    <message>
        <source>Evidence by signal</source>
        <translation>Hinweise nach Signal</translation>
    </message>
    <message>
        <source>strong</source>
        <translation>stark</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
</context>
<context>
    <name>AnalysisReport</name>
    <message>
        <source>1 frame</source>
        <translation>1 Bild</translation>
    </message>
    <message numerus="yes">
        <source>%n frames</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
    <message>
        <source>The crop</source>
        <translation>Der Ausschnitt</translation>
    </message>
    <message>
        <source>Frames of the video with the crop drawn</source>
        <translation>Bilder des Videos mit eingezeichnetem Ausschnitt</translation>
    </message>
    <message>
        <source>Path of the crop</source>
        <translation>Weg des Ausschnitts</translation>
    </message>
    <message>
        <source>Time runs from left to right. The left of the picture is at the bottom, its right at the top. A brighter spot has more evidence.</source>
        <translation>Die Zeit läuft von links nach rechts. Unten liegt die linke Seite des Bildes, oben die rechte. Je heller eine Stelle, desto mehr spricht für sie.</translation>
    </message>
    <message>
        <source>Time runs from left to right. The bottom of the picture is at the bottom, its top at the top. A brighter spot has more evidence.</source>
        <translation>Die Zeit läuft von links nach rechts. Unten liegt der untere Rand des Bildes, oben der obere. Je heller eine Stelle, desto mehr spricht für sie.</translation>
    </message>
    <message>
        <source>centre of the crop</source>
        <translation>Mitte des Ausschnitts</translation>
    </message>
    <message>
        <source>edges of the crop</source>
        <translation>Ränder des Ausschnitts</translation>
    </message>
    <message>
        <source>centre with the most evidence</source>
        <translation>Mitte, für die am meisten spricht</translation>
    </message>
    <message>
        <source>start of a shot, numbered above</source>
        <translation>Beginn einer Einstellung, oben nummeriert</translation>
    </message>
    <message>
        <source>Evidence by signal</source>
        <translation>Hinweise nach Signal</translation>
    </message>
    <message>
        <source>How much stronger each signal is at the centre with the most evidence than at an average place.</source>
        <translation>Um wie viel stärker jedes Signal an der Mitte ist, für die am meisten spricht, als an einer durchschnittlichen Stelle.</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Travel is the sum of all movements of the crop in the shot, in percent of the width of the picture. Confidence falls if the evidence outside of the crop is as strong as inside, or if single signals want the crop elsewhere; where it is low, look at the shot.</source>
        <translation>Der Weg ist die Summe aller Bewegungen des Ausschnitts in der Einstellung, in Prozent der Bildbreite. Die Konfidenz sinkt, wenn Hinweise außerhalb des Ausschnitts so stark sind wie innerhalb oder Signale den Ausschnitt anderswo haben wollen; wo sie niedrig ist, die Einstellung prüfen.</translation>
    </message>
    <message>
        <source>Travel is the sum of all movements of the crop in the shot, in percent of the height of the picture. Confidence falls if the evidence outside of the crop is as strong as inside, or if single signals want the crop elsewhere; where it is low, look at the shot.</source>
        <translation>Der Weg ist die Summe aller Bewegungen des Ausschnitts in der Einstellung, in Prozent der Bildhöhe. Die Konfidenz sinkt, wenn Hinweise außerhalb des Ausschnitts so stark sind wie innerhalb oder Signale den Ausschnitt anderswo haben wollen; wo sie niedrig ist, die Einstellung prüfen.</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>First frame</source>
        <translation>Erstes Bild</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Dominant signal</source>
        <translation>Stärkstes Signal</translation>
    </message>
    <message>
        <source>Travel of the crop</source>
        <translation>Weg des Ausschnitts</translation>
    </message>
    <message>
        <source>Confidence</source>
        <translation>Konfidenz</translation>
    </message>
    <message>
        <source>%1 at %2:%3</source>
        <translation>%1 in %2:%3</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Dateigröße</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Bilder pro Sekunde</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Ausschnitt</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>fast</source>
        <translation>schnell</translation>
    </message>
    <message>
        <source>slow</source>
        <translation>langsam</translation>
    </message>
    <message>
        <source>auto</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>none: the crop is centred</source>
        <translation>keines: Der Ausschnitt ist zentriert</translation>
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
Hilfe: auto-reframe --help.</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Diesen Text anzeigen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version anzeigen.</translation>
    </message>
    <message>
        <source>Turns videos into another aspect ratio and keeps their subject in the picture.
The command line program for many files at once is reframe.</source>
        <translation>Bringt Videos in ein anderes Seitenverhältnis und hält ihr Motiv im Bild.
Das Kommandozeilenprogramm für viele Dateien auf einmal heißt reframe.</translation>
    </message>
    <message>
        <source>Videos to open the library with.</source>
        <translation>Videos, mit denen die Bibliothek geöffnet wird.</translation>
    </message>
    <message>
        <source>Language of the texts: %1. Otherwise the one chosen in the menu, or that of the system.</source>
        <translation>Sprache der Texte: %1. Sonst die im Menü gewählte oder die des Systems.</translation>
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
        <translation>Feed, Hochformat</translation>
    </message>
    <message>
        <source>Feed, square</source>
        <translation>Feed, Quadrat</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Kino</translation>
    </message>
    <message>
        <source>Widescreen</source>
        <translation>Breitbild</translation>
    </message>
    <message>
        <source>Classic television</source>
        <translation>Klassisches Fernsehen</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Langsam</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>As large as the crop</source>
        <translation>So groß wie der Ausschnitt</translation>
    </message>
    <message>
        <source>Shorter side %1 pixels</source>
        <translation>Kürzere Seite %1 Pixel</translation>
    </message>
    <message>
        <source>Choose an aspect ratio.</source>
        <translation>Ein Seitenverhältnis wählen.</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>Einen Ordner wählen.</translation>
    </message>
    <message>
        <source>The selected videos have this aspect ratio already.</source>
        <translation>Die ausgewählten Videos haben dieses Seitenverhältnis bereits.</translation>
    </message>
    <message numerus="yes">
        <source>%n files: %1</source>
        <translation>
            <numerusform>%n Datei: %1</numerusform>
            <numerusform>%n Dateien: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reframe %n Videos</source>
        <translation>
            <numerusform>%n Video neu kadrieren</numerusform>
            <numerusform>%n Videos neu kadrieren</numerusform>
        </translation>
    </message>
    <message>
        <source>Aspect Ratios</source>
        <translation>Seitenverhältnisse</translation>
    </message>
    <message>
        <source>Motion Speed</source>
        <translation>Bewegungstempo</translation>
    </message>
    <message>
        <source>How readily the crop follows the subject</source>
        <translation>Wie schnell der Ausschnitt dem Motiv folgt</translation>
    </message>
    <message>
        <source>Output Size</source>
        <translation>Ausgabegröße</translation>
    </message>
    <message>
        <source>The size of the exported videos</source>
        <translation>Die Größe der exportierten Videos</translation>
    </message>
    <message>
        <source>File Name, with %1</source>
        <translation>Dateiname, mit %1</translation>
    </message>
    <message>
        <source>What stands in braces is replaced for each file.</source>
        <translation>Was in geschweiften Klammern steht, wird für jede Datei ersetzt.</translation>
    </message>
    <message>
        <source>The folder for the exported videos</source>
        <translation>Der Ordner für die exportierten Videos</translation>
    </message>
    <message>
        <source>Reframe All</source>
        <translation>Alle neu kadrieren</translation>
    </message>
    <message>
        <source>%1 pixels high</source>
        <translation>%1 Pixel hoch</translation>
    </message>
    <message numerus="yes">
        <source>%n files, enlarged beyond their crops: %1</source>
        <translation>
            <numerusform>%n Datei, größer als ihr Ausschnitt: %1</numerusform>
            <numerusform>%n Dateien, größer als ihre Ausschnitte: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CropFinder</name>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>%1 kann nicht neu kadriert werden: %2.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has no moving picture.</source>
        <translation>%1 kann nicht neu kadriert werden: Die Datei hat kein bewegtes Bild.</translation>
    </message>
    <message>
        <source>Cannot use %1: it has the crops of %2 frames, and %3 has %4 frames.</source>
        <translation>%1 kann nicht verwendet werden: Die Datei enthält die Ausschnitte von %2 Bildern, %3 hat aber %4 Bilder.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has the aspect ratio %2 already.</source>
        <translation>%1 kann nicht neu kadriert werden: Das Video hat das Seitenverhältnis %2 bereits.</translation>
    </message>
    <message numerus="yes">
        <source>Cannot reframe %1: it has only %n frames; %2 are needed.</source>
        <translation>
            <numerusform>%1 kann nicht neu kadriert werden: Das Video hat nur %n Bild, nötig sind %2.</numerusform>
            <numerusform>%1 kann nicht neu kadriert werden: Das Video hat nur %n Bilder, nötig sind %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CropRenderSettings</name>
    <message>
        <source>its picture of %1 x %2 pixels is too small</source>
        <translation>das Bild von %1 x %2 Pixeln ist zu klein</translation>
    </message>
</context>
<context>
    <name>CropTrackDialog</name>
    <message>
        <source>Enter a file name.</source>
        <translation>Einen Dateinamen eingeben.</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>Einen Ordner wählen.</translation>
    </message>
    <message>
        <source>Save Crop Track</source>
        <translation>Ausschnittspur speichern</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>The file gets a number if there is one of this name</source>
        <translation>Gibt es schon eine Datei dieses Namens, wird eine Nummer angehängt</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>The command line reads both</source>
        <translation>Die Kommandozeile liest beide</translation>
    </message>
    <message>
        <source>The folder for the crop track</source>
        <translation>Der Ordner für die Ausschnittspur</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Export for %1</source>
        <translation>Export für %1</translation>
    </message>
    <message>
        <source>The folder for the project or the keyframes</source>
        <translation>Der Ordner für das Projekt oder die Keyframes</translation>
    </message>
</context>
<context>
    <name>CropTrackFile</name>
    <message>
        <source>it is a folder</source>
        <translation>das ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>%1 kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>Cannot use %1: it is too large for a crop track of a video of %2 frames.</source>
        <translation>%1 kann nicht verwendet werden: Die Datei ist zu groß für eine Ausschnittspur eines Videos mit %2 Bildern.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds no frames.</source>
        <translation>%1 kann nicht verwendet werden: Die Datei enthält keine Bilder.</translation>
    </message>
</context>
<context>
    <name>CropTrackParser</name>
    <message>
        <source>Cannot use %1: it is no crop track (line %2).</source>
        <translation>%1 kann nicht verwendet werden: Das ist keine Ausschnittspur (Zeile %2).</translation>
    </message>
    <message>
        <source>Cannot use %1: frame %2 is no rectangle inside the picture.</source>
        <translation>%1 kann nicht verwendet werden: Bild %2 ist kein Rechteck innerhalb des Bildes.</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds more frames than the video, which has %2.</source>
        <translation>%1 kann nicht verwendet werden: Die Datei enthält mehr Bilder als das Video, das %2 hat.</translation>
    </message>
    <message>
        <source>Cannot use %1: it is a crop track of version %2, and this program reads version 1.</source>
        <translation>%1 kann nicht verwendet werden: Das ist eine Ausschnittspur der Version %2, und dieses Programm liest Version 1.</translation>
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
        <translation>%1 wird analysiert</translation>
    </message>
</context>
<context>
    <name>DialogEdits</name>
    <message>
        <source>As large as the crop</source>
        <translation>So groß wie der Ausschnitt</translation>
    </message>
    <message>
        <source>%1 pixels high</source>
        <translation>%1 Pixel hoch</translation>
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
            <numerusform>%n zu prüfen</numerusform>
            <numerusform>%n zu prüfen</numerusform>
        </translation>
    </message>
    <message>
        <source>Progress of %1</source>
        <translation>Fortschritt von %1</translation>
    </message>
    <message>
        <source>Cancel %1</source>
        <translation>%1 abbrechen</translation>
    </message>
    <message>
        <source>Retry %1</source>
        <translation>%1 erneut versuchen</translation>
    </message>
    <message>
        <source>Look at the doubtful shots of %1</source>
        <translation>Fragliche Einstellungen von %1 prüfen</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>%1 im Ordner zeigen</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Paused · %1</source>
        <translation>Angehalten · %1</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Analyzing · %1</source>
        <translation>Analyse · %1</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Wird abgebrochen…</translation>
    </message>
    <message>
        <source>Done · %1</source>
        <translation>Fertig · %1</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Not finished</source>
        <translation>Nicht fertig</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Export it again</source>
        <translation>Noch einmal exportieren</translation>
    </message>
    <message>
        <source>Show the file in its folder</source>
        <translation>Die Datei in ihrem Ordner zeigen</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>Aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Opens the video at these settings and its first doubtful shot; N leads to the next one.</source>
        <translation>Öffnet das Video mit diesen Einstellungen an der ersten fraglichen Stelle; N führt zur nächsten.</translation>
    </message>
</context>
<context>
    <name>ExportForMenu</name>
    <message>
        <source>Export for</source>
        <translation>Export für</translation>
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
        <translation>%1 exportiert</translation>
    </message>
    <message>
        <source>Cannot export %1</source>
        <translation>%1 kann nicht exportiert werden</translation>
    </message>
    <message>
        <source>Videos are being exported</source>
        <translation>Videos werden exportiert</translation>
    </message>
</context>
<context>
    <name>ExportPanel</name>
    <message>
        <source>Exports</source>
        <translation>Exporte</translation>
    </message>
    <message>
        <source>Clear finished</source>
        <translation>Fertige entfernen</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Remove the finished exports from the list; their files stay</source>
        <translation>Fertige Exporte aus der Liste entfernen; ihre Dateien bleiben</translation>
    </message>
    <message>
        <source>Export those that the last run did not finish</source>
        <translation>Exportieren, was beim letzten Mal nicht fertig wurde</translation>
    </message>
    <message>
        <source>Remove those that the last run did not finish from the list</source>
        <translation>Aus der Liste entfernen, was beim letzten Mal nicht fertig wurde</translation>
    </message>
    <message>
        <source>Videos that you export from the Auto Reframe window appear here.</source>
        <translation>Hier erscheinen Videos, die aus dem Fenster Auto Reframe exportiert werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n exports not finished</source>
        <translation>
            <numerusform>%n Export nicht fertig</numerusform>
            <numerusform>%n Exporte nicht fertig</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportRecord</name>
    <message>
        <source>Cannot export: no name or no folder was given.</source>
        <translation>Export nicht möglich: Name oder Ordner fehlt.</translation>
    </message>
    <message>
        <source>Cannot export %1: no picture size was given.</source>
        <translation>%1 kann nicht exportiert werden: Die Bildgröße fehlt.</translation>
    </message>
</context>
<context>
    <name>FarmOptions</name>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>%1 kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>Cannot read the folder %1.</source>
        <translation>Der Ordner %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Of a folder that is an input, take the videos in its subfolders too.</source>
        <translation>Ist eine Eingabe ein Ordner, auch die Videos in seinen Unterordnern nehmen.</translation>
    </message>
    <message>
        <source>Read more inputs from FILE, one a line; - is standard input.</source>
        <translation>Weitere Eingaben aus FILE lesen, eine je Zeile; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>Write progress and results to FILE as JSON lines, whatever is printed.</source>
        <translation>Fortschritt und Ergebnisse als JSON-Zeilen in FILE schreiben, was auch immer ausgegeben wird.</translation>
    </message>
    <message>
        <source>Skip inputs whose results are there already, from the same content, settings and version; replace results of other settings.</source>
        <translation>Eingaben überspringen, deren Ergebnisse aus demselben Inhalt, mit denselben Einstellungen und derselben Version schon da sind; Ergebnisse anderer Einstellungen ersetzen.</translation>
    </message>
    <message>
        <source>Only the frames A to B, counted from 0, or the part K of N: with --apply, render them without sound; otherwise write the pictures that the analysis takes of them (.pictures).</source>
        <translation>Nur die Bilder A bis B, von 0 an gezählt, oder Teil K von N: mit --apply ohne Ton rendern; sonst die Bilder schreiben, die die Analyse von ihnen braucht (.pictures).</translation>
    </message>
    <message>
        <source>The first input is a video, the others are all its parts, as --frames wrote them; the results are those of the whole video.</source>
        <translation>Die erste Eingabe ist ein Video, die anderen sind alle seine Teile, wie --frames sie geschrieben hat; die Ergebnisse sind die des ganzen Videos.</translation>
    </message>
</context>
<context>
    <name>FollowOption</name>
    <message>
        <source>the video ends after %1 s</source>
        <translation>das Video endet nach %1 s</translation>
    </message>
    <message>
        <source>it lies outside the picture of %1x%2 pixels</source>
        <translation>die Stelle liegt außerhalb des Bildes von %1x%2 Pixeln</translation>
    </message>
</context>
<context>
    <name>FoundSignals</name>
    <message>
        <source>motion</source>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>movers</source>
        <translation>Bewegtes</translation>
    </message>
    <message>
        <source>saliency</source>
        <translation>Auffälligkeit</translation>
    </message>
    <message>
        <source>faces</source>
        <translation>Gesichter</translation>
    </message>
    <message>
        <source>detected</source>
        <translation>Erkanntes</translation>
    </message>
    <message>
        <source>motion: what the camera&apos;s own movement does not explain</source>
        <translation>Bewegung: was die Kamerabewegung nicht erklärt</translation>
    </message>
    <message>
        <source>movers: what travels through the shot, however small</source>
        <translation>Bewegtes: was sich durch die Einstellung bewegt, auch wenn es klein ist</translation>
    </message>
    <message>
        <source>saliency: what stands out in a still picture</source>
        <translation>Auffälligkeit: was in einem stehenden Bild hervorsticht</translation>
    </message>
    <message>
        <source>detected: people and animals</source>
        <translation>Erkanntes: Menschen und Tiere</translation>
    </message>
    <message>
        <source>it is not clear who speaks</source>
        <translation>es ist unklar, wer spricht</translation>
    </message>
    <message>
        <source>who speaks is hardly clear</source>
        <translation>wer spricht, ist kaum zu erkennen</translation>
    </message>
    <message>
        <source>nothing stands out</source>
        <translation>nichts sticht hervor</translation>
    </message>
    <message>
        <source>people or animals are in several places</source>
        <translation>Menschen oder Tiere sind an mehreren Stellen</translation>
    </message>
    <message>
        <source>what stands out is in several places</source>
        <translation>mehrere Stellen stechen hervor</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>holds who speaks</source>
        <translation>hält auf die sprechende Person</translation>
    </message>
    <message>
        <source>follows who speaks</source>
        <translation>folgt der sprechenden Person</translation>
    </message>
    <message>
        <source>follows who speaks, with 1 cut</source>
        <translation>folgt der sprechenden Person, mit 1 Schnitt</translation>
    </message>
    <message numerus="yes">
        <source>follows who speaks, with %n cuts</source>
        <translation>
            <numerusform>folgt der sprechenden Person, mit %n Schnitt</numerusform>
            <numerusform>folgt der sprechenden Person, mit %n Schnitten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FramesOption</name>
    <message>
        <source>its last frame is %1</source>
        <translation>sein letztes Bild ist %1</translation>
    </message>
    <message>
        <source>it has %1 frames only</source>
        <translation>es hat nur %1 Bilder</translation>
    </message>
</context>
<context>
    <name>HelpDialog</name>
    <message>
        <source>Import videos</source>
        <translation>Videos importieren</translation>
    </message>
    <message>
        <source>Select all videos</source>
        <translation>Alle Videos auswählen</translation>
    </message>
    <message>
        <source>Select several videos</source>
        <translation>Mehrere Videos auswählen</translation>
    </message>
    <message>
        <source>Ctrl+Click, Shift+Click</source>
        <translation>Strg+Klick, Umschalt+Klick</translation>
    </message>
    <message>
        <source>Reframe the selected video</source>
        <translation>Ausgewähltes Video neu kadrieren</translation>
    </message>
    <message>
        <source>Reframe all selected videos</source>
        <translation>Alle ausgewählten Videos neu kadrieren</translation>
    </message>
    <message>
        <source>Remove from the library</source>
        <translation>Aus der Bibliothek entfernen</translation>
    </message>
    <message>
        <source>Show this list</source>
        <translation>Diese Liste anzeigen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Play, pause</source>
        <translation>Wiedergabe, Pause</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Previous edit point</source>
        <translation>Vorheriger Bearbeitungspunkt</translation>
    </message>
    <message>
        <source>Next edit point</source>
        <translation>Nächster Bearbeitungspunkt</translation>
    </message>
    <message>
        <source>Delete the edit point</source>
        <translation>Bearbeitungspunkt löschen</translation>
    </message>
    <message>
        <source>Previous doubtful shot</source>
        <translation>Vorherige fragliche Einstellung</translation>
    </message>
    <message>
        <source>Next doubtful shot</source>
        <translation>Nächste fragliche Einstellung</translation>
    </message>
    <message>
        <source>Move the crop by a pixel</source>
        <translation>Ausschnitt um 1 Pixel bewegen</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>Move the crop by 10 pixels</source>
        <translation>Ausschnitt um 10 Pixel bewegen</translation>
    </message>
    <message>
        <source>Shift+Arrow keys</source>
        <translation>Umschalt+Pfeiltasten</translation>
    </message>
    <message>
        <source>Back to automatic in this shot</source>
        <translation>Zurück zur Automatik in dieser Einstellung</translation>
    </message>
    <message>
        <source>Point at the middle of the crop</source>
        <translation>Auf die Mitte des Ausschnitts zeigen</translation>
    </message>
    <message>
        <source>Remove the box</source>
        <translation>Rahmen entfernen</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Auto Reframe Window</source>
        <translation>Fenster Auto Reframe</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>HostMediaBackend</name>
    <message>
        <source>Cannot open %1: it has no moving picture.</source>
        <translation>%1 kann nicht geöffnet werden: Die Datei hat kein bewegtes Bild.</translation>
    </message>
</context>
<context>
    <name>KrAutoReframeDialog</name>
    <message>
        <source>AutoReframe_Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Auto Reframe</source>
        <translation>Auto Reframe</translation>
    </message>
    <message>
        <source>Analysis error. Please try again.</source>
        <translation>Fehler bei der Analyse. Bitte noch einmal versuchen.</translation>
    </message>
    <message>
        <source>This video is too short. Please try a different video.</source>
        <translation>Dieses Video ist zu kurz. Bitte ein anderes Video wählen.</translation>
    </message>
    <message>
        <source>You&apos;ve chosen the same aspect ratio as the original video. Please select a different aspect ratio.</source>
        <translation>Das gewählte Seitenverhältnis ist das des Originalvideos. Bitte ein anderes Seitenverhältnis wählen.</translation>
    </message>
    <message>
        <source>Converting video. Please wait...</source>
        <translation>Video wird umgewandelt. Bitte warten...</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>Wirklich beenden?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>All supported files(%1;);</source>
        <translation>Alle unterstützten Dateien(%1;);</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Unknown error, please try again</source>
        <translation>Unbekannter Fehler, bitte noch einmal versuchen</translation>
    </message>
</context>
<context>
    <name>KrAutoReframeExportDlg</name>
    <message>
        <source>Export to MP4</source>
        <translation>Als MP4 exportieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Save to:</source>
        <translation>Speichern in:</translation>
    </message>
    <message>
        <source>Please make sure you have selected a valid folder.</source>
        <translation>Bitte einen gültigen Ordner auswählen.</translation>
    </message>
    <message>
        <source>Please check write permission, or choose another path to continue.</source>
        <translation>Bitte die Schreibrechte prüfen oder einen anderen Ort wählen.</translation>
    </message>
    <message>
        <source>The outputted file path is too long, please choose another path to continue.</source>
        <translation>Der Pfad der Ausgabedatei ist zu lang, bitte einen anderen Ort wählen.</translation>
    </message>
    <message>
        <source>There is not enough space in the specified output directory, please choose another one.
Dise Space needed :%1 MB, remaining:%2 MB.</source>
        <translation>Im Ausgabeordner ist nicht genug Speicherplatz, bitte einen anderen wählen.
Benötigt: %1 MB, verfügbar: %2 MB.</translation>
    </message>
</context>
<context>
    <name>KrAutoReframePlayerControlBar</name>
    <message>
        <source>Backward (%1)</source>
        <translation>Zurück (%1)</translation>
    </message>
    <message>
        <source>Forward (%1)</source>
        <translation>Vor (%1)</translation>
    </message>
    <message>
        <source>Stop (%1)</source>
        <translation>Stopp (%1)</translation>
    </message>
    <message>
        <source>Play (%1)</source>
        <translation>Wiedergabe (%1)</translation>
    </message>
    <message>
        <source>Pause (%1)</source>
        <translation>Pause (%1)</translation>
    </message>
    <message>
        <source>Undo (%1)</source>
        <translation>Rückgängig (%1)</translation>
    </message>
    <message>
        <source>Redo (%1)</source>
        <translation>Wiederholen (%1)</translation>
    </message>
    <message>
        <source>Delete (%1)</source>
        <translation>Löschen (%1)</translation>
    </message>
    <message>
        <source>Previous Edit Point (%1)</source>
        <translation>Vorheriger Bearbeitungspunkt (%1)</translation>
    </message>
    <message>
        <source>Next Edit Point (%1)</source>
        <translation>Nächster Bearbeitungspunkt (%1)</translation>
    </message>
</context>
<context>
    <name>KrAutoReframePropertyPanel</name>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Langsam</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Replace File</source>
        <translation>Datei ersetzen</translation>
    </message>
    <message>
        <source>Adjust Frame</source>
        <translation>Ausschnitt anpassen</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Seitenverhältnis</translation>
    </message>
    <message>
        <source>Motion Speed</source>
        <translation>Bewegungstempo</translation>
    </message>
    <message>
        <source>Analyze</source>
        <translation>Analysieren</translation>
    </message>
    <message>
        <source>AutoReframe_Restart</source>
        <translation>Neu analysieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
</context>
<context>
    <name>KrCropKeys</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>The arrow keys move the crop, with Shift in larger steps.</source>
        <translation>Die Pfeiltasten bewegen den Ausschnitt, mit der Umschalttaste in größeren Schritten.</translation>
    </message>
</context>
<context>
    <name>KrDialogExtension</name>
    <message>
        <source>The crop follows your choice</source>
        <translation>Der Ausschnitt folgt der Vorgabe</translation>
    </message>
    <message>
        <source>The crop avoids your choice</source>
        <translation>Der Ausschnitt meidet die Vorgabe</translation>
    </message>
    <message>
        <source>The crop is held</source>
        <translation>Der Ausschnitt steht fest</translation>
    </message>
    <message>
        <source>The whole picture is shown</source>
        <translation>Das ganze Bild wird gezeigt</translation>
    </message>
    <message>
        <source>The analysis decides</source>
        <translation>Die Analyse entscheidet</translation>
    </message>
    <message>
        <source>Lost from %1: point again</source>
        <translation>Ab %1 verloren: noch einmal zeigen</translation>
    </message>
    <message>
        <source>Perhaps lost from %1: look, and point again</source>
        <translation>Ab %1 vielleicht verloren: nachsehen und noch einmal zeigen</translation>
    </message>
    <message>
        <source>Settings changed: analyze again</source>
        <translation>Einstellungen geändert: neu analysieren</translation>
    </message>
    <message numerus="yes">
        <source>%n choices are kept, but not in this cut of the video</source>
        <translation>
            <numerusform>%n Vorgabe bleibt, aber nicht in dieser Schnittfassung</numerusform>
            <numerusform>%n Vorgaben bleiben, aber nicht in dieser Schnittfassung</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n choices were moved to where their pictures are</source>
        <translation>
            <numerusform>%n Vorgabe wurde dorthin verschoben, wo ihr Bild ist</numerusform>
            <numerusform>%n Vorgaben wurden dorthin verschoben, wo ihre Bilder sind</numerusform>
        </translation>
    </message>
    <message>
        <source>Following: %1 %</source>
        <translation>Wird verfolgt: %1&#xa0;%</translation>
    </message>
    <message>
        <source>Your edit stays here</source>
        <translation>Die Bearbeitung bleibt hier</translation>
    </message>
</context>
<context>
    <name>KrDoubtfulShots</name>
    <message>
        <source>Previous Doubtful Shot (%1)</source>
        <translation>Vorherige fragliche Einstellung (%1)</translation>
    </message>
    <message>
        <source>Next Doubtful Shot (%1)</source>
        <translation>Nächste fragliche Einstellung (%1)</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n shots to look at</source>
        <translation>
            <numerusform>%1 von %n Einstellung zu prüfen</numerusform>
            <numerusform>%1 von %n Einstellungen zu prüfen</numerusform>
        </translation>
    </message>
    <message>
        <source>All doubtful shots seen</source>
        <translation>Alle fraglichen Einstellungen gesehen</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>Einstellung %1 von %2</translation>
    </message>
    <message>
        <source>nothing stands out</source>
        <translation>nichts sticht hervor</translation>
    </message>
    <message>
        <source>what stands out is in several places, far apart</source>
        <translation>mehrere Stellen stechen hervor, weit auseinander</translation>
    </message>
    <message>
        <source>several people or animals, far apart</source>
        <translation>mehrere Menschen oder Tiere, weit auseinander</translation>
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
            <numerusform>%n Bearbeitungspunkt bleibt, aber nicht in dieser Schnittfassung</numerusform>
            <numerusform>%n Bearbeitungspunkte bleiben, aber nicht in dieser Schnittfassung</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit points were moved to where their pictures are</source>
        <translation>
            <numerusform>%n Bearbeitungspunkt wurde dorthin verschoben, wo seine Bilder sind</numerusform>
            <numerusform>%n Bearbeitungspunkte wurden dorthin verschoben, wo ihre Bilder sind</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KrExportStatus</name>
    <message>
        <source>Progress of the export</source>
        <translation>Fortschritt des Exports</translation>
    </message>
    <message>
        <source>The size of the exported video in pixels.</source>
        <translation>Die Größe des exportierten Videos in Pixeln.</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Opens the folder of the exported video.</source>
        <translation>Öffnet den Ordner des exportierten Videos.</translation>
    </message>
    <message>
        <source>Output: %1 × %2</source>
        <translation>Ausgabe: %1 × %2</translation>
    </message>
    <message>
        <source>Waiting in the export queue</source>
        <translation>Wartet in der Exportliste</translation>
    </message>
    <message>
        <source>Exporting: %1 %</source>
        <translation>Export läuft: %1&#xa0;%</translation>
    </message>
    <message>
        <source>Exported</source>
        <translation>Exportiert</translation>
    </message>
    <message>
        <source>Export cancelled</source>
        <translation>Export abgebrochen</translation>
    </message>
    <message>
        <source>Output: %1 × %2, enlarged</source>
        <translation>Ausgabe: %1 × %2, vergrößert</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>The size in which the video is exported.</source>
        <translation>Die Größe, in der das Video exportiert wird.</translation>
    </message>
</context>
<context>
    <name>KrFollowControls</name>
    <message>
        <source>This looks like background</source>
        <translation>Das sieht nach Hintergrund aus</translation>
    </message>
    <message>
        <source>Hold the Crop Here in This Shot</source>
        <translation>Ausschnitt in dieser Einstellung hier festhalten</translation>
    </message>
    <message>
        <source>Follow This Anyway</source>
        <translation>Diesem trotzdem folgen</translation>
    </message>
    <message>
        <source>Follow This</source>
        <translation>Diesem folgen</translation>
    </message>
    <message>
        <source>Not This</source>
        <translation>Nicht dies</translation>
    </message>
    <message>
        <source>Hold the Crop in This Shot</source>
        <translation>Ausschnitt in dieser Einstellung festhalten</translation>
    </message>
    <message>
        <source>Show the Whole Picture in This Shot</source>
        <translation>In dieser Einstellung das ganze Bild zeigen</translation>
    </message>
    <message>
        <source>Back to Automatic</source>
        <translation>Zurück zur Automatik</translation>
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
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
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
        <translation>Seitenverhältnisse vergleichen</translation>
    </message>
</context>
<context>
    <name>KrRatioPane</name>
    <message>
        <source>Result in %1:%2</source>
        <translation>Ergebnis in %1:%2</translation>
    </message>
    <message>
        <source>%1:%2</source>
        <translation>%1:%2</translation>
    </message>
    <message>
        <source>%1 · finding the crop…</source>
        <translation>%1 · Ausschnitt wird gesucht…</translation>
    </message>
    <message>
        <source>%1 · %2 × %3</source>
        <translation>%1 · %2 × %3</translation>
    </message>
    <message>
        <source>%1 · analyze the video again</source>
        <translation>%1 · neu analysieren</translation>
    </message>
</context>
<context>
    <name>KrViewMenu</name>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Safe Zones</source>
        <translation>Sichere Bereiche</translation>
    </message>
    <message>
        <source>Dims what players of vertical videos cover with texts and buttons. For 9:16 only.</source>
        <translation>Dunkelt ab, was Abspieler von Hochformatvideos mit Texten und Schaltflächen verdecken. Nur für 9:16.</translation>
    </message>
    <message>
        <source>Thirds</source>
        <translation>Drittel</translation>
    </message>
    <message>
        <source>A grid that divides the result into thirds.</source>
        <translation>Ein Raster, das das Ergebnis in Drittel teilt.</translation>
    </message>
    <message>
        <source>Headroom</source>
        <translation>Kopffreiheit</translation>
    </message>
    <message>
        <source>The band in which the top of a head belongs.</source>
        <translation>Der Streifen, in den der Scheitel eines Kopfes gehört.</translation>
    </message>
    <message>
        <source>Compare Aspect Ratios…</source>
        <translation>Seitenverhältnisse vergleichen…</translation>
    </message>
    <message>
        <source>Shows the results of several aspect ratios side by side.</source>
        <translation>Zeigt die Ergebnisse mehrerer Seitenverhältnisse nebeneinander.</translation>
    </message>
</context>
<context>
    <name>KxAacEncoder</name>
    <message>
        <source>the AAC encoder is missing</source>
        <translation>der AAC-Encoder fehlt</translation>
    </message>
    <message>
        <source>sound of %1 Hz and %2 channels is not supported</source>
        <translation>Ton mit %1 Hz und %2 Kanälen wird nicht unterstützt</translation>
    </message>
    <message>
        <source>the sound encoder does not start (%1)</source>
        <translation>der Toncodierer startet nicht (%1)</translation>
    </message>
</context>
<context>
    <name>KxAudioReader</name>
    <message>
        <source>it has no such sound track</source>
        <translation>es gibt keine solche Tonspur</translation>
    </message>
</context>
<context>
    <name>KxAudioTrack</name>
    <message>
        <source>its sound format (%1) is not supported</source>
        <translation>das Tonformat (%1) wird nicht unterstützt</translation>
    </message>
    <message>
        <source>its sound is damaged</source>
        <translation>der Ton ist beschädigt</translation>
    </message>
</context>
<context>
    <name>KxAutoReframeService</name>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>%1 kann nicht analysiert werden: %2.</translation>
    </message>
    <message>
        <source>the stored choices</source>
        <translation>die gespeicherten Vorgaben</translation>
    </message>
</context>
<context>
    <name>KxAvError</name>
    <message>
        <source>it was cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>it ends too early</source>
        <translation>die Datei endet zu früh</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>its format is not supported</source>
        <translation>das Format wird nicht unterstützt</translation>
    </message>
</context>
<context>
    <name>KxCacheFolder</name>
    <message>
        <source>Cannot make the cache folder %1: %2.</source>
        <translation>Der Cache-Ordner %1 kann nicht angelegt werden: %2.</translation>
    </message>
</context>
<context>
    <name>KxChoicesFormat</name>
    <message>
        <source>Cannot use %1: %2.</source>
        <translation>%1 kann nicht verwendet werden: %2.</translation>
    </message>
    <message>
        <source>choice %1 has no valid time (&quot;%2&quot;), in seconds</source>
        <translation>Vorgabe %1 hat keine gültige Zeit („%2“) in Sekunden</translation>
    </message>
    <message>
        <source>choice %1 has &quot;%2&quot; that are no list</source>
        <translation>Vorgabe %1 hat „%2“, aber nicht als Liste</translation>
    </message>
    <message>
        <source>it has more than %1 seeds and boxes</source>
        <translation>mehr als %1 Startpunkte und Rahmen</translation>
    </message>
    <message>
        <source>choice %1 has a box that is not left, top, width and height in fractions of the picture</source>
        <translation>Vorgabe %1 hat einen Rahmen, der nicht aus links, oben, Breite und Höhe in Bruchteilen des Bildes besteht</translation>
    </message>
    <message>
        <source>choice %1 has no &quot;seeds&quot; that show what it means</source>
        <translation>Vorgabe %1 hat keine „seeds“, die zeigen, was gemeint ist</translation>
    </message>
    <message>
        <source>choice %1 has more than %2 &quot;pictures&quot;</source>
        <translation>Vorgabe %1 hat mehr als %2 „pictures“</translation>
    </message>
    <message>
        <source>choice %1 has &quot;pictures&quot; that are not times with 16 hexadecimal digits</source>
        <translation>Vorgabe %1 hat „pictures“, die keine Zeiten mit 16 hexadezimalen Ziffern sind</translation>
    </message>
    <message>
        <source>choice %1 has no known &quot;kind&quot;; it is follow, avoid, hold, fit or automatic</source>
        <translation>Vorgabe %1 hat kein bekanntes „kind“; möglich sind follow, avoid, hold, fit oder automatic</translation>
    </message>
    <message>
        <source>choice %1 ends before it begins</source>
        <translation>Vorgabe %1 endet, bevor sie beginnt</translation>
    </message>
    <message>
        <source>choice %1 has no &quot;centre&quot; in fractions of the picture</source>
        <translation>Vorgabe %1 hat kein „centre“ in Bruchteilen des Bildes</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>länger als %1 Bytes</translation>
    </message>
    <message>
        <source>it is no list of choices (JSON, byte %1)</source>
        <translation>das ist keine Liste von Vorgaben (JSON, Byte %1)</translation>
    </message>
    <message>
        <source>it is of version %1, and this program reads version %2</source>
        <translation>die Datei hat Version %1, und dieses Programm liest Version %2</translation>
    </message>
    <message>
        <source>it has no &quot;version&quot;</source>
        <translation>„version“ fehlt</translation>
    </message>
    <message>
        <source>it has no list of &quot;choices&quot;</source>
        <translation>eine Liste „choices“ fehlt</translation>
    </message>
    <message>
        <source>it has more than %1 choices</source>
        <translation>mehr als %1 Vorgaben</translation>
    </message>
    <message>
        <source>Cannot open %1: it is not a regular file.</source>
        <translation>%1 kann nicht geöffnet werden: Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>%1 kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
</context>
<context>
    <name>KxDetectorFiles</name>
    <message>
        <source>it is a folder</source>
        <translation>das ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>die Datei kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>it is too large for a detector</source>
        <translation>die Datei ist zu groß für einen Detektor</translation>
    </message>
    <message>
        <source>its checksum is unknown (no SHA256SUMS beside it names the file)</source>
        <translation>die Prüfsumme ist unbekannt (keine SHA256SUMS im selben Ordner nennt die Datei)</translation>
    </message>
    <message>
        <source>it is damaged (SHA256SUMS has another checksum)</source>
        <translation>die Datei ist beschädigt (SHA256SUMS nennt eine andere Prüfsumme)</translation>
    </message>
    <message>
        <source>Cannot use the detector %1: %2.</source>
        <translation>Der Detektor %1 kann nicht verwendet werden: %2.</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>es gibt keinen solchen Ordner</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>das ist kein Ordner</translation>
    </message>
    <message>
        <source>it has neither %1 nor %2</source>
        <translation>weder %1 noch %2 ist vorhanden</translation>
    </message>
    <message>
        <source>Cannot use the models in %1: %2.</source>
        <translation>Die Modelle in %1 können nicht verwendet werden: %2.</translation>
    </message>
    <message>
        <source>The detector of people and animals is not installed; the analysis works without it.</source>
        <translation>Der Detektor für Menschen und Tiere ist nicht installiert; die Analyse funktioniert auch ohne ihn.</translation>
    </message>
    <message>
        <source>it is not NanoDet-g as OpenCV can run it</source>
        <translation>das ist nicht NanoDet-g, wie OpenCV es ausführen kann</translation>
    </message>
    <message>
        <source>it is not a face detector that OpenCV can run</source>
        <translation>das ist kein Gesichtsdetektor, den OpenCV ausführen kann</translation>
    </message>
</context>
<context>
    <name>KxEncoderProof</name>
    <message>
        <source>there is nothing to compare it with</source>
        <translation>es gibt nichts zum Vergleichen</translation>
    </message>
    <message>
        <source>of %1 pictures it wrote %2</source>
        <translation>von %1 Bildern wurden %2 geschrieben</translation>
    </message>
    <message>
        <source>its pictures have another size or format</source>
        <translation>die Bilder haben eine andere Größe oder ein anderes Format</translation>
    </message>
    <message>
        <source>its picture %1 differs too much (%2 dB, %3 are needed)</source>
        <translation>Bild %1 weicht zu sehr ab (%2 dB, nötig sind %3)</translation>
    </message>
</context>
<context>
    <name>KxFittedCutter</name>
    <message>
        <source>Cannot cut a picture: the rectangle to cut out is empty.</source>
        <translation>Ein Bild kann nicht ausgeschnitten werden: Das Rechteck ist leer.</translation>
    </message>
    <message>
        <source>Cannot cut a picture: memory ran out.</source>
        <translation>Ein Bild kann nicht ausgeschnitten werden: Der Arbeitsspeicher reicht nicht.</translation>
    </message>
</context>
<context>
    <name>KxFollowPass</name>
    <message>
        <source>Cannot follow in %1: %2.</source>
        <translation>Verfolgen in %1 nicht möglich: %2.</translation>
    </message>
</context>
<context>
    <name>KxFrameCutter</name>
    <message>
        <source>Cannot cut a picture: the rectangle to cut out is empty.</source>
        <translation>Ein Bild kann nicht ausgeschnitten werden: Das Rechteck ist leer.</translation>
    </message>
    <message>
        <source>Cannot cut a picture: its pixel format &quot;%1&quot; cannot be converted.</source>
        <translation>Ein Bild kann nicht ausgeschnitten werden: Das Pixelformat „%1“ kann nicht umgewandelt werden.</translation>
    </message>
    <message>
        <source>Cannot cut a picture: memory ran out.</source>
        <translation>Ein Bild kann nicht ausgeschnitten werden: Der Arbeitsspeicher reicht nicht.</translation>
    </message>
    <message>
        <source>Cannot cut a picture: it cannot be scaled from %1 x %2 to %3 x %4.</source>
        <translation>Ein Bild kann nicht ausgeschnitten werden: Es lässt sich nicht von %1 x %2 auf %3 x %4 skalieren.</translation>
    </message>
</context>
<context>
    <name>KxInputFile</name>
    <message>
        <source>it is a single picture, not a video</source>
        <translation>das ist ein einzelnes Bild, kein Video</translation>
    </message>
    <message>
        <source>it is a list of other files, not a video</source>
        <translation>das ist eine Liste anderer Dateien, kein Video</translation>
    </message>
    <message>
        <source>it is not a video file</source>
        <translation>das ist keine Videodatei</translation>
    </message>
    <message>
        <source>it has more than %1 streams</source>
        <translation>die Datei hat mehr als %1 Datenströme</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>%1 kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>reading it takes too long</source>
        <translation>das Lesen dauert zu lange</translation>
    </message>
    <message>
        <source>it is damaged or incomplete</source>
        <translation>die Datei ist beschädigt oder unvollständig</translation>
    </message>
    <message>
        <source>it is a link to a file that does not exist</source>
        <translation>das ist ein Verweis auf eine Datei, die nicht existiert</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>es gibt keine solche Datei</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>das ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>permission is denied</source>
        <translation>der Zugriff wurde verweigert</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>its pictures are too large (%1 x %2)</source>
        <translation>die Bilder sind zu groß (%1 x %2)</translation>
    </message>
    <message>
        <source>it has sound but no moving picture</source>
        <translation>die Datei hat Ton, aber kein bewegtes Bild</translation>
    </message>
    <message>
        <source>it has no moving picture</source>
        <translation>die Datei hat kein bewegtes Bild</translation>
    </message>
    <message>
        <source>its name is not valid UTF-8; rename it</source>
        <translation>ihr Name ist kein gültiges UTF-8; bitte umbenennen</translation>
    </message>
</context>
<context>
    <name>KxJoinedPictures</name>
    <message>
        <source>%1 does not hold pictures of a part of this video</source>
        <translation>%1 enthält keine Bilder eines Teils dieses Videos</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 ist beschädigt</translation>
    </message>
    <message>
        <source>%1 begins with other pictures than the part before ends with; analyse the video as a whole</source>
        <translation>%1 beginnt mit anderen Bildern, als der Teil davor endet; das Video als Ganzes analysieren</translation>
    </message>
</context>
<context>
    <name>KxLanguage</name>
    <message>
        <source>Language of the texts: %1. Otherwise that of the system.</source>
        <translation>Sprache der Texte: %1. Sonst die des Systems.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an available language; choose one of %2.</source>
        <translation>„%1“ ist keine verfügbare Sprache; möglich sind %2.</translation>
    </message>
</context>
<context>
    <name>KxMediaLibraryUtils</name>
    <message>
        <source>Cannot open %1: it has no moving picture.</source>
        <translation>%1 kann nicht geöffnet werden: Die Datei hat kein bewegtes Bild.</translation>
    </message>
</context>
<context>
    <name>KxMediaPlayerPresenter</name>
    <message>
        <source>Cannot show the timeline: it holds no video.</source>
        <translation>Die Timeline kann nicht gezeigt werden: Sie enthält kein Video.</translation>
    </message>
    <message>
        <source>Cannot show %1: %2.</source>
        <translation>%1 kann nicht gezeigt werden: %2.</translation>
    </message>
    <message>
        <source>its pictures cannot be decoded</source>
        <translation>die Bilder können nicht decodiert werden</translation>
    </message>
</context>
<context>
    <name>KxMessageBox</name>
    <message>
        <source>Do not show this again</source>
        <translation>Nicht mehr anzeigen</translation>
    </message>
</context>
<context>
    <name>KxMp4Writer</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>pictures of %1 x %2 pixels cannot be encoded; both have to be even</source>
        <translation>Bilder von %1 x %2 Pixeln können nicht codiert werden; beide Zahlen müssen gerade sein</translation>
    </message>
    <message>
        <source>the frame rate is unknown</source>
        <translation>die Bildrate ist unbekannt</translation>
    </message>
    <message>
        <source>there is no picture to write</source>
        <translation>es gibt kein Bild zu schreiben</translation>
    </message>
</context>
<context>
    <name>KxOpenFileLineEdit</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
</context>
<context>
    <name>KxOpenFileName</name>
    <message>
        <source>All files(%1)</source>
        <translation>Alle Dateien(%1)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
</context>
<context>
    <name>KxOutputFile</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>das ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>no free name was found in its folder</source>
        <translation>im Ordner wurde kein freier Name gefunden</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>der Ordner %1 existiert nicht</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 ist kein Ordner</translation>
    </message>
</context>
<context>
    <name>KxOutputSize</name>
    <message>
        <source>the size %1 x %2 does not have the shape of the crop; %1 x %3 does</source>
        <translation>die Größe %1 x %2 hat nicht die Form des Ausschnitts; %1 x %3 hat sie</translation>
    </message>
</context>
<context>
    <name>KxPictureFeed</name>
    <message>
        <source>Cannot render %1: %2.</source>
        <translation>%1 kann nicht ausgegeben werden: %2.</translation>
    </message>
    <message>
        <source>Cannot render %1 at frame %2. %3</source>
        <translation>%1 kann bei Bild %2 nicht ausgegeben werden. %3</translation>
    </message>
    <message>
        <source>Memory ran out.</source>
        <translation>Der Arbeitsspeicher reicht nicht.</translation>
    </message>
</context>
<context>
    <name>KxPictureFilter</name>
    <message>
        <source>it yields no picture</source>
        <translation>es ergibt kein Bild</translation>
    </message>
</context>
<context>
    <name>KxPicturesFile</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>%1 is cut off or damaged: it decodes only in part.</source>
        <translation>%1 ist abgeschnitten oder beschädigt: Nur ein Teil lässt sich decodieren.</translation>
    </message>
</context>
<context>
    <name>KxPlayerToolBarBase</name>
    <message>
        <source>Play (%1)</source>
        <translation>Wiedergabe (%1)</translation>
    </message>
    <message>
        <source>Pause (%1)</source>
        <translation>Pause (%1)</translation>
    </message>
    <message>
        <source>Stop (%1)</source>
        <translation>Stopp (%1)</translation>
    </message>
    <message>
        <source>Backward (%1)</source>
        <translation>Zurück (%1)</translation>
    </message>
    <message>
        <source>Forward (%1)</source>
        <translation>Vor (%1)</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Wiedergabe oder Pause</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
</context>
<context>
    <name>KxProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>KxRenderSound</name>
    <message>
        <source>The sound is silent; its loudness is not changed.</source>
        <translation>Der Ton ist still; die Lautheit wird nicht geändert.</translation>
    </message>
    <message>
        <source>The loudness of the sound is not changed: %1.</source>
        <translation>Die Lautheit des Tons wird nicht geändert: %1.</translation>
    </message>
    <message>
        <source>The sound is encoded again: %1.</source>
        <translation>Der Ton wird neu codiert: %1.</translation>
    </message>
    <message>
        <source>The sound is left out. %1</source>
        <translation>Der Ton wird weggelassen. %1</translation>
    </message>
</context>
<context>
    <name>KxRenderSource</name>
    <message>
        <source>Cannot render the timeline: it shows no file.</source>
        <translation>Die Timeline kann nicht ausgegeben werden: Sie zeigt keine Datei.</translation>
    </message>
</context>
<context>
    <name>KxRenderer</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>a resolution of %1 x %2 is not possible</source>
        <translation>eine Auflösung von %1 x %2 ist nicht möglich</translation>
    </message>
    <message>
        <source>it is the very file that is rendered</source>
        <translation>das ist die Datei, die gerade ausgegeben wird</translation>
    </message>
    <message>
        <source>Cannot render %1: it is damaged.</source>
        <translation>%1 kann nicht ausgegeben werden: Die Datei ist beschädigt.</translation>
    </message>
    <message>
        <source>%1 is damaged or incomplete: only %2 of %3 frames could be rendered.</source>
        <translation>%1 ist beschädigt oder unvollständig: Nur %2 von %3 Bildern konnten ausgegeben werden.</translation>
    </message>
    <message>
        <source>The sound of %1 is damaged and ends early.</source>
        <translation>Der Ton von %1 ist beschädigt und endet vorzeitig.</translation>
    </message>
    <message>
        <source>%1 frames a second are not possible</source>
        <translation>%1 Bilder pro Sekunde sind nicht möglich</translation>
    </message>
    <message>
        <source>Cannot render %1: %2.</source>
        <translation>%1 kann nicht ausgegeben werden: %2.</translation>
    </message>
    <message>
        <source>its parts have %1 of %2 frames</source>
        <translation>seine Teile haben %1 von %2 Bildern</translation>
    </message>
    <message>
        <source>there is no picture to write</source>
        <translation>es gibt kein Bild zu schreiben</translation>
    </message>
</context>
<context>
    <name>KxSoundPackets</name>
    <message>
        <source>the time stamps of the file jump</source>
        <translation>die Zeitstempel der Datei springen</translation>
    </message>
    <message>
        <source>there is no such sound track</source>
        <translation>es gibt keine solche Tonspur</translation>
    </message>
    <message>
        <source>MP4 cannot hold %1</source>
        <translation>MP4 kann %1 nicht enthalten</translation>
    </message>
</context>
<context>
    <name>KxSystemError</name>
    <message>
        <source>the file would become too large for its disk</source>
        <translation>die Datei würde zu groß für ihr Laufwerk</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>es gibt keine solche Datei</translation>
    </message>
    <message>
        <source>permission is denied</source>
        <translation>der Zugriff wurde verweigert</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>das Laufwerk ist schreibgeschützt</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>das Laufwerk meldet einen Fehler</translation>
    </message>
    <message>
        <source>memory ran out</source>
        <translation>der Arbeitsspeicher reicht nicht</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>zu viele Dateien sind geöffnet</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>der Name ist zu lang</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>das ist ein Ordner</translation>
    </message>
    <message>
        <source>its reader has gone</source>
        <translation>der Empfänger hat die Verbindung beendet</translation>
    </message>
    <message>
        <source>it is in use</source>
        <translation>in Gebrauch</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>das Laufwerk ist voll</translation>
    </message>
</context>
<context>
    <name>KxSystemFile</name>
    <message>
        <source>another program has it open</source>
        <translation>ein anderes Programm hat die Datei geöffnet</translation>
    </message>
</context>
<context>
    <name>KxThread</name>
    <message>
        <source>memory ran out</source>
        <translation>der Arbeitsspeicher reicht nicht</translation>
    </message>
    <message>
        <source>an unknown error occurred</source>
        <translation>ein unbekannter Fehler ist aufgetreten</translation>
    </message>
</context>
<context>
    <name>KxThumbnailPicture</name>
    <message>
        <source>Cannot show %1: no picture could be read.</source>
        <translation>%1 kann nicht gezeigt werden: Kein Bild konnte gelesen werden.</translation>
    </message>
</context>
<context>
    <name>KxThumbnailer</name>
    <message>
        <source>Cannot show %1: %2.</source>
        <translation>%1 kann nicht gezeigt werden: %2.</translation>
    </message>
</context>
<context>
    <name>KxToneMapper</name>
    <message>
        <source>Cannot convert a picture of high dynamic range: %1.</source>
        <translation>Ein Bild mit hohem Dynamikumfang kann nicht umgewandelt werden: %1.</translation>
    </message>
</context>
<context>
    <name>KxTopLevelWindowTitleBar</name>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>KxVideoAnalysis</name>
    <message>
        <source>Choice %1 is applied %2 s earlier, where its pictures are in %3.</source>
        <translation>Vorgabe %1 gilt %2 s früher, wo ihre Bilder in %3 sind.</translation>
    </message>
    <message>
        <source>Choice %1 is applied %2 s later, where its pictures are in %3.</source>
        <translation>Vorgabe %1 gilt %2 s später, wo ihre Bilder in %3 sind.</translation>
    </message>
    <message>
        <source>Choice %1 is not applied: its pictures are not in %2.</source>
        <translation>Vorgabe %1 gilt nicht: Ihre Bilder sind nicht in %2.</translation>
    </message>
    <message>
        <source>The aspect ratio %1:%2 has a side that is not positive.</source>
        <translation>Das Seitenverhältnis %1:%2 hat eine Seite, die nicht positiv ist.</translation>
    </message>
    <message>
        <source>Cannot analyse %1: its time stamps span %2 frames, the limit is %3.</source>
        <translation>%1 kann nicht analysiert werden: Die Zeitstempel umfassen %2 Bilder, höchstens %3 sind möglich.</translation>
    </message>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>%1 kann nicht analysiert werden: %2.</translation>
    </message>
    <message>
        <source>%1 is cut off or damaged: it decodes only in part.</source>
        <translation>%1 ist abgeschnitten oder beschädigt: Nur ein Teil lässt sich decodieren.</translation>
    </message>
    <message>
        <source>What is followed is lost from %1 s to %2 s: point at it again there.</source>
        <translation>Das Verfolgte ist von %1 s bis %2 s verloren: Dort noch einmal darauf zeigen.</translation>
    </message>
    <message>
        <source>Choice %1 is not applied: its time is outside of %2.</source>
        <translation>Vorgabe %1 gilt nicht: Ihre Zeit liegt außerhalb von %2.</translation>
    </message>
</context>
<context>
    <name>KxVideoDecoder</name>
    <message>
        <source>its video format (%1) is not supported</source>
        <translation>das Videoformat (%1) wird nicht unterstützt</translation>
    </message>
    <message>
        <source>its video stream is damaged</source>
        <translation>der Videodatenstrom ist beschädigt</translation>
    </message>
</context>
<context>
    <name>KxVideoEncoder</name>
    <message>
        <source>the video encoder %1 is missing</source>
        <translation>der Videocodierer %1 fehlt</translation>
    </message>
    <message>
        <source>the video encoder %1 does not start (%2)</source>
        <translation>der Videocodierer %1 startet nicht (%2)</translation>
    </message>
</context>
<context>
    <name>KxVideoPart</name>
    <message>
        <source>it has no picture</source>
        <translation>es enthält kein Bild</translation>
    </message>
</context>
<context>
    <name>KxVideoParts</name>
    <message>
        <source>Cannot join %1 to %2: it was encoded in another way.</source>
        <translation>%1 kann nicht mit %2 verbunden werden: Es wurde anders codiert.</translation>
    </message>
    <message>
        <source>Cannot join %1: its time stamps are damaged.</source>
        <translation>%1 kann nicht verbunden werden: Die Zeitstempel sind beschädigt.</translation>
    </message>
    <message>
        <source>Cannot join %1: it is damaged.</source>
        <translation>%1 kann nicht verbunden werden: Die Datei ist beschädigt.</translation>
    </message>
</context>
<context>
    <name>KxVideoSource</name>
    <message>
        <source>it was cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>no picture of it can be decoded, it is damaged</source>
        <translation>kein Bild lässt sich decodieren, die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>it is a single picture, not a video</source>
        <translation>das ist ein einzelnes Bild, kein Video</translation>
    </message>
    <message>
        <source>it cannot be read from the start again</source>
        <translation>die Datei kann nicht noch einmal von vorn gelesen werden</translation>
    </message>
    <message>
        <source>its time stamps are damaged</source>
        <translation>die Zeitstempel sind beschädigt</translation>
    </message>
</context>
<context>
    <name>KxWindowsNames</name>
    <message>
        <source>its name contains a control character</source>
        <translation>der Name enthält ein Steuerzeichen</translation>
    </message>
    <message>
        <source>a name cannot contain the character %1</source>
        <translation>ein Name darf das Zeichen %1 nicht enthalten</translation>
    </message>
    <message>
        <source>%1 is the name of a device</source>
        <translation>%1 ist der Name eines Geräts</translation>
    </message>
    <message>
        <source>a name cannot end with a dot or a space</source>
        <translation>ein Name darf nicht mit einem Punkt oder Leerzeichen enden</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>der Name ist zu lang</translation>
    </message>
</context>
<context>
    <name>LibraryConnection</name>
    <message>
        <source>another program is using it</source>
        <translation>ein anderes Programm verwendet die Datei</translation>
    </message>
    <message>
        <source>it is write-protected</source>
        <translation>die Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>the disk cannot be read or written</source>
        <translation>das Laufwerk kann nicht gelesen oder beschrieben werden</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>das Laufwerk ist voll</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>die Datei kann nicht geöffnet werden</translation>
    </message>
</context>
<context>
    <name>LibraryOpening</name>
    <message>
        <source>Cannot open the library %1: %2. What you do now is not saved.</source>
        <translation>Die Bibliothek %1 kann nicht geöffnet werden: %2. Änderungen werden nicht gespeichert.</translation>
    </message>
    <message>
        <source>its backup %1 cannot be written</source>
        <translation>die Sicherung %1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>it was written by a newer version of this program</source>
        <translation>sie stammt von einer neueren Version dieses Programms</translation>
    </message>
    <message>
        <source>its folder cannot be made</source>
        <translation>der Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>another program is opening it</source>
        <translation>ein anderes Programm öffnet sie gerade</translation>
    </message>
    <message>
        <source>its folder cannot be written to</source>
        <translation>in den Ordner kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>it is damaged, and it cannot be renamed</source>
        <translation>sie ist beschädigt und kann nicht umbenannt werden</translation>
    </message>
    <message>
        <source>The library was damaged. It was renamed to %1, and a new one was begun.</source>
        <translation>Die Bibliothek war beschädigt. Sie heißt jetzt %1, und eine neue wurde angelegt.</translation>
    </message>
</context>
<context>
    <name>LibraryStore</name>
    <message>
        <source>Cannot read the library %1: %2. What you do now is not saved.</source>
        <translation>Die Bibliothek %1 kann nicht gelesen werden: %2. Änderungen werden nicht gespeichert.</translation>
    </message>
    <message>
        <source>Cannot save the library %1: %2.</source>
        <translation>Die Bibliothek %1 kann nicht gespeichert werden: %2.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%n files that are no videos were skipped</source>
        <translation>
            <numerusform>%n Datei, die kein Video ist, wurde übersprungen</numerusform>
            <numerusform>%n Dateien, die keine Videos sind, wurden übersprungen</numerusform>
        </translation>
    </message>
    <message>
        <source>Auto Reframe</source>
        <translation>Auto Reframe</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren…</translation>
    </message>
    <message>
        <source>Reframe All…</source>
        <translation>Alle neu kadrieren…</translation>
    </message>
    <message>
        <source>Auto Reframe…</source>
        <translation>Auto Reframe…</translation>
    </message>
    <message>
        <source>Add videos to the library</source>
        <translation>Videos zur Bibliothek hinzufügen</translation>
    </message>
    <message>
        <source>Reframe all selected videos without looking at each</source>
        <translation>Alle ausgewählten Videos neu kadrieren, ohne jedes anzusehen</translation>
    </message>
    <message>
        <source>Reframe the selected videos one after the other</source>
        <translation>Die ausgewählten Videos nacheinander neu kadrieren</translation>
    </message>
    <message>
        <source>No videos yet</source>
        <translation>Noch keine Videos</translation>
    </message>
    <message numerus="yes">
        <source>%n videos</source>
        <translation>
            <numerusform>%n Video</numerusform>
            <numerusform>%n Videos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n ausgewählt</numerusform>
            <numerusform>%n ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n exports are not finished. They are cancelled when you quit.</source>
        <translation>
            <numerusform>%n Export ist nicht fertig. Er wird beim Beenden abgebrochen.</numerusform>
            <numerusform>%n Exporte sind nicht fertig. Sie werden beim Beenden abgebrochen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <translation>Weiter exportieren</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>All supported files</source>
        <translation>Alle unterstützten Dateien</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Import Folder</source>
        <translation>Ordner importieren</translation>
    </message>
    <message>
        <source>Import Folder…</source>
        <translation>Ordner importieren…</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>Save Crop Track…</source>
        <translation>Ausschnittspur speichern…</translation>
    </message>
    <message>
        <source>Open Crop Track…</source>
        <translation>Ausschnittspur öffnen…</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>About Auto Reframe</source>
        <translation>Über Auto Reframe</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>… und %n weitere.</numerusform>
            <numerusform>… und %n weitere.</numerusform>
        </translation>
    </message>
    <message>
        <source>Find %1</source>
        <translation>%1 suchen</translation>
    </message>
    <message>
        <source>The content of this file differs from that of %1.</source>
        <translation>Der Inhalt dieser Datei ist ein anderer als der von %1.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Use This File</source>
        <translation>Diese Datei verwenden</translation>
    </message>
    <message>
        <source>Your edits are kept, but may not fit this file.</source>
        <translation>Die Bearbeitungen bleiben erhalten, passen aber vielleicht nicht zu dieser Datei.</translation>
    </message>
    <message>
        <source>This computer may be too slow for the analysis. To try anyway, start it again.</source>
        <translation>Dieser Computer ist vielleicht zu langsam für die Analyse. Für einen Versuch trotzdem noch einmal starten.</translation>
    </message>
    <message>
        <source>Continue with %1?</source>
        <translation>Weiter mit %1?</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message numerus="yes">
        <source>%n selected videos are left.</source>
        <translation>
            <numerusform>%n ausgewähltes Video ist noch übrig.</numerusform>
            <numerusform>%n ausgewählte Videos sind noch übrig.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is no longer in the library. Import it to look at its shots.</source>
        <translation>%1 ist nicht mehr in der Bibliothek. Zum Prüfen der Einstellungen wieder importieren.</translation>
    </message>
    <message>
        <source>Language of the System</source>
        <translation>Sprache des Systems</translation>
    </message>
    <message>
        <source>The crop track was saved.</source>
        <translation>Die Ausschnittspur wurde gespeichert.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Open Crop Track</source>
        <translation>Ausschnittspur öffnen</translation>
    </message>
    <message>
        <source>Crop tracks</source>
        <translation>Ausschnittspuren</translation>
    </message>
    <message>
        <source>The file for %1 was saved.</source>
        <translation>Die Datei für %1 wurde gespeichert.</translation>
    </message>
</context>
<context>
    <name>MediaBackendLoader</name>
    <message>
        <source>Cannot load the video engine: %1.</source>
        <translation>Die Video-Engine kann nicht geladen werden: %1.</translation>
    </message>
</context>
<context>
    <name>MediaLibrary</name>
    <message>
        <source>There are no videos in %1.</source>
        <translation>In %1 sind keine Videos.</translation>
    </message>
    <message numerus="yes">
        <source>%n videos in %1 were left out: their names are not valid UTF-8. Rename them.</source>
        <translation>
            <numerusform>%n Video in %1 wurde ausgelassen: Sein Name ist kein gültiges UTF-8. Bitte umbenennen.</numerusform>
            <numerusform>%n Videos in %1 wurden ausgelassen: Ihre Namen sind kein gültiges UTF-8. Bitte umbenennen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaLibraryModel</name>
    <message>
        <source>Drop videos here</source>
        <translation>Videos hier ablegen</translation>
    </message>
    <message>
        <source>%1 was not found. Right-click to find it.</source>
        <translation>%1 wurde nicht gefunden. Suchen mit Rechtsklick.</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Wird geöffnet…</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
</context>
<context>
    <name>MediaLibraryView</name>
    <message>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Find File…</source>
        <translation>Datei suchen…</translation>
    </message>
    <message>
        <source>Auto Reframe…</source>
        <translation>Auto Reframe…</translation>
    </message>
    <message>
        <source>Reframe All…</source>
        <translation>Alle neu kadrieren…</translation>
    </message>
    <message>
        <source>Save Crop Track…</source>
        <translation>Ausschnittspur speichern…</translation>
    </message>
    <message>
        <source>Open Crop Track…</source>
        <translation>Ausschnittspur öffnen…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Remove from Library</source>
        <translation>Aus der Bibliothek entfernen</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren…</translation>
    </message>
    <message>
        <source>Drop videos here</source>
        <translation>Videos hier ablegen</translation>
    </message>
    <message>
        <source>or click to choose files</source>
        <translation>oder klicken, um Dateien zu wählen</translation>
    </message>
</context>
<context>
    <name>MediaLoader</name>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>%1 kann nicht geöffnet werden: %2.</translation>
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
        <translation>noch %1 s</translation>
    </message>
    <message>
        <source>%1 min %2 s left</source>
        <translation>noch %1 min %2 s</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>noch %1 h %2 min</translation>
    </message>
    <message numerus="yes">
        <source>%n of your edits are not in this cut of the video</source>
        <translation>
            <numerusform>%n Bearbeitung ist nicht in dieser Schnittfassung</numerusform>
            <numerusform>%n Bearbeitungen sind nicht in dieser Schnittfassung</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OutputNames</name>
    <message>
        <source>There is no %1. Use %2.</source>
        <translation>%1 gibt es nicht. Möglich sind %2.</translation>
    </message>
    <message>
        <source>Enter a file name.</source>
        <translation>Einen Dateinamen eingeben.</translation>
    </message>
</context>
<context>
    <name>OutputOptions</name>
    <message>
        <source>--size takes even numbers up to 16384 such as 1080x1920, or a height such as 1920p; &quot;%1&quot; is neither.</source>
        <translation>--size nimmt gerade Zahlen bis 16384 wie 1080x1920 oder eine Höhe wie 1920p; „%1“ ist keines von beiden.</translation>
    </message>
    <message>
        <source>--fps takes a number from 1 to 240; &quot;%1&quot; is none.</source>
        <translation>--fps nimmt eine Zahl von 1 bis 240; „%1“ ist keine.</translation>
    </message>
    <message>
        <source>--quality takes a number from 0 to 100; &quot;%1&quot; is none.</source>
        <translation>--quality nimmt eine Zahl von 0 bis 100; „%1“ ist keine.</translation>
    </message>
    <message>
        <source>--bitrate takes bits a second from 10k to 300M; &quot;%1&quot; are none.</source>
        <translation>--bitrate nimmt Bits pro Sekunde von 10k bis 300M; „%1“ gehört nicht dazu.</translation>
    </message>
    <message>
        <source>--codec takes h264, hevc or av1; &quot;%1&quot; is none of them.</source>
        <translation>--codec nimmt h264, hevc oder av1; „%1“ ist keines davon.</translation>
    </message>
    <message>
        <source>--encoder takes auto, software, vaapi, nvenc or qsv; &quot;%1&quot; is none of them.</source>
        <translation>--encoder nimmt auto, software, vaapi, nvenc oder qsv; „%1“ ist keines davon.</translation>
    </message>
    <message>
        <source>--hdr takes keep or tonemap; &quot;%1&quot; is neither.</source>
        <translation>--hdr nimmt keep oder tonemap; „%1“ ist keines von beiden.</translation>
    </message>
    <message>
        <source>--sound takes copy or encode; &quot;%1&quot; is neither.</source>
        <translation>--sound nimmt copy oder encode; „%1“ ist keines von beiden.</translation>
    </message>
    <message>
        <source>--loudness takes LUFS from -70 to -5; &quot;%1&quot; are none.</source>
        <translation>--loudness nimmt LUFS von -70 bis -5; „%1“ gehört nicht dazu.</translation>
    </message>
    <message>
        <source>--quality and --bitrate exclude each other.</source>
        <translation>--quality und --bitrate schließen einander aus.</translation>
    </message>
    <message>
        <source>--loudness changes the sound, which --sound copy does not.</source>
        <translation>--loudness ändert den Ton, --sound copy nicht.</translation>
    </message>
    <message>
        <source>--hdr keep needs --codec hevc.</source>
        <translation>--hdr keep braucht --codec hevc.</translation>
    </message>
    <message>
        <source>--hdr keep needs --encoder software or auto.</source>
        <translation>--hdr keep braucht --encoder software oder auto.</translation>
    </message>
    <message>
        <source>Size of the result, or its height, such as 1080x1920 or 1920p; as large as the crop when not given.</source>
        <translation>Größe des Ergebnisses oder seine Höhe, etwa 1080x1920 oder 1920p; ohne Angabe so groß wie der Ausschnitt.</translation>
    </message>
    <message>
        <source>Frames a second of the result; those of the source when not given.</source>
        <translation>Bilder pro Sekunde des Ergebnisses; ohne Angabe die der Quelle.</translation>
    </message>
    <message>
        <source>Constant quality from 0 to 100, about alike in each codec, instead of a bit rate.</source>
        <translation>Gleichbleibende Qualität von 0 bis 100, in jedem Codec etwa gleich, statt einer Bitrate.</translation>
    </message>
    <message>
        <source>Bits a second of the picture, such as 800k or 6M; those of the source when not given.</source>
        <translation>Bits pro Sekunde des Bildes, etwa 800k oder 6M; ohne Angabe die der Quelle.</translation>
    </message>
    <message>
        <source>Codec of the picture: h264, hevc or av1 (h264).</source>
        <translation>Codec des Bildes: h264, hevc oder av1 (h264).</translation>
    </message>
    <message>
        <source>What encodes the picture: software, vaapi, nvenc, qsv, or auto: hardware if ten frames of the video show that it works (software).</source>
        <translation>Womit das Bild codiert wird: software, vaapi, nvenc, qsv oder auto: Hardware, wenn zehn Bilder des Videos zeigen, dass sie funktioniert (software).</translation>
    </message>
    <message>
        <source>What becomes of a picture in high dynamic range: tonemap to the usual range, or keep, as 10-bit HEVC (tonemap).</source>
        <translation>Was aus einem Bild mit hohem Dynamikumfang wird: tonemap, auf den üblichen Umfang, oder keep, als HEVC mit 10 Bit (tonemap).</translation>
    </message>
    <message>
        <source>Bring the sound to this loudness in LUFS (EBU R128), such as -14.</source>
        <translation>Den Ton auf diese Lautheit in LUFS (EBU R128) bringen, etwa -14.</translation>
    </message>
    <message>
        <source>What becomes of the sound: encode as AAC, or copy bit for bit where MP4 can hold it. When not given, AAC in mono or stereo that nothing changes is copied, and any other sound is encoded.</source>
        <translation>Was mit dem Ton geschieht: encode codiert ihn als AAC, copy kopiert ihn Bit für Bit, wo MP4 ihn aufnehmen kann. Ohne Angabe wird AAC in Mono oder Stereo, an dem sich nichts ändert, kopiert und anderer Ton codiert.</translation>
    </message>
</context>
<context>
    <name>PreviewOverlay</name>
    <message>
        <source>Frame %1</source>
        <translation>Bild %1</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>Einst. %1/%2</translation>
    </message>
    <message>
        <source>confidence %1</source>
        <translation>Konfidenz %1</translation>
    </message>
</context>
<context>
    <name>QueueBar</name>
    <message>
        <source>%1 of %2 done</source>
        <translation>%1 von %2 fertig</translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n fehlgeschlagen</numerusform>
            <numerusform>%n fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n done</source>
        <translation>
            <numerusform>%n fertig</numerusform>
            <numerusform>%n fertig</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cancelled</source>
        <translation>
            <numerusform>%n abgebrochen</numerusform>
            <numerusform>%n abgebrochen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n to look at</source>
        <translation>
            <numerusform>%n zu prüfen</numerusform>
            <numerusform>%n zu prüfen</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Progress of all exports</source>
        <translation>Fortschritt aller Exporte</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Go on with the exports</source>
        <translation>Mit den Exporten fortfahren</translation>
    </message>
    <message>
        <source>Interrupt the exports for a while</source>
        <translation>Die Exporte für eine Weile anhalten</translation>
    </message>
    <message>
        <source>Cancel all</source>
        <translation>Alle abbrechen</translation>
    </message>
    <message>
        <source>Cancel all exports of Reframe All that are not done</source>
        <translation>Alle nicht fertigen Exporte von „Alle neu kadrieren“ abbrechen</translation>
    </message>
    <message>
        <source>Retry failed</source>
        <translation>Fehler wiederholen</translation>
    </message>
    <message>
        <source>Export those that failed again</source>
        <translation>Die fehlgeschlagenen noch einmal exportieren</translation>
    </message>
    <message>
        <source>Look at them</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Open the first video that has doubtful shots</source>
        <translation>Das erste Video mit fraglichen Einstellungen öffnen</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n without all edits</source>
        <translation>
            <numerusform>%n ohne alle Bearbeitungen</numerusform>
            <numerusform>%n ohne alle Bearbeitungen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReframeJob</name>
    <message>
        <source>%1: %2 analysed</source>
        <translation>%1: %2 analysiert</translation>
    </message>
    <message>
        <source>%1: %2 -&gt; %3</source>
        <translation>%1: %2 -&gt; %3</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 Bild</translation>
    </message>
    <message numerus="yes">
        <source>%n frames</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has no moving picture.</source>
        <translation>%1 kann nicht neu kadriert werden: Die Datei hat kein bewegtes Bild.</translation>
    </message>
    <message>
        <source>Cannot follow %1 in %2: %3.</source>
        <translation>%1 kann in %2 nicht verfolgt werden: %3.</translation>
    </message>
    <message>
        <source>Cannot write %1: it is one of the inputs.</source>
        <translation>%1 kann nicht geschrieben werden: Das ist eine der Eingaben.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it is too short (%2; 32 are needed).</source>
        <translation>%1 kann nicht neu kadriert werden: Das Video ist zu kurz (%2, nötig sind 32).</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has the aspect ratio %2:%3 already.</source>
        <translation>%1 kann nicht neu kadriert werden: Das Video hat das Seitenverhältnis %2:%3 bereits.</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds %2 of the %3 of %4.</source>
        <translation>%1 kann nicht verwendet werden: Vorhanden %2, erwartet %3 (%4).</translation>
    </message>
    <message>
        <source>Cannot reframe %1: the analysis found nothing.</source>
        <translation>%1 kann nicht neu kadriert werden: Die Analyse hat nichts gefunden.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: there is no video in this folder.</source>
        <translation>%1 kann nicht neu kadriert werden: In diesem Ordner ist kein Video.</translation>
    </message>
    <message>
        <source>Cannot draw the contact sheet of %1.</source>
        <translation>Der Kontaktbogen von %1 kann nicht gezeichnet werden.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>%1 kann nicht neu kadriert werden: %2.</translation>
    </message>
    <message>
        <source>%1: %2 -&gt; %3 (encoded by %4)</source>
        <translation>%1: %2 -&gt; %3 (codiert mit %4)</translation>
    </message>
    <message>
        <source>frames %1 to %2</source>
        <translation>Bilder %1 bis %2</translation>
    </message>
    <message>
        <source>%1: skipped, up to date: %2</source>
        <translation>%1: übersprungen, aktuell: %2</translation>
    </message>
    <message>
        <source>The picture of %1 is enlarged: its size, %2 x %3, is above that of the crop, %4 x %5.</source>
        <translation>Das Bild von %1 wird vergrößert: Seine Größe, %2 x %3, liegt über der des Ausschnitts, %4 x %5.</translation>
    </message>
</context>
<context>
    <name>ReframeJobParts</name>
    <message>
        <source>Cannot take that part of %1: %2.</source>
        <translation>Dieser Teil von %1 kann nicht genommen werden: %2.</translation>
    </message>
    <message>
        <source>Cannot join %1: pictures are for an analysis, and with --apply there is none.</source>
        <translation>%1 kann nicht verbunden werden: Bilder dienen einer Analyse, und mit --apply gibt es keine.</translation>
    </message>
    <message>
        <source>Cannot join %1: parts of the video need the crop track that they were made with (--apply).</source>
        <translation>%1 kann nicht verbunden werden: Teile des Videos brauchen die Ausschnittspur, mit der sie gemacht wurden (--apply).</translation>
    </message>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>%1 kann nicht analysiert werden: %2.</translation>
    </message>
</context>
<context>
    <name>ReframeOptions</name>
    <message>
        <source>Aspect ratio of the result (9:16); several with commas between them: the video is looked at once.</source>
        <translation>Seitenverhältnis des Ergebnisses (9:16); mehrere durch Kommas getrennt: Das Video wird nur einmal angesehen.</translation>
    </message>
    <message>
        <source>How readily the crop follows: auto, fast or slow (auto).</source>
        <translation>Wie schnell der Ausschnitt folgt: auto, fast oder slow (auto).</translation>
    </message>
    <message>
        <source>Where several people talk, follow who speaks: auto or off (auto).</source>
        <translation>Der sprechenden Person folgen, wenn mehrere reden: auto oder off (auto).</translation>
    </message>
    <message>
        <source>Where to write the video; beside the input when not given.</source>
        <translation>Wohin das Video geschrieben wird; ohne Angabe neben die Eingabe.</translation>
    </message>
    <message>
        <source>Write the crop of every frame, as .json or .csv.</source>
        <translation>Den Ausschnitt jedes Bildes als .json oder .csv schreiben.</translation>
    </message>
    <message>
        <source>Write the crop as a project or as keyframes for another program: .mlt, .kdenlive, .fcpxml, .txt (After Effects) or .ffscript (ffmpeg). A suffix alone, such as mlt, names the file after the video. May be given several times.</source>
        <translation>Den Ausschnitt als Projekt oder als Keyframes für ein anderes Programm schreiben: .mlt, .kdenlive, .fcpxml, .txt (After Effects) oder .ffscript (ffmpeg). Eine Endung allein, etwa mlt, benennt die Datei nach dem Video. Kann mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>Take the crops from FILE instead of analysing.</source>
        <translation>Die Ausschnitte aus FILE nehmen, statt zu analysieren.</translation>
    </message>
    <message>
        <source>Decide as FILE says (.json): what to follow, to avoid, where to hold the crop or to show the whole picture.</source>
        <translation>Entscheiden, wie FILE (.json) es sagt: was zu verfolgen und zu meiden ist, wo der Ausschnitt feststeht oder das ganze Bild gezeigt wird.</translation>
    </message>
    <message>
        <source>Write what --choices and --follow decided to FILE (.json), with what its pictures look like, for this or another cut of the video.</source>
        <translation>Was --choices und --follow entschieden haben, in FILE (.json) schreiben, mit dem Aussehen der Bilder, für diese oder eine andere Schnittfassung des Videos.</translation>
    </message>
    <message>
        <source>Follow what is at the point X,Y, or in the box from X,Y of the size W,H, through its shot. TIME in seconds, or a frame (75f); the place in pixels, or in fractions of the picture. May be given several times.</source>
        <translation>Dem folgen, was am Punkt X,Y liegt oder im Rahmen ab X,Y der Größe W,H, durch die ganze Einstellung. TIME in Sekunden oder ein Bild (75f); die Stelle in Pixeln oder in Bruchteilen des Bildes. Kann mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>Write the source with the crop drawn: a contact sheet as .png, or all of it, with sound and with what the analysis found, as .mp4.</source>
        <translation>Die Quelle mit eingezeichnetem Ausschnitt schreiben: einen Kontaktbogen als .png oder alles, mit Ton und dem, was die Analyse fand, als .mp4.</translation>
    </message>
    <message>
        <source>Write a page (.html) that shows what the analysis found.</source>
        <translation>Eine Seite (.html) schreiben, die zeigt, was die Analyse fand.</translation>
    </message>
    <message>
        <source>Keep what an analysis saw in FOLDER, or nowhere, instead of the usual folder.</source>
        <translation>Was eine Analyse gesehen hat, in FOLDER aufbewahren oder nirgends, statt im üblichen Ordner.</translation>
    </message>
    <message>
        <source>Use the optional detectors in FOLDER, or none, instead of those that are installed.</source>
        <translation>Die optionalen Detektoren in FOLDER verwenden oder keine, statt der installierten.</translation>
    </message>
    <message>
        <source>Analyse only; write no video.</source>
        <translation>Nur analysieren, kein Video schreiben.</translation>
    </message>
    <message>
        <source>Replace existing files instead of adding a number to the name.</source>
        <translation>Vorhandene Dateien ersetzen, statt dem Namen eine Nummer anzuhängen.</translation>
    </message>
    <message>
        <source>Print progress and results as JSON lines.</source>
        <translation>Fortschritt und Ergebnisse als JSON-Zeilen ausgeben.</translation>
    </message>
    <message>
        <source>Print errors only.</source>
        <translation>Nur Fehler ausgeben.</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Diesen Text anzeigen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version anzeigen.</translation>
    </message>
    <message>
        <source>%1
Try reframe --help.</source>
        <translation>%1
Hilfe: reframe --help.</translation>
    </message>
    <message>
        <source>%1 or .%2</source>
        <translation>%1 oder .%2</translation>
    </message>
    <message>
        <source>No input file was given.</source>
        <translation>Keine Eingabedatei angegeben.</translation>
    </message>
    <message>
        <source>--output and --no-video exclude each other.</source>
        <translation>--output und --no-video schließen einander aus.</translation>
    </message>
    <message>
        <source>--report shows what an analysis found, and with --apply there is none.</source>
        <translation>--report zeigt, was eine Analyse fand; mit --apply gibt es keine.</translation>
    </message>
    <message>
        <source>--apply takes one input.</source>
        <translation>--apply nimmt nur eine Eingabe.</translation>
    </message>
    <message>
        <source>--apply takes one aspect ratio.</source>
        <translation>--apply nimmt nur ein Seitenverhältnis.</translation>
    </message>
    <message>
        <source>--save-choices takes one aspect ratio.</source>
        <translation>--save-choices nimmt nur ein Seitenverhältnis.</translation>
    </message>
    <message>
        <source>--choices and --follow take one input.</source>
        <translation>--choices und --follow nehmen nur eine Eingabe.</translation>
    </message>
    <message>
        <source>--choices and --follow guide the analysis, and with --apply there is none.</source>
        <translation>--choices und --follow lenken die Analyse; mit --apply gibt es keine.</translation>
    </message>
    <message>
        <source>--save-choices writes what --choices and --follow decided, and neither was given.</source>
        <translation>--save-choices schreibt, was --choices und --follow entschieden haben; beide fehlen.</translation>
    </message>
    <message>
        <source>--edit-list takes the name of a .%1 file or such a suffix alone; %2 is neither.</source>
        <translation>--edit-list nimmt den Namen einer Datei mit der Endung .%1 oder nur eine solche Endung; %2 ist keines von beiden.</translation>
    </message>
    <message>
        <source>With several inputs or aspect ratios --edit-list takes a suffix alone; write %1 instead of %2.</source>
        <translation>Bei mehreren Eingaben oder Seitenverhältnissen nimmt --edit-list nur eine Endung; %1 statt %2 schreiben.</translation>
    </message>
    <message>
        <source>With several inputs or aspect ratios %1 must name an existing folder; %2 is none.</source>
        <translation>Bei mehreren Eingaben oder Seitenverhältnissen muss %1 einen vorhandenen Ordner nennen; %2 ist keiner.</translation>
    </message>
    <message>
        <source>%1 takes an existing folder or the name of a .%2 file; %3 is neither.</source>
        <translation>%1 nimmt einen vorhandenen Ordner oder den Namen einer Datei mit der Endung .%2; %3 ist keines von beiden.</translation>
    </message>
    <message>
        <source>%1 begins like an option; as a file it is written ./%1.</source>
        <translation>%1 beginnt wie eine Option; als Datei schreibt man ./%1.</translation>
    </message>
    <message>
        <source>Turns a video into another aspect ratio and keeps its subject in the picture.</source>
        <translation>Bringt ein Video in ein anderes Seitenverhältnis und hält sein Motiv im Bild.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no aspect ratio; write two whole numbers such as 9:16, neither more than 20 times the other.</source>
        <translation>„%1“ ist kein Seitenverhältnis; zwei ganze Zahlen wie 9:16 angeben, keine mehr als 20-mal so groß wie die andere.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no speed; it is auto, fast or slow.</source>
        <translation>„%1“ ist kein Tempo; möglich sind auto, fast oder slow.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nothing to follow; write a time and a place such as 3.5@640,360, or a time and a box such as 3.5@0.4,0.2,0.1,0.5.</source>
        <translation>„%1“ lässt sich nicht verfolgen; eine Zeit und eine Stelle wie 3.5@640,360 oder eine Zeit und einen Rahmen wie 3.5@0.4,0.2,0.1,0.5 angeben.</translation>
    </message>
    <message>
        <source>--speaker takes auto or off; &quot;%1&quot; is neither.</source>
        <translation>--speaker nimmt auto oder off; „%1“ ist keines von beiden.</translation>
    </message>
    <message>
        <source>--status must not name an input.</source>
        <translation>--status darf keine Eingabe nennen.</translation>
    </message>
    <message>
        <source>The video files to reframe; a folder is all videos in it.</source>
        <translation>Die Videodateien, die neu kadriert werden; ein Ordner steht für alle Videos darin.</translation>
    </message>
    <message>
        <source>--frames takes one input.</source>
        <translation>--frames nimmt eine Eingabe.</translation>
    </message>
    <message>
        <source>--frames takes one aspect ratio.</source>
        <translation>--frames nimmt ein Seitenverhältnis.</translation>
    </message>
    <message>
        <source>--frames with --apply renders a part of the video, and --no-video excludes that.</source>
        <translation>--frames mit --apply rendert einen Teil des Videos, und --no-video schließt das aus.</translation>
    </message>
    <message>
        <source>--frames does a part of the work; files about the whole video, and choices, are for --join.</source>
        <translation>--frames macht einen Teil der Arbeit; Dateien über das ganze Video und Vorgaben gehören zu --join.</translation>
    </message>
    <message>
        <source>--join takes a video and then its parts.</source>
        <translation>--join nimmt ein Video und dann seine Teile.</translation>
    </message>
    <message>
        <source>--frames takes frames such as 0-2999, or a part such as 3/8; &quot;%1&quot; is neither.</source>
        <translation>--frames nimmt Bilder wie 0-2999 oder einen Teil wie 3/8; „%1“ ist keines von beiden.</translation>
    </message>
    <message>
        <source>The name of an input file is empty.</source>
        <translation>Der Name einer Eingabedatei ist leer.</translation>
    </message>
    <message>
        <source>--%1 needs a value, and an empty one was given.</source>
        <translation>--%1 braucht einen Wert; angegeben wurde ein leerer.</translation>
    </message>
</context>
<context>
    <name>ReframeParts</name>
    <message>
        <source>Cannot join %1: it is a part of another video than %2.</source>
        <translation>%1 kann nicht verbunden werden: Es ist ein Teil eines anderen Videos als %2.</translation>
    </message>
    <message>
        <source>Cannot join %1: it was made with other settings or by another version (&quot;%2&quot;; now &quot;%3&quot;).</source>
        <translation>%1 kann nicht verbunden werden: Es wurde mit anderen Einstellungen oder einer anderen Version gemacht („%2“; jetzt „%3“).</translation>
    </message>
    <message>
        <source>Cannot join the parts of %1: the frames %2 to %3 are missing.</source>
        <translation>Die Teile von %1 können nicht verbunden werden: Die Bilder %2 bis %3 fehlen.</translation>
    </message>
    <message>
        <source>Cannot join %1 and %2: both have the frames %3 to %4.</source>
        <translation>%1 und %2 können nicht verbunden werden: Beide haben die Bilder %3 bis %4.</translation>
    </message>
    <message>
        <source>Cannot join %1: it is no part that --frames wrote.</source>
        <translation>%1 kann nicht verbunden werden: Es ist kein Teil, den --frames geschrieben hat.</translation>
    </message>
    <message>
        <source>Cannot join %1 and %2: only one of them holds pictures of the analysis.</source>
        <translation>%1 und %2 können nicht verbunden werden: Nur eines davon enthält Bilder der Analyse.</translation>
    </message>
</context>
<context>
    <name>ReframeProgram</name>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>%1 kann nicht neu kadriert werden: %2.</translation>
    </message>
</context>
<context>
    <name>ReframeReporter</name>
    <message>
        <source>%1: analyzing %2 %%3</source>
        <translation>%1: Analyse %2&#xa0;%%3</translation>
    </message>
    <message>
        <source>%1: drawing the preview %2 %%3</source>
        <translation>%1: Vorschau wird gezeichnet %2&#xa0;%%3</translation>
    </message>
    <message>
        <source>%1: rendering %2 %%3</source>
        <translation>%1: Video wird ausgegeben %2&#xa0;%%3</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>Cannot write to standard output: %1.</source>
        <translation>In die Standardausgabe kann nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>an error occurred</source>
        <translation>ein Fehler ist aufgetreten</translation>
    </message>
    <message>
        <source>%1: interrupted.</source>
        <translation>%1: unterbrochen.</translation>
    </message>
    <message>
        <source>%1: interrupted after %2 was written.</source>
        <translation>%1: unterbrochen, nachdem %2 geschrieben war.</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Cannot write to the folder %1.</source>
        <translation>In den Ordner %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Save To</source>
        <translation>Speichern in</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>StatusFile</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>TimeLeft</name>
    <message>
        <source>, %1 s left</source>
        <translation>, noch %1 s</translation>
    </message>
    <message>
        <source>, %1 min %2 s left</source>
        <translation>, noch %1 min %2 s</translation>
    </message>
</context>
</TS>
