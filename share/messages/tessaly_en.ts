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
        <extracomment>Column of the system manager: what a system is for</extracomment>
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
The systems are marked. Press Enter to go on: </translation>
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
        <translation>Roll up</translation>
    </message>
    <message id="7247">
        <source></source>
        <extracomment>Tooltip of a dialog's caption button</extracomment>
        <translation>Unroll</translation>
    </message>
    <message id="7533">
        <source></source>
        <extracomment>Filter button of the log view, with a count behind it</extracomment>
        <translation>Errors</translation>
    </message>
    <message id="7534">
        <source></source>
        <extracomment>Filter button of the log view, with a count behind it</extracomment>
        <translation>Information</translation>
    </message>
    <message id="7535">
        <source></source>
        <extracomment>Filter button of the log view, with a count behind it</extracomment>
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
        <extracomment>Memory report, with a number behind it</extracomment>
        <translation>Available</translation>
    </message>
    <message id="10301">
        <source></source>
        <extracomment>Memory report, with a number behind it</extracomment>
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
        <translation>There is no drawing.</translation>
    </message>
    <message id="900301">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>A system needs a name.</translation>
    </message>
    <message id="900302">
        <source></source>
        <extracomment>Reason, with the name of the other system</extracomment>
        <translation>The drawing has a system "%s" already.</translation>
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
    <message id="900101">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>Import network</translation>
    </message>
    <message id="900102">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>makes systems from a water (EPANET) or sewer (SWMM) network file, or from the points, lines and areas of any other file</translation>
    </message>
    <message id="900103">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>Network statistics</translation>
    </message>
    <message id="900104">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>prints counts, lengths, extents and connected parts of each network</translation>
    </message>
    <message id="900105">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>Check network</translation>
    </message>
    <message id="900106">
        <source></source>
        <extracomment>Network plug-in</extracomment>
        <translation>lists what is wrong with each network</translation>
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
        <translation>makes a system the active one</translation>
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
        <translation>&quot;%s&quot; is there already.</translation>
    </message>
    <message id="900313">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>The configuration is not there any more.</translation>
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
        <translation>Fulfilled conditions</translation>
    </message>
    <message id="900403">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Condition %d (attribute, operator, value; - removes)</translation>
    </message>
    <message id="900404">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>&quot;%s&quot; is no condition. Write an attribute, one of = &lt;&gt; &lt; &lt;= &gt; &gt;= contains empty, and a value.</translation>
    </message>
    <message id="900405">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Attribute</translation>
    </message>
    <message id="900406">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Note: no such entity of %s has an attribute &quot;%s&quot;.</translation>
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
        <translation>Breaks between classes, with blanks between (- for computed ones)</translation>
    </message>
    <message id="900410">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Colours from 1 to 255, with blanks between (- for the usual ones)</translation>
    </message>
    <message id="900411">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>&quot;%s&quot; is no list of numbers.</translation>
    </message>
    <message id="900412">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Text with attributes in braces</translation>
    </message>
    <message id="900413">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Text height (0: as the view has it)</translation>
    </message>
    <message id="900414">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>&quot;%s&quot; is no text height.</translation>
    </message>
    <message id="900415">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>From node (- to be asked each time)</translation>
    </message>
    <message id="900416">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>To node (- to be asked each time)</translation>
    </message>
    <message id="900417">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Attribute of the height</translation>
    </message>
    <message id="900418">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Attribute of the depth (- for none)</translation>
    </message>
    <message id="900419">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>&quot;%s&quot; is none of %s.</translation>
    </message>
    <message id="900420">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>This makes no sense: %s.</translation>
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
        <translation>%s is the default now.</translation>
    </message>
    <message id="900427">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>Delete %s</translation>
    </message>
    <message id="900428">
        <source></source>
        <extracomment>Prompt of the network plug-in</extracomment>
        <translation>%s is there already. Replace it</translation>
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
        <translation>There is no net repository. The setting NET_REPOSITORY names its folder.</translation>
    </message>
    <message id="900432">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>No system is active. SYSTEM_ACTIVATE makes one so.</translation>
    </message>
    <message id="900433">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>There is no configuration &quot;%s&quot;.</translation>
    </message>
    <message id="900434">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s holds no entities of this kind.</translation>
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
        <translation>%s has no node &quot;%s&quot;.</translation>
    </message>
    <message id="900441">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>No way leads from %s to %s.</translation>
    </message>
    <message id="900442">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>%s, %s: %s to %s, length %s</translation>
    </message>
    <message id="900443">
        <source></source>
        <extracomment>Message of the network plug-in</extracomment>
        <translation>Nothing was dropped that belongs here.</translation>
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
        <translation>What it is for</translation>
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
        <translation>%s is there already, with the same content.</translation>
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
        <translation>Path (as system/NAME/..., disk/..., net/...): </translation>
    </message>
    <message id="900521">
        <source></source>
        <extracomment>Reason; with what was asked for, and where it was looked for</extracomment>
        <translation>There is no &quot;%s&quot; in &quot;%s&quot;.</translation>
    </message>
    <message id="900522">
        <source></source>
        <extracomment>With the names of nodes</extracomment>
        <translation>There is: %s</translation>
    </message>
    <message id="900523">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>It has nothing below it.</translation>
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
        <translation>There is no template for this.</translation>
    </message>
    <message id="900527">
        <source></source>
        <extracomment>In a list of templates; with topology and function</extracomment>
        <translation>System: %s, %s</translation>
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
        <translation>prints the menu of a node of a tree, given by its path</translation>
    </message>
    <message id="900594">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Trees</translation>
    </message>
    <message id="900595">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>prints what the system, disk and net trees show</translation>
    </message>
    <message id="900540">
        <source></source>
        <extracomment>Title of a dialog; command</extracomment>
        <translation>Find</translation>
    </message>
    <message id="900541">
        <source></source>
        <extracomment>Label in the find dialog, with its letter</extracomment>
        <translation>Fi&amp;nd what:</translation>
    </message>
    <message id="900542">
        <source></source>
        <extracomment>Label in the find dialog, with its letter</extracomment>
        <translation>&amp;System:</translation>
    </message>
    <message id="900543">
        <source></source>
        <extracomment>Label in the find dialog, with its letter</extracomment>
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
    <message id="900547">
        <source></source>
        <extracomment>Choice in the find dialog; a property</extracomment>
        <translation>Name</translation>
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
        <extracomment>Column: the text that was met</extracomment>
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
        <translation>It is not there any more</translation>
    </message>
    <message id="900558">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Find what: </translation>
    </message>
    <message id="900559">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>System (all): </translation>
    </message>
    <message id="900560">
        <source></source>
        <extracomment>Prompt; with the choices</extracomment>
        <translation>Where (%s): </translation>
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
    <message id="900563">
        <source></source>
        <extracomment>Reason; with what was typed and the choices</extracomment>
        <translation>&quot;%s&quot; is none of: %s</translation>
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
        <translation>Point at an entity: </translation>
    </message>
    <message id="900574">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>This is no entity of a system.</translation>
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
        <extracomment>Reason; with what was typed, and the property</extracomment>
        <translation>&quot;%s&quot; is no number, and &quot;%s&quot; has to be one.</translation>
    </message>
    <message id="900579">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>A name is needed.</translation>
    </message>
    <message id="900580">
        <source></source>
        <extracomment>In the properties dialog, as long as it shows nothing</extracomment>
        <translation>No entity is chosen.</translation>
    </message>
    <message id="900581">
        <source></source>
        <extracomment>Prompt</extracomment>
        <translation>Property to change (none): </translation>
    </message>
    <message id="900582">
        <source></source>
        <extracomment>Prompt; with the value now</extracomment>
        <translation>Value &lt;%s&gt;: </translation>
    </message>
    <message id="900583">
        <source></source>
        <extracomment>Reason; with what was typed</extracomment>
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
    <message id="900610">
        <source></source>
        <extracomment>Title of a dialog; command</extracomment>
        <translation>Statistics</translation>
    </message>
    <message id="900611">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>There is no active system.</translation>
    </message>
    <message id="900612">
        <source></source>
        <extracomment>Headline of a report; with the system</extracomment>
        <translation>Figures of %s</translation>
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
        <translation>The drawing shows nothing.</translation>
    </message>
    <message id="900630">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Find entities</translation>
    </message>
    <message id="900631">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>finds nodes, sections and polygons by what is written in them, and shows them</translation>
    </message>
    <message id="900632">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Entity properties</translation>
    </message>
    <message id="900633">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>shows what is known of an entity, and changes it</translation>
    </message>
    <message id="900634">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>System statistics</translation>
    </message>
    <message id="900635">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>shows the figures of the active system</translation>
    </message>
    <message id="900636">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>Legend</translation>
    </message>
    <message id="900637">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>shows what the colours of the drawing stand for</translation>
    </message>
    <message id="900331">
        <source></source>
        <extracomment>Label in the general settings, with its letter</extracomment>
        <translation>&amp;Language:</translation>
    </message>
    <message id="900332">
        <source></source>
        <extracomment>Label in the general settings, with its letter</extracomment>
        <translation>&amp;Minutes between autosaves (0: off):</translation>
    </message>
    <message id="900333">
        <source></source>
        <extracomment>Check box in the general settings, with its letter</extracomment>
        <translation>&amp;Run a query that is dropped on a dialog</translation>
    </message>
    <message id="900334">
        <source></source>
        <extracomment>Label in the general settings, with its letter</extracomment>
        <translation>C&amp;olour of marks:</translation>
    </message>
    <message id="900335">
        <source></source>
        <extracomment>Label in the general settings, with its letter</extracomment>
        <translation>&amp;Decimals of equal positions:</translation>
    </message>
    <message id="900336">
        <source></source>
        <extracomment>Label in the general settings, with its letter</extracomment>
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
        <translation>&quot;%s&quot; is a whole number from %d to %d.</translation>
    </message>
    <message id="900346">
        <source></source>
        <extracomment>Reason; with a setting</extracomment>
        <translation>&quot;%s&quot; is one line of text.</translation>
    </message>
    <message id="900347">
        <source></source>
        <extracomment>Reason</extracomment>
        <translation>The settings could not be written: %s</translation>
    </message>
    <message id="900638">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>General settings</translation>
    </message>
    <message id="900639">
        <source></source>
        <extracomment>Command</extracomment>
        <translation>shows and changes language, colours, folders and the like</translation>
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
</context>
</TS>
