<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>CameraSelectionDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>펌웨어 업데이터</translation>
    </message>
    <message>
        <source>Step 1: Select cameras</source>
        <translation>1단계: 카메라 선택</translation>
    </message>
    <message>
        <source>Not all Korvane camera models can be updated using the Firmware Updater.</source>
        <translation>일부 Korvane 카메라 모델은 펌웨어 업데이터로 업데이트할 수 없습니다.</translation>
    </message>
    <message>
        <source>Refresh camera list</source>
        <translation>카메라 목록 새로 고침</translation>
    </message>
</context>
<context>
    <name>FirmwareUpdateDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>펌웨어 업데이터</translation>
    </message>
    <message>
        <source>Step 4: Updating firmware</source>
        <translation>4단계: 펌웨어 업데이트 중</translation>
    </message>
    <message>
        <source>Cameras:</source>
        <translation>카메라:</translation>
    </message>
    <message>
        <source>Be aware that disconnecting the power supply during the update process may damage the camera.</source>
        <translation>업데이트 중에 전원을 분리하면 카메라가 손상될 수 있으므로 주의하십시오.</translation>
    </message>
    <message>
        <source>The update process may take a while.&lt;br&gt;If you want to stop the update process before it has completed, click &lt;b&gt;Cancel&lt;/b&gt;. The update of the camera currently being updated will be completed, and then the update wizard will close.</source>
        <translation>업데이트에는 시간이 다소 걸릴 수 있습니다.&lt;br&gt;업데이트가 완료되기 전에 중지하려면 &lt;b&gt;취소&lt;/b&gt;를 클릭하십시오. 현재 업데이트 중인 카메라의 업데이트가 완료된 후 업데이트 마법사가 닫힙니다.</translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation>업데이트 진행률</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::CFirmwareUpdaterPlugin</name>
    <message>
        <source>Firmware Updater</source>
        <translation>펌웨어 업데이터</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::Service::CFirmwareUpdaterService</name>
    <message>
        <source>DEBUG</source>
        <translation>디버그</translation>
    </message>
    <message>
        <source>INFO</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>WARNING</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>CRITICAL</source>
        <translation>심각</translation>
    </message>
    <message>
        <source>Fimware Updater</source>
        <translation>펌웨어 업데이터</translation>
    </message>
    <message>
        <source>&lt;p&gt;To use the Firmware Updater, you have to stop continuous image acquisition as well as any recordings.&lt;/p&gt;Do you want to stop all cameras and start using the Firmware Updater?</source>
        <translation>&lt;p&gt;펌웨어 업데이터를 사용하려면 연속 영상 획득과 모든 녹화를 중지해야 합니다.&lt;/p&gt;모든 카메라를 중지하고 펌웨어 업데이터를 시작하시겠습니까?</translation>
    </message>
    <message>
        <source>Update files</source>
        <translation>업데이트 파일</translation>
    </message>
    <message>
        <source>https://support.korvane.example/en/</source>
        <translation>https://support.korvane.example/ko/</translation>
    </message>
    <message>
        <source>Internal error: Firmware update is missing and could not be applied.</source>
        <translation>내부 오류: 펌웨어 업데이트가 없어서 적용할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::State::CFirmwareUpdatingStep</name>
    <message>
        <source>Firmware updates have been canceled by the user.</source>
        <translation>사용자가 펌웨어 업데이트를 취소했습니다.</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CCameraSelectionDialog</name>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CFirmwareUpdateDialog</name>
    <message>
        <source>Camera %1 of %2</source>
        <translation>카메라 %2대 중 %1번째</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CResultSummaryDialog</name>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Failed updates:</source>
        <translation>실패한 업데이트:</translation>
    </message>
    <message>
        <source>Successful updates:</source>
        <translation>성공한 업데이트:</translation>
    </message>
    <message>
        <source>Skipped updates:</source>
        <translation>건너뛴 업데이트:</translation>
    </message>
    <message>
        <source>An error has occurred during the update. The subsequent updates have been skipped.&lt;br&gt; Error message:</source>
        <translation>업데이트 중 오류가 발생했습니다. 이후의 업데이트는 건너뛰었습니다.&lt;br&gt; 오류 메시지:</translation>
    </message>
    <message>
        <source>For more information, see the &lt;a href=&quot;%1&quot;&gt;log file&lt;/a&gt;. If you require assistance, contact the &lt;a href=&quot;%2&quot;&gt;Korvane Support&lt;/a&gt;.</source>
        <translation>자세한 내용은 &lt;a href=&quot;%1&quot;&gt;로그 파일&lt;/a&gt;을 참조하십시오. 도움이 필요하시면 &lt;a href=&quot;%2&quot;&gt;Korvane 고객 지원&lt;/a&gt;에 문의하십시오.</translation>
    </message>
    <message>
        <source>See &lt;a href=&quot;%1&quot;&gt;log file&lt;/a&gt; for more information.</source>
        <translation>자세한 내용은 &lt;a href=&quot;%1&quot;&gt;로그 파일&lt;/a&gt;을 참조하십시오.</translation>
    </message>
    <message>
        <source>An error has occurred during the update.&lt;br&gt;Error message: %1.</source>
        <translation>업데이트 중 오류가 발생했습니다.&lt;br&gt;오류 메시지: %1.</translation>
    </message>
    <message>
        <source>An error has occurred during the update. The subsequent updates have been skipped.&lt;br&gt;Error message: %1.</source>
        <translation>업데이트 중 오류가 발생했습니다. 이후의 업데이트는 건너뛰었습니다.&lt;br&gt;오류 메시지: %1.</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CTreeViewDetailsDelegate</name>
    <message>
        <source>Upgrade</source>
        <translation>업그레이드</translation>
    </message>
    <message>
        <source>Downgrade</source>
        <translation>다운그레이드</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>재설치</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>알 수 없음</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CTreeViewResultDelegate</name>
    <message>
        <source>OK</source>
        <translation>성공</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>건너뜀</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CTreeViewStatusDelegate</name>
    <message>
        <source>Waiting</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>업데이트 중</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>완료</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CUpdateDialogBase</name>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CUpdateSelectionDialog</name>
    <message>
        <source>Back</source>
        <translation>이전</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>To update the firmware of your cameras, you need a firmware update file from &lt;a href=&quot;%1&quot;&gt;Korvane Support&lt;/a&gt;.</source>
        <translation>카메라의 펌웨어를 업데이트하려면 &lt;a href=&quot;%1&quot;&gt;Korvane 고객 지원&lt;/a&gt;에서 제공하는 업데이트 파일이 필요합니다.</translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation>선택한 파일 없음</translation>
    </message>
    <message>
        <source>No details available</source>
        <translation>세부 정보 없음</translation>
    </message>
    <message>
        <source>Firmware Release Notes</source>
        <translation>펌웨어 릴리스 정보</translation>
    </message>
