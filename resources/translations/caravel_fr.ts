<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Sync Now</source>
        <translation>Synchroniser maintenant</translation>
    </message>
    <message>
        <source>Cancel Sync</source>
        <translation>Annuler la synchronisation</translation>
    </message>
    <message>
        <source>Eject PSP</source>
        <translation>Éjecter la PSP</translation>
    </message>
    <message>
        <source>Open Caravel</source>
        <translation>Ouvrir Caravel</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>There is no session bus to reach the helper by.</source>
        <translation>Il n’y a pas de bus de session pour joindre l’assistant.</translation>
    </message>
    <message>
        <source>The helper did not answer: %@</source>
        <translation>L’assistant n’a pas répondu : %@</translation>
    </message>
    <message>
        <source>The helper was started but did not appear.</source>
        <translation>L’assistant a été lancé, mais il n’est pas apparu.</translation>
    </message>
    <message>
        <source>The helper is not installed. Please install Caravel again.</source>
        <translation>L’assistant n’est pas installé. Veuillez réinstaller Caravel.</translation>
    </message>
    <message>
        <source>The helper can't be started.</source>
        <translation>L’assistant ne peut pas être lancé.</translation>
    </message>
    <message>
        <source>The helper keeps ending by itself.</source>
        <translation>L’assistant s’arrête sans cesse de lui-même.</translation>
    </message>
    <message>
        <source>%@ (%@ entries)</source>
        <translation>%@ (%@ éléments)</translation>
    </message>
    <message>
        <source>%@ copied</source>
        <translation>%@ copiés</translation>
    </message>
    <message>
        <source>%@ free of %@</source>
        <translation>%@ libres sur %@</translation>
    </message>
    <message>
        <source>%@ in place</source>
        <translation>%@ en place</translation>
    </message>
    <message>
        <source>%@ kept on this computer</source>
        <translation>%@ conservés sur cet ordinateur</translation>
    </message>
    <message>
        <source>%@ left out</source>
        <translation>%@ laissés de côté</translation>
    </message>
    <message>
        <source>%@ missing</source>
        <translation>%@ manquants</translation>
    </message>
    <message>
        <source>%@ of %@</source>
        <translation>%@ sur %@</translation>
    </message>
    <message>
        <source>%@ removed</source>
        <translation>%@ supprimés</translation>
    </message>
    <message>
        <source>%@ replaced</source>
        <translation>%@ remplacés</translation>
    </message>
    <message>
        <source>%@ to copy</source>
        <translation>%@ à copier</translation>
    </message>
    <message>
        <source>%@ to remove</source>
        <translation>%@ à supprimer</translation>
    </message>
    <message>
        <source>%@ to replace</source>
        <translation>%@ à remplacer</translation>
    </message>
    <message>
        <source>%@ too much for %@</source>
        <translation>%@ de trop pour %@</translation>
    </message>
    <message>
        <source>%@, %@ a second, %@ left</source>
        <translation>%@, %@ par seconde, reste %@</translation>
    </message>
    <message>
        <source>%@, from %@ to %@</source>
        <translation>%@, de %@ à %@</translation>
    </message>
    <message>
        <source>%@, from %@</source>
        <translation>%@, à partir de %@</translation>
    </message>
    <message>
        <source>%@: left out</source>
        <translation>%@ : laissés de côté</translation>
    </message>
    <message>
        <source>%@: to copy</source>
        <translation>%@ : à copier</translation>
    </message>
    <message>
        <source>%@: to remove</source>
        <translation>%@ : à supprimer</translation>
    </message>
    <message>
        <source>%@: to replace</source>
        <translation>%@ : à remplacer</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;PSP</source>
        <translation>&amp;PSP</translation>
    </message>
    <message>
        <source>A sync is running.</source>
        <translation>Une synchronisation est en cours.</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>Brings the Memory Stick up to date with your selection</source>
        <translation>Met le Memory Stick à jour avec votre sélection</translation>
    </message>
    <message>
        <source>Capacity of the Memory Stick after the sync</source>
        <translation>Occupation du Memory Stick après la synchronisation</translation>
    </message>
    <message>
        <source>Caravel copies what you select in the next window to the PSP's Memory Stick, and removes there, from the folders of music, photos and movies, what is not selected any more. Files that it did not place itself are first copied to this computer, and your media on this computer are only read.</source>
        <translation>Caravel copie sur le Memory Stick de la PSP ce que vous sélectionnez dans la fenêtre suivante et y supprime, dans les dossiers de musique, de photos et de films, ce qui n’est plus sélectionné. Les fichiers qu’il n’a pas placés lui-même sont d’abord copiés sur cet ordinateur, et vos médias sur cet ordinateur sont uniquement lus.</translation>
    </message>
    <message>
        <source>Caravel's helper is being started.</source>
        <translation>L’assistant de Caravel est en cours de lancement.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Closes this message</source>
        <translation>Ferme ce message</translation>
    </message>
    <message>
        <source>Connect the PSP with a USB cable and choose "USB Connection" in its settings, or put its Memory Stick into a card reader.</source>
        <translation>Reliez la PSP par un câble USB et choisissez « Connexion USB » dans ses paramètres, ou insérez son Memory Stick dans un lecteur de cartes.</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contacts</translation>
    </message>
    <message>
        <source>Everything is written to it. You can disconnect the PSP now.</source>
        <translation>Tout y est écrit. Vous pouvez maintenant débrancher la PSP.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Files on the Memory Stick that no sync placed: %@. They will be removed from it, but are kept: copies of them come to lie in %@.</source>
        <translation>Fichiers du Memory Stick qu’aucune synchronisation n’a placés : %@. Ils en seront supprimés, mais conservés : des copies en sont faites dans %@.</translation>
    </message>
    <message>
        <source>Files on the Memory Stick that no sync placed: %@. They will be removed, and your settings keep no copies.</source>
        <translation>Fichiers du Memory Stick qu’aucune synchronisation n’a placés : %@. Ils seront supprimés, et vos réglages n’en gardent aucune copie.</translation>
    </message>
    <message>
        <source>Files that a sync would change</source>
        <translation>Fichiers qu’une synchronisation changerait</translation>
    </message>
    <message>
        <source>Files that were left out or kept</source>
        <translation>Fichiers laissés de côté ou conservés</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Game Saves</source>
        <translation>Sauvegardes de jeux</translation>
    </message>
    <message>
        <source>Kept on this computer, as no sync had placed them</source>
        <translation>Conservés sur cet ordinateur, car aucune synchronisation ne les avait placés</translation>
    </message>
    <message>
        <source>Kinds of media</source>
        <translation>Types de médias</translation>
    </message>
    <message>
        <source>Last Sync...</source>
        <translation>Dernière synchronisation…</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Laissés de côté</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Memory Stick</source>
        <translation>Memory Stick</translation>
    </message>
    <message>
        <source>No PSP is connected</source>
        <translation>Aucune PSP n’est connectée</translation>
    </message>
    <message>
        <source>No PSP is connected.</source>
        <translation>Aucune PSP n’est connectée.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Nothing was copied: the Memory Stick has no room for all of it</source>
        <translation>Rien n’a été copié : le Memory Stick n’a pas de place pour tout</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>Preview...</source>
        <translation>Aperçu…</translation>
    </message>
    <message>
        <source>Progress of the sync</source>
        <translation>Progression de la synchronisation</translation>
    </message>
    <message>
        <source>Read Anew</source>
        <translation>Relire</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Réglages…</translation>
    </message>
    <message>
        <source>Show Report...</source>
        <translation>Afficher le rapport…</translation>
    </message>
    <message>
        <source>Shows what a sync would do, without doing it</source>
        <translation>Montre ce qu’une synchronisation ferait, sans le faire</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Lancement…</translation>
    </message>
    <message>
        <source>Starts the helper</source>
        <translation>Lance l’assistant</translation>
    </message>
    <message>
        <source>Stops the sync; the next one completes it</source>
        <translation>Arrête la synchronisation ; la suivante l’achève</translation>
    </message>
    <message>
        <source>The Last Sync</source>
        <translation>La dernière synchronisation</translation>
    </message>
    <message>
        <source>The Memory Stick could not be looked at.</source>
        <translation>Le Memory Stick n’a pas pu être examiné.</translation>
    </message>
    <message>
        <source>The Memory Stick was ejected</source>
        <translation>Le Memory Stick a été éjecté</translation>
    </message>
    <message>
        <source>The copies lie in %@. What should go back to the Memory Stick belongs in a dropbox.</source>
        <translation>Les copies se trouvent dans %@. Ce qui doit revenir sur le Memory Stick se met dans une dropbox.</translation>
    </message>
    <message>
        <source>The sync is complete but for what was left out</source>
        <translation>La synchronisation est complète, sauf ce qui a été laissé de côté</translation>
    </message>
    <message>
        <source>The sync is complete</source>
        <translation>La synchronisation est complète</translation>
    </message>
    <message>
        <source>The sync was cancelled</source>
        <translation>La synchronisation a été annulée</translation>
    </message>
    <message>
        <source>The sync was cut short: the Memory Stick was full</source>
        <translation>La synchronisation a été interrompue : le Memory Stick était plein</translation>
    </message>
    <message>
        <source>The sync was cut short: the PSP went away</source>
        <translation>La synchronisation a été interrompue : la PSP n’était plus là</translation>
    </message>
    <message>
        <source>There is no helper</source>
        <translation>Il n’y a pas d’assistant</translation>
    </message>
    <message>
        <source>There was no sync yet</source>
        <translation>Il n’y a pas encore eu de synchronisation</translation>
    </message>
    <message>
        <source>This is too much for the Memory Stick: nothing would be copied. Please deselect something.</source>
        <translation>C’est trop pour le Memory Stick : rien ne serait copié. Veuillez désélectionner quelque chose.</translation>
    </message>
    <message>
        <source>To remove, though no sync placed them</source>
        <translation>À supprimer, bien qu’aucune synchronisation ne les ait placés</translation>
    </message>
    <message>
        <source>To replace, though no sync placed them</source>
        <translation>À remplacer, bien qu’aucune synchronisation ne les ait placés</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Welcome to Caravel</source>
        <translation>Bienvenue dans Caravel</translation>
    </message>
    <message>
        <source>What a Sync Would Do</source>
        <translation>Ce que ferait une synchronisation</translation>
    </message>
    <message>
        <source>Where Your Media Are...</source>
        <translation>Où sont vos médias…</translation>
    </message>
    <message>
        <source>Where are your media?</source>
        <translation>Où sont vos médias ?</translation>
    </message>
    <message>
        <source>Working out what a sync would do...</source>
        <translation>Calcul de ce que ferait une synchronisation…</translation>
    </message>
    <message>
        <source>Writes out all that waits and lets go of the Memory Stick</source>
        <translation>Écrit tout ce qui attend et libère le Memory Stick</translation>
    </message>
    <message>
        <source>a link on the Memory Stick is in the way</source>
        <translation>un lien sur le Memory Stick fait obstacle</translation>
    </message>
    <message>
        <source>belongs to a file that is left out</source>
        <translation>accompagne un fichier laissé de côté</translation>
    </message>
    <message>
        <source>not found on this computer</source>
        <translation>introuvable sur cet ordinateur</translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>rien à faire</translation>
    </message>
    <message>
        <source>too large for the Memory Stick</source>
        <translation>trop gros pour le Memory Stick</translation>
    </message>
    <message>
        <source>too much for the Memory Stick</source>
        <translation>trop pour le Memory Stick</translation>
    </message>
    <message>
        <source>what is there could not be kept</source>
        <translation>ce qui s’y trouve n’a pas pu être conservé</translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation>Initialisation…</translation>
    </message>
    <message>
        <source>No PSP Connected</source>
        <translation>Aucune PSP connectée</translation>
    </message>
    <message>
        <source>Connect a PSP to perform a sync.</source>
        <translation>Connectez une PSP pour lancer une synchronisation.</translation>
    </message>
    <message>
        <source>%@ Available</source>
        <extracomment>The free space of the PSP.</extracomment>
        <translation>%@ disponibles</translation>
    </message>
    <message>
        <source>Click &quot;Sync Now&quot; to perform a sync.</source>
        <translation>Cliquez sur « Synchroniser maintenant » pour lancer une synchronisation.</translation>
    </message>
    <message>
        <source>Last Sync: %@</source>
        <extracomment>The day and the time, or &quot;Never&quot;.</extracomment>
        <translation>Dernière synchronisation : %@</translation>
    </message>
    <message>
        <source>Never</source>
        <extracomment>In the place of the last sync&apos;s date.</extracomment>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>%@ found</source>
        <translation>%@ trouvés</translation>
    </message>
    <message>
        <source>%@ has nothing to choose from: %@</source>
        <translation>%@ ne contient rien à choisir : %@</translation>
    </message>
    <message>
        <source>%@ movies have been removed.</source>
        <translation>%@ films ont été supprimés.</translation>
    </message>
    <message>
        <source>%@ of %@ selected</source>
        <translation>%@ sur %@ sélectionnés</translation>
    </message>
    <message>
        <source>%@ of %@ shown</source>
        <translation>%@ sur %@ affichés</translation>
    </message>
    <message>
        <source>2.00 or later</source>
        <translation>2.00 ou ultérieur</translation>
    </message>
    <message>
        <source>1.x</source>
        <translation>1.x</translation>
    </message>
    <message>
        <source>320 × 240</source>
        <translation>320 × 240</translation>
    </message>
    <message>
        <source>368 × 208</source>
        <translation>368 × 208</translation>
    </message>
    <message>
        <source>480 × 272 (the PSP&apos;s own)</source>
        <translation>480 × 272 (celle de la PSP)</translation>
    </message>
    <message>
        <source>720 × 480 (for a TV)</source>
        <translation>720 × 480 (pour un téléviseur)</translation>
    </message>
    <message>
        <source>A better one takes more room on the PSP.</source>
        <translation>Une meilleure qualité prend plus de place sur la PSP.</translation>
    </message>
    <message>
        <source>A selection of its own for each Memory Stick</source>
        <translation>Une sélection propre à chaque Memory Stick</translation>
    </message>
    <message>
        <source>Add Movies</source>
        <translation>Ajouter des films</translation>
    </message>
    <message>
        <source>Add Movies...</source>
        <translation>Ajouter des films…</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Albums come from</source>
        <translation>Les albums viennent de</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Also after a movie has been converted.</source>
        <translation>Aussi après la conversion d'un film.</translation>
    </message>
    <message>
        <source>Another: %@</source>
        <translation>Autre : %@</translation>
    </message>
    <message>
        <source>Artist and album</source>
        <translation>Artiste et album</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artiste</translation>
    </message>
    <message>
        <source>Backups of %@</source>
        <translation>Sauvegardes de %@</translation>
    </message>
    <message>
        <source>Backups of each game save</source>
        <translation>Sauvegardes de chaque partie</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sauvegardes</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>La meilleure</translation>
    </message>
    <message>
        <source>Bookmarks come from</source>
        <translation>Les signets viennent de</translation>
    </message>
    <message>
        <source>Caravel waits for the PSP as long as you are logged in, and shows its icon in the tray.</source>
        <translation>Caravel attend la PSP tant que vous êtes connecté et affiche son icône dans la barre.</translation>
    </message>
    <message>
        <source>Checks all that is shown.</source>
        <translation>Coche tout ce qui est affiché.</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Chromium and its kin</source>
        <translation>Chromium et apparentés</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Contacts and Saves</source>
        <translation>Contacts et parties</translation>
    </message>
    <message>
        <source>Converts files to what the PSP plays.</source>
        <translation>Convertit des fichiers au format lu par la PSP.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Default: %@</source>
        <translation>Par défaut : %@</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>Désentrelacer</translation>
    </message>
    <message>
        <source>Delete All...</source>
        <translation>Tout supprimer…</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>Supprimer…</translation>
    </message>
    <message>
        <source>Disc and track</source>
        <translation>Le disque et la piste</translation>
    </message>
    <message>
        <source>Each file is named. Useful where something doesn&apos;t work.</source>
        <translation>Chaque fichier est nommé. Utile lorsque quelque chose ne fonctionne pas.</translation>
    </message>
    <message>
        <source>Each source has a selection of its own.</source>
        <translation>Chaque source a sa propre sélection.</translation>
    </message>
    <message>
        <source>Each sync copies the game saves that have changed to this computer.</source>
        <translation>Chaque synchronisation copie sur cet ordinateur les parties qui ont changé.</translation>
    </message>
    <message>
        <source>Edits the name of the selected movie.</source>
        <translation>Modifie le nom du film sélectionné.</translation>
    </message>
    <message>
        <source>Eject the PSP after a sync</source>
        <translation>Éjecter la PSP après une synchronisation</translation>
    </message>
    <message>
        <source>Empties the log for good.</source>
        <translation>Vide définitivement le journal.</translation>
    </message>
    <message>
        <source>Empties the search.</source>
        <translation>Vide la recherche.</translation>
    </message>
    <message>
        <source>Everybody in this computer&apos;s address book is put on one page, with a small picture where there is one. It is made anew at each sync, and only where something has changed it is written.

