<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>ActivityStrip</name>
    <message>
        <source>Movement in front of each camera: the stronger the colour, the more changed. Click to go there.</source>
        <translation>Mouvement devant chaque caméra&#xa0;: plus la couleur est forte, plus l&apos;image a changé. Cliquez pour y aller.</translation>
    </message>
    <message>
        <source>%1: movement at %2</source>
        <extracomment>%1 is a camera&apos;s name, %2 a time into the event</extracomment>
        <translation>%1&#xa0;: mouvement à %2</translation>
    </message>
    <message>
        <source>%1: quiet at %2</source>
        <translation>%1&#xa0;: calme à %2</translation>
    </message>
</context>
<context>
    <name>AppCommandLine</name>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1 is the command&apos;s synopsis, which stays as it is</extracomment>
        <translation>Utilisation&#xa0;: %1</translation>
    </message>
    <message>
        <source>  or:  %1</source>
        <extracomment>The second synopsis line, under &quot;Usage:&quot;; %1 stays as it is</extracomment>
        <translation>         ou&#xa0;: %1</translation>
    </message>
    <message>
        <source>Reviews the footage a Tesla records to its USB drive. Keelhold reads the drive&apos;s TeslaCam folder without ever writing to it, plays every camera of an event in sync, and keeps chosen events in a Vault folder as verified copies.</source>
        <translation>Examine les vidéos qu&apos;une Tesla enregistre sur son disque USB. Keelhold lit le dossier TeslaCam du disque sans jamais y écrire, affiche toutes les caméras d&apos;un événement de façon synchronisée et conserve les événements choisis dans un dossier de Coffre sous forme de copies vérifiées.</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Code de sortie&#xa0;:</translation>
    </message>
    <message>
        <source>The window was closed.</source>
        <translation>La fenêtre a été fermée.</translation>
    </message>
    <message>
        <source>The window could not be shown.</source>
        <translation>La fenêtre n&apos;a pas pu être affichée.</translation>
    </message>
    <message>
        <source>The command line was wrong.</source>
        <translation>La ligne de commande était incorrecte.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options&#xa0;:</translation>
    </message>
    <message>
        <source>Start with the sample footage instead of a drive.</source>
        <translation>Démarrer avec les vidéos d&apos;exemple au lieu d&apos;un disque.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>Environment:</source>
        <extracomment>Heading over the environment variables the program reads</extracomment>
        <translation>Environnement&#xa0;:</translation>
    </message>
    <message>
        <source>A TeslaCam folder to show as the sample footage.</source>
        <translation>Un dossier TeslaCam à afficher comme vidéos d&apos;exemple.</translation>
    </message>
    <message>
        <source>%1 or %2, in place of the desktop&apos;s choice.</source>
        <extracomment>%1 and %2 are the variable&apos;s values, typed as they stand</extracomment>
        <translation>%1 ou %2, à la place du choix du bureau.</translation>
    </message>
    <message>
        <source>keelhold doesn&apos;t know “%1”. Run “keelhold --help” to see what it takes.</source>
        <extracomment>%1 is the argument given; &quot;keelhold --help&quot; is a command and stays as it is</extracomment>
        <translation>keelhold ne connaît pas «&#xa0;%1&#xa0;». Lancez «&#xa0;keelhold --help&#xa0;» pour voir ce qu&apos;il accepte.</translation>
    </message>
    <message>
        <source>Open at the Vault, where kept events are.</source>
        <translation>Ouvrir sur le Coffre, où se trouvent les événements conservés.</translation>
    </message>
    <message>
        <source>keelhold: the sample footage is not installed, so Keelhold starts without it.</source>
        <translation>keelhold&#xa0;: les vidéos d&apos;exemple ne sont pas installées, Keelhold démarre donc sans elles.</translation>
    </message>
</context>
<context>
    <name>ArchiveEngine</name>
    <message>
        <source>This file took too long to read — the drive may be failing.</source>
        <translation>La lecture de ce fichier a pris trop de temps — le disque est peut-être défaillant.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create a file in your Vault folder.</source>
        <translation>Impossible de créer un fichier dans votre dossier du Coffre.</translation>
    </message>
    <message>
        <source>This file changed size while copying — the drive may have been disconnected.</source>
        <translation>La taille de ce fichier a changé pendant la copie — le disque a peut-être été déconnecté.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Ce fichier n&apos;a pas pu être lu.</translation>
    </message>
    <message>
        <source>There isn&apos;t enough space in your Vault folder.</source>
        <translation>Il n&apos;y a pas assez d&apos;espace dans votre dossier du Coffre.</translation>
    </message>
    <message>
        <source>The Vault folder is no longer available.</source>
        <translation>Le dossier du Coffre n&apos;est plus disponible.</translation>
    </message>
    <message>
        <source>This isn&apos;t an ordinary file (it is a link or a special file), so it was left alone.</source>
        <translation>Ce n&apos;est pas un fichier ordinaire (c&apos;est un lien ou un fichier spécial), il a donc été laissé de côté.</translation>
    </message>
    <message>
        <source>The Vault&apos;s list of kept events couldn&apos;t be saved, so nothing from this run is recorded as kept.</source>
        <translation>La liste des événements conservés du Coffre n&apos;a pas pu être enregistrée&#xa0;: rien de cette opération n&apos;est donc noté comme conservé.</translation>
    </message>
</context>
<context>
    <name>ArchivedEvent</name>
    <message>
        <source>Unknown Drive</source>
        <extracomment>Stands for the name of a drive that could not be read</extracomment>
        <translation>Disque inconnu</translation>
    </message>
</context>
<context>
    <name>Camera</name>
    <message>
        <source>Front</source>
        <extracomment>Camera name: the camera looking ahead through the windscreen</extracomment>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Rear</source>
        <extracomment>Camera name: the camera looking backwards above the number plate</extracomment>
        <translation>Arrière</translation>
    </message>
    <message>
        <source>Left Side</source>
        <extracomment>Camera name: the camera in the left side repeater, looking back along the car</extracomment>
        <translation>Côté gauche</translation>
    </message>
    <message>
        <source>Right Side</source>
        <extracomment>Camera name: the camera in the right side repeater, looking back along the car</extracomment>
        <translation>Côté droit</translation>
    </message>
    <message>
        <source>Left Pillar</source>
        <extracomment>Camera name: the camera in the left door pillar (B pillar)</extracomment>
        <translation>Montant gauche</translation>
    </message>
    <message>
        <source>Right Pillar</source>
        <extracomment>Camera name: the camera in the right door pillar (B pillar)</extracomment>
        <translation>Montant droit</translation>
    </message>
    <message>
        <source>Backup</source>
        <extracomment>Camera name: the reversing camera (not a copy of files)</extracomment>
        <translation>Recul</translation>
    </message>
</context>
<context>
    <name>CameraTile</name>
    <message>
        <source>%1 camera</source>
        <extracomment>Screen reader name of a camera&apos;s tile; %1 is the camera&apos;s name, e.g. Left Side</extracomment>
        <translation>Caméra %1</translation>
    </message>
</context>
<context>
    <name>CliOutput</name>
    <message>
        <source>Read a TeslaCam folder and print its events as JSON.</source>
        <translation>Lire un dossier TeslaCam et afficher ses événements en JSON.</translation>
    </message>
    <message>
        <source>Print the health report of a TeslaCam folder as JSON.</source>
        <translation>Afficher le rapport de santé d&apos;un dossier TeslaCam en JSON.</translation>
    </message>
    <message>
        <source>Write one camera of one event as one MP4 movie, or all cameras at once.</source>
        <translation>Écrire une caméra d&apos;un événement en une vidéo MP4, ou toutes les caméras à la fois.</translation>
    </message>
    <message>
        <source>Write the incident report of one event as a PDF, or an evidence package with every original.</source>
        <translation>Écrire le rapport d&apos;incident d&apos;un événement en PDF, ou une archive de preuves avec tous les originaux.</translation>
    </message>
    <message>
        <source>Copy events into a Vault folder, checking every file.</source>
        <translation>Copier des événements dans un dossier de Coffre, en contrôlant chaque fichier.</translation>
    </message>
    <message>
        <source>List, remove or re-check the events kept in a Vault folder.</source>
        <translation>Lister, supprimer ou recontrôler les événements conservés dans un dossier de Coffre.</translation>
    </message>
    <message>
        <source>Print the driving data recorded with an event&apos;s footage.</source>
        <translation>Afficher les données de conduite enregistrées avec les vidéos d&apos;un événement.</translation>
    </message>
    <message>
        <source>Print where to look in an event: activity in front of each camera, and hard moments.</source>
        <translation>Indiquer où regarder dans un événement&#xa0;: l&apos;activité devant chaque caméra et les moments brusques.</translation>
    </message>
    <message>
        <source>Check and remember your Tesla sign-in, for the car&apos;s encrypted clips.</source>
        <translation>Contrôler et mémoriser votre connexion Tesla, pour les clips chiffrés de la voiture.</translation>
    </message>
    <message>
        <source>Write an event&apos;s encrypted clips as the plain MP4 movies they hold.</source>
        <translation>Écrire les clips chiffrés d&apos;un événement sous forme des vidéos MP4 en clair qu&apos;ils contiennent.</translation>
    </message>
    <message>
        <source>There is no folder at “%1”. Check that the drive is plugged in and the path is right.</source>
        <translation>Il n&apos;y a pas de dossier à «&#xa0;%1&#xa0;». Vérifiez que le disque est branché et que le chemin est correct.</translation>
    </message>
    <message>
        <source>“%1” is a file, not a folder. Give the TeslaCam folder itself.</source>
        <translation>«&#xa0;%1&#xa0;» est un fichier, pas un dossier. Indiquez le dossier TeslaCam lui-même.</translation>
    </message>
    <message>
        <source>There is no event “%1” in this folder.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>Il n&apos;y a pas d&apos;événement «&#xa0;%1&#xa0;» dans ce dossier.</translation>
    </message>
    <message>
        <source>A file holding your Tesla sign-in token, or - to read it from standard input. Without it, the token keelhold-cli unlock remembered is used.</source>
        <translation>Un fichier contenant votre jeton de connexion Tesla, ou - pour le lire sur l&apos;entrée standard. Sans cette option, le jeton mémorisé par keelhold-cli unlock est utilisé.</translation>
    </message>
    <message>
        <source>The token file %1 can&apos;t be read.</source>
        <translation>Le fichier de jeton %1 ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Standard input holds no sign-in token.</source>
        <translation>L&apos;entrée standard ne contient aucun jeton de connexion.</translation>
    </message>
    <message>
        <source>The file %1 holds no sign-in token.</source>
        <translation>Le fichier %1 ne contient aucun jeton de connexion.</translation>
    </message>
    <message>
        <source>These clips are encrypted by your car and no key for them is kept here: give your Tesla sign-in token with --token-file, or run keelhold-cli unlock first.</source>
        <translation>Ces clips sont chiffrés par votre voiture et aucune clé n&apos;est conservée ici pour eux&#xa0;: donnez votre jeton de connexion Tesla avec --token-file, ou lancez d&apos;abord keelhold-cli unlock.</translation>
    </message>
    <message>
        <source>Writes each encrypted clip of an event as the plain MP4 movie it holds, under the same file name, into a
folder of your choice. Keys kept before are used first; the missing ones are fetched from Tesla&apos;s service
with your sign-in token. Exits with 1 when only some clips could be written.</source>
        <translation>Écrit chaque clip chiffré d&apos;un événement sous forme de la vidéo MP4 en clair qu&apos;il contient, sous le
même nom de fichier, dans un dossier de votre choix. Les clés déjà conservées sont utilisées d&apos;abord&#xa0;;
celles qui manquent sont demandées au service de Tesla avec votre jeton de connexion. Se termine avec le
code 1 quand seuls certains clips ont pu être écrits.</translation>
    </message>
    <message>
        <source>The TeslaCam folder, or a Vault folder, to read.</source>
        <translation>Le dossier TeslaCam, ou un dossier de Coffre, à lire.</translation>
    </message>
    <message>
        <source>The event&apos;s id, as keelhold-cli scan prints it.</source>
        <translation>L&apos;identifiant de l&apos;événement, tel que keelhold-cli scan l&apos;affiche.</translation>
    </message>
    <message>
        <source>Only this camera&apos;s clips.</source>
        <translation>Seulement les clips de cette caméra.</translation>
    </message>
    <message>
        <source>The folder to write the movies into.</source>
        <translation>Le dossier où écrire les vidéos.</translation>
    </message>
    <message>
        <source>“%1” is not a camera; use one of %2.</source>
        <extracomment>%1 is the camera as typed, %2 the camera names the command takes</extracomment>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas une caméra&#xa0;; utilisez l&apos;une de celles-ci&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so choose a folder somewhere else.</source>
        <translation>Keelhold n&apos;écrit jamais sur votre disque Tesla&#xa0;: choisissez donc un dossier ailleurs.</translation>
    </message>
    <message>
        <source>The %1 camera has no encrypted footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>La caméra %1 n&apos;a aucune vidéo chiffrée dans cet événement.</translation>
    </message>
    <message>
        <source>This event&apos;s footage isn&apos;t encrypted: its files are plain MP4 movies already.</source>
        <translation>Les vidéos de cet événement ne sont pas chiffrées&#xa0;: ses fichiers sont déjà des vidéos MP4 en clair.</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be made.</source>
        <translation>Le dossier %1 ne peut pas être créé.</translation>
    </message>
    <message>
        <source>The clips couldn&apos;t be read from the drive or written to %1.</source>
        <translation>Les clips n&apos;ont pas pu être lus sur le disque ou écrits dans %1.</translation>
    </message>
    <message>
        <source>Wrote %1 of %2 clips to %3.</source>
        <extracomment>%3 is a folder</extracomment>
        <translation>%1 clips sur %2 écrits dans %3.</translation>
    </message>
    <message>
        <source>Wrote %1 clips to %2.</source>
        <extracomment>%2 is a folder</extracomment>
        <translation>%1 clips écrits dans %2.</translation>
    </message>
    <message>
        <source>The drive went away: %1 of %2 events were kept completely. Plug it back in and run keep again to finish.</source>
        <translation>Le disque a été déconnecté&#xa0;: %1 événements sur %2 ont été conservés entièrement. Rebranchez-le et relancez keep pour terminer.</translation>
    </message>
    <message>
        <source>Prints where to look in an event: for each camera the bursts of activity (something moving in front of
it, found from how much the camera&apos;s video changed), and the hard moments of the drive (hard braking,
a swerve, Autopilot switching off, a sudden stop, the car&apos;s emergency braking) from the driving data
its clips carry. Times are seconds on the event&apos;s timeline, as the player shows them. The drive is
only read.</source>
        <translation>Indique où regarder dans un événement&#xa0;: pour chaque caméra, les moments d&apos;activité (quelque chose qui
bouge devant elle, détecté d&apos;après l&apos;ampleur des changements dans sa vidéo), et les moments brusques du
trajet (freinage brusque, écart brusque, désactivation de l&apos;Autopilot, arrêt soudain, freinage d&apos;urgence
de la voiture) d&apos;après les données de conduite que portent ses clips. Les temps sont en secondes sur la
chronologie de l&apos;événement, comme le lecteur les affiche. Le disque est seulement lu.</translation>
    </message>
    <message>
        <source>json (the default) or csv.</source>
        <extracomment>json and csv are values typed on the command line; keep them as they are</extracomment>
        <translation>json (par défaut) ou csv.</translation>
    </message>
    <message>
        <source>“%1” is not a format; use json or csv.</source>
        <extracomment>%1 is the format as typed; json and csv stay as they are</extracomment>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas un format&#xa0;; utilisez json ou csv.</translation>
    </message>
    <message>
        <source>None of this event&apos;s clips could be read.</source>
        <translation>Aucun des clips de cet événement n&apos;a pu être lu.</translation>
    </message>
    <message>
        <source>Stopped before every clip was read.</source>
        <translation>Arrêté avant que tous les clips soient lus.</translation>
    </message>
    <message>
        <source>Checks your Tesla sign-in token with Tesla&apos;s service and remembers it in this computer&apos;s secret store, so
that export, telemetry and decrypt can fetch the keys of your car&apos;s encrypted clips. Only the clips&apos; key
blocks and your car&apos;s VIN are ever sent, never video. To get the token, sign in at Tesla&apos;s dashcam viewer
in your browser and copy it from there. Give it in a file or on standard input, never on the command
line, where other users could read it.</source>
        <translation>Contrôle votre jeton de connexion Tesla auprès du service de Tesla et le mémorise dans le stockage
sécurisé de cet ordinateur, afin que export, telemetry et decrypt puissent obtenir les clés des clips
chiffrés de votre voiture. Seuls les blocs de clé des clips et le VIN de votre voiture sont envoyés,
jamais de vidéo. Pour obtenir le jeton, connectez-vous à la visionneuse Dashcam de Tesla dans votre
navigateur et copiez-le depuis celle-ci. Donnez-le dans un fichier ou sur l&apos;entrée standard, jamais sur
la ligne de commande, où d&apos;autres utilisateurs pourraient le lire.</translation>
    </message>
    <message>
        <source>Remove the remembered sign-in from this computer&apos;s secret store.</source>
        <translation>Supprimer la connexion mémorisée du stockage sécurisé de cet ordinateur.</translation>
    </message>
    <message>
        <source>A token on the command line can be seen by other users of this computer, so keelhold-cli won&apos;t take one there: put it in a file and give --token-file FILE, or --token-file - to type it.</source>
        <translation>Un jeton sur la ligne de commande peut être vu par les autres utilisateurs de cet ordinateur, keelhold-cli n&apos;en accepte donc pas à cet endroit&#xa0;: placez-le dans un fichier et donnez --token-file FILE, ou --token-file - pour le saisir.</translation>
    </message>
    <message>
        <source>Your Tesla sign-in is no longer remembered on this computer.</source>
        <translation>Votre connexion Tesla n&apos;est plus mémorisée sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service didn&apos;t accept this sign-in token: it may have expired. Sign in again at Tesla&apos;s dashcam viewer and copy a fresh one.</source>
        <translation>Le service de Tesla n&apos;a pas accepté ce jeton de connexion&#xa0;: il a peut-être expiré. Reconnectez-vous à la visionneuse Dashcam de Tesla et copiez-en un nouveau.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service accepted your sign-in, but this computer has no secret store to remember it in: give it with --token-file to each command instead.</source>
        <translation>Le service de Tesla a accepté votre connexion, mais cet ordinateur n&apos;a pas de stockage sécurisé pour la mémoriser&#xa0;: donnez-la plutôt avec --token-file à chaque commande.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service accepted your sign-in, and it is remembered in this computer&apos;s secret store.</source>
        <translation>Le service de Tesla a accepté votre connexion, et elle est mémorisée dans le stockage sécurisé de cet ordinateur.</translation>
    </message>
    <message>
        <source>“%1” is a file, not a Vault folder.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>«&#xa0;%1&#xa0;» est un fichier, pas un dossier de Coffre.</translation>
    </message>
    <message>
        <source>There is no Vault folder at %1.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>Il n&apos;y a pas de dossier de Coffre à %1.</translation>
    </message>
    <message>
        <source>keelhold-cli has no option “%1” before a command. Run “keelhold-cli --help” to see the commands and their options.</source>
        <extracomment>%1 is the option as typed</extracomment>
        <translation>keelhold-cli n&apos;a pas d&apos;option «&#xa0;%1&#xa0;» avant une commande. Lancez «&#xa0;keelhold-cli --help&#xa0;» pour voir les commandes et leurs options.</translation>
    </message>
    <message>
        <source>There is no command “%1”. Run “keelhold-cli --help” to see them all.</source>
        <extracomment>%1 is the command as typed</extracomment>
        <translation>Il n&apos;y a pas de commande «&#xa0;%1&#xa0;». Lancez «&#xa0;keelhold-cli --help&#xa0;» pour les voir toutes.</translation>
    </message>
    <message>
        <source>Keep what is new from every TeslaCam drive as it is connected, until stopped.</source>
        <translation>Conserver ce qui est nouveau sur chaque disque TeslaCam dès qu&apos;il est connecté, jusqu&apos;à l&apos;arrêt.</translation>
    </message>
    <message>
        <source>Usage: %1
  or:  %2
  or:  %3
</source>
        <extracomment>The ways to call the tool; %1, %2 and %3 are command lines, which stay as they are. Keep them lined up.</extracomment>
        <translation>Utilisation&#xa0;: %1
         ou&#xa0;: %2
         ou&#xa0;: %3
</translation>
    </message>
    <message>
        <source>Reads the TeslaCam folder of a Tesla&apos;s USB drive without ever writing to it, and keeps chosen events in a Vault folder as verified copies.</source>
        <translation>Lit le dossier TeslaCam du disque USB d&apos;une Tesla sans jamais y écrire, et conserve les événements choisis dans un dossier de Coffre sous forme de copies vérifiées.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <extracomment>Heading of the list of commands in the help</extracomment>
        <translation>Commandes&#xa0;:</translation>
    </message>
    <message>
        <source>Show the options of a command.</source>
        <translation>Afficher les options d&apos;une commande.</translation>
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
        <translation>Code de sortie&#xa0;:
  0    Terminé.
  1    Terminé en partie&#xa0;: keep n&apos;a pas pu conserver certains fichiers, vault verify a trouvé un fichier
       modifié ou manquant, ou decrypt n&apos;a pu écrire que certains clips.
  2    Le travail n&apos;a pas pu être fait, par exemple parce que le dossier manque ou ne peut pas être lu.
  64   La ligne de commande était incorrecte.
  130  keep a été arrêté avec Ctrl-C.
