// Texts for the user about configurations, by their numbers in the message catalogue.
#pragma once

#include "siblings/giscore/configuration/ModuleConfiguration.h"

namespace Orvane::Repository {

enum class Msg : int {
    // Names of the families.
    Queries = 900130,
    Themes = 900131,
    Labels = 900132,
    LongitudinalSections = 900133,
    // Labels of prompts.
    Name = 900400,
    QueriedEntities = 900401,
    Match = 900402,
    Condition = 900403, // with its number
    Attribute = 900405,
    Classes = 900407,
    ClassCount = 900408,
    Breaks = 900409,
    Colors = 900410,
    Pattern = 900412,
    TextHeight = 900413,
    FromNode = 900415,
    ToNode = 900416,
    HeightAttribute = 900417,
    DepthAttribute = 900418,
    ReallyDelete = 900427, // with the name
    ReplaceThere = 900428, // with the name
    SendWhere = 900429,
    SystemName = 900445,
    SystemKind = 900446,
    SystemFunction = 900447,
    // What can be chosen.
    Yes = 900460,
    No = 900461,
    Everything = 900462,
    AllConditions = 900463,
    AnyCondition = 900464,
    UniqueValues = 900465,
    Ranges = 900466,
    LayerColor = 900467,
    Disk = 900468,
    Net = 900469,
    // Why something is not done; most with what was typed.
    NoCondition = 900404,
    UnknownAttribute = 900406, // with system and attribute
    NoNumbers = 900411,
    NoHeight = 900414,
    NoChoice = 900419, // with what there is to choose
    NoSense = 900420,  // with the reason
    NoPlace = 900430,
    NoNet = 900431,
    NoSystem = 900432,
    NoItem = 900433,
    NoEntities = 900434, // with the system
    NoNode = 900440,     // with system and node
    NoPath = 900441,     // with both nodes
    NothingDropped = 900443,
    UnknownSystem = 900449,
    SameItem = 900453,
    // What was done.
    Added = 900421,
    Changed = 900422,
    Deleted = 900423,
    Sent = 900425,
    IsDefault = 900426,
    Selected = 900435,     // query, count, system
    Themed = 900436,       // theme, system, attribute, count
    WithoutValue = 900437, // in a legend
    ThemeOff = 900438,     // theme, count
    Labelled = 900439,     // configuration, count, system, removed
    Profile = 900442,      // configuration, system, from, to, length
    IsActive = 900450,
    IsShown = 900451,
    IsHidden = 900452,
    // Families of other plug-ins, and default items.
    NoFamilyCommand = 930001,    // with the id
    UnknownFamily = 930002,      // with the tag
    FamilyWithoutPlace = 930003, // with the tag
    NotHandedOver = 930004,      // with the id
    DefaultIsShown = 930005,     // with system and name
    ShowsDefaults = 930006,      // name of a step of the history
};

template <class... Args>
CString Text(Msg message, const Args&... args) {
    return FormatText(CModuleConfiguration::Instance()->GetMsg(static_cast<int>(message)).View(),
                      args...);
}

} // namespace Orvane::Repository