The PSP shows the page in its browser: with bookmarks synced, one of them leads there. System software 2.00 or later is needed.</source>
        <translation>Toutes les personnes du carnet d'adresses de cet ordinateur figurent sur une page, avec une petite image s'il y en a une. Elle est refaite à chaque synchronisation et n'est écrite que si quelque chose a changé.

La PSP affiche la page dans son navigateur : si les signets sont synchronisés, l'un d'eux y mène. Le logiciel système 2.00 ou ultérieur est nécessaire.</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Files that something else has put there go too. Otherwise only files that an earlier sync has placed are removed.</source>
        <translation>Les fichiers placés là par autre chose partent aussi. Sinon, seuls ceux qu'une synchronisation précédente a placés sont supprimés.</translation>
    </message>
    <message>
        <source>Firefox (page)</source>
        <translation>Firefox (page)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Folders and playlists</source>
        <translation>Dossiers et listes de lecture</translation>
    </message>
    <message>
        <source>Folders of music on the PSP</source>
        <translation>Dossiers de musique sur la PSP</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Suivre</translation>
    </message>
    <message>
        <source>For movies that are added from now on. The two large sizes need system software 3.30 or later.</source>
        <translation>Pour les films ajoutés à partir de maintenant. Les deux grandes tailles nécessitent le logiciel système 3.30 ou ultérieur.</translation>
    </message>
    <message>
        <source>For recordings of television that show combs where things move.</source>
        <translation>Pour les enregistrements de télévision qui montrent des peignes dans les mouvements.</translation>
    </message>
    <message>
        <source>Game save</source>
        <translation>Partie</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Jeu</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bonne</translation>
    </message>
    <message>
        <source>It is kept on the stick. Such a stick is never synced as soon as it is connected.</source>
        <translation>Elle est gardée sur le stick. Un tel stick n'est jamais synchronisé dès qu'il est connecté.</translation>
    </message>
    <message>
        <source>It is no longer in this list then. The PSP&apos;s own game save stays as it is.</source>
        <translation>Elle n'est plus dans cette liste ensuite. La partie qui est sur la PSP reste telle quelle.</translation>
    </message>
    <message>
        <source>It lies in “Removed from PSP” in the folder “Caravel”.</source>
        <translation>Elle se trouve dans « Removed from PSP » dans le dossier « Caravel ».</translation>
    </message>
    <message>
        <source>Keep a copy of removed files that no sync has placed</source>
        <translation>Garder une copie des fichiers supprimés qu'aucune synchronisation n'a placés</translation>
    </message>
    <message>
        <source>Keep game saves</source>
        <translation>Garder les parties sauvegardées</translation>
    </message>
    <message>
        <source>Keeps the newest line in sight.</source>
        <translation>Garde la ligne la plus récente visible.</translation>
    </message>
    <message>
        <source>Kept on</source>
        <translation>Gardée le</translation>
    </message>
    <message>
        <source>Last kept</source>
        <translation>Dernière garde</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>La moindre</translation>
    </message>
    <message>
        <source>Least, at half the frames</source>
        <translation>La moindre, avec moitié moins d'images</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement…</translation>
    </message>
    <message>
        <source>Move all backups of “%@” to the Trash (%@)?</source>
        <translation>Mettre toutes les sauvegardes de « %@ » à la corbeille (%@) ?</translation>
    </message>
    <message>
        <source>Move the backup of “%@” from %@ to the Trash?</source>
        <translation>Mettre à la corbeille la sauvegarde de « %@ » du %@ ?</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message>
        <source>Moves all backups of the game save to the Trash.</source>
        <translation>Met toutes les sauvegardes de la partie à la corbeille.</translation>
    </message>
    <message>
        <source>Moves the selected backup to the Trash.</source>
        <translation>Met la sauvegarde sélectionnée à la corbeille.</translation>
    </message>
    <message>
        <source>Moves the selected movies to the Trash, or takes them out of the conversion.</source>
        <translation>Met les films sélectionnés à la corbeille, ou les retire de la conversion.</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Music, photos and movies in the folder “Dropboxes” come along without being selected.</source>
        <translation>La musique, les photos et les films du dossier « Dropboxes » sont pris sans être sélectionnés.</translation>
    </message>
    <message>
        <source>Names of photos begin with</source>
        <translation>Les noms des photos commencent par</translation>
    </message>
    <message>
        <source>Names of songs begin with</source>
        <translation>Les noms des morceaux commencent par</translation>
    </message>
    <message>
        <source>Newer on the PSP than what is kept</source>
        <translation>Plus récente sur la PSP que la sauvegarde</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>No game save is kept yet. They are copied from the PSP at each sync.</source>
        <translation>Aucune partie n'est encore gardée. Elles sont copiées depuis la PSP à chaque synchronisation.</translation>
    </message>
    <message>
        <source>Not everything could be put back. Look for it in the Trash.</source>
        <translation>Tout n'a pas pu être remis en place. Cherchez dans la corbeille.</translation>
    </message>
    <message>
        <source>Nothing else was found on this computer.</source>
        <translation>Rien d'autre n'a été trouvé sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Nothing of %@ was found on this computer. It would lie here: %@</source>
        <translation>Rien de %@ n'a été trouvé sur cet ordinateur. Ce serait ici : %@</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Rien</translation>
    </message>
    <message>
        <source>Of the game save that is selected above.</source>
        <translation>De la partie sélectionnée ci-dessus.</translation>
    </message>
    <message>
        <source>Of the movie&apos;s own. More than 100 % makes it louder.</source>
        <translation>Par rapport à celui du film. Plus de 100 % le rend plus fort.</translation>
    </message>
    <message>
        <source>Older ones are removed.</source>
        <translation>Les plus anciennes sont supprimées.</translation>
    </message>
    <message>
        <source>On the PSP, not kept yet</source>
        <translation>Sur la PSP, pas encore gardée</translation>
    </message>
    <message>
        <source>Only Memory Sticks that have been synced before.</source>
        <translation>Seulement les Memory Sticks déjà synchronisés.</translation>
    </message>
    <message>
        <source>Only when the sync was completed.</source>
        <translation>Seulement si la synchronisation est complète.</translation>
    </message>
    <message>
        <source>Open this window when a PSP is connected</source>
        <translation>Ouvrir cette fenêtre quand une PSP est connectée</translation>
    </message>
    <message>
        <source>Otherwise a sync removes the movies from the PSP.</source>
        <translation>Sinon, une synchronisation retire les films de la PSP.</translation>
    </message>
    <message>
        <source>Otherwise a sync removes the music from the PSP.</source>
        <translation>Sinon, une synchronisation retire la musique de la PSP.</translation>
    </message>
    <message>
        <source>Otherwise a sync removes the photos from the PSP.</source>
        <translation>Sinon, une synchronisation retire les photos de la PSP.</translation>
    </message>
    <message>
        <source>Otherwise a sync leaves the bookmarks of the PSP&apos;s browser as they are.</source>
        <translation>Sinon, une synchronisation laisse les signets du navigateur de la PSP tels quels.</translation>
    </message>
    <message>
        <source>Otherwise only the icon in the tray tells of it.</source>
        <translation>Sinon, seule l'icône de la barre l'indique.</translation>
    </message>
    <message>
        <source>Place of Caravel&apos;s folder</source>
        <translation>Emplacement du dossier de Caravel</translation>
    </message>
    <message>
        <source>Play a sound after a sync</source>
        <translation>Jouer un son après une synchronisation</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Liste de lecture</translation>
    </message>
    <message>
        <source>Playlists come from</source>
        <translation>Les listes de lecture viennent de</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Profile of the browser</source>
        <translation>Profil du navigateur</translation>
    </message>
    <message>
        <source>Put the backup of “%@” from %@ back on the PSP?</source>
        <translation>Remettre sur la PSP la sauvegarde de « %@ » du %@ ?</translation>
    </message>
    <message>
        <source>Puts the selected backup back on the PSP.</source>
        <translation>Remet la sauvegarde sélectionnée sur la PSP.</translation>
    </message>
    <message>
        <source>Quality of the picture</source>
        <translation>Qualité de l'image</translation>
    </message>
    <message>
        <source>Quality of the sound</source>
        <translation>Qualité du son</translation>
    </message>
    <message>
        <source>Remove what is not selected from the media folders</source>
        <translation>Supprimer des dossiers de médias ce qui n'est pas sélectionné</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Restore...</source>
        <translation>Restaurer…</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Ne rien sélectionner</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Shows what holds these words. What is out of sight stays as it is.</source>
        <translation>Affiche ce qui contient ces mots. Ce qui n'est pas visible reste tel quel.</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Taille de l'image</translation>
    </message>
    <message>
        <source>Songs</source>
        <translation>Morceaux</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Lancer à l'ouverture de session</translation>
    </message>
    <message>
        <source>Such a stick has to be formatted by the PSP before it can be synced.</source>
        <translation>Un tel stick doit être formaté par la PSP avant de pouvoir être synchronisé.</translation>
    </message>
    <message>
        <source>Sync as soon as a PSP is connected</source>
        <translation>Synchroniser dès qu'une PSP est connectée</translation>
    </message>
    <message>
        <source>Sync bookmarks</source>
        <translation>Synchroniser les signets</translation>
    </message>
    <message>
        <source>Sync contacts</source>
        <translation>Synchroniser les contacts</translation>
    </message>
    <message>
        <source>Sync movies</source>
        <translation>Synchroniser les films</translation>
    </message>
    <message>
        <source>Sync music</source>
        <translation>Synchroniser la musique</translation>
    </message>
    <message>
        <source>Sync photos</source>
        <translation>Synchroniser les photos</translation>
    </message>
    <message>
        <source>Sync the dropboxes</source>
        <translation>Synchroniser les dossiers de dépôt</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Synchronisation</translation>
    </message>
    <message>
        <source>System software of the PSP</source>
        <translation>Logiciel système de la PSP</translation>
    </message>
    <message>
        <source>Take %@ (%@)</source>
        <translation>Prendre %@ (%@)</translation>
    </message>
    <message>
        <source>Take %@</source>
        <translation>Prendre %@</translation>
    </message>
    <message>
        <source>Tell about Memory Sticks without the PSP&apos;s folders</source>
        <translation>Signaler les Memory Sticks sans les dossiers de la PSP</translation>
    </message>
    <message>
        <source>The PSP plays the songs of a folder in the order of their names.</source>
        <translation>La PSP lit les morceaux d'un dossier dans l'ordre de leurs noms.</translation>
    </message>
    <message>
        <source>The PSP shows the photos of a folder in the order of their names.</source>
        <translation>La PSP montre les photos d'un dossier dans l'ordre de leurs noms.</translation>
    </message>
    <message>
        <source>The conversion failed</source>
        <translation>La conversion a échoué</translation>
    </message>
    <message>
        <source>The first one plays only MP3 music, shows only JPEG photos, and has no browser for bookmarks and contacts.</source>
        <translation>Le premier ne lit que la musique MP3, n'affiche que les photos JPEG et n'a pas de navigateur pour les signets et les contacts.</translation>
    </message>
    <message>
        <source>The folder “Caravel” there holds converted movies, game saves and the dropboxes. What the old place holds is not moved.</source>
        <translation>Le dossier « Caravel » y contient les films convertis, les parties et les dossiers de dépôt. Ce que contient l'ancien emplacement n'est pas déplacé.</translation>
    </message>
    <message>
        <source>The game save has not been put back.</source>
        <translation>La partie n'a pas été remise en place.</translation>
    </message>
    <message>
        <source>The game save is being put back on the PSP...</source>
        <translation>Remise de la partie sur la PSP…</translation>
    </message>
    <message>
        <source>The game save is on the PSP.</source>
        <translation>La partie est sur la PSP.</translation>
    </message>
    <message>
        <source>The game save that is on the PSP now is kept as the newest backup, and then replaced.</source>
        <translation>La partie qui est maintenant sur la PSP est gardée comme sauvegarde la plus récente, puis remplacée.</translation>
    </message>
    <message>
        <source>The helper has given no answer.</source>
        <translation>Le programme auxiliaire n'a pas répondu.</translation>
    </message>
    <message>
        <source>The helper has not taken the selection as it was made. What is shown now is what it has.</source>
        <translation>Le programme auxiliaire n'a pas repris la sélection telle quelle. Ce qui est affiché maintenant est ce qu'il a.</translation>
    </message>
    <message>
        <source>The last 10</source>
        <translation>Les 10 dernières</translation>
    </message>
    <message>
        <source>The last 25</source>
        <translation>Les 25 dernières</translation>
    </message>
    <message>
        <source>The last 50</source>
        <translation>Les 50 dernières</translation>
    </message>
    <message>
        <source>The movies could not be added.</source>
        <translation>Les films n'ont pas pu être ajoutés.</translation>
    </message>
    <message>
        <source>The name or the folder of a profile of Firefox or Chromium. Left empty, the first one is taken.</source>
        <translation>Le nom ou le dossier d'un profil de Firefox ou Chromium. Laissé vide, le premier est pris.</translation>
    </message>
    <message>
        <source>The position in the album</source>
        <translation>La position dans l'album</translation>
    </message>
    <message>
        <source>The position in the playlist</source>
        <translation>La position dans la liste de lecture</translation>
    </message>
    <message>
        <source>The preferences can&apos;t be written.</source>
        <translation>Les préférences ne peuvent pas être écrites.</translation>
    </message>
    <message>
        <source>The selected lines, or all of them.</source>
        <translation>Les lignes sélectionnées, ou toutes.</translation>
    </message>
    <message>
        <source>The source that is chosen in the settings is unknown.</source>
        <translation>La source choisie dans les réglages est inconnue.</translation>
    </message>
    <message>
        <source>The whole address book, as a page for the PSP&apos;s browser.</source>
        <translation>Tout le carnet d'adresses, en une page pour le navigateur de la PSP.</translation>
    </message>
    <message>
        <source>There is no movie yet. Add one with the button, or drop its file here: it is converted to what the PSP plays.</source>
        <translation>Il n'y a pas encore de film. Ajoutez-en un avec le bouton, ou déposez son fichier ici : il est converti au format lu par la PSP.</translation>
    </message>
    <message>
        <source>This can&apos;t be a movie&apos;s name: %@</source>
        <translation>Un film ne peut pas s'appeler ainsi : %@</translation>
    </message>
    <message>
        <source>This must be a full path, or one that begins with &quot;~/&quot;.</source>
        <translation>Ce doit être un chemin complet, ou commençant par « ~/ ».</translation>
    </message>
    <message>
        <source>Those of the page that is shown.</source>
        <translation>Ceux de la page affichée.</translation>
    </message>
    <message>
        <source>Unchecks all that is shown.</source>
        <translation>Décoche tout ce qui est affiché.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler l'action</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume sonore</translation>
    </message>
    <message>
        <source>Waits for its conversion</source>
        <translation>Attend sa conversion</translation>
    </message>
    <message>
        <source>What %@ has written can&apos;t be read; it may be damaged: %@</source>
        <translation>Ce que %@ a écrit ne peut pas être lu ; c'est peut-être endommagé : %@</translation>
    </message>
    <message>
        <source>What the songs of one folder have in common.</source>
        <translation>Ce que les morceaux d'un dossier ont en commun.</translation>
    </message>
    <message>
        <source>Write a detailed log</source>
        <translation>Écrire un journal détaillé</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>off</source>
        <translation>non</translation>
    </message>
    <message>
        <source>on</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>selected and out of sight: %@</source>
        <translation>sélectionnés et hors de vue : %@</translation>
    </message>
    <message>
        <source>“%@” has been moved to the Trash.</source>
        <translation>« %@ » a été mis à la corbeille.</translation>
    </message>
    <message>
        <source>“%@” has been taken out of the conversion.</source>
        <translation>« %@ » a été retiré de la conversion.</translation>
    </message>
    <message>
        <source>“Firefox (page)” is an old one, which keeps its bookmarks in a page.</source>
        <translation>« Firefox (page) » est un ancien, qui garde ses signets dans une page.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Rétablir les valeurs par défaut</translation>
    </message>
    <message>
        <source>today</source>
        <extracomment>As it stands in the middle of a sentence; the program capitalises it and appends the time.</extracomment>
        <translation>aujourd’hui</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <extracomment>As it stands in the middle of a sentence; the program capitalises it and appends the time.</extracomment>
        <translation>demain</translation>
    </message>
    <message>
        <source>yesterday</source>
        <extracomment>As it stands in the middle of a sentence; the program capitalises it and appends the time.</extracomment>
        <translation>hier</translation>
    </message>
    <message>
        <source>Preparing to Sync...</source>
        <translation>Préparation de la synchronisation…</translation>
    </message>
    <message>
        <source>One moment, Caravel is gathering information...</source>
        <translation>Un instant, Caravel recueille les informations nécessaires…</translation>
    </message>
    <message>
        <source>Cleaning Up...</source>
        <translation>Nettoyage…</translation>
    </message>
    <message>
        <source>Caravel is removing unneeded files...</source>
        <translation>Caravel supprime les fichiers devenus inutiles…</translation>
    </message>
    <message>
        <source>Starting Sync...</source>
        <translation>Démarrage de la synchronisation…</translation>
    </message>
    <message>
        <source>Caravel is copying selected files...</source>
        <translation>Caravel copie les fichiers sélectionnés…</translation>
    </message>
    <message>
        <source>Syncing %@...</source>
        <extracomment>The kind of media, as &quot;Music&quot;.</extracomment>
        <translation>Synchronisation : %@…</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musique</translation>
    </message>
    <message>
        <source>Conversion in progress...</source>
        <translation>Conversion en cours…</translation>
    </message>
    <message>
        <source>Cancelling Sync...</source>
        <translation>Annulation de la synchronisation…</translation>
    </message>
    <message>
        <source>Please wait while Caravel completes the previous task...</source>
        <translation>Veuillez patienter pendant que Caravel termine l’opération en cours…</translation>
    </message>
    <message>
        <source>Sync Successful</source>
        <translation>Synchronisation réussie</translation>
    </message>
    <message>
        <source>Sync Cancelled</source>
        <translation>Synchronisation annulée</translation>
    </message>
    <message>
        <source>Sync was cancelled.</source>
        <extracomment>A line of the log.</extracomment>
        <translation>La synchronisation a été annulée.</translation>
    </message>
    <message>
        <source>You must re-sync to ensure the PSP is up to date.</source>
        <translation>Relancez une synchronisation pour que la PSP soit à jour.</translation>
    </message>
    <message>
        <source>Ejecting PSP...</source>
        <translation>Éjection de la PSP…</translation>
    </message>
    <message>
        <source>One moment, Caravel is preparing your PSP for ejection...</source>
        <translation>Un instant, Caravel prépare l’éjection de votre PSP…</translation>
    </message>
    <message>
        <source>Eject Failed</source>
        <translation>Échec de l’éjection</translation>
    </message>
    <message>
        <source>The PSP may be in use by another application.</source>
        <translation>La PSP est peut-être utilisée par une autre application.</translation>
    </message>
    <message>
        <source>Unformatted memory stick found!</source>
        <translation>Memory Stick non formaté détecté !</translation>
    </message>
    <message>
        <source>A Memory Stick was found, however it is not formatted for use with a PSP.

