<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ActivityTab</name>
    <message>
        <source>&amp;Arrived</source>
        <translation>A&amp;rrivées</translation>
    </message>
    <message>
        <source>Shows the movies that have arrived</source>
        <translation>Montre les films qui sont arrivés</translation>
    </message>
    <message>
        <source>A&amp;ll Passes</source>
        <translation>Toutes &amp;les passes</translation>
    </message>
    <message>
        <source>Shows every pass with its outcome</source>
        <translation>Montre chaque passe avec son résultat</translation>
    </message>
    <message>
        <source>Arrived per day, 30 days</source>
        <translation>Arrivées par jour, 30 jours</translation>
    </message>
</context>
<context>
    <name>ArrivalsView</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search what has arrived</source>
        <translation>Rechercher dans ce qui est arrivé</translation>
    </message>
    <message>
        <source>Shows the movies with this text in their path</source>
        <translation>Montre les films dont le chemin contient ce texte</translation>
    </message>
    <message>
        <source>Arrived movies</source>
        <translation>Films arrivés</translation>
    </message>
    <message>
        <source>By day, newest first; the Return key opens one</source>
        <translation>Par jour, les plus récents d’abord&#xa0;; la touche Entrée ouvre un film</translation>
    </message>
</context>
<context>
    <name>BonjourSheet</name>
    <message>
        <source>Choose the Remote Mac</source>
        <translation>Choisir le Mac distant</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Recherche en cours</translation>
    </message>
    <message>
        <source>Computers found</source>
        <translation>Ordinateurs trouvés</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>&amp;Rechercher à nouveau</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Rechercher à nouveau</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Sélectionner</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Copy C&amp;ommand</source>
        <translation>&amp;Copier la commande</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Copier la commande</translation>
    </message>
</context>
<context>
    <name>DiagnosticsTab</name>
    <message>
        <source>Folders and window</source>
        <translation>Dossiers et fenêtre</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Looks one second for Macs that share files and lists all of them below</source>
        <translation>Recherche pendant une seconde les Mac qui partagent des fichiers et les affiche tous ci-dessous</translation>
    </message>
    <message>
        <source>Writes what the last search found to the log</source>
        <translation>Écrit dans le journal ce que la dernière recherche a trouvé</translation>
    </message>
    <message>
        <source>Found &amp;Macs</source>
        <translation>&amp;Mac trouvés</translation>
    </message>
    <message>
        <source>Found Macs</source>
        <translation>Mac trouvés</translation>
    </message>
    <message>
        <source>Remote Mac and program</source>
        <translation>Mac distant et programme</translation>
    </message>
    <message>
        <source>These buttons help to find out why something does not work. What they find out is written to the log: Help, Open Log Folder.</source>
        <translation>Ces boutons aident à trouver pourquoi quelque chose ne fonctionne pas. Ce qu’ils trouvent est écrit dans le journal&#xa0;: menu Aide, Ouvrir le dossier du journal.</translation>
    </message>
    <message>
        <source>Passes and heartbeat</source>
        <translation>Passes et signe de vie</translation>
    </message>
    <message>
        <source>Sync Two Folders Here</source>
        <translation>Synchroniser deux dossiers ici</translation>
    </message>
    <message>
        <source>Switches syncing on or off, with passes between two folders on this computer, whatever Settings says</source>
        <translation>Active ou désactive la synchronisation, avec des passes entre deux dossiers de cet ordinateur, quels que soient les réglages</translation>
    </message>
    <message>
        <source>Sync from the Mac</source>
        <translation>Synchroniser depuis le Mac</translation>
    </message>
    <message>
        <source>Switches syncing on or off, with passes from the remote Mac, whatever Settings says</source>
        <translation>Active ou désactive la synchronisation, avec des passes depuis le Mac distant, quels que soient les réglages</translation>
    </message>
    <message>
        <source>Start Heartbeat</source>
        <translation>Démarrer le signe de vie</translation>
    </message>
    <message>
        <source>Writes a line to the log each second, as a sign that the program is alive</source>
        <translation>Écrit chaque seconde une ligne dans le journal, signe que le programme est actif</translation>
    </message>
    <message>
        <source>Pause Heartbeat</source>
        <translation>Suspendre le signe de vie</translation>
    </message>
    <message>
        <source>Writes no more of these lines until the heartbeat is started again</source>
        <translation>N’écrit plus ces lignes tant que le signe de vie n’est pas redémarré</translation>
    </message>
    <message>
        <source>End Heartbeat</source>
        <translation>Terminer le signe de vie</translation>
    </message>
    <message>
        <source>Writes no more of these lines until the program starts again</source>
        <translation>N’écrit plus ces lignes jusqu’au prochain démarrage du programme</translation>
    </message>
    <message>
        <source>Show Source Folder</source>
        <translation>Afficher le dossier source</translation>
    </message>
    <message>
        <source>Shows the source folder on the Sync tab and writes its parts to the log; where none is chosen, the Desktop folder becomes the source</source>
        <translation>Affiche le dossier source dans l’onglet Synchronisation et écrit ses composants dans le journal&#xa0;; si aucun n’est choisi, le dossier Bureau devient la source</translation>
    </message>
    <message>
        <source>Open Test Folder</source>
        <translation>Ouvrir le dossier de test</translation>
    </message>
    <message>
        <source>Opens /Volumes/Macintosh%20HD-2/Users/support/Desktop/FolderOnRemoteServer, a folder for tests that few computers have; source and destination must be chosen first</source>
        <translation>Ouvre /Volumes/Macintosh%20HD-2/Users/support/Desktop/FolderOnRemoteServer, un dossier de test que peu d’ordinateurs possèdent&#xa0;; la source et la destination doivent d’abord être choisies</translation>
    </message>
    <message>
        <source>Open Scripts Folder</source>
        <translation>Ouvrir le dossier des scripts</translation>
    </message>
    <message>
        <source>Opens the temporary folder in which the program keeps the scripts for a terminal</source>
        <translation>Ouvre le dossier temporaire où le programme garde les scripts pour un terminal</translation>
    </message>
    <message>
        <source>Leave All Fields</source>
        <translation>Quitter tous les champs</translation>
    </message>
    <message>
        <source>Takes the keyboard away from every field and button until another one is chosen</source>
        <translation>Retire le focus du clavier à tous les champs et boutons jusqu’à ce qu’un autre soit choisi</translation>
    </message>
    <message>
        <source>Search for Macs</source>
        <translation>Rechercher des Mac</translation>
    </message>
    <message>
        <source>Log Found Macs</source>
        <translation>Consigner les Mac trouvés</translation>
    </message>
    <message>
        <source>Copy to a Mac</source>
        <translation>Copier vers un Mac</translation>
    </message>
    <message>
        <source>Writes a line to the log and nothing else: the destination is always a folder on this computer</source>
        <translation>Écrit seulement une ligne dans le journal&#xa0;: la destination est toujours un dossier de cet ordinateur</translation>
    </message>
    <message>
        <source>Watch for Shares</source>
        <translation>Surveiller les partages</translation>
    </message>
    <message>
        <source>Looks for shared folders and writes each one that comes or goes to the log</source>
        <translation>Recherche les dossiers partagés et écrit dans le journal chacun de ceux qui apparaissent ou disparaissent</translation>
    </message>
    <message>
        <source>Open the Share</source>
        <translation>Ouvrir le partage</translation>
    </message>
    <message>
        <source>Asks the desktop to open the shared folder of the Mac and writes the open shares to the log</source>
        <translation>Demande au bureau d’ouvrir le dossier partagé du Mac et écrit les partages ouverts dans le journal</translation>
    </message>
    <message>
        <source>Find Folder, Older Way</source>
        <translation>Trouver le dossier, ancienne méthode</translation>
    </message>
    <message>
        <source>Opens the shared folder of the Mac and looks for the folder in it without waiting</source>
        <translation>Ouvre le dossier partagé du Mac et y cherche le dossier sans attendre</translation>
    </message>
    <message>
        <source>New Key, Older Way</source>
        <translation>Nouvelle clé, ancienne méthode</translation>
    </message>
    <message>
        <source>Removes the key and makes a new one in a terminal window; the Mac must be given the new one with Set Up Key</source>
        <translation>Supprime la clé et en crée une nouvelle dans une fenêtre de terminal&#xa0;; il faut ensuite l’installer sur le Mac avec Configurer la clé</translation>
    </message>
    <message>
        <source>Quit and Relaunch</source>
        <translation>Quitter et relancer</translation>
    </message>
    <message>
        <source>Ends the program and starts it again</source>
        <translation>Termine le programme et le redémarre</translation>
    </message>
</context>
<context>
    <name>FixedWords</name>
    <message>
        <source>Start rsync with bonjour</source>
        <translation>Démarrer rsync avec Bonjour</translation>
    </message>
    <message>
        <source>Start rsync with afp path</source>
        <translation>Démarrer rsync avec un chemin AFP</translation>
    </message>
    <message>
        <source>click to stop bonjour rsync</source>
        <translation>cliquer pour arrêter rsync avec Bonjour</translation>
    </message>
    <message>
        <source>click to stop rsync</source>
        <translation>cliquer pour arrêter rsync</translation>
    </message>
    <message>
        <source>click to start rsync using bonjour</source>
        <translation>cliquer pour démarrer rsync avec Bonjour</translation>
    </message>
    <message>
        <source>click to start rsync</source>
        <translation>cliquer pour démarrer rsync</translation>
    </message>
    <message>
        <source>click to restart rsync using bonjour</source>
        <translation>cliquer pour redémarrer rsync avec Bonjour</translation>
    </message>
    <message>
        <source>click to restart rsync</source>
        <translation>cliquer pour redémarrer rsync</translation>
    </message>
    <message>
        <source>Trying to rsync From Destination to Source...</source>
        <translation>Essai de rsync de la destination vers la source...</translation>
    </message>
    <message>
        <source>Resting a bit ...</source>
        <translation>Petite pause ...</translation>
    </message>
    <message>
        <source>The settings file cannot be read - waiting...</source>
        <translation>Le fichier de réglages ne peut pas être lu - en attente...</translation>
    </message>
    <message>
        <source>oops - something went wrong - check settings and hardware connections - then try again...</source>
        <translation>oups - quelque chose s’est mal passé - vérifiez les réglages et les branchements - puis réessayez...</translation>
    </message>
    <message>
        <source>Unable to Reach Remote Host</source>
        <translation>Impossible de joindre l’hôte distant</translation>
    </message>
    <message>
        <source>Missing ssh keys -
Please generate ssh keys
 and 
 try again...
</source>
        <translation>Clés ssh manquantes -
Veuillez générer des clés ssh
 et 
 réessayer...
