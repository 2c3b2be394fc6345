<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>ActivityStrip</name>
    <message>
        <source>Movement in front of each camera: the stronger the colour, the more changed. Click to go there.</source>
        <translation>Movimiento delante de cada cámara: cuanto más intenso el color, más cambió la imagen. Haz clic para ir a ese momento.</translation>
    </message>
    <message>
        <source>%1: movement at %2</source>
        <extracomment>%1 is a camera&apos;s name, %2 a time into the event</extracomment>
        <translation>%1: movimiento en %2</translation>
    </message>
    <message>
        <source>%1: quiet at %2</source>
        <translation>%1: sin movimiento en %2</translation>
    </message>
</context>
<context>
    <name>AppCommandLine</name>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1 is the command&apos;s synopsis, which stays as it is</extracomment>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>  or:  %1</source>
        <extracomment>The second synopsis line, under &quot;Usage:&quot;; %1 stays as it is</extracomment>
        <translation>  o: %1</translation>
    </message>
    <message>
        <source>Reviews the footage a Tesla records to its USB drive. Keelhold reads the drive&apos;s TeslaCam folder without ever writing to it, plays every camera of an event in sync, and keeps chosen events in a Vault folder as verified copies.</source>
        <translation>Revisa las grabaciones que un Tesla guarda en su unidad USB. Keelhold lee la carpeta TeslaCam de la unidad sin escribir nunca en ella, reproduce sincronizadas todas las cámaras de un evento y conserva los eventos elegidos en una carpeta de Bóveda como copias verificadas.</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Estado de salida:</translation>
    </message>
    <message>
        <source>The window was closed.</source>
        <translation>Se cerró la ventana.</translation>
    </message>
    <message>
        <source>The window could not be shown.</source>
        <translation>No se pudo mostrar la ventana.</translation>
    </message>
    <message>
        <source>The command line was wrong.</source>
        <translation>La línea de comandos era incorrecta.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opciones:</translation>
    </message>
    <message>
        <source>Start with the sample footage instead of a drive.</source>
        <translation>Empezar con las grabaciones de muestra en lugar de una unidad.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar la versión.</translation>
    </message>
    <message>
        <source>Environment:</source>
        <extracomment>Heading over the environment variables the program reads</extracomment>
        <translation>Entorno:</translation>
    </message>
    <message>
        <source>A TeslaCam folder to show as the sample footage.</source>
        <translation>Una carpeta TeslaCam que mostrar como grabaciones de muestra.</translation>
    </message>
    <message>
        <source>%1 or %2, in place of the desktop&apos;s choice.</source>
        <extracomment>%1 and %2 are the variable&apos;s values, typed as they stand</extracomment>
        <translation>%1 o %2, en lugar de la elección del escritorio.</translation>
    </message>
    <message>
        <source>keelhold doesn&apos;t know “%1”. Run “keelhold --help” to see what it takes.</source>
        <extracomment>%1 is the argument given; &quot;keelhold --help&quot; is a command and stays as it is</extracomment>
        <translation>keelhold no reconoce “%1”. Ejecuta “keelhold --help” para ver lo que admite.</translation>
    </message>
    <message>
        <source>Open at the Vault, where kept events are.</source>
        <translation>Abrir en la Bóveda, donde están los eventos conservados.</translation>
    </message>
    <message>
        <source>keelhold: the sample footage is not installed, so Keelhold starts without it.</source>
        <translation>keelhold: las grabaciones de muestra no están instaladas, así que Keelhold se inicia sin ellas.</translation>
    </message>
</context>
<context>
    <name>ArchiveEngine</name>
    <message>
        <source>This file took too long to read — the drive may be failing.</source>
        <translation>Este archivo tardó demasiado en leerse — puede que la unidad esté fallando.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create a file in your Vault folder.</source>
        <translation>No se pudo crear un archivo en tu carpeta de Bóveda.</translation>
    </message>
    <message>
        <source>This file changed size while copying — the drive may have been disconnected.</source>
        <translation>Este archivo cambió de tamaño durante la copia — puede que la unidad se haya desconectado.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>No se pudo leer este archivo.</translation>
    </message>
    <message>
        <source>There isn&apos;t enough space in your Vault folder.</source>
        <translation>No hay espacio suficiente en tu carpeta de Bóveda.</translation>
    </message>
    <message>
        <source>The Vault folder is no longer available.</source>
        <translation>La carpeta de Bóveda ya no está disponible.</translation>
    </message>
    <message>
        <source>This isn&apos;t an ordinary file (it is a link or a special file), so it was left alone.</source>
        <translation>Esto no es un archivo normal (es un enlace o un archivo especial), así que no se ha tocado.</translation>
    </message>
    <message>
        <source>The Vault&apos;s list of kept events couldn&apos;t be saved, so nothing from this run is recorded as kept.</source>
        <translation>No se pudo guardar la lista de eventos conservados de la Bóveda, así que nada de esta ejecución consta como conservado.</translation>
    </message>
</context>
<context>
    <name>ArchivedEvent</name>
    <message>
        <source>Unknown Drive</source>
        <extracomment>Stands for the name of a drive that could not be read</extracomment>
        <translation>Unidad desconocida</translation>
    </message>
</context>
<context>
    <name>Camera</name>
    <message>
        <source>Front</source>
        <extracomment>Camera name: the camera looking ahead through the windscreen</extracomment>
        <translation>Delantera</translation>
    </message>
    <message>
        <source>Rear</source>
        <extracomment>Camera name: the camera looking backwards above the number plate</extracomment>
        <translation>Trasera</translation>
    </message>
    <message>
        <source>Left Side</source>
        <extracomment>Camera name: the camera in the left side repeater, looking back along the car</extracomment>
        <translation>Lateral izquierda</translation>
    </message>
    <message>
        <source>Right Side</source>
        <extracomment>Camera name: the camera in the right side repeater, looking back along the car</extracomment>
        <translation>Lateral derecha</translation>
    </message>
    <message>
        <source>Left Pillar</source>
        <extracomment>Camera name: the camera in the left door pillar (B pillar)</extracomment>
        <translation>Pilar izquierdo</translation>
    </message>
    <message>
        <source>Right Pillar</source>
        <extracomment>Camera name: the camera in the right door pillar (B pillar)</extracomment>
        <translation>Pilar derecho</translation>
    </message>
    <message>
        <source>Backup</source>
        <extracomment>Camera name: the reversing camera (not a copy of files)</extracomment>
        <translation>Marcha atrás</translation>
    </message>
</context>
<context>
    <name>CameraTile</name>
    <message>
        <source>%1 camera</source>
        <extracomment>Screen reader name of a camera&apos;s tile; %1 is the camera&apos;s name, e.g. Left Side</extracomment>
        <translation>Cámara %1</translation>
    </message>
</context>
<context>
    <name>CliOutput</name>
    <message>
        <source>Read a TeslaCam folder and print its events as JSON.</source>
        <translation>Leer una carpeta TeslaCam e imprimir sus eventos en JSON.</translation>
    </message>
    <message>
        <source>Print the health report of a TeslaCam folder as JSON.</source>
        <translation>Imprimir el informe de estado de una carpeta TeslaCam en JSON.</translation>
    </message>
    <message>
        <source>Write one camera of one event as one MP4 movie, or all cameras at once.</source>
        <translation>Escribir una cámara de un evento como un vídeo MP4, o todas las cámaras a la vez.</translation>
    </message>
    <message>
        <source>Write the incident report of one event as a PDF, or an evidence package with every original.</source>
        <translation>Escribir el informe de incidente de un evento como PDF, o un paquete de pruebas con todos los originales.</translation>
    </message>
    <message>
        <source>Copy events into a Vault folder, checking every file.</source>
        <translation>Copiar eventos en una carpeta de Bóveda, comprobando cada archivo.</translation>
    </message>
    <message>
        <source>List, remove or re-check the events kept in a Vault folder.</source>
        <translation>Listar, quitar o volver a comprobar los eventos conservados en una carpeta de Bóveda.</translation>
    </message>
    <message>
        <source>Print the driving data recorded with an event&apos;s footage.</source>
        <translation>Imprimir los datos de conducción grabados con las imágenes de un evento.</translation>
    </message>
    <message>
        <source>Print where to look in an event: activity in front of each camera, and hard moments.</source>
        <translation>Imprimir dónde mirar en un evento: actividad delante de cada cámara y momentos bruscos.</translation>
    </message>
    <message>
        <source>Check and remember your Tesla sign-in, for the car&apos;s encrypted clips.</source>
        <translation>Comprobar y recordar tu inicio de sesión de Tesla, para los clips cifrados del coche.</translation>
    </message>
    <message>
        <source>Write an event&apos;s encrypted clips as the plain MP4 movies they hold.</source>
        <translation>Escribir los clips cifrados de un evento como los vídeos MP4 sin cifrar que contienen.</translation>
    </message>
    <message>
        <source>There is no folder at “%1”. Check that the drive is plugged in and the path is right.</source>
        <translation>No hay ninguna carpeta en “%1”. Comprueba que la unidad está conectada y que la ruta es correcta.</translation>
    </message>
    <message>
        <source>“%1” is a file, not a folder. Give the TeslaCam folder itself.</source>
        <translation>“%1” es un archivo, no una carpeta. Indica la propia carpeta TeslaCam.</translation>
    </message>
    <message>
        <source>There is no event “%1” in this folder.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>No hay ningún evento “%1” en esta carpeta.</translation>
    </message>
    <message>
        <source>A file holding your Tesla sign-in token, or - to read it from standard input. Without it, the token keelhold-cli unlock remembered is used.</source>
        <translation>Un archivo con tu token de inicio de sesión de Tesla, o - para leerlo de la entrada estándar. Sin él, se usa el token que recordó keelhold-cli unlock.</translation>
    </message>
    <message>
        <source>The token file %1 can&apos;t be read.</source>
        <translation>No se puede leer el archivo de token %1.</translation>
    </message>
    <message>
        <source>Standard input holds no sign-in token.</source>
        <translation>La entrada estándar no contiene ningún token de inicio de sesión.</translation>
    </message>
    <message>
        <source>The file %1 holds no sign-in token.</source>
        <translation>El archivo %1 no contiene ningún token de inicio de sesión.</translation>
    </message>
    <message>
        <source>These clips are encrypted by your car and no key for them is kept here: give your Tesla sign-in token with --token-file, or run keelhold-cli unlock first.</source>
        <translation>Tu coche cifra estos clips y aquí no hay ninguna clave guardada para ellos: indica tu token de inicio de sesión de Tesla con --token-file, o ejecuta antes keelhold-cli unlock.</translation>
    </message>
    <message>
        <source>Writes each encrypted clip of an event as the plain MP4 movie it holds, under the same file name, into a
folder of your choice. Keys kept before are used first; the missing ones are fetched from Tesla&apos;s service
with your sign-in token. Exits with 1 when only some clips could be written.</source>
        <translation>Escribe cada clip cifrado de un evento como el vídeo MP4 sin cifrar que contiene, con el mismo nombre de
archivo, en la carpeta que elijas. Primero se usan las claves guardadas antes; las que faltan se piden al
servicio de Tesla con tu token de inicio de sesión. Sale con 1 cuando solo se pudieron escribir algunos
clips.</translation>
    </message>
    <message>
        <source>The TeslaCam folder, or a Vault folder, to read.</source>
        <translation>La carpeta TeslaCam, o una carpeta de Bóveda, que leer.</translation>
    </message>
    <message>
        <source>The event&apos;s id, as keelhold-cli scan prints it.</source>
        <translation>El id del evento, tal como lo imprime keelhold-cli scan.</translation>
    </message>
    <message>
        <source>Only this camera&apos;s clips.</source>
        <translation>Solo los clips de esta cámara.</translation>
    </message>
    <message>
        <source>The folder to write the movies into.</source>
        <translation>La carpeta donde escribir los vídeos.</translation>
    </message>
    <message>
        <source>“%1” is not a camera; use one of %2.</source>
        <extracomment>%1 is the camera as typed, %2 the camera names the command takes</extracomment>
        <translation>“%1” no es una cámara; usa una de estas: %2.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so choose a folder somewhere else.</source>
        <translation>Keelhold nunca escribe en tu unidad de Tesla, así que elige una carpeta en otro lugar.</translation>
    </message>
    <message>
        <source>The %1 camera has no encrypted footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>La cámara %1 no tiene grabaciones cifradas en este evento.</translation>
    </message>
    <message>
        <source>This event&apos;s footage isn&apos;t encrypted: its files are plain MP4 movies already.</source>
        <translation>Las grabaciones de este evento no están cifradas: sus archivos ya son vídeos MP4 normales.</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be made.</source>
        <translation>No se puede crear la carpeta %1.</translation>
    </message>
    <message>
        <source>The clips couldn&apos;t be read from the drive or written to %1.</source>
        <translation>No se pudieron leer los clips de la unidad ni escribirlos en %1.</translation>
    </message>
    <message>
        <source>Wrote %1 of %2 clips to %3.</source>
        <extracomment>%3 is a folder</extracomment>
        <translation>Se escribieron %1 de %2 clips en %3.</translation>
    </message>
    <message>
        <source>Wrote %1 clips to %2.</source>
        <extracomment>%2 is a folder</extracomment>
        <translation>Se escribieron %1 clips en %2.</translation>
    </message>
    <message>
        <source>The drive went away: %1 of %2 events were kept completely. Plug it back in and run keep again to finish.</source>
        <translation>La unidad se desconectó: %1 de %2 eventos se conservaron por completo. Vuelve a conectarla y ejecuta keep otra vez para terminar.</translation>
    </message>
    <message>
        <source>Prints where to look in an event: for each camera the bursts of activity (something moving in front of
it, found from how much the camera&apos;s video changed), and the hard moments of the drive (hard braking,
a swerve, Autopilot switching off, a sudden stop, the car&apos;s emergency braking) from the driving data
its clips carry. Times are seconds on the event&apos;s timeline, as the player shows them. The drive is
only read.</source>
        <translation>Imprime dónde mirar en un evento: para cada cámara, los momentos de actividad (algo que se mueve delante
de ella, detectado por cuánto cambia el vídeo de la cámara), y los momentos bruscos de la conducción
(frenada brusca, un volantazo, el Autopilot que se desactiva, una parada repentina, la frenada de
emergencia del coche) a partir de los datos de conducción que llevan sus clips. Los tiempos son segundos
en la línea de tiempo del evento, tal como los muestra el reproductor. La unidad solo se lee.</translation>
    </message>
    <message>
        <source>json (the default) or csv.</source>
        <extracomment>json and csv are values typed on the command line; keep them as they are</extracomment>
        <translation>json (el predeterminado) o csv.</translation>
    </message>
    <message>
        <source>“%1” is not a format; use json or csv.</source>
        <extracomment>%1 is the format as typed; json and csv stay as they are</extracomment>
        <translation>“%1” no es un formato; usa json o csv.</translation>
    </message>
    <message>
        <source>None of this event&apos;s clips could be read.</source>
        <translation>No se pudo leer ninguno de los clips de este evento.</translation>
    </message>
    <message>
        <source>Stopped before every clip was read.</source>
        <translation>Se detuvo antes de leer todos los clips.</translation>
    </message>
    <message>
        <source>Checks your Tesla sign-in token with Tesla&apos;s service and remembers it in this computer&apos;s secret store, so
that export, telemetry and decrypt can fetch the keys of your car&apos;s encrypted clips. Only the clips&apos; key
blocks and your car&apos;s VIN are ever sent, never video. To get the token, sign in at Tesla&apos;s dashcam viewer
in your browser and copy it from there. Give it in a file or on standard input, never on the command
line, where other users could read it.</source>
        <translation>Comprueba tu token de inicio de sesión de Tesla con el servicio de Tesla y lo recuerda en el almacén de
secretos de este ordenador, para que export, telemetry y decrypt puedan obtener las claves de los clips
cifrados de tu coche. Solo se envían los bloques de clave de los clips y el VIN de tu coche, nunca vídeo.
Para obtener el token, inicia sesión en el visor de dashcam de Tesla en tu navegador y cópialo de allí.
Indícalo en un archivo o por la entrada estándar, nunca en la línea de comandos, donde otros usuarios
podrían leerlo.</translation>
    </message>
    <message>
        <source>Remove the remembered sign-in from this computer&apos;s secret store.</source>
        <translation>Borrar el inicio de sesión recordado del almacén de secretos de este ordenador.</translation>
    </message>
    <message>
        <source>A token on the command line can be seen by other users of this computer, so keelhold-cli won&apos;t take one there: put it in a file and give --token-file FILE, or --token-file - to type it.</source>
        <translation>Otros usuarios de este ordenador pueden ver un token escrito en la línea de comandos, así que keelhold-cli no lo acepta ahí: ponlo en un archivo e indica --token-file FILE, o --token-file - para escribirlo.</translation>
    </message>
    <message>
        <source>Your Tesla sign-in is no longer remembered on this computer.</source>
        <translation>Tu inicio de sesión de Tesla ya no se recuerda en este ordenador.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service didn&apos;t accept this sign-in token: it may have expired. Sign in again at Tesla&apos;s dashcam viewer and copy a fresh one.</source>
        <translation>El servicio de Tesla no aceptó este token de inicio de sesión: puede que haya caducado. Vuelve a iniciar sesión en el visor de dashcam de Tesla y copia uno nuevo.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service accepted your sign-in, but this computer has no secret store to remember it in: give it with --token-file to each command instead.</source>
        <translation>El servicio de Tesla aceptó tu inicio de sesión, pero este ordenador no tiene un almacén de secretos donde recordarlo: indícalo con --token-file en cada comando.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service accepted your sign-in, and it is remembered in this computer&apos;s secret store.</source>
        <translation>El servicio de Tesla aceptó tu inicio de sesión, y queda recordado en el almacén de secretos de este ordenador.</translation>
    </message>
    <message>
        <source>“%1” is a file, not a Vault folder.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>“%1” es un archivo, no una carpeta de Bóveda.</translation>
    </message>
    <message>
        <source>There is no Vault folder at %1.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>No hay ninguna carpeta de Bóveda en %1.</translation>
    </message>
    <message>
        <source>keelhold-cli has no option “%1” before a command. Run “keelhold-cli --help” to see the commands and their options.</source>
        <extracomment>%1 is the option as typed</extracomment>
        <translation>keelhold-cli no tiene ninguna opción “%1” antes de un comando. Ejecuta “keelhold-cli --help” para ver los comandos y sus opciones.</translation>
    </message>
    <message>
        <source>There is no command “%1”. Run “keelhold-cli --help” to see them all.</source>
        <extracomment>%1 is the command as typed</extracomment>
        <translation>No existe el comando “%1”. Ejecuta “keelhold-cli --help” para verlos todos.</translation>
    </message>
    <message>
        <source>Keep what is new from every TeslaCam drive as it is connected, until stopped.</source>
        <translation>Conservar lo nuevo de cada unidad TeslaCam en cuanto se conecta, hasta que se detenga.</translation>
    </message>
    <message>
        <source>Usage: %1
  or:  %2
  or:  %3
</source>
        <extracomment>The ways to call the tool; %1, %2 and %3 are command lines, which stay as they are. Keep them lined up.</extracomment>
        <translation>Uso: %1
  o: %2
  o: %3
</translation>
    </message>
    <message>
        <source>Reads the TeslaCam folder of a Tesla&apos;s USB drive without ever writing to it, and keeps chosen events in a Vault folder as verified copies.</source>
        <translation>Lee la carpeta TeslaCam de la unidad USB de un Tesla sin escribir nunca en ella, y conserva los eventos elegidos en una carpeta de Bóveda como copias verificadas.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <extracomment>Heading of the list of commands in the help</extracomment>
        <translation>Comandos:</translation>
    </message>
    <message>
        <source>Show the options of a command.</source>
        <translation>Mostrar las opciones de un comando.</translation>
    </message>
    <message>
        <source>Exit status:
  0    Done.
  1    Done in part: keep could not keep some files, vault verify found a file changed or missing, or
       decrypt could write only some clips.
  2    The work could not be done, for example because the folder is missing or can&apos;t be read.
  64   The command line was wrong.
  130  keep was stopped with Ctrl-C.
</source>
        <extracomment>The exit codes in the help. Keep the numbers and their column; keep, vault verify and decrypt are command names.</extracomment>
        <translation>Estado de salida:
  0    Hecho.
  1    Hecho en parte: keep no pudo conservar algunos archivos, vault verify encontró un archivo
       cambiado o ausente, o decrypt solo pudo escribir algunos clips.
  2    No se pudo hacer el trabajo, por ejemplo porque la carpeta no existe o no se puede leer.
  64   La línea de comandos era incorrecta.
  130  keep se detuvo con Ctrl-C.
