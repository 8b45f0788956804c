<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Found</source>
        <translation>Trouvé</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Omis</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>En échec</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>Chargé</translation>
    </message>
    <message>
        <source>Initialized</source>
        <translation>Initialisé</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En marche</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Qt %1 (built with %2)</source>
        <translation>Qt %1 (compilé avec %2)</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Greffons</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Greffon</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
</context>
<context>
    <name>AppearancePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>Il n&apos;y a pas de fenêtre principale.</translation>
    </message>
</context>
<context>
    <name>BackupOptionPage</name>
    <message>
        <source>Backup</source>
        <translation>Sauvegarde</translation>
    </message>
    <message>
        <source>&amp;Back up open projects automatically</source>
        <translation>&amp;Sauvegarder automatiquement les projets ouverts</translation>
    </message>
    <message>
        <source> s</source>
        <comment>seconds</comment>
        <translation> s</translation>
    </message>
    <message>
        <source>Seconds between two backups</source>
        <translation>Secondes entre deux sauvegardes</translation>
    </message>
    <message>
        <source>&amp;Interval:</source>
        <translation>&amp;Intervalle :</translation>
    </message>
</context>
<context>
    <name>CorePlugin</name>
    <message>
        <source>Something failed: %1</source>
        <translation>Une erreur s’est produite : %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; failed: %2</source>
        <comment>a command, a reason</comment>
        <translation>« %1 » a échoué : %2</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read or written.</source>
        <translation>Les réglages dans %1 ne peuvent pas être lus ou écrits.</translation>
    </message>
    <message>
        <source>These plug-ins could not be started: %1.</source>
        <translation>Ces modules n’ont pas pu être démarrés : %1.</translation>
    </message>
</context>
<context>
    <name>Downloader</name>
    <message>
        <source>Downloading Updates</source>
        <translation>Téléchargement des mises à jour</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>Progression du téléchargement</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>Temps restant</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Cannot download update: %1.</source>
        <translation>Impossible de télécharger la mise à jour : %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address of the web</source>
        <translation>&quot;%1&quot; n&apos;est pas une adresse web</translation>
    </message>
    <message>
        <source>The update is not installed: %1.</source>
        <translation>La mise à jour n&apos;est pas installée : %1.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Cannot download update: the folder %1 cannot be made.</source>
        <translation>Impossible de télécharger la mise à jour : le dossier %1 ne peut pas être créé.</translation>
    </message>
    <message>
        <source>Cannot replace %1: %2.</source>
        <translation>Impossible de remplacer %1 : %2.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>Impossible d&apos;écrire %1 : %2.</translation>
    </message>
    <message>
        <source>of</source>
        <translation>sur</translation>
    </message>
    <message>
        <source>Cannot write %1: another program has changed it.</source>
        <translation>Impossible d&apos;écrire %1 : un autre programme l&apos;a modifié.</translation>
    </message>
    <message>
        <source>the server answered with status %1</source>
        <translation>le serveur a répondu avec l&apos;état %1</translation>
    </message>
    <message>
        <source>%1 is incomplete</source>
        <translation>%1 est incomplet</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 est vide</translation>
    </message>
    <message>
        <source>Cannot rename %1 to %2: %3.</source>
        <translation>Impossible de renommer %1 en %2 : %3.</translation>
    </message>
    <message>
        <source>Checking the signature</source>
        <translation>Vérification de la signature</translation>
    </message>
    <message>
        <source>%1 was deleted, because %2</source>
        <translation>%1 a été supprimé, car %2</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Download complete!</source>
        <translation>Téléchargement terminé !</translation>
    </message>
    <message>
        <source>The installer will open separately</source>
        <translation>Le programme d&apos;installation s&apos;ouvrira à part</translation>
    </message>
    <message>
        <source>In order to install the update, you need to quit the application.</source>
        <translation>Pour installer la mise à jour, vous devez quitter le programme.</translation>
    </message>
    <message>
        <source>Click OK to begin installing the update.</source>
        <translation>Cliquez sur OK pour commencer l&apos;installation de la mise à jour.</translation>
    </message>
    <message>
        <source>Click Open to apply the update.</source>
        <translation>Cliquez sur Ouvrir pour appliquer la mise à jour.</translation>
    </message>
    <message>
        <source>Cannot find downloaded update!</source>
        <translation>La mise à jour téléchargée est introuvable !</translation>
    </message>
    <message>
        <source>%1 could not be opened.</source>
        <translation>Impossible d&apos;ouvrir %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the download?</source>
        <translation>Voulez-vous vraiment annuler le téléchargement ?</translation>
    </message>
    <message>
        <source>this build cannot check signatures</source>
        <translation>cette édition du programme ne sait pas vérifier les signatures</translation>
    </message>
    <message>
        <source>the key to check its signature with is damaged</source>
        <translation>la clé qui sert à vérifier sa signature est endommagée</translation>
    </message>
    <message>
        <source>it has no signature</source>
        <translation>la signature est absente</translation>
    </message>
    <message>
        <source>its check sum is not the announced one</source>
        <translation>sa somme de contrôle n&apos;est pas celle annoncée</translation>
    </message>
    <message>
        <source>its signature is not valid</source>
        <translation>sa signature n&apos;est pas valide</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 Ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>About %1 hours</source>
        <translation>Environ %1 heures</translation>
    </message>
    <message>
        <source>About one hour</source>
        <translation>Environ une heure</translation>
    </message>
    <message>
        <source>About %1 minutes</source>
        <translation>Environ %1 minutes</translation>
    </message>
    <message>
        <source>About 1 minute</source>
        <translation>Environ 1 minute</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 secondes</translation>
    </message>
    <message>
        <source>1 second</source>
        <translation>1 seconde</translation>
    </message>
    <message>
        <source>more than %1 redirects</source>
        <translation>plus de %1 redirections</translation>
    </message>
    <message>
        <source>a redirect to &quot;%1&quot;, which is no address of the web</source>
        <translation>une redirection vers &quot;%1&quot;, qui n&apos;est pas une adresse web</translation>
    </message>
    <message>
        <source>a redirect from a secure address to &quot;%1&quot;, which is not</source>
        <translation>une redirection d&apos;une adresse sécurisée vers &quot;%1&quot;, qui ne l&apos;est pas</translation>
    </message>
    <message>
        <source>There is no program to open %1 with.</source>
        <translation>Aucun programme ne permet d&apos;ouvrir %1.</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>elle dépasse %1 octets</translation>
    </message>
