<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>ActivityStrip</name>
    <message>
        <source>Movement in front of each camera: the stronger the colour, the more changed. Click to go there.</source>
        <translation>Beweging voor elke camera: hoe sterker de kleur, hoe meer er veranderde. Klik om erheen te gaan.</translation>
    </message>
    <message>
        <source>%1: movement at %2</source>
        <extracomment>%1 is a camera&apos;s name, %2 a time into the event</extracomment>
        <translation>%1: beweging op %2</translation>
    </message>
    <message>
        <source>%1: quiet at %2</source>
        <translation>%1: rustig op %2</translation>
    </message>
</context>
<context>
    <name>AppCommandLine</name>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1 is the command&apos;s synopsis, which stays as it is</extracomment>
        <translation>Gebruik: %1</translation>
    </message>
    <message>
        <source>  or:  %1</source>
        <extracomment>The second synopsis line, under &quot;Usage:&quot;; %1 stays as it is</extracomment>
        <translation>     of: %1</translation>
    </message>
    <message>
        <source>Reviews the footage a Tesla records to its USB drive. Keelhold reads the drive&apos;s TeslaCam folder without ever writing to it, plays every camera of an event in sync, and keeps chosen events in a Vault folder as verified copies.</source>
        <translation>Bekijkt de beelden die een Tesla op zijn USB-schijf opneemt. Keelhold leest de map TeslaCam van de schijf zonder er ooit naar te schrijven, speelt alle camera&apos;s van een gebeurtenis synchroon af en bewaart gekozen gebeurtenissen in een Kluismap als geverifieerde kopieën.</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Afsluitstatus:</translation>
    </message>
    <message>
        <source>The window was closed.</source>
        <translation>Het venster is gesloten.</translation>
    </message>
    <message>
        <source>The window could not be shown.</source>
        <translation>Het venster kon niet worden getoond.</translation>
    </message>
    <message>
        <source>The command line was wrong.</source>
        <translation>De opdrachtregel was onjuist.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opties:</translation>
    </message>
    <message>
        <source>Start with the sample footage instead of a drive.</source>
        <translation>Start met de voorbeeldbeelden in plaats van een schijf.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Toon deze hulp.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Toon de versie.</translation>
    </message>
    <message>
        <source>Environment:</source>
        <extracomment>Heading over the environment variables the program reads</extracomment>
        <translation>Omgevingsvariabelen:</translation>
    </message>
    <message>
        <source>A TeslaCam folder to show as the sample footage.</source>
        <translation>Een TeslaCam-map om als voorbeeldbeelden te tonen.</translation>
    </message>
    <message>
        <source>%1 or %2, in place of the desktop&apos;s choice.</source>
        <extracomment>%1 and %2 are the variable&apos;s values, typed as they stand</extracomment>
        <translation>%1 of %2, in plaats van de keuze van het bureaublad.</translation>
    </message>
    <message>
        <source>keelhold doesn&apos;t know “%1”. Run “keelhold --help” to see what it takes.</source>
        <extracomment>%1 is the argument given; &quot;keelhold --help&quot; is a command and stays as it is</extracomment>
        <translation>keelhold kent “%1” niet. Voer “keelhold --help” uit om te zien wat het accepteert.</translation>
    </message>
    <message>
        <source>Open at the Vault, where kept events are.</source>
        <translation>Open bij de Kluis, waar de bewaarde gebeurtenissen staan.</translation>
    </message>
    <message>
        <source>keelhold: the sample footage is not installed, so Keelhold starts without it.</source>
        <translation>keelhold: de voorbeeldbeelden zijn niet geïnstalleerd, dus Keelhold start zonder.</translation>
    </message>
</context>
<context>
    <name>ArchiveEngine</name>
    <message>
        <source>This file took too long to read — the drive may be failing.</source>
        <translation>Het lezen van dit bestand duurde te lang — de schijf is mogelijk defect.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create a file in your Vault folder.</source>
        <translation>Kon geen bestand aanmaken in je Kluismap.</translation>
    </message>
    <message>
        <source>This file changed size while copying — the drive may have been disconnected.</source>
        <translation>De grootte van dit bestand veranderde tijdens het kopiëren — de schijf is mogelijk losgekoppeld.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Dit bestand kon niet worden gelezen.</translation>
    </message>
    <message>
        <source>There isn&apos;t enough space in your Vault folder.</source>
        <translation>Er is niet genoeg ruimte in je Kluismap.</translation>
    </message>
    <message>
        <source>The Vault folder is no longer available.</source>
        <translation>De Kluismap is niet meer beschikbaar.</translation>
    </message>
    <message>
        <source>This isn&apos;t an ordinary file (it is a link or a special file), so it was left alone.</source>
        <translation>Dit is geen gewoon bestand (het is een koppeling of een speciaal bestand), dus het is met rust gelaten.</translation>
    </message>
    <message>
        <source>The Vault&apos;s list of kept events couldn&apos;t be saved, so nothing from this run is recorded as kept.</source>
        <translation>De lijst met bewaarde gebeurtenissen van de Kluis kon niet worden opgeslagen, dus niets uit deze ronde is als bewaard vastgelegd.</translation>
    </message>
</context>
<context>
    <name>ArchivedEvent</name>
    <message>
        <source>Unknown Drive</source>
        <extracomment>Stands for the name of a drive that could not be read</extracomment>
        <translation>Onbekende schijf</translation>
    </message>
</context>
<context>
    <name>Camera</name>
    <message>
        <source>Front</source>
        <extracomment>Camera name: the camera looking ahead through the windscreen</extracomment>
        <translation>Voor</translation>
    </message>
    <message>
        <source>Rear</source>
        <extracomment>Camera name: the camera looking backwards above the number plate</extracomment>
        <translation>Achter</translation>
    </message>
    <message>
        <source>Left Side</source>
        <extracomment>Camera name: the camera in the left side repeater, looking back along the car</extracomment>
        <translation>Zijkant links</translation>
    </message>
    <message>
        <source>Right Side</source>
        <extracomment>Camera name: the camera in the right side repeater, looking back along the car</extracomment>
        <translation>Zijkant rechts</translation>
    </message>
    <message>
        <source>Left Pillar</source>
        <extracomment>Camera name: the camera in the left door pillar (B pillar)</extracomment>
        <translation>Stijl links</translation>
    </message>
    <message>
        <source>Right Pillar</source>
        <extracomment>Camera name: the camera in the right door pillar (B pillar)</extracomment>
        <translation>Stijl rechts</translation>
    </message>
    <message>
        <source>Backup</source>
        <extracomment>Camera name: the reversing camera (not a copy of files)</extracomment>
        <translation>Achteruit</translation>
    </message>
</context>
<context>
    <name>CameraTile</name>
    <message>
        <source>%1 camera</source>
        <extracomment>Screen reader name of a camera&apos;s tile; %1 is the camera&apos;s name, e.g. Left Side</extracomment>
        <translation>Camera %1</translation>
    </message>
</context>
<context>
    <name>CliOutput</name>
    <message>
        <source>Read a TeslaCam folder and print its events as JSON.</source>
        <translation>Lees een TeslaCam-map en toon de gebeurtenissen als JSON.</translation>
    </message>
    <message>
        <source>Print the health report of a TeslaCam folder as JSON.</source>
        <translation>Toon het gezondheidsrapport van een TeslaCam-map als JSON.</translation>
    </message>
    <message>
        <source>Write one camera of one event as one MP4 movie, or all cameras at once.</source>
        <translation>Schrijf één camera van één gebeurtenis als één MP4-video, of alle camera&apos;s tegelijk.</translation>
    </message>
    <message>
        <source>Write the incident report of one event as a PDF, or an evidence package with every original.</source>
        <translation>Schrijf het incidentrapport van één gebeurtenis als PDF, of een bewijspakket met elk origineel.</translation>
    </message>
    <message>
        <source>Copy events into a Vault folder, checking every file.</source>
        <translation>Kopieer gebeurtenissen naar een Kluismap en controleer elk bestand.</translation>
    </message>
    <message>
        <source>List, remove or re-check the events kept in a Vault folder.</source>
        <translation>Toon, verwijder of controleer opnieuw de bewaarde gebeurtenissen in een Kluismap.</translation>
    </message>
    <message>
        <source>Print the driving data recorded with an event&apos;s footage.</source>
        <translation>Toon de rijgegevens die met de beelden van een gebeurtenis zijn vastgelegd.</translation>
    </message>
    <message>
        <source>Print where to look in an event: activity in front of each camera, and hard moments.</source>
        <translation>Toon waar je in een gebeurtenis moet kijken: activiteit voor elke camera en heftige momenten.</translation>
    </message>
    <message>
        <source>Check and remember your Tesla sign-in, for the car&apos;s encrypted clips.</source>
        <translation>Controleer en onthoud je Tesla-aanmelding, voor de versleutelde clips van de auto.</translation>
    </message>
    <message>
        <source>Write an event&apos;s encrypted clips as the plain MP4 movies they hold.</source>
        <translation>Schrijf de versleutelde clips van een gebeurtenis als de gewone MP4-video&apos;s die ze bevatten.</translation>
    </message>
    <message>
        <source>There is no folder at “%1”. Check that the drive is plugged in and the path is right.</source>
        <translation>Er is geen map op “%1”. Controleer of de schijf is aangesloten en of het pad klopt.</translation>
    </message>
    <message>
        <source>“%1” is a file, not a folder. Give the TeslaCam folder itself.</source>
        <translation>“%1” is een bestand, geen map. Geef de TeslaCam-map zelf op.</translation>
    </message>
    <message>
        <source>There is no event “%1” in this folder.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>Er is geen gebeurtenis “%1” in deze map.</translation>
    </message>
    <message>
        <source>A file holding your Tesla sign-in token, or - to read it from standard input. Without it, the token keelhold-cli unlock remembered is used.</source>
        <translation>Een bestand met je Tesla-aanmeldtoken, of - om het van standaardinvoer te lezen. Zonder deze optie wordt het token gebruikt dat keelhold-cli unlock heeft onthouden.</translation>
    </message>
    <message>
        <source>The token file %1 can&apos;t be read.</source>
        <translation>Het tokenbestand %1 kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>Standard input holds no sign-in token.</source>
        <translation>Standaardinvoer bevat geen aanmeldtoken.</translation>
    </message>
    <message>
        <source>The file %1 holds no sign-in token.</source>
        <translation>Het bestand %1 bevat geen aanmeldtoken.</translation>
    </message>
    <message>
        <source>These clips are encrypted by your car and no key for them is kept here: give your Tesla sign-in token with --token-file, or run keelhold-cli unlock first.</source>
        <translation>Deze clips zijn door je auto versleuteld en er is hier geen sleutel voor bewaard: geef je Tesla-aanmeldtoken op met --token-file, of voer eerst keelhold-cli unlock uit.</translation>
    </message>
    <message>
        <source>Writes each encrypted clip of an event as the plain MP4 movie it holds, under the same file name, into a
folder of your choice. Keys kept before are used first; the missing ones are fetched from Tesla&apos;s service
with your sign-in token. Exits with 1 when only some clips could be written.</source>
        <translation>Schrijft elke versleutelde clip van een gebeurtenis als de gewone MP4-video die erin zit, onder dezelfde
bestandsnaam, naar een map naar keuze. Eerder bewaarde sleutels worden eerst gebruikt; de ontbrekende worden
met je aanmeldtoken opgehaald bij de dienst van Tesla. Sluit af met 1 als maar een deel van de clips kon
worden geschreven.</translation>
    </message>
    <message>
        <source>The TeslaCam folder, or a Vault folder, to read.</source>
        <translation>De TeslaCam-map of een Kluismap om te lezen.</translation>
    </message>
    <message>
        <source>The event&apos;s id, as keelhold-cli scan prints it.</source>
        <translation>Het id van de gebeurtenis, zoals keelhold-cli scan het toont.</translation>
    </message>
    <message>
        <source>Only this camera&apos;s clips.</source>
        <translation>Alleen de clips van deze camera.</translation>
    </message>
    <message>
        <source>The folder to write the movies into.</source>
        <translation>De map waarin de video&apos;s worden geschreven.</translation>
    </message>
    <message>
        <source>“%1” is not a camera; use one of %2.</source>
        <extracomment>%1 is the camera as typed, %2 the camera names the command takes</extracomment>
        <translation>“%1” is geen camera; gebruik een van %2.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so choose a folder somewhere else.</source>
        <translation>Keelhold schrijft nooit naar je Tesla-schijf, dus kies een map ergens anders.</translation>
    </message>
    <message>
        <source>The %1 camera has no encrypted footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>De camera %1 heeft geen versleutelde beelden in deze gebeurtenis.</translation>
    </message>
    <message>
        <source>This event&apos;s footage isn&apos;t encrypted: its files are plain MP4 movies already.</source>
        <translation>De beelden van deze gebeurtenis zijn niet versleuteld: de bestanden zijn al gewone MP4-video&apos;s.</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be made.</source>
        <translation>De map %1 kan niet worden aangemaakt.</translation>
    </message>
    <message>
        <source>The clips couldn&apos;t be read from the drive or written to %1.</source>
        <translation>De clips konden niet van de schijf worden gelezen of niet naar %1 worden geschreven.</translation>
    </message>
    <message>
        <source>Wrote %1 of %2 clips to %3.</source>
        <extracomment>%3 is a folder</extracomment>
        <translation>%1 van %2 clips naar %3 geschreven.</translation>
    </message>
    <message>
        <source>Wrote %1 clips to %2.</source>
        <extracomment>%2 is a folder</extracomment>
        <translation>%1 clips naar %2 geschreven.</translation>
    </message>
    <message>
        <source>The drive went away: %1 of %2 events were kept completely. Plug it back in and run keep again to finish.</source>
        <translation>De schijf is verdwenen: %1 van %2 gebeurtenissen zijn volledig bewaard. Sluit hem weer aan en voer keep opnieuw uit om af te maken.</translation>
    </message>
    <message>
        <source>Prints where to look in an event: for each camera the bursts of activity (something moving in front of
it, found from how much the camera&apos;s video changed), and the hard moments of the drive (hard braking,
a swerve, Autopilot switching off, a sudden stop, the car&apos;s emergency braking) from the driving data
its clips carry. Times are seconds on the event&apos;s timeline, as the player shows them. The drive is
only read.</source>
        <translation>Toont waar je in een gebeurtenis moet kijken: per camera de momenten met activiteit (iets dat ervoor
beweegt, gevonden aan hoeveel het camerabeeld veranderde), en de heftige momenten van de rit (hard remmen,
een uitwijkmanoeuvre, Autopilot die uitschakelt, een plotselinge stop, de noodremming van de auto) uit de
rijgegevens in de clips. Tijden zijn seconden op de tijdlijn van de gebeurtenis, zoals de speler ze toont.
De schijf wordt alleen gelezen.</translation>
    </message>
    <message>
        <source>json (the default) or csv.</source>
        <extracomment>json and csv are values typed on the command line; keep them as they are</extracomment>
        <translation>json (standaard) of csv.</translation>
    </message>
    <message>
        <source>“%1” is not a format; use json or csv.</source>
        <extracomment>%1 is the format as typed; json and csv stay as they are</extracomment>
        <translation>“%1” is geen formaat; gebruik json of csv.</translation>
    </message>
    <message>
        <source>None of this event&apos;s clips could be read.</source>
        <translation>Geen enkele clip van deze gebeurtenis kon worden gelezen.</translation>
    </message>
    <message>
        <source>Stopped before every clip was read.</source>
        <translation>Gestopt voordat elke clip was gelezen.</translation>
    </message>
    <message>
        <source>Checks your Tesla sign-in token with Tesla&apos;s service and remembers it in this computer&apos;s secret store, so
that export, telemetry and decrypt can fetch the keys of your car&apos;s encrypted clips. Only the clips&apos; key
blocks and your car&apos;s VIN are ever sent, never video. To get the token, sign in at Tesla&apos;s dashcam viewer
in your browser and copy it from there. Give it in a file or on standard input, never on the command
line, where other users could read it.</source>
        <translation>Controleert je Tesla-aanmeldtoken bij de dienst van Tesla en onthoudt het in de beveiligde opslag van deze
computer, zodat export, telemetry en decrypt de sleutels van de versleutelde clips van je auto kunnen
ophalen. Alleen de sleutelblokken van de clips en de VIN van je auto worden ooit verzonden, nooit video.
Meld je voor het token aan bij de dashcam-viewer van Tesla in je browser en kopieer het daar. Geef het op
in een bestand of via standaardinvoer, nooit op de opdrachtregel, waar andere gebruikers het kunnen lezen.</translation>
    </message>
    <message>
        <source>Remove the remembered sign-in from this computer&apos;s secret store.</source>
        <translation>Verwijder de onthouden aanmelding uit de beveiligde opslag van deze computer.</translation>
    </message>
    <message>
        <source>A token on the command line can be seen by other users of this computer, so keelhold-cli won&apos;t take one there: put it in a file and give --token-file FILE, or --token-file - to type it.</source>
        <translation>Een token op de opdrachtregel is zichtbaar voor andere gebruikers van deze computer, dus keelhold-cli accepteert het daar niet: zet het in een bestand en geef --token-file FILE op, of --token-file - om het te typen.</translation>
    </message>
    <message>
        <source>Your Tesla sign-in is no longer remembered on this computer.</source>
        <translation>Je Tesla-aanmelding wordt niet meer onthouden op deze computer.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service didn&apos;t accept this sign-in token: it may have expired. Sign in again at Tesla&apos;s dashcam viewer and copy a fresh one.</source>
        <translation>De dienst van Tesla accepteerde dit aanmeldtoken niet: het is mogelijk verlopen. Meld je opnieuw aan bij de dashcam-viewer van Tesla en kopieer een nieuw token.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service accepted your sign-in, but this computer has no secret store to remember it in: give it with --token-file to each command instead.</source>
        <translation>De dienst van Tesla accepteerde je aanmelding, maar deze computer heeft geen beveiligde opslag om die te onthouden: geef het token in plaats daarvan bij elke opdracht op met --token-file.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service accepted your sign-in, and it is remembered in this computer&apos;s secret store.</source>
        <translation>De dienst van Tesla accepteerde je aanmelding en die wordt onthouden in de beveiligde opslag van deze computer.</translation>
    </message>
    <message>
        <source>“%1” is a file, not a Vault folder.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>“%1” is een bestand, geen Kluismap.</translation>
    </message>
    <message>
        <source>There is no Vault folder at %1.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>Er is geen Kluismap op %1.</translation>
    </message>
    <message>
        <source>keelhold-cli has no option “%1” before a command. Run “keelhold-cli --help” to see the commands and their options.</source>
        <extracomment>%1 is the option as typed</extracomment>
        <translation>keelhold-cli heeft geen optie “%1” vóór een opdracht. Voer “keelhold-cli --help” uit om de opdrachten en hun opties te zien.</translation>
    </message>
    <message>
        <source>There is no command “%1”. Run “keelhold-cli --help” to see them all.</source>
        <extracomment>%1 is the command as typed</extracomment>
        <translation>Er is geen opdracht “%1”. Voer “keelhold-cli --help” uit om ze allemaal te zien.</translation>
    </message>
    <message>
        <source>Keep what is new from every TeslaCam drive as it is connected, until stopped.</source>
        <translation>Bewaar wat nieuw is van elke TeslaCam-schijf zodra die wordt aangesloten, tot je stopt.</translation>
    </message>
    <message>
        <source>Usage: %1
  or:  %2
  or:  %3
</source>
        <extracomment>The ways to call the tool; %1, %2 and %3 are command lines, which stay as they are. Keep them lined up.</extracomment>
        <translation>Gebruik: %1
     of: %2
     of: %3
</translation>
    </message>
    <message>
        <source>Reads the TeslaCam folder of a Tesla&apos;s USB drive without ever writing to it, and keeps chosen events in a Vault folder as verified copies.</source>
        <translation>Leest de TeslaCam-map van de USB-schijf van een Tesla zonder er ooit naar te schrijven, en bewaart gekozen gebeurtenissen in een Kluismap als geverifieerde kopieën.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <extracomment>Heading of the list of commands in the help</extracomment>
        <translation>Opdrachten:</translation>
    </message>
    <message>
        <source>Show the options of a command.</source>
        <translation>Toon de opties van een opdracht.</translation>
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
        <translation>Afsluitstatus:
  0    Klaar.
  1    Deels klaar: keep kon sommige bestanden niet bewaren, vault verify vond een gewijzigd of
       ontbrekend bestand, of decrypt kon maar een deel van de clips schrijven.
  2    Het werk kon niet worden gedaan, bijvoorbeeld omdat de map ontbreekt of niet leesbaar is.
  64   De opdrachtregel was onjuist.
  130  keep werd gestopt met Ctrl-C.
