<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ActivityTab</name>
    <message>
        <source>&amp;Arrived</source>
        <translation>到着(&amp;A)</translation>
    </message>
    <message>
        <source>Shows the movies that have arrived</source>
        <translation>届いたムービーを表示します</translation>
    </message>
    <message>
        <source>A&amp;ll Passes</source>
        <translation>すべての同期(&amp;L)</translation>
    </message>
    <message>
        <source>Shows every pass with its outcome</source>
        <translation>各回の同期とその結果を表示します</translation>
    </message>
    <message>
        <source>Arrived per day, 30 days</source>
        <translation>1 日ごとの到着、30 日間</translation>
    </message>
</context>
<context>
    <name>ArrivalsView</name>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search what has arrived</source>
        <translation>届いたものを検索</translation>
    </message>
    <message>
        <source>Shows the movies with this text in their path</source>
        <translation>パスにこの文字を含むムービーを表示します</translation>
    </message>
    <message>
        <source>Arrived movies</source>
        <translation>届いたムービー</translation>
    </message>
    <message>
        <source>By day, newest first; the Return key opens one</source>
        <translation>日ごと、新しい順。Return キーで開きます</translation>
    </message>
</context>
<context>
    <name>BonjourSheet</name>
    <message>
        <source>Choose the Remote Mac</source>
        <translation>リモート Mac の選択</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>検索中</translation>
    </message>
    <message>
        <source>Computers found</source>
        <translation>見つかったコンピュータ</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>再検索(&amp;R)</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>再検索</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>選択(&amp;S)</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Copy C&amp;ommand</source>
        <translation>コマンドをコピー(&amp;O)</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>コマンドをコピー</translation>
    </message>
</context>
<context>
    <name>DiagnosticsTab</name>
    <message>
        <source>Folders and window</source>
        <translation>フォルダとウインドウ</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Looks one second for Macs that share files and lists all of them below</source>
        <translation>ファイルを共有している Mac を 1 秒間探し、見つかったものをすべて下に表示します</translation>
    </message>
    <message>
        <source>Writes what the last search found to the log</source>
        <translation>最後の検索で見つかったものをログに書き込みます</translation>
    </message>
    <message>
        <source>Found &amp;Macs</source>
        <translation>見つかった Mac(&amp;M)</translation>
    </message>
    <message>
        <source>Found Macs</source>
        <translation>見つかった Mac</translation>
    </message>
    <message>
        <source>Remote Mac and program</source>
        <translation>リモート Mac とプログラム</translation>
    </message>
    <message>
        <source>These buttons help to find out why something does not work. What they find out is written to the log: Help, Open Log Folder.</source>
        <translation>これらのボタンは、うまく動かない原因を調べるためのものです。調べた結果はログに書き込まれます (「ヘルプ」、「ログフォルダを開く」)。</translation>
    </message>
    <message>
        <source>Passes and heartbeat</source>
        <translation>同期とハートビート</translation>
    </message>
    <message>
        <source>Sync Two Folders Here</source>
        <translation>ここの 2 つのフォルダを同期</translation>
    </message>
    <message>
        <source>Switches syncing on or off, with passes between two folders on this computer, whatever Settings says</source>
        <translation>「設定」の内容にかかわらず、このコンピュータの 2 つのフォルダ間の同期をオンまたはオフにします</translation>
    </message>
    <message>
        <source>Sync from the Mac</source>
        <translation>Mac から同期</translation>
    </message>
    <message>
        <source>Switches syncing on or off, with passes from the remote Mac, whatever Settings says</source>
        <translation>「設定」の内容にかかわらず、リモート Mac からの同期をオンまたはオフにします</translation>
    </message>
    <message>
        <source>Start Heartbeat</source>
        <translation>ハートビートを開始</translation>
    </message>
    <message>
        <source>Writes a line to the log each second, as a sign that the program is alive</source>
        <translation>プログラムが動いている印として、毎秒 1 行をログに書き込みます</translation>
    </message>
    <message>
        <source>Pause Heartbeat</source>
        <translation>ハートビートを一時停止</translation>
    </message>
    <message>
        <source>Writes no more of these lines until the heartbeat is started again</source>
        <translation>ハートビートをもう一度開始するまで、この行を書き込みません</translation>
    </message>
    <message>
        <source>End Heartbeat</source>
        <translation>ハートビートを終了</translation>
    </message>
    <message>
        <source>Writes no more of these lines until the program starts again</source>
        <translation>プログラムをもう一度起動するまで、この行を書き込みません</translation>
    </message>
    <message>
        <source>Show Source Folder</source>
        <translation>コピー元フォルダを表示</translation>
    </message>
    <message>
        <source>Shows the source folder on the Sync tab and writes its parts to the log; where none is chosen, the Desktop folder becomes the source</source>
        <translation>「同期」タブのコピー元フォルダを表示し、そのパスの各部分をログに書き込みます。何も選ばれていなければ、「デスクトップ」フォルダがコピー元になります</translation>
    </message>
    <message>
        <source>Open Test Folder</source>
        <translation>テストフォルダを開く</translation>
    </message>
    <message>
        <source>Opens /Volumes/Macintosh%20HD-2/Users/support/Desktop/FolderOnRemoteServer, a folder for tests that few computers have; source and destination must be chosen first</source>
        <translation>テスト用のフォルダ /Volumes/Macintosh%20HD-2/Users/support/Desktop/FolderOnRemoteServer を開きます。このフォルダがあるコンピュータはわずかです。先にコピー元とコピー先を選ぶ必要があります</translation>
    </message>
    <message>
        <source>Open Scripts Folder</source>
        <translation>スクリプトフォルダを開く</translation>
    </message>
    <message>
        <source>Opens the temporary folder in which the program keeps the scripts for a terminal</source>
        <translation>ターミナル用のスクリプトを置く一時フォルダを開きます</translation>
    </message>
    <message>
        <source>Leave All Fields</source>
        <translation>すべての入力欄から離れる</translation>
    </message>
    <message>
        <source>Takes the keyboard away from every field and button until another one is chosen</source>
        <translation>ほかの入力欄かボタンを選ぶまで、キーボードのフォーカスをすべての入力欄とボタンから外します</translation>
    </message>
    <message>
        <source>Search for Macs</source>
        <translation>Mac を検索</translation>
    </message>
    <message>
        <source>Log Found Macs</source>
        <translation>見つかった Mac をログに記録</translation>
    </message>
    <message>
        <source>Copy to a Mac</source>
        <translation>Mac にコピー</translation>
    </message>
    <message>
        <source>Writes a line to the log and nothing else: the destination is always a folder on this computer</source>
        <translation>ログに 1 行を書き込むだけです。コピー先は常にこのコンピュータのフォルダです</translation>
    </message>
    <message>
        <source>Watch for Shares</source>
        <translation>共有を監視</translation>
    </message>
    <message>
        <source>Looks for shared folders and writes each one that comes or goes to the log</source>
        <translation>共有フォルダを探し、現れたものと消えたものを 1 つずつログに書き込みます</translation>
    </message>
    <message>
        <source>Open the Share</source>
        <translation>共有を開く</translation>
    </message>
    <message>
        <source>Asks the desktop to open the shared folder of the Mac and writes the open shares to the log</source>
        <translation>Mac の共有フォルダを開くようデスクトップに依頼し、開いている共有をログに書き込みます</translation>
    </message>
    <message>
        <source>Find Folder, Older Way</source>
        <translation>フォルダを探す (以前の方法)</translation>
    </message>
    <message>
        <source>Opens the shared folder of the Mac and looks for the folder in it without waiting</source>
        <translation>Mac の共有フォルダを開き、待たずにその中のフォルダを探します</translation>
    </message>
    <message>
        <source>New Key, Older Way</source>
        <translation>新しい鍵を作成 (以前の方法)</translation>
    </message>
    <message>
        <source>Removes the key and makes a new one in a terminal window; the Mac must be given the new one with Set Up Key</source>
        <translation>鍵を削除し、ターミナルのウインドウで新しい鍵を作ります。新しい鍵は「鍵を設定」で Mac に渡す必要があります</translation>
    </message>
    <message>
        <source>Quit and Relaunch</source>
        <translation>終了して再起動</translation>
    </message>
    <message>
        <source>Ends the program and starts it again</source>
        <translation>プログラムを終了してもう一度起動します</translation>
    </message>
</context>
<context>
    <name>FixedWords</name>
    <message>
        <source>Start rsync with bonjour</source>
        <translation>Bonjour で rsync を開始</translation>
    </message>
    <message>
        <source>Start rsync with afp path</source>
        <translation>AFP のパスで rsync を開始</translation>
    </message>
    <message>
        <source>click to stop bonjour rsync</source>
        <translation>クリックで Bonjour の rsync を停止</translation>
    </message>
    <message>
        <source>click to stop rsync</source>
        <translation>クリックで rsync を停止</translation>
    </message>
    <message>
        <source>click to start rsync using bonjour</source>
        <translation>クリックで Bonjour の rsync を開始</translation>
    </message>
    <message>
        <source>click to start rsync</source>
        <translation>クリックで rsync を開始</translation>
    </message>
    <message>
        <source>click to restart rsync using bonjour</source>
        <translation>クリックで Bonjour の rsync を再開</translation>
    </message>
    <message>
        <source>click to restart rsync</source>
        <translation>クリックで rsync を再開</translation>
    </message>
    <message>
        <source>Trying to rsync From Destination to Source...</source>
        <translation>コピー先からコピー元へ rsync を試みています...</translation>
    </message>
    <message>
        <source>Resting a bit ...</source>
        <translation>少し休んでいます ...</translation>
    </message>
    <message>
        <source>The settings file cannot be read - waiting...</source>
        <translation>設定ファイルを読めません - 待機中...</translation>
    </message>
    <message>
        <source>oops - something went wrong - check settings and hardware connections - then try again...</source>
        <translation>問題が起きました - 設定と機器の接続を確認して - もう一度試してください...</translation>
    </message>
    <message>
        <source>Unable to Reach Remote Host</source>
        <translation>リモートホストに接続できません</translation>
    </message>
    <message>
        <source>Missing ssh keys -
Please generate ssh keys
 and 
 try again...
</source>
        <translation>ssh 鍵がありません -
ssh 鍵を生成してから
 もう一度 
 試してください...
