<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>ActivityStrip</name>
    <message>
        <source>Movement in front of each camera: the stronger the colour, the more changed. Click to go there.</source>
        <translation>Bewegung vor jeder Kamera: Je kräftiger die Farbe, desto mehr hat sich verändert. Klicken Sie, um dorthin zu springen.</translation>
    </message>
    <message>
        <source>%1: movement at %2</source>
        <extracomment>%1 is a camera&apos;s name, %2 a time into the event</extracomment>
        <translation>%1: Bewegung bei %2</translation>
    </message>
    <message>
        <source>%1: quiet at %2</source>
        <translation>%1: ruhig bei %2</translation>
    </message>
</context>
<context>
    <name>AppCommandLine</name>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1 is the command&apos;s synopsis, which stays as it is</extracomment>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>  or:  %1</source>
        <extracomment>The second synopsis line, under &quot;Usage:&quot;; %1 stays as it is</extracomment>
        <translation>  oder: %1</translation>
    </message>
    <message>
        <source>Reviews the footage a Tesla records to its USB drive. Keelhold reads the drive&apos;s TeslaCam folder without ever writing to it, plays every camera of an event in sync, and keeps chosen events in a Vault folder as verified copies.</source>
        <translation>Zeigt die Aufnahmen, die ein Tesla auf seinem USB-Laufwerk speichert. Keelhold liest den TeslaCam-Ordner des Laufwerks, ohne jemals darauf zu schreiben, spielt alle Kameras eines Ereignisses synchron ab und sichert ausgewählte Ereignisse als geprüfte Kopien in einem Tresor-Ordner.</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Exit-Status:</translation>
    </message>
    <message>
        <source>The window was closed.</source>
        <translation>Das Fenster wurde geschlossen.</translation>
    </message>
    <message>
        <source>The window could not be shown.</source>
        <translation>Das Fenster konnte nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>The command line was wrong.</source>
        <translation>Die Befehlszeile war falsch.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Start with the sample footage instead of a drive.</source>
        <translation>Mit den Beispielaufnahmen statt mit einem Laufwerk starten.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version anzeigen.</translation>
    </message>
    <message>
        <source>Environment:</source>
        <extracomment>Heading over the environment variables the program reads</extracomment>
        <translation>Umgebung:</translation>
    </message>
    <message>
        <source>A TeslaCam folder to show as the sample footage.</source>
        <translation>Ein TeslaCam-Ordner, der als Beispielaufnahmen gezeigt wird.</translation>
    </message>
    <message>
        <source>%1 or %2, in place of the desktop&apos;s choice.</source>
        <extracomment>%1 and %2 are the variable&apos;s values, typed as they stand</extracomment>
        <translation>%1 oder %2, anstelle der Wahl des Desktops.</translation>
    </message>
    <message>
        <source>keelhold doesn&apos;t know “%1”. Run “keelhold --help” to see what it takes.</source>
        <extracomment>%1 is the argument given; &quot;keelhold --help&quot; is a command and stays as it is</extracomment>
        <translation>keelhold kennt „%1“ nicht. Führen Sie „keelhold --help“ aus, um zu sehen, was es annimmt.</translation>
    </message>
    <message>
        <source>Open at the Vault, where kept events are.</source>
        <translation>Im Tresor öffnen, wo die gesicherten Ereignisse liegen.</translation>
    </message>
    <message>
        <source>keelhold: the sample footage is not installed, so Keelhold starts without it.</source>
        <translation>keelhold: Die Beispielaufnahmen sind nicht installiert, daher startet Keelhold ohne sie.</translation>
    </message>
</context>
<context>
    <name>ArchiveEngine</name>
    <message>
        <source>This file took too long to read — the drive may be failing.</source>
        <translation>Das Lesen dieser Datei hat zu lange gedauert — das Laufwerk fällt möglicherweise aus.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create a file in your Vault folder.</source>
        <translation>Im Tresor-Ordner konnte keine Datei angelegt werden.</translation>
    </message>
    <message>
        <source>This file changed size while copying — the drive may have been disconnected.</source>
        <translation>Diese Datei hat beim Kopieren ihre Größe geändert — das Laufwerk wurde möglicherweise getrennt.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Diese Datei konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>There isn&apos;t enough space in your Vault folder.</source>
        <translation>Im Tresor-Ordner ist nicht genug Platz.</translation>
    </message>
    <message>
        <source>The Vault folder is no longer available.</source>
        <translation>Der Tresor-Ordner ist nicht mehr verfügbar.</translation>
    </message>
    <message>
        <source>This isn&apos;t an ordinary file (it is a link or a special file), so it was left alone.</source>
        <translation>Dies ist keine gewöhnliche Datei (sondern eine Verknüpfung oder eine Spezialdatei), daher wurde sie nicht angerührt.</translation>
    </message>
    <message>
        <source>The Vault&apos;s list of kept events couldn&apos;t be saved, so nothing from this run is recorded as kept.</source>
        <translation>Die Liste der gesicherten Ereignisse im Tresor konnte nicht gespeichert werden, daher gilt nichts aus diesem Durchgang als gesichert.</translation>
    </message>
</context>
<context>
    <name>ArchivedEvent</name>
    <message>
        <source>Unknown Drive</source>
        <extracomment>Stands for the name of a drive that could not be read</extracomment>
        <translation>Unbekanntes Laufwerk</translation>
    </message>
</context>
<context>
    <name>Camera</name>
    <message>
        <source>Front</source>
        <extracomment>Camera name: the camera looking ahead through the windscreen</extracomment>
        <translation>Vorne</translation>
    </message>
    <message>
        <source>Rear</source>
        <extracomment>Camera name: the camera looking backwards above the number plate</extracomment>
        <translation>Hinten</translation>
    </message>
    <message>
        <source>Left Side</source>
        <extracomment>Camera name: the camera in the left side repeater, looking back along the car</extracomment>
        <translation>Links seitlich</translation>
    </message>
    <message>
        <source>Right Side</source>
        <extracomment>Camera name: the camera in the right side repeater, looking back along the car</extracomment>
        <translation>Rechts seitlich</translation>
    </message>
    <message>
        <source>Left Pillar</source>
        <extracomment>Camera name: the camera in the left door pillar (B pillar)</extracomment>
        <translation>B-Säule links</translation>
    </message>
    <message>
        <source>Right Pillar</source>
        <extracomment>Camera name: the camera in the right door pillar (B pillar)</extracomment>
        <translation>B-Säule rechts</translation>
    </message>
    <message>
        <source>Backup</source>
        <extracomment>Camera name: the reversing camera (not a copy of files)</extracomment>
        <translation>Rückfahrkamera</translation>
    </message>
</context>
<context>
    <name>CameraTile</name>
    <message>
        <source>%1 camera</source>
        <extracomment>Screen reader name of a camera&apos;s tile; %1 is the camera&apos;s name, e.g. Left Side</extracomment>
        <translation>Kamera %1</translation>
    </message>
</context>
<context>
    <name>CliOutput</name>
    <message>
        <source>Read a TeslaCam folder and print its events as JSON.</source>
        <translation>Einen TeslaCam-Ordner lesen und seine Ereignisse als JSON ausgeben.</translation>
    </message>
    <message>
        <source>Print the health report of a TeslaCam folder as JSON.</source>
        <translation>Den Zustandsbericht eines TeslaCam-Ordners als JSON ausgeben.</translation>
    </message>
    <message>
        <source>Write one camera of one event as one MP4 movie, or all cameras at once.</source>
        <translation>Eine Kamera eines Ereignisses als MP4-Film schreiben, oder alle Kameras zugleich.</translation>
    </message>
    <message>
        <source>Write the incident report of one event as a PDF, or an evidence package with every original.</source>
        <translation>Den Vorfallbericht eines Ereignisses als PDF schreiben, oder ein Beweispaket mit allen Originalen.</translation>
    </message>
    <message>
        <source>Copy events into a Vault folder, checking every file.</source>
        <translation>Ereignisse in einen Tresor-Ordner kopieren und dabei jede Datei prüfen.</translation>
    </message>
    <message>
        <source>List, remove or re-check the events kept in a Vault folder.</source>
        <translation>Die in einem Tresor-Ordner gesicherten Ereignisse auflisten, entfernen oder erneut prüfen.</translation>
    </message>
    <message>
        <source>Print the driving data recorded with an event&apos;s footage.</source>
        <translation>Die mit den Aufnahmen eines Ereignisses aufgezeichneten Fahrdaten ausgeben.</translation>
    </message>
    <message>
        <source>Print where to look in an event: activity in front of each camera, and hard moments.</source>
        <translation>Ausgeben, wo man in einem Ereignis hinsehen sollte: Aktivität vor jeder Kamera und auffällige Momente.</translation>
    </message>
    <message>
        <source>Check and remember your Tesla sign-in, for the car&apos;s encrypted clips.</source>
        <translation>Ihre Tesla-Anmeldung prüfen und speichern, für die verschlüsselten Clips des Autos.</translation>
    </message>
    <message>
        <source>Write an event&apos;s encrypted clips as the plain MP4 movies they hold.</source>
        <translation>Die verschlüsselten Clips eines Ereignisses als die unverschlüsselten MP4-Filme schreiben, die sie enthalten.</translation>
    </message>
    <message>
        <source>There is no folder at “%1”. Check that the drive is plugged in and the path is right.</source>
        <translation>Unter „%1“ gibt es keinen Ordner. Prüfen Sie, ob das Laufwerk eingesteckt und der Pfad richtig ist.</translation>
    </message>
    <message>
        <source>“%1” is a file, not a folder. Give the TeslaCam folder itself.</source>
        <translation>„%1“ ist eine Datei, kein Ordner. Geben Sie den TeslaCam-Ordner selbst an.</translation>
    </message>
    <message>
        <source>There is no event “%1” in this folder.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>In diesem Ordner gibt es kein Ereignis „%1“.</translation>
    </message>
    <message>
        <source>A file holding your Tesla sign-in token, or - to read it from standard input. Without it, the token keelhold-cli unlock remembered is used.</source>
        <translation>Eine Datei mit Ihrem Tesla-Anmeldetoken, oder -, um es von der Standardeingabe zu lesen. Ohne diese Angabe wird das Token verwendet, das keelhold-cli unlock gespeichert hat.</translation>
    </message>
    <message>
        <source>The token file %1 can&apos;t be read.</source>
        <translation>Die Token-Datei %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Standard input holds no sign-in token.</source>
        <translation>Die Standardeingabe enthält kein Anmeldetoken.</translation>
    </message>
    <message>
        <source>The file %1 holds no sign-in token.</source>
        <translation>Die Datei %1 enthält kein Anmeldetoken.</translation>
    </message>
    <message>
        <source>These clips are encrypted by your car and no key for them is kept here: give your Tesla sign-in token with --token-file, or run keelhold-cli unlock first.</source>
        <translation>Diese Clips wurden von Ihrem Auto verschlüsselt, und hier ist kein Schlüssel für sie gespeichert: Geben Sie Ihr Tesla-Anmeldetoken mit --token-file an, oder führen Sie zuerst keelhold-cli unlock aus.</translation>
    </message>
    <message>
        <source>Writes each encrypted clip of an event as the plain MP4 movie it holds, under the same file name, into a
folder of your choice. Keys kept before are used first; the missing ones are fetched from Tesla&apos;s service
with your sign-in token. Exits with 1 when only some clips could be written.</source>
        <translation>Schreibt jeden verschlüsselten Clip eines Ereignisses als den unverschlüsselten MP4-Film, den er enthält,
unter demselben Dateinamen in einen Ordner Ihrer Wahl. Bereits gespeicherte Schlüssel werden zuerst
verwendet; fehlende werden mit Ihrem Anmeldetoken von Teslas Dienst abgerufen. Endet mit 1, wenn nur
einige Clips geschrieben werden konnten.</translation>
    </message>
    <message>
        <source>The TeslaCam folder, or a Vault folder, to read.</source>
        <translation>Der TeslaCam-Ordner oder ein Tresor-Ordner, der gelesen werden soll.</translation>
    </message>
    <message>
        <source>The event&apos;s id, as keelhold-cli scan prints it.</source>
        <translation>Die ID des Ereignisses, wie keelhold-cli scan sie ausgibt.</translation>
    </message>
    <message>
        <source>Only this camera&apos;s clips.</source>
        <translation>Nur die Clips dieser Kamera.</translation>
    </message>
    <message>
        <source>The folder to write the movies into.</source>
        <translation>Der Ordner, in den die Filme geschrieben werden.</translation>
    </message>
    <message>
        <source>“%1” is not a camera; use one of %2.</source>
        <extracomment>%1 is the camera as typed, %2 the camera names the command takes</extracomment>
        <translation>„%1“ ist keine Kamera; verwenden Sie eine von %2.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so choose a folder somewhere else.</source>
        <translation>Keelhold schreibt nie auf Ihr Tesla-Laufwerk, wählen Sie daher einen Ordner an einem anderen Ort.</translation>
    </message>
    <message>
        <source>The %1 camera has no encrypted footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>Die Kamera %1 hat in diesem Ereignis keine verschlüsselten Aufnahmen.</translation>
    </message>
    <message>
        <source>This event&apos;s footage isn&apos;t encrypted: its files are plain MP4 movies already.</source>
        <translation>Die Aufnahmen dieses Ereignisses sind nicht verschlüsselt: Ihre Dateien sind bereits unverschlüsselte MP4-Filme.</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be made.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The clips couldn&apos;t be read from the drive or written to %1.</source>
        <translation>Die Clips konnten nicht vom Laufwerk gelesen oder nicht nach %1 geschrieben werden.</translation>
    </message>
    <message>
        <source>Wrote %1 of %2 clips to %3.</source>
        <extracomment>%3 is a folder</extracomment>
        <translation>%1 von %2 Clips nach %3 geschrieben.</translation>
    </message>
    <message>
        <source>Wrote %1 clips to %2.</source>
        <extracomment>%2 is a folder</extracomment>
        <translation>%1 Clips nach %2 geschrieben.</translation>
    </message>
    <message>
        <source>The drive went away: %1 of %2 events were kept completely. Plug it back in and run keep again to finish.</source>
        <translation>Das Laufwerk ist weg: %1 von %2 Ereignissen wurden vollständig gesichert. Stecken Sie es wieder ein und führen Sie keep erneut aus, um den Rest zu sichern.</translation>
    </message>
    <message>
        <source>Prints where to look in an event: for each camera the bursts of activity (something moving in front of
it, found from how much the camera&apos;s video changed), and the hard moments of the drive (hard braking,
a swerve, Autopilot switching off, a sudden stop, the car&apos;s emergency braking) from the driving data
its clips carry. Times are seconds on the event&apos;s timeline, as the player shows them. The drive is
only read.</source>
        <translation>Gibt aus, wo man in einem Ereignis hinsehen sollte: für jede Kamera die Phasen mit Aktivität (etwas
bewegt sich vor ihr, erkannt daran, wie stark sich das Video der Kamera verändert hat), und die
auffälligen Momente der Fahrt (starkes Bremsen, ein Ausweichen, Abschalten des Autopiloten, ein
plötzlicher Halt, die Notbremsung des Autos) aus den Fahrdaten, die die Clips enthalten. Zeiten sind
Sekunden auf der Zeitleiste des Ereignisses, wie der Player sie anzeigt. Das Laufwerk wird nur gelesen.</translation>
    </message>
    <message>
        <source>json (the default) or csv.</source>
        <extracomment>json and csv are values typed on the command line; keep them as they are</extracomment>
        <translation>json (Standard) oder csv.</translation>
    </message>
    <message>
        <source>“%1” is not a format; use json or csv.</source>
        <extracomment>%1 is the format as typed; json and csv stay as they are</extracomment>
        <translation>„%1“ ist kein Format; verwenden Sie json oder csv.</translation>
    </message>
    <message>
        <source>None of this event&apos;s clips could be read.</source>
        <translation>Keiner der Clips dieses Ereignisses konnte gelesen werden.</translation>
    </message>
    <message>
        <source>Stopped before every clip was read.</source>
        <translation>Angehalten, bevor alle Clips gelesen waren.</translation>
    </message>
    <message>
        <source>Checks your Tesla sign-in token with Tesla&apos;s service and remembers it in this computer&apos;s secret store, so
that export, telemetry and decrypt can fetch the keys of your car&apos;s encrypted clips. Only the clips&apos; key
blocks and your car&apos;s VIN are ever sent, never video. To get the token, sign in at Tesla&apos;s dashcam viewer
in your browser and copy it from there. Give it in a file or on standard input, never on the command
line, where other users could read it.</source>
        <translation>Prüft Ihr Tesla-Anmeldetoken bei Teslas Dienst und speichert es im Schlüsselspeicher dieses Computers,
damit export, telemetry und decrypt die Schlüssel der verschlüsselten Clips Ihres Autos abrufen können.
Es werden nur die Schlüsselblöcke der Clips und die VIN Ihres Autos gesendet, niemals Video. Um das Token
zu erhalten, melden Sie sich im Browser bei Teslas Dashcam-Viewer an und kopieren es von dort. Geben Sie
es in einer Datei oder über die Standardeingabe an, nie auf der Befehlszeile, wo andere Benutzer es
lesen könnten.</translation>
    </message>
    <message>
        <source>Remove the remembered sign-in from this computer&apos;s secret store.</source>
        <translation>Die gespeicherte Anmeldung aus dem Schlüsselspeicher dieses Computers entfernen.</translation>
    </message>
    <message>
        <source>A token on the command line can be seen by other users of this computer, so keelhold-cli won&apos;t take one there: put it in a file and give --token-file FILE, or --token-file - to type it.</source>
        <translation>Ein Token auf der Befehlszeile können andere Benutzer dieses Computers sehen, daher nimmt keelhold-cli dort keines an: Legen Sie es in eine Datei und geben Sie --token-file FILE an, oder --token-file -, um es einzutippen.</translation>
    </message>
    <message>
        <source>Your Tesla sign-in is no longer remembered on this computer.</source>
        <translation>Ihre Tesla-Anmeldung ist auf diesem Computer nicht mehr gespeichert.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service didn&apos;t accept this sign-in token: it may have expired. Sign in again at Tesla&apos;s dashcam viewer and copy a fresh one.</source>
        <translation>Teslas Dienst hat dieses Anmeldetoken nicht angenommen: Es ist möglicherweise abgelaufen. Melden Sie sich erneut bei Teslas Dashcam-Viewer an und kopieren Sie ein neues.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service accepted your sign-in, but this computer has no secret store to remember it in: give it with --token-file to each command instead.</source>
        <translation>Teslas Dienst hat Ihre Anmeldung angenommen, aber dieser Computer hat keinen Schlüsselspeicher, in dem sie gespeichert werden könnte: Geben Sie sie stattdessen bei jedem Befehl mit --token-file an.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service accepted your sign-in, and it is remembered in this computer&apos;s secret store.</source>
        <translation>Teslas Dienst hat Ihre Anmeldung angenommen, und sie ist im Schlüsselspeicher dieses Computers gespeichert.</translation>
    </message>
    <message>
        <source>“%1” is a file, not a Vault folder.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>„%1“ ist eine Datei, kein Tresor-Ordner.</translation>
    </message>
    <message>
        <source>There is no Vault folder at %1.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>Unter %1 gibt es keinen Tresor-Ordner.</translation>
    </message>
    <message>
        <source>keelhold-cli has no option “%1” before a command. Run “keelhold-cli --help” to see the commands and their options.</source>
        <extracomment>%1 is the option as typed</extracomment>
        <translation>keelhold-cli hat keine Option „%1“ vor einem Befehl. Führen Sie „keelhold-cli --help“ aus, um die Befehle und ihre Optionen zu sehen.</translation>
    </message>
    <message>
        <source>There is no command “%1”. Run “keelhold-cli --help” to see them all.</source>
        <extracomment>%1 is the command as typed</extracomment>
        <translation>Es gibt keinen Befehl „%1“. Führen Sie „keelhold-cli --help“ aus, um alle zu sehen.</translation>
    </message>
    <message>
        <source>Keep what is new from every TeslaCam drive as it is connected, until stopped.</source>
        <translation>Neues von jedem TeslaCam-Laufwerk sichern, sobald es angeschlossen wird, bis zum Anhalten.</translation>
    </message>
    <message>
        <source>Usage: %1
  or:  %2
  or:  %3
</source>
        <extracomment>The ways to call the tool; %1, %2 and %3 are command lines, which stay as they are. Keep them lined up.</extracomment>
        <translation>Aufruf: %1
  oder: %2
  oder: %3
</translation>
    </message>
    <message>
        <source>Reads the TeslaCam folder of a Tesla&apos;s USB drive without ever writing to it, and keeps chosen events in a Vault folder as verified copies.</source>
        <translation>Liest den TeslaCam-Ordner des USB-Laufwerks eines Tesla, ohne jemals darauf zu schreiben, und sichert ausgewählte Ereignisse als geprüfte Kopien in einem Tresor-Ordner.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <extracomment>Heading of the list of commands in the help</extracomment>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>Show the options of a command.</source>
        <translation>Die Optionen eines Befehls anzeigen.</translation>
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
        <translation>Exit-Status:
  0    Erledigt.
  1    Teilweise erledigt: keep konnte einige Dateien nicht sichern, vault verify fand eine geänderte
       oder fehlende Datei, oder decrypt konnte nur einige Clips schreiben.
  2    Die Arbeit konnte nicht erledigt werden, zum Beispiel weil der Ordner fehlt oder nicht lesbar ist.
  64   Die Befehlszeile war falsch.
  130  keep wurde mit Ctrl-C angehalten.
