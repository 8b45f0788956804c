<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Found</source>
        <translation>已找到</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>已排除</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>已加载</translation>
    </message>
    <message>
        <source>Initialized</source>
        <translation>已初始化</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>正在运行</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Qt %1 (built with %2)</source>
        <translation>Qt %1（编译时为 %2）</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>关于 %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
</context>
<context>
    <name>AppearancePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>没有主窗口。</translation>
    </message>
</context>
<context>
    <name>BackupOptionPage</name>
    <message>
        <source>Backup</source>
        <translation>备份</translation>
    </message>
    <message>
        <source>&amp;Back up open projects automatically</source>
        <translation>自动备份打开的项目(&amp;B)</translation>
    </message>
    <message>
        <source> s</source>
        <comment>seconds</comment>
        <translation> 秒</translation>
    </message>
    <message>
        <source>Seconds between two backups</source>
        <translation>两次备份之间的秒数</translation>
    </message>
    <message>
        <source>&amp;Interval:</source>
        <translation>间隔(&amp;I)：</translation>
    </message>
</context>
<context>
    <name>CorePlugin</name>
    <message>
        <source>Something failed: %1</source>
        <translation>出现错误：%1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; failed: %2</source>
        <comment>a command, a reason</comment>
        <translation>“%1”失败：%2</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read or written.</source>
        <translation>无法读取或写入 %1 中的设置。</translation>
    </message>
    <message>
        <source>These plug-ins could not be started: %1.</source>
        <translation>无法启动以下插件：%1。</translation>
    </message>
</context>
<context>
    <name>Downloader</name>
    <message>
        <source>Downloading Updates</source>
        <translation>正在下载更新</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>下载进度</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>剩余时间</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Cannot download update: %1.</source>
        <translation>无法下载更新：%1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address of the web</source>
        <translation>&quot;%1&quot; 不是网址</translation>
    </message>
    <message>
        <source>The update is not installed: %1.</source>
        <translation>不会安装此更新：%1。</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Cannot download update: the folder %1 cannot be made.</source>
        <translation>无法下载更新：无法创建文件夹 %1。</translation>
    </message>
    <message>
        <source>Cannot replace %1: %2.</source>
        <translation>无法替换 %1：%2。</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>of</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot write %1: another program has changed it.</source>
        <translation>无法写入 %1：另一个程序已更改该文件。</translation>
    </message>
    <message>
        <source>the server answered with status %1</source>
        <translation>服务器返回状态 %1</translation>
    </message>
    <message>
        <source>%1 is incomplete</source>
        <translation>%1 不完整</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 是空文件</translation>
    </message>
    <message>
        <source>Cannot rename %1 to %2: %3.</source>
        <translation>无法将 %1 重命名为 %2：%3。</translation>
    </message>
    <message>
        <source>Checking the signature</source>
        <translation>正在检查签名</translation>
    </message>
    <message>
        <source>%1 was deleted, because %2</source>
        <translation>已删除 %1，因为%2</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Download complete!</source>
        <translation>下载完成！</translation>
    </message>
    <message>
        <source>The installer will open separately</source>
        <translation>安装程序将单独打开</translation>
    </message>
    <message>
        <source>In order to install the update, you need to quit the application.</source>
        <translation>要安装更新，需要退出程序。</translation>
    </message>
    <message>
        <source>Click OK to begin installing the update.</source>
        <translation>点击“确定”开始安装更新。</translation>
    </message>
    <message>
        <source>Click Open to apply the update.</source>
        <translation>点击“打开”应用更新。</translation>
    </message>
    <message>
        <source>Cannot find downloaded update!</source>
        <translation>找不到已下载的更新！</translation>
    </message>
    <message>
        <source>%1 could not be opened.</source>
        <translation>无法打开 %1。</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the download?</source>
        <translation>确定要取消下载吗？</translation>
    </message>
    <message>
        <source>this build cannot check signatures</source>
        <translation>此版本的程序无法检查签名</translation>
    </message>
    <message>
        <source>the key to check its signature with is damaged</source>
        <translation>用于检查签名的密钥已损坏</translation>
    </message>
    <message>
        <source>it has no signature</source>
        <translation>没有签名</translation>
    </message>
    <message>
        <source>its check sum is not the announced one</source>
        <translation>校验和与公布的不符</translation>
    </message>
    <message>
        <source>its signature is not valid</source>
        <translation>签名无效</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 字节</translation>
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
        <translation>约 %1 小时</translation>
    </message>
    <message>
        <source>About one hour</source>
        <translation>约 1 小时</translation>
    </message>
    <message>
        <source>About %1 minutes</source>
        <translation>约 %1 分钟</translation>
    </message>
    <message>
        <source>About 1 minute</source>
        <translation>约 1 分钟</translation>
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
        <translation>重定向超过 %1 次</translation>
    </message>
    <message>
        <source>a redirect to &quot;%1&quot;, which is no address of the web</source>
        <translation>被重定向到 &quot;%1&quot;，而它不是网址</translation>
    </message>
    <message>
        <source>a redirect from a secure address to &quot;%1&quot;, which is not</source>
        <translation>从安全地址被重定向到不安全的 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There is no program to open %1 with.</source>
        <translation>没有可以打开 %1 的程序。</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>大于 %1 字节</translation>
    </message>
