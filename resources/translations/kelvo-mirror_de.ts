<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ActivityTab</name>
    <message>
        <source>&amp;Arrived</source>
        <translation>An&amp;gekommen</translation>
    </message>
    <message>
        <source>Shows the movies that have arrived</source>
        <translation>Zeigt die angekommenen Filme</translation>
    </message>
    <message>
        <source>A&amp;ll Passes</source>
        <translation>Alle Du&amp;rchgänge</translation>
    </message>
    <message>
        <source>Shows every pass with its outcome</source>
        <translation>Zeigt jeden Durchgang mit seinem Ausgang</translation>
    </message>
    <message>
        <source>Arrived per day, 30 days</source>
        <translation>Angekommen je Tag, 30 Tage</translation>
    </message>
</context>
<context>
    <name>ArrivalsView</name>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Search what has arrived</source>
        <translation>Im Angekommenen suchen</translation>
    </message>
    <message>
        <source>Shows the movies with this text in their path</source>
        <translation>Zeigt die Filme mit diesem Text im Pfad</translation>
    </message>
    <message>
        <source>Arrived movies</source>
        <translation>Angekommene Filme</translation>
    </message>
    <message>
        <source>By day, newest first; the Return key opens one</source>
        <translation>Nach Tagen, neueste zuerst; die Eingabetaste öffnet einen Film</translation>
    </message>
</context>
<context>
    <name>BonjourSheet</name>
    <message>
        <source>Choose the Remote Mac</source>
        <translation>Entfernten Mac auswählen</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Suche läuft</translation>
    </message>
    <message>
        <source>Computers found</source>
        <translation>Gefundene Computer</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>E&amp;rneut suchen</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Erneut suchen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>Au&amp;swählen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Copy C&amp;ommand</source>
        <translation>Befehl &amp;kopieren</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Befehl kopieren</translation>
    </message>
</context>
<context>
    <name>DiagnosticsTab</name>
    <message>
        <source>Folders and window</source>
        <translation>Ordner und Fenster</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Looks one second for Macs that share files and lists all of them below</source>
        <translation>Sucht eine Sekunde lang Macs mit Dateifreigabe und listet unten alle auf</translation>
    </message>
    <message>
        <source>Writes what the last search found to the log</source>
        <translation>Schreibt das Ergebnis der letzten Suche ins Protokoll</translation>
    </message>
    <message>
        <source>Found &amp;Macs</source>
        <translation>Gefundene &amp;Macs</translation>
    </message>
    <message>
        <source>Found Macs</source>
        <translation>Gefundene Macs</translation>
    </message>
    <message>
        <source>Remote Mac and program</source>
        <translation>Entfernter Mac und Programm</translation>
    </message>
    <message>
        <source>These buttons help to find out why something does not work. What they find out is written to the log: Help, Open Log Folder.</source>
        <translation>Mit diesen Schaltflächen lässt sich herausfinden, warum etwas nicht funktioniert. Was sie ergeben, steht im Protokoll: Menü „Hilfe“, „Protokollordner öffnen“.</translation>
    </message>
    <message>
        <source>Passes and heartbeat</source>
        <translation>Durchgänge und Lebenszeichen</translation>
    </message>
    <message>
        <source>Sync Two Folders Here</source>
        <translation>Zwei Ordner hier synchronisieren</translation>
    </message>
    <message>
        <source>Switches syncing on or off, with passes between two folders on this computer, whatever Settings says</source>
        <translation>Schaltet die Synchronisierung ein oder aus, mit Durchgängen zwischen zwei Ordnern auf diesem Computer, unabhängig von den Einstellungen</translation>
    </message>
    <message>
        <source>Sync from the Mac</source>
        <translation>Vom Mac synchronisieren</translation>
    </message>
    <message>
        <source>Switches syncing on or off, with passes from the remote Mac, whatever Settings says</source>
        <translation>Schaltet die Synchronisierung ein oder aus, mit Durchgängen vom entfernten Mac, unabhängig von den Einstellungen</translation>
    </message>
    <message>
        <source>Start Heartbeat</source>
        <translation>Lebenszeichen starten</translation>
    </message>
    <message>
        <source>Writes a line to the log each second, as a sign that the program is alive</source>
        <translation>Schreibt jede Sekunde eine Zeile ins Protokoll, als Zeichen, dass das Programm läuft</translation>
    </message>
    <message>
        <source>Pause Heartbeat</source>
        <translation>Lebenszeichen unterbrechen</translation>
    </message>
    <message>
        <source>Writes no more of these lines until the heartbeat is started again</source>
        <translation>Schreibt diese Zeilen nicht mehr, bis das Lebenszeichen wieder gestartet wird</translation>
    </message>
    <message>
        <source>End Heartbeat</source>
        <translation>Lebenszeichen beenden</translation>
    </message>
    <message>
        <source>Writes no more of these lines until the program starts again</source>
        <translation>Schreibt diese Zeilen nicht mehr, bis das Programm wieder startet</translation>
    </message>
    <message>
        <source>Show Source Folder</source>
        <translation>Quellordner anzeigen</translation>
    </message>
    <message>
        <source>Shows the source folder on the Sync tab and writes its parts to the log; where none is chosen, the Desktop folder becomes the source</source>
        <translation>Zeigt den Quellordner auf der Seite „Synchronisieren“ an und schreibt seine Bestandteile ins Protokoll; ist keiner gewählt, wird der Schreibtisch-Ordner zur Quelle</translation>
    </message>
    <message>
        <source>Open Test Folder</source>
        <translation>Testordner öffnen</translation>
    </message>
    <message>
        <source>Opens /Volumes/Macintosh%20HD-2/Users/support/Desktop/FolderOnRemoteServer, a folder for tests that few computers have; source and destination must be chosen first</source>
        <translation>Öffnet /Volumes/Macintosh%20HD-2/Users/support/Desktop/FolderOnRemoteServer, einen Ordner für Tests, den es auf wenigen Computern gibt; Quelle und Ziel müssen zuvor gewählt sein</translation>
    </message>
    <message>
        <source>Open Scripts Folder</source>
        <translation>Skriptordner öffnen</translation>
    </message>
    <message>
        <source>Opens the temporary folder in which the program keeps the scripts for a terminal</source>
        <translation>Öffnet den temporären Ordner, in dem das Programm die Skripte für ein Terminal ablegt</translation>
    </message>
    <message>
        <source>Leave All Fields</source>
        <translation>Alle Felder verlassen</translation>
    </message>
    <message>
        <source>Takes the keyboard away from every field and button until another one is chosen</source>
        <translation>Nimmt jedem Feld und jeder Schaltfläche den Tastaturfokus, bis wieder etwas gewählt wird</translation>
    </message>
    <message>
        <source>Search for Macs</source>
        <translation>Macs suchen</translation>
    </message>
    <message>
        <source>Log Found Macs</source>
        <translation>Gefundene Macs protokollieren</translation>
    </message>
    <message>
        <source>Copy to a Mac</source>
        <translation>Auf einen Mac kopieren</translation>
    </message>
    <message>
        <source>Writes a line to the log and nothing else: the destination is always a folder on this computer</source>
        <translation>Schreibt nur eine Zeile ins Protokoll: Das Ziel ist immer ein Ordner auf diesem Computer</translation>
    </message>
    <message>
        <source>Watch for Shares</source>
        <translation>Auf Freigaben achten</translation>
    </message>
    <message>
        <source>Looks for shared folders and writes each one that comes or goes to the log</source>
        <translation>Sucht nach freigegebenen Ordnern und schreibt jeden, der hinzukommt oder verschwindet, ins Protokoll</translation>
    </message>
    <message>
        <source>Open the Share</source>
        <translation>Freigabe öffnen</translation>
    </message>
    <message>
        <source>Asks the desktop to open the shared folder of the Mac and writes the open shares to the log</source>
        <translation>Bittet den Desktop, den freigegebenen Ordner des Macs zu öffnen, und schreibt die offenen Freigaben ins Protokoll</translation>
    </message>
    <message>
        <source>Find Folder, Older Way</source>
        <translation>Ordner suchen, ältere Art</translation>
    </message>
    <message>
        <source>Opens the shared folder of the Mac and looks for the folder in it without waiting</source>
        <translation>Öffnet den freigegebenen Ordner des Macs und sucht darin den Ordner, ohne zu warten</translation>
    </message>
    <message>
        <source>New Key, Older Way</source>
        <translation>Neuer Schlüssel, ältere Art</translation>
    </message>
    <message>
        <source>Removes the key and makes a new one in a terminal window; the Mac must be given the new one with Set Up Key</source>
        <translation>Entfernt den Schlüssel und erzeugt in einem Terminalfenster einen neuen; dieser muss mit „Schlüssel einrichten“ auf dem Mac hinterlegt werden</translation>
    </message>
    <message>
        <source>Quit and Relaunch</source>
        <translation>Beenden und neu starten</translation>
    </message>
    <message>
        <source>Ends the program and starts it again</source>
        <translation>Beendet das Programm und startet es wieder</translation>
    </message>
</context>
<context>
    <name>FixedWords</name>
    <message>
        <source>Start rsync with bonjour</source>
        <translation>rsync mit Bonjour starten</translation>
    </message>
    <message>
        <source>Start rsync with afp path</source>
        <translation>rsync mit AFP-Pfad starten</translation>
    </message>
    <message>
        <source>click to stop bonjour rsync</source>
        <translation>Klicken, um rsync mit Bonjour anzuhalten</translation>
    </message>
    <message>
        <source>click to stop rsync</source>
        <translation>Klicken, um rsync anzuhalten</translation>
    </message>
    <message>
        <source>click to start rsync using bonjour</source>
        <translation>Klicken, um rsync mit Bonjour zu starten</translation>
    </message>
    <message>
        <source>click to start rsync</source>
        <translation>Klicken, um rsync zu starten</translation>
    </message>
    <message>
        <source>click to restart rsync using bonjour</source>
        <translation>Klicken, um rsync mit Bonjour neu zu starten</translation>
    </message>
    <message>
        <source>click to restart rsync</source>
        <translation>Klicken, um rsync neu zu starten</translation>
    </message>
    <message>
        <source>Trying to rsync From Destination to Source...</source>
        <translation>rsync vom Ziel zur Quelle wird versucht...</translation>
    </message>
    <message>
        <source>Resting a bit ...</source>
        <translation>Kurze Pause ...</translation>
    </message>
    <message>
        <source>The settings file cannot be read - waiting...</source>
        <translation>Die Einstellungsdatei lässt sich nicht lesen - warten...</translation>
    </message>
    <message>
        <source>oops - something went wrong - check settings and hardware connections - then try again...</source>
        <translation>Hoppla - etwas ging schief - Einstellungen und Anschlüsse prüfen - dann erneut versuchen...</translation>
    </message>
    <message>
        <source>Unable to Reach Remote Host</source>
        <translation>Der entfernte Host ist nicht erreichbar</translation>
    </message>
    <message>
        <source>Missing ssh keys -
Please generate ssh keys
 and 
 try again...
</source>
        <translation>Die ssh-Schlüssel fehlen -
Bitte ssh-Schlüssel erzeugen
 und 
 erneut versuchen...