</translation>
    </message>
    <message>
        <source>SUCCESS...</source>
        <translation>成功...</translation>
    </message>
    <message>
        <source>remote seem to be alive?...</source>
        <translation>リモートは応答しているようです...</translation>
    </message>
    <message>
        <source>Oh OH...</source>
        <translation>おっと...</translation>
    </message>
    <message>
        <source>ssh identity file is invalid or missing ???...</source>
        <translation>ssh の鍵ファイルが無効か、見つかりません...</translation>
    </message>
    <message>
        <source>ssh remote has issues - please check network connection or remote username@domain parameters...</source>
        <translation>リモートの ssh に問題があります - ネットワーク接続かユーザ名@ドメインを確認してください...</translation>
    </message>
    <message>
        <source>Please Wait - Scanning for smb machines on network...</source>
        <translation>お待ちください - ネットワーク上の smb コンピュータを検索しています...</translation>
    </message>
    <message>
        <source>Bonjour List...</source>
        <translation>Bonjour の一覧...</translation>
    </message>
    <message>
        <source>No network connection</source>
        <translation>ネットワークに接続していません</translation>
    </message>
    <message>
        <source>Connected to the local network only</source>
        <translation>ローカルネットワークにのみ接続しています</translation>
    </message>
    <message>
        <source>Connected to the network</source>
        <translation>ネットワークに接続しています</translation>
    </message>
    <message>
        <source>the user name holds a zero</source>
        <translation>ユーザ名に NUL 文字があります</translation>
    </message>
    <message>
        <source>the user name holds a line break</source>
        <translation>ユーザ名に改行があります</translation>
    </message>
    <message>
        <source>the user name holds signs that are no text</source>
        <translation>ユーザ名にテキストとして扱えない文字があります</translation>
    </message>
    <message>
        <source>the user name begins with &quot;-&quot;</source>
        <translation>ユーザ名が「-」で始まっています</translation>
    </message>
    <message>
        <source>the user name holds &quot;:&quot; or &quot;/&quot;</source>
        <translation>ユーザ名に「:」か「/」があります</translation>
    </message>
    <message>
        <source>the host name holds a zero</source>
        <translation>ホスト名に NUL 文字があります</translation>
    </message>
    <message>
        <source>the host name holds a line break</source>
        <translation>ホスト名に改行があります</translation>
    </message>
    <message>
        <source>the host name holds signs that are no text</source>
        <translation>ホスト名にテキストとして扱えない文字があります</translation>
    </message>
    <message>
        <source>the host name begins with &quot;-&quot;</source>
        <translation>ホスト名が「-」で始まっています</translation>
    </message>
    <message>
        <source>the host name holds &quot;/&quot;</source>
        <translation>ホスト名に「/」があります</translation>
    </message>
    <message>
        <source>the path of the key file holds a line break</source>
        <translation>鍵ファイルのパスに改行があります</translation>
    </message>
    <message>
        <source>the path of the key file holds signs that are no text</source>
        <translation>鍵ファイルのパスにテキストとして扱えない文字があります</translation>
    </message>
    <message>
        <source>the source holds a zero</source>
        <translation>コピー元に NUL 文字があります</translation>
    </message>
    <message>
        <source>the source holds a line break</source>
        <translation>コピー元に改行があります</translation>
    </message>
    <message>
        <source>the source holds signs that are no text</source>
        <translation>コピー元にテキストとして扱えない文字があります</translation>
    </message>
    <message>
        <source>the source begins with &quot;-&quot;</source>
        <translation>コピー元が「-」で始まっています</translation>
    </message>
    <message>
        <source>the host of the source begins with &quot;-&quot;</source>
        <translation>コピー元のホストが「-」で始まっています</translation>
    </message>
    <message>
        <source>the source would be read as a module of an rsync daemon</source>
        <translation>コピー元が rsync デーモンのモジュールと解釈されます</translation>
    </message>
    <message>
        <source>the destination holds a zero</source>
        <translation>コピー先に NUL 文字があります</translation>
    </message>
    <message>
        <source>the destination holds a line break</source>
        <translation>コピー先に改行があります</translation>
    </message>
    <message>
        <source>the destination holds signs that are no text</source>
        <translation>コピー先にテキストとして扱えない文字があります</translation>
    </message>
    <message>
        <source>the destination begins with &quot;-&quot;</source>
        <translation>コピー先が「-」で始まっています</translation>
    </message>
    <message>
        <source>the destination would be read as the name of a host</source>
        <translation>コピー先がホスト名と解釈されます</translation>
    </message>
    <message>
        <source>the command puts a text where it cannot be kept in one word</source>
        <translation>コマンドの中で、値が 1 語にまとまらない場所に置かれています</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>ディスクの割り当て量を超えました</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>入出力エラー</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>フォルダです</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>ディスクに空きがありません</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>そのようなファイルやフォルダはありません</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>フォルダではありません</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>アクセスが許可されていません</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>読み出し専用のファイルシステムです</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>開いているファイルが多すぎます</translation>
    </message>
    <message>
        <source>Trying to rsync with option = %1...</source>
        <translation>オプション = %1 で rsync を試みています...</translation>
    </message>
    <message>
        <source>something went wrong - waiting to retry again... [%1]</source>
        <translation>問題が起きました - 再試行を待っています... [%1]</translation>
    </message>
    <message>
        <source>Please make sure remote host is on this network
or
Please check username...

%1
</source>
        <translation>リモートホストがこのネットワークにあることを確認してください
または
ユーザ名を確認してください...

%1
</translation>
    </message>
    <message>
        <source>Settings cannot be saved to %1: %2</source>
        <translation>設定を %1 に保存できません: %2</translation>
    </message>
    <message>
        <source>The settings in %1 are not known: %2</source>
        <translation>%1 の設定を確認できません: %2</translation>
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
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>PassesView</name>
    <message>
        <source>&amp;Brought files</source>
        <translation>ファイルあり(&amp;B)</translation>
    </message>
    <message>
        <source>Shows the passes that brought files</source>
        <translation>ファイルが届いた同期を表示します</translation>
    </message>
    <message>
        <source>In tro&amp;uble</source>
        <translation>問題あり(&amp;U)</translation>
    </message>
    <message>
        <source>Shows the passes that were in trouble</source>
        <translation>問題のあった同期を表示します</translation>
    </message>
    <message>
        <source>Passes</source>
        <translation>同期の記録</translation>
    </message>
    <message>
        <source>Newest first; the selected pass is told below. The right arrow key unfolds a row that stands for several passes.</source>
        <translation>新しい順。選択した同期の詳細が下に表示されます。右矢印キーで、複数回をまとめた行を開きます。</translation>
    </message>
    <message>
        <source>Select a pass to read what its commands said.</source>
        <translation>同期を選ぶと、そのコマンドの出力を読めます。</translation>
    </message>
    <message>
        <source>The selected pass</source>
        <translation>選択した同期</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the selected pass</source>
        <translation>選択した同期をコピー</translation>
    </message>
    <message>
        <source>Puts the selected pass&apos;s text on the clipboard</source>
        <translation>選択した同期の内容をクリップボードに入れます</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>書き出し(&amp;X)…</translation>
    </message>
    <message>
        <source>Export all passes</source>
        <translation>すべての同期を書き出し</translation>
    </message>
    <message>
        <source>Writes all passes to a file of comma-separated values</source>
        <translation>すべての同期をカンマ区切りのファイルに書き出します</translation>
    </message>
</context>
<context>
    <name>ProfilesSheet</name>
    <message>
        <source>Another Mac</source>
        <translation>別の Mac</translation>
    </message>
    <message>
        <source>Each further Mac gets a name here. Under it the program keeps settings, a record of passes and a window of their own; the key is shared.</source>
        <translation>追加する Mac にはここで名前を付けます。名前ごとに、設定、同期の記録、ウインドウが別になります。鍵は共通です。</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>Letters, digits, “-” and “_”</source>
        <translation>英字、数字、「-」と「_」</translation>
    </message>
    <message>
        <source>Names there are</source>
        <translation>既にある名前</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Mac</source>
        <translation>Mac</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Last success</source>
        <translation>最後の成功</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>Opens the window of this name, or brings it to the front</source>
        <translation>この名前のウインドウを開くか、手前に出します</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>About Kelvo Mirror</source>
        <translation>Kelvo Mirror について</translation>
    </message>
    <message>
        <source>Kelvo Mirror %1</source>
        <translation>Kelvo Mirror %1</translation>
    </message>
    <message>
        <source>Keeps a local folder supplied with movie files from a remote Mac.</source>
        <translation>リモート Mac のムービーファイルをローカルフォルダに届け続けます。</translation>
    </message>
    <message>
        <source>Do not ask again</source>
        <translation>次回から確認しない</translation>
    </message>
    <message>
        <source>Show Remote Mac</source>
        <translation>リモート Mac を表示</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>コマンドをコピー</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>もう一度確認</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Open the Log</source>
        <translation>ログを開く</translation>
    </message>
    <message>
        <source>Without an answer, it tries again in %1 s.</source>
        <translation>応答がなければ %1 秒後に再試行します。</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>Choose the Mac</source>
        <translation>Mac を選択</translation>
    </message>
    <message>
        <source>Enter the Account</source>
        <translation>アカウントを入力</translation>
    </message>
    <message>
        <source>Set Up the Key</source>
        <translation>鍵を設定</translation>
    </message>
    <message>
        <source>&amp;Folder or file:</source>
        <translation>フォルダまたはファイル(&amp;F):</translation>
    </message>
