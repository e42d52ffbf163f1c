<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Sync Now</source>
        <translation>Jetzt synchronisieren</translation>
    </message>
    <message>
        <source>Cancel Sync</source>
        <translation>Synchronisierung abbrechen</translation>
    </message>
    <message>
        <source>Eject PSP</source>
        <translation>PSP auswerfen</translation>
    </message>
    <message>
        <source>Open Caravel</source>
        <translation>Caravel öffnen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>There is no session bus to reach the helper by.</source>
        <translation>Es gibt keinen Sitzungsbus, über den das Hilfsprogramm zu erreichen wäre.</translation>
    </message>
    <message>
        <source>The helper did not answer: %@</source>
        <translation>Das Hilfsprogramm hat nicht geantwortet: %@</translation>
    </message>
    <message>
        <source>The helper was started but did not appear.</source>
        <translation>Das Hilfsprogramm wurde gestartet, ist aber nicht erschienen.</translation>
    </message>
    <message>
        <source>The helper is not installed. Please install Caravel again.</source>
        <translation>Das Hilfsprogramm ist nicht installiert. Bitte installieren Sie Caravel neu.</translation>
    </message>
    <message>
        <source>The helper can't be started.</source>
        <translation>Das Hilfsprogramm kann nicht gestartet werden.</translation>
    </message>
    <message>
        <source>The helper keeps ending by itself.</source>
        <translation>Das Hilfsprogramm beendet sich immer wieder von selbst.</translation>
    </message>
    <message>
        <source>%@ (%@ entries)</source>
        <translation>%@ (%@ Einträge)</translation>
    </message>
    <message>
        <source>%@ copied</source>
        <translation>%@ kopiert</translation>
    </message>
    <message>
        <source>%@ free of %@</source>
        <translation>%@ von %@ frei</translation>
    </message>
    <message>
        <source>%@ in place</source>
        <translation>%@ vorhanden</translation>
    </message>
    <message>
        <source>%@ kept on this computer</source>
        <translation>%@ auf diesem Computer aufbewahrt</translation>
    </message>
    <message>
        <source>%@ left out</source>
        <translation>%@ ausgelassen</translation>
    </message>
    <message>
        <source>%@ missing</source>
        <translation>%@ fehlen</translation>
    </message>
    <message>
        <source>%@ of %@</source>
        <translation>%@ von %@</translation>
    </message>
    <message>
        <source>%@ removed</source>
        <translation>%@ entfernt</translation>
    </message>
    <message>
        <source>%@ replaced</source>
        <translation>%@ ersetzt</translation>
    </message>
    <message>
        <source>%@ to copy</source>
        <translation>%@ zu kopieren</translation>
    </message>
    <message>
        <source>%@ to remove</source>
        <translation>%@ zu entfernen</translation>
    </message>
    <message>
        <source>%@ to replace</source>
        <translation>%@ zu ersetzen</translation>
    </message>
    <message>
        <source>%@ too much for %@</source>
        <translation>%@ zu viel für %@</translation>
    </message>
    <message>
        <source>%@, %@ a second, %@ left</source>
        <translation>%@, %@ pro Sekunde, noch %@</translation>
    </message>
    <message>
        <source>%@, from %@ to %@</source>
        <translation>%@, von %@ bis %@</translation>
    </message>
    <message>
        <source>%@, from %@</source>
        <translation>%@, ab %@</translation>
    </message>
    <message>
        <source>%@: left out</source>
        <translation>%@: ausgelassen</translation>
    </message>
    <message>
        <source>%@: to copy</source>
        <translation>%@: zu kopieren</translation>
    </message>
    <message>
        <source>%@: to remove</source>
        <translation>%@: zu entfernen</translation>
    </message>
    <message>
        <source>%@: to replace</source>
        <translation>%@: zu ersetzen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;PSP</source>
        <translation>&amp;PSP</translation>
    </message>
    <message>
        <source>A sync is running.</source>
        <translation>Eine Synchronisierung läuft.</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Beginnen</translation>
    </message>
    <message>
        <source>Brings the Memory Stick up to date with your selection</source>
        <translation>Bringt den Memory Stick auf den Stand Ihrer Auswahl</translation>
    </message>
    <message>
        <source>Capacity of the Memory Stick after the sync</source>
        <translation>Belegung des Memory Sticks nach der Synchronisierung</translation>
    </message>
    <message>
        <source>Caravel copies what you select in the next window to the PSP's Memory Stick, and removes there, from the folders of music, photos and movies, what is not selected any more. Files that it did not place itself are first copied to this computer, and your media on this computer are only read.</source>
        <translation>Caravel kopiert auf den Memory Stick der PSP, was Sie im nächsten Fenster auswählen, und entfernt dort aus den Ordnern für Musik, Fotos und Filme, was nicht mehr ausgewählt ist. Dateien, die es nicht selbst dort abgelegt hat, werden zuvor auf diesen Computer kopiert, und Ihre Medien auf diesem Computer werden nur gelesen.</translation>
    </message>
    <message>
        <source>Caravel's helper is being started.</source>
        <translation>Das Hilfsprogramm von Caravel wird gestartet.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Closes this message</source>
        <translation>Schließt diese Meldung</translation>
    </message>
    <message>
        <source>Connect the PSP with a USB cable and choose "USB Connection" in its settings, or put its Memory Stick into a card reader.</source>
        <translation>Verbinden Sie die PSP mit einem USB-Kabel und wählen Sie in ihren Einstellungen „USB-Verbindung“, oder stecken Sie ihren Memory Stick in einen Kartenleser.</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Kontakte</translation>
    </message>
    <message>
        <source>Everything is written to it. You can disconnect the PSP now.</source>
        <translation>Alles ist geschrieben. Sie können die PSP jetzt trennen.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Files on the Memory Stick that no sync placed: %@. They will be removed from it, but are kept: copies of them come to lie in %@.</source>
        <translation>Dateien auf dem Memory Stick, die keine Synchronisierung dort abgelegt hat: %@. Sie werden von ihm entfernt, aber aufbewahrt: Kopien davon kommen nach %@.</translation>
    </message>
    <message>
        <source>Files on the Memory Stick that no sync placed: %@. They will be removed, and your settings keep no copies.</source>
        <translation>Dateien auf dem Memory Stick, die keine Synchronisierung dort abgelegt hat: %@. Sie werden entfernt, und nach Ihren Einstellungen wird keine Kopie aufbewahrt.</translation>
    </message>
    <message>
        <source>Files that a sync would change</source>
        <translation>Dateien, die eine Synchronisierung ändern würde</translation>
    </message>
    <message>
        <source>Files that were left out or kept</source>
        <translation>Dateien, die ausgelassen oder aufbewahrt wurden</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Game Saves</source>
        <translation>Spielstände</translation>
    </message>
    <message>
        <source>Kept on this computer, as no sync had placed them</source>
        <translation>Auf diesem Computer aufbewahrt, da keine Synchronisierung sie abgelegt hatte</translation>
    </message>
    <message>
        <source>Kinds of media</source>
        <translation>Medienarten</translation>
    </message>
    <message>
        <source>Last Sync...</source>
        <translation>Letzte Synchronisierung …</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Ausgelassen</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Memory Stick</source>
        <translation>Memory Stick</translation>
    </message>
    <message>
        <source>No PSP is connected</source>
        <translation>Keine PSP ist verbunden</translation>
    </message>
    <message>
        <source>No PSP is connected.</source>
        <translation>Keine PSP ist verbunden.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Nothing was copied: the Memory Stick has no room for all of it</source>
        <translation>Nichts wurde kopiert: Der Memory Stick hat nicht für alles Platz</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Anderes</translation>
    </message>
    <message>
        <source>Preview...</source>
        <translation>Vorschau …</translation>
    </message>
    <message>
        <source>Progress of the sync</source>
        <translation>Fortschritt der Synchronisierung</translation>
    </message>
    <message>
        <source>Read Anew</source>
        <translation>Neu einlesen</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Show Report...</source>
        <translation>Bericht zeigen …</translation>
    </message>
    <message>
        <source>Shows what a sync would do, without doing it</source>
        <translation>Zeigt, was eine Synchronisierung tun würde, ohne es zu tun</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Wird gestartet …</translation>
    </message>
    <message>
        <source>Starts the helper</source>
        <translation>Startet das Hilfsprogramm</translation>
    </message>
    <message>
        <source>Stops the sync; the next one completes it</source>
        <translation>Hält die Synchronisierung an; die nächste vollendet sie</translation>
    </message>
    <message>
        <source>The Last Sync</source>
        <translation>Die letzte Synchronisierung</translation>
    </message>
    <message>
        <source>The Memory Stick could not be looked at.</source>
        <translation>Der Memory Stick konnte nicht untersucht werden.</translation>
    </message>
    <message>
        <source>The Memory Stick was ejected</source>
        <translation>Der Memory Stick wurde ausgeworfen</translation>
    </message>
    <message>
        <source>The copies lie in %@. What should go back to the Memory Stick belongs in a dropbox.</source>
        <translation>Die Kopien liegen in %@. Was wieder auf den Memory Stick soll, gehört in eine Dropbox.</translation>
    </message>
    <message>
        <source>The sync is complete but for what was left out</source>
        <translation>Die Synchronisierung ist bis auf Ausgelassenes vollständig</translation>
    </message>
    <message>
        <source>The sync is complete</source>
        <translation>Die Synchronisierung ist vollständig</translation>
    </message>
    <message>
        <source>The sync was cancelled</source>
        <translation>Die Synchronisierung wurde abgebrochen</translation>
    </message>
    <message>
        <source>The sync was cut short: the Memory Stick was full</source>
        <translation>Die Synchronisierung brach ab: Der Memory Stick war voll</translation>
    </message>
    <message>
        <source>The sync was cut short: the PSP went away</source>
        <translation>Die Synchronisierung brach ab: Die PSP war nicht mehr da</translation>
    </message>
    <message>
        <source>There is no helper</source>
        <translation>Es gibt kein Hilfsprogramm</translation>
    </message>
    <message>
        <source>There was no sync yet</source>
        <translation>Es gab noch keine Synchronisierung</translation>
    </message>
    <message>
        <source>This is too much for the Memory Stick: nothing would be copied. Please deselect something.</source>
        <translation>Das ist zu viel für den Memory Stick: Nichts würde kopiert. Bitte wählen Sie etwas ab.</translation>
    </message>
    <message>
        <source>To remove, though no sync placed them</source>
        <translation>Zu entfernen, obwohl keine Synchronisierung sie abgelegt hat</translation>
    </message>
    <message>
        <source>To replace, though no sync placed them</source>
        <translation>Zu ersetzen, obwohl keine Synchronisierung sie abgelegt hat</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Welcome to Caravel</source>
        <translation>Willkommen bei Caravel</translation>
    </message>
    <message>
        <source>What a Sync Would Do</source>
        <translation>Was eine Synchronisierung tun würde</translation>
    </message>
    <message>
        <source>Where Your Media Are...</source>
        <translation>Wo Ihre Medien liegen …</translation>
    </message>
    <message>
        <source>Where are your media?</source>
        <translation>Wo liegen Ihre Medien?</translation>
    </message>
    <message>
        <source>Working out what a sync would do...</source>
        <translation>Es wird ermittelt, was eine Synchronisierung tun würde …</translation>
    </message>
    <message>
        <source>Writes out all that waits and lets go of the Memory Stick</source>
        <translation>Schreibt alles Ausstehende und gibt den Memory Stick frei</translation>
    </message>
    <message>
        <source>a link on the Memory Stick is in the way</source>
        <translation>eine Verknüpfung auf dem Memory Stick ist im Weg</translation>
    </message>
    <message>
        <source>belongs to a file that is left out</source>
        <translation>gehört zu einer ausgelassenen Datei</translation>
    </message>
    <message>
        <source>not found on this computer</source>
        <translation>auf diesem Computer nicht gefunden</translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>nichts zu tun</translation>
    </message>
    <message>
        <source>too large for the Memory Stick</source>
        <translation>zu groß für den Memory Stick</translation>
    </message>
    <message>
        <source>too much for the Memory Stick</source>
        <translation>zu viel für den Memory Stick</translation>
    </message>
    <message>
        <source>what is there could not be kept</source>
        <translation>was dort liegt, konnte nicht aufbewahrt werden</translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation>Wird initialisiert …</translation>
    </message>
    <message>
        <source>No PSP Connected</source>
        <translation>Keine PSP verbunden</translation>
    </message>
    <message>
        <source>Connect a PSP to perform a sync.</source>
        <translation>Verbinden Sie eine PSP, um zu synchronisieren.</translation>
    </message>
    <message>
        <source>%@ Available</source>
        <extracomment>The free space of the PSP.</extracomment>
        <translation>%@ verfügbar</translation>
    </message>
    <message>
        <source>Click &quot;Sync Now&quot; to perform a sync.</source>
        <translation>Klicken Sie auf „Jetzt synchronisieren“, um zu synchronisieren.</translation>
    </message>
    <message>
        <source>Last Sync: %@</source>
        <extracomment>The day and the time, or &quot;Never&quot;.</extracomment>
        <translation>Letzte Synchronisierung: %@</translation>
    </message>
    <message>
        <source>Never</source>
        <extracomment>In the place of the last sync&apos;s date.</extracomment>
        <translation>Nie</translation>
    </message>
    <message>
        <source>%@ found</source>
        <translation>%@ gefunden</translation>
    </message>
    <message>
        <source>%@ has nothing to choose from: %@</source>
        <translation>%@ enthält nichts zum Auswählen: %@</translation>
    </message>
    <message>
        <source>%@ movies have been removed.</source>
        <translation>%@ Filme wurden entfernt.</translation>
    </message>
    <message>
        <source>%@ of %@ selected</source>
        <translation>%@ von %@ ausgewählt</translation>
    </message>
    <message>
        <source>%@ of %@ shown</source>
        <translation>%@ von %@ angezeigt</translation>
    </message>
    <message>
        <source>2.00 or later</source>
        <translation>2.00 oder neuer</translation>
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
        <translation>480 × 272 (wie die PSP)</translation>
    </message>
    <message>
        <source>720 × 480 (for a TV)</source>
        <translation>720 × 480 (für den Fernseher)</translation>
    </message>
    <message>
        <source>A better one takes more room on the PSP.</source>
        <translation>Eine bessere braucht mehr Platz auf der PSP.</translation>
    </message>
    <message>
        <source>A selection of its own for each Memory Stick</source>
        <translation>Eine eigene Auswahl für jeden Memory Stick</translation>
    </message>
    <message>
        <source>Add Movies</source>
        <translation>Filme hinzufügen</translation>
    </message>
    <message>
        <source>Add Movies...</source>
        <translation>Filme hinzufügen …</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Albums come from</source>
        <translation>Alben kommen aus</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Also after a movie has been converted.</source>
        <translation>Auch nachdem ein Film umgewandelt wurde.</translation>
    </message>
    <message>
        <source>Another: %@</source>
        <translation>Andere: %@</translation>
    </message>
    <message>
        <source>Artist and album</source>
        <translation>Interpret und Album</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Interpret</translation>
    </message>
    <message>
        <source>Backups of %@</source>
        <translation>Sicherungen von %@</translation>
    </message>
    <message>
        <source>Backups of each game save</source>
        <translation>Sicherungen je Spielstand</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Am besten</translation>
    </message>
    <message>
        <source>Bookmarks come from</source>
        <translation>Lesezeichen kommen aus</translation>
    </message>
    <message>
        <source>Caravel waits for the PSP as long as you are logged in, and shows its icon in the tray.</source>
        <translation>Caravel wartet auf die PSP, solange Sie angemeldet sind, und zeigt sein Symbol in der Leiste.</translation>
    </message>
    <message>
        <source>Checks all that is shown.</source>
        <translation>Wählt alles aus, was angezeigt wird.</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>Chromium and its kin</source>
        <translation>Chromium und Verwandte</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Contacts and Saves</source>
        <translation>Kontakte und Spielstände</translation>
    </message>
    <message>
        <source>Converts files to what the PSP plays.</source>
        <translation>Wandelt Dateien in das um, was die PSP abspielt.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Default: %@</source>
        <translation>Voreinstellung: %@</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>Zeilensprung entfernen</translation>
    </message>
    <message>
        <source>Delete All...</source>
        <translation>Alle löschen …</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>Löschen …</translation>
    </message>
    <message>
        <source>Disc and track</source>
        <translation>CD- und Titelnummer</translation>
    </message>
    <message>
        <source>Each file is named. Useful where something doesn&apos;t work.</source>
        <translation>Jede Datei wird genannt. Nützlich, wenn etwas nicht klappt.</translation>
    </message>
    <message>
        <source>Each source has a selection of its own.</source>
        <translation>Jede Quelle hat ihre eigene Auswahl.</translation>
    </message>
    <message>
        <source>Each sync copies the game saves that have changed to this computer.</source>
        <translation>Jede Synchronisierung kopiert die geänderten Spielstände auf diesen Computer.</translation>
    </message>
    <message>
        <source>Edits the name of the selected movie.</source>
        <translation>Ändert den Namen des ausgewählten Films.</translation>
    </message>
    <message>
        <source>Eject the PSP after a sync</source>
        <translation>Die PSP nach der Synchronisierung auswerfen</translation>
    </message>
    <message>
        <source>Empties the log for good.</source>
        <translation>Leert das Protokoll endgültig.</translation>
    </message>
    <message>
        <source>Empties the search.</source>
        <translation>Leert die Suche.</translation>
    </message>
    <message>
        <source>Everybody in this computer&apos;s address book is put on one page, with a small picture where there is one. It is made anew at each sync, and only where something has changed it is written.