</translation>
    </message>
    <message>
        <source>Progress and messages go to standard error, results to standard output.</source>
        <translation>El progreso y los mensajes van a la salida de error estándar; los resultados, a la salida estándar.</translation>
    </message>
    <message>
        <source>Options:</source>
        <extracomment>Heading of the list of options in the help</extracomment>
        <translation>Opciones:</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar la versión.</translation>
    </message>
    <message>
        <source>help takes one command, such as “keelhold-cli help scan”.</source>
        <translation>help admite un solo comando, como “keelhold-cli help scan”.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>How a command is typed; %1 is the command line itself, which stays as it is</extracomment>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>%1 %2 folders, %3 events, %4 clips</source>
        <extracomment>Scan progress; %1 says what is being read (&quot;Reading Sentry events…&quot;), then counts so far</extracomment>
        <translation>%1 %2 carpetas, %3 eventos, %4 clips</translation>
    </message>
    <message>
        <source>probing %1 of %2 clips</source>
        <extracomment>Progress while each clip is opened to check it</extracomment>
        <translation>comprobando %1 de %2 clips</translation>
    </message>
    <message>
        <source>Exporting… %1% (finishing the file)</source>
        <extracomment>Export progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>Exportando… %1% (terminando el archivo)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 fps, %5 left)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 frames per second, %5 the time left as m:ss</extracomment>
        <translation>Exportando… %1% (%2 de %3 fotogramas, %4 fps, quedan %5)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 fps)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 frames per second</extracomment>
        <translation>Exportando… %1% (%2 de %3 fotogramas, %4 fps)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 left)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 the time left as m:ss</extracomment>
        <translation>Exportando… %1% (%2 de %3 fotogramas, quedan %4)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames</extracomment>
        <translation>Exportando… %1% (%2 de %3 fotogramas)</translation>
    </message>
    <message>
        <source>Writes one camera of one event as a single MP4 movie, copied as it is, or every camera at once with the date and time drawn on it. The drive is only read.</source>
        <translation>Escribe una cámara de un evento como un solo vídeo MP4, copiado tal cual, o todas las cámaras a la vez con la fecha y la hora dibujadas encima. La unidad solo se lee.</translation>
    </message>
    <message>
        <source>The TeslaCam folder to read.</source>
        <translation>La carpeta TeslaCam que leer.</translation>
    </message>
    <message>
        <source>One of: %1.</source>
        <extracomment>Help of an option; %1 lists the values it takes, which stay as they are</extracomment>
        <translation>Uno de: %1.</translation>
    </message>
    <message>
        <source>The movie file to create; in an existing folder, the suggested name is used.</source>
        <translation>El archivo de vídeo que crear; si es una carpeta existente, se usa el nombre sugerido.</translation>
    </message>
    <message>
        <source>Start, in seconds of the joined footage.</source>
        <translation>Inicio, en segundos de las grabaciones unidas.</translation>
    </message>
    <message>
        <source>End, in seconds of the joined footage.</source>
        <translation>Fin, en segundos de las grabaciones unidas.</translation>
    </message>
    <message>
        <source>Makes one new movie with every camera at once and the time drawn on it. One of: grid, front-sides, single. Single re-encodes the --camera alone. --from and --to then count seconds of the event&apos;s timeline, as the player shows it.</source>
        <extracomment>grid, front-sides and single are values typed on the command line; keep them as they are</extracomment>
        <translation>Crea un vídeo nuevo con todas las cámaras a la vez y la hora dibujada encima. Uno de: grid, front-sides, single. Single vuelve a codificar solo la cámara de --camera. Entonces --from y --to cuentan segundos de la línea de tiempo del evento, tal como la muestra el reproductor.</translation>
    </message>
    <message>
        <source>What a new movie shows over the pictures, any of: time, names, reason, telemetry, none. Join parts with commas; the default is time,names,reason. Telemetry is the car&apos;s speed, pedals, steering and Autopilot where its clips carry them, in km/h or mph as your locale measures. With only --camera, any part makes a new movie of that camera instead of a copy.</source>
        <extracomment>time, names, reason, telemetry, none and time,names,reason are values typed on the command line; keep them as they are</extracomment>
        <translation>Lo que un vídeo nuevo muestra sobre las imágenes, cualquiera de: time, names, reason, telemetry, none. Une las partes con comas; el valor predeterminado es time,names,reason. Telemetry es la velocidad, los pedales, la dirección y el Autopilot del coche cuando sus clips los llevan, en km/h o mph según tu configuración regional. Con solo --camera, cualquier parte crea un vídeo nuevo de esa cámara en lugar de una copia.</translation>
    </message>
    <message>
        <source>The new movie&apos;s picture height. One of: 720, 1080, full. The default is 1080.</source>
        <extracomment>720, 1080 and full are values typed on the command line; keep them as they are</extracomment>
        <translation>La altura de imagen del vídeo nuevo. Uno de: 720, 1080, full. El predeterminado es 1080.</translation>
    </message>
    <message>
        <source>--overlay takes time, names, reason and telemetry joined with commas, or none.</source>
        <extracomment>time, names, reason, telemetry and none are values typed on the command line; keep them as they are</extracomment>
        <translation>--overlay admite time, names, reason y telemetry unidos con comas, o none.</translation>
    </message>
    <message>
        <source>“%1” is not a layout; use grid, front-sides or single.</source>
        <extracomment>%1 is the layout as typed; grid, front-sides and single stay as they are</extracomment>
        <translation>“%1” no es una disposición; usa grid, front-sides o single.</translation>
    </message>
    <message>
        <source>Name the camera with --camera, or choose --layout grid or front-sides.</source>
        <translation>Indica la cámara con --camera, o elige --layout grid o front-sides.</translation>
    </message>
    <message>
        <source>--camera picks the one camera of --layout single; grid and front-sides show every camera.</source>
        <translation>--camera elige la única cámara de --layout single; grid y front-sides muestran todas las cámaras.</translation>
    </message>
    <message>
        <source>“%1” is not a size; use 720, 1080 or full.</source>
        <extracomment>%1 is the size as typed; 720, 1080 and full stay as they are</extracomment>
        <translation>“%1” no es un tamaño; usa 720, 1080 o full.</translation>
    </message>
    <message>
        <source>--from and --to take a number of seconds, such as 12.5.</source>
        <translation>--from y --to admiten un número de segundos, como 12.5.</translation>
    </message>
    <message>
        <source>There is no event “%1” in this TeslaCam folder.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>No hay ningún evento “%1” en esta carpeta TeslaCam.</translation>
    </message>
    <message>
        <source>Exporting… %1%</source>
        <extracomment>Export progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>Exportando… %1%</translation>
    </message>
    <message>
        <source>The %1 camera has no playable footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>La cámara %1 no tiene grabaciones reproducibles en este evento.</translation>
    </message>
    <message>
        <source>None of this event&apos;s cameras has playable footage.</source>
        <translation>Ninguna de las cámaras de este evento tiene grabaciones reproducibles.</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>Se detuvo la exportación.</translation>
    </message>
    <message>
        <source>Reads a TeslaCam folder and prints its health report (fullness, damaged clips, format, events not yet kept, recommendations) as JSON.</source>
        <translation>Lee una carpeta TeslaCam e imprime su informe de estado (ocupación, clips dañados, formato, eventos aún no conservados, recomendaciones) en JSON.</translation>
    </message>
    <message>
        <source>The TeslaCam folder to read, or the drive that holds it.</source>
        <translation>La carpeta TeslaCam que leer, o la unidad que la contiene.</translation>
    </message>
    <message>
        <source>The Vault folder whose index tells which events are kept.</source>
        <translation>La carpeta de Bóveda cuyo índice indica qué eventos están conservados.</translation>
    </message>
    <message>
        <source>Open every clip to find damaged ones (slower).</source>
        <translation>Abrir cada clip para encontrar los dañados (más lento).</translation>
    </message>
    <message>
        <source>Indent the JSON for reading.</source>
        <translation>Sangrar el JSON para leerlo mejor.</translation>
    </message>
    <message>
        <source>There is no Vault folder at “%1”.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>No hay ninguna carpeta de Bóveda en “%1”.</translation>
    </message>
    <message>
        <source>Copies events from a TeslaCam folder into a Vault folder, checking each file&apos;s size and recording its SHA-256, and prints the report as JSON.
Exit status: 0 when everything was kept, 1 when some files could not be kept, 130 when stopped with Ctrl-C, 2 when the drive could not be read.</source>
        <extracomment>The numbers are exit codes; keep them</extracomment>
        <translation>Copia eventos de una carpeta TeslaCam a una carpeta de Bóveda, comprobando el tamaño de cada archivo y registrando su SHA-256, e imprime el informe en JSON.
Estado de salida: 0 si se conservó todo, 1 si algunos archivos no se pudieron conservar, 130 si se detuvo con Ctrl-C, 2 si no se pudo leer la unidad.</translation>
    </message>
    <message>
        <source>The Vault folder.</source>
        <translation>La carpeta de Bóveda.</translation>
    </message>
    <message>
        <source>An event to keep, as printed by scan (&quot;sentry|&lt;folder&gt;&quot;). Repeat for more; without it, every event is kept.</source>
        <extracomment>&quot;sentry|&lt;folder&gt;&quot; shows how an event&apos;s id looks; keep it as it is</extracomment>
        <translation>Un evento que conservar, tal como lo imprime scan (&quot;sentry|&lt;folder&gt;&quot;). Repítelo para más; sin él, se conservan todos los eventos.</translation>
    </message>
    <message>
        <source>Seconds allowed for each file (default 10).</source>
        <translation>Segundos permitidos para cada archivo (10 por defecto).</translation>
    </message>
    <message>
        <source>The time limit must be a number of seconds, more than 0 and at most a day.</source>
        <translation>El límite de tiempo debe ser un número de segundos, mayor que 0 y de un día como mucho.</translation>
    </message>
    <message>
        <source>There is no event “%1” on this drive.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>No hay ningún evento “%1” en esta unidad.</translation>
    </message>
    <message>
        <source>%1/%2 events · %3 MB · %4 MB/s · %5</source>
        <extracomment>Keep progress: %1 of %2 events done, %3 megabytes copied, %4 megabytes a second, %5 the file being copied</extracomment>
        <translation>%1/%2 eventos · %3 MB · %4 MB/s · %5</translation>
    </message>
    <message>
        <source>%1/%2 events · %3 MB · %4 MB/s</source>
        <extracomment>Keep progress: %1 of %2 events done, %3 megabytes copied, %4 megabytes a second</extracomment>
        <translation>%1/%2 eventos · %3 MB · %4 MB/s</translation>
    </message>
    <message>
        <source>Stopping after the current file… (Ctrl-C again to quit at once)</source>
        <translation>Deteniendo tras el archivo actual… (Ctrl-C otra vez para salir de inmediato)</translation>
    </message>
    <message>
        <source>Writes the incident report of one event as a PDF: when and where, each camera at the moment, the driving data, and every original file with its SHA-256. With --package, one ZIP that also holds every original and a SHA256SUMS file that `sha256sum -c` checks. The drive is only read.</source>
        <extracomment>SHA256SUMS is a file name and `sha256sum -c` a command; keep both as they are</extracomment>
        <translation>Escribe el informe de incidente de un evento como PDF: cuándo y dónde, cada cámara en ese momento, los datos de conducción y cada archivo original con su SHA-256. Con --package, un ZIP que además contiene cada original y un archivo SHA256SUMS que `sha256sum -c` comprueba. La unidad solo se lee.</translation>
    </message>
    <message>
        <source>The TeslaCam folder, or a Vault folder.</source>
        <translation>La carpeta TeslaCam, o una carpeta de Bóveda.</translation>
    </message>
    <message>
        <source>The file to create; in an existing folder, the suggested name is used.</source>
        <translation>El archivo que crear; si es una carpeta existente, se usa el nombre sugerido.</translation>
    </message>
    <message>
        <source>Makes the evidence package (ZIP) instead of the PDF alone.</source>
        <translation>Crear el paquete de pruebas (ZIP) en lugar de solo el PDF.</translation>
    </message>
    <message>
        <source>Puts the unlock keys of an encrypted event into the package.</source>
        <translation>Incluir en el paquete las claves de desbloqueo de un evento cifrado.</translation>
    </message>
    <message>
        <source>A Vault to compare the files with, for an event on the drive that was kept there.</source>
        <translation>Una Bóveda con la que comparar los archivos, para un evento de la unidad que se conservó allí.</translation>
    </message>
    <message>
        <source>One of: km/h, mph. The default is the app&apos;s choice, else the one your locale uses.</source>
        <extracomment>km/h and mph are values typed on the command line; keep them as they are</extracomment>
        <translation>Uno de: km/h, mph. Por defecto, el elegido en la aplicación o, si no, el de tu configuración regional.</translation>
    </message>
    <message>
        <source>--speed-unit takes km/h or mph.</source>
        <extracomment>km/h and mph are values typed on the command line; keep them as they are</extracomment>
        <translation>--speed-unit admite km/h o mph.</translation>
    </message>
    <message>
        <source>Making the report… %1%</source>
        <extracomment>Report progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>Creando el informe… %1%</translation>
    </message>
    <message>
        <source>The report was stopped.</source>
        <translation>Se detuvo el informe.</translation>
    </message>
    <message>
        <source>Reads a TeslaCam folder and prints what it holds as JSON.</source>
        <translation>Lee una carpeta TeslaCam e imprime lo que contiene en JSON.</translation>
    </message>
    <message>
        <source>Open every clip after the scan to find its health and length.</source>
        <translation>Abrir cada clip tras el análisis para conocer su estado y su duración.</translation>
    </message>
    <message>
        <source>Seconds each clip may take to answer (default 10).</source>
        <translation>Segundos que puede tardar cada clip en responder (10 por defecto).</translation>
    </message>
    <message>
        <source>The timeout must be a number of seconds, such as 10.</source>
        <translation>El tiempo de espera debe ser un número de segundos, como 10.</translation>
    </message>
    <message>
        <source>The timeout applies only with --probe.</source>
        <translation>El tiempo de espera solo se aplica con --probe.</translation>
    </message>
    <message>
        <source>Prints the driving data the car recorded with one camera&apos;s footage of an event, one row for each
frame: its time on the event&apos;s timeline and in its clip, when it was taken, and the car&apos;s speed
(metres per second), gear, accelerator, steering angle (degrees), blinkers, brake, Autopilot state,
GPS position, heading (degrees) and acceleration (metres per second squared). Cars on software
2025.44.25 or later record it. The drive is only read.</source>
        <translation>Imprime los datos de conducción que el coche grabó con las imágenes de una cámara de un evento, una fila
por fotograma: su tiempo en la línea de tiempo del evento y en su clip, cuándo se tomó, y la velocidad
del coche (metros por segundo), la marcha, el acelerador, el ángulo del volante (grados), los
intermitentes, el freno, el estado del Autopilot, la posición GPS, el rumbo (grados) y la aceleración
(metros por segundo al cuadrado). Los coches con software 2025.44.25 o posterior los graban. La unidad
solo se lee.</translation>
    </message>
    <message>
        <source>csv, json, or gpx (the route, for a mapping tool). Default: from the output file&apos;s extension, else csv.</source>
        <extracomment>csv, json and gpx are values typed on the command line; keep them as they are</extracomment>
        <translation>csv, json o gpx (la ruta, para una herramienta de mapas). Por defecto: según la extensión del archivo de salida o, si no, csv.</translation>
    </message>
    <message>
        <source>The file to write instead of standard output.</source>
        <translation>El archivo que escribir en lugar de la salida estándar.</translation>
    </message>
    <message>
        <source>“%1” is not a format; use csv, json or gpx.</source>
        <extracomment>%1 is the format as typed; csv, json and gpx stay as they are</extracomment>
        <translation>“%1” no es un formato; usa csv, json o gpx.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the driving data somewhere else.</source>
        <translation>Keelhold nunca escribe en tu unidad de Tesla, así que guarda los datos de conducción en otro lugar.</translation>
    </message>
    <message>
        <source>The %1 camera has no footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>La cámara %1 no tiene grabaciones en este evento.</translation>
    </message>
    <message>
        <source>The %1 camera&apos;s clips of this event carry no driving data: cars record it from software 2025.44.25 on, and not in every mode.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;; 2025.44.25 is a software version</extracomment>
        <translation>Los clips de la cámara %1 de este evento no llevan datos de conducción: los coches los graban desde el software 2025.44.25, y no en todos los modos.</translation>
    </message>
    <message>
        <source>Could not write %1: %2.</source>
        <extracomment>%1 is a file, %2 the system&apos;s reason</extracomment>
        <translation>No se pudo escribir %1: %2.</translation>
    </message>
    <message>
        <source>The Vault has no event “%1”.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>La Bóveda no tiene ningún evento “%1”.</translation>
    </message>
    <message>
        <source>Moved “%1” to the Trash.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>Se movió “%1” a la Papelera.</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json can&apos;t be understood, so nothing was removed.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>No se puede interpretar el manifest.json de la Bóveda, así que no se ha quitado nada.</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json is missing, so the kept events can&apos;t be checked.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>Falta el manifest.json de la Bóveda, así que no se pueden comprobar los eventos conservados.</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json can&apos;t be understood, so nothing could be checked.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>No se puede interpretar el manifest.json de la Bóveda, así que no se ha podido comprobar nada.</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>vault verify: the verdict on an event whose files all match, in capitals like the others</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>DIFFERS</source>
        <extracomment>vault verify: the verdict on an event with a file changed, missing or unreadable</extracomment>
        <translation>DIFIERE</translation>
    </message>
    <message>
        <source>INCOMPLETE</source>
        <extracomment>vault verify: the verdict on an event that was kept only in part</extracomment>
        <translation>INCOMPLETO</translation>
    </message>
    <message>
        <source>%1 verified</source>
        <extracomment>vault verify: how many of an event&apos;s files matched their record</extracomment>
        <translation>verificados: %1</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <extracomment>vault verify: how many of an event&apos;s files differ from their record</extracomment>
        <translation>cambiados: %1</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <extracomment>vault verify: how many of an event&apos;s files are gone</extracomment>
        <translation>faltan: %1</translation>
    </message>
    <message>
        <source>%1 unreadable</source>
        <extracomment>vault verify: how many of an event&apos;s files couldn&apos;t be read</extracomment>
        <translation>ilegibles: %1</translation>
    </message>
    <message>
        <source>incomplete (%1 of %2 files kept)</source>
        <translation>incompleto (%1 de %2 archivos conservados)</translation>
    </message>
    <message>
        <source>changed %1</source>
        <extracomment>vault verify: %1 is the name of a file that differs from its record</extracomment>
        <translation>cambiado: %1</translation>
    </message>
    <message>
        <source>missing %1</source>
        <extracomment>vault verify: %1 is the name of a file that is gone</extracomment>
        <translation>falta: %1</translation>
    </message>
    <message>
        <source>unreadable %1</source>
        <extracomment>vault verify: %1 is the name of a file that couldn&apos;t be read</extracomment>
        <translation>ilegible: %1</translation>
    </message>
    <message>
        <source>%1  %2: %3</source>
        <extracomment>One line of vault verify: %1 the verdict, %2 the event&apos;s id, %3 the counts</extracomment>
        <translation>%1  %2: %3</translation>
    </message>
    <message>
        <source>%1  %2: %3 (%4)</source>
        <extracomment>One line of vault verify: %1 the verdict, %2 the event&apos;s id, %3 the counts, %4 the files that differ</extracomment>
        <translation>%1  %2: %3 (%4)</translation>
    </message>
    <message>
        <source>Lists, removes or re-checks the events kept in a Vault folder.
verify re-reads every file that manifest.json lists, judging each by the newest record that lists it, notes the date in the Vault&apos;s .keelhold-verified.json, and exits 1 if any file differs or is missing, or an event was kept only in part.</source>
        <extracomment>verify is a command&apos;s name; manifest.json and .keelhold-verified.json are file names</extracomment>
        <translation>Lista, quita o vuelve a comprobar los eventos conservados en una carpeta de Bóveda.
verify vuelve a leer cada archivo que lista manifest.json, juzgando cada uno por el registro más reciente que lo incluye, anota la fecha en el .keelhold-verified.json de la Bóveda y sale con 1 si algún archivo difiere o falta, o si un evento se conservó solo en parte.</translation>
    </message>
    <message>
        <source>list, remove or verify.</source>
        <extracomment>list, remove and verify are typed on the command line; keep them as they are</extracomment>
        <translation>list, remove o verify.</translation>
    </message>
    <message>
        <source>Nothing was kept</source>
        <translation>No se conservó nada</translation>
    </message>
    <message>
        <source>Keeps what is new from every TeslaCam drive that is connected, now and until stopped: Sentry and saved events, and recent driving with --recent, each file checked as it is copied. Prints one line for each drive it kept from, and tells the desktop when it is done. Stop it with Ctrl-C; a keep in progress ends cleanly first.</source>
        <translation>Conserva lo nuevo de cada unidad TeslaCam que se conecte, ahora y hasta que se detenga: eventos de Centinela y guardados, y también la conducción reciente con --recent, comprobando cada archivo al copiarlo. Imprime una línea por cada unidad de la que conservó algo y avisa al escritorio cuando termina. Detenlo con Ctrl-C; si hay una conservación en curso, antes termina limpiamente.</translation>
    </message>
    <message>
        <source>The Vault folder (the one chosen in Keelhold when not given).</source>
        <translation>La carpeta de Bóveda (la elegida en Keelhold si no se indica).</translation>
    </message>
    <message>
        <source>Keep recent driving too, each minute once.</source>
        <translation>Conservar también la conducción reciente, cada minuto una sola vez.</translation>
    </message>
    <message>
        <source>Watch only drives mounted at or below this folder (repeat for more; the default is /media, /run/media and /mnt).</source>
        <translation>Vigilar solo las unidades montadas en esta carpeta o por debajo de ella (repítelo para más; por defecto, /media, /run/media y /mnt).</translation>
    </message>
    <message>
        <source>No Vault folder is chosen yet. Choose one in Keelhold, or give one with --vault.</source>
        <translation>Aún no se ha elegido ninguna carpeta de Bóveda. Elige una en Keelhold o indícala con --vault.</translation>
    </message>
    <message>
        <source>Watching for TeslaCam drives; new footage goes to %1. Ctrl-C stops.</source>
        <translation>Vigilando unidades TeslaCam; las grabaciones nuevas van a %1. Ctrl-C para detener.</translation>
    </message>
</context>
<context>
    <name>CombinedExport</name>
    <message>
        <source>There is already a file at “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>Ya existe un archivo en “%1”.</translation>
    </message>
    <message>
        <source>None of this event&apos;s cameras has playable footage.</source>
        <translation>Ninguna de las cámaras de este evento tiene grabaciones reproducibles.</translation>
    </message>
    <message>
        <source>The folder “%1” doesn&apos;t exist.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>La carpeta “%1” no existe.</translation>
    </message>
    <message>
        <source>The chosen stretch lies outside this event&apos;s footage.</source>
        <translation>El tramo elegido queda fuera de las grabaciones de este evento.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be given its name “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>No se pudo dar al vídeo su nombre “%1”.</translation>
    </message>
</context>
<context>
    <name>CombinedRender</name>
    <message>
        <source>The movie couldn&apos;t be written.</source>
        <translation>No se pudo escribir el vídeo.</translation>
    </message>
