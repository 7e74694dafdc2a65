<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AnswerPage</name>
    <message>
        <source>Service has been connected</source>
        <translation>Der Dienst wurde</translation>
    </message>
    <message>
        <source>successfully</source>
        <translation>erfolgreich verbunden</translation>
    </message>
    <message>
        <source>Service has not been</source>
        <translation>Der Dienst wurde nicht</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>You can close this page</source>
        <translation>Sie können diese Seite schließen</translation>
    </message>
</context>
<context>
    <name>AudioListWidget</name>
    <message>
        <source>Audio</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Stop adding</source>
        <translation>Hinzufügen abbrechen</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Wiedergabeliste</translation>
    </message>
    <message>
        <source>Add Audio</source>
        <translation>Musik hinzufügen</translation>
    </message>
    <message>
        <source>Add Audio (Ctrl+M)</source>
        <translation>Musik hinzufügen (Strg+M)</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>Repeats the playlist until the slideshow ends.</source>
        <translation>Wiederholt die Wiedergabeliste, bis die Diashow endet.</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Choose offset of selected audio file. Negative offset means audio file will start playing immediately, shifted by specified time. Positive offset means audio file will start playing from the specified time.</source>
        <translation>Wählen Sie den Versatz der ausgewählten Tondatei. Bei negativem Versatz beginnt die Tondatei sofort, um die angegebene Zeit verschoben. Bei positivem Versatz beginnt die Wiedergabe der Tondatei ab der angegebenen Zeit.</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Blende</translation>
    </message>
    <message>
        <source>Choose duration of fade effect for audio track. 0 means no fade.</source>
        <translation>Wählen Sie die Dauer der Blende für die Tonspur. 0 bedeutet keine Blende.</translation>
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
        <translation>Laufwerk:</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Look for drives and discs again</source>
        <translation>Erneut nach Laufwerken und Discs suchen</translation>
    </message>
    <message>
        <source>Disc title:</source>
        <translation>Disc-Titel:</translation>
    </message>
    <message>
        <source>Disc title</source>
        <translation>Disc-Titel</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Dateiname:</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Finalize disk</source>
        <translation>Disc abschließen</translation>
    </message>
    <message>
        <source>Finalization means that the disc cannot have any additional data written to it afterwards. This option is needed by most DVD-players.</source>
        <translation>Nach dem Abschließen können keine weiteren Daten auf die Disc geschrieben werden. Die meisten DVD-Spieler benötigen diese Einstellung.</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>DVD BRENNEN</translation>
    </message>
    <message>
        <source>Disk is not empty</source>
        <translation>Die Disc ist nicht leer</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Erase the disc, then burn</source>
        <translation>Die Disc löschen, dann brennen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Add the video to what is on the disc</source>
        <translation>Das Video zum Inhalt der Disc hinzufügen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Go back without burning</source>
        <translation>Zurück, ohne zu brennen</translation>
    </message>
    <message>
        <source>Writing disk</source>
        <translation>Disc wird geschrieben</translation>
    </message>
    <message>
        <source>Progress of writing</source>
        <translation>Fortschritt des Schreibens</translation>
    </message>
    <message>
        <source>Elapsed time:</source>
        <translation>Vergangene Zeit:</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
    <message>
        <source>Stop writing</source>
        <translation>Schreiben beenden</translation>
    </message>
    <message>
        <source>Burning result:</source>
        <translation>Ergebnis des Brennens:</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>SCHLIESSEN</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>Creation error</source>
        <translation>Fehler beim Erstellen</translation>
    </message>
</context>
<context>
    <name>CreatePanel</name>
    <message>
        <source>Filename:</source>
        <translation>Dateiname:</translation>
    </message>
    <message>
        <source>Name of the video file</source>
        <translation>Name der Videodatei</translation>
    </message>
    <message>
        <source>Format of the video file</source>
        <translation>Format der Videodatei</translation>
    </message>
    <message>
        <source>PREVIEW</source>
        <translation>VORSCHAU</translation>
    </message>
    <message>
        <source>CREATE</source>
        <translation>ERSTELLEN</translation>
    </message>
    <message>
        <source>Progress of the video</source>
        <translation>Fortschritt des Videos</translation>
    </message>
    <message>
        <source>Time elapsed: 0:00:00</source>
        <translation>Vergangene Zeit: 0:00:00</translation>
    </message>
    <message>
        <source>Time Remaining: 0:00:00</source>
        <translation>Verbleibende Zeit: 0:00:00</translation>
    </message>
</context>
<context>
    <name>DesktopNotification</name>
    <message>
        <source>Show the window</source>
        <translation>Das Fenster zeigen</translation>
    </message>
</context>
<context>
    <name>DiscFileName</name>
    <message>
        <source>Enter a file name.</source>
        <translation>Geben Sie einen Dateinamen ein.</translation>
    </message>
    <message>
        <source>The file name is too long for a disc.</source>
        <translation>Der Dateiname ist zu lang für eine Disc.</translation>
    </message>
    <message>
        <source>The file name must not contain any of / \ : * ? " &lt; &gt; |</source>
        <translation>Der Dateiname darf keines dieser Zeichen enthalten: / \ : * ? " &lt; &gt; |</translation>
    </message>
</context>
<context>
    <name>FinalWindow</name>
    <message>
        <source>Conversion has been completed</source>
        <translation>Die Umwandlung ist abgeschlossen</translation>
    </message>
    <message>
        <source>Congratulations to all files in your folder, open it to view them!</source>
        <translation>Glückwunsch! Alle Dateien liegen in Ihrem Ordner. Öffnen Sie ihn, um sie anzusehen!</translation>
    </message>
    <message>
        <source>OPEN FOLDER</source>
        <translation>ORDNER ÖFFNEN</translation>
    </message>
    <message>
        <source>Upload the video to this service</source>
        <translation>Das Video zu diesem Dienst hochladen</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>DVD BRENNEN</translation>
    </message>
    <message>
        <source>Burn the video to a disc</source>
        <translation>Das Video auf eine Disc brennen</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>SCHLIESSEN</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>The history has become too large.</source>
        <translation>Der Verlauf ist zu groß geworden.</translation>
    </message>
</context>
<context>
    <name>HistoryWidget</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>CLEAR HISTORY</source>
        <translation>VERLAUF LÖSCHEN</translation>
    </message>
    <message>
        <source>Finished videos</source>
        <translation>Fertige Videos</translation>
    </message>
    <message>
        <source>UNDO</source>
        <translation>RÜCKGÄNGIG</translation>
    </message>
    <message>
        <source>Bring back what was removed (Ctrl+Z)</source>
        <translation>Entferntes zurückholen (Strg+Z)</translation>
    </message>
    <message>
        <source>Close this note</source>
        <translation>Diesen Hinweis schließen</translation>
    </message>
    <message>
        <source>RESUME PROJECT</source>
        <translation>PROJEKT FORTSETZEN</translation>
    </message>
    <message>
        <source>Open the project of the selected video in the editor</source>
        <translation>Das Projekt des ausgewählten Videos im Editor öffnen</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>DVD BRENNEN</translation>
    </message>
    <message>
        <source>Burn the selected video to a disc</source>
        <translation>Das ausgewählte Video auf eine Disc brennen</translation>
    </message>
    <message>
        <source>UPLOAD</source>
        <translation>HOCHLADEN</translation>
    </message>
    <message>
        <source>Upload the selected video to a service</source>
        <translation>Das ausgewählte Video zu einem Dienst hochladen</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>Fortschritt des Hochladens</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
    <message>
        <source>Connection ...</source>
        <translation>Verbinden ...</translation>
    </message>
    <message>
        <source>Sign in on the page that was opened in your browser.</source>
        <translation>Melden Sie sich auf der Seite an, die in Ihrem Browser geöffnet wurde.</translation>
    </message>
</context>
<context>
    <name>HttpAnswer</name>
    <message>
        <source>The service cannot be reached.</source>
        <translation>Der Dienst ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The connection to the service was lost.</source>
        <translation>Die Verbindung zum Dienst ist abgebrochen.</translation>
    </message>
    <message>
        <source>The connection to the service is not secure.</source>
        <translation>Die Verbindung zum Dienst ist nicht sicher.</translation>
    </message>
    <message>
        <source>The service does not answer.</source>
        <translation>Der Dienst antwortet nicht.</translation>
    </message>
    <message>
        <source>The answer of the service cannot be understood.</source>
        <translation>Die Antwort des Dienstes ist nicht verständlich.</translation>
    </message>