</context>
<context>
    <name>RemoteTab</name>
    <message>
        <source>Host &amp;name</source>
        <translation>ホスト名(&amp;N)</translation>
    </message>
    <message>
        <source>Studio-Mac.local</source>
        <translation>Studio-Mac.local</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>ホスト名</translation>
    </message>
    <message>
        <source>The name of the remote Mac on this network</source>
        <translation>このネットワークでのリモート Mac の名前</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>選択(&amp;C)…</translation>
    </message>
    <message>
        <source>Choose the remote Mac</source>
        <translation>リモート Mac を選択</translation>
    </message>
    <message>
        <source>Lists the Macs on this network that share files</source>
        <translation>このネットワークでファイルを共有している Mac を一覧表示します</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>ユーザ名(&amp;U)</translation>
    </message>
    <message>
        <source>name of an account on the remote Mac</source>
        <translation>リモート Mac のアカウント名</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>ユーザ名</translation>
    </message>
    <message>
        <source>An account on the remote Mac with Remote Login</source>
        <translation>リモートログインできるリモート Mac のアカウント</translation>
    </message>
    <message>
        <source>Fol&amp;der</source>
        <translation>フォルダ(&amp;D)</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>ムービー</translation>
    </message>
    <message>
        <source>Remote folder</source>
        <translation>リモートフォルダ</translation>
    </message>
    <message>
        <source>The folder on the remote Mac to pull from, from its home folder or from /</source>
        <translation>取得元になるリモート Mac のフォルダ。ホームフォルダからのパスか、/ で始まるパス</translation>
    </message>
    <message>
        <source>Source in use</source>
        <translation>使用中のコピー元</translation>
    </message>
    <message>
        <source>Set Up &amp;Key…</source>
        <translation>鍵を設定(&amp;K)…</translation>
    </message>
    <message>
        <source>Makes a key for this program and installs it on the remote Mac; asks for the password there</source>
        <translation>このプログラム用の鍵を作り、リモート Mac にインストールします。そこでのパスワードを尋ねます</translation>
    </message>
    <message>
        <source>Te&amp;st Connection</source>
        <translation>接続をテスト(&amp;S)</translation>
    </message>
    <message>
        <source>Asks the remote Mac for an answer over ssh</source>
        <translation>ssh でリモート Mac に応答を求めます</translation>
    </message>
    <message>
        <source>The connection test is running</source>
        <translation>接続をテストしています</translation>
    </message>
    <message>
        <source>&amp;Make a New Key</source>
        <translation>新しい鍵を作成(&amp;M)</translation>
    </message>
    <message>
        <source>Replaces the key of this program; it must be installed again</source>
        <translation>このプログラムの鍵を取り替えます。鍵はインストールし直す必要があります</translation>
    </message>
    <message>
        <source>Check Ke&amp;y Again</source>
        <translation>鍵をもう一度確認(&amp;Y)</translation>
    </message>
    <message>
        <source>Asks the remote Mac whether it accepts the key</source>
        <translation>鍵を受け入れるかどうかをリモート Mac に確認します</translation>
    </message>
    <message>
        <source>&amp;Open Remote Folder</source>
        <translation>リモートフォルダを開く(&amp;O)</translation>
    </message>
    <message>
        <source>Opens the remote folder in the file browser</source>
        <translation>リモートフォルダをファイルマネージャで開きます</translation>
    </message>
    <message>
        <source>Mount and F&amp;ind Folder</source>
        <translation>マウントしてフォルダを探す(&amp;I)</translation>
    </message>
    <message>
        <source>Opens the share, looks where it was mounted and opens the folder there</source>
        <translation>共有を開き、マウントされた場所を調べて、そこにあるフォルダを開きます</translation>
    </message>
    <message>
        <source>1. Mac</source>
        <translation>1. Mac</translation>
    </message>
    <message>
        <source>2. Account and folder</source>
        <translation>2. アカウントとフォルダ</translation>
    </message>
    <message>
        <source>Use This Source No&amp;w</source>
        <translation>このコピー元を今すぐ使う(&amp;W)</translation>
    </message>
    <message>
        <source>Passes pull from this account and folder from now on</source>
        <translation>これからの同期は、このアカウントとフォルダから取得します</translation>
    </message>
    <message>
        <source>3. Key</source>
        <translation>3. 鍵</translation>
    </message>
    <message>
        <source>4. Connection</source>
        <translation>4. 接続</translation>
    </message>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