</translation>
    </message>
    <message>
        <source>Progress and messages go to standard error, results to standard output.</source>
        <translation>La progression et les messages vont sur la sortie d&apos;erreur standard, les résultats sur la sortie standard.</translation>
    </message>
    <message>
        <source>Options:</source>
        <extracomment>Heading of the list of options in the help</extracomment>
        <translation>Options&#xa0;:</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>help takes one command, such as “keelhold-cli help scan”.</source>
        <translation>help prend une seule commande, par exemple «&#xa0;keelhold-cli help scan&#xa0;».</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>How a command is typed; %1 is the command line itself, which stays as it is</extracomment>
        <translation>Utilisation&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 %2 folders, %3 events, %4 clips</source>
        <extracomment>Scan progress; %1 says what is being read (&quot;Reading Sentry events…&quot;), then counts so far</extracomment>
        <translation>%1&#xa0;%2 dossiers, %3 événements, %4 clips</translation>
    </message>
    <message>
        <source>probing %1 of %2 clips</source>
        <extracomment>Progress while each clip is opened to check it</extracomment>
        <translation>examen des clips&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Exporting… %1% (finishing the file)</source>
        <extracomment>Export progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>Exportation… %1&#xa0;% (finalisation du fichier)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 fps, %5 left)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 frames per second, %5 the time left as m:ss</extracomment>
        <translation>Exportation… %1&#xa0;% (%2 images sur %3, %4 i/s, encore %5)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 fps)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 frames per second</extracomment>
        <translation>Exportation… %1&#xa0;% (%2 images sur %3, %4 i/s)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 left)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 the time left as m:ss</extracomment>
        <translation>Exportation… %1&#xa0;% (%2 images sur %3, encore %4)</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames</extracomment>
        <translation>Exportation… %1&#xa0;% (%2 images sur %3)</translation>
    </message>
    <message>
        <source>Writes one camera of one event as a single MP4 movie, copied as it is, or every camera at once with the date and time drawn on it. The drive is only read.</source>
        <translation>Écrit une caméra d&apos;un événement sous forme d&apos;une seule vidéo MP4, copiée telle quelle, ou toutes les caméras à la fois avec la date et l&apos;heure incrustées. Le disque est seulement lu.</translation>
    </message>
    <message>
        <source>The TeslaCam folder to read.</source>
        <translation>Le dossier TeslaCam à lire.</translation>
    </message>
    <message>
        <source>One of: %1.</source>
        <extracomment>Help of an option; %1 lists the values it takes, which stay as they are</extracomment>
        <translation>L&apos;une de ces valeurs&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The movie file to create; in an existing folder, the suggested name is used.</source>
        <translation>Le fichier vidéo à créer&#xa0;; dans un dossier existant, le nom suggéré est utilisé.</translation>
    </message>
    <message>
        <source>Start, in seconds of the joined footage.</source>
        <translation>Début, en secondes des vidéos mises bout à bout.</translation>
    </message>
    <message>
        <source>End, in seconds of the joined footage.</source>
        <translation>Fin, en secondes des vidéos mises bout à bout.</translation>
    </message>
    <message>
        <source>Makes one new movie with every camera at once and the time drawn on it. One of: grid, front-sides, single. Single re-encodes the --camera alone. --from and --to then count seconds of the event&apos;s timeline, as the player shows it.</source>
        <extracomment>grid, front-sides and single are values typed on the command line; keep them as they are</extracomment>
        <translation>Crée une nouvelle vidéo avec toutes les caméras à la fois et l&apos;heure incrustée. L&apos;une de ces valeurs&#xa0;: grid, front-sides, single. Single réencode la --camera seule. --from et --to comptent alors les secondes sur la chronologie de l&apos;événement, comme le lecteur l&apos;affiche.</translation>
    </message>
    <message>
        <source>What a new movie shows over the pictures, any of: time, names, reason, telemetry, none. Join parts with commas; the default is time,names,reason. Telemetry is the car&apos;s speed, pedals, steering and Autopilot where its clips carry them, in km/h or mph as your locale measures. With only --camera, any part makes a new movie of that camera instead of a copy.</source>
        <extracomment>time, names, reason, telemetry, none and time,names,reason are values typed on the command line; keep them as they are</extracomment>
        <translation>Ce qu&apos;une nouvelle vidéo affiche par-dessus les images, parmi&#xa0;: time, names, reason, telemetry, none. Séparez les éléments par des virgules&#xa0;; par défaut&#xa0;: time,names,reason. Telemetry correspond à la vitesse, aux pédales, à la direction et à l&apos;Autopilot de la voiture lorsque ses clips les contiennent, en km/h ou en mph selon vos paramètres régionaux. Avec --camera seul, chaque élément produit une nouvelle vidéo de cette caméra au lieu d&apos;une copie.</translation>
    </message>
    <message>
        <source>The new movie&apos;s picture height. One of: 720, 1080, full. The default is 1080.</source>
        <extracomment>720, 1080 and full are values typed on the command line; keep them as they are</extracomment>
        <translation>La hauteur d&apos;image de la nouvelle vidéo. L&apos;une de ces valeurs&#xa0;: 720, 1080, full. Par défaut&#xa0;: 1080.</translation>
    </message>
    <message>
        <source>--overlay takes time, names, reason and telemetry joined with commas, or none.</source>
        <extracomment>time, names, reason, telemetry and none are values typed on the command line; keep them as they are</extracomment>
        <translation>--overlay prend time, names, reason et telemetry séparés par des virgules, ou none.</translation>
    </message>
    <message>
        <source>“%1” is not a layout; use grid, front-sides or single.</source>
        <extracomment>%1 is the layout as typed; grid, front-sides and single stay as they are</extracomment>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas une disposition&#xa0;; utilisez grid, front-sides ou single.</translation>
    </message>
    <message>
        <source>Name the camera with --camera, or choose --layout grid or front-sides.</source>
        <translation>Indiquez la caméra avec --camera, ou choisissez --layout grid ou front-sides.</translation>
    </message>
    <message>
        <source>--camera picks the one camera of --layout single; grid and front-sides show every camera.</source>
        <translation>--camera choisit l&apos;unique caméra de --layout single&#xa0;; grid et front-sides affichent toutes les caméras.</translation>
    </message>
    <message>
        <source>“%1” is not a size; use 720, 1080 or full.</source>
        <extracomment>%1 is the size as typed; 720, 1080 and full stay as they are</extracomment>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas une taille&#xa0;; utilisez 720, 1080 ou full.</translation>
    </message>
    <message>
        <source>--from and --to take a number of seconds, such as 12.5.</source>
        <translation>--from et --to prennent un nombre de secondes, par exemple 12.5.</translation>
    </message>
    <message>
        <source>There is no event “%1” in this TeslaCam folder.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>Il n&apos;y a pas d&apos;événement «&#xa0;%1&#xa0;» dans ce dossier TeslaCam.</translation>
    </message>
    <message>
        <source>Exporting… %1%</source>
        <extracomment>Export progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>Exportation… %1&#xa0;%</translation>
    </message>
    <message>
        <source>The %1 camera has no playable footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>La caméra %1 n&apos;a aucune vidéo lisible dans cet événement.</translation>
    </message>
    <message>
        <source>None of this event&apos;s cameras has playable footage.</source>
        <translation>Aucune des caméras de cet événement n&apos;a de vidéo lisible.</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>L&apos;exportation a été arrêtée.</translation>
    </message>
    <message>
        <source>Reads a TeslaCam folder and prints its health report (fullness, damaged clips, format, events not yet kept, recommendations) as JSON.</source>
        <translation>Lit un dossier TeslaCam et affiche son rapport de santé (remplissage, clips endommagés, format, événements pas encore conservés, recommandations) en JSON.</translation>
    </message>
    <message>
        <source>The TeslaCam folder to read, or the drive that holds it.</source>
        <translation>Le dossier TeslaCam à lire, ou le disque qui le contient.</translation>
    </message>
    <message>
        <source>The Vault folder whose index tells which events are kept.</source>
        <translation>Le dossier de Coffre dont l&apos;index indique quels événements sont conservés.</translation>
    </message>
    <message>
        <source>Open every clip to find damaged ones (slower).</source>
        <translation>Ouvrir chaque clip pour trouver ceux qui sont endommagés (plus lent).</translation>
    </message>
    <message>
        <source>Indent the JSON for reading.</source>
        <translation>Indenter le JSON pour faciliter la lecture.</translation>
    </message>
    <message>
        <source>There is no Vault folder at “%1”.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>Il n&apos;y a pas de dossier de Coffre à «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Copies events from a TeslaCam folder into a Vault folder, checking each file&apos;s size and recording its SHA-256, and prints the report as JSON.
Exit status: 0 when everything was kept, 1 when some files could not be kept, 130 when stopped with Ctrl-C, 2 when the drive could not be read.</source>
        <extracomment>The numbers are exit codes; keep them</extracomment>
        <translation>Copie des événements d&apos;un dossier TeslaCam vers un dossier de Coffre, en contrôlant la taille de chaque fichier et en enregistrant son SHA-256, et affiche le rapport en JSON.
Code de sortie&#xa0;: 0 quand tout a été conservé, 1 quand certains fichiers n&apos;ont pas pu être conservés, 130 en cas d&apos;arrêt avec Ctrl-C, 2 quand le disque n&apos;a pas pu être lu.</translation>
    </message>
    <message>
        <source>The Vault folder.</source>
        <translation>Le dossier de Coffre.</translation>
    </message>
    <message>
        <source>An event to keep, as printed by scan (&quot;sentry|&lt;folder&gt;&quot;). Repeat for more; without it, every event is kept.</source>
        <extracomment>&quot;sentry|&lt;folder&gt;&quot; shows how an event&apos;s id looks; keep it as it is</extracomment>
        <translation>Un événement à conserver, tel que scan l&apos;affiche (&quot;sentry|&lt;folder&gt;&quot;). Répétez l&apos;option pour en ajouter&#xa0;; sans elle, tous les événements sont conservés.</translation>
    </message>
    <message>
        <source>Seconds allowed for each file (default 10).</source>
        <translation>Secondes accordées à chaque fichier (10 par défaut).</translation>
    </message>
    <message>
        <source>The time limit must be a number of seconds, more than 0 and at most a day.</source>
        <translation>Le délai doit être un nombre de secondes, supérieur à 0 et d&apos;au plus un jour.</translation>
    </message>
    <message>
        <source>There is no event “%1” on this drive.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>Il n&apos;y a pas d&apos;événement «&#xa0;%1&#xa0;» sur ce disque.</translation>
    </message>
    <message>
        <source>%1/%2 events · %3 MB · %4 MB/s · %5</source>
        <extracomment>Keep progress: %1 of %2 events done, %3 megabytes copied, %4 megabytes a second, %5 the file being copied</extracomment>
        <translation>%1/%2 événements · %3 Mo · %4 Mo/s · %5</translation>
    </message>
    <message>
        <source>%1/%2 events · %3 MB · %4 MB/s</source>
        <extracomment>Keep progress: %1 of %2 events done, %3 megabytes copied, %4 megabytes a second</extracomment>
        <translation>%1/%2 événements · %3 Mo · %4 Mo/s</translation>
    </message>
    <message>
        <source>Stopping after the current file… (Ctrl-C again to quit at once)</source>
        <translation>Arrêt après le fichier en cours… (Ctrl-C à nouveau pour quitter immédiatement)</translation>
    </message>
    <message>
        <source>Writes the incident report of one event as a PDF: when and where, each camera at the moment, the driving data, and every original file with its SHA-256. With --package, one ZIP that also holds every original and a SHA256SUMS file that `sha256sum -c` checks. The drive is only read.</source>
        <extracomment>SHA256SUMS is a file name and `sha256sum -c` a command; keep both as they are</extracomment>
        <translation>Écrit le rapport d&apos;incident d&apos;un événement en PDF&#xa0;: quand et où, chaque caméra au moment de l&apos;événement, les données de conduite, et chaque fichier original avec son SHA-256. Avec --package, une seule archive ZIP qui contient aussi chaque original et un fichier SHA256SUMS que `sha256sum -c` contrôle. Le disque est seulement lu.</translation>
    </message>
    <message>
        <source>The TeslaCam folder, or a Vault folder.</source>
        <translation>Le dossier TeslaCam, ou un dossier de Coffre.</translation>
    </message>
    <message>
        <source>The file to create; in an existing folder, the suggested name is used.</source>
        <translation>Le fichier à créer&#xa0;; dans un dossier existant, le nom suggéré est utilisé.</translation>
    </message>
    <message>
        <source>Makes the evidence package (ZIP) instead of the PDF alone.</source>
        <translation>Crée l&apos;archive de preuves (ZIP) au lieu du PDF seul.</translation>
    </message>
    <message>
        <source>Puts the unlock keys of an encrypted event into the package.</source>
        <translation>Ajoute à l&apos;archive les clés de déverrouillage d&apos;un événement chiffré.</translation>
    </message>
    <message>
        <source>A Vault to compare the files with, for an event on the drive that was kept there.</source>
        <translation>Un Coffre avec lequel comparer les fichiers, pour un événement du disque qui y a été conservé.</translation>
    </message>
    <message>
        <source>One of: km/h, mph. The default is the app&apos;s choice, else the one your locale uses.</source>
        <extracomment>km/h and mph are values typed on the command line; keep them as they are</extracomment>
        <translation>L&apos;une de ces valeurs&#xa0;: km/h, mph. Par défaut, le choix fait dans l&apos;application, sinon celui de vos paramètres régionaux.</translation>
    </message>
    <message>
        <source>--speed-unit takes km/h or mph.</source>
        <extracomment>km/h and mph are values typed on the command line; keep them as they are</extracomment>
        <translation>--speed-unit prend km/h ou mph.</translation>
    </message>
    <message>
        <source>Making the report… %1%</source>
        <extracomment>Report progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>Création du rapport… %1&#xa0;%</translation>
    </message>
    <message>
        <source>The report was stopped.</source>
        <translation>La création du rapport a été arrêtée.</translation>
    </message>
    <message>
        <source>Reads a TeslaCam folder and prints what it holds as JSON.</source>
        <translation>Lit un dossier TeslaCam et affiche son contenu en JSON.</translation>
    </message>
    <message>
        <source>Open every clip after the scan to find its health and length.</source>
        <translation>Ouvrir chaque clip après l&apos;analyse pour connaître son état et sa durée.</translation>
    </message>
    <message>
        <source>Seconds each clip may take to answer (default 10).</source>
        <translation>Secondes accordées à chaque clip pour répondre (10 par défaut).</translation>
    </message>
    <message>
        <source>The timeout must be a number of seconds, such as 10.</source>
        <translation>Le délai doit être un nombre de secondes, par exemple 10.</translation>
    </message>
    <message>
        <source>The timeout applies only with --probe.</source>
        <translation>Le délai ne s&apos;applique qu&apos;avec --probe.</translation>
    </message>
    <message>
        <source>Prints the driving data the car recorded with one camera&apos;s footage of an event, one row for each
frame: its time on the event&apos;s timeline and in its clip, when it was taken, and the car&apos;s speed
(metres per second), gear, accelerator, steering angle (degrees), blinkers, brake, Autopilot state,
GPS position, heading (degrees) and acceleration (metres per second squared). Cars on software
2025.44.25 or later record it. The drive is only read.</source>
        <translation>Affiche les données de conduite que la voiture a enregistrées avec les vidéos d&apos;une caméra d&apos;un
événement, une ligne par image&#xa0;: son temps sur la chronologie de l&apos;événement et dans son clip, le moment
où elle a été prise, et la vitesse de la voiture (mètres par seconde), le rapport engagé,
l&apos;accélérateur, l&apos;angle du volant (degrés), les clignotants, le frein, l&apos;état de l&apos;Autopilot, la
position GPS, le cap (degrés) et l&apos;accélération (mètres par seconde carrée). Les voitures en version
logicielle 2025.44.25 ou ultérieure l&apos;enregistrent. Le disque est seulement lu.</translation>
    </message>
    <message>
        <source>csv, json, or gpx (the route, for a mapping tool). Default: from the output file&apos;s extension, else csv.</source>
        <extracomment>csv, json and gpx are values typed on the command line; keep them as they are</extracomment>
        <translation>csv, json ou gpx (le trajet, pour un outil de cartographie). Par défaut&#xa0;: d&apos;après l&apos;extension du fichier de sortie, sinon csv.</translation>
    </message>
    <message>
        <source>The file to write instead of standard output.</source>
        <translation>Le fichier à écrire au lieu de la sortie standard.</translation>
    </message>
    <message>
        <source>“%1” is not a format; use csv, json or gpx.</source>
        <extracomment>%1 is the format as typed; csv, json and gpx stay as they are</extracomment>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas un format&#xa0;; utilisez csv, json ou gpx.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the driving data somewhere else.</source>
        <translation>Keelhold n&apos;écrit jamais sur votre disque Tesla&#xa0;: enregistrez donc les données de conduite ailleurs.</translation>
    </message>
    <message>
        <source>The %1 camera has no footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>La caméra %1 n&apos;a aucune vidéo dans cet événement.</translation>
    </message>
    <message>
        <source>The %1 camera&apos;s clips of this event carry no driving data: cars record it from software 2025.44.25 on, and not in every mode.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;; 2025.44.25 is a software version</extracomment>
        <translation>Les clips de la caméra %1 pour cet événement ne contiennent aucune donnée de conduite&#xa0;: les voitures les enregistrent à partir de la version logicielle 2025.44.25, et pas dans tous les modes.</translation>
    </message>
    <message>
        <source>Could not write %1: %2.</source>
        <extracomment>%1 is a file, %2 the system&apos;s reason</extracomment>
        <translation>Impossible d&apos;écrire %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The Vault has no event “%1”.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>Le Coffre ne contient pas d&apos;événement «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Moved “%1” to the Trash.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>«&#xa0;%1&#xa0;» a été mis à la Corbeille.</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json can&apos;t be understood, so nothing was removed.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>Le fichier manifest.json du Coffre ne peut pas être interprété&#xa0;: rien n&apos;a donc été supprimé.</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json is missing, so the kept events can&apos;t be checked.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>Le fichier manifest.json du Coffre est absent&#xa0;: les événements conservés ne peuvent donc pas être contrôlés.</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json can&apos;t be understood, so nothing could be checked.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>Le fichier manifest.json du Coffre ne peut pas être interprété&#xa0;: rien n&apos;a donc pu être contrôlé.</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>vault verify: the verdict on an event whose files all match, in capitals like the others</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>DIFFERS</source>
        <extracomment>vault verify: the verdict on an event with a file changed, missing or unreadable</extracomment>
        <translation>DIFFÉRENT</translation>
    </message>
    <message>
        <source>INCOMPLETE</source>
        <extracomment>vault verify: the verdict on an event that was kept only in part</extracomment>
        <translation>INCOMPLET</translation>
    </message>
    <message>
        <source>%1 verified</source>
        <extracomment>vault verify: how many of an event&apos;s files matched their record</extracomment>
        <translation>%1 vérifié(s)</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <extracomment>vault verify: how many of an event&apos;s files differ from their record</extracomment>
        <translation>%1 modifié(s)</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <extracomment>vault verify: how many of an event&apos;s files are gone</extracomment>
        <translation>%1 manquant(s)</translation>
    </message>
    <message>
        <source>%1 unreadable</source>
        <extracomment>vault verify: how many of an event&apos;s files couldn&apos;t be read</extracomment>
        <translation>%1 illisible(s)</translation>
    </message>
    <message>
        <source>incomplete (%1 of %2 files kept)</source>
        <translation>incomplet (%1 fichiers sur %2 conservés)</translation>
    </message>
    <message>
        <source>changed %1</source>
        <extracomment>vault verify: %1 is the name of a file that differs from its record</extracomment>
        <translation>modifié&#xa0;: %1</translation>
    </message>
    <message>
        <source>missing %1</source>
        <extracomment>vault verify: %1 is the name of a file that is gone</extracomment>
        <translation>manquant&#xa0;: %1</translation>
    </message>
    <message>
        <source>unreadable %1</source>
        <extracomment>vault verify: %1 is the name of a file that couldn&apos;t be read</extracomment>
        <translation>illisible&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1  %2: %3</source>
        <extracomment>One line of vault verify: %1 the verdict, %2 the event&apos;s id, %3 the counts</extracomment>
        <translation>%1  %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>%1  %2: %3 (%4)</source>
        <extracomment>One line of vault verify: %1 the verdict, %2 the event&apos;s id, %3 the counts, %4 the files that differ</extracomment>
        <translation>%1  %2&#xa0;: %3 (%4)</translation>
    </message>
    <message>
        <source>Lists, removes or re-checks the events kept in a Vault folder.
verify re-reads every file that manifest.json lists, judging each by the newest record that lists it, notes the date in the Vault&apos;s .keelhold-verified.json, and exits 1 if any file differs or is missing, or an event was kept only in part.</source>
        <extracomment>verify is a command&apos;s name; manifest.json and .keelhold-verified.json are file names</extracomment>
        <translation>Liste, supprime ou recontrôle les événements conservés dans un dossier de Coffre.