</context>
<context>
    <name>ImageLoader</name>
    <message>
        <source>is not a picture that can be read</source>
        <translation>ist kein lesbares Bild</translation>
    </message>
    <message>
        <source>is damaged or incomplete</source>
        <translation>ist beschädigt oder unvollständig</translation>
    </message>
    <message>
        <source>does not exist</source>
        <translation>existiert nicht</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>ist zu groß</translation>
    </message>
    <message>
        <source>is too large (%1 x %2 pixels)</source>
        <translation>ist zu groß (%1 x %2 Pixel)</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>The file is larger than %1 MB.</source>
        <translation>Die Datei ist größer als %1 MB.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>The folder "%1" does not exist any more.</source>
        <translation>Der Ordner „%1“ existiert nicht mehr.</translation>
    </message>
    <message>
        <source>There is no program to show the folder "%1".</source>
        <translation>Es gibt kein Programm, das den Ordner „%1“ anzeigen kann.</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
</context>
<context>
    <name>MediaSuffixes</name>
    <message>
        <source>The folder cannot be read.</source>
        <translation>Der Ordner kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>ProjectName</name>
    <message>
        <source>Project name should not contain any of these symbols: *:[]{}\/!</source>
        <translation>Der Projektname darf keines dieser Zeichen enthalten: *:[]{}\/!</translation>
    </message>
</context>
<context>
    <name>SetNameForm</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Title of the video</source>
        <translation>Titel des Videos</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
    <message>
        <source>UPDATE</source>
        <translation>ÄNDERN</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Close the settings</source>
        <translation>Die Einstellungen schließen</translation>
    </message>
    <message>
        <source>Close without saving (Esc)</source>
        <translation>Schließen, ohne zu speichern (Esc)</translation>
    </message>
    <message>
        <source>Default Settings for slideshow:</source>
        <translation>Standardeinstellungen für Diashows:</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>How long a new slide is shown</source>
        <translation>Wie lange eine neue Folie gezeigt wird</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Übergang</translation>
    </message>
    <message>
        <source>How a new slide comes in</source>
        <translation>Wie eine neue Folie erscheint</translation>
    </message>
    <message>
        <source>Transition Time</source>
        <translation>Übergangszeit</translation>
    </message>
    <message>
        <source>How long each transition lasts</source>
        <translation>Wie lange jeder Übergang dauert</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>The size of the picture of a new slideshow</source>
        <translation>Die Bildgröße einer neuen Diashow</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Enlarge small photos so that they fill the picture</source>
        <translation>Kleine Fotos vergrößern, bis sie das Bild füllen</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Seitenverhältnis</translation>
    </message>
    <message>
        <source>Keep the shape of the photos instead of stretching them</source>
        <translation>Die Form der Fotos erhalten, statt sie zu strecken</translation>
    </message>
    <message>
        <source>Default audio settings:</source>
        <translation>Standardeinstellungen für Ton:</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>When the music begins</source>
        <translation>Wann die Musik beginnt</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Blende</translation>
    </message>
    <message>
        <source>How long the music takes to come and go</source>
        <translation>Wie lange die Musik ein- und ausgeblendet wird</translation>
    </message>
    <message>
        <source>Export options:</source>
        <translation>Ausgabe:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>The folder that videos are written to</source>
        <translation>Der Ordner, in den Videos geschrieben werden</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Den Ordner wählen</translation>
    </message>
    <message>
        <source>Output profile</source>
        <translation>Ausgabeprofil</translation>
    </message>
    <message>
        <source>Original quality keeps every detail. Plays everywhere makes smaller files that televisions and phones play too.</source>
        <translation>„Originalqualität“ erhält jedes Detail. „Läuft überall“ macht kleinere Dateien, die auch Fernseher und Telefone abspielen.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>The language of the program</source>
        <translation>Die Sprache des Programms</translation>
    </message>
    <message>
        <source>Increase speed of generation</source>
        <translation>Schneller erstellen</translation>
    </message>
    <message>
        <source>Make two slides at the same time</source>
        <translation>Zwei Folien gleichzeitig erstellen</translation>
    </message>
    <message>
        <source>Check for the updates automatically</source>
        <translation>Automatisch nach Updates suchen</translation>
    </message>
    <message>
        <source>Send anonymous usage statistics</source>
        <translation>Anonyme Nutzungsstatistik senden</translation>
    </message>
    <message>
        <source>Helps to improve the program. No names, photos or texts are sent.</source>
        <translation>Hilft, das Programm zu verbessern. Namen, Fotos und Texte werden nicht gesendet.</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>SPEICHERN</translation>
    </message>
    <message>
        <source>Save the settings (Ctrl+Enter)</source>
        <translation>Die Einstellungen speichern (Strg+Eingabe)</translation>
    </message>
</context>
<context>
    <name>SlidesPage</name>
    <message>
        <source>Slides</source>
        <translation>Folien</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Fotos mischen</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Fotos sortieren</translation>
    </message>
    <message>
        <source>Rotate photo</source>
        <translation>Foto drehen</translation>
    </message>
    <message>
        <source>Rotate photo to the left</source>
        <translation>Foto nach links drehen</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Folien löschen</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Die Titelfolie wieder zeigen</translation>
    </message>
    <message>
        <source>Change all:</source>
        <translation>Alle ändern:</translation>
    </message>
    <message>
        <source>Time of every slide</source>
        <translation>Zeit aller Folien</translation>
    </message>
    <message>
        <source>Transition of every slide</source>
        <translation>Übergang aller Folien</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Show what the slideshow is made of</source>
        <translation>Zeigen, woraus die Diashow besteht</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Liste leeren</translation>
    </message>
</context>
<context>
    <name>TextEditWidget</name>
    <message>
        <source>Back to the slides (Esc)</source>
        <translation>Zurück zu den Folien (Esc)</translation>
    </message>
    <message>
        <source>Back to the slides</source>
        <translation>Zurück zu den Folien</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Text:</translation>
    </message>
    <message>
        <source>Text here</source>
        <translation>Text hier</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Also the title slide</source>
        <translation>Auch die Titelfolie</translation>
    </message>
    <message>
        <source>Text settings:</source>
        <translation>Texteinstellungen:</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Bg Color</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effekt</translation>
    </message>
    <message>
        <source>Effect with which the text appears</source>
        <translation>Effekt, mit dem der Text erscheint</translation>
    </message>
    <message>
        <source>Show how the text appears (F5)</source>
        <translation>Zeigen, wie der Text erscheint (F5)</translation>
    </message>
    <message>
        <source>Show how the text appears</source>
        <translation>Zeigen, wie der Text erscheint</translation>
    </message>
    <message>
        <source>Text position:</source>
        <translation>Textposition:</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>Textposition</translation>
    </message>
    <message>
        <source>Picture of the slide</source>
        <translation>Bild der Folie</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Hintergrund:</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
    <message>
        <source>Leave the slide as it was (Esc)</source>
        <translation>Die Folie lassen, wie sie war (Esc)</translation>
    </message>
    <message>
        <source>SAVE TEXT</source>
        <translation>TEXT SPEICHERN</translation>
    </message>
    <message>
        <source>Save (Ctrl+Enter)</source>
        <translation>Speichern (Strg+Eingabe)</translation>
    </message>
</context>
<context>
    <name>ToolRow</name>
    <message>
        <source>Add Photo</source>
        <translation>Foto hinzufügen</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Open the folder of the last video</source>
        <translation>Den Ordner des letzten Videos öffnen</translation>
    </message>
</context>
<context>
    <name>TransitionType</name>
    <message>
        <source>None</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Zufällig</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Verpixeln</translation>
    </message>
    <message>
        <source>Mosaic Spiral In</source>
        <translation>Mosaikspirale nach innen</translation>
    </message>
    <message>
        <source>Mosaic Spiral Out</source>
        <translation>Mosaikspirale nach außen</translation>
    </message>
    <message>
        <source>Mosaic Strips</source>
        <translation>Mosaikstreifen</translation>
    </message>
    <message>
        <source>Mosaic Wall</source>
        <translation>Mosaikwand</translation>
    </message>
    <message>
        <source>Checkerboard</source>
        <translation>Schachbrett</translation>
    </message>
    <message>
        <source>Rotate Single Out</source>
        <translation>Herausdrehen</translation>
    </message>
    <message>
        <source>Rotate Single In</source>
        <translation>Hereindrehen</translation>
    </message>
    <message>
        <source>Flip Over</source>
        <translation>Umklappen</translation>
    </message>
    <message>
        <source>Wipe Left To Right</source>
        <translation>Wischen von links nach rechts</translation>
    </message>
    <message>
        <source>Wipe Right To Left</source>
        <translation>Wischen von rechts nach links</translation>
    </message>
    <message>
        <source>Wipe Top To Bottom</source>
        <translation>Wischen von oben nach unten</translation>
    </message>
    <message>
        <source>Wipe Bottom To Top</source>
        <translation>Wischen von unten nach oben</translation>
    </message>
    <message>
        <source>Wipe Vertical In</source>
        <translation>Senkrecht wischen nach innen</translation>
    </message>
    <message>
        <source>Wipe Vertical Out</source>
        <translation>Senkrecht wischen nach außen</translation>
    </message>
    <message>
        <source>Stretch Horizontal</source>
        <translation>Waagerecht strecken</translation>
    </message>
    <message>
        <source>Stretch Vertical</source>
        <translation>Senkrecht strecken</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Hineinzoomen</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Herauszoomen</translation>
    </message>
    <message>
        <source>Slide From Bottom</source>
        <translation>Schieben von unten</translation>
    </message>
    <message>
        <source>Slide From Left</source>
        <translation>Schieben von links</translation>
    </message>
    <message>
        <source>Slide From Right</source>
        <translation>Schieben von rechts</translation>
    </message>
    <message>
        <source>Slide From Top</source>
        <translation>Schieben von oben</translation>
    </message>
    <message>
        <source>Slide From Top Left</source>
        <translation>Schieben von links oben</translation>
    </message>
    <message>
        <source>Fade To Black</source>
        <translation>Blende nach Schwarz</translation>
    </message>
    <message>
        <source>Cross fade</source>
        <translation>Überblenden</translation>
    </message>
    <message>
        <source>Fade To White</source>
        <translation>Blende nach Weiß</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>DOWNLOAD</source>
        <translation>HERUNTERLADEN</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