</translation>
    </message>
    <message>
        <source>Progress and messages go to standard error, results to standard output.</source>
        <translation>Voortgang en meldingen gaan naar standaardfout, resultaten naar standaarduitvoer.</translation>
    </message>
    <message>
        <source>Options:</source>
        <extracomment>Heading of the list of options in the help</extracomment>
        <translation>Opties:</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Toon deze hulp.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Toon de versie.</translation>
    </message>
    <message>
        <source>help takes one command, such as “keelhold-cli help scan”.</source>
        <translation>help neemt één opdracht, zoals “keelhold-cli help scan”.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>How a command is typed; %1 is the command line itself, which stays as it is</extracomment>
        <translation>Gebruik: %1</translation>
    </message>
    <message>
        <source>%1 %2 folders, %3 events, %4 clips</source>
        <extracomment>Scan progress; %1 says what is being read (&quot;Reading Sentry events…&quot;), then counts so far</extracomment>
        <translation>%1 %2 mappen, %3 gebeurtenissen, %4 clips</translation>
    </message>
    <message>
        <source>probing %1 of %2 clips</source>
        <extracomment>Progress while each clip is opened to check it</extracomment>
        <translation>clips controleren: %1 van %2</translation>
    </message>
    <message>
        <source>Exporting… %1% (finishing the file)</source>
        <extracomment>Export progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>Exporteren… %1% (bestand wordt afgerond)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 fps, %5 left)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 frames per second, %5 the time left as m:ss</extracomment>
        <translation>Exporteren… %1% (%2 van %3 frames, %4 fps, nog %5)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 fps)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 frames per second</extracomment>
        <translation>Exporteren… %1% (%2 van %3 frames, %4 fps)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 left)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 the time left as m:ss</extracomment>
        <translation>Exporteren… %1% (%2 van %3 frames, nog %4)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames</extracomment>
        <translation>Exporteren… %1% (%2 van %3 frames)</translation>
    </message>
    <message>
        <source>Writes one camera of one event as a single MP4 movie, copied as it is, or every camera at once with the date and time drawn on it. The drive is only read.</source>
        <translation>Schrijft één camera van één gebeurtenis als één MP4-video, ongewijzigd gekopieerd, of alle camera&apos;s tegelijk met de datum en tijd erop getekend. De schijf wordt alleen gelezen.</translation>
    </message>
    <message>
        <source>The TeslaCam folder to read.</source>
        <translation>De TeslaCam-map om te lezen.</translation>
    </message>
    <message>
        <source>One of: %1.</source>
        <extracomment>Help of an option; %1 lists the values it takes, which stay as they are</extracomment>
        <translation>Een van: %1.</translation>
    </message>
    <message>
        <source>The movie file to create; in an existing folder, the suggested name is used.</source>
        <translation>Het videobestand dat wordt aangemaakt; in een bestaande map wordt de voorgestelde naam gebruikt.</translation>
    </message>
    <message>
        <source>Start, in seconds of the joined footage.</source>
        <translation>Begin, in seconden van de samengevoegde beelden.</translation>
    </message>
    <message>
        <source>End, in seconds of the joined footage.</source>
        <translation>Einde, in seconden van de samengevoegde beelden.</translation>
    </message>
    <message>
        <source>Makes one new movie with every camera at once and the time drawn on it. One of: grid, front-sides, single. Single re-encodes the --camera alone. --from and --to then count seconds of the event&apos;s timeline, as the player shows it.</source>
        <extracomment>grid, front-sides and single are values typed on the command line; keep them as they are</extracomment>
        <translation>Maakt één nieuwe video met alle camera&apos;s tegelijk en de tijd erop getekend. Een van: grid, front-sides, single. Single codeert alleen de --camera opnieuw. --from en --to tellen dan seconden op de tijdlijn van de gebeurtenis, zoals de speler die toont.</translation>
    </message>
    <message>
        <source>What a new movie shows over the pictures, any of: time, names, reason, telemetry, none. Join parts with commas; the default is time,names,reason. Telemetry is the car&apos;s speed, pedals, steering and Autopilot where its clips carry them, in km/h or mph as your locale measures. With only --camera, any part makes a new movie of that camera instead of a copy.</source>
        <extracomment>time, names, reason, telemetry, none and time,names,reason are values typed on the command line; keep them as they are</extracomment>
        <translation>Wat een nieuwe video over de beelden toont, een of meer van: time, names, reason, telemetry, none. Scheid onderdelen met komma&apos;s; standaard is time,names,reason. Telemetry is de snelheid, pedalen, het sturen en Autopilot van de auto, als de clips die bevatten, in km/h of mph zoals je landinstelling meet. Met alleen --camera maakt elk onderdeel een nieuwe video van die camera in plaats van een kopie.</translation>
    </message>
    <message>
        <source>The new movie&apos;s picture height. One of: 720, 1080, full. The default is 1080.</source>
        <extracomment>720, 1080 and full are values typed on the command line; keep them as they are</extracomment>
        <translation>De beeldhoogte van de nieuwe video. Een van: 720, 1080, full. Standaard is 1080.</translation>
    </message>
    <message>
        <source>--overlay takes time, names, reason and telemetry joined with commas, or none.</source>
        <extracomment>time, names, reason, telemetry and none are values typed on the command line; keep them as they are</extracomment>
        <translation>--overlay neemt time, names, reason en telemetry, gescheiden door komma&apos;s, of none.</translation>
    </message>
    <message>
        <source>“%1” is not a layout; use grid, front-sides or single.</source>
        <extracomment>%1 is the layout as typed; grid, front-sides and single stay as they are</extracomment>
        <translation>“%1” is geen indeling; gebruik grid, front-sides of single.</translation>
    </message>
    <message>
        <source>Name the camera with --camera, or choose --layout grid or front-sides.</source>
        <translation>Noem de camera met --camera, of kies --layout grid of front-sides.</translation>
    </message>
    <message>
        <source>--camera picks the one camera of --layout single; grid and front-sides show every camera.</source>
        <translation>--camera kiest de ene camera van --layout single; grid en front-sides tonen alle camera&apos;s.</translation>
    </message>
    <message>
        <source>“%1” is not a size; use 720, 1080 or full.</source>
        <extracomment>%1 is the size as typed; 720, 1080 and full stay as they are</extracomment>
        <translation>“%1” is geen formaat; gebruik 720, 1080 of full.</translation>
    </message>
    <message>
        <source>--from and --to take a number of seconds, such as 12.5.</source>
        <translation>--from en --to nemen een aantal seconden, zoals 12.5.</translation>
    </message>
    <message>
        <source>There is no event “%1” in this TeslaCam folder.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>Er is geen gebeurtenis “%1” in deze TeslaCam-map.</translation>
    </message>
    <message>
        <source>Exporting… %1%</source>
        <extracomment>Export progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>Exporteren… %1%</translation>
    </message>
    <message>
        <source>The %1 camera has no playable footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>De camera %1 heeft geen afspeelbare beelden in deze gebeurtenis.</translation>
    </message>
    <message>
        <source>None of this event&apos;s cameras has playable footage.</source>
        <translation>Geen enkele camera van deze gebeurtenis heeft afspeelbare beelden.</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>Het exporteren is gestopt.</translation>
    </message>
    <message>
        <source>Reads a TeslaCam folder and prints its health report (fullness, damaged clips, format, events not yet kept, recommendations) as JSON.</source>
        <translation>Leest een TeslaCam-map en toont het gezondheidsrapport (hoe vol, beschadigde clips, formaat, nog niet bewaarde gebeurtenissen, aanbevelingen) als JSON.</translation>
    </message>
    <message>
        <source>The TeslaCam folder to read, or the drive that holds it.</source>
        <translation>De TeslaCam-map om te lezen, of de schijf waarop die staat.</translation>
    </message>
    <message>
        <source>The Vault folder whose index tells which events are kept.</source>
        <translation>De Kluismap waarvan de index aangeeft welke gebeurtenissen bewaard zijn.</translation>
    </message>
    <message>
        <source>Open every clip to find damaged ones (slower).</source>
        <translation>Open elke clip om beschadigde te vinden (langzamer).</translation>
    </message>
    <message>
        <source>Indent the JSON for reading.</source>
        <translation>Laat de JSON inspringen om te lezen.</translation>
    </message>
    <message>
        <source>There is no Vault folder at “%1”.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>Er is geen Kluismap op “%1”.</translation>
    </message>
    <message>
        <source>Copies events from a TeslaCam folder into a Vault folder, checking each file&apos;s size and recording its SHA-256, and prints the report as JSON.
Exit status: 0 when everything was kept, 1 when some files could not be kept, 130 when stopped with Ctrl-C, 2 when the drive could not be read.</source>
        <extracomment>The numbers are exit codes; keep them</extracomment>
        <translation>Kopieert gebeurtenissen uit een TeslaCam-map naar een Kluismap, controleert van elk bestand de grootte en legt de SHA-256 vast, en toont het verslag als JSON.
Afsluitstatus: 0 als alles bewaard is, 1 als sommige bestanden niet konden worden bewaard, 130 als het met Ctrl-C is gestopt, 2 als de schijf niet kon worden gelezen.</translation>
    </message>
    <message>
        <source>The Vault folder.</source>
        <translation>De Kluismap.</translation>
    </message>
    <message>
        <source>An event to keep, as printed by scan (&quot;sentry|&lt;folder&gt;&quot;). Repeat for more; without it, every event is kept.</source>
        <extracomment>&quot;sentry|&lt;folder&gt;&quot; shows how an event&apos;s id looks; keep it as it is</extracomment>
        <translation>Een gebeurtenis om te bewaren, zoals scan die toont (&quot;sentry|&lt;folder&gt;&quot;). Herhaal voor meer; zonder deze optie wordt elke gebeurtenis bewaard.</translation>
    </message>
    <message>
        <source>Seconds allowed for each file (default 10).</source>
        <translation>Toegestane seconden per bestand (standaard 10).</translation>
    </message>
    <message>
        <source>The time limit must be a number of seconds, more than 0 and at most a day.</source>
        <translation>De tijdslimiet moet een aantal seconden zijn, meer dan 0 en hoogstens een dag.</translation>
    </message>
    <message>
        <source>There is no event “%1” on this drive.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>Er is geen gebeurtenis “%1” op deze schijf.</translation>
    </message>
    <message>
        <source>%1/%2 events · %3 MB · %4 MB/s · %5</source>
        <extracomment>Keep progress: %1 of %2 events done, %3 megabytes copied, %4 megabytes a second, %5 the file being copied</extracomment>
        <translation>%1/%2 gebeurtenissen · %3 MB · %4 MB/s · %5</translation>
    </message>
    <message>
        <source>%1/%2 events · %3 MB · %4 MB/s</source>
        <extracomment>Keep progress: %1 of %2 events done, %3 megabytes copied, %4 megabytes a second</extracomment>
        <translation>%1/%2 gebeurtenissen · %3 MB · %4 MB/s</translation>
    </message>
    <message>
        <source>Stopping after the current file… (Ctrl-C again to quit at once)</source>
        <translation>Stoppen na het huidige bestand… (nogmaals Ctrl-C om meteen te stoppen)</translation>
    </message>
    <message>
        <source>Writes the incident report of one event as a PDF: when and where, each camera at the moment, the driving data, and every original file with its SHA-256. With --package, one ZIP that also holds every original and a SHA256SUMS file that `sha256sum -c` checks. The drive is only read.</source>
        <extracomment>SHA256SUMS is a file name and `sha256sum -c` a command; keep both as they are</extracomment>
        <translation>Schrijft het incidentrapport van één gebeurtenis als PDF: wanneer en waar, elke camera op het moment, de rijgegevens, en elk origineel bestand met zijn SHA-256. Met --package één ZIP die ook elk origineel bevat en een SHA256SUMS-bestand dat `sha256sum -c` controleert. De schijf wordt alleen gelezen.</translation>
    </message>
    <message>
        <source>The TeslaCam folder, or a Vault folder.</source>
        <translation>De TeslaCam-map of een Kluismap.</translation>
    </message>
    <message>
        <source>The file to create; in an existing folder, the suggested name is used.</source>
        <translation>Het bestand dat wordt aangemaakt; in een bestaande map wordt de voorgestelde naam gebruikt.</translation>
    </message>
    <message>
        <source>Makes the evidence package (ZIP) instead of the PDF alone.</source>
        <translation>Maakt het bewijspakket (ZIP) in plaats van alleen de PDF.</translation>
    </message>
    <message>
        <source>Puts the unlock keys of an encrypted event into the package.</source>
        <translation>Zet de ontgrendelsleutels van een versleutelde gebeurtenis in het pakket.</translation>
    </message>
    <message>
        <source>A Vault to compare the files with, for an event on the drive that was kept there.</source>
        <translation>Een Kluis om de bestanden mee te vergelijken, voor een gebeurtenis op de schijf die daar bewaard is.</translation>
    </message>
    <message>
        <source>One of: km/h, mph. The default is the app&apos;s choice, else the one your locale uses.</source>
        <extracomment>km/h and mph are values typed on the command line; keep them as they are</extracomment>
        <translation>Een van: km/h, mph. Standaard de keuze in de app, anders die van je landinstelling.</translation>
    </message>
    <message>
        <source>--speed-unit takes km/h or mph.</source>
        <extracomment>km/h and mph are values typed on the command line; keep them as they are</extracomment>
        <translation>--speed-unit neemt km/h of mph.</translation>
    </message>
    <message>
        <source>Making the report… %1%</source>
        <extracomment>Report progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>Rapport maken… %1%</translation>
    </message>
    <message>
        <source>The report was stopped.</source>
        <translation>Het rapport is gestopt.</translation>
    </message>
    <message>
        <source>Reads a TeslaCam folder and prints what it holds as JSON.</source>
        <translation>Leest een TeslaCam-map en toont wat erin staat als JSON.</translation>
    </message>
    <message>
        <source>Open every clip after the scan to find its health and length.</source>
        <translation>Open na het scannen elke clip om de gezondheid en lengte te bepalen.</translation>
    </message>
    <message>
        <source>Seconds each clip may take to answer (default 10).</source>
        <translation>Seconden die elke clip mag nemen om te antwoorden (standaard 10).</translation>
    </message>
    <message>
        <source>The timeout must be a number of seconds, such as 10.</source>
        <translation>De time-out moet een aantal seconden zijn, zoals 10.</translation>
    </message>
    <message>
        <source>The timeout applies only with --probe.</source>
        <translation>De time-out geldt alleen met --probe.</translation>
    </message>
    <message>
        <source>Prints the driving data the car recorded with one camera&apos;s footage of an event, one row for each
frame: its time on the event&apos;s timeline and in its clip, when it was taken, and the car&apos;s speed
(metres per second), gear, accelerator, steering angle (degrees), blinkers, brake, Autopilot state,
GPS position, heading (degrees) and acceleration (metres per second squared). Cars on software
2025.44.25 or later record it. The drive is only read.</source>
        <translation>Toont de rijgegevens die de auto met de beelden van één camera van een gebeurtenis vastlegde, één rij per
frame: de tijd op de tijdlijn van de gebeurtenis en in de clip, wanneer het frame werd opgenomen, en de
snelheid van de auto (meter per seconde), rijstand, gaspedaal, stuurhoek (graden), richtingaanwijzers, rem,
Autopilot-status, GPS-positie, rijrichting (graden) en versnelling (meter per seconde kwadraat). Auto&apos;s met
software 2025.44.25 of later leggen dit vast. De schijf wordt alleen gelezen.</translation>
    </message>
    <message>
        <source>csv, json, or gpx (the route, for a mapping tool). Default: from the output file&apos;s extension, else csv.</source>
        <extracomment>csv, json and gpx are values typed on the command line; keep them as they are</extracomment>
        <translation>csv, json of gpx (de route, voor een kaartprogramma). Standaard: volgens de extensie van het uitvoerbestand, anders csv.</translation>
    </message>
    <message>
        <source>The file to write instead of standard output.</source>
        <translation>Het bestand om naar te schrijven in plaats van standaarduitvoer.</translation>
    </message>
    <message>
        <source>“%1” is not a format; use csv, json or gpx.</source>
        <extracomment>%1 is the format as typed; csv, json and gpx stay as they are</extracomment>
        <translation>“%1” is geen formaat; gebruik csv, json of gpx.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the driving data somewhere else.</source>
        <translation>Keelhold schrijft nooit naar je Tesla-schijf, dus sla de rijgegevens ergens anders op.</translation>
    </message>
    <message>
        <source>The %1 camera has no footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>De camera %1 heeft geen beelden in deze gebeurtenis.</translation>
    </message>
    <message>
        <source>The %1 camera&apos;s clips of this event carry no driving data: cars record it from software 2025.44.25 on, and not in every mode.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;; 2025.44.25 is a software version</extracomment>
        <translation>De clips van de camera %1 in deze gebeurtenis bevatten geen rijgegevens: auto&apos;s leggen die vast vanaf software 2025.44.25, en niet in elke modus.</translation>
    </message>
    <message>
        <source>Could not write %1: %2.</source>
        <extracomment>%1 is a file, %2 the system&apos;s reason</extracomment>
        <translation>Kon %1 niet schrijven: %2.</translation>
    </message>
    <message>
        <source>The Vault has no event “%1”.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>De Kluis heeft geen gebeurtenis “%1”.</translation>
    </message>
    <message>
        <source>Moved “%1” to the Trash.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>“%1” is naar de prullenbak verplaatst.</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json can&apos;t be understood, so nothing was removed.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>Het manifest.json van de Kluis is onleesbaar, dus er is niets verwijderd.</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json is missing, so the kept events can&apos;t be checked.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>Het manifest.json van de Kluis ontbreekt, dus de bewaarde gebeurtenissen kunnen niet worden gecontroleerd.</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json can&apos;t be understood, so nothing could be checked.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>Het manifest.json van de Kluis is onleesbaar, dus er kon niets worden gecontroleerd.</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>vault verify: the verdict on an event whose files all match, in capitals like the others</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>DIFFERS</source>
        <extracomment>vault verify: the verdict on an event with a file changed, missing or unreadable</extracomment>
        <translation>AFWIJKEND</translation>
    </message>
    <message>
        <source>INCOMPLETE</source>
        <extracomment>vault verify: the verdict on an event that was kept only in part</extracomment>
        <translation>ONVOLLEDIG</translation>
    </message>
    <message>
        <source>%1 verified</source>
        <extracomment>vault verify: how many of an event&apos;s files matched their record</extracomment>
        <translation>%1 geverifieerd</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <extracomment>vault verify: how many of an event&apos;s files differ from their record</extracomment>
        <translation>%1 gewijzigd</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <extracomment>vault verify: how many of an event&apos;s files are gone</extracomment>
        <translation>%1 ontbrekend</translation>
    </message>
    <message>
        <source>%1 unreadable</source>
        <extracomment>vault verify: how many of an event&apos;s files couldn&apos;t be read</extracomment>
        <translation>%1 onleesbaar</translation>
    </message>
    <message>
        <source>incomplete (%1 of %2 files kept)</source>
        <translation>onvolledig (%1 van %2 bestanden bewaard)</translation>
    </message>
    <message>
        <source>changed %1</source>
        <extracomment>vault verify: %1 is the name of a file that differs from its record</extracomment>
        <translation>gewijzigd: %1</translation>
    </message>
    <message>
        <source>missing %1</source>
        <extracomment>vault verify: %1 is the name of a file that is gone</extracomment>
        <translation>ontbreekt: %1</translation>
    </message>
    <message>
        <source>unreadable %1</source>
        <extracomment>vault verify: %1 is the name of a file that couldn&apos;t be read</extracomment>
        <translation>onleesbaar: %1</translation>
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
        <translation>Toont, verwijdert of controleert opnieuw de gebeurtenissen die in een Kluismap bewaard zijn.
verify leest elk bestand dat manifest.json noemt opnieuw, beoordeelt elk bestand aan de hand van de nieuwste registratie die het noemt, noteert de datum in .keelhold-verified.json van de Kluis, en sluit af met 1 als een bestand afwijkt of ontbreekt, of als een gebeurtenis maar gedeeltelijk bewaard is.</translation>
    </message>
    <message>
        <source>list, remove or verify.</source>
        <extracomment>list, remove and verify are typed on the command line; keep them as they are</extracomment>
        <translation>list, remove of verify.</translation>
    </message>
    <message>
        <source>Nothing was kept</source>
        <translation>Er is niets bewaard</translation>
    </message>
    <message>
        <source>Keeps what is new from every TeslaCam drive that is connected, now and until stopped: Sentry and saved events, and recent driving with --recent, each file checked as it is copied. Prints one line for each drive it kept from, and tells the desktop when it is done. Stop it with Ctrl-C; a keep in progress ends cleanly first.</source>
        <translation>Bewaart wat nieuw is van elke aangesloten TeslaCam-schijf, nu en tot je stopt: Schildwacht- en opgeslagen gebeurtenissen, en met --recent ook recente ritten, elk bestand gecontroleerd tijdens het kopiëren. Toont één regel voor elke schijf waarvan iets is bewaard, en meldt het aan het bureaublad als het klaar is. Stop met Ctrl-C; een lopende bewaarronde wordt eerst netjes afgerond.</translation>
    </message>
    <message>
        <source>The Vault folder (the one chosen in Keelhold when not given).</source>
        <translation>De Kluismap (als die niet is opgegeven, de map die in Keelhold is gekozen).</translation>
    </message>
    <message>
        <source>Keep recent driving too, each minute once.</source>
        <translation>Bewaar ook recente ritten, elke minuut één keer.</translation>
    </message>
    <message>
        <source>Watch only drives mounted at or below this folder (repeat for more; the default is /media, /run/media and /mnt).</source>
        <translation>Houd alleen schijven in de gaten die in of onder deze map zijn gekoppeld (herhaal voor meer; standaard /media, /run/media en /mnt).</translation>
    </message>
    <message>
        <source>No Vault folder is chosen yet. Choose one in Keelhold, or give one with --vault.</source>
        <translation>Er is nog geen Kluismap gekozen. Kies er een in Keelhold, of geef er een op met --vault.</translation>
    </message>
    <message>
        <source>Watching for TeslaCam drives; new footage goes to %1. Ctrl-C stops.</source>
        <translation>Wachten op TeslaCam-schijven; nieuwe beelden gaan naar %1. Ctrl-C stopt.</translation>
    </message>
</context>
<context>
    <name>CombinedExport</name>
    <message>
        <source>There is already a file at “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>Er staat al een bestand op “%1”.</translation>
    </message>
    <message>
        <source>None of this event&apos;s cameras has playable footage.</source>
        <translation>Geen enkele camera van deze gebeurtenis heeft afspeelbare beelden.</translation>
    </message>
    <message>
        <source>The folder “%1” doesn&apos;t exist.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>De map “%1” bestaat niet.</translation>
    </message>
    <message>
        <source>The chosen stretch lies outside this event&apos;s footage.</source>
        <translation>Het gekozen stuk valt buiten de beelden van deze gebeurtenis.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be given its name “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>De video kon niet de naam “%1” krijgen.</translation>
    </message>
</context>
<context>
    <name>CombinedRender</name>
    <message>
        <source>The movie couldn&apos;t be written.</source>
        <translation>De video kon niet worden geschreven.</translation>
    </message>
