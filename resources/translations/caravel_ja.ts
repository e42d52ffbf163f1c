<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Sync Now</source>
        <translation>今すぐ同期</translation>
    </message>
    <message>
        <source>Cancel Sync</source>
        <translation>同期をキャンセル</translation>
    </message>
    <message>
        <source>Eject PSP</source>
        <translation>PSP を取り出す</translation>
    </message>
    <message>
        <source>Open Caravel</source>
        <translation>Caravel を開く</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>There is no session bus to reach the helper by.</source>
        <translation>ヘルパーに接続するためのセッションバスがありません。</translation>
    </message>
    <message>
        <source>The helper did not answer: %@</source>
        <translation>ヘルパーが応答しませんでした: %@</translation>
    </message>
    <message>
        <source>The helper was started but did not appear.</source>
        <translation>ヘルパーを起動しましたが、現れませんでした。</translation>
    </message>
    <message>
        <source>The helper is not installed. Please install Caravel again.</source>
        <translation>ヘルパーがインストールされていません。Caravel をもう一度インストールしてください。</translation>
    </message>
    <message>
        <source>The helper can't be started.</source>
        <translation>ヘルパーを起動できません。</translation>
    </message>
    <message>
        <source>The helper keeps ending by itself.</source>
        <translation>ヘルパーが何度も自動的に終了します。</translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation>初期化しています…</translation>
    </message>
    <message>
        <source>No PSP Connected</source>
        <translation>PSP が接続されていません</translation>
    </message>
    <message>
        <source>Connect a PSP to perform a sync.</source>
        <translation>同期するには PSP を接続してください。</translation>
    </message>
    <message>
        <source>%@ Available</source>
        <extracomment>The free space of the PSP.</extracomment>
        <translation>空き容量: %@</translation>
    </message>
    <message>
        <source>Click &quot;Sync Now&quot; to perform a sync.</source>
        <translation>同期するには「今すぐ同期」をクリックしてください。</translation>
    </message>
    <message>
        <source>Last Sync: %@</source>
        <extracomment>The day and the time, or &quot;Never&quot;.</extracomment>
        <translation>前回の同期: %@</translation>
    </message>
    <message>
        <source>Never</source>
        <extracomment>In the place of the last sync&apos;s date.</extracomment>
        <translation>なし</translation>
    </message>
    <message>
        <source>today</source>
        <extracomment>As it stands in the middle of a sentence; the program capitalises it and appends the time.</extracomment>
        <translation>今日</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <extracomment>As it stands in the middle of a sentence; the program capitalises it and appends the time.</extracomment>
        <translation>明日</translation>
    </message>
    <message>
        <source>yesterday</source>
        <extracomment>As it stands in the middle of a sentence; the program capitalises it and appends the time.</extracomment>
        <translation>昨日</translation>
    </message>
    <message>
        <source>Preparing to Sync...</source>
        <translation>同期を準備しています…</translation>
    </message>
    <message>
        <source>One moment, Caravel is gathering information...</source>
        <translation>Caravel が情報を収集しています。しばらくお待ちください…</translation>
    </message>
    <message>
        <source>Cleaning Up...</source>
        <translation>クリーンアップしています…</translation>
    </message>
    <message>
        <source>Caravel is removing unneeded files...</source>
        <translation>Caravel が不要なファイルを削除しています…</translation>
    </message>
    <message>
        <source>Starting Sync...</source>
        <translation>同期を開始しています…</translation>
    </message>
    <message>
        <source>Caravel is copying selected files...</source>
        <translation>Caravel が選択されたファイルをコピーしています…</translation>
    </message>
    <message>
        <source>Syncing %@...</source>
        <extracomment>The kind of media, as &quot;Music&quot;.</extracomment>
        <translation>%@ を同期しています…</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>ミュージック</translation>
    </message>
    <message>
        <source>Conversion in progress...</source>
        <translation>変換しています…</translation>
    </message>
    <message>
        <source>Cancelling Sync...</source>
        <translation>同期をキャンセルしています…</translation>
    </message>
    <message>
        <source>Please wait while Caravel completes the previous task...</source>
        <translation>Caravel が実行中の処理を終えるまでお待ちください…</translation>
    </message>
    <message>
        <source>Sync Successful</source>
        <translation>同期が完了しました</translation>
    </message>
    <message>
        <source>Sync Cancelled</source>
        <translation>同期がキャンセルされました</translation>
    </message>
    <message>
        <source>Sync was cancelled.</source>
        <extracomment>A line of the log.</extracomment>
        <translation>同期はキャンセルされました。</translation>
    </message>
    <message>
        <source>You must re-sync to ensure the PSP is up to date.</source>
        <translation>PSP を最新の状態にするには、もう一度同期してください。</translation>
    </message>
    <message>
        <source>Ejecting PSP...</source>
        <translation>PSP を取り出しています…</translation>
    </message>
    <message>
        <source>One moment, Caravel is preparing your PSP for ejection...</source>
        <translation>Caravel が PSP の取り出しを準備しています。しばらくお待ちください…</translation>
    </message>
    <message>
        <source>Eject Failed</source>
        <translation>取り出しに失敗しました</translation>
    </message>
    <message>
        <source>The PSP may be in use by another application.</source>
        <translation>PSP がほかのアプリケーションで使用されている可能性があります。</translation>
    </message>
    <message>
        <source>Unformatted memory stick found!</source>
        <translation>フォーマットされていない Memory Stick が見つかりました</translation>
    </message>
    <message>
        <source>A Memory Stick was found, however it is not formatted for use with a PSP.

