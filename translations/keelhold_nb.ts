<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb_NO">
<context>
    <name>ActivityStrip</name>
    <message>
        <source>Movement in front of each camera: the stronger the colour, the more changed. Click to go there.</source>
        <translation>Bevegelse foran hvert kamera: jo sterkere farge, desto mer endret seg. Klikk for å gå dit.</translation>
    </message>
    <message>
        <source>%1: movement at %2</source>
        <extracomment>%1 is a camera&apos;s name, %2 a time into the event</extracomment>
        <translation>%1: bevegelse ved %2</translation>
    </message>
    <message>
        <source>%1: quiet at %2</source>
        <translation>%1: rolig ved %2</translation>
    </message>
</context>
<context>
    <name>AppCommandLine</name>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1 is the command&apos;s synopsis, which stays as it is</extracomment>
        <translation>Bruk:    %1</translation>
    </message>
    <message>
        <source>  or:  %1</source>
        <extracomment>The second synopsis line, under &quot;Usage:&quot;; %1 stays as it is</extracomment>
        <translation>  eller: %1</translation>
    </message>
    <message>
        <source>Reviews the footage a Tesla records to its USB drive. Keelhold reads the drive&apos;s TeslaCam folder without ever writing to it, plays every camera of an event in sync, and keeps chosen events in a Vault folder as verified copies.</source>
        <translation>Går gjennom opptakene en Tesla lagrer på USB-disken sin. Keelhold leser TeslaCam-mappen på disken uten noen gang å skrive til den, spiller av alle kameraene i en hendelse synkront og beholder valgte hendelser i en Hvelv-mappe som verifiserte kopier.</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Avslutningsstatus:</translation>
    </message>
    <message>
        <source>The window was closed.</source>
        <translation>Vinduet ble lukket.</translation>
    </message>
    <message>
        <source>The window could not be shown.</source>
        <translation>Vinduet kunne ikke vises.</translation>
    </message>
    <message>
        <source>The command line was wrong.</source>
        <translation>Kommandolinjen var feil.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Alternativer:</translation>
    </message>
    <message>
        <source>Start with the sample footage instead of a drive.</source>
        <translation>Start med eksempelopptakene i stedet for en disk.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Vis denne hjelpen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Vis versjonen.</translation>
    </message>
    <message>
        <source>Environment:</source>
        <extracomment>Heading over the environment variables the program reads</extracomment>
        <translation>Miljøvariabler:</translation>
    </message>
    <message>
        <source>A TeslaCam folder to show as the sample footage.</source>
        <translation>En TeslaCam-mappe som skal vises som eksempelopptak.</translation>
    </message>
    <message>
        <source>%1 or %2, in place of the desktop&apos;s choice.</source>
        <extracomment>%1 and %2 are the variable&apos;s values, typed as they stand</extracomment>
        <translation>%1 eller %2, i stedet for skrivebordets valg.</translation>
    </message>
    <message>
        <source>keelhold doesn&apos;t know “%1”. Run “keelhold --help” to see what it takes.</source>
        <extracomment>%1 is the argument given; &quot;keelhold --help&quot; is a command and stays as it is</extracomment>
        <translation>keelhold kjenner ikke «%1». Kjør «keelhold --help» for å se hva den tar imot.</translation>
    </message>
    <message>
        <source>Open at the Vault, where kept events are.</source>
        <translation>Åpne i Hvelvet, der beholdte hendelser ligger.</translation>
    </message>
    <message>
        <source>keelhold: the sample footage is not installed, so Keelhold starts without it.</source>
        <translation>keelhold: eksempelopptakene er ikke installert, så Keelhold starter uten dem.</translation>
    </message>
</context>
<context>
    <name>ArchiveEngine</name>
    <message>
        <source>This file took too long to read — the drive may be failing.</source>
        <translation>Det tok for lang tid å lese denne filen — disken kan være i ferd med å svikte.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create a file in your Vault folder.</source>
        <translation>Kunne ikke opprette en fil i Hvelv-mappen din.</translation>
    </message>
    <message>
        <source>This file changed size while copying — the drive may have been disconnected.</source>
        <translation>Denne filen endret størrelse under kopieringen — disken kan ha blitt koblet fra.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Denne filen kunne ikke leses.</translation>
    </message>
    <message>
        <source>There isn&apos;t enough space in your Vault folder.</source>
        <translation>Det er ikke nok plass i Hvelv-mappen din.</translation>
    </message>
    <message>
        <source>The Vault folder is no longer available.</source>
        <translation>Hvelv-mappen er ikke lenger tilgjengelig.</translation>
    </message>
    <message>
        <source>This isn&apos;t an ordinary file (it is a link or a special file), so it was left alone.</source>
        <translation>Dette er ikke en vanlig fil (det er en lenke eller en spesialfil), så den ble latt være.</translation>
    </message>
    <message>
        <source>The Vault&apos;s list of kept events couldn&apos;t be saved, so nothing from this run is recorded as kept.</source>
        <translation>Hvelvets liste over beholdte hendelser kunne ikke lagres, så ingenting fra denne kjøringen er registrert som beholdt.</translation>
    </message>
</context>
<context>
    <name>ArchivedEvent</name>
    <message>
        <source>Unknown Drive</source>
        <extracomment>Stands for the name of a drive that could not be read</extracomment>
        <translation>Ukjent disk</translation>
    </message>
</context>
<context>
    <name>Camera</name>
    <message>
        <source>Front</source>
        <extracomment>Camera name: the camera looking ahead through the windscreen</extracomment>
        <translation>Front</translation>
    </message>
    <message>
        <source>Rear</source>
        <extracomment>Camera name: the camera looking backwards above the number plate</extracomment>
        <translation>Bak</translation>
    </message>
    <message>
        <source>Left Side</source>
        <extracomment>Camera name: the camera in the left side repeater, looking back along the car</extracomment>
        <translation>Venstre side</translation>
    </message>
    <message>
        <source>Right Side</source>
        <extracomment>Camera name: the camera in the right side repeater, looking back along the car</extracomment>
        <translation>Høyre side</translation>
    </message>
    <message>
        <source>Left Pillar</source>
        <extracomment>Camera name: the camera in the left door pillar (B pillar)</extracomment>
        <translation>Venstre stolpe</translation>
    </message>
    <message>
        <source>Right Pillar</source>
        <extracomment>Camera name: the camera in the right door pillar (B pillar)</extracomment>
        <translation>Høyre stolpe</translation>
    </message>
    <message>
        <source>Backup</source>
        <extracomment>Camera name: the reversing camera (not a copy of files)</extracomment>
        <translation>Ryggekamera</translation>
    </message>
</context>
<context>
    <name>CameraTile</name>
    <message>
        <source>%1 camera</source>
        <extracomment>Screen reader name of a camera&apos;s tile; %1 is the camera&apos;s name, e.g. Left Side</extracomment>
        <translation>Kamera: %1</translation>
    </message>
</context>
<context>
    <name>CliOutput</name>
    <message>
        <source>Read a TeslaCam folder and print its events as JSON.</source>
        <translation>Les en TeslaCam-mappe og skriv ut hendelsene som JSON.</translation>
    </message>
    <message>
        <source>Print the health report of a TeslaCam folder as JSON.</source>
        <translation>Skriv ut helserapporten for en TeslaCam-mappe som JSON.</translation>
    </message>
    <message>
        <source>Write one camera of one event as one MP4 movie, or all cameras at once.</source>
        <translation>Skriv ett kamera fra én hendelse som én MP4-film, eller alle kameraene samtidig.</translation>
    </message>
    <message>
        <source>Write the incident report of one event as a PDF, or an evidence package with every original.</source>
        <translation>Skriv hendelsesrapporten for én hendelse som PDF, eller en bevispakke med alle originalene.</translation>
    </message>
    <message>
        <source>Copy events into a Vault folder, checking every file.</source>
        <translation>Kopier hendelser til en Hvelv-mappe og kontroller hver fil.</translation>
    </message>
    <message>
        <source>List, remove or re-check the events kept in a Vault folder.</source>
        <translation>List opp, fjern eller kontroller på nytt hendelsene som er beholdt i en Hvelv-mappe.</translation>
    </message>
    <message>
        <source>Print the driving data recorded with an event&apos;s footage.</source>
        <translation>Skriv ut kjøredataene som ble registrert sammen med opptakene av en hendelse.</translation>
    </message>
    <message>
        <source>Print where to look in an event: activity in front of each camera, and hard moments.</source>
        <translation>Skriv ut hvor du bør se i en hendelse: aktivitet foran hvert kamera, og brå øyeblikk.</translation>
    </message>
    <message>
        <source>Check and remember your Tesla sign-in, for the car&apos;s encrypted clips.</source>
        <translation>Kontroller og husk Tesla-påloggingen din, for bilens krypterte klipp.</translation>
    </message>
    <message>
        <source>Write an event&apos;s encrypted clips as the plain MP4 movies they hold.</source>
        <translation>Skriv de krypterte klippene i en hendelse som de vanlige MP4-filmene de inneholder.</translation>
    </message>
    <message>
        <source>There is no folder at “%1”. Check that the drive is plugged in and the path is right.</source>
        <translation>Det finnes ingen mappe i «%1». Kontroller at disken er koblet til og at stien er riktig.</translation>
    </message>
    <message>
        <source>“%1” is a file, not a folder. Give the TeslaCam folder itself.</source>
        <translation>«%1» er en fil, ikke en mappe. Oppgi selve TeslaCam-mappen.</translation>
    </message>
    <message>
        <source>There is no event “%1” in this folder.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>Det finnes ingen hendelse «%1» i denne mappen.</translation>
    </message>
    <message>
        <source>A file holding your Tesla sign-in token, or - to read it from standard input. Without it, the token keelhold-cli unlock remembered is used.</source>
        <translation>En fil med Tesla-påloggingstokenet ditt, eller - for å lese det fra standard inndata. Uten den brukes tokenet som keelhold-cli unlock husket.</translation>
    </message>
    <message>
        <source>The token file %1 can&apos;t be read.</source>
        <translation>Tokenfilen %1 kan ikke leses.</translation>
    </message>
    <message>
        <source>Standard input holds no sign-in token.</source>
        <translation>Standard inndata inneholder ikke noe påloggingstoken.</translation>
    </message>
    <message>
        <source>The file %1 holds no sign-in token.</source>
        <translation>Filen %1 inneholder ikke noe påloggingstoken.</translation>
    </message>
    <message>
        <source>These clips are encrypted by your car and no key for them is kept here: give your Tesla sign-in token with --token-file, or run keelhold-cli unlock first.</source>
        <translation>Disse klippene er kryptert av bilen din, og ingen nøkkel til dem er lagret her: oppgi Tesla-påloggingstokenet ditt med --token-file, eller kjør keelhold-cli unlock først.</translation>
    </message>
    <message>
        <source>Writes each encrypted clip of an event as the plain MP4 movie it holds, under the same file name, into a
folder of your choice. Keys kept before are used first; the missing ones are fetched from Tesla&apos;s service
with your sign-in token. Exits with 1 when only some clips could be written.</source>
        <translation>Skriver hvert krypterte klipp i en hendelse som den vanlige MP4-filmen det inneholder, med samme
filnavn, i en mappe du velger. Nøkler som er lagret fra før, brukes først; de som mangler, hentes fra
Teslas tjeneste med påloggingstokenet ditt. Avslutter med 1 når bare noen av klippene kunne skrives.</translation>
    </message>
    <message>
        <source>The TeslaCam folder, or a Vault folder, to read.</source>
        <translation>TeslaCam-mappen, eller en Hvelv-mappe, som skal leses.</translation>
    </message>
    <message>
        <source>The event&apos;s id, as keelhold-cli scan prints it.</source>
        <translation>Hendelsens ID, slik keelhold-cli scan skriver den ut.</translation>
    </message>
    <message>
        <source>Only this camera&apos;s clips.</source>
        <translation>Bare klippene fra dette kameraet.</translation>
    </message>
    <message>
        <source>The folder to write the movies into.</source>
        <translation>Mappen filmene skal skrives til.</translation>
    </message>
    <message>
        <source>“%1” is not a camera; use one of %2.</source>
        <extracomment>%1 is the camera as typed, %2 the camera names the command takes</extracomment>
        <translation>«%1» er ikke et kamera; bruk ett av %2.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so choose a folder somewhere else.</source>
        <translation>Keelhold skriver aldri til Tesla-disken din, så velg en mappe et annet sted.</translation>
    </message>
    <message>
        <source>The %1 camera has no encrypted footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>Kameraet %1 har ingen krypterte opptak i denne hendelsen.</translation>
    </message>
    <message>
        <source>This event&apos;s footage isn&apos;t encrypted: its files are plain MP4 movies already.</source>
        <translation>Opptakene i denne hendelsen er ikke kryptert: filene er allerede vanlige MP4-filmer.</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be made.</source>
        <translation>Mappen %1 kan ikke opprettes.</translation>
    </message>
    <message>
        <source>The clips couldn&apos;t be read from the drive or written to %1.</source>
        <translation>Klippene kunne ikke leses fra disken eller skrives til %1.</translation>
    </message>
    <message>
        <source>Wrote %1 of %2 clips to %3.</source>
        <extracomment>%3 is a folder</extracomment>
        <translation>Skrev %1 av %2 klipp til %3.</translation>
    </message>
    <message>
        <source>Wrote %1 clips to %2.</source>
        <extracomment>%2 is a folder</extracomment>
        <translation>Skrev %1 klipp til %2.</translation>
    </message>
    <message>
        <source>The drive went away: %1 of %2 events were kept completely. Plug it back in and run keep again to finish.</source>
        <translation>Disken forsvant: %1 av %2 hendelser ble beholdt fullstendig. Koble den til igjen og kjør keep på nytt for å fullføre.</translation>
    </message>
    <message>
        <source>Prints where to look in an event: for each camera the bursts of activity (something moving in front of
it, found from how much the camera&apos;s video changed), and the hard moments of the drive (hard braking,
a swerve, Autopilot switching off, a sudden stop, the car&apos;s emergency braking) from the driving data
its clips carry. Times are seconds on the event&apos;s timeline, as the player shows them. The drive is
only read.</source>
        <translation>Skriver ut hvor du bør se i en hendelse: for hvert kamera periodene med aktivitet (noe som beveger seg
foran det, funnet ut fra hvor mye kameraets video endret seg), og de brå øyeblikkene i kjøringen (hard
bremsing, en brå unnamanøver, Autopilot som slår seg av, en plutselig stans, bilens nødbremsing) ut fra
kjøredataene i klippene. Tidene er sekunder på hendelsens tidslinje, slik avspilleren viser dem. Disken
blir bare lest.</translation>
    </message>
    <message>
        <source>json (the default) or csv.</source>
        <extracomment>json and csv are values typed on the command line; keep them as they are</extracomment>
        <translation>json (standard) eller csv.</translation>
    </message>
    <message>
        <source>“%1” is not a format; use json or csv.</source>
        <extracomment>%1 is the format as typed; json and csv stay as they are</extracomment>
        <translation>«%1» er ikke et format; bruk json eller csv.</translation>
    </message>
    <message>
        <source>None of this event&apos;s clips could be read.</source>
        <translation>Ingen av klippene i denne hendelsen kunne leses.</translation>
    </message>
    <message>
        <source>Stopped before every clip was read.</source>
        <translation>Stoppet før alle klippene var lest.</translation>
    </message>
    <message>
        <source>Checks your Tesla sign-in token with Tesla&apos;s service and remembers it in this computer&apos;s secret store, so
that export, telemetry and decrypt can fetch the keys of your car&apos;s encrypted clips. Only the clips&apos; key
blocks and your car&apos;s VIN are ever sent, never video. To get the token, sign in at Tesla&apos;s dashcam viewer
in your browser and copy it from there. Give it in a file or on standard input, never on the command
line, where other users could read it.</source>
        <translation>Kontrollerer Tesla-påloggingstokenet ditt hos Teslas tjeneste og husker det i denne datamaskinens
hemmelighetslager, slik at export, telemetry og decrypt kan hente nøklene til bilens krypterte klipp.
Bare klippenes nøkkelblokker og bilens VIN sendes, aldri video. Du får tokenet ved å logge på Teslas
dashcam-visning i nettleseren og kopiere det derfra. Oppgi det i en fil eller på standard inndata, aldri
på kommandolinjen, der andre brukere kan lese det.</translation>
    </message>
    <message>
        <source>Remove the remembered sign-in from this computer&apos;s secret store.</source>
        <translation>Fjern den lagrede påloggingen fra denne datamaskinens hemmelighetslager.</translation>
    </message>
    <message>
        <source>A token on the command line can be seen by other users of this computer, so keelhold-cli won&apos;t take one there: put it in a file and give --token-file FILE, or --token-file - to type it.</source>
        <translation>Et token på kommandolinjen kan ses av andre brukere av denne datamaskinen, så keelhold-cli tar ikke imot det der: legg det i en fil og oppgi --token-file FILE, eller --token-file - for å skrive det inn.</translation>
    </message>
    <message>
        <source>Your Tesla sign-in is no longer remembered on this computer.</source>
        <translation>Tesla-påloggingen din huskes ikke lenger på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service didn&apos;t accept this sign-in token: it may have expired. Sign in again at Tesla&apos;s dashcam viewer and copy a fresh one.</source>
        <translation>Teslas tjeneste godtok ikke dette påloggingstokenet: det kan ha utløpt. Logg på Teslas dashcam-visning igjen og kopier et nytt.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service accepted your sign-in, but this computer has no secret store to remember it in: give it with --token-file to each command instead.</source>
        <translation>Teslas tjeneste godtok påloggingen din, men denne datamaskinen har ikke noe hemmelighetslager å huske den i: oppgi den med --token-file til hver kommando i stedet.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service accepted your sign-in, and it is remembered in this computer&apos;s secret store.</source>
        <translation>Teslas tjeneste godtok påloggingen din, og den huskes i denne datamaskinens hemmelighetslager.</translation>
    </message>
    <message>
        <source>“%1” is a file, not a Vault folder.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>«%1» er en fil, ikke en Hvelv-mappe.</translation>
    </message>
    <message>
        <source>There is no Vault folder at %1.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>Det finnes ingen Hvelv-mappe i %1.</translation>
    </message>
    <message>
        <source>keelhold-cli has no option “%1” before a command. Run “keelhold-cli --help” to see the commands and their options.</source>
        <extracomment>%1 is the option as typed</extracomment>
        <translation>keelhold-cli har ikke noe alternativ «%1» foran en kommando. Kjør «keelhold-cli --help» for å se kommandoene og alternativene deres.</translation>
    </message>
    <message>
        <source>There is no command “%1”. Run “keelhold-cli --help” to see them all.</source>
        <extracomment>%1 is the command as typed</extracomment>
        <translation>Det finnes ingen kommando «%1». Kjør «keelhold-cli --help» for å se alle.</translation>
    </message>
    <message>
        <source>Keep what is new from every TeslaCam drive as it is connected, until stopped.</source>
        <translation>Behold det som er nytt fra hver TeslaCam-disk når den kobles til, til den stoppes.</translation>
    </message>
    <message>
        <source>Usage: %1
  or:  %2
  or:  %3
</source>
        <extracomment>The ways to call the tool; %1, %2 and %3 are command lines, which stay as they are. Keep them lined up.</extracomment>
        <translation>Bruk:    %1
  eller: %2
  eller: %3
</translation>
    </message>
    <message>
        <source>Reads the TeslaCam folder of a Tesla&apos;s USB drive without ever writing to it, and keeps chosen events in a Vault folder as verified copies.</source>
        <translation>Leser TeslaCam-mappen på en Teslas USB-disk uten noen gang å skrive til den, og beholder valgte hendelser i en Hvelv-mappe som verifiserte kopier.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <extracomment>Heading of the list of commands in the help</extracomment>
        <translation>Kommandoer:</translation>
    </message>
    <message>
        <source>Show the options of a command.</source>
        <translation>Vis alternativene for en kommando.</translation>
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
        <translation>Avslutningsstatus:
  0    Ferdig.
  1    Delvis ferdig: keep kunne ikke beholde noen filer, vault verify fant en fil endret eller
       borte, eller decrypt kunne bare skrive noen av klippene.
  2    Arbeidet kunne ikke gjøres, for eksempel fordi mappen mangler eller ikke kan leses.
  64   Kommandolinjen var feil.
  130  keep ble stoppet med Ctrl-C.
