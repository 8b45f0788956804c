<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Found</source>
        <translation>Encontrado</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Omitido</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Con errores</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>Cargado</translation>
    </message>
    <message>
        <source>Initialized</source>
        <translation>Inicializado</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En marcha</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Qt %1 (built with %2)</source>
        <translation>Qt %1 (compilado con %2)</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Complementos</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Complemento</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
</context>
<context>
    <name>AppearancePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>No hay ninguna ventana principal.</translation>
    </message>
</context>
<context>
    <name>BackupOptionPage</name>
    <message>
        <source>Backup</source>
        <translation>Copia de seguridad</translation>
    </message>
    <message>
        <source>&amp;Back up open projects automatically</source>
        <translation>Hacer &amp;copias de seguridad de los proyectos abiertos</translation>
    </message>
    <message>
        <source> s</source>
        <comment>seconds</comment>
        <translation> s</translation>
    </message>
    <message>
        <source>Seconds between two backups</source>
        <translation>Segundos entre dos copias de seguridad</translation>
    </message>
    <message>
        <source>&amp;Interval:</source>
        <translation>&amp;Intervalo:</translation>
    </message>
</context>
<context>
    <name>CorePlugin</name>
    <message>
        <source>Something failed: %1</source>
        <translation>Algo ha fallado: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; failed: %2</source>
        <comment>a command, a reason</comment>
        <translation>«%1» ha fallado: %2</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read or written.</source>
        <translation>No se puede leer o escribir la configuración en %1.</translation>
    </message>
    <message>
        <source>These plug-ins could not be started: %1.</source>
        <translation>No se pudieron iniciar estos complementos: %1.</translation>
    </message>
</context>
<context>
    <name>Downloader</name>
    <message>
        <source>Downloading Updates</source>
        <translation>Descargando actualizaciones</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>Progreso de la descarga</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>Tiempo restante</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Cannot download update: %1.</source>
        <translation>No se puede descargar la actualización: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address of the web</source>
        <translation>&quot;%1&quot; no es una dirección web</translation>
    </message>
    <message>
        <source>The update is not installed: %1.</source>
        <translation>La actualización no se instala: %1.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Cannot download update: the folder %1 cannot be made.</source>
        <translation>No se puede descargar la actualización: no se puede crear la carpeta %1.</translation>
    </message>
    <message>
        <source>Cannot replace %1: %2.</source>
        <translation>No se puede reemplazar %1: %2.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>No se puede escribir %1: %2.</translation>
    </message>
    <message>
        <source>of</source>
        <translation>de</translation>
    </message>
    <message>
        <source>Cannot write %1: another program has changed it.</source>
        <translation>No se puede escribir %1: otro programa lo ha modificado.</translation>
    </message>
    <message>
        <source>the server answered with status %1</source>
        <translation>el servidor respondió con el estado %1</translation>
    </message>
    <message>
        <source>%1 is incomplete</source>
        <translation>%1 está incompleto</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 está vacío</translation>
    </message>
    <message>
        <source>Cannot rename %1 to %2: %3.</source>
        <translation>No se puede cambiar el nombre de %1 a %2: %3.</translation>
    </message>
    <message>
        <source>Checking the signature</source>
        <translation>Comprobando la firma</translation>
    </message>
    <message>
        <source>%1 was deleted, because %2</source>
        <translation>se eliminó %1 porque %2</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Download complete!</source>
        <translation>¡Descarga completa!</translation>
    </message>
    <message>
        <source>The installer will open separately</source>
        <translation>El instalador se abrirá por separado</translation>
    </message>
    <message>
        <source>In order to install the update, you need to quit the application.</source>
        <translation>Para instalar la actualización, debe salir del programa.</translation>
    </message>
    <message>
        <source>Click OK to begin installing the update.</source>
        <translation>Haga clic en Aceptar para empezar a instalar la actualización.</translation>
    </message>
    <message>
        <source>Click Open to apply the update.</source>
        <translation>Haga clic en Abrir para aplicar la actualización.</translation>
    </message>
    <message>
        <source>Cannot find downloaded update!</source>
        <translation>¡No se encuentra la actualización descargada!</translation>
    </message>
    <message>
        <source>%1 could not be opened.</source>
        <translation>No se pudo abrir %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the download?</source>
        <translation>¿Seguro que quiere cancelar la descarga?</translation>
    </message>
    <message>
        <source>this build cannot check signatures</source>
        <translation>esta edición del programa no puede comprobar firmas</translation>
    </message>
    <message>
        <source>the key to check its signature with is damaged</source>
        <translation>la clave para comprobar su firma está dañada</translation>
    </message>
    <message>
        <source>it has no signature</source>
        <translation>no tiene firma</translation>
    </message>
    <message>
        <source>its check sum is not the announced one</source>
        <translation>su suma de comprobación no es la anunciada</translation>
    </message>
    <message>
        <source>its signature is not valid</source>
        <translation>su firma no es válida</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
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
        <translation>Unas %1 horas</translation>
    </message>
    <message>
        <source>About one hour</source>
        <translation>Alrededor de una hora</translation>
    </message>
    <message>
        <source>About %1 minutes</source>
        <translation>Unos %1 minutos</translation>
    </message>
    <message>
        <source>About 1 minute</source>
        <translation>Alrededor de 1 minuto</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 segundos</translation>
    </message>
    <message>
        <source>1 second</source>
        <translation>1 segundo</translation>
    </message>
    <message>
        <source>more than %1 redirects</source>
        <translation>más de %1 redirecciones</translation>
    </message>
    <message>
        <source>a redirect to &quot;%1&quot;, which is no address of the web</source>
        <translation>una redirección a &quot;%1&quot;, que no es una dirección web</translation>
    </message>
    <message>
        <source>a redirect from a secure address to &quot;%1&quot;, which is not</source>
        <translation>una redirección de una dirección segura a &quot;%1&quot;, que no lo es</translation>
    </message>
    <message>
        <source>There is no program to open %1 with.</source>
        <translation>No hay ningún programa con el que abrir %1.</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>ocupa más de %1 bytes</translation>
    </message>
