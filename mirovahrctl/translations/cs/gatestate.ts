<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>&apos;%1&apos; cannot be written: %2</source>
        <translation>„%1“ nelze zapsat: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be opened as a folder: %2</source>
        <translation>„%1“ nelze otevřít jako složku: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be created: %2</source>
        <translation>„%1“ nelze vytvořit: %2</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; belongs to somebody else, or everybody may write to it: the gate could not trust its own files there</source>
        <translation>Složka „%1“ patří někomu jinému nebo do ní smí zapisovat každý: brána by tam nemohla důvěřovat vlastním souborům</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has no parent folder that can be examined: %2</source>
        <translation>„%1“ nemá nadřazenou složku, kterou by bylo možné prozkoumat: %2</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; belongs neither to root nor to the owner of its parent folder, so anybody may have created it. Run the gate as its owner if that is right, or give the folder to root</source>
        <translation>Složka „%1“ nepatří uživateli root ani vlastníkovi nadřazené složky, mohl ji tedy vytvořit kdokoli. Pokud je to tak správně, spusťte bránu jako její vlastník, nebo dejte složku uživateli root</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be given to its owner: %2</source>
        <translation>„%1“ nelze předat jeho vlastníkovi: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be locked: %2</source>
        <translation>„%1“ nelze zamknout: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read: %2</source>
        <translation>„%1“ nelze přečíst: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be listed: %2</source>
        <translation>Obsah „%1“ nelze vypsat: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be replaced: %2</source>
        <translation>„%1“ nelze nahradit: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be removed: %2</source>
        <translation>„%1“ nelze odstranit: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be written to the disk: %2</source>
        <translation>„%1“ nelze zapsat na disk: %2</translation>
    </message>
    <message>
        <source>Refuse a file that has lost more lines than this; default: %1.</source>
        <translation>Odmítne soubor, ve kterém ubylo více řádků, než je toto číslo; výchozí: %1.</translation>
    </message>
    <message>
        <source>The same in percent of the lines; default: %1.</source>
        <translation>Totéž v procentech řádků; výchozí: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that has more lines than this about people of earlier lines; default: %1.</source>
        <translation>Odmítne soubor, ve kterém více řádků, než je toto číslo, opakuje osoby z předchozích řádků; výchozí: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that lets more people leave than this; default: %1.</source>
        <translation>Odmítne soubor, ve kterém odchází více osob, než je toto číslo; výchozí: %1.</translation>
    </message>
    <message>
        <source>The same in percent of the employed people; default: %1.</source>
        <translation>Totéž v procentech zaměstnaných osob; výchozí: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that gives more people than this another cost centre; default: %1.</source>
        <translation>Odmítne soubor, ve kterém jiné středisko dostává více osob, než je toto číslo; výchozí: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that has more new people than this; default: %1.</source>
        <translation>Odmítne soubor, ve kterém je více nových osob, než je toto číslo; výchozí: %1.</translation>
    </message>
    <message>
        <source>The same in percent of the people; default: %1.</source>
        <translation>Totéž v procentech osob; výchozí: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that lets more people than this return who had left; default: %1.</source>
        <translation>Odmítne soubor, ve kterém se vrací více osob, které už odešly, než je toto číslo; výchozí: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that gives more people than this another supervisor without a visible reason; default: %1.</source>
        <translation>Odmítne soubor, ve kterém jiného nadřízeného bez viditelného důvodu dostává více osob, než je toto číslo; výchozí: %1.</translation>
    </message>
    <message>
        <source>The same in percent of the people with a supervisor; default: %1.</source>
        <translation>Totéž v procentech osob s nadřízeným; výchozí: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that sets more vacation balances than this to 0, beyond what is plausible, or to the same multiple; default: %1.</source>
        <translation>Odmítne soubor, ve kterém se více zůstatků dovolené, než je toto číslo, mění na 0, mimo věrohodný rozsah nebo na stejný násobek; výchozí: %1.</translation>
    </message>
    <message>
        <source>The same in percent of the people with a balance; default: %1.</source>
        <translation>Totéž v procentech osob se zůstatkem; výchozí: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that changes more values than this of any other field; default: %1.</source>
        <translation>Odmítne soubor, ve kterém se mění více hodnot kteréhokoli jiného pole, než je toto číslo; výchozí: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that empties more values than this of any field; default: %1.</source>
        <translation>Odmítne soubor, ve kterém se vyprazdňuje více hodnot kteréhokoli pole, než je toto číslo; výchozí: %1.</translation>
    </message>
    <message>
        <source>The same in percent of the people with a value; default: %1.</source>
        <translation>Totéž v procentech osob s hodnotou; výchozí: %1.</translation>
    </message>
    <message>
        <source>Refuse a file that has more values than this of any field that the plugin misreads; default: %1.</source>
        <translation>Odmítne soubor, ve kterém zásuvný modul nesprávně přečte více hodnot kteréhokoli pole, než je toto číslo; výchozí: %1.</translation>
    </message>
    <message>
        <source>--%1 takes a whole number from 0</source>
        <translation>Hodnota --%1 je celé číslo od 0</translation>
    </message>
    <message>
        <source>--%1 takes a percentage from 0 to 100</source>
        <translation>Hodnota --%1 je procento od 0 do 100</translation>
    </message>
    <message>
        <source>--texts takes one of: %1</source>
        <translation>Hodnota --texts je jedna z těchto: %1</translation>
    </message>
    <message>
        <source>Missing option --from; see --help</source>
        <translation>Chybí volba --from; viz --help</translation>
    </message>
    <message>
        <source>Missing option --to; see --help</source>
        <translation>Chybí volba --to; viz --help</translation>
    </message>
    <message>
        <source>--to names no file</source>
        <translation>--to neuvádí žádný soubor</translation>
    </message>
    <message>
        <source>--from and --to name the same file</source>
        <translation>--from a --to uvádějí tentýž soubor</translation>
    </message>
    <message>
        <source>--rejects would overwrite the export; name another file</source>
        <translation>--rejects by přepsalo export; uveďte jiný soubor</translation>
    </message>
    <message>
        <source>any number</source>
        <translation>libovolný počet</translation>
    </message>
    <message>
        <source>number</source>
        <translation>číslo</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>procento</translation>
    </message>
    <message>
        <source>So many may always change, whatever percentage they are; default: %1.</source>
        <translation>Tolik se smí změnit vždy, bez ohledu na procento; výchozí: %1.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>HR&apos;s file. It is only read.</source>
        <translation>Soubor personálního oddělení. Pouze se čte.</translation>
    </message>
    <message>
        <source>The file that the plugin reads: importFile of its INI file.</source>
        <translation>Soubor, který čte zásuvný modul: importFile z jeho INI souboru.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>složka</translation>
    </message>
    <message>
        <source>The folder of the gate&apos;s own files, created when it is missing; default: the path of --to with .gate appended.</source>
        <translation>Složka vlastních souborů brány; pokud chybí, vytvoří se; výchozí: cesta z --to s připojeným .gate.</translation>
    </message>
    <message>
        <source>Where to write the lines with errors or warnings, to send to HR; default: rejects.txt in the gate&apos;s folder.</source>
        <translation>Kam zapsat řádky s chybami nebo upozorněními, k odeslání personálnímu oddělení; výchozí: rejects.txt ve složce brány.</translation>
    </message>
    <message>
        <source>How many dated copies of admitted files to keep; default: 30.</source>
        <translation>Kolik datovaných kopií přijatých souborů uchovat; výchozí: 30.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>sekundy</translation>
    </message>
    <message>
        <source>Refuse a file that was written less than this many seconds ago; default: 0.</source>
        <translation>Odmítne soubor, který byl zapsán před méně sekundami, než je toto číslo; výchozí: 0.</translation>
    </message>
    <message>
        <source>form</source>
        <translation>způsob</translation>
    </message>
    <message>
        <source>How to write apostrophes, backslashes and placeholders in the texts for the plugin&apos;s statements: escaped (default), no-backslash-escapes for a server with that SQL mode, or as-is.</source>
        <translation>Jak zapsat apostrofy, zpětná lomítka a zástupné znaky v textech pro příkazy zásuvného modulu: escaped (výchozí), no-backslash-escapes pro server v tomto režimu SQL, nebo as-is.</translation>
    </message>
    <message>
        <source>Accept a last line without a line feed, which otherwise counts as truncated.</source>
        <translation>Přijme i poslední řádek bez znaku konce řádku, jinak se soubor považuje za neúplný.</translation>
    </message>
    <message>
        <source>Admit the file this once, whatever is missing or has changed in it. An empty file is refused even so.</source>
        <translation>Tentokrát soubor přijme, ať v něm chybí nebo se změnilo cokoli. Prázdný soubor odmítne i tak.</translation>
    </message>
    <message>
        <source>The gate&apos;s status file &apos;%1&apos; cannot be read: %2</source>
        <translation>Stavový soubor brány „%1“ nelze přečíst: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a status file of the gate</source>
        <translation>„%1“ není stavový soubor brány</translation>
    </message>
    <message>
        <source>Name either FILE or --gate-folder</source>
        <translation>Uveďte buď SOUBOR, nebo --gate-folder</translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos;</source>
        <translation>Soubor „%1“ neexistuje</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be opened: %2</source>
        <translation>„%1“ nelze otevřít: %2</translation>
    </message>
    <message>
        <source>The gate has admitted no file yet: there is no &apos;%1&apos;</source>
        <translation>Brána ještě nepřijala žádný soubor: „%1“ neexistuje</translation>
    </message>
    <message>
        <source>The gate of syncCommand publishes to %1, where the plugin does not read</source>
        <translation>Brána v syncCommand zveřejňuje do %1, odkud zásuvný modul nečte</translation>
    </message>
    <message>
        <source>The gate of syncCommand has the folder %1, and where that is depends on the attendance server</source>
        <translation>Brána v syncCommand má složku %1 a to, kde je, závisí na docházkovém serveru</translation>
    </message>
</context>
</TS>
