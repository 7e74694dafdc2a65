<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>AnswerPage</name>
    <message>
        <source>Service has been connected</source>
        <translation>Usługa została połączona</translation>
    </message>
    <message>
        <source>successfully</source>
        <translation>pomyślnie</translation>
    </message>
    <message>
        <source>Service has not been</source>
        <translation>Usługa nie została</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>połączona</translation>
    </message>
    <message>
        <source>You can close this page</source>
        <translation>Możesz zamknąć tę stronę</translation>
    </message>
</context>
<context>
    <name>AudioListWidget</name>
    <message>
        <source>Audio</source>
        <translation>Dźwięk</translation>
    </message>
    <message>
        <source>Stop adding</source>
        <translation>Przerwij dodawanie</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Lista odtwarzania</translation>
    </message>
    <message>
        <source>Add Audio</source>
        <translation>Dodaj dźwięk</translation>
    </message>
    <message>
        <source>Add Audio (Ctrl+M)</source>
        <translation>Dodaj dźwięk (Ctrl+M)</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Pętla</translation>
    </message>
    <message>
        <source>Repeats the playlist until the slideshow ends.</source>
        <translation>Powtarza listę odtwarzania do końca pokazu.</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Przesunięcie</translation>
    </message>
    <message>
        <source>Choose offset of selected audio file. Negative offset means audio file will start playing immediately, shifted by specified time. Positive offset means audio file will start playing from the specified time.</source>
        <translation>Wybierz przesunięcie zaznaczonego pliku dźwiękowego. Przy ujemnym przesunięciu plik zaczyna grać od razu, przesunięty o podany czas. Przy dodatnim przesunięciu plik jest odtwarzany od podanego czasu.</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Zanikanie</translation>
    </message>
    <message>
        <source>Choose duration of fade effect for audio track. 0 means no fade.</source>
        <translation>Wybierz czas zanikania ścieżki dźwiękowej. 0 oznacza brak zanikania.</translation>
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
        <translation>Napęd:</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Napęd</translation>
    </message>
    <message>
        <source>Look for drives and discs again</source>
        <translation>Ponownie wyszukaj napędy i płyty</translation>
    </message>
    <message>
        <source>Disc title:</source>
        <translation>Tytuł płyty:</translation>
    </message>
    <message>
        <source>Disc title</source>
        <translation>Tytuł płyty</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Nazwa pliku:</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Finalize disk</source>
        <translation>Zamknij płytę</translation>
    </message>
    <message>
        <source>Finalization means that the disc cannot have any additional data written to it afterwards. This option is needed by most DVD-players.</source>
        <translation>Po zamknięciu na płycie nie można zapisać kolejnych danych. Większość odtwarzaczy DVD wymaga tej opcji.</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>NAGRAJ DVD</translation>
    </message>
    <message>
        <source>Disk is not empty</source>
        <translation>Płyta nie jest pusta</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>Erase the disc, then burn</source>
        <translation>Wymaż płytę, potem nagraj</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Add the video to what is on the disc</source>
        <translation>Dodaj film do zawartości płyty</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Go back without burning</source>
        <translation>Wróć bez nagrywania</translation>
    </message>
    <message>
        <source>Writing disk</source>
        <translation>Zapisywanie płyty</translation>
    </message>
    <message>
        <source>Progress of writing</source>
        <translation>Postęp zapisu</translation>
    </message>
    <message>
        <source>Elapsed time:</source>
        <translation>Czas, który upłynął:</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANULUJ</translation>
    </message>
    <message>
        <source>Stop writing</source>
        <translation>Przerwij zapis</translation>
    </message>
    <message>
        <source>Burning result:</source>
        <translation>Wynik nagrywania:</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ZAMKNIJ</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>Creation error</source>
        <translation>Błąd tworzenia</translation>
    </message>
</context>
<context>
    <name>CreatePanel</name>
    <message>
        <source>Filename:</source>
        <translation>Nazwa pliku:</translation>
    </message>
    <message>
        <source>Name of the video file</source>
        <translation>Nazwa pliku filmu</translation>
    </message>
    <message>
        <source>Format of the video file</source>
        <translation>Format pliku filmu</translation>
    </message>
    <message>
        <source>PREVIEW</source>
        <translation>PODGLĄD</translation>
    </message>
    <message>
        <source>CREATE</source>
        <translation>UTWÓRZ</translation>
    </message>
    <message>
        <source>Progress of the video</source>
        <translation>Postęp filmu</translation>
    </message>
    <message>
        <source>Time elapsed: 0:00:00</source>
        <translation>Upłynęło: 0:00:00</translation>
    </message>
    <message>
        <source>Time Remaining: 0:00:00</source>
        <translation>Pozostało: 0:00:00</translation>
    </message>
</context>
<context>
    <name>DesktopNotification</name>
    <message>
        <source>Show the window</source>
        <translation>Pokaż okno</translation>
    </message>
</context>
<context>
    <name>DiscFileName</name>
    <message>
        <source>Enter a file name.</source>
        <translation>Podaj nazwę pliku.</translation>
    </message>
    <message>
        <source>The file name is too long for a disc.</source>
        <translation>Nazwa pliku jest za długa dla płyty.</translation>
    </message>
    <message>
        <source>The file name must not contain any of / \ : * ? " &lt; &gt; |</source>
        <translation>Nazwa pliku nie może zawierać żadnego z tych znaków: / \ : * ? " &lt; &gt; |</translation>
    </message>
</context>
<context>
    <name>FinalWindow</name>
    <message>
        <source>Conversion has been completed</source>
        <translation>Konwersja została zakończona</translation>
    </message>
    <message>
        <source>Congratulations to all files in your folder, open it to view them!</source>
        <translation>Gratulacje! Wszystkie pliki są w folderze. Otwórz go, aby je obejrzeć!</translation>
    </message>
    <message>
        <source>OPEN FOLDER</source>
        <translation>OTWÓRZ FOLDER</translation>
    </message>
    <message>
        <source>Upload the video to this service</source>
        <translation>Prześlij film do tej usługi</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>NAGRAJ DVD</translation>
    </message>
    <message>
        <source>Burn the video to a disc</source>
        <translation>Nagraj film na płytę</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ZAMKNIJ</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>The history has become too large.</source>
        <translation>Historia jest zbyt duża.</translation>
    </message>
