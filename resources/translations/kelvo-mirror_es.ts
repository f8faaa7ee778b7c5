<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ActivityTab</name>
    <message>
        <source>&amp;Arrived</source>
        <translation>&amp;Llegadas</translation>
    </message>
    <message>
        <source>Shows the movies that have arrived</source>
        <translation>Muestra las películas que han llegado</translation>
    </message>
    <message>
        <source>A&amp;ll Passes</source>
        <translation>&amp;Todas las pasadas</translation>
    </message>
    <message>
        <source>Shows every pass with its outcome</source>
        <translation>Muestra cada pasada con su resultado</translation>
    </message>
    <message>
        <source>Arrived per day, 30 days</source>
        <translation>Llegadas por día, 30 días</translation>
    </message>
</context>
<context>
    <name>ArrivalsView</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search what has arrived</source>
        <translation>Buscar en lo que ha llegado</translation>
    </message>
    <message>
        <source>Shows the movies with this text in their path</source>
        <translation>Muestra las películas cuya ruta contiene este texto</translation>
    </message>
    <message>
        <source>Arrived movies</source>
        <translation>Películas que han llegado</translation>
    </message>
    <message>
        <source>By day, newest first; the Return key opens one</source>
        <translation>Por día, las más nuevas primero; la tecla Intro abre una</translation>
    </message>
</context>
<context>
    <name>BonjourSheet</name>
    <message>
        <source>Choose the Remote Mac</source>
        <translation>Elegir el Mac remoto</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Buscando</translation>
    </message>
    <message>
        <source>Computers found</source>
        <translation>Equipos encontrados</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>&amp;Buscar de nuevo</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Buscar de nuevo</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Seleccionar</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Copy C&amp;ommand</source>
        <translation>Copiar la &amp;orden</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Copiar la orden</translation>
    </message>
</context>
<context>
    <name>DiagnosticsTab</name>
    <message>
        <source>Folders and window</source>
        <translation>Carpetas y ventana</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Looks one second for Macs that share files and lists all of them below</source>
        <translation>Busca durante un segundo los Mac que comparten archivos y los muestra todos debajo</translation>
    </message>
    <message>
        <source>Writes what the last search found to the log</source>
        <translation>Escribe en el registro lo que encontró la última búsqueda</translation>
    </message>
    <message>
        <source>Found &amp;Macs</source>
        <translation>&amp;Mac encontrados</translation>
    </message>
    <message>
        <source>Found Macs</source>
        <translation>Mac encontrados</translation>
    </message>
    <message>
        <source>Remote Mac and program</source>
        <translation>Mac remoto y programa</translation>
    </message>
    <message>
        <source>These buttons help to find out why something does not work. What they find out is written to the log: Help, Open Log Folder.</source>
        <translation>Estos botones ayudan a averiguar por qué algo no funciona. Lo que averiguan se escribe en el registro: menú Ayuda, Abrir la carpeta del registro.</translation>
    </message>
    <message>
        <source>Passes and heartbeat</source>
        <translation>Pasadas y señal de vida</translation>
    </message>
    <message>
        <source>Sync Two Folders Here</source>
        <translation>Sincronizar dos carpetas aquí</translation>
    </message>
    <message>
        <source>Switches syncing on or off, with passes between two folders on this computer, whatever Settings says</source>
        <translation>Activa o desactiva la sincronización, con pasadas entre dos carpetas de este equipo, digan lo que digan los ajustes</translation>
    </message>
    <message>
        <source>Sync from the Mac</source>
        <translation>Sincronizar desde el Mac</translation>
    </message>
    <message>
        <source>Switches syncing on or off, with passes from the remote Mac, whatever Settings says</source>
        <translation>Activa o desactiva la sincronización, con pasadas desde el Mac remoto, digan lo que digan los ajustes</translation>
    </message>
    <message>
        <source>Start Heartbeat</source>
        <translation>Iniciar la señal de vida</translation>
    </message>
    <message>
        <source>Writes a line to the log each second, as a sign that the program is alive</source>
        <translation>Escribe cada segundo una línea en el registro, como señal de que el programa sigue activo</translation>
    </message>
    <message>
        <source>Pause Heartbeat</source>
        <translation>Pausar la señal de vida</translation>
    </message>
    <message>
        <source>Writes no more of these lines until the heartbeat is started again</source>
        <translation>Deja de escribir estas líneas hasta que la señal de vida se inicie de nuevo</translation>
    </message>
    <message>
        <source>End Heartbeat</source>
        <translation>Terminar la señal de vida</translation>
    </message>
    <message>
        <source>Writes no more of these lines until the program starts again</source>
        <translation>Deja de escribir estas líneas hasta que el programa se inicie de nuevo</translation>
    </message>
    <message>
        <source>Show Source Folder</source>
        <translation>Ver la carpeta de origen</translation>
    </message>
    <message>
        <source>Shows the source folder on the Sync tab and writes its parts to the log; where none is chosen, the Desktop folder becomes the source</source>
        <translation>Muestra la carpeta de origen en la pestaña Sincronización y escribe sus componentes en el registro; si no se ha elegido ninguna, la carpeta Escritorio pasa a ser el origen</translation>
    </message>
    <message>
        <source>Open Test Folder</source>
        <translation>Abrir la carpeta de pruebas</translation>
    </message>
    <message>
        <source>Opens /Volumes/Macintosh%20HD-2/Users/support/Desktop/FolderOnRemoteServer, a folder for tests that few computers have; source and destination must be chosen first</source>
        <translation>Abre /Volumes/Macintosh%20HD-2/Users/support/Desktop/FolderOnRemoteServer, una carpeta de pruebas que pocos equipos tienen; antes hay que elegir el origen y el destino</translation>
    </message>
    <message>
        <source>Open Scripts Folder</source>
        <translation>Abrir la carpeta de scripts</translation>
    </message>
    <message>
        <source>Opens the temporary folder in which the program keeps the scripts for a terminal</source>
        <translation>Abre la carpeta temporal en la que el programa guarda los scripts para un terminal</translation>
    </message>
    <message>
        <source>Leave All Fields</source>
        <translation>Salir de todos los campos</translation>
    </message>
    <message>
        <source>Takes the keyboard away from every field and button until another one is chosen</source>
        <translation>Quita el foco del teclado a todos los campos y botones hasta que se elija otro</translation>
    </message>
    <message>
        <source>Search for Macs</source>
        <translation>Buscar Mac</translation>
    </message>
    <message>
        <source>Log Found Macs</source>
        <translation>Registrar los Mac encontrados</translation>
    </message>
    <message>
        <source>Copy to a Mac</source>
        <translation>Copiar a un Mac</translation>
    </message>
    <message>
        <source>Writes a line to the log and nothing else: the destination is always a folder on this computer</source>
        <translation>Solo escribe una línea en el registro: el destino es siempre una carpeta de este equipo</translation>
    </message>
    <message>
        <source>Watch for Shares</source>
        <translation>Vigilar los recursos compartidos</translation>
    </message>
    <message>
        <source>Looks for shared folders and writes each one that comes or goes to the log</source>
        <translation>Busca carpetas compartidas y escribe en el registro cada una que aparece o desaparece</translation>
    </message>
    <message>
        <source>Open the Share</source>
        <translation>Abrir el recurso compartido</translation>
    </message>
    <message>
        <source>Asks the desktop to open the shared folder of the Mac and writes the open shares to the log</source>
        <translation>Pide al escritorio que abra la carpeta compartida del Mac y escribe en el registro los recursos compartidos abiertos</translation>
    </message>
    <message>
        <source>Find Folder, Older Way</source>
        <translation>Buscar la carpeta, método antiguo</translation>
    </message>
    <message>
        <source>Opens the shared folder of the Mac and looks for the folder in it without waiting</source>
        <translation>Abre la carpeta compartida del Mac y busca en ella la carpeta sin esperar</translation>
    </message>
    <message>
        <source>New Key, Older Way</source>
        <translation>Clave nueva, método antiguo</translation>
    </message>
    <message>
        <source>Removes the key and makes a new one in a terminal window; the Mac must be given the new one with Set Up Key</source>
        <translation>Elimina la clave y crea una nueva en una ventana de terminal; después hay que instalarla en el Mac con Configurar clave</translation>
    </message>
    <message>
        <source>Quit and Relaunch</source>
        <translation>Salir y relanzar</translation>
    </message>
    <message>
        <source>Ends the program and starts it again</source>
        <translation>Termina el programa y lo inicia de nuevo</translation>
    </message>
</context>
<context>
    <name>FixedWords</name>
    <message>
        <source>Start rsync with bonjour</source>
        <translation>Iniciar rsync con Bonjour</translation>
    </message>
    <message>
        <source>Start rsync with afp path</source>
        <translation>Iniciar rsync con ruta AFP</translation>
    </message>
    <message>
        <source>click to stop bonjour rsync</source>
        <translation>pulsar para detener rsync con Bonjour</translation>
    </message>
    <message>
        <source>click to stop rsync</source>
        <translation>pulsar para detener rsync</translation>
    </message>
    <message>
        <source>click to start rsync using bonjour</source>
        <translation>pulsar para iniciar rsync con Bonjour</translation>
    </message>
    <message>
        <source>click to start rsync</source>
        <translation>pulsar para iniciar rsync</translation>
    </message>
    <message>
        <source>click to restart rsync using bonjour</source>
        <translation>pulsar para reiniciar rsync con Bonjour</translation>
    </message>
    <message>
        <source>click to restart rsync</source>
        <translation>pulsar para reiniciar rsync</translation>
    </message>
    <message>
        <source>Trying to rsync From Destination to Source...</source>
        <translation>Intentando rsync de destino a origen...</translation>
    </message>
    <message>
        <source>Resting a bit ...</source>
        <translation>Descansando un poco ...</translation>
    </message>
    <message>
        <source>The settings file cannot be read - waiting...</source>
        <translation>El archivo de ajustes no se puede leer - esperando...</translation>
    </message>
    <message>
        <source>oops - something went wrong - check settings and hardware connections - then try again...</source>
        <translation>vaya - algo ha ido mal - revise los ajustes y las conexiones del equipo - y vuelva a intentarlo...</translation>
    </message>
    <message>
        <source>Unable to Reach Remote Host</source>
        <translation>No se puede alcanzar el host remoto</translation>
    </message>
    <message>
        <source>Missing ssh keys -
Please generate ssh keys
 and 
 try again...
</source>
        <translation>Faltan claves ssh -
