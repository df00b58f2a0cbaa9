<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en" language="en">
<context>
    <name></name>
    <message id="0">
        <source></source>
        <extracomment>Short name of the language in the address of the help pages</extracomment>
        <translation>EN</translation>
    </message>
    <message id="235">
        <source></source>
        <extracomment>Button</extracomment>
        <translation>OK</translation>
    </message>
    <message id="380">
        <source></source>
        <extracomment>Tooltip of the main panel</extracomment>
        <translation>Search for entities</translation>
    </message>
    <message id="381">
        <source></source>
        <extracomment>Tooltip of the main panel and of dialogs</extracomment>
        <translation>General settings</translation>
    </message>
    <message id="464">
        <source></source>
        <extracomment>Column of the system manager's details</extracomment>
        <translation>Property</translation>
    </message>
    <message id="975">
        <source></source>
        <extracomment>Tool group of a system</extracomment>
        <translation>Draw</translation>
    </message>
    <message id="1124">
        <source></source>
        <extracomment>Tool group of a system</extracomment>
        <translation>Edit</translation>
    </message>
    <message id="1216">
        <source></source>
        <extracomment>Column of the system manager: the system's function</extracomment>
        <translation>Function</translation>
    </message>
    <message id="1253">
        <source></source>
        <extracomment>Column of the system manager</extracomment>
        <translation>System</translation>
    </message>
    <message id="1257">
        <source></source>
        <extracomment>Column of the system manager's details</extracomment>
        <translation>Value</translation>
    </message>
    <message id="1264">
        <source></source>
        <extracomment>Command of a system</extracomment>
        <translation>Add system</translation>
    </message>
    <message id="1379">
        <source></source>
        <extracomment>Command of a repository item</extracomment>
        <translation>Rename</translation>
    </message>
    <message id="1969">
        <source></source>
        <extracomment>Column of the system manager</extracomment>
        <translation>Colour</translation>
    </message>
    <message id="2358">
        <source></source>
        <extracomment>Tooltip of the system manager</extracomment>
        <translation>Delete the selected systems</translation>
    </message>
    <message id="2780">
        <source></source>
        <extracomment>Root of the system tree</extracomment>
        <translation>Systems</translation>
    </message>
    <message id="2781">
        <source></source>
        <extracomment>Tooltip of the main panel</extracomment>
        <translation>Refresh</translation>
    </message>
    <message id="2910">
        <source></source>
        <extracomment>Command of a system and of a repository item</extracomment>
        <translation>Edit</translation>
    </message>
    <message id="3311">
        <source></source>
        <extracomment>Tooltip of the main panel and the system manager</extracomment>
        <translation>Pick a system in the drawing</translation>
    </message>
    <message id="4037">
        <source></source>
        <extracomment>Command of a system; tooltip of the main panel</extracomment>
        <translation>Delete system</translation>
    </message>
    <message id="4378">
        <source></source>
        <extracomment>Command of a repository item; tooltip of the main panel</extracomment>
        <translation>Add</translation>
    </message>
    <message id="4994">
        <source></source>
        <extracomment>Column of the system manager: a count</extracomment>
        <translation>Sections</translation>
    </message>
    <message id="5082">
        <source></source>
        <extracomment>Column of the system manager: a count</extracomment>
        <translation>Polygons</translation>
    </message>
    <message id="5247">
        <source></source>
        <extracomment>Prompt on the command line</extracomment>
        <translation>