</translation>
    </message>
    <message>
        <source>SUCCESS...</source>
        <translation>RÉUSSI...</translation>
    </message>
    <message>
        <source>remote seem to be alive?...</source>
        <translation>l’hôte distant semble répondre&#xa0;?...</translation>
    </message>
    <message>
        <source>Oh OH...</source>
        <translation>Aïe...</translation>
    </message>
    <message>
        <source>ssh identity file is invalid or missing ???...</source>
        <translation>le fichier d’identité ssh est invalide ou manquant&#xa0;???...</translation>
    </message>
    <message>
        <source>ssh remote has issues - please check network connection or remote username@domain parameters...</source>
        <translation>problème avec l’hôte ssh distant - vérifiez la connexion réseau ou les paramètres utilisateur@domaine...</translation>
    </message>
    <message>
        <source>Please Wait - Scanning for smb machines on network...</source>
        <translation>Veuillez patienter - recherche de machines smb sur le réseau...</translation>
    </message>
    <message>
        <source>Bonjour List...</source>
        <translation>Liste Bonjour...</translation>
    </message>
    <message>
        <source>No network connection</source>
        <translation>Pas de connexion réseau</translation>
    </message>
    <message>
        <source>Connected to the local network only</source>
        <translation>Connecté au réseau local seulement</translation>
    </message>
    <message>
        <source>Connected to the network</source>
        <translation>Connecté au réseau</translation>
    </message>
    <message>
        <source>the user name holds a zero</source>
        <translation>le nom d’utilisateur contient un caractère nul</translation>
    </message>
    <message>
        <source>the user name holds a line break</source>
        <translation>le nom d’utilisateur contient un saut de ligne</translation>
    </message>
    <message>
        <source>the user name holds signs that are no text</source>
        <translation>le nom d’utilisateur contient des caractères qui ne sont pas du texte</translation>
    </message>
    <message>
        <source>the user name begins with &quot;-&quot;</source>
        <translation>le nom d’utilisateur commence par «&#xa0;-&#xa0;»</translation>
    </message>
    <message>
        <source>the user name holds &quot;:&quot; or &quot;/&quot;</source>
        <translation>le nom d’utilisateur contient «&#xa0;:&#xa0;» ou «&#xa0;/&#xa0;»</translation>
    </message>
    <message>
        <source>the host name holds a zero</source>
        <translation>le nom d’hôte contient un caractère nul</translation>
    </message>
    <message>
        <source>the host name holds a line break</source>
        <translation>le nom d’hôte contient un saut de ligne</translation>
    </message>
    <message>
        <source>the host name holds signs that are no text</source>
        <translation>le nom d’hôte contient des caractères qui ne sont pas du texte</translation>
    </message>
    <message>
        <source>the host name begins with &quot;-&quot;</source>
        <translation>le nom d’hôte commence par «&#xa0;-&#xa0;»</translation>
    </message>
    <message>
        <source>the host name holds &quot;/&quot;</source>
        <translation>le nom d’hôte contient «&#xa0;/&#xa0;»</translation>
    </message>
    <message>
        <source>the path of the key file holds a line break</source>
        <translation>le chemin du fichier de clé contient un saut de ligne</translation>
    </message>
    <message>
        <source>the path of the key file holds signs that are no text</source>
        <translation>le chemin du fichier de clé contient des caractères qui ne sont pas du texte</translation>
    </message>
    <message>
        <source>the source holds a zero</source>
        <translation>la source contient un caractère nul</translation>
    </message>
    <message>
        <source>the source holds a line break</source>
        <translation>la source contient un saut de ligne</translation>
    </message>
    <message>
        <source>the source holds signs that are no text</source>
        <translation>la source contient des caractères qui ne sont pas du texte</translation>
    </message>
    <message>
        <source>the source begins with &quot;-&quot;</source>
        <translation>la source commence par «&#xa0;-&#xa0;»</translation>
    </message>
    <message>
        <source>the host of the source begins with &quot;-&quot;</source>
        <translation>l’hôte de la source commence par «&#xa0;-&#xa0;»</translation>
    </message>
    <message>
        <source>the source would be read as a module of an rsync daemon</source>
        <translation>la source serait prise pour un module d’un démon rsync</translation>
    </message>
    <message>
        <source>the destination holds a zero</source>
        <translation>la destination contient un caractère nul</translation>
    </message>
    <message>
        <source>the destination holds a line break</source>
        <translation>la destination contient un saut de ligne</translation>
    </message>
    <message>
        <source>the destination holds signs that are no text</source>
        <translation>la destination contient des caractères qui ne sont pas du texte</translation>
    </message>
    <message>
        <source>the destination begins with &quot;-&quot;</source>
        <translation>la destination commence par «&#xa0;-&#xa0;»</translation>
    </message>
    <message>
        <source>the destination would be read as the name of a host</source>
        <translation>la destination serait prise pour le nom d’un hôte</translation>
    </message>
    <message>
        <source>the command puts a text where it cannot be kept in one word</source>
        <translation>la commande place un texte là où il ne peut pas rester un seul mot</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Quota de disque dépassé</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Erreur d’entrée/sortie</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Est un dossier</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Plus de place sur le disque</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Fichier ou dossier inexistant</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>N’est pas un dossier</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permission refusée</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Système de fichiers en lecture seule</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Trop de fichiers ouverts</translation>
    </message>
    <message>
        <source>Trying to rsync with option = %1...</source>
        <translation>Essai de rsync avec l’option = %1...</translation>
    </message>
    <message>
        <source>something went wrong - waiting to retry again... [%1]</source>
        <translation>quelque chose s’est mal passé - nouvel essai bientôt... [%1]</translation>
    </message>
    <message>
        <source>Please make sure remote host is on this network
or
Please check username...

%1
</source>
        <translation>Vérifiez que l’hôte distant est sur ce réseau
ou
vérifiez le nom d’utilisateur...

%1
</translation>
    </message>
    <message>
        <source>Settings cannot be saved to %1: %2</source>
        <translation>Les réglages ne peuvent pas être enregistrés dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The settings in %1 are not known: %2</source>
        <translation>Les réglages dans %1 ne sont pas connus&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Kelvo Mirror</source>
        <translation>Kelvo Mirror</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>PassesView</name>
    <message>
        <source>&amp;Brought files</source>
        <translation>Avec f&amp;ichiers</translation>
    </message>
    <message>
        <source>Shows the passes that brought files</source>
        <translation>Montre les passes qui ont apporté des fichiers</translation>
    </message>
    <message>
        <source>In tro&amp;uble</source>
        <translation>Avec pro&amp;blèmes</translation>
    </message>
    <message>
        <source>Shows the passes that were in trouble</source>
        <translation>Montre les passes qui ont rencontré un problème</translation>
    </message>
    <message>
        <source>Passes</source>
        <translation>Passes</translation>
    </message>
    <message>
        <source>Newest first; the selected pass is told below. The right arrow key unfolds a row that stands for several passes.</source>
        <translation>Les plus récentes d’abord&#xa0;; la passe sélectionnée est détaillée dessous. La flèche droite déplie une ligne qui représente plusieurs passes.</translation>
    </message>
    <message>
        <source>Select a pass to read what its commands said.</source>
        <translation>Sélectionnez une passe pour lire ce que ses commandes ont dit.</translation>
    </message>
    <message>
        <source>The selected pass</source>
        <translation>La passe sélectionnée</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy the selected pass</source>
        <translation>Copier la passe sélectionnée</translation>
    </message>
    <message>
        <source>Puts the selected pass&apos;s text on the clipboard</source>
        <translation>Place le texte de la passe sélectionnée dans le presse-papiers</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>E&amp;xporter…</translation>
    </message>
    <message>
        <source>Export all passes</source>
        <translation>Exporter toutes les passes</translation>
    </message>
    <message>
        <source>Writes all passes to a file of comma-separated values</source>
        <translation>Écrit toutes les passes dans un fichier de valeurs séparées par des virgules</translation>
    </message>
</context>
<context>
    <name>ProfilesSheet</name>
    <message>
        <source>Another Mac</source>
        <translation>Un autre Mac</translation>
    </message>
    <message>
        <source>Each further Mac gets a name here. Under it the program keeps settings, a record of passes and a window of their own; the key is shared.</source>
        <translation>Chaque Mac supplémentaire reçoit un nom ici. Sous ce nom, le programme tient des réglages, un journal des passes et une fenêtre qui lui sont propres&#xa0;; la clé est commune.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Letters, digits, “-” and “_”</source>
        <translation>Lettres, chiffres, «&#xa0;-&#xa0;» et «&#xa0;_&#xa0;»</translation>
    </message>
    <message>
        <source>Names there are</source>
        <translation>Noms existants</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Mac</source>
        <translation>Mac</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Last success</source>
        <translation>Dernier succès</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Opens the window of this name, or brings it to the front</source>
        <translation>Ouvre la fenêtre de ce nom ou la met au premier plan</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>About Kelvo Mirror</source>
        <translation>À propos de Kelvo Mirror</translation>
    </message>
    <message>
        <source>Kelvo Mirror %1</source>
        <translation>Kelvo Mirror %1</translation>
    </message>
    <message>
        <source>Keeps a local folder supplied with movie files from a remote Mac.</source>
        <translation>Alimente un dossier local en films venant d’un Mac distant.</translation>
    </message>
    <message>
        <source>Do not ask again</source>
        <translation>Ne plus demander</translation>
    </message>
    <message>
        <source>Show Remote Mac</source>
        <translation>Montrer le Mac distant</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>Copier la commande</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Vérifier à nouveau</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Open the Log</source>
        <translation>Ouvrir le journal</translation>
    </message>
    <message>
        <source>Without an answer, it tries again in %1 s.</source>
        <translation>Sans réponse, nouvel essai dans %1 s.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Choose the Mac</source>
        <translation>Choisir le Mac</translation>
    </message>
    <message>
        <source>Enter the Account</source>
        <translation>Indiquer le compte</translation>
    </message>
    <message>
        <source>Set Up the Key</source>
        <translation>Configurer la clé</translation>
    </message>
    <message>
        <source>&amp;Folder or file:</source>
        <translation>&amp;Dossier ou fichier&#xa0;:</translation>
    </message>