Genere claves ssh
 y 
 vuelva a intentarlo...
</translation>
    </message>
    <message>
        <source>SUCCESS...</source>
        <translation>CORRECTO...</translation>
    </message>
    <message>
        <source>remote seem to be alive?...</source>
        <translation>¿el equipo remoto parece responder?...</translation>
    </message>
    <message>
        <source>Oh OH...</source>
        <translation>Vaya...</translation>
    </message>
    <message>
        <source>ssh identity file is invalid or missing ???...</source>
        <translation>¿el archivo de identidad ssh no es válido o falta?...</translation>
    </message>
    <message>
        <source>ssh remote has issues - please check network connection or remote username@domain parameters...</source>
        <translation>problemas con el host ssh remoto - compruebe la conexión de red o los parámetros usuario@dominio...</translation>
    </message>
    <message>
        <source>Please Wait - Scanning for smb machines on network...</source>
        <translation>Espere - buscando equipos smb en la red...</translation>
    </message>
    <message>
        <source>Bonjour List...</source>
        <translation>Lista de Bonjour...</translation>
    </message>
    <message>
        <source>No network connection</source>
        <translation>Sin conexión de red</translation>
    </message>
    <message>
        <source>Connected to the local network only</source>
        <translation>Conectado solo a la red local</translation>
    </message>
    <message>
        <source>Connected to the network</source>
        <translation>Conectado a la red</translation>
    </message>
    <message>
        <source>the user name holds a zero</source>
        <translation>el nombre de usuario contiene un carácter nulo</translation>
    </message>
    <message>
        <source>the user name holds a line break</source>
        <translation>el nombre de usuario contiene un salto de línea</translation>
    </message>
    <message>
        <source>the user name holds signs that are no text</source>
        <translation>el nombre de usuario contiene caracteres que no son texto</translation>
    </message>
    <message>
        <source>the user name begins with &quot;-&quot;</source>
        <translation>el nombre de usuario empieza por «-»</translation>
    </message>
    <message>
        <source>the user name holds &quot;:&quot; or &quot;/&quot;</source>
        <translation>el nombre de usuario contiene «:» o «/»</translation>
    </message>
    <message>
        <source>the host name holds a zero</source>
        <translation>el nombre de host contiene un carácter nulo</translation>
    </message>
    <message>
        <source>the host name holds a line break</source>
        <translation>el nombre de host contiene un salto de línea</translation>
    </message>
    <message>
        <source>the host name holds signs that are no text</source>
        <translation>el nombre de host contiene caracteres que no son texto</translation>
    </message>
    <message>
        <source>the host name begins with &quot;-&quot;</source>
        <translation>el nombre de host empieza por «-»</translation>
    </message>
    <message>
        <source>the host name holds &quot;/&quot;</source>
        <translation>el nombre de host contiene «/»</translation>
    </message>
    <message>
        <source>the path of the key file holds a line break</source>
        <translation>la ruta del archivo de clave contiene un salto de línea</translation>
    </message>
    <message>
        <source>the path of the key file holds signs that are no text</source>
        <translation>la ruta del archivo de clave contiene caracteres que no son texto</translation>
    </message>
    <message>
        <source>the source holds a zero</source>
        <translation>el origen contiene un carácter nulo</translation>
    </message>
    <message>
        <source>the source holds a line break</source>
        <translation>el origen contiene un salto de línea</translation>
    </message>
    <message>
        <source>the source holds signs that are no text</source>
        <translation>el origen contiene caracteres que no son texto</translation>
    </message>
    <message>
        <source>the source begins with &quot;-&quot;</source>
        <translation>el origen empieza por «-»</translation>
    </message>
    <message>
        <source>the host of the source begins with &quot;-&quot;</source>
        <translation>el host del origen empieza por «-»</translation>
    </message>
    <message>
        <source>the source would be read as a module of an rsync daemon</source>
        <translation>el origen se leería como un módulo de un demonio rsync</translation>
    </message>
    <message>
        <source>the destination holds a zero</source>
        <translation>el destino contiene un carácter nulo</translation>
    </message>
    <message>
        <source>the destination holds a line break</source>
        <translation>el destino contiene un salto de línea</translation>
    </message>
    <message>
        <source>the destination holds signs that are no text</source>
        <translation>el destino contiene caracteres que no son texto</translation>
    </message>
    <message>
        <source>the destination begins with &quot;-&quot;</source>
        <translation>el destino empieza por «-»</translation>
    </message>
    <message>
        <source>the destination would be read as the name of a host</source>
        <translation>el destino se leería como el nombre de un host</translation>
    </message>
    <message>
        <source>the command puts a text where it cannot be kept in one word</source>
        <translation>la orden coloca un texto donde no puede quedar en una sola palabra</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Cuota de disco superada</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Error de entrada/salida</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Es una carpeta</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>No queda espacio en el disco</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>No existe el archivo o la carpeta</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>No es una carpeta</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Sistema de archivos de solo lectura</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>Trying to rsync with option = %1...</source>
        <translation>Intentando rsync con la opción = %1...</translation>
    </message>
    <message>
        <source>something went wrong - waiting to retry again... [%1]</source>
        <translation>algo ha ido mal - esperando para reintentar... [%1]</translation>
    </message>
    <message>
        <source>Please make sure remote host is on this network
or
Please check username...

%1
</source>
        <translation>Compruebe que el host remoto está en esta red
o
compruebe el nombre de usuario...

%1
</translation>
    </message>
    <message>
        <source>Settings cannot be saved to %1: %2</source>
        <translation>Los ajustes no se pueden guardar en %1: %2</translation>
    </message>
    <message>
        <source>The settings in %1 are not known: %2</source>
        <translation>Los ajustes de %1 no se conocen: %2</translation>
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
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>PassesView</name>
    <message>
        <source>&amp;Brought files</source>
        <translation>Con arch&amp;ivos</translation>
    </message>
    <message>
        <source>Shows the passes that brought files</source>
        <translation>Muestra las pasadas que trajeron archivos</translation>
    </message>
    <message>
        <source>In tro&amp;uble</source>
        <translation>Con p&amp;roblemas</translation>
    </message>
    <message>
        <source>Shows the passes that were in trouble</source>
        <translation>Muestra las pasadas que tuvieron problemas</translation>
    </message>
    <message>
        <source>Passes</source>
        <translation>Pasadas</translation>
    </message>
    <message>
        <source>Newest first; the selected pass is told below. The right arrow key unfolds a row that stands for several passes.</source>
        <translation>Las más nuevas primero; la pasada seleccionada se detalla debajo. La flecha derecha despliega una fila que representa varias pasadas.</translation>
    </message>
    <message>
        <source>Select a pass to read what its commands said.</source>
        <translation>Seleccione una pasada para leer lo que dijeron sus órdenes.</translation>
    </message>
    <message>
        <source>The selected pass</source>
        <translation>La pasada seleccionada</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy the selected pass</source>
        <translation>Copiar la pasada seleccionada</translation>
    </message>
    <message>
        <source>Puts the selected pass&apos;s text on the clipboard</source>
        <translation>Pone el texto de la pasada seleccionada en el portapapeles</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>E&amp;xportar…</translation>
    </message>
    <message>
        <source>Export all passes</source>
        <translation>Exportar todas las pasadas</translation>
    </message>
    <message>
        <source>Writes all passes to a file of comma-separated values</source>
        <translation>Escribe todas las pasadas en un archivo de valores separados por comas</translation>
    </message>
</context>
<context>
    <name>ProfilesSheet</name>
    <message>
        <source>Another Mac</source>
        <translation>Otro Mac</translation>
    </message>
    <message>
        <source>Each further Mac gets a name here. Under it the program keeps settings, a record of passes and a window of their own; the key is shared.</source>
        <translation>Cada Mac adicional recibe aquí un nombre. Con él, el programa lleva ajustes, un registro de pasadas y una ventana propios; la clave es común.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>Letters, digits, “-” and “_”</source>
        <translation>Letras, cifras, «-» y «_»</translation>
    </message>
    <message>
        <source>Names there are</source>
        <translation>Nombres existentes</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Mac</source>
        <translation>Mac</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Last success</source>
        <translation>Último éxito</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Opens the window of this name, or brings it to the front</source>
        <translation>Abre la ventana de este nombre o la trae al frente</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>About Kelvo Mirror</source>
        <translation>Acerca de Kelvo Mirror</translation>
    </message>
    <message>
        <source>Kelvo Mirror %1</source>
        <translation>Kelvo Mirror %1</translation>
    </message>
    <message>
        <source>Keeps a local folder supplied with movie files from a remote Mac.</source>
        <translation>Mantiene una carpeta local surtida de películas de un Mac remoto.</translation>
    </message>
    <message>
        <source>Do not ask again</source>
        <translation>No volver a preguntar</translation>
    </message>
    <message>
        <source>Show Remote Mac</source>
        <translation>Mostrar el Mac remoto</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>Copiar la orden</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Comprobar de nuevo</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Open the Log</source>
        <translation>Abrir el registro</translation>
    </message>
    <message>
        <source>Without an answer, it tries again in %1 s.</source>
        <translation>Sin respuesta, se reintenta en %1 s.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Choose the Mac</source>
        <translation>Elegir el Mac</translation>
    </message>
    <message>
        <source>Enter the Account</source>
        <translation>Indicar la cuenta</translation>
    </message>
    <message>
        <source>Set Up the Key</source>
        <translation>Configurar la clave</translation>
    </message>
    <message>
        <source>&amp;Folder or file:</source>
        <translation>&amp;Carpeta o archivo:</translation>
    </message>