</translation>
    </message>
    <message>
        <source>Progress and messages go to standard error, results to standard output.</source>
        <translation>Fortschritt und Meldungen gehen an die Standardfehlerausgabe, Ergebnisse an die Standardausgabe.</translation>
    </message>
    <message>
        <source>Options:</source>
        <extracomment>Heading of the list of options in the help</extracomment>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version anzeigen.</translation>
    </message>
    <message>
        <source>help takes one command, such as “keelhold-cli help scan”.</source>
        <translation>help nimmt genau einen Befehl, zum Beispiel „keelhold-cli help scan“.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>How a command is typed; %1 is the command line itself, which stays as it is</extracomment>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>%1 %2 folders, %3 events, %4 clips</source>
        <extracomment>Scan progress; %1 says what is being read (&quot;Reading Sentry events…&quot;), then counts so far</extracomment>
        <translation>%1 %2 Ordner, %3 Ereignisse, %4 Clips</translation>
    </message>
    <message>
        <source>probing %1 of %2 clips</source>
        <extracomment>Progress while each clip is opened to check it</extracomment>
        <translation>prüfe %1 von %2 Clips</translation>
    </message>
    <message>
        <source>Exporting… %1% (finishing the file)</source>
        <extracomment>Export progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>Exportieren… %1 % (Datei wird abgeschlossen)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 fps, %5 left)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 frames per second, %5 the time left as m:ss</extracomment>
        <translation>Exportieren… %1 % (%2 von %3 Bildern, %4 fps, noch %5)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 fps)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 frames per second</extracomment>
        <translation>Exportieren… %1 % (%2 von %3 Bildern, %4 fps)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 left)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 the time left as m:ss</extracomment>
        <translation>Exportieren… %1 % (%2 von %3 Bildern, noch %4)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames</extracomment>
        <translation>Exportieren… %1 % (%2 von %3 Bildern)</translation>
    </message>
    <message>
        <source>Writes one camera of one event as a single MP4 movie, copied as it is, or every camera at once with the date and time drawn on it. The drive is only read.</source>
        <translation>Schreibt eine Kamera eines Ereignisses als einzelnen MP4-Film, unverändert kopiert, oder alle Kameras zugleich mit eingeblendetem Datum und Uhrzeit. Das Laufwerk wird nur gelesen.</translation>
    </message>
    <message>
        <source>The TeslaCam folder to read.</source>
        <translation>Der TeslaCam-Ordner, der gelesen werden soll.</translation>
    </message>
    <message>
        <source>One of: %1.</source>
        <extracomment>Help of an option; %1 lists the values it takes, which stay as they are</extracomment>
        <translation>Eines von: %1.</translation>
    </message>
    <message>
        <source>The movie file to create; in an existing folder, the suggested name is used.</source>
        <translation>Die Filmdatei, die angelegt werden soll; bei einem vorhandenen Ordner wird der vorgeschlagene Name verwendet.</translation>
    </message>
    <message>
        <source>Start, in seconds of the joined footage.</source>
        <translation>Anfang, in Sekunden der zusammengefügten Aufnahmen.</translation>
    </message>
    <message>
        <source>End, in seconds of the joined footage.</source>
        <translation>Ende, in Sekunden der zusammengefügten Aufnahmen.</translation>
    </message>
    <message>
        <source>Makes one new movie with every camera at once and the time drawn on it. One of: grid, front-sides, single. Single re-encodes the --camera alone. --from and --to then count seconds of the event&apos;s timeline, as the player shows it.</source>
        <extracomment>grid, front-sides and single are values typed on the command line; keep them as they are</extracomment>
        <translation>Erstellt einen neuen Film mit allen Kameras zugleich und eingeblendeter Uhrzeit. Eines von: grid, front-sides, single. single codiert nur die --camera neu. --from und --to zählen dann Sekunden auf der Zeitleiste des Ereignisses, wie der Player sie anzeigt.</translation>
    </message>
    <message>
        <source>What a new movie shows over the pictures, any of: time, names, reason, telemetry, none. Join parts with commas; the default is time,names,reason. Telemetry is the car&apos;s speed, pedals, steering and Autopilot where its clips carry them, in km/h or mph as your locale measures. With only --camera, any part makes a new movie of that camera instead of a copy.</source>
        <extracomment>time, names, reason, telemetry, none and time,names,reason are values typed on the command line; keep them as they are</extracomment>
        <translation>Was ein neuer Film über den Bildern zeigt, beliebig aus: time, names, reason, telemetry, none. Mehrere Teile mit Kommas verbinden; Standard ist time,names,reason. telemetry sind Geschwindigkeit, Pedale, Lenkung und Autopilot des Autos, soweit die Clips sie enthalten, in km/h oder mph je nach Ihrem Gebietsschema. Mit nur --camera erstellt jeder Teil einen neuen Film dieser Kamera statt einer Kopie.</translation>
    </message>
    <message>
        <source>The new movie&apos;s picture height. One of: 720, 1080, full. The default is 1080.</source>
        <extracomment>720, 1080 and full are values typed on the command line; keep them as they are</extracomment>
        <translation>Die Bildhöhe des neuen Films. Eines von: 720, 1080, full. Standard ist 1080.</translation>
    </message>
    <message>
        <source>--overlay takes time, names, reason and telemetry joined with commas, or none.</source>
        <extracomment>time, names, reason, telemetry and none are values typed on the command line; keep them as they are</extracomment>
        <translation>--overlay nimmt time, names, reason und telemetry, mit Kommas verbunden, oder none.</translation>
    </message>
    <message>
        <source>“%1” is not a layout; use grid, front-sides or single.</source>
        <extracomment>%1 is the layout as typed; grid, front-sides and single stay as they are</extracomment>
        <translation>„%1“ ist kein Layout; verwenden Sie grid, front-sides oder single.</translation>
    </message>
    <message>
        <source>Name the camera with --camera, or choose --layout grid or front-sides.</source>
        <translation>Geben Sie die Kamera mit --camera an, oder wählen Sie --layout grid oder front-sides.</translation>
    </message>
    <message>
        <source>--camera picks the one camera of --layout single; grid and front-sides show every camera.</source>
        <translation>--camera wählt die eine Kamera von --layout single; grid und front-sides zeigen alle Kameras.</translation>
    </message>
    <message>
        <source>“%1” is not a size; use 720, 1080 or full.</source>
        <extracomment>%1 is the size as typed; 720, 1080 and full stay as they are</extracomment>
        <translation>„%1“ ist keine Größe; verwenden Sie 720, 1080 oder full.</translation>
    </message>
    <message>
        <source>--from and --to take a number of seconds, such as 12.5.</source>
        <translation>--from und --to nehmen eine Anzahl Sekunden, zum Beispiel 12.5.</translation>
    </message>
    <message>
        <source>There is no event “%1” in this TeslaCam folder.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>In diesem TeslaCam-Ordner gibt es kein Ereignis „%1“.</translation>
    </message>
    <message>
        <source>Exporting… %1%</source>
        <extracomment>Export progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>Exportieren… %1 %</translation>
    </message>
    <message>
        <source>The %1 camera has no playable footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>Die Kamera %1 hat in diesem Ereignis keine abspielbaren Aufnahmen.</translation>
    </message>
    <message>
        <source>None of this event&apos;s cameras has playable footage.</source>
        <translation>Keine Kamera dieses Ereignisses hat abspielbare Aufnahmen.</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>Der Export wurde angehalten.</translation>
    </message>
    <message>
        <source>Reads a TeslaCam folder and prints its health report (fullness, damaged clips, format, events not yet kept, recommendations) as JSON.</source>
        <translation>Liest einen TeslaCam-Ordner und gibt seinen Zustandsbericht (Füllstand, beschädigte Clips, Format, noch nicht gesicherte Ereignisse, Empfehlungen) als JSON aus.</translation>
    </message>
    <message>
        <source>The TeslaCam folder to read, or the drive that holds it.</source>
        <translation>Der TeslaCam-Ordner, der gelesen werden soll, oder das Laufwerk, auf dem er liegt.</translation>
    </message>
    <message>
        <source>The Vault folder whose index tells which events are kept.</source>
        <translation>Der Tresor-Ordner, dessen Index angibt, welche Ereignisse gesichert sind.</translation>
    </message>
    <message>
        <source>Open every clip to find damaged ones (slower).</source>
        <translation>Jeden Clip öffnen, um beschädigte zu finden (langsamer).</translation>
    </message>
    <message>
        <source>Indent the JSON for reading.</source>
        <translation>Das JSON zum Lesen einrücken.</translation>
    </message>
    <message>
        <source>There is no Vault folder at “%1”.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>Unter „%1“ gibt es keinen Tresor-Ordner.</translation>
    </message>
    <message>
        <source>Copies events from a TeslaCam folder into a Vault folder, checking each file&apos;s size and recording its SHA-256, and prints the report as JSON.
Exit status: 0 when everything was kept, 1 when some files could not be kept, 130 when stopped with Ctrl-C, 2 when the drive could not be read.</source>
        <extracomment>The numbers are exit codes; keep them</extracomment>
        <translation>Kopiert Ereignisse aus einem TeslaCam-Ordner in einen Tresor-Ordner, prüft dabei die Größe jeder Datei, hält ihre SHA-256 fest und gibt den Bericht als JSON aus.
Exit-Status: 0, wenn alles gesichert wurde, 1, wenn einige Dateien nicht gesichert werden konnten, 130, wenn mit Ctrl-C angehalten, 2, wenn das Laufwerk nicht gelesen werden konnte.</translation>
    </message>
    <message>
        <source>The Vault folder.</source>
        <translation>Der Tresor-Ordner.</translation>
    </message>
    <message>
        <source>An event to keep, as printed by scan (&quot;sentry|&lt;folder&gt;&quot;). Repeat for more; without it, every event is kept.</source>
        <extracomment>&quot;sentry|&lt;folder&gt;&quot; shows how an event&apos;s id looks; keep it as it is</extracomment>
        <translation>Ein zu sicherndes Ereignis, wie scan es ausgibt (&quot;sentry|&lt;folder&gt;&quot;). Für weitere wiederholen; ohne diese Angabe wird jedes Ereignis gesichert.</translation>
    </message>
    <message>
        <source>Seconds allowed for each file (default 10).</source>
        <translation>Erlaubte Sekunden pro Datei (Standard 10).</translation>
    </message>
    <message>
        <source>The time limit must be a number of seconds, more than 0 and at most a day.</source>
        <translation>Das Zeitlimit muss eine Anzahl Sekunden sein, größer als 0 und höchstens ein Tag.</translation>
    </message>
    <message>
        <source>There is no event “%1” on this drive.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>Auf diesem Laufwerk gibt es kein Ereignis „%1“.</translation>
    </message>
    <message>
        <source>%1/%2 events · %3 MB · %4 MB/s · %5</source>
        <extracomment>Keep progress: %1 of %2 events done, %3 megabytes copied, %4 megabytes a second, %5 the file being copied</extracomment>
        <translation>%1/%2 Ereignisse · %3 MB · %4 MB/s · %5</translation>
    </message>
    <message>
        <source>%1/%2 events · %3 MB · %4 MB/s</source>
        <extracomment>Keep progress: %1 of %2 events done, %3 megabytes copied, %4 megabytes a second</extracomment>
        <translation>%1/%2 Ereignisse · %3 MB · %4 MB/s</translation>
    </message>
    <message>
        <source>Stopping after the current file… (Ctrl-C again to quit at once)</source>
        <translation>Wird nach der aktuellen Datei angehalten… (erneut Ctrl-C zum sofortigen Beenden)</translation>
    </message>
    <message>
        <source>Writes the incident report of one event as a PDF: when and where, each camera at the moment, the driving data, and every original file with its SHA-256. With --package, one ZIP that also holds every original and a SHA256SUMS file that `sha256sum -c` checks. The drive is only read.</source>
        <extracomment>SHA256SUMS is a file name and `sha256sum -c` a command; keep both as they are</extracomment>
        <translation>Schreibt den Vorfallbericht eines Ereignisses als PDF: wann und wo, jede Kamera im Moment des Ereignisses, die Fahrdaten und jede Originaldatei mit ihrer SHA-256. Mit --package eine ZIP-Datei, die zusätzlich jedes Original und eine SHA256SUMS-Datei enthält, die `sha256sum -c` prüft. Das Laufwerk wird nur gelesen.</translation>
    </message>
    <message>
        <source>The TeslaCam folder, or a Vault folder.</source>
        <translation>Der TeslaCam-Ordner oder ein Tresor-Ordner.</translation>
    </message>
    <message>
        <source>The file to create; in an existing folder, the suggested name is used.</source>
        <translation>Die Datei, die angelegt werden soll; bei einem vorhandenen Ordner wird der vorgeschlagene Name verwendet.</translation>
    </message>
    <message>
        <source>Makes the evidence package (ZIP) instead of the PDF alone.</source>
        <translation>Erstellt das Beweispaket (ZIP) statt nur des PDF.</translation>
    </message>
    <message>
        <source>Puts the unlock keys of an encrypted event into the package.</source>
        <translation>Legt die Entsperrschlüssel eines verschlüsselten Ereignisses mit in das Paket.</translation>
    </message>
    <message>
        <source>A Vault to compare the files with, for an event on the drive that was kept there.</source>
        <translation>Ein Tresor, mit dem die Dateien verglichen werden, für ein Ereignis auf dem Laufwerk, das dort gesichert wurde.</translation>
    </message>
    <message>
        <source>One of: km/h, mph. The default is the app&apos;s choice, else the one your locale uses.</source>
        <extracomment>km/h and mph are values typed on the command line; keep them as they are</extracomment>
        <translation>Eines von: km/h, mph. Standard ist die Wahl der App, sonst die Einheit Ihres Gebietsschemas.</translation>
    </message>
    <message>
        <source>--speed-unit takes km/h or mph.</source>
        <extracomment>km/h and mph are values typed on the command line; keep them as they are</extracomment>
        <translation>--speed-unit nimmt km/h oder mph.</translation>
    </message>
    <message>
        <source>Making the report… %1%</source>
        <extracomment>Report progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>Bericht wird erstellt… %1 %</translation>
    </message>
    <message>
        <source>The report was stopped.</source>
        <translation>Der Bericht wurde angehalten.</translation>
    </message>
    <message>
        <source>Reads a TeslaCam folder and prints what it holds as JSON.</source>
        <translation>Liest einen TeslaCam-Ordner und gibt seinen Inhalt als JSON aus.</translation>
    </message>
    <message>
        <source>Open every clip after the scan to find its health and length.</source>
        <translation>Nach dem Einlesen jeden Clip öffnen, um seinen Zustand und seine Länge zu ermitteln.</translation>
    </message>
    <message>
        <source>Seconds each clip may take to answer (default 10).</source>
        <translation>Sekunden, die jeder Clip zum Antworten haben darf (Standard 10).</translation>
    </message>
    <message>
        <source>The timeout must be a number of seconds, such as 10.</source>
        <translation>Das Zeitlimit muss eine Anzahl Sekunden sein, zum Beispiel 10.</translation>
    </message>
    <message>
        <source>The timeout applies only with --probe.</source>
        <translation>Das Zeitlimit gilt nur mit --probe.</translation>
    </message>
    <message>
        <source>Prints the driving data the car recorded with one camera&apos;s footage of an event, one row for each
frame: its time on the event&apos;s timeline and in its clip, when it was taken, and the car&apos;s speed
(metres per second), gear, accelerator, steering angle (degrees), blinkers, brake, Autopilot state,
GPS position, heading (degrees) and acceleration (metres per second squared). Cars on software
2025.44.25 or later record it. The drive is only read.</source>
        <translation>Gibt die Fahrdaten aus, die das Auto mit den Aufnahmen einer Kamera eines Ereignisses aufgezeichnet
hat, eine Zeile pro Bild: seine Zeit auf der Zeitleiste des Ereignisses und im Clip, wann es
aufgenommen wurde, und Geschwindigkeit (Meter pro Sekunde), Fahrstufe, Fahrpedal, Lenkwinkel (Grad),
Blinker, Bremse, Autopilot-Zustand, GPS-Position, Fahrtrichtung (Grad) und Beschleunigung (Meter pro
Sekunde zum Quadrat) des Autos. Autos mit Software 2025.44.25 oder neuer zeichnen sie auf. Das
Laufwerk wird nur gelesen.</translation>
    </message>
    <message>
        <source>csv, json, or gpx (the route, for a mapping tool). Default: from the output file&apos;s extension, else csv.</source>
        <extracomment>csv, json and gpx are values typed on the command line; keep them as they are</extracomment>
        <translation>csv, json oder gpx (die Route, für ein Kartenprogramm). Standard: nach der Endung der Ausgabedatei, sonst csv.</translation>
    </message>
    <message>
        <source>The file to write instead of standard output.</source>
        <translation>Die Datei, in die statt auf die Standardausgabe geschrieben wird.</translation>
    </message>
    <message>
        <source>“%1” is not a format; use csv, json or gpx.</source>
        <extracomment>%1 is the format as typed; csv, json and gpx stay as they are</extracomment>
        <translation>„%1“ ist kein Format; verwenden Sie csv, json oder gpx.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the driving data somewhere else.</source>
        <translation>Keelhold schreibt nie auf Ihr Tesla-Laufwerk, speichern Sie die Fahrdaten daher an einem anderen Ort.</translation>
    </message>
    <message>
        <source>The %1 camera has no footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>Die Kamera %1 hat in diesem Ereignis keine Aufnahmen.</translation>
    </message>
    <message>
        <source>The %1 camera&apos;s clips of this event carry no driving data: cars record it from software 2025.44.25 on, and not in every mode.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;; 2025.44.25 is a software version</extracomment>
        <translation>Die Clips der Kamera %1 in diesem Ereignis enthalten keine Fahrdaten: Autos zeichnen sie ab Software 2025.44.25 auf, und nicht in jedem Modus.</translation>
    </message>
    <message>
        <source>Could not write %1: %2.</source>
        <extracomment>%1 is a file, %2 the system&apos;s reason</extracomment>
        <translation>%1 konnte nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>The Vault has no event “%1”.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>Im Tresor gibt es kein Ereignis „%1“.</translation>
    </message>
    <message>
        <source>Moved “%1” to the Trash.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>„%1“ in den Papierkorb verschoben.</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json can&apos;t be understood, so nothing was removed.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>Die manifest.json des Tresors ist nicht lesbar, daher wurde nichts entfernt.</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json is missing, so the kept events can&apos;t be checked.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>Die manifest.json des Tresors fehlt, daher können die gesicherten Ereignisse nicht geprüft werden.</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json can&apos;t be understood, so nothing could be checked.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>Die manifest.json des Tresors ist nicht lesbar, daher konnte nichts geprüft werden.</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>vault verify: the verdict on an event whose files all match, in capitals like the others</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>DIFFERS</source>
        <extracomment>vault verify: the verdict on an event with a file changed, missing or unreadable</extracomment>
        <translation>ABWEICHEND</translation>
    </message>
    <message>
        <source>INCOMPLETE</source>
        <extracomment>vault verify: the verdict on an event that was kept only in part</extracomment>
        <translation>UNVOLLSTÄNDIG</translation>
    </message>
    <message>
        <source>%1 verified</source>
        <extracomment>vault verify: how many of an event&apos;s files matched their record</extracomment>
        <translation>%1 übereinstimmend</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <extracomment>vault verify: how many of an event&apos;s files differ from their record</extracomment>
        <translation>%1 geändert</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <extracomment>vault verify: how many of an event&apos;s files are gone</extracomment>
        <translation>%1 fehlend</translation>
    </message>
    <message>
        <source>%1 unreadable</source>
        <extracomment>vault verify: how many of an event&apos;s files couldn&apos;t be read</extracomment>
        <translation>%1 unlesbar</translation>
    </message>
    <message>
        <source>incomplete (%1 of %2 files kept)</source>
        <translation>unvollständig (%1 von %2 Dateien gesichert)</translation>
    </message>
    <message>
        <source>changed %1</source>
        <extracomment>vault verify: %1 is the name of a file that differs from its record</extracomment>
        <translation>geändert: %1</translation>
    </message>
    <message>
        <source>missing %1</source>
        <extracomment>vault verify: %1 is the name of a file that is gone</extracomment>
        <translation>fehlt: %1</translation>
    </message>
    <message>
        <source>unreadable %1</source>
        <extracomment>vault verify: %1 is the name of a file that couldn&apos;t be read</extracomment>
        <translation>unlesbar: %1</translation>
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
        <translation>Listet die in einem Tresor-Ordner gesicherten Ereignisse auf, entfernt sie oder prüft sie erneut.
verify liest jede Datei, die manifest.json aufführt, erneut ein und beurteilt sie nach dem neuesten Eintrag, der sie aufführt, vermerkt das Datum in der .keelhold-verified.json des Tresors und endet mit 1, wenn eine Datei abweicht oder fehlt oder ein Ereignis nur teilweise gesichert wurde.</translation>
    </message>
    <message>
        <source>list, remove or verify.</source>
        <extracomment>list, remove and verify are typed on the command line; keep them as they are</extracomment>
        <translation>list, remove oder verify.</translation>
    </message>
    <message>
        <source>Nothing was kept</source>
        <translation>Nichts wurde gesichert</translation>
    </message>
    <message>
        <source>Keeps what is new from every TeslaCam drive that is connected, now and until stopped: Sentry and saved events, and recent driving with --recent, each file checked as it is copied. Prints one line for each drive it kept from, and tells the desktop when it is done. Stop it with Ctrl-C; a keep in progress ends cleanly first.</source>
        <translation>Sichert das Neue von jedem angeschlossenen TeslaCam-Laufwerk, jetzt und bis zum Anhalten: Wächter- und gespeicherte Ereignisse, mit --recent auch die letzten Fahrten, jede Datei beim Kopieren geprüft. Gibt eine Zeile für jedes Laufwerk aus, von dem gesichert wurde, und meldet dem Desktop, wenn es fertig ist. Anhalten mit Ctrl-C; ein laufender Sicherungsvorgang wird vorher sauber abgeschlossen.</translation>
    </message>
    <message>
        <source>The Vault folder (the one chosen in Keelhold when not given).</source>
        <translation>Der Tresor-Ordner (ohne Angabe: der in Keelhold gewählte).</translation>
    </message>
    <message>
        <source>Keep recent driving too, each minute once.</source>
        <translation>Auch die letzten Fahrten sichern, jede Minute einmal.</translation>
    </message>
    <message>
        <source>Watch only drives mounted at or below this folder (repeat for more; the default is /media, /run/media and /mnt).</source>
        <translation>Nur Laufwerke beobachten, die in oder unterhalb dieses Ordners eingebunden sind (für weitere wiederholen; Standard ist /media, /run/media und /mnt).</translation>
    </message>
    <message>
        <source>No Vault folder is chosen yet. Choose one in Keelhold, or give one with --vault.</source>
        <translation>Es ist noch kein Tresor-Ordner gewählt. Wählen Sie einen in Keelhold, oder geben Sie einen mit --vault an.</translation>
    </message>
    <message>
        <source>Watching for TeslaCam drives; new footage goes to %1. Ctrl-C stops.</source>
        <translation>Warte auf TeslaCam-Laufwerke; neue Aufnahmen kommen nach %1. Ctrl-C hält an.</translation>
    </message>
</context>
<context>
    <name>CombinedExport</name>
    <message>
        <source>There is already a file at “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>Unter „%1“ gibt es bereits eine Datei.</translation>
    </message>
    <message>
        <source>None of this event&apos;s cameras has playable footage.</source>
        <translation>Keine Kamera dieses Ereignisses hat abspielbare Aufnahmen.</translation>
    </message>
    <message>
        <source>The folder “%1” doesn&apos;t exist.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>Der Ordner „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>The chosen stretch lies outside this event&apos;s footage.</source>
        <translation>Der gewählte Abschnitt liegt außerhalb der Aufnahmen dieses Ereignisses.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be given its name “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>Der Film konnte nicht „%1“ benannt werden.</translation>
    </message>
