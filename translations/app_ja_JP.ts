<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Found</source>
        <translation>検出</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>読み込み済み</translation>
    </message>
    <message>
        <source>Initialized</source>
        <translation>初期化済み</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Qt %1 (built with %2)</source>
        <translation>Qt %1（ビルド時は %2）</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>%1 について</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>プラグイン</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>プラグイン</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
</context>
<context>
    <name>AppearancePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>メインウィンドウがありません。</translation>
    </message>
</context>
<context>
    <name>BackupOptionPage</name>
    <message>
        <source>Backup</source>
        <translation>バックアップ</translation>
    </message>
    <message>
        <source>&amp;Back up open projects automatically</source>
        <translation>開いているプロジェクトを自動的にバックアップする(&amp;B)</translation>
    </message>
    <message>
        <source> s</source>
        <comment>seconds</comment>
        <translation> 秒</translation>
    </message>
    <message>
        <source>Seconds between two backups</source>
        <translation>バックアップの間隔（秒）</translation>
    </message>
    <message>
        <source>&amp;Interval:</source>
        <translation>間隔(&amp;I):</translation>
    </message>
</context>
<context>
    <name>CorePlugin</name>
    <message>
        <source>Something failed: %1</source>
        <translation>問題が発生しました: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; failed: %2</source>
        <comment>a command, a reason</comment>
        <translation>「%1」は失敗しました: %2</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read or written.</source>
        <translation>%1 の設定を読み書きできません。</translation>
    </message>
    <message>
        <source>These plug-ins could not be started: %1.</source>
        <translation>次のプラグインを起動できませんでした: %1</translation>
    </message>
</context>
<context>
    <name>Downloader</name>
    <message>
        <source>Downloading Updates</source>
        <translation>更新をダウンロードしています</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>ダウンロードの進行状況</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>残り時間</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Cannot download update: %1.</source>
        <translation>更新をダウンロードできません: %1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address of the web</source>
        <translation>&quot;%1&quot; は Web アドレスではありません</translation>
    </message>
    <message>
        <source>The update is not installed: %1.</source>
        <translation>更新はインストールされません: %1。</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Cannot download update: the folder %1 cannot be made.</source>
        <translation>更新をダウンロードできません: フォルダー %1 を作成できません。</translation>
    </message>
    <message>
        <source>Cannot replace %1: %2.</source>
        <translation>%1 を置き換えられません: %2。</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1 に書き込めません: %2。</translation>
    </message>
    <message>
        <source>of</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot write %1: another program has changed it.</source>
        <translation>%1 に書き込めません: ほかのプログラムが変更しました。</translation>
    </message>
    <message>
        <source>the server answered with status %1</source>
        <translation>サーバーがステータス %1 を返しました</translation>
    </message>
    <message>
        <source>%1 is incomplete</source>
        <translation>%1 は不完全です</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 は空です</translation>
    </message>
    <message>
        <source>Cannot rename %1 to %2: %3.</source>
        <translation>%1 の名前を %2 に変更できません: %3。</translation>
    </message>
    <message>
        <source>Checking the signature</source>
        <translation>署名を確認しています</translation>
    </message>
    <message>
        <source>%1 was deleted, because %2</source>
        <translation>%1 を削除しました（%2）</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Download complete!</source>
        <translation>ダウンロードが完了しました！</translation>
    </message>
    <message>
        <source>The installer will open separately</source>
        <translation>インストーラーが別に開きます</translation>
    </message>
    <message>
        <source>In order to install the update, you need to quit the application.</source>
        <translation>更新をインストールするには、プログラムを終了する必要があります。</translation>
    </message>
    <message>
        <source>Click OK to begin installing the update.</source>
        <translation>「OK」をクリックすると、更新のインストールが始まります。</translation>
    </message>
    <message>
        <source>Click Open to apply the update.</source>
        <translation>「開く」をクリックすると、更新が適用されます。</translation>
    </message>
    <message>
        <source>Cannot find downloaded update!</source>
        <translation>ダウンロードした更新が見つかりません！</translation>
    </message>
    <message>
        <source>%1 could not be opened.</source>
        <translation>%1 を開けませんでした。</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the download?</source>
        <translation>ダウンロードを中止してもよろしいですか？</translation>
    </message>
    <message>
        <source>this build cannot check signatures</source>
        <translation>このビルドでは署名を確認できません</translation>
    </message>
    <message>
        <source>the key to check its signature with is damaged</source>
        <translation>署名を確認するための鍵が壊れています</translation>
    </message>
    <message>
        <source>it has no signature</source>
        <translation>署名がありません</translation>
    </message>
    <message>
        <source>its check sum is not the announced one</source>
        <translation>チェックサムが公表された値と異なります</translation>
    </message>
    <message>
        <source>its signature is not valid</source>
        <translation>署名が正しくありません</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 バイト</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>About %1 hours</source>
        <translation>約 %1 時間</translation>
    </message>
    <message>
        <source>About one hour</source>
        <translation>約 1 時間</translation>
    </message>
    <message>
        <source>About %1 minutes</source>
        <translation>約 %1 分</translation>
    </message>
    <message>
        <source>About 1 minute</source>
        <translation>約 1 分</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>1 second</source>
        <translation>1 秒</translation>
    </message>
    <message>
        <source>more than %1 redirects</source>
        <translation>リダイレクトが %1 回を超えました</translation>
    </message>
    <message>
        <source>a redirect to &quot;%1&quot;, which is no address of the web</source>
        <translation>Web アドレスではない &quot;%1&quot; にリダイレクトされました</translation>
    </message>
    <message>
        <source>a redirect from a secure address to &quot;%1&quot;, which is not</source>
        <translation>安全なアドレスから、安全でない &quot;%1&quot; にリダイレクトされました</translation>
    </message>
    <message>
        <source>There is no program to open %1 with.</source>
        <translation>%1 を開くプログラムがありません。</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>%1 バイトを超えています</translation>
    </message>