</context>
<context>
    <name>RemoteTab</name>
    <message>
        <source>Host &amp;name</source>
        <translation>&amp;Nombre de host</translation>
    </message>
    <message>
        <source>Studio-Mac.local</source>
        <translation>Studio-Mac.local</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>Nombre de host</translation>
    </message>
    <message>
        <source>The name of the remote Mac on this network</source>
        <translation>El nombre del Mac remoto en esta red</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>Ele&amp;gir…</translation>
    </message>
    <message>
        <source>Choose the remote Mac</source>
        <translation>Elegir el Mac remoto</translation>
    </message>
    <message>
        <source>Lists the Macs on this network that share files</source>
        <translation>Muestra los Mac de esta red que comparten archivos</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>Nombre de &amp;usuario</translation>
    </message>
    <message>
        <source>name of an account on the remote Mac</source>
        <translation>nombre de una cuenta del Mac remoto</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>An account on the remote Mac with Remote Login</source>
        <translation>Una cuenta del Mac remoto con permiso de Sesión remota</translation>
    </message>
    <message>
        <source>Fol&amp;der</source>
        <translation>Carpe&amp;ta</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Movies</translation>
    </message>
    <message>
        <source>Remote folder</source>
        <translation>Carpeta remota</translation>
    </message>
    <message>
        <source>The folder on the remote Mac to pull from, from its home folder or from /</source>
        <translation>La carpeta del Mac remoto de la que traer las películas, desde su carpeta de inicio o desde /</translation>
    </message>
    <message>
        <source>Source in use</source>
        <translation>Origen en uso</translation>
    </message>
    <message>
        <source>Set Up &amp;Key…</source>
        <translation>Configurar c&amp;lave…</translation>
    </message>
    <message>
        <source>Makes a key for this program and installs it on the remote Mac; asks for the password there</source>
        <translation>Crea una clave para este programa y la instala en el Mac remoto; pide la contraseña de la cuenta</translation>
    </message>
    <message>
        <source>Te&amp;st Connection</source>
        <translation>Probar la cone&amp;xión</translation>
    </message>
    <message>
        <source>Asks the remote Mac for an answer over ssh</source>
        <translation>Pide una respuesta al Mac remoto por ssh</translation>
    </message>
    <message>
        <source>The connection test is running</source>
        <translation>La prueba de conexión está en curso</translation>
    </message>
    <message>
        <source>&amp;Make a New Key</source>
        <translation>C&amp;rear una clave nueva</translation>
    </message>
    <message>
        <source>Replaces the key of this program; it must be installed again</source>
        <translation>Sustituye la clave de este programa; después hay que instalarla de nuevo</translation>
    </message>
    <message>
        <source>Check Ke&amp;y Again</source>
        <translation>Co&amp;mprobar la clave de nuevo</translation>
    </message>
    <message>
        <source>Asks the remote Mac whether it accepts the key</source>
        <translation>Pregunta al Mac remoto si acepta la clave</translation>
    </message>
    <message>
        <source>&amp;Open Remote Folder</source>
        <translation>Abr&amp;ir la carpeta remota</translation>
    </message>
    <message>
        <source>Opens the remote folder in the file browser</source>
        <translation>Abre la carpeta remota en el gestor de archivos</translation>
    </message>
    <message>
        <source>Mount and F&amp;ind Folder</source>
        <translation>Montar y bu&amp;scar la carpeta</translation>
    </message>
    <message>
        <source>Opens the share, looks where it was mounted and opens the folder there</source>
        <translation>Abre el recurso compartido, averigua dónde se montó y abre allí la carpeta</translation>
    </message>
    <message>
        <source>1. Mac</source>
        <translation>1. Mac</translation>
    </message>
    <message>
        <source>2. Account and folder</source>
        <translation>2. Cuenta y carpeta</translation>
    </message>
    <message>
        <source>Use This Source No&amp;w</source>
        <translation>Usar este &amp;origen ahora</translation>
    </message>
    <message>
        <source>Passes pull from this account and folder from now on</source>
        <translation>A partir de ahora las pasadas traen las películas de esta cuenta y esta carpeta</translation>
    </message>
    <message>
        <source>3. Key</source>
        <translation>3. Clave</translation>
    </message>
    <message>
        <source>4. Connection</source>
        <translation>4. Conexión</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
