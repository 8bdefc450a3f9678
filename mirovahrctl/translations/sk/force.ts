<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Sets the flag in the attendance database that makes the plugin synchronise at its next tick, and write every person of the export, whether the line has changed or not. The plugin clears the flag afterwards. Needs an account that may write to the table vars, such as the plugin&apos;s.</source>
        <translation>Nastaví v dochádzkovej databáze príznak, na základe ktorého zásuvný modul pri najbližšom takte vykoná synchronizáciu a zapíše každú osobu z exportu bez ohľadu na to, či sa jej riadok zmenil. Zásuvný modul potom príznak zruší. Vyžaduje účet, ktorý smie zapisovať do tabuľky vars, napríklad účet zásuvného modulu.</translation>
    </message>
    <message>
        <source>Forced synchronisation</source>
        <translation>Vynútená synchronizácia</translation>
    </message>
    <message>
        <source>Flag</source>
        <translation>Príznak</translation>
    </message>
    <message>
        <source>Set before</source>
        <translation>Nastavený predtým</translation>
    </message>
    <message>
        <source>Set now</source>
        <translation>Nastavený teraz</translation>
    </message>
    <message>
        <source>The flag was already set: the plugin has not acted on it yet, or is synchronising now.</source>
        <translation>Príznak už bol nastavený: zásuvný modul ho ešte nespracoval alebo práve synchronizuje.</translation>
    </message>
    <message>
        <source>The flag was set and is cleared again: a synchronisation that was already running has just ended and cleared it.</source>
        <translation>Príznak bol nastavený a je opäť zrušený: práve sa skončila synchronizácia, ktorá už prebiehala, a zrušila ho.</translation>
    </message>
    <message>
        <source>The flag was cleared and is set again: somebody else has just set it.</source>
        <translation>Príznak bol zrušený a je opäť nastavený: práve ho nastavil niekto iný.</translation>
    </message>
    <message>
        <source>Plugin</source>
        <translation>Zásuvný modul</translation>
    </message>
    <message>
        <source>Seconds between ticks</source>
        <translation>Sekundy medzi taktmi</translation>
    </message>
    <message numerus="yes">
        <source>The plugin sees the flag at its next tick, within %Ln second(s) when it is not busy.</source>
        <translation>
            <numerusform>Zásuvný modul zistí príznak pri najbližšom takte, do %Ln sekundy, ak nie je zaneprázdnený.</numerusform>
            <numerusform>Zásuvný modul zistí príznak pri najbližšom takte, do %Ln sekúnd, ak nie je zaneprázdnený.</numerusform>
            <numerusform>Zásuvný modul zistí príznak pri najbližšom takte, do %Ln sekúnd, ak nie je zaneprázdnený.</numerusform>
        </translation>
    </message>
    <message>
        <source>The configuration disables the plugin: it does not tick.</source>
        <translation>Konfigurácia zásuvný modul vypína: takty neprebiehajú.</translation>
    </message>
    <message>
        <source>Test mode is on: people are only logged, not written.</source>
        <translation>Je zapnutý skúšobný režim: osoby sa len zapisujú do protokolu, nie do databázy.</translation>
    </message>
    <message>
        <source>The plugin runs the export command first.</source>
        <translation>Zásuvný modul najprv spustí príkaz exportu.</translation>
    </message>
    <message>
        <source>There is no export %1 now. Unless HR delivers one before that tick, nothing is synchronised, and the flag is cleared even so.</source>
        <translation>Export %1 teraz neexistuje. Ak ho personálne oddelenie nedodá pred týmto taktom, nič sa nesynchronizuje a príznak sa napriek tomu zruší.</translation>
    </message>
    <message>
        <source>A forced synchronisation is pending.</source>
        <translation>Vynútená synchronizácia čaká na vykonanie.</translation>
    </message>
    <message>
        <source>No forced synchronisation is pending.</source>
        <translation>Žiadna vynútená synchronizácia nečaká na vykonanie.</translation>
    </message>
    <message>
        <source>Clear the flag instead.</source>
        <translation>Príznak namiesto toho zruší.</translation>
    </message>
    <message>
        <source>Somebody else, or a synchronisation, changed the flag at the same time.</source>
        <translation>Príznak v tom istom čase zmenil niekto iný alebo synchronizácia.</translation>
    </message>
    <message>
        <source>Try again.</source>
        <translation>Skúste to znova.</translation>
    </message>
    <message>
        <source>The plugin is switched off, so it does not tick.</source>
        <translation>Zásuvný modul je vypnutý, takže takty neprebiehajú.</translation>
    </message>
    <message>
        <source>Set enabled to 1 and restart the attendance server.</source>
        <translation>Nastavte enabled na 1 a reštartujte dochádzkový server.</translation>
    </message>
    <message>
        <source>There is no export now; without one the flag is cleared and nothing is synchronised.</source>
        <translation>Export teraz neexistuje; bez neho sa príznak zruší a nič sa nesynchronizuje.</translation>
    </message>
    <message>
        <source>Put the export there and set the flag again.</source>
        <translation>Vložte tam export a znova nastavte príznak.</translation>
    </message>
    <message>
        <source>Set testMode to 0 and restart the attendance server.</source>
        <translation>Nastavte testMode na 0 a reštartujte dochádzkový server.</translation>
    </message>
</context>
</TS>