If you intend to use this Memory Stick with the PSP and Caravel, you must first format it from the PSP&apos;s main menu.</source>
        <translation>Un Memory Stick a été détecté, mais il n’est pas formaté pour être utilisé avec une PSP.

Si vous souhaitez utiliser ce Memory Stick avec la PSP et Caravel, vous devez d’abord le formater depuis le menu principal de la PSP.</translation>
    </message>
    <message>
        <source>Sync too large!</source>
        <translation>Synchronisation trop volumineuse !</translation>
    </message>
    <message>
        <source>You are attempting to sync %@, however only %@ of free space is available on the Memory Stick currently in your PSP.

Please deselect some media to ensure the sync can be completed.</source>
        <extracomment>First the size of the sync, then the free space: keep the order.</extracomment>
        <translation>Vous tentez de synchroniser %@, mais il ne reste que %@ d’espace libre sur le Memory Stick actuellement inséré dans votre PSP.

Veuillez désélectionner certains médias afin que la synchronisation puisse être menée à bien.</translation>
    </message>
    <message>
        <source>Memory stick full!</source>
        <translation>Memory Stick plein !</translation>
    </message>
    <message>
        <source>The Memory Stick currently inside your PSP has been filled. You must deselect some media to free enough space to complete a sync.</source>
        <translation>Le Memory Stick actuellement inséré dans votre PSP est plein. Vous devez désélectionner certains médias afin de libérer suffisamment d’espace pour terminer une synchronisation.</translation>
    </message>
    <message>
        <source>--</source>
        <extracomment>In the place of a size where there is none.</extracomment>
        <translation>--</translation>
    </message>
    <message>
        <source>%0.0f b</source>
        <extracomment>The number takes the place of the format.</extracomment>
        <translation>%0.0f o</translation>
    </message>
    <message>
        <source>%0.1f KB</source>
        <extracomment>The number takes the place of the format.</extracomment>
        <translation>%0.1f Ko</translation>
    </message>
    <message>
        <source>%0.1f MB</source>
        <extracomment>The number takes the place of the format.</extracomment>
        <translation>%0.1f Mo</translation>
    </message>
    <message>
        <source>%0.1f GB</source>
        <extracomment>The number takes the place of the format.</extracomment>
        <translation>%0.1f Go</translation>
    </message>
    <message>
        <source>%0.1f TB</source>
        <extracomment>The number takes the place of the format.</extracomment>
        <translation>%0.1f To</translation>
    </message>
    <message>
        <source>Conversion in progress, %i%% completed...</source>
        <translation>Conversion en cours, %i%% effectués...</translation>
    </message>
    <message>
        <source>The movie "%@" could not be converted:

%@</source>
        <translation>Impossible de convertir le film « %@ » :

%@</translation>
    </message>
    <message>
        <source>Movie could not be converted!</source>
        <translation>Impossible de convertir le film !</translation>
    </message>
    <message>
        <source>The converter gave no reason.</source>
        <translation>Le convertisseur n’a donné aucune raison.</translation>
    </message>
    <message>
        <source>The converter can't be started: %@</source>
        <translation>Impossible de lancer le convertisseur : %@</translation>
    </message>
    <message>
        <source>Movie is not complete!</source>
        <translation>Le film n’est pas complet !</translation>
    </message>
    <message>
        <source>The movie "%@" was converted, but not all of it is there:

%@</source>
        <translation>Le film « %@ » a été converti, mais il n’est pas complet :

%@</translation>
    </message>
    <message>
        <source>The movie "%@" was converted, but neither the movie library nor the folder %@ could take it. It has to be converted again.</source>
        <translation>Le film « %@ » a été converti, mais ni la bibliothèque de films ni le dossier %@ n’ont pu l’accueillir. Il faut le convertir à nouveau.</translation>
    </message>
    <message>
        <source>Movie could not be stored!</source>
        <translation>Impossible de ranger le film !</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Films</translation>
    </message>
    <message>
        <source>Size: %@</source>
        <translation>Taille : %@</translation>
    </message>
    <message>
        <source>The movie "%@" was converted, but there is no place for it in the movie library. It is kept in the folder %@.</source>
        <translation>Le film « %@ » a été converti, mais il n’y a pas de place pour lui dans la bibliothèque de films. Il est conservé dans le dossier %@.</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Sauvegarde</translation>
    </message>
    <message>
        <source>No description available</source>
        <translation>Aucune description disponible</translation>
    </message>
    <message>
        <source>%@ uses %@</source>
        <translation>%@ utilise %@</translation>
    </message>
    <message>
        <source>Can't eject the PSP now!</source>
        <translation>Impossible d’éjecter la PSP maintenant !</translation>
    </message>
    <message>
        <source>The PSP can't be ejected during a sync.</source>
        <translation>La PSP ne peut pas être éjectée pendant une synchronisation.</translation>
    </message>
    <message>
        <source>Can't change backups now!</source>
        <translation>Impossible de modifier les sauvegardes maintenant !</translation>
    </message>
    <message>
        <source>Can't restore or delete backups during a sync.</source>
        <translation>Impossible de restaurer ou de supprimer des sauvegardes pendant une synchronisation.</translation>
    </message>
    <message>
        <source>The game save on the PSP could not be kept first, so nothing on the PSP was changed.</source>
        <translation>La partie présente sur la PSP n’a pas pu être conservée d’abord ; rien n’a donc été modifié sur la PSP.</translation>
    </message>
    <message>
        <source>The game save that was on the PSP is kept as the newest backup.</source>
        <translation>La partie qui se trouvait sur la PSP est conservée comme sauvegarde la plus récente.</translation>
    </message>
    <message>
        <source>Restoring failed!</source>
        <translation>Échec de la restauration !</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Signets</translation>
    </message>
    <message>
        <source>Bookmarks Bar</source>
        <translation>Barre des signets</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <translation>Menu des signets</translation>
    </message>
    <message>
        <source>Syncing Safari Bookmarks...</source>
        <translation>Synchronisation des signets de Safari…</translation>
    </message>
    <message>
        <source>Syncing Firefox Bookmarks...</source>
        <translation>Synchronisation des signets de Firefox…</translation>
    </message>
    <message>
        <source>Syncing OmniWeb Bookmarks...</source>
        <translation>Synchronisation des signets d’OmniWeb…</translation>
    </message>
    <message>
        <source>Syncing Camino Bookmarks...</source>
        <translation>Synchronisation des signets de Camino…</translation>
    </message>
    <message>
        <source>Syncing Chromium Bookmarks...</source>
        <translation>Synchronisation des signets de Chromium…</translation>
    </message>
    <message>
        <source>Syncing Contact Icons...</source>
        <translation>Synchronisation des images des contacts…</translation>
    </message>
    <message>
        <source>Syncing Contact Index...</source>
        <translation>Synchronisation de la liste des contacts…</translation>
    </message>
    <message>
        <source>No PSP is connected. Nothing was changed.</source>
        <translation>Aucune PSP n’est connectée. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>There is no such backup. Nothing was changed.</source>
        <translation>Cette sauvegarde n’existe pas. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>Sync Incomplete</source>
        <translation>Synchronisation incomplète</translation>
    </message>
    <message>
        <source>PSP Ejected</source>
        <translation>PSP éjectée</translation>
    </message>
    <message>
        <source>It is safe to remove the PSP now.</source>
        <translation>Vous pouvez maintenant retirer la PSP en toute sécurité.</translation>
    </message>
    <message>
        <source>%@ of %@ files could not be copied.</source>
        <translation>%@ fichiers sur %@ n’ont pas pu être copiés.</translation>
    </message>
    <message>
        <source>Reading songs: %@ of %@</source>
        <translation>Lecture des morceaux : %@ sur %@</translation>
    </message>
    <message>
        <source>PSP lost during sync!</source>
        <translation>PSP perdue pendant la synchronisation !</translation>
    </message>
    <message>
        <source>The PSP was disconnected, or its Memory Stick can&apos;t be written any more, before the sync was complete.