The PSP shows the page in its browser: with bookmarks synced, one of them leads there. System software 2.00 or later is needed.</source>
        <translation>Alle aus dem Adressbuch dieses Computers kommen auf eine Seite, mit einem kleinen Bild, wo es eines gibt. Sie wird bei jeder Synchronisierung neu erstellt und nur geschrieben, wenn sich etwas geändert hat.

Die PSP zeigt die Seite in ihrem Browser: Werden Lesezeichen synchronisiert, führt eines dorthin. Dafür ist die Systemsoftware 2.00 oder neuer nötig.</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Mäßig</translation>
    </message>
    <message>
        <source>Files that something else has put there go too. Otherwise only files that an earlier sync has placed are removed.</source>
        <translation>Auch was etwas anderes dort abgelegt hat, geht. Sonst werden nur Dateien entfernt, die eine frühere Synchronisierung abgelegt hat.</translation>
    </message>
    <message>
        <source>Firefox (page)</source>
        <translation>Firefox (Seite)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Folders and playlists</source>
        <translation>Ordner und Wiedergabelisten</translation>
    </message>
    <message>
        <source>Folders of music on the PSP</source>
        <translation>Musikordner auf der PSP</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Folgen</translation>
    </message>
    <message>
        <source>For movies that are added from now on. The two large sizes need system software 3.30 or later.</source>
        <translation>Für Filme, die ab jetzt hinzugefügt werden. Die beiden großen brauchen die Systemsoftware 3.30 oder neuer.</translation>
    </message>
    <message>
        <source>For recordings of television that show combs where things move.</source>
        <translation>Für Fernsehaufnahmen, die bei Bewegungen Kämme zeigen.</translation>
    </message>
    <message>
        <source>Game save</source>
        <translation>Spielstand</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message>
        <source>It is kept on the stick. Such a stick is never synced as soon as it is connected.</source>
        <translation>Sie liegt auf dem Stick. Ein solcher Stick wird nie gleich beim Verbinden synchronisiert.</translation>
    </message>
    <message>
        <source>It is no longer in this list then. The PSP&apos;s own game save stays as it is.</source>
        <translation>Sie steht danach nicht mehr in dieser Liste. Der Spielstand auf der PSP bleibt, wie er ist.</translation>
    </message>
    <message>
        <source>It lies in “Removed from PSP” in the folder “Caravel”.</source>
        <translation>Sie liegt in „Removed from PSP“ im Ordner „Caravel“.</translation>
    </message>
    <message>
        <source>Keep a copy of removed files that no sync has placed</source>
        <translation>Von entfernten Dateien, die keine Synchronisierung abgelegt hat, eine Kopie behalten</translation>
    </message>
    <message>
        <source>Keep game saves</source>
        <translation>Spielstände sichern</translation>
    </message>
    <message>
        <source>Keeps the newest line in sight.</source>
        <translation>Hält die neueste Zeile im Blick.</translation>
    </message>
    <message>
        <source>Kept on</source>
        <translation>Gesichert am</translation>
    </message>
    <message>
        <source>Last kept</source>
        <translation>Zuletzt gesichert</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Am geringsten</translation>
    </message>
    <message>
        <source>Least, at half the frames</source>
        <translation>Am geringsten, mit halb so vielen Bildern</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen …</translation>
    </message>
    <message>
        <source>Move all backups of “%@” to the Trash (%@)?</source>
        <translation>Alle Sicherungen von „%@“ in den Papierkorb legen (%@)?</translation>
    </message>
    <message>
        <source>Move the backup of “%@” from %@ to the Trash?</source>
        <translation>Die Sicherung von „%@“ vom %@ in den Papierkorb legen?</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>Moves all backups of the game save to the Trash.</source>
        <translation>Legt alle Sicherungen des Spielstands in den Papierkorb.</translation>
    </message>
    <message>
        <source>Moves the selected backup to the Trash.</source>
        <translation>Legt die ausgewählte Sicherung in den Papierkorb.</translation>
    </message>
    <message>
        <source>Moves the selected movies to the Trash, or takes them out of the conversion.</source>
        <translation>Legt die ausgewählten Filme in den Papierkorb oder nimmt sie aus der Umwandlung.</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Music, photos and movies in the folder “Dropboxes” come along without being selected.</source>
        <translation>Musik, Fotos und Filme im Ordner „Dropboxes“ kommen mit, ohne ausgewählt zu sein.</translation>
    </message>
    <message>
        <source>Names of photos begin with</source>
        <translation>Namen der Fotos beginnen mit</translation>
    </message>
    <message>
        <source>Names of songs begin with</source>
        <translation>Namen der Titel beginnen mit</translation>
    </message>
    <message>
        <source>Newer on the PSP than what is kept</source>
        <translation>Auf der PSP neuer als gesichert</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>No game save is kept yet. They are copied from the PSP at each sync.</source>
        <translation>Noch ist kein Spielstand gesichert. Sie werden bei jeder Synchronisierung von der PSP kopiert.</translation>
    </message>
    <message>
        <source>Not everything could be put back. Look for it in the Trash.</source>
        <translation>Nicht alles konnte zurückgelegt werden. Sehen Sie im Papierkorb nach.</translation>
    </message>
    <message>
        <source>Nothing else was found on this computer.</source>
        <translation>Sonst wurde auf diesem Computer nichts gefunden.</translation>
    </message>
    <message>
        <source>Nothing of %@ was found on this computer. It would lie here: %@</source>
        <translation>Von %@ wurde auf diesem Computer nichts gefunden. Es läge hier: %@</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>Of the game save that is selected above.</source>
        <translation>Des Spielstands, der oben ausgewählt ist.</translation>
    </message>
    <message>
        <source>Of the movie&apos;s own. More than 100 % makes it louder.</source>
        <translation>Von der des Films. Mehr als 100 % macht ihn lauter.</translation>
    </message>
    <message>
        <source>Older ones are removed.</source>
        <translation>Ältere werden entfernt.</translation>
    </message>
    <message>
        <source>On the PSP, not kept yet</source>
        <translation>Auf der PSP, noch nicht gesichert</translation>
    </message>
    <message>
        <source>Only Memory Sticks that have been synced before.</source>
        <translation>Nur Memory Sticks, die schon einmal synchronisiert wurden.</translation>
    </message>
    <message>
        <source>Only when the sync was completed.</source>
        <translation>Nur wenn die Synchronisierung vollständig war.</translation>
    </message>
    <message>
        <source>Open this window when a PSP is connected</source>
        <translation>Dieses Fenster öffnen, wenn eine PSP verbunden wird</translation>
    </message>
    <message>
        <source>Otherwise a sync removes the movies from the PSP.</source>
        <translation>Sonst entfernt eine Synchronisierung die Filme von der PSP.</translation>
    </message>
    <message>
        <source>Otherwise a sync removes the music from the PSP.</source>
        <translation>Sonst entfernt eine Synchronisierung die Musik von der PSP.</translation>
    </message>
    <message>
        <source>Otherwise a sync removes the photos from the PSP.</source>
        <translation>Sonst entfernt eine Synchronisierung die Fotos von der PSP.</translation>
    </message>
    <message>
        <source>Otherwise a sync leaves the bookmarks of the PSP&apos;s browser as they are.</source>
        <translation>Sonst lässt eine Synchronisierung die Lesezeichen des PSP-Browsers, wie sie sind.</translation>
    </message>
    <message>
        <source>Otherwise only the icon in the tray tells of it.</source>
        <translation>Sonst zeigt es nur das Symbol in der Leiste.</translation>
    </message>
    <message>
        <source>Place of Caravel&apos;s folder</source>
        <translation>Ort des Ordners von Caravel</translation>
    </message>
    <message>
        <source>Play a sound after a sync</source>
        <translation>Nach der Synchronisierung einen Ton abspielen</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Wiedergabeliste</translation>
    </message>
    <message>
        <source>Playlists come from</source>
        <translation>Wiedergabelisten kommen aus</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Profile of the browser</source>
        <translation>Profil des Browsers</translation>
    </message>
    <message>
        <source>Put the backup of “%@” from %@ back on the PSP?</source>
        <translation>Die Sicherung von „%@“ vom %@ auf die PSP zurücklegen?</translation>
    </message>
    <message>
        <source>Puts the selected backup back on the PSP.</source>
        <translation>Legt die ausgewählte Sicherung auf die PSP zurück.</translation>
    </message>
    <message>
        <source>Quality of the picture</source>
        <translation>Bildqualität</translation>
    </message>
    <message>
        <source>Quality of the sound</source>
        <translation>Tonqualität</translation>
    </message>
    <message>
        <source>Remove what is not selected from the media folders</source>
        <translation>Aus den Medienordnern entfernen, was nicht ausgewählt ist</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Restore...</source>
        <translation>Wiederherstellen …</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Keine auswählen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Shows what holds these words. What is out of sight stays as it is.</source>
        <translation>Zeigt, was diese Wörter enthält. Was nicht zu sehen ist, bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Bildgröße</translation>
    </message>
    <message>
        <source>Songs</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Such a stick has to be formatted by the PSP before it can be synced.</source>
        <translation>Ein solcher Stick muss von der PSP formatiert werden, bevor er synchronisiert werden kann.</translation>
    </message>
    <message>
        <source>Sync as soon as a PSP is connected</source>
        <translation>Synchronisieren, sobald eine PSP verbunden wird</translation>
    </message>
    <message>
        <source>Sync bookmarks</source>
        <translation>Lesezeichen synchronisieren</translation>
    </message>
    <message>
        <source>Sync contacts</source>
        <translation>Kontakte synchronisieren</translation>
    </message>
    <message>
        <source>Sync movies</source>
        <translation>Filme synchronisieren</translation>
    </message>
    <message>
        <source>Sync music</source>
        <translation>Musik synchronisieren</translation>
    </message>
    <message>
        <source>Sync photos</source>
        <translation>Fotos synchronisieren</translation>
    </message>
    <message>
        <source>Sync the dropboxes</source>
        <translation>Die Dropboxen synchronisieren</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Synchronisierung</translation>
    </message>
    <message>
        <source>System software of the PSP</source>
        <translation>Systemsoftware der PSP</translation>
    </message>
    <message>
        <source>Take %@ (%@)</source>
        <translation>%@ nehmen (%@)</translation>
    </message>
    <message>
        <source>Take %@</source>
        <translation>%@ nehmen</translation>
    </message>
    <message>
        <source>Tell about Memory Sticks without the PSP&apos;s folders</source>
        <translation>Auf Memory Sticks ohne die Ordner der PSP hinweisen</translation>
    </message>
    <message>
        <source>The PSP plays the songs of a folder in the order of their names.</source>
        <translation>Die PSP spielt die Titel eines Ordners in der Reihenfolge ihrer Namen.</translation>
    </message>
    <message>
        <source>The PSP shows the photos of a folder in the order of their names.</source>
        <translation>Die PSP zeigt die Fotos eines Ordners in der Reihenfolge ihrer Namen.</translation>
    </message>
    <message>
        <source>The conversion failed</source>
        <translation>Die Umwandlung ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>The first one plays only MP3 music, shows only JPEG photos, and has no browser for bookmarks and contacts.</source>
        <translation>Die erste spielt nur MP3-Musik, zeigt nur JPEG-Fotos und hat keinen Browser für Lesezeichen und Kontakte.</translation>
    </message>
    <message>
        <source>The folder “Caravel” there holds converted movies, game saves and the dropboxes. What the old place holds is not moved.</source>
        <translation>Der Ordner „Caravel“ dort enthält umgewandelte Filme, Spielstände und die Dropboxen. Was am alten Ort liegt, wird nicht bewegt.</translation>
    </message>
    <message>
        <source>The game save has not been put back.</source>
        <translation>Der Spielstand wurde nicht zurückgelegt.</translation>
    </message>
    <message>
        <source>The game save is being put back on the PSP...</source>
        <translation>Der Spielstand wird auf die PSP zurückgelegt …</translation>
    </message>
    <message>
        <source>The game save is on the PSP.</source>
        <translation>Der Spielstand ist auf der PSP.</translation>
    </message>
    <message>
        <source>The game save that is on the PSP now is kept as the newest backup, and then replaced.</source>
        <translation>Der Spielstand, der jetzt auf der PSP ist, wird als neueste Sicherung behalten und dann ersetzt.</translation>
    </message>
    <message>
        <source>The helper has given no answer.</source>
        <translation>Das Hilfsprogramm hat nicht geantwortet.</translation>
    </message>
    <message>
        <source>The helper has not taken the selection as it was made. What is shown now is what it has.</source>
        <translation>Das Hilfsprogramm hat die Auswahl nicht so übernommen. Angezeigt wird jetzt, was es hat.</translation>
    </message>
    <message>
        <source>The last 10</source>
        <translation>Die letzten 10</translation>
    </message>
    <message>
        <source>The last 25</source>
        <translation>Die letzten 25</translation>
    </message>
    <message>
        <source>The last 50</source>
        <translation>Die letzten 50</translation>
    </message>
    <message>
        <source>The movies could not be added.</source>
        <translation>Die Filme konnten nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>The name or the folder of a profile of Firefox or Chromium. Left empty, the first one is taken.</source>
        <translation>Der Name oder der Ordner eines Profils von Firefox oder Chromium. Leer gelassen, gilt das erste.</translation>
    </message>
    <message>
        <source>The position in the album</source>
        <translation>Die Stelle im Album</translation>
    </message>
    <message>
        <source>The position in the playlist</source>
        <translation>Die Stelle in der Wiedergabeliste</translation>
    </message>
    <message>
        <source>The preferences can&apos;t be written.</source>
        <translation>Die Einstellungen können nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The selected lines, or all of them.</source>
        <translation>Die ausgewählten Zeilen oder alle.</translation>
    </message>
    <message>
        <source>The source that is chosen in the settings is unknown.</source>
        <translation>Die Quelle, die in den Einstellungen gewählt ist, ist unbekannt.</translation>
    </message>
    <message>
        <source>The whole address book, as a page for the PSP&apos;s browser.</source>
        <translation>Das ganze Adressbuch, als Seite für den Browser der PSP.</translation>
    </message>
    <message>
        <source>There is no movie yet. Add one with the button, or drop its file here: it is converted to what the PSP plays.</source>
        <translation>Noch gibt es keinen Film. Fügen Sie mit der Taste einen hinzu oder ziehen Sie seine Datei hierher: Er wird in das umgewandelt, was die PSP abspielt.</translation>
    </message>
    <message>
        <source>This can&apos;t be a movie&apos;s name: %@</source>
        <translation>So kann ein Film nicht heißen: %@</translation>
    </message>
    <message>
        <source>This must be a full path, or one that begins with &quot;~/&quot;.</source>
        <translation>Dies muss ein vollständiger Pfad sein oder einer, der mit „~/“ beginnt.</translation>
    </message>
    <message>
        <source>Those of the page that is shown.</source>
        <translation>Die der angezeigten Seite.</translation>
    </message>
    <message>
        <source>Unchecks all that is shown.</source>
        <translation>Wählt alles ab, was angezeigt wird.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Waits for its conversion</source>
        <translation>Wartet auf seine Umwandlung</translation>
    </message>
    <message>
        <source>What %@ has written can&apos;t be read; it may be damaged: %@</source>
        <translation>Was %@ geschrieben hat, kann nicht gelesen werden und ist vielleicht beschädigt: %@</translation>
    </message>
    <message>
        <source>What the songs of one folder have in common.</source>
        <translation>Was die Titel eines Ordners gemeinsam haben.</translation>
    </message>
    <message>
        <source>Write a detailed log</source>
        <translation>Ein ausführliches Protokoll schreiben</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>selected and out of sight: %@</source>
        <translation>ausgewählt und nicht zu sehen: %@</translation>
    </message>
    <message>
        <source>“%@” has been moved to the Trash.</source>
        <translation>„%@“ wurde in den Papierkorb gelegt.</translation>
    </message>
    <message>
        <source>“%@” has been taken out of the conversion.</source>
        <translation>„%@“ wurde aus der Umwandlung genommen.</translation>
    </message>
    <message>
        <source>“Firefox (page)” is an old one, which keeps its bookmarks in a page.</source>
        <translation>„Firefox (Seite)“ ist ein alter, der seine Lesezeichen in einer Seite aufbewahrt.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Voreinstellungen wiederherstellen</translation>
    </message>
    <message>
        <source>today</source>
        <extracomment>As it stands in the middle of a sentence; the program capitalises it and appends the time.</extracomment>
        <translation>heute</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <extracomment>As it stands in the middle of a sentence; the program capitalises it and appends the time.</extracomment>
        <translation>morgen</translation>
    </message>
    <message>
        <source>yesterday</source>
        <extracomment>As it stands in the middle of a sentence; the program capitalises it and appends the time.</extracomment>
        <translation>gestern</translation>
    </message>
    <message>
        <source>Preparing to Sync...</source>
        <translation>Synchronisierung wird vorbereitet …</translation>
    </message>
    <message>
        <source>One moment, Caravel is gathering information...</source>
        <translation>Einen Moment, Caravel sammelt Informationen …</translation>
    </message>
    <message>
        <source>Cleaning Up...</source>
        <translation>Aufräumen …</translation>
    </message>
    <message>
        <source>Caravel is removing unneeded files...</source>
        <translation>Caravel entfernt nicht mehr benötigte Dateien …</translation>
    </message>
    <message>
        <source>Starting Sync...</source>
        <translation>Synchronisierung wird gestartet …</translation>
    </message>
    <message>
        <source>Caravel is copying selected files...</source>
        <translation>Caravel kopiert die ausgewählten Dateien …</translation>
    </message>
    <message>
        <source>Syncing %@...</source>
        <extracomment>The kind of media, as &quot;Music&quot;.</extracomment>
        <translation>Synchronisierung: %@ …</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Conversion in progress...</source>
        <translation>Konvertierung läuft …</translation>
    </message>
    <message>
        <source>Cancelling Sync...</source>
        <translation>Synchronisierung wird abgebrochen …</translation>
    </message>
    <message>
        <source>Please wait while Caravel completes the previous task...</source>
        <translation>Bitte warten Sie, bis Caravel den laufenden Vorgang abgeschlossen hat …</translation>
    </message>
    <message>
        <source>Sync Successful</source>
        <translation>Synchronisierung erfolgreich</translation>
    </message>
    <message>
        <source>Sync Cancelled</source>
        <translation>Synchronisierung abgebrochen</translation>
    </message>
    <message>
        <source>Sync was cancelled.</source>
        <extracomment>A line of the log.</extracomment>
        <translation>Die Synchronisierung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>You must re-sync to ensure the PSP is up to date.</source>
        <translation>Synchronisieren Sie erneut, damit die PSP auf dem neuesten Stand ist.</translation>
    </message>
    <message>
        <source>Ejecting PSP...</source>
        <translation>PSP wird ausgeworfen …</translation>
    </message>
    <message>
        <source>One moment, Caravel is preparing your PSP for ejection...</source>
        <translation>Einen Moment, Caravel bereitet Ihre PSP auf das Auswerfen vor …</translation>
    </message>
    <message>
        <source>Eject Failed</source>
        <translation>Auswerfen fehlgeschlagen</translation>
    </message>
    <message>
        <source>The PSP may be in use by another application.</source>
        <translation>Die PSP wird möglicherweise von einer anderen Anwendung verwendet.</translation>
    </message>
    <message>
        <source>Unformatted memory stick found!</source>
        <translation>Nicht formatierter Memory Stick gefunden!</translation>
    </message>
    <message>
        <source>A Memory Stick was found, however it is not formatted for use with a PSP.