</context>
<context>
    <name>CompositeGraph</name>
    <message>
        <source>The movie&apos;s pictures couldn&apos;t be put together (%1).</source>
        <extracomment>%1 is the step that failed, e.g. &quot;stacking&quot;</extracomment>
        <translation>No se pudieron componer las imágenes del vídeo (%1).</translation>
    </message>
    <message>
        <source>The movie&apos;s pictures couldn&apos;t be put together (%1: %2).</source>
        <extracomment>%1 is the step that failed, e.g. &quot;stacking&quot;; %2 the video library&apos;s reason</extracomment>
        <translation>No se pudieron componer las imágenes del vídeo (%1: %2).</translation>
    </message>
    <message>
        <source>no %1 filter</source>
        <extracomment>Step of putting a movie&apos;s pictures together: %1 is a video filter&apos;s name</extracomment>
        <translation>sin filtro %1</translation>
    </message>
    <message>
        <source>linking %1</source>
        <extracomment>Step of putting a movie&apos;s pictures together: %1 is a video filter&apos;s name</extracomment>
        <translation>enlazando %1</translation>
    </message>
    <message>
        <source>configuring</source>
        <extracomment>Step of putting a movie&apos;s pictures together: setting up the video filters</extracomment>
        <translation>configurando</translation>
    </message>
    <message>
        <source>memory</source>
        <extracomment>Step of putting a movie&apos;s pictures together: getting memory</extracomment>
        <translation>memoria</translation>
    </message>
    <message>
        <source>drawing a name</source>
        <extracomment>Step of putting a movie&apos;s pictures together: drawing words on a picture</extracomment>
        <translation>dibujando un nombre</translation>
    </message>
    <message>
        <source>no cameras</source>
        <extracomment>Step of putting a movie&apos;s pictures together: there were no cameras to show</extracomment>
        <translation>sin cámaras</translation>
    </message>
    <message>
        <source>unknown picture format</source>
        <extracomment>Step of putting a movie&apos;s pictures together: a camera&apos;s picture format was not known</extracomment>
        <translation>formato de imagen desconocido</translation>
    </message>
    <message>
        <source>adding a picture</source>
        <extracomment>Step of putting a movie&apos;s pictures together: adding a camera&apos;s picture</extracomment>
        <translation>añadiendo una imagen</translation>
    </message>
    <message>
        <source>ending</source>
        <extracomment>Step of putting a movie&apos;s pictures together: ending the movie</extracomment>
        <translation>finalizando</translation>
    </message>
    <message>
        <source>stacking</source>
        <extracomment>Step of putting a movie&apos;s pictures together: putting the cameras side by side</extracomment>
        <translation>apilando</translation>
    </message>
    <message>
        <source>drawing the time</source>
        <extracomment>Step of putting a movie&apos;s pictures together: drawing the date and time</extracomment>
        <translation>dibujando la hora</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Tesla Footage Viewer</source>
        <translation>Visor de grabaciones de Tesla</translation>
    </message>
    <message>
        <source>Review the footage your Tesla recorded and keep what matters</source>
        <translation>Revisa las grabaciones de tu Tesla y conserva lo importante</translation>
    </message>
    <message>
        <source>Tesla;TeslaCam;Sentry;Dashcam;Dashboard camera;USB;Vault;</source>
        <extracomment>Search words for the desktop&apos;s menu, each ending in a semicolon; keep the English ones and add your language&apos;s</extracomment>
        <translation>Tesla;TeslaCam;Sentry;Dashcam;Dashboard camera;USB;Vault;Centinela;Cámara;Bóveda;Grabaciones;</translation>
    </message>
    <message>
        <source>Review and keep your Tesla&apos;s camera footage</source>
        <translation>Revisa y conserva las grabaciones de las cámaras de tu Tesla</translation>
    </message>
</context>
<context>
    <name>DesktopNotices</name>
    <message>
        <source>your drive</source>
        <comment>a keep&apos;s drive without a name</comment>
        <translation>tu unidad</translation>
    </message>
    <message numerus="yes">
        <source>%n Sentry events not kept yet</source>
        <translation>
            <numerusform>%n evento de Centinela aún sin conservar</numerusform>
            <numerusform>%n eventos de Centinela aún sin conservar</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is connected with Sentry events that aren&apos;t in your Vault.</source>
        <translation>Se ha conectado %1, con eventos de Centinela que no están en tu Bóveda.</translation>
    </message>
</context>
<context>
    <name>DesktopNotifier</name>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
</context>
<context>
    <name>DriveBoundary</name>
    <message>
        <source>Keelhold never writes to your Tesla drive, so your Vault has to be a folder somewhere else.</source>
        <translation>Keelhold nunca escribe en tu unidad de Tesla, así que tu Bóveda tiene que ser una carpeta en otro lugar.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the movie somewhere else.</source>
        <translation>Keelhold nunca escribe en tu unidad de Tesla, así que guarda el vídeo en otro lugar.</translation>
    </message>
</context>
<context>
    <name>DriveSession</name>
    <message>
        <source>Getting started…</source>
        <translation>Iniciando…</translation>
    </message>
    <message>
        <source>Loading sample footage…</source>
        <translation>Cargando grabaciones de muestra…</translation>
    </message>
</context>
<context>
    <name>DrivingDataOverlay</name>
    <message>
        <source>mph</source>
        <extracomment>Speed units under the speed; keep them short</extracomment>
        <translation>mph</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
</context>
<context>
    <name>DrivingDataPanel</name>
    <message>
        <source>Steering %1</source>
        <extracomment>Driving data drawn over an exported movie: %1 is the wheel&apos;s angle, e.g. &quot;12° left&quot;</extracomment>
        <translation>Volante %1</translation>
    </message>
    <message>
        <source>BRAKE</source>
        <extracomment>Word on the brake lamp of the driving data drawn over an exported movie; keep it short</extracomment>
        <translation>FRENO</translation>
    </message>
</context>
<context>
    <name>DrivingDataText</name>
    <message>
        <source>Autopilot</source>
        <extracomment>Driver assistance engaged: the car steers (Tesla&apos;s name)</extracomment>
        <translation>Autopilot</translation>
    </message>
    <message>
        <source>Traffic-aware cruise</source>
        <extracomment>Driver assistance engaged: the car keeps speed and distance only</extracomment>
        <translation>Control de crucero adaptativo</translation>
    </message>
    <message>
        <source>Self-driving</source>
        <extracomment>Driver assistance engaged: Full Self-Driving</extracomment>
        <translation>Conducción autónoma</translation>
    </message>
    <message>
        <source>N</source>
        <extracomment>Compass point abbreviation: north</extracomment>
        <translation>N</translation>
    </message>
    <message>
        <source>NE</source>
        <extracomment>Compass point abbreviation: north-east</extracomment>
        <translation>NE</translation>
    </message>
    <message>
        <source>E</source>
        <extracomment>Compass point abbreviation: east</extracomment>
        <translation>E</translation>
    </message>
    <message>
        <source>SE</source>
        <extracomment>Compass point abbreviation: south-east</extracomment>
        <translation>SE</translation>
    </message>
    <message>
        <source>S</source>
        <extracomment>Compass point abbreviation: south</extracomment>
        <translation>S</translation>
    </message>
    <message>
        <source>SW</source>
        <extracomment>Compass point abbreviation: south-west</extracomment>
        <translation>SO</translation>
    </message>
    <message>
        <source>W</source>
        <extracomment>Compass point abbreviation: west</extracomment>
        <translation>O</translation>
    </message>
    <message>
        <source>NW</source>
        <extracomment>Compass point abbreviation: north-west</extracomment>
        <translation>NO</translation>
    </message>
    <message>
        <source>%1 %2°</source>
        <extracomment>Heading of the car: %1 is a compass point (e.g. NE), %2 whole degrees</extracomment>
        <translation>%1 %2°</translation>
    </message>
    <message>
        <source>%1° right</source>
        <extracomment>Steering wheel angle in whole degrees, turned to the right</extracomment>
        <translation>%1° derecha</translation>
    </message>
    <message>
        <source>%1° left</source>
        <extracomment>Steering wheel angle in whole degrees, turned to the left</extracomment>
        <translation>%1° izquierda</translation>
    </message>
</context>
<context>
    <name>EventKind</name>
    <message>
        <source>Sentry</source>
        <extracomment>Kind of event: footage Sentry Mode kept while the car was parked</extracomment>
        <translation>Centinela</translation>
    </message>
    <message>
        <source>Saved</source>
        <extracomment>Kind of event: footage the driver saved (button or honk)</extracomment>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Recent Driving</source>
        <extracomment>Kind of event: the car&apos;s rolling recording of the last hour of driving</extracomment>
        <translation>Conducción reciente</translation>
    </message>
</context>
<context>
    <name>EventMapPresenter</name>
    <message>
        <source>All located events</source>
        <extracomment>Heading in the map&apos;s list over the events with a place</extracomment>
        <translation>Todos los eventos con ubicación</translation>
    </message>
    <message>
        <source>No location recorded</source>
        <extracomment>Heading in the map&apos;s list over the events without a place</extracomment>
        <translation>Sin ubicación registrada</translation>
    </message>
    <message>
        <source>No events have a location yet</source>
        <translation>Aún no hay eventos con ubicación</translation>
    </message>
    <message>
        <source>Your car only records a location for some events. Once you have events with a place attached, they&apos;ll appear here as pins.</source>
        <translation>Tu coche solo registra la ubicación de algunos eventos. Cuando tengas eventos con un lugar asociado, aparecerán aquí como marcadores.</translation>
    </message>
</context>
<context>
    <name>EventMapView</name>
    <message>
        <source>%1, %2</source>
        <extracomment>Screen reader name of a kept event&apos;s pin: its reason, then &quot;Kept in your Vault&quot;
----------
Screen reader name of a row in the map&apos;s list: the event&apos;s reason, then its date and time</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>EventPlayerPresenter</name>
    <message>
        <source>Coordinates as recorded by your car — useful for an insurance or police report.</source>
        <translation>Coordenadas tal como las registró tu coche — útiles para un parte al seguro o una denuncia a la policía.</translation>
    </message>
    <message>
        <source>Archived %1 from %2</source>
        <extracomment>%1 is when the event was kept, %2 the name of the drive it came from</extracomment>
        <translation>Conservado el %1 desde %2</translation>
    </message>
    <message>
        <source>Loading cameras…</source>
        <translation>Cargando cámaras…</translation>
    </message>
    <message>
        <source>No playable footage for this event</source>
        <translation>No hay grabaciones reproducibles de este evento</translation>
    </message>
    <message>
        <source>None of this event&apos;s camera angles could be read. The files are still safely on your drive — this can happen with a failing drive or a corrupted minute.</source>
        <translation>No se pudo leer ninguno de los ángulos de cámara de este evento. Los archivos siguen a salvo en tu unidad — esto puede ocurrir con una unidad que falla o con un minuto dañado.</translation>
    </message>
    <message>
        <source>Step back 5 seconds. (Left Arrow)</source>
        <translation>Retroceder 5 segundos. (flecha izquierda)</translation>
    </message>
    <message>
        <source>Step forward 5 seconds. (Right Arrow)</source>
        <translation>Avanzar 5 segundos. (flecha derecha)</translation>
    </message>
    <message>
        <source>Step back one frame. (,)</source>
        <translation>Retroceder un fotograma. (,)</translation>
    </message>
    <message>
        <source>Step forward one frame. (.)</source>
        <translation>Avanzar un fotograma. (.)</translation>
    </message>
    <message>
        <source>Play or pause all cameras together, perfectly in sync. (Space)</source>
        <translation>Reproducir o pausar todas las cámaras a la vez, perfectamente sincronizadas. (Space)</translation>
    </message>
    <message>
        <source>Moment</source>
        <extracomment>Button: jump to the moment the event happened</extracomment>
        <translation>Momento</translation>
    </message>
    <message>
        <source>Jump to just before the moment it happened — the honk, bump, or detection. (M)</source>
        <translation>Saltar a justo antes del momento en que ocurrió — el claxon, el golpe o la detección. (M)</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>Label of the playback speed picker</extracomment>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Playback speed, from half speed to 4×.</source>
        <translation>Velocidad de reproducción, de la mitad a 4×.</translation>
    </message>
    <message>
        <source>Show All Cameras</source>
        <translation>Ver todas las cámaras</translation>
    </message>
    <message>
        <source>Return to the full camera grid.</source>
        <translation>Volver a la cuadrícula con todas las cámaras.</translation>
    </message>
    <message>
        <source>Drag to jump to any moment. Every camera stays in sync.</source>
        <translation>Arrastra para saltar a cualquier momento. Todas las cámaras siguen sincronizadas.</translation>
    </message>
    <message>
        <source>Playback position</source>
        <translation>Posición de reproducción</translation>
    </message>
    <message>
        <source>Keep a safe copy on this %1</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Conservar una copia segura en este %1</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Button that keeps the event in the Vault</extracomment>
        <translation>Conservar</translation>
    </message>
    <message>
        <source>Copies this footage to your Vault and verifies it matches byte-for-byte. Nothing on your drive is ever changed or deleted. (K)</source>
        <translation>Copia estas grabaciones a tu Bóveda y verifica que coinciden byte a byte. Nunca se cambia ni se borra nada de tu unidad. (K)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Button that hides the event from the list</extracomment>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Hide this from your inbox. This never deletes anything from your drive or Vault. (D)</source>
        <translation>Quítalo de tu bandeja de entrada. Esto nunca borra nada de tu unidad ni de tu Bóveda. (D)</translation>
    </message>
    <message>
        <source>Export &amp; Share</source>
        <translation>Exportar y compartir</translation>
    </message>
    <message>
        <source>Save one camera&apos;s footage as its own file and hand it off by email, or save it to a folder.</source>
        <translation>Guarda las grabaciones de una cámara como un archivo propio y envíalo por correo, o guárdalo en una carpeta.</translation>
    </message>
    <message>
        <source>Fill the window with just the cameras. (F, Esc to go back)</source>
        <translation>Llenar la ventana solo con las cámaras. (F; Esc para volver)</translation>
    </message>
    <message>
        <source>Verified copy</source>
        <translation>Copia verificada</translation>
    </message>
    <message>
        <source>This copy was checked byte-for-byte against your drive when it was archived. Tap for the technical detail.</source>
        <translation>Esta copia se comprobó byte a byte con tu unidad cuando se conservó. Pulsa para ver los detalles técnicos.</translation>
    </message>
    <message>
        <source>Faithful Copy</source>
        <translation>Copia fiel</translation>
    </message>
    <message>
        <source>Every file below was copied and its checksum (SHA-256) was compared to the original on your drive at the time — a faithful, unaltered copy. This is a technical integrity check, not a legal certification.</source>
        <translation>Cada archivo de abajo se copió y su suma de comprobación (SHA-256) se comparó en ese momento con el original de tu unidad — una copia fiel y sin alterar. Es una comprobación técnica de integridad, no una certificación legal.</translation>
    </message>
    <message>
        <source>Export finished</source>
        <translation>Exportación terminada</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <extracomment>%1 is the file&apos;s name</extracomment>
        <translation>%1 está listo.</translation>
    </message>
    <message>
        <source>Export didn&apos;t finish</source>
        <translation>La exportación no terminó</translation>
    </message>
</context>
<context>
    <name>EventTimeline</name>
    <message>
        <source>Unlock to watch</source>
        <extracomment>On a camera&apos;s tile: encrypted footage that needs its keys first</extracomment>
        <translation>Desbloquear para ver</translation>
    </message>
    <message>
        <source>This angle didn&apos;t record properly — a known Tesla drive issue.</source>
        <extracomment>On a camera&apos;s tile: its footage is damaged</extracomment>
        <translation>Este ángulo no se grabó bien — un problema conocido de las unidades de Tesla.</translation>
    </message>
    <message>
        <source>No footage this minute.</source>
        <extracomment>On a camera&apos;s tile: the car wrote nothing for this camera at this time</extracomment>
        <translation>Sin grabación en este minuto.</translation>
    </message>
</context>
<context>
    <name>EvidencePackage</name>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it is no longer there.</source>
        <translation>No se pudo leer %1 de la unidad — ya no está ahí.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it isn&apos;t an ordinary file.</source>
        <translation>No se pudo leer %1 de la unidad — no es un archivo normal.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — the system refused to open it.</source>
        <translation>No se pudo leer %1 de la unidad — el sistema se negó a abrirlo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — the drive reported an error.</source>
        <translation>No se pudo leer %1 de la unidad — la unidad informó de un error.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — the disk is full.</source>
        <translation>No se pudo escribir el paquete ahí — el disco está lleno.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — that folder can&apos;t be written to.</source>
        <translation>No se pudo escribir el paquete ahí — no se puede escribir en esa carpeta.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — that folder doesn&apos;t exist.</source>
        <translation>No se pudo escribir el paquete ahí — esa carpeta no existe.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — a folder already has that name.</source>
        <translation>No se pudo escribir el paquete ahí — ya hay una carpeta con ese nombre.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — the disk reported an error.</source>
        <translation>No se pudo escribir el paquete ahí — el disco informó de un error.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it stopped answering.</source>
        <translation>No se pudo leer %1 de la unidad — dejó de responder.</translation>
    </message>
    <message>
        <source>%1 changed while the package was being made — the package was not made.</source>
        <translation>%1 cambió mientras se creaba el paquete — no se ha creado el paquete.</translation>
    </message>
    <message>
        <source>%1 changed since the report was made — the package was not made.</source>
        <translation>%1 cambió después de crear el informe — no se ha creado el paquete.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the package somewhere else.</source>
        <translation>Keelhold nunca escribe en tu unidad de Tesla, así que guarda el paquete en otro lugar.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be a name inside the package — the package was not made.</source>
        <translation>%1 no puede ser un nombre dentro del paquete — no se ha creado el paquete.</translation>
    </message>
</context>
<context>
    <name>ExportError</name>
    <message>
        <source>Unknown export failure.</source>
        <translation>Error de exportación desconocido.</translation>
    </message>
    <message>
        <source>There is no playable footage from this camera in this event.</source>
        <translation>No hay grabaciones reproducibles de esta cámara en este evento.</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be put together into one movie.</source>
        <translation>No se pudieron unir las grabaciones en un solo vídeo.</translation>
    </message>
    <message>
        <source>This footage can&apos;t be written as an MP4 movie with the video tools on this computer.</source>
        <translation>Estas grabaciones no se pueden escribir como vídeo MP4 con las herramientas de vídeo de este ordenador.</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>Se detuvo la exportación.</translation>
    </message>
</context>
<context>
    <name>ExportFlow</name>
    <message>
        <source>Put together what an insurer, the police or a lawyer asks for: when and where it happened, what each camera saw, how the car was driven, and every original file with a way to check it.</source>
        <translation>Reúne lo que piden una aseguradora, la policía o un abogado: cuándo y dónde ocurrió, qué vio cada cámara, cómo se conducía el coche y cada archivo original con una forma de comprobarlo.</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>quedan unos segundos</translation>
    </message>
    <message numerus="yes">
        <source>about %n seconds left</source>
        <translation>
            <numerusform>queda alrededor de %n segundo</numerusform>
            <numerusform>quedan alrededor de %n segundos</numerusform>
        </translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>queda alrededor de un minuto</translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes left</source>
        <translation>
            <numerusform>queda alrededor de %n minuto</numerusform>
            <numerusform>quedan alrededor de %n minutos</numerusform>
        </translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <extracomment>%1 is a number of hours with one decimal, e.g. 1.5</extracomment>
        <translation>quedan alrededor de %1 horas</translation>
    </message>
    <message>
        <source>%1 of %2 frames</source>
        <translation>%1 de %2 fotogramas</translation>
    </message>
    <message>
        <source>%1× real time</source>
        <extracomment>How fast the movie is made: 1.8× real time</extracomment>
        <translation>%1× tiempo real</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <extracomment>%1 is the exported file&apos;s name</extracomment>
        <translation>Listo: %1</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <extracomment>%1 is the saved file&apos;s name</extracomment>
        <translation>Guardado como %1</translation>
    </message>
    <message>
        <source>Camera</source>
        <extracomment>Label of the camera picker</extracomment>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Export as</source>
        <translation>Exportar como</translation>
    </message>
    <message>
        <source>One camera (original quality)</source>
        <translation>Una cámara (calidad original)</translation>
    </message>
    <message>
        <source>Grid of every camera</source>
        <translation>Cuadrícula con todas las cámaras</translation>
    </message>
    <message>
        <source>Front and sides</source>
        <translation>Delantera y laterales</translation>
    </message>
    <message>
        <source>One camera with overlay</source>
        <translation>Una cámara con datos superpuestos</translation>
    </message>
    <message>
        <source>Show</source>
        <extracomment>Label over the overlay choices: which details the movie shows over the video</extracomment>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Camera names</source>
        <translation>Nombres de las cámaras</translation>
    </message>
    <message>
        <source>Reason and place</source>
        <translation>Motivo y lugar</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Datos de conducción</translation>
    </message>
    <message>
        <source>No driving data in these clips</source>
        <translation>Estos clips no tienen datos de conducción</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Label over the movie&apos;s picture size choices</extracomment>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>720p</source>
        <extracomment>Picture size: 720 lines high</extracomment>
        <translation>720p</translation>
    </message>
    <message>
        <source>1080p</source>
        <extracomment>Picture size: 1080 lines high</extracomment>
        <translation>1080p</translation>
    </message>
    <message>
        <source>Full resolution</source>
        <translation>Resolución completa</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>Label over the choices of which part of the event to export</extracomment>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Whole event</source>
        <translation>Evento completo</translation>
    </message>
    <message>
        <source>From the moment</source>
        <translation>Desde el momento</translation>
    </message>
    <message>
        <source>From 10 seconds before the moment it happened to 20 seconds after.</source>
        <translation>Desde 10 segundos antes del momento en que ocurrió hasta 20 segundos después.</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>A part of the event the user sets by start and end</extracomment>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>De</translation>
    </message>
    <message>
        <source>to</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>a</translation>
    </message>
    <message>
        <source>into the event</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>del evento</translation>
    </message>
    <message>
        <source>The end has to come after the start.</source>
        <translation>El final tiene que ser posterior al inicio.</translation>
    </message>
    <message>
        <source>Finishing the file…</source>
        <translation>Terminando el archivo…</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Exportando…</translation>
    </message>
    <message>
        <source>Saving a copy…</source>
        <translation>Guardando una copia…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>Button that starts the export</extracomment>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>Button that stops a running export</extracomment>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the finished export dialog</extracomment>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar en carpeta</translation>
    </message>
    <message>
        <source>Opens the folder that holds the file, with the file selected.</source>
        <translation>Abre la carpeta que contiene el archivo, con el archivo seleccionado.</translation>
    </message>
    <message>
        <source>Email…</source>
        <translation>Correo…</translation>
    </message>
    <message>
        <source>Starts a new email with the file attached.</source>
        <translation>Crea un correo nuevo con el archivo adjunto.</translation>
    </message>
    <message>
        <source>Save to…</source>
        <translation>Guardar en…</translation>
    </message>
    <message>
        <source>Choose exactly where on your %1 to save this file.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Elige exactamente en qué lugar de tu %1 guardar este archivo.</translation>
    </message>
    <message>
        <source>MPEG-4 movie (*.mp4)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.mp4)&quot; as it is</extracomment>
        <translation>Vídeo MPEG-4 (*.mp4)</translation>
    </message>
    <message>
        <source>Incident Report (PDF)</source>
        <translation>Informe de incidente (PDF)</translation>
    </message>
    <message>
        <source>Evidence Package (ZIP)</source>
        <translation>Paquete de pruebas (ZIP)</translation>
    </message>
    <message>
        <source>When and where, each camera at the moment, the driving data, and every original file with its SHA-256, ready for an insurer or the police.</source>
        <translation>Cuándo y dónde, cada cámara en ese momento, los datos de conducción y cada archivo original con su SHA-256, listo para una aseguradora o la policía.</translation>
    </message>
    <message>
        <source>The report, every original file exactly as the car wrote it, and a SHA256SUMS file anyone can check them with, in one ZIP.</source>
        <extracomment>SHA256SUMS is a file name; keep it as it is</extracomment>
        <translation>El informe, cada archivo original exactamente como lo escribió el coche y un archivo SHA256SUMS con el que cualquiera puede comprobarlos, en un solo ZIP.</translation>
    </message>
    <message>
        <source>Include unlock keys</source>
        <translation>Incluir claves de desbloqueo</translation>
    </message>
    <message>
        <source>Lets whoever receives the package play the encrypted footage. Anyone with the keys can watch it.</source>
        <translation>Permite a quien reciba el paquete reproducir las grabaciones cifradas. Cualquiera que tenga las claves puede verlas.</translation>
    </message>
    <message>
        <source>Making the report…</source>
        <translation>Creando el informe…</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.pdf)&quot; as it is</extracomment>
        <translation>Documento PDF (*.pdf)</translation>
    </message>
    <message>
        <source>ZIP archive (*.zip)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.zip)&quot; as it is</extracomment>
        <translation>Archivo ZIP (*.zip)</translation>
    </message>
    <message>
        <source>Export &amp; Share</source>
        <translation>Exportar y compartir</translation>
    </message>
    <message>
        <source>Save this event as its own video file, ready to send to an insurer, police, or anyone else who needs it: one camera exactly as recorded, or every camera in one movie.</source>
        <translation>Guarda este evento como un archivo de vídeo propio, listo para enviarlo a una aseguradora, a la policía o a quien lo necesite: una cámara tal como se grabó, o todas las cámaras en un solo vídeo.</translation>
    </message>
    <message>
        <source>This couldn&apos;t be exported right now. Your original footage on the drive is untouched — you can try again.</source>
        <translation>Ahora mismo no se ha podido exportar. Tus grabaciones originales en la unidad no se han tocado — puedes volver a intentarlo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t save there — try a different folder.</source>
        <translation>No se pudo guardar ahí — prueba con otra carpeta.</translation>
    </message>
    <message>
        <source>Stops the export. Your original footage is untouched either way.</source>
        <translation>Detiene la exportación. Tus grabaciones originales no se tocan en ningún caso.</translation>
    </message>
