<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AnswerPage</name>
    <message>
        <source>Service has been connected</source>
        <translation>El servicio se ha conectado</translation>
    </message>
    <message>
        <source>successfully</source>
        <translation>correctamente</translation>
    </message>
    <message>
        <source>Service has not been</source>
        <translation>El servicio no se ha</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>conectado</translation>
    </message>
    <message>
        <source>You can close this page</source>
        <translation>Puede cerrar esta página</translation>
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
        <translation>Dejar de añadir</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Lista de reproducción</translation>
    </message>
    <message>
        <source>Add Audio</source>
        <translation>Añadir audio</translation>
    </message>
    <message>
        <source>Add Audio (Ctrl+M)</source>
        <translation>Añadir audio (Ctrl+M)</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Bucle</translation>
    </message>
    <message>
        <source>Repeats the playlist until the slideshow ends.</source>
        <translation>Repite la lista de reproducción hasta el final de la presentación.</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Desfase</translation>
    </message>
    <message>
        <source>Choose offset of selected audio file. Negative offset means audio file will start playing immediately, shifted by specified time. Positive offset means audio file will start playing from the specified time.</source>
        <translation>Elija el desfase del archivo de audio seleccionado. Con un desfase negativo, el archivo de audio empieza de inmediato, desplazado el tiempo indicado. Con un desfase positivo, se reproduce desde el tiempo indicado.</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Fundido</translation>
    </message>
    <message>
        <source>Choose duration of fade effect for audio track. 0 means no fade.</source>
        <translation>Elija la duración del fundido de la pista de audio. 0 significa sin fundido.</translation>
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
        <translation>Unidad:</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Look for drives and discs again</source>
        <translation>Buscar de nuevo unidades y discos</translation>
    </message>
    <message>
        <source>Disc title:</source>
        <translation>Título del disco:</translation>
    </message>
    <message>
        <source>Disc title</source>
        <translation>Título del disco</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Nombre del archivo:</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre del archivo</translation>
    </message>
    <message>
        <source>Finalize disk</source>
        <translation>Finalizar el disco</translation>
    </message>
    <message>
        <source>Finalization means that the disc cannot have any additional data written to it afterwards. This option is needed by most DVD-players.</source>
        <translation>Tras finalizar el disco ya no se pueden escribir más datos en él. La mayoría de los reproductores de DVD necesita esta opción.</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>GRABAR DVD</translation>
    </message>
    <message>
        <source>Disk is not empty</source>
        <translation>El disco no está vacío</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Erase the disc, then burn</source>
        <translation>Borrar el disco y después grabar</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Add the video to what is on the disc</source>
        <translation>Añadir el vídeo a lo que hay en el disco</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Go back without burning</source>
        <translation>Volver sin grabar</translation>
    </message>
    <message>
        <source>Writing disk</source>
        <translation>Escribiendo el disco</translation>
    </message>
    <message>
        <source>Progress of writing</source>
        <translation>Progreso de la escritura</translation>
    </message>
    <message>
        <source>Elapsed time:</source>
        <translation>Tiempo transcurrido:</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>Stop writing</source>
        <translation>Detener la escritura</translation>
    </message>
    <message>
        <source>Burning result:</source>
        <translation>Resultado de la grabación:</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CERRAR</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>Creation error</source>
        <translation>Error de creación</translation>
    </message>
</context>
<context>
    <name>CreatePanel</name>
    <message>
        <source>Filename:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Name of the video file</source>
        <translation>Nombre del archivo de vídeo</translation>
    </message>
    <message>
        <source>Format of the video file</source>
        <translation>Formato del archivo de vídeo</translation>
    </message>
    <message>
        <source>PREVIEW</source>
        <translation>VISTA PREVIA</translation>
    </message>
    <message>
        <source>CREATE</source>
        <translation>CREAR</translation>
    </message>
    <message>
        <source>Progress of the video</source>
        <translation>Progreso del vídeo</translation>
    </message>
    <message>
        <source>Time elapsed: 0:00:00</source>
        <translation>Tiempo transcurrido: 0:00:00</translation>
    </message>
    <message>
        <source>Time Remaining: 0:00:00</source>
        <translation>Tiempo restante: 0:00:00</translation>
    </message>
</context>
<context>
    <name>DesktopNotification</name>
    <message>
        <source>Show the window</source>
        <translation>Mostrar la ventana</translation>
    </message>
</context>
<context>
    <name>DiscFileName</name>
    <message>
        <source>Enter a file name.</source>
        <translation>Introduzca un nombre de archivo.</translation>
    </message>
    <message>
        <source>The file name is too long for a disc.</source>
        <translation>El nombre del archivo es demasiado largo para un disco.</translation>
    </message>
    <message>
        <source>The file name must not contain any of / \ : * ? " &lt; &gt; |</source>
        <translation>El nombre del archivo no puede contener ninguno de estos: / \ : * ? " &lt; &gt; |</translation>
    </message>
</context>
<context>
    <name>FinalWindow</name>
    <message>
        <source>Conversion has been completed</source>
        <translation>La conversión ha terminado</translation>
    </message>
    <message>
        <source>Congratulations to all files in your folder, open it to view them!</source>
        <translation>¡Enhorabuena! Todos los archivos están en su carpeta. ¡Ábrala para verlos!</translation>
    </message>
    <message>
        <source>OPEN FOLDER</source>
        <translation>ABRIR CARPETA</translation>
    </message>
    <message>
        <source>Upload the video to this service</source>
        <translation>Subir el vídeo a este servicio</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>GRABAR DVD</translation>
    </message>
    <message>
        <source>Burn the video to a disc</source>
        <translation>Grabar el vídeo en un disco</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CERRAR</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>The history has become too large.</source>
        <translation>El historial ha crecido demasiado.</translation>
    </message>