</translation>
    </message>
    <message>
        <source>Progress and messages go to standard error, results to standard output.</source>
        <translation>Fremdrift og meldinger går til standard feil, resultater til standard utdata.</translation>
    </message>
    <message>
        <source>Options:</source>
        <extracomment>Heading of the list of options in the help</extracomment>
        <translation>Alternativer:</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Vis denne hjelpen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Vis versjonen.</translation>
    </message>
    <message>
        <source>help takes one command, such as “keelhold-cli help scan”.</source>
        <translation>help tar imot én kommando, for eksempel «keelhold-cli help scan».</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>How a command is typed; %1 is the command line itself, which stays as it is</extracomment>
        <translation>Bruk: %1</translation>
    </message>
    <message>
        <source>%1 %2 folders, %3 events, %4 clips</source>
        <extracomment>Scan progress; %1 says what is being read (&quot;Reading Sentry events…&quot;), then counts so far</extracomment>
        <translation>%1 %2 mapper, %3 hendelser, %4 klipp</translation>
    </message>
    <message>
        <source>probing %1 of %2 clips</source>
        <extracomment>Progress while each clip is opened to check it</extracomment>
        <translation>kontrollerer %1 av %2 klipp</translation>
    </message>
    <message>
        <source>Exporting… %1% (finishing the file)</source>
        <extracomment>Export progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>Eksporterer… %1 % (fullfører filen)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 fps, %5 left)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 frames per second, %5 the time left as m:ss</extracomment>
        <translation>Eksporterer… %1 % (%2 av %3 bilder, %4 bilder/s, %5 igjen)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 fps)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 frames per second</extracomment>
        <translation>Eksporterer… %1 % (%2 av %3 bilder, %4 bilder/s)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 left)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 the time left as m:ss</extracomment>
        <translation>Eksporterer… %1 % (%2 av %3 bilder, %4 igjen)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames</extracomment>
        <translation>Eksporterer… %1 % (%2 av %3 bilder)</translation>
    </message>
    <message>
        <source>Writes one camera of one event as a single MP4 movie, copied as it is, or every camera at once with the date and time drawn on it. The drive is only read.</source>
        <translation>Skriver ett kamera fra én hendelse som én MP4-film, kopiert som det er, eller alle kameraene samtidig med dato og klokkeslett tegnet på. Disken blir bare lest.</translation>
    </message>
    <message>
        <source>The TeslaCam folder to read.</source>
        <translation>TeslaCam-mappen som skal leses.</translation>
    </message>
    <message>
        <source>One of: %1.</source>
        <extracomment>Help of an option; %1 lists the values it takes, which stay as they are</extracomment>
        <translation>Ett av: %1.</translation>
    </message>
    <message>
        <source>The movie file to create; in an existing folder, the suggested name is used.</source>
        <translation>Filmfilen som skal opprettes; i en eksisterende mappe brukes det foreslåtte navnet.</translation>
    </message>
    <message>
        <source>Start, in seconds of the joined footage.</source>
        <translation>Start, i sekunder av de sammenføyde opptakene.</translation>
    </message>
    <message>
        <source>End, in seconds of the joined footage.</source>
        <translation>Slutt, i sekunder av de sammenføyde opptakene.</translation>
    </message>
    <message>
        <source>Makes one new movie with every camera at once and the time drawn on it. One of: grid, front-sides, single. Single re-encodes the --camera alone. --from and --to then count seconds of the event&apos;s timeline, as the player shows it.</source>
        <extracomment>grid, front-sides and single are values typed on the command line; keep them as they are</extracomment>
        <translation>Lager én ny film med alle kameraene samtidig og klokkeslettet tegnet på. Ett av: grid, front-sides, single. Single koder om bare --camera. --from og --to teller da sekunder på hendelsens tidslinje, slik avspilleren viser den.</translation>
    </message>
    <message>
        <source>What a new movie shows over the pictures, any of: time, names, reason, telemetry, none. Join parts with commas; the default is time,names,reason. Telemetry is the car&apos;s speed, pedals, steering and Autopilot where its clips carry them, in km/h or mph as your locale measures. With only --camera, any part makes a new movie of that camera instead of a copy.</source>
        <extracomment>time, names, reason, telemetry, none and time,names,reason are values typed on the command line; keep them as they are</extracomment>
        <translation>Hva en ny film viser oppå bildene, hvilke som helst av: time, names, reason, telemetry, none. Skill delene med komma; standard er time,names,reason. Telemetry er bilens hastighet, pedaler, styring og Autopilot der klippene har dem, i km/h eller mph etter hva lokaliteten din bruker. Med bare --camera gir enhver del en ny film av det kameraet i stedet for en kopi.</translation>
    </message>
    <message>
        <source>The new movie&apos;s picture height. One of: 720, 1080, full. The default is 1080.</source>
        <extracomment>720, 1080 and full are values typed on the command line; keep them as they are</extracomment>
        <translation>Bildehøyden til den nye filmen. Ett av: 720, 1080, full. Standard er 1080.</translation>
    </message>
    <message>
        <source>--overlay takes time, names, reason and telemetry joined with commas, or none.</source>
        <extracomment>time, names, reason, telemetry and none are values typed on the command line; keep them as they are</extracomment>
        <translation>--overlay tar imot time, names, reason og telemetry skilt med komma, eller none.</translation>
    </message>
    <message>
        <source>“%1” is not a layout; use grid, front-sides or single.</source>
        <extracomment>%1 is the layout as typed; grid, front-sides and single stay as they are</extracomment>
        <translation>«%1» er ikke et oppsett; bruk grid, front-sides eller single.</translation>
    </message>
    <message>
        <source>Name the camera with --camera, or choose --layout grid or front-sides.</source>
        <translation>Angi kameraet med --camera, eller velg --layout grid eller front-sides.</translation>
    </message>
    <message>
        <source>--camera picks the one camera of --layout single; grid and front-sides show every camera.</source>
        <translation>--camera velger det ene kameraet for --layout single; grid og front-sides viser alle kameraene.</translation>
    </message>
    <message>
        <source>“%1” is not a size; use 720, 1080 or full.</source>
        <extracomment>%1 is the size as typed; 720, 1080 and full stay as they are</extracomment>
        <translation>«%1» er ikke en størrelse; bruk 720, 1080 eller full.</translation>
    </message>
    <message>
        <source>--from and --to take a number of seconds, such as 12.5.</source>
        <translation>--from og --to tar imot et antall sekunder, for eksempel 12.5.</translation>
    </message>
    <message>
        <source>There is no event “%1” in this TeslaCam folder.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>Det finnes ingen hendelse «%1» i denne TeslaCam-mappen.</translation>
    </message>
    <message>
        <source>Exporting… %1%</source>
        <extracomment>Export progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>Eksporterer… %1 %</translation>
    </message>
    <message>
        <source>The %1 camera has no playable footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>Kameraet %1 har ingen avspillbare opptak i denne hendelsen.</translation>
    </message>
    <message>
        <source>None of this event&apos;s cameras has playable footage.</source>
        <translation>Ingen av kameraene i denne hendelsen har avspillbare opptak.</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>Eksporten ble stoppet.</translation>
    </message>
    <message>
        <source>Reads a TeslaCam folder and prints its health report (fullness, damaged clips, format, events not yet kept, recommendations) as JSON.</source>
        <translation>Leser en TeslaCam-mappe og skriver ut helserapporten (hvor full den er, skadde klipp, format, hendelser som ikke er beholdt ennå, anbefalinger) som JSON.</translation>
    </message>
    <message>
        <source>The TeslaCam folder to read, or the drive that holds it.</source>
        <translation>TeslaCam-mappen som skal leses, eller disken den ligger på.</translation>
    </message>
    <message>
        <source>The Vault folder whose index tells which events are kept.</source>
        <translation>Hvelv-mappen som har registeret over hvilke hendelser som er beholdt.</translation>
    </message>
    <message>
        <source>Open every clip to find damaged ones (slower).</source>
        <translation>Åpne hvert klipp for å finne skadde klipp (tregere).</translation>
    </message>
    <message>
        <source>Indent the JSON for reading.</source>
        <translation>Rykk inn JSON-teksten så den blir lettere å lese.</translation>
    </message>
    <message>
        <source>There is no Vault folder at “%1”.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>Det finnes ingen Hvelv-mappe i «%1».</translation>
    </message>
    <message>
        <source>Copies events from a TeslaCam folder into a Vault folder, checking each file&apos;s size and recording its SHA-256, and prints the report as JSON.
Exit status: 0 when everything was kept, 1 when some files could not be kept, 130 when stopped with Ctrl-C, 2 when the drive could not be read.</source>
        <extracomment>The numbers are exit codes; keep them</extracomment>
        <translation>Kopierer hendelser fra en TeslaCam-mappe til en Hvelv-mappe, kontrollerer størrelsen på hver fil og registrerer SHA-256-verdien, og skriver ut rapporten som JSON.
Avslutningsstatus: 0 når alt ble beholdt, 1 når noen filer ikke kunne beholdes, 130 når den ble stoppet med Ctrl-C, 2 når disken ikke kunne leses.</translation>
    </message>
    <message>
        <source>The Vault folder.</source>
        <translation>Hvelv-mappen.</translation>
    </message>
    <message>
        <source>An event to keep, as printed by scan (&quot;sentry|&lt;folder&gt;&quot;). Repeat for more; without it, every event is kept.</source>
        <extracomment>&quot;sentry|&lt;folder&gt;&quot; shows how an event&apos;s id looks; keep it as it is</extracomment>
        <translation>En hendelse som skal beholdes, slik scan skriver den ut (&quot;sentry|&lt;folder&gt;&quot;). Gjenta for flere; uten den beholdes alle hendelser.</translation>
    </message>
    <message>
        <source>Seconds allowed for each file (default 10).</source>
        <translation>Sekunder som tillates for hver fil (standard 10).</translation>
    </message>
    <message>
        <source>The time limit must be a number of seconds, more than 0 and at most a day.</source>
        <translation>Tidsgrensen må være et antall sekunder, mer enn 0 og høyst ett døgn.</translation>
    </message>
    <message>
        <source>There is no event “%1” on this drive.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>Det finnes ingen hendelse «%1» på denne disken.</translation>
    </message>
    <message>
        <source>%1/%2 events · %3 MB · %4 MB/s · %5</source>
        <extracomment>Keep progress: %1 of %2 events done, %3 megabytes copied, %4 megabytes a second, %5 the file being copied</extracomment>
        <translation>%1/%2 hendelser · %3 MB · %4 MB/s · %5</translation>
    </message>
    <message>
        <source>%1/%2 events · %3 MB · %4 MB/s</source>
        <extracomment>Keep progress: %1 of %2 events done, %3 megabytes copied, %4 megabytes a second</extracomment>
        <translation>%1/%2 hendelser · %3 MB · %4 MB/s</translation>
    </message>
    <message>
        <source>Stopping after the current file… (Ctrl-C again to quit at once)</source>
        <translation>Stopper etter gjeldende fil… (Ctrl-C igjen for å avslutte med en gang)</translation>
    </message>
    <message>
        <source>Writes the incident report of one event as a PDF: when and where, each camera at the moment, the driving data, and every original file with its SHA-256. With --package, one ZIP that also holds every original and a SHA256SUMS file that `sha256sum -c` checks. The drive is only read.</source>
        <extracomment>SHA256SUMS is a file name and `sha256sum -c` a command; keep both as they are</extracomment>
        <translation>Skriver hendelsesrapporten for én hendelse som PDF: når og hvor, hvert kamera i øyeblikket, kjøredataene, og hver originalfil med SHA-256-verdien. Med --package én ZIP som også inneholder alle originalene og en SHA256SUMS-fil som `sha256sum -c` kontrollerer. Disken blir bare lest.</translation>
    </message>
    <message>
        <source>The TeslaCam folder, or a Vault folder.</source>
        <translation>TeslaCam-mappen, eller en Hvelv-mappe.</translation>
    </message>
    <message>
        <source>The file to create; in an existing folder, the suggested name is used.</source>
        <translation>Filen som skal opprettes; i en eksisterende mappe brukes det foreslåtte navnet.</translation>
    </message>
    <message>
        <source>Makes the evidence package (ZIP) instead of the PDF alone.</source>
        <translation>Lager bevispakken (ZIP) i stedet for bare PDF-en.</translation>
    </message>
    <message>
        <source>Puts the unlock keys of an encrypted event into the package.</source>
        <translation>Legger opplåsingsnøklene for en kryptert hendelse i pakken.</translation>
    </message>
    <message>
        <source>A Vault to compare the files with, for an event on the drive that was kept there.</source>
        <translation>Et Hvelv å sammenligne filene med, for en hendelse på disken som ble beholdt der.</translation>
    </message>
    <message>
        <source>One of: km/h, mph. The default is the app&apos;s choice, else the one your locale uses.</source>
        <extracomment>km/h and mph are values typed on the command line; keep them as they are</extracomment>
        <translation>Ett av: km/h, mph. Standard er appens valg, ellers den lokaliteten din bruker.</translation>
    </message>
    <message>
        <source>--speed-unit takes km/h or mph.</source>
        <extracomment>km/h and mph are values typed on the command line; keep them as they are</extracomment>
        <translation>--speed-unit tar imot km/h eller mph.</translation>
    </message>
    <message>
        <source>Making the report… %1%</source>
        <extracomment>Report progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>Lager rapporten… %1 %</translation>
    </message>
    <message>
        <source>The report was stopped.</source>
        <translation>Rapporten ble stoppet.</translation>
    </message>
    <message>
        <source>Reads a TeslaCam folder and prints what it holds as JSON.</source>
        <translation>Leser en TeslaCam-mappe og skriver ut innholdet som JSON.</translation>
    </message>
    <message>
        <source>Open every clip after the scan to find its health and length.</source>
        <translation>Åpne hvert klipp etter skanningen for å finne tilstanden og lengden.</translation>
    </message>
    <message>
        <source>Seconds each clip may take to answer (default 10).</source>
        <translation>Sekunder hvert klipp kan bruke på å svare (standard 10).</translation>
    </message>
    <message>
        <source>The timeout must be a number of seconds, such as 10.</source>
        <translation>Tidsavbruddet må være et antall sekunder, for eksempel 10.</translation>
    </message>
    <message>
        <source>The timeout applies only with --probe.</source>
        <translation>Tidsavbruddet gjelder bare med --probe.</translation>
    </message>
    <message>
        <source>Prints the driving data the car recorded with one camera&apos;s footage of an event, one row for each
frame: its time on the event&apos;s timeline and in its clip, when it was taken, and the car&apos;s speed
(metres per second), gear, accelerator, steering angle (degrees), blinkers, brake, Autopilot state,
GPS position, heading (degrees) and acceleration (metres per second squared). Cars on software
2025.44.25 or later record it. The drive is only read.</source>
        <translation>Skriver ut kjøredataene bilen registrerte sammen med ett kameras opptak av en hendelse, én rad for hvert
bilde: tiden på hendelsens tidslinje og i klippet, når det ble tatt, og bilens hastighet
(meter per sekund), gir, gasspedal, rattvinkel (grader), blinklys, brems, Autopilot-tilstand,
GPS-posisjon, kurs (grader) og akselerasjon (meter per sekund i andre). Biler med programvare
2025.44.25 eller nyere registrerer dette. Disken blir bare lest.</translation>
    </message>
    <message>
        <source>csv, json, or gpx (the route, for a mapping tool). Default: from the output file&apos;s extension, else csv.</source>
        <extracomment>csv, json and gpx are values typed on the command line; keep them as they are</extracomment>
        <translation>csv, json eller gpx (ruten, for et kartverktøy). Standard: ut fra utdatafilens filendelse, ellers csv.</translation>
    </message>
    <message>
        <source>The file to write instead of standard output.</source>
        <translation>Filen som skal skrives i stedet for standard utdata.</translation>
    </message>
    <message>
        <source>“%1” is not a format; use csv, json or gpx.</source>
        <extracomment>%1 is the format as typed; csv, json and gpx stay as they are</extracomment>
        <translation>«%1» er ikke et format; bruk csv, json eller gpx.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the driving data somewhere else.</source>
        <translation>Keelhold skriver aldri til Tesla-disken din, så lagre kjøredataene et annet sted.</translation>
    </message>
    <message>
        <source>The %1 camera has no footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>Kameraet %1 har ingen opptak i denne hendelsen.</translation>
    </message>
    <message>
        <source>The %1 camera&apos;s clips of this event carry no driving data: cars record it from software 2025.44.25 on, and not in every mode.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;; 2025.44.25 is a software version</extracomment>
        <translation>Klippene fra kameraet %1 i denne hendelsen har ingen kjøredata: biler registrerer det fra programvare 2025.44.25, og ikke i alle moduser.</translation>
    </message>
    <message>
        <source>Could not write %1: %2.</source>
        <extracomment>%1 is a file, %2 the system&apos;s reason</extracomment>
        <translation>Kunne ikke skrive %1: %2.</translation>
    </message>
    <message>
        <source>The Vault has no event “%1”.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>Hvelvet har ingen hendelse «%1».</translation>
    </message>
    <message>
        <source>Moved “%1” to the Trash.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>Flyttet «%1» til papirkurven.</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json can&apos;t be understood, so nothing was removed.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>Hvelvets manifest.json kan ikke tolkes, så ingenting ble fjernet.</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json is missing, so the kept events can&apos;t be checked.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>Hvelvets manifest.json mangler, så de beholdte hendelsene kan ikke kontrolleres.</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json can&apos;t be understood, so nothing could be checked.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>Hvelvets manifest.json kan ikke tolkes, så ingenting kunne kontrolleres.</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>vault verify: the verdict on an event whose files all match, in capitals like the others</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>DIFFERS</source>
        <extracomment>vault verify: the verdict on an event with a file changed, missing or unreadable</extracomment>
        <translation>AVVIKER</translation>
    </message>
    <message>
        <source>INCOMPLETE</source>
        <extracomment>vault verify: the verdict on an event that was kept only in part</extracomment>
        <translation>UFULLSTENDIG</translation>
    </message>
    <message>
        <source>%1 verified</source>
        <extracomment>vault verify: how many of an event&apos;s files matched their record</extracomment>
        <translation>%1 verifisert</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <extracomment>vault verify: how many of an event&apos;s files differ from their record</extracomment>
        <translation>%1 endret</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <extracomment>vault verify: how many of an event&apos;s files are gone</extracomment>
        <translation>%1 mangler</translation>
    </message>
    <message>
        <source>%1 unreadable</source>
        <extracomment>vault verify: how many of an event&apos;s files couldn&apos;t be read</extracomment>
        <translation>%1 uleselig</translation>
    </message>
    <message>
        <source>incomplete (%1 of %2 files kept)</source>
        <translation>ufullstendig (%1 av %2 filer beholdt)</translation>
    </message>
    <message>
        <source>changed %1</source>
        <extracomment>vault verify: %1 is the name of a file that differs from its record</extracomment>
        <translation>endret %1</translation>
    </message>
    <message>
        <source>missing %1</source>
        <extracomment>vault verify: %1 is the name of a file that is gone</extracomment>
        <translation>mangler %1</translation>
    </message>
    <message>
        <source>unreadable %1</source>
        <extracomment>vault verify: %1 is the name of a file that couldn&apos;t be read</extracomment>
        <translation>uleselig %1</translation>
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
        <translation>Lister opp, fjerner eller kontrollerer på nytt hendelsene som er beholdt i en Hvelv-mappe.
verify leser på nytt hver fil som manifest.json lister opp, vurderer hver etter den nyeste registreringen som lister den, noterer datoen i Hvelvets .keelhold-verified.json, og avslutter med 1 hvis en fil avviker eller mangler, eller hvis en hendelse bare ble delvis beholdt.</translation>
    </message>
    <message>
        <source>list, remove or verify.</source>
        <extracomment>list, remove and verify are typed on the command line; keep them as they are</extracomment>
        <translation>list, remove eller verify.</translation>
    </message>
    <message>
        <source>Nothing was kept</source>
        <translation>Ingenting ble beholdt</translation>
    </message>
    <message>
        <source>Keeps what is new from every TeslaCam drive that is connected, now and until stopped: Sentry and saved events, and recent driving with --recent, each file checked as it is copied. Prints one line for each drive it kept from, and tells the desktop when it is done. Stop it with Ctrl-C; a keep in progress ends cleanly first.</source>
        <translation>Beholder det som er nytt fra hver TeslaCam-disk som kobles til, nå og til den stoppes: Vaktmodus-hendelser og lagrede hendelser, og nylig kjøring med --recent, og hver fil kontrolleres mens den kopieres. Skriver ut én linje for hver disk den beholdt fra, og gir skrivebordet beskjed når den er ferdig. Stopp den med Ctrl-C; en pågående kopiering avsluttes ryddig først.</translation>
    </message>
    <message>
        <source>The Vault folder (the one chosen in Keelhold when not given).</source>
        <translation>Hvelv-mappen (den som er valgt i Keelhold når ingen oppgis).</translation>
    </message>
    <message>
        <source>Keep recent driving too, each minute once.</source>
        <translation>Behold også nylig kjøring, hvert minutt én gang.</translation>
    </message>
    <message>
        <source>Watch only drives mounted at or below this folder (repeat for more; the default is /media, /run/media and /mnt).</source>
        <translation>Overvåk bare disker som er montert i eller under denne mappen (gjenta for flere; standard er /media, /run/media og /mnt).</translation>
    </message>
    <message>
        <source>No Vault folder is chosen yet. Choose one in Keelhold, or give one with --vault.</source>
        <translation>Ingen Hvelv-mappe er valgt ennå. Velg en i Keelhold, eller oppgi en med --vault.</translation>
    </message>
    <message>
        <source>Watching for TeslaCam drives; new footage goes to %1. Ctrl-C stops.</source>
        <translation>Ser etter TeslaCam-disker; nye opptak går til %1. Ctrl-C stopper.</translation>
    </message>
</context>
<context>
    <name>CombinedExport</name>
    <message>
        <source>There is already a file at “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>Det finnes allerede en fil i «%1».</translation>
    </message>
    <message>
        <source>None of this event&apos;s cameras has playable footage.</source>
        <translation>Ingen av kameraene i denne hendelsen har avspillbare opptak.</translation>
    </message>
    <message>
        <source>The folder “%1” doesn&apos;t exist.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>Mappen «%1» finnes ikke.</translation>
    </message>
    <message>
        <source>The chosen stretch lies outside this event&apos;s footage.</source>
        <translation>Den valgte strekningen ligger utenfor opptakene i denne hendelsen.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be given its name “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>Filmen kunne ikke få navnet «%1».</translation>
    </message>
</context>
<context>
    <name>CombinedRender</name>
    <message>
        <source>The movie couldn&apos;t be written.</source>
        <translation>Filmen kunne ikke skrives.</translation>
    </message>