</context>
<context>
    <name>CompositeGraph</name>
    <message>
        <source>The movie&apos;s pictures couldn&apos;t be put together (%1).</source>
        <extracomment>%1 is the step that failed, e.g. &quot;stacking&quot;</extracomment>
        <translation>De beelden van de video konden niet worden samengevoegd (%1).</translation>
    </message>
    <message>
        <source>The movie&apos;s pictures couldn&apos;t be put together (%1: %2).</source>
        <extracomment>%1 is the step that failed, e.g. &quot;stacking&quot;; %2 the video library&apos;s reason</extracomment>
        <translation>De beelden van de video konden niet worden samengevoegd (%1: %2).</translation>
    </message>
    <message>
        <source>no %1 filter</source>
        <extracomment>Step of putting a movie&apos;s pictures together: %1 is a video filter&apos;s name</extracomment>
        <translation>geen %1-filter</translation>
    </message>
    <message>
        <source>linking %1</source>
        <extracomment>Step of putting a movie&apos;s pictures together: %1 is a video filter&apos;s name</extracomment>
        <translation>%1 koppelen</translation>
    </message>
    <message>
        <source>configuring</source>
        <extracomment>Step of putting a movie&apos;s pictures together: setting up the video filters</extracomment>
        <translation>configureren</translation>
    </message>
    <message>
        <source>memory</source>
        <extracomment>Step of putting a movie&apos;s pictures together: getting memory</extracomment>
        <translation>geheugen</translation>
    </message>
    <message>
        <source>drawing a name</source>
        <extracomment>Step of putting a movie&apos;s pictures together: drawing words on a picture</extracomment>
        <translation>naam tekenen</translation>
    </message>
    <message>
        <source>no cameras</source>
        <extracomment>Step of putting a movie&apos;s pictures together: there were no cameras to show</extracomment>
        <translation>geen camera&apos;s</translation>
    </message>
    <message>
        <source>unknown picture format</source>
        <extracomment>Step of putting a movie&apos;s pictures together: a camera&apos;s picture format was not known</extracomment>
        <translation>onbekend beeldformaat</translation>
    </message>
    <message>
        <source>adding a picture</source>
        <extracomment>Step of putting a movie&apos;s pictures together: adding a camera&apos;s picture</extracomment>
        <translation>beeld toevoegen</translation>
    </message>
    <message>
        <source>ending</source>
        <extracomment>Step of putting a movie&apos;s pictures together: ending the movie</extracomment>
        <translation>afronden</translation>
    </message>
    <message>
        <source>stacking</source>
        <extracomment>Step of putting a movie&apos;s pictures together: putting the cameras side by side</extracomment>
        <translation>naast elkaar zetten</translation>
    </message>
    <message>
        <source>drawing the time</source>
        <extracomment>Step of putting a movie&apos;s pictures together: drawing the date and time</extracomment>
        <translation>tijd tekenen</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Tesla Footage Viewer</source>
        <translation>Viewer voor Tesla-beelden</translation>
    </message>
    <message>
        <source>Review the footage your Tesla recorded and keep what matters</source>
        <translation>Bekijk de beelden die je Tesla opnam en bewaar wat ertoe doet</translation>
    </message>
    <message>
        <source>Tesla;TeslaCam;Sentry;Dashcam;Dashboard camera;USB;Vault;</source>
        <extracomment>Search words for the desktop&apos;s menu, each ending in a semicolon; keep the English ones and add your language&apos;s</extracomment>
        <translation>Tesla;TeslaCam;Sentry;Dashcam;Dashboard camera;USB;Vault;Schildwacht;Schildwachtmodus;Dashboardcamera;Kluis;Camerabeelden;</translation>
    </message>
    <message>
        <source>Review and keep your Tesla&apos;s camera footage</source>
        <translation>Bekijk en bewaar de camerabeelden van je Tesla</translation>
    </message>
</context>
<context>
    <name>DesktopNotices</name>
    <message>
        <source>your drive</source>
        <comment>a keep&apos;s drive without a name</comment>
        <translation>je schijf</translation>
    </message>
    <message numerus="yes">
        <source>%n Sentry events not kept yet</source>
        <translation>
            <numerusform>%n Schildwachtgebeurtenis nog niet bewaard</numerusform>
            <numerusform>%n Schildwachtgebeurtenissen nog niet bewaard</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is connected with Sentry events that aren&apos;t in your Vault.</source>
        <translation>%1 is aangesloten en heeft Schildwachtgebeurtenissen die niet in je Kluis staan.</translation>
    </message>
</context>
<context>
    <name>DesktopNotifier</name>
    <message>
        <source>Show</source>
        <translation>Tonen</translation>
    </message>
</context>
<context>
    <name>DriveBoundary</name>
    <message>
        <source>Keelhold never writes to your Tesla drive, so your Vault has to be a folder somewhere else.</source>
        <translation>Keelhold schrijft nooit naar je Tesla-schijf, dus je Kluis moet een map ergens anders zijn.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the movie somewhere else.</source>
        <translation>Keelhold schrijft nooit naar je Tesla-schijf, dus sla de video ergens anders op.</translation>
    </message>
</context>
<context>
    <name>DriveSession</name>
    <message>
        <source>Getting started…</source>
        <translation>Bezig met starten…</translation>
    </message>
    <message>
        <source>Loading sample footage…</source>
        <translation>Voorbeeldbeelden laden…</translation>
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
        <translation>Stuur %1</translation>
    </message>
    <message>
        <source>BRAKE</source>
        <extracomment>Word on the brake lamp of the driving data drawn over an exported movie; keep it short</extracomment>
        <translation>REM</translation>
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
        <translation>Cruisecontrol</translation>
    </message>
    <message>
        <source>Self-driving</source>
        <extracomment>Driver assistance engaged: Full Self-Driving</extracomment>
        <translation>Zelfrijdend</translation>
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
        <translation>ZO</translation>
    </message>
    <message>
        <source>S</source>
        <extracomment>Compass point abbreviation: south</extracomment>
        <translation>Z</translation>
    </message>
    <message>
        <source>SW</source>
        <extracomment>Compass point abbreviation: south-west</extracomment>
        <translation>ZW</translation>
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
        <translation>Schildwacht</translation>
    </message>
    <message>
        <source>Saved</source>
        <extracomment>Kind of event: footage the driver saved (button or honk)</extracomment>
        <translation>Opgeslagen</translation>
    </message>
    <message>
        <source>Recent Driving</source>
        <extracomment>Kind of event: the car&apos;s rolling recording of the last hour of driving</extracomment>
        <translation>Recente ritten</translation>
    </message>
</context>
<context>
    <name>EventMapPresenter</name>
    <message>
        <source>All located events</source>
        <extracomment>Heading in the map&apos;s list over the events with a place</extracomment>
        <translation>Alle gebeurtenissen met locatie</translation>
    </message>
    <message>
        <source>No location recorded</source>
        <extracomment>Heading in the map&apos;s list over the events without a place</extracomment>
        <translation>Geen locatie vastgelegd</translation>
    </message>
    <message>
        <source>No events have a location yet</source>
        <translation>Nog geen gebeurtenissen met een locatie</translation>
    </message>
    <message>
        <source>Your car only records a location for some events. Once you have events with a place attached, they&apos;ll appear here as pins.</source>
        <translation>Je auto legt alleen bij sommige gebeurtenissen een locatie vast. Zodra je gebeurtenissen met een plaats hebt, verschijnen ze hier als spelden.</translation>
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
        <translation>Coördinaten zoals je auto ze vastlegde — handig voor een schademelding of een aangifte bij de politie.</translation>
    </message>
    <message>
        <source>Archived %1 from %2</source>
        <extracomment>%1 is when the event was kept, %2 the name of the drive it came from</extracomment>
        <translation>Bewaard op %1 vanaf %2</translation>
    </message>
    <message>
        <source>Loading cameras…</source>
        <translation>Camera&apos;s laden…</translation>
    </message>
    <message>
        <source>No playable footage for this event</source>
        <translation>Geen afspeelbare beelden voor deze gebeurtenis</translation>
    </message>
    <message>
        <source>None of this event&apos;s camera angles could be read. The files are still safely on your drive — this can happen with a failing drive or a corrupted minute.</source>
        <translation>Geen enkele camerahoek van deze gebeurtenis kon worden gelezen. De bestanden staan nog veilig op je schijf — dit kan gebeuren bij een defecte schijf of een beschadigde minuut.</translation>
    </message>
    <message>
        <source>Step back 5 seconds. (Left Arrow)</source>
        <translation>5 seconden terug. (←)</translation>
    </message>
    <message>
        <source>Step forward 5 seconds. (Right Arrow)</source>
        <translation>5 seconden vooruit. (→)</translation>
    </message>
    <message>
        <source>Step back one frame. (,)</source>
        <translation>Eén frame terug. (,)</translation>
    </message>
    <message>
        <source>Step forward one frame. (.)</source>
        <translation>Eén frame vooruit. (.)</translation>
    </message>
    <message>
        <source>Play or pause all cameras together, perfectly in sync. (Space)</source>
        <translation>Alle camera&apos;s samen afspelen of pauzeren, perfect synchroon. (Space)</translation>
    </message>
    <message>
        <source>Moment</source>
        <extracomment>Button: jump to the moment the event happened</extracomment>
        <translation>Moment</translation>
    </message>
    <message>
        <source>Jump to just before the moment it happened — the honk, bump, or detection. (M)</source>
        <translation>Spring naar net vóór het moment dat het gebeurde — de claxon, de stoot of de detectie. (M)</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>Label of the playback speed picker</extracomment>
        <translation>Snelheid</translation>
    </message>
    <message>
        <source>Playback speed, from half speed to 4×.</source>
        <translation>Afspeelsnelheid, van halve snelheid tot 4×.</translation>
    </message>
    <message>
        <source>Show All Cameras</source>
        <translation>Alle camera&apos;s tonen</translation>
    </message>
    <message>
        <source>Return to the full camera grid.</source>
        <translation>Terug naar het volledige cameraraster.</translation>
    </message>
    <message>
        <source>Drag to jump to any moment. Every camera stays in sync.</source>
        <translation>Sleep om naar elk moment te springen. Alle camera&apos;s blijven synchroon.</translation>
    </message>
    <message>
        <source>Playback position</source>
        <translation>Afspeelpositie</translation>
    </message>
    <message>
        <source>Keep a safe copy on this %1</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Bewaar een veilige kopie op deze %1</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Button that keeps the event in the Vault</extracomment>
        <translation>Bewaren</translation>
    </message>
    <message>
        <source>Copies this footage to your Vault and verifies it matches byte-for-byte. Nothing on your drive is ever changed or deleted. (K)</source>
        <translation>Kopieert deze beelden naar je Kluis en controleert of ze byte voor byte overeenkomen. Niets op je schijf wordt ooit gewijzigd of verwijderd. (K)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Button that hides the event from the list</extracomment>
        <translation>Negeren</translation>
    </message>
    <message>
        <source>Hide this from your inbox. This never deletes anything from your drive or Vault. (D)</source>
        <translation>Verberg dit in je inbox. Dit verwijdert nooit iets van je schijf of uit je Kluis. (D)</translation>
    </message>
    <message>
        <source>Export &amp; Share</source>
        <translation>Exporteren en delen</translation>
    </message>
    <message>
        <source>Save one camera&apos;s footage as its own file and hand it off by email, or save it to a folder.</source>
        <translation>Sla de beelden van één camera op als apart bestand en verstuur het per e-mail, of sla het op in een map.</translation>
    </message>
    <message>
        <source>Fill the window with just the cameras. (F, Esc to go back)</source>
        <translation>Vul het venster met alleen de camera&apos;s. (F, Esc om terug te gaan)</translation>
    </message>
    <message>
        <source>Verified copy</source>
        <translation>Geverifieerde kopie</translation>
    </message>
    <message>
        <source>This copy was checked byte-for-byte against your drive when it was archived. Tap for the technical detail.</source>
        <translation>Deze kopie is bij het bewaren byte voor byte vergeleken met je schijf. Klik voor de technische details.</translation>
    </message>
    <message>
        <source>Faithful Copy</source>
        <translation>Getrouwe kopie</translation>
    </message>
    <message>
        <source>Every file below was copied and its checksum (SHA-256) was compared to the original on your drive at the time — a faithful, unaltered copy. This is a technical integrity check, not a legal certification.</source>
        <translation>Elk bestand hieronder is gekopieerd en de controlesom (SHA-256) is op dat moment vergeleken met het origineel op je schijf — een getrouwe, ongewijzigde kopie. Dit is een technische integriteitscontrole, geen juridische certificering.</translation>
    </message>
    <message>
        <source>Export finished</source>
        <translation>Export voltooid</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <extracomment>%1 is the file&apos;s name</extracomment>
        <translation>%1 is klaar.</translation>
    </message>
    <message>
        <source>Export didn&apos;t finish</source>
        <translation>Export niet voltooid</translation>
    </message>
</context>
<context>
    <name>EventTimeline</name>
    <message>
        <source>Unlock to watch</source>
        <extracomment>On a camera&apos;s tile: encrypted footage that needs its keys first</extracomment>
        <translation>Ontgrendel om te kijken</translation>
    </message>
    <message>
        <source>This angle didn&apos;t record properly — a known Tesla drive issue.</source>
        <extracomment>On a camera&apos;s tile: its footage is damaged</extracomment>
        <translation>Deze camerahoek is niet goed opgenomen — een bekend probleem met Tesla-schijven.</translation>
    </message>
    <message>
        <source>No footage this minute.</source>
        <extracomment>On a camera&apos;s tile: the car wrote nothing for this camera at this time</extracomment>
        <translation>Geen beelden in deze minuut.</translation>
    </message>
</context>
<context>
    <name>EvidencePackage</name>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it is no longer there.</source>
        <translation>Kon %1 niet van de schijf lezen — het bestand is er niet meer.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it isn&apos;t an ordinary file.</source>
        <translation>Kon %1 niet van de schijf lezen — het is geen gewoon bestand.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — the system refused to open it.</source>
        <translation>Kon %1 niet van de schijf lezen — het systeem weigerde het te openen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — the drive reported an error.</source>
        <translation>Kon %1 niet van de schijf lezen — de schijf meldde een fout.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — the disk is full.</source>
        <translation>Kon het pakket daar niet schrijven — de schijf is vol.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — that folder can&apos;t be written to.</source>
        <translation>Kon het pakket daar niet schrijven — er kan niet naar die map worden geschreven.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — that folder doesn&apos;t exist.</source>
        <translation>Kon het pakket daar niet schrijven — die map bestaat niet.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — a folder already has that name.</source>
        <translation>Kon het pakket daar niet schrijven — er is al een map met die naam.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — the disk reported an error.</source>
        <translation>Kon het pakket daar niet schrijven — de schijf meldde een fout.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it stopped answering.</source>
        <translation>Kon %1 niet van de schijf lezen — de schijf reageerde niet meer.</translation>
    </message>
    <message>
        <source>%1 changed while the package was being made — the package was not made.</source>
        <translation>%1 is gewijzigd terwijl het pakket werd gemaakt — het pakket is niet gemaakt.</translation>
    </message>
    <message>
        <source>%1 changed since the report was made — the package was not made.</source>
        <translation>%1 is gewijzigd sinds het rapport werd gemaakt — het pakket is niet gemaakt.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the package somewhere else.</source>
        <translation>Keelhold schrijft nooit naar je Tesla-schijf, dus sla het pakket ergens anders op.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be a name inside the package — the package was not made.</source>
        <translation>%1 kan geen naam in het pakket zijn — het pakket is niet gemaakt.</translation>
    </message>
</context>
<context>
    <name>ExportError</name>
    <message>
        <source>Unknown export failure.</source>
        <translation>Onbekende fout bij het exporteren.</translation>
    </message>
    <message>
        <source>There is no playable footage from this camera in this event.</source>
        <translation>Er zijn geen afspeelbare beelden van deze camera in deze gebeurtenis.</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be put together into one movie.</source>
        <translation>De beelden konden niet tot één video worden samengevoegd.</translation>
    </message>
    <message>
        <source>This footage can&apos;t be written as an MP4 movie with the video tools on this computer.</source>
        <translation>Deze beelden kunnen met de videoprogramma&apos;s op deze computer niet als MP4-video worden geschreven.</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>Het exporteren is gestopt.</translation>
    </message>
</context>
<context>
    <name>ExportFlow</name>
    <message>
        <source>Put together what an insurer, the police or a lawyer asks for: when and where it happened, what each camera saw, how the car was driven, and every original file with a way to check it.</source>
        <translation>Stel samen waar een verzekeraar, de politie of een advocaat om vraagt: wanneer en waar het gebeurde, wat elke camera zag, hoe de auto werd bestuurd, en elk origineel bestand met een manier om het te controleren.</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>nog een paar seconden</translation>
    </message>
    <message numerus="yes">
        <source>about %n seconds left</source>
        <translation>
            <numerusform>nog ongeveer %n seconde</numerusform>
            <numerusform>nog ongeveer %n seconden</numerusform>
        </translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>nog ongeveer een minuut</translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes left</source>
        <translation>
            <numerusform>nog ongeveer %n minuut</numerusform>
            <numerusform>nog ongeveer %n minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <extracomment>%1 is a number of hours with one decimal, e.g. 1.5</extracomment>
        <translation>nog ongeveer %1 uur</translation>
    </message>
    <message>
        <source>%1 of %2 frames</source>
        <translation>%1 van %2 frames</translation>
    </message>
    <message>
        <source>%1× real time</source>
        <extracomment>How fast the movie is made: 1.8× real time</extracomment>
        <translation>%1× realtime</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <extracomment>%1 is the exported file&apos;s name</extracomment>
        <translation>Klaar: %1</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <extracomment>%1 is the saved file&apos;s name</extracomment>
        <translation>Opgeslagen als %1</translation>
    </message>
    <message>
        <source>Camera</source>
        <extracomment>Label of the camera picker</extracomment>
        <translation>Camera</translation>
    </message>
    <message>
        <source>Export as</source>
        <translation>Exporteren als</translation>
    </message>
    <message>
        <source>One camera (original quality)</source>
        <translation>Eén camera (originele kwaliteit)</translation>
    </message>
    <message>
        <source>Grid of every camera</source>
        <translation>Raster van alle camera&apos;s</translation>
    </message>
    <message>
        <source>Front and sides</source>
        <translation>Voor en zijkanten</translation>
    </message>
    <message>
        <source>One camera with overlay</source>
        <translation>Eén camera met overlay</translation>
    </message>
    <message>
        <source>Show</source>
        <extracomment>Label over the overlay choices: which details the movie shows over the video</extracomment>
        <translation>Tonen</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum en tijd</translation>
    </message>
    <message>
        <source>Camera names</source>
        <translation>Cameranamen</translation>
    </message>
    <message>
        <source>Reason and place</source>
        <translation>Reden en plaats</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Rijgegevens</translation>
    </message>
    <message>
        <source>No driving data in these clips</source>
        <translation>Geen rijgegevens in deze clips</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Label over the movie&apos;s picture size choices</extracomment>
        <translation>Formaat</translation>
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
        <translation>Volledige resolutie</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>Label over the choices of which part of the event to export</extracomment>
        <translation>Lengte</translation>
    </message>
    <message>
        <source>Whole event</source>
        <translation>Hele gebeurtenis</translation>
    </message>
    <message>
        <source>From the moment</source>
        <translation>Vanaf het moment</translation>
    </message>
    <message>
        <source>From 10 seconds before the moment it happened to 20 seconds after.</source>
        <translation>Van 10 seconden vóór het moment dat het gebeurde tot 20 seconden erna.</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>A part of the event the user sets by start and end</extracomment>
        <translation>Aangepast</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>Van</translation>
    </message>
    <message>
        <source>to</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>tot</translation>
    </message>
    <message>
        <source>into the event</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>in de gebeurtenis</translation>
    </message>
    <message>
        <source>The end has to come after the start.</source>
        <translation>Het einde moet na het begin komen.</translation>
    </message>
    <message>
        <source>Finishing the file…</source>
        <translation>Bestand afronden…</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Exporteren…</translation>
    </message>
    <message>
        <source>Saving a copy…</source>
        <translation>Kopie opslaan…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>Button that starts the export</extracomment>
        <translation>Exporteren</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>Button that stops a running export</extracomment>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the finished export dialog</extracomment>
        <translation>Klaar</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Toon in map</translation>
    </message>
    <message>
        <source>Opens the folder that holds the file, with the file selected.</source>
        <translation>Opent de map met het bestand, met het bestand geselecteerd.</translation>
    </message>
    <message>
        <source>Email…</source>
        <translation>E-mail…</translation>
    </message>
    <message>
        <source>Starts a new email with the file attached.</source>
        <translation>Begint een nieuwe e-mail met het bestand als bijlage.</translation>
    </message>
    <message>
        <source>Save to…</source>
        <translation>Opslaan in…</translation>
    </message>
    <message>
        <source>Choose exactly where on your %1 to save this file.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Kies precies waar op je %1 je dit bestand wilt opslaan.</translation>
    </message>
    <message>
        <source>MPEG-4 movie (*.mp4)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.mp4)&quot; as it is</extracomment>
        <translation>MPEG-4-video (*.mp4)</translation>
    </message>
    <message>
        <source>Incident Report (PDF)</source>
        <translation>Incidentrapport (PDF)</translation>
    </message>
    <message>
        <source>Evidence Package (ZIP)</source>
        <translation>Bewijspakket (ZIP)</translation>
    </message>
    <message>
        <source>When and where, each camera at the moment, the driving data, and every original file with its SHA-256, ready for an insurer or the police.</source>
        <translation>Wanneer en waar, elke camera op het moment, de rijgegevens, en elk origineel bestand met zijn SHA-256, klaar voor een verzekeraar of de politie.</translation>
    </message>
    <message>
        <source>The report, every original file exactly as the car wrote it, and a SHA256SUMS file anyone can check them with, in one ZIP.</source>
        <extracomment>SHA256SUMS is a file name; keep it as it is</extracomment>
        <translation>Het rapport, elk origineel bestand precies zoals de auto het schreef, en een SHA256SUMS-bestand waarmee iedereen ze kan controleren, in één ZIP.</translation>
    </message>
    <message>
        <source>Include unlock keys</source>
        <translation>Ontgrendelsleutels meesturen</translation>
    </message>
    <message>
        <source>Lets whoever receives the package play the encrypted footage. Anyone with the keys can watch it.</source>
        <translation>Hiermee kan wie het pakket ontvangt de versleutelde beelden afspelen. Iedereen met de sleutels kan ze bekijken.</translation>
    </message>
    <message>
        <source>Making the report…</source>
        <translation>Rapport maken…</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.pdf)&quot; as it is</extracomment>
        <translation>PDF-document (*.pdf)</translation>
    </message>
    <message>
        <source>ZIP archive (*.zip)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.zip)&quot; as it is</extracomment>
        <translation>ZIP-archief (*.zip)</translation>
    </message>
    <message>
        <source>Export &amp; Share</source>
        <translation>Exporteren en delen</translation>
    </message>
    <message>
        <source>Save this event as its own video file, ready to send to an insurer, police, or anyone else who needs it: one camera exactly as recorded, or every camera in one movie.</source>
        <translation>Sla deze gebeurtenis op als apart videobestand, klaar om te sturen naar een verzekeraar, de politie of iemand anders die het nodig heeft: één camera precies zoals opgenomen, of alle camera&apos;s in één video.</translation>
    </message>
    <message>
        <source>This couldn&apos;t be exported right now. Your original footage on the drive is untouched — you can try again.</source>
        <translation>Dit kon nu niet worden geëxporteerd. Je originele beelden op de schijf zijn onaangeroerd — je kunt het opnieuw proberen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t save there — try a different folder.</source>
        <translation>Kon daar niet opslaan — probeer een andere map.</translation>
    </message>
    <message>
        <source>Stops the export. Your original footage is untouched either way.</source>
        <translation>Stopt het exporteren. Je originele beelden blijven hoe dan ook onaangeroerd.</translation>
    </message>
