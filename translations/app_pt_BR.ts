<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Found</source>
        <translation>Encontrado</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Deixado de fora</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Com falha</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>Carregado</translation>
    </message>
    <message>
        <source>Initialized</source>
        <translation>Inicializado</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Em execução</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Parado</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Qt %1 (built with %2)</source>
        <translation>Qt %1 (compilado com %2)</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Sobre o %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
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
        <translation>Versão</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
</context>
<context>
    <name>AppearancePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>Não há janela principal.</translation>
    </message>
</context>
<context>
    <name>BackupOptionPage</name>
    <message>
        <source>Backup</source>
        <translation>Cópia de segurança</translation>
    </message>
    <message>
        <source>&amp;Back up open projects automatically</source>
        <translation>Fazer cópias de segurança &amp;automáticas dos projetos abertos</translation>
    </message>
    <message>
        <source> s</source>
        <comment>seconds</comment>
        <translation> s</translation>
    </message>
    <message>
        <source>Seconds between two backups</source>
        <translation>Segundos entre duas cópias de segurança</translation>
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
        <translation>Algo falhou: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; failed: %2</source>
        <comment>a command, a reason</comment>
        <translation>“%1” falhou: %2</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read or written.</source>
        <translation>Não é possível ler ou gravar as configurações em %1.</translation>
    </message>
    <message>
        <source>These plug-ins could not be started: %1.</source>
        <translation>Não foi possível iniciar estes plug-ins: %1.</translation>
    </message>
</context>
<context>
    <name>Downloader</name>
    <message>
        <source>Downloading Updates</source>
        <translation>Baixando atualizações</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>Progresso do download</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>Tempo restante</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Cannot download update: %1.</source>
        <translation>Não é possível baixar a atualização: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address of the web</source>
        <translation>&quot;%1&quot; não é um endereço da web</translation>
    </message>
    <message>
        <source>The update is not installed: %1.</source>
        <translation>A atualização não será instalada: %1.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>Cannot download update: the folder %1 cannot be made.</source>
        <translation>Não é possível baixar a atualização: a pasta %1 não pode ser criada.</translation>
    </message>
    <message>
        <source>Cannot replace %1: %2.</source>
        <translation>Não é possível substituir %1: %2.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>Não é possível gravar %1: %2.</translation>
    </message>
    <message>
        <source>of</source>
        <translation>de</translation>
    </message>
    <message>
        <source>Cannot write %1: another program has changed it.</source>
        <translation>Não é possível gravar %1: outro programa o alterou.</translation>
    </message>
    <message>
        <source>the server answered with status %1</source>
        <translation>o servidor respondeu com o status %1</translation>
    </message>
    <message>
        <source>%1 is incomplete</source>
        <translation>%1 está incompleto</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 está vazio</translation>
    </message>
    <message>
        <source>Cannot rename %1 to %2: %3.</source>
        <translation>Não é possível renomear %1 para %2: %3.</translation>
    </message>
    <message>
        <source>Checking the signature</source>
        <translation>Verificando a assinatura</translation>
    </message>
    <message>
        <source>%1 was deleted, because %2</source>
        <translation>%1 foi excluído porque %2</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Download complete!</source>
        <translation>Download concluído!</translation>
    </message>
    <message>
        <source>The installer will open separately</source>
        <translation>O instalador será aberto separadamente</translation>
    </message>
    <message>
        <source>In order to install the update, you need to quit the application.</source>
        <translation>Para instalar a atualização, você precisa sair do programa.</translation>
    </message>
    <message>
        <source>Click OK to begin installing the update.</source>
        <translation>Clique em OK para começar a instalar a atualização.</translation>
    </message>
    <message>
        <source>Click Open to apply the update.</source>
        <translation>Clique em Abrir para aplicar a atualização.</translation>
    </message>
    <message>
        <source>Cannot find downloaded update!</source>
        <translation>A atualização baixada não foi encontrada!</translation>
    </message>
    <message>
        <source>%1 could not be opened.</source>
        <translation>Não foi possível abrir %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the download?</source>
        <translation>Deseja realmente cancelar o download?</translation>
    </message>
    <message>
        <source>this build cannot check signatures</source>
        <translation>esta compilação do programa não pode verificar assinaturas</translation>
    </message>
    <message>
        <source>the key to check its signature with is damaged</source>
        <translation>a chave para verificar a assinatura está danificada</translation>
    </message>
    <message>
        <source>it has no signature</source>
        <translation>a assinatura está ausente</translation>
    </message>
    <message>
        <source>its check sum is not the announced one</source>
        <translation>a soma de verificação não é a anunciada</translation>
    </message>
    <message>
        <source>its signature is not valid</source>
        <translation>a assinatura não é válida</translation>
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
        <translation>Cerca de %1 horas</translation>
    </message>
    <message>
        <source>About one hour</source>
        <translation>Cerca de uma hora</translation>
    </message>
    <message>
        <source>About %1 minutes</source>
        <translation>Cerca de %1 minutos</translation>
    </message>
    <message>
        <source>About 1 minute</source>
        <translation>Cerca de 1 minuto</translation>
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
        <translation>mais de %1 redirecionamentos</translation>
    </message>
    <message>
        <source>a redirect to &quot;%1&quot;, which is no address of the web</source>
        <translation>um redirecionamento para &quot;%1&quot;, que não é um endereço da web</translation>
    </message>
    <message>
        <source>a redirect from a secure address to &quot;%1&quot;, which is not</source>
        <translation>um redirecionamento de um endereço seguro para &quot;%1&quot;, que não é seguro</translation>
    </message>
    <message>
        <source>There is no program to open %1 with.</source>
        <translation>Não há nenhum programa para abrir %1.</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>ela é maior que %1 bytes</translation>
    </message>
