#include "plugins/repository/ThemeFamily.h"

#include <boost/make_shared.hpp>

#include "platform/arx/EdDisplay.h"
#include "platform/arx/EdPrompt.h"
#include "platform/win/CodePage.h"
#include "plugins/repository/RepositoryPrompts.h"
#include "plugins/repository/RepositoryTexts.h"
#include "plugins/repository/SystemEntities.h"
#include "siblings/giscore/utility/WholeNumber.h"
#include "siblings/giscore/utility/XmlElement.h"

namespace Orvane::Repository {

namespace {

constexpr const wchar_t* kAttribute = L"attribute";
constexpr const wchar_t* kClasses = L"classes";
constexpr const wchar_t* kCount = L"count";
constexpr const wchar_t* kBreaks = L"breaks";
constexpr const wchar_t* kColors = L"colors";

/// By ThemeMode.
constexpr const wchar_t* kModes[] = {L"unique", L"ranges", L"none"};

std::optional<std::vector<int>> ColorsOf(const CString& text) {
    const auto numbers = NumbersOf(text);
    if (!numbers) {
        return std::nullopt;
    }
    std::vector<int> colors;
    for (const double number : *numbers) {
        // anything that is not a colour becomes 0, which is rejected later
        colors.push_back(number >= 1 && number <= 255 ? static_cast<int>(number) : 0);
    }
    return colors;
}

CString ColorsText(const std::vector<int>& colors) {
    return NumbersText({colors.begin(), colors.end()});
}

bool AskClasses(ThemeRule& rule) {
    const auto mode = acedAskChoice({Text(Msg::Classes),
                                     {{kModes[0], Text(Msg::UniqueValues)},
                                      {kModes[1], Text(Msg::Ranges)},
                                      {kModes[2], Text(Msg::LayerColor)}},
                                     static_cast<std::size_t>(rule.mode)});
    if (mode) {
        rule.mode = static_cast<ThemeMode>(*mode);
    }
    return mode.has_value();
}

bool AskRanges(ThemeRule& rule) {
    const auto breaks = AskTextOrNone(Text(Msg::Breaks), NumbersText(rule.breaks));
    if (!breaks) {
        return false;
    }
    const auto numbers = NumbersOf(*breaks);
    if (!numbers) {
        return Refuse(Text(Msg::NoNumbers, *breaks));
    }
    rule.breaks = *numbers;
    if (!rule.breaks.empty()) {
        return true;
    }
    const auto count = acedAskText(Text(Msg::ClassCount), FormatText(L"%d", rule.classCount));
    rule.classCount = count ? WholeNumber(count->View()).value_or(0) : 0;
    return count.has_value();
}

bool AskColors(ThemeRule& rule) {
    const auto answer = AskTextOrNone(Text(Msg::Colors), ColorsText(rule.colors));
    const auto colors = answer ? ColorsOf(*answer) : std::nullopt;
    if (colors) {
        rule.colors = *colors;
    }
    return colors || (answer && Refuse(Text(Msg::NoNumbers, *answer)));
}

std::vector<ThemeValue> ValuesOfAll(const System::CGisSystem& system, const CString& attribute,
                                    const std::vector<AcDbObjectId>& ids) {
    const Topology::CTopologyStorage& storage = StorageOf(system);
    const AcDbNameId name = AcDbIntern(WideToUtf8(attribute.View()));
    std::vector<ThemeValue> values;
    values.reserve(ids.size());
    for (const AcDbObjectId id : ids) {
        const AcDbValue value = Topology::CEntity(&storage, id).GetAttribute(name);
        values.push_back({Query::ValueText(value), Query::ValueNumber(value)});
    }
    return values;
}

void Paint(AcDbDatabase& drawing, AcDbObjectId id, int color) {
    if (static_cast<const AcDbEntity*>(drawing.peek(id))->colorIndex() != color) {
        ChangeEntity<AcDbEntity>(drawing, id,
                                 [color](AcDbEntity& entity) { entity.setColorIndex(color); });
    }
}

/// Colours entities by a theme.
ThemeResult PaintTheme(const ThemeDefinition& theme, System::CGisSystem& system,
                       const std::vector<AcDbObjectId>& ids) {
    ThemeResult result = Classify(ValuesOfAll(system, theme.attribute, ids), theme.rule);
    for (std::size_t i = 0; i < ids.size(); ++i) {
        const int number = result.classOf[i];
        Paint(*system.GetDatabase(), ids[i],
              number == kNoClass ? kColorByLayer
                                 : result.classes[static_cast<std::size_t>(number)].color);
    }
    acedUpdateDisplay();
    return result;
}

void PrintLegend(const ThemeDefinition& theme, const System::CGisSystem& system,
                 const ThemeResult& result) {
    if (theme.rule.mode == ThemeMode::None) {
        acutPrintf(L"%s\n", Text(Msg::ThemeOff, theme.GetName(), result.classOf.size()));
        return;
    }
    acutPrintf(L"%s\n", Text(Msg::Themed, theme.GetName(), system.GetSystemName(), theme.attribute,
                             result.classOf.size()));
    for (const ThemeClass& entry : result.classes) {
        acutPrintf(L"%8u  %3d  %s\n", entry.count, entry.color, entry.label);
    }
    if (const std::size_t without = result.CountWithout()) {
        acutPrintf(L"%8u    -  %s\n", without, Text(Msg::WithoutValue));
    }
}

} // namespace

void ThemeDefinition::WriteContent(XmlElement& root) const {
    root.Set(kAttribute, attribute).Set(kClasses, kModes[static_cast<std::size_t>(rule.mode)]);
    root.Set(kCount, rule.classCount)
        .Set(kBreaks, NumbersText(rule.breaks))
        .Set(kColors, ColorsText(rule.colors));
}

CString ThemeDefinition::ReadContent(const XmlElement& root) {
    const auto* const pMode =
        std::find_if(std::begin(kModes), std::end(kModes),
                     [&](const wchar_t* word) { return root.Get(kClasses) == word; });
    const auto breaks = NumbersOf(root.Get(kBreaks));
    const auto colors = ColorsOf(root.Get(kColors));
    if (pMode == std::end(kModes) || !breaks || !colors) {
        return Text(Msg::InvalidClasses);
    }
    attribute = root.Get(kAttribute);
    rule = {static_cast<ThemeMode>(pMode - kModes), root.GetInt(kCount).value_or(0), *breaks,
            *colors};
    if (attribute.IsEmpty() && rule.mode != ThemeMode::None) {
        return Text(Msg::NoAttribute);
    }
    const std::optional<Msg> fault = ThemeRuleFault(rule);
    return fault ? Text(*fault) : CString();
}

boost::shared_ptr<CRepositoryItem> ThemeFamily::CreateItem(const wchar_t* guid,
                                                           const wchar_t* name) {
    return boost::make_shared<ThemeDefinition>(guid, name);
}

bool ThemeFamily::EditContent(CRepositoryItem& item, const System::CGisSystem* pSystem) {
    auto& theme = static_cast<ThemeDefinition&>(item);
    if (!AskClasses(theme.rule)) {
        return false;
    }
    if (theme.rule.mode == ThemeMode::None) {
        return true;
    }
    const auto attribute =
        AskAttribute(Text(Msg::Attribute), theme.attribute, pSystem, theme.GetEntityType());
    if (!attribute) {
        return false;
    }
    theme.attribute = *attribute;
    if ((theme.rule.mode == ThemeMode::Ranges && !AskRanges(theme.rule)) ||
        !AskColors(theme.rule)) {
        return false;
    }
    const std::optional<Msg> fault = ThemeRuleFault(theme.rule);
    return !fault || Refuse(Text(Msg::NoSense, Text(*fault)));
}

std::optional<int> ThemeFamily::Run(const CRepositoryItem& item, System::CGisSystem& system,
                                    const Query::CQueryDefinition* pOnly) {
    const auto& theme = static_cast<const ThemeDefinition&>(item);
    const std::vector<AcDbObjectId> ids = EntitiesOf(system, theme.GetEntityType(), pOnly);
    PrintLegend(theme, system, PaintTheme(theme, system, ids));
    return static_cast<int>(ids.size());
}

bool ThemeFamily::ShowDefault(const CRepositoryItem& item, System::CGisSystem& system) {
    const auto& theme = static_cast<const ThemeDefinition&>(item);
    const std::vector<AcDbObjectId> ids = EntitiesOf(system, theme.GetEntityType());
    PaintTheme(theme, system, ids);
    return !ids.empty();
}

} // namespace Orvane::Repository