</context>
<context>
    <name>CompositeGraph</name>
    <message>
        <source>The movie&apos;s pictures couldn&apos;t be put together (%1).</source>
        <extracomment>%1 is the step that failed, e.g. &quot;stacking&quot;</extracomment>
        <translation>Filmens bilder kunne ikke settes sammen (%1).</translation>
    </message>
    <message>
        <source>The movie&apos;s pictures couldn&apos;t be put together (%1: %2).</source>
        <extracomment>%1 is the step that failed, e.g. &quot;stacking&quot;; %2 the video library&apos;s reason</extracomment>
        <translation>Filmens bilder kunne ikke settes sammen (%1: %2).</translation>
    </message>
    <message>
        <source>no %1 filter</source>
        <extracomment>Step of putting a movie&apos;s pictures together: %1 is a video filter&apos;s name</extracomment>
        <translation>mangler filteret %1</translation>
    </message>
    <message>
        <source>linking %1</source>
        <extracomment>Step of putting a movie&apos;s pictures together: %1 is a video filter&apos;s name</extracomment>
        <translation>kobler %1</translation>
    </message>
    <message>
        <source>configuring</source>
        <extracomment>Step of putting a movie&apos;s pictures together: setting up the video filters</extracomment>
        <translation>konfigurerer</translation>
    </message>
    <message>
        <source>memory</source>
        <extracomment>Step of putting a movie&apos;s pictures together: getting memory</extracomment>
        <translation>minne</translation>
    </message>
    <message>
        <source>drawing a name</source>
        <extracomment>Step of putting a movie&apos;s pictures together: drawing words on a picture</extracomment>
        <translation>tegner et navn</translation>
    </message>
    <message>
        <source>no cameras</source>
        <extracomment>Step of putting a movie&apos;s pictures together: there were no cameras to show</extracomment>
        <translation>ingen kameraer</translation>
    </message>
    <message>
        <source>unknown picture format</source>
        <extracomment>Step of putting a movie&apos;s pictures together: a camera&apos;s picture format was not known</extracomment>
        <translation>ukjent bildeformat</translation>
    </message>
    <message>
        <source>adding a picture</source>
        <extracomment>Step of putting a movie&apos;s pictures together: adding a camera&apos;s picture</extracomment>
        <translation>legger til et bilde</translation>
    </message>
    <message>
        <source>ending</source>
        <extracomment>Step of putting a movie&apos;s pictures together: ending the movie</extracomment>
        <translation>avslutter</translation>
    </message>
    <message>
        <source>stacking</source>
        <extracomment>Step of putting a movie&apos;s pictures together: putting the cameras side by side</extracomment>
        <translation>stabler</translation>
    </message>
    <message>
        <source>drawing the time</source>
        <extracomment>Step of putting a movie&apos;s pictures together: drawing the date and time</extracomment>
        <translation>tegner klokkeslettet</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Tesla Footage Viewer</source>
        <translation>Visning av Tesla-opptak</translation>
    </message>
    <message>
        <source>Review the footage your Tesla recorded and keep what matters</source>
        <translation>Gå gjennom opptakene Teslaen din har tatt, og behold det som betyr noe</translation>
    </message>
    <message>
        <source>Tesla;TeslaCam;Sentry;Dashcam;Dashboard camera;USB;Vault;</source>
        <extracomment>Search words for the desktop&apos;s menu, each ending in a semicolon; keep the English ones and add your language&apos;s</extracomment>
        <translation>Tesla;TeslaCam;Sentry;Dashcam;Dashboard camera;USB;Vault;Vaktmodus;Dashbordkamera;Bilkamera;Hvelv;Opptak;</translation>
    </message>
    <message>
        <source>Review and keep your Tesla&apos;s camera footage</source>
        <translation>Gå gjennom og behold kameraopptakene fra Teslaen din</translation>
    </message>
</context>
<context>
    <name>DesktopNotices</name>
    <message>
        <source>your drive</source>
        <comment>a keep&apos;s drive without a name</comment>
        <translation>disken din</translation>
    </message>
    <message numerus="yes">
        <source>%n Sentry events not kept yet</source>
        <translation>
            <numerusform>%n Vaktmodus-hendelse er ikke beholdt ennå</numerusform>
            <numerusform>%n Vaktmodus-hendelser er ikke beholdt ennå</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is connected with Sentry events that aren&apos;t in your Vault.</source>
        <translation>%1 er koblet til med Vaktmodus-hendelser som ikke er i Hvelvet ditt.</translation>
    </message>
</context>
<context>
    <name>DesktopNotifier</name>
    <message>
        <source>Show</source>
        <translation>Vis</translation>
    </message>
</context>
<context>
    <name>DriveBoundary</name>
    <message>
        <source>Keelhold never writes to your Tesla drive, so your Vault has to be a folder somewhere else.</source>
        <translation>Keelhold skriver aldri til Tesla-disken din, så Hvelvet ditt må være en mappe et annet sted.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the movie somewhere else.</source>
        <translation>Keelhold skriver aldri til Tesla-disken din, så lagre filmen et annet sted.</translation>
    </message>
</context>
<context>
    <name>DriveSession</name>
    <message>
        <source>Getting started…</source>
        <translation>Kommer i gang…</translation>
    </message>
    <message>
        <source>Loading sample footage…</source>
        <translation>Laster inn eksempelopptak…</translation>
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
        <translation>Styring %1</translation>
    </message>
    <message>
        <source>BRAKE</source>
        <extracomment>Word on the brake lamp of the driving data drawn over an exported movie; keep it short</extracomment>
        <translation>BREMS</translation>
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
        <translation>Trafikkavhengig cruise</translation>
    </message>
    <message>
        <source>Self-driving</source>
        <extracomment>Driver assistance engaged: Full Self-Driving</extracomment>
        <translation>Selvkjøring</translation>
    </message>
    <message>
        <source>N</source>
        <extracomment>Compass point abbreviation: north</extracomment>
        <translation>N</translation>
    </message>
    <message>
        <source>NE</source>
        <extracomment>Compass point abbreviation: north-east</extracomment>
        <translation>NØ</translation>
    </message>
    <message>
        <source>E</source>
        <extracomment>Compass point abbreviation: east</extracomment>
        <translation>Ø</translation>
    </message>
    <message>
        <source>SE</source>
        <extracomment>Compass point abbreviation: south-east</extracomment>
        <translation>SØ</translation>
    </message>
    <message>
        <source>S</source>
        <extracomment>Compass point abbreviation: south</extracomment>
        <translation>S</translation>
    </message>
    <message>
        <source>SW</source>
        <extracomment>Compass point abbreviation: south-west</extracomment>
        <translation>SV</translation>
    </message>
    <message>
        <source>W</source>
        <extracomment>Compass point abbreviation: west</extracomment>
        <translation>V</translation>
    </message>
    <message>
        <source>NW</source>
        <extracomment>Compass point abbreviation: north-west</extracomment>
        <translation>NV</translation>
    </message>
    <message>
        <source>%1 %2°</source>
        <extracomment>Heading of the car: %1 is a compass point (e.g. NE), %2 whole degrees</extracomment>
        <translation>%1 %2°</translation>
    </message>
    <message>
        <source>%1° right</source>
        <extracomment>Steering wheel angle in whole degrees, turned to the right</extracomment>
        <translation>%1° høyre</translation>
    </message>
    <message>
        <source>%1° left</source>
        <extracomment>Steering wheel angle in whole degrees, turned to the left</extracomment>
        <translation>%1° venstre</translation>
    </message>
</context>
<context>
    <name>EventKind</name>
    <message>
        <source>Sentry</source>
        <extracomment>Kind of event: footage Sentry Mode kept while the car was parked</extracomment>
        <translation>Vaktmodus</translation>
    </message>
    <message>
        <source>Saved</source>
        <extracomment>Kind of event: footage the driver saved (button or honk)</extracomment>
        <translation>Lagret</translation>
    </message>
    <message>
        <source>Recent Driving</source>
        <extracomment>Kind of event: the car&apos;s rolling recording of the last hour of driving</extracomment>
        <translation>Nylig kjøring</translation>
    </message>
</context>
<context>
    <name>EventMapPresenter</name>
    <message>
        <source>All located events</source>
        <extracomment>Heading in the map&apos;s list over the events with a place</extracomment>
        <translation>Alle hendelser med sted</translation>
    </message>
    <message>
        <source>No location recorded</source>
        <extracomment>Heading in the map&apos;s list over the events without a place</extracomment>
        <translation>Ingen posisjon registrert</translation>
    </message>
    <message>
        <source>No events have a location yet</source>
        <translation>Ingen hendelser har posisjon ennå</translation>
    </message>
    <message>
        <source>Your car only records a location for some events. Once you have events with a place attached, they&apos;ll appear here as pins.</source>
        <translation>Bilen din registrerer bare posisjon for noen hendelser. Når du har hendelser med et sted knyttet til seg, vises de her som nåler.</translation>
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
        <translation>Koordinater slik bilen din registrerte dem — nyttig i en skademelding til forsikringsselskapet eller en anmeldelse til politiet.</translation>
    </message>
    <message>
        <source>Archived %1 from %2</source>
        <extracomment>%1 is when the event was kept, %2 the name of the drive it came from</extracomment>
        <translation>Arkivert %1 fra %2</translation>
    </message>
    <message>
        <source>Loading cameras…</source>
        <translation>Laster inn kameraer…</translation>
    </message>
    <message>
        <source>No playable footage for this event</source>
        <translation>Ingen avspillbare opptak for denne hendelsen</translation>
    </message>
    <message>
        <source>None of this event&apos;s camera angles could be read. The files are still safely on your drive — this can happen with a failing drive or a corrupted minute.</source>
        <translation>Ingen av kameravinklene i denne hendelsen kunne leses. Filene ligger fortsatt trygt på disken din — dette kan skje med en disk som svikter eller et ødelagt minutt.</translation>
    </message>
    <message>
        <source>Step back 5 seconds. (Left Arrow)</source>
        <translation>Gå 5 sekunder tilbake. (Left Arrow)</translation>
    </message>
    <message>
        <source>Step forward 5 seconds. (Right Arrow)</source>
        <translation>Gå 5 sekunder fremover. (Right Arrow)</translation>
    </message>
    <message>
        <source>Step back one frame. (,)</source>
        <translation>Gå ett bilde tilbake. (,)</translation>
    </message>
    <message>
        <source>Step forward one frame. (.)</source>
        <translation>Gå ett bilde fremover. (.)</translation>
    </message>
    <message>
        <source>Play or pause all cameras together, perfectly in sync. (Space)</source>
        <translation>Spill av eller sett alle kameraene på pause samtidig, helt synkront. (Space)</translation>
    </message>
    <message>
        <source>Moment</source>
        <extracomment>Button: jump to the moment the event happened</extracomment>
        <translation>Øyeblikket</translation>
    </message>
    <message>
        <source>Jump to just before the moment it happened — the honk, bump, or detection. (M)</source>
        <translation>Hopp til like før det skjedde — tutingen, støtet eller oppdagelsen. (M)</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>Label of the playback speed picker</extracomment>
        <translation>Hastighet</translation>
    </message>
    <message>
        <source>Playback speed, from half speed to 4×.</source>
        <translation>Avspillingshastighet, fra halv hastighet til 4×.</translation>
    </message>
    <message>
        <source>Show All Cameras</source>
        <translation>Vis alle kameraer</translation>
    </message>
    <message>
        <source>Return to the full camera grid.</source>
        <translation>Gå tilbake til rutenettet med alle kameraene.</translation>
    </message>
    <message>
        <source>Drag to jump to any moment. Every camera stays in sync.</source>
        <translation>Dra for å hoppe til et hvilket som helst øyeblikk. Alle kameraene holdes synkront.</translation>
    </message>
    <message>
        <source>Playback position</source>
        <translation>Avspillingsposisjon</translation>
    </message>
    <message>
        <source>Keep a safe copy on this %1</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Behold en trygg kopi på %1</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Button that keeps the event in the Vault</extracomment>
        <translation>Behold</translation>
    </message>
    <message>
        <source>Copies this footage to your Vault and verifies it matches byte-for-byte. Nothing on your drive is ever changed or deleted. (K)</source>
        <translation>Kopierer disse opptakene til Hvelvet ditt og verifiserer at kopien stemmer byte for byte. Ingenting på disken din blir noen gang endret eller slettet. (K)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Button that hides the event from the list</extracomment>
        <translation>Avvis</translation>
    </message>
    <message>
        <source>Hide this from your inbox. This never deletes anything from your drive or Vault. (D)</source>
        <translation>Skjul dette fra innboksen. Dette sletter aldri noe fra disken din eller Hvelvet. (D)</translation>
    </message>
    <message>
        <source>Export &amp; Share</source>
        <translation>Eksporter og del</translation>
    </message>
    <message>
        <source>Save one camera&apos;s footage as its own file and hand it off by email, or save it to a folder.</source>
        <translation>Lagre ett kameras opptak som en egen fil og send den med e-post, eller lagre den i en mappe.</translation>
    </message>
    <message>
        <source>Fill the window with just the cameras. (F, Esc to go back)</source>
        <translation>Fyll vinduet med bare kameraene. (F, Esc for å gå tilbake)</translation>
    </message>
    <message>
        <source>Verified copy</source>
        <translation>Verifisert kopi</translation>
    </message>
    <message>
        <source>This copy was checked byte-for-byte against your drive when it was archived. Tap for the technical detail.</source>
        <translation>Denne kopien ble kontrollert byte for byte mot disken din da den ble arkivert. Trykk for tekniske detaljer.</translation>
    </message>
    <message>
        <source>Faithful Copy</source>
        <translation>Nøyaktig kopi</translation>
    </message>
    <message>
        <source>Every file below was copied and its checksum (SHA-256) was compared to the original on your drive at the time — a faithful, unaltered copy. This is a technical integrity check, not a legal certification.</source>
        <translation>Hver fil nedenfor ble kopiert, og sjekksummen (SHA-256) ble sammenlignet med originalen på disken din på det tidspunktet — en nøyaktig, uendret kopi. Dette er en teknisk integritetskontroll, ikke en juridisk bekreftelse.</translation>
    </message>
    <message>
        <source>Export finished</source>
        <translation>Eksporten er ferdig</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <extracomment>%1 is the file&apos;s name</extracomment>
        <translation>%1 er klar.</translation>
    </message>
    <message>
        <source>Export didn&apos;t finish</source>
        <translation>Eksporten ble ikke fullført</translation>
    </message>
</context>
<context>
    <name>EventTimeline</name>
    <message>
        <source>Unlock to watch</source>
        <extracomment>On a camera&apos;s tile: encrypted footage that needs its keys first</extracomment>
        <translation>Lås opp for å se</translation>
    </message>
    <message>
        <source>This angle didn&apos;t record properly — a known Tesla drive issue.</source>
        <extracomment>On a camera&apos;s tile: its footage is damaged</extracomment>
        <translation>Denne vinkelen ble ikke tatt opp riktig — et kjent problem med Tesla-disker.</translation>
    </message>
    <message>
        <source>No footage this minute.</source>
        <extracomment>On a camera&apos;s tile: the car wrote nothing for this camera at this time</extracomment>
        <translation>Ingen opptak dette minuttet.</translation>
    </message>
</context>
<context>
    <name>EvidencePackage</name>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it is no longer there.</source>
        <translation>Kunne ikke lese %1 fra disken — den finnes ikke lenger.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it isn&apos;t an ordinary file.</source>
        <translation>Kunne ikke lese %1 fra disken — det er ikke en vanlig fil.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — the system refused to open it.</source>
        <translation>Kunne ikke lese %1 fra disken — systemet nektet å åpne den.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — the drive reported an error.</source>
        <translation>Kunne ikke lese %1 fra disken — disken rapporterte en feil.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — the disk is full.</source>
        <translation>Kunne ikke skrive pakken der — disken er full.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — that folder can&apos;t be written to.</source>
        <translation>Kunne ikke skrive pakken der — det kan ikke skrives til den mappen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — that folder doesn&apos;t exist.</source>
        <translation>Kunne ikke skrive pakken der — den mappen finnes ikke.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — a folder already has that name.</source>
        <translation>Kunne ikke skrive pakken der — en mappe har allerede det navnet.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — the disk reported an error.</source>
        <translation>Kunne ikke skrive pakken der — disken rapporterte en feil.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it stopped answering.</source>
        <translation>Kunne ikke lese %1 fra disken — den sluttet å svare.</translation>
    </message>
    <message>
        <source>%1 changed while the package was being made — the package was not made.</source>
        <translation>%1 ble endret mens pakken ble laget — pakken ble ikke laget.</translation>
    </message>
    <message>
        <source>%1 changed since the report was made — the package was not made.</source>
        <translation>%1 er endret siden rapporten ble laget — pakken ble ikke laget.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the package somewhere else.</source>
        <translation>Keelhold skriver aldri til Tesla-disken din, så lagre pakken et annet sted.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be a name inside the package — the package was not made.</source>
        <translation>%1 kan ikke være et navn i pakken — pakken ble ikke laget.</translation>
    </message>
</context>
<context>
    <name>ExportError</name>
    <message>
        <source>Unknown export failure.</source>
        <translation>Ukjent feil ved eksport.</translation>
    </message>
    <message>
        <source>There is no playable footage from this camera in this event.</source>
        <translation>Det finnes ingen avspillbare opptak fra dette kameraet i denne hendelsen.</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be put together into one movie.</source>
        <translation>Opptakene kunne ikke settes sammen til én film.</translation>
    </message>
    <message>
        <source>This footage can&apos;t be written as an MP4 movie with the video tools on this computer.</source>
        <translation>Disse opptakene kan ikke skrives som en MP4-film med videoverktøyene på denne datamaskinen.</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>Eksporten ble stoppet.</translation>
    </message>
</context>
<context>
    <name>ExportFlow</name>
    <message>
        <source>Put together what an insurer, the police or a lawyer asks for: when and where it happened, what each camera saw, how the car was driven, and every original file with a way to check it.</source>
        <translation>Sett sammen det et forsikringsselskap, politiet eller en advokat ber om: når og hvor det skjedde, hva hvert kamera så, hvordan bilen ble kjørt, og hver originalfil med en måte å kontrollere den på.</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>noen få sekunder igjen</translation>
    </message>
    <message numerus="yes">
        <source>about %n seconds left</source>
        <translation>
            <numerusform>omtrent %n sekund igjen</numerusform>
            <numerusform>omtrent %n sekunder igjen</numerusform>
        </translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>omtrent ett minutt igjen</translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes left</source>
        <translation>
            <numerusform>omtrent %n minutt igjen</numerusform>
            <numerusform>omtrent %n minutter igjen</numerusform>
        </translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <extracomment>%1 is a number of hours with one decimal, e.g. 1.5</extracomment>
        <translation>omtrent %1 timer igjen</translation>
    </message>
    <message>
        <source>%1 of %2 frames</source>
        <translation>%1 av %2 bilder</translation>
    </message>
    <message>
        <source>%1× real time</source>
        <extracomment>How fast the movie is made: 1.8× real time</extracomment>
        <translation>%1× sanntid</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <extracomment>%1 is the exported file&apos;s name</extracomment>
        <translation>Klar: %1</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <extracomment>%1 is the saved file&apos;s name</extracomment>
        <translation>Lagret som %1</translation>
    </message>
    <message>
        <source>Camera</source>
        <extracomment>Label of the camera picker</extracomment>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Export as</source>
        <translation>Eksporter som</translation>
    </message>
    <message>
        <source>One camera (original quality)</source>
        <translation>Ett kamera (originalkvalitet)</translation>
    </message>
    <message>
        <source>Grid of every camera</source>
        <translation>Rutenett med alle kameraer</translation>
    </message>
    <message>
        <source>Front and sides</source>
        <translation>Front og sider</translation>
    </message>
    <message>
        <source>One camera with overlay</source>
        <translation>Ett kamera med overlegg</translation>
    </message>
    <message>
        <source>Show</source>
        <extracomment>Label over the overlay choices: which details the movie shows over the video</extracomment>
        <translation>Vis</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dato og klokkeslett</translation>
    </message>
    <message>
        <source>Camera names</source>
        <translation>Kameranavn</translation>
    </message>
    <message>
        <source>Reason and place</source>
        <translation>Årsak og sted</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Kjøredata</translation>
    </message>
    <message>
        <source>No driving data in these clips</source>
        <translation>Ingen kjøredata i disse klippene</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Label over the movie&apos;s picture size choices</extracomment>
        <translation>Størrelse</translation>
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
        <translation>Full oppløsning</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>Label over the choices of which part of the event to export</extracomment>
        <translation>Lengde</translation>
    </message>
    <message>
        <source>Whole event</source>
        <translation>Hele hendelsen</translation>
    </message>
    <message>
        <source>From the moment</source>
        <translation>Fra øyeblikket</translation>
    </message>
    <message>
        <source>From 10 seconds before the moment it happened to 20 seconds after.</source>
        <translation>Fra 10 sekunder før det skjedde til 20 sekunder etter.</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>A part of the event the user sets by start and end</extracomment>
        <translation>Egendefinert</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>Fra</translation>
    </message>
    <message>
        <source>to</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>til</translation>
    </message>
    <message>
        <source>into the event</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>inn i hendelsen</translation>
    </message>
    <message>
        <source>The end has to come after the start.</source>
        <translation>Slutten må komme etter starten.</translation>
    </message>
    <message>
        <source>Finishing the file…</source>
        <translation>Fullfører filen…</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Eksporterer…</translation>
    </message>
    <message>
        <source>Saving a copy…</source>
        <translation>Lagrer en kopi…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>Button that starts the export</extracomment>
        <translation>Eksporter</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>Button that stops a running export</extracomment>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the finished export dialog</extracomment>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Vis i mappe</translation>
    </message>
    <message>
        <source>Opens the folder that holds the file, with the file selected.</source>
        <translation>Åpner mappen som inneholder filen, med filen valgt.</translation>
    </message>
    <message>
        <source>Email…</source>
        <translation>E-post…</translation>
    </message>
    <message>
        <source>Starts a new email with the file attached.</source>
        <translation>Starter en ny e-post med filen som vedlegg.</translation>
    </message>
    <message>
        <source>Save to…</source>
        <translation>Lagre i…</translation>
    </message>
    <message>
        <source>Choose exactly where on your %1 to save this file.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Velg nøyaktig hvor på %1 din denne filen skal lagres.</translation>
    </message>
    <message>
        <source>MPEG-4 movie (*.mp4)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.mp4)&quot; as it is</extracomment>
        <translation>MPEG-4-film (*.mp4)</translation>
    </message>
    <message>
        <source>Incident Report (PDF)</source>
        <translation>Hendelsesrapport (PDF)</translation>
    </message>
    <message>
        <source>Evidence Package (ZIP)</source>
        <translation>Bevispakke (ZIP)</translation>
    </message>
    <message>
        <source>When and where, each camera at the moment, the driving data, and every original file with its SHA-256, ready for an insurer or the police.</source>
        <translation>Når og hvor, hvert kamera i øyeblikket, kjøredataene og hver originalfil med SHA-256-verdien, klar for et forsikringsselskap eller politiet.</translation>
    </message>
    <message>
        <source>The report, every original file exactly as the car wrote it, and a SHA256SUMS file anyone can check them with, in one ZIP.</source>
        <extracomment>SHA256SUMS is a file name; keep it as it is</extracomment>
        <translation>Rapporten, hver originalfil nøyaktig slik bilen skrev den, og en SHA256SUMS-fil som hvem som helst kan kontrollere dem med, i én ZIP.</translation>
    </message>
    <message>
        <source>Include unlock keys</source>
        <translation>Ta med opplåsingsnøkler</translation>
    </message>
    <message>
        <source>Lets whoever receives the package play the encrypted footage. Anyone with the keys can watch it.</source>
        <translation>Lar den som mottar pakken, spille av de krypterte opptakene. Alle som har nøklene, kan se dem.</translation>
    </message>
    <message>
        <source>Making the report…</source>
        <translation>Lager rapporten…</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.pdf)&quot; as it is</extracomment>
        <translation>PDF-dokument (*.pdf)</translation>
    </message>
    <message>
        <source>ZIP archive (*.zip)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.zip)&quot; as it is</extracomment>
        <translation>ZIP-arkiv (*.zip)</translation>
    </message>
    <message>
        <source>Export &amp; Share</source>
        <translation>Eksporter og del</translation>
    </message>
    <message>
        <source>Save this event as its own video file, ready to send to an insurer, police, or anyone else who needs it: one camera exactly as recorded, or every camera in one movie.</source>
        <translation>Lagre denne hendelsen som en egen videofil, klar til å sendes til et forsikringsselskap, politiet eller andre som trenger den: ett kamera nøyaktig slik det ble tatt opp, eller alle kameraene i én film.</translation>
    </message>
    <message>
        <source>This couldn&apos;t be exported right now. Your original footage on the drive is untouched — you can try again.</source>
        <translation>Dette kunne ikke eksporteres akkurat nå. De originale opptakene på disken er urørt — du kan prøve igjen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t save there — try a different folder.</source>
        <translation>Kunne ikke lagre der — prøv en annen mappe.</translation>
    </message>
    <message>
        <source>Stops the export. Your original footage is untouched either way.</source>
        <translation>Stopper eksporten. De originale opptakene dine er urørt uansett.</translation>
    </message>
