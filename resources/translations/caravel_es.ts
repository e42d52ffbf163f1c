<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Sync Now</source>
        <translation>Sincronizar ahora</translation>
    </message>
    <message>
        <source>Cancel Sync</source>
        <translation>Cancelar sincronización</translation>
    </message>
    <message>
        <source>Eject PSP</source>
        <translation>Expulsar PSP</translation>
    </message>
    <message>
        <source>Open Caravel</source>
        <translation>Abrir Caravel</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>There is no session bus to reach the helper by.</source>
        <translation>No hay ningún bus de sesión por el que contactar con el programa auxiliar.</translation>
    </message>
    <message>
        <source>The helper did not answer: %@</source>
        <translation>El programa auxiliar no ha respondido: %@</translation>
    </message>
    <message>
        <source>The helper was started but did not appear.</source>
        <translation>El programa auxiliar se ha iniciado, pero no ha aparecido.</translation>
    </message>
    <message>
        <source>The helper is not installed. Please install Caravel again.</source>
        <translation>El programa auxiliar no está instalado. Vuelva a instalar Caravel.</translation>
    </message>
    <message>
        <source>The helper can't be started.</source>
        <translation>No se puede iniciar el programa auxiliar.</translation>
    </message>
    <message>
        <source>The helper keeps ending by itself.</source>
        <translation>El programa auxiliar se cierra una y otra vez por sí solo.</translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation>Inicializando…</translation>
    </message>
    <message>
        <source>No PSP Connected</source>
        <translation>No hay ninguna PSP conectada</translation>
    </message>
    <message>
        <source>Connect a PSP to perform a sync.</source>
        <translation>Conecte una PSP para iniciar una sincronización.</translation>
    </message>
    <message>
        <source>%@ Available</source>
        <extracomment>The free space of the PSP.</extracomment>
        <translation>%@ disponibles</translation>
    </message>
    <message>
        <source>Click &quot;Sync Now&quot; to perform a sync.</source>
        <translation>Haga clic en «Sincronizar ahora» para iniciar una sincronización.</translation>
    </message>
    <message>
        <source>Last Sync: %@</source>
        <extracomment>The day and the time, or &quot;Never&quot;.</extracomment>
        <translation>Última sincronización: %@</translation>
    </message>
    <message>
        <source>Never</source>
        <extracomment>In the place of the last sync&apos;s date.</extracomment>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>today</source>
        <extracomment>As it stands in the middle of a sentence; the program capitalises it and appends the time.</extracomment>
        <translation>hoy</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <extracomment>As it stands in the middle of a sentence; the program capitalises it and appends the time.</extracomment>
        <translation>mañana</translation>
    </message>
    <message>
        <source>yesterday</source>
        <extracomment>As it stands in the middle of a sentence; the program capitalises it and appends the time.</extracomment>
        <translation>ayer</translation>
    </message>
    <message>
        <source>Preparing to Sync...</source>
        <translation>Preparando la sincronización…</translation>
    </message>
    <message>
        <source>One moment, Caravel is gathering information...</source>
        <translation>Un momento, Caravel está recopilando información…</translation>
    </message>
    <message>
        <source>Cleaning Up...</source>
        <translation>Limpiando…</translation>
    </message>
    <message>
        <source>Caravel is removing unneeded files...</source>
        <translation>Caravel está eliminando los archivos innecesarios…</translation>
    </message>
    <message>
        <source>Starting Sync...</source>
        <translation>Iniciando la sincronización…</translation>
    </message>
    <message>
        <source>Caravel is copying selected files...</source>
        <translation>Caravel está copiando los archivos seleccionados…</translation>
    </message>
    <message>
        <source>Syncing %@...</source>
        <extracomment>The kind of media, as &quot;Music&quot;.</extracomment>
        <translation>Sincronizando: %@…</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>Conversion in progress...</source>
        <translation>Conversión en curso…</translation>
    </message>
    <message>
        <source>Cancelling Sync...</source>
        <translation>Cancelando la sincronización…</translation>
    </message>
    <message>
        <source>Please wait while Caravel completes the previous task...</source>
        <translation>Espere a que Caravel termine la tarea en curso…</translation>
    </message>
    <message>
        <source>Sync Successful</source>
        <translation>Sincronización completada</translation>
    </message>
    <message>
        <source>Sync Cancelled</source>
        <translation>Sincronización cancelada</translation>
    </message>
    <message>
        <source>Sync was cancelled.</source>
        <extracomment>A line of the log.</extracomment>
        <translation>Se ha cancelado la sincronización.</translation>
    </message>
    <message>
        <source>You must re-sync to ensure the PSP is up to date.</source>
        <translation>Vuelva a sincronizar para que la PSP esté actualizada.</translation>
    </message>
    <message>
        <source>Ejecting PSP...</source>
        <translation>Expulsando la PSP…</translation>
    </message>
    <message>
        <source>One moment, Caravel is preparing your PSP for ejection...</source>
        <translation>Un momento, Caravel está preparando la PSP para su expulsión…</translation>
    </message>
    <message>
        <source>Eject Failed</source>
        <translation>Error al expulsar</translation>
    </message>
    <message>
        <source>The PSP may be in use by another application.</source>
        <translation>Es posible que otra aplicación esté utilizando la PSP.</translation>
    </message>
    <message>
        <source>Unformatted memory stick found!</source>
        <translation>¡Se ha encontrado un Memory Stick sin formatear!</translation>
    </message>
    <message>
        <source>A Memory Stick was found, however it is not formatted for use with a PSP.

