<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Ausgelassen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>Geladen</translation>
    </message>
    <message>
        <source>Initialized</source>
        <translation>Initialisiert</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Qt %1 (built with %2)</source>
        <translation>Qt %1 (erstellt mit %2)</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Plug-in</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>AppearancePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>Es gibt kein Hauptfenster.</translation>
    </message>
</context>
<context>
    <name>BackupOptionPage</name>
    <message>
        <source>Backup</source>
        <translation>Sicherung</translation>
    </message>
    <message>
        <source>&amp;Back up open projects automatically</source>
        <translation>Offene Projekte &amp;automatisch sichern</translation>
    </message>
    <message>
        <source> s</source>
        <comment>seconds</comment>
        <translation> s</translation>
    </message>
    <message>
        <source>Seconds between two backups</source>
        <translation>Sekunden zwischen zwei Sicherungen</translation>
    </message>
    <message>
        <source>&amp;Interval:</source>
        <translation>Ab&amp;stand:</translation>
    </message>
</context>
<context>
    <name>CorePlugin</name>
    <message>
        <source>Something failed: %1</source>
        <translation>Etwas ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; failed: %2</source>
        <comment>a command, a reason</comment>
        <translation>„%1“ ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read or written.</source>
        <translation>Die Einstellungen in %1 können nicht gelesen oder geschrieben werden.</translation>
    </message>
    <message>
        <source>These plug-ins could not be started: %1.</source>
        <translation>Diese Plug-ins konnten nicht gestartet werden: %1.</translation>
    </message>
</context>
<context>
    <name>Downloader</name>
    <message>
        <source>Downloading Updates</source>
        <translation>Updates werden heruntergeladen</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>Fortschritt des Downloads</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>Verbleibende Zeit</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Cannot download update: %1.</source>
        <translation>Das Update kann nicht heruntergeladen werden: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address of the web</source>
        <translation>&quot;%1&quot; ist keine Webadresse</translation>
    </message>
    <message>
        <source>The update is not installed: %1.</source>
        <translation>Das Update wird nicht installiert: %1.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Cannot download update: the folder %1 cannot be made.</source>
        <translation>Das Update kann nicht heruntergeladen werden: Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Cannot replace %1: %2.</source>
        <translation>%1 kann nicht ersetzt werden: %2.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>of</source>
        <translation>von</translation>
    </message>
    <message>
        <source>Cannot write %1: another program has changed it.</source>
        <translation>%1 kann nicht geschrieben werden: Ein anderes Programm hat die Datei geändert.</translation>
    </message>
    <message>
        <source>the server answered with status %1</source>
        <translation>der Server antwortete mit dem Status %1</translation>
    </message>
    <message>
        <source>%1 is incomplete</source>
        <translation>%1 ist unvollständig</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 ist leer</translation>
    </message>
    <message>
        <source>Cannot rename %1 to %2: %3.</source>
        <translation>%1 kann nicht in %2 umbenannt werden: %3.</translation>
    </message>
    <message>
        <source>Checking the signature</source>
        <translation>Die Signatur wird geprüft</translation>
    </message>
    <message>
        <source>%1 was deleted, because %2</source>
        <translation>%1 wurde gelöscht, denn %2</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Download complete!</source>
        <translation>Download abgeschlossen!</translation>
    </message>
    <message>
        <source>The installer will open separately</source>
        <translation>Das Installationsprogramm öffnet sich gesondert</translation>
    </message>
    <message>
        <source>In order to install the update, you need to quit the application.</source>
        <translation>Um das Update zu installieren, müssen Sie das Programm beenden.</translation>
    </message>
    <message>
        <source>Click OK to begin installing the update.</source>
        <translation>Klicken Sie auf OK, um mit der Installation des Updates zu beginnen.</translation>
    </message>
    <message>
        <source>Click Open to apply the update.</source>
        <translation>Klicken Sie auf Öffnen, um das Update anzuwenden.</translation>
    </message>
    <message>
        <source>Cannot find downloaded update!</source>
        <translation>Das heruntergeladene Update ist nicht zu finden!</translation>
    </message>
    <message>
        <source>%1 could not be opened.</source>
        <translation>%1 konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the download?</source>
        <translation>Möchten Sie den Download wirklich abbrechen?</translation>
    </message>
    <message>
        <source>this build cannot check signatures</source>
        <translation>diese Ausgabe des Programms kann keine Signaturen prüfen</translation>
    </message>
    <message>
        <source>the key to check its signature with is damaged</source>
        <translation>der Schlüssel zum Prüfen seiner Signatur ist beschädigt</translation>
    </message>
    <message>
        <source>it has no signature</source>
        <translation>es hat keine Signatur</translation>
    </message>
    <message>
        <source>its check sum is not the announced one</source>
        <translation>die Prüfsumme ist nicht die angekündigte</translation>
    </message>
    <message>
        <source>its signature is not valid</source>
        <translation>die Signatur ist ungültig</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Byte</translation>
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
        <translation>Etwa %1 Stunden</translation>
    </message>
    <message>
        <source>About one hour</source>
        <translation>Etwa eine Stunde</translation>
    </message>
    <message>
        <source>About %1 minutes</source>
        <translation>Etwa %1 Minuten</translation>
    </message>
    <message>
        <source>About 1 minute</source>
        <translation>Etwa 1 Minute</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 Sekunden</translation>
    </message>
    <message>
        <source>1 second</source>
        <translation>1 Sekunde</translation>
    </message>
    <message>
        <source>more than %1 redirects</source>
        <translation>mehr als %1 Weiterleitungen</translation>
    </message>
    <message>
        <source>a redirect to &quot;%1&quot;, which is no address of the web</source>
        <translation>eine Weiterleitung zu &quot;%1&quot;, was keine Webadresse ist</translation>
    </message>
    <message>
        <source>a redirect from a secure address to &quot;%1&quot;, which is not</source>
        <translation>eine Weiterleitung von einer sicheren Adresse zu &quot;%1&quot;, die es nicht ist</translation>
    </message>
    <message>
        <source>There is no program to open %1 with.</source>
        <translation>Es gibt kein Programm, mit dem sich %1 öffnen lässt.</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>es ist größer als %1 Byte</translation>
    </message>
