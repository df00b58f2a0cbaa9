// Messages of the GIS core about the user's files and configurations; their texts are in
// share/messages. Internal to the siblings.
#pragma once

#include "platform/win/MessageCatalogue.h"

namespace Orvane {

enum class GisMsg : int {
    // Files of the folder "support"; arguments: file and line, and in most the offending word.
    NotAWholeNumber = 910100,
    UnknownKey = 910101,
    NeitherNumberNorText = 910102,
    UnknownTopology = 910116,
    SecondSection = 910117,
    HasNoValue = 910118,
    NeitherZeroNorOne = 910119,
    FunctionNumber = 910120,
    SecondFunction = 910121,
    NoSuchEntityType = 910122,
    SecondEntityType = 910123,
    NoTopology = 910124, // file only
    NotANameScope = 910125,
    NotAnEntityType = 910126,
    NotANamePattern = 910127,
    // Layer names.
    SectionLayer = 910140,
    AlignmentLayer = 910141,
    NodeLayer = 910142,
    TextLayer = 910143,
    PolygonLayer = 910144,
    TemporaryPolygonLayer = 910145,
    PointLayer = 910146,
    SchemeLayer = 910147,
    // Why a configuration cannot be read.
    NoQueriedType = 910103,
    InvalidCondition = 910104,
    OtherGuid = 910105,
    SameGuid = 910106,
    NoSuchFolder = 910107, // folder
    NotNamedAfterGuid = 910108,
    TooLong = 910109,
    OtherRoot = 910110, // actual and expected name
    OtherFamily = 910111,
    WithoutName = 910112,
    EntityTypeNotANumber = 910113,
    WithoutGuid = 910114,
    NoModuleForFamily = 910115,
    NotWellFormed = 910128, // line
    AtLine = 910132,        // line and reason
    DocumentType = 910130,
    TooDeep = 910131,
    SystemWithoutName = 910129, // default name; argument: the system's number
};

} // namespace Orvane