</translation>
    </message>
    <message>
        <source>SUCCESS...</source>
        <translation>ERFOLG...</translation>
    </message>
    <message>
        <source>remote seem to be alive?...</source>
        <translation>Der entfernte Host scheint da zu sein?...</translation>
    </message>
    <message>
        <source>Oh OH...</source>
        <translation>Oh OH...</translation>
    </message>
    <message>
        <source>ssh identity file is invalid or missing ???...</source>
        <translation>Die ssh-Schlüsseldatei ist ungültig oder fehlt ???...</translation>
    </message>
    <message>
        <source>ssh remote has issues - please check network connection or remote username@domain parameters...</source>
        <translation>Der entfernte ssh-Host hat Probleme - bitte Netzwerkverbindung oder Benutzername@Domain prüfen...</translation>
    </message>
    <message>
        <source>Please Wait - Scanning for smb machines on network...</source>
        <translation>Bitte warten - SMB-Computer im Netzwerk werden gesucht...</translation>
    </message>
    <message>
        <source>Bonjour List...</source>
        <translation>Bonjour-Liste...</translation>
    </message>
    <message>
        <source>No network connection</source>
        <translation>Keine Netzwerkverbindung</translation>
    </message>
    <message>
        <source>Connected to the local network only</source>
        <translation>Nur mit dem lokalen Netzwerk verbunden</translation>
    </message>
    <message>
        <source>Connected to the network</source>
        <translation>Mit dem Netzwerk verbunden</translation>
    </message>
    <message>
        <source>the user name holds a zero</source>
        <translation>der Benutzername enthält ein Nullzeichen</translation>
    </message>
    <message>
        <source>the user name holds a line break</source>
        <translation>der Benutzername enthält einen Zeilenumbruch</translation>
    </message>
    <message>
        <source>the user name holds signs that are no text</source>
        <translation>der Benutzername enthält Zeichen, die kein Text sind</translation>
    </message>
    <message>
        <source>the user name begins with &quot;-&quot;</source>
        <translation>der Benutzername beginnt mit „-“</translation>
    </message>
    <message>
        <source>the user name holds &quot;:&quot; or &quot;/&quot;</source>
        <translation>der Benutzername enthält „:“ oder „/“</translation>
    </message>
    <message>
        <source>the host name holds a zero</source>
        <translation>der Hostname enthält ein Nullzeichen</translation>
    </message>
    <message>
        <source>the host name holds a line break</source>
        <translation>der Hostname enthält einen Zeilenumbruch</translation>
    </message>
    <message>
        <source>the host name holds signs that are no text</source>
        <translation>der Hostname enthält Zeichen, die kein Text sind</translation>
    </message>
    <message>
        <source>the host name begins with &quot;-&quot;</source>
        <translation>der Hostname beginnt mit „-“</translation>
    </message>
    <message>
        <source>the host name holds &quot;/&quot;</source>
        <translation>der Hostname enthält „/“</translation>
    </message>
    <message>
        <source>the path of the key file holds a line break</source>
        <translation>der Pfad der Schlüsseldatei enthält einen Zeilenumbruch</translation>
    </message>
    <message>
        <source>the path of the key file holds signs that are no text</source>
        <translation>der Pfad der Schlüsseldatei enthält Zeichen, die kein Text sind</translation>
    </message>
    <message>
        <source>the source holds a zero</source>
        <translation>die Quelle enthält ein Nullzeichen</translation>
    </message>
    <message>
        <source>the source holds a line break</source>
        <translation>die Quelle enthält einen Zeilenumbruch</translation>
    </message>
    <message>
        <source>the source holds signs that are no text</source>
        <translation>die Quelle enthält Zeichen, die kein Text sind</translation>
    </message>
    <message>
        <source>the source begins with &quot;-&quot;</source>
        <translation>die Quelle beginnt mit „-“</translation>
    </message>
    <message>
        <source>the host of the source begins with &quot;-&quot;</source>
        <translation>der Host der Quelle beginnt mit „-“</translation>
    </message>
    <message>
        <source>the source would be read as a module of an rsync daemon</source>
        <translation>die Quelle würde als Modul eines rsync-Dienstes gelesen</translation>
    </message>
    <message>
        <source>the destination holds a zero</source>
        <translation>das Ziel enthält ein Nullzeichen</translation>
    </message>
    <message>
        <source>the destination holds a line break</source>
        <translation>das Ziel enthält einen Zeilenumbruch</translation>
    </message>
    <message>
        <source>the destination holds signs that are no text</source>
        <translation>das Ziel enthält Zeichen, die kein Text sind</translation>
    </message>
    <message>
        <source>the destination begins with &quot;-&quot;</source>
        <translation>das Ziel beginnt mit „-“</translation>
    </message>
    <message>
        <source>the destination would be read as the name of a host</source>
        <translation>das Ziel würde als Name eines Hosts gelesen</translation>
    </message>
    <message>
        <source>the command puts a text where it cannot be kept in one word</source>
        <translation>der Befehl setzt einen Text an eine Stelle, an der er kein einzelnes Wort bleiben kann</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Das Plattenkontingent ist überschritten</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Ein-/Ausgabefehler</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Ist ein Ordner</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Kein Platz mehr auf dem Gerät</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Ist kein Ordner</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Keine Berechtigung</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Das Dateisystem ist nur lesbar</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Zu viele offene Dateien</translation>
    </message>
    <message>
        <source>Trying to rsync with option = %1...</source>
        <translation>rsync mit der Option %1 wird versucht...</translation>
    </message>
    <message>
        <source>something went wrong - waiting to retry again... [%1]</source>
        <translation>Etwas ging schief - gleich folgt ein neuer Versuch... [%1]</translation>
    </message>
    <message>
        <source>Please make sure remote host is on this network
or
Please check username...

%1
</source>
        <translation>Bitte sicherstellen, dass der entfernte Host in diesem Netzwerk ist
oder
Bitte den Benutzernamen prüfen...

%1
</translation>
    </message>
    <message>
        <source>Settings cannot be saved to %1: %2</source>
        <translation>Die Einstellungen lassen sich nicht in %1 speichern: %2</translation>
    </message>
    <message>
        <source>The settings in %1 are not known: %2</source>
        <translation>Die Einstellungen in %1 sind nicht bekannt: %2</translation>
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
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>PassesView</name>
    <message>
        <source>&amp;Brought files</source>
        <translation>Mit neuen Dateie&amp;n</translation>
    </message>
    <message>
        <source>Shows the passes that brought files</source>
        <translation>Zeigt die Durchgänge, die Dateien gebracht haben</translation>
    </message>
    <message>
        <source>In tro&amp;uble</source>
        <translation>Mit &amp;Störung</translation>
    </message>
    <message>
        <source>Shows the passes that were in trouble</source>
        <translation>Zeigt die Durchgänge mit Störung</translation>
    </message>
    <message>
        <source>Passes</source>
        <translation>Durchgänge</translation>
    </message>
    <message>
        <source>Newest first; the selected pass is told below. The right arrow key unfolds a row that stands for several passes.</source>
        <translation>Neueste zuerst; der ausgewählte Durchgang steht darunter. Die Pfeiltaste nach rechts klappt eine Zeile auf, die für mehrere Durchgänge steht.</translation>
    </message>
    <message>
        <source>Select a pass to read what its commands said.</source>
        <translation>Einen Durchgang auswählen, um zu lesen, was seine Befehle gesagt haben.</translation>
    </message>
    <message>
        <source>The selected pass</source>
        <translation>Der ausgewählte Durchgang</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected pass</source>
        <translation>Ausgewählten Durchgang kopieren</translation>
    </message>
    <message>
        <source>Puts the selected pass&apos;s text on the clipboard</source>
        <translation>Legt den Text des ausgewählten Durchgangs in die Zwischenablage</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <source>Export all passes</source>
        <translation>Alle Durchgänge exportieren</translation>
    </message>
    <message>
        <source>Writes all passes to a file of comma-separated values</source>
        <translation>Schreibt alle Durchgänge in eine Datei mit kommagetrennten Werten</translation>
    </message>
</context>
<context>
    <name>ProfilesSheet</name>
    <message>
        <source>Another Mac</source>
        <translation>Ein weiterer Mac</translation>
    </message>
    <message>
        <source>Each further Mac gets a name here. Under it the program keeps settings, a record of passes and a window of their own; the key is shared.</source>
        <translation>Jeder weitere Mac bekommt hier einen Namen. Unter ihm führt das Programm eigene Einstellungen, ein eigenes Protokoll der Durchgänge und ein eigenes Fenster; der Schlüssel ist gemeinsam.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Letters, digits, “-” and “_”</source>
        <translation>Buchstaben, Ziffern, „-“ und „_“</translation>
    </message>
    <message>
        <source>Names there are</source>
        <translation>Vorhandene Namen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Mac</source>
        <translation>Mac</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Last success</source>
        <translation>Letzter Erfolg</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Opens the window of this name, or brings it to the front</source>
        <translation>Öffnet das Fenster dieses Namens oder holt es nach vorn</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>About Kelvo Mirror</source>
        <translation>Über Kelvo Mirror</translation>
    </message>
    <message>
        <source>Kelvo Mirror %1</source>
        <translation>Kelvo Mirror %1</translation>
    </message>
    <message>
        <source>Keeps a local folder supplied with movie files from a remote Mac.</source>
        <translation>Versorgt einen lokalen Ordner mit Filmdateien von einem entfernten Mac.</translation>
    </message>
    <message>
        <source>Do not ask again</source>
        <translation>Nicht wieder fragen</translation>
    </message>
    <message>
        <source>Show Remote Mac</source>
        <translation>Entfernten Mac zeigen</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Auswählen…</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>Befehl kopieren</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Erneut prüfen</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>Open the Log</source>
        <translation>Protokoll öffnen</translation>
    </message>
    <message>
        <source>Without an answer, it tries again in %1 s.</source>
        <translation>Ohne Antwort folgt in %1 s ein neuer Versuch.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Choose the Mac</source>
        <translation>Mac auswählen</translation>
    </message>
    <message>
        <source>Enter the Account</source>
        <translation>Konto eintragen</translation>
    </message>
    <message>
        <source>Set Up the Key</source>
        <translation>Schlüssel einrichten</translation>
    </message>
    <message>
        <source>&amp;Folder or file:</source>
        <translation>&amp;Ordner oder Datei:</translation>
    </message>