</context>
<context>
    <name>RemoteTab</name>
    <message>
        <source>Host &amp;name</source>
        <translation>&amp;Nom d’hôte</translation>
    </message>
    <message>
        <source>Studio-Mac.local</source>
        <translation>Studio-Mac.local</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>Nom d’hôte</translation>
    </message>
    <message>
        <source>The name of the remote Mac on this network</source>
        <translation>Le nom du Mac distant sur ce réseau</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Choisir…</translation>
    </message>
    <message>
        <source>Choose the remote Mac</source>
        <translation>Choisir le Mac distant</translation>
    </message>
    <message>
        <source>Lists the Macs on this network that share files</source>
        <translation>Affiche les Mac de ce réseau qui partagent des fichiers</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>Nom d’&amp;utilisateur</translation>
    </message>
    <message>
        <source>name of an account on the remote Mac</source>
        <translation>nom d’un compte du Mac distant</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>An account on the remote Mac with Remote Login</source>
        <translation>Un compte du Mac distant autorisé à ouvrir une session à distance</translation>
    </message>
    <message>
        <source>Fol&amp;der</source>
        <translation>D&amp;ossier</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Movies</translation>
    </message>
    <message>
        <source>Remote folder</source>
        <translation>Dossier distant</translation>
    </message>
    <message>
        <source>The folder on the remote Mac to pull from, from its home folder or from /</source>
        <translation>Le dossier du Mac distant d’où récupérer les films, à partir du dossier de départ ou de /</translation>
    </message>
    <message>
        <source>Source in use</source>
        <translation>Source utilisée</translation>
    </message>
    <message>
        <source>Set Up &amp;Key…</source>
        <translation>Confi&amp;gurer la clé…</translation>
    </message>
    <message>
        <source>Makes a key for this program and installs it on the remote Mac; asks for the password there</source>
        <translation>Crée une clé pour ce programme et l’installe sur le Mac distant&#xa0;; demande le mot de passe du compte</translation>
    </message>
    <message>
        <source>Te&amp;st Connection</source>
        <translation>&amp;Tester la connexion</translation>
    </message>
    <message>
        <source>Asks the remote Mac for an answer over ssh</source>
        <translation>Demande une réponse au Mac distant par ssh</translation>
    </message>
    <message>
        <source>The connection test is running</source>
        <translation>Le test de connexion est en cours</translation>
    </message>
    <message>
        <source>&amp;Make a New Key</source>
        <translation>C&amp;réer une nouvelle clé</translation>
    </message>
    <message>
        <source>Replaces the key of this program; it must be installed again</source>
        <translation>Remplace la clé de ce programme&#xa0;; il faut ensuite l’installer de nouveau</translation>
    </message>
    <message>
        <source>Check Ke&amp;y Again</source>
        <translation>&amp;Vérifier à nouveau la clé</translation>
    </message>
    <message>
        <source>Asks the remote Mac whether it accepts the key</source>
        <translation>Demande au Mac distant s’il accepte la clé</translation>
    </message>
    <message>
        <source>&amp;Open Remote Folder</source>
        <translation>Ouvrir le dossier d&amp;istant</translation>
    </message>
    <message>
        <source>Opens the remote folder in the file browser</source>
        <translation>Ouvre le dossier distant dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Mount and F&amp;ind Folder</source>
        <translation>&amp;Monter et trouver le dossier</translation>
    </message>
    <message>
        <source>Opens the share, looks where it was mounted and opens the folder there</source>
        <translation>Ouvre le partage, cherche où il a été monté et y ouvre le dossier</translation>
    </message>
    <message>
        <source>1. Mac</source>
        <translation>1. Mac</translation>
    </message>
    <message>
        <source>2. Account and folder</source>
        <translation>2. Compte et dossier</translation>
    </message>
    <message>
        <source>Use This Source No&amp;w</source>
        <translation>Utiliser cette &amp;source maintenant</translation>
    </message>
    <message>
        <source>Passes pull from this account and folder from now on</source>
        <translation>Les passes récupèrent désormais les films de ce compte et de ce dossier</translation>
    </message>
    <message>
        <source>3. Key</source>
        <translation>3. Clé</translation>
    </message>
    <message>
        <source>4. Connection</source>
        <translation>4. Connexion</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Autres</translation>
    </message>
</context>
<context>
    <name>SettingsTab</name>
    <message>
        <source>Kind of pass</source>
        <translation>Type de passe</translation>
    </message>
    <message>
        <source>Pull from the &amp;remote Mac over ssh</source>
        <translation>&amp;Récupérer depuis le Mac distant par ssh</translation>
    </message>
    <message>
        <source>Copy &amp;between two folders of this computer</source>
        <translation>&amp;Copier entre deux dossiers de cet ordinateur</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Te&amp;mplate</source>
        <translation>&amp;Modèle</translation>
    </message>
    <message>
        <source>Command template</source>
        <translation>Modèle de commande</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>&amp;Option</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Which files a pass touches</source>
        <translation>Les fichiers concernés par une passe</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>Exemple</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Comportement</translation>
    </message>
    <message>
        <source>Rest between p&amp;asses</source>
        <translation>Pa&amp;use entre les passes</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>3.0 s (automatic)</source>
        <translation>3,0 s (automatique)</translation>
    </message>
    <message>
        <source>Rest between passes</source>
        <translation>Pause entre les passes</translation>
    </message>
    <message>
        <source>Seconds between two passes</source>
        <translation>Secondes entre deux passes</translation>
    </message>
    <message>
        <source>&amp;Start syncing at launch</source>
        <translation>Démarrer la &amp;synchronisation au lancement</translation>
    </message>
    <message>
        <source>Hide the &amp;window at launch</source>
        <translation>Masquer la fe&amp;nêtre au lancement</translation>
    </message>
    <message>
        <source>Show a noti&amp;ce when movies have arrived</source>
        <translation>Aver&amp;tir lorsque des films sont arrivés</translation>
    </message>
    <message>
        <source>&amp;Quit without asking while movies are being copied</source>
        <translation>&amp;Quitter sans demander pendant la copie de films</translation>
    </message>
    <message>
        <source>Start Kelvo Mirror when I &amp;log in</source>
        <translation>Démarrer &amp;Kelvo Mirror à l’ouverture de ma session</translation>
    </message>
    <message>
        <source>R&amp;un after arrivals</source>
        <translation>E&amp;xécuter après les arrivées</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>aucune commande</translation>
    </message>
    <message>
        <source>Command to run after arrivals</source>
        <translation>Commande à exécuter après les arrivées</translation>
    </message>
    <message>
        <source>Run after each pass that has brought movies; empty for none</source>
        <translation>Exécutée après chaque passe qui a apporté des films&#xa0;; vide pour aucune</translation>
    </message>
    <message>
        <source>It reads the paths of the movies on its standard input, each ended by a NUL; KELVO_MIRROR_ARRIVALS says how many.</source>
        <translation>Elle lit les chemins des films sur son entrée standard, chacun terminé par un NUL&#xa0;; KELVO_MIRROR_ARRIVALS en donne le nombre.</translation>
    </message>
    <message>
        <source>Show a &amp;notice when passes turn bad and when they are well again</source>
        <translation>Avertir lorsque les passes éc&amp;houent et lorsqu’elles réussissent de nouveau</translation>
    </message>
    <message>
        <source>Kinds of movies</source>
        <translation>Formats de films</translation>
    </message>
    <message>
        <source>A&amp;dvanced</source>
        <translation>A&amp;vancé</translation>
    </message>
    <message>
        <source>Shows the command that a pass runs, and hides it again</source>
        <translation>Affiche la commande qu’exécute une passe, et la masque à nouveau</translation>
    </message>
    <message>
        <source>The template with the option filled in</source>
        <translation>Le modèle avec l’option insérée</translation>
    </message>
    <message>
        <source>&amp;Keep the connection to the Mac between passes</source>
        <translation>&amp;Garder la connexion au Mac entre les passes</translation>
    </message>
    <message>
        <source>Saves the logins of passes that follow each other within a minute; it ends with syncing, and after an hour at most</source>
        <translation>Évite une nouvelle connexion aux passes qui se suivent à moins d’une minute ; elle prend fin avec la synchronisation, et au plus tard après une heure</translation>
    </message>
