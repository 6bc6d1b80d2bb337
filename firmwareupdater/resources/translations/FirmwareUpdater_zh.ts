<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en">
<context>
    <name>CameraSelectionDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>固件更新工具</translation>
    </message>
    <message>
        <source>Step 1: Select cameras</source>
        <translation>步骤 1：选择相机</translation>
    </message>
    <message>
        <source>Not all Korvane camera models can be updated using the Firmware Updater.</source>
        <translation>并非所有 Korvane 相机型号都能使用固件更新工具进行更新。</translation>
    </message>
    <message>
        <source>Refresh camera list</source>
        <translation>刷新相机列表</translation>
    </message>
</context>
<context>
    <name>FirmwareUpdateDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>固件更新工具</translation>
    </message>
    <message>
        <source>Step 4: Updating firmware</source>
        <translation>步骤 4：正在更新固件</translation>
    </message>
    <message>
        <source>Cameras:</source>
        <translation>相机：</translation>
    </message>
    <message>
        <source>Be aware that disconnecting the power supply during the update process may damage the camera.</source>
        <translation>请注意，在更新过程中断开电源可能会损坏相机。</translation>
    </message>
    <message>
        <source>The update process may take a while.&lt;br&gt;If you want to stop the update process before it has completed, click &lt;b&gt;Cancel&lt;/b&gt;. The update of the camera currently being updated will be completed, and then the update wizard will close.</source>
        <translation>更新过程可能需要一些时间。&lt;br&gt;如果要提前停止更新，请单击&lt;b&gt;取消&lt;/b&gt;。当前相机的更新会继续完成，然后更新向导将关闭。</translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation>更新进度</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::CFirmwareUpdaterPlugin</name>
    <message>
        <source>Firmware Updater</source>
        <translation>固件更新工具</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::Service::CFirmwareUpdaterService</name>
    <message>
        <source>DEBUG</source>
        <translation>调试</translation>
    </message>
    <message>
        <source>INFO</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>WARNING</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>CRITICAL</source>
        <translation>严重</translation>
    </message>
    <message>
        <source>Fimware Updater</source>
        <translation>固件更新工具</translation>
    </message>
    <message>
        <source>&lt;p&gt;To use the Firmware Updater, you have to stop continuous image acquisition as well as any recordings.&lt;/p&gt;Do you want to stop all cameras and start using the Firmware Updater?</source>
        <translation>&lt;p&gt;要使用固件更新工具，必须停止连续图像采集以及所有录制。&lt;/p&gt;是否停止所有相机并开始使用固件更新工具？</translation>
    </message>
    <message>
        <source>Update files</source>
        <translation>更新文件</translation>
    </message>
    <message>
        <source>https://support.korvane.example/en/</source>
        <translation>https://support.korvane.example/zh/</translation>
    </message>
    <message>
        <source>Internal error: Firmware update is missing and could not be applied.</source>
        <translation>内部错误：缺少固件更新，无法应用。</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::State::CFirmwareUpdatingStep</name>
    <message>
        <source>Firmware updates have been canceled by the user.</source>
        <translation>用户已取消固件更新。</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CCameraSelectionDialog</name>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CFirmwareUpdateDialog</name>
    <message>
        <source>Camera %1 of %2</source>
        <translation>第 %1 台相机，共 %2 台</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CResultSummaryDialog</name>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Failed updates:</source>
        <translation>失败的更新：</translation>
    </message>
    <message>
        <source>Successful updates:</source>
        <translation>成功的更新：</translation>
    </message>
    <message>
        <source>Skipped updates:</source>
        <translation>跳过的更新：</translation>
    </message>
    <message>
        <source>An error has occurred during the update. The subsequent updates have been skipped.&lt;br&gt; Error message:</source>
        <translation>更新过程中发生错误，已跳过后续更新。&lt;br&gt; 错误消息：</translation>
    </message>
    <message>
        <source>For more information, see the &lt;a href=&quot;%1&quot;&gt;log file&lt;/a&gt;. If you require assistance, contact the &lt;a href=&quot;%2&quot;&gt;Korvane Support&lt;/a&gt;.</source>
        <translation>有关详细信息，请参阅&lt;a href=&quot;%1&quot;&gt;日志文件&lt;/a&gt;。如需协助，请联系 &lt;a href=&quot;%2&quot;&gt;Korvane 技术支持&lt;/a&gt;。</translation>
    </message>
    <message>
        <source>See &lt;a href=&quot;%1&quot;&gt;log file&lt;/a&gt; for more information.</source>
        <translation>有关详细信息，请参阅&lt;a href=&quot;%1&quot;&gt;日志文件&lt;/a&gt;。</translation>
    </message>
    <message>
        <source>An error has occurred during the update.&lt;br&gt;Error message: %1.</source>
        <translation>更新过程中发生错误。&lt;br&gt;错误消息：%1。</translation>
    </message>
    <message>
        <source>An error has occurred during the update. The subsequent updates have been skipped.&lt;br&gt;Error message: %1.</source>
        <translation>更新过程中发生错误，已跳过后续更新。&lt;br&gt;错误消息：%1。</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CTreeViewDetailsDelegate</name>
    <message>
        <source>Upgrade</source>
        <translation>升级</translation>
    </message>
    <message>
        <source>Downgrade</source>
        <translation>降级</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>重新安装</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
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
        <translation>失败</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>已跳过</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CTreeViewStatusDelegate</name>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>正在更新</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>已完成</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CUpdateDialogBase</name>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CUpdateSelectionDialog</name>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>To update the firmware of your cameras, you need a firmware update file from &lt;a href=&quot;%1&quot;&gt;Korvane Support&lt;/a&gt;.</source>
        <translation>要更新相机的固件，您需要从 &lt;a href=&quot;%1&quot;&gt;Korvane 技术支持&lt;/a&gt;获取固件更新文件。</translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation>未选择文件</translation>
    </message>
    <message>
        <source>No details available</source>
        <translation>无详细信息</translation>
    </message>
    <message>
        <source>Firmware Release Notes</source>
        <translation>固件发行说明</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CUpdateSummaryDialog</name>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cameras</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Current Firmware</source>
        <translation>当前固件</translation>
    </message>
    <message>
        <source>Firmware Selected</source>
        <translation>所选固件</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
