<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>A member of a branch is not with an administrator of that branch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plugin adds people only when they join. Use --sql, unless somebody removed the person.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The vacation balance is not HR&apos;s, and nothing keeps the plugin from correcting it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The next synchronisation corrects it if the last one could not, as for a new employee; otherwise a forced one does, or HR&apos;s next balance. Days that were taken last month count from this month on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plugin is switched off, so nothing comes by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set enabled to 1 and start the attendance server again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The employment type is not the one of HR&apos;s code, and no other field differs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plugin writes it when the line changes or the attendance server is started. Use --sql, unless somebody changed it by hand.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The calendar group is not planned from the month on that the export names.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A forced synchronisation plans it, unless the plugin tries again by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>People were left out of the comparison: what the plugin makes of their lines is not certain.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run check-file on the export, and explain for a person.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Months have another calendar group than the one that is planned for them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plugin fills the months only when it plans the group. Use --sql, which also has attendance calculated again, unless somebody changed the months.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A person is not a member of the branch of the cost centre.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A forced synchronisation adds the person.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A person has no settings of the payroll export.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plugin binds only people whom it creates. Use --sql for those whom it should have bound; others were there before it, or got another employment type later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A person is not in the selection of the payroll export.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plugin selects only people whom it creates. Use --sql for those whom it should have selected; others were there before it, or somebody removed them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Personal data are not those of the export.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A forced synchronisation writes them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An employee of the export has no active row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A forced synchronisation creates the person.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody receives the requests of a person, though the export names a supervisor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A forced synchronisation does not help. Use --sql, or start the attendance server again: the plugin then assigns all supervisors anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Somebody else receives the requests of a person than the supervisor of the export.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The former supervisor has stayed, or somebody chose another one by hand: the database does not say which. Remove the latter from the statements of --sql before running them. The next start of the attendance server assigns the one of the export in any case.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plugin is about to synchronise, and may bring some of the differences.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run drift again after the next tick.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A member of a branch is not on an active terminal of that branch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>People are queued for a terminal that is not marked as having people to fetch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The next change of anybody on the terminal marks it. Use --sql if it stays so: it may be fetching right now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test mode is on: people are only logged, not written.</source>
        <translation>Je zapnut zkušební režim: osoby se jen zapisují do protokolu, ne do databáze.</translation>
    </message>
    <message>
        <source>Set testMode to 0 and start the attendance server again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