You must re-sync to ensure the PSP is up to date.</source>
        <translation>La PSP a été déconnectée, ou il n’est plus possible d’écrire sur son Memory Stick, avant la fin de la synchronisation.

Vous devez relancer la synchronisation pour que la PSP soit à jour.</translation>
    </message>
    <message>
        <source>The sync was not started!</source>
        <translation>La synchronisation n’a pas été lancée !</translation>
    </message>
    <message>
        <source>The preferences can&apos;t be read, so it is not known what you have selected.</source>
        <translation>Les préférences ne peuvent pas être lues : votre sélection n’est donc pas connue.</translation>
    </message>
    <message>
        <source>The preferences were damaged and had to be set aside, your selection with them.

Please select your media anew, then sync.</source>
        <translation>Les préférences étaient endommagées et ont dû être mises de côté, et votre sélection avec elles.

Veuillez sélectionner à nouveau vos médias, puis synchroniser.</translation>
    </message>
    <message>
        <source>The folder &quot;.caravel&quot; on the Memory Stick is a link, and no link is followed there.

Please remove it, then sync.</source>
        <translation>Le dossier « .caravel » du Memory Stick est un lien, et aucun lien n’y est suivi.

Veuillez le supprimer, puis synchroniser.</translation>
    </message>
    <message>
        <source>The selection that is kept on the Memory Stick can&apos;t be read.