</context>
<context>
    <name>EditingOptionPage</name>
    <message>
        <source>Editing</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>&amp;Paste SVG as freeform shapes</source>
        <translation>将 SVG 粘贴为自由形状(&amp;P)</translation>
    </message>
    <message>
        <source>Horizontal breakpoints</source>
        <translation>水平断点</translation>
    </message>
    <message>
        <source>Vertical breakpoints</source>
        <translation>垂直断点</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation>恢复默认值(&amp;D)</translation>
    </message>
    <message>
        <source>Restore the default breakpoints</source>
        <translation>恢复默认断点</translation>
    </message>
    <message>
        <source>%1, in pixels</source>
        <translation>%1（像素）</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::CommandLine</name>
    <message>
        <source>Look for plug-ins here too; may be repeated.</source>
        <translation>也在此处查找插件；可重复。</translation>
    </message>
    <message>
        <source>Load only this plug-in and what it needs; may be repeated.</source>
        <translation>只加载此插件及其所需；可重复。</translation>
    </message>
    <message>
        <source>Leave this plug-in out; may be repeated.</source>
        <translation>不加载此插件；可重复。</translation>
    </message>
    <message>
        <source>Keep the user&apos;s settings here.</source>
        <translation>将用户设置保存在此处。</translation>
    </message>
    <message>
        <source>Print how long each plug-in takes to start.</source>
        <translation>输出每个插件的启动时间。</translation>
    </message>
    <message>
        <source>Start even when the program is already running.</source>
        <translation>即使程序已在运行也启动。</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <translation>输出版本并退出。</translation>
    </message>
    <message>
        <source>Print this help and exit.</source>
        <translation>输出此帮助并退出。</translation>
    </message>
    <message>
        <source>Projects to open.</source>
        <translation>要打开的项目。</translation>
    </message>
    <message>
        <source>Do not show the home page in this run.</source>
        <translation>本次运行不显示主页。</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::PluginManager</name>
    <message>
        <source>--help lists the options.</source>
        <translation>--help 列出所有选项。</translation>
    </message>
    <message>
        <source>No plug-in could be loaded from %1.</source>
        <translation>无法从 %1 加载任何插件。</translation>
    </message>
    <message>
        <source>%1 cannot start.</source>
        <translation>%1 无法启动。</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::SingleInstance</name>
    <message>
        <source>There is no safe place for the socket on which other starts could be heard.</source>
        <translation>没有安全的位置放置用于接收其他启动的套接字。</translation>
    </message>
    <message>
        <source>The command line is too long to hand over to a running instance.</source>
        <translation>命令行太长，无法交给正在运行的程序。</translation>
    </message>
    <message>
        <source>The running instance does not answer; another one is started.</source>
        <translation>正在运行的程序没有响应；将启动另一个。</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be had; another instance is started.</source>
        <translation>无法取得锁定文件 %1；将启动另一个程序。</translation>
    </message>
    <message>
        <source>The running instance cannot be reached (%1); another one is started.</source>
        <translation>无法连接正在运行的程序（%1）；将启动另一个。</translation>
    </message>
    <message>
        <source>Other starts cannot be heard on %1: %2</source>
        <translation>无法在 %1 上接收其他启动：%2</translation>
    </message>
</context>
<context>
    <name>Feedback</name>
    <message>
        <source>The address &quot;%1&quot; cannot be opened.</source>
        <translation>无法打开地址 &quot;%1&quot;。</translation>
    </message>