</context>
<context>
    <name>SyncTab</name>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Remote source</source>
        <translation>Source distante</translation>
    </message>
    <message>
        <source>Chan&amp;ge…</source>
        <translation>Chan&amp;ger…</translation>
    </message>
    <message>
        <source>Change the remote Mac</source>
        <translation>Changer de Mac distant</translation>
    </message>
    <message>
        <source>Shows the tab where the remote Mac is chosen</source>
        <translation>Montre l’onglet où l’on choisit le Mac distant</translation>
    </message>
    <message>
        <source>Source folder</source>
        <translation>Dossier source</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Choisir…</translation>
    </message>
    <message>
        <source>Choose the source folder</source>
        <translation>Choisir le dossier source</translation>
    </message>
    <message>
        <source>&amp;Reveal</source>
        <translation>&amp;Montrer</translation>
    </message>
    <message>
        <source>Reveal the source folder</source>
        <translation>Montrer le dossier source</translation>
    </message>
    <message>
        <source>Opens the folder in the file browser; a right click asks how</source>
        <translation>Ouvre le dossier dans le gestionnaire de fichiers&#xa0;; un clic droit demande comment</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Vers</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Dossier de destination</translation>
    </message>
    <message>
        <source>Ch&amp;oose…</source>
        <translation>Ch&amp;oisir…</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>Choisir le dossier de destination</translation>
    </message>
    <message>
        <source>Revea&amp;l</source>
        <translation>Mon&amp;trer</translation>
    </message>
    <message>
        <source>Reveal the destination folder</source>
        <translation>Montrer le dossier de destination</translation>
    </message>
    <message>
        <source>Opens the folder in the file browser</source>
        <translation>Ouvre le dossier dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Start rsync</source>
        <translation>Démarrer rsync</translation>
    </message>
    <message>
        <source>Switches syncing on and off</source>
        <translation>Active et désactive la synchronisation</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>Synchro&amp;niser maintenant</translation>
    </message>
    <message>
        <source>Begins the next pass now</source>
        <translation>Commence la passe suivante maintenant</translation>
    </message>
    <message>
        <source>C&amp;ancel This Pass</source>
        <translation>Ann&amp;uler cette passe</translation>
    </message>
    <message>
        <source>Ends the pass that runs; what it has begun to copy is kept for the next one</source>
        <translation>Met fin à la passe en cours&#xa0;; ce qu’elle a commencé à copier est gardé pour la suivante</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Arrivées</translation>
    </message>
    <message>
        <source>All Arr&amp;ivals</source>
        <translation>Toutes les arr&amp;ivées</translation>
    </message>
    <message>
        <source>Shows the Activity tab</source>
        <translation>Montre l’onglet Activité</translation>
    </message>
    <message>
        <source>Whether this computer has a network connection</source>
        <translation>Si cet ordinateur a une connexion réseau</translation>
    </message>
    <message>
        <source>&amp;Use This Source Now</source>
        <translation>Utiliser cette &amp;source maintenant</translation>
    </message>
    <message>
        <source>Passes pull from the host and folder that are set now</source>
        <translation>Les passes récupèrent les films de l’hôte et du dossier définis maintenant</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message numerus="yes">
        <source>%Ln passes written.</source>
        <translation>
            <numerusform>%Ln passe écrite.</numerusform>
            <numerusform>%Ln passes écrites.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln movies</source>
        <translation>
            <numerusform>%Ln film</numerusform>
            <numerusform>%Ln films</numerusform>
        </translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>code de sortie %1</translation>
    </message>
    <message>
        <source>ended when the pass was cancelled</source>
        <translation>terminée à l’annulation de la passe</translation>
    </message>
    <message>
        <source>given up when the program ended</source>
        <translation>abandonnée à la fin du programme</translation>
    </message>
    <message>
        <source>by rsync&apos;s own figures</source>
        <translation>d’après les chiffres de rsync</translation>
    </message>
    <message>
        <source>counted from its lines</source>
        <translation>compté d’après ses lignes</translation>
    </message>
    <message>
        <source>the command did not say</source>
        <translation>la commande ne l’a pas dit</translation>
    </message>
    <message>
        <source>Run after arrivals:</source>
        <translation>Commande après les arrivées&#xa0;:</translation>
    </message>
    <message>
        <source>… %L1 bytes left out …</source>
        <translation>… %L1 octets omis …</translation>
    </message>
    <message>
        <source>Arrived:</source>
        <translation>Arrivés&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation>
            <numerusform>… et %Ln autre</numerusform>
            <numerusform>… et %Ln autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Next step: %1</source>
        <translation>Prochaine étape&#xa0;: %1</translation>
    </message>
    <message>
        <source>Remote pass</source>
        <translation>Passe distante</translation>
    </message>
    <message>
        <source>Plain pass</source>
        <translation>Passe locale</translation>
    </message>
    <message numerus="yes">
        <source>%Ln passes, nothing new, %1 to %2</source>
        <translation>
            <numerusform>%Ln passe, rien de nouveau, %1 à %2</numerusform>
            <numerusform>%Ln passes, rien de nouveau, %1 à %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>being cancelled</source>
        <translation>annulation en cours</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>nothing new</source>
        <translation>rien de nouveau</translation>
    </message>
    <message>
        <source>%1; a pass was in trouble</source>
        <translation>%1&#xa0;; une passe a rencontré un problème</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln days</source>
        <translation>
            <numerusform>%1 en %Ln jour</numerusform>
            <numerusform>%1 en %Ln jours</numerusform>
        </translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Ouvrir dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Show Enclosing</source>
        <translation>Montrer le dossier parent</translation>
    </message>
    <message>
        <source>Retry Again...</source>
        <translation>Réessayer...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>The Mac has not accepted the program&apos;s key yet.</source>
        <translation>Le Mac n’a pas encore accepté la clé du programme.</translation>
    </message>
    <message>
        <source>No Mac is chosen yet.</source>
        <translation>Aucun Mac n’est encore choisi.</translation>
    </message>
    <message>
        <source>The user name on the Mac is missing.</source>
        <translation>Il manque le nom d’utilisateur sur le Mac.</translation>
    </message>
    <message>
        <source>The program has no ssh key of its own yet.</source>
        <translation>Le programme n’a pas encore sa propre clé ssh.</translation>
    </message>
    <message>
        <source>ssh is not installed on this machine.</source>
        <translation>ssh n’est pas installé sur cet ordinateur.</translation>
    </message>
    <message>
        <source>No source folder is chosen yet.</source>
        <translation>Aucun dossier source n’est encore choisi.</translation>
    </message>
    <message>
        <source>No destination folder is chosen yet.</source>
        <translation>Aucun dossier de destination n’est encore choisi.</translation>
    </message>
    <message>
        <source>The destination folder is missing or cannot be written.</source>
        <translation>Le dossier de destination manque ou n’est pas accessible en écriture.</translation>
    </message>
    <message>
        <source>rsync is not installed on this machine.</source>
        <translation>rsync n’est pas installé sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Kelvo Mirror keeps running</source>
        <translation>Kelvo Mirror continue de fonctionner</translation>
    </message>
    <message>
        <source>There is no tray icon to bring the window back with. To see the window again, start Kelvo Mirror once more. To end the program, choose Quit from the File menu instead.</source>
        <translation>Il n’y a pas d’icône dans la zone de notification pour faire revenir la fenêtre. Pour revoir la fenêtre, démarrez Kelvo Mirror encore une fois. Pour terminer le programme, choisissez plutôt Quitter dans le menu Fichier.</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>Laisser ouverte</translation>
    </message>
    <message>
        <source>Quit while movies are being copied?</source>
        <translation>Quitter pendant la copie de films&#xa0;?</translation>
    </message>
    <message>
        <source>The pass that runs will be ended: %1. The next start goes on from there.</source>
        <translation>La passe en cours sera interrompue&#xa0;: %1. Le prochain démarrage reprendra de là.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Last success: %1, %2</source>
        <translation>Dernier succès&#xa0;: %1, %2</translation>
    </message>
    <message>
        <source>No pass has ended yet. How it went will stand here.</source>
        <translation>Aucune passe n’est encore terminée. Son résultat apparaîtra ici.</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln passes)</source>
        <translation>
            <numerusform>%1 (%Ln passe)</numerusform>
            <numerusform>%1 (%Ln passes)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>a sentence without its full stop</comment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>The record of passes cannot be kept: %1</source>
        <translation>L’historique des passes ne peut pas être tenu&#xa0;: %1</translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %1</source>
        <translation>Le fichier de réglages était endommagé. Il est gardé sous %1</translation>
    </message>
    <message>
        <source>The record of passes was damaged. It is kept as %1</source>
        <translation>L’historique des passes était endommagé. Il est gardé sous %1</translation>
    </message>
    <message>
        <source>The record of passes was removed or replaced. The passes since the start were written again</source>
        <translation>L’historique des passes a été supprimé ou remplacé. Les passes depuis le démarrage ont été réécrites</translation>
    </message>
    <message>
        <source>No key yet. Set one up to be let in by the remote Mac.</source>
        <translation>Pas encore de clé. Créez-en une pour être admis par le Mac distant.</translation>
    </message>
    <message>
        <source>Key made. Fill in host name and user to have it accepted.</source>
        <translation>Clé créée. Indiquez l’hôte et l’utilisateur pour la faire accepter.</translation>
    </message>
    <message>
        <source>Key made. The remote Mac has not been asked yet.</source>
        <translation>Clé créée. Le Mac distant n’a pas encore été interrogé.</translation>
    </message>
    <message>
        <source>Asking the remote Mac…</source>
        <translation>Interrogation du Mac distant…</translation>
    </message>
    <message>
        <source>Key accepted by the remote Mac.</source>
        <translation>Clé acceptée par le Mac distant.</translation>
    </message>
    <message>
        <source>Key made, not accepted by the remote Mac yet.</source>
        <translation>Clé créée, pas encore acceptée par le Mac distant.</translation>
    </message>
    <message>
        <source>Key made. The remote Mac is not on the network right now.</source>
        <translation>Clé créée. Le Mac distant n’est pas sur le réseau en ce moment.</translation>
    </message>
    <message>
        <source>%1 was not written by Kelvo Mirror and is left alone. Move it away to switch this on here.</source>
        <translation>%1 n’a pas été écrit par Kelvo Mirror et n’est pas touché. Déplacez-le pour activer cette option ici.</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2</source>
        <translation>%1 ne peut pas être modifié&#xa0;: %2</translation>
    </message>
    <message>
        <source>Kelvo Mirror is well again</source>
        <translation>Kelvo Mirror fonctionne de nouveau</translation>
    </message>
    <message>
        <source>The last pass went well: %1.</source>
        <translation>La dernière passe s’est bien déroulée&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Kelvo Mirror is in trouble</source>
        <translation>Kelvo Mirror a un problème</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new movies</source>
        <translation>
            <numerusform>%Ln nouveau film</numerusform>
            <numerusform>%Ln nouveaux films</numerusform>
        </translation>
    </message>
    <message>
        <source>All is well.</source>
        <translation>Tout va bien.</translation>
    </message>
    <message>
        <source>No Mac answers to this name on the network.</source>
        <translation>Aucun Mac ne répond à ce nom sur le réseau.</translation>
    </message>
    <message>
        <source>No Mac answers to this name on the network since %1.</source>
        <translation>Depuis %1, aucun Mac ne répond à ce nom sur le réseau.</translation>
    </message>
    <message>
        <source>Check the host name, and that the Mac is switched on and in this network.</source>
        <translation>Vérifiez le nom d’hôte, et que le Mac est allumé et sur ce réseau.</translation>
    </message>
    <message>
        <source>The Mac is away or asleep.</source>
        <translation>Le Mac est absent ou en veille.</translation>
    </message>
    <message>
        <source>The Mac is away or asleep since %1.</source>
        <translation>Depuis %1, le Mac est absent ou en veille.</translation>
    </message>
    <message>
        <source>Wake the Mac; in its energy settings, let it wake for network access.</source>
        <translation>Réveillez le Mac&#xa0;; dans ses réglages d’énergie, autorisez sa réactivation lors des accès réseau.</translation>
    </message>
    <message>
        <source>The Mac is there but refuses logins.</source>
        <translation>Le Mac est là mais refuse les connexions.</translation>
    </message>
    <message>
        <source>The Mac is there but refuses logins since %1.</source>
        <translation>Le Mac est là, mais depuis %1 il refuse les connexions.</translation>
    </message>
    <message>
        <source>On the Mac, switch on Remote Login (System Settings, General, Sharing).</source>
        <translation>Sur le Mac, activez la session à distance (Réglages Système, Général, Partage).</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before.</source>
        <translation>Cet ordinateur ne connaît pas encore le Mac.</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before since %1.</source>
        <translation>Cet ordinateur ne connaît pas encore le Mac (depuis %1).</translation>
    </message>
    <message>
        <source>Log in once with ssh in a terminal and accept the Mac&apos;s key.</source>
        <translation>Connectez-vous une fois avec ssh dans un terminal et acceptez la clé du Mac.</translation>
    </message>
    <message>
        <source>The Mac shows another key than before: it was set up anew, or another machine has taken its name.</source>
        <translation>Le Mac présente une autre clé qu’avant&#xa0;: il a été réinstallé, ou un autre ordinateur a pris son nom.</translation>
    </message>
    <message>
        <source>The Mac shows another key than before since %1: it was set up anew, or another machine has taken its name.</source>
        <translation>Depuis %1, le Mac présente une autre clé qu’avant&#xa0;: il a été réinstallé, ou un autre ordinateur a pris son nom.</translation>
    </message>
    <message>
        <source>If you know why, remove the old key with ssh-keygen -R and the host name, then accept the new one.</source>
        <translation>Si vous savez pourquoi, retirez l’ancienne clé avec ssh-keygen -R et le nom d’hôte, puis acceptez la nouvelle.</translation>
    </message>
    <message>
        <source>The Mac does not take this key for this user.</source>
        <translation>Le Mac n’accepte pas cette clé pour cet utilisateur.</translation>
    </message>
    <message>
        <source>The Mac does not take this key for this user since %1.</source>
        <translation>Depuis %1, le Mac n’accepte pas cette clé pour cet utilisateur.</translation>
    </message>
    <message>
        <source>Check the user name, then install the key on the Mac again.</source>
        <translation>Vérifiez le nom d’utilisateur, puis installez de nouveau la clé sur le Mac.</translation>
    </message>
    <message>
        <source>The program&apos;s own ssh key is missing here.</source>
        <translation>Il manque ici la clé ssh propre au programme.</translation>
    </message>
    <message>
        <source>The program&apos;s own ssh key is missing here since %1.</source>
        <translation>Depuis %1, il manque ici la clé ssh propre au programme.</translation>
    </message>
    <message>
        <source>Make the key and install it on the Mac.</source>
        <translation>Créez la clé et installez-la sur le Mac.</translation>
    </message>
    <message>
        <source>The Mac calls this user by another name.</source>
        <translation>Le Mac donne un autre nom à cet utilisateur.</translation>
    </message>
    <message>
        <source>The Mac calls this user by another name since %1.</source>
        <translation>Depuis %1, le Mac donne un autre nom à cet utilisateur.</translation>
    </message>
    <message>
        <source>Enter the account name that whoami prints on the Mac.</source>
        <translation>Indiquez le nom de compte que whoami affiche sur le Mac.</translation>
    </message>
    <message>
        <source>The Mac prints a text at each login, which hides its answer.</source>
        <translation>Le Mac affiche un texte à chaque connexion, ce qui cache sa réponse.</translation>
    </message>
    <message>
        <source>The Mac prints a text at each login since %1, which hides its answer.</source>
        <translation>Depuis %1, le Mac affiche un texte à chaque connexion, ce qui cache sa réponse.</translation>
    </message>
    <message>
        <source>On the Mac, remove what the shell&apos;s start file (.zshenv, .bashrc) prints.</source>
        <translation>Sur le Mac, retirez ce qu’affiche le fichier de démarrage du shell (.zshenv, .bashrc).</translation>
    </message>
    <message>
        <source>There is no rsync on the Mac.</source>
        <translation>Il n’y a pas de rsync sur le Mac.</translation>
    </message>
    <message>
        <source>There is no rsync on the Mac since %1.</source>
        <translation>Depuis %1, il n’y a pas de rsync sur le Mac.</translation>
    </message>
    <message>
        <source>Install rsync on the Mac, or give its place in the template with --rsync-path.</source>
        <translation>Installez rsync sur le Mac, ou donnez son emplacement dans le modèle avec --rsync-path.</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for an option of the template.</source>
        <translation>Le rsync du Mac est trop ancien pour une option du modèle.</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for an option of the template since %1.</source>
        <translation>Depuis %1, le rsync du Mac est trop ancien pour une option du modèle.</translation>
    </message>
    <message>
        <source>Update rsync on the Mac, or take the option out of the template.</source>
        <translation>Mettez rsync à jour sur le Mac, ou retirez l’option du modèle.</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for the built-in movie command: only what the template takes has arrived.</source>
        <translation>Le rsync du Mac est trop ancien pour la commande de films intégrée&#xa0;: seul ce que prend le modèle est arrivé.</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for the built-in movie command since %1: only what the template takes has arrived.</source>
        <translation>Depuis %1, le rsync du Mac est trop ancien pour la commande de films intégrée&#xa0;: seul ce que prend le modèle est arrivé.</translation>
    </message>
    <message>
        <source>Update rsync on the Mac, or let the template take every movie: without filters, and with -r.</source>
        <translation>Mettez rsync à jour sur le Mac, ou laissez le modèle prendre tous les films&#xa0;: sans filtres, et avec -r.</translation>
    </message>
    <message>
        <source>The source folder is not there.</source>
        <translation>Le dossier source est introuvable.</translation>
    </message>
    <message>
        <source>The source folder is not there since %1.</source>
        <translation>Depuis %1, le dossier source est introuvable.</translation>
    </message>
    <message>
        <source>Check the remote path, and that the disk with it is connected.</source>
        <translation>Vérifiez le chemin distant, et que son disque est connecté.</translation>
    </message>
    <message>
        <source>A source folder may not be read.</source>
        <translation>Un dossier source ne peut pas être lu.</translation>
    </message>
    <message>
        <source>A source folder may not be read since %1.</source>
        <translation>Depuis %1, un dossier source ne peut pas être lu.</translation>
    </message>
    <message>
        <source>On the Mac, allow full disk access for remote users (in Remote Login), or change the folder&apos;s permissions.</source>
        <translation>Sur le Mac, autorisez l’accès complet au disque pour les utilisateurs distants (dans Session à distance), ou changez les droits du dossier.</translation>
    </message>
    <message>
        <source>The disk here is full.</source>
        <translation>Le disque est plein ici.</translation>
    </message>
    <message>
        <source>The disk here is full since %1.</source>
        <translation>Depuis %1, le disque est plein ici.</translation>
    </message>
    <message>
        <source>Make room on the disk of the destination folder.</source>
        <translation>Faites de la place sur le disque du dossier de destination.</translation>
    </message>
    <message>
        <source>The destination folder is missing or cannot be written since %1.</source>
        <translation>Depuis %1, le dossier de destination manque ou n’est pas accessible en écriture.</translation>
    </message>
    <message>
        <source>Connect its disk, or choose another destination folder.</source>
        <translation>Branchez son disque, ou choisissez un autre dossier de destination.</translation>
    </message>
    <message>
        <source>Another program is pulling into this folder.</source>
        <translation>Un autre programme remplit déjà ce dossier.</translation>
    </message>
    <message>
        <source>Another program is pulling into this folder since %1.</source>
        <translation>Depuis %1, un autre programme remplit déjà ce dossier.</translation>
    </message>
    <message>
        <source>Give each program a destination folder of its own, or end the other one.</source>
        <translation>Donnez à chaque programme son propre dossier de destination, ou arrêtez l’autre.</translation>
    </message>
    <message>
        <source>A command of the pass is not installed here.</source>
        <translation>Une commande de la passe n’est pas installée ici.</translation>
    </message>
    <message>
        <source>A command of the pass is not installed here since %1.</source>
        <translation>Depuis %1, une commande de la passe n’est pas installée ici.</translation>
    </message>
    <message>
        <source>Install rsync and ssh on this machine, or correct the command template.</source>
        <translation>Installez rsync et ssh sur cet ordinateur, ou corrigez le modèle de commande.</translation>
    </message>
    <message>
        <source>The command template cannot be run.</source>
        <translation>Le modèle de commande ne peut pas être exécuté.</translation>
    </message>
    <message>
        <source>The command template cannot be run since %1.</source>
        <translation>Depuis %1, le modèle de commande ne peut pas être exécuté.</translation>
    </message>
    <message>
        <source>Correct the rsync command template in the settings.</source>
        <translation>Corrigez le modèle de commande rsync dans les réglages.</translation>
    </message>
    <message>
        <source>Some files vanished from the source while they were copied.</source>
        <translation>Des fichiers ont disparu de la source pendant la copie.</translation>
    </message>
    <message>
        <source>Nothing: the next pass brings what is there then.</source>
        <translation>Rien&#xa0;: la passe suivante apporte ce qui sera là.</translation>
    </message>
    <message>
        <source>Some files could not be taken.</source>
        <translation>Certains fichiers n’ont pas pu être copiés.</translation>
    </message>
    <message>
        <source>Some files could not be taken since %1.</source>
        <translation>Depuis %1, certains fichiers ne peuvent pas être copiés.</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for their names and reasons.</source>
        <translation>Consultez le texte de la passe pour leurs noms et les raisons.</translation>
    </message>
    <message>
        <source>The connection gave way in the middle of the transfer.</source>
        <translation>La connexion a été interrompue au milieu du transfert.</translation>
    </message>
    <message>
        <source>The connection gave way in the middle of the transfer since %1.</source>
        <translation>Depuis %1, la connexion est interrompue au milieu du transfert.</translation>
    </message>
    <message>
        <source>Check the network; the next pass goes on where this one stopped.</source>
        <translation>Vérifiez le réseau&#xa0;; la passe suivante reprend où celle-ci s’est arrêtée.</translation>
    </message>
    <message>
        <source>The pass cannot run: a folder, the host or the user is not set.</source>
        <translation>La passe ne peut pas avoir lieu&#xa0;: un dossier, l’hôte ou l’utilisateur n’est pas défini.</translation>
    </message>
    <message>
        <source>The pass cannot run since %1: a folder, the host or the user is not set.</source>
        <translation>Depuis %1, la passe ne peut pas avoir lieu&#xa0;: un dossier, l’hôte ou l’utilisateur n’est pas défini.</translation>
    </message>
    <message>
        <source>Choose the Mac, the user name and both folders.</source>
        <translation>Choisissez le Mac, le nom d’utilisateur et les deux dossiers.</translation>
    </message>
    <message>
        <source>The pass was not begun: a text in the settings cannot stand in a command.</source>
        <translation>La passe n’a pas été commencée&#xa0;: un texte des réglages ne peut pas figurer dans une commande.</translation>
    </message>
    <message>
        <source>The pass was not begun since %1: a text in the settings cannot stand in a command.</source>
        <translation>Depuis %1, la passe n’est pas commencée&#xa0;: un texte des réglages ne peut pas figurer dans une commande.</translation>
    </message>
    <message>
        <source>Choose another folder, user name or host: without a line break, and no &quot;-&quot; in front.</source>
        <translation>Choisissez un autre dossier, nom d’utilisateur ou hôte&#xa0;: sans saut de ligne, et sans «&#xa0;-&#xa0;» au début.</translation>
    </message>
    <message>
        <source>The program was ended during the pass.</source>
        <translation>Le programme a été arrêté pendant la passe.</translation>
    </message>
    <message>
        <source>Nothing: start it again.</source>
        <translation>Rien&#xa0;: redémarrez-le.</translation>
    </message>
    <message>
        <source>Cancelled by you.</source>
        <translation>Annulée par vous.</translation>
    </message>
    <message>
        <source>Nothing: the next pass goes on where this one stopped.</source>
        <translation>Rien&#xa0;: la passe suivante reprend où celle-ci s’est arrêtée.</translation>
    </message>
    <message>
        <source>The files have arrived, but the command that is run after arrivals failed.</source>
        <translation>Les fichiers sont arrivés, mais la commande exécutée après les arrivées a échoué.</translation>
    </message>
    <message>
        <source>The files have arrived, but the command that is run after arrivals failed since %1.</source>
        <translation>Les fichiers sont arrivés, mais depuis %1 la commande exécutée après les arrivées échoue.</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for what it said, or correct it in the settings.</source>
        <translation>Consultez le texte de la passe pour savoir ce qu’elle a dit, ou corrigez-la dans les réglages.</translation>
    </message>
    <message>
        <source>Something went wrong.</source>
        <translation>Quelque chose s’est mal passé.</translation>
    </message>
    <message>
        <source>Something went wrong since %1.</source>
        <translation>Depuis %1, quelque chose se passe mal.</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for what the commands said.</source>
        <translation>Consultez le texte de la passe pour savoir ce que les commandes ont dit.</translation>
    </message>
    <message>
        <source>The last line was: %1</source>
        <translation>La dernière ligne était&#xa0;: %1</translation>
    </message>
    <message>
        <source>The reason: %1.</source>
        <translation>La raison&#xa0;: %1.</translation>
    </message>
    <message>
        <source>files unknown</source>
        <translation>fichiers inconnus</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln fichier</numerusform>
            <numerusform>%Ln fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>no transfer</source>
        <translation>aucun transfert</translation>
    </message>
    <message>
        <source>%L1 s</source>
        <translation>%L1 s</translation>
    </message>
    <message>
        <source>%L1 min %L2 s</source>
        <translation>%L1 min %L2 s</translation>
    </message>
    <message>
        <source>%L1 h %L2 min</source>
        <translation>%L1 h %L2 min</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>à l’instant</translation>
    </message>
    <message numerus="yes">
        <source>%Ln minutes ago</source>
        <translation>
            <numerusform>il y a %Ln minute</numerusform>
            <numerusform>il y a %Ln minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hours ago</source>
        <translation>
            <numerusform>il y a %Ln heure</numerusform>
            <numerusform>il y a %Ln heures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days ago</source>
        <translation>
            <numerusform>il y a %Ln jour</numerusform>
            <numerusform>il y a %Ln jours</numerusform>
        </translation>
    </message>
    <message>
        <source>Reveal In Finder</source>
        <translation>Montrer dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>path:
%1</source>
        <translation>chemin&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Stop Syncing</source>
        <translation>Arrêter la synchronisation</translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation>Démarrer la synchronisation</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Copier la commande</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>No Terminal Found</source>
        <translation>Aucun terminal trouvé</translation>
    </message>
    <message>
        <source>Please run this command in a terminal and answer what it asks:

%1</source>
        <translation>Veuillez exécuter cette commande dans un terminal et répondre à ses questions&#xa0;:

%1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two facts, as in: 3 files, 1.2 GB</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%L1 %</source>
        <comment>percent</comment>
        <translation>%L1 %</translation>
    </message>
    <message>
        <source>Syncing is off</source>
        <translation>La synchronisation est désactivée</translation>
    </message>
    <message>
        <source>Waiting for what is missing</source>
        <translation>En attente de ce qui manque</translation>
    </message>
    <message>
        <source>Finishing this pass…</source>
        <translation>Fin de cette passe…</translation>
    </message>
    <message>
        <source>Cancelling this pass…</source>
        <translation>Annulation de cette passe…</translation>
    </message>
    <message>
        <source>%L1 min</source>
        <translation>%L1 min</translation>
    </message>
    <message>
        <source>%L1 h</source>
        <translation>%L1 h</translation>
    </message>
    <message>
        <source>Syncing: asking the Mac</source>
        <translation>Synchronisation&#xa0;: interrogation du Mac</translation>
    </message>
    <message>
        <source>Syncing: first pull</source>
        <translation>Synchronisation&#xa0;: premier transfert</translation>
    </message>
    <message>
        <source>Syncing: copying</source>
        <translation>Synchronisation&#xa0;: copie</translation>
    </message>
    <message>
        <source>Syncing: movies</source>
        <translation>Synchronisation&#xa0;: films</translation>
    </message>
    <message>
        <source>Syncing: after arrivals</source>
        <translation>Synchronisation&#xa0;: après les arrivées</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Synchronisation</translation>
    </message>
    <message>
        <source>a few seconds</source>
        <translation>quelques secondes</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>environ %1</translation>
    </message>
    <message>
        <source>Asking the Mac</source>
        <translation>Interrogation du Mac</translation>
    </message>
    <message>
        <source>First pull</source>
        <translation>Premier transfert</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Films</translation>
    </message>
    <message>
        <source>After arrivals</source>
        <translation>Après les arrivées</translation>
    </message>
    <message>
        <source>file %L1 of %L2</source>
        <translation>fichier %L1 sur %L2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>as in: 18.2 of 37.6 GB</comment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>as in: 92.0 MB/s</comment>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>Next pass in %1</source>
        <translation>Passe suivante dans %1</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synchronisation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Syncing: %1, %2</source>
        <translation>Synchronisation&#xa0;: %1, %2</translation>
    </message>
    <message>
        <source>All is well, next pass in %1</source>
        <translation>Tout va bien, passe suivante dans %1</translation>
    </message>
    <message>
        <source>All is well</source>
        <translation>Tout va bien</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>two movies</comment>
        <translation>%1 et %2</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 and %Ln more</source>
        <translation>
            <numerusform>%1, %2 et %Ln autre</numerusform>
            <numerusform>%1, %2 et %Ln autres</numerusform>
        </translation>
    </message>
    <message>
        <source>… 1 byte left out …</source>
        <translation>… 1 octet omis …</translation>
    </message>
    <message>
        <source>Make a new key?</source>
        <translation>Créer une nouvelle clé&#xa0;?</translation>
    </message>
    <message>
        <source>The Mac will not let Kelvo Mirror in until the new key is installed there with Set Up Key…, which asks for the password on the Mac. Until then no pass brings movies.