</context>
<context>
    <name>CombinedRender</name>
    <message>
        <source>The movie couldn&apos;t be written.</source>
        <translation>Der Film konnte nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>CompositeGraph</name>
    <message>
        <source>The movie&apos;s pictures couldn&apos;t be put together (%1).</source>
        <extracomment>%1 is the step that failed, e.g. &quot;stacking&quot;</extracomment>
        <translation>Die Bilder des Films konnten nicht zusammengesetzt werden (%1).</translation>
    </message>
    <message>
        <source>The movie&apos;s pictures couldn&apos;t be put together (%1: %2).</source>
        <extracomment>%1 is the step that failed, e.g. &quot;stacking&quot;; %2 the video library&apos;s reason</extracomment>
        <translation>Die Bilder des Films konnten nicht zusammengesetzt werden (%1: %2).</translation>
    </message>
    <message>
        <source>no %1 filter</source>
        <extracomment>Step of putting a movie&apos;s pictures together: %1 is a video filter&apos;s name</extracomment>
        <translation>kein Filter %1</translation>
    </message>
    <message>
        <source>linking %1</source>
        <extracomment>Step of putting a movie&apos;s pictures together: %1 is a video filter&apos;s name</extracomment>
        <translation>Verbinden von %1</translation>
    </message>
    <message>
        <source>configuring</source>
        <extracomment>Step of putting a movie&apos;s pictures together: setting up the video filters</extracomment>
        <translation>Einrichten</translation>
    </message>
    <message>
        <source>memory</source>
        <extracomment>Step of putting a movie&apos;s pictures together: getting memory</extracomment>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>drawing a name</source>
        <extracomment>Step of putting a movie&apos;s pictures together: drawing words on a picture</extracomment>
        <translation>Zeichnen eines Namens</translation>
    </message>
    <message>
        <source>no cameras</source>
        <extracomment>Step of putting a movie&apos;s pictures together: there were no cameras to show</extracomment>
        <translation>keine Kameras</translation>
    </message>
    <message>
        <source>unknown picture format</source>
        <extracomment>Step of putting a movie&apos;s pictures together: a camera&apos;s picture format was not known</extracomment>
        <translation>unbekanntes Bildformat</translation>
    </message>
    <message>
        <source>adding a picture</source>
        <extracomment>Step of putting a movie&apos;s pictures together: adding a camera&apos;s picture</extracomment>
        <translation>Hinzufügen eines Bildes</translation>
    </message>
    <message>
        <source>ending</source>
        <extracomment>Step of putting a movie&apos;s pictures together: ending the movie</extracomment>
        <translation>Abschließen</translation>
    </message>
    <message>
        <source>stacking</source>
        <extracomment>Step of putting a movie&apos;s pictures together: putting the cameras side by side</extracomment>
        <translation>Anordnen</translation>
    </message>
    <message>
        <source>drawing the time</source>
        <extracomment>Step of putting a movie&apos;s pictures together: drawing the date and time</extracomment>
        <translation>Zeichnen der Uhrzeit</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Tesla Footage Viewer</source>
        <translation>Betrachter für Tesla-Aufnahmen</translation>
    </message>
    <message>
        <source>Review the footage your Tesla recorded and keep what matters</source>
        <translation>Aufnahmen Ihres Tesla ansehen und sichern, was wichtig ist</translation>
    </message>
    <message>
        <source>Tesla;TeslaCam;Sentry;Dashcam;Dashboard camera;USB;Vault;</source>
        <extracomment>Search words for the desktop&apos;s menu, each ending in a semicolon; keep the English ones and add your language&apos;s</extracomment>
        <translation>Tesla;TeslaCam;Sentry;Dashcam;Dashboard camera;USB;Vault;Wächter-Modus;Wächter;Kamera;Aufnahmen;Video;Tresor;Sichern;</translation>
    </message>
    <message>
        <source>Review and keep your Tesla&apos;s camera footage</source>
        <translation>Die Kameraaufnahmen Ihres Tesla ansehen und sichern</translation>
    </message>
</context>
<context>
    <name>DesktopNotices</name>
    <message>
        <source>your drive</source>
        <comment>a keep&apos;s drive without a name</comment>
        <translation>Ihr Laufwerk</translation>
    </message>
    <message numerus="yes">
        <source>%n Sentry events not kept yet</source>
        <translation>
            <numerusform>%n Wächter-Ereignis noch nicht gesichert</numerusform>
            <numerusform>%n Wächter-Ereignisse noch nicht gesichert</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is connected with Sentry events that aren&apos;t in your Vault.</source>
        <translation>%1 ist angeschlossen und enthält Wächter-Ereignisse, die nicht in Ihrem Tresor sind.</translation>
    </message>
</context>
<context>
    <name>DesktopNotifier</name>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
</context>
<context>
    <name>DriveBoundary</name>
    <message>
        <source>Keelhold never writes to your Tesla drive, so your Vault has to be a folder somewhere else.</source>
        <translation>Keelhold schreibt nie auf Ihr Tesla-Laufwerk, daher muss Ihr Tresor ein Ordner an einem anderen Ort sein.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the movie somewhere else.</source>
        <translation>Keelhold schreibt nie auf Ihr Tesla-Laufwerk, speichern Sie den Film daher an einem anderen Ort.</translation>
    </message>
</context>
<context>
    <name>DriveSession</name>
    <message>
        <source>Getting started…</source>
        <translation>Wird gestartet…</translation>
    </message>
    <message>
        <source>Loading sample footage…</source>
        <translation>Beispielaufnahmen werden geladen…</translation>
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
        <translation>Lenkung %1</translation>
    </message>
    <message>
        <source>BRAKE</source>
        <extracomment>Word on the brake lamp of the driving data drawn over an exported movie; keep it short</extracomment>
        <translation>BREMSE</translation>
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
        <translation>Verkehrsadaptiver Tempomat</translation>
    </message>
    <message>
        <source>Self-driving</source>
        <extracomment>Driver assistance engaged: Full Self-Driving</extracomment>
        <translation>FSD</translation>
    </message>
    <message>
        <source>N</source>
        <extracomment>Compass point abbreviation: north</extracomment>
        <translation>N</translation>
    </message>
    <message>
        <source>NE</source>
        <extracomment>Compass point abbreviation: north-east</extracomment>
        <translation>NO</translation>
    </message>
    <message>
        <source>E</source>
        <extracomment>Compass point abbreviation: east</extracomment>
        <translation>O</translation>
    </message>
    <message>
        <source>SE</source>
        <extracomment>Compass point abbreviation: south-east</extracomment>
        <translation>SO</translation>
    </message>
    <message>
        <source>S</source>
        <extracomment>Compass point abbreviation: south</extracomment>
        <translation>S</translation>
    </message>
    <message>
        <source>SW</source>
        <extracomment>Compass point abbreviation: south-west</extracomment>
        <translation>SW</translation>
    </message>
    <message>
        <source>W</source>
        <extracomment>Compass point abbreviation: west</extracomment>
        <translation>W</translation>
    </message>
    <message>
        <source>NW</source>
        <extracomment>Compass point abbreviation: north-west</extracomment>
        <translation>NW</translation>
    </message>
    <message>
        <source>%1 %2°</source>
        <extracomment>Heading of the car: %1 is a compass point (e.g. NE), %2 whole degrees</extracomment>
        <translation>%1 %2°</translation>
    </message>
    <message>
        <source>%1° right</source>
        <extracomment>Steering wheel angle in whole degrees, turned to the right</extracomment>
        <translation>%1° rechts</translation>
    </message>
    <message>
        <source>%1° left</source>
        <extracomment>Steering wheel angle in whole degrees, turned to the left</extracomment>
        <translation>%1° links</translation>
    </message>
</context>
<context>
    <name>EventKind</name>
    <message>
        <source>Sentry</source>
        <extracomment>Kind of event: footage Sentry Mode kept while the car was parked</extracomment>
        <translation>Wächter</translation>
    </message>
    <message>
        <source>Saved</source>
        <extracomment>Kind of event: footage the driver saved (button or honk)</extracomment>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Recent Driving</source>
        <extracomment>Kind of event: the car&apos;s rolling recording of the last hour of driving</extracomment>
        <translation>Letzte Fahrten</translation>
    </message>
</context>
<context>
    <name>EventMapPresenter</name>
    <message>
        <source>All located events</source>
        <extracomment>Heading in the map&apos;s list over the events with a place</extracomment>
        <translation>Alle Ereignisse mit Ort</translation>
    </message>
    <message>
        <source>No location recorded</source>
        <extracomment>Heading in the map&apos;s list over the events without a place</extracomment>
        <translation>Kein Ort aufgezeichnet</translation>
    </message>
    <message>
        <source>No events have a location yet</source>
        <translation>Noch keine Ereignisse mit Ort</translation>
    </message>
    <message>
        <source>Your car only records a location for some events. Once you have events with a place attached, they&apos;ll appear here as pins.</source>
        <translation>Ihr Auto zeichnet nur bei manchen Ereignissen einen Ort auf. Sobald Sie Ereignisse mit Ortsangabe haben, erscheinen sie hier als Stecknadeln.</translation>
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
        <translation>Koordinaten, wie Ihr Auto sie aufgezeichnet hat — nützlich für eine Meldung an Versicherung oder Polizei.</translation>
    </message>
    <message>
        <source>Archived %1 from %2</source>
        <extracomment>%1 is when the event was kept, %2 the name of the drive it came from</extracomment>
        <translation>Gesichert am %1 von %2</translation>
    </message>
    <message>
        <source>Loading cameras…</source>
        <translation>Kameras werden geladen…</translation>
    </message>
    <message>
        <source>No playable footage for this event</source>
        <translation>Keine abspielbaren Aufnahmen für dieses Ereignis</translation>
    </message>
    <message>
        <source>None of this event&apos;s camera angles could be read. The files are still safely on your drive — this can happen with a failing drive or a corrupted minute.</source>
        <translation>Keine der Kameraperspektiven dieses Ereignisses konnte gelesen werden. Die Dateien liegen weiterhin sicher auf Ihrem Laufwerk — das kann bei einem ausfallenden Laufwerk oder einer beschädigten Minute vorkommen.</translation>
    </message>
    <message>
        <source>Step back 5 seconds. (Left Arrow)</source>
        <translation>5 Sekunden zurück. (Pfeil links)</translation>
    </message>
    <message>
        <source>Step forward 5 seconds. (Right Arrow)</source>
        <translation>5 Sekunden vor. (Pfeil rechts)</translation>
    </message>
    <message>
        <source>Step back one frame. (,)</source>
        <translation>Ein Bild zurück. (,)</translation>
    </message>
    <message>
        <source>Step forward one frame. (.)</source>
        <translation>Ein Bild vor. (.)</translation>
    </message>
    <message>
        <source>Play or pause all cameras together, perfectly in sync. (Space)</source>
        <translation>Alle Kameras gemeinsam abspielen oder anhalten, genau synchron. (Leertaste)</translation>
    </message>
    <message>
        <source>Moment</source>
        <extracomment>Button: jump to the moment the event happened</extracomment>
        <translation>Moment</translation>
    </message>
    <message>
        <source>Jump to just before the moment it happened — the honk, bump, or detection. (M)</source>
        <translation>Zu kurz vor dem Moment springen, in dem es passiert ist — dem Hupen, dem Stoß oder der Erkennung. (M)</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>Label of the playback speed picker</extracomment>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Playback speed, from half speed to 4×.</source>
        <translation>Wiedergabetempo, von halber Geschwindigkeit bis 4×.</translation>
    </message>
    <message>
        <source>Show All Cameras</source>
        <translation>Alle Kameras zeigen</translation>
    </message>
    <message>
        <source>Return to the full camera grid.</source>
        <translation>Zurück zum Raster mit allen Kameras.</translation>
    </message>
    <message>
        <source>Drag to jump to any moment. Every camera stays in sync.</source>
        <translation>Ziehen, um zu einem beliebigen Moment zu springen. Alle Kameras bleiben synchron.</translation>
    </message>
    <message>
        <source>Playback position</source>
        <translation>Wiedergabeposition</translation>
    </message>
    <message>
        <source>Keep a safe copy on this %1</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Eine sichere Kopie auf diesem %1 anlegen</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Button that keeps the event in the Vault</extracomment>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Copies this footage to your Vault and verifies it matches byte-for-byte. Nothing on your drive is ever changed or deleted. (K)</source>
        <translation>Kopiert diese Aufnahmen in Ihren Tresor und prüft, ob sie Byte für Byte übereinstimmen. Auf Ihrem Laufwerk wird nie etwas geändert oder gelöscht. (K)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Button that hides the event from the list</extracomment>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Hide this from your inbox. This never deletes anything from your drive or Vault. (D)</source>
        <translation>Aus Ihrer Ereignisliste ausblenden. Dabei wird nie etwas von Ihrem Laufwerk oder aus Ihrem Tresor gelöscht. (D)</translation>
    </message>
    <message>
        <source>Export &amp; Share</source>
        <translation>Exportieren &amp; Teilen</translation>
    </message>
    <message>
        <source>Save one camera&apos;s footage as its own file and hand it off by email, or save it to a folder.</source>
        <translation>Die Aufnahmen einer Kamera als eigene Datei speichern und per E-Mail weitergeben oder in einem Ordner speichern.</translation>
    </message>
    <message>
        <source>Fill the window with just the cameras. (F, Esc to go back)</source>
        <translation>Das Fenster nur mit den Kameras füllen. (F, Esc für zurück)</translation>
    </message>
    <message>
        <source>Verified copy</source>
        <translation>Geprüfte Kopie</translation>
    </message>
    <message>
        <source>This copy was checked byte-for-byte against your drive when it was archived. Tap for the technical detail.</source>
        <translation>Diese Kopie wurde beim Sichern Byte für Byte mit Ihrem Laufwerk verglichen. Klicken Sie für die technischen Details.</translation>
    </message>
    <message>
        <source>Faithful Copy</source>
        <translation>Originalgetreue Kopie</translation>
    </message>
    <message>
        <source>Every file below was copied and its checksum (SHA-256) was compared to the original on your drive at the time — a faithful, unaltered copy. This is a technical integrity check, not a legal certification.</source>
        <translation>Jede der folgenden Dateien wurde kopiert, und ihre Prüfsumme (SHA-256) wurde damals mit dem Original auf Ihrem Laufwerk verglichen — eine originalgetreue, unveränderte Kopie. Dies ist eine technische Integritätsprüfung, keine rechtliche Beglaubigung.</translation>
    </message>
    <message>
        <source>Export finished</source>
        <translation>Export abgeschlossen</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <extracomment>%1 is the file&apos;s name</extracomment>
        <translation>%1 ist fertig.</translation>
    </message>
    <message>
        <source>Export didn&apos;t finish</source>
        <translation>Export nicht abgeschlossen</translation>
    </message>
</context>
<context>
    <name>EventTimeline</name>
    <message>
        <source>Unlock to watch</source>
        <extracomment>On a camera&apos;s tile: encrypted footage that needs its keys first</extracomment>
        <translation>Zum Ansehen entsperren</translation>
    </message>
    <message>
        <source>This angle didn&apos;t record properly — a known Tesla drive issue.</source>
        <extracomment>On a camera&apos;s tile: its footage is damaged</extracomment>
        <translation>Diese Perspektive wurde nicht richtig aufgezeichnet — ein bekanntes Problem mit Tesla-Laufwerken.</translation>
    </message>
    <message>
        <source>No footage this minute.</source>
        <extracomment>On a camera&apos;s tile: the car wrote nothing for this camera at this time</extracomment>
        <translation>Keine Aufnahmen in dieser Minute.</translation>
    </message>
</context>
<context>
    <name>EvidencePackage</name>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it is no longer there.</source>
        <translation>%1 konnte nicht vom Laufwerk gelesen werden — die Datei ist nicht mehr da.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it isn&apos;t an ordinary file.</source>
        <translation>%1 konnte nicht vom Laufwerk gelesen werden — es ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — the system refused to open it.</source>
        <translation>%1 konnte nicht vom Laufwerk gelesen werden — das System hat das Öffnen verweigert.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — the drive reported an error.</source>
        <translation>%1 konnte nicht vom Laufwerk gelesen werden — das Laufwerk hat einen Fehler gemeldet.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — the disk is full.</source>
        <translation>Das Paket konnte dort nicht geschrieben werden — der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — that folder can&apos;t be written to.</source>
        <translation>Das Paket konnte dort nicht geschrieben werden — in diesen Ordner kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — that folder doesn&apos;t exist.</source>
        <translation>Das Paket konnte dort nicht geschrieben werden — dieser Ordner existiert nicht.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — a folder already has that name.</source>
        <translation>Das Paket konnte dort nicht geschrieben werden — ein Ordner hat bereits diesen Namen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — the disk reported an error.</source>
        <translation>Das Paket konnte dort nicht geschrieben werden — der Datenträger hat einen Fehler gemeldet.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it stopped answering.</source>
        <translation>%1 konnte nicht vom Laufwerk gelesen werden — es hat nicht mehr geantwortet.</translation>
    </message>
    <message>
        <source>%1 changed while the package was being made — the package was not made.</source>
        <translation>%1 hat sich geändert, während das Paket erstellt wurde — das Paket wurde nicht erstellt.</translation>
    </message>
    <message>
        <source>%1 changed since the report was made — the package was not made.</source>
        <translation>%1 hat sich geändert, seit der Bericht erstellt wurde — das Paket wurde nicht erstellt.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the package somewhere else.</source>
        <translation>Keelhold schreibt nie auf Ihr Tesla-Laufwerk, speichern Sie das Paket daher an einem anderen Ort.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be a name inside the package — the package was not made.</source>
        <translation>%1 kann kein Name innerhalb des Pakets sein — das Paket wurde nicht erstellt.</translation>
    </message>
</context>
<context>
    <name>ExportError</name>
    <message>
        <source>Unknown export failure.</source>
        <translation>Unbekannter Fehler beim Export.</translation>
    </message>
    <message>
        <source>There is no playable footage from this camera in this event.</source>
        <translation>Von dieser Kamera gibt es in diesem Ereignis keine abspielbaren Aufnahmen.</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be put together into one movie.</source>
        <translation>Die Aufnahmen konnten nicht zu einem Film zusammengefügt werden.</translation>
    </message>
    <message>
        <source>This footage can&apos;t be written as an MP4 movie with the video tools on this computer.</source>
        <translation>Diese Aufnahmen können mit den Videowerkzeugen auf diesem Computer nicht als MP4-Film geschrieben werden.</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>Der Export wurde angehalten.</translation>
    </message>
</context>
<context>
    <name>ExportFlow</name>
    <message>
        <source>Put together what an insurer, the police or a lawyer asks for: when and where it happened, what each camera saw, how the car was driven, and every original file with a way to check it.</source>
        <translation>Stellen Sie zusammen, was eine Versicherung, die Polizei oder ein Anwalt verlangt: wann und wo es passiert ist, was jede Kamera gesehen hat, wie das Auto gefahren wurde, und jede Originaldatei mit einer Möglichkeit, sie zu prüfen.</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>noch wenige Sekunden</translation>
    </message>
    <message numerus="yes">
        <source>about %n seconds left</source>
        <translation>
            <numerusform>noch etwa %n Sekunde</numerusform>
            <numerusform>noch etwa %n Sekunden</numerusform>
        </translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>noch etwa eine Minute</translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes left</source>
        <translation>
            <numerusform>noch etwa %n Minute</numerusform>
            <numerusform>noch etwa %n Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <extracomment>%1 is a number of hours with one decimal, e.g. 1.5</extracomment>
        <translation>noch etwa %1 Stunden</translation>
    </message>
    <message>
        <source>%1 of %2 frames</source>
        <translation>%1 von %2 Bildern</translation>
    </message>
    <message>
        <source>%1× real time</source>
        <extracomment>How fast the movie is made: 1.8× real time</extracomment>
        <translation>%1× Echtzeit</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <extracomment>%1 is the exported file&apos;s name</extracomment>
        <translation>Fertig: %1</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <extracomment>%1 is the saved file&apos;s name</extracomment>
        <translation>Gespeichert als %1</translation>
    </message>
    <message>
        <source>Camera</source>
        <extracomment>Label of the camera picker</extracomment>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Export as</source>
        <translation>Exportieren als</translation>
    </message>
    <message>
        <source>One camera (original quality)</source>
        <translation>Eine Kamera (Originalqualität)</translation>
    </message>
    <message>
        <source>Grid of every camera</source>
        <translation>Alle Kameras im Raster</translation>
    </message>
    <message>
        <source>Front and sides</source>
        <translation>Vorne und seitlich</translation>
    </message>
    <message>
        <source>One camera with overlay</source>
        <translation>Eine Kamera mit Einblendungen</translation>
    </message>
    <message>
        <source>Show</source>
        <extracomment>Label over the overlay choices: which details the movie shows over the video</extracomment>
        <translation>Einblenden</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Camera names</source>
        <translation>Kameranamen</translation>
    </message>
    <message>
        <source>Reason and place</source>
        <translation>Grund und Ort</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Fahrdaten</translation>
    </message>
    <message>
        <source>No driving data in these clips</source>
        <translation>Keine Fahrdaten in diesen Clips</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Label over the movie&apos;s picture size choices</extracomment>
        <translation>Größe</translation>
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
        <translation>Volle Auflösung</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>Label over the choices of which part of the event to export</extracomment>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Whole event</source>
        <translation>Ganzes Ereignis</translation>
    </message>
    <message>
        <source>From the moment</source>
        <translation>Rund um den Moment</translation>
    </message>
    <message>
        <source>From 10 seconds before the moment it happened to 20 seconds after.</source>
        <translation>Von 10 Sekunden vor dem Moment, in dem es passiert ist, bis 20 Sekunden danach.</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>A part of the event the user sets by start and end</extracomment>
        <translation>Eigener Bereich</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>Von</translation>
    </message>
    <message>
        <source>to</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>bis</translation>
    </message>
    <message>
        <source>into the event</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>im Ereignis</translation>
    </message>
    <message>
        <source>The end has to come after the start.</source>
        <translation>Das Ende muss nach dem Anfang liegen.</translation>
    </message>
    <message>
        <source>Finishing the file…</source>
        <translation>Datei wird abgeschlossen…</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>Saving a copy…</source>
        <translation>Kopie wird gespeichert…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>Button that starts the export</extracomment>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>Button that stops a running export</extracomment>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the finished export dialog</extracomment>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Opens the folder that holds the file, with the file selected.</source>
        <translation>Öffnet den Ordner, der die Datei enthält, mit ausgewählter Datei.</translation>
    </message>
    <message>
        <source>Email…</source>
        <translation>E-Mail…</translation>
    </message>
    <message>
        <source>Starts a new email with the file attached.</source>
        <translation>Beginnt eine neue E-Mail mit der Datei im Anhang.</translation>
    </message>
    <message>
        <source>Save to…</source>
        <translation>Speichern unter…</translation>
    </message>
    <message>
        <source>Choose exactly where on your %1 to save this file.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Wählen Sie genau, wo auf Ihrem %1 diese Datei gespeichert werden soll.</translation>
    </message>
    <message>
        <source>MPEG-4 movie (*.mp4)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.mp4)&quot; as it is</extracomment>
        <translation>MPEG-4-Film (*.mp4)</translation>
    </message>
    <message>
        <source>Incident Report (PDF)</source>
        <translation>Vorfallbericht (PDF)</translation>
    </message>
    <message>
        <source>Evidence Package (ZIP)</source>
        <translation>Beweispaket (ZIP)</translation>
    </message>
    <message>
        <source>When and where, each camera at the moment, the driving data, and every original file with its SHA-256, ready for an insurer or the police.</source>
        <translation>Wann und wo, jede Kamera im Moment des Ereignisses, die Fahrdaten und jede Originaldatei mit ihrer SHA-256, bereit für eine Versicherung oder die Polizei.</translation>
    </message>
    <message>
        <source>The report, every original file exactly as the car wrote it, and a SHA256SUMS file anyone can check them with, in one ZIP.</source>
        <extracomment>SHA256SUMS is a file name; keep it as it is</extracomment>
        <translation>Der Bericht, jede Originaldatei genau so, wie das Auto sie geschrieben hat, und eine SHA256SUMS-Datei, mit der jeder sie prüfen kann, in einer ZIP-Datei.</translation>
    </message>
    <message>
        <source>Include unlock keys</source>
        <translation>Entsperrschlüssel beilegen</translation>
    </message>
    <message>
        <source>Lets whoever receives the package play the encrypted footage. Anyone with the keys can watch it.</source>
        <translation>Damit kann, wer das Paket erhält, die verschlüsselten Aufnahmen abspielen. Jeder mit den Schlüsseln kann sie ansehen.</translation>
    </message>
    <message>
        <source>Making the report…</source>
        <translation>Bericht wird erstellt…</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.pdf)&quot; as it is</extracomment>
        <translation>PDF-Dokument (*.pdf)</translation>
    </message>
    <message>
        <source>ZIP archive (*.zip)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.zip)&quot; as it is</extracomment>
        <translation>ZIP-Archiv (*.zip)</translation>
    </message>
    <message>
        <source>Export &amp; Share</source>
        <translation>Exportieren &amp; Teilen</translation>
    </message>
    <message>
        <source>Save this event as its own video file, ready to send to an insurer, police, or anyone else who needs it: one camera exactly as recorded, or every camera in one movie.</source>
        <translation>Speichern Sie dieses Ereignis als eigene Videodatei, bereit zum Versand an eine Versicherung, die Polizei oder alle anderen, die es brauchen: eine Kamera genau wie aufgezeichnet, oder alle Kameras in einem Film.</translation>
    </message>
    <message>
        <source>This couldn&apos;t be exported right now. Your original footage on the drive is untouched — you can try again.</source>
        <translation>Dies konnte gerade nicht exportiert werden. Ihre Originalaufnahmen auf dem Laufwerk sind unberührt — Sie können es erneut versuchen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t save there — try a different folder.</source>
        <translation>Dort konnte nicht gespeichert werden — versuchen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Stops the export. Your original footage is untouched either way.</source>
        <translation>Hält den Export an. Ihre Originalaufnahmen bleiben in jedem Fall unberührt.</translation>
    </message>
