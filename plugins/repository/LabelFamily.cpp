#include "plugins/repository/LabelFamily.h"

#include <boost/make_shared.hpp>
#include <cmath>
#include <map>
#include <tuple>

#include "platform/arx/EdDisplay.h"
#include "platform/arx/EdPrompt.h"
#include "platform/win/CodePage.h"
#include "platform/win/Number.h"
#include "plugins/repository/LabelPattern.h"
#include "plugins/repository/LabelPlaces.h"
#include "plugins/repository/RepositoryPrompts.h"
#include "plugins/repository/RepositoryTexts.h"
#include "plugins/repository/SystemEntities.h"
#include "siblings/giscore/utility/XmlElement.h"

namespace Orvane::Repository {

namespace {

constexpr const wchar_t* kPattern = L"pattern";
constexpr const wchar_t* kHeight = L"height";
constexpr std::string_view kLabelItem = "LABELITEM";

std::optional<double> HeightOf(const CString& text) {
    const auto height = TextToReal(WideToUtf8(text.View()));
    return height && *height >= 0 ? height : std::nullopt;
}

std::optional<AcGePoint3d> PlaceOf(const AcDbObject& entity) {
    const AcRxClass* const pClass = entity.isA();
    if (pClass == AcDbPolyline::desc()) {
        return MiddleOf(static_cast<const AcDbPolyline&>(entity).vertices());
    }
    if (pClass == AcDbMPolygon::desc()) {
        return CentreOf(static_cast<const AcDbMPolygon&>(entity).rings());
    }
    const AcGePoint3d& position = static_cast<const AcDbPoint&>(entity).position();
    return MiddleOf({&position, 1});
}

/// A label's text, x, y and height.
using Look = std::tuple<std::string, double, double, double>;

/// The labels of a configuration in a system. Wanted labels that already exist stay untouched,
/// missing ones are added and all others erased.
class PlacedLabels {
public:
    PlacedLabels(System::CGisSystem& system, const LabelDefinition& label)
        : m_system(system), m_guid(WideToUtf8(label.GetGuid().View())), m_height(label.height) {
        const AcDbNameId labelItem = AcDbIntern(kLabelItem);
        const Topology::CTopologyStorage& storage = StorageOf(system);
        for (const AcDbObjectId id : storage.GetSystemTexts(system.GetSystemId())) {
            const Topology::CMapText text = storage.GetTextById(id);
            if (text.GetAttribute(labelItem).asText() == m_guid) {
                const auto& entity = static_cast<const AcDbText&>(*system.GetDatabase()->peek(id));
                m_old.emplace(Look{text.GetNameUtf8(), text.GetPosition().x, text.GetPosition().y,
                                   entity.height()},
                              id);
            }
        }
    }
    void Want(const std::string& text, const AcGePoint3d& place) {
        ++m_nWanted;
        const auto hit = m_old.find(Look{text, place.x, place.y, m_height});
        if (hit == m_old.end()) {
            m_missing.push_back({text, place});
        } else {
            m_old.erase(hit);
        }
    }
    /// \return how many labels were removed
    std::size_t Apply() {
        for (const auto& [look, id] : m_old) {
            ChangeEntity<AcDbText>(*m_system.GetDatabase(), id,
                                   [](AcDbText& text) { text.erase(); });
        }
        for (const auto& [text, place] : m_missing) {
            Add({text, place});
        }
        return m_old.size();
    }
    int Count() const { return m_nWanted; }

private:
    void Add(const Topology::TextData& data) {
        const AcDbObjectId id = StorageOf(m_system).AddText(m_system, data);
        ChangeEntity<AcDbText>(*m_system.GetDatabase(), id, [&](AcDbText& text) {
            text.setHeight(m_height);
            text.setAttribute(AcDbIntern(kLabelItem), std::string_view(m_guid));
        });
    }

    System::CGisSystem& m_system;
    std::string m_guid;
    double m_height;
    int m_nWanted = 0;
    std::multimap<Look, AcDbObjectId> m_old;
    std::vector<std::pair<std::string, AcGePoint3d>> m_missing;
};

struct LabelCounts {
    int placed = 0;
    std::size_t removed = 0;
};

LabelCounts PlaceLabels(const LabelDefinition& label, System::CGisSystem& system,
                        const Query::CQueryDefinition* pOnly) {
    const LabelPattern pattern(WideToUtf8(label.pattern.View()));
    PlacedLabels labels(system, label);
    for (const AcDbObjectId id : EntitiesOf(system, label.GetEntityType(), pOnly)) {
        const std::string text = pattern.Text(ValuesOf({&StorageOf(system), id}));
        const auto place = PlaceOf(*system.GetDatabase()->peek(id));
        if (!text.empty() && place) {
            labels.Want(text, *place);
        }
    }
    const std::size_t removed = labels.Apply();
    acedUpdateDisplay();
    return {labels.Count(), removed};
}

} // namespace

void LabelDefinition::WriteContent(XmlElement& root) const {
    root.Set(kPattern, pattern).Set(kHeight, CString(RealToText(height)));
}

CString LabelDefinition::ReadContent(const XmlElement& root) {
    const auto stated = HeightOf(root.Get(kHeight));
    if (!stated) {
        return Text(Msg::InvalidHeight);
    }
    pattern = root.Get(kPattern);
    height = *stated;
    const std::optional<Msg> fault = LabelPattern(WideToUtf8(pattern.View())).Fault();
    return fault ? Text(*fault) : CString();
}

boost::shared_ptr<CRepositoryItem> LabelFamily::CreateItem(const wchar_t* guid,
                                                           const wchar_t* name) {
    auto label = boost::make_shared<LabelDefinition>(guid, name);
    label->pattern = L"{NAME}";
    return label;
}

bool LabelFamily::EditContent(CRepositoryItem& item, const System::CGisSystem* /*pSystem*/) {
    auto& label = static_cast<LabelDefinition&>(item);
    const auto pattern = acedAskText(Text(Msg::Pattern), label.pattern);
    if (!pattern) {
        return false;
    }
    const LabelPattern parsed(WideToUtf8(pattern->View()));
    if (const std::optional<Msg> fault = parsed.Fault()) {
        return Refuse(Text(Msg::NoSense, Text(*fault)));
    }
    label.pattern = *pattern;
    const auto answer = acedAskText(Text(Msg::TextHeight), RealToText(label.height));
    const auto height = answer ? HeightOf(*answer) : std::nullopt;
    label.height = height.value_or(label.height);
    return height || (answer && Refuse(Text(Msg::NoHeight, *answer)));
}

std::optional<int> LabelFamily::Run(const CRepositoryItem& item, System::CGisSystem& system,
                                    const Query::CQueryDefinition* pOnly) {
    const auto& label = static_cast<const LabelDefinition&>(item);
    const LabelCounts counts = PlaceLabels(label, system, pOnly);
    acutPrintf(L"%s\n", Text(Msg::Labelled, label.GetName(), counts.placed, system.GetSystemName(),
                             counts.removed));
    return counts.placed;
}

bool LabelFamily::ShowDefault(const CRepositoryItem& item, System::CGisSystem& system) {
    return PlaceLabels(static_cast<const LabelDefinition&>(item), system, nullptr).placed > 0;
}

} // namespace Orvane::Repository
