// Texts of the panels and their dialogs, by their numbers in the message catalogue.
#pragma once

#include "siblings/giscore/configuration/ModuleConfiguration.h"

namespace Orvane::Panels {

enum class Msg : int {
    // Panels.
    Systems = 900510,
    DiskRepository = 900511,
    NetRepository = 900512,
    DefaultMark = 900513, // with the name of the default configuration
    ActiveMark = 900514,  // with the name of the active system
    HiddenMark = 900515,  // with the name of a system
    // The console's views of the trees.
    AskPath = 900520,
    NoSuchNode = 900521, // with what was asked for, and where it was looked for
    ThereIs = 900522,    // with the names of nodes
    NoChildren = 900523, // with a node
    EmptyMenu = 900524,  // with a node
    PlaceToAdd = 900525, // with the kind of configurations
    NoTemplate = 900526,
    SystemTemplate = 900527, // with topology and function
    // Words that the workspace has as well.
    ColumnProperty = 464,
    Function = 1216,
    ColumnSystem = 1253,
    ColumnValue = 1257,
    // Find.
    Find = 900540,
    FindWhat = 900541, // labels, with the letter that leads to their control
    FindIn = 900542,
    FindWhere = 900543,
    FindNow = 900544,
    AllSystems = 900545,
    Everywhere = 900546,
    Name = 900547,
    Kind = 900548,
    Attributes = 900549,
    Found = 900550,     // with the count
    FoundMore = 900551, // with the count, and how many are shown
    NothingFound = 900552,
    ColumnEntity = 900553,
    ColumnFoundIn = 900554,
    Show = 900555,
    ShowProperties = 900556,
    NotThere = 900557, // what was found
    AskFindWhat = 900558,
    AskFindIn = 900559,
    AskFindWhere = 900560, // with the choices
    FoundLine = 900561,    // kind, name, system, where
    NoSuchSystem = 900562, // with the name
    NoSuchPlace = 900563,  // with what was typed
    // Properties.
    Properties = 900570,
    Pick = 900571,
    SetValue = 900572,
    AskEntity = 900573,
    NoEntity = 900574,
    NotEditable = 900575, // with the property
    ValueSet = 900576,    // with property and value
    NotSet = 900577,      // with the property
    NoNumber = 900578,    // with what was typed, and the property
    NoName = 900579,
    NothingPicked = 900580,
    AskProperty = 900581,
    AskValue = 900582,   // with the value now
    NoProperty = 900583, // with what was typed
    Type = 900584,
    Position = 900585,
    StartNode = 900586,
    EndNode = 900587,
    Length = 900588,
    Area = 900589,
    // Reports.
    Statistics = 900610,
    NoActiveSystem = 900611,
    FiguresOf = 900612, // with the system
    Legend = 900613,
    ColumnLayer = 900614,
    ColumnCount = 900615,
    Close = 900616,
    NoDrawing = 900617,
    LegendLine = 900618, // layer, colour, count
    EmptyLegend = 900619,
};

template <class... Args>
CString Text(Msg message, const Args&... args) {
    return FormatText(CModuleConfiguration::Instance()->GetMsg(static_cast<int>(message)).View(),
                      args...);
}

} // namespace Orvane::Panels
