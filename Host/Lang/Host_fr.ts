<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>AboutBox</name>
    <message>
        <source>Product: %1</source>
        <translation>Produit : %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>A small editor that shows what the library does.</source>
        <translation>Un petit éditeur qui montre ce que fait la bibliothèque.</translation>
    </message>
</context>
<context>
    <name>BinCommands</name>
    <message>
        <source>Files…</source>
        <translation>Fichiers…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>Dossier…</translation>
    </message>
    <message>
        <source>From a device…</source>
        <translation>Depuis un appareil…</translation>
    </message>
    <message>
        <source>Place at the play head</source>
        <translation>Placer à la tête de lecture</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Définir le point d’entrée</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Définir le point de sortie</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Effacer les points d’entrée et de sortie</translation>
    </message>
    <message>
        <source>Make a proxy</source>
        <translation>Créer un proxy</translation>
    </message>
    <message>
        <source>Cancel the proxy</source>
        <translation>Annuler la création du proxy</translation>
    </message>
    <message>
        <source>Use the proxy</source>
        <translation>Utiliser le proxy</translation>
    </message>
    <message>
        <source>Locate…</source>
        <translation>Localiser…</translation>
    </message>
    <message>
        <source>Search a folder for offline media…</source>
        <translation>Chercher les médias hors ligne dans un dossier…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove all unused</source>
        <translation>Retirer tous les médias inutilisés</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Ajouter des médias</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>Import from a device</source>
        <translation>Importer depuis un appareil</translation>
    </message>
    <message>
        <source>None of the files was found.</source>
        <translation>Aucun des fichiers n’a été trouvé.</translation>
    </message>
    <message>
        <source>The files that were found cannot be read.</source>
        <translation>Les fichiers trouvés ne peuvent pas être lus.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) found.</source>
        <translation>
            <numerusform>%n fichier trouvé.</numerusform>
            <numerusform>%n fichiers trouvés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>Où se trouve %1 ?</translation>
    </message>
    <message>
        <source>%1 (%1);;All files (*)</source>
        <translation>%1 (%1);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Folder with the media</source>
        <translation>Dossier contenant les médias</translation>
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
        <translation>entrée %1, sortie %2</translation>
    </message>
    <message>
        <source>proxy: %1 %</source>
        <translation>proxy : %1 %</translation>
    </message>
    <message>
        <source>proxy: in use</source>
        <translation>proxy : utilisé</translation>
    </message>
    <message>
        <source>proxy: not in use</source>
        <translation>proxy : non utilisé</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lecture du fichier…</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Hors ligne</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Illisible</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) on the timeline</source>
        <translation>
            <numerusform>%n clip sur la timeline</numerusform>
            <numerusform>%n clips sur la timeline</numerusform>
        </translation>
    </message>
    <message>
        <source>not on the timeline</source>
        <translation>absent de la timeline</translation>
    </message>
</context>
<context>
    <name>BinPanel</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search the media</source>
        <translation>Rechercher dans les médias</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Ajouter…</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Médias</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Drop media here, or add files and folders.</source>
        <translation>Déposez des médias ici ou ajoutez des fichiers et des dossiers.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Aucun résultat</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>%n fichier sélectionné</numerusform>
            <numerusform>%n fichiers sélectionnés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n file(s)…</source>
        <translation>
            <numerusform>Lecture de %n fichier…</numerusform>
            <numerusform>Lecture de %n fichiers…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read as media.</source>
        <translation>%1 ne peut pas être lu comme média.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more cannot be read as media.</source>
        <translation>
            <numerusform>%1 et %n autre fichier ne peuvent pas être lus comme médias.</numerusform>
            <numerusform>%1 et %n autres fichiers ne peuvent pas être lus comme médias.</numerusform>
        </translation>
    </message>
    <message>
        <source>No proxy of %1: %2</source>
        <translation>Pas de proxy pour %1 : %2</translation>
    </message>
