// Messages from the plug-ins to the user; the texts are in share/messages.
#pragma once

#include "platform/win/CodePage.h"
#include "platform/win/MessageCatalogue.h"

namespace Orvane::Plugins {

enum class Msg : int {
    // Configurations and systems.
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
    // Two people have changed the same configuration; with its name, who and when.
    ChangedMeanwhile = 962010,
    DeletedMeanwhile = 962011, // with the name
    KeepMine = 962012,
    KeepTheirs = 962013,
    KeepBoth = 962014,
    DeleteChanged = 962015,
    TheirsStays = 962016, // with the name
    SystemName = 900445,
    SystemKind = 900446,
    SystemFunction = 900447,
    // Choices.
    Everything = 900462,
    AllConditions = 900463,
    AnyCondition = 900464,
    UniqueValues = 900465,
    Ranges = 900466,
    LayerColor = 900467,
    Disk = 900468,
    Net = 900469,
    // Reasons for refusing something; most with the user's input.
    NoCondition = 900404,
    UnknownAttribute = 900406, // with system and attribute
    NoNumbers = 900411,
    NoHeight = 900414,
    NoSense = 900420, // with the reason
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
    // Completed actions.
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
    // Panels.
    Systems = 900510,
    DiskRepository = 900511,
    NetRepository = 900512,
    DefaultMark = 900513, // with the name of the default configuration
    ActiveMark = 900514,  // with the name of the active system
    HiddenMark = 900515,  // with the name of a system
    // The console's views of the trees.
    AskPath = 900520,
    NoSuchNode = 900521, // what was searched for, and where
    ThereIs = 900522,    // with the names of nodes
    NoChildren = 900523, // with a node
    EmptyMenu = 900524,  // with a node
    PlaceToAdd = 900525, // with the kind of configurations
    NoTemplate = 900526,
    SystemTemplate = 900527, // with topology and function
    // Words shared with the workspace.
    ColumnProperty = 464,
    Function = 1216,
    ColumnSystem = 1253,
    ColumnValue = 1257,
    // Find.
    Find = 900540,
    FindWhat = 900541, // labels, with the mnemonic of their control
    FindIn = 900542,
    FindWhere = 900543,
    FindNow = 900544,
    AllSystems = 900545,
    Everywhere = 900546,
    Kind = 900548,
    Attributes = 900549,
    Found = 900550,     // with the count
    FoundMore = 900551, // with the count, and how many are shown
    NothingFound = 900552,
    ColumnEntity = 900553,
    ColumnFoundIn = 900554,
    Show = 900555,
    ShowProperties = 900556,
    NotThere = 900557, // with the entity that was found
    AskFindWhat = 900558,
    AskFindIn = 900559,
    AskFindWhere = 900560,
    FoundLine = 900561,    // kind, name, system, where
    NoSuchSystem = 900562, // with the name
    // Properties.
    Properties = 900570,
    Pick = 900571,
    SetValue = 900572,
    AskEntity = 900573,
    NoEntity = 900574,
    NotEditable = 900575, // with the property
    ValueSet = 900576,    // with property and value
    NotSet = 900577,      // with the property
    NoNumber = 900578,    // with the input and the property
    NoName = 900579,
    NothingPicked = 900580,
    AskProperty = 900581,
    AskValue = 900582,   // with the current value
    NoProperty = 900583, // with the input
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
    // Families from other plug-ins, and default items.
    NoFamilyCommand = 930001,    // with the id
    UnknownFamily = 930002,      // with the tag
    FamilyWithoutPlace = 930003, // with the tag
    NotHandedOver = 930004,      // with the id
    DefaultIsShown = 930005,     // with system and name
    ShowsDefaults = 930006,      // name of an undo step
    // Why a configuration is invalid.
    InvalidHeight = 912200,
    UnmatchedBrace = 912201,
    NoAttributeInIt = 912202,
    DecimalsNotADigit = 912203,
    AttributeWithoutName = 912204,
    NoHeightAttribute = 912205,
    ColorRange = 912206,
    ClassCountRange = 912207,
    BreaksNotAscending = 912208,
    InvalidClasses = 912209,
    NoAttribute = 912210,
    // Columns of a longitudinal section.
    Chainage = 912211,
    Ground = 912212,
    Invert = 912213,
    Slope = 912214,
    NodeColumn = 912215,
    // Networks and their files.
    NoNetworks = 912130,
    IsOff = 912131, // appended to the name of a system
    NoSystems = 912132,
    ImportedNetwork = 912140,  // name, counts of nodes and sections
    ImportedPolygons = 912141, // name, count
    Importing = 912142,        // with the file
    Reading = 911023,          // with the file
    Adding = 912143,           // with the system
    KindOfNetwork = 912144,
    JoinDistance = 912145,
    NoFeatures = 912146, // with the file
    NoDistance = 912148, // with the input
    MadeNodes = 912149,  // with the count
    NetworkFile = 912150,
    NoFileGiven = 912151,
    NoSuchFile = 912152, // with the file
    NoNameGiven = 912153,
    ImportStopped = 912154,
    SystemExists = 900302, // with the name
    NothingImported = 911062,
    OtherCoordinateSystem = 911061, // layer, its coordinate system, the drawing's
    NoFindings = 912082,
    Nodes = 912070, // labels of a report
    Sections = 912071,
    DrawnLength = 912072,
    StatedLength = 912073,
    StatedLengthOf = 912074, // length, count
    Components = 912075,
    ComponentCounts = 912076, // count, nodes of the largest
    Extents = 912077,
    ExtentsFromTo = 912078, // two corners
    Elevations = 912079,
    FromTo = 912080, // two numbers
    Polygons = 912081,
    FindingKinds = 912085, // the first of them, in the order of FindingKind
    IsolatedNode = 912095, // findings; with an entity, most with a second one
    CoincidentNode = 912096,
    ZeroLength = 912097,
    LacksNode = 912098,
    MissingNode = 912099,
    MissingNodes = 912100,
    ParallelSection = 912101,
    Crossing = 912102,  // and the position
    NodeKinds = 912110, // the first of them, in the order of NodeKind
    OtherKind = 912116,
    SectionKinds = 912117, // the first of them, in the order of SectionKind
    // Problems of network files.
    ReadingStopped = 911123,
    FileIsEmpty = 912000,
    FileIsTooLarge = 912001,
    FileIsUtf16 = 912002,
    FileWithoutNodes = 912003,
    NotANetworkFile = 912004,
    CannotReadFile = 912006, // with the reason
    MoreProblems = 912007,   // with the count
    FewColumns = 912010,     // heading, count, count needed, their names
    NotANumber = 912011,     // the column, and the text
    TooLargeNumber = 912012,
    NegativeNumber = 912013,
    NameTaken = 912014, // kind of entity, name, line
    NodeWord = 912020,  // kinds of entities and numbers
    SectionWord = 912021,
    ElevationWord = 912022,
    HeadWord = 912023,
    LengthWord = 912024,
    DiameterWord = 912025,
    XWord = 912026,
    YWord = 912027,
    CoordinatesOfUnknown = 912030, // each with a name
    CoordinatesAgain = 912031,
    NoCoordinates = 912032,
    NodeLeftOut = 912033,
    SectionLacksNode = 912034, // with section and node
    CrossSectionOfUnknown = 912035,
    VertexOfUnknown = 912036,
    PolygonLeftOut = 912037, // with name and count
    PolygonOfUnknown = 912038,
    TagOfUnknownNode = 912039,
    TagOfUnknownSection = 912040,
    LineTooLong = 912041, // with length and limit
    ZeroByte = 912042,
    TextBeforeSection = 912043,
    HeadingIsCut = 912044,
    UnknownHeading = 912045,
    NameColumn = 912050, // columns required in a line
    HeadColumns = 912051,
    ElevationColumns = 912052,
    LineColumns = 912053,
    PipeColumns = 912054,
    ValveColumns = 912055,
    ConduitColumns = 912056,
    CoordinateColumns = 912057,
    VertexColumns = 912058,
    ShapeColumns = 912059,
    LabelColumns = 912060,
    TagColumns = 912061,
};

template <class... Args>
CString Text(Msg message, const Args&... args) {
    return MessageText(message, args...);
}

/// The same in UTF-8.
template <class... Args>
std::string TextUtf8(Msg message, const Args&... args) {
    return WideToUtf8(MessageText(message, args...).View());
}

/// A message of several that follow each other, such as the kinds of findings.
inline Msg MsgAt(Msg first, std::size_t place) {
    return static_cast<Msg>(static_cast<std::size_t>(first) + place);
}

} // namespace Orvane::Plugins