If you intend to use this Memory Stick with the PSP and Caravel, you must first format it from the PSP&apos;s main menu.</source>
        <translation>Es wurde ein Memory Stick gefunden, der jedoch nicht für die Verwendung mit einer PSP formatiert ist.

Wenn Sie diesen Memory Stick mit der PSP und Caravel verwenden möchten, müssen Sie ihn zuerst über das Hauptmenü der PSP formatieren.</translation>
    </message>
    <message>
        <source>Sync too large!</source>
        <translation>Synchronisierung zu umfangreich!</translation>
    </message>
    <message>
        <source>You are attempting to sync %@, however only %@ of free space is available on the Memory Stick currently in your PSP.

Please deselect some media to ensure the sync can be completed.</source>
        <extracomment>First the size of the sync, then the free space: keep the order.</extracomment>
        <translation>Sie möchten %@ synchronisieren, auf dem Memory Stick in Ihrer PSP sind jedoch nur %@ frei.

Bitte wählen Sie weniger Medien aus, damit die Synchronisierung abgeschlossen werden kann.</translation>
    </message>
    <message>
        <source>Memory stick full!</source>
        <translation>Memory Stick voll!</translation>
    </message>
    <message>
        <source>The Memory Stick currently inside your PSP has been filled. You must deselect some media to free enough space to complete a sync.</source>
        <translation>Der Memory Stick in Ihrer PSP ist voll. Wählen Sie weniger Medien aus, damit genügend Platz für eine vollständige Synchronisierung frei wird.</translation>
    </message>
    <message>
        <source>--</source>
        <extracomment>In the place of a size where there is none.</extracomment>
        <translation>--</translation>
    </message>
    <message>
        <source>%0.0f b</source>
        <extracomment>The number takes the place of the format.</extracomment>
        <translation>%0.0f Byte</translation>
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
        <translation>Konvertierung läuft, %i%% abgeschlossen...</translation>
    </message>
    <message>
        <source>The movie "%@" could not be converted:

%@</source>
        <translation>Der Film „%@“ konnte nicht konvertiert werden:

%@</translation>
    </message>
    <message>
        <source>Movie could not be converted!</source>
        <translation>Film konnte nicht konvertiert werden!</translation>
    </message>
    <message>
        <source>The converter gave no reason.</source>
        <translation>Der Konverter nannte keinen Grund.</translation>
    </message>
    <message>
        <source>The converter can't be started: %@</source>
        <translation>Der Konverter kann nicht gestartet werden: %@</translation>
    </message>
    <message>
        <source>Movie is not complete!</source>
        <translation>Film ist nicht vollständig!</translation>
    </message>
    <message>
        <source>The movie "%@" was converted, but not all of it is there:

%@</source>
        <translation>Der Film „%@“ wurde konvertiert, ist aber nicht vollständig:

%@</translation>
    </message>
    <message>
        <source>The movie "%@" was converted, but neither the movie library nor the folder %@ could take it. It has to be converted again.</source>
        <translation>Der Film „%@“ wurde konvertiert, aber weder die Filmsammlung noch der Ordner %@ konnte ihn aufnehmen. Er muss noch einmal konvertiert werden.</translation>
    </message>
    <message>
        <source>Movie could not be stored!</source>
        <translation>Film konnte nicht abgelegt werden!</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Filme</translation>
    </message>
    <message>
        <source>Size: %@</source>
        <translation>Größe: %@</translation>
    </message>
    <message>
        <source>The movie "%@" was converted, but there is no place for it in the movie library. It is kept in the folder %@.</source>
        <translation>Der Film „%@“ wurde konvertiert, aber in der Filmsammlung ist kein Platz für ihn. Er liegt nun im Ordner %@.</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Datensicherung</translation>
    </message>
    <message>
        <source>No description available</source>
        <translation>Keine Beschreibung verfügbar</translation>
    </message>
    <message>
        <source>%@ uses %@</source>
        <translation>%@ verwendet %@</translation>
    </message>
    <message>
        <source>Can't eject the PSP now!</source>
        <translation>Die PSP kann jetzt nicht ausgeworfen werden!</translation>
    </message>
    <message>
        <source>The PSP can't be ejected during a sync.</source>
        <translation>Die PSP kann während einer Synchronisierung nicht ausgeworfen werden.</translation>
    </message>
    <message>
        <source>Can't change backups now!</source>
        <translation>Sicherungen können jetzt nicht geändert werden!</translation>
    </message>
    <message>
        <source>Can't restore or delete backups during a sync.</source>
        <translation>Während einer Synchronisierung können Sicherungen weder wiederhergestellt noch gelöscht werden.</translation>
    </message>
    <message>
        <source>The game save on the PSP could not be kept first, so nothing on the PSP was changed.</source>
        <translation>Der Spielstand auf der PSP konnte nicht zuerst gesichert werden, daher wurde auf der PSP nichts geändert.</translation>
    </message>
    <message>
        <source>The game save that was on the PSP is kept as the newest backup.</source>
        <translation>Der Spielstand, der auf der PSP war, ist als neueste Sicherung erhalten.</translation>
    </message>
    <message>
        <source>Restoring failed!</source>
        <translation>Wiederherstellung fehlgeschlagen!</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Lesezeichen</translation>
    </message>
    <message>
        <source>Bookmarks Bar</source>
        <translation>Lesezeichenleiste</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <translation>Lesezeichenmenü</translation>
    </message>
    <message>
        <source>Syncing Safari Bookmarks...</source>
        <translation>Safari-Lesezeichen werden synchronisiert …</translation>
    </message>
    <message>
        <source>Syncing Firefox Bookmarks...</source>
        <translation>Firefox-Lesezeichen werden synchronisiert …</translation>
    </message>
    <message>
        <source>Syncing OmniWeb Bookmarks...</source>
        <translation>OmniWeb-Lesezeichen werden synchronisiert …</translation>
    </message>
    <message>
        <source>Syncing Camino Bookmarks...</source>
        <translation>Camino-Lesezeichen werden synchronisiert …</translation>
    </message>
    <message>
        <source>Syncing Chromium Bookmarks...</source>
        <translation>Chromium-Lesezeichen werden synchronisiert …</translation>
    </message>
    <message>
        <source>Syncing Contact Icons...</source>
        <translation>Kontaktbilder werden synchronisiert …</translation>
    </message>
    <message>
        <source>Syncing Contact Index...</source>
        <translation>Kontaktliste wird synchronisiert …</translation>
    </message>
    <message>
        <source>No PSP is connected. Nothing was changed.</source>
        <translation>Es ist keine PSP angeschlossen. Nichts wurde geändert.</translation>
    </message>
    <message>
        <source>There is no such backup. Nothing was changed.</source>
        <translation>Diese Sicherung gibt es nicht. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>Sync Incomplete</source>
        <translation>Synchronisierung unvollständig</translation>
    </message>
    <message>
        <source>PSP Ejected</source>
        <translation>PSP ausgeworfen</translation>
    </message>
    <message>
        <source>It is safe to remove the PSP now.</source>
        <translation>Sie können die PSP jetzt sicher entfernen.</translation>
    </message>
    <message>
        <source>%@ of %@ files could not be copied.</source>
        <translation>%@ von %@ Dateien konnten nicht kopiert werden.</translation>
    </message>
    <message>
        <source>Reading songs: %@ of %@</source>
        <translation>Titel werden gelesen: %@ von %@</translation>
    </message>
    <message>
        <source>PSP lost during sync!</source>
        <translation>PSP während der Synchronisierung verloren!</translation>
    </message>
    <message>
        <source>The PSP was disconnected, or its Memory Stick can&apos;t be written any more, before the sync was complete.

