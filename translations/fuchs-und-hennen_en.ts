<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>BrettZugang</name>
    <message>
        <source>%1: leer</source>
        <translation>%1: empty</translation>
    </message>
    <message>
        <source>%1: Henne, aufgenommen</source>
        <translation>%1: hen, picked up</translation>
    </message>
    <message>
        <source>%1: Henne</source>
        <translation>%1: hen</translation>
    </message>
    <message>
        <source>%1: Fuchs, aufgenommen</source>
        <translation>%1: fox, picked up</translation>
    </message>
    <message>
        <source>%1: Fuchs</source>
        <translation>%1: fox</translation>
    </message>
    <message>
        <source>Ausgeschlossener Fuchs</source>
        <translation>Fox taken off the board</translation>
    </message>
    <message>
        <source>%1: leer, erlaubt</source>
        <translation>%1: empty, allowed</translation>
    </message>
</context>
<context>
    <name>Kern</name>
    <message>
        <source>Ja</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Nein</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Spielstärke %1</source>
        <translation>Strength %1</translation>
    </message>
    <message>
        <source>Meister</source>
        <translation>Master</translation>
    </message>
    <message>
        <source>PC spielt Fuchs</source>
        <translation>PC plays fox</translation>
    </message>
    <message>
        <source>PC spielt Hennen</source>
        <translation>PC plays hens</translation>
    </message>
    <message>
        <source>PC spielt Fuchs und Hennen</source>
        <translation>PC plays fox and hens</translation>
    </message>
    <message>
        <source>Zwei Spieler: Füchse am Zug</source>
        <translation>Two players: foxes to move</translation>
    </message>
    <message>
        <source>Zwei Spieler: Hennen am Zug</source>
        <translation>Two players: hens to move</translation>
    </message>
    <message>
        <source>SPielstärke 3</source>
        <translation>Strength 3</translation>
    </message>
    <message>
        <source>Die Hennen haben gewonnen!</source>
        <translation>The hens have won!</translation>
    </message>
    <message>
        <source>Der Fuchs hat gewonnen!</source>
        <translation>The fox has won!</translation>
    </message>
    <message>
        <source>Der Fuchs hat gewonnen</source>
        <translation>The fox has won</translation>
    </message>
    <message>
        <source>Remis: Die Hennen können ihr Ziel nicht erreichen.</source>
        <translation>Draw: the hens cannot reach their goal.</translation>
    </message>
    <message>
        <source>Punkte: %1</source>
        <translation>Points: %1</translation>
    </message>
    <message>
        <source>Die Dateien %1 konnten nicht gespeichert werden. Das Spiel geht ohne diese Daten weiter.</source>
        <translation>The files %1 could not be saved. The game goes on without this data.</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 und %2</source>
        <translation>%1 and %2</translation>
    </message>
    <message>
        <source>Die Datei „%1“ konnte nicht gespeichert werden. Das Spiel geht ohne diese Daten weiter.</source>
        <translation>The file “%1” could not be saved. The game goes on without this data.</translation>
    </message>
    <message>
        <source>Der Fuchs hätte springen können. Bis zum nächsten Sprung wird er vom Feld genommen.</source>
        <translation>The fox could have jumped. It is taken off the board until the next jump.</translation>
    </message>
    <message>
        <source>Der ausgeschlossene Fuchs wird wieder eingesetzt</source>
        <translation>The excluded fox is put back on the board</translation>
    </message>
    <message>
        <source>Die gespeicherte Partie ist beschädigt und wurde verworfen.</source>
        <translation>The saved game is damaged and was discarded.</translation>
    </message>
    <message>
        <source>Zurückgenommen: keine Bestenliste</source>
        <translation>Move taken back: no high score</translation>
    </message>
    <message>
        <source>%1 „%2“ ist eine symbolische Verknüpfung, die ein anderer Benutzer angelegt oder verändert haben kann; das Spiel schreibt nicht durch sie hindurch.</source>
        <translation>%1 “%2” is a symbolic link that another user may have made or changed; the game does not write through it.</translation>
    </message>
    <message>
        <source>Zeile 1: Das ist keine Partie von Fuchs und Hennen.</source>
        <translation>Line 1: This is not a game of Fuchs und Hennen.</translation>
    </message>
    <message>
        <source>Zeile %1: Unbekannte Angabe „%2“.</source>
        <translation>Line %1: Unknown header “%2”.</translation>
    </message>
    <message>
        <source>Zeile %1 ist nicht lesbar.</source>
        <translation>Line %1 cannot be read.</translation>
    </message>
    <message>
        <source>Zeile %1 ist abgeschnitten.</source>
        <translation>Line %1 is cut off.</translation>
    </message>
    <message>
        <source>Die Angabe „%1“ fehlt.</source>
        <translation>The header “%1” is missing.</translation>
    </message>
    <message>
        <source>Zeile %1: Dieser Zug ist nach den Regeln nicht möglich.</source>
        <translation>Line %1: The rules do not allow this move.</translation>
    </message>
    <message>
        <source>Zeile %1: Das Ergebnis passt nicht zu den Zügen.</source>
        <translation>Line %1: The result does not follow from the moves.</translation>
    </message>
    <message>
        <source>Die Datei ist zu groß für eine Partie.</source>
        <translation>The file is too large for a game.</translation>
    </message>
    <message>
        <source>Die Datei „%1“ kann nicht gelesen werden.</source>
        <translation>The file “%1” cannot be read.</translation>
    </message>
    <message>
        <source>Die Hennen gewinnen in %1 Zügen</source>
        <translation>The hens win in %1 moves</translation>
    </message>
    <message>
        <source>Die Füchse gewinnen in %1 Zügen</source>
        <translation>The foxes win in %1 moves</translation>
    </message>
    <message>
        <source>Die Hennen gewinnen mit diesem Zug</source>
        <translation>The hens win with this move</translation>
    </message>
    <message>
        <source>Die Füchse gewinnen mit diesem Zug</source>
        <translation>The foxes win with this move</translation>
    </message>
    <message>
        <source>Remis</source>
        <translation>Draw</translation>
    </message>
