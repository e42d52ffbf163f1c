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
</context>
</TS>