</context>
<context>
    <name>EditingOptionPage</name>
    <message>
        <source>Editing</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Paste SVG as freeform shapes</source>
        <translation>SVG als &amp;Freiform einfügen</translation>
    </message>
    <message>
        <source>Horizontal breakpoints</source>
        <translation>Waagerechte Umbruchpunkte</translation>
    </message>
    <message>
        <source>Vertical breakpoints</source>
        <translation>Senkrechte Umbruchpunkte</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation>&amp;Vorgaben wiederherstellen</translation>
    </message>
    <message>
        <source>Restore the default breakpoints</source>
        <translation>Die vorgegebenen Umbruchpunkte wiederherstellen</translation>
    </message>
    <message>
        <source>%1, in pixels</source>
        <translation>%1, in Pixeln</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::CommandLine</name>
    <message>
        <source>Look for plug-ins here too; may be repeated.</source>
        <translation>Auch hier nach Plug-ins suchen; mehrfach möglich.</translation>
    </message>
    <message>
        <source>Load only this plug-in and what it needs; may be repeated.</source>
        <translation>Nur dieses Plug-in laden und was es braucht; mehrfach möglich.</translation>
    </message>
    <message>
        <source>Leave this plug-in out; may be repeated.</source>
        <translation>Dieses Plug-in weglassen; mehrfach möglich.</translation>
    </message>
    <message>
        <source>Keep the user&apos;s settings here.</source>
        <translation>Die Einstellungen des Benutzers hier aufbewahren.</translation>
    </message>
    <message>
        <source>Print how long each plug-in takes to start.</source>
        <translation>Ausgeben, wie lange jedes Plug-in zum Start braucht.</translation>
    </message>
    <message>
        <source>Start even when the program is already running.</source>
        <translation>Auch dann starten, wenn das Programm schon läuft.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <translation>Die Version ausgeben und beenden.</translation>
    </message>
    <message>
        <source>Print this help and exit.</source>
        <translation>Diese Hilfe ausgeben und beenden.</translation>
    </message>
    <message>
        <source>Projects to open.</source>
        <translation>Zu öffnende Projekte.</translation>
    </message>
    <message>
        <source>Do not show the home page in this run.</source>
        <translation>Die Startseite in diesem Lauf nicht zeigen.</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::PluginManager</name>
    <message>
        <source>--help lists the options.</source>
        <translation>--help nennt die Optionen.</translation>
    </message>
    <message>
        <source>No plug-in could be loaded from %1.</source>
        <translation>Aus %1 konnte kein Plug-in geladen werden.</translation>
    </message>
    <message>
        <source>%1 cannot start.</source>
        <translation>%1 kann nicht starten.</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::SingleInstance</name>
    <message>
        <source>There is no safe place for the socket on which other starts could be heard.</source>
        <translation>Es gibt keinen sicheren Ort für den Socket, über den weitere Starts zu hören wären.</translation>
    </message>
    <message>
        <source>The command line is too long to hand over to a running instance.</source>
        <translation>Die Befehlszeile ist zu lang, um sie an ein laufendes Programm zu übergeben.</translation>
    </message>
    <message>
        <source>The running instance does not answer; another one is started.</source>
        <translation>Das laufende Programm antwortet nicht; ein weiteres wird gestartet.</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be had; another instance is started.</source>
        <translation>Die Sperrdatei %1 ist nicht zu bekommen; ein weiteres Programm wird gestartet.</translation>
    </message>
    <message>
        <source>The running instance cannot be reached (%1); another one is started.</source>
        <translation>Das laufende Programm ist nicht zu erreichen (%1); ein weiteres wird gestartet.</translation>
    </message>
    <message>
        <source>Other starts cannot be heard on %1: %2</source>
        <translation>Weitere Starts sind über %1 nicht zu hören: %2</translation>
    </message>
