<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ActivityTab</name>
    <message>
        <source>&amp;Arrived</source>
        <translation>已到达(&amp;A)</translation>
    </message>
    <message>
        <source>Shows the movies that have arrived</source>
        <translation>显示已到达的影片</translation>
    </message>
    <message>
        <source>A&amp;ll Passes</source>
        <translation>所有同步(&amp;L)</translation>
    </message>
    <message>
        <source>Shows every pass with its outcome</source>
        <translation>显示每次同步及其结果</translation>
    </message>
    <message>
        <source>Arrived per day, 30 days</source>
        <translation>每日到达，30 天</translation>
    </message>
</context>
<context>
    <name>ArrivalsView</name>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search what has arrived</source>
        <translation>在已到达的影片中搜索</translation>
    </message>
    <message>
        <source>Shows the movies with this text in their path</source>
        <translation>显示路径中含有此文字的影片</translation>
    </message>
    <message>
        <source>Arrived movies</source>
        <translation>已到达的影片</translation>
    </message>
    <message>
        <source>By day, newest first; the Return key opens one</source>
        <translation>按日期，最新的在前；按回车键打开</translation>
    </message>
</context>
<context>
    <name>BonjourSheet</name>
    <message>
        <source>Choose the Remote Mac</source>
        <translation>选择远程 Mac</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>正在搜索</translation>
    </message>
    <message>
        <source>Computers found</source>
        <translation>找到的电脑</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>重新搜索(&amp;R)</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>重新搜索</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>选择(&amp;S)</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Copy C&amp;ommand</source>
        <translation>拷贝命令(&amp;O)</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>拷贝命令</translation>
    </message>
</context>
<context>
    <name>DiagnosticsTab</name>
    <message>
        <source>Folders and window</source>
        <translation>文件夹和窗口</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Looks one second for Macs that share files and lists all of them below</source>
        <translation>用一秒钟查找共享文件的 Mac，并在下方全部列出</translation>
    </message>
    <message>
        <source>Writes what the last search found to the log</source>
        <translation>将上次搜索的结果写入日志</translation>
    </message>
    <message>
        <source>Found &amp;Macs</source>
        <translation>找到的 Mac(&amp;M)</translation>
    </message>
    <message>
        <source>Found Macs</source>
        <translation>找到的 Mac</translation>
    </message>
    <message>
        <source>Remote Mac and program</source>
        <translation>远程 Mac 和程序</translation>
    </message>
    <message>
        <source>These buttons help to find out why something does not work. What they find out is written to the log: Help, Open Log Folder.</source>
        <translation>这些按钮有助于查明问题的原因。查到的结果会写入日志：“帮助”&gt;“打开日志文件夹”。</translation>
    </message>
    <message>
        <source>Passes and heartbeat</source>
        <translation>同步和心跳</translation>
    </message>
    <message>
        <source>Sync Two Folders Here</source>
        <translation>同步本机的两个文件夹</translation>
    </message>
    <message>
        <source>Switches syncing on or off, with passes between two folders on this computer, whatever Settings says</source>
        <translation>无论“设置”中如何选择，打开或关闭此电脑上两个文件夹之间的同步</translation>
    </message>
    <message>
        <source>Sync from the Mac</source>
        <translation>从 Mac 同步</translation>
    </message>
    <message>
        <source>Switches syncing on or off, with passes from the remote Mac, whatever Settings says</source>
        <translation>无论“设置”中如何选择，打开或关闭从远程 Mac 进行的同步</translation>
    </message>
    <message>
        <source>Start Heartbeat</source>
        <translation>开始心跳</translation>
    </message>
    <message>
        <source>Writes a line to the log each second, as a sign that the program is alive</source>
        <translation>每秒向日志写入一行，表明程序仍在运行</translation>
    </message>
    <message>
        <source>Pause Heartbeat</source>
        <translation>暂停心跳</translation>
    </message>
    <message>
        <source>Writes no more of these lines until the heartbeat is started again</source>
        <translation>在再次开始心跳之前，不再写入这些行</translation>
    </message>
    <message>
        <source>End Heartbeat</source>
        <translation>结束心跳</translation>
    </message>
    <message>
        <source>Writes no more of these lines until the program starts again</source>
        <translation>在程序再次启动之前，不再写入这些行</translation>
    </message>
    <message>
        <source>Show Source Folder</source>
        <translation>显示来源文件夹</translation>
    </message>
    <message>
        <source>Shows the source folder on the Sync tab and writes its parts to the log; where none is chosen, the Desktop folder becomes the source</source>
        <translation>在“同步”标签页中显示来源文件夹，并将其路径的各部分写入日志；如果尚未选择，则以“桌面”文件夹作为来源</translation>
    </message>
    <message>
        <source>Open Test Folder</source>
        <translation>打开测试文件夹</translation>
    </message>
    <message>
        <source>Opens /Volumes/Macintosh%20HD-2/Users/support/Desktop/FolderOnRemoteServer, a folder for tests that few computers have; source and destination must be chosen first</source>
        <translation>打开测试用的文件夹 /Volumes/Macintosh%20HD-2/Users/support/Desktop/FolderOnRemoteServer，很少有电脑上有它；必须先选择来源和目标</translation>
    </message>
    <message>
        <source>Open Scripts Folder</source>
        <translation>打开脚本文件夹</translation>
    </message>
    <message>
        <source>Opens the temporary folder in which the program keeps the scripts for a terminal</source>
        <translation>打开程序存放终端脚本的临时文件夹</translation>
    </message>
    <message>
        <source>Leave All Fields</source>
        <translation>离开所有栏</translation>
    </message>
    <message>
        <source>Takes the keyboard away from every field and button until another one is chosen</source>
        <translation>让键盘焦点离开所有输入栏和按钮，直到选择其他栏或按钮</translation>
    </message>
    <message>
        <source>Search for Macs</source>
        <translation>搜索 Mac</translation>
    </message>
    <message>
        <source>Log Found Macs</source>
        <translation>将找到的 Mac 写入日志</translation>
    </message>
    <message>
        <source>Copy to a Mac</source>
        <translation>拷贝到 Mac</translation>
    </message>
    <message>
        <source>Writes a line to the log and nothing else: the destination is always a folder on this computer</source>
        <translation>只向日志写入一行，不做其他操作：目标始终是此电脑上的文件夹</translation>
    </message>
    <message>
        <source>Watch for Shares</source>
        <translation>监视共享</translation>
    </message>
    <message>
        <source>Looks for shared folders and writes each one that comes or goes to the log</source>
        <translation>查找共享文件夹，并将每个出现或消失的文件夹写入日志</translation>
    </message>
    <message>
        <source>Open the Share</source>
        <translation>打开共享</translation>
    </message>
    <message>
        <source>Asks the desktop to open the shared folder of the Mac and writes the open shares to the log</source>
        <translation>让桌面打开 Mac 的共享文件夹，并将已打开的共享写入日志</translation>
    </message>
    <message>
        <source>Find Folder, Older Way</source>
        <translation>查找文件夹（旧方式）</translation>
    </message>
    <message>
        <source>Opens the shared folder of the Mac and looks for the folder in it without waiting</source>
        <translation>打开 Mac 的共享文件夹，不等待，直接在其中查找该文件夹</translation>
    </message>
    <message>
        <source>New Key, Older Way</source>
        <translation>创建新密钥（旧方式）</translation>
    </message>
    <message>
        <source>Removes the key and makes a new one in a terminal window; the Mac must be given the new one with Set Up Key</source>
        <translation>移除密钥并在终端窗口中创建新密钥；必须用“设置密钥”将新密钥交给 Mac</translation>
    </message>
    <message>
        <source>Quit and Relaunch</source>
        <translation>退出并重新启动</translation>
    </message>
    <message>
        <source>Ends the program and starts it again</source>
        <translation>结束程序并再次启动</translation>
    </message>
</context>
<context>
    <name>FixedWords</name>
    <message>
        <source>Start rsync with bonjour</source>
        <translation>通过 Bonjour 启动 rsync</translation>
    </message>
    <message>
        <source>Start rsync with afp path</source>
        <translation>通过 AFP 路径启动 rsync</translation>
    </message>
    <message>
        <source>click to stop bonjour rsync</source>
        <translation>点按以停止 Bonjour rsync</translation>
    </message>
    <message>
        <source>click to stop rsync</source>
        <translation>点按以停止 rsync</translation>
    </message>
    <message>
        <source>click to start rsync using bonjour</source>
        <translation>点按以使用 Bonjour 启动 rsync</translation>
    </message>
    <message>
        <source>click to start rsync</source>
        <translation>点按以启动 rsync</translation>
    </message>
    <message>
        <source>click to restart rsync using bonjour</source>
        <translation>点按以使用 Bonjour 重新启动 rsync</translation>
    </message>
    <message>
        <source>click to restart rsync</source>
        <translation>点按以重新启动 rsync</translation>
    </message>
    <message>
        <source>Trying to rsync From Destination to Source...</source>
        <translation>正在尝试从目标到来源进行 rsync...</translation>
    </message>
    <message>
        <source>Resting a bit ...</source>
        <translation>稍事休息 ...</translation>
    </message>
    <message>
        <source>The settings file cannot be read - waiting...</source>
        <translation>无法读取设置文件 - 正在等待...</translation>
    </message>
    <message>
        <source>oops - something went wrong - check settings and hardware connections - then try again...</source>
        <translation>出错了 - 请检查设置和硬件连接 - 然后重试...</translation>
    </message>
    <message>
        <source>Unable to Reach Remote Host</source>
        <translation>无法连接远程主机</translation>
    </message>
    <message>
        <source>Missing ssh keys -
Please generate ssh keys
 and 
 try again...
</source>
        <translation>缺少 ssh 密钥 -
请生成 ssh 密钥
 并 
 重试...
