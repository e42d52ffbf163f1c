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
        <source>%@ (%@ entries)</source>
        <translation>%@（%@ 項目）</translation>
    </message>
    <message>
        <source>%@ copied</source>
        <translation>コピー %@ 個</translation>
    </message>
    <message>
        <source>%@ free of %@</source>
        <translation>空き %@ / %@</translation>
    </message>
    <message>
        <source>%@ in place</source>
        <translation>配置済み %@ 個</translation>
    </message>
    <message>
        <source>%@ kept on this computer</source>
        <translation>このコンピュータに保管 %@ 個</translation>
    </message>
    <message>
        <source>%@ left out</source>
        <translation>対象外 %@ 個</translation>
    </message>
    <message>
        <source>%@ missing</source>
        <translation>見つからない %@ 個</translation>
    </message>
    <message>
        <source>%@ of %@</source>
        <translation>%@ / %@</translation>
    </message>
    <message>
        <source>%@ removed</source>
        <translation>削除 %@ 個</translation>
    </message>
    <message>
        <source>%@ replaced</source>
        <translation>置き換え %@ 個</translation>
    </message>
    <message>
        <source>%@ to copy</source>
        <translation>コピー予定 %@ 個</translation>
    </message>
    <message>
        <source>%@ to remove</source>
        <translation>削除予定 %@ 個</translation>
    </message>
    <message>
        <source>%@ to replace</source>
        <translation>置き換え予定 %@ 個</translation>
    </message>
    <message>
        <source>%@ too much for %@</source>
        <translation>%@ 超過（容量 %@）</translation>
    </message>
    <message>
        <source>%@, %@ a second, %@ left</source>
        <translation>%@、毎秒 %@、残り %@</translation>
    </message>
    <message>
        <source>%@, from %@ to %@</source>
        <translation>%@、%@ から %@ まで</translation>
    </message>
    <message>
        <source>%@, from %@</source>
        <translation>%@、%@ から</translation>
    </message>
    <message>
        <source>%@: left out</source>
        <translation>%@: 対象外</translation>
    </message>
    <message>
        <source>%@: to copy</source>
        <translation>%@: コピー予定</translation>
    </message>
    <message>
        <source>%@: to remove</source>
        <translation>%@: 削除予定</translation>
    </message>
    <message>
        <source>%@: to replace</source>
        <translation>%@: 置き換え予定</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;PSP</source>
        <translation>PSP(&amp;P)</translation>
    </message>
    <message>
        <source>A sync is running.</source>
        <translation>同期中です。</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>始める</translation>
    </message>
    <message>
        <source>Brings the Memory Stick up to date with your selection</source>
        <translation>Memory Stick を選択内容に合わせて更新します</translation>
    </message>
    <message>
        <source>Capacity of the Memory Stick after the sync</source>
        <translation>同期後の Memory Stick の容量</translation>
    </message>
    <message>
        <source>Caravel copies what you select in the next window to the PSP's Memory Stick, and removes there, from the folders of music, photos and movies, what is not selected any more. Files that it did not place itself are first copied to this computer, and your media on this computer are only read.</source>
        <translation>Caravel は次のウインドウで選択した内容を PSP の Memory Stick にコピーし、そこの音楽・写真・ムービーのフォルダから、選択されなくなったものを削除します。Caravel が置いたものではないファイルは先にこのコンピュータへコピーされ、このコンピュータにあるメディアは読み取られるだけです。</translation>
    </message>
    <message>
        <source>Caravel's helper is being started.</source>
        <translation>Caravel のヘルパーを起動しています。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Closes this message</source>
        <translation>このメッセージを閉じます</translation>
    </message>
    <message>
        <source>Connect the PSP with a USB cable and choose "USB Connection" in its settings, or put its Memory Stick into a card reader.</source>
        <translation>PSP を USB ケーブルで接続し、設定で「USB 接続」を選んでください。または Memory Stick をカードリーダーに挿入してください。</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>連絡先</translation>
    </message>
    <message>
        <source>Everything is written to it. You can disconnect the PSP now.</source>
        <translation>すべて書き込まれました。PSP を取り外せます。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Files on the Memory Stick that no sync placed: %@. They will be removed from it, but are kept: copies of them come to lie in %@.</source>
        <translation>同期で置かれたものではない Memory Stick 上のファイル: %@ 個。削除されますが保管されます。コピーは %@ に置かれます。</translation>
    </message>
    <message>
        <source>Files on the Memory Stick that no sync placed: %@. They will be removed, and your settings keep no copies.</source>
        <translation>同期で置かれたものではない Memory Stick 上のファイル: %@ 個。これらは削除され、設定によりコピーは保管されません。</translation>
    </message>
    <message>
        <source>Files that a sync would change</source>
        <translation>同期で変更されるファイル</translation>
    </message>
    <message>
        <source>Files that were left out or kept</source>
        <translation>対象外または保管されたファイル</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Game Saves</source>
        <translation>セーブデータ</translation>
    </message>
    <message>
        <source>Kept on this computer, as no sync had placed them</source>
        <translation>同期で置かれたものではないため、このコンピュータに保管</translation>
    </message>
    <message>
        <source>Kinds of media</source>
        <translation>メディアの種類</translation>
    </message>
    <message>
        <source>Last Sync...</source>
        <translation>前回の同期...</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>対象外</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Memory Stick</source>
        <translation>Memory Stick</translation>
    </message>
    <message>
        <source>No PSP is connected</source>
        <translation>PSP が接続されていません</translation>
    </message>
    <message>
        <source>No PSP is connected.</source>
        <translation>PSP が接続されていません。</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>備考</translation>
    </message>
    <message>
        <source>Nothing was copied: the Memory Stick has no room for all of it</source>
        <translation>何もコピーされませんでした。Memory Stick にすべてを入れる空きがありません</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Preview...</source>
        <translation>プレビュー...</translation>
    </message>
    <message>
        <source>Progress of the sync</source>
        <translation>同期の進行状況</translation>
    </message>
    <message>
        <source>Read Anew</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>Show Report...</source>
        <translation>レポートを表示...</translation>
    </message>
    <message>
        <source>Shows what a sync would do, without doing it</source>
        <translation>同期を実行せずに、同期の内容を表示します</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>起動中...</translation>
    </message>
    <message>
        <source>Starts the helper</source>
        <translation>ヘルパーを起動します</translation>
    </message>
    <message>
        <source>Stops the sync; the next one completes it</source>
        <translation>同期を中止します。次回の同期で残りが完了します</translation>
    </message>
    <message>
        <source>The Last Sync</source>
        <translation>前回の同期</translation>
    </message>
    <message>
        <source>The Memory Stick could not be looked at.</source>
        <translation>Memory Stick を調べられませんでした。</translation>
    </message>
    <message>
        <source>The Memory Stick was ejected</source>
        <translation>Memory Stick を取り出しました</translation>
    </message>
    <message>
        <source>The copies lie in %@. What should go back to the Memory Stick belongs in a dropbox.</source>
        <translation>コピーは %@ にあります。Memory Stick に戻すものはドロップボックスに入れてください。</translation>
    </message>
    <message>
        <source>The sync is complete but for what was left out</source>
        <translation>対象外のものを除いて同期が完了しました</translation>
    </message>
    <message>
        <source>The sync is complete</source>
        <translation>同期が完了しました</translation>
    </message>
    <message>
        <source>The sync was cancelled</source>
        <translation>同期はキャンセルされました</translation>
    </message>
    <message>
        <source>The sync was cut short: the Memory Stick was full</source>
        <translation>Memory Stick がいっぱいになり、同期が中断されました</translation>
    </message>
    <message>
        <source>The sync was cut short: the PSP went away</source>
        <translation>PSP が取り外され、同期が中断されました</translation>
    </message>
    <message>
        <source>There is no helper</source>
        <translation>ヘルパーがありません</translation>
    </message>
    <message>
        <source>There was no sync yet</source>
        <translation>まだ同期されていません</translation>
    </message>
    <message>
        <source>This is too much for the Memory Stick: nothing would be copied. Please deselect something.</source>
        <translation>Memory Stick に入りきらないため、何もコピーされません。選択を減らしてください。</translation>
    </message>
    <message>
        <source>To remove, though no sync placed them</source>
        <translation>同期で置かれたものではないが、削除予定</translation>
    </message>
    <message>
        <source>To replace, though no sync placed them</source>
        <translation>同期で置かれたものではないが、置き換え予定</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Welcome to Caravel</source>
        <translation>Caravel へようこそ</translation>
    </message>
    <message>
        <source>What a Sync Would Do</source>
        <translation>同期で行われること</translation>
    </message>
    <message>
        <source>Where Your Media Are...</source>
        <translation>メディアの場所...</translation>
    </message>
    <message>
        <source>Where are your media?</source>
        <translation>メディアはどこにありますか?</translation>
    </message>
    <message>
        <source>Working out what a sync would do...</source>
        <translation>同期の内容を調べています...</translation>
    </message>
    <message>
        <source>Writes out all that waits and lets go of the Memory Stick</source>
        <translation>未書き込みの内容を書き込み、Memory Stick を取り外せるようにします</translation>
    </message>
    <message>
        <source>a link on the Memory Stick is in the way</source>
        <translation>Memory Stick 上のリンクが妨げになっています</translation>
    </message>
    <message>
        <source>belongs to a file that is left out</source>
        <translation>対象外のファイルに付属しています</translation>
    </message>
    <message>
        <source>not found on this computer</source>
        <translation>このコンピュータに見つかりません</translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>変更なし</translation>
    </message>
    <message>
        <source>too large for the Memory Stick</source>
        <translation>Memory Stick には大きすぎます</translation>
    </message>
    <message>
        <source>too much for the Memory Stick</source>
        <translation>Memory Stick に入りきりません</translation>
    </message>
    <message>
        <source>what is there could not be kept</source>
        <translation>既存のファイルを保管できませんでした</translation>
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
        <source>%@ found</source>
        <translation>%@ 件見つかりました</translation>
    </message>
    <message>
        <source>%@ has nothing to choose from: %@</source>
        <translation>%@ には選べるものがありません: %@</translation>
    </message>
    <message>
        <source>%@ movies have been removed.</source>
        <translation>%@ 本のムービーを削除しました。</translation>
    </message>
    <message>
        <source>%@ of %@ selected</source>
        <translation>%@ / %@ を選択</translation>
    </message>
    <message>
        <source>%@ of %@ shown</source>
        <translation>%@ / %@ を表示</translation>
    </message>
    <message>
        <source>2.00 or later</source>
        <translation>2.00 以降</translation>
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
        <translation>480 × 272 (PSP の画面)</translation>
    </message>
    <message>
        <source>720 × 480 (for a TV)</source>
        <translation>720 × 480 (テレビ用)</translation>
    </message>
    <message>
        <source>A better one takes more room on the PSP.</source>
        <translation>高画質・高音質ほど PSP の容量を使います。</translation>
    </message>
    <message>
        <source>A selection of its own for each Memory Stick</source>
        <translation>メモリースティックごとに選択を保存</translation>
    </message>
    <message>
        <source>Add Movies</source>
        <translation>ムービーを追加</translation>
    </message>
    <message>
        <source>Add Movies...</source>
        <translation>ムービーを追加…</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>アルバム</translation>
    </message>
    <message>
        <source>Albums come from</source>
        <translation>アルバムの取得元</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Also after a movie has been converted.</source>
        <translation>ムービーの変換後にも鳴らします。</translation>
    </message>
    <message>
        <source>Another: %@</source>
        <translation>その他: %@</translation>
    </message>
    <message>
        <source>Artist and album</source>
        <translation>アーティストとアルバム</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>アーティスト</translation>
    </message>
    <message>
        <source>Backups of %@</source>
        <translation>%@ のバックアップ</translation>
    </message>
    <message>
        <source>Backups of each game save</source>
        <translation>セーブデータごとのバックアップ</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>バックアップ</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>最高</translation>
    </message>
    <message>
        <source>Bookmarks come from</source>
        <translation>ブックマークの取得元</translation>
    </message>
    <message>
        <source>Caravel waits for the PSP as long as you are logged in, and shows its icon in the tray.</source>
        <translation>ログイン中は Caravel が PSP を待ち、トレイにアイコンを表示します。</translation>
    </message>
    <message>
        <source>Checks all that is shown.</source>
        <translation>表示中のものをすべて選択します。</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Chromium and its kin</source>
        <translation>Chromium とその系列</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Contacts and Saves</source>
        <translation>連絡先とセーブデータ</translation>
    </message>
    <message>
        <source>Converts files to what the PSP plays.</source>
        <translation>ファイルを PSP で再生できる形式に変換します。</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Default: %@</source>
        <translation>初期設定: %@</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>インターレースを解除</translation>
    </message>
    <message>
        <source>Delete All...</source>
        <translation>すべて削除…</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>削除…</translation>
    </message>
    <message>
        <source>Disc and track</source>
        <translation>ディスクとトラックの番号</translation>
    </message>
    <message>
        <source>Each file is named. Useful where something doesn&apos;t work.</source>
        <translation>すべてのファイル名を記録します。うまく動かないときに役立ちます。</translation>
    </message>
    <message>
        <source>Each source has a selection of its own.</source>
        <translation>選択は取得元ごとに保存されます。</translation>
    </message>
    <message>
        <source>Each sync copies the game saves that have changed to this computer.</source>
        <translation>同期のたびに、変更されたセーブデータをこのコンピュータにコピーします。</translation>
    </message>
    <message>
        <source>Edits the name of the selected movie.</source>
        <translation>選択したムービーの名前を編集します。</translation>
    </message>
    <message>
        <source>Eject the PSP after a sync</source>
        <translation>同期後に PSP を取り出す</translation>
    </message>
    <message>
        <source>Empties the log for good.</source>
        <translation>ログを完全に消去します。</translation>
    </message>
    <message>
        <source>Empties the search.</source>
        <translation>検索を消去します。</translation>
    </message>
    <message>
        <source>Everybody in this computer&apos;s address book is put on one page, with a small picture where there is one. It is made anew at each sync, and only where something has changed it is written.