</context>
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
    <name>ClipActions</name>
    <message>
        <source>Add transition</source>
        <translation>Ajouter une transition</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Ajouter un titre</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>Modifier la vitesse</translation>
    </message>
    <message>
        <source>Add effect</source>
        <translation>Ajouter un effet</translation>
    </message>
    <message>
        <source>Remove effect</source>
        <translation>Retirer l’effet</translation>
    </message>
    <message>
        <source>Move effect</source>
        <translation>Déplacer l’effet</translation>
    </message>
    <message>
        <source>Switch effect</source>
        <translation>Activer ou désactiver l’effet</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Modifier la transition</translation>
    </message>
</context>
<context>
    <name>ClipFields</name>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustement</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Image entière</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>Cadre entier</translation>
    </message>
    <message>
        <source>Stretched</source>
        <translation>Étiré</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>Pixel pour pixel</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> im.</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Réduction du bruit</translation>
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
        <translation>Rotation</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Centre X</source>
        <translation>Centre X</translation>
    </message>
    <message>
        <source>Centre Y</source>
        <translation>Centre Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Produit</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Écran</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Incrustation</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Obscurcir</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Éclaircir</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Addition</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Différence</translation>
    </message>
    <message>
        <source>Colour dodge</source>
        <translation>Densité couleur -</translation>
    </message>
    <message>
        <source>Colour burn</source>
        <translation>Densité couleur +</translation>
    </message>
    <message>
        <source>Hard light</source>
        <translation>Lumière crue</translation>
    </message>
    <message>
        <source>Soft light</source>
        <translation>Lumière tamisée</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Exclusion</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Hauteur tonale</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Fondu d’entrée</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Fondu de sortie</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source> st</source>
        <translation> dt</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
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
    <name>Editor</name>
    <message>
        <source>A small editor.</source>
        <translation>Un petit éditeur.</translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;.</source>
        <translation>Écrit une image de la fenêtre dans &lt;file&gt;.</translation>
    </message>
    <message>
        <source>A project to open, and media for the bin.</source>
        <translation>Un projet à ouvrir et des médias pour le chutier.</translation>
    </message>
    <message>
        <source>The engine is missing.</source>
        <translation>Le moteur est absent.</translation>
    </message>
    <message>
        <source>Make a small film of the media by itself, and put pictures, the film and a report into &lt;folder&gt;.</source>
        <translation>Réaliser automatiquement un petit film à partir des médias et placer images, film et rapport dans &lt;dossier&gt;.</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>Media</source>
        <translation>Médias</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Timeline</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
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
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>Lift from in to out point</source>
        <translation>Prélever du point d’entrée au point de sortie</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>Prélever</translation>
    </message>
    <message>
        <source>Extract from in to out point</source>
        <translation>Extraire du point d’entrée au point de sortie</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extraire</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Médias</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>&amp;Timeline</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Lecture</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s) on the file, in the log</source>
        <translation>
            <numerusform>%n remarque sur le fichier, dans le journal</numerusform>
            <numerusform>%n remarques sur le fichier, dans le journal</numerusform>
        </translation>
    </message>
    <message>
        <source>Set an in and an out point first.</source>
        <translation>Définissez d’abord un point d’entrée et un point de sortie.</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Récupération</translation>
    </message>
    <message>
        <source>The editor has ended unexpectedly. Changes of %1 until %2 can be opened.</source>
        <translation>L’éditeur s’est arrêté de façon inattendue. Les modifications de %1 jusqu’au %2 peuvent être ouvertes.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportation</translation>
    </message>
    <message>
        <source>Films are being written. End that?</source>
        <translation>Des films sont en cours d’écriture. Voulez-vous l’interrompre ?</translation>
    </message>
    <message>
        <source>Render the preview, or stop it</source>
        <translation>Calculer l’aperçu, ou l’arrêter</translation>
    </message>
    <message>
        <source>%1 cannot be written to.</source>
        <translation>Impossible d’écrire dans %1.</translation>
    </message>
    <message>
        <source>Light style</source>
        <translation>Style clair</translation>
    </message>
</context>
<context>
    <name>EffectsSection</name>
    <message>
        <source>Add effect</source>
        <translation>Ajouter un effet</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Apply earlier</source>
        <translation>Appliquer plus tôt</translation>
    </message>
    <message>
        <source>Apply later</source>
        <translation>Appliquer plus tard</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