</translation>
    </message>
    <message>
        <source>SUCCESS...</source>
        <translation>成功...</translation>
    </message>
    <message>
        <source>remote seem to be alive?...</source>
        <translation>远程主机似乎有响应...</translation>
    </message>
    <message>
        <source>Oh OH...</source>
        <translation>糟糕...</translation>
    </message>
    <message>
        <source>ssh identity file is invalid or missing ???...</source>
        <translation>ssh 身份文件无效或缺失...</translation>
    </message>
    <message>
        <source>ssh remote has issues - please check network connection or remote username@domain parameters...</source>
        <translation>远程 ssh 有问题 - 请检查网络连接或 用户名@域名 参数...</translation>
    </message>
    <message>
        <source>Please Wait - Scanning for smb machines on network...</source>
        <translation>请稍候 - 正在网络上搜索 smb 电脑...</translation>
    </message>
    <message>
        <source>Bonjour List...</source>
        <translation>Bonjour 列表...</translation>
    </message>
    <message>
        <source>No network connection</source>
        <translation>没有网络连接</translation>
    </message>
    <message>
        <source>Connected to the local network only</source>
        <translation>仅连接到本地网络</translation>
    </message>
    <message>
        <source>Connected to the network</source>
        <translation>已连接到网络</translation>
    </message>
    <message>
        <source>the user name holds a zero</source>
        <translation>用户名含有空字符</translation>
    </message>
    <message>
        <source>the user name holds a line break</source>
        <translation>用户名含有换行</translation>
    </message>
    <message>
        <source>the user name holds signs that are no text</source>
        <translation>用户名含有无效字符</translation>
    </message>
    <message>
        <source>the user name begins with &quot;-&quot;</source>
        <translation>用户名以“-”开头</translation>
    </message>
    <message>
        <source>the user name holds &quot;:&quot; or &quot;/&quot;</source>
        <translation>用户名含有“:”或“/”</translation>
    </message>
    <message>
        <source>the host name holds a zero</source>
        <translation>主机名含有空字符</translation>
    </message>
    <message>
        <source>the host name holds a line break</source>
        <translation>主机名含有换行</translation>
    </message>
    <message>
        <source>the host name holds signs that are no text</source>
        <translation>主机名含有无效字符</translation>
    </message>
    <message>
        <source>the host name begins with &quot;-&quot;</source>
        <translation>主机名以“-”开头</translation>
    </message>
    <message>
        <source>the host name holds &quot;/&quot;</source>
        <translation>主机名含有“/”</translation>
    </message>
    <message>
        <source>the path of the key file holds a line break</source>
        <translation>密钥文件的路径含有换行</translation>
    </message>
    <message>
        <source>the path of the key file holds signs that are no text</source>
        <translation>密钥文件的路径含有无效字符</translation>
    </message>
    <message>
        <source>the source holds a zero</source>
        <translation>来源含有空字符</translation>
    </message>
    <message>
        <source>the source holds a line break</source>
        <translation>来源含有换行</translation>
    </message>
    <message>
        <source>the source holds signs that are no text</source>
        <translation>来源含有无效字符</translation>
    </message>
    <message>
        <source>the source begins with &quot;-&quot;</source>
        <translation>来源以“-”开头</translation>
    </message>
    <message>
        <source>the host of the source begins with &quot;-&quot;</source>
        <translation>来源的主机以“-”开头</translation>
    </message>
    <message>
        <source>the source would be read as a module of an rsync daemon</source>
        <translation>来源会被当作 rsync 守护进程的模块</translation>
    </message>
    <message>
        <source>the destination holds a zero</source>
        <translation>目标含有空字符</translation>
    </message>
    <message>
        <source>the destination holds a line break</source>
        <translation>目标含有换行</translation>
    </message>
    <message>
        <source>the destination holds signs that are no text</source>
        <translation>目标含有无效字符</translation>
    </message>
    <message>
        <source>the destination begins with &quot;-&quot;</source>
        <translation>目标以“-”开头</translation>
    </message>
    <message>
        <source>the destination would be read as the name of a host</source>
        <translation>目标会被当作主机名</translation>
    </message>
    <message>
        <source>the command puts a text where it cannot be kept in one word</source>
        <translation>命令将值放在无法保持为一个整体的位置</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>超出磁盘配额</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>输入/输出错误</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>是文件夹</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>磁盘空间不足</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>没有此文件或文件夹</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>不是文件夹</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>没有权限</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>只读文件系统</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>打开的文件过多</translation>
    </message>
    <message>
        <source>Trying to rsync with option = %1...</source>
        <translation>正在尝试使用选项 = %1 进行 rsync...</translation>
    </message>
    <message>
        <source>something went wrong - waiting to retry again... [%1]</source>
        <translation>出错了 - 正在等待重试... [%1]</translation>
    </message>
    <message>
        <source>Please make sure remote host is on this network
or
Please check username...

%1
</source>
        <translation>请确认远程主机在此网络中
或
请检查用户名...

%1
</translation>
    </message>
    <message>
        <source>Settings cannot be saved to %1: %2</source>
        <translation>无法将设置保存到 %1：%2</translation>
    </message>
    <message>
        <source>The settings in %1 are not known: %2</source>
        <translation>无法得知 %1 中的设置：%2</translation>
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
        <translation>页面</translation>
    </message>