</context>
<context>
    <name>SettingsTab</name>
    <message>
        <source>Kind of pass</source>
        <translation>同期の種類</translation>
    </message>
    <message>
        <source>Pull from the &amp;remote Mac over ssh</source>
        <translation>リモート Mac から ssh で取得(&amp;R)</translation>
    </message>
    <message>
        <source>Copy &amp;between two folders of this computer</source>
        <translation>このコンピュータの 2 つのフォルダ間でコピー(&amp;B)</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Te&amp;mplate</source>
        <translation>テンプレート(&amp;M)</translation>
    </message>
    <message>
        <source>Command template</source>
        <translation>コマンドのテンプレート</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>オプション(&amp;O)</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Which files a pass touches</source>
        <translation>同期の対象になるファイル</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>例</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Rest between p&amp;asses</source>
        <translation>同期の間の休み(&amp;A)</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>3.0 s (automatic)</source>
        <translation>3.0 秒 (自動)</translation>
    </message>
    <message>
        <source>Rest between passes</source>
        <translation>同期の間の休み</translation>
    </message>
    <message>
        <source>Seconds between two passes</source>
        <translation>同期と同期の間の秒数</translation>
    </message>
    <message>
        <source>&amp;Start syncing at launch</source>
        <translation>起動時に同期を開始(&amp;S)</translation>
    </message>
    <message>
        <source>Hide the &amp;window at launch</source>
        <translation>起動時にウインドウを隠す(&amp;W)</translation>
    </message>
    <message>
        <source>Show a noti&amp;ce when movies have arrived</source>
        <translation>ムービーが届いたら通知を表示(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit without asking while movies are being copied</source>
        <translation>ムービーのコピー中でも確認せずに終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Start Kelvo Mirror when I &amp;log in</source>
        <translation>ログイン時に Kelvo Mirror を起動(&amp;L)</translation>
    </message>
    <message>
        <source>R&amp;un after arrivals</source>
        <translation>到着後に実行(&amp;U)</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>コマンドなし</translation>
    </message>
    <message>
        <source>Command to run after arrivals</source>
        <translation>到着後に実行するコマンド</translation>
    </message>
    <message>
        <source>Run after each pass that has brought movies; empty for none</source>
        <translation>ムービーが届いた同期のあとに毎回実行します。不要なら空のままにします</translation>
    </message>
    <message>
        <source>It reads the paths of the movies on its standard input, each ended by a NUL; KELVO_MIRROR_ARRIVALS says how many.</source>
        <translation>ムービーのパスを標準入力から読み取ります。各パスの終わりは NUL です。KELVO_MIRROR_ARRIVALS が本数を示します。</translation>
    </message>
    <message>
        <source>Show a &amp;notice when passes turn bad and when they are well again</source>
        <translation>同期に問題が起きたときと回復したときに通知を表示(&amp;N)</translation>
    </message>
    <message>
        <source>Kinds of movies</source>
        <translation>ムービーの種類</translation>
    </message>
    <message>
        <source>A&amp;dvanced</source>
        <translation>詳細設定(&amp;D)</translation>
    </message>
    <message>
        <source>Shows the command that a pass runs, and hides it again</source>
        <translation>同期で実行されるコマンドの表示と非表示を切り替えます</translation>
    </message>
    <message>
        <source>The template with the option filled in</source>
        <translation>オプションを埋め込んだテンプレート</translation>
    </message>
    <message>
        <source>&amp;Keep the connection to the Mac between passes</source>
        <translation>同期の間も Mac との接続を保つ(&amp;K)</translation>
    </message>
    <message>
        <source>Saves the logins of passes that follow each other within a minute; it ends with syncing, and after an hour at most</source>
        <translation>1 分以内に続く同期ではログインし直しません。接続は同期の終了とともに、長くても 1 時間で切れます</translation>
    </message>
</context>
<context>
    <name>SyncTab</name>
    <message>
        <source>From</source>
        <translation>コピー元</translation>
    </message>
    <message>
        <source>Remote source</source>
        <translation>リモートのコピー元</translation>
    </message>
    <message>
        <source>Chan&amp;ge…</source>
        <translation>変更(&amp;G)…</translation>
    </message>
    <message>
        <source>Change the remote Mac</source>
        <translation>リモート Mac を変更</translation>
    </message>
    <message>
        <source>Shows the tab where the remote Mac is chosen</source>
        <translation>リモート Mac を選ぶタブを表示します</translation>
    </message>
    <message>
        <source>Source folder</source>
        <translation>コピー元フォルダ</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>選択(&amp;C)…</translation>
    </message>
    <message>
        <source>Choose the source folder</source>
        <translation>コピー元フォルダを選択</translation>
    </message>
    <message>
        <source>&amp;Reveal</source>
        <translation>表示(&amp;R)</translation>
    </message>
    <message>
        <source>Reveal the source folder</source>
        <translation>コピー元フォルダを表示</translation>
    </message>
    <message>
        <source>Opens the folder in the file browser; a right click asks how</source>
        <translation>ファイルマネージャでフォルダを開きます。右クリックで開き方を選べます</translation>
    </message>
    <message>
        <source>To</source>
        <translation>コピー先</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>コピー先フォルダ</translation>
    </message>
    <message>
        <source>Ch&amp;oose…</source>
        <translation>選択(&amp;O)…</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>コピー先フォルダを選択</translation>
    </message>
    <message>
        <source>Revea&amp;l</source>
        <translation>表示(&amp;L)</translation>
    </message>
    <message>
        <source>Reveal the destination folder</source>
        <translation>コピー先フォルダを表示</translation>
    </message>
    <message>
        <source>Opens the folder in the file browser</source>
        <translation>ファイルマネージャでフォルダを開きます</translation>
    </message>
    <message>
        <source>Start rsync</source>
        <translation>rsync を開始</translation>
    </message>
    <message>
        <source>Switches syncing on and off</source>
        <translation>同期のオンとオフを切り替えます</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>今すぐ同期(&amp;N)</translation>
    </message>
    <message>
        <source>Begins the next pass now</source>
        <translation>次の同期を今始めます</translation>
    </message>
    <message>
        <source>C&amp;ancel This Pass</source>
        <translation>この同期をキャンセル(&amp;A)</translation>
    </message>
    <message>
        <source>Ends the pass that runs; what it has begun to copy is kept for the next one</source>
        <translation>実行中の同期を終わらせます。コピーし始めたものは次回のために残ります</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>到着</translation>
    </message>
    <message>
        <source>All Arr&amp;ivals</source>
        <translation>すべての到着(&amp;I)</translation>
    </message>
    <message>
        <source>Shows the Activity tab</source>
        <translation>「アクティビティ」タブを表示します</translation>
    </message>
    <message>
        <source>Whether this computer has a network connection</source>
        <translation>このコンピュータがネットワークに接続しているかどうか</translation>
    </message>
    <message>
        <source>&amp;Use This Source Now</source>
        <translation>このコピー元を今すぐ使う(&amp;U)</translation>
    </message>
    <message>
        <source>Passes pull from the host and folder that are set now</source>
        <translation>同期は、現在設定されているホストとフォルダから取得します</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message numerus="yes">
        <source>%Ln passes written.</source>
        <translation>
            <numerusform>%Ln 回の同期を書き出しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln movies</source>
        <translation>
            <numerusform>ムービー %Ln 本</numerusform>
        </translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>終了ステータス %1</translation>
    </message>
    <message>
        <source>ended when the pass was cancelled</source>
        <translation>同期のキャンセルで終了</translation>
    </message>
    <message>
        <source>given up when the program ended</source>
        <translation>プログラムの終了で中止</translation>
    </message>
    <message>
        <source>by rsync&apos;s own figures</source>
        <translation>rsync の集計による</translation>
    </message>
    <message>
        <source>counted from its lines</source>
        <translation>出力の行から数えたもの</translation>
    </message>
    <message>
        <source>the command did not say</source>
        <translation>コマンドの出力に記載なし</translation>
    </message>
    <message>
        <source>Run after arrivals:</source>
        <translation>到着後のコマンド:</translation>
    </message>
    <message>
        <source>… %L1 bytes left out …</source>
        <translation>… %L1 バイト省略 …</translation>
    </message>
    <message>
        <source>Arrived:</source>
        <translation>届いたもの:</translation>
    </message>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation>
            <numerusform>… ほか %Ln 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Next step: %1</source>
        <translation>次の手順: %1</translation>
    </message>
    <message>
        <source>Remote pass</source>
        <translation>リモート同期</translation>
    </message>
    <message>
        <source>Plain pass</source>
        <translation>ローカル同期</translation>
    </message>
    <message numerus="yes">
        <source>%Ln passes, nothing new, %1 to %2</source>
        <translation>
            <numerusform>%Ln 回の同期、新着なし、%1 から %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>being cancelled</source>
        <translation>キャンセル中</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>nothing new</source>
        <translation>新着なし</translation>
    </message>
    <message>
        <source>%1; a pass was in trouble</source>
        <translation>%1。問題のあった同期があります</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln days</source>
        <translation>
            <numerusform>%1、%Ln 日間</numerusform>
        </translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>Finder で開く</translation>
    </message>
    <message>
        <source>Show Enclosing</source>
        <translation>格納フォルダを表示</translation>
    </message>
    <message>
        <source>Retry Again...</source>
        <translation>再試行...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>The Mac has not accepted the program&apos;s key yet.</source>
        <translation>Mac はまだこのプログラムの鍵を受け入れていません。</translation>
    </message>
    <message>
        <source>No Mac is chosen yet.</source>
        <translation>まだ Mac が選ばれていません。</translation>
    </message>
    <message>
        <source>The user name on the Mac is missing.</source>
        <translation>Mac のユーザ名がありません。</translation>
    </message>
    <message>
        <source>The program has no ssh key of its own yet.</source>
        <translation>このプログラムの ssh 鍵がまだありません。</translation>
    </message>
    <message>
        <source>ssh is not installed on this machine.</source>
        <translation>このコンピュータに ssh がインストールされていません。</translation>
    </message>
    <message>
        <source>No source folder is chosen yet.</source>
        <translation>まだコピー元フォルダが選ばれていません。</translation>
    </message>
    <message>
        <source>No destination folder is chosen yet.</source>
        <translation>まだコピー先フォルダが選ばれていません。</translation>
    </message>
    <message>
        <source>The destination folder is missing or cannot be written.</source>
        <translation>コピー先フォルダがないか、書き込めません。</translation>
    </message>
    <message>
        <source>rsync is not installed on this machine.</source>
        <translation>このコンピュータに rsync がインストールされていません。</translation>
    </message>
    <message>
        <source>Kelvo Mirror keeps running</source>
        <translation>Kelvo Mirror は動き続けます</translation>
    </message>
    <message>
        <source>There is no tray icon to bring the window back with. To see the window again, start Kelvo Mirror once more. To end the program, choose Quit from the File menu instead.</source>
        <translation>ウインドウを呼び戻すトレイアイコンがありません。ウインドウをもう一度見るには、Kelvo Mirror をもう一度起動してください。プログラムを終えるには、「ファイル」メニューの「終了」を選んでください。</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>ウインドウを閉じる</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>開いたままにする</translation>
    </message>
    <message>
        <source>Quit while movies are being copied?</source>
        <translation>ムービーのコピー中に終了しますか?</translation>
    </message>
    <message>
        <source>The pass that runs will be ended: %1. The next start goes on from there.</source>
        <translation>実行中の同期は終了します: %1。次回の起動で続きから始まります。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Last success: %1, %2</source>
        <translation>最後の成功: %1、%2</translation>
    </message>
    <message>
        <source>No pass has ended yet. How it went will stand here.</source>
        <translation>まだ終わった同期はありません。結果はここに表示されます。</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln passes)</source>
        <translation>
            <numerusform>%1 (%Ln 回の同期)</numerusform>
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
        <translation>同期の記録を保存できません: %1</translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %1</source>
        <translation>設定ファイルが壊れていました。%1 として残してあります</translation>
    </message>
    <message>
        <source>The record of passes was damaged. It is kept as %1</source>
        <translation>同期の記録が壊れていました。%1 として残してあります</translation>
    </message>
    <message>
        <source>The record of passes was removed or replaced. The passes since the start were written again</source>
        <translation>同期の記録が削除または置き換えられました。起動後の同期は書き直しました</translation>
    </message>
    <message>
        <source>No key yet. Set one up to be let in by the remote Mac.</source>
        <translation>まだ鍵がありません。リモート Mac に受け入れてもらうための鍵を設定してください。</translation>
    </message>
    <message>
        <source>Key made. Fill in host name and user to have it accepted.</source>
        <translation>鍵があります。受け入れてもらうには、ホスト名とユーザを入力してください。</translation>
    </message>
    <message>
        <source>Key made. The remote Mac has not been asked yet.</source>
        <translation>鍵があります。リモート Mac にはまだ確認していません。</translation>
    </message>
    <message>
        <source>Asking the remote Mac…</source>
        <translation>リモート Mac に確認しています…</translation>
    </message>
    <message>
        <source>Key accepted by the remote Mac.</source>
        <translation>鍵はリモート Mac に受け入れられています。</translation>
    </message>
    <message>
        <source>Key made, not accepted by the remote Mac yet.</source>
        <translation>鍵がありますが、リモート Mac にまだ受け入れられていません。</translation>
    </message>
    <message>
        <source>Key made. The remote Mac is not on the network right now.</source>
        <translation>鍵があります。リモート Mac は今ネットワーク上にありません。</translation>
    </message>
    <message>
        <source>%1 was not written by Kelvo Mirror and is left alone. Move it away to switch this on here.</source>
        <translation>%1 は Kelvo Mirror が書いたものではないので、そのままにします。ここでオンにするには別の場所に移してください。</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2</source>
        <translation>%1 を変更できません: %2</translation>
    </message>
    <message>
        <source>Kelvo Mirror is well again</source>
        <translation>Kelvo Mirror は回復しました</translation>
    </message>
    <message>
        <source>The last pass went well: %1.</source>
        <translation>最後の同期は成功しました: %1。</translation>
    </message>
    <message>
        <source>Kelvo Mirror is in trouble</source>
        <translation>Kelvo Mirror に問題があります</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new movies</source>
        <translation>
            <numerusform>新しいムービー %Ln 本</numerusform>
        </translation>
    </message>
    <message>
        <source>All is well.</source>
        <translation>問題ありません。</translation>
    </message>
    <message>
        <source>No Mac answers to this name on the network.</source>
        <translation>この名前に応える Mac がネットワークにありません。</translation>
    </message>
    <message>
        <source>No Mac answers to this name on the network since %1.</source>
        <translation>%1 から、この名前に応える Mac がネットワークにありません。</translation>
    </message>
    <message>
        <source>Check the host name, and that the Mac is switched on and in this network.</source>
        <translation>ホスト名と、Mac の電源が入っていてこのネットワークにあることを確認してください。</translation>
    </message>
    <message>
        <source>The Mac is away or asleep.</source>
        <translation>Mac がネットワーク上にないか、スリープしています。</translation>
    </message>
    <message>
        <source>The Mac is away or asleep since %1.</source>
        <translation>%1 から Mac がネットワーク上にないか、スリープしています。</translation>
    </message>
    <message>
        <source>Wake the Mac; in its energy settings, let it wake for network access.</source>
        <translation>Mac のスリープを解除してください。省エネルギー設定で「ネットワークアクセスによってスリープを解除」をオンにしてください。</translation>
    </message>
    <message>
        <source>The Mac is there but refuses logins.</source>
        <translation>Mac はネットワーク上にありますが、ログインを拒否しています。</translation>
    </message>
    <message>
        <source>The Mac is there but refuses logins since %1.</source>
        <translation>Mac はネットワーク上にありますが、%1 からログインを拒否しています。</translation>
    </message>
    <message>
        <source>On the Mac, switch on Remote Login (System Settings, General, Sharing).</source>
        <translation>Mac で「リモートログイン」をオンにしてください (「システム設定」の「一般」、「共有」)。</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before.</source>
        <translation>このコンピュータはこの Mac にまだ接続したことがありません。</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before since %1.</source>
        <translation>%1 の時点から、このコンピュータはこの Mac にまだ接続したことがありません。</translation>
    </message>
    <message>
        <source>Log in once with ssh in a terminal and accept the Mac&apos;s key.</source>
        <translation>ターミナルから ssh で一度ログインし、Mac の鍵を受け入れてください。</translation>
    </message>
    <message>
        <source>The Mac shows another key than before: it was set up anew, or another machine has taken its name.</source>
        <translation>Mac が以前と違う鍵を示しています。新しく設定されたか、別のコンピュータが同じ名前を使っています。</translation>
    </message>
    <message>
        <source>The Mac shows another key than before since %1: it was set up anew, or another machine has taken its name.</source>
        <translation>%1 から Mac が以前と違う鍵を示しています。新しく設定されたか、別のコンピュータが同じ名前を使っています。</translation>
    </message>
    <message>
        <source>If you know why, remove the old key with ssh-keygen -R and the host name, then accept the new one.</source>
        <translation>理由がわかっているなら、ssh-keygen -R とホスト名で古い鍵を取り除き、新しい鍵を受け入れてください。</translation>
    </message>
    <message>
        <source>The Mac does not take this key for this user.</source>
        <translation>Mac はこのユーザにこの鍵を認めていません。</translation>
    </message>
    <message>
        <source>The Mac does not take this key for this user since %1.</source>
        <translation>%1 から Mac はこのユーザにこの鍵を認めていません。</translation>
    </message>
    <message>
        <source>Check the user name, then install the key on the Mac again.</source>
        <translation>ユーザ名を確認し、鍵をもう一度 Mac にインストールしてください。</translation>
    </message>
    <message>
        <source>The program&apos;s own ssh key is missing here.</source>
        <translation>このプログラムの ssh 鍵がここにありません。</translation>
    </message>
    <message>
        <source>The program&apos;s own ssh key is missing here since %1.</source>
        <translation>%1 からこのプログラムの ssh 鍵がここにありません。</translation>
    </message>
    <message>
        <source>Make the key and install it on the Mac.</source>
        <translation>鍵を作り、Mac にインストールしてください。</translation>
    </message>
    <message>
        <source>The Mac calls this user by another name.</source>
        <translation>Mac ではこのユーザの名前が違います。</translation>
    </message>
    <message>
        <source>The Mac calls this user by another name since %1.</source>
        <translation>%1 から Mac ではこのユーザの名前が違います。</translation>
    </message>
    <message>
        <source>Enter the account name that whoami prints on the Mac.</source>
        <translation>Mac で whoami が表示するアカウント名を入力してください。</translation>
    </message>
    <message>
        <source>The Mac prints a text at each login, which hides its answer.</source>
        <translation>Mac がログインのたびに文字を表示し、応答が隠れています。</translation>
    </message>
    <message>
        <source>The Mac prints a text at each login since %1, which hides its answer.</source>
        <translation>%1 から Mac がログインのたびに文字を表示し、応答が隠れています。</translation>
    </message>
    <message>
        <source>On the Mac, remove what the shell&apos;s start file (.zshenv, .bashrc) prints.</source>
        <translation>Mac で、シェルの起動ファイル (.zshenv、.bashrc) が表示する文字を取り除いてください。</translation>
    </message>
    <message>
        <source>There is no rsync on the Mac.</source>
        <translation>Mac に rsync がありません。</translation>
    </message>
    <message>
        <source>There is no rsync on the Mac since %1.</source>
        <translation>%1 から Mac に rsync がありません。</translation>
    </message>
    <message>
        <source>Install rsync on the Mac, or give its place in the template with --rsync-path.</source>
        <translation>Mac に rsync をインストールするか、テンプレートに --rsync-path で場所を書いてください。</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for an option of the template.</source>
        <translation>Mac の rsync が古く、テンプレートのオプションに対応していません。</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for an option of the template since %1.</source>
        <translation>%1 から Mac の rsync が古く、テンプレートのオプションに対応していません。</translation>
    </message>
    <message>
        <source>Update rsync on the Mac, or take the option out of the template.</source>
        <translation>Mac の rsync を更新するか、テンプレートからそのオプションを除いてください。</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for the built-in movie command: only what the template takes has arrived.</source>
        <translation>Mac の rsync が古く、組み込みのムービーコマンドに対応していません。テンプレートの分だけが届きました。</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for the built-in movie command since %1: only what the template takes has arrived.</source>
        <translation>%1 から Mac の rsync が古く、組み込みのムービーコマンドに対応していません。テンプレートの分だけが届きました。</translation>
    </message>
    <message>
        <source>Update rsync on the Mac, or let the template take every movie: without filters, and with -r.</source>
        <translation>Mac の rsync を更新するか、テンプレートですべてのムービーを取るようにしてください (フィルタなし、-r あり)。</translation>
    </message>
    <message>
        <source>The source folder is not there.</source>
        <translation>コピー元フォルダがありません。</translation>
    </message>
    <message>
        <source>The source folder is not there since %1.</source>
        <translation>%1 からコピー元フォルダがありません。</translation>
    </message>
    <message>
        <source>Check the remote path, and that the disk with it is connected.</source>
        <translation>リモートのパスと、そのディスクが接続されていることを確認してください。</translation>
    </message>
    <message>
        <source>A source folder may not be read.</source>
        <translation>読めないコピー元フォルダがあります。</translation>
    </message>
    <message>
        <source>A source folder may not be read since %1.</source>
        <translation>%1 から読めないコピー元フォルダがあります。</translation>
    </message>
    <message>
        <source>On the Mac, allow full disk access for remote users (in Remote Login), or change the folder&apos;s permissions.</source>
        <translation>Mac の「リモートログイン」でリモートユーザのフルディスクアクセスを許可するか、フォルダのアクセス権を変更してください。</translation>
    </message>
    <message>
        <source>The disk here is full.</source>
        <translation>このコンピュータのディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>The disk here is full since %1.</source>
        <translation>%1 からこのコンピュータのディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>Make room on the disk of the destination folder.</source>
        <translation>コピー先フォルダのディスクに空きを作ってください。</translation>
    </message>
    <message>
        <source>The destination folder is missing or cannot be written since %1.</source>
        <translation>%1 からコピー先フォルダがないか、書き込めません。</translation>
    </message>
    <message>
        <source>Connect its disk, or choose another destination folder.</source>
        <translation>ディスクを接続するか、別のコピー先フォルダを選んでください。</translation>
    </message>
    <message>
        <source>Another program is pulling into this folder.</source>
        <translation>別のプログラムがこのフォルダにコピーしています。</translation>
    </message>
    <message>
        <source>Another program is pulling into this folder since %1.</source>
        <translation>%1 から別のプログラムがこのフォルダにコピーしています。</translation>
    </message>
    <message>
        <source>Give each program a destination folder of its own, or end the other one.</source>
        <translation>プログラムごとに別のコピー先フォルダを使うか、もう一方を終了してください。</translation>
    </message>
    <message>
        <source>A command of the pass is not installed here.</source>
        <translation>同期のコマンドがここにインストールされていません。</translation>
    </message>
    <message>
        <source>A command of the pass is not installed here since %1.</source>
        <translation>%1 から同期のコマンドがここにインストールされていません。</translation>
    </message>
    <message>
        <source>Install rsync and ssh on this machine, or correct the command template.</source>
        <translation>このコンピュータに rsync と ssh をインストールするか、コマンドのテンプレートを直してください。</translation>
    </message>
    <message>
        <source>The command template cannot be run.</source>
        <translation>コマンドのテンプレートを実行できません。</translation>
    </message>
    <message>
        <source>The command template cannot be run since %1.</source>
        <translation>%1 からコマンドのテンプレートを実行できません。</translation>
    </message>
    <message>
        <source>Correct the rsync command template in the settings.</source>
        <translation>設定で rsync コマンドのテンプレートを直してください。</translation>
    </message>
    <message>
        <source>Some files vanished from the source while they were copied.</source>
        <translation>コピー中にコピー元から消えたファイルがあります。</translation>
    </message>
    <message>
        <source>Nothing: the next pass brings what is there then.</source>
        <translation>何もする必要はありません。次の同期でその時にあるものが届きます。</translation>
    </message>
    <message>
        <source>Some files could not be taken.</source>
        <translation>取得できなかったファイルがあります。</translation>
    </message>
    <message>
        <source>Some files could not be taken since %1.</source>
        <translation>%1 から取得できないファイルがあります。</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for their names and reasons.</source>
        <translation>名前と理由は同期の詳細をご覧ください。</translation>
    </message>
    <message>
        <source>The connection gave way in the middle of the transfer.</source>
        <translation>転送の途中で接続が切れました。</translation>
    </message>
    <message>
        <source>The connection gave way in the middle of the transfer since %1.</source>
        <translation>%1 から転送の途中で接続が切れています。</translation>
    </message>
    <message>
        <source>Check the network; the next pass goes on where this one stopped.</source>
        <translation>ネットワークを確認してください。次の同期は途中から続きます。</translation>
    </message>
    <message>
        <source>The pass cannot run: a folder, the host or the user is not set.</source>
        <translation>同期できません。フォルダ、ホスト、ユーザのどれかが設定されていません。</translation>
    </message>
    <message>
        <source>The pass cannot run since %1: a folder, the host or the user is not set.</source>
        <translation>%1 から同期できません。フォルダ、ホスト、ユーザのどれかが設定されていません。</translation>
    </message>
    <message>
        <source>Choose the Mac, the user name and both folders.</source>
        <translation>Mac、ユーザ名、両方のフォルダを選んでください。</translation>
    </message>
    <message>
        <source>The pass was not begun: a text in the settings cannot stand in a command.</source>
        <translation>同期を始めませんでした。設定に、コマンドに入れられない文字があります。</translation>
    </message>
    <message>
        <source>The pass was not begun since %1: a text in the settings cannot stand in a command.</source>
        <translation>%1 から同期を始めていません。設定に、コマンドに入れられない文字があります。</translation>
    </message>
    <message>
        <source>Choose another folder, user name or host: without a line break, and no &quot;-&quot; in front.</source>
        <translation>別のフォルダ、ユーザ名、ホストを選んでください。改行や先頭の「-」は使えません。</translation>
    </message>
    <message>
        <source>The program was ended during the pass.</source>
        <translation>同期中にプログラムが終了しました。</translation>
    </message>
    <message>
        <source>Nothing: start it again.</source>
        <translation>もう一度起動するだけでかまいません。</translation>
    </message>
    <message>
        <source>Cancelled by you.</source>
        <translation>キャンセルしました。</translation>
    </message>
    <message>
        <source>Nothing: the next pass goes on where this one stopped.</source>
        <translation>何もする必要はありません。次の同期は途中から続きます。</translation>
    </message>
    <message>
        <source>The files have arrived, but the command that is run after arrivals failed.</source>
        <translation>ファイルは届きましたが、到着後のコマンドが失敗しました。</translation>
    </message>
    <message>
        <source>The files have arrived, but the command that is run after arrivals failed since %1.</source>
        <translation>ファイルは届きましたが、%1 から到着後のコマンドが失敗しています。</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for what it said, or correct it in the settings.</source>
        <translation>出力は同期の詳細をご覧になるか、設定でコマンドを直してください。</translation>
    </message>
    <message>
        <source>Something went wrong.</source>
        <translation>問題が起きました。</translation>
    </message>
    <message>
        <source>Something went wrong since %1.</source>
        <translation>%1 から問題が起きています。</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for what the commands said.</source>
        <translation>コマンドの出力は同期の詳細をご覧ください。</translation>
    </message>
    <message>
        <source>The last line was: %1</source>
        <translation>最後の行: %1</translation>
    </message>
    <message>
        <source>The reason: %1.</source>
        <translation>理由: %1。</translation>
    </message>
    <message>
        <source>files unknown</source>
        <translation>ファイル数不明</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln ファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>no transfer</source>
        <translation>転送なし</translation>
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
        <translation>%L1 時間 %L2 分</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>たった今</translation>
    </message>
    <message numerus="yes">
        <source>%Ln minutes ago</source>
        <translation>
            <numerusform>%Ln 分前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hours ago</source>
        <translation>
            <numerusform>%Ln 時間前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days ago</source>
        <translation>
            <numerusform>%Ln 日前</numerusform>
        </translation>
    </message>
    <message>
        <source>Reveal In Finder</source>
        <translation>Finder に表示</translation>
    </message>
    <message>
        <source>path:
%1</source>
        <translation>パス:
%1</translation>
    </message>
    <message>
        <source>Stop Syncing</source>
        <translation>同期を停止</translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation>同期を開始</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>コマンドをコピー</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>No Terminal Found</source>
        <translation>ターミナルが見つかりません</translation>
    </message>
    <message>
        <source>Please run this command in a terminal and answer what it asks:

%1</source>
        <translation>ターミナルでこのコマンドを実行し、質問に答えてください:

%1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two facts, as in: 3 files, 1.2 GB</comment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%L1 %</source>
        <comment>percent</comment>
        <translation>%L1 %</translation>
    </message>
    <message>
        <source>Syncing is off</source>
        <translation>同期はオフです</translation>
    </message>
    <message>
        <source>Waiting for what is missing</source>
        <translation>足りないものを待っています</translation>
    </message>
    <message>
        <source>Finishing this pass…</source>
        <translation>この同期を終えています…</translation>
    </message>
    <message>
        <source>Cancelling this pass…</source>
        <translation>この同期をキャンセルしています…</translation>
    </message>
    <message>
        <source>%L1 min</source>
        <translation>%L1 分</translation>
    </message>
    <message>
        <source>%L1 h</source>
        <translation>%L1 時間</translation>
    </message>
    <message>
        <source>Syncing: asking the Mac</source>
        <translation>同期中: Mac に確認しています</translation>
    </message>
    <message>
        <source>Syncing: first pull</source>
        <translation>同期中: 最初の取得</translation>
    </message>
    <message>
        <source>Syncing: copying</source>
        <translation>同期中: コピー</translation>
    </message>
    <message>
        <source>Syncing: movies</source>
        <translation>同期中: ムービー</translation>
    </message>
    <message>
        <source>Syncing: after arrivals</source>
        <translation>同期中: 到着後の処理</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>同期中</translation>
    </message>
    <message>
        <source>a few seconds</source>
        <translation>数秒</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>約 %1</translation>
    </message>
    <message>
        <source>Asking the Mac</source>
        <translation>Mac に確認中</translation>
    </message>
    <message>
        <source>First pull</source>
        <translation>最初の取得</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>コピー中</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>ムービー</translation>
    </message>
    <message>
        <source>After arrivals</source>
        <translation>到着後の処理</translation>
    </message>
    <message>
        <source>file %L1 of %L2</source>
        <translation>%L2 ファイル中 %L1 番目</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>as in: 18.2 of 37.6 GB</comment>
        <translation>%2 中 %1</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>as in: 92.0 MB/s</comment>
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>Next pass in %1</source>
        <translation>次の同期まで %1</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>同期中: %1</translation>
    </message>
    <message>
        <source>Syncing: %1, %2</source>
        <translation>同期中: %1、%2</translation>
    </message>
    <message>
        <source>All is well, next pass in %1</source>
        <translation>問題ありません。次の同期まで %1</translation>
    </message>
    <message>
        <source>All is well</source>
        <translation>問題ありません</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>two movies</comment>
        <translation>%1 と %2</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 and %Ln more</source>
        <translation>
            <numerusform>%1、%2、ほか %Ln 件</numerusform>
        </translation>
    </message>
    <message>
        <source>… 1 byte left out …</source>
        <translation>… 1 バイト省略 …</translation>
    </message>
    <message>
        <source>Make a new key?</source>
        <translation>新しい鍵を作りますか?</translation>
    </message>
    <message>
        <source>The Mac will not let Kelvo Mirror in until the new key is installed there with Set Up Key…, which asks for the password on the Mac. Until then no pass brings movies.

