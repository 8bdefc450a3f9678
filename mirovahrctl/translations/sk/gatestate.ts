<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>&apos;%1&apos; cannot be written: %2</source>
        <translation>„%1“ sa nedá zapísať: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be opened as a folder: %2</source>
        <translation>„%1“ sa nedá otvoriť ako priečinok: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be created: %2</source>
        <translation>„%1“ sa nedá vytvoriť: %2</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; belongs to somebody else, or everybody may write to it: the gate could not trust its own files there</source>
        <translation>Priečinok „%1“ patrí niekomu inému alebo doň smie zapisovať každý: brána by tam nemohla dôverovať vlastným súborom</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has no parent folder that can be examined: %2</source>
        <translation>„%1“ nemá nadradený priečinok, ktorý by sa dal preskúmať: %2</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; belongs neither to root nor to the owner of its parent folder, so anybody may have created it. Run the gate as its owner if that is right, or give the folder to root</source>
        <translation>Priečinok „%1“ nepatrí používateľovi root ani vlastníkovi nadradeného priečinka, mohol ho teda vytvoriť ktokoľvek. Ak je to tak správne, spustite bránu ako jeho vlastník, alebo dajte priečinok používateľovi root</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be given to its owner: %2</source>
        <translation>„%1“ sa nedá odovzdať jeho vlastníkovi: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be locked: %2</source>
        <translation>„%1“ sa nedá zamknúť: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read: %2</source>
        <translation>„%1“ sa nedá prečítať: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be listed: %2</source>
        <translation>Obsah „%1“ sa nedá vypísať: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be replaced: %2</source>
        <translation>„%1“ sa nedá nahradiť: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be removed: %2</source>
        <translation>„%1“ sa nedá odstrániť: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be written to the disk: %2</source>
        <translation>„%1“ sa nedá zapísať na disk: %2</translation>
    </message>
    <message>
        <source>Refuse a file that has lost more lines than this; default: %1.</source>
        <translation>Odmietne súbor, v ktorom ubudlo viac riadkov, ako je toto číslo; predvolené: %1.</translation>
    </message>
    <message>
        <source>The same in percent of the lines; default: %1.</source>
        <translation>To isté v percentách riadkov; predvolené: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that has more lines than this about people of earlier lines; default: %1.</source>
        <translation>Odmietne súbor, v ktorom viac riadkov, ako je toto číslo, opakuje osoby z predchádzajúcich riadkov; predvolené: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that lets more people leave than this; default: %1.</source>
        <translation>Odmietne súbor, v ktorom odchádza viac osôb, ako je toto číslo; predvolené: %1.</translation>
    </message>
    <message>
        <source>The same in percent of the employed people; default: %1.</source>
        <translation>To isté v percentách zamestnaných osôb; predvolené: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that gives more people than this another cost centre; default: %1.</source>
        <translation>Odmietne súbor, v ktorom iné stredisko dostáva viac osôb, ako je toto číslo; predvolené: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that has more new people than this; default: %1.</source>
        <translation>Odmietne súbor, v ktorom je viac nových osôb, ako je toto číslo; predvolené: %1.</translation>
    </message>
    <message>
        <source>The same in percent of the people; default: %1.</source>
        <translation>To isté v percentách osôb; predvolené: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that lets more people than this return who had left; default: %1.</source>
        <translation>Odmietne súbor, v ktorom sa vracia viac osôb, ktoré už odišli, ako je toto číslo; predvolené: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that gives more people than this another supervisor without a visible reason; default: %1.</source>
        <translation>Odmietne súbor, v ktorom iného nadriadeného bez viditeľného dôvodu dostáva viac osôb, ako je toto číslo; predvolené: %1.</translation>
    </message>
    <message>
        <source>The same in percent of the people with a supervisor; default: %1.</source>
        <translation>To isté v percentách osôb s nadriadeným; predvolené: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that sets more vacation balances than this to 0, beyond what is plausible, or to the same multiple; default: %1.</source>
        <translation>Odmietne súbor, v ktorom sa viac zostatkov dovolenky, ako je toto číslo, mení na 0, mimo hodnoverného rozsahu alebo na rovnaký násobok; predvolené: %1.</translation>
    </message>
    <message>
        <source>The same in percent of the people with a balance; default: %1.</source>
        <translation>To isté v percentách osôb so zostatkom; predvolené: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that changes more values than this of any other field; default: %1.</source>
        <translation>Odmietne súbor, v ktorom sa mení viac hodnôt ktoréhokoľvek iného poľa, ako je toto číslo; predvolené: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that empties more values than this of any field; default: %1.</source>
        <translation>Odmietne súbor, v ktorom sa vyprázdňuje viac hodnôt ktoréhokoľvek poľa, ako je toto číslo; predvolené: %1.</translation>
    </message>
    <message>
        <source>The same in percent of the people with a value; default: %1.</source>
        <translation>To isté v percentách osôb s hodnotou; predvolené: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that has more values than this of any field that the plugin misreads; default: %1.</source>
        <translation>Odmietne súbor, v ktorom zásuvný modul nesprávne prečíta viac hodnôt ktoréhokoľvek poľa, ako je toto číslo; predvolené: %1.</translation>
    </message>
    <message>
        <source>--%1 takes a whole number from 0</source>
        <translation>Hodnota --%1 je celé číslo od 0</translation>
    </message>
    <message>
        <source>--%1 takes a percentage from 0 to 100</source>
        <translation>Hodnota --%1 je percento od 0 do 100</translation>
    </message>
    <message>
        <source>--texts takes one of: %1</source>
        <translation>Hodnota --texts je jedna z týchto: %1</translation>
    </message>
    <message>
        <source>Missing option --from; see --help</source>
        <translation>Chýba voľba --from; pozri --help</translation>
    </message>
    <message>
        <source>Missing option --to; see --help</source>
        <translation>Chýba voľba --to; pozri --help</translation>
    </message>
    <message>
        <source>--to names no file</source>
        <translation>--to neuvádza žiadny súbor</translation>
    </message>
    <message>
        <source>--from and --to name the same file</source>
        <translation>--from a --to uvádzajú ten istý súbor</translation>
    </message>
    <message>
        <source>--rejects would overwrite the export; name another file</source>
        <translation>--rejects by prepísalo export; uveďte iný súbor</translation>
    </message>
    <message>
        <source>any number</source>
        <translation>ľubovoľný počet</translation>
    </message>
    <message>
        <source>number</source>
        <translation>číslo</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>percento</translation>
    </message>
    <message>
        <source>So many may always change, whatever percentage they are; default: %1.</source>
        <translation>Toľko sa smie zmeniť vždy, bez ohľadu na percento; predvolené: %1.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>súbor</translation>
    </message>
    <message>
        <source>HR&apos;s file. It is only read.</source>
        <translation>Súbor personálneho oddelenia. Iba sa číta.</translation>
    </message>
    <message>
        <source>The file that the plugin reads: importFile of its INI file.</source>
        <translation>Súbor, ktorý číta zásuvný modul: importFile z jeho INI súboru.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>priečinok</translation>
    </message>
    <message>
        <source>The folder of the gate&apos;s own files, created when it is missing; default: the path of --to with .gate appended.</source>
        <translation>Priečinok vlastných súborov brány; ak chýba, vytvorí sa; predvolený: cesta z --to s pripojeným .gate.</translation>
    </message>
    <message>
        <source>Where to write the lines with errors or warnings, to send to HR; default: rejects.txt in the gate&apos;s folder.</source>
        <translation>Kam zapísať riadky s chybami alebo upozorneniami, na odoslanie personálnemu oddeleniu; predvolené: rejects.txt v priečinku brány.</translation>
    </message>
    <message>
        <source>How many dated copies of admitted files to keep; default: 30.</source>
        <translation>Koľko datovaných kópií prijatých súborov uchovať; predvolené: 30.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>sekundy</translation>
    </message>
    <message>
        <source>Refuse a file that was written less than this many seconds ago; default: 0.</source>
        <translation>Odmietne súbor, ktorý bol zapísaný pred menej sekundami, ako je toto číslo; predvolené: 0.</translation>
    </message>
    <message>
        <source>form</source>
        <translation>spôsob</translation>
    </message>
    <message>
        <source>How to write apostrophes, backslashes and placeholders in the texts for the plugin&apos;s statements: escaped (default), no-backslash-escapes for a server with that SQL mode, or as-is.</source>
        <translation>Ako zapísať apostrofy, opačné lomky a zástupné znaky v textoch pre príkazy zásuvného modulu: escaped (predvolené), no-backslash-escapes pre server v tomto režime SQL, alebo as-is.</translation>
    </message>
    <message>
        <source>Accept a last line without a line feed, which otherwise counts as truncated.</source>
        <translation>Prijme aj posledný riadok bez znaku konca riadka, inak sa súbor považuje za neúplný.</translation>
    </message>
    <message>
        <source>Admit the file this once, whatever is missing or has changed in it. An empty file is refused even so.</source>
        <translation>Tentoraz súbor prijme, nech v ňom chýba alebo sa zmenilo čokoľvek. Prázdny súbor odmietne aj tak.</translation>
    </message>
    <message>
        <source>The gate&apos;s status file &apos;%1&apos; cannot be read: %2</source>
        <translation>Stavový súbor brány „%1“ sa nedá prečítať: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a status file of the gate</source>
        <translation>„%1“ nie je stavový súbor brány</translation>
    </message>
    <message>
        <source>Name either FILE or --gate-folder</source>
        <translation>Uveďte buď SÚBOR, alebo --gate-folder</translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos;</source>
        <translation>Súbor „%1“ neexistuje</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be opened: %2</source>
        <translation>„%1“ sa nedá otvoriť: %2</translation>
    </message>
    <message>
        <source>The gate has admitted no file yet: there is no &apos;%1&apos;</source>
        <translation>Brána ešte neprijala žiadny súbor: „%1“ neexistuje</translation>
    </message>
    <message>
        <source>The gate of syncCommand publishes to %1, where the plugin does not read</source>
        <translation>Brána v syncCommand zverejňuje do %1, odkiaľ zásuvný modul nečíta</translation>
    </message>
    <message>
        <source>The gate of syncCommand has the folder %1, and where that is depends on the attendance server</source>
        <translation>Brána v syncCommand má priečinok %1 a to, kde je, závisí od dochádzkového servera</translation>
    </message>
</context>
</TS>