</context>
<context>
    <name>datenordner</name>
    <message>
        <source>%1 fehlt</source>
        <translation>%1 is missing</translation>
    </message>
    <message>
        <source>%1 ist kein Ordner</source>
        <translation>%1 is not a folder</translation>
    </message>
    <message>
        <source>%1 ist eine symbolische Verknüpfung, die ein anderer Benutzer angelegt oder verändert haben kann</source>
        <translation>%1 is a symbolic link that another user may have made or changed</translation>
    </message>
    <message>
        <source>%1 gehört einem anderen Benutzer und liegt in einem Ordner, in den andere schreiben dürfen</source>
        <translation>%1 belongs to another user and lies in a folder that others may write to</translation>
    </message>
    <message>
        <source>in den Ordner %1 dürfen andere Benutzer schreiben</source>
        <translation>other users may write to the folder %1</translation>
    </message>
    <message>
        <source>%1: zu viele symbolische Verknüpfungen</source>
        <translation>%1: too many symbolic links</translation>
    </message>
    <message>
        <source>Es gibt keinen Heimatordner (HOME): Fenstergröße, Tempo und Sprache werden nicht gespeichert.</source>
        <translation>There is no home folder (HOME): window size, pace and language are not saved.</translation>
    </message>
    <message>
        <source>Der Ordner für fenster.conf ist nicht nutzbar: %1. Fenstergröße, Tempo und Sprache werden nicht gespeichert.</source>
        <translation>The folder for fenster.conf cannot be used: %1. Window size, pace and language are not saved.</translation>
    </message>
    <message>
        <source>%1 ist keine gewöhnliche Datei; Fenstergröße, Tempo und Sprache werden nicht gespeichert.</source>
        <translation>%1 is not a regular file; window size, pace and language are not saved.</translation>
    </message>
    <message>
        <source>%1 ist größer als %2 KB und wird nicht gelesen; Fenstergröße, Tempo und Sprache beginnen neu.</source>
        <translation>%1 is larger than %2 KB and is not read; window size, pace and language start afresh.</translation>
    </message>