The key of today is kept beside the new one, under a name with the date, and is not used any more.</source>
        <translation>新しい鍵を「鍵を設定…」でインストールするまで、Mac は Kelvo Mirror を受け入れません。「鍵を設定…」では Mac のパスワードを尋ねます。それまでは、同期してもムービーは届きません。

今の鍵は、日付を付けた名前で新しい鍵の隣に残りますが、使われなくなります。</translation>
    </message>
    <message>
        <source>Make a New Key</source>
        <translation>新しい鍵を作成</translation>
    </message>
    <message>
        <source>Keep the Key</source>
        <translation>今の鍵を残す</translation>
    </message>
    <message>
        <source>The key was not replaced</source>
        <translation>鍵は取り替えられませんでした</translation>
    </message>
    <message>
        <source>The key of today could not be kept, so nothing was changed.

%1</source>
        <translation>今の鍵を残せなかったため、何も変更していません。

%1</translation>
    </message>
    <message>
        <source>No new key was made</source>
        <translation>新しい鍵は作られませんでした</translation>
    </message>
    <message>
        <source>The key that was there before could not be put back. It lies at %1.

%2</source>
        <translation>以前の鍵を元の場所に戻せませんでした。鍵は %1 にあります。

%2</translation>
    </message>
    <message>
        <source>The key that was there before is in its place again.</source>
        <translation>以前の鍵を元の場所に戻しました。</translation>
    </message>
    <message>
        <source>No Mac chosen yet.</source>
        <translation>まだ Mac が選ばれていません。</translation>
    </message>
    <message>
        <source>Choose the Mac from the list of those in this network, or type its host name.</source>
        <translation>このネットワークの Mac の一覧から選ぶか、ホスト名を入力してください。</translation>
    </message>
    <message>
        <source>%1, folder %2</source>
        <translation>%1、フォルダ %2</translation>
    </message>
    <message>
        <source>An account on the Mac that may log in there, and the folder with the movies.</source>
        <translation>Mac にログインできるアカウントと、ムービーのあるフォルダです。</translation>
    </message>
    <message>
        <source>Key made, and accepted by the remote Mac before.</source>
        <translation>鍵があります。リモート Mac に受け入れられたことがあります。</translation>
    </message>
    <message>
        <source>Key made. The remote Mac could not be asked about it.</source>
        <translation>鍵があります。リモート Mac に確認できませんでした。</translation>
    </message>
    <message>
        <source>The key is installed on the Mac, so choose that and enter the account first.</source>
        <translation>鍵は Mac にインストールします。先に Mac を選び、アカウントを入力してください。</translation>
    </message>
    <message>
        <source>A terminal opens and asks for the password of %1 on %2; it is typed there and kept nowhere. When the two machines meet for the first time it asks before that whether to go on connecting: answer yes.</source>
        <translation>ターミナルが開き、%2 の %1 のパスワードを尋ねます。パスワードはそこに入力し、どこにも保存されません。2 台のコンピュータが初めて接続するときは、その前に接続を続けるかどうかを尋ねます。yes と答えてください。</translation>
    </message>
    <message>
        <source>The Mac lets this program in.</source>
        <translation>Mac はこのプログラムを受け入れています。</translation>
    </message>
    <message>
        <source>ssh is not installed on this machine. Install it with: %1</source>
        <translation>このコンピュータに ssh がインストールされていません。次のコマンドでインストールしてください: %1</translation>
    </message>
    <message>
        <source>The Mac was not asked, because %1.</source>
        <translation>Mac には確認していません。理由: %1。</translation>
    </message>
    <message>
        <source>The Mac was not reached, or did not say a word. Test it once more, or log in with ssh in a terminal and see what it says.</source>
        <translation>Mac に接続できないか、応答がありませんでした。もう一度テストするか、ターミナルから ssh でログインして表示される内容を確認してください。</translation>
    </message>
    <message>
        <source>The Mac did not answer as it should. The last line was: %1</source>
        <translation>Mac から期待した応答がありませんでした。最後の行: %1</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before. Set up the key: the terminal asks whether to trust the Mac.</source>
        <translation>このコンピュータはこの Mac にまだ接続したことがありません。鍵を設定してください。Mac を信頼するかどうかをターミナルが尋ねます。</translation>
    </message>
    <message>
        <source>The Mac does not let this program in yet.</source>
        <translation>Mac はこのプログラムをまだ受け入れていません。</translation>
    </message>
    <message>
        <source>Not tried yet.</source>
        <translation>まだ試していません。</translation>
    </message>
    <message>
        <source>Asked at %1.</source>
        <translation>%1 に確認しました。</translation>
    </message>
    <message>
        <source>The message &quot;SUCCESS...&quot; only means that ssh named neither a missing key file nor an unknown host name; this line says what came of it.</source>
        <translation>「成功...」というメッセージは、鍵ファイルがないこと、ホスト名が不明であることのどちらも ssh が報告しなかったという意味にすぎません。実際の結果はこの行に示されます。</translation>
    </message>
    <message>
        <source>Kelvo Mirror: the password of %1 on %2</source>
        <translation>Kelvo Mirror: %2 の %1 のパスワード</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Macs found.</source>
        <translation>
            <numerusform>Mac が %Ln 台見つかりました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Its icon in the tray brings the window back; the icon&apos;s menu ends the program.</source>
        <translation>トレイのアイコンでウインドウを呼び戻せます。プログラムはアイコンのメニューから終了できます。</translation>
    </message>