</context>
<context>
    <name>EditingOptionPage</name>
    <message>
        <source>Editing</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>&amp;Paste SVG as freeform shapes</source>
        <translation>&amp;Coller le SVG sous forme libre</translation>
    </message>
    <message>
        <source>Horizontal breakpoints</source>
        <translation>Points de rupture horizontaux</translation>
    </message>
    <message>
        <source>Vertical breakpoints</source>
        <translation>Points de rupture verticaux</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation>&amp;Rétablir les valeurs par défaut</translation>
    </message>
    <message>
        <source>Restore the default breakpoints</source>
        <translation>Rétablir les points de rupture par défaut</translation>
    </message>
    <message>
        <source>%1, in pixels</source>
        <translation>%1, en pixels</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::CommandLine</name>
    <message>
        <source>Look for plug-ins here too; may be repeated.</source>
        <translation>Chercher aussi les greffons ici ; peut être répété.</translation>
    </message>
    <message>
        <source>Load only this plug-in and what it needs; may be repeated.</source>
        <translation>Ne charger que ce greffon et ce dont il a besoin ; peut être répété.</translation>
    </message>
    <message>
        <source>Leave this plug-in out; may be repeated.</source>
        <translation>Omettre ce greffon ; peut être répété.</translation>
    </message>
    <message>
        <source>Keep the user&apos;s settings here.</source>
        <translation>Conserver ici les réglages de l&apos;utilisateur.</translation>
    </message>
    <message>
        <source>Print how long each plug-in takes to start.</source>
        <translation>Afficher le temps de démarrage de chaque greffon.</translation>
    </message>
    <message>
        <source>Start even when the program is already running.</source>
        <translation>Démarrer même si le programme tourne déjà.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <translation>Afficher la version et quitter.</translation>
    </message>
    <message>
        <source>Print this help and exit.</source>
        <translation>Afficher cette aide et quitter.</translation>
    </message>
    <message>
        <source>Projects to open.</source>
        <translation>Projets à ouvrir.</translation>
    </message>
    <message>
        <source>Do not show the home page in this run.</source>
        <translation>Ne pas montrer la page d&apos;accueil cette fois-ci.</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::PluginManager</name>
    <message>
        <source>--help lists the options.</source>
        <translation>--help donne la liste des options.</translation>
    </message>
    <message>
        <source>No plug-in could be loaded from %1.</source>
        <translation>Aucun greffon n&apos;a pu être chargé depuis %1.</translation>
    </message>
    <message>
        <source>%1 cannot start.</source>
        <translation>%1 ne peut pas démarrer.</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::SingleInstance</name>
    <message>
        <source>There is no safe place for the socket on which other starts could be heard.</source>
        <translation>Il n&apos;y a pas d&apos;endroit sûr pour le socket qui annoncerait d&apos;autres démarrages.</translation>
    </message>
    <message>
        <source>The command line is too long to hand over to a running instance.</source>
        <translation>La ligne de commande est trop longue pour être transmise au programme déjà lancé.</translation>
    </message>
    <message>
        <source>The running instance does not answer; another one is started.</source>
        <translation>Le programme déjà lancé ne répond pas ; un autre est démarré.</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be had; another instance is started.</source>
        <translation>Le fichier de verrou %1 est inaccessible ; un autre programme est démarré.</translation>
    </message>
    <message>
        <source>The running instance cannot be reached (%1); another one is started.</source>
        <translation>Le programme déjà lancé est injoignable (%1) ; un autre est démarré.</translation>
    </message>
    <message>
        <source>Other starts cannot be heard on %1: %2</source>
        <translation>Les autres démarrages ne peuvent être entendus sur %1 : %2</translation>
    </message>