</context>
<context>
    <name>ExportCheck</name>
    <message>
        <source>This cannot be combined</source>
        <translation>Cette combinaison est impossible</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>Ce préréglage n’existe pas.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>The processor encodes and decodes.</source>
        <translation>Le processeur encode et décode.</translation>
    </message>
    <message>
        <source>The processor encodes; the graphics hardware helps to decode.</source>
        <translation>Le processeur encode ; le matériel graphique aide au décodage.</translation>
    </message>
    <message>
        <source>Add to the queue</source>
        <translation>Ajouter à la file d’attente</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportation</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Films</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <source>film</source>
        <translation>film</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Choisir un fichier</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>As the project</source>
        <translation>Comme le projet</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 i/s</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Fréquence d’images</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>From in to out</source>
        <translation>De l’entrée à la sortie</translation>
    </message>
    <message>
        <source>In point</source>
        <translation>Point d’entrée</translation>
    </message>
    <message>
        <source>Out point</source>
        <translation>Point de sortie</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Plage</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Matériel</translation>
    </message>
    <message>
        <source>Still picture…</source>
        <translation>Image fixe…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Writes the frame under the play head</source>
        <translation>Écrit l’image à la tête de lecture</translation>
    </message>
    <message>
        <source>The project cannot be copied.</source>
        <translation>Impossible de copier le projet.</translation>
    </message>
    <message>
        <source>Still picture</source>
        <translation>Image fixe</translation>
    </message>
    <message>
        <source>/frame %1.png</source>
        <translation>/image %1.png</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.tif *.bmp)</source>
        <translation>Images (*.png *.jpg *.tif *.bmp)</translation>
    </message>
    <message>
        <source>%1 is in the queue already.</source>
        <translation>%1 est déjà dans la file d’attente.</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 existe déjà. Le remplacer ?</translation>
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
    <name>ExportQueue</name>
    <message>
        <source>%1 is not written</source>
        <translation>%1 n’est pas écrit</translation>
    </message>
</context>
<context>
    <name>ExportQueueView</name>
    <message>
        <source>No films yet</source>
        <translation>Aucun film pour l’instant</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Being written</source>
        <translation>En cours d’écriture</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 restantes</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Écrit</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>Take from the list</source>
        <translation>Retirer de la liste</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Projects</source>
        <translation>Projets</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Ouvrir un projet récent</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Enregistrer les modifications</translation>
    </message>
    <message>
        <source>The project has changes that are not saved.</source>
        <translation>Le projet contient des modifications non enregistrées.</translation>
    </message>
</context>
<context>
    <name>FileEditor</name>
    <message>
        <source>No file</source>
        <translation>Aucun fichier</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Choisir un fichier</translation>
    </message>
</context>
<context>
    <name>FontEditor</name>
    <message>
        <source>System font</source>
        <translation>Police du système</translation>
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
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Commence par la page &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>Liste les noms des pages.</translation>
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
    <message>
        <source>Another window has a device open. Close that window, then choose this device again.</source>
        <translation>Une autre fenêtre a ouvert un appareil. Fermez cette fenêtre, puis choisissez à nouveau cet appareil.</translation>
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
    <name>KeyFrameBar</name>
    <message>
        <source>Previous key frame</source>
        <translation>Image clé précédente</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Image clé</translation>
    </message>
    <message>
        <source>Next key frame</source>
        <translation>Image clé suivante</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Maintien</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linéaire</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Progressif</translation>
    </message>
    <message>
        <source>To the next key frame</source>
        <translation>Jusqu’à l’image clé suivante</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
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
    <name>LevelHeader</name>
    <message>
        <source>Level %1</source>
        <translation>Piste %1</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Verrouiller</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>Solo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
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
    <name>LogView</name>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
