<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Another gate is using the folder.</source>
        <translation>Složku používá jiná brána.</translation>
    </message>
    <message>
        <source>Wait until it has finished.</source>
        <translation>Počkejte, až skončí.</translation>
    </message>
    <message>
        <source>The file changed while it was being read.</source>
        <translation>Soubor se během čtení změnil.</translation>
    </message>
    <message>
        <source>HR&apos;s export should write under another name and rename the file when it is complete.</source>
        <translation>Export personálního oddělení by měl zapisovat pod jiným názvem a soubor přejmenovat, až je úplný.</translation>
    </message>
    <message>
        <source>The file contains no people.</source>
        <translation>Soubor neobsahuje žádné osoby.</translation>
    </message>
    <message>
        <source>Ask HR whether the export went wrong.</source>
        <translation>Zeptejte se personálního oddělení, zda export proběhl správně.</translation>
    </message>
    <message>
        <source>The file is larger than the plugin reads.</source>
        <translation>Soubor je větší, než zásuvný modul čte.</translation>
    </message>
    <message>
        <source>The file was changed less than the seconds of --settle ago.</source>
        <translation>Soubor se změnil před méně sekundami, než určuje --settle.</translation>
    </message>
    <message>
        <source>It may still be incomplete; run the gate again later.</source>
        <translation>Možná ještě není úplný; spusťte bránu znovu později.</translation>
    </message>
    <message>
        <source>More lines with people than the limits allow are missing.</source>
        <translation>Chybí více řádků s osobami, než povolují limity.</translation>
    </message>
    <message>
        <source>Ask HR; if the change is intended, run the gate once with --accept.</source>
        <translation>Zeptejte se personálního oddělení; pokud je změna zamýšlená, spusťte bránu jednou s volbou --accept.</translation>
    </message>
    <message>
        <source>More lines than the limits allow are about people of earlier lines.</source>
        <translation>Více řádků, než povolují limity, opakuje osoby z předchozích řádků.</translation>
    </message>
    <message>
        <source>HR&apos;s file does not exist.</source>
        <translation>Soubor personálního oddělení neexistuje.</translation>
    </message>
    <message>
        <source>Ask HR whether the export has run.</source>
        <translation>Zeptejte se personálního oddělení, zda se export spustil.</translation>
    </message>
    <message>
        <source>There is no admitted file to compare with.</source>
        <translation>Není žádný přijatý soubor, se kterým by bylo možné porovnat.</translation>
    </message>
    <message>
        <source>Inspect the file with check-file and preview, then admit it once with --accept.</source>
        <translation>Prověřte soubor pomocí check-file a preview a potom ho jednou přijměte s volbou --accept.</translation>
    </message>
    <message>
        <source>More people than the limits allow leave.</source>
        <translation>Odchází více osob, než povolují limity.</translation>
    </message>
    <message>
        <source>More people than the limits allow get another cost centre.</source>
        <translation>Jiné středisko dostává více osob, než povolují limity.</translation>
    </message>
    <message>
        <source>More people than the limits allow are new.</source>
        <translation>Nových osob je více, než povolují limity.</translation>
    </message>
    <message>
        <source>More people than the limits allow return who had left.</source>
        <translation>Vrací se více osob, které už odešly, než povolují limity.</translation>
    </message>
    <message>
        <source>More people than the limits allow lose a supervisor who still works in the same place.</source>
        <translation>Nadřízeného, který dále pracuje na tomtéž místě, ztrácí více osob, než povolují limity.</translation>
    </message>
    <message>
        <source>More vacation balances than the limits allow become 0.</source>
        <translation>Na 0 se mění více zůstatků dovolené, než povolují limity.</translation>
    </message>
    <message>
        <source>More vacation balances than the limits allow leave the plausible range.</source>
        <translation>Věrohodný rozsah opouští více zůstatků dovolené, než povolují limity.</translation>
    </message>
    <message>
        <source>More vacation balances than the limits allow are the same multiple of what they were.</source>
        <translation>Stejným násobkem předchozí hodnoty je více zůstatků dovolené, než povolují limity.</translation>
    </message>
    <message>
        <source>More values of a field than the limits allow change.</source>
        <translation>Mění se více hodnot pole, než povolují limity.</translation>
    </message>
    <message>
        <source>More values of a field than the limits allow are emptied.</source>
        <translation>Vyprazdňuje se více hodnot pole, než povolují limity.</translation>
    </message>
    <message>
        <source>More values of a field than the limits allow are newly misread by the plugin.</source>
        <translation>Zásuvný modul nově nesprávně přečte více hodnot pole, než povolují limity.</translation>
    </message>
    <message>
        <source>Ask HR for a correct file.</source>
        <translation>Vyžádejte si od personálního oddělení správný soubor.</translation>
    </message>
    <message>
        <source>The last line is damaged or has no line feed.</source>
        <translation>Poslední řádek je poškozený nebo není ukončen znakem konce řádku.</translation>
    </message>
    <message>
        <source>Ask HR for the complete file.</source>
        <translation>Vyžádejte si od personálního oddělení úplný soubor.</translation>
    </message>
    <message>
        <source>The file has lines with errors, which do not keep it from being admitted.</source>
        <translation>Soubor má řádky s chybami, které nebrání jeho přijetí.</translation>
    </message>
    <message>
        <source>Send HR the file of these lines.</source>
        <translation>Pošlete personálnímu oddělení soubor těchto řádků.</translation>
    </message>
    <message>
        <source>The file has lines with values that the plugin misreads or that are hardly intended.</source>
        <translation>Soubor má řádky s hodnotami, které zásuvný modul přečte nesprávně nebo které sotva někdo zamýšlel.</translation>
    </message>
    <message>
        <source>The file has texts that look as if they were written for SQL already, such as O&apos;&apos;Brien.</source>
        <translation>Soubor má texty, které vypadají, jako by už byly zapsány pro SQL, například O&apos;&apos;Brien.</translation>
    </message>
    <message>
        <source>Ask HR whether its program doubles apostrophes or backslashes; it should leave that to the gate.</source>
        <translation>Zeptejte se personálního oddělení, zda jeho program nezdvojuje apostrofy nebo zpětná lomítka; to by měl nechat na bráně.</translation>
    </message>
    <message>
        <source>The file equals the last admitted one and is published again.</source>
        <translation>Soubor je stejný jako naposledy přijatý a zveřejní se znovu.</translation>
    </message>
    <message>
        <source>An earlier file was still in place, which the plugin has not read or does not remove.</source>
        <translation>Na místě byl ještě předchozí soubor, který zásuvný modul nepřečetl nebo ho neodstraňuje.</translation>
    </message>
    <message>
        <source>Takes HR&apos;s file, checks it as check-file does, compares it with the last admitted one, and publishes it in one step where the plugin reads it. Refuses a file that is empty, truncated or being written, or in which more differs than the limits allow: people who leave, move, return or are new, values that change, are emptied or misread, balances and supervisors that no life of a firm explains. Each limit is a number and a percentage; exceeding either is enough. Of a refused file nothing is published.

