<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Auto Reframe</source>
        <translation>À propos d’Auto Reframe</translation>
    </message>
    <message>
        <source>Auto Reframe %1</source>
        <translation>Auto Reframe %1</translation>
    </message>
    <message>
        <source>Keeps the subject of a video in the picture. Everything runs on this computer.</source>
        <translation>Garde le sujet d’une vidéo dans l’image. Tout se passe sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licences</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>AnalysisPlot</name>
    <message>
        <source>left</source>
        <translation>gauche</translation>
    </message>
    <message>
        <source>top</source>
        <translation>haut</translation>
    </message>
    <message>
        <source>right</source>
        <translation>droite</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>bas</translation>
    </message>
    <message>
        <source>The crop&apos;s path over the evidence</source>
        <translation>Trajet du cadre sur les indices</translation>
    </message>
    <message>
        <source>Evidence by signal</source>
        <translation>Indices par signal</translation>
    </message>
    <message>
        <source>strong</source>
        <translation>fort</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
</context>
<context>
    <name>AnalysisReport</name>
    <message>
        <source>1 frame</source>
        <translation>1 image</translation>
    </message>
    <message numerus="yes">
        <source>%n frames</source>
        <translation>
            <numerusform>%n image</numerusform>
            <numerusform>%n images</numerusform>
        </translation>
    </message>
    <message>
        <source>The crop</source>
        <translation>Le cadre</translation>
    </message>
    <message>
        <source>Frames of the video with the crop drawn</source>
        <translation>Images de la vidéo avec le cadre dessiné</translation>
    </message>
    <message>
        <source>Path of the crop</source>
        <translation>Trajet du cadre</translation>
    </message>
    <message>
        <source>Time runs from left to right. The left of the picture is at the bottom, its right at the top. A brighter spot has more evidence.</source>
        <translation>Le temps va de gauche à droite. La gauche de l’image est en bas, sa droite en haut. Plus un point est clair, plus il y a d’indices.</translation>
    </message>
    <message>
        <source>Time runs from left to right. The bottom of the picture is at the bottom, its top at the top. A brighter spot has more evidence.</source>
        <translation>Le temps va de gauche à droite. Le bas de l’image est en bas, son haut en haut. Plus un point est clair, plus il y a d’indices.</translation>
    </message>
    <message>
        <source>centre of the crop</source>
        <translation>centre du cadre</translation>
    </message>
    <message>
        <source>edges of the crop</source>
        <translation>bords du cadre</translation>
    </message>
    <message>
        <source>centre with the most evidence</source>
        <translation>centre réunissant le plus d’indices</translation>
    </message>
    <message>
        <source>start of a shot, numbered above</source>
        <translation>début d’un plan, numéroté au-dessus</translation>
    </message>
    <message>
        <source>Evidence by signal</source>
        <translation>Indices par signal</translation>
    </message>
    <message>
        <source>How much stronger each signal is at the centre with the most evidence than at an average place.</source>
        <translation>De combien chaque signal est plus fort au centre réunissant le plus d’indices qu’à un endroit moyen.</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Plans</translation>
    </message>
    <message>
        <source>Travel is the sum of all movements of the crop in the shot, in percent of the width of the picture. Confidence falls if the evidence outside of the crop is as strong as inside, or if single signals want the crop elsewhere; where it is low, look at the shot.</source>
        <translation>Le trajet est la somme de tous les mouvements du cadre dans le plan, en pourcentage de la largeur de l’image. La confiance baisse si des indices hors du cadre sont aussi forts qu’à l’intérieur ou si des signaux veulent le cadre ailleurs&#xa0;; si elle est faible, vérifier le plan.</translation>
    </message>
    <message>
        <source>Travel is the sum of all movements of the crop in the shot, in percent of the height of the picture. Confidence falls if the evidence outside of the crop is as strong as inside, or if single signals want the crop elsewhere; where it is low, look at the shot.</source>
        <translation>Le trajet est la somme de tous les mouvements du cadre dans le plan, en pourcentage de la hauteur de l’image. La confiance baisse si des indices hors du cadre sont aussi forts qu’à l’intérieur ou si des signaux veulent le cadre ailleurs&#xa0;; si elle est faible, vérifier le plan.</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>First frame</source>
        <translation>Première image</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondes</translation>
    </message>
    <message>
        <source>Dominant signal</source>
        <translation>Signal dominant</translation>
    </message>
    <message>
        <source>Travel of the crop</source>
        <translation>Trajet du cadre</translation>
    </message>
    <message>
        <source>Confidence</source>
        <translation>Confiance</translation>
    </message>
    <message>
        <source>%1 at %2:%3</source>
        <translation>%1 en %2:%3</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Taille du fichier</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Images par seconde</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>fast</source>
        <translation>rapide</translation>
    </message>
    <message>
        <source>slow</source>
        <translation>lente</translation>
    </message>
    <message>
        <source>auto</source>
        <translation>automatique</translation>
    </message>
    <message>
        <source>none: the crop is centred</source>
        <translation>aucun&#xa0;: le cadre est centré</translation>
    </message>
    <message>
        <source>%1, %2 %</source>
        <translation>%1, %2&#xa0;%</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
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
Voir auto-reframe --help.</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Afficher ce texte.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>Turns videos into another aspect ratio and keeps their subject in the picture.
The command line program for many files at once is reframe.</source>
        <translation>Change le format d’image de vidéos et garde leur sujet dans l’image.
Le programme en ligne de commande pour plusieurs fichiers à la fois est reframe.</translation>
    </message>
    <message>
        <source>Videos to open the library with.</source>
        <translation>Vidéos avec lesquelles ouvrir la bibliothèque.</translation>
    </message>
    <message>
        <source>Language of the texts: %1. Otherwise the one chosen in the menu, or that of the system.</source>
        <translation>Langue des textes&#xa0;: %1. Sinon celle choisie dans le menu ou celle du système.</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source>Shorts, Reels, Stories</source>
        <translation>Shorts, Reels, stories</translation>
    </message>
    <message>
        <source>Feed, portrait</source>
        <translation>Fil, portrait</translation>
    </message>
    <message>
        <source>Feed, square</source>
        <translation>Fil, carré</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Cinéma</translation>
    </message>
    <message>
        <source>Widescreen</source>
        <translation>Écran large</translation>
    </message>
    <message>
        <source>Classic television</source>
        <translation>Télévision classique</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lente</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rapide</translation>
    </message>
    <message>
        <source>As large as the crop</source>
        <translation>Aussi grande que le cadre</translation>
    </message>
    <message>
        <source>Shorter side %1 pixels</source>
        <translation>Petit côté de %1 pixels</translation>
    </message>
    <message>
        <source>Choose an aspect ratio.</source>
        <translation>Choisir un format d’image.</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>Choisir un dossier.</translation>
    </message>
    <message>
        <source>The selected videos have this aspect ratio already.</source>
        <translation>Les vidéos sélectionnées ont déjà ce format d’image.</translation>
    </message>
    <message numerus="yes">
        <source>%n files: %1</source>
        <translation>
            <numerusform>%n fichier&#xa0;: %1</numerusform>
            <numerusform>%n fichiers&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reframe %n Videos</source>
        <translation>
            <numerusform>Recadrer %n vidéo</numerusform>
            <numerusform>Recadrer %n vidéos</numerusform>
        </translation>
    </message>
    <message>
        <source>Aspect Ratios</source>
        <translation>Formats d’image</translation>
    </message>
    <message>
        <source>Motion Speed</source>
        <translation>Vitesse de suivi</translation>
    </message>
    <message>
        <source>How readily the crop follows the subject</source>
        <translation>Réactivité avec laquelle le cadre suit le sujet</translation>
    </message>
    <message>
        <source>Output Size</source>
        <translation>Taille de sortie</translation>
    </message>
    <message>
        <source>The size of the exported videos</source>
        <translation>La taille des vidéos exportées</translation>
    </message>
    <message>
        <source>File Name, with %1</source>
        <translation>Nom de fichier, avec %1</translation>
    </message>
    <message>
        <source>What stands in braces is replaced for each file.</source>
        <translation>Ce qui est entre accolades est remplacé pour chaque fichier.</translation>
    </message>
    <message>
        <source>The folder for the exported videos</source>
        <translation>Le dossier des vidéos exportées</translation>
    </message>
    <message>
        <source>Reframe All</source>
        <translation>Tout recadrer</translation>
    </message>
    <message>
        <source>%1 pixels high</source>
        <translation>%1 pixels de haut</translation>
    </message>
    <message numerus="yes">
        <source>%n files, enlarged beyond their crops: %1</source>
        <translation>
            <numerusform>%n fichier, agrandi au-delà de son cadre&#xa0;: %1</numerusform>
            <numerusform>%n fichiers, agrandis au-delà de leurs cadres&#xa0;: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CropFinder</name>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>Impossible de recadrer %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has no moving picture.</source>
        <translation>Impossible de recadrer %1&#xa0;: le fichier n’a pas d’image animée.</translation>
    </message>
    <message>
        <source>Cannot use %1: it has the crops of %2 frames, and %3 has %4 frames.</source>
        <translation>Impossible d’utiliser %1&#xa0;: il contient les cadres de %2 images, et %3 a %4 images.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has the aspect ratio %2 already.</source>
        <translation>Impossible de recadrer %1&#xa0;: la vidéo est déjà au format %2.</translation>
    </message>
    <message numerus="yes">
        <source>Cannot reframe %1: it has only %n frames; %2 are needed.</source>
        <translation>
            <numerusform>Impossible de recadrer %1&#xa0;: la vidéo n’a que %n image&#xa0;; il en faut %2.</numerusform>
            <numerusform>Impossible de recadrer %1&#xa0;: la vidéo n’a que %n images&#xa0;; il en faut %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CropRenderSettings</name>
    <message>
        <source>its picture of %1 x %2 pixels is too small</source>
        <translation>son image de %1 x %2 pixels est trop petite</translation>
    </message>
</context>
<context>
    <name>CropTrackDialog</name>
    <message>
        <source>Enter a file name.</source>
        <translation>Saisir un nom de fichier.</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>Choisir un dossier.</translation>
    </message>
    <message>
        <source>Save Crop Track</source>
        <translation>Enregistrer la piste de cadrage</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nom de fichier</translation>
    </message>
    <message>
        <source>The file gets a number if there is one of this name</source>
        <translation>Un numéro est ajouté si un fichier de ce nom existe déjà</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>The command line reads both</source>
        <translation>La ligne de commande lit les deux</translation>
    </message>
    <message>
        <source>The folder for the crop track</source>
        <translation>Le dossier de la piste de cadrage</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Export for %1</source>
        <translation>Exporter pour %1</translation>
    </message>
    <message>
        <source>The folder for the project or the keyframes</source>
        <translation>Le dossier du projet ou des images clés</translation>
    </message>
</context>
<context>
    <name>CropTrackFile</name>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>Impossible d’ouvrir %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Cannot use %1: it is too large for a crop track of a video of %2 frames.</source>
        <translation>Impossible d’utiliser %1&#xa0;: il est trop grand pour la piste de cadrage d’une vidéo de %2 images.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>Impossible de lire %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds no frames.</source>
        <translation>Impossible d’utiliser %1&#xa0;: il ne contient aucune image.</translation>
    </message>
