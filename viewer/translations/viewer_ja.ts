<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
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
        <translation>画像をフォルダーに録画 (F8)</translation>
    </message>
    <message>
        <source>Stop recording; acquisition goes on (F9)</source>
        <translation>録画を停止 (画像取得は継続) (F9)</translation>
    </message>
    <message>
        <source>Record into folder</source>
        <translation>録画先フォルダー</translation>
    </message>
    <message>
        <source>%1 records into %2.</source>
        <translation>%1 の画像を %2 に録画しています。</translation>
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
        <source>Plug one in and press Refresh.</source>
        <translation>カメラを接続して「再検索」を押してください。</translation>
    </message>
    <message>
        <source>Press Start to see its image.</source>
        <translation>画像を表示するには「開始」を押してください。</translation>
    </message>
    <message>
        <source>Its firmware is being updated.</source>
        <translation>ファームウェアを更新しています。</translation>
    </message>
    <message>
        <source>Another application is using it.</source>
        <translation>別のアプリケーションが使用しています。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CCommandLine</name>
    <message>
        <source>Shows cameras and lets plug-ins work with them.</source>
        <translation>カメラを表示し、プラグインで操作できるようにします。</translation>
    </message>
    <message>
        <source>Simulate the cameras described in &lt;file&gt;.</source>
        <translation>&lt;ファイル&gt; に記述されたカメラをシミュレートします。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Forget the firmware that earlier updates wrote to the simulated cameras.</source>
        <translation>以前の更新でシミュレーションカメラに書き込まれたファームウェアを破棄します。</translation>
    </message>
    <message>
        <source>Let the simulated cameras work &lt;n&gt; times faster than real ones (a demonstration: %1).</source>
        <translation>シミュレーションカメラを実機の &lt;n&gt; 倍の速さで動作させます (デモ: %1)。</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
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
        <source>Use the language en, ko, ja or zh this time.</source>
        <translation>今回使用する言語を en、ko、ja、zh から指定します。</translation>
    </message>
    <message>
        <source>code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Offer the update files in &lt;dir&gt;.</source>
        <translation>&lt;フォルダー&gt; の更新ファイルを提供します。</translation>
    </message>
    <message>
        <source>Walk through the firmware update wizard, save pictures into &lt;dir&gt; and end.</source>
        <translation>ファームウェア更新ウィザードを自動で進め、画面を &lt;フォルダー&gt; に保存して終了します。</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>予期しない引数「%1」です。</translation>
    </message>
    <message>
        <source>The language &quot;%1&quot; is unknown; it can be en, ko, ja or zh.</source>
        <translation>言語「%1」は使用できません。en、ko、ja、zh のいずれかを指定してください。</translation>
    </message>
    <message>
        <source>The folder for the demonstration&apos;s pictures is empty.</source>
        <translation>デモの画面を保存するフォルダーが指定されていません。</translation>
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
        <source>Search the network and USB for cameras this time, by broadcast.</source>
        <translation>今回はネットワーク (ブロードキャスト) と USB のカメラを検索します。</translation>
    </message>
    <message>
        <source>Ask for a camera at &lt;address&gt;, without a broadcast; can be given several times.</source>
        <translation>ブロードキャストを使わずに &lt;アドレス&gt; のカメラを探します。複数回指定できます。</translation>
    </message>
    <message>
        <source>address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no camera address; it has the form 192.168.0.10.</source>
        <translation>「%1」はカメラのアドレスではありません。192.168.0.10 の形式で指定してください。</translation>
    </message>
    <message>
        <source>This viewer was built without the library for cameras on real wires.</source>
        <translation>このビューアーは、実際に接続されたカメラ用のライブラリなしでビルドされています。</translation>
    </message>
    <message>
        <source>No folder is given for the plug-ins.</source>
        <translation>プラグインのフォルダーが指定されていません。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CFileEnd</name>
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
    <name>Viewer::AppCore::CImageView</name>
    <message>
        <source>Image</source>
        <translation>画像</translation>
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
        <source>&amp;Simulation</source>
        <translation>シミュレーション(&amp;S)</translation>
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
        <source>The language changes when the viewer is started the next time.</source>
        <translation>言語は次回のビューアー起動時に変更されます。</translation>
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
        <translation>利用できません</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CSimulationMenu</name>
    <message>
        <source>&amp;Plugged in</source>
        <translation>接続済み(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Busy elsewhere</source>
        <translation>他で使用中(&amp;B)</translation>
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
    <name>Viewer::AppCore::CViewer</name>
    <message>
        <source>Re&amp;fresh</source>
        <translation>再検索(&amp;F)</translation>
    </message>
    <message>
        <source>Look for cameras (F5)</source>
        <translation>カメラを検索 (F5)</translation>
    </message>
    <message>
        <source>&amp;Open sample folder</source>
        <translation>サンプルフォルダーを開く(&amp;O)</translation>
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
        <translation>利用できないプラグインがあります。ヘルプ &gt; プラグイン をご覧ください。</translation>
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
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Nuvex Viewer %1&lt;/h3&gt;&lt;p&gt;Shows cameras and lets plug-ins work with them.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Nuvex Viewer %1&lt;/h3&gt;&lt;p&gt;カメラを表示し、プラグインで操作できるようにします。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Search the &amp;network for cameras</source>
        <translation>ネットワークのカメラを検索(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Logs...</source>
        <translation>ログ(&amp;L)...</translation>
    </message>
    <message>
        <source>%1 Then the viewer closes by itself.</source>
        <translation>%1 その後、ビューアーは自動的に終了します。</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool::CCameraPool</name>
    <message>
        <source>The folder &quot;%1&quot; does not exist; choose another one.</source>
        <translation>フォルダー「%1」は存在しません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Camera %1 does not answer any more; its acquisition has ended.</source>
        <translation>カメラ %1 が応答しなくなったため、画像取得が終了しました。</translation>
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
        <source>Camera %1 is used by another application.</source>
        <translation>カメラ %1 は別のアプリケーションが使用しています。</translation>
    </message>
    <message>
        <source>Camera %1 is being updated.</source>
        <translation>カメラ %1 を更新しています。</translation>
    </message>
    <message>
        <source>Camera %1 is on a real wire; only its firmware can be updated here.</source>
        <translation>カメラ %1 は実際に接続されたカメラのため、ここではファームウェアの更新のみ可能です。</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool::CErrorText</name>
    <message>
        <source>Camera %1: %2</source>
        <translation>カメラ %1: %2</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>メモリが不足しています</translation>
    </message>
    <message>
        <source>The series of updates was stopped before this camera</source>
        <translation>このカメラの更新前に、一連の更新が中止されました</translation>
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
        <source>another application uses it; close that application</source>
        <translation>別のアプリケーションが使用しています。そのアプリケーションを閉じてください</translation>
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
        <translation>ファイル「%1」の書き込みが拒否されました</translation>
    </message>
    <message>
        <source>the data for its file &quot;%1&quot; ended after %2 of %3 bytes (%4)</source>
        <translation>ファイル「%1」のデータが %3 バイト中 %2 バイトで終了しました (%4)</translation>
    </message>
    <message>
        <source>the upload of its file &quot;%1&quot; broke off after %2 of %3 bytes</source>
        <translation>ファイル「%1」のアップロードが %3 バイト中 %2 バイトで中断しました</translation>
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
        <source>the update is not for its model %1</source>
        <translation>この更新はモデル %1 用ではありません</translation>
    </message>
    <message>
        <source>the update is not for its device version %1</source>
        <translation>この更新はデバイスバージョン %1 用ではありません</translation>
    </message>
    <message>
        <source>its firmware version %1 is below %2, from which on the update can be installed; install an older update first</source>
        <translation>ファームウェアバージョン %1 は、この更新に必要な最小バージョン %2 を下回っています。先に古い更新をインストールしてください</translation>
    </message>
    <message>
        <source>a precondition of the update is not met: its feature %1 is %2 instead of %3</source>
        <translation>更新の前提条件が満たされていません: 機能 %1 の値が %3 ではなく %2 です</translation>
    </message>
    <message>
        <source>its feature %1 is %2 instead of %3</source>
        <translation>機能 %1 の値が %3 ではなく %2 です</translation>
    </message>
    <message>
        <source>after the update it reports firmware version %1 instead of %2</source>
        <translation>更新後に報告されたファームウェアバージョンが %2 ではなく %1 です</translation>
    </message>
    <message>
        <source>the file %1 cannot be read; the archive is damaged</source>
        <translation>ファイル %1 を読み取れません。アーカイブが破損しています</translation>
    </message>
    <message>
        <source>the file %1 is damaged and cannot be unpacked</source>
        <translation>ファイル %1 が破損しているため、展開できません</translation>
    </message>
    <message>
        <source>the file %1 unpacks to more bytes than the archive declares</source>
        <translation>ファイル %1 の展開後のサイズが、アーカイブの記載より大きくなっています</translation>
    </message>
    <message>
        <source>the payload %1 does not match its SHA-256 in update.json</source>
        <translation>データ %1 が update.json の SHA-256 と一致しません</translation>
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
        <source>update.json lies in a folder of the archive (%1); it has to lie at the top</source>
        <translation>update.json がアーカイブ内のフォルダーにあります (%1)。最上位に置く必要があります</translation>
    </message>
    <message>
        <source>there is no update.json in the archive</source>
        <translation>アーカイブに update.json がありません</translation>
    </message>
    <message>
        <source>update.json has %1 bytes; %2 are allowed</source>
        <translation>update.json のサイズは %1 バイトですが、%2 バイトまでしか使用できません</translation>
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
        <source>the file has %1 bytes; %2 are allowed</source>
        <translation>ファイルのサイズは %1 バイトですが、%2 バイトまでしか使用できません</translation>
    </message>
    <message>
        <source>the file cannot be opened; too many files are open</source>
        <translation>開いているファイルが多すぎるため、ファイルを開けません</translation>
    </message>
    <message>
        <source>the archive has %1 entries; %2 are allowed</source>
        <translation>アーカイブの項目数は %1 ですが、%2 までしか使用できません</translation>
    </message>
    <message>
        <source>the archive has two entries named %1</source>
        <translation>アーカイブに %1 という名前の項目が 2 つあります</translation>
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
        <source>the entry %1 of the archive is damaged</source>
        <translation>アーカイブの項目 %1 が破損しています</translation>
    </message>
    <message>
        <source>the entry %1 is encrypted; pack it without a password</source>
        <translation>項目 %1 は暗号化されています。パスワードなしで圧縮してください</translation>
    </message>
    <message>
        <source>the entry %1 is compressed by a method other than Deflate</source>
        <translation>項目 %1 は Deflate 以外の方式で圧縮されています</translation>
    </message>
    <message>
        <source>the payload %1 is missing in the archive</source>
        <translation>アーカイブにデータ %1 がありません</translation>
    </message>
    <message>
        <source>the payload %1 is too short: it has %2 bytes where update.json says %3</source>
        <translation>データ %1 が短すぎます。update.json では %3 バイトですが、実際は %2 バイトです</translation>
    </message>
    <message>
        <source>the payload %1 is too long: it has %2 bytes where update.json says %3</source>
        <translation>データ %1 が長すぎます。update.json では %3 バイトですが、実際は %2 バイトです</translation>
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
        <translation>制御が失われました。カメラを使用している他のアプリケーションを閉じてください</translation>
    </message>
    <message>
        <source>it is busy; try again later</source>
        <translation>ビジー状態です。しばらくしてからもう一度お試しください</translation>
    </message>
    <message>
        <source>it refused (%1)</source>
        <translation>拒否されました (%1)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>its feature %1 could not be read</source>
        <translation>機能 %1 を読み取れませんでした</translation>
    </message>
    <message>
        <source>its feature %1 could not be set to &quot;%2&quot;</source>
        <translation>機能 %1 を「%2」に設定できませんでした</translation>
    </message>
    <message>
        <source>it has no feature %1; the update file may be for another model</source>
        <translation>機能 %1 がありません。更新ファイルが別のモデル用の可能性があります</translation>
    </message>
    <message>
        <source>its feature %1 is no command</source>
        <translation>機能 %1 はコマンドではありません</translation>
    </message>
    <message>
        <source>its command %1 could not be executed</source>
        <translation>コマンド %1 を実行できませんでした</translation>
    </message>
    <message>
        <source>the end of its command %1 could not be awaited</source>
        <translation>コマンド %1 の完了を確認できませんでした</translation>
    </message>
    <message>
        <source>its feature %1 is no register</source>
        <translation>機能 %1 はレジスターではありません</translation>
    </message>
    <message>
        <source>its memory could not be written</source>
        <translation>メモリーに書き込めませんでした</translation>
    </message>
    <message>
        <source>opening its file &quot;%1&quot; failed</source>
        <translation>ファイル「%1」を開けませんでした</translation>
    </message>
    <message>
        <source>writing its file &quot;%1&quot; failed at byte %2</source>
        <translation>ファイル「%1」の %2 バイト目で書き込みに失敗しました</translation>
    </message>
    <message>
        <source>closing its file &quot;%1&quot; failed</source>
        <translation>ファイル「%1」を閉じられませんでした</translation>
    </message>
    <message>
        <source>its buffer for files is empty</source>
        <translation>ファイル用のバッファーが空です</translation>
    </message>
    <message>
        <source>it took %1 of %2 bytes</source>
        <translation>%2 バイト中 %1 バイトしか受け付けませんでした</translation>
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
        <source>there is no way to its address; check the network settings of this computer</source>
        <translation>カメラのアドレスに到達できません。このコンピューターのネットワーク設定を確認してください</translation>
    </message>
    <message>
        <source>it could not be opened</source>
        <translation>カメラを開けませんでした</translation>
    </message>
    <message>
        <source>it is in use by another application; close that one and start the update again</source>
        <translation>別のアプリケーションが使用しています。そのアプリケーションを閉じてから、更新をもう一度開始してください</translation>
    </message>
    <message>
        <source>its command &quot;%1&quot; took too long; switch the camera off and on and repeat the update</source>
        <translation>コマンド「%1」に時間がかかりすぎました。カメラの電源を入れ直してから、更新をやり直してください</translation>
    </message>
    <message>
        <source>the upload of its file &quot;%1&quot; took too long; it was broken off after %2 of %3 bytes</source>
        <translation>ファイル「%1」のアップロードに時間がかかりすぎたため、%3 バイト中 %2 バイトで中断されました</translation>
    </message>
    <message>
        <source>it did not come back from its reset; switch it off and on and look for its firmware version</source>
        <translation>リセット後に復帰しませんでした。電源を入れ直して、ファームウェアバージョンを確認してください</translation>
    </message>
    <message>
        <source>it did not restart; switch it off and on and look for its firmware version</source>
        <translation>再起動しませんでした。電源を入れ直して、ファームウェアバージョンを確認してください</translation>
    </message>
    <message>
        <source>same serial number as another camera</source>
        <translation>シリアル番号が別のカメラと同じ</translation>
    </message>
    <message>
        <source>another camera has the same vendor, model and serial number; connect only one of them and look for cameras again</source>
        <translation>ベンダー、モデル、シリアル番号が同じカメラがもう 1 台あります。どちらか 1 台だけを接続して、もう一度カメラを検索してください</translation>
    </message>
    <message>
        <source>another camera, %1, answers at its address; look for cameras again</source>
        <translation>そのアドレスでは別のカメラ %1 が応答しています。もう一度カメラを検索してください</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool::CFrameStream</name>
    <message>
        <source>the file &quot;%1&quot; cannot be written (%2)</source>
        <translation>ファイル「%1」に書き込めません (%2)</translation>
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
        <translation>取得中</translation>
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
        <translation>他で使用中</translation>
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
</context>
<context>
    <name>Viewer::CameraSelector::CCameraSelectorView</name>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
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
        <source>It needs &quot;%1&quot; %2, which is not there.</source>
        <translation>「%1」%2 が必要ですが、ありません。</translation>
    </message>
    <message>
        <source>It is in a circle of dependencies: %1.</source>
        <translation>依存関係が循環しています: %1。</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot; %2, but the one that is there has version %3 and is compatible down to %4.</source>
        <translation>「%1」%2 が必要ですが、現在のバージョンは %3 で、%4 以降とのみ互換性があります。</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot;, which could not be started.</source>
        <translation>「%1」が必要ですが、開始できませんでした。</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CPathTrust</name>
    <message>
        <source>it belongs to the user %1</source>
        <translation>ユーザー %1 の所有物です</translation>
    </message>
    <message>
        <source>users other than its owner can write to it</source>
        <translation>所有者以外のユーザーが書き込めます</translation>
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
</context>
</TS>