</context>
<context>
    <name>ExportSession</name>
    <message>
        <source>The movie couldn&apos;t be written.</source>
        <translation>No se pudo escribir el vídeo.</translation>
    </message>
    <message>
        <source>There wasn&apos;t enough memory to export the footage.</source>
        <translation>No había memoria suficiente para exportar las grabaciones.</translation>
    </message>
</context>
<context>
    <name>Exporter</name>
    <message>
        <source>The chosen stretch lies outside this camera&apos;s footage.</source>
        <translation>El tramo elegido queda fuera de las grabaciones de esta cámara.</translation>
    </message>
    <message>
        <source>This camera&apos;s clips are too damaged to make a movie that keeps its own timing.</source>
        <translation>Los clips de esta cámara están demasiado dañados para crear un vídeo que mantenga sus propios tiempos.</translation>
    </message>
</context>
<context>
    <name>FailureScreens</name>
    <message>
        <source>Choose a Different Drive</source>
        <translation>Elegir otra unidad</translation>
    </message>
    <message>
        <source>Tesla dashcam and Sentry footage always lives in a folder named &quot;TeslaCam&quot; at the top level of the drive. If this is the right drive, make sure Dashcam Recording is turned on in your car&apos;s settings.</source>
        <extracomment>&quot;Dashcam Recording&quot; is the car&apos;s setting, as named on its touchscreen</extracomment>
        <translation>Las grabaciones de la dashcam y del Modo Centinela de Tesla siempre están en una carpeta llamada &quot;TeslaCam&quot; en el nivel superior de la unidad. Si esta es la unidad correcta, comprueba que la Grabación de Dashcam está activada en los ajustes de tu coche.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; doesn&apos;t have a TeslaCam folder on it, so it may not be the drive from your car.</source>
        <extracomment>%1 is the drive&apos;s name</extracomment>
        <translation>“%1” no tiene ninguna carpeta TeslaCam, así que puede que no sea la unidad de tu coche.</translation>
    </message>
    <message>
        <source>We couldn&apos;t find a TeslaCam folder</source>
        <translation>No hemos encontrado ninguna carpeta TeslaCam</translation>
    </message>
    <message>
        <source>Your car needs a drive formatted as exFAT (or FAT32 for smaller drives), and this one is %1. Back up anything important from it first, then reformat it using %2 (choose &quot;ExFAT&quot;) and reinsert it into your car so it can start recording.</source>
        <extracomment>%1 is the drive&apos;s format (e.g. NTFS), %2 a program that formats drives, e.g. &quot;a disk utility such as Disks&quot;. &quot;ExFAT&quot; is the choice as the program names it</extracomment>
        <translation>Tu coche necesita una unidad formateada en exFAT (o FAT32 para unidades más pequeñas), y esta está en %1. Primero haz una copia de todo lo importante que contenga, luego vuelve a formatearla con %2 (elige &quot;ExFAT&quot;) y vuelve a insertarla en el coche para que pueda empezar a grabar.</translation>
    </message>
    <message>
        <source>This drive needs to be reformatted</source>
        <translation>Hay que volver a formatear esta unidad</translation>
    </message>
    <message>
        <source>We need you to point us back to your Tesla drive</source>
        <translation>Necesitamos que vuelvas a indicarnos tu unidad de Tesla</translation>
    </message>
    <message>
        <source>%1 asks apps to re-confirm folder access sometimes — for example after a drive is renamed or unplugged and replugged. Nothing is wrong and nothing was lost; just pick the Tesla drive again and everything will pick up where it left off.</source>
        <extracomment>%1 is the operating system, e.g. &quot;Your system&quot;</extracomment>
        <translation>%1 pide a veces a las aplicaciones que vuelvan a confirmar el acceso a las carpetas — por ejemplo, después de cambiar el nombre de una unidad o de desconectarla y volver a conectarla. No pasa nada malo y no se ha perdido nada; solo tienes que volver a elegir la unidad de Tesla y todo seguirá donde se quedó.</translation>
    </message>
    <message>
        <source>Choose Tesla drive</source>
        <translation>Elegir unidad de Tesla</translation>
    </message>
    <message>
        <source>We need you to point us back to your Vault folder</source>
        <translation>Necesitamos que vuelvas a indicarnos tu carpeta de Bóveda</translation>
    </message>
    <message>
        <source>%1 asks apps to re-confirm folder access sometimes — for example after a drive is renamed or unplugged and replugged. Nothing is wrong and nothing was lost; just pick the Vault folder again and everything will pick up where it left off.</source>
        <extracomment>%1 is the operating system, e.g. &quot;Your system&quot;</extracomment>
        <translation>%1 pide a veces a las aplicaciones que vuelvan a confirmar el acceso a las carpetas — por ejemplo, después de cambiar el nombre de una unidad o de desconectarla y volver a conectarla. No pasa nada malo y no se ha perdido nada; solo tienes que volver a elegir la carpeta de Bóveda y todo seguirá donde se quedó.</translation>
    </message>
    <message>
        <source>Choose Vault folder</source>
        <translation>Elegir carpeta de Bóveda</translation>
    </message>
    <message>
        <source>This drive doesn&apos;t have any footage yet</source>
        <translation>Esta unidad aún no tiene grabaciones</translation>
    </message>
    <message>
        <source>We found a TeslaCam folder, but there&apos;s nothing in it yet. Your car saves footage here as you drive and while it&apos;s parked with Sentry Mode on — check back after your next drive.</source>
        <translation>Hemos encontrado una carpeta TeslaCam, pero todavía no contiene nada. Tu coche guarda aquí grabaciones mientras conduces y mientras está aparcado con el Modo Centinela activado — vuelve a mirar después de tu próximo trayecto.</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt dashcam clips so only your Tesla account can view them. This isn&apos;t damage or an error — Keelhold still safely backs these files up exactly as they are, and encrypted clips can be watched anytime at %1. Want future footage to play right here? There&apos;s a 30-second setting in your car.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>El software más reciente de Tesla puede cifrar los clips de la dashcam para que solo tu cuenta de Tesla pueda verlos. No es un daño ni un error — Keelhold sigue poniendo a salvo estos archivos exactamente tal como están, y los clips cifrados se pueden ver en cualquier momento en %1. ¿Quieres que las grabaciones futuras se reproduzcan aquí mismo? Hay un ajuste de 30 segundos en tu coche.</translation>
    </message>
    <message>
        <source>Your car is encrypting this footage</source>
        <translation>Tu coche está cifrando estas grabaciones</translation>
    </message>
    <message>
        <source>Show Me the 30-Second Fix</source>
        <translation>Ver el ajuste de 30 segundos</translation>
    </message>
    <message>
        <source>Your drive was disconnected</source>
        <translation>Tu unidad se ha desconectado</translation>
    </message>
    <message>
        <source>No problem — nothing was lost. Whatever was in progress is paused and will pick back up right where it left off as soon as you plug the drive back in.</source>
        <translation>No pasa nada — no se ha perdido nada. Lo que estaba en curso queda en pausa y seguirá justo donde se quedó en cuanto vuelvas a conectar la unidad.</translation>
    </message>
</context>
<context>
    <name>FileHandOff</name>
    <message>
        <source>Show the file in its folder, or attach it to a new email.</source>
        <translation>Muestra el archivo en su carpeta o adjúntalo a un correo nuevo.</translation>
    </message>
</context>
<context>
    <name>H264Encoder</name>
    <message>
        <source>There wasn&apos;t enough memory to export the footage.</source>
        <translation>No había memoria suficiente para exportar las grabaciones.</translation>
    </message>
    <message>
        <source>The movie&apos;s video encoder couldn&apos;t be started: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>No se pudo iniciar el codificador de vídeo: %1.</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be encoded: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>No se pudieron codificar las grabaciones: %1.</translation>
    </message>
</context>
<context>
    <name>HardMoment</name>
    <message>
        <source>Hard braking</source>
        <translation>Frenada brusca</translation>
    </message>
    <message>
        <source>Swerve</source>
        <translation>Volantazo</translation>
    </message>
    <message>
        <source>Sudden stop</source>
        <translation>Parada repentina</translation>
    </message>
    <message>
        <source>Emergency braking</source>
        <translation>Frenada de emergencia</translation>
    </message>
    <message>
        <source>Self-Driving off</source>
        <translation>Conducción autónoma desactivada</translation>
    </message>
    <message>
        <source>Cruise control off</source>
        <translation>Control de crucero desactivado</translation>
    </message>
    <message>
        <source>Autosteer off</source>
        <translation>Autogiro desactivado</translation>
    </message>
</context>
<context>
    <name>HealthComputer</name>
    <message>
        <source>These clips are in a folder on this %1, not on your car&apos;s drive, so there&apos;s nothing to reformat.</source>
        <extracomment>%1 is the word for the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Estos clips están en una carpeta de este %1, no en la unidad de tu coche, así que no hay nada que volver a formatear.</translation>
    </message>
    <message>
        <source>Your drive is formatted exFAT — exactly what your Tesla expects. No action needed.</source>
        <translation>Tu unidad está formateada en exFAT — justo lo que espera tu Tesla. No hace falta hacer nada.</translation>
    </message>
    <message>
        <source>Your drive is formatted FAT32. Older Tesla software prefers exFAT for drives over 32 GB — if you ever see recording gaps, reformatting to exFAT (in %1, after backing up) can help.</source>
        <extracomment>%1 names the tool to format a drive with, e.g. &quot;a disk utility such as Disks&quot;</extracomment>
        <translation>Tu unidad está formateada en FAT32. El software antiguo de Tesla prefiere exFAT para unidades de más de 32 GB — si alguna vez ves huecos en la grabación, volver a formatearla en exFAT (con %1, después de hacer una copia de seguridad) puede ayudar.</translation>
    </message>
    <message>
        <source>Your drive is formatted %1, which your car can record to. exFAT is the most widely used choice if you also read it on other computers.</source>
        <extracomment>%1 is a file system name, e.g. ext4</extracomment>
        <translation>Tu unidad está formateada en %1, en el que tu coche puede grabar. exFAT es la opción más extendida si también la lees en otros ordenadores.</translation>
    </message>
    <message>
        <source>This drive is formatted %1, which your car cannot record to. Reformat it to exFAT before using it as a dashcam drive.</source>
        <extracomment>%1 is a file system name, e.g. NTFS</extracomment>
        <translation>Esta unidad está formateada en %1, en el que tu coche no puede grabar. Vuelve a formatearla en exFAT antes de usarla como unidad de dashcam.</translation>
    </message>
    <message>
        <source>This drive is formatted %1, which your car may not fully support. exFAT is the safest choice.</source>
        <extracomment>%1 is a file system name</extracomment>
        <translation>Esta unidad está formateada en %1, que puede que tu coche no admita del todo. exFAT es la opción más segura.</translation>
    </message>
    <message>
        <source>We couldn&apos;t determine how this drive is formatted.</source>
        <translation>No hemos podido determinar cómo está formateada esta unidad.</translation>
    </message>
    <message numerus="yes">
        <source>Back up %n new events</source>
        <translation>
            <numerusform>Pon a salvo %n evento nuevo</numerusform>
            <numerusform>Pon a salvo %n eventos nuevos</numerusform>
        </translation>
    </message>
    <message>
        <source>These moments are only on your car&apos;s drive right now. Keep them so they&apos;re safe even if the drive fills up or fails.</source>
        <translation>Estos momentos solo están ahora mismo en la unidad de tu coche. Consérvalos para que estén a salvo aunque la unidad se llene o falle.</translation>
    </message>
    <message>
        <source>%1% full — normal for a Tesla drive</source>
        <extracomment>%1 is a whole percentage; the % sign follows it</extracomment>
        <translation>%1% llena — normal en una unidad de Tesla</translation>
    </message>
    <message>
        <source>The car reuses space by overwriting its oldest footage. That&apos;s expected, not a problem — back up anything you want to keep from the recommendation above.</source>
        <translation>El coche reutiliza el espacio sobrescribiendo sus grabaciones más antiguas. Es lo esperado, no un problema — pon a salvo lo que quieras conservar desde la recomendación de arriba.</translation>
    </message>
    <message>
        <source>Drive is %1% full</source>
        <extracomment>%1 is a whole percentage; the % sign follows it</extracomment>
        <translation>La unidad está llena al %1%</translation>
    </message>
    <message>
        <source>Nothing urgent yet, but it&apos;s worth backing up regularly so you&apos;re never caught out.</source>
        <translation>Nada urgente por ahora, pero conviene poner las grabaciones a salvo con regularidad para que nunca te pille desprevenido.</translation>
    </message>
    <message numerus="yes">
        <source>%n clips didn&apos;t record properly</source>
        <translation>
            <numerusform>%n clip no se grabó bien</numerusform>
            <numerusform>%n clips no se grabaron bien</numerusform>
        </translation>
    </message>
    <message>
        <source>A small number of damaged clips is normal and not something to worry about.</source>
        <translation>Un número pequeño de clips dañados es normal y no es motivo de preocupación.</translation>
    </message>
    <message>
        <source>This is a known issue with some Tesla USB drives, especially cheaper or older ones. Consider a bigger-name USB 3.0 drive if this keeps happening.</source>
        <translation>Es un problema conocido de algunas unidades USB de Tesla, sobre todo de las más baratas o antiguas. Si sigue ocurriendo, plantéate usar una unidad USB 3.0 de una marca más conocida.</translation>
    </message>
    <message>
        <source>Some clips are encrypted by your car</source>
        <translation>Tu coche cifra algunos clips</translation>
    </message>
    <message>
        <source>Recent Tesla software can encrypt dashcam footage. Keelhold can still back these up — see Help for how to view them.</source>
        <translation>El software reciente de Tesla puede cifrar las grabaciones de la dashcam. Keelhold puede ponerlas a salvo igualmente — consulta la Ayuda para saber cómo verlas.</translation>
    </message>
    <message>
        <source>Everything looks good</source>
        <translation>Todo parece correcto</translation>
    </message>
    <message>
        <source>Your drive is healthy and up to date. Nothing needs your attention right now.</source>
        <translation>Tu unidad está en buen estado y al día. Ahora mismo no hay nada que requiera tu atención.</translation>
    </message>
</context>
<context>
    <name>HealthPresenter</name>
    <message>
        <source>%1% full — normal for a Tesla drive. The car reuses space by overwriting its oldest footage.</source>
        <extracomment>%1 is a whole percentage; &quot;%1% full&quot; reads &quot;90% full&quot;</extracomment>
        <translation>%1% llena — normal en una unidad de Tesla. El coche reutiliza el espacio sobrescribiendo sus grabaciones más antiguas.</translation>
    </message>
    <message numerus="yes">
        <source>You have %n events not backed up yet — see the recommendation below.</source>
        <translation>
            <numerusform>Tienes %n evento aún sin poner a salvo — mira la recomendación de abajo.</numerusform>
            <numerusform>Tienes %n eventos aún sin poner a salvo — mira la recomendación de abajo.</numerusform>
        </translation>
    </message>
    <message>
        <source>Free Space</source>
        <translation>Espacio libre</translation>
    </message>
    <message>
        <source>We couldn&apos;t read this drive&apos;s capacity.</source>
        <translation>No hemos podido leer la capacidad de esta unidad.</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>Heading: the drive&apos;s file system format (exFAT, FAT32, …)</extracomment>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Footage Condition</source>
        <translation>Estado de las grabaciones</translation>
    </message>
    <message>
        <source>Still checking your footage for damage — check back shortly.</source>
        <translation>Todavía estamos comprobando si hay grabaciones dañadas — vuelve a mirar en un momento.</translation>
    </message>
    <message numerus="yes">
        <source>All %n checked clips are in good shape.</source>
        <translation>
            <numerusform>El clip comprobado está en buen estado.</numerusform>
            <numerusform>Los %n clips comprobados están en buen estado.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n checked clips didn&apos;t record properly.</source>
        <extracomment>%1 damaged clips of %n checked</extracomment>
        <translation>
            <numerusform>%1 de %n clip comprobado no se grabó bien.</numerusform>
            <numerusform>%1 de %n clips comprobados no se grabaron bien.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is a known issue with some Tesla USB drives and isn&apos;t something you did.</source>
        <translation>Es un problema conocido de algunas unidades USB de Tesla y no es culpa tuya.</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Cifrado</translation>
    </message>
    <message>
        <source>Some clips on this drive are encrypted by your car.</source>
        <translation>Tu coche cifra algunos clips de esta unidad.</translation>
    </message>
    <message>
        <source>Keelhold can still back these up as-is. Encrypted clips play at %1.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Keelhold puede ponerlos a salvo igualmente, tal como están. Los clips cifrados se reproducen en %1.</translation>
    </message>
    <message>
        <source>Turn encryption off for future recordings…</source>
        <translation>Desactivar el cifrado para futuras grabaciones…</translation>
    </message>
    <message>
        <source>A 30-second setting in your car. Everything already recorded is unaffected.</source>
        <translation>Un ajuste de 30 segundos en tu coche. No afecta a nada de lo ya grabado.</translation>
    </message>
    <message>
        <source>Recommendations</source>
        <translation>Recomendaciones</translation>
    </message>
    <message>
        <source>No drive health yet</source>
        <translation>Aún no hay diagnóstico de la unidad</translation>
    </message>
    <message>
        <source>Scan a Tesla drive from the Drive tab to see its fullness, corruption rate, and format at a glance.</source>
        <extracomment>&quot;Drive&quot; is the app&apos;s own tab; translate it as there</extracomment>
        <translation>Analiza una unidad de Tesla desde la pestaña Unidad para ver de un vistazo su ocupación, su proporción de clips dañados y su formato.</translation>
    </message>