</context>
<context>
    <name>SettingsTab</name>
    <message>
        <source>Kind of pass</source>
        <translation>Tipo de pasada</translation>
    </message>
    <message>
        <source>Pull from the &amp;remote Mac over ssh</source>
        <translation>Traer del Mac &amp;remoto por ssh</translation>
    </message>
    <message>
        <source>Copy &amp;between two folders of this computer</source>
        <translation>&amp;Copiar entre dos carpetas de este equipo</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Te&amp;mplate</source>
        <translation>P&amp;lantilla</translation>
    </message>
    <message>
        <source>Command template</source>
        <translation>Plantilla de orden</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>&amp;Opción</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opción</translation>
    </message>
    <message>
        <source>Which files a pass touches</source>
        <translation>Los archivos que trata una pasada</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>Ejemplo</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Comportamiento</translation>
    </message>
    <message>
        <source>Rest between p&amp;asses</source>
        <translation>&amp;Descanso entre pasadas</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>3.0 s (automatic)</source>
        <translation>3,0 s (automático)</translation>
    </message>
    <message>
        <source>Rest between passes</source>
        <translation>Descanso entre pasadas</translation>
    </message>
    <message>
        <source>Seconds between two passes</source>
        <translation>Segundos entre dos pasadas</translation>
    </message>
    <message>
        <source>&amp;Start syncing at launch</source>
        <translation>&amp;Iniciar la sincronización al abrir el programa</translation>
    </message>
    <message>
        <source>Hide the &amp;window at launch</source>
        <translation>Ocul&amp;tar la ventana al abrir el programa</translation>
    </message>
    <message>
        <source>Show a noti&amp;ce when movies have arrived</source>
        <translation>&amp;Mostrar un aviso cuando hayan llegado películas</translation>
    </message>
    <message>
        <source>&amp;Quit without asking while movies are being copied</source>
        <translation>&amp;Salir sin preguntar mientras se copian películas</translation>
    </message>
    <message>
        <source>Start Kelvo Mirror when I &amp;log in</source>
        <translation>Iniciar &amp;Kelvo Mirror al iniciar sesión</translation>
    </message>
    <message>
        <source>R&amp;un after arrivals</source>
        <translation>E&amp;jecutar tras las llegadas</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>ninguna orden</translation>
    </message>
    <message>
        <source>Command to run after arrivals</source>
        <translation>Orden que se ejecuta tras las llegadas</translation>
    </message>
    <message>
        <source>Run after each pass that has brought movies; empty for none</source>
        <translation>Se ejecuta tras cada pasada que ha traído películas; vacío para ninguna</translation>
    </message>
    <message>
        <source>It reads the paths of the movies on its standard input, each ended by a NUL; KELVO_MIRROR_ARRIVALS says how many.</source>
        <translation>Lee las rutas de las películas por su entrada estándar, cada una terminada en un NUL; KELVO_MIRROR_ARRIVALS dice cuántas son.</translation>
    </message>
    <message>
        <source>Show a &amp;notice when passes turn bad and when they are well again</source>
        <translation>Mostrar un aviso cuando las pasadas &amp;fallen y cuando vuelvan a ir bien</translation>
    </message>
    <message>
        <source>Kinds of movies</source>
        <translation>Formatos de película</translation>
    </message>
    <message>
        <source>A&amp;dvanced</source>
        <translation>Avan&amp;zado</translation>
    </message>
    <message>
        <source>Shows the command that a pass runs, and hides it again</source>
        <translation>Muestra la orden que ejecuta una pasada y vuelve a ocultarla</translation>
    </message>
    <message>
        <source>The template with the option filled in</source>
        <translation>La plantilla con la opción insertada</translation>
    </message>
    <message>
        <source>&amp;Keep the connection to the Mac between passes</source>
        <translation>M&amp;antener la conexión con el Mac entre pasadas</translation>
    </message>
    <message>
        <source>Saves the logins of passes that follow each other within a minute; it ends with syncing, and after an hour at most</source>
        <translation>Ahorra los inicios de sesión de las pasadas que se siguen en menos de un minuto; termina con la sincronización y, como mucho, tras una hora</translation>
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
        <translation>Origen remoto</translation>
    </message>
    <message>
        <source>Chan&amp;ge…</source>
        <translation>&amp;Cambiar…</translation>
    </message>
    <message>
        <source>Change the remote Mac</source>
        <translation>Cambiar el Mac remoto</translation>
    </message>
    <message>
        <source>Shows the tab where the remote Mac is chosen</source>
        <translation>Muestra la pestaña donde se elige el Mac remoto</translation>
    </message>
    <message>
        <source>Source folder</source>
        <translation>Carpeta de origen</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>Ele&amp;gir…</translation>
    </message>
    <message>
        <source>Choose the source folder</source>
        <translation>Elegir la carpeta de origen</translation>
    </message>
    <message>
        <source>&amp;Reveal</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>Reveal the source folder</source>
        <translation>Mostrar la carpeta de origen</translation>
    </message>
    <message>
        <source>Opens the folder in the file browser; a right click asks how</source>
        <translation>Abre la carpeta en el gestor de archivos; un clic derecho pregunta cómo</translation>
    </message>
    <message>
        <source>To</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Carpeta de destino</translation>
    </message>
    <message>
        <source>Ch&amp;oose…</source>
        <translation>E&amp;legir…</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>Elegir la carpeta de destino</translation>
    </message>
    <message>
        <source>Revea&amp;l</source>
        <translation>M&amp;ostrar</translation>
    </message>
    <message>
        <source>Reveal the destination folder</source>
        <translation>Mostrar la carpeta de destino</translation>
    </message>
    <message>
        <source>Opens the folder in the file browser</source>
        <translation>Abre la carpeta en el gestor de archivos</translation>
    </message>
    <message>
        <source>Start rsync</source>
        <translation>Iniciar rsync</translation>
    </message>
    <message>
        <source>Switches syncing on and off</source>
        <translation>Activa y desactiva la sincronización</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>Sincronizar a&amp;hora</translation>
    </message>
    <message>
        <source>Begins the next pass now</source>
        <translation>Empieza ahora la pasada siguiente</translation>
    </message>
    <message>
        <source>C&amp;ancel This Pass</source>
        <translation>Ca&amp;ncelar esta pasada</translation>
    </message>
    <message>
        <source>Ends the pass that runs; what it has begun to copy is kept for the next one</source>
        <translation>Termina la pasada en curso; lo que empezó a copiar se guarda para la siguiente</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Llegadas</translation>
    </message>
    <message>
        <source>All Arr&amp;ivals</source>
        <translation>Todas las llega&amp;das</translation>
    </message>
    <message>
        <source>Shows the Activity tab</source>
        <translation>Muestra la pestaña Actividad</translation>
    </message>
    <message>
        <source>Whether this computer has a network connection</source>
        <translation>Si este equipo tiene conexión de red</translation>
    </message>
    <message>
        <source>&amp;Use This Source Now</source>
        <translation>&amp;Usar este origen ahora</translation>
    </message>
    <message>
        <source>Passes pull from the host and folder that are set now</source>
        <translation>Las pasadas traen las películas del host y la carpeta definidos ahora</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message numerus="yes">
        <source>%Ln passes written.</source>
        <translation>
            <numerusform>%Ln pasada escrita.</numerusform>
            <numerusform>%Ln pasadas escritas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln movies</source>
        <translation>
            <numerusform>%Ln película</numerusform>
            <numerusform>%Ln películas</numerusform>
        </translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>estado de salida %1</translation>
    </message>
    <message>
        <source>ended when the pass was cancelled</source>
        <translation>terminada al cancelarse la pasada</translation>
    </message>
    <message>
        <source>given up when the program ended</source>
        <translation>abandonada al terminar el programa</translation>
    </message>
    <message>
        <source>by rsync&apos;s own figures</source>
        <translation>según las cifras de rsync</translation>
    </message>
    <message>
        <source>counted from its lines</source>
        <translation>contado por sus líneas</translation>
    </message>
    <message>
        <source>the command did not say</source>
        <translation>la orden no lo dijo</translation>
    </message>
    <message>
        <source>Run after arrivals:</source>
        <translation>Orden tras las llegadas:</translation>
    </message>
    <message>
        <source>… %L1 bytes left out …</source>
        <translation>… %L1 bytes omitidos …</translation>
    </message>
    <message>
        <source>Arrived:</source>
        <translation>Llegaron:</translation>
    </message>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation>
            <numerusform>… y %Ln más</numerusform>
            <numerusform>… y %Ln más</numerusform>
        </translation>
    </message>
    <message>
        <source>Next step: %1</source>
        <translation>Siguiente paso: %1</translation>
    </message>
    <message>
        <source>Remote pass</source>
        <translation>Pasada remota</translation>
    </message>
    <message>
        <source>Plain pass</source>
        <translation>Pasada local</translation>
    </message>
    <message numerus="yes">
        <source>%Ln passes, nothing new, %1 to %2</source>
        <translation>
            <numerusform>%Ln pasada, nada nuevo, de %1 a %2</numerusform>
            <numerusform>%Ln pasadas, nada nuevo, de %1 a %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>being cancelled</source>
        <translation>cancelándose</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>nothing new</source>
        <translation>nada nuevo</translation>
    </message>
    <message>
        <source>%1; a pass was in trouble</source>
        <translation>%1; una pasada tuvo problemas</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln days</source>
        <translation>
            <numerusform>%1 en %Ln día</numerusform>
            <numerusform>%1 en %Ln días</numerusform>
        </translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Abrir en el gestor de archivos</translation>
    </message>
    <message>
        <source>Show Enclosing</source>
        <translation>Mostrar la carpeta contenedora</translation>
    </message>
    <message>
        <source>Retry Again...</source>
        <translation>Reintentar...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>The Mac has not accepted the program&apos;s key yet.</source>
        <translation>El Mac aún no ha aceptado la clave del programa.</translation>
    </message>
    <message>
        <source>No Mac is chosen yet.</source>
        <translation>Aún no se ha elegido ningún Mac.</translation>
    </message>
    <message>
        <source>The user name on the Mac is missing.</source>
        <translation>Falta el nombre de usuario en el Mac.</translation>
    </message>
    <message>
        <source>The program has no ssh key of its own yet.</source>
        <translation>El programa aún no tiene su propia clave ssh.</translation>
    </message>
    <message>
        <source>ssh is not installed on this machine.</source>
        <translation>ssh no está instalado en este equipo.</translation>
    </message>
    <message>
        <source>No source folder is chosen yet.</source>
        <translation>Aún no se ha elegido ninguna carpeta de origen.</translation>
    </message>
    <message>
        <source>No destination folder is chosen yet.</source>
        <translation>Aún no se ha elegido ninguna carpeta de destino.</translation>
    </message>
    <message>
        <source>The destination folder is missing or cannot be written.</source>
        <translation>La carpeta de destino falta o no se puede escribir en ella.</translation>
    </message>
    <message>
        <source>rsync is not installed on this machine.</source>
        <translation>rsync no está instalado en este equipo.</translation>
    </message>
    <message>
        <source>Kelvo Mirror keeps running</source>
        <translation>Kelvo Mirror sigue funcionando</translation>
    </message>
    <message>
        <source>There is no tray icon to bring the window back with. To see the window again, start Kelvo Mirror once more. To end the program, choose Quit from the File menu instead.</source>
        <translation>No hay icono en la bandeja con el que recuperar la ventana. Para volver a ver la ventana, inicie Kelvo Mirror otra vez. Para terminar el programa, elija Salir en el menú Archivo.</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Cerrar la ventana</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>Mantener abierta</translation>
    </message>
    <message>
        <source>Quit while movies are being copied?</source>
        <translation>¿Salir mientras se copian películas?</translation>
    </message>
    <message>
        <source>The pass that runs will be ended: %1. The next start goes on from there.</source>
        <translation>La pasada en curso se interrumpirá: %1. El próximo inicio continuará desde ahí.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>Seguir funcionando</translation>
    </message>
    <message>
        <source>Last success: %1, %2</source>
        <translation>Último éxito: %1, %2</translation>
    </message>
    <message>
        <source>No pass has ended yet. How it went will stand here.</source>
        <translation>Aún no ha terminado ninguna pasada. Aquí se verá cómo fue.</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln passes)</source>
        <translation>
            <numerusform>%1 (%Ln pasada)</numerusform>
            <numerusform>%1 (%Ln pasadas)</numerusform>
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
        <translation>No se puede llevar el historial de pasadas: %1</translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %1</source>
        <translation>El archivo de ajustes estaba dañado. Se conserva como %1</translation>
    </message>
    <message>
        <source>The record of passes was damaged. It is kept as %1</source>
        <translation>El historial de pasadas estaba dañado. Se conserva como %1</translation>
    </message>
    <message>
        <source>The record of passes was removed or replaced. The passes since the start were written again</source>
        <translation>El historial de pasadas fue eliminado o sustituido. Las pasadas desde el inicio se han escrito de nuevo</translation>
    </message>
    <message>
        <source>No key yet. Set one up to be let in by the remote Mac.</source>
        <translation>Aún no hay clave. Cree una para que el Mac remoto le deje entrar.</translation>
    </message>
    <message>
        <source>Key made. Fill in host name and user to have it accepted.</source>
        <translation>Clave creada. Indique host y usuario para que sea aceptada.</translation>
    </message>
    <message>
        <source>Key made. The remote Mac has not been asked yet.</source>
        <translation>Clave creada. Aún no se ha preguntado al Mac remoto.</translation>
    </message>
    <message>
        <source>Asking the remote Mac…</source>
        <translation>Preguntando al Mac remoto…</translation>
    </message>
    <message>
        <source>Key accepted by the remote Mac.</source>
        <translation>Clave aceptada por el Mac remoto.</translation>
    </message>
    <message>
        <source>Key made, not accepted by the remote Mac yet.</source>
        <translation>Clave creada, aún no aceptada por el Mac remoto.</translation>
    </message>
    <message>
        <source>Key made. The remote Mac is not on the network right now.</source>
        <translation>Clave creada. El Mac remoto no está en la red en este momento.</translation>
    </message>
    <message>
        <source>%1 was not written by Kelvo Mirror and is left alone. Move it away to switch this on here.</source>
        <translation>%1 no lo escribió Kelvo Mirror y no se toca. Muévalo a otro sitio para activar aquí esta opción.</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2</source>
        <translation>%1 no se puede cambiar: %2</translation>
    </message>
    <message>
        <source>Kelvo Mirror is well again</source>
        <translation>Kelvo Mirror vuelve a funcionar bien</translation>
    </message>
    <message>
        <source>The last pass went well: %1.</source>
        <translation>La última pasada fue bien: %1.</translation>
    </message>
    <message>
        <source>Kelvo Mirror is in trouble</source>
        <translation>Kelvo Mirror tiene problemas</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new movies</source>
        <translation>
            <numerusform>%Ln película nueva</numerusform>
            <numerusform>%Ln películas nuevas</numerusform>
        </translation>
    </message>
    <message>
        <source>All is well.</source>
        <translation>Todo va bien.</translation>
    </message>
    <message>
        <source>No Mac answers to this name on the network.</source>
        <translation>Ningún Mac responde a este nombre en la red.</translation>
    </message>
    <message>
        <source>No Mac answers to this name on the network since %1.</source>
        <translation>Desde %1, ningún Mac responde a este nombre en la red.</translation>
    </message>
    <message>
        <source>Check the host name, and that the Mac is switched on and in this network.</source>
        <translation>Compruebe el nombre de host, y que el Mac está encendido y en esta red.</translation>
    </message>
    <message>
        <source>The Mac is away or asleep.</source>
        <translation>El Mac no está disponible o está en reposo.</translation>
    </message>
    <message>
        <source>The Mac is away or asleep since %1.</source>
        <translation>Desde %1, el Mac no está disponible o está en reposo.</translation>
    </message>
    <message>
        <source>Wake the Mac; in its energy settings, let it wake for network access.</source>
        <translation>Despierte el Mac; en sus ajustes de energía, permita que se active para el acceso a la red.</translation>
    </message>
    <message>
        <source>The Mac is there but refuses logins.</source>
        <translation>El Mac responde, pero rechaza los inicios de sesión.</translation>
    </message>
    <message>
        <source>The Mac is there but refuses logins since %1.</source>
        <translation>El Mac responde, pero desde %1 rechaza los inicios de sesión.</translation>
    </message>
    <message>
        <source>On the Mac, switch on Remote Login (System Settings, General, Sharing).</source>
        <translation>En el Mac, active Sesión remota (Ajustes del Sistema, General, Compartir).</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before.</source>
        <translation>Este equipo aún no conoce el Mac.</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before since %1.</source>
        <translation>Este equipo aún no conoce el Mac (desde %1).</translation>
    </message>
    <message>
        <source>Log in once with ssh in a terminal and accept the Mac&apos;s key.</source>
        <translation>Entre una vez con ssh en un terminal y acepte la clave del Mac.</translation>
    </message>
    <message>
        <source>The Mac shows another key than before: it was set up anew, or another machine has taken its name.</source>
        <translation>El Mac muestra otra clave que antes: se configuró de nuevo, u otro equipo ha tomado su nombre.</translation>
    </message>
    <message>
        <source>The Mac shows another key than before since %1: it was set up anew, or another machine has taken its name.</source>
        <translation>Desde %1, el Mac muestra otra clave que antes: se configuró de nuevo, u otro equipo ha tomado su nombre.</translation>
    </message>
    <message>
        <source>If you know why, remove the old key with ssh-keygen -R and the host name, then accept the new one.</source>
        <translation>Si sabe por qué, quite la clave antigua con ssh-keygen -R y el nombre de host, y acepte la nueva.</translation>
    </message>
    <message>
        <source>The Mac does not take this key for this user.</source>
        <translation>El Mac no acepta esta clave para este usuario.</translation>
    </message>
    <message>
        <source>The Mac does not take this key for this user since %1.</source>
        <translation>Desde %1, el Mac no acepta esta clave para este usuario.</translation>
    </message>
    <message>
        <source>Check the user name, then install the key on the Mac again.</source>
        <translation>Compruebe el nombre de usuario e instale de nuevo la clave en el Mac.</translation>
    </message>
    <message>
        <source>The program&apos;s own ssh key is missing here.</source>
        <translation>Aquí falta la clave ssh propia del programa.</translation>
    </message>
    <message>
        <source>The program&apos;s own ssh key is missing here since %1.</source>
        <translation>Desde %1, falta aquí la clave ssh propia del programa.</translation>
    </message>
    <message>
        <source>Make the key and install it on the Mac.</source>
        <translation>Cree la clave e instálela en el Mac.</translation>
    </message>
    <message>
        <source>The Mac calls this user by another name.</source>
        <translation>El Mac da otro nombre a este usuario.</translation>
    </message>
    <message>
        <source>The Mac calls this user by another name since %1.</source>
        <translation>Desde %1, el Mac da otro nombre a este usuario.</translation>
    </message>
    <message>
        <source>Enter the account name that whoami prints on the Mac.</source>
        <translation>Indique el nombre de cuenta que whoami muestra en el Mac.</translation>
    </message>
    <message>
        <source>The Mac prints a text at each login, which hides its answer.</source>
        <translation>El Mac muestra un texto en cada inicio de sesión, lo que oculta su respuesta.</translation>
    </message>
    <message>
        <source>The Mac prints a text at each login since %1, which hides its answer.</source>
        <translation>Desde %1, el Mac muestra un texto en cada inicio de sesión, lo que oculta su respuesta.</translation>
    </message>
    <message>
        <source>On the Mac, remove what the shell&apos;s start file (.zshenv, .bashrc) prints.</source>
        <translation>En el Mac, quite lo que muestra el archivo de inicio del shell (.zshenv, .bashrc).</translation>
    </message>
    <message>
        <source>There is no rsync on the Mac.</source>
        <translation>No hay rsync en el Mac.</translation>
    </message>
    <message>
        <source>There is no rsync on the Mac since %1.</source>
        <translation>Desde %1 no hay rsync en el Mac.</translation>
    </message>
    <message>
        <source>Install rsync on the Mac, or give its place in the template with --rsync-path.</source>
        <translation>Instale rsync en el Mac, o indique su lugar en la plantilla con --rsync-path.</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for an option of the template.</source>
        <translation>El rsync del Mac es demasiado antiguo para una opción de la plantilla.</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for an option of the template since %1.</source>
        <translation>Desde %1, el rsync del Mac es demasiado antiguo para una opción de la plantilla.</translation>
    </message>
    <message>
        <source>Update rsync on the Mac, or take the option out of the template.</source>
        <translation>Actualice rsync en el Mac, o quite la opción de la plantilla.</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for the built-in movie command: only what the template takes has arrived.</source>
        <translation>El rsync del Mac es demasiado antiguo para la orden de películas incorporada: solo ha llegado lo que toma la plantilla.</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for the built-in movie command since %1: only what the template takes has arrived.</source>
        <translation>Desde %1, el rsync del Mac es demasiado antiguo para la orden de películas incorporada: solo ha llegado lo que toma la plantilla.</translation>
    </message>
    <message>
        <source>Update rsync on the Mac, or let the template take every movie: without filters, and with -r.</source>
        <translation>Actualice rsync en el Mac, o deje que la plantilla tome todas las películas: sin filtros y con -r.</translation>
    </message>
    <message>
        <source>The source folder is not there.</source>
        <translation>La carpeta de origen no está.</translation>
    </message>
    <message>
        <source>The source folder is not there since %1.</source>
        <translation>Desde %1, la carpeta de origen no está.</translation>
    </message>
    <message>
        <source>Check the remote path, and that the disk with it is connected.</source>
        <translation>Compruebe la ruta remota, y que su disco está conectado.</translation>
    </message>
    <message>
        <source>A source folder may not be read.</source>
        <translation>Una carpeta de origen no se puede leer.</translation>
    </message>
    <message>
        <source>A source folder may not be read since %1.</source>
        <translation>Desde %1, una carpeta de origen no se puede leer.</translation>
    </message>
    <message>
        <source>On the Mac, allow full disk access for remote users (in Remote Login), or change the folder&apos;s permissions.</source>
        <translation>En el Mac, permita acceso total al disco a los usuarios remotos (en Sesión remota), o cambie los permisos de la carpeta.</translation>
    </message>
    <message>
        <source>The disk here is full.</source>
        <translation>El disco de aquí está lleno.</translation>
    </message>
    <message>
        <source>The disk here is full since %1.</source>
        <translation>Desde %1, el disco de aquí está lleno.</translation>
    </message>
    <message>
        <source>Make room on the disk of the destination folder.</source>
        <translation>Haga sitio en el disco de la carpeta de destino.</translation>
    </message>
    <message>
        <source>The destination folder is missing or cannot be written since %1.</source>
        <translation>Desde %1, la carpeta de destino falta o no se puede escribir en ella.</translation>
    </message>
    <message>
        <source>Connect its disk, or choose another destination folder.</source>
        <translation>Conecte su disco, o elija otra carpeta de destino.</translation>
    </message>
    <message>
        <source>Another program is pulling into this folder.</source>
        <translation>Otro programa está llenando esta carpeta.</translation>
    </message>
    <message>
        <source>Another program is pulling into this folder since %1.</source>
        <translation>Desde %1, otro programa está llenando esta carpeta.</translation>
    </message>
    <message>
        <source>Give each program a destination folder of its own, or end the other one.</source>
        <translation>Dé a cada programa su propia carpeta de destino, o termine el otro.</translation>
    </message>
    <message>
        <source>A command of the pass is not installed here.</source>
        <translation>Una orden de la pasada no está instalada aquí.</translation>
    </message>
    <message>
        <source>A command of the pass is not installed here since %1.</source>
        <translation>Desde %1, una orden de la pasada no está instalada aquí.</translation>
    </message>
    <message>
        <source>Install rsync and ssh on this machine, or correct the command template.</source>
        <translation>Instale rsync y ssh en este equipo, o corrija la plantilla de orden.</translation>
    </message>
    <message>
        <source>The command template cannot be run.</source>
        <translation>La plantilla de orden no se puede ejecutar.</translation>
    </message>
    <message>
        <source>The command template cannot be run since %1.</source>
        <translation>Desde %1, la plantilla de orden no se puede ejecutar.</translation>
    </message>
    <message>
        <source>Correct the rsync command template in the settings.</source>
        <translation>Corrija la plantilla de orden rsync en los ajustes.</translation>
    </message>
    <message>
        <source>Some files vanished from the source while they were copied.</source>
        <translation>Algunos archivos desaparecieron del origen mientras se copiaban.</translation>
    </message>
    <message>
        <source>Nothing: the next pass brings what is there then.</source>
        <translation>Nada: la pasada siguiente trae lo que haya entonces.</translation>
    </message>
    <message>
        <source>Some files could not be taken.</source>
        <translation>Algunos archivos no se pudieron copiar.</translation>
    </message>
    <message>
        <source>Some files could not be taken since %1.</source>
        <translation>Desde %1, algunos archivos no se pueden copiar.</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for their names and reasons.</source>
        <translation>Vea en el texto de la pasada sus nombres y motivos.</translation>
    </message>
    <message>
        <source>The connection gave way in the middle of the transfer.</source>
        <translation>La conexión se cortó en mitad de la transferencia.</translation>
    </message>
    <message>
        <source>The connection gave way in the middle of the transfer since %1.</source>
        <translation>Desde %1, la conexión se corta en mitad de la transferencia.</translation>
    </message>
    <message>
        <source>Check the network; the next pass goes on where this one stopped.</source>
        <translation>Compruebe la red; la pasada siguiente continúa donde esta se detuvo.</translation>
    </message>
    <message>
        <source>The pass cannot run: a folder, the host or the user is not set.</source>
        <translation>La pasada no puede hacerse: falta una carpeta, el host o el usuario.</translation>
    </message>
    <message>
        <source>The pass cannot run since %1: a folder, the host or the user is not set.</source>
        <translation>Desde %1, la pasada no puede hacerse: falta una carpeta, el host o el usuario.</translation>
    </message>
    <message>
        <source>Choose the Mac, the user name and both folders.</source>
        <translation>Elija el Mac, el nombre de usuario y ambas carpetas.</translation>
    </message>
    <message>
        <source>The pass was not begun: a text in the settings cannot stand in a command.</source>
        <translation>La pasada no se empezó: un texto de los ajustes no puede estar en una orden.</translation>
    </message>
    <message>
        <source>The pass was not begun since %1: a text in the settings cannot stand in a command.</source>
        <translation>Desde %1, la pasada no se empieza: un texto de los ajustes no puede estar en una orden.</translation>
    </message>
    <message>
        <source>Choose another folder, user name or host: without a line break, and no &quot;-&quot; in front.</source>
        <translation>Elija otra carpeta, nombre de usuario o host: sin salto de línea y sin «-» delante.</translation>
    </message>
    <message>
        <source>The program was ended during the pass.</source>
        <translation>El programa se terminó durante la pasada.</translation>
    </message>
    <message>
        <source>Nothing: start it again.</source>
        <translation>Nada: inícielo de nuevo.</translation>
    </message>
    <message>
        <source>Cancelled by you.</source>
        <translation>Cancelada por usted.</translation>
    </message>
    <message>
        <source>Nothing: the next pass goes on where this one stopped.</source>
        <translation>Nada: la pasada siguiente continúa donde esta se detuvo.</translation>
    </message>
    <message>
        <source>The files have arrived, but the command that is run after arrivals failed.</source>
        <translation>Los archivos han llegado, pero la orden que se ejecuta tras las llegadas ha fallado.</translation>
    </message>
    <message>
        <source>The files have arrived, but the command that is run after arrivals failed since %1.</source>
        <translation>Los archivos han llegado, pero desde %1 la orden que se ejecuta tras las llegadas falla.</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for what it said, or correct it in the settings.</source>
        <translation>Vea en el texto de la pasada lo que dijo, o corríjala en los ajustes.</translation>
    </message>
    <message>
        <source>Something went wrong.</source>
        <translation>Algo ha ido mal.</translation>
    </message>
    <message>
        <source>Something went wrong since %1.</source>
        <translation>Desde %1, algo va mal.</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for what the commands said.</source>
        <translation>Vea en el texto de la pasada lo que dijeron las órdenes.</translation>
    </message>
    <message>
        <source>The last line was: %1</source>
        <translation>La última línea fue: %1</translation>
    </message>
    <message>
        <source>The reason: %1.</source>
        <translation>El motivo: %1.</translation>
    </message>
    <message>
        <source>files unknown</source>
        <translation>archivos desconocidos</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln archivo</numerusform>
            <numerusform>%Ln archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>no transfer</source>
        <translation>sin transferencia</translation>
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
        <translation>ahora mismo</translation>
    </message>
    <message numerus="yes">
        <source>%Ln minutes ago</source>
        <translation>
            <numerusform>hace %Ln minuto</numerusform>
            <numerusform>hace %Ln minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hours ago</source>
        <translation>
            <numerusform>hace %Ln hora</numerusform>
            <numerusform>hace %Ln horas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days ago</source>
        <translation>
            <numerusform>hace %Ln día</numerusform>
            <numerusform>hace %Ln días</numerusform>
        </translation>
    </message>
    <message>
        <source>Reveal In Finder</source>
        <translation>Mostrar en el gestor de archivos</translation>
    </message>
    <message>
        <source>path:
%1</source>
        <translation>ruta:
%1</translation>
    </message>
    <message>
        <source>Stop Syncing</source>
        <translation>Detener la sincronización</translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation>Iniciar la sincronización</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Copiar la orden</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>No Terminal Found</source>
        <translation>No se encontró ningún terminal</translation>
    </message>
    <message>
        <source>Please run this command in a terminal and answer what it asks:

%1</source>
        <translation>Ejecute esta orden en un terminal y responda a lo que pregunte:

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
        <translation>La sincronización está desactivada</translation>
    </message>
    <message>
        <source>Waiting for what is missing</source>
        <translation>Esperando lo que falta</translation>
    </message>
    <message>
        <source>Finishing this pass…</source>
        <translation>Terminando esta pasada…</translation>
    </message>
    <message>
        <source>Cancelling this pass…</source>
        <translation>Cancelando esta pasada…</translation>
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
        <translation>Sincronizando: preguntando al Mac</translation>
    </message>
    <message>
        <source>Syncing: first pull</source>
        <translation>Sincronizando: primera transferencia</translation>
    </message>
    <message>
        <source>Syncing: copying</source>
        <translation>Sincronizando: copiando</translation>
    </message>
    <message>
        <source>Syncing: movies</source>
        <translation>Sincronizando: películas</translation>
    </message>
    <message>
        <source>Syncing: after arrivals</source>
        <translation>Sincronizando: tras las llegadas</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Sincronizando</translation>
    </message>
    <message>
        <source>a few seconds</source>
        <translation>unos segundos</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>aprox. %1</translation>
    </message>
    <message>
        <source>Asking the Mac</source>
        <translation>Preguntando al Mac</translation>
    </message>
    <message>
        <source>First pull</source>
        <translation>Primera transferencia</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Copiando</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Películas</translation>
    </message>
    <message>
        <source>After arrivals</source>
        <translation>Tras las llegadas</translation>
    </message>
    <message>
        <source>file %L1 of %L2</source>
        <translation>archivo %L1 de %L2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>as in: 18.2 of 37.6 GB</comment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>as in: 92.0 MB/s</comment>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>Next pass in %1</source>
        <translation>Próxima pasada en %1</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Sincronizando: %1</translation>
    </message>
    <message>
        <source>Syncing: %1, %2</source>
        <translation>Sincronizando: %1, %2</translation>
    </message>
    <message>
        <source>All is well, next pass in %1</source>
        <translation>Todo va bien, próxima pasada en %1</translation>
    </message>
    <message>
        <source>All is well</source>
        <translation>Todo va bien</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>two movies</comment>
        <translation>%1 y %2</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 and %Ln more</source>
        <translation>
            <numerusform>%1, %2 y %Ln más</numerusform>
            <numerusform>%1, %2 y %Ln más</numerusform>
        </translation>
    </message>
    <message>
        <source>… 1 byte left out …</source>
        <translation>… 1 byte omitido …</translation>
    </message>
    <message>
        <source>Make a new key?</source>
        <translation>¿Crear una clave nueva?</translation>
    </message>
    <message>
        <source>The Mac will not let Kelvo Mirror in until the new key is installed there with Set Up Key…, which asks for the password on the Mac. Until then no pass brings movies.