verify relit chaque fichier listé dans manifest.json, en jugeant chacun d&apos;après le relevé le plus récent qui le mentionne, note la date dans le fichier .keelhold-verified.json du Coffre, et se termine avec le code 1 si un fichier diffère ou manque, ou si un événement n&apos;a été conservé qu&apos;en partie.</translation>
    </message>
    <message>
        <source>list, remove or verify.</source>
        <extracomment>list, remove and verify are typed on the command line; keep them as they are</extracomment>
        <translation>list, remove ou verify.</translation>
    </message>
    <message>
        <source>Nothing was kept</source>
        <translation>Rien n&apos;a été conservé</translation>
    </message>
    <message>
        <source>Keeps what is new from every TeslaCam drive that is connected, now and until stopped: Sentry and saved events, and recent driving with --recent, each file checked as it is copied. Prints one line for each drive it kept from, and tells the desktop when it is done. Stop it with Ctrl-C; a keep in progress ends cleanly first.</source>
        <translation>Conserve ce qui est nouveau sur chaque disque TeslaCam connecté, maintenant et jusqu&apos;à l&apos;arrêt&#xa0;: les événements Sentinelle et enregistrés, et la conduite récente avec --recent, chaque fichier étant contrôlé pendant sa copie. Affiche une ligne pour chaque disque dont il a conservé quelque chose, et prévient le bureau quand il a terminé. Arrêtez-le avec Ctrl-C&#xa0;; une conservation en cours se termine d&apos;abord proprement.</translation>
    </message>
    <message>
        <source>The Vault folder (the one chosen in Keelhold when not given).</source>
        <translation>Le dossier de Coffre (celui choisi dans Keelhold s&apos;il n&apos;est pas indiqué).</translation>
    </message>
    <message>
        <source>Keep recent driving too, each minute once.</source>
        <translation>Conserver aussi la conduite récente, chaque minute une seule fois.</translation>
    </message>
    <message>
        <source>Watch only drives mounted at or below this folder (repeat for more; the default is /media, /run/media and /mnt).</source>
        <translation>Surveiller uniquement les disques montés dans ce dossier ou en dessous (répétez l&apos;option pour en ajouter&#xa0;; par défaut /media, /run/media et /mnt).</translation>
    </message>
    <message>
        <source>No Vault folder is chosen yet. Choose one in Keelhold, or give one with --vault.</source>
        <translation>Aucun dossier de Coffre n&apos;est encore choisi. Choisissez-en un dans Keelhold, ou indiquez-en un avec --vault.</translation>
    </message>
    <message>
        <source>Watching for TeslaCam drives; new footage goes to %1. Ctrl-C stops.</source>
        <translation>Surveillance des disques TeslaCam&#xa0;; les nouvelles vidéos vont dans %1. Ctrl-C pour arrêter.</translation>
    </message>
</context>
<context>
    <name>CombinedExport</name>
    <message>
        <source>There is already a file at “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>Il existe déjà un fichier à «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>None of this event&apos;s cameras has playable footage.</source>
        <translation>Aucune des caméras de cet événement n&apos;a de vidéo lisible.</translation>
    </message>
    <message>
        <source>The folder “%1” doesn&apos;t exist.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>Le dossier «&#xa0;%1&#xa0;» n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The chosen stretch lies outside this event&apos;s footage.</source>
        <translation>La portion choisie se trouve en dehors des vidéos de cet événement.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be given its name “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>La vidéo n&apos;a pas pu recevoir son nom «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>CombinedRender</name>
    <message>
        <source>The movie couldn&apos;t be written.</source>
        <translation>La vidéo n&apos;a pas pu être écrite.</translation>
    </message>
</context>
<context>
    <name>CompositeGraph</name>
    <message>
        <source>The movie&apos;s pictures couldn&apos;t be put together (%1).</source>
        <extracomment>%1 is the step that failed, e.g. &quot;stacking&quot;</extracomment>
        <translation>Les images de la vidéo n&apos;ont pas pu être assemblées (%1).</translation>
    </message>
    <message>
        <source>The movie&apos;s pictures couldn&apos;t be put together (%1: %2).</source>
        <extracomment>%1 is the step that failed, e.g. &quot;stacking&quot;; %2 the video library&apos;s reason</extracomment>
        <translation>Les images de la vidéo n&apos;ont pas pu être assemblées (%1&#xa0;: %2).</translation>
    </message>
    <message>
        <source>no %1 filter</source>
        <extracomment>Step of putting a movie&apos;s pictures together: %1 is a video filter&apos;s name</extracomment>
        <translation>pas de filtre %1</translation>
    </message>
    <message>
        <source>linking %1</source>
        <extracomment>Step of putting a movie&apos;s pictures together: %1 is a video filter&apos;s name</extracomment>
        <translation>liaison de %1</translation>
    </message>
    <message>
        <source>configuring</source>
        <extracomment>Step of putting a movie&apos;s pictures together: setting up the video filters</extracomment>
        <translation>configuration</translation>
    </message>
    <message>
        <source>memory</source>
        <extracomment>Step of putting a movie&apos;s pictures together: getting memory</extracomment>
        <translation>mémoire</translation>
    </message>
    <message>
        <source>drawing a name</source>
        <extracomment>Step of putting a movie&apos;s pictures together: drawing words on a picture</extracomment>
        <translation>dessin d&apos;un nom</translation>
    </message>
    <message>
        <source>no cameras</source>
        <extracomment>Step of putting a movie&apos;s pictures together: there were no cameras to show</extracomment>
        <translation>aucune caméra</translation>
    </message>
    <message>
        <source>unknown picture format</source>
        <extracomment>Step of putting a movie&apos;s pictures together: a camera&apos;s picture format was not known</extracomment>
        <translation>format d&apos;image inconnu</translation>
    </message>
    <message>
        <source>adding a picture</source>
        <extracomment>Step of putting a movie&apos;s pictures together: adding a camera&apos;s picture</extracomment>
        <translation>ajout d&apos;une image</translation>
    </message>
    <message>
        <source>ending</source>
        <extracomment>Step of putting a movie&apos;s pictures together: ending the movie</extracomment>
        <translation>finalisation</translation>
    </message>
    <message>
        <source>stacking</source>
        <extracomment>Step of putting a movie&apos;s pictures together: putting the cameras side by side</extracomment>
        <translation>empilement</translation>
    </message>
    <message>
        <source>drawing the time</source>
        <extracomment>Step of putting a movie&apos;s pictures together: drawing the date and time</extracomment>
        <translation>dessin de l&apos;heure</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Tesla Footage Viewer</source>
        <translation>Visionneuse de vidéos Tesla</translation>
    </message>
    <message>
        <source>Review the footage your Tesla recorded and keep what matters</source>
        <translation>Examinez les vidéos enregistrées par votre Tesla et conservez ce qui compte</translation>
    </message>
    <message>
        <source>Tesla;TeslaCam;Sentry;Dashcam;Dashboard camera;USB;Vault;</source>
        <extracomment>Search words for the desktop&apos;s menu, each ending in a semicolon; keep the English ones and add your language&apos;s</extracomment>
        <translation>Tesla;TeslaCam;Sentry;Dashcam;Dashboard camera;USB;Vault;Sentinelle;Caméra embarquée;Coffre;Vidéo;Surveillance;</translation>
    </message>
    <message>
        <source>Review and keep your Tesla&apos;s camera footage</source>
        <translation>Examinez et conservez les vidéos des caméras de votre Tesla</translation>
    </message>
</context>
<context>
    <name>DesktopNotices</name>
    <message>
        <source>your drive</source>
        <comment>a keep&apos;s drive without a name</comment>
        <translation>votre disque</translation>
    </message>
    <message numerus="yes">
        <source>%n Sentry events not kept yet</source>
        <translation>
            <numerusform>%n événement Sentinelle pas encore conservé</numerusform>
            <numerusform>%n événements Sentinelle pas encore conservés</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is connected with Sentry events that aren&apos;t in your Vault.</source>
        <translation>%1 est connecté avec des événements Sentinelle qui ne sont pas dans votre Coffre.</translation>
    </message>
</context>
<context>
    <name>DesktopNotifier</name>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
</context>
<context>
    <name>DriveBoundary</name>
    <message>
        <source>Keelhold never writes to your Tesla drive, so your Vault has to be a folder somewhere else.</source>
        <translation>Keelhold n&apos;écrit jamais sur votre disque Tesla&#xa0;: votre Coffre doit donc être un dossier situé ailleurs.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the movie somewhere else.</source>
        <translation>Keelhold n&apos;écrit jamais sur votre disque Tesla&#xa0;: enregistrez donc la vidéo ailleurs.</translation>
    </message>
</context>
<context>
    <name>DriveSession</name>
    <message>
        <source>Getting started…</source>
        <translation>Démarrage…</translation>
    </message>
    <message>
        <source>Loading sample footage…</source>
        <translation>Chargement des vidéos d&apos;exemple…</translation>
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
        <translation>Volant %1</translation>
    </message>
    <message>
        <source>BRAKE</source>
        <extracomment>Word on the brake lamp of the driving data drawn over an exported movie; keep it short</extracomment>
        <translation>FREIN</translation>
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
        <translation>Régulateur adaptatif</translation>
    </message>
    <message>
        <source>Self-driving</source>
        <extracomment>Driver assistance engaged: Full Self-Driving</extracomment>
        <translation>Conduite autonome</translation>
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
        <translation>%1&#xa0;%2°</translation>
    </message>
    <message>
        <source>%1° right</source>
        <extracomment>Steering wheel angle in whole degrees, turned to the right</extracomment>
        <translation>%1° à droite</translation>
    </message>
    <message>
        <source>%1° left</source>
        <extracomment>Steering wheel angle in whole degrees, turned to the left</extracomment>
        <translation>%1° à gauche</translation>
    </message>
</context>
<context>
    <name>EventKind</name>
    <message>
        <source>Sentry</source>
        <extracomment>Kind of event: footage Sentry Mode kept while the car was parked</extracomment>
        <translation>Sentinelle</translation>
    </message>
    <message>
        <source>Saved</source>
        <extracomment>Kind of event: footage the driver saved (button or honk)</extracomment>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>Recent Driving</source>
        <extracomment>Kind of event: the car&apos;s rolling recording of the last hour of driving</extracomment>
        <translation>Conduite récente</translation>
    </message>
</context>
<context>
    <name>EventMapPresenter</name>
    <message>
        <source>All located events</source>
        <extracomment>Heading in the map&apos;s list over the events with a place</extracomment>
        <translation>Tous les événements localisés</translation>
    </message>
    <message>
        <source>No location recorded</source>
        <extracomment>Heading in the map&apos;s list over the events without a place</extracomment>
        <translation>Aucun lieu enregistré</translation>
    </message>
    <message>
        <source>No events have a location yet</source>
        <translation>Aucun événement n&apos;a encore de lieu</translation>
    </message>
    <message>
        <source>Your car only records a location for some events. Once you have events with a place attached, they&apos;ll appear here as pins.</source>
        <translation>Votre voiture n&apos;enregistre un lieu que pour certains événements. Dès que vous aurez des événements associés à un lieu, ils apparaîtront ici sous forme d&apos;épingles.</translation>
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
        <translation>Coordonnées telles qu&apos;enregistrées par votre voiture — utiles pour une déclaration à l&apos;assurance ou à la police.</translation>
    </message>
    <message>
        <source>Archived %1 from %2</source>
        <extracomment>%1 is when the event was kept, %2 the name of the drive it came from</extracomment>
        <translation>Conservé le %1 depuis %2</translation>
    </message>
    <message>
        <source>Loading cameras…</source>
        <translation>Chargement des caméras…</translation>
    </message>
    <message>
        <source>No playable footage for this event</source>
        <translation>Aucune vidéo lisible pour cet événement</translation>
    </message>
    <message>
        <source>None of this event&apos;s camera angles could be read. The files are still safely on your drive — this can happen with a failing drive or a corrupted minute.</source>
        <translation>Aucun des angles de caméra de cet événement n&apos;a pu être lu. Les fichiers sont toujours en sécurité sur votre disque — cela peut arriver avec un disque défaillant ou une minute corrompue.</translation>
    </message>
    <message>
        <source>Step back 5 seconds. (Left Arrow)</source>
        <translation>Reculer de 5 secondes. (Flèche gauche)</translation>
    </message>
    <message>
        <source>Step forward 5 seconds. (Right Arrow)</source>
        <translation>Avancer de 5 secondes. (Flèche droite)</translation>
    </message>
    <message>
        <source>Step back one frame. (,)</source>
        <translation>Reculer d&apos;une image. (,)</translation>
    </message>
    <message>
        <source>Step forward one frame. (.)</source>
        <translation>Avancer d&apos;une image. (.)</translation>
    </message>
    <message>
        <source>Play or pause all cameras together, perfectly in sync. (Space)</source>
        <translation>Lire ou mettre en pause toutes les caméras ensemble, parfaitement synchronisées. (Espace)</translation>
    </message>
    <message>
        <source>Moment</source>
        <extracomment>Button: jump to the moment the event happened</extracomment>
        <translation>Moment</translation>
    </message>
    <message>
        <source>Jump to just before the moment it happened — the honk, bump, or detection. (M)</source>
        <translation>Aller juste avant le moment où c&apos;est arrivé — le coup de klaxon, le choc ou la détection. (M)</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>Label of the playback speed picker</extracomment>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Playback speed, from half speed to 4×.</source>
        <translation>Vitesse de lecture, de la demi-vitesse jusqu&apos;à 4×.</translation>
    </message>
    <message>
        <source>Show All Cameras</source>
        <translation>Toutes les caméras</translation>
    </message>
    <message>
        <source>Return to the full camera grid.</source>
        <translation>Revenir à la grille complète des caméras.</translation>
    </message>
    <message>
        <source>Drag to jump to any moment. Every camera stays in sync.</source>
        <translation>Faites glisser pour aller à n&apos;importe quel moment. Toutes les caméras restent synchronisées.</translation>
    </message>
    <message>
        <source>Playback position</source>
        <translation>Position de lecture</translation>
    </message>
    <message>
        <source>Keep a safe copy on this %1</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Conserver une copie en lieu sûr sur cet %1</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Button that keeps the event in the Vault</extracomment>
        <translation>Conserver</translation>
    </message>
    <message>
        <source>Copies this footage to your Vault and verifies it matches byte-for-byte. Nothing on your drive is ever changed or deleted. (K)</source>
        <translation>Copie ces vidéos dans votre Coffre et vérifie que la copie est identique octet par octet. Rien sur votre disque n&apos;est jamais modifié ni supprimé. (K)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Button that hides the event from the list</extracomment>
        <translation>Écarter</translation>
    </message>
    <message>
        <source>Hide this from your inbox. This never deletes anything from your drive or Vault. (D)</source>
        <translation>Masquer cet événement de votre liste. Cela ne supprime jamais rien de votre disque ni de votre Coffre. (D)</translation>
    </message>
    <message>
        <source>Export &amp; Share</source>
        <translation>Exporter et partager</translation>
    </message>
    <message>
        <source>Save one camera&apos;s footage as its own file and hand it off by email, or save it to a folder.</source>
        <translation>Enregistrer les vidéos d&apos;une caméra dans un fichier à part et l&apos;envoyer par e-mail, ou l&apos;enregistrer dans un dossier.</translation>
    </message>
    <message>
        <source>Fill the window with just the cameras. (F, Esc to go back)</source>
        <translation>Remplir la fenêtre avec les caméras seules. (F, Esc pour revenir)</translation>
    </message>
    <message>
        <source>Verified copy</source>
        <translation>Copie vérifiée</translation>
    </message>
    <message>
        <source>This copy was checked byte-for-byte against your drive when it was archived. Tap for the technical detail.</source>
        <translation>Cette copie a été contrôlée octet par octet par rapport à votre disque lors de sa conservation. Cliquez pour voir le détail technique.</translation>
    </message>
    <message>
        <source>Faithful Copy</source>
        <translation>Copie fidèle</translation>
    </message>
    <message>
        <source>Every file below was copied and its checksum (SHA-256) was compared to the original on your drive at the time — a faithful, unaltered copy. This is a technical integrity check, not a legal certification.</source>
        <translation>Chaque fichier ci-dessous a été copié et sa somme de contrôle (SHA-256) a été comparée à l&apos;original sur votre disque à ce moment-là — une copie fidèle et non modifiée. Il s&apos;agit d&apos;un contrôle technique d&apos;intégrité, pas d&apos;une certification légale.</translation>
    </message>
    <message>
        <source>Export finished</source>
        <translation>Exportation terminée</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <extracomment>%1 is the file&apos;s name</extracomment>
        <translation>%1 est prêt.</translation>
    </message>
    <message>
        <source>Export didn&apos;t finish</source>
        <translation>L&apos;exportation n&apos;a pas abouti</translation>
    </message>
</context>
<context>
    <name>EventTimeline</name>
    <message>
        <source>Unlock to watch</source>
        <extracomment>On a camera&apos;s tile: encrypted footage that needs its keys first</extracomment>
        <translation>Déverrouiller pour voir</translation>
    </message>
    <message>
        <source>This angle didn&apos;t record properly — a known Tesla drive issue.</source>
        <extracomment>On a camera&apos;s tile: its footage is damaged</extracomment>
        <translation>Cet angle ne s&apos;est pas enregistré correctement — un problème connu des disques Tesla.</translation>
    </message>
    <message>
        <source>No footage this minute.</source>
        <extracomment>On a camera&apos;s tile: the car wrote nothing for this camera at this time</extracomment>
        <translation>Aucune vidéo pour cette minute.</translation>
    </message>
</context>
<context>
    <name>EvidencePackage</name>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it is no longer there.</source>
        <translation>Impossible de lire %1 sur le disque — il n&apos;y est plus.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it isn&apos;t an ordinary file.</source>
        <translation>Impossible de lire %1 sur le disque — ce n&apos;est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — the system refused to open it.</source>
        <translation>Impossible de lire %1 sur le disque — le système a refusé de l&apos;ouvrir.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — the drive reported an error.</source>
        <translation>Impossible de lire %1 sur le disque — le disque a signalé une erreur.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — the disk is full.</source>
        <translation>Impossible d&apos;écrire l&apos;archive à cet endroit — le disque est plein.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — that folder can&apos;t be written to.</source>
        <translation>Impossible d&apos;écrire l&apos;archive à cet endroit — ce dossier n&apos;est pas accessible en écriture.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — that folder doesn&apos;t exist.</source>
        <translation>Impossible d&apos;écrire l&apos;archive à cet endroit — ce dossier n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — a folder already has that name.</source>
        <translation>Impossible d&apos;écrire l&apos;archive à cet endroit — un dossier porte déjà ce nom.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — the disk reported an error.</source>
        <translation>Impossible d&apos;écrire l&apos;archive à cet endroit — le disque a signalé une erreur.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it stopped answering.</source>
        <translation>Impossible de lire %1 sur le disque — il a cessé de répondre.</translation>
    </message>
    <message>
        <source>%1 changed while the package was being made — the package was not made.</source>
        <translation>%1 a changé pendant la création de l&apos;archive — l&apos;archive n&apos;a pas été créée.</translation>
    </message>
    <message>
        <source>%1 changed since the report was made — the package was not made.</source>
        <translation>%1 a changé depuis la création du rapport — l&apos;archive n&apos;a pas été créée.</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the package somewhere else.</source>
        <translation>Keelhold n&apos;écrit jamais sur votre disque Tesla&#xa0;: enregistrez donc l&apos;archive ailleurs.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be a name inside the package — the package was not made.</source>
        <translation>%1 ne peut pas servir de nom dans l&apos;archive — l&apos;archive n&apos;a pas été créée.</translation>
    </message>
</context>
<context>
    <name>ExportError</name>
    <message>
        <source>Unknown export failure.</source>
        <translation>Échec inconnu de l&apos;exportation.</translation>
    </message>
    <message>
        <source>There is no playable footage from this camera in this event.</source>
        <translation>Il n&apos;y a aucune vidéo lisible de cette caméra dans cet événement.</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be put together into one movie.</source>
        <translation>Les vidéos n&apos;ont pas pu être assemblées en une seule.</translation>
    </message>
    <message>
        <source>This footage can&apos;t be written as an MP4 movie with the video tools on this computer.</source>
        <translation>Ces vidéos ne peuvent pas être écrites en MP4 avec les outils vidéo de cet ordinateur.</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>L&apos;exportation a été arrêtée.</translation>
    </message>
</context>
<context>
    <name>ExportFlow</name>
    <message>
        <source>Put together what an insurer, the police or a lawyer asks for: when and where it happened, what each camera saw, how the car was driven, and every original file with a way to check it.</source>
        <translation>Rassemblez ce que demande un assureur, la police ou un avocat&#xa0;: quand et où c&apos;est arrivé, ce que chaque caméra a vu, comment la voiture était conduite, et chaque fichier original avec un moyen de le contrôler.</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>encore quelques secondes</translation>
    </message>
    <message numerus="yes">
        <source>about %n seconds left</source>
        <translation>
            <numerusform>environ %n seconde restante</numerusform>
            <numerusform>environ %n secondes restantes</numerusform>
        </translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>environ une minute restante</translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes left</source>
        <translation>
            <numerusform>environ %n minute restante</numerusform>
            <numerusform>environ %n minutes restantes</numerusform>
        </translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <extracomment>%1 is a number of hours with one decimal, e.g. 1.5</extracomment>
        <translation>environ %1 heures restantes</translation>
    </message>
    <message>
        <source>%1 of %2 frames</source>
        <translation>%1 images sur %2</translation>
    </message>
    <message>
        <source>%1× real time</source>
        <extracomment>How fast the movie is made: 1.8× real time</extracomment>
        <translation>%1× le temps réel</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <extracomment>%1 is the exported file&apos;s name</extracomment>
        <translation>Prêt&#xa0;: %1</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <extracomment>%1 is the saved file&apos;s name</extracomment>
        <translation>Enregistré sous %1</translation>
    </message>
    <message>
        <source>Camera</source>
        <extracomment>Label of the camera picker</extracomment>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Export as</source>
        <translation>Exporter en</translation>
    </message>
    <message>
        <source>One camera (original quality)</source>
        <translation>Une caméra (qualité d&apos;origine)</translation>
    </message>
    <message>
        <source>Grid of every camera</source>
        <translation>Grille de toutes les caméras</translation>
    </message>
    <message>
        <source>Front and sides</source>
        <translation>Avant et côtés</translation>
    </message>
    <message>
        <source>One camera with overlay</source>
        <translation>Une caméra avec incrustations</translation>
    </message>
    <message>
        <source>Show</source>
        <extracomment>Label over the overlay choices: which details the movie shows over the video</extracomment>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Camera names</source>
        <translation>Noms des caméras</translation>
    </message>
    <message>
        <source>Reason and place</source>
        <translation>Motif et lieu</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Données de conduite</translation>
    </message>
    <message>
        <source>No driving data in these clips</source>
        <translation>Aucune donnée de conduite dans ces clips</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Label over the movie&apos;s picture size choices</extracomment>
        <translation>Taille</translation>
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
        <translation>Pleine résolution</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>Label over the choices of which part of the event to export</extracomment>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Whole event</source>
        <translation>Événement entier</translation>
    </message>
    <message>
        <source>From the moment</source>
        <translation>Autour du moment</translation>
    </message>
    <message>
        <source>From 10 seconds before the moment it happened to 20 seconds after.</source>
        <translation>De 10 secondes avant le moment où c&apos;est arrivé jusqu&apos;à 20 secondes après.</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>A part of the event the user sets by start and end</extracomment>
        <translation>Personnalisée</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>De</translation>
    </message>
    <message>
        <source>to</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>à</translation>
    </message>
    <message>
        <source>into the event</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>dans l&apos;événement</translation>
    </message>
    <message>
        <source>The end has to come after the start.</source>
        <translation>La fin doit venir après le début.</translation>
    </message>
    <message>
        <source>Finishing the file…</source>
        <translation>Finalisation du fichier…</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Exportation…</translation>
    </message>
    <message>
        <source>Saving a copy…</source>
        <translation>Enregistrement d&apos;une copie…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>Button that starts the export</extracomment>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>Button that stops a running export</extracomment>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the finished export dialog</extracomment>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Opens the folder that holds the file, with the file selected.</source>
        <translation>Ouvre le dossier qui contient le fichier, avec le fichier sélectionné.</translation>
    </message>
    <message>
        <source>Email…</source>
        <translation>E-mail…</translation>
    </message>
    <message>
        <source>Starts a new email with the file attached.</source>
        <translation>Crée un nouvel e-mail avec le fichier en pièce jointe.</translation>
    </message>
    <message>
        <source>Save to…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>Choose exactly where on your %1 to save this file.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Choisissez précisément où enregistrer ce fichier sur votre %1.</translation>
    </message>
    <message>
        <source>MPEG-4 movie (*.mp4)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.mp4)&quot; as it is</extracomment>
        <translation>Vidéo MPEG-4 (*.mp4)</translation>
    </message>
    <message>
        <source>Incident Report (PDF)</source>
        <translation>Rapport d&apos;incident (PDF)</translation>
    </message>
    <message>
        <source>Evidence Package (ZIP)</source>
        <translation>Archive de preuves (ZIP)</translation>
    </message>
    <message>
        <source>When and where, each camera at the moment, the driving data, and every original file with its SHA-256, ready for an insurer or the police.</source>
        <translation>Quand et où, chaque caméra au moment de l&apos;événement, les données de conduite, et chaque fichier original avec son SHA-256, prêt pour un assureur ou la police.</translation>
    </message>
    <message>
        <source>The report, every original file exactly as the car wrote it, and a SHA256SUMS file anyone can check them with, in one ZIP.</source>
        <extracomment>SHA256SUMS is a file name; keep it as it is</extracomment>
        <translation>Le rapport, chaque fichier original exactement tel que la voiture l&apos;a écrit, et un fichier SHA256SUMS avec lequel chacun peut les contrôler, dans un seul ZIP.</translation>
    </message>
    <message>
        <source>Include unlock keys</source>
        <translation>Inclure les clés de déverrouillage</translation>
    </message>
    <message>
        <source>Lets whoever receives the package play the encrypted footage. Anyone with the keys can watch it.</source>
        <translation>Permet à la personne qui reçoit l&apos;archive de lire les vidéos chiffrées. Toute personne qui possède les clés peut les regarder.</translation>
    </message>
    <message>
        <source>Making the report…</source>
        <translation>Création du rapport…</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.pdf)&quot; as it is</extracomment>
        <translation>Document PDF (*.pdf)</translation>
    </message>
    <message>
        <source>ZIP archive (*.zip)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.zip)&quot; as it is</extracomment>
        <translation>Archive ZIP (*.zip)</translation>
    </message>
    <message>
        <source>Export &amp; Share</source>
        <translation>Exporter et partager</translation>
    </message>
    <message>
        <source>Save this event as its own video file, ready to send to an insurer, police, or anyone else who needs it: one camera exactly as recorded, or every camera in one movie.</source>
        <translation>Enregistrez cet événement dans son propre fichier vidéo, prêt à envoyer à un assureur, à la police ou à toute autre personne qui en a besoin&#xa0;: une caméra exactement telle qu&apos;enregistrée, ou toutes les caméras dans une seule vidéo.</translation>
    </message>
    <message>
        <source>This couldn&apos;t be exported right now. Your original footage on the drive is untouched — you can try again.</source>
        <translation>L&apos;exportation n&apos;a pas pu se faire pour l&apos;instant. Vos vidéos originales sur le disque ne sont pas touchées — vous pouvez réessayer.</translation>
    </message>
    <message>
        <source>Couldn&apos;t save there — try a different folder.</source>
        <translation>Impossible d&apos;enregistrer à cet endroit — essayez un autre dossier.</translation>
    </message>
    <message>
        <source>Stops the export. Your original footage is untouched either way.</source>
        <translation>Arrête l&apos;exportation. Vos vidéos originales ne sont pas touchées, dans un cas comme dans l&apos;autre.</translation>
    </message>