</context>
<context>
    <name>HistoryWidget</name>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>CLEAR HISTORY</source>
        <translation>WYCZYŚĆ HISTORIĘ</translation>
    </message>
    <message>
        <source>Finished videos</source>
        <translation>Gotowe filmy</translation>
    </message>
    <message>
        <source>UNDO</source>
        <translation>COFNIJ</translation>
    </message>
    <message>
        <source>Bring back what was removed (Ctrl+Z)</source>
        <translation>Przywróć to, co usunięto (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Close this note</source>
        <translation>Zamknij tę notatkę</translation>
    </message>
    <message>
        <source>RESUME PROJECT</source>
        <translation>WZNÓW PROJEKT</translation>
    </message>
    <message>
        <source>Open the project of the selected video in the editor</source>
        <translation>Otwórz projekt zaznaczonego filmu w edytorze</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>NAGRAJ DVD</translation>
    </message>
    <message>
        <source>Burn the selected video to a disc</source>
        <translation>Nagraj zaznaczony film na płytę</translation>
    </message>
    <message>
        <source>UPLOAD</source>
        <translation>PRZEŚLIJ</translation>
    </message>
    <message>
        <source>Upload the selected video to a service</source>
        <translation>Prześlij zaznaczony film do usługi</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>Postęp przesyłania</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANULUJ</translation>
    </message>
    <message>
        <source>Connection ...</source>
        <translation>Łączenie ...</translation>
    </message>
    <message>
        <source>Sign in on the page that was opened in your browser.</source>
        <translation>Zaloguj się na stronie otwartej w przeglądarce.</translation>
    </message>
</context>
<context>
    <name>HttpAnswer</name>
    <message>
        <source>The service cannot be reached.</source>
        <translation>Usługa jest nieosiągalna.</translation>
    </message>
    <message>
        <source>The connection to the service was lost.</source>
        <translation>Połączenie z usługą zostało utracone.</translation>
    </message>
    <message>
        <source>The connection to the service is not secure.</source>
        <translation>Połączenie z usługą nie jest bezpieczne.</translation>
    </message>
    <message>
        <source>The service does not answer.</source>
        <translation>Usługa nie odpowiada.</translation>
    </message>
    <message>
        <source>The answer of the service cannot be understood.</source>
        <translation>Odpowiedź usługi jest niezrozumiała.</translation>
    </message>
</context>
<context>
    <name>ImageLoader</name>
    <message>
        <source>is not a picture that can be read</source>
        <translation>nie jest czytelnym obrazem</translation>
    </message>
    <message>
        <source>is damaged or incomplete</source>
        <translation>jest uszkodzone lub niekompletne</translation>
    </message>
    <message>
        <source>does not exist</source>
        <translation>nie istnieje</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>jest folderem</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>nie daje się otworzyć</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>jest puste</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>jest za duże</translation>
    </message>
    <message>
        <source>is too large (%1 x %2 pixels)</source>
        <translation>jest za duże (%1 x %2 pikseli)</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>The file is larger than %1 MB.</source>
        <translation>Plik jest większy niż %1 MB.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>To nie jest zwykły plik.</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Open Folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>The folder "%1" does not exist any more.</source>
        <translation>Folder „%1” już nie istnieje.</translation>
    </message>
    <message>
        <source>There is no program to show the folder "%1".</source>
        <translation>Brak programu, który pokaże folder „%1”.</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Obrazy (%1)</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Dodaj folder</translation>
    </message>
</context>
<context>
    <name>MediaSuffixes</name>
    <message>
        <source>The folder cannot be read.</source>
        <translation>Nie można odczytać folderu.</translation>
    </message>
</context>
<context>
    <name>ProjectName</name>
    <message>
        <source>Project name should not contain any of these symbols: *:[]{}\/!</source>
        <translation>Nazwa projektu nie może zawierać żadnego z tych znaków: *:[]{}\/!</translation>
    </message>
</context>
<context>
    <name>SetNameForm</name>
    <message>
        <source>Title</source>
        <translation>Tytuł</translation>
    </message>
    <message>
        <source>Title of the video</source>
        <translation>Tytuł filmu</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANULUJ</translation>
    </message>
    <message>
        <source>UPDATE</source>
        <translation>ZMIEŃ</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Close the settings</source>
        <translation>Zamknij ustawienia</translation>
    </message>
    <message>
        <source>Close without saving (Esc)</source>
        <translation>Zamknij bez zapisywania (Esc)</translation>
    </message>
    <message>
        <source>Default Settings for slideshow:</source>
        <translation>Domyślne ustawienia pokazu:</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>How long a new slide is shown</source>
        <translation>Jak długo widać nowy slajd</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Przejście</translation>
    </message>
    <message>
        <source>How a new slide comes in</source>
        <translation>Jak pojawia się nowy slajd</translation>
    </message>
    <message>
        <source>Transition Time</source>
        <translation>Czas przejścia</translation>
    </message>
    <message>
        <source>How long each transition lasts</source>
        <translation>Jak długo trwa każde przejście</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Rozdzielczość</translation>
    </message>
    <message>
        <source>The size of the picture of a new slideshow</source>
        <translation>Rozmiar obrazu nowego pokazu</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Dopasuj</translation>
    </message>
    <message>
        <source>Enlarge small photos so that they fill the picture</source>
        <translation>Powiększ małe zdjęcia tak, aby wypełniły obraz</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Oryginalne proporcje</translation>
    </message>
    <message>
        <source>Keep the shape of the photos instead of stretching them</source>
        <translation>Zachowaj kształt zdjęć zamiast je rozciągać</translation>
    </message>
    <message>
        <source>Default audio settings:</source>
        <translation>Domyślne ustawienia dźwięku:</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Przesunięcie</translation>
    </message>
    <message>
        <source>When the music begins</source>
        <translation>Kiedy zaczyna się muzyka</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Zanikanie</translation>
    </message>
    <message>
        <source>How long the music takes to come and go</source>
        <translation>Jak długo muzyka narasta i zanika</translation>
    </message>
    <message>
        <source>Export options:</source>
        <translation>Opcje eksportu:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>The folder that videos are written to</source>
        <translation>Folder, w którym zapisywane są filmy</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Wybierz folder</translation>
    </message>
    <message>
        <source>Output profile</source>
        <translation>Profil wyjściowy</translation>
    </message>
    <message>
        <source>Original quality keeps every detail. Plays everywhere makes smaller files that televisions and phones play too.</source>
        <translation>„Oryginalna jakość” zachowuje każdy szczegół. „Odtwarzanie wszędzie” tworzy mniejsze pliki, które odtworzą też telewizory i telefony.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>The language of the program</source>
        <translation>Język programu</translation>
    </message>
    <message>
        <source>Increase speed of generation</source>
        <translation>Przyspiesz tworzenie</translation>
    </message>
    <message>
        <source>Make two slides at the same time</source>
        <translation>Twórz dwa slajdy jednocześnie</translation>
    </message>
    <message>
        <source>Check for the updates automatically</source>
        <translation>Automatycznie sprawdzaj aktualizacje</translation>
    </message>
    <message>
        <source>Send anonymous usage statistics</source>
        <translation>Wysyłaj anonimowe statystyki użycia</translation>
    </message>
    <message>
        <source>Helps to improve the program. No names, photos or texts are sent.</source>
        <translation>Pomaga ulepszać program. Nazwy, zdjęcia i teksty nie są wysyłane.</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANULUJ</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>ZAPISZ</translation>
    </message>
    <message>
        <source>Save the settings (Ctrl+Enter)</source>
        <translation>Zapisz ustawienia (Ctrl+Enter)</translation>
    </message>
</context>
<context>
    <name>SlidesPage</name>
    <message>
        <source>Slides</source>
        <translation>Slajdy</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Przesuń w górę</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Przesuń w dół</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Wymieszaj zdjęcia</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Sortuj zdjęcia</translation>
    </message>
    <message>
        <source>Rotate photo</source>
        <translation>Obróć zdjęcie</translation>
    </message>
    <message>
        <source>Rotate photo to the left</source>
        <translation>Obróć zdjęcie w lewo</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Usuń slajdy</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Pokaż znów slajd tytułowy</translation>
    </message>
    <message>
        <source>Change all:</source>
        <translation>Zmień wszystkie:</translation>
    </message>
    <message>
        <source>Time of every slide</source>
        <translation>Czas wszystkich slajdów</translation>
    </message>
    <message>
        <source>Transition of every slide</source>
        <translation>Przejście wszystkich slajdów</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Razem</translation>
    </message>
    <message>
        <source>Show what the slideshow is made of</source>
        <translation>Pokaż, z czego składa się pokaz</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Wyczyść listę</translation>
    </message>
</context>
<context>
    <name>TextEditWidget</name>
    <message>
        <source>Back to the slides (Esc)</source>
        <translation>Wróć do slajdów (Esc)</translation>
    </message>
    <message>
        <source>Back to the slides</source>
        <translation>Wróć do slajdów</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Tekst:</translation>
    </message>
    <message>
        <source>Text here</source>
        <translation>Tutaj tekst</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Also the title slide</source>
        <translation>Także slajd tytułowy</translation>
    </message>
    <message>
        <source>Text settings:</source>
        <translation>Ustawienia tekstu:</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Czcionka</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kolor</translation>
    </message>
    <message>
        <source>Bg Color</source>
        <translation>Tło</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Efekt</translation>
    </message>
    <message>
        <source>Effect with which the text appears</source>
        <translation>Efekt, z jakim pojawia się tekst</translation>
    </message>
    <message>
        <source>Show how the text appears (F5)</source>
        <translation>Pokaż, jak pojawia się tekst (F5)</translation>
    </message>
    <message>
        <source>Show how the text appears</source>
        <translation>Pokaż, jak pojawia się tekst</translation>
    </message>
    <message>
        <source>Text position:</source>
        <translation>Pozycja tekstu:</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>Pozycja tekstu</translation>
    </message>
    <message>
        <source>Picture of the slide</source>
        <translation>Obraz slajdu</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Tło:</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Tło</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANULUJ</translation>
    </message>
    <message>
        <source>Leave the slide as it was (Esc)</source>
        <translation>Zostaw slajd bez zmian (Esc)</translation>
    </message>
    <message>
        <source>SAVE TEXT</source>
        <translation>ZAPISZ TEKST</translation>
    </message>
    <message>
        <source>Save (Ctrl+Enter)</source>
        <translation>Zapisz (Ctrl+Enter)</translation>
    </message>
</context>
<context>
    <name>ToolRow</name>
    <message>
        <source>Add Photo</source>
        <translation>Dodaj zdjęcie</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Dodaj folder</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Open the folder of the last video</source>
        <translation>Otwórz folder ostatniego filmu</translation>
    </message>
</context>
<context>
    <name>TransitionType</name>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Losowe</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Pikselizacja</translation>
    </message>
    <message>
        <source>Mosaic Spiral In</source>
        <translation>Mozaika spiralna do środka</translation>
    </message>
    <message>
        <source>Mosaic Spiral Out</source>
        <translation>Mozaika spiralna na zewnątrz</translation>
    </message>
    <message>
        <source>Mosaic Strips</source>
        <translation>Mozaika pasów</translation>
    </message>
    <message>
        <source>Mosaic Wall</source>
        <translation>Mozaika ściana</translation>
    </message>
    <message>
        <source>Checkerboard</source>
        <translation>Szachownica</translation>
    </message>
    <message>
        <source>Rotate Single Out</source>
        <translation>Obrót na zewnątrz</translation>
    </message>
    <message>
        <source>Rotate Single In</source>
        <translation>Obrót do środka</translation>
    </message>
    <message>
        <source>Flip Over</source>
        <translation>Odwrócenie</translation>
    </message>
    <message>
        <source>Wipe Left To Right</source>
        <translation>Ścieranie z lewej na prawą</translation>
    </message>
    <message>
        <source>Wipe Right To Left</source>
        <translation>Ścieranie z prawej na lewą</translation>
    </message>
    <message>
        <source>Wipe Top To Bottom</source>
        <translation>Ścieranie z góry na dół</translation>
    </message>
    <message>
        <source>Wipe Bottom To Top</source>
        <translation>Ścieranie z dołu do góry</translation>
    </message>
    <message>
        <source>Wipe Vertical In</source>
        <translation>Ścieranie pionowe do środka</translation>
    </message>
    <message>
        <source>Wipe Vertical Out</source>
        <translation>Ścieranie pionowe na zewnątrz</translation>
    </message>
    <message>
        <source>Stretch Horizontal</source>
        <translation>Rozciąganie w poziomie</translation>
    </message>
    <message>
        <source>Stretch Vertical</source>
        <translation>Rozciąganie w pionie</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Przybliżanie</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Oddalanie</translation>
    </message>
    <message>
        <source>Slide From Bottom</source>
        <translation>Wsuwanie z dołu</translation>
    </message>
    <message>
        <source>Slide From Left</source>
        <translation>Wsuwanie z lewej</translation>
    </message>
    <message>
        <source>Slide From Right</source>
        <translation>Wsuwanie z prawej</translation>
    </message>
    <message>
        <source>Slide From Top</source>
        <translation>Wsuwanie z góry</translation>
    </message>
    <message>
        <source>Slide From Top Left</source>
        <translation>Wsuwanie z lewego górnego rogu</translation>
    </message>
    <message>
        <source>Fade To Black</source>
        <translation>Przejście do czerni</translation>
    </message>
    <message>
        <source>Cross fade</source>
        <translation>Przenikanie</translation>
    </message>
    <message>
        <source>Fade To White</source>
        <translation>Przejście do bieli</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Nieznane</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>DOWNLOAD</source>
        <translation>POBIERZ</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANULUJ</translation>
    </message>
</context>
<context>
    <name>UploadFailWindow</name>
    <message>
        <source>Upload stopped with error</source>
        <translation>Przesyłanie przerwane z powodu błędu</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ZAMKNIJ</translation>
    </message>
</context>
<context>
    <name>UploadSuccessWindow</name>
    <message>
        <source>Uploading has been completed</source>
        <translation>Przesyłanie zostało zakończone</translation>
    </message>
    <message>
        <source>Congratulations! Your file upload to %1 was successful!</source>
        <translation>Gratulacje! Plik został przesłany do %1!</translation>
    </message>
    <message>
        <source>OPEN</source>
        <translation>OTWÓRZ</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ZAMKNIJ</translation>
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
        <translation>Obraz filmu</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Position in the video (arrow keys)</source>
        <translation>Pozycja w filmie (klawisze strzałek)</translation>
    </message>
    <message>
        <source>Position in the video</source>
        <translation>Pozycja w filmie</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Długość</translation>
    </message>
</context>
<context>
    <name>velmora::VideoDialog</name>
    <message>
        <source>Pause (Space)</source>
        <translation>Wstrzymaj (Spacja)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Odtwórz (Spacja)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Odtwórz</translation>
    </message>
</context>
<context>
    <name>VideoPlayerWidget</name>
    <message>
        <source>Full preview</source>
        <translation>Pełny podgląd</translation>
    </message>
    <message>
        <source>Preview picture</source>
        <translation>Obraz podglądu</translation>
    </message>
    <message>
        <source>Position in the preview (arrow keys)</source>
        <translation>Pozycja w podglądzie (klawisze strzałek)</translation>
    </message>
    <message>
        <source>Position in the preview</source>
        <translation>Pozycja w podglądzie</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Odtwórz (Spacja)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Odtwórz</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Długość</translation>
    </message>
    <message>
        <source>Mute (M)</source>
        <translation>Wycisz (M)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Wycisz</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Głośność</translation>
    </message>
    <message>
        <source>Full screen (F)</source>
        <translation>Pełny ekran (F)</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Pełny ekran</translation>
    </message>
    <message>
        <source>Preview slideshow</source>
        <translation>Podgląd pokazu</translation>
    </message>
    <message>
        <source>Play the whole slideshow</source>
        <translation>Odtwórz cały pokaz</translation>
    </message>
    <message>
        <source>Repeat transition</source>
        <translation>Powtórz przejście</translation>
    </message>
    <message>
        <source>Play the transition to the selected slide</source>
        <translation>Odtwórz przejście do zaznaczonego slajdu</translation>
    </message>
</context>
<context>
    <name>VideoSettings</name>
    <message>
        <source>Video</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Rozdzielczość</translation>
    </message>
    <message>
        <source>Choose resolution of your slideshow</source>
        <translation>Wybierz rozdzielczość pokazu</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Transition duration</source>
        <translation>Czas przejścia</translation>
    </message>
    <message>
        <source>Choose length of transition effects. Affects all transitions in current slideshow</source>
        <translation>Wybierz długość efektów przejścia. Dotyczy wszystkich przejść w bieżącym pokazie</translation>
    </message>
    <message>
        <source>If you want images to be resized to fit the screen leave the checkbox checked. Otheriwse they stay original size.</source>
        <translation>Pozostaw zaznaczone, aby obrazy były dopasowane do ekranu. W przeciwnym razie zachowają oryginalny rozmiar.</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Dopasuj</translation>
    </message>
    <message>
        <source>If you want to keep original aspect ratio of the photos leave checkbox checked. Otherwise they will be stretched to chosen resolution.</source>
        <translation>Pozostaw zaznaczone, aby zachować proporcje zdjęć. W przeciwnym razie zostaną rozciągnięte do wybranej rozdzielczości.</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Oryginalne proporcje</translation>
    </message>
</context>
<context>
    <name>velmora::AudioDecoder</name>
    <message>
        <source>There is no sound in it.</source>
        <translation>Nie zawiera dźwięku.</translation>
    </message>
    <message>
        <source>The sound format "%1" is not supported.</source>
        <translation>Format dźwięku „%1” nie jest obsługiwany.</translation>
    </message>
</context>
<context>
    <name>velmora::AudioFilesController</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Nie można odczytać %1.</translation>
    </message>
    <message>
        <source>%1, cannot be read</source>
        <translation>%1, nie można odczytać</translation>
    </message>
    <message>
        <source>%1, length %2</source>
        <translation>%1, długość %2</translation>
    </message>
    <message>
        <source>Audio Files (%1)</source>
        <translation>Pliki dźwiękowe (%1)</translation>
    </message>
</context>
<context>
    <name>velmora::AudioListWidget</name>
    <message>
        <source>Adding: %1</source>
        <translation>Dodawanie: %1</translation>
    </message>
    <message>
        <source>Adding...</source>
        <translation>Dodawanie ...</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Odsłuch</translation>
    </message>
    <message>
        <source>%1 cannot be played: %2</source>
        <translation>Nie można odtworzyć %1: %2</translation>
    </message>
    <message>
        <source>Drag &amp; drop audio files to create a playlist</source>
        <translation>Przeciągnij tu pliki dźwiękowe, aby utworzyć listę odtwarzania</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Przesuń w górę</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Przesuń w dół</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Stop listening</source>
        <translation>Przerwij odsłuch</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>Posłuchaj</translation>
    </message>
    <message>
        <source>Total: %1 %2 (%3)</source>
        <translation>Razem: %1 %2 (%3)</translation>
    </message>
    <message>
        <source>track</source>
        <translation>utworów</translation>
    </message>
    <message>
        <source>tracks</source>
        <translation>utworów</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>Adding audio files</source>
        <translation>Dodawanie plików dźwiękowych</translation>
    </message>
    <message>
        <source>Not all audio files have been added</source>
        <translation>Nie wszystkie pliki dźwiękowe zostały dodane</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ZAMKNIJ</translation>
    </message>
</context>
<context>
    <name>velmora::AudioNoFocusRectangleDelegate</name>
    <message>
        <source>missing</source>
        <translation>brak pliku</translation>
    </message>
    <message>
        <source>Listen (Space)</source>
        <translation>Posłuchaj (Spacja)</translation>
    </message>
    <message>
        <source>Stop (Space)</source>
        <translation>Zatrzymaj (Spacja)</translation>
    </message>
    <message>
        <source>Delete (Del)</source>
        <translation>Usuń (Del)</translation>
    </message>
</context>
<context>
    <name>velmora::BackgroundPicker</name>
    <message>
        <source>Background %1</source>
        <translation>Tło %1</translation>
    </message>
</context>
<context>
    <name>velmora::BaseOauth2Uploader</name>
    <message>
        <source>source file not found</source>
        <translation>nie znaleziono pliku źródłowego</translation>
    </message>
    <message>
        <source>can't open source file for reading</source>
        <translation>nie można otworzyć pliku źródłowego do odczytu</translation>
    </message>
    <message>
        <source>Operation was canceled</source>
        <translation>Operacja została anulowana</translation>
    </message>
    <message>
        <source>Authorization error</source>
        <translation>Błąd autoryzacji</translation>
    </message>
    <message>
        <source>There is no program to show the sign-in page.</source>
        <translation>Brak programu, który pokaże stronę logowania.</translation>
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
        <translation>Wolne</translation>
    </message>
    <message>
        <source>Burn DVD</source>
        <translation>Nagraj DVD</translation>
    </message>
    <message>
        <source>My slideshow</source>
        <translation>Mój pokaz</translation>
    </message>
    <message>
        <source>Looking for drives…</source>
        <translation>Wyszukiwanie napędów…</translation>
    </message>
    <message>
        <source>No drive that can write discs was found.</source>
        <translation>Nie znaleziono napędu, który nagrywa płyty.</translation>
    </message>
    <message>
        <source>Looking at the disc…</source>
        <translation>Sprawdzanie płyty…</translation>
    </message>
    <message>
        <source>Media disk is not ready</source>
        <translation>Płyta nie jest gotowa</translation>
    </message>
    <message>
        <source>There is not enough disc space for the slideshow</source>
        <translation>Na płycie nie ma dość miejsca na pokaz</translation>
    </message>
    <message>
        <source>Disc is not empty. Do you want to erase disc before burning?
Press "Yes" if you want to erase disc before burning.
Press "No" if you want just to burn (add) new files to the disc.
Press "Cancel" to cancel the operation.</source>
        <translation>Płyta nie jest pusta. Czy wymazać ją przed nagraniem?
„Tak” wymazuje płytę przed nagraniem.
„Nie” tylko nagrywa (dodaje) nowe pliki na płycie.
„Anuluj” anuluje operację.</translation>
    </message>
    <message>
        <source>Disc is not empty. Do you want to erase disc before burning?
Press "Yes" if you want to erase disc before burning.
Press "Cancel" to cancel the operation.</source>
        <translation>Płyta nie jest pusta. Czy wymazać ją przed nagraniem?
„Tak” wymazuje płytę przed nagraniem.
„Anuluj” anuluje operację.</translation>
    </message>
    <message>
        <source>A disc whose writing is stopped can become unusable. Stop writing?</source>
        <translation>Płyta, której zapis zostanie przerwany, może stać się bezużyteczna. Przerwać zapis?</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>PRZERWIJ</translation>
    </message>
    <message>
        <source>GO ON</source>
        <translation>DALEJ</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>Powodzenie</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>The video is on the disc.</source>
        <translation>Film jest na płycie.</translation>
    </message>
    <message>
        <source>The video was not written to the disc. The file on your computer is as it was.</source>
        <translation>Film nie został zapisany na płycie. Plik na komputerze pozostał bez zmian.</translation>
    </message>
</context>
<context>
    <name>velmora::BusyNote</name>
    <message>
        <source>CANCEL</source>
        <translation>ANULUJ</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Stop and leave everything as it was</source>
        <translation>Przerwij i zostaw wszystko bez zmian</translation>
    </message>
</context>
<context>
    <name>velmora::ColorBox</name>
    <message>
        <source>White</source>
        <translation>Biały</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>Jasnoszary</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>Ciemnoszary</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Czarny</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Ciemnoczerwony</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Czerwony</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Pomarańczowy</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Złoty</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Żółty</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Piaskowy</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Brązowy</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>Limonkowy</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zielony</translation>
    </message>
    <message>
        <source>Aqua</source>
        <translation>Turkusowy</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>Błękitny</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Niebieski</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Fioletowy</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Różowy</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Inny ...</translation>
    </message>
</context>
<context>
    <name>velmora::ComboBoxItemDelegate</name>
    <message>
        <source>Choose for this slide, or for all selected ones</source>
        <translation>Wybierz dla tego slajdu albo dla wszystkich zaznaczonych</translation>
    </message>
</context>
<context>
    <name>velmora::Composer</name>
    <message>
        <source>The render program %1 could not be started: %2</source>
        <translation>Nie można uruchomić programu renderującego %1: %2</translation>
    </message>
    <message>
        <source>The render program ended unexpectedly.</source>
        <translation>Program renderujący nieoczekiwanie zakończył działanie.</translation>
    </message>
</context>
<context>
    <name>velmora::ConcatList</name>
    <message>
        <source>The file name "%1" contains a line break.</source>
        <translation>Nazwa pliku „%1” zawiera znak nowego wiersza.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Nie można zapisać %1: %2</translation>
    </message>
</context>
<context>
    <name>velmora::CreatePanel</name>
    <message>
        <source>Make the video</source>
        <translation>Utwórz film</translation>
    </message>
    <message>
        <source>Play the whole slideshow</source>
        <translation>Odtwórz cały pokaz</translation>
    </message>
    <message>
        <source>The video cannot be made</source>
        <translation>Nie można utworzyć filmu</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ZAMKNIJ</translation>
    </message>
    <message>
        <source>The video is ready, but it could not be entered in the history: %1</source>
        <translation>Film jest gotowy, ale nie można było dodać go do historii: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressPage</name>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Time Elapsed: %1</source>
        <translation>Upłynęło: %1</translation>
    </message>
    <message>
        <source>Time Remaining: %1</source>
        <translation>Pozostało: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>nieznany</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>Finishing the video</source>
        <translation>Kończenie filmu</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Przygotowanie</translation>
    </message>
    <message>
        <source>Making the video (%1x)</source>
        <translation>Tworzenie filmu (%1x)</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
</context>
<context>
    <name>velmora::OutputCheck</name>
    <message>
        <source>Filename</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>The video needs a file name.</source>
        <translation>Film musi mieć nazwę pliku.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist and cannot be made.</source>
        <translation>Folder %1 nie istnieje i nie można go utworzyć.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to: %2</source>
        <translation>Nie można zapisywać w folderze %1: %2</translation>
    </message>
    <message>
        <source>The video cannot be saved</source>
        <translation>Nie można zapisać filmu</translation>
    </message>
    <message>
        <source>Please choose another folder in the settings.</source>
        <translation>Wybierz inny folder w ustawieniach.</translation>
    </message>
    <message>
        <source>Replace the video</source>
        <translation>Zastąp film</translation>
    </message>
    <message>
        <source>The file %1 exists already. Do you want to replace it?</source>
        <translation>Plik %1 już istnieje. Czy go zastąpić?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANULUJ</translation>
    </message>
    <message>
        <source>REPLACE</source>
        <translation>ZASTĄP</translation>
    </message>
</context>
<context>
    <name>velmora::RenderedProject</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Nie można utworzyć folderu %1.</translation>
    </message>
</context>
<context>
    <name>velmora::DocumentActions</name>
    <message>
        <source>Unsaved changes</source>
        <translation>Niezapisane zmiany</translation>
    </message>
    <message>
        <source>Do you want to save the changes to "%1"?</source>
        <translation>Czy zapisać zmiany w „%1”?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANULUJ</translation>
    </message>
    <message>
        <source>DON'T SAVE</source>
        <translation>NIE ZAPISUJ</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>ZAPISZ</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Zamknij program</translation>
    </message>
    <message>
        <source>A video is being made. If you close the program now, it is lost.</source>
        <translation>Trwa tworzenie filmu. Jeśli zamkniesz program teraz, film przepadnie.</translation>
    </message>
    <message>
        <source>A video is being uploaded. If you close the program now, it is not completed.</source>
        <translation>Trwa przesyłanie filmu. Jeśli zamkniesz program teraz, nie zostanie ukończone.</translation>
    </message>
    <message>
        <source>STOP AND CLOSE</source>
        <translation>PRZERWIJ I ZAMKNIJ</translation>
    </message>
    <message>
        <source>GO ON</source>
        <translation>DALEJ</translation>
    </message>
    <message>
        <source>Restore the slideshow</source>
        <translation>Przywróć pokaz</translation>
    </message>
    <message>
        <source>The program ended before "%1" was saved. Do you want to restore it?</source>
        <translation>Program zakończył działanie przed zapisaniem „%1”. Czy przywrócić?</translation>
    </message>
    <message>
        <source>DISCARD</source>
        <translation>ODRZUĆ</translation>
    </message>
    <message>
        <source>RESTORE</source>
        <translation>PRZYWRÓĆ</translation>
    </message>
    <message>
        <source>Open a slideshow</source>
        <translation>Otwórz pokaz</translation>
    </message>
    <message>
        <source>The file "%1" cannot be opened as a slideshow.</source>
        <translation>Pliku „%1” nie można otworzyć jako pokazu.</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ZAMKNIJ</translation>
    </message>
    <message>
        <source>Slideshows (*.json)</source>
        <translation>Pokazy slajdów (*.json)</translation>
    </message>
    <message>
        <source>Save the slideshow</source>
        <translation>Zapisz pokaz</translation>
    </message>
    <message>
        <source>The slideshow cannot be saved to "%1".</source>
        <translation>Nie można zapisać pokazu jako „%1”.</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxClient::ApiRequest</name>
    <message>
        <source>Unknown error</source>
        <translation>Nieznany błąd</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxClient::DropboxUploader</name>
    <message>
        <source>source file not found</source>
        <translation>nie znaleziono pliku źródłowego</translation>
    </message>
    <message>
        <source>can't open source file for reading</source>
        <translation>nie można otworzyć pliku źródłowego do odczytu</translation>
    </message>
    <message>
        <source>The answer of the service cannot be understood.</source>
        <translation>Odpowiedź usługi jest niezrozumiała.</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxUpload</name>
    <message>
        <source>Operation was canceled</source>
        <translation>Operacja została anulowana</translation>
    </message>
</context>
<context>
    <name>velmora::EditorSide</name>
    <message>
        <source>Preview and settings</source>
        <translation>Podgląd i ustawienia</translation>
    </message>
</context>
<context>
    <name>velmora::EncoderAdvice</name>
    <message>
        <source>FFmpeg was not found. Please install it (on Debian and Ubuntu: sudo apt install ffmpeg).</source>
        <translation>Nie znaleziono FFmpeg. Zainstaluj go (w Debianie i Ubuntu: sudo apt install ffmpeg).</translation>
    </message>
    <message>
        <source>FFmpeg %1 (%2) is too old. Please install version 4.4 or newer (on Debian and Ubuntu: sudo apt install ffmpeg).</source>
        <translation>FFmpeg %1 (%2) jest za stary. Zainstaluj wersję 4.4 lub nowszą (w Debianie i Ubuntu: sudo apt install ffmpeg).</translation>
    </message>
    <message>
        <source>FFmpeg was not found. It comes with Velmora: please install Velmora again, or put ffmpeg.exe into its folder.</source>
        <translation>Nie znaleziono FFmpeg. Jest on częścią Velmory: zainstaluj Velmorę ponownie albo umieść ffmpeg.exe w jej folderze.</translation>
    </message>
    <message>
        <source>FFmpeg %1 (%2) is too old. Please install Velmora again, or put ffmpeg.exe of version 4.4 or newer into its folder.</source>
        <translation>FFmpeg %1 (%2) jest za stary. Zainstaluj Velmorę ponownie albo umieść ffmpeg.exe w wersji 4.4 lub nowszej w jej folderze.</translation>
    </message>
</context>
<context>
    <name>velmora::FinalWindow</name>
    <message>
        <source>Open file Error</source>
        <translation>Błąd otwierania pliku</translation>
    </message>
    <message>
        <source>File '%1' not found</source>
        <translation>Nie znaleziono pliku „%1”</translation>
    </message>
    <message>
        <source>There is no program to show the folder of '%1'.</source>
        <translation>Brak programu, który pokaże folder z plikiem „%1”.</translation>
    </message>
</context>
<context>
    <name>velmora::FrameWriter</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Nie można zapisać %1: %2</translation>
    </message>
    <message>
        <source>A frame of %1x%2 pixels cannot be compressed.</source>
        <translation>Nie można skompresować obrazu %1x%2 pikseli.</translation>
    </message>
</context>
<context>
    <name>velmora::GeneratorThread</name>
    <message>
        <source>No folder for temporary files can be made as "%1": %2</source>
        <translation>Nie można utworzyć folderu tymczasowego „%1”: %2</translation>
    </message>
</context>
<context>
    <name>velmora::HelpBubble</name>
    <message>
        <source>Help for %1</source>
        <translation>Pomoc: %1</translation>
    </message>
</context>
<context>
    <name>velmora::HelpDialog</name>
    <message>
        <source>Create the video, or save a text</source>
        <translation>Utwórz film lub zapisz tekst</translation>
    </message>
    <message>
        <source>Preview the whole slideshow</source>
        <translation>Podgląd całego pokazu</translation>
    </message>
    <message>
        <source>Play or pause the preview</source>
        <translation>Odtwórz lub wstrzymaj podgląd</translation>
    </message>
    <message>
        <source>Mute the preview</source>
        <translation>Wycisz podgląd</translation>
    </message>
    <message>
        <source>Leave without saving</source>
        <translation>Wyjdź bez zapisywania</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>From photos to a video</source>
        <translation>Od zdjęć do filmu</translation>
    </message>
    <message>
        <source>1. Add photos or folders, with the buttons or by dropping them on the window.</source>
        <translation>1. Dodaj zdjęcia lub foldery przyciskami albo upuszczając je na okno.</translation>
    </message>
    <message>
        <source>2. Put them in order by dragging, and choose times and transitions.</source>
        <translation>2. Ułóż je przez przeciąganie, wybierz czasy i przejścia.</translation>
    </message>
    <message>
        <source>3. Add texts to slides and music to the slideshow, and look at the preview.</source>
        <translation>3. Dodaj teksty i muzykę, a potem obejrzyj podgląd.</translation>
    </message>
    <message>
        <source>4. Choose a name and a format, and press CREATE.</source>
        <translation>4. Wybierz nazwę i format, a potem naciśnij UTWÓRZ.</translation>
    </message>
    <message>
        <source>5. Watch, upload or burn the video from the history.</source>
        <translation>5. Obejrzyj, prześlij lub nagraj film z historii.</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Skróty klawiszowe</translation>
    </message>
    <message>
        <source>In the editor</source>
        <translation>W edytorze</translation>
    </message>
    <message>
        <source>OPEN MANUAL</source>
        <translation>OTWÓRZ PODRĘCZNIK</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ZAMKNIJ</translation>
    </message>
    <message>
        <source>Go back in the preview</source>
        <translation>Przewiń podgląd do tyłu</translation>
    </message>
    <message>
        <source>Go forward in the preview</source>
        <translation>Przewiń podgląd do przodu</translation>
    </message>
    <message>
        <source>Show the preview on the full screen</source>
        <translation>Pokaż podgląd na pełnym ekranie</translation>
    </message>
    <message>
        <source>Play the effect of a text</source>
        <translation>Odtwórz efekt tekstu</translation>
    </message>
</context>
<context>
    <name>velmora::HelpPages</name>
    <message>
        <source>Home page</source>
        <translation>Strona domowa</translation>
    </message>
    <message>
        <source>No home page is set up in this copy of the program.</source>
        <translation>W tej kopii programu nie ustawiono strony domowej.</translation>
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
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Rozdzielczość</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Czas trwania</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Działanie</translation>
    </message>
    <message>
        <source>Sort by this column</source>
        <translation>Sortuj według tej kolumny</translation>
    </message>
    <message>
        <source>Sorts the list</source>
        <translation>Sortuje listę</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryListView</name>
    <message>
        <source>Your finished slideshows appear here.</source>
        <translation>Tutaj pojawią się gotowe pokazy.</translation>
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
        <translation>Otwórz projekt w edytorze</translation>
    </message>
    <message>
        <source>Play the video</source>
        <translation>Odtwórz film</translation>
    </message>
    <message>
        <source>Burn the video to a disc</source>
        <translation>Nagraj film na płytę</translation>
    </message>
    <message>
        <source>Remove the video from the history</source>
        <translation>Usuń film z historii</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>usunięty</translation>
    </message>
    <message>
        <source>The video file does not exist any more.</source>
        <translation>Plik filmu już nie istnieje.</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryWidget</name>
    <message>
        <source>Open file Error</source>
        <translation>Błąd otwierania pliku</translation>
    </message>
    <message>
        <source>File '%1' not found</source>
        <translation>Nie znaleziono pliku „%1”</translation>
    </message>
    <message>
        <source>There is no program to play the file '%1'.</source>
        <translation>Brak programu, który odtworzy plik „%1”.</translation>
    </message>
    <message>
        <source>Remove from the history</source>
        <translation>Usuń z historii</translation>
    </message>
    <message>
        <source>Remove "%1" from the history?</source>
        <translation>Usunąć „%1” z historii?</translation>
    </message>
    <message>
        <source>Also move the video file to the trash</source>
        <translation>Przenieś też plik filmu do kosza</translation>
    </message>
    <message>
        <source>REMOVE</source>
        <translation>USUŃ</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANULUJ</translation>
    </message>
    <message>
        <source>Clear the history</source>
        <translation>Wyczyść historię</translation>
    </message>
    <message numerus="yes">
        <source>Remove all videos (%n) from the history?</source>
        <translation><numerusform>Usunąć %n film z historii?</numerusform><numerusform>Usunąć wszystkie %n filmy z historii?</numerusform><numerusform>Usunąć wszystkie %n filmów z historii?</numerusform></translation>
    </message>
    <message>
        <source>Also move the video files to the trash</source>
        <translation>Przenieś też pliki filmów do kosza</translation>
    </message>
    <message>
        <source>REMOVE ALL</source>
        <translation>USUŃ WSZYSTKIE</translation>
    </message>
    <message>
        <source>Some video files could not be moved to the trash. They are where they were.</source>
        <translation>Niektórych plików nie udało się przenieść do kosza. Pozostały na swoim miejscu.</translation>
    </message>
    <message>
        <source>Some video files could not be taken out of the trash.</source>
        <translation>Niektórych plików nie udało się przywrócić z kosza.</translation>
    </message>
    <message numerus="yes">
        <source>Videos removed from the history: %n</source>
        <translation><numerusform>Usunięto z historii %n film.</numerusform><numerusform>Usunięto z historii %n filmy.</numerusform><numerusform>Usunięto z historii %n filmów.</numerusform></translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>The history could not be changed: %1</source>
        <translation>Nie można zmienić historii: %1</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <translation>Upłynęło: %1</translation>
    </message>
    <message>
        <source>Uploading %1 to %2</source>
        <translation>Przesyłanie %1 do %2</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>Połącz z %1</translation>
    </message>
</context>
<context>
    <name>velmora::InputCheck</name>
    <message numerus="yes">
        <source>%n more file(s) cannot be used.</source>
        <translation><numerusform>Nie można użyć jeszcze %n pliku.</numerusform><numerusform>Nie można użyć jeszcze %n plików.</numerusform><numerusform>Nie można użyć jeszcze %n plików.</numerusform></translation>
    </message>
    <message>
        <source>The video would replace "%1", of which it is made. Please choose another name.</source>
        <translation>Film zastąpiłby plik „%1”, z którego powstaje. Wybierz inną nazwę.</translation>
    </message>
</context>
<context>
    <name>velmora::InputFiles</name>
    <message>
        <source>The folder "%1" cannot be read.</source>
        <translation>Nie można odczytać folderu „%1”.</translation>
    </message>
    <message>
        <source>The photo "%1" does not exist.</source>
        <translation>Zdjęcie „%1” nie istnieje.</translation>
    </message>
    <message>
        <source>"%1" is not a photo of a known format.</source>
        <translation>„%1” nie jest zdjęciem w znanym formacie.</translation>
    </message>
    <message>
        <source>There are no photos in the folder "%1".</source>
        <translation>W folderze „%1” nie ma zdjęć.</translation>
    </message>
    <message>
        <source>The sound file "%1" does not exist.</source>
        <translation>Plik dźwiękowy „%1” nie istnieje.</translation>
    </message>
    <message>
        <source>"%1" is not a sound file of a known format.</source>
        <translation>„%1” nie jest plikiem dźwiękowym w znanym formacie.</translation>
    </message>
    <message>
        <source>There are no sound files in the folder "%1".</source>
        <translation>W folderze „%1” nie ma plików dźwiękowych.</translation>
    </message>
</context>
<context>
    <name>velmora::MainMenu</name>
    <message>
        <source>New slideshow</source>
        <translation>Nowy pokaz</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Otwórz ...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation>Zapisz jako ...</translation>
    </message>
    <message>
        <source>Set video title...</source>
        <translation>Ustaw tytuł filmu ...</translation>
    </message>
    <message>
        <source>Add Photo</source>
        <translation>Dodaj zdjęcie</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Dodaj folder</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Pełny ekran</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Skróty klawiszowe</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Strona domowa</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
</context>
<context>
    <name>velmora::MainView</name>
    <message>
        <source>The video is ready</source>
        <translation>Film jest gotowy</translation>
    </message>
    <message>
        <source>The upload has failed</source>
        <translation>Przesyłanie nie powiodło się</translation>
    </message>
    <message>
        <source>The upload is complete</source>
        <translation>Przesyłanie zakończone</translation>
    </message>
    <message>
        <source>Another video is being uploaded.</source>
        <translation>Trwa przesyłanie innego filmu.</translation>
    </message>
</context>
<context>
    <name>velmora::MainWindowWidget</name>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Dźwięk</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>undo or redo, and what</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Add Audio</source>
        <translation>Dodaj dźwięk</translation>
    </message>
    <message>
        <source>Photos are still being added</source>
        <translation>Trwa jeszcze dodawanie zdjęć</translation>
    </message>
    <message>
        <source>Audio files are still being added</source>
        <translation>Trwa jeszcze dodawanie plików dźwiękowych</translation>
    </message>
    <message>
        <source>The photos are still being sorted</source>
        <translation>Trwa jeszcze sortowanie zdjęć</translation>
    </message>
    <message>
        <source>A text is still being edited</source>
        <translation>Trwa jeszcze edycja tekstu</translation>
    </message>
</context>
<context>
    <name>velmora::MakeCommand</name>
    <message>
        <source>The project cannot be written as "%1": %2.</source>
        <translation>Nie można zapisać projektu jako „%1”: %2.</translation>
    </message>
    <message>
        <source>"velmoratool --help" lists what is possible.</source>
        <translation>„velmoratool --help” pokazuje, co jest możliwe.</translation>
    </message>
</context>
<context>
    <name>velmora::MakeOptions</name>
    <message>
        <source>"%1" is not a whole number from %2 to %3.</source>
        <translation>„%1” nie jest liczbą całkowitą od %2 do %3.</translation>
    </message>
    <message>
        <source>The text is empty.</source>
        <translation>Tekst jest pusty.</translation>
    </message>
    <message>
        <source>"%1" is not a size such as 1920x1080.</source>
        <translation>„%1” nie jest rozmiarem takim jak 1920x1080.</translation>
    </message>
    <message>
        <source>There is no transition "%1". There are: %2.</source>
        <translation>Nie ma przejścia „%1”. Są: %2.</translation>
    </message>
    <message>
        <source>"%1" is none of name, date and given.</source>
        <translation>„%1” to nie name, date ani given.</translation>
    </message>
    <message>
        <source>"%1" is neither original nor everywhere.</source>
        <translation>„%1” to nie original ani everywhere.</translation>
    </message>
    <message>
        <source>The name of the video "%1" must end in one of: %2.</source>
        <translation>Nazwa filmu „%1” musi kończyć się na: %2.</translation>
    </message>
    <message>
        <source>A file name is empty.</source>
        <translation>Nazwa pliku jest pusta.</translation>
    </message>
    <message>
        <source>"%1" belongs to no option.</source>
        <translation>„%1” nie należy do żadnej opcji.</translation>
    </message>
    <message>
        <source>There is no option --%1.</source>
        <translation>Nie ma opcji --%1.</translation>
    </message>
    <message>
        <source>--%1 takes no value.</source>
        <translation>--%1 nie przyjmuje wartości.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 wymaga wartości.</translation>
    </message>
    <message>
        <source>--%1 cannot be combined with --project, which has its own.</source>
        <translation>--%1 nie można łączyć z --project, który ma własną wartość.</translation>
    </message>
    <message>
        <source>--photos or --project is needed.</source>
        <translation>Potrzebne jest --photos lub --project.</translation>
    </message>
    <message>
        <source>--output is needed.</source>
        <translation>Potrzebne jest --output.</translation>
    </message>
    <message>
        <source>--stretch and --original-size exclude each other.</source>
        <translation>--stretch i --original-size wykluczają się.</translation>
    </message>
</context>
<context>
    <name>velmora::MakeProject</name>
    <message>
        <source>The project "%1" cannot be used: %2</source>
        <translation>Nie można użyć projektu „%1”: %2</translation>
    </message>
</context>
<context>
    <name>velmora::MediaFileInfo</name>
    <message>
        <source>There is neither sound nor video in it.</source>
        <translation>Nie zawiera dźwięku ani obrazu.</translation>
    </message>
</context>
<context>
    <name>velmora::MediaInput</name>
    <message>
        <source>The file does not exist.</source>
        <translation>Plik nie istnieje.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>To nie jest plik.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Plik jest pusty.</translation>
    </message>
    <message>
        <source>It is damaged, or not a media file.</source>
        <translation>Jest uszkodzony lub nie jest plikiem multimedialnym.</translation>
    </message>
    <message>
        <source>It is a play list, not a media file.</source>
        <translation>To lista odtwarzania, a nie plik multimedialny.</translation>
    </message>
</context>
<context>
    <name>velmora::MessageDialog</name>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ZAMKNIJ</translation>
    </message>
</context>
<context>
    <name>velmora::MultipartUploader</name>
    <message>
        <source>can't open source file for reading</source>
        <translation>nie można otworzyć pliku źródłowego do odczytu</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Nieznany błąd</translation>
    </message>
    <message>
        <source>Error uploading video:%1</source>
        <translation>Błąd przesyłania filmu:%1</translation>
    </message>
</context>
<context>
    <name>velmora::OutputTarget</name>
    <message>
        <source>The project does not name a video file to write.</source>
        <translation>Projekt nie podaje pliku filmu do zapisania.</translation>
    </message>
    <message>
        <source>The finished video could not be put in place as "%1": %2.</source>
        <translation>Nie można umieścić gotowego filmu jako „%1”: %2.</translation>
    </message>
    <message>
        <source>The video was kept as "%1".</source>
        <translation>Film zachowano jako „%1”.</translation>
    </message>
    <message>
        <source>The video's name "%1..." is too long. Please choose a shorter one.</source>
        <translation>Nazwa filmu „%1...” jest za długa. Wybierz krótszą.</translation>
    </message>
    <message>
        <source>The folder "%1" for the video does not exist.</source>
        <translation>Folder „%1” na film nie istnieje.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": it is not a folder.</source>
        <translation>Nie można zapisać filmu w „%1”: to nie jest folder.</translation>
    </message>
    <message>
        <source>The video cannot be written as "%1": a folder has that name.</source>
        <translation>Nie można zapisać filmu jako „%1”: tak nazywa się folder.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": the disk is full.</source>
        <translation>Nie można zapisać filmu w „%1”: dysk jest pełny.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": %2.</source>
        <translation>Nie można zapisać filmu w „%1”: %2.</translation>
    </message>
    <message>
        <source>Another render is writing "%1" at this time.</source>
        <translation>Inny proces zapisuje teraz „%1”.</translation>
    </message>
</context>
<context>
    <name>velmora::PhotoImporter</name>
    <message>
        <source>does not exist</source>
        <translation>nie istnieje</translation>
    </message>
    <message>
        <source>is not a photo</source>
        <translation>nie jest zdjęciem</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nie daje się odczytać</translation>
    </message>
    <message>
        <source>holds no photos</source>
        <translation>nie zawiera zdjęć</translation>
    </message>
</context>
<context>
    <name>velmora::PhotoImports</name>
    <message numerus="yes">
        <source>Adding photos: %n looked at</source>
        <translation><numerusform>Dodawanie zdjęć: sprawdzono %n</numerusform><numerusform>Dodawanie zdjęć: sprawdzono %n</numerusform><numerusform>Dodawanie zdjęć: sprawdzono %n</numerusform></translation>
    </message>
    <message>
        <source>Adding photos</source>
        <translation>Dodawanie zdjęć</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files have not been added</source>
        <translation><numerusform>Nie dodano %n pliku</numerusform><numerusform>Nie dodano %n plików</numerusform><numerusform>Nie dodano %n plików</numerusform></translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ZAMKNIJ</translation>
    </message>
</context>
<context>
    <name>velmora::PositionPicker</name>
    <message>
        <source>Top left</source>
        <translation>U góry po lewej</translation>
    </message>
    <message>
        <source>Top centre</source>
        <translation>U góry pośrodku</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>U góry po prawej</translation>
    </message>
    <message>
        <source>Centre left</source>
        <translation>Pośrodku po lewej</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Środek</translation>
    </message>
    <message>
        <source>Centre right</source>
        <translation>Pośrodku po prawej</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>U dołu po lewej</translation>
    </message>
    <message>
        <source>Bottom centre</source>
        <translation>U dołu pośrodku</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>U dołu po prawej</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressText</name>
    <message>
        <source>%1 elapsed</source>
        <translation>upłynęło %1</translation>
    </message>
    <message>
        <source>%1 elapsed, %2 left</source>
        <translation>upłynęło %1, pozostało %2</translation>
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
        <translation>Dodaj zdjęcia</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Usuń slajdy</translation>
    </message>
    <message>
        <source>Hide the title slide</source>
        <translation>Ukryj slajd tytułowy</translation>
    </message>
    <message>
        <source>Move slides</source>
        <translation>Przenieś slajdy</translation>
    </message>
    <message>
        <source>Change time</source>
        <translation>Zmień czas</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Zmień przejście</translation>
    </message>
    <message>
        <source>Rotate photos</source>
        <translation>Obróć zdjęcia</translation>
    </message>
    <message>
        <source>Change caption</source>
        <translation>Zmień tekst</translation>
    </message>
    <message>
        <source>Change caption style</source>
        <translation>Zmień styl tekstu</translation>
    </message>
    <message>
        <source>Change title slide</source>
        <translation>Zmień slajd tytułowy</translation>
    </message>
    <message>
        <source>Add audio</source>
        <translation>Dodaj dźwięk</translation>
    </message>
    <message>
        <source>Delete audio</source>
        <translation>Usuń dźwięk</translation>
    </message>
    <message>
        <source>Move audio</source>
        <translation>Przenieś dźwięk</translation>
    </message>
    <message>
        <source>Change audio offset</source>
        <translation>Zmień przesunięcie dźwięku</translation>
    </message>
    <message>
        <source>Change audio fade</source>
        <translation>Zmień zanikanie dźwięku</translation>
    </message>
    <message>
        <source>Loop audio</source>
        <translation>Zapętl dźwięk</translation>
    </message>
    <message>
        <source>Change resolution</source>
        <translation>Zmień rozdzielczość</translation>
    </message>
    <message>
        <source>Change format</source>
        <translation>Zmień format</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Oryginalne proporcje</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Dopasuj</translation>
    </message>
    <message>
        <source>Change transition duration</source>
        <translation>Zmień czas przejścia</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Sortuj zdjęcia</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Wymieszaj zdjęcia</translation>
    </message>
    <message>
        <source>Relocate photos</source>
        <translation>Wskaż zdjęcia</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectFile</name>
    <message>
        <source>New project</source>
        <translation>Nowy projekt</translation>
    </message>
    <message>
        <source>The file is not a valid JSON document: %1.</source>
        <translation>Plik nie jest poprawnym dokumentem JSON: %1.</translation>
    </message>
    <message>
        <source>The file is not a project document.</source>
        <translation>Plik nie jest dokumentem projektu.</translation>
    </message>
    <message>
        <source>The project document cannot be used, faulty field: %1.</source>
        <translation>Nie można użyć dokumentu projektu, błędne pole: %1.</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectItemFirst</name>
    <message>
        <source>My slideshow</source>
        <translation>Mój pokaz</translation>
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
        <translation>Nie wszystkie pliki istnieją</translation>
    </message>
    <message>
        <source>Not all files exist, do you want to resume the project?</source>
        <translation>Nie wszystkie pliki istnieją. Czy wznowić projekt?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANULUJ</translation>
    </message>
    <message>
        <source>RESUME</source>
        <translation>WZNÓW</translation>
    </message>
</context>
<context>
    <name>velmora::RenderFailure</name>
    <message>
        <source>The disk that holds the folder "%1" is full.</source>
        <translation>Dysk z folderem „%1” jest pełny.</translation>
    </message>
    <message>
        <source>The photo "%1" %2.</source>
        <translation>Zdjęcie „%1” %2.</translation>
    </message>
    <message>
        <source>The sound file "%1" cannot be used: %2</source>
        <translation>Nie można użyć pliku dźwiękowego „%1”: %2</translation>
    </message>
</context>
<context>
    <name>velmora::RenderJob</name>
    <message>
        <source>The slideshow has no slides.</source>
        <translation>Pokaz nie ma slajdów.</translation>
    </message>
    <message>
        <source>A video of %1x%2 pixels is too small; each side needs at least %3.</source>
        <translation>Film %1x%2 pikseli jest za mały; każdy bok musi mieć co najmniej %3.</translation>
    </message>
</context>
<context>
    <name>velmora::RenderReport</name>
    <message>
        <source>Cancelled. No video was written.</source>
        <translation>Anulowano. Nie zapisano żadnego filmu.</translation>
    </message>
    <message>
        <source>The video is ready: %1</source>
        <translation>Film jest gotowy: %1</translation>
    </message>
    <message>
        <source>The project is ready: %1</source>
        <translation>Projekt jest gotowy: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SetNameDialog</name>
    <message>
        <source>Set video title</source>
        <translation>Ustaw tytuł filmu</translation>
    </message>
</context>
<context>
    <name>velmora::SettingsWidget</name>
    <message>
        <source>Original quality</source>
        <translation>Oryginalna jakość</translation>
    </message>
    <message>
        <source>Plays everywhere</source>
        <translation>Odtwarzanie wszędzie</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>version %1 - %2</source>
        <translation>wersja %1 - %2</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Wybierz folder</translation>
    </message>
    <message>
        <source>The settings hold until the program ends, because they cannot be written to the file %1.</source>
        <translation>Ustawienia obowiązują tylko do zamknięcia programu, ponieważ nie można ich zapisać w pliku %1.</translation>
    </message>
</context>
<context>
    <name>velmora::SlideActions</name>
    <message>
        <source>Move up</source>
        <translation>Przesuń w górę</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Przesuń w dół</translation>
    </message>
    <message>
        <source>Rotate photo</source>
        <translation>Obróć zdjęcie</translation>
    </message>
    <message>
        <source>Rotate photo to the left</source>
        <translation>Obróć zdjęcie w lewo</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Wymieszaj zdjęcia</translation>
    </message>
    <message>
        <source>Sort photos by name</source>
        <translation>Sortuj zdjęcia według nazwy</translation>
    </message>
    <message>
        <source>Sort photos by date taken</source>
        <translation>Sortuj zdjęcia według daty wykonania</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>Edytuj tekst</translation>
    </message>
    <message>
        <source>Edit text style of all slides</source>
        <translation>Edytuj styl tekstu wszystkich slajdów</translation>
    </message>
    <message>
        <source>Set time</source>
        <translation>Ustaw czas</translation>
    </message>
    <message>
        <source>Set transition</source>
        <translation>Ustaw przejście</translation>
    </message>
    <message>
        <source>Preview transition</source>
        <translation>Podgląd przejścia</translation>
    </message>
    <message>
        <source>Relocate...</source>
        <translation>Wskaż ...</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Pokaż znów slajd tytułowy</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Usuń slajdy</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Wyczyść listę</translation>
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
        <translation>Nie można odczytać zdjęcia „%1”.</translation>
    </message>
</context>
<context>
    <name>velmora::SlideSorter</name>
    <message>
        <source>Reading the dates of the photos</source>
        <translation>Odczytywanie dat zdjęć</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTable</name>
    <message>
        <source>Drag &amp; drop photos and folders to add them here</source>
        <translation>Przeciągnij tu zdjęcia i foldery, aby je dodać</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTableModel</name>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Przejście</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>The title slide is not part of the video.</source>
        <translation>Slajd tytułowy nie jest częścią filmu.</translation>
    </message>
    <message>
        <source>The photo %1 does not exist any more.</source>
        <translation>Zdjęcie %1 już nie istnieje.</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTextDelegate</name>
    <message>
        <source>Relocate...</source>
        <translation>Wskaż ...</translation>
    </message>
    <message>
        <source>Edit the text of this slide (F2)</source>
        <translation>Edytuj tekst tego slajdu (F2)</translation>
    </message>
    <message>
        <source>Delete this slide (Del)</source>
        <translation>Usuń ten slajd (Del)</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Pokaż znów slajd tytułowy</translation>
    </message>
    <message>
        <source>Choose the file again</source>
        <translation>Wybierz plik ponownie</translation>
    </message>
    <message>
        <source>Not part of the video</source>
        <translation>Nie jest częścią filmu</translation>
    </message>
    <message>
        <source>Title slide</source>
        <translation>Slajd tytułowy</translation>
    </message>
    <message>
        <source>Missing: %1</source>
        <translation>Brak: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SlidesPage</name>
    <message>
        <source>Drag &amp; drop photos and folders to add them here</source>
        <translation>Przeciągnij tu zdjęcia i foldery, aby je dodać</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Sortuj zdjęcia</translation>
    </message>
    <message>
        <source>Clear list (%1)</source>
        <translation>Wyczyść listę (%1)</translation>
    </message>
    <message>
        <source>Various</source>
        <translation>Różne</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>Razem: %1</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Obrazy (%1)</translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>Gdzie jest %1?</translation>
    </message>
    <message>
        <source>Photos: %1</source>
        <translation>Zdjęcia: %1</translation>
    </message>
    <message>
        <source>Running time: %1</source>
        <translation>Czas trwania: %1</translation>
    </message>
    <message>
        <source>Audio files: %1</source>
        <translation>Pliki dźwiękowe: %1</translation>
    </message>
    <message>
        <source>Resolution: %1</source>
        <translation>Rozdzielczość: %1</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Razem</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ZAMKNIJ</translation>
    </message>
</context>
<context>
    <name>velmora::SoundChecker</name>
    <message>
        <source>Nothing in it can be played.</source>
        <translation>Nic w tym pliku nie daje się odtworzyć.</translation>
    </message>
</context>
<context>
    <name>velmora::SoundTrack</name>
    <message>
        <source>The music file '%1' cannot be read: %2</source>
        <translation>Nie można odczytać pliku muzycznego „%1”: %2</translation>
    </message>
</context>
<context>
    <name>velmora::Spinner</name>
    <message>
        <source>Preparing the preview</source>
        <translation>Przygotowywanie podglądu</translation>
    </message>
</context>
<context>
    <name>velmora::SplashScreen</name>
    <message>
        <source>Loading</source>
        <translation>Wczytywanie</translation>
    </message>
</context>
<context>
    <name>velmora::StartPage</name>
    <message>
        <source>Drop your photos here</source>
        <translation>Upuść tutaj zdjęcia</translation>
    </message>
    <message>
        <source>Photos and whole folders become a slideshow with transitions, titles and music.</source>
        <translation>Zdjęcia i całe foldery stają się pokazem z przejściami, tytułami i muzyką.</translation>
    </message>
    <message>
        <source>Add Photo</source>
        <translation>Dodaj zdjęcie</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Dodaj folder</translation>
    </message>
    <message>
        <source>Open a slideshow</source>
        <translation>Otwórz pokaz</translation>
    </message>
    <message>
        <source>Try the sample photos</source>
        <translation>Wypróbuj przykładowe zdjęcia</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Kontynuuj: %1</translation>
    </message>
    <message>
        <source>Open the last slideshow again</source>
        <translation>Otwórz ponownie ostatni pokaz</translation>
    </message>
    <message>
        <source>Open a saved slideshow</source>
        <translation>Otwórz zapisany pokaz</translation>
    </message>
    <message>
        <source>Add photos to the slideshow</source>
        <translation>Dodaj zdjęcia do pokazu</translation>
    </message>
    <message>
        <source>Add all photos of a folder</source>
        <translation>Dodaj wszystkie zdjęcia z folderu</translation>
    </message>
    <message>
        <source>Begin a slideshow with the photos that come with the program</source>
        <translation>Zacznij pokaz ze zdjęciami dołączonymi do programu</translation>
    </message>
</context>
<context>
    <name>velmora::TextEditWidget</name>
    <message>
        <source>Edit style for 'Starter' slide</source>
        <translation>Edycja stylu slajdu „Start”</translation>
    </message>
    <message>
        <source>Edit style for All slides</source>
        <translation>Edycja stylu wszystkich slajdów</translation>
    </message>
    <message>
        <source>Edit style for '%1' slide</source>
        <translation>Edycja stylu slajdu „%1”</translation>
    </message>
    <message>
        <source>Text here</source>
        <translation>Tutaj tekst</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Odrzuć zmiany</translation>
    </message>
    <message>
        <source>The changes of this text have not been saved. Discard them?</source>
        <translation>Zmiany tego tekstu nie zostały zapisane. Odrzucić je?</translation>
    </message>
    <message>
        <source>DISCARD</source>
        <translation>ODRZUĆ</translation>
    </message>
    <message>
        <source>KEEP EDITING</source>
        <translation>EDYTUJ DALEJ</translation>
    </message>
</context>
<context>
    <name>velmora::TitleBar</name>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimalizuj</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maksymalizuj</translation>
    </message>
</context>
<context>
    <name>velmora::ToolRow</name>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Back to the slideshow</source>
        <translation>Wróć do pokazu</translation>
    </message>
    <message>
        <source>Add photos to the slideshow</source>
        <translation>Dodaj zdjęcia do pokazu</translation>
    </message>
    <message>
        <source>Add all photos of a folder</source>
        <translation>Dodaj wszystkie zdjęcia z folderu</translation>
    </message>
    <message>
        <source>Show the slideshows made so far</source>
        <translation>Pokaż dotychczasowe pokazy</translation>
    </message>
    <message>
        <source>Change how new slideshows begin</source>
        <translation>Zmień sposób rozpoczynania nowych pokazów</translation>
    </message>
    <message>
        <source>Help and keyboard shortcuts</source>
        <translation>Pomoc i skróty klawiszowe</translation>
    </message>
    <message>
        <source>Last slideshow: %1</source>
        <translation>Ostatni pokaz: %1</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Otwórz folder</translation>
    </message>
</context>
<context>
    <name>velmora::ToolRunner</name>
    <message>
        <source>It could not be started.</source>
        <translation>Nie można go uruchomić.</translation>
    </message>
    <message>
        <source>It ended unexpectedly.</source>
        <translation>Nieoczekiwanie zakończył działanie.</translation>
    </message>
    <message>
        <source>It ended with code %1.</source>
        <translation>Zakończył się kodem %1.</translation>
    </message>
</context>
<context>
    <name>velmora::UpdateDialog</name>
    <message>
        <source>Update available!</source>
        <translation>Dostępna aktualizacja!</translation>
    </message>
    <message>
        <source>New version of the programm is avalible:</source>
        <translation>Dostępna jest nowa wersja programu:</translation>
    </message>
    <message>
        <source>Read about</source>
        <translation>Przeczytaj o</translation>
    </message>
    <message>
        <source>new feauters</source>
        <translation>nowych funkcjach</translation>
    </message>
</context>
<context>
    <name>velmora::UploadController</name>
    <message>
        <source>Uploading to %1 is not configured. The addresses and the registration of the service belong into the file '%2'.</source>
        <translation>Przesyłanie do %1 nie jest skonfigurowane. Adresy i rejestracja usługi należą do pliku „%2”.</translation>
    </message>
</context>
<context>
    <name>velmora::UploadServiceMenu</name>
    <message>
        <source>Services</source>
        <translation>Usługi</translation>
    </message>
</context>
<context>
    <name>velmora::UploadSuccessWindow</name>
    <message>
        <source>Shows the file in the browser</source>
        <translation>Pokazuje plik w przeglądarce</translation>
    </message>
</context>
<context>
    <name>velmora::VideoPlayerWidget</name>
    <message>
        <source>Add photos to see the slideshow here</source>
        <translation>Dodaj zdjęcia, aby zobaczyć tu pokaz</translation>
    </message>
    <message>
        <source>Preview transition to slide %1</source>
        <translation>Podgląd przejścia do slajdu %1</translation>
    </message>
    <message>
        <source>Full preview</source>
        <translation>Pełny podgląd</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Wstrzymaj (Spacja)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Odtwórz (Spacja)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Odtwórz</translation>
    </message>
    <message>
        <source>Sound on (M)</source>
        <translation>Włącz dźwięk (M)</translation>
    </message>
    <message>
        <source>Mute (M)</source>
        <translation>Wycisz (M)</translation>
    </message>
</context>
<context>
    <name>velmora::VideoUtil</name>
    <message>
        <source>The disk is full.</source>
        <translation>Dysk jest pełny.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Anulowano.</translation>
    </message>
    <message>
        <source>The encoder failed: %1</source>
        <translation>Błąd kodera: %1</translation>
    </message>
    <message>
        <source>The encoder wrote nothing to %1.</source>
        <translation>Koder nie zapisał niczego w %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Nie można zapisać %1.</translation>
    </message>
    <message>
        <source>There are no frames to encode.</source>
        <translation>Nie ma klatek do zakodowania.</translation>
    </message>
    <message>
        <source>The part %1 of the video is missing.</source>
        <translation>Brakuje części %1 filmu.</translation>
    </message>
    <message>
        <source>The program "transcoder" is missing beside this program.</source>
        <translation>Obok tego programu brakuje programu „transcoder”.</translation>
    </message>
</context>
<context>
    <name>velmora::WavTranscoder</name>
    <message>
        <source>The music file '%1' cannot be read: %2</source>
        <translation>Nie można odczytać pliku muzycznego „%1”: %2</translation>
    </message>
    <message>
        <source>The file '%1' cannot be written: %2</source>
        <translation>Nie można zapisać pliku „%1”: %2</translation>
    </message>
    <message>
        <source>Nothing in it can be played.</source>
        <translation>Nic w tym pliku nie daje się odtworzyć.</translation>
    </message>
</context>
<context>
    <name>velmora::WavWriter</name>
    <message>
        <source>The older file of that name cannot be replaced.</source>
        <translation>Nie można zastąpić starszego pliku o tej nazwie.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Dysk jest pełny.</translation>
    </message>
</context>
<context>
    <name>velmora::WebLoginDialog</name>
    <message>
        <source>Sign in</source>
        <translation>Zaloguj się</translation>
    </message>
    <message>
        <source>Sign-in page of the service</source>
        <translation>Strona logowania usługi</translation>
    </message>
    <message>
        <source>Authorization error</source>
        <translation>Błąd autoryzacji</translation>
    </message>
</context>
<context>
    <name>velmora::WorkerMain</name>
    <message>
        <source>A render worker needs --session_id, --cache and --request, and nothing else.</source>
        <translation>Proces renderujący wymaga --session_id, --cache i --request, i niczego więcej.</translation>
    </message>
    <message>
        <source>The request "%1" cannot be used: %2</source>
        <translation>Nie można użyć żądania „%1”: %2</translation>
    </message>
</context>
<context>
    <name>velmora::UploaderFactory</name>
    <message>
        <source>This copy of the program cannot upload videos: it was built without the component that signs in to services (Qt NetworkAuth).</source>
        <translation>Ta kopia programu nie może przesyłać filmów: została zbudowana bez składnika, który loguje się do usług (Qt NetworkAuth).</translation>
    </message>
</context>
<context>
    <name>velmora::DiscWriter</name>
    <message>
        <source>This copy of the program cannot burn discs on this system.</source>
        <translation>Ta kopia programu nie może nagrywać płyt w tym systemie.</translation>
    </message>
</context>
</TS>