</context>
<context>
    <name>GeneralOptionPage</name>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>语言(&amp;L)：</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Another language takes effect at the next start.</source>
        <translation>更改语言将在下次启动时生效。</translation>
    </message>
    <message>
        <source>Failed to change language.</source>
        <translation>无法更改语言。</translation>
    </message>
</context>
<context>
    <name>IDocument</name>
    <message>
        <source>Save changes made to %1?</source>
        <translation>是否保存对 %1 的更改？</translation>
    </message>
    <message>
        <source>Could not save project %1.</source>
        <translation>无法保存项目 %1。</translation>
    </message>
</context>
<context>
    <name>IMainMdiArea</name>
    <message>
        <source>Could not open file %1.</source>
        <translation>无法打开文件 %1。</translation>
    </message>
    <message>
        <source>The project [%1] no longer exists.
Do you want to remove this entry from history?</source>
        <translation>项目 [%1] 已不存在。
要从历史记录中移除此条目吗？</translation>
    </message>
    <message>
        <source>Could not find the requested file.</source>
        <translation>找不到请求的文件。</translation>
    </message>
</context>
<context>
    <name>IMainMenuWidget</name>
    <message>
        <source>Restore Down</source>
        <translation>向下还原</translation>
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
        <translation>关闭</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>More menus</source>
        <translation>更多菜单</translation>
    </message>
</context>
<context>
    <name>KPNotificationBar</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
</context>
<context>
    <name>KPReleaseNoteDlg</name>
    <message>
        <source>&lt;h2&gt;Failed to load release notes.&lt;/h2&gt;</source>
        <translation>&lt;h2&gt;无法加载发行说明。&lt;/h2&gt;</translation>
    </message>
</context>
<context>
    <name>KPReleaseNoteUI</name>
    <message>
        <source>Update Available</source>
        <translation>有可用更新</translation>
    </message>
    <message>
        <source>Release Notes</source>
        <translation>发行说明</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>跳过此版本</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>稍后提醒</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>最近的项目</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>File.New</source>
        <translation>File.New</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation>创建新项目</translation>
    </message>
    <message>
        <source>&amp;Open Project</source>
        <translation>打开项目(&amp;O)</translation>
    </message>
    <message>
        <source>Open an existing project</source>
        <translation>打开现有项目</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save the current project</source>
        <translation>保存当前项目</translation>
    </message>
    <message>
        <source>Other Project</source>
        <translation>其他项目</translation>
    </message>
    <message>
        <source>Save the current project as a new one</source>
        <translation>将当前项目另存为新项目</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Close the current project</source>
        <translation>关闭当前项目</translation>
    </message>
    <message>
        <source>Preview Current Scene in Browser</source>
        <translation>在浏览器中预览当前场景</translation>
    </message>
    <message>
        <source>Preview Project in Browser</source>
        <translation>在浏览器中预览项目</translation>
    </message>
    <message>
        <source>Export to HTML5</source>
        <translation>导出为 HTML5</translation>
    </message>
    <message>
        <source>Export to Video</source>
        <translation>导出为视频</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>退出程序</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>首选项(&amp;P)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Help Contents</source>
        <translation>帮助内容</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>报告问题</translation>
    </message>
    <message>
        <source>Provide a Suggestion</source>
        <translation>提供建议</translation>
    </message>
    <message>
        <source>Check Updates...</source>
        <translation>检查更新...</translation>
    </message>
    <message>
        <source>The language change will take effect from the next run.</source>
        <translation>语言更改将在下次运行时生效。</translation>
    </message>
    <message>
        <source>Failed to change language.</source>
        <translation>无法更改语言。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Help document is missing.</source>
        <translation>缺少帮助文档。</translation>
    </message>
    <message>
        <source>Could not open help file.</source>
        <translation>无法打开帮助文件。</translation>
    </message>
    <message>
        <source>Cannot open this file type.</source>
        <translation>无法打开此类型的文件。</translation>
    </message>
    <message>
        <source>The project [%1] no longer exists.
Do you want to remove this entry from history?</source>
        <translation>项目 [%1] 已不存在。
要从历史记录中移除此条目吗？</translation>
    </message>
    <message>
        <source>Tool Bars</source>
        <translation>工具栏</translation>
    </message>
