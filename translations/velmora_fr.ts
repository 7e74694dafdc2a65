<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AnswerPage</name>
    <message>
        <source>Service has been connected</source>
        <translation>Le service a été connecté</translation>
    </message>
    <message>
        <source>successfully</source>
        <translation>avec succès</translation>
    </message>
    <message>
        <source>Service has not been</source>
        <translation>Le service n'a pas été</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>connecté</translation>
    </message>
    <message>
        <source>You can close this page</source>
        <translation>Vous pouvez fermer cette page</translation>
    </message>
</context>
<context>
    <name>AudioListWidget</name>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Stop adding</source>
        <translation>Arrêter l'ajout</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Liste de lecture</translation>
    </message>
    <message>
        <source>Add Audio</source>
        <translation>Ajouter audio</translation>
    </message>
    <message>
        <source>Add Audio (Ctrl+M)</source>
        <translation>Ajouter audio (Ctrl+M)</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Boucle</translation>
    </message>
    <message>
        <source>Repeats the playlist until the slideshow ends.</source>
        <translation>Répète la liste de lecture jusqu'à la fin du diaporama.</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>Choose offset of selected audio file. Negative offset means audio file will start playing immediately, shifted by specified time. Positive offset means audio file will start playing from the specified time.</source>
        <translation>Choisissez le décalage du fichier audio sélectionné. Avec un décalage négatif, le fichier audio démarre tout de suite, décalé du temps indiqué. Avec un décalage positif, il est lu à partir du temps indiqué.</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Fondu</translation>
    </message>
    <message>
        <source>Choose duration of fade effect for audio track. 0 means no fade.</source>
        <translation>Choisissez la durée du fondu de la piste audio. 0 : pas de fondu.</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
</context>
<context>
    <name>BurnDialog</name>
    <message>
        <source>Device:</source>
        <translation>Lecteur :</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>Look for drives and discs again</source>
        <translation>Rechercher à nouveau les lecteurs et les disques</translation>
    </message>
    <message>
        <source>Disc title:</source>
        <translation>Titre du disque :</translation>
    </message>
    <message>
        <source>Disc title</source>
        <translation>Titre du disque</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Nom du fichier :</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Finalize disk</source>
        <translation>Finaliser le disque</translation>
    </message>
    <message>
        <source>Finalization means that the disc cannot have any additional data written to it afterwards. This option is needed by most DVD-players.</source>
        <translation>Une fois le disque finalisé, plus aucune donnée ne peut y être écrite. La plupart des lecteurs DVD ont besoin de cette option.</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>GRAVER LE DVD</translation>
    </message>
    <message>
        <source>Disk is not empty</source>
        <translation>Le disque n'est pas vide</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Erase the disc, then burn</source>
        <translation>Effacer le disque, puis graver</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Add the video to what is on the disc</source>
        <translation>Ajouter la vidéo au contenu du disque</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Go back without burning</source>
        <translation>Revenir sans graver</translation>
    </message>
    <message>
        <source>Writing disk</source>
        <translation>Écriture du disque</translation>
    </message>
    <message>
        <source>Progress of writing</source>
        <translation>Progression de l'écriture</translation>
    </message>
    <message>
        <source>Elapsed time:</source>
        <translation>Temps écoulé :</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>Stop writing</source>
        <translation>Arrêter l'écriture</translation>
    </message>
    <message>
        <source>Burning result:</source>
        <translation>Résultat de la gravure :</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>FERMER</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>Creation error</source>
        <translation>Erreur de création</translation>
    </message>
</context>
<context>
    <name>CreatePanel</name>
    <message>
        <source>Filename:</source>
        <translation>Nom du fichier :</translation>
    </message>
    <message>
        <source>Name of the video file</source>
        <translation>Nom du fichier vidéo</translation>
    </message>
    <message>
        <source>Format of the video file</source>
        <translation>Format du fichier vidéo</translation>
    </message>
    <message>
        <source>PREVIEW</source>
        <translation>APERÇU</translation>
    </message>
    <message>
        <source>CREATE</source>
        <translation>CRÉER</translation>
    </message>
    <message>
        <source>Progress of the video</source>
        <translation>Progression de la vidéo</translation>
    </message>
    <message>
        <source>Time elapsed: 0:00:00</source>
        <translation>Temps écoulé : 0:00:00</translation>
    </message>
    <message>
        <source>Time Remaining: 0:00:00</source>
        <translation>Temps restant : 0:00:00</translation>
    </message>
</context>
<context>
    <name>DesktopNotification</name>
    <message>
        <source>Show the window</source>
        <translation>Afficher la fenêtre</translation>
    </message>
</context>
<context>
    <name>DiscFileName</name>
    <message>
        <source>Enter a file name.</source>
        <translation>Saisissez un nom de fichier.</translation>
    </message>
    <message>
        <source>The file name is too long for a disc.</source>
        <translation>Le nom du fichier est trop long pour un disque.</translation>
    </message>
    <message>
        <source>The file name must not contain any of / \ : * ? " &lt; &gt; |</source>
        <translation>Le nom du fichier ne doit contenir aucun de ces caractères : / \ : * ? " &lt; &gt; |</translation>
    </message>
</context>
<context>
    <name>FinalWindow</name>
    <message>
        <source>Conversion has been completed</source>
        <translation>La conversion est terminée</translation>
    </message>
    <message>
        <source>Congratulations to all files in your folder, open it to view them!</source>
        <translation>Félicitations ! Tous vos fichiers sont dans votre dossier. Ouvrez-le pour les voir !</translation>
    </message>
    <message>
        <source>OPEN FOLDER</source>
        <translation>OUVRIR LE DOSSIER</translation>
    </message>
    <message>
        <source>Upload the video to this service</source>
        <translation>Envoyer la vidéo vers ce service</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>GRAVER LE DVD</translation>
    </message>
    <message>
        <source>Burn the video to a disc</source>
        <translation>Graver la vidéo sur un disque</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>FERMER</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>The history has become too large.</source>
        <translation>L'historique est devenu trop grand.</translation>
    </message>