</context>
<context>
    <name>ExportSession</name>
    <message>
        <source>The movie couldn&apos;t be written.</source>
        <translation>Der Film konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>There wasn&apos;t enough memory to export the footage.</source>
        <translation>Es war nicht genug Arbeitsspeicher vorhanden, um die Aufnahmen zu exportieren.</translation>
    </message>
</context>
<context>
    <name>Exporter</name>
    <message>
        <source>The chosen stretch lies outside this camera&apos;s footage.</source>
        <translation>Der gewählte Abschnitt liegt außerhalb der Aufnahmen dieser Kamera.</translation>
    </message>
    <message>
        <source>This camera&apos;s clips are too damaged to make a movie that keeps its own timing.</source>
        <translation>Die Clips dieser Kamera sind zu stark beschädigt, um einen Film mit ihrem eigenen Zeitablauf zu erstellen.</translation>
    </message>
</context>
<context>
    <name>FailureScreens</name>
    <message>
        <source>Choose a Different Drive</source>
        <translation>Anderes Laufwerk wählen</translation>
    </message>
    <message>
        <source>Tesla dashcam and Sentry footage always lives in a folder named &quot;TeslaCam&quot; at the top level of the drive. If this is the right drive, make sure Dashcam Recording is turned on in your car&apos;s settings.</source>
        <extracomment>&quot;Dashcam Recording&quot; is the car&apos;s setting, as named on its touchscreen</extracomment>
        <translation>Die Dashcam- und Wächter-Aufnahmen von Tesla liegen immer in einem Ordner namens „TeslaCam“ auf der obersten Ebene des Laufwerks. Wenn dies das richtige Laufwerk ist, prüfen Sie, ob „Dashcam“ in den Einstellungen Ihres Autos eingeschaltet ist.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; doesn&apos;t have a TeslaCam folder on it, so it may not be the drive from your car.</source>
        <extracomment>%1 is the drive&apos;s name</extracomment>
        <translation>„%1“ hat keinen TeslaCam-Ordner, daher ist es möglicherweise nicht das Laufwerk aus Ihrem Auto.</translation>
    </message>
    <message>
        <source>We couldn&apos;t find a TeslaCam folder</source>
        <translation>Wir haben keinen TeslaCam-Ordner gefunden</translation>
    </message>
    <message>
        <source>Your car needs a drive formatted as exFAT (or FAT32 for smaller drives), and this one is %1. Back up anything important from it first, then reformat it using %2 (choose &quot;ExFAT&quot;) and reinsert it into your car so it can start recording.</source>
        <extracomment>%1 is the drive&apos;s format (e.g. NTFS), %2 a program that formats drives, e.g. &quot;a disk utility such as Disks&quot;. &quot;ExFAT&quot; is the choice as the program names it</extracomment>
        <translation>Ihr Auto braucht ein Laufwerk im Format exFAT (oder FAT32 bei kleineren Laufwerken), und dieses hat das Format %1. Kopieren Sie zuerst alles Wichtige davon an einen anderen Ort, formatieren Sie es dann mit %2 neu (wählen Sie „ExFAT“) und stecken Sie es wieder in Ihr Auto, damit es aufzeichnen kann.</translation>
    </message>
    <message>
        <source>This drive needs to be reformatted</source>
        <translation>Dieses Laufwerk muss neu formatiert werden</translation>
    </message>
    <message>
        <source>We need you to point us back to your Tesla drive</source>
        <translation>Bitte zeigen Sie uns Ihr Tesla-Laufwerk noch einmal</translation>
    </message>
    <message>
        <source>%1 asks apps to re-confirm folder access sometimes — for example after a drive is renamed or unplugged and replugged. Nothing is wrong and nothing was lost; just pick the Tesla drive again and everything will pick up where it left off.</source>
        <extracomment>%1 is the operating system, e.g. &quot;Your system&quot;</extracomment>
        <translation>%1 verlangt von Apps manchmal, den Zugriff auf Ordner erneut zu bestätigen — zum Beispiel, nachdem ein Laufwerk umbenannt oder aus- und wieder eingesteckt wurde. Es ist nichts kaputt und nichts verloren; wählen Sie einfach das Tesla-Laufwerk erneut, und alles geht dort weiter, wo es aufgehört hat.</translation>
    </message>
    <message>
        <source>Choose Tesla drive</source>
        <translation>Tesla-Laufwerk wählen</translation>
    </message>
    <message>
        <source>We need you to point us back to your Vault folder</source>
        <translation>Bitte zeigen Sie uns Ihren Tresor-Ordner noch einmal</translation>
    </message>
    <message>
        <source>%1 asks apps to re-confirm folder access sometimes — for example after a drive is renamed or unplugged and replugged. Nothing is wrong and nothing was lost; just pick the Vault folder again and everything will pick up where it left off.</source>
        <extracomment>%1 is the operating system, e.g. &quot;Your system&quot;</extracomment>
        <translation>%1 verlangt von Apps manchmal, den Zugriff auf Ordner erneut zu bestätigen — zum Beispiel, nachdem ein Laufwerk umbenannt oder aus- und wieder eingesteckt wurde. Es ist nichts kaputt und nichts verloren; wählen Sie einfach den Tresor-Ordner erneut, und alles geht dort weiter, wo es aufgehört hat.</translation>
    </message>
    <message>
        <source>Choose Vault folder</source>
        <translation>Tresor-Ordner wählen</translation>
    </message>
    <message>
        <source>This drive doesn&apos;t have any footage yet</source>
        <translation>Auf diesem Laufwerk sind noch keine Aufnahmen</translation>
    </message>
    <message>
        <source>We found a TeslaCam folder, but there&apos;s nothing in it yet. Your car saves footage here as you drive and while it&apos;s parked with Sentry Mode on — check back after your next drive.</source>
        <translation>Wir haben einen TeslaCam-Ordner gefunden, aber er ist noch leer. Ihr Auto speichert hier Aufnahmen, während Sie fahren und während es mit eingeschaltetem Wächter-Modus parkt — sehen Sie nach Ihrer nächsten Fahrt wieder nach.</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt dashcam clips so only your Tesla account can view them. This isn&apos;t damage or an error — Keelhold still safely backs these files up exactly as they are, and encrypted clips can be watched anytime at %1. Want future footage to play right here? There&apos;s a 30-second setting in your car.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Neuere Tesla-Software kann Dashcam-Clips verschlüsseln, sodass nur Ihr Tesla-Konto sie ansehen kann. Das ist weder eine Beschädigung noch ein Fehler — Keelhold sichert diese Dateien trotzdem genau so, wie sie sind, und verschlüsselte Clips können Sie jederzeit unter %1 ansehen. Sollen künftige Aufnahmen direkt hier abgespielt werden? Dafür gibt es in Ihrem Auto eine Einstellung, die 30 Sekunden dauert.</translation>
    </message>
    <message>
        <source>Your car is encrypting this footage</source>
        <translation>Ihr Auto verschlüsselt diese Aufnahmen</translation>
    </message>
    <message>
        <source>Show Me the 30-Second Fix</source>
        <translation>Die 30-Sekunden-Lösung zeigen</translation>
    </message>
    <message>
        <source>Your drive was disconnected</source>
        <translation>Ihr Laufwerk wurde getrennt</translation>
    </message>
    <message>
        <source>No problem — nothing was lost. Whatever was in progress is paused and will pick back up right where it left off as soon as you plug the drive back in.</source>
        <translation>Kein Problem — nichts ist verloren. Was gerade lief, ist pausiert und geht genau dort weiter, wo es aufgehört hat, sobald Sie das Laufwerk wieder einstecken.</translation>
    </message>
</context>
<context>
    <name>FileHandOff</name>
    <message>
        <source>Show the file in its folder, or attach it to a new email.</source>
        <translation>Die Datei in ihrem Ordner zeigen oder an eine neue E-Mail anhängen.</translation>
    </message>
</context>
<context>
    <name>H264Encoder</name>
    <message>
        <source>There wasn&apos;t enough memory to export the footage.</source>
        <translation>Es war nicht genug Arbeitsspeicher vorhanden, um die Aufnahmen zu exportieren.</translation>
    </message>
    <message>
        <source>The movie&apos;s video encoder couldn&apos;t be started: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>Der Video-Encoder des Films konnte nicht gestartet werden: %1.</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be encoded: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>Die Aufnahmen konnten nicht codiert werden: %1.</translation>
    </message>
</context>
<context>
    <name>HardMoment</name>
    <message>
        <source>Hard braking</source>
        <translation>Starkes Bremsen</translation>
    </message>
    <message>
        <source>Swerve</source>
        <translation>Ausweichen</translation>
    </message>
    <message>
        <source>Sudden stop</source>
        <translation>Plötzlicher Halt</translation>
    </message>
    <message>
        <source>Emergency braking</source>
        <translation>Notbremsung</translation>
    </message>
    <message>
        <source>Self-Driving off</source>
        <translation>FSD aus</translation>
    </message>
    <message>
        <source>Cruise control off</source>
        <translation>Tempomat aus</translation>
    </message>
    <message>
        <source>Autosteer off</source>
        <translation>Autolenkung aus</translation>
    </message>
</context>
<context>
    <name>HealthComputer</name>
    <message>
        <source>These clips are in a folder on this %1, not on your car&apos;s drive, so there&apos;s nothing to reformat.</source>
        <extracomment>%1 is the word for the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Diese Clips liegen in einem Ordner auf diesem %1, nicht auf dem Laufwerk Ihres Autos, daher gibt es nichts neu zu formatieren.</translation>
    </message>
    <message>
        <source>Your drive is formatted exFAT — exactly what your Tesla expects. No action needed.</source>
        <translation>Ihr Laufwerk ist mit exFAT formatiert — genau das, was Ihr Tesla erwartet. Nichts zu tun.</translation>
    </message>
    <message>
        <source>Your drive is formatted FAT32. Older Tesla software prefers exFAT for drives over 32 GB — if you ever see recording gaps, reformatting to exFAT (in %1, after backing up) can help.</source>
        <extracomment>%1 names the tool to format a drive with, e.g. &quot;a disk utility such as Disks&quot;</extracomment>
        <translation>Ihr Laufwerk ist mit FAT32 formatiert. Ältere Tesla-Software bevorzugt exFAT für Laufwerke über 32 GB — falls Sie jemals Lücken in den Aufnahmen bemerken, kann ein Neuformatieren mit exFAT (in %1, nachdem Sie alles Wichtige kopiert haben) helfen.</translation>
    </message>
    <message>
        <source>Your drive is formatted %1, which your car can record to. exFAT is the most widely used choice if you also read it on other computers.</source>
        <extracomment>%1 is a file system name, e.g. ext4</extracomment>
        <translation>Ihr Laufwerk ist mit %1 formatiert, darauf kann Ihr Auto aufzeichnen. exFAT ist die am weitesten verbreitete Wahl, wenn Sie es auch an anderen Computern lesen.</translation>
    </message>
    <message>
        <source>This drive is formatted %1, which your car cannot record to. Reformat it to exFAT before using it as a dashcam drive.</source>
        <extracomment>%1 is a file system name, e.g. NTFS</extracomment>
        <translation>Dieses Laufwerk ist mit %1 formatiert, darauf kann Ihr Auto nicht aufzeichnen. Formatieren Sie es mit exFAT neu, bevor Sie es als Dashcam-Laufwerk verwenden.</translation>
    </message>
    <message>
        <source>This drive is formatted %1, which your car may not fully support. exFAT is the safest choice.</source>
        <extracomment>%1 is a file system name</extracomment>
        <translation>Dieses Laufwerk ist mit %1 formatiert, was Ihr Auto möglicherweise nicht vollständig unterstützt. exFAT ist die sicherste Wahl.</translation>
    </message>
    <message>
        <source>We couldn&apos;t determine how this drive is formatted.</source>
        <translation>Wir konnten nicht feststellen, wie dieses Laufwerk formatiert ist.</translation>
    </message>
    <message numerus="yes">
        <source>Back up %n new events</source>
        <translation>
            <numerusform>%n neues Ereignis sichern</numerusform>
            <numerusform>%n neue Ereignisse sichern</numerusform>
        </translation>
    </message>
    <message>
        <source>These moments are only on your car&apos;s drive right now. Keep them so they&apos;re safe even if the drive fills up or fails.</source>
        <translation>Diese Momente sind gerade nur auf dem Laufwerk Ihres Autos. Sichern Sie sie, damit sie auch dann sicher sind, wenn das Laufwerk voll wird oder ausfällt.</translation>
    </message>
    <message>
        <source>%1% full — normal for a Tesla drive</source>
        <extracomment>%1 is a whole percentage; the % sign follows it</extracomment>
        <translation>%1 % belegt — normal für ein Tesla-Laufwerk</translation>
    </message>
    <message>
        <source>The car reuses space by overwriting its oldest footage. That&apos;s expected, not a problem — back up anything you want to keep from the recommendation above.</source>
        <translation>Das Auto schafft Platz, indem es seine ältesten Aufnahmen überschreibt. Das ist so vorgesehen und kein Problem — sichern Sie alles, was Sie behalten möchten, über die Empfehlung oben.</translation>
    </message>
    <message>
        <source>Drive is %1% full</source>
        <extracomment>%1 is a whole percentage; the % sign follows it</extracomment>
        <translation>Laufwerk zu %1 % belegt</translation>
    </message>
    <message>
        <source>Nothing urgent yet, but it&apos;s worth backing up regularly so you&apos;re never caught out.</source>
        <translation>Noch nichts Dringendes, aber regelmäßiges Sichern lohnt sich, damit Sie nie überrascht werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n clips didn&apos;t record properly</source>
        <translation>
            <numerusform>%n Clip wurde nicht richtig aufgezeichnet</numerusform>
            <numerusform>%n Clips wurden nicht richtig aufgezeichnet</numerusform>
        </translation>
    </message>
    <message>
        <source>A small number of damaged clips is normal and not something to worry about.</source>
        <translation>Eine kleine Zahl beschädigter Clips ist normal und kein Grund zur Sorge.</translation>
    </message>
    <message>
        <source>This is a known issue with some Tesla USB drives, especially cheaper or older ones. Consider a bigger-name USB 3.0 drive if this keeps happening.</source>
        <translation>Das ist ein bekanntes Problem mancher Tesla-USB-Laufwerke, besonders günstiger oder älterer. Erwägen Sie ein USB-3.0-Laufwerk eines bekannten Herstellers, falls das wiederholt vorkommt.</translation>
    </message>
    <message>
        <source>Some clips are encrypted by your car</source>
        <translation>Einige Clips sind von Ihrem Auto verschlüsselt</translation>
    </message>
    <message>
        <source>Recent Tesla software can encrypt dashcam footage. Keelhold can still back these up — see Help for how to view them.</source>
        <translation>Neuere Tesla-Software kann Dashcam-Aufnahmen verschlüsseln. Keelhold kann sie trotzdem sichern — wie Sie sie ansehen, steht in der Hilfe.</translation>
    </message>
    <message>
        <source>Everything looks good</source>
        <translation>Alles in Ordnung</translation>
    </message>
    <message>
        <source>Your drive is healthy and up to date. Nothing needs your attention right now.</source>
        <translation>Ihr Laufwerk ist in gutem Zustand und aktuell. Im Moment muss nichts erledigt werden.</translation>
    </message>
</context>
<context>
    <name>HealthPresenter</name>
    <message>
        <source>%1% full — normal for a Tesla drive. The car reuses space by overwriting its oldest footage.</source>
        <extracomment>%1 is a whole percentage; &quot;%1% full&quot; reads &quot;90% full&quot;</extracomment>
        <translation>%1 % belegt — normal für ein Tesla-Laufwerk. Das Auto schafft Platz, indem es seine ältesten Aufnahmen überschreibt.</translation>
    </message>
    <message numerus="yes">
        <source>You have %n events not backed up yet — see the recommendation below.</source>
        <translation>
            <numerusform>Sie haben %n Ereignis, das noch nicht gesichert ist — siehe Empfehlung unten.</numerusform>
            <numerusform>Sie haben %n Ereignisse, die noch nicht gesichert sind — siehe Empfehlung unten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Free Space</source>
        <translation>Freier Speicher</translation>
    </message>
    <message>
        <source>We couldn&apos;t read this drive&apos;s capacity.</source>
        <translation>Wir konnten die Kapazität dieses Laufwerks nicht lesen.</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>Heading: the drive&apos;s file system format (exFAT, FAT32, …)</extracomment>
        <translation>Format</translation>
    </message>
    <message>
        <source>Footage Condition</source>
        <translation>Zustand der Aufnahmen</translation>
    </message>
    <message>
        <source>Still checking your footage for damage — check back shortly.</source>
        <translation>Ihre Aufnahmen werden noch auf Schäden geprüft — sehen Sie gleich noch einmal nach.</translation>
    </message>
    <message numerus="yes">
        <source>All %n checked clips are in good shape.</source>
        <translation>
            <numerusform>Der eine geprüfte Clip ist in Ordnung.</numerusform>
            <numerusform>Alle %n geprüften Clips sind in Ordnung.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n checked clips didn&apos;t record properly.</source>
        <extracomment>%1 damaged clips of %n checked</extracomment>
        <translation>
            <numerusform>Nicht richtig aufgezeichnet: %1 von %n geprüften Clips.</numerusform>
            <numerusform>Nicht richtig aufgezeichnet: %1 von %n geprüften Clips.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is a known issue with some Tesla USB drives and isn&apos;t something you did.</source>
        <translation>Das ist ein bekanntes Problem mancher Tesla-USB-Laufwerke und liegt nicht an Ihnen.</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Verschlüsselung</translation>
    </message>
    <message>
        <source>Some clips on this drive are encrypted by your car.</source>
        <translation>Einige Clips auf diesem Laufwerk sind von Ihrem Auto verschlüsselt.</translation>
    </message>
    <message>
        <source>Keelhold can still back these up as-is. Encrypted clips play at %1.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Keelhold kann sie trotzdem unverändert sichern. Verschlüsselte Clips lassen sich unter %1 abspielen.</translation>
    </message>
    <message>
        <source>Turn encryption off for future recordings…</source>
        <translation>Verschlüsselung für künftige Aufnahmen ausschalten…</translation>
    </message>
    <message>
        <source>A 30-second setting in your car. Everything already recorded is unaffected.</source>
        <translation>Eine 30-Sekunden-Einstellung in Ihrem Auto. Alles bereits Aufgezeichnete bleibt unverändert.</translation>
    </message>
    <message>
        <source>Recommendations</source>
        <translation>Empfehlungen</translation>
    </message>
    <message>
        <source>No drive health yet</source>
        <translation>Noch kein Laufwerkszustand</translation>
    </message>
    <message>
        <source>Scan a Tesla drive from the Drive tab to see its fullness, corruption rate, and format at a glance.</source>
        <extracomment>&quot;Drive&quot; is the app&apos;s own tab; translate it as there</extracomment>
        <translation>Lesen Sie ein Tesla-Laufwerk im Bereich „Laufwerk“ ein, um Füllstand, Anteil beschädigter Clips und Format auf einen Blick zu sehen.</translation>
    </message>
