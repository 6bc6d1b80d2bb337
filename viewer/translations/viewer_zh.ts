<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Viewer::AppCore::CAcquisitionController</name>
    <message>
        <source>&amp;Start</source>
        <translation>开始(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>停止(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Record...</source>
        <translation>录制(&amp;R)...</translation>
    </message>
    <message>
        <source>Sto&amp;p recording</source>
        <translation>停止录制(&amp;P)</translation>
    </message>
    <message>
        <source>Start continuous acquisition (F6)</source>
        <translation>开始连续采集 (F6)</translation>
    </message>
    <message>
        <source>Stop continuous acquisition (F7)</source>
        <translation>停止连续采集 (F7)</translation>
    </message>
    <message>
        <source>Record images into a folder (F8)</source>
        <translation>将图像录制到文件夹 (F8)</translation>
    </message>
    <message>
        <source>Stop recording; acquisition goes on (F9)</source>
        <translation>停止录制，采集继续 (F9)</translation>
    </message>
    <message>
        <source>Record into folder</source>
        <translation>录制到文件夹</translation>
    </message>
    <message>
        <source>%1 records into %2.</source>
        <translation>正在将 %1 的图像录制到 %2。</translation>
    </message>
    <message>
        <source>No camera selected</source>
        <translation>未选择相机</translation>
    </message>
    <message>
        <source>Select a camera in the list.</source>
        <translation>请在列表中选择一台相机。</translation>
    </message>
    <message>
        <source>No cameras found</source>
        <translation>未找到相机</translation>
    </message>
    <message>
        <source>Plug one in and press Refresh.</source>
        <translation>请连接相机，然后单击“刷新”。</translation>
    </message>
    <message>
        <source>Press Start to see its image.</source>
        <translation>单击“开始”可查看图像。</translation>
    </message>
    <message>
        <source>Its firmware is being updated.</source>
        <translation>正在更新其固件。</translation>
    </message>
    <message>
        <source>Another application is using it.</source>
        <translation>另一个应用程序正在使用它。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CCommandLine</name>
    <message>
        <source>Shows cameras and lets plug-ins work with them.</source>
        <translation>显示相机，并允许插件使用相机。</translation>
    </message>
    <message>
        <source>Simulate the cameras described in &lt;file&gt;.</source>
        <translation>模拟 &lt;文件&gt; 中描述的相机。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Forget the firmware that earlier updates wrote to the simulated cameras.</source>
        <translation>清除以往更新写入模拟相机的固件。</translation>
    </message>
    <message>
        <source>Let the simulated cameras work &lt;n&gt; times faster than real ones (a demonstration: %1).</source>
        <translation>让模拟相机以真实相机 &lt;n&gt; 倍的速度工作（演示：%1）。</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>Look for plug-ins in &lt;dir&gt;, too; can be given several times.</source>
        <translation>同时在 &lt;文件夹&gt; 中查找插件；可多次指定。</translation>
    </message>
    <message>
        <source>dir</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Use the language en, ko, ja or zh this time.</source>
        <translation>指定本次使用的语言：en、ko、ja 或 zh。</translation>
    </message>
    <message>
        <source>code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Offer the update files in &lt;dir&gt;.</source>
        <translation>提供 &lt;文件夹&gt; 中的更新文件。</translation>
    </message>
    <message>
        <source>Walk through the firmware update wizard, save pictures into &lt;dir&gt; and end.</source>
        <translation>自动执行固件更新向导，将截图保存到 &lt;文件夹&gt; 后退出。</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>意外的参数“%1”。</translation>
    </message>
    <message>
        <source>The language &quot;%1&quot; is unknown; it can be en, ko, ja or zh.</source>
        <translation>未知的语言“%1”；请使用 en、ko、ja 或 zh。</translation>
    </message>
    <message>
        <source>The folder for the demonstration&apos;s pictures is empty.</source>
        <translation>未指定保存演示截图的文件夹。</translation>
    </message>
    <message>
        <source>The speed &quot;%1&quot; is not a number from 0.01 to 10000.</source>
        <translation>速度“%1”不是 0.01 到 10000 之间的数字。</translation>
    </message>
    <message>
        <source>Leave out the simulated cameras.</source>
        <translation>不使用模拟相机。</translation>
    </message>
    <message>
        <source>Search the network and USB for cameras this time, by broadcast.</source>
        <translation>本次通过广播搜索网络以及 USB 上的相机。</translation>
    </message>
    <message>
        <source>Ask for a camera at &lt;address&gt;, without a broadcast; can be given several times.</source>
        <translation>不使用广播，查找位于 &lt;地址&gt; 的相机；可多次指定。</translation>
    </message>
    <message>
        <source>address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no camera address; it has the form 192.168.0.10.</source>
        <translation>“%1”不是相机地址；其格式应为 192.168.0.10。</translation>
    </message>
    <message>
        <source>This viewer was built without the library for cameras on real wires.</source>
        <translation>此查看器构建时未包含用于实际连接相机的库。</translation>
    </message>
    <message>
        <source>No folder is given for the plug-ins.</source>
        <translation>未指定插件的文件夹。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CFileEnd</name>
    <message>
        <source>It is not a regular file.</source>
        <translation>不是普通文件。</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>无法读取文件：%1。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CImageView</name>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CLinkOpener</name>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>This desktop has no program for web pages. Copy the address to open it elsewhere.</source>
        <translation>此桌面没有可打开网页的程序。请复制该地址，然后在其他位置打开。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CLogFolder</name>
    <message>
        <source>Logs of firmware updates are not kept: there is no home folder.</source>
        <translation>没有主文件夹，固件更新日志将不会保存。</translation>
    </message>
    <message>
        <source>Logs of firmware updates are not kept, the folder &quot;%1&quot; cannot be used: %2.</source>
        <translation>无法使用文件夹“%1”，固件更新日志将不会保存：%2。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CLogListDialog</name>
    <message>
        <source>Logs of firmware updates</source>
        <translation>固件更新日志</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>There are no logs yet.</source>
        <translation>尚无日志。</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>打开文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>No update</source>
        <translation>未更新</translation>
    </message>
    <message>
        <source>Successful</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Failed (%1 of %2 updated)</source>
        <translation>失败（%2 台中已更新 %1 台）</translation>
    </message>
    <message>
        <source>Canceled (%1 of %2 updated)</source>
        <translation>已取消（%2 台中已更新 %1 台）</translation>
    </message>
    <message>
        <source>Running (%1 of %2 updated)</source>
        <translation>进行中（%2 台中已更新 %1 台）</translation>
    </message>
    <message>
        <source>Interrupted (%1 of %2 updated)</source>
        <translation>已中断（%2 台中已更新 %1 台）</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>The log is longer than %1 bytes; only its end was read.</source>
        <translation>日志超过 %1 字节，仅读取了其末尾部分。</translation>
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
        <translation>采集</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>模拟(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>&amp;Cameras</source>
        <translation>相机(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Tool bar</source>
        <translation>工具栏(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>The language changes when the viewer is started the next time.</source>
        <translation>语言将在下次启动查看器时更改。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CPluginListDialog</name>
    <message>
        <source>Plug-ins</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>正在运行</translation>
    </message>
    <message>
        <source>Part of the viewer</source>
        <translation>查看器的一部分</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>不可用</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CSimulationMenu</name>
    <message>
        <source>&amp;Plugged in</source>
        <translation>已连接(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Busy elsewhere</source>
        <translation>被其他程序占用(&amp;B)</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CTextDialog</name>
    <message>
        <source>&amp;Copy all</source>
        <translation>全部复制(&amp;C)</translation>
    </message>
    <message>
        <source>The file is too large to be shown in full: this is its end.</source>
        <translation>文件过大，仅显示其末尾部分。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CViewer</name>
    <message>
        <source>Re&amp;fresh</source>
        <translation>刷新(&amp;F)</translation>
    </message>
    <message>
        <source>Look for cameras (F5)</source>
        <translation>搜索相机 (F5)</translation>
    </message>
    <message>
        <source>&amp;Open sample folder</source>
        <translation>打开示例文件夹(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Plug-ins...</source>
        <translation>插件(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>Main window and menus</source>
        <translation>主窗口和菜单</translation>
    </message>
    <message>
        <source>Camera tree and selection</source>
        <translation>相机树和选择</translation>
    </message>
    <message>
        <source>Cameras, update files and firmware updates</source>
        <translation>相机、更新文件和固件更新</translation>
    </message>
    <message>
        <source>The viewer as a whole</source>
        <translation>整个查看器</translation>
    </message>
    <message>
        <source>Not all plug-ins are available: see Help &gt; Plug-ins.</source>
        <translation>部分插件不可用：请参阅“帮助”&gt;“插件”。</translation>
    </message>
    <message>
        <source>A firmware update is running. Wait until it has ended before you quit.</source>
        <translation>固件更新正在进行。请等待更新结束后再退出。</translation>
    </message>
    <message>
        <source>A dialog is still open. Close it before you quit.</source>
        <translation>仍有对话框处于打开状态。请先关闭它再退出。</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) found.</source>
        <translation>
            <numerusform>找到 %n 台相机。</numerusform>
        </translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Nuvex Viewer %1&lt;/h3&gt;&lt;p&gt;Shows cameras and lets plug-ins work with them.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Nuvex Viewer %1&lt;/h3&gt;&lt;p&gt;显示相机，并允许插件使用相机。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Search the &amp;network for cameras</source>
        <translation>在网络中搜索相机(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Logs...</source>
        <translation>日志(&amp;L)...</translation>
    </message>
    <message>
        <source>%1 Then the viewer closes by itself.</source>
        <translation>%1 之后查看器将自动关闭。</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool::CCameraPool</name>
    <message>
        <source>The folder &quot;%1&quot; does not exist; choose another one.</source>
        <translation>文件夹“%1”不存在；请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Camera %1 does not answer any more; its acquisition has ended.</source>
        <translation>相机 %1 不再响应，采集已结束。</translation>
    </message>
    <message>
        <source>The recording of camera %1 has ended: %2.</source>
        <translation>相机 %1 的录制已结束：%2。</translation>
    </message>
    <message>
        <source>Camera %1 cannot be started while the firmware updater is open.</source>
        <translation>固件更新程序打开期间无法启动相机 %1。</translation>
    </message>
    <message>
        <source>Camera %1 does not answer; check its cable.</source>
        <translation>相机 %1 没有响应；请检查电缆。</translation>
    </message>
    <message>
        <source>Camera %1 is used by another application.</source>
        <translation>相机 %1 正被另一个应用程序使用。</translation>
    </message>
    <message>
        <source>Camera %1 is being updated.</source>
        <translation>正在更新相机 %1。</translation>
    </message>
    <message>
        <source>Camera %1 is on a real wire; only its firmware can be updated here.</source>
        <translation>相机 %1 是实际连接的相机；此处只能更新其固件。</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool::CErrorText</name>
    <message>
        <source>Camera %1: %2</source>
        <translation>相机 %1：%2</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>The series of updates was stopped before this camera</source>
        <translation>更新此相机之前，系列更新已停止</translation>
    </message>
    <message>
        <source>it is already being updated</source>
        <translation>已在更新中</translation>
    </message>
    <message>
        <source>it is acquiring images; stop that and start the update again</source>
        <translation>正在采集图像；请停止采集，然后重新开始更新</translation>
    </message>
    <message>
        <source>the update failed for an unknown reason</source>
        <translation>由于未知原因，更新失败</translation>
    </message>
    <message>
        <source>%1; the update had already begun to write, so repeat it before the camera is used</source>
        <translation>%1；更新已开始写入，因此在使用相机之前请重新执行更新</translation>
    </message>
    <message>
        <source>it does not answer; check its cable and its power supply</source>
        <translation>没有响应；请检查电缆和电源</translation>
    </message>
    <message>
        <source>another application uses it; close that application</source>
        <translation>另一个应用程序正在使用它；请关闭该应用程序</translation>
    </message>
    <message>
        <source>it is already open</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>it has no feature &quot;%1&quot; that can be read</source>
        <translation>没有可读取的功能“%1”</translation>
    </message>
    <message>
        <source>it refuses to write the feature &quot;%1&quot;</source>
        <translation>拒绝写入功能“%1”</translation>
    </message>
    <message>
        <source>it has no feature &quot;%1&quot; that can be written</source>
        <translation>没有可写入的功能“%1”</translation>
    </message>
    <message>
        <source>it has no command &quot;%1&quot;</source>
        <translation>没有命令“%1”</translation>
    </message>
    <message>
        <source>it refuses to write the file &quot;%1&quot;</source>
        <translation>拒绝写入文件“%1”</translation>
    </message>
    <message>
        <source>the data for its file &quot;%1&quot; ended after %2 of %3 bytes (%4)</source>
        <translation>文件“%1”的数据在 %3 字节中的第 %2 字节处结束（%4）</translation>
    </message>
    <message>
        <source>the upload of its file &quot;%1&quot; broke off after %2 of %3 bytes</source>
        <translation>文件“%1”的上传在 %3 字节中的第 %2 字节处中断</translation>
    </message>
    <message>
        <source>it did not come back from its reset within %1 s; switch it off and on</source>
        <translation>重置后未在 %1 秒内恢复；请关闭电源后重新打开</translation>
    </message>
    <message>
        <source>it did not answer within %1 s</source>
        <translation>未在 %1 秒内响应</translation>
    </message>
    <message>
        <source>it is not open</source>
        <translation>未打开</translation>
    </message>
    <message>
        <source>the connection was lost; check its cable and its power supply</source>
        <translation>连接已断开；请检查电缆和电源</translation>
    </message>
    <message>
        <source>there is no complete firmware image to activate</source>
        <translation>没有可激活的完整固件映像</translation>
    </message>
    <message>
        <source>it does not accept the uploaded file as a firmware image</source>
        <translation>不接受上传的文件作为固件映像</translation>
    </message>
    <message>
        <source>the uploaded firmware image is for model %1, not for %2</source>
        <translation>上传的固件映像适用于型号 %1，而不是 %2</translation>
    </message>
    <message>
        <source>the update file contains a step of an unknown kind</source>
        <translation>更新文件包含未知类型的步骤</translation>
    </message>
    <message>
        <source>it cannot be updated now, since it reports status %1</source>
        <translation>它报告的状态为 %1，因此现在无法更新</translation>
    </message>
    <message>
        <source>the update is not for its model %1</source>
        <translation>此更新不适用于其型号 %1</translation>
    </message>
    <message>
        <source>the update is not for its device version %1</source>
        <translation>此更新不适用于其设备版本 %1</translation>
    </message>
    <message>
        <source>its firmware version %1 is below %2, from which on the update can be installed; install an older update first</source>
        <translation>其固件版本 %1 低于此更新所需的最低版本 %2；请先安装较旧的更新</translation>
    </message>
    <message>
        <source>a precondition of the update is not met: its feature %1 is %2 instead of %3</source>
        <translation>不满足更新的前提条件：其功能 %1 的值为 %2，而不是 %3</translation>
    </message>
    <message>
        <source>its feature %1 is %2 instead of %3</source>
        <translation>其功能 %1 的值为 %2，而不是 %3</translation>
    </message>
    <message>
        <source>after the update it reports firmware version %1 instead of %2</source>
        <translation>更新后报告的固件版本为 %1，而不是 %2</translation>
    </message>
    <message>
        <source>the file %1 cannot be read; the archive is damaged</source>
        <translation>无法读取文件 %1；压缩文件已损坏</translation>
    </message>
    <message>
        <source>the file %1 is damaged and cannot be unpacked</source>
        <translation>文件 %1 已损坏，无法解压</translation>
    </message>
    <message>
        <source>the file %1 unpacks to more bytes than the archive declares</source>
        <translation>文件 %1 解压后的大小超过压缩文件中声明的大小</translation>
    </message>
    <message>
        <source>the payload %1 does not match its SHA-256 in update.json</source>
        <translation>数据 %1 与 update.json 中的 SHA-256 不一致</translation>
    </message>
    <message>
        <source>the archive is cut off at its end; copy the file again</source>
        <translation>压缩文件末尾不完整；请重新复制该文件</translation>
    </message>
    <message>
        <source>this is not an update file, as it is not a ZIP archive</source>
        <translation>这不是 ZIP 压缩文件，因此不是更新文件</translation>
    </message>
    <message>
        <source>the archive is one part of several; pack it as one file</source>
        <translation>这是分卷压缩文件的一部分；请打包为单个文件</translation>
    </message>
    <message>
        <source>there is not enough memory to read the archive</source>
        <translation>内存不足，无法读取压缩文件</translation>
    </message>
    <message>
        <source>the file cannot be read from the disk</source>
        <translation>无法从磁盘读取文件</translation>
    </message>
    <message>
        <source>the archive is damaged; copy the file again</source>
        <translation>压缩文件已损坏；请重新复制该文件</translation>
    </message>
    <message>
        <source>update.json lies in a folder of the archive (%1); it has to lie at the top</source>
        <translation>update.json 位于压缩文件的文件夹中（%1）；它必须位于顶层</translation>
    </message>
    <message>
        <source>there is no update.json in the archive</source>
        <translation>压缩文件中没有 update.json</translation>
    </message>
    <message>
        <source>update.json has %1 bytes; %2 are allowed</source>
        <translation>update.json 有 %1 字节；最多允许 %2 字节</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>this is a folder, not a file</source>
        <translation>这是文件夹，而不是文件</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>这不是普通文件</translation>
    </message>
    <message>
        <source>the file cannot be opened; check its access rights</source>
        <translation>无法打开文件；请检查其访问权限</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>the file has %1 bytes; %2 are allowed</source>
        <translation>文件有 %1 字节；最多允许 %2 字节</translation>
    </message>
    <message>
        <source>the file cannot be opened; too many files are open</source>
        <translation>打开的文件过多，无法打开该文件</translation>
    </message>
    <message>
        <source>the archive has %1 entries; %2 are allowed</source>
        <translation>压缩文件有 %1 个条目；最多允许 %2 个</translation>
    </message>
    <message>
        <source>the archive has two entries named %1</source>
        <translation>压缩文件中有两个名为 %1 的条目</translation>
    </message>
    <message>
        <source>the archive unpacks to more than %1 bytes</source>
        <translation>压缩文件解压后超过 %1 字节</translation>
    </message>
    <message>
        <source>entry %1 of the archive has no name, or one that is not UTF-8</source>
        <translation>压缩文件的第 %1 个条目没有名称，或名称不是 UTF-8</translation>
    </message>
    <message>
        <source>the entry %1 of the archive is damaged</source>
        <translation>压缩文件的条目 %1 已损坏</translation>
    </message>
    <message>
        <source>the entry %1 is encrypted; pack it without a password</source>
        <translation>条目 %1 已加密；请在不使用密码的情况下打包</translation>
    </message>
    <message>
        <source>the entry %1 is compressed by a method other than Deflate</source>
        <translation>条目 %1 使用了 Deflate 以外的压缩方式</translation>
    </message>
    <message>
        <source>the payload %1 is missing in the archive</source>
        <translation>压缩文件中缺少数据 %1</translation>
    </message>
    <message>
        <source>the payload %1 is too short: it has %2 bytes where update.json says %3</source>
        <translation>数据 %1 过短：update.json 中为 %3 字节，实际为 %2 字节</translation>
    </message>
    <message>
        <source>the payload %1 is too long: it has %2 bytes where update.json says %3</source>
        <translation>数据 %1 过长：update.json 中为 %3 字节，实际为 %2 字节</translation>
    </message>
    <message>
        <source>Update file %1: %2</source>
        <translation>更新文件 %1：%2</translation>
    </message>
    <message>
        <source>it did not answer; check its cable, its power supply and the network</source>
        <translation>没有响应；请检查电缆、电源和网络</translation>
    </message>
    <message>
        <source>control over it was lost; close other applications that use it</source>
        <translation>失去了对它的控制；请关闭正在使用它的其他应用程序</translation>
    </message>
    <message>
        <source>it is busy; try again later</source>
        <translation>它正忙；请稍后重试</translation>
    </message>
    <message>
        <source>it refused (%1)</source>
        <translation>被拒绝（%1）</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>its feature %1 could not be read</source>
        <translation>无法读取其功能 %1</translation>
    </message>
    <message>
        <source>its feature %1 could not be set to &quot;%2&quot;</source>
        <translation>无法将其功能 %1 设置为“%2”</translation>
    </message>
    <message>
        <source>it has no feature %1; the update file may be for another model</source>
        <translation>没有功能 %1；更新文件可能适用于其他型号</translation>
    </message>
    <message>
        <source>its feature %1 is no command</source>
        <translation>其功能 %1 不是命令</translation>
    </message>
    <message>
        <source>its command %1 could not be executed</source>
        <translation>无法执行其命令 %1</translation>
    </message>
    <message>
        <source>the end of its command %1 could not be awaited</source>
        <translation>无法确认其命令 %1 是否完成</translation>
    </message>
    <message>
        <source>its feature %1 is no register</source>
        <translation>其功能 %1 不是寄存器</translation>
    </message>
    <message>
        <source>its memory could not be written</source>
        <translation>无法写入其内存</translation>
    </message>
    <message>
        <source>opening its file &quot;%1&quot; failed</source>
        <translation>打开其文件“%1”失败</translation>
    </message>
    <message>
        <source>writing its file &quot;%1&quot; failed at byte %2</source>
        <translation>在第 %2 字节处写入其文件“%1”失败</translation>
    </message>
    <message>
        <source>closing its file &quot;%1&quot; failed</source>
        <translation>关闭其文件“%1”失败</translation>
    </message>
    <message>
        <source>its buffer for files is empty</source>
        <translation>其文件缓冲区为空</translation>
    </message>
    <message>
        <source>it took %1 of %2 bytes</source>
        <translation>只接受了 %2 字节中的 %1 字节</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>耗时过长</translation>
    </message>
    <message>
        <source>it reports the status &quot;%1&quot;</source>
        <translation>报告的状态为“%1”</translation>
    </message>
    <message>
        <source>there is no way to its address; check the network settings of this computer</source>
        <translation>无法到达其地址；请检查此计算机的网络设置</translation>
    </message>
    <message>
        <source>it could not be opened</source>
        <translation>无法打开相机</translation>
    </message>
    <message>
        <source>it is in use by another application; close that one and start the update again</source>
        <translation>另一个应用程序正在使用它；请关闭该应用程序后重新开始更新</translation>
    </message>
    <message>
        <source>its command &quot;%1&quot; took too long; switch the camera off and on and repeat the update</source>
        <translation>其命令“%1”耗时过长；请关闭相机电源后重新打开，然后重复更新</translation>
    </message>
    <message>
        <source>the upload of its file &quot;%1&quot; took too long; it was broken off after %2 of %3 bytes</source>
        <translation>文件“%1”的上传耗时过长；已在 %3 字节中的第 %2 字节处中断</translation>
    </message>
    <message>
        <source>it did not come back from its reset; switch it off and on and look for its firmware version</source>
        <translation>重置后未恢复；请关闭电源后重新打开，并检查其固件版本</translation>
    </message>
    <message>
        <source>it did not restart; switch it off and on and look for its firmware version</source>
        <translation>未重新启动；请关闭电源后重新打开，并检查其固件版本</translation>
    </message>
    <message>
        <source>same serial number as another camera</source>
        <translation>与另一台相机的序列号相同</translation>
    </message>
    <message>
        <source>another camera has the same vendor, model and serial number; connect only one of them and look for cameras again</source>
        <translation>另一台相机具有相同的厂商、型号和序列号；请只连接其中一台，然后重新搜索相机</translation>
    </message>
    <message>
        <source>another camera, %1, answers at its address; look for cameras again</source>
        <translation>在其地址上应答的是另一台相机 %1；请重新搜索相机</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool::CFrameStream</name>
    <message>
        <source>the file &quot;%1&quot; cannot be written (%2)</source>
        <translation>无法写入文件“%1”（%2）</translation>
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
型号：%2
序列号：%3
设备版本：%4
固件：%5</translation>
    </message>
    <message>
        <source>Acquiring</source>
        <translation>正在采集</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>正在录制</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>正在更新</translation>
    </message>
    <message>
        <source>In use elsewhere</source>
        <translation>被占用</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>固件</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Not updatable (%1)</source>
        <translation>无法更新 (%1)</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSelector::CCameraSelectorView</name>
    <message>
        <source>Cameras</source>
        <translation>相机</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CDependencyResolver</name>
    <message>
        <source>Its name is that of a part of the viewer.</source>
        <translation>其名称与查看器的组成部分相同。</translation>
    </message>
    <message>
        <source>A plug-in of the same name was found before: %1.</source>
        <translation>此前已找到同名插件：%1。</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot; %2, which is not there.</source>
        <translation>它需要“%1”%2，但该项不存在。</translation>
    </message>
    <message>
        <source>It is in a circle of dependencies: %1.</source>
        <translation>存在循环依赖：%1。</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot; %2, but the one that is there has version %3 and is compatible down to %4.</source>
        <translation>它需要“%1”%2，但现有版本为 %3，最低仅兼容到 %4。</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot;, which could not be started.</source>
        <translation>它需要“%1”，但该项无法启动。</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CPathTrust</name>
    <message>
        <source>it belongs to the user %1</source>
        <translation>属于用户 %1</translation>
    </message>
    <message>
        <source>users other than its owner can write to it</source>
        <translation>所有者以外的用户可以写入</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CPluginManager</name>
    <message>
        <source>an unknown exception</source>
        <translation>未知异常</translation>
    </message>
    <message>
        <source>It could not set its language</source>
        <translation>无法设置语言</translation>
    </message>
    <message>
        <source>It could not be initialized</source>
        <translation>无法初始化</translation>
    </message>
    <message>
        <source>It could not be connected to the viewer</source>
        <translation>无法连接到查看器</translation>
    </message>
    <message>
        <source>It could not be constructed: %1.</source>
        <translation>无法创建：%1。</translation>
    </message>
    <message>
        <source>Its library could not be loaded: %1.</source>
        <translation>无法加载其库：%1。</translation>
    </message>
    <message>
        <source>Its library does not contain what its metadata says.</source>
        <translation>库的内容与其元数据不符。</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1：%2。</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot;, which could not be started.</source>
        <translation>它需要“%1”，但该项无法启动。</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; (%2) is not available. %3</source>
        <translation>插件“%1”（%2）不可用。%3</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CPluginScanner</name>
    <message>
        <source>The file is damaged or is not a library.</source>
        <translation>文件已损坏或不是库文件。</translation>
    </message>
    <message>
        <source>Its folder &quot;%1&quot; is not safe: %2.</source>
        <translation>文件夹“%1”不安全：%2。</translation>
    </message>
    <message>
        <source>Its file is not safe: %1.</source>
        <translation>文件不安全：%1。</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CPluginSpec</name>
    <message>
        <source>It was built for the interface &quot;%1&quot;, but this viewer has &quot;%2&quot;.</source>
        <translation>它是为接口“%1”构建的，但此查看器的接口为“%2”。</translation>
    </message>
    <message>
        <source>Its metadata has no &quot;Name&quot;.</source>
        <translation>其元数据中没有“Name”。</translation>
    </message>
    <message>
        <source>The &quot;Dependencies&quot; of its metadata are not a list.</source>
        <translation>其元数据中的“Dependencies”不是列表。</translation>
    </message>
    <message>
        <source>A dependency in its metadata has no &quot;Name&quot;.</source>
        <translation>其元数据中的某个依赖项没有“Name”。</translation>
    </message>
    <message>
        <source>The &quot;%1&quot; of &quot;%2&quot; in its metadata is not a version number: &quot;%3&quot;.</source>
        <translation>其元数据中“%2”的“%1”不是版本号：“%3”。</translation>
    </message>
</context>
</TS>