</context>
<context>
    <name>EditingOptionPage</name>
    <message>
        <source>Editing</source>
        <translation>Edición</translation>
    </message>
    <message>
        <source>&amp;Paste SVG as freeform shapes</source>
        <translation>&amp;Pegar SVG como formas libres</translation>
    </message>
    <message>
        <source>Horizontal breakpoints</source>
        <translation>Puntos de ruptura horizontales</translation>
    </message>
    <message>
        <source>Vertical breakpoints</source>
        <translation>Puntos de ruptura verticales</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation>&amp;Restablecer valores</translation>
    </message>
    <message>
        <source>Restore the default breakpoints</source>
        <translation>Restablecer los puntos de ruptura predeterminados</translation>
    </message>
    <message>
        <source>%1, in pixels</source>
        <translation>%1, en píxeles</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::CommandLine</name>
    <message>
        <source>Look for plug-ins here too; may be repeated.</source>
        <translation>Buscar complementos también aquí; se puede repetir.</translation>
    </message>
    <message>
        <source>Load only this plug-in and what it needs; may be repeated.</source>
        <translation>Cargar solo este complemento y lo que necesita; se puede repetir.</translation>
    </message>
    <message>
        <source>Leave this plug-in out; may be repeated.</source>
        <translation>Omitir este complemento; se puede repetir.</translation>
    </message>
    <message>
        <source>Keep the user&apos;s settings here.</source>
        <translation>Guardar aquí la configuración del usuario.</translation>
    </message>
    <message>
        <source>Print how long each plug-in takes to start.</source>
        <translation>Mostrar cuánto tarda en iniciarse cada complemento.</translation>
    </message>
    <message>
        <source>Start even when the program is already running.</source>
        <translation>Iniciar aunque el programa ya esté en marcha.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <translation>Mostrar la versión y salir.</translation>
    </message>
    <message>
        <source>Print this help and exit.</source>
        <translation>Mostrar esta ayuda y salir.</translation>
    </message>
    <message>
        <source>Projects to open.</source>
        <translation>Proyectos que se abrirán.</translation>
    </message>
    <message>
        <source>Do not show the home page in this run.</source>
        <translation>No mostrar la página de inicio en esta ejecución.</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::PluginManager</name>
    <message>
        <source>--help lists the options.</source>
        <translation>--help muestra las opciones.</translation>
    </message>
    <message>
        <source>No plug-in could be loaded from %1.</source>
        <translation>No se pudo cargar ningún complemento de %1.</translation>
    </message>
    <message>
        <source>%1 cannot start.</source>
        <translation>%1 no puede iniciarse.</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::SingleInstance</name>
    <message>
        <source>There is no safe place for the socket on which other starts could be heard.</source>
        <translation>No hay un lugar seguro para el socket por el que se oirían otros inicios.</translation>
    </message>
    <message>
        <source>The command line is too long to hand over to a running instance.</source>
        <translation>La línea de órdenes es demasiado larga para entregarla a un programa en marcha.</translation>
    </message>
    <message>
        <source>The running instance does not answer; another one is started.</source>
        <translation>El programa en marcha no responde; se inicia otro.</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be had; another instance is started.</source>
        <translation>No se puede obtener el archivo de bloqueo %1; se inicia otro programa.</translation>
    </message>
    <message>
        <source>The running instance cannot be reached (%1); another one is started.</source>
        <translation>No se puede contactar con el programa en marcha (%1); se inicia otro.</translation>
    </message>
    <message>
        <source>Other starts cannot be heard on %1: %2</source>
        <translation>No se pueden oír otros inicios en %1: %2</translation>
    </message>