</context>
<context>
    <name>EditingOptionPage</name>
    <message>
        <source>Editing</source>
        <translation>Edição</translation>
    </message>
    <message>
        <source>&amp;Paste SVG as freeform shapes</source>
        <translation>&amp;Colar SVG como formas livres</translation>
    </message>
    <message>
        <source>Horizontal breakpoints</source>
        <translation>Pontos de quebra horizontais</translation>
    </message>
    <message>
        <source>Vertical breakpoints</source>
        <translation>Pontos de quebra verticais</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation>&amp;Restaurar padrões</translation>
    </message>
    <message>
        <source>Restore the default breakpoints</source>
        <translation>Restaurar os pontos de quebra padrão</translation>
    </message>
    <message>
        <source>%1, in pixels</source>
        <translation>%1, em pixels</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::CommandLine</name>
    <message>
        <source>Look for plug-ins here too; may be repeated.</source>
        <translation>Procurar plug-ins também aqui; pode ser repetido.</translation>
    </message>
    <message>
        <source>Load only this plug-in and what it needs; may be repeated.</source>
        <translation>Carregar somente este plug-in e o que ele precisa; pode ser repetido.</translation>
    </message>
    <message>
        <source>Leave this plug-in out; may be repeated.</source>
        <translation>Deixar este plug-in de fora; pode ser repetido.</translation>
    </message>
    <message>
        <source>Keep the user&apos;s settings here.</source>
        <translation>Guardar aqui as configurações do usuário.</translation>
    </message>
    <message>
        <source>Print how long each plug-in takes to start.</source>
        <translation>Mostrar quanto tempo cada plug-in leva para iniciar.</translation>
    </message>
    <message>
        <source>Start even when the program is already running.</source>
        <translation>Iniciar mesmo que o programa já esteja em execução.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <translation>Mostrar a versão e sair.</translation>
    </message>
    <message>
        <source>Print this help and exit.</source>
        <translation>Mostrar esta ajuda e sair.</translation>
    </message>
    <message>
        <source>Projects to open.</source>
        <translation>Projetos a abrir.</translation>
    </message>
    <message>
        <source>Do not show the home page in this run.</source>
        <translation>Não mostrar a página inicial nesta execução.</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::PluginManager</name>
    <message>
        <source>--help lists the options.</source>
        <translation>--help lista as opções.</translation>
    </message>
    <message>
        <source>No plug-in could be loaded from %1.</source>
        <translation>Nenhum plug-in pôde ser carregado de %1.</translation>
    </message>
    <message>
        <source>%1 cannot start.</source>
        <translation>%1 não pode iniciar.</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::SingleInstance</name>
    <message>
        <source>There is no safe place for the socket on which other starts could be heard.</source>
        <translation>Não há lugar seguro para o soquete que receberia outras inicializações.</translation>
    </message>
    <message>
        <source>The command line is too long to hand over to a running instance.</source>
        <translation>A linha de comando é longa demais para ser entregue a um programa em execução.</translation>
    </message>
    <message>
        <source>The running instance does not answer; another one is started.</source>
        <translation>O programa em execução não responde; outro é iniciado.</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be had; another instance is started.</source>
        <translation>O arquivo de bloqueio %1 não pode ser obtido; outro programa é iniciado.</translation>
    </message>
    <message>
        <source>The running instance cannot be reached (%1); another one is started.</source>
        <translation>O programa em execução não pode ser alcançado (%1); outro é iniciado.</translation>
    </message>
    <message>
        <source>Other starts cannot be heard on %1: %2</source>
        <translation>Outras inicializações não podem ser recebidas em %1: %2</translation>
    </message>
