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
        <source>%@ (%@ entries)</source>
        <translation>%@ (%@ elementos)</translation>
    </message>
    <message>
        <source>%@ copied</source>
        <translation>%@ copiados</translation>
    </message>
    <message>
        <source>%@ free of %@</source>
        <translation>%@ libres de %@</translation>
    </message>
    <message>
        <source>%@ in place</source>
        <translation>%@ en su sitio</translation>
    </message>
    <message>
        <source>%@ kept on this computer</source>
        <translation>%@ conservados en este ordenador</translation>
    </message>
    <message>
        <source>%@ left out</source>
        <translation>%@ omitidos</translation>
    </message>
    <message>
        <source>%@ missing</source>
        <translation>%@ no encontrados</translation>
    </message>
    <message>
        <source>%@ of %@</source>
        <translation>%@ de %@</translation>
    </message>
    <message>
        <source>%@ removed</source>
        <translation>%@ eliminados</translation>
    </message>
    <message>
        <source>%@ replaced</source>
        <translation>%@ sustituidos</translation>
    </message>
    <message>
        <source>%@ to copy</source>
        <translation>%@ por copiar</translation>
    </message>
    <message>
        <source>%@ to remove</source>
        <translation>%@ por eliminar</translation>
    </message>
    <message>
        <source>%@ to replace</source>
        <translation>%@ por sustituir</translation>
    </message>
    <message>
        <source>%@ too much for %@</source>
        <translation>%@ de más para %@</translation>
    </message>
    <message>
        <source>%@, %@ a second, %@ left</source>
        <translation>%@, %@ por segundo, quedan %@</translation>
    </message>
    <message>
        <source>%@, from %@ to %@</source>
        <translation>%@, de %@ a %@</translation>
    </message>
    <message>
        <source>%@, from %@</source>
        <translation>%@, desde %@</translation>
    </message>
    <message>
        <source>%@: left out</source>
        <translation>%@: omitidos</translation>
    </message>
    <message>
        <source>%@: to copy</source>
        <translation>%@: por copiar</translation>
    </message>
    <message>
        <source>%@: to remove</source>
        <translation>%@: por eliminar</translation>
    </message>
    <message>
        <source>%@: to replace</source>
        <translation>%@: por sustituir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;PSP</source>
        <translation>&amp;PSP</translation>
    </message>
    <message>
        <source>A sync is running.</source>
        <translation>Hay una sincronización en curso.</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Brings the Memory Stick up to date with your selection</source>
        <translation>Pone el Memory Stick al día con su selección</translation>
    </message>
    <message>
        <source>Capacity of the Memory Stick after the sync</source>
        <translation>Ocupación del Memory Stick tras la sincronización</translation>
    </message>
    <message>
        <source>Caravel copies what you select in the next window to the PSP's Memory Stick, and removes there, from the folders of music, photos and movies, what is not selected any more. Files that it did not place itself are first copied to this computer, and your media on this computer are only read.</source>
        <translation>Caravel copia en el Memory Stick de la PSP lo que seleccione en la ventana siguiente y elimina allí, de las carpetas de música, fotos y películas, lo que ya no esté seleccionado. Los archivos que no haya colocado él mismo se copian antes en este ordenador, y sus contenidos en este ordenador solo se leen.</translation>
    </message>
    <message>
        <source>Caravel's helper is being started.</source>
        <translation>Se está iniciando el programa auxiliar de Caravel.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Closes this message</source>
        <translation>Cierra este mensaje</translation>
    </message>
    <message>
        <source>Connect the PSP with a USB cable and choose "USB Connection" in its settings, or put its Memory Stick into a card reader.</source>
        <translation>Conecte la PSP con un cable USB y elija «Conexión USB» en sus ajustes, o introduzca su Memory Stick en un lector de tarjetas.</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contactos</translation>
    </message>
    <message>
        <source>Everything is written to it. You can disconnect the PSP now.</source>
        <translation>Todo está escrito. Ya puede desconectar la PSP.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Files on the Memory Stick that no sync placed: %@. They will be removed from it, but are kept: copies of them come to lie in %@.</source>
        <translation>Archivos del Memory Stick que ninguna sincronización colocó: %@. Se eliminarán de él, pero se conservan: sus copias quedan en %@.</translation>
    </message>
    <message>
        <source>Files on the Memory Stick that no sync placed: %@. They will be removed, and your settings keep no copies.</source>
        <translation>Archivos del Memory Stick que ninguna sincronización colocó: %@. Se eliminarán y, según sus ajustes, no se conserva copia.</translation>
    </message>
    <message>
        <source>Files that a sync would change</source>
        <translation>Archivos que cambiaría una sincronización</translation>
    </message>
    <message>
        <source>Files that were left out or kept</source>
        <translation>Archivos omitidos o conservados</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Game Saves</source>
        <translation>Partidas guardadas</translation>
    </message>
    <message>
        <source>Kept on this computer, as no sync had placed them</source>
        <translation>Conservados en este ordenador, pues ninguna sincronización los colocó</translation>
    </message>
    <message>
        <source>Kinds of media</source>
        <translation>Tipos de contenido</translation>
    </message>
    <message>
        <source>Last Sync...</source>
        <translation>Última sincronización...</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Omitidos</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Memory Stick</source>
        <translation>Memory Stick</translation>
    </message>
    <message>
        <source>No PSP is connected</source>
        <translation>No hay ninguna PSP conectada</translation>
    </message>
    <message>
        <source>No PSP is connected.</source>
        <translation>No hay ninguna PSP conectada.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Nothing was copied: the Memory Stick has no room for all of it</source>
        <translation>No se ha copiado nada: no cabe todo en el Memory Stick</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>Preview...</source>
        <translation>Vista previa...</translation>
    </message>
    <message>
        <source>Progress of the sync</source>
        <translation>Progreso de la sincronización</translation>
    </message>
    <message>
        <source>Read Anew</source>
        <translation>Volver a leer</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Ajustes...</translation>
    </message>
    <message>
        <source>Show Report...</source>
        <translation>Mostrar informe...</translation>
    </message>
    <message>
        <source>Shows what a sync would do, without doing it</source>
        <translation>Muestra lo que haría una sincronización, sin hacerlo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Iniciando...</translation>
    </message>
    <message>
        <source>Starts the helper</source>
        <translation>Inicia el programa auxiliar</translation>
    </message>
    <message>
        <source>Stops the sync; the next one completes it</source>
        <translation>Detiene la sincronización; la siguiente la completa</translation>
    </message>
    <message>
        <source>The Last Sync</source>
        <translation>La última sincronización</translation>
    </message>
    <message>
        <source>The Memory Stick could not be looked at.</source>
        <translation>No se ha podido examinar el Memory Stick.</translation>
    </message>
    <message>
        <source>The Memory Stick was ejected</source>
        <translation>Se ha expulsado el Memory Stick</translation>
    </message>
    <message>
        <source>The copies lie in %@. What should go back to the Memory Stick belongs in a dropbox.</source>
        <translation>Las copias están en %@. Lo que deba volver al Memory Stick se pone en un dropbox.</translation>
    </message>
    <message>
        <source>The sync is complete but for what was left out</source>
        <translation>La sincronización está completa, salvo lo omitido</translation>
    </message>
    <message>
        <source>The sync is complete</source>
        <translation>La sincronización está completa</translation>
    </message>
    <message>
        <source>The sync was cancelled</source>
        <translation>La sincronización se ha cancelado</translation>
    </message>
    <message>
        <source>The sync was cut short: the Memory Stick was full</source>
        <translation>La sincronización se ha interrumpido: el Memory Stick estaba lleno</translation>
    </message>
    <message>
        <source>The sync was cut short: the PSP went away</source>
        <translation>La sincronización se ha interrumpido: la PSP ya no estaba</translation>
    </message>
    <message>
        <source>There is no helper</source>
        <translation>No hay programa auxiliar</translation>
    </message>
    <message>
        <source>There was no sync yet</source>
        <translation>Todavía no ha habido ninguna sincronización</translation>
    </message>
    <message>
        <source>This is too much for the Memory Stick: nothing would be copied. Please deselect something.</source>
        <translation>Es demasiado para el Memory Stick: no se copiaría nada. Deseleccione algo.</translation>
    </message>
    <message>
        <source>To remove, though no sync placed them</source>
        <translation>Por eliminar, aunque ninguna sincronización los colocó</translation>
    </message>
    <message>
        <source>To replace, though no sync placed them</source>
        <translation>Por sustituir, aunque ninguna sincronización los colocó</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Welcome to Caravel</source>
        <translation>Bienvenido a Caravel</translation>
    </message>
    <message>
        <source>What a Sync Would Do</source>
        <translation>Lo que haría una sincronización</translation>
    </message>
    <message>
        <source>Where Your Media Are...</source>
        <translation>Dónde están sus contenidos...</translation>
    </message>
    <message>
        <source>Where are your media?</source>
        <translation>¿Dónde están sus contenidos?</translation>
    </message>
    <message>
        <source>Working out what a sync would do...</source>
        <translation>Averiguando lo que haría una sincronización...</translation>
    </message>
    <message>
        <source>Writes out all that waits and lets go of the Memory Stick</source>
        <translation>Escribe todo lo pendiente y libera el Memory Stick</translation>
    </message>
    <message>
        <source>a link on the Memory Stick is in the way</source>
        <translation>un enlace del Memory Stick lo impide</translation>
    </message>
    <message>
        <source>belongs to a file that is left out</source>
        <translation>pertenece a un archivo omitido</translation>
    </message>
    <message>
        <source>not found on this computer</source>
        <translation>no se encuentra en este ordenador</translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>nada que hacer</translation>
    </message>
    <message>
        <source>too large for the Memory Stick</source>
        <translation>demasiado grande para el Memory Stick</translation>
    </message>
    <message>
        <source>too much for the Memory Stick</source>
        <translation>demasiado para el Memory Stick</translation>
    </message>
    <message>
        <source>what is there could not be kept</source>
        <translation>lo que hay allí no se ha podido conservar</translation>
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
        <source>%@ found</source>
        <translation>%@ encontrados</translation>
    </message>
    <message>
        <source>%@ has nothing to choose from: %@</source>
        <translation>%@ no contiene nada que elegir: %@</translation>
    </message>
    <message>
        <source>%@ movies have been removed.</source>
        <translation>Se han eliminado %@ películas.</translation>
    </message>
    <message>
        <source>%@ of %@ selected</source>
        <translation>%@ de %@ seleccionados</translation>
    </message>
    <message>
        <source>%@ of %@ shown</source>
        <translation>%@ de %@ visibles</translation>
    </message>
    <message>
        <source>2.00 or later</source>
        <translation>2.00 o posterior</translation>
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
        <translation>480 × 272 (la de la PSP)</translation>
    </message>
    <message>
        <source>720 × 480 (for a TV)</source>
        <translation>720 × 480 (para un televisor)</translation>
    </message>
    <message>
        <source>A better one takes more room on the PSP.</source>
        <translation>Una mejor ocupa más espacio en la PSP.</translation>
    </message>
    <message>
        <source>A selection of its own for each Memory Stick</source>
        <translation>Una selección propia para cada Memory Stick</translation>
    </message>
    <message>
        <source>Add Movies</source>
        <translation>Añadir películas</translation>
    </message>
    <message>
        <source>Add Movies...</source>
        <translation>Añadir películas…</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>Albums come from</source>
        <translation>Los álbumes proceden de</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Also after a movie has been converted.</source>
        <translation>También después de convertir una película.</translation>
    </message>
    <message>
        <source>Another: %@</source>
        <translation>Otro: %@</translation>
    </message>
    <message>
        <source>Artist and album</source>
        <translation>Artista y álbum</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Backups of %@</source>
        <translation>Copias de %@</translation>
    </message>
    <message>
        <source>Backups of each game save</source>
        <translation>Copias de cada partida</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>La mejor</translation>
    </message>
    <message>
        <source>Bookmarks come from</source>
        <translation>Los marcadores proceden de</translation>
    </message>
    <message>
        <source>Caravel waits for the PSP as long as you are logged in, and shows its icon in the tray.</source>
        <translation>Caravel espera la PSP mientras dure su sesión y muestra su icono en la bandeja.</translation>
    </message>
    <message>
        <source>Checks all that is shown.</source>
        <translation>Marca todo lo que se muestra.</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Chromium and its kin</source>
        <translation>Chromium y afines</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Contacts and Saves</source>
        <translation>Contactos y partidas</translation>
    </message>
    <message>
        <source>Converts files to what the PSP plays.</source>
        <translation>Convierte archivos a lo que reproduce la PSP.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Default: %@</source>
        <translation>Predeterminado: %@</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>Desentrelazar</translation>
    </message>
    <message>
        <source>Delete All...</source>
        <translation>Eliminar todas…</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>Eliminar…</translation>
    </message>
    <message>
        <source>Disc and track</source>
        <translation>El disco y la pista</translation>
    </message>
    <message>
        <source>Each file is named. Useful where something doesn&apos;t work.</source>
        <translation>Se nombra cada archivo. Útil cuando algo no funciona.</translation>
    </message>
    <message>
        <source>Each source has a selection of its own.</source>
        <translation>Cada origen tiene su propia selección.</translation>
    </message>
    <message>
        <source>Each sync copies the game saves that have changed to this computer.</source>
        <translation>Cada sincronización copia a este equipo las partidas que han cambiado.</translation>
    </message>
    <message>
        <source>Edits the name of the selected movie.</source>
        <translation>Edita el nombre de la película seleccionada.</translation>
    </message>
    <message>
        <source>Eject the PSP after a sync</source>
        <translation>Expulsar la PSP después de sincronizar</translation>
    </message>
    <message>
        <source>Empties the log for good.</source>
        <translation>Vacía el registro definitivamente.</translation>
    </message>
    <message>
        <source>Empties the search.</source>
        <translation>Vacía la búsqueda.</translation>
    </message>
    <message>
        <source>Everybody in this computer&apos;s address book is put on one page, with a small picture where there is one. It is made anew at each sync, and only where something has changed it is written.