</context>
<context>
    <name>Feedback</name>
    <message>
        <source>The address &quot;%1&quot; cannot be opened.</source>
        <translation>L&apos;adresse &quot;%1&quot; ne peut pas être ouverte.</translation>
    </message>
</context>
<context>
    <name>GeneralOptionPage</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue :</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Another language takes effect at the next start.</source>
        <translation>Une autre langue prend effet au prochain démarrage.</translation>
    </message>
    <message>
        <source>Failed to change language.</source>
        <translation>Impossible de changer la langue.</translation>
    </message>
</context>
<context>
    <name>IDocument</name>
    <message>
        <source>Save changes made to %1?</source>
        <translation>Enregistrer les modifications de %1 ?</translation>
    </message>
    <message>
        <source>Could not save project %1.</source>
        <translation>Impossible d&apos;enregistrer le projet %1.</translation>
    </message>
</context>
<context>
    <name>IMainMdiArea</name>
    <message>
        <source>Could not open file %1.</source>
        <translation>Impossible d&apos;ouvrir le fichier %1.</translation>
    </message>
    <message>
        <source>The project [%1] no longer exists.
Do you want to remove this entry from history?</source>
        <translation>Le projet [%1] n&apos;existe plus.
Voulez-vous retirer cette entrée de l&apos;historique ?</translation>
    </message>
    <message>
        <source>Could not find the requested file.</source>
        <translation>Le fichier demandé est introuvable.</translation>
    </message>
</context>
<context>
    <name>IMainMenuWidget</name>
    <message>
        <source>Restore Down</source>
        <translation>Restaurer la taille</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>More menus</source>
        <translation>Autres menus</translation>
    </message>
</context>
<context>
    <name>KPNotificationBar</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
</context>
<context>
    <name>KPReleaseNoteDlg</name>
    <message>
        <source>&lt;h2&gt;Failed to load release notes.&lt;/h2&gt;</source>
        <translation>&lt;h2&gt;Impossible de charger les notes de version.&lt;/h2&gt;</translation>
    </message>
