<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AnswerPage</name>
    <message>
        <source>Service has been connected</source>
        <translation>Сервис подключён</translation>
    </message>
    <message>
        <source>successfully</source>
        <translation>успешно</translation>
    </message>
    <message>
        <source>Service has not been</source>
        <translation>Сервис не</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>подключён</translation>
    </message>
    <message>
        <source>You can close this page</source>
        <translation>Эту страницу можно закрыть</translation>
    </message>
</context>
<context>
    <name>AudioListWidget</name>
    <message>
        <source>Audio</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>Stop adding</source>
        <translation>Прервать добавление</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Список воспроизведения</translation>
    </message>
    <message>
        <source>Add Audio</source>
        <translation>Добавить звук</translation>
    </message>
    <message>
        <source>Add Audio (Ctrl+M)</source>
        <translation>Добавить звук (Ctrl+M)</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Повтор</translation>
    </message>
    <message>
        <source>Repeats the playlist until the slideshow ends.</source>
        <translation>Повторяет список воспроизведения до конца слайд-шоу.</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Сдвиг</translation>
    </message>
    <message>
        <source>Choose offset of selected audio file. Negative offset means audio file will start playing immediately, shifted by specified time. Positive offset means audio file will start playing from the specified time.</source>
        <translation>Выберите сдвиг выбранного звукового файла. При отрицательном сдвиге файл начинает играть сразу, со сдвигом на указанное время. При положительном сдвиге файл играет с указанного времени.</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Затухание</translation>
    </message>
    <message>
        <source>Choose duration of fade effect for audio track. 0 means no fade.</source>
        <translation>Выберите длительность затухания звуковой дорожки. 0 — без затухания.</translation>
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
        <translation>Привод:</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Привод</translation>
    </message>
    <message>
        <source>Look for drives and discs again</source>
        <translation>Искать приводы и диски снова</translation>
    </message>
    <message>
        <source>Disc title:</source>
        <translation>Название диска:</translation>
    </message>
    <message>
        <source>Disc title</source>
        <translation>Название диска</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Имя файла:</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Finalize disk</source>
        <translation>Закрыть диск</translation>
    </message>
    <message>
        <source>Finalization means that the disc cannot have any additional data written to it afterwards. This option is needed by most DVD-players.</source>
        <translation>После закрытия на диск больше ничего нельзя записать. Это нужно большинству DVD-проигрывателей.</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>ЗАПИСАТЬ DVD</translation>
    </message>
    <message>
        <source>Disk is not empty</source>
        <translation>Диск не пуст</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>Erase the disc, then burn</source>
        <translation>Стереть диск, затем записать</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Add the video to what is on the disc</source>
        <translation>Добавить видео к содержимому диска</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Go back without burning</source>
        <translation>Вернуться без записи</translation>
    </message>
    <message>
        <source>Writing disk</source>
        <translation>Запись диска</translation>
    </message>
    <message>
        <source>Progress of writing</source>
        <translation>Ход записи</translation>
    </message>
    <message>
        <source>Elapsed time:</source>
        <translation>Прошло времени:</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ОТМЕНА</translation>
    </message>
    <message>
        <source>Stop writing</source>
        <translation>Остановить запись</translation>
    </message>
    <message>
        <source>Burning result:</source>
        <translation>Результат записи:</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ЗАКРЫТЬ</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>Creation error</source>
        <translation>Ошибка создания</translation>
    </message>
</context>
<context>
    <name>CreatePanel</name>
    <message>
        <source>Filename:</source>
        <translation>Имя файла:</translation>
    </message>
    <message>
        <source>Name of the video file</source>
        <translation>Имя видеофайла</translation>
    </message>
    <message>
        <source>Format of the video file</source>
        <translation>Формат видеофайла</translation>
    </message>
    <message>
        <source>PREVIEW</source>
        <translation>ПРОСМОТР</translation>
    </message>
    <message>
        <source>CREATE</source>
        <translation>СОЗДАТЬ</translation>
    </message>
    <message>
        <source>Progress of the video</source>
        <translation>Ход создания видео</translation>
    </message>
    <message>
        <source>Time elapsed: 0:00:00</source>
        <translation>Прошло: 0:00:00</translation>
    </message>
    <message>
        <source>Time Remaining: 0:00:00</source>
        <translation>Осталось: 0:00:00</translation>
    </message>
</context>
<context>
    <name>DesktopNotification</name>
    <message>
        <source>Show the window</source>
        <translation>Показать окно</translation>
    </message>
</context>
<context>
    <name>DiscFileName</name>
    <message>
        <source>Enter a file name.</source>
        <translation>Введите имя файла.</translation>
    </message>
    <message>
        <source>The file name is too long for a disc.</source>
        <translation>Имя файла слишком длинное для диска.</translation>
    </message>
    <message>
        <source>The file name must not contain any of / \ : * ? " &lt; &gt; |</source>
        <translation>Имя файла не должно содержать ни одного из символов: / \ : * ? " &lt; &gt; |</translation>
    </message>
</context>
<context>
    <name>FinalWindow</name>
    <message>
        <source>Conversion has been completed</source>
        <translation>Преобразование завершено</translation>
    </message>
    <message>
        <source>Congratulations to all files in your folder, open it to view them!</source>
        <translation>Поздравляем! Все файлы находятся в вашей папке, откройте её и посмотрите их!</translation>
    </message>
    <message>
        <source>OPEN FOLDER</source>
        <translation>ОТКРЫТЬ ПАПКУ</translation>
    </message>
    <message>
        <source>Upload the video to this service</source>
        <translation>Загрузить видео в этот сервис</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>ЗАПИСАТЬ DVD</translation>
    </message>
    <message>
        <source>Burn the video to a disc</source>
        <translation>Записать видео на диск</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ЗАКРЫТЬ</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>The history has become too large.</source>
        <translation>История стала слишком большой.</translation>
    </message>