</context>
<context>
    <name>EditingOptionPage</name>
    <message>
        <source>Editing</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>&amp;Paste SVG as freeform shapes</source>
        <translation>SVG を自由な図形として貼り付ける(&amp;P)</translation>
    </message>
    <message>
        <source>Horizontal breakpoints</source>
        <translation>横方向のブレークポイント</translation>
    </message>
    <message>
        <source>Vertical breakpoints</source>
        <translation>縦方向のブレークポイント</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation>既定値に戻す(&amp;D)</translation>
    </message>
    <message>
        <source>Restore the default breakpoints</source>
        <translation>既定のブレークポイントに戻す</translation>
    </message>
    <message>
        <source>%1, in pixels</source>
        <translation>%1（ピクセル）</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::CommandLine</name>
    <message>
        <source>Look for plug-ins here too; may be repeated.</source>
        <translation>ここでもプラグインを探します。複数回指定できます。</translation>
    </message>
    <message>
        <source>Load only this plug-in and what it needs; may be repeated.</source>
        <translation>このプラグインと必要なものだけを読み込みます。複数回指定できます。</translation>
    </message>
    <message>
        <source>Leave this plug-in out; may be repeated.</source>
        <translation>このプラグインを除外します。複数回指定できます。</translation>
    </message>
    <message>
        <source>Keep the user&apos;s settings here.</source>
        <translation>ユーザーの設定をここに保存します。</translation>
    </message>
    <message>
        <source>Print how long each plug-in takes to start.</source>
        <translation>各プラグインの起動時間を表示します。</translation>
    </message>
    <message>
        <source>Start even when the program is already running.</source>
        <translation>プログラムがすでに実行中でも起動します。</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <translation>バージョンを表示して終了します。</translation>
    </message>
    <message>
        <source>Print this help and exit.</source>
        <translation>このヘルプを表示して終了します。</translation>
    </message>
    <message>
        <source>Projects to open.</source>
        <translation>開くプロジェクト。</translation>
    </message>
    <message>
        <source>Do not show the home page in this run.</source>
        <translation>今回はホーム画面を表示しません。</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::PluginManager</name>
    <message>
        <source>--help lists the options.</source>
        <translation>オプションの一覧は --help で表示されます。</translation>
    </message>
    <message>
        <source>No plug-in could be loaded from %1.</source>
        <translation>%1 からプラグインを読み込めませんでした。</translation>
    </message>
    <message>
        <source>%1 cannot start.</source>
        <translation>%1 を起動できません。</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::SingleInstance</name>
    <message>
        <source>There is no safe place for the socket on which other starts could be heard.</source>
        <translation>ほかの起動を受け付けるソケットの安全な置き場所がありません。</translation>
    </message>
    <message>
        <source>The command line is too long to hand over to a running instance.</source>
        <translation>コマンドラインが長すぎて、実行中のプログラムに渡せません。</translation>
    </message>
    <message>
        <source>The running instance does not answer; another one is started.</source>
        <translation>実行中のプログラムが応答しないため、もう一つ起動します。</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be had; another instance is started.</source>
        <translation>ロックファイル %1 を取得できないため、もう一つ起動します。</translation>
    </message>
    <message>
        <source>The running instance cannot be reached (%1); another one is started.</source>
        <translation>実行中のプログラムに接続できないため（%1）、もう一つ起動します。</translation>
    </message>
    <message>
        <source>Other starts cannot be heard on %1: %2</source>
        <translation>%1 でほかの起動を受け付けられません: %2</translation>
    </message>