</context>
<context>
    <name>KPReleaseNoteUI</name>
    <message>
        <source>Update Available</source>
        <translation>Mise à jour disponible</translation>
    </message>
    <message>
        <source>Release Notes</source>
        <translation>Notes de version</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Me le rappeler plus tard</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Projets récents</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>File.New</source>
        <translation>File.New</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation>Créer un nouveau projet</translation>
    </message>
    <message>
        <source>&amp;Open Project</source>
        <translation>&amp;Ouvrir un projet</translation>
    </message>
    <message>
        <source>Open an existing project</source>
        <translation>Ouvrir un projet existant</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save the current project</source>
        <translation>Enregistrer le projet actuel</translation>
    </message>
    <message>
        <source>Other Project</source>
        <translation>Autre projet</translation>
    </message>
    <message>
        <source>Save the current project as a new one</source>
        <translation>Enregistrer le projet actuel comme nouveau projet</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Close the current project</source>
        <translation>Fermer le projet actuel</translation>
    </message>
    <message>
        <source>Preview Current Scene in Browser</source>
        <translation>Aperçu de la scène actuelle dans le navigateur</translation>
    </message>
    <message>
        <source>Preview Project in Browser</source>
        <translation>Aperçu du projet dans le navigateur</translation>
    </message>
    <message>
        <source>Export to HTML5</source>
        <translation>Exporter en HTML5</translation>
    </message>
    <message>
        <source>Export to Video</source>
        <translation>Exporter en vidéo</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Quitter le programme</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>&amp;Préférences</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Help Contents</source>
        <translation>Sommaire de l&apos;aide</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Signaler un problème</translation>
    </message>
    <message>
        <source>Provide a Suggestion</source>
        <translation>Faire une suggestion</translation>
    </message>
    <message>
        <source>Check Updates...</source>
        <translation>Rechercher des mises à jour...</translation>
    </message>
    <message>
        <source>The language change will take effect from the next run.</source>
        <translation>Le changement de langue prendra effet au prochain démarrage.</translation>
    </message>
    <message>
        <source>Failed to change language.</source>
        <translation>Impossible de changer la langue.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Help document is missing.</source>
        <translation>Le document d&apos;aide est absent.</translation>
    </message>
    <message>
        <source>Could not open help file.</source>
        <translation>Impossible d&apos;ouvrir le fichier d&apos;aide.</translation>
    </message>
    <message>
        <source>Cannot open this file type.</source>
        <translation>Ce type de fichier ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>The project [%1] no longer exists.
Do you want to remove this entry from history?</source>
        <translation>Le projet [%1] n&apos;existe plus.
Voulez-vous retirer cette entrée de l&apos;historique ?</translation>
    </message>
    <message>
        <source>Tool Bars</source>
        <translation>Barres d’outils</translation>
    </message>
</context>
<context>
    <name>RecentList</name>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>Projets &amp;récents</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Projets récents</translation>
    </message>
    <message>
        <source>The home page cannot be shown here: parts of the browser engine are missing or fail. Your projects are listed instead.</source>
        <translation>La page d&apos;accueil ne peut pas être affichée ici : des parties du moteur de navigation manquent ou échouent. Vos projets sont listés à la place.</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>The file holds no shortcuts.</source>
        <translation>Le fichier ne contient aucun raccourci.</translation>
    </message>
    <message>
        <source>The shortcut of &quot;%1&quot; is no key sequence.</source>
        <translation>Le raccourci de &quot;%1&quot; n&apos;est pas une suite de touches.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Le fichier est trop volumineux.</translation>
    </message>
</context>
<context>
    <name>StageCommands</name>
    <message>
        <source>add %1</source>
        <translation>ajouter %1</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>supprimer</translation>
    </message>
    <message>
        <source>move</source>
        <translation>déplacer</translation>
    </message>
</context>
<context>
    <name>StageDocument</name>
    <message>
        <source>Could not create project %1.
A stage of %2 by %3 pixels with %4 frames per second is not possible.</source>
        <translation>Impossible de créer le projet %1.
Une scène de %2 sur %3 pixels à %4 images par seconde est impossible.</translation>
    </message>
    <message>
        <source>Scene 1</source>
        <translation>Scène 1</translation>
    </message>
    <message>
        <source>Could not open project %1.</source>
        <translation>Impossible d&apos;ouvrir le projet %1.</translation>
    </message>
    <message>
        <source>Could not read project %1 again.</source>
        <translation>Impossible de relire le projet %1.</translation>
    </message>
    <message>
        <source>Could not save %1: %2</source>
        <translation>Impossible d&apos;enregistrer %1 : %2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Save Project As</source>
        <translation>Enregistrer le projet sous</translation>
    </message>
    <message>
        <source>Kelpa projects (*%1)</source>
        <translation>Projets Kelpa (*%1)</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 existe déjà. Le remplacer ?</translation>
    </message>
    <message>
        <source>%1 is open. Close it first.</source>
        <translation>%1 est ouvert. Fermez-le d&apos;abord.</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>No backup of %1: %2</source>
        <translation>Aucune copie de sauvegarde de %1 : %2</translation>
    </message>
