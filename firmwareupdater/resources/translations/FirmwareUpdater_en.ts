<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CameraSelectionDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>Firmware Updater</translation>
    </message>
    <message>
        <source>Step 1: Select cameras</source>
        <translation>Step 1: Select cameras</translation>
    </message>
    <message>
        <source>Not all Korvane camera models can be updated using the Firmware Updater.</source>
        <translation>Not all Korvane camera models can be updated using the Firmware Updater.</translation>
    </message>
    <message>
        <source>Refresh camera list</source>
        <translation>Refresh camera list</translation>
    </message>
</context>
<context>
    <name>FirmwareUpdateDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>Firmware Updater</translation>
    </message>
    <message>
        <source>Step 4: Updating firmware</source>
        <translation>Step 4: Updating firmware</translation>
    </message>
    <message>
        <source>Cameras:</source>
        <translation>Cameras:</translation>
    </message>
    <message>
        <source>Be aware that disconnecting the power supply during the update process may damage the camera.</source>
        <translation>Be aware that disconnecting the power supply during the update process may damage the camera.</translation>
    </message>
    <message>
        <source>The update process may take a while.&lt;br&gt;If you want to stop the update process before it has completed, click &lt;b&gt;Cancel&lt;/b&gt;. The update of the camera currently being updated will be completed, and then the update wizard will close.</source>
        <translation>The update process may take a while.&lt;br&gt;If you want to stop the update process before it has completed, click &lt;b&gt;Cancel&lt;/b&gt;. The update of the camera currently being updated will be completed, and then the update wizard will close.</translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation>Update progress</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::CFirmwareUpdaterPlugin</name>
    <message>
        <source>Firmware Updater</source>
        <translation>Firmware Updater</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::Service::CFirmwareUpdaterService</name>
    <message>
        <source>DEBUG</source>
        <translation>DEBUG</translation>
    </message>
    <message>
        <source>INFO</source>
        <translation>INFO</translation>
    </message>
    <message>
        <source>WARNING</source>
        <translation>WARNING</translation>
    </message>
    <message>
        <source>CRITICAL</source>
        <translation>CRITICAL</translation>
    </message>
    <message>
        <source>Fimware Updater</source>
        <translation>Fimware Updater</translation>
    </message>
    <message>
        <source>&lt;p&gt;To use the Firmware Updater, you have to stop continuous image acquisition as well as any recordings.&lt;/p&gt;Do you want to stop all cameras and start using the Firmware Updater?</source>
        <translation>&lt;p&gt;To use the Firmware Updater, you have to stop continuous image acquisition as well as any recordings.&lt;/p&gt;Do you want to stop all cameras and start using the Firmware Updater?</translation>
    </message>
    <message>
        <source>Update files</source>
        <translation>Update files</translation>
    </message>
    <message>
        <source>https://support.korvane.example/en/</source>
        <translation>https://support.korvane.example/en/</translation>
    </message>
    <message>
        <source>Internal error: Firmware update is missing and could not be applied.</source>
        <translation>Internal error: Firmware update is missing and could not be applied.</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::State::CFirmwareUpdatingStep</name>
    <message>
        <source>Firmware updates have been canceled by the user.</source>
        <translation>Firmware updates have been canceled by the user.</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CCameraSelectionDialog</name>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CFirmwareUpdateDialog</name>
    <message>
        <source>Camera %1 of %2</source>
        <translation>Camera %1 of %2</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CResultSummaryDialog</name>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Failed updates:</source>
        <translation>Failed updates:</translation>
    </message>
    <message>
        <source>Successful updates:</source>
        <translation>Successful updates:</translation>
    </message>
    <message>
        <source>Skipped updates:</source>
        <translation>Skipped updates:</translation>
    </message>
    <message>
        <source>An error has occurred during the update. The subsequent updates have been skipped.&lt;br&gt; Error message:</source>
        <translation>An error has occurred during the update. The subsequent updates have been skipped.&lt;br&gt; Error message:</translation>
    </message>
    <message>
        <source>For more information, see the &lt;a href=&quot;%1&quot;&gt;log file&lt;/a&gt;. If you require assistance, contact the &lt;a href=&quot;%2&quot;&gt;Korvane Support&lt;/a&gt;.</source>
        <translation>For more information, see the &lt;a href=&quot;%1&quot;&gt;log file&lt;/a&gt;. If you require assistance, contact the &lt;a href=&quot;%2&quot;&gt;Korvane Support&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>See &lt;a href=&quot;%1&quot;&gt;log file&lt;/a&gt; for more information.</source>
        <translation>See &lt;a href=&quot;%1&quot;&gt;log file&lt;/a&gt; for more information.</translation>
    </message>
    <message>
        <source>An error has occurred during the update.&lt;br&gt;Error message: %1.</source>
        <translation>An error has occurred during the update.&lt;br&gt;Error message: %1.</translation>
    </message>
    <message>
        <source>An error has occurred during the update. The subsequent updates have been skipped.&lt;br&gt;Error message: %1.</source>
        <translation>An error has occurred during the update. The subsequent updates have been skipped.&lt;br&gt;Error message: %1.</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CTreeViewDetailsDelegate</name>
    <message>
        <source>Upgrade</source>
        <translation>Upgrade</translation>
    </message>
    <message>
        <source>Downgrade</source>
        <translation>Downgrade</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>Reinstall</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unknown</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CTreeViewResultDelegate</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Skipped</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CTreeViewStatusDelegate</name>
    <message>
        <source>Waiting</source>
        <translation>Waiting</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>Updating</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Complete</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CUpdateDialogBase</name>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CUpdateSelectionDialog</name>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>To update the firmware of your cameras, you need a firmware update file from &lt;a href=&quot;%1&quot;&gt;Korvane Support&lt;/a&gt;.</source>
        <translation>To update the firmware of your cameras, you need a firmware update file from &lt;a href=&quot;%1&quot;&gt;Korvane Support&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation>No file selected</translation>
    </message>
    <message>
        <source>No details available</source>
        <translation>No details available</translation>
    </message>
    <message>
        <source>Firmware Release Notes</source>
        <translation>Firmware Release Notes</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CUpdateSummaryDialog</name>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cameras</source>
        <translation>Cameras</translation>
    </message>
    <message>
        <source>Current Firmware</source>
        <translation>Current Firmware</translation>
    </message>
    <message>
        <source>Firmware Selected</source>
        <translation>Firmware Selected</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
