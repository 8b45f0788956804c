<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>AppearancePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BackupOptionPage</name>
    <message>
        <source>Backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back up open projects automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> s</source>
        <comment>seconds</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seconds between two backups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Interval:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditingOptionPage</name>
    <message>
        <source>Editing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste SVG as freeform shapes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal breakpoints</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical breakpoints</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore the default breakpoints</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, in pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::CommandLine</name>
    <message>
        <source>Look for plug-ins here too; may be repeated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load only this plug-in and what it needs; may be repeated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave this plug-in out; may be repeated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the user&apos;s settings here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print how long each plug-in takes to start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start even when the program is already running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print this help and exit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projects to open.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::PluginManager</name>
    <message>
        <source>--help lists the options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No plug-in could be loaded from %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot start.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::SingleInstance</name>
    <message>
        <source>There is no safe place for the socket on which other starts could be heard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command line is too long to hand over to a running instance.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The running instance does not answer; another one is started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The lock file %1 cannot be had; another instance is started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The running instance cannot be reached (%1); another one is started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other starts cannot be heard on %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GeneralOptionPage</name>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another language takes effect at the next start.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IDocument</name>
    <message>
        <source>Save changes made to %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not save project %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IMainMenuWidget</name>
    <message>
        <source>Restore Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KPNotificationBar</name>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File.New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open an existing project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the current project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the current project as a new one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the current project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview Current Scene in Browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview Project in Browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export to HTML5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export to Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Provide a Suggestion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Updates...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The language change will take effect from the next run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to change language.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help document is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open help file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open this file type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project [%1] no longer exists.
Do you want to remove this entry from history?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>The file holds no shortcuts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shortcut of &quot;%1&quot; is no key sequence.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StageCommands</name>
    <message>
        <source>add %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>move</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StageDocument</name>
    <message>
        <source>Could not create project %1.
A stage of %2 by %3 pixels with %4 frames per second is not possible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open project %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not read project %1 again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not save %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Project As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kelpa projects (*%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StageEditor</name>
    <message>
        <source>Sce&amp;ne:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StageFactory</name>
    <message>
        <source>Open Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kelpa projects (*.kelpa)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StageNewDialog</name>
    <message>
        <source>New Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Width (pixels):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Height (pixels):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Frames per second:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Responsive: follow the width of the page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Responsive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Project file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse for the project file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kelpa projects (*%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the name of the project file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the whole path of the project file, with its folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StageOptionsDlg</name>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StagePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StageReader</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is missing; it must be %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be %1, not %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a colour such as &quot;#0080ff&quot;, or &quot;none&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>true or false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the project was written by a newer program (format version %1; this program reads up to %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must hold 1 to %1 scenes, not %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a project may hold %1 elements at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is used by another element</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the path of a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file holds more than %1 values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: not valid JSON (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line 1: the file must hold an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is larger than %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StageToolBar</name>
    <message>
        <source>Add &amp;Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Ellipse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Image...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images (*.svg *.png *.jpg *.jpeg *.gif)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stage</source>
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
        <source>Undo the last change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo the last change undone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete (Del)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project holds as many elements as it can.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StageView</name>
    <message>
        <source>Stage</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n element(s) selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 selected, at %2, %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ThemeMenu</name>
    <message>
        <source>Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Theme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to change theme.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The theme change will take effect from the next run.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