</context>
<context>
    <name>ExportSession</name>
    <message>
        <source>The movie couldn&apos;t be written.</source>
        <translation>Filmen kunne ikke skrives.</translation>
    </message>
    <message>
        <source>There wasn&apos;t enough memory to export the footage.</source>
        <translation>Det var ikke nok minne til å eksportere opptakene.</translation>
    </message>
</context>
<context>
    <name>Exporter</name>
    <message>
        <source>The chosen stretch lies outside this camera&apos;s footage.</source>
        <translation>Den valgte strekningen ligger utenfor opptakene fra dette kameraet.</translation>
    </message>
    <message>
        <source>This camera&apos;s clips are too damaged to make a movie that keeps its own timing.</source>
        <translation>Klippene fra dette kameraet er for skadet til å lage en film med riktig tidsforløp.</translation>
    </message>
</context>
<context>
    <name>FailureScreens</name>
    <message>
        <source>Choose a Different Drive</source>
        <translation>Velg en annen disk</translation>
    </message>
    <message>
        <source>Tesla dashcam and Sentry footage always lives in a folder named &quot;TeslaCam&quot; at the top level of the drive. If this is the right drive, make sure Dashcam Recording is turned on in your car&apos;s settings.</source>
        <extracomment>&quot;Dashcam Recording&quot; is the car&apos;s setting, as named on its touchscreen</extracomment>
        <translation>Tesla-opptak fra Dashcam og Vaktmodus ligger alltid i en mappe som heter «TeslaCam» øverst på disken. Hvis dette er riktig disk, må du kontrollere at Dashcam-opptak er slått på i bilens innstillinger.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; doesn&apos;t have a TeslaCam folder on it, so it may not be the drive from your car.</source>
        <extracomment>%1 is the drive&apos;s name</extracomment>
        <translation>«%1» har ingen TeslaCam-mappe, så det er kanskje ikke disken fra bilen din.</translation>
    </message>
    <message>
        <source>We couldn&apos;t find a TeslaCam folder</source>
        <translation>Vi fant ingen TeslaCam-mappe</translation>
    </message>
    <message>
        <source>Your car needs a drive formatted as exFAT (or FAT32 for smaller drives), and this one is %1. Back up anything important from it first, then reformat it using %2 (choose &quot;ExFAT&quot;) and reinsert it into your car so it can start recording.</source>
        <extracomment>%1 is the drive&apos;s format (e.g. NTFS), %2 a program that formats drives, e.g. &quot;a disk utility such as Disks&quot;. &quot;ExFAT&quot; is the choice as the program names it</extracomment>
        <translation>Bilen din trenger en disk formatert som exFAT (eller FAT32 for mindre disker), og denne er %1. Ta først sikkerhetskopi av alt viktig på den, formater den deretter med %2 (velg «ExFAT») og sett den inn i bilen igjen, så den kan begynne å ta opp.</translation>
    </message>
    <message>
        <source>This drive needs to be reformatted</source>
        <translation>Denne disken må formateres på nytt</translation>
    </message>
    <message>
        <source>We need you to point us back to your Tesla drive</source>
        <translation>Vis oss Tesla-disken din på nytt</translation>
    </message>
    <message>
        <source>%1 asks apps to re-confirm folder access sometimes — for example after a drive is renamed or unplugged and replugged. Nothing is wrong and nothing was lost; just pick the Tesla drive again and everything will pick up where it left off.</source>
        <extracomment>%1 is the operating system, e.g. &quot;Your system&quot;</extracomment>
        <translation>%1 ber av og til apper om å bekrefte mappetilgangen på nytt — for eksempel etter at en disk har fått nytt navn eller er koblet fra og til igjen. Ingenting er galt, og ingenting har gått tapt; bare velg Tesla-disken igjen, så fortsetter alt der det slapp.</translation>
    </message>
    <message>
        <source>Choose Tesla drive</source>
        <translation>Velg Tesla-disk</translation>
    </message>
    <message>
        <source>We need you to point us back to your Vault folder</source>
        <translation>Vis oss Hvelv-mappen din på nytt</translation>
    </message>
    <message>
        <source>%1 asks apps to re-confirm folder access sometimes — for example after a drive is renamed or unplugged and replugged. Nothing is wrong and nothing was lost; just pick the Vault folder again and everything will pick up where it left off.</source>
        <extracomment>%1 is the operating system, e.g. &quot;Your system&quot;</extracomment>
        <translation>%1 ber av og til apper om å bekrefte mappetilgangen på nytt — for eksempel etter at en disk har fått nytt navn eller er koblet fra og til igjen. Ingenting er galt, og ingenting har gått tapt; bare velg Hvelv-mappen igjen, så fortsetter alt der det slapp.</translation>
    </message>
    <message>
        <source>Choose Vault folder</source>
        <translation>Velg Hvelv-mappe</translation>
    </message>
    <message>
        <source>This drive doesn&apos;t have any footage yet</source>
        <translation>Denne disken har ingen opptak ennå</translation>
    </message>
    <message>
        <source>We found a TeslaCam folder, but there&apos;s nothing in it yet. Your car saves footage here as you drive and while it&apos;s parked with Sentry Mode on — check back after your next drive.</source>
        <translation>Vi fant en TeslaCam-mappe, men det er ingenting i den ennå. Bilen lagrer opptak her mens du kjører og mens den står parkert med Vaktmodus på — sjekk igjen etter neste tur.</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt dashcam clips so only your Tesla account can view them. This isn&apos;t damage or an error — Keelhold still safely backs these files up exactly as they are, and encrypted clips can be watched anytime at %1. Want future footage to play right here? There&apos;s a 30-second setting in your car.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Nyere Tesla-programvare kan kryptere dashcam-klipp slik at bare Tesla-kontoen din kan se dem. Dette er ikke skade eller en feil — Keelhold tar fortsatt trygt sikkerhetskopi av disse filene nøyaktig slik de er, og krypterte klipp kan ses når som helst på %1. Vil du at fremtidige opptak skal spilles av rett her? Det finnes en innstilling i bilen som tar 30 sekunder.</translation>
    </message>
    <message>
        <source>Your car is encrypting this footage</source>
        <translation>Bilen din krypterer disse opptakene</translation>
    </message>
    <message>
        <source>Show Me the 30-Second Fix</source>
        <translation>Vis meg løsningen (30 sekunder)</translation>
    </message>
    <message>
        <source>Your drive was disconnected</source>
        <translation>Disken din ble koblet fra</translation>
    </message>
    <message>
        <source>No problem — nothing was lost. Whatever was in progress is paused and will pick back up right where it left off as soon as you plug the drive back in.</source>
        <translation>Ikke noe problem — ingenting gikk tapt. Det som var i gang, er satt på pause og fortsetter der det slapp så snart du kobler til disken igjen.</translation>
    </message>
</context>
<context>
    <name>FileHandOff</name>
    <message>
        <source>Show the file in its folder, or attach it to a new email.</source>
        <translation>Vis filen i mappen, eller legg den ved en ny e-post.</translation>
    </message>
</context>
<context>
    <name>H264Encoder</name>
    <message>
        <source>There wasn&apos;t enough memory to export the footage.</source>
        <translation>Det var ikke nok minne til å eksportere opptakene.</translation>
    </message>
    <message>
        <source>The movie&apos;s video encoder couldn&apos;t be started: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>Filmens videokoder kunne ikke startes: %1.</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be encoded: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>Opptakene kunne ikke kodes: %1.</translation>
    </message>
</context>
<context>
    <name>HardMoment</name>
    <message>
        <source>Hard braking</source>
        <translation>Hard bremsing</translation>
    </message>
    <message>
        <source>Swerve</source>
        <translation>Unnamanøver</translation>
    </message>
    <message>
        <source>Sudden stop</source>
        <translation>Plutselig stans</translation>
    </message>
    <message>
        <source>Emergency braking</source>
        <translation>Nødbremsing</translation>
    </message>
    <message>
        <source>Self-Driving off</source>
        <translation>Selvkjøring av</translation>
    </message>
    <message>
        <source>Cruise control off</source>
        <translation>Cruisekontroll av</translation>
    </message>
    <message>
        <source>Autosteer off</source>
        <translation>Autostyring av</translation>
    </message>
</context>
<context>
    <name>HealthComputer</name>
    <message>
        <source>These clips are in a folder on this %1, not on your car&apos;s drive, so there&apos;s nothing to reformat.</source>
        <extracomment>%1 is the word for the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Disse klippene ligger i en mappe på %1, ikke på bilens disk, så det er ingenting å formatere på nytt.</translation>
    </message>
    <message>
        <source>Your drive is formatted exFAT — exactly what your Tesla expects. No action needed.</source>
        <translation>Disken din er formatert som exFAT — akkurat det Teslaen din forventer. Du trenger ikke gjøre noe.</translation>
    </message>
    <message>
        <source>Your drive is formatted FAT32. Older Tesla software prefers exFAT for drives over 32 GB — if you ever see recording gaps, reformatting to exFAT (in %1, after backing up) can help.</source>
        <extracomment>%1 names the tool to format a drive with, e.g. &quot;a disk utility such as Disks&quot;</extracomment>
        <translation>Disken din er formatert som FAT32. Eldre Tesla-programvare foretrekker exFAT for disker over 32 GB — hvis du noen gang ser hull i opptakene, kan det hjelpe å formatere til exFAT (i %1, etter at du har tatt sikkerhetskopi).</translation>
    </message>
    <message>
        <source>Your drive is formatted %1, which your car can record to. exFAT is the most widely used choice if you also read it on other computers.</source>
        <extracomment>%1 is a file system name, e.g. ext4</extracomment>
        <translation>Disken din er formatert som %1, som bilen din kan ta opp til. exFAT er det mest brukte valget hvis du også leser den på andre datamaskiner.</translation>
    </message>
    <message>
        <source>This drive is formatted %1, which your car cannot record to. Reformat it to exFAT before using it as a dashcam drive.</source>
        <extracomment>%1 is a file system name, e.g. NTFS</extracomment>
        <translation>Denne disken er formatert som %1, som bilen din ikke kan ta opp til. Formater den til exFAT før du bruker den som dashcam-disk.</translation>
    </message>
    <message>
        <source>This drive is formatted %1, which your car may not fully support. exFAT is the safest choice.</source>
        <extracomment>%1 is a file system name</extracomment>
        <translation>Denne disken er formatert som %1, som bilen din kanskje ikke støtter fullt ut. exFAT er det tryggeste valget.</translation>
    </message>
    <message>
        <source>We couldn&apos;t determine how this drive is formatted.</source>
        <translation>Vi kunne ikke finne ut hvordan denne disken er formatert.</translation>
    </message>
    <message numerus="yes">
        <source>Back up %n new events</source>
        <translation>
            <numerusform>Ta sikkerhetskopi av %n ny hendelse</numerusform>
            <numerusform>Ta sikkerhetskopi av %n nye hendelser</numerusform>
        </translation>
    </message>
    <message>
        <source>These moments are only on your car&apos;s drive right now. Keep them so they&apos;re safe even if the drive fills up or fails.</source>
        <translation>Disse øyeblikkene finnes bare på bilens disk akkurat nå. Behold dem, så er de trygge selv om disken blir full eller svikter.</translation>
    </message>
    <message>
        <source>%1% full — normal for a Tesla drive</source>
        <extracomment>%1 is a whole percentage; the % sign follows it</extracomment>
        <translation>%1 % full — normalt for en Tesla-disk</translation>
    </message>
    <message>
        <source>The car reuses space by overwriting its oldest footage. That&apos;s expected, not a problem — back up anything you want to keep from the recommendation above.</source>
        <translation>Bilen gjenbruker plass ved å skrive over de eldste opptakene. Det er forventet, ikke et problem — ta sikkerhetskopi av det du vil beholde, ut fra anbefalingen ovenfor.</translation>
    </message>
    <message>
        <source>Drive is %1% full</source>
        <extracomment>%1 is a whole percentage; the % sign follows it</extracomment>
        <translation>Disken er %1 % full</translation>
    </message>
    <message>
        <source>Nothing urgent yet, but it&apos;s worth backing up regularly so you&apos;re never caught out.</source>
        <translation>Ingenting haster ennå, men det lønner seg å ta sikkerhetskopi jevnlig, så du aldri blir tatt på senga.</translation>
    </message>
    <message numerus="yes">
        <source>%n clips didn&apos;t record properly</source>
        <translation>
            <numerusform>%n klipp ble ikke tatt opp riktig</numerusform>
            <numerusform>%n klipp ble ikke tatt opp riktig</numerusform>
        </translation>
    </message>
    <message>
        <source>A small number of damaged clips is normal and not something to worry about.</source>
        <translation>Et lite antall skadde klipp er normalt og ikke noe å bekymre seg for.</translation>
    </message>
    <message>
        <source>This is a known issue with some Tesla USB drives, especially cheaper or older ones. Consider a bigger-name USB 3.0 drive if this keeps happening.</source>
        <translation>Dette er et kjent problem med noen Tesla-USB-disker, særlig billigere eller eldre. Vurder en USB 3.0-disk fra et kjent merke hvis dette fortsetter å skje.</translation>
    </message>
    <message>
        <source>Some clips are encrypted by your car</source>
        <translation>Noen klipp er kryptert av bilen din</translation>
    </message>
    <message>
        <source>Recent Tesla software can encrypt dashcam footage. Keelhold can still back these up — see Help for how to view them.</source>
        <translation>Nyere Tesla-programvare kan kryptere dashcam-opptak. Keelhold kan fortsatt ta sikkerhetskopi av dem — se Hjelp for hvordan du kan se dem.</translation>
    </message>
    <message>
        <source>Everything looks good</source>
        <translation>Alt ser bra ut</translation>
    </message>
    <message>
        <source>Your drive is healthy and up to date. Nothing needs your attention right now.</source>
        <translation>Disken din er i god stand og oppdatert. Ingenting trenger oppmerksomheten din akkurat nå.</translation>
    </message>
</context>
<context>
    <name>HealthPresenter</name>
    <message>
        <source>%1% full — normal for a Tesla drive. The car reuses space by overwriting its oldest footage.</source>
        <extracomment>%1 is a whole percentage; &quot;%1% full&quot; reads &quot;90% full&quot;</extracomment>
        <translation>%1 % full — normalt for en Tesla-disk. Bilen gjenbruker plass ved å skrive over de eldste opptakene.</translation>
    </message>
    <message numerus="yes">
        <source>You have %n events not backed up yet — see the recommendation below.</source>
        <translation>
            <numerusform>Du har %n hendelse som ikke er sikkerhetskopiert ennå — se anbefalingen nedenfor.</numerusform>
            <numerusform>Du har %n hendelser som ikke er sikkerhetskopiert ennå — se anbefalingen nedenfor.</numerusform>
        </translation>
    </message>
    <message>
        <source>Free Space</source>
        <translation>Ledig plass</translation>
    </message>
    <message>
        <source>We couldn&apos;t read this drive&apos;s capacity.</source>
        <translation>Vi kunne ikke lese kapasiteten til denne disken.</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>Heading: the drive&apos;s file system format (exFAT, FAT32, …)</extracomment>
        <translation>Format</translation>
    </message>
    <message>
        <source>Footage Condition</source>
        <translation>Opptakenes tilstand</translation>
    </message>
    <message>
        <source>Still checking your footage for damage — check back shortly.</source>
        <translation>Kontrollerer fortsatt opptakene for skade — sjekk igjen om litt.</translation>
    </message>
    <message numerus="yes">
        <source>All %n checked clips are in good shape.</source>
        <translation>
            <numerusform>Det kontrollerte klippet er i god stand.</numerusform>
            <numerusform>Alle %n kontrollerte klipp er i god stand.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n checked clips didn&apos;t record properly.</source>
        <extracomment>%1 damaged clips of %n checked</extracomment>
        <translation>
            <numerusform>%1 av %n kontrollert klipp ble ikke tatt opp riktig.</numerusform>
            <numerusform>%1 av %n kontrollerte klipp ble ikke tatt opp riktig.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is a known issue with some Tesla USB drives and isn&apos;t something you did.</source>
        <translation>Dette er et kjent problem med noen Tesla-USB-disker og ikke noe du har gjort.</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Kryptering</translation>
    </message>
    <message>
        <source>Some clips on this drive are encrypted by your car.</source>
        <translation>Noen klipp på denne disken er kryptert av bilen din.</translation>
    </message>
    <message>
        <source>Keelhold can still back these up as-is. Encrypted clips play at %1.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Keelhold kan fortsatt ta sikkerhetskopi av dem som de er. Krypterte klipp kan spilles av på %1.</translation>
    </message>
    <message>
        <source>Turn encryption off for future recordings…</source>
        <translation>Slå av kryptering for fremtidige opptak…</translation>
    </message>
    <message>
        <source>A 30-second setting in your car. Everything already recorded is unaffected.</source>
        <translation>En innstilling i bilen som tar 30 sekunder. Alt som allerede er tatt opp, påvirkes ikke.</translation>
    </message>
    <message>
        <source>Recommendations</source>
        <translation>Anbefalinger</translation>
    </message>
    <message>
        <source>No drive health yet</source>
        <translation>Ingen diskhelse ennå</translation>
    </message>
    <message>
        <source>Scan a Tesla drive from the Drive tab to see its fullness, corruption rate, and format at a glance.</source>
        <extracomment>&quot;Drive&quot; is the app&apos;s own tab; translate it as there</extracomment>
        <translation>Skann en Tesla-disk fra fanen Disk for å se hvor full den er, andelen skadde klipp og formatet med ett blikk.</translation>
    </message>