You must re-sync to ensure the PSP is up to date.</source>
        <translation>Die PSP wurde getrennt, oder auf ihren Memory Stick kann nicht mehr geschrieben werden, bevor die Synchronisierung abgeschlossen war.

Sie müssen erneut synchronisieren, damit die PSP auf dem neuesten Stand ist.</translation>
    </message>
    <message>
        <source>The sync was not started!</source>
        <translation>Die Synchronisierung wurde nicht gestartet!</translation>
    </message>
    <message>
        <source>The preferences can&apos;t be read, so it is not known what you have selected.</source>
        <translation>Die Einstellungen können nicht gelesen werden, daher ist nicht bekannt, was Sie ausgewählt haben.</translation>
    </message>
    <message>
        <source>The preferences were damaged and had to be set aside, your selection with them.

Please select your media anew, then sync.</source>
        <translation>Die Einstellungen waren beschädigt und mussten beiseitegelegt werden, und Ihre Auswahl mit ihnen.

Bitte wählen Sie Ihre Medien neu aus und synchronisieren Sie dann.</translation>
    </message>
    <message>
        <source>The folder &quot;.caravel&quot; on the Memory Stick is a link, and no link is followed there.

Please remove it, then sync.</source>
        <translation>Der Ordner „.caravel“ auf dem Memory Stick ist eine Verknüpfung, und dort wird keiner Verknüpfung gefolgt.

