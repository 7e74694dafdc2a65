<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>AnswerPage</name>
    <message>
        <source>Service has been connected</source>
        <translation>Il servizio è stato connesso</translation>
    </message>
    <message>
        <source>successfully</source>
        <translation>correttamente</translation>
    </message>
    <message>
        <source>Service has not been</source>
        <translation>Il servizio non è stato</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>connesso</translation>
    </message>
    <message>
        <source>You can close this page</source>
        <translation>È possibile chiudere questa pagina</translation>
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
        <translation>Interrompi l'aggiunta</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Playlist</translation>
    </message>
    <message>
        <source>Add Audio</source>
        <translation>Aggiungi audio</translation>
    </message>
    <message>
        <source>Add Audio (Ctrl+M)</source>
        <translation>Aggiungi audio (Ctrl+M)</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>Repeats the playlist until the slideshow ends.</source>
        <translation>Ripete la playlist fino alla fine della presentazione.</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Scarto</translation>
    </message>
    <message>
        <source>Choose offset of selected audio file. Negative offset means audio file will start playing immediately, shifted by specified time. Positive offset means audio file will start playing from the specified time.</source>
        <translation>Scegliere lo scarto del file audio selezionato. Con uno scarto negativo il file audio parte subito, spostato del tempo indicato. Con uno scarto positivo viene riprodotto a partire dal tempo indicato.</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Dissolvenza</translation>
    </message>
    <message>
        <source>Choose duration of fade effect for audio track. 0 means no fade.</source>
        <translation>Scegliere la durata della dissolvenza della traccia audio. 0 significa nessuna dissolvenza.</translation>
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
        <translation>Unità:</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Look for drives and discs again</source>
        <translation>Cerca di nuovo unità e dischi</translation>
    </message>
    <message>
        <source>Disc title:</source>
        <translation>Titolo del disco:</translation>
    </message>
    <message>
        <source>Disc title</source>
        <translation>Titolo del disco</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Nome del file:</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome del file</translation>
    </message>
    <message>
        <source>Finalize disk</source>
        <translation>Finalizza il disco</translation>
    </message>
    <message>
        <source>Finalization means that the disc cannot have any additional data written to it afterwards. This option is needed by most DVD-players.</source>
        <translation>Dopo la finalizzazione non è più possibile scrivere altri dati sul disco. La maggior parte dei lettori DVD ha bisogno di questa opzione.</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>MASTERIZZA DVD</translation>
    </message>
    <message>
        <source>Disk is not empty</source>
        <translation>Il disco non è vuoto</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>Erase the disc, then burn</source>
        <translation>Cancella il disco, poi masterizza</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Add the video to what is on the disc</source>
        <translation>Aggiungi il video a ciò che è sul disco</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Go back without burning</source>
        <translation>Torna indietro senza masterizzare</translation>
    </message>
    <message>
        <source>Writing disk</source>
        <translation>Scrittura del disco</translation>
    </message>
    <message>
        <source>Progress of writing</source>
        <translation>Avanzamento della scrittura</translation>
    </message>
    <message>
        <source>Elapsed time:</source>
        <translation>Tempo trascorso:</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULLA</translation>
    </message>
    <message>
        <source>Stop writing</source>
        <translation>Interrompi la scrittura</translation>
    </message>
    <message>
        <source>Burning result:</source>
        <translation>Risultato della masterizzazione:</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CHIUDI</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>Creation error</source>
        <translation>Errore di creazione</translation>
    </message>
</context>
<context>
    <name>CreatePanel</name>
    <message>
        <source>Filename:</source>
        <translation>Nome file:</translation>
    </message>
    <message>
        <source>Name of the video file</source>
        <translation>Nome del file video</translation>
    </message>
    <message>
        <source>Format of the video file</source>
        <translation>Formato del file video</translation>
    </message>
    <message>
        <source>PREVIEW</source>
        <translation>ANTEPRIMA</translation>
    </message>
    <message>
        <source>CREATE</source>
        <translation>CREA</translation>
    </message>
    <message>
        <source>Progress of the video</source>
        <translation>Avanzamento del video</translation>
    </message>
    <message>
        <source>Time elapsed: 0:00:00</source>
        <translation>Tempo trascorso: 0:00:00</translation>
    </message>
    <message>
        <source>Time Remaining: 0:00:00</source>
        <translation>Tempo rimanente: 0:00:00</translation>
    </message>
</context>
<context>
    <name>DesktopNotification</name>
    <message>
        <source>Show the window</source>
        <translation>Mostra la finestra</translation>
    </message>
</context>
<context>
    <name>DiscFileName</name>
    <message>
        <source>Enter a file name.</source>
        <translation>Inserire un nome di file.</translation>
    </message>
    <message>
        <source>The file name is too long for a disc.</source>
        <translation>Il nome del file è troppo lungo per un disco.</translation>
    </message>
    <message>
        <source>The file name must not contain any of / \ : * ? " &lt; &gt; |</source>
        <translation>Il nome del file non può contenere nessuno di questi: / \ : * ? " &lt; &gt; |</translation>
    </message>
</context>
<context>
    <name>FinalWindow</name>
    <message>
        <source>Conversion has been completed</source>
        <translation>La conversione è terminata</translation>
    </message>
    <message>
        <source>Congratulations to all files in your folder, open it to view them!</source>
        <translation>Congratulazioni! Tutti i file sono nella cartella: aprirla per vederli!</translation>
    </message>
    <message>
        <source>OPEN FOLDER</source>
        <translation>APRI CARTELLA</translation>
    </message>
    <message>
        <source>Upload the video to this service</source>
        <translation>Carica il video su questo servizio</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>MASTERIZZA DVD</translation>
    </message>
    <message>
        <source>Burn the video to a disc</source>
        <translation>Masterizza il video su un disco</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CHIUDI</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>The history has become too large.</source>
        <translation>La cronologia è diventata troppo grande.</translation>
    </message>