</context>
<context>
    <name>UploadFailWindow</name>
    <message>
        <source>Upload stopped with error</source>
        <translation>Das Hochladen endete mit einem Fehler</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>SCHLIESSEN</translation>
    </message>
</context>
<context>
    <name>UploadSuccessWindow</name>
    <message>
        <source>Uploading has been completed</source>
        <translation>Das Hochladen ist abgeschlossen</translation>
    </message>
    <message>
        <source>Congratulations! Your file upload to %1 was successful!</source>
        <translation>Glückwunsch! Ihre Datei wurde erfolgreich zu %1 hochgeladen!</translation>
    </message>
    <message>
        <source>OPEN</source>
        <translation>ÖFFNEN</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>SCHLIESSEN</translation>
    </message>
</context>
<context>
    <name>ValueLists</name>
    <message>
        <source>%1 sec</source>
        <translation>%1 Sek.</translation>
    </message>
</context>
<context>
    <name>VideoDialog</name>
    <message>
        <source>Picture of the video</source>
        <translation>Bild des Videos</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Position in the video (arrow keys)</source>
        <translation>Position im Video (Pfeiltasten)</translation>
    </message>
    <message>
        <source>Position in the video</source>
        <translation>Position im Video</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
</context>
<context>
    <name>velmora::VideoDialog</name>
    <message>
        <source>Pause (Space)</source>
        <translation>Anhalten (Leertaste)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Abspielen (Leertaste)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
</context>
<context>
    <name>VideoPlayerWidget</name>
    <message>
        <source>Full preview</source>
        <translation>Ganze Vorschau</translation>
    </message>
    <message>
        <source>Preview picture</source>
        <translation>Vorschaubild</translation>
    </message>
    <message>
        <source>Position in the preview (arrow keys)</source>
        <translation>Position in der Vorschau (Pfeiltasten)</translation>
    </message>
    <message>
        <source>Position in the preview</source>
        <translation>Position in der Vorschau</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Abspielen (Leertaste)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
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
        <source>Mute (M)</source>
        <translation>Stumm (M)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Full screen (F)</source>
        <translation>Vollbild (F)</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Preview slideshow</source>
        <translation>Diashow ansehen</translation>
    </message>
    <message>
        <source>Play the whole slideshow</source>
        <translation>Die ganze Diashow abspielen</translation>
    </message>
    <message>
        <source>Repeat transition</source>
        <translation>Übergang wiederholen</translation>
    </message>
    <message>
        <source>Play the transition to the selected slide</source>
        <translation>Den Übergang zur ausgewählten Folie abspielen</translation>
    </message>
</context>
<context>
    <name>VideoSettings</name>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Choose resolution of your slideshow</source>
        <translation>Wählen Sie die Auflösung Ihrer Diashow</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Transition duration</source>
        <translation>Übergangsdauer</translation>
    </message>
    <message>
        <source>Choose length of transition effects. Affects all transitions in current slideshow</source>
        <translation>Wählen Sie die Länge der Übergänge. Gilt für alle Übergänge der aktuellen Diashow</translation>
    </message>
    <message>
        <source>If you want images to be resized to fit the screen leave the checkbox checked. Otheriwse they stay original size.</source>
        <translation>Lassen Sie das Häkchen gesetzt, wenn die Bilder an den Bildschirm angepasst werden sollen. Sonst behalten sie ihre Größe.</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>If you want to keep original aspect ratio of the photos leave checkbox checked. Otherwise they will be stretched to chosen resolution.</source>
        <translation>Lassen Sie das Häkchen gesetzt, wenn das Seitenverhältnis der Fotos erhalten bleiben soll. Sonst werden sie auf die gewählte Auflösung gestreckt.</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Seitenverhältnis</translation>
    </message>
</context>
<context>
    <name>velmora::AudioDecoder</name>
    <message>
        <source>There is no sound in it.</source>
        <translation>Sie enthält keinen Ton.</translation>
    </message>
    <message>
        <source>The sound format "%1" is not supported.</source>
        <translation>Das Tonformat „%1“ wird nicht unterstützt.</translation>
    </message>
</context>
<context>
    <name>velmora::AudioFilesController</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1, cannot be read</source>
        <translation>%1, nicht lesbar</translation>
    </message>
    <message>
        <source>%1, length %2</source>
        <translation>%1, Länge %2</translation>
    </message>
    <message>
        <source>Audio Files (%1)</source>
        <translation>Tondateien (%1)</translation>
    </message>
</context>
<context>
    <name>velmora::AudioListWidget</name>
    <message>
        <source>Adding: %1</source>
        <translation>Wird hinzugefügt: %1</translation>
    </message>
    <message>
        <source>Adding...</source>
        <translation>Wird hinzugefügt ...</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Wird angehört</translation>
    </message>
    <message>
        <source>%1 cannot be played: %2</source>
        <translation>%1 kann nicht abgespielt werden: %2</translation>
    </message>
    <message>
        <source>Drag &amp; drop audio files to create a playlist</source>
        <translation>Ziehen Sie Tondateien hierher, um eine Wiedergabeliste zu erstellen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Stop listening</source>
        <translation>Anhören beenden</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>Anhören</translation>
    </message>
    <message>
        <source>Total: %1 %2 (%3)</source>
        <translation>Gesamt: %1 %2 (%3)</translation>
    </message>
    <message>
        <source>track</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>tracks</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Adding audio files</source>
        <translation>Tondateien hinzufügen</translation>
    </message>
    <message>
        <source>Not all audio files have been added</source>
        <translation>Nicht alle Tondateien wurden hinzugefügt</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>SCHLIESSEN</translation>
    </message>
</context>
<context>
    <name>velmora::AudioNoFocusRectangleDelegate</name>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>Listen (Space)</source>
        <translation>Anhören (Leertaste)</translation>
    </message>
    <message>
        <source>Stop (Space)</source>
        <translation>Stopp (Leertaste)</translation>
    </message>
    <message>
        <source>Delete (Del)</source>
        <translation>Löschen (Entf)</translation>
    </message>
</context>
<context>
    <name>velmora::BackgroundPicker</name>
    <message>
        <source>Background %1</source>
        <translation>Hintergrund %1</translation>
    </message>
</context>
<context>
    <name>velmora::BaseOauth2Uploader</name>
    <message>
        <source>source file not found</source>
        <translation>Quelldatei nicht gefunden</translation>
    </message>
    <message>
        <source>can't open source file for reading</source>
        <translation>Quelldatei kann nicht zum Lesen geöffnet werden</translation>
    </message>
    <message>
        <source>Operation was canceled</source>
        <translation>Der Vorgang wurde abgebrochen</translation>
    </message>
    <message>
        <source>Authorization error</source>
        <translation>Fehler bei der Anmeldung</translation>
    </message>
    <message>
        <source>There is no program to show the sign-in page.</source>
        <translation>Es gibt kein Programm, das die Anmeldeseite anzeigen kann.</translation>
    </message>
</context>
<context>
    <name>velmora::BurnDialog</name>
    <message>
        <source>%1 (%2 - %3 %4)</source>
        <translation>%1 (%2 – %3 %4)</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>Burn DVD</source>
        <translation>DVD brennen</translation>
    </message>
    <message>
        <source>My slideshow</source>
        <translation>Meine Diashow</translation>
    </message>
    <message>
        <source>Looking for drives…</source>
        <translation>Laufwerke werden gesucht …</translation>
    </message>
    <message>
        <source>No drive that can write discs was found.</source>
        <translation>Es wurde kein Laufwerk gefunden, das Discs beschreiben kann.</translation>
    </message>
    <message>
        <source>Looking at the disc…</source>
        <translation>Die Disc wird geprüft …</translation>
    </message>
    <message>
        <source>Media disk is not ready</source>
        <translation>Die Disc ist nicht bereit</translation>
    </message>
    <message>
        <source>There is not enough disc space for the slideshow</source>
        <translation>Auf der Disc ist nicht genug Platz für die Diashow</translation>
    </message>
    <message>
        <source>Disc is not empty. Do you want to erase disc before burning?