</context>
<context>
    <name>fuh::Ansage</name>
    <message>
        <source>Tipp: %1</source>
        <translation>Hint: %1</translation>
    </message>
    <message>
        <source> nach %1</source>
        <translation> to %1</translation>
    </message>
    <message>
        <source> springt über %1 nach %2</source>
        <translation> jumps over %1 to %2</translation>
    </message>
    <message>
        <source> und über %1 nach %2</source>
        <translation> and over %1 to %2</translation>
    </message>
    <message>
        <source>Fuchs %1</source>
        <translation>Fox %1</translation>
    </message>
    <message>
        <source>Henne %1</source>
        <translation>Hen %1</translation>
    </message>
</context>
<context>
    <name>fuh::BrettFenster</name>
    <message>
        <source>&amp;Spiel</source>
        <translation>&amp;Game</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Start</translation>
    </message>
    <message>
        <source>&amp;Neu</source>
        <translation>&amp;New</translation>
    </message>
    <message>
        <source>&amp;Tipp</source>
        <translation>&amp;Hint</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;Einstellungen</source>
        <translation>&amp;Settings</translation>
    </message>
    <message>
        <source>E&amp;rgebnisse</source>
        <translation>&amp;Results</translation>
    </message>
    <message>
        <source>&amp;Statistik</source>
        <translation>&amp;Statistics</translation>
    </message>
    <message>
        <source>Highscore &amp;Fuchs</source>
        <translation>High scores &amp;fox</translation>
    </message>
    <message>
        <source>Highscore &amp;Hennen</source>
        <translation>High scores &amp;hens</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;Info</source>
        <translation>&amp;About</translation>
    </message>
    <message>
        <source>Te&amp;mpo</source>
        <translation>&amp;Pace</translation>
    </message>
    <message>
        <source>&amp;schnell</source>
        <translation>&amp;fast</translation>
    </message>
    <message>
        <source>&amp;normal</source>
        <translation>&amp;normal</translation>
    </message>
    <message>
        <source>&amp;langsam</source>
        <translation>&amp;slow</translation>
    </message>
    <message>
        <source>Remis: Zugbegrenzung erreicht</source>
        <translation>Draw: move limit reached</translation>
    </message>
    <message>
        <source>S&amp;prache</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>Die letzte Partie fortsetzen?</source>
        <translation>Continue the last game?</translation>
    </message>
    <message>
        <source>Zug &amp;zurücknehmen</source>
        <translation>&amp;Undo move</translation>
    </message>
    <message>
        <source>Der Ordner für die gespeicherte Partie ist nicht nutzbar: %1. Das Spiel liest und schreibt dort nichts; eine laufende Partie wird beim Beenden nicht gespeichert.</source>
        <translation>The folder for the saved game cannot be used: %1. The game reads and writes nothing there; a running game is not kept when you quit.</translation>
    </message>
    <message>
        <source>Die gespeicherte Partie kann nicht entfernt werden: %1. Sie wird nicht noch einmal angeboten.</source>
        <translation>The saved game cannot be removed: %1. It will not be offered again.</translation>
    </message>
    <message>
        <source>Es gibt keinen Ordner für sie (kein Heimatordner)</source>
        <translation>there is no folder for it (no home folder)</translation>
    </message>
    <message>
        <source>Die laufende Partie kann nicht gespeichert werden: %1. Beim nächsten Start lässt sie sich dann nicht fortsetzen.</source>
        <translation>The running game cannot be saved: %1. It cannot be continued at the next start.</translation>
    </message>
    <message>
        <source>Trotzdem beenden</source>
        <translation>Quit anyway</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>&amp;Aussehen</source>
        <translation>&amp;Appearance</translation>
    </message>
    <message>
        <source>T&amp;on</source>
        <translation>Soun&amp;d</translation>
    </message>
    <message>
        <source>Partien von Fuchs und Hennen (*.fuh)</source>
        <translation>Games of Fuchs und Hennen (*.fuh)</translation>
    </message>
    <message>
        <source>Partie spei&amp;chern…</source>
        <translation>Sa&amp;ve Game…</translation>
    </message>
    <message>
        <source>Partie speichern</source>
        <translation>Save Game</translation>
    </message>
    <message>
        <source>Partie ö&amp;ffnen…</source>
        <translation>&amp;Open Game…</translation>
    </message>
    <message>
        <source>Partie öffnen</source>
        <translation>Open Game</translation>
    </message>
    <message>
        <source>Zug &amp;wiederholen</source>
        <translation>&amp;Redo Move</translation>
    </message>
    <message>
        <source>Zug&amp;liste</source>
        <translation>&amp;Move List</translation>
    </message>
    <message>
        <source>Bl&amp;ättern</source>
        <translation>&amp;Browse</translation>
    </message>
    <message>
        <source>Zum &amp;Anfang</source>
        <translation>To the &amp;Start</translation>
    </message>
    <message>
        <source>Einen Zug &amp;zurück</source>
        <translation>One Move &amp;Back</translation>
    </message>
    <message>
        <source>Einen Zug &amp;vor</source>
        <translation>One Move &amp;Forward</translation>
    </message>
    <message>
        <source>Zum &amp;Ende</source>
        <translation>To the &amp;End</translation>
    </message>
    <message>
        <source>Von hier w&amp;eiterspielen</source>
        <translation>Pla&amp;y On from Here</translation>
    </message>
    <message>
        <source>Partie gespeichert.</source>
        <translation>Game saved.</translation>
    </message>
    <message>
        <source>Fuchs %1 aufgenommen</source>
        <translation>Fox %1 picked up</translation>
    </message>
    <message>
        <source>Henne %1 aufgenommen</source>
        <translation>Hen %1 picked up</translation>
    </message>
    <message>
        <source>%1, kein Zug möglich</source>
        <translation>%1, no move possible</translation>
    </message>
    <message>
        <source>%1, erlaubt: %2</source>
        <translation>%1, allowed: %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>fuh::BrettFlaeche</name>
    <message>
        <source>Die Füchse sind am Zug.</source>
        <translation>The foxes are to move.</translation>
    </message>
    <message>
        <source>Die Hennen sind am Zug.</source>
        <translation>The hens are to move.</translation>
    </message>
    <message>
        <source>Lernmodus: Daten werden gespeichert !</source>
        <translation>Learning mode: saving data!</translation>
    </message>
    <message>
        <source>Sprung mit rechter Maustaste abschließen !</source>
        <translation>End the jump with the right mouse button!</translation>
    </message>
    <message>
        <source>Spielbrett</source>
        <translation>Game board</translation>
    </message>
    <message>
        <source>Ohne weiteren möglichen Sprung endet die Sprungfolge von selbst. Früher beenden: rechte Maustaste, Kontextmenütaste oder Umschalt+F10.</source>
        <translation>Without a further possible jump the chain of jumps ends by itself. To end it earlier: right mouse button, menu key or Shift+F10.</translation>
    </message>