</context>
<context>
    <name>ResultSummaryDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>固件更新工具</translation>
    </message>
    <message>
        <source>Step 5: Result summary</source>
        <translation>步骤 5：结果摘要</translation>
    </message>
    <message>
        <source>See log file for more information.</source>
        <translation>有关详细信息，请参阅日志文件。</translation>
    </message>
    <message>
        <source>Click &lt;b&gt;Next&lt;/b&gt; to repeat the update process.</source>
        <translation>单击&lt;b&gt;下一步&lt;/b&gt;可重新执行更新。</translation>
    </message>
    <message>
        <source>For more information, see the log file. If you require assistance, contact the Korvane Support.</source>
        <translation>有关详细信息，请参阅日志文件。如需协助，请联系 Korvane 技术支持。</translation>
    </message>
</context>
<context>
    <name>UpdateSelectionDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>固件更新工具</translation>
    </message>
    <message>
        <source>Step 2: Select update file</source>
        <translation>步骤 2：选择更新文件</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Update details</source>
        <translation>更新详细信息</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>说明：</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>版本：</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>发行说明：</translation>
    </message>
    <message>
        <source>The firmware update file selected is not compatible with your camera model.</source>
        <translation>所选固件更新文件与您的相机型号不兼容。</translation>
    </message>
    <message>
        <source>To update the firmware of your cameras, you need a firmware update file from Korvane Support.</source>
        <translation>要更新相机的固件，您需要从 Korvane 技术支持获取固件更新文件。</translation>
    </message>
    <message>
        <source>Update file</source>
        <translation>更新文件</translation>
    </message>
</context>
<context>
    <name>UpdateSummaryDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>固件更新工具</translation>
    </message>
    <message>
        <source>Step 3: Update Summary</source>
        <translation>步骤 3：更新摘要</translation>
    </message>
    <message>
        <source>Be aware that with the currently selected firmware versions some cameras will be downgraded.</source>
        <translation>请注意，使用当前所选的固件版本时，部分相机将被降级。</translation>
    </message>
    <message>
        <source>The firmware versions selected for some cameras are identical with the firmware versions currently installed on the cameras. By clicking &lt;b&gt;Next&lt;/b&gt; you will reinstall the same firmware version.</source>
        <translation>为部分相机选择的固件版本与其当前安装的版本相同。单击&lt;b&gt;下一步&lt;/b&gt;将重新安装相同的固件版本。</translation>
    </message>
    <message>
        <source>Click &lt;b&gt;Next&lt;/b&gt; to start the update. The update process may take a while.</source>
        <translation>单击&lt;b&gt;下一步&lt;/b&gt;开始更新。更新过程可能需要一些时间。</translation>
    </message>
    <message>
        <source>Be aware that disconnecting the power supply during the update process may damage the camera.</source>
        <translation>请注意，在更新过程中断开电源可能会损坏相机。</translation>
    </message>
</context>
</TS>