</context>
<context>
    <name>kelvo::ApplicationMenu</name>
    <message>
        <source>Application menu</source>
        <translation>アプリケーションメニュー</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>ウインドウを閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Quit and &amp;Relaunch</source>
        <translation>終了して再起動(&amp;R)</translation>
    </message>
    <message>
        <source>Ends the program and starts it again</source>
        <translation>プログラムを終了してもう一度起動します</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>設定(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Passes</source>
        <translation>同期(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Start Syncing</source>
        <translation>同期を開始(&amp;S)</translation>
    </message>
    <message>
        <source>Switches syncing on and off</source>
        <translation>同期のオンとオフを切り替えます</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>今すぐ同期(&amp;N)</translation>
    </message>
    <message>
        <source>Begins the next pass now</source>
        <translation>次の同期を今始めます</translation>
    </message>
    <message>
        <source>&amp;Cancel This Pass</source>
        <translation>この同期をキャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Ends the pass that runs; what it has begun to copy is kept for the next one</source>
        <translation>実行中の同期を終わらせます。コピーし始めたものは次回のために残ります</translation>
    </message>
    <message>
        <source>&amp;Stop Syncing</source>
        <translation>同期を停止(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Tray</source>
        <translation>トレイ(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Set Up Tray Icon</source>
        <translation>トレイアイコンを設定(&amp;S)</translation>
    </message>
    <message>
        <source>Shows the program&apos;s icon in the tray</source>
        <translation>プログラムのアイコンをトレイに表示します</translation>
    </message>
    <message>
        <source>&amp;Remove Tray Icon</source>
        <translation>トレイアイコンを取り除く(&amp;R)</translation>
    </message>
    <message>
        <source>Takes the icon out of the tray; the program keeps running</source>
        <translation>トレイからアイコンを取り除きます。プログラムは動き続けます</translation>
    </message>
    <message>
        <source>Remove Tray Icon as &amp;Before a Relaunch</source>
        <translation>再起動前のようにトレイアイコンを取り除く(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Open &amp;Log Folder</source>
        <translation>ログフォルダを開く(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;About Kelvo Mirror</source>
        <translation>Kelvo Mirror について(&amp;A)</translation>
    </message>
    <message>
        <source>Syncing is off</source>
        <translation>同期はオフです</translation>
    </message>
    <message>
        <source>A pass begins as soon as nothing is missing</source>
        <translation>足りないものがそろい次第、同期が始まります</translation>
    </message>
    <message>
        <source>A pass runs already</source>
        <translation>すでに同期しています</translation>
    </message>
    <message>
        <source>The next pass begins in a moment</source>
        <translation>次の同期はまもなく始まります</translation>
    </message>
    <message>
        <source>The pass is being cancelled already</source>
        <translation>この同期はすでにキャンセル中です</translation>
    </message>
    <message>
        <source>No pass runs</source>
        <translation>実行中の同期はありません</translation>
    </message>
    <message>
        <source>The icon is in the tray already</source>
        <translation>アイコンはすでにトレイにあります</translation>
    </message>
    <message>
        <source>The icon appears as soon as the desktop has a tray for it</source>
        <translation>デスクトップにトレイが用意され次第、アイコンが表示されます</translation>
    </message>
    <message>
        <source>The icon is not in the tray</source>
        <translation>アイコンはトレイにありません</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>診断(&amp;D)</translation>
    </message>
    <message>
        <source>A tab and menu entries for finding out why something does not work</source>
        <translation>うまく動かない原因を調べるためのタブとメニュー項目</translation>
    </message>
    <message>
        <source>Takes the icon out of the tray as Quit and Relaunch does; the program keeps running</source>
        <translation>「終了して再起動」と同じようにトレイからアイコンを取り除きます。プログラムは動き続けます</translation>
    </message>
    <message>
        <source>Start Again After a &amp;Crash</source>
        <translation>クラッシュ後に再び起動(&amp;C)</translation>
    </message>
    <message>
        <source>Has the program started again should it crash; each start does this by itself</source>
        <translation>プログラムがクラッシュした場合に、もう一度起動されるようにします。起動のたびに自動で行われます</translation>
    </message>
    <message>
        <source>&amp;Another Mac…</source>
        <translation>別の Mac(&amp;A)…</translation>
    </message>
    <message>
        <source>Opens a window of its own for one more Mac</source>
        <translation>もう 1 台の Mac のために別のウインドウを開きます</translation>
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
        <translation>時刻</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
</context>
<context>
    <name>kelvo::ArrivalsView</name>
    <message>
        <source>not there any more</source>
        <translation>もうありません</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Reveal</source>
        <translation>表示(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation>パスをコピー(&amp;C)</translation>
    </message>
    <message>
        <source>Nothing has arrived yet.

The movies that a pass brings will stand here.</source>
        <translation>まだ何も届いていません。

同期で届いたムービーがここに表示されます。</translation>
    </message>
    <message>
        <source>No movie with this text in its path has arrived.</source>
        <translation>パスにこの文字を含むムービーは届いていません。</translation>
    </message>
    <message>
        <source>its name is not UTF-8</source>
        <translation>名前が UTF-8 ではありません</translation>
    </message>
</context>
<context>
    <name>kelvo::BonjourSheet</name>
    <message>
        <source>Discovery is not installed on this computer. Install it with:

%1

The list fills by itself once discovery runs. Without it, type the Mac&apos;s host name on the Remote Mac tab.</source>
        <translation>このコンピュータに検出サービスがインストールされていません。次のコマンドでインストールしてください:

%1

検出が始まると、一覧は自動的に表示されます。検出サービスがなくても、「リモート Mac」タブで Mac のホスト名を入力できます。</translation>
    </message>
    <message>
        <source>Discovery is not running on this computer. Start it with:

%1

The list fills by itself once discovery runs. Without it, type the Mac&apos;s host name on the Remote Mac tab.</source>
        <translation>このコンピュータで検出サービスが動いていません。次のコマンドで起動してください:

%1

検出が始まると、一覧は自動的に表示されます。検出サービスがなくても、「リモート Mac」タブで Mac のホスト名を入力できます。</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.

Connect it to the network of the Mac. Then choose Rescan.</source>
        <translation>このコンピュータはネットワークに接続していません。

Mac のあるネットワークに接続してください。それから「再検索」を選んでください。</translation>
    </message>
    <message>
        <source>No Mac has answered yet.

Discovery has only just started; the search goes on.</source>
        <translation>まだ応答した Mac はありません。

検出は始まったばかりです。検索を続けています。</translation>
    </message>
    <message>
        <source>No Mac was found.

On the Mac, open System Settings, General, Sharing, and check that File Sharing and Remote Login are on.
Check that both computers are on the same network.
Then choose Rescan.

The Mac&apos;s host name can also be typed on the Remote Mac tab.</source>
        <translation>Mac が見つかりませんでした。

Mac で「システム設定」の「一般」、「共有」を開き、「ファイル共有」と「リモートログイン」がオンになっていることを確認してください。
両方のコンピュータが同じネットワークにあることを確認してください。
それから「再検索」を選んでください。

「リモート Mac」タブで Mac のホスト名を入力することもできます。</translation>
    </message>
</context>
<context>
    <name>kelvo::BusNotices</name>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
</context>
<context>
    <name>kelvo::BusyRow</name>
    <message>
        <source>Cance&amp;l</source>
        <translation>キャンセル(&amp;L)</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>処理中</translation>
    </message>
    <message>
        <source>Ends what the program is doing for this tab</source>
        <translation>このタブのためにプログラムが行っている処理を終わらせます</translation>
    </message>
    <message>
        <source>Opening the remote folder…</source>
        <translation>リモートフォルダを開いています…</translation>
    </message>
    <message>
        <source>Setting up the key…</source>
        <translation>鍵を設定しています…</translation>
    </message>
    <message>
        <source>Making a new key…</source>
        <translation>新しい鍵を作っています…</translation>
    </message>
    <message>
        <source>Being cancelled…</source>
        <translation>キャンセルしています…</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>キャンセルしました。</translation>
    </message>
    <message>
        <source>Finished.</source>
        <translation>完了しました。</translation>
    </message>
</context>
<context>
    <name>kelvo::ChecklistView</name>
    <message>
        <source>What is missing before a pass</source>
        <translation>同期の前に足りないもの</translation>
    </message>
    <message>
        <source>Next step</source>
        <translation>次の手順</translation>
    </message>
</context>
<context>
    <name>kelvo::DayChart</name>
    <message>
        <source>Day</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>ムービー</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>in trouble</source>
        <translation>問題あり</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a day, what came on it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing has arrived. The arrow keys go from day to day.</source>
        <translation>何も届いていません。矢印キーで日ごとに移動します。</translation>
    </message>
    <message>
        <source>%1. The most came on this day: %2, %3. The arrow keys go from day to day.</source>
        <translation>%1。最も多く届いた日: %2、%3。矢印キーで日ごとに移動します。</translation>
    </message>
</context>
<context>
    <name>kelvo::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>取り消す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>カット(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>ペースト(&amp;P)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべてを選択(&amp;A)</translation>
    </message>
</context>
<context>
    <name>kelvo::ElidedLabel</name>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
</context>
<context>
    <name>kelvo::HealthView</name>
    <message>
        <source>All is well</source>
        <translation>問題ありません</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Not known yet</source>
        <translation>まだわかりません</translation>
    </message>
    <message>
        <source>Next step</source>
        <translation>次の手順</translation>
    </message>
    <message>
        <source>Does the next step</source>
        <translation>次の手順を実行します</translation>
    </message>
    <message>
        <source>How the last pass went will stand here.</source>
        <translation>最後の同期の結果がここに表示されます。</translation>
    </message>
</context>
<context>
    <name>kelvo::MainWindow</name>
    <message>
        <source>Sync</source>
        <translation>同期</translation>
    </message>
    <message>
        <source>Remote Mac</source>
        <translation>リモート Mac</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>診断</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>アクティビティ</translation>
    </message>
</context>
<context>
    <name>kelvo::PassRows</name>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>When</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>所要時間</translation>
    </message>
</context>
<context>
    <name>kelvo::PassesView</name>
    <message>
        <source>Export passes</source>
        <translation>同期の記録を書き出し</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>カンマ区切りの値 (*.csv)</translation>
    </message>
    <message>
        <source>Not written: %1</source>
        <translation>書き込めませんでした: %1</translation>
    </message>
</context>
<context>
    <name>kelvo::PathControlView</name>
    <message>
        <source>Folders above</source>
        <translation>上のフォルダ</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 を開く</translation>
    </message>
</context>
<context>
    <name>kelvo::ProfilesSheet</name>
    <message>
        <source>Without a name</source>
        <translation>名前なし</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>まだありません</translation>
    </message>
    <message>
        <source>This window</source>
        <translation>このウインドウ</translation>
    </message>
    <message>
        <source>Running, in trouble</source>
        <translation>動作中、問題あり</translation>
    </message>
    <message>
        <source>Not running, in trouble</source>
        <translation>停止中、問題あり</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>動作中</translation>
    </message>
    <message>
        <source>Not running</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source>A name has 1 to 64 letters (A to Z), digits, “-” and “_”, and no blank.</source>
        <translation>名前は英字 (A から Z)、数字、「-」、「_」の 1 から 64 文字で、空白は使えません。</translation>
    </message>
    <message>
        <source>No window could be opened: %1</source>
        <translation>ウインドウを開けませんでした: %1</translation>
    </message>
</context>
<context>
    <name>kelvo::ProgressView</name>
    <message>
        <source>Progress of the pass</source>
        <translation>同期の進み具合</translation>
    </message>
    <message>
        <source>The movie that is being copied will stand here.</source>
        <translation>コピー中のムービーがここに表示されます。</translation>
    </message>
</context>
<context>
    <name>kelvo::RecentArrivals</name>
    <message>
        <source>Movies that have arrived will stand here, the newest first. A double click opens one.</source>
        <translation>届いたムービーがここに新しい順に表示されます。ダブルクリックで開きます。</translation>
    </message>
    <message>
        <source>Movies that arrived last</source>
        <translation>最近届いたムービー</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>到着</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
</context>
<context>
    <name>kelvo::RemoteTab</name>
    <message>
        <source>none yet</source>
        <translation>まだありません</translation>
    </message>
</context>
<context>
    <name>kelvo::ServiceRows</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>ホスト</translation>
    </message>
</context>
<context>
    <name>kelvo::SettingsTab</name>
    <message>
        <source>Every file that differs</source>
        <translation>異なるすべてのファイル</translation>
    </message>
    <message>
        <source>Only files newer than here (--update)</source>
        <translation>ここより新しいファイルだけ (--update)</translation>
    </message>
    <message>
        <source>Only files not here yet (--ignore-existing)</source>
        <translation>まだここにないファイルだけ (--ignore-existing)</translation>
    </message>
    <message>
        <source>Every file that differs (stored as 105)</source>
        <translation>異なるすべてのファイル (105 として保存)</translation>
    </message>
    <message>
        <source>Not a valid option (%1)</source>
        <translation>有効なオプションではありません (%1)</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>The template lacks %@1, the source: its command does not read the source that is chosen.</source>
        <translation>テンプレートに %@1 (コピー元) がありません。選ばれているコピー元をコマンドが読みません。</translation>
    </message>
    <message>
        <source>The template lacks %@2, the destination: its command does not fill the folder that is chosen.</source>
        <translation>テンプレートに %@2 (コピー先) がありません。選ばれているフォルダにコマンドがコピーしません。</translation>
    </message>
    <message>
        <source>The template lacks %@98, the options of ssh: its command does not use the key that was set up.</source>
        <translation>テンプレートに %@98 (ssh のオプション) がありません。設定した鍵をコマンドが使いません。</translation>
    </message>
    <message>
        <source>The template lacks %@99, the option: the option that is chosen changes nothing.</source>
        <translation>テンプレートに %@99 (オプション) がありません。選ばれているオプションは効果がありません。</translation>
    </message>
    <message>
        <source>The template has a folder where its name may fall apart: passes are refused when the name holds blanks, quotes or the like.</source>
        <translation>テンプレートの中で、名前が分割されるおそれのある場所にフォルダがあります。名前に空白や引用符などがあると同期は拒否されます。</translation>
    </message>
    <message>
        <source>The template under Advanced is your own and is left alone: the kinds of movies are written there.</source>
        <translation>「詳細設定」のテンプレートは独自のものなので、そのままにします。ムービーの種類はそこに書かれています。</translation>
    </message>
    <message>
        <source>Movies of the kinds .mov and .mp4 always come from the remote Mac.</source>
        <translation>.mov と .mp4 のムービーは、常にリモート Mac から届きます。</translation>
    </message>
    <message>
        <source>No kind is ticked: passes bring nothing.</source>
        <translation>種類が選ばれていません。同期しても何も届きません。</translation>
    </message>
    <message>
        <source>The rsync command with the places %@1 source, %@2 destination, %@3 key, %@98 ssh, %@99 option</source>
        <translation>rsync コマンド。%@1 はコピー元、%@2 はコピー先、%@3 は鍵、%@98 は ssh、%@99 はオプションに置き換わります</translation>
    </message>
    <message>
        <source>Back to My Template</source>
        <translation>自分のテンプレートに戻す</translation>
    </message>
    <message>
        <source>Back to the Factory Template</source>
        <translation>標準のテンプレートに戻す</translation>
    </message>
    <message>
        <source>Brings back the template that the factory&apos;s took the place of</source>
        <translation>標準のものに置き換えられたテンプレートを元に戻します</translation>
    </message>
    <message>
        <source>Takes the template that Kelvo Mirror comes with; asks before it replaces one that was changed by hand</source>
        <translation>Kelvo Mirror に付属のテンプレートを使います。手で変更したテンプレートを置き換える前には確認します</translation>
    </message>
    <message>
        <source>Go back to the factory template?</source>
        <translation>標準のテンプレートに戻しますか?</translation>
    </message>
    <message>
        <source>Your own template is replaced. “Back to My Template” brings it back until the program ends.</source>
        <translation>自分のテンプレートは置き換えられます。プログラムが終了するまでは「自分のテンプレートに戻す」で元に戻せます。</translation>
    </message>
    <message>
        <source>Keep My Template</source>
        <translation>自分のテンプレートを残す</translation>
    </message>
</context>
<context>
    <name>kelvo::SshLineBox</name>
    <message>
        <source>%1 was not changed: %2</source>
        <translation>%1 は変更されませんでした: %2</translation>
    </message>
    <message>
        <source>A line in %1 tells ssh of the connection.</source>
        <translation>%1 の 1 行で、ssh に接続を知らせています。</translation>
    </message>
    <message>
        <source>ssh does not know of the connection yet: passes log in each time.</source>
        <translation>ssh はまだこの接続を知りません。同期のたびにログインします。</translation>
    </message>
    <message>
        <source>Take the Line Away</source>
        <translation>行を取り除く</translation>
    </message>
    <message>
        <source>Tell ssh…</source>
        <translation>ssh に知らせる…</translation>
    </message>
    <message>
        <source>Removes the line that Kelvo Mirror has put into your configuration of ssh</source>
        <translation>Kelvo Mirror が ssh の設定に加えた行を取り除きます</translation>
    </message>
    <message>
        <source>Shows the line that your configuration of ssh needs, and asks before it is put there</source>
        <translation>ssh の設定に必要な行を示し、書き込む前に確認します</translation>
    </message>
    <message>
        <source>Tell ssh of the connection?</source>
        <translation>ssh にこの接続を知らせますか?</translation>
    </message>
    <message>
        <source>This line is put at the top of %1. It concerns no commands but those of passes.
%2</source>
        <translation>この行を %1 の先頭に加えます。同期のコマンド以外には影響しません。
%2</translation>
    </message>
    <message>
        <source>Add the Line</source>
        <translation>行を加える</translation>
    </message>
    <message>
        <source>Leave It as It Is</source>
        <translation>そのままにする</translation>
    </message>
</context>
<context>
    <name>kelvo::StatusFieldView</name>
    <message>
        <source>Trouble</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>What the program is doing</source>
        <translation>プログラムの状況</translation>
    </message>
</context>
<context>
    <name>kelvo::StepHead</name>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次の手順</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後の手順</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>変更</translation>
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
        <translation>コピー元フォルダはまだ選ばれていません</translation>
    </message>
    <message>
        <source>No destination folder chosen yet</source>
        <translation>コピー先フォルダはまだ選ばれていません</translation>
    </message>
    <message>
        <source>No remote Mac chosen yet</source>
        <translation>リモート Mac はまだ選ばれていません</translation>
    </message>
    <message>
        <source>The pass went well: %1.</source>
        <translation>同期は成功しました: %1。</translation>
    </message>
</context>
<context>
    <name>kelvo::TrayIcon</name>
    <message>
        <source>Syncing is off</source>
        <translation>同期はオフです</translation>
    </message>
    <message>
        <source>Waiting for the next pass</source>
        <translation>次の同期を待っています</translation>
    </message>
    <message>
        <source>Syncing now</source>
        <translation>同期しています</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>確認が必要です</translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation>同期を開始</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>今すぐ同期(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Cancel This Pass</source>
        <translation>この同期をキャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Open &amp;Window</source>
        <translation>ウインドウを開く(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Activity</source>
        <translation>アクティビティ(&amp;A)</translation>
    </message>
    <message>
        <source>Reveal &amp;Folder</source>
        <translation>フォルダを表示(&amp;F)</translation>
    </message>
    <message>
        <source>Quit and &amp;Relaunch</source>
        <translation>終了して再起動(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>No destination folder is chosen yet</source>
        <translation>コピー先フォルダがまだ選ばれていません</translation>
    </message>
</context>
<context>
    <name>sourceNotice</name>
    <message>
        <source>Choose the remote Mac on the Remote Mac tab.</source>
        <translation>「リモート Mac」タブでリモート Mac を選んでください。</translation>
    </message>
    <message>
        <source>Enter the user name on the Remote Mac tab.</source>
        <translation>「リモート Mac」タブでユーザ名を入力してください。</translation>
    </message>
    <message>
        <source>Enter the remote folder on the Remote Mac tab.</source>
        <translation>「リモート Mac」タブでリモートフォルダを入力してください。</translation>
    </message>
    <message>
        <source>Passes still pull from the source above. The new host or folder takes effect with &quot;Use This Source Now&quot;, or else when the user name changes or the program starts again.</source>
        <translation>同期は今も上のコピー元から取得しています。新しいホストやフォルダは、「このコピー元を今すぐ使う」を選ぶか、ユーザ名を変更するか、プログラムを起動し直すと使われます。</translation>
    </message>
</context>
</TS>
