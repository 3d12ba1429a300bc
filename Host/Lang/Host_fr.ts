<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
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
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>pas d’image</translation>
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
        <source>%n clip(s) selected</source>
        <translation>
            <numerusform>%n clip sélectionné</numerusform>
            <numerusform>%n clips sélectionnés</numerusform>
        </translation>
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
