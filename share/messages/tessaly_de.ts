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
        <extracomment>Column of the system manager: the system's function</extracomment>
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
        <translation>Leitungen</translation>
    </message>
    <message id="5082">
        <source></source>
        <extracomment>Column of the system manager: a count</extracomment>
        <translation>Flächen</translation>
    </message>
    <message id="5247">
        <source></source>
        <extracomment>Prompt on the command line</extracomment>
        <translation>
Die Systeme sind markiert. Weiter mit der Eingabetaste: </translation>
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
        <translation>Temporäre Flächen löschen</translation>
    </message>
    <message id="5368">
        <source></source>
        <extracomment>Question</extracomment>
        <translation>Alle temporären Flächen des aktiven Systems löschen?</translation>
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
        <translation>Einklappen</translation>
    </message>
    <message id="7247">
        <source></source>
        <extracomment>Tooltip of a dialog's caption button</extracomment>
        <translation>Ausklappen</translation>
    </message>
    <message id="7533">
        <source></source>
        <extracomment>Filter button of the log view, followed by a count</extracomment>
        <translation>Fehler</translation>
    </message>
    <message id="7534">
        <source></source>
        <extracomment>Filter button of the log view, followed by a count</extracomment>
        <translation>Informationen</translation>
    </message>
    <message id="7535">
        <source></source>
        <extracomment>Filter button of the log view, followed by a count</extracomment>
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
        <translation>Als Standard festlegen</translation>
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
        <extracomment>Memory report, followed by a number</extracomment>
        <translation>Verfügbar</translation>
    </message>
    <message id="10301">
        <source></source>
        <extracomment>Memory report, followed by a number</extracomment>
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
        <translation>Leitungen</translation>
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
        <translation>Flächen</translation>
    </message>
    <message id="10819">
        <source></source>
        <extracomment>Statistic of a polygon system: a count</extracomment>
        <translation>Flächenknoten</translation>
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
        <translation>Bedienfelder</translation>
    </message>
    <message id="900101">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>Netz importieren</translation>
    </message>
    <message id="900102">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>erzeugt Systeme aus einer Wassernetz- (EPANET) oder Kanalnetzdatei (SWMM) oder aus den Punkten, Linien und Flächen einer anderen Datei</translation>
    </message>
    <message id="900103">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>Netzstatistik</translation>
    </message>
    <message id="900104">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>gibt Anzahl der Objekte, Längen, Ausdehnung und Teilnetze jedes Netzes aus</translation>
    </message>
    <message id="900105">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>Netz prüfen</translation>
    </message>
    <message id="900106">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>listet die Mängel jedes Netzes auf</translation>
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
        <translation>aktiviert ein System</translation>
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
    <message id="900200">
        <source></source>
        <extracomment>Name of a topology</extracomment>
        <translation>Linien</translation>
    </message>
    <message id="900201">
        <source></source>
        <extracomment>Name of a topology</extracomment>
        <translation>Flächen</translation>
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
        <translation>Leitung</translation>
    </message>
    <message id="900222">
        <source></source>
        <extracomment>Kind of entity</extracomment>
        <translation>Fläche</translation>
    </message>
    <message id="900223">
        <source></source>
        <extracomment>Kind of entity</extracomment>
        <translation>Flächenknoten</translation>
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
        <translation>Keine Zeichnung ist geöffnet.</translation>
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
    <message id="900310">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Eine Konfiguration braucht einen Namen.</translation>
    </message>
    <message id="900311">
        <source></source>
        <extracomment>Reason; with the name</extracomment>
        <translation>Eine andere Konfiguration heißt bereits „%s“.</translation>
    </message>
    <message id="900312">
        <source></source>
        <extracomment>Reason; with the name</extracomment>
        <translation>„%s“ ist dort bereits vorhanden.</translation>
    </message>
    <message id="900313">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Die Konfiguration ist nicht mehr vorhanden.</translation>
    </message>
    <message id="900314">
        <source></source>
        <extracomment>Reason; with the name and why</extracomment>
        <translation>„%s“ konnte nicht geschrieben werden: %s</translation>
    </message>
    <message id="900315">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Die Zeichnung ist gerade in Benutzung und kann nicht geändert werden.</translation>
    </message>
    <message id="900316">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Nur Konfigurationen eines Systems können Standard sein.</translation>
    </message>
    <message id="900331">
        <source></source>
        <extracomment>Label in the general settings, with its mnemonic</extracomment>
        <translation>&amp;Sprache:</translation>
    </message>
    <message id="900332">
        <source></source>
        <extracomment>Label in the general settings, with its mnemonic</extracomment>
        <translation>&amp;Minuten zwischen automatischen Sicherungen (0 = aus):</translation>
    </message>
    <message id="900333">
        <source></source>
        <extracomment>Check box in the general settings, with its mnemonic</extracomment>
        <translation>Abf&amp;ragen beim Ablegen ausführen</translation>
    </message>
    <message id="900334">
        <source></source>
        <extracomment>Label in the general settings, with its mnemonic</extracomment>
        <translation>&amp;Farbe der Hervorhebung:</translation>
    </message>
    <message id="900335">
        <source></source>
        <extracomment>Label in the general settings, with its mnemonic</extracomment>
        <translation>&amp;Dezimalstellen für Lagegleichheit:</translation>
    </message>
    <message id="900336">
        <source></source>
        <extracomment>Label in the general settings, with its mnemonic</extracomment>
        <translation>&amp;Netzwerkablage (Ordner):</translation>
    </message>
    <message id="900340">
        <source></source>
        <extracomment>Button</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message id="900341">
        <source></source>
        <extracomment>Button: chooses a colour</extracomment>
        <translation>&amp;Wählen</translation>
    </message>
    <message id="900345">
        <source></source>
        <extracomment>Reason; with a setting, the lowest and the highest number</extracomment>
        <translation>„%s“ muss eine ganze Zahl von %d bis %d sein.</translation>
    </message>
    <message id="900346">
        <source></source>
        <extracomment>Reason; with a setting</extracomment>
        <translation>„%s“ muss eine einzelne Textzeile sein.</translation>
    </message>
    <message id="900347">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Die Einstellungen konnten nicht geschrieben werden: %s</translation>
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
        <translation>Zutreffend (alle oder eine Bedingung)</translation>
    </message>
    <message id="900403">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Bedingung %d (Attribut, Operator, Wert; - entfernt)</translation>
    </message>
    <message id="900404">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>„%s“ ist keine Bedingung. Geben Sie ein Attribut, eines von = &lt;&gt; &lt; &lt;= &gt; &gt;= contains empty und einen Wert ein.</translation>
    </message>
    <message id="900405">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Attribut</translation>
    </message>
    <message id="900406">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Hinweis: In %s hat kein Objekt dieser Art ein Attribut „%s“.</translation>
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
        <translation>Klassengrenzen, durch Leerzeichen getrennt (- zum Berechnen)</translation>
    </message>
    <message id="900410">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Farben 1 bis 255, durch Leerzeichen getrennt (- für Standardfarben)</translation>
    </message>
    <message id="900411">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>„%s“ ist keine Liste von Zahlen.</translation>
    </message>
    <message id="900412">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Text mit Attributen in geschweiften Klammern</translation>
    </message>
    <message id="900413">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Texthöhe (0 = automatisch)</translation>
    </message>
    <message id="900414">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>„%s“ ist keine gültige Texthöhe.</translation>
    </message>
    <message id="900415">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Von Knoten (- um jedes Mal zu fragen)</translation>
    </message>
    <message id="900416">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Bis Knoten (- um jedes Mal zu fragen)</translation>
    </message>
    <message id="900417">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Attribut für die Höhe</translation>
    </message>
    <message id="900418">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Attribut für die Tiefe (- für keins)</translation>
    </message>
    <message id="900419">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>„%s“ ist keine der Möglichkeiten %s.</translation>
    </message>
    <message id="900420">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Ungültige Eingabe: %s.</translation>
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
        <translation>%s ist jetzt der Standard und wird bei jedem Öffnen der Zeichnung angezeigt.</translation>
    </message>
    <message id="900427">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>%s löschen?</translation>
    </message>
    <message id="900428">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>%s ist dort bereits vorhanden. Ersetzen?</translation>
    </message>
    <message id="900429">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Senden an Lokal, Netzwerk oder ein System</translation>
    </message>
    <message id="900430">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>„%s“ ist weder die lokale Ablage noch die Netzwerkablage noch ein System der Zeichnung.</translation>
    </message>
    <message id="900431">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Es ist keine Netzwerkablage eingerichtet. Geben Sie in NET_REPOSITORY deren Ordner an.</translation>
    </message>
    <message id="900432">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Kein System ist aktiv. Verwenden Sie SYSTEM_ACTIVATE.</translation>
    </message>
    <message id="900433">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Es gibt keine Konfiguration „%s“.</translation>
    </message>
    <message id="900434">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s enthält keine Objekte dieser Art.</translation>
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
        <translation>%s hat keinen Knoten „%s“.</translation>
    </message>
    <message id="900441">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Es gibt keinen Weg von %s nach %s.</translation>
    </message>
    <message id="900442">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s, %s: %s bis %s, Länge %s</translation>
    </message>
    <message id="900443">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Das abgelegte Element kann hier nicht verwendet werden.</translation>
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
        <translation>Verwendung</translation>
    </message>
    <message id="900449">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Die Zeichnung hat kein System „%s“. SYSTEM_LIST listet die Systeme auf.</translation>
    </message>
    <message id="900450">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s ist das aktive System.</translation>
    </message>
    <message id="900451">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s ist eingeblendet.</translation>
    </message>
    <message id="900452">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s ist ausgeblendet.</translation>
    </message>
    <message id="900453">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s ist dort bereits mit demselben Inhalt vorhanden.</translation>
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
        <translation>Lokal</translation>
    </message>
    <message id="900469">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Netzwerk</translation>
    </message>
    <message id="900510">
        <source></source>
        <extracomment>Panel; also the name of its tree&#x27;s root</extracomment>
        <translation>Systeme</translation>
    </message>
    <message id="900511">
        <source></source>
        <extracomment>Panel; also the name of its tree&#x27;s root</extracomment>
        <translation>Lokale Ablage</translation>
    </message>
    <message id="900512">
        <source></source>
        <extracomment>Panel; also the name of its tree&#x27;s root</extracomment>
        <translation>Netzwerkablage</translation>
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
        <translation>Pfad (z. B. system/NAME/..., disk/..., net/...): </translation>
    </message>
    <message id="900521">
        <source></source>
        <extracomment>Reason; with what was searched for, and where</extracomment>
        <translation>Es gibt kein „%s“ in „%s“.</translation>
    </message>
    <message id="900522">
        <source></source>
        <extracomment>With the names of nodes</extracomment>
        <translation>Vorhanden: %s</translation>
    </message>
    <message id="900523">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Der Knoten hat keine Unterknoten.</translation>
    </message>
    <message id="900524">
        <source></source>
        <extracomment>With a node of a tree</extracomment>
        <translation>„%s“ hat keine Befehle.</translation>
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
    <message id="900540">
        <source></source>
        <extracomment>Title of a dialog; command</extracomment>
        <translation>Suchen</translation>
    </message>
    <message id="900541">
        <source></source>
        <extracomment>Label in the find dialog, with its mnemonic</extracomment>
        <translation>Suche &amp;nach:</translation>
    </message>
    <message id="900542">
        <source></source>
        <extracomment>Label in the find dialog, with its mnemonic</extracomment>
        <translation>&amp;System:</translation>
    </message>
    <message id="900543">
        <source></source>
        <extracomment>Label in the find dialog, with its mnemonic</extracomment>
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
        <translation>%d gefunden, %d angezeigt</translation>
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
        <extracomment>Column: the text that matched</extracomment>
        <translation>Gefunden in</translation>
    </message>
    <message id="900555">
        <source></source>
        <extracomment>Button of the find dialog</extracomment>
        <translation>An&amp;zeigen</translation>
    </message>
    <message id="900556">
        <source></source>
        <extracomment>Button of the find dialog</extracomment>
        <translation>&amp;Eigenschaften</translation>
    </message>
    <message id="900557">
        <source></source>
        <extracomment>Result</extracomment>
        <translation>Nicht mehr vorhanden</translation>
    </message>
    <message id="900558">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Suche nach</translation>
    </message>
    <message id="900559">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>System (leer für alle)</translation>
    </message>
    <message id="900560">
        <source></source>
        <extracomment>Prompt; with the choices</extracomment>
        <translation>Wo</translation>
    </message>
    <message id="900561">
        <source></source>
        <extracomment>Line of a result: kind, name, system, where</extracomment>
        <translation>%s %s (%s): %s</translation>
    </message>
    <message id="900562">
        <source></source>
        <extracomment>Reason; with a name</extracomment>
        <translation>Es gibt kein System „%s“.</translation>
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
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message id="900573">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Objekt wählen: </translation>
    </message>
    <message id="900574">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Das Objekt gehört zu keinem System.</translation>
    </message>
    <message id="900575">
        <source></source>
        <extracomment>Reason; with the property</extracomment>
        <translation>„%s“ kann nicht geändert werden.</translation>
    </message>
    <message id="900576">
        <source></source>
        <extracomment>Done: property and value</extracomment>
        <translation>%s: %s</translation>
    </message>
    <message id="900577">
        <source></source>
        <extracomment>Reason; with the property</extracomment>
        <translation>„%s“ konnte nicht geändert werden.</translation>
    </message>
    <message id="900578">
        <source></source>
        <extracomment>Reason; with the input and the property</extracomment>
        <translation>„%s“ ist keine Zahl; %s muss eine sein.</translation>
    </message>
    <message id="900579">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Ein Name ist erforderlich.</translation>
    </message>
    <message id="900580">
        <source></source>
        <extracomment>In the properties dialog, as long as it shows nothing</extracomment>
        <translation>Es ist kein Objekt ausgewählt.</translation>
    </message>
    <message id="900581">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Zu ändernde Eigenschaft (leer für keine)</translation>
    </message>
    <message id="900582">
        <source></source>
        <extracomment>Prompt; with the current value</extracomment>
        <translation>Wert &lt;%s&gt;: </translation>
    </message>
    <message id="900583">
        <source></source>
        <extracomment>Reason; with the input</extracomment>
        <translation>Es gibt keine Eigenschaft „%s“.</translation>
    </message>
    <message id="900584">
        <source></source>
        <extracomment>Property: node, section or polygon</extracomment>
        <translation>Typ</translation>
    </message>
    <message id="900585">
        <source></source>
        <extracomment>Property</extracomment>
        <translation>Position</translation>
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
    <message id="900590">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Baumvorlagen</translation>
    </message>
    <message id="900591">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>gibt die Vorlagen des Systembaums und der Ablagebäume aus</translation>
    </message>
    <message id="900592">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Baummenü</translation>
    </message>
    <message id="900593">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>gibt das Menü eines Baumknotens zu einem Pfad aus</translation>
    </message>
    <message id="900594">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Bäume</translation>
    </message>
    <message id="900595">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>gibt den Inhalt des Systembaums und der Ablagebäume aus</translation>
    </message>
    <message id="900610">
        <source></source>
        <extracomment>Title of a dialog; command</extracomment>
        <translation>Statistik</translation>
    </message>
    <message id="900611">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Kein System ist aktiv.</translation>
    </message>
    <message id="900612">
        <source></source>
        <extracomment>Headline of a report; with the system</extracomment>
        <translation>Statistik für %s</translation>
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
        <translation>Keine Zeichnung ist geöffnet.</translation>
    </message>
    <message id="900618">
        <source></source>
        <extracomment>Line of the legend: layer, colour, count</extracomment>
        <translation>%s, Farbe %d: %d</translation>
    </message>
    <message id="900619">
        <source></source>
        <extracomment>Report</extracomment>
        <translation>Die Zeichnung ist leer.</translation>
    </message>
    <message id="900630">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Objekte suchen</translation>
    </message>
    <message id="900631">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>findet Knoten, Leitungen und Flächen anhand von Namen und Attributen</translation>
    </message>
    <message id="900632">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Objekteigenschaften</translation>
    </message>
    <message id="900633">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>zeigt und ändert die Eigenschaften eines Objekts</translation>
    </message>
    <message id="900634">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Systemstatistik</translation>
    </message>
    <message id="900635">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>zeigt die Statistik des aktiven Systems</translation>
    </message>
    <message id="900636">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Legende</translation>
    </message>
    <message id="900637">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>erläutert die Farben der Zeichnung</translation>
    </message>
    <message id="900638">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Allgemeine Einstellungen</translation>
    </message>
    <message id="900639">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>ändert Sprache, Farben, Ordner und andere Einstellungen</translation>
    </message>
    <message id="910000">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Datei oder Ordner nicht gefunden</translation>
    </message>
    <message id="910001">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Keine Berechtigung</translation>
    </message>
    <message id="910002">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Ist ein Ordner</translation>
    </message>
    <message id="910003">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Ist kein Ordner</translation>
    </message>
    <message id="910004">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Datei ist bereits vorhanden</translation>
    </message>
    <message id="910005">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Kein Platz mehr auf dem Datenträger</translation>
    </message>
    <message id="910006">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Schreibgeschütztes Dateisystem</translation>
    </message>
    <message id="910007">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Dateiname zu lang</translation>
    </message>
    <message id="910008">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Ein-/Ausgabefehler</translation>
    </message>
    <message id="910009">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Zu viele Ebenen symbolischer Verknüpfungen</translation>
    </message>
    <message id="910010">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Zu viele geöffnete Dateien</translation>
    </message>
    <message id="910011">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Datei zu groß</translation>
    </message>
    <message id="910012">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Gerät oder Ressource belegt</translation>
    </message>
    <message id="910013">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Ordner nicht leer</translation>
    </message>
    <message id="910014">
        <source></source>
        <extracomment>Number of the error, and the operating system's own text</extracomment>
        <translation>Fehler %d des Betriebssystems (%s)</translation>
    </message>
    <message id="910015">
        <source></source>
        <extracomment>Name of a new drawing; number</extracomment>
        <translation>Zeichnung%d</translation>
    </message>
    <message id="910020">
        <source></source>
        <extracomment>File, line</extracomment>
        <translation>%s:%d: keine Zeile der Form „Schlüssel=Wert“</translation>
    </message>
    <message id="910021">
        <source></source>
        <extracomment>File, line</extracomment>
        <translation>%s:%d: ein Wert vor dem ersten Abschnitt</translation>
    </message>
    <message id="910022">
        <source></source>
        <extracomment>Module file</extracomment>
        <translation>%s: keine Bibliothek für diesen Rechner</translation>
    </message>
    <message id="910023">
        <source></source>
        <extracomment>Module file, its size, the size needed</extracomment>
        <translation>%s: unvollständig, %u von mindestens %u Bytes</translation>
    </message>
    <message id="910024">
        <source></source>
        <extracomment>Module file</extracomment>
        <translation>%s: kein Einsprungpunkt für Module</translation>
    </message>
    <message id="910025">
        <source></source>
        <extracomment>Module file, its version, the program's</extracomment>
        <translation>%s: für Schnittstellenversion %d gebaut, dieses Programm hat Version %d</translation>
    </message>
    <message id="910026">
        <source></source>
        <extracomment>Module file</extracomment>
        <translation>%s: Das Modul hat den Start verweigert</translation>
    </message>
    <message id="910030">
        <source></source>
        <extracomment>Follows a file name and a colon</extracomment>
        <translation>kein Dateiname angegeben</translation>
    </message>
    <message id="910031">
        <source></source>
        <extracomment>Follows a file name and a colon</extracomment>
        <translation>dieses Programm kann keine Zeichnungen öffnen</translation>
    </message>
    <message id="910032">
        <source></source>
        <extracomment>Follows a file name and a colon</extracomment>
        <translation>die Zeichnung hat noch keine Datei</translation>
    </message>
    <message id="910033">
        <source></source>
        <extracomment>Follows a file name and a colon</extracomment>
        <translation>dieses Programm kann keine Zeichnungen speichern</translation>
    </message>
    <message id="910034">
        <source></source>
        <extracomment>Follows a file name and a colon</extracomment>
        <translation>die Datei gehört zu einer anderen geöffneten Zeichnung</translation>
    </message>
    <message id="910035">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Objektnummer</translation>
    </message>
    <message id="910036">
        <source></source>
        <extracomment>Prompt; highest number</extracomment>
        <translation>Farbe, 1 bis %d</translation>
    </message>
    <message id="910037">
        <source></source>
        <extracomment>The input</extracomment>
        <translation>„%s“ ist keine Farbe.</translation>
    </message>
    <message id="910038">
        <source></source>
        <extracomment>Title of a dialog</extracomment>
        <translation>Farbe</translation>
    </message>
    <message id="910041">
        <source></source>
        <extracomment>What failed</extracomment>
        <translation>Zeichnungsereignis</translation>
    </message>
    <message id="910042">
        <source></source>
        <extracomment>What failed</extracomment>
        <translation>Speicherereignis</translation>
    </message>
    <message id="910043">
        <source></source>
        <extracomment>What failed</extracomment>
        <translation>Ereignis beim Beenden</translation>
    </message>
    <message id="910044">
        <source></source>
        <extracomment>What failed</extracomment>
        <translation>Fensternachricht</translation>
    </message>
    <message id="910100">
        <source></source>
        <extracomment>File, line, text</extracomment>
        <translation>%s:%d: „%s“ ist keine ganze Zahl</translation>
    </message>
    <message id="910101">
        <source></source>
        <extracomment>File, line, word</extracomment>
        <translation>%s:%d: unbekannter Schlüssel „%s“</translation>
    </message>
    <message id="910102">
        <source></source>
        <extracomment>File, line, word</extracomment>
        <translation>%s:%d: weder number noch text: „%s“</translation>
    </message>
    <message id="910103">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>die Art der abgefragten Objekte fehlt</translation>
    </message>
    <message id="910104">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>eine Bedingung ist ungültig</translation>
    </message>
    <message id="910105">
        <source></source>
        <extracomment>Reason; GUID</extracomment>
        <translation>sie hat die GUID „%s“</translation>
    </message>
    <message id="910106">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>ein anderer Eintrag hat dieselbe GUID</translation>
    </message>
    <message id="910107">
        <source></source>
        <extracomment>Folder</extracomment>
        <translation>%s: Der Ordner ist nicht vorhanden</translation>
    </message>
    <message id="910108">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>der Dateiname ist keine GUID</translation>
    </message>
    <message id="910109">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>zu lang</translation>
    </message>
    <message id="910110">
        <source></source>
        <extracomment>Reason; names of XML elements</extracomment>
        <translation>die Wurzel ist „%s“ statt „%s“</translation>
    </message>
    <message id="910111">
        <source></source>
        <extracomment>Reason; name of a family</extracomment>
        <translation>gehört zur Familie „%s“</translation>
    </message>
    <message id="910112">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>hat keinen Namen</translation>
    </message>
    <message id="910113">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>die Objektart ist keine Zahl</translation>
    </message>
    <message id="910114">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>hat keine GUID</translation>
    </message>
    <message id="910115">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>kein Modul ist für diese Familie zuständig</translation>
    </message>
    <message id="910116">
        <source></source>
        <extracomment>File, line, word</extracomment>
        <translation>%s:%d: unbekannte Topologie „%s“</translation>
    </message>
    <message id="910117">
        <source></source>
        <extracomment>File, line, word</extracomment>
        <translation>%s:%d: Abschnitt „%s“ ist doppelt vorhanden</translation>
    </message>
    <message id="910118">
        <source></source>
        <extracomment>File, line, word</extracomment>
        <translation>%s:%d: „%s“ hat keinen Wert</translation>
    </message>
    <message id="910119">
        <source></source>
        <extracomment>File, line, text</extracomment>
        <translation>%s:%d: „%s“ ist weder 0 noch 1</translation>
    </message>
    <message id="910120">
        <source></source>
        <extracomment>File, line</extracomment>
        <translation>%s:%d: Die Nummer einer Funktion muss größer als 0 sein</translation>
    </message>
    <message id="910121">
        <source></source>
        <extracomment>File, line, number</extracomment>
        <translation>%s:%d: Funktion %d ist doppelt vorhanden</translation>
    </message>
    <message id="910122">
        <source></source>
        <extracomment>File, line, number</extracomment>
        <translation>%s:%d: unbekannte Objektart %d</translation>
    </message>
    <message id="910123">
        <source></source>
        <extracomment>File, line, number</extracomment>
        <translation>%s:%d: Objektart %d ist doppelt vorhanden</translation>
    </message>
    <message id="910124">
        <source></source>
        <extracomment>File</extracomment>
        <translation>%s: keine Topologie; die Standardwerte werden verwendet</translation>
    </message>
    <message id="910125">
        <source></source>
        <extracomment>File, line, word</extracomment>
        <translation>%s:%d: weder default noch eine Topologie mit oder ohne Funktion: „%s“</translation>
    </message>
    <message id="910126">
        <source></source>
        <extracomment>File, line, word</extracomment>
        <translation>%s:%d: weder node noch section noch polygon: „%s“</translation>
    </message>
    <message id="910127">
        <source></source>
        <extracomment>File, line, text</extracomment>
        <translation>%s:%d: keine Namensvorlage mit genau einem Platzhalter für die Nummer wie J%%d oder J%%04d: „%s“</translation>
    </message>
    <message id="910128">
        <source></source>
        <extracomment>Line, reason</extracomment>
        <translation>Zeile %d: kein wohlgeformtes XML</translation>
    </message>
    <message id="910129">
        <source></source>
        <extracomment>Name of a system that has none; number</extracomment>
        <translation>System %d</translation>
    </message>
    <message id="910130">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Dokumenttyp-Deklarationen sind nicht erlaubt</translation>
    </message>
    <message id="910131">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>die Elemente sind zu tief verschachtelt</translation>
    </message>
    <message id="910132">
        <source></source>
        <extracomment>Line, reason</extracomment>
        <translation>Zeile %d: %s</translation>
    </message>
    <message id="910140">
        <source></source>
        <extracomment>Name of a layer, after the system's</extracomment>
        <translation>Leitungen</translation>
    </message>
    <message id="910141">
        <source></source>
        <extracomment>Name of a layer, after the system's</extracomment>
        <translation>Achsen</translation>
    </message>
    <message id="910142">
        <source></source>
        <extracomment>Name of a layer, after the system's</extracomment>
        <translation>Knoten</translation>
    </message>
    <message id="910143">
        <source></source>
        <extracomment>Name of a layer, after the system's</extracomment>
        <translation>Texte</translation>
    </message>
    <message id="910144">
        <source></source>
        <extracomment>Name of a layer, after the system's</extracomment>
        <translation>Flächen</translation>
    </message>
    <message id="910145">
        <source></source>
        <extracomment>Name of a layer, after the system's</extracomment>
        <translation>temporäre Flächen</translation>
    </message>
    <message id="910146">
        <source></source>
        <extracomment>Name of a layer, after the system's</extracomment>
        <translation>Punkte</translation>
    </message>
    <message id="910147">
        <source></source>
        <extracomment>Name of a layer, after the system's</extracomment>
        <translation>Schema</translation>
    </message>
    <message id="910200">
        <source></source>
        <extracomment>Why a command cannot run</extracomment>
        <translation>Kein Modul stellt ihn bereit</translation>
    </message>
    <message id="910201">
        <source></source>
        <extracomment>File</extracomment>
        <translation>%s: keine Modulliste; es werden keine Module geladen.</translation>
    </message>
    <message id="911000">
        <source></source>
        <translation>Keine nutzbare Anzeige; stattdessen startet die Konsole.</translation>
    </message>
    <message id="911001">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Der Einstellungsordner kann nicht angelegt werden: %s</translation>
    </message>
    <message id="911002">
        <source></source>
        <extracomment>First line of a run</extracomment>
        <translation>Tessaly. HELP listet die Befehle auf, QUIT beendet das Programm.</translation>
    </message>
    <message id="911003">
        <source></source>
        <extracomment>Answer to --help</extracomment>
        <translation>tessaly [--console] [Optionen] [Zeichnung]
  Zeichnung       ein GeoPackage (.gpkg), das beim Start geöffnet wird
  --console       Befehlszeile auf Standardeingabe und -ausgabe
  --read-only     öffnet nur zum Lesen, was ein anderes Programm geöffnet hat
  --script DATEI  führt die Befehle einer Datei aus, einen je Zeile, und endet mit
                  dem Status des ersten Befehls, der fehlschlägt
  --first DATEI   führt die Befehle einer Datei aus und macht dann an der
                  Eingabeaufforderung weiter
  --snapshot DATEI  speichert ohne Anzeige ein Bild des Desktops und endet
  --transcript DATEI  schreibt den Text der Befehlszeile des Desktops in eine Datei
  --theme NAME    light (hell) oder dark (dunkel), unabhängig vom System
  --trace DATEI   schreibt das Entwicklerprotokoll in eine Datei
  --support ORDNER  der Ordner der Benutzereinstellungen
  --install ORDNER  der Ordner der Module