</context>
<context>
    <name>CropTrackParser</name>
    <message>
        <source>Cannot use %1: it is no crop track (line %2).</source>
        <translation>Impossible d’utiliser %1&#xa0;: ce n’est pas une piste de cadrage (ligne %2).</translation>
    </message>
    <message>
        <source>Cannot use %1: frame %2 is no rectangle inside the picture.</source>
        <translation>Impossible d’utiliser %1&#xa0;: l’image %2 n’est pas un rectangle à l’intérieur de l’image.</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds more frames than the video, which has %2.</source>
        <translation>Impossible d’utiliser %1&#xa0;: il contient plus d’images que la vidéo, qui en a %2.</translation>
    </message>
    <message>
        <source>Cannot use %1: it is a crop track of version %2, and this program reads version 1.</source>
        <translation>Impossible d’utiliser %1&#xa0;: c’est une piste de cadrage de version %2, et ce programme lit la version 1.</translation>
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
        <translation>Analyse de %1</translation>
    </message>
</context>
<context>
    <name>DialogEdits</name>
    <message>
        <source>As large as the crop</source>
        <translation>Aussi grande que le cadre</translation>
    </message>
    <message>
        <source>%1 pixels high</source>
        <translation>%1 pixels de haut</translation>
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
            <numerusform>%n à vérifier</numerusform>
            <numerusform>%n à vérifier</numerusform>
        </translation>
    </message>
    <message>
        <source>Progress of %1</source>
        <translation>Progression de %1</translation>
    </message>
    <message>
        <source>Cancel %1</source>
        <translation>Annuler %1</translation>
    </message>
    <message>
        <source>Retry %1</source>
        <translation>Réessayer %1</translation>
    </message>
    <message>
        <source>Look at the doubtful shots of %1</source>
        <translation>Vérifier les plans douteux de %1</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>Afficher %1 dans son dossier</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Paused · %1</source>
        <translation>En pause · %1</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Analyzing · %1</source>
        <translation>Analyse · %1</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Annulation…</translation>
    </message>
    <message>
        <source>Done · %1</source>
        <translation>Terminé · %1</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>Not finished</source>
        <translation>Inachevé</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Export it again</source>
        <translation>L’exporter à nouveau</translation>
    </message>
    <message>
        <source>Show the file in its folder</source>
        <translation>Afficher le fichier dans son dossier</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>Retirer de la liste</translation>
    </message>
    <message>
        <source>Opens the video at these settings and its first doubtful shot; N leads to the next one.</source>
        <translation>Ouvre la vidéo avec ces réglages à son premier plan douteux&#xa0;; N mène au suivant.</translation>
    </message>
</context>
<context>
    <name>ExportForMenu</name>
    <message>
        <source>Export for</source>
        <translation>Exporter pour</translation>
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
        <translation>%1 exporté</translation>
    </message>
    <message>
        <source>Cannot export %1</source>
        <translation>Impossible d’exporter %1</translation>
    </message>
    <message>
        <source>Videos are being exported</source>
        <translation>Des vidéos sont en cours d’exportation</translation>
    </message>
</context>
<context>
    <name>ExportPanel</name>
    <message>
        <source>Exports</source>
        <translation>Exports</translation>
    </message>
    <message>
        <source>Clear finished</source>
        <translation>Effacer terminés</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Remove the finished exports from the list; their files stay</source>
        <translation>Retirer de la liste les exports terminés&#xa0;; leurs fichiers restent</translation>
    </message>
    <message>
        <source>Export those that the last run did not finish</source>
        <translation>Exporter ce que la dernière session n’a pas terminé</translation>
    </message>
    <message>
        <source>Remove those that the last run did not finish from the list</source>
        <translation>Retirer de la liste ce que la dernière session n’a pas terminé</translation>
    </message>
    <message>
        <source>Videos that you export from the Auto Reframe window appear here.</source>
        <translation>Les vidéos exportées depuis la fenêtre Auto Reframe apparaissent ici.</translation>
    </message>
    <message numerus="yes">
        <source>%n exports not finished</source>
        <translation>
            <numerusform>%n export inachevé</numerusform>
            <numerusform>%n exports inachevés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportRecord</name>
    <message>
        <source>Cannot export: no name or no folder was given.</source>
        <translation>Exportation impossible&#xa0;: le nom ou le dossier manque.</translation>
    </message>
    <message>
        <source>Cannot export %1: no picture size was given.</source>
        <translation>Impossible d’exporter %1&#xa0;: la taille d’image manque.</translation>
    </message>
</context>
<context>
    <name>FarmOptions</name>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>Impossible d’ouvrir %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Cannot read the folder %1.</source>
        <translation>Impossible de lire le dossier %1.</translation>
    </message>
    <message>
        <source>Of a folder that is an input, take the videos in its subfolders too.</source>
        <translation>Si une entrée est un dossier, prendre aussi les vidéos de ses sous-dossiers.</translation>
    </message>
    <message>
        <source>Read more inputs from FILE, one a line; - is standard input.</source>
        <translation>Lire d’autres entrées dans FILE, une par ligne&#xa0;; - est l’entrée standard.</translation>
    </message>
    <message>
        <source>Write progress and results to FILE as JSON lines, whatever is printed.</source>
        <translation>Écrire la progression et les résultats dans FILE en lignes JSON, quoi qu’il soit affiché.</translation>
    </message>
    <message>
        <source>Skip inputs whose results are there already, from the same content, settings and version; replace results of other settings.</source>
        <translation>Ignorer les entrées dont les résultats existent déjà, avec le même contenu, les mêmes réglages et la même version&#xa0;; remplacer les résultats d’autres réglages.</translation>
    </message>
    <message>
        <source>Only the frames A to B, counted from 0, or the part K of N: with --apply, render them without sound; otherwise write the pictures that the analysis takes of them (.pictures).</source>
        <translation>Seulement les images A à B, comptées à partir de 0, ou la partie K de N&#xa0;: avec --apply, les calculer sans le son&#xa0;; sinon, écrire les vignettes dont l’analyse a besoin (.pictures).</translation>
    </message>
    <message>
        <source>The first input is a video, the others are all its parts, as --frames wrote them; the results are those of the whole video.</source>
        <translation>La première entrée est une vidéo, les autres sont toutes ses parties, telles que --frames les a écrites&#xa0;; les résultats sont ceux de la vidéo entière.</translation>
    </message>
</context>
<context>
    <name>FollowOption</name>
    <message>
        <source>the video ends after %1 s</source>
        <translation>la vidéo se termine après %1 s</translation>
    </message>
    <message>
        <source>it lies outside the picture of %1x%2 pixels</source>
        <translation>l’endroit est hors de l’image de %1x%2 pixels</translation>
    </message>
</context>
<context>
    <name>FoundSignals</name>
    <message>
        <source>motion</source>
        <translation>mouvement</translation>
    </message>
    <message>
        <source>movers</source>
        <translation>mobiles</translation>
    </message>
    <message>
        <source>saliency</source>
        <translation>saillance</translation>
    </message>
    <message>
        <source>faces</source>
        <translation>visages</translation>
    </message>
    <message>
        <source>detected</source>
        <translation>détectés</translation>
    </message>
    <message>
        <source>motion: what the camera&apos;s own movement does not explain</source>
        <translation>mouvement&#xa0;: ce que le mouvement de la caméra n’explique pas</translation>
    </message>
    <message>
        <source>movers: what travels through the shot, however small</source>
        <translation>mobiles&#xa0;: ce qui traverse le plan, même petit</translation>
    </message>
    <message>
        <source>saliency: what stands out in a still picture</source>
        <translation>saillance&#xa0;: ce qui ressort dans une image fixe</translation>
    </message>
    <message>
        <source>detected: people and animals</source>
        <translation>détectés&#xa0;: personnes et animaux</translation>
    </message>
    <message>
        <source>it is not clear who speaks</source>
        <translation>on ne sait pas qui parle</translation>
    </message>
    <message>
        <source>who speaks is hardly clear</source>
        <translation>on sait à peine qui parle</translation>
    </message>
    <message>
        <source>nothing stands out</source>
        <translation>rien ne ressort</translation>
    </message>
    <message>
        <source>people or animals are in several places</source>
        <translation>des personnes ou des animaux sont à plusieurs endroits</translation>
    </message>
    <message>
        <source>what stands out is in several places</source>
        <translation>plusieurs endroits ressortent</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>holds who speaks</source>
        <translation>reste sur la personne qui parle</translation>
    </message>
    <message>
        <source>follows who speaks</source>
        <translation>suit la personne qui parle</translation>
    </message>
    <message>
        <source>follows who speaks, with 1 cut</source>
        <translation>suit la personne qui parle, avec 1 coupe</translation>
    </message>
    <message numerus="yes">
        <source>follows who speaks, with %n cuts</source>
        <translation>
            <numerusform>suit la personne qui parle, avec %n coupe</numerusform>
            <numerusform>suit la personne qui parle, avec %n coupes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FramesOption</name>
    <message>
        <source>its last frame is %1</source>
        <translation>sa dernière image est %1</translation>
    </message>
    <message>
        <source>it has %1 frames only</source>
        <translation>elle n’a que %1 images</translation>
    </message>
</context>
<context>
    <name>HelpDialog</name>
    <message>
        <source>Import videos</source>
        <translation>Importer des vidéos</translation>
    </message>
    <message>
        <source>Select all videos</source>
        <translation>Sélectionner toutes les vidéos</translation>
    </message>
    <message>
        <source>Select several videos</source>
        <translation>Sélectionner plusieurs vidéos</translation>
    </message>
    <message>
        <source>Ctrl+Click, Shift+Click</source>
        <translation>Ctrl+clic, Maj+clic</translation>
    </message>
    <message>
        <source>Reframe the selected video</source>
        <translation>Recadrer la vidéo sélectionnée</translation>
    </message>
    <message>
        <source>Reframe all selected videos</source>
        <translation>Recadrer toutes les vidéos sélectionnées</translation>
    </message>
    <message>
        <source>Remove from the library</source>
        <translation>Retirer de la bibliothèque</translation>
    </message>
    <message>
        <source>Show this list</source>
        <translation>Afficher cette liste</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Play, pause</source>
        <translation>Lecture, pause</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Reculer</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avancer</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Previous edit point</source>
        <translation>Point d’édition précédent</translation>
    </message>
    <message>
        <source>Next edit point</source>
        <translation>Point d’édition suivant</translation>
    </message>
    <message>
        <source>Delete the edit point</source>
        <translation>Supprimer le point d’édition</translation>
    </message>
    <message>
        <source>Previous doubtful shot</source>
        <translation>Plan douteux précédent</translation>
    </message>
    <message>
        <source>Next doubtful shot</source>
        <translation>Plan douteux suivant</translation>
    </message>
    <message>
        <source>Move the crop by a pixel</source>
        <translation>Déplacer le cadre d’un pixel</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Touches fléchées</translation>
    </message>
    <message>
        <source>Move the crop by 10 pixels</source>
        <translation>Déplacer le cadre de 10 pixels</translation>
    </message>
    <message>
        <source>Shift+Arrow keys</source>
        <translation>Maj+touches fléchées</translation>
    </message>
    <message>
        <source>Back to automatic in this shot</source>
        <translation>Revenir à l’automatique dans ce plan</translation>
    </message>
    <message>
        <source>Point at the middle of the crop</source>
        <translation>Désigner le centre du cadre</translation>
    </message>
    <message>
        <source>Remove the box</source>
        <translation>Retirer le cadre de sélection</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothèque</translation>
    </message>
    <message>
        <source>Auto Reframe Window</source>
        <translation>Fenêtre Auto Reframe</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>HostMediaBackend</name>
    <message>
        <source>Cannot open %1: it has no moving picture.</source>
        <translation>Impossible d’ouvrir %1&#xa0;: le fichier n’a pas d’image animée.</translation>
    </message>