</context>
<context>
    <name>MediaBin</name>
    <message>
        <source>Add media</source>
        <translation>Ajouter des médias</translation>
    </message>
    <message>
        <source>Remove media</source>
        <translation>Retirer des médias</translation>
    </message>
    <message>
        <source>Relink media</source>
        <translation>Relier les médias</translation>
    </message>
    <message>
        <source>Use the media itself</source>
        <translation>Utiliser le média lui-même</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Utiliser un proxy</translation>
    </message>
    <message>
        <source>Set in and out point</source>
        <translation>Définir les points d’entrée et de sortie</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Effacer les points d’entrée et de sortie</translation>
    </message>
    <message>
        <source>Place a clip</source>
        <translation>Placer un clip</translation>
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
    <name>MovementKeys</name>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Shift right</source>
        <translation>Décalage vers la droite</translation>
    </message>
    <message>
        <source>Shift up</source>
        <translation>Décalage vers le haut</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Facteur de largeur</translation>
    </message>
    <message>
        <source>Height factor</source>
        <translation>Facteur de hauteur</translation>
    </message>
    <message>
        <source>Opacity factor</source>
        <translation>Facteur d’opacité</translation>
    </message>
</context>
<context>
    <name>MovementSection</name>
    <message>
        <source>Movement</source>
        <translation>Mouvement</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Image clé</translation>
    </message>
    <message>
        <source>Change movement</source>
        <translation>Modifier le mouvement</translation>
    </message>
</context>
<context>
    <name>ParameterFields</name>
    <message>
        <source> %</source>
        <translation> %</translation>
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
        <translation> im.</translation>
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
        <translation>Placer l’image</translation>
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
    <name>PlayerPanel</name>
    <message>
        <source>Play or pause</source>
        <translation>Lire ou mettre en pause</translation>
    </message>
    <message>
        <source>Play backwards</source>
        <translation>Lire à l’envers</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Play forwards</source>
        <translation>Lire à l’endroit</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Boucle</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Reculer d’une image</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Avancer d’une image</translation>
    </message>
    <message>
        <source>Go to beginning</source>
        <translation>Aller au début</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>Aller à la fin</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Définir le point d’entrée</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Définir le point de sortie</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Effacer les points d’entrée et de sortie</translation>
    </message>
    <message>
        <source>Go to in point</source>
        <translation>Aller au point d’entrée</translation>
    </message>
    <message>
        <source>Go to out point</source>
        <translation>Aller au point de sortie</translation>
    </message>
    <message>
        <source>Set or remove marker</source>
        <translation>Placer ou retirer un marqueur</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Zones de sécurité</translation>
    </message>
    <message>
        <source>Picture on full screen</source>
        <translation>Image en plein écran</translation>
    </message>
    <message>
        <source>Timecode of the play head</source>
        <translation>Timecode de la tête de lecture</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Tête de lecture</translation>
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
        <translation>Impossible de créer le projet</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>Impossible d’ouvrir %1</translation>
    </message>
    <message>
        <source>%1 cannot be saved</source>
        <translation>Impossible d’enregistrer %1</translation>
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
        <translation>Fréquence d’images</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> i/s</translation>
    </message>
    <message>
        <source>Preview scale</source>
        <translation>Échelle de l’aperçu</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Fréquence d’échantillonnage</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Bits of a colour</source>
        <translation>Bits par couleur</translation>
    </message>
    <message>
        <source>Smooth scaling</source>
        <translation>Mise à l’échelle lissée</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
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
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Rendu</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Ajouter un titre</translation>
    </message>
    <message>
        <source>Mixer, level %1</source>
        <translation>Mixage, piste %1</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Transition</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>Placement</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Fusion</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>Mouvement</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Transitions</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Paramètres</translation>
    </message>