</context>
<context>
    <name>Feedback</name>
    <message>
        <source>The address &quot;%1&quot; cannot be opened.</source>
        <translation>No se puede abrir la dirección &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>GeneralOptionPage</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Another language takes effect at the next start.</source>
        <translation>El nuevo idioma se aplica al volver a iniciar el programa.</translation>
    </message>
    <message>
        <source>Failed to change language.</source>
        <translation>No se pudo cambiar el idioma.</translation>
    </message>
</context>
<context>
    <name>IDocument</name>
    <message>
        <source>Save changes made to %1?</source>
        <translation>¿Guardar los cambios de %1?</translation>
    </message>
    <message>
        <source>Could not save project %1.</source>
        <translation>No se pudo guardar el proyecto %1.</translation>
    </message>
</context>
<context>
    <name>IMainMdiArea</name>
    <message>
        <source>Could not open file %1.</source>
        <translation>No se pudo abrir el archivo %1.</translation>
    </message>
    <message>
        <source>The project [%1] no longer exists.
Do you want to remove this entry from history?</source>
        <translation>El proyecto [%1] ya no existe.
¿Quiere quitar esta entrada del historial?</translation>
    </message>
    <message>
        <source>Could not find the requested file.</source>
        <translation>No se encontró el archivo solicitado.</translation>
    </message>
</context>
<context>
    <name>IMainMenuWidget</name>
    <message>
        <source>Restore Down</source>
        <translation>Restaurar tamaño</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>More menus</source>
        <translation>Más menús</translation>
    </message>
</context>
<context>
    <name>KPNotificationBar</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
</context>
<context>
    <name>KPReleaseNoteDlg</name>
    <message>
        <source>&lt;h2&gt;Failed to load release notes.&lt;/h2&gt;</source>
        <translation>&lt;h2&gt;No se pudieron cargar las notas de la versión.&lt;/h2&gt;</translation>
    </message>