The systems are marked. Press Enter to continue: </translation>
    </message>
    <message id="5248">
        <source></source>
        <extracomment>Tooltip of the system manager</extracomment>
        <translation>Zoom to the selected systems</translation>
    </message>
    <message id="5249">
        <source></source>
        <extracomment>Tooltip of the system manager</extracomment>
        <translation>Mark the selected systems</translation>
    </message>
    <message id="5362">
        <source></source>
        <extracomment>Tooltip of the main panel</extracomment>
        <translation>Delete temporary polygons</translation>
    </message>
    <message id="5368">
        <source></source>
        <extracomment>Question</extracomment>
        <translation>Delete all temporary polygons of the active system?</translation>
    </message>
    <message id="5376">
        <source></source>
        <extracomment>Tool group of a system</extracomment>
        <translation>Tools</translation>
    </message>
    <message id="5764">
        <source></source>
        <extracomment>Root of the disk and of the net repository tree</extracomment>
        <translation>Repository</translation>
    </message>
    <message id="6043">
        <source></source>
        <extracomment>Command of a repository item</extracomment>
        <translation>Delete</translation>
    </message>
    <message id="6065">
        <source></source>
        <extracomment>Command of a repository item</extracomment>
        <translation>Run</translation>
    </message>
    <message id="6066">
        <source></source>
        <extracomment>Command of a repository item</extracomment>
        <translation>Copy</translation>
    </message>
    <message id="6072">
        <source></source>
        <extracomment>Command of a repository item</extracomment>
        <translation>Send to ...</translation>
    </message>
    <message id="6218">
        <source></source>
        <extracomment>Command of a system</extracomment>
        <translation>Show or hide system</translation>
    </message>
    <message id="6356">
        <source></source>
        <extracomment>Entry of the settings menu</extracomment>
        <translation>Reset dialog positions</translation>
    </message>
    <message id="6534">
        <source></source>
        <extracomment>Tooltip of the main panel</extracomment>
        <translation>Catalogues</translation>
    </message>
    <message id="7066">
        <source></source>
        <extracomment>Entry of the settings menu</extracomment>
        <translation>Topology configuration ...</translation>
    </message>
    <message id="7221">
        <source></source>
        <extracomment>Label of the system manager</extracomment>
        <translation>Details:</translation>
    </message>
    <message id="7246">
        <source></source>
        <extracomment>Tooltip of a dialog's caption button</extracomment>
        <translation>Collapse</translation>
    </message>
    <message id="7247">
        <source></source>
        <extracomment>Tooltip of a dialog's caption button</extracomment>
        <translation>Expand</translation>
    </message>
    <message id="7533">
        <source></source>
        <extracomment>Filter button of the log view, followed by a count</extracomment>
        <translation>Errors</translation>
    </message>
    <message id="7534">
        <source></source>
        <extracomment>Filter button of the log view, followed by a count</extracomment>
        <translation>Information</translation>
    </message>
    <message id="7535">
        <source></source>
        <extracomment>Filter button of the log view, followed by a count</extracomment>
        <translation>Warnings</translation>
    </message>
    <message id="7623">
        <source></source>
        <extracomment>Question of the system manager</extracomment>
        <translation>Delete the selected systems with all their entities?</translation>
    </message>
    <message id="7690">
        <source></source>
        <extracomment>Label of the main panel's system selector</extracomment>
        <translation>System:</translation>
    </message>
    <message id="8036">
        <source></source>
        <extracomment>Entry of the settings menu</extracomment>
        <translation>About ...</translation>
    </message>
    <message id="8038">
        <source></source>
        <extracomment>Tooltip of the main panel</extracomment>
        <translation>Edit system</translation>
    </message>
    <message id="8039">
        <source></source>
        <extracomment>Tooltip of the main panel and the system manager</extracomment>
        <translation>Turn system on or off</translation>
    </message>
    <message id="8040">
        <source></source>
        <extracomment>Tooltip of the main panel</extracomment>
        <translation>Log messages</translation>
    </message>
    <message id="8041">
        <source></source>
        <extracomment>Tooltip of the main panel</extracomment>
        <translation>Settings</translation>
    </message>
    <message id="8042">
        <source></source>
        <extracomment>Tooltip of the main panel</extracomment>
        <translation>Information tools</translation>
    </message>
    <message id="8690">
        <source></source>
        <extracomment>Entry of the catalogue menu</extracomment>
        <translation>Rule editor ...</translation>
    </message>
    <message id="8948">
        <source></source>
        <extracomment>Entry of the settings menu</extracomment>
        <translation>Include subsystems in selections</translation>
    </message>
    <message id="9056">
        <source></source>
        <extracomment>Command of a repository item</extracomment>
        <translation>Set as default</translation>
    </message>
    <message id="9134">
        <source></source>
        <extracomment>Title of the log view</extracomment>
        <translation>Log messages</translation>
    </message>
    <message id="9571">
        <source></source>
        <extracomment>Tool group of a system</extracomment>
        <translation>Managers</translation>
    </message>
    <message id="10276">
        <source></source>
        <extracomment>Entry of the settings menu</extracomment>
        <translation>Repository configuration ...</translation>
    </message>
    <message id="10299">
        <source></source>
        <extracomment>Heading of the memory report</extracomment>
        <translation>Memory in MiB</translation>
    </message>
    <message id="10300">
        <source></source>
        <extracomment>Memory report, followed by a number</extracomment>
        <translation>Available</translation>
    </message>
    <message id="10301">
        <source></source>
        <extracomment>Memory report, followed by a number</extracomment>
        <translation>Used</translation>
    </message>
    <message id="10530">
        <source></source>
        <extracomment>Tooltip at the cursor</extracomment>
        <translation>Pick an entity of the system</translation>
    </message>
    <message id="10803">
        <source></source>
        <extracomment>Alert of the system manager</extracomment>
        <translation>Please select exactly one system.</translation>
    </message>
    <message id="10804">
        <source></source>
        <extracomment>Title of the system manager; entry of the information menu</extracomment>
        <translation>System manager</translation>
    </message>
    <message id="10805">
        <source></source>
        <extracomment>Statistic of a network: a count</extracomment>
        <translation>Sections</translation>
    </message>
    <message id="10806">
        <source></source>
        <extracomment>Statistic of a network: a count</extracomment>
        <translation>Nodes</translation>
    </message>
    <message id="10807">
        <source></source>
        <extracomment>Statistic of a network: nodes with one section</extracomment>
        <translation>End nodes</translation>
    </message>
    <message id="10808">
        <source></source>
        <extracomment>Statistic of a network: nodes with two sections</extracomment>
        <translation>Through nodes</translation>
    </message>
    <message id="10809">
        <source></source>
        <extracomment>Statistic of a network: nodes with more sections</extracomment>
        <translation>Branch nodes</translation>
    </message>
    <message id="10810">
        <source></source>
        <extracomment>Statistic of a network: nodes without a section</extracomment>
        <translation>Isolated nodes</translation>
    </message>
    <message id="10811">
        <source></source>
        <extracomment>Statistic of a network: a count</extracomment>
        <translation>Independent loops</translation>
    </message>
    <message id="10812">
        <source></source>
        <extracomment>Statistic of a network: a count</extracomment>
        <translation>Connected parts</translation>
    </message>
    <message id="10813">
        <source></source>
        <extracomment>Statistic of a network: drawing units</extracomment>
        <translation>Total length</translation>
    </message>
    <message id="10814">
        <source></source>
        <extracomment>Statistic of an alignment system: a count</extracomment>
        <translation>Alignments</translation>
    </message>
    <message id="10815">
        <source></source>
        <extracomment>Statistic of an alignment system: a count</extracomment>
        <translation>Main points</translation>
    </message>
    <message id="10816">
        <source></source>
        <extracomment>Statistic of an alignment system: a count</extracomment>
        <translation>Longitudinal sections</translation>
    </message>
    <message id="10817">
        <source></source>
        <extracomment>Statistic of an alignment system: a count</extracomment>
        <translation>Cross-sections</translation>
    </message>
    <message id="10818">
        <source></source>
        <extracomment>Statistic of a polygon system: a count</extracomment>
        <translation>Polygons</translation>
    </message>
    <message id="10819">
        <source></source>
        <extracomment>Statistic of a polygon system: a count</extracomment>
        <translation>Polygon nodes</translation>
    </message>
    <message id="10820">
        <source></source>
        <extracomment>Statistic of a polygon system: square drawing units</extracomment>
        <translation>Total area</translation>
    </message>
    <message id="10821">
        <source></source>
        <extracomment>Alert of the system manager</extracomment>
        <translation>The entity belongs to no system.</translation>
    </message>
    <message id="10831">
        <source></source>
        <extracomment>Tool group of a system</extracomment>
        <translation>Fast commands</translation>
    </message>
    <message id="11212">
        <source></source>
        <extracomment>Entry of the settings menu</extracomment>
        <translation>Delete all modeless dialogs</translation>
    </message>
    <message id="50005">
        <source></source>
        <extracomment>Question before dialogs are reset</extracomment>
        <translation>Are you sure?</translation>
    </message>
    <message id="50156">
        <source></source>
        <extracomment>Tooltip of the main panel and of dialogs</extracomment>
        <translation>Help</translation>
    </message>
    <message id="55002">
        <source></source>
        <extracomment>Tooltip of the system manager</extracomment>
        <translation>Make the selected system active</translation>
    </message>
    <message id="55006">
        <source></source>
        <extracomment>Tool group of a system</extracomment>
        <translation>Set data</translation>
    </message>
    <message id="55023">
        <source></source>
        <extracomment>Title of the main panel</extracomment>
        <translation>Workspace</translation>
    </message>
    <message id="61014">
        <source></source>
        <extracomment>Column of the system manager: a count</extracomment>
        <translation>Nodes</translation>
    </message>
    <message id="900001">
        <source></source>
        <extracomment>Name of a module</extracomment>
        <translation>Network</translation>
    </message>
    <message id="900002">
        <source></source>
        <extracomment>Name of a module</extracomment>
        <translation>Panels</translation>
    </message>
    <message id="900101">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>Import network</translation>
    </message>
    <message id="900102">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>creates systems from a water (EPANET) or sewer (SWMM) network file, or from the points, lines and areas of any other file</translation>
    </message>
    <message id="900103">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>Network statistics</translation>
    </message>
    <message id="900104">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>prints counts, lengths, extents and connected components of each network</translation>
    </message>
    <message id="900105">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>Check network</translation>
    </message>
    <message id="900106">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>lists the problems of each network</translation>
    </message>
    <message id="900107">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>List systems</translation>
    </message>
    <message id="900108">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>lists the systems of the drawing</translation>
    </message>
    <message id="900109">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>Activate system</translation>
    </message>
    <message id="900110">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>activates a system</translation>
    </message>
    <message id="900120">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>%s polygons</translation>
    </message>
    <message id="900130">
        <source></source>
        <extracomment>Family of configurations</extracomment>
        <translation>Queries</translation>
    </message>
    <message id="900131">
        <source></source>
        <extracomment>Family of configurations</extracomment>
        <translation>Themes</translation>
    </message>
    <message id="900132">
        <source></source>
        <extracomment>Family of configurations</extracomment>
        <translation>Labels</translation>
    </message>
    <message id="900133">
        <source></source>
        <extracomment>Family of configurations</extracomment>
        <translation>Longitudinal sections</translation>
    </message>
    <message id="900200">
        <source></source>
        <extracomment>Name of a topology</extracomment>
        <translation>Lines</translation>
    </message>
    <message id="900201">
        <source></source>
        <extracomment>Name of a topology</extracomment>
        <translation>Polygons</translation>
    </message>
    <message id="900202">
        <source></source>
        <extracomment>Name of a topology</extracomment>
        <translation>Points</translation>
    </message>
    <message id="900203">
        <source></source>
        <extracomment>Name of a topology</extracomment>
        <translation>Schemes</translation>
    </message>
    <message id="900220">
        <source></source>
        <extracomment>Kind of entity</extracomment>
        <translation>Node</translation>
    </message>
    <message id="900221">
        <source></source>
        <extracomment>Kind of entity</extracomment>
        <translation>Section</translation>
    </message>
    <message id="900222">
        <source></source>
        <extracomment>Kind of entity</extracomment>
        <translation>Polygon</translation>
    </message>
    <message id="900223">
        <source></source>
        <extracomment>Kind of entity</extracomment>
        <translation>Polygon node</translation>
    </message>
    <message id="900224">
        <source></source>
        <extracomment>Kind of entity</extracomment>
        <translation>Point</translation>
    </message>
    <message id="900240">
        <source></source>
        <extracomment>What a line system is for</extracomment>
        <translation>Water supply</translation>
    </message>
    <message id="900241">
        <source></source>
        <extracomment>What a line system is for</extracomment>
        <translation>Sewer</translation>
    </message>
    <message id="900242">
        <source></source>
        <extracomment>What a line system is for</extracomment>
        <translation>Storm water</translation>
    </message>
    <message id="900243">
        <source></source>
        <extracomment>What a line system is for</extracomment>
        <translation>Gas</translation>
    </message>
    <message id="900244">
        <source></source>
        <extracomment>What a line system is for</extracomment>
        <translation>District heating</translation>
    </message>
    <message id="900245">
        <source></source>
        <extracomment>What a line system is for</extracomment>
        <translation>Electricity</translation>
    </message>
    <message id="900246">
        <source></source>
        <extracomment>What a line system is for</extracomment>
        <translation>Telecommunication</translation>
    </message>
    <message id="900247">
        <source></source>
        <extracomment>What a line system is for</extracomment>
        <translation>Alignment</translation>
    </message>
    <message id="900250">
        <source></source>
        <extracomment>What a scheme is for</extracomment>
        <translation>Assembly scheme</translation>
    </message>
    <message id="900300">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>No drawing is open.</translation>
    </message>
    <message id="900301">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>A system needs a name.</translation>
    </message>
    <message id="900302">
        <source></source>
        <extracomment>Reason, with the name of the other system</extracomment>
        <translation>The drawing already has a system "%s".</translation>
    </message>
    <message id="900303">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>The configuration has no topology %d.</translation>
    </message>
    <message id="900304">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>The topology has no function %d.</translation>
    </message>
    <message id="900310">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>A configuration needs a name.</translation>
    </message>
    <message id="900311">
        <source></source>
        <extracomment>Reason; with the name</extracomment>
        <translation>There is another configuration named &quot;%s&quot;.</translation>
    </message>
    <message id="900312">
        <source></source>
        <extracomment>Reason; with the name</extracomment>
        <translation>"%s" already exists there.</translation>
    </message>
    <message id="900313">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>The configuration no longer exists.</translation>
    </message>
    <message id="900314">
        <source></source>
        <extracomment>Reason; with the name and why</extracomment>
        <translation>&quot;%s&quot; could not be written: %s</translation>
    </message>
    <message id="900315">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>The drawing is busy and cannot be changed now.</translation>
    </message>
    <message id="900316">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Only configurations of a system can be the default.</translation>
    </message>
    <message id="900331">
        <source></source>
        <extracomment>Label in the general settings, with its mnemonic</extracomment>
        <translation>&amp;Language:</translation>
    </message>
    <message id="900332">
        <source></source>
        <extracomment>Label in the general settings, with its mnemonic</extracomment>
        <translation>&amp;Minutes between autosaves (0 = off):</translation>
    </message>
    <message id="900333">
        <source></source>
        <extracomment>Check box in the general settings, with its mnemonic</extracomment>
        <translation>&amp;Run queries dropped on a dialog</translation>
    </message>
    <message id="900334">
        <source></source>
        <extracomment>Label in the general settings, with its mnemonic</extracomment>
        <translation>C&amp;olour of highlights:</translation>
    </message>
    <message id="900335">
        <source></source>
        <extracomment>Label in the general settings, with its mnemonic</extracomment>
        <translation>&amp;Decimals for equal positions:</translation>
    </message>
    <message id="900336">
        <source></source>
        <extracomment>Label in the general settings, with its mnemonic</extracomment>
        <translation>&amp;Net repository (folder):</translation>
    </message>
    <message id="900340">
        <source></source>
        <extracomment>Button</extracomment>
        <translation>Cancel</translation>
    </message>
    <message id="900341">
        <source></source>
        <extracomment>Button: chooses a colour</extracomment>
        <translation>&amp;Choose</translation>
    </message>
    <message id="900345">
        <source></source>
        <extracomment>Reason; with a setting, the lowest and the highest number</extracomment>
        <translation>"%s" must be a whole number from %d to %d.</translation>
    </message>
    <message id="900346">
        <source></source>
        <extracomment>Reason; with a setting</extracomment>
        <translation>"%s" must be a single line of text.</translation>
    </message>
    <message id="900347">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>The settings could not be written: %s</translation>
    </message>
    <message id="900400">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Name</translation>
    </message>
    <message id="900401">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Entities</translation>
    </message>
    <message id="900402">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Match (all or any condition)</translation>
    </message>
    <message id="900403">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Condition %d (attribute, operator, value; - removes)</translation>
    </message>
    <message id="900404">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>"%s" is not a condition. Enter an attribute, one of = &lt;&gt; &lt; &lt;= &gt; &gt;= contains empty, and a value.</translation>
    </message>
    <message id="900405">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Attribute</translation>
    </message>
    <message id="900406">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Note: no entity of this kind in %s has an attribute "%s".</translation>
    </message>
    <message id="900407">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Classes</translation>
    </message>
    <message id="900408">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Number of classes</translation>
    </message>
    <message id="900409">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Breaks between classes, separated by spaces (- to compute them)</translation>
    </message>
    <message id="900410">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Colours 1 to 255, separated by spaces (- for the defaults)</translation>
    </message>
    <message id="900411">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>"%s" is not a list of numbers.</translation>
    </message>
    <message id="900412">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Text with attributes in braces</translation>
    </message>
    <message id="900413">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Text height (0 = automatic)</translation>
    </message>
    <message id="900414">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>"%s" is not a valid text height.</translation>
    </message>
    <message id="900415">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>From node (- to ask each time)</translation>
    </message>
    <message id="900416">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>To node (- to ask each time)</translation>
    </message>
    <message id="900417">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Attribute for the height</translation>
    </message>
    <message id="900418">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Attribute for the depth (- for none)</translation>
    </message>
    <message id="900419">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>"%s" is not one of %s.</translation>
    </message>
    <message id="900420">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Invalid input: %s.</translation>
    </message>
    <message id="900421">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s was added.</translation>
    </message>
    <message id="900422">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s was changed.</translation>
    </message>
    <message id="900423">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s was deleted.</translation>
    </message>
    <message id="900425">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s was sent.</translation>
    </message>
    <message id="900426">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s is the default now; it is shown whenever the drawing is opened.</translation>
    </message>
    <message id="900427">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Delete %s?</translation>
    </message>
    <message id="900428">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>%s already exists there. Replace it?</translation>
    </message>
    <message id="900429">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Send to disk, net or a system</translation>
    </message>
    <message id="900430">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>&quot;%s&quot; is neither the disk nor the net nor a system of the drawing.</translation>
    </message>
    <message id="900431">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>No net repository is set up. Set NET_REPOSITORY to its folder.</translation>
    </message>
    <message id="900432">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>No system is active. Use SYSTEM_ACTIVATE.</translation>
    </message>
    <message id="900433">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>There is no configuration &quot;%s&quot;.</translation>
    </message>
    <message id="900434">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s contains no entities of this kind.</translation>
    </message>
    <message id="900435">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s: %u entities of %s are selected.</translation>
    </message>
    <message id="900436">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s, %s by %s: %u entities</translation>
    </message>
    <message id="900437">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>no value</translation>
    </message>
    <message id="900438">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s: %u entities have the colour of their layer.</translation>
    </message>
    <message id="900439">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s: %d labels in %s, %u older ones removed.</translation>
    </message>
    <message id="900440">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s has no node "%s".</translation>
    </message>
    <message id="900441">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>There is no path from %s to %s.</translation>
    </message>
    <message id="900442">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s, %s: %s to %s, length %s</translation>
    </message>
    <message id="900443">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>The dropped item cannot be used here.</translation>
    </message>
    <message id="900445">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Name of the system</translation>
    </message>
    <message id="900446">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Kind of system</translation>
    </message>
    <message id="900447">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Purpose</translation>
    </message>
    <message id="900449">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>The drawing has no system &quot;%s&quot;. SYSTEM_LIST shows them.</translation>
    </message>
    <message id="900450">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s is the active system.</translation>
    </message>
    <message id="900451">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s is shown.</translation>
    </message>
    <message id="900452">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s is hidden.</translation>
    </message>
    <message id="900453">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s already exists there with the same content.</translation>
    </message>
    <message id="900460">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Yes</translation>
    </message>
    <message id="900461">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>No</translation>
    </message>
    <message id="900462">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Everything</translation>
    </message>
    <message id="900463">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>All</translation>
    </message>
    <message id="900464">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Any</translation>
    </message>
    <message id="900465">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Values</translation>
    </message>
    <message id="900466">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Ranges</translation>
    </message>
    <message id="900467">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Layer</translation>
    </message>
    <message id="900468">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Disk</translation>
    </message>
    <message id="900469">
        <source></source>
        <extracomment>Choice at a prompt of the network plug-in</extracomment>
        <translation>Net</translation>
    </message>
    <message id="900510">
        <source></source>
        <extracomment>Panel; also the name of its tree&#x27;s root</extracomment>
        <translation>Systems</translation>
    </message>
    <message id="900511">
        <source></source>
        <extracomment>Panel; also the name of its tree&#x27;s root</extracomment>
        <translation>Disk repository</translation>
    </message>
    <message id="900512">
        <source></source>
        <extracomment>Panel; also the name of its tree&#x27;s root</extracomment>
        <translation>Net repository</translation>
    </message>
    <message id="900513">
        <source></source>
        <extracomment>In a tree; with the name of the default configuration</extracomment>
        <translation>%s (default)</translation>
    </message>
    <message id="900514">
        <source></source>
        <extracomment>In a tree; with the name of the active system</extracomment>
        <translation>%s (active)</translation>
    </message>
    <message id="900515">
        <source></source>
        <extracomment>In a tree; with the name of a system</extracomment>
        <translation>%s (hidden)</translation>
    </message>
    <message id="900520">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Path (such as system/NAME/..., disk/..., net/...): </translation>
    </message>
    <message id="900521">
        <source></source>
        <extracomment>Reason; with what was searched for, and where</extracomment>
        <translation>There is no &quot;%s&quot; in &quot;%s&quot;.</translation>
    </message>
    <message id="900522">
        <source></source>
        <extracomment>With the names of nodes</extracomment>
        <translation>Available: %s</translation>
    </message>
    <message id="900523">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>It has no children.</translation>
    </message>
    <message id="900524">
        <source></source>
        <extracomment>With a node of a tree</extracomment>
        <translation>&quot;%s&quot; has no commands.</translation>
    </message>
    <message id="900525">
        <source></source>
        <extracomment>In a list of templates; with the kind of configurations</extracomment>
        <translation>&lt;- configurations [%s]</translation>
    </message>
    <message id="900526">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>There is no template for it.</translation>
    </message>
    <message id="900527">
        <source></source>
        <extracomment>In a list of templates; with topology and function</extracomment>
        <translation>System: %s, %s</translation>
    </message>
    <message id="900540">
        <source></source>
        <extracomment>Title of a dialog; command</extracomment>
        <translation>Find</translation>
    </message>
    <message id="900541">
        <source></source>
        <extracomment>Label in the find dialog, with its mnemonic</extracomment>
        <translation>Fi&amp;nd what:</translation>
    </message>
    <message id="900542">
        <source></source>
        <extracomment>Label in the find dialog, with its mnemonic</extracomment>
        <translation>&amp;System:</translation>
    </message>
    <message id="900543">
        <source></source>
        <extracomment>Label in the find dialog, with its mnemonic</extracomment>
        <translation>&amp;Where:</translation>
    </message>
    <message id="900544">
        <source></source>
        <extracomment>Button of the find dialog</extracomment>
        <translation>&amp;Find</translation>
    </message>
    <message id="900545">
        <source></source>
        <extracomment>Choice in the find dialog</extracomment>
        <translation>All systems</translation>
    </message>
    <message id="900546">
        <source></source>
        <extracomment>Choice in the find dialog</extracomment>
        <translation>Everywhere</translation>
    </message>
    <message id="900548">
        <source></source>
        <extracomment>Choice in the find dialog; a property</extracomment>
        <translation>Kind</translation>
    </message>
    <message id="900549">
        <source></source>
        <extracomment>Choice in the find dialog</extracomment>
        <translation>Attributes</translation>
    </message>
    <message id="900550">
        <source></source>
        <extracomment>Result; with a count</extracomment>
        <translation>%d found</translation>
    </message>
    <message id="900551">
        <source></source>
        <extracomment>Result; with a count, and how many of them are shown</extracomment>
        <translation>%d found, %d shown</translation>
    </message>
    <message id="900552">
        <source></source>
        <extracomment>Result</extracomment>
        <translation>Nothing found</translation>
    </message>
    <message id="900553">
        <source></source>
        <extracomment>Column</extracomment>
        <translation>Entity</translation>
    </message>
    <message id="900554">
        <source></source>
        <extracomment>Column: the text that matched</extracomment>
        <translation>Found in</translation>
    </message>
    <message id="900555">
        <source></source>
        <extracomment>Button of the find dialog</extracomment>
        <translation>Sho&amp;w</translation>
    </message>
    <message id="900556">
        <source></source>
        <extracomment>Button of the find dialog</extracomment>
        <translation>&amp;Properties</translation>
    </message>
    <message id="900557">
        <source></source>
        <extracomment>Result</extracomment>
        <translation>It no longer exists</translation>
    </message>
    <message id="900558">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Find what</translation>
    </message>
    <message id="900559">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>System (empty for all)</translation>
    </message>
    <message id="900560">
        <source></source>
        <extracomment>Prompt; with the choices</extracomment>
        <translation>Where</translation>
    </message>
    <message id="900561">
        <source></source>
        <extracomment>Line of a result: kind, name, system, where</extracomment>
        <translation>%s %s (%s): %s</translation>
    </message>
    <message id="900562">
        <source></source>
        <extracomment>Reason; with a name</extracomment>
        <translation>There is no system &quot;%s&quot;.</translation>
    </message>
    <message id="900570">
        <source></source>
        <extracomment>Title of a dialog; command</extracomment>
        <translation>Properties</translation>
    </message>
    <message id="900571">
        <source></source>
        <extracomment>Button</extracomment>
        <translation>&amp;Pick...</translation>
    </message>
    <message id="900572">
        <source></source>
        <extracomment>Button</extracomment>
        <translation>&amp;Set</translation>
    </message>
    <message id="900573">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Pick an entity: </translation>
    </message>
    <message id="900574">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>The entity does not belong to a system.</translation>
    </message>
    <message id="900575">
        <source></source>
        <extracomment>Reason; with the property</extracomment>
        <translation>&quot;%s&quot; cannot be changed.</translation>
    </message>
    <message id="900576">
        <source></source>
        <extracomment>Done: property and value</extracomment>
        <translation>%s: %s</translation>
    </message>
    <message id="900577">
        <source></source>
        <extracomment>Reason; with the property</extracomment>
        <translation>&quot;%s&quot; could not be changed.</translation>
    </message>
    <message id="900578">
        <source></source>
        <extracomment>Reason; with the input and the property</extracomment>
        <translation>"%s" is not a number; %s must be one.</translation>
    </message>
    <message id="900579">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>A name is required.</translation>
    </message>
    <message id="900580">
        <source></source>
        <extracomment>In the properties dialog, as long as it shows nothing</extracomment>
        <translation>No entity is selected.</translation>
    </message>
    <message id="900581">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Property to change (empty for none)</translation>
    </message>
    <message id="900582">
        <source></source>
        <extracomment>Prompt; with the current value</extracomment>
        <translation>Value &lt;%s&gt;: </translation>
    </message>
    <message id="900583">
        <source></source>
        <extracomment>Reason; with the input</extracomment>
        <translation>There is no property &quot;%s&quot;.</translation>
    </message>
    <message id="900584">
        <source></source>
        <extracomment>Property: node, section or polygon</extracomment>
        <translation>Type</translation>
    </message>
    <message id="900585">
        <source></source>
        <extracomment>Property</extracomment>
        <translation>Position</translation>
    </message>
    <message id="900586">
        <source></source>
        <extracomment>Property</extracomment>
        <translation>From node</translation>
    </message>
    <message id="900587">
        <source></source>
        <extracomment>Property</extracomment>
        <translation>To node</translation>
    </message>
    <message id="900588">
        <source></source>
        <extracomment>Property</extracomment>
        <translation>Drawn length</translation>
    </message>
    <message id="900589">
        <source></source>
        <extracomment>Property</extracomment>
        <translation>Area</translation>
    </message>
    <message id="900590">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Tree templates</translation>
    </message>
    <message id="900591">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>prints the templates of the system, disk and net trees</translation>
    </message>
    <message id="900592">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Tree menu</translation>
    </message>
    <message id="900593">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>prints the menu of a tree node, given its path</translation>
    </message>
    <message id="900594">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Trees</translation>
    </message>
    <message id="900595">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>prints the content of the system, disk and net trees</translation>
    </message>
    <message id="900610">
        <source></source>
        <extracomment>Title of a dialog; command</extracomment>
        <translation>Statistics</translation>
    </message>
    <message id="900611">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>No system is active.</translation>
    </message>
    <message id="900612">
        <source></source>
        <extracomment>Headline of a report; with the system</extracomment>
        <translation>Statistics for %s</translation>
    </message>
    <message id="900613">
        <source></source>
        <extracomment>Title of a dialog; command</extracomment>
        <translation>Legend</translation>
    </message>
    <message id="900614">
        <source></source>
        <extracomment>Column</extracomment>
        <translation>Layer</translation>
    </message>
    <message id="900615">
        <source></source>
        <extracomment>Column</extracomment>
        <translation>Entities</translation>
    </message>
    <message id="900616">
        <source></source>
        <extracomment>Button</extracomment>
        <translation>&amp;Close</translation>
    </message>
    <message id="900617">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>No drawing is open.</translation>
    </message>
    <message id="900618">
        <source></source>
        <extracomment>Line of the legend: layer, colour, count</extracomment>
        <translation>%s, colour %d: %d</translation>
    </message>
    <message id="900619">
        <source></source>
        <extracomment>Report</extracomment>
        <translation>The drawing is empty.</translation>
    </message>
    <message id="900630">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Find entities</translation>
    </message>
    <message id="900631">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>finds nodes, sections and polygons by their names and attributes</translation>
    </message>
    <message id="900632">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Entity properties</translation>
    </message>
    <message id="900633">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>shows and edits the properties of an entity</translation>
    </message>
    <message id="900634">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>System statistics</translation>
    </message>
    <message id="900635">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>shows statistics for the active system</translation>
    </message>
    <message id="900636">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Legend</translation>
    </message>
    <message id="900637">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>explains the colours of the drawing</translation>
    </message>
    <message id="900638">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>General settings</translation>
    </message>
    <message id="900639">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>changes language, colours, folders and other settings</translation>
    </message>
    <message id="910000">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>No such file or directory</translation>
    </message>
    <message id="910001">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Permission denied</translation>
    </message>
    <message id="910002">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Is a directory</translation>
    </message>
    <message id="910003">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Not a directory</translation>
    </message>
    <message id="910004">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>File exists</translation>
    </message>
    <message id="910005">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>No space left on device</translation>
    </message>
    <message id="910006">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Read-only file system</translation>
    </message>
    <message id="910007">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>File name too long</translation>
    </message>
    <message id="910008">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Input/output error</translation>
    </message>
    <message id="910009">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Too many levels of symbolic links</translation>
    </message>
    <message id="910010">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Too many open files</translation>
    </message>
    <message id="910011">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>File too large</translation>
    </message>
    <message id="910012">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Device or resource busy</translation>
    </message>
    <message id="910013">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>Directory not empty</translation>
    </message>
    <message id="910014">
        <source></source>
        <extracomment>Number of the error, and the operating system's own text</extracomment>
        <translation>Operating system error %d (%s)</translation>
    </message>
    <message id="910015">
        <source></source>
        <extracomment>Name of a new drawing; number</extracomment>
        <translation>Drawing%d</translation>
    </message>
    <message id="910020">
        <source></source>
        <extracomment>File, line</extracomment>
        <translation>%s:%d: not a "key=value" line</translation>
    </message>
    <message id="910021">
        <source></source>
        <extracomment>File, line</extracomment>
        <translation>%s:%d: a value before the first section</translation>
    </message>
    <message id="910022">
        <source></source>
        <extracomment>Module file</extracomment>
        <translation>%s: not a shared library for this machine</translation>
    </message>
    <message id="910023">
        <source></source>
        <extracomment>Module file, its size, the size needed</extracomment>
        <translation>%s: truncated, %u of at least %u bytes</translation>
    </message>
    <message id="910024">
        <source></source>
        <extracomment>Module file</extracomment>
        <translation>%s: no module entry point</translation>
    </message>
    <message id="910025">
        <source></source>
        <extracomment>Module file, its version, the program's</extracomment>
        <translation>%s: built for interface version %d, but this program has version %d</translation>
    </message>
    <message id="910026">
        <source></source>
        <extracomment>Module file</extracomment>
        <translation>%s: the module refused to start</translation>
    </message>
    <message id="910030">
        <source></source>
        <extracomment>Follows a file name and a colon</extracomment>
        <translation>no file name given</translation>
    </message>
    <message id="910031">
        <source></source>
        <extracomment>Follows a file name and a colon</extracomment>
        <translation>this program cannot open drawings</translation>
    </message>
    <message id="910032">
        <source></source>
        <extracomment>Follows a file name and a colon</extracomment>
        <translation>the drawing has no file yet</translation>
    </message>
    <message id="910033">
        <source></source>
        <extracomment>Follows a file name and a colon</extracomment>
        <translation>this program cannot save drawings</translation>
    </message>
    <message id="910034">
        <source></source>
        <extracomment>Follows a file name and a colon</extracomment>
        <translation>the file belongs to another open drawing</translation>
    </message>
    <message id="910035">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Entity number</translation>
    </message>
    <message id="910036">
        <source></source>
        <extracomment>Prompt; highest number</extracomment>
        <translation>Colour, 1 to %d</translation>
    </message>
    <message id="910037">
        <source></source>
        <extracomment>The input</extracomment>
        <translation>"%s" is not a colour.</translation>
    </message>
    <message id="910038">
        <source></source>
        <extracomment>Title of a dialog</extracomment>
        <translation>Colour</translation>
    </message>
    <message id="910041">
        <source></source>
        <extracomment>What failed</extracomment>
        <translation>document event</translation>
    </message>
    <message id="910042">
        <source></source>
        <extracomment>What failed</extracomment>
        <translation>save event</translation>
    </message>
    <message id="910043">
        <source></source>
        <extracomment>What failed</extracomment>
        <translation>closing event</translation>
    </message>
    <message id="910044">
        <source></source>
        <extracomment>What failed</extracomment>
        <translation>window message</translation>
    </message>
    <message id="910100">
        <source></source>
        <extracomment>File, line, text</extracomment>
        <translation>%s:%d: "%s" is not a whole number</translation>
    </message>
    <message id="910101">
        <source></source>
        <extracomment>File, line, word</extracomment>
        <translation>%s:%d: unknown key "%s"</translation>
    </message>
    <message id="910102">
        <source></source>
        <extracomment>File, line, word</extracomment>
        <translation>%s:%d: neither number nor text: "%s"</translation>
    </message>
    <message id="910103">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>the entity type to query is missing</translation>
    </message>
    <message id="910104">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it has an invalid condition</translation>
    </message>
    <message id="910105">
        <source></source>
        <extracomment>Reason; GUID</extracomment>
        <translation>it has the GUID "%s"</translation>
    </message>
    <message id="910106">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>another item has the same GUID</translation>
    </message>
    <message id="910107">
        <source></source>
        <extracomment>Folder</extracomment>
        <translation>%s: there is no such folder</translation>
    </message>
    <message id="910108">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>its file name is not a GUID</translation>
    </message>
    <message id="910109">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it is too long</translation>
    </message>
    <message id="910110">
        <source></source>
        <extracomment>Reason; names of XML elements</extracomment>
        <translation>its root is "%s" instead of "%s"</translation>
    </message>
    <message id="910111">
        <source></source>
        <extracomment>Reason; name of a family</extracomment>
        <translation>it belongs to the family "%s"</translation>
    </message>
    <message id="910112">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it has no name</translation>
    </message>
    <message id="910113">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>its entity type is not a number</translation>
    </message>
    <message id="910114">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it has no GUID</translation>
    </message>
    <message id="910115">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>no module handles this family</translation>
    </message>
    <message id="910116">
        <source></source>
        <extracomment>File, line, word</extracomment>
        <translation>%s:%d: unknown topology "%s"</translation>
    </message>
    <message id="910117">
        <source></source>
        <extracomment>File, line, word</extracomment>
        <translation>%s:%d: duplicate section "%s"</translation>
    </message>
    <message id="910118">
        <source></source>
        <extracomment>File, line, word</extracomment>
        <translation>%s:%d: "%s" has no value</translation>
    </message>
    <message id="910119">
        <source></source>
        <extracomment>File, line, text</extracomment>
        <translation>%s:%d: "%s" is neither 0 nor 1</translation>
    </message>
    <message id="910120">
        <source></source>
        <extracomment>File, line</extracomment>
        <translation>%s:%d: the number of a function must be greater than 0</translation>
    </message>
    <message id="910121">
        <source></source>
        <extracomment>File, line, number</extracomment>
        <translation>%s:%d: duplicate function %d</translation>
    </message>
    <message id="910122">
        <source></source>
        <extracomment>File, line, number</extracomment>
        <translation>%s:%d: unknown entity type %d</translation>
    </message>
    <message id="910123">
        <source></source>
        <extracomment>File, line, number</extracomment>
        <translation>%s:%d: duplicate entity type %d</translation>
    </message>
    <message id="910124">
        <source></source>
        <extracomment>File</extracomment>
        <translation>%s: no topology; the defaults are used</translation>
    </message>
    <message id="910125">
        <source></source>
        <extracomment>File, line, word</extracomment>
        <translation>%s:%d: neither default nor a topology with or without a function: "%s"</translation>
    </message>
    <message id="910126">
        <source></source>
        <extracomment>File, line, word</extracomment>
        <translation>%s:%d: neither node, section nor polygon: "%s"</translation>
    </message>
    <message id="910127">
        <source></source>
        <extracomment>File, line, text</extracomment>
        <translation>%s:%d: not a name pattern with one number placeholder, such as J%%d or J%%04d: "%s"</translation>
    </message>
    <message id="910128">
        <source></source>
        <extracomment>Line, reason</extracomment>
        <translation>line %d: not well-formed XML</translation>
    </message>
    <message id="910129">
        <source></source>
        <extracomment>Name of a system that has none; number</extracomment>
        <translation>System %d</translation>
    </message>
    <message id="910130">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>document type declarations are not allowed</translation>
    </message>
    <message id="910131">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>the elements are nested too deeply</translation>
    </message>
    <message id="910132">
        <source></source>
        <extracomment>Line, reason</extracomment>
        <translation>line %d: %s</translation>
    </message>
    <message id="910140">
        <source></source>
        <extracomment>Name of a layer, after the system's</extracomment>
        <translation>sections</translation>
    </message>
    <message id="910141">
        <source></source>
        <extracomment>Name of a layer, after the system's</extracomment>
        <translation>alignments</translation>
    </message>
    <message id="910142">
        <source></source>
        <extracomment>Name of a layer, after the system's</extracomment>
        <translation>nodes</translation>
    </message>
    <message id="910143">
        <source></source>
        <extracomment>Name of a layer, after the system's</extracomment>
        <translation>texts</translation>
    </message>
    <message id="910144">
        <source></source>
        <extracomment>Name of a layer, after the system's</extracomment>
        <translation>polygons</translation>
    </message>
    <message id="910145">
        <source></source>
        <extracomment>Name of a layer, after the system's</extracomment>
        <translation>temporary polygons</translation>
    </message>
    <message id="910146">
        <source></source>
        <extracomment>Name of a layer, after the system's</extracomment>
        <translation>points</translation>
    </message>
    <message id="910147">
        <source></source>
        <extracomment>Name of a layer, after the system's</extracomment>
        <translation>scheme</translation>
    </message>
    <message id="910200">
        <source></source>
        <extracomment>Why a command cannot run</extracomment>
        <translation>No module implements it</translation>
    </message>
    <message id="910201">
        <source></source>
        <extracomment>File</extracomment>
        <translation>%s: not a list of modules; no plug-ins are loaded.</translation>
    </message>
    <message id="911000">
        <source></source>
        <translation>No usable display; starting the console instead.</translation>
    </message>
    <message id="911001">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Cannot create the settings folder: %s</translation>
    </message>
    <message id="911002">
        <source></source>
        <extracomment>First line of a run</extracomment>
        <translation>Tessaly. HELP lists the commands, QUIT exits.</translation>
    </message>
    <message id="911003">
        <source></source>
        <extracomment>Answer to --help</extracomment>
        <translation>tessaly [--console] [options] [drawing]
  drawing         a GeoPackage (.gpkg) to open at startup
  --console       use the command line on standard input and output
  --read-only     open drawings that another program has open read-only
  --script FILE   run the commands in a file, one per line, and exit with the
                  status of the first command that fails
  --first FILE    run the commands in a file, then continue at the prompt
  --snapshot FILE save a screenshot of the desktop without a display, and exit
  --transcript FILE  write the text of the desktop's command line to a file
  --theme NAME    light or dark, regardless of the system's theme
  --trace FILE    write the developer's trace to a file
  --support DIR   the folder of the user's settings
  --install DIR   the folder of the modules