</context>
<context>
    <name>Feedback</name>
    <message>
        <source>The address &quot;%1&quot; cannot be opened.</source>
        <translation>アドレス &quot;%1&quot; を開けません。</translation>
    </message>
</context>
<context>
    <name>GeneralOptionPage</name>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>言語(&amp;L):</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Another language takes effect at the next start.</source>
        <translation>言語の変更は次回の起動時に反映されます。</translation>
    </message>
    <message>
        <source>Failed to change language.</source>
        <translation>言語を変更できませんでした。</translation>
    </message>
</context>
<context>
    <name>IDocument</name>
    <message>
        <source>Save changes made to %1?</source>
        <translation>%1 への変更を保存しますか？</translation>
    </message>
    <message>
        <source>Could not save project %1.</source>
        <translation>プロジェクト %1 を保存できませんでした。</translation>
    </message>
</context>
<context>
    <name>IMainMdiArea</name>
    <message>
        <source>Could not open file %1.</source>
        <translation>ファイル %1 を開けませんでした。</translation>
    </message>
    <message>
        <source>The project [%1] no longer exists.
Do you want to remove this entry from history?</source>
        <translation>プロジェクト [%1] は存在しません。
この項目を履歴から削除しますか？</translation>
    </message>
    <message>
        <source>Could not find the requested file.</source>
        <translation>指定されたファイルが見つかりませんでした。</translation>
    </message>
</context>
<context>
    <name>IMainMenuWidget</name>
    <message>
        <source>Restore Down</source>
        <translation>元のサイズに戻す</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>More menus</source>
        <translation>その他のメニュー</translation>
    </message>
</context>
<context>
    <name>KPNotificationBar</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
</context>
<context>
    <name>KPReleaseNoteDlg</name>
    <message>
        <source>&lt;h2&gt;Failed to load release notes.&lt;/h2&gt;</source>
        <translation>&lt;h2&gt;リリースノートを読み込めませんでした。&lt;/h2&gt;</translation>
    </message>