</context>
<context>
    <name>HelpArticle</name>
    <message>
        <source>What is Sentry Mode?</source>
        <translation>Hva er Vaktmodus?</translation>
    </message>
    <message>
        <source>Why are clips exactly one minute long?</source>
        <translation>Hvorfor er klippene nøyaktig ett minutt lange?</translation>
    </message>
    <message>
        <source>What does &quot;didn&apos;t record properly&quot; mean?</source>
        <extracomment>The quoted words are the app&apos;s own, from its message about damaged clips</extracomment>
        <translation>Hva betyr «ble ikke tatt opp riktig»?</translation>
    </message>
    <message>
        <source>Why does it say some clips are encrypted?</source>
        <translation>Hvorfor står det at noen klipp er kryptert?</translation>
    </message>
    <message>
        <source>How does the Vault keep my footage safe?</source>
        <translation>Hvordan holder Hvelvet opptakene mine trygge?</translation>
    </message>
    <message>
        <source>Will this app ever change or delete anything on my drive?</source>
        <translation>Kommer denne appen noen gang til å endre eller slette noe på disken min?</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Hurtigtaster</translation>
    </message>
    <message>
        <source>Sentry Mode is your Tesla&apos;s built-in security system. While your car is parked, its cameras watch for people or objects that come close, or for a bump or impact. When something happens, the car saves a short recording from every camera into a &quot;Sentry event&quot; so you can review it later.</source>
        <translation>Vaktmodus er Teslaens innebygde sikkerhetssystem. Mens bilen står parkert, følger kameraene med på personer eller gjenstander som kommer nær, eller på et støt eller sammenstøt. Når noe skjer, lagrer bilen et kort opptak fra hvert kamera i en «Vaktmodus-hendelse», slik at du kan se gjennom det senere.</translation>
    </message>
    <message>
        <source>You can turn Sentry Mode on or off, and adjust its sensitivity, from your car&apos;s touchscreen under Safety &amp; Security.</source>
        <translation>Du kan slå Vaktmodus på eller av og justere følsomheten fra bilens berøringsskjerm under Sikkerhet og trygghet.</translation>
    </message>
    <message>
        <source>Your Tesla records in one-minute segments, one file per camera per minute, rather than one long continuous video. This is simply how the car&apos;s software is built — it makes the recordings easier for the car to manage and less likely to be lost all at once if something goes wrong.</source>
        <translation>Teslaen din tar opp i segmenter på ett minutt, én fil per kamera per minutt, i stedet for én lang, sammenhengende video. Slik er bilens programvare bygd — det gjør opptakene enklere for bilen å håndtere og mindre utsatt for å gå tapt på én gang hvis noe går galt.</translation>
    </message>
    <message>
        <source>Keelhold stitches these one-minute files back together into a single, continuous timeline for you, so you never have to think about the individual files — you just scrub through one smooth timeline per event.</source>
        <translation>Keelhold syr disse ettminuttsfilene sammen igjen til én sammenhengende tidslinje for deg, så du aldri trenger å tenke på de enkelte filene — du blar bare gjennom én jevn tidslinje per hendelse.</translation>
    </message>
    <message>
        <source>Occasionally, a clip won&apos;t play — it might be zero bytes, cut off partway through, or simply unreadable. This is a well-known issue with Tesla USB drives, especially with lower-quality or aging drives, and it is not something you did.</source>
        <translation>Av og til vil et klipp ikke spilles av — det kan være på null byte, avbrutt underveis eller rett og slett uleselig. Dette er et velkjent problem med Tesla-USB-disker, særlig med disker av dårligere kvalitet eller som begynner å bli gamle, og det er ikke noe du har gjort.</translation>
    </message>
    <message>
        <source>When this happens, Keelhold shows that camera angle as a labeled placeholder instead of crashing or freezing, and counts it in Drive Health so you can see how often it&apos;s happening. If it happens a lot, a newer USB 3.0 drive from a reputable brand usually helps.</source>
        <translation>Når dette skjer, viser Keelhold den kameravinkelen som en merket plassholder i stedet for å krasje eller fryse, og teller det med i Diskhelse, så du kan se hvor ofte det skjer. Hvis det skjer ofte, hjelper det som regel med en nyere USB 3.0-disk fra et anerkjent merke.</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt dashcam and Sentry clips so that only you can view them — this is a privacy feature, not damage or an error. Encrypted files still look like normal video files, but no app can decode their contents without the key of each clip.</source>
        <translation>Nyere Tesla-programvare kan kryptere dashcam- og Vaktmodus-klipp slik at bare du kan se dem — dette er en personvernfunksjon, ikke skade eller en feil. Krypterte filer ser fortsatt ut som vanlige videofiler, men ingen app kan dekode innholdet uten nøkkelen til hvert klipp.</translation>
    </message>
    <message>
        <source>Keelhold safely backs up encrypted clips exactly as they are — the backup and verification steps work the same either way.</source>
        <translation>Keelhold tar trygt sikkerhetskopi av krypterte klipp nøyaktig slik de er — sikkerhetskopieringen og verifiseringen fungerer på samme måte uansett.</translation>
    </message>
    <message>
        <source>To watch them here, choose “Unlock Encrypted Footage…” and sign in with your Tesla account. Keelhold then asks Tesla for each clip&apos;s key, sending only the clip&apos;s locked key and your car&apos;s VIN, never any video, and keeps the keys so the footage plays here from then on, even offline. You can also watch them at %1, where your browser fetches the keys the same way.</source>
        <translation>For å se dem her velger du «Lås opp krypterte opptak…» og logger på med Tesla-kontoen din. Keelhold ber deretter Tesla om nøkkelen til hvert klipp og sender bare klippets låste nøkkel og bilens VIN, aldri video. Nøklene lagres, slik at opptakene spilles av her fra da av, også uten nett. Du kan også se dem på %1, der nettleseren henter nøklene på samme måte.</translation>
    </message>
    <message>
        <source>Want future footage to play right here instead? In your car: Controls → Safety → switch off &quot;Encrypt Dashcam Recordings&quot; (about 30 seconds — the app can walk you through it wherever you see the encryption notice). Everything already recorded is unaffected either way.</source>
        <extracomment>Controls, Safety and &quot;Encrypt Dashcam Recordings&quot; are named as on the car&apos;s touchscreen</extracomment>
        <translation>Vil du heller at fremtidige opptak skal spilles av rett her? I bilen: Kontroller → Sikkerhet → slå av «Krypter dashcam-opptak» (omtrent 30 sekunder — appen kan vise deg veien overalt der du ser krypteringsvarselet). Alt som allerede er tatt opp, påvirkes ikke uansett.</translation>
    </message>
    <message>
        <source>When you choose &quot;Keep&quot; on an event, Keelhold copies every file for that event to a folder you chose (your &quot;Vault&quot;) while checking the data as it copies. It then re-checks the copy&apos;s checksum (SHA-256) against the original to make sure the copy is a faithful, byte-for-byte match — you&apos;ll see it marked &quot;Verified copy&quot; afterward.</source>
        <extracomment>&quot;Keep&quot; and &quot;Verified copy&quot; are the app&apos;s own button and mark; translate them as there</extracomment>
        <translation>Når du velger «Behold» for en hendelse, kopierer Keelhold alle filene for hendelsen til en mappe du har valgt («Hvelvet» ditt), og kontrollerer dataene mens de kopieres. Deretter kontrollerer den sjekksummen (SHA-256) til kopien mot originalen på nytt for å sikre at kopien er nøyaktig lik, byte for byte — etterpå ser du den merket «Verifisert kopi».</translation>
    </message>
    <message>
        <source>Your Vault works completely independently of your car&apos;s drive: once something is kept, you can browse and watch it any time, even with the Tesla drive unplugged or gone entirely. Re-importing the same drive later automatically recognizes anything already kept, so you never end up with duplicates.</source>
        <translation>Hvelvet ditt fungerer helt uavhengig av bilens disk: når noe først er beholdt, kan du bla gjennom og se det når som helst, selv om Tesla-disken er koblet fra eller helt borte. Hvis du importerer den samme disken igjen senere, gjenkjennes alt som allerede er beholdt, automatisk, så du aldri får duplikater.</translation>
    </message>
    <message>
        <source>No. Keelhold only ever reads from your Tesla&apos;s drive — no code path in this app writes to it, renames anything on it, or deletes anything from it. The only place this app writes to is the Vault folder you choose on your %1 (or another drive you pick).</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Nei. Keelhold leser bare fra Tesla-disken din — ingen del av koden i denne appen skriver til den, gir noe på den nytt navn eller sletter noe fra den. Det eneste stedet denne appen skriver til, er Hvelv-mappen du velger på %1 din (eller en annen disk du velger).</translation>
    </message>
    <message>
        <source>This matters most right after something happens to your car: the drive from your glovebox is exactly as safe to hand to police or an insurer after using this app as it was before.</source>
        <translation>Dette betyr mest rett etter at noe har skjedd med bilen din: disken fra hanskerommet er like trygg å gi til politiet eller et forsikringsselskap etter at du har brukt denne appen, som den var før.</translation>
    </message>
    <message>
        <source>You can review everything without touching the mouse:</source>
        <translation>Du kan gå gjennom alt uten å røre musen:</translation>
    </message>
    <message>
        <source>A quick reminder of these appears under the playback controls until you hide it — and you can always come back here.</source>
        <translation>En kort påminnelse om disse vises under avspillingskontrollene til du skjuler den — og du kan alltid komme tilbake hit.</translation>
    </message>
    <message>
        <source>Space — play or pause all cameras together</source>
        <extracomment>A line of the keyboard help: the key, a dash, what it does. Name keys as keyboards there mark them</extracomment>
        <translation>Space — spill av eller sett alle kameraene på pause samtidig</translation>
    </message>
    <message>
        <source>← and → — skip back or forward 5 seconds</source>
        <translation>← og → — hopp 5 sekunder tilbake eller fremover</translation>
    </message>
    <message>
        <source>, and . — step one frame back or forward (pauses first)</source>
        <translation>, og . — gå ett bilde tilbake eller fremover (setter på pause først)</translation>
    </message>
    <message>
        <source>1 to 7 — jump straight to a camera (in the order shown in the grid)</source>
        <translation>1 til 7 — hopp rett til et kamera (i rekkefølgen i rutenettet)</translation>
    </message>
    <message>
        <source>0 — back to all cameras</source>
        <translation>0 — tilbake til alle kameraene</translation>
    </message>
    <message>
        <source>M — replay the moment it happened (just before the honk, bump, or detection)</source>
        <translation>M — spill av øyeblikket det skjedde på nytt (like før tutingen, støtet eller oppdagelsen)</translation>
    </message>
    <message>
        <source>N and Shift+N — jump to the next or previous thing that happened: someone moving in front of a camera (that camera is enlarged), or a hard brake, swerve or Autosteer switching off</source>
        <translation>N og Shift+N — hopp til neste eller forrige ting som skjedde: noen som beveger seg foran et kamera (det kameraet forstørres), eller en hard bremsing, en unnamanøver eller Autostyring som slår seg av</translation>
    </message>
    <message>
        <source>F — fill the window with just the cameras (Esc goes back)</source>
        <translation>F — fyll vinduet med bare kameraene (Esc går tilbake)</translation>
    </message>
    <message>
        <source>T — show or hide the car&apos;s driving data over the video (speed, pedals, steering, Autopilot)</source>
        <translation>T — vis eller skjul bilens kjøredata over videoen (hastighet, pedaler, styring, Autopilot)</translation>
    </message>
    <message>
        <source>↑ and ↓ — move through the event list, auto-playing each one</source>
        <translation>↑ og ↓ — gå gjennom hendelseslisten og spill av hver enkelt automatisk</translation>
    </message>
    <message>
        <source>K — keep a safe copy of the selected event in your Vault</source>
        <translation>K — behold en trygg kopi av den valgte hendelsen i Hvelvet ditt</translation>
    </message>
    <message>
        <source>D — dismiss the selected event (never deletes any footage)</source>
        <translation>D — avvis den valgte hendelsen (sletter aldri noen opptak)</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Help</source>
        <extracomment>Heading over the list of help articles</extracomment>
        <translation>Hjelp</translation>
    </message>
</context>
<context>
    <name>HelpWindowController</name>
    <message>
        <source>Keelhold Help</source>
        <translation>Keelhold-hjelp</translation>
    </message>
</context>
<context>
    <name>InboxPresenter</name>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is the long date, %2 the time: &quot;Monday, 2 June 2025 at 2:11:05 AM&quot;</extracomment>
        <translation>%1 kl. %2</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>Heading over the events of today</extracomment>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>Heading over the events of yesterday</extracomment>
        <translation>I går</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>A row&apos;s second line: the place, then the event&apos;s size on disk</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Details limited — footage intact</source>
        <translation>Begrensede detaljer — opptakene er intakte</translation>
    </message>
    <message>
        <source>Place and details stay with your car</source>
        <translation>Sted og detaljer blir hos bilen din</translation>
    </message>
    <message>
        <source>Your car didn&apos;t write a details file for this event, so we don&apos;t know the exact reason or location — the video itself is intact.</source>
        <translation>Bilen din skrev ingen detaljfil for denne hendelsen, så vi vet ikke nøyaktig årsak eller sted — selve videoen er intakt.</translation>
    </message>
    <message>
        <source>Encrypted by your car</source>
        <translation>Kryptert av bilen din</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <extracomment>Short reason on a row&apos;s chip: the footage is encrypted</extracomment>
        <translation>Kryptert</translation>
    </message>
    <message>
        <source>Your car encrypted this recording, and its reason and place with it. Keelhold keeps it byte for byte; unlock it with your Tesla account to watch it here.</source>
        <translation>Bilen din krypterte dette opptaket, og årsaken og stedet sammen med det. Keelhold beholder det byte for byte; lås det opp med Tesla-kontoen din for å se det her.</translation>
    </message>
    <message>
        <source>Locked — unlock it with your Tesla account to watch it here.</source>
        <translation>Låst — lås det opp med Tesla-kontoen din for å se det her.</translation>
    </message>
    <message>
        <source>Unlocked — its keys are kept on this computer, so it plays here even offline.</source>
        <translation>Låst opp — nøklene er lagret på denne datamaskinen, så det spilles av her også uten nett.</translation>
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
        <translation>Ny — du har ikke sett denne ennå.</translation>
    </message>
    <message>
        <source>A verified copy is safe in your Vault.</source>
        <translation>En verifisert kopi ligger trygt i Hvelvet ditt.</translation>
    </message>
    <message numerus="yes">
        <source>%n damaged clips</source>
        <translation>
            <numerusform>%n skadet klipp</numerusform>
            <numerusform>%n skadde klipp</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n angles from this moment didn&apos;t record properly. This is a known Tesla drive issue, not something you did.</source>
        <extracomment>Camera angles, one per camera, whose clips are damaged</extracomment>
        <translation>
            <numerusform>%n vinkel fra dette øyeblikket ble ikke tatt opp riktig. Dette er et kjent problem med Tesla-disker, ikke noe du har gjort.</numerusform>
            <numerusform>%n vinkler fra dette øyeblikket ble ikke tatt opp riktig. Dette er et kjent problem med Tesla-disker, ikke noe du har gjort.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reason: %1</source>
        <extracomment>Screen reader name of a row&apos;s reason chip; %1 is the car&apos;s reason</extracomment>
        <translation>Årsak: %1</translation>
    </message>
    <message numerus="yes">
        <source>Keep %n</source>
        <extracomment>Button that keeps the ticked events in the Vault; %n is how many</extracomment>
        <translation>
            <numerusform>Behold %n</numerusform>
            <numerusform>Behold %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Dismiss %n</source>
        <extracomment>Button that hides the ticked events from the list; %n is how many</extracomment>
        <translation>
            <numerusform>Avvis %n</numerusform>
            <numerusform>Avvis %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Deselect this event</source>
        <translation>Fjern markeringen av denne hendelsen</translation>
    </message>
    <message>
        <source>Select this event</source>
        <translation>Velg denne hendelsen</translation>
    </message>
    <message>
        <source>New</source>
        <extracomment>Status filter: events not watched yet</extracomment>
        <translation>Ny</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <extracomment>Status filter: events already watched</extracomment>
        <translation>Sett</translation>
    </message>
    <message>
        <source>In Vault</source>
        <extracomment>Status filter: events kept in the Vault</extracomment>
        <translation>I Hvelvet</translation>
    </message>
    <message>
        <source>Dismissed</source>
        <extracomment>Status filter: events hidden from the list</extracomment>
        <translation>Avvist</translation>
    </message>
    <message>
        <source>Sentry</source>
        <extracomment>Kind filter: Sentry Mode events</extracomment>
        <translation>Vaktmodus</translation>
    </message>
    <message>
        <source>Saved</source>
        <extracomment>Kind filter: clips the driver saved</extracomment>
        <translation>Lagret</translation>
    </message>
    <message>
        <source>Recent Driving</source>
        <extracomment>Kind filter: the car&apos;s rolling recording of recent driving</extracomment>
        <translation>Nylig kjøring</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>One place in the Activity line: camera name, then time into the event (&quot;Left Side 2:14&quot;)</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Activity: %1</source>
        <translation>Aktivitet: %1</translation>
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
        <translation>Disk</translation>
    </message>
    <message>
        <source>Switch Drive</source>
        <translation>Bytt disk</translation>
    </message>
    <message>
        <source>Pick a different Tesla drive or re-scan this one.</source>
        <translation>Velg en annen Tesla-disk, eller skann denne på nytt.</translation>
    </message>
    <message>
        <source>Checking for new events…</source>
        <translation>Ser etter nye hendelser…</translation>
    </message>
    <message>
        <source>Filter</source>
        <extracomment>Button that opens the filter menu</extracomment>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Show only certain statuses, reasons, or kinds of events.</source>
        <translation>Vis bare bestemte statuser, årsaker eller typer hendelser.</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Heading in the filter menu: filter by status (new, reviewed, …)</extracomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>Reason</source>
        <extracomment>Heading in the filter menu: filter by the car&apos;s reason for recording</extracomment>
        <translation>Årsak</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Heading in the filter menu: filter by kind (Sentry, saved, recent driving)</extracomment>
        <translation>Type</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Fjern alle filtre</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>Button that starts ticking several events</extracomment>
        <translation>Velg</translation>
    </message>
    <message>
        <source>Select multiple events to keep or dismiss them all at once.</source>
        <translation>Velg flere hendelser for å beholde eller avvise alle samtidig.</translation>
    </message>
    <message>
        <source>Tick events to keep or dismiss them together.</source>
        <translation>Kryss av hendelser for å beholde eller avvise dem samlet.</translation>
    </message>
    <message>
        <source>Archive the selected events to your Vault.</source>
        <translation>Arkiver de valgte hendelsene i Hvelvet ditt.</translation>
    </message>
    <message>
        <source>Hide the selected events. This never deletes footage from your drive or Vault.</source>
        <translation>Skjul de valgte hendelsene. Dette sletter aldri opptak fra disken din eller Hvelvet.</translation>
    </message>
    <message>
        <source>Remove this filter.</source>
        <translation>Fjern dette filteret.</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Button that keeps the event in the Vault</extracomment>
        <translation>Behold</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Button that hides the event from the list</extracomment>
        <translation>Avvis</translation>
    </message>
    <message>
        <source>Just had an incident while driving?</source>
        <translation>Har det nettopp skjedd noe mens du kjørte?</translation>
    </message>
    <message>
        <source>It&apos;s likely in Recent Driving below. This folder overwrites itself as you keep driving, so keep a copy now if you need it.</source>
        <extracomment>&quot;Recent Driving&quot; is the list&apos;s own heading for the car&apos;s rolling recording</extracomment>
        <translation>Det ligger sannsynligvis under Nylig kjøring nedenfor. Denne mappen skriver over seg selv mens du kjører videre, så behold en kopi nå hvis du trenger den.</translation>
    </message>
    <message>
        <source>Keep Recent Driving Now</source>
        <translation>Behold Nylig kjøring nå</translation>
    </message>
    <message>
        <source>Copies all of Recent Driving to your Vault before it&apos;s overwritten. Your drive itself is never changed.</source>
        <translation>Kopierer hele Nylig kjøring til Hvelvet ditt før det blir overskrevet. Selve disken din blir aldri endret.</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>Button that plays Recent Driving</extracomment>
        <translation>Forhåndsvis</translation>
    </message>
    <message>
        <source>All statuses</source>
        <translation>Alle statuser</translation>
    </message>
    <message>
        <source>Any reason</source>
        <translation>Alle årsaker</translation>
    </message>
    <message>
        <source>Everything</source>
        <extracomment>Kind filter: no filter, every kind of event</extracomment>
        <translation>Alt</translation>
    </message>
</context>
<context>
    <name>IncidentReport</name>
    <message>
        <source>There is no folder at %1.</source>
        <translation>Det finnes ingen mappe i %1.</translation>
    </message>
    <message>
        <source>The report couldn&apos;t be written there.</source>
        <translation>Rapporten kunne ikke skrives der.</translation>
    </message>
    <message>
        <source>There is no room for the report on this computer.</source>
        <translation>Det er ikke plass til rapporten på denne datamaskinen.</translation>
    </message>
</context>
<context>
    <name>KeepSummary</name>
    <message>
        <source>Keeping stopped</source>
        <translation>Kopieringen til Hvelvet stoppet</translation>
    </message>
    <message numerus="yes">
        <source>%1 was disconnected before everything was kept: %n events kept and verified.</source>
        <translation>
            <numerusform>Før alt var beholdt, ble %1 koblet fra: %n hendelse beholdt og verifisert.</numerusform>
            <numerusform>Før alt var beholdt, ble %1 koblet fra: %n hendelser beholdt og verifisert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped keeping from %1: %n events kept and verified.</source>
        <translation>
            <numerusform>Stoppet kopieringen fra %1: %n hendelse beholdt og verifisert.</numerusform>
            <numerusform>Stoppet kopieringen fra %1: %n hendelser beholdt og verifisert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some footage couldn&apos;t be kept</source>
        <translation>Noen opptak kunne ikke beholdes</translation>
    </message>
    <message numerus="yes">
        <source>Kept %n new events from %1, but some files couldn&apos;t be kept. %2</source>
        <extracomment>%1 is the drive&apos;s name, %2 the first failed file&apos;s reason (a whole sentence)</extracomment>
        <translation>
            <numerusform>Beholdt %n ny hendelse fra %1, men noen filer kunne ikke beholdes. %2</numerusform>
            <numerusform>Beholdt %n nye hendelser fra %1, men noen filer kunne ikke beholdes. %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing new to keep</source>
        <translation>Ingenting nytt å beholde</translation>
    </message>
    <message>
        <source>Everything on %1 is already in your Vault.</source>
        <translation>Alt på %1 er allerede i Hvelvet ditt.</translation>
    </message>
    <message>
        <source>Footage kept</source>
        <translation>Opptak beholdt</translation>
    </message>
    <message numerus="yes">
        <source>Kept %n new events from %1 — %2, all verified</source>
        <extracomment>%1 is the drive&apos;s name, %2 a size such as &quot;1.2 GB&quot;</extracomment>
        <translation>
            <numerusform>Beholdt %n ny hendelse fra %1 — %2, alt verifisert</numerusform>
            <numerusform>Beholdt %n nye hendelser fra %1 — %2, alt verifisert</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeyService</name>
    <message>
        <source>Tesla couldn&apos;t confirm that your account owns the car that recorded this clip, so it can&apos;t be unlocked.</source>
        <translation>Tesla kunne ikke bekrefte at kontoen din eier bilen som tok opp dette klippet, så det kan ikke låses opp.</translation>
    </message>
    <message>
        <source>Your Tesla sign-in has expired. Sign in again to unlock this footage.</source>
        <translation>Tesla-påloggingen din har utløpt. Logg på igjen for å låse opp disse opptakene.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service couldn&apos;t be reached. Check your internet connection and try again.</source>
        <translation>Teslas tjeneste kunne ikke nås. Kontroller internettforbindelsen og prøv igjen.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service refused to unlock this clip. Try again later.</source>
        <translation>Teslas tjeneste nektet å låse opp dette klippet. Prøv igjen senere.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service gave an answer Keelhold couldn&apos;t read. Try again later.</source>
        <translation>Teslas tjeneste ga et svar Keelhold ikke kunne lese. Prøv igjen senere.</translation>
    </message>
    <message>
        <source>This clip was copied while the car was still writing it, so it can&apos;t be unlocked.</source>
        <translation>Dette klippet ble kopiert mens bilen fortsatt skrev det, så det kan ikke låses opp.</translation>
    </message>
    <message>
        <source>This clip&apos;s header is damaged, so it can&apos;t be unlocked.</source>
        <translation>Filhodet til dette klippet er skadet, så det kan ikke låses opp.</translation>
    </message>
    <message>
        <source>Sign in with your Tesla account to unlock this footage.</source>
        <translation>Logg på med Tesla-kontoen din for å låse opp disse opptakene.</translation>
    </message>
    <message>
        <source>The key Tesla&apos;s service sent doesn&apos;t open this clip, so it can&apos;t be unlocked.</source>
        <translation>Nøkkelen Teslas tjeneste sendte, åpner ikke dette klippet, så det kan ikke låses opp.</translation>
    </message>
    <message>
        <source>This clip couldn&apos;t be read from the drive, so it can&apos;t be unlocked.</source>
        <translation>Dette klippet kunne ikke leses fra disken, så det kan ikke låses opp.</translation>
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
        <translation>Spill av/pause</translation>
    </message>
    <message>
        <source>Skip 5s</source>
        <translation>Hopp 5 s</translation>
    </message>
    <message>
        <source>Frame step</source>
        <translation>Bilde for bilde</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameraer</translation>
    </message>
    <message>
        <source>All cameras</source>
        <translation>Alle kameraer</translation>
    </message>
    <message>
        <source>The moment</source>
        <extracomment>Jump to the moment the event happened</extracomment>
        <translation>Øyeblikket</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Hva skjedde</translation>
    </message>
    <message>
        <source>Fill window</source>
        <translation>Fyll vinduet</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Kjøredata</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Keep the event in the Vault</extracomment>
        <translation>Behold</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Hide the event from the list</extracomment>
        <translation>Avvis</translation>
    </message>
    <message>
        <source>Hide these hints. The full shortcut list stays in Help.</source>
        <translation>Skjul disse tipsene. Hele listen over hurtigtaster finnes i Hjelp.</translation>
    </message>