</context>
<context>
    <name>Feedback</name>
    <message>
        <source>The address &quot;%1&quot; cannot be opened.</source>
        <translation>Não é possível abrir o endereço &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>GeneralOptionPage</name>
    <message>
        <source>General</source>
        <translation>Geral</translation>
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
        <translation>Outro idioma passa a valer na próxima inicialização.</translation>
    </message>
    <message>
        <source>Failed to change language.</source>
        <translation>Não foi possível mudar o idioma.</translation>
    </message>
</context>
<context>
    <name>IDocument</name>
    <message>
        <source>Save changes made to %1?</source>
        <translation>Salvar as alterações em %1?</translation>
    </message>
    <message>
        <source>Could not save project %1.</source>
        <translation>Não foi possível salvar o projeto %1.</translation>
    </message>
</context>
<context>
    <name>IMainMdiArea</name>
    <message>
        <source>Could not open file %1.</source>
        <translation>Não foi possível abrir o arquivo %1.</translation>
    </message>
    <message>
        <source>The project [%1] no longer exists.
Do you want to remove this entry from history?</source>
        <translation>O projeto [%1] não existe mais.
Deseja remover esta entrada do histórico?</translation>
    </message>
    <message>
        <source>Could not find the requested file.</source>
        <translation>O arquivo solicitado não foi encontrado.</translation>
    </message>
</context>
<context>
    <name>IMainMenuWidget</name>
    <message>
        <source>Restore Down</source>
        <translation>Restaurar tamanho</translation>
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
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>More menus</source>
        <translation>Mais menus</translation>
    </message>
</context>
<context>
    <name>KPNotificationBar</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informação</translation>
    </message>
</context>
<context>
    <name>KPReleaseNoteDlg</name>
    <message>
        <source>&lt;h2&gt;Failed to load release notes.&lt;/h2&gt;</source>
        <translation>&lt;h2&gt;Não foi possível carregar as notas da versão.&lt;/h2&gt;</translation>
    </message>