If you intend to use this Memory Stick with the PSP and Caravel, you must first format it from the PSP&apos;s main menu.</source>
        <translation>Memory Stick が見つかりましたが、PSP で使用できるようにフォーマットされていません。

この Memory Stick を PSP と Caravel で使用する場合は、先に PSP のメインメニューからフォーマットしてください。</translation>
    </message>
    <message>
        <source>Sync too large!</source>
        <translation>同期するデータが大きすぎます</translation>
    </message>
    <message>
        <source>You are attempting to sync %@, however only %@ of free space is available on the Memory Stick currently in your PSP.

Please deselect some media to ensure the sync can be completed.</source>
        <extracomment>First the size of the sync, then the free space: keep the order.</extracomment>
        <translation>%@ を同期しようとしていますが、現在 PSP に入っている Memory Stick の空き容量は %@ しかありません。

同期を完了できるように、選択しているメディアを減らしてください。</translation>
    </message>
    <message>
        <source>Memory stick full!</source>
        <translation>Memory Stick がいっぱいです</translation>
    </message>
    <message>
        <source>The Memory Stick currently inside your PSP has been filled. You must deselect some media to free enough space to complete a sync.</source>
        <translation>現在 PSP に入っている Memory Stick がいっぱいになりました。同期を完了するには、選択しているメディアを減らして空き容量を増やしてください。</translation>
    </message>
    <message>
        <source>--</source>
        <extracomment>In the place of a size where there is none.</extracomment>
        <translation>--</translation>
    </message>
    <message>
        <source>%0.0f b</source>
        <extracomment>The number takes the place of the format.</extracomment>
        <translation>%0.0f バイト</translation>
    </message>
    <message>
        <source>%0.1f KB</source>
        <extracomment>The number takes the place of the format.</extracomment>
        <translation>%0.1f KB</translation>
    </message>
    <message>
        <source>%0.1f MB</source>
        <extracomment>The number takes the place of the format.</extracomment>
        <translation>%0.1f MB</translation>
    </message>
    <message>
        <source>%0.1f GB</source>
        <extracomment>The number takes the place of the format.</extracomment>
        <translation>%0.1f GB</translation>
    </message>
    <message>
        <source>%0.1f TB</source>
        <extracomment>The number takes the place of the format.</extracomment>
        <translation>%0.1f TB</translation>
    </message>
    <message>
        <source>Conversion in progress, %i%% completed...</source>
        <translation>変換中、%i%% 完了...</translation>
    </message>
    <message>
        <source>The movie "%@" could not be converted:

%@</source>
        <translation>ムービー「%@」を変換できませんでした：

%@</translation>
    </message>
    <message>
        <source>Movie could not be converted!</source>
        <translation>ムービーを変換できませんでした</translation>
    </message>
    <message>
        <source>The converter gave no reason.</source>
        <translation>コンバータから理由は示されませんでした。</translation>
    </message>
    <message>
        <source>The converter can't be started: %@</source>
        <translation>コンバータを起動できません：%@</translation>
    </message>
    <message>
        <source>Movie is not complete!</source>
        <translation>ムービーは完全ではありません</translation>
    </message>
    <message>
        <source>The movie "%@" was converted, but not all of it is there:

%@</source>
        <translation>ムービー「%@」は変換されましたが、全体ではありません：

%@</translation>
    </message>
    <message>
        <source>The movie "%@" was converted, but neither the movie library nor the folder %@ could take it. It has to be converted again.</source>
        <translation>ムービー「%@」は変換されましたが、ムービーライブラリにもフォルダ %@ にも保存できませんでした。もう一度変換する必要があります。</translation>
    </message>
    <message>
        <source>Movie could not be stored!</source>
        <translation>ムービーを保存できませんでした</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>ムービー</translation>
    </message>
    <message>
        <source>Size: %@</source>
        <translation>サイズ：%@</translation>
    </message>
    <message>
        <source>The movie "%@" was converted, but there is no place for it in the movie library. It is kept in the folder %@.</source>
        <translation>ムービー「%@」は変換されましたが、ムービーライブラリに保存する場所がありません。フォルダ %@ に保管されています。</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>バックアップ</translation>
    </message>
    <message>
        <source>No description available</source>
        <translation>説明はありません</translation>
    </message>
    <message>
        <source>%@ uses %@</source>
        <translation>%@ が %@ を使用しています</translation>
    </message>
    <message>
        <source>Can't eject the PSP now!</source>
        <translation>今は PSP を取り出せません</translation>
    </message>
    <message>
        <source>The PSP can't be ejected during a sync.</source>
        <translation>同期中は PSP を取り出せません。</translation>
    </message>
    <message>
        <source>Can't change backups now!</source>
        <translation>今はバックアップを変更できません</translation>
    </message>
    <message>
        <source>Can't restore or delete backups during a sync.</source>
        <translation>同期中はバックアップを復元または削除できません。</translation>
    </message>
    <message>
        <source>The game save on the PSP could not be kept first, so nothing on the PSP was changed.</source>
        <translation>PSP 上のセーブデータを先に保管できなかったため、PSP には何も変更を加えていません。</translation>
    </message>
    <message>
        <source>The game save that was on the PSP is kept as the newest backup.</source>
        <translation>PSP にあったセーブデータは最新のバックアップとして保管されています。</translation>
    </message>
    <message>
        <source>Restoring failed!</source>
        <translation>復元できませんでした</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>ブックマーク</translation>
    </message>
    <message>
        <source>Bookmarks Bar</source>
        <translation>ブックマークバー</translation>
    </message>
    <message>
        <source>Bookmarks Menu</source>
        <translation>ブックマークメニュー</translation>
    </message>
    <message>
        <source>Syncing Safari Bookmarks...</source>
        <translation>Safari のブックマークを同期しています…</translation>
    </message>
    <message>
        <source>Syncing Firefox Bookmarks...</source>
        <translation>Firefox のブックマークを同期しています…</translation>
    </message>
    <message>
        <source>Syncing OmniWeb Bookmarks...</source>
        <translation>OmniWeb のブックマークを同期しています…</translation>
    </message>
    <message>
        <source>Syncing Camino Bookmarks...</source>
        <translation>Camino のブックマークを同期しています…</translation>
    </message>
    <message>
        <source>Syncing Chromium Bookmarks...</source>
        <translation>Chromium のブックマークを同期しています…</translation>
    </message>
    <message>
        <source>Syncing Contact Icons...</source>
        <translation>連絡先の画像を同期しています…</translation>
    </message>
    <message>
        <source>Syncing Contact Index...</source>
        <translation>連絡先の一覧を同期しています…</translation>
    </message>
    <message>
        <source>No PSP is connected. Nothing was changed.</source>
        <translation>PSP が接続されていません。何も変更されていません。</translation>
    </message>
    <message>
        <source>There is no such backup. Nothing was changed.</source>
        <translation>そのバックアップはありません。何も変更されませんでした。</translation>
    </message>
    <message>
        <source>Sync Incomplete</source>
        <translation>同期は不完全です</translation>
    </message>
    <message>
        <source>PSP Ejected</source>
        <translation>PSP を取り出しました</translation>
    </message>
    <message>
        <source>It is safe to remove the PSP now.</source>
        <translation>PSP を安全に取り外せます。</translation>
    </message>
    <message>
        <source>%@ of %@ files could not be copied.</source>
        <translation>ファイル %@ 個（%@ 個中）をコピーできませんでした。</translation>
    </message>
    <message>
        <source>Reading songs: %@ of %@</source>
        <translation>曲を読み込んでいます：%@ / %@</translation>
    </message>
    <message>
        <source>PSP lost during sync!</source>
        <translation>同期中に PSP が失われました！</translation>
    </message>
    <message>
        <source>The PSP was disconnected, or its Memory Stick can&apos;t be written any more, before the sync was complete.