</context>
<context>
    <name>HelpArticle</name>
    <message>
        <source>What is Sentry Mode?</source>
        <translation>Was ist der Wächter-Modus?</translation>
    </message>
    <message>
        <source>Why are clips exactly one minute long?</source>
        <translation>Warum sind Clips genau eine Minute lang?</translation>
    </message>
    <message>
        <source>What does &quot;didn&apos;t record properly&quot; mean?</source>
        <extracomment>The quoted words are the app&apos;s own, from its message about damaged clips</extracomment>
        <translation>Was bedeutet „nicht richtig aufgezeichnet“?</translation>
    </message>
    <message>
        <source>Why does it say some clips are encrypted?</source>
        <translation>Warum heißt es, einige Clips seien verschlüsselt?</translation>
    </message>
    <message>
        <source>How does the Vault keep my footage safe?</source>
        <translation>Wie schützt der Tresor meine Aufnahmen?</translation>
    </message>
    <message>
        <source>Will this app ever change or delete anything on my drive?</source>
        <translation>Ändert oder löscht diese App jemals etwas auf meinem Laufwerk?</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Sentry Mode is your Tesla&apos;s built-in security system. While your car is parked, its cameras watch for people or objects that come close, or for a bump or impact. When something happens, the car saves a short recording from every camera into a &quot;Sentry event&quot; so you can review it later.</source>
        <translation>Der Wächter-Modus ist das eingebaute Sicherheitssystem Ihres Tesla. Während Ihr Auto parkt, achten seine Kameras auf Personen oder Gegenstände, die sich nähern, oder auf einen Stoß oder Aufprall. Wenn etwas passiert, speichert das Auto eine kurze Aufnahme aller Kameras als „Wächter-Ereignis“, damit Sie sie später ansehen können.</translation>
    </message>
    <message>
        <source>You can turn Sentry Mode on or off, and adjust its sensitivity, from your car&apos;s touchscreen under Safety &amp; Security.</source>
        <translation>Sie können den Wächter-Modus auf dem Touchscreen Ihres Autos unter „Sicherheit“ ein- oder ausschalten und seine Empfindlichkeit einstellen.</translation>
    </message>
    <message>
        <source>Your Tesla records in one-minute segments, one file per camera per minute, rather than one long continuous video. This is simply how the car&apos;s software is built — it makes the recordings easier for the car to manage and less likely to be lost all at once if something goes wrong.</source>
        <translation>Ihr Tesla zeichnet in Abschnitten von einer Minute auf, eine Datei pro Kamera und Minute, statt eines langen, durchgehenden Videos. So ist die Software des Autos einfach gebaut — das Auto kann die Aufnahmen so leichter verwalten, und es geht weniger wahrscheinlich alles auf einmal verloren, wenn etwas schiefgeht.</translation>
    </message>
    <message>
        <source>Keelhold stitches these one-minute files back together into a single, continuous timeline for you, so you never have to think about the individual files — you just scrub through one smooth timeline per event.</source>
        <translation>Keelhold fügt diese einminütigen Dateien für Sie wieder zu einer einzigen, durchgehenden Zeitleiste zusammen, sodass Sie nie an die einzelnen Dateien denken müssen — Sie bewegen sich einfach durch eine durchgehende Zeitleiste pro Ereignis.</translation>
    </message>
    <message>
        <source>Occasionally, a clip won&apos;t play — it might be zero bytes, cut off partway through, or simply unreadable. This is a well-known issue with Tesla USB drives, especially with lower-quality or aging drives, and it is not something you did.</source>
        <translation>Gelegentlich lässt sich ein Clip nicht abspielen — er ist vielleicht null Byte groß, mittendrin abgeschnitten oder einfach unlesbar. Das ist ein bekanntes Problem mit Tesla-USB-Laufwerken, besonders mit minderwertigen oder älteren Laufwerken, und es liegt nicht an Ihnen.</translation>
    </message>
    <message>
        <source>When this happens, Keelhold shows that camera angle as a labeled placeholder instead of crashing or freezing, and counts it in Drive Health so you can see how often it&apos;s happening. If it happens a lot, a newer USB 3.0 drive from a reputable brand usually helps.</source>
        <translation>Wenn das passiert, zeigt Keelhold für diese Kameraperspektive einen beschrifteten Platzhalter, statt abzustürzen oder einzufrieren, und zählt den Fall im Laufwerkszustand mit, damit Sie sehen, wie oft es vorkommt. Wenn es häufig passiert, hilft meist ein neueres USB-3.0-Laufwerk eines namhaften Herstellers.</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt dashcam and Sentry clips so that only you can view them — this is a privacy feature, not damage or an error. Encrypted files still look like normal video files, but no app can decode their contents without the key of each clip.</source>
        <translation>Neuere Tesla-Software kann Dashcam- und Wächter-Clips verschlüsseln, sodass nur Sie sie ansehen können — das ist eine Datenschutzfunktion, keine Beschädigung und kein Fehler. Verschlüsselte Dateien sehen weiterhin wie normale Videodateien aus, aber keine App kann ihren Inhalt ohne den Schlüssel des jeweiligen Clips entschlüsseln.</translation>
    </message>
    <message>
        <source>Keelhold safely backs up encrypted clips exactly as they are — the backup and verification steps work the same either way.</source>
        <translation>Keelhold sichert verschlüsselte Clips genau so, wie sie sind — Sicherung und Prüfung funktionieren in beiden Fällen gleich.</translation>
    </message>
    <message>
        <source>To watch them here, choose “Unlock Encrypted Footage…” and sign in with your Tesla account. Keelhold then asks Tesla for each clip&apos;s key, sending only the clip&apos;s locked key and your car&apos;s VIN, never any video, and keeps the keys so the footage plays here from then on, even offline. You can also watch them at %1, where your browser fetches the keys the same way.</source>
        <translation>Um sie hier anzusehen, wählen Sie „Verschlüsselte Aufnahmen entsperren…“ und melden sich mit Ihrem Tesla-Konto an. Keelhold fragt dann bei Tesla den Schlüssel jedes Clips an, sendet dabei nur den gesperrten Schlüssel des Clips und die VIN Ihres Autos, niemals Video, und bewahrt die Schlüssel auf, sodass die Aufnahmen von da an hier abgespielt werden, auch offline. Sie können sie auch unter %1 ansehen, wo Ihr Browser die Schlüssel auf dieselbe Weise abruft.</translation>
    </message>
    <message>
        <source>Want future footage to play right here instead? In your car: Controls → Safety → switch off &quot;Encrypt Dashcam Recordings&quot; (about 30 seconds — the app can walk you through it wherever you see the encryption notice). Everything already recorded is unaffected either way.</source>
        <extracomment>Controls, Safety and &quot;Encrypt Dashcam Recordings&quot; are named as on the car&apos;s touchscreen</extracomment>
        <translation>Sollen künftige Aufnahmen stattdessen direkt hier abgespielt werden? In Ihrem Auto: Fahrzeug → Sicherheit → „Dashcam-Aufnahmen verschlüsseln“ ausschalten (etwa 30 Sekunden — die App führt Sie überall dort durch, wo Sie den Hinweis zur Verschlüsselung sehen). Alles bereits Aufgezeichnete bleibt in jedem Fall unverändert.</translation>
    </message>
    <message>
        <source>When you choose &quot;Keep&quot; on an event, Keelhold copies every file for that event to a folder you chose (your &quot;Vault&quot;) while checking the data as it copies. It then re-checks the copy&apos;s checksum (SHA-256) against the original to make sure the copy is a faithful, byte-for-byte match — you&apos;ll see it marked &quot;Verified copy&quot; afterward.</source>
        <extracomment>&quot;Keep&quot; and &quot;Verified copy&quot; are the app&apos;s own button and mark; translate them as there</extracomment>
        <translation>Wenn Sie bei einem Ereignis „Sichern“ wählen, kopiert Keelhold jede Datei dieses Ereignisses in einen von Ihnen gewählten Ordner (Ihren „Tresor“) und prüft die Daten beim Kopieren. Danach vergleicht es die Prüfsumme (SHA-256) der Kopie erneut mit dem Original, um sicherzustellen, dass die Kopie originalgetreu ist und Byte für Byte übereinstimmt — anschließend sehen Sie sie als „Geprüfte Kopie“ markiert.</translation>
    </message>
    <message>
        <source>Your Vault works completely independently of your car&apos;s drive: once something is kept, you can browse and watch it any time, even with the Tesla drive unplugged or gone entirely. Re-importing the same drive later automatically recognizes anything already kept, so you never end up with duplicates.</source>
        <translation>Ihr Tresor ist völlig unabhängig vom Laufwerk Ihres Autos: Was einmal gesichert ist, können Sie jederzeit durchsehen und ansehen, auch wenn das Tesla-Laufwerk abgezogen oder ganz weg ist. Wenn Sie dasselbe Laufwerk später erneut einlesen, wird alles bereits Gesicherte automatisch erkannt, sodass keine Duplikate entstehen.</translation>
    </message>
    <message>
        <source>No. Keelhold only ever reads from your Tesla&apos;s drive — no code path in this app writes to it, renames anything on it, or deletes anything from it. The only place this app writes to is the Vault folder you choose on your %1 (or another drive you pick).</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Nein. Keelhold liest nur vom Laufwerk Ihres Tesla — kein Teil dieser App schreibt darauf, benennt darauf etwas um oder löscht etwas davon. Die App schreibt ausschließlich in den Tresor-Ordner, den Sie auf Ihrem %1 (oder einem anderen Laufwerk Ihrer Wahl) wählen.</translation>
    </message>
    <message>
        <source>This matters most right after something happens to your car: the drive from your glovebox is exactly as safe to hand to police or an insurer after using this app as it was before.</source>
        <translation>Das ist vor allem direkt nach einem Vorfall mit Ihrem Auto wichtig: Das Laufwerk aus Ihrem Handschuhfach kann nach der Verwendung dieser App genauso unbedenklich an Polizei oder Versicherung übergeben werden wie vorher.</translation>
    </message>
    <message>
        <source>You can review everything without touching the mouse:</source>
        <translation>Sie können alles durchsehen, ohne die Maus zu berühren:</translation>
    </message>
    <message>
        <source>A quick reminder of these appears under the playback controls until you hide it — and you can always come back here.</source>
        <translation>Eine kurze Erinnerung daran erscheint unter den Wiedergabe-Bedienelementen, bis Sie sie ausblenden — und Sie können jederzeit hierher zurückkehren.</translation>
    </message>
    <message>
        <source>Space — play or pause all cameras together</source>
        <extracomment>A line of the keyboard help: the key, a dash, what it does. Name keys as keyboards there mark them</extracomment>
        <translation>Leertaste — alle Kameras gemeinsam abspielen oder anhalten</translation>
    </message>
    <message>
        <source>← and → — skip back or forward 5 seconds</source>
        <translation>← und → — 5 Sekunden zurück- oder vorspringen</translation>
    </message>
    <message>
        <source>, and . — step one frame back or forward (pauses first)</source>
        <translation>, und . — ein Bild zurück oder vor (hält vorher an)</translation>
    </message>
    <message>
        <source>1 to 7 — jump straight to a camera (in the order shown in the grid)</source>
        <translation>1 bis 7 — direkt zu einer Kamera springen (in der Reihenfolge im Raster)</translation>
    </message>
    <message>
        <source>0 — back to all cameras</source>
        <translation>0 — zurück zu allen Kameras</translation>
    </message>
    <message>
        <source>M — replay the moment it happened (just before the honk, bump, or detection)</source>
        <translation>M — den Moment, in dem es passiert ist, erneut abspielen (kurz vor dem Hupen, dem Stoß oder der Erkennung)</translation>
    </message>
    <message>
        <source>N and Shift+N — jump to the next or previous thing that happened: someone moving in front of a camera (that camera is enlarged), or a hard brake, swerve or Autosteer switching off</source>
        <translation>N und Shift+N — zum nächsten oder vorherigen Geschehen springen: jemand bewegt sich vor einer Kamera (diese Kamera wird vergrößert), oder starkes Bremsen, ein Ausweichen oder das Abschalten der Autolenkung</translation>
    </message>
    <message>
        <source>F — fill the window with just the cameras (Esc goes back)</source>
        <translation>F — das Fenster nur mit den Kameras füllen (Esc für zurück)</translation>
    </message>
    <message>
        <source>T — show or hide the car&apos;s driving data over the video (speed, pedals, steering, Autopilot)</source>
        <translation>T — die Fahrdaten des Autos über dem Video ein- oder ausblenden (Geschwindigkeit, Pedale, Lenkung, Autopilot)</translation>
    </message>
    <message>
        <source>↑ and ↓ — move through the event list, auto-playing each one</source>
        <translation>↑ und ↓ — durch die Ereignisliste gehen, jedes Ereignis wird automatisch abgespielt</translation>
    </message>
    <message>
        <source>K — keep a safe copy of the selected event in your Vault</source>
        <translation>K — eine sichere Kopie des ausgewählten Ereignisses in Ihrem Tresor anlegen</translation>
    </message>
    <message>
        <source>D — dismiss the selected event (never deletes any footage)</source>
        <translation>D — das ausgewählte Ereignis ausblenden (löscht nie Aufnahmen)</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Help</source>
        <extracomment>Heading over the list of help articles</extracomment>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>HelpWindowController</name>
    <message>
        <source>Keelhold Help</source>
        <translation>Keelhold-Hilfe</translation>
    </message>
</context>
<context>
    <name>InboxPresenter</name>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is the long date, %2 the time: &quot;Monday, 2 June 2025 at 2:11:05 AM&quot;</extracomment>
        <translation>%1 um %2</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>Heading over the events of today</extracomment>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>Heading over the events of yesterday</extracomment>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>A row&apos;s second line: the place, then the event&apos;s size on disk</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Details limited — footage intact</source>
        <translation>Wenige Details — Aufnahmen intakt</translation>
    </message>
    <message>
        <source>Place and details stay with your car</source>
        <translation>Ort und Details bleiben bei Ihrem Auto</translation>
    </message>
    <message>
        <source>Your car didn&apos;t write a details file for this event, so we don&apos;t know the exact reason or location — the video itself is intact.</source>
        <translation>Ihr Auto hat für dieses Ereignis keine Detaildatei geschrieben, daher kennen wir den genauen Grund und Ort nicht — das Video selbst ist intakt.</translation>
    </message>
    <message>
        <source>Encrypted by your car</source>
        <translation>Von Ihrem Auto verschlüsselt</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <extracomment>Short reason on a row&apos;s chip: the footage is encrypted</extracomment>
        <translation>Verschlüsselt</translation>
    </message>
    <message>
        <source>Your car encrypted this recording, and its reason and place with it. Keelhold keeps it byte for byte; unlock it with your Tesla account to watch it here.</source>
        <translation>Ihr Auto hat diese Aufnahme verschlüsselt, und mit ihr auch Grund und Ort. Keelhold sichert sie Byte für Byte; entsperren Sie sie mit Ihrem Tesla-Konto, um sie hier anzusehen.</translation>
    </message>
    <message>
        <source>Locked — unlock it with your Tesla account to watch it here.</source>
        <translation>Gesperrt — entsperren Sie es mit Ihrem Tesla-Konto, um es hier anzusehen.</translation>
    </message>
    <message>
        <source>Unlocked — its keys are kept on this computer, so it plays here even offline.</source>
        <translation>Entsperrt — die Schlüssel sind auf diesem Computer gespeichert, daher wird es hier auch offline abgespielt.</translation>
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
        <translation>Neu — Sie haben es noch nicht angesehen.</translation>
    </message>
    <message>
        <source>A verified copy is safe in your Vault.</source>
        <translation>Eine geprüfte Kopie liegt sicher in Ihrem Tresor.</translation>
    </message>
    <message numerus="yes">
        <source>%n damaged clips</source>
        <translation>
            <numerusform>%n beschädigter Clip</numerusform>
            <numerusform>%n beschädigte Clips</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n angles from this moment didn&apos;t record properly. This is a known Tesla drive issue, not something you did.</source>
        <extracomment>Camera angles, one per camera, whose clips are damaged</extracomment>
        <translation>
            <numerusform>%n Perspektive dieses Moments wurde nicht richtig aufgezeichnet. Das ist ein bekanntes Problem mit Tesla-Laufwerken und liegt nicht an Ihnen.</numerusform>
            <numerusform>%n Perspektiven dieses Moments wurden nicht richtig aufgezeichnet. Das ist ein bekanntes Problem mit Tesla-Laufwerken und liegt nicht an Ihnen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reason: %1</source>
        <extracomment>Screen reader name of a row&apos;s reason chip; %1 is the car&apos;s reason</extracomment>
        <translation>Grund: %1</translation>
    </message>
    <message numerus="yes">
        <source>Keep %n</source>
        <extracomment>Button that keeps the ticked events in the Vault; %n is how many</extracomment>
        <translation>
            <numerusform>%n sichern</numerusform>
            <numerusform>%n sichern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Dismiss %n</source>
        <extracomment>Button that hides the ticked events from the list; %n is how many</extracomment>
        <translation>
            <numerusform>%n ausblenden</numerusform>
            <numerusform>%n ausblenden</numerusform>
        </translation>
    </message>
    <message>
        <source>Deselect this event</source>
        <translation>Auswahl dieses Ereignisses aufheben</translation>
    </message>
    <message>
        <source>Select this event</source>
        <translation>Dieses Ereignis auswählen</translation>
    </message>
    <message>
        <source>New</source>
        <extracomment>Status filter: events not watched yet</extracomment>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <extracomment>Status filter: events already watched</extracomment>
        <translation>Angesehen</translation>
    </message>
    <message>
        <source>In Vault</source>
        <extracomment>Status filter: events kept in the Vault</extracomment>
        <translation>Im Tresor</translation>
    </message>
    <message>
        <source>Dismissed</source>
        <extracomment>Status filter: events hidden from the list</extracomment>
        <translation>Ausgeblendet</translation>
    </message>
    <message>
        <source>Sentry</source>
        <extracomment>Kind filter: Sentry Mode events</extracomment>
        <translation>Wächter</translation>
    </message>
    <message>
        <source>Saved</source>
        <extracomment>Kind filter: clips the driver saved</extracomment>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Recent Driving</source>
        <extracomment>Kind filter: the car&apos;s rolling recording of recent driving</extracomment>
        <translation>Letzte Fahrten</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>One place in the Activity line: camera name, then time into the event (&quot;Left Side 2:14&quot;)</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Activity: %1</source>
        <translation>Aktivität: %1</translation>
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
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Switch Drive</source>
        <translation>Laufwerk wechseln</translation>
    </message>
    <message>
        <source>Pick a different Tesla drive or re-scan this one.</source>
        <translation>Ein anderes Tesla-Laufwerk wählen oder dieses neu einlesen.</translation>
    </message>
    <message>
        <source>Checking for new events…</source>
        <translation>Suche nach neuen Ereignissen…</translation>
    </message>
    <message>
        <source>Filter</source>
        <extracomment>Button that opens the filter menu</extracomment>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Show only certain statuses, reasons, or kinds of events.</source>
        <translation>Nur bestimmte Status, Gründe oder Arten von Ereignissen zeigen.</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Heading in the filter menu: filter by status (new, reviewed, …)</extracomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>Reason</source>
        <extracomment>Heading in the filter menu: filter by the car&apos;s reason for recording</extracomment>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Heading in the filter menu: filter by kind (Sentry, saved, recent driving)</extracomment>
        <translation>Art</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Alle Filter entfernen</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>Button that starts ticking several events</extracomment>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Select multiple events to keep or dismiss them all at once.</source>
        <translation>Mehrere Ereignisse auswählen, um sie alle auf einmal zu sichern oder auszublenden.</translation>
    </message>
    <message>
        <source>Tick events to keep or dismiss them together.</source>
        <translation>Haken Sie Ereignisse an, um sie gemeinsam zu sichern oder auszublenden.</translation>
    </message>
    <message>
        <source>Archive the selected events to your Vault.</source>
        <translation>Die ausgewählten Ereignisse in Ihrem Tresor sichern.</translation>
    </message>
    <message>
        <source>Hide the selected events. This never deletes footage from your drive or Vault.</source>
        <translation>Die ausgewählten Ereignisse ausblenden. Dabei werden nie Aufnahmen von Ihrem Laufwerk oder aus Ihrem Tresor gelöscht.</translation>
    </message>
    <message>
        <source>Remove this filter.</source>
        <translation>Diesen Filter entfernen.</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Button that keeps the event in the Vault</extracomment>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Button that hides the event from the list</extracomment>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Just had an incident while driving?</source>
        <translation>Gerade einen Vorfall während der Fahrt gehabt?</translation>
    </message>
    <message>
        <source>It&apos;s likely in Recent Driving below. This folder overwrites itself as you keep driving, so keep a copy now if you need it.</source>
        <extracomment>&quot;Recent Driving&quot; is the list&apos;s own heading for the car&apos;s rolling recording</extracomment>
        <translation>Er ist wahrscheinlich unten unter „Letzte Fahrten“. Dieser Ordner wird beim Weiterfahren laufend überschrieben, sichern Sie also jetzt eine Kopie, wenn Sie sie brauchen.</translation>
    </message>
    <message>
        <source>Keep Recent Driving Now</source>
        <translation>Letzte Fahrten jetzt sichern</translation>
    </message>
    <message>
        <source>Copies all of Recent Driving to your Vault before it&apos;s overwritten. Your drive itself is never changed.</source>
        <translation>Kopiert alle letzten Fahrten in Ihren Tresor, bevor sie überschrieben werden. Ihr Laufwerk selbst wird nie verändert.</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>Button that plays Recent Driving</extracomment>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>All statuses</source>
        <translation>Alle Status</translation>
    </message>
    <message>
        <source>Any reason</source>
        <translation>Jeder Grund</translation>
    </message>
    <message>
        <source>Everything</source>
        <extracomment>Kind filter: no filter, every kind of event</extracomment>
        <translation>Alles</translation>
    </message>
</context>
<context>
    <name>IncidentReport</name>
    <message>
        <source>There is no folder at %1.</source>
        <translation>Unter %1 gibt es keinen Ordner.</translation>
    </message>
    <message>
        <source>The report couldn&apos;t be written there.</source>
        <translation>Der Bericht konnte dort nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>There is no room for the report on this computer.</source>
        <translation>Auf diesem Computer ist kein Platz für den Bericht.</translation>
    </message>
</context>
<context>
    <name>KeepSummary</name>
    <message>
        <source>Keeping stopped</source>
        <translation>Sichern angehalten</translation>
    </message>
    <message numerus="yes">
        <source>%1 was disconnected before everything was kept: %n events kept and verified.</source>
        <translation>
            <numerusform>%1 wurde getrennt, bevor alles gesichert war: %n Ereignis gesichert und geprüft.</numerusform>
            <numerusform>%1 wurde getrennt, bevor alles gesichert war: %n Ereignisse gesichert und geprüft.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped keeping from %1: %n events kept and verified.</source>
        <translation>
            <numerusform>Sichern angehalten (%1): %n Ereignis gesichert und geprüft.</numerusform>
            <numerusform>Sichern angehalten (%1): %n Ereignisse gesichert und geprüft.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some footage couldn&apos;t be kept</source>
        <translation>Einige Aufnahmen konnten nicht gesichert werden</translation>
    </message>
    <message numerus="yes">
        <source>Kept %n new events from %1, but some files couldn&apos;t be kept. %2</source>
        <extracomment>%1 is the drive&apos;s name, %2 the first failed file&apos;s reason (a whole sentence)</extracomment>
        <translation>
            <numerusform>%n neues Ereignis gesichert (%1), aber einige Dateien konnten nicht gesichert werden. %2</numerusform>
            <numerusform>%n neue Ereignisse gesichert (%1), aber einige Dateien konnten nicht gesichert werden. %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing new to keep</source>
        <translation>Nichts Neues zu sichern</translation>
    </message>
    <message>
        <source>Everything on %1 is already in your Vault.</source>
        <translation>%1: Alles ist bereits in Ihrem Tresor.</translation>
    </message>
    <message>
        <source>Footage kept</source>
        <translation>Aufnahmen gesichert</translation>
    </message>
    <message numerus="yes">
        <source>Kept %n new events from %1 — %2, all verified</source>
        <extracomment>%1 is the drive&apos;s name, %2 a size such as &quot;1.2 GB&quot;</extracomment>
        <translation>
            <numerusform>%n neues Ereignis gesichert (%1) — %2, alles geprüft</numerusform>
            <numerusform>%n neue Ereignisse gesichert (%1) — %2, alles geprüft</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeyService</name>
    <message>
        <source>Tesla couldn&apos;t confirm that your account owns the car that recorded this clip, so it can&apos;t be unlocked.</source>
        <translation>Tesla konnte nicht bestätigen, dass Ihrem Konto das Auto gehört, das diesen Clip aufgezeichnet hat, daher kann er nicht entsperrt werden.</translation>
    </message>
    <message>
        <source>Your Tesla sign-in has expired. Sign in again to unlock this footage.</source>
        <translation>Ihre Tesla-Anmeldung ist abgelaufen. Melden Sie sich erneut an, um diese Aufnahmen zu entsperren.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service couldn&apos;t be reached. Check your internet connection and try again.</source>
        <translation>Teslas Dienst war nicht erreichbar. Prüfen Sie Ihre Internetverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service refused to unlock this clip. Try again later.</source>
        <translation>Teslas Dienst hat das Entsperren dieses Clips abgelehnt. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service gave an answer Keelhold couldn&apos;t read. Try again later.</source>
        <translation>Teslas Dienst hat eine Antwort gegeben, die Keelhold nicht lesen konnte. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>This clip was copied while the car was still writing it, so it can&apos;t be unlocked.</source>
        <translation>Dieser Clip wurde kopiert, während das Auto ihn noch schrieb, daher kann er nicht entsperrt werden.</translation>
    </message>
    <message>
        <source>This clip&apos;s header is damaged, so it can&apos;t be unlocked.</source>
        <translation>Der Header dieses Clips ist beschädigt, daher kann er nicht entsperrt werden.</translation>
    </message>
    <message>
        <source>Sign in with your Tesla account to unlock this footage.</source>
        <translation>Melden Sie sich mit Ihrem Tesla-Konto an, um diese Aufnahmen zu entsperren.</translation>
    </message>
    <message>
        <source>The key Tesla&apos;s service sent doesn&apos;t open this clip, so it can&apos;t be unlocked.</source>
        <translation>Der Schlüssel, den Teslas Dienst gesendet hat, öffnet diesen Clip nicht, daher kann er nicht entsperrt werden.</translation>
    </message>
    <message>
        <source>This clip couldn&apos;t be read from the drive, so it can&apos;t be unlocked.</source>
        <translation>Dieser Clip konnte nicht vom Laufwerk gelesen werden, daher kann er nicht entsperrt werden.</translation>
    </message>