</context>
<context>
    <name>fuh::EinstDialog</name>
    <message>
        <source>Einstellungen</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Spielstärke:</source>
        <translation>Strength:</translation>
    </message>
    <message>
        <source>Übernehmen</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Fuchs</source>
        <translation>Fox</translation>
    </message>
    <message>
        <source>Hennen</source>
        <translation>Hens</translation>
    </message>
    <message>
        <source>Fuchs und Hennen</source>
        <translation>Fox and hens</translation>
    </message>
    <message>
        <source>niemand (zwei Spieler)</source>
        <translation>nobody (two players)</translation>
    </message>
    <message>
        <source>1 leicht</source>
        <translation>1 easy</translation>
    </message>
    <message>
        <source>2 mittel</source>
        <translation>2 medium</translation>
    </message>
    <message>
        <source>3 stark</source>
        <translation>3 strong</translation>
    </message>
    <message>
        <source>4 Meister</source>
        <translation>4 Master</translation>
    </message>
    <message>
        <source>Lernmodus (ab Spielstärke 2)</source>
        <translation>Learning mode (from strength 2)</translation>
    </message>
    <message>
        <source>Einzelzugmodus</source>
        <translation>Single-move mode</translation>
    </message>
    <message>
        <source>Computer spielt:</source>
        <translation>Computer plays:</translation>
    </message>
    <message>
        <source>Die Einstellungen konnten nicht in „%1“ gespeichert werden. Sie gelten nur für das laufende Spiel.</source>
        <translation>The settings could not be saved in “%1”. They apply to the current game only.</translation>
    </message>