</context>
<context>
    <name>KPReleaseNoteUI</name>
    <message>
        <source>Update Available</source>
        <translation>Actualización disponible</translation>
    </message>
    <message>
        <source>Release Notes</source>
        <translation>Notas de la versión</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Omitir esta versión</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Recordar más tarde</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Proyectos recientes</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>File.New</source>
        <translation>File.New</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation>Crear un proyecto nuevo</translation>
    </message>
    <message>
        <source>&amp;Open Project</source>
        <translation>&amp;Abrir proyecto</translation>
    </message>
    <message>
        <source>Open an existing project</source>
        <translation>Abrir un proyecto existente</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save the current project</source>
        <translation>Guardar el proyecto actual</translation>
    </message>
    <message>
        <source>Other Project</source>
        <translation>Otro proyecto</translation>
    </message>
    <message>
        <source>Save the current project as a new one</source>
        <translation>Guardar el proyecto actual como uno nuevo</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Close the current project</source>
        <translation>Cerrar el proyecto actual</translation>
    </message>
    <message>
        <source>Preview Current Scene in Browser</source>
        <translation>Vista previa de la escena actual en el navegador</translation>
    </message>
    <message>
        <source>Preview Project in Browser</source>
        <translation>Vista previa del proyecto en el navegador</translation>
    </message>
    <message>
        <source>Export to HTML5</source>
        <translation>Exportar a HTML5</translation>
    </message>
    <message>
        <source>Export to Video</source>
        <translation>Exportar a vídeo</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Salir del programa</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>&amp;Preferencias</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Help Contents</source>
        <translation>Contenido de la ayuda</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Informar de un problema</translation>
    </message>
    <message>
        <source>Provide a Suggestion</source>
        <translation>Hacer una sugerencia</translation>
    </message>
    <message>
        <source>Check Updates...</source>
        <translation>Buscar actualizaciones...</translation>
    </message>
    <message>
        <source>The language change will take effect from the next run.</source>
        <translation>El cambio de idioma se aplicará la próxima vez que inicie el programa.</translation>
    </message>
    <message>
        <source>Failed to change language.</source>
        <translation>No se pudo cambiar el idioma.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Help document is missing.</source>
        <translation>Falta el documento de ayuda.</translation>
    </message>
    <message>
        <source>Could not open help file.</source>
        <translation>No se pudo abrir el archivo de ayuda.</translation>
    </message>
    <message>
        <source>Cannot open this file type.</source>
        <translation>No se puede abrir este tipo de archivo.</translation>
    </message>
    <message>
        <source>The project [%1] no longer exists.
Do you want to remove this entry from history?</source>
        <translation>El proyecto [%1] ya no existe.
¿Quiere quitar esta entrada del historial?</translation>
    </message>
    <message>
        <source>Tool Bars</source>
        <translation>Barras de herramientas</translation>
    </message>
</context>
<context>
    <name>RecentList</name>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>Proyectos &amp;recientes</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Proyectos recientes</translation>
    </message>
    <message>
        <source>The home page cannot be shown here: parts of the browser engine are missing or fail. Your projects are listed instead.</source>
        <translation>La página de inicio no se puede mostrar aquí: faltan partes del motor del navegador o fallan. En su lugar se muestra la lista de sus proyectos.</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>The file holds no shortcuts.</source>
        <translation>El archivo no contiene atajos.</translation>
    </message>
    <message>
        <source>The shortcut of &quot;%1&quot; is no key sequence.</source>
        <translation>El atajo de &quot;%1&quot; no es una combinación de teclas.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>El archivo es demasiado grande.</translation>
    </message>
</context>
<context>
    <name>StageCommands</name>
    <message>
        <source>add %1</source>
        <translation>añadir %1</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>eliminar</translation>
    </message>
    <message>
        <source>move</source>
        <translation>mover</translation>
    </message>
</context>
<context>
    <name>StageDocument</name>
    <message>
        <source>Could not create project %1.
A stage of %2 by %3 pixels with %4 frames per second is not possible.</source>
        <translation>No se pudo crear el proyecto %1.
No es posible un escenario de %2 por %3 píxeles con %4 fotogramas por segundo.</translation>
    </message>
    <message>
        <source>Scene 1</source>
        <translation>Escena 1</translation>
    </message>
    <message>
        <source>Could not open project %1.</source>
        <translation>No se pudo abrir el proyecto %1.</translation>
    </message>
    <message>
        <source>Could not read project %1 again.</source>
        <translation>No se pudo volver a leer el proyecto %1.</translation>
    </message>
    <message>
        <source>Could not save %1: %2</source>
        <translation>No se pudo guardar %1: %2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 guardado</translation>
    </message>
    <message>
        <source>Save Project As</source>
        <translation>Guardar proyecto como</translation>
    </message>
    <message>
        <source>Kelpa projects (*%1)</source>
        <translation>Proyectos de Kelpa (*%1)</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 ya existe. ¿Reemplazarlo?</translation>
    </message>
    <message>
        <source>%1 is open. Close it first.</source>
        <translation>%1 está abierto. Ciérrelo primero.</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Guardar &amp;como...</translation>
    </message>
    <message>
        <source>No backup of %1: %2</source>
        <translation>No hay copia de seguridad de %1: %2</translation>
    </message>