</context>
<context>
    <name>KeyboardHints</name>
    <message>
        <source>Space</source>
        <extracomment>The space bar, as a key&apos;s name</extracomment>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Abspielen/Pause</translation>
    </message>
    <message>
        <source>Skip 5s</source>
        <translation>5 s springen</translation>
    </message>
    <message>
        <source>Frame step</source>
        <translation>Einzelbild</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>All cameras</source>
        <translation>Alle Kameras</translation>
    </message>
    <message>
        <source>The moment</source>
        <extracomment>Jump to the moment the event happened</extracomment>
        <translation>Der Moment</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Was geschah</translation>
    </message>
    <message>
        <source>Fill window</source>
        <translation>Fenster füllen</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Fahrdaten</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Keep the event in the Vault</extracomment>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Hide the event from the list</extracomment>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Hide these hints. The full shortcut list stays in Help.</source>
        <translation>Diese Hinweise ausblenden. Die vollständige Liste der Tastenkürzel bleibt in der Hilfe.</translation>
    </message>
</context>
<context>
    <name>ListPaneResizeHandle</name>
    <message>
        <source>Resize event list</source>
        <translation>Größe der Ereignisliste ändern</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Copy Diagnostic Information</source>
        <translation>Diagnoseinformationen kopieren</translation>
    </message>
</context>
<context>
    <name>MapViewModel</name>
    <message>
        <source>Kept in your Vault</source>
        <translation>In Ihrem Tresor gesichert</translation>
    </message>
    <message>
        <source>Driving yourself</source>
        <extracomment>The route key&apos;s colour for driving without Autopilot</extracomment>
        <translation>Selbst gefahren</translation>
    </message>
    <message>
        <source>Map tiles aren&apos;t available — check your internet connection.</source>
        <translation>Kartenkacheln sind nicht verfügbar — prüfen Sie Ihre Internetverbindung.</translation>
    </message>
</context>
<context>
    <name>MockEngine</name>
    <message>
        <source>Reading your drive…</source>
        <translation>Ihr Laufwerk wird gelesen…</translation>
    </message>
    <message>
        <source>Reading Sentry events…</source>
        <translation>Wächter-Ereignisse werden gelesen…</translation>
    </message>
    <message>
        <source>Reading saved clips…</source>
        <translation>Gespeicherte Clips werden gelesen…</translation>
    </message>
    <message>
        <source>Reading recent driving…</source>
        <translation>Letzte Fahrten werden gelesen…</translation>
    </message>
    <message>
        <source>Almost done…</source>
        <translation>Fast fertig…</translation>
    </message>
</context>
<context>
    <name>Mp4Writer</name>
    <message>
        <source>There is already a file at “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>Unter „%1“ gibt es bereits eine Datei.</translation>
    </message>
    <message>
        <source>The movie file “%1” couldn&apos;t be created: %2.</source>
        <extracomment>%1 is the movie&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>Die Filmdatei „%1“ konnte nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be started: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>Der Film konnte nicht begonnen werden: %1.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be written: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>Der Film konnte nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be finished: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>Der Film konnte nicht abgeschlossen werden: %1.</translation>
    </message>
</context>
<context>
    <name>OnboardingTexts</name>
    <message>
        <source>Loads a few short made-up clips so you can look around before connecting your own Tesla.</source>
        <translation>Lädt ein paar kurze, erfundene Clips, damit Sie sich umsehen können, bevor Sie Ihren eigenen Tesla anschließen.</translation>
    </message>
    <message>
        <source>Welcome to Keelhold</source>
        <translation>Willkommen bei Keelhold</translation>
    </message>
    <message>
        <source>Your Tesla is always recording — Sentry Mode, saved clips, and your recent drives. This app reads the USB drive from your car&apos;s glovebox, shows you what it found in plain English, and keeps a permanent, verified copy on your %1 so you never lose footage that matters.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Ihr Tesla zeichnet ständig auf — Wächter-Modus, gespeicherte Clips und Ihre letzten Fahrten. Diese App liest das USB-Laufwerk aus dem Handschuhfach Ihres Autos, zeigt Ihnen in verständlichen Worten, was sie gefunden hat, und legt eine dauerhafte, geprüfte Kopie auf Ihrem %1 an, damit Sie nie Aufnahmen verlieren, die wichtig sind.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <extracomment>Button on the first screen of the setup</extracomment>
        <translation>Los geht’s</translation>
    </message>
    <message>
        <source>Just exploring? Try sample footage</source>
        <translation>Nur umsehen? Beispielaufnahmen ausprobieren</translation>
    </message>
    <message>
        <source>Show Me Your Tesla Drive</source>
        <translation>Zeigen Sie uns Ihr Tesla-Laufwerk</translation>
    </message>
    <message>
        <source>Plug in the USB drive from your car&apos;s glovebox, then pick it below. We only look at the parts of the drive you choose to show us.</source>
        <translation>Stecken Sie das USB-Laufwerk aus dem Handschuhfach Ihres Autos ein und wählen Sie es unten aus. Wir sehen uns nur die Teile des Laufwerks an, die Sie uns zeigen.</translation>
    </message>
    <message>
        <source>Connected drives appear here the moment %1 mounts them. Pick yours and confirm with one click — we&apos;ll check for Tesla footage right after.</source>
        <extracomment>%1 is the operating system as a sentence&apos;s subject, e.g. &quot;your system&quot;</extracomment>
        <translation>Angeschlossene Laufwerke erscheinen hier, sobald %1 sie einbindet. Wählen Sie Ihres aus und bestätigen Sie mit einem Klick — wir suchen gleich danach nach Tesla-Aufnahmen.</translation>
    </message>
    <message>
        <source>No drive detected yet. Insert your Tesla&apos;s USB drive, or choose it manually below.</source>
        <translation>Noch kein Laufwerk erkannt. Stecken Sie das USB-Laufwerk Ihres Tesla ein oder wählen Sie es unten manuell aus.</translation>
    </message>
    <message>
        <source>Choose a Drive or Folder Manually…</source>
        <translation>Laufwerk oder Ordner manuell wählen…</translation>
    </message>
    <message>
        <source>Opens a file picker starting at %1, where connected USB drives appear.</source>
        <extracomment>%1 is a folder path, e.g. /media/alex</extracomment>
        <translation>Öffnet eine Dateiauswahl in %1, wo angeschlossene USB-Laufwerke erscheinen.</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>Button: back to the previous step of the setup</extracomment>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Select Your Tesla&apos;s USB Drive</source>
        <extracomment>Title of the folder dialog that picks the car&apos;s drive</extracomment>
        <translation>USB-Laufwerk Ihres Tesla auswählen</translation>
    </message>
    <message>
        <source>Choose the drive itself, or its TeslaCam folder. Look for a plain external drive icon — Tesla drives usually show up as &quot;UNTITLED&quot; or similar.</source>
        <translation>Wählen Sie das Laufwerk selbst oder seinen TeslaCam-Ordner. Achten Sie auf ein einfaches Symbol für ein externes Laufwerk — Tesla-Laufwerke erscheinen meist als „UNTITLED“ oder ähnlich.</translation>
    </message>
    <message>
        <source>Use This Drive</source>
        <extracomment>Accept button of the folder dialog that picks the car&apos;s drive</extracomment>
        <translation>Dieses Laufwerk verwenden</translation>
    </message>
    <message>
        <source>Reading your drive…</source>
        <translation>Ihr Laufwerk wird gelesen…</translation>
    </message>
    <message>
        <source>This usually takes a few seconds.</source>
        <translation>Das dauert normalerweise nur ein paar Sekunden.</translation>
    </message>
    <message>
        <source>Browse While It Finishes</source>
        <translation>Währenddessen durchsehen</translation>
    </message>
    <message>
        <source>Start Browsing</source>
        <translation>Durchsehen</translation>
    </message>
    <message>
        <source>Recording without encryption</source>
        <translation>Ohne Verschlüsselung aufzeichnen</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt new recordings so only your Tesla account can view them. If you&apos;d like footage to play here (and in any app), switch it off in your car — it takes about 30 seconds, and everything already recorded stays exactly as it is.</source>
        <translation>Neuere Tesla-Software kann neue Aufnahmen verschlüsseln, sodass nur Ihr Tesla-Konto sie ansehen kann. Wenn Aufnahmen hier (und in jeder App) abgespielt werden sollen, schalten Sie das in Ihrem Auto aus — das dauert etwa 30 Sekunden, und alles bereits Aufgezeichnete bleibt genau so, wie es ist.</translation>
    </message>
    <message>
        <source>Open %1</source>
        <extracomment>Button; %1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>Tesla&apos;s own viewer for encrypted clips — decryption happens in your browser; footage never leaves your device.</source>
        <translation>Teslas eigener Viewer für verschlüsselte Clips — die Entschlüsselung geschieht in Ihrem Browser; die Aufnahmen verlassen nie Ihr Gerät.</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the encryption guide</extracomment>
        <translation>Fertig</translation>
    </message>
    <message numerus="yes">
        <source>Found %n events so far, across %1 clips.</source>
        <translation>
            <numerusform>Bisher %n Ereignis gefunden, in %1 Clips.</numerusform>
            <numerusform>Bisher %n Ereignisse gefunden, in %1 Clips.</numerusform>
        </translation>
    </message>
    <message>
        <source>Is this your Tesla drive? — %1</source>
        <extracomment>%1 is the drive&apos;s name, e.g. UNTITLED</extracomment>
        <translation>Ist das Ihr Tesla-Laufwerk? — %1</translation>
    </message>
    <message>
        <source>In your car, tap Controls</source>
        <translation>Tippen Sie in Ihrem Auto auf „Fahrzeug“</translation>
    </message>
    <message>
        <source>The car icon at the bottom-left of the touchscreen.</source>
        <translation>Das Autosymbol unten links auf dem Touchscreen.</translation>
    </message>
    <message>
        <source>Tap Safety</source>
        <extracomment>The car&apos;s menu entry, as named on its touchscreen</extracomment>
        <translation>Tippen Sie auf „Sicherheit“</translation>
    </message>
    <message>
        <source>In the menu on the left.</source>
        <translation>Im Menü links.</translation>
    </message>
    <message>
        <source>Switch off “Encrypt Dashcam Recordings”</source>
        <extracomment>The quoted words are the car&apos;s setting, as named on its touchscreen</extracomment>
        <translation>Schalten Sie „Dashcam-Aufnahmen verschlüsseln“ aus</translation>
    </message>
    <message>
        <source>If you don&apos;t see it, your car&apos;s software doesn&apos;t encrypt yet — nothing to do.</source>
        <translation>Wenn Sie die Einstellung nicht sehen, verschlüsselt die Software Ihres Autos noch nicht — dann ist nichts zu tun.</translation>
    </message>
    <message>
        <source>Done</source>
        <comment>last step</comment>
        <extracomment>The last step of the guide: finished</extracomment>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>New footage records unencrypted and plays right here.</source>
        <translation>Neue Aufnahmen werden unverschlüsselt aufgezeichnet und direkt hier abgespielt.</translation>
    </message>
    <message>
        <source>Clips recorded while encryption was on stay encrypted — sign in at %1 to watch them anytime. Keelhold still backs them up byte-for-byte, so nothing is ever lost.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Clips, die bei eingeschalteter Verschlüsselung aufgezeichnet wurden, bleiben verschlüsselt — melden Sie sich unter %1 an, um sie jederzeit anzusehen. Keelhold sichert sie trotzdem Byte für Byte, damit nichts verloren geht.</translation>
    </message>
    <message>
        <source>Prefer to keep encryption on? That&apos;s a fair choice — it protects footage if the drive itself is stolen. This app will still keep verified copies of everything.</source>
        <translation>Möchten Sie die Verschlüsselung lieber eingeschaltet lassen? Das ist eine berechtigte Wahl — sie schützt die Aufnahmen, falls das Laufwerk selbst gestohlen wird. Diese App legt trotzdem von allem geprüfte Kopien an.</translation>
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
        <translation>%1 — keine Aufnahmen</translation>
    </message>
</context>
<context>
    <name>PlainReason</name>
    <message>
        <source>Something came close</source>
        <translation>Etwas hat sich genähert</translation>
    </message>
    <message>
        <source>Came close</source>
        <extracomment>Short label of a Sentry event where something came close to the car</extracomment>
        <translation>Annäherung</translation>
    </message>
    <message>
        <source>Sentry Mode noticed a person or object near your parked car.</source>
        <translation>Der Wächter-Modus hat eine Person oder einen Gegenstand in der Nähe Ihres geparkten Autos bemerkt.</translation>
    </message>
    <message>
        <source>Bump or impact detected</source>
        <translation>Stoß oder Aufprall erkannt</translation>
    </message>
    <message>
        <source>Impact</source>
        <extracomment>Short label of an event where the car felt a bump</extracomment>
        <translation>Aufprall</translation>
    </message>
    <message>
        <source>The car felt a physical bump or impact while parked.</source>
        <translation>Das Auto hat im geparkten Zustand einen Stoß oder Aufprall gespürt.</translation>
    </message>
    <message>
        <source>You honked</source>
        <translation>Sie haben gehupt</translation>
    </message>
    <message>
        <source>Honk save</source>
        <extracomment>Short label of footage the car saved because the driver honked</extracomment>
        <translation>Per Hupe</translation>
    </message>
    <message>
        <source>Honking saves the last few minutes of footage — a quick way to keep a moment.</source>
        <translation>Hupen speichert die letzten Minuten der Aufnahmen — ein schneller Weg, einen Moment festzuhalten.</translation>
    </message>
    <message>
        <source>You saved this</source>
        <translation>Von Ihnen gespeichert</translation>
    </message>
    <message>
        <source>You saved</source>
        <extracomment>Short label of footage the driver saved with the dashcam button</extracomment>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>You tapped the dashcam save button, so the car kept this footage.</source>
        <translation>Sie haben auf die Dashcam-Speichertaste getippt, daher hat das Auto diese Aufnahmen gespeichert.</translation>
    </message>
    <message>
        <source>Panic alarm</source>
        <translation>Panikalarm</translation>
    </message>
    <message>
        <source>Alarm</source>
        <extracomment>Short label of an event where the car&apos;s alarm went off</extracomment>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>The car&apos;s alarm was triggered.</source>
        <translation>Der Alarm des Autos wurde ausgelöst.</translation>
    </message>
    <message>
        <source>Recent driving</source>
        <translation>Letzte Fahrten</translation>
    </message>
    <message>
        <source>Driving</source>
        <extracomment>Short label of the car&apos;s rolling recording while driving</extracomment>
        <translation>Fahrt</translation>
    </message>
    <message>
        <source>The rolling last hour of driving. The car reuses this space continuously.</source>
        <translation>Die fortlaufende Aufzeichnung der letzten Stunde Fahrt. Das Auto verwendet diesen Platz ständig neu.</translation>
    </message>
    <message>
        <source>Sentry event</source>
        <translation>Wächter-Ereignis</translation>
    </message>
    <message>
        <source>Sentry</source>
        <extracomment>Short label of a Sentry event of a kind the app does not know</extracomment>
        <translation>Wächter</translation>
    </message>
    <message>
        <source>Your car flagged this moment. Newer software sometimes adds new event types.</source>
        <translation>Ihr Auto hat diesen Moment markiert. Neuere Software fügt manchmal neue Ereignisarten hinzu.</translation>
    </message>
</context>
<context>
    <name>PlatformWords</name>
    <message>
        <source>a disk utility such as Disks</source>
        <extracomment>Completes &quot;reformatting (in %1, after backing up)&quot;; Disks is the GNOME disk tool</extracomment>
        <translation>einem Datenträgerprogramm wie „Laufwerke“</translation>
    </message>
    <message>
        <source>computer</source>
        <extracomment>The user&apos;s machine, as in &quot;on this %1&quot; or &quot;on your %1&quot;</extracomment>
        <translation>Computer</translation>
    </message>
    <message>
        <source>your system</source>
        <extracomment>The operating system as the subject of a sentence, lower case</extracomment>
        <translation>Ihr System</translation>
    </message>
</context>
<context>
    <name>PlayerDrivingData</name>
    <message>
        <source>No driving data in this event</source>
        <translation>Keine Fahrdaten in diesem Ereignis</translation>
    </message>
    <message>
        <source>%1 %</source>
        <extracomment>How far the accelerator is pressed, as a percentage: &quot;42 %&quot;</extracomment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Driving data</source>
        <extracomment>Button that shows or hides the driving data over the video</extracomment>
        <translation>Fahrdaten</translation>
    </message>
    <message>
        <source>Show or hide the car&apos;s speed, pedals, steering and Autopilot state over the video. (T)</source>
        <translation>Geschwindigkeit, Pedale, Lenkung und Autopilot-Zustand des Autos über dem Video ein- oder ausblenden. (T)</translation>
    </message>
    <message>
        <source>This event&apos;s footage carries no driving data from the car.</source>
        <translation>Die Aufnahmen dieses Ereignisses enthalten keine Fahrdaten des Autos.</translation>
    </message>
    <message>
        <source>Click to switch between km/h and mph.</source>
        <translation>Klicken, um zwischen km/h und mph zu wechseln.</translation>
    </message>
    <message>
        <source>BRAKE</source>
        <extracomment>Lamp over the video that is lit while the brake pedal is pressed; keep it short</extracomment>
        <translation>BREMSE</translation>
    </message>
    <message>
        <source>Lit while the brake pedal is pressed.</source>
        <translation>Leuchtet, solange das Bremspedal gedrückt ist.</translation>
    </message>
    <message>
        <source>How far the accelerator pedal is pressed.</source>
        <translation>Wie weit das Fahrpedal gedrückt ist.</translation>
    </message>
    <message>
        <source>Steering wheel angle.</source>
        <translation>Lenkradwinkel.</translation>
    </message>
    <message>
        <source>Direction of travel.</source>
        <translation>Fahrtrichtung.</translation>
    </message>
    <message>
        <source>The car&apos;s speed over the event; red marks hard braking. Click to jump there.</source>
        <translation>Die Geschwindigkeit des Autos im Verlauf des Ereignisses; Rot markiert starkes Bremsen. Klicken, um dorthin zu springen.</translation>
    </message>
</context>
<context>
    <name>PlayerLayout</name>
    <message>
        <source>%1 — playing at %2, this computer can&apos;t keep up</source>
        <extracomment>%1 is the chosen playback speed, %2 the speed it really plays at (e.g. 1.6×)</extracomment>
        <translation>%1 — läuft mit %2, dieser Computer kommt nicht mit</translation>
    </message>
    <message>
        <source>The moment it happened — %1 into the event.</source>
        <extracomment>%1 is a time into the event, e.g. 0:42</extracomment>
        <translation>Der Moment, in dem es passiert ist — bei %1 im Ereignis.</translation>
    </message>
    <message>
        <source>%1 — currently enlarged.</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>%1 — derzeit vergrößert.</translation>
    </message>
    <message>
        <source>Switch to the %1 camera. (Keys 1–7 jump between cameras; 0 shows all.)</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>Zur Kamera %1 wechseln. (Die Tasten 1–7 springen zwischen den Kameras; 0 zeigt alle.)</translation>
    </message>
    <message>
        <source>Click to enlarge the %1 camera. Click again to show all cameras.</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>Klicken, um die Kamera %1 zu vergrößern. Erneut klicken, um alle Kameras zu zeigen.</translation>
    </message>
    <message>
        <source>Location unknown</source>
        <translation>Ort unbekannt</translation>
    </message>
    <message>
        <source>Select an event</source>
        <translation>Ereignis auswählen</translation>
    </message>
    <message>
        <source>Choose an archived event on the left to watch it — everything here works exactly like the Drive tab, even with no Tesla drive connected.</source>
        <extracomment>&quot;Drive&quot; is the app&apos;s own tab; translate it as there</extracomment>
        <translation>Wählen Sie links ein gesichertes Ereignis, um es anzusehen — hier funktioniert alles genau wie im Bereich „Laufwerk“, auch ohne angeschlossenes Tesla-Laufwerk.</translation>
    </message>
    <message>
        <source>Choose something from the list on the left to watch every available camera angle, synced on one timeline.</source>
        <translation>Wählen Sie links etwas aus der Liste, um jede verfügbare Kameraperspektive synchron auf einer Zeitleiste anzusehen.</translation>
    </message>
    <message>
        <source>Just exploring? Try sample footage</source>
        <translation>Nur umsehen? Beispielaufnahmen ausprobieren</translation>
    </message>
</context>
<context>
    <name>PlayerMetadataBar</name>
    <message>
        <source>Reason: %1</source>
        <extracomment>Screen reader name of the reason chip; %1 is the car&apos;s reason, e.g. Sentry Mode detection</extracomment>
        <translation>Grund: %1</translation>
    </message>
</context>
<context>
    <name>PlayerMoments</name>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is a hard moment (&quot;Hard braking&quot;), %2 a time into the event</extracomment>
        <translation>%1 bei %2</translation>
    </message>
    <message>
        <source>What happened</source>
        <extracomment>Button that jumps to the next thing that happened in the event</extracomment>
        <translation>Was geschah</translation>
    </message>
    <message>
        <source>Jump to the next thing that happened: someone moving in front of a camera, or a hard moment of the drive (N)</source>
        <translation>Zum nächsten Geschehen springen: jemand bewegt sich vor einer Kamera, oder ein auffälliger Moment der Fahrt (N)</translation>
    </message>
    <message>
        <source>Back to the thing that happened before (Shift+N)</source>
        <translation>Zurück zum vorherigen Geschehen (Shift+N)</translation>
    </message>
</context>
<context>
    <name>ReportChart</name>
    <message>
        <source>Speed (%1)</source>
        <extracomment>Title of the chart&apos;s speed panel; %1 is the unit, km/h or mph</extracomment>
        <translation>Geschwindigkeit (%1)</translation>
    </message>
    <message>
        <source>Accelerator (%)</source>
        <extracomment>Title of the chart&apos;s accelerator pedal panel, in percent pressed</extracomment>
        <translation>Fahrpedal (%)</translation>
    </message>
    <message>
        <source>Steering (°)</source>
        <extracomment>Title of the chart&apos;s steering wheel panel, in degrees</extracomment>
        <translation>Lenkung (°)</translation>
    </message>
    <message>
        <source>Acceleration (m/s²)</source>
        <extracomment>Title of the chart&apos;s acceleration panel</extracomment>
        <translation>Beschleunigung (m/s²)</translation>
    </message>
    <message>
        <source>moment</source>
        <extracomment>On the chart&apos;s time axis, under the moment the car triggered the recording</extracomment>
        <translation>Moment</translation>
    </message>
    <message>
        <source>start</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>On the chart&apos;s time axis: %1 is seconds from the moment, signed (+5, -5)</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Brake pressed</source>
        <extracomment>In the chart&apos;s legend, beside the colour of the brake band</extracomment>
        <translation>Bremse gedrückt</translation>
    </message>
    <message>
        <source>Acceleration x</source>
        <extracomment>In the chart&apos;s legend: acceleration along the car&apos;s x axis</extracomment>
        <translation>Beschleunigung x</translation>
    </message>
    <message>
        <source>Acceleration y</source>
        <extracomment>In the chart&apos;s legend: acceleration along the car&apos;s y axis</extracomment>
        <translation>Beschleunigung y</translation>
    </message>
