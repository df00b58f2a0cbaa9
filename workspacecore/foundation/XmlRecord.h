// Shared by all classes that are stored as one line of XML.
#pragma once

#include <cstdint>

#include "platform/win/Number.h"
#include "workspacecore/foundation/XmlDocument.h"
#include "workspacecore/foundation/XmlField.h"

namespace Orvane {

inline CString ReadXmlText(const XmlDocument& document, const wchar_t* attribute) {
    return DecodeXmlField(document.GetAttrib(attribute));
}

/// 0 if the attribute is missing or not a number.
inline int ReadXmlInt(const XmlDocument& document, const wchar_t* attribute) {
    return TextToInt(document.GetAttrib(attribute).View());
}

/// The stored form of a handle. For debugging only; it is ignored when read.
inline std::int32_t HandleAsNumber(const void* handle) {
    return static_cast<std::int32_t>(reinterpret_cast<std::uintptr_t>(handle));
}

/// Reads a record from a file. Returns 0 and changes nothing if the file cannot be read or is not
/// well formed.
template <class Record>
int LoadXmlRecord(Record& record, const wchar_t* path) {
    XmlDocument document;
    return document.Load(path) ? record.ParseXML(document.GetDoc()) : 0;
}

/// Writes a record to a file. Returns 0 and writes nothing if its text would not be well formed.
template <class Record>
int SaveXmlRecord(const Record& record, const wchar_t* path) {
    XmlDocument document;
    return document.SetDoc(record.GetXML()) && document.Save(path) ? 1 : 0;
}

/// Prints that a record cannot be stored in drawings.
WORKSPACE_API void SayNotImplemented();

} // namespace Orvane