</context>
<context>
    <name>Feedback</name>
    <message>
        <source>The address &quot;%1&quot; cannot be opened.</source>
        <translation>Die Adresse &quot;%1&quot; kann nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>GeneralOptionPage</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Another language takes effect at the next start.</source>
        <translation>Eine andere Sprache gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Failed to change language.</source>
        <translation>Die Sprache konnte nicht geändert werden.</translation>
    </message>
</context>
<context>
    <name>IDocument</name>
    <message>
        <source>Save changes made to %1?</source>
        <translation>Änderungen an %1 speichern?</translation>
    </message>
    <message>
        <source>Could not save project %1.</source>
        <translation>Das Projekt %1 konnte nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>IMainMdiArea</name>
    <message>
        <source>Could not open file %1.</source>
        <translation>Die Datei %1 konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The project [%1] no longer exists.
Do you want to remove this entry from history?</source>
        <translation>Das Projekt [%1] gibt es nicht mehr.
Soll der Eintrag aus dem Verlauf entfernt werden?</translation>
    </message>
    <message>
        <source>Could not find the requested file.</source>
        <translation>Die gewünschte Datei wurde nicht gefunden.</translation>
    </message>
</context>
<context>
    <name>IMainMenuWidget</name>
    <message>
        <source>Restore Down</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>More menus</source>
        <translation>Weitere Menüs</translation>
    </message>
</context>
<context>
    <name>KPNotificationBar</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>KPReleaseNoteDlg</name>
    <message>
        <source>&lt;h2&gt;Failed to load release notes.&lt;/h2&gt;</source>
        <translation>&lt;h2&gt;Die Versionshinweise konnten nicht geladen werden.&lt;/h2&gt;</translation>
    </message>
