#include "plugins/panels/DrawingReports.h"

#include <map>

#include "plugins/common/SystemTexts.h"
#include "plugins/panels/EntityTexts.h"
#include "plugins/panels/PanelTexts.h"
#include "siblings/giscore/systems/GisSystem.h"

namespace Orvane::Panels {

namespace {

using System::enmStatistic;

/// Each system leaves out those that do not apply to its kind.
constexpr struct {
    enmStatistic statistic;
    int message;
} kFigures[] = {
    {System::StatisticNodes, 10806},         {System::StatisticSections, 10805},
    {System::StatisticLength, 10813},        {System::StatisticParts, 10812},
    {System::StatisticLoops, 10811},         {System::StatisticIsolatedNodes, 10810},
    {System::StatisticEndNodes, 10807},      {System::StatisticThroughNodes, 10808},
    {System::StatisticBranchNodes, 10809},   {System::StatisticAlignments, 10814},
    {System::StatisticMainPoints, 10815},    {System::StatisticLongitudinalSections, 10816},
    {System::StatisticCrossSections, 10817}, {System::StatisticPolygons, 10818},
    {System::StatisticPolygonNodes, 10819},  {System::StatisticArea, 10820},
};

std::optional<CString> FigureText(const System::CGisSystem& system, enmStatistic statistic) {
    const bool isMeasure =
        statistic == System::StatisticLength || statistic == System::StatisticArea;
    int count = 0;
    double measure = 0;
    if (isMeasure && system.GetStatisticValue_dbl(statistic, measure)) {
        return MeasureText(measure);
    }
    if (!isMeasure && system.GetStatisticValue_int(statistic, count)) {
        return CString(std::to_wstring(count));
    }
    return std::nullopt;
}

using LayerColor = std::pair<AcDbObjectId, int>;

} // namespace

std::vector<Figure> FiguresOf(const System::CGisSystem& system) {
    std::vector<Figure> figures = {{Text(Msg::Function), Plugins::FunctionName(system)}};
    for (const auto& entry : kFigures) {
        if (const auto text = FigureText(system, entry.statistic)) {
            figures.push_back({CModuleConfiguration::Instance()->GetMsg(entry.message), *text});
        }
    }
    return figures;
}

std::vector<LegendRow> LegendOf(const AcDbDatabase& drawing) {
    // Entities with the layer's colour are counted under 0, which sorts first.
    std::map<LayerColor, std::size_t> counts;
    drawing.forEachEntity([&](const AcDbEntity& entity) {
        const int color = entity.colorIndex() == kColorByLayer ? 0 : entity.colorIndex();
        ++counts[{entity.layerId(), color}];
    });
    std::vector<LegendRow> rows;
    for (const AcDbObjectId id : drawing.layers()) {
        const auto& layer = static_cast<const AcDbLayerTableRecord&>(*drawing.peek(id));
        for (auto it = counts.lower_bound({id, 0});
             !layer.isOff() && it != counts.end() && it->first.first == id; ++it) {
            const int color = it->first.second;
            rows.push_back({layer.getName(), color ? color : layer.colorIndex(), it->second});
        }
    }
    return rows;
}

} // namespace Orvane::Panels