</context>
<context>
    <name>KPReleaseNoteUI</name>
    <message>
        <source>Update Available</source>
        <translation>Atualização disponível</translation>
    </message>
    <message>
        <source>Release Notes</source>
        <translation>Notas da versão</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Pular esta versão</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Lembrar mais tarde</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Projetos recentes</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salvar como</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>E&amp;xibir</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>File.New</source>
        <translation>File.New</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Novo</translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation>Criar um novo projeto</translation>
    </message>
    <message>
        <source>&amp;Open Project</source>
        <translation>&amp;Abrir projeto</translation>
    </message>
    <message>
        <source>Open an existing project</source>
        <translation>Abrir um projeto existente</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salvar</translation>
    </message>
    <message>
        <source>Save the current project</source>
        <translation>Salvar o projeto atual</translation>
    </message>
    <message>
        <source>Other Project</source>
        <translation>Outro projeto</translation>
    </message>
    <message>
        <source>Save the current project as a new one</source>
        <translation>Salvar o projeto atual como um novo</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Close the current project</source>
        <translation>Fechar o projeto atual</translation>
    </message>
    <message>
        <source>Preview Current Scene in Browser</source>
        <translation>Visualizar cena atual no navegador</translation>
    </message>
    <message>
        <source>Preview Project in Browser</source>
        <translation>Visualizar projeto no navegador</translation>
    </message>
    <message>
        <source>Export to HTML5</source>
        <translation>Exportar para HTML5</translation>
    </message>
    <message>
        <source>Export to Video</source>
        <translation>Exportar para vídeo</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Sai&amp;r</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Sair do programa</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>&amp;Preferências</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Help Contents</source>
        <translation>Conteúdo da ajuda</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Relatar um problema</translation>
    </message>
    <message>
        <source>Provide a Suggestion</source>
        <translation>Dar uma sugestão</translation>
    </message>
    <message>
        <source>Check Updates...</source>
        <translation>Verificar atualizações...</translation>
    </message>
    <message>
        <source>The language change will take effect from the next run.</source>
        <translation>A mudança de idioma terá efeito na próxima execução.</translation>
    </message>
    <message>
        <source>Failed to change language.</source>
        <translation>Não foi possível mudar o idioma.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Help document is missing.</source>
        <translation>O documento de ajuda está faltando.</translation>
    </message>
    <message>
        <source>Could not open help file.</source>
        <translation>Não foi possível abrir o arquivo de ajuda.</translation>
    </message>
    <message>
        <source>Cannot open this file type.</source>
        <translation>Não é possível abrir este tipo de arquivo.</translation>
    </message>
    <message>
        <source>The project [%1] no longer exists.
Do you want to remove this entry from history?</source>
        <translation>O projeto [%1] não existe mais.
Deseja remover esta entrada do histórico?</translation>
    </message>
    <message>
        <source>Tool Bars</source>
        <translation>Barras de ferramentas</translation>
    </message>
</context>
<context>
    <name>RecentList</name>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>Projetos &amp;recentes</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Projetos recentes</translation>
    </message>
    <message>
        <source>The home page cannot be shown here: parts of the browser engine are missing or fail. Your projects are listed instead.</source>
        <translation>A página inicial não pode ser exibida aqui: partes do mecanismo do navegador estão ausentes ou falham. Em vez dela, seus projetos são listados.</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>The file holds no shortcuts.</source>
        <translation>O arquivo não contém atalhos.</translation>
    </message>
    <message>
        <source>The shortcut of &quot;%1&quot; is no key sequence.</source>
        <translation>O atalho de &quot;%1&quot; não é uma sequência de teclas.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>O arquivo é grande demais.</translation>
    </message>
</context>
<context>
    <name>StageCommands</name>
    <message>
        <source>add %1</source>
        <translation>adicionar %1</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>excluir</translation>
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
        <translation>Não foi possível criar o projeto %1.
Um palco de %2 por %3 pixels com %4 quadros por segundo não é possível.</translation>
    </message>
    <message>
        <source>Scene 1</source>
        <translation>Cena 1</translation>
    </message>
    <message>
        <source>Could not open project %1.</source>
        <translation>Não foi possível abrir o projeto %1.</translation>
    </message>
    <message>
        <source>Could not read project %1 again.</source>
        <translation>Não foi possível ler novamente o projeto %1.</translation>
    </message>
    <message>
        <source>Could not save %1: %2</source>
        <translation>Não foi possível salvar %1: %2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 salvo</translation>
    </message>
    <message>
        <source>Save Project As</source>
        <translation>Salvar projeto como</translation>
    </message>
    <message>
        <source>Kelpa projects (*%1)</source>
        <translation>Projetos Kelpa (*%1)</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 já existe. Substituir?</translation>
    </message>
    <message>
        <source>%1 is open. Close it first.</source>
        <translation>%1 está aberto. Feche-o primeiro.</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Salvar &amp;como...</translation>
    </message>
    <message>
        <source>No backup of %1: %2</source>
        <translation>Sem cópia de segurança de %1: %2</translation>
    </message>