The PSP shows the page in its browser: with bookmarks synced, one of them leads there. System software 2.00 or later is needed.</source>
        <translation>Todas las personas de la agenda de este equipo figuran en una página, con una pequeña imagen cuando la hay. Se hace de nuevo en cada sincronización y solo se escribe si algo ha cambiado.

La PSP muestra la página en su navegador: si se sincronizan los marcadores, uno de ellos lleva a ella. Se necesita el software del sistema 2.00 o posterior.</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Aceptable</translation>
    </message>
    <message>
        <source>Files that something else has put there go too. Otherwise only files that an earlier sync has placed are removed.</source>
        <translation>También se van los archivos que otra cosa haya puesto ahí. Si no, solo se eliminan los que colocó una sincronización anterior.</translation>
    </message>
    <message>
        <source>Firefox (page)</source>
        <translation>Firefox (página)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Folders and playlists</source>
        <translation>Carpetas y listas de reproducción</translation>
    </message>
    <message>
        <source>Folders of music on the PSP</source>
        <translation>Carpetas de música en la PSP</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Seguir</translation>
    </message>
    <message>
        <source>For movies that are added from now on. The two large sizes need system software 3.30 or later.</source>
        <translation>Para las películas que se añadan desde ahora. Los dos tamaños grandes necesitan el software del sistema 3.30 o posterior.</translation>
    </message>
    <message>
        <source>For recordings of television that show combs where things move.</source>
        <translation>Para grabaciones de televisión que muestran peines donde algo se mueve.</translation>
    </message>
    <message>
        <source>Game save</source>
        <translation>Partida</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Juego</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Buena</translation>
    </message>
    <message>
        <source>It is kept on the stick. Such a stick is never synced as soon as it is connected.</source>
        <translation>Se guarda en el stick. Un stick así nunca se sincroniza en cuanto se conecta.</translation>
    </message>
    <message>
        <source>It is no longer in this list then. The PSP&apos;s own game save stays as it is.</source>
        <translation>Después ya no está en esta lista. La partida que está en la PSP queda como está.</translation>
    </message>
    <message>
        <source>It lies in “Removed from PSP” in the folder “Caravel”.</source>
        <translation>Está en «Removed from PSP», en la carpeta «Caravel».</translation>
    </message>
    <message>
        <source>Keep a copy of removed files that no sync has placed</source>
        <translation>Conservar una copia de los archivos eliminados que ninguna sincronización colocó</translation>
    </message>
    <message>
        <source>Keep game saves</source>
        <translation>Conservar las partidas guardadas</translation>
    </message>
    <message>
        <source>Keeps the newest line in sight.</source>
        <translation>Mantiene a la vista la línea más reciente.</translation>
    </message>
    <message>
        <source>Kept on</source>
        <translation>Conservada el</translation>
    </message>
    <message>
        <source>Last kept</source>
        <translation>Última copia</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>La menor</translation>
    </message>
    <message>
        <source>Least, at half the frames</source>
        <translation>La menor, con la mitad de los fotogramas</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando…</translation>
    </message>
    <message>
        <source>Move all backups of “%@” to the Trash (%@)?</source>
        <translation>¿Mover a la papelera todas las copias de «%@» (%@)?</translation>
    </message>
    <message>
        <source>Move the backup of “%@” from %@ to the Trash?</source>
        <translation>¿Mover a la papelera la copia de «%@» del %@?</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mover a la papelera</translation>
    </message>
    <message>
        <source>Moves all backups of the game save to the Trash.</source>
        <translation>Mueve a la papelera todas las copias de la partida.</translation>
    </message>
    <message>
        <source>Moves the selected backup to the Trash.</source>
        <translation>Mueve a la papelera la copia seleccionada.</translation>
    </message>
    <message>
        <source>Moves the selected movies to the Trash, or takes them out of the conversion.</source>
        <translation>Mueve a la papelera las películas seleccionadas, o las quita de la conversión.</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Película</translation>
    </message>
    <message>
        <source>Music, photos and movies in the folder “Dropboxes” come along without being selected.</source>
        <translation>La música, las fotos y las películas de la carpeta «Dropboxes» van también sin seleccionarlas.</translation>
    </message>
    <message>
        <source>Names of photos begin with</source>
        <translation>Los nombres de las fotos empiezan por</translation>
    </message>
    <message>
        <source>Names of songs begin with</source>
        <translation>Los nombres de las canciones empiezan por</translation>
    </message>
    <message>
        <source>Newer on the PSP than what is kept</source>
        <translation>Más reciente en la PSP que la copia</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>No game save is kept yet. They are copied from the PSP at each sync.</source>
        <translation>Aún no se conserva ninguna partida. Se copian de la PSP en cada sincronización.</translation>
    </message>
    <message>
        <source>Not everything could be put back. Look for it in the Trash.</source>
        <translation>No se pudo devolver todo a su sitio. Búsquelo en la papelera.</translation>
    </message>
    <message>
        <source>Nothing else was found on this computer.</source>
        <translation>No se encontró nada más en este equipo.</translation>
    </message>
    <message>
        <source>Nothing of %@ was found on this computer. It would lie here: %@</source>
        <translation>No se encontró nada de %@ en este equipo. Estaría aquí: %@</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nada</translation>
    </message>
    <message>
        <source>Of the game save that is selected above.</source>
        <translation>De la partida seleccionada arriba.</translation>
    </message>
    <message>
        <source>Of the movie&apos;s own. More than 100 % makes it louder.</source>
        <translation>Respecto al de la película. Más de 100 % lo sube.</translation>
    </message>
    <message>
        <source>Older ones are removed.</source>
        <translation>Las más antiguas se eliminan.</translation>
    </message>
    <message>
        <source>On the PSP, not kept yet</source>
        <translation>En la PSP, aún sin copia</translation>
    </message>
    <message>
        <source>Only Memory Sticks that have been synced before.</source>
        <translation>Solo los Memory Stick que ya se han sincronizado antes.</translation>
    </message>
    <message>
        <source>Only when the sync was completed.</source>
        <translation>Solo si la sincronización se completó.</translation>
    </message>
    <message>
        <source>Open this window when a PSP is connected</source>
        <translation>Abrir esta ventana al conectar una PSP</translation>
    </message>
    <message>
        <source>Otherwise a sync removes the movies from the PSP.</source>
        <translation>Si no, una sincronización quita las películas de la PSP.</translation>
    </message>
    <message>
        <source>Otherwise a sync removes the music from the PSP.</source>
        <translation>Si no, una sincronización quita la música de la PSP.</translation>
    </message>
    <message>
        <source>Otherwise a sync removes the photos from the PSP.</source>
        <translation>Si no, una sincronización quita las fotos de la PSP.</translation>
    </message>
    <message>
        <source>Otherwise a sync leaves the bookmarks of the PSP&apos;s browser as they are.</source>
        <translation>Si no, una sincronización deja los marcadores del navegador de la PSP como están.</translation>
    </message>
    <message>
        <source>Otherwise only the icon in the tray tells of it.</source>
        <translation>Si no, solo lo indica el icono de la bandeja.</translation>
    </message>
    <message>
        <source>Place of Caravel&apos;s folder</source>
        <translation>Lugar de la carpeta de Caravel</translation>
    </message>
    <message>
        <source>Play a sound after a sync</source>
        <translation>Reproducir un sonido después de sincronizar</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Lista de reproducción</translation>
    </message>
    <message>
        <source>Playlists come from</source>
        <translation>Las listas de reproducción proceden de</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Profile of the browser</source>
        <translation>Perfil del navegador</translation>
    </message>
    <message>
        <source>Put the backup of “%@” from %@ back on the PSP?</source>
        <translation>¿Devolver a la PSP la copia de «%@» del %@?</translation>
    </message>
    <message>
        <source>Puts the selected backup back on the PSP.</source>
        <translation>Devuelve a la PSP la copia seleccionada.</translation>
    </message>
    <message>
        <source>Quality of the picture</source>
        <translation>Calidad de la imagen</translation>
    </message>
    <message>
        <source>Quality of the sound</source>
        <translation>Calidad del sonido</translation>
    </message>
    <message>
        <source>Remove what is not selected from the media folders</source>
        <translation>Eliminar de las carpetas de medios lo que no está seleccionado</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Restore...</source>
        <translation>Restaurar…</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>No seleccionar nada</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Shows what holds these words. What is out of sight stays as it is.</source>
        <translation>Muestra lo que contiene estas palabras. Lo que no se ve queda como está.</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Tamaño de la imagen</translation>
    </message>
    <message>
        <source>Songs</source>
        <translation>Canciones</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Iniciar con la sesión</translation>
    </message>
    <message>
        <source>Such a stick has to be formatted by the PSP before it can be synced.</source>
        <translation>Un stick así debe formatearlo la PSP antes de poder sincronizarlo.</translation>
    </message>
    <message>
        <source>Sync as soon as a PSP is connected</source>
        <translation>Sincronizar en cuanto se conecte una PSP</translation>
    </message>
    <message>
        <source>Sync bookmarks</source>
        <translation>Sincronizar los marcadores</translation>
    </message>
    <message>
        <source>Sync contacts</source>
        <translation>Sincronizar los contactos</translation>
    </message>
    <message>
        <source>Sync movies</source>
        <translation>Sincronizar las películas</translation>
    </message>
    <message>
        <source>Sync music</source>
        <translation>Sincronizar la música</translation>
    </message>
    <message>
        <source>Sync photos</source>
        <translation>Sincronizar las fotos</translation>
    </message>
    <message>
        <source>Sync the dropboxes</source>
        <translation>Sincronizar las carpetas de entrega</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Sincronización</translation>
    </message>
    <message>
        <source>System software of the PSP</source>
        <translation>Software del sistema de la PSP</translation>
    </message>
    <message>
        <source>Take %@ (%@)</source>
        <translation>Usar %@ (%@)</translation>
    </message>
    <message>
        <source>Take %@</source>
        <translation>Usar %@</translation>
    </message>
    <message>
        <source>Tell about Memory Sticks without the PSP&apos;s folders</source>
        <translation>Avisar de los Memory Stick sin las carpetas de la PSP</translation>
    </message>
    <message>
        <source>The PSP plays the songs of a folder in the order of their names.</source>
        <translation>La PSP reproduce las canciones de una carpeta por orden de nombre.</translation>
    </message>
    <message>
        <source>The PSP shows the photos of a folder in the order of their names.</source>
        <translation>La PSP muestra las fotos de una carpeta por orden de nombre.</translation>
    </message>
    <message>
        <source>The conversion failed</source>
        <translation>La conversión ha fallado</translation>
    </message>
    <message>
        <source>The first one plays only MP3 music, shows only JPEG photos, and has no browser for bookmarks and contacts.</source>
        <translation>El primero solo reproduce música MP3, solo muestra fotos JPEG y no tiene navegador para marcadores y contactos.</translation>
    </message>
    <message>
        <source>The folder “Caravel” there holds converted movies, game saves and the dropboxes. What the old place holds is not moved.</source>
        <translation>La carpeta «Caravel» contiene ahí las películas convertidas, las partidas y las carpetas de entrega. Lo que hay en el lugar anterior no se mueve.</translation>
    </message>
    <message>
        <source>The game save has not been put back.</source>
        <translation>La partida no se ha devuelto.</translation>
    </message>
    <message>
        <source>The game save is being put back on the PSP...</source>
        <translation>Devolviendo la partida a la PSP…</translation>
    </message>
    <message>
        <source>The game save is on the PSP.</source>
        <translation>La partida está en la PSP.</translation>
    </message>
    <message>
        <source>The game save that is on the PSP now is kept as the newest backup, and then replaced.</source>
        <translation>La partida que ahora está en la PSP se conserva como la copia más reciente y después se sustituye.</translation>
    </message>
    <message>
        <source>The helper has given no answer.</source>
        <translation>El programa auxiliar no ha respondido.</translation>
    </message>
    <message>
        <source>The helper has not taken the selection as it was made. What is shown now is what it has.</source>
        <translation>El programa auxiliar no ha tomado la selección tal como se hizo. Lo que se muestra ahora es lo que tiene.</translation>
    </message>
    <message>
        <source>The last 10</source>
        <translation>Las 10 últimas</translation>
    </message>
    <message>
        <source>The last 25</source>
        <translation>Las 25 últimas</translation>
    </message>
    <message>
        <source>The last 50</source>
        <translation>Las 50 últimas</translation>
    </message>
    <message>
        <source>The movies could not be added.</source>
        <translation>No se pudieron añadir las películas.</translation>
    </message>
    <message>
        <source>The name or the folder of a profile of Firefox or Chromium. Left empty, the first one is taken.</source>
        <translation>El nombre o la carpeta de un perfil de Firefox o Chromium. Si se deja vacío, se toma el primero.</translation>
    </message>
    <message>
        <source>The position in the album</source>
        <translation>La posición en el álbum</translation>
    </message>
    <message>
        <source>The position in the playlist</source>
        <translation>La posición en la lista</translation>
    </message>
    <message>
        <source>The preferences can&apos;t be written.</source>
        <translation>No se pueden guardar las preferencias.</translation>
    </message>
    <message>
        <source>The selected lines, or all of them.</source>
        <translation>Las líneas seleccionadas, o todas.</translation>
    </message>
    <message>
        <source>The source that is chosen in the settings is unknown.</source>
        <translation>El origen elegido en los ajustes es desconocido.</translation>
    </message>
    <message>
        <source>The whole address book, as a page for the PSP&apos;s browser.</source>
        <translation>Toda la agenda, como página para el navegador de la PSP.</translation>
    </message>
    <message>
        <source>There is no movie yet. Add one with the button, or drop its file here: it is converted to what the PSP plays.</source>
        <translation>Aún no hay películas. Añada una con el botón o suelte aquí su archivo: se convierte a lo que reproduce la PSP.</translation>
    </message>
    <message>
        <source>This can&apos;t be a movie&apos;s name: %@</source>
        <translation>Una película no puede llamarse así: %@</translation>
    </message>
    <message>
        <source>This must be a full path, or one that begins with &quot;~/&quot;.</source>
        <translation>Debe ser una ruta completa, o una que empiece por «~/».</translation>
    </message>
    <message>
        <source>Those of the page that is shown.</source>
        <translation>Los de la página que se muestra.</translation>
    </message>
    <message>
        <source>Unchecks all that is shown.</source>
        <translation>Desmarca todo lo que se muestra.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Waits for its conversion</source>
        <translation>Espera su conversión</translation>
    </message>
    <message>
        <source>What %@ has written can&apos;t be read; it may be damaged: %@</source>
        <translation>No se puede leer lo que ha escrito %@; puede estar dañado: %@</translation>
    </message>
    <message>
        <source>What the songs of one folder have in common.</source>
        <translation>Lo que tienen en común las canciones de una carpeta.</translation>
    </message>
    <message>
        <source>Write a detailed log</source>
        <translation>Escribir un registro detallado</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacío</translation>
    </message>
    <message>
        <source>off</source>
        <translation>no</translation>
    </message>
    <message>
        <source>on</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>selected and out of sight: %@</source>
        <translation>seleccionados y fuera de la vista: %@</translation>
    </message>
    <message>
        <source>“%@” has been moved to the Trash.</source>
        <translation>«%@» se ha movido a la papelera.</translation>
    </message>
    <message>
        <source>“%@” has been taken out of the conversion.</source>
        <translation>«%@» se ha quitado de la conversión.</translation>
    </message>
    <message>
        <source>“Firefox (page)” is an old one, which keeps its bookmarks in a page.</source>
        <translation>«Firefox (página)» es uno antiguo, que guarda sus marcadores en una página.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Restablecer los valores predeterminados</translation>
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
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Not found: %@</source>
        <translation>No encontrados: %@</translation>
    </message>
    <message>
        <source>%@ (1 entry)</source>
        <translation>%@ (1 entrada)</translation>
    </message>
    <message>
        <source>%@ needed</source>
        <translation>%@ necesarios</translation>
    </message>
    <message>
        <source>%@ freed</source>
        <translation>%@ liberados</translation>
    </message>
    <message>
        <source>%@ free now</source>
        <translation>%@ libres ahora</translation>
    </message>
    <message>
        <source>What there is of each kind, and how much of it is selected.</source>
        <translation>Lo que hay de cada tipo y cuánto está seleccionado.</translation>
    </message>
    <message>
        <source>The space bar selects or deselects the chosen rows.</source>
        <translation>La barra espaciadora marca o desmarca las filas elegidas.</translation>
    </message>
    <message>
        <source>Closes this window.</source>
        <translation>Cierra esta ventana.</translation>
    </message>
    <message>
        <source>Takes these sources and shows their lists.</source>
        <translation>Toma estas fuentes y muestra sus listas.</translation>
    </message>
    <message>
        <source>Changes nothing.</source>
        <translation>No cambia nada.</translation>
    </message>
    <message>
        <source>In groups, the most important first.</source>
        <translation>Por grupos, los más importantes primero.</translation>
    </message>
    <message>
        <source>The newest line is the last one.</source>
        <translation>La línea más reciente es la última.</translation>
    </message>
    <message>
        <source>Goes to the previous line that was found.</source>
        <translation>Va a la línea encontrada anterior.</translation>
    </message>
    <message>
        <source>Goes to the next line that was found.</source>
        <translation>Va a la siguiente línea encontrada.</translation>
    </message>
    <message>
        <source>The backups of the chosen game save are listed below.</source>
        <translation>Debajo figuran las copias de la partida elegida.</translation>
    </message>
</context>
</TS>
