#include "plugins/panels/EntitySearch.h"

#include <algorithm>
#include <array>

#include "platform/win/CodePage.h"
#include "plugins/panels/EntityTexts.h"
#include "siblings/networkcore/TopologyMultiStorage.h"

namespace Orvane::Panels {

namespace {

using Topology::CEntity;
using Topology::CTopologyStorage;

enum Rank { Whole, Beginning, Part, RankCount };

char LowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Searches many texts for one. Most texts are ASCII and need no conversion.
class Needle {
public:
    explicit Needle(const CString& text) : m_wide(CString(text).MakeLower()) {
        m_utf8 = WideToUtf8(m_wide.View());
    }

    bool IsEmpty() const { return m_utf8.empty(); }
    /// Nothing if the text does not contain it.
    std::optional<Rank> In(std::string_view utf8) const {
        std::size_t place = 0;
        std::size_t length = utf8.size();
        if (IsAscii(utf8)) {
            const auto hit = std::search(utf8.begin(), utf8.end(), m_utf8.begin(), m_utf8.end(),
                                         [](char a, char b) { return LowerAscii(a) == b; });
            place = hit == utf8.end() && !IsEmpty() ? std::string_view::npos
                                                    : static_cast<std::size_t>(hit - utf8.begin());
        } else {
            const CString wide = Utf8ToWide(utf8);
            length = wide.View().size();
            place = CString(wide).MakeLower().View().find(m_wide.View());
        }
        const std::size_t own = m_wide.View().size();
        return place == std::string_view::npos ? std::nullopt
               : place > 0                     ? std::optional(Part)
               : length == own                 ? std::optional(Whole)
                                               : std::optional(Beginning);
    }

private:
    CString m_wide; ///< in lower case
    std::string m_utf8;
};

struct Hit {
    Rank rank;
    CString foundIn;
};

bool Covers(SearchIn where, SearchIn part) {
    return where == SearchIn::Everywhere || where == part;
}

std::optional<Hit> HitInAttributes(const CEntity& entity, const Needle& needle) {
    for (const Topology::AttributeData& attribute : entity.GetAttributes()) {
        const CString value = TextOf(attribute.value);
        if (needle.In(WideToUtf8(value.View()))) {
            return Hit{Part, Utf8ToWide(attribute.name) + L" = " + value};
        }
    }
    return std::nullopt;
}

std::optional<Hit> HitIn(const CEntity& entity, const Needle& needle, SearchIn where) {
    if (needle.IsEmpty()) {
        return Hit{Part, {}};
    }
    if (Covers(where, SearchIn::Name)) {
        if (const auto rank = needle.In(entity.GetNameUtf8())) {
            return Hit{*rank, entity.GetName()};
        }
    }
    if (Covers(where, SearchIn::Kind) && needle.In(entity.GetKindUtf8())) {
        return Hit{Part, entity.GetKind()};
    }
    return Covers(where, SearchIn::Attributes) ? HitInAttributes(entity, needle) : std::nullopt;
}

FoundEntity Found(const CEntity& entity, CString foundIn) {
    return {entity.GetObjectId(), entity.GetName(), KindOf(entity), SystemNameOf(entity),
            std::move(foundIn)};
}

template <class Visit>
void ForEachEntity(const CTopologyStorage& storage, int systemId, Visit visit) {
    const auto all = [&](std::span<const AcDbObjectId> ids) {
        for (const AcDbObjectId id : ids) {
            visit(CEntity(&storage, id));
        }
    };
    if (systemId) {
        all(storage.GetSystemNodes(systemId));
        all(storage.GetSystemSections(systemId));
        all(storage.GetSystemPolygons(systemId));
    } else {
        all(storage.GetNodeVector().Ids());
        all(storage.GetSectionVector().Ids());
        all(storage.GetPolygonVector().Ids());
    }
}

} // namespace

SearchResult SearchEntities(const CTopologyStorage& storage, const EntitySearch& search,
                            std::size_t limit) {
    const Needle needle(search.text);
    SearchResult result;
    std::array<std::vector<FoundEntity>, RankCount> ranked;
    ForEachEntity(storage, search.systemId, [&](const CEntity& entity) {
        std::optional<Hit> hit = HitIn(entity, needle, search.where);
        if (!hit) {
            return;
        }
        ++result.count;
        std::vector<FoundEntity>& found = ranked[hit->rank];
        if (found.size() < limit) {
            found.push_back(Found(entity, std::move(hit->foundIn)));
        }
    });
    for (std::vector<FoundEntity>& found : ranked) {
        for (FoundEntity& entity : found) {
            if (result.entities.size() < limit) {
                result.entities.push_back(std::move(entity));
            }
        }
    }
    return result;
}

SearchResult SearchDrawing(const EntitySearch& search, std::size_t limit) {
    auto& storages = *Topology::CTopologyMultiStorage::Instance();
    SearchResult result = SearchEntities(*storages.GetTopology(), search, limit);
    SearchResult schemes =
        SearchEntities(*storages.GetAuxTopology(), search, limit - result.entities.size());
    result.count += schemes.count;
    std::move(schemes.entities.begin(), schemes.entities.end(),
              std::back_inserter(result.entities));
    return result;
}

} // namespace Orvane::Panels