</context>
<context>
    <name>Plugin::FirmwareUpdater::Internal::View::CUpdateSummaryDialog</name>
    <message>
        <source>Back</source>
        <translation>이전</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cameras</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>Current Firmware</source>
        <translation>현재 펌웨어</translation>
    </message>
    <message>
        <source>Firmware Selected</source>
        <translation>선택한 펌웨어</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>세부 정보</translation>
    </message>
</context>
<context>
    <name>ResultSummaryDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>펌웨어 업데이터</translation>
    </message>
    <message>
        <source>Step 5: Result summary</source>
        <translation>5단계: 결과 요약</translation>
    </message>
    <message>
        <source>See log file for more information.</source>
        <translation>자세한 내용은 로그 파일을 참조하십시오.</translation>
    </message>
    <message>
        <source>Click &lt;b&gt;Next&lt;/b&gt; to repeat the update process.</source>
        <translation>업데이트를 다시 수행하려면 &lt;b&gt;다음&lt;/b&gt;을 클릭하십시오.</translation>
    </message>
    <message>
        <source>For more information, see the log file. If you require assistance, contact the Korvane Support.</source>
        <translation>자세한 내용은 로그 파일을 참조하십시오. 도움이 필요하시면 Korvane 고객 지원에 문의하십시오.</translation>
    </message>
</context>
<context>
    <name>UpdateSelectionDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>펌웨어 업데이터</translation>
    </message>
    <message>
        <source>Step 2: Select update file</source>
        <translation>2단계: 업데이트 파일 선택</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>찾아보기</translation>
    </message>
    <message>
        <source>Update details</source>
        <translation>업데이트 세부 정보</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>설명:</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>버전:</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>릴리스 정보:</translation>
    </message>
    <message>
        <source>The firmware update file selected is not compatible with your camera model.</source>
        <translation>선택한 펌웨어 업데이트 파일은 사용 중인 카메라 모델과 호환되지 않습니다.</translation>
    </message>
    <message>
        <source>To update the firmware of your cameras, you need a firmware update file from Korvane Support.</source>
        <translation>카메라의 펌웨어를 업데이트하려면 Korvane 고객 지원에서 제공하는 업데이트 파일이 필요합니다.</translation>
    </message>
    <message>
        <source>Update file</source>
        <translation>업데이트 파일</translation>
    </message>
</context>
<context>
    <name>UpdateSummaryDialogUi</name>
    <message>
        <source>Firmware Updater</source>
        <translation>펌웨어 업데이터</translation>
    </message>
    <message>
        <source>Step 3: Update Summary</source>
        <translation>3단계: 업데이트 요약</translation>
    </message>
    <message>
        <source>Be aware that with the currently selected firmware versions some cameras will be downgraded.</source>
        <translation>현재 선택한 펌웨어 버전을 설치하면 일부 카메라가 다운그레이드되므로 주의하십시오.</translation>
    </message>
    <message>
        <source>The firmware versions selected for some cameras are identical with the firmware versions currently installed on the cameras. By clicking &lt;b&gt;Next&lt;/b&gt; you will reinstall the same firmware version.</source>
        <translation>일부 카메라에 대해 선택한 펌웨어 버전이 현재 카메라에 설치된 펌웨어 버전과 동일합니다. &lt;b&gt;다음&lt;/b&gt;을 클릭하면 동일한 펌웨어 버전이 재설치됩니다.</translation>
    </message>
    <message>
        <source>Click &lt;b&gt;Next&lt;/b&gt; to start the update. The update process may take a while.</source>
        <translation>업데이트를 시작하려면 &lt;b&gt;다음&lt;/b&gt;을 클릭하십시오. 업데이트에는 시간이 다소 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Be aware that disconnecting the power supply during the update process may damage the camera.</source>
        <translation>업데이트 중에 전원을 분리하면 카메라가 손상될 수 있으므로 주의하십시오.</translation>
    </message>
</context>
</TS>