The key of today is kept beside the new one, under a name with the date, and is not used any more.</source>
        <translation>Le Mac n’admettra pas Kelvo Mirror tant que la nouvelle clé n’y sera pas installée avec Configurer la clé…, qui demande le mot de passe du compte sur le Mac. D’ici là, aucune passe n’apportera de films.

La clé actuelle est gardée à côté de la nouvelle, sous un nom contenant la date, et n’est plus utilisée.</translation>
    </message>
    <message>
        <source>Make a New Key</source>
        <translation>Créer une nouvelle clé</translation>
    </message>
    <message>
        <source>Keep the Key</source>
        <translation>Garder la clé</translation>
    </message>
    <message>
        <source>The key was not replaced</source>
        <translation>La clé n’a pas été remplacée</translation>
    </message>
    <message>
        <source>The key of today could not be kept, so nothing was changed.

%1</source>
        <translation>La clé actuelle n’a pas pu être gardée, donc rien n’a été modifié.

%1</translation>
    </message>
    <message>
        <source>No new key was made</source>
        <translation>Aucune nouvelle clé n’a été créée</translation>
    </message>
    <message>
        <source>The key that was there before could not be put back. It lies at %1.

%2</source>
        <translation>La clé précédente n’a pas pu être remise en place. Elle se trouve ici&#xa0;: %1.

%2</translation>
    </message>
    <message>
        <source>The key that was there before is in its place again.</source>
        <translation>La clé précédente est de nouveau à sa place.</translation>
    </message>
    <message>
        <source>No Mac chosen yet.</source>
        <translation>Aucun Mac encore choisi.</translation>
    </message>
    <message>
        <source>Choose the Mac from the list of those in this network, or type its host name.</source>
        <translation>Choisissez le Mac dans la liste de ceux de ce réseau, ou saisissez son nom d’hôte.</translation>
    </message>
    <message>
        <source>%1, folder %2</source>
        <translation>%1, dossier %2</translation>
    </message>
    <message>
        <source>An account on the Mac that may log in there, and the folder with the movies.</source>
        <translation>Un compte du Mac autorisé à s’y connecter, et le dossier contenant les films.</translation>
    </message>
    <message>
        <source>Key made, and accepted by the remote Mac before.</source>
        <translation>Clé créée, et déjà acceptée par le Mac distant auparavant.</translation>
    </message>
    <message>
        <source>Key made. The remote Mac could not be asked about it.</source>
        <translation>Clé créée. Le Mac distant n’a pas pu être interrogé à son sujet.</translation>
    </message>
    <message>
        <source>The key is installed on the Mac, so choose that and enter the account first.</source>
        <translation>La clé s’installe sur le Mac&#xa0;: choisissez-le et indiquez le compte d’abord.</translation>
    </message>
    <message>
        <source>A terminal opens and asks for the password of %1 on %2; it is typed there and kept nowhere. When the two machines meet for the first time it asks before that whether to go on connecting: answer yes.</source>
        <translation>Un terminal s’ouvre et demande le mot de passe de %1 sur %2&#xa0;; il est saisi là et n’est conservé nulle part. Quand les deux ordinateurs se rencontrent pour la première fois, le terminal demande d’abord s’il faut poursuivre la connexion&#xa0;: répondez yes.</translation>
    </message>
    <message>
        <source>The Mac lets this program in.</source>
        <translation>Le Mac admet ce programme.</translation>
    </message>
    <message>
        <source>ssh is not installed on this machine. Install it with: %1</source>
        <translation>ssh n’est pas installé sur cet ordinateur. Installez-le avec&#xa0;: %1</translation>
    </message>
    <message>
        <source>The Mac was not asked, because %1.</source>
        <translation>Le Mac n’a pas été interrogé, car %1.</translation>
    </message>
    <message>
        <source>The Mac was not reached, or did not say a word. Test it once more, or log in with ssh in a terminal and see what it says.</source>
        <translation>Le Mac n’a pas été joint, ou n’a rien dit. Refaites le test, ou connectez-vous avec ssh dans un terminal et voyez ce qu’il dit.</translation>
    </message>
    <message>
        <source>The Mac did not answer as it should. The last line was: %1</source>
        <translation>Le Mac n’a pas répondu comme il le devrait. La dernière ligne était&#xa0;: %1</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before. Set up the key: the terminal asks whether to trust the Mac.</source>
        <translation>Cet ordinateur ne connaît pas encore le Mac. Configurez la clé&#xa0;: le terminal demande s’il faut faire confiance au Mac.</translation>
    </message>
    <message>
        <source>The Mac does not let this program in yet.</source>
        <translation>Le Mac n’admet pas encore ce programme.</translation>
    </message>
    <message>
        <source>Not tried yet.</source>
        <translation>Pas encore essayé.</translation>
    </message>
    <message>
        <source>Asked at %1.</source>
        <translation>Dernière demande&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The message &quot;SUCCESS...&quot; only means that ssh named neither a missing key file nor an unknown host name; this line says what came of it.</source>
        <translation>Le message «&#xa0;RÉUSSI...&#xa0;» signifie seulement que ssh n’a signalé ni fichier de clé manquant ni nom d’hôte inconnu&#xa0;; cette ligne dit ce qu’il en est résulté.</translation>
    </message>
    <message>
        <source>Kelvo Mirror: the password of %1 on %2</source>
        <translation>Kelvo Mirror&#xa0;: mot de passe de %1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Macs found.</source>
        <translation>
            <numerusform>%Ln Mac trouvé.</numerusform>
            <numerusform>%Ln Mac trouvés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its icon in the tray brings the window back; the icon&apos;s menu ends the program.</source>
        <translation>Son icône dans la zone de notification fait revenir la fenêtre&#xa0;; le menu de l’icône termine le programme.</translation>
    </message>