</context>
<context>
    <name>ListPaneResizeHandle</name>
    <message>
        <source>Resize event list</source>
        <translation>Endre størrelse på hendelseslisten</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hjelp</translation>
    </message>
    <message>
        <source>Copy Diagnostic Information</source>
        <translation>Kopier diagnoseinformasjon</translation>
    </message>
</context>
<context>
    <name>MapViewModel</name>
    <message>
        <source>Kept in your Vault</source>
        <translation>Beholdt i Hvelvet ditt</translation>
    </message>
    <message>
        <source>Driving yourself</source>
        <extracomment>The route key&apos;s colour for driving without Autopilot</extracomment>
        <translation>Du kjører selv</translation>
    </message>
    <message>
        <source>Map tiles aren&apos;t available — check your internet connection.</source>
        <translation>Kartfliser er ikke tilgjengelige — kontroller internettforbindelsen.</translation>
    </message>
</context>
<context>
    <name>MockEngine</name>
    <message>
        <source>Reading your drive…</source>
        <translation>Leser disken din…</translation>
    </message>
    <message>
        <source>Reading Sentry events…</source>
        <translation>Leser Vaktmodus-hendelser…</translation>
    </message>
    <message>
        <source>Reading saved clips…</source>
        <translation>Leser lagrede klipp…</translation>
    </message>
    <message>
        <source>Reading recent driving…</source>
        <translation>Leser nylig kjøring…</translation>
    </message>
    <message>
        <source>Almost done…</source>
        <translation>Snart ferdig…</translation>
    </message>
</context>
<context>
    <name>Mp4Writer</name>
    <message>
        <source>There is already a file at “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>Det finnes allerede en fil i «%1».</translation>
    </message>
    <message>
        <source>The movie file “%1” couldn&apos;t be created: %2.</source>
        <extracomment>%1 is the movie&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>Filmfilen «%1» kunne ikke opprettes: %2.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be started: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>Filmen kunne ikke startes: %1.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be written: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>Filmen kunne ikke skrives: %1.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be finished: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>Filmen kunne ikke fullføres: %1.</translation>
    </message>
</context>
<context>
    <name>OnboardingTexts</name>
    <message>
        <source>Loads a few short made-up clips so you can look around before connecting your own Tesla.</source>
        <translation>Laster inn noen få korte, oppdiktede klipp, så du kan se deg rundt før du kobler til din egen Tesla.</translation>
    </message>
    <message>
        <source>Welcome to Keelhold</source>
        <translation>Velkommen til Keelhold</translation>
    </message>
    <message>
        <source>Your Tesla is always recording — Sentry Mode, saved clips, and your recent drives. This app reads the USB drive from your car&apos;s glovebox, shows you what it found in plain English, and keeps a permanent, verified copy on your %1 so you never lose footage that matters.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Teslaen din tar alltid opp — Vaktmodus, lagrede klipp og de siste turene dine. Denne appen leser USB-disken fra hanskerommet i bilen, viser deg med enkle ord hva den fant, og beholder en permanent, verifisert kopi på %1 din, så du aldri mister opptak som betyr noe.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <extracomment>Button on the first screen of the setup</extracomment>
        <translation>Kom i gang</translation>
    </message>
    <message>
        <source>Just exploring? Try sample footage</source>
        <translation>Vil du bare se deg rundt? Prøv eksempelopptak</translation>
    </message>
    <message>
        <source>Show Me Your Tesla Drive</source>
        <translation>Vis meg Tesla-disken din</translation>
    </message>
    <message>
        <source>Plug in the USB drive from your car&apos;s glovebox, then pick it below. We only look at the parts of the drive you choose to show us.</source>
        <translation>Koble til USB-disken fra hanskerommet i bilen, og velg den nedenfor. Vi ser bare på de delene av disken du velger å vise oss.</translation>
    </message>
    <message>
        <source>Connected drives appear here the moment %1 mounts them. Pick yours and confirm with one click — we&apos;ll check for Tesla footage right after.</source>
        <extracomment>%1 is the operating system as a sentence&apos;s subject, e.g. &quot;your system&quot;</extracomment>
        <translation>Tilkoblede disker vises her så snart %1 monterer dem. Velg din, og bekreft med ett klikk — vi ser etter Tesla-opptak rett etterpå.</translation>
    </message>
    <message>
        <source>No drive detected yet. Insert your Tesla&apos;s USB drive, or choose it manually below.</source>
        <translation>Ingen disk er funnet ennå. Sett inn Teslaens USB-disk, eller velg den manuelt nedenfor.</translation>
    </message>
    <message>
        <source>Choose a Drive or Folder Manually…</source>
        <translation>Velg disk eller mappe manuelt…</translation>
    </message>
    <message>
        <source>Opens a file picker starting at %1, where connected USB drives appear.</source>
        <extracomment>%1 is a folder path, e.g. /media/alex</extracomment>
        <translation>Åpner en filvelger i %1, der tilkoblede USB-disker vises.</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>Button: back to the previous step of the setup</extracomment>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Select Your Tesla&apos;s USB Drive</source>
        <extracomment>Title of the folder dialog that picks the car&apos;s drive</extracomment>
        <translation>Velg Teslaens USB-disk</translation>
    </message>
    <message>
        <source>Choose the drive itself, or its TeslaCam folder. Look for a plain external drive icon — Tesla drives usually show up as &quot;UNTITLED&quot; or similar.</source>
        <translation>Velg selve disken, eller TeslaCam-mappen på den. Se etter et vanlig ikon for ekstern disk — Tesla-disker vises vanligvis som «UNTITLED» eller lignende.</translation>
    </message>
    <message>
        <source>Use This Drive</source>
        <extracomment>Accept button of the folder dialog that picks the car&apos;s drive</extracomment>
        <translation>Bruk denne disken</translation>
    </message>
    <message>
        <source>Reading your drive…</source>
        <translation>Leser disken din…</translation>
    </message>
    <message>
        <source>This usually takes a few seconds.</source>
        <translation>Dette tar vanligvis noen sekunder.</translation>
    </message>
    <message>
        <source>Browse While It Finishes</source>
        <translation>Bla mens den blir ferdig</translation>
    </message>
    <message>
        <source>Start Browsing</source>
        <translation>Begynn å bla</translation>
    </message>
    <message>
        <source>Recording without encryption</source>
        <translation>Opptak uten kryptering</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt new recordings so only your Tesla account can view them. If you&apos;d like footage to play here (and in any app), switch it off in your car — it takes about 30 seconds, and everything already recorded stays exactly as it is.</source>
        <translation>Nyere Tesla-programvare kan kryptere nye opptak slik at bare Tesla-kontoen din kan se dem. Hvis du vil at opptakene skal spilles av her (og i alle apper), kan du slå det av i bilen — det tar omtrent 30 sekunder, og alt som allerede er tatt opp, forblir nøyaktig som det er.</translation>
    </message>
    <message>
        <source>Open %1</source>
        <extracomment>Button; %1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Åpne %1</translation>
    </message>
    <message>
        <source>Tesla&apos;s own viewer for encrypted clips — decryption happens in your browser; footage never leaves your device.</source>
        <translation>Teslas egen visning for krypterte klipp — dekrypteringen skjer i nettleseren din; opptakene forlater aldri enheten din.</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the encryption guide</extracomment>
        <translation>Ferdig</translation>
    </message>
    <message numerus="yes">
        <source>Found %n events so far, across %1 clips.</source>
        <translation>
            <numerusform>Fant %n hendelse så langt, fordelt på %1 klipp.</numerusform>
            <numerusform>Fant %n hendelser så langt, fordelt på %1 klipp.</numerusform>
        </translation>
    </message>
    <message>
        <source>Is this your Tesla drive? — %1</source>
        <extracomment>%1 is the drive&apos;s name, e.g. UNTITLED</extracomment>
        <translation>Er dette Tesla-disken din? — %1</translation>
    </message>
    <message>
        <source>In your car, tap Controls</source>
        <translation>Trykk på Kontroller i bilen</translation>
    </message>
    <message>
        <source>The car icon at the bottom-left of the touchscreen.</source>
        <translation>Bilikonet nede til venstre på berøringsskjermen.</translation>
    </message>
    <message>
        <source>Tap Safety</source>
        <extracomment>The car&apos;s menu entry, as named on its touchscreen</extracomment>
        <translation>Trykk på Sikkerhet</translation>
    </message>
    <message>
        <source>In the menu on the left.</source>
        <translation>I menyen til venstre.</translation>
    </message>
    <message>
        <source>Switch off “Encrypt Dashcam Recordings”</source>
        <extracomment>The quoted words are the car&apos;s setting, as named on its touchscreen</extracomment>
        <translation>Slå av «Krypter dashcam-opptak»</translation>
    </message>
    <message>
        <source>If you don&apos;t see it, your car&apos;s software doesn&apos;t encrypt yet — nothing to do.</source>
        <translation>Hvis du ikke ser den, krypterer ikke bilens programvare ennå — du trenger ikke gjøre noe.</translation>
    </message>
    <message>
        <source>Done</source>
        <comment>last step</comment>
        <extracomment>The last step of the guide: finished</extracomment>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>New footage records unencrypted and plays right here.</source>
        <translation>Nye opptak tas opp ukryptert og spilles av rett her.</translation>
    </message>
    <message>
        <source>Clips recorded while encryption was on stay encrypted — sign in at %1 to watch them anytime. Keelhold still backs them up byte-for-byte, so nothing is ever lost.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Klipp som ble tatt opp mens krypteringen var på, forblir kryptert — logg på %1 for å se dem når som helst. Keelhold tar fortsatt sikkerhetskopi av dem byte for byte, så ingenting går tapt.</translation>
    </message>
    <message>
        <source>Prefer to keep encryption on? That&apos;s a fair choice — it protects footage if the drive itself is stolen. This app will still keep verified copies of everything.</source>
        <translation>Vil du heller ha kryptering på? Det er et fornuftig valg — det beskytter opptakene hvis selve disken blir stjålet. Denne appen beholder fortsatt verifiserte kopier av alt.</translation>
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
        <translation>%1 — ingen opptak</translation>
    </message>
</context>
<context>
    <name>PlainReason</name>
    <message>
        <source>Something came close</source>
        <translation>Noe kom nær</translation>
    </message>
    <message>
        <source>Came close</source>
        <extracomment>Short label of a Sentry event where something came close to the car</extracomment>
        <translation>Kom nær</translation>
    </message>
    <message>
        <source>Sentry Mode noticed a person or object near your parked car.</source>
        <translation>Vaktmodus oppdaget en person eller gjenstand nær den parkerte bilen din.</translation>
    </message>
    <message>
        <source>Bump or impact detected</source>
        <translation>Støt eller sammenstøt oppdaget</translation>
    </message>
    <message>
        <source>Impact</source>
        <extracomment>Short label of an event where the car felt a bump</extracomment>
        <translation>Støt</translation>
    </message>
    <message>
        <source>The car felt a physical bump or impact while parked.</source>
        <translation>Bilen kjente et fysisk støt eller sammenstøt mens den sto parkert.</translation>
    </message>
    <message>
        <source>You honked</source>
        <translation>Du tutet</translation>
    </message>
    <message>
        <source>Honk save</source>
        <extracomment>Short label of footage the car saved because the driver honked</extracomment>
        <translation>Tuting</translation>
    </message>
    <message>
        <source>Honking saves the last few minutes of footage — a quick way to keep a moment.</source>
        <translation>Når du tuter, lagres de siste minuttene med opptak — en rask måte å ta vare på et øyeblikk.</translation>
    </message>
    <message>
        <source>You saved this</source>
        <translation>Du lagret dette</translation>
    </message>
    <message>
        <source>You saved</source>
        <extracomment>Short label of footage the driver saved with the dashcam button</extracomment>
        <translation>Du lagret</translation>
    </message>
    <message>
        <source>You tapped the dashcam save button, so the car kept this footage.</source>
        <translation>Du trykket på lagringsknappen for dashcam, så bilen lagret disse opptakene.</translation>
    </message>
    <message>
        <source>Panic alarm</source>
        <translation>Panikkalarm</translation>
    </message>
    <message>
        <source>Alarm</source>
        <extracomment>Short label of an event where the car&apos;s alarm went off</extracomment>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>The car&apos;s alarm was triggered.</source>
        <translation>Bilens alarm ble utløst.</translation>
    </message>
    <message>
        <source>Recent driving</source>
        <translation>Nylig kjøring</translation>
    </message>
    <message>
        <source>Driving</source>
        <extracomment>Short label of the car&apos;s rolling recording while driving</extracomment>
        <translation>Kjøring</translation>
    </message>
    <message>
        <source>The rolling last hour of driving. The car reuses this space continuously.</source>
        <translation>Den løpende siste timen med kjøring. Bilen gjenbruker denne plassen hele tiden.</translation>
    </message>
    <message>
        <source>Sentry event</source>
        <translation>Vaktmodus-hendelse</translation>
    </message>
    <message>
        <source>Sentry</source>
        <extracomment>Short label of a Sentry event of a kind the app does not know</extracomment>
        <translation>Vaktmodus</translation>
    </message>
    <message>
        <source>Your car flagged this moment. Newer software sometimes adds new event types.</source>
        <translation>Bilen din markerte dette øyeblikket. Nyere programvare legger noen ganger til nye hendelsestyper.</translation>
    </message>
</context>
<context>
    <name>PlatformWords</name>
    <message>
        <source>a disk utility such as Disks</source>
        <extracomment>Completes &quot;reformatting (in %1, after backing up)&quot;; Disks is the GNOME disk tool</extracomment>
        <translation>et diskverktøy som Disker</translation>
    </message>
    <message>
        <source>computer</source>
        <extracomment>The user&apos;s machine, as in &quot;on this %1&quot; or &quot;on your %1&quot;</extracomment>
        <translation>datamaskinen</translation>
    </message>
    <message>
        <source>your system</source>
        <extracomment>The operating system as the subject of a sentence, lower case</extracomment>
        <translation>systemet ditt</translation>
    </message>
</context>
<context>
    <name>PlayerDrivingData</name>
    <message>
        <source>No driving data in this event</source>
        <translation>Ingen kjøredata i denne hendelsen</translation>
    </message>
    <message>
        <source>%1 %</source>
        <extracomment>How far the accelerator is pressed, as a percentage: &quot;42 %&quot;</extracomment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Driving data</source>
        <extracomment>Button that shows or hides the driving data over the video</extracomment>
        <translation>Kjøredata</translation>
    </message>
    <message>
        <source>Show or hide the car&apos;s speed, pedals, steering and Autopilot state over the video. (T)</source>
        <translation>Vis eller skjul bilens hastighet, pedaler, styring og Autopilot-tilstand over videoen. (T)</translation>
    </message>
    <message>
        <source>This event&apos;s footage carries no driving data from the car.</source>
        <translation>Opptakene i denne hendelsen har ingen kjøredata fra bilen.</translation>
    </message>
    <message>
        <source>Click to switch between km/h and mph.</source>
        <translation>Klikk for å bytte mellom km/h og mph.</translation>
    </message>
    <message>
        <source>BRAKE</source>
        <extracomment>Lamp over the video that is lit while the brake pedal is pressed; keep it short</extracomment>
        <translation>BREMS</translation>
    </message>
    <message>
        <source>Lit while the brake pedal is pressed.</source>
        <translation>Lyser mens bremsepedalen er trykket inn.</translation>
    </message>
    <message>
        <source>How far the accelerator pedal is pressed.</source>
        <translation>Hvor langt gasspedalen er trykket inn.</translation>
    </message>
    <message>
        <source>Steering wheel angle.</source>
        <translation>Rattvinkel.</translation>
    </message>
    <message>
        <source>Direction of travel.</source>
        <translation>Kjøreretning.</translation>
    </message>
    <message>
        <source>The car&apos;s speed over the event; red marks hard braking. Click to jump there.</source>
        <translation>Bilens hastighet gjennom hendelsen; rødt markerer hard bremsing. Klikk for å hoppe dit.</translation>
    </message>
</context>
<context>
    <name>PlayerLayout</name>
    <message>
        <source>%1 — playing at %2, this computer can&apos;t keep up</source>
        <extracomment>%1 is the chosen playback speed, %2 the speed it really plays at (e.g. 1.6×)</extracomment>
        <translation>%1 — spilles av med %2, denne datamaskinen klarer ikke å holde følge</translation>
    </message>
    <message>
        <source>The moment it happened — %1 into the event.</source>
        <extracomment>%1 is a time into the event, e.g. 0:42</extracomment>
        <translation>Øyeblikket det skjedde — %1 inn i hendelsen.</translation>
    </message>
    <message>
        <source>%1 — currently enlarged.</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>%1 — forstørret nå.</translation>
    </message>
    <message>
        <source>Switch to the %1 camera. (Keys 1–7 jump between cameras; 0 shows all.)</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>Bytt til kameraet %1. (Tastene 1–7 hopper mellom kameraer; 0 viser alle.)</translation>
    </message>
    <message>
        <source>Click to enlarge the %1 camera. Click again to show all cameras.</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>Klikk for å forstørre kameraet %1. Klikk igjen for å vise alle kameraene.</translation>
    </message>
    <message>
        <source>Location unknown</source>
        <translation>Ukjent sted</translation>
    </message>
    <message>
        <source>Select an event</source>
        <translation>Velg en hendelse</translation>
    </message>
    <message>
        <source>Choose an archived event on the left to watch it — everything here works exactly like the Drive tab, even with no Tesla drive connected.</source>
        <extracomment>&quot;Drive&quot; is the app&apos;s own tab; translate it as there</extracomment>
        <translation>Velg en arkivert hendelse til venstre for å se den — alt her fungerer akkurat som i fanen Disk, selv uten at en Tesla-disk er koblet til.</translation>
    </message>
    <message>
        <source>Choose something from the list on the left to watch every available camera angle, synced on one timeline.</source>
        <translation>Velg noe fra listen til venstre for å se alle tilgjengelige kameravinkler, synkronisert på én tidslinje.</translation>
    </message>
    <message>
        <source>Just exploring? Try sample footage</source>
        <translation>Vil du bare se deg rundt? Prøv eksempelopptak</translation>
    </message>
</context>
<context>
    <name>PlayerMetadataBar</name>
    <message>
        <source>Reason: %1</source>
        <extracomment>Screen reader name of the reason chip; %1 is the car&apos;s reason, e.g. Sentry Mode detection</extracomment>
        <translation>Årsak: %1</translation>
    </message>
</context>
<context>
    <name>PlayerMoments</name>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is a hard moment (&quot;Hard braking&quot;), %2 a time into the event</extracomment>
        <translation>%1 ved %2</translation>
    </message>
    <message>
        <source>What happened</source>
        <extracomment>Button that jumps to the next thing that happened in the event</extracomment>
        <translation>Hva skjedde</translation>
    </message>
    <message>
        <source>Jump to the next thing that happened: someone moving in front of a camera, or a hard moment of the drive (N)</source>
        <translation>Hopp til neste ting som skjedde: noen som beveger seg foran et kamera, eller et brått øyeblikk i kjøringen (N)</translation>
    </message>
    <message>
        <source>Back to the thing that happened before (Shift+N)</source>
        <translation>Tilbake til det som skjedde før (Shift+N)</translation>
    </message>
</context>
<context>
    <name>ReportChart</name>
    <message>
        <source>Speed (%1)</source>
        <extracomment>Title of the chart&apos;s speed panel; %1 is the unit, km/h or mph</extracomment>
        <translation>Hastighet (%1)</translation>
    </message>
    <message>
        <source>Accelerator (%)</source>
        <extracomment>Title of the chart&apos;s accelerator pedal panel, in percent pressed</extracomment>
        <translation>Gasspedal (%)</translation>
    </message>
    <message>
        <source>Steering (°)</source>
        <extracomment>Title of the chart&apos;s steering wheel panel, in degrees</extracomment>
        <translation>Styring (°)</translation>
    </message>
    <message>
        <source>Acceleration (m/s²)</source>
        <extracomment>Title of the chart&apos;s acceleration panel</extracomment>
        <translation>Akselerasjon (m/s²)</translation>
    </message>
    <message>
        <source>moment</source>
        <extracomment>On the chart&apos;s time axis, under the moment the car triggered the recording</extracomment>
        <translation>øyeblikket</translation>
    </message>
    <message>
        <source>start</source>
        <translation>start</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>On the chart&apos;s time axis: %1 is seconds from the moment, signed (+5, -5)</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Brake pressed</source>
        <extracomment>In the chart&apos;s legend, beside the colour of the brake band</extracomment>
        <translation>Brems trykket inn</translation>
    </message>
    <message>
        <source>Acceleration x</source>
        <extracomment>In the chart&apos;s legend: acceleration along the car&apos;s x axis</extracomment>
        <translation>Akselerasjon x</translation>
    </message>
    <message>
        <source>Acceleration y</source>
        <extracomment>In the chart&apos;s legend: acceleration along the car&apos;s y axis</extracomment>
        <translation>Akselerasjon y</translation>
    </message>
</context>
<context>
    <name>ReportContent</name>
    <message>
        <source>The drive didn&apos;t answer while this file was read.</source>
        <translation>Disken svarte ikke mens denne filen ble lest.</translation>
    </message>
    <message>
        <source>Locked — unlock to include this camera</source>
        <extracomment>Stands in for a camera&apos;s picture when its footage is encrypted and no key is held</extracomment>
        <translation>Låst — lås opp for å ta med dette kameraet</translation>
    </message>
    <message>
        <source>This camera&apos;s picture at the moment couldn&apos;t be read.</source>
        <translation>Dette kameraets bilde i øyeblikket kunne ikke leses.</translation>
    </message>
    <message>
        <source>Plays</source>
        <extracomment>A clip&apos;s condition in the report&apos;s list of files: nothing wrong with it</extracomment>
        <translation>Kan spilles av</translation>
    </message>
    <message>
        <source>Empty — the car wrote nothing into it</source>
        <translation>Tom — bilen skrev ingenting i den</translation>
    </message>
    <message>
        <source>Cut off — the car didn&apos;t finish writing it</source>
        <translation>Avbrutt — bilen skrev den ikke ferdig</translation>
    </message>
    <message>
        <source>Damaged — it can&apos;t be played</source>
        <translation>Skadet — den kan ikke spilles av</translation>
    </message>
    <message>
        <source>The drive didn&apos;t answer when it was read</source>
        <translation>Disken svarte ikke da den ble lest</translation>
    </message>
    <message>
        <source>Encrypted by your car</source>
        <translation>Kryptert av bilen din</translation>
    </message>
    <message>
        <source>Not checked</source>
        <extracomment>A clip&apos;s condition in the report&apos;s list of files: it was not looked at</extracomment>
        <translation>Ikke kontrollert</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Denne filen kunne ikke leses.</translation>
    </message>
