#include <algorithm>
#include <deque>
#include <mutex>
#include <shared_mutex>
#include <stdexcept>
#include <string>
#include <unordered_map>

#include "platform/arx/DbAttributes.h"
#include "platform/arx/DbReferences.h"

namespace {

/// The number of names that fit into a value's tag.
constexpr std::size_t kMostNames = std::size_t{1} << 24;

/// Never destroyed, as views of its texts are handed out.
struct NameTable {
    std::shared_mutex mutex;
    std::deque<std::string> names; ///< a deque does not move its texts
    std::unordered_map<std::string_view, AcDbNameId> numbers;
};

NameTable& Names() {
    static auto* const names = new NameTable;
    return *names;
}

} // namespace

AcDbNameId AcDbIntern(std::string_view name) {
    NameTable& table = Names();
    {
        const std::shared_lock lock(table.mutex);
        if (const auto hit = table.numbers.find(name); hit != table.numbers.end()) {
            return hit->second;
        }
    }
    const std::unique_lock lock(table.mutex);
    if (const auto hit = table.numbers.find(name); hit != table.numbers.end()) {
        return hit->second; // another thread added it first
    }
    if (table.names.size() == kMostNames) {
        throw std::length_error("There are too many attribute names.");
    }
    const AcDbNameId id{static_cast<std::uint32_t>(table.names.size())};
    table.numbers.emplace(table.names.emplace_back(name), id);
    return id;
}

AcDbNameId AcDbInternForeign(std::string_view name) {
    static constexpr std::string_view kOwnNames[] = {AcDbReferences::kSystemAttribute,
                                                     AcDbReferences::kSystemListAttribute,
                                                     AcDbReferences::kObjectAttributes[0],
                                                     AcDbReferences::kObjectAttributes[1],
                                                     "STARTNAME",
                                                     "ENDNAME"};
    const bool isOwn =
        std::find(std::begin(kOwnNames), std::end(kOwnNames), name) != std::end(kOwnNames);
    return AcDbIntern(isOwn ? std::string(name) + "_" : std::string(name));
}

std::string_view AcDbNameOf(AcDbNameId id) {
    NameTable& table = Names();
    const std::shared_lock lock(table.mutex);
    const auto index = static_cast<std::size_t>(id);
    return index < table.names.size() ? std::string_view(table.names[index]) : std::string_view();
}