</context>
<context>
    <name>fuh::HighscoreFenster</name>
    <message>
        <source>Highscores Fuchs</source>
        <translation>High scores fox</translation>
    </message>
    <message>
        <source>Highscore Hennen</source>
        <translation>High scores hens</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Punkte</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Sieg</source>
        <translation>Won</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Abbruch</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Die Highscore-Liste „%1“ konnte nicht gespeichert werden.</source>
        <translation>The high-score list “%1” could not be saved.</translation>
    </message>
    <message>
        <source>Ihr Name für Platz %1</source>
        <translation>Your name for place %1</translation>
    </message>
    <message>
        <source>Neu in der Liste! Ihr &amp;Name:</source>
        <translation>New in the list! Your &amp;name:</translation>
    </message>
    <message>
        <source>Ihr Eintrag in der Highscore-Liste ist noch nicht gespeichert. Verwerfen?</source>
        <translation>Your entry in the high-score list has not been saved yet. Discard it?</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>&amp;Discard</translation>
    </message>
    <message>
        <source>&amp;Zurück zur Liste</source>
        <translation>&amp;Back to the list</translation>
    </message>
</context>
<context>
    <name>fuh::HilfeFenster</name>
    <message>
        <source>Hilfe</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Zurück</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Contents</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Hilfetext</source>
        <translation>Help text</translation>
    </message>
</context>
<context>
    <name>fuh::InfoWin</name>
    <message>
        <source>Info</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Fuchs und Hennen 2026</source>
        <translation>Fuchs und Hennen 2026</translation>
    </message>
    <message>
        <source>© 2026 Das Fuchs-und-Hennen-Team</source>
        <translation>© 2026 The Fuchs und Hennen team</translation>
    </message>
    <message>
        <source>Dank an Anna Gärtner und Paul Hofmann für ihre Geduld beim Testen</source>
        <translation>Thanks to Anna Gärtner and Paul Hofmann for their patience in testing</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Freie Software unter der GNU General Public License, Version 3 oder später (GPL-3.0-or-later)</source>
        <translation>Free software under the GNU General Public License, version 3 or later (GPL-3.0-or-later)</translation>
    </message>
    <message>
        <source>Neue Versionen, Informationen und Neuigkeiten:&lt;br&gt;&lt;a href=&quot;https://example.org/fuchs-und-hennen&quot; style=&quot;white-space: nowrap&quot;&gt;https://example.org/fuchs-und-hennen&lt;/a&gt;</source>
        <translation>New versions, information and news:&lt;br&gt;&lt;a href=&quot;https://example.org/fuchs-und-hennen&quot; style=&quot;white-space: nowrap&quot;&gt;https://example.org/fuchs-und-hennen&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