</context>
<context>
    <name>KPReleaseNoteUI</name>
    <message>
        <source>Update Available</source>
        <translation>Update verfügbar</translation>
    </message>
    <message>
        <source>Release Notes</source>
        <translation>Versionshinweise</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Diese Version überspringen</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Später erinnern</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Zuletzt geöffnete Projekte</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>File.New</source>
        <translation>File.New</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation>Ein neues Projekt anlegen</translation>
    </message>
    <message>
        <source>&amp;Open Project</source>
        <translation>Projekt &amp;öffnen</translation>
    </message>
    <message>
        <source>Open an existing project</source>
        <translation>Ein vorhandenes Projekt öffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the current project</source>
        <translation>Das aktuelle Projekt speichern</translation>
    </message>
    <message>
        <source>Other Project</source>
        <translation>Anderes Projekt</translation>
    </message>
    <message>
        <source>Save the current project as a new one</source>
        <translation>Das aktuelle Projekt als neues speichern</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close the current project</source>
        <translation>Das aktuelle Projekt schließen</translation>
    </message>
    <message>
        <source>Preview Current Scene in Browser</source>
        <translation>Aktuelle Szene im Browser ansehen</translation>
    </message>
    <message>
        <source>Preview Project in Browser</source>
        <translation>Projekt im Browser ansehen</translation>
    </message>
    <message>
        <source>Export to HTML5</source>
        <translation>Als HTML5 exportieren</translation>
    </message>
    <message>
        <source>Export to Video</source>
        <translation>Als Video exportieren</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Das Programm beenden</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Help Contents</source>
        <translation>Inhalt der Hilfe</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Ein Problem melden</translation>
    </message>
    <message>
        <source>Provide a Suggestion</source>
        <translation>Einen Vorschlag machen</translation>
    </message>
    <message>
        <source>Check Updates...</source>
        <translation>Nach Updates suchen...</translation>
    </message>
    <message>
        <source>The language change will take effect from the next run.</source>
        <translation>Die neue Sprache gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Failed to change language.</source>
        <translation>Die Sprache konnte nicht geändert werden.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Help document is missing.</source>
        <translation>Das Hilfedokument fehlt.</translation>
    </message>
    <message>
        <source>Could not open help file.</source>
        <translation>Die Hilfedatei konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Cannot open this file type.</source>
        <translation>Dieser Dateityp kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The project [%1] no longer exists.
Do you want to remove this entry from history?</source>
        <translation>Das Projekt [%1] gibt es nicht mehr.
Soll der Eintrag aus dem Verlauf entfernt werden?</translation>
    </message>
    <message>
        <source>Tool Bars</source>
        <translation>Symbolleisten</translation>
    </message>
</context>
<context>
    <name>RecentList</name>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>&amp;Zuletzt geöffnete Projekte</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Zuletzt geöffnete Projekte</translation>
    </message>
    <message>
        <source>The home page cannot be shown here: parts of the browser engine are missing or fail. Your projects are listed instead.</source>
        <translation>Die Startseite kann hier nicht gezeigt werden: Teile des Browsers fehlen oder versagen. Stattdessen sind Ihre Projekte aufgelistet.</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>The file holds no shortcuts.</source>
        <translation>Die Datei enthält keine Tastenkürzel.</translation>
    </message>
    <message>
        <source>The shortcut of &quot;%1&quot; is no key sequence.</source>
        <translation>Das Kürzel von &quot;%1&quot; ist keine Tastenfolge.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Die Datei ist zu groß.</translation>
    </message>
</context>
<context>
    <name>StageCommands</name>
    <message>
        <source>add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>löschen</translation>
    </message>
    <message>
        <source>move</source>
        <translation>bewegen</translation>
    </message>
</context>
<context>
    <name>StageDocument</name>
    <message>
        <source>Could not create project %1.
A stage of %2 by %3 pixels with %4 frames per second is not possible.</source>
        <translation>Das Projekt %1 konnte nicht angelegt werden.