</context>
<context>
    <name>RemoteTab</name>
    <message>
        <source>Host &amp;name</source>
        <translation>Host&amp;name</translation>
    </message>
    <message>
        <source>Studio-Mac.local</source>
        <translation>Studio-Mac.local</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>Hostname</translation>
    </message>
    <message>
        <source>The name of the remote Mac on this network</source>
        <translation>Der Name des entfernten Macs in diesem Netzwerk</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>Aus&amp;wählen…</translation>
    </message>
    <message>
        <source>Choose the remote Mac</source>
        <translation>Entfernten Mac auswählen</translation>
    </message>
    <message>
        <source>Lists the Macs on this network that share files</source>
        <translation>Listet die Macs in diesem Netzwerk auf, die Dateien freigeben</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>Benu&amp;tzername</translation>
    </message>
    <message>
        <source>name of an account on the remote Mac</source>
        <translation>Name eines Kontos auf dem entfernten Mac</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>An account on the remote Mac with Remote Login</source>
        <translation>Ein Konto auf dem entfernten Mac mit Entfernter Anmeldung</translation>
    </message>
    <message>
        <source>Fol&amp;der</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Movies</translation>
    </message>
    <message>
        <source>Remote folder</source>
        <translation>Entfernter Ordner</translation>
    </message>
    <message>
        <source>The folder on the remote Mac to pull from, from its home folder or from /</source>
        <translation>Der Ordner auf dem entfernten Mac, aus dem geholt wird, vom Benutzerordner aus oder von /</translation>
    </message>
    <message>
        <source>Source in use</source>
        <translation>Verwendete Quelle</translation>
    </message>
    <message>
        <source>Set Up &amp;Key…</source>
        <translation>Schlüssel &amp;einrichten…</translation>
    </message>
    <message>
        <source>Makes a key for this program and installs it on the remote Mac; asks for the password there</source>
        <translation>Erzeugt einen Schlüssel für dieses Programm und hinterlegt ihn auf dem entfernten Mac; fragt nach dem dortigen Passwort</translation>
    </message>
    <message>
        <source>Te&amp;st Connection</source>
        <translation>&amp;Verbindung testen</translation>
    </message>
    <message>
        <source>Asks the remote Mac for an answer over ssh</source>
        <translation>Bittet den entfernten Mac über ssh um eine Antwort</translation>
    </message>
    <message>
        <source>The connection test is running</source>
        <translation>Der Verbindungstest läuft</translation>
    </message>
    <message>
        <source>&amp;Make a New Key</source>
        <translation>Neuen Schlüssel er&amp;zeugen</translation>
    </message>
    <message>
        <source>Replaces the key of this program; it must be installed again</source>
        <translation>Ersetzt den Schlüssel dieses Programms; er muss erneut hinterlegt werden</translation>
    </message>
    <message>
        <source>Check Ke&amp;y Again</source>
        <translation>Schlüssel erneut &amp;prüfen</translation>
    </message>
    <message>
        <source>Asks the remote Mac whether it accepts the key</source>
        <translation>Fragt den entfernten Mac, ob er den Schlüssel annimmt</translation>
    </message>
    <message>
        <source>&amp;Open Remote Folder</source>
        <translation>Entfernten Ordner ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Opens the remote folder in the file browser</source>
        <translation>Öffnet den entfernten Ordner im Dateimanager</translation>
    </message>
    <message>
        <source>Mount and F&amp;ind Folder</source>
        <translation>Einhängen und Ordner &amp;suchen</translation>
    </message>
    <message>
        <source>Opens the share, looks where it was mounted and opens the folder there</source>
        <translation>Öffnet die Freigabe, stellt fest, wo sie eingehängt wurde, und öffnet dort den Ordner</translation>
    </message>
    <message>
        <source>1. Mac</source>
        <translation>1. Mac</translation>
    </message>
    <message>
        <source>2. Account and folder</source>
        <translation>2. Konto und Ordner</translation>
    </message>
    <message>
        <source>Use This Source No&amp;w</source>
        <translation>Diese &amp;Quelle jetzt verwenden</translation>
    </message>
    <message>
        <source>Passes pull from this account and folder from now on</source>
        <translation>Durchgänge holen die Filme ab jetzt von diesem Konto und aus diesem Ordner</translation>
    </message>
    <message>
        <source>3. Key</source>
        <translation>3. Schlüssel</translation>
    </message>
    <message>
        <source>4. Connection</source>
        <translation>4. Verbindung</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Weiteres</translation>
    </message>
</context>
<context>
    <name>SettingsTab</name>
    <message>
        <source>Kind of pass</source>
        <translation>Art des Durchgangs</translation>
    </message>
    <message>
        <source>Pull from the &amp;remote Mac over ssh</source>
        <translation>Vom ent&amp;fernten Mac über ssh holen</translation>
    </message>
    <message>
        <source>Copy &amp;between two folders of this computer</source>
        <translation>&amp;Zwischen zwei Ordnern dieses Computers kopieren</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Te&amp;mplate</source>
        <translation>&amp;Vorlage</translation>
    </message>
    <message>
        <source>Command template</source>
        <translation>Befehlsvorlage</translation>
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
        <translation>Welche Dateien ein Durchgang behandelt</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>Beispiel</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Verhalten</translation>
    </message>
    <message>
        <source>Rest between p&amp;asses</source>
        <translation>Pause zwischen Dur&amp;chgängen</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>3.0 s (automatic)</source>
        <translation>3,0 s (automatisch)</translation>
    </message>
    <message>
        <source>Rest between passes</source>
        <translation>Pause zwischen Durchgängen</translation>
    </message>
    <message>
        <source>Seconds between two passes</source>
        <translation>Sekunden zwischen zwei Durchgängen</translation>
    </message>
    <message>
        <source>&amp;Start syncing at launch</source>
        <translation>Beim Start &amp;synchronisieren</translation>
    </message>
    <message>
        <source>Hide the &amp;window at launch</source>
        <translation>Fens&amp;ter beim Start verbergen</translation>
    </message>
    <message>
        <source>Show a noti&amp;ce when movies have arrived</source>
        <translation>&amp;Melden, wenn Filme angekommen sind</translation>
    </message>
    <message>
        <source>&amp;Quit without asking while movies are being copied</source>
        <translation>Ohne &amp;Rückfrage beenden, während Filme kopiert werden</translation>
    </message>
    <message>
        <source>Start Kelvo Mirror when I &amp;log in</source>
        <translation>&amp;Kelvo Mirror beim Anmelden starten</translation>
    </message>
    <message>
        <source>R&amp;un after arrivals</source>
        <translation>Nach der Ankunft ausführ&amp;en</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>kein Befehl</translation>
    </message>
    <message>
        <source>Command to run after arrivals</source>
        <translation>Befehl, der nach der Ankunft ausgeführt wird</translation>
    </message>
    <message>
        <source>Run after each pass that has brought movies; empty for none</source>
        <translation>Wird nach jedem Durchgang ausgeführt, der Filme gebracht hat; leer für keinen</translation>
    </message>
    <message>
        <source>It reads the paths of the movies on its standard input, each ended by a NUL; KELVO_MIRROR_ARRIVALS says how many.</source>
        <translation>Er liest die Pfade der Filme aus seiner Standardeingabe, jeder mit einem NUL beendet; KELVO_MIRROR_ARRIVALS nennt die Anzahl.</translation>
    </message>
    <message>
        <source>Show a &amp;notice when passes turn bad and when they are well again</source>
        <translation>Me&amp;lden, wenn Durchgänge misslingen und wenn sie wieder gelingen</translation>
    </message>
    <message>
        <source>Kinds of movies</source>
        <translation>Filmformate</translation>
    </message>
    <message>
        <source>A&amp;dvanced</source>
        <translation>Er&amp;weitert</translation>
    </message>
    <message>
        <source>Shows the command that a pass runs, and hides it again</source>
        <translation>Zeigt den Befehl, den ein Durchgang ausführt, und verbirgt ihn wieder</translation>
    </message>
    <message>
        <source>The template with the option filled in</source>
        <translation>Die Vorlage mit eingesetzter Option</translation>
    </message>
    <message>
        <source>&amp;Keep the connection to the Mac between passes</source>
        <translation>Ver&amp;bindung zum Mac zwischen Durchgängen behalten</translation>
    </message>
    <message>
        <source>Saves the logins of passes that follow each other within a minute; it ends with syncing, and after an hour at most</source>
        <translation>Erspart Durchgängen, die innerhalb einer Minute aufeinander folgen, die Anmeldung; die Verbindung endet mit der Synchronisierung, spätestens nach einer Stunde</translation>
    </message>