</context>
<context>
    <name>PropertyForm</name>
    <message>
        <source>Back to the preset</source>
        <translation>Rétablir la valeur par défaut</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Modifier « %1 »</translation>
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
    <name>ShortcutList</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
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
    <name>SpeedSection</name>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Back to the preset</source>
        <translation>Rétablir la valeur par défaut</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>The frame cannot be drawn</source>
        <translation>Impossible de dessiner l’image</translation>
    </message>
    <message>
        <source>%1 is not written: %2</source>
        <translation>%1 n’est pas écrit : %2</translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Clip composé</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Magnétisme</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Roll</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Rogner</translation>
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
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Coller en insérant</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Supprimer et combler le vide</translation>
    </message>
    <message>
        <source>Split at play head</source>
        <translation>Couper à la tête de lecture</translation>
    </message>
    <message>
        <source>Trim begin to play head</source>
        <translation>Rogner le début à la tête de lecture</translation>
    </message>
    <message>
        <source>Trim end to play head</source>
        <translation>Rogner la fin à la tête de lecture</translation>
    </message>
    <message>
        <source>Close gap at play head</source>
        <translation>Combler le vide à la tête de lecture</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grouper</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Dégrouper</translation>
    </message>
    <message>
        <source>Lock or unlock level</source>
        <translation>Verrouiller ou déverrouiller la piste</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Select at play head</source>
        <translation>Sélectionner à la tête de lecture</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Tout désélectionner</translation>
    </message>
    <message>
        <source>Frame earlier</source>
        <translation>Une image plus tôt</translation>
    </message>
    <message>
        <source>Frame later</source>
        <translation>Une image plus tard</translation>
    </message>
    <message>
        <source>Second earlier</source>
        <translation>Une seconde plus tôt</translation>
    </message>
    <message>
        <source>Second later</source>
        <translation>Une seconde plus tard</translation>
    </message>
    <message>
        <source>Level up</source>
        <translation>Une piste plus haut</translation>
    </message>
    <message>
        <source>Level down</source>
        <translation>Une piste plus bas</translation>
    </message>
    <message>
        <source>Previous cut</source>
        <translation>Point de montage précédent</translation>
    </message>
    <message>
        <source>Next cut</source>
        <translation>Point de montage suivant</translation>
    </message>
    <message>
        <source>Selection tool</source>
        <translation>Outil Sélection</translation>
    </message>
    <message>
        <source>Ripple tool</source>
        <translation>Outil Ripple</translation>
    </message>
    <message>
        <source>Roll tool</source>
        <translation>Outil Roll</translation>
    </message>
    <message>
        <source>Slip tool</source>
        <translation>Outil Slip</translation>
    </message>
    <message>
        <source>Slide tool</source>
        <translation>Outil Slide</translation>
    </message>
    <message>
        <source>Razor tool</source>
        <translation>Outil Rasoir</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Ajuster à la fenêtre</translation>
    </message>
    <message>
        <source>Taller levels</source>
        <translation>Agrandir les pistes</translation>
    </message>
    <message>
        <source>Lower levels</source>
        <translation>Réduire les pistes</translation>
    </message>
    <message>
        <source>Ripple trim</source>
        <translation>Rogner en ripple</translation>
    </message>
    <message>
        <source>Hide or show level</source>
        <translation>Masquer ou afficher la piste</translation>
    </message>
    <message>
        <source>Mute or unmute level</source>
        <translation>Couper ou rétablir le son de la piste</translation>
    </message>
    <message>
        <source>Level solo or not</source>
        <translation>Piste en solo ou non</translation>
    </message>
</context>
<context>
    <name>TimelineCommands</name>
    <message>
        <source>Split</source>
        <translation>Couper en deux</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grouper</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Dégrouper</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Supprimer et combler le vide</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Coller en insérant</translation>
    </message>
    <message>
        <source>Close gap</source>
        <translation>Combler le vide</translation>
    </message>
    <message>
        <source>Lock level</source>
        <translation>Verrouiller la piste</translation>
    </message>
    <message>
        <source>Unlock level</source>
        <translation>Déverrouiller la piste</translation>
    </message>
    <message>
        <source>Rename level</source>
        <translation>Renommer la piste</translation>
    </message>
</context>
<context>
    <name>TimelinePanel</name>
    <message>
        <source>Timeline</source>
        <translation>Timeline</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Tête de lecture</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clips</translation>
    </message>
    <message>
        <source>%1, level %2, frames %3 to %4</source>
        <translation>%1, piste %2, images %3 à %4</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Règle</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>Split</source>
        <translation>Couper en deux</translation>
    </message>
    <message>
        <source>Insert media</source>
        <translation>Insérer des médias</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Ajouter des médias</translation>
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
        <translation>Type</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durée</translation>
    </message>
</context>
<context>
    <name>TransitionSection</name>
    <message>
        <source>At the beginning</source>
        <translation>Au début</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>À la fin</translation>
    </message>
</context>
<context>
    <name>Transport</name>
    <message>
        <source>Remove marker</source>
        <translation>Retirer le marqueur</translation>
    </message>
    <message>
        <source>Set marker</source>
        <translation>Placer un marqueur</translation>
    </message>
</context>
</TS>
