<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>%Ln statement(s) failed through a deadlock, the timeout of a lock, a lost connection or a cluster node that was not ready.</source>
        <translation>
            <numerusform>%Ln statement failed through a deadlock, the timeout of a lock, a lost connection or a cluster node that was not ready.</numerusform>
            <numerusform>%Ln statements failed through a deadlock, the timeout of a lock, a lost connection or a cluster node that was not ready.</numerusform>
        </translation>
    </message>
</context>
</TS>
