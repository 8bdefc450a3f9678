<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>No valid correction leads to the balance of the export, so the balance stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of the two balances is wrong.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id of the branch exceeds 16 bits; the person joins another branch, or none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the branch a smaller id.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No branch has the number of the cost centre, so the person joins none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the branch this number, or ask HR to correct the cost centre.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last calculation moves forward; days in between may stay uncalculated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recalculate the person&apos;s attendance by hand if there are such days.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The branch&apos;s master group has no group for the calendar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a group for this calendar in the master group of the branch, or ask HR to correct the calendar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plugin is switched off, so nobody is synchronised.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set enabled to 1 and start the attendance server again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gate has refused a newer file than the one that is explained.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check whether that file has another line for the person.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The person has left, so the plugin creates no row, or does not write the end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask HR to export each employment relationship once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are more lines about the person than are explained.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The new person joins no payroll export.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the person by hand where needed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody in the export or in the database matches the search.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the spelling, and whether HR has ever exported the person.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The person is neither in the export nor in the database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the number, and whether HR has ever exported the person.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No line of the export is about the person.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask HR why the person is missing from the export.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The payroll id of an active row belongs to another pid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Correct pid and pamId of the row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The person has the settings of the payroll export already, which the plugin logs as a failure.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is harmless.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search does not name exactly one person.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name one by the first column of the table. Where it is empty, the line has no numbers, and the plugin drops it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The person has no row to which a step could apply.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See above why the person has no row with this pid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows of somebody who was deleted lie under a uid that the new person may get.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete them, or raise AUTO_INCREMENT of people above their uids.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text of the relationship state breaks the statement that writes the row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the text in the group MES of the configuration, or rsText of the row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No administrator has the personal number of the supervisor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the supervisor an administrator&apos;s account with this personal number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test mode is on: rows of people are not written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set testMode to 0 and start the attendance server again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