</translation>
    </message>
    <message id="911004">
        <source></source>
        <extracomment>Option</extracomment>
        <translation>%s verlangt einen Wert</translation>
    </message>
    <message id="911005">
        <source></source>
        <extracomment>Option</extracomment>
        <translation>%s: unbekannte Option</translation>
    </message>
    <message id="911006">
        <source></source>
        <extracomment>Argument</extracomment>
        <translation>%s: Es kann nur eine Zeichnung angegeben werden</translation>
    </message>
    <message id="911007">
        <source></source>
        <extracomment>Value of the option</extracomment>
        <translation>--theme %s: Möglich sind light und dark</translation>
    </message>
    <message id="911010">
        <source></source>
        <extracomment>Follows the name of a command and a colon</extracomment>
        <translation>er fragt weiter, obwohl die Eingabe zu Ende ist</translation>
    </message>
    <message id="911011">
        <source></source>
        <extracomment>Follows the name of a command and a colon</extracomment>
        <translation>unbekannte Ausnahme</translation>
    </message>
    <message id="911012">
        <source></source>
        <extracomment>Command or module, reason</extracomment>
        <translation>%s ist fehlgeschlagen: %s</translation>
    </message>
    <message id="911013">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Nicht geladen: %s</translation>
    </message>
    <message id="911014">
        <source></source>
        <extracomment>File, line, command</extracomment>
        <translation>%s:%d: angehalten bei „%s“</translation>
    </message>
    <message id="911015">
        <source></source>
        <extracomment>The input</extracomment>
        <translation>Unbekannter Befehl „%s“. HELP listet die Befehle auf.</translation>
    </message>
    <message id="911020">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Datei</translation>
    </message>
    <message id="911021">
        <source></source>
        <translation>Die Zeichnung wurde nicht gespeichert.</translation>
    </message>
    <message id="911022">
        <source></source>
        <extracomment>Progress; file</extracomment>
        <translation>%s wird geschrieben</translation>
    </message>
    <message id="911023">
        <source></source>
        <extracomment>Progress; file</extracomment>
        <translation>%s wird gelesen</translation>
    </message>
    <message id="911024">
        <source></source>
        <extracomment>File</extracomment>
        <translation>Gespeichert: %s</translation>
    </message>
    <message id="911025">
        <source></source>
        <extracomment>Question; file</extracomment>
        <translation>%s ist bereits vorhanden. Ersetzen?</translation>
    </message>
    <message id="911026">
        <source></source>
        <extracomment>File</extracomment>
        <translation>%s bleibt unverändert.</translation>
    </message>
    <message id="911027">
        <source></source>
        <extracomment>Question; drawing</extracomment>
        <translation>Änderungen an %s speichern?</translation>
    </message>
    <message id="911028">
        <source></source>
        <extracomment>Drawing</extracomment>
        <translation>Die aktuelle Zeichnung ist %s.</translation>
    </message>
    <message id="911030">
        <source></source>
        <translation>Es wurde nichts geöffnet.</translation>
    </message>
    <message id="911031">
        <source></source>
        <translation>Die Zeichnung bleibt geöffnet.</translation>
    </message>
    <message id="911032">
        <source></source>
        <extracomment>Drawing</extracomment>
        <translation>%s wird gerade von einem Befehl benutzt.</translation>
    </message>
    <message id="911033">
        <source></source>
        <extracomment>Drawing</extracomment>
        <translation>%s ist geschlossen.</translation>
    </message>
    <message id="911034">
        <source></source>
        <extracomment>Follows the name of a drawing</extracomment>
        <translation>, geändert</translation>
    </message>
    <message id="911035">
        <source></source>
        <extracomment>The input</extracomment>
        <translation>Es gibt keine Zeichnung „%s“. DRAWINGS listet sie auf.</translation>
    </message>
    <message id="911036">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>Mehrere Zeichnungen heißen %s. Geben Sie die Nummer an.</translation>
    </message>
    <message id="911037">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Zeichnung (Nummer oder Name)</translation>
    </message>
    <message id="911038">
        <source></source>
        <extracomment>Name of a command</extracomment>
        <translation>Rückgängig gemacht: %s</translation>
    </message>
    <message id="911039">
        <source></source>
        <extracomment>Name of a command</extracomment>
        <translation>Wiederhergestellt: %s</translation>
    </message>
    <message id="911040">
        <source></source>
        <translation>Es gibt nichts rückgängig zu machen.</translation>
    </message>
    <message id="911041">
        <source></source>
        <translation>Es gibt nichts wiederherzustellen.</translation>
    </message>
    <message id="911042">
        <source></source>
        <extracomment>In place of a command's name</extracomment>
        <translation>eine Änderung</translation>
    </message>
    <message id="911043">
        <source></source>
        <translation>Nicht möglich, solange ein Befehl läuft.</translation>
    </message>
    <message id="911044">
        <source></source>
        <extracomment>Drawing</extracomment>
        <translation>%s ist bereits geöffnet.</translation>
    </message>
    <message id="911045">
        <source></source>
        <extracomment>Drawing, count</extracomment>
        <translation>%s: %d Objekte.</translation>
    </message>
    <message id="911046">
        <source></source>
        <extracomment>Drawing</extracomment>
        <translation>%s hat nicht gespeicherte Änderungen.</translation>
    </message>
    <message id="911047">
        <source></source>
        <extracomment>Count</extracomment>
        <translation>... und %d weitere Warnungen.</translation>
    </message>
    <message id="911050">
        <source></source>
        <translation>Die Konsole hat keine Ansicht der Zeichnung.</translation>
    </message>
    <message id="911051">
        <source></source>
        <extracomment>Prompt for a position in the drawing</extracomment>
        <translation>Objekt wählen: </translation>
    </message>
    <message id="911052">
        <source></source>
        <translation>Es wurde kein Objekt gewählt.</translation>
    </message>
    <message id="911053">
        <source></source>
        <translation>Das Objekt hat keine Position.</translation>
    </message>
    <message id="911054">
        <source></source>
        <extracomment>Prompt; the choices follow</extracomment>
        <translation>Zoomfaktor wie 2 oder 0.5, oder</translation>
    </message>
    <message id="911055">
        <source></source>
        <extracomment>Choice of ZOOM</extracomment>
        <translation>Alles</translation>
    </message>
    <message id="911056">
        <source></source>
        <extracomment>Choice of ZOOM</extracomment>
        <translation>Objekt</translation>
    </message>
    <message id="911057">
        <source></source>
        <extracomment>The input</extracomment>
        <translation>„%s“ ist weder eine Auswahl noch ein Zoomfaktor.</translation>
    </message>
    <message id="911060">
        <source></source>
        <extracomment>Layer and counts</extracomment>
        <translation>%s: %d Punkte, %d Linien, %d Flächen</translation>
    </message>
    <message id="911061">
        <source></source>
        <extracomment>Layer, its coordinate system, the drawing's</extracomment>
        <translation>%s: Das Koordinatensystem ist %s, das der Zeichnung %s; Koordinaten werden nicht umgerechnet</translation>
    </message>
    <message id="911062">
        <source></source>
        <translation>Es wurde nichts importiert.</translation>
    </message>
    <message id="911063">
        <source></source>
        <extracomment>File</extracomment>
        <translation>%s: enthält nichts, was sich zeichnen lässt</translation>
    </message>
    <message id="911064">
        <source></source>
        <extracomment>File</extracomment>
        <translation>Importiert aus %s:</translation>
    </message>
    <message id="911065">
        <source></source>
        <extracomment>In place of a coordinate system's name</extracomment>
        <translation>unbekannt</translation>
    </message>
    <message id="911070">
        <source></source>
        <translation>Das Programm bleibt geöffnet.</translation>
    </message>
    <message id="911071">
        <source></source>
        <translation>Nicht beendet: Ein Modul verweigert das Beenden.</translation>
    </message>
    <message id="911072">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Moduldatei</translation>
    </message>
    <message id="911073">
        <source></source>
        <translation>Es wurde nichts geladen.</translation>
    </message>
    <message id="911074">
        <source></source>
        <extracomment>Module file</extracomment>
        <translation>%s geladen.</translation>
    </message>
    <message id="911080">
        <source></source>
        <extracomment>What HELP does</extracomment>
        <translation>listet die Befehle auf; HELP NAME erläutert einen</translation>
    </message>
    <message id="911081">
        <source></source>
        <extracomment>What APPLOAD does</extracomment>
        <translation>lädt ein Modul</translation>
    </message>
    <message id="911082">
        <source></source>
        <extracomment>What QUIT does</extracomment>
        <translation>beendet das Programm</translation>
    </message>
    <message id="911083">
        <source></source>
        <extracomment>What OPEN does</extracomment>
        <translation>öffnet eine Zeichnung</translation>
    </message>
    <message id="911084">
        <source></source>
        <extracomment>What NEW does</extracomment>
        <translation>legt eine neue Zeichnung an</translation>
    </message>
    <message id="911085">
        <source></source>
        <extracomment>What SAVE does</extracomment>
        <translation>speichert die Zeichnung in ihre Datei</translation>
    </message>
    <message id="911086">
        <source></source>
        <extracomment>What SAVEAS does</extracomment>
        <translation>speichert die Zeichnung in eine andere Datei</translation>
    </message>
    <message id="911087">
        <source></source>
        <extracomment>What CLOSE does</extracomment>
        <translation>schließt die Zeichnung</translation>
    </message>
    <message id="911088">
        <source></source>
        <extracomment>What DRAWINGS does</extracomment>
        <translation>listet die geöffneten Zeichnungen auf</translation>
    </message>
    <message id="911089">
        <source></source>
        <extracomment>What SWITCH does</extracomment>
        <translation>wechselt zu einer anderen geöffneten Zeichnung</translation>
    </message>
    <message id="911090">
        <source></source>
        <extracomment>What UNDO does</extracomment>
        <translation>macht den letzten Befehl rückgängig</translation>
    </message>
    <message id="911091">
        <source></source>
        <extracomment>What REDO does</extracomment>
        <translation>stellt wieder her, was UNDO rückgängig gemacht hat</translation>
    </message>
    <message id="911092">
        <source></source>
        <extracomment>What IMPORT does</extracomment>
        <translation>importiert eine Datei eines anderen Programms</translation>
    </message>
    <message id="911093">
        <source></source>
        <extracomment>What ZOOM does</extracomment>
        <translation>zoomt die Ansicht</translation>
    </message>
    <message id="911094">
        <source></source>
        <extracomment>What REDRAW does</extracomment>
        <translation>zeichnet die Ansicht neu und entfernt Markierungen</translation>
    </message>
    <message id="911100">
        <source></source>
        <extracomment>Reason, after a file name and a colon</extracomment>
        <translation>beschädigt: Tabelle orv_meta enthält keine Version</translation>
    </message>
    <message id="911101">
        <source></source>
        <extracomment>Reason; version of the file, highest version</extracomment>
        <translation>von einem neueren Programm geschrieben: Version %d, dieses Programm liest Versionen bis %d</translation>
    </message>
    <message id="911102">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>beschädigt: Die eigenen Tabellen sind nicht lesbar</translation>
    </message>
    <message id="911103">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>beschädigt: Tabelle orv_meta enthält eine ungültige nächste Nummer</translation>
    </message>
    <message id="911104">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>das Speichern wurde abgebrochen</translation>
    </message>
    <message id="911105">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>die Zeichnung hat mehr Objekte, als eine Datei aufnehmen kann</translation>
    </message>
    <message id="911106">
        <source></source>
        <extracomment>Reason; object, layer</extracomment>
        <translation>Objekt %d auf Layer „%s“ hat eine ungültige Position</translation>
    </message>
    <message id="911107">
        <source></source>
        <extracomment>Count</extracomment>
        <translation>%d Objekte nicht unterstützter Typen wurden nicht gespeichert</translation>
    </message>
    <message id="911108">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie wurde durch eine andere oder ältere Datei ersetzt</translation>
    </message>
    <message id="911109">
        <source></source>
        <extracomment>Warning, after a file name and a colon</extracomment>
        <translation>ein anderes Programm hat sie seit dem Öffnen geändert; dessen übrige Änderungen bleiben erhalten und erscheinen beim nächsten Öffnen</translation>
    </message>
    <message id="911110">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>der Ordner existiert nicht</translation>
    </message>
    <message id="911111">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>das ist ein Ordner</translation>
    </message>
    <message id="911112">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>der Arbeitsspeicher reicht nicht aus</translation>
    </message>
    <message id="911113">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>die Zeichnung stammt nicht aus dieser Datei</translation>
    </message>
    <message id="911114">
        <source></source>
        <extracomment>Reason and its consequence</extracomment>
        <translation>%s; der übrige Inhalt der Datei wurde nicht kopiert</translation>
    </message>
    <message id="911115">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>ein anderes Programm hat sie gesperrt</translation>
    </message>
    <message id="911116">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message id="911117">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie ist schreibgeschützt</translation>
    </message>
    <message id="911118">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie kann nicht geöffnet werden, oder in den Ordner kann nicht geschrieben werden</translation>
    </message>
    <message id="911119">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie ist beschädigt</translation>
    </message>
    <message id="911120">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie ist beschädigt oder kein GeoPackage</translation>
    </message>
    <message id="911121">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Lesen oder Schreiben auf dem Datenträger ist fehlgeschlagen</translation>
    </message>
    <message id="911122">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie ist beschädigt oder von unbekanntem Typ</translation>
    </message>
    <message id="911123">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>das Lesen wurde abgebrochen</translation>
    </message>
    <message id="911124">
        <source></source>
        <extracomment>Table, count, why, number of a row</extracomment>
        <translation>%s: %d Zeilen übersprungen: %s (die erste ist Zeile %d)</translation>
    </message>
    <message id="911125">
        <source></source>
        <extracomment>Why rows are skipped</extracomment>
        <translation>die Geometrie passt nicht zur Tabelle</translation>
    </message>
    <message id="911126">
        <source></source>
        <extracomment>Why rows are skipped</extracomment>
        <translation>keine Geometrie</translation>
    </message>
    <message id="911127">
        <source></source>
        <extracomment>Why rows are skipped, or a file is refused</extracomment>
        <translation>ungültige Position</translation>
    </message>
    <message id="911128">
        <source></source>
        <extracomment>Table, column</extracomment>
        <translation>%s: Spalte %s enthält Binärdaten</translation>
    </message>
    <message id="911129">
        <source></source>
        <extracomment>Table</extracomment>
        <translation>%s: Das Koordinatensystem ist nicht das der Zeichnung</translation>
    </message>
    <message id="911130">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>die Datei ist nicht vorhanden</translation>
    </message>
    <message id="911131">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message id="911132">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie ist leer</translation>
    </message>
    <message id="911133">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie ist kein GeoPackage (IMPORT liest andere Dateien)</translation>
    </message>
    <message id="911134">
        <source></source>
        <extracomment>Reason; size, size it should have</extracomment>
        <translation>sie ist unvollständig: %d von %d Bytes</translation>
    </message>
    <message id="911135">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>der Ordner ist schreibgeschützt</translation>
    </message>
    <message id="911136">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie wurde während des Kopierens gekürzt</translation>
    </message>
    <message id="911137">
        <source></source>
        <extracomment>Reason; reason of that</extracomment>
        <translation>ein unvollendeter Schreibvorgang muss zuerst zurückgesetzt werden, was fehlschlug: %s</translation>
    </message>
    <message id="911138">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>ein anderes Programm hat sie geöffnet</translation>
    </message>
    <message id="911140">
        <source></source>
        <extracomment>Layer</extracomment>
        <translation>%s: Texte werden nicht importiert</translation>
    </message>
    <message id="911141">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie ist unvollständig</translation>
    </message>
    <message id="911142">
        <source></source>
        <extracomment>Layer, count</extracomment>
        <translation>%s: %d Zeilen ohne Geometrie übersprungen</translation>
    </message>
    <message id="911143">
        <source></source>
        <extracomment>Layer, row, reason</extracomment>
        <translation>Layer „%s“, Zeile %d: %s</translation>
    </message>
    <message id="911144">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie ist beschädigt oder ein binäres DXF</translation>
    </message>
    <message id="911145">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie kann nicht geöffnet werden</translation>
    </message>
    <message id="911146">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie ist unvollständig: Die letzte Zeile ist nicht EOF</translation>
    </message>
    <message id="911150">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Programm</translation>
    </message>
    <message id="911151">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Zeichnungen</translation>
    </message>
    <message id="911152">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Verlauf</translation>
    </message>
    <message id="911153">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Ansicht</translation>
    </message>
    <message id="911154">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Diagnose</translation>
    </message>
    <message id="911155">
        <source></source>
        <extracomment>Why a command cannot run</extracomment>
        <translation>Jetzt nicht ausführbar: %s.</translation>
    </message>
    <message id="911156">
        <source></source>
        <extracomment>The input</extracomment>
        <translation>Es gibt keinen Befehl „%s“. HELP listet die Befehle auf.</translation>
    </message>
    <message id="911157">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Die Hilfe konnte nicht geöffnet werden: %s</translation>
    </message>
    <message id="911158">
        <source></source>
        <extracomment>Why a command cannot run</extracomment>
        <translation>Keine Zeichnung ist geöffnet</translation>
    </message>
    <message id="911159">
        <source></source>
        <extracomment>Module, reason</extracomment>
        <translation>%s wurde nicht geladen: %s</translation>
    </message>
    <message id="911300">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Datei</translation>
    </message>
    <message id="911301">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Neu</translation>
    </message>
    <message id="911302">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message id="911303">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Speichern</translation>
    </message>
    <message id="911304">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message id="911305">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Importieren …</translation>
    </message>
    <message id="911306">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>S&amp;chließen</translation>
    </message>
    <message id="911307">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Beenden</translation>
    </message>
    <message id="911308">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message id="911309">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message id="911310">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message id="911311">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Ansicht</translation>
    </message>
    <message id="911312">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>Auf &amp;alles zoomen</translation>
    </message>
    <message id="911313">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Fenster</translation>
    </message>
    <message id="911314">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>Nä&amp;chstes Fenster</translation>
    </message>
    <message id="911315">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>Vo&amp;riges Fenster</translation>
    </message>
    <message id="911316">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>Alle Fenster &amp;hierher holen</translation>
    </message>
    <message id="911317">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>Farb&amp;schema</translation>
    </message>
    <message id="911318">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Systemeinstellung</translation>
    </message>
    <message id="911319">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Hell</translation>
    </message>
    <message id="911320">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Dunkel</translation>
    </message>
    <message id="911321">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Extras</translation>
    </message>
    <message id="911322">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>Befehls&amp;palette …</translation>
    </message>
    <message id="911323">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>Zur Befehls&amp;zeile</translation>
    </message>
    <message id="911324">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Hilfe</translation>
    </message>
    <message id="911325">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Befehle</translation>
    </message>
    <message id="911326">
        <source></source>
        <extracomment>Menu; title of a pane</extracomment>
        <translation>%s andocken</translation>
    </message>
    <message id="911327">
        <source></source>
        <extracomment>Menu; title of a pane</extracomment>
        <translation>%s ablösen</translation>
    </message>
    <message id="911330">
        <source></source>
        <extracomment>Title of a pane, and name of its input</extracomment>
        <translation>Befehlszeile</translation>
    </message>
    <message id="911331">
        <source></source>
        <extracomment>Button beside the progress bar</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message id="911332">
        <source></source>
        <extracomment>Name of a text area</extracomment>
        <translation>Meldungen</translation>
    </message>
    <message id="911333">
        <source></source>
        <extracomment>In an empty input</extracomment>
        <translation>Befehl eingeben oder Strg+Umschalt+P drücken</translation>
    </message>
    <message id="911334">
        <source></source>
        <extracomment>Name of a list of commands</extracomment>
        <translation>Befehlspalette</translation>
    </message>
    <message id="911335">
        <source></source>
        <extracomment>In an empty input</extracomment>
        <translation>Name oder Beschreibung eines Befehls</translation>
    </message>
    <message id="911336">
        <source></source>
        <extracomment>Name of an input</extracomment>
        <translation>Suche</translation>
    </message>
    <message id="911337">
        <source></source>
        <extracomment>Name of a list</extracomment>
        <translation>Befehle</translation>
    </message>
    <message id="911338">
        <source></source>
        <extracomment>Name of the tabs</extracomment>
        <translation>Zeichnungen</translation>
    </message>
    <message id="911339">
        <source></source>
        <extracomment>Title of a dialog</extracomment>
        <translation>Zeichnung öffnen</translation>
    </message>
    <message id="911340">
        <source></source>
        <extracomment>Title of a dialog</extracomment>
        <translation>Zeichnung speichern unter</translation>
    </message>
    <message id="911341">
        <source></source>
        <extracomment>Title of a dialog</extracomment>
        <translation>Datei importieren</translation>
    </message>
    <message id="911342">
        <source></source>
        <extracomment>Kinds of files in a dialog, followed by a pattern</extracomment>
        <translation>Zeichnungen</translation>
    </message>
    <message id="911343">
        <source></source>
        <extracomment>In place of an answer</extracomment>
        <translation>*Abbruch*</translation>
    </message>
    <message id="911344">
        <source></source>
        <extracomment>In place of an answer</extracomment>
        <translation>*Kein Objekt*</translation>
    </message>
    <message id="911345">
        <source></source>
        <extracomment>Name of the view</extracomment>
        <translation>Zeichnung</translation>
    </message>
    <message id="911350">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>die Fensteranordnung konnte nicht gespeichert werden: %s</translation>
    </message>
    <message id="911351">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie ist unvollständig oder wurde von einer anderen Version geschrieben</translation>
    </message>
    <message id="911352">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie enthält einen ungültigen Wert</translation>
    </message>
    <message id="911353">
        <source></source>
        <extracomment>File, reason</extracomment>
        <translation>%s: Die Fensteranordnung wird nicht verwendet: %s</translation>
    </message>
    <message id="911354">
        <source></source>
        <extracomment>Warning</extracomment>
        <translation>keine Schrift gefunden; Texte erscheinen als Kästchen</translation>
    </message>
    <message id="911355">
        <source></source>
        <extracomment>Warning</extracomment>
        <translation>das Bildschirmfoto konnte nicht gespeichert werden</translation>
    </message>
    <message id="911356">
        <source></source>
        <extracomment>Kinds of files in a dialog, followed by a pattern</extracomment>
        <translation>Alle Dateien</translation>
    </message>
    <message id="912000">
        <source></source>
        <extracomment>Problem of a network file</extracomment>
        <translation>die Datei ist leer</translation>
    </message>
    <message id="912001">
        <source></source>
        <extracomment>Problem of a network file</extracomment>
        <translation>die Datei ist größer als 4 GB</translation>
    </message>
    <message id="912002">
        <source></source>
        <extracomment>Problem of a network file</extracomment>
        <translation>die Datei ist in UTF-16; speichern Sie sie als UTF-8</translation>
    </message>
    <message id="912003">
        <source></source>
        <extracomment>Problem of a network file</extracomment>
        <translation>die Datei hat keine Knoten</translation>
    </message>
    <message id="912004">
        <source></source>
        <extracomment>Problem of a network file</extracomment>
        <translation>keine Netzdatei: Es fehlt der Abschnitt [JUNCTIONS] oder ein anderer mit Knoten</translation>
    </message>
    <message id="912006">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>die Datei kann nicht gelesen werden: %s</translation>
    </message>
    <message id="912007">
        <source></source>
        <extracomment>Count; ends a list</extracomment>
        <translation>... und %u weitere</translation>
    </message>
    <message id="912010">
        <source></source>
        <extracomment>Heading, count, count needed, names of the columns</extracomment>
        <translation>zu wenige Spalten in [%s]: %u statt %u (%s)</translation>
    </message>
    <message id="912011">
        <source></source>
        <extracomment>Kind of number, text</extracomment>
        <translation>%s %s ist keine Zahl</translation>
    </message>
    <message id="912012">
        <source></source>
        <extracomment>Kind of number, text</extracomment>
        <translation>%s %s ist größer als 1e15</translation>
    </message>
    <message id="912013">
        <source></source>
        <extracomment>Kind of number, text</extracomment>
        <translation>%s %s ist negativ</translation>
    </message>
    <message id="912014">
        <source></source>
        <extracomment>Kind of entity, name, line</extracomment>
        <translation>%s %s ist bereits in Zeile %u definiert</translation>
    </message>
    <message id="912020">
        <source></source>
        <extracomment>Kind of entity</extracomment>
        <translation>Knoten</translation>
    </message>
    <message id="912021">
        <source></source>
        <extracomment>Kind of entity</extracomment>
        <translation>Leitung</translation>
    </message>
    <message id="912022">
        <source></source>
        <extracomment>Kind of number</extracomment>
        <translation>Höhe</translation>
    </message>
    <message id="912023">
        <source></source>
        <extracomment>Kind of number</extracomment>
        <translation>Druckhöhe</translation>
    </message>
    <message id="912024">
        <source></source>
        <extracomment>Kind of number</extracomment>
        <translation>Länge</translation>
    </message>
    <message id="912025">
        <source></source>
        <extracomment>Kind of number</extracomment>
        <translation>Durchmesser</translation>
    </message>
    <message id="912026">
        <source></source>
        <extracomment>Kind of number</extracomment>
        <translation>x-Koordinate</translation>
    </message>
    <message id="912027">
        <source></source>
        <extracomment>Kind of number</extracomment>
        <translation>y-Koordinate</translation>
    </message>
    <message id="912030">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>Koordinaten für den unbekannten Knoten %s</translation>
    </message>
    <message id="912031">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>Knoten %s hat bereits Koordinaten; diese ersetzen sie</translation>
    </message>
    <message id="912032">
        <source></source>
        <translation>kein Knoten hat Koordinaten</translation>
    </message>
    <message id="912033">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>Knoten %s hat keine Koordinaten und wird weggelassen</translation>
    </message>
    <message id="912034">
        <source></source>
        <extracomment>Names of section and node</extracomment>
        <translation>Leitung %s verweist auf den fehlenden Knoten %s</translation>
    </message>
    <message id="912035">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>Profil für die unbekannte Leitung %s</translation>
    </message>
    <message id="912036">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>Stützpunkt für die unbekannte Leitung %s</translation>
    </message>
    <message id="912037">
        <source></source>
        <extracomment>Name, count</extracomment>
        <translation>Fläche %s hat nur %u Punkte und wird weggelassen</translation>
    </message>
    <message id="912038">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>Fläche für das unbekannte Teileinzugsgebiet %s</translation>
    </message>
    <message id="912039">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>Kennzeichen für den unbekannten Knoten %s</translation>
    </message>
    <message id="912040">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>Kennzeichen für die unbekannte Leitung %s</translation>
    </message>
    <message id="912041">
        <source></source>
        <extracomment>Count, limit</extracomment>
        <translation>die Zeile hat %u Zeichen; erlaubt sind höchstens %u</translation>
    </message>
    <message id="912042">
        <source></source>
        <translation>die Zeile enthält ein Nullbyte, dies ist also keine Textdatei</translation>
    </message>
    <message id="912043">
        <source></source>
        <translation>Text vor dem ersten Abschnitt wird ignoriert</translation>
    </message>
    <message id="912044">
        <source></source>
        <extracomment>Heading</extracomment>
        <translation>die Abschnittsüberschrift %s ist unvollständig</translation>
    </message>
    <message id="912045">
        <source></source>
        <extracomment>Heading</extracomment>
        <translation>der unbekannte Abschnitt %s wird ignoriert</translation>
    </message>
    <message id="912050">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>Name</translation>
    </message>
    <message id="912051">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>Name, Druckhöhe</translation>
    </message>
    <message id="912052">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>Name, Höhe</translation>
    </message>
    <message id="912053">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>Name, Anfangsknoten, Endknoten</translation>
    </message>
    <message id="912054">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>Name, Anfangsknoten, Endknoten, Länge, Durchmesser</translation>
    </message>
    <message id="912055">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>Name, Anfangsknoten, Endknoten, Durchmesser</translation>
    </message>
    <message id="912056">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>Name, Anfangsknoten, Endknoten, Länge</translation>
    </message>
    <message id="912057">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>Knoten, x, y</translation>
    </message>
    <message id="912058">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>Name, x, y</translation>
    </message>
    <message id="912059">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>Name, Form</translation>
    </message>
    <message id="912060">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>x, y, Text</translation>
    </message>
    <message id="912061">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>Art, Name, Kennzeichen</translation>
    </message>
    <message id="912070">
        <source></source>
        <extracomment>Label in a report</extracomment>
        <translation>Knoten</translation>
    </message>
    <message id="912071">
        <source></source>
        <extracomment>Label in a report</extracomment>
        <translation>Leitungen</translation>
    </message>
    <message id="912072">
        <source></source>
        <extracomment>Label in a report</extracomment>
        <translation>gezeichnete Länge</translation>
    </message>
    <message id="912073">
        <source></source>
        <extracomment>Label in a report</extracomment>
        <translation>angegebene Länge</translation>
    </message>
    <message id="912074">
        <source></source>
        <extracomment>Length, count</extracomment>
        <translation>%.2f, für %u Leitungen</translation>
    </message>
    <message id="912075">
        <source></source>
        <extracomment>Label in a report</extracomment>
        <translation>Teilnetze</translation>
    </message>
    <message id="912076">
        <source></source>
        <extracomment>Counts</extracomment>
        <translation>%u, das größte mit %u Knoten</translation>
    </message>
    <message id="912077">
        <source></source>
        <extracomment>Label in a report</extracomment>
        <translation>Ausdehnung</translation>
    </message>
    <message id="912078">
        <source></source>
        <extracomment>Two corners</extracomment>
        <translation>%.2f, %.2f bis %.2f, %.2f</translation>
    </message>
    <message id="912079">
        <source></source>
        <extracomment>Label in a report</extracomment>
        <translation>Höhen</translation>
    </message>
    <message id="912080">
        <source></source>
        <extracomment>Lowest, highest</extracomment>
        <translation>%.2f bis %.2f</translation>
    </message>
    <message id="912081">
        <source></source>
        <extracomment>Label in a report</extracomment>
        <translation>Flächen</translation>
    </message>
    <message id="912082">
        <source></source>
        <extracomment>Sum of a check</extracomment>
        <translation>keine Befunde</translation>
    </message>
    <message id="912085">
        <source></source>
        <extracomment>Kind of findings, followed by their count</extracomment>
        <translation>isolierte Knoten</translation>
    </message>
    <message id="912086">
        <source></source>
        <extracomment>Kind of findings</extracomment>
        <translation>deckungsgleiche Knoten</translation>
    </message>
    <message id="912087">
        <source></source>
        <extracomment>Kind of findings</extracomment>
        <translation>Leitungen mit Länge null</translation>
    </message>
    <message id="912088">
        <source></source>
        <extracomment>Kind of findings</extracomment>
        <translation>Leitungen mit fehlendem Knoten</translation>
    </message>
    <message id="912089">
        <source></source>
        <extracomment>Kind of findings</extracomment>
        <translation>parallele Leitungen</translation>
    </message>
    <message id="912090">
        <source></source>
        <extracomment>Kind of findings</extracomment>
        <translation>Kreuzungen ohne Knoten</translation>
    </message>
    <message id="912095">
        <source></source>
        <extracomment>Finding; node</extracomment>
        <translation>%s: isolierter Knoten, an dem keine Leitung beginnt oder endet</translation>
    </message>
    <message id="912096">
        <source></source>
        <extracomment>Finding; nodes</extracomment>
        <translation>%s: deckungsgleicher Knoten, liegt an derselben Stelle wie %s</translation>
    </message>
    <message id="912097">
        <source></source>
        <extracomment>Finding; section</extracomment>
        <translation>%s: Leitung mit Länge null</translation>
    </message>
    <message id="912098">
        <source></source>
        <extracomment>Finding; section</extracomment>
        <translation>%s: ein Knoten fehlt</translation>
    </message>
    <message id="912099">
        <source></source>
        <extracomment>Finding; section, node</extracomment>
        <translation>%s: verweist auf den fehlenden Knoten %s</translation>
    </message>
    <message id="912100">
        <source></source>
        <extracomment>Finding; section, nodes</extracomment>
        <translation>%s: verweist auf die fehlenden Knoten %s und %s</translation>
    </message>
    <message id="912101">
        <source></source>
        <extracomment>Finding; sections</extracomment>
        <translation>%s: parallele Leitung, verbindet dieselben Knoten wie %s</translation>
    </message>
    <message id="912102">
        <source></source>
        <extracomment>Finding; sections, place</extracomment>
        <translation>%s: kreuzt %s ohne Knoten bei %s</translation>
    </message>
    <message id="912110">
        <source></source>
        <extracomment>Kind of node</extracomment>
        <translation>Knoten</translation>
    </message>
    <message id="912111">
        <source></source>
        <extracomment>Kind of node</extracomment>
        <translation>Reservoir</translation>
    </message>
    <message id="912112">
        <source></source>
        <extracomment>Kind of node</extracomment>
        <translation>Behälter</translation>
    </message>
    <message id="912113">
        <source></source>
        <extracomment>Kind of node</extracomment>
        <translation>Auslass</translation>
    </message>
    <message id="912114">
        <source></source>
        <extracomment>Kind of node</extracomment>
        <translation>Speicher</translation>
    </message>
    <message id="912115">
        <source></source>
        <extracomment>Kind of node</extracomment>
        <translation>Verteiler</translation>
    </message>
    <message id="912116">
        <source></source>
        <extracomment>Kind of node or section</extracomment>
        <translation>Sonstige</translation>
    </message>
    <message id="912117">
        <source></source>
        <extracomment>Kind of section</extracomment>
        <translation>Rohr</translation>
    </message>
    <message id="912118">
        <source></source>
        <extracomment>Kind of section</extracomment>
        <translation>Pumpe</translation>
    </message>
    <message id="912119">
        <source></source>
        <extracomment>Kind of section</extracomment>
        <translation>Ventil</translation>
    </message>
    <message id="912120">
        <source></source>
        <extracomment>Kind of section</extracomment>
        <translation>Haltung</translation>
    </message>
    <message id="912121">
        <source></source>
        <extracomment>Kind of section</extracomment>
        <translation>Wehr</translation>
    </message>
    <message id="912122">
        <source></source>
        <extracomment>Kind of section</extracomment>
        <translation>Drossel</translation>
    </message>
    <message id="912123">
        <source></source>
        <extracomment>Kind of section</extracomment>
        <translation>Ablauf</translation>
    </message>
    <message id="912130">
        <source></source>
        <translation>Die Zeichnung hat keine Netze. Mit NETWORK_IMPORT lässt sich eines importieren.</translation>
    </message>
    <message id="912131">
        <source></source>
        <extracomment>Follows the name of a system that is hidden</extracomment>
        <translation>, aus</translation>
    </message>
    <message id="912132">
        <source></source>
        <translation>Die Zeichnung hat keine Systeme.</translation>
    </message>
    <message id="912140">
        <source></source>
        <extracomment>System and counts</extracomment>
        <translation>%s: %u Knoten, %u Leitungen</translation>
    </message>
    <message id="912141">
        <source></source>
        <extracomment>System and count</extracomment>
        <translation>%s: %u Flächen</translation>
    </message>
    <message id="912142">
        <source></source>
        <extracomment>Progress; file</extracomment>
        <translation>%s wird importiert</translation>
    </message>
    <message id="912143">
        <source></source>
        <extracomment>Progress; system</extracomment>
        <translation>%s wird eingefügt</translation>
    </message>
    <message id="912144">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Art des Netzes</translation>
    </message>
    <message id="912145">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Abstand, bis zu dem Leitungsenden einen gemeinsamen Knoten erhalten</translation>
    </message>
    <message id="912146">
        <source></source>
        <extracomment>File</extracomment>
        <translation>%s: enthält keine Punkte, Linien oder Flächen.</translation>
    </message>
    <message id="912148">
        <source></source>
        <extracomment>The input</extracomment>
        <translation>„%s“ ist kein gültiger Abstand.</translation>
    </message>
    <message id="912149">
        <source></source>
        <extracomment>Count</extracomment>
        <translation>%u der Knoten wurden an Leitungsenden erzeugt.</translation>
    </message>
    <message id="912150">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Netzdatei</translation>
    </message>
    <message id="912151">
        <source></source>
        <translation>Keine Datei angegeben.</translation>
    </message>
    <message id="912152">
        <source></source>
        <extracomment>File</extracomment>
        <translation>%s: Die Datei ist nicht vorhanden.</translation>
    </message>
    <message id="912153">
        <source></source>
        <translation>Kein Name angegeben.</translation>
    </message>
    <message id="912154">
        <source></source>
        <translation>Der Import wurde abgebrochen.</translation>
    </message>
    <message id="912200">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>ungültige Texthöhe</translation>
    </message>
    <message id="912201">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>eine geschweifte Klammer hat kein Gegenstück</translation>
    </message>
    <message id="912202">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>es fehlt ein Attribut wie {NAME}</translation>
    </message>
    <message id="912203">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>die Zahl der Nachkommastellen muss eine einzelne Ziffer sein</translation>
    </message>
    <message id="912204">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>ein Attribut hat keinen Namen</translation>
    </message>
    <message id="912205">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>das Attribut für die Höhe fehlt</translation>
    </message>
    <message id="912206">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Farben müssen zwischen 1 und 255 liegen</translation>
    </message>
    <message id="912207">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>die Anzahl der Klassen muss zwischen 1 und 12 liegen</translation>
    </message>
    <message id="912208">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>die Klassengrenzen müssen aufsteigend sortiert sein</translation>
    </message>
    <message id="912209">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>ungültige Klassen</translation>
    </message>
    <message id="912210">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>das Attribut fehlt</translation>
    </message>
    <message id="912211">
        <source></source>
        <extracomment>Column of a longitudinal section, at most 12 characters</extracomment>
        <translation>Station</translation>
    </message>
    <message id="912212">
        <source></source>
        <extracomment>Column of a longitudinal section, at most 10 characters</extracomment>
        <translation>Gelände</translation>
    </message>
    <message id="912213">
        <source></source>
        <extracomment>Column of a longitudinal section, at most 10 characters</extracomment>
        <translation>Sohle</translation>
    </message>
    <message id="912214">
        <source></source>
        <extracomment>Column of a longitudinal section, at most 9 characters</extracomment>
        <translation>Gefälle</translation>
    </message>
    <message id="912215">
        <source></source>
        <extracomment>Column of a longitudinal section</extracomment>
        <translation>Knoten</translation>
    </message>
    <message id="920001">
        <source></source>
        <extracomment>Report at a start; module, command</extracomment>
        <translation>%s registriert den Befehl %s, den das Programm bereits hat. Bei Eingabe läuft der Befehl des Programms.</translation>
    </message>
    <message id="920002">
        <source></source>
        <extracomment>Report at a start; module, command, command</extracomment>
        <translation>%s registriert den Befehl %s, der sich von %s nur in der Groß- und Kleinschreibung unterscheidet.</translation>
    </message>
    <message id="920010">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Anlegen</translation>
    </message>
    <message id="920011">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Bearbeiten</translation>
    </message>
    <message id="920012">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Löschen</translation>
    </message>
    <message id="920013">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Netze und Werkzeuge</translation>
    </message>
    <message id="920014">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Weitere Befehle</translation>
    </message>
    <message id="920015">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Konfigurationen ausführen</translation>
    </message>
    <message id="930000">
        <source></source>
        <extracomment>Name of a module</extracomment>
        <translation>Konfigurationen</translation>
    </message>
    <message id="930001">
        <source></source>
        <extracomment>Reason; with the id of a command</extracomment>
        <translation>„%s“ ist kein Befehl für Konfigurationen.</translation>
    </message>
    <message id="930002">
        <source></source>
        <extracomment>Reason; with the tag of a family</extracomment>
        <translation>Kein geladenes Modul stellt Konfigurationen der Familie „%s“ bereit.</translation>
    </message>
    <message id="930003">
        <source></source>
        <extracomment>Reason; with the tag of a family</extracomment>
        <translation>Das Modul der Familie „%s“ stellt keinen Speicherort für ihre Konfigurationen bereit.</translation>
    </message>
    <message id="930004">
        <source></source>
        <extracomment>Reason; with the id of a command</extracomment>
        <translation>„%s“ kann nur Konfigurationen der eigenen Familie ausführen.</translation>
    </message>
    <message id="930005">
        <source></source>
        <extracomment>Message; with the system and the configuration</extracomment>
        <translation>%s: Der Standard „%s“ wird angezeigt.</translation>
    </message>
    <message id="930006">
        <source></source>
        <extracomment>Name of a step that can be undone</extracomment>
        <translation>Standards anzeigen</translation>
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
    <message id="951000">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie wurde seit dem Öffnen von einem anderen Programm gespeichert</translation>
    </message>
    <message id="951001">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>an ihrer Stelle liegt jetzt eine andere Zeichnung</translation>
    </message>
    <message id="951002">
        <source></source>
        <extracomment>Who saved a drawing; user, host, program, time</extracomment>
        <translation>%s auf %s, %s, %s UTC</translation>
    </message>
    <message id="951003">
        <source></source>
        <extracomment>Reason; with a reason and who saved last</extracomment>
        <translation>%s (zuletzt gespeichert: %s)</translation>
    </message>
    <message id="951004">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>das Warten auf die Sperre eines anderen Programms wurde abgebrochen</translation>
    </message>
    <message id="951005">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>an ihrer Stelle liegt seit eben eine andere Datei; bitte noch einmal versuchen</translation>
    </message>
    <message id="951006">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>ein anderes Programm hat sie eben geändert; bitte noch einmal versuchen</translation>
    </message>
    <message id="951007">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>ihre symbolischen Verknüpfungen bilden eine Schleife</translation>
    </message>
    <message id="951008">
        <source></source>
        <extracomment>Reason; with a table</extracomment>
        <translation>die Tabelle %s fehlt; ihr Inhalt fehlt in der Zeichnung</translation>
    </message>
    <message id="951009">
        <source></source>
        <extracomment>Reason; with tables</extracomment>
        <translation>die Tabellen %s fehlen; ihr Inhalt fehlt in der Zeichnung</translation>
    </message>
    <message id="951010">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>die Datei verzeichnet nicht, was sich seit dem Öffnen geändert hat</translation>
    </message>
    <message id="951011">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>niemand sonst hat sie seit dem Öffnen gespeichert</translation>
    </message>
    <message id="951012">
        <source></source>
        <extracomment>Report; with names</extracomment>
        <translation>hinzugefügte Systeme: %s</translation>
    </message>
    <message id="951013">
        <source></source>
        <extracomment>Report; with names</extracomment>
        <translation>geänderte Systeme: %s</translation>
    </message>
    <message id="951014">
        <source></source>
        <extracomment>Report; with names</extracomment>
        <translation>entfernte Systeme: %s</translation>
    </message>
    <message id="951015">
        <source></source>
        <extracomment>Report; where, and three counts</extracomment>
        <translation>%s: %d Objekte hinzugefügt, %d geändert, %d entfernt</translation>
    </message>
    <message id="951016">
        <source></source>
        <extracomment>Report; count and numbers</extracomment>
        <translation>Auf beiden Seiten geändert: %d Objekte (%s)</translation>
    </message>
    <message id="951017">
        <source></source>
        <extracomment>Report; with names</extracomment>
        <translation>Auf beiden Seiten geändert: %s</translation>
    </message>
    <message id="951018">
        <source></source>
        <extracomment>Report</extracomment>
        <translation>In dieser Zeichnung</translation>
    </message>
    <message id="951019">
        <source></source>
        <extracomment>Report</extracomment>
        <translation>In der Datei</translation>
    </message>
    <message id="951020">
        <source></source>
        <extracomment>Report</extracomment>
        <translation>Übernommen</translation>
    </message>
    <message id="951021">
        <source></source>
        <extracomment>Report</extracomment>
        <translation>Der Verlauf für Rückgängig wurde geleert.</translation>
    </message>
    <message id="951022">
        <source></source>
        <extracomment>Report</extracomment>
        <translation>Die Zeichnung behält davon Ihre Fassungen. Sie sind noch nicht gespeichert: SAVE überschreibt die anderen.</translation>
    </message>
    <message id="951023">
        <source></source>
        <extracomment>Choice</extracomment>
        <translation>Speichern unter</translation>
    </message>
    <message id="951024">
        <source></source>
        <extracomment>Choice</extracomment>
        <translation>Unterschiede zeigen</translation>
    </message>
    <message id="951025">
        <source></source>
        <extracomment>Choice</extracomment>
        <translation>Fremde Änderungen übernehmen</translation>
    </message>
    <message id="951026">
        <source></source>
        <extracomment>Choice</extracomment>
        <translation>Trotzdem schreiben</translation>
    </message>
    <message id="951027">
        <source></source>
        <extracomment>Question after a save was refused</extracomment>
        <translation>Wie möchten Sie fortfahren?</translation>
    </message>
    <message id="951028">
        <source></source>
        <extracomment>Message; drawing and reason</extracomment>
        <translation>%s ist nur zum Lesen geöffnet: %s</translation>
    </message>
    <message id="951029">
        <source></source>
        <extracomment>Question; with the file</extracomment>
        <translation>%s hat sich seit dem Öffnen geändert; beim Ersetzen geht verloren, was andere darin gespeichert haben. Ersetzen?</translation>
    </message>
    <message id="951030">
        <source></source>
        <extracomment>Message; drawing, user, host, program, time</extracomment>
        <translation>%s ist auch anderswo geöffnet: %s auf %s, %s, seit %s UTC</translation>
    </message>
    <message id="951031">
        <source></source>
        <extracomment>Question</extracomment>
        <translation>Nur zum Lesen öffnen?</translation>
    </message>
    <message id="951032">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>ein anderes Programm hat sie geöffnet</translation>
    </message>
    <message id="951033">
        <source></source>
        <extracomment>In the list of drawings</extracomment>
        <translation>, nur zum Lesen</translation>
    </message>
    <message id="951034">
        <source></source>
        <extracomment>Message; drawing</extracomment>
        <translation>%s ist nur zum Lesen geöffnet.</translation>
    </message>
    <message id="951040">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>sie ist nur zum Lesen geöffnet</translation>
    </message>
    <message id="951041">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message id="960001">
        <source></source>
        <extracomment>Label in the general settings, with its letter</extracomment>
        <translation>Rückgängig-&amp;Verlauf in MB (0 = unbegrenzt):</translation>
    </message>
    <message id="960002">
        <source></source>
        <extracomment>Message; with the limit</extracomment>
        <translation>Der Rückgängig-Verlauf hat seine Grenze von %d MB erreicht: Sein ältester Schritt lässt sich nicht mehr zurücknehmen.</translation>
    </message>
    <message id="960003">
        <source></source>
        <extracomment>Message; with the limit and the number of steps, two or more</extracomment>
        <translation>Der Rückgängig-Verlauf hat seine Grenze von %d MB erreicht: Seine %d ältesten Schritte lassen sich nicht mehr zurücknehmen.</translation>
    </message>
    <message id="962000">
        <source></source>
        <extracomment>Reason; with the name of a configuration, who and when</extracomment>
        <translation>„%s“ wurde von %s am %s geändert, seit es hier gelesen wurde.</translation>
    </message>
    <message id="962001">
        <source></source>
        <extracomment>Reason; with the name of a configuration</extracomment>
        <translation>„%s“ wurde gelöscht, seit es hier gelesen wurde.</translation>
    </message>
    <message id="962002">
        <source></source>
        <extracomment>Reason why a configuration is not written</extracomment>
        <translation>sie ist schreibgeschützt</translation>
    </message>
    <message id="962003">
        <source></source>
        <extracomment>Reason why a configuration is not written</extracomment>
        <translation>ein anderes Programm schreibt gerade in diesen Ordner; versuchen Sie es noch einmal</translation>
    </message>
    <message id="962004">
        <source></source>
        <extracomment>Button: chooses a folder</extracomment>
        <translation>D&amp;urchsuchen...</translation>
    </message>
    <message id="962005">
        <source></source>
        <extracomment>Title of a window in which a folder is chosen</extracomment>
        <translation>Ordner der Netzablage</translation>
    </message>
    <message id="962006">
        <source></source>
        <extracomment>Reason; with the name of a configuration and why</extracomment>
        <translation>„%s“ konnte nicht gelöscht werden: %s</translation>
    </message>
    <message id="962010">
        <source></source>
        <extracomment>Question, its answers follow; with the name of a configuration, who and when</extracomment>
        <translation>„%s“ wurde inzwischen von %s am %s geändert. Welche Fassung soll bleiben?</translation>
    </message>
    <message id="962011">
        <source></source>
        <extracomment>Question, its answers follow; with the name of a configuration</extracomment>
        <translation>„%s“ wurde inzwischen von jemand anderem gelöscht. Ihre Fassung behalten oder das Löschen annehmen?</translation>
    </message>
    <message id="962012">
        <source></source>
        <extracomment>Answer: the version of this user</extracomment>
        <translation>Meine</translation>
    </message>
    <message id="962013">
        <source></source>
        <extracomment>Answer: the version of another user</extracomment>
        <translation>Andere</translation>
    </message>
    <message id="962014">
        <source></source>
        <extracomment>Answer: both versions</extracomment>
        <translation>Beide</translation>
    </message>
    <message id="962015">
        <source></source>
        <extracomment>Question; with the name of a configuration, who and when</extracomment>
        <translation>„%s“ wurde inzwischen von %s am %s geändert. Trotzdem löschen?</translation>
    </message>
    <message id="962016">
        <source></source>
        <extracomment>Message; with the name of a configuration</extracomment>
        <translation>„%s“ bleibt so, wie die andere Person es hinterlassen hat.</translation>
    </message>
</context>
</TS>
