#include "plugins/panels/EntityProperties.h"

#include <cmath>

#include "platform/win/CodePage.h"
#include "platform/win/Number.h"
#include "plugins/panels/EntityTexts.h"
#include "plugins/panels/PanelTexts.h"

namespace Orvane::Panels {

namespace {

using Kind = EntityProperty::Kind;
using Properties = std::vector<EntityProperty>;

void AddNode(Properties& properties, const Topology::CNode& node) {
    if (node && node.HasPlace()) {
        const Topology::Point place = node.GetPosition();
        properties.push_back(
            {Text(Msg::Position), MeasureText(place.x) + L", " + MeasureText(place.y)});
    }
}

void AddSection(Properties& properties, const Topology::CSection& section) {
    if (!section) {
        return;
    }
    const auto end = [](const Topology::CNode& node, std::string_view missing) {
        return node ? node.GetName() : Utf8ToWide(missing);
    };
    properties.push_back(
        {Text(Msg::StartNode), end(section.GetStartNode(), section.GetMissingStart())});
    properties.push_back({Text(Msg::EndNode), end(section.GetEndNode(), section.GetMissingEnd())});
    properties.push_back({Text(Msg::Length), MeasureText(section.GetDrawnLength())});
}

void AddPolygon(Properties& properties, const Topology::CPolygon& polygon) {
    if (polygon) {
        properties.push_back({Text(Msg::Area), MeasureText(polygon.GetArea())});
    }
}

/// Nothing if the text is not a number.
std::optional<AcDbValue> NumberLike(const AcDbValue& before, const std::string& text) {
    const std::optional<double> number = TextToReal(text);
    if (!number) {
        return std::nullopt;
    }
    const AcDbValue real(*number);
    const std::optional<std::int64_t> whole = real.asInteger();
    return before.kind() == AcDbValue::Kind::Integer && whole ? AcDbValue(*whole) : real;
}

CString SetAttribute(const Topology::CEntity& entity, const EntityProperty& property,
                     const CString& text) {
    const AcDbValue before = entity.GetAttribute(property.attribute);
    const std::string utf8 = WideToUtf8(text.View());
    AcDbValue value{std::string_view(utf8)};
    if (before.asReal()) {
        const std::optional<AcDbValue> number = NumberLike(before, utf8);
        if (!number) {
            return Text(Msg::NoNumber, text, property.label);
        }
        value = *number;
    }
    const std::string_view name = AcDbNameOf(property.attribute);
    return StorageOf(entity).SetAttribute(entity.GetObjectId(), {name, value})
               ? CString()
               : Text(Msg::NotSet, property.label);
}

} // namespace

Properties PropertiesOf(const Topology::CEntity& entity) {
    Properties properties;
    if (!entity) {
        return properties;
    }
    properties.push_back({Text(Msg::Name), entity.GetName(), Kind::Name});
    properties.push_back({Text(Msg::Type), KindOf(entity)});
    properties.push_back({Text(Msg::ColumnSystem), SystemNameOf(entity)});
    if (!entity.GetKindUtf8().empty()) {
        properties.push_back({Text(Msg::Kind), entity.GetKind()});
    }
    const Topology::CTopologyStorage& storage = StorageOf(entity);
    const AcDbObjectId id = entity.GetObjectId();
    AddNode(properties, storage.GetNodeById(id));
    AddSection(properties, storage.GetSectionById(id));
    AddPolygon(properties, storage.GetPolygonById(id));
    for (const Topology::AttributeData& attribute : entity.GetAttributes()) {
        properties.push_back({Utf8ToWide(attribute.name), TextOf(attribute.value), Kind::Attribute,
                              AcDbIntern(attribute.name)});
    }
    return properties;
}

const EntityProperty* FindProperty(const Properties& properties, const CString& label) {
    const EntityProperty* pAlike = nullptr;
    for (const EntityProperty& property : properties) {
        if (property.label == label) {
            return &property;
        }
        if (!pAlike && property.label.CompareNoCase(label) == 0) {
            pAlike = &property;
        }
    }
    return pAlike;
}

CString SetProperty(const Topology::CEntity& entity, const EntityProperty& property,
                    const CString& text) {
    if (!entity) {
        return Text(Msg::NoEntity);
    }
    if (!property.IsEditable()) {
        return Text(Msg::NotEditable, property.label);
    }
    if (property.kind == Kind::Attribute) {
        return SetAttribute(entity, property, text);
    }
    CString name = text;
    if (name.Trim().IsEmpty()) {
        return Text(Msg::NoName);
    }
    return StorageOf(entity).SetName(entity.GetObjectId(), name)
               ? CString()
               : Text(Msg::NotSet, property.label);
}

} // namespace Orvane::Panels
