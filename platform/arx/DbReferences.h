// References between parts of a drawing that are stored as attribute values and names instead of
// database ids. Code that renumbers objects must update them.
#pragma once

#include <string_view>

namespace AcDbReferences {

/// Attributes that contain the id of another entity.
inline constexpr std::string_view kObjectAttributes[] = {"STARTNODE", "ENDNODE"};
/// Attribute with the number of a system.
inline constexpr std::string_view kSystemAttribute = "SYSTEMID";
/// Attribute with the numbers of several systems, as "3 7".
inline constexpr std::string_view kSystemListAttribute = "SYSTEMS";

/// Name of a system's dictionary, followed by the system's number.
inline constexpr std::wstring_view kSystemDictionary = L"ORVZ_SYSTEM_";
/// Record of the system's display name in that dictionary.
inline constexpr std::wstring_view kSystemName = L"NAME";
/// The common dictionary of all systems: the highest assigned number, and counters whose names
/// contain the number of their system, as "COUNTER.3.".
inline constexpr std::wstring_view kSystems = L"ORVZ_SYSTEMS";
inline constexpr std::wstring_view kLastSystem = L"LASTID";
inline constexpr std::wstring_view kSystemCounter = L"COUNTER.";
inline constexpr std::wstring_view kActiveSystem = L"ACTIVE";
inline constexpr std::wstring_view kDrawingGuid = L"GUID";

/// The dictionary in which every save records the program that made it.
inline constexpr std::wstring_view kSaveStamp = L"__HV__";

} // namespace AcDbReferences