</context>
<context>
    <name>RecentList</name>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>最近的项目(&amp;R)</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>最近的项目</translation>
    </message>
    <message>
        <source>The home page cannot be shown here: parts of the browser engine are missing or fail. Your projects are listed instead.</source>
        <translation>此处无法显示主页：浏览器引擎的某些部分缺失或出错。改为列出您的项目。</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>The file holds no shortcuts.</source>
        <translation>文件中没有快捷键。</translation>
    </message>
    <message>
        <source>The shortcut of &quot;%1&quot; is no key sequence.</source>
        <translation>&quot;%1&quot; 的快捷键不是按键序列。</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>文件太大。</translation>
    </message>
</context>
<context>
    <name>StageCommands</name>
    <message>
        <source>add %1</source>
        <translation>添加 %1</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>move</source>
        <translation>移动</translation>
    </message>
</context>
<context>
    <name>StageDocument</name>
    <message>
        <source>Could not create project %1.
A stage of %2 by %3 pixels with %4 frames per second is not possible.</source>
        <translation>无法创建项目 %1。
无法使用 %2 × %3 像素、每秒 %4 帧的舞台。</translation>
    </message>
    <message>
        <source>Scene 1</source>
        <translation>场景 1</translation>
    </message>
    <message>
        <source>Could not open project %1.</source>
        <translation>无法打开项目 %1。</translation>
    </message>
    <message>
        <source>Could not read project %1 again.</source>
        <translation>无法重新读取项目 %1。</translation>
    </message>
    <message>
        <source>Could not save %1: %2</source>
        <translation>无法保存 %1：%2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>已保存 %1</translation>
    </message>
    <message>
        <source>Save Project As</source>
        <translation>项目另存为</translation>
    </message>
    <message>
        <source>Kelpa projects (*%1)</source>
        <translation>Kelpa 项目 (*%1)</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 已存在。要替换吗？</translation>
    </message>
    <message>
        <source>%1 is open. Close it first.</source>
        <translation>%1 已打开。请先将其关闭。</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>另存为(&amp;A)...</translation>
    </message>
    <message>
        <source>No backup of %1: %2</source>
        <translation>无法备份 %1：%2</translation>
    </message>
</context>
<context>
    <name>StageEditor</name>
    <message>
        <source>Sce&amp;ne:</source>
        <translation>场景(&amp;N)：</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>场景</translation>
    </message>
</context>
<context>
    <name>StageFactory</name>
    <message>
        <source>Open Project</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>Kelpa projects (*.kelpa)</source>
        <translation>Kelpa 项目 (*.kelpa)</translation>
    </message>
</context>
<context>
    <name>StageNewDialog</name>
    <message>
        <source>New Project</source>
        <translation>新建项目</translation>
    </message>
    <message>
        <source>&amp;Width (pixels):</source>
        <translation>宽度（像素）(&amp;W)：</translation>
    </message>
    <message>
        <source>&amp;Height (pixels):</source>
        <translation>高度（像素）(&amp;H)：</translation>
    </message>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>每秒帧数(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Responsive: follow the width of the page</source>
        <translation>响应式：跟随页面宽度(&amp;R)</translation>
    </message>
    <message>
        <source>Responsive</source>
        <translation>响应式</translation>
    </message>
    <message>
        <source>What is missing</source>
        <translation>缺少的内容</translation>
    </message>
    <message>
        <source>&amp;Project file:</source>
        <translation>项目文件(&amp;P)：</translation>
    </message>
    <message>
        <source>Project file</source>
        <translation>项目文件</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)...</translation>
    </message>
    <message>
        <source>Browse for the project file</source>
        <translation>浏览项目文件</translation>
    </message>
    <message>
        <source>Kelpa projects (*%1)</source>
        <translation>Kelpa 项目 (*%1)</translation>
    </message>
    <message>
        <source>Enter the name of the project file.</source>
        <translation>请输入项目文件的名称。</translation>
    </message>
    <message>
        <source>Enter the whole path of the project file, with its folder.</source>
        <translation>请输入项目文件的完整路径，包括文件夹。</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>文件夹 %1 不存在。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>无法写入文件夹 %1。</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 不是文件。</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 已存在。要替换吗？</translation>
    </message>
    <message>
        <source>%1 is open. Close it first.</source>
        <translation>%1 已打开。请先将其关闭。</translation>
    </message>
</context>
<context>
    <name>StageOptionPage</name>
    <message>
        <source>The settings could not be saved.</source>
        <translation>无法保存设置。</translation>
    </message>
</context>
<context>
    <name>StageOptionsDlg</name>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
</context>
<context>
    <name>StagePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>没有主窗口。</translation>
    </message>
