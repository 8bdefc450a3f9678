<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Another gate is using the folder.</source>
        <translation>Priečinok používa iná brána.</translation>
    </message>
    <message>
        <source>Wait until it has finished.</source>
        <translation>Počkajte, kým skončí.</translation>
    </message>
    <message>
        <source>The file changed while it was being read.</source>
        <translation>Súbor sa počas čítania zmenil.</translation>
    </message>
    <message>
        <source>HR&apos;s export should write under another name and rename the file when it is complete.</source>
        <translation>Export personálneho oddelenia by mal zapisovať pod iným názvom a súbor premenovať, keď je úplný.</translation>
    </message>
    <message>
        <source>The file contains no people.</source>
        <translation>Súbor neobsahuje žiadne osoby.</translation>
    </message>
    <message>
        <source>Ask HR whether the export went wrong.</source>
        <translation>Opýtajte sa personálneho oddelenia, či export prebehol správne.</translation>
    </message>
    <message>
        <source>The file is larger than the plugin reads.</source>
        <translation>Súbor je väčší, než zásuvný modul číta.</translation>
    </message>
    <message>
        <source>The file was changed less than the seconds of --settle ago.</source>
        <translation>Súbor sa zmenil pred menej sekundami, ako určuje --settle.</translation>
    </message>
    <message>
        <source>It may still be incomplete; run the gate again later.</source>
        <translation>Možno ešte nie je úplný; spustite bránu znova neskôr.</translation>
    </message>
    <message>
        <source>More lines with people than the limits allow are missing.</source>
        <translation>Chýba viac riadkov s osobami, ako povoľujú limity.</translation>
    </message>
    <message>
        <source>Ask HR; if the change is intended, run the gate once with --accept.</source>
        <translation>Opýtajte sa personálneho oddelenia; ak je zmena zamýšľaná, spustite bránu raz s voľbou --accept.</translation>
    </message>
    <message>
        <source>More lines than the limits allow are about people of earlier lines.</source>
        <translation>Viac riadkov, ako povoľujú limity, opakuje osoby z predchádzajúcich riadkov.</translation>
    </message>
    <message>
        <source>HR&apos;s file does not exist.</source>
        <translation>Súbor personálneho oddelenia neexistuje.</translation>
    </message>
    <message>
        <source>Ask HR whether the export has run.</source>
        <translation>Opýtajte sa personálneho oddelenia, či sa export spustil.</translation>
    </message>
    <message>
        <source>There is no admitted file to compare with.</source>
        <translation>Nie je žiadny prijatý súbor, s ktorým by sa dalo porovnať.</translation>
    </message>
    <message>
        <source>Inspect the file with check-file and preview, then admit it once with --accept.</source>
        <translation>Preverte súbor pomocou check-file a preview a potom ho raz prijmite s voľbou --accept.</translation>
    </message>
    <message>
        <source>More people than the limits allow leave.</source>
        <translation>Odchádza viac osôb, ako povoľujú limity.</translation>
    </message>
    <message>
        <source>More people than the limits allow get another cost centre.</source>
        <translation>Iné stredisko dostáva viac osôb, ako povoľujú limity.</translation>
    </message>
    <message>
        <source>More people than the limits allow are new.</source>
        <translation>Nových osôb je viac, ako povoľujú limity.</translation>
    </message>
    <message>
        <source>More people than the limits allow return who had left.</source>
        <translation>Vracia sa viac osôb, ktoré už odišli, ako povoľujú limity.</translation>
    </message>
    <message>
        <source>More people than the limits allow lose a supervisor who still works in the same place.</source>
        <translation>Nadriadeného, ktorý ďalej pracuje na tom istom mieste, stráca viac osôb, ako povoľujú limity.</translation>
    </message>
    <message>
        <source>More vacation balances than the limits allow become 0.</source>
        <translation>Na 0 sa mení viac zostatkov dovolenky, ako povoľujú limity.</translation>
    </message>
    <message>
        <source>More vacation balances than the limits allow leave the plausible range.</source>
        <translation>Hodnoverný rozsah opúšťa viac zostatkov dovolenky, ako povoľujú limity.</translation>
    </message>
    <message>
        <source>More vacation balances than the limits allow are the same multiple of what they were.</source>
        <translation>Rovnakým násobkom predchádzajúcej hodnoty je viac zostatkov dovolenky, ako povoľujú limity.</translation>
    </message>
    <message>
        <source>More values of a field than the limits allow change.</source>
        <translation>Mení sa viac hodnôt poľa, ako povoľujú limity.</translation>
    </message>
    <message>
        <source>More values of a field than the limits allow are emptied.</source>
        <translation>Vyprázdňuje sa viac hodnôt poľa, ako povoľujú limity.</translation>
    </message>
    <message>
        <source>More values of a field than the limits allow are newly misread by the plugin.</source>
        <translation>Zásuvný modul po novom nesprávne prečíta viac hodnôt poľa, ako povoľujú limity.</translation>
    </message>
    <message>
        <source>Ask HR for a correct file.</source>
        <translation>Vyžiadajte si od personálneho oddelenia správny súbor.</translation>
    </message>
    <message>
        <source>The last line is damaged or has no line feed.</source>
        <translation>Posledný riadok je poškodený alebo nie je ukončený znakom konca riadka.</translation>
    </message>
    <message>
        <source>Ask HR for the complete file.</source>
        <translation>Vyžiadajte si od personálneho oddelenia úplný súbor.</translation>
    </message>
    <message>
        <source>The file has lines with errors, which do not keep it from being admitted.</source>
        <translation>Súbor má riadky s chybami, ktoré nebránia jeho prijatiu.</translation>
    </message>
    <message>
        <source>Send HR the file of these lines.</source>
        <translation>Pošlite personálnemu oddeleniu súbor týchto riadkov.</translation>
    </message>
    <message>
        <source>The file has lines with values that the plugin misreads or that are hardly intended.</source>
        <translation>Súbor má riadky s hodnotami, ktoré zásuvný modul prečíta nesprávne alebo ktoré sotva niekto zamýšľal.</translation>
    </message>
    <message>
        <source>The file has texts that look as if they were written for SQL already, such as O&apos;&apos;Brien.</source>
        <translation>Súbor má texty, ktoré vyzerajú, akoby už boli zapísané pre SQL, napríklad O&apos;&apos;Brien.</translation>
    </message>
    <message>
        <source>Ask HR whether its program doubles apostrophes or backslashes; it should leave that to the gate.</source>
        <translation>Opýtajte sa personálneho oddelenia, či jeho program nezdvojuje apostrofy alebo opačné lomky; to by mal nechať na bránu.</translation>
    </message>
    <message>
        <source>The file equals the last admitted one and is published again.</source>
        <translation>Súbor je rovnaký ako naposledy prijatý a zverejní sa znova.</translation>
    </message>
    <message>
        <source>An earlier file was still in place, which the plugin has not read or does not remove.</source>
        <translation>Na mieste bol ešte predchádzajúci súbor, ktorý zásuvný modul neprečítal alebo ho neodstraňuje.</translation>
    </message>
    <message>
        <source>Takes HR&apos;s file, checks it as check-file does, compares it with the last admitted one, and publishes it in one step where the plugin reads it. Refuses a file that is empty, truncated or being written, or in which more differs than the limits allow: people who leave, move, return or are new, values that change, are emptied or misread, balances and supervisors that no life of a firm explains. Each limit is a number and a percentage; exceeding either is enough. Of a refused file nothing is published.