</context>
<context>
    <name>HistoryWidget</name>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>CLEAR HISTORY</source>
        <translation>ОЧИСТИТЬ ИСТОРИЮ</translation>
    </message>
    <message>
        <source>Finished videos</source>
        <translation>Готовые видео</translation>
    </message>
    <message>
        <source>UNDO</source>
        <translation>ОТМЕНИТЬ</translation>
    </message>
    <message>
        <source>Bring back what was removed (Ctrl+Z)</source>
        <translation>Вернуть удалённое (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Close this note</source>
        <translation>Закрыть это сообщение</translation>
    </message>
    <message>
        <source>RESUME PROJECT</source>
        <translation>ПРОДОЛЖИТЬ ПРОЕКТ</translation>
    </message>
    <message>
        <source>Open the project of the selected video in the editor</source>
        <translation>Открыть проект выбранного видео в редакторе</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>ЗАПИСАТЬ DVD</translation>
    </message>
    <message>
        <source>Burn the selected video to a disc</source>
        <translation>Записать выбранное видео на диск</translation>
    </message>
    <message>
        <source>UPLOAD</source>
        <translation>ЗАГРУЗИТЬ</translation>
    </message>
    <message>
        <source>Upload the selected video to a service</source>
        <translation>Загрузить выбранное видео в сервис</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>Ход загрузки</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ОТМЕНА</translation>
    </message>
    <message>
        <source>Connection ...</source>
        <translation>Подключение ...</translation>
    </message>
    <message>
        <source>Sign in on the page that was opened in your browser.</source>
        <translation>Войдите на странице, открытой в вашем браузере.</translation>
    </message>
</context>
<context>
    <name>HttpAnswer</name>
    <message>
        <source>The service cannot be reached.</source>
        <translation>Сервис недоступен.</translation>
    </message>
    <message>
        <source>The connection to the service was lost.</source>
        <translation>Соединение с сервисом потеряно.</translation>
    </message>
    <message>
        <source>The connection to the service is not secure.</source>
        <translation>Соединение с сервисом небезопасно.</translation>
    </message>
    <message>
        <source>The service does not answer.</source>
        <translation>Сервис не отвечает.</translation>
    </message>
    <message>
        <source>The answer of the service cannot be understood.</source>
        <translation>Ответ сервиса непонятен.</translation>
    </message>
</context>
<context>
    <name>ImageLoader</name>
    <message>
        <source>is not a picture that can be read</source>
        <translation>не является читаемым изображением</translation>
    </message>
    <message>
        <source>is damaged or incomplete</source>
        <translation>повреждено или неполно</translation>
    </message>
    <message>
        <source>does not exist</source>
        <translation>не существует</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>является папкой</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>не открывается</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>пусто</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>слишком велико</translation>
    </message>
    <message>
        <source>is too large (%1 x %2 pixels)</source>
        <translation>слишком велико (%1 x %2 пикселей)</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>The file is larger than %1 MB.</source>
        <translation>Файл больше %1 МБ.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Это не обычный файл.</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Open Folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>The folder "%1" does not exist any more.</source>
        <translation>Папка «%1» больше не существует.</translation>
    </message>
    <message>
        <source>There is no program to show the folder "%1".</source>
        <translation>Нет программы для показа папки «%1».</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Открыть файл</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Изображения (%1)</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Добавить папку</translation>
    </message>
</context>
<context>
    <name>MediaSuffixes</name>
    <message>
        <source>The folder cannot be read.</source>
        <translation>Папка не читается.</translation>
    </message>
</context>
<context>
    <name>ProjectName</name>
    <message>
        <source>Project name should not contain any of these symbols: *:[]{}\/!</source>
        <translation>Имя проекта не должно содержать ни одного из символов: *:[]{}\/!</translation>
    </message>
</context>
<context>
    <name>SetNameForm</name>
    <message>
        <source>Title</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Title of the video</source>
        <translation>Название видео</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ОТМЕНА</translation>
    </message>
    <message>
        <source>UPDATE</source>
        <translation>ИЗМЕНИТЬ</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Close the settings</source>
        <translation>Закрыть настройки</translation>
    </message>
    <message>
        <source>Close without saving (Esc)</source>
        <translation>Закрыть без сохранения (Esc)</translation>
    </message>
    <message>
        <source>Default Settings for slideshow:</source>
        <translation>Настройки слайд-шоу по умолчанию:</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>How long a new slide is shown</source>
        <translation>Как долго показывается новый слайд</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Переход</translation>
    </message>
    <message>
        <source>How a new slide comes in</source>
        <translation>Как появляется новый слайд</translation>
    </message>
    <message>
        <source>Transition Time</source>
        <translation>Время перехода</translation>
    </message>
    <message>
        <source>How long each transition lasts</source>
        <translation>Как долго длится каждый переход</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Разрешение</translation>
    </message>
    <message>
        <source>The size of the picture of a new slideshow</source>
        <translation>Размер кадра нового слайд-шоу</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Вписать</translation>
    </message>
    <message>
        <source>Enlarge small photos so that they fill the picture</source>
        <translation>Увеличивать маленькие фото до размера кадра</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Пропорции</translation>
    </message>
    <message>
        <source>Keep the shape of the photos instead of stretching them</source>
        <translation>Сохранять форму фото, не растягивать их</translation>
    </message>
    <message>
        <source>Default audio settings:</source>
        <translation>Настройки звука по умолчанию:</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Сдвиг</translation>
    </message>
    <message>
        <source>When the music begins</source>
        <translation>Когда начинается музыка</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Затухание</translation>
    </message>
    <message>
        <source>How long the music takes to come and go</source>
        <translation>Как долго музыка нарастает и затухает</translation>
    </message>
    <message>
        <source>Export options:</source>
        <translation>Параметры вывода:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>The folder that videos are written to</source>
        <translation>Папка, в которую записываются видео</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Выбрать папку</translation>
    </message>
    <message>
        <source>Output profile</source>
        <translation>Профиль вывода</translation>
    </message>
    <message>
        <source>Original quality keeps every detail. Plays everywhere makes smaller files that televisions and phones play too.</source>
        <translation>«Исходное качество» сохраняет каждую деталь. «Играет везде» создаёт файлы меньше, которые играют и телевизоры, и телефоны.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>The language of the program</source>
        <translation>Язык программы</translation>
    </message>
    <message>
        <source>Increase speed of generation</source>
        <translation>Ускорить создание</translation>
    </message>
    <message>
        <source>Make two slides at the same time</source>
        <translation>Создавать два слайда одновременно</translation>
    </message>
    <message>
        <source>Check for the updates automatically</source>
        <translation>Проверять обновления автоматически</translation>
    </message>
    <message>
        <source>Send anonymous usage statistics</source>
        <translation>Отправлять анонимную статистику</translation>
    </message>
    <message>
        <source>Helps to improve the program. No names, photos or texts are sent.</source>
        <translation>Помогает улучшать программу. Имена, фото и тексты не отправляются.</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ОТМЕНА</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>СОХРАНИТЬ</translation>
    </message>
    <message>
        <source>Save the settings (Ctrl+Enter)</source>
        <translation>Сохранить настройки (Ctrl+Enter)</translation>
    </message>
</context>
<context>
    <name>SlidesPage</name>
    <message>
        <source>Slides</source>
        <translation>Слайды</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Вернуть</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Переместить вверх</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Переместить вниз</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Перемешать фото</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Сортировать фото</translation>
    </message>
    <message>
        <source>Rotate photo</source>
        <translation>Повернуть фото</translation>
    </message>
    <message>
        <source>Rotate photo to the left</source>
        <translation>Повернуть фото влево</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Удалить слайды</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Снова показать титульный слайд</translation>
    </message>
    <message>
        <source>Change all:</source>
        <translation>Изменить все:</translation>
    </message>
    <message>
        <source>Time of every slide</source>
        <translation>Время всех слайдов</translation>
    </message>
    <message>
        <source>Transition of every slide</source>
        <translation>Переход всех слайдов</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Всего</translation>
    </message>
    <message>
        <source>Show what the slideshow is made of</source>
        <translation>Показать, из чего состоит слайд-шоу</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Очистить список</translation>
    </message>
</context>
<context>
    <name>TextEditWidget</name>
    <message>
        <source>Back to the slides (Esc)</source>
        <translation>Назад к слайдам (Esc)</translation>
    </message>
    <message>
        <source>Back to the slides</source>
        <translation>Назад к слайдам</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Текст:</translation>
    </message>
    <message>
        <source>Text here</source>
        <translation>Текст здесь</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Also the title slide</source>
        <translation>Также титульный слайд</translation>
    </message>
    <message>
        <source>Text settings:</source>
        <translation>Настройки текста:</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Шрифт</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Цвет</translation>
    </message>
    <message>
        <source>Bg Color</source>
        <translation>Фон</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Эффект</translation>
    </message>
    <message>
        <source>Effect with which the text appears</source>
        <translation>Эффект появления текста</translation>
    </message>
    <message>
        <source>Show how the text appears (F5)</source>
        <translation>Показать, как появляется текст (F5)</translation>
    </message>
    <message>
        <source>Show how the text appears</source>
        <translation>Показать, как появляется текст</translation>
    </message>
    <message>
        <source>Text position:</source>
        <translation>Положение текста:</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>Положение текста</translation>
    </message>
    <message>
        <source>Picture of the slide</source>
        <translation>Изображение слайда</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Фон:</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Фон</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ОТМЕНА</translation>
    </message>
    <message>
        <source>Leave the slide as it was (Esc)</source>
        <translation>Оставить слайд как был (Esc)</translation>
    </message>
    <message>
        <source>SAVE TEXT</source>
        <translation>СОХРАНИТЬ ТЕКСТ</translation>
    </message>
    <message>
        <source>Save (Ctrl+Enter)</source>
        <translation>Сохранить (Ctrl+Enter)</translation>
    </message>
</context>
<context>
    <name>ToolRow</name>
    <message>
        <source>Add Photo</source>
        <translation>Добавить фото</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Добавить папку</translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Open the folder of the last video</source>
        <translation>Открыть папку последнего видео</translation>
    </message>
</context>
<context>
    <name>TransitionType</name>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Любой</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Пикселизация</translation>
    </message>
    <message>
        <source>Mosaic Spiral In</source>
        <translation>Мозаика: спираль внутрь</translation>
    </message>
    <message>
        <source>Mosaic Spiral Out</source>
        <translation>Мозаика: спираль наружу</translation>
    </message>
    <message>
        <source>Mosaic Strips</source>
        <translation>Мозаика: полосы</translation>
    </message>
    <message>
        <source>Mosaic Wall</source>
        <translation>Мозаика: стена</translation>
    </message>
    <message>
        <source>Checkerboard</source>
        <translation>Шахматная доска</translation>
    </message>
    <message>
        <source>Rotate Single Out</source>
        <translation>Вращение наружу</translation>
    </message>
    <message>
        <source>Rotate Single In</source>
        <translation>Вращение внутрь</translation>
    </message>
    <message>
        <source>Flip Over</source>
        <translation>Переворот</translation>
    </message>
    <message>
        <source>Wipe Left To Right</source>
        <translation>Шторка слева направо</translation>
    </message>
    <message>
        <source>Wipe Right To Left</source>
        <translation>Шторка справа налево</translation>
    </message>
    <message>
        <source>Wipe Top To Bottom</source>
        <translation>Шторка сверху вниз</translation>
    </message>
    <message>
        <source>Wipe Bottom To Top</source>
        <translation>Шторка снизу вверх</translation>
    </message>
    <message>
        <source>Wipe Vertical In</source>
        <translation>Вертикальная шторка внутрь</translation>
    </message>
    <message>
        <source>Wipe Vertical Out</source>
        <translation>Вертикальная шторка наружу</translation>
    </message>
    <message>
        <source>Stretch Horizontal</source>
        <translation>Растяжение по горизонтали</translation>
    </message>
    <message>
        <source>Stretch Vertical</source>
        <translation>Растяжение по вертикали</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Приближение</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Отдаление</translation>
    </message>
    <message>
        <source>Slide From Bottom</source>
        <translation>Сдвиг снизу</translation>
    </message>
    <message>
        <source>Slide From Left</source>
        <translation>Сдвиг слева</translation>
    </message>
    <message>
        <source>Slide From Right</source>
        <translation>Сдвиг справа</translation>
    </message>
    <message>
        <source>Slide From Top</source>
        <translation>Сдвиг сверху</translation>
    </message>
    <message>
        <source>Slide From Top Left</source>
        <translation>Сдвиг сверху слева</translation>
    </message>
    <message>
        <source>Fade To Black</source>
        <translation>Уход в чёрное</translation>
    </message>
    <message>
        <source>Cross fade</source>
        <translation>Наплыв</translation>
    </message>
    <message>
        <source>Fade To White</source>
        <translation>Уход в белое</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестный</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>DOWNLOAD</source>
        <translation>СКАЧАТЬ</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ОТМЕНА</translation>
    </message>
</context>
<context>
    <name>UploadFailWindow</name>
    <message>
        <source>Upload stopped with error</source>
        <translation>Загрузка остановлена из-за ошибки</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ЗАКРЫТЬ</translation>
    </message>
</context>
<context>
    <name>UploadSuccessWindow</name>
    <message>
        <source>Uploading has been completed</source>
        <translation>Загрузка завершена</translation>
    </message>
    <message>
        <source>Congratulations! Your file upload to %1 was successful!</source>
        <translation>Поздравляем! Ваш файл успешно загружен в %1!</translation>
    </message>
    <message>
        <source>OPEN</source>
        <translation>ОТКРЫТЬ</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ЗАКРЫТЬ</translation>
    </message>
</context>
<context>
    <name>ValueLists</name>
    <message>
        <source>%1 sec</source>
        <translation>%1 с</translation>
    </message>
</context>
<context>
    <name>VideoDialog</name>
    <message>
        <source>Picture of the video</source>
        <translation>Изображение видео</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Position in the video (arrow keys)</source>
        <translation>Позиция в видео (клавиши со стрелками)</translation>
    </message>
    <message>
        <source>Position in the video</source>
        <translation>Позиция в видео</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Длительность</translation>
    </message>
</context>
<context>
    <name>velmora::VideoDialog</name>
    <message>
        <source>Pause (Space)</source>
        <translation>Пауза (Пробел)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Играть (Пробел)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Играть</translation>
    </message>
</context>
<context>
    <name>VideoPlayerWidget</name>
    <message>
        <source>Full preview</source>
        <translation>Полный просмотр</translation>
    </message>
    <message>
        <source>Preview picture</source>
        <translation>Изображение просмотра</translation>
    </message>
    <message>
        <source>Position in the preview (arrow keys)</source>
        <translation>Позиция просмотра (клавиши со стрелками)</translation>
    </message>
    <message>
        <source>Position in the preview</source>
        <translation>Позиция просмотра</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Играть (Пробел)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Играть</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Длительность</translation>
    </message>
    <message>
        <source>Mute (M)</source>
        <translation>Без звука (M)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Без звука</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Громкость</translation>
    </message>
    <message>
        <source>Full screen (F)</source>
        <translation>Полный экран (F)</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Полный экран</translation>
    </message>
    <message>
        <source>Preview slideshow</source>
        <translation>Просмотр слайд-шоу</translation>
    </message>
    <message>
        <source>Play the whole slideshow</source>
        <translation>Играть всё слайд-шоу</translation>
    </message>
    <message>
        <source>Repeat transition</source>
        <translation>Повторить переход</translation>
    </message>
    <message>
        <source>Play the transition to the selected slide</source>
        <translation>Показать переход к выбранному слайду</translation>
    </message>
</context>
<context>
    <name>VideoSettings</name>
    <message>
        <source>Video</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Разрешение</translation>
    </message>
    <message>
        <source>Choose resolution of your slideshow</source>
        <translation>Выберите разрешение слайд-шоу</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Transition duration</source>
        <translation>Время перехода</translation>
    </message>
    <message>
        <source>Choose length of transition effects. Affects all transitions in current slideshow</source>
        <translation>Выберите длительность эффектов перехода. Действует на все переходы текущего слайд-шоу</translation>
    </message>
    <message>
        <source>If you want images to be resized to fit the screen leave the checkbox checked. Otheriwse they stay original size.</source>
        <translation>Оставьте флажок, чтобы изображения вписывались в экран. Иначе они сохранят исходный размер.</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Вписать</translation>
    </message>
    <message>
        <source>If you want to keep original aspect ratio of the photos leave checkbox checked. Otherwise they will be stretched to chosen resolution.</source>
        <translation>Оставьте флажок, чтобы сохранить пропорции фото. Иначе они будут растянуты до выбранного разрешения.</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Пропорции</translation>
    </message>
</context>
<context>
    <name>velmora::AudioDecoder</name>
    <message>
        <source>There is no sound in it.</source>
        <translation>В нём нет звука.</translation>
    </message>
    <message>
        <source>The sound format "%1" is not supported.</source>
        <translation>Формат звука «%1» не поддерживается.</translation>
    </message>
</context>
<context>
    <name>velmora::AudioFilesController</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 не читается.</translation>
    </message>
    <message>
        <source>%1, cannot be read</source>
        <translation>%1, не читается</translation>
    </message>
    <message>
        <source>%1, length %2</source>
        <translation>%1, длительность %2</translation>
    </message>
    <message>
        <source>Audio Files (%1)</source>
        <translation>Звуковые файлы (%1)</translation>
    </message>
</context>
<context>
    <name>velmora::AudioListWidget</name>
    <message>
        <source>Adding: %1</source>
        <translation>Добавляется: %1</translation>
    </message>
    <message>
        <source>Adding...</source>
        <translation>Добавляется ...</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Прослушивается</translation>
    </message>
    <message>
        <source>%1 cannot be played: %2</source>
        <translation>%1 не воспроизводится: %2</translation>
    </message>
    <message>
        <source>Drag &amp; drop audio files to create a playlist</source>
        <translation>Перетащите сюда звуковые файлы, чтобы создать список воспроизведения</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Переместить вверх</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Переместить вниз</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Stop listening</source>
        <translation>Остановить прослушивание</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>Прослушать</translation>
    </message>
    <message>
        <source>Total: %1 %2 (%3)</source>
        <translation>Всего: %1 %2 (%3)</translation>
    </message>
    <message>
        <source>track</source>
        <translation>дорожек</translation>
    </message>
    <message>
        <source>tracks</source>
        <translation>дорожек</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Открыть файл</translation>
    </message>
    <message>
        <source>Adding audio files</source>
        <translation>Добавление звуковых файлов</translation>
    </message>
    <message>
        <source>Not all audio files have been added</source>
        <translation>Не все звуковые файлы добавлены</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ЗАКРЫТЬ</translation>
    </message>
</context>
<context>
    <name>velmora::AudioNoFocusRectangleDelegate</name>
    <message>
        <source>missing</source>
        <translation>нет файла</translation>
    </message>
    <message>
        <source>Listen (Space)</source>
        <translation>Прослушать (Пробел)</translation>
    </message>
    <message>
        <source>Stop (Space)</source>
        <translation>Стоп (Пробел)</translation>
    </message>
    <message>
        <source>Delete (Del)</source>
        <translation>Удалить (Del)</translation>
    </message>
</context>
<context>
    <name>velmora::BackgroundPicker</name>
    <message>
        <source>Background %1</source>
        <translation>Фон %1</translation>
    </message>
</context>
<context>
    <name>velmora::BaseOauth2Uploader</name>
    <message>
        <source>source file not found</source>
        <translation>исходный файл не найден</translation>
    </message>
    <message>
        <source>can't open source file for reading</source>
        <translation>исходный файл не открывается для чтения</translation>
    </message>
    <message>
        <source>Operation was canceled</source>
        <translation>Операция отменена</translation>
    </message>
    <message>
        <source>Authorization error</source>
        <translation>Ошибка авторизации</translation>
    </message>
    <message>
        <source>There is no program to show the sign-in page.</source>
        <translation>Нет программы для показа страницы входа.</translation>
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
        <translation>%1 МБ</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Свободно</translation>
    </message>
    <message>
        <source>Burn DVD</source>
        <translation>Запись DVD</translation>
    </message>
    <message>
        <source>My slideshow</source>
        <translation>Моё слайд-шоу</translation>
    </message>
    <message>
        <source>Looking for drives…</source>
        <translation>Поиск приводов…</translation>
    </message>
    <message>
        <source>No drive that can write discs was found.</source>
        <translation>Не найдено ни одного привода, записывающего диски.</translation>
    </message>
    <message>
        <source>Looking at the disc…</source>
        <translation>Проверка диска…</translation>
    </message>
    <message>
        <source>Media disk is not ready</source>
        <translation>Диск не готов</translation>
    </message>
    <message>
        <source>There is not enough disc space for the slideshow</source>
        <translation>На диске недостаточно места для слайд-шоу</translation>
    </message>
    <message>
        <source>Disc is not empty. Do you want to erase disc before burning?
Press "Yes" if you want to erase disc before burning.
Press "No" if you want just to burn (add) new files to the disc.
Press "Cancel" to cancel the operation.</source>
        <translation>Диск не пуст. Стереть его перед записью?
«Да» — стереть диск перед записью.
«Нет» — только записать (добавить) новые файлы на диск.
«Отмена» — отменить операцию.</translation>
    </message>
    <message>
        <source>Disc is not empty. Do you want to erase disc before burning?
Press "Yes" if you want to erase disc before burning.
Press "Cancel" to cancel the operation.</source>
        <translation>Диск не пуст. Стереть его перед записью?
«Да» — стереть диск перед записью.
«Отмена» — отменить операцию.</translation>
    </message>
    <message>
        <source>A disc whose writing is stopped can become unusable. Stop writing?</source>
        <translation>Диск, запись которого остановлена, может стать непригодным. Остановить запись?</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>ОСТАНОВИТЬ</translation>
    </message>
    <message>
        <source>GO ON</source>
        <translation>ПРОДОЛЖИТЬ</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>Успешно</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>The video is on the disc.</source>
        <translation>Видео записано на диск.</translation>
    </message>
    <message>
        <source>The video was not written to the disc. The file on your computer is as it was.</source>
        <translation>Видео не записано на диск. Файл на вашем компьютере не изменён.</translation>
    </message>
</context>
<context>
    <name>velmora::BusyNote</name>
    <message>
        <source>CANCEL</source>
        <translation>ОТМЕНА</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход работы</translation>
    </message>
    <message>
        <source>Stop and leave everything as it was</source>
        <translation>Остановить и оставить всё как было</translation>
    </message>
</context>
<context>
    <name>velmora::ColorBox</name>
    <message>
        <source>White</source>
        <translation>Белый</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>Светло-серый</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>Тёмно-серый</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Чёрный</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Тёмно-красный</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Красный</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Оранжевый</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Золотой</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Жёлтый</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Песочный</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Коричневый</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>Лайм</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Зелёный</translation>
    </message>
    <message>
        <source>Aqua</source>
        <translation>Бирюзовый</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>Небесный</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Синий</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Фиолетовый</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Розовый</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Другой ...</translation>
    </message>
</context>
<context>
    <name>velmora::ComboBoxItemDelegate</name>
    <message>
        <source>Choose for this slide, or for all selected ones</source>
        <translation>Выбрать для этого слайда или для всех выделенных</translation>
    </message>
</context>
<context>
    <name>velmora::Composer</name>
    <message>
        <source>The render program %1 could not be started: %2</source>
        <translation>Программа создания %1 не запускается: %2</translation>
    </message>
    <message>
        <source>The render program ended unexpectedly.</source>
        <translation>Программа создания неожиданно завершилась.</translation>
    </message>
</context>
<context>
    <name>velmora::ConcatList</name>
    <message>
        <source>The file name "%1" contains a line break.</source>
        <translation>Имя файла «%1» содержит перевод строки.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 не записывается: %2</translation>
    </message>
</context>
<context>
    <name>velmora::CreatePanel</name>
    <message>
        <source>Make the video</source>
        <translation>Создать видео</translation>
    </message>
    <message>
        <source>Play the whole slideshow</source>
        <translation>Играть всё слайд-шоу</translation>
    </message>
    <message>
        <source>The video cannot be made</source>
        <translation>Видео не может быть создано</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ЗАКРЫТЬ</translation>
    </message>
    <message>
        <source>The video is ready, but it could not be entered in the history: %1</source>
        <translation>Видео готово, но его не удалось занести в историю: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressPage</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Time Elapsed: %1</source>
        <translation>Прошло: %1</translation>
    </message>
    <message>
        <source>Time Remaining: %1</source>
        <translation>Осталось: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Приостановлено</translation>
    </message>
    <message>
        <source>Finishing the video</source>
        <translation>Завершение видео</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Подготовка</translation>
    </message>
    <message>
        <source>Making the video (%1x)</source>
        <translation>Создание видео (%1x)</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
</context>
<context>
    <name>velmora::OutputCheck</name>
    <message>
        <source>Filename</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>The video needs a file name.</source>
        <translation>Видео нужно имя файла.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist and cannot be made.</source>
        <translation>Папка %1 не существует и не может быть создана.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to: %2</source>
        <translation>Запись в папку %1 невозможна: %2</translation>
    </message>
    <message>
        <source>The video cannot be saved</source>
        <translation>Видео не может быть сохранено</translation>
    </message>
    <message>
        <source>Please choose another folder in the settings.</source>
        <translation>Выберите другую папку в настройках.</translation>
    </message>
    <message>
        <source>Replace the video</source>
        <translation>Заменить видео</translation>
    </message>
    <message>
        <source>The file %1 exists already. Do you want to replace it?</source>
        <translation>Файл %1 уже существует. Заменить его?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ОТМЕНА</translation>
    </message>
    <message>
        <source>REPLACE</source>
        <translation>ЗАМЕНИТЬ</translation>
    </message>
</context>
<context>
    <name>velmora::RenderedProject</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Папка %1 не может быть создана.</translation>
    </message>
</context>
<context>
    <name>velmora::DocumentActions</name>
    <message>
        <source>Unsaved changes</source>
        <translation>Несохранённые изменения</translation>
    </message>
    <message>
        <source>Do you want to save the changes to "%1"?</source>
        <translation>Сохранить изменения в «%1»?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ОТМЕНА</translation>
    </message>
    <message>
        <source>DON'T SAVE</source>
        <translation>НЕ СОХРАНЯТЬ</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>СОХРАНИТЬ</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Закрыть программу</translation>
    </message>
    <message>
        <source>A video is being made. If you close the program now, it is lost.</source>
        <translation>Создаётся видео. Если закрыть программу сейчас, оно будет потеряно.</translation>
    </message>
    <message>
        <source>A video is being uploaded. If you close the program now, it is not completed.</source>
        <translation>Загружается видео. Если закрыть программу сейчас, загрузка не завершится.</translation>
    </message>
    <message>
        <source>STOP AND CLOSE</source>
        <translation>ОСТАНОВИТЬ И ЗАКРЫТЬ</translation>
    </message>
    <message>
        <source>GO ON</source>
        <translation>ПРОДОЛЖИТЬ</translation>
    </message>
    <message>
        <source>Restore the slideshow</source>
        <translation>Восстановить слайд-шоу</translation>
    </message>
    <message>
        <source>The program ended before "%1" was saved. Do you want to restore it?</source>
        <translation>Программа завершилась до сохранения «%1». Восстановить?</translation>
    </message>
    <message>
        <source>DISCARD</source>
        <translation>ОТБРОСИТЬ</translation>
    </message>
    <message>
        <source>RESTORE</source>
        <translation>ВОССТАНОВИТЬ</translation>
    </message>
    <message>
        <source>Open a slideshow</source>
        <translation>Открыть слайд-шоу</translation>
    </message>
    <message>
        <source>The file "%1" cannot be opened as a slideshow.</source>
        <translation>Файл «%1» не открывается как слайд-шоу.</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ЗАКРЫТЬ</translation>
    </message>
    <message>
        <source>Slideshows (*.json)</source>
        <translation>Слайд-шоу (*.json)</translation>
    </message>
    <message>
        <source>Save the slideshow</source>
        <translation>Сохранить слайд-шоу</translation>
    </message>
    <message>
        <source>The slideshow cannot be saved to "%1".</source>
        <translation>Слайд-шоу не может быть сохранено как «%1».</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxClient::ApiRequest</name>
    <message>
        <source>Unknown error</source>
        <translation>Неизвестная ошибка</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxClient::DropboxUploader</name>
    <message>
        <source>source file not found</source>
        <translation>исходный файл не найден</translation>
    </message>
    <message>
        <source>can't open source file for reading</source>
        <translation>исходный файл не открывается для чтения</translation>
    </message>
    <message>
        <source>The answer of the service cannot be understood.</source>
        <translation>Ответ сервиса непонятен.</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxUpload</name>
    <message>
        <source>Operation was canceled</source>
        <translation>Операция отменена</translation>
    </message>
</context>
<context>
    <name>velmora::EditorSide</name>
    <message>
        <source>Preview and settings</source>
        <translation>Просмотр и настройки</translation>
    </message>
</context>
<context>
    <name>velmora::EncoderAdvice</name>
    <message>
        <source>FFmpeg was not found. Please install it (on Debian and Ubuntu: sudo apt install ffmpeg).</source>
        <translation>FFmpeg не найден. Установите его (в Debian и Ubuntu: sudo apt install ffmpeg).</translation>
    </message>
    <message>
        <source>FFmpeg %1 (%2) is too old. Please install version 4.4 or newer (on Debian and Ubuntu: sudo apt install ffmpeg).</source>
        <translation>FFmpeg %1 (%2) слишком старый. Установите версию 4.4 или новее (в Debian и Ubuntu: sudo apt install ffmpeg).</translation>
    </message>
    <message>
        <source>FFmpeg was not found. It comes with Velmora: please install Velmora again, or put ffmpeg.exe into its folder.</source>
        <translation>FFmpeg не найден. Он поставляется вместе с Velmora: переустановите Velmora или поместите ffmpeg.exe в её папку.</translation>
    </message>
    <message>
        <source>FFmpeg %1 (%2) is too old. Please install Velmora again, or put ffmpeg.exe of version 4.4 or newer into its folder.</source>
        <translation>FFmpeg %1 (%2) слишком старый. Переустановите Velmora или поместите ffmpeg.exe версии 4.4 или новее в её папку.</translation>
    </message>
</context>
<context>
    <name>velmora::FinalWindow</name>
    <message>
        <source>Open file Error</source>
        <translation>Ошибка открытия файла</translation>
    </message>
    <message>
        <source>File '%1' not found</source>
        <translation>Файл «%1» не найден</translation>
    </message>
    <message>
        <source>There is no program to show the folder of '%1'.</source>
        <translation>Нет программы для показа папки с файлом «%1».</translation>
    </message>
</context>
<context>
    <name>velmora::FrameWriter</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 не записывается: %2</translation>
    </message>
    <message>
        <source>A frame of %1x%2 pixels cannot be compressed.</source>
        <translation>Кадр %1x%2 пикселей не сжимается.</translation>
    </message>
</context>
<context>
    <name>velmora::GeneratorThread</name>
    <message>
        <source>No folder for temporary files can be made as "%1": %2</source>
        <translation>Временная папка «%1» не может быть создана: %2</translation>
    </message>
</context>
<context>
    <name>velmora::HelpBubble</name>
    <message>
        <source>Help for %1</source>
        <translation>Справка: %1</translation>
    </message>
</context>
<context>
    <name>velmora::HelpDialog</name>
    <message>
        <source>Create the video, or save a text</source>
        <translation>Создать видео или сохранить текст</translation>
    </message>
    <message>
        <source>Preview the whole slideshow</source>
        <translation>Просмотр всего слайд-шоу</translation>
    </message>
    <message>
        <source>Play or pause the preview</source>
        <translation>Играть или приостановить просмотр</translation>
    </message>
    <message>
        <source>Mute the preview</source>
        <translation>Выключить звук просмотра</translation>
    </message>
    <message>
        <source>Leave without saving</source>
        <translation>Выйти без сохранения</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>From photos to a video</source>
        <translation>От фото к видео</translation>
    </message>
    <message>
        <source>1. Add photos or folders, with the buttons or by dropping them on the window.</source>
        <translation>1. Добавьте фото или папки: кнопками или перетащив их в окно.</translation>
    </message>
    <message>
        <source>2. Put them in order by dragging, and choose times and transitions.</source>
        <translation>2. Расставьте их перетаскиванием, выберите время и переходы.</translation>
    </message>
    <message>
        <source>3. Add texts to slides and music to the slideshow, and look at the preview.</source>
        <translation>3. Добавьте тексты и музыку и посмотрите, что получилось.</translation>
    </message>
    <message>
        <source>4. Choose a name and a format, and press CREATE.</source>
        <translation>4. Выберите имя и формат и нажмите СОЗДАТЬ.</translation>
    </message>
    <message>
        <source>5. Watch, upload or burn the video from the history.</source>
        <translation>5. Смотрите, загружайте или записывайте видео из истории.</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>In the editor</source>
        <translation>В редакторе</translation>
    </message>
    <message>
        <source>OPEN MANUAL</source>
        <translation>ОТКРЫТЬ РУКОВОДСТВО</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ЗАКРЫТЬ</translation>
    </message>
    <message>
        <source>Go back in the preview</source>
        <translation>Назад при просмотре</translation>
    </message>
    <message>
        <source>Go forward in the preview</source>
        <translation>Вперёд при просмотре</translation>
    </message>
    <message>
        <source>Show the preview on the full screen</source>
        <translation>Просмотр на весь экран</translation>
    </message>
    <message>
        <source>Play the effect of a text</source>
        <translation>Воспроизвести эффект текста</translation>
    </message>
</context>
<context>
    <name>velmora::HelpPages</name>
    <message>
        <source>Home page</source>
        <translation>Веб-сайт</translation>
    </message>
    <message>
        <source>No home page is set up in this copy of the program.</source>
        <translation>В этой копии программы веб-сайт не указан.</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryHeader</name>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Разрешение</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Длина</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>Sort by this column</source>
        <translation>Сортировать по этому столбцу</translation>
    </message>
    <message>
        <source>Sorts the list</source>
        <translation>Сортирует список</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryListView</name>
    <message>
        <source>Your finished slideshows appear here.</source>
        <translation>Здесь появятся ваши готовые слайд-шоу.</translation>
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
        <translation>%1 МБ</translation>
    </message>
    <message>
        <source>Open the project in the editor</source>
        <translation>Открыть проект в редакторе</translation>
    </message>
    <message>
        <source>Play the video</source>
        <translation>Воспроизвести видео</translation>
    </message>
    <message>
        <source>Burn the video to a disc</source>
        <translation>Записать видео на диск</translation>
    </message>
    <message>
        <source>Remove the video from the history</source>
        <translation>Убрать видео из истории</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>удалено</translation>
    </message>
    <message>
        <source>The video file does not exist any more.</source>
        <translation>Видеофайл больше не существует.</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryWidget</name>
    <message>
        <source>Open file Error</source>
        <translation>Ошибка открытия файла</translation>
    </message>
    <message>
        <source>File '%1' not found</source>
        <translation>Файл «%1» не найден</translation>
    </message>
    <message>
        <source>There is no program to play the file '%1'.</source>
        <translation>Нет программы для воспроизведения файла «%1».</translation>
    </message>
    <message>
        <source>Remove from the history</source>
        <translation>Убрать из истории</translation>
    </message>
    <message>
        <source>Remove "%1" from the history?</source>
        <translation>Убрать «%1» из истории?</translation>
    </message>
    <message>
        <source>Also move the video file to the trash</source>
        <translation>Также переместить видеофайл в корзину</translation>
    </message>
    <message>
        <source>REMOVE</source>
        <translation>УБРАТЬ</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ОТМЕНА</translation>
    </message>
    <message>
        <source>Clear the history</source>
        <translation>Очистить историю</translation>
    </message>
    <message numerus="yes">
        <source>Remove all videos (%n) from the history?</source>
        <translation><numerusform>Убрать из истории %n видео?</numerusform><numerusform>Убрать из истории все %n видео?</numerusform><numerusform>Убрать из истории все %n видео?</numerusform></translation>
    </message>
    <message>
        <source>Also move the video files to the trash</source>
        <translation>Также переместить видеофайлы в корзину</translation>
    </message>
    <message>
        <source>REMOVE ALL</source>
        <translation>УБРАТЬ ВСЕ</translation>
    </message>
    <message>
        <source>Some video files could not be moved to the trash. They are where they were.</source>
        <translation>Некоторые видеофайлы не удалось переместить в корзину. Они остались на месте.</translation>
    </message>
    <message>
        <source>Some video files could not be taken out of the trash.</source>
        <translation>Некоторые видеофайлы не удалось вернуть из корзины.</translation>
    </message>
    <message numerus="yes">
        <source>Videos removed from the history: %n</source>
        <translation><numerusform>%n видео убрано из истории.</numerusform><numerusform>%n видео убраны из истории.</numerusform><numerusform>%n видео убраны из истории.</numerusform></translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>The history could not be changed: %1</source>
        <translation>История не может быть изменена: %1</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <translation>Прошло: %1</translation>
    </message>
    <message>
        <source>Uploading %1 to %2</source>
        <translation>Загрузка %1 в %2</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>Подключиться к %1</translation>
    </message>
</context>
<context>
    <name>velmora::InputCheck</name>
    <message numerus="yes">
        <source>%n more file(s) cannot be used.</source>
        <translation><numerusform>Ещё %n файл непригоден.</numerusform><numerusform>Ещё %n файла непригодны.</numerusform><numerusform>Ещё %n файлов непригодны.</numerusform></translation>
    </message>
    <message>
        <source>The video would replace "%1", of which it is made. Please choose another name.</source>
        <translation>Видео заменило бы файл «%1», из которого оно создаётся. Выберите другое имя.</translation>
    </message>
</context>
<context>
    <name>velmora::InputFiles</name>
    <message>
        <source>The folder "%1" cannot be read.</source>
        <translation>Папка «%1» не читается.</translation>
    </message>
    <message>
        <source>The photo "%1" does not exist.</source>
        <translation>Фото «%1» не существует.</translation>
    </message>
    <message>
        <source>"%1" is not a photo of a known format.</source>
        <translation>«%1» — не фото известного формата.</translation>
    </message>
    <message>
        <source>There are no photos in the folder "%1".</source>
        <translation>В папке «%1» нет фото.</translation>
    </message>
    <message>
        <source>The sound file "%1" does not exist.</source>
        <translation>Звуковой файл «%1» не существует.</translation>
    </message>
    <message>
        <source>"%1" is not a sound file of a known format.</source>
        <translation>«%1» — не звуковой файл известного формата.</translation>
    </message>
    <message>
        <source>There are no sound files in the folder "%1".</source>
        <translation>В папке «%1» нет звуковых файлов.</translation>
    </message>
</context>
<context>
    <name>velmora::MainMenu</name>
    <message>
        <source>New slideshow</source>
        <translation>Новое слайд-шоу</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Открыть ...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation>Сохранить как ...</translation>
    </message>
    <message>
        <source>Set video title...</source>
        <translation>Задать название видео ...</translation>
    </message>
    <message>
        <source>Add Photo</source>
        <translation>Добавить фото</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Добавить папку</translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Полный экран</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Веб-сайт</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Меню</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
</context>
<context>
    <name>velmora::MainView</name>
    <message>
        <source>The video is ready</source>
        <translation>Видео готово</translation>
    </message>
    <message>
        <source>The upload has failed</source>
        <translation>Загрузка не удалась</translation>
    </message>
    <message>
        <source>The upload is complete</source>
        <translation>Загрузка завершена</translation>
    </message>
    <message>
        <source>Another video is being uploaded.</source>
        <translation>Загружается другое видео.</translation>
    </message>
</context>
<context>
    <name>velmora::MainWindowWidget</name>
    <message>
        <source>Preview</source>
        <translation>Просмотр</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Вернуть</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>undo or redo, and what</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Add Audio</source>
        <translation>Добавить звук</translation>
    </message>
    <message>
        <source>Photos are still being added</source>
        <translation>Фото ещё добавляются</translation>
    </message>
    <message>
        <source>Audio files are still being added</source>
        <translation>Звуковые файлы ещё добавляются</translation>
    </message>
    <message>
        <source>The photos are still being sorted</source>
        <translation>Фото ещё сортируются</translation>
    </message>
    <message>
        <source>A text is still being edited</source>
        <translation>Текст ещё редактируется</translation>
    </message>
</context>
<context>
    <name>velmora::MakeCommand</name>
    <message>
        <source>The project cannot be written as "%1": %2.</source>
        <translation>Проект не может быть записан как «%1»: %2.</translation>
    </message>
    <message>
        <source>"velmoratool --help" lists what is possible.</source>
        <translation>«velmoratool --help» показывает, что возможно.</translation>
    </message>
</context>
<context>
    <name>velmora::MakeOptions</name>
    <message>
        <source>"%1" is not a whole number from %2 to %3.</source>
        <translation>«%1» — не целое число от %2 до %3.</translation>
    </message>
    <message>
        <source>The text is empty.</source>
        <translation>Текст пуст.</translation>
    </message>
    <message>
        <source>"%1" is not a size such as 1920x1080.</source>
        <translation>«%1» — не размер вида 1920x1080.</translation>
    </message>
    <message>
        <source>There is no transition "%1". There are: %2.</source>
        <translation>Перехода «%1» нет. Есть: %2.</translation>
    </message>
    <message>
        <source>"%1" is none of name, date and given.</source>
        <translation>«%1» — не name, не date и не given.</translation>
    </message>
    <message>
        <source>"%1" is neither original nor everywhere.</source>
        <translation>«%1» — не original и не everywhere.</translation>
    </message>
    <message>
        <source>The name of the video "%1" must end in one of: %2.</source>
        <translation>Имя видео «%1» должно заканчиваться на: %2.</translation>
    </message>
    <message>
        <source>A file name is empty.</source>
        <translation>Имя файла пусто.</translation>
    </message>
    <message>
        <source>"%1" belongs to no option.</source>
        <translation>«%1» не относится ни к одному параметру.</translation>
    </message>
    <message>
        <source>There is no option --%1.</source>
        <translation>Параметра --%1 нет.</translation>
    </message>
    <message>
        <source>--%1 takes no value.</source>
        <translation>--%1 не принимает значения.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 требует значения.</translation>
    </message>
    <message>
        <source>--%1 cannot be combined with --project, which has its own.</source>
        <translation>--%1 нельзя сочетать с --project, где есть своё значение.</translation>
    </message>
    <message>
        <source>--photos or --project is needed.</source>
        <translation>Нужен --photos или --project.</translation>
    </message>
    <message>
        <source>--output is needed.</source>
        <translation>Нужен --output.</translation>
    </message>
    <message>
        <source>--stretch and --original-size exclude each other.</source>
        <translation>--stretch и --original-size исключают друг друга.</translation>
    </message>
</context>
<context>
    <name>velmora::MakeProject</name>
    <message>
        <source>The project "%1" cannot be used: %2</source>
        <translation>Проект «%1» непригоден: %2</translation>
    </message>
</context>
<context>
    <name>velmora::MediaFileInfo</name>
    <message>
        <source>There is neither sound nor video in it.</source>
        <translation>В нём нет ни звука, ни видео.</translation>
    </message>
</context>
<context>
    <name>velmora::MediaInput</name>
    <message>
        <source>The file does not exist.</source>
        <translation>Файл не существует.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Это не файл.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Файл пуст.</translation>
    </message>
    <message>
        <source>It is damaged, or not a media file.</source>
        <translation>Он повреждён или не является медиафайлом.</translation>
    </message>
    <message>
        <source>It is a play list, not a media file.</source>
        <translation>Это список воспроизведения, а не медиафайл.</translation>
    </message>
</context>
<context>
    <name>velmora::MessageDialog</name>
    <message>
        <source>Details</source>
        <translation>Подробности</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ЗАКРЫТЬ</translation>
    </message>
</context>
<context>
    <name>velmora::MultipartUploader</name>
    <message>
        <source>can't open source file for reading</source>
        <translation>исходный файл не открывается для чтения</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Неизвестная ошибка</translation>
    </message>
    <message>
        <source>Error uploading video:%1</source>
        <translation>Ошибка загрузки видео:%1</translation>
    </message>
</context>
<context>
    <name>velmora::OutputTarget</name>
    <message>
        <source>The project does not name a video file to write.</source>
        <translation>В проекте не указан видеофайл для записи.</translation>
    </message>
    <message>
        <source>The finished video could not be put in place as "%1": %2.</source>
        <translation>Готовое видео не удалось поместить как «%1»: %2.</translation>
    </message>
    <message>
        <source>The video was kept as "%1".</source>
        <translation>Видео сохранено как «%1».</translation>
    </message>
    <message>
        <source>The video's name "%1..." is too long. Please choose a shorter one.</source>
        <translation>Имя видео «%1...» слишком длинное. Выберите более короткое.</translation>
    </message>
    <message>
        <source>The folder "%1" for the video does not exist.</source>
        <translation>Папка «%1» для видео не существует.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": it is not a folder.</source>
        <translation>Видео не записывается в «%1»: это не папка.</translation>
    </message>
    <message>
        <source>The video cannot be written as "%1": a folder has that name.</source>
        <translation>Видео не записывается как «%1»: так называется папка.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": the disk is full.</source>
        <translation>Видео не записывается в «%1»: диск полон.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": %2.</source>
        <translation>Видео не записывается в «%1»: %2.</translation>
    </message>
    <message>
        <source>Another render is writing "%1" at this time.</source>
        <translation>В «%1» сейчас пишет другой процесс.</translation>
    </message>
</context>
<context>
    <name>velmora::PhotoImporter</name>
    <message>
        <source>does not exist</source>
        <translation>не существует</translation>
    </message>
    <message>
        <source>is not a photo</source>
        <translation>не фото</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>не читается</translation>
    </message>
    <message>
        <source>holds no photos</source>
        <translation>не содержит фото</translation>
    </message>
</context>
<context>
    <name>velmora::PhotoImports</name>
    <message numerus="yes">
        <source>Adding photos: %n looked at</source>
        <translation><numerusform>Добавление фото: просмотрено %n</numerusform><numerusform>Добавление фото: просмотрено %n</numerusform><numerusform>Добавление фото: просмотрено %n</numerusform></translation>
    </message>
    <message>
        <source>Adding photos</source>
        <translation>Добавление фото</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files have not been added</source>
        <translation><numerusform>%n файл не добавлен</numerusform><numerusform>%n файла не добавлены</numerusform><numerusform>%n файлов не добавлены</numerusform></translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ЗАКРЫТЬ</translation>
    </message>
</context>
<context>
    <name>velmora::PositionPicker</name>
    <message>
        <source>Top left</source>
        <translation>Вверху слева</translation>
    </message>
    <message>
        <source>Top centre</source>
        <translation>Вверху по центру</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Вверху справа</translation>
    </message>
    <message>
        <source>Centre left</source>
        <translation>По центру слева</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>По центру</translation>
    </message>
    <message>
        <source>Centre right</source>
        <translation>По центру справа</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Внизу слева</translation>
    </message>
    <message>
        <source>Bottom centre</source>
        <translation>Внизу по центру</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Внизу справа</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressText</name>
    <message>
        <source>%1 elapsed</source>
        <translation>прошло %1</translation>
    </message>
    <message>
        <source>%1 elapsed, %2 left</source>
        <translation>прошло %1, осталось %2</translation>
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
        <translation>Добавить фото</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Удалить слайды</translation>
    </message>
    <message>
        <source>Hide the title slide</source>
        <translation>Скрыть титульный слайд</translation>
    </message>
    <message>
        <source>Move slides</source>
        <translation>Переместить слайды</translation>
    </message>
    <message>
        <source>Change time</source>
        <translation>Изменить время</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Изменить переход</translation>
    </message>
    <message>
        <source>Rotate photos</source>
        <translation>Повернуть фото</translation>
    </message>
    <message>
        <source>Change caption</source>
        <translation>Изменить текст</translation>
    </message>
    <message>
        <source>Change caption style</source>
        <translation>Изменить стиль текста</translation>
    </message>
    <message>
        <source>Change title slide</source>
        <translation>Изменить титульный слайд</translation>
    </message>
    <message>
        <source>Add audio</source>
        <translation>Добавить звук</translation>
    </message>
    <message>
        <source>Delete audio</source>
        <translation>Удалить звук</translation>
    </message>
    <message>
        <source>Move audio</source>
        <translation>Переместить звук</translation>
    </message>
    <message>
        <source>Change audio offset</source>
        <translation>Изменить сдвиг звука</translation>
    </message>
    <message>
        <source>Change audio fade</source>
        <translation>Изменить затухание звука</translation>
    </message>
    <message>
        <source>Loop audio</source>
        <translation>Повтор звука</translation>
    </message>
    <message>
        <source>Change resolution</source>
        <translation>Изменить разрешение</translation>
    </message>
    <message>
        <source>Change format</source>
        <translation>Изменить формат</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Пропорции</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Вписать</translation>
    </message>
    <message>
        <source>Change transition duration</source>
        <translation>Изменить время перехода</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Сортировать фото</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Перемешать фото</translation>
    </message>
    <message>
        <source>Relocate photos</source>
        <translation>Указать фото заново</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectFile</name>
    <message>
        <source>New project</source>
        <translation>Новый проект</translation>
    </message>
    <message>
        <source>The file is not a valid JSON document: %1.</source>
        <translation>Файл не является правильным документом JSON: %1.</translation>
    </message>
    <message>
        <source>The file is not a project document.</source>
        <translation>Файл не является документом проекта.</translation>
    </message>
    <message>
        <source>The project document cannot be used, faulty field: %1.</source>
        <translation>Документ проекта непригоден, ошибочное поле: %1.</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectItemFirst</name>
    <message>
        <source>My slideshow</source>
        <translation>Моё слайд-шоу</translation>
    </message>
    <message>
        <source>Starter</source>
        <translation>Начало</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectResume</name>
    <message>
        <source>Not all files exist</source>
        <translation>Не все файлы существуют</translation>
    </message>
    <message>
        <source>Not all files exist, do you want to resume the project?</source>
        <translation>Не все файлы существуют. Продолжить проект?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ОТМЕНА</translation>
    </message>
    <message>
        <source>RESUME</source>
        <translation>ПРОДОЛЖИТЬ</translation>
    </message>
</context>
<context>
    <name>velmora::RenderFailure</name>
    <message>
        <source>The disk that holds the folder "%1" is full.</source>
        <translation>Диск с папкой «%1» полон.</translation>
    </message>
    <message>
        <source>The photo "%1" %2.</source>
        <translation>Фото «%1» %2.</translation>
    </message>
    <message>
        <source>The sound file "%1" cannot be used: %2</source>
        <translation>Звуковой файл «%1» непригоден: %2</translation>
    </message>
</context>
<context>
    <name>velmora::RenderJob</name>
    <message>
        <source>The slideshow has no slides.</source>
        <translation>В слайд-шоу нет слайдов.</translation>
    </message>
    <message>
        <source>A video of %1x%2 pixels is too small; each side needs at least %3.</source>
        <translation>Видео %1x%2 пикселей слишком мало; каждая сторона должна быть не меньше %3.</translation>
    </message>
</context>
<context>
    <name>velmora::RenderReport</name>
    <message>
        <source>Cancelled. No video was written.</source>
        <translation>Отменено. Видео не записано.</translation>
    </message>
    <message>
        <source>The video is ready: %1</source>
        <translation>Видео готово: %1</translation>
    </message>
    <message>
        <source>The project is ready: %1</source>
        <translation>Проект готов: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SetNameDialog</name>
    <message>
        <source>Set video title</source>
        <translation>Задать название видео</translation>
    </message>
</context>
<context>
    <name>velmora::SettingsWidget</name>
    <message>
        <source>Original quality</source>
        <translation>Исходное качество</translation>
    </message>
    <message>
        <source>Plays everywhere</source>
        <translation>Играет везде</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>version %1 - %2</source>
        <translation>версия %1 - %2</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Выбрать папку</translation>
    </message>
    <message>
        <source>The settings hold until the program ends, because they cannot be written to the file %1.</source>
        <translation>Настройки действуют только до закрытия программы, так как их не удаётся записать в файл %1.</translation>
    </message>
</context>
<context>
    <name>velmora::SlideActions</name>
    <message>
        <source>Move up</source>
        <translation>Переместить вверх</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Переместить вниз</translation>
    </message>
    <message>
        <source>Rotate photo</source>
        <translation>Повернуть фото</translation>
    </message>
    <message>
        <source>Rotate photo to the left</source>
        <translation>Повернуть фото влево</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Перемешать фото</translation>
    </message>
    <message>
        <source>Sort photos by name</source>
        <translation>Сортировать фото по имени</translation>
    </message>
    <message>
        <source>Sort photos by date taken</source>
        <translation>Сортировать фото по дате съёмки</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>Изменить текст</translation>
    </message>
    <message>
        <source>Edit text style of all slides</source>
        <translation>Изменить стиль текста всех слайдов</translation>
    </message>
    <message>
        <source>Set time</source>
        <translation>Задать время</translation>
    </message>
    <message>
        <source>Set transition</source>
        <translation>Задать переход</translation>
    </message>
    <message>
        <source>Preview transition</source>
        <translation>Просмотр перехода</translation>
    </message>
    <message>
        <source>Relocate...</source>
        <translation>Указать заново ...</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Снова показать титульный слайд</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Удалить слайды</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Очистить список</translation>
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
        <translation>Фото «%1» не читается.</translation>
    </message>
</context>
<context>
    <name>velmora::SlideSorter</name>
    <message>
        <source>Reading the dates of the photos</source>
        <translation>Чтение дат съёмки</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTable</name>
    <message>
        <source>Drag &amp; drop photos and folders to add them here</source>
        <translation>Перетащите сюда фото и папки, чтобы добавить их</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTableModel</name>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Переход</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>The title slide is not part of the video.</source>
        <translation>Титульный слайд не входит в видео.</translation>
    </message>
    <message>
        <source>The photo %1 does not exist any more.</source>
        <translation>Фото %1 больше не существует.</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTextDelegate</name>
    <message>
        <source>Relocate...</source>
        <translation>Указать заново ...</translation>
    </message>
    <message>
        <source>Edit the text of this slide (F2)</source>
        <translation>Изменить текст этого слайда (F2)</translation>
    </message>
    <message>
        <source>Delete this slide (Del)</source>
        <translation>Удалить этот слайд (Del)</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Снова показать титульный слайд</translation>
    </message>
    <message>
        <source>Choose the file again</source>
        <translation>Выбрать файл заново</translation>
    </message>
    <message>
        <source>Not part of the video</source>
        <translation>Не входит в видео</translation>
    </message>
    <message>
        <source>Title slide</source>
        <translation>Титульный слайд</translation>
    </message>
    <message>
        <source>Missing: %1</source>
        <translation>Нет файла: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SlidesPage</name>
    <message>
        <source>Drag &amp; drop photos and folders to add them here</source>
        <translation>Перетащите сюда фото и папки, чтобы добавить их</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Сортировать фото</translation>
    </message>
    <message>
        <source>Clear list (%1)</source>
        <translation>Очистить список (%1)</translation>
    </message>
    <message>
        <source>Various</source>
        <translation>Разное</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>Всего: %1</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Изображения (%1)</translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>Где находится %1?</translation>
    </message>
    <message>
        <source>Photos: %1</source>
        <translation>Фото: %1</translation>
    </message>
    <message>
        <source>Running time: %1</source>
        <translation>Длительность: %1</translation>
    </message>
    <message>
        <source>Audio files: %1</source>
        <translation>Звуковые файлы: %1</translation>
    </message>
    <message>
        <source>Resolution: %1</source>
        <translation>Разрешение: %1</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Всего</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ЗАКРЫТЬ</translation>
    </message>
</context>
<context>
    <name>velmora::SoundChecker</name>
    <message>
        <source>Nothing in it can be played.</source>
        <translation>В нём нечего воспроизводить.</translation>
    </message>
</context>
<context>
    <name>velmora::SoundTrack</name>
    <message>
        <source>The music file '%1' cannot be read: %2</source>
        <translation>Музыкальный файл «%1» не читается: %2</translation>
    </message>
</context>
<context>
    <name>velmora::Spinner</name>
    <message>
        <source>Preparing the preview</source>
        <translation>Подготовка просмотра</translation>
    </message>
</context>
<context>
    <name>velmora::SplashScreen</name>
    <message>
        <source>Loading</source>
        <translation>Загрузка</translation>
    </message>
</context>
<context>
    <name>velmora::StartPage</name>
    <message>
        <source>Drop your photos here</source>
        <translation>Перетащите сюда фото</translation>
    </message>
    <message>
        <source>Photos and whole folders become a slideshow with transitions, titles and music.</source>
        <translation>Фото и целые папки становятся слайд-шоу с переходами, заголовками и музыкой.</translation>
    </message>
    <message>
        <source>Add Photo</source>
        <translation>Добавить фото</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Добавить папку</translation>
    </message>
    <message>
        <source>Open a slideshow</source>
        <translation>Открыть слайд-шоу</translation>
    </message>
    <message>
        <source>Try the sample photos</source>
        <translation>Попробовать на примере</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Продолжить: %1</translation>
    </message>
    <message>
        <source>Open the last slideshow again</source>
        <translation>Снова открыть последнее слайд-шоу</translation>
    </message>
    <message>
        <source>Open a saved slideshow</source>
        <translation>Открыть сохранённое слайд-шоу</translation>
    </message>
    <message>
        <source>Add photos to the slideshow</source>
        <translation>Добавить фото в слайд-шоу</translation>
    </message>
    <message>
        <source>Add all photos of a folder</source>
        <translation>Добавить все фото из папки</translation>
    </message>
    <message>
        <source>Begin a slideshow with the photos that come with the program</source>
        <translation>Начать слайд-шоу с фото, приложенными к программе</translation>
    </message>
</context>
<context>
    <name>velmora::TextEditWidget</name>
    <message>
        <source>Edit style for 'Starter' slide</source>
        <translation>Стиль слайда «Начало»</translation>
    </message>
    <message>
        <source>Edit style for All slides</source>
        <translation>Стиль всех слайдов</translation>
    </message>
    <message>
        <source>Edit style for '%1' slide</source>
        <translation>Стиль слайда «%1»</translation>
    </message>
    <message>
        <source>Text here</source>
        <translation>Текст здесь</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Отбросить изменения</translation>
    </message>
    <message>
        <source>The changes of this text have not been saved. Discard them?</source>
        <translation>Изменения этого текста не сохранены. Отбросить их?</translation>
    </message>
    <message>
        <source>DISCARD</source>
        <translation>ОТБРОСИТЬ</translation>
    </message>
    <message>
        <source>KEEP EDITING</source>
        <translation>ПРАВИТЬ ДАЛЬШЕ</translation>
    </message>
</context>
<context>
    <name>velmora::TitleBar</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Развернуть</translation>
    </message>
</context>
<context>
    <name>velmora::ToolRow</name>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Back to the slideshow</source>
        <translation>Назад к слайд-шоу</translation>
    </message>
    <message>
        <source>Add photos to the slideshow</source>
        <translation>Добавить фото в слайд-шоу</translation>
    </message>
    <message>
        <source>Add all photos of a folder</source>
        <translation>Добавить все фото из папки</translation>
    </message>
    <message>
        <source>Show the slideshows made so far</source>
        <translation>Показать созданные слайд-шоу</translation>
    </message>
    <message>
        <source>Change how new slideshows begin</source>
        <translation>Изменить, как начинаются новые слайд-шоу</translation>
    </message>
    <message>
        <source>Help and keyboard shortcuts</source>
        <translation>Справка и сочетания клавиш</translation>
    </message>
    <message>
        <source>Last slideshow: %1</source>
        <translation>Последнее слайд-шоу: %1</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Открыть папку</translation>
    </message>
</context>
<context>
    <name>velmora::ToolRunner</name>
    <message>
        <source>It could not be started.</source>
        <translation>Его не удалось запустить.</translation>
    </message>
    <message>
        <source>It ended unexpectedly.</source>
        <translation>Он неожиданно завершился.</translation>
    </message>
    <message>
        <source>It ended with code %1.</source>
        <translation>Он завершился с кодом %1.</translation>
    </message>
</context>
<context>
    <name>velmora::UpdateDialog</name>
    <message>
        <source>Update available!</source>
        <translation>Доступно обновление!</translation>
    </message>
    <message>
        <source>New version of the programm is avalible:</source>
        <translation>Доступна новая версия программы:</translation>
    </message>
    <message>
        <source>Read about</source>
        <translation>Узнать про</translation>
    </message>
    <message>
        <source>new feauters</source>
        <translation>новые возможности</translation>
    </message>
</context>
<context>
    <name>velmora::UploadController</name>
    <message>
        <source>Uploading to %1 is not configured. The addresses and the registration of the service belong into the file '%2'.</source>
        <translation>Загрузка в %1 не настроена. Адреса и регистрация сервиса указываются в файле «%2».</translation>
    </message>
</context>
<context>
    <name>velmora::UploadServiceMenu</name>
    <message>
        <source>Services</source>
        <translation>Сервисы</translation>
    </message>
</context>
<context>
    <name>velmora::UploadSuccessWindow</name>
    <message>
        <source>Shows the file in the browser</source>
        <translation>Показывает файл в браузере</translation>
    </message>
</context>
<context>
    <name>velmora::VideoPlayerWidget</name>
    <message>
        <source>Add photos to see the slideshow here</source>
        <translation>Добавьте фото, чтобы увидеть здесь слайд-шоу</translation>
    </message>
    <message>
        <source>Preview transition to slide %1</source>
        <translation>Просмотр перехода к слайду %1</translation>
    </message>
    <message>
        <source>Full preview</source>
        <translation>Полный просмотр</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Пауза (Пробел)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Играть (Пробел)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Играть</translation>
    </message>
    <message>
        <source>Sound on (M)</source>
        <translation>Включить звук (M)</translation>
    </message>
    <message>
        <source>Mute (M)</source>
        <translation>Без звука (M)</translation>
    </message>
</context>
<context>
    <name>velmora::VideoUtil</name>
    <message>
        <source>The disk is full.</source>
        <translation>Диск полон.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Отменено.</translation>
    </message>
    <message>
        <source>The encoder failed: %1</source>
        <translation>Ошибка кодировщика: %1</translation>
    </message>
    <message>
        <source>The encoder wrote nothing to %1.</source>
        <translation>Кодировщик ничего не записал в %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 не записывается.</translation>
    </message>
    <message>
        <source>There are no frames to encode.</source>
        <translation>Нет кадров для кодирования.</translation>
    </message>
    <message>
        <source>The part %1 of the video is missing.</source>
        <translation>Нет части видео %1.</translation>
    </message>
    <message>
        <source>The program "transcoder" is missing beside this program.</source>
        <translation>Рядом с этой программой нет программы «transcoder».</translation>
    </message>
</context>
<context>
    <name>velmora::WavTranscoder</name>
    <message>
        <source>The music file '%1' cannot be read: %2</source>
        <translation>Музыкальный файл «%1» не читается: %2</translation>
    </message>
    <message>
        <source>The file '%1' cannot be written: %2</source>
        <translation>Файл «%1» не записывается: %2</translation>
    </message>
    <message>
        <source>Nothing in it can be played.</source>
        <translation>В нём нечего воспроизводить.</translation>
    </message>
</context>
<context>
    <name>velmora::WavWriter</name>
    <message>
        <source>The older file of that name cannot be replaced.</source>
        <translation>Старый файл с этим именем не удаётся заменить.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Диск полон.</translation>
    </message>
</context>
<context>
    <name>velmora::WebLoginDialog</name>
    <message>
        <source>Sign in</source>
        <translation>Войти</translation>
    </message>
    <message>
        <source>Sign-in page of the service</source>
        <translation>Страница входа сервиса</translation>
    </message>
    <message>
        <source>Authorization error</source>
        <translation>Ошибка авторизации</translation>
    </message>
</context>
<context>
    <name>velmora::WorkerMain</name>
    <message>
        <source>A render worker needs --session_id, --cache and --request, and nothing else.</source>
        <translation>Процессу создания нужны --session_id, --cache и --request, и ничего больше.</translation>
    </message>
    <message>
        <source>The request "%1" cannot be used: %2</source>
        <translation>Запрос «%1» непригоден: %2</translation>
    </message>
</context>
<context>
    <name>velmora::UploaderFactory</name>
    <message>
        <source>This copy of the program cannot upload videos: it was built without the component that signs in to services (Qt NetworkAuth).</source>
        <translation>Этот экземпляр программы не может загружать видео: он собран без компонента для входа в сервисы (Qt NetworkAuth).</translation>
    </message>
</context>
<context>
    <name>velmora::DiscWriter</name>
    <message>
        <source>This copy of the program cannot burn discs on this system.</source>
        <translation>Этот экземпляр программы не может записывать диски в этой системе.</translation>
    </message>
</context>
</TS>