The key of today is kept beside the new one, under a name with the date, and is not used any more.</source>
        <translation>El Mac no dejará entrar a Kelvo Mirror hasta que la clave nueva se instale allí con Configurar clave…, que pide la contraseña de la cuenta en el Mac. Hasta entonces ninguna pasada traerá películas.

La clave actual se guarda junto a la nueva, con un nombre que lleva la fecha, y ya no se usa.</translation>
    </message>
    <message>
        <source>Make a New Key</source>
        <translation>Crear una clave nueva</translation>
    </message>
    <message>
        <source>Keep the Key</source>
        <translation>Conservar la clave</translation>
    </message>
    <message>
        <source>The key was not replaced</source>
        <translation>La clave no se ha sustituido</translation>
    </message>
    <message>
        <source>The key of today could not be kept, so nothing was changed.

%1</source>
        <translation>La clave actual no se pudo guardar, así que no se ha cambiado nada.

%1</translation>
    </message>
    <message>
        <source>No new key was made</source>
        <translation>No se ha creado ninguna clave nueva</translation>
    </message>
    <message>
        <source>The key that was there before could not be put back. It lies at %1.

%2</source>
        <translation>La clave anterior no se pudo devolver a su sitio. Está en %1.

%2</translation>
    </message>
    <message>
        <source>The key that was there before is in its place again.</source>
        <translation>La clave anterior está de nuevo en su sitio.</translation>
    </message>
    <message>
        <source>No Mac chosen yet.</source>
        <translation>Aún no se ha elegido ningún Mac.</translation>
    </message>
    <message>
        <source>Choose the Mac from the list of those in this network, or type its host name.</source>
        <translation>Elija el Mac en la lista de los de esta red, o escriba su nombre de host.</translation>
    </message>
    <message>
        <source>%1, folder %2</source>
        <translation>%1, carpeta %2</translation>
    </message>
    <message>
        <source>An account on the Mac that may log in there, and the folder with the movies.</source>
        <translation>Una cuenta del Mac que pueda iniciar sesión en él, y la carpeta con las películas.</translation>
    </message>
    <message>
        <source>Key made, and accepted by the remote Mac before.</source>
        <translation>Clave creada, y aceptada ya antes por el Mac remoto.</translation>
    </message>
    <message>
        <source>Key made. The remote Mac could not be asked about it.</source>
        <translation>Clave creada. No se pudo preguntar por ella al Mac remoto.</translation>
    </message>
    <message>
        <source>The key is installed on the Mac, so choose that and enter the account first.</source>
        <translation>La clave se instala en el Mac, así que primero elíjalo e indique la cuenta.</translation>
    </message>
    <message>
        <source>A terminal opens and asks for the password of %1 on %2; it is typed there and kept nowhere. When the two machines meet for the first time it asks before that whether to go on connecting: answer yes.</source>
        <translation>Se abre un terminal y pide la contraseña de %1 en %2; se escribe allí y no se guarda en ningún sitio. Cuando los dos equipos se encuentran por primera vez, el terminal pregunta antes si se sigue con la conexión: responda yes.</translation>
    </message>
    <message>
        <source>The Mac lets this program in.</source>
        <translation>El Mac deja entrar a este programa.</translation>
    </message>
    <message>
        <source>ssh is not installed on this machine. Install it with: %1</source>
        <translation>ssh no está instalado en este equipo. Instálelo con: %1</translation>
    </message>
    <message>
        <source>The Mac was not asked, because %1.</source>
        <translation>No se preguntó al Mac porque %1.</translation>
    </message>
    <message>
        <source>The Mac was not reached, or did not say a word. Test it once more, or log in with ssh in a terminal and see what it says.</source>
        <translation>No se pudo llegar al Mac, o no dijo nada. Pruebe otra vez, o entre con ssh en un terminal y vea qué dice.</translation>
    </message>
    <message>
        <source>The Mac did not answer as it should. The last line was: %1</source>
        <translation>El Mac no respondió como debería. La última línea fue: %1</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before. Set up the key: the terminal asks whether to trust the Mac.</source>
        <translation>Este equipo aún no conoce el Mac. Configure la clave: el terminal pregunta si se confía en el Mac.</translation>
    </message>
    <message>
        <source>The Mac does not let this program in yet.</source>
        <translation>El Mac aún no deja entrar a este programa.</translation>
    </message>
    <message>
        <source>Not tried yet.</source>
        <translation>Aún no se ha probado.</translation>
    </message>
    <message>
        <source>Asked at %1.</source>
        <translation>Última consulta: %1.</translation>
    </message>
    <message>
        <source>The message &quot;SUCCESS...&quot; only means that ssh named neither a missing key file nor an unknown host name; this line says what came of it.</source>
        <translation>El mensaje «CORRECTO...» solo significa que ssh no señaló ni un archivo de clave que falte ni un nombre de host desconocido; esta línea dice cuál fue el resultado.</translation>
    </message>
    <message>
        <source>Kelvo Mirror: the password of %1 on %2</source>
        <translation>Kelvo Mirror: contraseña de %1 en %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Macs found.</source>
        <translation>
            <numerusform>%Ln Mac encontrado.</numerusform>
            <numerusform>%Ln Mac encontrados.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its icon in the tray brings the window back; the icon&apos;s menu ends the program.</source>
        <translation>Su icono en la bandeja recupera la ventana; el menú del icono termina el programa.</translation>
    </message>