</context>
<context>
    <name>StageEditor</name>
    <message>
        <source>Sce&amp;ne:</source>
        <translation>Scè&amp;ne :</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Scène</translation>
    </message>
</context>
<context>
    <name>StageFactory</name>
    <message>
        <source>Open Project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <source>Kelpa projects (*.kelpa)</source>
        <translation>Projets Kelpa (*.kelpa)</translation>
    </message>
</context>
<context>
    <name>StageNewDialog</name>
    <message>
        <source>New Project</source>
        <translation>Nouveau projet</translation>
    </message>
    <message>
        <source>&amp;Width (pixels):</source>
        <translation>&amp;Largeur (pixels) :</translation>
    </message>
    <message>
        <source>&amp;Height (pixels):</source>
        <translation>&amp;Hauteur (pixels) :</translation>
    </message>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>&amp;Images par seconde :</translation>
    </message>
    <message>
        <source>&amp;Responsive: follow the width of the page</source>
        <translation>&amp;Adaptatif : suivre la largeur de la page</translation>
    </message>
    <message>
        <source>Responsive</source>
        <translation>Adaptatif</translation>
    </message>
    <message>
        <source>What is missing</source>
        <translation>Ce qui manque</translation>
    </message>
    <message>
        <source>&amp;Project file:</source>
        <translation>&amp;Fichier du projet :</translation>
    </message>
    <message>
        <source>Project file</source>
        <translation>Fichier du projet</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>sans titre</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Pa&amp;rcourir...</translation>
    </message>
    <message>
        <source>Browse for the project file</source>
        <translation>Rechercher le fichier du projet</translation>
    </message>
    <message>
        <source>Kelpa projects (*%1)</source>
        <translation>Projets Kelpa (*%1)</translation>
    </message>
    <message>
        <source>Enter the name of the project file.</source>
        <translation>Saisissez le nom du fichier du projet.</translation>
    </message>
    <message>
        <source>Enter the whole path of the project file, with its folder.</source>
        <translation>Saisissez le chemin complet du fichier du projet, avec son dossier.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>Le dossier %1 n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>Impossible d&apos;écrire dans le dossier %1.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 n&apos;est pas un fichier.</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 existe déjà. Le remplacer ?</translation>
    </message>
    <message>
        <source>%1 is open. Close it first.</source>
        <translation>%1 est ouvert. Fermez-le d&apos;abord.</translation>
    </message>
</context>
<context>
    <name>StageOptionPage</name>
    <message>
        <source>The settings could not be saved.</source>
        <translation>Les réglages n’ont pas pu être enregistrés.</translation>
    </message>
</context>
<context>
    <name>StageOptionsDlg</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>StagePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>Il n&apos;y a pas de fenêtre principale.</translation>
    </message>