Press "Yes" if you want to erase disc before burning.
Press "No" if you want just to burn (add) new files to the disc.
Press "Cancel" to cancel the operation.</source>
        <translation>Die Disc ist nicht leer. Möchten Sie sie vor dem Brennen löschen?
Mit „Ja“ wird die Disc vor dem Brennen gelöscht.
Mit „Nein“ werden die neuen Dateien zur Disc hinzugefügt.
Mit „Abbrechen“ wird der Vorgang abgebrochen.</translation>
    </message>
    <message>
        <source>Disc is not empty. Do you want to erase disc before burning?
Press "Yes" if you want to erase disc before burning.
Press "Cancel" to cancel the operation.</source>
        <translation>Die Disc ist nicht leer. Möchten Sie sie vor dem Brennen löschen?
Mit „Ja“ wird die Disc vor dem Brennen gelöscht.
Mit „Abbrechen“ wird der Vorgang abgebrochen.</translation>
    </message>
    <message>
        <source>A disc whose writing is stopped can become unusable. Stop writing?</source>
        <translation>Eine Disc, deren Schreiben beendet wird, kann unbrauchbar werden. Das Schreiben beenden?</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>BEENDEN</translation>
    </message>
    <message>
        <source>GO ON</source>
        <translation>WEITER</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>Erfolgreich</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>The video is on the disc.</source>
        <translation>Das Video ist auf der Disc.</translation>
    </message>
    <message>
        <source>The video was not written to the disc. The file on your computer is as it was.</source>
        <translation>Das Video wurde nicht auf die Disc geschrieben. Die Datei auf Ihrem Computer ist unverändert.</translation>
    </message>
</context>
<context>
    <name>velmora::BusyNote</name>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Stop and leave everything as it was</source>
        <translation>Beenden und alles lassen, wie es war</translation>
    </message>
</context>
<context>
    <name>velmora::ColorBox</name>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>Hellgrau</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>Dunkelgrau</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Dunkelrot</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Gold</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Sand</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Braun</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>Limette</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Aqua</source>
        <translation>Türkis</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>Himmelblau</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Andere ...</translation>
    </message>
</context>
<context>
    <name>velmora::ComboBoxItemDelegate</name>
    <message>
        <source>Choose for this slide, or for all selected ones</source>
        <translation>Für diese Folie wählen, oder für alle ausgewählten</translation>
    </message>
</context>
<context>
    <name>velmora::Composer</name>
    <message>
        <source>The render program %1 could not be started: %2</source>
        <translation>Das Renderprogramm %1 konnte nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>The render program ended unexpectedly.</source>
        <translation>Das Renderprogramm wurde unerwartet beendet.</translation>
    </message>
</context>
<context>
    <name>velmora::ConcatList</name>
    <message>
        <source>The file name "%1" contains a line break.</source>
        <translation>Der Dateiname „%1“ enthält einen Zeilenumbruch.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>velmora::CreatePanel</name>
    <message>
        <source>Make the video</source>
        <translation>Das Video erstellen</translation>
    </message>
    <message>
        <source>Play the whole slideshow</source>
        <translation>Die ganze Diashow abspielen</translation>
    </message>
    <message>
        <source>The video cannot be made</source>
        <translation>Das Video kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>SCHLIESSEN</translation>
    </message>
    <message>
        <source>The video is ready, but it could not be entered in the history: %1</source>
        <translation>Das Video ist fertig, konnte aber nicht in den Verlauf eingetragen werden: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressPage</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Time Elapsed: %1</source>
        <translation>Vergangene Zeit: %1</translation>
    </message>
    <message>
        <source>Time Remaining: %1</source>
        <translation>Verbleibende Zeit: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Finishing the video</source>
        <translation>Das Video wird fertiggestellt</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Vorbereitung</translation>
    </message>
    <message>
        <source>Making the video (%1x)</source>
        <translation>Das Video wird erstellt (%1x)</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
</context>
<context>
    <name>velmora::OutputCheck</name>
    <message>
        <source>Filename</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>The video needs a file name.</source>
        <translation>Das Video braucht einen Dateinamen.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist and cannot be made.</source>
        <translation>Der Ordner %1 existiert nicht und kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to: %2</source>
        <translation>In den Ordner %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The video cannot be saved</source>
        <translation>Das Video kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Please choose another folder in the settings.</source>
        <translation>Bitte wählen Sie in den Einstellungen einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Replace the video</source>
        <translation>Das Video ersetzen</translation>
    </message>
    <message>
        <source>The file %1 exists already. Do you want to replace it?</source>
        <translation>Die Datei %1 existiert bereits. Möchten Sie sie ersetzen?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
    <message>
        <source>REPLACE</source>
        <translation>ERSETZEN</translation>
    </message>
</context>
<context>
    <name>velmora::RenderedProject</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
</context>
<context>
    <name>velmora::DocumentActions</name>
    <message>
        <source>Unsaved changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Do you want to save the changes to "%1"?</source>
        <translation>Möchten Sie die Änderungen an „%1“ speichern?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
    <message>
        <source>DON'T SAVE</source>
        <translation>NICHT SPEICHERN</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>SPEICHERN</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Das Programm schließen</translation>
    </message>
    <message>
        <source>A video is being made. If you close the program now, it is lost.</source>
        <translation>Ein Video wird gerade erstellt. Wenn Sie das Programm jetzt schließen, geht es verloren.</translation>
    </message>
    <message>
        <source>A video is being uploaded. If you close the program now, it is not completed.</source>
        <translation>Ein Video wird gerade hochgeladen. Wenn Sie das Programm jetzt schließen, wird es nicht vollständig.</translation>
    </message>
    <message>
        <source>STOP AND CLOSE</source>
        <translation>BEENDEN UND SCHLIESSEN</translation>
    </message>
    <message>
        <source>GO ON</source>
        <translation>WEITER</translation>
    </message>
    <message>
        <source>Restore the slideshow</source>
        <translation>Die Diashow wiederherstellen</translation>
    </message>
    <message>
        <source>The program ended before "%1" was saved. Do you want to restore it?</source>
        <translation>Das Programm endete, bevor „%1“ gespeichert war. Möchten Sie sie wiederherstellen?</translation>
    </message>
    <message>
        <source>DISCARD</source>
        <translation>VERWERFEN</translation>
    </message>
    <message>
        <source>RESTORE</source>
        <translation>WIEDERHERSTELLEN</translation>
    </message>
    <message>
        <source>Open a slideshow</source>
        <translation>Eine Diashow öffnen</translation>
    </message>
    <message>
        <source>The file "%1" cannot be opened as a slideshow.</source>
        <translation>Die Datei „%1“ kann nicht als Diashow geöffnet werden.</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>SCHLIESSEN</translation>
    </message>
    <message>
        <source>Slideshows (*.json)</source>
        <translation>Diashows (*.json)</translation>
    </message>
    <message>
        <source>Save the slideshow</source>
        <translation>Die Diashow speichern</translation>
    </message>
    <message>
        <source>The slideshow cannot be saved to "%1".</source>
        <translation>Die Diashow kann nicht unter „%1“ gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxClient::ApiRequest</name>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxClient::DropboxUploader</name>
    <message>
        <source>source file not found</source>
        <translation>Quelldatei nicht gefunden</translation>
    </message>
    <message>
        <source>can't open source file for reading</source>
        <translation>Quelldatei kann nicht zum Lesen geöffnet werden</translation>
    </message>
    <message>
        <source>The answer of the service cannot be understood.</source>
        <translation>Die Antwort des Dienstes ist nicht verständlich.</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxUpload</name>
    <message>
        <source>Operation was canceled</source>
        <translation>Der Vorgang wurde abgebrochen</translation>
    </message>
</context>
<context>
    <name>velmora::EditorSide</name>
    <message>
        <source>Preview and settings</source>
        <translation>Vorschau und Einstellungen</translation>
    </message>
</context>
<context>
    <name>velmora::EncoderAdvice</name>
    <message>
        <source>FFmpeg was not found. Please install it (on Debian and Ubuntu: sudo apt install ffmpeg).</source>
        <translation>FFmpeg wurde nicht gefunden. Bitte installieren Sie es (unter Debian und Ubuntu: sudo apt install ffmpeg).</translation>
    </message>
    <message>
        <source>FFmpeg %1 (%2) is too old. Please install version 4.4 or newer (on Debian and Ubuntu: sudo apt install ffmpeg).</source>
        <translation>FFmpeg %1 (%2) ist zu alt. Bitte installieren Sie Version 4.4 oder neuer (unter Debian und Ubuntu: sudo apt install ffmpeg).</translation>
    </message>
    <message>
        <source>FFmpeg was not found. It comes with Velmora: please install Velmora again, or put ffmpeg.exe into its folder.</source>
        <translation>FFmpeg wurde nicht gefunden. Es gehört zu Velmora: Bitte installieren Sie Velmora neu oder legen Sie ffmpeg.exe in dessen Ordner.</translation>
    </message>
    <message>
        <source>FFmpeg %1 (%2) is too old. Please install Velmora again, or put ffmpeg.exe of version 4.4 or newer into its folder.</source>
        <translation>FFmpeg %1 (%2) ist zu alt. Bitte installieren Sie Velmora neu oder legen Sie ffmpeg.exe ab Version 4.4 in dessen Ordner.</translation>
    </message>
