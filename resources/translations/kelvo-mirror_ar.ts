<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>ActivityTab</name>
    <message>
        <source>&amp;Arrived</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the movies that have arrived</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;ll Passes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows every pass with its outcome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrived per day, 30 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A row for each day, oldest first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What arrived in 30 days</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ArrivalsView</name>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search what has arrived</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the movies with this text in their path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrived movies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By day, newest first; the Return key opens one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Why no movie is shown</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BonjourSheet</name>
    <message>
        <source>Choose the Remote Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computers found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Mac was found.

On the Mac, open System Settings, General, Sharing, and check that File Sharing and Remote Login are on.
Check that both computers are on the same network.
Then choose Rescan.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to check when no Mac was found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DiagnosticsTab</name>
    <message>
        <source>These actions are for finding faults. What they write appears in the log.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passes and timer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plain pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switches syncing on with passes between two folders, whatever the settings say</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remote pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switches syncing on with passes from the remote Mac, whatever the settings say</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume timer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lets the diagnostic timer write a line each second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suspend timer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stops the diagnostic timer until it is resumed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kill timer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends the diagnostic timer until the program starts again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders and window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill path control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the source folder in the path control and lists its parts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reveal test folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens a fixed test folder once source and destination are set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temporary folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the folder where the program keeps its scripts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No focus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the keyboard focus away from every control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Macs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks one second for Macs that share files and lists all of them below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print found Macs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes what the last search found to the log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose destination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only writes a line: a destination cannot be chosen this way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browses for shares and writes each change to the log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found &amp;Macs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found Macs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remote Mac and program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asks the system to open the share and lists mounted shares</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find folder, older way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the share and looks for its folder without waiting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New key, older way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes a new key in a terminal window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit and relaunch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends the program and has it started again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FixedWords</name>
    <message>
        <source>Start rsync with bonjour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start rsync with afp path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>click to stop bonjour rsync</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>click to stop rsync</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>click to start rsync using bonjour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>click to start rsync</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>click to restart rsync using bonjour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>click to restart rsync</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trying to rsync From Destination to Source...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resting a bit ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings file cannot be read - waiting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>oops - something went wrong - check settings and hardware connections - then try again...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to Reach Remote Host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing ssh keys -
Please generate ssh keys
 and 
 try again...
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SUCCESS...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remote seem to be alive?...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Oh OH...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ssh identity file is invalid or missing ???...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ssh remote has issues - please check network connection or remote username@domain parameters...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please Wait - Scanning for smb machines on network...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bonjour List...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No network connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected to the local network only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected to the network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the user name holds a zero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the user name holds a line break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the user name holds signs that are no text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the user name begins with &quot;-&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the user name holds &quot;:&quot; or &quot;/&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the host name holds a zero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the host name holds a line break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the host name holds signs that are no text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the host name begins with &quot;-&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the host name holds &quot;/&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the path of the key file holds a line break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the path of the key file holds signs that are no text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the source holds a zero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the source holds a line break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the source holds signs that are no text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the source begins with &quot;-&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the host of the source begins with &quot;-&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the source would be read as a module of an rsync daemon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the destination holds a zero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the destination holds a line break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the destination holds signs that are no text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the destination begins with &quot;-&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the destination would be read as the name of a host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the command puts a text where it cannot be kept in one word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trying to rsync with option = %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>something went wrong - waiting to retry again... [%1]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please make sure remote host is on this network
or
Please check username...