</context>
<context>
    <name>StageEditor</name>
    <message>
        <source>Sce&amp;ne:</source>
        <translation>Ce&amp;na:</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Cena</translation>
    </message>
</context>
<context>
    <name>StageFactory</name>
    <message>
        <source>Open Project</source>
        <translation>Abrir projeto</translation>
    </message>
    <message>
        <source>Kelpa projects (*.kelpa)</source>
        <translation>Projetos Kelpa (*.kelpa)</translation>
    </message>
</context>
<context>
    <name>StageNewDialog</name>
    <message>
        <source>New Project</source>
        <translation>Novo projeto</translation>
    </message>
    <message>
        <source>&amp;Width (pixels):</source>
        <translation>&amp;Largura (pixels):</translation>
    </message>
    <message>
        <source>&amp;Height (pixels):</source>
        <translation>&amp;Altura (pixels):</translation>
    </message>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>&amp;Quadros por segundo:</translation>
    </message>
    <message>
        <source>&amp;Responsive: follow the width of the page</source>
        <translation>&amp;Responsivo: acompanhar a largura da página</translation>
    </message>
    <message>
        <source>Responsive</source>
        <translation>Responsivo</translation>
    </message>
    <message>
        <source>What is missing</source>
        <translation>O que falta</translation>
    </message>
    <message>
        <source>&amp;Project file:</source>
        <translation>Arquivo do &amp;projeto:</translation>
    </message>
    <message>
        <source>Project file</source>
        <translation>Arquivo do projeto</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>sem título</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Pr&amp;ocurar...</translation>
    </message>
    <message>
        <source>Browse for the project file</source>
        <translation>Procurar o arquivo do projeto</translation>
    </message>
    <message>
        <source>Kelpa projects (*%1)</source>
        <translation>Projetos Kelpa (*%1)</translation>
    </message>
    <message>
        <source>Enter the name of the project file.</source>
        <translation>Digite o nome do arquivo do projeto.</translation>
    </message>
    <message>
        <source>Enter the whole path of the project file, with its folder.</source>
        <translation>Digite o caminho completo do arquivo do projeto, com a pasta.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>A pasta %1 não existe.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>Não é possível gravar na pasta %1.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 não é um arquivo.</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 já existe. Substituir?</translation>
    </message>
    <message>
        <source>%1 is open. Close it first.</source>
        <translation>%1 está aberto. Feche-o primeiro.</translation>
    </message>
</context>
<context>
    <name>StageOptionPage</name>
    <message>
        <source>The settings could not be saved.</source>
        <translation>Não foi possível salvar as configurações.</translation>
    </message>
</context>
<context>
    <name>StageOptionsDlg</name>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
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
        <translation>Não há janela principal.</translation>
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
        <translation>está faltando; deve ser %1</translation>
    </message>
    <message>
        <source>must be %1, not %2</source>
        <translation>deve ser %1, não %2</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>um número de %1 a %2</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>um número inteiro de %1 a %2</translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation>um texto de %1 a %2 caracteres</translation>
    </message>
    <message>
        <source>a colour such as &quot;#0080ff&quot;, or &quot;none&quot;</source>
        <translation>uma cor como &quot;#0080ff&quot;, ou &quot;none&quot;</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true ou false</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>uma lista</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>um objeto</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>um de %1</translation>
    </message>
    <message>
        <source>the project was written by a newer program (format version %1; this program reads up to %2)</source>
        <translation>o projeto foi gravado por um programa mais novo (versão do formato %1; este programa lê até %2)</translation>
    </message>
    <message>
        <source>must hold 1 to %1 scenes, not %2</source>
        <translation>deve conter de 1 a %1 cenas, não %2</translation>
    </message>
    <message>
        <source>a project may hold %1 elements at most</source>
        <translation>um projeto pode conter no máximo %1 elementos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is used by another element</source>
        <translation>&quot;%1&quot; já é usado por outro elemento</translation>
    </message>
    <message>
        <source>the path of a file</source>
        <translation>o caminho de um arquivo</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>linha %1, coluna %2</translation>
    </message>
    <message>
        <source>the file holds more than %1 values</source>
        <translation>o arquivo contém mais de %1 valores</translation>
    </message>
    <message>
        <source>%1: not valid JSON (%2)</source>
        <translation>%1: JSON inválido (%2)</translation>
    </message>
    <message>
        <source>line 1: the file must hold an object</source>
        <translation>linha 1: o arquivo deve conter um objeto</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>o arquivo não existe</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>não é um arquivo comum</translation>
    </message>
    <message>
        <source>the file is larger than %1</source>
        <translation>o arquivo é maior que %1</translation>
    </message>
