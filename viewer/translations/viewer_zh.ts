<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Viewer</name>
    <message>
        <source>There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set. Start it from a desktop, or with QT_QPA_PLATFORM=offscreen to see nothing.</source>
        <translation>没有可用的显示器：DISPLAY 和 WAYLAND_DISPLAY 均未设置。请从桌面环境启动；如果不需要显示画面，请使用 QT_QPA_PLATFORM=offscreen 启动。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CAboutBox</name>
    <message>
        <source>%1, built with %2</source>
        <translation>%1（构建时为 %2）</translation>
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
        <source>&lt;p&gt;License: MIT&lt;/p&gt;&lt;p&gt;Libraries:&lt;/p&gt;</source>
        <translation>&lt;p&gt;许可证：MIT&lt;/p&gt;&lt;p&gt;库：&lt;/p&gt;</translation>
    </message>
</context>
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
        <source>Recording %1 to %2.</source>
        <translation>正在将 %1 的图像录制到 %2。</translation>
    </message>
    <message>
        <source>Plug one in and click Refresh.</source>
        <translation>请连接相机，然后单击“刷新”。</translation>
    </message>
    <message>
        <source>Click Start to see its image.</source>
        <translation>单击“开始”可查看图像。</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) recorded.</source>
        <translation>
            <numerusform>已录制 %n 张图像。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) lost, since writing was too slow.</source>
        <translation>
            <numerusform>由于写入太慢，丢失了 %n 张图像。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CCommandLine</name>
    <message>
        <source>Shows cameras and lets plug-ins work with them.</source>
        <translation>显示相机，并允许插件使用相机。</translation>
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
        <source>code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Use &lt;dir&gt; as the folder of sample update files.</source>
        <translation>将 &lt;文件夹&gt; 用作示例更新文件的文件夹。</translation>
    </message>
    <message>
        <source>No folder is given for the demonstration&apos;s pictures.</source>
        <translation>未指定保存演示截图的文件夹。</translation>
    </message>
    <message>
        <source>No folder is given for the plug-ins.</source>
        <translation>未指定插件的文件夹。</translation>
    </message>
    <message>
        <source>Use the language &lt;code&gt; this time: %1.</source>
        <translation>指定本次使用的语言 &lt;代码&gt;：%1。</translation>
    </message>
    <message>
        <source>The language &quot;%1&quot; is unknown; there are %2.</source>
        <translation>未知的语言“%1”，可用的语言：%2。</translation>
    </message>
    <message>
        <source>Walk through the firmware update wizard, faster than real cameras would, save pictures into &lt;dir&gt; and quit.</source>
        <translation>以快于真实相机的速度走完固件更新向导，将画面保存到 &lt;文件夹&gt; 后退出。</translation>
    </message>
    <message>
        <source>Use only update files that a trusted maker has signed, this time.</source>
        <translation>本次仅使用由受信任的制作方签名的更新文件。</translation>
    </message>
    <message>
        <source>Show what the update file &lt;file&gt; holds.</source>
        <translation>显示更新文件 &lt;文件&gt; 的内容。</translation>
    </message>
    <message>
        <source>There is more than one update file: &quot;%1&quot; and &quot;%2&quot;.</source>
        <translation>有多个更新文件：“%1”和“%2”。</translation>
    </message>
    <message>
        <source>The name of the update file is empty.</source>
        <translation>更新文件的名称为空。</translation>
    </message>
    <message>
        <source>The demonstration shows no update file.</source>
        <translation>演示不显示更新文件。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>文件</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CImageActions</name>
    <message>
        <source>&amp;Fit to window</source>
        <translation>适应窗口(&amp;F)</translation>
    </message>
    <message>
        <source>Original si&amp;ze</source>
        <translation>原始大小(&amp;Z)</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>Mark satu&amp;rated pixels</source>
        <translation>标记饱和像素(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Histogram</source>
        <translation>直方图(&amp;H)</translation>
    </message>
    <message>
        <source>Sa&amp;ve image...</source>
        <translation>保存图像(&amp;V)...</translation>
    </message>
    <message>
        <source>Co&amp;py image</source>
        <translation>复制图像(&amp;P)</translation>
    </message>
    <message>
        <source>There is no image to save.</source>
        <translation>没有可保存的图像。</translation>
    </message>
    <message>
        <source>The image has been copied.</source>
        <translation>已复制图像。</translation>
    </message>
    <message>
        <source>There is no image to copy.</source>
        <translation>没有可复制的图像。</translation>
    </message>
    <message>
        <source>Save image</source>
        <translation>保存图像</translation>
    </message>
    <message>
        <source>PNG images</source>
        <translation>PNG 图像</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>The image has been saved as %1.</source>
        <translation>图像已保存为 %1。</translation>
    </message>
    <message>
        <source>The image could not be saved as %1: %2.</source>
        <translation>无法将图像保存为 %1：%2。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CInterruptionBar</name>
    <message>
        <source>Firmware Updater...</source>
        <translation>固件更新工具...</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>关闭</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>另外还有 %n 个。</numerusform>
        </translation>
    </message>
    <message>
        <source>The update of camera %1 that began at %2 was interrupted before its first step.</source>
        <translation>相机 %1 于 %2 开始的更新在第一个步骤之前中断。</translation>
    </message>
    <message>
        <source>The update of camera %1 that began at %2 was interrupted in step %3 of %4 (%5).</source>
        <translation>相机 %1 于 %2 开始的更新在第 %3 个步骤（%5，共 %4 个）中断。</translation>
    </message>
    <message>
        <source>It does not answer. Switch it off and on, then repeat the update with the file %1.</source>
        <translation>相机没有响应，请将其关闭再打开，然后使用文件 %1 重新执行更新。</translation>
    </message>
    <message>
        <source>It reports firmware version %1 now. Repeat the update with the file %2.</source>
        <translation>现在报告的固件版本为 %1，请使用文件 %2 重新执行更新。</translation>
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
        <translation>此桌面环境没有可打开网页的程序。请复制该地址，然后在其他地方打开。</translation>
    </message>
    <message>
        <source>The viewer opens only web pages, mail addresses and its own logs. This link leads somewhere else, so it was not opened.</source>
        <translation>查看器只打开网页、邮件地址和自身的日志。此链接指向别处，因此未打开。</translation>
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
        <source>The language changes the next time the viewer starts.</source>
        <translation>语言将在下次启动查看器时更改。</translation>
    </message>
    <message>
        <source>Camera settings</source>
        <translation>相机设置</translation>
    </message>
    <message>
        <source>Camera &amp;settings</source>
        <translation>相机设置(&amp;S)</translation>
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
    <name>Viewer::AppCore::CRecentFiles</name>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 已不存在。</translation>
    </message>
    <message>
        <source>&amp;Clear list</source>
        <translation>清除列表(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CSeriesNotifier</name>
    <message numerus="yes">
        <source>%n update(s) succeeded.</source>
        <translation>
            <numerusform>%n 次更新成功。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n update(s) failed.</source>
        <translation>
            <numerusform>%n 次更新失败。</numerusform>
        </translation>
    </message>
    <message>
        <source>The firmware updates have ended</source>
        <translation>固件更新已结束</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CSwitchMenu</name>
    <message>
        <source>Keep open in a &amp;window</source>
        <translation>在窗口中保持打开(&amp;W)</translation>
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
    <name>Viewer::AppCore::CTrustedMakersDialog</name>
    <message>
        <source>Trusted makers</source>
        <translation>受信任的制作方</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>制作方</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>有效期至</translation>
    </message>
    <message>
        <source>Trusted by</source>
        <translation>信任来源</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>添加(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>移除(&amp;R)...</translation>
    </message>
    <message>
        <source>Nobody is trusted yet. Add the certificates of the makers whose update files you use.</source>
        <translation>尚无受信任的制作方。请添加您所用更新文件的制作方的证书。</translation>
    </message>
    <message>
        <source>Maker: %1
Issued by: %2
Valid: %3 to %4
SHA-256 fingerprint:
%5</source>
        <translation>制作方：%1
颁发者：%2
有效期：%3 至 %4
SHA-256 指纹：
%5</translation>
    </message>
    <message>
        <source>You</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>此计算机</translation>
    </message>
    <message>
        <source>Add a trusted maker</source>
        <translation>添加受信任的制作方</translation>
    </message>
    <message>
        <source>Certificates in PEM</source>
        <translation>PEM 证书</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read, or has not exactly one certificate in PEM.</source>
        <translation>无法读取文件“%1”，或其中的 PEM 证书不是恰好一个。</translation>
    </message>
    <message>
        <source>Trust the update files of this maker? Compare the fingerprint with the one that the maker has told you in another way.</source>
        <translation>是否信任此制作方的更新文件？请将指纹与制作方通过其他途径告知的指纹进行比较。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2.</source>
        <translation>无法写入文件“%1”：%2。</translation>
    </message>
    <message>
        <source>Trust this maker no longer? The file &quot;%1&quot; is removed.</source>
        <translation>是否不再信任此制作方？文件“%1”将被移除。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be removed: %2.</source>
        <translation>无法移除文件“%1”：%2。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CUpdateFileDialog</name>
    <message numerus="yes">
        <source>%n upgrade(s)</source>
        <translation>
            <numerusform>%n 个升级</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n downgrade(s)</source>
        <translation>
            <numerusform>%n 个降级</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n reinstallation(s)</source>
        <translation>
            <numerusform>%n 个重新安装</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not now</source>
        <translation>
            <numerusform>%n 个暂不可用</numerusform>
        </translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>升级</translation>
    </message>
    <message>
        <source>Downgrade</source>
        <translation>降级</translation>
    </message>
    <message>
        <source>Reinstallation</source>
        <translation>重新安装</translation>
    </message>
    <message>
        <source>Not now: %1</source>
        <translation>暂不可用：%1</translation>
    </message>
    <message>
        <source>Update file</source>
        <translation>更新文件</translation>
    </message>
    <message>
        <source>&amp;Firmware Updater...</source>
        <translation>固件更新工具(&amp;F)...</translation>
    </message>
    <message>
        <source>Version, cameras</source>
        <translation>版本、相机</translation>
    </message>
    <message>
        <source>Models, firmware</source>
        <translation>型号、固件</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>What is known of this version</source>
        <translation>此版本的信息</translation>
    </message>
    <message>
        <source>The file %1 is being read...</source>
        <translation>正在读取文件 %1...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Cameras that it fits: %1 of %2</source>
        <translation>适用的相机：%1/%2</translation>
    </message>
    <message>
        <source>Cameras that it fits: %1 of %2 (%3)</source>
        <translation>适用的相机：%1/%2（%3）</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>版本：%1</translation>
    </message>
    <message>
        <source>Models: %1</source>
        <translation>型号：%1</translation>
    </message>
    <message>
        <source>Device versions: %1</source>
        <translation>设备版本：%1</translation>
    </message>
    <message>
        <source>Needs firmware: %1 or newer</source>
        <translation>所需固件：%1 或更高版本</translation>
    </message>
    <message>
        <source>Release notes:</source>
        <translation>发行说明：</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CUpdateFileOpener</name>
    <message>
        <source>Recent &amp;update files</source>
        <translation>最近的更新文件(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Open update file...</source>
        <translation>打开更新文件(&amp;O)...</translation>
    </message>
    <message>
        <source>A dialog is still open. Close it before you open an update file.</source>
        <translation>还有对话框未关闭，请先将其关闭，再打开更新文件。</translation>
    </message>
    <message>
        <source>Open update file</source>
        <translation>打开更新文件</translation>
    </message>
    <message>
        <source>Update files</source>
        <translation>更新文件</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>Drop one update file, not several.</source>
        <translation>请只拖放一个更新文件。</translation>
    </message>
    <message>
        <source>Only update files (*.guf) of this computer can be dropped here.</source>
        <translation>此处只能拖放此计算机上的更新文件（*.guf）。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CUpdateHistoryDialog</name>
    <message>
        <source>Update history</source>
        <translation>更新历史</translation>
    </message>
    <message>
        <source>Open &amp;log</source>
        <translation>打开日志(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>导出(&amp;E)...</translation>
    </message>
    <message numerus="yes">
        <source>%n damaged line(s) of the history were skipped.</source>
        <translation>
            <numerusform>已跳过更新历史中 %n 个损坏的行。</numerusform>
        </translation>
    </message>
    <message>
        <source>No updates yet.</source>
        <translation>还没有更新。</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>筛选(&amp;F)：</translation>
    </message>
    <message>
        <source>Export update history</source>
        <translation>导出更新历史</translation>
    </message>
    <message numerus="yes">
        <source>%n update(s) were written to &quot;%1&quot;.</source>
        <translation>
            <numerusform>已将 %n 次更新写入“%1”。</numerusform>
        </translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2.</source>
        <translation>无法写入文件“%1”：%2。</translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CViewer</name>
    <message>
        <source>Re&amp;fresh</source>
        <translation>刷新(&amp;F)</translation>
    </message>
    <message>
        <source>Open samp&amp;le folder</source>
        <translation>打开示例文件夹(&amp;L)</translation>
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
        <source>Search for cameras (F5)</source>
        <translation>搜索相机 (F5)</translation>
    </message>
    <message>
        <source>&amp;Logs...</source>
        <translation>日志(&amp;L)...</translation>
    </message>
    <message>
        <source>%1 Then the viewer closes by itself.</source>
        <translation>%1 之后查看器将自动关闭。</translation>
    </message>
    <message>
        <source>&amp;Update history...</source>
        <translation>更新历史(&amp;U)...</translation>
    </message>
    <message>
        <source>Trusted &amp;makers...</source>
        <translation>受信任的制作方(&amp;M)...</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>手册(&amp;M)</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Fin&amp;d cameras</source>
        <translation>查找相机(&amp;D)</translation>
    </message>
</context>
<context>
    <name>Viewer::Camera::GenICam</name>
    <message>
        <source>This viewer was built without the library for real cameras.</source>
        <translation>此查看器在构建时未包含真实相机所需的库。</translation>
    </message>
    <message>
        <source>Search the network (by broadcast) and USB for cameras this time.</source>
        <translation>本次运行时搜索网络（通过广播）和 USB 上的相机。</translation>
    </message>
    <message>
        <source>address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Ask for a camera at &lt;address&gt;, without a broadcast; can be given several times.</source>
        <translation>不使用广播，查找位于 &lt;地址&gt; 的相机；可多次指定。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a camera address; it has the form 192.168.0.10.</source>
        <translation>“%1”不是相机地址，其格式应为 192.168.0.10。</translation>
    </message>
</context>
<context>
    <name>Viewer::Camera::GenICam::CGenICam</name>
    <message>
        <source>Search the &amp;network for cameras</source>
        <translation>在网络中搜索相机(&amp;N)</translation>
    </message>
</context>
<context>
    <name>Viewer::Camera::Simulation::CSimulation</name>
    <message>
        <source>file</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Simulate the cameras described in &lt;file&gt;.</source>
        <translation>模拟 &lt;文件&gt; 中描述的相机。</translation>
    </message>
    <message>
        <source>Forget the firmware that earlier updates wrote to the simulated cameras.</source>
        <translation>清除以往更新写入模拟相机的固件。</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
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
        <source>&amp;Simulation</source>
        <translation>模拟(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Plugged in</source>
        <translation>已连接(&amp;P)</translation>
    </message>
    <message>
        <source>In &amp;use elsewhere</source>
        <translation>被其他程序占用(&amp;U)</translation>
    </message>
    <message>
        <source>Let the simulated cameras work &lt;n&gt; times as fast as real ones (default 1).</source>
        <translation>让模拟相机以真实相机 &lt;n&gt; 倍的速度工作（默认 1）。</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool</name>
    <message>
        <source>it is in use by another application</source>
        <translation>正被其他程序占用</translation>
    </message>
    <message>
        <source>its status is %1</source>
        <translation>状态为 %1</translation>
    </message>
    <message>
        <source>its status is %1: %2</source>
        <translation>状态为 %1：%2</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool::CCameraEnumerationService</name>
    <message>
        <source>being updated</source>
        <translation>正在更新</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool::CCameraPool</name>
    <message>
        <source>The folder &quot;%1&quot; does not exist; choose another one.</source>
        <translation>文件夹“%1”不存在，请选择其他文件夹。</translation>
    </message>
    <message>
        <source>The recording of camera %1 has ended: %2.</source>
        <translation>相机 %1 的录制已结束：%2。</translation>
    </message>
    <message>
        <source>Camera %1 cannot be started while the firmware updater is open.</source>
        <translation>固件更新工具打开期间无法启动相机 %1。</translation>
    </message>
    <message>
        <source>Camera %1 does not answer; check its cable.</source>
        <translation>相机 %1 没有响应，请检查线缆。</translation>
    </message>
    <message>
        <source>Camera %1 is being updated.</source>
        <translation>正在更新相机 %1。</translation>
    </message>
    <message>
        <source>Camera %1 no longer answers; acquisition has stopped.</source>
        <translation>相机 %1 不再响应，采集已停止。</translation>
    </message>
    <message>
        <source>Camera %1 is in use by another application.</source>
        <translation>相机 %1 正被另一个应用程序使用。</translation>
    </message>
    <message>
        <source>being updated (%1 %)</source>
        <translation>正在更新（%1 %）</translation>
    </message>
    <message>
        <source>Camera %1 has no images here.</source>
        <translation>此处没有相机 %1 的图像。</translation>
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
        <translation>被其他程序占用</translation>
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
        <translation>无法更新（%1）</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>IP address: %1</source>
        <translation>IP 地址：%1</translation>
    </message>
    <message>
        <source>MAC address: %1</source>
        <translation>MAC 地址：%1</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>MAC 地址</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSelector::CCameraSelectorPanel</name>
    <message>
        <source>Filter cameras</source>
        <translation>筛选相机</translation>
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
        <translation>相机</translation>
    </message>
    <message>
        <source>&amp;Order as found</source>
        <translation>按找到的顺序(&amp;O)</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSettings::CCameraSettingsView</name>
    <message>
        <source>Exposure time:</source>
        <translation>曝光时间：</translation>
    </message>
    <message>
        <source>Gain:</source>
        <translation>增益：</translation>
    </message>
    <message>
        <source>Frame rate:</source>
        <translation>帧率：</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>宽度：</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高度：</translation>
    </message>
    <message>
        <source>Offset X:</source>
        <translation>X 偏移：</translation>
    </message>
    <message>
        <source>Offset Y:</source>
        <translation>Y 偏移：</translation>
    </message>
    <message>
        <source>Pixel format:</source>
        <translation>像素格式：</translation>
    </message>
    <message>
        <source>Trigger:</source>
        <translation>触发：</translation>
    </message>
    <message>
        <source>Test pattern:</source>
        <translation>测试图案：</translation>
    </message>
    <message>
        <source>Select a camera and click Start to see its settings.</source>
        <translation>要查看设置，请选择一台相机并单击“开始”。</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSettings::CFeatureTree</name>
    <message>
        <source>Part of a name</source>
        <translation>名称的一部分</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>&amp;All features:</source>
        <translation>所有参数(&amp;A)：</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSettings::CSettingEditor</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not possible: %2 goes from %3 to %4.</source>
        <translation>无法使用“%1”，%2 的范围是 %3 至 %4。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number for %2.</source>
        <translation>“%1”不是可用于 %2 的数字。</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraWorker::CCameraUpdate</name>
    <message>
        <source>The firmware of camera %1 is being updated.</source>
        <translation>正在更新相机 %1 的固件。</translation>
    </message>
</context>
<context>
    <name>Viewer::CommandLine::COptionReader</name>
    <message>
        <source>Show this help and quit.</source>
        <translation>显示此帮助并退出。</translation>
    </message>
    <message>
        <source>Show the version and quit.</source>
        <translation>显示版本并退出。</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>意外的参数“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no good value for --%2.</source>
        <translation>“%1”不是 --%2 的有效值。</translation>
    </message>
</context>
<context>
    <name>Viewer::Files::CFileEnd</name>
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
    <name>Viewer::GufTool::CGufTool</name>
    <message>
        <source>There is no command.</source>
        <translation>缺少命令。</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; is unknown.</source>
        <translation>未知的命令“%1”。</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; has too few or too many arguments.</source>
        <translation>命令“%1”的参数过少或过多。</translation>
    </message>
    <message>
        <source>Packed %1: updates: %2, bytes: %3</source>
        <translation>已打包 %1：更新 %2 个，共 %3 字节</translation>
    </message>
    <message>
        <source>%1 is faultless, updates: %2</source>
        <translation>%1 没有错误，更新 %2 个</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; has no option --%2.</source>
        <translation>命令“%1”没有 --%2 选项。</translation>
    </message>
    <message>
        <source>A signature needs --certificate and --key.</source>
        <translation>签名需要 --certificate 和 --key。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a folder.</source>
        <translation>“%1”不是文件夹。</translation>
    </message>
    <message>
        <source>Passphrase of the key:</source>
        <translation>密钥的密码：</translation>
    </message>
    <message>
        <source>It cannot be signed: %1</source>
        <translation>无法签名：%1</translation>
    </message>
    <message>
        <source>Signed %1</source>
        <translation>已签名 %1</translation>
    </message>
    <message>
        <source>Signed by %1, SHA-256 fingerprint %2</source>
        <translation>签名者 %1，SHA-256 指纹 %2</translation>
    </message>
    <message>
        <source>A time stamp needs --query or --response.</source>
        <translation>时间戳需要 --query 或 --response。</translation>
    </message>
    <message>
        <source>Stamped %1</source>
        <translation>已添加时间戳：%1</translation>
    </message>
    <message>
        <source>Wrote %1, for an authority for time stamps</source>
        <translation>已写出 %1，请发送给时间戳机构</translation>
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
        <translation>用法：guftool pack &lt;文件夹&gt; &lt;文件&gt; [--sign &lt;签名&gt;]
      guftool sign &lt;文件&gt; &lt;签名&gt;
      guftool stamp &lt;文件&gt; --query &lt;请求&gt; | --response &lt;响应&gt;
      guftool inspect [--json] [--trust &lt;文件夹&gt;] &lt;文件&gt;
      guftool verify [--trust &lt;文件夹&gt;] &lt;文件&gt;

&lt;签名&gt;   --certificate &lt;文件&gt; --key &lt;文件&gt; [--chain &lt;文件&gt;]
         [--passphrase-file &lt;文件&gt;]，除最后一个文件外均为 PEM 格式，
         最后一个文件的第一行是密钥的密码

pack     使用 &lt;文件夹&gt;/update.json 及其指定的、
         位于 &lt;文件夹&gt; 中的数据文件，创建更新文件 &lt;文件&gt;；
         其中省略的大小和摘要会自动补全
sign     为 &lt;文件&gt; 添加签名
stamp    写出向时间戳机构查询签名时间的 &lt;请求&gt;，
         或添加其答复 &lt;响应&gt;（RFC 3161）
inspect  检查 &lt;文件&gt; 并显示其内容，使用 --json 时以 JSON 格式显示，
         并显示此计算机或 &lt;文件夹&gt; 是否信任签名者
verify   检查 &lt;文件&gt;，使用 --trust 时还检查它是否由
         证书位于 &lt;文件夹&gt; 中的制作方签名

退出代码：正常时为 0，文件有错误时为 1，程序调用方式有误时为 2，
缺少签名或签名不受信任时为 3。
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
        <translation>文件：    %1
格式：    %2
更新：    %3
</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
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
  版本：            %2
  说明：            %3
  型号：            %4
  设备版本：        %5
  最低版本：        %6
  发行说明：        %7
  步骤：
</translation>
    </message>
    <message>
        <source>any</source>
        <translation>任意</translation>
    </message>
    <message>
        <source>    by size</source>
        <extracomment>Eleven columns wide; Korean, Japanese and Chinese letters take two columns.</extracomment>
        <translation>     按大小</translation>
    </message>
    <message>
        <source>%1 (%2 bytes) to %3</source>
        <translation>%1（%2 字节）→ %3</translation>
    </message>
    <message>
        <source>
Signature
  State:            %1
</source>
        <extracomment>The values begin in column 20; Korean, Japanese and Chinese letters take two columns.</extracomment>
        <translation>
签名
  状态：            %1
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
        <translation>  签名者：          %1
  颁发者：          %2
  有效期自：        %3
  有效期至：        %4
  SHA-256 指纹：    %5
</translation>
    </message>
    <message>
        <source>  Time stamp:       %1
</source>
        <extracomment>The values begin in column 20; Korean, Japanese and Chinese letters take two columns.</extracomment>
        <translation>  时间戳：          %1
</translation>
    </message>
</context>
<context>
    <name>Viewer::ImageView::CImageTile</name>
    <message>
        <source>Its image cannot be shown: %1.</source>
        <translation>无法显示图像：%1。</translation>
    </message>
</context>
<context>
    <name>Viewer::ImageView::CImageView</name>
    <message>
        <source>Image</source>
        <translation>图像</translation>
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
        <translation>自采集开始以来：
帧：%1
数据：%2 MB
重传的数据包：%3
丢失的数据包：%4
不完整的帧：%5
未显示的帧：%6</translation>
    </message>
    <message>
        <source>%1 frames/s, %2 MB/s</source>
        <translation>%1 帧/秒，%2 MB/s</translation>
    </message>
    <message>
        <source>packets resent: %1</source>
        <translation>重传数据包：%1</translation>
    </message>
    <message>
        <source>packets lost: %1</source>
        <translation>丢失数据包：%1</translation>
    </message>
    <message>
        <source>frames incomplete: %1</source>
        <translation>不完整帧：%1</translation>
    </message>
    <message>
        <source>frames not shown: %1</source>
        <translation>未显示帧：%1</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CCameraSelection</name>
    <message>
        <source>No camera was found.</source>
        <translation>未找到相机。</translation>
    </message>
    <message>
        <source>There is no camera of the model &quot;%1&quot;.</source>
        <translation>没有型号为“%1”的相机。</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) have the serial number &quot;%1&quot;; name the one that is meant by its id: %2.</source>
        <translation>
            <numerusform>有 %n 台相机的序列号为“%1”，请用 ID 指定其中一台：%2。</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no camera with the id or serial number &quot;%1&quot;; the nearest are %2.</source>
        <translation>没有 ID 或序列号为“%1”的相机；最接近的是 %2。</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CQuestion</name>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CTerminalReport</name>
    <message>
        <source>%1 left</source>
        <translation>剩余 %1</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CTextReport</name>
    <message>
        <source>Id</source>
        <translation>相机 ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Device version</source>
        <translation>设备版本</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>固件</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>for %1</source>
        <translation>适用于 %1</translation>
    </message>
    <message>
        <source>device version %1</source>
        <translation>设备版本 %1</translation>
    </message>
    <message>
        <source>from version %1 on</source>
        <translation>自版本 %1 起</translation>
    </message>
    <message>
        <source>upgrade %1</source>
        <translation>升级 %1</translation>
    </message>
    <message>
        <source>downgrade %1</source>
        <translation>降级 %1</translation>
    </message>
    <message>
        <source>reinstall %1</source>
        <translation>重新安装 %1</translation>
    </message>
    <message>
        <source>does not fit: %1</source>
        <translation>不适用：%1</translation>
    </message>
    <message>
        <source>cannot be updated now: %1</source>
        <translation>现在无法更新：%1</translation>
    </message>
    <message>
        <source>%1: begins, %2</source>
        <translation>%1：开始，%2</translation>
    </message>
    <message>
        <source>%1: step %2 of %3, %4</source>
        <translation>%1：第 %2 步，共 %3 步，%4</translation>
    </message>
    <message>
        <source>%1: updated, %2, in %3 s</source>
        <translation>%1：已更新，%2，用时 %3 秒</translation>
    </message>
    <message>
        <source>updated</source>
        <translation>已更新</translation>
    </message>
    <message>
        <source>FAILED: %1</source>
        <translation>失败：%1</translation>
    </message>
    <message>
        <source>not updated: %1</source>
        <translation>未更新：%1</translation>
    </message>
    <message>
        <source>left alone: %1</source>
        <translation>未改动：%1</translation>
    </message>
    <message>
        <source>not begun</source>
        <translation>未开始</translation>
    </message>
    <message>
        <source>would be updated to %1</source>
        <translation>将更新到 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n updated</source>
        <translation>
            <numerusform>已更新 %n 台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n 台失败</numerusform>
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
            <numerusform>将更新 %n 台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left alone</source>
        <translation>
            <numerusform>%n 台未改动</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n running</source>
        <translation>
            <numerusform>%n 台正在运行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not begun</source>
        <translation>
            <numerusform>%n 台未开始</numerusform>
        </translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>From</source>
        <translation>更新前</translation>
    </message>
    <message>
        <source>To</source>
        <translation>更新后</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>%1 (%2 s)</source>
        <translation>%1（%2 秒）</translation>
    </message>
    <message>
        <source>SHA-256 fingerprint of the certificate: %1</source>
        <translation>证书的 SHA-256 指纹：%1</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CUpdateCommandLine</name>
    <message>
        <source>Updates the firmware of many cameras, without a display.</source>
        <translation>无需显示器即可更新多台相机的固件。</translation>
    </message>
    <message>
        <source>list: the cameras; check: what a file would do to each of them; update: do it; resume: repeat what was interrupted; history: what was updated.</source>
        <translation>list：列出相机；check：文件将对各相机做什么；update：执行更新；resume：重新执行中断的更新；history：更新历史。</translation>
    </message>
    <message>
        <source>The update file, for check and update.</source>
        <translation>更新文件（用于 check 和 update）。</translation>
    </message>
    <message>
        <source>code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Use the language &lt;code&gt;: %1.</source>
        <translation>使用语言 &lt;代码&gt;：%1。</translation>
    </message>
    <message>
        <source>The language &quot;%1&quot; is unknown; there are %2.</source>
        <translation>未知的语言“%1”，可用的语言：%2。</translation>
    </message>
    <message>
        <source>Print one JSON object a line.</source>
        <translation>每行输出一个 JSON 对象。</translation>
    </message>
    <message>
        <source>history: print a table for spreadsheets.</source>
        <translation>history：输出用于电子表格的表格。</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>id</source>
        <translation>标识</translation>
    </message>
    <message>
        <source>update: the camera with this id or serial number; can be given several times.</source>
        <translation>update：具有此 ID 或序列号的相机；可多次指定。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>update: all cameras of this model.</source>
        <translation>update：此型号的所有相机。</translation>
    </message>
    <message>
        <source>update: all cameras that the file fits.</source>
        <translation>update：文件适用的所有相机。</translation>
    </message>
    <message>
        <source>update: also where the camera has a newer version.</source>
        <translation>update：相机版本更新时也执行。</translation>
    </message>
    <message>
        <source>update: also where the camera has this version already.</source>
        <translation>update：相机已是此版本时也执行。</translation>
    </message>
    <message>
        <source>So many updates at a time (default 8).</source>
        <translation>同时进行的更新数量（默认 8）。</translation>
    </message>
    <message>
        <source>--parallel takes a number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--parallel 需要 1 到 %1 之间的数字，而不是“%2”。</translation>
    </message>
    <message>
        <source>So many cameras first, the others only when all of these have succeeded.</source>
        <translation>首先更新的相机数量；全部成功后才更新其余相机。</translation>
    </message>
    <message>
        <source>--canary takes a number of cameras, not &quot;%1&quot;.</source>
        <translation>--canary 需要相机数量，而不是“%1”。</translation>
    </message>
    <message>
        <source>Begin no further camera after so many failures (default 1).</source>
        <translation>失败达到此次数后不再开始新的相机（默认 1）。</translation>
    </message>
    <message>
        <source>--max-failures takes a number of cameras, not &quot;%1&quot;.</source>
        <translation>--max-failures 需要相机数量，而不是“%1”。</translation>
    </message>
    <message>
        <source>Only say what would be done.</source>
        <translation>仅说明将执行的操作。</translation>
    </message>
    <message>
        <source>Do not ask before the updates begin.</source>
        <translation>开始更新前不询问。</translation>
    </message>
    <message>
        <source>No command is given; there are %1.</source>
        <translation>未指定命令；可用的命令有 %1。</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;; there are %2.</source>
        <translation>没有命令“%1”；可用的命令有 %2。</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>意外的参数“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs an update file.</source>
        <translation>“%1”需要一个更新文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no option --%2.</source>
        <translation>“%1”没有选项 --%2。</translation>
    </message>
    <message>
        <source>--csv and --json exclude each other.</source>
        <translation>--csv 和 --json 不能同时使用。</translation>
    </message>
    <message>
        <source>Say which cameras: --camera, --model or --all.</source>
        <translation>请指定相机：--camera、--model 或 --all。</translation>
    </message>
    <message>
        <source>--camera, --model and --all exclude each other.</source>
        <translation>--camera、--model 和 --all 不能同时使用。</translation>
    </message>
    <message>
        <source>check, update, resume: only with a file that a trusted maker has signed.</source>
        <translation>check、update、resume：仅使用由受信任的制作方签名的文件。</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CUpdateLog</name>
    <message>
        <source>The log in &quot;%1&quot; cannot be written: %2; the updates go on without it.</source>
        <translation>无法写入“%1”中的日志：%2；更新将在没有日志的情况下继续。</translation>
    </message>
    <message>
        <source>there is no home folder</source>
        <translation>没有主文件夹</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CUpdateProgram</name>
    <message>
        <source>The file fits none of the cameras.</source>
        <translation>该文件不适用于任何相机。</translation>
    </message>
    <message numerus="yes">
        <source>%n damaged line(s) of the history were skipped.</source>
        <translation>
            <numerusform>已跳过更新历史中 %n 个损坏的行。</numerusform>
        </translation>
    </message>
    <message>
        <source>The file does not fit camera %1: %2.</source>
        <translation>该文件不适用于相机 %1：%2。</translation>
    </message>
    <message>
        <source>Camera %1 does not answer. Switch it off and on, then resume again.</source>
        <translation>相机 %1 没有响应。请关闭电源后重新打开，然后再次执行 resume。</translation>
    </message>
    <message>
        <source>Camera %1: the file &quot;%2&quot; is not the one any more with which its update was begun; use &quot;update&quot;.</source>
        <translation>相机 %1：文件“%2”已不是开始更新时的那个文件，请使用“update”。</translation>
    </message>
    <message>
        <source>No update was interrupted.</source>
        <translation>没有中断的更新。</translation>
    </message>
    <message>
        <source>it has the newer version %1 (--allow-downgrade)</source>
        <translation>已有更新的版本 %1（--allow-downgrade）</translation>
    </message>
    <message>
        <source>it has version %1 already (--allow-reinstall)</source>
        <translation>已是版本 %1（--allow-reinstall）</translation>
    </message>
    <message>
        <source>There is no terminal to ask at; say --yes, or --dry-run to see what would be done.</source>
        <translation>没有可供询问的终端，请指定 --yes，或用 --dry-run 查看将执行的操作。</translation>
    </message>
    <message numerus="yes">
        <source>Update %n camera(s)? [y/N]</source>
        <translation>
            <numerusform>要更新 %n 台相机吗？[y/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was updated.</source>
        <translation>未更新任何相机。</translation>
    </message>
    <message>
        <source>No further camera begins. Those that run are finished; cut off, they could be damaged.</source>
        <translation>不再开始新的相机。正在运行的更新将会完成；若中途切断，相机可能损坏。</translation>
    </message>
    <message>
        <source>Stopped; nothing was updated.</source>
        <translation>已停止；未更新任何相机。</translation>
    </message>
    <message>
        <source>The output cannot be written: %1; the updates go on, see the history.</source>
        <translation>无法写入输出：%1；更新会继续，结果见更新历史。</translation>
    </message>
    <message>
        <source>The output cannot be written: %1.</source>
        <translation>无法写入输出：%1。</translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CUpdateSeries</name>
    <message>
        <source>the camera is not there any more</source>
        <translation>相机已不存在</translation>
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
        <source>It needs &quot;%1&quot;, which could not be started.</source>
        <translation>需要“%1”，但未能将其启动。</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot; %2, which is missing.</source>
        <translation>需要“%1”%2，但未找到。</translation>
    </message>
    <message>
        <source>It is part of a circular dependency: %1.</source>
        <translation>存在循环依赖：%1。</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot; %2, but version %3 is installed, which is compatible with %4 and later.</source>
        <translation>需要“%1”%2，但已安装的版本为 %3，仅与 %4 及更高版本兼容。</translation>
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
        <translation>需要“%1”，但未能将其启动。</translation>
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
        <translation>为接口“%1”构建，但此查看器的接口为“%2”。</translation>
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
    <message>
        <source>It was built with Qt %1, but this viewer needs plug-ins that were built with Qt %2.</source>
        <translation>使用 Qt %1 构建，但此查看器需要使用 Qt %2 构建的插件。</translation>
    </message>
</context>
<context>
    <name>Viewer::Text::CErrorText</name>
    <message>
        <source>Camera %1: %2</source>
        <translation>相机 %1：%2</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>it is already being updated</source>
        <translation>已在更新中</translation>
    </message>
    <message>
        <source>it is acquiring images; stop that and start the update again</source>
        <translation>正在采集图像，请停止采集，然后重新开始更新</translation>
    </message>
    <message>
        <source>the update failed for an unknown reason</source>
        <translation>由于未知原因，更新失败</translation>
    </message>
    <message>
        <source>%1; the update had already begun to write, so repeat it before the camera is used</source>
        <translation>%1；固件已开始写入，请先重新执行更新，再使用相机</translation>
    </message>
    <message>
        <source>it does not answer; check its cable and its power supply</source>
        <translation>没有响应，请检查线缆和电源</translation>
    </message>
    <message>
        <source>it is already open</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>it has no feature &quot;%1&quot; that can be read</source>
        <translation>没有可读取的参数“%1”</translation>
    </message>
    <message>
        <source>it refuses to write the feature &quot;%1&quot;</source>
        <translation>拒绝写入参数“%1”</translation>
    </message>
    <message>
        <source>it has no feature &quot;%1&quot; that can be written</source>
        <translation>没有可写入的参数“%1”</translation>
    </message>
    <message>
        <source>it has no command &quot;%1&quot;</source>
        <translation>没有命令“%1”</translation>
    </message>
    <message>
        <source>it refuses to write the file &quot;%1&quot;</source>
        <translation>拒绝写入相机中的文件“%1”</translation>
    </message>
    <message>
        <source>the data for its file &quot;%1&quot; ended after %2 of %3 bytes (%4)</source>
        <translation>相机中的文件“%1”的数据不完整：共 %3 字节，只有 %2 字节（%4）</translation>
    </message>
    <message>
        <source>the upload of its file &quot;%1&quot; broke off after %2 of %3 bytes</source>
        <translation>相机中的文件“%1”上传中断：共 %3 字节，已上传 %2 字节</translation>
    </message>
    <message>
        <source>it did not come back from its reset within %1 s; switch it off and on</source>
        <translation>复位后未在 %1 秒内恢复，请关闭电源后重新打开</translation>
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
        <translation>连接已断开，请检查线缆和电源</translation>
    </message>
    <message>
        <source>there is no complete firmware image to activate</source>
        <translation>没有可激活的完整固件映像</translation>
    </message>
    <message>
        <source>it does not accept the uploaded file as a firmware image</source>
        <translation>无法将上传的文件识别为固件映像</translation>
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
        <translation>报告的状态为 %1，因此现在无法更新</translation>
    </message>
    <message>
        <source>the archive is cut off at its end; copy the file again</source>
        <translation>压缩文件末尾不完整，请重新复制该文件</translation>
    </message>
    <message>
        <source>this is not an update file, as it is not a ZIP archive</source>
        <translation>这不是 ZIP 压缩文件，因此不是更新文件</translation>
    </message>
    <message>
        <source>the archive is one part of several; pack it as one file</source>
        <translation>这是分卷压缩文件的一部分，请打包为单个文件</translation>
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
        <translation>压缩文件已损坏，请重新复制该文件</translation>
    </message>
    <message>
        <source>there is no update.json in the archive</source>
        <translation>压缩文件中没有 update.json</translation>
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
        <translation>无法打开文件，请检查其访问权限</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>the file cannot be opened; too many files are open</source>
        <translation>打开的文件过多，无法打开该文件</translation>
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
        <source>Update file %1: %2</source>
        <translation>更新文件 %1：%2</translation>
    </message>
    <message>
        <source>it did not answer; check its cable, its power supply and the network</source>
        <translation>没有响应，请检查线缆、电源和网络</translation>
    </message>
    <message>
        <source>control over it was lost; close other applications that use it</source>
        <translation>已失去对相机的控制权，请关闭正在使用它的其他应用程序</translation>
    </message>
    <message>
        <source>it is busy; try again later</source>
        <translation>正忙，请稍后重试</translation>
    </message>
    <message>
        <source>it refused (%1)</source>
        <translation>相机拒绝了请求（%1）</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>its memory could not be written</source>
        <translation>无法写入相机的存储器</translation>
    </message>
    <message>
        <source>opening its file &quot;%1&quot; failed</source>
        <translation>打开相机中的文件“%1”失败</translation>
    </message>
    <message>
        <source>writing its file &quot;%1&quot; failed at byte %2</source>
        <translation>在第 %2 字节处写入相机中的文件“%1”失败</translation>
    </message>
    <message>
        <source>closing its file &quot;%1&quot; failed</source>
        <translation>关闭相机中的文件“%1”失败</translation>
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
        <source>it could not be opened</source>
        <translation>无法打开相机</translation>
    </message>
    <message>
        <source>its command &quot;%1&quot; took too long; switch the camera off and on and repeat the update</source>
        <translation>其命令“%1”耗时过长，请关闭相机电源后重新打开，然后重新执行更新</translation>
    </message>
    <message>
        <source>the upload of its file &quot;%1&quot; took too long; it was broken off after %2 of %3 bytes</source>
        <translation>相机中的文件“%1”上传耗时过长，已中断：共 %3 字节，已上传 %2 字节</translation>
    </message>
    <message>
        <source>same serial number as another camera</source>
        <translation>与另一台相机的序列号相同</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; could not be read</source>
        <translation>无法读取其参数“%1”</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; could not be set to &quot;%2&quot;</source>
        <translation>无法将其参数“%1”设置为“%2”</translation>
    </message>
    <message>
        <source>it has no feature &quot;%1&quot;; the update file may be for another model</source>
        <translation>没有参数“%1”，更新文件可能适用于其他型号</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; is not a command</source>
        <translation>其参数“%1”不是命令</translation>
    </message>
    <message>
        <source>its command &quot;%1&quot; could not be executed</source>
        <translation>无法执行其命令“%1”</translation>
    </message>
    <message>
        <source>it could not be found out whether its command &quot;%1&quot; has finished</source>
        <translation>无法确认其命令“%1”是否已完成</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; is not a register</source>
        <translation>其参数“%1”不是寄存器</translation>
    </message>
    <message>
        <source>its buffer for files has no room (length 0)</source>
        <translation>其文件传输缓冲区的大小为 0</translation>
    </message>
    <message>
        <source>it accepted only %1 of %2 bytes</source>
        <translation>共 %2 字节，只接受了 %1 字节</translation>
    </message>
    <message>
        <source>another camera has the same vendor, model and serial number; connect only one of them and search for cameras again</source>
        <translation>另一台相机具有相同的厂商、型号和序列号，请只连接其中一台，然后重新搜索相机</translation>
    </message>
    <message>
        <source>another camera, %1, answers at its address; search for cameras again</source>
        <translation>响应其地址的是另一台相机 %1，请重新搜索相机</translation>
    </message>
    <message>
        <source>its address cannot be reached; check the network settings of this computer</source>
        <translation>无法访问其地址，请检查此计算机的网络设置</translation>
    </message>
    <message>
        <source>it is in use by another application; close that application and start the update again</source>
        <translation>正被另一个应用程序使用，请关闭该应用程序后重新开始更新</translation>
    </message>
    <message>
        <source>it did not come back from its reset; switch it off and on and check its firmware version</source>
        <translation>复位后未恢复，请关闭电源后重新打开，并检查其固件版本</translation>
    </message>
    <message>
        <source>it did not restart; switch it off and on and check its firmware version</source>
        <translation>未重新启动，请关闭电源后重新打开，并检查其固件版本</translation>
    </message>
    <message>
        <source>the field is given twice</source>
        <translation>字段重复指定</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; is missing</source>
        <translation>缺少字段“%1”</translation>
    </message>
    <message>
        <source>format %1 is unknown, only format 1 can be read</source>
        <translation>未知的格式 %1，只能读取格式 1</translation>
    </message>
    <message>
        <source>more than %1 transport layers</source>
        <translation>传输层超过 %1 个</translation>
    </message>
    <message>
        <source>more than %1 cameras</source>
        <translation>相机超过 %1 台</translation>
    </message>
    <message>
        <source>the id &quot;%1&quot; is already used in line %2</source>
        <translation>ID“%1”已在第 %2 行使用</translation>
    </message>
    <message>
        <source>the text must not be empty</source>
        <translation>字符串不能为空</translation>
    </message>
    <message>
        <source>the text has %1 characters; at most %2 are allowed</source>
        <translation>字符串有 %1 个字符，最多允许 %2 个</translation>
    </message>
    <message>
        <source>the text must not contain line breaks or control characters</source>
        <translation>字符串不能包含换行符或控制字符</translation>
    </message>
    <message>
        <source>Camera description &quot;%1&quot; cannot be read: it is not a regular file</source>
        <translation>无法读取相机描述文件“%1”：这不是普通文件</translation>
    </message>
    <message>
        <source>Camera description &quot;%1&quot; cannot be read: %2</source>
        <translation>无法读取相机描述文件“%1”：%2</translation>
    </message>
    <message>
        <source>Camera description &quot;%1&quot; is larger than %2 bytes</source>
        <translation>相机描述文件“%1”大于 %2 字节</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>为空</translation>
    </message>
    <message>
        <source>is longer than %1 characters</source>
        <translation>超过 %1 个字符</translation>
    </message>
    <message>
        <source>has a control character</source>
        <translation>包含控制字符</translation>
    </message>
    <message>
        <source>has a backslash; use forward slashes</source>
        <translation>包含反斜杠，请使用正斜杠</translation>
    </message>
    <message>
        <source>has a colon; drive letters are not allowed</source>
        <translation>包含冒号，不允许使用驱动器号</translation>
    </message>
    <message>
        <source>is an absolute path; use one inside the archive</source>
        <translation>是绝对路径，请使用压缩文件内的路径</translation>
    </message>
    <message>
        <source>has an empty part or one of dots only; use a plain path</source>
        <translation>包含空的部分或仅由点组成的部分，请使用普通路径</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>布尔值 true 或 false</translation>
    </message>
    <message>
        <source>a value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>the format version is %1, but this program reads version %2 only</source>
        <translation>格式版本为 %1，但此程序只能读取版本 %2</translation>
    </message>
    <message>
        <source>update.json has %1 bytes; at most %2 are allowed</source>
        <translation>update.json 有 %1 字节，最多允许 %2 字节</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; cannot be read; the archive is damaged</source>
        <translation>无法读取文件“%1”，压缩文件已损坏</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; is damaged and cannot be unpacked</source>
        <translation>文件“%1”已损坏，无法解压</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; unpacks to more bytes than the archive declares</source>
        <translation>文件“%1”解压后的大小超过压缩文件中声明的大小</translation>
    </message>
    <message>
        <source>update.json is in a folder of the archive (&quot;%1&quot;); it must be at the top level</source>
        <translation>update.json 位于压缩文件的文件夹中（“%1”），必须位于顶层</translation>
    </message>
    <message>
        <source>the file has %1 bytes; at most %2 are allowed</source>
        <translation>文件有 %1 字节，最多允许 %2 字节</translation>
    </message>
    <message>
        <source>the archive has %1 entries; at most %2 are allowed</source>
        <translation>压缩文件有 %1 个条目，最多允许 %2 个</translation>
    </message>
    <message>
        <source>the archive has two entries named &quot;%1&quot;</source>
        <translation>压缩文件中有两个名为“%1”的条目</translation>
    </message>
    <message>
        <source>the entry name &quot;%1&quot; %2</source>
        <translation>条目名称“%1”：%2</translation>
    </message>
    <message>
        <source>the entry &quot;%1&quot; of the archive is damaged</source>
        <translation>压缩文件的条目“%1”已损坏</translation>
    </message>
    <message>
        <source>the entry &quot;%1&quot; is encrypted; pack it without a password</source>
        <translation>条目“%1”已加密，请不加密码重新打包</translation>
    </message>
    <message>
        <source>the entry &quot;%1&quot; is compressed by a method other than Deflate</source>
        <translation>条目“%1”使用了 Deflate 以外的压缩方式</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; is missing in the archive</source>
        <translation>压缩文件中缺少数据文件“%1”</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; is too short: it has %2 bytes where update.json says %3</source>
        <translation>数据文件“%1”过短：update.json 中为 %3 字节，实际为 %2 字节</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; is too long: it has %2 bytes where update.json says %3</source>
        <translation>数据文件“%1”过长：update.json 中为 %3 字节，实际为 %2 字节</translation>
    </message>
    <message>
        <source>the archive has a file &quot;%1&quot; that no step uploads</source>
        <translation>压缩文件中的文件“%1”没有任何步骤会上传</translation>
    </message>
    <message>
        <source>the update is not for its model &quot;%1&quot;</source>
        <translation>此更新不适用于其型号“%1”</translation>
    </message>
    <message>
        <source>the update is not for its device version &quot;%1&quot;</source>
        <translation>此更新不适用于其设备版本“%1”</translation>
    </message>
    <message>
        <source>the update needs firmware version %1 or later, but the camera has &quot;%2&quot;; install an older update first</source>
        <translation>此更新需要固件版本 %1 或更高版本，但相机的版本为“%2”，请先安装较旧的更新</translation>
    </message>
    <message>
        <source>a precondition of the update is not met: its feature &quot;%1&quot; is &quot;%2&quot; instead of &quot;%3&quot;</source>
        <translation>不满足更新的前提条件：其参数“%1”的值为“%2”，而不是“%3”</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; is &quot;%2&quot; instead of &quot;%3&quot;</source>
        <translation>其参数“%1”的值为“%2”，而不是“%3”</translation>
    </message>
    <message>
        <source>after the update it reports firmware version &quot;%1&quot; instead of %2</source>
        <translation>更新后报告的固件版本为“%1”，而不是 %2</translation>
    </message>
    <message>
        <source>the archive cannot be created</source>
        <translation>无法创建压缩文件</translation>
    </message>
    <message>
        <source>the archive cannot be written: %1</source>
        <translation>无法写入压缩文件：%1</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; is missing in the folder</source>
        <translation>文件夹中缺少数据文件“%1”</translation>
    </message>
    <message>
        <source>its folder does not exist or is read-only</source>
        <translation>其文件夹不存在或为只读</translation>
    </message>
    <message>
        <source>the file cannot be replaced</source>
        <translation>无法替换文件</translation>
    </message>
    <message>
        <source>this is not a folder</source>
        <translation>这不是文件夹</translation>
    </message>
    <message>
        <source>there is no update.json in the folder</source>
        <translation>文件夹中没有 update.json</translation>
    </message>
    <message>
        <source>update.json cannot be opened; check its access rights</source>
        <translation>无法打开 update.json，请检查其访问权限</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; is empty</source>
        <translation>数据文件“%1”为空</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; cannot be read</source>
        <translation>无法读取数据文件“%1”</translation>
    </message>
    <message>
        <source>the name of a field in double quotes</source>
        <translation>用双引号括起来的字段名</translation>
    </message>
    <message>
        <source>expected a colon after &quot;%1&quot;, found %2</source>
        <translation>“%1”之后应为冒号，但实际为%2</translation>
    </message>
    <message>
        <source>a text in double quotes</source>
        <translation>用双引号括起来的字符串</translation>
    </message>
    <message>
        <source>expected a number, found %1</source>
        <translation>应为数字，但实际为 %1</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>从 %1 到 %2 的整数</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation>应为%1，但实际为%2</translation>
    </message>
    <message>
        <source>expected the end of the text, found %1</source>
        <translation>文本应在此结束，但实际为%1</translation>
    </message>
    <message>
        <source>a list that begins with &quot;[&quot;</source>
        <translation>以“[”开头的列表</translation>
    </message>
    <message>
        <source>an object that begins with &quot;{&quot;</source>
        <translation>以“{”开头的对象</translation>
    </message>
    <message>
        <source>expected a comma or &quot;%1&quot;, found %2</source>
        <translation>应为逗号或“%1”，但实际为%2</translation>
    </message>
    <message>
        <source>the text is not valid UTF-8</source>
        <translation>字符串不是有效的 UTF-8</translation>
    </message>
    <message>
        <source>the text has no closing double quote</source>
        <translation>字符串缺少结尾的双引号</translation>
    </message>
    <message>
        <source>the text contains a control character</source>
        <translation>字符串包含控制字符</translation>
    </message>
    <message>
        <source>unknown escape sequence in a text</source>
        <translation>字符串中有未知的转义序列</translation>
    </message>
    <message>
        <source>the text contains half a surrogate pair</source>
        <translation>字符串包含不完整的代理对</translation>
    </message>
    <message>
        <source>expected four hexadecimal digits after &quot;\u&quot;</source>
        <translation>“\u”之后应为四位十六进制数字</translation>
    </message>
    <message>
        <source>the end of the text</source>
        <translation>文本结尾</translation>
    </message>
    <message>
        <source>an unexpected character</source>
        <translation>意外的字符</translation>
    </message>
    <message>
        <source>a double quote</source>
        <translation>双引号</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>null</source>
        <translation>空值 null</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; refers to itself</source>
        <translation>参数“%1”引用了自身</translation>
    </message>
    <message>
        <source>its feature &quot;%1&quot; refers to too many others</source>
        <translation>参数“%1”引用的其他参数过多</translation>
    </message>
    <message>
        <source>its feature description is larger than %1 bytes</source>
        <translation>参数描述超过 %1 字节</translation>
    </message>
    <message>
        <source>its feature description is nested too deeply</source>
        <translation>参数描述嵌套过深</translation>
    </message>
    <message>
        <source>its feature description defines entities</source>
        <translation>参数描述中定义了实体</translation>
    </message>
    <message>
        <source>its feature description is damaged in line %1</source>
        <translation>参数描述的第 %1 行已损坏</translation>
    </message>
    <message>
        <source>its feature description describes no features</source>
        <translation>参数描述中没有任何参数</translation>
    </message>
    <message>
        <source>its packed feature description is damaged</source>
        <translation>压缩的参数描述已损坏</translation>
    </message>
    <message>
        <source>its feature description does not lie in the camera</source>
        <translation>参数描述不在相机中</translation>
    </message>
    <message>
        <source>its feature description is empty</source>
        <translation>参数描述为空</translation>
    </message>
    <message>
        <source>its feature description could not be read</source>
        <translation>无法读取参数描述</translation>
    </message>
    <message>
        <source>the SHA-256 of the payload &quot;%1&quot; cannot be computed; check the settings of OpenSSL on this computer</source>
        <translation>无法计算数据文件“%1”的 SHA-256，请检查此计算机上 OpenSSL 的设置</translation>
    </message>
    <message>
        <source>Camera description &quot;%1&quot;, %2</source>
        <translation>相机描述文件“%1”，%2</translation>
    </message>
    <message>
        <source>a second %1; one is allowed</source>
        <translation>这是第二个 %1，只允许一个</translation>
    </message>
    <message>
        <source>preconditions are checked after a step that changes the camera</source>
        <translation>在更改相机的步骤之后才检查前提条件</translation>
    </message>
    <message>
        <source>the update data is acquired after a FileUpload</source>
        <translation>在 FileUpload 之后才获取更新数据</translation>
    </message>
    <message>
        <source>the list has more than %1 items</source>
        <translation>列表超过 %1 项</translation>
    </message>
    <message>
        <source>the list must not be empty</source>
        <translation>列表不能为空</translation>
    </message>
    <message>
        <source>the list has &quot;%1&quot; twice</source>
        <translation>列表中“%1”重复出现</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a version like 2.0.0 or 2.0.0-rc1</source>
        <translation>“%1”不是 2.0.0 或 2.0.0-rc1 这样的版本号</translation>
    </message>
    <message>
        <source>the steps take %1 ms by their estimates; at most %2 are allowed</source>
        <translation>各步骤预计共需 %1 毫秒，最多允许 %2 毫秒</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of step; known kinds are %2</source>
        <translation>“%1”是未知的步骤类型，可用的类型：%2</translation>
    </message>
    <message>
        <source>the payload is the manifest itself</source>
        <translation>数据文件指向清单文件自身</translation>
    </message>
    <message>
        <source>the text has to be %1 hexadecimal digits</source>
        <translation>字符串必须是 %1 位十六进制数字</translation>
    </message>
    <message>
        <source>update.json, %1</source>
        <translation>update.json，%1</translation>
    </message>
    <message>
        <source>the payload &quot;%1&quot; does not match its SHA-256 in update.json; one of the two was replaced</source>
        <translation>数据文件“%1”与 update.json 中的 SHA-256 不一致，两者之一已被替换</translation>
    </message>
    <message>
        <source>the payloads have %1 bytes together; at most %2 are allowed</source>
        <translation>数据文件总共有 %1 字节，最多允许 %2 字节</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>第 %1 行第 %2 列：%3</translation>
    </message>
    <message>
        <source>line %1, column %2, field &quot;%3&quot;: %4</source>
        <translation>第 %1 行第 %2 列，字段“%3”：%4</translation>
    </message>
    <message>
        <source>unknown field; known here are %1</source>
        <translation>未知字段，此处可用的字段：%1</translation>
    </message>
    <message>
        <source>the text must not contain control characters</source>
        <translation>字符串不能包含控制字符</translation>
    </message>
    <message>
        <source>the text must not begin or end with white space</source>
        <translation>字符串开头和结尾不能有空白字符</translation>
    </message>
    <message>
        <source>lists and objects stand in each other more than %1 deep</source>
        <translation>列表和对象嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>there is room for %1 of its %2 bytes</source>
        <translation>%2 字节中只有 %1 字节的空间</translation>
    </message>
    <message>
        <source>The history of updates is not kept: there is no home folder.</source>
        <translation>没有主文件夹，更新历史将不会保存。</translation>
    </message>
    <message>
        <source>The history of updates &quot;%1&quot; cannot be written: %2.</source>
        <translation>无法写入更新历史“%1”：%2。</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>expected a time like 2026-01-31T12:00:00Z</source>
        <translation>应为 2026-01-31T12:00:00Z 这样的时间</translation>
    </message>
    <message>
        <source>unknown outcome</source>
        <translation>未知的结果</translation>
    </message>
    <message>
        <source>the update program does not know a camera of this kind</source>
        <translation>更新进程不支持此类相机</translation>
    </message>
    <message>
        <source>the update file is another one than the one that was shown; select it again</source>
        <translation>更新文件与显示的文件不同，请重新选择</translation>
    </message>
    <message>
        <source>the update file has no such update</source>
        <translation>更新文件中没有该更新</translation>
    </message>
    <message>
        <source>the update was canceled</source>
        <translation>更新已取消</translation>
    </message>
    <message>
        <source>it did not answer in time; switch it off and on and check its firmware version</source>
        <translation>未在规定时间内响应，请关闭并重新打开电源，然后检查固件版本</translation>
    </message>
    <message>
        <source>the update program &quot;%1&quot; cannot be started (%2); install the viewer again</source>
        <translation>无法启动更新进程“%1”（%2），请重新安装查看器</translation>
    </message>
    <message>
        <source>the update program ended unexpectedly (signal %1)</source>
        <translation>更新进程意外结束（信号 %1）</translation>
    </message>
    <message>
        <source>the update program ended unexpectedly (exit code %1)</source>
        <translation>更新进程意外结束（退出代码 %1）</translation>
    </message>
    <message>
        <source>the update program does not answer any more</source>
        <translation>更新进程不再响应</translation>
    </message>
    <message>
        <source>the update program says something that is not understood; install the viewer again</source>
        <translation>无法理解更新进程发送的信息，请重新安装查看器</translation>
    </message>
    <message>
        <source>it is for the model %1</source>
        <translation>仅适用于型号 %1</translation>
    </message>
    <message>
        <source>it is for the device version %1, the camera has %2</source>
        <translation>仅适用于设备版本 %1，而相机为 %2</translation>
    </message>
    <message>
        <source>it needs firmware version %1 or newer, the camera has %2</source>
        <translation>需要固件版本 %1 或更高版本，而相机为 %2</translation>
    </message>
    <message>
        <source>its images could not be asked for</source>
        <translation>无法请求图像</translation>
    </message>
    <message>
        <source>the camera program does not know a camera of this kind</source>
        <translation>相机程序不支持此类相机</translation>
    </message>
    <message>
        <source>the pixel format %1 is unknown</source>
        <translation>像素格式 %1 未知</translation>
    </message>
    <message>
        <source>an image of %1 x %2 pixels (%3) cannot be shown</source>
        <translation>无法显示 %1 x %2 像素的图像（%3）</translation>
    </message>
    <message>
        <source>%1 bytes behind each line of an image are impossible</source>
        <translation>图像每行之后不可能有 %1 字节</translation>
    </message>
    <message>
        <source>the image has %1 of the %2 bytes that %3 x %4 pixels (%5) need</source>
        <translation>图像只有 %3 x %4 像素（%5）所需的 %2 字节中的 %1 字节</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; cannot be written (%2)</source>
        <translation>无法写入文件“%1”（%2）</translation>
    </message>
    <message>
        <source>the camera program says something that is not understood; install the viewer again</source>
        <translation>相机程序发来无法理解的内容，请重新安装查看器</translation>
    </message>
    <message>
        <source>the memory for its images cannot be used (%1)</source>
        <translation>无法使用图像内存（%1）</translation>
    </message>
    <message>
        <source>the camera program &quot;%1&quot; cannot be started (%2); install the viewer again</source>
        <translation>无法启动相机程序“%1”（%2），请重新安装查看器</translation>
    </message>
    <message>
        <source>the camera program ended unexpectedly (signal %1)</source>
        <translation>相机程序意外结束（信号 %1）</translation>
    </message>
    <message>
        <source>the camera program ended unexpectedly (exit code %1)</source>
        <translation>相机程序意外结束（退出代码 %1）</translation>
    </message>
    <message>
        <source>it belongs to the user %1</source>
        <translation>属于用户 %1</translation>
    </message>
    <message>
        <source>users other than its owner can write to it</source>
        <translation>所有者以外的用户可以写入</translation>
    </message>
    <message>
        <source>%1 has %2 bytes; at most %3 are allowed</source>
        <translation>%1 有 %2 字节，最多允许 %3 字节</translation>
    </message>
    <message>
        <source>it cannot be signed: %1</source>
        <translation>无法签名：%1</translation>
    </message>
    <message>
        <source>it cannot be copied into the temporary folder</source>
        <translation>无法复制到临时文件夹</translation>
    </message>
    <message>
        <source>its RSA key has %1 bits; at least %2 are needed</source>
        <translation>其 RSA 密钥为 %1 位，至少需要 %2 位</translation>
    </message>
    <message>
        <source>its key is of an unknown kind; known are RSA, EC P-256, EC P-384 and Ed25519</source>
        <translation>其密钥种类未知，已知的有 RSA、EC P-256、EC P-384 和 Ed25519</translation>
    </message>
    <message>
        <source>it is not made for signing code</source>
        <translation>不是用于代码签名的证书</translation>
    </message>
    <message>
        <source>line %1 is neither &quot;signatures = tell&quot; nor &quot;signatures = require&quot;</source>
        <translation>第 %1 行既不是“signatures = tell”，也不是“signatures = require”</translation>
    </message>
    <message>
        <source>Only signed update files can be used, since the file &quot;%1&quot; cannot be believed: %2.</source>
        <translation>由于文件“%1”不可信，只能使用已签名的更新文件：%2。</translation>
    </message>
    <message>
        <source>%1; only update files of trusted makers can be used here</source>
        <translation>%1，此处只能使用受信任的制作方的更新文件</translation>
    </message>
    <message>
        <source>it is not signed</source>
        <translation>未签名</translation>
    </message>
    <message>
        <source>it is signed by %1</source>
        <translation>由 %1 签名</translation>
    </message>
    <message>
        <source>its signature is not trusted: %1</source>
        <translation>签名不受信任：%1</translation>
    </message>
    <message>
        <source>the certificate of its signer is missing</source>
        <translation>缺少签名者的证书</translation>
    </message>
    <message>
        <source>its digest is none that is known and strong enough; it has to be SHA-256, SHA-384 or SHA-512</source>
        <translation>其摘要未知或强度不足，必须是 SHA-256、SHA-384 或 SHA-512</translation>
    </message>
    <message>
        <source>it is the signature of another update.json</source>
        <translation>这是另一个 update.json 的签名</translation>
    </message>
    <message>
        <source>it was not made with the key of %1, or by an unknown method</source>
        <translation>不是用 %1 的密钥签名的，或签名方法未知</translation>
    </message>
    <message>
        <source>it has %1 bytes; at most %2 are allowed</source>
        <translation>有 %1 字节，最多允许 %2 字节</translation>
    </message>
    <message>
        <source>it is not a detached CMS signature in DER</source>
        <translation>不是 DER 格式的分离式 CMS 签名</translation>
    </message>
    <message>
        <source>it has more than %1 certificates</source>
        <translation>证书超过 %1 个</translation>
    </message>
    <message>
        <source>it has more than %1 signers</source>
        <translation>签名者超过 %1 个</translation>
    </message>
    <message>
        <source>it has a certificate of %1 bytes; at most %2 are allowed</source>
        <translation>有一个证书有 %1 字节，最多允许 %2 字节</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; has no certificate in PEM</source>
        <translation>文件“%1”中没有 PEM 证书</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; cannot be read: %2</source>
        <translation>无法读取文件“%1”：%2</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; has no key in PEM, or its passphrase is wrong or missing</source>
        <translation>文件“%1”中没有 PEM 密钥，或其密码错误或缺失</translation>
    </message>
    <message>
        <source>the key in &quot;%1&quot; is not that of the certificate</source>
        <translation>“%1”中的密钥不是该证书的密钥</translation>
    </message>
    <message>
        <source>OpenSSL cannot sign with this key</source>
        <translation>OpenSSL 无法使用此密钥签名</translation>
    </message>
    <message>
        <source>the certificate of %1 is not valid before %2</source>
        <translation>%1 的证书从 %2 起才有效</translation>
    </message>
    <message>
        <source>the certificate of %1 has expired on %2</source>
        <translation>%1 的证书已于 %2 过期</translation>
    </message>
    <message>
        <source>%1 is not among the trusted makers</source>
        <translation>%1 不在受信任的制作方之列</translation>
    </message>
    <message>
        <source>more than %1 certificates lead to a trusted maker</source>
        <translation>到受信任的制作方为止的证书超过 %1 个</translation>
    </message>
    <message>
        <source>the certificate of %1 has a weak key, or is signed by a weak method</source>
        <translation>%1 的证书密钥强度不足，或其签名方法强度不足</translation>
    </message>
    <message>
        <source>the certificate of %1 cannot be used (%2)</source>
        <translation>无法使用 %1 的证书（%2）</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; is not read: %2</source>
        <translation>不读取文件夹“%1”：%2</translation>
    </message>
    <message>
        <source>of the folder &quot;%1&quot; only the first %2 files are read</source>
        <translation>文件夹“%1”中只读取前 %2 个文件</translation>
    </message>
    <message>
        <source>it is no regular file, or has more than %1 bytes</source>
        <translation>不是普通文件，或超过 %1 字节</translation>
    </message>
    <message>
        <source>it has no certificate and no revocation list in PEM</source>
        <translation>没有 PEM 证书，也没有吊销列表</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot; is not read: %2</source>
        <translation>不读取文件“%1”：%2</translation>
    </message>
    <message>
        <source>the certificate of %1: %2</source>
        <translation>%1 的证书：%2</translation>
    </message>
    <message>
        <source>the certificate of %1 was revoked</source>
        <translation>%1 的证书已被吊销</translation>
    </message>
    <message>
        <source>the revocation list of %1 is out of date; put the current one beside the certificates</source>
        <translation>%1 的吊销列表已过期，请将最新列表放在证书旁边</translation>
    </message>
    <message>
        <source>it is not made for time stamps</source>
        <translation>不是用于时间戳的证书</translation>
    </message>
    <message>
        <source>%1; its time stamp is not trusted: %2</source>
        <translation>%1，且其时间戳不受信任：%2</translation>
    </message>
    <message>
        <source>it is none that is understood</source>
        <translation>无法识别其格式</translation>
    </message>
    <message>
        <source>it is of another signature, or its digest is weak</source>
        <translation>属于另一个签名，或其摘要强度不足</translation>
    </message>
    <message>
        <source>it is from the future; check this computer&apos;s clock</source>
        <translation>时间在将来，请检查此计算机的时钟</translation>
    </message>
    <message>
        <source>it is not signed by an authority for time stamps that is trusted</source>
        <translation>未由受信任的时间戳机构签名</translation>
    </message>
    <message>
        <source>all its signatures have time stamps</source>
        <translation>所有签名均已有时间戳</translation>
    </message>
    <message>
        <source>the answer has no time stamp</source>
        <translation>响应中没有时间戳</translation>
    </message>
    <message>
        <source>the time stamp in the answer is of another signature</source>
        <translation>响应中的时间戳属于另一个签名</translation>
    </message>
    <message>
        <source>The series of updates was stopped before this camera; it was not touched and keeps its version</source>
        <translation>在更新此相机之前，批量更新已停止。此相机未被更改，仍保持原来的版本</translation>
    </message>
    <message>
        <source>its memory could not be read</source>
        <translation>无法读取相机的存储器</translation>
    </message>
    <message>
        <source>no right to open it: the rule %1 for udev is missing</source>
        <translation>没有打开权限：缺少 udev 规则 %1</translation>
    </message>
    <message>
        <source>you have no right to open it; install the rule %1 for udev and plug the camera in again</source>
        <translation>您没有打开相机的权限，请安装 udev 规则 %1，然后重新连接相机</translation>
    </message>
</context>
<context>
    <name>Viewer::Update::CUpdateHistory</name>
    <message>
        <source>The history of updates &quot;%1&quot; cannot be shown: %2</source>
        <translation>无法显示更新历史“%1”：%2</translation>
    </message>
</context>
<context>
    <name>Viewer::Update::CUpdateHistoryModel</name>
    <message>
        <source>Running</source>
        <translation>正在运行</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>已更新</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>已中断</translation>
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
        <source>From</source>
        <translation>更新前</translation>
    </message>
    <message>
        <source>To</source>
        <translation>更新后</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>用时</translation>
    </message>
</context>
</TS>
