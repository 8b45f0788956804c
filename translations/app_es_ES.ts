<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
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
        <translation>&amp;Archivo del proyecto:</translation>
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
        <source>Add &amp;Rectangle</source>
        <translation>Añadir &amp;rectángulo</translation>
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
</TS>