</context>
<context>
    <name>HelpArticle</name>
    <message>
        <source>What is Sentry Mode?</source>
        <translation>¿Qué es el Modo Centinela?</translation>
    </message>
    <message>
        <source>Why are clips exactly one minute long?</source>
        <translation>¿Por qué los clips duran exactamente un minuto?</translation>
    </message>
    <message>
        <source>What does &quot;didn&apos;t record properly&quot; mean?</source>
        <extracomment>The quoted words are the app&apos;s own, from its message about damaged clips</extracomment>
        <translation>¿Qué significa “no se grabó bien”?</translation>
    </message>
    <message>
        <source>Why does it say some clips are encrypted?</source>
        <translation>¿Por qué dice que algunos clips están cifrados?</translation>
    </message>
    <message>
        <source>How does the Vault keep my footage safe?</source>
        <translation>¿Cómo mantiene la Bóveda a salvo mis grabaciones?</translation>
    </message>
    <message>
        <source>Will this app ever change or delete anything on my drive?</source>
        <translation>¿Cambiará o borrará esta aplicación algo de mi unidad?</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Sentry Mode is your Tesla&apos;s built-in security system. While your car is parked, its cameras watch for people or objects that come close, or for a bump or impact. When something happens, the car saves a short recording from every camera into a &quot;Sentry event&quot; so you can review it later.</source>
        <translation>El Modo Centinela es el sistema de seguridad integrado de tu Tesla. Mientras el coche está aparcado, sus cámaras vigilan si se acercan personas u objetos, o si hay un golpe o un impacto. Cuando ocurre algo, el coche guarda una grabación breve de todas las cámaras en un “evento de Centinela” para que puedas revisarla más tarde.</translation>
    </message>
    <message>
        <source>You can turn Sentry Mode on or off, and adjust its sensitivity, from your car&apos;s touchscreen under Safety &amp; Security.</source>
        <translation>Puedes activar o desactivar el Modo Centinela, y ajustar su sensibilidad, desde la pantalla táctil del coche, en Seguridad.</translation>
    </message>
    <message>
        <source>Your Tesla records in one-minute segments, one file per camera per minute, rather than one long continuous video. This is simply how the car&apos;s software is built — it makes the recordings easier for the car to manage and less likely to be lost all at once if something goes wrong.</source>
        <translation>Tu Tesla graba en segmentos de un minuto, un archivo por cámara y por minuto, en lugar de un único vídeo largo y continuo. Así está hecho el software del coche — al coche le resulta más fácil gestionar las grabaciones, y es menos probable que se pierdan todas a la vez si algo sale mal.</translation>
    </message>
    <message>
        <source>Keelhold stitches these one-minute files back together into a single, continuous timeline for you, so you never have to think about the individual files — you just scrub through one smooth timeline per event.</source>
        <translation>Keelhold vuelve a unir estos archivos de un minuto en una sola línea de tiempo continua, para que no tengas que pensar en los archivos sueltos — simplemente recorres una línea de tiempo fluida por evento.</translation>
    </message>
    <message>
        <source>Occasionally, a clip won&apos;t play — it might be zero bytes, cut off partway through, or simply unreadable. This is a well-known issue with Tesla USB drives, especially with lower-quality or aging drives, and it is not something you did.</source>
        <translation>A veces un clip no se reproduce — puede tener cero bytes, estar cortado a medias o ser simplemente ilegible. Es un problema muy conocido de las unidades USB de Tesla, sobre todo con unidades de peor calidad o ya envejecidas, y no es culpa tuya.</translation>
    </message>
    <message>
        <source>When this happens, Keelhold shows that camera angle as a labeled placeholder instead of crashing or freezing, and counts it in Drive Health so you can see how often it&apos;s happening. If it happens a lot, a newer USB 3.0 drive from a reputable brand usually helps.</source>
        <translation>Cuando ocurre, Keelhold muestra ese ángulo de cámara como un hueco con su rótulo en lugar de bloquearse o congelarse, y lo cuenta en Diagnóstico para que veas con qué frecuencia ocurre. Si ocurre a menudo, suele ayudar una unidad USB 3.0 nueva de una marca de confianza.</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt dashcam and Sentry clips so that only you can view them — this is a privacy feature, not damage or an error. Encrypted files still look like normal video files, but no app can decode their contents without the key of each clip.</source>
        <translation>El software más reciente de Tesla puede cifrar los clips de la dashcam y del Modo Centinela para que solo tú puedas verlos — es una función de privacidad, no un daño ni un error. Los archivos cifrados siguen pareciendo archivos de vídeo normales, pero ninguna aplicación puede descodificar su contenido sin la clave de cada clip.</translation>
    </message>
    <message>
        <source>Keelhold safely backs up encrypted clips exactly as they are — the backup and verification steps work the same either way.</source>
        <translation>Keelhold pone a salvo los clips cifrados exactamente tal como están — la copia y la verificación funcionan igual en ambos casos.</translation>
    </message>
    <message>
        <source>To watch them here, choose “Unlock Encrypted Footage…” and sign in with your Tesla account. Keelhold then asks Tesla for each clip&apos;s key, sending only the clip&apos;s locked key and your car&apos;s VIN, never any video, and keeps the keys so the footage plays here from then on, even offline. You can also watch them at %1, where your browser fetches the keys the same way.</source>
        <translation>Para verlos aquí, elige “Desbloquear grabaciones cifradas…” e inicia sesión con tu cuenta de Tesla. Keelhold pide entonces a Tesla la clave de cada clip, enviando solo la clave bloqueada del clip y el VIN de tu coche, nunca vídeo, y guarda las claves para que las grabaciones se reproduzcan aquí a partir de entonces, incluso sin conexión. También puedes verlos en %1, donde tu navegador obtiene las claves de la misma forma.</translation>
    </message>
    <message>
        <source>Want future footage to play right here instead? In your car: Controls → Safety → switch off &quot;Encrypt Dashcam Recordings&quot; (about 30 seconds — the app can walk you through it wherever you see the encryption notice). Everything already recorded is unaffected either way.</source>
        <extracomment>Controls, Safety and &quot;Encrypt Dashcam Recordings&quot; are named as on the car&apos;s touchscreen</extracomment>
        <translation>¿Prefieres que las grabaciones futuras se reproduzcan aquí mismo? En tu coche: Controles → Seguridad → desactiva “Cifrar grabaciones de Dashcam” (unos 30 segundos — la aplicación puede guiarte allí donde veas el aviso de cifrado). No afecta a nada de lo ya grabado.</translation>
    </message>
    <message>
        <source>When you choose &quot;Keep&quot; on an event, Keelhold copies every file for that event to a folder you chose (your &quot;Vault&quot;) while checking the data as it copies. It then re-checks the copy&apos;s checksum (SHA-256) against the original to make sure the copy is a faithful, byte-for-byte match — you&apos;ll see it marked &quot;Verified copy&quot; afterward.</source>
        <extracomment>&quot;Keep&quot; and &quot;Verified copy&quot; are the app&apos;s own button and mark; translate them as there</extracomment>
        <translation>Cuando eliges “Conservar” en un evento, Keelhold copia todos los archivos de ese evento a una carpeta que elegiste (tu “Bóveda”) y comprueba los datos mientras copia. Después vuelve a comparar la suma de comprobación (SHA-256) de la copia con la del original para asegurarse de que la copia es fiel y coincide byte a byte — después la verás marcada como “Copia verificada”.</translation>
    </message>
    <message>
        <source>Your Vault works completely independently of your car&apos;s drive: once something is kept, you can browse and watch it any time, even with the Tesla drive unplugged or gone entirely. Re-importing the same drive later automatically recognizes anything already kept, so you never end up with duplicates.</source>
        <translation>Tu Bóveda funciona de forma totalmente independiente de la unidad del coche: una vez conservado algo, puedes explorarlo y verlo cuando quieras, incluso con la unidad de Tesla desconectada o desaparecida. Si más adelante vuelves a importar la misma unidad, se reconoce automáticamente todo lo ya conservado, así que nunca acabas con duplicados.</translation>
    </message>
    <message>
        <source>No. Keelhold only ever reads from your Tesla&apos;s drive — no code path in this app writes to it, renames anything on it, or deletes anything from it. The only place this app writes to is the Vault folder you choose on your %1 (or another drive you pick).</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>No. Keelhold solo lee la unidad de tu Tesla — ninguna parte del código de esta aplicación escribe en ella, cambia el nombre de nada que contenga ni borra nada de ella. El único lugar donde escribe esta aplicación es la carpeta de Bóveda que elijas en tu %1 (u otra unidad que elijas).</translation>
    </message>
    <message>
        <source>This matters most right after something happens to your car: the drive from your glovebox is exactly as safe to hand to police or an insurer after using this app as it was before.</source>
        <translation>Esto importa sobre todo justo después de que le pase algo a tu coche: después de usar esta aplicación, la unidad de tu guantera es tan segura de entregar a la policía o a una aseguradora como lo era antes.</translation>
    </message>
    <message>
        <source>You can review everything without touching the mouse:</source>
        <translation>Puedes revisarlo todo sin tocar el ratón:</translation>
    </message>
    <message>
        <source>A quick reminder of these appears under the playback controls until you hide it — and you can always come back here.</source>
        <translation>Bajo los controles de reproducción aparece un breve recordatorio de estos atajos hasta que lo ocultes — y siempre puedes volver aquí.</translation>
    </message>
    <message>
        <source>Space — play or pause all cameras together</source>
        <extracomment>A line of the keyboard help: the key, a dash, what it does. Name keys as keyboards there mark them</extracomment>
        <translation>Space — reproducir o pausar todas las cámaras a la vez</translation>
    </message>
    <message>
        <source>← and → — skip back or forward 5 seconds</source>
        <translation>← y → — retroceder o avanzar 5 segundos</translation>
    </message>
    <message>
        <source>, and . — step one frame back or forward (pauses first)</source>
        <translation>, y . — retroceder o avanzar un fotograma (primero pausa)</translation>
    </message>
    <message>
        <source>1 to 7 — jump straight to a camera (in the order shown in the grid)</source>
        <translation>1 a 7 — saltar directamente a una cámara (en el orden de la cuadrícula)</translation>
    </message>
    <message>
        <source>0 — back to all cameras</source>
        <translation>0 — volver a todas las cámaras</translation>
    </message>
    <message>
        <source>M — replay the moment it happened (just before the honk, bump, or detection)</source>
        <translation>M — volver a ver el momento en que ocurrió (justo antes del claxon, el golpe o la detección)</translation>
    </message>
    <message>
        <source>N and Shift+N — jump to the next or previous thing that happened: someone moving in front of a camera (that camera is enlarged), or a hard brake, swerve or Autosteer switching off</source>
        <translation>N y Shift+N — saltar a lo siguiente o a lo anterior que ocurrió: alguien que se mueve delante de una cámara (esa cámara se amplía), o una frenada brusca, un volantazo o el Autogiro que se desactiva</translation>
    </message>
    <message>
        <source>F — fill the window with just the cameras (Esc goes back)</source>
        <translation>F — llenar la ventana solo con las cámaras (Esc para volver)</translation>
    </message>
    <message>
        <source>T — show or hide the car&apos;s driving data over the video (speed, pedals, steering, Autopilot)</source>
        <translation>T — mostrar u ocultar los datos de conducción del coche sobre el vídeo (velocidad, pedales, volante, Autopilot)</translation>
    </message>
    <message>
        <source>↑ and ↓ — move through the event list, auto-playing each one</source>
        <translation>↑ y ↓ — recorrer la lista de eventos, reproduciendo cada uno</translation>
    </message>
    <message>
        <source>K — keep a safe copy of the selected event in your Vault</source>
        <translation>K — conservar una copia segura del evento seleccionado en tu Bóveda</translation>
    </message>
    <message>
        <source>D — dismiss the selected event (never deletes any footage)</source>
        <translation>D — descartar el evento seleccionado (nunca borra ninguna grabación)</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Help</source>
        <extracomment>Heading over the list of help articles</extracomment>
        <translation>Ayuda</translation>
    </message>
</context>
<context>
    <name>HelpWindowController</name>
    <message>
        <source>Keelhold Help</source>
        <translation>Ayuda de Keelhold</translation>
    </message>
</context>
<context>
    <name>InboxPresenter</name>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is the long date, %2 the time: &quot;Monday, 2 June 2025 at 2:11:05 AM&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>Heading over the events of today</extracomment>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>Heading over the events of yesterday</extracomment>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>A row&apos;s second line: the place, then the event&apos;s size on disk</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Details limited — footage intact</source>
        <translation>Detalles limitados — grabación intacta</translation>
    </message>
    <message>
        <source>Place and details stay with your car</source>
        <translation>El lugar y los detalles quedan en tu coche</translation>
    </message>
    <message>
        <source>Your car didn&apos;t write a details file for this event, so we don&apos;t know the exact reason or location — the video itself is intact.</source>
        <translation>Tu coche no escribió un archivo de detalles para este evento, así que no sabemos el motivo exacto ni el lugar — el vídeo en sí está intacto.</translation>
    </message>
    <message>
        <source>Encrypted by your car</source>
        <translation>Cifrado por tu coche</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <extracomment>Short reason on a row&apos;s chip: the footage is encrypted</extracomment>
        <translation>Cifrado</translation>
    </message>
    <message>
        <source>Your car encrypted this recording, and its reason and place with it. Keelhold keeps it byte for byte; unlock it with your Tesla account to watch it here.</source>
        <translation>Tu coche cifró esta grabación, y con ella su motivo y su lugar. Keelhold la conserva byte a byte; desbloquéala con tu cuenta de Tesla para verla aquí.</translation>
    </message>
    <message>
        <source>Locked — unlock it with your Tesla account to watch it here.</source>
        <translation>Bloqueado — desbloquéalo con tu cuenta de Tesla para verlo aquí.</translation>
    </message>
    <message>
        <source>Unlocked — its keys are kept on this computer, so it plays here even offline.</source>
        <translation>Desbloqueado — sus claves se guardan en este ordenador, así que se reproduce aquí incluso sin conexión.</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <extracomment>Screen reader name of a row: reason, date and time, place</extracomment>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>Screen reader name of a row: reason, date and time</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>New — you haven&apos;t watched this yet.</source>
        <translation>Nuevo — aún no lo has visto.</translation>
    </message>
    <message>
        <source>A verified copy is safe in your Vault.</source>
        <translation>Hay una copia verificada a salvo en tu Bóveda.</translation>
    </message>
    <message numerus="yes">
        <source>%n damaged clips</source>
        <translation>
            <numerusform>%n clip dañado</numerusform>
            <numerusform>%n clips dañados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n angles from this moment didn&apos;t record properly. This is a known Tesla drive issue, not something you did.</source>
        <extracomment>Camera angles, one per camera, whose clips are damaged</extracomment>
        <translation>
            <numerusform>%n ángulo de este momento no se grabó bien. Es un problema conocido de las unidades de Tesla, no es culpa tuya.</numerusform>
            <numerusform>%n ángulos de este momento no se grabaron bien. Es un problema conocido de las unidades de Tesla, no es culpa tuya.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reason: %1</source>
        <extracomment>Screen reader name of a row&apos;s reason chip; %1 is the car&apos;s reason</extracomment>
        <translation>Motivo: %1</translation>
    </message>
    <message numerus="yes">
        <source>Keep %n</source>
        <extracomment>Button that keeps the ticked events in the Vault; %n is how many</extracomment>
        <translation>
            <numerusform>Conservar %n</numerusform>
            <numerusform>Conservar %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Dismiss %n</source>
        <extracomment>Button that hides the ticked events from the list; %n is how many</extracomment>
        <translation>
            <numerusform>Descartar %n</numerusform>
            <numerusform>Descartar %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Deselect this event</source>
        <translation>Quitar la selección de este evento</translation>
    </message>
    <message>
        <source>Select this event</source>
        <translation>Seleccionar este evento</translation>
    </message>
    <message>
        <source>New</source>
        <extracomment>Status filter: events not watched yet</extracomment>
        <translation>Nuevos</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <extracomment>Status filter: events already watched</extracomment>
        <translation>Vistos</translation>
    </message>
    <message>
        <source>In Vault</source>
        <extracomment>Status filter: events kept in the Vault</extracomment>
        <translation>En la Bóveda</translation>
    </message>
    <message>
        <source>Dismissed</source>
        <extracomment>Status filter: events hidden from the list</extracomment>
        <translation>Descartados</translation>
    </message>
    <message>
        <source>Sentry</source>
        <extracomment>Kind filter: Sentry Mode events</extracomment>
        <translation>Centinela</translation>
    </message>
    <message>
        <source>Saved</source>
        <extracomment>Kind filter: clips the driver saved</extracomment>
        <translation>Guardados</translation>
    </message>
    <message>
        <source>Recent Driving</source>
        <extracomment>Kind filter: the car&apos;s rolling recording of recent driving</extracomment>
        <translation>Conducción reciente</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>One place in the Activity line: camera name, then time into the event (&quot;Left Side 2:14&quot;)</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Activity: %1</source>
        <translation>Actividad: %1</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the places in the Activity line</extracomment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>InboxViewModel</name>
    <message>
        <source>Drive</source>
        <extracomment>Title of the car drive&apos;s event list</extracomment>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Switch Drive</source>
        <translation>Cambiar de unidad</translation>
    </message>
    <message>
        <source>Pick a different Tesla drive or re-scan this one.</source>
        <translation>Elige otra unidad de Tesla o vuelve a analizar esta.</translation>
    </message>
    <message>
        <source>Checking for new events…</source>
        <translation>Buscando eventos nuevos…</translation>
    </message>
    <message>
        <source>Filter</source>
        <extracomment>Button that opens the filter menu</extracomment>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Show only certain statuses, reasons, or kinds of events.</source>
        <translation>Mostrar solo ciertos estados, motivos o tipos de eventos.</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Heading in the filter menu: filter by status (new, reviewed, …)</extracomment>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Reason</source>
        <extracomment>Heading in the filter menu: filter by the car&apos;s reason for recording</extracomment>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Heading in the filter menu: filter by kind (Sentry, saved, recent driving)</extracomment>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Quitar todos los filtros</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>Button that starts ticking several events</extracomment>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Select multiple events to keep or dismiss them all at once.</source>
        <translation>Selecciona varios eventos para conservarlos o descartarlos todos a la vez.</translation>
    </message>
    <message>
        <source>Tick events to keep or dismiss them together.</source>
        <translation>Marca eventos para conservarlos o descartarlos juntos.</translation>
    </message>
    <message>
        <source>Archive the selected events to your Vault.</source>
        <translation>Conservar los eventos seleccionados en tu Bóveda.</translation>
    </message>
    <message>
        <source>Hide the selected events. This never deletes footage from your drive or Vault.</source>
        <translation>Ocultar los eventos seleccionados. Esto nunca borra grabaciones de tu unidad ni de tu Bóveda.</translation>
    </message>
    <message>
        <source>Remove this filter.</source>
        <translation>Quitar este filtro.</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Button that keeps the event in the Vault</extracomment>
        <translation>Conservar</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Button that hides the event from the list</extracomment>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Just had an incident while driving?</source>
        <translation>¿Acabas de tener un incidente conduciendo?</translation>
    </message>
    <message>
        <source>It&apos;s likely in Recent Driving below. This folder overwrites itself as you keep driving, so keep a copy now if you need it.</source>
        <extracomment>&quot;Recent Driving&quot; is the list&apos;s own heading for the car&apos;s rolling recording</extracomment>
        <translation>Probablemente está abajo, en Conducción reciente. Esta carpeta se sobrescribe mientras sigues conduciendo, así que conserva una copia ahora si la necesitas.</translation>
    </message>
    <message>
        <source>Keep Recent Driving Now</source>
        <translation>Conservar ya la conducción reciente</translation>
    </message>
    <message>
        <source>Copies all of Recent Driving to your Vault before it&apos;s overwritten. Your drive itself is never changed.</source>
        <translation>Copia toda la Conducción reciente a tu Bóveda antes de que se sobrescriba. La unidad en sí nunca se modifica.</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>Button that plays Recent Driving</extracomment>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>All statuses</source>
        <translation>Todos los estados</translation>
    </message>
    <message>
        <source>Any reason</source>
        <translation>Cualquier motivo</translation>
    </message>
    <message>
        <source>Everything</source>
        <extracomment>Kind filter: no filter, every kind of event</extracomment>
        <translation>Todo</translation>
    </message>
</context>
<context>
    <name>IncidentReport</name>
    <message>
        <source>There is no folder at %1.</source>
        <translation>No hay ninguna carpeta en %1.</translation>
    </message>
    <message>
        <source>The report couldn&apos;t be written there.</source>
        <translation>No se pudo escribir el informe ahí.</translation>
    </message>
    <message>
        <source>There is no room for the report on this computer.</source>
        <translation>No hay espacio para el informe en este ordenador.</translation>
    </message>
</context>
<context>
    <name>KeepSummary</name>
    <message>
        <source>Keeping stopped</source>
        <translation>Se detuvo la conservación</translation>
    </message>
    <message numerus="yes">
        <source>%1 was disconnected before everything was kept: %n events kept and verified.</source>
        <translation>
            <numerusform>%1 se desconectó antes de conservarlo todo: %n evento conservado y verificado.</numerusform>
            <numerusform>%1 se desconectó antes de conservarlo todo: %n eventos conservados y verificados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped keeping from %1: %n events kept and verified.</source>
        <translation>
            <numerusform>Se dejó de conservar desde %1: %n evento conservado y verificado.</numerusform>
            <numerusform>Se dejó de conservar desde %1: %n eventos conservados y verificados.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some footage couldn&apos;t be kept</source>
        <translation>No se pudieron conservar algunas grabaciones</translation>
    </message>
    <message numerus="yes">
        <source>Kept %n new events from %1, but some files couldn&apos;t be kept. %2</source>
        <extracomment>%1 is the drive&apos;s name, %2 the first failed file&apos;s reason (a whole sentence)</extracomment>
        <translation>
            <numerusform>Se conservó %n evento nuevo de %1, pero algunos archivos no se pudieron conservar. %2</numerusform>
            <numerusform>Se conservaron %n eventos nuevos de %1, pero algunos archivos no se pudieron conservar. %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing new to keep</source>
        <translation>Nada nuevo que conservar</translation>
    </message>
    <message>
        <source>Everything on %1 is already in your Vault.</source>
        <translation>Todo lo de %1 ya está en tu Bóveda.</translation>
    </message>
    <message>
        <source>Footage kept</source>
        <translation>Grabaciones conservadas</translation>
    </message>
    <message numerus="yes">
        <source>Kept %n new events from %1 — %2, all verified</source>
        <extracomment>%1 is the drive&apos;s name, %2 a size such as &quot;1.2 GB&quot;</extracomment>
        <translation>
            <numerusform>Se conservó %n evento nuevo de %1 — %2, todo verificado</numerusform>
            <numerusform>Se conservaron %n eventos nuevos de %1 — %2, todo verificado</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeyService</name>
    <message>
        <source>Tesla couldn&apos;t confirm that your account owns the car that recorded this clip, so it can&apos;t be unlocked.</source>
        <translation>Tesla no pudo confirmar que tu cuenta sea la propietaria del coche que grabó este clip, así que no se puede desbloquear.</translation>
    </message>
    <message>
        <source>Your Tesla sign-in has expired. Sign in again to unlock this footage.</source>
        <translation>Tu inicio de sesión de Tesla ha caducado. Vuelve a iniciar sesión para desbloquear estas grabaciones.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service couldn&apos;t be reached. Check your internet connection and try again.</source>
        <translation>No se pudo contactar con el servicio de Tesla. Comprueba tu conexión a internet y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service refused to unlock this clip. Try again later.</source>
        <translation>El servicio de Tesla se negó a desbloquear este clip. Vuelve a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service gave an answer Keelhold couldn&apos;t read. Try again later.</source>
        <translation>El servicio de Tesla dio una respuesta que Keelhold no pudo leer. Vuelve a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>This clip was copied while the car was still writing it, so it can&apos;t be unlocked.</source>
        <translation>Este clip se copió mientras el coche aún lo estaba escribiendo, así que no se puede desbloquear.</translation>
    </message>
    <message>
        <source>This clip&apos;s header is damaged, so it can&apos;t be unlocked.</source>
        <translation>La cabecera de este clip está dañada, así que no se puede desbloquear.</translation>
    </message>
    <message>
        <source>Sign in with your Tesla account to unlock this footage.</source>
        <translation>Inicia sesión con tu cuenta de Tesla para desbloquear estas grabaciones.</translation>
    </message>
    <message>
        <source>The key Tesla&apos;s service sent doesn&apos;t open this clip, so it can&apos;t be unlocked.</source>
        <translation>La clave que envió el servicio de Tesla no abre este clip, así que no se puede desbloquear.</translation>
    </message>
    <message>
        <source>This clip couldn&apos;t be read from the drive, so it can&apos;t be unlocked.</source>
        <translation>No se pudo leer este clip de la unidad, así que no se puede desbloquear.</translation>
    </message>