</context>
<context>
    <name>ExportSession</name>
    <message>
        <source>The movie couldn&apos;t be written.</source>
        <translation>La vidéo n&apos;a pas pu être écrite.</translation>
    </message>
    <message>
        <source>There wasn&apos;t enough memory to export the footage.</source>
        <translation>Il n&apos;y avait pas assez de mémoire pour exporter les vidéos.</translation>
    </message>
</context>
<context>
    <name>Exporter</name>
    <message>
        <source>The chosen stretch lies outside this camera&apos;s footage.</source>
        <translation>La portion choisie se trouve en dehors des vidéos de cette caméra.</translation>
    </message>
    <message>
        <source>This camera&apos;s clips are too damaged to make a movie that keeps its own timing.</source>
        <translation>Les clips de cette caméra sont trop endommagés pour créer une vidéo qui respecte leur propre minutage.</translation>
    </message>
</context>
<context>
    <name>FailureScreens</name>
    <message>
        <source>Choose a Different Drive</source>
        <translation>Choisir un autre disque</translation>
    </message>
    <message>
        <source>Tesla dashcam and Sentry footage always lives in a folder named &quot;TeslaCam&quot; at the top level of the drive. If this is the right drive, make sure Dashcam Recording is turned on in your car&apos;s settings.</source>
        <extracomment>&quot;Dashcam Recording&quot; is the car&apos;s setting, as named on its touchscreen</extracomment>
        <translation>Les vidéos Dashcam et Sentinelle de Tesla se trouvent toujours dans un dossier nommé «&#xa0;TeslaCam&#xa0;» à la racine du disque. Si c&apos;est le bon disque, vérifiez que l&apos;enregistrement Dashcam est activé dans les réglages de votre voiture.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; doesn&apos;t have a TeslaCam folder on it, so it may not be the drive from your car.</source>
        <extracomment>%1 is the drive&apos;s name</extracomment>
        <translation>«&#xa0;%1&#xa0;» ne contient pas de dossier TeslaCam&#xa0;: ce n&apos;est peut-être pas le disque de votre voiture.</translation>
    </message>
    <message>
        <source>We couldn&apos;t find a TeslaCam folder</source>
        <translation>Nous n&apos;avons pas trouvé de dossier TeslaCam</translation>
    </message>
    <message>
        <source>Your car needs a drive formatted as exFAT (or FAT32 for smaller drives), and this one is %1. Back up anything important from it first, then reformat it using %2 (choose &quot;ExFAT&quot;) and reinsert it into your car so it can start recording.</source>
        <extracomment>%1 is the drive&apos;s format (e.g. NTFS), %2 a program that formats drives, e.g. &quot;a disk utility such as Disks&quot;. &quot;ExFAT&quot; is the choice as the program names it</extracomment>
        <translation>Votre voiture a besoin d&apos;un disque formaté en exFAT (ou FAT32 pour les petits disques), et celui-ci est en %1. Sauvegardez d&apos;abord tout ce qui est important dessus, puis reformatez-le avec %2 (choisissez «&#xa0;ExFAT&#xa0;») et remettez-le dans votre voiture pour qu&apos;elle puisse commencer à enregistrer.</translation>
    </message>
    <message>
        <source>This drive needs to be reformatted</source>
        <translation>Ce disque doit être reformaté</translation>
    </message>
    <message>
        <source>We need you to point us back to your Tesla drive</source>
        <translation>Veuillez nous indiquer à nouveau votre disque Tesla</translation>
    </message>
    <message>
        <source>%1 asks apps to re-confirm folder access sometimes — for example after a drive is renamed or unplugged and replugged. Nothing is wrong and nothing was lost; just pick the Tesla drive again and everything will pick up where it left off.</source>
        <extracomment>%1 is the operating system, e.g. &quot;Your system&quot;</extracomment>
        <translation>%1 demande parfois aux applications de reconfirmer l&apos;accès aux dossiers — par exemple après qu&apos;un disque a été renommé, ou débranché puis rebranché. Rien d&apos;anormal, et rien n&apos;a été perdu&#xa0;: choisissez simplement à nouveau le disque Tesla et tout reprendra là où vous en étiez.</translation>
    </message>
    <message>
        <source>Choose Tesla drive</source>
        <translation>Choisir le disque Tesla</translation>
    </message>
    <message>
        <source>We need you to point us back to your Vault folder</source>
        <translation>Veuillez nous indiquer à nouveau votre dossier du Coffre</translation>
    </message>
    <message>
        <source>%1 asks apps to re-confirm folder access sometimes — for example after a drive is renamed or unplugged and replugged. Nothing is wrong and nothing was lost; just pick the Vault folder again and everything will pick up where it left off.</source>
        <extracomment>%1 is the operating system, e.g. &quot;Your system&quot;</extracomment>
        <translation>%1 demande parfois aux applications de reconfirmer l&apos;accès aux dossiers — par exemple après qu&apos;un disque a été renommé, ou débranché puis rebranché. Rien d&apos;anormal, et rien n&apos;a été perdu&#xa0;: choisissez simplement à nouveau le dossier du Coffre et tout reprendra là où vous en étiez.</translation>
    </message>
    <message>
        <source>Choose Vault folder</source>
        <translation>Choisir le dossier du Coffre</translation>
    </message>
    <message>
        <source>This drive doesn&apos;t have any footage yet</source>
        <translation>Ce disque ne contient encore aucune vidéo</translation>
    </message>
    <message>
        <source>We found a TeslaCam folder, but there&apos;s nothing in it yet. Your car saves footage here as you drive and while it&apos;s parked with Sentry Mode on — check back after your next drive.</source>
        <translation>Nous avons trouvé un dossier TeslaCam, mais il est encore vide. Votre voiture y enregistre des vidéos pendant que vous roulez et lorsqu&apos;elle est garée avec le Mode Sentinelle activé — revenez après votre prochain trajet.</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt dashcam clips so only your Tesla account can view them. This isn&apos;t damage or an error — Keelhold still safely backs these files up exactly as they are, and encrypted clips can be watched anytime at %1. Want future footage to play right here? There&apos;s a 30-second setting in your car.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Les versions récentes du logiciel Tesla peuvent chiffrer les clips Dashcam pour que seul votre compte Tesla puisse les voir. Ce n&apos;est ni un dommage ni une erreur — Keelhold sauvegarde quand même ces fichiers en toute sécurité, exactement tels quels, et les clips chiffrés peuvent être regardés à tout moment sur %1. Vous voulez que les prochaines vidéos se lisent directement ici&#xa0;? Il suffit d&apos;un réglage de 30 secondes dans votre voiture.</translation>
    </message>
    <message>
        <source>Your car is encrypting this footage</source>
        <translation>Votre voiture chiffre ces vidéos</translation>
    </message>
    <message>
        <source>Show Me the 30-Second Fix</source>
        <translation>Voir le réglage de 30 secondes</translation>
    </message>
    <message>
        <source>Your drive was disconnected</source>
        <translation>Votre disque a été déconnecté</translation>
    </message>
    <message>
        <source>No problem — nothing was lost. Whatever was in progress is paused and will pick back up right where it left off as soon as you plug the drive back in.</source>
        <translation>Aucun problème — rien n&apos;a été perdu. Ce qui était en cours est en pause et reprendra exactement là où il s&apos;était arrêté dès que vous rebrancherez le disque.</translation>
    </message>
</context>
<context>
    <name>FileHandOff</name>
    <message>
        <source>Show the file in its folder, or attach it to a new email.</source>
        <translation>Afficher le fichier dans son dossier, ou le joindre à un nouvel e-mail.</translation>
    </message>
</context>
<context>
    <name>H264Encoder</name>
    <message>
        <source>There wasn&apos;t enough memory to export the footage.</source>
        <translation>Il n&apos;y avait pas assez de mémoire pour exporter les vidéos.</translation>
    </message>
    <message>
        <source>The movie&apos;s video encoder couldn&apos;t be started: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>L&apos;encodeur vidéo n&apos;a pas pu être démarré&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be encoded: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>Les vidéos n&apos;ont pas pu être encodées&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>HardMoment</name>
    <message>
        <source>Hard braking</source>
        <translation>Freinage brusque</translation>
    </message>
    <message>
        <source>Swerve</source>
        <translation>Écart brusque</translation>
    </message>
    <message>
        <source>Sudden stop</source>
        <translation>Arrêt soudain</translation>
    </message>
    <message>
        <source>Emergency braking</source>
        <translation>Freinage d&apos;urgence</translation>
    </message>
    <message>
        <source>Self-Driving off</source>
        <translation>Conduite autonome désactivée</translation>
    </message>
    <message>
        <source>Cruise control off</source>
        <translation>Régulateur de vitesse désactivé</translation>
    </message>
    <message>
        <source>Autosteer off</source>
        <translation>Autosteer désactivé</translation>
    </message>
</context>
<context>
    <name>HealthComputer</name>
    <message>
        <source>These clips are in a folder on this %1, not on your car&apos;s drive, so there&apos;s nothing to reformat.</source>
        <extracomment>%1 is the word for the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Ces clips se trouvent dans un dossier de cet %1, pas sur le disque de votre voiture&#xa0;: il n&apos;y a donc rien à reformater.</translation>
    </message>
    <message>
        <source>Your drive is formatted exFAT — exactly what your Tesla expects. No action needed.</source>
        <translation>Votre disque est formaté en exFAT — exactement ce qu&apos;attend votre Tesla. Aucune action n&apos;est nécessaire.</translation>
    </message>
    <message>
        <source>Your drive is formatted FAT32. Older Tesla software prefers exFAT for drives over 32 GB — if you ever see recording gaps, reformatting to exFAT (in %1, after backing up) can help.</source>
        <extracomment>%1 names the tool to format a drive with, e.g. &quot;a disk utility such as Disks&quot;</extracomment>
        <translation>Votre disque est formaté en FAT32. Les anciennes versions du logiciel Tesla préfèrent l&apos;exFAT pour les disques de plus de 32 Go — si vous constatez un jour des trous dans les enregistrements, reformater en exFAT (avec %1, après avoir sauvegardé) peut aider.</translation>
    </message>
    <message>
        <source>Your drive is formatted %1, which your car can record to. exFAT is the most widely used choice if you also read it on other computers.</source>
        <extracomment>%1 is a file system name, e.g. ext4</extracomment>
        <translation>Votre disque est formaté en %1, sur lequel votre voiture peut enregistrer. L&apos;exFAT est le choix le plus répandu si vous le lisez aussi sur d&apos;autres ordinateurs.</translation>
    </message>
    <message>
        <source>This drive is formatted %1, which your car cannot record to. Reformat it to exFAT before using it as a dashcam drive.</source>
        <extracomment>%1 is a file system name, e.g. NTFS</extracomment>
        <translation>Ce disque est formaté en %1, sur lequel votre voiture ne peut pas enregistrer. Reformatez-le en exFAT avant de l&apos;utiliser comme disque Dashcam.</translation>
    </message>
    <message>
        <source>This drive is formatted %1, which your car may not fully support. exFAT is the safest choice.</source>
        <extracomment>%1 is a file system name</extracomment>
        <translation>Ce disque est formaté en %1, que votre voiture ne prend peut-être pas entièrement en charge. L&apos;exFAT est le choix le plus sûr.</translation>
    </message>
    <message>
        <source>We couldn&apos;t determine how this drive is formatted.</source>
        <translation>Nous n&apos;avons pas pu déterminer comment ce disque est formaté.</translation>
    </message>
    <message numerus="yes">
        <source>Back up %n new events</source>
        <translation>
            <numerusform>Sauvegarder %n nouvel événement</numerusform>
            <numerusform>Sauvegarder %n nouveaux événements</numerusform>
        </translation>
    </message>
    <message>
        <source>These moments are only on your car&apos;s drive right now. Keep them so they&apos;re safe even if the drive fills up or fails.</source>
        <translation>Ces moments ne se trouvent pour l&apos;instant que sur le disque de votre voiture. Conservez-les pour qu&apos;ils restent en sécurité même si le disque se remplit ou tombe en panne.</translation>
    </message>
    <message>
        <source>%1% full — normal for a Tesla drive</source>
        <extracomment>%1 is a whole percentage; the % sign follows it</extracomment>
        <translation>Plein à %1&#xa0;% — normal pour un disque Tesla</translation>
    </message>
    <message>
        <source>The car reuses space by overwriting its oldest footage. That&apos;s expected, not a problem — back up anything you want to keep from the recommendation above.</source>
        <translation>La voiture réutilise l&apos;espace en écrasant ses vidéos les plus anciennes. C&apos;est normal, ce n&apos;est pas un problème — sauvegardez ce que vous voulez garder grâce à la recommandation ci-dessus.</translation>
    </message>
    <message>
        <source>Drive is %1% full</source>
        <extracomment>%1 is a whole percentage; the % sign follows it</extracomment>
        <translation>Disque plein à %1&#xa0;%</translation>
    </message>
    <message>
        <source>Nothing urgent yet, but it&apos;s worth backing up regularly so you&apos;re never caught out.</source>
        <translation>Rien d&apos;urgent pour l&apos;instant, mais il vaut mieux sauvegarder régulièrement pour ne jamais être pris au dépourvu.</translation>
    </message>
    <message numerus="yes">
        <source>%n clips didn&apos;t record properly</source>
        <translation>
            <numerusform>%n clip ne s&apos;est pas enregistré correctement</numerusform>
            <numerusform>%n clips ne se sont pas enregistrés correctement</numerusform>
        </translation>
    </message>
    <message>
        <source>A small number of damaged clips is normal and not something to worry about.</source>
        <translation>Un petit nombre de clips endommagés est normal et n&apos;a rien d&apos;inquiétant.</translation>
    </message>
    <message>
        <source>This is a known issue with some Tesla USB drives, especially cheaper or older ones. Consider a bigger-name USB 3.0 drive if this keeps happening.</source>
        <translation>C&apos;est un problème connu avec certains disques USB Tesla, surtout les moins chers ou les plus anciens. Si cela se reproduit, envisagez un disque USB 3.0 d&apos;une marque reconnue.</translation>
    </message>
    <message>
        <source>Some clips are encrypted by your car</source>
        <translation>Certains clips sont chiffrés par votre voiture</translation>
    </message>
    <message>
        <source>Recent Tesla software can encrypt dashcam footage. Keelhold can still back these up — see Help for how to view them.</source>
        <translation>Les versions récentes du logiciel Tesla peuvent chiffrer les vidéos Dashcam. Keelhold peut quand même les sauvegarder — consultez l&apos;Aide pour savoir comment les regarder.</translation>
    </message>
    <message>
        <source>Everything looks good</source>
        <translation>Tout va bien</translation>
    </message>
    <message>
        <source>Your drive is healthy and up to date. Nothing needs your attention right now.</source>
        <translation>Votre disque est en bon état et à jour. Rien ne demande votre attention pour l&apos;instant.</translation>
    </message>
</context>
<context>
    <name>HealthPresenter</name>
    <message>
        <source>%1% full — normal for a Tesla drive. The car reuses space by overwriting its oldest footage.</source>
        <extracomment>%1 is a whole percentage; &quot;%1% full&quot; reads &quot;90% full&quot;</extracomment>
        <translation>Plein à %1&#xa0;% — normal pour un disque Tesla. La voiture réutilise l&apos;espace en écrasant ses vidéos les plus anciennes.</translation>
    </message>
    <message numerus="yes">
        <source>You have %n events not backed up yet — see the recommendation below.</source>
        <translation>
            <numerusform>Vous avez %n événement pas encore sauvegardé — voir la recommandation ci-dessous.</numerusform>
            <numerusform>Vous avez %n événements pas encore sauvegardés — voir la recommandation ci-dessous.</numerusform>
        </translation>
    </message>
    <message>
        <source>Free Space</source>
        <translation>Espace libre</translation>
    </message>
    <message>
        <source>We couldn&apos;t read this drive&apos;s capacity.</source>
        <translation>Nous n&apos;avons pas pu lire la capacité de ce disque.</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>Heading: the drive&apos;s file system format (exFAT, FAT32, …)</extracomment>
        <translation>Format</translation>
    </message>
    <message>
        <source>Footage Condition</source>
        <translation>État des vidéos</translation>
    </message>
    <message>
        <source>Still checking your footage for damage — check back shortly.</source>
        <translation>Recherche de vidéos endommagées en cours — revenez dans un instant.</translation>
    </message>
    <message numerus="yes">
        <source>All %n checked clips are in good shape.</source>
        <translation>
            <numerusform>%n clip contrôlé&#xa0;: en bon état.</numerusform>
            <numerusform>%n clips contrôlés&#xa0;: tous en bon état.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n checked clips didn&apos;t record properly.</source>
        <extracomment>%1 damaged clips of %n checked</extracomment>
        <translation>
            <numerusform>Clips mal enregistrés&#xa0;: %1 sur %n contrôlé.</numerusform>
            <numerusform>Clips mal enregistrés&#xa0;: %1 sur %n contrôlés.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is a known issue with some Tesla USB drives and isn&apos;t something you did.</source>
        <translation>C&apos;est un problème connu de certains disques USB Tesla, et vous n&apos;y êtes pour rien.</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Chiffrement</translation>
    </message>
    <message>
        <source>Some clips on this drive are encrypted by your car.</source>
        <translation>Certains clips de ce disque sont chiffrés par votre voiture.</translation>
    </message>
    <message>
        <source>Keelhold can still back these up as-is. Encrypted clips play at %1.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Keelhold peut quand même les sauvegarder tels quels. Les clips chiffrés se lisent sur %1.</translation>
    </message>
    <message>
        <source>Turn encryption off for future recordings…</source>
        <translation>Désactiver le chiffrement pour les prochains enregistrements…</translation>
    </message>
    <message>
        <source>A 30-second setting in your car. Everything already recorded is unaffected.</source>
        <translation>Un réglage de 30 secondes dans votre voiture. Tout ce qui est déjà enregistré n&apos;est pas affecté.</translation>
    </message>
    <message>
        <source>Recommendations</source>
        <translation>Recommandations</translation>
    </message>
    <message>
        <source>No drive health yet</source>
        <translation>Santé du disque pas encore disponible</translation>
    </message>
    <message>
        <source>Scan a Tesla drive from the Drive tab to see its fullness, corruption rate, and format at a glance.</source>
        <extracomment>&quot;Drive&quot; is the app&apos;s own tab; translate it as there</extracomment>
        <translation>Analysez un disque Tesla depuis l&apos;onglet Disque pour voir d&apos;un coup d&apos;œil son remplissage, son taux de corruption et son format.</translation>
    </message>
</context>
<context>
    <name>HelpArticle</name>
    <message>
        <source>What is Sentry Mode?</source>
        <translation>Qu&apos;est-ce que le Mode Sentinelle&#xa0;?</translation>
    </message>
    <message>
        <source>Why are clips exactly one minute long?</source>
        <translation>Pourquoi les clips durent-ils exactement une minute&#xa0;?</translation>
    </message>
    <message>
        <source>What does &quot;didn&apos;t record properly&quot; mean?</source>
        <extracomment>The quoted words are the app&apos;s own, from its message about damaged clips</extracomment>
        <translation>Que signifie «&#xa0;ne s&apos;est pas enregistré correctement&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Why does it say some clips are encrypted?</source>
        <translation>Pourquoi est-il indiqué que certains clips sont chiffrés&#xa0;?</translation>
    </message>
    <message>
        <source>How does the Vault keep my footage safe?</source>
        <translation>Comment le Coffre protège-t-il mes vidéos&#xa0;?</translation>
    </message>
    <message>
        <source>Will this app ever change or delete anything on my drive?</source>
        <translation>Cette application modifiera-t-elle ou supprimera-t-elle un jour quelque chose sur mon disque&#xa0;?</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Sentry Mode is your Tesla&apos;s built-in security system. While your car is parked, its cameras watch for people or objects that come close, or for a bump or impact. When something happens, the car saves a short recording from every camera into a &quot;Sentry event&quot; so you can review it later.</source>
        <translation>Le Mode Sentinelle est le système de sécurité intégré de votre Tesla. Lorsque votre voiture est garée, ses caméras surveillent les personnes ou les objets qui s&apos;approchent, ainsi que les chocs ou impacts. Quand quelque chose se produit, la voiture enregistre un court extrait de chaque caméra dans un «&#xa0;événement Sentinelle&#xa0;» pour que vous puissiez le consulter plus tard.</translation>
    </message>
    <message>
        <source>You can turn Sentry Mode on or off, and adjust its sensitivity, from your car&apos;s touchscreen under Safety &amp; Security.</source>
        <translation>Vous pouvez activer ou désactiver le Mode Sentinelle, et régler sa sensibilité, depuis l&apos;écran tactile de votre voiture, dans le menu Sécurité.</translation>
    </message>
    <message>
        <source>Your Tesla records in one-minute segments, one file per camera per minute, rather than one long continuous video. This is simply how the car&apos;s software is built — it makes the recordings easier for the car to manage and less likely to be lost all at once if something goes wrong.</source>
        <translation>Votre Tesla enregistre par segments d&apos;une minute, un fichier par caméra et par minute, plutôt qu&apos;en une seule longue vidéo continue. C&apos;est simplement ainsi qu&apos;est conçu le logiciel de la voiture — les enregistrements sont plus faciles à gérer pour la voiture et risquent moins d&apos;être perdus d&apos;un seul coup en cas de problème.</translation>
    </message>
    <message>
        <source>Keelhold stitches these one-minute files back together into a single, continuous timeline for you, so you never have to think about the individual files — you just scrub through one smooth timeline per event.</source>
        <translation>Keelhold rassemble pour vous ces fichiers d&apos;une minute en une seule chronologie continue&#xa0;: vous n&apos;avez jamais à vous soucier des fichiers individuels — vous parcourez simplement une chronologie fluide par événement.</translation>
    </message>
    <message>
        <source>Occasionally, a clip won&apos;t play — it might be zero bytes, cut off partway through, or simply unreadable. This is a well-known issue with Tesla USB drives, especially with lower-quality or aging drives, and it is not something you did.</source>
        <translation>Il arrive qu&apos;un clip ne se lise pas — il peut faire zéro octet, être coupé en cours de route ou simplement illisible. C&apos;est un problème bien connu des disques USB Tesla, surtout avec des disques de moindre qualité ou vieillissants, et vous n&apos;y êtes pour rien.</translation>
    </message>
    <message>
        <source>When this happens, Keelhold shows that camera angle as a labeled placeholder instead of crashing or freezing, and counts it in Drive Health so you can see how often it&apos;s happening. If it happens a lot, a newer USB 3.0 drive from a reputable brand usually helps.</source>
        <translation>Dans ce cas, Keelhold affiche cet angle de caméra sous forme d&apos;un emplacement signalé au lieu de planter ou de se figer, et le compte dans Santé du disque pour que vous voyiez à quelle fréquence cela arrive. Si cela arrive souvent, un disque USB 3.0 plus récent d&apos;une marque réputée aide généralement.</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt dashcam and Sentry clips so that only you can view them — this is a privacy feature, not damage or an error. Encrypted files still look like normal video files, but no app can decode their contents without the key of each clip.</source>
        <translation>Les versions récentes du logiciel Tesla peuvent chiffrer les clips Dashcam et Sentinelle pour que vous seul puissiez les voir — c&apos;est une fonction de confidentialité, pas un dommage ni une erreur. Les fichiers chiffrés ressemblent toujours à des fichiers vidéo normaux, mais aucune application ne peut décoder leur contenu sans la clé de chaque clip.</translation>
    </message>
    <message>
        <source>Keelhold safely backs up encrypted clips exactly as they are — the backup and verification steps work the same either way.</source>
        <translation>Keelhold sauvegarde les clips chiffrés en toute sécurité, exactement tels quels — les étapes de sauvegarde et de vérification fonctionnent de la même façon dans les deux cas.</translation>
    </message>
    <message>
        <source>To watch them here, choose “Unlock Encrypted Footage…” and sign in with your Tesla account. Keelhold then asks Tesla for each clip&apos;s key, sending only the clip&apos;s locked key and your car&apos;s VIN, never any video, and keeps the keys so the footage plays here from then on, even offline. You can also watch them at %1, where your browser fetches the keys the same way.</source>
        <translation>Pour les regarder ici, choisissez «&#xa0;Déverrouiller les vidéos chiffrées…&#xa0;» et connectez-vous avec votre compte Tesla. Keelhold demande alors à Tesla la clé de chaque clip, en n&apos;envoyant que la clé verrouillée du clip et le VIN de votre voiture, jamais de vidéo, et conserve les clés pour que les vidéos se lisent ici par la suite, même hors ligne. Vous pouvez aussi les regarder sur %1, où votre navigateur obtient les clés de la même façon.</translation>
    </message>
    <message>
        <source>Want future footage to play right here instead? In your car: Controls → Safety → switch off &quot;Encrypt Dashcam Recordings&quot; (about 30 seconds — the app can walk you through it wherever you see the encryption notice). Everything already recorded is unaffected either way.</source>
        <extracomment>Controls, Safety and &quot;Encrypt Dashcam Recordings&quot; are named as on the car&apos;s touchscreen</extracomment>
        <translation>Vous préférez que les prochaines vidéos se lisent directement ici&#xa0;? Dans votre voiture&#xa0;: Commandes → Sécurité → désactivez «&#xa0;Chiffrer les enregistrements Dashcam&#xa0;» (environ 30 secondes — l&apos;application peut vous guider partout où vous voyez l&apos;avis de chiffrement). Tout ce qui est déjà enregistré n&apos;est pas affecté, dans un cas comme dans l&apos;autre.</translation>
    </message>
    <message>
        <source>When you choose &quot;Keep&quot; on an event, Keelhold copies every file for that event to a folder you chose (your &quot;Vault&quot;) while checking the data as it copies. It then re-checks the copy&apos;s checksum (SHA-256) against the original to make sure the copy is a faithful, byte-for-byte match — you&apos;ll see it marked &quot;Verified copy&quot; afterward.</source>
        <extracomment>&quot;Keep&quot; and &quot;Verified copy&quot; are the app&apos;s own button and mark; translate them as there</extracomment>
        <translation>Lorsque vous choisissez «&#xa0;Conserver&#xa0;» pour un événement, Keelhold copie chaque fichier de cet événement dans un dossier que vous avez choisi (votre «&#xa0;Coffre&#xa0;») en contrôlant les données pendant la copie. Il compare ensuite la somme de contrôle (SHA-256) de la copie à celle de l&apos;original pour s&apos;assurer que la copie est fidèle, identique octet par octet — elle apparaît ensuite marquée «&#xa0;Copie vérifiée&#xa0;».</translation>
    </message>
    <message>
        <source>Your Vault works completely independently of your car&apos;s drive: once something is kept, you can browse and watch it any time, even with the Tesla drive unplugged or gone entirely. Re-importing the same drive later automatically recognizes anything already kept, so you never end up with duplicates.</source>
        <translation>Votre Coffre fonctionne de façon totalement indépendante du disque de votre voiture&#xa0;: une fois un événement conservé, vous pouvez le parcourir et le regarder à tout moment, même si le disque Tesla est débranché ou a complètement disparu. Si vous réimportez plus tard le même disque, tout ce qui est déjà conservé est reconnu automatiquement&#xa0;: vous n&apos;avez donc jamais de doublons.</translation>
    </message>
    <message>
        <source>No. Keelhold only ever reads from your Tesla&apos;s drive — no code path in this app writes to it, renames anything on it, or deletes anything from it. The only place this app writes to is the Vault folder you choose on your %1 (or another drive you pick).</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Non. Keelhold ne fait que lire le disque de votre Tesla — aucune partie du code de cette application n&apos;y écrit, n&apos;y renomme quoi que ce soit ni n&apos;en supprime quoi que ce soit. Le seul endroit où cette application écrit est le dossier du Coffre que vous choisissez sur votre %1 (ou sur un autre disque de votre choix).</translation>
    </message>
    <message>
        <source>This matters most right after something happens to your car: the drive from your glovebox is exactly as safe to hand to police or an insurer after using this app as it was before.</source>
        <translation>C&apos;est surtout important juste après un incident avec votre voiture&#xa0;: le disque de votre boîte à gants peut être remis à la police ou à un assureur après l&apos;utilisation de cette application exactement comme avant.</translation>
    </message>
    <message>
        <source>You can review everything without touching the mouse:</source>
        <translation>Vous pouvez tout examiner sans toucher à la souris&#xa0;:</translation>
    </message>
    <message>
        <source>A quick reminder of these appears under the playback controls until you hide it — and you can always come back here.</source>
        <translation>Un petit rappel de ces raccourcis apparaît sous les commandes de lecture jusqu&apos;à ce que vous le masquiez — et vous pouvez toujours revenir ici.</translation>
    </message>
    <message>
        <source>Space — play or pause all cameras together</source>
        <extracomment>A line of the keyboard help: the key, a dash, what it does. Name keys as keyboards there mark them</extracomment>
        <translation>Espace — lire ou mettre en pause toutes les caméras ensemble</translation>
    </message>
    <message>
        <source>← and → — skip back or forward 5 seconds</source>
        <translation>← et → — reculer ou avancer de 5 secondes</translation>
    </message>
    <message>
        <source>, and . — step one frame back or forward (pauses first)</source>
        <translation>, et . — reculer ou avancer d&apos;une image (met d&apos;abord en pause)</translation>
    </message>
    <message>
        <source>1 to 7 — jump straight to a camera (in the order shown in the grid)</source>
        <translation>1 à 7 — aller directement à une caméra (dans l&apos;ordre de la grille)</translation>
    </message>
    <message>
        <source>0 — back to all cameras</source>
        <translation>0 — revenir à toutes les caméras</translation>
    </message>
    <message>
        <source>M — replay the moment it happened (just before the honk, bump, or detection)</source>
        <translation>M — revoir le moment où c&apos;est arrivé (juste avant le coup de klaxon, le choc ou la détection)</translation>
    </message>
    <message>
        <source>N and Shift+N — jump to the next or previous thing that happened: someone moving in front of a camera (that camera is enlarged), or a hard brake, swerve or Autosteer switching off</source>
        <translation>N et Maj+N — aller au fait marquant suivant ou précédent&#xa0;: quelqu&apos;un qui bouge devant une caméra (cette caméra est alors agrandie), ou un freinage brusque, un écart brusque ou la désactivation d&apos;Autosteer</translation>
    </message>
    <message>
        <source>F — fill the window with just the cameras (Esc goes back)</source>
        <translation>F — remplir la fenêtre avec les caméras seules (Esc pour revenir)</translation>
    </message>
    <message>
        <source>T — show or hide the car&apos;s driving data over the video (speed, pedals, steering, Autopilot)</source>
        <translation>T — afficher ou masquer les données de conduite de la voiture sur la vidéo (vitesse, pédales, direction, Autopilot)</translation>
    </message>
    <message>
        <source>↑ and ↓ — move through the event list, auto-playing each one</source>
        <translation>↑ et ↓ — parcourir la liste des événements, en lisant automatiquement chacun d&apos;eux</translation>
    </message>
    <message>
        <source>K — keep a safe copy of the selected event in your Vault</source>
        <translation>K — conserver une copie en lieu sûr de l&apos;événement sélectionné dans votre Coffre</translation>
    </message>
    <message>
        <source>D — dismiss the selected event (never deletes any footage)</source>
        <translation>D — écarter l&apos;événement sélectionné (ne supprime jamais aucune vidéo)</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Help</source>
        <extracomment>Heading over the list of help articles</extracomment>
        <translation>Aide</translation>
    </message>
</context>
<context>
    <name>HelpWindowController</name>
    <message>
        <source>Keelhold Help</source>
        <translation>Aide de Keelhold</translation>
    </message>
</context>
<context>
    <name>InboxPresenter</name>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is the long date, %2 the time: &quot;Monday, 2 June 2025 at 2:11:05 AM&quot;</extracomment>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>Heading over the events of today</extracomment>
        <translation>Aujourd&apos;hui</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>Heading over the events of yesterday</extracomment>
        <translation>Hier</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>A row&apos;s second line: the place, then the event&apos;s size on disk</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Details limited — footage intact</source>
        <translation>Détails limités — vidéo intacte</translation>
    </message>
    <message>
        <source>Place and details stay with your car</source>
        <translation>Le lieu et les détails restent dans la voiture</translation>
    </message>
    <message>
        <source>Your car didn&apos;t write a details file for this event, so we don&apos;t know the exact reason or location — the video itself is intact.</source>
        <translation>Votre voiture n&apos;a pas écrit de fichier de détails pour cet événement&#xa0;: nous ne connaissons donc ni le motif exact ni le lieu — la vidéo elle-même est intacte.</translation>
    </message>
    <message>
        <source>Encrypted by your car</source>
        <translation>Chiffré par votre voiture</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <extracomment>Short reason on a row&apos;s chip: the footage is encrypted</extracomment>
        <translation>Chiffré</translation>
    </message>
    <message>
        <source>Your car encrypted this recording, and its reason and place with it. Keelhold keeps it byte for byte; unlock it with your Tesla account to watch it here.</source>
        <translation>Votre voiture a chiffré cet enregistrement, ainsi que son motif et son lieu. Keelhold le conserve octet par octet&#xa0;; déverrouillez-le avec votre compte Tesla pour le regarder ici.</translation>
    </message>
    <message>
        <source>Locked — unlock it with your Tesla account to watch it here.</source>
        <translation>Verrouillé — déverrouillez-le avec votre compte Tesla pour le regarder ici.</translation>
    </message>
    <message>
        <source>Unlocked — its keys are kept on this computer, so it plays here even offline.</source>
        <translation>Déverrouillé — ses clés sont enregistrées sur cet ordinateur, il se lit donc ici même hors ligne.</translation>
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
        <translation>Nouveau — vous ne l&apos;avez pas encore regardé.</translation>
    </message>
    <message>
        <source>A verified copy is safe in your Vault.</source>
        <translation>Une copie vérifiée est en sécurité dans votre Coffre.</translation>
    </message>
    <message numerus="yes">
        <source>%n damaged clips</source>
        <translation>
            <numerusform>%n clip endommagé</numerusform>
            <numerusform>%n clips endommagés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n angles from this moment didn&apos;t record properly. This is a known Tesla drive issue, not something you did.</source>
        <extracomment>Camera angles, one per camera, whose clips are damaged</extracomment>
        <translation>
            <numerusform>%n angle de ce moment ne s&apos;est pas enregistré correctement. C&apos;est un problème connu des disques Tesla, vous n&apos;y êtes pour rien.</numerusform>
            <numerusform>%n angles de ce moment ne se sont pas enregistrés correctement. C&apos;est un problème connu des disques Tesla, vous n&apos;y êtes pour rien.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reason: %1</source>
        <extracomment>Screen reader name of a row&apos;s reason chip; %1 is the car&apos;s reason</extracomment>
        <translation>Motif&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>Keep %n</source>
        <extracomment>Button that keeps the ticked events in the Vault; %n is how many</extracomment>
        <translation>
            <numerusform>Conserver %n</numerusform>
            <numerusform>Conserver %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Dismiss %n</source>
        <extracomment>Button that hides the ticked events from the list; %n is how many</extracomment>
        <translation>
            <numerusform>Écarter %n</numerusform>
            <numerusform>Écarter %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Deselect this event</source>
        <translation>Désélectionner cet événement</translation>
    </message>
    <message>
        <source>Select this event</source>
        <translation>Sélectionner cet événement</translation>
    </message>
    <message>
        <source>New</source>
        <extracomment>Status filter: events not watched yet</extracomment>
        <translation>Nouveaux</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <extracomment>Status filter: events already watched</extracomment>
        <translation>Vus</translation>
    </message>
    <message>
        <source>In Vault</source>
        <extracomment>Status filter: events kept in the Vault</extracomment>
        <translation>Au Coffre</translation>
    </message>
    <message>
        <source>Dismissed</source>
        <extracomment>Status filter: events hidden from the list</extracomment>
        <translation>Écartés</translation>
    </message>
    <message>
        <source>Sentry</source>
        <extracomment>Kind filter: Sentry Mode events</extracomment>
        <translation>Sentinelle</translation>
    </message>
    <message>
        <source>Saved</source>
        <extracomment>Kind filter: clips the driver saved</extracomment>
        <translation>Enregistrés</translation>
    </message>
    <message>
        <source>Recent Driving</source>
        <extracomment>Kind filter: the car&apos;s rolling recording of recent driving</extracomment>
        <translation>Conduite récente</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>One place in the Activity line: camera name, then time into the event (&quot;Left Side 2:14&quot;)</extracomment>
        <translation>%1&#xa0;%2</translation>
    </message>
    <message>
        <source>Activity: %1</source>
        <translation>Activité&#xa0;: %1</translation>
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
        <translation>Disque</translation>
    </message>
    <message>
        <source>Switch Drive</source>
        <translation>Changer de disque</translation>
    </message>
    <message>
        <source>Pick a different Tesla drive or re-scan this one.</source>
        <translation>Choisir un autre disque Tesla ou réanalyser celui-ci.</translation>
    </message>
    <message>
        <source>Checking for new events…</source>
        <translation>Recherche de nouveaux événements…</translation>
    </message>
    <message>
        <source>Filter</source>
        <extracomment>Button that opens the filter menu</extracomment>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>Show only certain statuses, reasons, or kinds of events.</source>
        <translation>Afficher seulement certains statuts, motifs ou types d&apos;événements.</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Heading in the filter menu: filter by status (new, reviewed, …)</extracomment>
        <translation>Statut</translation>
    </message>
    <message>
        <source>Reason</source>
        <extracomment>Heading in the filter menu: filter by the car&apos;s reason for recording</extracomment>
        <translation>Motif</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Heading in the filter menu: filter by kind (Sentry, saved, recent driving)</extracomment>
        <translation>Type</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Effacer tous les filtres</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>Button that starts ticking several events</extracomment>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Select multiple events to keep or dismiss them all at once.</source>
        <translation>Sélectionner plusieurs événements pour les conserver ou les écarter tous en même temps.</translation>
    </message>
    <message>
        <source>Tick events to keep or dismiss them together.</source>
        <translation>Cochez des événements pour les conserver ou les écarter ensemble.</translation>
    </message>
    <message>
        <source>Archive the selected events to your Vault.</source>
        <translation>Conserver les événements sélectionnés dans votre Coffre.</translation>
    </message>
    <message>
        <source>Hide the selected events. This never deletes footage from your drive or Vault.</source>
        <translation>Masquer les événements sélectionnés. Cela ne supprime jamais de vidéos de votre disque ni de votre Coffre.</translation>
    </message>
    <message>
        <source>Remove this filter.</source>
        <translation>Retirer ce filtre.</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Button that keeps the event in the Vault</extracomment>
        <translation>Conserver</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Button that hides the event from the list</extracomment>
        <translation>Écarter</translation>
    </message>
    <message>
        <source>Just had an incident while driving?</source>
        <translation>Vous venez d&apos;avoir un incident en roulant&#xa0;?</translation>
    </message>
    <message>
        <source>It&apos;s likely in Recent Driving below. This folder overwrites itself as you keep driving, so keep a copy now if you need it.</source>
        <extracomment>&quot;Recent Driving&quot; is the list&apos;s own heading for the car&apos;s rolling recording</extracomment>
        <translation>Il se trouve probablement dans «&#xa0;Conduite récente&#xa0;» ci-dessous. Ce dossier s&apos;écrase lui-même à mesure que vous roulez&#xa0;: conservez-en une copie maintenant si vous en avez besoin.</translation>
    </message>
    <message>
        <source>Keep Recent Driving Now</source>
        <translation>Conserver la conduite récente</translation>
    </message>
    <message>
        <source>Copies all of Recent Driving to your Vault before it&apos;s overwritten. Your drive itself is never changed.</source>
        <translation>Copie toute la conduite récente dans votre Coffre avant qu&apos;elle soit écrasée. Votre disque lui-même n&apos;est jamais modifié.</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>Button that plays Recent Driving</extracomment>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>All statuses</source>
        <translation>Tous les statuts</translation>
    </message>
    <message>
        <source>Any reason</source>
        <translation>Tous les motifs</translation>
    </message>
    <message>
        <source>Everything</source>
        <extracomment>Kind filter: no filter, every kind of event</extracomment>
        <translation>Tout</translation>
    </message>
</context>
<context>
    <name>IncidentReport</name>
    <message>
        <source>There is no folder at %1.</source>
        <translation>Il n&apos;y a pas de dossier à %1.</translation>
    </message>
    <message>
        <source>The report couldn&apos;t be written there.</source>
        <translation>Le rapport n&apos;a pas pu être écrit à cet endroit.</translation>
    </message>
    <message>
        <source>There is no room for the report on this computer.</source>
        <translation>Il n&apos;y a pas assez de place pour le rapport sur cet ordinateur.</translation>
    </message>
</context>
<context>
    <name>KeepSummary</name>
    <message>
        <source>Keeping stopped</source>
        <translation>Conservation arrêtée</translation>
    </message>
    <message numerus="yes">
        <source>%1 was disconnected before everything was kept: %n events kept and verified.</source>
        <translation>
            <numerusform>%1 a été déconnecté avant que tout soit conservé&#xa0;: %n événement conservé et vérifié.</numerusform>
            <numerusform>%1 a été déconnecté avant que tout soit conservé&#xa0;: %n événements conservés et vérifiés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped keeping from %1: %n events kept and verified.</source>
        <translation>
            <numerusform>Conservation depuis %1 arrêtée&#xa0;: %n événement conservé et vérifié.</numerusform>
            <numerusform>Conservation depuis %1 arrêtée&#xa0;: %n événements conservés et vérifiés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some footage couldn&apos;t be kept</source>
        <translation>Certaines vidéos n&apos;ont pas pu être conservées</translation>
    </message>
    <message numerus="yes">
        <source>Kept %n new events from %1, but some files couldn&apos;t be kept. %2</source>
        <extracomment>%1 is the drive&apos;s name, %2 the first failed file&apos;s reason (a whole sentence)</extracomment>
        <translation>
            <numerusform>%n nouvel événement conservé depuis %1, mais certains fichiers n&apos;ont pas pu être conservés. %2</numerusform>
            <numerusform>%n nouveaux événements conservés depuis %1, mais certains fichiers n&apos;ont pas pu être conservés. %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing new to keep</source>
        <translation>Rien de nouveau à conserver</translation>
    </message>
    <message>
        <source>Everything on %1 is already in your Vault.</source>
        <translation>Tout ce qui se trouve sur %1 est déjà dans votre Coffre.</translation>
    </message>
    <message>
        <source>Footage kept</source>
        <translation>Vidéos conservées</translation>
    </message>
    <message numerus="yes">
        <source>Kept %n new events from %1 — %2, all verified</source>
        <extracomment>%1 is the drive&apos;s name, %2 a size such as &quot;1.2 GB&quot;</extracomment>
        <translation>
            <numerusform>%n nouvel événement conservé depuis %1 — %2, vérifié</numerusform>
            <numerusform>%n nouveaux événements conservés depuis %1 — %2, tous vérifiés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeyService</name>
    <message>
        <source>Tesla couldn&apos;t confirm that your account owns the car that recorded this clip, so it can&apos;t be unlocked.</source>
        <translation>Tesla n&apos;a pas pu confirmer que votre compte est propriétaire de la voiture qui a enregistré ce clip&#xa0;: il ne peut donc pas être déverrouillé.</translation>
    </message>
    <message>
        <source>Your Tesla sign-in has expired. Sign in again to unlock this footage.</source>
        <translation>Votre connexion Tesla a expiré. Reconnectez-vous pour déverrouiller ces vidéos.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service couldn&apos;t be reached. Check your internet connection and try again.</source>
        <translation>Le service de Tesla est injoignable. Vérifiez votre connexion Internet et réessayez.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service refused to unlock this clip. Try again later.</source>
        <translation>Le service de Tesla a refusé de déverrouiller ce clip. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Tesla&apos;s service gave an answer Keelhold couldn&apos;t read. Try again later.</source>
        <translation>Le service de Tesla a donné une réponse que Keelhold n&apos;a pas pu lire. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>This clip was copied while the car was still writing it, so it can&apos;t be unlocked.</source>
        <translation>Ce clip a été copié alors que la voiture l&apos;écrivait encore&#xa0;: il ne peut donc pas être déverrouillé.</translation>
    </message>
    <message>
        <source>This clip&apos;s header is damaged, so it can&apos;t be unlocked.</source>
        <translation>L&apos;en-tête de ce clip est endommagé&#xa0;: il ne peut donc pas être déverrouillé.</translation>
    </message>
    <message>
        <source>Sign in with your Tesla account to unlock this footage.</source>
        <translation>Connectez-vous avec votre compte Tesla pour déverrouiller ces vidéos.</translation>
    </message>
    <message>
        <source>The key Tesla&apos;s service sent doesn&apos;t open this clip, so it can&apos;t be unlocked.</source>
        <translation>La clé envoyée par le service de Tesla n&apos;ouvre pas ce clip&#xa0;: il ne peut donc pas être déverrouillé.</translation>
    </message>
    <message>
        <source>This clip couldn&apos;t be read from the drive, so it can&apos;t be unlocked.</source>
        <translation>Ce clip n&apos;a pas pu être lu sur le disque&#xa0;: il ne peut donc pas être déverrouillé.</translation>
    </message>
</context>
<context>
    <name>KeyboardHints</name>
    <message>
        <source>Space</source>
        <extracomment>The space bar, as a key&apos;s name</extracomment>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Lecture/Pause</translation>
    </message>
    <message>
        <source>Skip 5s</source>
        <translation>Saut de 5 s</translation>
    </message>
    <message>
        <source>Frame step</source>
        <translation>Image par image</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Caméras</translation>
    </message>
    <message>
        <source>All cameras</source>
        <translation>Toutes les caméras</translation>
    </message>
    <message>
        <source>The moment</source>
        <extracomment>Jump to the moment the event happened</extracomment>
        <translation>Le moment</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Faits marquants</translation>
    </message>
    <message>
        <source>Fill window</source>
        <translation>Plein cadre</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Données de conduite</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Keep the event in the Vault</extracomment>
        <translation>Conserver</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Hide the event from the list</extracomment>
        <translation>Écarter</translation>
    </message>
    <message>
        <source>Hide these hints. The full shortcut list stays in Help.</source>
        <translation>Masquer ces astuces. La liste complète des raccourcis reste dans l&apos;Aide.</translation>
    </message>
</context>
<context>
    <name>ListPaneResizeHandle</name>
    <message>
        <source>Resize event list</source>
        <translation>Redimensionner la liste des événements</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Copy Diagnostic Information</source>
        <translation>Copier les informations de diagnostic</translation>
    </message>
</context>
<context>
    <name>MapViewModel</name>
    <message>
        <source>Kept in your Vault</source>
        <translation>Conservé dans votre Coffre</translation>
    </message>
    <message>
        <source>Driving yourself</source>
        <extracomment>The route key&apos;s colour for driving without Autopilot</extracomment>
        <translation>Conduite manuelle</translation>
    </message>
    <message>
        <source>Map tiles aren&apos;t available — check your internet connection.</source>
        <translation>Les fonds de carte ne sont pas disponibles — vérifiez votre connexion Internet.</translation>
    </message>
</context>
<context>
    <name>MockEngine</name>
    <message>
        <source>Reading your drive…</source>
        <translation>Lecture de votre disque…</translation>
    </message>
    <message>
        <source>Reading Sentry events…</source>
        <translation>Lecture des événements Sentinelle…</translation>
    </message>
    <message>
        <source>Reading saved clips…</source>
        <translation>Lecture des clips enregistrés…</translation>
    </message>
    <message>
        <source>Reading recent driving…</source>
        <translation>Lecture de la conduite récente…</translation>
    </message>
    <message>
        <source>Almost done…</source>
        <translation>Presque terminé…</translation>
    </message>
</context>
<context>
    <name>Mp4Writer</name>
    <message>
        <source>There is already a file at “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>Il existe déjà un fichier à «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The movie file “%1” couldn&apos;t be created: %2.</source>
        <extracomment>%1 is the movie&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>Le fichier vidéo «&#xa0;%1&#xa0;» n&apos;a pas pu être créé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be started: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>La vidéo n&apos;a pas pu être commencée&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be written: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>La vidéo n&apos;a pas pu être écrite&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be finished: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>La vidéo n&apos;a pas pu être finalisée&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>OnboardingTexts</name>
    <message>
        <source>Loads a few short made-up clips so you can look around before connecting your own Tesla.</source>
        <translation>Charge quelques courts clips fictifs pour que vous puissiez découvrir l&apos;application avant de connecter votre propre Tesla.</translation>
    </message>
    <message>
        <source>Welcome to Keelhold</source>
        <translation>Bienvenue dans Keelhold</translation>
    </message>
    <message>
        <source>Your Tesla is always recording — Sentry Mode, saved clips, and your recent drives. This app reads the USB drive from your car&apos;s glovebox, shows you what it found in plain English, and keeps a permanent, verified copy on your %1 so you never lose footage that matters.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Votre Tesla enregistre en permanence — Mode Sentinelle, clips enregistrés et vos trajets récents. Cette application lit le disque USB de la boîte à gants de votre voiture, vous montre en termes simples ce qu&apos;elle y a trouvé, et conserve une copie permanente et vérifiée sur votre %1 pour que vous ne perdiez jamais une vidéo importante.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <extracomment>Button on the first screen of the setup</extracomment>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>Just exploring? Try sample footage</source>
        <translation>Simple curiosité&#xa0;? Essayez les vidéos d&apos;exemple</translation>
    </message>
    <message>
        <source>Show Me Your Tesla Drive</source>
        <translation>Indiquez votre disque Tesla</translation>
    </message>
    <message>
        <source>Plug in the USB drive from your car&apos;s glovebox, then pick it below. We only look at the parts of the drive you choose to show us.</source>
        <translation>Branchez le disque USB de la boîte à gants de votre voiture, puis choisissez-le ci-dessous. Nous ne regardons que les parties du disque que vous choisissez de nous montrer.</translation>
    </message>
    <message>
        <source>Connected drives appear here the moment %1 mounts them. Pick yours and confirm with one click — we&apos;ll check for Tesla footage right after.</source>
        <extracomment>%1 is the operating system as a sentence&apos;s subject, e.g. &quot;your system&quot;</extracomment>
        <translation>Les disques connectés apparaissent ici dès que %1 les monte. Choisissez le vôtre et confirmez d&apos;un clic — nous vérifierons aussitôt s&apos;il contient des vidéos Tesla.</translation>
    </message>
    <message>
        <source>No drive detected yet. Insert your Tesla&apos;s USB drive, or choose it manually below.</source>
        <translation>Aucun disque détecté pour l&apos;instant. Insérez le disque USB de votre Tesla, ou choisissez-le manuellement ci-dessous.</translation>
    </message>
    <message>
        <source>Choose a Drive or Folder Manually…</source>
        <translation>Choisir un disque ou un dossier manuellement…</translation>
    </message>
    <message>
        <source>Opens a file picker starting at %1, where connected USB drives appear.</source>
        <extracomment>%1 is a folder path, e.g. /media/alex</extracomment>
        <translation>Ouvre un sélecteur de fichiers à partir de %1, où apparaissent les disques USB connectés.</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>Button: back to the previous step of the setup</extracomment>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Select Your Tesla&apos;s USB Drive</source>
        <extracomment>Title of the folder dialog that picks the car&apos;s drive</extracomment>
        <translation>Sélectionnez le disque USB de votre Tesla</translation>
    </message>
    <message>
        <source>Choose the drive itself, or its TeslaCam folder. Look for a plain external drive icon — Tesla drives usually show up as &quot;UNTITLED&quot; or similar.</source>
        <translation>Choisissez le disque lui-même, ou son dossier TeslaCam. Cherchez une simple icône de disque externe — les disques Tesla apparaissent généralement sous le nom «&#xa0;UNTITLED&#xa0;» ou un nom semblable.</translation>
    </message>
    <message>
        <source>Use This Drive</source>
        <extracomment>Accept button of the folder dialog that picks the car&apos;s drive</extracomment>
        <translation>Utiliser ce disque</translation>
    </message>
    <message>
        <source>Reading your drive…</source>
        <translation>Lecture de votre disque…</translation>
    </message>
    <message>
        <source>This usually takes a few seconds.</source>
        <translation>Cela prend généralement quelques secondes.</translation>
    </message>
    <message>
        <source>Browse While It Finishes</source>
        <translation>Parcourir en attendant la fin</translation>
    </message>
    <message>
        <source>Start Browsing</source>
        <translation>Commencer à parcourir</translation>
    </message>
    <message>
        <source>Recording without encryption</source>
        <translation>Enregistrement sans chiffrement</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt new recordings so only your Tesla account can view them. If you&apos;d like footage to play here (and in any app), switch it off in your car — it takes about 30 seconds, and everything already recorded stays exactly as it is.</source>
        <translation>Les versions récentes du logiciel Tesla peuvent chiffrer les nouveaux enregistrements pour que seul votre compte Tesla puisse les voir. Si vous souhaitez que les vidéos se lisent ici (et dans n&apos;importe quelle application), désactivez cette option dans votre voiture — cela prend environ 30 secondes, et tout ce qui est déjà enregistré reste exactement tel quel.</translation>
    </message>
    <message>
        <source>Open %1</source>
        <extracomment>Button; %1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Ouvrir %1</translation>
    </message>
    <message>
        <source>Tesla&apos;s own viewer for encrypted clips — decryption happens in your browser; footage never leaves your device.</source>
        <translation>La visionneuse de Tesla pour les clips chiffrés — le déchiffrement se fait dans votre navigateur&#xa0;; les vidéos ne quittent jamais votre appareil.</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the encryption guide</extracomment>
        <translation>Terminé</translation>
    </message>
    <message numerus="yes">
        <source>Found %n events so far, across %1 clips.</source>
        <translation>
            <numerusform>%n événement trouvé jusqu&apos;ici, dans %1 clips.</numerusform>
            <numerusform>%n événements trouvés jusqu&apos;ici, répartis sur %1 clips.</numerusform>
        </translation>
    </message>
    <message>
        <source>Is this your Tesla drive? — %1</source>
        <extracomment>%1 is the drive&apos;s name, e.g. UNTITLED</extracomment>
        <translation>Est-ce votre disque Tesla&#xa0;? — %1</translation>
    </message>
    <message>
        <source>In your car, tap Controls</source>
        <translation>Dans votre voiture, touchez Commandes</translation>
    </message>
    <message>
        <source>The car icon at the bottom-left of the touchscreen.</source>
        <translation>L&apos;icône de voiture en bas à gauche de l&apos;écran tactile.</translation>
    </message>
    <message>
        <source>Tap Safety</source>
        <extracomment>The car&apos;s menu entry, as named on its touchscreen</extracomment>
        <translation>Touchez Sécurité</translation>
    </message>
    <message>
        <source>In the menu on the left.</source>
        <translation>Dans le menu de gauche.</translation>
    </message>
    <message>
        <source>Switch off “Encrypt Dashcam Recordings”</source>
        <extracomment>The quoted words are the car&apos;s setting, as named on its touchscreen</extracomment>
        <translation>Désactivez «&#xa0;Chiffrer les enregistrements Dashcam&#xa0;»</translation>
    </message>
    <message>
        <source>If you don&apos;t see it, your car&apos;s software doesn&apos;t encrypt yet — nothing to do.</source>
        <translation>Si vous ne voyez pas cette option, le logiciel de votre voiture ne chiffre pas encore — rien à faire.</translation>
    </message>
    <message>
        <source>Done</source>
        <comment>last step</comment>
        <extracomment>The last step of the guide: finished</extracomment>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>New footage records unencrypted and plays right here.</source>
        <translation>Les nouvelles vidéos sont enregistrées sans chiffrement et se lisent directement ici.</translation>
    </message>
    <message>
        <source>Clips recorded while encryption was on stay encrypted — sign in at %1 to watch them anytime. Keelhold still backs them up byte-for-byte, so nothing is ever lost.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Les clips enregistrés pendant que le chiffrement était activé restent chiffrés — connectez-vous sur %1 pour les regarder à tout moment. Keelhold les sauvegarde quand même octet par octet, donc rien n&apos;est jamais perdu.</translation>
    </message>
    <message>
        <source>Prefer to keep encryption on? That&apos;s a fair choice — it protects footage if the drive itself is stolen. This app will still keep verified copies of everything.</source>
        <translation>Vous préférez garder le chiffrement activé&#xa0;? C&apos;est un choix tout à fait valable — il protège les vidéos si le disque lui-même est volé. Cette application conservera quand même des copies vérifiées de tout.</translation>
    </message>
</context>
<context>
    <name>OverlayText</name>
    <message>
        <source>%1: %2</source>
        <extracomment>Drawn over an exported movie: %1 is the kind of event (Sentry, Saved), %2 why the car kept it</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 — no footage</source>
        <extracomment>Drawn in a camera&apos;s cell of an exported movie: %1 is the camera&apos;s name</extracomment>
        <translation>%1 — aucune vidéo</translation>
    </message>
</context>
<context>
    <name>PlainReason</name>
    <message>
        <source>Something came close</source>
        <translation>Quelque chose s&apos;est approché</translation>
    </message>
    <message>
        <source>Came close</source>
        <extracomment>Short label of a Sentry event where something came close to the car</extracomment>
        <translation>Approche</translation>
    </message>
    <message>
        <source>Sentry Mode noticed a person or object near your parked car.</source>
        <translation>Le Mode Sentinelle a remarqué une personne ou un objet près de votre voiture garée.</translation>
    </message>
    <message>
        <source>Bump or impact detected</source>
        <translation>Choc ou impact détecté</translation>
    </message>
    <message>
        <source>Impact</source>
        <extracomment>Short label of an event where the car felt a bump</extracomment>
        <translation>Impact</translation>
    </message>
    <message>
        <source>The car felt a physical bump or impact while parked.</source>
        <translation>La voiture a ressenti un choc ou un impact physique pendant qu&apos;elle était garée.</translation>
    </message>
    <message>
        <source>You honked</source>
        <translation>Vous avez klaxonné</translation>
    </message>
    <message>
        <source>Honk save</source>
        <extracomment>Short label of footage the car saved because the driver honked</extracomment>
        <translation>Klaxon</translation>
    </message>
    <message>
        <source>Honking saves the last few minutes of footage — a quick way to keep a moment.</source>
        <translation>Klaxonner enregistre les dernières minutes de vidéo — un moyen rapide de garder un moment.</translation>
    </message>
    <message>
        <source>You saved this</source>
        <translation>Vous l&apos;avez enregistré</translation>
    </message>
    <message>
        <source>You saved</source>
        <extracomment>Short label of footage the driver saved with the dashcam button</extracomment>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>You tapped the dashcam save button, so the car kept this footage.</source>
        <translation>Vous avez touché le bouton d&apos;enregistrement Dashcam&#xa0;: la voiture a donc gardé cette vidéo.</translation>
    </message>
    <message>
        <source>Panic alarm</source>
        <translation>Alarme de panique</translation>
    </message>
    <message>
        <source>Alarm</source>
        <extracomment>Short label of an event where the car&apos;s alarm went off</extracomment>
        <translation>Alarme</translation>
    </message>
    <message>
        <source>The car&apos;s alarm was triggered.</source>
        <translation>L&apos;alarme de la voiture s&apos;est déclenchée.</translation>
    </message>
    <message>
        <source>Recent driving</source>
        <translation>Conduite récente</translation>
    </message>
    <message>
        <source>Driving</source>
        <extracomment>Short label of the car&apos;s rolling recording while driving</extracomment>
        <translation>Conduite</translation>
    </message>
    <message>
        <source>The rolling last hour of driving. The car reuses this space continuously.</source>
        <translation>La dernière heure de conduite, en continu. La voiture réutilise cet espace en permanence.</translation>
    </message>
    <message>
        <source>Sentry event</source>
        <translation>Événement Sentinelle</translation>
    </message>
    <message>
        <source>Sentry</source>
        <extracomment>Short label of a Sentry event of a kind the app does not know</extracomment>
        <translation>Sentinelle</translation>
    </message>
    <message>
        <source>Your car flagged this moment. Newer software sometimes adds new event types.</source>
        <translation>Votre voiture a signalé ce moment. Les versions récentes du logiciel ajoutent parfois de nouveaux types d&apos;événements.</translation>
    </message>
</context>
<context>
    <name>PlatformWords</name>
    <message>
        <source>a disk utility such as Disks</source>
        <extracomment>Completes &quot;reformatting (in %1, after backing up)&quot;; Disks is the GNOME disk tool</extracomment>
        <translation>un utilitaire de disques comme Disques</translation>
    </message>
    <message>
        <source>computer</source>
        <extracomment>The user&apos;s machine, as in &quot;on this %1&quot; or &quot;on your %1&quot;</extracomment>
        <translation>ordinateur</translation>
    </message>
    <message>
        <source>your system</source>
        <extracomment>The operating system as the subject of a sentence, lower case</extracomment>
        <translation>votre système</translation>
    </message>
</context>
<context>
    <name>PlayerDrivingData</name>
    <message>
        <source>No driving data in this event</source>
        <translation>Aucune donnée de conduite dans cet événement</translation>
    </message>
    <message>
        <source>%1 %</source>
        <extracomment>How far the accelerator is pressed, as a percentage: &quot;42 %&quot;</extracomment>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Driving data</source>
        <extracomment>Button that shows or hides the driving data over the video</extracomment>
        <translation>Données de conduite</translation>
    </message>
    <message>
        <source>Show or hide the car&apos;s speed, pedals, steering and Autopilot state over the video. (T)</source>
        <translation>Afficher ou masquer la vitesse, les pédales, la direction et l&apos;état de l&apos;Autopilot de la voiture sur la vidéo. (T)</translation>
    </message>
    <message>
        <source>This event&apos;s footage carries no driving data from the car.</source>
        <translation>Les vidéos de cet événement ne contiennent aucune donnée de conduite de la voiture.</translation>
    </message>
    <message>
        <source>Click to switch between km/h and mph.</source>
        <translation>Cliquez pour basculer entre km/h et mph.</translation>
    </message>
    <message>
        <source>BRAKE</source>
        <extracomment>Lamp over the video that is lit while the brake pedal is pressed; keep it short</extracomment>
        <translation>FREIN</translation>
    </message>
    <message>
        <source>Lit while the brake pedal is pressed.</source>
        <translation>Allumé pendant que la pédale de frein est enfoncée.</translation>
    </message>
    <message>
        <source>How far the accelerator pedal is pressed.</source>
        <translation>Degré d&apos;enfoncement de la pédale d&apos;accélérateur.</translation>
    </message>
    <message>
        <source>Steering wheel angle.</source>
        <translation>Angle du volant.</translation>
    </message>
    <message>
        <source>Direction of travel.</source>
        <translation>Direction de déplacement.</translation>
    </message>
    <message>
        <source>The car&apos;s speed over the event; red marks hard braking. Click to jump there.</source>
        <translation>La vitesse de la voiture pendant l&apos;événement&#xa0;; le rouge marque les freinages brusques. Cliquez pour y aller.</translation>
    </message>
</context>
<context>
    <name>PlayerLayout</name>
    <message>
        <source>%1 — playing at %2, this computer can&apos;t keep up</source>
        <extracomment>%1 is the chosen playback speed, %2 the speed it really plays at (e.g. 1.6×)</extracomment>
        <translation>%1 — lecture à %2, cet ordinateur ne suit pas</translation>
    </message>
    <message>
        <source>The moment it happened — %1 into the event.</source>
        <extracomment>%1 is a time into the event, e.g. 0:42</extracomment>
        <translation>Le moment où c&apos;est arrivé — %1 après le début de l&apos;événement.</translation>
    </message>
    <message>
        <source>%1 — currently enlarged.</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>%1 — caméra agrandie.</translation>
    </message>
    <message>
        <source>Switch to the %1 camera. (Keys 1–7 jump between cameras; 0 shows all.)</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>Passer à la caméra %1. (Les touches 1–7 passent d&apos;une caméra à l&apos;autre&#xa0;; 0 les affiche toutes.)</translation>
    </message>
    <message>
        <source>Click to enlarge the %1 camera. Click again to show all cameras.</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>Cliquez pour agrandir la caméra %1. Cliquez à nouveau pour afficher toutes les caméras.</translation>
    </message>
    <message>
        <source>Location unknown</source>
        <translation>Lieu inconnu</translation>
    </message>
    <message>
        <source>Select an event</source>
        <translation>Sélectionnez un événement</translation>
    </message>
    <message>
        <source>Choose an archived event on the left to watch it — everything here works exactly like the Drive tab, even with no Tesla drive connected.</source>
        <extracomment>&quot;Drive&quot; is the app&apos;s own tab; translate it as there</extracomment>
        <translation>Choisissez un événement conservé à gauche pour le regarder — tout fonctionne exactement comme dans l&apos;onglet Disque, même sans disque Tesla connecté.</translation>
    </message>
    <message>
        <source>Choose something from the list on the left to watch every available camera angle, synced on one timeline.</source>
        <translation>Choisissez un élément dans la liste de gauche pour regarder tous les angles de caméra disponibles, synchronisés sur une seule chronologie.</translation>
    </message>
    <message>
        <source>Just exploring? Try sample footage</source>
        <translation>Simple curiosité&#xa0;? Essayez les vidéos d&apos;exemple</translation>
    </message>
</context>
<context>
    <name>PlayerMetadataBar</name>
    <message>
        <source>Reason: %1</source>
        <extracomment>Screen reader name of the reason chip; %1 is the car&apos;s reason, e.g. Sentry Mode detection</extracomment>
        <translation>Motif&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>PlayerMoments</name>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is a hard moment (&quot;Hard braking&quot;), %2 a time into the event</extracomment>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>What happened</source>
        <extracomment>Button that jumps to the next thing that happened in the event</extracomment>
        <translation>Faits marquants</translation>
    </message>
    <message>
        <source>Jump to the next thing that happened: someone moving in front of a camera, or a hard moment of the drive (N)</source>
        <translation>Aller au fait marquant suivant&#xa0;: quelqu&apos;un qui bouge devant une caméra, ou un moment brusque du trajet (N)</translation>
    </message>
    <message>
        <source>Back to the thing that happened before (Shift+N)</source>
        <translation>Revenir au fait marquant précédent (Maj+N)</translation>
    </message>
</context>
<context>
    <name>ReportChart</name>
    <message>
        <source>Speed (%1)</source>
        <extracomment>Title of the chart&apos;s speed panel; %1 is the unit, km/h or mph</extracomment>
        <translation>Vitesse (%1)</translation>
    </message>
    <message>
        <source>Accelerator (%)</source>
        <extracomment>Title of the chart&apos;s accelerator pedal panel, in percent pressed</extracomment>
        <translation>Accélérateur (%)</translation>
    </message>
    <message>
        <source>Steering (°)</source>
        <extracomment>Title of the chart&apos;s steering wheel panel, in degrees</extracomment>
        <translation>Volant (°)</translation>
    </message>
    <message>
        <source>Acceleration (m/s²)</source>
        <extracomment>Title of the chart&apos;s acceleration panel</extracomment>
        <translation>Accélération (m/s²)</translation>
    </message>
    <message>
        <source>moment</source>
        <extracomment>On the chart&apos;s time axis, under the moment the car triggered the recording</extracomment>
        <translation>moment</translation>
    </message>
    <message>
        <source>start</source>
        <translation>début</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>On the chart&apos;s time axis: %1 is seconds from the moment, signed (+5, -5)</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Brake pressed</source>
        <extracomment>In the chart&apos;s legend, beside the colour of the brake band</extracomment>
        <translation>Frein enfoncé</translation>
    </message>
    <message>
        <source>Acceleration x</source>
        <extracomment>In the chart&apos;s legend: acceleration along the car&apos;s x axis</extracomment>
        <translation>Accélération x</translation>
    </message>
    <message>
        <source>Acceleration y</source>
        <extracomment>In the chart&apos;s legend: acceleration along the car&apos;s y axis</extracomment>
        <translation>Accélération y</translation>
    </message>
</context>
<context>
    <name>ReportContent</name>
    <message>
        <source>The drive didn&apos;t answer while this file was read.</source>
        <translation>Le disque n&apos;a pas répondu pendant la lecture de ce fichier.</translation>
    </message>
    <message>
        <source>Locked — unlock to include this camera</source>
        <extracomment>Stands in for a camera&apos;s picture when its footage is encrypted and no key is held</extracomment>
        <translation>Verrouillé — déverrouillez pour inclure cette caméra</translation>
    </message>
    <message>
        <source>This camera&apos;s picture at the moment couldn&apos;t be read.</source>
        <translation>L&apos;image de cette caméra au moment de l&apos;événement n&apos;a pas pu être lue.</translation>
    </message>
    <message>
        <source>Plays</source>
        <extracomment>A clip&apos;s condition in the report&apos;s list of files: nothing wrong with it</extracomment>
        <translation>Lisible</translation>
    </message>
    <message>
        <source>Empty — the car wrote nothing into it</source>
        <translation>Vide — la voiture n&apos;y a rien écrit</translation>
    </message>
    <message>
        <source>Cut off — the car didn&apos;t finish writing it</source>
        <translation>Tronqué — la voiture n&apos;a pas fini de l&apos;écrire</translation>
    </message>
    <message>
        <source>Damaged — it can&apos;t be played</source>
        <translation>Endommagé — il ne peut pas être lu</translation>
    </message>
    <message>
        <source>The drive didn&apos;t answer when it was read</source>
        <translation>Le disque n&apos;a pas répondu lors de la lecture</translation>
    </message>
    <message>
        <source>Encrypted by your car</source>
        <translation>Chiffré par votre voiture</translation>
    </message>
    <message>
        <source>Not checked</source>
        <extracomment>A clip&apos;s condition in the report&apos;s list of files: it was not looked at</extracomment>
        <translation>Non contrôlé</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Ce fichier n&apos;a pas pu être lu.</translation>
    </message>
</context>
<context>
    <name>ReportDocument</name>
    <message>
        <source>Encrypted by your car</source>
        <translation>Chiffré par votre voiture</translation>
    </message>
    <message>
        <source>Incident report: %1</source>
        <extracomment>The report&apos;s title; %1 is why the car recorded, such as &quot;Sentry event&quot;</extracomment>
        <translation>Rapport d&apos;incident&#xa0;: %1</translation>
    </message>
    <message>
        <source>Incident report: %1 — %2</source>
        <extracomment>The report&apos;s title; %1 is the kind of recording, such as &quot;Saved&quot;, %2 why the car recorded</extracomment>
        <translation>Rapport d&apos;incident&#xa0;: %1 — %2</translation>
    </message>
    <message>
        <source>The moment</source>
        <extracomment>Label beside the date and time the car triggered the recording</extracomment>
        <translation>Le moment</translation>
    </message>
    <message>
        <source>Recording starts</source>
        <translation>Début de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>(the car&apos;s clock)</source>
        <extracomment>After the date and time of the moment: which clock says so</extracomment>
        <translation>(horloge de la voiture)</translation>
    </message>
    <message>
        <source>By the GPS clock</source>
        <extracomment>Label beside the same moment by the GPS clock, in UTC</extracomment>
        <translation>Selon l&apos;horloge GPS</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Ce qui s&apos;est passé</translation>
    </message>
    <message>
        <source>Place</source>
        <extracomment>Label beside the street and city where it happened</extracomment>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>The car didn&apos;t name the place.</source>
        <translation>La voiture n&apos;a pas indiqué le lieu.</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Coordonnées</translation>
    </message>
    <message>
        <source>Recorded by</source>
        <extracomment>Label beside how many cameras recorded the event</extracomment>
        <translation>Enregistré par</translation>
    </message>
    <message>
        <source>The car&apos;s clock and the GPS clock differ by more than a time zone can explain: the car&apos;s clock was probably set wrong. The GPS time is the more reliable one.</source>
        <translation>L&apos;horloge de la voiture et l&apos;horloge GPS diffèrent de plus que ce qu&apos;un fuseau horaire peut expliquer&#xa0;: l&apos;horloge de la voiture était probablement mal réglée. L&apos;heure GPS est la plus fiable.</translation>
    </message>
    <message>
        <source>The car encrypted this footage. The files are listed exactly as the car wrote them.</source>
        <translation>La voiture a chiffré ces vidéos. Les fichiers sont listés exactement tels que la voiture les a écrits.</translation>
    </message>
    <message>
        <source>Where, and the route driven</source>
        <extracomment>Heading over the map of the spot and the route</extracomment>
        <translation>Lieu et trajet parcouru</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>The car didn&apos;t record where this happened, so there is no map.</source>
        <translation>La voiture n&apos;a pas enregistré le lieu où cela s&apos;est produit&#xa0;: il n&apos;y a donc pas de carte.</translation>
    </message>
    <message>
        <source>Each camera at the moment</source>
        <translation>Chaque caméra au moment de l&apos;événement</translation>
    </message>
    <message>
        <source>Every picture is the camera&apos;s own frame at the moment, at its full size.</source>
        <translation>Chaque image est celle de la caméra elle-même au moment de l&apos;événement, à sa taille d&apos;origine.</translation>
    </message>
    <message>
        <source>Driving data</source>
        <extracomment>Heading over the chart of speed, pedals and steering</extracomment>
        <translation>Données de conduite</translation>
    </message>
    <message>
        <source>From 10 seconds before to 10 seconds after the moment, as the car recorded it with each frame.</source>
        <translation>De 10 secondes avant à 10 secondes après le moment, telles que la voiture les a enregistrées avec chaque image.</translation>
    </message>
    <message>
        <source>The first 20 seconds of the recording, as the car recorded it with each frame.</source>
        <translation>Les 20 premières secondes de l&apos;enregistrement, telles que la voiture les a enregistrées avec chaque image.</translation>
    </message>
    <message>
        <source>These clips carry no driving data: the car records it only with newer software.</source>
        <translation>Ces clips ne contiennent aucune donnée de conduite&#xa0;: la voiture ne les enregistre qu&apos;avec les versions récentes du logiciel.</translation>
    </message>
    <message>
        <source>At the moment</source>
        <extracomment>Heading over the car&apos;s readings at the moment</extracomment>
        <translation>Au moment de l&apos;événement</translation>
    </message>
    <message>
        <source>At the start</source>
        <translation>Au début</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>Label beside the car&apos;s speed</extracomment>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Gear</source>
        <extracomment>Label beside the gear (P, R, N, D)</extracomment>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Brake</source>
        <extracomment>Label beside whether the brake pedal was pressed</extracomment>
        <translation>Frein</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Enfoncé</translation>
    </message>
    <message>
        <source>Not pressed</source>
        <translation>Non enfoncé</translation>
    </message>
    <message>
        <source>Accelerator</source>
        <extracomment>Label beside how far the accelerator pedal was pressed</extracomment>
        <translation>Accélérateur</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>How far the accelerator pedal was pressed; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Steering</source>
        <extracomment>Label beside the steering wheel&apos;s angle</extracomment>
        <translation>Volant</translation>
    </message>
    <message>
        <source>Driver assistance</source>
        <extracomment>Label beside Autopilot&apos;s state (Autosteer, Traffic-Aware Cruise Control…)</extracomment>
        <translation>Aide à la conduite</translation>
    </message>
    <message>
        <source>Turn signal</source>
        <extracomment>Label beside the turn signal&apos;s state</extracomment>
        <translation>Clignotant</translation>
    </message>
    <message>
        <source>Hazard lights</source>
        <translation>Feux de détresse</translation>
    </message>
    <message>
        <source>Heading</source>
        <extracomment>Label beside the direction the car was heading (a compass bearing)</extracomment>
        <translation>Cap</translation>
    </message>
    <message>
        <source>Position</source>
        <extracomment>Label beside the car&apos;s GPS coordinates</extracomment>
        <translation>Position</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <extracomment>Label beside the car&apos;s acceleration</extracomment>
        <translation>Accélération</translation>
    </message>
    <message>
        <source>x %1, y %2, z %3 m/s²</source>
        <extracomment>Acceleration along the car&apos;s three axes, in metres per second squared</extracomment>
        <translation>x %1, y %2, z %3 m/s²</translation>
    </message>
    <message>
        <source>Hard moments of the drive</source>
        <extracomment>Heading over the list of hard braking, swerves and the like</extracomment>
        <translation>Moments brusques du trajet</translation>
    </message>
    <message>
        <source>The driving data shows no hard braking, swerve, sudden stop or Autopilot switching off in this event.</source>
        <translation>Les données de conduite ne montrent aucun freinage brusque, écart brusque, arrêt soudain ni désactivation de l&apos;Autopilot dans cet événement.</translation>
    </message>
    <message>
        <source>%1 (%2 in)</source>
        <extracomment>When a hard moment happened: %1 the car&apos;s clock, %2 how far into the event (m:ss)</extracomment>
        <translation>%1 (%2 après le début)</translation>
    </message>
    <message>
        <source>Found from the car&apos;s own records: hard braking is the speed falling at 0.4 g or more; a swerve is the wheel turned at 200°/s or more, or a sideways pull of 0.5 g.</source>
        <translation>Déterminés à partir des propres relevés de la voiture&#xa0;: un freinage brusque correspond à une baisse de vitesse de 0,4 g ou plus&#xa0;; un écart brusque, à un volant tourné à 200°/s ou plus, ou à une poussée latérale de 0,5 g.</translation>
    </message>
    <message>
        <source>The original files</source>
        <extracomment>Heading over the list of every file the car recorded for the event</extracomment>
        <translation>Les fichiers originaux</translation>
    </message>
    <message>
        <source>Every file the car recorded for this event. Each SHA-256 was computed from the file itself as this report was made.</source>
        <translation>Chaque fichier enregistré par la voiture pour cet événement. Chaque SHA-256 a été calculé à partir du fichier lui-même lors de la création de ce rapport.</translation>
    </message>
    <message>
        <source>On the car&apos;s drive, in %1</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>Sur le disque de la voiture, dans %1</translation>
    </message>
    <message>
        <source>In the Vault, in %1. Last verified %2.</source>
        <extracomment>%1 is a folder, %2 a date and time</extracomment>
        <translation>Dans le Coffre, dans %1. Dernière vérification&#xa0;: %2.</translation>
    </message>
    <message>
        <source>In the Vault, in %1. Not verified again since it was kept.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>Dans le Coffre, dans %1. Pas vérifié à nouveau depuis sa conservation.</translation>
    </message>
    <message>
        <source>Every file matches the Vault&apos;s record of it, made when it was kept.</source>
        <translation>Chaque fichier correspond au relevé que le Coffre en a établi lors de sa conservation.</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Column heading: the file&apos;s name</extracomment>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Camera</source>
        <extracomment>Column heading: which camera recorded the file</extracomment>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Starts</source>
        <extracomment>Column heading: the time the file&apos;s footage starts</extracomment>
        <translation>Début</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>Column heading: how long the file&apos;s footage runs (m:ss)</extracomment>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Column heading: the file&apos;s size</extracomment>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Condition</source>
        <extracomment>Column heading: whether the file plays, or how it is damaged</extracomment>
        <translation>État</translation>
    </message>
    <message>
        <source>This differs from the Vault&apos;s record: the file is not the one that was kept.</source>
        <translation>Ce fichier diffère du relevé du Coffre&#xa0;: ce n&apos;est pas celui qui a été conservé.</translation>
    </message>
    <message>
        <source>No files were found for this event.</source>
        <translation>Aucun fichier n&apos;a été trouvé pour cet événement.</translation>
    </message>
    <message>
        <source>How to check the files</source>
        <translation>Comment contrôler les fichiers</translation>
    </message>
    <message>
        <source>Anyone can check that a file is exactly the one listed here by computing its SHA-256 again and comparing it with the one above. With the evidence package unpacked, run this in its folder; every line must end in OK:</source>
        <extracomment>Followed by the command to run; OK is what the command prints, so it stays as it is</extracomment>
        <translation>Chacun peut contrôler qu&apos;un fichier est exactement celui listé ici en recalculant son SHA-256 et en le comparant à celui indiqué ci-dessus. Une fois l&apos;archive de preuves décompressée, lancez ceci dans son dossier&#xa0;; chaque ligne doit se terminer par OK&#xa0;:</translation>
    </message>
    <message>
        <source>Made by Keelhold %1 on %2 (this computer&apos;s clock). Keelhold only reads the car&apos;s drive: nothing on it was changed.</source>
        <extracomment>At the report&apos;s end: %1 is Keelhold&apos;s version, %2 the date and time the report was made</extracomment>
        <translation>Créé par Keelhold %1 le %2 (horloge de cet ordinateur). Keelhold ne fait que lire le disque de la voiture&#xa0;: rien n&apos;y a été modifié.</translation>
    </message>
    <message>
        <source>The report couldn&apos;t be written there.</source>
        <translation>Le rapport n&apos;a pas pu être écrit à cet endroit.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <extracomment>At the foot of every page of the report</extracomment>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>speed and its unit</comment>
        <extracomment>A speed: %1 the number, %2 its unit (km/h or mph)</extracomment>
        <translation>%1&#xa0;%2</translation>
    </message>
    <message numerus="yes">
        <source>%n cameras</source>
        <translation>
            <numerusform>%n caméra</numerusform>
            <numerusform>%n caméras</numerusform>
        </translation>
    </message>
    <message>
        <source>Off</source>
        <comment>driver assistance</comment>
        <translation>Désactivée</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>turn signal</comment>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <comment>turn signal</comment>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Off</source>
        <comment>turn signal</comment>
        <translation>Éteint</translation>
    </message>
    <message>
        <source>— %1, slowing at %2 g</source>
        <extracomment>After a hard moment&apos;s name: %1 the speed with its unit, %2 the deceleration in g (9.81 m/s²)</extracomment>
        <translation>— %1, décélération de %2 g</translation>
    </message>
    <message>
        <source>— %1, steering turned at %2°/s</source>
        <extracomment>After a hard moment&apos;s name: %1 the speed with its unit, %2 how fast the wheel turned, in degrees a second</extracomment>
        <translation>— %1, volant tourné à %2°/s</translation>
    </message>
    <message>
        <source>On a Mac: %1. On Windows: %2, one file at a time.</source>
        <extracomment>%1 and %2 are commands, which stay as they are</extracomment>
        <translation>Sur Mac&#xa0;: %1. Sur Windows&#xa0;: %2, un fichier à la fois.</translation>
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
        <translation>Données cartographiques © les contributeurs d&apos;OpenStreetMap</translation>
    </message>
</context>
<context>
    <name>SignInLink</name>
    <message>
        <source>Tesla didn&apos;t accept this sign-in: it may have expired or been used already. Sign in again.</source>
        <translation>Tesla n&apos;a pas accepté cette connexion&#xa0;: elle a peut-être expiré ou déjà été utilisée. Reconnectez-vous.</translation>
    </message>
    <message>
        <source>That isn&apos;t the address the browser landed on after signing in: it starts with %1.</source>
        <extracomment>%1 is the web address the browser should have landed on</extracomment>
        <translation>Ce n&apos;est pas l&apos;adresse sur laquelle le navigateur est arrivé après la connexion&#xa0;: celle-ci commence par %1.</translation>
    </message>
    <message>
        <source>Tesla didn&apos;t complete the sign-in. Try again.</source>
        <translation>Tesla n&apos;a pas terminé la connexion. Réessayez.</translation>
    </message>
    <message>
        <source>That address belongs to another sign-in. Use the sign-in link Keelhold opened last.</source>
        <translation>Cette adresse appartient à une autre connexion. Utilisez le dernier lien de connexion ouvert par Keelhold.</translation>
    </message>
    <message>
        <source>That address holds no sign-in code. Copy the whole address from the browser.</source>
        <translation>Cette adresse ne contient aucun code de connexion. Copiez l&apos;adresse complète depuis le navigateur.</translation>
    </message>
</context>
<context>
    <name>SyncPlayerController</name>
    <message>
        <source>Reading this camera from the drive…</source>
        <translation>Lecture de cette caméra sur le disque…</translation>
    </message>
    <message>
        <source>Finding the exact frame…</source>
        <extracomment>Shown on the timeline while a seek shows a nearby frame first</extracomment>
        <translation>Recherche de l&apos;image exacte…</translation>
    </message>
</context>
<context>
    <name>TelemetryRecord</name>
    <message>
        <source>Self-Driving</source>
        <extracomment>Tesla&apos;s name of a driver assistance (Full Self-Driving)</extracomment>
        <translation>Conduite autonome</translation>
    </message>
    <message>
        <source>Autosteer</source>
        <extracomment>Tesla&apos;s name of a driver assistance</extracomment>
        <translation>Autosteer</translation>
    </message>
    <message>
        <source>Traffic-Aware Cruise Control</source>
        <extracomment>Tesla&apos;s name of a driver assistance</extracomment>
        <translation>Régulateur de vitesse adaptatif</translation>
    </message>
</context>
<context>
    <name>TeslaCamParser</name>
    <message>
        <source>The TeslaCam folder could not be found.</source>
        <translation>Le dossier TeslaCam est introuvable.</translation>
    </message>
    <message>
        <source>The selected item is not a folder.</source>
        <translation>L&apos;élément sélectionné n&apos;est pas un dossier.</translation>
    </message>
    <message>
        <source>The TeslaCam folder could not be read.</source>
        <translation>Le dossier TeslaCam n&apos;a pas pu être lu.</translation>
    </message>
    <message>
        <source>Keelhold isn&apos;t allowed to read the folder “%1”. Check the folder&apos;s permissions and try again.</source>
        <extracomment>%1 is the folder&apos;s full path</extracomment>
        <translation>Keelhold n&apos;est pas autorisé à lire le dossier «&#xa0;%1&#xa0;». Vérifiez les autorisations du dossier et réessayez.</translation>
    </message>
    <message>
        <source>Reading your Tesla drive…</source>
        <translation>Lecture de votre disque Tesla…</translation>
    </message>
    <message>
        <source>Reading Sentry events…</source>
        <extracomment>Scan progress: reading the SentryClips folder</extracomment>
        <translation>Lecture des événements Sentinelle…</translation>
    </message>
    <message>
        <source>Reading Saved clips…</source>
        <extracomment>Scan progress: reading the SavedClips folder</extracomment>
        <translation>Lecture des clips enregistrés…</translation>
    </message>
    <message>
        <source>Reading Recent driving…</source>
        <extracomment>Scan progress: reading the RecentClips folder</extracomment>
        <translation>Lecture de la conduite récente…</translation>
    </message>
    <message>
        <source>Scan complete.</source>
        <translation>Analyse terminée.</translation>
    </message>
</context>
<context>
    <name>TokenHolder</name>
    <message>
        <source>This computer has no secret store to remember your sign-in in, so it is kept only until Keelhold quits.</source>
        <translation>Cet ordinateur n&apos;a pas de stockage sécurisé où mémoriser votre connexion&#xa0;: elle n&apos;est donc gardée que jusqu&apos;à la fermeture de Keelhold.</translation>
    </message>
</context>
<context>
    <name>TriageState</name>
    <message>
        <source>New</source>
        <extracomment>State of an event the user has not looked at yet</extracomment>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <extracomment>State of an event the user has watched</extracomment>
        <translation>Vu</translation>
    </message>
    <message>
        <source>In Vault</source>
        <extracomment>State of an event that is kept in the Vault</extracomment>
        <translation>Au Coffre</translation>
    </message>
    <message>
        <source>Dismissed</source>
        <extracomment>State of an event the user chose not to keep</extracomment>
        <translation>Écarté</translation>
    </message>
</context>
<context>
    <name>UiBridge</name>
    <message>
        <source>Drive</source>
        <extracomment>Sidebar section: the car&apos;s drive and its events</extracomment>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Vault</source>
        <extracomment>Sidebar section: the kept copies</extracomment>
        <translation>Coffre</translation>
    </message>
    <message>
        <source>Map</source>
        <extracomment>Sidebar section: the events on a map</extracomment>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Drive Health</source>
        <extracomment>Sidebar section: the health of the car&apos;s drive</extracomment>
        <translation>Santé du disque</translation>
    </message>
    <message>
        <source>Open Help — Sentry Mode, clip length, corruption, and encryption explained.</source>
        <translation>Ouvrir l&apos;Aide — Mode Sentinelle, durée des clips, corruption et chiffrement expliqués.</translation>
    </message>
    <message>
        <source>Drag to resize the event list.</source>
        <translation>Faites glisser pour redimensionner la liste des événements.</translation>
    </message>
    <message>
        <source>You&apos;re exploring sample footage · Connect your Tesla drive anytime</source>
        <translation>Vous découvrez des vidéos d&apos;exemple · Connectez votre disque Tesla quand vous voulez</translation>
    </message>
    <message>
        <source>Eject Sample</source>
        <extracomment>Button that leaves the sample footage</extracomment>
        <translation>Éjecter l&apos;exemple</translation>
    </message>
    <message>
        <source>A Keelhold licence is needed</source>
        <translation>Une licence Keelhold est nécessaire</translation>
    </message>
    <message>
        <source>Reading your own Tesla drive needs a Keelhold licence. Sample footage stays available without one.</source>
        <translation>La lecture de votre propre disque Tesla nécessite une licence Keelhold. Les vidéos d&apos;exemple restent disponibles sans licence.</translation>
    </message>
    <message>
        <source>Keelhold Help</source>
        <extracomment>Menu item that opens the help window</extracomment>
        <translation>Aide de Keelhold</translation>
    </message>
    <message>
        <source>Explore Sample Footage</source>
        <translation>Découvrir les vidéos d&apos;exemple</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <extracomment>Menu title; &amp; marks the letter for the Alt shortcut</extracomment>
        <translation>&amp;Lecture</translation>
    </message>
    <message>
        <source>Use Graphics Hardware for Video</source>
        <translation>Utiliser la carte graphique pour la vidéo</translation>
    </message>
    <message>
        <source>Nothing on your drive is ever changed or deleted.</source>
        <translation>Rien sur votre disque n&apos;est jamais modifié ni supprimé.</translation>
    </message>
    <message>
        <source>Keelhold only reads from your Tesla drive. Every &quot;Keep&quot; makes a verified copy elsewhere — your original footage is never touched.</source>
        <extracomment>&quot;Keep&quot; is the app&apos;s own button; translate it as there</extracomment>
        <translation>Keelhold ne fait que lire votre disque Tesla. Chaque «&#xa0;Conserver&#xa0;» crée une copie vérifiée ailleurs — vos vidéos originales ne sont jamais touchées.</translation>
    </message>
</context>
<context>
    <name>UnlockController</name>
    <message>
        <source>Unlock Encrypted Footage</source>
        <translation>Déverrouiller les vidéos chiffrées</translation>
    </message>
    <message>
        <source>Your car encrypted this footage so that only your Tesla account can watch it. To play it here, Keelhold asks Tesla&apos;s service for each clip&apos;s key, and Tesla first checks that your account owns the car.</source>
        <translation>Votre voiture a chiffré ces vidéos pour que seul votre compte Tesla puisse les regarder. Pour les lire ici, Keelhold demande au service de Tesla la clé de chaque clip, et Tesla vérifie d&apos;abord que votre compte est propriétaire de la voiture.</translation>
    </message>
    <message>
        <source>What is sent: each clip&apos;s key id and the locked key the car wrote into it, and your car&apos;s VIN. Never any video: the footage stays on this computer.</source>
        <translation>Ce qui est envoyé&#xa0;: l&apos;identifiant de clé de chaque clip et la clé verrouillée que la voiture y a écrite, ainsi que le VIN de votre voiture. Jamais de vidéo&#xa0;: les images restent sur cet ordinateur.</translation>
    </message>
    <message>
        <source>The keys are kept on this computer and beside the events in your Vault, so unlocked footage plays offline from then on.</source>
        <translation>Les clés sont enregistrées sur cet ordinateur et à côté des événements dans votre Coffre&#xa0;: les vidéos déverrouillées se lisent donc hors ligne par la suite.</translation>
    </message>
    <message>
        <source>Your Tesla sign-in</source>
        <translation>Votre connexion Tesla</translation>
    </message>
    <message>
        <source>Sign In with Your Browser…</source>
        <translation>Se connecter avec le navigateur…</translation>
    </message>
    <message>
        <source>Opens Tesla&apos;s sign-in page in your browser. When you have signed in, copy the address the browser shows and paste it here. This sign-in can be renewed for months without signing in again.</source>
        <translation>Ouvre la page de connexion de Tesla dans votre navigateur. Une fois connecté, copiez l&apos;adresse affichée par le navigateur et collez-la ici. Cette connexion peut être renouvelée pendant des mois sans que vous ayez à vous reconnecter.</translation>
    </message>
    <message>
        <source>Paste the address your browser landed on</source>
        <translation>Collez l&apos;adresse sur laquelle votre navigateur est arrivé</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Or copy the viewer&apos;s sign-in token:</source>
        <translation>Ou copiez le jeton de connexion de la visionneuse&#xa0;:</translation>
    </message>
    <message>
        <source>Paste your sign-in token</source>
        <translation>Collez votre jeton de connexion</translation>
    </message>
    <message>
        <source>Remember on this computer</source>
        <translation>Mémoriser sur cet ordinateur</translation>
    </message>
    <message>
        <source>Kept in your desktop&apos;s secret store (its keyring), never in a plain file. Without it, the sign-in is forgotten when Keelhold quits.</source>
        <translation>Gardée dans le stockage sécurisé de votre bureau (son trousseau de clés), jamais dans un simple fichier. Sans cela, la connexion est oubliée quand Keelhold se ferme.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <extracomment>Button that asks Tesla for the keys with the pasted sign-in token</extracomment>
        <translation>Déverrouiller</translation>
    </message>
    <message>
        <source>Open Tesla&apos;s Viewer</source>
        <translation>Ouvrir la visionneuse Tesla</translation>
    </message>
    <message>
        <source>Forget my sign-in</source>
        <translation>Oublier ma connexion</translation>
    </message>
    <message>
        <source>Sign in again…</source>
        <translation>Se reconnecter…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Asking Tesla for the keys…</source>
        <translation>Demande des clés à Tesla…</translation>
    </message>
    <message>
        <source>You&apos;re signed in for as long as Keelhold runs.</source>
        <translation>Vous êtes connecté tant que Keelhold est ouvert.</translation>
    </message>
    <message>
        <source>You&apos;re signed in, and your sign-in is remembered on this computer.</source>
        <translation>Vous êtes connecté, et votre connexion est mémorisée sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Some footage is encrypted by your car</source>
        <translation>Certaines vidéos sont chiffrées par votre voiture</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>Déverrouiller…</translation>
    </message>
    <message>
        <source>Turn encryption off for future recordings…</source>
        <translation>Désactiver le chiffrement pour les prochains enregistrements…</translation>
    </message>
    <message>
        <source>Unlock Encrypted Footage…</source>
        <translation>Déverrouiller les vidéos chiffrées…</translation>
    </message>
    <message>
        <source>Open Tesla&apos;s dashcam viewer (%1) in your browser and sign in with your Tesla account.</source>
        <translation>Ouvrez la visionneuse Dashcam de Tesla (%1) dans votre navigateur et connectez-vous avec votre compte Tesla.</translation>
    </message>
    <message>
        <source>Open the browser&apos;s developer tools (F12) and choose the Network tab.</source>
        <extracomment>&quot;Network&quot; is the tab&apos;s name in the browser&apos;s developer tools</extracomment>
        <translation>Ouvrez les outils de développement du navigateur (F12) et choisissez l&apos;onglet Réseau.</translation>
    </message>
    <message>
        <source>Paste it below. It works for about eight hours; sign in again after that.</source>
        <translation>Collez-le ci-dessous. Il fonctionne pendant environ huit heures&#xa0;; reconnectez-vous ensuite.</translation>
    </message>
    <message>
        <source>Keelhold lists and keeps them like any other; to watch them here, unlock them with your Tesla account.</source>
        <translation>Keelhold les liste et les conserve comme les autres&#xa0;; pour les regarder ici, déverrouillez-les avec votre compte Tesla.</translation>
    </message>
    <message>
        <source>Play any clip in the viewer, then pick the request named “batch” in the list.</source>
        <extracomment>&quot;batch&quot; is the request&apos;s name as the browser lists it; keep it as it is</extracomment>
        <translation>Lisez n&apos;importe quel clip dans la visionneuse, puis choisissez la requête nommée «&#xa0;batch&#xa0;» dans la liste.</translation>
    </message>
    <message>
        <source>Under Request Headers, copy the text after “Authorization: Bearer”.</source>
        <extracomment>&quot;Request Headers&quot; is a heading in the browser&apos;s developer tools; &quot;Authorization: Bearer&quot; stays as it is</extracomment>
        <translation>Sous En-têtes de la requête, copiez le texte qui suit «&#xa0;Authorization: Bearer&#xa0;».</translation>
    </message>
    <message numerus="yes">
        <source>%n events here were recorded with your car&apos;s encryption on.</source>
        <translation>
            <numerusform>%n événement ici a été enregistré alors que le chiffrement de votre voiture était activé.</numerusform>
            <numerusform>%n événements ici ont été enregistrés alors que le chiffrement de votre voiture était activé.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocked %n clips.</source>
        <translation>
            <numerusform>%n clip déverrouillé.</numerusform>
            <numerusform>%n clips déverrouillés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocked %1 of %n clips.</source>
        <translation>
            <numerusform>Clips déverrouillés&#xa0;: %1 sur %n.</numerusform>
            <numerusform>Clips déverrouillés&#xa0;: %1 sur %n.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Unlocker</name>
    <message>
        <source>The keys couldn&apos;t be saved on this computer, so they work until Keelhold quits and will be asked for again next time.</source>
        <translation>Les clés n&apos;ont pas pu être enregistrées sur cet ordinateur&#xa0;: elles fonctionnent jusqu&apos;à la fermeture de Keelhold et seront redemandées la prochaine fois.</translation>
    </message>
</context>
<context>
    <name>VaultIndex</name>
    <message>
        <source>There is no Trash folder at %1 and it can&apos;t be made, so nothing was removed.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>Il n&apos;y a pas de dossier Corbeille à %1 et il ne peut pas être créé&#xa0;: rien n&apos;a donc été supprimé.</translation>
    </message>
    <message>
        <source>Couldn&apos;t move %1 to the Trash, so nothing was removed.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>Impossible de déplacer %1 vers la Corbeille&#xa0;: rien n&apos;a donc été supprimé.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1: %2</source>
        <extracomment>%1 is a file&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>Impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Couldn&apos;t create the folder %1.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>Impossible de créer le dossier %1.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2</source>
        <extracomment>%1 is a file&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>Impossible d&apos;écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The Vault&apos;s index points outside the Vault folder (%1), so nothing was removed.</source>
        <extracomment>%1 is the folder the index names, as written in it</extracomment>
        <translation>L&apos;index du Coffre pointe en dehors du dossier du Coffre (%1)&#xa0;: rien n&apos;a donc été supprimé.</translation>
    </message>
</context>
<context>
    <name>VaultMarks</name>
    <message>
        <source>Faithful Copy</source>
        <translation>Copie fidèle</translation>
    </message>
    <message>
        <source>Every file below was copied and its checksum (SHA-256) was compared to the original on your drive at the time — a faithful, unaltered copy. This is a technical integrity check, not a legal certification.</source>
        <translation>Chaque fichier ci-dessous a été copié et sa somme de contrôle (SHA-256) a été comparée à l&apos;original sur votre disque à ce moment-là — une copie fidèle et non modifiée. Il s&apos;agit d&apos;un contrôle technique d&apos;intégrité, pas d&apos;une certification légale.</translation>
    </message>
    <message>
        <source>Archived %1 from %2</source>
        <extracomment>%1 is when the event was kept, %2 the name of the drive it came from</extracomment>
        <translation>Conservé le %1 depuis %2</translation>
    </message>
    <message>
        <source>Missing</source>
        <extracomment>A kept file that is no longer in the Vault</extracomment>
        <translation>Manquant</translation>
    </message>
    <message>
        <source>Changed since it was kept</source>
        <translation>Modifié depuis sa conservation</translation>
    </message>
    <message>
        <source>Couldn&apos;t be read</source>
        <translation>Illisible</translation>
    </message>
    <message>
        <source>Last re-read %1.</source>
        <extracomment>%1 is the date and time of the last re-reading</extracomment>
        <translation>Dernière relecture&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Not re-read since it was kept.</source>
        <translation>Pas relu depuis sa conservation.</translation>
    </message>
    <message>
        <source>Missing from your Vault since it was kept: %1</source>
        <translation>Absent de votre Coffre depuis sa conservation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Changed since it was kept: %1</source>
        <translation>Modifié depuis sa conservation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Files Missing</source>
        <translation>Fichiers manquants</translation>
    </message>
    <message>
        <source>Changed Since It Was Kept</source>
        <translation>Modifié depuis sa conservation</translation>
    </message>
    <message>
        <source>When Keelhold re-read this event on %1, %2 no longer matched the copy it made. The file named below was changed or removed after it was kept; if the event is still on your drive, keep it again.</source>
        <extracomment>%1 is the day of the re-reading, %2 how many files (&quot;one file&quot;, &quot;3 files&quot;)</extracomment>
        <translation>Lors de la relecture de cet événement le %1, Keelhold a constaté une différence avec sa copie pour %2. Le ou les fichiers indiqués ci-dessous ont été modifiés ou supprimés après leur conservation&#xa0;; si l&apos;événement est encore sur votre disque, conservez-le à nouveau.</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n fichier</numerusform>
            <numerusform>%n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n files</source>
        <extracomment>Files that reached the Vault, of all the event has</extracomment>
        <translation>
            <numerusform>%1 sur %n fichier</numerusform>
            <numerusform>%1 sur %n fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Incomplete — %1</source>
        <translation>Incomplet — %1</translation>
    </message>
    <message>
        <source>Only part of this event reached your Vault. Keep it again from the drive to finish it.</source>
        <translation>Seule une partie de cet événement est arrivée dans votre Coffre. Conservez-le à nouveau depuis le disque pour le terminer.</translation>
    </message>
    <message>
        <source>Incomplete Copy</source>
        <translation>Copie incomplète</translation>
    </message>
    <message>
        <source>The copy of this event was cut off before every file arrived: %1 are here. Each of them was checked as it was copied, but the event is not complete. Keep it again from your drive to finish it.</source>
        <translation>La copie de cet événement a été interrompue avant l&apos;arrivée de tous les fichiers (présents&#xa0;: %1). Chacun d&apos;eux a été contrôlé pendant sa copie, mais l&apos;événement n&apos;est pas complet. Conservez-le à nouveau depuis votre disque pour le terminer.</translation>
    </message>
    <message>
        <source>Verified %1</source>
        <extracomment>The badge of a kept event; %1 is the day it was last re-read</extracomment>
        <translation>Vérifié le %1</translation>
    </message>
    <message>
        <source>Every file was read again on %1 and still matches the checksum taken when it was kept. Tap for the technical detail.</source>
        <translation>Chaque fichier a été relu le %1 et correspond toujours à la somme de contrôle prise lors de sa conservation. Cliquez pour voir le détail technique.</translation>
    </message>
    <message>
        <source>Verified copy</source>
        <translation>Copie vérifiée</translation>
    </message>
    <message>
        <source>This copy was checked byte-for-byte against your drive when it was archived. Tap for the technical detail.</source>
        <translation>Cette copie a été contrôlée octet par octet par rapport à votre disque lors de sa conservation. Cliquez pour voir le détail technique.</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 est manquant</translation>
    </message>
    <message>
        <source>%1 has changed</source>
        <translation>%1 a été modifié</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1 ne peut pas être lu</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between file names</extracomment>
        <translation>, </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>An event&apos;s problems in the Vault&apos;s notice: its date and time, then the files</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>; </source>
        <extracomment>Between the events in the Vault&apos;s notice</extracomment>
        <translation>&#xa0;; </translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>The Vault notice&apos;s list of events with problems, ended as a sentence</extracomment>
        <translation>%1.</translation>
    </message>
    <message numerus="yes">
        <source>%n more kept events have problems too.</source>
        <translation>
            <numerusform>%n autre événement conservé présente aussi des problèmes.</numerusform>
            <numerusform>%n autres événements conservés présentent aussi des problèmes.</numerusform>
        </translation>
    </message>
    <message>
        <source>Something changed these copies after they were kept. If the events are still on your drive, keep them again.</source>
        <translation>Quelque chose a modifié ces copies après leur conservation. Si les événements sont encore sur votre disque, conservez-les à nouveau.</translation>
    </message>
    <message numerus="yes">
        <source>%n kept events no longer match what was kept</source>
        <translation>
            <numerusform>%n événement conservé ne correspond plus à ce qui a été conservé</numerusform>
            <numerusform>%n événements conservés ne correspondent plus à ce qui a été conservé</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Drive disconnected — %1 of %n events kept completely</source>
        <translation>
            <numerusform>Disque déconnecté — %1 sur %n événement conservé entièrement</numerusform>
            <numerusform>Disque déconnecté — %1 sur %n événements conservés entièrement</numerusform>
        </translation>
    </message>
    <message>
        <source>Backup Stopped</source>
        <translation>Sauvegarde arrêtée</translation>
    </message>
    <message numerus="yes">
        <source>Backup Incomplete — %1 of %n events kept completely</source>
        <translation>
            <numerusform>Sauvegarde incomplète — %1 sur %n événement conservé entièrement</numerusform>
            <numerusform>Sauvegarde incomplète — %1 sur %n événements conservés entièrement</numerusform>
        </translation>
    </message>
    <message>
        <source>Backup Complete</source>
        <translation>Sauvegarde terminée</translation>
    </message>
    <message numerus="yes">
        <source>%n events copied and verified, byte-for-byte. The original on your drive is untouched.</source>
        <translation>
            <numerusform>%n événement copié et vérifié, octet par octet. L&apos;original sur votre disque n&apos;est pas touché.</numerusform>
            <numerusform>%n événements copiés et vérifiés, octet par octet. Les originaux sur votre disque ne sont pas touchés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n events reached your Vault only in part (%1 of %2 files), so they aren&apos;t verified copies. Keep them again to finish them.</source>
        <extracomment>%1 of %2 are the files that arrived, of all the events have</extracomment>
        <translation>
            <numerusform>%n événement n&apos;est arrivé dans votre Coffre qu&apos;en partie (%1 fichiers sur %2)&#xa0;: ce n&apos;est donc pas une copie vérifiée. Conservez-le à nouveau pour le terminer.</numerusform>
            <numerusform>%n événements ne sont arrivés dans votre Coffre qu&apos;en partie (%1 fichiers sur %2)&#xa0;: ce ne sont donc pas des copies vérifiées. Conservez-les à nouveau pour les terminer.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were already in your Vault, so we skipped them.</source>
        <extracomment>%n is a number of events</extracomment>
        <translation>
            <numerusform>%n événement était déjà dans votre Coffre, nous l&apos;avons donc ignoré.</numerusform>
            <numerusform>%n événements étaient déjà dans votre Coffre, nous les avons donc ignorés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files couldn&apos;t be read as the drive went away.</source>
        <translation>
            <numerusform>%n fichier n&apos;a pas pu être lu car le disque a été déconnecté.</numerusform>
            <numerusform>%n fichiers n&apos;ont pas pu être lus car le disque a été déconnecté.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files couldn&apos;t be read — your drive may be failing. Nothing was deleted or changed; you can try again.</source>
        <translation>
            <numerusform>%n fichier n&apos;a pas pu être lu — votre disque est peut-être défaillant. Rien n&apos;a été supprimé ni modifié&#xa0;; vous pouvez réessayer.</numerusform>
            <numerusform>%n fichiers n&apos;ont pas pu être lus — votre disque est peut-être défaillant. Rien n&apos;a été supprimé ni modifié&#xa0;; vous pouvez réessayer.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VaultViewModel</name>
    <message>
        <source>Vault</source>
        <extracomment>Title of the Vault&apos;s list</extracomment>
        <translation>Coffre</translation>
    </message>
    <message>
        <source>Choose Your Vault Folder</source>
        <extracomment>Title of the folder dialog that picks the Vault&apos;s folder</extracomment>
        <translation>Choisir le dossier du Coffre</translation>
    </message>
    <message>
        <source>Pick (or create) a folder where Keelhold will keep permanent copies of the footage you decide to keep.</source>
        <translation>Choisissez (ou créez) un dossier où Keelhold conservera des copies permanentes des vidéos que vous décidez de conserver.</translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <extracomment>Accept button of the folder dialog that picks the Vault&apos;s folder</extracomment>
        <translation>Utiliser ce dossier</translation>
    </message>
    <message>
        <source>Change Vault Folder</source>
        <translation>Changer le dossier du Coffre</translation>
    </message>
    <message>
        <source>Point Keelhold at a different folder or drive for your permanent archive.</source>
        <translation>Indiquer à Keelhold un autre dossier ou disque pour vos copies permanentes.</translation>
    </message>
    <message>
        <source>How much space your kept footage uses, and how much room the Vault&apos;s disk has left.</source>
        <translation>L&apos;espace utilisé par vos vidéos conservées, et l&apos;espace restant sur le disque du Coffre.</translation>
    </message>
    <message>
        <source>Move to Trash…</source>
        <extracomment>Menu item of a kept event</extracomment>
        <translation>Mettre à la Corbeille…</translation>
    </message>
    <message>
        <source>Move this event to the Trash?</source>
        <translation>Mettre cet événement à la Corbeille&#xa0;?</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <extracomment>Button that confirms moving the kept event to the Trash</extracomment>
        <translation>Mettre à la Corbeille</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Choose a Different Folder</source>
        <translation>Choisir un autre dossier</translation>
    </message>
    <message>
        <source>Choose Another Folder…</source>
        <translation>Choisir un autre dossier…</translation>
    </message>
    <message>
        <source>Keeping footage safe…</source>
        <translation>Conservation des vidéos…</translation>
    </message>
    <message>
        <source>Stops after the current file. Anything already copied and verified stays in your Vault — nothing is undone.</source>
        <translation>S&apos;arrête après le fichier en cours. Tout ce qui a déjà été copié et vérifié reste dans votre Coffre — rien n&apos;est annulé.</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the keep&apos;s report</extracomment>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Verify Vault</source>
        <translation>Vérifier le Coffre</translation>
    </message>
    <message>
        <source>Read every kept file again and compare it with the checksum taken when it was kept.</source>
        <translation>Relire chaque fichier conservé et le comparer à la somme de contrôle prise lors de sa conservation.</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Choose a Vault Folder</source>
        <translation>Choisir un dossier de Coffre</translation>
    </message>
    <message>
        <source>Your Vault is a folder on this %1 (or an external drive you keep) where Keelhold keeps permanent, verified copies of the footage you choose to keep — safe even if your car&apos;s drive fails, fills up, or gets wiped.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>Votre Coffre est un dossier sur cet %1 (ou sur un disque externe que vous gardez) où Keelhold conserve des copies permanentes et vérifiées des vidéos que vous choisissez de conserver — en sécurité même si le disque de votre voiture tombe en panne, se remplit ou est effacé.</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Your Vault is empty so far</source>
        <translation>Votre Coffre est vide pour l&apos;instant</translation>
    </message>
    <message>
        <source>Nothing has been kept yet. From the Drive tab, select an event and choose &quot;Keep&quot; to copy it here permanently.</source>
        <extracomment>&quot;Drive&quot; and &quot;Keep&quot; are the app&apos;s own tab and button; translate them as there</extracomment>
        <translation>Rien n&apos;a encore été conservé. Dans l&apos;onglet Disque, sélectionnez un événement et choisissez «&#xa0;Conserver&#xa0;» pour le copier ici de façon permanente.</translation>
    </message>
    <message numerus="yes">
        <source>%n events · %1 · %2 free on this disk</source>
        <extracomment>The Vault&apos;s summary: how many kept events, their size, and the room left on the Vault&apos;s disk</extracomment>
        <translation>
            <numerusform>%n événement · %1 · %2 libres sur ce disque</numerusform>
            <numerusform>%n événements · %1 · %2 libres sur ce disque</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n events · %1</source>
        <extracomment>The Vault&apos;s summary: how many kept events and their size</extracomment>
        <translation>
            <numerusform>%n événement · %1</numerusform>
            <numerusform>%n événements · %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n events</source>
        <extracomment>A keep&apos;s progress: events done of all it keeps</extracomment>
        <translation>
            <numerusform>%1 sur %n événement</numerusform>
            <numerusform>%1 sur %n événements</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused at %1 — that is a different drive; plug in the one this keep was reading</source>
        <translation>En pause (%1) — c&apos;est un autre disque&#xa0;; branchez celui que cette conservation lisait</translation>
    </message>
    <message>
        <source>Paused at %1 — plug the drive back in to go on</source>
        <translation>En pause (%1) — rebranchez le disque pour continuer</translation>
    </message>
    <message>
        <source>Reading your kept footage again…</source>
        <translation>Relecture de vos vidéos conservées…</translation>
    </message>
    <message>
        <source>Reading 1 kept event again…</source>
        <translation>Relecture d&apos;un événement conservé…</translation>
    </message>
    <message>
        <source>Reading kept events again: %1 of %2 done</source>
        <translation>Relecture des événements conservés&#xa0;: %1 sur %2 terminés</translation>
    </message>
    <message>
        <source>%1 will move to your %2&apos;s Trash, where you can still recover it. Nothing on your Tesla drive is touched.</source>
        <extracomment>%1 is the event&apos;s day and time (&quot;Mon 2:11 AM&quot;), %2 the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>L&apos;événement du %1 sera placé dans la Corbeille de votre %2, où vous pourrez encore le récupérer. Rien sur votre disque Tesla n&apos;est touché.</translation>
    </message>
    <message>
        <source>This drive</source>
        <translation>Ce disque</translation>
    </message>
    <message>
        <source>Keep new events automatically when this drive is connected</source>
        <translation>Conserver automatiquement les nouveaux événements quand ce disque est connecté</translation>
    </message>
    <message>
        <source>Recent driving too</source>
        <extracomment>Ticked with the choice above: recent driving is kept as well</extracomment>
        <translation>La conduite récente aussi</translation>
    </message>
    <message>
        <source>%1 — Sentry and saved events, each file checked, as soon as it is connected while Keelhold is open.</source>
        <extracomment>%1 is the drive&apos;s name</extracomment>
        <translation>%1 — événements Sentinelle et enregistrés, chaque fichier contrôlé, dès qu&apos;il est connecté pendant que Keelhold est ouvert.</translation>
    </message>
</context>
<context>
    <name>VideoReencoder</name>
    <message>
        <source>The footage couldn&apos;t be converted for the movie.</source>
        <translation>Les vidéos n&apos;ont pas pu être converties pour la nouvelle vidéo.</translation>
    </message>
    <message>
        <source>There wasn&apos;t enough memory to convert the footage.</source>
        <translation>Il n&apos;y avait pas assez de mémoire pour convertir les vidéos.</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be encoded: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>Les vidéos n&apos;ont pas pu être encodées&#xa0;: %1.</translation>
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
        <translation>Inconnu</translation>
    </message>
</context>
</TS>
