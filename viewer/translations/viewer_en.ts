<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
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
    <name>Viewer::AppCore::CViewer</name>
    <message numerus="yes">
        <source>%n camera(s) found.</source>
        <translation>
            <numerusform>%n camera found.</numerusform>
            <numerusform>%n cameras found.</numerusform>
        </translation>
    </message>
</context>
</TS>