</context>
<context>
    <name>KrAutoReframeDialog</name>
    <message>
        <source>AutoReframe_Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Auto Reframe</source>
        <translation>Auto Reframe</translation>
    </message>
    <message>
        <source>Analysis error. Please try again.</source>
        <translation>Erreur d’analyse. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>This video is too short. Please try a different video.</source>
        <translation>Cette vidéo est trop courte. Veuillez en essayer une autre.</translation>
    </message>
    <message>
        <source>You&apos;ve chosen the same aspect ratio as the original video. Please select a different aspect ratio.</source>
        <translation>Le format d’image choisi est celui de la vidéo d’origine. Veuillez en choisir un autre.</translation>
    </message>
    <message>
        <source>Converting video. Please wait...</source>
        <translation>Conversion de la vidéo. Veuillez patienter...</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>Voulez-vous vraiment quitter&#xa0;?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>All supported files(%1;);</source>
        <translation>Tous les fichiers pris en charge(%1;);</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Unknown error, please try again</source>
        <translation>Erreur inconnue, veuillez réessayer</translation>
    </message>
</context>
<context>
    <name>KrAutoReframeExportDlg</name>
    <message>
        <source>Export to MP4</source>
        <translation>Exporter en MP4</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Save to:</source>
        <translation>Dossier&#xa0;:</translation>
    </message>
    <message>
        <source>Please make sure you have selected a valid folder.</source>
        <translation>Veuillez choisir un dossier valide.</translation>
    </message>
    <message>
        <source>Please check write permission, or choose another path to continue.</source>
        <translation>Veuillez vérifier le droit d’écriture ou choisir un autre emplacement.</translation>
    </message>
    <message>
        <source>The outputted file path is too long, please choose another path to continue.</source>
        <translation>Le chemin du fichier de sortie est trop long, veuillez choisir un autre emplacement.</translation>
    </message>
    <message>
        <source>There is not enough space in the specified output directory, please choose another one.
Dise Space needed :%1 MB, remaining:%2 MB.</source>
        <translation>L’espace est insuffisant dans le dossier de sortie, veuillez en choisir un autre.
Espace nécessaire&#xa0;: %1 Mo, disponible&#xa0;: %2 Mo.</translation>
    </message>
</context>
<context>
    <name>KrAutoReframePlayerControlBar</name>
    <message>
        <source>Backward (%1)</source>
        <translation>Reculer (%1)</translation>
    </message>
    <message>
        <source>Forward (%1)</source>
        <translation>Avancer (%1)</translation>
    </message>
    <message>
        <source>Stop (%1)</source>
        <translation>Arrêter (%1)</translation>
    </message>
    <message>
        <source>Play (%1)</source>
        <translation>Lecture (%1)</translation>
    </message>
    <message>
        <source>Pause (%1)</source>
        <translation>Pause (%1)</translation>
    </message>
    <message>
        <source>Undo (%1)</source>
        <translation>Annuler (%1)</translation>
    </message>
    <message>
        <source>Redo (%1)</source>
        <translation>Rétablir (%1)</translation>
    </message>
    <message>
        <source>Delete (%1)</source>
        <translation>Supprimer (%1)</translation>
    </message>
    <message>
        <source>Previous Edit Point (%1)</source>
        <translation>Point d’édition précédent (%1)</translation>
    </message>
    <message>
        <source>Next Edit Point (%1)</source>
        <translation>Point d’édition suivant (%1)</translation>
    </message>
</context>
<context>
    <name>KrAutoReframePropertyPanel</name>
    <message>
        <source>Auto</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rapide</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lente</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Replace File</source>
        <translation>Remplacer le fichier</translation>
    </message>
    <message>
        <source>Adjust Frame</source>
        <translation>Ajuster le cadre</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Format d’image</translation>
    </message>
    <message>
        <source>Motion Speed</source>
        <translation>Vitesse de suivi</translation>
    </message>
    <message>
        <source>Analyze</source>
        <translation>Analyser</translation>
    </message>
    <message>
        <source>AutoReframe_Restart</source>
        <translation>Réanalyser</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
</context>
<context>
    <name>KrCropKeys</name>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>The arrow keys move the crop, with Shift in larger steps.</source>
        <translation>Les touches fléchées déplacent le cadre, avec Maj par pas plus grands.</translation>
    </message>
</context>
<context>
    <name>KrDialogExtension</name>
    <message>
        <source>The crop follows your choice</source>
        <translation>Le cadre suit votre choix</translation>
    </message>
    <message>
        <source>The crop avoids your choice</source>
        <translation>Le cadre évite votre choix</translation>
    </message>
    <message>
        <source>The crop is held</source>
        <translation>Le cadre reste fixe</translation>
    </message>
    <message>
        <source>The whole picture is shown</source>
        <translation>L’image entière est montrée</translation>
    </message>
    <message>
        <source>The analysis decides</source>
        <translation>L’analyse décide</translation>
    </message>
    <message>
        <source>Lost from %1: point again</source>
        <translation>Perdu à partir de %1&#xa0;: désigner à nouveau</translation>
    </message>
    <message>
        <source>Perhaps lost from %1: look, and point again</source>
        <translation>Peut-être perdu à partir de %1&#xa0;: vérifier et désigner à nouveau</translation>
    </message>
    <message>
        <source>Settings changed: analyze again</source>
        <translation>Réglages modifiés&#xa0;: réanalyser</translation>
    </message>
    <message numerus="yes">
        <source>%n choices are kept, but not in this cut of the video</source>
        <translation>
            <numerusform>%n choix est conservé, mais pas dans ce montage de la vidéo</numerusform>
            <numerusform>%n choix sont conservés, mais pas dans ce montage de la vidéo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n choices were moved to where their pictures are</source>
        <translation>
            <numerusform>%n choix a été déplacé là où est son image</numerusform>
            <numerusform>%n choix ont été déplacés là où sont leurs images</numerusform>
        </translation>
    </message>
    <message>
        <source>Following: %1 %</source>
        <translation>Suivi&#xa0;: %1&#xa0;%</translation>
    </message>
    <message>
        <source>Your edit stays here</source>
        <translation>Votre modification reste ici</translation>
    </message>
</context>
<context>
    <name>KrDoubtfulShots</name>
    <message>
        <source>Previous Doubtful Shot (%1)</source>
        <translation>Plan douteux précédent (%1)</translation>
    </message>
    <message>
        <source>Next Doubtful Shot (%1)</source>
        <translation>Plan douteux suivant (%1)</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n shots to look at</source>
        <translation>
            <numerusform>%1 sur %n plan à vérifier</numerusform>
            <numerusform>%1 sur %n plans à vérifier</numerusform>
        </translation>
    </message>
    <message>
        <source>All doubtful shots seen</source>
        <translation>Tous les plans douteux ont été vus</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>Plan %1 sur %2</translation>
    </message>
    <message>
        <source>nothing stands out</source>
        <translation>rien ne ressort</translation>
    </message>
    <message>
        <source>what stands out is in several places, far apart</source>
        <translation>plusieurs endroits ressortent, éloignés les uns des autres</translation>
    </message>
    <message>
        <source>several people or animals, far apart</source>
        <translation>plusieurs personnes ou animaux, éloignés les uns des autres</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>KrEditPictures</name>
    <message numerus="yes">
        <source>%n edit points are kept, but not in this cut of the video</source>
        <translation>
            <numerusform>%n point d’édition est conservé, mais pas dans ce montage de la vidéo</numerusform>
            <numerusform>%n points d’édition sont conservés, mais pas dans ce montage de la vidéo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit points were moved to where their pictures are</source>
        <translation>
            <numerusform>%n point d’édition a été déplacé là où sont ses images</numerusform>
            <numerusform>%n points d’édition ont été déplacés là où sont leurs images</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KrExportStatus</name>
    <message>
        <source>Progress of the export</source>
        <translation>Progression de l’export</translation>
    </message>
    <message>
        <source>The size of the exported video in pixels.</source>
        <translation>La taille de la vidéo exportée en pixels.</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Opens the folder of the exported video.</source>
        <translation>Ouvre le dossier de la vidéo exportée.</translation>
    </message>
    <message>
        <source>Output: %1 × %2</source>
        <translation>Sortie&#xa0;: %1 × %2</translation>
    </message>
    <message>
        <source>Waiting in the export queue</source>
        <translation>En attente d’exportation</translation>
    </message>
    <message>
        <source>Exporting: %1 %</source>
        <translation>Exportation&#xa0;: %1&#xa0;%</translation>
    </message>
    <message>
        <source>Exported</source>
        <translation>Exporté</translation>
    </message>
    <message>
        <source>Export cancelled</source>
        <translation>Export annulé</translation>
    </message>
    <message>
        <source>Output: %1 × %2, enlarged</source>
        <translation>Sortie&#xa0;: %1 × %2, agrandie</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>The size in which the video is exported.</source>
        <translation>La taille dans laquelle la vidéo est exportée.</translation>
    </message>
</context>
<context>
    <name>KrFollowControls</name>
    <message>
        <source>This looks like background</source>
        <translation>Cela ressemble à l’arrière-plan</translation>
    </message>
    <message>
        <source>Hold the Crop Here in This Shot</source>
        <translation>Fixer le cadre ici dans ce plan</translation>
    </message>
    <message>
        <source>Follow This Anyway</source>
        <translation>Suivre quand même</translation>
    </message>
    <message>
        <source>Follow This</source>
        <translation>Suivre ceci</translation>
    </message>
    <message>
        <source>Not This</source>
        <translation>Pas ceci</translation>
    </message>
    <message>
        <source>Hold the Crop in This Shot</source>
        <translation>Fixer le cadre dans ce plan</translation>
    </message>
    <message>
        <source>Show the Whole Picture in This Shot</source>
        <translation>Montrer l’image entière dans ce plan</translation>
    </message>
    <message>
        <source>Back to Automatic</source>
        <translation>Revenir à l’automatique</translation>
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
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
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
        <translation>Comparer les formats d’image</translation>
    </message>
</context>
<context>
    <name>KrRatioPane</name>
    <message>
        <source>Result in %1:%2</source>
        <translation>Résultat en %1:%2</translation>
    </message>
    <message>
        <source>%1:%2</source>
        <translation>%1:%2</translation>
    </message>
    <message>
        <source>%1 · finding the crop…</source>
        <translation>%1 · recherche du cadre…</translation>
    </message>
    <message>
        <source>%1 · %2 × %3</source>
        <translation>%1 · %2 × %3</translation>
    </message>
    <message>
        <source>%1 · analyze the video again</source>
        <translation>%1 · à réanalyser</translation>
    </message>
</context>
<context>
    <name>KrViewMenu</name>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Safe Zones</source>
        <translation>Zones sûres</translation>
    </message>
    <message>
        <source>Dims what players of vertical videos cover with texts and buttons. For 9:16 only.</source>
        <translation>Assombrit ce que les lecteurs de vidéos verticales couvrent de textes et de boutons. Pour 9:16 uniquement.</translation>
    </message>
    <message>
        <source>Thirds</source>
        <translation>Tiers</translation>
    </message>
    <message>
        <source>A grid that divides the result into thirds.</source>
        <translation>Une grille qui divise le résultat en tiers.</translation>
    </message>
    <message>
        <source>Headroom</source>
        <translation>Espace au-dessus de la tête</translation>
    </message>
    <message>
        <source>The band in which the top of a head belongs.</source>
        <translation>La bande où doit se trouver le haut d’une tête.</translation>
    </message>
    <message>
        <source>Compare Aspect Ratios…</source>
        <translation>Comparer les formats d’image…</translation>
    </message>
    <message>
        <source>Shows the results of several aspect ratios side by side.</source>
        <translation>Montre côte à côte les résultats de plusieurs formats d’image.</translation>
    </message>