</context>
<context>
    <name>kelvo::ApplicationMenu</name>
    <message>
        <source>Application menu</source>
        <translation>Menu de l’application</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>&amp;Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Quit and &amp;Relaunch</source>
        <translation>Quitter et &amp;relancer</translation>
    </message>
    <message>
        <source>Ends the program and starts it again</source>
        <translation>Termine le programme et le redémarre</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>Ré&amp;glages…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Passes</source>
        <translation>&amp;Passes</translation>
    </message>
    <message>
        <source>&amp;Start Syncing</source>
        <translation>&amp;Démarrer la synchronisation</translation>
    </message>
    <message>
        <source>Switches syncing on and off</source>
        <translation>Active et désactive la synchronisation</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>Synchro&amp;niser maintenant</translation>
    </message>
    <message>
        <source>Begins the next pass now</source>
        <translation>Commence la passe suivante maintenant</translation>
    </message>
    <message>
        <source>&amp;Cancel This Pass</source>
        <translation>Ann&amp;uler cette passe</translation>
    </message>
    <message>
        <source>Ends the pass that runs; what it has begun to copy is kept for the next one</source>
        <translation>Met fin à la passe en cours&#xa0;; ce qu’elle a commencé à copier est gardé pour la suivante</translation>
    </message>
    <message>
        <source>&amp;Stop Syncing</source>
        <translation>&amp;Arrêter la synchronisation</translation>
    </message>
    <message>
        <source>&amp;Tray</source>
        <translation>&amp;Zone de notification</translation>
    </message>
    <message>
        <source>&amp;Set Up Tray Icon</source>
        <translation>&amp;Installer l’icône</translation>
    </message>
    <message>
        <source>Shows the program&apos;s icon in the tray</source>
        <translation>Montre l’icône du programme dans la zone de notification</translation>
    </message>
    <message>
        <source>&amp;Remove Tray Icon</source>
        <translation>&amp;Retirer l’icône</translation>
    </message>
    <message>
        <source>Takes the icon out of the tray; the program keeps running</source>
        <translation>Retire l’icône de la zone de notification&#xa0;; le programme continue</translation>
    </message>
    <message>
        <source>Remove Tray Icon as &amp;Before a Relaunch</source>
        <translation>Retirer l’icône comme &amp;avant de relancer</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>Open &amp;Log Folder</source>
        <translation>Ouvrir le dossier du &amp;journal</translation>
    </message>
    <message>
        <source>&amp;About Kelvo Mirror</source>
        <translation>À &amp;propos de Kelvo Mirror</translation>
    </message>
    <message>
        <source>Syncing is off</source>
        <translation>La synchronisation est désactivée</translation>
    </message>
    <message>
        <source>A pass begins as soon as nothing is missing</source>
        <translation>Une passe commence dès qu’il ne manque plus rien</translation>
    </message>
    <message>
        <source>A pass runs already</source>
        <translation>Une passe est déjà en cours</translation>
    </message>
    <message>
        <source>The next pass begins in a moment</source>
        <translation>La passe suivante commence dans un instant</translation>
    </message>
    <message>
        <source>The pass is being cancelled already</source>
        <translation>L’annulation de la passe est déjà en cours</translation>
    </message>
    <message>
        <source>No pass runs</source>
        <translation>Aucune passe n’est en cours</translation>
    </message>
    <message>
        <source>The icon is in the tray already</source>
        <translation>L’icône est déjà dans la zone de notification</translation>
    </message>
    <message>
        <source>The icon appears as soon as the desktop has a tray for it</source>
        <translation>L’icône apparaît dès que le bureau dispose d’une zone de notification</translation>
    </message>
    <message>
        <source>The icon is not in the tray</source>
        <translation>L’icône n’est pas dans la zone de notification</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>&amp;Diagnostic</translation>
    </message>
    <message>
        <source>A tab and menu entries for finding out why something does not work</source>
        <translation>Un onglet et des entrées de menu pour trouver pourquoi quelque chose ne fonctionne pas</translation>
    </message>
    <message>
        <source>Takes the icon out of the tray as Quit and Relaunch does; the program keeps running</source>
        <translation>Retire l’icône de la zone de notification comme le fait Quitter et relancer&#xa0;; le programme continue</translation>
    </message>
    <message>
        <source>Start Again After a &amp;Crash</source>
        <translation>Relancer après un &amp;plantage</translation>
    </message>
    <message>
        <source>Has the program started again should it crash; each start does this by itself</source>
        <translation>Fait redémarrer le programme s’il plante&#xa0;; chaque démarrage s’en charge de lui-même</translation>
    </message>
    <message>
        <source>&amp;Another Mac…</source>
        <translation>&amp;Autre Mac…</translation>
    </message>
    <message>
        <source>Opens a window of its own for one more Mac</source>
        <translation>Ouvre une fenêtre à part pour un Mac de plus</translation>
    </message>
</context>
<context>
    <name>kelvo::ArrivalRows</name>
    <message>
        <source>%1 (%2)</source>
        <comment>a movie, what is the matter with it</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
</context>
<context>
    <name>kelvo::ArrivalsView</name>
    <message>
        <source>not there any more</source>
        <translation>n’est plus là</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Reveal</source>
        <translation>&amp;Montrer</translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation>&amp;Copier le chemin</translation>
    </message>
    <message>
        <source>Nothing has arrived yet.

The movies that a pass brings will stand here.</source>
        <translation>Rien n’est encore arrivé.

Les films qu’apporte une passe apparaîtront ici.</translation>
    </message>
    <message>
        <source>No movie with this text in its path has arrived.</source>
        <translation>Aucun film arrivé n’a ce texte dans son chemin.</translation>
    </message>
    <message>
        <source>its name is not UTF-8</source>
        <translation>son nom n’est pas en UTF-8</translation>
    </message>
</context>
<context>
    <name>kelvo::BonjourSheet</name>
    <message>
        <source>Discovery is not installed on this computer. Install it with:

%1

The list fills by itself once discovery runs. Without it, type the Mac&apos;s host name on the Remote Mac tab.</source>
        <translation>La découverte du réseau n’est pas installée sur cet ordinateur. Installez-la avec&#xa0;:

%1

La liste se remplit d’elle-même dès que la découverte fonctionne. Sans elle, saisissez le nom d’hôte du Mac dans l’onglet Mac distant.</translation>
    </message>
    <message>
        <source>Discovery is not running on this computer. Start it with:

%1

The list fills by itself once discovery runs. Without it, type the Mac&apos;s host name on the Remote Mac tab.</source>
        <translation>La découverte du réseau ne fonctionne pas sur cet ordinateur. Démarrez-la avec&#xa0;:

%1

La liste se remplit d’elle-même dès que la découverte fonctionne. Sans elle, saisissez le nom d’hôte du Mac dans l’onglet Mac distant.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.

Connect it to the network of the Mac. Then choose Rescan.</source>
        <translation>Cet ordinateur n’est connecté à aucun réseau.

Connectez-le au réseau du Mac. Choisissez ensuite Rechercher à nouveau.</translation>
    </message>
    <message>
        <source>No Mac has answered yet.

Discovery has only just started; the search goes on.</source>
        <translation>Aucun Mac n’a encore répondu.

La découverte du réseau vient à peine de démarrer&#xa0;; la recherche continue.</translation>
    </message>
    <message>
        <source>No Mac was found.

On the Mac, open System Settings, General, Sharing, and check that File Sharing and Remote Login are on.
Check that both computers are on the same network.
Then choose Rescan.

The Mac&apos;s host name can also be typed on the Remote Mac tab.</source>
        <translation>Aucun Mac n’a été trouvé.

Sur le Mac, ouvrez Réglages Système, Général, Partage, et vérifiez que Partage de fichiers et Session à distance sont activés.
Vérifiez que les deux ordinateurs sont sur le même réseau.
Choisissez ensuite Rechercher à nouveau.

Le nom d’hôte du Mac peut aussi être saisi dans l’onglet Mac distant.</translation>
    </message>
</context>
<context>
    <name>kelvo::BusNotices</name>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
</context>
<context>
    <name>kelvo::BusyRow</name>
    <message>
        <source>Cance&amp;l</source>
        <translation>Annu&amp;ler</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Ends what the program is doing for this tab</source>
        <translation>Met fin à ce que le programme fait pour cet onglet</translation>
    </message>
    <message>
        <source>Opening the remote folder…</source>
        <translation>Ouverture du dossier distant…</translation>
    </message>
    <message>
        <source>Setting up the key…</source>
        <translation>Configuration de la clé…</translation>
    </message>
    <message>
        <source>Making a new key…</source>
        <translation>Création d’une nouvelle clé…</translation>
    </message>
    <message>
        <source>Being cancelled…</source>
        <translation>Annulation en cours…</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>Finished.</source>
        <translation>Terminé.</translation>
    </message>
</context>
<context>
    <name>kelvo::ChecklistView</name>
    <message>
        <source>What is missing before a pass</source>
        <translation>Ce qui manque avant une passe</translation>
    </message>
    <message>
        <source>Next step</source>
        <translation>Prochaine étape</translation>
    </message>
</context>
<context>
    <name>kelvo::DayChart</name>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Films</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>in trouble</source>
        <translation>avec problèmes</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a day, what came on it</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Nothing has arrived. The arrow keys go from day to day.</source>
        <translation>Rien n’est arrivé. Les touches fléchées passent d’un jour à l’autre.</translation>
    </message>
    <message>
        <source>%1. The most came on this day: %2, %3. The arrow keys go from day to day.</source>
        <translation>%1. Le jour le plus chargé&#xa0;: %2, %3. Les touches fléchées passent d’un jour à l’autre.</translation>
    </message>
</context>
<context>
    <name>kelvo::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Ann&amp;uler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cou&amp;per</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>kelvo::ElidedLabel</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
</context>
<context>
    <name>kelvo::HealthView</name>
    <message>
        <source>All is well</source>
        <translation>Tout va bien</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Not known yet</source>
        <translation>Pas encore connu</translation>
    </message>
    <message>
        <source>Next step</source>
        <translation>Prochaine étape</translation>
    </message>
    <message>
        <source>Does the next step</source>
        <translation>Exécute la prochaine étape</translation>
    </message>
    <message>
        <source>How the last pass went will stand here.</source>
        <translation>Le résultat de la dernière passe apparaîtra ici.</translation>
    </message>
</context>
<context>
    <name>kelvo::MainWindow</name>
    <message>
        <source>Sync</source>
        <translation>Synchronisation</translation>
    </message>
    <message>
        <source>Remote Mac</source>
        <translation>Mac distant</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostic</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Activité</translation>
    </message>
</context>
<context>
    <name>kelvo::PassRows</name>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Quand</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Durée</translation>
    </message>
</context>
<context>
    <name>kelvo::PassesView</name>
    <message>
        <source>Export passes</source>
        <translation>Exporter les passes</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Valeurs séparées par des virgules (*.csv)</translation>
    </message>
    <message>
        <source>Not written: %1</source>
        <translation>Non écrit&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>kelvo::PathControlView</name>
    <message>
        <source>Folders above</source>
        <translation>Dossiers supérieurs</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Ouvrir %1</translation>
    </message>