</context>
<context>
    <name>StageEditor</name>
    <message>
        <source>Sce&amp;ne:</source>
        <translation>Esce&amp;na:</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Escena</translation>
    </message>
</context>
<context>
    <name>StageFactory</name>
    <message>
        <source>Open Project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>Kelpa projects (*.kelpa)</source>
        <translation>Proyectos de Kelpa (*.kelpa)</translation>
    </message>
</context>
<context>
    <name>StageNewDialog</name>
    <message>
        <source>New Project</source>
        <translation>Proyecto nuevo</translation>
    </message>
    <message>
        <source>&amp;Width (pixels):</source>
        <translation>&amp;Ancho (píxeles):</translation>
    </message>
    <message>
        <source>&amp;Height (pixels):</source>
        <translation>Al&amp;to (píxeles):</translation>
    </message>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>&amp;Fotogramas por segundo:</translation>
    </message>
    <message>
        <source>&amp;Responsive: follow the width of the page</source>
        <translation>A&amp;daptable: seguir el ancho de la página</translation>
    </message>
    <message>
        <source>Responsive</source>
        <translation>Adaptable</translation>
    </message>
    <message>
        <source>What is missing</source>
        <translation>Lo que falta</translation>
    </message>
    <message>
        <source>&amp;Project file:</source>
        <translation>Archivo del &amp;proyecto:</translation>
    </message>
    <message>
        <source>Project file</source>
        <translation>Archivo del proyecto</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>sin título</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Browse for the project file</source>
        <translation>Buscar el archivo del proyecto</translation>
    </message>
    <message>
        <source>Kelpa projects (*%1)</source>
        <translation>Proyectos de Kelpa (*%1)</translation>
    </message>
    <message>
        <source>Enter the name of the project file.</source>
        <translation>Escriba el nombre del archivo del proyecto.</translation>
    </message>
    <message>
        <source>Enter the whole path of the project file, with its folder.</source>
        <translation>Escriba la ruta completa del archivo del proyecto, con su carpeta.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>La carpeta %1 no existe.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>No se puede escribir en la carpeta %1.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 no es un archivo.</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 ya existe. ¿Reemplazarlo?</translation>
    </message>
    <message>
        <source>%1 is open. Close it first.</source>
        <translation>%1 está abierto. Ciérrelo primero.</translation>
    </message>
</context>
<context>
    <name>StageOptionPage</name>
    <message>
        <source>The settings could not be saved.</source>
        <translation>No se pudo guardar la configuración.</translation>
    </message>
</context>
<context>
    <name>StageOptionsDlg</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>StagePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>No hay ninguna ventana principal.</translation>
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
        <translation>falta; debe ser %1</translation>
    </message>
    <message>
        <source>must be %1, not %2</source>
        <translation>debe ser %1, no %2</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>un número de %1 a %2</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>un número entero de %1 a %2</translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation>un texto de %1 a %2 caracteres</translation>
    </message>
    <message>
        <source>a colour such as &quot;#0080ff&quot;, or &quot;none&quot;</source>
        <translation>un color como &quot;#0080ff&quot;, o &quot;none&quot;</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true o false</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>una lista</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objeto</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>uno de %1</translation>
    </message>
    <message>
        <source>the project was written by a newer program (format version %1; this program reads up to %2)</source>
        <translation>el proyecto fue escrito por un programa más nuevo (versión de formato %1; este programa lee hasta la %2)</translation>
    </message>
    <message>
        <source>must hold 1 to %1 scenes, not %2</source>
        <translation>debe contener de 1 a %1 escenas, no %2</translation>
    </message>
    <message>
        <source>a project may hold %1 elements at most</source>
        <translation>un proyecto puede contener como máximo %1 elementos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is used by another element</source>
        <translation>&quot;%1&quot; ya lo usa otro elemento</translation>
    </message>
    <message>
        <source>the path of a file</source>
        <translation>la ruta de un archivo</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>línea %1, columna %2</translation>
    </message>
    <message>
        <source>the file holds more than %1 values</source>
        <translation>el archivo contiene más de %1 valores</translation>
    </message>
    <message>
        <source>%1: not valid JSON (%2)</source>
        <translation>%1: JSON no válido (%2)</translation>
    </message>
    <message>
        <source>line 1: the file must hold an object</source>
        <translation>línea 1: el archivo debe contener un objeto</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>el archivo no existe</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>the file is larger than %1</source>
        <translation>el archivo ocupa más de %1</translation>
    </message>
