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
</context>
</TS>