</context>
<context>
    <name>velmora::FinalWindow</name>
    <message>
        <source>Open file Error</source>
        <translation>Fehler beim Öffnen der Datei</translation>
    </message>
    <message>
        <source>File '%1' not found</source>
        <translation>Die Datei „%1“ wurde nicht gefunden</translation>
    </message>
    <message>
        <source>There is no program to show the folder of '%1'.</source>
        <translation>Es gibt kein Programm, das den Ordner von „%1“ anzeigen kann.</translation>
    </message>
</context>
<context>
    <name>velmora::FrameWriter</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>A frame of %1x%2 pixels cannot be compressed.</source>
        <translation>Ein Bild von %1x%2 Pixeln kann nicht komprimiert werden.</translation>
    </message>
</context>
<context>
    <name>velmora::GeneratorThread</name>
    <message>
        <source>No folder for temporary files can be made as "%1": %2</source>
        <translation>Der Ordner für temporäre Dateien „%1“ kann nicht angelegt werden: %2</translation>
    </message>
</context>
<context>
    <name>velmora::HelpBubble</name>
    <message>
        <source>Help for %1</source>
        <translation>Hilfe zu %1</translation>
    </message>
</context>
<context>
    <name>velmora::HelpDialog</name>
    <message>
        <source>Create the video, or save a text</source>
        <translation>Das Video erstellen oder einen Text speichern</translation>
    </message>
    <message>
        <source>Preview the whole slideshow</source>
        <translation>Die ganze Diashow ansehen</translation>
    </message>
    <message>
        <source>Play or pause the preview</source>
        <translation>Vorschau abspielen oder anhalten</translation>
    </message>
    <message>
        <source>Mute the preview</source>
        <translation>Die Vorschau stummschalten</translation>
    </message>
    <message>
        <source>Leave without saving</source>
        <translation>Verlassen, ohne zu speichern</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>From photos to a video</source>
        <translation>Von Fotos zum Video</translation>
    </message>
    <message>
        <source>1. Add photos or folders, with the buttons or by dropping them on the window.</source>
        <translation>1. Fügen Sie Fotos oder Ordner hinzu: mit den Schaltflächen oder indem Sie sie auf das Fenster ziehen.</translation>
    </message>
    <message>
        <source>2. Put them in order by dragging, and choose times and transitions.</source>
        <translation>2. Ordnen Sie sie durch Ziehen, und wählen Sie Zeiten und Übergänge.</translation>
    </message>
    <message>
        <source>3. Add texts to slides and music to the slideshow, and look at the preview.</source>
        <translation>3. Fügen Sie Texte und Musik hinzu, und sehen Sie sich die Vorschau an.</translation>
    </message>
    <message>
        <source>4. Choose a name and a format, and press CREATE.</source>
        <translation>4. Wählen Sie Namen und Format, und drücken Sie ERSTELLEN.</translation>
    </message>
    <message>
        <source>5. Watch, upload or burn the video from the history.</source>
        <translation>5. Sehen Sie das Video im Verlauf an, laden Sie es hoch oder brennen Sie es.</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>In the editor</source>
        <translation>Im Editor</translation>
    </message>
    <message>
        <source>OPEN MANUAL</source>
        <translation>HANDBUCH ÖFFNEN</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>SCHLIESSEN</translation>
    </message>
    <message>
        <source>Go back in the preview</source>
        <translation>In der Vorschau zurückgehen</translation>
    </message>
    <message>
        <source>Go forward in the preview</source>
        <translation>In der Vorschau vorgehen</translation>
    </message>
    <message>
        <source>Show the preview on the full screen</source>
        <translation>Die Vorschau als Vollbild zeigen</translation>
    </message>
    <message>
        <source>Play the effect of a text</source>
        <translation>Den Effekt eines Textes abspielen</translation>
    </message>
</context>
<context>
    <name>velmora::HelpPages</name>
    <message>
        <source>Home page</source>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>No home page is set up in this copy of the program.</source>
        <translation>In diesem Exemplar des Programms ist keine Webseite eingerichtet.</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryHeader</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Sort by this column</source>
        <translation>Nach dieser Spalte sortieren</translation>
    </message>
    <message>
        <source>Sorts the list</source>
        <translation>Sortiert die Liste</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryListView</name>
    <message>
        <source>Your finished slideshows appear here.</source>
        <translation>Ihre fertigen Diashows erscheinen hier.</translation>
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
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Open the project in the editor</source>
        <translation>Das Projekt im Editor öffnen</translation>
    </message>
    <message>
        <source>Play the video</source>
        <translation>Das Video abspielen</translation>
    </message>
    <message>
        <source>Burn the video to a disc</source>
        <translation>Das Video auf eine Disc brennen</translation>
    </message>
    <message>
        <source>Remove the video from the history</source>
        <translation>Das Video aus dem Verlauf entfernen</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>entfernt</translation>
    </message>
    <message>
        <source>The video file does not exist any more.</source>
        <translation>Die Videodatei existiert nicht mehr.</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryWidget</name>
    <message>
        <source>Open file Error</source>
        <translation>Fehler beim Öffnen der Datei</translation>
    </message>
    <message>
        <source>File '%1' not found</source>
        <translation>Die Datei „%1“ wurde nicht gefunden</translation>
    </message>
    <message>
        <source>There is no program to play the file '%1'.</source>
        <translation>Es gibt kein Programm, das die Datei „%1“ abspielen kann.</translation>
    </message>
    <message>
        <source>Remove from the history</source>
        <translation>Aus dem Verlauf entfernen</translation>
    </message>
    <message>
        <source>Remove "%1" from the history?</source>
        <translation>„%1“ aus dem Verlauf entfernen?</translation>
    </message>
    <message>
        <source>Also move the video file to the trash</source>
        <translation>Auch die Videodatei in den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>REMOVE</source>
        <translation>ENTFERNEN</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
    <message>
        <source>Clear the history</source>
        <translation>Den Verlauf löschen</translation>
    </message>
    <message numerus="yes">
        <source>Remove all videos (%n) from the history?</source>
        <translation><numerusform>%n Video aus dem Verlauf entfernen?</numerusform><numerusform>Alle %n Videos aus dem Verlauf entfernen?</numerusform></translation>
    </message>
    <message>
        <source>Also move the video files to the trash</source>
        <translation>Auch die Videodateien in den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>REMOVE ALL</source>
        <translation>ALLE ENTFERNEN</translation>
    </message>
    <message>
        <source>Some video files could not be moved to the trash. They are where they were.</source>
        <translation>Einige Videodateien konnten nicht in den Papierkorb verschoben werden. Sie sind, wo sie waren.</translation>
    </message>
    <message>
        <source>Some video files could not be taken out of the trash.</source>
        <translation>Einige Videodateien konnten nicht aus dem Papierkorb geholt werden.</translation>
    </message>
    <message numerus="yes">
        <source>Videos removed from the history: %n</source>
        <translation><numerusform>%n Video aus dem Verlauf entfernt.</numerusform><numerusform>%n Videos aus dem Verlauf entfernt.</numerusform></translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>The history could not be changed: %1</source>
        <translation>Der Verlauf konnte nicht geändert werden: %1</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <translation>Vergangen: %1</translation>
    </message>
    <message>
        <source>Uploading %1 to %2</source>
        <translation>%1 wird zu %2 hochgeladen</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>Verbinden mit %1</translation>
    </message>
</context>
<context>
    <name>velmora::InputCheck</name>
    <message numerus="yes">
        <source>%n more file(s) cannot be used.</source>
        <translation><numerusform>%n weitere Datei ist nicht verwendbar.</numerusform><numerusform>%n weitere Dateien sind nicht verwendbar.</numerusform></translation>
    </message>
    <message>
        <source>The video would replace "%1", of which it is made. Please choose another name.</source>
        <translation>Das Video würde „%1“ ersetzen, woraus es gemacht wird. Bitte wählen Sie einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>velmora::InputFiles</name>
    <message>
        <source>The folder "%1" cannot be read.</source>
        <translation>Der Ordner „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The photo "%1" does not exist.</source>
        <translation>Das Foto „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>"%1" is not a photo of a known format.</source>
        <translation>„%1“ ist kein Foto eines bekannten Formats.</translation>
    </message>
    <message>
        <source>There are no photos in the folder "%1".</source>
        <translation>Im Ordner „%1“ sind keine Fotos.</translation>
    </message>
    <message>
        <source>The sound file "%1" does not exist.</source>
        <translation>Die Tondatei „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>"%1" is not a sound file of a known format.</source>
        <translation>„%1“ ist keine Tondatei eines bekannten Formats.</translation>
    </message>
    <message>
        <source>There are no sound files in the folder "%1".</source>
        <translation>Im Ordner „%1“ sind keine Tondateien.</translation>
    </message>