</context>
<context>
    <name>StageToolBar</name>
    <message>
        <source>Add Re&amp;ctangle</source>
        <translation>Adicionar retân&amp;gulo</translation>
    </message>
    <message>
        <source>Add &amp;Ellipse</source>
        <translation>Adicionar &amp;elipse</translation>
    </message>
    <message>
        <source>Add &amp;Text</source>
        <translation>Adicionar &amp;texto</translation>
    </message>
    <message>
        <source>Add &amp;Image...</source>
        <translation>Adicionar &amp;imagem...</translation>
    </message>
    <message>
        <source>Add Image</source>
        <translation>Adicionar imagem</translation>
    </message>
    <message>
        <source>Images (*.svg *.png *.jpg *.jpeg *.gif)</source>
        <translation>Imagens (*.svg *.png *.jpg *.jpeg *.gif)</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>Palco</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>Desfazer a última alteração</translation>
    </message>
    <message>
        <source>Redo the last change undone</source>
        <translation>Refazer a última alteração desfeita</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;xcluir</translation>
    </message>
    <message>
        <source>Delete (Del)</source>
        <translation>Excluir (Del)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>The project holds as many elements as it can.</source>
        <translation>O projeto já contém o máximo de elementos.</translation>
    </message>
</context>
<context>
    <name>StageView</name>
    <message>
        <source>Stage</source>
        <translation>Palco</translation>
    </message>
    <message numerus="yes">
        <source>%n element(s) selected</source>
        <translation>
            <numerusform>%n elemento selecionado</numerusform>
            <numerusform>%n elementos selecionados</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 selected, at %2, %3</source>
        <translation>%1 selecionado, em %2, %3</translation>
    </message>
</context>
<context>
    <name>ThemeMenu</name>
    <message>
        <source>Dark</source>
        <translation>Escuro</translation>
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
        <translation>Não foi possível mudar o tema.</translation>
    </message>
    <message>
        <source>The theme change will take effect from the next run.</source>
        <translation>A mudança de tema terá efeito na próxima execução.</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <source>May Kelpa Studio look for a new version once a day?</source>
        <translation>O Kelpa Studio pode procurar uma nova versão uma vez por dia?</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Permitir</translation>
    </message>
    <message>
        <source>No address to look for updates is set. You can set it in the preferences, under Updates.</source>
        <translation>Nenhum endereço para procurar atualizações está definido. Você pode defini-lo nas preferências, em Atualizações.</translation>
    </message>
    <message>
        <source>Looking for a new version...</source>
        <translation>Procurando uma nova versão...</translation>
    </message>
    <message>
        <source>Cannot reach %1: no answer within %2 seconds.</source>
        <translation>Não é possível contatar %1: nenhuma resposta em %2 segundos.</translation>
    </message>
    <message>
        <source>You are running the latest version of %1, %2.</source>
        <translation>Você está usando a versão mais recente do %1, a %2.</translation>
    </message>
    <message>
        <source>%1 %2 has been released.</source>
        <translation>O %1 %2 foi lançado.</translation>
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
        <translation>ela é maior que %1 bytes</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 no byte %2</translation>
    </message>
    <message>
        <source>it names no version for &quot;%1&quot;</source>
        <translation>ela não indica nenhuma versão para &quot;%1&quot;</translation>
    </message>
    <message>
        <source>it was given up</source>
        <translation>a tentativa foi abandonada</translation>
    </message>
    <message>
        <source>the answer is larger than %1 bytes</source>
        <translation>a resposta é maior que %1 bytes</translation>
    </message>
    <message>
        <source>Cannot reach %1: %2.</source>
        <translation>Não é possível contatar %1: %2.</translation>
    </message>
    <message>
        <source>no answer within %1 seconds</source>
        <translation>nenhuma resposta em %1 segundos</translation>
    </message>
    <message>
        <source>%1 is not a valid feed: %2.</source>
        <translation>%1 não é uma lista de atualizações válida: %2.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1 %2 has been released!&lt;/b&gt;</source>
        <translation>&lt;b&gt;O %1 %2 foi lançado!&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Congratulations! You are running the latest version of %1</source>
        <translation>Parabéns! Você está usando a versão mais recente do %1</translation>
    </message>
    <message>
        <source>No updates are available at the moment.</source>
        <translation>Não há atualizações disponíveis no momento.</translation>
    </message>