Eine Bühne von %2 mal %3 Pixeln mit %4 Bildern pro Sekunde ist nicht möglich.</translation>
    </message>
    <message>
        <source>Scene 1</source>
        <translation>Szene 1</translation>
    </message>
    <message>
        <source>Could not open project %1.</source>
        <translation>Das Projekt %1 konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Could not read project %1 again.</source>
        <translation>Das Projekt %1 konnte nicht noch einmal gelesen werden.</translation>
    </message>
    <message>
        <source>Could not save %1: %2</source>
        <translation>%1 konnte nicht gespeichert werden: %2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Save Project As</source>
        <translation>Projekt speichern unter</translation>
    </message>
    <message>
        <source>Kelpa projects (*%1)</source>
        <translation>Kelpa-Projekte (*%1)</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 gibt es schon. Ersetzen?</translation>
    </message>
    <message>
        <source>%1 is open. Close it first.</source>
        <translation>%1 ist geöffnet. Schließen Sie die Datei zuerst.</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>No backup of %1: %2</source>
        <translation>Keine Sicherungskopie von %1: %2</translation>
    </message>
</context>
<context>
    <name>StageEditor</name>
    <message>
        <source>Sce&amp;ne:</source>
        <translation>S&amp;zene:</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
</context>
<context>
    <name>StageFactory</name>
    <message>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Kelpa projects (*.kelpa)</source>
        <translation>Kelpa-Projekte (*.kelpa)</translation>
    </message>
</context>
<context>
    <name>StageNewDialog</name>
    <message>
        <source>New Project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>&amp;Width (pixels):</source>
        <translation>B&amp;reite (Pixel):</translation>
    </message>
    <message>
        <source>&amp;Height (pixels):</source>
        <translation>&amp;Höhe (Pixel):</translation>
    </message>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>&amp;Bilder pro Sekunde:</translation>
    </message>
    <message>
        <source>&amp;Responsive: follow the width of the page</source>
        <translation>R&amp;esponsiv: der Breite der Seite folgen</translation>
    </message>
    <message>
        <source>Responsive</source>
        <translation>Responsiv</translation>
    </message>
    <message>
        <source>What is missing</source>
        <translation>Was noch fehlt</translation>
    </message>
    <message>
        <source>&amp;Project file:</source>
        <translation>&amp;Projektdatei:</translation>
    </message>
    <message>
        <source>Project file</source>
        <translation>Projektdatei</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>unbenannt</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Browse for the project file</source>
        <translation>Die Projektdatei suchen</translation>
    </message>
    <message>
        <source>Kelpa projects (*%1)</source>
        <translation>Kelpa-Projekte (*%1)</translation>
    </message>
    <message>
        <source>Enter the name of the project file.</source>
        <translation>Geben Sie den Namen der Projektdatei ein.</translation>
    </message>
    <message>
        <source>Enter the whole path of the project file, with its folder.</source>
        <translation>Geben Sie den ganzen Pfad der Projektdatei ein, mit ihrem Ordner.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>Den Ordner %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>In den Ordner %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 ist keine Datei.</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 gibt es schon. Ersetzen?</translation>
    </message>
    <message>
        <source>%1 is open. Close it first.</source>
        <translation>%1 ist geöffnet. Schließen Sie die Datei zuerst.</translation>
    </message>
</context>
<context>
    <name>StageOptionPage</name>
    <message>
        <source>The settings could not be saved.</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>StageOptionsDlg</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>StagePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>Es gibt kein Hauptfenster.</translation>
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
        <translation>fehlt; erwartet wird %1</translation>
    </message>
    <message>
        <source>must be %1, not %2</source>
        <translation>muss %1 sein, nicht %2</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>eine Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>eine ganze Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation>ein Text von %1 bis %2 Zeichen</translation>
    </message>
    <message>
        <source>a colour such as &quot;#0080ff&quot;, or &quot;none&quot;</source>
        <translation>eine Farbe wie &quot;#0080ff&quot;, oder &quot;none&quot;</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>eines von %1</translation>
    </message>
    <message>
        <source>the project was written by a newer program (format version %1; this program reads up to %2)</source>
        <translation>das Projekt stammt von einem neueren Programm (Formatversion %1; dieses Programm liest bis %2)</translation>
    </message>
    <message>
        <source>must hold 1 to %1 scenes, not %2</source>
        <translation>muss 1 bis %1 Szenen enthalten, nicht %2</translation>
    </message>
    <message>
        <source>a project may hold %1 elements at most</source>
        <translation>ein Projekt darf höchstens %1 Elemente enthalten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is used by another element</source>
        <translation>&quot;%1&quot; gehört schon einem anderen Element</translation>
    </message>
    <message>
        <source>the path of a file</source>
        <translation>der Pfad einer Datei</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>the file holds more than %1 values</source>
        <translation>die Datei enthält mehr als %1 Werte</translation>
    </message>
    <message>
        <source>%1: not valid JSON (%2)</source>
        <translation>%1: kein gültiges JSON (%2)</translation>
    </message>
    <message>
        <source>line 1: the file must hold an object</source>
        <translation>Zeile 1: die Datei muss ein Objekt enthalten</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>die Datei gibt es nicht</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the file is larger than %1</source>
        <translation>die Datei ist größer als %1</translation>
    </message>