</context>
<context>
    <name>velmora::MainMenu</name>
    <message>
        <source>New slideshow</source>
        <translation>Neue Diashow</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Öffnen ...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation>Speichern unter ...</translation>
    </message>
    <message>
        <source>Set video title...</source>
        <translation>Videotitel festlegen ...</translation>
    </message>
    <message>
        <source>Add Photo</source>
        <translation>Foto hinzufügen</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>velmora::MainView</name>
    <message>
        <source>The video is ready</source>
        <translation>Das Video ist fertig</translation>
    </message>
    <message>
        <source>The upload has failed</source>
        <translation>Das Hochladen ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>The upload is complete</source>
        <translation>Das Hochladen ist abgeschlossen</translation>
    </message>
    <message>
        <source>Another video is being uploaded.</source>
        <translation>Ein anderes Video wird gerade hochgeladen.</translation>
    </message>
</context>
<context>
    <name>velmora::MainWindowWidget</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>undo or redo, and what</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Add Audio</source>
        <translation>Musik hinzufügen</translation>
    </message>
    <message>
        <source>Photos are still being added</source>
        <translation>Es werden noch Fotos hinzugefügt</translation>
    </message>
    <message>
        <source>Audio files are still being added</source>
        <translation>Es werden noch Tondateien hinzugefügt</translation>
    </message>
    <message>
        <source>The photos are still being sorted</source>
        <translation>Die Fotos werden noch sortiert</translation>
    </message>
    <message>
        <source>A text is still being edited</source>
        <translation>Es wird noch ein Text bearbeitet</translation>
    </message>
</context>
<context>
    <name>velmora::MakeCommand</name>
    <message>
        <source>The project cannot be written as "%1": %2.</source>
        <translation>Das Projekt kann nicht als „%1“ geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>"velmoratool --help" lists what is possible.</source>
        <translation>„velmoratool --help“ zeigt, was möglich ist.</translation>
    </message>
</context>
<context>
    <name>velmora::MakeOptions</name>
    <message>
        <source>"%1" is not a whole number from %2 to %3.</source>
        <translation>„%1“ ist keine ganze Zahl von %2 bis %3.</translation>
    </message>
    <message>
        <source>The text is empty.</source>
        <translation>Der Text ist leer.</translation>
    </message>
    <message>
        <source>"%1" is not a size such as 1920x1080.</source>
        <translation>„%1“ ist keine Größe wie 1920x1080.</translation>
    </message>
    <message>
        <source>There is no transition "%1". There are: %2.</source>
        <translation>Es gibt keinen Übergang „%1“. Es gibt: %2.</translation>
    </message>
    <message>
        <source>"%1" is none of name, date and given.</source>
        <translation>„%1“ ist weder name noch date oder given.</translation>
    </message>
    <message>
        <source>"%1" is neither original nor everywhere.</source>
        <translation>„%1“ ist weder original noch everywhere.</translation>
    </message>
    <message>
        <source>The name of the video "%1" must end in one of: %2.</source>
        <translation>Der Name des Videos „%1“ muss auf eines von diesen enden: %2.</translation>
    </message>
    <message>
        <source>A file name is empty.</source>
        <translation>Ein Dateiname ist leer.</translation>
    </message>
    <message>
        <source>"%1" belongs to no option.</source>
        <translation>„%1“ gehört zu keiner Option.</translation>
    </message>
    <message>
        <source>There is no option --%1.</source>
        <translation>Es gibt keine Option --%1.</translation>
    </message>
    <message>
        <source>--%1 takes no value.</source>
        <translation>--%1 nimmt keinen Wert.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 braucht einen Wert.</translation>
    </message>
    <message>
        <source>--%1 cannot be combined with --project, which has its own.</source>
        <translation>--%1 lässt sich nicht mit --project verbinden, das einen eigenen Wert hat.</translation>
    </message>
    <message>
        <source>--photos or --project is needed.</source>
        <translation>--photos oder --project wird gebraucht.</translation>
    </message>
    <message>
        <source>--output is needed.</source>
        <translation>--output wird gebraucht.</translation>
    </message>
    <message>
        <source>--stretch and --original-size exclude each other.</source>
        <translation>--stretch und --original-size schließen einander aus.</translation>
    </message>
</context>
<context>
    <name>velmora::MakeProject</name>
    <message>
        <source>The project "%1" cannot be used: %2</source>
        <translation>Das Projekt „%1“ ist nicht verwendbar: %2</translation>
    </message>
</context>
<context>
    <name>velmora::MediaFileInfo</name>
    <message>
        <source>There is neither sound nor video in it.</source>
        <translation>Sie enthält weder Ton noch Video.</translation>
    </message>
</context>
<context>
    <name>velmora::MediaInput</name>
    <message>
        <source>The file does not exist.</source>
        <translation>Die Datei existiert nicht.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Es ist keine Datei.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>It is damaged, or not a media file.</source>
        <translation>Sie ist beschädigt oder keine Mediendatei.</translation>
    </message>
    <message>
        <source>It is a play list, not a media file.</source>
        <translation>Es ist eine Wiedergabeliste, keine Mediendatei.</translation>
    </message>
</context>
<context>
    <name>velmora::MessageDialog</name>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>SCHLIESSEN</translation>
    </message>
</context>
<context>
    <name>velmora::MultipartUploader</name>
    <message>
        <source>can't open source file for reading</source>
        <translation>Quelldatei kann nicht zum Lesen geöffnet werden</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
    <message>
        <source>Error uploading video:%1</source>
        <translation>Fehler beim Hochladen des Videos:%1</translation>
    </message>
</context>
<context>
    <name>velmora::OutputTarget</name>
    <message>
        <source>The project does not name a video file to write.</source>
        <translation>Das Projekt nennt keine Videodatei, die zu schreiben wäre.</translation>
    </message>
    <message>
        <source>The finished video could not be put in place as "%1": %2.</source>
        <translation>Das fertige Video konnte nicht als „%1“ abgelegt werden: %2.</translation>
    </message>
    <message>
        <source>The video was kept as "%1".</source>
        <translation>Das Video wurde als „%1“ behalten.</translation>
    </message>
    <message>
        <source>The video's name "%1..." is too long. Please choose a shorter one.</source>
        <translation>Der Name des Videos „%1...“ ist zu lang. Bitte wählen Sie einen kürzeren.</translation>
    </message>
    <message>
        <source>The folder "%1" for the video does not exist.</source>
        <translation>Der Ordner „%1“ für das Video existiert nicht.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": it is not a folder.</source>
        <translation>Das Video kann nicht in „%1“ geschrieben werden: Das ist kein Ordner.</translation>
    </message>
    <message>
        <source>The video cannot be written as "%1": a folder has that name.</source>
        <translation>Das Video kann nicht als „%1“ geschrieben werden: Ein Ordner heißt so.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": the disk is full.</source>
        <translation>Das Video kann nicht in „%1“ geschrieben werden: Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": %2.</source>
        <translation>Das Video kann nicht in „%1“ geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>Another render is writing "%1" at this time.</source>
        <translation>Gerade wird „%1“ schon von einem anderen Vorgang geschrieben.</translation>
    </message>
</context>
<context>
    <name>velmora::PhotoImporter</name>
    <message>
        <source>does not exist</source>
        <translation>existiert nicht</translation>
    </message>
    <message>
        <source>is not a photo</source>
        <translation>ist kein Foto</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>holds no photos</source>
        <translation>enthält keine Fotos</translation>
    </message>
</context>
<context>
    <name>velmora::PhotoImports</name>
    <message numerus="yes">
        <source>Adding photos: %n looked at</source>
        <translation><numerusform>Fotos werden hinzugefügt: %n geprüft</numerusform><numerusform>Fotos werden hinzugefügt: %n geprüft</numerusform></translation>
    </message>
    <message>
        <source>Adding photos</source>
        <translation>Fotos werden hinzugefügt</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files have not been added</source>
        <translation><numerusform>%n Datei wurde nicht hinzugefügt</numerusform><numerusform>%n Dateien wurden nicht hinzugefügt</numerusform></translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>SCHLIESSEN</translation>
    </message>