</context>
<context>
    <name>ReportContent</name>
    <message>
        <source>The drive didn&apos;t answer while this file was read.</source>
        <translation>Das Laufwerk hat beim Lesen dieser Datei nicht geantwortet.</translation>
    </message>
    <message>
        <source>Locked — unlock to include this camera</source>
        <extracomment>Stands in for a camera&apos;s picture when its footage is encrypted and no key is held</extracomment>
        <translation>Gesperrt — entsperren, um diese Kamera einzubeziehen</translation>
    </message>
    <message>
        <source>This camera&apos;s picture at the moment couldn&apos;t be read.</source>
        <translation>Das Bild dieser Kamera im Moment des Ereignisses konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Plays</source>
        <extracomment>A clip&apos;s condition in the report&apos;s list of files: nothing wrong with it</extracomment>
        <translation>Abspielbar</translation>
    </message>
    <message>
        <source>Empty — the car wrote nothing into it</source>
        <translation>Leer — das Auto hat nichts hineingeschrieben</translation>
    </message>
    <message>
        <source>Cut off — the car didn&apos;t finish writing it</source>
        <translation>Abgeschnitten — das Auto hat nicht fertig geschrieben</translation>
    </message>
    <message>
        <source>Damaged — it can&apos;t be played</source>
        <translation>Beschädigt — nicht abspielbar</translation>
    </message>
    <message>
        <source>The drive didn&apos;t answer when it was read</source>
        <translation>Das Laufwerk hat beim Lesen nicht geantwortet</translation>
    </message>
    <message>
        <source>Encrypted by your car</source>
        <translation>Von Ihrem Auto verschlüsselt</translation>
    </message>
    <message>
        <source>Not checked</source>
        <extracomment>A clip&apos;s condition in the report&apos;s list of files: it was not looked at</extracomment>
        <translation>Nicht geprüft</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Diese Datei konnte nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>ReportDocument</name>
    <message>
        <source>Encrypted by your car</source>
        <translation>Von Ihrem Auto verschlüsselt</translation>
    </message>
    <message>
        <source>Incident report: %1</source>
        <extracomment>The report&apos;s title; %1 is why the car recorded, such as &quot;Sentry event&quot;</extracomment>
        <translation>Vorfallbericht: %1</translation>
    </message>
    <message>
        <source>Incident report: %1 — %2</source>
        <extracomment>The report&apos;s title; %1 is the kind of recording, such as &quot;Saved&quot;, %2 why the car recorded</extracomment>
        <translation>Vorfallbericht: %1 — %2</translation>
    </message>
    <message>
        <source>The moment</source>
        <extracomment>Label beside the date and time the car triggered the recording</extracomment>
        <translation>Zeitpunkt</translation>
    </message>
    <message>
        <source>Recording starts</source>
        <translation>Aufnahmebeginn</translation>
    </message>
    <message>
        <source>(the car&apos;s clock)</source>
        <extracomment>After the date and time of the moment: which clock says so</extracomment>
        <translation>(Uhr des Autos)</translation>
    </message>
    <message>
        <source>By the GPS clock</source>
        <extracomment>Label beside the same moment by the GPS clock, in UTC</extracomment>
        <translation>Laut GPS-Uhr</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Was geschah</translation>
    </message>
    <message>
        <source>Place</source>
        <extracomment>Label beside the street and city where it happened</extracomment>
        <translation>Ort</translation>
    </message>
    <message>
        <source>The car didn&apos;t name the place.</source>
        <translation>Das Auto hat den Ort nicht angegeben.</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Koordinaten</translation>
    </message>
    <message>
        <source>Recorded by</source>
        <extracomment>Label beside how many cameras recorded the event</extracomment>
        <translation>Aufgezeichnet von</translation>
    </message>
    <message>
        <source>The car&apos;s clock and the GPS clock differ by more than a time zone can explain: the car&apos;s clock was probably set wrong. The GPS time is the more reliable one.</source>
        <translation>Die Uhr des Autos und die GPS-Uhr weichen stärker voneinander ab, als eine Zeitzone erklären kann: Die Uhr des Autos war wahrscheinlich falsch gestellt. Die GPS-Zeit ist die verlässlichere.</translation>
    </message>
    <message>
        <source>The car encrypted this footage. The files are listed exactly as the car wrote them.</source>
        <translation>Das Auto hat diese Aufnahmen verschlüsselt. Die Dateien sind genau so aufgeführt, wie das Auto sie geschrieben hat.</translation>
    </message>
    <message>
        <source>Where, and the route driven</source>
        <extracomment>Heading over the map of the spot and the route</extracomment>
        <translation>Ort und gefahrene Route</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>The car didn&apos;t record where this happened, so there is no map.</source>
        <translation>Das Auto hat nicht aufgezeichnet, wo dies geschah, daher gibt es keine Karte.</translation>
    </message>
    <message>
        <source>Each camera at the moment</source>
        <translation>Jede Kamera im Moment des Ereignisses</translation>
    </message>
    <message>
        <source>Every picture is the camera&apos;s own frame at the moment, at its full size.</source>
        <translation>Jedes Bild ist das eigene Einzelbild der Kamera in diesem Moment, in voller Größe.</translation>
    </message>
    <message>
        <source>Driving data</source>
        <extracomment>Heading over the chart of speed, pedals and steering</extracomment>
        <translation>Fahrdaten</translation>
    </message>
    <message>
        <source>From 10 seconds before to 10 seconds after the moment, as the car recorded it with each frame.</source>
        <translation>Von 10 Sekunden vor bis 10 Sekunden nach dem Moment, wie das Auto sie mit jedem Bild aufgezeichnet hat.</translation>
    </message>
    <message>
        <source>The first 20 seconds of the recording, as the car recorded it with each frame.</source>
        <translation>Die ersten 20 Sekunden der Aufnahme, wie das Auto sie mit jedem Bild aufgezeichnet hat.</translation>
    </message>
    <message>
        <source>These clips carry no driving data: the car records it only with newer software.</source>
        <translation>Diese Clips enthalten keine Fahrdaten: Das Auto zeichnet sie nur mit neuerer Software auf.</translation>
    </message>
    <message>
        <source>At the moment</source>
        <extracomment>Heading over the car&apos;s readings at the moment</extracomment>
        <translation>Im Moment des Ereignisses</translation>
    </message>
    <message>
        <source>At the start</source>
        <translation>Zu Beginn</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>Label beside the car&apos;s speed</extracomment>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Gear</source>
        <extracomment>Label beside the gear (P, R, N, D)</extracomment>
        <translation>Fahrstufe</translation>
    </message>
    <message>
        <source>Brake</source>
        <extracomment>Label beside whether the brake pedal was pressed</extracomment>
        <translation>Bremse</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Gedrückt</translation>
    </message>
    <message>
        <source>Not pressed</source>
        <translation>Nicht gedrückt</translation>
    </message>
    <message>
        <source>Accelerator</source>
        <extracomment>Label beside how far the accelerator pedal was pressed</extracomment>
        <translation>Fahrpedal</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>How far the accelerator pedal was pressed; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Steering</source>
        <extracomment>Label beside the steering wheel&apos;s angle</extracomment>
        <translation>Lenkung</translation>
    </message>
    <message>
        <source>Driver assistance</source>
        <extracomment>Label beside Autopilot&apos;s state (Autosteer, Traffic-Aware Cruise Control…)</extracomment>
        <translation>Fahrassistenz</translation>
    </message>
    <message>
        <source>Turn signal</source>
        <extracomment>Label beside the turn signal&apos;s state</extracomment>
        <translation>Blinker</translation>
    </message>
    <message>
        <source>Hazard lights</source>
        <translation>Warnblinker</translation>
    </message>
    <message>
        <source>Heading</source>
        <extracomment>Label beside the direction the car was heading (a compass bearing)</extracomment>
        <translation>Fahrtrichtung</translation>
    </message>
    <message>
        <source>Position</source>
        <extracomment>Label beside the car&apos;s GPS coordinates</extracomment>
        <translation>Position</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <extracomment>Label beside the car&apos;s acceleration</extracomment>
        <translation>Beschleunigung</translation>
    </message>
    <message>
        <source>x %1, y %2, z %3 m/s²</source>
        <extracomment>Acceleration along the car&apos;s three axes, in metres per second squared</extracomment>
        <translation>x %1, y %2, z %3 m/s²</translation>
    </message>
    <message>
        <source>Hard moments of the drive</source>
        <extracomment>Heading over the list of hard braking, swerves and the like</extracomment>
        <translation>Auffällige Momente der Fahrt</translation>
    </message>
    <message>
        <source>The driving data shows no hard braking, swerve, sudden stop or Autopilot switching off in this event.</source>
        <translation>Die Fahrdaten zeigen in diesem Ereignis kein starkes Bremsen, kein Ausweichen, keinen plötzlichen Halt und kein Abschalten des Autopiloten.</translation>
    </message>
    <message>
        <source>%1 (%2 in)</source>
        <extracomment>When a hard moment happened: %1 the car&apos;s clock, %2 how far into the event (m:ss)</extracomment>
        <translation>%1 (bei %2)</translation>
    </message>
    <message>
        <source>Found from the car&apos;s own records: hard braking is the speed falling at 0.4 g or more; a swerve is the wheel turned at 200°/s or more, or a sideways pull of 0.5 g.</source>
        <translation>Ermittelt aus den eigenen Aufzeichnungen des Autos: Starkes Bremsen bedeutet, dass die Geschwindigkeit mit 0,4 g oder mehr abnimmt; ein Ausweichen ist ein Lenkeinschlag mit 200°/s oder mehr, oder eine seitliche Beschleunigung von 0,5 g.</translation>
    </message>
    <message>
        <source>The original files</source>
        <extracomment>Heading over the list of every file the car recorded for the event</extracomment>
        <translation>Die Originaldateien</translation>
    </message>
    <message>
        <source>Every file the car recorded for this event. Each SHA-256 was computed from the file itself as this report was made.</source>
        <translation>Jede Datei, die das Auto für dieses Ereignis aufgezeichnet hat. Jede SHA-256 wurde bei der Erstellung dieses Berichts aus der Datei selbst berechnet.</translation>
    </message>
    <message>
        <source>On the car&apos;s drive, in %1</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>Auf dem Laufwerk des Autos, in %1</translation>
    </message>
    <message>
        <source>In the Vault, in %1. Last verified %2.</source>
        <extracomment>%1 is a folder, %2 a date and time</extracomment>
        <translation>Im Tresor, in %1. Zuletzt geprüft am %2.</translation>
    </message>
    <message>
        <source>In the Vault, in %1. Not verified again since it was kept.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>Im Tresor, in %1. Seit dem Sichern nicht erneut geprüft.</translation>
    </message>
    <message>
        <source>Every file matches the Vault&apos;s record of it, made when it was kept.</source>
        <translation>Jede Datei stimmt mit dem Eintrag des Tresors überein, der beim Sichern angelegt wurde.</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Column heading: the file&apos;s name</extracomment>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Camera</source>
        <extracomment>Column heading: which camera recorded the file</extracomment>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Starts</source>
        <extracomment>Column heading: the time the file&apos;s footage starts</extracomment>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>Column heading: how long the file&apos;s footage runs (m:ss)</extracomment>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Column heading: the file&apos;s size</extracomment>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Condition</source>
        <extracomment>Column heading: whether the file plays, or how it is damaged</extracomment>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>This differs from the Vault&apos;s record: the file is not the one that was kept.</source>
        <translation>Dies weicht vom Eintrag des Tresors ab: Die Datei ist nicht die, die gesichert wurde.</translation>
    </message>
    <message>
        <source>No files were found for this event.</source>
        <translation>Für dieses Ereignis wurden keine Dateien gefunden.</translation>
    </message>
    <message>
        <source>How to check the files</source>
        <translation>So prüfen Sie die Dateien</translation>
    </message>
    <message>
        <source>Anyone can check that a file is exactly the one listed here by computing its SHA-256 again and comparing it with the one above. With the evidence package unpacked, run this in its folder; every line must end in OK:</source>
        <extracomment>Followed by the command to run; OK is what the command prints, so it stays as it is</extracomment>
        <translation>Jeder kann prüfen, ob eine Datei genau die hier aufgeführte ist, indem er ihre SHA-256 erneut berechnet und mit der oben angegebenen vergleicht. Führen Sie im Ordner des entpackten Beweispakets diesen Befehl aus; jede Zeile muss auf OK enden:</translation>
    </message>
    <message>
        <source>Made by Keelhold %1 on %2 (this computer&apos;s clock). Keelhold only reads the car&apos;s drive: nothing on it was changed.</source>
        <extracomment>At the report&apos;s end: %1 is Keelhold&apos;s version, %2 the date and time the report was made</extracomment>
        <translation>Erstellt mit Keelhold %1 am %2 (Uhr dieses Computers). Keelhold liest das Laufwerk des Autos nur: Darauf wurde nichts verändert.</translation>
    </message>
    <message>
        <source>The report couldn&apos;t be written there.</source>
        <translation>Der Bericht konnte dort nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <extracomment>At the foot of every page of the report</extracomment>
        <translation>Seite %1 von %2</translation>
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
            <numerusform>%n Kamera</numerusform>
            <numerusform>%n Kameras</numerusform>
        </translation>
    </message>
    <message>
        <source>Off</source>
        <comment>driver assistance</comment>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>turn signal</comment>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <comment>turn signal</comment>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Off</source>
        <comment>turn signal</comment>
        <translation>Aus</translation>
    </message>
    <message>
        <source>— %1, slowing at %2 g</source>
        <extracomment>After a hard moment&apos;s name: %1 the speed with its unit, %2 the deceleration in g (9.81 m/s²)</extracomment>
        <translation>— %1, Verzögerung mit %2 g</translation>
    </message>
    <message>
        <source>— %1, steering turned at %2°/s</source>
        <extracomment>After a hard moment&apos;s name: %1 the speed with its unit, %2 how fast the wheel turned, in degrees a second</extracomment>
        <translation>— %1, Lenkrad gedreht mit %2°/s</translation>
    </message>
    <message>
        <source>On a Mac: %1. On Windows: %2, one file at a time.</source>
        <extracomment>%1 and %2 are commands, which stay as they are</extracomment>
        <translation>Auf einem Mac: %1. Unter Windows: %2, eine Datei nach der anderen.</translation>
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
        <translation>Kartendaten © OpenStreetMap-Mitwirkende</translation>
    </message>
</context>
<context>
    <name>SignInLink</name>
    <message>
        <source>Tesla didn&apos;t accept this sign-in: it may have expired or been used already. Sign in again.</source>
        <translation>Tesla hat diese Anmeldung nicht angenommen: Sie ist möglicherweise abgelaufen oder wurde bereits verwendet. Melden Sie sich erneut an.</translation>
    </message>
    <message>
        <source>That isn&apos;t the address the browser landed on after signing in: it starts with %1.</source>
        <extracomment>%1 is the web address the browser should have landed on</extracomment>
        <translation>Das ist nicht die Adresse, bei der der Browser nach der Anmeldung gelandet ist: Sie beginnt mit %1.</translation>
    </message>
    <message>
        <source>Tesla didn&apos;t complete the sign-in. Try again.</source>
        <translation>Tesla hat die Anmeldung nicht abgeschlossen. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>That address belongs to another sign-in. Use the sign-in link Keelhold opened last.</source>
        <translation>Diese Adresse gehört zu einer anderen Anmeldung. Verwenden Sie den Anmeldelink, den Keelhold zuletzt geöffnet hat.</translation>
    </message>
    <message>
        <source>That address holds no sign-in code. Copy the whole address from the browser.</source>
        <translation>Diese Adresse enthält keinen Anmeldecode. Kopieren Sie die vollständige Adresse aus dem Browser.</translation>
    </message>
</context>
<context>
    <name>SyncPlayerController</name>
    <message>
        <source>Reading this camera from the drive…</source>
        <translation>Diese Kamera wird vom Laufwerk gelesen…</translation>
    </message>
    <message>
        <source>Finding the exact frame…</source>
        <extracomment>Shown on the timeline while a seek shows a nearby frame first</extracomment>
        <translation>Genaues Bild wird gesucht…</translation>
    </message>
</context>
<context>
    <name>TelemetryRecord</name>
    <message>
        <source>Self-Driving</source>
        <extracomment>Tesla&apos;s name of a driver assistance (Full Self-Driving)</extracomment>
        <translation>FSD</translation>
    </message>
    <message>
        <source>Autosteer</source>
        <extracomment>Tesla&apos;s name of a driver assistance</extracomment>
        <translation>Autolenkung</translation>
    </message>
    <message>
        <source>Traffic-Aware Cruise Control</source>
        <extracomment>Tesla&apos;s name of a driver assistance</extracomment>
        <translation>Verkehrsadaptiver Tempomat</translation>
    </message>
</context>
<context>
    <name>TeslaCamParser</name>
    <message>
        <source>The TeslaCam folder could not be found.</source>
        <translation>Der TeslaCam-Ordner wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The selected item is not a folder.</source>
        <translation>Das ausgewählte Element ist kein Ordner.</translation>
    </message>
    <message>
        <source>The TeslaCam folder could not be read.</source>
        <translation>Der TeslaCam-Ordner konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Keelhold isn&apos;t allowed to read the folder “%1”. Check the folder&apos;s permissions and try again.</source>
        <extracomment>%1 is the folder&apos;s full path</extracomment>
        <translation>Keelhold darf den Ordner „%1“ nicht lesen. Prüfen Sie die Berechtigungen des Ordners und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Reading your Tesla drive…</source>
        <translation>Ihr Tesla-Laufwerk wird gelesen…</translation>
    </message>
    <message>
        <source>Reading Sentry events…</source>
        <extracomment>Scan progress: reading the SentryClips folder</extracomment>
        <translation>Wächter-Ereignisse werden gelesen…</translation>
    </message>
    <message>
        <source>Reading Saved clips…</source>
        <extracomment>Scan progress: reading the SavedClips folder</extracomment>
        <translation>Gespeicherte Clips werden gelesen…</translation>
    </message>
    <message>
        <source>Reading Recent driving…</source>
        <extracomment>Scan progress: reading the RecentClips folder</extracomment>
        <translation>Letzte Fahrten werden gelesen…</translation>
    </message>
    <message>
        <source>Scan complete.</source>
        <translation>Einlesen abgeschlossen.</translation>
    </message>
</context>
<context>
    <name>TokenHolder</name>
    <message>
        <source>This computer has no secret store to remember your sign-in in, so it is kept only until Keelhold quits.</source>
        <translation>Dieser Computer hat keinen Schlüsselspeicher, in dem Ihre Anmeldung gespeichert werden könnte, daher bleibt sie nur erhalten, bis Keelhold beendet wird.</translation>
    </message>
</context>
<context>
    <name>TriageState</name>
    <message>
        <source>New</source>
        <extracomment>State of an event the user has not looked at yet</extracomment>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <extracomment>State of an event the user has watched</extracomment>
        <translation>Angesehen</translation>
    </message>
    <message>
        <source>In Vault</source>
        <extracomment>State of an event that is kept in the Vault</extracomment>
        <translation>Im Tresor</translation>
    </message>
    <message>
        <source>Dismissed</source>
        <extracomment>State of an event the user chose not to keep</extracomment>
        <translation>Ausgeblendet</translation>
    </message>
</context>
<context>
    <name>UiBridge</name>
    <message>
        <source>Drive</source>
        <extracomment>Sidebar section: the car&apos;s drive and its events</extracomment>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Vault</source>
        <extracomment>Sidebar section: the kept copies</extracomment>
        <translation>Tresor</translation>
    </message>
    <message>
        <source>Map</source>
        <extracomment>Sidebar section: the events on a map</extracomment>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Drive Health</source>
        <extracomment>Sidebar section: the health of the car&apos;s drive</extracomment>
        <translation>Laufwerkszustand</translation>
    </message>
    <message>
        <source>Open Help — Sentry Mode, clip length, corruption, and encryption explained.</source>
        <translation>Hilfe öffnen — Wächter-Modus, Cliplänge, Beschädigungen und Verschlüsselung erklärt.</translation>
    </message>
    <message>
        <source>Drag to resize the event list.</source>
        <translation>Ziehen, um die Größe der Ereignisliste zu ändern.</translation>
    </message>
    <message>
        <source>You&apos;re exploring sample footage · Connect your Tesla drive anytime</source>
        <translation>Sie sehen sich Beispielaufnahmen an · Schließen Sie Ihr Tesla-Laufwerk jederzeit an</translation>
    </message>
    <message>
        <source>Eject Sample</source>
        <extracomment>Button that leaves the sample footage</extracomment>
        <translation>Beispiel beenden</translation>
    </message>
    <message>
        <source>A Keelhold licence is needed</source>
        <translation>Eine Keelhold-Lizenz ist nötig</translation>
    </message>
    <message>
        <source>Reading your own Tesla drive needs a Keelhold licence. Sample footage stays available without one.</source>
        <translation>Zum Lesen Ihres eigenen Tesla-Laufwerks ist eine Keelhold-Lizenz nötig. Die Beispielaufnahmen bleiben auch ohne Lizenz verfügbar.</translation>
    </message>
    <message>
        <source>Keelhold Help</source>
        <extracomment>Menu item that opens the help window</extracomment>
        <translation>Keelhold-Hilfe</translation>
    </message>
    <message>
        <source>Explore Sample Footage</source>
        <translation>Beispielaufnahmen ansehen</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <extracomment>Menu title; &amp; marks the letter for the Alt shortcut</extracomment>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>Use Graphics Hardware for Video</source>
        <translation>Grafikhardware für Videos verwenden</translation>
    </message>
    <message>
        <source>Nothing on your drive is ever changed or deleted.</source>
        <translation>Auf Ihrem Laufwerk wird nie etwas geändert oder gelöscht.</translation>
    </message>
    <message>
        <source>Keelhold only reads from your Tesla drive. Every &quot;Keep&quot; makes a verified copy elsewhere — your original footage is never touched.</source>
        <extracomment>&quot;Keep&quot; is the app&apos;s own button; translate it as there</extracomment>
        <translation>Keelhold liest nur von Ihrem Tesla-Laufwerk. Jedes „Sichern“ legt an anderer Stelle eine geprüfte Kopie an — Ihre Originalaufnahmen werden nie angerührt.</translation>
    </message>