</context>
<context>
    <name>SyncTab</name>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Remote source</source>
        <translation>Entfernte Quelle</translation>
    </message>
    <message>
        <source>Chan&amp;ge…</source>
        <translation>Änd&amp;ern…</translation>
    </message>
    <message>
        <source>Change the remote Mac</source>
        <translation>Entfernten Mac ändern</translation>
    </message>
    <message>
        <source>Shows the tab where the remote Mac is chosen</source>
        <translation>Zeigt die Seite, auf der der entfernte Mac gewählt wird</translation>
    </message>
    <message>
        <source>Source folder</source>
        <translation>Quellordner</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>Aus&amp;wählen…</translation>
    </message>
    <message>
        <source>Choose the source folder</source>
        <translation>Quellordner auswählen</translation>
    </message>
    <message>
        <source>&amp;Reveal</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message>
        <source>Reveal the source folder</source>
        <translation>Quellordner zeigen</translation>
    </message>
    <message>
        <source>Opens the folder in the file browser; a right click asks how</source>
        <translation>Öffnet den Ordner im Dateimanager; ein Rechtsklick fragt, wie</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Nach</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Zielordner</translation>
    </message>
    <message>
        <source>Ch&amp;oose…</source>
        <translation>Auswäh&amp;len…</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>Zielordner auswählen</translation>
    </message>
    <message>
        <source>Revea&amp;l</source>
        <translation>Zei&amp;gen</translation>
    </message>
    <message>
        <source>Reveal the destination folder</source>
        <translation>Zielordner zeigen</translation>
    </message>
    <message>
        <source>Opens the folder in the file browser</source>
        <translation>Öffnet den Ordner im Dateimanager</translation>
    </message>
    <message>
        <source>Start rsync</source>
        <translation>rsync starten</translation>
    </message>
    <message>
        <source>Switches syncing on and off</source>
        <translation>Schaltet die Synchronisierung ein und aus</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>&amp;Jetzt synchronisieren</translation>
    </message>
    <message>
        <source>Begins the next pass now</source>
        <translation>Beginnt den nächsten Durchgang sofort</translation>
    </message>
    <message>
        <source>C&amp;ancel This Pass</source>
        <translation>Durchgang abbre&amp;chen</translation>
    </message>
    <message>
        <source>Ends the pass that runs; what it has begun to copy is kept for the next one</source>
        <translation>Beendet den laufenden Durchgang; was er zu kopieren begonnen hat, bleibt für den nächsten erhalten</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Angekommen</translation>
    </message>
    <message>
        <source>All Arr&amp;ivals</source>
        <translation>Alles A&amp;ngekommene</translation>
    </message>
    <message>
        <source>Shows the Activity tab</source>
        <translation>Zeigt die Seite „Aktivität“</translation>
    </message>
    <message>
        <source>Whether this computer has a network connection</source>
        <translation>Ob dieser Computer eine Netzwerkverbindung hat</translation>
    </message>
    <message>
        <source>&amp;Use This Source Now</source>
        <translation>Diese &amp;Quelle jetzt verwenden</translation>
    </message>
    <message>
        <source>Passes pull from the host and folder that are set now</source>
        <translation>Durchgänge holen die Filme dann vom jetzt eingestellten Host und Ordner</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message numerus="yes">
        <source>%Ln passes written.</source>
        <translation>
            <numerusform>%Ln Durchgang geschrieben.</numerusform>
            <numerusform>%Ln Durchgänge geschrieben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln movies</source>
        <translation>
            <numerusform>%Ln Film</numerusform>
            <numerusform>%Ln Filme</numerusform>
        </translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>Rückgabewert %1</translation>
    </message>
    <message>
        <source>ended when the pass was cancelled</source>
        <translation>beim Abbruch des Durchgangs beendet</translation>
    </message>
    <message>
        <source>given up when the program ended</source>
        <translation>beim Programmende aufgegeben</translation>
    </message>
    <message>
        <source>by rsync&apos;s own figures</source>
        <translation>nach Angaben von rsync</translation>
    </message>
    <message>
        <source>counted from its lines</source>
        <translation>aus den Zeilen gezählt</translation>
    </message>
    <message>
        <source>the command did not say</source>
        <translation>ohne Angabe des Befehls</translation>
    </message>
    <message>
        <source>Run after arrivals:</source>
        <translation>Nach der Ankunft ausgeführt:</translation>
    </message>
    <message>
        <source>… %L1 bytes left out …</source>
        <translation>… %L1 Bytes ausgelassen …</translation>
    </message>
    <message>
        <source>Arrived:</source>
        <translation>Angekommen:</translation>
    </message>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation>
            <numerusform>… und %Ln weiterer</numerusform>
            <numerusform>… und %Ln weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Next step: %1</source>
        <translation>Nächster Schritt: %1</translation>
    </message>
    <message>
        <source>Remote pass</source>
        <translation>Durchgang vom Mac</translation>
    </message>
    <message>
        <source>Plain pass</source>
        <translation>Einfacher Durchgang</translation>
    </message>
    <message numerus="yes">
        <source>%Ln passes, nothing new, %1 to %2</source>
        <translation>
            <numerusform>%Ln Durchgang, nichts Neues, %1 bis %2</numerusform>
            <numerusform>%Ln Durchgänge, nichts Neues, %1 bis %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>being cancelled</source>
        <translation>wird abgebrochen</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>nothing new</source>
        <translation>nichts Neues</translation>
    </message>
    <message>
        <source>%1; a pass was in trouble</source>
        <translation>%1; ein Durchgang hatte eine Störung</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln days</source>
        <translation>
            <numerusform>%1 an %Ln Tag</numerusform>
            <numerusform>%1 in %Ln Tagen</numerusform>
        </translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Im Dateimanager öffnen</translation>
    </message>
    <message>
        <source>Show Enclosing</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Retry Again...</source>
        <translation>Erneut versuchen...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>The Mac has not accepted the program&apos;s key yet.</source>
        <translation>Der Mac hat den Schlüssel des Programms noch nicht angenommen.</translation>
    </message>
    <message>
        <source>No Mac is chosen yet.</source>
        <translation>Es ist noch kein Mac gewählt.</translation>
    </message>
    <message>
        <source>The user name on the Mac is missing.</source>
        <translation>Der Benutzername auf dem Mac fehlt.</translation>
    </message>
    <message>
        <source>The program has no ssh key of its own yet.</source>
        <translation>Das Programm hat noch keinen eigenen ssh-Schlüssel.</translation>
    </message>
    <message>
        <source>ssh is not installed on this machine.</source>
        <translation>ssh ist auf diesem Computer nicht installiert.</translation>
    </message>
    <message>
        <source>No source folder is chosen yet.</source>
        <translation>Es ist noch kein Quellordner gewählt.</translation>
    </message>
    <message>
        <source>No destination folder is chosen yet.</source>
        <translation>Es ist noch kein Zielordner gewählt.</translation>
    </message>
    <message>
        <source>The destination folder is missing or cannot be written.</source>
        <translation>Der Zielordner fehlt oder ist nicht beschreibbar.</translation>
    </message>
    <message>
        <source>rsync is not installed on this machine.</source>
        <translation>rsync ist auf diesem Computer nicht installiert.</translation>
    </message>
    <message>
        <source>Kelvo Mirror keeps running</source>
        <translation>Kelvo Mirror läuft weiter</translation>
    </message>
    <message>
        <source>There is no tray icon to bring the window back with. To see the window again, start Kelvo Mirror once more. To end the program, choose Quit from the File menu instead.</source>
        <translation>Es gibt kein Symbol im Infobereich, das das Fenster zurückbringt. Um das Fenster wieder zu sehen, Kelvo Mirror noch einmal starten. Um das Programm zu beenden, stattdessen „Beenden“ im Menü „Datei“ wählen.</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>Offen lassen</translation>
    </message>
    <message>
        <source>Quit while movies are being copied?</source>
        <translation>Beenden, während Filme kopiert werden?</translation>
    </message>
    <message>
        <source>The pass that runs will be ended: %1. The next start goes on from there.</source>
        <translation>Der laufende Durchgang wird beendet: %1. Der nächste Start macht dort weiter.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>Weiterlaufen lassen</translation>
    </message>
    <message>
        <source>Last success: %1, %2</source>
        <translation>Letzter Erfolg: %1, %2</translation>
    </message>
    <message>
        <source>No pass has ended yet. How it went will stand here.</source>
        <translation>Noch ist kein Durchgang zu Ende. Wie er ausging, wird hier stehen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln passes)</source>
        <translation>
            <numerusform>%1 (%Ln Durchgang)</numerusform>
            <numerusform>%1 (%Ln Durchgänge)</numerusform>
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
        <translation>Die Durchgänge lassen sich nicht aufzeichnen: %1</translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %1</source>
        <translation>Die Einstellungsdatei war beschädigt. Sie wird aufbewahrt als %1</translation>
    </message>
    <message>
        <source>The record of passes was damaged. It is kept as %1</source>
        <translation>Die Aufzeichnung der Durchgänge war beschädigt. Sie wird aufbewahrt als %1</translation>
    </message>
    <message>
        <source>The record of passes was removed or replaced. The passes since the start were written again</source>
        <translation>Die Aufzeichnung der Durchgänge wurde entfernt oder ersetzt. Die Durchgänge seit dem Start wurden erneut geschrieben</translation>
    </message>
    <message>
        <source>No key yet. Set one up to be let in by the remote Mac.</source>
        <translation>Noch kein Schlüssel. Einen einrichten, damit der entfernte Mac dieses Programm einlässt.</translation>
    </message>
    <message>
        <source>Key made. Fill in host name and user to have it accepted.</source>
        <translation>Schlüssel erzeugt. Hostname und Benutzer eintragen, damit er angenommen werden kann.</translation>
    </message>
    <message>
        <source>Key made. The remote Mac has not been asked yet.</source>
        <translation>Schlüssel erzeugt. Der entfernte Mac wurde noch nicht gefragt.</translation>
    </message>
    <message>
        <source>Asking the remote Mac…</source>
        <translation>Der entfernte Mac wird gefragt…</translation>
    </message>
    <message>
        <source>Key accepted by the remote Mac.</source>
        <translation>Der entfernte Mac nimmt den Schlüssel an.</translation>
    </message>
    <message>
        <source>Key made, not accepted by the remote Mac yet.</source>
        <translation>Schlüssel erzeugt, vom entfernten Mac noch nicht angenommen.</translation>
    </message>
    <message>
        <source>Key made. The remote Mac is not on the network right now.</source>
        <translation>Schlüssel erzeugt. Der entfernte Mac ist gerade nicht im Netzwerk.</translation>
    </message>
    <message>
        <source>%1 was not written by Kelvo Mirror and is left alone. Move it away to switch this on here.</source>
        <translation>%1 stammt nicht von Kelvo Mirror und bleibt unberührt. Zum Einschalten an dieser Stelle die Datei wegbewegen.</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2</source>
        <translation>%1 lässt sich nicht ändern: %2</translation>
    </message>
    <message>
        <source>Kelvo Mirror is well again</source>
        <translation>Kelvo Mirror läuft wieder</translation>
    </message>
    <message>
        <source>The last pass went well: %1.</source>
        <translation>Der letzte Durchgang ging gut: %1.</translation>
    </message>
    <message>
        <source>Kelvo Mirror is in trouble</source>
        <translation>Kelvo Mirror hat eine Störung</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new movies</source>
        <translation>
            <numerusform>%Ln neuer Film</numerusform>
            <numerusform>%Ln neue Filme</numerusform>
        </translation>
    </message>
    <message>
        <source>All is well.</source>
        <translation>Alles in Ordnung.</translation>
    </message>
    <message>
        <source>No Mac answers to this name on the network.</source>
        <translation>Im Netzwerk meldet sich kein Mac unter diesem Namen.</translation>
    </message>
    <message>
        <source>No Mac answers to this name on the network since %1.</source>
        <translation>Im Netzwerk meldet sich seit %1 kein Mac unter diesem Namen.</translation>
    </message>
    <message>
        <source>Check the host name, and that the Mac is switched on and in this network.</source>
        <translation>Hostnamen prüfen, und ob der Mac eingeschaltet und in diesem Netzwerk ist.</translation>
    </message>
    <message>
        <source>The Mac is away or asleep.</source>
        <translation>Der Mac ist weg oder im Ruhezustand.</translation>
    </message>
    <message>
        <source>The Mac is away or asleep since %1.</source>
        <translation>Der Mac ist seit %1 weg oder im Ruhezustand.</translation>
    </message>
    <message>
        <source>Wake the Mac; in its energy settings, let it wake for network access.</source>
        <translation>Den Mac aufwecken; in seinen Energieeinstellungen den Ruhezustand bei Netzwerkzugriff beenden lassen.</translation>
    </message>
    <message>
        <source>The Mac is there but refuses logins.</source>
        <translation>Der Mac ist da, lässt aber keine Anmeldung zu.</translation>
    </message>
    <message>
        <source>The Mac is there but refuses logins since %1.</source>
        <translation>Der Mac ist da, lässt aber seit %1 keine Anmeldung zu.</translation>
    </message>
    <message>
        <source>On the Mac, switch on Remote Login (System Settings, General, Sharing).</source>
        <translation>Auf dem Mac „Entfernte Anmeldung“ einschalten (Systemeinstellungen, Allgemein, Teilen).</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before.</source>
        <translation>Dieser Computer kennt den Mac noch nicht.</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before since %1.</source>
        <translation>Dieser Computer kennt den Mac noch nicht (seit %1).</translation>
    </message>
    <message>
        <source>Log in once with ssh in a terminal and accept the Mac&apos;s key.</source>
        <translation>Sich einmal in einem Terminal mit ssh anmelden und den Schlüssel des Macs annehmen.</translation>
    </message>
    <message>
        <source>The Mac shows another key than before: it was set up anew, or another machine has taken its name.</source>
        <translation>Der Mac zeigt einen anderen Schlüssel als zuvor: Er wurde neu eingerichtet, oder ein anderer Computer hat seinen Namen übernommen.</translation>
    </message>
    <message>
        <source>The Mac shows another key than before since %1: it was set up anew, or another machine has taken its name.</source>
        <translation>Der Mac zeigt seit %1 einen anderen Schlüssel als zuvor: Er wurde neu eingerichtet, oder ein anderer Computer hat seinen Namen übernommen.</translation>
    </message>
    <message>
        <source>If you know why, remove the old key with ssh-keygen -R and the host name, then accept the new one.</source>
        <translation>Wenn der Grund bekannt ist, den alten Schlüssel mit ssh-keygen -R und dem Hostnamen entfernen und dann den neuen annehmen.</translation>
    </message>
    <message>
        <source>The Mac does not take this key for this user.</source>
        <translation>Der Mac nimmt diesen Schlüssel für diesen Benutzer nicht an.</translation>
    </message>
    <message>
        <source>The Mac does not take this key for this user since %1.</source>
        <translation>Der Mac nimmt seit %1 diesen Schlüssel für diesen Benutzer nicht an.</translation>
    </message>
    <message>
        <source>Check the user name, then install the key on the Mac again.</source>
        <translation>Benutzernamen prüfen, dann den Schlüssel erneut auf dem Mac hinterlegen.</translation>
    </message>
    <message>
        <source>The program&apos;s own ssh key is missing here.</source>
        <translation>Der eigene ssh-Schlüssel des Programms fehlt hier.</translation>
    </message>
    <message>
        <source>The program&apos;s own ssh key is missing here since %1.</source>
        <translation>Der eigene ssh-Schlüssel des Programms fehlt hier seit %1.</translation>
    </message>
    <message>
        <source>Make the key and install it on the Mac.</source>
        <translation>Den Schlüssel erzeugen und auf dem Mac hinterlegen.</translation>
    </message>
    <message>
        <source>The Mac calls this user by another name.</source>
        <translation>Auf dem Mac heißt dieser Benutzer anders.</translation>
    </message>
    <message>
        <source>The Mac calls this user by another name since %1.</source>
        <translation>Auf dem Mac heißt dieser Benutzer seit %1 anders.</translation>
    </message>
    <message>
        <source>Enter the account name that whoami prints on the Mac.</source>
        <translation>Den Kontonamen eintragen, den whoami auf dem Mac ausgibt.</translation>
    </message>
    <message>
        <source>The Mac prints a text at each login, which hides its answer.</source>
        <translation>Der Mac gibt bei jeder Anmeldung einen Text aus, der seine Antwort verdeckt.</translation>
    </message>
    <message>
        <source>The Mac prints a text at each login since %1, which hides its answer.</source>
        <translation>Der Mac gibt seit %1 bei jeder Anmeldung einen Text aus, der seine Antwort verdeckt.</translation>
    </message>
    <message>
        <source>On the Mac, remove what the shell&apos;s start file (.zshenv, .bashrc) prints.</source>
        <translation>Auf dem Mac entfernen, was die Startdatei der Shell (.zshenv, .bashrc) ausgibt.</translation>
    </message>
    <message>
        <source>There is no rsync on the Mac.</source>
        <translation>Auf dem Mac gibt es kein rsync.</translation>
    </message>
    <message>
        <source>There is no rsync on the Mac since %1.</source>
        <translation>Auf dem Mac gibt es seit %1 kein rsync.</translation>
    </message>
    <message>
        <source>Install rsync on the Mac, or give its place in the template with --rsync-path.</source>
        <translation>rsync auf dem Mac installieren oder seinen Ort in der Vorlage mit --rsync-path angeben.</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for an option of the template.</source>
        <translation>Das rsync auf dem Mac ist zu alt für eine Option der Vorlage.</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for an option of the template since %1.</source>
        <translation>Das rsync auf dem Mac ist seit %1 zu alt für eine Option der Vorlage.</translation>
    </message>
    <message>
        <source>Update rsync on the Mac, or take the option out of the template.</source>
        <translation>rsync auf dem Mac aktualisieren oder die Option aus der Vorlage nehmen.</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for the built-in movie command: only what the template takes has arrived.</source>
        <translation>Das rsync auf dem Mac ist zu alt für den eingebauten Filmbefehl: Angekommen ist nur, was die Vorlage nimmt.</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for the built-in movie command since %1: only what the template takes has arrived.</source>
        <translation>Das rsync auf dem Mac ist seit %1 zu alt für den eingebauten Filmbefehl: Angekommen ist nur, was die Vorlage nimmt.</translation>
    </message>
    <message>
        <source>Update rsync on the Mac, or let the template take every movie: without filters, and with -r.</source>
        <translation>rsync auf dem Mac aktualisieren oder die Vorlage jeden Film nehmen lassen: ohne Filter und mit -r.</translation>
    </message>
    <message>
        <source>The source folder is not there.</source>
        <translation>Der Quellordner ist nicht da.</translation>
    </message>
    <message>
        <source>The source folder is not there since %1.</source>
        <translation>Der Quellordner ist seit %1 nicht da.</translation>
    </message>
    <message>
        <source>Check the remote path, and that the disk with it is connected.</source>
        <translation>Den entfernten Pfad prüfen, und ob der Datenträger dazu angeschlossen ist.</translation>
    </message>
    <message>
        <source>A source folder may not be read.</source>
        <translation>Ein Quellordner darf nicht gelesen werden.</translation>
    </message>
    <message>
        <source>A source folder may not be read since %1.</source>
        <translation>Ein Quellordner darf seit %1 nicht gelesen werden.</translation>
    </message>
    <message>
        <source>On the Mac, allow full disk access for remote users (in Remote Login), or change the folder&apos;s permissions.</source>
        <translation>Auf dem Mac den Festplattenvollzugriff für entfernte Benutzer erlauben (unter „Entfernte Anmeldung“) oder die Rechte des Ordners ändern.</translation>
    </message>
    <message>
        <source>The disk here is full.</source>
        <translation>Der Datenträger hier ist voll.</translation>
    </message>
    <message>
        <source>The disk here is full since %1.</source>
        <translation>Der Datenträger hier ist seit %1 voll.</translation>
    </message>
    <message>
        <source>Make room on the disk of the destination folder.</source>
        <translation>Auf dem Datenträger des Zielordners Platz schaffen.</translation>
    </message>
    <message>
        <source>The destination folder is missing or cannot be written since %1.</source>
        <translation>Der Zielordner fehlt seit %1 oder ist nicht beschreibbar.</translation>
    </message>
    <message>
        <source>Connect its disk, or choose another destination folder.</source>
        <translation>Seinen Datenträger anschließen oder einen anderen Zielordner wählen.</translation>
    </message>
    <message>
        <source>Another program is pulling into this folder.</source>
        <translation>Ein anderes Programm holt Dateien in diesen Ordner.</translation>
    </message>
    <message>
        <source>Another program is pulling into this folder since %1.</source>
        <translation>Ein anderes Programm holt seit %1 Dateien in diesen Ordner.</translation>
    </message>
    <message>
        <source>Give each program a destination folder of its own, or end the other one.</source>
        <translation>Jedem Programm einen eigenen Zielordner geben oder das andere beenden.</translation>
    </message>
    <message>
        <source>A command of the pass is not installed here.</source>
        <translation>Ein Befehl des Durchgangs ist hier nicht installiert.</translation>
    </message>
    <message>
        <source>A command of the pass is not installed here since %1.</source>
        <translation>Ein Befehl des Durchgangs ist hier seit %1 nicht installiert.</translation>
    </message>
    <message>
        <source>Install rsync and ssh on this machine, or correct the command template.</source>
        <translation>rsync und ssh auf diesem Computer installieren oder die Befehlsvorlage berichtigen.</translation>
    </message>
    <message>
        <source>The command template cannot be run.</source>
        <translation>Die Befehlsvorlage lässt sich nicht ausführen.</translation>
    </message>
    <message>
        <source>The command template cannot be run since %1.</source>
        <translation>Die Befehlsvorlage lässt sich seit %1 nicht ausführen.</translation>
    </message>
    <message>
        <source>Correct the rsync command template in the settings.</source>
        <translation>Die rsync-Befehlsvorlage in den Einstellungen berichtigen.</translation>
    </message>
    <message>
        <source>Some files vanished from the source while they were copied.</source>
        <translation>Einige Dateien verschwanden beim Kopieren aus der Quelle.</translation>
    </message>
    <message>
        <source>Nothing: the next pass brings what is there then.</source>
        <translation>Nichts: Der nächste Durchgang bringt, was dann da ist.</translation>
    </message>
    <message>
        <source>Some files could not be taken.</source>
        <translation>Einige Dateien konnten nicht geholt werden.</translation>
    </message>
    <message>
        <source>Some files could not be taken since %1.</source>
        <translation>Einige Dateien können seit %1 nicht geholt werden.</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for their names and reasons.</source>
        <translation>Namen und Gründe stehen im Text des Durchgangs.</translation>
    </message>
    <message>
        <source>The connection gave way in the middle of the transfer.</source>
        <translation>Die Verbindung brach mitten in der Übertragung ab.</translation>
    </message>
    <message>
        <source>The connection gave way in the middle of the transfer since %1.</source>
        <translation>Die Verbindung bricht seit %1 mitten in der Übertragung ab.</translation>
    </message>
    <message>
        <source>Check the network; the next pass goes on where this one stopped.</source>
        <translation>Das Netzwerk prüfen; der nächste Durchgang macht weiter, wo dieser aufhörte.</translation>
    </message>
    <message>
        <source>The pass cannot run: a folder, the host or the user is not set.</source>
        <translation>Der Durchgang kann nicht laufen: Ein Ordner, der Host oder der Benutzer ist nicht eingestellt.</translation>
    </message>
    <message>
        <source>The pass cannot run since %1: a folder, the host or the user is not set.</source>
        <translation>Der Durchgang kann seit %1 nicht laufen: Ein Ordner, der Host oder der Benutzer ist nicht eingestellt.</translation>
    </message>
    <message>
        <source>Choose the Mac, the user name and both folders.</source>
        <translation>Den Mac, den Benutzernamen und beide Ordner wählen.</translation>
    </message>
    <message>
        <source>The pass was not begun: a text in the settings cannot stand in a command.</source>
        <translation>Der Durchgang wurde nicht begonnen: Ein Text in den Einstellungen kann nicht in einem Befehl stehen.</translation>
    </message>
    <message>
        <source>The pass was not begun since %1: a text in the settings cannot stand in a command.</source>
        <translation>Der Durchgang wird seit %1 nicht begonnen: Ein Text in den Einstellungen kann nicht in einem Befehl stehen.</translation>
    </message>
    <message>
        <source>Choose another folder, user name or host: without a line break, and no &quot;-&quot; in front.</source>
        <translation>Einen anderen Ordner, Benutzernamen oder Host wählen: ohne Zeilenumbruch und ohne „-“ am Anfang.</translation>
    </message>
    <message>
        <source>The program was ended during the pass.</source>
        <translation>Das Programm wurde während des Durchgangs beendet.</translation>
    </message>
    <message>
        <source>Nothing: start it again.</source>
        <translation>Nichts: das Programm wieder starten.</translation>
    </message>
    <message>
        <source>Cancelled by you.</source>
        <translation>Von Hand abgebrochen.</translation>
    </message>
    <message>
        <source>Nothing: the next pass goes on where this one stopped.</source>
        <translation>Nichts: Der nächste Durchgang macht weiter, wo dieser aufhörte.</translation>
    </message>
    <message>
        <source>The files have arrived, but the command that is run after arrivals failed.</source>
        <translation>Die Dateien sind angekommen, aber der Befehl nach der Ankunft ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The files have arrived, but the command that is run after arrivals failed since %1.</source>
        <translation>Die Dateien sind angekommen, aber der Befehl nach der Ankunft schlägt seit %1 fehl.</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for what it said, or correct it in the settings.</source>
        <translation>Im Text des Durchgangs steht, was er gesagt hat; oder ihn in den Einstellungen berichtigen.</translation>
    </message>
    <message>
        <source>Something went wrong.</source>
        <translation>Etwas ging schief.</translation>
    </message>
    <message>
        <source>Something went wrong since %1.</source>
        <translation>Etwas geht seit %1 schief.</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for what the commands said.</source>
        <translation>Im Text des Durchgangs steht, was die Befehle gesagt haben.</translation>
    </message>
    <message>
        <source>The last line was: %1</source>
        <translation>Die letzte Zeile war: %1</translation>
    </message>
    <message>
        <source>The reason: %1.</source>
        <translation>Der Grund: %1.</translation>
    </message>
    <message>
        <source>files unknown</source>
        <translation>Dateien unbekannt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln Datei</numerusform>
            <numerusform>%Ln Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>no transfer</source>
        <translation>keine Übertragung</translation>
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
        <translation>gerade eben</translation>
    </message>
    <message numerus="yes">
        <source>%Ln minutes ago</source>
        <translation>
            <numerusform>vor %Ln Minute</numerusform>
            <numerusform>vor %Ln Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hours ago</source>
        <translation>
            <numerusform>vor %Ln Stunde</numerusform>
            <numerusform>vor %Ln Stunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days ago</source>
        <translation>
            <numerusform>vor %Ln Tag</numerusform>
            <numerusform>vor %Ln Tagen</numerusform>
        </translation>
    </message>
    <message>
        <source>Reveal In Finder</source>
        <translation>Im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>path:
