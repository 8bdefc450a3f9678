<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>The plugin cannot work properly with this database: %Ln requirement(s) are violated.</source>
        <translation>
            <numerusform>The plugin cannot work properly with this database: %Ln requirement is violated.</numerusform>
            <numerusform>The plugin cannot work properly with this database: %Ln requirements are violated.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>As far as this account can see, the plugin can work with this database; %Ln finding(s) need attention.</source>
        <translation>
            <numerusform>As far as this account can see, the plugin can work with this database; %Ln finding needs attention.</numerusform>
            <numerusform>As far as this account can see, the plugin can work with this database; %Ln findings need attention.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The plugin can work with this database; %Ln finding(s) need attention.</source>
        <translation>
            <numerusform>The plugin can work with this database; %Ln finding needs attention.</numerusform>
            <numerusform>The plugin can work with this database; %Ln findings need attention.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The column %1 is %2; the plugin writes up to %Ln character(s) into it.</source>
        <translation>
            <numerusform>The column %1 is %2; the plugin writes up to %Ln character into it.</numerusform>
            <numerusform>The column %1 is %2; the plugin writes up to %Ln characters into it.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 and %Ln more</numerusform>
            <numerusform>%1 and %Ln more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The column vars.value holds %Ln character(s); the selection of the payroll export would need %1 to name every active person</source>
        <translation>
            <numerusform>The column vars.value holds %Ln character; the selection of the payroll export would need %1 to name every active person</numerusform>
            <numerusform>The column vars.value holds %Ln characters; the selection of the payroll export would need %1 to name every active person</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The cluster has %Ln member(s) without an address, as an arbitrator is, which was not asked</source>
        <translation>
            <numerusform>The cluster has %Ln member without an address, as an arbitrator is, which was not asked</numerusform>
            <numerusform>The cluster has %Ln members without an address, as an arbitrator is, which were not asked</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The table %1 has no key on %2: for each person or branch the plugin sends %Ln statement(s) that walk up to %3 of its rows. A synchronisation in which all %4 people have changed takes up to about %5 longer, estimated with %6 rows a second</source>
        <translation>
            <numerusform>The table %1 has no key on %2: for each person or branch the plugin sends %Ln statement that walks up to %3 of its rows. A synchronisation in which all %4 people have changed takes up to about %5 longer, estimated with %6 rows a second</numerusform>
            <numerusform>The table %1 has no key on %2: for each person or branch the plugin sends %Ln statements that walk up to %3 of its rows. A synchronisation in which all %4 people have changed takes up to about %5 longer, estimated with %6 rows a second</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The server&apos;s clock is %Ln second(s) ahead of this machine&apos;s</source>
        <translation>
            <numerusform>The server&apos;s clock is %Ln second ahead of this machine&apos;s</numerusform>
            <numerusform>The server&apos;s clock is %Ln seconds ahead of this machine&apos;s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The server&apos;s clock is %Ln second(s) behind this machine&apos;s</source>
        <translation>
            <numerusform>The server&apos;s clock is %Ln second behind this machine&apos;s</numerusform>
            <numerusform>The server&apos;s clock is %Ln seconds behind this machine&apos;s</numerusform>
        </translation>
    </message>
</context>
</TS>