You must re-sync to ensure the PSP is up to date.</source>
        <translation>同期が完了する前に、PSP が取り外されたか、メモリースティックに書き込めなくなりました。

PSP を最新の状態にするには、もう一度同期してください。</translation>
    </message>
    <message>
        <source>The sync was not started!</source>
        <translation>同期は開始されませんでした！</translation>
    </message>
    <message>
        <source>The preferences can&apos;t be read, so it is not known what you have selected.</source>
        <translation>環境設定を読み込めないため、選択した内容がわかりません。</translation>
    </message>
    <message>
        <source>The preferences were damaged and had to be set aside, your selection with them.

Please select your media anew, then sync.</source>
        <translation>環境設定が壊れていたため、選択した内容とともに別の場所に移されました。

メディアを選択し直してから、同期してください。</translation>
    </message>
    <message>
        <source>The folder &quot;.caravel&quot; on the Memory Stick is a link, and no link is followed there.

Please remove it, then sync.</source>
        <translation>メモリースティックの「.caravel」フォルダはリンクです。メモリースティック上のリンクはたどりません。

リンクを削除してから、同期してください。</translation>
    </message>
    <message>
        <source>The selection that is kept on the Memory Stick can&apos;t be read.

Please look at your selection, then click &quot;Sync Now&quot;.</source>
        <translation>メモリースティックに保存されている選択内容を読み込めません。

選択内容を確認してから、「今すぐ同期」をクリックしてください。</translation>
    </message>
    <message>
        <source>The library for &quot;%@&quot; can&apos;t be read. A sync would remove from the PSP what you have selected in it.

Click &quot;Sync Now&quot; to sync all the same.</source>
        <translation>「%@」のライブラリを読み込めません。同期すると、そこで選択したものが PSP から削除されます。

それでも同期するには、「今すぐ同期」をクリックしてください。</translation>
    </message>
    <message>
        <source>A sync would remove more than half of &quot;%@&quot; from the PSP, though your selection is the same. Is a disk with your media missing?

Click &quot;Sync Now&quot; to sync all the same.</source>
        <translation>選択内容は同じですが、同期すると「%@」の半分以上が PSP から削除されます。メディアの入ったディスクが接続されていますか？

それでも同期するには、「今すぐ同期」をクリックしてください。</translation>
    </message>
    <message>
        <source>&quot;%@&quot; comes from another source now. A sync would remove from the PSP what came from the one before.

Click &quot;Sync Now&quot; to sync all the same.</source>
        <translation>「%@」の取得元が変更されました。同期すると、以前の取得元からのものが PSP から削除されます。

それでも同期するには、「今すぐ同期」をクリックしてください。</translation>
    </message>
</context>
</TS>