</context>
<context>
    <name>KPReleaseNoteUI</name>
    <message>
        <source>Update Available</source>
        <translation>更新があります</translation>
    </message>
    <message>
        <source>Release Notes</source>
        <translation>リリースノート</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>このバージョンをスキップ</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>後で通知</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>最近使ったプロジェクト</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>File.New</source>
        <translation>File.New</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新規(&amp;N)</translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation>新しいプロジェクトを作成します</translation>
    </message>
    <message>
        <source>&amp;Open Project</source>
        <translation>プロジェクトを開く(&amp;O)</translation>
    </message>
    <message>
        <source>Open an existing project</source>
        <translation>既存のプロジェクトを開きます</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save the current project</source>
        <translation>現在のプロジェクトを保存します</translation>
    </message>
    <message>
        <source>Other Project</source>
        <translation>別のプロジェクト</translation>
    </message>
    <message>
        <source>Save the current project as a new one</source>
        <translation>現在のプロジェクトを新しいプロジェクトとして保存します</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Close the current project</source>
        <translation>現在のプロジェクトを閉じます</translation>
    </message>
    <message>
        <source>Preview Current Scene in Browser</source>
        <translation>現在のシーンをブラウザーでプレビュー</translation>
    </message>
    <message>
        <source>Preview Project in Browser</source>
        <translation>プロジェクトをブラウザーでプレビュー</translation>
    </message>
    <message>
        <source>Export to HTML5</source>
        <translation>HTML5 に書き出し</translation>
    </message>
    <message>
        <source>Export to Video</source>
        <translation>動画に書き出し</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>プログラムを終了します</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>設定(&amp;P)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Help Contents</source>
        <translation>ヘルプの目次</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>問題を報告</translation>
    </message>
    <message>
        <source>Provide a Suggestion</source>
        <translation>提案を送る</translation>
    </message>
    <message>
        <source>Check Updates...</source>
        <translation>更新を確認...</translation>
    </message>
    <message>
        <source>The language change will take effect from the next run.</source>
        <translation>言語の変更は次回の起動時に反映されます。</translation>
    </message>
    <message>
        <source>Failed to change language.</source>
        <translation>言語を変更できませんでした。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Help document is missing.</source>
        <translation>ヘルプ文書が見つかりません。</translation>
    </message>
    <message>
        <source>Could not open help file.</source>
        <translation>ヘルプファイルを開けませんでした。</translation>
    </message>
    <message>
        <source>Cannot open this file type.</source>
        <translation>この種類のファイルは開けません。</translation>
    </message>
    <message>
        <source>The project [%1] no longer exists.
Do you want to remove this entry from history?</source>
        <translation>プロジェクト [%1] は存在しません。
この項目を履歴から削除しますか？</translation>
    </message>
    <message>
        <source>Tool Bars</source>
        <translation>ツールバー</translation>
    </message>
</context>
<context>
    <name>RecentList</name>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>最近使ったプロジェクト(&amp;R)</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>最近使ったプロジェクト</translation>
    </message>
    <message>
        <source>The home page cannot be shown here: parts of the browser engine are missing or fail. Your projects are listed instead.</source>
        <translation>ここではホーム画面を表示できません: ブラウザーエンジンの一部が見つからないか、動作しません。代わりにプロジェクトの一覧を表示しています。</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>The file holds no shortcuts.</source>
        <translation>ファイルにショートカットがありません。</translation>
    </message>
    <message>
        <source>The shortcut of &quot;%1&quot; is no key sequence.</source>
        <translation>&quot;%1&quot; のショートカットはキー操作ではありません。</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>ファイルが大きすぎます。</translation>
    </message>
</context>
<context>
    <name>StageCommands</name>
    <message>
        <source>add %1</source>
        <translation>%1 の追加</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>move</source>
        <translation>移動</translation>
    </message>
</context>
<context>
    <name>StageDocument</name>
    <message>
        <source>Could not create project %1.
A stage of %2 by %3 pixels with %4 frames per second is not possible.</source>
        <translation>プロジェクト %1 を作成できませんでした。
%2 × %3 ピクセル、毎秒 %4 フレームのステージは作れません。</translation>
    </message>
    <message>
        <source>Scene 1</source>
        <translation>シーン 1</translation>
    </message>
    <message>
        <source>Could not open project %1.</source>
        <translation>プロジェクト %1 を開けませんでした。</translation>
    </message>
    <message>
        <source>Could not read project %1 again.</source>
        <translation>プロジェクト %1 を読み直せませんでした。</translation>
    </message>
    <message>
        <source>Could not save %1: %2</source>
        <translation>%1 を保存できませんでした: %2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 を保存しました</translation>
    </message>
    <message>
        <source>Save Project As</source>
        <translation>名前を付けてプロジェクトを保存</translation>
    </message>
    <message>
        <source>Kelpa projects (*%1)</source>
        <translation>Kelpa プロジェクト (*%1)</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 はすでに存在します。置き換えますか？</translation>
    </message>
    <message>
        <source>%1 is open. Close it first.</source>
        <translation>%1 は開かれています。先に閉じてください。</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>名前を付けて保存(&amp;A)...</translation>
    </message>
    <message>
        <source>No backup of %1: %2</source>
        <translation>%1 のバックアップを作成できません: %2</translation>
    </message>