</context>
<context>
    <name>ResultSummaryDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>Firmware Updater</translation>
    </message>
    <message>
        <source>Step 5: Result summary</source>
        <translation>Step 5: Result summary</translation>
    </message>
    <message>
        <source>See log file for more information.</source>
        <translation>See log file for more information.</translation>
    </message>
    <message>
        <source>Click &lt;b&gt;Next&lt;/b&gt; to repeat the update process.</source>
        <translation>Click &lt;b&gt;Next&lt;/b&gt; to repeat the update process.</translation>
    </message>
    <message>
        <source>For more information, see the log file. If you require assistance, contact the Korvane Support.</source>
        <translation>For more information, see the log file. If you require assistance, contact the Korvane Support.</translation>
    </message>
</context>
<context>
    <name>UpdateSelectionDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>Firmware Updater</translation>
    </message>
    <message>
        <source>Step 2: Select update file</source>
        <translation>Step 2: Select update file</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Browse</translation>
    </message>
    <message>
        <source>Update details</source>
        <translation>Update details</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Description:</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Version:</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>Release Notes:</translation>
    </message>
    <message>
        <source>The firmware update file selected is not compatible with your camera model.</source>
        <translation>The firmware update file selected is not compatible with your camera model.</translation>
    </message>
    <message>
        <source>To update the firmware of your cameras, you need a firmware update file from Korvane Support.</source>
        <translation>To update the firmware of your cameras, you need a firmware update file from Korvane Support.</translation>
    </message>
    <message>
        <source>Update file</source>
        <translation>Update file</translation>
    </message>
</context>
<context>
    <name>UpdateSummaryDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>Firmware Updater</translation>
    </message>
    <message>
        <source>Step 3: Update Summary</source>
        <translation>Step 3: Update Summary</translation>
    </message>
    <message>
        <source>Be aware that with the currently selected firmware versions some cameras will be downgraded.</source>
        <translation>Be aware that with the currently selected firmware versions some cameras will be downgraded.</translation>
    </message>
    <message>
        <source>The firmware versions selected for some cameras are identical with the firmware versions currently installed on the cameras. By clicking &lt;b&gt;Next&lt;/b&gt; you will reinstall the same firmware version.</source>
        <translation>The firmware versions selected for some cameras are identical with the firmware versions currently installed on the cameras. By clicking &lt;b&gt;Next&lt;/b&gt; you will reinstall the same firmware version.</translation>
    </message>
    <message>
        <source>Click &lt;b&gt;Next&lt;/b&gt; to start the update. The update process may take a while.</source>
        <translation>Click &lt;b&gt;Next&lt;/b&gt; to start the update. The update process may take a while.</translation>
    </message>
    <message>
        <source>Be aware that disconnecting the power supply during the update process may damage the camera.</source>
        <translation>Be aware that disconnecting the power supply during the update process may damage the camera.</translation>
    </message>
</context>
</TS>