</context>
<context>
    <name>velmora::PositionPicker</name>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top centre</source>
        <translation>Oben Mitte</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Centre left</source>
        <translation>Mitte links</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Centre right</source>
        <translation>Mitte rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom centre</source>
        <translation>Unten Mitte</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressText</name>
    <message>
        <source>%1 elapsed</source>
        <translation>%1 vergangen</translation>
    </message>
    <message>
        <source>%1 elapsed, %2 left</source>
        <translation>%1 vergangen, noch %2</translation>
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
        <translation>Fotos hinzufügen</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Folien löschen</translation>
    </message>
    <message>
        <source>Hide the title slide</source>
        <translation>Die Titelfolie ausblenden</translation>
    </message>
    <message>
        <source>Move slides</source>
        <translation>Folien verschieben</translation>
    </message>
    <message>
        <source>Change time</source>
        <translation>Zeit ändern</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Übergang ändern</translation>
    </message>
    <message>
        <source>Rotate photos</source>
        <translation>Fotos drehen</translation>
    </message>
    <message>
        <source>Change caption</source>
        <translation>Text ändern</translation>
    </message>
    <message>
        <source>Change caption style</source>
        <translation>Textstil ändern</translation>
    </message>
    <message>
        <source>Change title slide</source>
        <translation>Titelfolie ändern</translation>
    </message>
    <message>
        <source>Add audio</source>
        <translation>Musik hinzufügen</translation>
    </message>
    <message>
        <source>Delete audio</source>
        <translation>Musik löschen</translation>
    </message>
    <message>
        <source>Move audio</source>
        <translation>Musik verschieben</translation>
    </message>
    <message>
        <source>Change audio offset</source>
        <translation>Tonversatz ändern</translation>
    </message>
    <message>
        <source>Change audio fade</source>
        <translation>Tonblende ändern</translation>
    </message>
    <message>
        <source>Loop audio</source>
        <translation>Musik wiederholen</translation>
    </message>
    <message>
        <source>Change resolution</source>
        <translation>Auflösung ändern</translation>
    </message>
    <message>
        <source>Change format</source>
        <translation>Format ändern</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Seitenverhältnis</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Change transition duration</source>
        <translation>Übergangsdauer ändern</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Fotos sortieren</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Fotos mischen</translation>
    </message>
    <message>
        <source>Relocate photos</source>
        <translation>Fotos neu zuordnen</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectFile</name>
    <message>
        <source>New project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>The file is not a valid JSON document: %1.</source>
        <translation>Die Datei ist kein gültiges JSON-Dokument: %1.</translation>
    </message>
    <message>
        <source>The file is not a project document.</source>
        <translation>Die Datei ist kein Projektdokument.</translation>
    </message>
    <message>
        <source>The project document cannot be used, faulty field: %1.</source>
        <translation>Das Projektdokument ist nicht verwendbar, fehlerhaftes Feld: %1.</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectItemFirst</name>
    <message>
        <source>My slideshow</source>
        <translation>Meine Diashow</translation>
    </message>
    <message>
        <source>Starter</source>
        <translation>Start</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectResume</name>
    <message>
        <source>Not all files exist</source>
        <translation>Nicht alle Dateien existieren</translation>
    </message>
    <message>
        <source>Not all files exist, do you want to resume the project?</source>
        <translation>Nicht alle Dateien existieren. Möchten Sie das Projekt fortsetzen?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
    <message>
        <source>RESUME</source>
        <translation>FORTSETZEN</translation>
    </message>
</context>
<context>
    <name>velmora::RenderFailure</name>
    <message>
        <source>The disk that holds the folder "%1" is full.</source>
        <translation>Der Datenträger mit dem Ordner „%1“ ist voll.</translation>
    </message>
    <message>
        <source>The photo "%1" %2.</source>
        <translation>Das Foto „%1“ %2.</translation>
    </message>
    <message>
        <source>The sound file "%1" cannot be used: %2</source>
        <translation>Die Tondatei „%1“ ist nicht verwendbar: %2</translation>
    </message>
</context>
<context>
    <name>velmora::RenderJob</name>
    <message>
        <source>The slideshow has no slides.</source>
        <translation>Die Diashow hat keine Folien.</translation>
    </message>
    <message>
        <source>A video of %1x%2 pixels is too small; each side needs at least %3.</source>
        <translation>Ein Video von %1x%2 Pixeln ist zu klein; jede Seite braucht mindestens %3.</translation>
    </message>
</context>
<context>
    <name>velmora::RenderReport</name>
    <message>
        <source>Cancelled. No video was written.</source>
        <translation>Abgebrochen. Es wurde kein Video geschrieben.</translation>
    </message>
    <message>
        <source>The video is ready: %1</source>
        <translation>Das Video ist fertig: %1</translation>
    </message>
    <message>
        <source>The project is ready: %1</source>
        <translation>Das Projekt ist fertig: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SetNameDialog</name>
    <message>
        <source>Set video title</source>
        <translation>Videotitel festlegen</translation>
    </message>
</context>
<context>
    <name>velmora::SettingsWidget</name>
    <message>
        <source>Original quality</source>
        <translation>Originalqualität</translation>
    </message>
    <message>
        <source>Plays everywhere</source>
        <translation>Läuft überall</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>version %1 - %2</source>
        <translation>Version %1 - %2</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Den Ordner wählen</translation>
    </message>
    <message>
        <source>The settings hold until the program ends, because they cannot be written to the file %1.</source>
        <translation>Die Einstellungen gelten bis zum Ende des Programms, weil sie nicht in die Datei %1 geschrieben werden können.</translation>
    </message>
</context>
<context>
    <name>velmora::SlideActions</name>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Rotate photo</source>
        <translation>Foto drehen</translation>
    </message>
    <message>
        <source>Rotate photo to the left</source>
        <translation>Foto nach links drehen</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Fotos mischen</translation>
    </message>
    <message>
        <source>Sort photos by name</source>
        <translation>Fotos nach Name sortieren</translation>
    </message>
    <message>
        <source>Sort photos by date taken</source>
        <translation>Fotos nach Aufnahmedatum sortieren</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>Text bearbeiten</translation>
    </message>
    <message>
        <source>Edit text style of all slides</source>
        <translation>Textstil aller Folien bearbeiten</translation>
    </message>
    <message>
        <source>Set time</source>
        <translation>Zeit festlegen</translation>
    </message>
    <message>
        <source>Set transition</source>
        <translation>Übergang festlegen</translation>
    </message>
    <message>
        <source>Preview transition</source>
        <translation>Übergang ansehen</translation>
    </message>
    <message>
        <source>Relocate...</source>
        <translation>Neu zuordnen ...</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Die Titelfolie wieder zeigen</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Folien löschen</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Liste leeren</translation>
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
        <translation>Das Foto „%1“ kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>velmora::SlideSorter</name>
    <message>
        <source>Reading the dates of the photos</source>
        <translation>Die Daten der Fotos werden gelesen</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTable</name>
    <message>
        <source>Drag &amp; drop photos and folders to add them here</source>
        <translation>Ziehen Sie Fotos und Ordner hierher, um sie hinzuzufügen</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTableModel</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Übergang</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>The title slide is not part of the video.</source>
        <translation>Die Titelfolie ist nicht Teil des Videos.</translation>
    </message>
    <message>
        <source>The photo %1 does not exist any more.</source>
        <translation>Das Foto %1 existiert nicht mehr.</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTextDelegate</name>
    <message>
        <source>Relocate...</source>
        <translation>Neu zuordnen ...</translation>
    </message>
    <message>
        <source>Edit the text of this slide (F2)</source>
        <translation>Den Text dieser Folie bearbeiten (F2)</translation>
    </message>
    <message>
        <source>Delete this slide (Del)</source>
        <translation>Diese Folie löschen (Entf)</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Die Titelfolie wieder zeigen</translation>
    </message>
    <message>
        <source>Choose the file again</source>
        <translation>Die Datei neu wählen</translation>
    </message>
    <message>
        <source>Not part of the video</source>
        <translation>Nicht Teil des Videos</translation>
    </message>
    <message>
        <source>Title slide</source>
        <translation>Titelfolie</translation>
    </message>
    <message>
        <source>Missing: %1</source>
        <translation>Fehlt: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SlidesPage</name>
    <message>
        <source>Drag &amp; drop photos and folders to add them here</source>
        <translation>Ziehen Sie Fotos und Ordner hierher, um sie hinzuzufügen</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Fotos sortieren</translation>
    </message>
    <message>
        <source>Clear list (%1)</source>
        <translation>Liste leeren (%1)</translation>
    </message>
    <message>
        <source>Various</source>
        <translation>Verschieden</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>Gesamt: %1</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>Wo ist %1?</translation>
    </message>
    <message>
        <source>Photos: %1</source>
        <translation>Fotos: %1</translation>
    </message>
    <message>
        <source>Running time: %1</source>
        <translation>Laufzeit: %1</translation>
    </message>
    <message>
        <source>Audio files: %1</source>
        <translation>Tondateien: %1</translation>
    </message>
    <message>
        <source>Resolution: %1</source>
        <translation>Auflösung: %1</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>SCHLIESSEN</translation>
    </message>
</context>
<context>
    <name>velmora::SoundChecker</name>
    <message>
        <source>Nothing in it can be played.</source>
        <translation>Nichts darin kann abgespielt werden.</translation>
    </message>