%1</source>
        <translation>Pfad:
%1</translation>
    </message>
    <message>
        <source>Stop Syncing</source>
        <translation>Synchronisierung anhalten</translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation>Synchronisierung starten</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Befehl kopieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>No Terminal Found</source>
        <translation>Kein Terminal gefunden</translation>
    </message>
    <message>
        <source>Please run this command in a terminal and answer what it asks:

%1</source>
        <translation>Bitte diesen Befehl in einem Terminal ausführen und seine Fragen beantworten:

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
        <translation>Synchronisierung ist aus</translation>
    </message>
    <message>
        <source>Waiting for what is missing</source>
        <translation>Warten auf das, was fehlt</translation>
    </message>
    <message>
        <source>Finishing this pass…</source>
        <translation>Dieser Durchgang wird beendet…</translation>
    </message>
    <message>
        <source>Cancelling this pass…</source>
        <translation>Dieser Durchgang wird abgebrochen…</translation>
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
        <translation>Synchronisiert: der Mac wird gefragt</translation>
    </message>
    <message>
        <source>Syncing: first pull</source>
        <translation>Synchronisiert: erster Abruf</translation>
    </message>
    <message>
        <source>Syncing: copying</source>
        <translation>Synchronisiert: kopiert</translation>
    </message>
    <message>
        <source>Syncing: movies</source>
        <translation>Synchronisiert: Filme</translation>
    </message>
    <message>
        <source>Syncing: after arrivals</source>
        <translation>Synchronisiert: nach der Ankunft</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Synchronisiert</translation>
    </message>
    <message>
        <source>a few seconds</source>
        <translation>ein paar Sekunden</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>etwa %1</translation>
    </message>
    <message>
        <source>Asking the Mac</source>
        <translation>Der Mac wird gefragt</translation>
    </message>
    <message>
        <source>First pull</source>
        <translation>Erster Abruf</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Filme</translation>
    </message>
    <message>
        <source>After arrivals</source>
        <translation>Nach der Ankunft</translation>
    </message>
    <message>
        <source>file %L1 of %L2</source>
        <translation>Datei %L1 von %L2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>as in: 18.2 of 37.6 GB</comment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>as in: 92.0 MB/s</comment>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>Next pass in %1</source>
        <translation>Nächster Durchgang in %1</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synchronisiert: %1</translation>
    </message>
    <message>
        <source>Syncing: %1, %2</source>
        <translation>Synchronisiert: %1, %2</translation>
    </message>
    <message>
        <source>All is well, next pass in %1</source>
        <translation>Alles in Ordnung, nächster Durchgang in %1</translation>
    </message>
    <message>
        <source>All is well</source>
        <translation>Alles in Ordnung</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>two movies</comment>
        <translation>%1 und %2</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 and %Ln more</source>
        <translation>
            <numerusform>%1, %2 und %Ln weiterer</numerusform>
            <numerusform>%1, %2 und %Ln weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>… 1 byte left out …</source>
        <translation>… 1 Byte ausgelassen …</translation>
    </message>
    <message>
        <source>Make a new key?</source>
        <translation>Neuen Schlüssel erzeugen?</translation>
    </message>
    <message>
        <source>The Mac will not let Kelvo Mirror in until the new key is installed there with Set Up Key…, which asks for the password on the Mac. Until then no pass brings movies.