</context>
<context>
    <name>KxAacEncoder</name>
    <message>
        <source>the AAC encoder is missing</source>
        <translation>l’encodeur AAC est absent</translation>
    </message>
    <message>
        <source>sound of %1 Hz and %2 channels is not supported</source>
        <translation>le son à %1 Hz et %2 canaux n’est pas pris en charge</translation>
    </message>
    <message>
        <source>the sound encoder does not start (%1)</source>
        <translation>l’encodeur audio ne démarre pas (%1)</translation>
    </message>
</context>
<context>
    <name>KxAudioReader</name>
    <message>
        <source>it has no such sound track</source>
        <translation>il n’y a pas de telle piste audio</translation>
    </message>
</context>
<context>
    <name>KxAudioTrack</name>
    <message>
        <source>its sound format (%1) is not supported</source>
        <translation>le format audio (%1) n’est pas pris en charge</translation>
    </message>
    <message>
        <source>its sound is damaged</source>
        <translation>le son est endommagé</translation>
    </message>
</context>
<context>
    <name>KxAutoReframeService</name>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>Impossible d’analyser %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>the stored choices</source>
        <translation>les choix enregistrés</translation>
    </message>
</context>
<context>
    <name>KxAvError</name>
    <message>
        <source>it was cancelled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>it ends too early</source>
        <translation>le fichier se termine trop tôt</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>le fichier est endommagé</translation>
    </message>
    <message>
        <source>its format is not supported</source>
        <translation>le format n’est pas pris en charge</translation>
    </message>
