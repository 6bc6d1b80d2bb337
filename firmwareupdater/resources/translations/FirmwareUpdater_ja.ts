<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CameraSelectionDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>ファームウェア更新ツール</translation>
    </message>
    <message>
        <source>Step 1: Select cameras</source>
        <translation>ステップ 1: カメラの選択</translation>
    </message>
    <message>
        <source>Not all Korvane camera models can be updated using the Firmware Updater.</source>
        <translation>Korvane のカメラには、ファームウェア更新ツールで更新できないモデルもあります。</translation>
    </message>
    <message>
        <source>Refresh camera list</source>
        <translation>カメラの再検索</translation>
    </message>
</context>
<context>
    <name>FirmwareUpdateDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>ファームウェア更新ツール</translation>
    </message>
    <message>
        <source>Step 4: Updating firmware</source>
        <translation>ステップ 4: ファームウェアの更新中</translation>
    </message>
    <message>
        <source>Cameras:</source>
        <translation>カメラ:</translation>
    </message>
    <message>
        <source>Be aware that disconnecting the power supply during the update process may damage the camera.</source>
        <translation>更新中に電源が切れると、カメラが故障するおそれがありますのでご注意ください。</translation>
    </message>
    <message>
        <source>The update process may take a while.&lt;br&gt;If you want to stop the update process before it has completed, click &lt;b&gt;Cancel&lt;/b&gt;. The update of the camera currently being updated will be completed, and then the update wizard will close.</source>
        <translation>更新には時間がかかる場合があります。&lt;br&gt;完了前に更新を中止するには、&lt;b&gt;キャンセル&lt;/b&gt;をクリックしてください。現在更新中のカメラの更新が完了した後、更新ウィザードが閉じます。</translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation>更新の進行状況</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::CFirmwareUpdaterPlugin</name>
    <message>
        <source>Firmware Updater</source>
        <translation>ファームウェア更新ツール</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::Service::CFirmwareUpdaterService</name>
    <message>
        <source>DEBUG</source>
        <translation>デバッグ</translation>
    </message>
    <message>
        <source>INFO</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>WARNING</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>CRITICAL</source>
        <translation>重大</translation>
    </message>
    <message>
        <source>Fimware Updater</source>
        <translation>ファームウェア更新ツール</translation>
    </message>
    <message>
        <source>&lt;p&gt;To use the Firmware Updater, you have to stop continuous image acquisition as well as any recordings.&lt;/p&gt;Do you want to stop all cameras and start using the Firmware Updater?</source>
        <translation>&lt;p&gt;ファームウェア更新ツールを使用するには、連続画像取得とすべての録画を停止する必要があります。&lt;/p&gt;すべてのカメラを停止して、ファームウェア更新ツールを起動しますか？</translation>
    </message>
    <message>
        <source>Update files</source>
        <translation>更新ファイル</translation>
    </message>
    <message>
        <source>https://support.korvane.example/en/</source>
        <translation>https://support.korvane.example/ja/</translation>
    </message>
    <message>
        <source>Internal error: Firmware update is missing and could not be applied.</source>
        <translation>内部エラー: ファームウェアの更新データが見つからないため、適用できませんでした。</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::State::CFirmwareUpdatingStep</name>
    <message>
        <source>Firmware updates have been canceled by the user.</source>
        <translation>ユーザーがファームウェアの更新をキャンセルしました。</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CCameraSelectionDialog</name>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CFirmwareUpdateDialog</name>
    <message>
        <source>Camera %1 of %2</source>
        <translation>%2 台中 %1 台目のカメラ</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CResultSummaryDialog</name>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Failed updates:</source>
        <translation>失敗した更新:</translation>
    </message>
    <message>
        <source>Successful updates:</source>
        <translation>成功した更新:</translation>
    </message>
    <message>
        <source>Skipped updates:</source>
        <translation>スキップした更新:</translation>
    </message>
    <message>
        <source>An error has occurred during the update. The subsequent updates have been skipped.&lt;br&gt; Error message:</source>
        <translation>更新中にエラーが発生しました。以降の更新はスキップされました。&lt;br&gt; エラーメッセージ:</translation>
    </message>
    <message>
        <source>For more information, see the &lt;a href=&quot;%1&quot;&gt;log file&lt;/a&gt;. If you require assistance, contact the &lt;a href=&quot;%2&quot;&gt;Korvane Support&lt;/a&gt;.</source>
        <translation>詳細は&lt;a href=&quot;%1&quot;&gt;ログファイル&lt;/a&gt;をご覧ください。サポートが必要な場合は、&lt;a href=&quot;%2&quot;&gt;Korvane サポート&lt;/a&gt;にお問い合わせください。</translation>
    </message>
    <message>
        <source>See &lt;a href=&quot;%1&quot;&gt;log file&lt;/a&gt; for more information.</source>
        <translation>詳細は&lt;a href=&quot;%1&quot;&gt;ログファイル&lt;/a&gt;をご覧ください。</translation>
    </message>
    <message>
        <source>An error has occurred during the update.&lt;br&gt;Error message: %1.</source>
        <translation>更新中にエラーが発生しました。&lt;br&gt;エラーメッセージ: %1。</translation>
    </message>
    <message>
        <source>An error has occurred during the update. The subsequent updates have been skipped.&lt;br&gt;Error message: %1.</source>
        <translation>更新中にエラーが発生しました。以降の更新はスキップされました。&lt;br&gt;エラーメッセージ: %1。</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CTreeViewDetailsDelegate</name>
    <message>
        <source>Upgrade</source>
        <translation>アップグレード</translation>
    </message>
    <message>
        <source>Downgrade</source>
        <translation>ダウングレード</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>再インストール</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CTreeViewResultDelegate</name>
    <message>
        <source>OK</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>スキップ</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CTreeViewStatusDelegate</name>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>更新中</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CUpdateDialogBase</name>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CUpdateSelectionDialog</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>To update the firmware of your cameras, you need a firmware update file from &lt;a href=&quot;%1&quot;&gt;Korvane Support&lt;/a&gt;.</source>
        <translation>ファームウェアを更新するには、&lt;a href=&quot;%1&quot;&gt;Korvane サポート&lt;/a&gt;が提供する更新ファイルが必要です。</translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation>ファイルが選択されていません</translation>
    </message>
    <message>
        <source>No details available</source>
        <translation>詳細情報はありません</translation>
    </message>
    <message>
        <source>Firmware Release Notes</source>
        <translation>ファームウェアのリリースノート</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CUpdateSummaryDialog</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Current Firmware</source>
        <translation>現在のバージョン</translation>
    </message>
    <message>
        <source>Firmware Selected</source>
        <translation>選択バージョン</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