</context>
<context>
    <name>HistoryWidget</name>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>CLEAR HISTORY</source>
        <translation>EFFACER L'HISTORIQUE</translation>
    </message>
    <message>
        <source>Finished videos</source>
        <translation>Vidéos terminées</translation>
    </message>
    <message>
        <source>UNDO</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>Bring back what was removed (Ctrl+Z)</source>
        <translation>Rétablir ce qui a été retiré (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Close this note</source>
        <translation>Fermer cette note</translation>
    </message>
    <message>
        <source>RESUME PROJECT</source>
        <translation>REPRENDRE LE PROJET</translation>
    </message>
    <message>
        <source>Open the project of the selected video in the editor</source>
        <translation>Ouvrir le projet de la vidéo sélectionnée dans l'éditeur</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>GRAVER LE DVD</translation>
    </message>
    <message>
        <source>Burn the selected video to a disc</source>
        <translation>Graver la vidéo sélectionnée sur un disque</translation>
    </message>
    <message>
        <source>UPLOAD</source>
        <translation>ENVOYER</translation>
    </message>
    <message>
        <source>Upload the selected video to a service</source>
        <translation>Envoyer la vidéo sélectionnée vers un service</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>Progression de l'envoi</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>Connection ...</source>
        <translation>Connexion ...</translation>
    </message>
    <message>
        <source>Sign in on the page that was opened in your browser.</source>
        <translation>Identifiez-vous sur la page ouverte dans votre navigateur.</translation>
    </message>
</context>
<context>
    <name>HttpAnswer</name>
    <message>
        <source>The service cannot be reached.</source>
        <translation>Le service est injoignable.</translation>
    </message>
    <message>
        <source>The connection to the service was lost.</source>
        <translation>La connexion au service a été perdue.</translation>
    </message>
    <message>
        <source>The connection to the service is not secure.</source>
        <translation>La connexion au service n'est pas sûre.</translation>
    </message>
    <message>
        <source>The service does not answer.</source>
        <translation>Le service ne répond pas.</translation>
    </message>
    <message>
        <source>The answer of the service cannot be understood.</source>
        <translation>La réponse du service est incompréhensible.</translation>
    </message>
</context>
<context>
    <name>ImageLoader</name>
    <message>
        <source>is not a picture that can be read</source>
        <translation>n'est pas une image lisible</translation>
    </message>
    <message>
        <source>is damaged or incomplete</source>
        <translation>est endommagée ou incomplète</translation>
    </message>
    <message>
        <source>does not exist</source>
        <translation>n'existe pas</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>est un dossier</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>ne peut pas être ouverte</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>est vide</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>est trop grande</translation>
    </message>
    <message>
        <source>is too large (%1 x %2 pixels)</source>
        <translation>est trop grande (%1 x %2 pixels)</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>The file is larger than %1 MB.</source>
        <translation>Le fichier dépasse %1 Mo.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Ce n'est pas un fichier ordinaire.</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>The folder "%1" does not exist any more.</source>
        <translation>Le dossier « %1 » n'existe plus.</translation>
    </message>
    <message>
        <source>There is no program to show the folder "%1".</source>
        <translation>Aucun programme ne peut afficher le dossier « %1 ».</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Images (%1)</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
</context>
<context>
    <name>MediaSuffixes</name>
    <message>
        <source>The folder cannot be read.</source>
        <translation>Le dossier ne peut pas être lu.</translation>
    </message>
</context>
<context>
    <name>ProjectName</name>
    <message>
        <source>Project name should not contain any of these symbols: *:[]{}\/!</source>
        <translation>Le nom du projet ne doit contenir aucun de ces symboles : *:[]{}\/!</translation>
    </message>
</context>
<context>
    <name>SetNameForm</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Title of the video</source>
        <translation>Titre de la vidéo</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>UPDATE</source>
        <translation>MODIFIER</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Close the settings</source>
        <translation>Fermer les paramètres</translation>
    </message>
    <message>
        <source>Close without saving (Esc)</source>
        <translation>Fermer sans enregistrer (Échap)</translation>
    </message>
    <message>
        <source>Default Settings for slideshow:</source>
        <translation>Paramètres par défaut du diaporama :</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>How long a new slide is shown</source>
        <translation>Durée d'affichage d'une nouvelle diapositive</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Transition</translation>
    </message>
    <message>
        <source>How a new slide comes in</source>
        <translation>Façon dont une nouvelle diapositive apparaît</translation>
    </message>
    <message>
        <source>Transition Time</source>
        <translation>Durée de transition</translation>
    </message>
    <message>
        <source>How long each transition lasts</source>
        <translation>Durée de chaque transition</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>The size of the picture of a new slideshow</source>
        <translation>Taille de l'image d'un nouveau diaporama</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Adapter à l'écran</translation>
    </message>
    <message>
        <source>Enlarge small photos so that they fill the picture</source>
        <translation>Agrandir les petites photos pour remplir l'image</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Proportions d'origine</translation>
    </message>
    <message>
        <source>Keep the shape of the photos instead of stretching them</source>
        <translation>Garder la forme des photos au lieu de les étirer</translation>
    </message>
    <message>
        <source>Default audio settings:</source>
        <translation>Paramètres audio par défaut :</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>When the music begins</source>
        <translation>Moment où la musique commence</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Fondu</translation>
    </message>
    <message>
        <source>How long the music takes to come and go</source>
        <translation>Durée du fondu de la musique</translation>
    </message>
    <message>
        <source>Export options:</source>
        <translation>Options d'exportation :</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>The folder that videos are written to</source>
        <translation>Le dossier où les vidéos sont écrites</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Choisir le dossier</translation>
    </message>
    <message>
        <source>Output profile</source>
        <translation>Profil de sortie</translation>
    </message>
    <message>
        <source>Original quality keeps every detail. Plays everywhere makes smaller files that televisions and phones play too.</source>
        <translation>« Qualité d'origine » garde chaque détail. « Lisible partout » fait des fichiers plus petits, lus aussi par les téléviseurs et les téléphones.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>The language of the program</source>
        <translation>La langue du programme</translation>
    </message>
    <message>
        <source>Increase speed of generation</source>
        <translation>Accélérer la création</translation>
    </message>
    <message>
        <source>Make two slides at the same time</source>
        <translation>Créer deux diapositives en même temps</translation>
    </message>
    <message>
        <source>Check for the updates automatically</source>
        <translation>Rechercher les mises à jour automatiquement</translation>
    </message>
    <message>
        <source>Send anonymous usage statistics</source>
        <translation>Envoyer des statistiques d'utilisation anonymes</translation>
    </message>
    <message>
        <source>Helps to improve the program. No names, photos or texts are sent.</source>
        <translation>Aide à améliorer le programme. Aucun nom, photo ou texte n'est envoyé.</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>ENREGISTRER</translation>
    </message>
    <message>
        <source>Save the settings (Ctrl+Enter)</source>
        <translation>Enregistrer les paramètres (Ctrl+Entrée)</translation>
    </message>
</context>
<context>
    <name>SlidesPage</name>
    <message>
        <source>Slides</source>
        <translation>Diapositives</translation>
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
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Mélanger les photos</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Trier les photos</translation>
    </message>
    <message>
        <source>Rotate photo</source>
        <translation>Pivoter la photo</translation>
    </message>
    <message>
        <source>Rotate photo to the left</source>
        <translation>Pivoter la photo vers la gauche</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Supprimer les diapositives</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Afficher à nouveau la diapositive de titre</translation>
    </message>
    <message>
        <source>Change all:</source>
        <translation>Tout modifier :</translation>
    </message>
    <message>
        <source>Time of every slide</source>
        <translation>Durée de toutes les diapositives</translation>
    </message>
    <message>
        <source>Transition of every slide</source>
        <translation>Transition de toutes les diapositives</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Show what the slideshow is made of</source>
        <translation>Montrer de quoi se compose le diaporama</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Vider la liste</translation>
    </message>
</context>
<context>
    <name>TextEditWidget</name>
    <message>
        <source>Back to the slides (Esc)</source>
        <translation>Retour aux diapositives (Échap)</translation>
    </message>
    <message>
        <source>Back to the slides</source>
        <translation>Retour aux diapositives</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Texte :</translation>
    </message>
    <message>
        <source>Text here</source>
        <translation>Texte ici</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Also the title slide</source>
        <translation>Aussi la diapositive de titre</translation>
    </message>
    <message>
        <source>Text settings:</source>
        <translation>Paramètres du texte :</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Bg Color</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effet</translation>
    </message>
    <message>
        <source>Effect with which the text appears</source>
        <translation>Effet d'apparition du texte</translation>
    </message>
    <message>
        <source>Show how the text appears (F5)</source>
        <translation>Montrer l'apparition du texte (F5)</translation>
    </message>
    <message>
        <source>Show how the text appears</source>
        <translation>Montrer l'apparition du texte</translation>
    </message>
    <message>
        <source>Text position:</source>
        <translation>Position du texte :</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>Position du texte</translation>
    </message>
    <message>
        <source>Picture of the slide</source>
        <translation>Image de la diapositive</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Arrière-plan :</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>Leave the slide as it was (Esc)</source>
        <translation>Laisser la diapositive telle quelle (Échap)</translation>
    </message>
    <message>
        <source>SAVE TEXT</source>
        <translation>ENREGISTRER LE TEXTE</translation>
    </message>
    <message>
        <source>Save (Ctrl+Enter)</source>
        <translation>Enregistrer (Ctrl+Entrée)</translation>
    </message>
</context>
<context>
    <name>ToolRow</name>
    <message>
        <source>Add Photo</source>
        <translation>Ajouter une photo</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Open the folder of the last video</source>
        <translation>Ouvrir le dossier de la dernière vidéo</translation>
    </message>
</context>
<context>
    <name>TransitionType</name>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Aléatoire</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>Mosaic Spiral In</source>
        <translation>Mosaïque spirale vers l'intérieur</translation>
    </message>
    <message>
        <source>Mosaic Spiral Out</source>
        <translation>Mosaïque spirale vers l'extérieur</translation>
    </message>
    <message>
        <source>Mosaic Strips</source>
        <translation>Mosaïque en bandes</translation>
    </message>
    <message>
        <source>Mosaic Wall</source>
        <translation>Mosaïque en mur</translation>
    </message>
    <message>
        <source>Checkerboard</source>
        <translation>Damier</translation>
    </message>
    <message>
        <source>Rotate Single Out</source>
        <translation>Rotation sortante</translation>
    </message>
    <message>
        <source>Rotate Single In</source>
        <translation>Rotation entrante</translation>
    </message>
    <message>
        <source>Flip Over</source>
        <translation>Retournement</translation>
    </message>
    <message>
        <source>Wipe Left To Right</source>
        <translation>Balayage de gauche à droite</translation>
    </message>
    <message>
        <source>Wipe Right To Left</source>
        <translation>Balayage de droite à gauche</translation>
    </message>
    <message>
        <source>Wipe Top To Bottom</source>
        <translation>Balayage de haut en bas</translation>
    </message>
    <message>
        <source>Wipe Bottom To Top</source>
        <translation>Balayage de bas en haut</translation>
    </message>
    <message>
        <source>Wipe Vertical In</source>
        <translation>Balayage vertical vers l'intérieur</translation>
    </message>
    <message>
        <source>Wipe Vertical Out</source>
        <translation>Balayage vertical vers l'extérieur</translation>
    </message>
    <message>
        <source>Stretch Horizontal</source>
        <translation>Étirement horizontal</translation>
    </message>
    <message>
        <source>Stretch Vertical</source>
        <translation>Étirement vertical</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Slide From Bottom</source>
        <translation>Glissement du bas</translation>
    </message>
    <message>
        <source>Slide From Left</source>
        <translation>Glissement de la gauche</translation>
    </message>
    <message>
        <source>Slide From Right</source>
        <translation>Glissement de la droite</translation>
    </message>
    <message>
        <source>Slide From Top</source>
        <translation>Glissement du haut</translation>
    </message>
    <message>
        <source>Slide From Top Left</source>
        <translation>Glissement du haut à gauche</translation>
    </message>
    <message>
        <source>Fade To Black</source>
        <translation>Fondu au noir</translation>
    </message>
    <message>
        <source>Cross fade</source>
        <translation>Fondu enchaîné</translation>
    </message>
    <message>
        <source>Fade To White</source>
        <translation>Fondu au blanc</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnue</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>DOWNLOAD</source>
        <translation>TÉLÉCHARGER</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
</context>
<context>
    <name>UploadFailWindow</name>
    <message>
        <source>Upload stopped with error</source>
        <translation>L'envoi s'est arrêté sur une erreur</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>FERMER</translation>
    </message>
</context>
<context>
    <name>UploadSuccessWindow</name>
    <message>
        <source>Uploading has been completed</source>
        <translation>L'envoi est terminé</translation>
    </message>
    <message>
        <source>Congratulations! Your file upload to %1 was successful!</source>
        <translation>Félicitations ! Votre fichier a bien été envoyé vers %1 !</translation>
    </message>
    <message>
        <source>OPEN</source>
        <translation>OUVRIR</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>FERMER</translation>
    </message>
</context>
<context>
    <name>ValueLists</name>
    <message>
        <source>%1 sec</source>
        <translation>%1 s</translation>
    </message>
</context>
<context>
    <name>VideoDialog</name>
    <message>
        <source>Picture of the video</source>
        <translation>Image de la vidéo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Position in the video (arrow keys)</source>
        <translation>Position dans la vidéo (touches fléchées)</translation>
    </message>
    <message>
        <source>Position in the video</source>
        <translation>Position dans la vidéo</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durée</translation>
    </message>
</context>
<context>
    <name>velmora::VideoDialog</name>
    <message>
        <source>Pause (Space)</source>
        <translation>Pause (Espace)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Lire (Espace)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
</context>
<context>
    <name>VideoPlayerWidget</name>
    <message>
        <source>Full preview</source>
        <translation>Aperçu complet</translation>
    </message>
    <message>
        <source>Preview picture</source>
        <translation>Image de l'aperçu</translation>
    </message>
    <message>
        <source>Position in the preview (arrow keys)</source>
        <translation>Position dans l'aperçu (touches fléchées)</translation>
    </message>
    <message>
        <source>Position in the preview</source>
        <translation>Position dans l'aperçu</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Lire (Espace)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Mute (M)</source>
        <translation>Muet (M)</translation>
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
        <source>Full screen (F)</source>
        <translation>Plein écran (F)</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Preview slideshow</source>
        <translation>Aperçu du diaporama</translation>
    </message>
    <message>
        <source>Play the whole slideshow</source>
        <translation>Lire tout le diaporama</translation>
    </message>
    <message>
        <source>Repeat transition</source>
        <translation>Répéter la transition</translation>
    </message>
    <message>
        <source>Play the transition to the selected slide</source>
        <translation>Lire la transition vers la diapositive sélectionnée</translation>
    </message>
</context>
<context>
    <name>VideoSettings</name>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Choose resolution of your slideshow</source>
        <translation>Choisissez la résolution de votre diaporama</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Transition duration</source>
        <translation>Durée de transition</translation>
    </message>
    <message>
        <source>Choose length of transition effects. Affects all transitions in current slideshow</source>
        <translation>Choisissez la durée des effets de transition. Concerne toutes les transitions du diaporama actuel</translation>
    </message>
    <message>
        <source>If you want images to be resized to fit the screen leave the checkbox checked. Otheriwse they stay original size.</source>
        <translation>Laissez la case cochée pour adapter les images à l'écran. Sinon, elles gardent leur taille d'origine.</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Adapter à l'écran</translation>
    </message>
    <message>
        <source>If you want to keep original aspect ratio of the photos leave checkbox checked. Otherwise they will be stretched to chosen resolution.</source>
        <translation>Laissez la case cochée pour garder les proportions des photos. Sinon, elles sont étirées à la résolution choisie.</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Proportions d'origine</translation>
    </message>
</context>
<context>
    <name>velmora::AudioDecoder</name>
    <message>
        <source>There is no sound in it.</source>
        <translation>Il ne contient pas de son.</translation>
    </message>
    <message>
        <source>The sound format "%1" is not supported.</source>
        <translation>Le format audio « %1 » n'est pas pris en charge.</translation>
    </message>
</context>
<context>
    <name>velmora::AudioFilesController</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 ne peut pas être lu.</translation>
    </message>
    <message>
        <source>%1, cannot be read</source>
        <translation>%1, illisible</translation>
    </message>
    <message>
        <source>%1, length %2</source>
        <translation>%1, durée %2</translation>
    </message>
    <message>
        <source>Audio Files (%1)</source>
        <translation>Fichiers audio (%1)</translation>
    </message>
</context>
<context>
    <name>velmora::AudioListWidget</name>
    <message>
        <source>Adding: %1</source>
        <translation>Ajout : %1</translation>
    </message>
    <message>
        <source>Adding...</source>
        <translation>Ajout ...</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Écoute</translation>
    </message>
    <message>
        <source>%1 cannot be played: %2</source>
        <translation>%1 ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>Drag &amp; drop audio files to create a playlist</source>
        <translation>Glissez-déposez des fichiers audio pour créer une liste de lecture</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Stop listening</source>
        <translation>Arrêter l'écoute</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>Écouter</translation>
    </message>
    <message>
        <source>Total: %1 %2 (%3)</source>
        <translation>Total : %1 %2 (%3)</translation>
    </message>
    <message>
        <source>track</source>
        <translation>piste</translation>
    </message>
    <message>
        <source>tracks</source>
        <translation>pistes</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <source>Adding audio files</source>
        <translation>Ajout de fichiers audio</translation>
    </message>
    <message>
        <source>Not all audio files have been added</source>
        <translation>Certains fichiers audio n'ont pas été ajoutés</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>FERMER</translation>
    </message>
</context>
<context>
    <name>velmora::AudioNoFocusRectangleDelegate</name>
    <message>
        <source>missing</source>
        <translation>manquant</translation>
    </message>
    <message>
        <source>Listen (Space)</source>
        <translation>Écouter (Espace)</translation>
    </message>
    <message>
        <source>Stop (Space)</source>
        <translation>Arrêter (Espace)</translation>
    </message>
    <message>
        <source>Delete (Del)</source>
        <translation>Supprimer (Suppr)</translation>
    </message>
</context>
<context>
    <name>velmora::BackgroundPicker</name>
    <message>
        <source>Background %1</source>
        <translation>Arrière-plan %1</translation>
    </message>
</context>
<context>
    <name>velmora::BaseOauth2Uploader</name>
    <message>
        <source>source file not found</source>
        <translation>fichier source introuvable</translation>
    </message>
    <message>
        <source>can't open source file for reading</source>
        <translation>impossible d'ouvrir le fichier source en lecture</translation>
    </message>
    <message>
        <source>Operation was canceled</source>
        <translation>L'opération a été annulée</translation>
    </message>
    <message>
        <source>Authorization error</source>
        <translation>Erreur d'autorisation</translation>
    </message>
    <message>
        <source>There is no program to show the sign-in page.</source>
        <translation>Aucun programme ne peut afficher la page d'identification.</translation>
    </message>
</context>
<context>
    <name>velmora::BurnDialog</name>
    <message>
        <source>%1 (%2 - %3 %4)</source>
        <translation>%1 (%2 - %3 %4)</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Libre</translation>
    </message>
    <message>
        <source>Burn DVD</source>
        <translation>Graver un DVD</translation>
    </message>
    <message>
        <source>My slideshow</source>
        <translation>Mon diaporama</translation>
    </message>
    <message>
        <source>Looking for drives…</source>
        <translation>Recherche de lecteurs…</translation>
    </message>
    <message>
        <source>No drive that can write discs was found.</source>
        <translation>Aucun lecteur capable de graver des disques n'a été trouvé.</translation>
    </message>
    <message>
        <source>Looking at the disc…</source>
        <translation>Examen du disque…</translation>
    </message>
    <message>
        <source>Media disk is not ready</source>
        <translation>Le disque n'est pas prêt</translation>
    </message>
    <message>
        <source>There is not enough disc space for the slideshow</source>
        <translation>Il n'y a pas assez de place sur le disque pour le diaporama</translation>
    </message>
    <message>
        <source>Disc is not empty. Do you want to erase disc before burning?
Press "Yes" if you want to erase disc before burning.
Press "No" if you want just to burn (add) new files to the disc.
Press "Cancel" to cancel the operation.</source>
        <translation>Le disque n'est pas vide. Voulez-vous l'effacer avant de graver ?
« Oui » efface le disque avant de graver.
« Non » ajoute les nouveaux fichiers au disque.
« Annuler » annule l'opération.</translation>
    </message>
    <message>
        <source>Disc is not empty. Do you want to erase disc before burning?
Press "Yes" if you want to erase disc before burning.
Press "Cancel" to cancel the operation.</source>
        <translation>Le disque n'est pas vide. Voulez-vous l'effacer avant de graver ?
« Oui » efface le disque avant de graver.
« Annuler » annule l'opération.</translation>
    </message>
    <message>
        <source>A disc whose writing is stopped can become unusable. Stop writing?</source>
        <translation>Un disque dont l'écriture est interrompue peut devenir inutilisable. Arrêter l'écriture ?</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>ARRÊTER</translation>
    </message>
    <message>
        <source>GO ON</source>
        <translation>CONTINUER</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>Réussi</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>The video is on the disc.</source>
        <translation>La vidéo est sur le disque.</translation>
    </message>
    <message>
        <source>The video was not written to the disc. The file on your computer is as it was.</source>
        <translation>La vidéo n'a pas été écrite sur le disque. Le fichier de votre ordinateur est inchangé.</translation>
    </message>
</context>
<context>
    <name>velmora::BusyNote</name>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Stop and leave everything as it was</source>
        <translation>Arrêter et tout laisser tel quel</translation>
    </message>
</context>
<context>
    <name>velmora::ColorBox</name>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>Gris clair</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>Gris foncé</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Rouge foncé</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Or</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Sable</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Marron</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>Citron vert</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Aqua</source>
        <translation>Turquoise</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>Bleu ciel</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rose</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Autre ...</translation>
    </message>
</context>
<context>
    <name>velmora::ComboBoxItemDelegate</name>
    <message>
        <source>Choose for this slide, or for all selected ones</source>
        <translation>Choisir pour cette diapositive, ou pour toutes celles sélectionnées</translation>
    </message>
</context>
<context>
    <name>velmora::Composer</name>
    <message>
        <source>The render program %1 could not be started: %2</source>
        <translation>Le programme de rendu %1 n'a pas pu démarrer : %2</translation>
    </message>
    <message>
        <source>The render program ended unexpectedly.</source>
        <translation>Le programme de rendu s'est arrêté de façon inattendue.</translation>
    </message>
</context>
<context>
    <name>velmora::ConcatList</name>
    <message>
        <source>The file name "%1" contains a line break.</source>
        <translation>Le nom de fichier « %1 » contient un saut de ligne.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 ne peut pas être écrit : %2</translation>
    </message>
</context>
<context>
    <name>velmora::CreatePanel</name>
    <message>
        <source>Make the video</source>
        <translation>Créer la vidéo</translation>
    </message>
    <message>
        <source>Play the whole slideshow</source>
        <translation>Lire tout le diaporama</translation>
    </message>
    <message>
        <source>The video cannot be made</source>
        <translation>La vidéo ne peut pas être créée</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>FERMER</translation>
    </message>
    <message>
        <source>The video is ready, but it could not be entered in the history: %1</source>
        <translation>La vidéo est prête, mais elle n'a pas pu être inscrite dans l'historique : %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressPage</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Time Elapsed: %1</source>
        <translation>Temps écoulé : %1</translation>
    </message>
    <message>
        <source>Time Remaining: %1</source>
        <translation>Temps restant : %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Finishing the video</source>
        <translation>Finalisation de la vidéo</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Préparation</translation>
    </message>
    <message>
        <source>Making the video (%1x)</source>
        <translation>Création de la vidéo (%1x)</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
</context>
<context>
    <name>velmora::OutputCheck</name>
    <message>
        <source>Filename</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>The video needs a file name.</source>
        <translation>La vidéo a besoin d'un nom de fichier.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist and cannot be made.</source>
        <translation>Le dossier %1 n'existe pas et ne peut pas être créé.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to: %2</source>
        <translation>Impossible d'écrire dans le dossier %1 : %2</translation>
    </message>
    <message>
        <source>The video cannot be saved</source>
        <translation>La vidéo ne peut pas être enregistrée</translation>
    </message>
    <message>
        <source>Please choose another folder in the settings.</source>
        <translation>Choisissez un autre dossier dans les paramètres.</translation>
    </message>
    <message>
        <source>Replace the video</source>
        <translation>Remplacer la vidéo</translation>
    </message>
    <message>
        <source>The file %1 exists already. Do you want to replace it?</source>
        <translation>Le fichier %1 existe déjà. Voulez-vous le remplacer ?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>REPLACE</source>
        <translation>REMPLACER</translation>
    </message>
</context>
<context>
    <name>velmora::RenderedProject</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Le dossier %1 ne peut pas être créé.</translation>
    </message>
</context>
<context>
    <name>velmora::DocumentActions</name>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>Do you want to save the changes to "%1"?</source>
        <translation>Voulez-vous enregistrer les modifications de « %1 » ?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>DON'T SAVE</source>
        <translation>NE PAS ENREGISTRER</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>ENREGISTRER</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Fermer le programme</translation>
    </message>
    <message>
        <source>A video is being made. If you close the program now, it is lost.</source>
        <translation>Une vidéo est en cours de création. Si vous fermez le programme maintenant, elle sera perdue.</translation>
    </message>
    <message>
        <source>A video is being uploaded. If you close the program now, it is not completed.</source>
        <translation>Une vidéo est en cours d'envoi. Si vous fermez le programme maintenant, l'envoi ne sera pas terminé.</translation>
    </message>
    <message>
        <source>STOP AND CLOSE</source>
        <translation>ARRÊTER ET FERMER</translation>
    </message>
    <message>
        <source>GO ON</source>
        <translation>CONTINUER</translation>
    </message>
    <message>
        <source>Restore the slideshow</source>
        <translation>Restaurer le diaporama</translation>
    </message>
    <message>
        <source>The program ended before "%1" was saved. Do you want to restore it?</source>
        <translation>Le programme s'est arrêté avant l'enregistrement de « %1 ». Voulez-vous le restaurer ?</translation>
    </message>
    <message>
        <source>DISCARD</source>
        <translation>ABANDONNER</translation>
    </message>
    <message>
        <source>RESTORE</source>
        <translation>RESTAURER</translation>
    </message>
    <message>
        <source>Open a slideshow</source>
        <translation>Ouvrir un diaporama</translation>
    </message>
    <message>
        <source>The file "%1" cannot be opened as a slideshow.</source>
        <translation>Le fichier « %1 » ne peut pas être ouvert comme diaporama.</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>FERMER</translation>
    </message>
    <message>
        <source>Slideshows (*.json)</source>
        <translation>Diaporamas (*.json)</translation>
    </message>
    <message>
        <source>Save the slideshow</source>
        <translation>Enregistrer le diaporama</translation>
    </message>
    <message>
        <source>The slideshow cannot be saved to "%1".</source>
        <translation>Le diaporama ne peut pas être enregistré sous « %1 ».</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxClient::ApiRequest</name>
    <message>
        <source>Unknown error</source>
        <translation>Erreur inconnue</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxClient::DropboxUploader</name>
    <message>
        <source>source file not found</source>
        <translation>fichier source introuvable</translation>
    </message>
    <message>
        <source>can't open source file for reading</source>
        <translation>impossible d'ouvrir le fichier source en lecture</translation>
    </message>
    <message>
        <source>The answer of the service cannot be understood.</source>
        <translation>La réponse du service est incompréhensible.</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxUpload</name>
    <message>
        <source>Operation was canceled</source>
        <translation>L'opération a été annulée</translation>
    </message>
</context>
<context>
    <name>velmora::EditorSide</name>
    <message>
        <source>Preview and settings</source>
        <translation>Aperçu et paramètres</translation>
    </message>
</context>
<context>
    <name>velmora::EncoderAdvice</name>
    <message>
        <source>FFmpeg was not found. Please install it (on Debian and Ubuntu: sudo apt install ffmpeg).</source>
        <translation>FFmpeg est introuvable. Installez-le (sous Debian et Ubuntu : sudo apt install ffmpeg).</translation>
    </message>
    <message>
        <source>FFmpeg %1 (%2) is too old. Please install version 4.4 or newer (on Debian and Ubuntu: sudo apt install ffmpeg).</source>
        <translation>FFmpeg %1 (%2) est trop ancien. Installez la version 4.4 ou plus récente (sous Debian et Ubuntu : sudo apt install ffmpeg).</translation>
    </message>
    <message>
        <source>FFmpeg was not found. It comes with Velmora: please install Velmora again, or put ffmpeg.exe into its folder.</source>
        <translation>FFmpeg est introuvable. Il est fourni avec Velmora : réinstallez Velmora ou placez ffmpeg.exe dans son dossier.</translation>
    </message>
    <message>
        <source>FFmpeg %1 (%2) is too old. Please install Velmora again, or put ffmpeg.exe of version 4.4 or newer into its folder.</source>
        <translation>FFmpeg %1 (%2) est trop ancien. Réinstallez Velmora ou placez ffmpeg.exe version 4.4 ou plus récente dans son dossier.</translation>
    </message>
</context>
<context>
    <name>velmora::FinalWindow</name>
    <message>
        <source>Open file Error</source>
        <translation>Erreur d'ouverture du fichier</translation>
    </message>
    <message>
        <source>File '%1' not found</source>
        <translation>Fichier « %1 » introuvable</translation>
    </message>
    <message>
        <source>There is no program to show the folder of '%1'.</source>
        <translation>Aucun programme ne peut afficher le dossier de « %1 ».</translation>
    </message>
</context>
<context>
    <name>velmora::FrameWriter</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 ne peut pas être écrit : %2</translation>
    </message>
    <message>
        <source>A frame of %1x%2 pixels cannot be compressed.</source>
        <translation>Une image de %1x%2 pixels ne peut pas être compressée.</translation>
    </message>
</context>
<context>
    <name>velmora::GeneratorThread</name>
    <message>
        <source>No folder for temporary files can be made as "%1": %2</source>
        <translation>Impossible de créer le dossier temporaire « %1 » : %2</translation>
    </message>
</context>
<context>
    <name>velmora::HelpBubble</name>
    <message>
        <source>Help for %1</source>
        <translation>Aide sur %1</translation>
    </message>
</context>
<context>
    <name>velmora::HelpDialog</name>
    <message>
        <source>Create the video, or save a text</source>
        <translation>Créer la vidéo, ou enregistrer un texte</translation>
    </message>
    <message>
        <source>Preview the whole slideshow</source>
        <translation>Aperçu de tout le diaporama</translation>
    </message>
    <message>
        <source>Play or pause the preview</source>
        <translation>Lire ou suspendre l'aperçu</translation>
    </message>
    <message>
        <source>Mute the preview</source>
        <translation>Couper le son de l'aperçu</translation>
    </message>
    <message>
        <source>Leave without saving</source>
        <translation>Quitter sans enregistrer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>From photos to a video</source>
        <translation>Des photos à la vidéo</translation>
    </message>
    <message>
        <source>1. Add photos or folders, with the buttons or by dropping them on the window.</source>
        <translation>1. Ajoutez des photos ou des dossiers, avec les boutons ou en les déposant sur la fenêtre.</translation>
    </message>
    <message>
        <source>2. Put them in order by dragging, and choose times and transitions.</source>
        <translation>2. Mettez-les en ordre en les faisant glisser, et choisissez durées et transitions.</translation>
    </message>
    <message>
        <source>3. Add texts to slides and music to the slideshow, and look at the preview.</source>
        <translation>3. Ajoutez des textes et de la musique, puis regardez l'aperçu.</translation>
    </message>
    <message>
        <source>4. Choose a name and a format, and press CREATE.</source>
        <translation>4. Choisissez un nom et un format, et cliquez sur CRÉER.</translation>
    </message>
    <message>
        <source>5. Watch, upload or burn the video from the history.</source>
        <translation>5. Regardez, envoyez ou gravez la vidéo depuis l'historique.</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>In the editor</source>
        <translation>Dans l'éditeur</translation>
    </message>
    <message>
        <source>OPEN MANUAL</source>
        <translation>OUVRIR LE MANUEL</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>FERMER</translation>
    </message>
    <message>
        <source>Go back in the preview</source>
        <translation>Reculer dans l'aperçu</translation>
    </message>
    <message>
        <source>Go forward in the preview</source>
        <translation>Avancer dans l'aperçu</translation>
    </message>
    <message>
        <source>Show the preview on the full screen</source>
        <translation>Afficher l'aperçu en plein écran</translation>
    </message>
    <message>
        <source>Play the effect of a text</source>
        <translation>Lire l'effet d'un texte</translation>
    </message>
</context>
<context>
    <name>velmora::HelpPages</name>
    <message>
        <source>Home page</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>No home page is set up in this copy of the program.</source>
        <translation>Aucun site web n'est configuré dans cette copie du programme.</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryHeader</name>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Sort by this column</source>
        <translation>Trier selon cette colonne</translation>
    </message>
    <message>
        <source>Sorts the list</source>
        <translation>Trie la liste</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryListView</name>
    <message>
        <source>Your finished slideshows appear here.</source>
        <translation>Vos diaporamas terminés apparaissent ici.</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryRowWidget</name>
    <message>
        <source>%1:%2:%3</source>
        <translation>%1:%2:%3</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>Open the project in the editor</source>
        <translation>Ouvrir le projet dans l'éditeur</translation>
    </message>
    <message>
        <source>Play the video</source>
        <translation>Lire la vidéo</translation>
    </message>
    <message>
        <source>Burn the video to a disc</source>
        <translation>Graver la vidéo sur un disque</translation>
    </message>
    <message>
        <source>Remove the video from the history</source>
        <translation>Retirer la vidéo de l'historique</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>retirée</translation>
    </message>
    <message>
        <source>The video file does not exist any more.</source>
        <translation>Le fichier vidéo n'existe plus.</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryWidget</name>
    <message>
        <source>Open file Error</source>
        <translation>Erreur d'ouverture du fichier</translation>
    </message>
    <message>
        <source>File '%1' not found</source>
        <translation>Fichier « %1 » introuvable</translation>
    </message>
    <message>
        <source>There is no program to play the file '%1'.</source>
        <translation>Aucun programme ne peut lire le fichier « %1 ».</translation>
    </message>
    <message>
        <source>Remove from the history</source>
        <translation>Retirer de l'historique</translation>
    </message>
    <message>
        <source>Remove "%1" from the history?</source>
        <translation>Retirer « %1 » de l'historique ?</translation>
    </message>
    <message>
        <source>Also move the video file to the trash</source>
        <translation>Mettre aussi le fichier vidéo à la corbeille</translation>
    </message>
    <message>
        <source>REMOVE</source>
        <translation>RETIRER</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>Clear the history</source>
        <translation>Effacer l'historique</translation>
    </message>
    <message numerus="yes">
        <source>Remove all videos (%n) from the history?</source>
        <translation><numerusform>Retirer %n vidéo de l'historique ?</numerusform><numerusform>Retirer les %n vidéos de l'historique ?</numerusform></translation>
    </message>
    <message>
        <source>Also move the video files to the trash</source>
        <translation>Mettre aussi les fichiers vidéo à la corbeille</translation>
    </message>
    <message>
        <source>REMOVE ALL</source>
        <translation>TOUT RETIRER</translation>
    </message>
    <message>
        <source>Some video files could not be moved to the trash. They are where they were.</source>
        <translation>Certains fichiers vidéo n'ont pas pu être mis à la corbeille. Ils sont restés à leur place.</translation>
    </message>
    <message>
        <source>Some video files could not be taken out of the trash.</source>
        <translation>Certains fichiers vidéo n'ont pas pu être retirés de la corbeille.</translation>
    </message>
    <message numerus="yes">
        <source>Videos removed from the history: %n</source>
        <translation><numerusform>%n vidéo retirée de l'historique.</numerusform><numerusform>%n vidéos retirées de l'historique.</numerusform></translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>The history could not be changed: %1</source>
        <translation>L'historique n'a pas pu être modifié : %1</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <translation>Écoulé : %1</translation>
    </message>
    <message>
        <source>Uploading %1 to %2</source>
        <translation>Envoi de %1 vers %2</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>Connexion à %1</translation>
    </message>
</context>
<context>
    <name>velmora::InputCheck</name>
    <message numerus="yes">
        <source>%n more file(s) cannot be used.</source>
        <translation><numerusform>%n autre fichier ne peut pas être utilisé.</numerusform><numerusform>%n autres fichiers ne peuvent pas être utilisés.</numerusform></translation>
    </message>
    <message>
        <source>The video would replace "%1", of which it is made. Please choose another name.</source>
        <translation>La vidéo remplacerait « %1 », dont elle est faite. Veuillez choisir un autre nom.</translation>
    </message>
</context>
<context>
    <name>velmora::InputFiles</name>
    <message>
        <source>The folder "%1" cannot be read.</source>
        <translation>Le dossier « %1 » ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The photo "%1" does not exist.</source>
        <translation>La photo « %1 » n'existe pas.</translation>
    </message>
    <message>
        <source>"%1" is not a photo of a known format.</source>
        <translation>« %1 » n'est pas une photo d'un format connu.</translation>
    </message>
    <message>
        <source>There are no photos in the folder "%1".</source>
        <translation>Il n'y a pas de photos dans le dossier « %1 ».</translation>
    </message>
    <message>
        <source>The sound file "%1" does not exist.</source>
        <translation>Le fichier audio « %1 » n'existe pas.</translation>
    </message>
    <message>
        <source>"%1" is not a sound file of a known format.</source>
        <translation>« %1 » n'est pas un fichier audio d'un format connu.</translation>
    </message>
    <message>
        <source>There are no sound files in the folder "%1".</source>
        <translation>Il n'y a pas de fichiers audio dans le dossier « %1 ».</translation>
    </message>
</context>
<context>
    <name>velmora::MainMenu</name>
    <message>
        <source>New slideshow</source>
        <translation>Nouveau diaporama</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Ouvrir ...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation>Enregistrer sous ...</translation>
    </message>
    <message>
        <source>Set video title...</source>
        <translation>Définir le titre de la vidéo ...</translation>
    </message>
    <message>
        <source>Add Photo</source>
        <translation>Ajouter une photo</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
</context>
<context>
    <name>velmora::MainView</name>
    <message>
        <source>The video is ready</source>
        <translation>La vidéo est prête</translation>
    </message>
    <message>
        <source>The upload has failed</source>
        <translation>L'envoi a échoué</translation>
    </message>
    <message>
        <source>The upload is complete</source>
        <translation>L'envoi est terminé</translation>
    </message>
    <message>
        <source>Another video is being uploaded.</source>
        <translation>Une autre vidéo est en cours d'envoi.</translation>
    </message>
</context>
<context>
    <name>velmora::MainWindowWidget</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
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
        <source>%1: %2</source>
        <comment>undo or redo, and what</comment>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Add Audio</source>
        <translation>Ajouter audio</translation>
    </message>
    <message>
        <source>Photos are still being added</source>
        <translation>Des photos sont encore en cours d'ajout</translation>
    </message>
    <message>
        <source>Audio files are still being added</source>
        <translation>Des fichiers audio sont encore en cours d'ajout</translation>
    </message>
    <message>
        <source>The photos are still being sorted</source>
        <translation>Le tri des photos est encore en cours</translation>
    </message>
    <message>
        <source>A text is still being edited</source>
        <translation>Un texte est encore en cours de modification</translation>
    </message>
</context>
<context>
    <name>velmora::MakeCommand</name>
    <message>
        <source>The project cannot be written as "%1": %2.</source>
        <translation>Le projet ne peut pas être écrit sous « %1 » : %2.</translation>
    </message>
    <message>
        <source>"velmoratool --help" lists what is possible.</source>
        <translation>« velmoratool --help » indique ce qui est possible.</translation>
    </message>
</context>
<context>
    <name>velmora::MakeOptions</name>
    <message>
        <source>"%1" is not a whole number from %2 to %3.</source>
        <translation>« %1 » n'est pas un nombre entier de %2 à %3.</translation>
    </message>
    <message>
        <source>The text is empty.</source>
        <translation>Le texte est vide.</translation>
    </message>
    <message>
        <source>"%1" is not a size such as 1920x1080.</source>
        <translation>« %1 » n'est pas une taille telle que 1920x1080.</translation>
    </message>
    <message>
        <source>There is no transition "%1". There are: %2.</source>
        <translation>La transition « %1 » n'existe pas. Il y a : %2.</translation>
    </message>
    <message>
        <source>"%1" is none of name, date and given.</source>
        <translation>« %1 » n'est ni name, ni date, ni given.</translation>
    </message>
    <message>
        <source>"%1" is neither original nor everywhere.</source>
        <translation>« %1 » n'est ni original ni everywhere.</translation>
    </message>
    <message>
        <source>The name of the video "%1" must end in one of: %2.</source>
        <translation>Le nom de la vidéo « %1 » doit se terminer par : %2.</translation>
    </message>
    <message>
        <source>A file name is empty.</source>
        <translation>Un nom de fichier est vide.</translation>
    </message>
    <message>
        <source>"%1" belongs to no option.</source>
        <translation>« %1 » n'appartient à aucune option.</translation>
    </message>
    <message>
        <source>There is no option --%1.</source>
        <translation>L'option --%1 n'existe pas.</translation>
    </message>
    <message>
        <source>--%1 takes no value.</source>
        <translation>--%1 ne prend pas de valeur.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 demande une valeur.</translation>
    </message>
    <message>
        <source>--%1 cannot be combined with --project, which has its own.</source>
        <translation>--%1 ne peut pas être combiné avec --project, qui a la sienne.</translation>
    </message>
    <message>
        <source>--photos or --project is needed.</source>
        <translation>--photos ou --project est nécessaire.</translation>
    </message>
    <message>
        <source>--output is needed.</source>
        <translation>--output est nécessaire.</translation>
    </message>
    <message>
        <source>--stretch and --original-size exclude each other.</source>
        <translation>--stretch et --original-size s'excluent.</translation>
    </message>
</context>
<context>
    <name>velmora::MakeProject</name>
    <message>
        <source>The project "%1" cannot be used: %2</source>
        <translation>Le projet « %1 » est inutilisable : %2</translation>
    </message>
</context>
<context>
    <name>velmora::MediaFileInfo</name>
    <message>
        <source>There is neither sound nor video in it.</source>
        <translation>Il ne contient ni son ni vidéo.</translation>
    </message>
</context>
<context>
    <name>velmora::MediaInput</name>
    <message>
        <source>The file does not exist.</source>
        <translation>Le fichier n'existe pas.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Ce n'est pas un fichier.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>It is damaged, or not a media file.</source>
        <translation>Il est endommagé, ou n'est pas un fichier multimédia.</translation>
    </message>
    <message>
        <source>It is a play list, not a media file.</source>
        <translation>C'est une liste de lecture, pas un fichier multimédia.</translation>
    </message>
</context>
<context>
    <name>velmora::MessageDialog</name>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>FERMER</translation>
    </message>
</context>
<context>
    <name>velmora::MultipartUploader</name>
    <message>
        <source>can't open source file for reading</source>
        <translation>impossible d'ouvrir le fichier source en lecture</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Erreur inconnue</translation>
    </message>
    <message>
        <source>Error uploading video:%1</source>
        <translation>Erreur lors de l'envoi de la vidéo :%1</translation>
    </message>
</context>
<context>
    <name>velmora::OutputTarget</name>
    <message>
        <source>The project does not name a video file to write.</source>
        <translation>Le projet ne nomme aucun fichier vidéo à écrire.</translation>
    </message>
    <message>
        <source>The finished video could not be put in place as "%1": %2.</source>
        <translation>La vidéo terminée n'a pas pu être mise en place sous « %1 » : %2.</translation>
    </message>
    <message>
        <source>The video was kept as "%1".</source>
        <translation>La vidéo a été conservée sous « %1 ».</translation>
    </message>
    <message>
        <source>The video's name "%1..." is too long. Please choose a shorter one.</source>
        <translation>Le nom de la vidéo « %1... » est trop long. Veuillez en choisir un plus court.</translation>
    </message>
    <message>
        <source>The folder "%1" for the video does not exist.</source>
        <translation>Le dossier « %1 » pour la vidéo n'existe pas.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": it is not a folder.</source>
        <translation>La vidéo ne peut pas être écrite dans « %1 » : ce n'est pas un dossier.</translation>
    </message>
    <message>
        <source>The video cannot be written as "%1": a folder has that name.</source>
        <translation>La vidéo ne peut pas être écrite sous « %1 » : un dossier porte ce nom.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": the disk is full.</source>
        <translation>La vidéo ne peut pas être écrite dans « %1 » : le disque est plein.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": %2.</source>
        <translation>La vidéo ne peut pas être écrite dans « %1 » : %2.</translation>
    </message>
    <message>
        <source>Another render is writing "%1" at this time.</source>
        <translation>Un autre rendu écrit « %1 » en ce moment.</translation>
    </message>
</context>
<context>
    <name>velmora::PhotoImporter</name>
    <message>
        <source>does not exist</source>
        <translation>n'existe pas</translation>
    </message>
    <message>
        <source>is not a photo</source>
        <translation>n'est pas une photo</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>ne peut pas être lu</translation>
    </message>
    <message>
        <source>holds no photos</source>
        <translation>ne contient pas de photos</translation>
    </message>
</context>
<context>
    <name>velmora::PhotoImports</name>
    <message numerus="yes">
        <source>Adding photos: %n looked at</source>
        <translation><numerusform>Ajout de photos : %n examinée</numerusform><numerusform>Ajout de photos : %n examinées</numerusform></translation>
    </message>
    <message>
        <source>Adding photos</source>
        <translation>Ajout de photos</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files have not been added</source>
        <translation><numerusform>%n fichier n'a pas été ajouté</numerusform><numerusform>%n fichiers n'ont pas été ajoutés</numerusform></translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>FERMER</translation>
    </message>
</context>
<context>
    <name>velmora::PositionPicker</name>
    <message>
        <source>Top left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top centre</source>
        <translation>En haut au centre</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Centre left</source>
        <translation>Au centre à gauche</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Au centre</translation>
    </message>
    <message>
        <source>Centre right</source>
        <translation>Au centre à droite</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom centre</source>
        <translation>En bas au centre</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>En bas à droite</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressText</name>
    <message>
        <source>%1 elapsed</source>
        <translation>%1 écoulé</translation>
    </message>
    <message>
        <source>%1 elapsed, %2 left</source>
        <translation>%1 écoulé, %2 restant</translation>
    </message>
    <message>
        <source>%1 %, %2</source>
        <translation>%1 %, %2</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectEditor</name>
    <message>
        <source>Add photos</source>
        <translation>Ajouter des photos</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Supprimer les diapositives</translation>
    </message>
    <message>
        <source>Hide the title slide</source>
        <translation>Masquer la diapositive de titre</translation>
    </message>
    <message>
        <source>Move slides</source>
        <translation>Déplacer les diapositives</translation>
    </message>
    <message>
        <source>Change time</source>
        <translation>Changer la durée</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Changer la transition</translation>
    </message>
    <message>
        <source>Rotate photos</source>
        <translation>Pivoter les photos</translation>
    </message>
    <message>
        <source>Change caption</source>
        <translation>Changer le texte</translation>
    </message>
    <message>
        <source>Change caption style</source>
        <translation>Changer le style du texte</translation>
    </message>
    <message>
        <source>Change title slide</source>
        <translation>Changer la diapositive de titre</translation>
    </message>
    <message>
        <source>Add audio</source>
        <translation>Ajouter audio</translation>
    </message>
    <message>
        <source>Delete audio</source>
        <translation>Supprimer audio</translation>
    </message>
    <message>
        <source>Move audio</source>
        <translation>Déplacer l'audio</translation>
    </message>
    <message>
        <source>Change audio offset</source>
        <translation>Changer le décalage audio</translation>
    </message>
    <message>
        <source>Change audio fade</source>
        <translation>Changer le fondu audio</translation>
    </message>
    <message>
        <source>Loop audio</source>
        <translation>Boucle audio</translation>
    </message>
    <message>
        <source>Change resolution</source>
        <translation>Changer la résolution</translation>
    </message>
    <message>
        <source>Change format</source>
        <translation>Changer le format</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Proportions d'origine</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Adapter à l'écran</translation>
    </message>
    <message>
        <source>Change transition duration</source>
        <translation>Changer la durée de transition</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Trier les photos</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Mélanger les photos</translation>
    </message>
    <message>
        <source>Relocate photos</source>
        <translation>Retrouver les photos</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectFile</name>
    <message>
        <source>New project</source>
        <translation>Nouveau projet</translation>
    </message>
    <message>
        <source>The file is not a valid JSON document: %1.</source>
        <translation>Le fichier n'est pas un document JSON valide : %1.</translation>
    </message>
    <message>
        <source>The file is not a project document.</source>
        <translation>Le fichier n'est pas un document de projet.</translation>
    </message>
    <message>
        <source>The project document cannot be used, faulty field: %1.</source>
        <translation>Le document de projet est inutilisable, champ défectueux : %1.</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectItemFirst</name>
    <message>
        <source>My slideshow</source>
        <translation>Mon diaporama</translation>
    </message>
    <message>
        <source>Starter</source>
        <translation>Début</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectResume</name>
    <message>
        <source>Not all files exist</source>
        <translation>Certains fichiers n'existent pas</translation>
    </message>
    <message>
        <source>Not all files exist, do you want to resume the project?</source>
        <translation>Certains fichiers n'existent pas. Voulez-vous reprendre le projet ?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>RESUME</source>
        <translation>REPRENDRE</translation>
    </message>
</context>
<context>
    <name>velmora::RenderFailure</name>
    <message>
        <source>The disk that holds the folder "%1" is full.</source>
        <translation>Le disque qui contient le dossier « %1 » est plein.</translation>
    </message>
    <message>
        <source>The photo "%1" %2.</source>
        <translation>La photo « %1 » %2.</translation>
    </message>
    <message>
        <source>The sound file "%1" cannot be used: %2</source>
        <translation>Le fichier audio « %1 » est inutilisable : %2</translation>
    </message>
</context>
<context>
    <name>velmora::RenderJob</name>
    <message>
        <source>The slideshow has no slides.</source>
        <translation>Le diaporama n'a pas de diapositives.</translation>
    </message>
    <message>
        <source>A video of %1x%2 pixels is too small; each side needs at least %3.</source>
        <translation>Une vidéo de %1x%2 pixels est trop petite ; chaque côté doit avoir au moins %3.</translation>
    </message>
</context>
<context>
    <name>velmora::RenderReport</name>
    <message>
        <source>Cancelled. No video was written.</source>
        <translation>Annulé. Aucune vidéo n'a été écrite.</translation>
    </message>
    <message>
        <source>The video is ready: %1</source>
        <translation>La vidéo est prête : %1</translation>
    </message>
    <message>
        <source>The project is ready: %1</source>
        <translation>Le projet est prêt : %1</translation>
    </message>
</context>
<context>
    <name>velmora::SetNameDialog</name>
    <message>
        <source>Set video title</source>
        <translation>Définir le titre de la vidéo</translation>
    </message>
</context>
<context>
    <name>velmora::SettingsWidget</name>
    <message>
        <source>Original quality</source>
        <translation>Qualité d'origine</translation>
    </message>
    <message>
        <source>Plays everywhere</source>
        <translation>Lisible partout</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>version %1 - %2</source>
        <translation>version %1 - %2</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Choisir le dossier</translation>
    </message>
    <message>
        <source>The settings hold until the program ends, because they cannot be written to the file %1.</source>
        <translation>Les paramètres ne sont valables que jusqu'à la fermeture du programme, car ils ne peuvent pas être écrits dans le fichier %1.</translation>
    </message>
</context>
<context>
    <name>velmora::SlideActions</name>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Rotate photo</source>
        <translation>Pivoter la photo</translation>
    </message>
    <message>
        <source>Rotate photo to the left</source>
        <translation>Pivoter la photo vers la gauche</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Mélanger les photos</translation>
    </message>
    <message>
        <source>Sort photos by name</source>
        <translation>Trier les photos par nom</translation>
    </message>
    <message>
        <source>Sort photos by date taken</source>
        <translation>Trier les photos par date de prise de vue</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>Modifier le texte</translation>
    </message>
    <message>
        <source>Edit text style of all slides</source>
        <translation>Modifier le style de texte de toutes</translation>
    </message>
    <message>
        <source>Set time</source>
        <translation>Définir la durée</translation>
    </message>
    <message>
        <source>Set transition</source>
        <translation>Définir la transition</translation>
    </message>
    <message>
        <source>Preview transition</source>
        <translation>Aperçu de la transition</translation>
    </message>
    <message>
        <source>Relocate...</source>
        <translation>Retrouver ...</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Afficher à nouveau la diapositive de titre</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Supprimer les diapositives</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Vider la liste</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>an action and its key</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>velmora::SlidePictures</name>
    <message>
        <source>The photo '%1' cannot be read.</source>
        <translation>La photo « %1 » ne peut pas être lue.</translation>
    </message>
</context>
<context>
    <name>velmora::SlideSorter</name>
    <message>
        <source>Reading the dates of the photos</source>
        <translation>Lecture des dates des photos</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTable</name>
    <message>
        <source>Drag &amp; drop photos and folders to add them here</source>
        <translation>Glissez-déposez ici des photos et des dossiers pour les ajouter</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTableModel</name>
    <message>
        <source>Time</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Transition</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>The title slide is not part of the video.</source>
        <translation>La diapositive de titre ne fait pas partie de la vidéo.</translation>
    </message>
    <message>
        <source>The photo %1 does not exist any more.</source>
        <translation>La photo %1 n'existe plus.</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTextDelegate</name>
    <message>
        <source>Relocate...</source>
        <translation>Retrouver ...</translation>
    </message>
    <message>
        <source>Edit the text of this slide (F2)</source>
        <translation>Modifier le texte de cette diapositive (F2)</translation>
    </message>
    <message>
        <source>Delete this slide (Del)</source>
        <translation>Supprimer cette diapositive (Suppr)</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Afficher à nouveau la diapositive de titre</translation>
    </message>
    <message>
        <source>Choose the file again</source>
        <translation>Choisir à nouveau le fichier</translation>
    </message>
    <message>
        <source>Not part of the video</source>
        <translation>Ne fait pas partie de la vidéo</translation>
    </message>
    <message>
        <source>Title slide</source>
        <translation>Diapositive de titre</translation>
    </message>
    <message>
        <source>Missing: %1</source>
        <translation>Manquant : %1</translation>
    </message>
</context>
<context>
    <name>velmora::SlidesPage</name>
    <message>
        <source>Drag &amp; drop photos and folders to add them here</source>
        <translation>Glissez-déposez ici des photos et des dossiers pour les ajouter</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Trier les photos</translation>
    </message>
    <message>
        <source>Clear list (%1)</source>
        <translation>Vider la liste (%1)</translation>
    </message>
    <message>
        <source>Various</source>
        <translation>Divers</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>Total : %1</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Images (%1)</translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>Où est %1 ?</translation>
    </message>
    <message>
        <source>Photos: %1</source>
        <translation>Photos : %1</translation>
    </message>
    <message>
        <source>Running time: %1</source>
        <translation>Durée totale : %1</translation>
    </message>
    <message>
        <source>Audio files: %1</source>
        <translation>Fichiers audio : %1</translation>
    </message>
    <message>
        <source>Resolution: %1</source>
        <translation>Résolution : %1</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>FERMER</translation>
    </message>
</context>
<context>
    <name>velmora::SoundChecker</name>
    <message>
        <source>Nothing in it can be played.</source>
        <translation>Rien de ce qu'il contient ne peut être lu.</translation>
    </message>
</context>
<context>
    <name>velmora::SoundTrack</name>
    <message>
        <source>The music file '%1' cannot be read: %2</source>
        <translation>Le fichier de musique « %1 » ne peut pas être lu : %2</translation>
    </message>
</context>
<context>
    <name>velmora::Spinner</name>
    <message>
        <source>Preparing the preview</source>
        <translation>Préparation de l'aperçu</translation>
    </message>
</context>
<context>
    <name>velmora::SplashScreen</name>
    <message>
        <source>Loading</source>
        <translation>Chargement</translation>
    </message>
</context>
<context>
    <name>velmora::StartPage</name>
    <message>
        <source>Drop your photos here</source>
        <translation>Déposez vos photos ici</translation>
    </message>
    <message>
        <source>Photos and whole folders become a slideshow with transitions, titles and music.</source>
        <translation>Photos et dossiers entiers deviennent un diaporama avec transitions, titres et musique.</translation>
    </message>
    <message>
        <source>Add Photo</source>
        <translation>Ajouter une photo</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>Open a slideshow</source>
        <translation>Ouvrir un diaporama</translation>
    </message>
    <message>
        <source>Try the sample photos</source>
        <translation>Essayer les photos d'exemple</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Continuer avec %1</translation>
    </message>
    <message>
        <source>Open the last slideshow again</source>
        <translation>Rouvrir le dernier diaporama</translation>
    </message>
    <message>
        <source>Open a saved slideshow</source>
        <translation>Ouvrir un diaporama enregistré</translation>
    </message>
    <message>
        <source>Add photos to the slideshow</source>
        <translation>Ajouter des photos au diaporama</translation>
    </message>
    <message>
        <source>Add all photos of a folder</source>
        <translation>Ajouter toutes les photos d'un dossier</translation>
    </message>
    <message>
        <source>Begin a slideshow with the photos that come with the program</source>
        <translation>Commencer un diaporama avec les photos fournies</translation>
    </message>
</context>
<context>
    <name>velmora::TextEditWidget</name>
    <message>
        <source>Edit style for 'Starter' slide</source>
        <translation>Modifier le style de la diapositive « Début »</translation>
    </message>
    <message>
        <source>Edit style for All slides</source>
        <translation>Modifier le style de toutes les diapositives</translation>
    </message>
    <message>
        <source>Edit style for '%1' slide</source>
        <translation>Modifier le style de la diapositive « %1 »</translation>
    </message>
    <message>
        <source>Text here</source>
        <translation>Texte ici</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Abandonner les modifications</translation>
    </message>
    <message>
        <source>The changes of this text have not been saved. Discard them?</source>
        <translation>Les modifications de ce texte ne sont pas enregistrées. Les abandonner ?</translation>
    </message>
    <message>
        <source>DISCARD</source>
        <translation>ABANDONNER</translation>
    </message>
    <message>
        <source>KEEP EDITING</source>
        <translation>CONTINUER</translation>
    </message>
</context>
<context>
    <name>velmora::TitleBar</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
</context>
<context>
    <name>velmora::ToolRow</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Back to the slideshow</source>
        <translation>Retour au diaporama</translation>
    </message>
    <message>
        <source>Add photos to the slideshow</source>
        <translation>Ajouter des photos au diaporama</translation>
    </message>
    <message>
        <source>Add all photos of a folder</source>
        <translation>Ajouter toutes les photos d'un dossier</translation>
    </message>
    <message>
        <source>Show the slideshows made so far</source>
        <translation>Afficher les diaporamas déjà créés</translation>
    </message>
    <message>
        <source>Change how new slideshows begin</source>
        <translation>Changer le début des nouveaux diaporamas</translation>
    </message>
    <message>
        <source>Help and keyboard shortcuts</source>
        <translation>Aide et raccourcis clavier</translation>
    </message>
    <message>
        <source>Last slideshow: %1</source>
        <translation>Dernier diaporama : %1</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
</context>
<context>
    <name>velmora::ToolRunner</name>
    <message>
        <source>It could not be started.</source>
        <translation>Il n'a pas pu démarrer.</translation>
    </message>
    <message>
        <source>It ended unexpectedly.</source>
        <translation>Il s'est arrêté de façon inattendue.</translation>
    </message>
    <message>
        <source>It ended with code %1.</source>
        <translation>Il s'est arrêté avec le code %1.</translation>
    </message>
</context>
<context>
    <name>velmora::UpdateDialog</name>
    <message>
        <source>Update available!</source>
        <translation>Mise à jour disponible !</translation>
    </message>
    <message>
        <source>New version of the programm is avalible:</source>
        <translation>Une nouvelle version du programme est disponible :</translation>
    </message>
    <message>
        <source>Read about</source>
        <translation>En savoir plus sur les</translation>
    </message>
    <message>
        <source>new feauters</source>
        <translation>nouveautés</translation>
    </message>
</context>
<context>
    <name>velmora::UploadController</name>
    <message>
        <source>Uploading to %1 is not configured. The addresses and the registration of the service belong into the file '%2'.</source>
        <translation>L'envoi vers %1 n'est pas configuré. Les adresses et l'enregistrement du service vont dans le fichier « %2 ».</translation>
    </message>
</context>
<context>
    <name>velmora::UploadServiceMenu</name>
    <message>
        <source>Services</source>
        <translation>Services</translation>
    </message>
</context>
<context>
    <name>velmora::UploadSuccessWindow</name>
    <message>
        <source>Shows the file in the browser</source>
        <translation>Affiche le fichier dans le navigateur</translation>
    </message>
</context>
<context>
    <name>velmora::VideoPlayerWidget</name>
    <message>
        <source>Add photos to see the slideshow here</source>
        <translation>Ajoutez des photos pour voir le diaporama ici</translation>
    </message>
    <message>
        <source>Preview transition to slide %1</source>
        <translation>Aperçu : transition vers la diapositive %1</translation>
    </message>
    <message>
        <source>Full preview</source>
        <translation>Aperçu complet</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Pause (Espace)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Lire (Espace)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Sound on (M)</source>
        <translation>Activer le son (M)</translation>
    </message>
    <message>
        <source>Mute (M)</source>
        <translation>Muet (M)</translation>
    </message>
</context>
<context>
    <name>velmora::VideoUtil</name>
    <message>
        <source>The disk is full.</source>
        <translation>Le disque est plein.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>The encoder failed: %1</source>
        <translation>L'encodeur a échoué : %1</translation>
    </message>
    <message>
        <source>The encoder wrote nothing to %1.</source>
        <translation>L'encodeur n'a rien écrit dans %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>There are no frames to encode.</source>
        <translation>Il n'y a pas d'images à encoder.</translation>
    </message>
    <message>
        <source>The part %1 of the video is missing.</source>
        <translation>La partie %1 de la vidéo manque.</translation>
    </message>
    <message>
        <source>The program "transcoder" is missing beside this program.</source>
        <translation>Le programme « transcoder » manque à côté de ce programme.</translation>
    </message>
</context>
<context>
    <name>velmora::WavTranscoder</name>
    <message>
        <source>The music file '%1' cannot be read: %2</source>
        <translation>Le fichier de musique « %1 » ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>The file '%1' cannot be written: %2</source>
        <translation>Le fichier « %1 » ne peut pas être écrit : %2</translation>
    </message>
    <message>
        <source>Nothing in it can be played.</source>
        <translation>Rien de ce qu'il contient ne peut être lu.</translation>
    </message>
</context>
<context>
    <name>velmora::WavWriter</name>
    <message>
        <source>The older file of that name cannot be replaced.</source>
        <translation>L'ancien fichier de ce nom ne peut pas être remplacé.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Le disque est plein.</translation>
    </message>
</context>
<context>
    <name>velmora::WebLoginDialog</name>
    <message>
        <source>Sign in</source>
        <translation>S'identifier</translation>
    </message>
    <message>
        <source>Sign-in page of the service</source>
        <translation>Page d'identification du service</translation>
    </message>
    <message>
        <source>Authorization error</source>
        <translation>Erreur d'autorisation</translation>
    </message>
</context>
<context>
    <name>velmora::WorkerMain</name>
    <message>
        <source>A render worker needs --session_id, --cache and --request, and nothing else.</source>
        <translation>Un processus de rendu demande --session_id, --cache et --request, et rien d'autre.</translation>
    </message>
    <message>
        <source>The request "%1" cannot be used: %2</source>
        <translation>La demande « %1 » est inutilisable : %2</translation>
    </message>
</context>
<context>
    <name>velmora::UploaderFactory</name>
    <message>
        <source>This copy of the program cannot upload videos: it was built without the component that signs in to services (Qt NetworkAuth).</source>
        <translation>Cet exemplaire du programme ne peut pas envoyer de vidéos : il a été compilé sans le composant qui se connecte aux services (Qt NetworkAuth).</translation>
    </message>
</context>
<context>
    <name>velmora::DiscWriter</name>
    <message>
        <source>This copy of the program cannot burn discs on this system.</source>
        <translation>Cet exemplaire du programme ne peut pas graver de disques sur ce système.</translation>
    </message>
</context>
</TS>