The key of today is kept beside the new one, under a name with the date, and is not used any more.</source>
        <translation>Der Mac lässt Kelvo Mirror erst wieder ein, wenn der neue Schlüssel dort mit „Schlüssel einrichten…“ hinterlegt ist; dabei wird nach dem Passwort auf dem Mac gefragt. Bis dahin bringt kein Durchgang Filme.

Der bisherige Schlüssel bleibt neben dem neuen erhalten, unter einem Namen mit dem Datum, und wird nicht mehr verwendet.</translation>
    </message>
    <message>
        <source>Make a New Key</source>
        <translation>Neuen Schlüssel erzeugen</translation>
    </message>
    <message>
        <source>Keep the Key</source>
        <translation>Schlüssel behalten</translation>
    </message>
    <message>
        <source>The key was not replaced</source>
        <translation>Der Schlüssel wurde nicht ersetzt</translation>
    </message>
    <message>
        <source>The key of today could not be kept, so nothing was changed.

%1</source>
        <translation>Der bisherige Schlüssel konnte nicht aufbewahrt werden, daher wurde nichts geändert.

%1</translation>
    </message>
    <message>
        <source>No new key was made</source>
        <translation>Es wurde kein neuer Schlüssel erzeugt</translation>
    </message>
    <message>
        <source>The key that was there before could not be put back. It lies at %1.

%2</source>
        <translation>Der vorherige Schlüssel konnte nicht an seinen Platz zurückgelegt werden. Er liegt unter %1.

%2</translation>
    </message>
    <message>
        <source>The key that was there before is in its place again.</source>
        <translation>Der vorherige Schlüssel ist wieder an seinem Platz.</translation>
    </message>
    <message>
        <source>No Mac chosen yet.</source>
        <translation>Noch kein Mac gewählt.</translation>
    </message>
    <message>
        <source>Choose the Mac from the list of those in this network, or type its host name.</source>
        <translation>Den Mac aus der Liste der Macs in diesem Netzwerk auswählen oder seinen Hostnamen eintragen.</translation>
    </message>
    <message>
        <source>%1, folder %2</source>
        <translation>%1, Ordner %2</translation>
    </message>
    <message>
        <source>An account on the Mac that may log in there, and the folder with the movies.</source>
        <translation>Ein Konto auf dem Mac, das sich dort anmelden darf, und der Ordner mit den Filmen.</translation>
    </message>
    <message>
        <source>Key made, and accepted by the remote Mac before.</source>
        <translation>Schlüssel erzeugt und vom entfernten Mac schon einmal angenommen.</translation>
    </message>
    <message>
        <source>Key made. The remote Mac could not be asked about it.</source>
        <translation>Schlüssel erzeugt. Der entfernte Mac konnte nicht danach gefragt werden.</translation>
    </message>
    <message>
        <source>The key is installed on the Mac, so choose that and enter the account first.</source>
        <translation>Der Schlüssel wird auf dem Mac hinterlegt, daher zuerst den Mac auswählen und das Konto eintragen.</translation>
    </message>
    <message>
        <source>A terminal opens and asks for the password of %1 on %2; it is typed there and kept nowhere. When the two machines meet for the first time it asks before that whether to go on connecting: answer yes.</source>
        <translation>Es öffnet sich ein Terminal, das nach dem Passwort von %1 auf %2 fragt; es wird dort eingegeben und nirgends gespeichert. Begegnen sich die beiden Computer zum ersten Mal, fragt das Terminal zuvor, ob die Verbindung fortgesetzt werden soll: mit yes antworten.</translation>
    </message>
    <message>
        <source>The Mac lets this program in.</source>
        <translation>Der Mac lässt dieses Programm ein.</translation>
    </message>
    <message>
        <source>ssh is not installed on this machine. Install it with: %1</source>
        <translation>ssh ist auf diesem Computer nicht installiert. Installieren mit: %1</translation>
    </message>
    <message>
        <source>The Mac was not asked, because %1.</source>
        <translation>Der Mac wurde nicht gefragt, denn %1.</translation>
    </message>
    <message>
        <source>The Mac was not reached, or did not say a word. Test it once more, or log in with ssh in a terminal and see what it says.</source>
        <translation>Der Mac wurde nicht erreicht oder hat nichts gesagt. Noch einmal testen oder sich in einem Terminal mit ssh anmelden und sehen, was er sagt.</translation>
    </message>
    <message>
        <source>The Mac did not answer as it should. The last line was: %1</source>
        <translation>Der Mac hat nicht geantwortet, wie er sollte. Die letzte Zeile war: %1</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before. Set up the key: the terminal asks whether to trust the Mac.</source>
        <translation>Dieser Computer kennt den Mac noch nicht. Den Schlüssel einrichten: Das Terminal fragt, ob dem Mac vertraut werden soll.</translation>
    </message>
    <message>
        <source>The Mac does not let this program in yet.</source>
        <translation>Der Mac lässt dieses Programm noch nicht ein.</translation>
    </message>
    <message>
        <source>Not tried yet.</source>
        <translation>Noch nicht versucht.</translation>
    </message>
    <message>
        <source>Asked at %1.</source>
        <translation>Zuletzt gefragt: %1.</translation>
    </message>
    <message>
        <source>The message &quot;SUCCESS...&quot; only means that ssh named neither a missing key file nor an unknown host name; this line says what came of it.</source>
        <translation>Die Meldung „ERFOLG...“ bedeutet nur, dass ssh weder eine fehlende Schlüsseldatei noch einen unbekannten Hostnamen gemeldet hat; was dabei herauskam, sagt diese Zeile.</translation>
    </message>
    <message>
        <source>Kelvo Mirror: the password of %1 on %2</source>
        <translation>Kelvo Mirror: Passwort von %1 auf %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Macs found.</source>
        <translation>
            <numerusform>%Ln Mac gefunden.</numerusform>
            <numerusform>%Ln Macs gefunden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its icon in the tray brings the window back; the icon&apos;s menu ends the program.</source>
        <translation>Das Symbol im Infobereich bringt das Fenster zurück; sein Menü beendet das Programm.</translation>
    </message>