</context>
<context>
    <name>velmora::SoundTrack</name>
    <message>
        <source>The music file '%1' cannot be read: %2</source>
        <translation>Die Musikdatei „%1“ kann nicht gelesen werden: %2</translation>
    </message>
</context>
<context>
    <name>velmora::Spinner</name>
    <message>
        <source>Preparing the preview</source>
        <translation>Die Vorschau wird vorbereitet</translation>
    </message>
</context>
<context>
    <name>velmora::SplashScreen</name>
    <message>
        <source>Loading</source>
        <translation>Wird geladen</translation>
    </message>
</context>
<context>
    <name>velmora::StartPage</name>
    <message>
        <source>Drop your photos here</source>
        <translation>Legen Sie Ihre Fotos hier ab</translation>
    </message>
    <message>
        <source>Photos and whole folders become a slideshow with transitions, titles and music.</source>
        <translation>Aus Fotos und ganzen Ordnern wird eine Diashow mit Übergängen, Titeln und Musik.</translation>
    </message>
    <message>
        <source>Add Photo</source>
        <translation>Foto hinzufügen</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Open a slideshow</source>
        <translation>Eine Diashow öffnen</translation>
    </message>
    <message>
        <source>Try the sample photos</source>
        <translation>Beispielfotos ausprobieren</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Weiter mit %1</translation>
    </message>
    <message>
        <source>Open the last slideshow again</source>
        <translation>Die letzte Diashow wieder öffnen</translation>
    </message>
    <message>
        <source>Open a saved slideshow</source>
        <translation>Eine gespeicherte Diashow öffnen</translation>
    </message>
    <message>
        <source>Add photos to the slideshow</source>
        <translation>Fotos zur Diashow hinzufügen</translation>
    </message>
    <message>
        <source>Add all photos of a folder</source>
        <translation>Alle Fotos eines Ordners hinzufügen</translation>
    </message>
    <message>
        <source>Begin a slideshow with the photos that come with the program</source>
        <translation>Eine Diashow mit den mitgelieferten Fotos beginnen</translation>
    </message>
</context>
<context>
    <name>velmora::TextEditWidget</name>
    <message>
        <source>Edit style for 'Starter' slide</source>
        <translation>Stil der Folie „Start“ bearbeiten</translation>
    </message>
    <message>
        <source>Edit style for All slides</source>
        <translation>Stil aller Folien bearbeiten</translation>
    </message>
    <message>
        <source>Edit style for '%1' slide</source>
        <translation>Stil der Folie „%1“ bearbeiten</translation>
    </message>
    <message>
        <source>Text here</source>
        <translation>Text hier</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Änderungen verwerfen</translation>
    </message>
    <message>
        <source>The changes of this text have not been saved. Discard them?</source>
        <translation>Die Änderungen an diesem Text sind nicht gespeichert. Verwerfen?</translation>
    </message>
    <message>
        <source>DISCARD</source>
        <translation>VERWERFEN</translation>
    </message>
    <message>
        <source>KEEP EDITING</source>
        <translation>WEITER BEARBEITEN</translation>
    </message>
</context>
<context>
    <name>velmora::TitleBar</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
</context>
<context>
    <name>velmora::ToolRow</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Back to the slideshow</source>
        <translation>Zurück zur Diashow</translation>
    </message>
    <message>
        <source>Add photos to the slideshow</source>
        <translation>Fotos zur Diashow hinzufügen</translation>
    </message>
    <message>
        <source>Add all photos of a folder</source>
        <translation>Alle Fotos eines Ordners hinzufügen</translation>
    </message>
    <message>
        <source>Show the slideshows made so far</source>
        <translation>Die bisher erstellten Diashows zeigen</translation>
    </message>
    <message>
        <source>Change how new slideshows begin</source>
        <translation>Ändern, wie neue Diashows beginnen</translation>
    </message>
    <message>
        <source>Help and keyboard shortcuts</source>
        <translation>Hilfe und Tastenkürzel</translation>
    </message>
    <message>
        <source>Last slideshow: %1</source>
        <translation>Letzte Diashow: %1</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
</context>
<context>
    <name>velmora::ToolRunner</name>
    <message>
        <source>It could not be started.</source>
        <translation>Es konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>It ended unexpectedly.</source>
        <translation>Es wurde unerwartet beendet.</translation>
    </message>
    <message>
        <source>It ended with code %1.</source>
        <translation>Es endete mit Code %1.</translation>
    </message>
</context>
<context>
    <name>velmora::UpdateDialog</name>
    <message>
        <source>Update available!</source>
        <translation>Update verfügbar!</translation>
    </message>
    <message>
        <source>New version of the programm is avalible:</source>
        <translation>Eine neue Version des Programms ist verfügbar:</translation>
    </message>
    <message>
        <source>Read about</source>
        <translation>Mehr über</translation>
    </message>
    <message>
        <source>new feauters</source>
        <translation>neue Funktionen</translation>
    </message>
</context>
<context>
    <name>velmora::UploadController</name>
    <message>
        <source>Uploading to %1 is not configured. The addresses and the registration of the service belong into the file '%2'.</source>
        <translation>Das Hochladen zu %1 ist nicht eingerichtet. Die Adressen und die Registrierung des Dienstes gehören in die Datei „%2“.</translation>
    </message>
</context>
<context>
    <name>velmora::UploadServiceMenu</name>
    <message>
        <source>Services</source>
        <translation>Dienste</translation>
    </message>
</context>
<context>
    <name>velmora::UploadSuccessWindow</name>
    <message>
        <source>Shows the file in the browser</source>
        <translation>Zeigt die Datei im Browser</translation>
    </message>
</context>
<context>
    <name>velmora::VideoPlayerWidget</name>
    <message>
        <source>Add photos to see the slideshow here</source>
        <translation>Fügen Sie Fotos hinzu, um die Diashow hier zu sehen</translation>
    </message>
    <message>
        <source>Preview transition to slide %1</source>
        <translation>Vorschau: Übergang zu Folie %1</translation>
    </message>
    <message>
        <source>Full preview</source>
        <translation>Ganze Vorschau</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Anhalten (Leertaste)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Abspielen (Leertaste)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Sound on (M)</source>
        <translation>Ton an (M)</translation>
    </message>
    <message>
        <source>Mute (M)</source>
        <translation>Stumm (M)</translation>
    </message>
</context>
<context>
    <name>velmora::VideoUtil</name>
    <message>
        <source>The disk is full.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>The encoder failed: %1</source>
        <translation>Der Encoder ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>The encoder wrote nothing to %1.</source>
        <translation>Der Encoder hat nichts nach %1 geschrieben.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>There are no frames to encode.</source>
        <translation>Es gibt keine Bilder zu kodieren.</translation>
    </message>
    <message>
        <source>The part %1 of the video is missing.</source>
        <translation>Der Teil %1 des Videos fehlt.</translation>
    </message>
    <message>
        <source>The program "transcoder" is missing beside this program.</source>
        <translation>Das Programm „transcoder“ fehlt neben diesem Programm.</translation>
    </message>
</context>
<context>
    <name>velmora::WavTranscoder</name>
    <message>
        <source>The music file '%1' cannot be read: %2</source>
        <translation>Die Musikdatei „%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The file '%1' cannot be written: %2</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Nothing in it can be played.</source>
        <translation>Nichts darin kann abgespielt werden.</translation>
    </message>
</context>
<context>
    <name>velmora::WavWriter</name>
    <message>
        <source>The older file of that name cannot be replaced.</source>
        <translation>Die ältere Datei dieses Namens kann nicht ersetzt werden.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
</context>
<context>
    <name>velmora::WebLoginDialog</name>
    <message>
        <source>Sign in</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Sign-in page of the service</source>
        <translation>Anmeldeseite des Dienstes</translation>
    </message>
    <message>
        <source>Authorization error</source>
        <translation>Fehler bei der Anmeldung</translation>
    </message>
</context>
<context>
    <name>velmora::WorkerMain</name>
    <message>
        <source>A render worker needs --session_id, --cache and --request, and nothing else.</source>
        <translation>Ein Renderprozess braucht --session_id, --cache und --request, und sonst nichts.</translation>
    </message>
    <message>
        <source>The request "%1" cannot be used: %2</source>
        <translation>Die Anforderung „%1“ ist nicht verwendbar: %2</translation>
    </message>
</context>
<context>
    <name>velmora::UploaderFactory</name>
    <message>
        <source>This copy of the program cannot upload videos: it was built without the component that signs in to services (Qt NetworkAuth).</source>
        <translation>Dieses Exemplar des Programms kann keine Videos hochladen: Es wurde ohne den Bestandteil gebaut, der sich bei Diensten anmeldet (Qt NetworkAuth).</translation>
    </message>
</context>
<context>
    <name>velmora::DiscWriter</name>
    <message>
        <source>This copy of the program cannot burn discs on this system.</source>
        <translation>Dieses Exemplar des Programms kann auf diesem System keine Discs brennen.</translation>
    </message>
</context>
</TS>