</context>
<context>
    <name>kelvo::ApplicationMenu</name>
    <message>
        <source>Application menu</source>
        <translation>Menú de la aplicación</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>&amp;Cerrar la ventana</translation>
    </message>
    <message>
        <source>Quit and &amp;Relaunch</source>
        <translation>Salir y &amp;relanzar</translation>
    </message>
    <message>
        <source>Ends the program and starts it again</source>
        <translation>Termina el programa y lo inicia de nuevo</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>A&amp;justes…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Passes</source>
        <translation>&amp;Pasadas</translation>
    </message>
    <message>
        <source>&amp;Start Syncing</source>
        <translation>&amp;Iniciar la sincronización</translation>
    </message>
    <message>
        <source>Switches syncing on and off</source>
        <translation>Activa y desactiva la sincronización</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>Sincronizar a&amp;hora</translation>
    </message>
    <message>
        <source>Begins the next pass now</source>
        <translation>Empieza ahora la pasada siguiente</translation>
    </message>
    <message>
        <source>&amp;Cancel This Pass</source>
        <translation>Ca&amp;ncelar esta pasada</translation>
    </message>
    <message>
        <source>Ends the pass that runs; what it has begun to copy is kept for the next one</source>
        <translation>Termina la pasada en curso; lo que empezó a copiar se guarda para la siguiente</translation>
    </message>
    <message>
        <source>&amp;Stop Syncing</source>
        <translation>&amp;Detener la sincronización</translation>
    </message>
    <message>
        <source>&amp;Tray</source>
        <translation>&amp;Bandeja</translation>
    </message>
    <message>
        <source>&amp;Set Up Tray Icon</source>
        <translation>&amp;Poner el icono en la bandeja</translation>
    </message>
    <message>
        <source>Shows the program&apos;s icon in the tray</source>
        <translation>Muestra el icono del programa en la bandeja</translation>
    </message>
    <message>
        <source>&amp;Remove Tray Icon</source>
        <translation>&amp;Quitar el icono de la bandeja</translation>
    </message>
    <message>
        <source>Takes the icon out of the tray; the program keeps running</source>
        <translation>Quita el icono de la bandeja; el programa sigue funcionando</translation>
    </message>
    <message>
        <source>Remove Tray Icon as &amp;Before a Relaunch</source>
        <translation>Quitar el icono como &amp;antes de relanzar</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Open &amp;Log Folder</source>
        <translation>Abrir la carpeta del &amp;registro</translation>
    </message>
    <message>
        <source>&amp;About Kelvo Mirror</source>
        <translation>A&amp;cerca de Kelvo Mirror</translation>
    </message>
    <message>
        <source>Syncing is off</source>
        <translation>La sincronización está desactivada</translation>
    </message>
    <message>
        <source>A pass begins as soon as nothing is missing</source>
        <translation>Una pasada empieza en cuanto no falte nada</translation>
    </message>
    <message>
        <source>A pass runs already</source>
        <translation>Ya hay una pasada en curso</translation>
    </message>
    <message>
        <source>The next pass begins in a moment</source>
        <translation>La pasada siguiente empieza enseguida</translation>
    </message>
    <message>
        <source>The pass is being cancelled already</source>
        <translation>La pasada ya se está cancelando</translation>
    </message>
    <message>
        <source>No pass runs</source>
        <translation>No hay ninguna pasada en curso</translation>
    </message>
    <message>
        <source>The icon is in the tray already</source>
        <translation>El icono ya está en la bandeja</translation>
    </message>
    <message>
        <source>The icon appears as soon as the desktop has a tray for it</source>
        <translation>El icono aparece en cuanto el escritorio tenga una bandeja para él</translation>
    </message>
    <message>
        <source>The icon is not in the tray</source>
        <translation>El icono no está en la bandeja</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>&amp;Diagnóstico</translation>
    </message>
    <message>
        <source>A tab and menu entries for finding out why something does not work</source>
        <translation>Una pestaña y entradas de menú para averiguar por qué algo no funciona</translation>
    </message>
    <message>
        <source>Takes the icon out of the tray as Quit and Relaunch does; the program keeps running</source>
        <translation>Quita el icono de la bandeja como lo hace Salir y relanzar; el programa sigue funcionando</translation>
    </message>
    <message>
        <source>Start Again After a &amp;Crash</source>
        <translation>Relanzar tras un &amp;fallo</translation>
    </message>
    <message>
        <source>Has the program started again should it crash; each start does this by itself</source>
        <translation>Hace que el programa se inicie de nuevo si falla; cada inicio se encarga de ello por sí solo</translation>
    </message>
    <message>
        <source>&amp;Another Mac…</source>
        <translation>&amp;Otro Mac…</translation>
    </message>
    <message>
        <source>Opens a window of its own for one more Mac</source>
        <translation>Abre una ventana propia para un Mac más</translation>
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
        <translation>Hora</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
</context>
<context>
    <name>kelvo::ArrivalsView</name>
    <message>
        <source>not there any more</source>
        <translation>ya no está</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Reveal</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation>&amp;Copiar la ruta</translation>
    </message>
    <message>
        <source>Nothing has arrived yet.

The movies that a pass brings will stand here.</source>
        <translation>Aún no ha llegado nada.

Las películas que traiga una pasada aparecerán aquí.</translation>
    </message>
    <message>
        <source>No movie with this text in its path has arrived.</source>
        <translation>No ha llegado ninguna película con este texto en su ruta.</translation>
    </message>
    <message>
        <source>its name is not UTF-8</source>
        <translation>su nombre no es UTF-8</translation>
    </message>
</context>
<context>
    <name>kelvo::BonjourSheet</name>
    <message>
        <source>Discovery is not installed on this computer. Install it with:

%1

The list fills by itself once discovery runs. Without it, type the Mac&apos;s host name on the Remote Mac tab.</source>
        <translation>La detección de red no está instalada en este equipo. Instálela con:

%1

La lista se llena sola en cuanto la detección funcione. Sin ella, escriba el nombre de host del Mac en la pestaña Mac remoto.</translation>
    </message>
    <message>
        <source>Discovery is not running on this computer. Start it with:

%1

The list fills by itself once discovery runs. Without it, type the Mac&apos;s host name on the Remote Mac tab.</source>
        <translation>La detección de red no está en marcha en este equipo. Iníciela con:

%1

La lista se llena sola en cuanto la detección funcione. Sin ella, escriba el nombre de host del Mac en la pestaña Mac remoto.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.

Connect it to the network of the Mac. Then choose Rescan.</source>
        <translation>Este equipo no está conectado a ninguna red.

Conéctelo a la red del Mac. Después elija Buscar de nuevo.</translation>
    </message>
    <message>
        <source>No Mac has answered yet.

Discovery has only just started; the search goes on.</source>
        <translation>Aún no ha respondido ningún Mac.

La detección de red acaba de iniciarse; la búsqueda continúa.</translation>
    </message>
    <message>
        <source>No Mac was found.

On the Mac, open System Settings, General, Sharing, and check that File Sharing and Remote Login are on.
Check that both computers are on the same network.
Then choose Rescan.

The Mac&apos;s host name can also be typed on the Remote Mac tab.</source>
        <translation>No se encontró ningún Mac.

En el Mac, abra Ajustes del Sistema, General, Compartir, y compruebe que Compartir archivos y Sesión remota están activados.
Compruebe que ambos equipos están en la misma red.
Después elija Buscar de nuevo.

El nombre de host del Mac también se puede escribir en la pestaña Mac remoto.</translation>
    </message>
</context>
<context>
    <name>kelvo::BusNotices</name>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
</context>
<context>
    <name>kelvo::BusyRow</name>
    <message>
        <source>Cance&amp;l</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>Ends what the program is doing for this tab</source>
        <translation>Termina lo que el programa está haciendo para esta pestaña</translation>
    </message>
    <message>
        <source>Opening the remote folder…</source>
        <translation>Abriendo la carpeta remota…</translation>
    </message>
    <message>
        <source>Setting up the key…</source>
        <translation>Configurando la clave…</translation>
    </message>
    <message>
        <source>Making a new key…</source>
        <translation>Creando una clave nueva…</translation>
    </message>
    <message>
        <source>Being cancelled…</source>
        <translation>Cancelando…</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>Finished.</source>
        <translation>Terminado.</translation>
    </message>
</context>
<context>
    <name>kelvo::ChecklistView</name>
    <message>
        <source>What is missing before a pass</source>
        <translation>Lo que falta antes de una pasada</translation>
    </message>
    <message>
        <source>Next step</source>
        <translation>Siguiente paso</translation>
    </message>
</context>
<context>
    <name>kelvo::DayChart</name>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Películas</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>in trouble</source>
        <translation>con problemas</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a day, what came on it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing has arrived. The arrow keys go from day to day.</source>
        <translation>No ha llegado nada. Las teclas de flecha pasan de un día a otro.</translation>
    </message>
    <message>
        <source>%1. The most came on this day: %2, %3. The arrow keys go from day to day.</source>
        <translation>%1. El día con más llegadas: %2, %3. Las teclas de flecha pasan de un día a otro.</translation>
    </message>
</context>
<context>
    <name>kelvo::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccionar t&amp;odo</translation>
    </message>
</context>
<context>
    <name>kelvo::ElidedLabel</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
</context>
<context>
    <name>kelvo::HealthView</name>
    <message>
        <source>All is well</source>
        <translation>Todo va bien</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Not known yet</source>
        <translation>Aún no se sabe</translation>
    </message>
    <message>
        <source>Next step</source>
        <translation>Siguiente paso</translation>
    </message>
    <message>
        <source>Does the next step</source>
        <translation>Realiza el siguiente paso</translation>
    </message>
    <message>
        <source>How the last pass went will stand here.</source>
        <translation>Aquí se verá cómo fue la última pasada.</translation>
    </message>
</context>
<context>
    <name>kelvo::MainWindow</name>
    <message>
        <source>Sync</source>
        <translation>Sincronización</translation>
    </message>
    <message>
        <source>Remote Mac</source>
        <translation>Mac remoto</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnóstico</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Actividad</translation>
    </message>
</context>
<context>
    <name>kelvo::PassRows</name>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Cuándo</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Duración</translation>
    </message>
</context>
<context>
    <name>kelvo::PassesView</name>
    <message>
        <source>Export passes</source>
        <translation>Exportar pasadas</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Valores separados por comas (*.csv)</translation>
    </message>
    <message>
        <source>Not written: %1</source>
        <translation>No se escribió: %1</translation>
    </message>
</context>
<context>
    <name>kelvo::PathControlView</name>
    <message>
        <source>Folders above</source>
        <translation>Carpetas superiores</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Abrir %1</translation>
    </message>
