<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Viewer::AppCore::CAcquisitionController</name>
    <message numerus="yes">
        <source>%n image(s) recorded.</source>
        <translation>
            <numerusform>%n image recorded.</numerusform>
            <numerusform>%n images recorded.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) lost, since writing was too slow.</source>
        <translation>
            <numerusform>%n image lost, since writing was too slow.</numerusform>
            <numerusform>%n images lost, since writing was too slow.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CInterruptionBar</name>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>And one more.</numerusform>
            <numerusform>And %n more.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CSeriesNotifier</name>
    <message numerus="yes">
        <source>%n update(s) succeeded.</source>
        <translation>
            <numerusform>%n update succeeded.</numerusform>
            <numerusform>%n updates succeeded.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n update(s) failed.</source>
        <translation>
            <numerusform>%n update failed.</numerusform>
            <numerusform>%n updates failed.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CUpdateFileDialog</name>
    <message numerus="yes">
        <source>%n upgrade(s)</source>
        <translation>
            <numerusform>%n upgrade</numerusform>
            <numerusform>%n upgrades</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n downgrade(s)</source>
        <translation>
            <numerusform>%n downgrade</numerusform>
            <numerusform>%n downgrades</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n reinstallation(s)</source>
        <translation>
            <numerusform>%n reinstallation</numerusform>
            <numerusform>%n reinstallations</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not now</source>
        <translation>
            <numerusform>%n not now</numerusform>
            <numerusform>%n not now</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CUpdateHistoryDialog</name>
    <message numerus="yes">
        <source>%n damaged line(s) of the history were skipped.</source>
        <translation>
            <numerusform>%n damaged line of the history was skipped.</numerusform>
            <numerusform>%n damaged lines of the history were skipped.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n update(s) were written to &quot;%1&quot;.</source>
        <translation>
            <numerusform>%n update was written to &quot;%1&quot;.</numerusform>
            <numerusform>%n updates were written to &quot;%1&quot;.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Viewer::AppCore::CViewer</name>
    <message numerus="yes">
        <source>%n camera(s) found.</source>
        <translation>
            <numerusform>%n camera found.</numerusform>
            <numerusform>%n cameras found.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CCameraSelection</name>
    <message numerus="yes">
        <source>%n camera(s) have the serial number &quot;%1&quot;; name the one that is meant by its id: %2.</source>
        <translation>
            <numerusform>%n camera has the serial number &quot;%1&quot;; name the one that is meant by its id: %2.</numerusform>
            <numerusform>%n cameras have the serial number &quot;%1&quot;; name the one that is meant by its id: %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CTextReport</name>
    <message numerus="yes">
        <source>%n updated</source>
        <translation>
            <numerusform>%n updated</numerusform>
            <numerusform>%n updated</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n failed</numerusform>
            <numerusform>%n failed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n in use</source>
        <translation>
            <numerusform>%n in use</numerusform>
            <numerusform>%n in use</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n would be updated</source>
        <translation>
            <numerusform>%n would be updated</numerusform>
            <numerusform>%n would be updated</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left alone</source>
        <translation>
            <numerusform>%n left alone</numerusform>
            <numerusform>%n left alone</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n running</source>
        <translation>
            <numerusform>%n running</numerusform>
            <numerusform>%n running</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not begun</source>
        <translation>
            <numerusform>%n not begun</numerusform>
            <numerusform>%n not begun</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Viewer::NuvexUpdate::CUpdateProgram</name>
    <message numerus="yes">
        <source>%n damaged line(s) of the history were skipped.</source>
        <translation>
            <numerusform>%n damaged line of the history was skipped.</numerusform>
            <numerusform>%n damaged lines of the history were skipped.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Update %n camera(s)? [y/N]</source>
        <translation>
            <numerusform>Update %n camera? [y/N]</numerusform>
            <numerusform>Update %n cameras? [y/N]</numerusform>
        </translation>
    </message>
</context>
</TS>