%1
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings cannot be saved to %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings in %1 are not known: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Kelvo Mirror</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PassesView</name>
    <message>
        <source>How the passes stand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Brought files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the passes that brought files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In tro&amp;uble</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the passes that were in trouble</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Newest first; the selected pass is told below. The right arrow key unfolds a row that stands for several passes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a pass to read what its commands said.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the selected pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts the selected pass&apos;s text on the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export all passes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes all passes to a file of comma-separated values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the export went</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>About Kelvo Mirror</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kelvo Mirror %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps a local folder supplied with movie files from a remote Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not ask again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Remote Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without an answer, it tries again in %1 s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RemoteTab</name>
    <message>
        <source>Remote Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host &amp;name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Studio-Mac.local</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of the remote Mac on this network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the remote Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists the Macs on this network that share files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name of an account on the remote Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An account on the remote Mac with Remote Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fol&amp;der</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remote folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder on the remote Mac to pull from, from its home folder or from /</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source in use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notice about the source in use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State of the key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Up &amp;Key…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes a key for this program and installs it on the remote Mac; asks for the password there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Te&amp;st Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asks the remote Mac for an answer over ssh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection test is running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Make a New Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replaces the key of this program; it must be installed again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Ke&amp;y Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asks the remote Mac whether it accepts the key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Remote Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the remote folder in the file browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mount and F&amp;ind Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the share, looks where it was mounted and opens the folder there</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsTab</name>
    <message>
        <source>Kind of pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pull from the &amp;remote Mac over ssh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy &amp;between two folders of this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Te&amp;mplate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command template</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rsync command with the places %@1 source, %@2 destination, %@3 key, %@98 ssh, %@99 option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which files a pass touches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rest between p&amp;asses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3.0 s (automatic)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rest between passes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seconds between two passes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start syncing at launch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide the &amp;window at launch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show a noti&amp;ce when movies have arrived</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit without asking while movies are being copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Kelvo Mirror when I &amp;log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trouble with the start at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;un after arrivals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command to run after arrivals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run after each pass that has brought movies; empty for none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It reads the paths of the movies on its standard input, each ended by a NUL; KELVO_MIRROR_ARRIVALS says how many.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show a &amp;notice when passes turn bad and when they are well again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SyncTab</name>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remote source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chan&amp;ge…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the remote Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the tab where the remote Mac is chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the source folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reveal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reveal the source folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the folder in the file browser; a right click asks how</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notice about the source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ch&amp;oose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Revea&amp;l</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reveal the destination folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the folder in the file browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start rsync</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switches syncing on and off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begins the next pass now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ancel This Pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends the pass that runs; what it has begun to copy is kept for the next one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Arr&amp;ivals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the Activity tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether this computer has a network connection</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message numerus="yes">
        <source>%Ln movies</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ended when the pass was cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>given up when the program ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by rsync&apos;s own figures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>counted from its lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the command did not say</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run after arrivals:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>… %L1 bytes left out …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrived:</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Next step: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remote pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plain pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln passes, nothing new, %1 to %2</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>being cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; a pass was in trouble</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Enclosing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retry Again...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Mac has not accepted the program&apos;s key yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Mac is chosen yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user name on the Mac is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program has no ssh key of its own yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ssh is not installed on this machine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No source folder is chosen yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No destination folder is chosen yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The destination folder is missing or cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rsync is not installed on this machine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kelvo Mirror keeps running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no tray icon to bring the window back with. To see the window again, start Kelvo Mirror once more. To end the program, choose Quit from the File menu instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit while movies are being copied?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pass that runs will be ended: %1. The next start goes on from there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last success: %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No pass has ended yet. How it went will stand here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln passes)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>a sentence without its full stop</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The record of passes cannot be kept: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The record of passes was damaged. It is kept as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The record of passes was removed or replaced. The passes since the start were written again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No key yet. Set one up to be let in by the remote Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key made. Fill in host name and user to have it accepted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key made. The remote Mac has not been asked yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking the remote Mac…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key accepted by the remote Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key made, not accepted by the remote Mac yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key made. The remote Mac is not on the network right now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not written by Kelvo Mirror and is left alone. Move it away to switch this on here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kelvo Mirror is well again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last pass went well: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kelvo Mirror is in trouble</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln new movies</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>All is well.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Mac answers to this name on the network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Mac answers to this name on the network since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the host name, and that the Mac is switched on and in this network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Mac is away or asleep.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Mac is away or asleep since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wake the Mac; in its energy settings, let it wake for network access.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Mac is there but refuses logins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Mac is there but refuses logins since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On the Mac, switch on Remote Login (System Settings, General, Sharing).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This machine has not met the Mac before.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This machine has not met the Mac before since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log in once with ssh in a terminal and accept the Mac&apos;s key.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Mac shows another key than before: it was set up anew, or another machine has taken its name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Mac shows another key than before since %1: it was set up anew, or another machine has taken its name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If you know why, remove the old key with ssh-keygen -R and the host name, then accept the new one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Mac does not take this key for this user.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Mac does not take this key for this user since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the user name, then install the key on the Mac again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program&apos;s own ssh key is missing here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program&apos;s own ssh key is missing here since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the key and install it on the Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Mac calls this user by another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Mac calls this user by another name since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the account name that whoami prints on the Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Mac prints a text at each login, which hides its answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Mac prints a text at each login since %1, which hides its answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On the Mac, remove what the shell&apos;s start file (.zshenv, .bashrc) prints.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no rsync on the Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no rsync on the Mac since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install rsync on the Mac, or give its place in the template with --rsync-path.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for an option of the template.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for an option of the template since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update rsync on the Mac, or take the option out of the template.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for the built-in movie command: only what the template takes has arrived.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for the built-in movie command since %1: only what the template takes has arrived.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update rsync on the Mac, or let the template take every movie: without filters, and with -r.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The source folder is not there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The source folder is not there since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the remote path, and that the disk with it is connected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A source folder may not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A source folder may not be read since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On the Mac, allow full disk access for remote users (in Remote Login), or change the folder&apos;s permissions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk here is full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk here is full since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make room on the disk of the destination folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The destination folder is missing or cannot be written since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect its disk, or choose another destination folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program is pulling into this folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program is pulling into this folder since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give each program a destination folder of its own, or end the other one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A command of the pass is not installed here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A command of the pass is not installed here since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install rsync and ssh on this machine, or correct the command template.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command template cannot be run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command template cannot be run since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Correct the rsync command template in the settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some files vanished from the source while they were copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing: the next pass brings what is there then.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some files could not be taken.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some files could not be taken since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See the pass&apos;s text for their names and reasons.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection gave way in the middle of the transfer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection gave way in the middle of the transfer since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the network; the next pass goes on where this one stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pass cannot run: a folder, the host or the user is not set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pass cannot run since %1: a folder, the host or the user is not set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the Mac, the user name and both folders.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pass was not begun: a text in the settings cannot stand in a command.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pass was not begun since %1: a text in the settings cannot stand in a command.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose another folder, user name or host: without a line break, and no &quot;-&quot; in front.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program was ended during the pass.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing: start it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled by you.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing: the next pass goes on where this one stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The files have arrived, but the command that is run after arrivals failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The files have arrived, but the command that is run after arrivals failed since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See the pass&apos;s text for what it said, or correct it in the settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something went wrong.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something went wrong since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See the pass&apos;s text for what the commands said.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last line was: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reason: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>files unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>no transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 min %L2 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 h %L2 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>just now</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln minutes ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hours ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Reveal In Finder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>path:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Syncing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Terminal Found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please run this command in a terminal and answer what it asks:

%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two facts, as in: 3 files, 1.2 GB</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 %</source>
        <comment>percent</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Syncing is off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for what is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finishing this pass…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelling this pass…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Syncing: asking the Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Syncing: first pull</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Syncing: copying</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Syncing: movies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Syncing: after arrivals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a few seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking the Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First pull</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copying</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After arrivals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file %L1 of %L2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>as in: 18.2 of 37.6 GB</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>as in: 92.0 MB/s</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next pass in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Syncing: %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All is well, next pass in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All is well</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>two movies</comment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 and %Ln more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kelvo::ApplicationMenu</name>
    <message>
        <source>Application menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit and &amp;Relaunch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends the program and starts it again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Passes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start Syncing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switches syncing on and off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begins the next pass now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel This Pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends the pass that runs; what it has begun to copy is kept for the next one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stop Syncing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Set Up Tray Icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the program&apos;s icon in the tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove Tray Icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the icon out of the tray; the program keeps running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Tray Icon as &amp;Before a Relaunch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Up &amp;Watchdog Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Has the program started again should it crash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Log Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Kelvo Mirror</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::ArrivalRows</name>
    <message>
        <source>%1 (%2)</source>
        <comment>a movie, what is the matter with it</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::ArrivalsView</name>
    <message>
        <source>not there any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reveal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing has arrived yet.

The movies that a pass brings will stand here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No movie with this text in its path has arrived.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its name is not UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::BusNotices</name>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::ChecklistView</name>
    <message>
        <source>What is missing before a pass</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::DayChart</name>
    <message>
        <source>Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in trouble</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a day, what came on it</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::ElidedLabel</name>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::HealthView</name>
    <message>
        <source>All is well</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not known yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Does the next step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last success</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the last pass went will stand here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Health: %1. %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::MainWindow</name>
    <message>
        <source>Sync</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remote Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activity</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::PassRows</name>
    <message>
        <source>Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::PassesView</name>
    <message>
        <source>Export passes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln passes written.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kelvo::PathControlView</name>
    <message>
        <source>Folders above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::ProgressView</name>
    <message>
        <source>Progress of the pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The movie that is being copied will stand here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::RecentArrivals</name>
    <message>
        <source>Movies that have arrived will stand here, the newest first. A double click opens one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movies that arrived last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::RemoteTab</name>
    <message>
        <source>none yet</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::ServiceRows</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::SettingsTab</name>
    <message>
        <source>Every file that differs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only files newer than here (--update)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only files not here yet (--ignore-existing)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every file that differs (stored as 105)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not a valid option (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::StatusFieldView</name>
    <message>
        <source>Trouble</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the program is doing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::SyncTab</name>
    <message>
        <source>No source folder chosen yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No destination folder chosen yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No remote Mac chosen yet</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvo::TrayIcon</name>
    <message>
        <source>Syncing is off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the next pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Syncing now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel This Pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reveal &amp;Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit and &amp;Relaunch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>sourceNotice</name>
    <message>
        <source>Choose the remote Mac on the Remote Mac tab.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the user name on the Remote Mac tab.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the remote folder on the Remote Mac tab.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passes still pull from the source above. The new host or folder takes effect when the user name changes or the program starts again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