</context>
<context>
    <name>StageReader</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>is missing; it must be %1</source>
        <translation>manque ; attendu : %1</translation>
    </message>
    <message>
        <source>must be %1, not %2</source>
        <translation>doit être %1, et non %2</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>un nombre de %1 à %2</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>un nombre entier de %1 à %2</translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation>un texte de %1 à %2 caractères</translation>
    </message>
    <message>
        <source>a colour such as &quot;#0080ff&quot;, or &quot;none&quot;</source>
        <translation>une couleur comme &quot;#0080ff&quot;, ou &quot;none&quot;</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true ou false</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>une liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objet</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>l&apos;un de %1</translation>
    </message>
    <message>
        <source>the project was written by a newer program (format version %1; this program reads up to %2)</source>
        <translation>le projet a été écrit par un programme plus récent (version de format %1 ; ce programme lit jusqu&apos;à %2)</translation>
    </message>
    <message>
        <source>must hold 1 to %1 scenes, not %2</source>
        <translation>doit contenir de 1 à %1 scènes, et non %2</translation>
    </message>
    <message>
        <source>a project may hold %1 elements at most</source>
        <translation>un projet peut contenir au plus %1 éléments</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is used by another element</source>
        <translation>&quot;%1&quot; est déjà utilisé par un autre élément</translation>
    </message>
    <message>
        <source>the path of a file</source>
        <translation>le chemin d&apos;un fichier</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>ligne %1, colonne %2</translation>
    </message>
    <message>
        <source>the file holds more than %1 values</source>
        <translation>le fichier contient plus de %1 valeurs</translation>
    </message>
    <message>
        <source>%1: not valid JSON (%2)</source>
        <translation>%1 : JSON non valide (%2)</translation>
    </message>
    <message>
        <source>line 1: the file must hold an object</source>
        <translation>ligne 1 : le fichier doit contenir un objet</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>le fichier n&apos;existe pas</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>ce n&apos;est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>the file is larger than %1</source>
        <translation>le fichier dépasse %1</translation>
    </message>
</context>
<context>
    <name>StageToolBar</name>
    <message>
        <source>Add Re&amp;ctangle</source>
        <translation>Ajouter un re&amp;ctangle</translation>
    </message>
    <message>
        <source>Add &amp;Ellipse</source>
        <translation>Ajouter une &amp;ellipse</translation>
    </message>
    <message>
        <source>Add &amp;Text</source>
        <translation>Ajouter un &amp;texte</translation>
    </message>
    <message>
        <source>Add &amp;Image...</source>
        <translation>Ajouter une &amp;image...</translation>
    </message>
    <message>
        <source>Add Image</source>
        <translation>Ajouter une image</translation>
    </message>
    <message>
        <source>Images (*.svg *.png *.jpg *.jpeg *.gif)</source>
        <translation>Images (*.svg *.png *.jpg *.jpeg *.gif)</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>Plateau</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>Annuler la dernière modification</translation>
    </message>
    <message>
        <source>Redo the last change undone</source>
        <translation>Rétablir la dernière modification annulée</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Delete (Del)</source>
        <translation>Supprimer (Suppr)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>The project holds as many elements as it can.</source>
        <translation>Le projet contient déjà autant d&apos;éléments que possible.</translation>
    </message>
</context>
<context>
    <name>StageView</name>
    <message>
        <source>Stage</source>
        <translation>Plateau</translation>
    </message>
    <message numerus="yes">
        <source>%n element(s) selected</source>
        <translation>
            <numerusform>%n élément sélectionné</numerusform>
            <numerusform>%n éléments sélectionnés</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 selected, at %2, %3</source>
        <translation>%1 sélectionné, en %2, %3</translation>
    </message>
</context>
<context>
    <name>ThemeMenu</name>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>Failed to change theme.</source>
        <translation>Impossible de changer le thème.</translation>
    </message>
    <message>
        <source>The theme change will take effect from the next run.</source>
        <translation>Le changement de thème prendra effet au prochain démarrage.</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <source>May Kelpa Studio look for a new version once a day?</source>
        <translation>Kelpa Studio peut-il chercher une nouvelle version une fois par jour ?</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Autoriser</translation>
    </message>
    <message>
        <source>No address to look for updates is set. You can set it in the preferences, under Updates.</source>
        <translation>Aucune adresse n&apos;est définie pour rechercher des mises à jour. Vous pouvez l&apos;indiquer dans les préférences, sous Mises à jour.</translation>
    </message>
    <message>
        <source>Looking for a new version...</source>
        <translation>Recherche d&apos;une nouvelle version...</translation>
    </message>
    <message>
        <source>Cannot reach %1: no answer within %2 seconds.</source>
        <translation>Impossible de joindre %1 : aucune réponse en %2 secondes.</translation>
    </message>
    <message>
        <source>You are running the latest version of %1, %2.</source>
        <translation>Vous utilisez la dernière version de %1, la %2.</translation>
    </message>
    <message>
        <source>%1 %2 has been released.</source>
        <translation>%1 %2 est sorti.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>elle dépasse %1 octets</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 à l&apos;octet %2</translation>
    </message>
    <message>
        <source>it names no version for &quot;%1&quot;</source>
        <translation>elle n&apos;indique aucune version pour &quot;%1&quot;</translation>
    </message>
    <message>
        <source>it was given up</source>
        <translation>la tentative a été abandonnée</translation>
    </message>
    <message>
        <source>the answer is larger than %1 bytes</source>
        <translation>la réponse dépasse %1 octets</translation>
    </message>
    <message>
        <source>Cannot reach %1: %2.</source>
        <translation>Impossible de joindre %1 : %2.</translation>
    </message>
    <message>
        <source>no answer within %1 seconds</source>
        <translation>aucune réponse en %1 secondes</translation>
    </message>
    <message>
        <source>%1 is not a valid feed: %2.</source>
        <translation>%1 n&apos;est pas une liste de mises à jour valide : %2.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1 %2 has been released!&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1 %2 est sorti !&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Congratulations! You are running the latest version of %1</source>
        <translation>Félicitations ! Vous utilisez la dernière version de %1</translation>
    </message>
    <message>
        <source>No updates are available at the moment.</source>
        <translation>Aucune mise à jour n&apos;est disponible pour le moment.</translation>
    </message>