If you intend to use this Memory Stick with the PSP and Caravel, you must first format it from the PSP&apos;s main menu.</source>
        <translation>Se ha encontrado un Memory Stick, pero no está formateado para su uso con una PSP.

Si desea utilizar este Memory Stick con la PSP y Caravel, primero debe formatearlo desde el menú principal de la PSP.</translation>
    </message>
    <message>
        <source>Sync too large!</source>
        <translation>¡Sincronización demasiado grande!</translation>
    </message>
    <message>
        <source>You are attempting to sync %@, however only %@ of free space is available on the Memory Stick currently in your PSP.

Please deselect some media to ensure the sync can be completed.</source>
        <extracomment>First the size of the sync, then the free space: keep the order.</extracomment>
        <translation>Intenta sincronizar %@, pero solo quedan %@ libres en el Memory Stick que se encuentra en su PSP.

Deseleccione algunos elementos multimedia para que la sincronización pueda completarse.</translation>
    </message>
    <message>
        <source>Memory stick full!</source>
        <translation>¡Memory Stick lleno!</translation>
    </message>
    <message>
        <source>The Memory Stick currently inside your PSP has been filled. You must deselect some media to free enough space to complete a sync.</source>
        <translation>El Memory Stick que se encuentra en su PSP se ha llenado. Debe deseleccionar algunos elementos multimedia para liberar espacio suficiente y completar una sincronización.</translation>
    </message>
    <message>
        <source>--</source>
        <extracomment>In the place of a size where there is none.</extracomment>
        <translation>--</translation>
    </message>
    <message>
        <source>%0.0f b</source>
        <extracomment>The number takes the place of the format.</extracomment>
        <translation>%0.0f bytes</translation>
    </message>
    <message>
        <source>%0.1f KB</source>
        <extracomment>The number takes the place of the format.</extracomment>
        <translation>%0.1f KB</translation>
    </message>
    <message>
        <source>%0.1f MB</source>
        <extracomment>The number takes the place of the format.</extracomment>
        <translation>%0.1f MB</translation>
    </message>
    <message>
        <source>%0.1f GB</source>
        <extracomment>The number takes the place of the format.</extracomment>
        <translation>%0.1f GB</translation>
    </message>
    <message>
        <source>%0.1f TB</source>
        <extracomment>The number takes the place of the format.</extracomment>
        <translation>%0.1f TB</translation>
    </message>
    <message>
        <source>Conversion in progress, %i%% completed...</source>
        <translation>Conversión en curso, %i%% completado...</translation>
    </message>
    <message>
        <source>The movie "%@" could not be converted:

%@</source>
        <translation>No se pudo convertir la película «%@»:

%@</translation>
    </message>
    <message>
        <source>Movie could not be converted!</source>
        <translation>No se pudo convertir la película</translation>
    </message>
    <message>
        <source>The converter gave no reason.</source>
        <translation>El conversor no indicó el motivo.</translation>
    </message>
    <message>
        <source>The converter can't be started: %@</source>
        <translation>No se puede iniciar el conversor: %@</translation>
    </message>
    <message>
        <source>Movie is not complete!</source>
        <translation>La película no está completa</translation>
    </message>
    <message>
        <source>The movie "%@" was converted, but not all of it is there:

%@</source>
        <translation>La película «%@» se convirtió, pero no está completa:

%@</translation>
    </message>
    <message>
        <source>The movie "%@" was converted, but neither the movie library nor the folder %@ could take it. It has to be converted again.</source>
        <translation>La película «%@» se convirtió, pero ni la biblioteca de películas ni la carpeta %@ pudieron guardarla. Hay que convertirla otra vez.</translation>
    </message>
    <message>
        <source>Movie could not be stored!</source>
        <translation>No se pudo guardar la película</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Películas</translation>
    </message>
    <message>
        <source>Size: %@</source>
        <translation>Tamaño: %@</translation>
    </message>
    <message>
        <source>The movie "%@" was converted, but there is no place for it in the movie library. It is kept in the folder %@.</source>
        <translation>La película «%@» se convirtió, pero no hay lugar para ella en la biblioteca de películas. Se conserva en la carpeta %@.</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Copia de seguridad</translation>
    </message>
    <message>
        <source>No description available</source>
        <translation>No hay descripción disponible</translation>
    </message>
    <message>
        <source>%@ uses %@</source>
        <translation>%@ está usando %@</translation>
    </message>
    <message>
        <source>Can't eject the PSP now!</source>
        <translation>No se puede expulsar la PSP ahora</translation>
    </message>
    <message>
        <source>The PSP can't be ejected during a sync.</source>
        <translation>No se puede expulsar la PSP durante una sincronización.</translation>
    </message>
    <message>
        <source>Can't change backups now!</source>
        <translation>No se pueden cambiar las copias de seguridad ahora</translation>
    </message>
    <message>
        <source>Can't restore or delete backups during a sync.</source>
        <translation>No se pueden restaurar ni eliminar copias de seguridad durante una sincronización.</translation>
    </message>
    <message>
        <source>The game save on the PSP could not be kept first, so nothing on the PSP was changed.</source>
        <translation>No se pudo conservar primero la partida que hay en la PSP, así que no se cambió nada en la PSP.</translation>
    </message>
    <message>
        <source>The game save that was on the PSP is kept as the newest backup.</source>
        <translation>La partida que estaba en la PSP se conserva como la copia de seguridad más reciente.</translation>
    </message>
    <message>
        <source>Restoring failed!</source>
        <translation>No se pudo restaurar</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Marcadores</translation>
    </message>
    <message>
        <source>Bookmarks Bar</source>
        <translation>Barra de marcadores</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <translation>Menú de marcadores</translation>
    </message>
    <message>
        <source>Syncing Safari Bookmarks...</source>
        <translation>Sincronizando los marcadores de Safari…</translation>
    </message>
    <message>
        <source>Syncing Firefox Bookmarks...</source>
        <translation>Sincronizando los marcadores de Firefox…</translation>
    </message>
    <message>
        <source>Syncing OmniWeb Bookmarks...</source>
        <translation>Sincronizando los marcadores de OmniWeb…</translation>
    </message>
    <message>
        <source>Syncing Camino Bookmarks...</source>
        <translation>Sincronizando los marcadores de Camino…</translation>
    </message>
    <message>
        <source>Syncing Chromium Bookmarks...</source>
        <translation>Sincronizando los marcadores de Chromium…</translation>
    </message>
    <message>
        <source>Syncing Contact Icons...</source>
        <translation>Sincronizando las imágenes de los contactos…</translation>
    </message>
    <message>
        <source>Syncing Contact Index...</source>
        <translation>Sincronizando la lista de contactos…</translation>
    </message>
    <message>
        <source>No PSP is connected. Nothing was changed.</source>
        <translation>No hay ninguna PSP conectada. No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>There is no such backup. Nothing was changed.</source>
        <translation>Esa copia de seguridad no existe. No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>Sync Incomplete</source>
        <translation>Sincronización incompleta</translation>
    </message>
    <message>
        <source>PSP Ejected</source>
        <translation>PSP expulsada</translation>
    </message>
    <message>
        <source>It is safe to remove the PSP now.</source>
        <translation>Ya puede retirar la PSP con seguridad.</translation>
    </message>
    <message>
        <source>%@ of %@ files could not be copied.</source>
        <translation>No se pudieron copiar %@ de %@ archivos.</translation>
    </message>
    <message>
        <source>Reading songs: %@ of %@</source>
        <translation>Leyendo canciones: %@ de %@</translation>
    </message>
    <message>
        <source>PSP lost during sync!</source>
        <translation>¡Se perdió la PSP durante la sincronización!</translation>
    </message>
    <message>
        <source>The PSP was disconnected, or its Memory Stick can&apos;t be written any more, before the sync was complete.