</context>
<context>
    <name>ExportSession</name>
    <message>
        <source>The movie couldn&apos;t be written.</source>
        <translation>De video kon niet worden geschreven.</translation>
    </message>
    <message>
        <source>There wasn&apos;t enough memory to export the footage.</source>
        <translation>Er was niet genoeg geheugen om de beelden te exporteren.</translation>
    </message>
</context>
<context>
    <name>Exporter</name>
    <message>
        <source>The chosen stretch lies outside this camera&apos;s footage.</source>
        <translation>Het gekozen stuk valt buiten de beelden van deze camera.</translation>
    </message>
    <message>
        <source>This camera&apos;s clips are too damaged to make a movie that keeps its own timing.</source>
        <translation>De clips van deze camera zijn te beschadigd om een video te maken die de eigen timing behoudt.</translation>
    </message>
</context>
<context>
    <name>FailureScreens</name>
    <message>
        <source>Choose a Different Drive</source>
        <translation>Kies een andere schijf</translation>
    </message>
    <message>
        <source>Tesla dashcam and Sentry footage always lives in a folder named &quot;TeslaCam&quot; at the top level of the drive. If this is the right drive, make sure Dashcam Recording is turned on in your car&apos;s settings.</source>
        <extracomment>&quot;Dashcam Recording&quot; is the car&apos;s setting, as named on its touchscreen</extracomment>
        <translation>Tesla-dashcam- en Schildwachtbeelden staan altijd in een map met de naam &quot;TeslaCam&quot; in de hoofdmap van de schijf. Als dit de juiste schijf is, controleer dan of Dashcam-opname is ingeschakeld in de instellingen van je auto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; doesn&apos;t have a TeslaCam folder on it, so it may not be the drive from your car.</source>
        <extracomment>%1 is the drive&apos;s name</extracomment>
        <translation>&quot;%1&quot; heeft geen TeslaCam-map, dus het is misschien niet de schijf uit je auto.</translation>
    </message>
    <message>
        <source>We couldn&apos;t find a TeslaCam folder</source>
        <translation>We konden geen TeslaCam-map vinden</translation>
    </message>
    <message>
        <source>Your car needs a drive formatted as exFAT (or FAT32 for smaller drives), and this one is %1. Back up anything important from it first, then reformat it using %2 (choose &quot;ExFAT&quot;) and reinsert it into your car so it can start recording.</source>
        <extracomment>%1 is the drive&apos;s format (e.g. NTFS), %2 a program that formats drives, e.g. &quot;a disk utility such as Disks&quot;. &quot;ExFAT&quot; is the choice as the program names it</extracomment>
        <translation>Je auto heeft een schijf nodig die als exFAT is geformatteerd (of FAT32 voor kleinere schijven), en deze is %1. Maak eerst een reservekopie van alles wat belangrijk is, formatteer de schijf dan opnieuw met %2 (kies &quot;ExFAT&quot;) en steek hem weer in je auto zodat die kan beginnen met opnemen.</translation>
    </message>
    <message>
        <source>This drive needs to be reformatted</source>
        <translation>Deze schijf moet opnieuw worden geformatteerd</translation>
    </message>
    <message>
        <source>We need you to point us back to your Tesla drive</source>
        <translation>Wijs ons opnieuw je Tesla-schijf aan</translation>
    </message>
    <message>
        <source>%1 asks apps to re-confirm folder access sometimes — for example after a drive is renamed or unplugged and replugged. Nothing is wrong and nothing was lost; just pick the Tesla drive again and everything will pick up where it left off.</source>
        <extracomment>%1 is the operating system, e.g. &quot;Your system&quot;</extracomment>
        <translation>%1 vraagt apps soms om toegang tot een map opnieuw te bevestigen — bijvoorbeeld nadat een schijf een andere naam heeft gekregen of is losgekoppeld en weer aangesloten. Er is niets mis en er is niets verloren; kies de Tesla-schijf opnieuw en alles gaat verder waar het was gebleven.</translation>
    </message>
    <message>
        <source>Choose Tesla drive</source>
        <translation>Kies Tesla-schijf</translation>
    </message>
    <message>
        <source>We need you to point us back to your Vault folder</source>
        <translation>Wijs ons opnieuw je Kluismap aan</translation>
    </message>
    <message>
        <source>%1 asks apps to re-confirm folder access sometimes — for example after a drive is renamed or unplugged and replugged. Nothing is wrong and nothing was lost; just pick the Vault folder again and everything will pick up where it left off.</source>
        <extracomment>%1 is the operating system, e.g. &quot;Your system&quot;</extracomment>
        <translation>%1 vraagt apps soms om toegang tot een map opnieuw te bevestigen — bijvoorbeeld nadat een schijf een andere naam heeft gekregen of is losgekoppeld en weer aangesloten. Er is niets mis en er is niets verloren; kies de Kluismap opnieuw en alles gaat verder waar het was gebleven.</translation>
    </message>
    <message>
        <source>Choose Vault folder</source>
        <translation>Kies Kluismap</translation>
    </message>
    <message>
        <source>This drive doesn&apos;t have any footage yet</source>
        <translation>Deze schijf heeft nog geen beelden</translation>
    </message>
    <message>
        <source>We found a TeslaCam folder, but there&apos;s nothing in it yet. Your car saves footage here as you drive and while it&apos;s parked with Sentry Mode on — check back after your next drive.</source>
        <translation>We hebben een TeslaCam-map gevonden, maar er staat nog niets in. Je auto slaat hier beelden op tijdens het rijden en als hij geparkeerd staat met Schildwachtmodus aan — kijk na je volgende rit nog eens.</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt dashcam clips so only your Tesla account can view them. This isn&apos;t damage or an error — Keelhold still safely backs these files up exactly as they are, and encrypted clips can be watched anytime at %1. Want future footage to play right here? There&apos;s a 30-second setting in your car.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Nieuwere Tesla-software kan dashcamclips versleutelen zodat alleen je Tesla-account ze kan bekijken. Dit is geen schade of fout — Keelhold maakt nog steeds veilig een reservekopie van deze bestanden precies zoals ze zijn, en versleutelde clips zijn altijd te bekijken op %1. Wil je toekomstige beelden hier afspelen? Daarvoor is er een instelling in je auto die 30 seconden kost.</translation>
    </message>
    <message>
        <source>Your car is encrypting this footage</source>
        <translation>Je auto versleutelt deze beelden</translation>
    </message>
    <message>
        <source>Show Me the 30-Second Fix</source>
        <translation>Toon de oplossing van 30 seconden</translation>
    </message>
    <message>
        <source>Your drive was disconnected</source>
        <translation>Je schijf is losgekoppeld</translation>
    </message>
    <message>
        <source>No problem — nothing was lost. Whatever was in progress is paused and will pick back up right where it left off as soon as you plug the drive back in.</source>
        <translation>Geen probleem — er is niets verloren. Wat bezig was, is gepauzeerd en gaat verder waar het was gebleven zodra je de schijf weer aansluit.</translation>
    </message>
</context>
<context>
    <name>FileHandOff</name>
    <message>
        <source>Show the file in its folder, or attach it to a new email.</source>
        <translation>Toon het bestand in de map, of voeg het toe aan een nieuwe e-mail.</translation>
    </message>
</context>
<context>
    <name>H264Encoder</name>
    <message>
        <source>There wasn&apos;t enough memory to export the footage.</source>
        <translation>Er was niet genoeg geheugen om de beelden te exporteren.</translation>
    </message>
    <message>
        <source>The movie&apos;s video encoder couldn&apos;t be started: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>De video-encoder kon niet worden gestart: %1.</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be encoded: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>De beelden konden niet worden gecodeerd: %1.</translation>
    </message>
</context>
<context>
    <name>HardMoment</name>
    <message>
        <source>Hard braking</source>
        <translation>Hard remmen</translation>
    </message>
    <message>
        <source>Swerve</source>
        <translation>Uitwijken</translation>
    </message>
    <message>
        <source>Sudden stop</source>
        <translation>Plotselinge stop</translation>
    </message>
    <message>
        <source>Emergency braking</source>
        <translation>Noodremming</translation>
    </message>
    <message>
        <source>Self-Driving off</source>
        <translation>Zelfrijdend uit</translation>
    </message>
    <message>
        <source>Cruise control off</source>
        <translation>Cruisecontrol uit</translation>
    </message>
    <message>
        <source>Autosteer off</source>
        <translation>Autosturen uit</translation>
    </message>
</context>
<context>
    <name>HealthComputer</name>
    <message>
        <source>These clips are in a folder on this %1, not on your car&apos;s drive, so there&apos;s nothing to reformat.</source>
        <extracomment>%1 is the word for the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Deze clips staan in een map op deze %1, niet op de schijf van je auto, dus er valt niets te formatteren.</translation>
    </message>
    <message>
        <source>Your drive is formatted exFAT — exactly what your Tesla expects. No action needed.</source>
        <translation>Je schijf is geformatteerd als exFAT — precies wat je Tesla verwacht. Je hoeft niets te doen.</translation>
    </message>
    <message>
        <source>Your drive is formatted FAT32. Older Tesla software prefers exFAT for drives over 32 GB — if you ever see recording gaps, reformatting to exFAT (in %1, after backing up) can help.</source>
        <extracomment>%1 names the tool to format a drive with, e.g. &quot;a disk utility such as Disks&quot;</extracomment>
        <translation>Je schijf is geformatteerd als FAT32. Oudere Tesla-software werkt liever met exFAT voor schijven groter dan 32 GB — zie je ooit gaten in de opnamen, dan kan opnieuw formatteren naar exFAT helpen (in %1, na een reservekopie).</translation>
    </message>
    <message>
        <source>Your drive is formatted %1, which your car can record to. exFAT is the most widely used choice if you also read it on other computers.</source>
        <extracomment>%1 is a file system name, e.g. ext4</extracomment>
        <translation>Je schijf is geformatteerd als %1, waarop je auto kan opnemen. exFAT is de meest gebruikte keuze als je de schijf ook op andere computers leest.</translation>
    </message>
    <message>
        <source>This drive is formatted %1, which your car cannot record to. Reformat it to exFAT before using it as a dashcam drive.</source>
        <extracomment>%1 is a file system name, e.g. NTFS</extracomment>
        <translation>Deze schijf is geformatteerd als %1, waarop je auto niet kan opnemen. Formatteer hem opnieuw als exFAT voordat je hem als dashcamschijf gebruikt.</translation>
    </message>
    <message>
        <source>This drive is formatted %1, which your car may not fully support. exFAT is the safest choice.</source>
        <extracomment>%1 is a file system name</extracomment>
        <translation>Deze schijf is geformatteerd als %1, wat je auto mogelijk niet volledig ondersteunt. exFAT is de veiligste keuze.</translation>
    </message>
    <message>
        <source>We couldn&apos;t determine how this drive is formatted.</source>
        <translation>We konden niet vaststellen hoe deze schijf is geformatteerd.</translation>
    </message>
    <message numerus="yes">
        <source>Back up %n new events</source>
        <translation>
            <numerusform>Bewaar %n nieuwe gebeurtenis</numerusform>
            <numerusform>Bewaar %n nieuwe gebeurtenissen</numerusform>
        </translation>
    </message>
    <message>
        <source>These moments are only on your car&apos;s drive right now. Keep them so they&apos;re safe even if the drive fills up or fails.</source>
        <translation>Deze momenten staan nu alleen op de schijf van je auto. Bewaar ze, zodat ze veilig zijn, ook als de schijf vol raakt of defect gaat.</translation>
    </message>
    <message>
        <source>%1% full — normal for a Tesla drive</source>
        <extracomment>%1 is a whole percentage; the % sign follows it</extracomment>
        <translation>%1% vol — normaal voor een Tesla-schijf</translation>
    </message>
    <message>
        <source>The car reuses space by overwriting its oldest footage. That&apos;s expected, not a problem — back up anything you want to keep from the recommendation above.</source>
        <translation>De auto hergebruikt ruimte door de oudste beelden te overschrijven. Dat is te verwachten, geen probleem — maak een reservekopie van alles wat je wilt bewaren via de aanbeveling hierboven.</translation>
    </message>
    <message>
        <source>Drive is %1% full</source>
        <extracomment>%1 is a whole percentage; the % sign follows it</extracomment>
        <translation>Schijf is %1% vol</translation>
    </message>
    <message>
        <source>Nothing urgent yet, but it&apos;s worth backing up regularly so you&apos;re never caught out.</source>
        <translation>Nog niets dringends, maar het is verstandig regelmatig een reservekopie te maken, zodat je nooit voor verrassingen staat.</translation>
    </message>
    <message numerus="yes">
        <source>%n clips didn&apos;t record properly</source>
        <translation>
            <numerusform>%n clip is niet goed opgenomen</numerusform>
            <numerusform>%n clips zijn niet goed opgenomen</numerusform>
        </translation>
    </message>
    <message>
        <source>A small number of damaged clips is normal and not something to worry about.</source>
        <translation>Een klein aantal beschadigde clips is normaal en geen reden tot zorg.</translation>
    </message>
    <message>
        <source>This is a known issue with some Tesla USB drives, especially cheaper or older ones. Consider a bigger-name USB 3.0 drive if this keeps happening.</source>
        <translation>Dit is een bekend probleem met sommige Tesla-USB-schijven, vooral goedkopere of oudere. Overweeg een USB 3.0-schijf van een bekend merk als dit blijft gebeuren.</translation>
    </message>
    <message>
        <source>Some clips are encrypted by your car</source>
        <translation>Sommige clips zijn door je auto versleuteld</translation>
    </message>
    <message>
        <source>Recent Tesla software can encrypt dashcam footage. Keelhold can still back these up — see Help for how to view them.</source>
        <translation>Recente Tesla-software kan dashcambeelden versleutelen. Keelhold kan daar nog steeds een reservekopie van maken — zie Help voor hoe je ze bekijkt.</translation>
    </message>
    <message>
        <source>Everything looks good</source>
        <translation>Alles ziet er goed uit</translation>
    </message>
    <message>
        <source>Your drive is healthy and up to date. Nothing needs your attention right now.</source>
        <translation>Je schijf is gezond en bijgewerkt. Er vraagt nu niets je aandacht.</translation>
    </message>
</context>
<context>
    <name>HealthPresenter</name>
    <message>
        <source>%1% full — normal for a Tesla drive. The car reuses space by overwriting its oldest footage.</source>
        <extracomment>%1 is a whole percentage; &quot;%1% full&quot; reads &quot;90% full&quot;</extracomment>
        <translation>%1% vol — normaal voor een Tesla-schijf. De auto hergebruikt ruimte door de oudste beelden te overschrijven.</translation>
    </message>
    <message numerus="yes">
        <source>You have %n events not backed up yet — see the recommendation below.</source>
        <translation>
            <numerusform>Je hebt %n gebeurtenis die nog niet bewaard is — zie de aanbeveling hieronder.</numerusform>
            <numerusform>Je hebt %n gebeurtenissen die nog niet bewaard zijn — zie de aanbeveling hieronder.</numerusform>
        </translation>
    </message>
    <message>
        <source>Free Space</source>
        <translation>Vrije ruimte</translation>
    </message>
    <message>
        <source>We couldn&apos;t read this drive&apos;s capacity.</source>
        <translation>We konden de capaciteit van deze schijf niet lezen.</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>Heading: the drive&apos;s file system format (exFAT, FAT32, …)</extracomment>
        <translation>Formaat</translation>
    </message>
    <message>
        <source>Footage Condition</source>
        <translation>Staat van de beelden</translation>
    </message>
    <message>
        <source>Still checking your footage for damage — check back shortly.</source>
        <translation>Je beelden worden nog op schade gecontroleerd — kijk zo nog eens.</translation>
    </message>
    <message numerus="yes">
        <source>All %n checked clips are in good shape.</source>
        <translation>
            <numerusform>De %n gecontroleerde clip is in goede staat.</numerusform>
            <numerusform>Alle %n gecontroleerde clips zijn in goede staat.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n checked clips didn&apos;t record properly.</source>
        <extracomment>%1 damaged clips of %n checked</extracomment>
        <translation>
            <numerusform>%1 van %n gecontroleerde clip is niet goed opgenomen.</numerusform>
            <numerusform>%1 van %n gecontroleerde clips zijn niet goed opgenomen.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is a known issue with some Tesla USB drives and isn&apos;t something you did.</source>
        <translation>Dit is een bekend probleem met sommige Tesla-USB-schijven en niet iets wat jij hebt gedaan.</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Versleuteling</translation>
    </message>
    <message>
        <source>Some clips on this drive are encrypted by your car.</source>
        <translation>Sommige clips op deze schijf zijn door je auto versleuteld.</translation>
    </message>
    <message>
        <source>Keelhold can still back these up as-is. Encrypted clips play at %1.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Keelhold kan hier nog steeds ongewijzigd een reservekopie van maken. Versleutelde clips spelen af op %1.</translation>
    </message>
    <message>
        <source>Turn encryption off for future recordings…</source>
        <translation>Versleuteling uitzetten voor toekomstige opnamen…</translation>
    </message>
    <message>
        <source>A 30-second setting in your car. Everything already recorded is unaffected.</source>
        <translation>Een instelling in je auto die 30 seconden kost. Alles wat al is opgenomen, blijft zoals het is.</translation>
    </message>
    <message>
        <source>Recommendations</source>
        <translation>Aanbevelingen</translation>
    </message>
    <message>
        <source>No drive health yet</source>
        <translation>Nog geen schijfstatus</translation>
    </message>
    <message>
        <source>Scan a Tesla drive from the Drive tab to see its fullness, corruption rate, and format at a glance.</source>
        <extracomment>&quot;Drive&quot; is the app&apos;s own tab; translate it as there</extracomment>
        <translation>Scan een Tesla-schijf vanuit het tabblad Schijf om in één oogopslag te zien hoe vol hij is, hoeveel clips beschadigd zijn en hoe hij is geformatteerd.</translation>
    </message>