</context>
<context>
    <name>UpdatesPage</name>
    <message>
        <source>&amp;Look for a new version once a day</source>
        <translation>&amp;Chercher une nouvelle version une fois par jour</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>&amp;Address of the updates:</source>
        <translation>&amp;Adresse des mises à jour :</translation>
    </message>
    <message>
        <source>Address for &amp;problems:</source>
        <translation>Adresse pour les &amp;problèmes :</translation>
    </message>
    <message>
        <source>Address for &amp;suggestions:</source>
        <translation>Adresse pour les &amp;suggestions :</translation>
    </message>
</context>
<context>
    <name>UpdatesPlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>Il n&apos;y a pas de fenêtre principale.</translation>
    </message>
    <message>
        <source>Check Updates...</source>
        <translation>Rechercher des mises à jour...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Signaler un problème</translation>
    </message>
    <message>
        <source>Provide a Suggestion</source>
        <translation>Faire une suggestion</translation>
    </message>
</context>
<context>
    <name>WelcomeOptionPage</name>
    <message>
        <source>&amp;Show the home page while no project is open</source>
        <translation>&amp;Montrer la page d&apos;accueil quand aucun projet n&apos;est ouvert</translation>
    </message>
    <message>
        <source>Home Page</source>
        <translation>Page d&apos;accueil</translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation>Une modification prend effet au prochain démarrage.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Animations for the web, drawn by you</source>
        <translation>Des animations pour le web, dessinées par vous</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Nouveau projet</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Projets récents</translation>
    </message>
    <message>
        <source>Projects that you create or open will be listed here.</source>
        <translation>Les projets que vous créez ou ouvrez seront listés ici.</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>Montrer %1 dans son dossier</translation>
    </message>
    <message>
        <source>Remove %1 from the list</source>
        <translation>Retirer %1 de la liste</translation>
    </message>
    <message>
        <source>%1 was removed from the list.</source>
        <translation>%1 a été retiré de la liste.</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Exemples</translation>
    </message>
    <message>
        <source>On the web</source>
        <translation>Sur le web</translation>
    </message>
    <message>
        <source>Home Page</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Community</source>
        <translation>Communauté</translation>
    </message>
    <message>
        <source>Demo Projects</source>
        <translation>Projets de démonstration</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vidéos</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Actualités</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>The page has lost the program and is trying to reach it again.</source>
        <translation>La page a perdu la liaison avec le programme et essaie de la rétablir.</translation>
    </message>
    <message>
        <source>The page has reached the program again.</source>
        <translation>La page a rétabli la liaison avec le programme.</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>A morning in layers: hills, clouds and trees</source>
        <translation>Un matin en plusieurs plans : collines, nuages et arbres</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Bannière</translation>
    </message>
    <message>
        <source>Two scenes for the top of a page</source>
        <translation>Deux scènes pour le haut d&apos;une page</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>A card that follows the width of its page</source>
        <translation>Une carte qui suit la largeur de sa page</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
</context>
<context>
    <name>WelcomePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>Il n&apos;y a pas de fenêtre principale.</translation>
    </message>
</context>
</TS>
