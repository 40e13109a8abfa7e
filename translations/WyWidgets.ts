<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en">
<context>
    <name>WyWidgets::AccessibleBusyWidget</name>
    <message>
        <source>Busy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WyWidgets::Dot</name>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyAnimationButton</name>
    <message>
        <source>%1 s</source>
        <extracomment>Seconds that are left.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyClearEdit</name>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyErrorWidget</name>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyHandleSlider</name>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyMoveableFrame</name>
    <message>
        <source>Divider</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyPasswordEdit</name>
    <message>
        <source>Show password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide password</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WyWidgets::WySelectFrame</name>
    <message>
        <source>Move the selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize the selection</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WyWidgets::WySimpleToast</name>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Success</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyToast</name>
    <message>
        <source>Success</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyWaitingBar</name>
    <message>
        <source>Busy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyWaitingSpinnerWidget</name>
    <message>
        <source>Busy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyWindowBar</name>
    <message>
        <source>Minimize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximize or restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