</context>
<context>
    <name>HelpArticle</name>
    <message>
        <source>What is Sentry Mode?</source>
        <translation>Wat is Schildwachtmodus?</translation>
    </message>
    <message>
        <source>Why are clips exactly one minute long?</source>
        <translation>Waarom zijn clips precies één minuut lang?</translation>
    </message>
    <message>
        <source>What does &quot;didn&apos;t record properly&quot; mean?</source>
        <extracomment>The quoted words are the app&apos;s own, from its message about damaged clips</extracomment>
        <translation>Wat betekent &quot;niet goed opgenomen&quot;?</translation>
    </message>
    <message>
        <source>Why does it say some clips are encrypted?</source>
        <translation>Waarom staat er dat sommige clips versleuteld zijn?</translation>
    </message>
    <message>
        <source>How does the Vault keep my footage safe?</source>
        <translation>Hoe houdt de Kluis mijn beelden veilig?</translation>
    </message>
    <message>
        <source>Will this app ever change or delete anything on my drive?</source>
        <translation>Wijzigt of verwijdert deze app ooit iets op mijn schijf?</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Sneltoetsen</translation>
    </message>
    <message>
        <source>Sentry Mode is your Tesla&apos;s built-in security system. While your car is parked, its cameras watch for people or objects that come close, or for a bump or impact. When something happens, the car saves a short recording from every camera into a &quot;Sentry event&quot; so you can review it later.</source>
        <translation>Schildwachtmodus is het ingebouwde beveiligingssysteem van je Tesla. Terwijl je auto geparkeerd staat, letten de camera&apos;s op mensen of voorwerpen die dichtbij komen, of op een stoot of aanrijding. Als er iets gebeurt, slaat de auto een korte opname van elke camera op als &quot;Schildwachtgebeurtenis&quot;, zodat je die later kunt bekijken.</translation>
    </message>
    <message>
        <source>You can turn Sentry Mode on or off, and adjust its sensitivity, from your car&apos;s touchscreen under Safety &amp; Security.</source>
        <translation>Je kunt Schildwachtmodus aan- of uitzetten en de gevoeligheid aanpassen via het touchscreen van je auto, onder Veiligheid en beveiliging.</translation>
    </message>
    <message>
        <source>Your Tesla records in one-minute segments, one file per camera per minute, rather than one long continuous video. This is simply how the car&apos;s software is built — it makes the recordings easier for the car to manage and less likely to be lost all at once if something goes wrong.</source>
        <translation>Je Tesla neemt op in stukken van één minuut, één bestand per camera per minuut, in plaats van één lange doorlopende video. Zo is de software van de auto nu eenmaal gebouwd — de auto kan de opnamen zo makkelijker beheren, en ze gaan minder snel allemaal tegelijk verloren als er iets misgaat.</translation>
    </message>
    <message>
        <source>Keelhold stitches these one-minute files back together into a single, continuous timeline for you, so you never have to think about the individual files — you just scrub through one smooth timeline per event.</source>
        <translation>Keelhold voegt deze bestanden van één minuut voor je samen tot één doorlopende tijdlijn, zodat je nooit aan de afzonderlijke bestanden hoeft te denken — je scrolt gewoon door één vloeiende tijdlijn per gebeurtenis.</translation>
    </message>
    <message>
        <source>Occasionally, a clip won&apos;t play — it might be zero bytes, cut off partway through, or simply unreadable. This is a well-known issue with Tesla USB drives, especially with lower-quality or aging drives, and it is not something you did.</source>
        <translation>Af en toe speelt een clip niet af — hij kan nul bytes groot zijn, halverwege afgebroken of gewoon onleesbaar. Dit is een bekend probleem met Tesla-USB-schijven, vooral met schijven van mindere kwaliteit of oudere schijven, en het is niet iets wat jij hebt gedaan.</translation>
    </message>
    <message>
        <source>When this happens, Keelhold shows that camera angle as a labeled placeholder instead of crashing or freezing, and counts it in Drive Health so you can see how often it&apos;s happening. If it happens a lot, a newer USB 3.0 drive from a reputable brand usually helps.</source>
        <translation>Als dit gebeurt, toont Keelhold die camerahoek als een gemarkeerde plaatshouder in plaats van vast te lopen of te crashen, en telt het mee in Schijfstatus, zodat je kunt zien hoe vaak het gebeurt. Gebeurt het vaak, dan helpt meestal een nieuwere USB 3.0-schijf van een betrouwbaar merk.</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt dashcam and Sentry clips so that only you can view them — this is a privacy feature, not damage or an error. Encrypted files still look like normal video files, but no app can decode their contents without the key of each clip.</source>
        <translation>Nieuwere Tesla-software kan dashcam- en Schildwachtclips versleutelen zodat alleen jij ze kunt bekijken — dit is een privacyfunctie, geen schade of fout. Versleutelde bestanden zien er nog steeds uit als gewone videobestanden, maar geen enkele app kan de inhoud decoderen zonder de sleutel van elke clip.</translation>
    </message>
    <message>
        <source>Keelhold safely backs up encrypted clips exactly as they are — the backup and verification steps work the same either way.</source>
        <translation>Keelhold maakt veilig een reservekopie van versleutelde clips, precies zoals ze zijn — het kopiëren en verifiëren werkt hoe dan ook hetzelfde.</translation>
    </message>
    <message>
        <source>To watch them here, choose “Unlock Encrypted Footage…” and sign in with your Tesla account. Keelhold then asks Tesla for each clip&apos;s key, sending only the clip&apos;s locked key and your car&apos;s VIN, never any video, and keeps the keys so the footage plays here from then on, even offline. You can also watch them at %1, where your browser fetches the keys the same way.</source>
        <translation>Om ze hier te bekijken, kies je “Versleutelde beelden ontgrendelen…” en meld je je aan met je Tesla-account. Keelhold vraagt Tesla dan om de sleutel van elke clip en stuurt daarbij alleen de vergrendelde sleutel van de clip en de VIN van je auto, nooit video. De sleutels worden bewaard, zodat de beelden hier vanaf dan afspelen, ook offline. Je kunt ze ook bekijken op %1, waar je browser de sleutels op dezelfde manier ophaalt.</translation>
    </message>
    <message>
        <source>Want future footage to play right here instead? In your car: Controls → Safety → switch off &quot;Encrypt Dashcam Recordings&quot; (about 30 seconds — the app can walk you through it wherever you see the encryption notice). Everything already recorded is unaffected either way.</source>
        <extracomment>Controls, Safety and &quot;Encrypt Dashcam Recordings&quot; are named as on the car&apos;s touchscreen</extracomment>
        <translation>Wil je dat toekomstige beelden in plaats daarvan hier afspelen? In je auto: Bediening → Veiligheid → zet &quot;Dashcam-opnamen versleutelen&quot; uit (ongeveer 30 seconden — de app kan je erdoorheen leiden overal waar je de melding over versleuteling ziet). Alles wat al is opgenomen, blijft hoe dan ook zoals het is.</translation>
    </message>
    <message>
        <source>When you choose &quot;Keep&quot; on an event, Keelhold copies every file for that event to a folder you chose (your &quot;Vault&quot;) while checking the data as it copies. It then re-checks the copy&apos;s checksum (SHA-256) against the original to make sure the copy is a faithful, byte-for-byte match — you&apos;ll see it marked &quot;Verified copy&quot; afterward.</source>
        <extracomment>&quot;Keep&quot; and &quot;Verified copy&quot; are the app&apos;s own button and mark; translate them as there</extracomment>
        <translation>Als je bij een gebeurtenis &quot;Bewaren&quot; kiest, kopieert Keelhold elk bestand van die gebeurtenis naar een map die je hebt gekozen (je &quot;Kluis&quot;) en controleert de gegevens tijdens het kopiëren. Daarna vergelijkt het de controlesom (SHA-256) van de kopie opnieuw met het origineel, om zeker te zijn dat de kopie getrouw is en byte voor byte overeenkomt — daarna zie je het gemarkeerd als &quot;Geverifieerde kopie&quot;.</translation>
    </message>
    <message>
        <source>Your Vault works completely independently of your car&apos;s drive: once something is kept, you can browse and watch it any time, even with the Tesla drive unplugged or gone entirely. Re-importing the same drive later automatically recognizes anything already kept, so you never end up with duplicates.</source>
        <translation>Je Kluis werkt volledig los van de schijf van je auto: zodra iets bewaard is, kun je het altijd doorbladeren en bekijken, ook als de Tesla-schijf is losgekoppeld of helemaal weg is. Als je dezelfde schijf later opnieuw importeert, herkent Keelhold automatisch wat al bewaard is, zodat je nooit dubbele kopieën krijgt.</translation>
    </message>
    <message>
        <source>No. Keelhold only ever reads from your Tesla&apos;s drive — no code path in this app writes to it, renames anything on it, or deletes anything from it. The only place this app writes to is the Vault folder you choose on your %1 (or another drive you pick).</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Nee. Keelhold leest alleen van de schijf van je Tesla — geen enkel deel van deze app schrijft ernaar, hernoemt er iets op of verwijdert er iets van. De enige plek waar deze app naar schrijft, is de Kluismap die je kiest op je %1 (of op een andere schijf die je kiest).</translation>
    </message>
    <message>
        <source>This matters most right after something happens to your car: the drive from your glovebox is exactly as safe to hand to police or an insurer after using this app as it was before.</source>
        <translation>Dit is vooral belangrijk vlak nadat er iets met je auto is gebeurd: de schijf uit je dashboardkastje is na het gebruik van deze app net zo veilig om aan de politie of een verzekeraar te geven als daarvoor.</translation>
    </message>
    <message>
        <source>You can review everything without touching the mouse:</source>
        <translation>Je kunt alles bekijken zonder de muis aan te raken:</translation>
    </message>
    <message>
        <source>A quick reminder of these appears under the playback controls until you hide it — and you can always come back here.</source>
        <translation>Een korte herinnering hieraan staat onder de afspeelknoppen tot je die verbergt — en je kunt hier altijd terugkomen.</translation>
    </message>
    <message>
        <source>Space — play or pause all cameras together</source>
        <extracomment>A line of the keyboard help: the key, a dash, what it does. Name keys as keyboards there mark them</extracomment>
        <translation>Space — alle camera&apos;s samen afspelen of pauzeren</translation>
    </message>
    <message>
        <source>← and → — skip back or forward 5 seconds</source>
        <translation>← en → — 5 seconden terug of vooruit</translation>
    </message>
    <message>
        <source>, and . — step one frame back or forward (pauses first)</source>
        <translation>, en . — één frame terug of vooruit (pauzeert eerst)</translation>
    </message>
    <message>
        <source>1 to 7 — jump straight to a camera (in the order shown in the grid)</source>
        <translation>1 tot 7 — direct naar een camera springen (in de volgorde van het raster)</translation>
    </message>
    <message>
        <source>0 — back to all cameras</source>
        <translation>0 — terug naar alle camera&apos;s</translation>
    </message>
    <message>
        <source>M — replay the moment it happened (just before the honk, bump, or detection)</source>
        <translation>M — het moment dat het gebeurde opnieuw afspelen (net vóór de claxon, de stoot of de detectie)</translation>
    </message>
    <message>
        <source>N and Shift+N — jump to the next or previous thing that happened: someone moving in front of a camera (that camera is enlarged), or a hard brake, swerve or Autosteer switching off</source>
        <translation>N en Shift+N — naar het volgende of vorige dat gebeurde springen: iemand die voor een camera beweegt (die camera wordt vergroot), of hard remmen, uitwijken of Autosturen dat uitschakelt</translation>
    </message>
    <message>
        <source>F — fill the window with just the cameras (Esc goes back)</source>
        <translation>F — het venster vullen met alleen de camera&apos;s (Esc gaat terug)</translation>
    </message>
    <message>
        <source>T — show or hide the car&apos;s driving data over the video (speed, pedals, steering, Autopilot)</source>
        <translation>T — de rijgegevens van de auto over de video tonen of verbergen (snelheid, pedalen, sturen, Autopilot)</translation>
    </message>
    <message>
        <source>↑ and ↓ — move through the event list, auto-playing each one</source>
        <translation>↑ en ↓ — door de lijst met gebeurtenissen gaan en elke gebeurtenis automatisch afspelen</translation>
    </message>
    <message>
        <source>K — keep a safe copy of the selected event in your Vault</source>
        <translation>K — een veilige kopie van de geselecteerde gebeurtenis in je Kluis bewaren</translation>
    </message>
    <message>
        <source>D — dismiss the selected event (never deletes any footage)</source>
        <translation>D — de geselecteerde gebeurtenis negeren (verwijdert nooit beelden)</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Help</source>
        <extracomment>Heading over the list of help articles</extracomment>
        <translation>Help</translation>
    </message>
</context>
<context>
    <name>HelpWindowController</name>
    <message>
        <source>Keelhold Help</source>
        <translation>Keelhold Help</translation>
    </message>
</context>
<context>
    <name>InboxPresenter</name>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is the long date, %2 the time: &quot;Monday, 2 June 2025 at 2:11:05 AM&quot;</extracomment>
        <translation>%1 om %2</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>Heading over the events of today</extracomment>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>Heading over the events of yesterday</extracomment>
        <translation>Gisteren</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>A row&apos;s second line: the place, then the event&apos;s size on disk</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Details limited — footage intact</source>
        <translation>Beperkte details — beelden intact</translation>
    </message>
    <message>
        <source>Place and details stay with your car</source>
        <translation>Plaats en details blijven bij je auto</translation>
    </message>
    <message>
        <source>Your car didn&apos;t write a details file for this event, so we don&apos;t know the exact reason or location — the video itself is intact.</source>
        <translation>Je auto heeft geen detailbestand voor deze gebeurtenis geschreven, dus we weten de precieze reden of locatie niet — de video zelf is intact.</translation>
    </message>
    <message>
        <source>Encrypted by your car</source>
        <translation>Versleuteld door je auto</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <extracomment>Short reason on a row&apos;s chip: the footage is encrypted</extracomment>
        <translation>Versleuteld</translation>
    </message>
    <message>
        <source>Your car encrypted this recording, and its reason and place with it. Keelhold keeps it byte for byte; unlock it with your Tesla account to watch it here.</source>
        <translation>Je auto heeft deze opname versleuteld, en de reden en plaats ervan ook. Keelhold bewaart haar byte voor byte; ontgrendel haar met je Tesla-account om haar hier te bekijken.</translation>
    </message>
    <message>
        <source>Locked — unlock it with your Tesla account to watch it here.</source>
        <translation>Vergrendeld — ontgrendel met je Tesla-account om hier te kijken.</translation>
    </message>
    <message>
        <source>Unlocked — its keys are kept on this computer, so it plays here even offline.</source>
        <translation>Ontgrendeld — de sleutels zijn op deze computer bewaard, dus afspelen kan hier, ook offline.</translation>
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
        <translation>Nieuw — je hebt dit nog niet bekeken.</translation>
    </message>
    <message>
        <source>A verified copy is safe in your Vault.</source>
        <translation>Een geverifieerde kopie staat veilig in je Kluis.</translation>
    </message>
    <message numerus="yes">
        <source>%n damaged clips</source>
        <translation>
            <numerusform>%n beschadigde clip</numerusform>
            <numerusform>%n beschadigde clips</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n angles from this moment didn&apos;t record properly. This is a known Tesla drive issue, not something you did.</source>
        <extracomment>Camera angles, one per camera, whose clips are damaged</extracomment>
        <translation>
            <numerusform>%n camerahoek van dit moment is niet goed opgenomen. Dit is een bekend probleem met Tesla-schijven, niet iets wat jij hebt gedaan.</numerusform>
            <numerusform>%n camerahoeken van dit moment zijn niet goed opgenomen. Dit is een bekend probleem met Tesla-schijven, niet iets wat jij hebt gedaan.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reason: %1</source>
        <extracomment>Screen reader name of a row&apos;s reason chip; %1 is the car&apos;s reason</extracomment>
        <translation>Reden: %1</translation>
    </message>
    <message numerus="yes">
        <source>Keep %n</source>
        <extracomment>Button that keeps the ticked events in the Vault; %n is how many</extracomment>
        <translation>
            <numerusform>%n bewaren</numerusform>
            <numerusform>%n bewaren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Dismiss %n</source>
        <extracomment>Button that hides the ticked events from the list; %n is how many</extracomment>
        <translation>
            <numerusform>%n negeren</numerusform>
            <numerusform>%n negeren</numerusform>
        </translation>
    </message>
    <message>
        <source>Deselect this event</source>
        <translation>Deze gebeurtenis deselecteren</translation>
    </message>
    <message>
        <source>Select this event</source>
        <translation>Deze gebeurtenis selecteren</translation>
    </message>
    <message>
        <source>New</source>
        <extracomment>Status filter: events not watched yet</extracomment>
        <translation>Nieuw</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <extracomment>Status filter: events already watched</extracomment>
        <translation>Bekeken</translation>
    </message>
    <message>
        <source>In Vault</source>
        <extracomment>Status filter: events kept in the Vault</extracomment>
        <translation>In Kluis</translation>
    </message>
    <message>
        <source>Dismissed</source>
        <extracomment>Status filter: events hidden from the list</extracomment>
        <translation>Genegeerd</translation>
    </message>
    <message>
        <source>Sentry</source>
        <extracomment>Kind filter: Sentry Mode events</extracomment>
        <translation>Schildwacht</translation>
    </message>
    <message>
        <source>Saved</source>
        <extracomment>Kind filter: clips the driver saved</extracomment>
        <translation>Opgeslagen</translation>
    </message>
    <message>
        <source>Recent Driving</source>
        <extracomment>Kind filter: the car&apos;s rolling recording of recent driving</extracomment>
        <translation>Recente ritten</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>One place in the Activity line: camera name, then time into the event (&quot;Left Side 2:14&quot;)</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Activity: %1</source>
        <translation>Activiteit: %1</translation>
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
        <translation>Schijf</translation>
    </message>
    <message>
        <source>Switch Drive</source>
        <translation>Andere schijf</translation>
    </message>
    <message>
        <source>Pick a different Tesla drive or re-scan this one.</source>
        <translation>Kies een andere Tesla-schijf of scan deze opnieuw.</translation>
    </message>
    <message>
        <source>Checking for new events…</source>
        <translation>Zoeken naar nieuwe gebeurtenissen…</translation>
    </message>
    <message>
        <source>Filter</source>
        <extracomment>Button that opens the filter menu</extracomment>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Show only certain statuses, reasons, or kinds of events.</source>
        <translation>Toon alleen bepaalde statussen, redenen of soorten gebeurtenissen.</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Heading in the filter menu: filter by status (new, reviewed, …)</extracomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>Reason</source>
        <extracomment>Heading in the filter menu: filter by the car&apos;s reason for recording</extracomment>
        <translation>Reden</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Heading in the filter menu: filter by kind (Sentry, saved, recent driving)</extracomment>
        <translation>Soort</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Alle filters wissen</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>Button that starts ticking several events</extracomment>
        <translation>Selecteren</translation>
    </message>
    <message>
        <source>Select multiple events to keep or dismiss them all at once.</source>
        <translation>Selecteer meerdere gebeurtenissen om ze in één keer te bewaren of te negeren.</translation>
    </message>
    <message>
        <source>Tick events to keep or dismiss them together.</source>
        <translation>Vink gebeurtenissen aan om ze samen te bewaren of te negeren.</translation>
    </message>
    <message>
        <source>Archive the selected events to your Vault.</source>
        <translation>De geselecteerde gebeurtenissen in je Kluis bewaren.</translation>
    </message>
    <message>
        <source>Hide the selected events. This never deletes footage from your drive or Vault.</source>
        <translation>De geselecteerde gebeurtenissen verbergen. Dit verwijdert nooit beelden van je schijf of uit je Kluis.</translation>
    </message>
    <message>
        <source>Remove this filter.</source>
        <translation>Dit filter verwijderen.</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Button that keeps the event in the Vault</extracomment>
        <translation>Bewaren</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Button that hides the event from the list</extracomment>
        <translation>Negeren</translation>
    </message>
    <message>
        <source>Just had an incident while driving?</source>
        <translation>Net een incident gehad tijdens het rijden?</translation>
    </message>
    <message>
        <source>It&apos;s likely in Recent Driving below. This folder overwrites itself as you keep driving, so keep a copy now if you need it.</source>
        <extracomment>&quot;Recent Driving&quot; is the list&apos;s own heading for the car&apos;s rolling recording</extracomment>
        <translation>Het staat waarschijnlijk hieronder bij Recente ritten. Deze map overschrijft zichzelf terwijl je verder rijdt, dus bewaar nu een kopie als je die nodig hebt.</translation>
    </message>
    <message>
        <source>Keep Recent Driving Now</source>
        <translation>Recente ritten nu bewaren</translation>
    </message>
    <message>
        <source>Copies all of Recent Driving to your Vault before it&apos;s overwritten. Your drive itself is never changed.</source>
        <translation>Kopieert alles uit Recente ritten naar je Kluis voordat het wordt overschreven. Je schijf zelf wordt nooit gewijzigd.</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>Button that plays Recent Driving</extracomment>
        <translation>Voorbeeld</translation>
    </message>
    <message>
        <source>All statuses</source>
        <translation>Alle statussen</translation>
    </message>
    <message>
        <source>Any reason</source>
        <translation>Elke reden</translation>
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
        <translation>Er is geen map op %1.</translation>
    </message>
    <message>
        <source>The report couldn&apos;t be written there.</source>
        <translation>Het rapport kon daar niet worden geschreven.</translation>
    </message>
    <message>
        <source>There is no room for the report on this computer.</source>
        <translation>Er is geen ruimte voor het rapport op deze computer.</translation>
    </message>
</context>
<context>
    <name>KeepSummary</name>
    <message>
        <source>Keeping stopped</source>
        <translation>Bewaren gestopt</translation>
    </message>
    <message numerus="yes">
        <source>%1 was disconnected before everything was kept: %n events kept and verified.</source>
        <translation>
            <numerusform>%1 is losgekoppeld voordat alles bewaard was: %n gebeurtenis bewaard en geverifieerd.</numerusform>
            <numerusform>%1 is losgekoppeld voordat alles bewaard was: %n gebeurtenissen bewaard en geverifieerd.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped keeping from %1: %n events kept and verified.</source>
        <translation>
            <numerusform>Bewaren vanaf %1 gestopt: %n gebeurtenis bewaard en geverifieerd.</numerusform>
            <numerusform>Bewaren vanaf %1 gestopt: %n gebeurtenissen bewaard en geverifieerd.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some footage couldn&apos;t be kept</source>
        <translation>Sommige beelden konden niet worden bewaard</translation>
    </message>
    <message numerus="yes">
        <source>Kept %n new events from %1, but some files couldn&apos;t be kept. %2</source>
        <extracomment>%1 is the drive&apos;s name, %2 the first failed file&apos;s reason (a whole sentence)</extracomment>
        <translation>
            <numerusform>%n nieuwe gebeurtenis bewaard vanaf %1, maar sommige bestanden konden niet worden bewaard. %2</numerusform>
            <numerusform>%n nieuwe gebeurtenissen bewaard vanaf %1, maar sommige bestanden konden niet worden bewaard. %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing new to keep</source>
        <translation>Niets nieuws om te bewaren</translation>
    </message>
    <message>
        <source>Everything on %1 is already in your Vault.</source>
        <translation>Alles op %1 staat al in je Kluis.</translation>
    </message>
    <message>
        <source>Footage kept</source>
        <translation>Beelden bewaard</translation>
    </message>
    <message numerus="yes">
        <source>Kept %n new events from %1 — %2, all verified</source>
        <extracomment>%1 is the drive&apos;s name, %2 a size such as &quot;1.2 GB&quot;</extracomment>
        <translation>
            <numerusform>%n nieuwe gebeurtenis bewaard vanaf %1 — %2, alles geverifieerd</numerusform>
            <numerusform>%n nieuwe gebeurtenissen bewaard vanaf %1 — %2, alles geverifieerd</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeyService</name>
    <message>
        <source>Tesla couldn&apos;t confirm that your account owns the car that recorded this clip, so it can&apos;t be unlocked.</source>
        <translation>Tesla kon niet bevestigen dat je account eigenaar is van de auto die deze clip heeft opgenomen, dus de clip kan niet worden ontgrendeld.</translation>
    </message>
    <message>
        <source>Your Tesla sign-in has expired. Sign in again to unlock this footage.</source>
        <translation>Je Tesla-aanmelding is verlopen. Meld je opnieuw aan om deze beelden te ontgrendelen.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service couldn&apos;t be reached. Check your internet connection and try again.</source>
        <translation>De dienst van Tesla was niet bereikbaar. Controleer je internetverbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service refused to unlock this clip. Try again later.</source>
        <translation>De dienst van Tesla weigerde deze clip te ontgrendelen. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service gave an answer Keelhold couldn&apos;t read. Try again later.</source>
        <translation>De dienst van Tesla gaf een antwoord dat Keelhold niet kon lezen. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>This clip was copied while the car was still writing it, so it can&apos;t be unlocked.</source>
        <translation>Deze clip is gekopieerd terwijl de auto hem nog aan het schrijven was, dus hij kan niet worden ontgrendeld.</translation>
    </message>
    <message>
        <source>This clip&apos;s header is damaged, so it can&apos;t be unlocked.</source>
        <translation>De header van deze clip is beschadigd, dus hij kan niet worden ontgrendeld.</translation>
    </message>
    <message>
        <source>Sign in with your Tesla account to unlock this footage.</source>
        <translation>Meld je aan met je Tesla-account om deze beelden te ontgrendelen.</translation>
    </message>
    <message>
        <source>The key Tesla&apos;s service sent doesn&apos;t open this clip, so it can&apos;t be unlocked.</source>
        <translation>De sleutel die de dienst van Tesla stuurde, opent deze clip niet, dus hij kan niet worden ontgrendeld.</translation>
    </message>
    <message>
        <source>This clip couldn&apos;t be read from the drive, so it can&apos;t be unlocked.</source>
        <translation>Deze clip kon niet van de schijf worden gelezen, dus hij kan niet worden ontgrendeld.</translation>
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
        <translation>Afspelen/pauze</translation>
    </message>
    <message>
        <source>Skip 5s</source>
        <translation>5 s springen</translation>
    </message>
    <message>
        <source>Frame step</source>
        <translation>Per frame</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Camera&apos;s</translation>
    </message>
    <message>
        <source>All cameras</source>
        <translation>Alle camera&apos;s</translation>
    </message>
    <message>
        <source>The moment</source>
        <extracomment>Jump to the moment the event happened</extracomment>
        <translation>Het moment</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Wat er gebeurde</translation>
    </message>
    <message>
        <source>Fill window</source>
        <translation>Venster vullen</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Rijgegevens</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Keep the event in the Vault</extracomment>
        <translation>Bewaren</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Hide the event from the list</extracomment>
        <translation>Negeren</translation>
    </message>
    <message>
        <source>Hide these hints. The full shortcut list stays in Help.</source>
        <translation>Verberg deze tips. De volledige lijst met sneltoetsen blijft in Help staan.</translation>
    </message>
</context>
<context>
    <name>ListPaneResizeHandle</name>
    <message>
        <source>Resize event list</source>
        <translation>Grootte van gebeurtenislijst wijzigen</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Copy Diagnostic Information</source>
        <translation>Diagnostische gegevens kopiëren</translation>
    </message>