You must re-sync to ensure the PSP is up to date.</source>
        <translation>La PSP se desconectó, o ya no se puede escribir en su Memory Stick, antes de que terminara la sincronización.

Debe sincronizar de nuevo para que la PSP esté actualizada.</translation>
    </message>
    <message>
        <source>The sync was not started!</source>
        <translation>¡La sincronización no se inició!</translation>
    </message>
    <message>
        <source>The preferences can&apos;t be read, so it is not known what you have selected.</source>
        <translation>No se pueden leer las preferencias, por lo que no se sabe qué ha seleccionado.</translation>
    </message>
    <message>
        <source>The preferences were damaged and had to be set aside, your selection with them.

Please select your media anew, then sync.</source>
        <translation>Las preferencias estaban dañadas y hubo que apartarlas, y su selección con ellas.

Seleccione de nuevo sus medios y luego sincronice.</translation>
    </message>
    <message>
        <source>The folder &quot;.caravel&quot; on the Memory Stick is a link, and no link is followed there.

Please remove it, then sync.</source>
        <translation>La carpeta «.caravel» del Memory Stick es un enlace, y allí no se sigue ningún enlace.

Elimínelo y luego sincronice.</translation>
    </message>
    <message>
        <source>The selection that is kept on the Memory Stick can&apos;t be read.

Please look at your selection, then click &quot;Sync Now&quot;.</source>
        <translation>No se puede leer la selección guardada en el Memory Stick.

Revise su selección y luego haga clic en «Sincronizar ahora».</translation>
    </message>
    <message>
        <source>The library for &quot;%@&quot; can&apos;t be read. A sync would remove from the PSP what you have selected in it.

Click &quot;Sync Now&quot; to sync all the same.</source>
        <translation>No se puede leer la biblioteca de «%@». Una sincronización eliminaría de la PSP lo que ha seleccionado en ella.

Haga clic en «Sincronizar ahora» para sincronizar de todos modos.</translation>
    </message>
    <message>
        <source>A sync would remove more than half of &quot;%@&quot; from the PSP, though your selection is the same. Is a disk with your media missing?

Click &quot;Sync Now&quot; to sync all the same.</source>
        <translation>Una sincronización eliminaría de la PSP más de la mitad de «%@», aunque su selección es la misma. ¿Falta un disco con sus medios?

Haga clic en «Sincronizar ahora» para sincronizar de todos modos.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; comes from another source now. A sync would remove from the PSP what came from the one before.

Click &quot;Sync Now&quot; to sync all the same.</source>
        <translation>«%@» viene ahora de otra fuente. Una sincronización eliminaría de la PSP lo que vino de la anterior.

Haga clic en «Sincronizar ahora» para sincronizar de todos modos.</translation>
    </message>
</context>
</TS>