Bitte entfernen Sie sie und synchronisieren Sie dann.</translation>
    </message>
    <message>
        <source>The selection that is kept on the Memory Stick can&apos;t be read.

Please look at your selection, then click &quot;Sync Now&quot;.</source>
        <translation>Die Auswahl, die auf dem Memory Stick gespeichert ist, kann nicht gelesen werden.

Bitte prüfen Sie Ihre Auswahl und klicken Sie dann auf „Jetzt synchronisieren“.</translation>
    </message>
    <message>
        <source>The library for &quot;%@&quot; can&apos;t be read. A sync would remove from the PSP what you have selected in it.

Click &quot;Sync Now&quot; to sync all the same.</source>
        <translation>Die Bibliothek für „%@“ kann nicht gelesen werden. Eine Synchronisierung würde von der PSP entfernen, was Sie darin ausgewählt haben.

Klicken Sie auf „Jetzt synchronisieren“, um trotzdem zu synchronisieren.</translation>
    </message>
    <message>
        <source>A sync would remove more than half of &quot;%@&quot; from the PSP, though your selection is the same. Is a disk with your media missing?

Click &quot;Sync Now&quot; to sync all the same.</source>
        <translation>Eine Synchronisierung würde mehr als die Hälfte von „%@“ von der PSP entfernen, obwohl Ihre Auswahl dieselbe ist. Fehlt ein Datenträger mit Ihren Medien?