</context>
<context>
    <name>kelvo::ProfilesSheet</name>
    <message>
        <source>Without a name</source>
        <translation>Sans nom</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Aucun encore</translation>
    </message>
    <message>
        <source>This window</source>
        <translation>Cette fenêtre</translation>
    </message>
    <message>
        <source>Running, in trouble</source>
        <translation>En marche, avec un problème</translation>
    </message>
    <message>
        <source>Not running, in trouble</source>
        <translation>Arrêté, avec un problème</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En marche</translation>
    </message>
    <message>
        <source>Not running</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>A name has 1 to 64 letters (A to Z), digits, “-” and “_”, and no blank.</source>
        <translation>Un nom se compose de 1 à 64 lettres (A à Z), chiffres, «&#xa0;-&#xa0;» et «&#xa0;_&#xa0;», sans espace.</translation>
    </message>
    <message>
        <source>No window could be opened: %1</source>
        <translation>Impossible d’ouvrir une fenêtre&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>kelvo::ProgressView</name>
    <message>
        <source>Progress of the pass</source>
        <translation>Avancement de la passe</translation>
    </message>
    <message>
        <source>The movie that is being copied will stand here.</source>
        <translation>Le film en cours de copie apparaîtra ici.</translation>
    </message>
</context>
<context>
    <name>kelvo::RecentArrivals</name>
    <message>
        <source>Movies that have arrived will stand here, the newest first. A double click opens one.</source>
        <translation>Les films arrivés apparaîtront ici, les plus récents d’abord. Un double clic en ouvre un.</translation>
    </message>
    <message>
        <source>Movies that arrived last</source>
        <translation>Derniers films arrivés</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Arrivées</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
</context>
<context>
    <name>kelvo::RemoteTab</name>
    <message>
        <source>none yet</source>
        <translation>encore aucune</translation>
    </message>
</context>
<context>
    <name>kelvo::ServiceRows</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Hôte</translation>
    </message>
</context>
<context>
    <name>kelvo::SettingsTab</name>
    <message>
        <source>Every file that differs</source>
        <translation>Tout fichier qui diffère</translation>
    </message>
    <message>
        <source>Only files newer than here (--update)</source>
        <translation>Seulement les fichiers plus récents qu’ici (--update)</translation>
    </message>
    <message>
        <source>Only files not here yet (--ignore-existing)</source>
        <translation>Seulement les fichiers pas encore ici (--ignore-existing)</translation>
    </message>
    <message>
        <source>Every file that differs (stored as 105)</source>
        <translation>Tout fichier qui diffère (enregistré comme 105)</translation>
    </message>
    <message>
        <source>Not a valid option (%1)</source>
        <translation>Option non valide (%1)</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>The template lacks %@1, the source: its command does not read the source that is chosen.</source>
        <translation>Il manque au modèle %@1, la source&#xa0;: sa commande ne lit pas la source choisie.</translation>
    </message>
    <message>
        <source>The template lacks %@2, the destination: its command does not fill the folder that is chosen.</source>
        <translation>Il manque au modèle %@2, la destination&#xa0;: sa commande ne remplit pas le dossier choisi.</translation>
    </message>
    <message>
        <source>The template lacks %@98, the options of ssh: its command does not use the key that was set up.</source>
        <translation>Il manque au modèle %@98, les options de ssh&#xa0;: sa commande n’utilise pas la clé configurée.</translation>
    </message>
    <message>
        <source>The template lacks %@99, the option: the option that is chosen changes nothing.</source>
        <translation>Il manque au modèle %@99, l’option&#xa0;: l’option choisie ne change rien.</translation>
    </message>
    <message>
        <source>The template has a folder where its name may fall apart: passes are refused when the name holds blanks, quotes or the like.</source>
        <translation>Le modèle place un dossier là où son nom peut être coupé en morceaux&#xa0;: les passes sont refusées lorsque le nom contient des espaces, des guillemets ou des signes semblables.</translation>
    </message>
    <message>
        <source>The template under Advanced is your own and is left alone: the kinds of movies are written there.</source>
        <translation>Le modèle sous Avancé est le vôtre et n’est pas touché&#xa0;: les formats de films y sont écrits.</translation>
    </message>
    <message>
        <source>Movies of the kinds .mov and .mp4 always come from the remote Mac.</source>
        <translation>Les films aux formats .mov et .mp4 viennent toujours du Mac distant.</translation>
    </message>
    <message>
        <source>No kind is ticked: passes bring nothing.</source>
        <translation>Aucun format n’est coché&#xa0;: les passes n’apportent rien.</translation>
    </message>
    <message>
        <source>The rsync command with the places %@1 source, %@2 destination, %@3 key, %@98 ssh, %@99 option</source>
        <translation>La commande rsync avec les emplacements %@1 source, %@2 destination, %@3 clé, %@98 ssh, %@99 option</translation>
    </message>
    <message>
        <source>Back to My Template</source>
        <translation>Revenir à mon modèle</translation>
    </message>
    <message>
        <source>Back to the Factory Template</source>
        <translation>Revenir au modèle d’origine</translation>
    </message>
    <message>
        <source>Brings back the template that the factory&apos;s took the place of</source>
        <translation>Rétablit le modèle que le modèle d’origine a remplacé</translation>
    </message>
    <message>
        <source>Takes the template that Kelvo Mirror comes with; asks before it replaces one that was changed by hand</source>
        <translation>Prend le modèle fourni avec Kelvo Mirror&#xa0;; demande avant de remplacer un modèle modifié à la main</translation>
    </message>
    <message>
        <source>Go back to the factory template?</source>
        <translation>Revenir au modèle d’origine&#xa0;?</translation>
    </message>
    <message>
        <source>Your own template is replaced. “Back to My Template” brings it back until the program ends.</source>
        <translation>Votre modèle est remplacé. «&#xa0;Revenir à mon modèle&#xa0;» le rétablit tant que le programme fonctionne.</translation>
    </message>
    <message>
        <source>Keep My Template</source>
        <translation>Garder mon modèle</translation>
    </message>
</context>
<context>
    <name>kelvo::SshLineBox</name>
    <message>
        <source>%1 was not changed: %2</source>
        <translation>%1 n’a pas été modifié : %2</translation>
    </message>
    <message>
        <source>A line in %1 tells ssh of the connection.</source>
        <translation>Une ligne dans %1 indique la connexion à ssh.</translation>
    </message>
    <message>
        <source>ssh does not know of the connection yet: passes log in each time.</source>
        <translation>ssh ne connaît pas encore la connexion : chaque passe se connecte de nouveau.</translation>
    </message>
    <message>
        <source>Take the Line Away</source>
        <translation>Retirer la ligne</translation>
    </message>
    <message>
        <source>Tell ssh…</source>
        <translation>Informer ssh…</translation>
    </message>
    <message>
        <source>Removes the line that Kelvo Mirror has put into your configuration of ssh</source>
        <translation>Retire la ligne que Kelvo Mirror a ajoutée à votre configuration de ssh</translation>
    </message>
    <message>
        <source>Shows the line that your configuration of ssh needs, and asks before it is put there</source>
        <translation>Affiche la ligne dont votre configuration de ssh a besoin, et demande avant de l’ajouter</translation>
    </message>
    <message>
        <source>Tell ssh of the connection?</source>
        <translation>Indiquer la connexion à ssh ?</translation>
    </message>
    <message>
        <source>This line is put at the top of %1. It concerns no commands but those of passes.
%2</source>
        <translation>Cette ligne est placée au début de %1. Elle ne concerne que les commandes des passes.
%2</translation>
    </message>
    <message>
        <source>Add the Line</source>
        <translation>Ajouter la ligne</translation>
    </message>
    <message>
        <source>Leave It as It Is</source>
        <translation>Ne rien changer</translation>
    </message>
</context>
<context>
    <name>kelvo::StatusFieldView</name>
    <message>
        <source>Trouble</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>What the program is doing</source>
        <translation>Ce que fait le programme</translation>
    </message>
</context>
<context>
    <name>kelvo::StepHead</name>
    <message>
        <source>Done</source>
        <translation>Fait</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>À faire</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Replier</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Changer</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>kelvo::SyncTab</name>
    <message>
        <source>No source folder chosen yet</source>
        <translation>Aucun dossier source encore choisi</translation>
    </message>
    <message>
        <source>No destination folder chosen yet</source>
        <translation>Aucun dossier de destination encore choisi</translation>
    </message>
    <message>
        <source>No remote Mac chosen yet</source>
        <translation>Aucun Mac distant encore choisi</translation>
    </message>
    <message>
        <source>The pass went well: %1.</source>
        <translation>La passe s’est bien déroulée&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>kelvo::TrayIcon</name>
    <message>
        <source>Syncing is off</source>
        <translation>La synchronisation est désactivée</translation>
    </message>
    <message>
        <source>Waiting for the next pass</source>
        <translation>En attente de la passe suivante</translation>
    </message>
    <message>
        <source>Syncing now</source>
        <translation>Synchronisation en cours</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Demande votre attention</translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation>Démarrer la synchronisation</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>Synchro&amp;niser maintenant</translation>
    </message>
    <message>
        <source>&amp;Cancel This Pass</source>
        <translation>Ann&amp;uler cette passe</translation>
    </message>
    <message>
        <source>Open &amp;Window</source>
        <translation>Ouvrir la &amp;fenêtre</translation>
    </message>
    <message>
        <source>&amp;Activity</source>
        <translation>&amp;Activité</translation>
    </message>
    <message>
        <source>Reveal &amp;Folder</source>
        <translation>Montrer le &amp;dossier</translation>
    </message>
    <message>
        <source>Quit and &amp;Relaunch</source>
        <translation>Quitter et &amp;relancer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>No destination folder is chosen yet</source>
        <translation>Aucun dossier de destination n’est encore choisi</translation>
    </message>
</context>
<context>
    <name>sourceNotice</name>
    <message>
        <source>Choose the remote Mac on the Remote Mac tab.</source>
        <translation>Choisissez le Mac distant dans l’onglet Mac distant.</translation>
    </message>
    <message>
        <source>Enter the user name on the Remote Mac tab.</source>
        <translation>Indiquez le nom d’utilisateur dans l’onglet Mac distant.</translation>
    </message>
    <message>
        <source>Enter the remote folder on the Remote Mac tab.</source>
        <translation>Indiquez le dossier distant dans l’onglet Mac distant.</translation>
    </message>
    <message>
        <source>Passes still pull from the source above. The new host or folder takes effect with &quot;Use This Source Now&quot;, or else when the user name changes or the program starts again.</source>
        <translation>Les passes récupèrent encore les films de la source ci-dessus. Le nouvel hôte ou dossier prend effet avec «&#xa0;Utiliser cette source maintenant&#xa0;», sinon quand le nom d’utilisateur change ou que le programme redémarre.</translation>
    </message>
</context>
</TS>
