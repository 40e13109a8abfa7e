<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>WyWidgets::AccessibleBusyWidget</name>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
</context>
<context>
    <name>WyWidgets::Dot</name>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyAnimationButton</name>
    <message>
        <source>%1 s</source>
        <extracomment>Seconds that are left.</extracomment>
        <translation>%1 s</translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyClearEdit</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyErrorWidget</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyHandleSlider</name>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyMoveableFrame</name>
    <message>
        <source>Divider</source>
        <translation>Trennlinie</translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyPasswordEdit</name>
    <message>
        <source>Show password</source>
        <translation>Passwort anzeigen</translation>
    </message>
    <message>
        <source>Hide password</source>
        <translation>Passwort verbergen</translation>
    </message>
</context>
<context>
    <name>WyWidgets::WySelectFrame</name>
    <message>
        <source>Move the selection</source>
        <translation>Auswahl verschieben</translation>
    </message>
    <message>
        <source>Close the selection</source>
        <translation>Auswahl schließen</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Resize the selection</source>
        <translation>Größe der Auswahl ändern</translation>
    </message>
</context>
<context>
    <name>WyWidgets::WySimpleToast</name>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Erfolg</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyToast</name>
    <message>
        <source>Success</source>
        <translation>Erfolg</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyWaitingBar</name>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyWaitingSpinnerWidget</name>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
</context>
<context>
    <name>WyWidgets::WyWindowBar</name>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximize or restore</source>
        <translation>Maximieren oder wiederherstellen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
</TS>