</context>
<context>
    <name>kelvo::ApplicationMenu</name>
    <message>
        <source>Application menu</source>
        <translation>Programmmenü</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>Fenster &amp;schließen</translation>
    </message>
    <message>
        <source>Quit and &amp;Relaunch</source>
        <translation>Beenden und &amp;neu starten</translation>
    </message>
    <message>
        <source>Ends the program and starts it again</source>
        <translation>Beendet das Programm und startet es wieder</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Passes</source>
        <translation>D&amp;urchgänge</translation>
    </message>
    <message>
        <source>&amp;Start Syncing</source>
        <translation>Synchronisierung &amp;starten</translation>
    </message>
    <message>
        <source>Switches syncing on and off</source>
        <translation>Schaltet die Synchronisierung ein und aus</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>&amp;Jetzt synchronisieren</translation>
    </message>
    <message>
        <source>Begins the next pass now</source>
        <translation>Beginnt den nächsten Durchgang sofort</translation>
    </message>
    <message>
        <source>&amp;Cancel This Pass</source>
        <translation>Durchgang abbre&amp;chen</translation>
    </message>
    <message>
        <source>Ends the pass that runs; what it has begun to copy is kept for the next one</source>
        <translation>Beendet den laufenden Durchgang; was er zu kopieren begonnen hat, bleibt für den nächsten erhalten</translation>
    </message>
    <message>
        <source>&amp;Stop Syncing</source>
        <translation>Synchronisierung an&amp;halten</translation>
    </message>
    <message>
        <source>&amp;Tray</source>
        <translation>&amp;Infobereich</translation>
    </message>
    <message>
        <source>&amp;Set Up Tray Icon</source>
        <translation>Symbol &amp;einrichten</translation>
    </message>
    <message>
        <source>Shows the program&apos;s icon in the tray</source>
        <translation>Zeigt das Symbol des Programms im Infobereich</translation>
    </message>
    <message>
        <source>&amp;Remove Tray Icon</source>
        <translation>Symbol en&amp;tfernen</translation>
    </message>
    <message>
        <source>Takes the icon out of the tray; the program keeps running</source>
        <translation>Nimmt das Symbol aus dem Infobereich; das Programm läuft weiter</translation>
    </message>
    <message>
        <source>Remove Tray Icon as &amp;Before a Relaunch</source>
        <translation>Symbol wie &amp;vor einem Neustart entfernen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Open &amp;Log Folder</source>
        <translation>&amp;Protokollordner öffnen</translation>
    </message>
    <message>
        <source>&amp;About Kelvo Mirror</source>
        <translation>Ü&amp;ber Kelvo Mirror</translation>
    </message>
    <message>
        <source>Syncing is off</source>
        <translation>Synchronisierung ist aus</translation>
    </message>
    <message>
        <source>A pass begins as soon as nothing is missing</source>
        <translation>Ein Durchgang beginnt, sobald nichts mehr fehlt</translation>
    </message>
    <message>
        <source>A pass runs already</source>
        <translation>Es läuft bereits ein Durchgang</translation>
    </message>
    <message>
        <source>The next pass begins in a moment</source>
        <translation>Der nächste Durchgang beginnt gleich</translation>
    </message>
    <message>
        <source>The pass is being cancelled already</source>
        <translation>Der Durchgang wird bereits abgebrochen</translation>
    </message>
    <message>
        <source>No pass runs</source>
        <translation>Es läuft kein Durchgang</translation>
    </message>
    <message>
        <source>The icon is in the tray already</source>
        <translation>Das Symbol ist bereits im Infobereich</translation>
    </message>
    <message>
        <source>The icon appears as soon as the desktop has a tray for it</source>
        <translation>Das Symbol erscheint, sobald der Desktop einen Infobereich dafür hat</translation>
    </message>
    <message>
        <source>The icon is not in the tray</source>
        <translation>Das Symbol ist nicht im Infobereich</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>&amp;Diagnose</translation>
    </message>
    <message>
        <source>A tab and menu entries for finding out why something does not work</source>
        <translation>Eine Seite und Menüeinträge, mit denen sich herausfinden lässt, warum etwas nicht funktioniert</translation>
    </message>
    <message>
        <source>Takes the icon out of the tray as Quit and Relaunch does; the program keeps running</source>
        <translation>Nimmt das Symbol aus dem Infobereich wie „Beenden und neu starten“; das Programm läuft weiter</translation>
    </message>
    <message>
        <source>Start Again After a &amp;Crash</source>
        <translation>Nach einem &amp;Absturz neu starten</translation>
    </message>
    <message>
        <source>Has the program started again should it crash; each start does this by itself</source>
        <translation>Sorgt dafür, dass das Programm nach einem Absturz wieder startet; jeder Start tut dies von selbst</translation>
    </message>
    <message>
        <source>&amp;Another Mac…</source>
        <translation>&amp;Weiterer Mac …</translation>
    </message>
    <message>
        <source>Opens a window of its own for one more Mac</source>
        <translation>Öffnet ein eigenes Fenster für einen weiteren Mac</translation>
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
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
</context>
<context>
    <name>kelvo::ArrivalsView</name>
    <message>
        <source>not there any more</source>
        <translation>nicht mehr da</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Reveal</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation>Pfad &amp;kopieren</translation>
    </message>
    <message>
        <source>Nothing has arrived yet.

The movies that a pass brings will stand here.</source>
        <translation>Noch ist nichts angekommen.

Die Filme, die ein Durchgang bringt, werden hier stehen.</translation>
    </message>
    <message>
        <source>No movie with this text in its path has arrived.</source>
        <translation>Kein Film mit diesem Text im Pfad ist angekommen.</translation>
    </message>
    <message>
        <source>its name is not UTF-8</source>
        <translation>sein Name ist kein UTF-8</translation>
    </message>
</context>
<context>
    <name>kelvo::BonjourSheet</name>
    <message>
        <source>Discovery is not installed on this computer. Install it with:

%1

The list fills by itself once discovery runs. Without it, type the Mac&apos;s host name on the Remote Mac tab.</source>
        <translation>Die Netzwerksuche ist auf diesem Computer nicht installiert. Installieren mit:

%1

Die Liste füllt sich von selbst, sobald die Netzwerksuche läuft. Ohne sie den Hostnamen des Macs auf der Seite „Entfernter Mac“ eintragen.</translation>
    </message>
    <message>
        <source>Discovery is not running on this computer. Start it with:

%1

The list fills by itself once discovery runs. Without it, type the Mac&apos;s host name on the Remote Mac tab.</source>
        <translation>Die Netzwerksuche läuft auf diesem Computer nicht. Starten mit:

%1

Die Liste füllt sich von selbst, sobald die Netzwerksuche läuft. Ohne sie den Hostnamen des Macs auf der Seite „Entfernter Mac“ eintragen.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.

Connect it to the network of the Mac. Then choose Rescan.</source>
        <translation>Dieser Computer ist mit keinem Netzwerk verbunden.

Ihn mit dem Netzwerk des Macs verbinden. Dann „Erneut suchen“ wählen.</translation>
    </message>
    <message>
        <source>No Mac has answered yet.

Discovery has only just started; the search goes on.</source>
        <translation>Noch hat kein Mac geantwortet.

Die Netzwerksuche ist gerade erst gestartet; es wird weiter gesucht.</translation>
    </message>
    <message>
        <source>No Mac was found.

On the Mac, open System Settings, General, Sharing, and check that File Sharing and Remote Login are on.
Check that both computers are on the same network.
Then choose Rescan.

The Mac&apos;s host name can also be typed on the Remote Mac tab.</source>
        <translation>Es wurde kein Mac gefunden.

Auf dem Mac Systemeinstellungen, Allgemein, Teilen öffnen und prüfen, ob „Dateifreigabe“ und „Entfernte Anmeldung“ eingeschaltet sind.
Prüfen, ob beide Computer im selben Netzwerk sind.
Dann „Erneut suchen“ wählen.

Der Hostname des Macs kann auch auf der Seite „Entfernter Mac“ eingetragen werden.</translation>
    </message>
</context>
<context>
    <name>kelvo::BusNotices</name>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
</context>
<context>
    <name>kelvo::BusyRow</name>
    <message>
        <source>Cance&amp;l</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>In Arbeit</translation>
    </message>
    <message>
        <source>Ends what the program is doing for this tab</source>
        <translation>Beendet, was das Programm gerade für diese Seite tut</translation>
    </message>
    <message>
        <source>Opening the remote folder…</source>
        <translation>Der entfernte Ordner wird geöffnet…</translation>
    </message>
    <message>
        <source>Setting up the key…</source>
        <translation>Der Schlüssel wird eingerichtet…</translation>
    </message>
    <message>
        <source>Making a new key…</source>
        <translation>Ein neuer Schlüssel wird erzeugt…</translation>
    </message>
    <message>
        <source>Being cancelled…</source>
        <translation>Wird abgebrochen…</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>Finished.</source>
        <translation>Fertig.</translation>
    </message>
</context>
<context>
    <name>kelvo::ChecklistView</name>
    <message>
        <source>What is missing before a pass</source>
        <translation>Was vor einem Durchgang fehlt</translation>
    </message>
    <message>
        <source>Next step</source>
        <translation>Nächster Schritt</translation>
    </message>
</context>
<context>
    <name>kelvo::DayChart</name>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Filme</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>Störung</translation>
    </message>
    <message>
        <source>in trouble</source>
        <translation>mit Störung</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a day, what came on it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing has arrived. The arrow keys go from day to day.</source>
        <translation>Nichts ist angekommen. Die Pfeiltasten führen von Tag zu Tag.</translation>
    </message>
    <message>
        <source>%1. The most came on this day: %2, %3. The arrow keys go from day to day.</source>
        <translation>%1. Das meiste kam an diesem Tag: %2, %3. Die Pfeiltasten führen von Tag zu Tag.</translation>
    </message>
</context>
<context>
    <name>kelvo::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Ein&amp;fügen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>A&amp;lles auswählen</translation>
    </message>
</context>
<context>
    <name>kelvo::ElidedLabel</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>kelvo::HealthView</name>
    <message>
        <source>All is well</source>
        <translation>Alles in Ordnung</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>Störung</translation>
    </message>
    <message>
        <source>Not known yet</source>
        <translation>Noch nicht bekannt</translation>
    </message>
    <message>
        <source>Next step</source>
        <translation>Nächster Schritt</translation>
    </message>
    <message>
        <source>Does the next step</source>
        <translation>Führt den nächsten Schritt aus</translation>
    </message>
    <message>
        <source>How the last pass went will stand here.</source>
        <translation>Wie der letzte Durchgang ausging, wird hier stehen.</translation>
    </message>
</context>
<context>
    <name>kelvo::MainWindow</name>
    <message>
        <source>Sync</source>
        <translation>Synchronisieren</translation>
    </message>
    <message>
        <source>Remote Mac</source>
        <translation>Entfernter Mac</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnose</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Aktivität</translation>
    </message>
</context>
<context>
    <name>kelvo::PassRows</name>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Dauer</translation>
    </message>
</context>
<context>
    <name>kelvo::PassesView</name>
    <message>
        <source>Export passes</source>
        <translation>Durchgänge exportieren</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Kommagetrennte Werte (*.csv)</translation>
    </message>
    <message>
        <source>Not written: %1</source>
        <translation>Nicht geschrieben: %1</translation>
    </message>
</context>
<context>
    <name>kelvo::PathControlView</name>
    <message>
        <source>Folders above</source>
        <translation>Übergeordnete Ordner</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