</context>
<context>
    <name>HistoryWidget</name>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>CLEAR HISTORY</source>
        <translation>CANCELLA CRONOLOGIA</translation>
    </message>
    <message>
        <source>Finished videos</source>
        <translation>Video terminati</translation>
    </message>
    <message>
        <source>UNDO</source>
        <translation>ANNULLA</translation>
    </message>
    <message>
        <source>Bring back what was removed (Ctrl+Z)</source>
        <translation>Ripristina ciò che è stato rimosso (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Close this note</source>
        <translation>Chiudi questa nota</translation>
    </message>
    <message>
        <source>RESUME PROJECT</source>
        <translation>RIPRENDI PROGETTO</translation>
    </message>
    <message>
        <source>Open the project of the selected video in the editor</source>
        <translation>Apri il progetto del video selezionato nell'editor</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>MASTERIZZA DVD</translation>
    </message>
    <message>
        <source>Burn the selected video to a disc</source>
        <translation>Masterizza il video selezionato su un disco</translation>
    </message>
    <message>
        <source>UPLOAD</source>
        <translation>CARICA</translation>
    </message>
    <message>
        <source>Upload the selected video to a service</source>
        <translation>Carica il video selezionato su un servizio</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>Avanzamento del caricamento</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULLA</translation>
    </message>
    <message>
        <source>Connection ...</source>
        <translation>Connessione ...</translation>
    </message>
    <message>
        <source>Sign in on the page that was opened in your browser.</source>
        <translation>Accedere dalla pagina che si è aperta nel browser.</translation>
    </message>
</context>
<context>
    <name>HttpAnswer</name>
    <message>
        <source>The service cannot be reached.</source>
        <translation>Il servizio non è raggiungibile.</translation>
    </message>
    <message>
        <source>The connection to the service was lost.</source>
        <translation>La connessione al servizio è caduta.</translation>
    </message>
    <message>
        <source>The connection to the service is not secure.</source>
        <translation>La connessione al servizio non è sicura.</translation>
    </message>
    <message>
        <source>The service does not answer.</source>
        <translation>Il servizio non risponde.</translation>
    </message>
    <message>
        <source>The answer of the service cannot be understood.</source>
        <translation>La risposta del servizio non è comprensibile.</translation>
    </message>
</context>
<context>
    <name>ImageLoader</name>
    <message>
        <source>is not a picture that can be read</source>
        <translation>non è un'immagine leggibile</translation>
    </message>
    <message>
        <source>is damaged or incomplete</source>
        <translation>è danneggiata o incompleta</translation>
    </message>
    <message>
        <source>does not exist</source>
        <translation>non esiste</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>è una cartella</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>non può essere aperta</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>è vuota</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>è troppo grande</translation>
    </message>
    <message>
        <source>is too large (%1 x %2 pixels)</source>
        <translation>è troppo grande (%1 x %2 pixel)</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>The file is larger than %1 MB.</source>
        <translation>Il file supera %1 MB.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Non è un file normale.</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Open Folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>The folder "%1" does not exist any more.</source>
        <translation>La cartella "%1" non esiste più.</translation>
    </message>
    <message>
        <source>There is no program to show the folder "%1".</source>
        <translation>Non c'è un programma per mostrare la cartella "%1".</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Immagini (%1)</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Aggiungi cartella</translation>
    </message>
</context>
<context>
    <name>MediaSuffixes</name>
    <message>
        <source>The folder cannot be read.</source>
        <translation>La cartella non può essere letta.</translation>
    </message>
</context>
<context>
    <name>ProjectName</name>
    <message>
        <source>Project name should not contain any of these symbols: *:[]{}\/!</source>
        <translation>Il nome del progetto non può contenere nessuno di questi simboli: *:[]{}\/!</translation>
    </message>
</context>
<context>
    <name>SetNameForm</name>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Title of the video</source>
        <translation>Titolo del video</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULLA</translation>
    </message>
    <message>
        <source>UPDATE</source>
        <translation>AGGIORNA</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Close the settings</source>
        <translation>Chiudi le impostazioni</translation>
    </message>
    <message>
        <source>Close without saving (Esc)</source>
        <translation>Chiudi senza salvare (Esc)</translation>
    </message>
    <message>
        <source>Default Settings for slideshow:</source>
        <translation>Impostazioni predefinite della presentazione:</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>How long a new slide is shown</source>
        <translation>Per quanto si vede una nuova diapositiva</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Transizione</translation>
    </message>
    <message>
        <source>How a new slide comes in</source>
        <translation>Come appare una nuova diapositiva</translation>
    </message>
    <message>
        <source>Transition Time</source>
        <translation>Durata transizione</translation>
    </message>
    <message>
        <source>How long each transition lasts</source>
        <translation>Quanto dura ogni transizione</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>The size of the picture of a new slideshow</source>
        <translation>La dimensione dell'immagine di una nuova presentazione</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>Enlarge small photos so that they fill the picture</source>
        <translation>Ingrandisci le foto piccole fino a riempire l'immagine</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Proporzioni originali</translation>
    </message>
    <message>
        <source>Keep the shape of the photos instead of stretching them</source>
        <translation>Mantieni la forma delle foto invece di stirarle</translation>
    </message>
    <message>
        <source>Default audio settings:</source>
        <translation>Impostazioni audio predefinite:</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Scarto</translation>
    </message>
    <message>
        <source>When the music begins</source>
        <translation>Quando inizia la musica</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Dissolvenza</translation>
    </message>
    <message>
        <source>How long the music takes to come and go</source>
        <translation>Quanto durano entrata e uscita della musica</translation>
    </message>
    <message>
        <source>Export options:</source>
        <translation>Opzioni di esportazione:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>The folder that videos are written to</source>
        <translation>La cartella in cui vengono scritti i video</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Scegli la cartella</translation>
    </message>
    <message>
        <source>Output profile</source>
        <translation>Profilo di uscita</translation>
    </message>
    <message>
        <source>Original quality keeps every detail. Plays everywhere makes smaller files that televisions and phones play too.</source>
        <translation>"Qualità originale" conserva ogni dettaglio. "Funziona ovunque" crea file più piccoli che anche televisori e telefoni riproducono.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>The language of the program</source>
        <translation>La lingua del programma</translation>
    </message>
    <message>
        <source>Increase speed of generation</source>
        <translation>Velocizza la creazione</translation>
    </message>
    <message>
        <source>Make two slides at the same time</source>
        <translation>Crea due diapositive contemporaneamente</translation>
    </message>
    <message>
        <source>Check for the updates automatically</source>
        <translation>Cerca aggiornamenti automaticamente</translation>
    </message>
    <message>
        <source>Send anonymous usage statistics</source>
        <translation>Invia statistiche d'uso anonime</translation>
    </message>
    <message>
        <source>Helps to improve the program. No names, photos or texts are sent.</source>
        <translation>Aiuta a migliorare il programma. Non vengono inviati nomi, foto o testi.</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULLA</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>SALVA</translation>
    </message>
    <message>
        <source>Save the settings (Ctrl+Enter)</source>
        <translation>Salva le impostazioni (Ctrl+Invio)</translation>
    </message>
</context>
<context>
    <name>SlidesPage</name>
    <message>
        <source>Slides</source>
        <translation>Diapositive</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Sposta su</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Sposta giù</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Mescola foto</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Ordina foto</translation>
    </message>
    <message>
        <source>Rotate photo</source>
        <translation>Ruota foto</translation>
    </message>
    <message>
        <source>Rotate photo to the left</source>
        <translation>Ruota foto a sinistra</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Elimina diapositive</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Mostra di nuovo la diapositiva del titolo</translation>
    </message>
    <message>
        <source>Change all:</source>
        <translation>Cambia tutto:</translation>
    </message>
    <message>
        <source>Time of every slide</source>
        <translation>Tempo di tutte le diapositive</translation>
    </message>
    <message>
        <source>Transition of every slide</source>
        <translation>Transizione di tutte le diapositive</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Totale</translation>
    </message>
    <message>
        <source>Show what the slideshow is made of</source>
        <translation>Mostra da che cosa è composta la presentazione</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Svuota elenco</translation>
    </message>
</context>
<context>
    <name>TextEditWidget</name>
    <message>
        <source>Back to the slides (Esc)</source>
        <translation>Torna alle diapositive (Esc)</translation>
    </message>
    <message>
        <source>Back to the slides</source>
        <translation>Torna alle diapositive</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Testo:</translation>
    </message>
    <message>
        <source>Text here</source>
        <translation>Testo qui</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Also the title slide</source>
        <translation>Anche la diapositiva del titolo</translation>
    </message>
    <message>
        <source>Text settings:</source>
        <translation>Impostazioni del testo:</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Carattere</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Bg Color</source>
        <translation>Sfondo</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effetto</translation>
    </message>
    <message>
        <source>Effect with which the text appears</source>
        <translation>Effetto con cui appare il testo</translation>
    </message>
    <message>
        <source>Show how the text appears (F5)</source>
        <translation>Mostra come appare il testo (F5)</translation>
    </message>
    <message>
        <source>Show how the text appears</source>
        <translation>Mostra come appare il testo</translation>
    </message>
    <message>
        <source>Text position:</source>
        <translation>Posizione del testo:</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>Posizione del testo</translation>
    </message>
    <message>
        <source>Picture of the slide</source>
        <translation>Immagine della diapositiva</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Sfondo:</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Sfondo</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULLA</translation>
    </message>
    <message>
        <source>Leave the slide as it was (Esc)</source>
        <translation>Lascia la diapositiva com'era (Esc)</translation>
    </message>
    <message>
        <source>SAVE TEXT</source>
        <translation>SALVA TESTO</translation>
    </message>
    <message>
        <source>Save (Ctrl+Enter)</source>
        <translation>Salva (Ctrl+Invio)</translation>
    </message>
</context>
<context>
    <name>ToolRow</name>
    <message>
        <source>Add Photo</source>
        <translation>Aggiungi foto</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Aggiungi cartella</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Open the folder of the last video</source>
        <translation>Apri la cartella dell'ultimo video</translation>
    </message>
</context>
<context>
    <name>TransitionType</name>
    <message>
        <source>None</source>
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Casuale</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Mosaic Spiral In</source>
        <translation>Mosaico a spirale verso l'interno</translation>
    </message>
    <message>
        <source>Mosaic Spiral Out</source>
        <translation>Mosaico a spirale verso l'esterno</translation>
    </message>
    <message>
        <source>Mosaic Strips</source>
        <translation>Mosaico a strisce</translation>
    </message>
    <message>
        <source>Mosaic Wall</source>
        <translation>Mosaico a muro</translation>
    </message>
    <message>
        <source>Checkerboard</source>
        <translation>Scacchiera</translation>
    </message>
    <message>
        <source>Rotate Single Out</source>
        <translation>Rotazione in uscita</translation>
    </message>
    <message>
        <source>Rotate Single In</source>
        <translation>Rotazione in entrata</translation>
    </message>
    <message>
        <source>Flip Over</source>
        <translation>Capovolgi</translation>
    </message>
    <message>
        <source>Wipe Left To Right</source>
        <translation>Tendina da sinistra a destra</translation>
    </message>
    <message>
        <source>Wipe Right To Left</source>
        <translation>Tendina da destra a sinistra</translation>
    </message>
    <message>
        <source>Wipe Top To Bottom</source>
        <translation>Tendina dall'alto in basso</translation>
    </message>
    <message>
        <source>Wipe Bottom To Top</source>
        <translation>Tendina dal basso in alto</translation>
    </message>
    <message>
        <source>Wipe Vertical In</source>
        <translation>Tendina verticale verso l'interno</translation>
    </message>
    <message>
        <source>Wipe Vertical Out</source>
        <translation>Tendina verticale verso l'esterno</translation>
    </message>
    <message>
        <source>Stretch Horizontal</source>
        <translation>Stira in orizzontale</translation>
    </message>
    <message>
        <source>Stretch Vertical</source>
        <translation>Stira in verticale</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom avanti</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom indietro</translation>
    </message>
    <message>
        <source>Slide From Bottom</source>
        <translation>Scorri dal basso</translation>
    </message>
    <message>
        <source>Slide From Left</source>
        <translation>Scorri da sinistra</translation>
    </message>
    <message>
        <source>Slide From Right</source>
        <translation>Scorri da destra</translation>
    </message>
    <message>
        <source>Slide From Top</source>
        <translation>Scorri dall'alto</translation>
    </message>
    <message>
        <source>Slide From Top Left</source>
        <translation>Scorri dall'alto a sinistra</translation>
    </message>
    <message>
        <source>Fade To Black</source>
        <translation>Dissolvenza al nero</translation>
    </message>
    <message>
        <source>Cross fade</source>
        <translation>Dissolvenza incrociata</translation>
    </message>
    <message>
        <source>Fade To White</source>
        <translation>Dissolvenza al bianco</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Sconosciuta</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>DOWNLOAD</source>
        <translation>SCARICA</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULLA</translation>
    </message>
</context>
<context>
    <name>UploadFailWindow</name>
    <message>
        <source>Upload stopped with error</source>
        <translation>Caricamento interrotto da un errore</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CHIUDI</translation>
    </message>
</context>
<context>
    <name>UploadSuccessWindow</name>
    <message>
        <source>Uploading has been completed</source>
        <translation>Il caricamento è terminato</translation>
    </message>
    <message>
        <source>Congratulations! Your file upload to %1 was successful!</source>
        <translation>Congratulazioni! Il file è stato caricato su %1!</translation>
    </message>
    <message>
        <source>OPEN</source>
        <translation>APRI</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CHIUDI</translation>
    </message>
</context>
<context>
    <name>ValueLists</name>
    <message>
        <source>%1 sec</source>
        <translation>%1 sec</translation>
    </message>
</context>
<context>
    <name>VideoDialog</name>
    <message>
        <source>Picture of the video</source>
        <translation>Immagine del video</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Position in the video (arrow keys)</source>
        <translation>Posizione nel video (tasti freccia)</translation>
    </message>
    <message>
        <source>Position in the video</source>
        <translation>Posizione nel video</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durata</translation>
    </message>
</context>
<context>
    <name>velmora::VideoDialog</name>
    <message>
        <source>Pause (Space)</source>
        <translation>Pausa (Spazio)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Riproduci (Spazio)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
</context>
<context>
    <name>VideoPlayerWidget</name>
    <message>
        <source>Full preview</source>
        <translation>Anteprima completa</translation>
    </message>
    <message>
        <source>Preview picture</source>
        <translation>Immagine dell'anteprima</translation>
    </message>
    <message>
        <source>Position in the preview (arrow keys)</source>
        <translation>Posizione nell'anteprima (tasti freccia)</translation>
    </message>
    <message>
        <source>Position in the preview</source>
        <translation>Posizione nell'anteprima</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Riproduci (Spazio)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Mute (M)</source>
        <translation>Muto (M)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muto</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Full screen (F)</source>
        <translation>Schermo intero (F)</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Schermo intero</translation>
    </message>
    <message>
        <source>Preview slideshow</source>
        <translation>Anteprima presentazione</translation>
    </message>
    <message>
        <source>Play the whole slideshow</source>
        <translation>Riproduci tutta la presentazione</translation>
    </message>
    <message>
        <source>Repeat transition</source>
        <translation>Ripeti transizione</translation>
    </message>
    <message>
        <source>Play the transition to the selected slide</source>
        <translation>Riproduci la transizione alla diapositiva selezionata</translation>
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
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>Choose resolution of your slideshow</source>
        <translation>Scegliere la risoluzione della presentazione</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Transition duration</source>
        <translation>Durata transizione</translation>
    </message>
    <message>
        <source>Choose length of transition effects. Affects all transitions in current slideshow</source>
        <translation>Scegliere la durata degli effetti di transizione. Vale per tutte le transizioni della presentazione attuale</translation>
    </message>
    <message>
        <source>If you want images to be resized to fit the screen leave the checkbox checked. Otheriwse they stay original size.</source>
        <translation>Lasciare la casella spuntata per adattare le immagini allo schermo. Altrimenti mantengono la dimensione originale.</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>If you want to keep original aspect ratio of the photos leave checkbox checked. Otherwise they will be stretched to chosen resolution.</source>
        <translation>Lasciare la casella spuntata per mantenere le proporzioni delle foto. Altrimenti vengono stirate alla risoluzione scelta.</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Proporzioni originali</translation>
    </message>
</context>
<context>
    <name>velmora::AudioDecoder</name>
    <message>
        <source>There is no sound in it.</source>
        <translation>Non contiene suono.</translation>
    </message>
    <message>
        <source>The sound format "%1" is not supported.</source>
        <translation>Il formato audio "%1" non è supportato.</translation>
    </message>
</context>
<context>
    <name>velmora::AudioFilesController</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 non può essere letto.</translation>
    </message>
    <message>
        <source>%1, cannot be read</source>
        <translation>%1, non leggibile</translation>
    </message>
    <message>
        <source>%1, length %2</source>
        <translation>%1, durata %2</translation>
    </message>
    <message>
        <source>Audio Files (%1)</source>
        <translation>File audio (%1)</translation>
    </message>
</context>
<context>
    <name>velmora::AudioListWidget</name>
    <message>
        <source>Adding: %1</source>
        <translation>Aggiunta: %1</translation>
    </message>
    <message>
        <source>Adding...</source>
        <translation>Aggiunta ...</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>In ascolto</translation>
    </message>
    <message>
        <source>%1 cannot be played: %2</source>
        <translation>%1 non può essere riprodotto: %2</translation>
    </message>
    <message>
        <source>Drag &amp; drop audio files to create a playlist</source>
        <translation>Trascinare qui i file audio per creare una playlist</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Sposta su</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Sposta giù</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Stop listening</source>
        <translation>Interrompi l'ascolto</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>Ascolta</translation>
    </message>
    <message>
        <source>Total: %1 %2 (%3)</source>
        <translation>Totale: %1 %2 (%3)</translation>
    </message>
    <message>
        <source>track</source>
        <translation>brani</translation>
    </message>
    <message>
        <source>tracks</source>
        <translation>brani</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>Adding audio files</source>
        <translation>Aggiunta di file audio</translation>
    </message>
    <message>
        <source>Not all audio files have been added</source>
        <translation>Non tutti i file audio sono stati aggiunti</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CHIUDI</translation>
    </message>
</context>
<context>
    <name>velmora::AudioNoFocusRectangleDelegate</name>
    <message>
        <source>missing</source>
        <translation>mancante</translation>
    </message>
    <message>
        <source>Listen (Space)</source>
        <translation>Ascolta (Spazio)</translation>
    </message>
    <message>
        <source>Stop (Space)</source>
        <translation>Ferma (Spazio)</translation>
    </message>
    <message>
        <source>Delete (Del)</source>
        <translation>Elimina (Canc)</translation>
    </message>
</context>
<context>
    <name>velmora::BackgroundPicker</name>
    <message>
        <source>Background %1</source>
        <translation>Sfondo %1</translation>
    </message>
</context>
<context>
    <name>velmora::BaseOauth2Uploader</name>
    <message>
        <source>source file not found</source>
        <translation>file di origine non trovato</translation>
    </message>
    <message>
        <source>can't open source file for reading</source>
        <translation>impossibile aprire il file di origine in lettura</translation>
    </message>
    <message>
        <source>Operation was canceled</source>
        <translation>L'operazione è stata annullata</translation>
    </message>
    <message>
        <source>Authorization error</source>
        <translation>Errore di autorizzazione</translation>
    </message>
    <message>
        <source>There is no program to show the sign-in page.</source>
        <translation>Non c'è un programma per mostrare la pagina di accesso.</translation>
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
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Libero</translation>
    </message>
    <message>
        <source>Burn DVD</source>
        <translation>Masterizza DVD</translation>
    </message>
    <message>
        <source>My slideshow</source>
        <translation>La mia presentazione</translation>
    </message>
    <message>
        <source>Looking for drives…</source>
        <translation>Ricerca delle unità…</translation>
    </message>
    <message>
        <source>No drive that can write discs was found.</source>
        <translation>Non è stata trovata nessuna unità in grado di scrivere dischi.</translation>
    </message>
    <message>
        <source>Looking at the disc…</source>
        <translation>Esame del disco…</translation>
    </message>
    <message>
        <source>Media disk is not ready</source>
        <translation>Il disco non è pronto</translation>
    </message>
    <message>
        <source>There is not enough disc space for the slideshow</source>
        <translation>Sul disco non c'è spazio sufficiente per la presentazione</translation>
    </message>
    <message>
        <source>Disc is not empty. Do you want to erase disc before burning?
Press "Yes" if you want to erase disc before burning.
Press "No" if you want just to burn (add) new files to the disc.
Press "Cancel" to cancel the operation.</source>
        <translation>Il disco non è vuoto. Cancellarlo prima di masterizzare?
Premere "Sì" per cancellare il disco prima di masterizzare.
Premere "No" per aggiungere soltanto i nuovi file al disco.
Premere "Annulla" per annullare l'operazione.</translation>
    </message>
    <message>
        <source>Disc is not empty. Do you want to erase disc before burning?
Press "Yes" if you want to erase disc before burning.
Press "Cancel" to cancel the operation.</source>
        <translation>Il disco non è vuoto. Cancellarlo prima di masterizzare?
Premere "Sì" per cancellare il disco prima di masterizzare.
Premere "Annulla" per annullare l'operazione.</translation>
    </message>
    <message>
        <source>A disc whose writing is stopped can become unusable. Stop writing?</source>
        <translation>Un disco la cui scrittura viene interrotta può diventare inutilizzabile. Interrompere la scrittura?</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>INTERROMPI</translation>
    </message>
    <message>
        <source>GO ON</source>
        <translation>CONTINUA</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>Riuscito</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>The video is on the disc.</source>
        <translation>Il video è sul disco.</translation>
    </message>
    <message>
        <source>The video was not written to the disc. The file on your computer is as it was.</source>
        <translation>Il video non è stato scritto sul disco. Il file sul computer è rimasto com'era.</translation>
    </message>
</context>
<context>
    <name>velmora::BusyNote</name>
    <message>
        <source>CANCEL</source>
        <translation>ANNULLA</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Stop and leave everything as it was</source>
        <translation>Interrompi e lascia tutto com'era</translation>
    </message>
</context>
<context>
    <name>velmora::ColorBox</name>
    <message>
        <source>White</source>
        <translation>Bianco</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>Grigio chiaro</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>Grigio scuro</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Nero</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Rosso scuro</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Arancione</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Oro</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Giallo</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Sabbia</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Marrone</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>Lime</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Aqua</source>
        <translation>Turchese</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>Celeste</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Viola</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Altro ...</translation>
    </message>
</context>
<context>
    <name>velmora::ComboBoxItemDelegate</name>
    <message>
        <source>Choose for this slide, or for all selected ones</source>
        <translation>Scegli per questa diapositiva o per tutte quelle selezionate</translation>
    </message>
</context>
<context>
    <name>velmora::Composer</name>
    <message>
        <source>The render program %1 could not be started: %2</source>
        <translation>Impossibile avviare il programma di creazione %1: %2</translation>
    </message>
    <message>
        <source>The render program ended unexpectedly.</source>
        <translation>Il programma di creazione è terminato in modo imprevisto.</translation>
    </message>
</context>
<context>
    <name>velmora::ConcatList</name>
    <message>
        <source>The file name "%1" contains a line break.</source>
        <translation>Il nome di file "%1" contiene un'interruzione di riga.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 non può essere scritto: %2</translation>
    </message>
</context>
<context>
    <name>velmora::CreatePanel</name>
    <message>
        <source>Make the video</source>
        <translation>Crea il video</translation>
    </message>
    <message>
        <source>Play the whole slideshow</source>
        <translation>Riproduci tutta la presentazione</translation>
    </message>
    <message>
        <source>The video cannot be made</source>
        <translation>Il video non può essere creato</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CHIUDI</translation>
    </message>
    <message>
        <source>The video is ready, but it could not be entered in the history: %1</source>
        <translation>Il video è pronto, ma non è stato possibile aggiungerlo alla cronologia: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressPage</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Time Elapsed: %1</source>
        <translation>Tempo trascorso: %1</translation>
    </message>
    <message>
        <source>Time Remaining: %1</source>
        <translation>Tempo rimanente: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>sconosciuto</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Finishing the video</source>
        <translation>Completamento del video</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Preparazione</translation>
    </message>
    <message>
        <source>Making the video (%1x)</source>
        <translation>Creazione del video (%1x)</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
</context>
<context>
    <name>velmora::OutputCheck</name>
    <message>
        <source>Filename</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>The video needs a file name.</source>
        <translation>Il video ha bisogno di un nome di file.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist and cannot be made.</source>
        <translation>La cartella %1 non esiste e non può essere creata.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to: %2</source>
        <translation>Impossibile scrivere nella cartella %1: %2</translation>
    </message>
    <message>
        <source>The video cannot be saved</source>
        <translation>Il video non può essere salvato</translation>
    </message>
    <message>
        <source>Please choose another folder in the settings.</source>
        <translation>Scegliere un'altra cartella nelle impostazioni.</translation>
    </message>
    <message>
        <source>Replace the video</source>
        <translation>Sostituisci il video</translation>
    </message>
    <message>
        <source>The file %1 exists already. Do you want to replace it?</source>
        <translation>Il file %1 esiste già. Sostituirlo?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULLA</translation>
    </message>
    <message>
        <source>REPLACE</source>
        <translation>SOSTITUISCI</translation>
    </message>
</context>
<context>
    <name>velmora::RenderedProject</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>La cartella %1 non può essere creata.</translation>
    </message>
</context>
<context>
    <name>velmora::DocumentActions</name>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifiche non salvate</translation>
    </message>
    <message>
        <source>Do you want to save the changes to "%1"?</source>
        <translation>Salvare le modifiche a "%1"?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULLA</translation>
    </message>
    <message>
        <source>DON'T SAVE</source>
        <translation>NON SALVARE</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>SALVA</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Chiudi il programma</translation>
    </message>
    <message>
        <source>A video is being made. If you close the program now, it is lost.</source>
        <translation>È in corso la creazione di un video. Chiudendo ora il programma andrà perso.</translation>
    </message>
    <message>
        <source>A video is being uploaded. If you close the program now, it is not completed.</source>
        <translation>È in corso il caricamento di un video. Chiudendo ora il programma non sarà completato.</translation>
    </message>
    <message>
        <source>STOP AND CLOSE</source>
        <translation>INTERROMPI E CHIUDI</translation>
    </message>
    <message>
        <source>GO ON</source>
        <translation>CONTINUA</translation>
    </message>
    <message>
        <source>Restore the slideshow</source>
        <translation>Ripristina la presentazione</translation>
    </message>
    <message>
        <source>The program ended before "%1" was saved. Do you want to restore it?</source>
        <translation>Il programma è terminato prima di salvare "%1". Ripristinarla?</translation>
    </message>
    <message>
        <source>DISCARD</source>
        <translation>SCARTA</translation>
    </message>
    <message>
        <source>RESTORE</source>
        <translation>RIPRISTINA</translation>
    </message>
    <message>
        <source>Open a slideshow</source>
        <translation>Apri una presentazione</translation>
    </message>
    <message>
        <source>The file "%1" cannot be opened as a slideshow.</source>
        <translation>Il file "%1" non può essere aperto come presentazione.</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CHIUDI</translation>
    </message>
    <message>
        <source>Slideshows (*.json)</source>
        <translation>Presentazioni (*.json)</translation>
    </message>
    <message>
        <source>Save the slideshow</source>
        <translation>Salva la presentazione</translation>
    </message>
    <message>
        <source>The slideshow cannot be saved to "%1".</source>
        <translation>La presentazione non può essere salvata in "%1".</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxClient::ApiRequest</name>
    <message>
        <source>Unknown error</source>
        <translation>Errore sconosciuto</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxClient::DropboxUploader</name>
    <message>
        <source>source file not found</source>
        <translation>file di origine non trovato</translation>
    </message>
    <message>
        <source>can't open source file for reading</source>
        <translation>impossibile aprire il file di origine in lettura</translation>
    </message>
    <message>
        <source>The answer of the service cannot be understood.</source>
        <translation>La risposta del servizio non è comprensibile.</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxUpload</name>
    <message>
        <source>Operation was canceled</source>
        <translation>L'operazione è stata annullata</translation>
    </message>
</context>
<context>
    <name>velmora::EditorSide</name>
    <message>
        <source>Preview and settings</source>
        <translation>Anteprima e impostazioni</translation>
    </message>
</context>
<context>
    <name>velmora::EncoderAdvice</name>
    <message>
        <source>FFmpeg was not found. Please install it (on Debian and Ubuntu: sudo apt install ffmpeg).</source>
        <translation>FFmpeg non è stato trovato. Installarlo (su Debian e Ubuntu: sudo apt install ffmpeg).</translation>
    </message>
    <message>
        <source>FFmpeg %1 (%2) is too old. Please install version 4.4 or newer (on Debian and Ubuntu: sudo apt install ffmpeg).</source>
        <translation>FFmpeg %1 (%2) è troppo vecchio. Installare la versione 4.4 o successiva (su Debian e Ubuntu: sudo apt install ffmpeg).</translation>
    </message>
    <message>
        <source>FFmpeg was not found. It comes with Velmora: please install Velmora again, or put ffmpeg.exe into its folder.</source>
        <translation>FFmpeg non è stato trovato. È incluso in Velmora: reinstallare Velmora o mettere ffmpeg.exe nella sua cartella.</translation>
    </message>
    <message>
        <source>FFmpeg %1 (%2) is too old. Please install Velmora again, or put ffmpeg.exe of version 4.4 or newer into its folder.</source>
        <translation>FFmpeg %1 (%2) è troppo vecchio. Reinstallare Velmora o mettere ffmpeg.exe 4.4 o successivo nella sua cartella.</translation>
    </message>
</context>
<context>
    <name>velmora::FinalWindow</name>
    <message>
        <source>Open file Error</source>
        <translation>Errore di apertura del file</translation>
    </message>
    <message>
        <source>File '%1' not found</source>
        <translation>File "%1" non trovato</translation>
    </message>
    <message>
        <source>There is no program to show the folder of '%1'.</source>
        <translation>Non c'è un programma per mostrare la cartella di "%1".</translation>
    </message>
</context>
<context>
    <name>velmora::FrameWriter</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 non può essere scritto: %2</translation>
    </message>
    <message>
        <source>A frame of %1x%2 pixels cannot be compressed.</source>
        <translation>Un'immagine di %1x%2 pixel non può essere compressa.</translation>
    </message>
</context>
<context>
    <name>velmora::GeneratorThread</name>
    <message>
        <source>No folder for temporary files can be made as "%1": %2</source>
        <translation>Impossibile creare la cartella temporanea "%1": %2</translation>
    </message>
</context>
<context>
    <name>velmora::HelpBubble</name>
    <message>
        <source>Help for %1</source>
        <translation>Guida su %1</translation>
    </message>
</context>
<context>
    <name>velmora::HelpDialog</name>
    <message>
        <source>Create the video, or save a text</source>
        <translation>Crea il video o salva un testo</translation>
    </message>
    <message>
        <source>Preview the whole slideshow</source>
        <translation>Anteprima di tutta la presentazione</translation>
    </message>
    <message>
        <source>Play or pause the preview</source>
        <translation>Riproduci o metti in pausa l'anteprima</translation>
    </message>
    <message>
        <source>Mute the preview</source>
        <translation>Silenzia l'anteprima</translation>
    </message>
    <message>
        <source>Leave without saving</source>
        <translation>Esci senza salvare</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>From photos to a video</source>
        <translation>Dalle foto al video</translation>
    </message>
    <message>
        <source>1. Add photos or folders, with the buttons or by dropping them on the window.</source>
        <translation>1. Aggiungere foto o cartelle, con i pulsanti o trascinandole nella finestra.</translation>
    </message>
    <message>
        <source>2. Put them in order by dragging, and choose times and transitions.</source>
        <translation>2. Ordinarle trascinandole e scegliere tempi e transizioni.</translation>
    </message>
    <message>
        <source>3. Add texts to slides and music to the slideshow, and look at the preview.</source>
        <translation>3. Aggiungere testi e musica e guardare l'anteprima.</translation>
    </message>
    <message>
        <source>4. Choose a name and a format, and press CREATE.</source>
        <translation>4. Scegliere un nome e un formato, poi premere CREA.</translation>
    </message>
    <message>
        <source>5. Watch, upload or burn the video from the history.</source>
        <translation>5. Guardare, caricare o masterizzare il video dalla cronologia.</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>In the editor</source>
        <translation>Nell'editor</translation>
    </message>
    <message>
        <source>OPEN MANUAL</source>
        <translation>APRI MANUALE</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CHIUDI</translation>
    </message>
    <message>
        <source>Go back in the preview</source>
        <translation>Torna indietro nell'anteprima</translation>
    </message>
    <message>
        <source>Go forward in the preview</source>
        <translation>Vai avanti nell'anteprima</translation>
    </message>
    <message>
        <source>Show the preview on the full screen</source>
        <translation>Mostra l'anteprima a schermo intero</translation>
    </message>
    <message>
        <source>Play the effect of a text</source>
        <translation>Riproduci l'effetto di un testo</translation>
    </message>
</context>
<context>
    <name>velmora::HelpPages</name>
    <message>
        <source>Home page</source>
        <translation>Sito web</translation>
    </message>
    <message>
        <source>No home page is set up in this copy of the program.</source>
        <translation>In questa copia del programma non è impostato alcun sito web.</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryHeader</name>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome del file</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>Sort by this column</source>
        <translation>Ordina per questa colonna</translation>
    </message>
    <message>
        <source>Sorts the list</source>
        <translation>Ordina l'elenco</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryListView</name>
    <message>
        <source>Your finished slideshows appear here.</source>
        <translation>Qui appaiono le presentazioni terminate.</translation>
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
        <translation>Apri il progetto nell'editor</translation>
    </message>
    <message>
        <source>Play the video</source>
        <translation>Riproduci il video</translation>
    </message>
    <message>
        <source>Burn the video to a disc</source>
        <translation>Masterizza il video su un disco</translation>
    </message>
    <message>
        <source>Remove the video from the history</source>
        <translation>Rimuovi il video dalla cronologia</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>rimosso</translation>
    </message>
    <message>
        <source>The video file does not exist any more.</source>
        <translation>Il file video non esiste più.</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryWidget</name>
    <message>
        <source>Open file Error</source>
        <translation>Errore di apertura del file</translation>
    </message>
    <message>
        <source>File '%1' not found</source>
        <translation>File "%1" non trovato</translation>
    </message>
    <message>
        <source>There is no program to play the file '%1'.</source>
        <translation>Non c'è un programma per riprodurre il file "%1".</translation>
    </message>
    <message>
        <source>Remove from the history</source>
        <translation>Rimuovi dalla cronologia</translation>
    </message>
    <message>
        <source>Remove "%1" from the history?</source>
        <translation>Rimuovere "%1" dalla cronologia?</translation>
    </message>
    <message>
        <source>Also move the video file to the trash</source>
        <translation>Sposta anche il file video nel cestino</translation>
    </message>
    <message>
        <source>REMOVE</source>
        <translation>RIMUOVI</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULLA</translation>
    </message>
    <message>
        <source>Clear the history</source>
        <translation>Cancella la cronologia</translation>
    </message>
    <message numerus="yes">
        <source>Remove all videos (%n) from the history?</source>
        <translation><numerusform>Rimuovere %n video dalla cronologia?</numerusform><numerusform>Rimuovere tutti i %n video dalla cronologia?</numerusform></translation>
    </message>
    <message>
        <source>Also move the video files to the trash</source>
        <translation>Sposta anche i file video nel cestino</translation>
    </message>
    <message>
        <source>REMOVE ALL</source>
        <translation>RIMUOVI TUTTO</translation>
    </message>
    <message>
        <source>Some video files could not be moved to the trash. They are where they were.</source>
        <translation>Alcuni file video non possono essere spostati nel cestino. Sono rimasti dov'erano.</translation>
    </message>
    <message>
        <source>Some video files could not be taken out of the trash.</source>
        <translation>Alcuni file video non possono essere ripresi dal cestino.</translation>
    </message>
    <message numerus="yes">
        <source>Videos removed from the history: %n</source>
        <translation><numerusform>%n video rimosso dalla cronologia.</numerusform><numerusform>%n video rimossi dalla cronologia.</numerusform></translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>The history could not be changed: %1</source>
        <translation>La cronologia non può essere modificata: %1</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <translation>Trascorso: %1</translation>
    </message>
    <message>
        <source>Uploading %1 to %2</source>
        <translation>Caricamento di %1 su %2</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>Connetti a %1</translation>
    </message>
</context>
<context>
    <name>velmora::InputCheck</name>
    <message numerus="yes">
        <source>%n more file(s) cannot be used.</source>
        <translation><numerusform>Un altro file (%n) non può essere usato.</numerusform><numerusform>Altri %n file non possono essere usati.</numerusform></translation>
    </message>
    <message>
        <source>The video would replace "%1", of which it is made. Please choose another name.</source>
        <translation>Il video sostituirebbe "%1", di cui è fatto. Scegliere un altro nome.</translation>
    </message>
</context>
<context>
    <name>velmora::InputFiles</name>
    <message>
        <source>The folder "%1" cannot be read.</source>
        <translation>La cartella "%1" non può essere letta.</translation>
    </message>
    <message>
        <source>The photo "%1" does not exist.</source>
        <translation>La foto "%1" non esiste.</translation>
    </message>
    <message>
        <source>"%1" is not a photo of a known format.</source>
        <translation>"%1" non è una foto di un formato noto.</translation>
    </message>
    <message>
        <source>There are no photos in the folder "%1".</source>
        <translation>Non ci sono foto nella cartella "%1".</translation>
    </message>
    <message>
        <source>The sound file "%1" does not exist.</source>
        <translation>Il file audio "%1" non esiste.</translation>
    </message>
    <message>
        <source>"%1" is not a sound file of a known format.</source>
        <translation>"%1" non è un file audio di un formato noto.</translation>
    </message>
    <message>
        <source>There are no sound files in the folder "%1".</source>
        <translation>Non ci sono file audio nella cartella "%1".</translation>
    </message>
</context>
<context>
    <name>velmora::MainMenu</name>
    <message>
        <source>New slideshow</source>
        <translation>Nuova presentazione</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Apri ...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation>Salva con nome ...</translation>
    </message>
    <message>
        <source>Set video title...</source>
        <translation>Imposta titolo del video ...</translation>
    </message>
    <message>
        <source>Add Photo</source>
        <translation>Aggiungi foto</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Aggiungi cartella</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Schermo intero</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Sito web</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
</context>
<context>
    <name>velmora::MainView</name>
    <message>
        <source>The video is ready</source>
        <translation>Il video è pronto</translation>
    </message>
    <message>
        <source>The upload has failed</source>
        <translation>Il caricamento non è riuscito</translation>
    </message>
    <message>
        <source>The upload is complete</source>
        <translation>Il caricamento è completo</translation>
    </message>
    <message>
        <source>Another video is being uploaded.</source>
        <translation>È in corso il caricamento di un altro video.</translation>
    </message>
</context>
<context>
    <name>velmora::MainWindowWidget</name>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>undo or redo, and what</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Add Audio</source>
        <translation>Aggiungi audio</translation>
    </message>
    <message>
        <source>Photos are still being added</source>
        <translation>L'aggiunta delle foto è ancora in corso</translation>
    </message>
    <message>
        <source>Audio files are still being added</source>
        <translation>L'aggiunta dei file audio è ancora in corso</translation>
    </message>
    <message>
        <source>The photos are still being sorted</source>
        <translation>L'ordinamento delle foto è ancora in corso</translation>
    </message>
    <message>
        <source>A text is still being edited</source>
        <translation>La modifica di un testo è ancora in corso</translation>
    </message>
</context>
<context>
    <name>velmora::MakeCommand</name>
    <message>
        <source>The project cannot be written as "%1": %2.</source>
        <translation>Il progetto non può essere scritto come "%1": %2.</translation>
    </message>
    <message>
        <source>"velmoratool --help" lists what is possible.</source>
        <translation>"velmoratool --help" elenca le possibilità.</translation>
    </message>
</context>
<context>
    <name>velmora::MakeOptions</name>
    <message>
        <source>"%1" is not a whole number from %2 to %3.</source>
        <translation>"%1" non è un numero intero da %2 a %3.</translation>
    </message>
    <message>
        <source>The text is empty.</source>
        <translation>Il testo è vuoto.</translation>
    </message>
    <message>
        <source>"%1" is not a size such as 1920x1080.</source>
        <translation>"%1" non è una dimensione come 1920x1080.</translation>
    </message>
    <message>
        <source>There is no transition "%1". There are: %2.</source>
        <translation>La transizione "%1" non esiste. Ci sono: %2.</translation>
    </message>
    <message>
        <source>"%1" is none of name, date and given.</source>
        <translation>"%1" non è né name, né date, né given.</translation>
    </message>
    <message>
        <source>"%1" is neither original nor everywhere.</source>
        <translation>"%1" non è né original né everywhere.</translation>
    </message>
    <message>
        <source>The name of the video "%1" must end in one of: %2.</source>
        <translation>Il nome del video "%1" deve finire con: %2.</translation>
    </message>
    <message>
        <source>A file name is empty.</source>
        <translation>Un nome di file è vuoto.</translation>
    </message>
    <message>
        <source>"%1" belongs to no option.</source>
        <translation>"%1" non appartiene a nessuna opzione.</translation>
    </message>
    <message>
        <source>There is no option --%1.</source>
        <translation>L'opzione --%1 non esiste.</translation>
    </message>
    <message>
        <source>--%1 takes no value.</source>
        <translation>--%1 non accetta valori.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 richiede un valore.</translation>
    </message>
    <message>
        <source>--%1 cannot be combined with --project, which has its own.</source>
        <translation>--%1 non si può combinare con --project, che ha il suo.</translation>
    </message>
    <message>
        <source>--photos or --project is needed.</source>
        <translation>Serve --photos o --project.</translation>
    </message>
    <message>
        <source>--output is needed.</source>
        <translation>Serve --output.</translation>
    </message>
    <message>
        <source>--stretch and --original-size exclude each other.</source>
        <translation>--stretch e --original-size si escludono.</translation>
    </message>
</context>
<context>
    <name>velmora::MakeProject</name>
    <message>
        <source>The project "%1" cannot be used: %2</source>
        <translation>Il progetto "%1" non può essere usato: %2</translation>
    </message>
</context>
<context>
    <name>velmora::MediaFileInfo</name>
    <message>
        <source>There is neither sound nor video in it.</source>
        <translation>Non contiene né suono né video.</translation>
    </message>
</context>
<context>
    <name>velmora::MediaInput</name>
    <message>
        <source>The file does not exist.</source>
        <translation>Il file non esiste.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Non è un file.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Il file è vuoto.</translation>
    </message>
    <message>
        <source>It is damaged, or not a media file.</source>
        <translation>È danneggiato o non è un file multimediale.</translation>
    </message>
    <message>
        <source>It is a play list, not a media file.</source>
        <translation>È una playlist, non un file multimediale.</translation>
    </message>
</context>
<context>
    <name>velmora::MessageDialog</name>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CHIUDI</translation>
    </message>
</context>
<context>
    <name>velmora::MultipartUploader</name>
    <message>
        <source>can't open source file for reading</source>
        <translation>impossibile aprire il file di origine in lettura</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Errore sconosciuto</translation>
    </message>
    <message>
        <source>Error uploading video:%1</source>
        <translation>Errore nel caricamento del video:%1</translation>
    </message>
</context>
<context>
    <name>velmora::OutputTarget</name>
    <message>
        <source>The project does not name a video file to write.</source>
        <translation>Il progetto non indica un file video da scrivere.</translation>
    </message>
    <message>
        <source>The finished video could not be put in place as "%1": %2.</source>
        <translation>Il video finito non può essere messo al suo posto come "%1": %2.</translation>
    </message>
    <message>
        <source>The video was kept as "%1".</source>
        <translation>Il video è stato conservato come "%1".</translation>
    </message>
    <message>
        <source>The video's name "%1..." is too long. Please choose a shorter one.</source>
        <translation>Il nome del video "%1..." è troppo lungo. Sceglierne uno più corto.</translation>
    </message>
    <message>
        <source>The folder "%1" for the video does not exist.</source>
        <translation>La cartella "%1" per il video non esiste.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": it is not a folder.</source>
        <translation>Il video non può essere scritto in "%1": non è una cartella.</translation>
    </message>
    <message>
        <source>The video cannot be written as "%1": a folder has that name.</source>
        <translation>Il video non può essere scritto come "%1": una cartella ha questo nome.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": the disk is full.</source>
        <translation>Il video non può essere scritto in "%1": il disco è pieno.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": %2.</source>
        <translation>Il video non può essere scritto in "%1": %2.</translation>
    </message>
    <message>
        <source>Another render is writing "%1" at this time.</source>
        <translation>Un altro processo sta scrivendo "%1" in questo momento.</translation>
    </message>
</context>
<context>
    <name>velmora::PhotoImporter</name>
    <message>
        <source>does not exist</source>
        <translation>non esiste</translation>
    </message>
    <message>
        <source>is not a photo</source>
        <translation>non è una foto</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>non può essere letto</translation>
    </message>
    <message>
        <source>holds no photos</source>
        <translation>non contiene foto</translation>
    </message>
</context>
<context>
    <name>velmora::PhotoImports</name>
    <message numerus="yes">
        <source>Adding photos: %n looked at</source>
        <translation><numerusform>Aggiunta di foto: %n esaminata</numerusform><numerusform>Aggiunta di foto: %n esaminate</numerusform></translation>
    </message>
    <message>
        <source>Adding photos</source>
        <translation>Aggiunta di foto</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files have not been added</source>
        <translation><numerusform>%n file non è stato aggiunto</numerusform><numerusform>%n file non sono stati aggiunti</numerusform></translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CHIUDI</translation>
    </message>
</context>
<context>
    <name>velmora::PositionPicker</name>
    <message>
        <source>Top left</source>
        <translation>In alto a sinistra</translation>
    </message>
    <message>
        <source>Top centre</source>
        <translation>In alto al centro</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>In alto a destra</translation>
    </message>
    <message>
        <source>Centre left</source>
        <translation>Al centro a sinistra</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Al centro</translation>
    </message>
    <message>
        <source>Centre right</source>
        <translation>Al centro a destra</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>In basso a sinistra</translation>
    </message>
    <message>
        <source>Bottom centre</source>
        <translation>In basso al centro</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>In basso a destra</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressText</name>
    <message>
        <source>%1 elapsed</source>
        <translation>%1 trascorso</translation>
    </message>
    <message>
        <source>%1 elapsed, %2 left</source>
        <translation>%1 trascorso, %2 rimanente</translation>
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
        <translation>Aggiungi foto</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Elimina diapositive</translation>
    </message>
    <message>
        <source>Hide the title slide</source>
        <translation>Nascondi la diapositiva del titolo</translation>
    </message>
    <message>
        <source>Move slides</source>
        <translation>Sposta diapositive</translation>
    </message>
    <message>
        <source>Change time</source>
        <translation>Cambia tempo</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Cambia transizione</translation>
    </message>
    <message>
        <source>Rotate photos</source>
        <translation>Ruota foto</translation>
    </message>
    <message>
        <source>Change caption</source>
        <translation>Cambia testo</translation>
    </message>
    <message>
        <source>Change caption style</source>
        <translation>Cambia stile del testo</translation>
    </message>
    <message>
        <source>Change title slide</source>
        <translation>Cambia diapositiva del titolo</translation>
    </message>
    <message>
        <source>Add audio</source>
        <translation>Aggiungi audio</translation>
    </message>
    <message>
        <source>Delete audio</source>
        <translation>Elimina audio</translation>
    </message>
    <message>
        <source>Move audio</source>
        <translation>Sposta audio</translation>
    </message>
    <message>
        <source>Change audio offset</source>
        <translation>Cambia scarto audio</translation>
    </message>
    <message>
        <source>Change audio fade</source>
        <translation>Cambia dissolvenza audio</translation>
    </message>
    <message>
        <source>Loop audio</source>
        <translation>Ripeti audio</translation>
    </message>
    <message>
        <source>Change resolution</source>
        <translation>Cambia risoluzione</translation>
    </message>
    <message>
        <source>Change format</source>
        <translation>Cambia formato</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Proporzioni originali</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>Change transition duration</source>
        <translation>Cambia durata transizione</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Ordina foto</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Mescola foto</translation>
    </message>
    <message>
        <source>Relocate photos</source>
        <translation>Ritrova foto</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectFile</name>
    <message>
        <source>New project</source>
        <translation>Nuovo progetto</translation>
    </message>
    <message>
        <source>The file is not a valid JSON document: %1.</source>
        <translation>Il file non è un documento JSON valido: %1.</translation>
    </message>
    <message>
        <source>The file is not a project document.</source>
        <translation>Il file non è un documento di progetto.</translation>
    </message>
    <message>
        <source>The project document cannot be used, faulty field: %1.</source>
        <translation>Il documento di progetto non può essere usato, campo errato: %1.</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectItemFirst</name>
    <message>
        <source>My slideshow</source>
        <translation>La mia presentazione</translation>
    </message>
    <message>
        <source>Starter</source>
        <translation>Inizio</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectResume</name>
    <message>
        <source>Not all files exist</source>
        <translation>Non tutti i file esistono</translation>
    </message>
    <message>
        <source>Not all files exist, do you want to resume the project?</source>
        <translation>Non tutti i file esistono. Riprendere il progetto?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULLA</translation>
    </message>
    <message>
        <source>RESUME</source>
        <translation>RIPRENDI</translation>
    </message>
</context>
<context>
    <name>velmora::RenderFailure</name>
    <message>
        <source>The disk that holds the folder "%1" is full.</source>
        <translation>Il disco della cartella "%1" è pieno.</translation>
    </message>
    <message>
        <source>The photo "%1" %2.</source>
        <translation>La foto "%1" %2.</translation>
    </message>
    <message>
        <source>The sound file "%1" cannot be used: %2</source>
        <translation>Il file audio "%1" non può essere usato: %2</translation>
    </message>
</context>
<context>
    <name>velmora::RenderJob</name>
    <message>
        <source>The slideshow has no slides.</source>
        <translation>La presentazione non ha diapositive.</translation>
    </message>
    <message>
        <source>A video of %1x%2 pixels is too small; each side needs at least %3.</source>
        <translation>Un video di %1x%2 pixel è troppo piccolo; ogni lato deve averne almeno %3.</translation>
    </message>
</context>
<context>
    <name>velmora::RenderReport</name>
    <message>
        <source>Cancelled. No video was written.</source>
        <translation>Annullato. Nessun video è stato scritto.</translation>
    </message>
    <message>
        <source>The video is ready: %1</source>
        <translation>Il video è pronto: %1</translation>
    </message>
    <message>
        <source>The project is ready: %1</source>
        <translation>Il progetto è pronto: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SetNameDialog</name>
    <message>
        <source>Set video title</source>
        <translation>Imposta titolo del video</translation>
    </message>
</context>
<context>
    <name>velmora::SettingsWidget</name>
    <message>
        <source>Original quality</source>
        <translation>Qualità originale</translation>
    </message>
    <message>
        <source>Plays everywhere</source>
        <translation>Funziona ovunque</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>version %1 - %2</source>
        <translation>versione %1 - %2</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Scegli la cartella</translation>
    </message>
    <message>
        <source>The settings hold until the program ends, because they cannot be written to the file %1.</source>
        <translation>Le impostazioni valgono solo fino alla chiusura del programma, perché non possono essere scritte nel file %1.</translation>
    </message>
</context>
<context>
    <name>velmora::SlideActions</name>
    <message>
        <source>Move up</source>
        <translation>Sposta su</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Sposta giù</translation>
    </message>
    <message>
        <source>Rotate photo</source>
        <translation>Ruota foto</translation>
    </message>
    <message>
        <source>Rotate photo to the left</source>
        <translation>Ruota foto a sinistra</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Mescola foto</translation>
    </message>
    <message>
        <source>Sort photos by name</source>
        <translation>Ordina foto per nome</translation>
    </message>
    <message>
        <source>Sort photos by date taken</source>
        <translation>Ordina foto per data di scatto</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>Modifica testo</translation>
    </message>
    <message>
        <source>Edit text style of all slides</source>
        <translation>Modifica lo stile di tutti i testi</translation>
    </message>
    <message>
        <source>Set time</source>
        <translation>Imposta tempo</translation>
    </message>
    <message>
        <source>Set transition</source>
        <translation>Imposta transizione</translation>
    </message>
    <message>
        <source>Preview transition</source>
        <translation>Anteprima transizione</translation>
    </message>
    <message>
        <source>Relocate...</source>
        <translation>Ritrova ...</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Mostra di nuovo la diapositiva del titolo</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Elimina diapositive</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Svuota elenco</translation>
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
        <translation>La foto "%1" non può essere letta.</translation>
    </message>
</context>
<context>
    <name>velmora::SlideSorter</name>
    <message>
        <source>Reading the dates of the photos</source>
        <translation>Lettura delle date delle foto</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTable</name>
    <message>
        <source>Drag &amp; drop photos and folders to add them here</source>
        <translation>Trascinare qui foto e cartelle per aggiungerle</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTableModel</name>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Transizione</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>The title slide is not part of the video.</source>
        <translation>La diapositiva del titolo non fa parte del video.</translation>
    </message>
    <message>
        <source>The photo %1 does not exist any more.</source>
        <translation>La foto %1 non esiste più.</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTextDelegate</name>
    <message>
        <source>Relocate...</source>
        <translation>Ritrova ...</translation>
    </message>
    <message>
        <source>Edit the text of this slide (F2)</source>
        <translation>Modifica il testo di questa diapositiva (F2)</translation>
    </message>
    <message>
        <source>Delete this slide (Del)</source>
        <translation>Elimina questa diapositiva (Canc)</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Mostra di nuovo la diapositiva del titolo</translation>
    </message>
    <message>
        <source>Choose the file again</source>
        <translation>Scegli di nuovo il file</translation>
    </message>
    <message>
        <source>Not part of the video</source>
        <translation>Non fa parte del video</translation>
    </message>
    <message>
        <source>Title slide</source>
        <translation>Diapositiva del titolo</translation>
    </message>
    <message>
        <source>Missing: %1</source>
        <translation>Mancante: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SlidesPage</name>
    <message>
        <source>Drag &amp; drop photos and folders to add them here</source>
        <translation>Trascinare qui foto e cartelle per aggiungerle</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Ordina foto</translation>
    </message>
    <message>
        <source>Clear list (%1)</source>
        <translation>Svuota elenco (%1)</translation>
    </message>
    <message>
        <source>Various</source>
        <translation>Vari</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>Totale: %1</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Immagini (%1)</translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>Dov'è %1?</translation>
    </message>
    <message>
        <source>Photos: %1</source>
        <translation>Foto: %1</translation>
    </message>
    <message>
        <source>Running time: %1</source>
        <translation>Durata: %1</translation>
    </message>
    <message>
        <source>Audio files: %1</source>
        <translation>File audio: %1</translation>
    </message>
    <message>
        <source>Resolution: %1</source>
        <translation>Risoluzione: %1</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Totale</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CHIUDI</translation>
    </message>
</context>
<context>
    <name>velmora::SoundChecker</name>
    <message>
        <source>Nothing in it can be played.</source>
        <translation>Non contiene nulla che si possa riprodurre.</translation>
    </message>
</context>
<context>
    <name>velmora::SoundTrack</name>
    <message>
        <source>The music file '%1' cannot be read: %2</source>
        <translation>Il file musicale "%1" non può essere letto: %2</translation>
    </message>
</context>
<context>
    <name>velmora::Spinner</name>
    <message>
        <source>Preparing the preview</source>
        <translation>Preparazione dell'anteprima</translation>
    </message>
</context>
<context>
    <name>velmora::SplashScreen</name>
    <message>
        <source>Loading</source>
        <translation>Caricamento</translation>
    </message>
</context>
<context>
    <name>velmora::StartPage</name>
    <message>
        <source>Drop your photos here</source>
        <translation>Trascinare qui le foto</translation>
    </message>
    <message>
        <source>Photos and whole folders become a slideshow with transitions, titles and music.</source>
        <translation>Foto e intere cartelle diventano una presentazione con transizioni, titoli e musica.</translation>
    </message>
    <message>
        <source>Add Photo</source>
        <translation>Aggiungi foto</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Aggiungi cartella</translation>
    </message>
    <message>
        <source>Open a slideshow</source>
        <translation>Apri una presentazione</translation>
    </message>
    <message>
        <source>Try the sample photos</source>
        <translation>Prova le foto di esempio</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Continua con %1</translation>
    </message>
    <message>
        <source>Open the last slideshow again</source>
        <translation>Riapri l'ultima presentazione</translation>
    </message>
    <message>
        <source>Open a saved slideshow</source>
        <translation>Apri una presentazione salvata</translation>
    </message>
    <message>
        <source>Add photos to the slideshow</source>
        <translation>Aggiungi foto alla presentazione</translation>
    </message>
    <message>
        <source>Add all photos of a folder</source>
        <translation>Aggiungi tutte le foto di una cartella</translation>
    </message>
    <message>
        <source>Begin a slideshow with the photos that come with the program</source>
        <translation>Inizia una presentazione con le foto incluse nel programma</translation>
    </message>
</context>
<context>
    <name>velmora::TextEditWidget</name>
    <message>
        <source>Edit style for 'Starter' slide</source>
        <translation>Modifica lo stile della diapositiva "Inizio"</translation>
    </message>
    <message>
        <source>Edit style for All slides</source>
        <translation>Modifica lo stile di tutte le diapositive</translation>
    </message>
    <message>
        <source>Edit style for '%1' slide</source>
        <translation>Modifica lo stile della diapositiva "%1"</translation>
    </message>
    <message>
        <source>Text here</source>
        <translation>Testo qui</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Scarta le modifiche</translation>
    </message>
    <message>
        <source>The changes of this text have not been saved. Discard them?</source>
        <translation>Le modifiche a questo testo non sono state salvate. Scartarle?</translation>
    </message>
    <message>
        <source>DISCARD</source>
        <translation>SCARTA</translation>
    </message>
    <message>
        <source>KEEP EDITING</source>
        <translation>CONTINUA</translation>
    </message>
</context>
<context>
    <name>velmora::TitleBar</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Ingrandisci</translation>
    </message>
</context>
<context>
    <name>velmora::ToolRow</name>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Back to the slideshow</source>
        <translation>Torna alla presentazione</translation>
    </message>
    <message>
        <source>Add photos to the slideshow</source>
        <translation>Aggiungi foto alla presentazione</translation>
    </message>
    <message>
        <source>Add all photos of a folder</source>
        <translation>Aggiungi tutte le foto di una cartella</translation>
    </message>
    <message>
        <source>Show the slideshows made so far</source>
        <translation>Mostra le presentazioni fatte finora</translation>
    </message>
    <message>
        <source>Change how new slideshows begin</source>
        <translation>Cambia come iniziano le nuove presentazioni</translation>
    </message>
    <message>
        <source>Help and keyboard shortcuts</source>
        <translation>Guida e scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>Last slideshow: %1</source>
        <translation>Ultima presentazione: %1</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Apri cartella</translation>
    </message>
</context>
<context>
    <name>velmora::ToolRunner</name>
    <message>
        <source>It could not be started.</source>
        <translation>Impossibile avviarlo.</translation>
    </message>
    <message>
        <source>It ended unexpectedly.</source>
        <translation>È terminato in modo imprevisto.</translation>
    </message>
    <message>
        <source>It ended with code %1.</source>
        <translation>È terminato con il codice %1.</translation>
    </message>
</context>
<context>
    <name>velmora::UpdateDialog</name>
    <message>
        <source>Update available!</source>
        <translation>Aggiornamento disponibile!</translation>
    </message>
    <message>
        <source>New version of the programm is avalible:</source>
        <translation>È disponibile una nuova versione del programma:</translation>
    </message>
    <message>
        <source>Read about</source>
        <translation>Informazioni sulle</translation>
    </message>
    <message>
        <source>new feauters</source>
        <translation>novità</translation>
    </message>
</context>
<context>
    <name>velmora::UploadController</name>
    <message>
        <source>Uploading to %1 is not configured. The addresses and the registration of the service belong into the file '%2'.</source>
        <translation>Il caricamento su %1 non è configurato. Gli indirizzi e la registrazione del servizio vanno nel file "%2".</translation>
    </message>
</context>
<context>
    <name>velmora::UploadServiceMenu</name>
    <message>
        <source>Services</source>
        <translation>Servizi</translation>
    </message>
</context>
<context>
    <name>velmora::UploadSuccessWindow</name>
    <message>
        <source>Shows the file in the browser</source>
        <translation>Mostra il file nel browser</translation>
    </message>
</context>
<context>
    <name>velmora::VideoPlayerWidget</name>
    <message>
        <source>Add photos to see the slideshow here</source>
        <translation>Aggiungere foto per vedere qui la presentazione</translation>
    </message>
    <message>
        <source>Preview transition to slide %1</source>
        <translation>Transizione alla diapositiva %1</translation>
    </message>
    <message>
        <source>Full preview</source>
        <translation>Anteprima completa</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Pausa (Spazio)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Riproduci (Spazio)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Sound on (M)</source>
        <translation>Attiva audio (M)</translation>
    </message>
    <message>
        <source>Mute (M)</source>
        <translation>Muto (M)</translation>
    </message>
</context>
<context>
    <name>velmora::VideoUtil</name>
    <message>
        <source>The disk is full.</source>
        <translation>Il disco è pieno.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annullato.</translation>
    </message>
    <message>
        <source>The encoder failed: %1</source>
        <translation>Il codificatore non è riuscito: %1</translation>
    </message>
    <message>
        <source>The encoder wrote nothing to %1.</source>
        <translation>Il codificatore non ha scritto nulla in %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 non può essere scritto.</translation>
    </message>
    <message>
        <source>There are no frames to encode.</source>
        <translation>Non ci sono immagini da codificare.</translation>
    </message>
    <message>
        <source>The part %1 of the video is missing.</source>
        <translation>Manca la parte %1 del video.</translation>
    </message>
    <message>
        <source>The program "transcoder" is missing beside this program.</source>
        <translation>Accanto a questo programma manca il programma "transcoder".</translation>
    </message>
</context>
<context>
    <name>velmora::WavTranscoder</name>
    <message>
        <source>The music file '%1' cannot be read: %2</source>
        <translation>Il file musicale "%1" non può essere letto: %2</translation>
    </message>
    <message>
        <source>The file '%1' cannot be written: %2</source>
        <translation>Il file "%1" non può essere scritto: %2</translation>
    </message>
    <message>
        <source>Nothing in it can be played.</source>
        <translation>Non contiene nulla che si possa riprodurre.</translation>
    </message>
</context>
<context>
    <name>velmora::WavWriter</name>
    <message>
        <source>The older file of that name cannot be replaced.</source>
        <translation>Il vecchio file con questo nome non può essere sostituito.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Il disco è pieno.</translation>
    </message>
</context>
<context>
    <name>velmora::WebLoginDialog</name>
    <message>
        <source>Sign in</source>
        <translation>Accedi</translation>
    </message>
    <message>
        <source>Sign-in page of the service</source>
        <translation>Pagina di accesso del servizio</translation>
    </message>
    <message>
        <source>Authorization error</source>
        <translation>Errore di autorizzazione</translation>
    </message>
</context>
<context>
    <name>velmora::WorkerMain</name>
    <message>
        <source>A render worker needs --session_id, --cache and --request, and nothing else.</source>
        <translation>Un processo di creazione richiede --session_id, --cache e --request, e nient'altro.</translation>
    </message>
    <message>
        <source>The request "%1" cannot be used: %2</source>
        <translation>La richiesta "%1" non può essere usata: %2</translation>
    </message>
</context>
<context>
    <name>velmora::UploaderFactory</name>
    <message>
        <source>This copy of the program cannot upload videos: it was built without the component that signs in to services (Qt NetworkAuth).</source>
        <translation>Questa copia del programma non può caricare video: è stata compilata senza il componente che accede ai servizi (Qt NetworkAuth).</translation>
    </message>
</context>
<context>
    <name>velmora::DiscWriter</name>
    <message>
        <source>This copy of the program cannot burn discs on this system.</source>
        <translation>Questa copia del programma non può masterizzare dischi su questo sistema.</translation>
    </message>
</context>
</TS>