Please look at your selection, then click &quot;Sync Now&quot;.</source>
        <translation>La sélection enregistrée sur le Memory Stick ne peut pas être lue.

Veuillez vérifier votre sélection, puis cliquer sur « Synchroniser maintenant ».</translation>
    </message>
    <message>
        <source>The library for &quot;%@&quot; can&apos;t be read. A sync would remove from the PSP what you have selected in it.

Click &quot;Sync Now&quot; to sync all the same.</source>
        <translation>La bibliothèque de « %@ » ne peut pas être lue. Une synchronisation supprimerait de la PSP ce que vous y avez sélectionné.

Cliquez sur « Synchroniser maintenant » pour synchroniser quand même.</translation>
    </message>
    <message>
        <source>A sync would remove more than half of &quot;%@&quot; from the PSP, though your selection is the same. Is a disk with your media missing?

Click &quot;Sync Now&quot; to sync all the same.</source>
        <translation>Une synchronisation supprimerait de la PSP plus de la moitié de « %@ », alors que votre sélection est la même. Un disque contenant vos médias manque-t-il ?

Cliquez sur « Synchroniser maintenant » pour synchroniser quand même.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; comes from another source now. A sync would remove from the PSP what came from the one before.

Click &quot;Sync Now&quot; to sync all the same.</source>
        <translation>« %@ » vient maintenant d’une autre source. Une synchronisation supprimerait de la PSP ce qui venait de la précédente.