</translation>
    </message>
    <message id="911004">
        <source></source>
        <extracomment>Option</extracomment>
        <translation>%s requires a value</translation>
    </message>
    <message id="911005">
        <source></source>
        <extracomment>Option</extracomment>
        <translation>%s: unknown option</translation>
    </message>
    <message id="911006">
        <source></source>
        <extracomment>Argument</extracomment>
        <translation>%s: only one drawing can be given</translation>
    </message>
    <message id="911007">
        <source></source>
        <extracomment>Value of the option</extracomment>
        <translation>--theme %s: must be light or dark</translation>
    </message>
    <message id="911010">
        <source></source>
        <extracomment>Follows the name of a command and a colon</extracomment>
        <translation>it keeps prompting after the end of the input</translation>
    </message>
    <message id="911011">
        <source></source>
        <extracomment>Follows the name of a command and a colon</extracomment>
        <translation>unknown exception</translation>
    </message>
    <message id="911012">
        <source></source>
        <extracomment>Command or module, reason</extracomment>
        <translation>%s failed: %s</translation>
    </message>
    <message id="911013">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>Not loaded: %s</translation>
    </message>
    <message id="911014">
        <source></source>
        <extracomment>File, line, command</extracomment>
        <translation>%s:%d: stopped at "%s"</translation>
    </message>
    <message id="911015">
        <source></source>
        <extracomment>The input</extracomment>
        <translation>Unknown command "%s". HELP lists the commands.</translation>
    </message>
    <message id="911020">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>File</translation>
    </message>
    <message id="911021">
        <source></source>
        <translation>The drawing was not saved.</translation>
    </message>
    <message id="911022">
        <source></source>
        <extracomment>Progress; file</extracomment>
        <translation>Writing %s</translation>
    </message>
    <message id="911023">
        <source></source>
        <extracomment>Progress; file</extracomment>
        <translation>Reading %s</translation>
    </message>
    <message id="911024">
        <source></source>
        <extracomment>File</extracomment>
        <translation>Saved: %s</translation>
    </message>
    <message id="911025">
        <source></source>
        <extracomment>Question; file</extracomment>
        <translation>%s exists. Replace it?</translation>
    </message>
    <message id="911026">
        <source></source>
        <extracomment>File</extracomment>
        <translation>%s was left unchanged.</translation>
    </message>
    <message id="911027">
        <source></source>
        <extracomment>Question; drawing</extracomment>
        <translation>Save the changes to %s?</translation>
    </message>
    <message id="911028">
        <source></source>
        <extracomment>Drawing</extracomment>
        <translation>The current drawing is %s.</translation>
    </message>
    <message id="911030">
        <source></source>
        <translation>Nothing was opened.</translation>
    </message>
    <message id="911031">
        <source></source>
        <translation>The drawing stays open.</translation>
    </message>
    <message id="911032">
        <source></source>
        <extracomment>Drawing</extracomment>
        <translation>%s is in use by a running command.</translation>
    </message>
    <message id="911033">
        <source></source>
        <extracomment>Drawing</extracomment>
        <translation>%s is closed.</translation>
    </message>
    <message id="911034">
        <source></source>
        <extracomment>Follows the name of a drawing</extracomment>
        <translation>, modified</translation>
    </message>
    <message id="911035">
        <source></source>
        <extracomment>The input</extracomment>
        <translation>There is no drawing "%s". DRAWINGS lists them.</translation>
    </message>
    <message id="911036">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>There are several drawings named %s. Enter the number.</translation>
    </message>
    <message id="911037">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Drawing (number or name)</translation>
    </message>
    <message id="911038">
        <source></source>
        <extracomment>Name of a command</extracomment>
        <translation>Undone: %s</translation>
    </message>
    <message id="911039">
        <source></source>
        <extracomment>Name of a command</extracomment>
        <translation>Redone: %s</translation>
    </message>
    <message id="911040">
        <source></source>
        <translation>There is nothing to undo.</translation>
    </message>
    <message id="911041">
        <source></source>
        <translation>There is nothing to redo.</translation>
    </message>
    <message id="911042">
        <source></source>
        <extracomment>In place of a command's name</extracomment>
        <translation>a change</translation>
    </message>
    <message id="911043">
        <source></source>
        <translation>Not possible while a command is running.</translation>
    </message>
    <message id="911044">
        <source></source>
        <extracomment>Drawing</extracomment>
        <translation>%s is already open.</translation>
    </message>
    <message id="911045">
        <source></source>
        <extracomment>Drawing, count</extracomment>
        <translation>%s: %d entities.</translation>
    </message>
    <message id="911046">
        <source></source>
        <extracomment>Drawing</extracomment>
        <translation>%s has unsaved changes.</translation>
    </message>
    <message id="911047">
        <source></source>
        <extracomment>Count</extracomment>
        <translation>... and %d more warnings.</translation>
    </message>
    <message id="911050">
        <source></source>
        <translation>The console has no view of the drawing.</translation>
    </message>
    <message id="911051">
        <source></source>
        <extracomment>Prompt for a position in the drawing</extracomment>
        <translation>Pick an entity: </translation>
    </message>
    <message id="911052">
        <source></source>
        <translation>No entity was picked.</translation>
    </message>
    <message id="911053">
        <source></source>
        <translation>The entity has no position.</translation>
    </message>
    <message id="911054">
        <source></source>
        <extracomment>Prompt; the choices follow</extracomment>
        <translation>Zoom factor such as 2 or 0.5, or</translation>
    </message>
    <message id="911055">
        <source></source>
        <extracomment>Choice of ZOOM</extracomment>
        <translation>Extents</translation>
    </message>
    <message id="911056">
        <source></source>
        <extracomment>Choice of ZOOM</extracomment>
        <translation>Object</translation>
    </message>
    <message id="911057">
        <source></source>
        <extracomment>The input</extracomment>
        <translation>"%s" is neither a choice nor a zoom factor.</translation>
    </message>
    <message id="911060">
        <source></source>
        <extracomment>Layer and counts</extracomment>
        <translation>%s: %d points, %d lines, %d polygons</translation>
    </message>
    <message id="911061">
        <source></source>
        <extracomment>Layer, its coordinate system, the drawing's</extracomment>
        <translation>%s: its coordinate system is %s, the drawing's is %s; positions are not converted</translation>
    </message>
    <message id="911062">
        <source></source>
        <translation>Nothing was imported.</translation>
    </message>
    <message id="911063">
        <source></source>
        <extracomment>File</extracomment>
        <translation>%s: contains nothing that can be drawn</translation>
    </message>
    <message id="911064">
        <source></source>
        <extracomment>File</extracomment>
        <translation>Imported from %s:</translation>
    </message>
    <message id="911065">
        <source></source>
        <extracomment>In place of a coordinate system's name</extracomment>
        <translation>unknown</translation>
    </message>
    <message id="911070">
        <source></source>
        <translation>The program stays open.</translation>
    </message>
    <message id="911071">
        <source></source>
        <translation>Not closed: a module refused to shut down.</translation>
    </message>
    <message id="911072">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Module file</translation>
    </message>
    <message id="911073">
        <source></source>
        <translation>Nothing was loaded.</translation>
    </message>
    <message id="911074">
        <source></source>
        <extracomment>Module file</extracomment>
        <translation>%s loaded.</translation>
    </message>
    <message id="911080">
        <source></source>
        <extracomment>What HELP does</extracomment>
        <translation>lists the commands; HELP NAME explains one</translation>
    </message>
    <message id="911081">
        <source></source>
        <extracomment>What APPLOAD does</extracomment>
        <translation>loads a host module</translation>
    </message>
    <message id="911082">
        <source></source>
        <extracomment>What QUIT does</extracomment>
        <translation>exits the program</translation>
    </message>
    <message id="911083">
        <source></source>
        <extracomment>What OPEN does</extracomment>
        <translation>opens a drawing</translation>
    </message>
    <message id="911084">
        <source></source>
        <extracomment>What NEW does</extracomment>
        <translation>starts a new drawing</translation>
    </message>
    <message id="911085">
        <source></source>
        <extracomment>What SAVE does</extracomment>
        <translation>saves the drawing to its file</translation>
    </message>
    <message id="911086">
        <source></source>
        <extracomment>What SAVEAS does</extracomment>
        <translation>saves the drawing to another file</translation>
    </message>
    <message id="911087">
        <source></source>
        <extracomment>What CLOSE does</extracomment>
        <translation>closes the drawing</translation>
    </message>
    <message id="911088">
        <source></source>
        <extracomment>What DRAWINGS does</extracomment>
        <translation>lists the open drawings</translation>
    </message>
    <message id="911089">
        <source></source>
        <extracomment>What SWITCH does</extracomment>
        <translation>switches to another open drawing</translation>
    </message>
    <message id="911090">
        <source></source>
        <extracomment>What UNDO does</extracomment>
        <translation>undoes the last command</translation>
    </message>
    <message id="911091">
        <source></source>
        <extracomment>What REDO does</extracomment>
        <translation>redoes the last undone command</translation>
    </message>
    <message id="911092">
        <source></source>
        <extracomment>What IMPORT does</extracomment>
        <translation>imports a file from another program</translation>
    </message>
    <message id="911093">
        <source></source>
        <extracomment>What ZOOM does</extracomment>
        <translation>zooms the view</translation>
    </message>
    <message id="911094">
        <source></source>
        <extracomment>What REDRAW does</extracomment>
        <translation>redraws the view and clears highlights</translation>
    </message>
    <message id="911100">
        <source></source>
        <extracomment>Reason, after a file name and a colon</extracomment>
        <translation>it is damaged: table orv_meta has no version</translation>
    </message>
    <message id="911101">
        <source></source>
        <extracomment>Reason; version of the file, highest version</extracomment>
        <translation>it was written by a newer program: its version is %d, this program reads versions up to %d</translation>
    </message>
    <message id="911102">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it is damaged: its own tables cannot be read</translation>
    </message>
    <message id="911103">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it is damaged: table orv_meta has an invalid next id</translation>
    </message>
    <message id="911104">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>saving was stopped</translation>
    </message>
    <message id="911105">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>the drawing has more objects than a file can hold</translation>
    </message>
    <message id="911106">
        <source></source>
        <extracomment>Reason; object, layer</extracomment>
        <translation>object %d on layer "%s" has an invalid position</translation>
    </message>
    <message id="911107">
        <source></source>
        <extracomment>Count</extracomment>
        <translation>%d objects of unsupported types were not saved</translation>
    </message>
    <message id="911108">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it was replaced by another or an older file</translation>
    </message>
    <message id="911109">
        <source></source>
        <extracomment>Warning, after a file name and a colon</extracomment>
        <translation>another program has changed it since it was opened; its other changes are kept and will show when you reopen the file</translation>
    </message>
    <message id="911110">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>its folder does not exist</translation>
    </message>
    <message id="911111">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it is a folder</translation>
    </message>
    <message id="911112">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>there is not enough memory</translation>
    </message>
    <message id="911113">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>the drawing was not opened from this file</translation>
    </message>
    <message id="911114">
        <source></source>
        <extracomment>Reason and its consequence</extracomment>
        <translation>%s; the file's other contents were not copied</translation>
    </message>
    <message id="911115">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>another program has locked it</translation>
    </message>
    <message id="911116">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>the disk is full</translation>
    </message>
    <message id="911117">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it is write-protected</translation>
    </message>
    <message id="911118">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it cannot be opened, or its folder is not writable</translation>
    </message>
    <message id="911119">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it is damaged</translation>
    </message>
    <message id="911120">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it is damaged or not a GeoPackage</translation>
    </message>
    <message id="911121">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>reading or writing the disk failed</translation>
    </message>
    <message id="911122">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it is damaged or of an unknown type</translation>
    </message>
    <message id="911123">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>reading was stopped</translation>
    </message>
    <message id="911124">
        <source></source>
        <extracomment>Table, count, why, number of a row</extracomment>
        <translation>%s: skipped %d rows: %s (the first is row %d)</translation>
    </message>
    <message id="911125">
        <source></source>
        <extracomment>Why rows are skipped</extracomment>
        <translation>the geometry does not fit the table</translation>
    </message>
    <message id="911126">
        <source></source>
        <extracomment>Why rows are skipped</extracomment>
        <translation>no geometry</translation>
    </message>
    <message id="911127">
        <source></source>
        <extracomment>Why rows are skipped, or a file is refused</extracomment>
        <translation>invalid position</translation>
    </message>
    <message id="911128">
        <source></source>
        <extracomment>Table, column</extracomment>
        <translation>%s: column %s holds binary data</translation>
    </message>
    <message id="911129">
        <source></source>
        <extracomment>Table</extracomment>
        <translation>%s: its coordinate system is not the drawing's</translation>
    </message>
    <message id="911130">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>there is no such file</translation>
    </message>
    <message id="911131">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it is not a regular file</translation>
    </message>
    <message id="911132">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it is empty</translation>
    </message>
    <message id="911133">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it is not a GeoPackage (IMPORT reads other files)</translation>
    </message>
    <message id="911134">
        <source></source>
        <extracomment>Reason; size, size it should have</extracomment>
        <translation>it is truncated: %d of %d bytes</translation>
    </message>
    <message id="911135">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>its folder is write-protected</translation>
    </message>
    <message id="911136">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it was truncated while being copied</translation>
    </message>
    <message id="911137">
        <source></source>
        <extracomment>Reason; reason of that</extracomment>
        <translation>an unfinished write must be rolled back first, which failed: %s</translation>
    </message>
    <message id="911138">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>another program has it open</translation>
    </message>
    <message id="911140">
        <source></source>
        <extracomment>Layer</extracomment>
        <translation>%s: texts are not imported</translation>
    </message>
    <message id="911141">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it is truncated</translation>
    </message>
    <message id="911142">
        <source></source>
        <extracomment>Layer, count</extracomment>
        <translation>%s: skipped %d rows without geometry</translation>
    </message>
    <message id="911143">
        <source></source>
        <extracomment>Layer, row, reason</extracomment>
        <translation>layer "%s", row %d: %s</translation>
    </message>
    <message id="911144">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it is damaged, or a binary DXF</translation>
    </message>
    <message id="911145">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it cannot be opened</translation>
    </message>
    <message id="911146">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it is truncated: its last line is not EOF</translation>
    </message>
    <message id="911150">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Program</translation>
    </message>
    <message id="911151">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Drawings</translation>
    </message>
    <message id="911152">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>History</translation>
    </message>
    <message id="911153">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>View</translation>
    </message>
    <message id="911154">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Support</translation>
    </message>
    <message id="911155">
        <source></source>
        <extracomment>Why a command cannot run</extracomment>
        <translation>It cannot run now: %s.</translation>
    </message>
    <message id="911156">
        <source></source>
        <extracomment>The input</extracomment>
        <translation>There is no command "%s". HELP lists the commands.</translation>
    </message>
    <message id="911157">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>The help could not be opened: %s</translation>
    </message>
    <message id="911158">
        <source></source>
        <extracomment>Why a command cannot run</extracomment>
        <translation>No drawing is open</translation>
    </message>
    <message id="911159">
        <source></source>
        <extracomment>Module, reason</extracomment>
        <translation>%s was not loaded: %s</translation>
    </message>
    <message id="911300">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;File</translation>
    </message>
    <message id="911301">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;New</translation>
    </message>
    <message id="911302">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Open…</translation>
    </message>
    <message id="911303">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Save</translation>
    </message>
    <message id="911304">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>Save &amp;as…</translation>
    </message>
    <message id="911305">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Import…</translation>
    </message>
    <message id="911306">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Close</translation>
    </message>
    <message id="911307">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Quit</translation>
    </message>
    <message id="911308">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Edit</translation>
    </message>
    <message id="911309">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Undo</translation>
    </message>
    <message id="911310">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Redo</translation>
    </message>
    <message id="911311">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;View</translation>
    </message>
    <message id="911312">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>Zoom &amp;extents</translation>
    </message>
    <message id="911313">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Panes</translation>
    </message>
    <message id="911314">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>Ne&amp;xt pane</translation>
    </message>
    <message id="911315">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>P&amp;revious pane</translation>
    </message>
    <message id="911316">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Bring all windows here</translation>
    </message>
    <message id="911317">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Theme</translation>
    </message>
    <message id="911318">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;System setting</translation>
    </message>
    <message id="911319">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Light</translation>
    </message>
    <message id="911320">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Dark</translation>
    </message>
    <message id="911321">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Tools</translation>
    </message>
    <message id="911322">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>Command &amp;palette…</translation>
    </message>
    <message id="911323">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>Go to the command &amp;line</translation>
    </message>
    <message id="911324">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Help</translation>
    </message>
    <message id="911325">
        <source></source>
        <extracomment>Menu</extracomment>
        <translation>&amp;Commands</translation>
    </message>
    <message id="911326">
        <source></source>
        <extracomment>Menu; title of a pane</extracomment>
        <translation>Dock %s</translation>
    </message>
    <message id="911327">
        <source></source>
        <extracomment>Menu; title of a pane</extracomment>
        <translation>Float %s</translation>
    </message>
    <message id="911330">
        <source></source>
        <extracomment>Title of a pane, and name of its input</extracomment>
        <translation>Command line</translation>
    </message>
    <message id="911331">
        <source></source>
        <extracomment>Button beside the progress bar</extracomment>
        <translation>Stop</translation>
    </message>
    <message id="911332">
        <source></source>
        <extracomment>Name of a text area</extracomment>
        <translation>Messages</translation>
    </message>
    <message id="911333">
        <source></source>
        <extracomment>In an empty input</extracomment>
        <translation>Type a command, or press Ctrl+Shift+P</translation>
    </message>
    <message id="911334">
        <source></source>
        <extracomment>Name of a list of commands</extracomment>
        <translation>Command palette</translation>
    </message>
    <message id="911335">
        <source></source>
        <extracomment>In an empty input</extracomment>
        <translation>Name or description of a command</translation>
    </message>
    <message id="911336">
        <source></source>
        <extracomment>Name of an input</extracomment>
        <translation>Search</translation>
    </message>
    <message id="911337">
        <source></source>
        <extracomment>Name of a list</extracomment>
        <translation>Commands</translation>
    </message>
    <message id="911338">
        <source></source>
        <extracomment>Name of the tabs</extracomment>
        <translation>Drawings</translation>
    </message>
    <message id="911339">
        <source></source>
        <extracomment>Title of a dialog</extracomment>
        <translation>Open a drawing</translation>
    </message>
    <message id="911340">
        <source></source>
        <extracomment>Title of a dialog</extracomment>
        <translation>Save the drawing as</translation>
    </message>
    <message id="911341">
        <source></source>
        <extracomment>Title of a dialog</extracomment>
        <translation>Import a file</translation>
    </message>
    <message id="911342">
        <source></source>
        <extracomment>Kinds of files in a dialog, followed by a pattern</extracomment>
        <translation>Drawings</translation>
    </message>
    <message id="911343">
        <source></source>
        <extracomment>In place of an answer</extracomment>
        <translation>*Cancel*</translation>
    </message>
    <message id="911344">
        <source></source>
        <extracomment>In place of an answer</extracomment>
        <translation>*No entity*</translation>
    </message>
    <message id="911345">
        <source></source>
        <extracomment>Name of the view</extracomment>
        <translation>Drawing</translation>
    </message>
    <message id="911350">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>the window layout could not be saved: %s</translation>
    </message>
    <message id="911351">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it is truncated, or was written by another version</translation>
    </message>
    <message id="911352">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it contains an invalid value</translation>
    </message>
    <message id="911353">
        <source></source>
        <extracomment>File, reason</extracomment>
        <translation>%s: the window layout is not used: %s</translation>
    </message>
    <message id="911354">
        <source></source>
        <extracomment>Warning</extracomment>
        <translation>no font found; text will show as boxes</translation>
    </message>
    <message id="911355">
        <source></source>
        <extracomment>Warning</extracomment>
        <translation>the screenshot could not be saved</translation>
    </message>
    <message id="911356">
        <source></source>
        <extracomment>Kinds of files in a dialog, followed by a pattern</extracomment>
        <translation>All files</translation>
    </message>
    <message id="912000">
        <source></source>
        <extracomment>Problem of a network file</extracomment>
        <translation>the file is empty</translation>
    </message>
    <message id="912001">
        <source></source>
        <extracomment>Problem of a network file</extracomment>
        <translation>the file is larger than 4 GB</translation>
    </message>
    <message id="912002">
        <source></source>
        <extracomment>Problem of a network file</extracomment>
        <translation>the file is in UTF-16; save it as UTF-8</translation>
    </message>
    <message id="912003">
        <source></source>
        <extracomment>Problem of a network file</extracomment>
        <translation>the file has no nodes</translation>
    </message>
    <message id="912004">
        <source></source>
        <extracomment>Problem of a network file</extracomment>
        <translation>not a network file: it has no section [JUNCTIONS] or other section with nodes</translation>
    </message>
    <message id="912006">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>the file cannot be read: %s</translation>
    </message>
    <message id="912007">
        <source></source>
        <extracomment>Count; ends a list</extracomment>
        <translation>... and %u more</translation>
    </message>
    <message id="912010">
        <source></source>
        <extracomment>Heading, count, count needed, names of the columns</extracomment>
        <translation>too few columns in [%s]: %u instead of %u (%s)</translation>
    </message>
    <message id="912011">
        <source></source>
        <extracomment>Kind of number, text</extracomment>
        <translation>%s %s is not a number</translation>
    </message>
    <message id="912012">
        <source></source>
        <extracomment>Kind of number, text</extracomment>
        <translation>%s %s is larger than 1e15</translation>
    </message>
    <message id="912013">
        <source></source>
        <extracomment>Kind of number, text</extracomment>
        <translation>%s %s is negative</translation>
    </message>
    <message id="912014">
        <source></source>
        <extracomment>Kind of entity, name, line</extracomment>
        <translation>%s %s is already defined in line %u</translation>
    </message>
    <message id="912020">
        <source></source>
        <extracomment>Kind of entity</extracomment>
        <translation>node</translation>
    </message>
    <message id="912021">
        <source></source>
        <extracomment>Kind of entity</extracomment>
        <translation>section</translation>
    </message>
    <message id="912022">
        <source></source>
        <extracomment>Kind of number</extracomment>
        <translation>elevation</translation>
    </message>
    <message id="912023">
        <source></source>
        <extracomment>Kind of number</extracomment>
        <translation>head</translation>
    </message>
    <message id="912024">
        <source></source>
        <extracomment>Kind of number</extracomment>
        <translation>length</translation>
    </message>
    <message id="912025">
        <source></source>
        <extracomment>Kind of number</extracomment>
        <translation>diameter</translation>
    </message>
    <message id="912026">
        <source></source>
        <extracomment>Kind of number</extracomment>
        <translation>x coordinate</translation>
    </message>
    <message id="912027">
        <source></source>
        <extracomment>Kind of number</extracomment>
        <translation>y coordinate</translation>
    </message>
    <message id="912030">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>coordinates for the unknown node %s</translation>
    </message>
    <message id="912031">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>node %s already has coordinates; these replace them</translation>
    </message>
    <message id="912032">
        <source></source>
        <translation>no node has coordinates</translation>
    </message>
    <message id="912033">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>node %s has no coordinates and was left out</translation>
    </message>
    <message id="912034">
        <source></source>
        <extracomment>Names of section and node</extracomment>
        <translation>section %s refers to the missing node %s</translation>
    </message>
    <message id="912035">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>cross section for the unknown section %s</translation>
    </message>
    <message id="912036">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>vertex for the unknown section %s</translation>
    </message>
    <message id="912037">
        <source></source>
        <extracomment>Name, count</extracomment>
        <translation>polygon %s has only %u points and was left out</translation>
    </message>
    <message id="912038">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>polygon for the unknown subcatchment %s</translation>
    </message>
    <message id="912039">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>tag for the unknown node %s</translation>
    </message>
    <message id="912040">
        <source></source>
        <extracomment>Name</extracomment>
        <translation>tag for the unknown section %s</translation>
    </message>
    <message id="912041">
        <source></source>
        <extracomment>Count, limit</extracomment>
        <translation>the line has %u characters; the limit is %u</translation>
    </message>
    <message id="912042">
        <source></source>
        <translation>the line contains a zero byte, so this is not a text file</translation>
    </message>
    <message id="912043">
        <source></source>
        <translation>text before the first section is ignored</translation>
    </message>
    <message id="912044">
        <source></source>
        <extracomment>Heading</extracomment>
        <translation>the section heading %s is incomplete</translation>
    </message>
    <message id="912045">
        <source></source>
        <extracomment>Heading</extracomment>
        <translation>the unknown section %s is ignored</translation>
    </message>
    <message id="912050">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>name</translation>
    </message>
    <message id="912051">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>name, head</translation>
    </message>
    <message id="912052">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>name, elevation</translation>
    </message>
    <message id="912053">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>name, start node, end node</translation>
    </message>
    <message id="912054">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>name, start node, end node, length, diameter</translation>
    </message>
    <message id="912055">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>name, start node, end node, diameter</translation>
    </message>
    <message id="912056">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>name, start node, end node, length</translation>
    </message>
    <message id="912057">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>node, x, y</translation>
    </message>
    <message id="912058">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>name, x, y</translation>
    </message>
    <message id="912059">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>name, shape</translation>
    </message>
    <message id="912060">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>x, y, text</translation>
    </message>
    <message id="912061">
        <source></source>
        <extracomment>Columns of a file</extracomment>
        <translation>kind, name, tag</translation>
    </message>
    <message id="912070">
        <source></source>
        <extracomment>Label in a report</extracomment>
        <translation>nodes</translation>
    </message>
    <message id="912071">
        <source></source>
        <extracomment>Label in a report</extracomment>
        <translation>sections</translation>
    </message>
    <message id="912072">
        <source></source>
        <extracomment>Label in a report</extracomment>
        <translation>drawn length</translation>
    </message>
    <message id="912073">
        <source></source>
        <extracomment>Label in a report</extracomment>
        <translation>stated length</translation>
    </message>
    <message id="912074">
        <source></source>
        <extracomment>Length, count</extracomment>
        <translation>%.2f, for %u sections</translation>
    </message>
    <message id="912075">
        <source></source>
        <extracomment>Label in a report</extracomment>
        <translation>components</translation>
    </message>
    <message id="912076">
        <source></source>
        <extracomment>Counts</extracomment>
        <translation>%u, the largest with %u nodes</translation>
    </message>
    <message id="912077">
        <source></source>
        <extracomment>Label in a report</extracomment>
        <translation>extents</translation>
    </message>
    <message id="912078">
        <source></source>
        <extracomment>Two corners</extracomment>
        <translation>%.2f, %.2f to %.2f, %.2f</translation>
    </message>
    <message id="912079">
        <source></source>
        <extracomment>Label in a report</extracomment>
        <translation>elevations</translation>
    </message>
    <message id="912080">
        <source></source>
        <extracomment>Lowest, highest</extracomment>
        <translation>%.2f to %.2f</translation>
    </message>
    <message id="912081">
        <source></source>
        <extracomment>Label in a report</extracomment>
        <translation>polygons</translation>
    </message>
    <message id="912082">
        <source></source>
        <extracomment>Sum of a check</extracomment>
        <translation>no findings</translation>
    </message>
    <message id="912085">
        <source></source>
        <extracomment>Kind of findings, followed by their count</extracomment>
        <translation>isolated nodes</translation>
    </message>
    <message id="912086">
        <source></source>
        <extracomment>Kind of findings</extracomment>
        <translation>coincident nodes</translation>
    </message>
    <message id="912087">
        <source></source>
        <extracomment>Kind of findings</extracomment>
        <translation>zero-length sections</translation>
    </message>
    <message id="912088">
        <source></source>
        <extracomment>Kind of findings</extracomment>
        <translation>sections with a missing node</translation>
    </message>
    <message id="912089">
        <source></source>
        <extracomment>Kind of findings</extracomment>
        <translation>parallel sections</translation>
    </message>
    <message id="912090">
        <source></source>
        <extracomment>Kind of findings</extracomment>
        <translation>crossings without a node</translation>
    </message>
    <message id="912095">
        <source></source>
        <extracomment>Finding; node</extracomment>
        <translation>%s: isolated node, no section starts or ends here</translation>
    </message>
    <message id="912096">
        <source></source>
        <extracomment>Finding; nodes</extracomment>
        <translation>%s: coincident node, at the same position as %s</translation>
    </message>
    <message id="912097">
        <source></source>
        <extracomment>Finding; section</extracomment>
        <translation>%s: zero-length section</translation>
    </message>
    <message id="912098">
        <source></source>
        <extracomment>Finding; section</extracomment>
        <translation>%s: a node is missing</translation>
    </message>
    <message id="912099">
        <source></source>
        <extracomment>Finding; section, node</extracomment>
        <translation>%s: refers to the missing node %s</translation>
    </message>
    <message id="912100">
        <source></source>
        <extracomment>Finding; section, nodes</extracomment>
        <translation>%s: refers to the missing nodes %s and %s</translation>
    </message>
    <message id="912101">
        <source></source>
        <extracomment>Finding; sections</extracomment>
        <translation>%s: parallel section, connects the same nodes as %s</translation>
    </message>
    <message id="912102">
        <source></source>
        <extracomment>Finding; sections, place</extracomment>
        <translation>%s: crosses %s without a node at %s</translation>
    </message>
    <message id="912110">
        <source></source>
        <extracomment>Kind of node</extracomment>
        <translation>Junction</translation>
    </message>
    <message id="912111">
        <source></source>
        <extracomment>Kind of node</extracomment>
        <translation>Reservoir</translation>
    </message>
    <message id="912112">
        <source></source>
        <extracomment>Kind of node</extracomment>
        <translation>Tank</translation>
    </message>
    <message id="912113">
        <source></source>
        <extracomment>Kind of node</extracomment>
        <translation>Outfall</translation>
    </message>
    <message id="912114">
        <source></source>
        <extracomment>Kind of node</extracomment>
        <translation>Storage</translation>
    </message>
    <message id="912115">
        <source></source>
        <extracomment>Kind of node</extracomment>
        <translation>Divider</translation>
    </message>
    <message id="912116">
        <source></source>
        <extracomment>Kind of node or section</extracomment>
        <translation>Other</translation>
    </message>
    <message id="912117">
        <source></source>
        <extracomment>Kind of section</extracomment>
        <translation>Pipe</translation>
    </message>
    <message id="912118">
        <source></source>
        <extracomment>Kind of section</extracomment>
        <translation>Pump</translation>
    </message>
    <message id="912119">
        <source></source>
        <extracomment>Kind of section</extracomment>
        <translation>Valve</translation>
    </message>
    <message id="912120">
        <source></source>
        <extracomment>Kind of section</extracomment>
        <translation>Conduit</translation>
    </message>
    <message id="912121">
        <source></source>
        <extracomment>Kind of section</extracomment>
        <translation>Weir</translation>
    </message>
    <message id="912122">
        <source></source>
        <extracomment>Kind of section</extracomment>
        <translation>Orifice</translation>
    </message>
    <message id="912123">
        <source></source>
        <extracomment>Kind of section</extracomment>
        <translation>Outlet</translation>
    </message>
    <message id="912130">
        <source></source>
        <translation>The drawing has no networks. Use NETWORK_IMPORT to import one.</translation>
    </message>
    <message id="912131">
        <source></source>
        <extracomment>Follows the name of a system that is hidden</extracomment>
        <translation>, off</translation>
    </message>
    <message id="912132">
        <source></source>
        <translation>The drawing has no systems.</translation>
    </message>
    <message id="912140">
        <source></source>
        <extracomment>System and counts</extracomment>
        <translation>%s: %u nodes, %u sections</translation>
    </message>
    <message id="912141">
        <source></source>
        <extracomment>System and count</extracomment>
        <translation>%s: %u polygons</translation>
    </message>
    <message id="912142">
        <source></source>
        <extracomment>Progress; file</extracomment>
        <translation>Importing %s</translation>
    </message>
    <message id="912143">
        <source></source>
        <extracomment>Progress; system</extracomment>
        <translation>Adding %s</translation>
    </message>
    <message id="912144">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Kind of network</translation>
    </message>
    <message id="912145">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Distance within which line ends share a node</translation>
    </message>
    <message id="912146">
        <source></source>
        <extracomment>File</extracomment>
        <translation>%s: contains no points, lines or areas.</translation>
    </message>
    <message id="912148">
        <source></source>
        <extracomment>The input</extracomment>
        <translation>"%s" is not a valid distance.</translation>
    </message>
    <message id="912149">
        <source></source>
        <extracomment>Count</extracomment>
        <translation>%u of the nodes were created at the ends of lines.</translation>
    </message>
    <message id="912150">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Network file</translation>
    </message>
    <message id="912151">
        <source></source>
        <translation>No file given.</translation>
    </message>
    <message id="912152">
        <source></source>
        <extracomment>File</extracomment>
        <translation>%s: there is no such file.</translation>
    </message>
    <message id="912153">
        <source></source>
        <translation>No name given.</translation>
    </message>
    <message id="912154">
        <source></source>
        <translation>The import was stopped.</translation>
    </message>
    <message id="912200">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>invalid text height</translation>
    </message>
    <message id="912201">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>unmatched brace</translation>
    </message>
    <message id="912202">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it contains no attribute such as {NAME}</translation>
    </message>
    <message id="912203">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>the number of decimal places must be a single digit</translation>
    </message>
    <message id="912204">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>an attribute has no name</translation>
    </message>
    <message id="912205">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>the attribute for the height is missing</translation>
    </message>
    <message id="912206">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>colours must be from 1 to 255</translation>
    </message>
    <message id="912207">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>the number of classes must be from 1 to 12</translation>
    </message>
    <message id="912208">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>the breaks must be in ascending order</translation>
    </message>
    <message id="912209">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>invalid classes</translation>
    </message>
    <message id="912210">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>the attribute is missing</translation>
    </message>
    <message id="912211">
        <source></source>
        <extracomment>Column of a longitudinal section, at most 12 characters</extracomment>
        <translation>chainage</translation>
    </message>
    <message id="912212">
        <source></source>
        <extracomment>Column of a longitudinal section, at most 10 characters</extracomment>
        <translation>ground</translation>
    </message>
    <message id="912213">
        <source></source>
        <extracomment>Column of a longitudinal section, at most 10 characters</extracomment>
        <translation>invert</translation>
    </message>
    <message id="912214">
        <source></source>
        <extracomment>Column of a longitudinal section, at most 9 characters</extracomment>
        <translation>slope</translation>
    </message>
    <message id="912215">
        <source></source>
        <extracomment>Column of a longitudinal section</extracomment>
        <translation>node</translation>
    </message>
    <message id="920001">
        <source></source>
        <extracomment>Report at a start; module, command</extracomment>
        <translation>%s registers the command %s, which is built into the program. Typing it runs the program's command.</translation>
    </message>
    <message id="920002">
        <source></source>
        <extracomment>Report at a start; module, command, command</extracomment>
        <translation>%s registers the command %s, which differs from %s only in case.</translation>
    </message>
    <message id="920010">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Create</translation>
    </message>
    <message id="920011">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Edit</translation>
    </message>
    <message id="920012">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Delete</translation>
    </message>
    <message id="920013">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Networks and tools</translation>
    </message>
    <message id="920014">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Other commands</translation>
    </message>
    <message id="920015">
        <source></source>
        <extracomment>Heading of commands</extracomment>
        <translation>Run configurations</translation>
    </message>
    <message id="930000">
        <source></source>
        <extracomment>Name of a module</extracomment>
        <translation>Configurations</translation>
    </message>
    <message id="930001">
        <source></source>
        <extracomment>Reason; with the id of a command</extracomment>
        <translation>&quot;%s&quot; is not a command for configurations.</translation>
    </message>
    <message id="930002">
        <source></source>
        <extracomment>Reason; with the tag of a family</extracomment>
        <translation>No loaded module provides configurations of the family &quot;%s&quot;.</translation>
    </message>
    <message id="930003">
        <source></source>
        <extracomment>Reason; with the tag of a family</extracomment>
        <translation>The module of the family &quot;%s&quot; provides no storage for its configurations.</translation>
    </message>
    <message id="930004">
        <source></source>
        <extracomment>Reason; with the id of a command</extracomment>
        <translation>&quot;%s&quot; can only run configurations of its own family.</translation>
    </message>
    <message id="930005">
        <source></source>
        <extracomment>Message; with the system and the configuration</extracomment>
        <translation>%s: the default &quot;%s&quot; is shown.</translation>
    </message>
    <message id="930006">
        <source></source>
        <extracomment>Name of a step that can be undone</extracomment>
        <translation>Show defaults</translation>
    </message>
    <message id="940000">
        <source></source>
        <extracomment>Path, reason, new path</extracomment>
        <translation>%s is damaged (%s). The file was kept as %s; modules that could not be read are not loaded.</translation>
    </message>
    <message id="940001">
        <source></source>
        <extracomment>Path, reason, second reason</extracomment>
        <translation>%s is damaged (%s). It could not be kept aside: %s.</translation>
    </message>
    <message id="940002">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it has no list of modules</translation>
    </message>
    <message id="951000">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it has been saved by another program since it was opened here</translation>
    </message>
    <message id="951001">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>another drawing has taken its place</translation>
    </message>
    <message id="951002">
        <source></source>
        <extracomment>Who saved a drawing; user, host, program, time</extracomment>
        <translation>%s on %s, %s, %s UTC</translation>
    </message>
    <message id="951003">
        <source></source>
        <extracomment>Reason; with a reason and who saved last</extracomment>
        <translation>%s (last save: %s)</translation>
    </message>
    <message id="951004">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>waiting for another program&apos;s lock was cancelled</translation>
    </message>
    <message id="951005">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>another file was put in its place just now; try again</translation>
    </message>
    <message id="951006">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>another program has changed it just now; try again</translation>
    </message>
    <message id="951007">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>its symbolic links form a loop</translation>
    </message>
    <message id="951008">
        <source></source>
        <extracomment>Reason; with a table</extracomment>
        <translation>its table %s is missing; the drawing lacks its contents</translation>
    </message>
    <message id="951009">
        <source></source>
        <extracomment>Reason; with tables</extracomment>
        <translation>its tables %s are missing; the drawing lacks their contents</translation>
    </message>
    <message id="951010">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>the file does not record what has changed since the drawing was opened</translation>
    </message>
    <message id="951011">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>nobody else has saved it since it was opened here</translation>
    </message>
    <message id="951012">
        <source></source>
        <extracomment>Report; with names</extracomment>
        <translation>systems added: %s</translation>
    </message>
    <message id="951013">
        <source></source>
        <extracomment>Report; with names</extracomment>
        <translation>systems changed: %s</translation>
    </message>
    <message id="951014">
        <source></source>
        <extracomment>Report; with names</extracomment>
        <translation>systems removed: %s</translation>
    </message>
    <message id="951015">
        <source></source>
        <extracomment>Report; where, and three counts</extracomment>
        <translation>%s: %d entities added, %d changed, %d removed</translation>
    </message>
    <message id="951016">
        <source></source>
        <extracomment>Report; count and numbers</extracomment>
        <translation>Changed on both sides: %d entities (%s)</translation>
    </message>
    <message id="951017">
        <source></source>
        <extracomment>Report; with names</extracomment>
        <translation>Changed on both sides: %s</translation>
    </message>
    <message id="951018">
        <source></source>
        <extracomment>Report</extracomment>
        <translation>In this drawing</translation>
    </message>
    <message id="951019">
        <source></source>
        <extracomment>Report</extracomment>
        <translation>In the file</translation>
    </message>
    <message id="951020">
        <source></source>
        <extracomment>Report</extracomment>
        <translation>Taken over</translation>
    </message>
    <message id="951021">
        <source></source>
        <extracomment>Report</extracomment>
        <translation>The undo history was cleared.</translation>
    </message>
    <message id="951022">
        <source></source>
        <extracomment>Report</extracomment>
        <translation>The drawing keeps your versions of these. They are not saved yet: SAVE overwrites the other ones.</translation>
    </message>
    <message id="951023">
        <source></source>
        <extracomment>Choice</extracomment>
        <translation>Save as</translation>
    </message>
    <message id="951024">
        <source></source>
        <extracomment>Choice</extracomment>
        <translation>Show differences</translation>
    </message>
    <message id="951025">
        <source></source>
        <extracomment>Choice</extracomment>
        <translation>Take over their changes</translation>
    </message>
    <message id="951026">
        <source></source>
        <extracomment>Choice</extracomment>
        <translation>Write anyway</translation>
    </message>
    <message id="951027">
        <source></source>
        <extracomment>Question after a save was refused</extracomment>
        <translation>How do you want to continue?</translation>
    </message>
    <message id="951028">
        <source></source>
        <extracomment>Message; drawing and reason</extracomment>
        <translation>%s is open read-only: %s</translation>
    </message>
    <message id="951029">
        <source></source>
        <extracomment>Question; with the file</extracomment>
        <translation>%s has changed since it was opened here; replacing it loses what others saved in it. Replace it?</translation>
    </message>
    <message id="951030">
        <source></source>
        <extracomment>Message; drawing, user, host, program, time</extracomment>
        <translation>%s is open elsewhere: %s on %s, %s, since %s UTC</translation>
    </message>
    <message id="951031">
        <source></source>
        <extracomment>Question</extracomment>
        <translation>Open it read-only?</translation>
    </message>
    <message id="951032">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>another program has it open</translation>
    </message>
    <message id="951033">
        <source></source>
        <extracomment>In the list of drawings</extracomment>
        <translation>, read-only</translation>
    </message>
    <message id="951034">
        <source></source>
        <extracomment>Message; drawing</extracomment>
        <translation>%s is open read-only.</translation>
    </message>
    <message id="951040">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>it is open read-only</translation>
    </message>
    <message id="951041">
        <source></source>
        <extracomment>Error of the operating system</extracomment>
        <translation>not a regular file</translation>
    </message>
    <message id="960001">
        <source></source>
        <extracomment>Label in the general settings, with its letter</extracomment>
        <translation>&amp;Undo history in MB (0 = no limit):</translation>
    </message>
    <message id="960002">
        <source></source>
        <extracomment>Message; with the limit</extracomment>
        <translation>The undo history has reached its limit of %d MB: its oldest step can no longer be undone.</translation>
    </message>
    <message id="960003">
        <source></source>
        <extracomment>Message; with the limit and the number of steps, two or more</extracomment>
        <translation>The undo history has reached its limit of %d MB: its %d oldest steps can no longer be undone.</translation>
    </message>
    <message id="962000">
        <source></source>
        <extracomment>Reason; with the name of a configuration, who and when</extracomment>
        <translation>&quot;%s&quot; has been changed by %s at %s since it was read here.</translation>
    </message>
    <message id="962001">
        <source></source>
        <extracomment>Reason; with the name of a configuration</extracomment>
        <translation>&quot;%s&quot; has been deleted since it was read here.</translation>
    </message>
    <message id="962002">
        <source></source>
        <extracomment>Reason why a configuration is not written</extracomment>
        <translation>it is write-protected</translation>
    </message>
    <message id="962003">
        <source></source>
        <extracomment>Reason why a configuration is not written</extracomment>
        <translation>another program is writing to this folder; try again</translation>
    </message>
    <message id="962004">
        <source></source>
        <extracomment>Button: chooses a folder</extracomment>
        <translation>&amp;Browse...</translation>
    </message>
    <message id="962005">
        <source></source>
        <extracomment>Title of a window in which a folder is chosen</extracomment>
        <translation>Folder of the net repository</translation>
    </message>
    <message id="962006">
        <source></source>
        <extracomment>Reason; with the name of a configuration and why</extracomment>
        <translation>&quot;%s&quot; could not be deleted: %s</translation>
    </message>
    <message id="962010">
        <source></source>
        <extracomment>Question, its answers follow; with the name of a configuration, who and when</extracomment>
        <translation>&quot;%s&quot; has meanwhile been changed by %s at %s. Which version is to be kept?</translation>
    </message>
    <message id="962011">
        <source></source>
        <extracomment>Question, its answers follow; with the name of a configuration</extracomment>
        <translation>&quot;%s&quot; has meanwhile been deleted by someone else. Keep your version, or accept the deletion?</translation>
    </message>
    <message id="962012">
        <source></source>
        <extracomment>Answer: the version of this user</extracomment>
        <translation>Mine</translation>
    </message>
    <message id="962013">
        <source></source>
        <extracomment>Answer: the version of another user</extracomment>
        <translation>Theirs</translation>
    </message>
    <message id="962014">
        <source></source>
        <extracomment>Answer: both versions</extracomment>
        <translation>Both</translation>
    </message>
    <message id="962015">
        <source></source>
        <extracomment>Question; with the name of a configuration, who and when</extracomment>
        <translation>&quot;%s&quot; has meanwhile been changed by %s at %s. Delete it all the same?</translation>
    </message>
    <message id="962016">
        <source></source>
        <extracomment>Message; with the name of a configuration</extracomment>
        <translation>&quot;%s&quot; stays as the other user left it.</translation>
    </message>
</context>
</TS>