</context>
<context>
    <name>ReportDocument</name>
    <message>
        <source>Encrypted by your car</source>
        <translation>Kryptert av bilen din</translation>
    </message>
    <message>
        <source>Incident report: %1</source>
        <extracomment>The report&apos;s title; %1 is why the car recorded, such as &quot;Sentry event&quot;</extracomment>
        <translation>Hendelsesrapport: %1</translation>
    </message>
    <message>
        <source>Incident report: %1 — %2</source>
        <extracomment>The report&apos;s title; %1 is the kind of recording, such as &quot;Saved&quot;, %2 why the car recorded</extracomment>
        <translation>Hendelsesrapport: %1 — %2</translation>
    </message>
    <message>
        <source>The moment</source>
        <extracomment>Label beside the date and time the car triggered the recording</extracomment>
        <translation>Øyeblikket</translation>
    </message>
    <message>
        <source>Recording starts</source>
        <translation>Opptaket starter</translation>
    </message>
    <message>
        <source>(the car&apos;s clock)</source>
        <extracomment>After the date and time of the moment: which clock says so</extracomment>
        <translation>(bilens klokke)</translation>
    </message>
    <message>
        <source>By the GPS clock</source>
        <extracomment>Label beside the same moment by the GPS clock, in UTC</extracomment>
        <translation>Etter GPS-klokken</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Hva skjedde</translation>
    </message>
    <message>
        <source>Place</source>
        <extracomment>Label beside the street and city where it happened</extracomment>
        <translation>Sted</translation>
    </message>
    <message>
        <source>The car didn&apos;t name the place.</source>
        <translation>Bilen oppga ikke stedet.</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Koordinater</translation>
    </message>
    <message>
        <source>Recorded by</source>
        <extracomment>Label beside how many cameras recorded the event</extracomment>
        <translation>Tatt opp av</translation>
    </message>
    <message>
        <source>The car&apos;s clock and the GPS clock differ by more than a time zone can explain: the car&apos;s clock was probably set wrong. The GPS time is the more reliable one.</source>
        <translation>Bilens klokke og GPS-klokken avviker med mer enn en tidssone kan forklare: bilens klokke var sannsynligvis stilt feil. GPS-tiden er den mest pålitelige.</translation>
    </message>
    <message>
        <source>The car encrypted this footage. The files are listed exactly as the car wrote them.</source>
        <translation>Bilen krypterte disse opptakene. Filene er oppført nøyaktig slik bilen skrev dem.</translation>
    </message>
    <message>
        <source>Where, and the route driven</source>
        <extracomment>Heading over the map of the spot and the route</extracomment>
        <translation>Hvor, og ruten som ble kjørt</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Hvor</translation>
    </message>
    <message>
        <source>The car didn&apos;t record where this happened, so there is no map.</source>
        <translation>Bilen registrerte ikke hvor dette skjedde, så det finnes ikke noe kart.</translation>
    </message>
    <message>
        <source>Each camera at the moment</source>
        <translation>Hvert kamera i øyeblikket</translation>
    </message>
    <message>
        <source>Every picture is the camera&apos;s own frame at the moment, at its full size.</source>
        <translation>Hvert bilde er kameraets eget bilde i øyeblikket, i full størrelse.</translation>
    </message>
    <message>
        <source>Driving data</source>
        <extracomment>Heading over the chart of speed, pedals and steering</extracomment>
        <translation>Kjøredata</translation>
    </message>
    <message>
        <source>From 10 seconds before to 10 seconds after the moment, as the car recorded it with each frame.</source>
        <translation>Fra 10 sekunder før til 10 sekunder etter øyeblikket, slik bilen registrerte det med hvert bilde.</translation>
    </message>
    <message>
        <source>The first 20 seconds of the recording, as the car recorded it with each frame.</source>
        <translation>De første 20 sekundene av opptaket, slik bilen registrerte det med hvert bilde.</translation>
    </message>
    <message>
        <source>These clips carry no driving data: the car records it only with newer software.</source>
        <translation>Disse klippene har ingen kjøredata: bilen registrerer det bare med nyere programvare.</translation>
    </message>
    <message>
        <source>At the moment</source>
        <extracomment>Heading over the car&apos;s readings at the moment</extracomment>
        <translation>I øyeblikket</translation>
    </message>
    <message>
        <source>At the start</source>
        <translation>Ved starten</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>Label beside the car&apos;s speed</extracomment>
        <translation>Hastighet</translation>
    </message>
    <message>
        <source>Gear</source>
        <extracomment>Label beside the gear (P, R, N, D)</extracomment>
        <translation>Gir</translation>
    </message>
    <message>
        <source>Brake</source>
        <extracomment>Label beside whether the brake pedal was pressed</extracomment>
        <translation>Brems</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Trykket inn</translation>
    </message>
    <message>
        <source>Not pressed</source>
        <translation>Ikke trykket inn</translation>
    </message>
    <message>
        <source>Accelerator</source>
        <extracomment>Label beside how far the accelerator pedal was pressed</extracomment>
        <translation>Gasspedal</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>How far the accelerator pedal was pressed; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Steering</source>
        <extracomment>Label beside the steering wheel&apos;s angle</extracomment>
        <translation>Styring</translation>
    </message>
    <message>
        <source>Driver assistance</source>
        <extracomment>Label beside Autopilot&apos;s state (Autosteer, Traffic-Aware Cruise Control…)</extracomment>
        <translation>Førerassistanse</translation>
    </message>
    <message>
        <source>Turn signal</source>
        <extracomment>Label beside the turn signal&apos;s state</extracomment>
        <translation>Blinklys</translation>
    </message>
    <message>
        <source>Hazard lights</source>
        <translation>Nødblink</translation>
    </message>
    <message>
        <source>Heading</source>
        <extracomment>Label beside the direction the car was heading (a compass bearing)</extracomment>
        <translation>Kurs</translation>
    </message>
    <message>
        <source>Position</source>
        <extracomment>Label beside the car&apos;s GPS coordinates</extracomment>
        <translation>Posisjon</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <extracomment>Label beside the car&apos;s acceleration</extracomment>
        <translation>Akselerasjon</translation>
    </message>
    <message>
        <source>x %1, y %2, z %3 m/s²</source>
        <extracomment>Acceleration along the car&apos;s three axes, in metres per second squared</extracomment>
        <translation>x %1, y %2, z %3 m/s²</translation>
    </message>
    <message>
        <source>Hard moments of the drive</source>
        <extracomment>Heading over the list of hard braking, swerves and the like</extracomment>
        <translation>Brå øyeblikk i kjøringen</translation>
    </message>
    <message>
        <source>The driving data shows no hard braking, swerve, sudden stop or Autopilot switching off in this event.</source>
        <translation>Kjøredataene viser ingen hard bremsing, unnamanøver, plutselig stans eller Autopilot som slår seg av i denne hendelsen.</translation>
    </message>
    <message>
        <source>%1 (%2 in)</source>
        <extracomment>When a hard moment happened: %1 the car&apos;s clock, %2 how far into the event (m:ss)</extracomment>
        <translation>%1 (%2 inn)</translation>
    </message>
    <message>
        <source>Found from the car&apos;s own records: hard braking is the speed falling at 0.4 g or more; a swerve is the wheel turned at 200°/s or more, or a sideways pull of 0.5 g.</source>
        <translation>Funnet ut fra bilens egne registreringer: hard bremsing er at hastigheten faller med 0,4 g eller mer; en unnamanøver er at rattet dreies med 200°/s eller mer, eller en sidelengs kraft på 0,5 g.</translation>
    </message>
    <message>
        <source>The original files</source>
        <extracomment>Heading over the list of every file the car recorded for the event</extracomment>
        <translation>Originalfilene</translation>
    </message>
    <message>
        <source>Every file the car recorded for this event. Each SHA-256 was computed from the file itself as this report was made.</source>
        <translation>Hver fil bilen tok opp for denne hendelsen. Hver SHA-256-verdi ble beregnet fra selve filen da denne rapporten ble laget.</translation>
    </message>
    <message>
        <source>On the car&apos;s drive, in %1</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>På bilens disk, i %1</translation>
    </message>
    <message>
        <source>In the Vault, in %1. Last verified %2.</source>
        <extracomment>%1 is a folder, %2 a date and time</extracomment>
        <translation>I Hvelvet, i %1. Sist verifisert %2.</translation>
    </message>
    <message>
        <source>In the Vault, in %1. Not verified again since it was kept.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>I Hvelvet, i %1. Ikke verifisert på nytt siden den ble beholdt.</translation>
    </message>
    <message>
        <source>Every file matches the Vault&apos;s record of it, made when it was kept.</source>
        <translation>Hver fil stemmer med Hvelvets registrering av den, laget da den ble beholdt.</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Column heading: the file&apos;s name</extracomment>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Camera</source>
        <extracomment>Column heading: which camera recorded the file</extracomment>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Starts</source>
        <extracomment>Column heading: the time the file&apos;s footage starts</extracomment>
        <translation>Starter</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>Column heading: how long the file&apos;s footage runs (m:ss)</extracomment>
        <translation>Lengde</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Column heading: the file&apos;s size</extracomment>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Condition</source>
        <extracomment>Column heading: whether the file plays, or how it is damaged</extracomment>
        <translation>Tilstand</translation>
    </message>
    <message>
        <source>This differs from the Vault&apos;s record: the file is not the one that was kept.</source>
        <translation>Dette avviker fra Hvelvets registrering: filen er ikke den som ble beholdt.</translation>
    </message>
    <message>
        <source>No files were found for this event.</source>
        <translation>Ingen filer ble funnet for denne hendelsen.</translation>
    </message>
    <message>
        <source>How to check the files</source>
        <translation>Slik kontrollerer du filene</translation>
    </message>
    <message>
        <source>Anyone can check that a file is exactly the one listed here by computing its SHA-256 again and comparing it with the one above. With the evidence package unpacked, run this in its folder; every line must end in OK:</source>
        <extracomment>Followed by the command to run; OK is what the command prints, so it stays as it is</extracomment>
        <translation>Hvem som helst kan kontrollere at en fil er nøyaktig den som er oppført her, ved å beregne SHA-256-verdien på nytt og sammenligne den med den ovenfor. Når bevispakken er pakket ut, kjører du dette i mappen; hver linje må slutte med OK:</translation>
    </message>
    <message>
        <source>Made by Keelhold %1 on %2 (this computer&apos;s clock). Keelhold only reads the car&apos;s drive: nothing on it was changed.</source>
        <extracomment>At the report&apos;s end: %1 is Keelhold&apos;s version, %2 the date and time the report was made</extracomment>
        <translation>Laget av Keelhold %1 den %2 (denne datamaskinens klokke). Keelhold leser bare bilens disk: ingenting på den ble endret.</translation>
    </message>
    <message>
        <source>The report couldn&apos;t be written there.</source>
        <translation>Rapporten kunne ikke skrives der.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <extracomment>At the foot of every page of the report</extracomment>
        <translation>Side %1 av %2</translation>
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
            <numerusform>%n kamera</numerusform>
            <numerusform>%n kameraer</numerusform>
        </translation>
    </message>
    <message>
        <source>Off</source>
        <comment>driver assistance</comment>
        <translation>Av</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>turn signal</comment>
        <translation>Venstre</translation>
    </message>
    <message>
        <source>Right</source>
        <comment>turn signal</comment>
        <translation>Høyre</translation>
    </message>
    <message>
        <source>Off</source>
        <comment>turn signal</comment>
        <translation>Av</translation>
    </message>
    <message>
        <source>— %1, slowing at %2 g</source>
        <extracomment>After a hard moment&apos;s name: %1 the speed with its unit, %2 the deceleration in g (9.81 m/s²)</extracomment>
        <translation>— %1, farten falt med %2 g</translation>
    </message>
    <message>
        <source>— %1, steering turned at %2°/s</source>
        <extracomment>After a hard moment&apos;s name: %1 the speed with its unit, %2 how fast the wheel turned, in degrees a second</extracomment>
        <translation>— %1, rattet dreid med %2°/s</translation>
    </message>
    <message>
        <source>On a Mac: %1. On Windows: %2, one file at a time.</source>
        <extracomment>%1 and %2 are commands, which stay as they are</extracomment>
        <translation>På en Mac: %1. På Windows: %2, én fil om gangen.</translation>
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
        <translation>Kartdata © OpenStreetMap-bidragsytere</translation>
    </message>
</context>
<context>
    <name>SignInLink</name>
    <message>
        <source>Tesla didn&apos;t accept this sign-in: it may have expired or been used already. Sign in again.</source>
        <translation>Tesla godtok ikke denne påloggingen: den kan ha utløpt eller allerede være brukt. Logg på igjen.</translation>
    </message>
    <message>
        <source>That isn&apos;t the address the browser landed on after signing in: it starts with %1.</source>
        <extracomment>%1 is the web address the browser should have landed on</extracomment>
        <translation>Det er ikke adressen nettleseren havnet på etter påloggingen: den begynner med %1.</translation>
    </message>
    <message>
        <source>Tesla didn&apos;t complete the sign-in. Try again.</source>
        <translation>Tesla fullførte ikke påloggingen. Prøv igjen.</translation>
    </message>
    <message>
        <source>That address belongs to another sign-in. Use the sign-in link Keelhold opened last.</source>
        <translation>Den adressen hører til en annen pålogging. Bruk påloggingslenken Keelhold åpnet sist.</translation>
    </message>
    <message>
        <source>That address holds no sign-in code. Copy the whole address from the browser.</source>
        <translation>Den adressen inneholder ingen påloggingskode. Kopier hele adressen fra nettleseren.</translation>
    </message>
</context>
<context>
    <name>SyncPlayerController</name>
    <message>
        <source>Reading this camera from the drive…</source>
        <translation>Leser dette kameraet fra disken…</translation>
    </message>
    <message>
        <source>Finding the exact frame…</source>
        <extracomment>Shown on the timeline while a seek shows a nearby frame first</extracomment>
        <translation>Finner det nøyaktige bildet…</translation>
    </message>
</context>
<context>
    <name>TelemetryRecord</name>
    <message>
        <source>Self-Driving</source>
        <extracomment>Tesla&apos;s name of a driver assistance (Full Self-Driving)</extracomment>
        <translation>Selvkjøring</translation>
    </message>
    <message>
        <source>Autosteer</source>
        <extracomment>Tesla&apos;s name of a driver assistance</extracomment>
        <translation>Autostyring</translation>
    </message>
    <message>
        <source>Traffic-Aware Cruise Control</source>
        <extracomment>Tesla&apos;s name of a driver assistance</extracomment>
        <translation>Trafikkavhengig cruisekontroll</translation>
    </message>
</context>
<context>
    <name>TeslaCamParser</name>
    <message>
        <source>The TeslaCam folder could not be found.</source>
        <translation>TeslaCam-mappen ble ikke funnet.</translation>
    </message>
    <message>
        <source>The selected item is not a folder.</source>
        <translation>Det valgte elementet er ikke en mappe.</translation>
    </message>
    <message>
        <source>The TeslaCam folder could not be read.</source>
        <translation>TeslaCam-mappen kunne ikke leses.</translation>
    </message>
    <message>
        <source>Keelhold isn&apos;t allowed to read the folder “%1”. Check the folder&apos;s permissions and try again.</source>
        <extracomment>%1 is the folder&apos;s full path</extracomment>
        <translation>Keelhold har ikke tillatelse til å lese mappen «%1». Kontroller tillatelsene for mappen, og prøv igjen.</translation>
    </message>
    <message>
        <source>Reading your Tesla drive…</source>
        <translation>Leser Tesla-disken din…</translation>
    </message>
    <message>
        <source>Reading Sentry events…</source>
        <extracomment>Scan progress: reading the SentryClips folder</extracomment>
        <translation>Leser Vaktmodus-hendelser…</translation>
    </message>
    <message>
        <source>Reading Saved clips…</source>
        <extracomment>Scan progress: reading the SavedClips folder</extracomment>
        <translation>Leser lagrede klipp…</translation>
    </message>
    <message>
        <source>Reading Recent driving…</source>
        <extracomment>Scan progress: reading the RecentClips folder</extracomment>
        <translation>Leser nylig kjøring…</translation>
    </message>
    <message>
        <source>Scan complete.</source>
        <translation>Skanningen er ferdig.</translation>
    </message>
</context>
<context>
    <name>TokenHolder</name>
    <message>
        <source>This computer has no secret store to remember your sign-in in, so it is kept only until Keelhold quits.</source>
        <translation>Denne datamaskinen har ikke noe hemmelighetslager å huske påloggingen din i, så den huskes bare til Keelhold avsluttes.</translation>
    </message>
</context>
<context>
    <name>TriageState</name>
    <message>
        <source>New</source>
        <extracomment>State of an event the user has not looked at yet</extracomment>
        <translation>Ny</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <extracomment>State of an event the user has watched</extracomment>
        <translation>Sett</translation>
    </message>
    <message>
        <source>In Vault</source>
        <extracomment>State of an event that is kept in the Vault</extracomment>
        <translation>I Hvelvet</translation>
    </message>
    <message>
        <source>Dismissed</source>
        <extracomment>State of an event the user chose not to keep</extracomment>
        <translation>Avvist</translation>
    </message>
</context>
<context>
    <name>UiBridge</name>
    <message>
        <source>Drive</source>
        <extracomment>Sidebar section: the car&apos;s drive and its events</extracomment>
        <translation>Disk</translation>
    </message>
    <message>
        <source>Vault</source>
        <extracomment>Sidebar section: the kept copies</extracomment>
        <translation>Hvelv</translation>
    </message>
    <message>
        <source>Map</source>
        <extracomment>Sidebar section: the events on a map</extracomment>
        <translation>Kart</translation>
    </message>
    <message>
        <source>Drive Health</source>
        <extracomment>Sidebar section: the health of the car&apos;s drive</extracomment>
        <translation>Diskhelse</translation>
    </message>
    <message>
        <source>Open Help — Sentry Mode, clip length, corruption, and encryption explained.</source>
        <translation>Åpne Hjelp — Vaktmodus, klipplengde, skadde klipp og kryptering forklart.</translation>
    </message>
    <message>
        <source>Drag to resize the event list.</source>
        <translation>Dra for å endre størrelse på hendelseslisten.</translation>
    </message>
    <message>
        <source>You&apos;re exploring sample footage · Connect your Tesla drive anytime</source>
        <translation>Du ser på eksempelopptak · Koble til Tesla-disken din når som helst</translation>
    </message>
    <message>
        <source>Eject Sample</source>
        <extracomment>Button that leaves the sample footage</extracomment>
        <translation>Lukk eksempel</translation>
    </message>
    <message>
        <source>A Keelhold licence is needed</source>
        <translation>Det trengs en Keelhold-lisens</translation>
    </message>
    <message>
        <source>Reading your own Tesla drive needs a Keelhold licence. Sample footage stays available without one.</source>
        <translation>Du trenger en Keelhold-lisens for å lese din egen Tesla-disk. Eksempelopptakene er tilgjengelige uten lisens.</translation>
    </message>
    <message>
        <source>Keelhold Help</source>
        <extracomment>Menu item that opens the help window</extracomment>
        <translation>Keelhold-hjelp</translation>
    </message>
    <message>
        <source>Explore Sample Footage</source>
        <translation>Utforsk eksempelopptak</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <extracomment>Menu title; &amp; marks the letter for the Alt shortcut</extracomment>
        <translation>&amp;Avspilling</translation>
    </message>
    <message>
        <source>Use Graphics Hardware for Video</source>
        <translation>Bruk grafikkmaskinvare for video</translation>
    </message>
    <message>
        <source>Nothing on your drive is ever changed or deleted.</source>
        <translation>Ingenting på disken din blir noen gang endret eller slettet.</translation>
    </message>
    <message>
        <source>Keelhold only reads from your Tesla drive. Every &quot;Keep&quot; makes a verified copy elsewhere — your original footage is never touched.</source>
        <extracomment>&quot;Keep&quot; is the app&apos;s own button; translate it as there</extracomment>
        <translation>Keelhold leser bare fra Tesla-disken din. Hver «Behold» lager en verifisert kopi et annet sted — de originale opptakene dine blir aldri rørt.</translation>
    </message>
