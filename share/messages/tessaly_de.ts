<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en" language="de">
<context>
    <name></name>
    <message id="0">
        <source></source>
        <extracomment>Short name of the language in the address of the help pages</extracomment>
        <translation>DE</translation>
    </message>
    <message id="235">
        <source></source>
        <extracomment>Button</extracomment>
        <translation>OK</translation>
    </message>
    <message id="380">
        <source></source>
        <extracomment>Tooltip of the main panel</extracomment>
        <translation>Objekte suchen</translation>
    </message>
    <message id="381">
        <source></source>
        <extracomment>Tooltip of the main panel and of dialogs</extracomment>
        <translation>Allgemeine Einstellungen</translation>
    </message>
    <message id="464">
        <source></source>
        <extracomment>Column of the system manager's details</extracomment>
        <translation>Eigenschaft</translation>
    </message>
    <message id="975">
        <source></source>
        <extracomment>Tool group of a system</extracomment>
        <translation>Zeichnen</translation>
    </message>
    <message id="1124">
        <source></source>
        <extracomment>Tool group of a system</extracomment>
        <translation>Bearbeiten</translation>
    </message>
    <message id="1216">
        <source></source>
        <extracomment>Column of the system manager: what a system is for</extracomment>
        <translation>Funktion</translation>
    </message>
    <message id="1253">
        <source></source>
        <extracomment>Column of the system manager</extracomment>
        <translation>System</translation>
    </message>
    <message id="1257">
        <source></source>
        <extracomment>Column of the system manager's details</extracomment>
        <translation>Wert</translation>
    </message>
    <message id="1264">
        <source></source>
        <extracomment>Command of a system</extracomment>
        <translation>System hinzufügen</translation>
    </message>
    <message id="1379">
        <source></source>
        <extracomment>Command of a repository item</extracomment>
        <translation>Umbenennen</translation>
    </message>
    <message id="1969">
        <source></source>
        <extracomment>Column of the system manager</extracomment>
        <translation>Farbe</translation>
    </message>
    <message id="2358">
        <source></source>
        <extracomment>Tooltip of the system manager</extracomment>
        <translation>Gewählte Systeme löschen</translation>
    </message>
    <message id="2780">
        <source></source>
        <extracomment>Root of the system tree</extracomment>
        <translation>Systeme</translation>
    </message>
    <message id="2781">
        <source></source>
        <extracomment>Tooltip of the main panel</extracomment>
        <translation>Aktualisieren</translation>
    </message>
    <message id="2910">
        <source></source>
        <extracomment>Command of a system and of a repository item</extracomment>
        <translation>Bearbeiten</translation>
    </message>
    <message id="3311">
        <source></source>
        <extracomment>Tooltip of the main panel and the system manager</extracomment>
        <translation>System in der Zeichnung wählen</translation>
    </message>
    <message id="4037">
        <source></source>
        <extracomment>Command of a system; tooltip of the main panel</extracomment>
        <translation>System löschen</translation>
    </message>
    <message id="4378">
        <source></source>
        <extracomment>Command of a repository item; tooltip of the main panel</extracomment>
        <translation>Hinzufügen</translation>
    </message>
    <message id="4994">
        <source></source>
        <extracomment>Column of the system manager: a count</extracomment>
        <translation>Abschnitte</translation>
    </message>
    <message id="5082">
        <source></source>
        <extracomment>Column of the system manager: a count</extracomment>
        <translation>Polygone</translation>
    </message>
    <message id="5247">
        <source></source>
        <extracomment>Prompt on the command line</extracomment>
        <translation>