</context>
<context>
    <name>StageToolBar</name>
    <message>
        <source>Add Re&amp;ctangle</source>
        <translation>Rec&amp;hteck hinzufügen</translation>
    </message>
    <message>
        <source>Add &amp;Ellipse</source>
        <translation>Elli&amp;pse hinzufügen</translation>
    </message>
    <message>
        <source>Add &amp;Text</source>
        <translation>&amp;Text hinzufügen</translation>
    </message>
    <message>
        <source>Add &amp;Image...</source>
        <translation>B&amp;ild hinzufügen...</translation>
    </message>
    <message>
        <source>Add Image</source>
        <translation>Bild hinzufügen</translation>
    </message>
    <message>
        <source>Images (*.svg *.png *.jpg *.jpeg *.gif)</source>
        <translation>Bilder (*.svg *.png *.jpg *.jpeg *.gif)</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>Bühne</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>Die letzte Änderung rückgängig machen</translation>
    </message>
    <message>
        <source>Redo the last change undone</source>
        <translation>Die letzte rückgängig gemachte Änderung wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete (Del)</source>
        <translation>Löschen (Entf)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>The project holds as many elements as it can.</source>
        <translation>Das Projekt enthält so viele Elemente, wie es kann.</translation>
    </message>
</context>
<context>
    <name>StageView</name>
    <message>
        <source>Stage</source>
        <translation>Bühne</translation>
    </message>
    <message numerus="yes">
        <source>%n element(s) selected</source>
        <translation>
            <numerusform>%n Element ausgewählt</numerusform>
            <numerusform>%n Elemente ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 selected, at %2, %3</source>
        <translation>%1 ausgewählt, bei %2, %3</translation>
    </message>
</context>
<context>
    <name>ThemeMenu</name>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Failed to change theme.</source>
        <translation>Das Erscheinungsbild konnte nicht geändert werden.</translation>
    </message>
    <message>
        <source>The theme change will take effect from the next run.</source>
        <translation>Das neue Erscheinungsbild gilt ab dem nächsten Start.</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <source>May Kelpa Studio look for a new version once a day?</source>
        <translation>Darf Kelpa Studio einmal am Tag nach einer neuen Version suchen?</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Erlauben</translation>
    </message>
    <message>
        <source>No address to look for updates is set. You can set it in the preferences, under Updates.</source>
        <translation>Es ist keine Adresse für die Suche nach Updates eingestellt. Sie können sie in den Einstellungen unter Updates angeben.</translation>
    </message>
    <message>
        <source>Looking for a new version...</source>
        <translation>Nach einer neuen Version wird gesucht...</translation>
    </message>
    <message>
        <source>Cannot reach %1: no answer within %2 seconds.</source>
        <translation>%1 ist nicht zu erreichen: keine Antwort innerhalb von %2 Sekunden.</translation>
    </message>
    <message>
        <source>You are running the latest version of %1, %2.</source>
        <translation>Sie verwenden die neueste Version von %1, %2.</translation>
    </message>
    <message>
        <source>%1 %2 has been released.</source>
        <translation>%1 %2 ist erschienen.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>sie ist größer als %1 Byte</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 bei Byte %2</translation>
    </message>
    <message>
        <source>it names no version for &quot;%1&quot;</source>
        <translation>sie nennt keine Version für &quot;%1&quot;</translation>
    </message>
    <message>
        <source>it was given up</source>
        <translation>der Versuch wurde abgebrochen</translation>
    </message>
    <message>
        <source>the answer is larger than %1 bytes</source>
        <translation>die Antwort ist größer als %1 Byte</translation>
    </message>
    <message>
        <source>Cannot reach %1: %2.</source>
        <translation>%1 ist nicht zu erreichen: %2.</translation>
    </message>
    <message>
        <source>no answer within %1 seconds</source>
        <translation>keine Antwort innerhalb von %1 Sekunden</translation>
    </message>
    <message>
        <source>%1 is not a valid feed: %2.</source>
        <translation>%1 ist keine gültige Update-Liste: %2.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1 %2 has been released!&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1 %2 ist erschienen!&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Congratulations! You are running the latest version of %1</source>
        <translation>Glückwunsch! Sie verwenden die neueste Version von %1</translation>
    </message>
    <message>
        <source>No updates are available at the moment.</source>
        <translation>Im Augenblick gibt es keine Updates.</translation>
    </message>