</context>
<context>
    <name>KeyboardHints</name>
    <message>
        <source>Space</source>
        <extracomment>The space bar, as a key&apos;s name</extracomment>
        <translation>Space</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Reproducir/Pausa</translation>
    </message>
    <message>
        <source>Skip 5s</source>
        <translation>Saltar 5 s</translation>
    </message>
    <message>
        <source>Frame step</source>
        <translation>Fotograma</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Cámaras</translation>
    </message>
    <message>
        <source>All cameras</source>
        <translation>Todas las cámaras</translation>
    </message>
    <message>
        <source>The moment</source>
        <extracomment>Jump to the moment the event happened</extracomment>
        <translation>El momento</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Qué pasó</translation>
    </message>
    <message>
        <source>Fill window</source>
        <translation>Llenar ventana</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Datos de conducción</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Keep the event in the Vault</extracomment>
        <translation>Conservar</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Hide the event from the list</extracomment>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Hide these hints. The full shortcut list stays in Help.</source>
        <translation>Ocultar estas pistas. La lista completa de atajos sigue en la Ayuda.</translation>
    </message>
</context>
<context>
    <name>ListPaneResizeHandle</name>
    <message>
        <source>Resize event list</source>
        <translation>Cambiar el tamaño de la lista de eventos</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Copy Diagnostic Information</source>
        <translation>Copiar información de diagnóstico</translation>
    </message>
</context>
<context>
    <name>MapViewModel</name>
    <message>
        <source>Kept in your Vault</source>
        <translation>Conservado en tu Bóveda</translation>
    </message>
    <message>
        <source>Driving yourself</source>
        <extracomment>The route key&apos;s colour for driving without Autopilot</extracomment>
        <translation>Conducción manual</translation>
    </message>
    <message>
        <source>Map tiles aren&apos;t available — check your internet connection.</source>
        <translation>Los mosaicos del mapa no están disponibles — comprueba tu conexión a internet.</translation>
    </message>
</context>
<context>
    <name>MockEngine</name>
    <message>
        <source>Reading your drive…</source>
        <translation>Leyendo tu unidad…</translation>
    </message>
    <message>
        <source>Reading Sentry events…</source>
        <translation>Leyendo eventos de Centinela…</translation>
    </message>
    <message>
        <source>Reading saved clips…</source>
        <translation>Leyendo clips guardados…</translation>
    </message>
    <message>
        <source>Reading recent driving…</source>
        <translation>Leyendo la conducción reciente…</translation>
    </message>
    <message>
        <source>Almost done…</source>
        <translation>Ya casi está…</translation>
    </message>
</context>
<context>
    <name>Mp4Writer</name>
    <message>
        <source>There is already a file at “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>Ya existe un archivo en “%1”.</translation>
    </message>
    <message>
        <source>The movie file “%1” couldn&apos;t be created: %2.</source>
        <extracomment>%1 is the movie&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>No se pudo crear el archivo de vídeo “%1”: %2.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be started: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>No se pudo iniciar el vídeo: %1.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be written: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>No se pudo escribir el vídeo: %1.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be finished: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>No se pudo terminar el vídeo: %1.</translation>
    </message>
</context>
<context>
    <name>OnboardingTexts</name>
    <message>
        <source>Loads a few short made-up clips so you can look around before connecting your own Tesla.</source>
        <translation>Carga unos cuantos clips cortos inventados para que puedas echar un vistazo antes de conectar tu propio Tesla.</translation>
    </message>
    <message>
        <source>Welcome to Keelhold</source>
        <translation>Te damos la bienvenida a Keelhold</translation>
    </message>
    <message>
        <source>Your Tesla is always recording — Sentry Mode, saved clips, and your recent drives. This app reads the USB drive from your car&apos;s glovebox, shows you what it found in plain English, and keeps a permanent, verified copy on your %1 so you never lose footage that matters.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Tu Tesla siempre está grabando — Modo Centinela, clips guardados y tus trayectos recientes. Esta aplicación lee la unidad USB de la guantera de tu coche, te muestra lo que ha encontrado en un lenguaje sencillo y conserva una copia permanente y verificada en tu %1 para que nunca pierdas grabaciones importantes.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <extracomment>Button on the first screen of the setup</extracomment>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Just exploring? Try sample footage</source>
        <translation>¿Solo quieres curiosear? Prueba las grabaciones de muestra</translation>
    </message>
    <message>
        <source>Show Me Your Tesla Drive</source>
        <translation>Muéstranos tu unidad de Tesla</translation>
    </message>
    <message>
        <source>Plug in the USB drive from your car&apos;s glovebox, then pick it below. We only look at the parts of the drive you choose to show us.</source>
        <translation>Conecta la unidad USB de la guantera de tu coche y elígela abajo. Solo miramos las partes de la unidad que decidas enseñarnos.</translation>
    </message>
    <message>
        <source>Connected drives appear here the moment %1 mounts them. Pick yours and confirm with one click — we&apos;ll check for Tesla footage right after.</source>
        <extracomment>%1 is the operating system as a sentence&apos;s subject, e.g. &quot;your system&quot;</extracomment>
        <translation>Las unidades conectadas aparecen aquí en cuanto %1 las monta. Elige la tuya y confírmalo con un clic — justo después buscaremos grabaciones de Tesla.</translation>
    </message>
    <message>
        <source>No drive detected yet. Insert your Tesla&apos;s USB drive, or choose it manually below.</source>
        <translation>Aún no se ha detectado ninguna unidad. Inserta la unidad USB de tu Tesla o elígela manualmente abajo.</translation>
    </message>
    <message>
        <source>Choose a Drive or Folder Manually…</source>
        <translation>Elegir una unidad o carpeta manualmente…</translation>
    </message>
    <message>
        <source>Opens a file picker starting at %1, where connected USB drives appear.</source>
        <extracomment>%1 is a folder path, e.g. /media/alex</extracomment>
        <translation>Abre un selector de archivos que empieza en %1, donde aparecen las unidades USB conectadas.</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>Button: back to the previous step of the setup</extracomment>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Select Your Tesla&apos;s USB Drive</source>
        <extracomment>Title of the folder dialog that picks the car&apos;s drive</extracomment>
        <translation>Selecciona la unidad USB de tu Tesla</translation>
    </message>
    <message>
        <source>Choose the drive itself, or its TeslaCam folder. Look for a plain external drive icon — Tesla drives usually show up as &quot;UNTITLED&quot; or similar.</source>
        <translation>Elige la propia unidad, o su carpeta TeslaCam. Busca un icono normal de unidad externa — las unidades de Tesla suelen aparecer como &quot;UNTITLED&quot; o algo parecido.</translation>
    </message>
    <message>
        <source>Use This Drive</source>
        <extracomment>Accept button of the folder dialog that picks the car&apos;s drive</extracomment>
        <translation>Usar esta unidad</translation>
    </message>
    <message>
        <source>Reading your drive…</source>
        <translation>Leyendo tu unidad…</translation>
    </message>
    <message>
        <source>This usually takes a few seconds.</source>
        <translation>Suele tardar unos segundos.</translation>
    </message>
    <message>
        <source>Browse While It Finishes</source>
        <translation>Explorar mientras termina</translation>
    </message>
    <message>
        <source>Start Browsing</source>
        <translation>Empezar a explorar</translation>
    </message>
    <message>
        <source>Recording without encryption</source>
        <translation>Grabar sin cifrado</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt new recordings so only your Tesla account can view them. If you&apos;d like footage to play here (and in any app), switch it off in your car — it takes about 30 seconds, and everything already recorded stays exactly as it is.</source>
        <translation>El software más reciente de Tesla puede cifrar las grabaciones nuevas para que solo tu cuenta de Tesla pueda verlas. Si quieres que las grabaciones se reproduzcan aquí (y en cualquier aplicación), desactívalo en tu coche — se tarda unos 30 segundos, y todo lo ya grabado se queda exactamente como está.</translation>
    </message>
    <message>
        <source>Open %1</source>
        <extracomment>Button; %1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Abrir %1</translation>
    </message>
    <message>
        <source>Tesla&apos;s own viewer for encrypted clips — decryption happens in your browser; footage never leaves your device.</source>
        <translation>El visor propio de Tesla para clips cifrados — el descifrado ocurre en tu navegador; las grabaciones nunca salen de tu dispositivo.</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the encryption guide</extracomment>
        <translation>Hecho</translation>
    </message>
    <message numerus="yes">
        <source>Found %n events so far, across %1 clips.</source>
        <translation>
            <numerusform>Hasta ahora se ha encontrado %n evento, en %1 clips.</numerusform>
            <numerusform>Hasta ahora se han encontrado %n eventos, en %1 clips.</numerusform>
        </translation>
    </message>
    <message>
        <source>Is this your Tesla drive? — %1</source>
        <extracomment>%1 is the drive&apos;s name, e.g. UNTITLED</extracomment>
        <translation>¿Es esta tu unidad de Tesla? — %1</translation>
    </message>
    <message>
        <source>In your car, tap Controls</source>
        <translation>En tu coche, toca Controles</translation>
    </message>
    <message>
        <source>The car icon at the bottom-left of the touchscreen.</source>
        <translation>El icono del coche en la parte inferior izquierda de la pantalla táctil.</translation>
    </message>
    <message>
        <source>Tap Safety</source>
        <extracomment>The car&apos;s menu entry, as named on its touchscreen</extracomment>
        <translation>Toca Seguridad</translation>
    </message>
    <message>
        <source>In the menu on the left.</source>
        <translation>En el menú de la izquierda.</translation>
    </message>
    <message>
        <source>Switch off “Encrypt Dashcam Recordings”</source>
        <extracomment>The quoted words are the car&apos;s setting, as named on its touchscreen</extracomment>
        <translation>Desactiva “Cifrar grabaciones de Dashcam”</translation>
    </message>
    <message>
        <source>If you don&apos;t see it, your car&apos;s software doesn&apos;t encrypt yet — nothing to do.</source>
        <translation>Si no lo ves, el software de tu coche aún no cifra — no hay nada que hacer.</translation>
    </message>
    <message>
        <source>Done</source>
        <comment>last step</comment>
        <extracomment>The last step of the guide: finished</extracomment>
        <translation>Listo</translation>
    </message>
    <message>
        <source>New footage records unencrypted and plays right here.</source>
        <translation>Las grabaciones nuevas se graban sin cifrar y se reproducen aquí mismo.</translation>
    </message>
    <message>
        <source>Clips recorded while encryption was on stay encrypted — sign in at %1 to watch them anytime. Keelhold still backs them up byte-for-byte, so nothing is ever lost.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Los clips grabados con el cifrado activado siguen cifrados — inicia sesión en %1 para verlos cuando quieras. Keelhold sigue poniéndolos a salvo byte a byte, así que nunca se pierde nada.</translation>
    </message>
    <message>
        <source>Prefer to keep encryption on? That&apos;s a fair choice — it protects footage if the drive itself is stolen. This app will still keep verified copies of everything.</source>
        <translation>¿Prefieres mantener el cifrado? Es una opción razonable — protege las grabaciones si roban la propia unidad. Esta aplicación seguirá conservando copias verificadas de todo.</translation>
    </message>
</context>
<context>
    <name>OverlayText</name>
    <message>
        <source>%1: %2</source>
        <extracomment>Drawn over an exported movie: %1 is the kind of event (Sentry, Saved), %2 why the car kept it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 — no footage</source>
        <extracomment>Drawn in a camera&apos;s cell of an exported movie: %1 is the camera&apos;s name</extracomment>
        <translation>%1 — sin grabación</translation>
    </message>
</context>
<context>
    <name>PlainReason</name>
    <message>
        <source>Something came close</source>
        <translation>Algo se acercó</translation>
    </message>
    <message>
        <source>Came close</source>
        <extracomment>Short label of a Sentry event where something came close to the car</extracomment>
        <translation>Acercamiento</translation>
    </message>
    <message>
        <source>Sentry Mode noticed a person or object near your parked car.</source>
        <translation>El Modo Centinela detectó a una persona o un objeto cerca de tu coche aparcado.</translation>
    </message>
    <message>
        <source>Bump or impact detected</source>
        <translation>Golpe o impacto detectado</translation>
    </message>
    <message>
        <source>Impact</source>
        <extracomment>Short label of an event where the car felt a bump</extracomment>
        <translation>Impacto</translation>
    </message>
    <message>
        <source>The car felt a physical bump or impact while parked.</source>
        <translation>El coche notó un golpe o un impacto físico mientras estaba aparcado.</translation>
    </message>
    <message>
        <source>You honked</source>
        <translation>Tocaste el claxon</translation>
    </message>
    <message>
        <source>Honk save</source>
        <extracomment>Short label of footage the car saved because the driver honked</extracomment>
        <translation>Claxon</translation>
    </message>
    <message>
        <source>Honking saves the last few minutes of footage — a quick way to keep a moment.</source>
        <translation>Tocar el claxon guarda los últimos minutos de grabación — una forma rápida de guardar un momento.</translation>
    </message>
    <message>
        <source>You saved this</source>
        <translation>Lo guardaste tú</translation>
    </message>
    <message>
        <source>You saved</source>
        <extracomment>Short label of footage the driver saved with the dashcam button</extracomment>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>You tapped the dashcam save button, so the car kept this footage.</source>
        <translation>Tocaste el botón de guardar de la dashcam, así que el coche guardó esta grabación.</translation>
    </message>
    <message>
        <source>Panic alarm</source>
        <translation>Alarma de pánico</translation>
    </message>
    <message>
        <source>Alarm</source>
        <extracomment>Short label of an event where the car&apos;s alarm went off</extracomment>
        <translation>Alarma</translation>
    </message>
    <message>
        <source>The car&apos;s alarm was triggered.</source>
        <translation>Se activó la alarma del coche.</translation>
    </message>
    <message>
        <source>Recent driving</source>
        <translation>Conducción reciente</translation>
    </message>
    <message>
        <source>Driving</source>
        <extracomment>Short label of the car&apos;s rolling recording while driving</extracomment>
        <translation>Conducción</translation>
    </message>
    <message>
        <source>The rolling last hour of driving. The car reuses this space continuously.</source>
        <translation>La última hora de conducción, que se va renovando. El coche reutiliza este espacio continuamente.</translation>
    </message>
    <message>
        <source>Sentry event</source>
        <translation>Evento de Centinela</translation>
    </message>
    <message>
        <source>Sentry</source>
        <extracomment>Short label of a Sentry event of a kind the app does not know</extracomment>
        <translation>Centinela</translation>
    </message>
    <message>
        <source>Your car flagged this moment. Newer software sometimes adds new event types.</source>
        <translation>Tu coche marcó este momento. El software más reciente a veces añade tipos de evento nuevos.</translation>
    </message>
</context>
<context>
    <name>PlatformWords</name>
    <message>
        <source>a disk utility such as Disks</source>
        <extracomment>Completes &quot;reformatting (in %1, after backing up)&quot;; Disks is the GNOME disk tool</extracomment>
        <translation>una utilidad de discos como Discos</translation>
    </message>
    <message>
        <source>computer</source>
        <extracomment>The user&apos;s machine, as in &quot;on this %1&quot; or &quot;on your %1&quot;</extracomment>
        <translation>ordenador</translation>
    </message>
    <message>
        <source>your system</source>
        <extracomment>The operating system as the subject of a sentence, lower case</extracomment>
        <translation>tu sistema</translation>
    </message>
</context>
<context>
    <name>PlayerDrivingData</name>
    <message>
        <source>No driving data in this event</source>
        <translation>No hay datos de conducción en este evento</translation>
    </message>
    <message>
        <source>%1 %</source>
        <extracomment>How far the accelerator is pressed, as a percentage: &quot;42 %&quot;</extracomment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Driving data</source>
        <extracomment>Button that shows or hides the driving data over the video</extracomment>
        <translation>Datos de conducción</translation>
    </message>
    <message>
        <source>Show or hide the car&apos;s speed, pedals, steering and Autopilot state over the video. (T)</source>
        <translation>Mostrar u ocultar la velocidad, los pedales, el volante y el estado del Autopilot del coche sobre el vídeo. (T)</translation>
    </message>
    <message>
        <source>This event&apos;s footage carries no driving data from the car.</source>
        <translation>Las grabaciones de este evento no llevan datos de conducción del coche.</translation>
    </message>
    <message>
        <source>Click to switch between km/h and mph.</source>
        <translation>Haz clic para cambiar entre km/h y mph.</translation>
    </message>
    <message>
        <source>BRAKE</source>
        <extracomment>Lamp over the video that is lit while the brake pedal is pressed; keep it short</extracomment>
        <translation>FRENO</translation>
    </message>
    <message>
        <source>Lit while the brake pedal is pressed.</source>
        <translation>Se enciende mientras se pisa el pedal del freno.</translation>
    </message>
    <message>
        <source>How far the accelerator pedal is pressed.</source>
        <translation>Cuánto se pisa el pedal del acelerador.</translation>
    </message>
    <message>
        <source>Steering wheel angle.</source>
        <translation>Ángulo del volante.</translation>
    </message>
    <message>
        <source>Direction of travel.</source>
        <translation>Dirección de la marcha.</translation>
    </message>
    <message>
        <source>The car&apos;s speed over the event; red marks hard braking. Click to jump there.</source>
        <translation>La velocidad del coche durante el evento; el rojo marca las frenadas bruscas. Haz clic para saltar ahí.</translation>
    </message>
</context>
<context>
    <name>PlayerLayout</name>
    <message>
        <source>%1 — playing at %2, this computer can&apos;t keep up</source>
        <extracomment>%1 is the chosen playback speed, %2 the speed it really plays at (e.g. 1.6×)</extracomment>
        <translation>%1 — se reproduce a %2, este ordenador no da para más</translation>
    </message>
    <message>
        <source>The moment it happened — %1 into the event.</source>
        <extracomment>%1 is a time into the event, e.g. 0:42</extracomment>
        <translation>El momento en que ocurrió — a %1 del inicio del evento.</translation>
    </message>
    <message>
        <source>%1 — currently enlarged.</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>%1 — ahora ampliada.</translation>
    </message>
    <message>
        <source>Switch to the %1 camera. (Keys 1–7 jump between cameras; 0 shows all.)</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>Cambiar a la cámara %1. (Las teclas 1–7 saltan entre cámaras; 0 las muestra todas.)</translation>
    </message>
    <message>
        <source>Click to enlarge the %1 camera. Click again to show all cameras.</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>Haz clic para ampliar la cámara %1. Vuelve a hacer clic para ver todas las cámaras.</translation>
    </message>
    <message>
        <source>Location unknown</source>
        <translation>Ubicación desconocida</translation>
    </message>
    <message>
        <source>Select an event</source>
        <translation>Selecciona un evento</translation>
    </message>
    <message>
        <source>Choose an archived event on the left to watch it — everything here works exactly like the Drive tab, even with no Tesla drive connected.</source>
        <extracomment>&quot;Drive&quot; is the app&apos;s own tab; translate it as there</extracomment>
        <translation>Elige un evento conservado a la izquierda para verlo — aquí todo funciona exactamente igual que en la pestaña Unidad, incluso sin ninguna unidad de Tesla conectada.</translation>
    </message>
    <message>
        <source>Choose something from the list on the left to watch every available camera angle, synced on one timeline.</source>
        <translation>Elige algo de la lista de la izquierda para ver todos los ángulos de cámara disponibles, sincronizados en una sola línea de tiempo.</translation>
    </message>
    <message>
        <source>Just exploring? Try sample footage</source>
        <translation>¿Solo quieres curiosear? Prueba las grabaciones de muestra</translation>
    </message>
</context>
<context>
    <name>PlayerMetadataBar</name>
    <message>
        <source>Reason: %1</source>
        <extracomment>Screen reader name of the reason chip; %1 is the car&apos;s reason, e.g. Sentry Mode detection</extracomment>
        <translation>Motivo: %1</translation>
    </message>
</context>
<context>
    <name>PlayerMoments</name>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is a hard moment (&quot;Hard braking&quot;), %2 a time into the event</extracomment>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>What happened</source>
        <extracomment>Button that jumps to the next thing that happened in the event</extracomment>
        <translation>Qué pasó</translation>
    </message>
    <message>
        <source>Jump to the next thing that happened: someone moving in front of a camera, or a hard moment of the drive (N)</source>
        <translation>Saltar a lo siguiente que ocurrió: alguien que se mueve delante de una cámara, o un momento brusco de la conducción (N)</translation>
    </message>
    <message>
        <source>Back to the thing that happened before (Shift+N)</source>
        <translation>Volver a lo que ocurrió antes (Shift+N)</translation>
    </message>
</context>
<context>
    <name>ReportChart</name>
    <message>
        <source>Speed (%1)</source>
        <extracomment>Title of the chart&apos;s speed panel; %1 is the unit, km/h or mph</extracomment>
        <translation>Velocidad (%1)</translation>
    </message>
    <message>
        <source>Accelerator (%)</source>
        <extracomment>Title of the chart&apos;s accelerator pedal panel, in percent pressed</extracomment>
        <translation>Acelerador (%)</translation>
    </message>
    <message>
        <source>Steering (°)</source>
        <extracomment>Title of the chart&apos;s steering wheel panel, in degrees</extracomment>
        <translation>Volante (°)</translation>
    </message>
    <message>
        <source>Acceleration (m/s²)</source>
        <extracomment>Title of the chart&apos;s acceleration panel</extracomment>
        <translation>Aceleración (m/s²)</translation>
    </message>
    <message>
        <source>moment</source>
        <extracomment>On the chart&apos;s time axis, under the moment the car triggered the recording</extracomment>
        <translation>momento</translation>
    </message>
    <message>
        <source>start</source>
        <translation>inicio</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>On the chart&apos;s time axis: %1 is seconds from the moment, signed (+5, -5)</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Brake pressed</source>
        <extracomment>In the chart&apos;s legend, beside the colour of the brake band</extracomment>
        <translation>Freno pisado</translation>
    </message>
    <message>
        <source>Acceleration x</source>
        <extracomment>In the chart&apos;s legend: acceleration along the car&apos;s x axis</extracomment>
        <translation>Aceleración x</translation>
    </message>
    <message>
        <source>Acceleration y</source>
        <extracomment>In the chart&apos;s legend: acceleration along the car&apos;s y axis</extracomment>
        <translation>Aceleración y</translation>
    </message>