The PSP shows the page in its browser: with bookmarks synced, one of them leads there. System software 2.00 or later is needed.</source>
        <translation>このコンピュータのアドレスブックの全員が 1 つのページになり、写真があれば小さく付きます。ページは同期のたびに作り直され、変更があったときだけ書き込まれます。

ページは PSP のブラウザで表示します。ブックマークを同期すると、その 1 つから開けます。システムソフトウェア 2.00 以降が必要です。</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>普通</translation>
    </message>
    <message>
        <source>Files that something else has put there go too. Otherwise only files that an earlier sync has placed are removed.</source>
        <translation>ほかの方法で置かれたファイルも削除します。オフの場合は、以前の同期で置いたファイルだけを削除します。</translation>
    </message>
    <message>
        <source>Firefox (page)</source>
        <translation>Firefox (ページ)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>Folders and playlists</source>
        <translation>フォルダとプレイリスト</translation>
    </message>
    <message>
        <source>Folders of music on the PSP</source>
        <translation>PSP のミュージックのフォルダ</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>追尾</translation>
    </message>
    <message>
        <source>For movies that are added from now on. The two large sizes need system software 3.30 or later.</source>
        <translation>今後追加するムービーに使います。大きい 2 つのサイズにはシステムソフトウェア 3.30 以降が必要です。</translation>
    </message>
    <message>
        <source>For recordings of television that show combs where things move.</source>
        <translation>動きのある部分に横縞が出るテレビ録画用です。</translation>
    </message>
    <message>
        <source>Game save</source>
        <translation>セーブデータ</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>ゲーム</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>良い</translation>
    </message>
    <message>
        <source>It is kept on the stick. Such a stick is never synced as soon as it is connected.</source>
        <translation>選択はスティックに保存されます。そのスティックは接続時に自動では同期されません。</translation>
    </message>
    <message>
        <source>It is no longer in this list then. The PSP&apos;s own game save stays as it is.</source>
        <translation>この一覧から消えます。PSP にあるセーブデータはそのままです。</translation>
    </message>
    <message>
        <source>It lies in “Removed from PSP” in the folder “Caravel”.</source>
        <translation>「Caravel」フォルダの「Removed from PSP」にあります。</translation>
    </message>
    <message>
        <source>Keep a copy of removed files that no sync has placed</source>
        <translation>同期で置いたものではない削除ファイルのコピーを残す</translation>
    </message>
    <message>
        <source>Keep game saves</source>
        <translation>セーブデータを保管</translation>
    </message>
    <message>
        <source>Keeps the newest line in sight.</source>
        <translation>常に最新の行を表示します。</translation>
    </message>
    <message>
        <source>Kept on</source>
        <translation>保管日時</translation>
    </message>
    <message>
        <source>Last kept</source>
        <translation>最後の保管</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>最低</translation>
    </message>
    <message>
        <source>Least, at half the frames</source>
        <translation>最低 (コマ数は半分)</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>Move all backups of “%@” to the Trash (%@)?</source>
        <translation>「%@」のすべてのバックアップ (%@) をゴミ箱に移しますか?</translation>
    </message>
    <message>
        <source>Move the backup of “%@” from %@ to the Trash?</source>
        <translation>「%@」のバックアップ (%@) をゴミ箱に移しますか?</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>ゴミ箱に移す</translation>
    </message>
    <message>
        <source>Moves all backups of the game save to the Trash.</source>
        <translation>セーブデータのすべてのバックアップをゴミ箱に移します。</translation>
    </message>
    <message>
        <source>Moves the selected backup to the Trash.</source>
        <translation>選択したバックアップをゴミ箱に移します。</translation>
    </message>
    <message>
        <source>Moves the selected movies to the Trash, or takes them out of the conversion.</source>
        <translation>選択したムービーをゴミ箱に移すか、変換から外します。</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>ムービー</translation>
    </message>
    <message>
        <source>Music, photos and movies in the folder “Dropboxes” come along without being selected.</source>
        <translation>「Dropboxes」フォルダのミュージック、フォト、ムービーは、選択しなくても同期されます。</translation>
    </message>
    <message>
        <source>Names of photos begin with</source>
        <translation>フォト名の先頭</translation>
    </message>
    <message>
        <source>Names of songs begin with</source>
        <translation>曲名の先頭</translation>
    </message>
    <message>
        <source>Newer on the PSP than what is kept</source>
        <translation>PSP のほうが新しい</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>No game save is kept yet. They are copied from the PSP at each sync.</source>
        <translation>まだセーブデータは保管されていません。同期のたびに PSP からコピーされます。</translation>
    </message>
    <message>
        <source>Not everything could be put back. Look for it in the Trash.</source>
        <translation>一部を元に戻せませんでした。ゴミ箱を確認してください。</translation>
    </message>
    <message>
        <source>Nothing else was found on this computer.</source>
        <translation>このコンピュータにはほかに見つかりませんでした。</translation>
    </message>
    <message>
        <source>Nothing of %@ was found on this computer. It would lie here: %@</source>
        <translation>%@ のデータがこのコンピュータに見つかりません。本来の場所: %@</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Of the game save that is selected above.</source>
        <translation>上で選択したセーブデータのものです。</translation>
    </message>
    <message>
        <source>Of the movie&apos;s own. More than 100 % makes it louder.</source>
        <translation>元の音量に対する割合です。100 % を超えると大きくなります。</translation>
    </message>
    <message>
        <source>Older ones are removed.</source>
        <translation>古いものは削除されます。</translation>
    </message>
    <message>
        <source>On the PSP, not kept yet</source>
        <translation>PSP にあり、未保管</translation>
    </message>
    <message>
        <source>Only Memory Sticks that have been synced before.</source>
        <translation>以前に同期したメモリースティックだけです。</translation>
    </message>
    <message>
        <source>Only when the sync was completed.</source>
        <translation>同期が完了したときだけです。</translation>
    </message>
    <message>
        <source>Open this window when a PSP is connected</source>
        <translation>PSP の接続時にこのウインドウを開く</translation>
    </message>
    <message>
        <source>Otherwise a sync removes the movies from the PSP.</source>
        <translation>オフの場合、同期すると PSP のムービーは削除されます。</translation>
    </message>
    <message>
        <source>Otherwise a sync removes the music from the PSP.</source>
        <translation>オフの場合、同期すると PSP のミュージックは削除されます。</translation>
    </message>
    <message>
        <source>Otherwise a sync removes the photos from the PSP.</source>
        <translation>オフの場合、同期すると PSP のフォトは削除されます。</translation>
    </message>
    <message>
        <source>Otherwise a sync leaves the bookmarks of the PSP&apos;s browser as they are.</source>
        <translation>オフの場合、同期しても PSP のブラウザのブックマークはそのままです。</translation>
    </message>
    <message>
        <source>Otherwise only the icon in the tray tells of it.</source>
        <translation>オフの場合、トレイのアイコンだけが知らせます。</translation>
    </message>
    <message>
        <source>Place of Caravel&apos;s folder</source>
        <translation>Caravel のフォルダの場所</translation>
    </message>
    <message>
        <source>Play a sound after a sync</source>
        <translation>同期後にサウンドを鳴らす</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>プレイリスト</translation>
    </message>
    <message>
        <source>Playlists come from</source>
        <translation>プレイリストの取得元</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Profile of the browser</source>
        <translation>ブラウザのプロファイル</translation>
    </message>
    <message>
        <source>Put the backup of “%@” from %@ back on the PSP?</source>
        <translation>「%@」のバックアップ (%@) を PSP に戻しますか?</translation>
    </message>
    <message>
        <source>Puts the selected backup back on the PSP.</source>
        <translation>選択したバックアップを PSP に戻します。</translation>
    </message>
    <message>
        <source>Quality of the picture</source>
        <translation>画質</translation>
    </message>
    <message>
        <source>Quality of the sound</source>
        <translation>音質</translation>
    </message>
    <message>
        <source>Remove what is not selected from the media folders</source>
        <translation>選択していないものをメディアのフォルダから削除</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>Restore...</source>
        <translation>復元…</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>すべて解除</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Shows what holds these words. What is out of sight stays as it is.</source>
        <translation>これらの語を含むものを表示します。表示されないものはそのままです。</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>画面サイズ</translation>
    </message>
    <message>
        <source>Songs</source>
        <translation>曲</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>ログイン時に起動</translation>
    </message>
    <message>
        <source>Such a stick has to be formatted by the PSP before it can be synced.</source>
        <translation>このようなスティックは、同期の前に PSP でフォーマットする必要があります。</translation>
    </message>
    <message>
        <source>Sync as soon as a PSP is connected</source>
        <translation>PSP の接続時に同期</translation>
    </message>
    <message>
        <source>Sync bookmarks</source>
        <translation>ブックマークを同期</translation>
    </message>
    <message>
        <source>Sync contacts</source>
        <translation>連絡先を同期</translation>
    </message>
    <message>
        <source>Sync movies</source>
        <translation>ムービーを同期</translation>
    </message>
    <message>
        <source>Sync music</source>
        <translation>ミュージックを同期</translation>
    </message>
    <message>
        <source>Sync photos</source>
        <translation>フォトを同期</translation>
    </message>
    <message>
        <source>Sync the dropboxes</source>
        <translation>ドロップボックスを同期</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>同期</translation>
    </message>
    <message>
        <source>System software of the PSP</source>
        <translation>PSP のシステムソフトウェア</translation>
    </message>
    <message>
        <source>Take %@ (%@)</source>
        <translation>%@ を使う (%@)</translation>
    </message>
    <message>
        <source>Take %@</source>
        <translation>%@ を使う</translation>
    </message>
    <message>
        <source>Tell about Memory Sticks without the PSP&apos;s folders</source>
        <translation>PSP のフォルダがないメモリースティックを知らせる</translation>
    </message>
    <message>
        <source>The PSP plays the songs of a folder in the order of their names.</source>
        <translation>PSP はフォルダ内の曲を名前の順に再生します。</translation>
    </message>
    <message>
        <source>The PSP shows the photos of a folder in the order of their names.</source>
        <translation>PSP はフォルダ内のフォトを名前の順に表示します。</translation>
    </message>
    <message>
        <source>The conversion failed</source>
        <translation>変換に失敗しました</translation>
    </message>
    <message>
        <source>The first one plays only MP3 music, shows only JPEG photos, and has no browser for bookmarks and contacts.</source>
        <translation>1.x では MP3 の音楽と JPEG のフォトだけを扱え、ブックマークと連絡先用のブラウザがありません。</translation>
    </message>
    <message>
        <source>The folder “Caravel” there holds converted movies, game saves and the dropboxes. What the old place holds is not moved.</source>
        <translation>そこにある「Caravel」フォルダに、変換したムービー、セーブデータ、ドロップボックスが入ります。元の場所にあるものは移動しません。</translation>
    </message>
    <message>
        <source>The game save has not been put back.</source>
        <translation>セーブデータは元に戻されませんでした。</translation>
    </message>
    <message>
        <source>The game save is being put back on the PSP...</source>
        <translation>セーブデータを PSP に戻しています…</translation>
    </message>
    <message>
        <source>The game save is on the PSP.</source>
        <translation>セーブデータを PSP に戻しました。</translation>
    </message>
    <message>
        <source>The game save that is on the PSP now is kept as the newest backup, and then replaced.</source>
        <translation>今 PSP にあるセーブデータは、最新のバックアップとして保管してから置き換えます。</translation>
    </message>
    <message>
        <source>The helper has given no answer.</source>
        <translation>ヘルパーから応答がありません。</translation>
    </message>
    <message>
        <source>The helper has not taken the selection as it was made. What is shown now is what it has.</source>
        <translation>ヘルパーは選択をそのまま受け取りませんでした。現在表示しているのはヘルパーの状態です。</translation>
    </message>
    <message>
        <source>The last 10</source>
        <translation>直近の 10 個</translation>
    </message>
    <message>
        <source>The last 25</source>
        <translation>直近の 25 個</translation>
    </message>
    <message>
        <source>The last 50</source>
        <translation>直近の 50 個</translation>
    </message>
    <message>
        <source>The movies could not be added.</source>
        <translation>ムービーを追加できませんでした。</translation>
    </message>
    <message>
        <source>The name or the folder of a profile of Firefox or Chromium. Left empty, the first one is taken.</source>
        <translation>Firefox または Chromium のプロファイルの名前かフォルダです。空の場合は最初のものを使います。</translation>
    </message>
    <message>
        <source>The position in the album</source>
        <translation>アルバム内の順番</translation>
    </message>
    <message>
        <source>The position in the playlist</source>
        <translation>プレイリスト内の順番</translation>
    </message>
    <message>
        <source>The preferences can&apos;t be written.</source>
        <translation>設定を書き込めません。</translation>
    </message>
    <message>
        <source>The selected lines, or all of them.</source>
        <translation>選択した行、またはすべての行です。</translation>
    </message>
    <message>
        <source>The source that is chosen in the settings is unknown.</source>
        <translation>設定で選ばれている取得元が不明です。</translation>
    </message>
    <message>
        <source>The whole address book, as a page for the PSP&apos;s browser.</source>
        <translation>アドレスブック全体を、PSP のブラウザ用のページにします。</translation>
    </message>
    <message>
        <source>There is no movie yet. Add one with the button, or drop its file here: it is converted to what the PSP plays.</source>
        <translation>まだムービーがありません。ボタンで追加するか、ファイルをここにドロップしてください。PSP で再生できる形式に変換されます。</translation>
    </message>
    <message>
        <source>This can&apos;t be a movie&apos;s name: %@</source>
        <translation>ムービーの名前にできません: %@</translation>
    </message>
    <message>
        <source>This must be a full path, or one that begins with &quot;~/&quot;.</source>
        <translation>完全なパス、または "~/" で始まるパスを指定してください。</translation>
    </message>
    <message>
        <source>Those of the page that is shown.</source>
        <translation>表示中のページのものです。</translation>
    </message>
    <message>
        <source>Unchecks all that is shown.</source>
        <translation>表示中のものの選択をすべて解除します。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Waits for its conversion</source>
        <translation>変換待ち</translation>
    </message>
    <message>
        <source>What %@ has written can&apos;t be read; it may be damaged: %@</source>
        <translation>%@ のデータを読み込めません。壊れている可能性があります: %@</translation>
    </message>
    <message>
        <source>What the songs of one folder have in common.</source>
        <translation>1 つのフォルダにまとめる曲の共通点です。</translation>
    </message>
    <message>
        <source>Write a detailed log</source>
        <translation>詳細なログを書く</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>selected and out of sight: %@</source>
        <translation>選択済みで非表示: %@</translation>
    </message>
    <message>
        <source>“%@” has been moved to the Trash.</source>
        <translation>「%@」をゴミ箱に移しました。</translation>
    </message>
    <message>
        <source>“%@” has been taken out of the conversion.</source>
        <translation>「%@」を変換から外しました。</translation>
    </message>
    <message>
        <source>“Firefox (page)” is an old one, which keeps its bookmarks in a page.</source>
        <translation>「Firefox (ページ)」は、ブックマークをページに保存する古い Firefox です。</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>初期設定に戻す</translation>
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
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Not found: %@</source>
        <translation>見つからないもの: %@</translation>
    </message>
    <message>
        <source>%@ (1 entry)</source>
        <translation>%@（1 項目）</translation>
    </message>
    <message>
        <source>%@ needed</source>
        <translation>必要 %@</translation>
    </message>
    <message>
        <source>%@ freed</source>
        <translation>解放 %@</translation>
    </message>
    <message>
        <source>%@ free now</source>
        <translation>現在の空き %@</translation>
    </message>
    <message>
        <source>What there is of each kind, and how much of it is selected.</source>
        <translation>種類ごとの内容と、選択されている数です。</translation>
    </message>
    <message>
        <source>The space bar selects or deselects the chosen rows.</source>
        <translation>スペースバーで、選んだ行のチェックを付け外しします。</translation>
    </message>
    <message>
        <source>Closes this window.</source>
        <translation>このウインドウを閉じます。</translation>
    </message>
    <message>
        <source>Takes these sources and shows their lists.</source>
        <translation>これらの取り込み元を使い、一覧を表示します。</translation>
    </message>
    <message>
        <source>Changes nothing.</source>
        <translation>何も変更しません。</translation>
    </message>
    <message>
        <source>In groups, the most important first.</source>
        <translation>重要なものから順に、グループに分けて示します。</translation>
    </message>
    <message>
        <source>The newest line is the last one.</source>
        <translation>最も新しい行が最後です。</translation>
    </message>
    <message>
        <source>Goes to the previous line that was found.</source>
        <translation>前に見つかった行へ移ります。</translation>
    </message>
    <message>
        <source>Goes to the next line that was found.</source>
        <translation>次に見つかった行へ移ります。</translation>
    </message>
    <message>
        <source>The backups of the chosen game save are listed below.</source>
        <translation>選んだセーブデータのバックアップが下に並びます。</translation>
    </message>
</context>
</TS>