</context>
<context>
    <name>StageToolBar</name>
    <message>
        <source>Add Re&amp;ctangle</source>
        <translation>Añadir re&amp;ctángulo</translation>
    </message>
    <message>
        <source>Add &amp;Ellipse</source>
        <translation>Añadir &amp;elipse</translation>
    </message>
    <message>
        <source>Add &amp;Text</source>
        <translation>Añadir &amp;texto</translation>
    </message>
    <message>
        <source>Add &amp;Image...</source>
        <translation>Añadir &amp;imagen...</translation>
    </message>
    <message>
        <source>Add Image</source>
        <translation>Añadir imagen</translation>
    </message>
    <message>
        <source>Images (*.svg *.png *.jpg *.jpeg *.gif)</source>
        <translation>Imágenes (*.svg *.png *.jpg *.jpeg *.gif)</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>Escenario</translation>
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
        <source>Undo the last change</source>
        <translation>Deshacer el último cambio</translation>
    </message>
    <message>
        <source>Redo the last change undone</source>
        <translation>Rehacer el último cambio deshecho</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Delete (Del)</source>
        <translation>Eliminar (Supr)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>The project holds as many elements as it can.</source>
        <translation>El proyecto ya contiene todos los elementos posibles.</translation>
    </message>
</context>
<context>
    <name>StageView</name>
    <message>
        <source>Stage</source>
        <translation>Escenario</translation>
    </message>
    <message numerus="yes">
        <source>%n element(s) selected</source>
        <translation>
            <numerusform>%n elemento seleccionado</numerusform>
            <numerusform>%n elementos seleccionados</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 selected, at %2, %3</source>
        <translation>%1 seleccionado, en %2, %3</translation>
    </message>
</context>
<context>
    <name>ThemeMenu</name>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Failed to change theme.</source>
        <translation>No se pudo cambiar el tema.</translation>
    </message>
    <message>
        <source>The theme change will take effect from the next run.</source>
        <translation>El cambio de tema se aplicará la próxima vez que inicie el programa.</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <source>May Kelpa Studio look for a new version once a day?</source>
        <translation>¿Puede Kelpa Studio buscar una versión nueva una vez al día?</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Permitir</translation>
    </message>
    <message>
        <source>No address to look for updates is set. You can set it in the preferences, under Updates.</source>
        <translation>No hay ninguna dirección para buscar actualizaciones. Puede indicarla en las preferencias, en Actualizaciones.</translation>
    </message>
    <message>
        <source>Looking for a new version...</source>
        <translation>Buscando una versión nueva...</translation>
    </message>
    <message>
        <source>Cannot reach %1: no answer within %2 seconds.</source>
        <translation>No se puede contactar con %1: sin respuesta en %2 segundos.</translation>
    </message>
    <message>
        <source>You are running the latest version of %1, %2.</source>
        <translation>Está usando la última versión de %1, la %2.</translation>
    </message>
    <message>
        <source>%1 %2 has been released.</source>
        <translation>Se ha publicado %1 %2.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>ocupa más de %1 bytes</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 en el byte %2</translation>
    </message>
    <message>
        <source>it names no version for &quot;%1&quot;</source>
        <translation>no indica ninguna versión para &quot;%1&quot;</translation>
    </message>
    <message>
        <source>it was given up</source>
        <translation>se abandonó el intento</translation>
    </message>
    <message>
        <source>the answer is larger than %1 bytes</source>
        <translation>la respuesta ocupa más de %1 bytes</translation>
    </message>
    <message>
        <source>Cannot reach %1: %2.</source>
        <translation>No se puede contactar con %1: %2.</translation>
    </message>
    <message>
        <source>no answer within %1 seconds</source>
        <translation>sin respuesta en %1 segundos</translation>
    </message>
    <message>
        <source>%1 is not a valid feed: %2.</source>
        <translation>%1 no es una lista de actualizaciones válida: %2.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1 %2 has been released!&lt;/b&gt;</source>
        <translation>&lt;b&gt;¡Se ha publicado %1 %2!&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Congratulations! You are running the latest version of %1</source>
        <translation>¡Enhorabuena! Está usando la última versión de %1</translation>
    </message>
    <message>
        <source>No updates are available at the moment.</source>
        <translation>No hay actualizaciones disponibles por el momento.</translation>
    </message>