</context>
<context>
    <name>ReportContent</name>
    <message>
        <source>The drive didn&apos;t answer while this file was read.</source>
        <translation>La unidad no respondió mientras se leía este archivo.</translation>
    </message>
    <message>
        <source>Locked — unlock to include this camera</source>
        <extracomment>Stands in for a camera&apos;s picture when its footage is encrypted and no key is held</extracomment>
        <translation>Bloqueada — desbloquéala para incluir esta cámara</translation>
    </message>
    <message>
        <source>This camera&apos;s picture at the moment couldn&apos;t be read.</source>
        <translation>No se pudo leer la imagen de esta cámara en ese momento.</translation>
    </message>
    <message>
        <source>Plays</source>
        <extracomment>A clip&apos;s condition in the report&apos;s list of files: nothing wrong with it</extracomment>
        <translation>Se reproduce</translation>
    </message>
    <message>
        <source>Empty — the car wrote nothing into it</source>
        <translation>Vacío — el coche no escribió nada en él</translation>
    </message>
    <message>
        <source>Cut off — the car didn&apos;t finish writing it</source>
        <translation>Cortado — el coche no terminó de escribirlo</translation>
    </message>
    <message>
        <source>Damaged — it can&apos;t be played</source>
        <translation>Dañado — no se puede reproducir</translation>
    </message>
    <message>
        <source>The drive didn&apos;t answer when it was read</source>
        <translation>La unidad no respondió al leerlo</translation>
    </message>
    <message>
        <source>Encrypted by your car</source>
        <translation>Cifrado por tu coche</translation>
    </message>
    <message>
        <source>Not checked</source>
        <extracomment>A clip&apos;s condition in the report&apos;s list of files: it was not looked at</extracomment>
        <translation>Sin comprobar</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>No se pudo leer este archivo.</translation>
    </message>
</context>
<context>
    <name>ReportDocument</name>
    <message>
        <source>Encrypted by your car</source>
        <translation>Cifrado por tu coche</translation>
    </message>
    <message>
        <source>Incident report: %1</source>
        <extracomment>The report&apos;s title; %1 is why the car recorded, such as &quot;Sentry event&quot;</extracomment>
        <translation>Informe de incidente: %1</translation>
    </message>
    <message>
        <source>Incident report: %1 — %2</source>
        <extracomment>The report&apos;s title; %1 is the kind of recording, such as &quot;Saved&quot;, %2 why the car recorded</extracomment>
        <translation>Informe de incidente: %1 — %2</translation>
    </message>
    <message>
        <source>The moment</source>
        <extracomment>Label beside the date and time the car triggered the recording</extracomment>
        <translation>El momento</translation>
    </message>
    <message>
        <source>Recording starts</source>
        <translation>Inicio de la grabación</translation>
    </message>
    <message>
        <source>(the car&apos;s clock)</source>
        <extracomment>After the date and time of the moment: which clock says so</extracomment>
        <translation>(reloj del coche)</translation>
    </message>
    <message>
        <source>By the GPS clock</source>
        <extracomment>Label beside the same moment by the GPS clock, in UTC</extracomment>
        <translation>Según el reloj GPS</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Qué pasó</translation>
    </message>
    <message>
        <source>Place</source>
        <extracomment>Label beside the street and city where it happened</extracomment>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>The car didn&apos;t name the place.</source>
        <translation>El coche no indicó el lugar.</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Coordenadas</translation>
    </message>
    <message>
        <source>Recorded by</source>
        <extracomment>Label beside how many cameras recorded the event</extracomment>
        <translation>Grabado por</translation>
    </message>
    <message>
        <source>The car&apos;s clock and the GPS clock differ by more than a time zone can explain: the car&apos;s clock was probably set wrong. The GPS time is the more reliable one.</source>
        <translation>El reloj del coche y el reloj GPS difieren más de lo que puede explicar una zona horaria: probablemente el reloj del coche estaba mal ajustado. La hora GPS es la más fiable.</translation>
    </message>
    <message>
        <source>The car encrypted this footage. The files are listed exactly as the car wrote them.</source>
        <translation>El coche cifró estas grabaciones. Los archivos se enumeran exactamente como los escribió el coche.</translation>
    </message>
    <message>
        <source>Where, and the route driven</source>
        <extracomment>Heading over the map of the spot and the route</extracomment>
        <translation>Dónde, y la ruta recorrida</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Dónde</translation>
    </message>
    <message>
        <source>The car didn&apos;t record where this happened, so there is no map.</source>
        <translation>El coche no registró dónde ocurrió esto, así que no hay mapa.</translation>
    </message>
    <message>
        <source>Each camera at the moment</source>
        <translation>Cada cámara en ese momento</translation>
    </message>
    <message>
        <source>Every picture is the camera&apos;s own frame at the moment, at its full size.</source>
        <translation>Cada imagen es el propio fotograma de la cámara en ese momento, a su tamaño completo.</translation>
    </message>
    <message>
        <source>Driving data</source>
        <extracomment>Heading over the chart of speed, pedals and steering</extracomment>
        <translation>Datos de conducción</translation>
    </message>
    <message>
        <source>From 10 seconds before to 10 seconds after the moment, as the car recorded it with each frame.</source>
        <translation>Desde 10 segundos antes hasta 10 segundos después del momento, tal como el coche los registró con cada fotograma.</translation>
    </message>
    <message>
        <source>The first 20 seconds of the recording, as the car recorded it with each frame.</source>
        <translation>Los primeros 20 segundos de la grabación, tal como el coche los registró con cada fotograma.</translation>
    </message>
    <message>
        <source>These clips carry no driving data: the car records it only with newer software.</source>
        <translation>Estos clips no llevan datos de conducción: el coche solo los graba con software más reciente.</translation>
    </message>
    <message>
        <source>At the moment</source>
        <extracomment>Heading over the car&apos;s readings at the moment</extracomment>
        <translation>En ese momento</translation>
    </message>
    <message>
        <source>At the start</source>
        <translation>Al inicio</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>Label beside the car&apos;s speed</extracomment>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Gear</source>
        <extracomment>Label beside the gear (P, R, N, D)</extracomment>
        <translation>Marcha</translation>
    </message>
    <message>
        <source>Brake</source>
        <extracomment>Label beside whether the brake pedal was pressed</extracomment>
        <translation>Freno</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Pisado</translation>
    </message>
    <message>
        <source>Not pressed</source>
        <translation>Sin pisar</translation>
    </message>
    <message>
        <source>Accelerator</source>
        <extracomment>Label beside how far the accelerator pedal was pressed</extracomment>
        <translation>Acelerador</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>How far the accelerator pedal was pressed; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Steering</source>
        <extracomment>Label beside the steering wheel&apos;s angle</extracomment>
        <translation>Volante</translation>
    </message>
    <message>
        <source>Driver assistance</source>
        <extracomment>Label beside Autopilot&apos;s state (Autosteer, Traffic-Aware Cruise Control…)</extracomment>
        <translation>Asistencia a la conducción</translation>
    </message>
    <message>
        <source>Turn signal</source>
        <extracomment>Label beside the turn signal&apos;s state</extracomment>
        <translation>Intermitente</translation>
    </message>
    <message>
        <source>Hazard lights</source>
        <translation>Luces de emergencia</translation>
    </message>
    <message>
        <source>Heading</source>
        <extracomment>Label beside the direction the car was heading (a compass bearing)</extracomment>
        <translation>Rumbo</translation>
    </message>
    <message>
        <source>Position</source>
        <extracomment>Label beside the car&apos;s GPS coordinates</extracomment>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <extracomment>Label beside the car&apos;s acceleration</extracomment>
        <translation>Aceleración</translation>
    </message>
    <message>
        <source>x %1, y %2, z %3 m/s²</source>
        <extracomment>Acceleration along the car&apos;s three axes, in metres per second squared</extracomment>
        <translation>x %1, y %2, z %3 m/s²</translation>
    </message>
    <message>
        <source>Hard moments of the drive</source>
        <extracomment>Heading over the list of hard braking, swerves and the like</extracomment>
        <translation>Momentos bruscos de la conducción</translation>
    </message>
    <message>
        <source>The driving data shows no hard braking, swerve, sudden stop or Autopilot switching off in this event.</source>
        <translation>Los datos de conducción no muestran ninguna frenada brusca, volantazo, parada repentina ni desactivación del Autopilot en este evento.</translation>
    </message>
    <message>
        <source>%1 (%2 in)</source>
        <extracomment>When a hard moment happened: %1 the car&apos;s clock, %2 how far into the event (m:ss)</extracomment>
        <translation>%1 (a %2 del inicio)</translation>
    </message>
    <message>
        <source>Found from the car&apos;s own records: hard braking is the speed falling at 0.4 g or more; a swerve is the wheel turned at 200°/s or more, or a sideways pull of 0.5 g.</source>
        <translation>Detectados a partir de los propios registros del coche: una frenada brusca es una reducción de velocidad de 0,4 g o más; un volantazo es un giro del volante de 200°/s o más, o un empuje lateral de 0,5 g.</translation>
    </message>
    <message>
        <source>The original files</source>
        <extracomment>Heading over the list of every file the car recorded for the event</extracomment>
        <translation>Los archivos originales</translation>
    </message>
    <message>
        <source>Every file the car recorded for this event. Each SHA-256 was computed from the file itself as this report was made.</source>
        <translation>Todos los archivos que el coche grabó para este evento. Cada SHA-256 se calculó a partir del propio archivo al crear este informe.</translation>
    </message>
    <message>
        <source>On the car&apos;s drive, in %1</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>En la unidad del coche, en %1</translation>
    </message>
    <message>
        <source>In the Vault, in %1. Last verified %2.</source>
        <extracomment>%1 is a folder, %2 a date and time</extracomment>
        <translation>En la Bóveda, en %1. Última verificación: %2.</translation>
    </message>
    <message>
        <source>In the Vault, in %1. Not verified again since it was kept.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>En la Bóveda, en %1. No se ha vuelto a verificar desde que se conservó.</translation>
    </message>
    <message>
        <source>Every file matches the Vault&apos;s record of it, made when it was kept.</source>
        <translation>Cada archivo coincide con el registro que hizo la Bóveda al conservarlo.</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Column heading: the file&apos;s name</extracomment>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Camera</source>
        <extracomment>Column heading: which camera recorded the file</extracomment>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Starts</source>
        <extracomment>Column heading: the time the file&apos;s footage starts</extracomment>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>Column heading: how long the file&apos;s footage runs (m:ss)</extracomment>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Column heading: the file&apos;s size</extracomment>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Condition</source>
        <extracomment>Column heading: whether the file plays, or how it is damaged</extracomment>
        <translation>Estado</translation>
    </message>
    <message>
        <source>This differs from the Vault&apos;s record: the file is not the one that was kept.</source>
        <translation>Esto no coincide con el registro de la Bóveda: el archivo no es el que se conservó.</translation>
    </message>
    <message>
        <source>No files were found for this event.</source>
        <translation>No se encontró ningún archivo de este evento.</translation>
    </message>
    <message>
        <source>How to check the files</source>
        <translation>Cómo comprobar los archivos</translation>
    </message>
    <message>
        <source>Anyone can check that a file is exactly the one listed here by computing its SHA-256 again and comparing it with the one above. With the evidence package unpacked, run this in its folder; every line must end in OK:</source>
        <extracomment>Followed by the command to run; OK is what the command prints, so it stays as it is</extracomment>
        <translation>Cualquiera puede comprobar que un archivo es exactamente el que figura aquí volviendo a calcular su SHA-256 y comparándolo con el de arriba. Con el paquete de pruebas descomprimido, ejecuta esto en su carpeta; cada línea debe terminar en OK:</translation>
    </message>
    <message>
        <source>Made by Keelhold %1 on %2 (this computer&apos;s clock). Keelhold only reads the car&apos;s drive: nothing on it was changed.</source>
        <extracomment>At the report&apos;s end: %1 is Keelhold&apos;s version, %2 the date and time the report was made</extracomment>
        <translation>Creado por Keelhold %1 el %2 (reloj de este ordenador). Keelhold solo lee la unidad del coche: no se modificó nada en ella.</translation>
    </message>
    <message>
        <source>The report couldn&apos;t be written there.</source>
        <translation>No se pudo escribir el informe ahí.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <extracomment>At the foot of every page of the report</extracomment>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>speed and its unit</comment>
        <extracomment>A speed: %1 the number, %2 its unit (km/h or mph)</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n cameras</source>
        <translation>
            <numerusform>%n cámara</numerusform>
            <numerusform>%n cámaras</numerusform>
        </translation>
    </message>
    <message>
        <source>Off</source>
        <comment>driver assistance</comment>
        <translation>Desactivada</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>turn signal</comment>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <comment>turn signal</comment>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Off</source>
        <comment>turn signal</comment>
        <translation>Apagado</translation>
    </message>
    <message>
        <source>— %1, slowing at %2 g</source>
        <extracomment>After a hard moment&apos;s name: %1 the speed with its unit, %2 the deceleration in g (9.81 m/s²)</extracomment>
        <translation>— %1, frenando a %2 g</translation>
    </message>
    <message>
        <source>— %1, steering turned at %2°/s</source>
        <extracomment>After a hard moment&apos;s name: %1 the speed with its unit, %2 how fast the wheel turned, in degrees a second</extracomment>
        <translation>— %1, volante girado a %2°/s</translation>
    </message>
    <message>
        <source>On a Mac: %1. On Windows: %2, one file at a time.</source>
        <extracomment>%1 and %2 are commands, which stay as they are</extracomment>
        <translation>En un Mac: %1. En Windows: %2, un archivo cada vez.</translation>
    </message>
</context>
<context>
    <name>ReportMap</name>
    <message>
        <source>%1 km</source>
        <extracomment>The map&apos;s scale bar: %1 kilometres</extracomment>
        <translation>%1 km</translation>
    </message>
    <message>
        <source>%1 m</source>
        <extracomment>The map&apos;s scale bar: %1 metres</extracomment>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>N ↑</source>
        <extracomment>The map&apos;s north arrow: N for north</extracomment>
        <translation>N ↑</translation>
    </message>
    <message>
        <source>Map data © OpenStreetMap contributors</source>
        <extracomment>The map tiles&apos; required credit; OpenStreetMap is a name</extracomment>
        <translation>Datos del mapa © colaboradores de OpenStreetMap</translation>
    </message>
</context>
<context>
    <name>SignInLink</name>
    <message>
        <source>Tesla didn&apos;t accept this sign-in: it may have expired or been used already. Sign in again.</source>
        <translation>Tesla no aceptó este inicio de sesión: puede que haya caducado o que ya se haya usado. Vuelve a iniciar sesión.</translation>
    </message>
    <message>
        <source>That isn&apos;t the address the browser landed on after signing in: it starts with %1.</source>
        <extracomment>%1 is the web address the browser should have landed on</extracomment>
        <translation>Esa no es la dirección a la que llegó el navegador después de iniciar sesión: esa empieza por %1.</translation>
    </message>
    <message>
        <source>Tesla didn&apos;t complete the sign-in. Try again.</source>
        <translation>Tesla no completó el inicio de sesión. Vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>That address belongs to another sign-in. Use the sign-in link Keelhold opened last.</source>
        <translation>Esa dirección pertenece a otro inicio de sesión. Usa el enlace de inicio de sesión que Keelhold abrió por última vez.</translation>
    </message>
    <message>
        <source>That address holds no sign-in code. Copy the whole address from the browser.</source>
        <translation>Esa dirección no contiene ningún código de inicio de sesión. Copia la dirección completa del navegador.</translation>
    </message>
</context>
<context>
    <name>SyncPlayerController</name>
    <message>
        <source>Reading this camera from the drive…</source>
        <translation>Leyendo esta cámara de la unidad…</translation>
    </message>
    <message>
        <source>Finding the exact frame…</source>
        <extracomment>Shown on the timeline while a seek shows a nearby frame first</extracomment>
        <translation>Buscando el fotograma exacto…</translation>
    </message>
</context>
<context>
    <name>TelemetryRecord</name>
    <message>
        <source>Self-Driving</source>
        <extracomment>Tesla&apos;s name of a driver assistance (Full Self-Driving)</extracomment>
        <translation>Conducción autónoma</translation>
    </message>
    <message>
        <source>Autosteer</source>
        <extracomment>Tesla&apos;s name of a driver assistance</extracomment>
        <translation>Autogiro</translation>
    </message>
    <message>
        <source>Traffic-Aware Cruise Control</source>
        <extracomment>Tesla&apos;s name of a driver assistance</extracomment>
        <translation>Control de crucero adaptativo</translation>
    </message>
</context>
<context>
    <name>TeslaCamParser</name>
    <message>
        <source>The TeslaCam folder could not be found.</source>
        <translation>No se encontró la carpeta TeslaCam.</translation>
    </message>
    <message>
        <source>The selected item is not a folder.</source>
        <translation>El elemento seleccionado no es una carpeta.</translation>
    </message>
    <message>
        <source>The TeslaCam folder could not be read.</source>
        <translation>No se pudo leer la carpeta TeslaCam.</translation>
    </message>
    <message>
        <source>Keelhold isn&apos;t allowed to read the folder “%1”. Check the folder&apos;s permissions and try again.</source>
        <extracomment>%1 is the folder&apos;s full path</extracomment>
        <translation>Keelhold no tiene permiso para leer la carpeta “%1”. Comprueba los permisos de la carpeta y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>Reading your Tesla drive…</source>
        <translation>Leyendo tu unidad de Tesla…</translation>
    </message>
    <message>
        <source>Reading Sentry events…</source>
        <extracomment>Scan progress: reading the SentryClips folder</extracomment>
        <translation>Leyendo eventos de Centinela…</translation>
    </message>
    <message>
        <source>Reading Saved clips…</source>
        <extracomment>Scan progress: reading the SavedClips folder</extracomment>
        <translation>Leyendo clips guardados…</translation>
    </message>
    <message>
        <source>Reading Recent driving…</source>
        <extracomment>Scan progress: reading the RecentClips folder</extracomment>
        <translation>Leyendo la conducción reciente…</translation>
    </message>
    <message>
        <source>Scan complete.</source>
        <translation>Análisis completado.</translation>
    </message>
</context>
<context>
    <name>TokenHolder</name>
    <message>
        <source>This computer has no secret store to remember your sign-in in, so it is kept only until Keelhold quits.</source>
        <translation>Este ordenador no tiene un almacén de secretos donde recordar tu inicio de sesión, así que solo se guarda hasta que cierres Keelhold.</translation>
    </message>
</context>
<context>
    <name>TriageState</name>
    <message>
        <source>New</source>
        <extracomment>State of an event the user has not looked at yet</extracomment>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <extracomment>State of an event the user has watched</extracomment>
        <translation>Visto</translation>
    </message>
    <message>
        <source>In Vault</source>
        <extracomment>State of an event that is kept in the Vault</extracomment>
        <translation>En la Bóveda</translation>
    </message>
    <message>
        <source>Dismissed</source>
        <extracomment>State of an event the user chose not to keep</extracomment>
        <translation>Descartado</translation>
    </message>
</context>
<context>
    <name>UiBridge</name>
    <message>
        <source>Drive</source>
        <extracomment>Sidebar section: the car&apos;s drive and its events</extracomment>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Vault</source>
        <extracomment>Sidebar section: the kept copies</extracomment>
        <translation>Bóveda</translation>
    </message>
    <message>
        <source>Map</source>
        <extracomment>Sidebar section: the events on a map</extracomment>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Drive Health</source>
        <extracomment>Sidebar section: the health of the car&apos;s drive</extracomment>
        <translation>Diagnóstico</translation>
    </message>
    <message>
        <source>Open Help — Sentry Mode, clip length, corruption, and encryption explained.</source>
        <translation>Abrir la Ayuda — el Modo Centinela, la duración de los clips, los daños y el cifrado, explicados.</translation>
    </message>
    <message>
        <source>Drag to resize the event list.</source>
        <translation>Arrastra para cambiar el tamaño de la lista de eventos.</translation>
    </message>
    <message>
        <source>You&apos;re exploring sample footage · Connect your Tesla drive anytime</source>
        <translation>Estás explorando grabaciones de muestra · Conecta tu unidad de Tesla cuando quieras</translation>
    </message>
    <message>
        <source>Eject Sample</source>
        <extracomment>Button that leaves the sample footage</extracomment>
        <translation>Expulsar muestra</translation>
    </message>
    <message>
        <source>A Keelhold licence is needed</source>
        <translation>Se necesita una licencia de Keelhold</translation>
    </message>
    <message>
        <source>Reading your own Tesla drive needs a Keelhold licence. Sample footage stays available without one.</source>
        <translation>Para leer tu propia unidad de Tesla se necesita una licencia de Keelhold. Las grabaciones de muestra siguen disponibles sin ella.</translation>
    </message>
    <message>
        <source>Keelhold Help</source>
        <extracomment>Menu item that opens the help window</extracomment>
        <translation>Ayuda de Keelhold</translation>
    </message>
    <message>
        <source>Explore Sample Footage</source>
        <translation>Explorar grabaciones de muestra</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <extracomment>Menu title; &amp; marks the letter for the Alt shortcut</extracomment>
        <translation>&amp;Reproducción</translation>
    </message>
    <message>
        <source>Use Graphics Hardware for Video</source>
        <translation>Usar el hardware gráfico para el vídeo</translation>
    </message>
    <message>
        <source>Nothing on your drive is ever changed or deleted.</source>
        <translation>Nunca se cambia ni se borra nada de tu unidad.</translation>
    </message>
    <message>
        <source>Keelhold only reads from your Tesla drive. Every &quot;Keep&quot; makes a verified copy elsewhere — your original footage is never touched.</source>
        <extracomment>&quot;Keep&quot; is the app&apos;s own button; translate it as there</extracomment>
        <translation>Keelhold solo lee tu unidad de Tesla. Cada “Conservar” crea una copia verificada en otro lugar — tus grabaciones originales nunca se tocan.</translation>
    </message>