Intended as the syncCommand of the plugin&apos;s INI file. Run it as the attendance server&apos;s user. The first file has no other to compare with and is refused, too: admit it with --accept.</source>
        <translation>Vezme súbor personálneho oddelenia, skontroluje ho rovnako ako check-file, porovná ho s naposledy prijatým a jedným krokom ho zverejní tam, kde ho číta zásuvný modul. Odmietne súbor, ktorý je prázdny, neúplný alebo sa práve zapisuje, alebo v ktorom sa líši viac, ako povoľujú limity: osoby, ktoré odchádzajú, menia stredisko, vracajú sa alebo sú nové, hodnoty, ktoré sa menia, vyprázdňujú alebo čítajú nesprávne, zostatky a nadriadených, ktoré život firmy nevysvetlí. Každý limit je počet a percento; stačí prekročiť jedno z nich. Z odmietnutého súboru sa nezverejní nič.

Je určená ako syncCommand v INI súbore zásuvného modulu. Spúšťajte ju ako používateľ dochádzkového servera. Prvý súbor sa nemá s čím porovnať, preto sa odmietne tiež: prijmite ho s voľbou --accept.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) (%1 %) with people are missing compared with the last admitted file; %2</source>
        <translation>
            <numerusform>V porovnaní s naposledy prijatým súborom chýba %Ln riadok (%1 %) s osobami; %2</numerusform>
            <numerusform>V porovnaní s naposledy prijatým súborom chýbajú %Ln riadky (%1 %) s osobami; %2</numerusform>
            <numerusform>V porovnaní s naposledy prijatým súborom chýba %Ln riadkov (%1 %) s osobami; %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) (%1 %) repeat people of earlier lines, more than in the last admitted file; %2</source>
        <translation>
            <numerusform>%Ln riadok (%1 %) opakuje osobu z predchádzajúceho riadka, viac ako v naposledy prijatom súbore; %2</numerusform>
            <numerusform>%Ln riadky (%1 %) opakujú osoby z predchádzajúcich riadkov, viac ako v naposledy prijatom súbore; %2</numerusform>
            <numerusform>%Ln riadkov (%1 %) opakuje osoby z predchádzajúcich riadkov, viac ako v naposledy prijatom súbore; %2</numerusform>
        </translation>
    </message>
    <message>
        <source>The last line is damaged.</source>
        <translation>Posledný riadok je poškodený.</translation>
    </message>
    <message>
        <source>The last line does not end with a line feed.</source>
        <translation>Posledný riadok nie je ukončený znakom konca riadka.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s) (%1 %) leave; %2</source>
        <translation>
            <numerusform>%Ln osoba (%1 %) odchádza; %2</numerusform>
            <numerusform>%Ln osoby (%1 %) odchádzajú; %2</numerusform>
            <numerusform>%Ln osôb (%1 %) odchádza; %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s) (%1 %) get another cost centre; %2</source>
        <translation>
            <numerusform>%Ln osoba (%1 %) dostáva iné stredisko; %2</numerusform>
            <numerusform>%Ln osoby (%1 %) dostávajú iné stredisko; %2</numerusform>
            <numerusform>%Ln osôb (%1 %) dostáva iné stredisko; %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s) (%1 %) are new; %2</source>
        <translation>
            <numerusform>%Ln osoba (%1 %) je nová; %2</numerusform>
            <numerusform>%Ln osoby (%1 %) sú nové; %2</numerusform>
            <numerusform>%Ln osôb (%1 %) je nových; %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s) (%1 %) return who had left; %2</source>
        <translation>
            <numerusform>Vracia sa %Ln osoba (%1 %), ktorá už odišla; %2</numerusform>
            <numerusform>Vracajú sa %Ln osoby (%1 %), ktoré už odišli; %2</numerusform>
            <numerusform>Vracia sa %Ln osôb (%1 %), ktoré už odišli; %2</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos;.</source>
        <translation>Súbor „%1“ neexistuje.</translation>
    </message>
    <message>
        <source>The file is larger than 1 GiB; the plugin reads no further.</source>
        <translation>Súbor je väčší ako 1 GiB; ďalej zásuvný modul nečíta.</translation>
    </message>
    <message numerus="yes">
        <source>The file was changed within the last %Ln second(s).</source>
        <translation>
            <numerusform>Súbor sa zmenil počas poslednej %Ln sekundy.</numerusform>
            <numerusform>Súbor sa zmenil počas posledných %Ln sekúnd.</numerusform>
            <numerusform>Súbor sa zmenil počas posledných %Ln sekúnd.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another gate is using this folder.</source>
        <translation>Tento priečinok používa iná brána.</translation>
    </message>
    <message>
        <source>Checking HR&apos;s file</source>
        <translation>Kontrola súboru personálneho oddelenia</translation>
    </message>
    <message>
        <source>The copy of HR&apos;s file cannot be read to its end: %1</source>
        <translation>Kópia súboru personálneho oddelenia sa nedá prečítať do konca: %1</translation>
    </message>
    <message>
        <source>The last admitted file cannot be read to its end: %1</source>
        <translation>Naposledy prijatý súbor sa nedá prečítať do konca: %1</translation>
    </message>
    <message>
        <source>With its texts written for the plugin the file is longer than 1 GiB, and the plugin reads no further</source>
        <translation>S textami zapísanými pre zásuvný modul je súbor dlhší ako 1 GiB a ďalej zásuvný modul nečíta</translation>
    </message>
    <message>
        <source>the limit is %1 %.</source>
        <translation>limit je %1 %.</translation>
    </message>
    <message>
        <source>the limits are %1 and %2 %.</source>
        <translation>limity sú %1 a %2 %.</translation>
    </message>
    <message numerus="yes">
        <source>The file has %Ln line(s) with errors, dropped or not written correctly.</source>
        <translation>
            <numerusform>Súbor má %Ln riadok s chybami, vynechaný alebo nesprávne zapísaný.</numerusform>
            <numerusform>Súbor má %Ln riadky s chybami, vynechané alebo nesprávne zapísané.</numerusform>
            <numerusform>Súbor má %Ln riadkov s chybami, vynechaných alebo nesprávne zapísaných.</numerusform>
        </translation>
    </message>
    <message>
        <source>Send HR the file %1.</source>
        <translation>Pošlite personálnemu oddeleniu súbor %1.</translation>
    </message>
    <message numerus="yes">
        <source>The file has %Ln line(s) with warnings: values that the plugin misreads, or that are hardly intended.</source>
        <translation>
            <numerusform>Súbor má %Ln riadok s upozorneniami: hodnoty, ktoré zásuvný modul prečíta nesprávne alebo ktoré sotva niekto zamýšľal.</numerusform>
            <numerusform>Súbor má %Ln riadky s upozorneniami: hodnoty, ktoré zásuvný modul prečíta nesprávne alebo ktoré sotva niekto zamýšľal.</numerusform>
            <numerusform>Súbor má %Ln riadkov s upozorneniami: hodnoty, ktoré zásuvný modul prečíta nesprávne alebo ktoré sotva niekto zamýšľal.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %Ln line(s) with texts that look as if they were written for SQL already, such as O&apos;&apos;Brien. The database gets them as they are here.</source>
        <translation>
            <numerusform>Súbor má %Ln riadok s textami, ktoré vyzerajú, akoby už boli zapísané pre SQL, napríklad O&apos;&apos;Brien. Databáza ich dostane tak, ako sú tu.</numerusform>
            <numerusform>Súbor má %Ln riadky s textami, ktoré vyzerajú, akoby už boli zapísané pre SQL, napríklad O&apos;&apos;Brien. Databáza ich dostane tak, ako sú tu.</numerusform>
            <numerusform>Súbor má %Ln riadkov s textami, ktoré vyzerajú, akoby už boli zapísané pre SQL, napríklad O&apos;&apos;Brien. Databáza ich dostane tak, ako sú tu.</numerusform>
        </translation>
    </message>
    <message>
        <source>Decision</source>
        <translation>Rozhodnutie</translation>
    </message>
    <message>
        <source>Overridden by --accept.</source>
        <translation>Napriek tomu prijaté voľbou --accept.</translation>
    </message>
    <message>
        <source>Ask HR. For another reason the file cannot be admitted at all.</source>
        <translation>Opýtajte sa personálneho oddelenia. Z iného dôvodu sa súbor nedá prijať vôbec.</translation>
    </message>
    <message>
        <source>The file equals the last admitted one. It is published again, so that the plugin continues with what is pending.</source>
        <translation>Súbor je rovnaký ako naposledy prijatý. Zverejní sa znova, aby zásuvný modul pokračoval v tom, čo čaká.</translation>
    </message>
    <message>
        <source>An earlier file was still in place, which the plugin has not read or does not remove. It was replaced.</source>
        <translation>Na mieste bol ešte predchádzajúci súbor, ktorý zásuvný modul neprečítal alebo ho neodstraňuje. Bol nahradený.</translation>
    </message>
    <message>
        <source>An earlier file was still in place, which the plugin has not read or does not remove. It remains.</source>
        <translation>Na mieste bol ešte predchádzajúci súbor, ktorý zásuvný modul neprečítal alebo ho neodstraňuje. Zostáva tam.</translation>
    </message>
    <message>
        <source>HR&apos;s file</source>
        <translation>Súbor personálneho oddelenia</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Riadky</translation>
    </message>
    <message>
        <source>Read as people</source>
        <translation>Prečítané ako osoby</translation>
    </message>
    <message>
        <source>Dropped by the plugin</source>
        <translation>Vynechané zásuvným modulom</translation>
    </message>
    <message>
        <source>Lines with errors</source>
        <translation>Riadky s chybami</translation>
    </message>
    <message>
        <source>Lines with warnings</source>
        <translation>Riadky s upozorneniami</translation>
    </message>
    <message>
        <source>Compared with the last admitted file</source>
        <translation>Porovnanie s naposledy prijatým súborom</translation>
    </message>
    <message>
        <source>People in the last admitted file</source>
        <translation>Osoby v naposledy prijatom súbore</translation>
    </message>
    <message>
        <source>Employed people in it</source>
        <translation>Z toho zamestnané osoby</translation>
    </message>
    <message>
        <source>Lines lost</source>
        <translation>Chýbajúce riadky</translation>
    </message>
    <message>
        <source>Lines repeated</source>
        <translation>Opakované riadky</translation>
    </message>
    <message>
        <source>People leaving</source>
        <translation>Odchádzajúce osoby</translation>
    </message>
    <message>
        <source>People moving</source>
        <translation>Osoby, ktoré menia stredisko</translation>
    </message>
    <message>
        <source>New people</source>
        <translation>Nové osoby</translation>
    </message>
    <message>
        <source>People returning</source>
        <translation>Vracajúce sa osoby</translation>
    </message>
    <message>
        <source>Supervisors changed without a visible reason</source>
        <translation>Nadriadení zmenení bez viditeľného dôvodu</translation>
    </message>
    <message>
        <source>Leaving</source>
        <translation>Odchádzajú</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nové</translation>
    </message>
    <message>
        <source>Returning</source>
        <translation>Vracajú sa</translation>
    </message>
    <message>
        <source>Values:</source>
        <translation>Hodnoty:</translation>
    </message>
    <message>
        <source>Whose values these are</source>
        <translation>Komu tieto hodnoty patria</translation>
    </message>
    <message>
        <source>The file was refused. Nothing was published.</source>
        <translation>Súbor bol odmietnutý. Nič sa nezverejnilo.</translation>
    </message>
    <message numerus="yes">
        <source>The file was admitted and published: %Ln person(s).</source>
        <translation>
            <numerusform>Súbor bol prijatý a zverejnený: %Ln osoba.</numerusform>
            <numerusform>Súbor bol prijatý a zverejnený: %Ln osoby.</numerusform>
            <numerusform>Súbor bol prijatý a zverejnený: %Ln osôb.</numerusform>
        </translation>
    </message>
    <message>
        <source>Gate from %1 to %2</source>
        <translation>Brána z %1 do %2</translation>
    </message>
    <message>
        <source>The file was published nevertheless</source>
        <translation>Súbor sa napriek tomu zverejnil</translation>
    </message>
    <message>
        <source>Nothing was published</source>
        <translation>Nič sa nezverejnilo</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read: %2</source>
        <translation>„%1“ sa nedá prečítať: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read to its end: %2</source>
        <translation>„%1“ sa nedá prečítať do konca: %2</translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) becomes 0; %3</source>
        <translation>
            <numerusform>Hodnota poľa „%1“ sa u %Ln osoby (%2 %) mení na 0; %3</numerusform>
            <numerusform>Hodnota poľa „%1“ sa u %Ln osôb (%2 %) mení na 0; %3</numerusform>
            <numerusform>Hodnota poľa „%1“ sa u %Ln osôb (%2 %) mení na 0; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) is now less than %4 or more than %5 days; %3</source>
        <translation>
            <numerusform>Hodnota poľa „%1“ je u %Ln osoby (%2 %) teraz menšia ako %4 alebo väčšia ako %5 dní; %3</numerusform>
            <numerusform>Hodnota poľa „%1“ je u %Ln osôb (%2 %) teraz menšia ako %4 alebo väčšia ako %5 dní; %3</numerusform>
            <numerusform>Hodnota poľa „%1“ je u %Ln osôb (%2 %) teraz menšia ako %4 alebo väčšia ako %5 dní; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) is %4 times what it was; %3</source>
        <translation>
            <numerusform>Hodnota poľa „%1“ je u %Ln osoby (%2 %) %4-násobkom predchádzajúcej hodnoty; %3</numerusform>
            <numerusform>Hodnota poľa „%1“ je u %Ln osôb (%2 %) %4-násobkom predchádzajúcej hodnoty; %3</numerusform>
            <numerusform>Hodnota poľa „%1“ je u %Ln osôb (%2 %) %4-násobkom predchádzajúcej hodnoty; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) is misread: %4; %3</source>
        <translation>
            <numerusform>Hodnota poľa „%1“ sa u %Ln osoby (%2 %) prečíta nesprávne: %4; %3</numerusform>
            <numerusform>Hodnota poľa „%1“ sa u %Ln osôb (%2 %) prečíta nesprávne: %4; %3</numerusform>
            <numerusform>Hodnota poľa „%1“ sa u %Ln osôb (%2 %) prečíta nesprávne: %4; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) changes; %3</source>
        <translation>
            <numerusform>Hodnota poľa „%1“ sa u %Ln osoby (%2 %) mení; %3</numerusform>
            <numerusform>Hodnota poľa „%1“ sa u %Ln osôb (%2 %) mení; %3</numerusform>
            <numerusform>Hodnota poľa „%1“ sa u %Ln osôb (%2 %) mení; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) is emptied; %3</source>
        <translation>
            <numerusform>Hodnota poľa „%1“ sa u %Ln osoby (%2 %) vyprázdňuje; %3</numerusform>
            <numerusform>Hodnota poľa „%1“ sa u %Ln osôb (%2 %) vyprázdňuje; %3</numerusform>
            <numerusform>Hodnota poľa „%1“ sa u %Ln osôb (%2 %) vyprázdňuje; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) changes though the former one still works in the same place; %3</source>
        <translation>
            <numerusform>Hodnota poľa „%1“ sa u %Ln osoby (%2 %) mení, hoci predchádzajúci nadriadený ďalej pracuje na tom istom mieste; %3</numerusform>
            <numerusform>Hodnota poľa „%1“ sa u %Ln osôb (%2 %) mení, hoci predchádzajúci nadriadený ďalej pracuje na tom istom mieste; %3</numerusform>
            <numerusform>Hodnota poľa „%1“ sa u %Ln osôb (%2 %) mení, hoci predchádzajúci nadriadený ďalej pracuje na tom istom mieste; %3</numerusform>
        </translation>
    </message>
</context>
</TS>
