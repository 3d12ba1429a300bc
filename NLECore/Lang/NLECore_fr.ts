<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>NLECore</name>
    <message>
        <source>Uncompressed 4:2:2, 10 bits</source>
        <translation>Non compressé 4:2:2, 10 bits</translation>
    </message>
    <message>
        <source>MPEG transport stream</source>
        <translation>Flux de transport MPEG</translation>
    </message>
    <message>
        <source>MPEG program stream</source>
        <translation>Flux de programme MPEG</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>GIF animé</translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation>Séquence PNG</translation>
    </message>
    <message>
        <source>TIFF sequence</source>
        <translation>Séquence TIFF</translation>
    </message>
    <message>
        <source>JPEG sequence</source>
        <translation>Séquence JPEG</translation>
    </message>
    <message>
        <source>MPEG-4 sound</source>
        <translation>Audio MPEG-4</translation>
    </message>
    <message>
        <source>Ogg sound</source>
        <translation>Audio Ogg</translation>
    </message>
    <message>
        <source>Windows Media sound</source>
        <translation>Audio Windows Media</translation>
    </message>
    <message>
        <source>H.264 for archives</source>
        <translation>H.264 pour l’archivage</translation>
    </message>
    <message>
        <source>H.264 for streaming</source>
        <translation>H.264 pour la diffusion en continu</translation>
    </message>
    <message>
        <source>H.264 lossless</source>
        <translation>H.264 sans perte</translation>
    </message>
    <message>
        <source>H.265 10 bits</source>
        <translation>H.265 10 bits</translation>
    </message>
    <message>
        <source>VP9 with alpha</source>
        <translation>VP9 avec couche alpha</translation>
    </message>
    <message>
        <source>TIFF sequence 16 bits</source>
        <translation>Séquence TIFF 16 bits</translation>
    </message>
    <message>
        <source>MPEG-2 interlaced</source>
        <translation>MPEG-2 entrelacé</translation>
    </message>
    <message>
        <source>WAV 24 bits</source>
        <translation>WAV 24 bits</translation>
    </message>
    <message>
        <source>No failure</source>
        <translation>Aucune erreur</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Something that has to be given is missing</source>
        <translation>Un élément nécessaire manque</translation>
    </message>
    <message>
        <source>A value that is not accepted</source>
        <translation>Valeur non acceptée</translation>
    </message>
    <message>
        <source>Outside of the range</source>
        <translation>Hors de la plage autorisée</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>Aucun élément ne porte ce nom</translation>
    </message>
    <message>
        <source>There is nothing of this number</source>
        <translation>Aucun élément ne porte ce numéro</translation>
    </message>
    <message>
        <source>Not possible at this time</source>
        <translation>Impossible pour le moment</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>Non proposé</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Mémoire insuffisante</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>A value that cannot be changed</source>
        <translation>Cette valeur ne peut pas être modifiée</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>Cette valeur n’existe pas</translation>
    </message>
    <message>
        <source>There is nothing to show or to write</source>
        <translation>Il n’y a rien à afficher ni à écrire</translation>
    </message>
    <message>
        <source>This object cannot be used there</source>
        <translation>Cet objet ne peut pas être utilisé à cet endroit</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Le fichier n’existe pas</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Le fichier ne peut pas être lu</translation>
    </message>
    <message>
        <source>The file is damaged or of no known format</source>
        <translation>Le fichier est endommagé ou son format est inconnu</translation>
    </message>
    <message>
        <source>The file or folder cannot be written</source>
        <translation>Impossible d’écrire dans le fichier ou le dossier</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Le disque est plein</translation>
    </message>
    <message>
        <source>There is no format of this name to write</source>
        <translation>Aucun format d’écriture ne porte ce nom</translation>
    </message>
    <message>
        <source>The format does not take these settings</source>
        <translation>Le format n’accepte pas ces réglages</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Exposition</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>Niveau de noir</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Pivot</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Balance des blancs</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Courbes</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Principale</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Lookup table</source>
        <translation>Table de correspondance (LUT)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Intensité</translation>
    </message>
    <message>
        <source>Chroma key</source>
        <translation>Incrustation chroma</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolérance</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Adoucissement</translation>
    </message>
    <message>
        <source>Spill removal</source>
        <translation>Suppression du débordement</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recadrer</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignettage</translation>
    </message>
    <message>
        <source>Centre across</source>
        <translation>Centre horizontal</translation>
    </message>
    <message>
        <source>Centre down</source>
        <translation>Centre vertical</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Noir et blanc</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>Résonance</translation>
    </message>
    <message>
        <source>Target loudness</source>
        <translation>Intensité sonore cible</translation>
    </message>
    <message>
        <source>Highest true peak</source>
        <translation>Crête vraie maximale</translation>
    </message>
    <message>
        <source>Measured loudness</source>
        <translation>Intensité sonore mesurée</translation>
    </message>
    <message>
        <source>Measured loudness range</source>
        <translation>Plage d’intensité sonore mesurée</translation>
    </message>
    <message>
        <source>Measured true peak</source>
        <translation>Crête vraie mesurée</translation>
    </message>
    <message>
        <source>Attack</source>
        <translation>Attaque</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Relâchement</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>Compresseur</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Taux</translation>
    </message>
    <message>
        <source>Make-up gain</source>
        <translation>Gain de compensation</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Limiteur</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Plafond</translation>
    </message>
    <message>
        <source>Noise gate</source>
        <translation>Porte de bruit</translation>
    </message>
    <message>
        <source>Reduction</source>
        <translation>Réduction</translation>
    </message>
    <message>
        <source>Reverb</source>
        <translation>Réverbération</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Durée de réverbération</translation>
    </message>
    <message>
        <source>First reflection</source>
        <translation>Première réflexion</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mixage</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Écho</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Retard</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Répétitions</translation>
    </message>
    <message>
        <source>High pass</source>
        <translation>Passe-haut</translation>
    </message>
    <message>
        <source>Low pass</source>
        <translation>Passe-bas</translation>
    </message>
    <message>
        <source>De-esser</source>
        <translation>Dé-esseur</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profondeur</translation>
    </message>
    <message>
        <source>Loudness normalisation</source>
        <translation>Normalisation de l’intensité sonore</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Flou</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Miroir</translation>
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
        <translation>Réduction du bruit</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Intensité</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>Ombre portée</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>Décalage horizontal</translation>
    </message>
    <message>
        <source>Offset down</source>
        <translation>Décalage vertical</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italique</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>Interlettrage</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Interligne</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>De gauche à droite</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>De droite à gauche</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alignement</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Position verticale</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Milieu</translation>
    </message>
    <message>
        <source>Shift to the right</source>
        <translation>Décalage vers la droite</translation>
    </message>
    <message>
        <source>Shift downwards</source>
        <translation>Décalage vers le bas</translation>
    </message>
    <message>
        <source>Longest line</source>
        <translation>Longueur maximale de ligne</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>Outline colour</source>
        <translation>Couleur du contour</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>Couleur de l’ombre</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>Ombre vers la droite</translation>
    </message>
    <message>
        <source>Shadow downwards</source>
        <translation>Ombre vers le bas</translation>
    </message>
    <message>
        <source>Shadow blur</source>
        <translation>Flou de l’ombre</translation>
    </message>
    <message>
        <source>Box colour</source>
        <translation>Couleur du cadre</translation>
    </message>
    <message>
        <source>Box padding</source>
        <translation>Marge intérieure du cadre</translation>
    </message>
    <message>
        <source>Box corners</source>
        <translation>Coins du cadre</translation>
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
        <source>Roll</source>
        <translation>Déroulement</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Vers le haut</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Vers le bas</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>Vers la gauche</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>Vers la droite</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Fondu audio</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linéaire</translation>
    </message>
    <message>
        <source>Equal power</source>
        <translation>Puissance constante</translation>
    </message>
    <message>
        <source>No fade</source>
        <translation>Sans fondu</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Inverser</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Vers le bas à droite</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Vers le bas à gauche</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Vers le haut à droite</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Vers le haut à gauche</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontale</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Fondu enchaîné</translation>
    </message>
    <message>
        <source>Dip to colour</source>
        <translation>Fondu par une couleur</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Volet</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Iris circulaire</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Iris en losange</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Horloge</translation>
    </message>
    <message>
        <source>Barn doors</source>
        <translation>Portes battantes</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>Poussée</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Glissement</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>An effect was left out</source>
        <translation>Un effet a été omis</translation>
    </message>
    <message>
        <source>A transition was left out</source>
        <translation>Une transition a été omise</translation>
    </message>
    <message>
        <source>A clip of an unknown kind shows an empty picture</source>
        <translation>Un clip de type inconnu affiche une image vide</translation>
    </message>
    <message>
        <source>A clip that plays backwards plays forwards</source>
        <translation>Un clip lu à l’envers est lu à l’endroit</translation>
    </message>
    <message>
        <source>A change of speed was left out or is only close</source>
        <translation>Un changement de vitesse est omis ou approché</translation>
    </message>
    <message>
        <source>A file is missing; its clip is offline</source>
        <translation>Un fichier manque ; son clip est hors ligne</translation>
    </message>
    <message>
        <source>A part of the document cannot be used</source>
        <translation>Une partie du document est inutilisable</translation>
    </message>
    <message>
        <source>Markers are kept as text only</source>
        <translation>Les marqueurs ne sont conservés que sous forme de texte</translation>
    </message>
    <message>
        <source>A volume, balance or opacity is only close</source>
        <translation>Un volume, une balance ou une opacité est approché</translation>
    </message>
    <message>
        <source>There is no such device</source>
        <translation>L’appareil n’existe pas</translation>
    </message>
    <message>
        <source>The track is locked</source>
        <translation>La piste est verrouillée</translation>
    </message>
    <message>
        <source>Clips would overlap</source>
        <translation>Des clips se chevaucheraient</translation>
    </message>
    <message>
        <source>The clip has no more material</source>
        <translation>Le clip n’a pas plus de matière</translation>
    </message>
    <message>
        <source>Nothing would be left of the clip</source>
        <translation>Il ne resterait rien du clip</translation>
    </message>
    <message>
        <source>A transition cannot be cut</source>
        <translation>Une transition ne peut pas être coupée</translation>
    </message>
</context>
</TS>
