// Texts of the panels and their dialogs, by their numbers in the message catalogue.
#pragma once

#include "siblings/giscore/ModuleConfiguration.h"

namespace Orvane::Panels {

enum class Msg : int {
    // Panels.
    Systems = 900510,
    DiskRepository = 900511,
    NetRepository = 900512,
    DefaultMark = 900513, // with the name of the default configuration
    ActiveMark = 900514,  // with the name of the active system
    HiddenMark = 900515,  // with the name of a system
    NoNetFolder = 900516,
    // The console's views of the trees.
    AskPath = 900520,
    NoSuchNode = 900521, // with what was asked for, and where it was looked for
    ThereIs = 900522,    // with the names of nodes
    NoChildren = 900523, // with a node
    EmptyMenu = 900524,  // with a node
    PlaceToAdd = 900525, // with the kind of configurations
    NoTemplate = 900526,
    SystemTemplate = 900527, // with topology and function
    // Dialogs.
    Find = 900540,
    FindWhat = 900541,
    FindIn = 900542,
    FindWhere = 900543,
    AllSystems = 900544,
    Everywhere = 900545,
    Name = 900546,
    Kind = 900547,
    Attributes = 900548,
    Found = 900549,        // with the count
    FoundMore = 900550,    // with how many are shown
    NothingFound = 900551, // with the text
    ColumnEntity = 900552,
    ColumnSystem = 900553,
    ColumnFoundIn = 900554,
    Show = 900555,
    Properties = 900556,
    ColumnProperty = 900560,
    ColumnValue = 900561,
    Pick = 900562,
    SetValue = 900563,
    AskEntity = 900564,
    NoEntity = 900565,
    NotEditable = 900566, // with the property
    ValueSet = 900567,    // with property and value
    NotSet = 900568,      // with the property
    Statistics = 900570,
    NoActiveSystem = 900571,
    Legend = 900572,
    ColumnLayer = 900573,
    ColumnCount = 900574,
    ColumnColor = 900575,
    EntityOf = 900576, // kind of entity and name
    Close = 900577,
    NoDrawing = 900578,
    AskSearch = 900579,
    Type = 900580,
    Length = 900581,
    Texts = 900582,
};

template <class... Args>
CString Text(Msg message, const Args&... args) {
    return FormatText(CModuleConfiguration::Instance()->GetMsg(static_cast<int>(message)).View(),
                      args...);
}

} // namespace Orvane::Panels