</context>
<context>
    <name>UpdatesPage</name>
    <message>
        <source>&amp;Look for a new version once a day</source>
        <translation>&amp;Procurar uma nova versão uma vez por dia</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>&amp;Address of the updates:</source>
        <translation>&amp;Endereço das atualizações:</translation>
    </message>
    <message>
        <source>Address for &amp;problems:</source>
        <translation>Endereço para pr&amp;oblemas:</translation>
    </message>
    <message>
        <source>Address for &amp;suggestions:</source>
        <translation>Endereço para &amp;sugestões:</translation>
    </message>
</context>
<context>
    <name>UpdatesPlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>Não há janela principal.</translation>
    </message>
    <message>
        <source>Check Updates...</source>
        <translation>Verificar atualizações...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Relatar um problema</translation>
    </message>
    <message>
        <source>Provide a Suggestion</source>
        <translation>Dar uma sugestão</translation>
    </message>
</context>
<context>
    <name>WelcomeOptionPage</name>
    <message>
        <source>&amp;Show the home page while no project is open</source>
        <translation>&amp;Mostrar a página inicial enquanto nenhum projeto estiver aberto</translation>
    </message>
    <message>
        <source>Home Page</source>
        <translation>Página inicial</translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation>A alteração passa a valer na próxima inicialização.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Animations for the web, drawn by you</source>
        <translation>Animações para a web, desenhadas por você</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Novo projeto</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Abrir projeto</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Projetos recentes</translation>
    </message>
    <message>
        <source>Projects that you create or open will be listed here.</source>
        <translation>Os projetos que você criar ou abrir serão listados aqui.</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>Mostrar %1 na sua pasta</translation>
    </message>
    <message>
        <source>Remove %1 from the list</source>
        <translation>Remover %1 da lista</translation>
    </message>
    <message>
        <source>%1 was removed from the list.</source>
        <translation>%1 foi removido da lista.</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Exemplos</translation>
    </message>
    <message>
        <source>On the web</source>
        <translation>Na web</translation>
    </message>
    <message>
        <source>Home Page</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Community</source>
        <translation>Comunidade</translation>
    </message>
    <message>
        <source>Demo Projects</source>
        <translation>Projetos de demonstração</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Novidades</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>The page has lost the program and is trying to reach it again.</source>
        <translation>A página perdeu a conexão com o programa e está tentando restabelecê-la.</translation>
    </message>
    <message>
        <source>The page has reached the program again.</source>
        <translation>A página restabeleceu a conexão com o programa.</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paisagem</translation>
    </message>
    <message>
        <source>A morning in layers: hills, clouds and trees</source>
        <translation>Uma manhã em camadas: colinas, nuvens e árvores</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Banner</translation>
    </message>
    <message>
        <source>Two scenes for the top of a page</source>
        <translation>Duas cenas para o topo de uma página</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Cartão</translation>
    </message>
    <message>
        <source>A card that follows the width of its page</source>
        <translation>Um cartão que acompanha a largura da página</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Início</translation>
    </message>
</context>
<context>
    <name>WelcomePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>Não há janela principal.</translation>
    </message>
</context>
</TS>