</context>
<context>
    <name>UnlockController</name>
    <message>
        <source>Unlock Encrypted Footage</source>
        <translation>Lås opp krypterte opptak</translation>
    </message>
    <message>
        <source>Your car encrypted this footage so that only your Tesla account can watch it. To play it here, Keelhold asks Tesla&apos;s service for each clip&apos;s key, and Tesla first checks that your account owns the car.</source>
        <translation>Bilen din krypterte disse opptakene slik at bare Tesla-kontoen din kan se dem. For å spille dem av her ber Keelhold Teslas tjeneste om nøkkelen til hvert klipp, og Tesla kontrollerer først at kontoen din eier bilen.</translation>
    </message>
    <message>
        <source>What is sent: each clip&apos;s key id and the locked key the car wrote into it, and your car&apos;s VIN. Never any video: the footage stays on this computer.</source>
        <translation>Dette sendes: hvert klipps nøkkel-ID og den låste nøkkelen bilen skrev inn i det, og bilens VIN. Aldri video: opptakene blir på denne datamaskinen.</translation>
    </message>
    <message>
        <source>The keys are kept on this computer and beside the events in your Vault, so unlocked footage plays offline from then on.</source>
        <translation>Nøklene lagres på denne datamaskinen og ved siden av hendelsene i Hvelvet ditt, så opplåste opptak kan spilles av uten nett fra da av.</translation>
    </message>
    <message>
        <source>Your Tesla sign-in</source>
        <translation>Tesla-påloggingen din</translation>
    </message>
    <message>
        <source>Sign In with Your Browser…</source>
        <translation>Logg på med nettleseren…</translation>
    </message>
    <message>
        <source>Opens Tesla&apos;s sign-in page in your browser. When you have signed in, copy the address the browser shows and paste it here. This sign-in can be renewed for months without signing in again.</source>
        <translation>Åpner Teslas påloggingsside i nettleseren. Når du har logget på, kopierer du adressen nettleseren viser, og limer den inn her. Denne påloggingen kan fornyes i flere måneder uten at du må logge på igjen.</translation>
    </message>
    <message>
        <source>Paste the address your browser landed on</source>
        <translation>Lim inn adressen nettleseren havnet på</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>Or copy the viewer&apos;s sign-in token:</source>
        <translation>Eller kopier visningens påloggingstoken:</translation>
    </message>
    <message>
        <source>Paste your sign-in token</source>
        <translation>Lim inn påloggingstokenet ditt</translation>
    </message>
    <message>
        <source>Remember on this computer</source>
        <translation>Husk på denne datamaskinen</translation>
    </message>
    <message>
        <source>Kept in your desktop&apos;s secret store (its keyring), never in a plain file. Without it, the sign-in is forgotten when Keelhold quits.</source>
        <translation>Lagres i skrivebordets hemmelighetslager (nøkkelringen), aldri i en vanlig fil. Uten dette glemmes påloggingen når Keelhold avsluttes.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <extracomment>Button that asks Tesla for the keys with the pasted sign-in token</extracomment>
        <translation>Lås opp</translation>
    </message>
    <message>
        <source>Open Tesla&apos;s Viewer</source>
        <translation>Åpne Teslas visning</translation>
    </message>
    <message>
        <source>Forget my sign-in</source>
        <translation>Glem påloggingen min</translation>
    </message>
    <message>
        <source>Sign in again…</source>
        <translation>Logg på igjen…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>Asking Tesla for the keys…</source>
        <translation>Ber Tesla om nøklene…</translation>
    </message>
    <message>
        <source>You&apos;re signed in for as long as Keelhold runs.</source>
        <translation>Du er pålogget så lenge Keelhold kjører.</translation>
    </message>
    <message>
        <source>You&apos;re signed in, and your sign-in is remembered on this computer.</source>
        <translation>Du er pålogget, og påloggingen din huskes på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Some footage is encrypted by your car</source>
        <translation>Noen opptak er kryptert av bilen din</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>Lås opp…</translation>
    </message>
    <message>
        <source>Turn encryption off for future recordings…</source>
        <translation>Slå av kryptering for fremtidige opptak…</translation>
    </message>
    <message>
        <source>Unlock Encrypted Footage…</source>
        <translation>Lås opp krypterte opptak…</translation>
    </message>
    <message>
        <source>Open Tesla&apos;s dashcam viewer (%1) in your browser and sign in with your Tesla account.</source>
        <translation>Åpne Teslas dashcam-visning (%1) i nettleseren, og logg på med Tesla-kontoen din.</translation>
    </message>
    <message>
        <source>Open the browser&apos;s developer tools (F12) and choose the Network tab.</source>
        <extracomment>&quot;Network&quot; is the tab&apos;s name in the browser&apos;s developer tools</extracomment>
        <translation>Åpne nettleserens utviklerverktøy (F12), og velg fanen Nettverk (Network).</translation>
    </message>
    <message>
        <source>Paste it below. It works for about eight hours; sign in again after that.</source>
        <translation>Lim det inn nedenfor. Det virker i omtrent åtte timer; logg på igjen etter det.</translation>
    </message>
    <message>
        <source>Keelhold lists and keeps them like any other; to watch them here, unlock them with your Tesla account.</source>
        <translation>Keelhold lister opp og beholder dem som alle andre; for å se dem her låser du dem opp med Tesla-kontoen din.</translation>
    </message>
    <message>
        <source>Play any clip in the viewer, then pick the request named “batch” in the list.</source>
        <extracomment>&quot;batch&quot; is the request&apos;s name as the browser lists it; keep it as it is</extracomment>
        <translation>Spill av et hvilket som helst klipp i visningen, og velg deretter forespørselen som heter «batch» i listen.</translation>
    </message>
    <message>
        <source>Under Request Headers, copy the text after “Authorization: Bearer”.</source>
        <extracomment>&quot;Request Headers&quot; is a heading in the browser&apos;s developer tools; &quot;Authorization: Bearer&quot; stays as it is</extracomment>
        <translation>Under Forespørselshoder (Request Headers) kopierer du teksten etter «Authorization: Bearer».</translation>
    </message>
    <message numerus="yes">
        <source>%n events here were recorded with your car&apos;s encryption on.</source>
        <translation>
            <numerusform>%n hendelse her ble tatt opp med bilens kryptering på.</numerusform>
            <numerusform>%n hendelser her ble tatt opp med bilens kryptering på.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocked %n clips.</source>
        <translation>
            <numerusform>Låste opp %n klipp.</numerusform>
            <numerusform>Låste opp %n klipp.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocked %1 of %n clips.</source>
        <translation>
            <numerusform>Låste opp %1 av %n klipp.</numerusform>
            <numerusform>Låste opp %1 av %n klipp.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Unlocker</name>
    <message>
        <source>The keys couldn&apos;t be saved on this computer, so they work until Keelhold quits and will be asked for again next time.</source>
        <translation>Nøklene kunne ikke lagres på denne datamaskinen, så de virker til Keelhold avsluttes og må hentes på nytt neste gang.</translation>
    </message>
</context>
<context>
    <name>VaultIndex</name>
    <message>
        <source>There is no Trash folder at %1 and it can&apos;t be made, so nothing was removed.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>Det finnes ingen papirkurvmappe i %1, og den kan ikke opprettes, så ingenting ble fjernet.</translation>
    </message>
    <message>
        <source>Couldn&apos;t move %1 to the Trash, so nothing was removed.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>Kunne ikke flytte %1 til papirkurven, så ingenting ble fjernet.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1: %2</source>
        <extracomment>%1 is a file&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>Kunne ikke lese %1: %2</translation>
    </message>
    <message>
        <source>Couldn&apos;t create the folder %1.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>Kunne ikke opprette mappen %1.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2</source>
        <extracomment>%1 is a file&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>Kunne ikke skrive %1: %2</translation>
    </message>
    <message>
        <source>The Vault&apos;s index points outside the Vault folder (%1), so nothing was removed.</source>
        <extracomment>%1 is the folder the index names, as written in it</extracomment>
        <translation>Hvelvets register peker utenfor Hvelv-mappen (%1), så ingenting ble fjernet.</translation>
    </message>
</context>
<context>
    <name>VaultMarks</name>
    <message>
        <source>Faithful Copy</source>
        <translation>Nøyaktig kopi</translation>
    </message>
    <message>
        <source>Every file below was copied and its checksum (SHA-256) was compared to the original on your drive at the time — a faithful, unaltered copy. This is a technical integrity check, not a legal certification.</source>
        <translation>Hver fil nedenfor ble kopiert, og sjekksummen (SHA-256) ble sammenlignet med originalen på disken din på det tidspunktet — en nøyaktig, uendret kopi. Dette er en teknisk integritetskontroll, ikke en juridisk bekreftelse.</translation>
    </message>
    <message>
        <source>Archived %1 from %2</source>
        <extracomment>%1 is when the event was kept, %2 the name of the drive it came from</extracomment>
        <translation>Arkivert %1 fra %2</translation>
    </message>
    <message>
        <source>Missing</source>
        <extracomment>A kept file that is no longer in the Vault</extracomment>
        <translation>Mangler</translation>
    </message>
    <message>
        <source>Changed since it was kept</source>
        <translation>Endret siden den ble beholdt</translation>
    </message>
    <message>
        <source>Couldn&apos;t be read</source>
        <translation>Kunne ikke leses</translation>
    </message>
    <message>
        <source>Last re-read %1.</source>
        <extracomment>%1 is the date and time of the last re-reading</extracomment>
        <translation>Sist lest på nytt %1.</translation>
    </message>
    <message>
        <source>Not re-read since it was kept.</source>
        <translation>Ikke lest på nytt siden den ble beholdt.</translation>
    </message>
    <message>
        <source>Missing from your Vault since it was kept: %1</source>
        <translation>Mangler i Hvelvet ditt siden den ble beholdt: %1</translation>
    </message>
    <message>
        <source>Changed since it was kept: %1</source>
        <translation>Endret siden den ble beholdt: %1</translation>
    </message>
    <message>
        <source>Files Missing</source>
        <translation>Filer mangler</translation>
    </message>
    <message>
        <source>Changed Since It Was Kept</source>
        <translation>Endret siden den ble beholdt</translation>
    </message>
    <message>
        <source>When Keelhold re-read this event on %1, %2 no longer matched the copy it made. The file named below was changed or removed after it was kept; if the event is still on your drive, keep it again.</source>
        <extracomment>%1 is the day of the re-reading, %2 how many files (&quot;one file&quot;, &quot;3 files&quot;)</extracomment>
        <translation>Da Keelhold leste denne hendelsen på nytt %1, stemte %2 ikke lenger med kopien den laget. Filen som er nevnt nedenfor, ble endret eller fjernet etter at den ble beholdt; hvis hendelsen fortsatt er på disken din, bør du beholde den på nytt.</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>én fil</numerusform>
            <numerusform>%n filer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n files</source>
        <extracomment>Files that reached the Vault, of all the event has</extracomment>
        <translation>
            <numerusform>%1 av %n fil</numerusform>
            <numerusform>%1 av %n filer</numerusform>
        </translation>
    </message>
    <message>
        <source>Incomplete — %1</source>
        <translation>Ufullstendig — %1</translation>
    </message>
    <message>
        <source>Only part of this event reached your Vault. Keep it again from the drive to finish it.</source>
        <translation>Bare en del av denne hendelsen kom frem til Hvelvet ditt. Behold den på nytt fra disken for å fullføre den.</translation>
    </message>
    <message>
        <source>Incomplete Copy</source>
        <translation>Ufullstendig kopi</translation>
    </message>
    <message>
        <source>The copy of this event was cut off before every file arrived: %1 are here. Each of them was checked as it was copied, but the event is not complete. Keep it again from your drive to finish it.</source>
        <translation>Kopieringen av denne hendelsen ble avbrutt før alle filene kom frem: %1 er her. Hver av dem ble kontrollert da den ble kopiert, men hendelsen er ikke fullstendig. Behold den på nytt fra disken din for å fullføre den.</translation>
    </message>
    <message>
        <source>Verified %1</source>
        <extracomment>The badge of a kept event; %1 is the day it was last re-read</extracomment>
        <translation>Verifisert %1</translation>
    </message>
    <message>
        <source>Every file was read again on %1 and still matches the checksum taken when it was kept. Tap for the technical detail.</source>
        <translation>Hver fil ble lest på nytt %1 og stemmer fortsatt med sjekksummen som ble tatt da den ble beholdt. Trykk for tekniske detaljer.</translation>
    </message>
    <message>
        <source>Verified copy</source>
        <translation>Verifisert kopi</translation>
    </message>
    <message>
        <source>This copy was checked byte-for-byte against your drive when it was archived. Tap for the technical detail.</source>
        <translation>Denne kopien ble kontrollert byte for byte mot disken din da den ble arkivert. Trykk for tekniske detaljer.</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 mangler</translation>
    </message>
    <message>
        <source>%1 has changed</source>
        <translation>%1 er endret</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1 kan ikke leses</translation>
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
            <numerusform>Ytterligere %n beholdt hendelse har også problemer.</numerusform>
            <numerusform>Ytterligere %n beholdte hendelser har også problemer.</numerusform>
        </translation>
    </message>
    <message>
        <source>Something changed these copies after they were kept. If the events are still on your drive, keep them again.</source>
        <translation>Noe har endret disse kopiene etter at de ble beholdt. Hvis hendelsene fortsatt er på disken din, bør du beholde dem på nytt.</translation>
    </message>
    <message numerus="yes">
        <source>%n kept events no longer match what was kept</source>
        <translation>
            <numerusform>%n beholdt hendelse stemmer ikke lenger med det som ble beholdt</numerusform>
            <numerusform>%n beholdte hendelser stemmer ikke lenger med det som ble beholdt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Drive disconnected — %1 of %n events kept completely</source>
        <translation>
            <numerusform>Disken ble koblet fra — %1 av %n hendelse beholdt fullstendig</numerusform>
            <numerusform>Disken ble koblet fra — %1 av %n hendelser beholdt fullstendig</numerusform>
        </translation>
    </message>
    <message>
        <source>Backup Stopped</source>
        <translation>Sikkerhetskopieringen stoppet</translation>
    </message>
    <message numerus="yes">
        <source>Backup Incomplete — %1 of %n events kept completely</source>
        <translation>
            <numerusform>Sikkerhetskopieringen er ufullstendig — %1 av %n hendelse beholdt fullstendig</numerusform>
            <numerusform>Sikkerhetskopieringen er ufullstendig — %1 av %n hendelser beholdt fullstendig</numerusform>
        </translation>
    </message>
    <message>
        <source>Backup Complete</source>
        <translation>Sikkerhetskopieringen er fullført</translation>
    </message>
    <message numerus="yes">
        <source>%n events copied and verified, byte-for-byte. The original on your drive is untouched.</source>
        <translation>
            <numerusform>%n hendelse kopiert og verifisert, byte for byte. Originalen på disken din er urørt.</numerusform>
            <numerusform>%n hendelser kopiert og verifisert, byte for byte. Originalen på disken din er urørt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n events reached your Vault only in part (%1 of %2 files), so they aren&apos;t verified copies. Keep them again to finish them.</source>
        <extracomment>%1 of %2 are the files that arrived, of all the events have</extracomment>
        <translation>
            <numerusform>%n hendelse kom bare delvis frem til Hvelvet ditt (%1 av %2 filer), så den er ikke en verifisert kopi. Behold den på nytt for å fullføre den.</numerusform>
            <numerusform>%n hendelser kom bare delvis frem til Hvelvet ditt (%1 av %2 filer), så de er ikke verifiserte kopier. Behold dem på nytt for å fullføre dem.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were already in your Vault, so we skipped them.</source>
        <extracomment>%n is a number of events</extracomment>
        <translation>
            <numerusform>%n var allerede i Hvelvet ditt, så vi hoppet over den.</numerusform>
            <numerusform>%n var allerede i Hvelvet ditt, så vi hoppet over dem.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files couldn&apos;t be read as the drive went away.</source>
        <translation>
            <numerusform>%n fil kunne ikke leses fordi disken forsvant.</numerusform>
            <numerusform>%n filer kunne ikke leses fordi disken forsvant.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files couldn&apos;t be read — your drive may be failing. Nothing was deleted or changed; you can try again.</source>
        <translation>
            <numerusform>%n fil kunne ikke leses — disken din kan være i ferd med å svikte. Ingenting ble slettet eller endret; du kan prøve igjen.</numerusform>
            <numerusform>%n filer kunne ikke leses — disken din kan være i ferd med å svikte. Ingenting ble slettet eller endret; du kan prøve igjen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VaultViewModel</name>
    <message>
        <source>Vault</source>
        <extracomment>Title of the Vault&apos;s list</extracomment>
        <translation>Hvelv</translation>
    </message>
    <message>
        <source>Choose Your Vault Folder</source>
        <extracomment>Title of the folder dialog that picks the Vault&apos;s folder</extracomment>
        <translation>Velg Hvelv-mappen din</translation>
    </message>
    <message>
        <source>Pick (or create) a folder where Keelhold will keep permanent copies of the footage you decide to keep.</source>
        <translation>Velg (eller opprett) en mappe der Keelhold skal lagre permanente kopier av opptakene du bestemmer deg for å beholde.</translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <extracomment>Accept button of the folder dialog that picks the Vault&apos;s folder</extracomment>
        <translation>Bruk denne mappen</translation>
    </message>
    <message>
        <source>Change Vault Folder</source>
        <translation>Bytt Hvelv-mappe</translation>
    </message>
    <message>
        <source>Point Keelhold at a different folder or drive for your permanent archive.</source>
        <translation>Pek Keelhold til en annen mappe eller disk for det permanente arkivet ditt.</translation>
    </message>
    <message>
        <source>How much space your kept footage uses, and how much room the Vault&apos;s disk has left.</source>
        <translation>Hvor mye plass de beholdte opptakene dine bruker, og hvor mye plass det er igjen på Hvelvets disk.</translation>
    </message>
    <message>
        <source>Move to Trash…</source>
        <extracomment>Menu item of a kept event</extracomment>
        <translation>Flytt til papirkurven…</translation>
    </message>
    <message>
        <source>Move this event to the Trash?</source>
        <translation>Vil du flytte denne hendelsen til papirkurven?</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <extracomment>Button that confirms moving the kept event to the Trash</extracomment>
        <translation>Flytt til papirkurven</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Choose a Different Folder</source>
        <translation>Velg en annen mappe</translation>
    </message>
    <message>
        <source>Choose Another Folder…</source>
        <translation>Velg en annen mappe…</translation>
    </message>
    <message>
        <source>Keeping footage safe…</source>
        <translation>Sikrer opptakene…</translation>
    </message>
    <message>
        <source>Stops after the current file. Anything already copied and verified stays in your Vault — nothing is undone.</source>
        <translation>Stopper etter gjeldende fil. Alt som allerede er kopiert og verifisert, blir værende i Hvelvet ditt — ingenting blir angret.</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the keep&apos;s report</extracomment>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Verify Vault</source>
        <translation>Verifiser Hvelvet</translation>
    </message>
    <message>
        <source>Read every kept file again and compare it with the checksum taken when it was kept.</source>
        <translation>Les hver beholdt fil på nytt, og sammenlign den med sjekksummen som ble tatt da den ble beholdt.</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verifiser</translation>
    </message>
    <message>
        <source>Choose a Vault Folder</source>
        <translation>Velg en Hvelv-mappe</translation>
    </message>
    <message>
        <source>Your Vault is a folder on this %1 (or an external drive you keep) where Keelhold keeps permanent, verified copies of the footage you choose to keep — safe even if your car&apos;s drive fails, fills up, or gets wiped.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Hvelvet ditt er en mappe på %1 (eller en ekstern disk du har) der Keelhold lagrer permanente, verifiserte kopier av opptakene du velger å beholde — trygge selv om bilens disk svikter, blir full eller blir tømt.</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Velg mappe…</translation>
    </message>
    <message>
        <source>Your Vault is empty so far</source>
        <translation>Hvelvet ditt er tomt foreløpig</translation>
    </message>
    <message>
        <source>Nothing has been kept yet. From the Drive tab, select an event and choose &quot;Keep&quot; to copy it here permanently.</source>
        <extracomment>&quot;Drive&quot; and &quot;Keep&quot; are the app&apos;s own tab and button; translate them as there</extracomment>
        <translation>Ingenting er beholdt ennå. Velg en hendelse i fanen Disk, og velg «Behold» for å kopiere den hit permanent.</translation>
    </message>
    <message numerus="yes">
        <source>%n events · %1 · %2 free on this disk</source>
        <extracomment>The Vault&apos;s summary: how many kept events, their size, and the room left on the Vault&apos;s disk</extracomment>
        <translation>
            <numerusform>%n hendelse · %1 · %2 ledig på denne disken</numerusform>
            <numerusform>%n hendelser · %1 · %2 ledig på denne disken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n events · %1</source>
        <extracomment>The Vault&apos;s summary: how many kept events and their size</extracomment>
        <translation>
            <numerusform>%n hendelse · %1</numerusform>
            <numerusform>%n hendelser · %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n events</source>
        <extracomment>A keep&apos;s progress: events done of all it keeps</extracomment>
        <translation>
            <numerusform>%1 av %n hendelse</numerusform>
            <numerusform>%1 av %n hendelser</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused at %1 — that is a different drive; plug in the one this keep was reading</source>
        <translation>Satt på pause ved %1 — det er en annen disk; koble til den som denne kopieringen leste fra</translation>
    </message>
    <message>
        <source>Paused at %1 — plug the drive back in to go on</source>
        <translation>Satt på pause ved %1 — koble til disken igjen for å fortsette</translation>
    </message>
    <message>
        <source>Reading your kept footage again…</source>
        <translation>Leser de beholdte opptakene dine på nytt…</translation>
    </message>
    <message>
        <source>Reading 1 kept event again…</source>
        <translation>Leser 1 beholdt hendelse på nytt…</translation>
    </message>
    <message>
        <source>Reading kept events again: %1 of %2 done</source>
        <translation>Leser beholdte hendelser på nytt: %1 av %2 ferdig</translation>
    </message>
    <message>
        <source>%1 will move to your %2&apos;s Trash, where you can still recover it. Nothing on your Tesla drive is touched.</source>
        <extracomment>%1 is the event&apos;s day and time (&quot;Mon 2:11 AM&quot;), %2 the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>%1 flyttes til papirkurven på %2 din, der du fortsatt kan gjenopprette den. Ingenting på Tesla-disken din blir rørt.</translation>
    </message>
    <message>
        <source>This drive</source>
        <translation>Denne disken</translation>
    </message>
    <message>
        <source>Keep new events automatically when this drive is connected</source>
        <translation>Behold nye hendelser automatisk når denne disken kobles til</translation>
    </message>
    <message>
        <source>Recent driving too</source>
        <extracomment>Ticked with the choice above: recent driving is kept as well</extracomment>
        <translation>Også nylig kjøring</translation>
    </message>
    <message>
        <source>%1 — Sentry and saved events, each file checked, as soon as it is connected while Keelhold is open.</source>
        <extracomment>%1 is the drive&apos;s name</extracomment>
        <translation>%1 — Vaktmodus-hendelser og lagrede hendelser, hver fil kontrollert, så snart den kobles til mens Keelhold er åpent.</translation>
    </message>
</context>
<context>
    <name>VideoReencoder</name>
    <message>
        <source>The footage couldn&apos;t be converted for the movie.</source>
        <translation>Opptakene kunne ikke konverteres for filmen.</translation>
    </message>
    <message>
        <source>There wasn&apos;t enough memory to convert the footage.</source>
        <translation>Det var ikke nok minne til å konvertere opptakene.</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be encoded: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>Opptakene kunne ikke kodes: %1.</translation>
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
        <translation>Ukjent</translation>
    </message>
</context>
</TS>