</context>
<context>
    <name>MapViewModel</name>
    <message>
        <source>Kept in your Vault</source>
        <translation>Bewaard in je Kluis</translation>
    </message>
    <message>
        <source>Driving yourself</source>
        <extracomment>The route key&apos;s colour for driving without Autopilot</extracomment>
        <translation>Zelf rijden</translation>
    </message>
    <message>
        <source>Map tiles aren&apos;t available — check your internet connection.</source>
        <translation>Kaarttegels zijn niet beschikbaar — controleer je internetverbinding.</translation>
    </message>
</context>
<context>
    <name>MockEngine</name>
    <message>
        <source>Reading your drive…</source>
        <translation>Je schijf lezen…</translation>
    </message>
    <message>
        <source>Reading Sentry events…</source>
        <translation>Schildwachtgebeurtenissen lezen…</translation>
    </message>
    <message>
        <source>Reading saved clips…</source>
        <translation>Opgeslagen clips lezen…</translation>
    </message>
    <message>
        <source>Reading recent driving…</source>
        <translation>Recente ritten lezen…</translation>
    </message>
    <message>
        <source>Almost done…</source>
        <translation>Bijna klaar…</translation>
    </message>
</context>
<context>
    <name>Mp4Writer</name>
    <message>
        <source>There is already a file at “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>Er staat al een bestand op “%1”.</translation>
    </message>
    <message>
        <source>The movie file “%1” couldn&apos;t be created: %2.</source>
        <extracomment>%1 is the movie&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>Het videobestand “%1” kon niet worden aangemaakt: %2.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be started: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>De video kon niet worden gestart: %1.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be written: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>De video kon niet worden geschreven: %1.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be finished: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>De video kon niet worden afgerond: %1.</translation>
    </message>
</context>
<context>
    <name>OnboardingTexts</name>
    <message>
        <source>Loads a few short made-up clips so you can look around before connecting your own Tesla.</source>
        <translation>Laadt een paar korte verzonnen clips, zodat je kunt rondkijken voordat je je eigen Tesla aansluit.</translation>
    </message>
    <message>
        <source>Welcome to Keelhold</source>
        <translation>Welkom bij Keelhold</translation>
    </message>
    <message>
        <source>Your Tesla is always recording — Sentry Mode, saved clips, and your recent drives. This app reads the USB drive from your car&apos;s glovebox, shows you what it found in plain English, and keeps a permanent, verified copy on your %1 so you never lose footage that matters.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Je Tesla neemt altijd op — Schildwachtmodus, opgeslagen clips en je recente ritten. Deze app leest de USB-schijf uit het dashboardkastje van je auto, laat in gewone taal zien wat er is gevonden, en bewaart een blijvende, geverifieerde kopie op je %1, zodat je nooit beelden kwijtraakt die ertoe doen.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <extracomment>Button on the first screen of the setup</extracomment>
        <translation>Aan de slag</translation>
    </message>
    <message>
        <source>Just exploring? Try sample footage</source>
        <translation>Alleen even kijken? Probeer voorbeeldbeelden</translation>
    </message>
    <message>
        <source>Show Me Your Tesla Drive</source>
        <translation>Laat je Tesla-schijf zien</translation>
    </message>
    <message>
        <source>Plug in the USB drive from your car&apos;s glovebox, then pick it below. We only look at the parts of the drive you choose to show us.</source>
        <translation>Sluit de USB-schijf uit het dashboardkastje van je auto aan en kies hem hieronder. We kijken alleen naar de delen van de schijf die je ons laat zien.</translation>
    </message>
    <message>
        <source>Connected drives appear here the moment %1 mounts them. Pick yours and confirm with one click — we&apos;ll check for Tesla footage right after.</source>
        <extracomment>%1 is the operating system as a sentence&apos;s subject, e.g. &quot;your system&quot;</extracomment>
        <translation>Aangesloten schijven verschijnen hier zodra %1 ze koppelt. Kies de jouwe en bevestig met één klik — we zoeken meteen daarna naar Tesla-beelden.</translation>
    </message>
    <message>
        <source>No drive detected yet. Insert your Tesla&apos;s USB drive, or choose it manually below.</source>
        <translation>Nog geen schijf gevonden. Plaats de USB-schijf van je Tesla, of kies hem hieronder handmatig.</translation>
    </message>
    <message>
        <source>Choose a Drive or Folder Manually…</source>
        <translation>Handmatig een schijf of map kiezen…</translation>
    </message>
    <message>
        <source>Opens a file picker starting at %1, where connected USB drives appear.</source>
        <extracomment>%1 is a folder path, e.g. /media/alex</extracomment>
        <translation>Opent een bestandskiezer bij %1, waar aangesloten USB-schijven verschijnen.</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>Button: back to the previous step of the setup</extracomment>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Select Your Tesla&apos;s USB Drive</source>
        <extracomment>Title of the folder dialog that picks the car&apos;s drive</extracomment>
        <translation>Kies de USB-schijf van je Tesla</translation>
    </message>
    <message>
        <source>Choose the drive itself, or its TeslaCam folder. Look for a plain external drive icon — Tesla drives usually show up as &quot;UNTITLED&quot; or similar.</source>
        <translation>Kies de schijf zelf, of de TeslaCam-map erop. Zoek naar een gewoon pictogram van een externe schijf — Tesla-schijven verschijnen meestal als &quot;UNTITLED&quot; of iets vergelijkbaars.</translation>
    </message>
    <message>
        <source>Use This Drive</source>
        <extracomment>Accept button of the folder dialog that picks the car&apos;s drive</extracomment>
        <translation>Deze schijf gebruiken</translation>
    </message>
    <message>
        <source>Reading your drive…</source>
        <translation>Je schijf lezen…</translation>
    </message>
    <message>
        <source>This usually takes a few seconds.</source>
        <translation>Dit duurt meestal een paar seconden.</translation>
    </message>
    <message>
        <source>Browse While It Finishes</source>
        <translation>Alvast bladeren</translation>
    </message>
    <message>
        <source>Start Browsing</source>
        <translation>Beginnen met bladeren</translation>
    </message>
    <message>
        <source>Recording without encryption</source>
        <translation>Opnemen zonder versleuteling</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt new recordings so only your Tesla account can view them. If you&apos;d like footage to play here (and in any app), switch it off in your car — it takes about 30 seconds, and everything already recorded stays exactly as it is.</source>
        <translation>Nieuwere Tesla-software kan nieuwe opnamen versleutelen zodat alleen je Tesla-account ze kan bekijken. Wil je dat beelden hier (en in elke app) afspelen, zet het dan uit in je auto — het duurt ongeveer 30 seconden, en alles wat al is opgenomen blijft precies zoals het is.</translation>
    </message>
    <message>
        <source>Open %1</source>
        <extracomment>Button; %1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>%1 openen</translation>
    </message>
    <message>
        <source>Tesla&apos;s own viewer for encrypted clips — decryption happens in your browser; footage never leaves your device.</source>
        <translation>Tesla&apos;s eigen viewer voor versleutelde clips — het ontsleutelen gebeurt in je browser; de beelden verlaten je apparaat nooit.</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the encryption guide</extracomment>
        <translation>Klaar</translation>
    </message>
    <message numerus="yes">
        <source>Found %n events so far, across %1 clips.</source>
        <translation>
            <numerusform>Tot nu toe %n gebeurtenis gevonden, in %1 clips.</numerusform>
            <numerusform>Tot nu toe %n gebeurtenissen gevonden, in %1 clips.</numerusform>
        </translation>
    </message>
    <message>
        <source>Is this your Tesla drive? — %1</source>
        <extracomment>%1 is the drive&apos;s name, e.g. UNTITLED</extracomment>
        <translation>Is dit je Tesla-schijf? — %1</translation>
    </message>
    <message>
        <source>In your car, tap Controls</source>
        <translation>Tik in je auto op Bediening</translation>
    </message>
    <message>
        <source>The car icon at the bottom-left of the touchscreen.</source>
        <translation>Het auto-pictogram linksonder op het touchscreen.</translation>
    </message>
    <message>
        <source>Tap Safety</source>
        <extracomment>The car&apos;s menu entry, as named on its touchscreen</extracomment>
        <translation>Tik op Veiligheid</translation>
    </message>
    <message>
        <source>In the menu on the left.</source>
        <translation>In het menu aan de linkerkant.</translation>
    </message>
    <message>
        <source>Switch off “Encrypt Dashcam Recordings”</source>
        <extracomment>The quoted words are the car&apos;s setting, as named on its touchscreen</extracomment>
        <translation>Zet “Dashcam-opnamen versleutelen” uit</translation>
    </message>
    <message>
        <source>If you don&apos;t see it, your car&apos;s software doesn&apos;t encrypt yet — nothing to do.</source>
        <translation>Zie je het niet, dan versleutelt de software van je auto nog niet — je hoeft niets te doen.</translation>
    </message>
    <message>
        <source>Done</source>
        <comment>last step</comment>
        <extracomment>The last step of the guide: finished</extracomment>
        <translation>Klaar</translation>
    </message>
    <message>
        <source>New footage records unencrypted and plays right here.</source>
        <translation>Nieuwe beelden worden onversleuteld opgenomen en spelen hier af.</translation>
    </message>
    <message>
        <source>Clips recorded while encryption was on stay encrypted — sign in at %1 to watch them anytime. Keelhold still backs them up byte-for-byte, so nothing is ever lost.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Clips die zijn opgenomen terwijl versleuteling aan stond, blijven versleuteld — meld je aan op %1 om ze altijd te bekijken. Keelhold maakt er nog steeds byte voor byte een reservekopie van, zodat er nooit iets verloren gaat.</translation>
    </message>
    <message>
        <source>Prefer to keep encryption on? That&apos;s a fair choice — it protects footage if the drive itself is stolen. This app will still keep verified copies of everything.</source>
        <translation>Wil je versleuteling liever aan laten? Dat is een redelijke keuze — het beschermt de beelden als de schijf zelf wordt gestolen. Deze app blijft van alles geverifieerde kopieën bewaren.</translation>
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
        <translation>%1 — geen beelden</translation>
    </message>
</context>
<context>
    <name>PlainReason</name>
    <message>
        <source>Something came close</source>
        <translation>Er kwam iets dichtbij</translation>
    </message>
    <message>
        <source>Came close</source>
        <extracomment>Short label of a Sentry event where something came close to the car</extracomment>
        <translation>Dichtbij</translation>
    </message>
    <message>
        <source>Sentry Mode noticed a person or object near your parked car.</source>
        <translation>Schildwachtmodus zag een persoon of voorwerp bij je geparkeerde auto.</translation>
    </message>
    <message>
        <source>Bump or impact detected</source>
        <translation>Stoot of aanrijding gedetecteerd</translation>
    </message>
    <message>
        <source>Impact</source>
        <extracomment>Short label of an event where the car felt a bump</extracomment>
        <translation>Stoot</translation>
    </message>
    <message>
        <source>The car felt a physical bump or impact while parked.</source>
        <translation>De auto voelde een fysieke stoot of aanrijding terwijl hij geparkeerd stond.</translation>
    </message>
    <message>
        <source>You honked</source>
        <translation>Je hebt getoeterd</translation>
    </message>
    <message>
        <source>Honk save</source>
        <extracomment>Short label of footage the car saved because the driver honked</extracomment>
        <translation>Claxon</translation>
    </message>
    <message>
        <source>Honking saves the last few minutes of footage — a quick way to keep a moment.</source>
        <translation>Toeteren slaat de laatste paar minuten beelden op — een snelle manier om een moment te bewaren.</translation>
    </message>
    <message>
        <source>You saved this</source>
        <translation>Je hebt dit opgeslagen</translation>
    </message>
    <message>
        <source>You saved</source>
        <extracomment>Short label of footage the driver saved with the dashcam button</extracomment>
        <translation>Zelf opgeslagen</translation>
    </message>
    <message>
        <source>You tapped the dashcam save button, so the car kept this footage.</source>
        <translation>Je tikte op de opslagknop van de dashcam, dus de auto heeft deze beelden bewaard.</translation>
    </message>
    <message>
        <source>Panic alarm</source>
        <translation>Paniekalarm</translation>
    </message>
    <message>
        <source>Alarm</source>
        <extracomment>Short label of an event where the car&apos;s alarm went off</extracomment>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>The car&apos;s alarm was triggered.</source>
        <translation>Het alarm van de auto ging af.</translation>
    </message>
    <message>
        <source>Recent driving</source>
        <translation>Recente ritten</translation>
    </message>
    <message>
        <source>Driving</source>
        <extracomment>Short label of the car&apos;s rolling recording while driving</extracomment>
        <translation>Rijden</translation>
    </message>
    <message>
        <source>The rolling last hour of driving. The car reuses this space continuously.</source>
        <translation>Het doorlopende laatste uur rijden. De auto gebruikt deze ruimte steeds opnieuw.</translation>
    </message>
    <message>
        <source>Sentry event</source>
        <translation>Schildwachtgebeurtenis</translation>
    </message>
    <message>
        <source>Sentry</source>
        <extracomment>Short label of a Sentry event of a kind the app does not know</extracomment>
        <translation>Schildwacht</translation>
    </message>
    <message>
        <source>Your car flagged this moment. Newer software sometimes adds new event types.</source>
        <translation>Je auto heeft dit moment gemarkeerd. Nieuwere software voegt soms nieuwe soorten gebeurtenissen toe.</translation>
    </message>
</context>
<context>
    <name>PlatformWords</name>
    <message>
        <source>a disk utility such as Disks</source>
        <extracomment>Completes &quot;reformatting (in %1, after backing up)&quot;; Disks is the GNOME disk tool</extracomment>
        <translation>een schijfprogramma zoals Schijven</translation>
    </message>
    <message>
        <source>computer</source>
        <extracomment>The user&apos;s machine, as in &quot;on this %1&quot; or &quot;on your %1&quot;</extracomment>
        <translation>computer</translation>
    </message>
    <message>
        <source>your system</source>
        <extracomment>The operating system as the subject of a sentence, lower case</extracomment>
        <translation>je systeem</translation>
    </message>
</context>
<context>
    <name>PlayerDrivingData</name>
    <message>
        <source>No driving data in this event</source>
        <translation>Geen rijgegevens in deze gebeurtenis</translation>
    </message>
    <message>
        <source>%1 %</source>
        <extracomment>How far the accelerator is pressed, as a percentage: &quot;42 %&quot;</extracomment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Driving data</source>
        <extracomment>Button that shows or hides the driving data over the video</extracomment>
        <translation>Rijgegevens</translation>
    </message>
    <message>
        <source>Show or hide the car&apos;s speed, pedals, steering and Autopilot state over the video. (T)</source>
        <translation>Toon of verberg de snelheid, pedalen, het sturen en de Autopilot-status van de auto over de video. (T)</translation>
    </message>
    <message>
        <source>This event&apos;s footage carries no driving data from the car.</source>
        <translation>De beelden van deze gebeurtenis bevatten geen rijgegevens van de auto.</translation>
    </message>
    <message>
        <source>Click to switch between km/h and mph.</source>
        <translation>Klik om te wisselen tussen km/h en mph.</translation>
    </message>
    <message>
        <source>BRAKE</source>
        <extracomment>Lamp over the video that is lit while the brake pedal is pressed; keep it short</extracomment>
        <translation>REM</translation>
    </message>
    <message>
        <source>Lit while the brake pedal is pressed.</source>
        <translation>Brandt als het rempedaal is ingetrapt.</translation>
    </message>
    <message>
        <source>How far the accelerator pedal is pressed.</source>
        <translation>Hoe ver het gaspedaal is ingetrapt.</translation>
    </message>
    <message>
        <source>Steering wheel angle.</source>
        <translation>Stuurhoek.</translation>
    </message>
    <message>
        <source>Direction of travel.</source>
        <translation>Rijrichting.</translation>
    </message>
    <message>
        <source>The car&apos;s speed over the event; red marks hard braking. Click to jump there.</source>
        <translation>De snelheid van de auto tijdens de gebeurtenis; rood markeert hard remmen. Klik om erheen te springen.</translation>
    </message>
</context>
<context>
    <name>PlayerLayout</name>
    <message>
        <source>%1 — playing at %2, this computer can&apos;t keep up</source>
        <extracomment>%1 is the chosen playback speed, %2 the speed it really plays at (e.g. 1.6×)</extracomment>
        <translation>%1 — speelt af op %2, deze computer kan het niet bijhouden</translation>
    </message>
    <message>
        <source>The moment it happened — %1 into the event.</source>
        <extracomment>%1 is a time into the event, e.g. 0:42</extracomment>
        <translation>Het moment dat het gebeurde — %1 in de gebeurtenis.</translation>
    </message>
    <message>
        <source>%1 — currently enlarged.</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>%1 — nu vergroot.</translation>
    </message>
    <message>
        <source>Switch to the %1 camera. (Keys 1–7 jump between cameras; 0 shows all.)</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>Schakel naar de camera %1. (Toetsen 1–7 springen tussen camera&apos;s; 0 toont alle.)</translation>
    </message>
    <message>
        <source>Click to enlarge the %1 camera. Click again to show all cameras.</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>Klik om de camera %1 te vergroten. Klik nogmaals om alle camera&apos;s te tonen.</translation>
    </message>
    <message>
        <source>Location unknown</source>
        <translation>Locatie onbekend</translation>
    </message>
    <message>
        <source>Select an event</source>
        <translation>Kies een gebeurtenis</translation>
    </message>
    <message>
        <source>Choose an archived event on the left to watch it — everything here works exactly like the Drive tab, even with no Tesla drive connected.</source>
        <extracomment>&quot;Drive&quot; is the app&apos;s own tab; translate it as there</extracomment>
        <translation>Kies links een bewaarde gebeurtenis om die te bekijken — alles werkt hier precies zoals op het tabblad Schijf, ook zonder aangesloten Tesla-schijf.</translation>
    </message>
    <message>
        <source>Choose something from the list on the left to watch every available camera angle, synced on one timeline.</source>
        <translation>Kies iets uit de lijst links om elke beschikbare camerahoek te bekijken, gesynchroniseerd op één tijdlijn.</translation>
    </message>
    <message>
        <source>Just exploring? Try sample footage</source>
        <translation>Alleen even kijken? Probeer voorbeeldbeelden</translation>
    </message>
</context>
<context>
    <name>PlayerMetadataBar</name>
    <message>
        <source>Reason: %1</source>
        <extracomment>Screen reader name of the reason chip; %1 is the car&apos;s reason, e.g. Sentry Mode detection</extracomment>
        <translation>Reden: %1</translation>
    </message>
</context>
<context>
    <name>PlayerMoments</name>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is a hard moment (&quot;Hard braking&quot;), %2 a time into the event</extracomment>
        <translation>%1 op %2</translation>
    </message>
    <message>
        <source>What happened</source>
        <extracomment>Button that jumps to the next thing that happened in the event</extracomment>
        <translation>Wat er gebeurde</translation>
    </message>
    <message>
        <source>Jump to the next thing that happened: someone moving in front of a camera, or a hard moment of the drive (N)</source>
        <translation>Spring naar het volgende dat gebeurde: iemand die voor een camera beweegt, of een heftig moment van de rit (N)</translation>
    </message>
    <message>
        <source>Back to the thing that happened before (Shift+N)</source>
        <translation>Terug naar wat daarvoor gebeurde (Shift+N)</translation>
    </message>
</context>
<context>
    <name>ReportChart</name>
    <message>
        <source>Speed (%1)</source>
        <extracomment>Title of the chart&apos;s speed panel; %1 is the unit, km/h or mph</extracomment>
        <translation>Snelheid (%1)</translation>
    </message>
    <message>
        <source>Accelerator (%)</source>
        <extracomment>Title of the chart&apos;s accelerator pedal panel, in percent pressed</extracomment>
        <translation>Gaspedaal (%)</translation>
    </message>
    <message>
        <source>Steering (°)</source>
        <extracomment>Title of the chart&apos;s steering wheel panel, in degrees</extracomment>
        <translation>Stuurhoek (°)</translation>
    </message>
    <message>
        <source>Acceleration (m/s²)</source>
        <extracomment>Title of the chart&apos;s acceleration panel</extracomment>
        <translation>Versnelling (m/s²)</translation>
    </message>
    <message>
        <source>moment</source>
        <extracomment>On the chart&apos;s time axis, under the moment the car triggered the recording</extracomment>
        <translation>moment</translation>
    </message>
    <message>
        <source>start</source>
        <translation>begin</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>On the chart&apos;s time axis: %1 is seconds from the moment, signed (+5, -5)</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Brake pressed</source>
        <extracomment>In the chart&apos;s legend, beside the colour of the brake band</extracomment>
        <translation>Rem ingetrapt</translation>
    </message>
    <message>
        <source>Acceleration x</source>
        <extracomment>In the chart&apos;s legend: acceleration along the car&apos;s x axis</extracomment>
        <translation>Versnelling x</translation>
    </message>
    <message>
        <source>Acceleration y</source>
        <extracomment>In the chart&apos;s legend: acceleration along the car&apos;s y axis</extracomment>
        <translation>Versnelling y</translation>
    </message>
</context>
<context>
    <name>ReportContent</name>
    <message>
        <source>The drive didn&apos;t answer while this file was read.</source>
        <translation>De schijf reageerde niet tijdens het lezen van dit bestand.</translation>
    </message>
    <message>
        <source>Locked — unlock to include this camera</source>
        <extracomment>Stands in for a camera&apos;s picture when its footage is encrypted and no key is held</extracomment>
        <translation>Vergrendeld — ontgrendel om deze camera mee te nemen</translation>
    </message>
    <message>
        <source>This camera&apos;s picture at the moment couldn&apos;t be read.</source>
        <translation>Het beeld van deze camera op het moment kon niet worden gelezen.</translation>
    </message>
    <message>
        <source>Plays</source>
        <extracomment>A clip&apos;s condition in the report&apos;s list of files: nothing wrong with it</extracomment>
        <translation>Speelt af</translation>
    </message>
    <message>
        <source>Empty — the car wrote nothing into it</source>
        <translation>Leeg — de auto heeft er niets in geschreven</translation>
    </message>
    <message>
        <source>Cut off — the car didn&apos;t finish writing it</source>
        <translation>Afgebroken — de auto heeft het schrijven niet afgerond</translation>
    </message>
    <message>
        <source>Damaged — it can&apos;t be played</source>
        <translation>Beschadigd — kan niet worden afgespeeld</translation>
    </message>
    <message>
        <source>The drive didn&apos;t answer when it was read</source>
        <translation>De schijf reageerde niet bij het lezen</translation>
    </message>
    <message>
        <source>Encrypted by your car</source>
        <translation>Versleuteld door je auto</translation>
    </message>
    <message>
        <source>Not checked</source>
        <extracomment>A clip&apos;s condition in the report&apos;s list of files: it was not looked at</extracomment>
        <translation>Niet gecontroleerd</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Dit bestand kon niet worden gelezen.</translation>
    </message>
