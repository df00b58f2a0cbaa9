#include "plugins/repository/LabelFamily.h"

#include <boost/make_shared.hpp>
#include <cmath>

#include "platform/arx/EdDisplay.h"
#include "platform/arx/EdPrompt.h"
#include "platform/win/CodePage.h"
#include "platform/win/Number.h"
#include "plugins/repository/LabelPattern.h"
#include "plugins/repository/LabelPlaces.h"
#include "plugins/repository/RepositoryPrompts.h"
#include "plugins/repository/RepositoryTexts.h"
#include "plugins/repository/SystemEntities.h"
#include "siblings/giscore/XmlElement.h"

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

std::size_t RemoveLabels(System::CGisSystem& system, std::string_view guid) {
    std::size_t count = 0;
    const AcDbNameId labelItem = AcDbIntern(kLabelItem);
    const Topology::CTopologyStorage& storage = StorageOf(system);
    for (const AcDbObjectId id : storage.GetSystemTexts(system.GetSystemId())) {
        if (storage.GetTextById(id).GetAttribute(labelItem).asText() == guid) {
            count += ChangeEntity<AcDbText>(*system.GetDatabase(), id,
                                            [](AcDbText& text) { text.erase(); });
        }
    }
    return count;
}

void AddLabel(System::CGisSystem& system, const LabelDefinition& label, std::string_view guid,
              const Topology::TextData& data) {
    const AcDbObjectId id = StorageOf(system).AddText(system, data);
    ChangeEntity<AcDbText>(*system.GetDatabase(), id, [&](AcDbText& text) {
        text.setHeight(label.height);
        text.setAttribute(AcDbIntern(kLabelItem), guid);
    });
}

} // namespace

void LabelDefinition::WriteContent(XmlElement& root) const {
    root.Set(kPattern, pattern).Set(kHeight, CString(RealToText(height)));
}

CString LabelDefinition::ReadContent(const XmlElement& root) {
    const auto stated = HeightOf(root.Get(kHeight));
    if (!stated) {
        return L"its height is none";
    }
    pattern = root.Get(kPattern);
    height = *stated;
    return Utf8ToWide(LabelPattern(WideToUtf8(pattern.View())).Fault());
}

boost::shared_ptr<CRepositoryItem> LabelFamily::CreateItem(const wchar_t* guid,
                                                           const wchar_t* name) {
    auto label = boost::make_shared<LabelDefinition>(guid, name);
    label->pattern = L"{NAME}";
    return label;
}

bool LabelFamily::AskContent(CRepositoryItem& item, const System::CGisSystem* /*pSystem*/) {
    auto& label = static_cast<LabelDefinition&>(item);
    const auto pattern = AskText(Text(Msg::Pattern), label.pattern);
    if (!pattern) {
        return false;
    }
    const LabelPattern parsed(WideToUtf8(pattern->View()));
    if (*parsed.Fault()) {
        return Refuse(Text(Msg::NoSense, parsed.Fault()));
    }
    label.pattern = *pattern;
    const auto answer = AskText(Text(Msg::TextHeight), RealToText(label.height));
    const auto height = answer ? HeightOf(*answer) : std::nullopt;
    label.height = height.value_or(label.height);
    return height || (answer && Refuse(Text(Msg::NoHeight, *answer)));
}

std::optional<int> LabelFamily::Run(const CRepositoryItem& item, System::CGisSystem& system,
                                    const Query::CQueryDefinition* pOnly) {
    const auto& label = static_cast<const LabelDefinition&>(item);
    const std::string guid = WideToUtf8(label.GetGuid().View());
    const LabelPattern pattern(WideToUtf8(label.pattern.View()));
    const std::size_t removed = RemoveLabels(system, guid);
    int count = 0;
    for (const AcDbObjectId id : EntitiesOf(system, label.GetEntityType(), pOnly)) {
        const std::string text = pattern.Text(ValuesOf({&StorageOf(system), id}));
        const auto place = PlaceOf(*system.GetDatabase()->peek(id));
        if (!text.empty() && place) {
            AddLabel(system, label, guid, {text, *place});
            ++count;
        }
    }
    acutPrintf(L"%s\n",
               Text(Msg::Labelled, label.GetName(), count, system.GetSystemName(), removed));
    acedUpdateDisplay();
    return count;
}

} // namespace Orvane::Repository