</context>
<context>
    <name>UpdatesPage</name>
    <message>
        <source>&amp;Look for a new version once a day</source>
        <translation>&amp;Buscar una versión nueva una vez al día</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>&amp;Address of the updates:</source>
        <translation>&amp;Dirección de las actualizaciones:</translation>
    </message>
    <message>
        <source>Address for &amp;problems:</source>
        <translation>Dirección para &amp;problemas:</translation>
    </message>
    <message>
        <source>Address for &amp;suggestions:</source>
        <translation>Dirección para &amp;sugerencias:</translation>
    </message>
</context>
<context>
    <name>UpdatesPlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>No hay ninguna ventana principal.</translation>
    </message>
    <message>
        <source>Check Updates...</source>
        <translation>Buscar actualizaciones...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Informar de un problema</translation>
    </message>
    <message>
        <source>Provide a Suggestion</source>
        <translation>Hacer una sugerencia</translation>
    </message>
</context>
<context>
    <name>WelcomeOptionPage</name>
    <message>
        <source>&amp;Show the home page while no project is open</source>
        <translation>&amp;Mostrar la página de inicio mientras no haya ningún proyecto abierto</translation>
    </message>
    <message>
        <source>Home Page</source>
        <translation>Página de inicio</translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation>El cambio se aplica al volver a iniciar el programa.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Animations for the web, drawn by you</source>
        <translation>Animaciones para la web, dibujadas por usted</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Proyecto nuevo</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Proyectos recientes</translation>
    </message>
    <message>
        <source>Projects that you create or open will be listed here.</source>
        <translation>Aquí aparecerán los proyectos que cree o abra.</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>Mostrar %1 en su carpeta</translation>
    </message>
    <message>
        <source>Remove %1 from the list</source>
        <translation>Quitar %1 de la lista</translation>
    </message>
    <message>
        <source>%1 was removed from the list.</source>
        <translation>%1 se quitó de la lista.</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Ejemplos</translation>
    </message>
    <message>
        <source>On the web</source>
        <translation>En la web</translation>
    </message>
    <message>
        <source>Home Page</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>Community</source>
        <translation>Comunidad</translation>
    </message>
    <message>
        <source>Demo Projects</source>
        <translation>Proyectos de demostración</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>The page has lost the program and is trying to reach it again.</source>
        <translation>La página ha perdido la conexión con el programa e intenta recuperarla.</translation>
    </message>
    <message>
        <source>The page has reached the program again.</source>
        <translation>La página ha recuperado la conexión con el programa.</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paisaje</translation>
    </message>
    <message>
        <source>A morning in layers: hills, clouds and trees</source>
        <translation>Una mañana por capas: colinas, nubes y árboles</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Banner</translation>
    </message>
    <message>
        <source>Two scenes for the top of a page</source>
        <translation>Dos escenas para la parte superior de una página</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Tarjeta</translation>
    </message>
    <message>
        <source>A card that follows the width of its page</source>
        <translation>Una tarjeta que sigue el ancho de su página</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
</context>
<context>
    <name>WelcomePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>No hay ninguna ventana principal.</translation>
    </message>
</context>
</TS>