Intended as the syncCommand of the plugin&apos;s INI file. Run it as the attendance server&apos;s user. The first file has no other to compare with and is refused, too: admit it with --accept.</source>
        <translation>Vezme soubor personálního oddělení, zkontroluje ho stejně jako check-file, porovná ho s naposledy přijatým a jedním krokem ho zveřejní tam, kde ho čte zásuvný modul. Odmítne soubor, který je prázdný, neúplný nebo se právě zapisuje, nebo ve kterém se liší více, než povolují limity: osoby, které odcházejí, mění středisko, vracejí se nebo jsou nové, hodnoty, které se mění, vyprazdňují nebo čtou nesprávně, zůstatky a nadřízené, které život firmy nevysvětlí. Každý limit je počet a procento; stačí překročit jedno z nich. Z odmítnutého souboru se nezveřejní nic.

Je určena jako syncCommand v INI souboru zásuvného modulu. Spouštějte ji jako uživatel docházkového serveru. První soubor se nemá s čím porovnat, proto se odmítne také: přijměte ho s volbou --accept.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) (%1 %) with people are missing compared with the last admitted file; %2</source>
        <translation>
            <numerusform>Ve srovnání s naposledy přijatým souborem chybí %Ln řádek (%1 %) s osobami; %2</numerusform>
            <numerusform>Ve srovnání s naposledy přijatým souborem chybějí %Ln řádky (%1 %) s osobami; %2</numerusform>
            <numerusform>Ve srovnání s naposledy přijatým souborem chybí %Ln řádků (%1 %) s osobami; %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) (%1 %) repeat people of earlier lines, more than in the last admitted file; %2</source>
        <translation>
            <numerusform>%Ln řádek (%1 %) opakuje osobu z předchozího řádku, více než v naposledy přijatém souboru; %2</numerusform>
            <numerusform>%Ln řádky (%1 %) opakují osoby z předchozích řádků, více než v naposledy přijatém souboru; %2</numerusform>
            <numerusform>%Ln řádků (%1 %) opakuje osoby z předchozích řádků, více než v naposledy přijatém souboru; %2</numerusform>
        </translation>
    </message>
    <message>
        <source>The last line is damaged.</source>
        <translation>Poslední řádek je poškozený.</translation>
    </message>
    <message>
        <source>The last line does not end with a line feed.</source>
        <translation>Poslední řádek není ukončen znakem konce řádku.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s) (%1 %) leave; %2</source>
        <translation>
            <numerusform>%Ln osoba (%1 %) odchází; %2</numerusform>
            <numerusform>%Ln osoby (%1 %) odcházejí; %2</numerusform>
            <numerusform>%Ln osob (%1 %) odchází; %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s) (%1 %) get another cost centre; %2</source>
        <translation>
            <numerusform>%Ln osoba (%1 %) dostává jiné středisko; %2</numerusform>
            <numerusform>%Ln osoby (%1 %) dostávají jiné středisko; %2</numerusform>
            <numerusform>%Ln osob (%1 %) dostává jiné středisko; %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s) (%1 %) are new; %2</source>
        <translation>
            <numerusform>%Ln osoba (%1 %) je nová; %2</numerusform>
            <numerusform>%Ln osoby (%1 %) jsou nové; %2</numerusform>
            <numerusform>%Ln osob (%1 %) je nových; %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s) (%1 %) return who had left; %2</source>
        <translation>
            <numerusform>Vrací se %Ln osoba (%1 %), která už odešla; %2</numerusform>
            <numerusform>Vracejí se %Ln osoby (%1 %), které už odešly; %2</numerusform>
            <numerusform>Vrací se %Ln osob (%1 %), které už odešly; %2</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos;.</source>
        <translation>Soubor „%1“ neexistuje.</translation>
    </message>
    <message>
        <source>The file is larger than 1 GiB; the plugin reads no further.</source>
        <translation>Soubor je větší než 1 GiB; dále zásuvný modul nečte.</translation>
    </message>
    <message numerus="yes">
        <source>The file was changed within the last %Ln second(s).</source>
        <translation>
            <numerusform>Soubor se změnil během poslední %Ln sekundy.</numerusform>
            <numerusform>Soubor se změnil během posledních %Ln sekund.</numerusform>
            <numerusform>Soubor se změnil během posledních %Ln sekund.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another gate is using this folder.</source>
        <translation>Tuto složku používá jiná brána.</translation>
    </message>
    <message>
        <source>Checking HR&apos;s file</source>
        <translation>Kontrola souboru personálního oddělení</translation>
    </message>
    <message>
        <source>The copy of HR&apos;s file cannot be read to its end: %1</source>
        <translation>Kopii souboru personálního oddělení nelze přečíst do konce: %1</translation>
    </message>
    <message>
        <source>The last admitted file cannot be read to its end: %1</source>
        <translation>Naposledy přijatý soubor nelze přečíst do konce: %1</translation>
    </message>
    <message>
        <source>With its texts written for the plugin the file is longer than 1 GiB, and the plugin reads no further</source>
        <translation>S texty zapsanými pro zásuvný modul je soubor delší než 1 GiB a dále zásuvný modul nečte</translation>
    </message>
    <message>
        <source>the limit is %1 %.</source>
        <translation>limit je %1 %.</translation>
    </message>
    <message>
        <source>the limits are %1 and %2 %.</source>
        <translation>limity jsou %1 a %2 %.</translation>
    </message>
    <message numerus="yes">
        <source>The file has %Ln line(s) with errors, dropped or not written correctly.</source>
        <translation>
            <numerusform>Soubor má %Ln řádek s chybami, vynechaný nebo nesprávně zapsaný.</numerusform>
            <numerusform>Soubor má %Ln řádky s chybami, vynechané nebo nesprávně zapsané.</numerusform>
            <numerusform>Soubor má %Ln řádků s chybami, vynechaných nebo nesprávně zapsaných.</numerusform>
        </translation>
    </message>
    <message>
        <source>Send HR the file %1.</source>
        <translation>Pošlete personálnímu oddělení soubor %1.</translation>
    </message>
    <message numerus="yes">
        <source>The file has %Ln line(s) with warnings: values that the plugin misreads, or that are hardly intended.</source>
        <translation>
            <numerusform>Soubor má %Ln řádek s upozorněními: hodnoty, které zásuvný modul přečte nesprávně nebo které sotva někdo zamýšlel.</numerusform>
            <numerusform>Soubor má %Ln řádky s upozorněními: hodnoty, které zásuvný modul přečte nesprávně nebo které sotva někdo zamýšlel.</numerusform>
            <numerusform>Soubor má %Ln řádků s upozorněními: hodnoty, které zásuvný modul přečte nesprávně nebo které sotva někdo zamýšlel.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %Ln line(s) with texts that look as if they were written for SQL already, such as O&apos;&apos;Brien. The database gets them as they are here.</source>
        <translation>
            <numerusform>Soubor má %Ln řádek s texty, které vypadají, jako by už byly zapsány pro SQL, například O&apos;&apos;Brien. Databáze je dostane tak, jak jsou zde.</numerusform>
            <numerusform>Soubor má %Ln řádky s texty, které vypadají, jako by už byly zapsány pro SQL, například O&apos;&apos;Brien. Databáze je dostane tak, jak jsou zde.</numerusform>
            <numerusform>Soubor má %Ln řádků s texty, které vypadají, jako by už byly zapsány pro SQL, například O&apos;&apos;Brien. Databáze je dostane tak, jak jsou zde.</numerusform>
        </translation>
    </message>
    <message>
        <source>Decision</source>
        <translation>Rozhodnutí</translation>
    </message>
    <message>
        <source>Overridden by --accept.</source>
        <translation>Přesto přijato volbou --accept.</translation>
    </message>
    <message>
        <source>Ask HR. For another reason the file cannot be admitted at all.</source>
        <translation>Zeptejte se personálního oddělení. Z jiného důvodu nelze soubor přijmout vůbec.</translation>
    </message>
    <message>
        <source>The file equals the last admitted one. It is published again, so that the plugin continues with what is pending.</source>
        <translation>Soubor je stejný jako naposledy přijatý. Zveřejní se znovu, aby zásuvný modul pokračoval v tom, co čeká.</translation>
    </message>
    <message>
        <source>An earlier file was still in place, which the plugin has not read or does not remove. It was replaced.</source>
        <translation>Na místě byl ještě předchozí soubor, který zásuvný modul nepřečetl nebo ho neodstraňuje. Byl nahrazen.</translation>
    </message>
    <message>
        <source>An earlier file was still in place, which the plugin has not read or does not remove. It remains.</source>
        <translation>Na místě byl ještě předchozí soubor, který zásuvný modul nepřečetl nebo ho neodstraňuje. Zůstává tam.</translation>
    </message>
    <message>
        <source>HR&apos;s file</source>
        <translation>Soubor personálního oddělení</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Řádky</translation>
    </message>
    <message>
        <source>Read as people</source>
        <translation>Přečtené jako osoby</translation>
    </message>
    <message>
        <source>Dropped by the plugin</source>
        <translation>Vynechané zásuvným modulem</translation>
    </message>
    <message>
        <source>Lines with errors</source>
        <translation>Řádky s chybami</translation>
    </message>
    <message>
        <source>Lines with warnings</source>
        <translation>Řádky s upozorněními</translation>
    </message>
    <message>
        <source>Compared with the last admitted file</source>
        <translation>Porovnání s naposledy přijatým souborem</translation>
    </message>
    <message>
        <source>People in the last admitted file</source>
        <translation>Osoby v naposledy přijatém souboru</translation>
    </message>
    <message>
        <source>Employed people in it</source>
        <translation>Z toho zaměstnané osoby</translation>
    </message>
    <message>
        <source>Lines lost</source>
        <translation>Chybějící řádky</translation>
    </message>
    <message>
        <source>Lines repeated</source>
        <translation>Opakované řádky</translation>
    </message>
    <message>
        <source>People leaving</source>
        <translation>Odcházející osoby</translation>
    </message>
    <message>
        <source>People moving</source>
        <translation>Osoby, které mění středisko</translation>
    </message>
    <message>
        <source>New people</source>
        <translation>Nové osoby</translation>
    </message>
    <message>
        <source>People returning</source>
        <translation>Vracející se osoby</translation>
    </message>
    <message>
        <source>Supervisors changed without a visible reason</source>
        <translation>Nadřízení změnění bez viditelného důvodu</translation>
    </message>
    <message>
        <source>Leaving</source>
        <translation>Odcházejí</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nové</translation>
    </message>
    <message>
        <source>Returning</source>
        <translation>Vracejí se</translation>
    </message>
    <message>
        <source>Values:</source>
        <translation>Hodnoty:</translation>
    </message>
    <message>
        <source>Whose values these are</source>
        <translation>Komu tyto hodnoty patří</translation>
    </message>
    <message>
        <source>The file was refused. Nothing was published.</source>
        <translation>Soubor byl odmítnut. Nic se nezveřejnilo.</translation>
    </message>
    <message numerus="yes">
        <source>The file was admitted and published: %Ln person(s).</source>
        <translation>
            <numerusform>Soubor byl přijat a zveřejněn: %Ln osoba.</numerusform>
            <numerusform>Soubor byl přijat a zveřejněn: %Ln osoby.</numerusform>
            <numerusform>Soubor byl přijat a zveřejněn: %Ln osob.</numerusform>
        </translation>
    </message>
    <message>
        <source>Gate from %1 to %2</source>
        <translation>Brána z %1 do %2</translation>
    </message>
    <message>
        <source>The file was published nevertheless</source>
        <translation>Soubor se přesto zveřejnil</translation>
    </message>
    <message>
        <source>Nothing was published</source>
        <translation>Nic se nezveřejnilo</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read: %2</source>
        <translation>„%1“ nelze přečíst: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read to its end: %2</source>
        <translation>„%1“ nelze přečíst do konce: %2</translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) becomes 0; %3</source>
        <translation>
            <numerusform>Hodnota pole „%1“ se u %Ln osoby (%2 %) mění na 0; %3</numerusform>
            <numerusform>Hodnota pole „%1“ se u %Ln osob (%2 %) mění na 0; %3</numerusform>
            <numerusform>Hodnota pole „%1“ se u %Ln osob (%2 %) mění na 0; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) is now less than %4 or more than %5 days; %3</source>
        <translation>
            <numerusform>Hodnota pole „%1“ je u %Ln osoby (%2 %) nyní menší než %4 nebo větší než %5 dní; %3</numerusform>
            <numerusform>Hodnota pole „%1“ je u %Ln osob (%2 %) nyní menší než %4 nebo větší než %5 dní; %3</numerusform>
            <numerusform>Hodnota pole „%1“ je u %Ln osob (%2 %) nyní menší než %4 nebo větší než %5 dní; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) is %4 times what it was; %3</source>
        <translation>
            <numerusform>Hodnota pole „%1“ je u %Ln osoby (%2 %) %4násobkem předchozí hodnoty; %3</numerusform>
            <numerusform>Hodnota pole „%1“ je u %Ln osob (%2 %) %4násobkem předchozí hodnoty; %3</numerusform>
            <numerusform>Hodnota pole „%1“ je u %Ln osob (%2 %) %4násobkem předchozí hodnoty; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) is misread: %4; %3</source>
        <translation>
            <numerusform>Hodnota pole „%1“ se u %Ln osoby (%2 %) přečte nesprávně: %4; %3</numerusform>
            <numerusform>Hodnota pole „%1“ se u %Ln osob (%2 %) přečte nesprávně: %4; %3</numerusform>
            <numerusform>Hodnota pole „%1“ se u %Ln osob (%2 %) přečte nesprávně: %4; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) changes; %3</source>
        <translation>
            <numerusform>Hodnota pole „%1“ se u %Ln osoby (%2 %) mění; %3</numerusform>
            <numerusform>Hodnota pole „%1“ se u %Ln osob (%2 %) mění; %3</numerusform>
            <numerusform>Hodnota pole „%1“ se u %Ln osob (%2 %) mění; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) is emptied; %3</source>
        <translation>
            <numerusform>Hodnota pole „%1“ se u %Ln osoby (%2 %) vyprazdňuje; %3</numerusform>
            <numerusform>Hodnota pole „%1“ se u %Ln osob (%2 %) vyprazdňuje; %3</numerusform>
            <numerusform>Hodnota pole „%1“ se u %Ln osob (%2 %) vyprazdňuje; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) changes though the former one still works in the same place; %3</source>
        <translation>
            <numerusform>Hodnota pole „%1“ se u %Ln osoby (%2 %) mění, ačkoli předchozí nadřízený dále pracuje na tomtéž místě; %3</numerusform>
            <numerusform>Hodnota pole „%1“ se u %Ln osob (%2 %) mění, ačkoli předchozí nadřízený dále pracuje na tomtéž místě; %3</numerusform>
            <numerusform>Hodnota pole „%1“ se u %Ln osob (%2 %) mění, ačkoli předchozí nadřízený dále pracuje na tomtéž místě; %3</numerusform>
        </translation>
    </message>
</context>
</TS>