Die Systeme sind markiert. Weiter mit Enter: </translation>
    </message>
    <message id="5248">
        <source></source>
        <extracomment>Tooltip of the system manager</extracomment>
        <translation>Auf gewählte Systeme zoomen</translation>
    </message>
    <message id="5249">
        <source></source>
        <extracomment>Tooltip of the system manager</extracomment>
        <translation>Gewählte Systeme markieren</translation>
    </message>
    <message id="5362">
        <source></source>
        <extracomment>Tooltip of the main panel</extracomment>
        <translation>Temporäre Polygone löschen</translation>
    </message>
    <message id="5368">
        <source></source>
        <extracomment>Question</extracomment>
        <translation>Alle temporären Polygone des aktiven Systems löschen?</translation>
    </message>
    <message id="5376">
        <source></source>
        <extracomment>Tool group of a system</extracomment>
        <translation>Werkzeuge</translation>
    </message>
    <message id="5764">
        <source></source>
        <extracomment>Root of the disk and of the net repository tree</extracomment>
        <translation>Ablage</translation>
    </message>
    <message id="6043">
        <source></source>
        <extracomment>Command of a repository item</extracomment>
        <translation>Löschen</translation>
    </message>
    <message id="6065">
        <source></source>
        <extracomment>Command of a repository item</extracomment>
        <translation>Ausführen</translation>
    </message>
    <message id="6066">
        <source></source>
        <extracomment>Command of a repository item</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message id="6072">
        <source></source>
        <extracomment>Command of a repository item</extracomment>
        <translation>Senden an ...</translation>
    </message>
    <message id="6218">
        <source></source>
        <extracomment>Command of a system</extracomment>
        <translation>System ein- oder ausblenden</translation>
    </message>
    <message id="6356">
        <source></source>
        <extracomment>Entry of the settings menu</extracomment>
        <translation>Dialogpositionen zurücksetzen</translation>
    </message>
    <message id="6534">
        <source></source>
        <extracomment>Tooltip of the main panel</extracomment>
        <translation>Kataloge</translation>
    </message>
    <message id="7066">
        <source></source>
        <extracomment>Entry of the settings menu</extracomment>
        <translation>Topologiekonfiguration ...</translation>
    </message>
    <message id="7221">
        <source></source>
        <extracomment>Label of the system manager</extracomment>
        <translation>Details:</translation>
    </message>
    <message id="7246">
        <source></source>
        <extracomment>Tooltip of a dialog's caption button</extracomment>
        <translation>Einrollen</translation>
    </message>
    <message id="7247">
        <source></source>
        <extracomment>Tooltip of a dialog's caption button</extracomment>
        <translation>Ausrollen</translation>
    </message>
    <message id="7533">
        <source></source>
        <extracomment>Filter button of the log view, with a count behind it</extracomment>
        <translation>Fehler</translation>
    </message>
    <message id="7534">
        <source></source>
        <extracomment>Filter button of the log view, with a count behind it</extracomment>
        <translation>Informationen</translation>
    </message>
    <message id="7535">
        <source></source>
        <extracomment>Filter button of the log view, with a count behind it</extracomment>
        <translation>Warnungen</translation>
    </message>
    <message id="7623">
        <source></source>
        <extracomment>Question of the system manager</extracomment>
        <translation>Die gewählten Systeme mit allen Objekten löschen?</translation>
    </message>
    <message id="7690">
        <source></source>
        <extracomment>Label of the main panel's system selector</extracomment>
        <translation>System:</translation>
    </message>
    <message id="8036">
        <source></source>
        <extracomment>Entry of the settings menu</extracomment>
        <translation>Info ...</translation>
    </message>
    <message id="8038">
        <source></source>
        <extracomment>Tooltip of the main panel</extracomment>
        <translation>System bearbeiten</translation>
    </message>
    <message id="8039">
        <source></source>
        <extracomment>Tooltip of the main panel and the system manager</extracomment>
        <translation>System ein- oder ausschalten</translation>
    </message>
    <message id="8040">
        <source></source>
        <extracomment>Tooltip of the main panel</extracomment>
        <translation>Meldungen</translation>
    </message>
    <message id="8041">
        <source></source>
        <extracomment>Tooltip of the main panel</extracomment>
        <translation>Einstellungen</translation>
    </message>
    <message id="8042">
        <source></source>
        <extracomment>Tooltip of the main panel</extracomment>
        <translation>Informationswerkzeuge</translation>
    </message>
    <message id="8690">
        <source></source>
        <extracomment>Entry of the catalogue menu</extracomment>
        <translation>Regeleditor ...</translation>
    </message>
    <message id="8948">
        <source></source>
        <extracomment>Entry of the settings menu</extracomment>
        <translation>Teilsysteme in Auswahl einbeziehen</translation>
    </message>
    <message id="9056">
        <source></source>
        <extracomment>Command of a repository item</extracomment>
        <translation>Als Standard setzen</translation>
    </message>
    <message id="9134">
        <source></source>
        <extracomment>Title of the log view</extracomment>
        <translation>Meldungen</translation>
    </message>
    <message id="9571">
        <source></source>
        <extracomment>Tool group of a system</extracomment>
        <translation>Verwaltung</translation>
    </message>
    <message id="10276">
        <source></source>
        <extracomment>Entry of the settings menu</extracomment>
        <translation>Ablagekonfiguration ...</translation>
    </message>
    <message id="10299">
        <source></source>
        <extracomment>Heading of the memory report</extracomment>
        <translation>Speicher in MiB</translation>
    </message>
    <message id="10300">
        <source></source>
        <extracomment>Memory report, with a number behind it</extracomment>
        <translation>Verfügbar</translation>
    </message>
    <message id="10301">
        <source></source>
        <extracomment>Memory report, with a number behind it</extracomment>
        <translation>Belegt</translation>
    </message>
    <message id="10530">
        <source></source>
        <extracomment>Tooltip at the cursor</extracomment>
        <translation>Objekt des Systems wählen</translation>
    </message>
    <message id="10803">
        <source></source>
        <extracomment>Alert of the system manager</extracomment>
        <translation>Bitte genau ein System wählen.</translation>
    </message>
    <message id="10804">
        <source></source>
        <extracomment>Title of the system manager; entry of the information menu</extracomment>
        <translation>Systemverwaltung</translation>
    </message>
    <message id="10805">
        <source></source>
        <extracomment>Statistic of a network: a count</extracomment>
        <translation>Abschnitte</translation>
    </message>
    <message id="10806">
        <source></source>
        <extracomment>Statistic of a network: a count</extracomment>
        <translation>Knoten</translation>
    </message>
    <message id="10807">
        <source></source>
        <extracomment>Statistic of a network: nodes with one section</extracomment>
        <translation>Endknoten</translation>
    </message>
    <message id="10808">
        <source></source>
        <extracomment>Statistic of a network: nodes with two sections</extracomment>
        <translation>Durchgangsknoten</translation>
    </message>
    <message id="10809">
        <source></source>
        <extracomment>Statistic of a network: nodes with more sections</extracomment>
        <translation>Verzweigungsknoten</translation>
    </message>
    <message id="10810">
        <source></source>
        <extracomment>Statistic of a network: nodes without a section</extracomment>
        <translation>Isolierte Knoten</translation>
    </message>
    <message id="10811">
        <source></source>
        <extracomment>Statistic of a network: a count</extracomment>
        <translation>Unabhängige Maschen</translation>
    </message>
    <message id="10812">
        <source></source>
        <extracomment>Statistic of a network: a count</extracomment>
        <translation>Zusammenhängende Teile</translation>
    </message>
    <message id="10813">
        <source></source>
        <extracomment>Statistic of a network: drawing units</extracomment>
        <translation>Gesamtlänge</translation>
    </message>
    <message id="10814">
        <source></source>
        <extracomment>Statistic of an alignment system: a count</extracomment>
        <translation>Achsen</translation>
    </message>
    <message id="10815">
        <source></source>
        <extracomment>Statistic of an alignment system: a count</extracomment>
        <translation>Hauptpunkte</translation>
    </message>
    <message id="10816">
        <source></source>
        <extracomment>Statistic of an alignment system: a count</extracomment>
        <translation>Längsschnitte</translation>
    </message>
    <message id="10817">
        <source></source>
        <extracomment>Statistic of an alignment system: a count</extracomment>
        <translation>Querprofile</translation>
    </message>
    <message id="10818">
        <source></source>
        <extracomment>Statistic of a polygon system: a count</extracomment>
        <translation>Polygone</translation>
    </message>
    <message id="10819">
        <source></source>
        <extracomment>Statistic of a polygon system: a count</extracomment>
        <translation>Polygonknoten</translation>
    </message>
    <message id="10820">
        <source></source>
        <extracomment>Statistic of a polygon system: square drawing units</extracomment>
        <translation>Gesamtfläche</translation>
    </message>
    <message id="10821">
        <source></source>
        <extracomment>Alert of the system manager</extracomment>
        <translation>Das Objekt gehört zu keinem System.</translation>
    </message>
    <message id="10831">
        <source></source>
        <extracomment>Tool group of a system</extracomment>
        <translation>Schnellbefehle</translation>
    </message>
    <message id="11212">
        <source></source>
        <extracomment>Entry of the settings menu</extracomment>
        <translation>Alle nichtmodalen Dialoge entfernen</translation>
    </message>
    <message id="50005">
        <source></source>
        <extracomment>Question before dialogs are reset</extracomment>
        <translation>Sind Sie sicher?</translation>
    </message>
    <message id="50156">
        <source></source>
        <extracomment>Tooltip of the main panel and of dialogs</extracomment>
        <translation>Hilfe</translation>
    </message>
    <message id="55002">
        <source></source>
        <extracomment>Tooltip of the system manager</extracomment>
        <translation>Gewähltes System aktivieren</translation>
    </message>
    <message id="55006">
        <source></source>
        <extracomment>Tool group of a system</extracomment>
        <translation>Daten setzen</translation>
    </message>
    <message id="55023">
        <source></source>
        <extracomment>Title of the main panel</extracomment>
        <translation>Arbeitsbereich</translation>
    </message>
    <message id="61014">
        <source></source>
        <extracomment>Column of the system manager: a count</extracomment>
        <translation>Knoten</translation>
    </message>
    <message id="900001">
        <source></source>
        <extracomment>Name of a module</extracomment>
        <translation>Netz</translation>
    </message>
    <message id="900002">
        <source></source>
        <extracomment>Name of a module</extracomment>
        <translation>Paneele</translation>
    </message>
    <message id="900200">
        <source></source>
        <extracomment>Name of a topology</extracomment>
        <translation>Linien</translation>
    </message>
    <message id="900201">
        <source></source>
        <extracomment>Name of a topology</extracomment>
        <translation>Polygone</translation>
    </message>
    <message id="900202">
        <source></source>
        <extracomment>Name of a topology</extracomment>
        <translation>Punkte</translation>
    </message>
    <message id="900203">
        <source></source>
        <extracomment>Name of a topology</extracomment>
        <translation>Schemata</translation>
    </message>
    <message id="900220">
        <source></source>
        <extracomment>Kind of entity</extracomment>
        <translation>Knoten</translation>
    </message>
    <message id="900221">
        <source></source>
        <extracomment>Kind of entity</extracomment>
        <translation>Abschnitt</translation>
    </message>
    <message id="900222">
        <source></source>
        <extracomment>Kind of entity</extracomment>
        <translation>Polygon</translation>
    </message>
    <message id="900223">
        <source></source>
        <extracomment>Kind of entity</extracomment>
        <translation>Polygonknoten</translation>
    </message>
    <message id="900224">
        <source></source>
        <extracomment>Kind of entity</extracomment>
        <translation>Punkt</translation>
    </message>
    <message id="900240">
        <source></source>
        <extracomment>What a line system is for</extracomment>
        <translation>Wasserversorgung</translation>
    </message>
    <message id="900241">
        <source></source>
        <extracomment>What a line system is for</extracomment>
        <translation>Schmutzwasser</translation>
    </message>
    <message id="900242">
        <source></source>
        <extracomment>What a line system is for</extracomment>
        <translation>Regenwasser</translation>
    </message>
    <message id="900243">
        <source></source>
        <extracomment>What a line system is for</extracomment>
        <translation>Gas</translation>
    </message>
    <message id="900244">
        <source></source>
        <extracomment>What a line system is for</extracomment>
        <translation>Fernwärme</translation>
    </message>
    <message id="900245">
        <source></source>
        <extracomment>What a line system is for</extracomment>
        <translation>Strom</translation>
    </message>
    <message id="900246">
        <source></source>
        <extracomment>What a line system is for</extracomment>
        <translation>Telekommunikation</translation>
    </message>
    <message id="900247">
        <source></source>
        <extracomment>What a line system is for</extracomment>
        <translation>Achse</translation>
    </message>
    <message id="900250">
        <source></source>
        <extracomment>What a scheme is for</extracomment>
        <translation>Montageschema</translation>
    </message>
    <message id="900300">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Es gibt keine Zeichnung.</translation>
    </message>
    <message id="900301">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Ein System braucht einen Namen.</translation>
    </message>
    <message id="900302">
        <source></source>
        <extracomment>Reason, with the name of the other system</extracomment>
        <translation>Die Zeichnung hat bereits ein System „%s“.</translation>
    </message>
    <message id="900303">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Die Konfiguration hat keine Topologie %d.</translation>
    </message>
    <message id="900304">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Die Topologie hat keine Funktion %d.</translation>
    </message>
    <message id="900101">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>Netz einlesen</translation>
    </message>
    <message id="900102">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>erzeugt Systeme aus der Datei eines Wasser- (EPANET) oder Kanalnetzes (SWMM) oder aus Punkten, Linien und Flächen einer anderen Datei</translation>
    </message>
    <message id="900103">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>Netzstatistik</translation>
    </message>
    <message id="900104">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>nennt Anzahlen, Längen, Ausdehnung und zusammenhängende Teile jedes Netzes</translation>
    </message>
    <message id="900105">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>Netz prüfen</translation>
    </message>
    <message id="900106">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>listet auf, was an jedem Netz nicht stimmt</translation>
    </message>
    <message id="900107">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>Systeme auflisten</translation>
    </message>
    <message id="900108">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>listet die Systeme der Zeichnung auf</translation>
    </message>
    <message id="900109">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>System aktivieren</translation>
    </message>
    <message id="900110">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>macht ein System zum aktiven</translation>
    </message>
    <message id="900120">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>%s Flächen</translation>
    </message>
    <message id="900130">
        <source></source>
        <extracomment>Family of configurations</extracomment>
        <translation>Abfragen</translation>
    </message>
    <message id="900131">
        <source></source>
        <extracomment>Family of configurations</extracomment>
        <translation>Themen</translation>
    </message>
    <message id="900132">
        <source></source>
        <extracomment>Family of configurations</extracomment>
        <translation>Beschriftungen</translation>
    </message>
    <message id="900133">
        <source></source>
        <extracomment>Family of configurations</extracomment>
        <translation>Längsschnitte</translation>
    </message>
    <message id="900310">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Eine Konfiguration braucht einen Namen.</translation>
    </message>
    <message id="900311">
        <source></source>
        <extracomment>Reason; with the name</extracomment>
        <translation>Es gibt eine andere Konfiguration namens &quot;%s&quot;.</translation>
    </message>
    <message id="900312">
        <source></source>
        <extracomment>Reason; with the name</extracomment>
        <translation>&quot;%s&quot; gibt es dort schon.</translation>
    </message>
    <message id="900313">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Die Konfiguration gibt es nicht mehr.</translation>
    </message>
    <message id="900314">
        <source></source>
        <extracomment>Reason; with the name and why</extracomment>
        <translation>&quot;%s&quot; konnte nicht geschrieben werden: %s</translation>
    </message>
    <message id="900315">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Die Zeichnung ist in Arbeit und kann jetzt nicht geändert werden.</translation>
    </message>
    <message id="900316">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Nur Konfigurationen eines Systems können Standard sein.</translation>
    </message>
    <message id="900400">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Name</translation>
    </message>
    <message id="900401">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Objekte</translation>
    </message>
    <message id="900402">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Erfüllte Bedingungen</translation>
    </message>
    <message id="900403">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Bedingung %d (Attribut, Operator, Wert; - entfernt)</translation>
    </message>
    <message id="900404">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>&quot;%s&quot; ist keine Bedingung. Schreiben Sie ein Attribut, eines von = &lt;&gt; &lt; &lt;= &gt; &gt;= contains empty und einen Wert.</translation>
    </message>
    <message id="900405">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Attribut</translation>
    </message>
    <message id="900406">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Hinweis: Kein solches Objekt von %s hat ein Attribut &quot;%s&quot;.</translation>
    </message>
    <message id="900407">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Klassen</translation>
    </message>
    <message id="900408">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Anzahl der Klassen</translation>
    </message>
    <message id="900409">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Klassengrenzen, mit Leerzeichen getrennt (- für berechnete)</translation>
    </message>
    <message id="900410">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Farben von 1 bis 255, mit Leerzeichen getrennt (- für die üblichen)</translation>
    </message>
    <message id="900411">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>&quot;%s&quot; ist keine Liste von Zahlen.</translation>
    </message>
    <message id="900412">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Text mit Attributen in Klammern</translation>
    </message>
    <message id="900413">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Texthöhe (0: wie in der Ansicht)</translation>
    </message>
    <message id="900414">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>&quot;%s&quot; ist keine Texthöhe.</translation>
    </message>
    <message id="900415">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Von Knoten (- um jedes Mal gefragt zu werden)</translation>
    </message>
    <message id="900416">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Bis Knoten (- um jedes Mal gefragt zu werden)</translation>
    </message>
    <message id="900417">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Attribut der Höhe</translation>
    </message>
    <message id="900418">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Attribut der Tiefe (- für keines)</translation>
    </message>
    <message id="900419">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>&quot;%s&quot; ist keines von %s.</translation>
    </message>
    <message id="900420">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Das ergibt keinen Sinn: %s.</translation>
    </message>
    <message id="900421">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s wurde hinzugefügt.</translation>
    </message>
    <message id="900422">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s wurde geändert.</translation>
    </message>
    <message id="900423">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s wurde gelöscht.</translation>
    </message>
    <message id="900425">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s wurde gesendet.</translation>
    </message>
    <message id="900426">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s ist jetzt der Standard.</translation>
    </message>
    <message id="900427">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>%s löschen</translation>
    </message>
    <message id="900428">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>%s gibt es dort schon. Ersetzen</translation>
    </message>
    <message id="900429">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Senden an Platte, Netz oder ein System</translation>
    </message>
    <message id="900430">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>&quot;%s&quot; ist weder Platte noch Netz noch ein System der Zeichnung.</translation>
    </message>
    <message id="900431">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Es gibt keine Ablage im Netz. Die Einstellung NET_REPOSITORY nennt ihren Ordner.</translation>
    </message>
    <message id="900432">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Kein System ist aktiv. SYSTEM_ACTIVATE aktiviert eines.</translation>
    </message>
    <message id="900433">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Es gibt keine Konfiguration &quot;%s&quot;.</translation>
    </message>
    <message id="900434">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s hat keine Objekte dieser Art.</translation>
    </message>
    <message id="900435">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s: %u Objekte von %s sind ausgewählt.</translation>
    </message>
    <message id="900436">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s, %s nach %s: %u Objekte</translation>
    </message>
    <message id="900437">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>kein Wert</translation>
    </message>
    <message id="900438">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s: %u Objekte haben die Farbe ihres Layers.</translation>
    </message>
    <message id="900439">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s: %d Beschriftungen in %s, %u ältere entfernt.</translation>
    </message>
    <message id="900440">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s hat keinen Knoten &quot;%s&quot;.</translation>
    </message>
    <message id="900441">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Von %s führt kein Weg nach %s.</translation>
    </message>
    <message id="900442">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s, %s: %s bis %s, Länge %s</translation>
    </message>
    <message id="900443">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Es wurde nichts abgelegt, was hierher gehört.</translation>
    </message>
    <message id="900445">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Name des Systems</translation>
    </message>
    <message id="900446">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Art des Systems</translation>
    </message>
    <message id="900447">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Wofür es ist</translation>
    </message>
    <message id="900449">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Die Zeichnung hat kein System &quot;%s&quot;. SYSTEM_LIST zeigt sie.</translation>
    </message>
    <message id="900450">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s ist das aktive System.</translation>
    </message>
    <message id="900451">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s wird gezeigt.</translation>
    </message>
    <message id="900452">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s ist verborgen.</translation>
    </message>
    <message id="900453">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s gibt es dort schon mit demselben Inhalt.</translation>
    </message>
    <message id="900460">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Ja</translation>
    </message>
    <message id="900461">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Nein</translation>
    </message>
    <message id="900462">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Alles</translation>
    </message>
    <message id="900463">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Alle</translation>
    </message>
    <message id="900464">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Eine</translation>
    </message>
    <message id="900465">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Werte</translation>
    </message>
    <message id="900466">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Bereiche</translation>
    </message>
    <message id="900467">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Layer</translation>
    </message>
    <message id="900468">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Platte</translation>
    </message>
    <message id="900469">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Netz</translation>
    </message>
    <message id="900510">
        <source></source>
        <extracomment>Panel; also the name of its tree&#x27;s root</extracomment>
        <translation>Systeme</translation>
    </message>
    <message id="900511">
        <source></source>
        <extracomment>Panel; also the name of its tree&#x27;s root</extracomment>
        <translation>Plattenablage</translation>
    </message>
    <message id="900512">
        <source></source>
        <extracomment>Panel; also the name of its tree&#x27;s root</extracomment>
        <translation>Netzablage</translation>
    </message>
    <message id="900513">
        <source></source>
        <extracomment>In a tree; with the name of the default configuration</extracomment>
        <translation>%s (Standard)</translation>
    </message>
    <message id="900514">
        <source></source>
        <extracomment>In a tree; with the name of the active system</extracomment>
        <translation>%s (aktiv)</translation>
    </message>
    <message id="900515">
        <source></source>
        <extracomment>In a tree; with the name of a system</extracomment>
        <translation>%s (ausgeblendet)</translation>
    </message>
    <message id="900520">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Pfad (wie system/NAME/..., disk/..., net/...): </translation>
    </message>
    <message id="900521">
        <source></source>
        <extracomment>Reason; with what was asked for, and where it was looked for</extracomment>
        <translation>Es gibt kein &quot;%s&quot; in &quot;%s&quot;.</translation>
    </message>
    <message id="900522">
        <source></source>
        <extracomment>With the names of nodes</extracomment>
        <translation>Es gibt: %s</translation>
    </message>
    <message id="900523">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Darunter liegt nichts.</translation>
    </message>
    <message id="900524">
        <source></source>
        <extracomment>With a node of a tree</extracomment>
        <translation>&quot;%s&quot; hat keine Befehle.</translation>
    </message>
    <message id="900525">
        <source></source>
        <extracomment>In a list of templates; with the kind of configurations</extracomment>
        <translation>&lt;- Konfigurationen [%s]</translation>
    </message>
    <message id="900526">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Dafür gibt es keine Vorlage.</translation>
    </message>
    <message id="900527">
        <source></source>
        <extracomment>In a list of templates; with topology and function</extracomment>
        <translation>System: %s, %s</translation>
    </message>
    <message id="900590">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Baumvorlagen</translation>
    </message>
    <message id="900591">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>gibt die Vorlagen der Bäume der Systeme, der Platte und des Netzes aus</translation>
    </message>
    <message id="900592">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Baummenü</translation>
    </message>
    <message id="900593">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>gibt das Menü eines Knotens aus, der durch seinen Pfad gegeben ist</translation>
    </message>
    <message id="900594">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Bäume</translation>
    </message>
    <message id="900595">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>gibt aus, was die Bäume der Systeme, der Platte und des Netzes zeigen</translation>
    </message>
    <message id="900540">
        <source></source>
        <extracomment>Title of a dialog; command</extracomment>
        <translation>Suchen</translation>
    </message>
    <message id="900541">
        <source></source>
        <extracomment>Label in the find dialog, with its letter</extracomment>
        <translation>Suche &amp;nach:</translation>
    </message>
    <message id="900542">
        <source></source>
        <extracomment>Label in the find dialog, with its letter</extracomment>
        <translation>&amp;System:</translation>
    </message>
    <message id="900543">
        <source></source>
        <extracomment>Label in the find dialog, with its letter</extracomment>
        <translation>&amp;Wo:</translation>
    </message>
    <message id="900544">
        <source></source>
        <extracomment>Button of the find dialog</extracomment>
        <translation>S&amp;uchen</translation>
    </message>
    <message id="900545">
        <source></source>
        <extracomment>Choice in the find dialog</extracomment>
        <translation>Alle Systeme</translation>
    </message>
    <message id="900546">
        <source></source>
        <extracomment>Choice in the find dialog</extracomment>
        <translation>Überall</translation>
    </message>
    <message id="900547">
        <source></source>
        <extracomment>Choice in the find dialog; a property</extracomment>
        <translation>Name</translation>
    </message>
    <message id="900548">
        <source></source>
        <extracomment>Choice in the find dialog; a property</extracomment>
        <translation>Art</translation>
    </message>
    <message id="900549">
        <source></source>
        <extracomment>Choice in the find dialog</extracomment>
        <translation>Attribute</translation>
    </message>
    <message id="900550">
        <source></source>
        <extracomment>Result; with a count</extracomment>
        <translation>%d gefunden</translation>
    </message>
    <message id="900551">
        <source></source>
        <extracomment>Result; with a count, and how many of them are shown</extracomment>
        <translation>%d gefunden, %d gezeigt</translation>
    </message>
    <message id="900552">
        <source></source>
        <extracomment>Result</extracomment>
        <translation>Nichts gefunden</translation>
    </message>
    <message id="900553">
        <source></source>
        <extracomment>Column</extracomment>
        <translation>Objekt</translation>
    </message>
    <message id="900554">
        <source></source>
        <extracomment>Column: the text that was met</extracomment>
        <translation>Gefunden in</translation>
    </message>
    <message id="900555">
        <source></source>
        <extracomment>Button of the find dialog</extracomment>
        <translation>&amp;Zeigen</translation>
    </message>
    <message id="900556">
        <source></source>
        <extracomment>Button of the find dialog</extracomment>
        <translation>&amp;Eigenschaften</translation>
    </message>
    <message id="900557">
        <source></source>
        <extracomment>Result</extracomment>
        <translation>Es ist nicht mehr da</translation>
    </message>
    <message id="900558">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Suche nach: </translation>
    </message>
    <message id="900559">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>System (alle): </translation>
    </message>
    <message id="900560">
        <source></source>
        <extracomment>Prompt; with the choices</extracomment>
        <translation>Wo (%s): </translation>
    </message>
    <message id="900561">
        <source></source>
        <extracomment>Line of a result: kind, name, system, where</extracomment>
        <translation>%s %s (%s): %s</translation>
    </message>
    <message id="900562">
        <source></source>
        <extracomment>Reason; with a name</extracomment>
        <translation>Es gibt kein System &quot;%s&quot;.</translation>
    </message>
    <message id="900563">
        <source></source>
        <extracomment>Reason; with what was typed and the choices</extracomment>
        <translation>&quot;%s&quot; ist nichts von: %s</translation>
    </message>
    <message id="900570">
        <source></source>
        <extracomment>Title of a dialog; command</extracomment>
        <translation>Eigenschaften</translation>
    </message>
    <message id="900571">
        <source></source>
        <extracomment>Button</extracomment>
        <translation>&amp;Wählen ...</translation>
    </message>
    <message id="900572">
        <source></source>
        <extracomment>Button</extracomment>
        <translation>&amp;Setzen</translation>
    </message>
    <message id="900573">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Auf ein Objekt zeigen: </translation>
    </message>
    <message id="900574">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Das ist kein Objekt eines Systems.</translation>
    </message>
    <message id="900575">
        <source></source>
        <extracomment>Reason; with the property</extracomment>
        <translation>&quot;%s&quot; kann nicht geändert werden.</translation>
    </message>
    <message id="900576">
        <source></source>
        <extracomment>Done: property and value</extracomment>
        <translation>%s: %s</translation>
    </message>
    <message id="900577">
        <source></source>
        <extracomment>Reason; with the property</extracomment>
        <translation>&quot;%s&quot; konnte nicht geändert werden.</translation>
    </message>
    <message id="900578">
        <source></source>
        <extracomment>Reason; with what was typed, and the property</extracomment>
        <translation>&quot;%s&quot; ist keine Zahl, und &quot;%s&quot; muss eine sein.</translation>
    </message>
    <message id="900579">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Ein Name wird gebraucht.</translation>
    </message>
    <message id="900580">
        <source></source>
        <extracomment>In the properties dialog, as long as it shows nothing</extracomment>
        <translation>Kein Objekt ist gewählt.</translation>
    </message>
    <message id="900581">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Zu ändernde Eigenschaft (keine): </translation>
    </message>
    <message id="900582">
        <source></source>
        <extracomment>Prompt; with the value now</extracomment>
        <translation>Wert &lt;%s&gt;: </translation>
    </message>
    <message id="900583">
        <source></source>
        <extracomment>Reason; with what was typed</extracomment>
        <translation>Es gibt keine Eigenschaft &quot;%s&quot;.</translation>
    </message>
    <message id="900584">
        <source></source>
        <extracomment>Property: node, section or polygon</extracomment>
        <translation>Typ</translation>
    </message>
    <message id="900585">
        <source></source>
        <extracomment>Property</extracomment>
        <translation>Lage</translation>
    </message>
    <message id="900586">
        <source></source>
        <extracomment>Property</extracomment>
        <translation>Von Knoten</translation>
    </message>
    <message id="900587">
        <source></source>
        <extracomment>Property</extracomment>
        <translation>Bis Knoten</translation>
    </message>
    <message id="900588">
        <source></source>
        <extracomment>Property</extracomment>
        <translation>Gezeichnete Länge</translation>
    </message>
    <message id="900589">
        <source></source>
        <extracomment>Property</extracomment>
        <translation>Fläche</translation>
    </message>
    <message id="900610">
        <source></source>
        <extracomment>Title of a dialog; command</extracomment>
        <translation>Statistik</translation>
    </message>
    <message id="900611">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Es gibt kein aktives System.</translation>
    </message>
    <message id="900612">
        <source></source>
        <extracomment>Headline of a report; with the system</extracomment>
        <translation>Kennzahlen von %s</translation>
    </message>
    <message id="900613">
        <source></source>
        <extracomment>Title of a dialog; command</extracomment>
        <translation>Legende</translation>
    </message>
    <message id="900614">
        <source></source>
        <extracomment>Column</extracomment>
        <translation>Layer</translation>
    </message>
    <message id="900615">
        <source></source>
        <extracomment>Column</extracomment>
        <translation>Objekte</translation>
    </message>
    <message id="900616">
        <source></source>
        <extracomment>Button</extracomment>
        <translation>S&amp;chließen</translation>
    </message>
    <message id="900617">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Keine Zeichnung ist offen.</translation>
    </message>
    <message id="900618">
        <source></source>
        <extracomment>Line of the legend: layer, colour, count</extracomment>
        <translation>%s, Farbe %d: %d</translation>
    </message>
    <message id="900619">
        <source></source>
        <extracomment>Report</extracomment>
        <translation>Die Zeichnung zeigt nichts.</translation>
    </message>
    <message id="900630">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Objekte suchen</translation>
    </message>
    <message id="900631">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>findet Knoten, Abschnitte und Polygone nach dem, was in ihnen steht, und zeigt sie</translation>
    </message>
    <message id="900632">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Objekteigenschaften</translation>
    </message>
    <message id="900633">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>zeigt, was von einem Objekt bekannt ist, und ändert es</translation>
    </message>
    <message id="900634">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Systemstatistik</translation>
    </message>
    <message id="900635">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>zeigt die Kennzahlen des aktiven Systems</translation>
    </message>
    <message id="900636">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Legende</translation>
    </message>
    <message id="900637">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>zeigt, wofür die Farben der Zeichnung stehen</translation>
    </message>
    <message id="900331">
        <source></source>
        <extracomment>Label in the general settings, with its letter</extracomment>
        <translation>&amp;Sprache:</translation>
    </message>
    <message id="900332">
        <source></source>
        <extracomment>Label in the general settings, with its letter</extracomment>
        <translation>&amp;Minuten zwischen Sicherungen (0: aus):</translation>
    </message>
    <message id="900333">
        <source></source>
        <extracomment>Check box in the general settings, with its letter</extracomment>
        <translation>Abf&amp;rage beim Ablegen ausführen</translation>
    </message>
    <message id="900334">
        <source></source>
        <extracomment>Label in the general settings, with its letter</extracomment>
        <translation>&amp;Farbe der Markierung:</translation>
    </message>
    <message id="900335">
        <source></source>
        <extracomment>Label in the general settings, with its letter</extracomment>
        <translation>&amp;Dezimalen gleicher Lagen:</translation>
    </message>
    <message id="900336">
        <source></source>
        <extracomment>Label in the general settings, with its letter</extracomment>
        <translation>&amp;Netzablage (Ordner):</translation>
    </message>
    <message id="900340">
        <source></source>
        <extracomment>Button</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message id="900341">
        <source></source>
        <extracomment>Button: chooses a colour</extracomment>
        <translation>&amp;Wahl</translation>
    </message>
    <message id="900345">
        <source></source>
        <extracomment>Reason; with a setting, the lowest and the highest number</extracomment>
        <translation>&quot;%s&quot; ist eine ganze Zahl von %d bis %d.</translation>
    </message>
    <message id="900346">
        <source></source>
        <extracomment>Reason; with a setting</extracomment>
        <translation>&quot;%s&quot; ist eine Zeile Text.</translation>
    </message>
    <message id="900347">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Die Einstellungen konnten nicht geschrieben werden: %s</translation>
    </message>
    <message id="900638">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Allgemeine Einstellungen</translation>
    </message>
    <message id="900639">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>zeigt und ändert Sprache, Farben, Ordner und dergleichen</translation>
    </message>
    <message id="940000">
        <source></source>
        <extracomment>Path, reason, new path</extracomment>
        <translation>%s ist beschädigt (%s). Die Datei wurde als %s aufbewahrt; nicht lesbare Module werden nicht geladen.</translation>
    </message>
    <message id="940001">
        <source></source>
        <extracomment>Path, reason, second reason</extracomment>
        <translation>%s ist beschädigt (%s). Die Datei konnte nicht beiseitegelegt werden: %s.</translation>
    </message>
    <message id="940002">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie enthält keine Modulliste</translation>
    </message>
</context>
</TS>