</context>
<context>
    <name>kelvo::ProfilesSheet</name>
    <message>
        <source>Without a name</source>
        <translation>Sin nombre</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Ninguno aún</translation>
    </message>
    <message>
        <source>This window</source>
        <translation>Esta ventana</translation>
    </message>
    <message>
        <source>Running, in trouble</source>
        <translation>En marcha, con problemas</translation>
    </message>
    <message>
        <source>Not running, in trouble</source>
        <translation>Parado, con problemas</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En marcha</translation>
    </message>
    <message>
        <source>Not running</source>
        <translation>Parado</translation>
    </message>
    <message>
        <source>A name has 1 to 64 letters (A to Z), digits, “-” and “_”, and no blank.</source>
        <translation>Un nombre tiene de 1 a 64 letras (A a Z), cifras, «-» y «_», sin espacios.</translation>
    </message>
    <message>
        <source>No window could be opened: %1</source>
        <translation>No se pudo abrir ninguna ventana: %1</translation>
    </message>
</context>
<context>
    <name>kelvo::ProgressView</name>
    <message>
        <source>Progress of the pass</source>
        <translation>Avance de la pasada</translation>
    </message>
    <message>
        <source>The movie that is being copied will stand here.</source>
        <translation>Aquí se verá la película que se está copiando.</translation>
    </message>
</context>
<context>
    <name>kelvo::RecentArrivals</name>
    <message>
        <source>Movies that have arrived will stand here, the newest first. A double click opens one.</source>
        <translation>Las películas que lleguen aparecerán aquí, las más nuevas primero. Un doble clic abre una.</translation>
    </message>
    <message>
        <source>Movies that arrived last</source>
        <translation>Últimas películas que llegaron</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Llegadas</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
</context>
<context>
    <name>kelvo::RemoteTab</name>
    <message>
        <source>none yet</source>
        <translation>aún ninguno</translation>
    </message>
</context>
<context>
    <name>kelvo::ServiceRows</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
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
        <translation>Todo archivo que difiera</translation>
    </message>
    <message>
        <source>Only files newer than here (--update)</source>
        <translation>Solo archivos más nuevos que los de aquí (--update)</translation>
    </message>
    <message>
        <source>Only files not here yet (--ignore-existing)</source>
        <translation>Solo archivos que aún no están aquí (--ignore-existing)</translation>
    </message>
    <message>
        <source>Every file that differs (stored as 105)</source>
        <translation>Todo archivo que difiera (guardado como 105)</translation>
    </message>
    <message>
        <source>Not a valid option (%1)</source>
        <translation>Opción no válida (%1)</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>The template lacks %@1, the source: its command does not read the source that is chosen.</source>
        <translation>A la plantilla le falta %@1, el origen: su orden no lee el origen elegido.</translation>
    </message>
    <message>
        <source>The template lacks %@2, the destination: its command does not fill the folder that is chosen.</source>
        <translation>A la plantilla le falta %@2, el destino: su orden no llena la carpeta elegida.</translation>
    </message>
    <message>
        <source>The template lacks %@98, the options of ssh: its command does not use the key that was set up.</source>
        <translation>A la plantilla le falta %@98, las opciones de ssh: su orden no usa la clave configurada.</translation>
    </message>
    <message>
        <source>The template lacks %@99, the option: the option that is chosen changes nothing.</source>
        <translation>A la plantilla le falta %@99, la opción: la opción elegida no cambia nada.</translation>
    </message>
    <message>
        <source>The template has a folder where its name may fall apart: passes are refused when the name holds blanks, quotes or the like.</source>
        <translation>La plantilla coloca una carpeta donde su nombre puede partirse: las pasadas se rechazan cuando el nombre contiene espacios, comillas o similares.</translation>
    </message>
    <message>
        <source>The template under Advanced is your own and is left alone: the kinds of movies are written there.</source>
        <translation>La plantilla de Avanzado es suya y no se toca: los formatos de película están escritos en ella.</translation>
    </message>
    <message>
        <source>Movies of the kinds .mov and .mp4 always come from the remote Mac.</source>
        <translation>Las películas de los formatos .mov y .mp4 siempre vienen del Mac remoto.</translation>
    </message>
    <message>
        <source>No kind is ticked: passes bring nothing.</source>
        <translation>No hay ningún formato marcado: las pasadas no traen nada.</translation>
    </message>
    <message>
        <source>The rsync command with the places %@1 source, %@2 destination, %@3 key, %@98 ssh, %@99 option</source>
        <translation>La orden rsync con los marcadores %@1 origen, %@2 destino, %@3 clave, %@98 ssh, %@99 opción</translation>
    </message>
    <message>
        <source>Back to My Template</source>
        <translation>Volver a mi plantilla</translation>
    </message>
    <message>
        <source>Back to the Factory Template</source>
        <translation>Volver a la plantilla original</translation>
    </message>
    <message>
        <source>Brings back the template that the factory&apos;s took the place of</source>
        <translation>Recupera la plantilla que fue sustituida por la original</translation>
    </message>
    <message>
        <source>Takes the template that Kelvo Mirror comes with; asks before it replaces one that was changed by hand</source>
        <translation>Toma la plantilla que trae Kelvo Mirror; pregunta antes de sustituir una modificada a mano</translation>
    </message>
    <message>
        <source>Go back to the factory template?</source>
        <translation>¿Volver a la plantilla original?</translation>
    </message>
    <message>
        <source>Your own template is replaced. “Back to My Template” brings it back until the program ends.</source>
        <translation>Su plantilla se sustituye. «Volver a mi plantilla» la recupera mientras el programa esté en marcha.</translation>
    </message>
    <message>
        <source>Keep My Template</source>
        <translation>Conservar mi plantilla</translation>
    </message>
</context>
<context>
    <name>kelvo::SshLineBox</name>
    <message>
        <source>%1 was not changed: %2</source>
        <translation>%1 no se ha modificado: %2</translation>
    </message>
    <message>
        <source>A line in %1 tells ssh of the connection.</source>
        <translation>Una línea en %1 da a conocer la conexión a ssh.</translation>
    </message>
    <message>
        <source>ssh does not know of the connection yet: passes log in each time.</source>
        <translation>ssh aún no conoce la conexión: cada pasada inicia sesión de nuevo.</translation>
    </message>
    <message>
        <source>Take the Line Away</source>
        <translation>Quitar la línea</translation>
    </message>
    <message>
        <source>Tell ssh…</source>
        <translation>Informar a ssh…</translation>
    </message>
    <message>
        <source>Removes the line that Kelvo Mirror has put into your configuration of ssh</source>
        <translation>Quita la línea que Kelvo Mirror ha puesto en su configuración de ssh</translation>
    </message>
    <message>
        <source>Shows the line that your configuration of ssh needs, and asks before it is put there</source>
        <translation>Muestra la línea que necesita su configuración de ssh y pregunta antes de ponerla</translation>
    </message>
    <message>
        <source>Tell ssh of the connection?</source>
        <translation>¿Dar a conocer la conexión a ssh?</translation>
    </message>
    <message>
        <source>This line is put at the top of %1. It concerns no commands but those of passes.
%2</source>
        <translation>Esta línea se pone al principio de %1. Solo afecta a las órdenes de las pasadas.
%2</translation>
    </message>
    <message>
        <source>Add the Line</source>
        <translation>Añadir la línea</translation>
    </message>
    <message>
        <source>Leave It as It Is</source>
        <translation>Dejarlo como está</translation>
    </message>
</context>
<context>
    <name>kelvo::StatusFieldView</name>
    <message>
        <source>Trouble</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>What the program is doing</source>
        <translation>Lo que hace el programa</translation>
    </message>
</context>
<context>
    <name>kelvo::StepHead</name>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Contraer</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambiar</translation>
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
        <translation>Aún no se ha elegido ninguna carpeta de origen</translation>
    </message>
    <message>
        <source>No destination folder chosen yet</source>
        <translation>Aún no se ha elegido ninguna carpeta de destino</translation>
    </message>
    <message>
        <source>No remote Mac chosen yet</source>
        <translation>Aún no se ha elegido ningún Mac remoto</translation>
    </message>
    <message>
        <source>The pass went well: %1.</source>
        <translation>La pasada fue bien: %1.</translation>
    </message>
</context>
<context>
    <name>kelvo::TrayIcon</name>
    <message>
        <source>Syncing is off</source>
        <translation>La sincronización está desactivada</translation>
    </message>
    <message>
        <source>Waiting for the next pass</source>
        <translation>Esperando la próxima pasada</translation>
    </message>
    <message>
        <source>Syncing now</source>
        <translation>Sincronizando ahora</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Requiere atención</translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation>Iniciar la sincronización</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>Sincronizar a&amp;hora</translation>
    </message>
    <message>
        <source>&amp;Cancel This Pass</source>
        <translation>Ca&amp;ncelar esta pasada</translation>
    </message>
    <message>
        <source>Open &amp;Window</source>
        <translation>Abrir la &amp;ventana</translation>
    </message>
    <message>
        <source>&amp;Activity</source>
        <translation>&amp;Actividad</translation>
    </message>
    <message>
        <source>Reveal &amp;Folder</source>
        <translation>Mostrar la &amp;carpeta</translation>
    </message>
    <message>
        <source>Quit and &amp;Relaunch</source>
        <translation>Salir y &amp;relanzar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>No destination folder is chosen yet</source>
        <translation>Aún no se ha elegido ninguna carpeta de destino</translation>
    </message>
</context>
<context>
    <name>sourceNotice</name>
    <message>
        <source>Choose the remote Mac on the Remote Mac tab.</source>
        <translation>Elija el Mac remoto en la pestaña Mac remoto.</translation>
    </message>
    <message>
        <source>Enter the user name on the Remote Mac tab.</source>
        <translation>Indique el nombre de usuario en la pestaña Mac remoto.</translation>
    </message>
    <message>
        <source>Enter the remote folder on the Remote Mac tab.</source>
        <translation>Indique la carpeta remota en la pestaña Mac remoto.</translation>
    </message>
    <message>
        <source>Passes still pull from the source above. The new host or folder takes effect with &quot;Use This Source Now&quot;, or else when the user name changes or the program starts again.</source>
        <translation>Las pasadas aún traen las películas del origen de arriba. El nuevo host o la nueva carpeta se aplican con «Usar este origen ahora» o, si no, cuando cambie el nombre de usuario o el programa se inicie de nuevo.</translation>
    </message>
</context>
</TS>