</context>
<context>
    <name>ResultSummaryDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>ファームウェア更新ツール</translation>
    </message>
    <message>
        <source>Step 5: Result summary</source>
        <translation>ステップ 5: 結果の概要</translation>
    </message>
    <message>
        <source>See log file for more information.</source>
        <translation>詳細はログファイルをご覧ください。</translation>
    </message>
    <message>
        <source>Click &lt;b&gt;Next&lt;/b&gt; to repeat the update process.</source>
        <translation>更新をもう一度行うには、&lt;b&gt;次へ&lt;/b&gt;をクリックしてください。</translation>
    </message>
    <message>
        <source>For more information, see the log file. If you require assistance, contact the Korvane Support.</source>
        <translation>詳細はログファイルをご覧ください。サポートが必要な場合は、Korvane サポートにお問い合わせください。</translation>
    </message>
</context>
<context>
    <name>UpdateSelectionDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>ファームウェア更新ツール</translation>
    </message>
    <message>
        <source>Step 2: Select update file</source>
        <translation>ステップ 2: 更新ファイルの選択</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>参照</translation>
    </message>
    <message>
        <source>Update details</source>
        <translation>更新の詳細</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>説明:</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>バージョン:</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>リリースノート:</translation>
    </message>
    <message>
        <source>The firmware update file selected is not compatible with your camera model.</source>
        <translation>選択したファームウェア更新ファイルは、お使いのカメラモデルに対応していません。</translation>
    </message>
    <message>
        <source>To update the firmware of your cameras, you need a firmware update file from Korvane Support.</source>
        <translation>ファームウェアを更新するには、Korvane サポートが提供する更新ファイルが必要です。</translation>
    </message>
    <message>
        <source>Update file</source>
        <translation>更新ファイル</translation>
    </message>
</context>
<context>
    <name>UpdateSummaryDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>ファームウェア更新ツール</translation>
    </message>
    <message>
        <source>Step 3: Update Summary</source>
        <translation>ステップ 3: 更新の概要</translation>
    </message>
    <message>
        <source>Be aware that with the currently selected firmware versions some cameras will be downgraded.</source>
        <translation>現在選択されているファームウェアバージョンでは、一部のカメラがダウングレードされますのでご注意ください。</translation>
    </message>
    <message>
        <source>The firmware versions selected for some cameras are identical with the firmware versions currently installed on the cameras. By clicking &lt;b&gt;Next&lt;/b&gt; you will reinstall the same firmware version.</source>
        <translation>一部のカメラでは、選択したバージョンが現在インストールされているバージョンと同じです。&lt;b&gt;次へ&lt;/b&gt;をクリックすると、同じファームウェアバージョンが再インストールされます。</translation>
    </message>
    <message>
        <source>Click &lt;b&gt;Next&lt;/b&gt; to start the update. The update process may take a while.</source>
        <translation>更新を開始するには、&lt;b&gt;次へ&lt;/b&gt;をクリックしてください。更新には時間がかかる場合があります。</translation>
    </message>
    <message>
        <source>Be aware that disconnecting the power supply during the update process may damage the camera.</source>
        <translation>更新中に電源が切れると、カメラが故障するおそれがありますのでご注意ください。</translation>
    </message>
</context>
</TS>