</context>
<context>
    <name>KxCacheFolder</name>
    <message>
        <source>Cannot make the cache folder %1: %2.</source>
        <translation>Impossible de créer le dossier de cache %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>KxChoicesFormat</name>
    <message>
        <source>Cannot use %1: %2.</source>
        <translation>Impossible d’utiliser %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>choice %1 has no valid time (&quot;%2&quot;), in seconds</source>
        <translation>le choix %1 n’a pas de temps valide («&#xa0;%2&#xa0;») en secondes</translation>
    </message>
    <message>
        <source>choice %1 has &quot;%2&quot; that are no list</source>
        <translation>le choix %1 a «&#xa0;%2&#xa0;», qui n’est pas une liste</translation>
    </message>
    <message>
        <source>it has more than %1 seeds and boxes</source>
        <translation>plus de %1 points de départ et cadres</translation>
    </message>
    <message>
        <source>choice %1 has a box that is not left, top, width and height in fractions of the picture</source>
        <translation>le choix %1 a un cadre qui n’est pas gauche, haut, largeur et hauteur en fractions de l’image</translation>
    </message>
    <message>
        <source>choice %1 has no &quot;seeds&quot; that show what it means</source>
        <translation>le choix %1 n’a pas de «&#xa0;seeds&#xa0;» montrant ce qui est visé</translation>
    </message>
    <message>
        <source>choice %1 has more than %2 &quot;pictures&quot;</source>
        <translation>le choix %1 a plus de %2 «&#xa0;pictures&#xa0;»</translation>
    </message>
    <message>
        <source>choice %1 has &quot;pictures&quot; that are not times with 16 hexadecimal digits</source>
        <translation>le choix %1 a des «&#xa0;pictures&#xa0;» qui ne sont pas des temps avec 16 chiffres hexadécimaux</translation>
    </message>
    <message>
        <source>choice %1 has no known &quot;kind&quot;; it is follow, avoid, hold, fit or automatic</source>
        <translation>le choix %1 n’a pas de «&#xa0;kind&#xa0;» connu&#xa0;: follow, avoid, hold, fit ou automatic</translation>
    </message>
    <message>
        <source>choice %1 ends before it begins</source>
        <translation>le choix %1 se termine avant de commencer</translation>
    </message>
    <message>
        <source>choice %1 has no &quot;centre&quot; in fractions of the picture</source>
        <translation>le choix %1 n’a pas de «&#xa0;centre&#xa0;» en fractions de l’image</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>plus de %1 octets</translation>
    </message>
    <message>
        <source>it is no list of choices (JSON, byte %1)</source>
        <translation>ce n’est pas une liste de choix (JSON, octet %1)</translation>
    </message>
    <message>
        <source>it is of version %1, and this program reads version %2</source>
        <translation>le fichier est de version %1, et ce programme lit la version %2</translation>
    </message>
    <message>
        <source>it has no &quot;version&quot;</source>
        <translation>«&#xa0;version&#xa0;» manque</translation>
    </message>
    <message>
        <source>it has no list of &quot;choices&quot;</source>
        <translation>la liste «&#xa0;choices&#xa0;» manque</translation>
    </message>
    <message>
        <source>it has more than %1 choices</source>
        <translation>plus de %1 choix</translation>
    </message>
    <message>
        <source>Cannot open %1: it is not a regular file.</source>
        <translation>Impossible d’ouvrir %1&#xa0;: ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>Impossible d’ouvrir %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>Impossible de lire %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>KxDetectorFiles</name>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>le fichier ne peut pas être lu</translation>
    </message>
    <message>
        <source>it is too large for a detector</source>
        <translation>le fichier est trop grand pour un détecteur</translation>
    </message>
    <message>
        <source>its checksum is unknown (no SHA256SUMS beside it names the file)</source>
        <translation>la somme de contrôle est inconnue (aucun SHA256SUMS du dossier ne cite le fichier)</translation>
    </message>
    <message>
        <source>it is damaged (SHA256SUMS has another checksum)</source>
        <translation>le fichier est endommagé (SHA256SUMS indique une autre somme de contrôle)</translation>
    </message>
    <message>
        <source>Cannot use the detector %1: %2.</source>
        <translation>Impossible d’utiliser le détecteur %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>ce dossier n’existe pas</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>ce n’est pas un dossier</translation>
    </message>
    <message>
        <source>it has neither %1 nor %2</source>
        <translation>il n’a ni %1 ni %2</translation>
    </message>
    <message>
        <source>Cannot use the models in %1: %2.</source>
        <translation>Impossible d’utiliser les modèles de %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The detector of people and animals is not installed; the analysis works without it.</source>
        <translation>Le détecteur de personnes et d’animaux n’est pas installé&#xa0;; l’analyse fonctionne sans lui.</translation>
    </message>
    <message>
        <source>it is not NanoDet-g as OpenCV can run it</source>
        <translation>ce n’est pas NanoDet-g tel qu’OpenCV peut l’exécuter</translation>
    </message>
    <message>
        <source>it is not a face detector that OpenCV can run</source>
        <translation>ce n’est pas un détecteur de visages qu’OpenCV peut exécuter</translation>
    </message>
</context>
<context>
    <name>KxEncoderProof</name>
    <message>
        <source>there is nothing to compare it with</source>
        <translation>il n’y a rien à quoi la comparer</translation>
    </message>
    <message>
        <source>of %1 pictures it wrote %2</source>
        <translation>sur %1 images, %2 ont été écrites</translation>
    </message>
    <message>
        <source>its pictures have another size or format</source>
        <translation>ses images ont une autre taille ou un autre format</translation>
    </message>
    <message>
        <source>its picture %1 differs too much (%2 dB, %3 are needed)</source>
        <translation>son image %1 diffère trop (%2 dB, il en faut %3)</translation>
    </message>
</context>
<context>
    <name>KxFittedCutter</name>
    <message>
        <source>Cannot cut a picture: the rectangle to cut out is empty.</source>
        <translation>Impossible de découper une image&#xa0;: le rectangle à découper est vide.</translation>
    </message>
    <message>
        <source>Cannot cut a picture: memory ran out.</source>
        <translation>Impossible de découper une image&#xa0;: mémoire insuffisante.</translation>
    </message>
</context>
<context>
    <name>KxFollowPass</name>
    <message>
        <source>Cannot follow in %1: %2.</source>
        <translation>Suivi impossible dans %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>KxFrameCutter</name>
    <message>
        <source>Cannot cut a picture: the rectangle to cut out is empty.</source>
        <translation>Impossible de découper une image&#xa0;: le rectangle à découper est vide.</translation>
    </message>
    <message>
        <source>Cannot cut a picture: its pixel format &quot;%1&quot; cannot be converted.</source>
        <translation>Impossible de découper une image&#xa0;: son format de pixels «&#xa0;%1&#xa0;» ne peut pas être converti.</translation>
    </message>
    <message>
        <source>Cannot cut a picture: memory ran out.</source>
        <translation>Impossible de découper une image&#xa0;: mémoire insuffisante.</translation>
    </message>
    <message>
        <source>Cannot cut a picture: it cannot be scaled from %1 x %2 to %3 x %4.</source>
        <translation>Impossible de découper une image&#xa0;: elle ne peut pas passer de %1 x %2 à %3 x %4.</translation>
    </message>
</context>
<context>
    <name>KxInputFile</name>
    <message>
        <source>it is a single picture, not a video</source>
        <translation>c’est une image seule, pas une vidéo</translation>
    </message>
    <message>
        <source>it is a list of other files, not a video</source>
        <translation>c’est une liste d’autres fichiers, pas une vidéo</translation>
    </message>
    <message>
        <source>it is not a video file</source>
        <translation>ce n’est pas un fichier vidéo</translation>
    </message>
    <message>
        <source>it has more than %1 streams</source>
        <translation>le fichier a plus de %1 flux</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>Impossible d’ouvrir %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>reading it takes too long</source>
        <translation>la lecture prend trop de temps</translation>
    </message>
    <message>
        <source>it is damaged or incomplete</source>
        <translation>le fichier est endommagé ou incomplet</translation>
    </message>
    <message>
        <source>it is a link to a file that does not exist</source>
        <translation>c’est un lien vers un fichier qui n’existe pas</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>permission is denied</source>
        <translation>l’accès est refusé</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>its pictures are too large (%1 x %2)</source>
        <translation>ses images sont trop grandes (%1 x %2)</translation>
    </message>
    <message>
        <source>it has sound but no moving picture</source>
        <translation>le fichier a du son mais pas d’image animée</translation>
    </message>
    <message>
        <source>it has no moving picture</source>
        <translation>le fichier n’a pas d’image animée</translation>
    </message>
    <message>
        <source>its name is not valid UTF-8; rename it</source>
        <translation>son nom n’est pas de l’UTF-8 valide&#xa0;; veuillez le renommer</translation>
    </message>
</context>
<context>
    <name>KxJoinedPictures</name>
    <message>
        <source>%1 does not hold pictures of a part of this video</source>
        <translation>%1 ne contient pas d’images d’une partie de cette vidéo</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 est endommagé</translation>
    </message>
    <message>
        <source>%1 begins with other pictures than the part before ends with; analyse the video as a whole</source>
        <translation>%1 commence par d’autres images que celles qui terminent la partie précédente&#xa0;; analyser la vidéo entière</translation>
    </message>
</context>
<context>
    <name>KxLanguage</name>
    <message>
        <source>Language of the texts: %1. Otherwise that of the system.</source>
        <translation>Langue des textes&#xa0;: %1. Sinon celle du système.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an available language; choose one of %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une langue disponible&#xa0;; choisir parmi %2.</translation>
    </message>
</context>
<context>
    <name>KxMediaLibraryUtils</name>
    <message>
        <source>Cannot open %1: it has no moving picture.</source>
        <translation>Impossible d’ouvrir %1&#xa0;: le fichier n’a pas d’image animée.</translation>
    </message>
</context>
<context>
    <name>KxMediaPlayerPresenter</name>
    <message>
        <source>Cannot show the timeline: it holds no video.</source>
        <translation>Impossible d’afficher la timeline&#xa0;: elle ne contient aucune vidéo.</translation>
    </message>
    <message>
        <source>Cannot show %1: %2.</source>
        <translation>Impossible d’afficher %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>its pictures cannot be decoded</source>
        <translation>ses images ne peuvent pas être décodées</translation>
    </message>
</context>
<context>
    <name>KxMessageBox</name>
    <message>
        <source>Do not show this again</source>
        <translation>Ne plus afficher</translation>
    </message>
</context>
<context>
    <name>KxMp4Writer</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>Impossible d’écrire %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>pictures of %1 x %2 pixels cannot be encoded; both have to be even</source>
        <translation>des images de %1 x %2 pixels ne peuvent pas être encodées&#xa0;; les deux nombres doivent être pairs</translation>
    </message>
    <message>
        <source>the frame rate is unknown</source>
        <translation>la fréquence d’images est inconnue</translation>
    </message>
    <message>
        <source>there is no picture to write</source>
        <translation>il n’y a pas d’image à écrire</translation>
    </message>
</context>
<context>
    <name>KxOpenFileLineEdit</name>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
</context>
<context>
    <name>KxOpenFileName</name>
    <message>
        <source>All files(%1)</source>
        <translation>Tous les fichiers(%1)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
</context>
<context>
    <name>KxOutputFile</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>Impossible d’écrire %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>no free name was found in its folder</source>
        <translation>aucun nom libre n’a été trouvé dans son dossier</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>le dossier %1 n’existe pas</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 n’est pas un dossier</translation>
    </message>
</context>
<context>
    <name>KxOutputSize</name>
    <message>
        <source>the size %1 x %2 does not have the shape of the crop; %1 x %3 does</source>
        <translation>la taille %1 x %2 n’a pas la forme du cadre&#xa0;; %1 x %3 l’a</translation>
    </message>
</context>
<context>
    <name>KxPictureFeed</name>
    <message>
        <source>Cannot render %1: %2.</source>
        <translation>Impossible de produire %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Cannot render %1 at frame %2. %3</source>
        <translation>Impossible de produire %1 à l’image %2. %3</translation>
    </message>
    <message>
        <source>Memory ran out.</source>
        <translation>Mémoire insuffisante.</translation>
    </message>
</context>
<context>
    <name>KxPictureFilter</name>
    <message>
        <source>it yields no picture</source>
        <translation>le résultat est vide</translation>
    </message>
</context>
<context>
    <name>KxPicturesFile</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>Impossible d’écrire %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 is cut off or damaged: it decodes only in part.</source>
        <translation>%1 est tronqué ou endommagé&#xa0;: il n’est décodé qu’en partie.</translation>
    </message>
</context>
<context>
    <name>KxPlayerToolBarBase</name>
    <message>
        <source>Play (%1)</source>
        <translation>Lecture (%1)</translation>
    </message>
    <message>
        <source>Pause (%1)</source>
        <translation>Pause (%1)</translation>
    </message>
    <message>
        <source>Stop (%1)</source>
        <translation>Arrêter (%1)</translation>
    </message>
    <message>
        <source>Backward (%1)</source>
        <translation>Reculer (%1)</translation>
    </message>
    <message>
        <source>Forward (%1)</source>
        <translation>Avancer (%1)</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Lecture ou pause</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>Reculer</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avancer</translation>
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
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>KxRenderSound</name>
    <message>
        <source>The sound is silent; its loudness is not changed.</source>
        <translation>Le son est silencieux&#xa0;; son niveau n’est pas modifié.</translation>
    </message>
    <message>
        <source>The loudness of the sound is not changed: %1.</source>
        <translation>Le niveau du son n’est pas modifié&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The sound is encoded again: %1.</source>
        <translation>Le son est encodé à nouveau&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The sound is left out. %1</source>
        <translation>Le son est omis. %1</translation>
    </message>
</context>
<context>
    <name>KxRenderSource</name>
    <message>
        <source>Cannot render the timeline: it shows no file.</source>
        <translation>Impossible de produire la timeline&#xa0;: elle ne montre aucun fichier.</translation>
    </message>
</context>
<context>
    <name>KxRenderer</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>Impossible d’écrire %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>a resolution of %1 x %2 is not possible</source>
        <translation>une résolution de %1 x %2 n’est pas possible</translation>
    </message>
    <message>
        <source>it is the very file that is rendered</source>
        <translation>c’est le fichier même qui est traité</translation>
    </message>
    <message>
        <source>Cannot render %1: it is damaged.</source>
        <translation>Impossible de produire %1&#xa0;: le fichier est endommagé.</translation>
    </message>
    <message>
        <source>%1 is damaged or incomplete: only %2 of %3 frames could be rendered.</source>
        <translation>%1 est endommagé ou incomplet&#xa0;: seules %2 images sur %3 ont pu être traitées.</translation>
    </message>
    <message>
        <source>The sound of %1 is damaged and ends early.</source>
        <translation>Le son de %1 est endommagé et se termine trop tôt.</translation>
    </message>
    <message>
        <source>%1 frames a second are not possible</source>
        <translation>%1 images par seconde ne sont pas possibles</translation>
    </message>
    <message>
        <source>Cannot render %1: %2.</source>
        <translation>Impossible de produire %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>its parts have %1 of %2 frames</source>
        <translation>ses parties ont %1 images sur %2</translation>
    </message>
    <message>
        <source>there is no picture to write</source>
        <translation>il n’y a pas d’image à écrire</translation>
    </message>
</context>
<context>
    <name>KxSoundPackets</name>
    <message>
        <source>the time stamps of the file jump</source>
        <translation>les horodatages du fichier sautent</translation>
    </message>
    <message>
        <source>there is no such sound track</source>
        <translation>il n’y a pas de telle piste audio</translation>
    </message>
    <message>
        <source>MP4 cannot hold %1</source>
        <translation>MP4 ne peut pas contenir %1</translation>
    </message>
</context>
<context>
    <name>KxSystemError</name>
    <message>
        <source>the file would become too large for its disk</source>
        <translation>le fichier deviendrait trop grand pour son disque</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>permission is denied</source>
        <translation>l’accès est refusé</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>le disque est en lecture seule</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>le disque signale une erreur</translation>
    </message>
    <message>
        <source>memory ran out</source>
        <translation>mémoire insuffisante</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>trop de fichiers sont ouverts</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>le nom est trop long</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>its reader has gone</source>
        <translation>le destinataire s’est arrêté</translation>
    </message>
    <message>
        <source>it is in use</source>
        <translation>en cours d’utilisation</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>le disque est plein</translation>
    </message>
</context>
<context>
    <name>KxSystemFile</name>
    <message>
        <source>another program has it open</source>
        <translation>un autre programme l’a ouvert</translation>
    </message>
</context>
<context>
    <name>KxThread</name>
    <message>
        <source>memory ran out</source>
        <translation>mémoire insuffisante</translation>
    </message>
    <message>
        <source>an unknown error occurred</source>
        <translation>une erreur inconnue s’est produite</translation>
    </message>
</context>
<context>
    <name>KxThumbnailPicture</name>
    <message>
        <source>Cannot show %1: no picture could be read.</source>
        <translation>Impossible d’afficher %1&#xa0;: aucune image n’a pu être lue.</translation>
    </message>
</context>
<context>
    <name>KxThumbnailer</name>
    <message>
        <source>Cannot show %1: %2.</source>
        <translation>Impossible d’afficher %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>KxToneMapper</name>
    <message>
        <source>Cannot convert a picture of high dynamic range: %1.</source>
        <translation>Impossible de convertir une image à grande gamme dynamique&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>KxTopLevelWindowTitleBar</name>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>KxVideoAnalysis</name>
    <message>
        <source>Choice %1 is applied %2 s earlier, where its pictures are in %3.</source>
        <translation>Le choix %1 s’applique %2 s plus tôt, là où sont ses images dans %3.</translation>
    </message>
    <message>
        <source>Choice %1 is applied %2 s later, where its pictures are in %3.</source>
        <translation>Le choix %1 s’applique %2 s plus tard, là où sont ses images dans %3.</translation>
    </message>
    <message>
        <source>Choice %1 is not applied: its pictures are not in %2.</source>
        <translation>Le choix %1 ne s’applique pas&#xa0;: ses images ne sont pas dans %2.</translation>
    </message>
    <message>
        <source>The aspect ratio %1:%2 has a side that is not positive.</source>
        <translation>Le format d’image %1:%2 a un côté qui n’est pas positif.</translation>
    </message>
    <message>
        <source>Cannot analyse %1: its time stamps span %2 frames, the limit is %3.</source>
        <translation>Impossible d’analyser %1&#xa0;: ses horodatages couvrent %2 images, la limite est %3.</translation>
    </message>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>Impossible d’analyser %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 is cut off or damaged: it decodes only in part.</source>
        <translation>%1 est tronqué ou endommagé&#xa0;: il n’est décodé qu’en partie.</translation>
    </message>
    <message>
        <source>What is followed is lost from %1 s to %2 s: point at it again there.</source>
        <translation>Ce qui est suivi est perdu de %1 s à %2 s&#xa0;: le désigner à nouveau à cet endroit.</translation>
    </message>
    <message>
        <source>Choice %1 is not applied: its time is outside of %2.</source>
        <translation>Le choix %1 ne s’applique pas&#xa0;: son temps est en dehors de %2.</translation>
    </message>
</context>
<context>
    <name>KxVideoDecoder</name>
    <message>
        <source>its video format (%1) is not supported</source>
        <translation>le format vidéo (%1) n’est pas pris en charge</translation>
    </message>
    <message>
        <source>its video stream is damaged</source>
        <translation>le flux vidéo est endommagé</translation>
    </message>
</context>
<context>
    <name>KxVideoEncoder</name>
    <message>
        <source>the video encoder %1 is missing</source>
        <translation>l’encodeur vidéo %1 est absent</translation>
    </message>
    <message>
        <source>the video encoder %1 does not start (%2)</source>
        <translation>l’encodeur vidéo %1 ne démarre pas (%2)</translation>
    </message>
</context>
<context>
    <name>KxVideoPart</name>
    <message>
        <source>it has no picture</source>
        <translation>il n’a pas d’image</translation>
    </message>
</context>
<context>
    <name>KxVideoParts</name>
    <message>
        <source>Cannot join %1 to %2: it was encoded in another way.</source>
        <translation>Impossible de joindre %1 à %2&#xa0;: l’encodage est différent.</translation>
    </message>
    <message>
        <source>Cannot join %1: its time stamps are damaged.</source>
        <translation>Impossible de joindre %1&#xa0;: ses horodatages sont endommagés.</translation>
    </message>
    <message>
        <source>Cannot join %1: it is damaged.</source>
        <translation>Impossible de joindre %1&#xa0;: le fichier est endommagé.</translation>
    </message>
</context>
<context>
    <name>KxVideoSource</name>
    <message>
        <source>it was cancelled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>le fichier est endommagé</translation>
    </message>
    <message>
        <source>no picture of it can be decoded, it is damaged</source>
        <translation>aucune image ne peut être décodée, le fichier est endommagé</translation>
    </message>
    <message>
        <source>it is a single picture, not a video</source>
        <translation>c’est une image seule, pas une vidéo</translation>
    </message>
    <message>
        <source>it cannot be read from the start again</source>
        <translation>le fichier ne peut pas être relu depuis le début</translation>
    </message>
    <message>
        <source>its time stamps are damaged</source>
        <translation>ses horodatages sont endommagés</translation>
    </message>
</context>
<context>
    <name>KxWindowsNames</name>
    <message>
        <source>its name contains a control character</source>
        <translation>le nom contient un caractère de contrôle</translation>
    </message>
    <message>
        <source>a name cannot contain the character %1</source>
        <translation>un nom ne peut pas contenir le caractère %1</translation>
    </message>
    <message>
        <source>%1 is the name of a device</source>
        <translation>%1 est le nom d’un périphérique</translation>
    </message>
    <message>
        <source>a name cannot end with a dot or a space</source>
        <translation>un nom ne peut pas se terminer par un point ou une espace</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>le nom est trop long</translation>
    </message>
</context>
<context>
    <name>LibraryConnection</name>
    <message>
        <source>another program is using it</source>
        <translation>un autre programme l’utilise</translation>
    </message>
    <message>
        <source>it is write-protected</source>
        <translation>le fichier est protégé en écriture</translation>
    </message>
    <message>
        <source>the disk cannot be read or written</source>
        <translation>le disque ne peut être ni lu ni écrit</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>le fichier est endommagé</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>le disque est plein</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>le fichier ne peut pas être ouvert</translation>
    </message>
</context>
<context>
    <name>LibraryOpening</name>
    <message>
        <source>Cannot open the library %1: %2. What you do now is not saved.</source>
        <translation>Impossible d’ouvrir la bibliothèque %1&#xa0;: %2. Les modifications ne seront pas enregistrées.</translation>
    </message>
    <message>
        <source>its backup %1 cannot be written</source>
        <translation>sa sauvegarde %1 ne peut pas être écrite</translation>
    </message>
    <message>
        <source>it was written by a newer version of this program</source>
        <translation>elle vient d’une version plus récente de ce programme</translation>
    </message>
    <message>
        <source>its folder cannot be made</source>
        <translation>son dossier ne peut pas être créé</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>another program is opening it</source>
        <translation>un autre programme est en train de l’ouvrir</translation>
    </message>
    <message>
        <source>its folder cannot be written to</source>
        <translation>son dossier n’est pas accessible en écriture</translation>
    </message>
    <message>
        <source>it is damaged, and it cannot be renamed</source>
        <translation>elle est endommagée et ne peut pas être renommée</translation>
    </message>
    <message>
        <source>The library was damaged. It was renamed to %1, and a new one was begun.</source>
        <translation>La bibliothèque était endommagée. Elle a été renommée en %1, et une nouvelle a été créée.</translation>
    </message>
</context>
<context>
    <name>LibraryStore</name>
    <message>
        <source>Cannot read the library %1: %2. What you do now is not saved.</source>
        <translation>Impossible de lire la bibliothèque %1&#xa0;: %2. Les modifications ne seront pas enregistrées.</translation>
    </message>
    <message>
        <source>Cannot save the library %1: %2.</source>
        <translation>Impossible d’enregistrer la bibliothèque %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%n files that are no videos were skipped</source>
        <translation>
            <numerusform>%n fichier qui n’est pas une vidéo a été ignoré</numerusform>
            <numerusform>%n fichiers qui ne sont pas des vidéos ont été ignorés</numerusform>
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
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Reframe All…</source>
        <translation>Tout recadrer…</translation>
    </message>
    <message>
        <source>Auto Reframe…</source>
        <translation>Auto Reframe…</translation>
    </message>
    <message>
        <source>Add videos to the library</source>
        <translation>Ajouter des vidéos à la bibliothèque</translation>
    </message>
    <message>
        <source>Reframe all selected videos without looking at each</source>
        <translation>Recadrer toutes les vidéos sélectionnées sans vérifier chacune</translation>
    </message>
    <message>
        <source>Reframe the selected videos one after the other</source>
        <translation>Recadrer les vidéos sélectionnées l’une après l’autre</translation>
    </message>
    <message>
        <source>No videos yet</source>
        <translation>Pas encore de vidéos</translation>
    </message>
    <message numerus="yes">
        <source>%n videos</source>
        <translation>
            <numerusform>%n vidéo</numerusform>
            <numerusform>%n vidéos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n sélectionnée</numerusform>
            <numerusform>%n sélectionnées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n exports are not finished. They are cancelled when you quit.</source>
        <translation>
            <numerusform>%n export n’est pas terminé. Il sera annulé si vous quittez.</numerusform>
            <numerusform>%n exports ne sont pas terminés. Ils seront annulés si vous quittez.</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <translation>Continuer l’exportation</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>All supported files</source>
        <translation>Tous les fichiers pris en charge</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Import Folder</source>
        <translation>Importer un dossier</translation>
    </message>
    <message>
        <source>Import Folder…</source>
        <translation>Importer un dossier…</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Ouvrir un élément récent</translation>
    </message>
    <message>
        <source>Save Crop Track…</source>
        <translation>Enregistrer la piste de cadrage…</translation>
    </message>
    <message>
        <source>Open Crop Track…</source>
        <translation>Ouvrir une piste de cadrage…</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>About Auto Reframe</source>
        <translation>À propos d’Auto Reframe</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>… et %n autre.</numerusform>
            <numerusform>… et %n autres.</numerusform>
        </translation>
    </message>
    <message>
        <source>Find %1</source>
        <translation>Rechercher %1</translation>
    </message>
    <message>
        <source>The content of this file differs from that of %1.</source>
        <translation>Le contenu de ce fichier diffère de celui de %1.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Use This File</source>
        <translation>Utiliser ce fichier</translation>
    </message>
    <message>
        <source>Your edits are kept, but may not fit this file.</source>
        <translation>Vos modifications sont conservées, mais pourraient ne pas convenir à ce fichier.</translation>
    </message>
    <message>
        <source>This computer may be too slow for the analysis. To try anyway, start it again.</source>
        <translation>Cet ordinateur est peut-être trop lent pour l’analyse. Pour essayer quand même, la relancer.</translation>
    </message>
    <message>
        <source>Continue with %1?</source>
        <translation>Continuer avec %1&#xa0;?</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message numerus="yes">
        <source>%n selected videos are left.</source>
        <translation>
            <numerusform>Il reste %n vidéo sélectionnée.</numerusform>
            <numerusform>Il reste %n vidéos sélectionnées.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is no longer in the library. Import it to look at its shots.</source>
        <translation>%1 n’est plus dans la bibliothèque. L’importer pour vérifier ses plans.</translation>
    </message>
    <message>
        <source>Language of the System</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>The crop track was saved.</source>
        <translation>La piste de cadrage a été enregistrée.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Open Crop Track</source>
        <translation>Ouvrir une piste de cadrage</translation>
    </message>
    <message>
        <source>Crop tracks</source>
        <translation>Pistes de cadrage</translation>
    </message>
    <message>
        <source>The file for %1 was saved.</source>
        <translation>Le fichier pour %1 a été enregistré.</translation>
    </message>
</context>
<context>
    <name>MediaBackendLoader</name>
    <message>
        <source>Cannot load the video engine: %1.</source>
        <translation>Impossible de charger le moteur vidéo&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>MediaLibrary</name>
    <message>
        <source>There are no videos in %1.</source>
        <translation>Il n’y a pas de vidéos dans %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n videos in %1 were left out: their names are not valid UTF-8. Rename them.</source>
        <translation>
            <numerusform>%n vidéo de %1 a été ignorée&#xa0;: son nom n’est pas de l’UTF-8 valide. Veuillez la renommer.</numerusform>
            <numerusform>%n vidéos de %1 ont été ignorées&#xa0;: leurs noms ne sont pas de l’UTF-8 valide. Veuillez les renommer.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaLibraryModel</name>
    <message>
        <source>Drop videos here</source>
        <translation>Déposer des vidéos ici</translation>
    </message>
    <message>
        <source>%1 was not found. Right-click to find it.</source>
        <translation>%1 est introuvable. Clic droit pour le rechercher.</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Ouverture…</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Fichier introuvable</translation>
    </message>
</context>
<context>
    <name>MediaLibraryView</name>
    <message>
        <source>Videos</source>
        <translation>Vidéos</translation>
    </message>
    <message>
        <source>Find File…</source>
        <translation>Rechercher le fichier…</translation>
    </message>
    <message>
        <source>Auto Reframe…</source>
        <translation>Auto Reframe…</translation>
    </message>
    <message>
        <source>Reframe All…</source>
        <translation>Tout recadrer…</translation>
    </message>
    <message>
        <source>Save Crop Track…</source>
        <translation>Enregistrer la piste de cadrage…</translation>
    </message>
    <message>
        <source>Open Crop Track…</source>
        <translation>Ouvrir une piste de cadrage…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Remove from Library</source>
        <translation>Retirer de la bibliothèque</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Drop videos here</source>
        <translation>Déposer des vidéos ici</translation>
    </message>
    <message>
        <source>or click to choose files</source>
        <translation>ou cliquer pour choisir des fichiers</translation>
    </message>
</context>
<context>
    <name>MediaLoader</name>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>Impossible d’ouvrir %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>MediaText</name>
    <message>
        <source>%1 fps</source>
        <translation>%1 i/s</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;Mo</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;Ko</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>%1 s restantes</translation>
    </message>
    <message>
        <source>%1 min %2 s left</source>
        <translation>%1 min %2 s restantes</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>%1 h %2 min restantes</translation>
    </message>
    <message numerus="yes">
        <source>%n of your edits are not in this cut of the video</source>
        <translation>
            <numerusform>%n modification n’est pas dans ce montage de la vidéo</numerusform>
            <numerusform>%n modifications ne sont pas dans ce montage de la vidéo</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OutputNames</name>
    <message>
        <source>There is no %1. Use %2.</source>
        <translation>%1 n’existe pas. Utiliser %2.</translation>
    </message>
    <message>
        <source>Enter a file name.</source>
        <translation>Saisir un nom de fichier.</translation>
    </message>
</context>
<context>
    <name>OutputOptions</name>
    <message>
        <source>--size takes even numbers up to 16384 such as 1080x1920, or a height such as 1920p; &quot;%1&quot; is neither.</source>
        <translation>--size prend des nombres pairs jusqu’à 16384, comme 1080x1920, ou une hauteur comme 1920p&#xa0;; «&#xa0;%1&#xa0;» n’est ni l’un ni l’autre.</translation>
    </message>
    <message>
        <source>--fps takes a number from 1 to 240; &quot;%1&quot; is none.</source>
        <translation>--fps prend un nombre de 1 à 240&#xa0;; «&#xa0;%1&#xa0;» n’en est pas un.</translation>
    </message>
    <message>
        <source>--quality takes a number from 0 to 100; &quot;%1&quot; is none.</source>
        <translation>--quality prend un nombre de 0 à 100&#xa0;; «&#xa0;%1&#xa0;» n’en est pas un.</translation>
    </message>
    <message>
        <source>--bitrate takes bits a second from 10k to 300M; &quot;%1&quot; are none.</source>
        <translation>--bitrate prend des bits par seconde de 10k à 300M&#xa0;; «&#xa0;%1&#xa0;» n’en est pas.</translation>
    </message>
    <message>
        <source>--codec takes h264, hevc or av1; &quot;%1&quot; is none of them.</source>
        <translation>--codec prend h264, hevc ou av1&#xa0;; «&#xa0;%1&#xa0;» n’en fait pas partie.</translation>
    </message>
    <message>
        <source>--encoder takes auto, software, vaapi, nvenc or qsv; &quot;%1&quot; is none of them.</source>
        <translation>--encoder prend auto, software, vaapi, nvenc ou qsv&#xa0;; «&#xa0;%1&#xa0;» n’en fait pas partie.</translation>
    </message>
    <message>
        <source>--hdr takes keep or tonemap; &quot;%1&quot; is neither.</source>
        <translation>--hdr prend keep ou tonemap&#xa0;; «&#xa0;%1&#xa0;» n’est ni l’un ni l’autre.</translation>
    </message>
    <message>
        <source>--sound takes copy or encode; &quot;%1&quot; is neither.</source>
        <translation>--sound prend copy ou encode&#xa0;; «&#xa0;%1&#xa0;» n’est ni l’un ni l’autre.</translation>
    </message>
    <message>
        <source>--loudness takes LUFS from -70 to -5; &quot;%1&quot; are none.</source>
        <translation>--loudness prend des LUFS de -70 à -5&#xa0;; «&#xa0;%1&#xa0;» n’en est pas.</translation>
    </message>
    <message>
        <source>--quality and --bitrate exclude each other.</source>
        <translation>--quality et --bitrate s’excluent.</translation>
    </message>
    <message>
        <source>--loudness changes the sound, which --sound copy does not.</source>
        <translation>--loudness modifie le son, ce que --sound copy ne fait pas.</translation>
    </message>
    <message>
        <source>--hdr keep needs --codec hevc.</source>
        <translation>--hdr keep nécessite --codec hevc.</translation>
    </message>
    <message>
        <source>--hdr keep needs --encoder software or auto.</source>
        <translation>--hdr keep nécessite --encoder software ou auto.</translation>
    </message>
    <message>
        <source>Size of the result, or its height, such as 1080x1920 or 1920p; as large as the crop when not given.</source>
        <translation>Taille du résultat, ou sa hauteur, comme 1080x1920 ou 1920p&#xa0;; aussi grand que le cadre si non indiqué.</translation>
    </message>
    <message>
        <source>Frames a second of the result; those of the source when not given.</source>
        <translation>Images par seconde du résultat&#xa0;; celles de la source si non indiqué.</translation>
    </message>
    <message>
        <source>Constant quality from 0 to 100, about alike in each codec, instead of a bit rate.</source>
        <translation>Qualité constante de 0 à 100, à peu près la même dans chaque codec, au lieu d’un débit.</translation>
    </message>
    <message>
        <source>Bits a second of the picture, such as 800k or 6M; those of the source when not given.</source>
        <translation>Bits par seconde de l’image, comme 800k ou 6M&#xa0;; ceux de la source si non indiqué.</translation>
    </message>
    <message>
        <source>Codec of the picture: h264, hevc or av1 (h264).</source>
        <translation>Codec de l’image&#xa0;: h264, hevc ou av1 (h264).</translation>
    </message>
    <message>
        <source>What encodes the picture: software, vaapi, nvenc, qsv, or auto: hardware if ten frames of the video show that it works (software).</source>
        <translation>Ce qui encode l’image&#xa0;: software, vaapi, nvenc, qsv, ou auto&#xa0;: le matériel si dix images de la vidéo montrent qu’il fonctionne (software).</translation>
    </message>
    <message>
        <source>What becomes of a picture in high dynamic range: tonemap to the usual range, or keep, as 10-bit HEVC (tonemap).</source>
        <translation>Ce que devient une image à grande gamme dynamique&#xa0;: tonemap vers la gamme habituelle, ou keep, en HEVC 10 bits (tonemap).</translation>
    </message>
    <message>
        <source>Bring the sound to this loudness in LUFS (EBU R128), such as -14.</source>
        <translation>Amener le son à ce niveau en LUFS (EBU R128), comme -14.</translation>
    </message>
    <message>
        <source>What becomes of the sound: encode as AAC, or copy bit for bit where MP4 can hold it. When not given, AAC in mono or stereo that nothing changes is copied, and any other sound is encoded.</source>
        <translation>Ce que devient le son&#xa0;: encode l’encode en AAC, copy le copie bit par bit si MP4 peut le contenir. Sans indication, l’AAC mono ou stéréo que rien ne change est copié et tout autre son est encodé.</translation>
    </message>
</context>
<context>
    <name>PreviewOverlay</name>
    <message>
        <source>Frame %1</source>
        <translation>Image %1</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>Plan %1 sur %2</translation>
    </message>
    <message>
        <source>confidence %1</source>
        <translation>confiance %1</translation>
    </message>
</context>
<context>
    <name>QueueBar</name>
    <message>
        <source>%1 of %2 done</source>
        <translation>%1 sur %2 terminés</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n échec</numerusform>
            <numerusform>%n échecs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n done</source>
        <translation>
            <numerusform>%n terminé</numerusform>
            <numerusform>%n terminés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cancelled</source>
        <translation>
            <numerusform>%n annulé</numerusform>
            <numerusform>%n annulés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n to look at</source>
        <translation>
            <numerusform>%n à vérifier</numerusform>
            <numerusform>%n à vérifier</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Progress of all exports</source>
        <translation>Progression de tous les exports</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Go on with the exports</source>
        <translation>Reprendre les exports</translation>
    </message>
    <message>
        <source>Interrupt the exports for a while</source>
        <translation>Interrompre les exports pour un moment</translation>
    </message>
    <message>
        <source>Cancel all</source>
        <translation>Tout annuler</translation>
    </message>
    <message>
        <source>Cancel all exports of Reframe All that are not done</source>
        <translation>Annuler tous les exports de Tout recadrer qui ne sont pas terminés</translation>
    </message>
    <message>
        <source>Retry failed</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Export those that failed again</source>
        <translation>Exporter à nouveau ceux qui ont échoué</translation>
    </message>
    <message>
        <source>Look at them</source>
        <translation>Les vérifier</translation>
    </message>
    <message>
        <source>Open the first video that has doubtful shots</source>
        <translation>Ouvrir la première vidéo qui a des plans douteux</translation>
    </message>
    <message numerus="yes">
        <source>%n without all edits</source>
        <translation>
            <numerusform>%n sans toutes les modifications</numerusform>
            <numerusform>%n sans toutes les modifications</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReframeJob</name>
    <message>
        <source>%1: %2 analysed</source>
        <translation>%1&#xa0;: %2 analysées</translation>
    </message>
    <message>
        <source>%1: %2 -&gt; %3</source>
        <translation>%1&#xa0;: %2 -&gt; %3</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 image</translation>
    </message>
    <message numerus="yes">
        <source>%n frames</source>
        <translation>
            <numerusform>%n image</numerusform>
            <numerusform>%n images</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has no moving picture.</source>
        <translation>Impossible de recadrer %1&#xa0;: le fichier n’a pas d’image animée.</translation>
    </message>
    <message>
        <source>Cannot follow %1 in %2: %3.</source>
        <translation>Impossible de suivre %1 dans %2&#xa0;: %3.</translation>
    </message>
    <message>
        <source>Cannot write %1: it is one of the inputs.</source>
        <translation>Impossible d’écrire %1&#xa0;: c’est l’une des entrées.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it is too short (%2; 32 are needed).</source>
        <translation>Impossible de recadrer %1&#xa0;: la vidéo est trop courte (%2&#xa0;; il en faut 32).</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has the aspect ratio %2:%3 already.</source>
        <translation>Impossible de recadrer %1&#xa0;: la vidéo est déjà au format %2:%3.</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds %2 of the %3 of %4.</source>
        <translation>Impossible d’utiliser %1&#xa0;: %2 au lieu de %3 (%4).</translation>
    </message>
    <message>
        <source>Cannot reframe %1: the analysis found nothing.</source>
        <translation>Impossible de recadrer %1&#xa0;: l’analyse n’a rien trouvé.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: there is no video in this folder.</source>
        <translation>Impossible de recadrer %1&#xa0;: ce dossier ne contient aucune vidéo.</translation>
    </message>
    <message>
        <source>Cannot draw the contact sheet of %1.</source>
        <translation>Impossible de dessiner la planche-contact de %1.</translation>
    </message>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>Impossible de recadrer %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1: %2 -&gt; %3 (encoded by %4)</source>
        <translation>%1&#xa0;: %2 -&gt; %3 (encodé par %4)</translation>
    </message>
    <message>
        <source>frames %1 to %2</source>
        <translation>images %1 à %2</translation>
    </message>
    <message>
        <source>%1: skipped, up to date: %2</source>
        <translation>%1&#xa0;: ignoré, déjà à jour&#xa0;: %2</translation>
    </message>
    <message>
        <source>The picture of %1 is enlarged: its size, %2 x %3, is above that of the crop, %4 x %5.</source>
        <translation>L’image de %1 est agrandie&#xa0;: sa taille, %2 x %3, dépasse celle du cadre, %4 x %5.</translation>
    </message>
</context>
<context>
    <name>ReframeJobParts</name>
    <message>
        <source>Cannot take that part of %1: %2.</source>
        <translation>Impossible de prendre cette partie de %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Cannot join %1: pictures are for an analysis, and with --apply there is none.</source>
        <translation>Impossible de joindre %1&#xa0;: les images servent à une analyse, et avec --apply il n’y en a pas.</translation>
    </message>
    <message>
        <source>Cannot join %1: parts of the video need the crop track that they were made with (--apply).</source>
        <translation>Impossible de joindre %1&#xa0;: les parties de la vidéo ont besoin de la piste de recadrage avec laquelle elles ont été faites (--apply).</translation>
    </message>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>Impossible d’analyser %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>ReframeOptions</name>
    <message>
        <source>Aspect ratio of the result (9:16); several with commas between them: the video is looked at once.</source>
        <translation>Format d’image du résultat (9:16)&#xa0;; plusieurs séparés par des virgules&#xa0;: la vidéo n’est regardée qu’une fois.</translation>
    </message>
    <message>
        <source>How readily the crop follows: auto, fast or slow (auto).</source>
        <translation>Réactivité du cadre&#xa0;: auto, fast ou slow (auto).</translation>
    </message>
    <message>
        <source>Where several people talk, follow who speaks: auto or off (auto).</source>
        <translation>Quand plusieurs personnes parlent, suivre celle qui parle&#xa0;: auto ou off (auto).</translation>
    </message>
    <message>
        <source>Where to write the video; beside the input when not given.</source>
        <translation>Où écrire la vidéo&#xa0;; à côté de l’entrée si non indiqué.</translation>
    </message>
    <message>
        <source>Write the crop of every frame, as .json or .csv.</source>
        <translation>Écrire le cadre de chaque image, en .json ou .csv.</translation>
    </message>
    <message>
        <source>Write the crop as a project or as keyframes for another program: .mlt, .kdenlive, .fcpxml, .txt (After Effects) or .ffscript (ffmpeg). A suffix alone, such as mlt, names the file after the video. May be given several times.</source>
        <translation>Écrire le cadre sous forme de projet ou d’images clés pour un autre programme&#xa0;: .mlt, .kdenlive, .fcpxml, .txt (After Effects) ou .ffscript (ffmpeg). Un suffixe seul, tel que mlt, nomme le fichier d’après la vidéo. Peut être donné plusieurs fois.</translation>
    </message>
    <message>
        <source>Take the crops from FILE instead of analysing.</source>
        <translation>Prendre les cadres de FILE au lieu d’analyser.</translation>
    </message>
    <message>
        <source>Decide as FILE says (.json): what to follow, to avoid, where to hold the crop or to show the whole picture.</source>
        <translation>Décider comme l’indique FILE (.json)&#xa0;: ce qu’il faut suivre, éviter, où fixer le cadre ou montrer l’image entière.</translation>
    </message>
    <message>
        <source>Write what --choices and --follow decided to FILE (.json), with what its pictures look like, for this or another cut of the video.</source>
        <translation>Écrire dans FILE (.json) ce que --choices et --follow ont décidé, avec l’aspect des images, pour ce montage de la vidéo ou un autre.</translation>
    </message>
    <message>
        <source>Follow what is at the point X,Y, or in the box from X,Y of the size W,H, through its shot. TIME in seconds, or a frame (75f); the place in pixels, or in fractions of the picture. May be given several times.</source>
        <translation>Suivre ce qui est au point X,Y, ou dans le cadre partant de X,Y de taille W,H, pendant tout son plan. TIME en secondes, ou une image (75f)&#xa0;; l’endroit en pixels, ou en fractions de l’image. Peut être donné plusieurs fois.</translation>
    </message>
    <message>
        <source>Write the source with the crop drawn: a contact sheet as .png, or all of it, with sound and with what the analysis found, as .mp4.</source>
        <translation>Écrire la source avec le cadre dessiné&#xa0;: une planche-contact en .png, ou toute la vidéo, avec le son et ce que l’analyse a trouvé, en .mp4.</translation>
    </message>
    <message>
        <source>Write a page (.html) that shows what the analysis found.</source>
        <translation>Écrire une page (.html) qui montre ce que l’analyse a trouvé.</translation>
    </message>
    <message>
        <source>Keep what an analysis saw in FOLDER, or nowhere, instead of the usual folder.</source>
        <translation>Conserver ce qu’une analyse a vu dans FOLDER, ou nulle part, au lieu du dossier habituel.</translation>
    </message>
    <message>
        <source>Use the optional detectors in FOLDER, or none, instead of those that are installed.</source>
        <translation>Utiliser les détecteurs facultatifs de FOLDER, ou aucun, au lieu de ceux qui sont installés.</translation>
    </message>
    <message>
        <source>Analyse only; write no video.</source>
        <translation>Analyser seulement&#xa0;; ne pas écrire de vidéo.</translation>
    </message>
    <message>
        <source>Replace existing files instead of adding a number to the name.</source>
        <translation>Remplacer les fichiers existants au lieu d’ajouter un numéro au nom.</translation>
    </message>
    <message>
        <source>Print progress and results as JSON lines.</source>
        <translation>Afficher la progression et les résultats en lignes JSON.</translation>
    </message>
    <message>
        <source>Print errors only.</source>
        <translation>N’afficher que les erreurs.</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Afficher ce texte.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>%1
Try reframe --help.</source>
        <translation>%1
Voir reframe --help.</translation>
    </message>
    <message>
        <source>%1 or .%2</source>
        <translation>%1 ou .%2</translation>
    </message>
    <message>
        <source>No input file was given.</source>
        <translation>Aucun fichier d’entrée n’a été donné.</translation>
    </message>
    <message>
        <source>--output and --no-video exclude each other.</source>
        <translation>--output et --no-video s’excluent.</translation>
    </message>
    <message>
        <source>--report shows what an analysis found, and with --apply there is none.</source>
        <translation>--report montre ce qu’une analyse a trouvé, et avec --apply il n’y en a pas.</translation>
    </message>
    <message>
        <source>--apply takes one input.</source>
        <translation>--apply prend une seule entrée.</translation>
    </message>
    <message>
        <source>--apply takes one aspect ratio.</source>
        <translation>--apply prend un seul format d’image.</translation>
    </message>
    <message>
        <source>--save-choices takes one aspect ratio.</source>
        <translation>--save-choices prend un seul format d’image.</translation>
    </message>
    <message>
        <source>--choices and --follow take one input.</source>
        <translation>--choices et --follow prennent une seule entrée.</translation>
    </message>
    <message>
        <source>--choices and --follow guide the analysis, and with --apply there is none.</source>
        <translation>--choices et --follow guident l’analyse, et avec --apply il n’y en a pas.</translation>
    </message>
    <message>
        <source>--save-choices writes what --choices and --follow decided, and neither was given.</source>
        <translation>--save-choices écrit ce que --choices et --follow ont décidé, et aucun n’a été donné.</translation>
    </message>
    <message>
        <source>--edit-list takes the name of a .%1 file or such a suffix alone; %2 is neither.</source>
        <translation>--edit-list prend le nom d’un fichier .%1 ou un tel suffixe seul&#xa0;; %2 n’est ni l’un ni l’autre.</translation>
    </message>
    <message>
        <source>With several inputs or aspect ratios --edit-list takes a suffix alone; write %1 instead of %2.</source>
        <translation>Avec plusieurs entrées ou formats d’image, --edit-list prend un suffixe seul&#xa0;; écrire %1 au lieu de %2.</translation>
    </message>
    <message>
        <source>With several inputs or aspect ratios %1 must name an existing folder; %2 is none.</source>
        <translation>Avec plusieurs entrées ou formats d’image, %1 doit nommer un dossier existant&#xa0;; %2 n’en est pas un.</translation>
    </message>
    <message>
        <source>%1 takes an existing folder or the name of a .%2 file; %3 is neither.</source>
        <translation>%1 prend un dossier existant ou le nom d’un fichier .%2&#xa0;; %3 n’est ni l’un ni l’autre.</translation>
    </message>
    <message>
        <source>%1 begins like an option; as a file it is written ./%1.</source>
        <translation>%1 commence comme une option&#xa0;; en tant que fichier, écrire ./%1.</translation>
    </message>
    <message>
        <source>Turns a video into another aspect ratio and keeps its subject in the picture.</source>
        <translation>Change le format d’image d’une vidéo et garde son sujet dans l’image.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no aspect ratio; write two whole numbers such as 9:16, neither more than 20 times the other.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un format d’image&#xa0;; écrire deux nombres entiers comme 9:16, aucun ne dépassant 20 fois l’autre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no speed; it is auto, fast or slow.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une vitesse&#xa0;; choisir auto, fast ou slow.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nothing to follow; write a time and a place such as 3.5@640,360, or a time and a box such as 3.5@0.4,0.2,0.1,0.5.</source>
        <translation>«&#xa0;%1&#xa0;» ne désigne rien à suivre&#xa0;; écrire un temps et un endroit comme 3.5@640,360, ou un temps et un cadre comme 3.5@0.4,0.2,0.1,0.5.</translation>
    </message>
    <message>
        <source>--speaker takes auto or off; &quot;%1&quot; is neither.</source>
        <translation>--speaker prend auto ou off&#xa0;; «&#xa0;%1&#xa0;» n’est ni l’un ni l’autre.</translation>
    </message>
    <message>
        <source>--status must not name an input.</source>
        <translation>--status ne doit pas désigner une entrée.</translation>
    </message>
    <message>
        <source>The video files to reframe; a folder is all videos in it.</source>
        <translation>Les fichiers vidéo à recadrer&#xa0;; un dossier désigne toutes les vidéos qu’il contient.</translation>
    </message>
    <message>
        <source>--frames takes one input.</source>
        <translation>--frames prend une seule entrée.</translation>
    </message>
    <message>
        <source>--frames takes one aspect ratio.</source>
        <translation>--frames prend un seul format d’image.</translation>
    </message>
    <message>
        <source>--frames with --apply renders a part of the video, and --no-video excludes that.</source>
        <translation>--frames avec --apply calcule une partie de la vidéo, ce que --no-video exclut.</translation>
    </message>
    <message>
        <source>--frames does a part of the work; files about the whole video, and choices, are for --join.</source>
        <translation>--frames fait une partie du travail&#xa0;; les fichiers sur la vidéo entière et les choix sont pour --join.</translation>
    </message>
    <message>
        <source>--join takes a video and then its parts.</source>
        <translation>--join prend une vidéo, puis ses parties.</translation>
    </message>
    <message>
        <source>--frames takes frames such as 0-2999, or a part such as 3/8; &quot;%1&quot; is neither.</source>
        <translation>--frames prend des images comme 0-2999 ou une partie comme 3/8&#xa0;; «&#xa0;%1&#xa0;» n’est ni l’un ni l’autre.</translation>
    </message>
    <message>
        <source>The name of an input file is empty.</source>
        <translation>Le nom d’un fichier d’entrée est vide.</translation>
    </message>
    <message>
        <source>--%1 needs a value, and an empty one was given.</source>
        <translation>--%1 demande une valeur, et celle qui est donnée est vide.</translation>
    </message>
</context>
<context>
    <name>ReframeParts</name>
    <message>
        <source>Cannot join %1: it is a part of another video than %2.</source>
        <translation>Impossible de joindre %1&#xa0;: c’est une partie d’une autre vidéo que %2.</translation>
    </message>
    <message>
        <source>Cannot join %1: it was made with other settings or by another version (&quot;%2&quot;; now &quot;%3&quot;).</source>
        <translation>Impossible de joindre %1&#xa0;: fait avec d’autres réglages ou une autre version («&#xa0;%2&#xa0;»&#xa0;; maintenant «&#xa0;%3&#xa0;»).</translation>
    </message>
    <message>
        <source>Cannot join the parts of %1: the frames %2 to %3 are missing.</source>
        <translation>Impossible de joindre les parties de %1&#xa0;: les images %2 à %3 manquent.</translation>
    </message>
    <message>
        <source>Cannot join %1 and %2: both have the frames %3 to %4.</source>
        <translation>Impossible de joindre %1 et %2&#xa0;: les deux ont les images %3 à %4.</translation>
    </message>
    <message>
        <source>Cannot join %1: it is no part that --frames wrote.</source>
        <translation>Impossible de joindre %1&#xa0;: ce n’est pas une partie écrite par --frames.</translation>
    </message>
    <message>
        <source>Cannot join %1 and %2: only one of them holds pictures of the analysis.</source>
        <translation>Impossible de joindre %1 et %2&#xa0;: un seul contient des images de l’analyse.</translation>
    </message>
</context>
<context>
    <name>ReframeProgram</name>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>Impossible de recadrer %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>ReframeReporter</name>
    <message>
        <source>%1: analyzing %2 %%3</source>
        <translation>%1&#xa0;: analyse %2&#xa0;%%3</translation>
    </message>
    <message>
        <source>%1: drawing the preview %2 %%3</source>
        <translation>%1&#xa0;: dessin de l’aperçu %2&#xa0;%%3</translation>
    </message>
    <message>
        <source>%1: rendering %2 %%3</source>
        <translation>%1&#xa0;: rendu %2&#xa0;%%3</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Avertissement&#xa0;: %1</translation>
    </message>
    <message>
        <source>Cannot write to standard output: %1.</source>
        <translation>Impossible d’écrire sur la sortie standard&#xa0;: %1.</translation>
    </message>
    <message>
        <source>an error occurred</source>
        <translation>une erreur s’est produite</translation>
    </message>
    <message>
        <source>%1: interrupted.</source>
        <translation>%1&#xa0;: interrompu.</translation>
    </message>
    <message>
        <source>%1: interrupted after %2 was written.</source>
        <translation>%1&#xa0;: interrompu après l’écriture de %2.</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Cannot write to the folder %1.</source>
        <translation>Impossible d’écrire dans le dossier %1.</translation>
    </message>
    <message>
        <source>Save To</source>
        <translation>Enregistrer dans</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>StatusFile</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>Impossible d’écrire %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>TimeLeft</name>
    <message>
        <source>, %1 s left</source>
        <translation>, encore %1 s</translation>
    </message>
    <message>
        <source>, %1 min %2 s left</source>
        <translation>, encore %1 min %2 s</translation>
    </message>
</context>
</TS>
