<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>ButtonPage</name>
    <message>
        <source>Buttons</source>
        <translation>Boutons</translation>
    </message>
    <message>
        <source>Several states</source>
        <translation>Plusieurs états</translation>
    </message>
    <message>
        <source>Image and text</source>
        <translation>Image et texte</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Onglets</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Dernier signal</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>aucun pour l’instant</translation>
    </message>
    <message>
        <source>Pressed %1</source>
        <translation>Appuyé : %1</translation>
    </message>
    <message>
        <source>Clicked %1 at (%2, %3)</source>
        <translation>Clic sur %1 en (%2, %3)</translation>
    </message>
    <message>
        <source>Entered %1</source>
        <translation>Entrée dans %1</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>Sortie de %1</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Avec icône</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favori</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Coché</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Clicked %1, shows %2</source>
        <translation>Clic sur %1, affiche %2</translation>
    </message>
    <message>
        <source>Clicked %1</source>
        <translation>Clic sur %1</translation>
    </message>
    <message>
        <source>Image left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>Au-dessus</translation>
    </message>
    <message>
        <source>Image right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Au-dessous</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Médias</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Titres</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>Selected %1</source>
        <translation>Sélectionné : %1</translation>
    </message>
    <message>
        <source>for a language from right to left</source>
        <translation>pour une langue de droite à gauche</translation>
    </message>
    <message>
        <source>for a language from left to right</source>
        <translation>pour une langue de gauche à droite</translation>
    </message>
</context>
<context>
    <name>ClipStrip</name>
    <message>
        <source>Opening</source>
        <translation>Ouverture</translation>
    </message>
    <message>
        <source>Harbour at dawn</source>
        <translation>Port à l’aube</translation>
    </message>
    <message>
        <source>Interview, part 1</source>
        <translation>Interview, partie 1</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>Marché</translation>
    </message>
    <message>
        <source>Interview, part 2</source>
        <translation>Interview, partie 2</translation>
    </message>
    <message>
        <source>Night drive</source>
        <translation>Trajet de nuit</translation>
    </message>
</context>
<context>
    <name>CommonLibDemo</name>
    <message>
        <source>The log %1 cannot be opened; going on without it.</source>
        <translation>Impossible d’ouvrir le journal %1 ; poursuite sans journal.</translation>
    </message>
    <message>
        <source>The engine is missing or does not start: %1</source>
        <translation>Le moteur est absent ou ne démarre pas : %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Impossible de créer le dossier %1.</translation>
    </message>
    <message>
        <source>Tells what media files are and writes a contact sheet of each.</source>
        <translation>Décrit des fichiers multimédias et écrit une planche-contact de chacun.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Affiche cette aide.</translation>
    </message>
    <message>
        <source>Folder for results.</source>
        <translation>Dossier des résultats.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>DOSSIER</translation>
    </message>
    <message>
        <source>Log file, by default %1 among the results.</source>
        <translation>Fichier journal, par défaut %1 parmi les résultats.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>Print the log as well.</source>
        <translation>Affiche aussi le journal.</translation>
    </message>
    <message>
        <source>Media files.</source>
        <translation>Fichiers multimédias.</translation>
    </message>
    <message>
        <source>MEDIA…</source>
        <translation>MÉDIAS…</translation>
    </message>
    <message>
        <source>No media file named.</source>
        <translation>Aucun fichier multimédia indiqué.</translation>
    </message>
    <message>
        <source>Write a film of all media files to this file, whose suffix chooses how it is encoded.</source>
        <translation>Écrire un film de tous les fichiers multimédias dans ce fichier, dont l’extension choisit l’encodage.</translation>
    </message>
    <message>
        <source>Preset that the film is encoded with.</source>
        <translation>Préréglage avec lequel le film est encodé.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>List the presets for films.</source>
        <translation>Énumérer les préréglages pour les films.</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>pas d’image</translation>
    </message>
