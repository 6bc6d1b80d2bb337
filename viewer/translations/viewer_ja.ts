<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>Viewer</name>
    <message>
        <source>There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set. Start it from a desktop, or with QT_QPA_PLATFORM=offscreen to see nothing.</source>
        <translation>ディスプレイがありません。DISPLAY も WAYLAND_DISPLAY も設定されていません。デスクトップから起動するか、画面表示が不要な場合は QT_QPA_PLATFORM=offscreen を指定して起動してください。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CAboutBox</name>
    <message>
        <source>%1, built with %2</source>
        <translation>%1 (ビルド時は %2)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Nuvex Viewer %1&lt;/h3&gt;&lt;p&gt;Shows cameras and lets plug-ins work with them.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Nuvex Viewer %1&lt;/h3&gt;&lt;p&gt;カメラを表示し、プラグインで操作できるようにします。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;License: MIT&lt;/p&gt;&lt;p&gt;Libraries:&lt;/p&gt;</source>
        <translation>&lt;p&gt;ライセンス: MIT&lt;/p&gt;&lt;p&gt;ライブラリ:&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CAcquisitionController</name>
    <message>
        <source>&amp;Start</source>
        <translation>開始(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>停止(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Record...</source>
        <translation>録画(&amp;R)...</translation>
    </message>
    <message>
        <source>Sto&amp;p recording</source>
        <translation>録画の停止(&amp;P)</translation>
    </message>
    <message>
        <source>Start continuous acquisition (F6)</source>
        <translation>連続画像取得を開始 (F6)</translation>
    </message>
    <message>
        <source>Stop continuous acquisition (F7)</source>
        <translation>連続画像取得を停止 (F7)</translation>
    </message>
    <message>
        <source>Record images into a folder (F8)</source>
        <translation>フォルダーに録画 (F8)</translation>
    </message>
    <message>
        <source>Stop recording; acquisition goes on (F9)</source>
        <translation>画像取得を続けたまま録画を停止 (F9)</translation>
    </message>
    <message>
        <source>Record into folder</source>
        <translation>録画先フォルダー</translation>
    </message>
    <message>
        <source>No camera selected</source>
        <translation>カメラが選択されていません</translation>
    </message>
    <message>
        <source>Select a camera in the list.</source>
        <translation>一覧からカメラを選択してください。</translation>
    </message>
    <message>
        <source>No cameras found</source>
        <translation>カメラが見つかりません</translation>
    </message>
    <message>
        <source>Recording %1 to %2.</source>
        <translation>%1 の録画を %2 に保存しています。</translation>
    </message>
    <message>
        <source>Plug one in and click Refresh.</source>
        <translation>カメラを接続して「再検索」をクリックしてください。</translation>
    </message>
    <message>
        <source>Click Start to see its image.</source>
        <translation>画像を表示するには「開始」をクリックしてください。</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) recorded.</source>
        <translation>
            <numerusform>録画が終わりました: 画像 %n 枚。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) lost, since writing was too slow.</source>
        <translation>
            <numerusform>書き込みが間に合わず、画像 %n 枚が失われました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CCommandLine</name>
    <message>
        <source>Shows cameras and lets plug-ins work with them.</source>
        <translation>カメラを表示し、プラグインで操作できるようにします。</translation>
    </message>
    <message>
        <source>Look for plug-ins in &lt;dir&gt;, too; can be given several times.</source>
        <translation>&lt;フォルダー&gt; でもプラグインを探します。複数回指定できます。</translation>
    </message>
    <message>
        <source>dir</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Use &lt;dir&gt; as the folder of sample update files.</source>
        <translation>&lt;フォルダー&gt; をサンプル更新ファイルのフォルダーとして使用します。</translation>
    </message>
    <message>
        <source>No folder is given for the demonstration&apos;s pictures.</source>
        <translation>デモの画面を保存するフォルダーが指定されていません。</translation>
    </message>
    <message>
        <source>No folder is given for the plug-ins.</source>
        <translation>プラグインのフォルダーが指定されていません。</translation>
    </message>
    <message>
        <source>Use the language &lt;code&gt; this time: %1.</source>
        <translation>今回使用する言語 &lt;コード&gt;: %1。</translation>
    </message>
    <message>
        <source>The language &quot;%1&quot; is unknown; there are %2.</source>
        <translation>言語「%1」は使用できません。使用できる言語: %2。</translation>
    </message>
    <message>
        <source>Walk through the firmware update wizard, faster than real cameras would, save pictures into &lt;dir&gt; and quit.</source>
        <translation>実際のカメラより速くファームウェア更新ウィザードを進め、画面を &lt;フォルダー&gt; に保存して終了します。</translation>
    </message>
    <message>
        <source>Use only update files that a trusted maker has signed, this time.</source>
        <translation>今回は、信頼する作成者が署名した更新ファイルだけを使用します。</translation>
    </message>
    <message>
        <source>Show what the update file &lt;file&gt; holds.</source>
        <translation>更新ファイル &lt;ファイル&gt; の内容を表示します。</translation>
    </message>
    <message>
        <source>There is more than one update file: &quot;%1&quot; and &quot;%2&quot;.</source>
        <translation>更新ファイルが複数あります: 「%1」と「%2」。</translation>
    </message>
    <message>
        <source>The name of the update file is empty.</source>
        <translation>更新ファイルの名前が空です。</translation>
    </message>
    <message>
        <source>The demonstration shows no update file.</source>
        <translation>デモでは更新ファイルを表示しません。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>ファイル</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CImageActions</name>
    <message>
        <source>&amp;Fit to window</source>
        <translation>ウィンドウに合わせる(&amp;F)</translation>
    </message>
    <message>
        <source>Original si&amp;ze</source>
        <translation>実際のサイズ(&amp;Z)</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>Mark satu&amp;rated pixels</source>
        <translation>飽和した画素に印を付ける(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Histogram</source>
        <translation>ヒストグラム(&amp;H)</translation>
    </message>
    <message>
        <source>Sa&amp;ve image...</source>
        <translation>画像を保存(&amp;V)...</translation>
    </message>
    <message>
        <source>Co&amp;py image</source>
        <translation>画像をコピー(&amp;P)</translation>
    </message>
    <message>
        <source>There is no image to save.</source>
        <translation>保存する画像がありません。</translation>
    </message>
    <message>
        <source>The image has been copied.</source>
        <translation>画像をコピーしました。</translation>
    </message>
    <message>
        <source>There is no image to copy.</source>
        <translation>コピーする画像がありません。</translation>
    </message>
    <message>
        <source>Save image</source>
        <translation>画像の保存</translation>
    </message>
    <message>
        <source>PNG images</source>
        <translation>PNG 画像</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>メモリが不足しています</translation>
    </message>
    <message>
        <source>The image has been saved as %1.</source>
        <translation>画像を %1 として保存しました。</translation>
    </message>
    <message>
        <source>The image could not be saved as %1: %2.</source>
        <translation>画像を %1 として保存できませんでした: %2。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CInterruptionBar</name>
    <message>
        <source>Firmware Updater...</source>
        <translation>ファームウェア更新ツール...</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>ほかに %n 件あります。</numerusform>
        </translation>
    </message>
    <message>
        <source>The update of camera %1 that began at %2 was interrupted before its first step.</source>
        <translation>%2 に始まったカメラ %1 の更新は、最初のステップの前に中断されました。</translation>
    </message>
    <message>
        <source>The update of camera %1 that began at %2 was interrupted in step %3 of %4 (%5).</source>
        <translation>%2 に始まったカメラ %1 の更新は、%4 ステップ中のステップ %3 (%5) で中断されました。</translation>
    </message>
    <message>
        <source>It does not answer. Switch it off and on, then repeat the update with the file %1.</source>
        <translation>カメラが応答しません。電源を入れ直してから、ファイル %1 で更新をやり直してください。</translation>
    </message>
    <message>
        <source>It reports firmware version %1 now. Repeat the update with the file %2.</source>
        <translation>現在のファームウェアバージョンは %1 です。ファイル %2 で更新をやり直してください。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CLinkOpener</name>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>This desktop has no program for web pages. Copy the address to open it elsewhere.</source>
        <translation>このデスクトップには Web ページを開くプログラムがありません。別の場所で開くには、アドレスをコピーしてください。</translation>
    </message>
    <message>
        <source>The viewer opens only web pages, mail addresses and its own logs. This link leads somewhere else, so it was not opened.</source>
        <translation>ビューアーが開くのは Web ページ、メールアドレス、自身のログだけです。このリンクは別の場所を指しているため、開きませんでした。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CLogFolder</name>
    <message>
        <source>Logs of firmware updates are not kept: there is no home folder.</source>
        <translation>ホームフォルダーがないため、ファームウェア更新のログは保存されません。</translation>
    </message>
    <message>
        <source>Logs of firmware updates are not kept, the folder &quot;%1&quot; cannot be used: %2.</source>
        <translation>フォルダー「%1」を使用できないため、ファームウェア更新のログは保存されません: %2。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CLogListDialog</name>
    <message>
        <source>Logs of firmware updates</source>
        <translation>ファームウェア更新のログ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>There are no logs yet.</source>
        <translation>ログはまだありません。</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>フォルダーを開く(&amp;F)</translation>
    </message>
    <message>
        <source>No update</source>
        <translation>更新なし</translation>
    </message>
    <message>
        <source>Successful</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Failed (%1 of %2 updated)</source>
        <translation>失敗 (%2 台中 %1 台を更新)</translation>
    </message>
    <message>
        <source>Canceled (%1 of %2 updated)</source>
        <translation>キャンセル (%2 台中 %1 台を更新)</translation>
    </message>
    <message>
        <source>Running (%1 of %2 updated)</source>
        <translation>実行中 (%2 台中 %1 台を更新)</translation>
    </message>
    <message>
        <source>Interrupted (%1 of %2 updated)</source>
        <translation>中断 (%2 台中 %1 台を更新)</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>読み取り不可</translation>
    </message>
    <message>
        <source>The log is longer than %1 bytes; only its end was read.</source>
        <translation>ログが %1 バイトより長いため、末尾のみを読み取りました。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CMainWindow</name>
    <message>
        <source>Nuvex Viewer</source>
        <translation>Nuvex Viewer</translation>
    </message>
    <message>
        <source>Acquisition</source>
        <translation>画像取得</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>&amp;Cameras</source>
        <translation>カメラ(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Tool bar</source>
        <translation>ツールバー(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>The language changes the next time the viewer starts.</source>
        <translation>言語は次回のビューアー起動時に変更されます。</translation>
    </message>
    <message>
        <source>Camera settings</source>
        <translation>カメラ設定</translation>
    </message>
    <message>
        <source>Camera &amp;settings</source>
        <translation>カメラ設定(&amp;S)</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CPluginListDialog</name>
    <message>
        <source>Plug-ins</source>
        <translation>プラグイン</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>Part of the viewer</source>
        <translation>ビューアーの一部</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>利用不可</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CRecentFiles</name>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 はもうありません。</translation>
    </message>
    <message>
        <source>&amp;Clear list</source>
        <translation>リストを消去(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CSeriesNotifier</name>
    <message numerus="yes">
        <source>%n update(s) succeeded.</source>
        <translation>
            <numerusform>%n 件の更新に成功しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n update(s) failed.</source>
        <translation>
            <numerusform>%n 件の更新に失敗しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>The firmware updates have ended</source>
        <translation>ファームウェアの更新が終了しました</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CSwitchMenu</name>
    <message>
        <source>Keep open in a &amp;window</source>
        <translation>ウィンドウで開いておく(&amp;W)</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CTextDialog</name>
    <message>
        <source>&amp;Copy all</source>
        <translation>すべてコピー(&amp;C)</translation>
    </message>
    <message>
        <source>The file is too large to be shown in full: this is its end.</source>
        <translation>ファイルが大きすぎるため、末尾のみを表示しています。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CTrustedMakersDialog</name>
    <message>
        <source>Trusted makers</source>
        <translation>信頼する作成者</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>作成者</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>有効期限</translation>
    </message>
    <message>
        <source>Trusted by</source>
        <translation>信頼の設定元</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>追加(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>削除(&amp;R)...</translation>
    </message>
    <message>
        <source>Nobody is trusted yet. Add the certificates of the makers whose update files you use.</source>
        <translation>信頼する作成者はまだいません。使用する更新ファイルの作成者の証明書を追加してください。</translation>
    </message>
    <message>
        <source>Maker: %1
Issued by: %2
Valid: %3 to %4
SHA-256 fingerprint:
%5</source>
        <translation>作成者: %1
発行者: %2
有効期間: %3 ～ %4
SHA-256 フィンガープリント:
%5</translation>
    </message>
    <message>
        <source>You</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>このコンピューター</translation>
    </message>
    <message>
        <source>Add a trusted maker</source>
        <translation>信頼する作成者の追加</translation>
    </message>
    <message>
        <source>Certificates in PEM</source>
        <translation>PEM 形式の証明書</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read, or has not exactly one certificate in PEM.</source>
        <translation>ファイル「%1」を読み取れないか、PEM 形式の証明書がちょうど 1 つではありません。</translation>
    </message>
    <message>
        <source>Trust the update files of this maker? Compare the fingerprint with the one that the maker has told you in another way.</source>
        <translation>この作成者の更新ファイルを信頼しますか? 作成者から別の方法で知らされたフィンガープリントと比べてください。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2.</source>
        <translation>ファイル「%1」に書き込めません: %2。</translation>
    </message>
    <message>
        <source>Trust this maker no longer? The file &quot;%1&quot; is removed.</source>
        <translation>この作成者の信頼を取り消しますか? ファイル「%1」は削除されます。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be removed: %2.</source>
        <translation>ファイル「%1」を削除できません: %2。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CUpdateFileDialog</name>
    <message numerus="yes">
        <source>%n upgrade(s)</source>
        <translation>
            <numerusform>アップグレード %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n downgrade(s)</source>
        <translation>
            <numerusform>ダウングレード %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n reinstallation(s)</source>
        <translation>
            <numerusform>再インストール %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not now</source>
        <translation>
            <numerusform>現在不可 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>アップグレード</translation>
    </message>
    <message>
        <source>Downgrade</source>
        <translation>ダウングレード</translation>
    </message>
    <message>
        <source>Reinstallation</source>
        <translation>再インストール</translation>
    </message>
    <message>
        <source>Not now: %1</source>
        <translation>現在は不可: %1</translation>
    </message>
    <message>
        <source>Update file</source>
        <translation>更新ファイル</translation>
    </message>
    <message>
        <source>&amp;Firmware Updater...</source>
        <translation>ファームウェア更新ツール(&amp;F)...</translation>
    </message>
    <message>
        <source>Version, cameras</source>
        <translation>バージョン、カメラ</translation>
    </message>
    <message>
        <source>Models, firmware</source>
        <translation>モデル、ファームウェア</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>What is known of this version</source>
        <translation>このバージョンの情報</translation>
    </message>
    <message>
        <source>The file %1 is being read...</source>
        <translation>ファイル %1 を読み込んでいます...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Cameras that it fits: %1 of %2</source>
        <translation>適合するカメラ: %2 台中 %1 台</translation>
    </message>
    <message>
        <source>Cameras that it fits: %1 of %2 (%3)</source>
        <translation>適合するカメラ: %2 台中 %1 台 (%3)</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>バージョン: %1</translation>
    </message>
    <message>
        <source>Models: %1</source>
        <translation>モデル: %1</translation>
    </message>
    <message>
        <source>Device versions: %1</source>
        <translation>デバイスバージョン: %1</translation>
    </message>
    <message>
        <source>Needs firmware: %1 or newer</source>
        <translation>必要なファームウェア: %1 以降</translation>
    </message>
    <message>
        <source>Release notes:</source>
        <translation>リリースノート:</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CUpdateFileOpener</name>
    <message>
        <source>Recent &amp;update files</source>
        <translation>最近使用した更新ファイル(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Open update file...</source>
        <translation>更新ファイルを開く(&amp;O)...</translation>
    </message>
    <message>
        <source>A dialog is still open. Close it before you open an update file.</source>
        <translation>ダイアログがまだ開いています。更新ファイルを開く前に閉じてください。</translation>
    </message>
    <message>
        <source>Open update file</source>
        <translation>更新ファイルを開く</translation>
    </message>
    <message>
        <source>Update files</source>
        <translation>更新ファイル</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>Drop one update file, not several.</source>
        <translation>更新ファイルは 1 つだけドロップしてください。</translation>
    </message>
    <message>
        <source>Only update files (*.guf) of this computer can be dropped here.</source>
        <translation>ここにドロップできるのは、このコンピューターの更新ファイル (*.guf) だけです。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CUpdateHistoryDialog</name>
    <message>
        <source>Update history</source>
        <translation>更新履歴</translation>
    </message>
    <message>
        <source>Open &amp;log</source>
        <translation>ログを開く(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>エクスポート(&amp;E)...</translation>
    </message>
    <message numerus="yes">
        <source>%n damaged line(s) of the history were skipped.</source>
        <translation>
            <numerusform>更新履歴の破損した %n 行を読み飛ばしました。</numerusform>
        </translation>
    </message>
    <message>
        <source>No updates yet.</source>
        <translation>更新はまだありません。</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>絞り込み(&amp;F):</translation>
    </message>
    <message>
        <source>Export update history</source>
        <translation>更新履歴のエクスポート</translation>
    </message>
    <message numerus="yes">
        <source>%n update(s) were written to &quot;%1&quot;.</source>
        <translation>
            <numerusform>%n 件の更新を「%1」に保存しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2.</source>
        <translation>ファイル「%1」に書き込めません: %2。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CViewer</name>
    <message>
        <source>Re&amp;fresh</source>
        <translation>再検索(&amp;F)</translation>
    </message>
    <message>
        <source>Open samp&amp;le folder</source>
        <translation>サンプルフォルダーを開く(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Plug-ins...</source>
        <translation>プラグイン(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>バージョン情報(&amp;A)</translation>
    </message>
    <message>
        <source>Main window and menus</source>
        <translation>メインウィンドウとメニュー</translation>
    </message>
    <message>
        <source>Camera tree and selection</source>
        <translation>カメラツリーと選択</translation>
    </message>
    <message>
        <source>Cameras, update files and firmware updates</source>
        <translation>カメラ、更新ファイル、ファームウェアの更新</translation>
    </message>
    <message>
        <source>The viewer as a whole</source>
        <translation>ビューアー全体</translation>
    </message>
    <message>
        <source>Not all plug-ins are available: see Help &gt; Plug-ins.</source>
        <translation>利用できないプラグインがあります。「ヘルプ」&gt;「プラグイン」をご覧ください。</translation>
    </message>
    <message>
        <source>A firmware update is running. Wait until it has ended before you quit.</source>
        <translation>ファームウェアの更新中です。更新が終わってから終了してください。</translation>
    </message>
    <message>
        <source>A dialog is still open. Close it before you quit.</source>
        <translation>ダイアログが開いています。閉じてから終了してください。</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) found.</source>
        <translation>
            <numerusform>%n 台のカメラが見つかりました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Search for cameras (F5)</source>
        <translation>カメラを検索 (F5)</translation>
    </message>
    <message>
        <source>&amp;Logs...</source>
        <translation>ログ(&amp;L)...</translation>
    </message>
    <message>
        <source>%1 Then the viewer closes by itself.</source>
        <translation>%1 その後、ビューアーは自動的に終了します。</translation>
    </message>
    <message>
        <source>&amp;Update history...</source>
        <translation>更新履歴(&amp;U)...</translation>
    </message>
    <message>
        <source>Trusted &amp;makers...</source>
        <translation>信頼する作成者(&amp;M)...</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>マニュアル(&amp;M)</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Fin&amp;d cameras</source>
        <translation>カメラを探す(&amp;D)</translation>
    </message>
</context>
<context>
    <name>Viewer::Camera::GenICam</name>
    <message>
        <source>This viewer was built without the library for real cameras.</source>
        <translation>このビューアーは、実際のカメラ用のライブラリなしでビルドされています。</translation>
    </message>
    <message>
        <source>Search the network (by broadcast) and USB for cameras this time.</source>
        <translation>今回はネットワーク (ブロードキャスト) と USB のカメラを検索します。</translation>
    </message>
    <message>
        <source>address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Ask for a camera at &lt;address&gt;, without a broadcast; can be given several times.</source>
        <translation>ブロードキャストを使わずに &lt;アドレス&gt; のカメラを探します。複数回指定できます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a camera address; it has the form 192.168.0.10.</source>
        <translation>「%1」はカメラのアドレスではありません。192.168.0.10 の形式で指定してください。</translation>
    </message>
</context>
<context>
    <name>Viewer::Camera::GenICam::CGenICam</name>
    <message>
        <source>Search the &amp;network for cameras</source>
        <translation>ネットワークのカメラを検索(&amp;N)</translation>
    </message>
</context>
<context>
    <name>Viewer::Camera::Simulation::CSimulation</name>
    <message>
        <source>file</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Simulate the cameras described in &lt;file&gt;.</source>
        <translation>&lt;ファイル&gt; に記述されたカメラをシミュレートします。</translation>
    </message>
    <message>
        <source>Forget the firmware that earlier updates wrote to the simulated cameras.</source>
        <translation>以前の更新でシミュレーションカメラに書き込まれたファームウェアを破棄します。</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>The speed &quot;%1&quot; is not a number from 0.01 to 10000.</source>
        <translation>速度「%1」は 0.01 から 10000 までの数値ではありません。</translation>
    </message>
    <message>
        <source>Leave out the simulated cameras.</source>
        <translation>シミュレーションカメラを使用しません。</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>シミュレーション(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Plugged in</source>
        <translation>接続済み(&amp;P)</translation>
    </message>
    <message>
        <source>In &amp;use elsewhere</source>
        <translation>別のアプリで使用中(&amp;U)</translation>
    </message>
    <message>
        <source>Let the simulated cameras work &lt;n&gt; times as fast as real ones (default 1).</source>
        <translation>シミュレーションカメラを実際のカメラの &lt;n&gt; 倍の速さで動かします (既定値 1)。</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool</name>
    <message>
        <source>it is in use by another application</source>
        <translation>別のアプリケーションが使用しています</translation>
    </message>
    <message>
        <source>its status is %1</source>
        <translation>ステータスが %1 です</translation>
    </message>
    <message>
        <source>its status is %1: %2</source>
        <translation>ステータスが %1 です: %2</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool::CCameraEnumerationService</name>
    <message>
        <source>being updated</source>
        <translation>更新中</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool::CCameraPool</name>
    <message>
        <source>The folder &quot;%1&quot; does not exist; choose another one.</source>
        <translation>フォルダー「%1」は存在しません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>The recording of camera %1 has ended: %2.</source>
        <translation>カメラ %1 の録画が終了しました: %2。</translation>
    </message>
    <message>
        <source>Camera %1 cannot be started while the firmware updater is open.</source>
        <translation>ファームウェア更新ツールが開いている間は、カメラ %1 を開始できません。</translation>
    </message>
    <message>
        <source>Camera %1 does not answer; check its cable.</source>
        <translation>カメラ %1 が応答しません。ケーブルを確認してください。</translation>
    </message>
    <message>
        <source>Camera %1 is being updated.</source>
        <translation>カメラ %1 を更新しています。</translation>
    </message>
    <message>
        <source>Camera %1 no longer answers; acquisition has stopped.</source>
        <translation>カメラ %1 が応答しなくなったため、画像取得が停止しました。</translation>
    </message>
    <message>
        <source>Camera %1 is in use by another application.</source>
        <translation>カメラ %1 は別のアプリケーションで使用中です。</translation>
    </message>
    <message>
        <source>being updated (%1 %)</source>
        <translation>更新中 (%1 %)</translation>
    </message>
    <message>
        <source>Camera %1 has no images here.</source>
        <translation>ここにはカメラ %1 の画像はありません。</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSelector::CCameraSelectorModel</name>
    <message>
        <source>%1
Model: %2
Serial number: %3
Device version: %4
Firmware: %5</source>
        <translation>%1
モデル: %2
シリアル番号: %3
デバイスバージョン: %4
ファームウェア: %5</translation>
    </message>
    <message>
        <source>Acquiring</source>
        <translation>画像取得中</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>録画中</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>更新中</translation>
    </message>
    <message>
        <source>In use elsewhere</source>
        <translation>別アプリ使用中</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>ファームウェア</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Not updatable (%1)</source>
        <translation>更新不可 (%1)</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>IP address: %1</source>
        <translation>IP アドレス: %1</translation>
    </message>
    <message>
        <source>MAC address: %1</source>
        <translation>MAC アドレス: %1</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP アドレス</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>MAC アドレス</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSelector::CCameraSelectorPanel</name>
    <message>
        <source>Filter cameras</source>
        <translation>カメラを絞り込む</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSelector::CCameraSelectorView</name>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>&amp;Order as found</source>
        <translation>見つかった順(&amp;O)</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSettings::CCameraSettingsView</name>
    <message>
        <source>Exposure time:</source>
        <translation>露光時間:</translation>
    </message>
    <message>
        <source>Gain:</source>
        <translation>ゲイン:</translation>
    </message>
    <message>
        <source>Frame rate:</source>
        <translation>フレームレート:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>幅:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高さ:</translation>
    </message>
    <message>
        <source>Offset X:</source>
        <translation>X オフセット:</translation>
    </message>
    <message>
        <source>Offset Y:</source>
        <translation>Y オフセット:</translation>
    </message>
    <message>
        <source>Pixel format:</source>
        <translation>ピクセル形式:</translation>
    </message>
    <message>
        <source>Trigger:</source>
        <translation>トリガー:</translation>
    </message>
    <message>
        <source>Test pattern:</source>
        <translation>テストパターン:</translation>
    </message>
    <message>
        <source>Select a camera and click Start to see its settings.</source>
        <translation>設定を表示するには、カメラを選択して「開始」をクリックしてください。</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSettings::CFeatureTree</name>
    <message>
        <source>Part of a name</source>
        <translation>名前の一部</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>&amp;All features:</source>
        <translation>すべての機能(&amp;A):</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSettings::CSettingEditor</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not possible: %2 goes from %3 to %4.</source>
        <translation>「%1」は使用できません。%2 の範囲は %3～%4 です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number for %2.</source>
        <translation>「%1」は %2 に使用できる数値ではありません。</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraWorker::CCameraUpdate</name>
    <message>
        <source>The firmware of camera %1 is being updated.</source>
        <translation>カメラ %1 のファームウェアを更新しています。</translation>
    </message>
</context>
<context>
    <name>Viewer::CommandLine::COptionReader</name>
    <message>
        <source>Show this help and quit.</source>
        <translation>このヘルプを表示して終了します。</translation>
    </message>
    <message>
        <source>Show the version and quit.</source>
        <translation>バージョンを表示して終了します。</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>予期しない引数「%1」です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no good value for --%2.</source>
        <translation>「%1」は --%2 の値として使用できません。</translation>
    </message>
</context>
<context>
    <name>Viewer::Files::CFileEnd</name>
    <message>
        <source>It is not a regular file.</source>
        <translation>通常のファイルではありません。</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>ファイルを読み取れません: %1。</translation>
    </message>
</context>
<context>
    <name>Viewer::GufTool::CGufTool</name>
    <message>
        <source>There is no command.</source>
        <translation>コマンドがありません。</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; is unknown.</source>
        <translation>コマンド「%1」は不明です。</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; has too few or too many arguments.</source>
        <translation>コマンド「%1」の引数が少なすぎるか、多すぎます。</translation>
    </message>
    <message>
        <source>Packed %1: updates: %2, bytes: %3</source>
        <translation>%1 を作成しました (更新 %2 件、%3 バイト)</translation>
    </message>
    <message>
        <source>%1 is faultless, updates: %2</source>
        <translation>%1 に問題はありません (更新 %2 件)</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; has no option --%2.</source>
        <translation>コマンド「%1」に --%2 オプションはありません。</translation>
    </message>
    <message>
        <source>A signature needs --certificate and --key.</source>
        <translation>署名には --certificate と --key が必要です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a folder.</source>
        <translation>「%1」はフォルダーではありません。</translation>
    </message>
    <message>
        <source>Passphrase of the key:</source>
        <translation>鍵のパスフレーズ:</translation>
    </message>
    <message>
        <source>It cannot be signed: %1</source>
        <translation>署名できません: %1</translation>
    </message>
    <message>
        <source>Signed %1</source>
        <translation>%1 に署名しました</translation>
    </message>
    <message>
        <source>Signed by %1, SHA-256 fingerprint %2</source>
        <translation>署名者 %1、SHA-256 フィンガープリント %2</translation>
    </message>
    <message>
        <source>A time stamp needs --query or --response.</source>
        <translation>タイムスタンプには --query または --response が必要です。</translation>
    </message>
    <message>
        <source>Stamped %1</source>
        <translation>タイムスタンプを追加しました: %1</translation>
    </message>
    <message>
        <source>Wrote %1, for an authority for time stamps</source>
        <translation>%1 を書き出しました。タイムスタンプ局に送ってください</translation>
    </message>
    <message>
        <source>Usage: guftool pack DIR FILE [--sign SIGNING]
       guftool sign FILE SIGNING
       guftool stamp FILE --query QUERY | --response RESPONSE
       guftool inspect [--json] [--trust DIR] FILE
       guftool verify [--trust DIR] FILE

SIGNING  --certificate FILE --key FILE [--chain FILE]
         [--passphrase-file FILE], all of them in PEM but the last,
         whose first line is the passphrase of the key

pack     makes the update file FILE from DIR/update.json and the payloads
         in DIR that it names; sizes and digests that it leaves out are
         filled in
sign     adds a signature to FILE
stamp    writes QUERY, which asks an authority when the signature was
         made, or adds RESPONSE, which is its answer (RFC 3161)
inspect  checks FILE and shows what it holds, with --json as JSON, and
         whether this computer, or DIR, trusts the one who signed it
verify   checks FILE, with --trust also that one of the makers whose
         certificates are in DIR has signed it

Exit code: 0 when all is well, 1 when a file is faulty, 2 for a wrong
call of this program, 3 when the signature is missing or not trusted.
</source>
        <extracomment>At most 80 columns wide; Korean, Japanese and Chinese letters take two.</extracomment>
        <translation>使い方: guftool pack &lt;フォルダー&gt; &lt;ファイル&gt; [--sign &lt;署名&gt;]
        guftool sign &lt;ファイル&gt; &lt;署名&gt;
        guftool stamp &lt;ファイル&gt; --query &lt;要求&gt; | --response &lt;応答&gt;
        guftool inspect [--json] [--trust &lt;フォルダー&gt;] &lt;ファイル&gt;
        guftool verify [--trust &lt;フォルダー&gt;] &lt;ファイル&gt;

&lt;署名&gt;   --certificate &lt;ファイル&gt; --key &lt;ファイル&gt; [--chain &lt;ファイル&gt;]
         [--passphrase-file &lt;ファイル&gt;]。最後のファイル以外は PEM 形式で、
         最後のファイルの 1 行目は鍵のパスフレーズです

pack     &lt;フォルダー&gt;/update.json と、そこに指定された &lt;フォルダー&gt; 内の
         データファイルから更新ファイル &lt;ファイル&gt; を作成します。省略された
         サイズとダイジェストは自動的に補われます
sign     &lt;ファイル&gt; に署名を追加します
stamp    署名の時刻をタイムスタンプ局に問い合わせる &lt;要求&gt; を書き出すか、
         その回答である &lt;応答&gt; を追加します (RFC 3161)
inspect  &lt;ファイル&gt; を検査し、内容を表示し (--json: JSON 形式)、署名者が
         このコンピューターまたは &lt;フォルダー&gt; で信頼されているかを示します
verify   &lt;ファイル&gt; を検査します。--trust を付けると、&lt;フォルダー&gt; に証明書が
         ある作成者が署名したかどうかも検査します

終了コード: 正常な場合は 0、ファイルに問題がある場合は 1、プログラムの
呼び出し方が正しくない場合は 2、署名がないか信頼できない場合は 3 です。
</translation>
    </message>
</context>
<context>
    <name>Viewer::GufTool::CManifestPrinter</name>
    <message>
        <source>File:     %1
Format:   %2
Updates:  %3
</source>
        <translation>ファイル:  %1
形式:      %2
更新:      %3
</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>
Update %1
  Version:          %2
  Description:      %3
  Models:           %4
  Device versions:  %5
  Minimum version:  %6
  Release notes:    %7
  Steps:
</source>
        <extracomment>The values begin in column 20; Korean, Japanese and Chinese letters take two columns.</extracomment>
        <translation>
更新 %1
バージョン:         %2
説明:               %3
モデル:             %4
デバイスバージョン: %5
最小バージョン:     %6
リリースノート:     %7
手順:
</translation>
    </message>
    <message>
        <source>any</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>    by size</source>
        <extracomment>Eleven columns wide; Korean, Japanese and Chinese letters take two columns.</extracomment>
        <translation> サイズ依存</translation>
    </message>
    <message>
        <source>%1 (%2 bytes) to %3</source>
        <translation>%1 (%2 バイト) → %3</translation>
    </message>
    <message>
        <source>
Signature
  State:            %1
</source>
        <extracomment>The values begin in column 20; Korean, Japanese and Chinese letters take two columns.</extracomment>
        <translation>
署名
  状態:             %1
</translation>
    </message>
    <message>
        <source>  Signer:           %1
  Issuer:           %2
  Valid from:       %3
  Valid until:      %4
  SHA-256:          %5
</source>
        <extracomment>The values begin in column 20; Korean, Japanese and Chinese letters take two columns.</extracomment>
        <translation>  署名者:           %1
  発行者:           %2
  有効期間の開始:   %3
  有効期限:         %4
  SHA-256 (証明書): %5
</translation>
    </message>
    <message>
        <source>  Time stamp:       %1
</source>
        <extracomment>The values begin in column 20; Korean, Japanese and Chinese letters take two columns.</extracomment>
        <translation>  タイムスタンプ:   %1
</translation>
    </message>
</context>
<context>
    <name>Viewer::ImageView::CImageTile</name>
    <message>
        <source>Its image cannot be shown: %1.</source>
        <translation>画像を表示できません: %1。</translation>
    </message>
</context>
<context>
    <name>Viewer::ImageView::CImageView</name>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
</context>
<context>
    <name>Viewer::ImageView::CStreamRates</name>
    <message>
        <source>Since acquisition was started:
frames: %1
data: %2 MB
resent packets: %3
lost packets: %4
incomplete frames: %5
frames not shown: %6</source>
        <translation>画像取得の開始以降:
フレーム: %1
データ: %2 MB
再送されたパケット: %3
失われたパケット: %4
不完全なフレーム: %5
表示しなかったフレーム: %6</translation>
    </message>
    <message>
        <source>%1 frames/s, %2 MB/s</source>
        <translation>%1 フレーム/秒、%2 MB/s</translation>
    </message>
    <message>
        <source>packets resent: %1</source>
        <translation>再送パケット: %1</translation>
    </message>
    <message>
        <source>packets lost: %1</source>
        <translation>損失パケット: %1</translation>
    </message>
    <message>
        <source>frames incomplete: %1</source>
        <translation>不完全フレーム: %1</translation>
    </message>
    <message>
        <source>frames not shown: %1</source>
        <translation>非表示フレーム: %1</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CCameraSelection</name>
    <message>
        <source>No camera was found.</source>
        <translation>カメラが見つかりませんでした。</translation>
    </message>
    <message>
        <source>There is no camera of the model &quot;%1&quot;.</source>
        <translation>モデル「%1」のカメラはありません。</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) have the serial number &quot;%1&quot;; name the one that is meant by its id: %2.</source>
        <translation>
            <numerusform>シリアル番号「%1」のカメラが %n 台あります。対象のカメラを ID で指定してください: %2。</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no camera with the id or serial number &quot;%1&quot;; the nearest are %2.</source>
        <translation>ID またはシリアル番号が「%1」のカメラはありません。最も近いものは %2 です。</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CQuestion</name>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CTerminalReport</name>
    <message>
        <source>%1 left</source>
        <translation>残り %1</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CTextReport</name>
    <message>
        <source>Id</source>
        <translation>カメラ ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Device version</source>
        <translation>デバイスバージョン</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>ファームウェア</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>for %1</source>
        <translation>%1 用</translation>
    </message>
    <message>
        <source>device version %1</source>
        <translation>デバイスバージョン %1</translation>
    </message>
    <message>
        <source>from version %1 on</source>
        <translation>バージョン %1 以降</translation>
    </message>
    <message>
        <source>upgrade %1</source>
        <translation>アップグレード %1</translation>
    </message>
    <message>
        <source>downgrade %1</source>
        <translation>ダウングレード %1</translation>
    </message>
    <message>
        <source>reinstall %1</source>
        <translation>再インストール %1</translation>
    </message>
    <message>
        <source>does not fit: %1</source>
        <translation>対象外: %1</translation>
    </message>
    <message>
        <source>cannot be updated now: %1</source>
        <translation>今は更新できません: %1</translation>
    </message>
    <message>
        <source>%1: begins, %2</source>
        <translation>%1: 開始、%2</translation>
    </message>
    <message>
        <source>%1: step %2 of %3, %4</source>
        <translation>%1: ステップ %2/%3、%4</translation>
    </message>
    <message>
        <source>%1: updated, %2, in %3 s</source>
        <translation>%1: 更新済み、%2、%3 秒</translation>
    </message>
    <message>
        <source>updated</source>
        <translation>更新済み</translation>
    </message>
    <message>
        <source>FAILED: %1</source>
        <translation>失敗: %1</translation>
    </message>
    <message>
        <source>not updated: %1</source>
        <translation>更新されませんでした: %1</translation>
    </message>
    <message>
        <source>left alone: %1</source>
        <translation>変更なし: %1</translation>
    </message>
    <message>
        <source>not begun</source>
        <translation>未開始</translation>
    </message>
    <message>
        <source>would be updated to %1</source>
        <translation>%1 に更新する予定</translation>
    </message>
    <message numerus="yes">
        <source>%n updated</source>
        <translation>
            <numerusform>%n 台更新済み</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n 台失敗</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n in use</source>
        <translation>
            <numerusform>%n 台使用中</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n would be updated</source>
        <translation>
            <numerusform>%n 台更新予定</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left alone</source>
        <translation>
            <numerusform>%n 台変更なし</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n running</source>
        <translation>
            <numerusform>%n 台実行中</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not begun</source>
        <translation>
            <numerusform>%n 台未開始</numerusform>
        </translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>From</source>
        <translation>更新前</translation>
    </message>
    <message>
        <source>To</source>
        <translation>更新後</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>秒数</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>%1 (%2 s)</source>
        <translation>%1 (%2 秒)</translation>
    </message>
    <message>
        <source>SHA-256 fingerprint of the certificate: %1</source>
        <translation>証明書の SHA-256 フィンガープリント: %1</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CUpdateCommandLine</name>
    <message>
        <source>Updates the firmware of many cameras, without a display.</source>
        <translation>画面なしで多数のカメラのファームウェアを更新します。</translation>
    </message>
    <message>
        <source>list: the cameras; check: what a file would do to each of them; update: do it; resume: repeat what was interrupted; history: what was updated.</source>
        <translation>list: カメラの一覧; check: ファイルが各カメラに行うこと; update: 実行; resume: 中断した更新をやり直す; history: 更新の履歴。</translation>
    </message>
    <message>
        <source>The update file, for check and update.</source>
        <translation>更新ファイル (check と update 用)。</translation>
    </message>
    <message>
        <source>code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Use the language &lt;code&gt;: %1.</source>
        <translation>言語 &lt;コード&gt; を使用します: %1。</translation>
    </message>
    <message>
        <source>The language &quot;%1&quot; is unknown; there are %2.</source>
        <translation>言語「%1」は使用できません。使用できる言語: %2。</translation>
    </message>
    <message>
        <source>Print one JSON object a line.</source>
        <translation>1 行に 1 つの JSON オブジェクトを出力します。</translation>
    </message>
    <message>
        <source>history: print a table for spreadsheets.</source>
        <translation>history: 表計算用の表を出力します。</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>id</source>
        <translation>識別子</translation>
    </message>
    <message>
        <source>update: the camera with this id or serial number; can be given several times.</source>
        <translation>update: この ID またはシリアル番号のカメラ。何度でも指定できます。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>update: all cameras of this model.</source>
        <translation>update: このモデルのすべてのカメラ。</translation>
    </message>
    <message>
        <source>update: all cameras that the file fits.</source>
        <translation>update: ファイルの対象となるすべてのカメラ。</translation>
    </message>
    <message>
        <source>update: also where the camera has a newer version.</source>
        <translation>update: カメラのバージョンの方が新しい場合も更新します。</translation>
    </message>
    <message>
        <source>update: also where the camera has this version already.</source>
        <translation>update: カメラが既にこのバージョンの場合も更新します。</translation>
    </message>
    <message>
        <source>So many updates at a time (default 8).</source>
        <translation>同時に行う更新の数 (既定値 8)。</translation>
    </message>
    <message>
        <source>--parallel takes a number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--parallel には「%2」ではなく 1 から %1 までの数を指定してください。</translation>
    </message>
    <message>
        <source>So many cameras first, the others only when all of these have succeeded.</source>
        <translation>最初に更新するカメラの数。すべて成功した場合だけ残りを更新します。</translation>
    </message>
    <message>
        <source>--canary takes a number of cameras, not &quot;%1&quot;.</source>
        <translation>--canary には「%1」ではなくカメラの台数を指定してください。</translation>
    </message>
    <message>
        <source>Begin no further camera after so many failures (default 1).</source>
        <translation>この回数失敗したら次のカメラを開始しません (既定値 1)。</translation>
    </message>
    <message>
        <source>--max-failures takes a number of cameras, not &quot;%1&quot;.</source>
        <translation>--max-failures には「%1」ではなくカメラの台数を指定してください。</translation>
    </message>
    <message>
        <source>Only say what would be done.</source>
        <translation>何を行うかを表示するだけです。</translation>
    </message>
    <message>
        <source>Do not ask before the updates begin.</source>
        <translation>更新を始める前に確認しません。</translation>
    </message>
    <message>
        <source>No command is given; there are %1.</source>
        <translation>コマンドが指定されていません。使用できるコマンド: %1。</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;; there are %2.</source>
        <translation>コマンド「%1」はありません。使用できるコマンド: %2。</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>予期しない引数「%1」です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs an update file.</source>
        <translation>「%1」には更新ファイルが必要です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no option --%2.</source>
        <translation>「%1」にオプション --%2 はありません。</translation>
    </message>
    <message>
        <source>--csv and --json exclude each other.</source>
        <translation>--csv と --json は同時に使用できません。</translation>
    </message>
    <message>
        <source>Say which cameras: --camera, --model or --all.</source>
        <translation>どのカメラかを指定してください: --camera、--model または --all。</translation>
    </message>
    <message>
        <source>--camera, --model and --all exclude each other.</source>
        <translation>--camera、--model、--all は同時に使用できません。</translation>
    </message>
    <message>
        <source>check, update, resume: only with a file that a trusted maker has signed.</source>
        <translation>check、update、resume: 信頼する作成者が署名したファイルだけを使用します。</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CUpdateLog</name>
    <message>
        <source>The log in &quot;%1&quot; cannot be written: %2; the updates go on without it.</source>
        <translation>「%1」のログを書き込めません: %2。更新はログなしで続きます。</translation>
    </message>
    <message>
        <source>there is no home folder</source>
        <translation>ホームフォルダーがありません</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CUpdateProgram</name>
    <message>
        <source>The file fits none of the cameras.</source>
        <translation>このファイルの対象となるカメラはありません。</translation>
    </message>
    <message numerus="yes">
        <source>%n damaged line(s) of the history were skipped.</source>
        <translation>
            <numerusform>更新履歴の破損した %n 行を読み飛ばしました。</numerusform>
        </translation>
    </message>
    <message>
        <source>The file does not fit camera %1: %2.</source>
        <translation>このファイルはカメラ %1 の対象外です: %2。</translation>
    </message>
    <message>
        <source>Camera %1 does not answer. Switch it off and on, then resume again.</source>
        <translation>カメラ %1 が応答しません。電源を入れ直してから、もう一度 resume を実行してください。</translation>
    </message>
    <message>
        <source>Camera %1: the file &quot;%2&quot; is not the one any more with which its update was begun; use &quot;update&quot;.</source>
        <translation>カメラ %1: ファイル「%2」は更新を始めたときのファイルではありません。「update」を使用してください。</translation>
    </message>
    <message>
        <source>No update was interrupted.</source>
        <translation>中断された更新はありません。</translation>
    </message>
    <message>
        <source>it has the newer version %1 (--allow-downgrade)</source>
        <translation>より新しいバージョン %1 です (--allow-downgrade)</translation>
    </message>
    <message>
        <source>it has version %1 already (--allow-reinstall)</source>
        <translation>既にバージョン %1 です (--allow-reinstall)</translation>
    </message>
    <message>
        <source>There is no terminal to ask at; say --yes, or --dry-run to see what would be done.</source>
        <translation>確認するための端末がありません。--yes を指定するか、何を行うかを見るには --dry-run を指定してください。</translation>
    </message>
    <message numerus="yes">
        <source>Update %n camera(s)? [y/N]</source>
        <translation>
            <numerusform>%n 台のカメラを更新しますか? [y/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was updated.</source>
        <translation>何も更新されませんでした。</translation>
    </message>
    <message>
        <source>No further camera begins. Those that run are finished; cut off, they could be damaged.</source>
        <translation>次のカメラは開始しません。実行中の更新は最後まで行います。途中で切ると、カメラが損傷するおそれがあります。</translation>
    </message>
    <message>
        <source>Stopped; nothing was updated.</source>
        <translation>停止しました。何も更新されませんでした。</translation>
    </message>
    <message>
        <source>The output cannot be written: %1; the updates go on, see the history.</source>
        <translation>出力を書き込めません: %1。更新は続きます。結果は更新履歴にあります。</translation>
    </message>
    <message>
        <source>The output cannot be written: %1.</source>
        <translation>出力を書き込めません: %1。</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CUpdateSeries</name>
    <message>
        <source>the camera is not there any more</source>
        <translation>カメラがなくなりました</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CDependencyResolver</name>
    <message>
        <source>Its name is that of a part of the viewer.</source>
        <translation>名前がビューアーの構成要素と同じです。</translation>
    </message>
    <message>
        <source>A plug-in of the same name was found before: %1.</source>
        <translation>同じ名前のプラグインがすでに見つかっています: %1。</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot;, which could not be started.</source>
        <translation>「%1」が必要ですが、開始できませんでした。</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot; %2, which is missing.</source>
        <translation>「%1」バージョン %2 が必要ですが、見つかりません。</translation>
    </message>
    <message>
        <source>It is part of a circular dependency: %1.</source>
        <translation>依存関係が循環しています: %1。</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot; %2, but version %3 is installed, which is compatible with %4 and later.</source>
        <translation>「%1」バージョン %2 が必要ですが、インストールされているバージョン %3 は %4 以降とのみ互換性があります。</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CPluginManager</name>
    <message>
        <source>an unknown exception</source>
        <translation>不明な例外</translation>
    </message>
    <message>
        <source>It could not set its language</source>
        <translation>言語を設定できませんでした</translation>
    </message>
    <message>
        <source>It could not be initialized</source>
        <translation>初期化できませんでした</translation>
    </message>
    <message>
        <source>It could not be connected to the viewer</source>
        <translation>ビューアーに接続できませんでした</translation>
    </message>
    <message>
        <source>It could not be constructed: %1.</source>
        <translation>作成できませんでした: %1。</translation>
    </message>
    <message>
        <source>Its library could not be loaded: %1.</source>
        <translation>ライブラリを読み込めませんでした: %1。</translation>
    </message>
    <message>
        <source>Its library does not contain what its metadata says.</source>
        <translation>ライブラリの内容がメタデータと一致しません。</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2。</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot;, which could not be started.</source>
        <translation>「%1」が必要ですが、開始できませんでした。</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; (%2) is not available. %3</source>
        <translation>プラグイン「%1」(%2) は利用できません。%3</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CPluginScanner</name>
    <message>
        <source>The file is damaged or is not a library.</source>
        <translation>ファイルが破損しているか、ライブラリではありません。</translation>
    </message>
    <message>
        <source>Its folder &quot;%1&quot; is not safe: %2.</source>
        <translation>フォルダー「%1」は安全ではありません: %2。</translation>
    </message>
    <message>
        <source>Its file is not safe: %1.</source>
        <translation>ファイルは安全ではありません: %1。</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CPluginSpec</name>
    <message>
        <source>It was built for the interface &quot;%1&quot;, but this viewer has &quot;%2&quot;.</source>
        <translation>インターフェイス「%1」用にビルドされていますが、このビューアーのインターフェイスは「%2」です。</translation>
    </message>
    <message>
        <source>Its metadata has no &quot;Name&quot;.</source>
        <translation>メタデータに「Name」がありません。</translation>
    </message>
    <message>
        <source>The &quot;Dependencies&quot; of its metadata are not a list.</source>
        <translation>メタデータの「Dependencies」がリストではありません。</translation>
    </message>
    <message>
        <source>A dependency in its metadata has no &quot;Name&quot;.</source>
        <translation>メタデータの依存項目に「Name」がありません。</translation>
    </message>
    <message>
        <source>The &quot;%1&quot; of &quot;%2&quot; in its metadata is not a version number: &quot;%3&quot;.</source>
        <translation>メタデータの「%2」の「%1」がバージョン番号ではありません:「%3」。</translation>
    </message>
    <message>
        <source>It was built with Qt %1, but this viewer needs plug-ins that were built with Qt %2.</source>
        <translation>Qt %1 でビルドされていますが、このビューアーには Qt %2 でビルドされたプラグインが必要です。</translation>
    </message>
</context>
<context>
    <name>Viewer::Text::CErrorText</name>
    <message>
        <source>Camera %1: %2</source>
        <translation>カメラ %1: %2</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>メモリが不足しています</translation>
    </message>
    <message>
        <source>it is already being updated</source>
        <translation>すでに更新中です</translation>
    </message>
    <message>
        <source>it is acquiring images; stop that and start the update again</source>
        <translation>画像を取得しています。画像取得を停止してから、更新をもう一度開始してください</translation>
    </message>
    <message>
        <source>the update failed for an unknown reason</source>
        <translation>不明な理由により更新に失敗しました</translation>
    </message>
    <message>
        <source>%1; the update had already begun to write, so repeat it before the camera is used</source>
        <translation>%1。すでに書き込みが始まっていたため、カメラを使用する前に更新をやり直してください</translation>
    </message>
    <message>
        <source>it does not answer; check its cable and its power supply</source>
        <translation>応答しません。ケーブルと電源を確認してください</translation>
    </message>
    <message>
        <source>it is already open</source>
        <translation>すでに開かれています</translation>
    </message>
    <message>
        <source>it has no feature &quot;%1&quot; that can be read</source>
        <translation>読み取り可能な機能「%1」がありません</translation>
    </message>
    <message>
        <source>it refuses to write the feature &quot;%1&quot;</source>
        <translation>機能「%1」の書き込みが拒否されました</translation>
    </message>
    <message>
        <source>it has no feature &quot;%1&quot; that can be written</source>
        <translation>書き込み可能な機能「%1」がありません</translation>
    </message>
    <message>
        <source>it has no command &quot;%1&quot;</source>
        <translation>コマンド「%1」がありません</translation>
    </message>
    <message>
        <source>it refuses to write the file &quot;%1&quot;</source>
        <translation>カメラ内のファイル「%1」の書き込みが拒否されました</translation>
    </message>
    <message>
        <source>the data for its file &quot;%1&quot; ended after %2 of %3 bytes (%4)</source>
        <translation>カメラ内のファイル「%1」のデータが %3 バイト中 %2 バイトで終了しました (%4)</translation>
    </message>
    <message>
        <source>the upload of its file &quot;%1&quot; broke off after %2 of %3 bytes</source>
        <translation>カメラ内のファイル「%1」のアップロードが %3 バイト中 %2 バイトで中断しました</translation>
    </message>
    <message>
        <source>it did not come back from its reset within %1 s; switch it off and on</source>
        <translation>リセット後 %1 秒以内に復帰しませんでした。電源を入れ直してください</translation>
    </message>
    <message>
        <source>it did not answer within %1 s</source>
        <translation>%1 秒以内に応答しませんでした</translation>
    </message>
    <message>
        <source>it is not open</source>
        <translation>開かれていません</translation>
    </message>
    <message>
        <source>the connection was lost; check its cable and its power supply</source>
        <translation>接続が切断されました。ケーブルと電源を確認してください</translation>
    </message>
    <message>
        <source>there is no complete firmware image to activate</source>
        <translation>有効化できる完全なファームウェアイメージがありません</translation>
    </message>
    <message>
        <source>it does not accept the uploaded file as a firmware image</source>
        <translation>アップロードされたファイルがファームウェアイメージとして認識されません</translation>
    </message>
    <message>
        <source>the uploaded firmware image is for model %1, not for %2</source>
        <translation>アップロードされたファームウェアイメージはモデル %2 用ではなく、%1 用です</translation>
    </message>
    <message>
        <source>the update file contains a step of an unknown kind</source>
        <translation>更新ファイルに不明な種類の手順が含まれています</translation>
    </message>
    <message>
        <source>it cannot be updated now, since it reports status %1</source>
        <translation>状態 %1 が報告されているため、現在は更新できません</translation>
    </message>
    <message>
        <source>the archive is cut off at its end; copy the file again</source>
        <translation>アーカイブの末尾が欠けています。ファイルをもう一度コピーしてください</translation>
    </message>
    <message>
        <source>this is not an update file, as it is not a ZIP archive</source>
        <translation>ZIP アーカイブではないため、更新ファイルではありません</translation>
    </message>
    <message>
        <source>the archive is one part of several; pack it as one file</source>
        <translation>分割アーカイブの一部です。1 つのファイルに圧縮してください</translation>
    </message>
    <message>
        <source>there is not enough memory to read the archive</source>
        <translation>アーカイブを読み取るためのメモリが不足しています</translation>
    </message>
    <message>
        <source>the file cannot be read from the disk</source>
        <translation>ディスクからファイルを読み取れません</translation>
    </message>
    <message>
        <source>the archive is damaged; copy the file again</source>
        <translation>アーカイブが破損しています。ファイルをもう一度コピーしてください</translation>
    </message>
    <message>
        <source>there is no update.json in the archive</source>
        <translation>アーカイブに update.json がありません</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>ファイルが存在しません</translation>
    </message>
    <message>
        <source>this is a folder, not a file</source>
        <translation>ファイルではなくフォルダーです</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>the file cannot be opened; check its access rights</source>
        <translation>ファイルを開けません。アクセス権を確認してください</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>the file cannot be opened; too many files are open</source>
        <translation>開いているファイルが多すぎるため、ファイルを開けません</translation>
    </message>
    <message>
        <source>the archive unpacks to more than %1 bytes</source>
        <translation>展開後のサイズが %1 バイトを超えています</translation>
    </message>
    <message>
        <source>entry %1 of the archive has no name, or one that is not UTF-8</source>
        <translation>アーカイブの %1 番目の項目に名前がないか、名前が UTF-8 ではありません</translation>
    </message>
    <message>
        <source>Update file %1: %2</source>
        <translation>更新ファイル %1: %2</translation>
    </message>
    <message>
        <source>it did not answer; check its cable, its power supply and the network</source>
        <translation>応答しませんでした。ケーブル、電源、ネットワークを確認してください</translation>
    </message>
    <message>
        <source>control over it was lost; close other applications that use it</source>
        <translation>カメラの制御権が失われました。カメラを使用している他のアプリケーションを閉じてください</translation>
    </message>
    <message>
        <source>it is busy; try again later</source>
        <translation>ビジー状態です。しばらくしてからもう一度お試しください</translation>
    </message>
    <message>
        <source>it refused (%1)</source>
        <translation>カメラが要求を拒否しました (%1)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>its memory could not be written</source>
        <translation>カメラのメモリに書き込めませんでした</translation>
    </message>
    <message>
        <source>opening its file &quot;%1&quot; failed</source>
        <translation>カメラ内のファイル「%1」を開けませんでした</translation>
    </message>
    <message>
        <source>writing its file &quot;%1&quot; failed at byte %2</source>
        <translation>カメラ内のファイル「%1」の %2 バイト目で書き込みに失敗しました</translation>
    </message>
    <message>
        <source>closing its file &quot;%1&quot; failed</source>
        <translation>カメラ内のファイル「%1」を閉じられませんでした</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>時間がかかりすぎました</translation>
    </message>
    <message>
        <source>it reports the status &quot;%1&quot;</source>
        <translation>状態「%1」が報告されました</translation>
    </message>
    <message>
        <source>it could not be opened</source>
        <translation>カメラを開けませんでした</translation>
    </message>
    <message>
        <source>its command &quot;%1&quot; took too long; switch the camera off and on and repeat the update</source>
        <translation>コマンド「%1」に時間がかかりすぎました。カメラの電源を入れ直してから、更新をやり直してください</translation>
    </message>
    <message>
        <source>the upload of its file &quot;%1&quot; took too long; it was broken off after %2 of %3 bytes</source>
        <translation>カメラ内のファイル「%1」のアップロードに時間がかかりすぎたため、%3 バイト中 %2 バイトで中断されました</translation>
    </message>
    <message>
        <source>same serial number as another camera</source>
        <translation>シリアル番号が別のカメラと同じ</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; could not be read</source>
        <translation>機能「%1」を読み取れませんでした</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; could not be set to &quot;%2&quot;</source>
        <translation>機能「%1」を「%2」に設定できませんでした</translation>
    </message>
    <message>
        <source>it has no feature &quot;%1&quot;; the update file may be for another model</source>
        <translation>機能「%1」がありません。更新ファイルが別のモデル用である可能性があります</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; is not a command</source>
        <translation>機能「%1」はコマンドではありません</translation>
    </message>
    <message>
        <source>its command &quot;%1&quot; could not be executed</source>
        <translation>コマンド「%1」を実行できませんでした</translation>
    </message>
    <message>
        <source>it could not be found out whether its command &quot;%1&quot; has finished</source>
        <translation>コマンド「%1」が完了したかどうかを確認できませんでした</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; is not a register</source>
        <translation>機能「%1」はレジスタではありません</translation>
    </message>
    <message>
        <source>its buffer for files has no room (length 0)</source>
        <translation>ファイル転送用バッファーのサイズが 0 です</translation>
    </message>
    <message>
        <source>it accepted only %1 of %2 bytes</source>
        <translation>%2 バイト中 %1 バイトしか受け付けませんでした</translation>
    </message>
    <message>
        <source>another camera has the same vendor, model and serial number; connect only one of them and search for cameras again</source>
        <translation>ベンダー、モデル、シリアル番号が同じカメラがもう 1 台あります。どちらか 1 台だけを接続して、もう一度カメラを検索してください</translation>
    </message>
    <message>
        <source>another camera, %1, answers at its address; search for cameras again</source>
        <translation>そのアドレスでは別のカメラ %1 が応答しています。もう一度カメラを検索してください</translation>
    </message>
    <message>
        <source>its address cannot be reached; check the network settings of this computer</source>
        <translation>カメラのアドレスに到達できません。このコンピューターのネットワーク設定を確認してください</translation>
    </message>
    <message>
        <source>it is in use by another application; close that application and start the update again</source>
        <translation>別のアプリケーションで使用中です。そのアプリケーションを閉じてから、更新をもう一度開始してください</translation>
    </message>
    <message>
        <source>it did not come back from its reset; switch it off and on and check its firmware version</source>
        <translation>リセット後に復帰しませんでした。電源を入れ直して、ファームウェアバージョンを確認してください</translation>
    </message>
    <message>
        <source>it did not restart; switch it off and on and check its firmware version</source>
        <translation>再起動しませんでした。電源を入れ直して、ファームウェアバージョンを確認してください</translation>
    </message>
    <message>
        <source>the field is given twice</source>
        <translation>フィールドが 2 回指定されています</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; is missing</source>
        <translation>フィールド「%1」がありません</translation>
    </message>
    <message>
        <source>format %1 is unknown, only format 1 can be read</source>
        <translation>形式 %1 は不明です。読み取れるのは形式 1 のみです</translation>
    </message>
    <message>
        <source>more than %1 transport layers</source>
        <translation>トランスポート層の数が上限の %1 を超えています</translation>
    </message>
    <message>
        <source>more than %1 cameras</source>
        <translation>カメラの数が上限の %1 台を超えています</translation>
    </message>
    <message>
        <source>the id &quot;%1&quot; is already used in line %2</source>
        <translation>ID「%1」は %2 行ですでに使用されています</translation>
    </message>
    <message>
        <source>the text must not be empty</source>
        <translation>文字列を空にすることはできません</translation>
    </message>
    <message>
        <source>the text has %1 characters; at most %2 are allowed</source>
        <translation>文字列の長さ (%1 文字) が上限の %2 文字を超えています</translation>
    </message>
    <message>
        <source>the text must not contain line breaks or control characters</source>
        <translation>文字列に改行や制御文字を含めることはできません</translation>
    </message>
    <message>
        <source>Camera description &quot;%1&quot; cannot be read: it is not a regular file</source>
        <translation>カメラ記述ファイル「%1」を読み取れません: 通常のファイルではありません</translation>
    </message>
    <message>
        <source>Camera description &quot;%1&quot; cannot be read: %2</source>
        <translation>カメラ記述ファイル「%1」を読み取れません: %2</translation>
    </message>
    <message>
        <source>Camera description &quot;%1&quot; is larger than %2 bytes</source>
        <translation>カメラ記述ファイル「%1」が %2 バイトを超えています</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>is longer than %1 characters</source>
        <translation>%1 文字を超えています</translation>
    </message>
    <message>
        <source>has a control character</source>
        <translation>制御文字が含まれています</translation>
    </message>
    <message>
        <source>has a backslash; use forward slashes</source>
        <translation>バックスラッシュが含まれています。スラッシュ (/) を使用してください</translation>
    </message>
    <message>
        <source>has a colon; drive letters are not allowed</source>
        <translation>コロンが含まれています。ドライブ文字は使用できません</translation>
    </message>
    <message>
        <source>is an absolute path; use one inside the archive</source>
        <translation>絶対パスです。アーカイブ内のパスを使用してください</translation>
    </message>
    <message>
        <source>has an empty part or one of dots only; use a plain path</source>
        <translation>空の部分、またはドットのみの部分が含まれています。通常のパスを使用してください</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true または false の値</translation>
    </message>
    <message>
        <source>a value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>the format version is %1, but this program reads version %2 only</source>
        <translation>形式のバージョンは %1 ですが、このプログラムが読み取れるのはバージョン %2 のみです</translation>
    </message>
    <message>
        <source>update.json has %1 bytes; at most %2 are allowed</source>
        <translation>update.json のサイズ (%1 バイト) が上限の %2 バイトを超えています</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; cannot be read; the archive is damaged</source>
        <translation>ファイル「%1」を読み取れません。アーカイブが破損しています</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; is damaged and cannot be unpacked</source>
        <translation>ファイル「%1」が破損しているため、展開できません</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; unpacks to more bytes than the archive declares</source>
        <translation>ファイル「%1」の展開後のサイズが、アーカイブの記載より大きくなっています</translation>
    </message>
    <message>
        <source>update.json is in a folder of the archive (&quot;%1&quot;); it must be at the top level</source>
        <translation>update.json がアーカイブ内のフォルダーにあります (「%1」)。最上位に置く必要があります</translation>
    </message>
    <message>
        <source>the file has %1 bytes; at most %2 are allowed</source>
        <translation>ファイルのサイズ (%1 バイト) が上限の %2 バイトを超えています</translation>
    </message>
    <message>
        <source>the archive has %1 entries; at most %2 are allowed</source>
        <translation>アーカイブの項目数 (%1) が上限の %2 を超えています</translation>
    </message>
    <message>
        <source>the archive has two entries named &quot;%1&quot;</source>
        <translation>アーカイブに「%1」という名前の項目が 2 つあります</translation>
    </message>
    <message>
        <source>the entry name &quot;%1&quot; %2</source>
        <translation>項目名「%1」: %2</translation>
    </message>
    <message>
        <source>the entry &quot;%1&quot; of the archive is damaged</source>
        <translation>アーカイブの項目「%1」が破損しています</translation>
    </message>
    <message>
        <source>the entry &quot;%1&quot; is encrypted; pack it without a password</source>
        <translation>項目「%1」は暗号化されています。パスワードなしで圧縮してください</translation>
    </message>
    <message>
        <source>the entry &quot;%1&quot; is compressed by a method other than Deflate</source>
        <translation>項目「%1」は Deflate 以外の方式で圧縮されています</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; is missing in the archive</source>
        <translation>アーカイブにデータファイル「%1」がありません</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; is too short: it has %2 bytes where update.json says %3</source>
        <translation>データファイル「%1」が短すぎます。update.json では %3 バイトですが、実際は %2 バイトです</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; is too long: it has %2 bytes where update.json says %3</source>
        <translation>データファイル「%1」が長すぎます。update.json では %3 バイトですが、実際は %2 バイトです</translation>
    </message>
    <message>
        <source>the archive has a file &quot;%1&quot; that no step uploads</source>
        <translation>アーカイブに、どの手順でもアップロードされないファイル「%1」があります</translation>
    </message>
    <message>
        <source>the update is not for its model &quot;%1&quot;</source>
        <translation>この更新はモデル「%1」用ではありません</translation>
    </message>
    <message>
        <source>the update is not for its device version &quot;%1&quot;</source>
        <translation>この更新はデバイスバージョン「%1」用ではありません</translation>
    </message>
    <message>
        <source>the update needs firmware version %1 or later, but the camera has &quot;%2&quot;; install an older update first</source>
        <translation>この更新にはファームウェアバージョン %1 以降が必要ですが、カメラのバージョンは「%2」です。先に古いバージョンの更新ファイルで更新してください</translation>
    </message>
    <message>
        <source>a precondition of the update is not met: its feature &quot;%1&quot; is &quot;%2&quot; instead of &quot;%3&quot;</source>
        <translation>更新の前提条件が満たされていません: 機能「%1」の値が「%3」ではなく「%2」です</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; is &quot;%2&quot; instead of &quot;%3&quot;</source>
        <translation>機能「%1」の値が「%3」ではなく「%2」です</translation>
    </message>
    <message>
        <source>after the update it reports firmware version &quot;%1&quot; instead of %2</source>
        <translation>更新後に報告されたファームウェアバージョンが %2 ではなく「%1」です</translation>
    </message>
    <message>
        <source>the archive cannot be created</source>
        <translation>アーカイブを作成できません</translation>
    </message>
    <message>
        <source>the archive cannot be written: %1</source>
        <translation>アーカイブに書き込めません: %1</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; is missing in the folder</source>
        <translation>フォルダーにデータファイル「%1」がありません</translation>
    </message>
    <message>
        <source>its folder does not exist or is read-only</source>
        <translation>ファイルのフォルダーが存在しないか、読み取り専用です</translation>
    </message>
    <message>
        <source>the file cannot be replaced</source>
        <translation>ファイルを置き換えられません</translation>
    </message>
    <message>
        <source>this is not a folder</source>
        <translation>フォルダーではありません</translation>
    </message>
    <message>
        <source>there is no update.json in the folder</source>
        <translation>フォルダーに update.json がありません</translation>
    </message>
    <message>
        <source>update.json cannot be opened; check its access rights</source>
        <translation>update.json を開けません。アクセス権を確認してください</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; is empty</source>
        <translation>データファイル「%1」が空です</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; cannot be read</source>
        <translation>データファイル「%1」を読み取れません</translation>
    </message>
    <message>
        <source>the name of a field in double quotes</source>
        <translation>二重引用符で囲まれたフィールド名</translation>
    </message>
    <message>
        <source>expected a colon after &quot;%1&quot;, found %2</source>
        <translation>「%1」の後にコロンが必要ですが、%2があります</translation>
    </message>
    <message>
        <source>a text in double quotes</source>
        <translation>二重引用符で囲まれた文字列</translation>
    </message>
    <message>
        <source>expected a number, found %1</source>
        <translation>数値が必要ですが、%1 があります</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>%1 から %2 までの整数</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation>%1が必要ですが、%2があります</translation>
    </message>
    <message>
        <source>expected the end of the text, found %1</source>
        <translation>テキストの終わりが必要ですが、%1があります</translation>
    </message>
    <message>
        <source>a list that begins with &quot;[&quot;</source>
        <translation>「[」で始まるリスト</translation>
    </message>
    <message>
        <source>an object that begins with &quot;{&quot;</source>
        <translation>「{」で始まるオブジェクト</translation>
    </message>
    <message>
        <source>expected a comma or &quot;%1&quot;, found %2</source>
        <translation>コンマまたは「%1」が必要ですが、%2があります</translation>
    </message>
    <message>
        <source>the text is not valid UTF-8</source>
        <translation>文字列が有効な UTF-8 ではありません</translation>
    </message>
    <message>
        <source>the text has no closing double quote</source>
        <translation>文字列を閉じる二重引用符がありません</translation>
    </message>
    <message>
        <source>the text contains a control character</source>
        <translation>文字列に制御文字が含まれています</translation>
    </message>
    <message>
        <source>unknown escape sequence in a text</source>
        <translation>文字列に不明なエスケープシーケンスがあります</translation>
    </message>
    <message>
        <source>the text contains half a surrogate pair</source>
        <translation>文字列にサロゲートペアの片方だけが含まれています</translation>
    </message>
    <message>
        <source>expected four hexadecimal digits after &quot;\u&quot;</source>
        <translation>「\u」の後に 4 桁の 16 進数が必要です</translation>
    </message>
    <message>
        <source>the end of the text</source>
        <translation>テキストの終わり</translation>
    </message>
    <message>
        <source>an unexpected character</source>
        <translation>予期しない文字</translation>
    </message>
    <message>
        <source>a double quote</source>
        <translation>二重引用符</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>null</source>
        <translation>null 値</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; refers to itself</source>
        <translation>機能「%1」が自分自身を参照しています</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; refers to too many others</source>
        <translation>機能「%1」が参照する機能が多すぎます</translation>
    </message>
    <message>
        <source>its feature description is larger than %1 bytes</source>
        <translation>機能記述が %1 バイトを超えています</translation>
    </message>
    <message>
        <source>its feature description is nested too deeply</source>
        <translation>機能記述の入れ子が深すぎます</translation>
    </message>
    <message>
        <source>its feature description defines entities</source>
        <translation>機能記述でエンティティが定義されています</translation>
    </message>
    <message>
        <source>its feature description is damaged in line %1</source>
        <translation>機能記述の %1 行目が破損しています</translation>
    </message>
    <message>
        <source>its feature description describes no features</source>
        <translation>機能記述に機能が記述されていません</translation>
    </message>
    <message>
        <source>its packed feature description is damaged</source>
        <translation>圧縮された機能記述が破損しています</translation>
    </message>
    <message>
        <source>its feature description does not lie in the camera</source>
        <translation>機能記述がカメラ内にありません</translation>
    </message>
    <message>
        <source>its feature description is empty</source>
        <translation>機能記述が空です</translation>
    </message>
    <message>
        <source>its feature description could not be read</source>
        <translation>機能記述を読み取れませんでした</translation>
    </message>
    <message>
        <source>the SHA-256 of the payload &quot;%1&quot; cannot be computed; check the settings of OpenSSL on this computer</source>
        <translation>データファイル「%1」の SHA-256 を計算できません。このコンピューターの OpenSSL の設定を確認してください</translation>
    </message>
    <message>
        <source>Camera description &quot;%1&quot;, %2</source>
        <translation>カメラ記述ファイル「%1」、%2</translation>
    </message>
    <message>
        <source>a second %1; one is allowed</source>
        <translation>2 つ目の %1 です。使用できるのは 1 つだけです</translation>
    </message>
    <message>
        <source>preconditions are checked after a step that changes the camera</source>
        <translation>カメラを変更する手順の後に前提条件を確認しています</translation>
    </message>
    <message>
        <source>the update data is acquired after a FileUpload</source>
        <translation>FileUpload の後に更新データを取得しています</translation>
    </message>
    <message>
        <source>the list has more than %1 items</source>
        <translation>リストの項目数が上限の %1 を超えています</translation>
    </message>
    <message>
        <source>the list must not be empty</source>
        <translation>リストを空にすることはできません</translation>
    </message>
    <message>
        <source>the list has &quot;%1&quot; twice</source>
        <translation>リスト内で「%1」が重複しています</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a version like 2.0.0 or 2.0.0-rc1</source>
        <translation>「%1」は 2.0.0 や 2.0.0-rc1 のようなバージョンではありません</translation>
    </message>
    <message>
        <source>the steps take %1 ms by their estimates; at most %2 are allowed</source>
        <translation>手順の推定時間の合計 (%1 ms) が上限の %2 ms を超えています</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of step; known kinds are %2</source>
        <translation>「%1」は不明な種類の手順です。使用できる種類: %2</translation>
    </message>
    <message>
        <source>the payload is the manifest itself</source>
        <translation>データファイルとしてマニフェスト自体が指定されています</translation>
    </message>
    <message>
        <source>the text has to be %1 hexadecimal digits</source>
        <translation>文字列は %1 桁の 16 進数である必要があります</translation>
    </message>
    <message>
        <source>update.json, %1</source>
        <translation>update.json、%1</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; does not match its SHA-256 in update.json; one of the two was replaced</source>
        <translation>データファイル「%1」が update.json の SHA-256 と一致しません。どちらかが差し替えられています</translation>
    </message>
    <message>
        <source>the payloads have %1 bytes together; at most %2 are allowed</source>
        <translation>データファイルの合計サイズ (%1 バイト) が上限の %2 バイトを超えています</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>%1 行 %2 列: %3</translation>
    </message>
    <message>
        <source>line %1, column %2, field &quot;%3&quot;: %4</source>
        <translation>%1 行 %2 列、フィールド「%3」: %4</translation>
    </message>
    <message>
        <source>unknown field; known here are %1</source>
        <translation>不明なフィールドです。ここで使用できるフィールド: %1</translation>
    </message>
    <message>
        <source>the text must not contain control characters</source>
        <translation>文字列に制御文字を含めることはできません</translation>
    </message>
    <message>
        <source>the text must not begin or end with white space</source>
        <translation>文字列の先頭や末尾に空白を含めることはできません</translation>
    </message>
    <message>
        <source>lists and objects stand in each other more than %1 deep</source>
        <translation>リストとオブジェクトが %1 階層より深く入れ子になっています</translation>
    </message>
    <message>
        <source>there is room for %1 of its %2 bytes</source>
        <translation>%2 バイトのうち %1 バイト分の空きしかありません</translation>
    </message>
    <message>
        <source>The history of updates is not kept: there is no home folder.</source>
        <translation>ホームフォルダーがないため、更新履歴は保存されません。</translation>
    </message>
    <message>
        <source>The history of updates &quot;%1&quot; cannot be written: %2.</source>
        <translation>更新履歴「%1」に書き込めません: %2。</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>expected a time like 2026-01-31T12:00:00Z</source>
        <translation>2026-01-31T12:00:00Z のような日時が必要です</translation>
    </message>
    <message>
        <source>unknown outcome</source>
        <translation>不明な結果です</translation>
    </message>
    <message>
        <source>the update program does not know a camera of this kind</source>
        <translation>更新プログラムがこの種類のカメラに対応していません</translation>
    </message>
    <message>
        <source>the update file is another one than the one that was shown; select it again</source>
        <translation>更新ファイルが表示されたものと異なります。もう一度選択してください</translation>
    </message>
    <message>
        <source>the update file has no such update</source>
        <translation>更新ファイルに該当する更新がありません</translation>
    </message>
    <message>
        <source>the update was canceled</source>
        <translation>更新がキャンセルされました</translation>
    </message>
    <message>
        <source>it did not answer in time; switch it off and on and check its firmware version</source>
        <translation>時間内に応答しませんでした。電源を入れ直し、ファームウェアのバージョンを確認してください</translation>
    </message>
    <message>
        <source>the update program &quot;%1&quot; cannot be started (%2); install the viewer again</source>
        <translation>更新プログラム「%1」を起動できません (%2)。ビューアーを再インストールしてください</translation>
    </message>
    <message>
        <source>the update program ended unexpectedly (signal %1)</source>
        <translation>更新プログラムが予期せず終了しました (シグナル %1)</translation>
    </message>
    <message>
        <source>the update program ended unexpectedly (exit code %1)</source>
        <translation>更新プログラムが予期せず終了しました (終了コード %1)</translation>
    </message>
    <message>
        <source>the update program does not answer any more</source>
        <translation>更新プログラムが応答しなくなりました</translation>
    </message>
    <message>
        <source>the update program says something that is not understood; install the viewer again</source>
        <translation>更新プログラムからの情報を解釈できません。ビューアーを再インストールしてください</translation>
    </message>
    <message>
        <source>it is for the model %1</source>
        <translation>モデル %1 用です</translation>
    </message>
    <message>
        <source>it is for the device version %1, the camera has %2</source>
        <translation>デバイスバージョン %1 用ですが、カメラは %2 です</translation>
    </message>
    <message>
        <source>it needs firmware version %1 or newer, the camera has %2</source>
        <translation>ファームウェアバージョン %1 以降が必要ですが、カメラは %2 です</translation>
    </message>
    <message>
        <source>its images could not be asked for</source>
        <translation>画像を要求できませんでした</translation>
    </message>
    <message>
        <source>the camera program does not know a camera of this kind</source>
        <translation>カメラプログラムはこの種類のカメラに対応していません</translation>
    </message>
    <message>
        <source>the pixel format %1 is unknown</source>
        <translation>ピクセル形式 %1 は不明です</translation>
    </message>
    <message>
        <source>an image of %1 x %2 pixels (%3) cannot be shown</source>
        <translation>%1 x %2 ピクセルの画像 (%3) は表示できません</translation>
    </message>
    <message>
        <source>%1 bytes behind each line of an image are impossible</source>
        <translation>画像の各行の後に %1 バイトあることはありえません</translation>
    </message>
    <message>
        <source>the image has %1 of the %2 bytes that %3 x %4 pixels (%5) need</source>
        <translation>画像には %3 x %4 ピクセル (%5) に必要な %2 バイトのうち %1 バイトしかありません</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; cannot be written (%2)</source>
        <translation>ファイル「%1」に書き込めません (%2)</translation>
    </message>
    <message>
        <source>the camera program says something that is not understood; install the viewer again</source>
        <translation>カメラプログラムから理解できない内容が届きました。ビューアーを再インストールしてください</translation>
    </message>
    <message>
        <source>the memory for its images cannot be used (%1)</source>
        <translation>画像用のメモリを使用できません (%1)</translation>
    </message>
    <message>
        <source>the camera program &quot;%1&quot; cannot be started (%2); install the viewer again</source>
        <translation>カメラプログラム「%1」を起動できません (%2)。ビューアーを再インストールしてください</translation>
    </message>
    <message>
        <source>the camera program ended unexpectedly (signal %1)</source>
        <translation>カメラプログラムが予期せず終了しました (シグナル %1)</translation>
    </message>
    <message>
        <source>the camera program ended unexpectedly (exit code %1)</source>
        <translation>カメラプログラムが予期せず終了しました (終了コード %1)</translation>
    </message>
    <message>
        <source>it belongs to the user %1</source>
        <translation>ユーザー %1 の所有物です</translation>
    </message>
    <message>
        <source>users other than its owner can write to it</source>
        <translation>所有者以外のユーザーが書き込めます</translation>
    </message>
    <message>
        <source>%1 has %2 bytes; at most %3 are allowed</source>
        <translation>%1 のサイズ (%2 バイト) が上限の %3 バイトを超えています</translation>
    </message>
    <message>
        <source>it cannot be signed: %1</source>
        <translation>署名できません: %1</translation>
    </message>
    <message>
        <source>it cannot be copied into the temporary folder</source>
        <translation>一時フォルダーにコピーできません</translation>
    </message>
    <message>
        <source>its RSA key has %1 bits; at least %2 are needed</source>
        <translation>RSA 鍵が %1 ビットです (%2 ビット以上が必要です)</translation>
    </message>
    <message>
        <source>its key is of an unknown kind; known are RSA, EC P-256, EC P-384 and Ed25519</source>
        <translation>鍵の種類が不明です。使用できるのは RSA、EC P-256、EC P-384、Ed25519 です</translation>
    </message>
    <message>
        <source>it is not made for signing code</source>
        <translation>コード署名用ではありません</translation>
    </message>
    <message>
        <source>line %1 is neither &quot;signatures = tell&quot; nor &quot;signatures = require&quot;</source>
        <translation>%1 行目が「signatures = tell」でも「signatures = require」でもありません</translation>
    </message>
    <message>
        <source>Only signed update files can be used, since the file &quot;%1&quot; cannot be believed: %2.</source>
        <translation>ファイル「%1」を信用できないため、署名された更新ファイルだけを使用できます: %2。</translation>
    </message>
    <message>
        <source>%1; only update files of trusted makers can be used here</source>
        <translation>%1。ここでは信頼する作成者の更新ファイルだけを使用できます</translation>
    </message>
    <message>
        <source>it is not signed</source>
        <translation>署名されていません</translation>
    </message>
    <message>
        <source>it is signed by %1</source>
        <translation>%1 が署名しました</translation>
    </message>
    <message>
        <source>its signature is not trusted: %1</source>
        <translation>署名を信頼できません: %1</translation>
    </message>
    <message>
        <source>the certificate of its signer is missing</source>
        <translation>署名者の証明書がありません</translation>
    </message>
    <message>
        <source>its digest is none that is known and strong enough; it has to be SHA-256, SHA-384 or SHA-512</source>
        <translation>ダイジェストが未知か、強度が足りません。SHA-256、SHA-384、SHA-512 のいずれかでなければなりません</translation>
    </message>
    <message>
        <source>it is the signature of another update.json</source>
        <translation>別の update.json の署名です</translation>
    </message>
    <message>
        <source>it was not made with the key of %1, or by an unknown method</source>
        <translation>%1 の鍵による署名ではないか、方式が不明です</translation>
    </message>
    <message>
        <source>it has %1 bytes; at most %2 are allowed</source>
        <translation>サイズ (%1 バイト) が上限の %2 バイトを超えています</translation>
    </message>
    <message>
        <source>it is not a detached CMS signature in DER</source>
        <translation>DER 形式の分離 CMS 署名ではありません</translation>
    </message>
    <message>
        <source>it has more than %1 certificates</source>
        <translation>証明書が %1 個を超えています</translation>
    </message>
    <message>
        <source>it has more than %1 signers</source>
        <translation>署名者が %1 名を超えています</translation>
    </message>
    <message>
        <source>it has a certificate of %1 bytes; at most %2 are allowed</source>
        <translation>証明書のサイズ (%1 バイト) が上限の %2 バイトを超えています</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; has no certificate in PEM</source>
        <translation>ファイル「%1」に PEM 形式の証明書がありません</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; cannot be read: %2</source>
        <translation>ファイル「%1」を読み取れません: %2</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; has no key in PEM, or its passphrase is wrong or missing</source>
        <translation>ファイル「%1」に PEM 形式の鍵がないか、パスフレーズが正しくないか、ありません</translation>
    </message>
    <message>
        <source>the key in &quot;%1&quot; is not that of the certificate</source>
        <translation>「%1」の鍵は証明書の鍵ではありません</translation>
    </message>
    <message>
        <source>OpenSSL cannot sign with this key</source>
        <translation>OpenSSL はこの鍵で署名できません</translation>
    </message>
    <message>
        <source>the certificate of %1 is not valid before %2</source>
        <translation>%1 の証明書は %2 から有効です</translation>
    </message>
    <message>
        <source>the certificate of %1 has expired on %2</source>
        <translation>%1 の証明書は %2 に期限が切れました</translation>
    </message>
    <message>
        <source>%1 is not among the trusted makers</source>
        <translation>%1 は信頼する作成者ではありません</translation>
    </message>
    <message>
        <source>more than %1 certificates lead to a trusted maker</source>
        <translation>信頼する作成者までの証明書が %1 個を超えています</translation>
    </message>
    <message>
        <source>the certificate of %1 has a weak key, or is signed by a weak method</source>
        <translation>%1 の証明書は、鍵か署名方式の強度が足りません</translation>
    </message>
    <message>
        <source>the certificate of %1 cannot be used (%2)</source>
        <translation>%1 の証明書は使用できません (%2)</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; is not read: %2</source>
        <translation>フォルダー「%1」は読み取りません: %2</translation>
    </message>
    <message>
        <source>of the folder &quot;%1&quot; only the first %2 files are read</source>
        <translation>フォルダー「%1」では最初の %2 個のファイルだけを読み取ります</translation>
    </message>
    <message>
        <source>it is no regular file, or has more than %1 bytes</source>
        <translation>通常のファイルでないか、%1 バイトを超えています</translation>
    </message>
    <message>
        <source>it has no certificate and no revocation list in PEM</source>
        <translation>PEM 形式の証明書も失効リストもありません</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; is not read: %2</source>
        <translation>ファイル「%1」は読み取りません: %2</translation>
    </message>
    <message>
        <source>the certificate of %1: %2</source>
        <translation>%1 の証明書: %2</translation>
    </message>
    <message>
        <source>the certificate of %1 was revoked</source>
        <translation>%1 の証明書は失効しています</translation>
    </message>
    <message>
        <source>the revocation list of %1 is out of date; put the current one beside the certificates</source>
        <translation>%1 の失効リストが古くなっています。最新のものを証明書と同じ場所に置いてください</translation>
    </message>
    <message>
        <source>it is not made for time stamps</source>
        <translation>タイムスタンプ用の証明書ではありません</translation>
    </message>
    <message>
        <source>%1; its time stamp is not trusted: %2</source>
        <translation>%1。タイムスタンプは信頼できません: %2</translation>
    </message>
    <message>
        <source>it is none that is understood</source>
        <translation>理解できない形式です</translation>
    </message>
    <message>
        <source>it is of another signature, or its digest is weak</source>
        <translation>別の署名のものか、ダイジェストが弱すぎます</translation>
    </message>
    <message>
        <source>it is from the future; check this computer&apos;s clock</source>
        <translation>未来の時刻です。このコンピューターの時計を確認してください</translation>
    </message>
    <message>
        <source>it is not signed by an authority for time stamps that is trusted</source>
        <translation>信頼されたタイムスタンプ局の署名がありません</translation>
    </message>
    <message>
        <source>all its signatures have time stamps</source>
        <translation>すべての署名にタイムスタンプがあります</translation>
    </message>
    <message>
        <source>the answer has no time stamp</source>
        <translation>応答にタイムスタンプがありません</translation>
    </message>
    <message>
        <source>the time stamp in the answer is of another signature</source>
        <translation>応答のタイムスタンプは別の署名のものです</translation>
    </message>
    <message>
        <source>The series of updates was stopped before this camera; it was not touched and keeps its version</source>
        <translation>このカメラの更新前に、一連の更新が中止されました。このカメラは変更されておらず、バージョンは元のままです</translation>
    </message>
    <message>
        <source>its memory could not be read</source>
        <translation>カメラのメモリを読み取れませんでした</translation>
    </message>
    <message>
        <source>no right to open it: the rule %1 for udev is missing</source>
        <translation>開く権限がありません: udev のルール %1 がありません</translation>
    </message>
    <message>
        <source>you have no right to open it; install the rule %1 for udev and plug the camera in again</source>
        <translation>カメラを開く権限がありません。udev のルール %1 をインストールして、カメラを接続し直してください</translation>
    </message>
</context>
<context>
    <name>Viewer::Update::CUpdateHistory</name>
    <message>
        <source>The history of updates &quot;%1&quot; cannot be shown: %2</source>
        <translation>更新履歴「%1」を表示できません: %2</translation>
    </message>
</context>
<context>
    <name>Viewer::Update::CUpdateHistoryModel</name>
    <message>
        <source>Running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>更新済み</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>From</source>
        <translation>更新前</translation>
    </message>
    <message>
        <source>To</source>
        <translation>更新後</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>所要時間</translation>
    </message>
</context>
</TS>
