<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Viewer::AppCore::CAcquisitionController</name>
    <message>
        <source>&amp;Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Record...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sto&amp;p recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start continuous acquisition (F6)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop continuous acquisition (F7)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record images into a folder (F8)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop recording; acquisition goes on (F9)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record into folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 records into %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No camera selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a camera in the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No cameras found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug one in and press Refresh.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Start to see its image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its firmware is being updated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another application is using it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CCommandLine</name>
    <message>
        <source>Shows cameras and lets plug-ins work with them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulate the cameras described in &lt;file&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forget the firmware that earlier updates wrote to the simulated cameras.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let the simulated cameras work &lt;n&gt; times faster than real ones (a demonstration: %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>n</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look for plug-ins in &lt;dir&gt;, too; can be given several times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dir</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the language en, ko, ja or zh this time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offer the update files in &lt;dir&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Walk through the firmware update wizard, save pictures into &lt;dir&gt; and end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The language &quot;%1&quot; is unknown; it can be en, ko, ja or zh.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder for the demonstration&apos;s pictures is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The speed &quot;%1&quot; is not a number from 0.01 to 10000.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CLinkOpener</name>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop has no program for web pages. Copy the address to open it elsewhere.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CMainWindow</name>
    <message>
        <source>Nuvex Viewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acquisition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cameras</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tool bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The language changes when the viewer is started the next time.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CPluginListDialog</name>
    <message>
        <source>Plug-ins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part of the viewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not available</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CSimulationMenu</name>
    <message>
        <source>&amp;Plugged in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Busy elsewhere</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CTextDialog</name>
    <message>
        <source>&amp;Copy all</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CViewer</name>
    <message>
        <source>Re&amp;fresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look for cameras (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open sample folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Plug-ins...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main window and menus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera tree and selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cameras, update files and firmware updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The viewer as a whole</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not all plug-ins are available: see Help &gt; Plug-ins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A firmware update is running. Wait until it has ended before you quit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A dialog is still open. Close it before you quit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) found.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;Nuvex Viewer %1&lt;/h3&gt;&lt;p&gt;Shows cameras and lets plug-ins work with them.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Viewer::CameraPool::CCameraPool</name>
    <message>
        <source>The folder &quot;%1&quot; does not exist; choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera %1 does not answer any more; its acquisition has ended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording of camera %1 has ended: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera %1 cannot be started while the firmware updater is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera %1 does not answer; check its cable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera %1 is used by another application.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera %1 is being updated.</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acquiring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updating</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In use elsewhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not updatable (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSelector::CCameraSelectorView</name>
    <message>
        <source>Cameras</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CDependencyResolver</name>
    <message>
        <source>Its name is that of a part of the viewer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A plug-in of the same name was found before: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot; %2, which is not there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is in a circle of dependencies: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot; %2, but the one that is there has version %3 and is compatible down to %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot;, which could not be started.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CPluginManager</name>
    <message>
        <source>an unknown exception</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It could not set its language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It could not be initialized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It could not be connected to the viewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It could not be constructed: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its library could not be loaded: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its library does not contain what its metadata says.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot;, which could not be started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; (%2) is not available. %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CPluginScanner</name>
    <message>
        <source>The file is damaged or is not a library.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Viewer::PluginSystem::CPluginSpec</name>
    <message>
        <source>It was built for the interface &quot;%1&quot;, but this viewer has &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its metadata has no &quot;Name&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The &quot;Dependencies&quot; of its metadata are not a list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A dependency in its metadata has no &quot;Name&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The &quot;%1&quot; of &quot;%2&quot; in its metadata is not a version number: &quot;%3&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