</context>
<context>
    <name>DragPage</name>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Dernier signal</translation>
    </message>
    <message>
        <source>drag begins at %1</source>
        <translation>le glissement commence à %1</translation>
    </message>
    <message>
        <source>drag ends at %1</source>
        <translation>le glissement finit à %1</translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>Il n’y a pas de préréglage « %1 ».</translation>
    </message>
    <message>
        <source>The engine has no presets.</source>
        <translation>Le moteur n’a pas de préréglages.</translation>
    </message>
    <message>
        <source>encoded: %1 %</source>
        <translation>encodé : %1 %</translation>
    </message>
    <message>
        <source>%1 is not written; the log tells why.</source>
        <translation>%1 n’est pas écrit ; le journal dit pourquoi.</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Ruler</source>
        <translation>Règle</translation>
    </message>
    <message>
        <source>Drag the play head; the wheel scrolls, with Ctrl it zooms; a double click fits all.</source>
        <translation>Faites glisser la tête de lecture ; la molette défile, avec Ctrl elle zoome ; un double clic affiche tout.</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Curseurs</translation>
    </message>
    <message>
        <source>Drag, use the wheel, or the arrow keys.</source>
        <translation>Faites glisser, utilisez la molette ou les touches fléchées.</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Boutons et étiquettes</translation>
    </message>
    <message>
        <source>The last line tells what they signal.</source>
        <translation>La dernière ligne indique ce qu’ils signalent.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Copies media from cameras, phones and cards.</source>
        <translation>Copie les médias des appareils photo, téléphones et cartes.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Langues</translation>
    </message>
    <message>
        <source>A choice reaches every window at once.</source>
        <translation>Un choix s’applique aussitôt à toutes les fenêtres.</translation>
    </message>
    <message>
        <source>Shows the library&apos;s widgets.</source>
        <translation>Montre les composants graphiques de la bibliothèque.</translation>
    </message>
    <message>
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Commence par la page &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>Liste les noms des pages.</translation>
    </message>
    <message>
        <source>Write a picture of the page to &lt;file&gt;.</source>
        <translation>Écrit une image de la page dans &lt;file&gt;.</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>impossible d’écrire %1</translation>
    </message>
    <message>
        <source>no page %1</source>
        <translation>aucune page %1</translation>
    </message>
    <message>
        <source>Drag values</source>
        <translation>Faire glisser des valeurs</translation>
    </message>
    <message>
        <source>Drag on a number, with Shift faster, with Ctrl slower; a click edits it.</source>
        <translation>Faites glisser un nombre, plus vite avec Maj, plus lentement avec Ctrl ; un clic le modifie.</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>Open a file and play it; K plays and pauses, comma and full stop step a frame.</source>
        <translation>Ouvrez un fichier et lisez-le ; K lit et met en pause, la virgule et le point avancent d’une image.</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>CommonLib widgets</source>
        <translation>Composants de CommonLib</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>HostLanguage</name>
    <message>
        <source>Language of the texts from now on, such as German.</source>
        <translation>Langue des textes désormais, par exemple German.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>There is no language %1. Known are: %2</source>
        <translation>La langue %1 n’existe pas. Langues connues : %2</translation>
    </message>
</context>
<context>
    <name>ImportPage</name>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Folder to import into</source>
        <translation>Dossier de destination</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>Progression de l’importation</translation>
    </message>
    <message>
        <source>Import into</source>
        <translation>Importer dans</translation>
    </message>
    <message>
        <source>No device found</source>
        <translation>Aucun appareil trouvé</translation>
    </message>
    <message>
        <source>Connect a camera, a phone or a card reader, switch it on and unlock it.</source>
        <translation>Connectez un appareil photo, un téléphone ou un lecteur de cartes, allumez-le et déverrouillez-le.</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>Ouverture de %1…</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>Impossible d’ouvrir %1</translation>
    </message>
    <message>
        <source>Unlock the device and allow access to its files, then choose it again.</source>
        <translation>Déverrouillez l’appareil, autorisez l’accès à ses fichiers, puis choisissez-le à nouveau.</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 a été retiré</translation>
    </message>
    <message>
        <source>Connect it again to go on.</source>
        <translation>Reconnectez-le pour continuer.</translation>
    </message>
    <message>
        <source>Chosen files: %1 (%2)</source>
        <translation>Fichiers choisis : %1 (%2)</translation>
    </message>
    <message>
        <source>Reading the content… %1 files</source>
        <translation>Lecture du contenu… Fichiers : %1</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>Appareil sans nom</translation>
    </message>
    <message>
        <source>%1 files on the device</source>
        <translation>Fichiers sur l’appareil : %1</translation>
    </message>
    <message>
        <source>The device stopped answering; this may not be all of it.</source>
        <translation>L’appareil ne répond plus ; ce n’est peut-être pas tout.</translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation>Rien ne peut être écrit dans ce dossier.</translation>
    </message>
    <message>
        <source>Importing… %1 of %2</source>
        <translation>Importation… %1 sur %2</translation>
    </message>
    <message>
        <source>Imported files: %1 of %2.</source>
        <translation>Fichiers importés : %1 sur %2.</translation>
    </message>
    <message>
        <source>The device was removed during the import.</source>
        <translation>L’appareil a été retiré pendant l’importation.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>Non importé : %1</translation>
    </message>
    <message>
        <source>Delete from the device afterwards</source>
        <translation>Supprimer ensuite de l’appareil</translation>
    </message>
    <message>
        <source>This folder has room for %1 only.</source>
        <translation>Ce dossier n’a de place que pour %1.</translation>
    </message>