Klicken Sie auf „Jetzt synchronisieren“, um trotzdem zu synchronisieren.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; comes from another source now. A sync would remove from the PSP what came from the one before.

Click &quot;Sync Now&quot; to sync all the same.</source>
        <translation>„%@“ kommt jetzt aus einer anderen Quelle. Eine Synchronisierung würde von der PSP entfernen, was aus der vorigen kam.

Klicken Sie auf „Jetzt synchronisieren“, um trotzdem zu synchronisieren.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Not found: %@</source>
        <translation>Nicht gefunden: %@</translation>
    </message>
    <message>
        <source>%@ (1 entry)</source>
        <translation>%@ (1 Eintrag)</translation>
    </message>
    <message>
        <source>%@ needed</source>
        <translation>%@ benötigt</translation>
    </message>
    <message>
        <source>%@ freed</source>
        <translation>%@ werden frei</translation>
    </message>
    <message>
        <source>%@ free now</source>
        <translation>%@ jetzt frei</translation>
    </message>
    <message>
        <source>What there is of each kind, and how much of it is selected.</source>
        <translation>Was es von jeder Art gibt, und wie viel davon ausgewählt ist.</translation>
    </message>
    <message>
        <source>The space bar selects or deselects the chosen rows.</source>
        <translation>Die Leertaste wählt die markierten Zeilen aus oder ab.</translation>
    </message>
    <message>
        <source>Closes this window.</source>
        <translation>Schließt dieses Fenster.</translation>
    </message>
    <message>
        <source>Takes these sources and shows their lists.</source>
        <translation>Nimmt diese Quellen und zeigt ihre Listen.</translation>
    </message>
    <message>
        <source>Changes nothing.</source>
        <translation>Ändert nichts.</translation>
    </message>
    <message>
        <source>In groups, the most important first.</source>
        <translation>In Gruppen, die wichtigsten zuerst.</translation>
    </message>
    <message>
        <source>The newest line is the last one.</source>
        <translation>Die neueste Zeile ist die letzte.</translation>
    </message>
    <message>
        <source>Goes to the previous line that was found.</source>
        <translation>Geht zur vorigen gefundenen Zeile.</translation>
    </message>
    <message>
        <source>Goes to the next line that was found.</source>
        <translation>Geht zur nächsten gefundenen Zeile.</translation>
    </message>
    <message>
        <source>The backups of the chosen game save are listed below.</source>
        <translation>Darunter stehen die Sicherungen des gewählten Spielstands.</translation>
    </message>
</context>
</TS>
