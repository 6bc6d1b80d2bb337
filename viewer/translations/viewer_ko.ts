<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Viewer</name>
    <message>
        <source>There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set. Start it from a desktop, or with QT_QPA_PLATFORM=offscreen to see nothing.</source>
        <translation>디스플레이가 없습니다. DISPLAY와 WAYLAND_DISPLAY가 모두 설정되어 있지 않습니다. 데스크톱에서 시작하거나, 화면 표시가 필요 없으면 QT_QPA_PLATFORM=offscreen을 지정하여 시작하십시오.</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CAboutBox</name>
    <message>
        <source>%1, built with %2</source>
        <translation>%1, %2(으)로 빌드됨</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Nuvex Viewer %1&lt;/h3&gt;&lt;p&gt;Shows cameras and lets plug-ins work with them.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Nuvex Viewer %1&lt;/h3&gt;&lt;p&gt;카메라를 표시하고 플러그인으로 카메라를 제어합니다.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;License: MIT&lt;/p&gt;&lt;p&gt;Libraries:&lt;/p&gt;</source>
        <translation>&lt;p&gt;라이선스: MIT&lt;/p&gt;&lt;p&gt;라이브러리:&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CAcquisitionController</name>
    <message>
        <source>&amp;Start</source>
        <translation>시작(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>중지(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Record...</source>
        <translation>녹화(&amp;R)...</translation>
    </message>
    <message>
        <source>Sto&amp;p recording</source>
        <translation>녹화 중지(&amp;P)</translation>
    </message>
    <message>
        <source>Start continuous acquisition (F6)</source>
        <translation>연속 영상 획득 시작(F6)</translation>
    </message>
    <message>
        <source>Stop continuous acquisition (F7)</source>
        <translation>연속 영상 획득 중지(F7)</translation>
    </message>
    <message>
        <source>Record images into a folder (F8)</source>
        <translation>영상을 폴더에 녹화(F8)</translation>
    </message>
    <message>
        <source>Stop recording; acquisition goes on (F9)</source>
        <translation>영상 획득은 유지하고 녹화만 중지(F9)</translation>
    </message>
    <message>
        <source>Record into folder</source>
        <translation>녹화할 폴더</translation>
    </message>
    <message>
        <source>No camera selected</source>
        <translation>선택한 카메라 없음</translation>
    </message>
    <message>
        <source>Select a camera in the list.</source>
        <translation>목록에서 카메라를 선택하십시오.</translation>
    </message>
    <message>
        <source>No cameras found</source>
        <translation>카메라를 찾을 수 없음</translation>
    </message>
    <message>
        <source>Recording %1 to %2.</source>
        <translation>%1의 영상을 %2에 녹화하고 있습니다.</translation>
    </message>
    <message>
        <source>Plug one in and click Refresh.</source>
        <translation>카메라를 연결한 후 &quot;새로 고침&quot;을 클릭하십시오.</translation>
    </message>
    <message>
        <source>Click Start to see its image.</source>
        <translation>영상을 보려면 &quot;시작&quot;을 클릭하십시오.</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) recorded.</source>
        <translation>
            <numerusform>영상 %n장을 녹화했습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) lost, since writing was too slow.</source>
        <translation>
            <numerusform>쓰기가 너무 느려 영상 %n장을 잃었습니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CCommandLine</name>
    <message>
        <source>Shows cameras and lets plug-ins work with them.</source>
        <translation>카메라를 표시하고 플러그인으로 카메라를 제어합니다.</translation>
    </message>
    <message>
        <source>Look for plug-ins in &lt;dir&gt;, too; can be given several times.</source>
        <translation>&lt;폴더&gt;에서도 플러그인을 찾습니다. 여러 번 지정할 수 있습니다.</translation>
    </message>
    <message>
        <source>dir</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>code</source>
        <translation>코드</translation>
    </message>
    <message>
        <source>Use &lt;dir&gt; as the folder of sample update files.</source>
        <translation>&lt;폴더&gt;를 샘플 업데이트 파일의 폴더로 사용합니다.</translation>
    </message>
    <message>
        <source>No folder is given for the demonstration&apos;s pictures.</source>
        <translation>데모 화면을 저장할 폴더가 지정되지 않았습니다.</translation>
    </message>
    <message>
        <source>No folder is given for the plug-ins.</source>
        <translation>플러그인 폴더가 지정되지 않았습니다.</translation>
    </message>
    <message>
        <source>Use the language &lt;code&gt; this time: %1.</source>
        <translation>이번에 사용할 언어 &lt;코드&gt;: %1.</translation>
    </message>
    <message>
        <source>The language &quot;%1&quot; is unknown; there are %2.</source>
        <translation>알 수 없는 언어 &quot;%1&quot;입니다. 사용할 수 있는 언어: %2.</translation>
    </message>
    <message>
        <source>Walk through the firmware update wizard, faster than real cameras would, save pictures into &lt;dir&gt; and quit.</source>
        <translation>실제 카메라보다 빠르게 펌웨어 업데이트 마법사를 진행하고 화면을 &lt;폴더&gt;에 저장한 뒤 종료합니다.</translation>
    </message>
    <message>
        <source>Use only update files that a trusted maker has signed, this time.</source>
        <translation>이번에는 신뢰하는 제작자가 서명한 업데이트 파일만 사용합니다.</translation>
    </message>
    <message>
        <source>Show what the update file &lt;file&gt; holds.</source>
        <translation>업데이트 파일 &lt;파일&gt;의 내용을 표시합니다.</translation>
    </message>
    <message>
        <source>There is more than one update file: &quot;%1&quot; and &quot;%2&quot;.</source>
        <translation>업데이트 파일이 두 개 이상입니다: &quot;%1&quot;, &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The name of the update file is empty.</source>
        <translation>업데이트 파일의 이름이 비어 있습니다.</translation>
    </message>
    <message>
        <source>The demonstration shows no update file.</source>
        <translation>데모에서는 업데이트 파일을 표시하지 않습니다.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>파일</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CImageActions</name>
    <message>
        <source>&amp;Fit to window</source>
        <translation>창에 맞추기(&amp;F)</translation>
    </message>
    <message>
        <source>Original si&amp;ze</source>
        <translation>원래 크기(&amp;Z)</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>확대(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>축소(&amp;O)</translation>
    </message>
    <message>
        <source>Mark satu&amp;rated pixels</source>
        <translation>포화된 픽셀 표시(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Histogram</source>
        <translation>히스토그램(&amp;H)</translation>
    </message>
    <message>
        <source>Sa&amp;ve image...</source>
        <translation>영상 저장(&amp;V)...</translation>
    </message>
    <message>
        <source>Co&amp;py image</source>
        <translation>영상 복사(&amp;P)</translation>
    </message>
    <message>
        <source>There is no image to save.</source>
        <translation>저장할 영상이 없습니다.</translation>
    </message>
    <message>
        <source>The image has been copied.</source>
        <translation>영상을 복사했습니다.</translation>
    </message>
    <message>
        <source>There is no image to copy.</source>
        <translation>복사할 영상이 없습니다.</translation>
    </message>
    <message>
        <source>Save image</source>
        <translation>영상 저장</translation>
    </message>
    <message>
        <source>PNG images</source>
        <translation>PNG 영상</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>메모리가 부족합니다</translation>
    </message>
    <message>
        <source>The image has been saved as %1.</source>
        <translation>영상을 %1(으)로 저장했습니다.</translation>
    </message>
    <message>
        <source>The image could not be saved as %1: %2.</source>
        <translation>영상을 %1(으)로 저장하지 못했습니다: %2.</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CInterruptionBar</name>
    <message>
        <source>Firmware Updater...</source>
        <translation>펌웨어 업데이터...</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>닫기</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>그 밖에 %n건이 더 있습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>The update of camera %1 that began at %2 was interrupted before its first step.</source>
        <translation>%2에 시작된 카메라 %1의 업데이트가 첫 단계 전에 중단되었습니다.</translation>
    </message>
    <message>
        <source>The update of camera %1 that began at %2 was interrupted in step %3 of %4 (%5).</source>
        <translation>%2에 시작된 카메라 %1의 업데이트가 총 %4단계 중 %3단계(%5)에서 중단되었습니다.</translation>
    </message>
    <message>
        <source>It does not answer. Switch it off and on, then repeat the update with the file %1.</source>
        <translation>카메라가 응답하지 않습니다. 카메라를 껐다가 다시 켠 후 파일 %1(으)로 업데이트를 다시 수행하십시오.</translation>
    </message>
    <message>
        <source>It reports firmware version %1 now. Repeat the update with the file %2.</source>
        <translation>현재 보고된 펌웨어 버전은 %1입니다. 파일 %2(으)로 업데이트를 다시 수행하십시오.</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CLinkOpener</name>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>This desktop has no program for web pages. Copy the address to open it elsewhere.</source>
        <translation>이 데스크톱에는 웹 페이지를 여는 프로그램이 없습니다. 다른 곳에서 열려면 주소를 복사하십시오.</translation>
    </message>
    <message>
        <source>The viewer opens only web pages, mail addresses and its own logs. This link leads somewhere else, so it was not opened.</source>
        <translation>뷰어는 웹 페이지, 메일 주소, 자체 로그만 엽니다. 이 링크는 다른 곳으로 연결되므로 열지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CLogFolder</name>
    <message>
        <source>Logs of firmware updates are not kept: there is no home folder.</source>
        <translation>홈 폴더가 없어 펌웨어 업데이트 로그가 보관되지 않습니다.</translation>
    </message>
    <message>
        <source>Logs of firmware updates are not kept, the folder &quot;%1&quot; cannot be used: %2.</source>
        <translation>폴더 &quot;%1&quot;을(를) 사용할 수 없어 펌웨어 업데이트 로그가 보관되지 않습니다: %2.</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CLogListDialog</name>
    <message>
        <source>Logs of firmware updates</source>
        <translation>펌웨어 업데이트 로그</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>결과</translation>
    </message>
    <message>
        <source>There are no logs yet.</source>
        <translation>아직 로그가 없습니다.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>열기(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>폴더 열기(&amp;F)</translation>
    </message>
    <message>
        <source>No update</source>
        <translation>업데이트 없음</translation>
    </message>
    <message>
        <source>Successful</source>
        <translation>성공</translation>
    </message>
    <message>
        <source>Failed (%1 of %2 updated)</source>
        <translation>실패(%2대 중 %1대 업데이트됨)</translation>
    </message>
    <message>
        <source>Canceled (%1 of %2 updated)</source>
        <translation>취소됨(%2대 중 %1대 업데이트됨)</translation>
    </message>
    <message>
        <source>Running (%1 of %2 updated)</source>
        <translation>진행 중(%2대 중 %1대 업데이트됨)</translation>
    </message>
    <message>
        <source>Interrupted (%1 of %2 updated)</source>
        <translation>중단됨(%2대 중 %1대 업데이트됨)</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>읽을 수 없음</translation>
    </message>
    <message>
        <source>The log is longer than %1 bytes; only its end was read.</source>
        <translation>로그가 %1바이트보다 길어 끝부분만 읽었습니다.</translation>
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
        <translation>영상 획득</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>도구(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>&amp;Cameras</source>
        <translation>카메라(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Tool bar</source>
        <translation>도구 모음(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>언어(&amp;L)</translation>
    </message>
    <message>
        <source>The language changes the next time the viewer starts.</source>
        <translation>언어는 다음에 뷰어를 시작할 때 변경됩니다.</translation>
    </message>
    <message>
        <source>Camera settings</source>
        <translation>카메라 설정</translation>
    </message>
    <message>
        <source>Camera &amp;settings</source>
        <translation>카메라 설정(&amp;S)</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CPluginListDialog</name>
    <message>
        <source>Plug-ins</source>
        <translation>플러그인</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>실행 중</translation>
    </message>
    <message>
        <source>Part of the viewer</source>
        <translation>뷰어에 포함됨</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>사용할 수 없음</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CRecentFiles</name>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1이(가) 더 이상 없습니다.</translation>
    </message>
    <message>
        <source>&amp;Clear list</source>
        <translation>목록 지우기(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CSeriesNotifier</name>
    <message numerus="yes">
        <source>%n update(s) succeeded.</source>
        <translation>
            <numerusform>업데이트 %n건이 성공했습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n update(s) failed.</source>
        <translation>
            <numerusform>업데이트 %n건이 실패했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>The firmware updates have ended</source>
        <translation>펌웨어 업데이트가 끝났습니다</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CSwitchMenu</name>
    <message>
        <source>Keep open in a &amp;window</source>
        <translation>창으로 열어 두기(&amp;W)</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CTextDialog</name>
    <message>
        <source>&amp;Copy all</source>
        <translation>모두 복사(&amp;C)</translation>
    </message>
    <message>
        <source>The file is too large to be shown in full: this is its end.</source>
        <translation>파일이 너무 커서 끝부분만 표시합니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CTrustedMakersDialog</name>
    <message>
        <source>Trusted makers</source>
        <translation>신뢰하는 제작자</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>제작자</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>유효 기한</translation>
    </message>
    <message>
        <source>Trusted by</source>
        <translation>신뢰 주체</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>추가(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>제거(&amp;R)...</translation>
    </message>
    <message>
        <source>Nobody is trusted yet. Add the certificates of the makers whose update files you use.</source>
        <translation>아직 신뢰하는 제작자가 없습니다. 사용하는 업데이트 파일의 제작자 인증서를 추가하십시오.</translation>
    </message>
    <message>
        <source>Maker: %1
Issued by: %2
Valid: %3 to %4
SHA-256 fingerprint:
%5</source>
        <translation>제작자: %1
발급자: %2
유효 기간: %3 ~ %4
SHA-256 지문:
%5</translation>
    </message>
    <message>
        <source>You</source>
        <translation>사용자</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>이 컴퓨터</translation>
    </message>
    <message>
        <source>Add a trusted maker</source>
        <translation>신뢰하는 제작자 추가</translation>
    </message>
    <message>
        <source>Certificates in PEM</source>
        <translation>PEM 인증서</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>모든 파일</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read, or has not exactly one certificate in PEM.</source>
        <translation>파일 &quot;%1&quot;을(를) 읽을 수 없거나, 파일에 PEM 인증서가 정확히 하나 들어 있지 않습니다.</translation>
    </message>
    <message>
        <source>Trust the update files of this maker? Compare the fingerprint with the one that the maker has told you in another way.</source>
        <translation>이 제작자의 업데이트 파일을 신뢰하시겠습니까? 제작자가 다른 방법으로 알려 준 지문과 비교하십시오.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2.</source>
        <translation>파일 &quot;%1&quot;에 쓸 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>Trust this maker no longer? The file &quot;%1&quot; is removed.</source>
        <translation>이 제작자를 더 이상 신뢰하지 않으시겠습니까? 파일 &quot;%1&quot;이(가) 제거됩니다.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be removed: %2.</source>
        <translation>파일 &quot;%1&quot;을(를) 제거할 수 없습니다: %2.</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CUpdateFileDialog</name>
    <message numerus="yes">
        <source>%n upgrade(s)</source>
        <translation>
            <numerusform>업그레이드 %n건</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n downgrade(s)</source>
        <translation>
            <numerusform>다운그레이드 %n건</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n reinstallation(s)</source>
        <translation>
            <numerusform>재설치 %n건</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not now</source>
        <translation>
            <numerusform>지금은 불가 %n건</numerusform>
        </translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>업그레이드</translation>
    </message>
    <message>
        <source>Downgrade</source>
        <translation>다운그레이드</translation>
    </message>
    <message>
        <source>Reinstallation</source>
        <translation>재설치</translation>
    </message>
    <message>
        <source>Not now: %1</source>
        <translation>지금은 불가: %1</translation>
    </message>
    <message>
        <source>Update file</source>
        <translation>업데이트 파일</translation>
    </message>
    <message>
        <source>&amp;Firmware Updater...</source>
        <translation>펌웨어 업데이터(&amp;F)...</translation>
    </message>
    <message>
        <source>Version, cameras</source>
        <translation>버전, 카메라</translation>
    </message>
    <message>
        <source>Models, firmware</source>
        <translation>모델, 펌웨어</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>결과</translation>
    </message>
    <message>
        <source>What is known of this version</source>
        <translation>이 버전에 대한 정보</translation>
    </message>
    <message>
        <source>The file %1 is being read...</source>
        <translation>%1 파일을 읽는 중...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Cameras that it fits: %1 of %2</source>
        <translation>맞는 카메라: %2대 중 %1대</translation>
    </message>
    <message>
        <source>Cameras that it fits: %1 of %2 (%3)</source>
        <translation>맞는 카메라: %2대 중 %1대(%3)</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>버전: %1</translation>
    </message>
    <message>
        <source>Models: %1</source>
        <translation>모델: %1</translation>
    </message>
    <message>
        <source>Device versions: %1</source>
        <translation>장치 버전: %1</translation>
    </message>
    <message>
        <source>Needs firmware: %1 or newer</source>
        <translation>필요한 펌웨어: %1 이상</translation>
    </message>
    <message>
        <source>Release notes:</source>
        <translation>릴리스 정보:</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CUpdateFileOpener</name>
    <message>
        <source>Recent &amp;update files</source>
        <translation>최근 업데이트 파일(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Open update file...</source>
        <translation>업데이트 파일 열기(&amp;O)...</translation>
    </message>
    <message>
        <source>A dialog is still open. Close it before you open an update file.</source>
        <translation>대화 상자가 아직 열려 있습니다. 업데이트 파일을 열기 전에 닫으십시오.</translation>
    </message>
    <message>
        <source>Open update file</source>
        <translation>업데이트 파일 열기</translation>
    </message>
    <message>
        <source>Update files</source>
        <translation>업데이트 파일</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>모든 파일</translation>
    </message>
    <message>
        <source>Drop one update file, not several.</source>
        <translation>업데이트 파일을 하나만 끌어다 놓으십시오.</translation>
    </message>
    <message>
        <source>Only update files (*.guf) of this computer can be dropped here.</source>
        <translation>이 컴퓨터의 업데이트 파일(*.guf)만 여기에 끌어다 놓을 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CUpdateHistoryDialog</name>
    <message>
        <source>Update history</source>
        <translation>업데이트 기록</translation>
    </message>
    <message>
        <source>Open &amp;log</source>
        <translation>로그 열기(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>내보내기(&amp;E)...</translation>
    </message>
    <message numerus="yes">
        <source>%n damaged line(s) of the history were skipped.</source>
        <translation>
            <numerusform>업데이트 기록에서 손상된 줄 %n개를 건너뛰었습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>No updates yet.</source>
        <translation>아직 업데이트가 없습니다.</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>필터(&amp;F):</translation>
    </message>
    <message>
        <source>Export update history</source>
        <translation>업데이트 기록 내보내기</translation>
    </message>
    <message numerus="yes">
        <source>%n update(s) were written to &quot;%1&quot;.</source>
        <translation>
            <numerusform>업데이트 %n건을 &quot;%1&quot;에 저장했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2.</source>
        <translation>파일 &quot;%1&quot;에 쓸 수 없습니다: %2.</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CViewer</name>
    <message>
        <source>Re&amp;fresh</source>
        <translation>새로 고침(&amp;F)</translation>
    </message>
    <message>
        <source>Open samp&amp;le folder</source>
        <translation>샘플 폴더 열기(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Plug-ins...</source>
        <translation>플러그인(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>정보(&amp;A)</translation>
    </message>
    <message>
        <source>Main window and menus</source>
        <translation>기본 창 및 메뉴</translation>
    </message>
    <message>
        <source>Camera tree and selection</source>
        <translation>카메라 트리 및 선택</translation>
    </message>
    <message>
        <source>Cameras, update files and firmware updates</source>
        <translation>카메라, 업데이트 파일 및 펌웨어 업데이트</translation>
    </message>
    <message>
        <source>The viewer as a whole</source>
        <translation>뷰어 전체</translation>
    </message>
    <message>
        <source>Not all plug-ins are available: see Help &gt; Plug-ins.</source>
        <translation>일부 플러그인을 사용할 수 없습니다. &quot;도움말&quot; &gt; &quot;플러그인&quot;을 참조하십시오.</translation>
    </message>
    <message>
        <source>A firmware update is running. Wait until it has ended before you quit.</source>
        <translation>펌웨어 업데이트가 진행 중입니다. 업데이트가 끝난 후 종료하십시오.</translation>
    </message>
    <message>
        <source>A dialog is still open. Close it before you quit.</source>
        <translation>대화 상자가 열려 있습니다. 대화 상자를 닫은 후 종료하십시오.</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) found.</source>
        <translation>
            <numerusform>카메라 %n대를 찾았습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Search for cameras (F5)</source>
        <translation>카메라 검색(F5)</translation>
    </message>
    <message>
        <source>&amp;Logs...</source>
        <translation>로그(&amp;L)...</translation>
    </message>
    <message>
        <source>%1 Then the viewer closes by itself.</source>
        <translation>%1 그 후 뷰어가 자동으로 종료됩니다.</translation>
    </message>
    <message>
        <source>&amp;Update history...</source>
        <translation>업데이트 기록(&amp;U)...</translation>
    </message>
    <message>
        <source>Trusted &amp;makers...</source>
        <translation>신뢰하는 제작자(&amp;M)...</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>설명서(&amp;M)</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Fin&amp;d cameras</source>
        <translation>카메라 찾기(&amp;D)</translation>
    </message>
</context>
<context>
    <name>Viewer::Camera::GenICam</name>
    <message>
        <source>This viewer was built without the library for real cameras.</source>
        <translation>이 뷰어는 실제 카메라용 라이브러리 없이 빌드되었습니다.</translation>
    </message>
    <message>
        <source>Search the network (by broadcast) and USB for cameras this time.</source>
        <translation>이번 실행에서 네트워크(브로드캐스트)와 USB의 카메라를 검색합니다.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>Ask for a camera at &lt;address&gt;, without a broadcast; can be given several times.</source>
        <translation>브로드캐스트 없이 &lt;주소&gt;의 카메라를 찾습니다. 여러 번 지정할 수 있습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a camera address; it has the form 192.168.0.10.</source>
        <translation>&quot;%1&quot;은(는) 카메라 주소가 아닙니다. 192.168.0.10 형식으로 입력하십시오.</translation>
    </message>
</context>
<context>
    <name>Viewer::Camera::GenICam::CGenICam</name>
    <message>
        <source>Search the &amp;network for cameras</source>
        <translation>네트워크에서 카메라 검색(&amp;N)</translation>
    </message>
</context>
<context>
    <name>Viewer::Camera::Simulation::CSimulation</name>
    <message>
        <source>file</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Simulate the cameras described in &lt;file&gt;.</source>
        <translation>&lt;파일&gt;에 기술된 카메라를 시뮬레이션합니다.</translation>
    </message>
    <message>
        <source>Forget the firmware that earlier updates wrote to the simulated cameras.</source>
        <translation>이전 업데이트에서 시뮬레이션 카메라에 기록한 펌웨어를 지웁니다.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>The speed &quot;%1&quot; is not a number from 0.01 to 10000.</source>
        <translation>속도 &quot;%1&quot;은(는) 0.01에서 10000 사이의 숫자가 아닙니다.</translation>
    </message>
    <message>
        <source>Leave out the simulated cameras.</source>
        <translation>시뮬레이션 카메라를 사용하지 않습니다.</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>시뮬레이션(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Plugged in</source>
        <translation>연결됨(&amp;P)</translation>
    </message>
    <message>
        <source>In &amp;use elsewhere</source>
        <translation>다른 곳에서 사용 중(&amp;U)</translation>
    </message>
    <message>
        <source>Let the simulated cameras work &lt;n&gt; times as fast as real ones (default 1).</source>
        <translation>시뮬레이션 카메라를 실제 카메라의 &lt;n&gt;배 속도로 작동합니다(기본값 1).</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool</name>
    <message>
        <source>it is in use by another application</source>
        <translation>다른 응용 프로그램에서 사용 중입니다</translation>
    </message>
    <message>
        <source>its status is %1</source>
        <translation>상태가 %1입니다</translation>
    </message>
    <message>
        <source>its status is %1: %2</source>
        <translation>상태가 %1입니다: %2</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool::CCameraEnumerationService</name>
    <message>
        <source>being updated</source>
        <translation>업데이트 중</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool::CCameraPool</name>
    <message>
        <source>The folder &quot;%1&quot; does not exist; choose another one.</source>
        <translation>폴더 &quot;%1&quot;이(가) 없습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>The recording of camera %1 has ended: %2.</source>
        <translation>카메라 %1의 녹화가 종료되었습니다: %2.</translation>
    </message>
    <message>
        <source>Camera %1 cannot be started while the firmware updater is open.</source>
        <translation>펌웨어 업데이터가 열려 있는 동안에는 카메라 %1을(를) 시작할 수 없습니다.</translation>
    </message>
    <message>
        <source>Camera %1 does not answer; check its cable.</source>
        <translation>카메라 %1이(가) 응답하지 않습니다. 케이블을 확인하십시오.</translation>
    </message>
    <message>
        <source>Camera %1 is being updated.</source>
        <translation>카메라 %1을(를) 업데이트하고 있습니다.</translation>
    </message>
    <message>
        <source>Camera %1 no longer answers; acquisition has stopped.</source>
        <translation>카메라 %1이(가) 더 이상 응답하지 않아 영상 획득이 중지되었습니다.</translation>
    </message>
    <message>
        <source>Camera %1 is in use by another application.</source>
        <translation>카메라 %1을(를) 다른 응용 프로그램에서 사용 중입니다.</translation>
    </message>
    <message>
        <source>being updated (%1 %)</source>
        <translation>업데이트 중(%1 %)</translation>
    </message>
    <message>
        <source>Camera %1 has no images here.</source>
        <translation>여기에는 카메라 %1의 영상이 없습니다.</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
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
모델: %2
일련번호: %3
장치 버전: %4
펌웨어: %5</translation>
    </message>
    <message>
        <source>Acquiring</source>
        <translation>영상 획득 중</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>녹화 중</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>업데이트 중</translation>
    </message>
    <message>
        <source>In use elsewhere</source>
        <translation>다른 곳에서 사용 중</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비됨</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>일련번호</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>펌웨어</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Not updatable (%1)</source>
        <translation>업데이트할 수 없음(%1)</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>IP address: %1</source>
        <translation>IP 주소: %1</translation>
    </message>
    <message>
        <source>MAC address: %1</source>
        <translation>MAC 주소: %1</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 주소</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>MAC 주소</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSelector::CCameraSelectorPanel</name>
    <message>
        <source>Filter cameras</source>
        <translation>카메라 필터</translation>
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
        <translation>카메라</translation>
    </message>
    <message>
        <source>&amp;Order as found</source>
        <translation>찾은 순서대로(&amp;O)</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSettings::CCameraSettingsView</name>
    <message>
        <source>Exposure time:</source>
        <translation>노출 시간:</translation>
    </message>
    <message>
        <source>Gain:</source>
        <translation>게인:</translation>
    </message>
    <message>
        <source>Frame rate:</source>
        <translation>프레임 속도:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>너비:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>높이:</translation>
    </message>
    <message>
        <source>Offset X:</source>
        <translation>X 오프셋:</translation>
    </message>
    <message>
        <source>Offset Y:</source>
        <translation>Y 오프셋:</translation>
    </message>
    <message>
        <source>Pixel format:</source>
        <translation>픽셀 형식:</translation>
    </message>
    <message>
        <source>Trigger:</source>
        <translation>트리거:</translation>
    </message>
    <message>
        <source>Test pattern:</source>
        <translation>테스트 패턴:</translation>
    </message>
    <message>
        <source>Select a camera and click Start to see its settings.</source>
        <translation>설정을 보려면 카메라를 선택하고 &quot;시작&quot;을 클릭하십시오.</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSettings::CFeatureTree</name>
    <message>
        <source>Part of a name</source>
        <translation>이름의 일부</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>&amp;All features:</source>
        <translation>모든 기능(&amp;A):</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSettings::CSettingEditor</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1~%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not possible: %2 goes from %3 to %4.</source>
        <translation>&quot;%1&quot;은(는) 사용할 수 없습니다. %2의 범위는 %3~%4입니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number for %2.</source>
        <translation>&quot;%1&quot;은(는) %2에 사용할 수 있는 숫자가 아닙니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraWorker::CCameraUpdate</name>
    <message>
        <source>The firmware of camera %1 is being updated.</source>
        <translation>카메라 %1의 펌웨어를 업데이트하고 있습니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::CommandLine::COptionReader</name>
    <message>
        <source>Show this help and quit.</source>
        <translation>이 도움말을 표시하고 종료합니다.</translation>
    </message>
    <message>
        <source>Show the version and quit.</source>
        <translation>버전을 표시하고 종료합니다.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>예기치 않은 인수 &quot;%1&quot;입니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no good value for --%2.</source>
        <translation>&quot;%1&quot;은(는) --%2에 사용할 수 없는 값입니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::Files::CFileEnd</name>
    <message>
        <source>It is not a regular file.</source>
        <translation>일반 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>파일을 읽을 수 없습니다: %1.</translation>
    </message>
</context>
<context>
    <name>Viewer::GufTool::CGufTool</name>
    <message>
        <source>There is no command.</source>
        <translation>명령이 없습니다.</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; is unknown.</source>
        <translation>알 수 없는 명령 &quot;%1&quot;입니다.</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; has too few or too many arguments.</source>
        <translation>명령 &quot;%1&quot;의 인수가 너무 적거나 많습니다.</translation>
    </message>
    <message>
        <source>Packed %1: updates: %2, bytes: %3</source>
        <translation>파일을 만들었습니다: %1(업데이트 %2개, %3바이트)</translation>
    </message>
    <message>
        <source>%1 is faultless, updates: %2</source>
        <translation>%1에 오류가 없습니다(업데이트 %2개)</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; has no option --%2.</source>
        <translation>명령 &quot;%1&quot;에는 --%2 옵션이 없습니다.</translation>
    </message>
    <message>
        <source>A signature needs --certificate and --key.</source>
        <translation>서명하려면 --certificate와 --key가 필요합니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a folder.</source>
        <translation>&quot;%1&quot;은(는) 폴더가 아닙니다.</translation>
    </message>
    <message>
        <source>Passphrase of the key:</source>
        <translation>키의 암호:</translation>
    </message>
    <message>
        <source>It cannot be signed: %1</source>
        <translation>서명할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Signed %1</source>
        <translation>%1에 서명했습니다</translation>
    </message>
    <message>
        <source>Signed by %1, SHA-256 fingerprint %2</source>
        <translation>서명자 %1, SHA-256 지문 %2</translation>
    </message>
    <message>
        <source>A time stamp needs --query or --response.</source>
        <translation>타임스탬프에는 --query 또는 --response가 필요합니다.</translation>
    </message>
    <message>
        <source>Stamped %1</source>
        <translation>타임스탬프를 추가했습니다: %1</translation>
    </message>
    <message>
        <source>Wrote %1, for an authority for time stamps</source>
        <translation>%1을(를) 썼습니다. 타임스탬프 기관에 보내십시오</translation>
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
        <translation>사용법: guftool pack &lt;폴더&gt; &lt;파일&gt; [--sign &lt;서명&gt;]
        guftool sign &lt;파일&gt; &lt;서명&gt;
        guftool stamp &lt;파일&gt; --query &lt;요청&gt; | --response &lt;응답&gt;
        guftool inspect [--json] [--trust &lt;폴더&gt;] &lt;파일&gt;
        guftool verify [--trust &lt;폴더&gt;] &lt;파일&gt;

&lt;서명&gt;   --certificate &lt;파일&gt; --key &lt;파일&gt; [--chain &lt;파일&gt;]
         [--passphrase-file &lt;파일&gt;]. 마지막 파일을 제외하고 모두 PEM이며,
         마지막 파일의 첫 줄은 키의 암호입니다

pack     &lt;폴더&gt;/update.json과 여기에 지정된 &lt;폴더&gt; 안의 데이터 파일로
         업데이트 파일 &lt;파일&gt;을 만듭니다. 생략된 크기와 다이제스트는
         자동으로 채웁니다
sign     &lt;파일&gt;에 서명을 추가합니다
stamp    서명한 시각을 타임스탬프 기관에 묻는 &lt;요청&gt;을 쓰거나 그 답인
         &lt;응답&gt;(RFC 3161)을 추가합니다
inspect  &lt;파일&gt;을 검사하고 내용을 표시하며(--json: JSON 형식), 이 컴퓨터나
         &lt;폴더&gt;가 서명한 사람을 신뢰하는지 알려 줍니다
verify   &lt;파일&gt;을 검사합니다. --trust를 지정하면 &lt;폴더&gt;에 인증서가 있는
         제작자가 서명했는지도 검사합니다

종료 코드: 정상이면 0, 파일에 오류가 있으면 1, 이 프로그램을 잘못
호출하면 2, 서명이 없거나 신뢰할 수 없으면 3입니다.
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
        <translation>파일:      %1
형식:      %2
업데이트:  %3
</translation>
    </message>
    <message>
        <source>none</source>
        <translation>없음</translation>
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
업데이트 %1
  버전:             %2
  설명:             %3
  모델:             %4
  장치 버전:        %5
  최소 버전:        %6
  릴리스 정보:      %7
  단계:
</translation>
    </message>
    <message>
        <source>any</source>
        <translation>모두</translation>
    </message>
    <message>
        <source>    by size</source>
        <extracomment>Eleven columns wide; Korean, Japanese and Chinese letters take two columns.</extracomment>
        <translation>크기에 따라</translation>
    </message>
    <message>
        <source>%1 (%2 bytes) to %3</source>
        <translation>%1(%2바이트) → %3</translation>
    </message>
    <message>
        <source>
Signature
  State:            %1
</source>
        <extracomment>The values begin in column 20; Korean, Japanese and Chinese letters take two columns.</extracomment>
        <translation>
서명
  상태:             %1
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
        <translation>  서명자:           %1
  발급자:           %2
  유효 기간 시작:   %3
  유효 기간 끝:     %4
  SHA-256 지문:     %5
</translation>
    </message>
    <message>
        <source>  Time stamp:       %1
</source>
        <extracomment>The values begin in column 20; Korean, Japanese and Chinese letters take two columns.</extracomment>
        <translation>  타임스탬프:       %1
</translation>
    </message>
</context>
<context>
    <name>Viewer::ImageView::CImageTile</name>
    <message>
        <source>Its image cannot be shown: %1.</source>
        <translation>영상을 표시할 수 없습니다: %1.</translation>
    </message>
</context>
<context>
    <name>Viewer::ImageView::CImageView</name>
    <message>
        <source>Image</source>
        <translation>영상</translation>
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
        <translation>영상 획득을 시작한 이후:
프레임: %1
데이터: %2 MB
재전송된 패킷: %3
손실된 패킷: %4
불완전한 프레임: %5
표시하지 않은 프레임: %6</translation>
    </message>
    <message>
        <source>%1 frames/s, %2 MB/s</source>
        <translation>%1프레임/초, %2 MB/s</translation>
    </message>
    <message>
        <source>packets resent: %1</source>
        <translation>재전송 패킷: %1</translation>
    </message>
    <message>
        <source>packets lost: %1</source>
        <translation>손실 패킷: %1</translation>
    </message>
    <message>
        <source>frames incomplete: %1</source>
        <translation>불완전 프레임: %1</translation>
    </message>
    <message>
        <source>frames not shown: %1</source>
        <translation>표시하지 않은 프레임: %1</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CCameraSelection</name>
    <message>
        <source>No camera was found.</source>
        <translation>카메라를 찾지 못했습니다.</translation>
    </message>
    <message>
        <source>There is no camera of the model &quot;%1&quot;.</source>
        <translation>모델 &quot;%1&quot;인 카메라가 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) have the serial number &quot;%1&quot;; name the one that is meant by its id: %2.</source>
        <translation>
            <numerusform>일련번호 &quot;%1&quot;인 카메라가 %n대 있습니다. 원하는 카메라를 ID로 지정하십시오: %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no camera with the id or serial number &quot;%1&quot;; the nearest are %2.</source>
        <translation>ID나 일련번호가 &quot;%1&quot;인 카메라가 없습니다. 가장 비슷한 것은 %2입니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CQuestion</name>
    <message>
        <source>yes</source>
        <translation>예</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CTerminalReport</name>
    <message>
        <source>%1 left</source>
        <translation>%1 남음</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CTextReport</name>
    <message>
        <source>Id</source>
        <translation>ID 번호</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>일련번호</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>Device version</source>
        <translation>장치 버전</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>펌웨어</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비됨</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>for %1</source>
        <translation>%1용</translation>
    </message>
    <message>
        <source>device version %1</source>
        <translation>장치 버전 %1</translation>
    </message>
    <message>
        <source>from version %1 on</source>
        <translation>버전 %1부터</translation>
    </message>
    <message>
        <source>upgrade %1</source>
        <translation>업그레이드 %1</translation>
    </message>
    <message>
        <source>downgrade %1</source>
        <translation>다운그레이드 %1</translation>
    </message>
    <message>
        <source>reinstall %1</source>
        <translation>재설치 %1</translation>
    </message>
    <message>
        <source>does not fit: %1</source>
        <translation>맞지 않음: %1</translation>
    </message>
    <message>
        <source>cannot be updated now: %1</source>
        <translation>지금 업데이트할 수 없음: %1</translation>
    </message>
    <message>
        <source>%1: begins, %2</source>
        <translation>%1: 시작, %2</translation>
    </message>
    <message>
        <source>%1: step %2 of %3, %4</source>
        <translation>%1: 단계 %2/%3, %4</translation>
    </message>
    <message>
        <source>%1: updated, %2, in %3 s</source>
        <translation>%1: 업데이트됨, %2, %3초</translation>
    </message>
    <message>
        <source>updated</source>
        <translation>업데이트됨</translation>
    </message>
    <message>
        <source>FAILED: %1</source>
        <translation>실패: %1</translation>
    </message>
    <message>
        <source>not updated: %1</source>
        <translation>업데이트되지 않음: %1</translation>
    </message>
    <message>
        <source>left alone: %1</source>
        <translation>그대로 둠: %1</translation>
    </message>
    <message>
        <source>not begun</source>
        <translation>시작되지 않음</translation>
    </message>
    <message>
        <source>would be updated to %1</source>
        <translation>%1(으)로 업데이트할 예정</translation>
    </message>
    <message numerus="yes">
        <source>%n updated</source>
        <translation>
            <numerusform>%n대 업데이트됨</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n대 실패</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n in use</source>
        <translation>
            <numerusform>%n대 사용 중</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n would be updated</source>
        <translation>
            <numerusform>%n대 업데이트 예정</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left alone</source>
        <translation>
            <numerusform>%n대 그대로 둠</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n running</source>
        <translation>
            <numerusform>%n대 실행 중</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not begun</source>
        <translation>
            <numerusform>%n대 시작되지 않음</numerusform>
        </translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>From</source>
        <translation>이전 버전</translation>
    </message>
    <message>
        <source>To</source>
        <translation>새 버전</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>초</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>결과</translation>
    </message>
    <message>
        <source>%1 (%2 s)</source>
        <translation>%1(%2초)</translation>
    </message>
    <message>
        <source>SHA-256 fingerprint of the certificate: %1</source>
        <translation>인증서의 SHA-256 지문: %1</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CUpdateCommandLine</name>
    <message>
        <source>Updates the firmware of many cameras, without a display.</source>
        <translation>화면 없이 여러 카메라의 펌웨어를 업데이트합니다.</translation>
    </message>
    <message>
        <source>list: the cameras; check: what a file would do to each of them; update: do it; resume: repeat what was interrupted; history: what was updated.</source>
        <translation>list: 카메라 목록; check: 파일이 각 카메라에 할 일; update: 실행; resume: 중단된 업데이트를 다시 수행; history: 업데이트 기록.</translation>
    </message>
    <message>
        <source>The update file, for check and update.</source>
        <translation>업데이트 파일(check 및 update용).</translation>
    </message>
    <message>
        <source>code</source>
        <translation>코드</translation>
    </message>
    <message>
        <source>Use the language &lt;code&gt;: %1.</source>
        <translation>언어 &lt;코드&gt;를 사용합니다: %1.</translation>
    </message>
    <message>
        <source>The language &quot;%1&quot; is unknown; there are %2.</source>
        <translation>알 수 없는 언어 &quot;%1&quot;입니다. 사용할 수 있는 언어: %2.</translation>
    </message>
    <message>
        <source>Print one JSON object a line.</source>
        <translation>한 줄에 JSON 개체 하나씩 출력합니다.</translation>
    </message>
    <message>
        <source>history: print a table for spreadsheets.</source>
        <translation>history: 스프레드시트용 표를 출력합니다.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>id</source>
        <translation>ID값</translation>
    </message>
    <message>
        <source>update: the camera with this id or serial number; can be given several times.</source>
        <translation>update: 이 ID나 일련번호의 카메라. 여러 번 지정할 수 있습니다.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>update: all cameras of this model.</source>
        <translation>update: 이 모델의 모든 카메라.</translation>
    </message>
    <message>
        <source>update: all cameras that the file fits.</source>
        <translation>update: 파일이 맞는 모든 카메라.</translation>
    </message>
    <message>
        <source>update: also where the camera has a newer version.</source>
        <translation>update: 카메라의 버전이 더 새로운 경우에도 업데이트합니다.</translation>
    </message>
    <message>
        <source>update: also where the camera has this version already.</source>
        <translation>update: 카메라에 이미 이 버전이 있는 경우에도 업데이트합니다.</translation>
    </message>
    <message>
        <source>So many updates at a time (default 8).</source>
        <translation>동시에 업데이트할 개수(기본값 8).</translation>
    </message>
    <message>
        <source>--parallel takes a number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--parallel에는 &quot;%2&quot;이(가) 아니라 1부터 %1까지의 숫자를 지정하십시오.</translation>
    </message>
    <message>
        <source>So many cameras first, the others only when all of these have succeeded.</source>
        <translation>먼저 업데이트할 카메라 수. 모두 성공한 경우에만 나머지를 업데이트합니다.</translation>
    </message>
    <message>
        <source>--canary takes a number of cameras, not &quot;%1&quot;.</source>
        <translation>--canary에는 &quot;%1&quot;이(가) 아니라 카메라 수를 지정하십시오.</translation>
    </message>
    <message>
        <source>Begin no further camera after so many failures (default 1).</source>
        <translation>이 횟수만큼 실패하면 다음 카메라를 시작하지 않습니다(기본값 1).</translation>
    </message>
    <message>
        <source>--max-failures takes a number of cameras, not &quot;%1&quot;.</source>
        <translation>--max-failures에는 &quot;%1&quot;이(가) 아니라 카메라 수를 지정하십시오.</translation>
    </message>
    <message>
        <source>Only say what would be done.</source>
        <translation>무엇을 할지 알려 주기만 합니다.</translation>
    </message>
    <message>
        <source>Do not ask before the updates begin.</source>
        <translation>업데이트를 시작하기 전에 묻지 않습니다.</translation>
    </message>
    <message>
        <source>No command is given; there are %1.</source>
        <translation>명령이 지정되지 않았습니다. 사용할 수 있는 명령: %1.</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;; there are %2.</source>
        <translation>명령 &quot;%1&quot;이(가) 없습니다. 사용할 수 있는 명령: %2.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>예기치 않은 인수 &quot;%1&quot;입니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs an update file.</source>
        <translation>&quot;%1&quot;에는 업데이트 파일이 필요합니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no option --%2.</source>
        <translation>&quot;%1&quot;에는 옵션 --%2이(가) 없습니다.</translation>
    </message>
    <message>
        <source>--csv and --json exclude each other.</source>
        <translation>--csv와 --json은 함께 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Say which cameras: --camera, --model or --all.</source>
        <translation>어느 카메라인지 지정하십시오: --camera, --model 또는 --all.</translation>
    </message>
    <message>
        <source>--camera, --model and --all exclude each other.</source>
        <translation>--camera, --model, --all은 함께 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>check, update, resume: only with a file that a trusted maker has signed.</source>
        <translation>check, update, resume: 신뢰하는 제작자가 서명한 파일만 사용합니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CUpdateLog</name>
    <message>
        <source>The log in &quot;%1&quot; cannot be written: %2; the updates go on without it.</source>
        <translation>&quot;%1&quot;의 로그를 쓸 수 없습니다: %2. 업데이트는 로그 없이 계속됩니다.</translation>
    </message>
    <message>
        <source>there is no home folder</source>
        <translation>홈 폴더가 없습니다</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CUpdateProgram</name>
    <message>
        <source>The file fits none of the cameras.</source>
        <translation>이 파일이 맞는 카메라가 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n damaged line(s) of the history were skipped.</source>
        <translation>
            <numerusform>업데이트 기록에서 손상된 줄 %n개를 건너뛰었습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file does not fit camera %1: %2.</source>
        <translation>파일이 카메라 %1에 맞지 않습니다: %2.</translation>
    </message>
    <message>
        <source>Camera %1 does not answer. Switch it off and on, then resume again.</source>
        <translation>카메라 %1이(가) 응답하지 않습니다. 전원을 껐다 켠 다음 다시 resume을 실행하십시오.</translation>
    </message>
    <message>
        <source>Camera %1: the file &quot;%2&quot; is not the one any more with which its update was begun; use &quot;update&quot;.</source>
        <translation>카메라 %1: 파일 &quot;%2&quot;은(는) 업데이트를 시작했을 때의 파일이 아닙니다. &quot;update&quot;를 사용하십시오.</translation>
    </message>
    <message>
        <source>No update was interrupted.</source>
        <translation>중단된 업데이트가 없습니다.</translation>
    </message>
    <message>
        <source>it has the newer version %1 (--allow-downgrade)</source>
        <translation>더 새로운 버전 %1이(가) 있습니다(--allow-downgrade)</translation>
    </message>
    <message>
        <source>it has version %1 already (--allow-reinstall)</source>
        <translation>이미 버전 %1입니다(--allow-reinstall)</translation>
    </message>
    <message>
        <source>There is no terminal to ask at; say --yes, or --dry-run to see what would be done.</source>
        <translation>물어볼 터미널이 없습니다. --yes를 지정하거나, 무엇을 할지 보려면 --dry-run을 지정하십시오.</translation>
    </message>
    <message numerus="yes">
        <source>Update %n camera(s)? [y/N]</source>
        <translation>
            <numerusform>카메라 %n대를 업데이트하시겠습니까? [y/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was updated.</source>
        <translation>아무것도 업데이트되지 않았습니다.</translation>
    </message>
    <message>
        <source>No further camera begins. Those that run are finished; cut off, they could be damaged.</source>
        <translation>다음 카메라는 시작하지 않습니다. 실행 중인 업데이트는 끝까지 진행합니다. 도중에 끊으면 카메라가 손상될 수 있습니다.</translation>
    </message>
    <message>
        <source>Stopped; nothing was updated.</source>
        <translation>중지되었습니다. 아무것도 업데이트되지 않았습니다.</translation>
    </message>
    <message>
        <source>The output cannot be written: %1; the updates go on, see the history.</source>
        <translation>출력을 쓸 수 없습니다: %1. 업데이트는 계속되며 결과는 업데이트 기록에 있습니다.</translation>
    </message>
    <message>
        <source>The output cannot be written: %1.</source>
        <translation>출력을 쓸 수 없습니다: %1.</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CUpdateSeries</name>
    <message>
        <source>the camera is not there any more</source>
        <translation>카메라가 더 이상 없습니다</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CDependencyResolver</name>
    <message>
        <source>Its name is that of a part of the viewer.</source>
        <translation>이름이 뷰어의 구성 요소와 같습니다.</translation>
    </message>
    <message>
        <source>A plug-in of the same name was found before: %1.</source>
        <translation>같은 이름의 플러그인이 이미 있습니다: %1.</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot;, which could not be started.</source>
        <translation>&quot;%1&quot;이(가) 필요하지만 시작하지 못했습니다.</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot; %2, which is missing.</source>
        <translation>&quot;%1&quot; %2이(가) 필요하지만 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>It is part of a circular dependency: %1.</source>
        <translation>순환 종속성이 있습니다: %1.</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot; %2, but version %3 is installed, which is compatible with %4 and later.</source>
        <translation>&quot;%1&quot; %2이(가) 필요하지만, 설치된 버전은 %3이며 %4 버전부터만 호환됩니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CPluginManager</name>
    <message>
        <source>an unknown exception</source>
        <translation>알 수 없는 예외</translation>
    </message>
    <message>
        <source>It could not set its language</source>
        <translation>언어를 설정하지 못했습니다</translation>
    </message>
    <message>
        <source>It could not be initialized</source>
        <translation>초기화하지 못했습니다</translation>
    </message>
    <message>
        <source>It could not be connected to the viewer</source>
        <translation>뷰어에 연결하지 못했습니다</translation>
    </message>
    <message>
        <source>It could not be constructed: %1.</source>
        <translation>생성하지 못했습니다: %1.</translation>
    </message>
    <message>
        <source>Its library could not be loaded: %1.</source>
        <translation>라이브러리를 불러오지 못했습니다: %1.</translation>
    </message>
    <message>
        <source>Its library does not contain what its metadata says.</source>
        <translation>라이브러리의 내용이 메타데이터와 다릅니다.</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot;, which could not be started.</source>
        <translation>&quot;%1&quot;이(가) 필요하지만 시작하지 못했습니다.</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; (%2) is not available. %3</source>
        <translation>플러그인 &quot;%1&quot;(%2)을(를) 사용할 수 없습니다. %3</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CPluginScanner</name>
    <message>
        <source>The file is damaged or is not a library.</source>
        <translation>파일이 손상되었거나 라이브러리가 아닙니다.</translation>
    </message>
    <message>
        <source>Its folder &quot;%1&quot; is not safe: %2.</source>
        <translation>폴더 &quot;%1&quot;이(가) 안전하지 않습니다: %2.</translation>
    </message>
    <message>
        <source>Its file is not safe: %1.</source>
        <translation>파일이 안전하지 않습니다: %1.</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CPluginSpec</name>
    <message>
        <source>It was built for the interface &quot;%1&quot;, but this viewer has &quot;%2&quot;.</source>
        <translation>인터페이스 &quot;%1&quot;용으로 빌드되었지만, 이 뷰어의 인터페이스는 &quot;%2&quot;입니다.</translation>
    </message>
    <message>
        <source>Its metadata has no &quot;Name&quot;.</source>
        <translation>메타데이터에 &quot;Name&quot;이 없습니다.</translation>
    </message>
    <message>
        <source>The &quot;Dependencies&quot; of its metadata are not a list.</source>
        <translation>메타데이터의 &quot;Dependencies&quot;가 목록이 아닙니다.</translation>
    </message>
    <message>
        <source>A dependency in its metadata has no &quot;Name&quot;.</source>
        <translation>메타데이터의 종속 항목에 &quot;Name&quot;이 없습니다.</translation>
    </message>
    <message>
        <source>The &quot;%1&quot; of &quot;%2&quot; in its metadata is not a version number: &quot;%3&quot;.</source>
        <translation>메타데이터에서 &quot;%2&quot;의 &quot;%1&quot;이(가) 버전 번호가 아닙니다: &quot;%3&quot;.</translation>
    </message>
    <message>
        <source>It was built with Qt %1, but this viewer needs plug-ins that were built with Qt %2.</source>
        <translation>Qt %1(으)로 빌드되었지만, 이 뷰어에는 Qt %2(으)로 빌드된 플러그인이 필요합니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::Text::CErrorText</name>
    <message>
        <source>Camera %1: %2</source>
        <translation>카메라 %1: %2</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>메모리가 부족합니다</translation>
    </message>
    <message>
        <source>it is already being updated</source>
        <translation>이미 업데이트 중입니다</translation>
    </message>
    <message>
        <source>it is acquiring images; stop that and start the update again</source>
        <translation>영상을 획득하고 있습니다. 영상 획득을 중지한 후 업데이트를 다시 시작하십시오</translation>
    </message>
    <message>
        <source>the update failed for an unknown reason</source>
        <translation>알 수 없는 이유로 업데이트에 실패했습니다</translation>
    </message>
    <message>
        <source>%1; the update had already begun to write, so repeat it before the camera is used</source>
        <translation>%1. 이미 펌웨어를 쓰기 시작했으므로, 카메라를 사용하기 전에 업데이트를 다시 수행하십시오</translation>
    </message>
    <message>
        <source>it does not answer; check its cable and its power supply</source>
        <translation>응답하지 않습니다. 케이블과 전원을 확인하십시오</translation>
    </message>
    <message>
        <source>it is already open</source>
        <translation>이미 열려 있습니다</translation>
    </message>
    <message>
        <source>it has no feature &quot;%1&quot; that can be read</source>
        <translation>읽을 수 있는 기능 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>it refuses to write the feature &quot;%1&quot;</source>
        <translation>기능 &quot;%1&quot;의 쓰기를 거부했습니다</translation>
    </message>
    <message>
        <source>it has no feature &quot;%1&quot; that can be written</source>
        <translation>쓸 수 있는 기능 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>it has no command &quot;%1&quot;</source>
        <translation>명령 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>it refuses to write the file &quot;%1&quot;</source>
        <translation>카메라 내부 파일 &quot;%1&quot;의 쓰기를 거부했습니다</translation>
    </message>
    <message>
        <source>the data for its file &quot;%1&quot; ended after %2 of %3 bytes (%4)</source>
        <translation>카메라 내부 파일 &quot;%1&quot;의 데이터가 전체 %3바이트 중 %2바이트에서 끝났습니다(%4)</translation>
    </message>
    <message>
        <source>the upload of its file &quot;%1&quot; broke off after %2 of %3 bytes</source>
        <translation>카메라 내부 파일 &quot;%1&quot;의 업로드가 전체 %3바이트 중 %2바이트에서 중단되었습니다</translation>
    </message>
    <message>
        <source>it did not come back from its reset within %1 s; switch it off and on</source>
        <translation>리셋 후 %1초 이내에 다시 연결되지 않았습니다. 카메라를 껐다가 다시 켜십시오</translation>
    </message>
    <message>
        <source>it did not answer within %1 s</source>
        <translation>%1초 이내에 응답하지 않았습니다</translation>
    </message>
    <message>
        <source>it is not open</source>
        <translation>열려 있지 않습니다</translation>
    </message>
    <message>
        <source>the connection was lost; check its cable and its power supply</source>
        <translation>연결이 끊어졌습니다. 케이블과 전원을 확인하십시오</translation>
    </message>
    <message>
        <source>there is no complete firmware image to activate</source>
        <translation>활성화할 완전한 펌웨어 이미지가 없습니다</translation>
    </message>
    <message>
        <source>it does not accept the uploaded file as a firmware image</source>
        <translation>업로드된 파일을 펌웨어 이미지로 인식하지 못했습니다</translation>
    </message>
    <message>
        <source>the uploaded firmware image is for model %1, not for %2</source>
        <translation>업로드된 펌웨어 이미지는 모델 %2용이 아니라 %1용입니다</translation>
    </message>
    <message>
        <source>the update file contains a step of an unknown kind</source>
        <translation>업데이트 파일에 알 수 없는 종류의 단계가 있습니다</translation>
    </message>
    <message>
        <source>it cannot be updated now, since it reports status %1</source>
        <translation>카메라 상태가 %1이므로 지금은 업데이트할 수 없습니다</translation>
    </message>
    <message>
        <source>the archive is cut off at its end; copy the file again</source>
        <translation>압축 파일의 끝부분이 잘렸습니다. 파일을 다시 복사하십시오</translation>
    </message>
    <message>
        <source>this is not an update file, as it is not a ZIP archive</source>
        <translation>ZIP 압축 파일이 아니므로 업데이트 파일이 아닙니다</translation>
    </message>
    <message>
        <source>the archive is one part of several; pack it as one file</source>
        <translation>분할된 압축 파일의 일부입니다. 하나의 파일로 압축하십시오</translation>
    </message>
    <message>
        <source>there is not enough memory to read the archive</source>
        <translation>압축 파일을 읽기 위한 메모리가 부족합니다</translation>
    </message>
    <message>
        <source>the file cannot be read from the disk</source>
        <translation>디스크에서 파일을 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>the archive is damaged; copy the file again</source>
        <translation>압축 파일이 손상되었습니다. 파일을 다시 복사하십시오</translation>
    </message>
    <message>
        <source>there is no update.json in the archive</source>
        <translation>압축 파일에 update.json이 없습니다</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>파일이 없습니다</translation>
    </message>
    <message>
        <source>this is a folder, not a file</source>
        <translation>파일이 아니라 폴더입니다</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>the file cannot be opened; check its access rights</source>
        <translation>파일을 열 수 없습니다. 액세스 권한을 확인하십시오</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>파일이 비어 있습니다</translation>
    </message>
    <message>
        <source>the file cannot be opened; too many files are open</source>
        <translation>열려 있는 파일이 너무 많아 파일을 열 수 없습니다</translation>
    </message>
    <message>
        <source>the archive unpacks to more than %1 bytes</source>
        <translation>압축을 푼 크기가 %1바이트를 초과합니다</translation>
    </message>
    <message>
        <source>entry %1 of the archive has no name, or one that is not UTF-8</source>
        <translation>압축 파일의 %1번째 항목에 이름이 없거나 이름이 UTF-8이 아닙니다</translation>
    </message>
    <message>
        <source>Update file %1: %2</source>
        <translation>업데이트 파일 %1: %2</translation>
    </message>
    <message>
        <source>it did not answer; check its cable, its power supply and the network</source>
        <translation>응답하지 않았습니다. 케이블, 전원 및 네트워크를 확인하십시오</translation>
    </message>
    <message>
        <source>control over it was lost; close other applications that use it</source>
        <translation>카메라의 제어권을 잃었습니다. 카메라를 사용하는 다른 응용 프로그램을 닫으십시오</translation>
    </message>
    <message>
        <source>it is busy; try again later</source>
        <translation>다른 작업을 처리하고 있습니다. 나중에 다시 시도하십시오</translation>
    </message>
    <message>
        <source>it refused (%1)</source>
        <translation>카메라가 요청을 거부했습니다(%1)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>its memory could not be written</source>
        <translation>카메라 메모리에 쓰지 못했습니다</translation>
    </message>
    <message>
        <source>opening its file &quot;%1&quot; failed</source>
        <translation>카메라 내부 파일 &quot;%1&quot;을(를) 열지 못했습니다</translation>
    </message>
    <message>
        <source>writing its file &quot;%1&quot; failed at byte %2</source>
        <translation>카메라 내부 파일 &quot;%1&quot;의 %2바이트 위치에서 쓰지 못했습니다</translation>
    </message>
    <message>
        <source>closing its file &quot;%1&quot; failed</source>
        <translation>카메라 내부 파일 &quot;%1&quot;을(를) 닫지 못했습니다</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>시간이 너무 오래 걸렸습니다</translation>
    </message>
    <message>
        <source>it reports the status &quot;%1&quot;</source>
        <translation>카메라 상태가 &quot;%1&quot;입니다</translation>
    </message>
    <message>
        <source>it could not be opened</source>
        <translation>카메라를 열지 못했습니다</translation>
    </message>
    <message>
        <source>its command &quot;%1&quot; took too long; switch the camera off and on and repeat the update</source>
        <translation>명령 &quot;%1&quot;의 실행 시간이 너무 오래 걸렸습니다. 카메라를 껐다가 다시 켠 후 업데이트를 다시 수행하십시오</translation>
    </message>
    <message>
        <source>the upload of its file &quot;%1&quot; took too long; it was broken off after %2 of %3 bytes</source>
        <translation>카메라 내부 파일 &quot;%1&quot;의 업로드 시간이 너무 오래 걸려 전체 %3바이트 중 %2바이트에서 중단되었습니다</translation>
    </message>
    <message>
        <source>same serial number as another camera</source>
        <translation>다른 카메라와 일련번호가 같음</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; could not be read</source>
        <translation>기능 &quot;%1&quot;을(를) 읽지 못했습니다</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; could not be set to &quot;%2&quot;</source>
        <translation>기능 &quot;%1&quot;을(를) &quot;%2&quot;(으)로 설정하지 못했습니다</translation>
    </message>
    <message>
        <source>it has no feature &quot;%1&quot;; the update file may be for another model</source>
        <translation>기능 &quot;%1&quot;이(가) 없습니다. 업데이트 파일이 다른 모델용일 수 있습니다</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; is not a command</source>
        <translation>기능 &quot;%1&quot;은(는) 명령이 아닙니다</translation>
    </message>
    <message>
        <source>its command &quot;%1&quot; could not be executed</source>
        <translation>명령 &quot;%1&quot;을(를) 실행하지 못했습니다</translation>
    </message>
    <message>
        <source>it could not be found out whether its command &quot;%1&quot; has finished</source>
        <translation>명령 &quot;%1&quot;의 완료 여부를 확인하지 못했습니다</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; is not a register</source>
        <translation>기능 &quot;%1&quot;은(는) 레지스터가 아닙니다</translation>
    </message>
    <message>
        <source>its buffer for files has no room (length 0)</source>
        <translation>파일 전송용 버퍼의 크기가 0입니다</translation>
    </message>
    <message>
        <source>it accepted only %1 of %2 bytes</source>
        <translation>%2바이트 중 %1바이트만 받았습니다</translation>
    </message>
    <message>
        <source>another camera has the same vendor, model and serial number; connect only one of them and search for cameras again</source>
        <translation>제조사, 모델 및 일련번호가 같은 카메라가 또 있습니다. 그중 하나만 연결하고 카메라를 다시 검색하십시오</translation>
    </message>
    <message>
        <source>another camera, %1, answers at its address; search for cameras again</source>
        <translation>해당 주소에서 다른 카메라 %1이(가) 응답합니다. 카메라를 다시 검색하십시오</translation>
    </message>
    <message>
        <source>its address cannot be reached; check the network settings of this computer</source>
        <translation>카메라의 주소에 연결할 수 없습니다. 이 컴퓨터의 네트워크 설정을 확인하십시오</translation>
    </message>
    <message>
        <source>it is in use by another application; close that application and start the update again</source>
        <translation>다른 응용 프로그램에서 사용 중입니다. 해당 응용 프로그램을 닫고 업데이트를 다시 시작하십시오</translation>
    </message>
    <message>
        <source>it did not come back from its reset; switch it off and on and check its firmware version</source>
        <translation>리셋 후 다시 연결되지 않았습니다. 카메라를 껐다가 다시 켠 후 펌웨어 버전을 확인하십시오</translation>
    </message>
    <message>
        <source>it did not restart; switch it off and on and check its firmware version</source>
        <translation>다시 시작되지 않았습니다. 카메라를 껐다가 다시 켠 후 펌웨어 버전을 확인하십시오</translation>
    </message>
    <message>
        <source>the field is given twice</source>
        <translation>필드가 두 번 지정되었습니다</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; is missing</source>
        <translation>필드 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>format %1 is unknown, only format 1 can be read</source>
        <translation>형식 %1은(는) 알 수 없습니다. 형식 1만 읽을 수 있습니다</translation>
    </message>
    <message>
        <source>more than %1 transport layers</source>
        <translation>전송 계층이 %1개를 초과합니다</translation>
    </message>
    <message>
        <source>more than %1 cameras</source>
        <translation>카메라가 %1대를 초과합니다</translation>
    </message>
    <message>
        <source>the id &quot;%1&quot; is already used in line %2</source>
        <translation>ID &quot;%1&quot;은(는) %2행에서 이미 사용되었습니다</translation>
    </message>
    <message>
        <source>the text must not be empty</source>
        <translation>문자열이 비어 있으면 안 됩니다</translation>
    </message>
    <message>
        <source>the text has %1 characters; at most %2 are allowed</source>
        <translation>문자열이 %1자입니다. 최대 %2자까지 허용됩니다</translation>
    </message>
    <message>
        <source>the text must not contain line breaks or control characters</source>
        <translation>문자열에 줄 바꿈이나 제어 문자가 있으면 안 됩니다</translation>
    </message>
    <message>
        <source>Camera description &quot;%1&quot; cannot be read: it is not a regular file</source>
        <translation>카메라 기술 파일 &quot;%1&quot;을(를) 읽을 수 없습니다: 일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>Camera description &quot;%1&quot; cannot be read: %2</source>
        <translation>카메라 기술 파일 &quot;%1&quot;을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Camera description &quot;%1&quot; is larger than %2 bytes</source>
        <translation>카메라 기술 파일 &quot;%1&quot;이(가) %2바이트보다 큽니다</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>비어 있습니다</translation>
    </message>
    <message>
        <source>is longer than %1 characters</source>
        <translation>%1자를 초과합니다</translation>
    </message>
    <message>
        <source>has a control character</source>
        <translation>제어 문자가 있습니다</translation>
    </message>
    <message>
        <source>has a backslash; use forward slashes</source>
        <translation>백슬래시가 있습니다. 슬래시(/)를 사용하십시오</translation>
    </message>
    <message>
        <source>has a colon; drive letters are not allowed</source>
        <translation>콜론이 있습니다. 드라이브 문자는 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>is an absolute path; use one inside the archive</source>
        <translation>절대 경로입니다. 압축 파일 내부의 경로를 사용하십시오</translation>
    </message>
    <message>
        <source>has an empty part or one of dots only; use a plain path</source>
        <translation>비어 있거나 점으로만 된 부분이 있습니다. 일반 경로를 사용하십시오</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true 또는 false</translation>
    </message>
    <message>
        <source>a value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>the format version is %1, but this program reads version %2 only</source>
        <translation>형식 버전이 %1이지만, 이 프로그램은 버전 %2만 읽을 수 있습니다</translation>
    </message>
    <message>
        <source>update.json has %1 bytes; at most %2 are allowed</source>
        <translation>update.json의 크기가 %1바이트입니다. 최대 %2바이트까지 허용됩니다</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; cannot be read; the archive is damaged</source>
        <translation>파일 &quot;%1&quot;을(를) 읽을 수 없습니다. 압축 파일이 손상되었습니다</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; is damaged and cannot be unpacked</source>
        <translation>파일 &quot;%1&quot;이(가) 손상되어 압축을 풀 수 없습니다</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; unpacks to more bytes than the archive declares</source>
        <translation>파일 &quot;%1&quot;의 압축을 푼 크기가 압축 파일에 기록된 크기보다 큽니다</translation>
    </message>
    <message>
        <source>update.json is in a folder of the archive (&quot;%1&quot;); it must be at the top level</source>
        <translation>update.json이 압축 파일의 폴더 안에 있습니다(&quot;%1&quot;). 최상위에 있어야 합니다</translation>
    </message>
    <message>
        <source>the file has %1 bytes; at most %2 are allowed</source>
        <translation>파일 크기가 %1바이트입니다. 최대 %2바이트까지 허용됩니다</translation>
    </message>
    <message>
        <source>the archive has %1 entries; at most %2 are allowed</source>
        <translation>압축 파일에 항목이 %1개 있습니다. 최대 %2개까지 허용됩니다</translation>
    </message>
    <message>
        <source>the archive has two entries named &quot;%1&quot;</source>
        <translation>압축 파일에 이름이 &quot;%1&quot;인 항목이 두 개 있습니다</translation>
    </message>
    <message>
        <source>the entry name &quot;%1&quot; %2</source>
        <translation>항목 이름 &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>the entry &quot;%1&quot; of the archive is damaged</source>
        <translation>압축 파일의 항목 &quot;%1&quot;이(가) 손상되었습니다</translation>
    </message>
    <message>
        <source>the entry &quot;%1&quot; is encrypted; pack it without a password</source>
        <translation>항목 &quot;%1&quot;이(가) 암호화되어 있습니다. 암호 없이 압축하십시오</translation>
    </message>
    <message>
        <source>the entry &quot;%1&quot; is compressed by a method other than Deflate</source>
        <translation>항목 &quot;%1&quot;이(가) Deflate 이외의 방식으로 압축되었습니다</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; is missing in the archive</source>
        <translation>압축 파일에 데이터 파일 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; is too short: it has %2 bytes where update.json says %3</source>
        <translation>데이터 파일 &quot;%1&quot;이(가) 너무 짧습니다. update.json에는 %3바이트이지만 실제로는 %2바이트입니다</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; is too long: it has %2 bytes where update.json says %3</source>
        <translation>데이터 파일 &quot;%1&quot;이(가) 너무 깁니다. update.json에는 %3바이트이지만 실제로는 %2바이트입니다</translation>
    </message>
    <message>
        <source>the archive has a file &quot;%1&quot; that no step uploads</source>
        <translation>압축 파일에 어떤 단계에서도 업로드하지 않는 파일 &quot;%1&quot;이(가) 있습니다</translation>
    </message>
    <message>
        <source>the update is not for its model &quot;%1&quot;</source>
        <translation>이 업데이트는 해당 카메라 모델 &quot;%1&quot;용이 아닙니다</translation>
    </message>
    <message>
        <source>the update is not for its device version &quot;%1&quot;</source>
        <translation>이 업데이트는 해당 장치 버전 &quot;%1&quot;용이 아닙니다</translation>
    </message>
    <message>
        <source>the update needs firmware version %1 or later, but the camera has &quot;%2&quot;; install an older update first</source>
        <translation>이 업데이트에는 펌웨어 버전 %1 이상이 필요하지만, 카메라의 버전은 &quot;%2&quot;입니다. 먼저 더 낮은 버전의 업데이트를 설치하십시오</translation>
    </message>
    <message>
        <source>a precondition of the update is not met: its feature &quot;%1&quot; is &quot;%2&quot; instead of &quot;%3&quot;</source>
        <translation>업데이트의 사전 조건이 충족되지 않았습니다: 기능 &quot;%1&quot;의 값이 &quot;%3&quot;이어야 하지만 &quot;%2&quot;입니다</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; is &quot;%2&quot; instead of &quot;%3&quot;</source>
        <translation>기능 &quot;%1&quot;의 값이 &quot;%3&quot;이어야 하지만 &quot;%2&quot;입니다</translation>
    </message>
    <message>
        <source>after the update it reports firmware version &quot;%1&quot; instead of %2</source>
        <translation>업데이트 후 보고된 펌웨어 버전이 %2이어야 하지만 &quot;%1&quot;입니다</translation>
    </message>
    <message>
        <source>the archive cannot be created</source>
        <translation>압축 파일을 만들 수 없습니다</translation>
    </message>
    <message>
        <source>the archive cannot be written: %1</source>
        <translation>압축 파일에 쓸 수 없습니다: %1</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; is missing in the folder</source>
        <translation>폴더에 데이터 파일 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>its folder does not exist or is read-only</source>
        <translation>파일의 폴더가 없거나 읽기 전용입니다</translation>
    </message>
    <message>
        <source>the file cannot be replaced</source>
        <translation>파일을 바꿀 수 없습니다</translation>
    </message>
    <message>
        <source>this is not a folder</source>
        <translation>폴더가 아닙니다</translation>
    </message>
    <message>
        <source>there is no update.json in the folder</source>
        <translation>폴더에 update.json이 없습니다</translation>
    </message>
    <message>
        <source>update.json cannot be opened; check its access rights</source>
        <translation>update.json을 열 수 없습니다. 액세스 권한을 확인하십시오</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; is empty</source>
        <translation>데이터 파일 &quot;%1&quot;이(가) 비어 있습니다</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; cannot be read</source>
        <translation>데이터 파일 &quot;%1&quot;을(를) 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>the name of a field in double quotes</source>
        <translation>큰따옴표로 묶은 필드 이름</translation>
    </message>
    <message>
        <source>expected a colon after &quot;%1&quot;, found %2</source>
        <translation>&quot;%1&quot; 다음에 콜론이 필요하지만 %2이(가) 있습니다</translation>
    </message>
    <message>
        <source>a text in double quotes</source>
        <translation>큰따옴표로 묶은 문자열</translation>
    </message>
    <message>
        <source>expected a number, found %1</source>
        <translation>숫자가 필요하지만 %1이(가) 있습니다</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>%1에서 %2 사이의 정수</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation>%1이(가) 필요하지만 %2이(가) 있습니다</translation>
    </message>
    <message>
        <source>expected the end of the text, found %1</source>
        <translation>텍스트가 끝나야 하지만 %1이(가) 있습니다</translation>
    </message>
    <message>
        <source>a list that begins with &quot;[&quot;</source>
        <translation>&quot;[&quot;로 시작하는 목록</translation>
    </message>
    <message>
        <source>an object that begins with &quot;{&quot;</source>
        <translation>&quot;{&quot;로 시작하는 개체</translation>
    </message>
    <message>
        <source>expected a comma or &quot;%1&quot;, found %2</source>
        <translation>쉼표 또는 &quot;%1&quot;이(가) 필요하지만 %2이(가) 있습니다</translation>
    </message>
    <message>
        <source>the text is not valid UTF-8</source>
        <translation>문자열이 올바른 UTF-8이 아닙니다</translation>
    </message>
    <message>
        <source>the text has no closing double quote</source>
        <translation>문자열을 닫는 큰따옴표가 없습니다</translation>
    </message>
    <message>
        <source>the text contains a control character</source>
        <translation>문자열에 제어 문자가 있습니다</translation>
    </message>
    <message>
        <source>unknown escape sequence in a text</source>
        <translation>문자열에 알 수 없는 이스케이프 시퀀스가 있습니다</translation>
    </message>
    <message>
        <source>the text contains half a surrogate pair</source>
        <translation>문자열에 서로게이트 쌍의 한쪽만 있습니다</translation>
    </message>
    <message>
        <source>expected four hexadecimal digits after &quot;\u&quot;</source>
        <translation>&quot;\u&quot; 다음에 16진수 4자리가 필요합니다</translation>
    </message>
    <message>
        <source>the end of the text</source>
        <translation>텍스트의 끝</translation>
    </message>
    <message>
        <source>an unexpected character</source>
        <translation>예기치 않은 문자</translation>
    </message>
    <message>
        <source>a double quote</source>
        <translation>큰따옴표</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>null</source>
        <translation>null 값</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; refers to itself</source>
        <translation>기능 &quot;%1&quot;이(가) 자기 자신을 참조합니다</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; refers to too many others</source>
        <translation>기능 &quot;%1&quot;이(가) 다른 기능을 너무 많이 참조합니다</translation>
    </message>
    <message>
        <source>its feature description is larger than %1 bytes</source>
        <translation>기능 설명이 %1바이트보다 큽니다</translation>
    </message>
    <message>
        <source>its feature description is nested too deeply</source>
        <translation>기능 설명이 너무 깊게 중첩되어 있습니다</translation>
    </message>
    <message>
        <source>its feature description defines entities</source>
        <translation>기능 설명에 엔터티 정의가 있습니다</translation>
    </message>
    <message>
        <source>its feature description is damaged in line %1</source>
        <translation>기능 설명의 %1번째 줄이 손상되었습니다</translation>
    </message>
    <message>
        <source>its feature description describes no features</source>
        <translation>기능 설명에 기능이 없습니다</translation>
    </message>
    <message>
        <source>its packed feature description is damaged</source>
        <translation>압축된 기능 설명이 손상되었습니다</translation>
    </message>
    <message>
        <source>its feature description does not lie in the camera</source>
        <translation>기능 설명이 카메라 안에 있지 않습니다</translation>
    </message>
    <message>
        <source>its feature description is empty</source>
        <translation>기능 설명이 비어 있습니다</translation>
    </message>
    <message>
        <source>its feature description could not be read</source>
        <translation>기능 설명을 읽지 못했습니다</translation>
    </message>
    <message>
        <source>the SHA-256 of the payload &quot;%1&quot; cannot be computed; check the settings of OpenSSL on this computer</source>
        <translation>데이터 파일 &quot;%1&quot;의 SHA-256을 계산할 수 없습니다. 이 컴퓨터의 OpenSSL 설정을 확인하십시오</translation>
    </message>
    <message>
        <source>Camera description &quot;%1&quot;, %2</source>
        <translation>카메라 기술 파일 &quot;%1&quot;, %2</translation>
    </message>
    <message>
        <source>a second %1; one is allowed</source>
        <translation>두 번째 %1입니다. 하나만 허용됩니다</translation>
    </message>
    <message>
        <source>preconditions are checked after a step that changes the camera</source>
        <translation>카메라를 변경하는 단계 이후에 사전 조건을 확인합니다</translation>
    </message>
    <message>
        <source>the update data is acquired after a FileUpload</source>
        <translation>FileUpload 이후에 업데이트 데이터를 가져옵니다</translation>
    </message>
    <message>
        <source>the list has more than %1 items</source>
        <translation>목록의 항목이 %1개를 초과합니다</translation>
    </message>
    <message>
        <source>the list must not be empty</source>
        <translation>목록이 비어 있으면 안 됩니다</translation>
    </message>
    <message>
        <source>the list has &quot;%1&quot; twice</source>
        <translation>목록에서 &quot;%1&quot;이(가) 중복되었습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a version like 2.0.0 or 2.0.0-rc1</source>
        <translation>&quot;%1&quot;은(는) 2.0.0 또는 2.0.0-rc1과 같은 버전이 아닙니다</translation>
    </message>
    <message>
        <source>the steps take %1 ms by their estimates; at most %2 are allowed</source>
        <translation>단계의 예상 시간 합계가 %1ms입니다. 최대 %2ms까지 허용됩니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of step; known kinds are %2</source>
        <translation>&quot;%1&quot;은(는) 알 수 없는 종류의 단계입니다. 사용할 수 있는 종류: %2</translation>
    </message>
    <message>
        <source>the payload is the manifest itself</source>
        <translation>데이터 파일로 매니페스트 자체를 지정했습니다</translation>
    </message>
    <message>
        <source>the text has to be %1 hexadecimal digits</source>
        <translation>문자열은 16진수 %1자리여야 합니다</translation>
    </message>
    <message>
        <source>update.json, %1</source>
        <translation>update.json의 %1</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; does not match its SHA-256 in update.json; one of the two was replaced</source>
        <translation>데이터 파일 &quot;%1&quot;이(가) update.json의 SHA-256과 일치하지 않습니다. 둘 중 하나가 바뀌었습니다</translation>
    </message>
    <message>
        <source>the payloads have %1 bytes together; at most %2 are allowed</source>
        <translation>데이터 파일의 크기가 모두 %1바이트입니다. 최대 %2바이트까지 허용됩니다</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>%1행 %2열: %3</translation>
    </message>
    <message>
        <source>line %1, column %2, field &quot;%3&quot;: %4</source>
        <translation>%1행 %2열, 필드 &quot;%3&quot;: %4</translation>
    </message>
    <message>
        <source>unknown field; known here are %1</source>
        <translation>알 수 없는 필드입니다. 여기에서 사용할 수 있는 필드: %1</translation>
    </message>
    <message>
        <source>the text must not contain control characters</source>
        <translation>문자열에 제어 문자가 있으면 안 됩니다</translation>
    </message>
    <message>
        <source>the text must not begin or end with white space</source>
        <translation>문자열 앞이나 뒤에 공백이 있으면 안 됩니다</translation>
    </message>
    <message>
        <source>lists and objects stand in each other more than %1 deep</source>
        <translation>목록과 개체가 %1단계보다 깊게 중첩되어 있습니다</translation>
    </message>
    <message>
        <source>there is room for %1 of its %2 bytes</source>
        <translation>%2바이트 중 %1바이트만 쓸 공간이 있습니다</translation>
    </message>
    <message>
        <source>The history of updates is not kept: there is no home folder.</source>
        <translation>홈 폴더가 없어 업데이트 기록이 보관되지 않습니다.</translation>
    </message>
    <message>
        <source>The history of updates &quot;%1&quot; cannot be written: %2.</source>
        <translation>업데이트 기록 &quot;%1&quot;에 쓸 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>expected a time like 2026-01-31T12:00:00Z</source>
        <translation>2026-01-31T12:00:00Z와 같은 시간이 필요합니다</translation>
    </message>
    <message>
        <source>unknown outcome</source>
        <translation>알 수 없는 결과입니다</translation>
    </message>
    <message>
        <source>the update program does not know a camera of this kind</source>
        <translation>업데이트 프로그램이 이 종류의 카메라를 알지 못합니다</translation>
    </message>
    <message>
        <source>the update file is another one than the one that was shown; select it again</source>
        <translation>업데이트 파일이 표시된 것과 다릅니다. 다시 선택하십시오</translation>
    </message>
    <message>
        <source>the update file has no such update</source>
        <translation>업데이트 파일에 해당 업데이트가 없습니다</translation>
    </message>
    <message>
        <source>the update was canceled</source>
        <translation>업데이트가 취소되었습니다</translation>
    </message>
    <message>
        <source>it did not answer in time; switch it off and on and check its firmware version</source>
        <translation>제한 시간 안에 응답하지 않았습니다. 전원을 껐다가 켜고 펌웨어 버전을 확인하십시오</translation>
    </message>
    <message>
        <source>the update program &quot;%1&quot; cannot be started (%2); install the viewer again</source>
        <translation>업데이트 프로그램 &quot;%1&quot;을(를) 시작할 수 없습니다(%2). 뷰어를 다시 설치하십시오</translation>
    </message>
    <message>
        <source>the update program ended unexpectedly (signal %1)</source>
        <translation>업데이트 프로그램이 예기치 않게 종료되었습니다(시그널 %1)</translation>
    </message>
    <message>
        <source>the update program ended unexpectedly (exit code %1)</source>
        <translation>업데이트 프로그램이 예기치 않게 종료되었습니다(종료 코드 %1)</translation>
    </message>
    <message>
        <source>the update program does not answer any more</source>
        <translation>업데이트 프로그램이 더 이상 응답하지 않습니다</translation>
    </message>
    <message>
        <source>the update program says something that is not understood; install the viewer again</source>
        <translation>업데이트 프로그램의 메시지를 이해할 수 없습니다. 뷰어를 다시 설치하십시오</translation>
    </message>
    <message>
        <source>it is for the model %1</source>
        <translation>모델 %1용입니다</translation>
    </message>
    <message>
        <source>it is for the device version %1, the camera has %2</source>
        <translation>장치 버전 %1용인데 카메라는 %2입니다</translation>
    </message>
    <message>
        <source>it needs firmware version %1 or newer, the camera has %2</source>
        <translation>펌웨어 버전 %1 이상이 필요한데 카메라는 %2입니다</translation>
    </message>
    <message>
        <source>its images could not be asked for</source>
        <translation>영상을 요청할 수 없습니다</translation>
    </message>
    <message>
        <source>the camera program does not know a camera of this kind</source>
        <translation>카메라 프로그램이 이 종류의 카메라를 알지 못합니다</translation>
    </message>
    <message>
        <source>the pixel format %1 is unknown</source>
        <translation>픽셀 형식 %1을(를) 알 수 없습니다</translation>
    </message>
    <message>
        <source>an image of %1 x %2 pixels (%3) cannot be shown</source>
        <translation>%1 x %2픽셀 영상(%3)은 표시할 수 없습니다</translation>
    </message>
    <message>
        <source>%1 bytes behind each line of an image are impossible</source>
        <translation>영상의 각 줄 뒤에 %1바이트가 있을 수는 없습니다</translation>
    </message>
    <message>
        <source>the image has %1 of the %2 bytes that %3 x %4 pixels (%5) need</source>
        <translation>영상에 %3 x %4픽셀(%5)에 필요한 %2바이트 중 %1바이트만 있습니다</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; cannot be written (%2)</source>
        <translation>파일 &quot;%1&quot;에 쓸 수 없습니다(%2)</translation>
    </message>
    <message>
        <source>the camera program says something that is not understood; install the viewer again</source>
        <translation>카메라 프로그램이 이해할 수 없는 내용을 보냈습니다. 뷰어를 다시 설치하십시오</translation>
    </message>
    <message>
        <source>the memory for its images cannot be used (%1)</source>
        <translation>영상용 메모리를 사용할 수 없습니다(%1)</translation>
    </message>
    <message>
        <source>the camera program &quot;%1&quot; cannot be started (%2); install the viewer again</source>
        <translation>카메라 프로그램 &quot;%1&quot;을(를) 시작할 수 없습니다(%2). 뷰어를 다시 설치하십시오</translation>
    </message>
    <message>
        <source>the camera program ended unexpectedly (signal %1)</source>
        <translation>카메라 프로그램이 예기치 않게 종료되었습니다(신호 %1)</translation>
    </message>
    <message>
        <source>the camera program ended unexpectedly (exit code %1)</source>
        <translation>카메라 프로그램이 예기치 않게 종료되었습니다(종료 코드 %1)</translation>
    </message>
    <message>
        <source>it belongs to the user %1</source>
        <translation>사용자 %1의 소유입니다</translation>
    </message>
    <message>
        <source>users other than its owner can write to it</source>
        <translation>소유자가 아닌 사용자가 쓸 수 있습니다</translation>
    </message>
    <message>
        <source>%1 has %2 bytes; at most %3 are allowed</source>
        <translation>%1의 크기가 %2바이트입니다. 최대 %3바이트까지 허용됩니다</translation>
    </message>
    <message>
        <source>it cannot be signed: %1</source>
        <translation>서명할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>it cannot be copied into the temporary folder</source>
        <translation>임시 폴더로 복사할 수 없습니다</translation>
    </message>
    <message>
        <source>its RSA key has %1 bits; at least %2 are needed</source>
        <translation>RSA 키가 %1비트입니다. 최소 %2비트가 필요합니다</translation>
    </message>
    <message>
        <source>its key is of an unknown kind; known are RSA, EC P-256, EC P-384 and Ed25519</source>
        <translation>키의 종류를 알 수 없습니다. 사용할 수 있는 종류는 RSA, EC P-256, EC P-384, Ed25519입니다</translation>
    </message>
    <message>
        <source>it is not made for signing code</source>
        <translation>코드 서명용이 아닙니다</translation>
    </message>
    <message>
        <source>line %1 is neither &quot;signatures = tell&quot; nor &quot;signatures = require&quot;</source>
        <translation>%1행이 &quot;signatures = tell&quot;도 &quot;signatures = require&quot;도 아닙니다</translation>
    </message>
    <message>
        <source>Only signed update files can be used, since the file &quot;%1&quot; cannot be believed: %2.</source>
        <translation>파일 &quot;%1&quot;을(를) 믿을 수 없으므로 서명된 업데이트 파일만 사용할 수 있습니다: %2.</translation>
    </message>
    <message>
        <source>%1; only update files of trusted makers can be used here</source>
        <translation>%1. 여기에서는 신뢰하는 제작자의 업데이트 파일만 사용할 수 있습니다</translation>
    </message>
    <message>
        <source>it is not signed</source>
        <translation>서명되지 않았습니다</translation>
    </message>
    <message>
        <source>it is signed by %1</source>
        <translation>%1이(가) 서명했습니다</translation>
    </message>
    <message>
        <source>its signature is not trusted: %1</source>
        <translation>서명을 신뢰할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>the certificate of its signer is missing</source>
        <translation>서명자의 인증서가 없습니다</translation>
    </message>
    <message>
        <source>its digest is none that is known and strong enough; it has to be SHA-256, SHA-384 or SHA-512</source>
        <translation>다이제스트가 알려져 있지 않거나 안전하지 않습니다. SHA-256, SHA-384 또는 SHA-512여야 합니다</translation>
    </message>
    <message>
        <source>it is the signature of another update.json</source>
        <translation>다른 update.json의 서명입니다</translation>
    </message>
    <message>
        <source>it was not made with the key of %1, or by an unknown method</source>
        <translation>%1의 키로 서명되지 않았거나, 알 수 없는 방법으로 서명되었습니다</translation>
    </message>
    <message>
        <source>it has %1 bytes; at most %2 are allowed</source>
        <translation>크기가 %1바이트입니다. 최대 %2바이트까지 허용됩니다</translation>
    </message>
    <message>
        <source>it is not a detached CMS signature in DER</source>
        <translation>분리된 CMS 서명(DER)이 아닙니다</translation>
    </message>
    <message>
        <source>it has more than %1 certificates</source>
        <translation>인증서가 %1개를 초과합니다</translation>
    </message>
    <message>
        <source>it has more than %1 signers</source>
        <translation>서명자가 %1명을 초과합니다</translation>
    </message>
    <message>
        <source>it has a certificate of %1 bytes; at most %2 are allowed</source>
        <translation>인증서의 크기가 %1바이트입니다. 최대 %2바이트까지 허용됩니다</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; has no certificate in PEM</source>
        <translation>파일 &quot;%1&quot;에 PEM 인증서가 없습니다</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; cannot be read: %2</source>
        <translation>파일 &quot;%1&quot;을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; has no key in PEM, or its passphrase is wrong or missing</source>
        <translation>파일 &quot;%1&quot;에 PEM 키가 없거나, 키의 암호가 틀렸거나 없습니다</translation>
    </message>
    <message>
        <source>the key in &quot;%1&quot; is not that of the certificate</source>
        <translation>&quot;%1&quot;의 키는 인증서의 키가 아닙니다</translation>
    </message>
    <message>
        <source>OpenSSL cannot sign with this key</source>
        <translation>OpenSSL이 이 키로 서명할 수 없습니다</translation>
    </message>
    <message>
        <source>the certificate of %1 is not valid before %2</source>
        <translation>%1의 인증서는 %2부터 유효합니다</translation>
    </message>
    <message>
        <source>the certificate of %1 has expired on %2</source>
        <translation>%1의 인증서가 %2에 만료되었습니다</translation>
    </message>
    <message>
        <source>%1 is not among the trusted makers</source>
        <translation>%1은(는) 신뢰하는 제작자가 아닙니다</translation>
    </message>
    <message>
        <source>more than %1 certificates lead to a trusted maker</source>
        <translation>신뢰하는 제작자까지 인증서가 %1개를 초과합니다</translation>
    </message>
    <message>
        <source>the certificate of %1 has a weak key, or is signed by a weak method</source>
        <translation>%1의 인증서는 키가 약하거나, 약한 방법으로 서명되었습니다</translation>
    </message>
    <message>
        <source>the certificate of %1 cannot be used (%2)</source>
        <translation>%1의 인증서를 사용할 수 없습니다(%2)</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; is not read: %2</source>
        <translation>폴더 &quot;%1&quot;을(를) 읽지 않습니다: %2</translation>
    </message>
    <message>
        <source>of the folder &quot;%1&quot; only the first %2 files are read</source>
        <translation>폴더 &quot;%1&quot;에서 처음 %2개의 파일만 읽습니다</translation>
    </message>
    <message>
        <source>it is no regular file, or has more than %1 bytes</source>
        <translation>일반 파일이 아니거나, 크기가 %1바이트를 초과합니다</translation>
    </message>
    <message>
        <source>it has no certificate and no revocation list in PEM</source>
        <translation>PEM 인증서도 해지 목록도 없습니다</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; is not read: %2</source>
        <translation>파일 &quot;%1&quot;을(를) 읽지 않습니다: %2</translation>
    </message>
    <message>
        <source>the certificate of %1: %2</source>
        <translation>%1의 인증서: %2</translation>
    </message>
    <message>
        <source>the certificate of %1 was revoked</source>
        <translation>%1의 인증서가 해지되었습니다</translation>
    </message>
    <message>
        <source>the revocation list of %1 is out of date; put the current one beside the certificates</source>
        <translation>%1의 해지 목록이 오래되었습니다. 최신 목록을 인증서 옆에 두십시오</translation>
    </message>
    <message>
        <source>it is not made for time stamps</source>
        <translation>타임스탬프용 인증서가 아닙니다</translation>
    </message>
    <message>
        <source>%1; its time stamp is not trusted: %2</source>
        <translation>%1. 타임스탬프를 신뢰할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>it is none that is understood</source>
        <translation>이해할 수 없는 형식입니다</translation>
    </message>
    <message>
        <source>it is of another signature, or its digest is weak</source>
        <translation>다른 서명의 것이거나 다이제스트가 약합니다</translation>
    </message>
    <message>
        <source>it is from the future; check this computer&apos;s clock</source>
        <translation>미래의 시각입니다. 이 컴퓨터의 시계를 확인하십시오</translation>
    </message>
    <message>
        <source>it is not signed by an authority for time stamps that is trusted</source>
        <translation>신뢰할 수 있는 타임스탬프 기관이 서명하지 않았습니다</translation>
    </message>
    <message>
        <source>all its signatures have time stamps</source>
        <translation>모든 서명에 타임스탬프가 있습니다</translation>
    </message>
    <message>
        <source>the answer has no time stamp</source>
        <translation>응답에 타임스탬프가 없습니다</translation>
    </message>
    <message>
        <source>the time stamp in the answer is of another signature</source>
        <translation>응답의 타임스탬프는 다른 서명의 것입니다</translation>
    </message>
    <message>
        <source>The series of updates was stopped before this camera; it was not touched and keeps its version</source>
        <translation>이 카메라를 업데이트하기 전에 일련의 업데이트가 중지되었습니다. 이 카메라는 변경되지 않았으며 버전이 그대로입니다</translation>
    </message>
    <message>
        <source>its memory could not be read</source>
        <translation>카메라 메모리를 읽지 못했습니다</translation>
    </message>
    <message>
        <source>no right to open it: the rule %1 for udev is missing</source>
        <translation>열 수 있는 권한이 없음: udev 규칙 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>you have no right to open it; install the rule %1 for udev and plug the camera in again</source>
        <translation>카메라를 열 수 있는 권한이 없습니다. udev 규칙 %1을(를) 설치하고 카메라를 다시 연결하십시오</translation>
    </message>
</context>
<context>
    <name>Viewer::Update::CUpdateHistory</name>
    <message>
        <source>The history of updates &quot;%1&quot; cannot be shown: %2</source>
        <translation>업데이트 기록 &quot;%1&quot;을(를) 표시할 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>Viewer::Update::CUpdateHistoryModel</name>
    <message>
        <source>Running</source>
        <translation>실행 중</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>업데이트됨</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>중단됨</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>일련번호</translation>
    </message>
    <message>
        <source>From</source>
        <translation>이전 버전</translation>
    </message>
    <message>
        <source>To</source>
        <translation>새 버전</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>결과</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>소요 시간</translation>
    </message>
</context>
</TS>