</context>
<context>
    <name>StageReader</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>is missing; it must be %1</source>
        <translation>缺失；必须是%1</translation>
    </message>
    <message>
        <source>must be %1, not %2</source>
        <translation>必须是%1，而不是 %2</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>%1 到 %2 的数字</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>%1 到 %2 的整数</translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation>%1 到 %2 个字符的文本</translation>
    </message>
    <message>
        <source>a colour such as &quot;#0080ff&quot;, or &quot;none&quot;</source>
        <translation>&quot;#0080ff&quot; 这样的颜色，或 &quot;none&quot;</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true 或 false</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>%1 之一</translation>
    </message>
    <message>
        <source>the project was written by a newer program (format version %1; this program reads up to %2)</source>
        <translation>项目由更新的程序写入（格式版本 %1；此程序最多读取 %2）</translation>
    </message>
    <message>
        <source>must hold 1 to %1 scenes, not %2</source>
        <translation>必须包含 1 到 %1 个场景，而不是 %2 个</translation>
    </message>
    <message>
        <source>a project may hold %1 elements at most</source>
        <translation>一个项目最多包含 %1 个元素</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is used by another element</source>
        <translation>&quot;%1&quot; 已被另一个元素使用</translation>
    </message>
    <message>
        <source>the path of a file</source>
        <translation>文件路径</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>第 %1 行，第 %2 列</translation>
    </message>
    <message>
        <source>the file holds more than %1 values</source>
        <translation>文件包含超过 %1 个值</translation>
    </message>
    <message>
        <source>%1: not valid JSON (%2)</source>
        <translation>%1：不是有效的 JSON（%2）</translation>
    </message>
    <message>
        <source>line 1: the file must hold an object</source>
        <translation>第 1 行：文件必须包含一个对象</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>这不是普通文件</translation>
    </message>
    <message>
        <source>the file is larger than %1</source>
        <translation>文件大于 %1</translation>
    </message>
</context>
<context>
    <name>StageToolBar</name>
    <message>
        <source>Add Re&amp;ctangle</source>
        <translation>添加矩形(&amp;C)</translation>
    </message>
    <message>
        <source>Add &amp;Ellipse</source>
        <translation>添加椭圆(&amp;E)</translation>
    </message>
    <message>
        <source>Add &amp;Text</source>
        <translation>添加文本(&amp;T)</translation>
    </message>
    <message>
        <source>Add &amp;Image...</source>
        <translation>添加图像(&amp;I)...</translation>
    </message>
    <message>
        <source>Add Image</source>
        <translation>添加图像</translation>
    </message>
    <message>
        <source>Images (*.svg *.png *.jpg *.jpeg *.gif)</source>
        <translation>图像 (*.svg *.png *.jpg *.jpeg *.gif)</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>舞台</translation>
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
        <source>Undo the last change</source>
        <translation>撤销上一次更改</translation>
    </message>
    <message>
        <source>Redo the last change undone</source>
        <translation>重做上一次撤销的更改</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete (Del)</source>
        <translation>删除 (Del)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>The project holds as many elements as it can.</source>
        <translation>项目中的元素数量已达上限。</translation>
    </message>
</context>
<context>
    <name>StageView</name>
    <message>
        <source>Stage</source>
        <translation>舞台</translation>
    </message>
    <message numerus="yes">
        <source>%n element(s) selected</source>
        <translation>
            <numerusform>已选择 %n 个元素</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 selected, at %2, %3</source>
        <translation>已选择 %1，位于 %2, %3</translation>
    </message>
