#include "host/storage/RememberedFile.h"

#include <algorithm>

namespace Tessaly {

const RememberedFile::Foreign* RememberedFile::FindForeign(AcDbObjectId id) const {
    const auto found =
        std::lower_bound(foreign.begin(), foreign.end(), id,
                         [](const Foreign& row, AcDbObjectId wanted) { return row.id < wanted; });
    return found != foreign.end() && found->id == id && !found->isOurs ? &*found : nullptr;
}

std::size_t SumOf(const CString& text) {
    return std::hash<std::wstring_view>()(text.View());
}

void RememberedFile::NoteRecords(const AcDbDictionary& dictionary) {
    if (dictionary.isErased()) {
        dictionaries.erase(dictionary.name());
        return;
    }
    Records& sums = dictionaries[dictionary.name()];
    sums.clear();
    for (const auto& [name, text] : dictionary.records()) {
        sums.emplace(name, SumOf(text));
    }
}

bool RememberedFile::HasRow(AcDbObjectId id) const {
    if (id.number() < firstUnwritten) {
        return !FindForeign(id);
    }
    const auto found = std::lower_bound(
        renumbered.begin(), renumbered.end(), id,
        [](const Renumbered& row, AcDbObjectId wanted) { return row.id < wanted; });
    return found != renumbered.end() && found->id == id;
}

} // namespace Tessaly