</context>
<context>
    <name>kelvo::ProfilesSheet</name>
    <message>
        <source>Without a name</source>
        <translation>Ohne Namen</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Noch keiner</translation>
    </message>
    <message>
        <source>This window</source>
        <translation>Dieses Fenster</translation>
    </message>
    <message>
        <source>Running, in trouble</source>
        <translation>Läuft, mit Störung</translation>
    </message>
    <message>
        <source>Not running, in trouble</source>
        <translation>Läuft nicht, mit Störung</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Not running</source>
        <translation>Läuft nicht</translation>
    </message>
    <message>
        <source>A name has 1 to 64 letters (A to Z), digits, “-” and “_”, and no blank.</source>
        <translation>Ein Name hat 1 bis 64 Buchstaben (A bis Z), Ziffern, „-“ und „_“ und kein Leerzeichen.</translation>
    </message>
    <message>
        <source>No window could be opened: %1</source>
        <translation>Es ließ sich kein Fenster öffnen: %1</translation>
    </message>
</context>
<context>
    <name>kelvo::ProgressView</name>
    <message>
        <source>Progress of the pass</source>
        <translation>Fortschritt des Durchgangs</translation>
    </message>
    <message>
        <source>The movie that is being copied will stand here.</source>
        <translation>Der Film, der gerade kopiert wird, wird hier stehen.</translation>
    </message>
</context>
<context>
    <name>kelvo::RecentArrivals</name>
    <message>
        <source>Movies that have arrived will stand here, the newest first. A double click opens one.</source>
        <translation>Angekommene Filme werden hier stehen, die neuesten zuerst. Ein Doppelklick öffnet einen.</translation>
    </message>
    <message>
        <source>Movies that arrived last</source>
        <translation>Zuletzt angekommene Filme</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Angekommen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
</context>
<context>
    <name>kelvo::RemoteTab</name>
    <message>
        <source>none yet</source>
        <translation>noch keine</translation>
    </message>
</context>
<context>
    <name>kelvo::ServiceRows</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Host</translation>
    </message>
</context>
<context>
    <name>kelvo::SettingsTab</name>
    <message>
        <source>Every file that differs</source>
        <translation>Jede Datei, die abweicht</translation>
    </message>
    <message>
        <source>Only files newer than here (--update)</source>
        <translation>Nur Dateien, die neuer sind als hier (--update)</translation>
    </message>
    <message>
        <source>Only files not here yet (--ignore-existing)</source>
        <translation>Nur Dateien, die hier noch fehlen (--ignore-existing)</translation>
    </message>
    <message>
        <source>Every file that differs (stored as 105)</source>
        <translation>Jede Datei, die abweicht (gespeichert als 105)</translation>
    </message>
    <message>
        <source>Not a valid option (%1)</source>
        <translation>Keine gültige Option (%1)</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>The template lacks %@1, the source: its command does not read the source that is chosen.</source>
        <translation>Der Vorlage fehlt %@1, die Quelle: Ihr Befehl liest nicht die gewählte Quelle.</translation>
    </message>
    <message>
        <source>The template lacks %@2, the destination: its command does not fill the folder that is chosen.</source>
        <translation>Der Vorlage fehlt %@2, das Ziel: Ihr Befehl füllt nicht den gewählten Ordner.</translation>
    </message>
    <message>
        <source>The template lacks %@98, the options of ssh: its command does not use the key that was set up.</source>
        <translation>Der Vorlage fehlt %@98, die Optionen von ssh: Ihr Befehl verwendet nicht den eingerichteten Schlüssel.</translation>
    </message>
    <message>
        <source>The template lacks %@99, the option: the option that is chosen changes nothing.</source>
        <translation>Der Vorlage fehlt %@99, die Option: Die gewählte Option ändert nichts.</translation>
    </message>
    <message>
        <source>The template has a folder where its name may fall apart: passes are refused when the name holds blanks, quotes or the like.</source>
        <translation>Die Vorlage setzt einen Ordner dort ein, wo sein Name zerfallen kann: Durchgänge werden abgelehnt, wenn der Name Leerzeichen, Anführungszeichen oder Ähnliches enthält.</translation>
    </message>
    <message>
        <source>The template under Advanced is your own and is left alone: the kinds of movies are written there.</source>
        <translation>Unter „Erweitert“ steht eine eigene Vorlage, die unberührt bleibt: Die Filmformate stehen dort.</translation>
    </message>
    <message>
        <source>Movies of the kinds .mov and .mp4 always come from the remote Mac.</source>
        <translation>Filme der Formate .mov und .mp4 kommen immer vom entfernten Mac.</translation>
    </message>
    <message>
        <source>No kind is ticked: passes bring nothing.</source>
        <translation>Kein Format ist angekreuzt: Durchgänge bringen nichts.</translation>
    </message>
    <message>
        <source>The rsync command with the places %@1 source, %@2 destination, %@3 key, %@98 ssh, %@99 option</source>
        <translation>Der rsync-Befehl mit den Platzhaltern %@1 Quelle, %@2 Ziel, %@3 Schlüssel, %@98 ssh, %@99 Option</translation>
    </message>
    <message>
        <source>Back to My Template</source>
        <translation>Zurück zu meiner Vorlage</translation>
    </message>
    <message>
        <source>Back to the Factory Template</source>
        <translation>Zurück zur Standardvorlage</translation>
    </message>
    <message>
        <source>Brings back the template that the factory&apos;s took the place of</source>
        <translation>Bringt die Vorlage zurück, an deren Stelle die Standardvorlage getreten ist</translation>
    </message>
    <message>
        <source>Takes the template that Kelvo Mirror comes with; asks before it replaces one that was changed by hand</source>
        <translation>Nimmt die mitgelieferte Vorlage von Kelvo Mirror; fragt, bevor sie eine von Hand geänderte ersetzt</translation>
    </message>
    <message>
        <source>Go back to the factory template?</source>
        <translation>Zur Standardvorlage zurückkehren?</translation>
    </message>
    <message>
        <source>Your own template is replaced. “Back to My Template” brings it back until the program ends.</source>
        <translation>Die eigene Vorlage wird ersetzt. „Zurück zu meiner Vorlage“ bringt sie zurück, solange das Programm läuft.</translation>
    </message>
    <message>
        <source>Keep My Template</source>
        <translation>Meine Vorlage behalten</translation>
    </message>
</context>
<context>
    <name>kelvo::SshLineBox</name>
    <message>
        <source>%1 was not changed: %2</source>
        <translation>%1 wurde nicht geändert: %2</translation>
    </message>
    <message>
        <source>A line in %1 tells ssh of the connection.</source>
        <translation>Eine Zeile in %1 macht ssh mit der Verbindung bekannt.</translation>
    </message>
    <message>
        <source>ssh does not know of the connection yet: passes log in each time.</source>
        <translation>ssh kennt die Verbindung noch nicht: Durchgänge melden sich jedes Mal neu an.</translation>
    </message>
    <message>
        <source>Take the Line Away</source>
        <translation>Zeile entfernen</translation>
    </message>
    <message>
        <source>Tell ssh…</source>
        <translation>ssh einweisen …</translation>
    </message>
    <message>
        <source>Removes the line that Kelvo Mirror has put into your configuration of ssh</source>
        <translation>Entfernt die Zeile, die Kelvo Mirror in Ihre ssh-Konfiguration geschrieben hat</translation>
    </message>
    <message>
        <source>Shows the line that your configuration of ssh needs, and asks before it is put there</source>
        <translation>Zeigt die Zeile, die Ihre ssh-Konfiguration braucht, und fragt, bevor sie eingetragen wird</translation>
    </message>
    <message>
        <source>Tell ssh of the connection?</source>
        <translation>ssh mit der Verbindung bekannt machen?</translation>
    </message>
    <message>
        <source>This line is put at the top of %1. It concerns no commands but those of passes.
%2</source>
        <translation>Diese Zeile wird an den Anfang von %1 gesetzt. Sie betrifft nur die Befehle von Durchgängen.
%2</translation>
    </message>
    <message>
        <source>Add the Line</source>
        <translation>Zeile eintragen</translation>
    </message>
    <message>
        <source>Leave It as It Is</source>
        <translation>Nichts ändern</translation>
    </message>
</context>
<context>
    <name>kelvo::StatusFieldView</name>
    <message>
        <source>Trouble</source>
        <translation>Störung</translation>
    </message>
    <message>
        <source>What the program is doing</source>
        <translation>Was das Programm gerade tut</translation>
    </message>
</context>
<context>
    <name>kelvo::StepHead</name>
    <message>
        <source>Done</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Als Nächstes</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>Störung</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zuklappen</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>kelvo::SyncTab</name>
    <message>
        <source>No source folder chosen yet</source>
        <translation>Noch kein Quellordner gewählt</translation>
    </message>
    <message>
        <source>No destination folder chosen yet</source>
        <translation>Noch kein Zielordner gewählt</translation>
    </message>
    <message>
        <source>No remote Mac chosen yet</source>
        <translation>Noch kein entfernter Mac gewählt</translation>
    </message>
    <message>
        <source>The pass went well: %1.</source>
        <translation>Der Durchgang ging gut: %1.</translation>
    </message>
</context>
<context>
    <name>kelvo::TrayIcon</name>
    <message>
        <source>Syncing is off</source>
        <translation>Synchronisierung ist aus</translation>
    </message>
    <message>
        <source>Waiting for the next pass</source>
        <translation>Wartet auf den nächsten Durchgang</translation>
    </message>
    <message>
        <source>Syncing now</source>
        <translation>Synchronisiert gerade</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Braucht Aufmerksamkeit</translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation>Synchronisierung starten</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>&amp;Jetzt synchronisieren</translation>
    </message>
    <message>
        <source>&amp;Cancel This Pass</source>
        <translation>Durchgang abbre&amp;chen</translation>
    </message>
    <message>
        <source>Open &amp;Window</source>
        <translation>&amp;Fenster öffnen</translation>
    </message>
    <message>
        <source>&amp;Activity</source>
        <translation>&amp;Aktivität</translation>
    </message>
    <message>
        <source>Reveal &amp;Folder</source>
        <translation>&amp;Ordner zeigen</translation>
    </message>
    <message>
        <source>Quit and &amp;Relaunch</source>
        <translation>Beenden und &amp;neu starten</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>No destination folder is chosen yet</source>
        <translation>Es ist noch kein Zielordner gewählt</translation>
    </message>
</context>
<context>
    <name>sourceNotice</name>
    <message>
        <source>Choose the remote Mac on the Remote Mac tab.</source>
        <translation>Den entfernten Mac auf der Seite „Entfernter Mac“ auswählen.</translation>
    </message>
    <message>
        <source>Enter the user name on the Remote Mac tab.</source>
        <translation>Den Benutzernamen auf der Seite „Entfernter Mac“ eintragen.</translation>
    </message>
    <message>
        <source>Enter the remote folder on the Remote Mac tab.</source>
        <translation>Den entfernten Ordner auf der Seite „Entfernter Mac“ eintragen.</translation>
    </message>
    <message>
        <source>Passes still pull from the source above. The new host or folder takes effect with &quot;Use This Source Now&quot;, or else when the user name changes or the program starts again.</source>
        <translation>Durchgänge holen die Filme noch von der Quelle oben. Der neue Host oder Ordner gilt ab „Diese Quelle jetzt verwenden“, sonst sobald sich der Benutzername ändert oder das Programm wieder startet.</translation>
    </message>
</context>
</TS>
