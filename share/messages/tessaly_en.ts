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
</context>
</TS>