</context>
<context>
    <name>UnlockController</name>
    <message>
        <source>Unlock Encrypted Footage</source>
        <translation>Verschlüsselte Aufnahmen entsperren</translation>
    </message>
    <message>
        <source>Your car encrypted this footage so that only your Tesla account can watch it. To play it here, Keelhold asks Tesla&apos;s service for each clip&apos;s key, and Tesla first checks that your account owns the car.</source>
        <translation>Ihr Auto hat diese Aufnahmen verschlüsselt, sodass nur Ihr Tesla-Konto sie ansehen kann. Um sie hier abzuspielen, fragt Keelhold bei Teslas Dienst den Schlüssel jedes Clips an, und Tesla prüft zuerst, ob Ihrem Konto das Auto gehört.</translation>
    </message>
    <message>
        <source>What is sent: each clip&apos;s key id and the locked key the car wrote into it, and your car&apos;s VIN. Never any video: the footage stays on this computer.</source>
        <translation>Was gesendet wird: die Schlüssel-ID jedes Clips und der gesperrte Schlüssel, den das Auto hineingeschrieben hat, sowie die VIN Ihres Autos. Niemals Video: Die Aufnahmen bleiben auf diesem Computer.</translation>
    </message>
    <message>
        <source>The keys are kept on this computer and beside the events in your Vault, so unlocked footage plays offline from then on.</source>
        <translation>Die Schlüssel werden auf diesem Computer und neben den Ereignissen in Ihrem Tresor aufbewahrt, daher werden entsperrte Aufnahmen von da an auch offline abgespielt.</translation>
    </message>
    <message>
        <source>Your Tesla sign-in</source>
        <translation>Ihre Tesla-Anmeldung</translation>
    </message>
    <message>
        <source>Sign In with Your Browser…</source>
        <translation>Im Browser anmelden…</translation>
    </message>
    <message>
        <source>Opens Tesla&apos;s sign-in page in your browser. When you have signed in, copy the address the browser shows and paste it here. This sign-in can be renewed for months without signing in again.</source>
        <translation>Öffnet die Anmeldeseite von Tesla in Ihrem Browser. Wenn Sie angemeldet sind, kopieren Sie die Adresse, die der Browser anzeigt, und fügen Sie sie hier ein. Diese Anmeldung kann monatelang erneuert werden, ohne dass Sie sich erneut anmelden müssen.</translation>
    </message>
    <message>
        <source>Paste the address your browser landed on</source>
        <translation>Adresse einfügen, bei der Ihr Browser gelandet ist</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Or copy the viewer&apos;s sign-in token:</source>
        <translation>Oder kopieren Sie das Anmeldetoken des Viewers:</translation>
    </message>
    <message>
        <source>Paste your sign-in token</source>
        <translation>Anmeldetoken einfügen</translation>
    </message>
    <message>
        <source>Remember on this computer</source>
        <translation>Auf diesem Computer speichern</translation>
    </message>
    <message>
        <source>Kept in your desktop&apos;s secret store (its keyring), never in a plain file. Without it, the sign-in is forgotten when Keelhold quits.</source>
        <translation>Wird im Schlüsselspeicher Ihres Desktops (seinem Schlüsselbund) aufbewahrt, nie in einer einfachen Datei. Ohne diese Option wird die Anmeldung vergessen, wenn Keelhold beendet wird.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <extracomment>Button that asks Tesla for the keys with the pasted sign-in token</extracomment>
        <translation>Entsperren</translation>
    </message>
    <message>
        <source>Open Tesla&apos;s Viewer</source>
        <translation>Teslas Viewer öffnen</translation>
    </message>
    <message>
        <source>Forget my sign-in</source>
        <translation>Anmeldung vergessen</translation>
    </message>
    <message>
        <source>Sign in again…</source>
        <translation>Erneut anmelden…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Asking Tesla for the keys…</source>
        <translation>Schlüssel werden bei Tesla angefragt…</translation>
    </message>
    <message>
        <source>You&apos;re signed in for as long as Keelhold runs.</source>
        <translation>Sie sind angemeldet, solange Keelhold läuft.</translation>
    </message>
    <message>
        <source>You&apos;re signed in, and your sign-in is remembered on this computer.</source>
        <translation>Sie sind angemeldet, und Ihre Anmeldung ist auf diesem Computer gespeichert.</translation>
    </message>
    <message>
        <source>Some footage is encrypted by your car</source>
        <translation>Einige Aufnahmen sind von Ihrem Auto verschlüsselt</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>Entsperren…</translation>
    </message>
    <message>
        <source>Turn encryption off for future recordings…</source>
        <translation>Verschlüsselung für künftige Aufnahmen ausschalten…</translation>
    </message>
    <message>
        <source>Unlock Encrypted Footage…</source>
        <translation>Verschlüsselte Aufnahmen entsperren…</translation>
    </message>
    <message>
        <source>Open Tesla&apos;s dashcam viewer (%1) in your browser and sign in with your Tesla account.</source>
        <translation>Öffnen Sie Teslas Dashcam-Viewer (%1) in Ihrem Browser und melden Sie sich mit Ihrem Tesla-Konto an.</translation>
    </message>
    <message>
        <source>Open the browser&apos;s developer tools (F12) and choose the Network tab.</source>
        <extracomment>&quot;Network&quot; is the tab&apos;s name in the browser&apos;s developer tools</extracomment>
        <translation>Öffnen Sie die Entwicklerwerkzeuge des Browsers (F12) und wählen Sie den Tab „Netzwerk“.</translation>
    </message>
    <message>
        <source>Paste it below. It works for about eight hours; sign in again after that.</source>
        <translation>Fügen Sie es unten ein. Es gilt etwa acht Stunden; melden Sie sich danach erneut an.</translation>
    </message>
    <message>
        <source>Keelhold lists and keeps them like any other; to watch them here, unlock them with your Tesla account.</source>
        <translation>Keelhold listet und sichert sie wie alle anderen; um sie hier anzusehen, entsperren Sie sie mit Ihrem Tesla-Konto.</translation>
    </message>
    <message>
        <source>Play any clip in the viewer, then pick the request named “batch” in the list.</source>
        <extracomment>&quot;batch&quot; is the request&apos;s name as the browser lists it; keep it as it is</extracomment>
        <translation>Spielen Sie einen beliebigen Clip im Viewer ab und wählen Sie dann in der Liste die Anfrage namens „batch“.</translation>
    </message>
    <message>
        <source>Under Request Headers, copy the text after “Authorization: Bearer”.</source>
        <extracomment>&quot;Request Headers&quot; is a heading in the browser&apos;s developer tools; &quot;Authorization: Bearer&quot; stays as it is</extracomment>
        <translation>Kopieren Sie unter „Anfrage-Header“ (Request Headers) den Text nach „Authorization: Bearer“.</translation>
    </message>
    <message numerus="yes">
        <source>%n events here were recorded with your car&apos;s encryption on.</source>
        <translation>
            <numerusform>%n Ereignis hier wurde bei eingeschalteter Verschlüsselung Ihres Autos aufgezeichnet.</numerusform>
            <numerusform>%n Ereignisse hier wurden bei eingeschalteter Verschlüsselung Ihres Autos aufgezeichnet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocked %n clips.</source>
        <translation>
            <numerusform>%n Clip entsperrt.</numerusform>
            <numerusform>%n Clips entsperrt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocked %1 of %n clips.</source>
        <translation>
            <numerusform>%1 von %n Clip entsperrt.</numerusform>
            <numerusform>%1 von %n Clips entsperrt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Unlocker</name>
    <message>
        <source>The keys couldn&apos;t be saved on this computer, so they work until Keelhold quits and will be asked for again next time.</source>
        <translation>Die Schlüssel konnten nicht auf diesem Computer gespeichert werden, daher gelten sie nur, bis Keelhold beendet wird, und werden beim nächsten Mal erneut angefragt.</translation>
    </message>
</context>
<context>
    <name>VaultIndex</name>
    <message>
        <source>There is no Trash folder at %1 and it can&apos;t be made, so nothing was removed.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>Unter %1 gibt es keinen Papierkorb-Ordner, und er kann nicht angelegt werden, daher wurde nichts entfernt.</translation>
    </message>
    <message>
        <source>Couldn&apos;t move %1 to the Trash, so nothing was removed.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>%1 konnte nicht in den Papierkorb verschoben werden, daher wurde nichts entfernt.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1: %2</source>
        <extracomment>%1 is a file&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>%1 konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Couldn&apos;t create the folder %1.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>Der Ordner %1 konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2</source>
        <extracomment>%1 is a file&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The Vault&apos;s index points outside the Vault folder (%1), so nothing was removed.</source>
        <extracomment>%1 is the folder the index names, as written in it</extracomment>
        <translation>Der Index des Tresors verweist auf einen Ort außerhalb des Tresor-Ordners (%1), daher wurde nichts entfernt.</translation>
    </message>
</context>
<context>
    <name>VaultMarks</name>
    <message>
        <source>Faithful Copy</source>
        <translation>Originalgetreue Kopie</translation>
    </message>
    <message>
        <source>Every file below was copied and its checksum (SHA-256) was compared to the original on your drive at the time — a faithful, unaltered copy. This is a technical integrity check, not a legal certification.</source>
        <translation>Jede der folgenden Dateien wurde kopiert, und ihre Prüfsumme (SHA-256) wurde damals mit dem Original auf Ihrem Laufwerk verglichen — eine originalgetreue, unveränderte Kopie. Dies ist eine technische Integritätsprüfung, keine rechtliche Beglaubigung.</translation>
    </message>
    <message>
        <source>Archived %1 from %2</source>
        <extracomment>%1 is when the event was kept, %2 the name of the drive it came from</extracomment>
        <translation>Gesichert am %1 von %2</translation>
    </message>
    <message>
        <source>Missing</source>
        <extracomment>A kept file that is no longer in the Vault</extracomment>
        <translation>Fehlt</translation>
    </message>
    <message>
        <source>Changed since it was kept</source>
        <translation>Seit dem Sichern geändert</translation>
    </message>
    <message>
        <source>Couldn&apos;t be read</source>
        <translation>Nicht lesbar</translation>
    </message>
    <message>
        <source>Last re-read %1.</source>
        <extracomment>%1 is the date and time of the last re-reading</extracomment>
        <translation>Zuletzt erneut gelesen am %1.</translation>
    </message>
    <message>
        <source>Not re-read since it was kept.</source>
        <translation>Seit dem Sichern nicht erneut gelesen.</translation>
    </message>
    <message>
        <source>Missing from your Vault since it was kept: %1</source>
        <translation>Seit dem Sichern aus Ihrem Tresor verschwunden: %1</translation>
    </message>
    <message>
        <source>Changed since it was kept: %1</source>
        <translation>Seit dem Sichern geändert: %1</translation>
    </message>
    <message>
        <source>Files Missing</source>
        <translation>Dateien fehlen</translation>
    </message>
    <message>
        <source>Changed Since It Was Kept</source>
        <translation>Seit dem Sichern geändert</translation>
    </message>
    <message>
        <source>When Keelhold re-read this event on %1, %2 no longer matched the copy it made. The file named below was changed or removed after it was kept; if the event is still on your drive, keep it again.</source>
        <extracomment>%1 is the day of the re-reading, %2 how many files (&quot;one file&quot;, &quot;3 files&quot;)</extracomment>
        <translation>Als Keelhold dieses Ereignis am %1 erneut gelesen hat, stimmte Folgendes nicht mehr mit der angelegten Kopie überein: %2. Die unten genannte Datei wurde nach dem Sichern geändert oder entfernt; falls das Ereignis noch auf Ihrem Laufwerk ist, sichern Sie es erneut.</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>eine Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n files</source>
        <extracomment>Files that reached the Vault, of all the event has</extracomment>
        <translation>
            <numerusform>%1 von %n Datei</numerusform>
            <numerusform>%1 von %n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Incomplete — %1</source>
        <translation>Unvollständig — %1</translation>
    </message>
    <message>
        <source>Only part of this event reached your Vault. Keep it again from the drive to finish it.</source>
        <translation>Nur ein Teil dieses Ereignisses hat Ihren Tresor erreicht. Sichern Sie es erneut vom Laufwerk, um es zu vervollständigen.</translation>
    </message>
    <message>
        <source>Incomplete Copy</source>
        <translation>Unvollständige Kopie</translation>
    </message>
    <message>
        <source>The copy of this event was cut off before every file arrived: %1 are here. Each of them was checked as it was copied, but the event is not complete. Keep it again from your drive to finish it.</source>
        <translation>Die Kopie dieses Ereignisses wurde abgebrochen, bevor alle Dateien angekommen waren: Vorhanden sind %1. Jede davon wurde beim Kopieren geprüft, aber das Ereignis ist nicht vollständig. Sichern Sie es erneut von Ihrem Laufwerk, um es zu vervollständigen.</translation>
    </message>
    <message>
        <source>Verified %1</source>
        <extracomment>The badge of a kept event; %1 is the day it was last re-read</extracomment>
        <translation>Geprüft am %1</translation>
    </message>
    <message>
        <source>Every file was read again on %1 and still matches the checksum taken when it was kept. Tap for the technical detail.</source>
        <translation>Jede Datei wurde am %1 erneut gelesen und stimmt weiterhin mit der Prüfsumme überein, die beim Sichern ermittelt wurde. Klicken Sie für die technischen Details.</translation>
    </message>
    <message>
        <source>Verified copy</source>
        <translation>Geprüfte Kopie</translation>
    </message>
    <message>
        <source>This copy was checked byte-for-byte against your drive when it was archived. Tap for the technical detail.</source>
        <translation>Diese Kopie wurde beim Sichern Byte für Byte mit Ihrem Laufwerk verglichen. Klicken Sie für die technischen Details.</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>%1 has changed</source>
        <translation>%1 wurde geändert</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1 kann nicht gelesen werden</translation>
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
            <numerusform>%n weiteres gesichertes Ereignis hat ebenfalls Probleme.</numerusform>
            <numerusform>%n weitere gesicherte Ereignisse haben ebenfalls Probleme.</numerusform>
        </translation>
    </message>
    <message>
        <source>Something changed these copies after they were kept. If the events are still on your drive, keep them again.</source>
        <translation>Etwas hat diese Kopien nach dem Sichern verändert. Falls die Ereignisse noch auf Ihrem Laufwerk sind, sichern Sie sie erneut.</translation>
    </message>
    <message numerus="yes">
        <source>%n kept events no longer match what was kept</source>
        <translation>
            <numerusform>%n gesichertes Ereignis stimmt nicht mehr mit dem Gesicherten überein</numerusform>
            <numerusform>%n gesicherte Ereignisse stimmen nicht mehr mit dem Gesicherten überein</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Drive disconnected — %1 of %n events kept completely</source>
        <translation>
            <numerusform>Laufwerk getrennt — %1 von %n Ereignis vollständig gesichert</numerusform>
            <numerusform>Laufwerk getrennt — %1 von %n Ereignissen vollständig gesichert</numerusform>
        </translation>
    </message>
    <message>
        <source>Backup Stopped</source>
        <translation>Sicherung angehalten</translation>
    </message>
    <message numerus="yes">
        <source>Backup Incomplete — %1 of %n events kept completely</source>
        <translation>
            <numerusform>Sicherung unvollständig — %1 von %n Ereignis vollständig gesichert</numerusform>
            <numerusform>Sicherung unvollständig — %1 von %n Ereignissen vollständig gesichert</numerusform>
        </translation>
    </message>
    <message>
        <source>Backup Complete</source>
        <translation>Sicherung abgeschlossen</translation>
    </message>
    <message numerus="yes">
        <source>%n events copied and verified, byte-for-byte. The original on your drive is untouched.</source>
        <translation>
            <numerusform>%n Ereignis kopiert und Byte für Byte geprüft. Das Original auf Ihrem Laufwerk bleibt unberührt.</numerusform>
            <numerusform>%n Ereignisse kopiert und Byte für Byte geprüft. Das Original auf Ihrem Laufwerk bleibt unberührt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n events reached your Vault only in part (%1 of %2 files), so they aren&apos;t verified copies. Keep them again to finish them.</source>
        <extracomment>%1 of %2 are the files that arrived, of all the events have</extracomment>
        <translation>
            <numerusform>%n Ereignis hat Ihren Tresor nur teilweise erreicht (%1 von %2 Dateien), daher ist es keine geprüfte Kopie. Sichern Sie es erneut, um es zu vervollständigen.</numerusform>
            <numerusform>%n Ereignisse haben Ihren Tresor nur teilweise erreicht (%1 von %2 Dateien), daher sind sie keine geprüften Kopien. Sichern Sie sie erneut, um sie zu vervollständigen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were already in your Vault, so we skipped them.</source>
        <extracomment>%n is a number of events</extracomment>
        <translation>
            <numerusform>%n war bereits in Ihrem Tresor und wurde übersprungen.</numerusform>
            <numerusform>%n waren bereits in Ihrem Tresor und wurden übersprungen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files couldn&apos;t be read as the drive went away.</source>
        <translation>
            <numerusform>%n Datei konnte nicht gelesen werden, weil das Laufwerk getrennt wurde.</numerusform>
            <numerusform>%n Dateien konnten nicht gelesen werden, weil das Laufwerk getrennt wurde.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files couldn&apos;t be read — your drive may be failing. Nothing was deleted or changed; you can try again.</source>
        <translation>
            <numerusform>%n Datei konnte nicht gelesen werden — Ihr Laufwerk fällt möglicherweise aus. Nichts wurde gelöscht oder verändert; Sie können es erneut versuchen.</numerusform>
            <numerusform>%n Dateien konnten nicht gelesen werden — Ihr Laufwerk fällt möglicherweise aus. Nichts wurde gelöscht oder verändert; Sie können es erneut versuchen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VaultViewModel</name>
    <message>
        <source>Vault</source>
        <extracomment>Title of the Vault&apos;s list</extracomment>
        <translation>Tresor</translation>
    </message>
    <message>
        <source>Choose Your Vault Folder</source>
        <extracomment>Title of the folder dialog that picks the Vault&apos;s folder</extracomment>
        <translation>Tresor-Ordner wählen</translation>
    </message>
    <message>
        <source>Pick (or create) a folder where Keelhold will keep permanent copies of the footage you decide to keep.</source>
        <translation>Wählen (oder erstellen) Sie einen Ordner, in dem Keelhold dauerhafte Kopien der Aufnahmen aufbewahrt, die Sie sichern möchten.</translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <extracomment>Accept button of the folder dialog that picks the Vault&apos;s folder</extracomment>
        <translation>Diesen Ordner verwenden</translation>
    </message>
    <message>
        <source>Change Vault Folder</source>
        <translation>Tresor-Ordner ändern</translation>
    </message>
    <message>
        <source>Point Keelhold at a different folder or drive for your permanent archive.</source>
        <translation>Keelhold einen anderen Ordner oder ein anderes Laufwerk für Ihr dauerhaftes Archiv zuweisen.</translation>
    </message>
    <message>
        <source>How much space your kept footage uses, and how much room the Vault&apos;s disk has left.</source>
        <translation>Wie viel Platz Ihre gesicherten Aufnahmen belegen und wie viel Platz auf dem Datenträger des Tresors noch frei ist.</translation>
    </message>
    <message>
        <source>Move to Trash…</source>
        <extracomment>Menu item of a kept event</extracomment>
        <translation>In den Papierkorb…</translation>
    </message>
    <message>
        <source>Move this event to the Trash?</source>
        <translation>Dieses Ereignis in den Papierkorb verschieben?</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <extracomment>Button that confirms moving the kept event to the Trash</extracomment>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Choose a Different Folder</source>
        <translation>Anderen Ordner wählen</translation>
    </message>
    <message>
        <source>Choose Another Folder…</source>
        <translation>Anderen Ordner wählen…</translation>
    </message>
    <message>
        <source>Keeping footage safe…</source>
        <translation>Aufnahmen werden gesichert…</translation>
    </message>
    <message>
        <source>Stops after the current file. Anything already copied and verified stays in your Vault — nothing is undone.</source>
        <translation>Hält nach der aktuellen Datei an. Alles bereits Kopierte und Geprüfte bleibt in Ihrem Tresor — nichts wird rückgängig gemacht.</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the keep&apos;s report</extracomment>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Verify Vault</source>
        <translation>Tresor prüfen</translation>
    </message>
    <message>
        <source>Read every kept file again and compare it with the checksum taken when it was kept.</source>
        <translation>Jede gesicherte Datei erneut lesen und mit der Prüfsumme vergleichen, die beim Sichern ermittelt wurde.</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Choose a Vault Folder</source>
        <translation>Tresor-Ordner wählen</translation>
    </message>
    <message>
        <source>Your Vault is a folder on this %1 (or an external drive you keep) where Keelhold keeps permanent, verified copies of the footage you choose to keep — safe even if your car&apos;s drive fails, fills up, or gets wiped.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Ihr Tresor ist ein Ordner auf diesem %1 (oder auf einem externen Laufwerk, das Sie aufbewahren), in dem Keelhold dauerhafte, geprüfte Kopien der Aufnahmen aufbewahrt, die Sie sichern möchten — sicher, selbst wenn das Laufwerk Ihres Autos ausfällt, voll wird oder gelöscht wird.</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen…</translation>
    </message>
    <message>
        <source>Your Vault is empty so far</source>
        <translation>Ihr Tresor ist noch leer</translation>
    </message>
    <message>
        <source>Nothing has been kept yet. From the Drive tab, select an event and choose &quot;Keep&quot; to copy it here permanently.</source>
        <extracomment>&quot;Drive&quot; and &quot;Keep&quot; are the app&apos;s own tab and button; translate them as there</extracomment>
        <translation>Es wurde noch nichts gesichert. Wählen Sie im Bereich „Laufwerk“ ein Ereignis aus und dann „Sichern“, um es dauerhaft hierher zu kopieren.</translation>
    </message>
    <message numerus="yes">
        <source>%n events · %1 · %2 free on this disk</source>
        <extracomment>The Vault&apos;s summary: how many kept events, their size, and the room left on the Vault&apos;s disk</extracomment>
        <translation>
            <numerusform>%n Ereignis · %1 · %2 frei auf diesem Datenträger</numerusform>
            <numerusform>%n Ereignisse · %1 · %2 frei auf diesem Datenträger</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n events · %1</source>
        <extracomment>The Vault&apos;s summary: how many kept events and their size</extracomment>
        <translation>
            <numerusform>%n Ereignis · %1</numerusform>
            <numerusform>%n Ereignisse · %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n events</source>
        <extracomment>A keep&apos;s progress: events done of all it keeps</extracomment>
        <translation>
            <numerusform>%1 von %n Ereignis</numerusform>
            <numerusform>%1 von %n Ereignissen</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused at %1 — that is a different drive; plug in the one this keep was reading</source>
        <translation>Angehalten bei %1 — das ist ein anderes Laufwerk; stecken Sie das Laufwerk ein, von dem gesichert wurde</translation>
    </message>
    <message>
        <source>Paused at %1 — plug the drive back in to go on</source>
        <translation>Angehalten bei %1 — stecken Sie das Laufwerk wieder ein, um fortzufahren</translation>
    </message>
    <message>
        <source>Reading your kept footage again…</source>
        <translation>Ihre gesicherten Aufnahmen werden erneut gelesen…</translation>
    </message>
    <message>
        <source>Reading 1 kept event again…</source>
        <translation>1 gesichertes Ereignis wird erneut gelesen…</translation>
    </message>
    <message>
        <source>Reading kept events again: %1 of %2 done</source>
        <translation>Gesicherte Ereignisse werden erneut gelesen: %1 von %2 erledigt</translation>
    </message>
    <message>
        <source>%1 will move to your %2&apos;s Trash, where you can still recover it. Nothing on your Tesla drive is touched.</source>
        <extracomment>%1 is the event&apos;s day and time (&quot;Mon 2:11 AM&quot;), %2 the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Das Ereignis von %1 wird auf Ihrem %2 in den Papierkorb verschoben, wo Sie es noch wiederherstellen können. Auf Ihrem Tesla-Laufwerk wird nichts angerührt.</translation>
    </message>
    <message>
        <source>This drive</source>
        <translation>Dieses Laufwerk</translation>
    </message>
    <message>
        <source>Keep new events automatically when this drive is connected</source>
        <translation>Neue Ereignisse automatisch sichern, wenn dieses Laufwerk angeschlossen wird</translation>
    </message>
    <message>
        <source>Recent driving too</source>
        <extracomment>Ticked with the choice above: recent driving is kept as well</extracomment>
        <translation>Auch letzte Fahrten</translation>
    </message>
    <message>
        <source>%1 — Sentry and saved events, each file checked, as soon as it is connected while Keelhold is open.</source>
        <extracomment>%1 is the drive&apos;s name</extracomment>
        <translation>%1 — Wächter- und gespeicherte Ereignisse, jede Datei geprüft, sobald es angeschlossen wird, während Keelhold geöffnet ist.</translation>
    </message>
</context>
<context>
    <name>VideoReencoder</name>
    <message>
        <source>The footage couldn&apos;t be converted for the movie.</source>
        <translation>Die Aufnahmen konnten nicht für den Film umgewandelt werden.</translation>
    </message>
    <message>
        <source>There wasn&apos;t enough memory to convert the footage.</source>
        <translation>Es war nicht genug Arbeitsspeicher vorhanden, um die Aufnahmen umzuwandeln.</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be encoded: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>Die Aufnahmen konnten nicht codiert werden: %1.</translation>
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
        <translation>Unbekannt</translation>
    </message>
</context>
</TS>