</context>
<context>
    <name>PassesView</name>
    <message>
        <source>&amp;Brought files</source>
        <translation>有文件(&amp;B)</translation>
    </message>
    <message>
        <source>Shows the passes that brought files</source>
        <translation>显示带来文件的同步</translation>
    </message>
    <message>
        <source>In tro&amp;uble</source>
        <translation>有问题(&amp;U)</translation>
    </message>
    <message>
        <source>Shows the passes that were in trouble</source>
        <translation>显示有问题的同步</translation>
    </message>
    <message>
        <source>Passes</source>
        <translation>同步记录</translation>
    </message>
    <message>
        <source>Newest first; the selected pass is told below. The right arrow key unfolds a row that stands for several passes.</source>
        <translation>最新的在前；下方显示所选同步的详情。按右方向键可展开代表多次同步的一行。</translation>
    </message>
    <message>
        <source>Select a pass to read what its commands said.</source>
        <translation>选择一次同步以阅读其命令的输出。</translation>
    </message>
    <message>
        <source>The selected pass</source>
        <translation>所选的同步</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>拷贝(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the selected pass</source>
        <translation>拷贝所选的同步</translation>
    </message>
    <message>
        <source>Puts the selected pass&apos;s text on the clipboard</source>
        <translation>将所选同步的详情放入剪贴板</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>导出(&amp;X)…</translation>
    </message>
    <message>
        <source>Export all passes</source>
        <translation>导出所有同步</translation>
    </message>
    <message>
        <source>Writes all passes to a file of comma-separated values</source>
        <translation>将所有同步写入逗号分隔值文件</translation>
    </message>
</context>
<context>
    <name>ProfilesSheet</name>
    <message>
        <source>Another Mac</source>
        <translation>另一台 Mac</translation>
    </message>
    <message>
        <source>Each further Mac gets a name here. Under it the program keeps settings, a record of passes and a window of their own; the key is shared.</source>
        <translation>在这里为每一台新增的 Mac 起一个名称。每个名称都有自己的设置、同步记录和窗口；密钥是共用的。</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>Letters, digits, “-” and “_”</source>
        <translation>字母、数字、“-”和“_”</translation>
    </message>
    <message>
        <source>Names there are</source>
        <translation>已有的名称</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Mac</source>
        <translation>Mac</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Last success</source>
        <translation>上次成功</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>Opens the window of this name, or brings it to the front</source>
        <translation>打开这个名称的窗口，或将它移到最前面</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>About Kelvo Mirror</source>
        <translation>关于 Kelvo Mirror</translation>
    </message>
    <message>
        <source>Kelvo Mirror %1</source>
        <translation>Kelvo Mirror %1</translation>
    </message>
    <message>
        <source>Keeps a local folder supplied with movie files from a remote Mac.</source>
        <translation>让本地文件夹持续获得远程 Mac 上的影片文件。</translation>
    </message>
    <message>
        <source>Do not ask again</source>
        <translation>不再询问</translation>
    </message>
    <message>
        <source>Show Remote Mac</source>
        <translation>显示远程 Mac</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>拷贝命令</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>再次检查</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>Open the Log</source>
        <translation>打开日志</translation>
    </message>
    <message>
        <source>Without an answer, it tries again in %1 s.</source>
        <translation>若无响应，将在 %1 秒后重试。</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>Choose the Mac</source>
        <translation>选择 Mac</translation>
    </message>
    <message>
        <source>Enter the Account</source>
        <translation>输入账户</translation>
    </message>
    <message>
        <source>Set Up the Key</source>
        <translation>设置密钥</translation>
    </message>
    <message>
        <source>&amp;Folder or file:</source>
        <translation>文件夹或文件(&amp;F)：</translation>
    </message>
</context>
<context>
    <name>RemoteTab</name>
    <message>
        <source>Host &amp;name</source>
        <translation>主机名(&amp;N)</translation>
    </message>
    <message>
        <source>Studio-Mac.local</source>
        <translation>Studio-Mac.local</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>主机名</translation>
    </message>
    <message>
        <source>The name of the remote Mac on this network</source>
        <translation>远程 Mac 在此网络中的名称</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>选择(&amp;C)…</translation>
    </message>
    <message>
        <source>Choose the remote Mac</source>
        <translation>选择远程 Mac</translation>
    </message>
    <message>
        <source>Lists the Macs on this network that share files</source>
        <translation>列出此网络中共享文件的 Mac</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>用户名(&amp;U)</translation>
    </message>
    <message>
        <source>name of an account on the remote Mac</source>
        <translation>远程 Mac 上的账户名</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>An account on the remote Mac with Remote Login</source>
        <translation>远程 Mac 上可以远程登录的账户</translation>
    </message>
    <message>
        <source>Fol&amp;der</source>
        <translation>文件夹(&amp;D)</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Remote folder</source>
        <translation>远程文件夹</translation>
    </message>
    <message>
        <source>The folder on the remote Mac to pull from, from its home folder or from /</source>
        <translation>要从中拉取的远程 Mac 上的文件夹，路径从其个人文件夹或 / 开始</translation>
    </message>
    <message>
        <source>Source in use</source>
        <translation>正在使用的来源</translation>
    </message>
    <message>
        <source>Set Up &amp;Key…</source>
        <translation>设置密钥(&amp;K)…</translation>
    </message>
    <message>
        <source>Makes a key for this program and installs it on the remote Mac; asks for the password there</source>
        <translation>为本程序创建密钥并安装到远程 Mac 上；会要求输入那里的密码</translation>
    </message>
    <message>
        <source>Te&amp;st Connection</source>
        <translation>测试连接(&amp;S)</translation>
    </message>
    <message>
        <source>Asks the remote Mac for an answer over ssh</source>
        <translation>通过 ssh 请求远程 Mac 响应</translation>
    </message>
    <message>
        <source>The connection test is running</source>
        <translation>正在测试连接</translation>
    </message>
    <message>
        <source>&amp;Make a New Key</source>
        <translation>创建新密钥(&amp;M)</translation>
    </message>
    <message>
        <source>Replaces the key of this program; it must be installed again</source>
        <translation>替换本程序的密钥；之后必须重新安装密钥</translation>
    </message>
    <message>
        <source>Check Ke&amp;y Again</source>
        <translation>再次检查密钥(&amp;Y)</translation>
    </message>
    <message>
        <source>Asks the remote Mac whether it accepts the key</source>
        <translation>询问远程 Mac 是否接受密钥</translation>
    </message>
    <message>
        <source>&amp;Open Remote Folder</source>
        <translation>打开远程文件夹(&amp;O)</translation>
    </message>
    <message>
        <source>Opens the remote folder in the file browser</source>
        <translation>在文件管理器中打开远程文件夹</translation>
    </message>
    <message>
        <source>Mount and F&amp;ind Folder</source>
        <translation>装载并查找文件夹(&amp;I)</translation>
    </message>
    <message>
        <source>Opens the share, looks where it was mounted and opens the folder there</source>
        <translation>打开共享，找到其装载位置，并打开其中的文件夹</translation>
    </message>
    <message>
        <source>1. Mac</source>
        <translation>1. Mac</translation>
    </message>
    <message>
        <source>2. Account and folder</source>
        <translation>2. 账户和文件夹</translation>
    </message>
    <message>
        <source>Use This Source No&amp;w</source>
        <translation>立即使用此来源(&amp;W)</translation>
    </message>
    <message>
        <source>Passes pull from this account and folder from now on</source>
        <translation>从现在起，同步将从此账户和文件夹拉取</translation>
    </message>
    <message>
        <source>3. Key</source>
        <translation>3. 密钥</translation>
    </message>
    <message>
        <source>4. Connection</source>
        <translation>4. 连接</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
</context>
<context>
    <name>SettingsTab</name>
    <message>
        <source>Kind of pass</source>
        <translation>同步的类型</translation>
    </message>
    <message>
        <source>Pull from the &amp;remote Mac over ssh</source>
        <translation>通过 ssh 从远程 Mac 拉取(&amp;R)</translation>
    </message>
    <message>
        <source>Copy &amp;between two folders of this computer</source>
        <translation>在此电脑的两个文件夹之间拷贝(&amp;B)</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Te&amp;mplate</source>
        <translation>模板(&amp;M)</translation>
    </message>
    <message>
        <source>Command template</source>
        <translation>命令模板</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>选项(&amp;O)</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Which files a pass touches</source>
        <translation>同步涉及哪些文件</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>示例</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>行为</translation>
    </message>
    <message>
        <source>Rest between p&amp;asses</source>
        <translation>同步之间的休息(&amp;A)</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>3.0 s (automatic)</source>
        <translation>3.0 秒（自动）</translation>
    </message>
    <message>
        <source>Rest between passes</source>
        <translation>同步之间的休息</translation>
    </message>
    <message>
        <source>Seconds between two passes</source>
        <translation>两次同步之间的秒数</translation>
    </message>
    <message>
        <source>&amp;Start syncing at launch</source>
        <translation>启动时开始同步(&amp;S)</translation>
    </message>
    <message>
        <source>Hide the &amp;window at launch</source>
        <translation>启动时隐藏窗口(&amp;W)</translation>
    </message>
    <message>
        <source>Show a noti&amp;ce when movies have arrived</source>
        <translation>影片到达时显示通知(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit without asking while movies are being copied</source>
        <translation>拷贝影片时直接退出，不询问(&amp;Q)</translation>
    </message>
    <message>
        <source>Start Kelvo Mirror when I &amp;log in</source>
        <translation>登录时启动 Kelvo Mirror(&amp;L)</translation>
    </message>
    <message>
        <source>R&amp;un after arrivals</source>
        <translation>到达后运行(&amp;U)</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>无命令</translation>
    </message>
    <message>
        <source>Command to run after arrivals</source>
        <translation>到达后运行的命令</translation>
    </message>
    <message>
        <source>Run after each pass that has brought movies; empty for none</source>
        <translation>每次同步带来影片后运行；留空则不运行</translation>
    </message>
    <message>
        <source>It reads the paths of the movies on its standard input, each ended by a NUL; KELVO_MIRROR_ARRIVALS says how many.</source>
        <translation>命令从标准输入读取影片的路径，每个路径以 NUL 结尾；KELVO_MIRROR_ARRIVALS 给出影片的数量。</translation>
    </message>
    <message>
        <source>Show a &amp;notice when passes turn bad and when they are well again</source>
        <translation>同步出问题和恢复正常时显示通知(&amp;N)</translation>
    </message>
    <message>
        <source>Kinds of movies</source>
        <translation>影片类型</translation>
    </message>
    <message>
        <source>A&amp;dvanced</source>
        <translation>高级(&amp;D)</translation>
    </message>
    <message>
        <source>Shows the command that a pass runs, and hides it again</source>
        <translation>显示或隐藏同步所运行的命令</translation>
    </message>
    <message>
        <source>The template with the option filled in</source>
        <translation>填入选项后的模板</translation>
    </message>
    <message>
        <source>&amp;Keep the connection to the Mac between passes</source>
        <translation>在两次同步之间保持与 Mac 的连接(&amp;K)</translation>
    </message>
    <message>
        <source>Saves the logins of passes that follow each other within a minute; it ends with syncing, and after an hour at most</source>
        <translation>一分钟内相继进行的同步无需重新登录；连接随同步停止而结束，最长保持一小时</translation>
    </message>
</context>
<context>
    <name>SyncTab</name>
    <message>
        <source>From</source>
        <translation>从</translation>
    </message>
    <message>
        <source>Remote source</source>
        <translation>远程来源</translation>
    </message>
    <message>
        <source>Chan&amp;ge…</source>
        <translation>更改(&amp;G)…</translation>
    </message>
    <message>
        <source>Change the remote Mac</source>
        <translation>更改远程 Mac</translation>
    </message>
    <message>
        <source>Shows the tab where the remote Mac is chosen</source>
        <translation>显示选择远程 Mac 的标签页</translation>
    </message>
    <message>
        <source>Source folder</source>
        <translation>来源文件夹</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>选择(&amp;C)…</translation>
    </message>
    <message>
        <source>Choose the source folder</source>
        <translation>选择来源文件夹</translation>
    </message>
    <message>
        <source>&amp;Reveal</source>
        <translation>显示(&amp;R)</translation>
    </message>
    <message>
        <source>Reveal the source folder</source>
        <translation>显示来源文件夹</translation>
    </message>
    <message>
        <source>Opens the folder in the file browser; a right click asks how</source>
        <translation>在文件管理器中打开文件夹；右键点按可选择方式</translation>
    </message>
    <message>
        <source>To</source>
        <translation>到</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>目标文件夹</translation>
    </message>
    <message>
        <source>Ch&amp;oose…</source>
        <translation>选择(&amp;O)…</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>选择目标文件夹</translation>
    </message>
    <message>
        <source>Revea&amp;l</source>
        <translation>显示(&amp;L)</translation>
    </message>
    <message>
        <source>Reveal the destination folder</source>
        <translation>显示目标文件夹</translation>
    </message>
    <message>
        <source>Opens the folder in the file browser</source>
        <translation>在文件管理器中打开文件夹</translation>
    </message>
    <message>
        <source>Start rsync</source>
        <translation>启动 rsync</translation>
    </message>
    <message>
        <source>Switches syncing on and off</source>
        <translation>打开或关闭同步</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>立即同步(&amp;N)</translation>
    </message>
    <message>
        <source>Begins the next pass now</source>
        <translation>现在开始下一次同步</translation>
    </message>
    <message>
        <source>C&amp;ancel This Pass</source>
        <translation>取消本次同步(&amp;A)</translation>
    </message>
    <message>
        <source>Ends the pass that runs; what it has begun to copy is kept for the next one</source>
        <translation>结束正在运行的同步；已开始拷贝的内容会留给下一次</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>已到达</translation>
    </message>
    <message>
        <source>All Arr&amp;ivals</source>
        <translation>所有到达(&amp;I)</translation>
    </message>
    <message>
        <source>Shows the Activity tab</source>
        <translation>显示“活动”标签页</translation>
    </message>
    <message>
        <source>Whether this computer has a network connection</source>
        <translation>此电脑是否有网络连接</translation>
    </message>
    <message>
        <source>&amp;Use This Source Now</source>
        <translation>立即使用此来源(&amp;U)</translation>
    </message>
    <message>
        <source>Passes pull from the host and folder that are set now</source>
        <translation>从现在起，同步将从当前设置的主机和文件夹拉取</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message numerus="yes">
        <source>%Ln passes written.</source>
        <translation>
            <numerusform>已写入 %Ln 次同步。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln movies</source>
        <translation>
            <numerusform>%Ln 部影片</numerusform>
        </translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>退出状态 %1</translation>
    </message>
    <message>
        <source>ended when the pass was cancelled</source>
        <translation>因同步被取消而结束</translation>
    </message>
    <message>
        <source>given up when the program ended</source>
        <translation>因程序结束而放弃</translation>
    </message>
    <message>
        <source>by rsync&apos;s own figures</source>
        <translation>根据 rsync 的统计</translation>
    </message>
    <message>
        <source>counted from its lines</source>
        <translation>根据其输出行计数</translation>
    </message>
    <message>
        <source>the command did not say</source>
        <translation>命令没有说明</translation>
    </message>
    <message>
        <source>Run after arrivals:</source>
        <translation>到达后的命令：</translation>
    </message>
    <message>
        <source>… %L1 bytes left out …</source>
        <translation>… 省略了 %L1 字节 …</translation>
    </message>
    <message>
        <source>Arrived:</source>
        <translation>已到达：</translation>
    </message>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation>
            <numerusform>… 另有 %Ln 个</numerusform>
        </translation>
    </message>
    <message>
        <source>Next step: %1</source>
        <translation>下一步：%1</translation>
    </message>
    <message>
        <source>Remote pass</source>
        <translation>远程同步</translation>
    </message>
    <message>
        <source>Plain pass</source>
        <translation>本地同步</translation>
    </message>
    <message numerus="yes">
        <source>%Ln passes, nothing new, %1 to %2</source>
        <translation>
            <numerusform>%Ln 次同步，没有新内容，%1 至 %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Running</source>
        <translation>正在运行</translation>
    </message>
    <message>
        <source>being cancelled</source>
        <translation>正在取消</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>nothing new</source>
        <translation>没有新内容</translation>
    </message>
    <message>
        <source>%1; a pass was in trouble</source>
        <translation>%1；有一次同步出了问题</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln days</source>
        <translation>
            <numerusform>%1，共 %Ln 天</numerusform>
        </translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>在访达中打开</translation>
    </message>
    <message>
        <source>Show Enclosing</source>
        <translation>显示所在文件夹</translation>
    </message>
    <message>
        <source>Retry Again...</source>
        <translation>重试...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>The Mac has not accepted the program&apos;s key yet.</source>
        <translation>Mac 尚未接受本程序的密钥。</translation>
    </message>
    <message>
        <source>No Mac is chosen yet.</source>
        <translation>尚未选择 Mac。</translation>
    </message>
    <message>
        <source>The user name on the Mac is missing.</source>
        <translation>缺少 Mac 上的用户名。</translation>
    </message>
    <message>
        <source>The program has no ssh key of its own yet.</source>
        <translation>本程序尚无自己的 ssh 密钥。</translation>
    </message>
    <message>
        <source>ssh is not installed on this machine.</source>
        <translation>此电脑未安装 ssh。</translation>
    </message>
    <message>
        <source>No source folder is chosen yet.</source>
        <translation>尚未选择来源文件夹。</translation>
    </message>
    <message>
        <source>No destination folder is chosen yet.</source>
        <translation>尚未选择目标文件夹。</translation>
    </message>
    <message>
        <source>The destination folder is missing or cannot be written.</source>
        <translation>目标文件夹不存在或无法写入。</translation>
    </message>
    <message>
        <source>rsync is not installed on this machine.</source>
        <translation>此电脑未安装 rsync。</translation>
    </message>
    <message>
        <source>Kelvo Mirror keeps running</source>
        <translation>Kelvo Mirror 仍在运行</translation>
    </message>
    <message>
        <source>There is no tray icon to bring the window back with. To see the window again, start Kelvo Mirror once more. To end the program, choose Quit from the File menu instead.</source>
        <translation>没有可用来恢复窗口的托盘图标。要再次看到窗口，请再次启动 Kelvo Mirror。要结束程序，请改为选择“文件”菜单中的“退出”。</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>保持打开</translation>
    </message>
    <message>
        <source>Quit while movies are being copied?</source>
        <translation>正在拷贝影片，要退出吗？</translation>
    </message>
    <message>
        <source>The pass that runs will be ended: %1. The next start goes on from there.</source>
        <translation>正在运行的同步将被结束：%1。下次启动会从那里继续。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>继续运行</translation>
    </message>
    <message>
        <source>Last success: %1, %2</source>
        <translation>上次成功：%1，%2</translation>
    </message>
    <message>
        <source>No pass has ended yet. How it went will stand here.</source>
        <translation>尚无已结束的同步。结果将显示在这里。</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln passes)</source>
        <translation>
            <numerusform>%1（%Ln 次同步）</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>a sentence without its full stop</comment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>The record of passes cannot be kept: %1</source>
        <translation>无法保存同步记录：%1</translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %1</source>
        <translation>设置文件已损坏，保留为 %1</translation>
    </message>
    <message>
        <source>The record of passes was damaged. It is kept as %1</source>
        <translation>同步记录已损坏，保留为 %1</translation>
    </message>
    <message>
        <source>The record of passes was removed or replaced. The passes since the start were written again</source>
        <translation>同步记录被移除或替换。启动以来的同步已重新写入</translation>
    </message>
    <message>
        <source>No key yet. Set one up to be let in by the remote Mac.</source>
        <translation>还没有密钥。请设置密钥，以便远程 Mac 允许登录。</translation>
    </message>
    <message>
        <source>Key made. Fill in host name and user to have it accepted.</source>
        <translation>密钥已创建。请填写主机名和用户，以便让它被接受。</translation>
    </message>
    <message>
        <source>Key made. The remote Mac has not been asked yet.</source>
        <translation>密钥已创建。尚未询问远程 Mac。</translation>
    </message>
    <message>
        <source>Asking the remote Mac…</source>
        <translation>正在询问远程 Mac…</translation>
    </message>
    <message>
        <source>Key accepted by the remote Mac.</source>
        <translation>远程 Mac 已接受密钥。</translation>
    </message>
    <message>
        <source>Key made, not accepted by the remote Mac yet.</source>
        <translation>密钥已创建，远程 Mac 尚未接受。</translation>
    </message>
    <message>
        <source>Key made. The remote Mac is not on the network right now.</source>
        <translation>密钥已创建。远程 Mac 目前不在网络中。</translation>
    </message>
    <message>
        <source>%1 was not written by Kelvo Mirror and is left alone. Move it away to switch this on here.</source>
        <translation>%1 不是由 Kelvo Mirror 写入的，因此不作改动。要在此打开，请先将其移走。</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2</source>
        <translation>无法更改 %1：%2</translation>
    </message>
    <message>
        <source>Kelvo Mirror is well again</source>
        <translation>Kelvo Mirror 恢复正常</translation>
    </message>
    <message>
        <source>The last pass went well: %1.</source>
        <translation>上次同步顺利：%1。</translation>
    </message>
    <message>
        <source>Kelvo Mirror is in trouble</source>
        <translation>Kelvo Mirror 出了问题</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new movies</source>
        <translation>
            <numerusform>%Ln 部新影片</numerusform>
        </translation>
    </message>
    <message>
        <source>All is well.</source>
        <translation>一切正常。</translation>
    </message>
    <message>
        <source>No Mac answers to this name on the network.</source>
        <translation>网络中没有 Mac 响应此名称。</translation>
    </message>
    <message>
        <source>No Mac answers to this name on the network since %1.</source>
        <translation>自 %1 起，网络中没有 Mac 响应此名称。</translation>
    </message>
    <message>
        <source>Check the host name, and that the Mac is switched on and in this network.</source>
        <translation>请检查主机名，并确认 Mac 已开机且在此网络中。</translation>
    </message>
    <message>
        <source>The Mac is away or asleep.</source>
        <translation>Mac 不在网络中或正在睡眠。</translation>
    </message>
    <message>
        <source>The Mac is away or asleep since %1.</source>
        <translation>自 %1 起，Mac 不在网络中或正在睡眠。</translation>
    </message>
    <message>
        <source>Wake the Mac; in its energy settings, let it wake for network access.</source>
        <translation>请唤醒 Mac；在其节能设置中打开“唤醒以供网络访问”。</translation>
    </message>
    <message>
        <source>The Mac is there but refuses logins.</source>
        <translation>Mac 在网络中，但拒绝登录。</translation>
    </message>
    <message>
        <source>The Mac is there but refuses logins since %1.</source>
        <translation>自 %1 起，Mac 在网络中，但拒绝登录。</translation>
    </message>
    <message>
        <source>On the Mac, switch on Remote Login (System Settings, General, Sharing).</source>
        <translation>请在 Mac 上打开“远程登录”（“系统设置”&gt;“通用”&gt;“共享”）。</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before.</source>
        <translation>此电脑以前没有连接过这台 Mac。</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before since %1.</source>
        <translation>自 %1 起，此电脑仍未连接过这台 Mac。</translation>
    </message>
    <message>
        <source>Log in once with ssh in a terminal and accept the Mac&apos;s key.</source>
        <translation>请在终端用 ssh 登录一次，并接受 Mac 的密钥。</translation>
    </message>
    <message>
        <source>The Mac shows another key than before: it was set up anew, or another machine has taken its name.</source>
        <translation>Mac 出示的密钥与以前不同：它被重新设置过，或者另一台机器用了它的名称。</translation>
    </message>
    <message>
        <source>The Mac shows another key than before since %1: it was set up anew, or another machine has taken its name.</source>
        <translation>自 %1 起，Mac 出示的密钥与以前不同：它被重新设置过，或者另一台机器用了它的名称。</translation>
    </message>
    <message>
        <source>If you know why, remove the old key with ssh-keygen -R and the host name, then accept the new one.</source>
        <translation>如果知道原因，请用 ssh-keygen -R 加主机名移除旧密钥，然后接受新密钥。</translation>
    </message>
    <message>
        <source>The Mac does not take this key for this user.</source>
        <translation>Mac 不接受此用户使用此密钥。</translation>
    </message>
    <message>
        <source>The Mac does not take this key for this user since %1.</source>
        <translation>自 %1 起，Mac 不接受此用户使用此密钥。</translation>
    </message>
    <message>
        <source>Check the user name, then install the key on the Mac again.</source>
        <translation>请检查用户名，然后在 Mac 上重新安装密钥。</translation>
    </message>
    <message>
        <source>The program&apos;s own ssh key is missing here.</source>
        <translation>此电脑上缺少本程序自己的 ssh 密钥。</translation>
    </message>
    <message>
        <source>The program&apos;s own ssh key is missing here since %1.</source>
        <translation>自 %1 起，此电脑上缺少本程序自己的 ssh 密钥。</translation>
    </message>
    <message>
        <source>Make the key and install it on the Mac.</source>
        <translation>请创建密钥并安装到 Mac 上。</translation>
    </message>
    <message>
        <source>The Mac calls this user by another name.</source>
        <translation>Mac 上此用户的名称不同。</translation>
    </message>
    <message>
        <source>The Mac calls this user by another name since %1.</source>
        <translation>自 %1 起，Mac 上此用户的名称不同。</translation>
    </message>
    <message>
        <source>Enter the account name that whoami prints on the Mac.</source>
        <translation>请输入 Mac 上 whoami 显示的账户名。</translation>
    </message>
    <message>
        <source>The Mac prints a text at each login, which hides its answer.</source>
        <translation>Mac 每次登录都会显示文字，使其回应无法识别。</translation>
    </message>
    <message>
        <source>The Mac prints a text at each login since %1, which hides its answer.</source>
        <translation>自 %1 起，Mac 每次登录都会显示文字，使其回应无法识别。</translation>
    </message>
    <message>
        <source>On the Mac, remove what the shell&apos;s start file (.zshenv, .bashrc) prints.</source>
        <translation>请在 Mac 上去掉 shell 启动文件（.zshenv、.bashrc）输出的内容。</translation>
    </message>
    <message>
        <source>There is no rsync on the Mac.</source>
        <translation>Mac 上没有 rsync。</translation>
    </message>
    <message>
        <source>There is no rsync on the Mac since %1.</source>
        <translation>自 %1 起，Mac 上没有 rsync。</translation>
    </message>
    <message>
        <source>Install rsync on the Mac, or give its place in the template with --rsync-path.</source>
        <translation>请在 Mac 上安装 rsync，或在模板中用 --rsync-path 给出其位置。</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for an option of the template.</source>
        <translation>Mac 上的 rsync 太旧，不支持模板的某个选项。</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for an option of the template since %1.</source>
        <translation>自 %1 起，Mac 上的 rsync 太旧，不支持模板的某个选项。</translation>
    </message>
    <message>
        <source>Update rsync on the Mac, or take the option out of the template.</source>
        <translation>请更新 Mac 上的 rsync，或从模板中去掉该选项。</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for the built-in movie command: only what the template takes has arrived.</source>
        <translation>Mac 上的 rsync 太旧，不支持内置的影片命令：只到达了模板所取的内容。</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for the built-in movie command since %1: only what the template takes has arrived.</source>
        <translation>自 %1 起，Mac 上的 rsync 太旧，不支持内置的影片命令：只到达了模板所取的内容。</translation>
    </message>
    <message>
        <source>Update rsync on the Mac, or let the template take every movie: without filters, and with -r.</source>
        <translation>请更新 Mac 上的 rsync，或让模板取所有影片：不用过滤，并带 -r。</translation>
    </message>
    <message>
        <source>The source folder is not there.</source>
        <translation>来源文件夹不存在。</translation>
    </message>
    <message>
        <source>The source folder is not there since %1.</source>
        <translation>自 %1 起，来源文件夹不存在。</translation>
    </message>
    <message>
        <source>Check the remote path, and that the disk with it is connected.</source>
        <translation>请检查远程路径，并确认其磁盘已连接。</translation>
    </message>
    <message>
        <source>A source folder may not be read.</source>
        <translation>有来源文件夹无法读取。</translation>
    </message>
    <message>
        <source>A source folder may not be read since %1.</source>
        <translation>自 %1 起，有来源文件夹无法读取。</translation>
    </message>
    <message>
        <source>On the Mac, allow full disk access for remote users (in Remote Login), or change the folder&apos;s permissions.</source>
        <translation>请在 Mac 的“远程登录”中允许远程用户进行完全磁盘访问，或更改文件夹的权限。</translation>
    </message>
    <message>
        <source>The disk here is full.</source>
        <translation>此电脑的磁盘已满。</translation>
    </message>
    <message>
        <source>The disk here is full since %1.</source>
        <translation>自 %1 起，此电脑的磁盘已满。</translation>
    </message>
    <message>
        <source>Make room on the disk of the destination folder.</source>
        <translation>请在目标文件夹所在的磁盘上腾出空间。</translation>
    </message>
    <message>
        <source>The destination folder is missing or cannot be written since %1.</source>
        <translation>自 %1 起，目标文件夹不存在或无法写入。</translation>
    </message>
    <message>
        <source>Connect its disk, or choose another destination folder.</source>
        <translation>请连接其磁盘，或选择另一个目标文件夹。</translation>
    </message>
    <message>
        <source>Another program is pulling into this folder.</source>
        <translation>另一个程序正在向此文件夹拷贝。</translation>
    </message>
    <message>
        <source>Another program is pulling into this folder since %1.</source>
        <translation>自 %1 起，另一个程序正在向此文件夹拷贝。</translation>
    </message>
    <message>
        <source>Give each program a destination folder of its own, or end the other one.</source>
        <translation>请给每个程序各自的目标文件夹，或结束另一个程序。</translation>
    </message>
    <message>
        <source>A command of the pass is not installed here.</source>
        <translation>此电脑未安装同步所需的某个命令。</translation>
    </message>
    <message>
        <source>A command of the pass is not installed here since %1.</source>
        <translation>自 %1 起，此电脑未安装同步所需的某个命令。</translation>
    </message>
    <message>
        <source>Install rsync and ssh on this machine, or correct the command template.</source>
        <translation>请在此电脑上安装 rsync 和 ssh，或更正命令模板。</translation>
    </message>
    <message>
        <source>The command template cannot be run.</source>
        <translation>命令模板无法运行。</translation>
    </message>
    <message>
        <source>The command template cannot be run since %1.</source>
        <translation>自 %1 起，命令模板无法运行。</translation>
    </message>
    <message>
        <source>Correct the rsync command template in the settings.</source>
        <translation>请在设置中更正 rsync 命令模板。</translation>
    </message>
    <message>
        <source>Some files vanished from the source while they were copied.</source>
        <translation>拷贝时有文件从来源中消失。</translation>
    </message>
    <message>
        <source>Nothing: the next pass brings what is there then.</source>
        <translation>无需操作：下一次同步会带来届时存在的内容。</translation>
    </message>
    <message>
        <source>Some files could not be taken.</source>
        <translation>有些文件无法取得。</translation>
    </message>
    <message>
        <source>Some files could not be taken since %1.</source>
        <translation>自 %1 起，有些文件无法取得。</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for their names and reasons.</source>
        <translation>文件名称和原因见该次同步的详情。</translation>
    </message>
    <message>
        <source>The connection gave way in the middle of the transfer.</source>
        <translation>连接在传输中途断开。</translation>
    </message>
    <message>
        <source>The connection gave way in the middle of the transfer since %1.</source>
        <translation>自 %1 起，连接在传输中途断开。</translation>
    </message>
    <message>
        <source>Check the network; the next pass goes on where this one stopped.</source>
        <translation>请检查网络；下一次同步会从中断处继续。</translation>
    </message>
    <message>
        <source>The pass cannot run: a folder, the host or the user is not set.</source>
        <translation>同步无法运行：文件夹、主机或用户未设置。</translation>
    </message>
    <message>
        <source>The pass cannot run since %1: a folder, the host or the user is not set.</source>
        <translation>自 %1 起，同步无法运行：文件夹、主机或用户未设置。</translation>
    </message>
    <message>
        <source>Choose the Mac, the user name and both folders.</source>
        <translation>请选择 Mac、用户名和两个文件夹。</translation>
    </message>
    <message>
        <source>The pass was not begun: a text in the settings cannot stand in a command.</source>
        <translation>同步没有开始：设置中有文字不能放入命令。</translation>
    </message>
    <message>
        <source>The pass was not begun since %1: a text in the settings cannot stand in a command.</source>
        <translation>自 %1 起，同步没有开始：设置中有文字不能放入命令。</translation>
    </message>
    <message>
        <source>Choose another folder, user name or host: without a line break, and no &quot;-&quot; in front.</source>
        <translation>请另选文件夹、用户名或主机：不含换行，且不以“-”开头。</translation>
    </message>
    <message>
        <source>The program was ended during the pass.</source>
        <translation>程序在同步期间结束。</translation>
    </message>
    <message>
        <source>Nothing: start it again.</source>
        <translation>无需操作：重新启动即可。</translation>
    </message>
    <message>
        <source>Cancelled by you.</source>
        <translation>由您取消。</translation>
    </message>
    <message>
        <source>Nothing: the next pass goes on where this one stopped.</source>
        <translation>无需操作：下一次同步会从中断处继续。</translation>
    </message>
    <message>
        <source>The files have arrived, but the command that is run after arrivals failed.</source>
        <translation>文件已到达，但到达后运行的命令失败了。</translation>
    </message>
    <message>
        <source>The files have arrived, but the command that is run after arrivals failed since %1.</source>
        <translation>文件已到达，但自 %1 起，到达后运行的命令一直失败。</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for what it said, or correct it in the settings.</source>
        <translation>其输出见该次同步的详情，也可在设置中更正命令。</translation>
    </message>
    <message>
        <source>Something went wrong.</source>
        <translation>出了问题。</translation>
    </message>
    <message>
        <source>Something went wrong since %1.</source>
        <translation>自 %1 起，出了问题。</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for what the commands said.</source>
        <translation>命令的输出见该次同步的详情。</translation>
    </message>
    <message>
        <source>The last line was: %1</source>
        <translation>最后一行是：%1</translation>
    </message>
    <message>
        <source>The reason: %1.</source>
        <translation>原因：%1。</translation>
    </message>
    <message>
        <source>files unknown</source>
        <translation>文件数未知</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>no transfer</source>
        <translation>没有传输</translation>
    </message>
    <message>
        <source>%L1 s</source>
        <translation>%L1 秒</translation>
    </message>
    <message>
        <source>%L1 min %L2 s</source>
        <translation>%L1 分 %L2 秒</translation>
    </message>
    <message>
        <source>%L1 h %L2 min</source>
        <translation>%L1 小时 %L2 分</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>刚刚</translation>
    </message>
    <message numerus="yes">
        <source>%Ln minutes ago</source>
        <translation>
            <numerusform>%Ln 分钟前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hours ago</source>
        <translation>
            <numerusform>%Ln 小时前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days ago</source>
        <translation>
            <numerusform>%Ln 天前</numerusform>
        </translation>
    </message>
    <message>
        <source>Reveal In Finder</source>
        <translation>在访达中显示</translation>
    </message>
    <message>
        <source>path:
%1</source>
        <translation>路径：
%1</translation>
    </message>
    <message>
        <source>Stop Syncing</source>
        <translation>停止同步</translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation>开始同步</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>拷贝命令</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>No Terminal Found</source>
        <translation>未找到终端</translation>
    </message>
    <message>
        <source>Please run this command in a terminal and answer what it asks:

%1</source>
        <translation>请在终端中运行此命令并回答它的问题：

%1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two facts, as in: 3 files, 1.2 GB</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>%L1 %</source>
        <comment>percent</comment>
        <translation>%L1 %</translation>
    </message>
    <message>
        <source>Syncing is off</source>
        <translation>同步已关闭</translation>
    </message>
    <message>
        <source>Waiting for what is missing</source>
        <translation>正在等待缺少的内容</translation>
    </message>
    <message>
        <source>Finishing this pass…</source>
        <translation>正在完成本次同步…</translation>
    </message>
    <message>
        <source>Cancelling this pass…</source>
        <translation>正在取消本次同步…</translation>
    </message>
    <message>
        <source>%L1 min</source>
        <translation>%L1 分钟</translation>
    </message>
    <message>
        <source>%L1 h</source>
        <translation>%L1 小时</translation>
    </message>
    <message>
        <source>Syncing: asking the Mac</source>
        <translation>正在同步：询问 Mac</translation>
    </message>
    <message>
        <source>Syncing: first pull</source>
        <translation>正在同步：首次拉取</translation>
    </message>
    <message>
        <source>Syncing: copying</source>
        <translation>正在同步：拷贝</translation>
    </message>
    <message>
        <source>Syncing: movies</source>
        <translation>正在同步：影片</translation>
    </message>
    <message>
        <source>Syncing: after arrivals</source>
        <translation>正在同步：到达后的处理</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>正在同步</translation>
    </message>
    <message>
        <source>a few seconds</source>
        <translation>几秒钟</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>约 %1</translation>
    </message>
    <message>
        <source>Asking the Mac</source>
        <translation>正在询问 Mac</translation>
    </message>
    <message>
        <source>First pull</source>
        <translation>首次拉取</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>正在拷贝</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>After arrivals</source>
        <translation>到达后的处理</translation>
    </message>
    <message>
        <source>file %L1 of %L2</source>
        <translation>第 %L1 个文件，共 %L2 个</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>as in: 18.2 of 37.6 GB</comment>
        <translation>%1，共 %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>as in: 92.0 MB/s</comment>
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>Next pass in %1</source>
        <translation>下一次同步：%1 后</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>正在同步：%1</translation>
    </message>
    <message>
        <source>Syncing: %1, %2</source>
        <translation>正在同步：%1，%2</translation>
    </message>
    <message>
        <source>All is well, next pass in %1</source>
        <translation>一切正常，%1 后下一次同步</translation>
    </message>
    <message>
        <source>All is well</source>
        <translation>一切正常</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>two movies</comment>
        <translation>%1 和 %2</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 and %Ln more</source>
        <translation>
            <numerusform>%1、%2 和另外 %Ln 个</numerusform>
        </translation>
    </message>
    <message>
        <source>… 1 byte left out …</source>
        <translation>… 省略了 1 字节 …</translation>
    </message>
    <message>
        <source>Make a new key?</source>
        <translation>要创建新密钥吗？</translation>
    </message>
    <message>
        <source>The Mac will not let Kelvo Mirror in until the new key is installed there with Set Up Key…, which asks for the password on the Mac. Until then no pass brings movies.

The key of today is kept beside the new one, under a name with the date, and is not used any more.</source>
        <translation>在通过“设置密钥…”将新密钥安装到 Mac 之前，Mac 不会允许 Kelvo Mirror 登录；安装时会要求输入 Mac 上的密码。在此之前，同步不会带来任何影片。

当前的密钥会保留在新密钥旁边，名称中带有日期，但不再使用。</translation>
    </message>
    <message>
        <source>Make a New Key</source>
        <translation>创建新密钥</translation>
    </message>
    <message>
        <source>Keep the Key</source>
        <translation>保留密钥</translation>
    </message>
    <message>
        <source>The key was not replaced</source>
        <translation>密钥未被替换</translation>
    </message>
    <message>
        <source>The key of today could not be kept, so nothing was changed.

%1</source>
        <translation>无法保留当前的密钥，因此未作任何更改。

%1</translation>
    </message>
    <message>
        <source>No new key was made</source>
        <translation>未创建新密钥</translation>
    </message>
    <message>
        <source>The key that was there before could not be put back. It lies at %1.

%2</source>
        <translation>无法将之前的密钥放回原处。它位于 %1。

%2</translation>
    </message>
    <message>
        <source>The key that was there before is in its place again.</source>
        <translation>之前的密钥已放回原处。</translation>
    </message>
    <message>
        <source>No Mac chosen yet.</source>
        <translation>尚未选择 Mac。</translation>
    </message>
    <message>
        <source>Choose the Mac from the list of those in this network, or type its host name.</source>
        <translation>请从此网络的 Mac 列表中选择 Mac，或输入其主机名。</translation>
    </message>
    <message>
        <source>%1, folder %2</source>
        <translation>%1，文件夹 %2</translation>
    </message>
    <message>
        <source>An account on the Mac that may log in there, and the folder with the movies.</source>
        <translation>Mac 上可以登录的账户，以及存放影片的文件夹。</translation>
    </message>
    <message>
        <source>Key made, and accepted by the remote Mac before.</source>
        <translation>密钥已创建，远程 Mac 此前已接受。</translation>
    </message>
    <message>
        <source>Key made. The remote Mac could not be asked about it.</source>
        <translation>密钥已创建。无法询问远程 Mac 是否接受。</translation>
    </message>
    <message>
        <source>The key is installed on the Mac, so choose that and enter the account first.</source>
        <translation>密钥要安装到 Mac 上，因此请先选择 Mac 并输入账户。</translation>
    </message>
    <message>
        <source>A terminal opens and asks for the password of %1 on %2; it is typed there and kept nowhere. When the two machines meet for the first time it asks before that whether to go on connecting: answer yes.</source>
        <translation>将打开一个终端，要求输入 %1 在 %2 上的密码；密码在那里输入，不会保存在任何地方。两台电脑首次连接时，终端会先询问是否继续连接：请回答 yes。</translation>
    </message>
    <message>
        <source>The Mac lets this program in.</source>
        <translation>Mac 允许本程序登录。</translation>
    </message>
    <message>
        <source>ssh is not installed on this machine. Install it with: %1</source>
        <translation>此电脑未安装 ssh。请用以下命令安装：%1</translation>
    </message>
    <message>
        <source>The Mac was not asked, because %1.</source>
        <translation>未询问 Mac，原因：%1。</translation>
    </message>
    <message>
        <source>The Mac was not reached, or did not say a word. Test it once more, or log in with ssh in a terminal and see what it says.</source>
        <translation>无法连接 Mac，或者它没有任何回应。请再测试一次，或在终端中用 ssh 登录，看看它显示什么。</translation>
    </message>
    <message>
        <source>The Mac did not answer as it should. The last line was: %1</source>
        <translation>Mac 没有按预期回应。最后一行是：%1</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before. Set up the key: the terminal asks whether to trust the Mac.</source>
        <translation>此电脑以前没有连接过这台 Mac。请设置密钥：终端会询问是否信任这台 Mac。</translation>
    </message>
    <message>
        <source>The Mac does not let this program in yet.</source>
        <translation>Mac 尚不允许本程序登录。</translation>
    </message>
    <message>
        <source>Not tried yet.</source>
        <translation>尚未尝试。</translation>
    </message>
    <message>
        <source>Asked at %1.</source>
        <translation>询问时间：%1。</translation>
    </message>
    <message>
        <source>The message &quot;SUCCESS...&quot; only means that ssh named neither a missing key file nor an unknown host name; this line says what came of it.</source>
        <translation>“成功...”这条消息仅表示 ssh 既没有报告缺少密钥文件，也没有报告未知的主机名；实际结果以这一行为准。</translation>
    </message>
    <message>
        <source>Kelvo Mirror: the password of %1 on %2</source>
        <translation>Kelvo Mirror：%1 在 %2 上的密码</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Macs found.</source>
        <translation>
            <numerusform>找到 %Ln 台 Mac。</numerusform>
        </translation>
    </message>
    <message>
        <source>Its icon in the tray brings the window back; the icon&apos;s menu ends the program.</source>
        <translation>托盘中的图标可恢复窗口；图标的菜单可结束程序。</translation>
    </message>
</context>
<context>
    <name>kelvo::ApplicationMenu</name>
    <message>
        <source>Application menu</source>
        <translation>应用程序菜单</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>关闭窗口(&amp;C)</translation>
    </message>
    <message>
        <source>Quit and &amp;Relaunch</source>
        <translation>退出并重新启动(&amp;R)</translation>
    </message>
    <message>
        <source>Ends the program and starts it again</source>
        <translation>结束程序并再次启动</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>设置(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>显示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Passes</source>
        <translation>同步(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Start Syncing</source>
        <translation>开始同步(&amp;S)</translation>
    </message>
    <message>
        <source>Switches syncing on and off</source>
        <translation>打开或关闭同步</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>立即同步(&amp;N)</translation>
    </message>
    <message>
        <source>Begins the next pass now</source>
        <translation>现在开始下一次同步</translation>
    </message>
    <message>
        <source>&amp;Cancel This Pass</source>
        <translation>取消本次同步(&amp;C)</translation>
    </message>
    <message>
        <source>Ends the pass that runs; what it has begun to copy is kept for the next one</source>
        <translation>结束正在运行的同步；已开始拷贝的内容会留给下一次</translation>
    </message>
    <message>
        <source>&amp;Stop Syncing</source>
        <translation>停止同步(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Tray</source>
        <translation>托盘(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Set Up Tray Icon</source>
        <translation>设置托盘图标(&amp;S)</translation>
    </message>
    <message>
        <source>Shows the program&apos;s icon in the tray</source>
        <translation>在托盘中显示程序的图标</translation>
    </message>
    <message>
        <source>&amp;Remove Tray Icon</source>
        <translation>移除托盘图标(&amp;R)</translation>
    </message>
    <message>
        <source>Takes the icon out of the tray; the program keeps running</source>
        <translation>从托盘中移除图标；程序继续运行</translation>
    </message>
    <message>
        <source>Remove Tray Icon as &amp;Before a Relaunch</source>
        <translation>像重新启动前那样移除托盘图标(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Open &amp;Log Folder</source>
        <translation>打开日志文件夹(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;About Kelvo Mirror</source>
        <translation>关于 Kelvo Mirror(&amp;A)</translation>
    </message>
    <message>
        <source>Syncing is off</source>
        <translation>同步已关闭</translation>
    </message>
    <message>
        <source>A pass begins as soon as nothing is missing</source>
        <translation>所缺的内容齐备后，同步就会开始</translation>
    </message>
    <message>
        <source>A pass runs already</source>
        <translation>同步已在运行</translation>
    </message>
    <message>
        <source>The next pass begins in a moment</source>
        <translation>下一次同步即将开始</translation>
    </message>
    <message>
        <source>The pass is being cancelled already</source>
        <translation>本次同步已在取消</translation>
    </message>
    <message>
        <source>No pass runs</source>
        <translation>没有正在运行的同步</translation>
    </message>
    <message>
        <source>The icon is in the tray already</source>
        <translation>图标已在托盘中</translation>
    </message>
    <message>
        <source>The icon appears as soon as the desktop has a tray for it</source>
        <translation>桌面有可用的托盘时，图标就会出现</translation>
    </message>
    <message>
        <source>The icon is not in the tray</source>
        <translation>图标不在托盘中</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>诊断(&amp;D)</translation>
    </message>
    <message>
        <source>A tab and menu entries for finding out why something does not work</source>
        <translation>用于查明问题原因的标签页和菜单项</translation>
    </message>
    <message>
        <source>Takes the icon out of the tray as Quit and Relaunch does; the program keeps running</source>
        <translation>像“退出并重新启动”那样从托盘中移除图标；程序继续运行</translation>
    </message>
    <message>
        <source>Start Again After a &amp;Crash</source>
        <translation>崩溃后再次启动(&amp;C)</translation>
    </message>
    <message>
        <source>Has the program started again should it crash; each start does this by itself</source>
        <translation>程序崩溃时使其再次启动；每次启动时都会自动设置</translation>
    </message>
    <message>
        <source>&amp;Another Mac…</source>
        <translation>另一台 Mac(&amp;A)…</translation>
    </message>
    <message>
        <source>Opens a window of its own for one more Mac</source>
        <translation>为另一台 Mac 打开单独的窗口</translation>
    </message>
</context>
<context>
    <name>kelvo::ArrivalRows</name>
    <message>
        <source>%1 (%2)</source>
        <comment>a movie, what is the matter with it</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
</context>
<context>
    <name>kelvo::ArrivalsView</name>
    <message>
        <source>not there any more</source>
        <translation>已不存在</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Reveal</source>
        <translation>显示(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation>拷贝路径(&amp;C)</translation>
    </message>
    <message>
        <source>Nothing has arrived yet.

The movies that a pass brings will stand here.</source>
        <translation>还没有内容到达。

同步带来的影片将显示在这里。</translation>
    </message>
    <message>
        <source>No movie with this text in its path has arrived.</source>
        <translation>没有路径含此文字的影片到达。</translation>
    </message>
    <message>
        <source>its name is not UTF-8</source>
        <translation>其名称不是 UTF-8</translation>
    </message>
</context>
<context>
    <name>kelvo::BonjourSheet</name>
    <message>
        <source>Discovery is not installed on this computer. Install it with:

%1

The list fills by itself once discovery runs. Without it, type the Mac&apos;s host name on the Remote Mac tab.</source>
        <translation>此电脑未安装发现服务。请用以下命令安装：

%1

发现服务运行后，列表会自动填充。没有发现服务时，请在“远程 Mac”标签页中输入 Mac 的主机名。</translation>
    </message>
    <message>
        <source>Discovery is not running on this computer. Start it with:

%1

The list fills by itself once discovery runs. Without it, type the Mac&apos;s host name on the Remote Mac tab.</source>
        <translation>此电脑上的发现服务未运行。请用以下命令启动：

%1

发现服务运行后，列表会自动填充。没有发现服务时，请在“远程 Mac”标签页中输入 Mac 的主机名。</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.

Connect it to the network of the Mac. Then choose Rescan.</source>
        <translation>此电脑未连接网络。

请将其连接到 Mac 所在的网络，然后选择“重新搜索”。</translation>
    </message>
    <message>
        <source>No Mac has answered yet.

Discovery has only just started; the search goes on.</source>
        <translation>尚无 Mac 响应。

搜索刚刚开始，仍在继续。</translation>
    </message>
    <message>
        <source>No Mac was found.

On the Mac, open System Settings, General, Sharing, and check that File Sharing and Remote Login are on.
Check that both computers are on the same network.
Then choose Rescan.

The Mac&apos;s host name can also be typed on the Remote Mac tab.</source>
        <translation>未找到 Mac。

请在 Mac 上打开“系统设置”&gt;“通用”&gt;“共享”，检查“文件共享”和“远程登录”是否已打开。
请检查两台电脑是否在同一网络中。
然后选择“重新搜索”。

也可以在“远程 Mac”标签页中输入 Mac 的主机名。</translation>
    </message>
</context>
<context>
    <name>kelvo::BusNotices</name>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
</context>
<context>
    <name>kelvo::BusyRow</name>
    <message>
        <source>Cance&amp;l</source>
        <translation>取消(&amp;L)</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>正在处理</translation>
    </message>
    <message>
        <source>Ends what the program is doing for this tab</source>
        <translation>结束程序正在为此标签页进行的操作</translation>
    </message>
    <message>
        <source>Opening the remote folder…</source>
        <translation>正在打开远程文件夹…</translation>
    </message>
    <message>
        <source>Setting up the key…</source>
        <translation>正在设置密钥…</translation>
    </message>
    <message>
        <source>Making a new key…</source>
        <translation>正在创建新密钥…</translation>
    </message>
    <message>
        <source>Being cancelled…</source>
        <translation>正在取消…</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>Finished.</source>
        <translation>已完成。</translation>
    </message>
</context>
<context>
    <name>kelvo::ChecklistView</name>
    <message>
        <source>What is missing before a pass</source>
        <translation>同步前缺少的内容</translation>
    </message>
    <message>
        <source>Next step</source>
        <translation>下一步</translation>
    </message>
</context>
<context>
    <name>kelvo::DayChart</name>
    <message>
        <source>Day</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>in trouble</source>
        <translation>有问题</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a day, what came on it</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Nothing has arrived. The arrow keys go from day to day.</source>
        <translation>没有内容到达。用方向键可逐日移动。</translation>
    </message>
    <message>
        <source>%1. The most came on this day: %2, %3. The arrow keys go from day to day.</source>
        <translation>%1。到达最多的一天：%2，%3。用方向键可逐日移动。</translation>
    </message>
</context>
<context>
    <name>kelvo::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>拷贝(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
</context>
<context>
    <name>kelvo::ElidedLabel</name>
    <message>
        <source>&amp;Copy</source>
        <translation>拷贝(&amp;C)</translation>
    </message>
</context>
<context>
    <name>kelvo::HealthView</name>
    <message>
        <source>All is well</source>
        <translation>一切正常</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Not known yet</source>
        <translation>尚不清楚</translation>
    </message>
    <message>
        <source>Next step</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Does the next step</source>
        <translation>执行下一步</translation>
    </message>
    <message>
        <source>How the last pass went will stand here.</source>
        <translation>上次同步的结果将显示在这里。</translation>
    </message>
</context>
<context>
    <name>kelvo::MainWindow</name>
    <message>
        <source>Sync</source>
        <translation>同步</translation>
    </message>
    <message>
        <source>Remote Mac</source>
        <translation>远程 Mac</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>诊断</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>活动</translation>
    </message>
</context>
<context>
    <name>kelvo::PassRows</name>
    <message>
        <source>Now</source>
        <translation>现在</translation>
    </message>
    <message>
        <source>When</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>用时</translation>
    </message>
</context>
<context>
    <name>kelvo::PassesView</name>
    <message>
        <source>Export passes</source>
        <translation>导出同步记录</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>逗号分隔值 (*.csv)</translation>
    </message>
    <message>
        <source>Not written: %1</source>
        <translation>未写入：%1</translation>
    </message>
</context>
<context>
    <name>kelvo::PathControlView</name>
    <message>
        <source>Folders above</source>
        <translation>上级文件夹</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>打开 %1</translation>
    </message>
</context>
<context>
    <name>kelvo::ProfilesSheet</name>
    <message>
        <source>Without a name</source>
        <translation>无名称</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>尚无</translation>
    </message>
    <message>
        <source>This window</source>
        <translation>此窗口</translation>
    </message>
    <message>
        <source>Running, in trouble</source>
        <translation>运行中，有问题</translation>
    </message>
    <message>
        <source>Not running, in trouble</source>
        <translation>未运行，有问题</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>Not running</source>
        <translation>未运行</translation>
    </message>
    <message>
        <source>A name has 1 to 64 letters (A to Z), digits, “-” and “_”, and no blank.</source>
        <translation>名称由 1 到 64 个字母（A 到 Z）、数字、“-”和“_”组成，不含空格。</translation>
    </message>
    <message>
        <source>No window could be opened: %1</source>
        <translation>无法打开窗口：%1</translation>
    </message>
</context>
<context>
    <name>kelvo::ProgressView</name>
    <message>
        <source>Progress of the pass</source>
        <translation>同步的进度</translation>
    </message>
    <message>
        <source>The movie that is being copied will stand here.</source>
        <translation>正在拷贝的影片将显示在这里。</translation>
    </message>
</context>
<context>
    <name>kelvo::RecentArrivals</name>
    <message>
        <source>Movies that have arrived will stand here, the newest first. A double click opens one.</source>
        <translation>到达的影片将显示在这里，最新的在前。双击可打开。</translation>
    </message>
    <message>
        <source>Movies that arrived last</source>
        <translation>最近到达的影片</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>已到达</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
</context>
<context>
    <name>kelvo::RemoteTab</name>
    <message>
        <source>none yet</source>
        <translation>还没有</translation>
    </message>
</context>
<context>
    <name>kelvo::ServiceRows</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>主机</translation>
    </message>
</context>
<context>
    <name>kelvo::SettingsTab</name>
    <message>
        <source>Every file that differs</source>
        <translation>所有有差异的文件</translation>
    </message>
    <message>
        <source>Only files newer than here (--update)</source>
        <translation>仅比这里更新的文件 (--update)</translation>
    </message>
    <message>
        <source>Only files not here yet (--ignore-existing)</source>
        <translation>仅这里还没有的文件 (--ignore-existing)</translation>
    </message>
    <message>
        <source>Every file that differs (stored as 105)</source>
        <translation>所有有差异的文件（存为 105）</translation>
    </message>
    <message>
        <source>Not a valid option (%1)</source>
        <translation>不是有效的选项 (%1)</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>The template lacks %@1, the source: its command does not read the source that is chosen.</source>
        <translation>模板中缺少 %@1（来源）：命令不会读取所选的来源。</translation>
    </message>
    <message>
        <source>The template lacks %@2, the destination: its command does not fill the folder that is chosen.</source>
        <translation>模板中缺少 %@2（目标）：命令不会拷贝到所选的文件夹。</translation>
    </message>
    <message>
        <source>The template lacks %@98, the options of ssh: its command does not use the key that was set up.</source>
        <translation>模板中缺少 %@98（ssh 的选项）：命令不会使用已设置的密钥。</translation>
    </message>
    <message>
        <source>The template lacks %@99, the option: the option that is chosen changes nothing.</source>
        <translation>模板中缺少 %@99（选项）：所选的选项不起作用。</translation>
    </message>
    <message>
        <source>The template has a folder where its name may fall apart: passes are refused when the name holds blanks, quotes or the like.</source>
        <translation>模板中有文件夹位于其名称可能被拆开的位置：名称含有空格、引号等字符时，同步会被拒绝。</translation>
    </message>
    <message>
        <source>The template under Advanced is your own and is left alone: the kinds of movies are written there.</source>
        <translation>“高级”中的模板是您自己的，不会改动：影片类型写在那里。</translation>
    </message>
    <message>
        <source>Movies of the kinds .mov and .mp4 always come from the remote Mac.</source>
        <translation>.mov 和 .mp4 类型的影片始终会从远程 Mac 到达。</translation>
    </message>
    <message>
        <source>No kind is ticked: passes bring nothing.</source>
        <translation>未勾选任何类型：同步不会带来任何内容。</translation>
    </message>
    <message>
        <source>The rsync command with the places %@1 source, %@2 destination, %@3 key, %@98 ssh, %@99 option</source>
        <translation>rsync 命令，其中 %@1 为来源，%@2 为目标，%@3 为密钥，%@98 为 ssh，%@99 为选项</translation>
    </message>
    <message>
        <source>Back to My Template</source>
        <translation>恢复我的模板</translation>
    </message>
    <message>
        <source>Back to the Factory Template</source>
        <translation>恢复默认模板</translation>
    </message>
    <message>
        <source>Brings back the template that the factory&apos;s took the place of</source>
        <translation>恢复被默认模板取代的模板</translation>
    </message>
    <message>
        <source>Takes the template that Kelvo Mirror comes with; asks before it replaces one that was changed by hand</source>
        <translation>使用 Kelvo Mirror 自带的模板；如果要替换手动更改过的模板，会先询问</translation>
    </message>
    <message>
        <source>Go back to the factory template?</source>
        <translation>要恢复默认模板吗？</translation>
    </message>
    <message>
        <source>Your own template is replaced. “Back to My Template” brings it back until the program ends.</source>
        <translation>您自己的模板将被替换。在程序结束之前，可用“恢复我的模板”将其恢复。</translation>
    </message>
    <message>
        <source>Keep My Template</source>
        <translation>保留我的模板</translation>
    </message>
</context>
<context>
    <name>kelvo::SshLineBox</name>
    <message>
        <source>%1 was not changed: %2</source>
        <translation>未能更改 %1：%2</translation>
    </message>
    <message>
        <source>A line in %1 tells ssh of the connection.</source>
        <translation>%1 中的一行让 ssh 知道此连接。</translation>
    </message>
    <message>
        <source>ssh does not know of the connection yet: passes log in each time.</source>
        <translation>ssh 还不知道此连接：每次同步都会重新登录。</translation>
    </message>
    <message>
        <source>Take the Line Away</source>
        <translation>移除该行</translation>
    </message>
    <message>
        <source>Tell ssh…</source>
        <translation>告知 ssh…</translation>
    </message>
    <message>
        <source>Removes the line that Kelvo Mirror has put into your configuration of ssh</source>
        <translation>移除 Kelvo Mirror 写入您的 ssh 配置中的那一行</translation>
    </message>
    <message>
        <source>Shows the line that your configuration of ssh needs, and asks before it is put there</source>
        <translation>显示您的 ssh 配置所需的一行，并在写入前询问</translation>
    </message>
    <message>
        <source>Tell ssh of the connection?</source>
        <translation>要让 ssh 知道此连接吗？</translation>
    </message>
    <message>
        <source>This line is put at the top of %1. It concerns no commands but those of passes.
%2</source>
        <translation>此行将写在 %1 的开头。它只影响同步所用的命令。
%2</translation>
    </message>
    <message>
        <source>Add the Line</source>
        <translation>添加该行</translation>
    </message>
    <message>
        <source>Leave It as It Is</source>
        <translation>保持原样</translation>
    </message>
</context>
<context>
    <name>kelvo::StatusFieldView</name>
    <message>
        <source>Trouble</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>What the program is doing</source>
        <translation>程序正在做什么</translation>
    </message>
</context>
<context>
    <name>kelvo::StepHead</name>
    <message>
        <source>Done</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍后</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>kelvo::SyncTab</name>
    <message>
        <source>No source folder chosen yet</source>
        <translation>尚未选择来源文件夹</translation>
    </message>
    <message>
        <source>No destination folder chosen yet</source>
        <translation>尚未选择目标文件夹</translation>
    </message>
    <message>
        <source>No remote Mac chosen yet</source>
        <translation>尚未选择远程 Mac</translation>
    </message>
    <message>
        <source>The pass went well: %1.</source>
        <translation>同步顺利：%1。</translation>
    </message>
</context>
<context>
    <name>kelvo::TrayIcon</name>
    <message>
        <source>Syncing is off</source>
        <translation>同步已关闭</translation>
    </message>
    <message>
        <source>Waiting for the next pass</source>
        <translation>正在等待下一次同步</translation>
    </message>
    <message>
        <source>Syncing now</source>
        <translation>正在同步</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>需要注意</translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation>开始同步</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>立即同步(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Cancel This Pass</source>
        <translation>取消本次同步(&amp;C)</translation>
    </message>
    <message>
        <source>Open &amp;Window</source>
        <translation>打开窗口(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Activity</source>
        <translation>活动(&amp;A)</translation>
    </message>
    <message>
        <source>Reveal &amp;Folder</source>
        <translation>显示文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>Quit and &amp;Relaunch</source>
        <translation>退出并重新启动(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>No destination folder is chosen yet</source>
        <translation>尚未选择目标文件夹</translation>
    </message>
</context>
<context>
    <name>sourceNotice</name>
    <message>
        <source>Choose the remote Mac on the Remote Mac tab.</source>
        <translation>请在“远程 Mac”标签页中选择远程 Mac。</translation>
    </message>
    <message>
        <source>Enter the user name on the Remote Mac tab.</source>
        <translation>请在“远程 Mac”标签页中输入用户名。</translation>
    </message>
    <message>
        <source>Enter the remote folder on the Remote Mac tab.</source>
        <translation>请在“远程 Mac”标签页中输入远程文件夹。</translation>
    </message>
    <message>
        <source>Passes still pull from the source above. The new host or folder takes effect with &quot;Use This Source Now&quot;, or else when the user name changes or the program starts again.</source>
        <translation>同步仍从上方的来源拉取。选择“立即使用此来源”后，或者在更改用户名或程序再次启动时，新的主机或文件夹才会生效。</translation>
    </message>
</context>
</TS>