<context>
    <name>fuh::Lagefeld</name>
    <message>
        <source>Sie sind am Zug: Füchse</source>
        <translation>Your move: foxes</translation>
    </message>
    <message>
        <source>Sie sind am Zug: Hennen</source>
        <translation>Your move: hens</translation>
    </message>
    <message>
        <source>Der Computer zieht: Füchse</source>
        <translation>The computer moves: foxes</translation>
    </message>
    <message>
        <source>Der Computer zieht: Hennen</source>
        <translation>The computer moves: hens</translation>
    </message>
    <message>
        <source>Füchse am Zug</source>
        <translation>Foxes to move</translation>
    </message>
    <message>
        <source>Hennen am Zug</source>
        <translation>Hens to move</translation>
    </message>
    <message>
        <source>Der Computer spielt gegen sich selbst</source>
        <translation>The computer plays against itself</translation>
    </message>
    <message>
        <source>Zug %1 von %2</source>
        <translation>Move %1 of %2</translation>
    </message>
    <message>
        <source>Noch ein Zug bis zum Remis</source>
        <translation>One move left before the draw</translation>
    </message>
    <message>
        <source>Noch %1 Züge bis zum Remis</source>
        <translation>%1 moves left before the draw</translation>
    </message>
    <message>
        <source>Die Hennen besetzen alle %1 Zielfelder.</source>
        <translation>The hens occupy all %1 target points.</translation>
    </message>
    <message>
        <source>Weniger als %1 Hennen sind übrig; sie können das Ziel nicht mehr füllen.</source>
        <translation>Fewer than %1 hens are left; they can no longer fill the target.</translation>
    </message>
    <message>
        <source>Die Hennen können nicht mehr ziehen.</source>
        <translation>The hens cannot move any more.</translation>
    </message>
    <message>
        <source>Der letzte Fuchs auf dem Brett wäre ausgeschlossen worden.</source>
        <translation>The last fox on the board would have been taken off.</translation>
    </message>
    <message>
        <source>Die Füchse können nicht mehr ziehen.</source>
        <translation>The foxes cannot move any more.</translation>
    </message>
    <message>
        <source>Die Zugbegrenzung von %1 Zügen ist erreicht.</source>
        <translation>The move limit of %1 moves has been reached.</translation>
    </message>
    <message>
        <source>Spielende: %1</source>
        <translation>Game over: %1</translation>
    </message>
    <message>
        <source>Spiel → Neu (Strg+N) beginnt eine Partie.</source>
        <translation>Game → New (Ctrl+N) starts a game.</translation>
    </message>
    <message>
        <source>Lernmodus</source>
        <translation>Learning mode</translation>
    </message>
    <message>
        <source>Einzelzug: Der Computer antwortet nicht</source>
        <translation>Single move: the computer does not reply</translation>
    </message>
</context>
<context>
    <name>fuh::StatForm</name>
    <message>
        <source>Statistik</source>
        <translation>Statistics</translation>
    </message>
    <message>
        <source>Spiele gesamt:</source>
        <translation>Games in total:</translation>
    </message>
    <message>
        <source>abgebrochene:</source>
        <translation>abandoned:</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Lernmodus</source>
        <translation>Learning mode</translation>
    </message>
    <message>
        <source>Spiele im Lernmodus:</source>
        <translation>Games in learning mode:</translation>
    </message>
    <message>
        <source>Bewertete Züge:</source>
        <translation>Rated moves:</translation>
    </message>
    <message>
        <source>Neue Züge aus letztem Spiel:</source>
        <translation>New moves from the last game:</translation>
    </message>
    <message>
        <source>Siege</source>
        <translation>Wins</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Player</translation>
    </message>
    <message>
        <source>Stärke</source>
        <translation>Strength</translation>
    </message>
    <message>
        <source>Hennen</source>
        <translation>Hens</translation>
    </message>
    <message>
        <source>Fuchs</source>
        <translation>Fox</translation>
    </message>
    <message>
        <source>Gesamt</source>
        <translation>Total</translation>
    </message>
</context>
<context>
    <name>fuh::ZuglistePanel</name>
    <message>
        <source>Anfang</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Zugliste</source>
        <translation>Move List</translation>
    </message>
    <message>
        <source>Die Züge der Partie; die Auswahl zeigt das Brett nach diesem Zug.</source>
        <translation>The moves of the game; the selection shows the board after that move.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Der Datenordner %1 ist nicht nutzbar: %2</source>
        <translation>The data folder %1 cannot be used: %2</translation>
    </message>
</context>
</TS>
