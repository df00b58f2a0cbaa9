#include "host/ImportCommand.h"

#include <algorithm>

#include "host/Prompts.h"
#include "host/storage/CoordinateSystem.h"
#include "platform/arx/DbUndo.h"
#include "platform/arx/EdProgress.h"
#include "platform/win/File.h"

namespace Tessaly {

namespace {

using Feature = AcDbImportFeature;

std::unique_ptr<AcDbEntity> MakeEntity(Feature& feature) {
    switch (feature.kind) {
    case Feature::Kind::Point:
        return std::make_unique<AcDbPoint>(feature.points.at(0));
    case Feature::Kind::Line:
        return std::make_unique<AcDbPolyline>(feature.points);
    default:
        return std::make_unique<AcDbMPolygon>(std::move(feature.rings));
    }
}

void AddFeature(AcDbDatabase& database, AcDbObjectId layer, Feature& feature) {
    std::unique_ptr<AcDbEntity> pEntity = MakeEntity(feature);
    pEntity->setLayer(layer);
    const std::size_t count = feature.attributes.size();
    pEntity->reserveAttributes(count);
    for (std::size_t i = 0; i < count; ++i) {
        const AcDbAttributes::Item item = feature.attributes.at(i);
        pEntity->setAttribute(item.name, item.value);
    }
    // Frees the feature's memory before the entity takes more.
    feature = {};
    database.appendEntity(std::move(pEntity));
}

/// In reverse order, so layers are empty when they are erased.
void EraseFrom(AcDbDatabase& database, std::uint32_t first) {
    for (std::uint32_t number = database.nextId(); number-- > first;) {
        AcDbObject* pObject = nullptr;
        if (acdbOpenObject(pObject, AcDbObjectId(number), AcDb::kForWrite, false, &database) ==
            Acad::eOk) {
            pObject->erase();
            pObject->close();
        }
    }
}

/// The coordinate system after the import: an empty drawing without one takes the first.
CString SystemToTake(const AcDbDatabase& database, const std::vector<AcDbImportLayer>& layers) {
    if (!database.coordinateSystem().IsEmpty() || database.entityCount() > 0) {
        return database.coordinateSystem();
    }
    const auto first = std::find_if(layers.begin(), layers.end(), [](const auto& layer) {
        return !layer.coordinateSystem.IsEmpty();
    });
    return first == layers.end() ? CString() : first->coordinateSystem;
}

/// One line per layer with its feature counts, before the features are moved away.
std::vector<CString> CountLines(const std::vector<AcDbImportLayer>& layers) {
    std::vector<CString> lines;
    for (const AcDbImportLayer& layer : layers) {
        int counts[3] = {};
        for (const Feature& feature : layer.features) {
            ++counts[static_cast<std::size_t>(feature.kind)];
        }
        CString line;
        line.Format(L"  %s\n",
                    Text(Msg::ImportedLayer, layer.name, counts[0], counts[1], counts[2]));
        lines.push_back(line);
    }
    return lines;
}

} // namespace

std::vector<CString> CoordinateWarnings(const AcDbDatabase& database,
                                        const std::vector<AcDbImportLayer>& layers) {
    const CString own = SystemToTake(database, layers);
    std::vector<CString> warnings;
    for (const AcDbImportLayer& layer : layers) {
        if (layer.coordinateSystem.IsEmpty() ||
            IsSameCoordinateSystem(own, layer.coordinateSystem)) {
            continue;
        }
        warnings.push_back(Text(Msg::OtherCoordinateSystem, layer.name,
                                CoordinateSystemName(layer.coordinateSystem),
                                CoordinateSystemName(own)));
    }
    return warnings;
}

void AddToDrawing(AcDbDatabase& database, std::vector<AcDbImportLayer> layers) {
    database.undo().dropRedo(); // or its ids would be given again below the first one
    const std::uint32_t first = database.nextId();
    const CString systemBefore = database.coordinateSystem();
    try {
        database.setCoordinateSystem(SystemToTake(database, layers));
        for (AcDbImportLayer& layer : layers) {
            const AcDbObjectId id = database.layer(layer.name);
            for (Feature& feature : layer.features) {
                AddFeature(database, id, feature);
            }
        }
    } catch (...) {
        EraseFrom(database, first);
        database.setCoordinateSystem(systemBefore);
        throw;
    }
}

bool Import() {
    AcApDocument* const pDoc = CurrentDrawing();
    if (!pDoc) {
        return false;
    }
    const std::optional<CString> file = AskText(Msg::File);
    if (!file || !acdbImporter()) {
        return Refuse(Msg::NothingImported);
    }
    AcDbImportResult result =
        acdbImporter()->Import(*file, acedProgress(Text(Msg::Reading, FileNameOf(*file))));
    PrintWarnings(result.warnings);
    if (!result.ok()) {
        return Refuse(result.reason, Msg::NothingImported);
    }
    if (result.layers.empty()) {
        return Refuse(Text(Msg::NothingToDraw, *file), Msg::NothingImported);
    }
    PrintWarnings(CoordinateWarnings(*pDoc->database(), result.layers));
    const std::vector<CString> lines = CountLines(result.layers);
    AddToDrawing(*pDoc->database(), std::move(result.layers));
    PrintText(Msg::ImportedFrom, FileNameOf(*file));
    for (const CString& line : lines) {
        acutPrint(line.View());
    }
    return true;
}

} // namespace Tessaly
