<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
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
        <translation>녹화 중지(영상 획득은 계속됨)(F9)</translation>
    </message>
    <message>
        <source>Record into folder</source>
        <translation>녹화할 폴더</translation>
    </message>
    <message>
        <source>%1 records into %2.</source>
        <translation>%1의 영상을 %2에 녹화하고 있습니다.</translation>
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
        <source>Plug one in and press Refresh.</source>
        <translation>카메라를 연결한 후 새로 고침을 누르십시오.</translation>
    </message>
    <message>
        <source>Press Start to see its image.</source>
        <translation>영상을 보려면 시작을 누르십시오.</translation>
    </message>
    <message>
        <source>Its firmware is being updated.</source>
        <translation>펌웨어를 업데이트하고 있습니다.</translation>
    </message>
    <message>
        <source>Another application is using it.</source>
        <translation>다른 응용 프로그램에서 사용 중입니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CCommandLine</name>
    <message>
        <source>Shows cameras and lets plug-ins work with them.</source>
        <translation>카메라를 표시하고 플러그인으로 카메라를 제어합니다.</translation>
    </message>
    <message>
        <source>Simulate the cameras described in &lt;file&gt;.</source>
        <translation>&lt;파일&gt;에 기술된 카메라를 시뮬레이션합니다.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Forget the firmware that earlier updates wrote to the simulated cameras.</source>
        <translation>이전 업데이트에서 시뮬레이션 카메라에 기록한 펌웨어를 지웁니다.</translation>
    </message>
    <message>
        <source>Let the simulated cameras work &lt;n&gt; times faster than real ones (a demonstration: %1).</source>
        <translation>시뮬레이션 카메라를 실제 카메라보다 &lt;n&gt;배 빠르게 작동시킵니다(데모: %1).</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
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
        <source>Use the language en, ko, ja or zh this time.</source>
        <translation>이번 실행에 사용할 언어를 en, ko, ja, zh 중에서 지정합니다.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>코드</translation>
    </message>
    <message>
        <source>Offer the update files in &lt;dir&gt;.</source>
        <translation>&lt;폴더&gt;의 업데이트 파일을 제공합니다.</translation>
    </message>
    <message>
        <source>Walk through the firmware update wizard, save pictures into &lt;dir&gt; and end.</source>
        <translation>펌웨어 업데이트 마법사를 자동으로 진행하고, 화면을 &lt;폴더&gt;에 저장한 후 종료합니다.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>예기치 않은 인수 &quot;%1&quot;입니다.</translation>
    </message>
    <message>
        <source>The language &quot;%1&quot; is unknown; it can be en, ko, ja or zh.</source>
        <translation>알 수 없는 언어 &quot;%1&quot;입니다. en, ko, ja, zh 중에서 지정하십시오.</translation>
    </message>
    <message>
        <source>The folder for the demonstration&apos;s pictures is empty.</source>
        <translation>데모 화면을 저장할 폴더가 지정되지 않았습니다.</translation>
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
        <source>Search the network and USB for cameras this time, by broadcast.</source>
        <translation>이번 실행에서 네트워크(브로드캐스트)와 USB의 카메라를 검색합니다.</translation>
    </message>
    <message>
        <source>Ask for a camera at &lt;address&gt;, without a broadcast; can be given several times.</source>
        <translation>브로드캐스트 없이 &lt;주소&gt;의 카메라를 찾습니다. 여러 번 지정할 수 있습니다.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no camera address; it has the form 192.168.0.10.</source>
        <translation>&quot;%1&quot;은(는) 카메라 주소가 아닙니다. 192.168.0.10 형식으로 입력하십시오.</translation>
    </message>
    <message>
        <source>This viewer was built without the library for cameras on real wires.</source>
        <translation>이 뷰어는 실제 연결된 카메라용 라이브러리 없이 빌드되었습니다.</translation>
    </message>
    <message>
        <source>No folder is given for the plug-ins.</source>
        <translation>플러그인 폴더가 지정되지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CFileEnd</name>
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
    <name>Viewer::AppCore::CImageView</name>
    <message>
        <source>Image</source>
        <translation>영상</translation>
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
        <source>&amp;Simulation</source>
        <translation>시뮬레이션(&amp;S)</translation>
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
        <source>The language changes when the viewer is started the next time.</source>
        <translation>언어는 다음에 뷰어를 시작할 때 변경됩니다.</translation>
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
    <name>Viewer::AppCore::CSimulationMenu</name>
    <message>
        <source>&amp;Plugged in</source>
        <translation>연결됨(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Busy elsewhere</source>
        <translation>다른 곳에서 사용 중(&amp;B)</translation>
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
    <name>Viewer::AppCore::CViewer</name>
    <message>
        <source>Re&amp;fresh</source>
        <translation>새로 고침(&amp;F)</translation>
    </message>
    <message>
        <source>Look for cameras (F5)</source>
        <translation>카메라 검색(F5)</translation>
    </message>
    <message>
        <source>&amp;Open sample folder</source>
        <translation>샘플 폴더 열기(&amp;O)</translation>
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
        <translation>일부 플러그인을 사용할 수 없습니다. 도움말 &gt; 플러그인을 참조하십시오.</translation>
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
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Nuvex Viewer %1&lt;/h3&gt;&lt;p&gt;Shows cameras and lets plug-ins work with them.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Nuvex Viewer %1&lt;/h3&gt;&lt;p&gt;카메라를 표시하고 플러그인으로 카메라를 제어합니다.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Search the &amp;network for cameras</source>
        <translation>네트워크에서 카메라 검색(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Logs...</source>
        <translation>로그(&amp;L)...</translation>
    </message>
    <message>
        <source>%1 Then the viewer closes by itself.</source>
        <translation>%1 그 후 뷰어가 자동으로 종료됩니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool::CCameraPool</name>
    <message>
        <source>The folder &quot;%1&quot; does not exist; choose another one.</source>
        <translation>폴더 &quot;%1&quot;이(가) 없습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Camera %1 does not answer any more; its acquisition has ended.</source>
        <translation>카메라 %1이(가) 더 이상 응답하지 않아 영상 획득이 종료되었습니다.</translation>
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
        <source>Camera %1 is used by another application.</source>
        <translation>카메라 %1을(를) 다른 응용 프로그램에서 사용 중입니다.</translation>
    </message>
    <message>
        <source>Camera %1 is being updated.</source>
        <translation>카메라 %1을(를) 업데이트하고 있습니다.</translation>
    </message>
    <message>
        <source>Camera %1 is on a real wire; only its firmware can be updated here.</source>
        <translation>카메라 %1은(는) 실제로 연결된 카메라이므로 여기서는 펌웨어만 업데이트할 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool::CErrorText</name>
    <message>
        <source>Camera %1: %2</source>
        <translation>카메라 %1: %2</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>메모리가 부족합니다</translation>
    </message>
    <message>
        <source>The series of updates was stopped before this camera</source>
        <translation>이 카메라를 업데이트하기 전에 일련의 업데이트가 중지되었습니다</translation>
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
        <translation>%1. 업데이트가 이미 쓰기를 시작했으므로, 카메라를 사용하기 전에 업데이트를 다시 수행하십시오</translation>
    </message>
    <message>
        <source>it does not answer; check its cable and its power supply</source>
        <translation>응답하지 않습니다. 케이블과 전원을 확인하십시오</translation>
    </message>
    <message>
        <source>another application uses it; close that application</source>
        <translation>다른 응용 프로그램에서 사용 중입니다. 해당 응용 프로그램을 닫으십시오</translation>
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
        <translation>파일 &quot;%1&quot;의 쓰기를 거부했습니다</translation>
    </message>
    <message>
        <source>the data for its file &quot;%1&quot; ended after %2 of %3 bytes (%4)</source>
        <translation>파일 &quot;%1&quot;의 데이터가 전체 %3바이트 중 %2바이트에서 끝났습니다(%4)</translation>
    </message>
    <message>
        <source>the upload of its file &quot;%1&quot; broke off after %2 of %3 bytes</source>
        <translation>파일 &quot;%1&quot;의 업로드가 전체 %3바이트 중 %2바이트에서 중단되었습니다</translation>
    </message>
    <message>
        <source>it did not come back from its reset within %1 s; switch it off and on</source>
        <translation>재설정 후 %1초 이내에 다시 연결되지 않았습니다. 카메라를 껐다가 다시 켜십시오</translation>
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
        <translation>업로드된 파일을 펌웨어 이미지로 인식하지 않습니다</translation>
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
        <translation>상태 %1을(를) 보고하므로 지금은 업데이트할 수 없습니다</translation>
    </message>
    <message>
        <source>the update is not for its model %1</source>
        <translation>이 업데이트는 해당 카메라 모델 %1용이 아닙니다</translation>
    </message>
    <message>
        <source>the update is not for its device version %1</source>
        <translation>이 업데이트는 해당 장치 버전 %1용이 아닙니다</translation>
    </message>
    <message>
        <source>its firmware version %1 is below %2, from which on the update can be installed; install an older update first</source>
        <translation>펌웨어 버전 %1이(가) 이 업데이트를 설치할 수 있는 최소 버전 %2보다 낮습니다. 먼저 이전 업데이트를 설치하십시오</translation>
    </message>
    <message>
        <source>a precondition of the update is not met: its feature %1 is %2 instead of %3</source>
        <translation>업데이트의 사전 조건이 충족되지 않았습니다: 기능 %1의 값이 %3이어야 하지만 %2입니다</translation>
    </message>
    <message>
        <source>its feature %1 is %2 instead of %3</source>
        <translation>기능 %1의 값이 %3이어야 하지만 %2입니다</translation>
    </message>
    <message>
        <source>after the update it reports firmware version %1 instead of %2</source>
        <translation>업데이트 후 보고된 펌웨어 버전이 %2이어야 하지만 %1입니다</translation>
    </message>
    <message>
        <source>the file %1 cannot be read; the archive is damaged</source>
        <translation>파일 %1을(를) 읽을 수 없습니다. 압축 파일이 손상되었습니다</translation>
    </message>
    <message>
        <source>the file %1 is damaged and cannot be unpacked</source>
        <translation>파일 %1이(가) 손상되어 압축을 풀 수 없습니다</translation>
    </message>
    <message>
        <source>the file %1 unpacks to more bytes than the archive declares</source>
        <translation>파일 %1의 압축을 푼 크기가 압축 파일에 기록된 크기보다 큽니다</translation>
    </message>
    <message>
        <source>the payload %1 does not match its SHA-256 in update.json</source>
        <translation>데이터 %1이(가) update.json의 SHA-256과 일치하지 않습니다</translation>
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
        <source>update.json lies in a folder of the archive (%1); it has to lie at the top</source>
        <translation>update.json이 압축 파일의 폴더 안에 있습니다(%1). 최상위에 있어야 합니다</translation>
    </message>
    <message>
        <source>there is no update.json in the archive</source>
        <translation>압축 파일에 update.json이 없습니다</translation>
    </message>
    <message>
        <source>update.json has %1 bytes; %2 are allowed</source>
        <translation>update.json의 크기가 %1바이트입니다. %2바이트까지 허용됩니다</translation>
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
        <source>the file has %1 bytes; %2 are allowed</source>
        <translation>파일 크기가 %1바이트입니다. %2바이트까지 허용됩니다</translation>
    </message>
    <message>
        <source>the file cannot be opened; too many files are open</source>
        <translation>열려 있는 파일이 너무 많아 파일을 열 수 없습니다</translation>
    </message>
    <message>
        <source>the archive has %1 entries; %2 are allowed</source>
        <translation>압축 파일에 항목이 %1개 있습니다. %2개까지 허용됩니다</translation>
    </message>
    <message>
        <source>the archive has two entries named %1</source>
        <translation>압축 파일에 이름이 %1인 항목이 두 개 있습니다</translation>
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
        <source>the entry %1 of the archive is damaged</source>
        <translation>압축 파일의 항목 %1이(가) 손상되었습니다</translation>
    </message>
    <message>
        <source>the entry %1 is encrypted; pack it without a password</source>
        <translation>항목 %1이(가) 암호화되어 있습니다. 암호 없이 압축하십시오</translation>
    </message>
    <message>
        <source>the entry %1 is compressed by a method other than Deflate</source>
        <translation>항목 %1이(가) Deflate 이외의 방식으로 압축되었습니다</translation>
    </message>
    <message>
        <source>the payload %1 is missing in the archive</source>
        <translation>압축 파일에 데이터 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>the payload %1 is too short: it has %2 bytes where update.json says %3</source>
        <translation>데이터 %1이(가) 너무 짧습니다. update.json에는 %3바이트이지만 실제로는 %2바이트입니다</translation>
    </message>
    <message>
        <source>the payload %1 is too long: it has %2 bytes where update.json says %3</source>
        <translation>데이터 %1이(가) 너무 깁니다. update.json에는 %3바이트이지만 실제로는 %2바이트입니다</translation>
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
        <translation>사용 중입니다. 나중에 다시 시도하십시오</translation>
    </message>
    <message>
        <source>it refused (%1)</source>
        <translation>거부되었습니다(%1)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>its feature %1 could not be read</source>
        <translation>기능 %1을(를) 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>its feature %1 could not be set to &quot;%2&quot;</source>
        <translation>기능 %1을(를) &quot;%2&quot;(으)로 설정할 수 없습니다</translation>
    </message>
    <message>
        <source>it has no feature %1; the update file may be for another model</source>
        <translation>기능 %1이(가) 없습니다. 업데이트 파일이 다른 모델용일 수 있습니다</translation>
    </message>
    <message>
        <source>its feature %1 is no command</source>
        <translation>기능 %1은(는) 명령이 아닙니다</translation>
    </message>
    <message>
        <source>its command %1 could not be executed</source>
        <translation>명령 %1을(를) 실행할 수 없습니다</translation>
    </message>
    <message>
        <source>the end of its command %1 could not be awaited</source>
        <translation>명령 %1의 완료를 확인할 수 없습니다</translation>
    </message>
    <message>
        <source>its feature %1 is no register</source>
        <translation>기능 %1은(는) 레지스터가 아닙니다</translation>
    </message>
    <message>
        <source>its memory could not be written</source>
        <translation>메모리에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>opening its file &quot;%1&quot; failed</source>
        <translation>파일 &quot;%1&quot;을(를) 열지 못했습니다</translation>
    </message>
    <message>
        <source>writing its file &quot;%1&quot; failed at byte %2</source>
        <translation>파일 &quot;%1&quot;의 %2바이트 위치에서 쓰지 못했습니다</translation>
    </message>
    <message>
        <source>closing its file &quot;%1&quot; failed</source>
        <translation>파일 &quot;%1&quot;을(를) 닫지 못했습니다</translation>
    </message>
    <message>
        <source>its buffer for files is empty</source>
        <translation>파일용 버퍼가 비어 있습니다</translation>
    </message>
    <message>
        <source>it took %1 of %2 bytes</source>
        <translation>%2바이트 중 %1바이트만 받았습니다</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>시간이 너무 오래 걸렸습니다</translation>
    </message>
    <message>
        <source>it reports the status &quot;%1&quot;</source>
        <translation>상태 &quot;%1&quot;을(를) 보고합니다</translation>
    </message>
    <message>
        <source>there is no way to its address; check the network settings of this computer</source>
        <translation>카메라의 주소에 연결할 수 없습니다. 이 컴퓨터의 네트워크 설정을 확인하십시오</translation>
    </message>
    <message>
        <source>it could not be opened</source>
        <translation>카메라를 열 수 없습니다</translation>
    </message>
    <message>
        <source>it is in use by another application; close that one and start the update again</source>
        <translation>다른 응용 프로그램에서 사용 중입니다. 해당 응용 프로그램을 닫고 업데이트를 다시 시작하십시오</translation>
    </message>
    <message>
        <source>its command &quot;%1&quot; took too long; switch the camera off and on and repeat the update</source>
        <translation>명령 &quot;%1&quot;의 시간이 너무 오래 걸렸습니다. 카메라를 껐다가 다시 켠 후 업데이트를 반복하십시오</translation>
    </message>
    <message>
        <source>the upload of its file &quot;%1&quot; took too long; it was broken off after %2 of %3 bytes</source>
        <translation>파일 &quot;%1&quot;의 업로드 시간이 너무 오래 걸려 전체 %3바이트 중 %2바이트에서 중단되었습니다</translation>
    </message>
    <message>
        <source>it did not come back from its reset; switch it off and on and look for its firmware version</source>
        <translation>재설정 후 다시 연결되지 않았습니다. 카메라를 껐다가 다시 켠 후 펌웨어 버전을 확인하십시오</translation>
    </message>
    <message>
        <source>it did not restart; switch it off and on and look for its firmware version</source>
        <translation>다시 시작되지 않았습니다. 카메라를 껐다가 다시 켠 후 펌웨어 버전을 확인하십시오</translation>
    </message>
    <message>
        <source>same serial number as another camera</source>
        <translation>다른 카메라와 일련번호가 같음</translation>
    </message>
    <message>
        <source>another camera has the same vendor, model and serial number; connect only one of them and look for cameras again</source>
        <translation>제조사, 모델 및 일련번호가 같은 카메라가 또 있습니다. 그중 하나만 연결하고 카메라를 다시 검색하십시오</translation>
    </message>
    <message>
        <source>another camera, %1, answers at its address; look for cameras again</source>
        <translation>해당 주소에서 다른 카메라 %1이(가) 응답합니다. 카메라를 다시 검색하십시오</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool::CFrameStream</name>
    <message>
        <source>the file &quot;%1&quot; cannot be written (%2)</source>
        <translation>파일 &quot;%1&quot;에 쓸 수 없습니다(%2)</translation>
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
        <translation>획득 중</translation>
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
</context>
<context>
    <name>Viewer::CameraSelector::CCameraSelectorView</name>
    <message>
        <source>Cameras</source>
        <translation>카메라</translation>
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
        <translation>같은 이름의 플러그인을 이미 찾았습니다: %1.</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot; %2, which is not there.</source>
        <translation>&quot;%1&quot; %2이(가) 필요하지만 없습니다.</translation>
    </message>
    <message>
        <source>It is in a circle of dependencies: %1.</source>
        <translation>종속성이 순환합니다: %1.</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot; %2, but the one that is there has version %3 and is compatible down to %4.</source>
        <translation>&quot;%1&quot; %2이(가) 필요하지만, 현재 버전은 %3이고 %4까지만 호환됩니다.</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot;, which could not be started.</source>
        <translation>&quot;%1&quot;이(가) 필요하지만 시작할 수 없었습니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CPathTrust</name>
    <message>
        <source>it belongs to the user %1</source>
        <translation>사용자 %1의 소유입니다</translation>
    </message>
    <message>
        <source>users other than its owner can write to it</source>
        <translation>소유자가 아닌 사용자가 쓸 수 있습니다</translation>
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
        <translation>언어를 설정할 수 없습니다</translation>
    </message>
    <message>
        <source>It could not be initialized</source>
        <translation>초기화할 수 없습니다</translation>
    </message>
    <message>
        <source>It could not be connected to the viewer</source>
        <translation>뷰어에 연결할 수 없습니다</translation>
    </message>
    <message>
        <source>It could not be constructed: %1.</source>
        <translation>생성할 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>Its library could not be loaded: %1.</source>
        <translation>라이브러리를 불러올 수 없습니다: %1.</translation>
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
        <translation>&quot;%1&quot;이(가) 필요하지만 시작할 수 없었습니다.</translation>
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
</context>
</TS>