</context>
<context>
    <name>UnlockController</name>
    <message>
        <source>Unlock Encrypted Footage</source>
        <translation>Desbloquear grabaciones cifradas</translation>
    </message>
    <message>
        <source>Your car encrypted this footage so that only your Tesla account can watch it. To play it here, Keelhold asks Tesla&apos;s service for each clip&apos;s key, and Tesla first checks that your account owns the car.</source>
        <translation>Tu coche cifró estas grabaciones para que solo tu cuenta de Tesla pueda verlas. Para reproducirlas aquí, Keelhold pide al servicio de Tesla la clave de cada clip, y Tesla comprueba antes que tu cuenta es la propietaria del coche.</translation>
    </message>
    <message>
        <source>What is sent: each clip&apos;s key id and the locked key the car wrote into it, and your car&apos;s VIN. Never any video: the footage stays on this computer.</source>
        <translation>Lo que se envía: el id de clave de cada clip y la clave bloqueada que el coche escribió en él, y el VIN de tu coche. Nunca vídeo: las grabaciones se quedan en este ordenador.</translation>
    </message>
    <message>
        <source>The keys are kept on this computer and beside the events in your Vault, so unlocked footage plays offline from then on.</source>
        <translation>Las claves se guardan en este ordenador y junto a los eventos de tu Bóveda, así que a partir de entonces las grabaciones desbloqueadas se reproducen sin conexión.</translation>
    </message>
    <message>
        <source>Your Tesla sign-in</source>
        <translation>Tu inicio de sesión de Tesla</translation>
    </message>
    <message>
        <source>Sign In with Your Browser…</source>
        <translation>Iniciar sesión con el navegador…</translation>
    </message>
    <message>
        <source>Opens Tesla&apos;s sign-in page in your browser. When you have signed in, copy the address the browser shows and paste it here. This sign-in can be renewed for months without signing in again.</source>
        <translation>Abre la página de inicio de sesión de Tesla en tu navegador. Cuando hayas iniciado sesión, copia la dirección que muestra el navegador y pégala aquí. Este inicio de sesión se puede renovar durante meses sin volver a iniciar sesión.</translation>
    </message>
    <message>
        <source>Paste the address your browser landed on</source>
        <translation>Pega la dirección a la que llegó tu navegador</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Or copy the viewer&apos;s sign-in token:</source>
        <translation>O copia el token de inicio de sesión del visor:</translation>
    </message>
    <message>
        <source>Paste your sign-in token</source>
        <translation>Pega tu token de inicio de sesión</translation>
    </message>
    <message>
        <source>Remember on this computer</source>
        <translation>Recordar en este ordenador</translation>
    </message>
    <message>
        <source>Kept in your desktop&apos;s secret store (its keyring), never in a plain file. Without it, the sign-in is forgotten when Keelhold quits.</source>
        <translation>Se guarda en el almacén de secretos de tu escritorio (su llavero), nunca en un archivo normal. Sin esto, el inicio de sesión se olvida al cerrar Keelhold.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <extracomment>Button that asks Tesla for the keys with the pasted sign-in token</extracomment>
        <translation>Desbloquear</translation>
    </message>
    <message>
        <source>Open Tesla&apos;s Viewer</source>
        <translation>Abrir el visor de Tesla</translation>
    </message>
    <message>
        <source>Forget my sign-in</source>
        <translation>Olvidar mi inicio de sesión</translation>
    </message>
    <message>
        <source>Sign in again…</source>
        <translation>Volver a iniciar sesión…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Asking Tesla for the keys…</source>
        <translation>Pidiendo las claves a Tesla…</translation>
    </message>
    <message>
        <source>You&apos;re signed in for as long as Keelhold runs.</source>
        <translation>Tienes la sesión iniciada mientras Keelhold esté abierto.</translation>
    </message>
    <message>
        <source>You&apos;re signed in, and your sign-in is remembered on this computer.</source>
        <translation>Tienes la sesión iniciada, y tu inicio de sesión se recuerda en este ordenador.</translation>
    </message>
    <message>
        <source>Some footage is encrypted by your car</source>
        <translation>Tu coche ha cifrado algunas grabaciones</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>Desbloquear…</translation>
    </message>
    <message>
        <source>Turn encryption off for future recordings…</source>
        <translation>Desactivar el cifrado para futuras grabaciones…</translation>
    </message>
    <message>
        <source>Unlock Encrypted Footage…</source>
        <translation>Desbloquear grabaciones cifradas…</translation>
    </message>
    <message>
        <source>Open Tesla&apos;s dashcam viewer (%1) in your browser and sign in with your Tesla account.</source>
        <translation>Abre el visor de dashcam de Tesla (%1) en tu navegador e inicia sesión con tu cuenta de Tesla.</translation>
    </message>
    <message>
        <source>Open the browser&apos;s developer tools (F12) and choose the Network tab.</source>
        <extracomment>&quot;Network&quot; is the tab&apos;s name in the browser&apos;s developer tools</extracomment>
        <translation>Abre las herramientas para desarrolladores del navegador (F12) y elige la pestaña Red (Network).</translation>
    </message>
    <message>
        <source>Paste it below. It works for about eight hours; sign in again after that.</source>
        <translation>Pégalo abajo. Funciona durante unas ocho horas; después, vuelve a iniciar sesión.</translation>
    </message>
    <message>
        <source>Keelhold lists and keeps them like any other; to watch them here, unlock them with your Tesla account.</source>
        <translation>Keelhold los enumera y los conserva como a cualquier otro; para verlos aquí, desbloquéalos con tu cuenta de Tesla.</translation>
    </message>
    <message>
        <source>Play any clip in the viewer, then pick the request named “batch” in the list.</source>
        <extracomment>&quot;batch&quot; is the request&apos;s name as the browser lists it; keep it as it is</extracomment>
        <translation>Reproduce cualquier clip en el visor y luego elige en la lista la solicitud llamada “batch”.</translation>
    </message>
    <message>
        <source>Under Request Headers, copy the text after “Authorization: Bearer”.</source>
        <extracomment>&quot;Request Headers&quot; is a heading in the browser&apos;s developer tools; &quot;Authorization: Bearer&quot; stays as it is</extracomment>
        <translation>En Encabezados de solicitud (Request Headers), copia el texto que sigue a “Authorization: Bearer”.</translation>
    </message>
    <message numerus="yes">
        <source>%n events here were recorded with your car&apos;s encryption on.</source>
        <translation>
            <numerusform>%n evento de aquí se grabó con el cifrado de tu coche activado.</numerusform>
            <numerusform>%n eventos de aquí se grabaron con el cifrado de tu coche activado.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocked %n clips.</source>
        <translation>
            <numerusform>Se desbloqueó %n clip.</numerusform>
            <numerusform>Se desbloquearon %n clips.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocked %1 of %n clips.</source>
        <translation>
            <numerusform>Se desbloqueó %1 de %n clip.</numerusform>
            <numerusform>Se desbloquearon %1 de %n clips.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Unlocker</name>
    <message>
        <source>The keys couldn&apos;t be saved on this computer, so they work until Keelhold quits and will be asked for again next time.</source>
        <translation>No se pudieron guardar las claves en este ordenador, así que funcionan hasta que cierres Keelhold y se volverán a pedir la próxima vez.</translation>
    </message>
</context>
<context>
    <name>VaultIndex</name>
    <message>
        <source>There is no Trash folder at %1 and it can&apos;t be made, so nothing was removed.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>No hay ninguna carpeta de Papelera en %1 y no se puede crear, así que no se ha quitado nada.</translation>
    </message>
    <message>
        <source>Couldn&apos;t move %1 to the Trash, so nothing was removed.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>No se pudo mover %1 a la Papelera, así que no se ha quitado nada.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1: %2</source>
        <extracomment>%1 is a file&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>No se pudo leer %1: %2</translation>
    </message>
    <message>
        <source>Couldn&apos;t create the folder %1.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>No se pudo crear la carpeta %1.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2</source>
        <extracomment>%1 is a file&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>No se pudo escribir %1: %2</translation>
    </message>
    <message>
        <source>The Vault&apos;s index points outside the Vault folder (%1), so nothing was removed.</source>
        <extracomment>%1 is the folder the index names, as written in it</extracomment>
        <translation>El índice de la Bóveda apunta fuera de la carpeta de Bóveda (%1), así que no se ha quitado nada.</translation>
    </message>
</context>
<context>
    <name>VaultMarks</name>
    <message>
        <source>Faithful Copy</source>
        <translation>Copia fiel</translation>
    </message>
    <message>
        <source>Every file below was copied and its checksum (SHA-256) was compared to the original on your drive at the time — a faithful, unaltered copy. This is a technical integrity check, not a legal certification.</source>
        <translation>Cada archivo de abajo se copió y su suma de comprobación (SHA-256) se comparó en ese momento con el original de tu unidad — una copia fiel y sin alterar. Es una comprobación técnica de integridad, no una certificación legal.</translation>
    </message>
    <message>
        <source>Archived %1 from %2</source>
        <extracomment>%1 is when the event was kept, %2 the name of the drive it came from</extracomment>
        <translation>Conservado el %1 desde %2</translation>
    </message>
    <message>
        <source>Missing</source>
        <extracomment>A kept file that is no longer in the Vault</extracomment>
        <translation>Falta</translation>
    </message>
    <message>
        <source>Changed since it was kept</source>
        <translation>Cambiado desde que se conservó</translation>
    </message>
    <message>
        <source>Couldn&apos;t be read</source>
        <translation>No se pudo leer</translation>
    </message>
    <message>
        <source>Last re-read %1.</source>
        <extracomment>%1 is the date and time of the last re-reading</extracomment>
        <translation>Última relectura: %1.</translation>
    </message>
    <message>
        <source>Not re-read since it was kept.</source>
        <translation>Sin releer desde que se conservó.</translation>
    </message>
    <message>
        <source>Missing from your Vault since it was kept: %1</source>
        <translation>Falta en tu Bóveda desde que se conservó: %1</translation>
    </message>
    <message>
        <source>Changed since it was kept: %1</source>
        <translation>Cambiado desde que se conservó: %1</translation>
    </message>
    <message>
        <source>Files Missing</source>
        <translation>Faltan archivos</translation>
    </message>
    <message>
        <source>Changed Since It Was Kept</source>
        <translation>Cambiado desde que se conservó</translation>
    </message>
    <message>
        <source>When Keelhold re-read this event on %1, %2 no longer matched the copy it made. The file named below was changed or removed after it was kept; if the event is still on your drive, keep it again.</source>
        <extracomment>%1 is the day of the re-reading, %2 how many files (&quot;one file&quot;, &quot;3 files&quot;)</extracomment>
        <translation>Cuando Keelhold volvió a leer este evento el %1, la copia que había hecho ya no coincidía en %2. Cada archivo indicado abajo se cambió o se eliminó después de conservarlo; si el evento sigue en tu unidad, vuelve a conservarlo.</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>un archivo</numerusform>
            <numerusform>%n archivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n files</source>
        <extracomment>Files that reached the Vault, of all the event has</extracomment>
        <translation>
            <numerusform>%1 de %n archivo</numerusform>
            <numerusform>%1 de %n archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Incomplete — %1</source>
        <translation>Incompleto — %1</translation>
    </message>
    <message>
        <source>Only part of this event reached your Vault. Keep it again from the drive to finish it.</source>
        <translation>Solo una parte de este evento llegó a tu Bóveda. Vuelve a conservarlo desde la unidad para terminarlo.</translation>
    </message>
    <message>
        <source>Incomplete Copy</source>
        <translation>Copia incompleta</translation>
    </message>
    <message>
        <source>The copy of this event was cut off before every file arrived: %1 are here. Each of them was checked as it was copied, but the event is not complete. Keep it again from your drive to finish it.</source>
        <translation>La copia de este evento se cortó antes de que llegaran todos los archivos: hay %1. Cada uno se comprobó al copiarlo, pero el evento no está completo. Vuelve a conservarlo desde tu unidad para terminarlo.</translation>
    </message>
    <message>
        <source>Verified %1</source>
        <extracomment>The badge of a kept event; %1 is the day it was last re-read</extracomment>
        <translation>Verificado el %1</translation>
    </message>
    <message>
        <source>Every file was read again on %1 and still matches the checksum taken when it was kept. Tap for the technical detail.</source>
        <translation>Todos los archivos se volvieron a leer el %1 y siguen coincidiendo con la suma de comprobación tomada al conservarlos. Pulsa para ver los detalles técnicos.</translation>
    </message>
    <message>
        <source>Verified copy</source>
        <translation>Copia verificada</translation>
    </message>
    <message>
        <source>This copy was checked byte-for-byte against your drive when it was archived. Tap for the technical detail.</source>
        <translation>Esta copia se comprobó byte a byte con tu unidad cuando se conservó. Pulsa para ver los detalles técnicos.</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>Falta %1</translation>
    </message>
    <message>
        <source>%1 has changed</source>
        <translation>%1 ha cambiado</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>No se puede leer %1</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between file names</extracomment>
        <translation>, </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>An event&apos;s problems in the Vault&apos;s notice: its date and time, then the files</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>; </source>
        <extracomment>Between the events in the Vault&apos;s notice</extracomment>
        <translation>; </translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>The Vault notice&apos;s list of events with problems, ended as a sentence</extracomment>
        <translation>%1.</translation>
    </message>
    <message numerus="yes">
        <source>%n more kept events have problems too.</source>
        <translation>
            <numerusform>Otro evento conservado también tiene problemas.</numerusform>
            <numerusform>Otros %n eventos conservados también tienen problemas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Something changed these copies after they were kept. If the events are still on your drive, keep them again.</source>
        <translation>Algo cambió estas copias después de conservarlas. Si los eventos siguen en tu unidad, vuelve a conservarlos.</translation>
    </message>
    <message numerus="yes">
        <source>%n kept events no longer match what was kept</source>
        <translation>
            <numerusform>%n evento conservado ya no coincide con lo que se conservó</numerusform>
            <numerusform>%n eventos conservados ya no coinciden con lo que se conservó</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Drive disconnected — %1 of %n events kept completely</source>
        <translation>
            <numerusform>Unidad desconectada — %1 de %n evento conservado por completo</numerusform>
            <numerusform>Unidad desconectada — %1 de %n eventos conservados por completo</numerusform>
        </translation>
    </message>
    <message>
        <source>Backup Stopped</source>
        <translation>Copia detenida</translation>
    </message>
    <message numerus="yes">
        <source>Backup Incomplete — %1 of %n events kept completely</source>
        <translation>
            <numerusform>Copia incompleta — %1 de %n evento conservado por completo</numerusform>
            <numerusform>Copia incompleta — %1 de %n eventos conservados por completo</numerusform>
        </translation>
    </message>
    <message>
        <source>Backup Complete</source>
        <translation>Copia completada</translation>
    </message>
    <message numerus="yes">
        <source>%n events copied and verified, byte-for-byte. The original on your drive is untouched.</source>
        <translation>
            <numerusform>%n evento copiado y verificado, byte a byte. El original de tu unidad no se ha tocado.</numerusform>
            <numerusform>%n eventos copiados y verificados, byte a byte. El original de tu unidad no se ha tocado.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n events reached your Vault only in part (%1 of %2 files), so they aren&apos;t verified copies. Keep them again to finish them.</source>
        <extracomment>%1 of %2 are the files that arrived, of all the events have</extracomment>
        <translation>
            <numerusform>%n evento solo llegó en parte a tu Bóveda (%1 de %2 archivos), así que no es una copia verificada. Vuelve a conservarlo para terminarlo.</numerusform>
            <numerusform>%n eventos solo llegaron en parte a tu Bóveda (%1 de %2 archivos), así que no son copias verificadas. Vuelve a conservarlos para terminarlos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were already in your Vault, so we skipped them.</source>
        <extracomment>%n is a number of events</extracomment>
        <translation>
            <numerusform>%n ya estaba en tu Bóveda, así que lo hemos omitido.</numerusform>
            <numerusform>%n ya estaban en tu Bóveda, así que los hemos omitido.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files couldn&apos;t be read as the drive went away.</source>
        <translation>
            <numerusform>%n archivo no se pudo leer porque la unidad se desconectó.</numerusform>
            <numerusform>%n archivos no se pudieron leer porque la unidad se desconectó.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files couldn&apos;t be read — your drive may be failing. Nothing was deleted or changed; you can try again.</source>
        <translation>
            <numerusform>%n archivo no se pudo leer — puede que tu unidad esté fallando. No se ha borrado ni cambiado nada; puedes volver a intentarlo.</numerusform>
            <numerusform>%n archivos no se pudieron leer — puede que tu unidad esté fallando. No se ha borrado ni cambiado nada; puedes volver a intentarlo.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VaultViewModel</name>
    <message>
        <source>Vault</source>
        <extracomment>Title of the Vault&apos;s list</extracomment>
        <translation>Bóveda</translation>
    </message>
    <message>
        <source>Choose Your Vault Folder</source>
        <extracomment>Title of the folder dialog that picks the Vault&apos;s folder</extracomment>
        <translation>Elige tu carpeta de Bóveda</translation>
    </message>
    <message>
        <source>Pick (or create) a folder where Keelhold will keep permanent copies of the footage you decide to keep.</source>
        <translation>Elige (o crea) una carpeta donde Keelhold guardará copias permanentes de las grabaciones que decidas conservar.</translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <extracomment>Accept button of the folder dialog that picks the Vault&apos;s folder</extracomment>
        <translation>Usar esta carpeta</translation>
    </message>
    <message>
        <source>Change Vault Folder</source>
        <translation>Cambiar carpeta de Bóveda</translation>
    </message>
    <message>
        <source>Point Keelhold at a different folder or drive for your permanent archive.</source>
        <translation>Indica a Keelhold otra carpeta u otra unidad para tu archivo permanente.</translation>
    </message>
    <message>
        <source>How much space your kept footage uses, and how much room the Vault&apos;s disk has left.</source>
        <translation>Cuánto espacio ocupan tus grabaciones conservadas y cuánto le queda al disco de la Bóveda.</translation>
    </message>
    <message>
        <source>Move to Trash…</source>
        <extracomment>Menu item of a kept event</extracomment>
        <translation>Mover a la Papelera…</translation>
    </message>
    <message>
        <source>Move this event to the Trash?</source>
        <translation>¿Mover este evento a la Papelera?</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <extracomment>Button that confirms moving the kept event to the Trash</extracomment>
        <translation>Mover a la Papelera</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Choose a Different Folder</source>
        <translation>Elegir otra carpeta</translation>
    </message>
    <message>
        <source>Choose Another Folder…</source>
        <translation>Elegir otra carpeta…</translation>
    </message>
    <message>
        <source>Keeping footage safe…</source>
        <translation>Poniendo a salvo las grabaciones…</translation>
    </message>
    <message>
        <source>Stops after the current file. Anything already copied and verified stays in your Vault — nothing is undone.</source>
        <translation>Se detiene tras el archivo actual. Todo lo ya copiado y verificado se queda en tu Bóveda — no se deshace nada.</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the keep&apos;s report</extracomment>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Verify Vault</source>
        <translation>Verificar Bóveda</translation>
    </message>
    <message>
        <source>Read every kept file again and compare it with the checksum taken when it was kept.</source>
        <translation>Volver a leer cada archivo conservado y compararlo con la suma de comprobación tomada al conservarlo.</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verificar</translation>
    </message>
    <message>
        <source>Choose a Vault Folder</source>
        <translation>Elige una carpeta de Bóveda</translation>
    </message>
    <message>
        <source>Your Vault is a folder on this %1 (or an external drive you keep) where Keelhold keeps permanent, verified copies of the footage you choose to keep — safe even if your car&apos;s drive fails, fills up, or gets wiped.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Tu Bóveda es una carpeta de este %1 (o de una unidad externa que tengas) donde Keelhold guarda copias permanentes y verificadas de las grabaciones que decidas conservar — a salvo aunque la unidad de tu coche falle, se llene o se borre.</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Elegir carpeta…</translation>
    </message>
    <message>
        <source>Your Vault is empty so far</source>
        <translation>Tu Bóveda está vacía por ahora</translation>
    </message>
    <message>
        <source>Nothing has been kept yet. From the Drive tab, select an event and choose &quot;Keep&quot; to copy it here permanently.</source>
        <extracomment>&quot;Drive&quot; and &quot;Keep&quot; are the app&apos;s own tab and button; translate them as there</extracomment>
        <translation>Aún no se ha conservado nada. En la pestaña Unidad, selecciona un evento y elige “Conservar” para copiarlo aquí de forma permanente.</translation>
    </message>
    <message numerus="yes">
        <source>%n events · %1 · %2 free on this disk</source>
        <extracomment>The Vault&apos;s summary: how many kept events, their size, and the room left on the Vault&apos;s disk</extracomment>
        <translation>
            <numerusform>%n evento · %1 · %2 libres en este disco</numerusform>
            <numerusform>%n eventos · %1 · %2 libres en este disco</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n events · %1</source>
        <extracomment>The Vault&apos;s summary: how many kept events and their size</extracomment>
        <translation>
            <numerusform>%n evento · %1</numerusform>
            <numerusform>%n eventos · %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n events</source>
        <extracomment>A keep&apos;s progress: events done of all it keeps</extracomment>
        <translation>
            <numerusform>%1 de %n evento</numerusform>
            <numerusform>%1 de %n eventos</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused at %1 — that is a different drive; plug in the one this keep was reading</source>
        <translation>En pausa en %1 — es otra unidad; conecta la que se estaba leyendo</translation>
    </message>
    <message>
        <source>Paused at %1 — plug the drive back in to go on</source>
        <translation>En pausa en %1 — vuelve a conectar la unidad para continuar</translation>
    </message>
    <message>
        <source>Reading your kept footage again…</source>
        <translation>Volviendo a leer tus grabaciones conservadas…</translation>
    </message>
    <message>
        <source>Reading 1 kept event again…</source>
        <translation>Volviendo a leer 1 evento conservado…</translation>
    </message>
    <message>
        <source>Reading kept events again: %1 of %2 done</source>
        <translation>Volviendo a leer los eventos conservados: %1 de %2 hechos</translation>
    </message>
    <message>
        <source>%1 will move to your %2&apos;s Trash, where you can still recover it. Nothing on your Tesla drive is touched.</source>
        <extracomment>%1 is the event&apos;s day and time (&quot;Mon 2:11 AM&quot;), %2 the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>%1 irá a la Papelera de tu %2, donde aún podrás recuperarlo. No se toca nada de tu unidad de Tesla.</translation>
    </message>
    <message>
        <source>This drive</source>
        <translation>Esta unidad</translation>
    </message>
    <message>
        <source>Keep new events automatically when this drive is connected</source>
        <translation>Conservar automáticamente los eventos nuevos al conectar esta unidad</translation>
    </message>
    <message>
        <source>Recent driving too</source>
        <extracomment>Ticked with the choice above: recent driving is kept as well</extracomment>
        <translation>También la conducción reciente</translation>
    </message>
    <message>
        <source>%1 — Sentry and saved events, each file checked, as soon as it is connected while Keelhold is open.</source>
        <extracomment>%1 is the drive&apos;s name</extracomment>
        <translation>%1 — eventos de Centinela y guardados, comprobando cada archivo, en cuanto se conecte con Keelhold abierto.</translation>
    </message>
</context>
<context>
    <name>VideoReencoder</name>
    <message>
        <source>The footage couldn&apos;t be converted for the movie.</source>
        <translation>No se pudieron convertir las grabaciones para el vídeo.</translation>
    </message>
    <message>
        <source>There wasn&apos;t enough memory to convert the footage.</source>
        <translation>No había memoria suficiente para convertir las grabaciones.</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be encoded: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>No se pudieron codificar las grabaciones: %1.</translation>
    </message>
</context>
<context>
    <name>VolumeFormat</name>
    <message>
        <source>FAT32 (MS-DOS)</source>
        <extracomment>Name of a drive format</extracomment>
        <translation>FAT32 (MS-DOS)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>Name of a drive format that could not be read</extracomment>
        <translation>Desconocido</translation>
    </message>
</context>
</TS>