</context>
<context>
    <name>ThemeMenu</name>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Failed to change theme.</source>
        <translation>无法更改主题。</translation>
    </message>
    <message>
        <source>The theme change will take effect from the next run.</source>
        <translation>主题更改将在下次运行时生效。</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <source>May Kelpa Studio look for a new version once a day?</source>
        <translation>是否允许 Kelpa Studio 每天检查一次新版本？</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>允许</translation>
    </message>
    <message>
        <source>No address to look for updates is set. You can set it in the preferences, under Updates.</source>
        <translation>尚未设置检查更新的地址。可以在首选项的“更新”中设置。</translation>
    </message>
    <message>
        <source>Looking for a new version...</source>
        <translation>正在检查新版本...</translation>
    </message>
    <message>
        <source>Cannot reach %1: no answer within %2 seconds.</source>
        <translation>无法连接 %1：%2 秒内没有响应。</translation>
    </message>
    <message>
        <source>You are running the latest version of %1, %2.</source>
        <translation>正在使用 %1 的最新版本 %2。</translation>
    </message>
    <message>
        <source>%1 %2 has been released.</source>
        <translation>%1 %2 已发布。</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>大于 %1 字节</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1（第 %2 字节处）</translation>
    </message>
    <message>
        <source>it names no version for &quot;%1&quot;</source>
        <translation>其中没有适用于 &quot;%1&quot; 的版本</translation>
    </message>
    <message>
        <source>it was given up</source>
        <translation>已放弃</translation>
    </message>
    <message>
        <source>the answer is larger than %1 bytes</source>
        <translation>响应大于 %1 字节</translation>
    </message>
    <message>
        <source>Cannot reach %1: %2.</source>
        <translation>无法连接 %1：%2。</translation>
    </message>
    <message>
        <source>no answer within %1 seconds</source>
        <translation>%1 秒内没有响应</translation>
    </message>
    <message>
        <source>%1 is not a valid feed: %2.</source>
        <translation>%1 不是有效的更新列表：%2。</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1 %2 has been released!&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1 %2 已发布！&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Congratulations! You are running the latest version of %1</source>
        <translation>恭喜！正在使用 %1 的最新版本</translation>
    </message>
    <message>
        <source>No updates are available at the moment.</source>
        <translation>目前没有可用的更新。</translation>
    </message>
</context>
<context>
    <name>UpdatesPage</name>
    <message>
        <source>&amp;Look for a new version once a day</source>
        <translation>每天检查一次新版本(&amp;L)</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>&amp;Address of the updates:</source>
        <translation>更新地址(&amp;A)：</translation>
    </message>
    <message>
        <source>Address for &amp;problems:</source>
        <translation>报告问题的地址(&amp;P)：</translation>
    </message>
    <message>
        <source>Address for &amp;suggestions:</source>
        <translation>提供建议的地址(&amp;S)：</translation>
    </message>
</context>
<context>
    <name>UpdatesPlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>没有主窗口。</translation>
    </message>
    <message>
        <source>Check Updates...</source>
        <translation>检查更新...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>报告问题</translation>
    </message>
    <message>
        <source>Provide a Suggestion</source>
        <translation>提供建议</translation>
    </message>
</context>
<context>
    <name>WelcomeOptionPage</name>
    <message>
        <source>&amp;Show the home page while no project is open</source>
        <translation>没有打开项目时显示主页(&amp;S)</translation>
    </message>
    <message>
        <source>Home Page</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation>更改将在下次启动时生效。</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Animations for the web, drawn by you</source>
        <translation>亲手绘制网页动画</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>新建项目</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>最近的项目</translation>
    </message>
    <message>
        <source>Projects that you create or open will be listed here.</source>
        <translation>创建或打开的项目将列在这里。</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>在文件夹中显示 %1</translation>
    </message>
    <message>
        <source>Remove %1 from the list</source>
        <translation>从列表中移除 %1</translation>
    </message>
    <message>
        <source>%1 was removed from the list.</source>
        <translation>已从列表中移除 %1。</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>示例</translation>
    </message>
    <message>
        <source>On the web</source>
        <translation>在网上</translation>
    </message>
    <message>
        <source>Home Page</source>
        <translation>网站</translation>
    </message>
    <message>
        <source>Community</source>
        <translation>社区</translation>
    </message>
    <message>
        <source>Demo Projects</source>
        <translation>演示项目</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>News</source>
        <translation>新闻</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>The page has lost the program and is trying to reach it again.</source>
        <translation>页面与程序的连接已断开，正在尝试重新连接。</translation>
    </message>
    <message>
        <source>The page has reached the program again.</source>
        <translation>页面已重新连接到程序。</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>风景</translation>
    </message>
    <message>
        <source>A morning in layers: hills, clouds and trees</source>
        <translation>层层叠叠的清晨：山丘、云朵和树木</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>横幅</translation>
    </message>
    <message>
        <source>Two scenes for the top of a page</source>
        <translation>用于页面顶部的两个场景</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>卡片</translation>
    </message>
    <message>
        <source>A card that follows the width of its page</source>
        <translation>随页面宽度变化的卡片</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>主页</translation>
    </message>
</context>
<context>
    <name>WelcomePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>没有主窗口。</translation>
    </message>
</context>
</TS>