</context>
<context>
    <name>StageEditor</name>
    <message>
        <source>Sce&amp;ne:</source>
        <translation>シーン(&amp;N):</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>シーン</translation>
    </message>
</context>
<context>
    <name>StageFactory</name>
    <message>
        <source>Open Project</source>
        <translation>プロジェクトを開く</translation>
    </message>
    <message>
        <source>Kelpa projects (*.kelpa)</source>
        <translation>Kelpa プロジェクト (*.kelpa)</translation>
    </message>
</context>
<context>
    <name>StageNewDialog</name>
    <message>
        <source>New Project</source>
        <translation>新規プロジェクト</translation>
    </message>
    <message>
        <source>&amp;Width (pixels):</source>
        <translation>幅（ピクセル）(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Height (pixels):</source>
        <translation>高さ（ピクセル）(&amp;H):</translation>
    </message>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>毎秒のフレーム数(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Responsive: follow the width of the page</source>
        <translation>レスポンシブ: ページの幅に合わせる(&amp;R)</translation>
    </message>
    <message>
        <source>Responsive</source>
        <translation>レスポンシブ</translation>
    </message>
    <message>
        <source>What is missing</source>
        <translation>足りないもの</translation>
    </message>
    <message>
        <source>&amp;Project file:</source>
        <translation>プロジェクトファイル(&amp;P):</translation>
    </message>
    <message>
        <source>Project file</source>
        <translation>プロジェクトファイル</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>無題</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>Browse for the project file</source>
        <translation>プロジェクトファイルを参照</translation>
    </message>
    <message>
        <source>Kelpa projects (*%1)</source>
        <translation>Kelpa プロジェクト (*%1)</translation>
    </message>
    <message>
        <source>Enter the name of the project file.</source>
        <translation>プロジェクトファイルの名前を入力してください。</translation>
    </message>
    <message>
        <source>Enter the whole path of the project file, with its folder.</source>
        <translation>プロジェクトファイルの完全なパスをフォルダーも含めて入力してください。</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>フォルダー %1 は存在しません。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>フォルダー %1 に書き込めません。</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 はファイルではありません。</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 はすでに存在します。置き換えますか？</translation>
    </message>
    <message>
        <source>%1 is open. Close it first.</source>
        <translation>%1 は開かれています。先に閉じてください。</translation>
    </message>
</context>
<context>
    <name>StageOptionPage</name>
    <message>
        <source>The settings could not be saved.</source>
        <translation>設定を保存できませんでした。</translation>
    </message>
</context>
<context>
    <name>StageOptionsDlg</name>
    <message>
        <source>Preferences</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>StagePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>メインウィンドウがありません。</translation>
    </message>
</context>
<context>
    <name>StageReader</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>is missing; it must be %1</source>
        <translation>がありません。%1 でなければなりません</translation>
    </message>
    <message>
        <source>must be %1, not %2</source>
        <translation>は %2 ではなく %1 でなければなりません</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>%1 から %2 までの数</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>%1 から %2 までの整数</translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation>%1 から %2 文字のテキスト</translation>
    </message>
    <message>
        <source>a colour such as &quot;#0080ff&quot;, or &quot;none&quot;</source>
        <translation>&quot;#0080ff&quot; のような色、または &quot;none&quot;</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true または false</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>オブジェクト</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>%1 のいずれか</translation>
    </message>
    <message>
        <source>the project was written by a newer program (format version %1; this program reads up to %2)</source>
        <translation>プロジェクトは新しいプログラムで書かれています（形式バージョン %1、このプログラムは %2 まで読めます）</translation>
    </message>
    <message>
        <source>must hold 1 to %1 scenes, not %2</source>
        <translation>には %2 ではなく 1 から %1 のシーンが必要です</translation>
    </message>
    <message>
        <source>a project may hold %1 elements at most</source>
        <translation>プロジェクトに入れられる要素は最大 %1 個です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is used by another element</source>
        <translation>&quot;%1&quot; は別の要素で使われています</translation>
    </message>
    <message>
        <source>the path of a file</source>
        <translation>ファイルのパス</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>%1 行 %2 列</translation>
    </message>
    <message>
        <source>the file holds more than %1 values</source>
        <translation>ファイルの値が %1 個を超えています</translation>
    </message>
    <message>
        <source>%1: not valid JSON (%2)</source>
        <translation>%1: 正しい JSON ではありません（%2）</translation>
    </message>
    <message>
        <source>line 1: the file must hold an object</source>
        <translation>1 行: ファイルにはオブジェクトが必要です</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>ファイルが存在しません</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>the file is larger than %1</source>
        <translation>ファイルが %1 を超えています</translation>
    </message>
</context>
<context>
    <name>StageToolBar</name>
    <message>
        <source>Add Re&amp;ctangle</source>
        <translation>四角形を追加(&amp;C)</translation>
    </message>
    <message>
        <source>Add &amp;Ellipse</source>
        <translation>楕円を追加(&amp;E)</translation>
    </message>
    <message>
        <source>Add &amp;Text</source>
        <translation>テキストを追加(&amp;T)</translation>
    </message>
    <message>
        <source>Add &amp;Image...</source>
        <translation>画像を追加(&amp;I)...</translation>
    </message>
    <message>
        <source>Add Image</source>
        <translation>画像を追加</translation>
    </message>
    <message>
        <source>Images (*.svg *.png *.jpg *.jpeg *.gif)</source>
        <translation>画像 (*.svg *.png *.jpg *.jpeg *.gif)</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>ステージ</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>最後の変更を元に戻します</translation>
    </message>
    <message>
        <source>Redo the last change undone</source>
        <translation>元に戻した最後の変更をやり直します</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete (Del)</source>
        <translation>削除 (Del)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>The project holds as many elements as it can.</source>
        <translation>プロジェクトにはこれ以上要素を追加できません。</translation>
    </message>
</context>
<context>
    <name>StageView</name>
    <message>
        <source>Stage</source>
        <translation>ステージ</translation>
    </message>
    <message numerus="yes">
        <source>%n element(s) selected</source>
        <translation>
            <numerusform>%n 個の要素を選択中</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 selected, at %2, %3</source>
        <translation>%1 を選択中、位置 %2, %3</translation>
    </message>
</context>
<context>
    <name>ThemeMenu</name>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>Failed to change theme.</source>
        <translation>テーマを変更できませんでした。</translation>
    </message>
    <message>
        <source>The theme change will take effect from the next run.</source>
        <translation>テーマの変更は次回の起動時に反映されます。</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <source>May Kelpa Studio look for a new version once a day?</source>
        <translation>Kelpa Studio が 1 日に 1 回、新しいバージョンを確認してもよろしいですか？</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>許可</translation>
    </message>
    <message>
        <source>No address to look for updates is set. You can set it in the preferences, under Updates.</source>
        <translation>更新を確認するアドレスが設定されていません。設定の「更新」で指定できます。</translation>
    </message>
    <message>
        <source>Looking for a new version...</source>
        <translation>新しいバージョンを確認しています...</translation>
    </message>
    <message>
        <source>Cannot reach %1: no answer within %2 seconds.</source>
        <translation>%1 に接続できません: %2 秒以内に応答がありませんでした。</translation>
    </message>
    <message>
        <source>You are running the latest version of %1, %2.</source>
        <translation>%1 の最新バージョン %2 をお使いです。</translation>
    </message>
    <message>
        <source>%1 %2 has been released.</source>
        <translation>%1 %2 がリリースされました。</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>%1 バイトを超えています</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1（%2 バイト目）</translation>
    </message>
    <message>
        <source>it names no version for &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 用のバージョンが記されていません</translation>
    </message>
    <message>
        <source>it was given up</source>
        <translation>接続を取りやめました</translation>
    </message>
    <message>
        <source>the answer is larger than %1 bytes</source>
        <translation>応答が %1 バイトを超えています</translation>
    </message>
    <message>
        <source>Cannot reach %1: %2.</source>
        <translation>%1 に接続できません: %2。</translation>
    </message>
    <message>
        <source>no answer within %1 seconds</source>
        <translation>%1 秒以内に応答がありませんでした</translation>
    </message>
    <message>
        <source>%1 is not a valid feed: %2.</source>
        <translation>%1 は正しい更新情報ではありません: %2。</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1 %2 has been released!&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1 %2 がリリースされました！&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Congratulations! You are running the latest version of %1</source>
        <translation>おめでとうございます！%1 の最新バージョンをお使いです</translation>
    </message>
    <message>
        <source>No updates are available at the moment.</source>
        <translation>現在、利用できる更新はありません。</translation>
    </message>
</context>
<context>
    <name>UpdatesPage</name>
    <message>
        <source>&amp;Look for a new version once a day</source>
        <translation>1 日に 1 回、新しいバージョンを確認する(&amp;L)</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>&amp;Address of the updates:</source>
        <translation>更新のアドレス(&amp;A):</translation>
    </message>
    <message>
        <source>Address for &amp;problems:</source>
        <translation>問題報告のアドレス(&amp;P):</translation>
    </message>
    <message>
        <source>Address for &amp;suggestions:</source>
        <translation>提案のアドレス(&amp;S):</translation>
    </message>
</context>
<context>
    <name>UpdatesPlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>メインウィンドウがありません。</translation>
    </message>
    <message>
        <source>Check Updates...</source>
        <translation>更新を確認...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>問題を報告</translation>
    </message>
    <message>
        <source>Provide a Suggestion</source>
        <translation>提案を送る</translation>
    </message>
</context>
<context>
    <name>WelcomeOptionPage</name>
    <message>
        <source>&amp;Show the home page while no project is open</source>
        <translation>プロジェクトを開いていないときにホーム画面を表示する(&amp;S)</translation>
    </message>
    <message>
        <source>Home Page</source>
        <translation>ホーム画面</translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation>変更は次回の起動時に反映されます。</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Animations for the web, drawn by you</source>
        <translation>あなたが描く、Web のためのアニメーション</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>新規プロジェクト</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>プロジェクトを開く</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>最近使ったプロジェクト</translation>
    </message>
    <message>
        <source>Projects that you create or open will be listed here.</source>
        <translation>作成したプロジェクトや開いたプロジェクトがここに表示されます。</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>%1 をフォルダーで表示</translation>
    </message>
    <message>
        <source>Remove %1 from the list</source>
        <translation>%1 を一覧から削除</translation>
    </message>
    <message>
        <source>%1 was removed from the list.</source>
        <translation>%1 を一覧から削除しました。</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>サンプル</translation>
    </message>
    <message>
        <source>On the web</source>
        <translation>Web で</translation>
    </message>
    <message>
        <source>Home Page</source>
        <translation>Web サイト</translation>
    </message>
    <message>
        <source>Community</source>
        <translation>コミュニティ</translation>
    </message>
    <message>
        <source>Demo Projects</source>
        <translation>デモプロジェクト</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>News</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>The page has lost the program and is trying to reach it again.</source>
        <translation>ページとプログラムの接続が切れたため、再接続を試みています。</translation>
    </message>
    <message>
        <source>The page has reached the program again.</source>
        <translation>ページがプログラムに再接続しました。</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>風景</translation>
    </message>
    <message>
        <source>A morning in layers: hills, clouds and trees</source>
        <translation>重なり合う朝の風景: 丘と雲と木々</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>バナー</translation>
    </message>
    <message>
        <source>Two scenes for the top of a page</source>
        <translation>ページの上部に置く 2 つのシーン</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>カード</translation>
    </message>
    <message>
        <source>A card that follows the width of its page</source>
        <translation>ページの幅に合わせて変わるカード</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>ホーム</translation>
    </message>
</context>
<context>
    <name>WelcomePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>メインウィンドウがありません。</translation>
    </message>
</context>
</TS>