</context>
<context>
    <name>UpdatesPage</name>
    <message>
        <source>&amp;Look for a new version once a day</source>
        <translation>Einmal am Tag &amp;nach einer neuen Version suchen</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>&amp;Address of the updates:</source>
        <translation>&amp;Adresse der Updates:</translation>
    </message>
    <message>
        <source>Address for &amp;problems:</source>
        <translation>Adresse für &amp;Probleme:</translation>
    </message>
    <message>
        <source>Address for &amp;suggestions:</source>
        <translation>Adresse für &amp;Vorschläge:</translation>
    </message>
</context>
<context>
    <name>UpdatesPlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>Es gibt kein Hauptfenster.</translation>
    </message>
    <message>
        <source>Check Updates...</source>
        <translation>Nach Updates suchen...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Ein Problem melden</translation>
    </message>
    <message>
        <source>Provide a Suggestion</source>
        <translation>Einen Vorschlag machen</translation>
    </message>
</context>
<context>
    <name>WelcomeOptionPage</name>
    <message>
        <source>&amp;Show the home page while no project is open</source>
        <translation>&amp;Startseite zeigen, solange kein Projekt geöffnet ist</translation>
    </message>
    <message>
        <source>Home Page</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation>Eine Änderung gilt ab dem nächsten Start.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Animations for the web, drawn by you</source>
        <translation>Animationen fürs Web, von Ihnen gezeichnet</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Zuletzt geöffnete Projekte</translation>
    </message>
    <message>
        <source>Projects that you create or open will be listed here.</source>
        <translation>Projekte, die Sie anlegen oder öffnen, werden hier aufgeführt.</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>%1 im Ordner zeigen</translation>
    </message>
    <message>
        <source>Remove %1 from the list</source>
        <translation>%1 aus der Liste entfernen</translation>
    </message>
    <message>
        <source>%1 was removed from the list.</source>
        <translation>%1 wurde aus der Liste entfernt.</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>On the web</source>
        <translation>Im Web</translation>
    </message>
    <message>
        <source>Home Page</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Community</source>
        <translation>Community</translation>
    </message>
    <message>
        <source>Demo Projects</source>
        <translation>Demoprojekte</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Neuigkeiten</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>The page has lost the program and is trying to reach it again.</source>
        <translation>Die Seite hat die Verbindung zum Programm verloren und versucht, es wieder zu erreichen.</translation>
    </message>
    <message>
        <source>The page has reached the program again.</source>
        <translation>Die Seite hat das Programm wieder erreicht.</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Landschaft</translation>
    </message>
    <message>
        <source>A morning in layers: hills, clouds and trees</source>
        <translation>Ein Morgen in Ebenen: Hügel, Wolken und Bäume</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Banner</translation>
    </message>
    <message>
        <source>Two scenes for the top of a page</source>
        <translation>Zwei Szenen für den Kopf einer Seite</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>A card that follows the width of its page</source>
        <translation>Eine Karte, die der Breite ihrer Seite folgt</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
</context>
<context>
    <name>WelcomePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>Es gibt kein Hauptfenster.</translation>
    </message>
</context>
</TS>
