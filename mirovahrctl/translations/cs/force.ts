<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Sets the flag in the attendance database that makes the plugin synchronise at its next tick, and write every person of the export, whether the line has changed or not. The plugin clears the flag afterwards. Needs an account that may write to the table vars, such as the plugin&apos;s.</source>
        <translation>Nastaví v docházkové databázi příznak, na jehož základě zásuvný modul při nejbližším taktu provede synchronizaci a zapíše každou osobu z exportu bez ohledu na to, zda se její řádek změnil. Zásuvný modul potom příznak zruší. Vyžaduje účet, který smí zapisovat do tabulky vars, například účet zásuvného modulu.</translation>
    </message>
    <message>
        <source>Forced synchronisation</source>
        <translation>Vynucená synchronizace</translation>
    </message>
    <message>
        <source>Flag</source>
        <translation>Příznak</translation>
    </message>
    <message>
        <source>Set before</source>
        <translation>Nastavený předtím</translation>
    </message>
    <message>
        <source>Set now</source>
        <translation>Nastavený nyní</translation>
    </message>
    <message>
        <source>The flag was already set: the plugin has not acted on it yet, or is synchronising now.</source>
        <translation>Příznak už byl nastavený: zásuvný modul ho ještě nezpracoval nebo právě synchronizuje.</translation>
    </message>
    <message>
        <source>The flag was set and is cleared again: a synchronisation that was already running has just ended and cleared it.</source>
        <translation>Příznak byl nastaven a je opět zrušen: právě skončila synchronizace, která už probíhala, a zrušila ho.</translation>
    </message>
    <message>
        <source>The flag was cleared and is set again: somebody else has just set it.</source>
        <translation>Příznak byl zrušen a je opět nastaven: právě ho nastavil někdo jiný.</translation>
    </message>
    <message>
        <source>Plugin</source>
        <translation>Zásuvný modul</translation>
    </message>
    <message>
        <source>Seconds between ticks</source>
        <translation>Sekundy mezi takty</translation>
    </message>
    <message numerus="yes">
        <source>The plugin sees the flag at its next tick, within %Ln second(s) when it is not busy.</source>
        <translation>
            <numerusform>Zásuvný modul zjistí příznak při nejbližším taktu, do %Ln sekundy, není-li zaneprázdněn.</numerusform>
            <numerusform>Zásuvný modul zjistí příznak při nejbližším taktu, do %Ln sekund, není-li zaneprázdněn.</numerusform>
            <numerusform>Zásuvný modul zjistí příznak při nejbližším taktu, do %Ln sekund, není-li zaneprázdněn.</numerusform>
        </translation>
    </message>
    <message>
        <source>The configuration disables the plugin: it does not tick.</source>
        <translation>Konfigurace zásuvný modul vypíná: takty neprobíhají.</translation>
    </message>
    <message>
        <source>Test mode is on: people are only logged, not written.</source>
        <translation>Je zapnut zkušební režim: osoby se jen zapisují do protokolu, ne do databáze.</translation>
    </message>
    <message>
        <source>The plugin runs the export command first.</source>
        <translation>Zásuvný modul nejprve spustí příkaz exportu.</translation>
    </message>
    <message>
        <source>There is no export %1 now. Unless HR delivers one before that tick, nothing is synchronised, and the flag is cleared even so.</source>
        <translation>Export %1 nyní neexistuje. Pokud ho personální oddělení nedodá před tímto taktem, nic se nesynchronizuje a příznak se přesto zruší.</translation>
    </message>
    <message>
        <source>A forced synchronisation is pending.</source>
        <translation>Vynucená synchronizace čeká na provedení.</translation>
    </message>
    <message>
        <source>No forced synchronisation is pending.</source>
        <translation>Žádná vynucená synchronizace nečeká na provedení.</translation>
    </message>
    <message>
        <source>Clear the flag instead.</source>
        <translation>Příznak místo toho zruší.</translation>
    </message>
    <message>
        <source>Somebody else, or a synchronisation, changed the flag at the same time.</source>
        <translation>Příznak ve stejnou dobu změnil někdo jiný nebo synchronizace.</translation>
    </message>
    <message>
        <source>Try again.</source>
        <translation>Zkuste to znovu.</translation>
    </message>
    <message>
        <source>The plugin is switched off, so it does not tick.</source>
        <translation>Zásuvný modul je vypnutý, takže takty neprobíhají.</translation>
    </message>
    <message>
        <source>Set enabled to 1 and restart the attendance server.</source>
        <translation>Nastavte enabled na 1 a restartujte docházkový server.</translation>
    </message>
    <message>
        <source>There is no export now; without one the flag is cleared and nothing is synchronised.</source>
        <translation>Export nyní neexistuje; bez něj se příznak zruší a nic se nesynchronizuje.</translation>
    </message>
    <message>
        <source>Put the export there and set the flag again.</source>
        <translation>Vložte tam export a znovu nastavte příznak.</translation>
    </message>
    <message>
        <source>Set testMode to 0 and restart the attendance server.</source>
        <translation>Nastavte testMode na 0 a restartujte docházkový server.</translation>
    </message>
</context>
</TS>