</context>
<context>
    <name>HistoryWidget</name>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>CLEAR HISTORY</source>
        <translation>BORRAR HISTORIAL</translation>
    </message>
    <message>
        <source>Finished videos</source>
        <translation>Vídeos terminados</translation>
    </message>
    <message>
        <source>UNDO</source>
        <translation>DESHACER</translation>
    </message>
    <message>
        <source>Bring back what was removed (Ctrl+Z)</source>
        <translation>Recuperar lo quitado (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Close this note</source>
        <translation>Cerrar esta nota</translation>
    </message>
    <message>
        <source>RESUME PROJECT</source>
        <translation>REANUDAR PROYECTO</translation>
    </message>
    <message>
        <source>Open the project of the selected video in the editor</source>
        <translation>Abrir el proyecto del vídeo seleccionado en el editor</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>GRABAR DVD</translation>
    </message>
    <message>
        <source>Burn the selected video to a disc</source>
        <translation>Grabar el vídeo seleccionado en un disco</translation>
    </message>
    <message>
        <source>UPLOAD</source>
        <translation>SUBIR</translation>
    </message>
    <message>
        <source>Upload the selected video to a service</source>
        <translation>Subir el vídeo seleccionado a un servicio</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>Progreso de la subida</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>Connection ...</source>
        <translation>Conectando ...</translation>
    </message>
    <message>
        <source>Sign in on the page that was opened in your browser.</source>
        <translation>Inicie sesión en la página que se ha abierto en el navegador.</translation>
    </message>
</context>
<context>
    <name>HttpAnswer</name>
    <message>
        <source>The service cannot be reached.</source>
        <translation>No se puede acceder al servicio.</translation>
    </message>
    <message>
        <source>The connection to the service was lost.</source>
        <translation>Se ha perdido la conexión con el servicio.</translation>
    </message>
    <message>
        <source>The connection to the service is not secure.</source>
        <translation>La conexión con el servicio no es segura.</translation>
    </message>
    <message>
        <source>The service does not answer.</source>
        <translation>El servicio no responde.</translation>
    </message>
    <message>
        <source>The answer of the service cannot be understood.</source>
        <translation>No se entiende la respuesta del servicio.</translation>
    </message>
</context>
<context>
    <name>ImageLoader</name>
    <message>
        <source>is not a picture that can be read</source>
        <translation>no es una imagen legible</translation>
    </message>
    <message>
        <source>is damaged or incomplete</source>
        <translation>está dañada o incompleta</translation>
    </message>
    <message>
        <source>does not exist</source>
        <translation>no existe</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>no se puede abrir</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>está vacía</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>is too large (%1 x %2 pixels)</source>
        <translation>es demasiado grande (%1 x %2 píxeles)</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>The file is larger than %1 MB.</source>
        <translation>El archivo supera %1 MB.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>No es un archivo normal.</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>The folder "%1" does not exist any more.</source>
        <translation>La carpeta «%1» ya no existe.</translation>
    </message>
    <message>
        <source>There is no program to show the folder "%1".</source>
        <translation>No hay ningún programa para mostrar la carpeta «%1».</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Imágenes (%1)</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Añadir carpeta</translation>
    </message>
</context>
<context>
    <name>MediaSuffixes</name>
    <message>
        <source>The folder cannot be read.</source>
        <translation>No se puede leer la carpeta.</translation>
    </message>
</context>
<context>
    <name>ProjectName</name>
    <message>
        <source>Project name should not contain any of these symbols: *:[]{}\/!</source>
        <translation>El nombre del proyecto no puede contener ninguno de estos símbolos: *:[]{}\/!</translation>
    </message>
</context>
<context>
    <name>SetNameForm</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Title of the video</source>
        <translation>Título del vídeo</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>UPDATE</source>
        <translation>ACTUALIZAR</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Close the settings</source>
        <translation>Cerrar los ajustes</translation>
    </message>
    <message>
        <source>Close without saving (Esc)</source>
        <translation>Cerrar sin guardar (Esc)</translation>
    </message>
    <message>
        <source>Default Settings for slideshow:</source>
        <translation>Ajustes predeterminados de la presentación:</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>How long a new slide is shown</source>
        <translation>Cuánto se muestra una diapositiva nueva</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Transición</translation>
    </message>
    <message>
        <source>How a new slide comes in</source>
        <translation>Cómo entra una diapositiva nueva</translation>
    </message>
    <message>
        <source>Transition Time</source>
        <translation>Duración de transición</translation>
    </message>
    <message>
        <source>How long each transition lasts</source>
        <translation>Cuánto dura cada transición</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>The size of the picture of a new slideshow</source>
        <translation>El tamaño de imagen de una presentación nueva</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Ajustar al tamaño</translation>
    </message>
    <message>
        <source>Enlarge small photos so that they fill the picture</source>
        <translation>Ampliar las fotos pequeñas para que llenen la imagen</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Proporción original</translation>
    </message>
    <message>
        <source>Keep the shape of the photos instead of stretching them</source>
        <translation>Mantener la forma de las fotos en vez de estirarlas</translation>
    </message>
    <message>
        <source>Default audio settings:</source>
        <translation>Ajustes predeterminados de audio:</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Desfase</translation>
    </message>
    <message>
        <source>When the music begins</source>
        <translation>Cuándo empieza la música</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Fundido</translation>
    </message>
    <message>
        <source>How long the music takes to come and go</source>
        <translation>Cuánto tarda la música en entrar y salir</translation>
    </message>
    <message>
        <source>Export options:</source>
        <translation>Opciones de exportación:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>The folder that videos are written to</source>
        <translation>La carpeta donde se escriben los vídeos</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Elegir la carpeta</translation>
    </message>
    <message>
        <source>Output profile</source>
        <translation>Perfil de salida</translation>
    </message>
    <message>
        <source>Original quality keeps every detail. Plays everywhere makes smaller files that televisions and phones play too.</source>
        <translation>«Calidad original» conserva cada detalle. «Se ve en todas partes» crea archivos más pequeños que también reproducen televisores y teléfonos.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>The language of the program</source>
        <translation>El idioma del programa</translation>
    </message>
    <message>
        <source>Increase speed of generation</source>
        <translation>Acelerar la creación</translation>
    </message>
    <message>
        <source>Make two slides at the same time</source>
        <translation>Crear dos diapositivas a la vez</translation>
    </message>
    <message>
        <source>Check for the updates automatically</source>
        <translation>Buscar actualizaciones automáticamente</translation>
    </message>
    <message>
        <source>Send anonymous usage statistics</source>
        <translation>Enviar estadísticas de uso anónimas</translation>
    </message>
    <message>
        <source>Helps to improve the program. No names, photos or texts are sent.</source>
        <translation>Ayuda a mejorar el programa. No se envían nombres, fotos ni textos.</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>GUARDAR</translation>
    </message>
    <message>
        <source>Save the settings (Ctrl+Enter)</source>
        <translation>Guardar los ajustes (Ctrl+Intro)</translation>
    </message>
</context>
<context>
    <name>SlidesPage</name>
    <message>
        <source>Slides</source>
        <translation>Diapositivas</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Mezclar fotos</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Ordenar fotos</translation>
    </message>
    <message>
        <source>Rotate photo</source>
        <translation>Girar foto</translation>
    </message>
    <message>
        <source>Rotate photo to the left</source>
        <translation>Girar foto a la izquierda</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Eliminar diapositivas</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Mostrar de nuevo la diapositiva de título</translation>
    </message>
    <message>
        <source>Change all:</source>
        <translation>Cambiar todo:</translation>
    </message>
    <message>
        <source>Time of every slide</source>
        <translation>Tiempo de todas las diapositivas</translation>
    </message>
    <message>
        <source>Transition of every slide</source>
        <translation>Transición de todas las diapositivas</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Show what the slideshow is made of</source>
        <translation>Mostrar de qué se compone la presentación</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Vaciar lista</translation>
    </message>
</context>
<context>
    <name>TextEditWidget</name>
    <message>
        <source>Back to the slides (Esc)</source>
        <translation>Volver a las diapositivas (Esc)</translation>
    </message>
    <message>
        <source>Back to the slides</source>
        <translation>Volver a las diapositivas</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Texto:</translation>
    </message>
    <message>
        <source>Text here</source>
        <translation>Texto aquí</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Also the title slide</source>
        <translation>También la diapositiva de título</translation>
    </message>
    <message>
        <source>Text settings:</source>
        <translation>Ajustes del texto:</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Bg Color</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Efecto</translation>
    </message>
    <message>
        <source>Effect with which the text appears</source>
        <translation>Efecto con que aparece el texto</translation>
    </message>
    <message>
        <source>Show how the text appears (F5)</source>
        <translation>Mostrar cómo aparece el texto (F5)</translation>
    </message>
    <message>
        <source>Show how the text appears</source>
        <translation>Mostrar cómo aparece el texto</translation>
    </message>
    <message>
        <source>Text position:</source>
        <translation>Posición del texto:</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>Posición del texto</translation>
    </message>
    <message>
        <source>Picture of the slide</source>
        <translation>Imagen de la diapositiva</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Fondo:</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>Leave the slide as it was (Esc)</source>
        <translation>Dejar la diapositiva como estaba (Esc)</translation>
    </message>
    <message>
        <source>SAVE TEXT</source>
        <translation>GUARDAR TEXTO</translation>
    </message>
    <message>
        <source>Save (Ctrl+Enter)</source>
        <translation>Guardar (Ctrl+Intro)</translation>
    </message>
</context>
<context>
    <name>ToolRow</name>
    <message>
        <source>Add Photo</source>
        <translation>Añadir foto</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Open the folder of the last video</source>
        <translation>Abrir la carpeta del último vídeo</translation>
    </message>
</context>
<context>
    <name>TransitionType</name>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Aleatoria</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Pixelar</translation>
    </message>
    <message>
        <source>Mosaic Spiral In</source>
        <translation>Mosaico en espiral hacia dentro</translation>
    </message>
    <message>
        <source>Mosaic Spiral Out</source>
        <translation>Mosaico en espiral hacia fuera</translation>
    </message>
    <message>
        <source>Mosaic Strips</source>
        <translation>Mosaico en tiras</translation>
    </message>
    <message>
        <source>Mosaic Wall</source>
        <translation>Mosaico en muro</translation>
    </message>
    <message>
        <source>Checkerboard</source>
        <translation>Tablero</translation>
    </message>
    <message>
        <source>Rotate Single Out</source>
        <translation>Giro de salida</translation>
    </message>
    <message>
        <source>Rotate Single In</source>
        <translation>Giro de entrada</translation>
    </message>
    <message>
        <source>Flip Over</source>
        <translation>Voltear</translation>
    </message>
    <message>
        <source>Wipe Left To Right</source>
        <translation>Barrido de izquierda a derecha</translation>
    </message>
    <message>
        <source>Wipe Right To Left</source>
        <translation>Barrido de derecha a izquierda</translation>
    </message>
    <message>
        <source>Wipe Top To Bottom</source>
        <translation>Barrido de arriba abajo</translation>
    </message>
    <message>
        <source>Wipe Bottom To Top</source>
        <translation>Barrido de abajo arriba</translation>
    </message>
    <message>
        <source>Wipe Vertical In</source>
        <translation>Barrido vertical hacia dentro</translation>
    </message>
    <message>
        <source>Wipe Vertical Out</source>
        <translation>Barrido vertical hacia fuera</translation>
    </message>
    <message>
        <source>Stretch Horizontal</source>
        <translation>Estirar en horizontal</translation>
    </message>
    <message>
        <source>Stretch Vertical</source>
        <translation>Estirar en vertical</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Slide From Bottom</source>
        <translation>Deslizar desde abajo</translation>
    </message>
    <message>
        <source>Slide From Left</source>
        <translation>Deslizar desde la izquierda</translation>
    </message>
    <message>
        <source>Slide From Right</source>
        <translation>Deslizar desde la derecha</translation>
    </message>
    <message>
        <source>Slide From Top</source>
        <translation>Deslizar desde arriba</translation>
    </message>
    <message>
        <source>Slide From Top Left</source>
        <translation>Deslizar desde arriba a la izquierda</translation>
    </message>
    <message>
        <source>Fade To Black</source>
        <translation>Fundido a negro</translation>
    </message>
    <message>
        <source>Cross fade</source>
        <translation>Fundido cruzado</translation>
    </message>
    <message>
        <source>Fade To White</source>
        <translation>Fundido a blanco</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocida</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>DOWNLOAD</source>
        <translation>DESCARGAR</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
</context>
<context>
    <name>UploadFailWindow</name>
    <message>
        <source>Upload stopped with error</source>
        <translation>La subida se detuvo por un error</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CERRAR</translation>
    </message>
</context>
<context>
    <name>UploadSuccessWindow</name>
    <message>
        <source>Uploading has been completed</source>
        <translation>La subida ha terminado</translation>
    </message>
    <message>
        <source>Congratulations! Your file upload to %1 was successful!</source>
        <translation>¡Enhorabuena! ¡Su archivo se ha subido a %1 correctamente!</translation>
    </message>
    <message>
        <source>OPEN</source>
        <translation>ABRIR</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CERRAR</translation>
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
        <translation>Imagen del vídeo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Position in the video (arrow keys)</source>
        <translation>Posición en el vídeo (teclas de flecha)</translation>
    </message>
    <message>
        <source>Position in the video</source>
        <translation>Posición en el vídeo</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duración</translation>
    </message>
</context>
<context>
    <name>velmora::VideoDialog</name>
    <message>
        <source>Pause (Space)</source>
        <translation>Pausa (Espacio)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Reproducir (Espacio)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
</context>
<context>
    <name>VideoPlayerWidget</name>
    <message>
        <source>Full preview</source>
        <translation>Vista previa completa</translation>
    </message>
    <message>
        <source>Preview picture</source>
        <translation>Imagen de la vista previa</translation>
    </message>
    <message>
        <source>Position in the preview (arrow keys)</source>
        <translation>Posición en la vista previa (teclas de flecha)</translation>
    </message>
    <message>
        <source>Position in the preview</source>
        <translation>Posición en la vista previa</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Reproducir (Espacio)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Mute (M)</source>
        <translation>Silenciar (M)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Full screen (F)</source>
        <translation>Pantalla completa (F)</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Preview slideshow</source>
        <translation>Ver presentación</translation>
    </message>
    <message>
        <source>Play the whole slideshow</source>
        <translation>Reproducir toda la presentación</translation>
    </message>
    <message>
        <source>Repeat transition</source>
        <translation>Repetir transición</translation>
    </message>
    <message>
        <source>Play the transition to the selected slide</source>
        <translation>Reproducir la transición a la diapositiva seleccionada</translation>
    </message>
</context>
<context>
    <name>VideoSettings</name>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Choose resolution of your slideshow</source>
        <translation>Elija la resolución de la presentación</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Transition duration</source>
        <translation>Duración de transición</translation>
    </message>
    <message>
        <source>Choose length of transition effects. Affects all transitions in current slideshow</source>
        <translation>Elija la duración de los efectos de transición. Afecta a todas las transiciones de la presentación actual</translation>
    </message>
    <message>
        <source>If you want images to be resized to fit the screen leave the checkbox checked. Otheriwse they stay original size.</source>
        <translation>Deje la casilla marcada si quiere que las imágenes se ajusten a la pantalla. Si no, conservan su tamaño original.</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Ajustar al tamaño</translation>
    </message>
    <message>
        <source>If you want to keep original aspect ratio of the photos leave checkbox checked. Otherwise they will be stretched to chosen resolution.</source>
        <translation>Deje la casilla marcada si quiere conservar la proporción de las fotos. Si no, se estiran a la resolución elegida.</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Proporción original</translation>
    </message>
</context>
<context>
    <name>velmora::AudioDecoder</name>
    <message>
        <source>There is no sound in it.</source>
        <translation>No contiene sonido.</translation>
    </message>
    <message>
        <source>The sound format "%1" is not supported.</source>
        <translation>El formato de sonido «%1» no se admite.</translation>
    </message>
</context>
<context>
    <name>velmora::AudioFilesController</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 no se puede leer.</translation>
    </message>
    <message>
        <source>%1, cannot be read</source>
        <translation>%1, no se puede leer</translation>
    </message>
    <message>
        <source>%1, length %2</source>
        <translation>%1, duración %2</translation>
    </message>
    <message>
        <source>Audio Files (%1)</source>
        <translation>Archivos de audio (%1)</translation>
    </message>
</context>
<context>
    <name>velmora::AudioListWidget</name>
    <message>
        <source>Adding: %1</source>
        <translation>Añadiendo: %1</translation>
    </message>
    <message>
        <source>Adding...</source>
        <translation>Añadiendo ...</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Escuchando</translation>
    </message>
    <message>
        <source>%1 cannot be played: %2</source>
        <translation>%1 no se puede reproducir: %2</translation>
    </message>
    <message>
        <source>Drag &amp; drop audio files to create a playlist</source>
        <translation>Arrastre archivos de audio para crear una lista de reproducción</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Stop listening</source>
        <translation>Dejar de escuchar</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>Escuchar</translation>
    </message>
    <message>
        <source>Total: %1 %2 (%3)</source>
        <translation>Total: %1 %2 (%3)</translation>
    </message>
    <message>
        <source>track</source>
        <translation>pistas</translation>
    </message>
    <message>
        <source>tracks</source>
        <translation>pistas</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Adding audio files</source>
        <translation>Añadir archivos de audio</translation>
    </message>
    <message>
        <source>Not all audio files have been added</source>
        <translation>No se han añadido todos los archivos de audio</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CERRAR</translation>
    </message>
</context>
<context>
    <name>velmora::AudioNoFocusRectangleDelegate</name>
    <message>
        <source>missing</source>
        <translation>falta</translation>
    </message>
    <message>
        <source>Listen (Space)</source>
        <translation>Escuchar (Espacio)</translation>
    </message>
    <message>
        <source>Stop (Space)</source>
        <translation>Detener (Espacio)</translation>
    </message>
    <message>
        <source>Delete (Del)</source>
        <translation>Eliminar (Supr)</translation>
    </message>
</context>
<context>
    <name>velmora::BackgroundPicker</name>
    <message>
        <source>Background %1</source>
        <translation>Fondo %1</translation>
    </message>
</context>
<context>
    <name>velmora::BaseOauth2Uploader</name>
    <message>
        <source>source file not found</source>
        <translation>no se encuentra el archivo de origen</translation>
    </message>
    <message>
        <source>can't open source file for reading</source>
        <translation>no se puede abrir el archivo de origen para leerlo</translation>
    </message>
    <message>
        <source>Operation was canceled</source>
        <translation>La operación se ha cancelado</translation>
    </message>
    <message>
        <source>Authorization error</source>
        <translation>Error de autorización</translation>
    </message>
    <message>
        <source>There is no program to show the sign-in page.</source>
        <translation>No hay ningún programa para mostrar la página de inicio de sesión.</translation>
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
        <translation>Libre</translation>
    </message>
    <message>
        <source>Burn DVD</source>
        <translation>Grabar DVD</translation>
    </message>
    <message>
        <source>My slideshow</source>
        <translation>Mi presentación</translation>
    </message>
    <message>
        <source>Looking for drives…</source>
        <translation>Buscando unidades…</translation>
    </message>
    <message>
        <source>No drive that can write discs was found.</source>
        <translation>No se ha encontrado ninguna unidad que grabe discos.</translation>
    </message>
    <message>
        <source>Looking at the disc…</source>
        <translation>Examinando el disco…</translation>
    </message>
    <message>
        <source>Media disk is not ready</source>
        <translation>El disco no está listo</translation>
    </message>
    <message>
        <source>There is not enough disc space for the slideshow</source>
        <translation>No hay espacio suficiente en el disco para la presentación</translation>
    </message>
    <message>
        <source>Disc is not empty. Do you want to erase disc before burning?
Press "Yes" if you want to erase disc before burning.
Press "No" if you want just to burn (add) new files to the disc.
Press "Cancel" to cancel the operation.</source>
        <translation>El disco no está vacío. ¿Desea borrarlo antes de grabar?
Pulse «Sí» para borrar el disco antes de grabar.
Pulse «No» para solo grabar (añadir) los archivos nuevos en el disco.
Pulse «Cancelar» para cancelar la operación.</translation>
    </message>
    <message>
        <source>Disc is not empty. Do you want to erase disc before burning?
Press "Yes" if you want to erase disc before burning.
Press "Cancel" to cancel the operation.</source>
        <translation>El disco no está vacío. ¿Desea borrarlo antes de grabar?
Pulse «Sí» para borrar el disco antes de grabar.
Pulse «Cancelar» para cancelar la operación.</translation>
    </message>
    <message>
        <source>A disc whose writing is stopped can become unusable. Stop writing?</source>
        <translation>Un disco cuya escritura se detiene puede quedar inservible. ¿Detener la escritura?</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>DETENER</translation>
    </message>
    <message>
        <source>GO ON</source>
        <translation>SEGUIR</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>The video is on the disc.</source>
        <translation>El vídeo está en el disco.</translation>
    </message>
    <message>
        <source>The video was not written to the disc. The file on your computer is as it was.</source>
        <translation>El vídeo no se ha escrito en el disco. El archivo de su equipo no ha cambiado.</translation>
    </message>
</context>
<context>
    <name>velmora::BusyNote</name>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Stop and leave everything as it was</source>
        <translation>Detener y dejar todo como estaba</translation>
    </message>
</context>
<context>
    <name>velmora::ColorBox</name>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>Gris claro</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>Gris oscuro</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Rojo oscuro</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Oro</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Arena</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Marrón</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>Lima</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Aqua</source>
        <translation>Turquesa</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>Azul cielo</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violeta</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Otro ...</translation>
    </message>
</context>
<context>
    <name>velmora::ComboBoxItemDelegate</name>
    <message>
        <source>Choose for this slide, or for all selected ones</source>
        <translation>Elegir para esta diapositiva o para todas las seleccionadas</translation>
    </message>
</context>
<context>
    <name>velmora::Composer</name>
    <message>
        <source>The render program %1 could not be started: %2</source>
        <translation>No se ha podido iniciar el programa de creación %1: %2</translation>
    </message>
    <message>
        <source>The render program ended unexpectedly.</source>
        <translation>El programa de creación ha terminado de forma inesperada.</translation>
    </message>
</context>
<context>
    <name>velmora::ConcatList</name>
    <message>
        <source>The file name "%1" contains a line break.</source>
        <translation>El nombre de archivo «%1» contiene un salto de línea.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 no se puede escribir: %2</translation>
    </message>
</context>
<context>
    <name>velmora::CreatePanel</name>
    <message>
        <source>Make the video</source>
        <translation>Crear el vídeo</translation>
    </message>
    <message>
        <source>Play the whole slideshow</source>
        <translation>Reproducir toda la presentación</translation>
    </message>
    <message>
        <source>The video cannot be made</source>
        <translation>No se puede crear el vídeo</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CERRAR</translation>
    </message>
    <message>
        <source>The video is ready, but it could not be entered in the history: %1</source>
        <translation>El vídeo está listo, pero no se ha podido añadir al historial: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressPage</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Time Elapsed: %1</source>
        <translation>Tiempo transcurrido: %1</translation>
    </message>
    <message>
        <source>Time Remaining: %1</source>
        <translation>Tiempo restante: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Finishing the video</source>
        <translation>Terminando el vídeo</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Preparando</translation>
    </message>
    <message>
        <source>Making the video (%1x)</source>
        <translation>Creando el vídeo (%1x)</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
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
        <translation>Nombre</translation>
    </message>
    <message>
        <source>The video needs a file name.</source>
        <translation>El vídeo necesita un nombre de archivo.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist and cannot be made.</source>
        <translation>La carpeta %1 no existe y no se puede crear.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to: %2</source>
        <translation>No se puede escribir en la carpeta %1: %2</translation>
    </message>
    <message>
        <source>The video cannot be saved</source>
        <translation>No se puede guardar el vídeo</translation>
    </message>
    <message>
        <source>Please choose another folder in the settings.</source>
        <translation>Elija otra carpeta en los ajustes.</translation>
    </message>
    <message>
        <source>Replace the video</source>
        <translation>Reemplazar el vídeo</translation>
    </message>
    <message>
        <source>The file %1 exists already. Do you want to replace it?</source>
        <translation>El archivo %1 ya existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>REPLACE</source>
        <translation>REEMPLAZAR</translation>
    </message>
</context>
<context>
    <name>velmora::RenderedProject</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>No se puede crear la carpeta %1.</translation>
    </message>
</context>
<context>
    <name>velmora::DocumentActions</name>
    <message>
        <source>Unsaved changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>Do you want to save the changes to "%1"?</source>
        <translation>¿Desea guardar los cambios de «%1»?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>DON'T SAVE</source>
        <translation>NO GUARDAR</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>GUARDAR</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Cerrar el programa</translation>
    </message>
    <message>
        <source>A video is being made. If you close the program now, it is lost.</source>
        <translation>Se está creando un vídeo. Si cierra el programa ahora, se perderá.</translation>
    </message>
    <message>
        <source>A video is being uploaded. If you close the program now, it is not completed.</source>
        <translation>Se está subiendo un vídeo. Si cierra el programa ahora, no se completará.</translation>
    </message>
    <message>
        <source>STOP AND CLOSE</source>
        <translation>DETENER Y CERRAR</translation>
    </message>
    <message>
        <source>GO ON</source>
        <translation>SEGUIR</translation>
    </message>
    <message>
        <source>Restore the slideshow</source>
        <translation>Restaurar la presentación</translation>
    </message>
    <message>
        <source>The program ended before "%1" was saved. Do you want to restore it?</source>
        <translation>El programa terminó antes de guardar «%1». ¿Desea restaurarla?</translation>
    </message>
    <message>
        <source>DISCARD</source>
        <translation>DESCARTAR</translation>
    </message>
    <message>
        <source>RESTORE</source>
        <translation>RESTAURAR</translation>
    </message>
    <message>
        <source>Open a slideshow</source>
        <translation>Abrir una presentación</translation>
    </message>
    <message>
        <source>The file "%1" cannot be opened as a slideshow.</source>
        <translation>El archivo «%1» no se puede abrir como presentación.</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CERRAR</translation>
    </message>
    <message>
        <source>Slideshows (*.json)</source>
        <translation>Presentaciones (*.json)</translation>
    </message>
    <message>
        <source>Save the slideshow</source>
        <translation>Guardar la presentación</translation>
    </message>
    <message>
        <source>The slideshow cannot be saved to "%1".</source>
        <translation>La presentación no se puede guardar en «%1».</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxClient::ApiRequest</name>
    <message>
        <source>Unknown error</source>
        <translation>Error desconocido</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxClient::DropboxUploader</name>
    <message>
        <source>source file not found</source>
        <translation>no se encuentra el archivo de origen</translation>
    </message>
    <message>
        <source>can't open source file for reading</source>
        <translation>no se puede abrir el archivo de origen para leerlo</translation>
    </message>
    <message>
        <source>The answer of the service cannot be understood.</source>
        <translation>No se entiende la respuesta del servicio.</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxUpload</name>
    <message>
        <source>Operation was canceled</source>
        <translation>La operación se ha cancelado</translation>
    </message>
</context>
<context>
    <name>velmora::EditorSide</name>
    <message>
        <source>Preview and settings</source>
        <translation>Vista previa y ajustes</translation>
    </message>
</context>
<context>
    <name>velmora::EncoderAdvice</name>
    <message>
        <source>FFmpeg was not found. Please install it (on Debian and Ubuntu: sudo apt install ffmpeg).</source>
        <translation>No se ha encontrado FFmpeg. Instálelo (en Debian y Ubuntu: sudo apt install ffmpeg).</translation>
    </message>
    <message>
        <source>FFmpeg %1 (%2) is too old. Please install version 4.4 or newer (on Debian and Ubuntu: sudo apt install ffmpeg).</source>
        <translation>FFmpeg %1 (%2) es demasiado antiguo. Instale la versión 4.4 o posterior (en Debian y Ubuntu: sudo apt install ffmpeg).</translation>
    </message>
    <message>
        <source>FFmpeg was not found. It comes with Velmora: please install Velmora again, or put ffmpeg.exe into its folder.</source>
        <translation>No se ha encontrado FFmpeg. Se incluye con Velmora: vuelva a instalar Velmora o copie ffmpeg.exe en su carpeta.</translation>
    </message>
    <message>
        <source>FFmpeg %1 (%2) is too old. Please install Velmora again, or put ffmpeg.exe of version 4.4 or newer into its folder.</source>
        <translation>FFmpeg %1 (%2) es demasiado antiguo. Vuelva a instalar Velmora o copie ffmpeg.exe 4.4 o posterior en su carpeta.</translation>
    </message>
</context>
<context>
    <name>velmora::FinalWindow</name>
    <message>
        <source>Open file Error</source>
        <translation>Error al abrir el archivo</translation>
    </message>
    <message>
        <source>File '%1' not found</source>
        <translation>No se encuentra el archivo «%1»</translation>
    </message>
    <message>
        <source>There is no program to show the folder of '%1'.</source>
        <translation>No hay ningún programa para mostrar la carpeta de «%1».</translation>
    </message>
</context>
<context>
    <name>velmora::FrameWriter</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 no se puede escribir: %2</translation>
    </message>
    <message>
        <source>A frame of %1x%2 pixels cannot be compressed.</source>
        <translation>No se puede comprimir una imagen de %1x%2 píxeles.</translation>
    </message>
</context>
<context>
    <name>velmora::GeneratorThread</name>
    <message>
        <source>No folder for temporary files can be made as "%1": %2</source>
        <translation>No se puede crear la carpeta temporal «%1»: %2</translation>
    </message>
</context>
<context>
    <name>velmora::HelpBubble</name>
    <message>
        <source>Help for %1</source>
        <translation>Ayuda sobre %1</translation>
    </message>
</context>
<context>
    <name>velmora::HelpDialog</name>
    <message>
        <source>Create the video, or save a text</source>
        <translation>Crear el vídeo o guardar un texto</translation>
    </message>
    <message>
        <source>Preview the whole slideshow</source>
        <translation>Ver toda la presentación</translation>
    </message>
    <message>
        <source>Play or pause the preview</source>
        <translation>Reproducir o pausar la vista previa</translation>
    </message>
    <message>
        <source>Mute the preview</source>
        <translation>Silenciar la vista previa</translation>
    </message>
    <message>
        <source>Leave without saving</source>
        <translation>Salir sin guardar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>From photos to a video</source>
        <translation>De las fotos al vídeo</translation>
    </message>
    <message>
        <source>1. Add photos or folders, with the buttons or by dropping them on the window.</source>
        <translation>1. Añada fotos o carpetas, con los botones o soltándolas en la ventana.</translation>
    </message>
    <message>
        <source>2. Put them in order by dragging, and choose times and transitions.</source>
        <translation>2. Ordénelas arrastrándolas y elija tiempos y transiciones.</translation>
    </message>
    <message>
        <source>3. Add texts to slides and music to the slideshow, and look at the preview.</source>
        <translation>3. Añada textos y música, y mire la vista previa.</translation>
    </message>
    <message>
        <source>4. Choose a name and a format, and press CREATE.</source>
        <translation>4. Elija un nombre y un formato, y pulse CREAR.</translation>
    </message>
    <message>
        <source>5. Watch, upload or burn the video from the history.</source>
        <translation>5. Vea, suba o grabe el vídeo desde el historial.</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>In the editor</source>
        <translation>En el editor</translation>
    </message>
    <message>
        <source>OPEN MANUAL</source>
        <translation>ABRIR MANUAL</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CERRAR</translation>
    </message>
    <message>
        <source>Go back in the preview</source>
        <translation>Retroceder en la vista previa</translation>
    </message>
    <message>
        <source>Go forward in the preview</source>
        <translation>Avanzar en la vista previa</translation>
    </message>
    <message>
        <source>Show the preview on the full screen</source>
        <translation>Mostrar la vista previa a pantalla completa</translation>
    </message>
    <message>
        <source>Play the effect of a text</source>
        <translation>Reproducir el efecto de un texto</translation>
    </message>
</context>
<context>
    <name>velmora::HelpPages</name>
    <message>
        <source>Home page</source>
        <translation>Página web</translation>
    </message>
    <message>
        <source>No home page is set up in this copy of the program.</source>
        <translation>En esta copia del programa no hay ninguna página web configurada.</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryHeader</name>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre del archivo</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Sort by this column</source>
        <translation>Ordenar por esta columna</translation>
    </message>
    <message>
        <source>Sorts the list</source>
        <translation>Ordena la lista</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryListView</name>
    <message>
        <source>Your finished slideshows appear here.</source>
        <translation>Aquí aparecen sus presentaciones terminadas.</translation>
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
        <translation>Abrir el proyecto en el editor</translation>
    </message>
    <message>
        <source>Play the video</source>
        <translation>Reproducir el vídeo</translation>
    </message>
    <message>
        <source>Burn the video to a disc</source>
        <translation>Grabar el vídeo en un disco</translation>
    </message>
    <message>
        <source>Remove the video from the history</source>
        <translation>Quitar el vídeo del historial</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>quitado</translation>
    </message>
    <message>
        <source>The video file does not exist any more.</source>
        <translation>El archivo de vídeo ya no existe.</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryWidget</name>
    <message>
        <source>Open file Error</source>
        <translation>Error al abrir el archivo</translation>
    </message>
    <message>
        <source>File '%1' not found</source>
        <translation>No se encuentra el archivo «%1»</translation>
    </message>
    <message>
        <source>There is no program to play the file '%1'.</source>
        <translation>No hay ningún programa para reproducir el archivo «%1».</translation>
    </message>
    <message>
        <source>Remove from the history</source>
        <translation>Quitar del historial</translation>
    </message>
    <message>
        <source>Remove "%1" from the history?</source>
        <translation>¿Quitar «%1» del historial?</translation>
    </message>
    <message>
        <source>Also move the video file to the trash</source>
        <translation>Mover también el archivo de vídeo a la papelera</translation>
    </message>
    <message>
        <source>REMOVE</source>
        <translation>QUITAR</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>Clear the history</source>
        <translation>Borrar el historial</translation>
    </message>
    <message numerus="yes">
        <source>Remove all videos (%n) from the history?</source>
        <translation><numerusform>¿Quitar %n vídeo del historial?</numerusform><numerusform>¿Quitar los %n vídeos del historial?</numerusform></translation>
    </message>
    <message>
        <source>Also move the video files to the trash</source>
        <translation>Mover también los archivos de vídeo a la papelera</translation>
    </message>
    <message>
        <source>REMOVE ALL</source>
        <translation>QUITAR TODO</translation>
    </message>
    <message>
        <source>Some video files could not be moved to the trash. They are where they were.</source>
        <translation>Algunos archivos de vídeo no se han podido mover a la papelera. Siguen donde estaban.</translation>
    </message>
    <message>
        <source>Some video files could not be taken out of the trash.</source>
        <translation>Algunos archivos de vídeo no se han podido sacar de la papelera.</translation>
    </message>
    <message numerus="yes">
        <source>Videos removed from the history: %n</source>
        <translation><numerusform>%n vídeo quitado del historial.</numerusform><numerusform>%n vídeos quitados del historial.</numerusform></translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>The history could not be changed: %1</source>
        <translation>No se ha podido cambiar el historial: %1</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <translation>Transcurrido: %1</translation>
    </message>
    <message>
        <source>Uploading %1 to %2</source>
        <translation>Subiendo %1 a %2</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>Conectar con %1</translation>
    </message>
</context>
<context>
    <name>velmora::InputCheck</name>
    <message numerus="yes">
        <source>%n more file(s) cannot be used.</source>
        <translation><numerusform>%n archivo más no se puede usar.</numerusform><numerusform>%n archivos más no se pueden usar.</numerusform></translation>
    </message>
    <message>
        <source>The video would replace "%1", of which it is made. Please choose another name.</source>
        <translation>El vídeo sustituiría a «%1», del que está hecho. Elija otro nombre.</translation>
    </message>
</context>
<context>
    <name>velmora::InputFiles</name>
    <message>
        <source>The folder "%1" cannot be read.</source>
        <translation>No se puede leer la carpeta «%1».</translation>
    </message>
    <message>
        <source>The photo "%1" does not exist.</source>
        <translation>La foto «%1» no existe.</translation>
    </message>
    <message>
        <source>"%1" is not a photo of a known format.</source>
        <translation>«%1» no es una foto de un formato conocido.</translation>
    </message>
    <message>
        <source>There are no photos in the folder "%1".</source>
        <translation>No hay fotos en la carpeta «%1».</translation>
    </message>
    <message>
        <source>The sound file "%1" does not exist.</source>
        <translation>El archivo de sonido «%1» no existe.</translation>
    </message>
    <message>
        <source>"%1" is not a sound file of a known format.</source>
        <translation>«%1» no es un archivo de sonido de un formato conocido.</translation>
    </message>
    <message>
        <source>There are no sound files in the folder "%1".</source>
        <translation>No hay archivos de sonido en la carpeta «%1».</translation>
    </message>
</context>
<context>
    <name>velmora::MainMenu</name>
    <message>
        <source>New slideshow</source>
        <translation>Nueva presentación</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Abrir ...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation>Guardar como ...</translation>
    </message>
    <message>
        <source>Set video title...</source>
        <translation>Poner título al vídeo ...</translation>
    </message>
    <message>
        <source>Add Photo</source>
        <translation>Añadir foto</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Página web</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
</context>
<context>
    <name>velmora::MainView</name>
    <message>
        <source>The video is ready</source>
        <translation>El vídeo está listo</translation>
    </message>
    <message>
        <source>The upload has failed</source>
        <translation>La subida ha fallado</translation>
    </message>
    <message>
        <source>The upload is complete</source>
        <translation>La subida ha terminado</translation>
    </message>
    <message>
        <source>Another video is being uploaded.</source>
        <translation>Se está subiendo otro vídeo.</translation>
    </message>
</context>
<context>
    <name>velmora::MainWindowWidget</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>undo or redo, and what</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Add Audio</source>
        <translation>Añadir audio</translation>
    </message>
    <message>
        <source>Photos are still being added</source>
        <translation>Todavía se están añadiendo fotos</translation>
    </message>
    <message>
        <source>Audio files are still being added</source>
        <translation>Todavía se están añadiendo archivos de audio</translation>
    </message>
    <message>
        <source>The photos are still being sorted</source>
        <translation>Todavía se están ordenando las fotos</translation>
    </message>
    <message>
        <source>A text is still being edited</source>
        <translation>Todavía se está editando un texto</translation>
    </message>
</context>
<context>
    <name>velmora::MakeCommand</name>
    <message>
        <source>The project cannot be written as "%1": %2.</source>
        <translation>El proyecto no se puede escribir como «%1»: %2.</translation>
    </message>
    <message>
        <source>"velmoratool --help" lists what is possible.</source>
        <translation>«velmoratool --help» muestra lo que es posible.</translation>
    </message>
</context>
<context>
    <name>velmora::MakeOptions</name>
    <message>
        <source>"%1" is not a whole number from %2 to %3.</source>
        <translation>«%1» no es un número entero de %2 a %3.</translation>
    </message>
    <message>
        <source>The text is empty.</source>
        <translation>El texto está vacío.</translation>
    </message>
    <message>
        <source>"%1" is not a size such as 1920x1080.</source>
        <translation>«%1» no es un tamaño como 1920x1080.</translation>
    </message>
    <message>
        <source>There is no transition "%1". There are: %2.</source>
        <translation>No existe la transición «%1». Hay: %2.</translation>
    </message>
    <message>
        <source>"%1" is none of name, date and given.</source>
        <translation>«%1» no es name, date ni given.</translation>
    </message>
    <message>
        <source>"%1" is neither original nor everywhere.</source>
        <translation>«%1» no es original ni everywhere.</translation>
    </message>
    <message>
        <source>The name of the video "%1" must end in one of: %2.</source>
        <translation>El nombre del vídeo «%1» debe terminar en: %2.</translation>
    </message>
    <message>
        <source>A file name is empty.</source>
        <translation>Un nombre de archivo está vacío.</translation>
    </message>
    <message>
        <source>"%1" belongs to no option.</source>
        <translation>«%1» no pertenece a ninguna opción.</translation>
    </message>
    <message>
        <source>There is no option --%1.</source>
        <translation>No existe la opción --%1.</translation>
    </message>
    <message>
        <source>--%1 takes no value.</source>
        <translation>--%1 no lleva valor.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 necesita un valor.</translation>
    </message>
    <message>
        <source>--%1 cannot be combined with --project, which has its own.</source>
        <translation>--%1 no se puede combinar con --project, que tiene el suyo.</translation>
    </message>
    <message>
        <source>--photos or --project is needed.</source>
        <translation>Hace falta --photos o --project.</translation>
    </message>
    <message>
        <source>--output is needed.</source>
        <translation>Hace falta --output.</translation>
    </message>
    <message>
        <source>--stretch and --original-size exclude each other.</source>
        <translation>--stretch y --original-size se excluyen.</translation>
    </message>
</context>
<context>
    <name>velmora::MakeProject</name>
    <message>
        <source>The project "%1" cannot be used: %2</source>
        <translation>El proyecto «%1» no se puede usar: %2</translation>
    </message>
</context>
<context>
    <name>velmora::MediaFileInfo</name>
    <message>
        <source>There is neither sound nor video in it.</source>
        <translation>No contiene sonido ni vídeo.</translation>
    </message>
</context>
<context>
    <name>velmora::MediaInput</name>
    <message>
        <source>The file does not exist.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>No es un archivo.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>It is damaged, or not a media file.</source>
        <translation>Está dañado o no es un archivo multimedia.</translation>
    </message>
    <message>
        <source>It is a play list, not a media file.</source>
        <translation>Es una lista de reproducción, no un archivo multimedia.</translation>
    </message>
</context>
<context>
    <name>velmora::MessageDialog</name>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CERRAR</translation>
    </message>
</context>
<context>
    <name>velmora::MultipartUploader</name>
    <message>
        <source>can't open source file for reading</source>
        <translation>no se puede abrir el archivo de origen para leerlo</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Error desconocido</translation>
    </message>
    <message>
        <source>Error uploading video:%1</source>
        <translation>Error al subir el vídeo:%1</translation>
    </message>
</context>
<context>
    <name>velmora::OutputTarget</name>
    <message>
        <source>The project does not name a video file to write.</source>
        <translation>El proyecto no nombra ningún archivo de vídeo que escribir.</translation>
    </message>
    <message>
        <source>The finished video could not be put in place as "%1": %2.</source>
        <translation>El vídeo terminado no se ha podido colocar como «%1»: %2.</translation>
    </message>
    <message>
        <source>The video was kept as "%1".</source>
        <translation>El vídeo se ha guardado como «%1».</translation>
    </message>
    <message>
        <source>The video's name "%1..." is too long. Please choose a shorter one.</source>
        <translation>El nombre del vídeo «%1...» es demasiado largo. Elija uno más corto.</translation>
    </message>
    <message>
        <source>The folder "%1" for the video does not exist.</source>
        <translation>La carpeta «%1» para el vídeo no existe.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": it is not a folder.</source>
        <translation>El vídeo no se puede escribir en «%1»: no es una carpeta.</translation>
    </message>
    <message>
        <source>The video cannot be written as "%1": a folder has that name.</source>
        <translation>El vídeo no se puede escribir como «%1»: una carpeta tiene ese nombre.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": the disk is full.</source>
        <translation>El vídeo no se puede escribir en «%1»: el disco está lleno.</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": %2.</source>
        <translation>El vídeo no se puede escribir en «%1»: %2.</translation>
    </message>
    <message>
        <source>Another render is writing "%1" at this time.</source>
        <translation>Otro proceso está escribiendo «%1» en este momento.</translation>
    </message>
</context>
<context>
    <name>velmora::PhotoImporter</name>
    <message>
        <source>does not exist</source>
        <translation>no existe</translation>
    </message>
    <message>
        <source>is not a photo</source>
        <translation>no es una foto</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>holds no photos</source>
        <translation>no contiene fotos</translation>
    </message>
</context>
<context>
    <name>velmora::PhotoImports</name>
    <message numerus="yes">
        <source>Adding photos: %n looked at</source>
        <translation><numerusform>Añadiendo fotos: %n examinada</numerusform><numerusform>Añadiendo fotos: %n examinadas</numerusform></translation>
    </message>
    <message>
        <source>Adding photos</source>
        <translation>Añadiendo fotos</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files have not been added</source>
        <translation><numerusform>%n archivo no se ha añadido</numerusform><numerusform>%n archivos no se han añadido</numerusform></translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CERRAR</translation>
    </message>
</context>
<context>
    <name>velmora::PositionPicker</name>
    <message>
        <source>Top left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Top centre</source>
        <translation>Arriba en el centro</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Centre left</source>
        <translation>Centro a la izquierda</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Centre right</source>
        <translation>Centro a la derecha</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Bottom centre</source>
        <translation>Abajo en el centro</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Abajo a la derecha</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressText</name>
    <message>
        <source>%1 elapsed</source>
        <translation>%1 transcurrido</translation>
    </message>
    <message>
        <source>%1 elapsed, %2 left</source>
        <translation>%1 transcurrido, quedan %2</translation>
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
        <translation>Añadir fotos</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Eliminar diapositivas</translation>
    </message>
    <message>
        <source>Hide the title slide</source>
        <translation>Ocultar la diapositiva de título</translation>
    </message>
    <message>
        <source>Move slides</source>
        <translation>Mover diapositivas</translation>
    </message>
    <message>
        <source>Change time</source>
        <translation>Cambiar tiempo</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Cambiar transición</translation>
    </message>
    <message>
        <source>Rotate photos</source>
        <translation>Girar fotos</translation>
    </message>
    <message>
        <source>Change caption</source>
        <translation>Cambiar texto</translation>
    </message>
    <message>
        <source>Change caption style</source>
        <translation>Cambiar estilo del texto</translation>
    </message>
    <message>
        <source>Change title slide</source>
        <translation>Cambiar diapositiva de título</translation>
    </message>
    <message>
        <source>Add audio</source>
        <translation>Añadir audio</translation>
    </message>
    <message>
        <source>Delete audio</source>
        <translation>Eliminar audio</translation>
    </message>
    <message>
        <source>Move audio</source>
        <translation>Mover audio</translation>
    </message>
    <message>
        <source>Change audio offset</source>
        <translation>Cambiar desfase de audio</translation>
    </message>
    <message>
        <source>Change audio fade</source>
        <translation>Cambiar fundido de audio</translation>
    </message>
    <message>
        <source>Loop audio</source>
        <translation>Repetir audio</translation>
    </message>
    <message>
        <source>Change resolution</source>
        <translation>Cambiar resolución</translation>
    </message>
    <message>
        <source>Change format</source>
        <translation>Cambiar formato</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>Proporción original</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Ajustar al tamaño</translation>
    </message>
    <message>
        <source>Change transition duration</source>
        <translation>Cambiar duración de transición</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Ordenar fotos</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Mezclar fotos</translation>
    </message>
    <message>
        <source>Relocate photos</source>
        <translation>Localizar fotos</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectFile</name>
    <message>
        <source>New project</source>
        <translation>Nuevo proyecto</translation>
    </message>
    <message>
        <source>The file is not a valid JSON document: %1.</source>
        <translation>El archivo no es un documento JSON válido: %1.</translation>
    </message>
    <message>
        <source>The file is not a project document.</source>
        <translation>El archivo no es un documento de proyecto.</translation>
    </message>
    <message>
        <source>The project document cannot be used, faulty field: %1.</source>
        <translation>El documento de proyecto no se puede usar, campo erróneo: %1.</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectItemFirst</name>
    <message>
        <source>My slideshow</source>
        <translation>Mi presentación</translation>
    </message>
    <message>
        <source>Starter</source>
        <translation>Inicio</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectResume</name>
    <message>
        <source>Not all files exist</source>
        <translation>No existen todos los archivos</translation>
    </message>
    <message>
        <source>Not all files exist, do you want to resume the project?</source>
        <translation>No existen todos los archivos. ¿Desea reanudar el proyecto?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>RESUME</source>
        <translation>REANUDAR</translation>
    </message>
</context>
<context>
    <name>velmora::RenderFailure</name>
    <message>
        <source>The disk that holds the folder "%1" is full.</source>
        <translation>El disco de la carpeta «%1» está lleno.</translation>
    </message>
    <message>
        <source>The photo "%1" %2.</source>
        <translation>La foto «%1» %2.</translation>
    </message>
    <message>
        <source>The sound file "%1" cannot be used: %2</source>
        <translation>El archivo de sonido «%1» no se puede usar: %2</translation>
    </message>
</context>
<context>
    <name>velmora::RenderJob</name>
    <message>
        <source>The slideshow has no slides.</source>
        <translation>La presentación no tiene diapositivas.</translation>
    </message>
    <message>
        <source>A video of %1x%2 pixels is too small; each side needs at least %3.</source>
        <translation>Un vídeo de %1x%2 píxeles es demasiado pequeño; cada lado necesita al menos %3.</translation>
    </message>
</context>
<context>
    <name>velmora::RenderReport</name>
    <message>
        <source>Cancelled. No video was written.</source>
        <translation>Cancelado. No se ha escrito ningún vídeo.</translation>
    </message>
    <message>
        <source>The video is ready: %1</source>
        <translation>El vídeo está listo: %1</translation>
    </message>
    <message>
        <source>The project is ready: %1</source>
        <translation>El proyecto está listo: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SetNameDialog</name>
    <message>
        <source>Set video title</source>
        <translation>Poner título al vídeo</translation>
    </message>
</context>
<context>
    <name>velmora::SettingsWidget</name>
    <message>
        <source>Original quality</source>
        <translation>Calidad original</translation>
    </message>
    <message>
        <source>Plays everywhere</source>
        <translation>Se ve en todas partes</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>version %1 - %2</source>
        <translation>versión %1 - %2</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Elegir la carpeta</translation>
    </message>
    <message>
        <source>The settings hold until the program ends, because they cannot be written to the file %1.</source>
        <translation>Los ajustes solo valen hasta que se cierre el programa, porque no se pueden escribir en el archivo %1.</translation>
    </message>
</context>
<context>
    <name>velmora::SlideActions</name>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Rotate photo</source>
        <translation>Girar foto</translation>
    </message>
    <message>
        <source>Rotate photo to the left</source>
        <translation>Girar foto a la izquierda</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>Mezclar fotos</translation>
    </message>
    <message>
        <source>Sort photos by name</source>
        <translation>Ordenar fotos por nombre</translation>
    </message>
    <message>
        <source>Sort photos by date taken</source>
        <translation>Ordenar fotos por fecha de captura</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>Editar texto</translation>
    </message>
    <message>
        <source>Edit text style of all slides</source>
        <translation>Editar estilo de texto de todas</translation>
    </message>
    <message>
        <source>Set time</source>
        <translation>Poner tiempo</translation>
    </message>
    <message>
        <source>Set transition</source>
        <translation>Poner transición</translation>
    </message>
    <message>
        <source>Preview transition</source>
        <translation>Ver transición</translation>
    </message>
    <message>
        <source>Relocate...</source>
        <translation>Localizar ...</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Mostrar de nuevo la diapositiva de título</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>Eliminar diapositivas</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Vaciar lista</translation>
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
        <translation>No se puede leer la foto «%1».</translation>
    </message>
</context>
<context>
    <name>velmora::SlideSorter</name>
    <message>
        <source>Reading the dates of the photos</source>
        <translation>Leyendo las fechas de las fotos</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTable</name>
    <message>
        <source>Drag &amp; drop photos and folders to add them here</source>
        <translation>Arrastre aquí fotos y carpetas para añadirlas</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTableModel</name>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Transición</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>The title slide is not part of the video.</source>
        <translation>La diapositiva de título no forma parte del vídeo.</translation>
    </message>
    <message>
        <source>The photo %1 does not exist any more.</source>
        <translation>La foto %1 ya no existe.</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTextDelegate</name>
    <message>
        <source>Relocate...</source>
        <translation>Localizar ...</translation>
    </message>
    <message>
        <source>Edit the text of this slide (F2)</source>
        <translation>Editar el texto de esta diapositiva (F2)</translation>
    </message>
    <message>
        <source>Delete this slide (Del)</source>
        <translation>Eliminar esta diapositiva (Supr)</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>Mostrar de nuevo la diapositiva de título</translation>
    </message>
    <message>
        <source>Choose the file again</source>
        <translation>Elegir el archivo de nuevo</translation>
    </message>
    <message>
        <source>Not part of the video</source>
        <translation>No forma parte del vídeo</translation>
    </message>
    <message>
        <source>Title slide</source>
        <translation>Diapositiva de título</translation>
    </message>
    <message>
        <source>Missing: %1</source>
        <translation>Falta: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SlidesPage</name>
    <message>
        <source>Drag &amp; drop photos and folders to add them here</source>
        <translation>Arrastre aquí fotos y carpetas para añadirlas</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>Ordenar fotos</translation>
    </message>
    <message>
        <source>Clear list (%1)</source>
        <translation>Vaciar lista (%1)</translation>
    </message>
    <message>
        <source>Various</source>
        <translation>Varios</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>Total: %1</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Imágenes (%1)</translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>¿Dónde está %1?</translation>
    </message>
    <message>
        <source>Photos: %1</source>
        <translation>Fotos: %1</translation>
    </message>
    <message>
        <source>Running time: %1</source>
        <translation>Duración: %1</translation>
    </message>
    <message>
        <source>Audio files: %1</source>
        <translation>Archivos de audio: %1</translation>
    </message>
    <message>
        <source>Resolution: %1</source>
        <translation>Resolución: %1</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>CERRAR</translation>
    </message>
</context>
<context>
    <name>velmora::SoundChecker</name>
    <message>
        <source>Nothing in it can be played.</source>
        <translation>Nada de su contenido se puede reproducir.</translation>
    </message>
</context>
<context>
    <name>velmora::SoundTrack</name>
    <message>
        <source>The music file '%1' cannot be read: %2</source>
        <translation>El archivo de música «%1» no se puede leer: %2</translation>
    </message>
</context>
<context>
    <name>velmora::Spinner</name>
    <message>
        <source>Preparing the preview</source>
        <translation>Preparando la vista previa</translation>
    </message>
</context>
<context>
    <name>velmora::SplashScreen</name>
    <message>
        <source>Loading</source>
        <translation>Cargando</translation>
    </message>
</context>
<context>
    <name>velmora::StartPage</name>
    <message>
        <source>Drop your photos here</source>
        <translation>Suelte aquí sus fotos</translation>
    </message>
    <message>
        <source>Photos and whole folders become a slideshow with transitions, titles and music.</source>
        <translation>Fotos y carpetas enteras se convierten en una presentación con transiciones, títulos y música.</translation>
    </message>
    <message>
        <source>Add Photo</source>
        <translation>Añadir foto</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <source>Open a slideshow</source>
        <translation>Abrir una presentación</translation>
    </message>
    <message>
        <source>Try the sample photos</source>
        <translation>Probar las fotos de muestra</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Continuar con %1</translation>
    </message>
    <message>
        <source>Open the last slideshow again</source>
        <translation>Abrir de nuevo la última presentación</translation>
    </message>
    <message>
        <source>Open a saved slideshow</source>
        <translation>Abrir una presentación guardada</translation>
    </message>
    <message>
        <source>Add photos to the slideshow</source>
        <translation>Añadir fotos a la presentación</translation>
    </message>
    <message>
        <source>Add all photos of a folder</source>
        <translation>Añadir todas las fotos de una carpeta</translation>
    </message>
    <message>
        <source>Begin a slideshow with the photos that come with the program</source>
        <translation>Empezar una presentación con las fotos incluidas</translation>
    </message>
</context>
<context>
    <name>velmora::TextEditWidget</name>
    <message>
        <source>Edit style for 'Starter' slide</source>
        <translation>Editar el estilo de la diapositiva «Inicio»</translation>
    </message>
    <message>
        <source>Edit style for All slides</source>
        <translation>Editar el estilo de todas las diapositivas</translation>
    </message>
    <message>
        <source>Edit style for '%1' slide</source>
        <translation>Editar el estilo de la diapositiva «%1»</translation>
    </message>
    <message>
        <source>Text here</source>
        <translation>Texto aquí</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Descartar cambios</translation>
    </message>
    <message>
        <source>The changes of this text have not been saved. Discard them?</source>
        <translation>Los cambios de este texto no se han guardado. ¿Descartarlos?</translation>
    </message>
    <message>
        <source>DISCARD</source>
        <translation>DESCARTAR</translation>
    </message>
    <message>
        <source>KEEP EDITING</source>
        <translation>SEGUIR EDITANDO</translation>
    </message>
</context>
<context>
    <name>velmora::TitleBar</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
</context>
<context>
    <name>velmora::ToolRow</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Back to the slideshow</source>
        <translation>Volver a la presentación</translation>
    </message>
    <message>
        <source>Add photos to the slideshow</source>
        <translation>Añadir fotos a la presentación</translation>
    </message>
    <message>
        <source>Add all photos of a folder</source>
        <translation>Añadir todas las fotos de una carpeta</translation>
    </message>
    <message>
        <source>Show the slideshows made so far</source>
        <translation>Mostrar las presentaciones hechas hasta ahora</translation>
    </message>
    <message>
        <source>Change how new slideshows begin</source>
        <translation>Cambiar cómo empiezan las presentaciones nuevas</translation>
    </message>
    <message>
        <source>Help and keyboard shortcuts</source>
        <translation>Ayuda y atajos de teclado</translation>
    </message>
    <message>
        <source>Last slideshow: %1</source>
        <translation>Última presentación: %1</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
</context>
<context>
    <name>velmora::ToolRunner</name>
    <message>
        <source>It could not be started.</source>
        <translation>No se ha podido iniciar.</translation>
    </message>
    <message>
        <source>It ended unexpectedly.</source>
        <translation>Ha terminado de forma inesperada.</translation>
    </message>
    <message>
        <source>It ended with code %1.</source>
        <translation>Ha terminado con el código %1.</translation>
    </message>
</context>
<context>
    <name>velmora::UpdateDialog</name>
    <message>
        <source>Update available!</source>
        <translation>¡Actualización disponible!</translation>
    </message>
    <message>
        <source>New version of the programm is avalible:</source>
        <translation>Hay una nueva versión del programa disponible:</translation>
    </message>
    <message>
        <source>Read about</source>
        <translation>Más sobre las</translation>
    </message>
    <message>
        <source>new feauters</source>
        <translation>novedades</translation>
    </message>
</context>
<context>
    <name>velmora::UploadController</name>
    <message>
        <source>Uploading to %1 is not configured. The addresses and the registration of the service belong into the file '%2'.</source>
        <translation>La subida a %1 no está configurada. Las direcciones y el registro del servicio van en el archivo «%2».</translation>
    </message>
</context>
<context>
    <name>velmora::UploadServiceMenu</name>
    <message>
        <source>Services</source>
        <translation>Servicios</translation>
    </message>
</context>
<context>
    <name>velmora::UploadSuccessWindow</name>
    <message>
        <source>Shows the file in the browser</source>
        <translation>Muestra el archivo en el navegador</translation>
    </message>
</context>
<context>
    <name>velmora::VideoPlayerWidget</name>
    <message>
        <source>Add photos to see the slideshow here</source>
        <translation>Añada fotos para ver aquí la presentación</translation>
    </message>
    <message>
        <source>Preview transition to slide %1</source>
        <translation>Transición a la diapositiva %1</translation>
    </message>
    <message>
        <source>Full preview</source>
        <translation>Vista previa completa</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Pausa (Espacio)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Reproducir (Espacio)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Sound on (M)</source>
        <translation>Activar sonido (M)</translation>
    </message>
    <message>
        <source>Mute (M)</source>
        <translation>Silenciar (M)</translation>
    </message>
</context>
<context>
    <name>velmora::VideoUtil</name>
    <message>
        <source>The disk is full.</source>
        <translation>El disco está lleno.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>The encoder failed: %1</source>
        <translation>El codificador ha fallado: %1</translation>
    </message>
    <message>
        <source>The encoder wrote nothing to %1.</source>
        <translation>El codificador no ha escrito nada en %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 no se puede escribir.</translation>
    </message>
    <message>
        <source>There are no frames to encode.</source>
        <translation>No hay imágenes que codificar.</translation>
    </message>
    <message>
        <source>The part %1 of the video is missing.</source>
        <translation>Falta la parte %1 del vídeo.</translation>
    </message>
    <message>
        <source>The program "transcoder" is missing beside this program.</source>
        <translation>Falta el programa «transcoder» junto a este programa.</translation>
    </message>
</context>
<context>
    <name>velmora::WavTranscoder</name>
    <message>
        <source>The music file '%1' cannot be read: %2</source>
        <translation>El archivo de música «%1» no se puede leer: %2</translation>
    </message>
    <message>
        <source>The file '%1' cannot be written: %2</source>
        <translation>El archivo «%1» no se puede escribir: %2</translation>
    </message>
    <message>
        <source>Nothing in it can be played.</source>
        <translation>Nada de su contenido se puede reproducir.</translation>
    </message>
</context>
<context>
    <name>velmora::WavWriter</name>
    <message>
        <source>The older file of that name cannot be replaced.</source>
        <translation>No se puede reemplazar el archivo anterior de ese nombre.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>El disco está lleno.</translation>
    </message>
</context>
<context>
    <name>velmora::WebLoginDialog</name>
    <message>
        <source>Sign in</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Sign-in page of the service</source>
        <translation>Página de inicio de sesión del servicio</translation>
    </message>
    <message>
        <source>Authorization error</source>
        <translation>Error de autorización</translation>
    </message>
</context>
<context>
    <name>velmora::WorkerMain</name>
    <message>
        <source>A render worker needs --session_id, --cache and --request, and nothing else.</source>
        <translation>Un proceso de creación necesita --session_id, --cache y --request, y nada más.</translation>
    </message>
    <message>
        <source>The request "%1" cannot be used: %2</source>
        <translation>La petición «%1» no se puede usar: %2</translation>
    </message>
</context>
<context>
    <name>velmora::UploaderFactory</name>
    <message>
        <source>This copy of the program cannot upload videos: it was built without the component that signs in to services (Qt NetworkAuth).</source>
        <translation>Esta copia del programa no puede subir vídeos: se compiló sin el componente que inicia sesión en los servicios (Qt NetworkAuth).</translation>
    </message>
</context>
<context>
    <name>velmora::DiscWriter</name>
    <message>
        <source>This copy of the program cannot burn discs on this system.</source>
        <translation>Esta copia del programa no puede grabar discos en este sistema.</translation>
    </message>
</context>
</TS>