</context>
<context>
    <name>ReportDocument</name>
    <message>
        <source>Encrypted by your car</source>
        <translation>Versleuteld door je auto</translation>
    </message>
    <message>
        <source>Incident report: %1</source>
        <extracomment>The report&apos;s title; %1 is why the car recorded, such as &quot;Sentry event&quot;</extracomment>
        <translation>Incidentrapport: %1</translation>
    </message>
    <message>
        <source>Incident report: %1 — %2</source>
        <extracomment>The report&apos;s title; %1 is the kind of recording, such as &quot;Saved&quot;, %2 why the car recorded</extracomment>
        <translation>Incidentrapport: %1 — %2</translation>
    </message>
    <message>
        <source>The moment</source>
        <extracomment>Label beside the date and time the car triggered the recording</extracomment>
        <translation>Het moment</translation>
    </message>
    <message>
        <source>Recording starts</source>
        <translation>Opname begint</translation>
    </message>
    <message>
        <source>(the car&apos;s clock)</source>
        <extracomment>After the date and time of the moment: which clock says so</extracomment>
        <translation>(klok van de auto)</translation>
    </message>
    <message>
        <source>By the GPS clock</source>
        <extracomment>Label beside the same moment by the GPS clock, in UTC</extracomment>
        <translation>Volgens de GPS-klok</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Wat er gebeurde</translation>
    </message>
    <message>
        <source>Place</source>
        <extracomment>Label beside the street and city where it happened</extracomment>
        <translation>Plaats</translation>
    </message>
    <message>
        <source>The car didn&apos;t name the place.</source>
        <translation>De auto heeft de plaats niet vermeld.</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Coördinaten</translation>
    </message>
    <message>
        <source>Recorded by</source>
        <extracomment>Label beside how many cameras recorded the event</extracomment>
        <translation>Opgenomen door</translation>
    </message>
    <message>
        <source>The car&apos;s clock and the GPS clock differ by more than a time zone can explain: the car&apos;s clock was probably set wrong. The GPS time is the more reliable one.</source>
        <translation>De klok van de auto en de GPS-klok verschillen meer dan een tijdzone kan verklaren: de klok van de auto stond waarschijnlijk verkeerd. De GPS-tijd is de betrouwbaardere.</translation>
    </message>
    <message>
        <source>The car encrypted this footage. The files are listed exactly as the car wrote them.</source>
        <translation>De auto heeft deze beelden versleuteld. De bestanden staan vermeld precies zoals de auto ze schreef.</translation>
    </message>
    <message>
        <source>Where, and the route driven</source>
        <extracomment>Heading over the map of the spot and the route</extracomment>
        <translation>Waar, en de gereden route</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Waar</translation>
    </message>
    <message>
        <source>The car didn&apos;t record where this happened, so there is no map.</source>
        <translation>De auto heeft niet vastgelegd waar dit gebeurde, dus er is geen kaart.</translation>
    </message>
    <message>
        <source>Each camera at the moment</source>
        <translation>Elke camera op het moment</translation>
    </message>
    <message>
        <source>Every picture is the camera&apos;s own frame at the moment, at its full size.</source>
        <translation>Elk beeld is het eigen frame van de camera op het moment, op volledige grootte.</translation>
    </message>
    <message>
        <source>Driving data</source>
        <extracomment>Heading over the chart of speed, pedals and steering</extracomment>
        <translation>Rijgegevens</translation>
    </message>
    <message>
        <source>From 10 seconds before to 10 seconds after the moment, as the car recorded it with each frame.</source>
        <translation>Van 10 seconden vóór tot 10 seconden na het moment, zoals de auto ze bij elk frame vastlegde.</translation>
    </message>
    <message>
        <source>The first 20 seconds of the recording, as the car recorded it with each frame.</source>
        <translation>De eerste 20 seconden van de opname, zoals de auto ze bij elk frame vastlegde.</translation>
    </message>
    <message>
        <source>These clips carry no driving data: the car records it only with newer software.</source>
        <translation>Deze clips bevatten geen rijgegevens: de auto legt die alleen vast met nieuwere software.</translation>
    </message>
    <message>
        <source>At the moment</source>
        <extracomment>Heading over the car&apos;s readings at the moment</extracomment>
        <translation>Op het moment</translation>
    </message>
    <message>
        <source>At the start</source>
        <translation>Bij het begin</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>Label beside the car&apos;s speed</extracomment>
        <translation>Snelheid</translation>
    </message>
    <message>
        <source>Gear</source>
        <extracomment>Label beside the gear (P, R, N, D)</extracomment>
        <translation>Rijstand</translation>
    </message>
    <message>
        <source>Brake</source>
        <extracomment>Label beside whether the brake pedal was pressed</extracomment>
        <translation>Rem</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Ingetrapt</translation>
    </message>
    <message>
        <source>Not pressed</source>
        <translation>Niet ingetrapt</translation>
    </message>
    <message>
        <source>Accelerator</source>
        <extracomment>Label beside how far the accelerator pedal was pressed</extracomment>
        <translation>Gaspedaal</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>How far the accelerator pedal was pressed; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Steering</source>
        <extracomment>Label beside the steering wheel&apos;s angle</extracomment>
        <translation>Stuurhoek</translation>
    </message>
    <message>
        <source>Driver assistance</source>
        <extracomment>Label beside Autopilot&apos;s state (Autosteer, Traffic-Aware Cruise Control…)</extracomment>
        <translation>Rijassistentie</translation>
    </message>
    <message>
        <source>Turn signal</source>
        <extracomment>Label beside the turn signal&apos;s state</extracomment>
        <translation>Richtingaanwijzer</translation>
    </message>
    <message>
        <source>Hazard lights</source>
        <translation>Alarmlichten</translation>
    </message>
    <message>
        <source>Heading</source>
        <extracomment>Label beside the direction the car was heading (a compass bearing)</extracomment>
        <translation>Rijrichting</translation>
    </message>
    <message>
        <source>Position</source>
        <extracomment>Label beside the car&apos;s GPS coordinates</extracomment>
        <translation>Positie</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <extracomment>Label beside the car&apos;s acceleration</extracomment>
        <translation>Versnelling</translation>
    </message>
    <message>
        <source>x %1, y %2, z %3 m/s²</source>
        <extracomment>Acceleration along the car&apos;s three axes, in metres per second squared</extracomment>
        <translation>x %1, y %2, z %3 m/s²</translation>
    </message>
    <message>
        <source>Hard moments of the drive</source>
        <extracomment>Heading over the list of hard braking, swerves and the like</extracomment>
        <translation>Heftige momenten van de rit</translation>
    </message>
    <message>
        <source>The driving data shows no hard braking, swerve, sudden stop or Autopilot switching off in this event.</source>
        <translation>De rijgegevens tonen in deze gebeurtenis geen hard remmen, uitwijken, plotselinge stop of uitschakelen van Autopilot.</translation>
    </message>
    <message>
        <source>%1 (%2 in)</source>
        <extracomment>When a hard moment happened: %1 the car&apos;s clock, %2 how far into the event (m:ss)</extracomment>
        <translation>%1 (na %2)</translation>
    </message>
    <message>
        <source>Found from the car&apos;s own records: hard braking is the speed falling at 0.4 g or more; a swerve is the wheel turned at 200°/s or more, or a sideways pull of 0.5 g.</source>
        <translation>Afgeleid uit de eigen gegevens van de auto: hard remmen is een snelheid die afneemt met 0,4 g of meer; uitwijken is een stuur dat met 200°/s of meer wordt gedraaid, of een zijwaartse kracht van 0,5 g.</translation>
    </message>
    <message>
        <source>The original files</source>
        <extracomment>Heading over the list of every file the car recorded for the event</extracomment>
        <translation>De originele bestanden</translation>
    </message>
    <message>
        <source>Every file the car recorded for this event. Each SHA-256 was computed from the file itself as this report was made.</source>
        <translation>Elk bestand dat de auto voor deze gebeurtenis heeft opgenomen. Elke SHA-256 is uit het bestand zelf berekend toen dit rapport werd gemaakt.</translation>
    </message>
    <message>
        <source>On the car&apos;s drive, in %1</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>Op de schijf van de auto, in %1</translation>
    </message>
    <message>
        <source>In the Vault, in %1. Last verified %2.</source>
        <extracomment>%1 is a folder, %2 a date and time</extracomment>
        <translation>In de Kluis, in %1. Laatst geverifieerd op %2.</translation>
    </message>
    <message>
        <source>In the Vault, in %1. Not verified again since it was kept.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>In de Kluis, in %1. Niet opnieuw geverifieerd sinds het werd bewaard.</translation>
    </message>
    <message>
        <source>Every file matches the Vault&apos;s record of it, made when it was kept.</source>
        <translation>Elk bestand komt overeen met wat de Kluis ervan vastlegde toen het werd bewaard.</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Column heading: the file&apos;s name</extracomment>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Camera</source>
        <extracomment>Column heading: which camera recorded the file</extracomment>
        <translation>Camera</translation>
    </message>
    <message>
        <source>Starts</source>
        <extracomment>Column heading: the time the file&apos;s footage starts</extracomment>
        <translation>Begin</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>Column heading: how long the file&apos;s footage runs (m:ss)</extracomment>
        <translation>Lengte</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Column heading: the file&apos;s size</extracomment>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Condition</source>
        <extracomment>Column heading: whether the file plays, or how it is damaged</extracomment>
        <translation>Staat</translation>
    </message>
    <message>
        <source>This differs from the Vault&apos;s record: the file is not the one that was kept.</source>
        <translation>Dit wijkt af van wat de Kluis heeft vastgelegd: het bestand is niet het bestand dat werd bewaard.</translation>
    </message>
    <message>
        <source>No files were found for this event.</source>
        <translation>Er zijn geen bestanden gevonden voor deze gebeurtenis.</translation>
    </message>
    <message>
        <source>How to check the files</source>
        <translation>Zo controleer je de bestanden</translation>
    </message>
    <message>
        <source>Anyone can check that a file is exactly the one listed here by computing its SHA-256 again and comparing it with the one above. With the evidence package unpacked, run this in its folder; every line must end in OK:</source>
        <extracomment>Followed by the command to run; OK is what the command prints, so it stays as it is</extracomment>
        <translation>Iedereen kan controleren of een bestand precies het hier vermelde bestand is, door de SHA-256 opnieuw te berekenen en te vergelijken met die hierboven. Pak het bewijspakket uit en voer dit uit in de map ervan; elke regel moet eindigen op OK:</translation>
    </message>
    <message>
        <source>Made by Keelhold %1 on %2 (this computer&apos;s clock). Keelhold only reads the car&apos;s drive: nothing on it was changed.</source>
        <extracomment>At the report&apos;s end: %1 is Keelhold&apos;s version, %2 the date and time the report was made</extracomment>
        <translation>Gemaakt door Keelhold %1 op %2 (klok van deze computer). Keelhold leest de schijf van de auto alleen: er is niets op gewijzigd.</translation>
    </message>
    <message>
        <source>The report couldn&apos;t be written there.</source>
        <translation>Het rapport kon daar niet worden geschreven.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <extracomment>At the foot of every page of the report</extracomment>
        <translation>Pagina %1 van %2</translation>
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
            <numerusform>%n camera</numerusform>
            <numerusform>%n camera&apos;s</numerusform>
        </translation>
    </message>
    <message>
        <source>Off</source>
        <comment>driver assistance</comment>
        <translation>Uit</translation>
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
        <translation>Uit</translation>
    </message>
    <message>
        <source>— %1, slowing at %2 g</source>
        <extracomment>After a hard moment&apos;s name: %1 the speed with its unit, %2 the deceleration in g (9.81 m/s²)</extracomment>
        <translation>— %1, vertraging van %2 g</translation>
    </message>
    <message>
        <source>— %1, steering turned at %2°/s</source>
        <extracomment>After a hard moment&apos;s name: %1 the speed with its unit, %2 how fast the wheel turned, in degrees a second</extracomment>
        <translation>— %1, stuur gedraaid met %2°/s</translation>
    </message>
    <message>
        <source>On a Mac: %1. On Windows: %2, one file at a time.</source>
        <extracomment>%1 and %2 are commands, which stay as they are</extracomment>
        <translation>Op een Mac: %1. Op Windows: %2, één bestand tegelijk.</translation>
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
        <translation>Kaartgegevens © OpenStreetMap-bijdragers</translation>
    </message>
</context>
<context>
    <name>SignInLink</name>
    <message>
        <source>Tesla didn&apos;t accept this sign-in: it may have expired or been used already. Sign in again.</source>
        <translation>Tesla heeft deze aanmelding niet geaccepteerd: die is mogelijk verlopen of al gebruikt. Meld je opnieuw aan.</translation>
    </message>
    <message>
        <source>That isn&apos;t the address the browser landed on after signing in: it starts with %1.</source>
        <extracomment>%1 is the web address the browser should have landed on</extracomment>
        <translation>Dat is niet het adres waarop de browser na het aanmelden uitkwam: dat begint met %1.</translation>
    </message>
    <message>
        <source>Tesla didn&apos;t complete the sign-in. Try again.</source>
        <translation>Tesla heeft de aanmelding niet afgerond. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>That address belongs to another sign-in. Use the sign-in link Keelhold opened last.</source>
        <translation>Dat adres hoort bij een andere aanmelding. Gebruik de aanmeldlink die Keelhold het laatst heeft geopend.</translation>
    </message>
    <message>
        <source>That address holds no sign-in code. Copy the whole address from the browser.</source>
        <translation>Dat adres bevat geen aanmeldcode. Kopieer het hele adres uit de browser.</translation>
    </message>
</context>
<context>
    <name>SyncPlayerController</name>
    <message>
        <source>Reading this camera from the drive…</source>
        <translation>Deze camera wordt van de schijf gelezen…</translation>
    </message>
    <message>
        <source>Finding the exact frame…</source>
        <extracomment>Shown on the timeline while a seek shows a nearby frame first</extracomment>
        <translation>Het precieze frame zoeken…</translation>
    </message>
</context>
<context>
    <name>TelemetryRecord</name>
    <message>
        <source>Self-Driving</source>
        <extracomment>Tesla&apos;s name of a driver assistance (Full Self-Driving)</extracomment>
        <translation>Zelfrijdend</translation>
    </message>
    <message>
        <source>Autosteer</source>
        <extracomment>Tesla&apos;s name of a driver assistance</extracomment>
        <translation>Autosturen</translation>
    </message>
    <message>
        <source>Traffic-Aware Cruise Control</source>
        <extracomment>Tesla&apos;s name of a driver assistance</extracomment>
        <translation>Verkeersafhankelijke cruisecontrol</translation>
    </message>
</context>
<context>
    <name>TeslaCamParser</name>
    <message>
        <source>The TeslaCam folder could not be found.</source>
        <translation>De TeslaCam-map kon niet worden gevonden.</translation>
    </message>
    <message>
        <source>The selected item is not a folder.</source>
        <translation>Het gekozen item is geen map.</translation>
    </message>
    <message>
        <source>The TeslaCam folder could not be read.</source>
        <translation>De TeslaCam-map kon niet worden gelezen.</translation>
    </message>
    <message>
        <source>Keelhold isn&apos;t allowed to read the folder “%1”. Check the folder&apos;s permissions and try again.</source>
        <extracomment>%1 is the folder&apos;s full path</extracomment>
        <translation>Keelhold mag de map “%1” niet lezen. Controleer de rechten van de map en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Reading your Tesla drive…</source>
        <translation>Je Tesla-schijf lezen…</translation>
    </message>
    <message>
        <source>Reading Sentry events…</source>
        <extracomment>Scan progress: reading the SentryClips folder</extracomment>
        <translation>Schildwachtgebeurtenissen lezen…</translation>
    </message>
    <message>
        <source>Reading Saved clips…</source>
        <extracomment>Scan progress: reading the SavedClips folder</extracomment>
        <translation>Opgeslagen clips lezen…</translation>
    </message>
    <message>
        <source>Reading Recent driving…</source>
        <extracomment>Scan progress: reading the RecentClips folder</extracomment>
        <translation>Recente ritten lezen…</translation>
    </message>
    <message>
        <source>Scan complete.</source>
        <translation>Scan voltooid.</translation>
    </message>
</context>
<context>
    <name>TokenHolder</name>
    <message>
        <source>This computer has no secret store to remember your sign-in in, so it is kept only until Keelhold quits.</source>
        <translation>Deze computer heeft geen beveiligde opslag om je aanmelding in te onthouden, dus die wordt alleen bewaard tot Keelhold sluit.</translation>
    </message>
</context>
<context>
    <name>TriageState</name>
    <message>
        <source>New</source>
        <extracomment>State of an event the user has not looked at yet</extracomment>
        <translation>Nieuw</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <extracomment>State of an event the user has watched</extracomment>
        <translation>Bekeken</translation>
    </message>
    <message>
        <source>In Vault</source>
        <extracomment>State of an event that is kept in the Vault</extracomment>
        <translation>In Kluis</translation>
    </message>
    <message>
        <source>Dismissed</source>
        <extracomment>State of an event the user chose not to keep</extracomment>
        <translation>Genegeerd</translation>
    </message>
</context>
<context>
    <name>UiBridge</name>
    <message>
        <source>Drive</source>
        <extracomment>Sidebar section: the car&apos;s drive and its events</extracomment>
        <translation>Schijf</translation>
    </message>
    <message>
        <source>Vault</source>
        <extracomment>Sidebar section: the kept copies</extracomment>
        <translation>Kluis</translation>
    </message>
    <message>
        <source>Map</source>
        <extracomment>Sidebar section: the events on a map</extracomment>
        <translation>Kaart</translation>
    </message>
    <message>
        <source>Drive Health</source>
        <extracomment>Sidebar section: the health of the car&apos;s drive</extracomment>
        <translation>Schijfstatus</translation>
    </message>
    <message>
        <source>Open Help — Sentry Mode, clip length, corruption, and encryption explained.</source>
        <translation>Help openen — Schildwachtmodus, cliplengte, beschadiging en versleuteling uitgelegd.</translation>
    </message>
    <message>
        <source>Drag to resize the event list.</source>
        <translation>Sleep om de grootte van de gebeurtenislijst te wijzigen.</translation>
    </message>
    <message>
        <source>You&apos;re exploring sample footage · Connect your Tesla drive anytime</source>
        <translation>Je bekijkt voorbeeldbeelden · Sluit je Tesla-schijf aan wanneer je wilt</translation>
    </message>
    <message>
        <source>Eject Sample</source>
        <extracomment>Button that leaves the sample footage</extracomment>
        <translation>Voorbeeld sluiten</translation>
    </message>
    <message>
        <source>A Keelhold licence is needed</source>
        <translation>Er is een Keelhold-licentie nodig</translation>
    </message>
    <message>
        <source>Reading your own Tesla drive needs a Keelhold licence. Sample footage stays available without one.</source>
        <translation>Voor het lezen van je eigen Tesla-schijf is een Keelhold-licentie nodig. Voorbeeldbeelden blijven zonder licentie beschikbaar.</translation>
    </message>
    <message>
        <source>Keelhold Help</source>
        <extracomment>Menu item that opens the help window</extracomment>
        <translation>Keelhold Help</translation>
    </message>
    <message>
        <source>Explore Sample Footage</source>
        <translation>Voorbeeldbeelden verkennen</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <extracomment>Menu title; &amp; marks the letter for the Alt shortcut</extracomment>
        <translation>&amp;Afspelen</translation>
    </message>
    <message>
        <source>Use Graphics Hardware for Video</source>
        <translation>Grafische hardware gebruiken voor video</translation>
    </message>
    <message>
        <source>Nothing on your drive is ever changed or deleted.</source>
        <translation>Niets op je schijf wordt ooit gewijzigd of verwijderd.</translation>
    </message>
    <message>
        <source>Keelhold only reads from your Tesla drive. Every &quot;Keep&quot; makes a verified copy elsewhere — your original footage is never touched.</source>
        <extracomment>&quot;Keep&quot; is the app&apos;s own button; translate it as there</extracomment>
        <translation>Keelhold leest alleen van je Tesla-schijf. Elke keer &quot;Bewaren&quot; maakt ergens anders een geverifieerde kopie — je originele beelden worden nooit aangeraakt.</translation>
    </message>