</context>
<context>
    <name>ImportTree</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>Content of the device</source>
        <translation>Contenu de l’appareil</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Import media…</source>
        <translation>Importer des médias…</translation>
    </message>
    <message>
        <source>Split at the play head</source>
        <translation>Couper à la tête de lecture</translation>
    </message>
    <message>
        <source>Add a transition</source>
        <translation>Ajouter une transition</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Enregistrer le projet</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Langue :</translation>
    </message>
    <message>
        <source>Font of the language:</source>
        <translation>Police de la langue :</translation>
    </message>
    <message>
        <source>Drawn in:</source>
        <translation>Dessiné en :</translation>
    </message>
    <message>
        <source>Reading direction:</source>
        <translation>Sens de lecture :</translation>
    </message>
    <message>
        <source>Clips:</source>
        <translation>Clips :</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Exemple</translation>
    </message>
    <message>
        <source>right to left</source>
        <translation>de droite à gauche</translation>
    </message>
    <message>
        <source>left to right</source>
        <translation>de gauche à droite</translation>
    </message>
    <message numerus="yes">
        <source>%Ln clip(s) selected</source>
        <translation>
            <numerusform>%Ln clip sélectionné</numerusform>
            <numerusform>%Ln clips sélectionnés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>Vumètre</translation>
    </message>
</context>
<context>
    <name>MediaJob</name>
    <message>
        <source>does not exist</source>
        <translation>n’existe pas</translation>
    </message>
    <message>
        <source>is a folder, not a media file</source>
        <translation>est un dossier, pas un fichier multimédia</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>est vide</translation>
    </message>
    <message>
        <source>may not be read by this user</source>
        <translation>ne peut pas être lu par cet utilisateur</translation>
    </message>
    <message>
        <source>cannot be read as media</source>
        <translation>ne peut pas être lu comme média</translation>
    </message>
    <message>
        <source>holds neither picture nor sound</source>
        <translation>ne contient ni image ni son</translation>
    </message>
    <message>
        <source>has no frames</source>
        <translation>n’a aucune image</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>image %1</translation>
    </message>
    <message>
        <source>picture %1 of %2: frame %3, %4</source>
        <translation>vignette %1 sur %2 : image %3, %4</translation>
    </message>
    <message>
        <source>%1, not decoded</source>
        <translation>%1, non décodée</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation>aucune de ses images ne peut être décodée</translation>
    </message>
    <message>
        <source>%1 of %2 pictures cannot be decoded; the file may be damaged</source>
        <translation>%1 images sur %2 ne peuvent pas être décodées ; le fichier est peut-être endommagé</translation>
    </message>
    <message>
        <source>wave form: part %1 of %2</source>
        <translation>forme d’onde : partie %1 sur %2</translation>
    </message>
    <message>
        <source>its sound cannot be decoded</source>
        <translation>son audio ne peut pas être décodé</translation>
    </message>
    <message>
        <source>the result cannot be written to %1</source>
        <translation>le résultat ne peut pas être écrit dans %1</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>écrit : %1</translation>
    </message>
</context>
<context>
    <name>MediaReport</name>
    <message>
        <source>unknown codec</source>
        <translation>codec inconnu</translation>
    </message>
    <message>
        <source>video</source>
        <translation>vidéo</translation>
    </message>
    <message>
        <source>rotated by %1°</source>
        <translation>tourné de %1°</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 i/s</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>audio</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s)</source>
        <translation>
            <numerusform>%n canal</numerusform>
            <numerusform>%n canaux</numerusform>
        </translation>
    </message>
    <message>
        <source>other</source>
        <translation>autre</translation>
    </message>
    <message>
        <source>Still picture, %1</source>
        <translation>Image fixe, %1</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>No picture and no sound</source>
        <translation>Ni image ni son</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n image</numerusform>
            <numerusform>%n images</numerusform>
        </translation>
    </message>
    <message>
        <source>stream %1: %2</source>
        <translation>flux %1 : %2</translation>
    </message>
    <message>
        <source>sample rates: %1</source>
        <translation>fréquences d’échantillonnage : %1</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
</context>
<context>
    <name>PlayerPage</name>
    <message>
        <source>Nothing is open.</source>
        <translation>Rien n’est ouvert.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Reculer d’une image</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Avancer d’une image</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Boucle</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Zones de sécurité</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Taille de l’image</translation>
    </message>
    <message>
        <source>Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms</source>
        <translation>Dernière seconde : %1 affichées, %2 sautées, %3 en retard, %4 du cache, décalage %5 ms</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>%1 ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>Prêt : %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
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
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
</context>
<context>
    <name>SliderPage</name>
    <message>
        <source>Seek bar</source>
        <translation>Barre de lecture</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Other chunk and groove</source>
        <translation>Autre remplissage et autre rainure</translation>
    </message>
    <message>
        <source>From right to left</source>
        <translation>De droite à gauche</translation>
    </message>
    <message>
        <source>Empty range</source>
        <translation>Plage vide</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Zoom bar</source>
        <translation>Barre de zoom</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Mirrored layout</source>
        <translation>Disposition en miroir</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Barre</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>Autres couleurs</translation>
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
        <translation>Règle</translation>
    </message>
</context>
</TS>