Cliquez sur « Synchroniser maintenant » pour synchroniser quand même.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Not found: %@</source>
        <translation>Introuvables : %@</translation>
    </message>
    <message>
        <source>%@ (1 entry)</source>
        <translation>%@ (1 entrée)</translation>
    </message>
    <message>
        <source>%@ needed</source>
        <translation>%@ nécessaires</translation>
    </message>
    <message>
        <source>%@ freed</source>
        <translation>%@ libérés</translation>
    </message>
    <message>
        <source>%@ free now</source>
        <translation>%@ libres à présent</translation>
    </message>
    <message>
        <source>What there is of each kind, and how much of it is selected.</source>
        <translation>Ce qu’il y a de chaque sorte, et combien en est sélectionné.</translation>
    </message>
    <message>
        <source>The space bar selects or deselects the chosen rows.</source>
        <translation>La barre d’espace coche ou décoche les lignes choisies.</translation>
    </message>
    <message>
        <source>Closes this window.</source>
        <translation>Ferme cette fenêtre.</translation>
    </message>
    <message>
        <source>Takes these sources and shows their lists.</source>
        <translation>Prend ces sources et montre leurs listes.</translation>
    </message>
    <message>
        <source>Changes nothing.</source>
        <translation>Ne change rien.</translation>
    </message>
    <message>
        <source>In groups, the most important first.</source>
        <translation>Par groupes, les plus importants d’abord.</translation>
    </message>
    <message>
        <source>The newest line is the last one.</source>
        <translation>La ligne la plus récente est la dernière.</translation>
    </message>
    <message>
        <source>Goes to the previous line that was found.</source>
        <translation>Va à la ligne trouvée précédente.</translation>
    </message>
    <message>
        <source>Goes to the next line that was found.</source>
        <translation>Va à la ligne trouvée suivante.</translation>
    </message>
    <message>
        <source>The backups of the chosen game save are listed below.</source>
        <translation>Les copies de la sauvegarde choisie sont listées en dessous.</translation>
    </message>
</context>
</TS>