</context>
<context>
    <name>UnlockController</name>
    <message>
        <source>Unlock Encrypted Footage</source>
        <translation>Versleutelde beelden ontgrendelen</translation>
    </message>
    <message>
        <source>Your car encrypted this footage so that only your Tesla account can watch it. To play it here, Keelhold asks Tesla&apos;s service for each clip&apos;s key, and Tesla first checks that your account owns the car.</source>
        <translation>Je auto heeft deze beelden versleuteld zodat alleen je Tesla-account ze kan bekijken. Om ze hier af te spelen, vraagt Keelhold de dienst van Tesla om de sleutel van elke clip, en Tesla controleert eerst of je account eigenaar is van de auto.</translation>
    </message>
    <message>
        <source>What is sent: each clip&apos;s key id and the locked key the car wrote into it, and your car&apos;s VIN. Never any video: the footage stays on this computer.</source>
        <translation>Wat er wordt verzonden: het sleutel-id van elke clip en de vergrendelde sleutel die de auto erin schreef, en de VIN van je auto. Nooit video: de beelden blijven op deze computer.</translation>
    </message>
    <message>
        <source>The keys are kept on this computer and beside the events in your Vault, so unlocked footage plays offline from then on.</source>
        <translation>De sleutels worden bewaard op deze computer en naast de gebeurtenissen in je Kluis, zodat ontgrendelde beelden vanaf dan offline afspelen.</translation>
    </message>
    <message>
        <source>Your Tesla sign-in</source>
        <translation>Je Tesla-aanmelding</translation>
    </message>
    <message>
        <source>Sign In with Your Browser…</source>
        <translation>Aanmelden met je browser…</translation>
    </message>
    <message>
        <source>Opens Tesla&apos;s sign-in page in your browser. When you have signed in, copy the address the browser shows and paste it here. This sign-in can be renewed for months without signing in again.</source>
        <translation>Opent de aanmeldpagina van Tesla in je browser. Kopieer na het aanmelden het adres dat de browser toont en plak het hier. Deze aanmelding kan maandenlang worden verlengd zonder dat je opnieuw hoeft aan te melden.</translation>
    </message>
    <message>
        <source>Paste the address your browser landed on</source>
        <translation>Plak het adres waarop je browser uitkwam</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>Or copy the viewer&apos;s sign-in token:</source>
        <translation>Of kopieer het aanmeldtoken van de viewer:</translation>
    </message>
    <message>
        <source>Paste your sign-in token</source>
        <translation>Plak je aanmeldtoken</translation>
    </message>
    <message>
        <source>Remember on this computer</source>
        <translation>Onthouden op deze computer</translation>
    </message>
    <message>
        <source>Kept in your desktop&apos;s secret store (its keyring), never in a plain file. Without it, the sign-in is forgotten when Keelhold quits.</source>
        <translation>Bewaard in de beveiligde opslag van je bureaublad (de sleutelbos), nooit in een gewoon bestand. Zonder dit wordt de aanmelding vergeten als Keelhold sluit.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <extracomment>Button that asks Tesla for the keys with the pasted sign-in token</extracomment>
        <translation>Ontgrendelen</translation>
    </message>
    <message>
        <source>Open Tesla&apos;s Viewer</source>
        <translation>Viewer van Tesla openen</translation>
    </message>
    <message>
        <source>Forget my sign-in</source>
        <translation>Mijn aanmelding vergeten</translation>
    </message>
    <message>
        <source>Sign in again…</source>
        <translation>Opnieuw aanmelden…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Asking Tesla for the keys…</source>
        <translation>Tesla om de sleutels vragen…</translation>
    </message>
    <message>
        <source>You&apos;re signed in for as long as Keelhold runs.</source>
        <translation>Je bent aangemeld zolang Keelhold draait.</translation>
    </message>
    <message>
        <source>You&apos;re signed in, and your sign-in is remembered on this computer.</source>
        <translation>Je bent aangemeld en je aanmelding wordt onthouden op deze computer.</translation>
    </message>
    <message>
        <source>Some footage is encrypted by your car</source>
        <translation>Sommige beelden zijn door je auto versleuteld</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>Ontgrendelen…</translation>
    </message>
    <message>
        <source>Turn encryption off for future recordings…</source>
        <translation>Versleuteling uitzetten voor toekomstige opnamen…</translation>
    </message>
    <message>
        <source>Unlock Encrypted Footage…</source>
        <translation>Versleutelde beelden ontgrendelen…</translation>
    </message>
    <message>
        <source>Open Tesla&apos;s dashcam viewer (%1) in your browser and sign in with your Tesla account.</source>
        <translation>Open de dashcam-viewer van Tesla (%1) in je browser en meld je aan met je Tesla-account.</translation>
    </message>
    <message>
        <source>Open the browser&apos;s developer tools (F12) and choose the Network tab.</source>
        <extracomment>&quot;Network&quot; is the tab&apos;s name in the browser&apos;s developer tools</extracomment>
        <translation>Open de ontwikkelaarstools van de browser (F12) en kies het tabblad Netwerk (Network).</translation>
    </message>
    <message>
        <source>Paste it below. It works for about eight hours; sign in again after that.</source>
        <translation>Plak het hieronder. Het werkt ongeveer acht uur; meld je daarna opnieuw aan.</translation>
    </message>
    <message>
        <source>Keelhold lists and keeps them like any other; to watch them here, unlock them with your Tesla account.</source>
        <translation>Keelhold toont en bewaart ze zoals alle andere; om ze hier te bekijken, ontgrendel je ze met je Tesla-account.</translation>
    </message>
    <message>
        <source>Play any clip in the viewer, then pick the request named “batch” in the list.</source>
        <extracomment>&quot;batch&quot; is the request&apos;s name as the browser lists it; keep it as it is</extracomment>
        <translation>Speel een willekeurige clip af in de viewer en kies dan het verzoek met de naam “batch” in de lijst.</translation>
    </message>
    <message>
        <source>Under Request Headers, copy the text after “Authorization: Bearer”.</source>
        <extracomment>&quot;Request Headers&quot; is a heading in the browser&apos;s developer tools; &quot;Authorization: Bearer&quot; stays as it is</extracomment>
        <translation>Kopieer onder Request Headers (verzoekheaders) de tekst na “Authorization: Bearer”.</translation>
    </message>
    <message numerus="yes">
        <source>%n events here were recorded with your car&apos;s encryption on.</source>
        <translation>
            <numerusform>%n gebeurtenis hier is opgenomen terwijl de versleuteling van je auto aan stond.</numerusform>
            <numerusform>%n gebeurtenissen hier zijn opgenomen terwijl de versleuteling van je auto aan stond.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocked %n clips.</source>
        <translation>
            <numerusform>%n clip ontgrendeld.</numerusform>
            <numerusform>%n clips ontgrendeld.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocked %1 of %n clips.</source>
        <translation>
            <numerusform>%1 van %n clip ontgrendeld.</numerusform>
            <numerusform>%1 van %n clips ontgrendeld.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Unlocker</name>
    <message>
        <source>The keys couldn&apos;t be saved on this computer, so they work until Keelhold quits and will be asked for again next time.</source>
        <translation>De sleutels konden niet op deze computer worden opgeslagen, dus ze werken tot Keelhold sluit en worden de volgende keer opnieuw opgevraagd.</translation>
    </message>
</context>
<context>
    <name>VaultIndex</name>
    <message>
        <source>There is no Trash folder at %1 and it can&apos;t be made, so nothing was removed.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>Er is geen prullenbakmap op %1 en die kan niet worden gemaakt, dus er is niets verwijderd.</translation>
    </message>
    <message>
        <source>Couldn&apos;t move %1 to the Trash, so nothing was removed.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>Kon %1 niet naar de prullenbak verplaatsen, dus er is niets verwijderd.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1: %2</source>
        <extracomment>%1 is a file&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>Kon %1 niet lezen: %2</translation>
    </message>
    <message>
        <source>Couldn&apos;t create the folder %1.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>Kon de map %1 niet aanmaken.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2</source>
        <extracomment>%1 is a file&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>Kon %1 niet schrijven: %2</translation>
    </message>
    <message>
        <source>The Vault&apos;s index points outside the Vault folder (%1), so nothing was removed.</source>
        <extracomment>%1 is the folder the index names, as written in it</extracomment>
        <translation>De index van de Kluis verwijst naar een plek buiten de Kluismap (%1), dus er is niets verwijderd.</translation>
    </message>
</context>
<context>
    <name>VaultMarks</name>
    <message>
        <source>Faithful Copy</source>
        <translation>Getrouwe kopie</translation>
    </message>
    <message>
        <source>Every file below was copied and its checksum (SHA-256) was compared to the original on your drive at the time — a faithful, unaltered copy. This is a technical integrity check, not a legal certification.</source>
        <translation>Elk bestand hieronder is gekopieerd en de controlesom (SHA-256) is op dat moment vergeleken met het origineel op je schijf — een getrouwe, ongewijzigde kopie. Dit is een technische integriteitscontrole, geen juridische certificering.</translation>
    </message>
    <message>
        <source>Archived %1 from %2</source>
        <extracomment>%1 is when the event was kept, %2 the name of the drive it came from</extracomment>
        <translation>Bewaard op %1 vanaf %2</translation>
    </message>
    <message>
        <source>Missing</source>
        <extracomment>A kept file that is no longer in the Vault</extracomment>
        <translation>Ontbreekt</translation>
    </message>
    <message>
        <source>Changed since it was kept</source>
        <translation>Gewijzigd sinds het werd bewaard</translation>
    </message>
    <message>
        <source>Couldn&apos;t be read</source>
        <translation>Kon niet worden gelezen</translation>
    </message>
    <message>
        <source>Last re-read %1.</source>
        <extracomment>%1 is the date and time of the last re-reading</extracomment>
        <translation>Laatst opnieuw gelezen op %1.</translation>
    </message>
    <message>
        <source>Not re-read since it was kept.</source>
        <translation>Niet opnieuw gelezen sinds het werd bewaard.</translation>
    </message>
    <message>
        <source>Missing from your Vault since it was kept: %1</source>
        <translation>Ontbreekt in je Kluis sinds het werd bewaard: %1</translation>
    </message>
    <message>
        <source>Changed since it was kept: %1</source>
        <translation>Gewijzigd sinds het werd bewaard: %1</translation>
    </message>
    <message>
        <source>Files Missing</source>
        <translation>Bestanden ontbreken</translation>
    </message>
    <message>
        <source>Changed Since It Was Kept</source>
        <translation>Gewijzigd sinds het werd bewaard</translation>
    </message>
    <message>
        <source>When Keelhold re-read this event on %1, %2 no longer matched the copy it made. The file named below was changed or removed after it was kept; if the event is still on your drive, keep it again.</source>
        <extracomment>%1 is the day of the re-reading, %2 how many files (&quot;one file&quot;, &quot;3 files&quot;)</extracomment>
        <translation>Toen Keelhold deze gebeurtenis op %1 opnieuw las, kwam de inhoud van %2 niet meer overeen met de kopie die het had gemaakt. Het bestand dat hieronder staat, is gewijzigd of verwijderd nadat het werd bewaard; als de gebeurtenis nog op je schijf staat, bewaar haar dan opnieuw.</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>één bestand</numerusform>
            <numerusform>%n bestanden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n files</source>
        <extracomment>Files that reached the Vault, of all the event has</extracomment>
        <translation>
            <numerusform>%1 van %n bestand</numerusform>
            <numerusform>%1 van %n bestanden</numerusform>
        </translation>
    </message>
    <message>
        <source>Incomplete — %1</source>
        <translation>Onvolledig — %1</translation>
    </message>
    <message>
        <source>Only part of this event reached your Vault. Keep it again from the drive to finish it.</source>
        <translation>Slechts een deel van deze gebeurtenis is in je Kluis aangekomen. Bewaar haar opnieuw vanaf de schijf om de kopie af te maken.</translation>
    </message>
    <message>
        <source>Incomplete Copy</source>
        <translation>Onvolledige kopie</translation>
    </message>
    <message>
        <source>The copy of this event was cut off before every file arrived: %1 are here. Each of them was checked as it was copied, but the event is not complete. Keep it again from your drive to finish it.</source>
        <translation>Het kopiëren van deze gebeurtenis werd afgebroken voordat elk bestand was aangekomen: %1 zijn hier. Elk daarvan is tijdens het kopiëren gecontroleerd, maar de gebeurtenis is niet compleet. Bewaar haar opnieuw vanaf je schijf om de kopie af te maken.</translation>
    </message>
    <message>
        <source>Verified %1</source>
        <extracomment>The badge of a kept event; %1 is the day it was last re-read</extracomment>
        <translation>Geverifieerd %1</translation>
    </message>
    <message>
        <source>Every file was read again on %1 and still matches the checksum taken when it was kept. Tap for the technical detail.</source>
        <translation>Elk bestand is op %1 opnieuw gelezen en komt nog steeds overeen met de controlesom die bij het bewaren werd vastgelegd. Klik voor de technische details.</translation>
    </message>
    <message>
        <source>Verified copy</source>
        <translation>Geverifieerde kopie</translation>
    </message>
    <message>
        <source>This copy was checked byte-for-byte against your drive when it was archived. Tap for the technical detail.</source>
        <translation>Deze kopie is bij het bewaren byte voor byte vergeleken met je schijf. Klik voor de technische details.</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 ontbreekt</translation>
    </message>
    <message>
        <source>%1 has changed</source>
        <translation>%1 is gewijzigd</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1 kan niet worden gelezen</translation>
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
            <numerusform>Nog %n bewaarde gebeurtenis heeft ook problemen.</numerusform>
            <numerusform>Nog %n bewaarde gebeurtenissen hebben ook problemen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Something changed these copies after they were kept. If the events are still on your drive, keep them again.</source>
        <translation>Iets heeft deze kopieën gewijzigd nadat ze waren bewaard. Als de gebeurtenissen nog op je schijf staan, bewaar ze dan opnieuw.</translation>
    </message>
    <message numerus="yes">
        <source>%n kept events no longer match what was kept</source>
        <translation>
            <numerusform>%n bewaarde gebeurtenis komt niet meer overeen met wat werd bewaard</numerusform>
            <numerusform>%n bewaarde gebeurtenissen komen niet meer overeen met wat werd bewaard</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Drive disconnected — %1 of %n events kept completely</source>
        <translation>
            <numerusform>Schijf losgekoppeld — %1 van %n gebeurtenis volledig bewaard</numerusform>
            <numerusform>Schijf losgekoppeld — %1 van %n gebeurtenissen volledig bewaard</numerusform>
        </translation>
    </message>
    <message>
        <source>Backup Stopped</source>
        <translation>Reservekopie gestopt</translation>
    </message>
    <message numerus="yes">
        <source>Backup Incomplete — %1 of %n events kept completely</source>
        <translation>
            <numerusform>Reservekopie onvolledig — %1 van %n gebeurtenis volledig bewaard</numerusform>
            <numerusform>Reservekopie onvolledig — %1 van %n gebeurtenissen volledig bewaard</numerusform>
        </translation>
    </message>
    <message>
        <source>Backup Complete</source>
        <translation>Reservekopie voltooid</translation>
    </message>
    <message numerus="yes">
        <source>%n events copied and verified, byte-for-byte. The original on your drive is untouched.</source>
        <translation>
            <numerusform>%n gebeurtenis gekopieerd en byte voor byte geverifieerd. Het origineel op je schijf is onaangeroerd.</numerusform>
            <numerusform>%n gebeurtenissen gekopieerd en byte voor byte geverifieerd. Het origineel op je schijf is onaangeroerd.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n events reached your Vault only in part (%1 of %2 files), so they aren&apos;t verified copies. Keep them again to finish them.</source>
        <extracomment>%1 of %2 are the files that arrived, of all the events have</extracomment>
        <translation>
            <numerusform>%n gebeurtenis is maar gedeeltelijk in je Kluis aangekomen (%1 van %2 bestanden), dus het is geen geverifieerde kopie. Bewaar haar opnieuw om de kopie af te maken.</numerusform>
            <numerusform>%n gebeurtenissen zijn maar gedeeltelijk in je Kluis aangekomen (%1 van %2 bestanden), dus het zijn geen geverifieerde kopieën. Bewaar ze opnieuw om de kopieën af te maken.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were already in your Vault, so we skipped them.</source>
        <extracomment>%n is a number of events</extracomment>
        <translation>
            <numerusform>%n stond al in je Kluis, dus die hebben we overgeslagen.</numerusform>
            <numerusform>%n stonden al in je Kluis, dus die hebben we overgeslagen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files couldn&apos;t be read as the drive went away.</source>
        <translation>
            <numerusform>%n bestand kon niet worden gelezen omdat de schijf wegviel.</numerusform>
            <numerusform>%n bestanden konden niet worden gelezen omdat de schijf wegviel.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files couldn&apos;t be read — your drive may be failing. Nothing was deleted or changed; you can try again.</source>
        <translation>
            <numerusform>%n bestand kon niet worden gelezen — je schijf is mogelijk defect. Er is niets verwijderd of gewijzigd; je kunt het opnieuw proberen.</numerusform>
            <numerusform>%n bestanden konden niet worden gelezen — je schijf is mogelijk defect. Er is niets verwijderd of gewijzigd; je kunt het opnieuw proberen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VaultViewModel</name>
    <message>
        <source>Vault</source>
        <extracomment>Title of the Vault&apos;s list</extracomment>
        <translation>Kluis</translation>
    </message>
    <message>
        <source>Choose Your Vault Folder</source>
        <extracomment>Title of the folder dialog that picks the Vault&apos;s folder</extracomment>
        <translation>Kies je Kluismap</translation>
    </message>
    <message>
        <source>Pick (or create) a folder where Keelhold will keep permanent copies of the footage you decide to keep.</source>
        <translation>Kies (of maak) een map waarin Keelhold blijvende kopieën bewaart van de beelden die je besluit te bewaren.</translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <extracomment>Accept button of the folder dialog that picks the Vault&apos;s folder</extracomment>
        <translation>Deze map gebruiken</translation>
    </message>
    <message>
        <source>Change Vault Folder</source>
        <translation>Kluismap wijzigen</translation>
    </message>
    <message>
        <source>Point Keelhold at a different folder or drive for your permanent archive.</source>
        <translation>Laat Keelhold een andere map of schijf gebruiken voor je blijvende archief.</translation>
    </message>
    <message>
        <source>How much space your kept footage uses, and how much room the Vault&apos;s disk has left.</source>
        <translation>Hoeveel ruimte je bewaarde beelden innemen, en hoeveel ruimte er nog vrij is op de schijf van de Kluis.</translation>
    </message>
    <message>
        <source>Move to Trash…</source>
        <extracomment>Menu item of a kept event</extracomment>
        <translation>Naar prullenbak…</translation>
    </message>
    <message>
        <source>Move this event to the Trash?</source>
        <translation>Deze gebeurtenis naar de prullenbak verplaatsen?</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <extracomment>Button that confirms moving the kept event to the Trash</extracomment>
        <translation>Naar prullenbak</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Choose a Different Folder</source>
        <translation>Kies een andere map</translation>
    </message>
    <message>
        <source>Choose Another Folder…</source>
        <translation>Andere map kiezen…</translation>
    </message>
    <message>
        <source>Keeping footage safe…</source>
        <translation>Beelden veilig bewaren…</translation>
    </message>
    <message>
        <source>Stops after the current file. Anything already copied and verified stays in your Vault — nothing is undone.</source>
        <translation>Stopt na het huidige bestand. Wat al gekopieerd en geverifieerd is, blijft in je Kluis — er wordt niets ongedaan gemaakt.</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the keep&apos;s report</extracomment>
        <translation>Klaar</translation>
    </message>
    <message>
        <source>Verify Vault</source>
        <translation>Kluis verifiëren</translation>
    </message>
    <message>
        <source>Read every kept file again and compare it with the checksum taken when it was kept.</source>
        <translation>Lees elk bewaard bestand opnieuw en vergelijk het met de controlesom die bij het bewaren werd vastgelegd.</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verifiëren</translation>
    </message>
    <message>
        <source>Choose a Vault Folder</source>
        <translation>Kies een Kluismap</translation>
    </message>
    <message>
        <source>Your Vault is a folder on this %1 (or an external drive you keep) where Keelhold keeps permanent, verified copies of the footage you choose to keep — safe even if your car&apos;s drive fails, fills up, or gets wiped.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Je Kluis is een map op deze %1 (of op een externe schijf die je bewaart) waarin Keelhold blijvende, geverifieerde kopieën bewaart van de beelden die je kiest om te bewaren — veilig, ook als de schijf van je auto defect raakt, vol raakt of wordt gewist.</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Map kiezen…</translation>
    </message>
    <message>
        <source>Your Vault is empty so far</source>
        <translation>Je Kluis is nog leeg</translation>
    </message>
    <message>
        <source>Nothing has been kept yet. From the Drive tab, select an event and choose &quot;Keep&quot; to copy it here permanently.</source>
        <extracomment>&quot;Drive&quot; and &quot;Keep&quot; are the app&apos;s own tab and button; translate them as there</extracomment>
        <translation>Er is nog niets bewaard. Selecteer op het tabblad Schijf een gebeurtenis en kies &quot;Bewaren&quot; om die hier blijvend naartoe te kopiëren.</translation>
    </message>
    <message numerus="yes">
        <source>%n events · %1 · %2 free on this disk</source>
        <extracomment>The Vault&apos;s summary: how many kept events, their size, and the room left on the Vault&apos;s disk</extracomment>
        <translation>
            <numerusform>%n gebeurtenis · %1 · %2 vrij op deze schijf</numerusform>
            <numerusform>%n gebeurtenissen · %1 · %2 vrij op deze schijf</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n events · %1</source>
        <extracomment>The Vault&apos;s summary: how many kept events and their size</extracomment>
        <translation>
            <numerusform>%n gebeurtenis · %1</numerusform>
            <numerusform>%n gebeurtenissen · %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n events</source>
        <extracomment>A keep&apos;s progress: events done of all it keeps</extracomment>
        <translation>
            <numerusform>%1 van %n gebeurtenis</numerusform>
            <numerusform>%1 van %n gebeurtenissen</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused at %1 — that is a different drive; plug in the one this keep was reading</source>
        <translation>Gepauzeerd bij %1 — dat is een andere schijf; sluit de schijf aan waarvan werd gelezen</translation>
    </message>
    <message>
        <source>Paused at %1 — plug the drive back in to go on</source>
        <translation>Gepauzeerd bij %1 — sluit de schijf weer aan om verder te gaan</translation>
    </message>
    <message>
        <source>Reading your kept footage again…</source>
        <translation>Je bewaarde beelden opnieuw lezen…</translation>
    </message>
    <message>
        <source>Reading 1 kept event again…</source>
        <translation>1 bewaarde gebeurtenis opnieuw lezen…</translation>
    </message>
    <message>
        <source>Reading kept events again: %1 of %2 done</source>
        <translation>Bewaarde gebeurtenissen opnieuw lezen: %1 van %2 klaar</translation>
    </message>
    <message>
        <source>%1 will move to your %2&apos;s Trash, where you can still recover it. Nothing on your Tesla drive is touched.</source>
        <extracomment>%1 is the event&apos;s day and time (&quot;Mon 2:11 AM&quot;), %2 the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>%1 gaat naar de prullenbak van je %2, waar je het nog kunt terughalen. Niets op je Tesla-schijf wordt aangeraakt.</translation>
    </message>
    <message>
        <source>This drive</source>
        <translation>Deze schijf</translation>
    </message>
    <message>
        <source>Keep new events automatically when this drive is connected</source>
        <translation>Nieuwe gebeurtenissen automatisch bewaren als deze schijf wordt aangesloten</translation>
    </message>
    <message>
        <source>Recent driving too</source>
        <extracomment>Ticked with the choice above: recent driving is kept as well</extracomment>
        <translation>Ook recente ritten</translation>
    </message>
    <message>
        <source>%1 — Sentry and saved events, each file checked, as soon as it is connected while Keelhold is open.</source>
        <extracomment>%1 is the drive&apos;s name</extracomment>
        <translation>%1 — Schildwacht- en opgeslagen gebeurtenissen, elk bestand gecontroleerd, zodra de schijf wordt aangesloten terwijl Keelhold open is.</translation>
    </message>
</context>
<context>
    <name>VideoReencoder</name>
    <message>
        <source>The footage couldn&apos;t be converted for the movie.</source>
        <translation>De beelden konden niet voor de video worden omgezet.</translation>
    </message>
    <message>
        <source>There wasn&apos;t enough memory to convert the footage.</source>
        <translation>Er was niet genoeg geheugen om de beelden om te zetten.</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be encoded: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>De beelden konden niet worden gecodeerd: %1.</translation>
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
        <translation>Onbekend</translation>
    </message>
</context>
</TS>
