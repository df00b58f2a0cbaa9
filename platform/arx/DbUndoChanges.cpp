#include "platform/arx/DbUndoChanges.h"

#include <algorithm>
#include <utility>

AcDbUndo::State::BodyChange::BodyChange(const AcDbObject& object) : body(object.cloneBody()) {}

bool AcDbUndo::State::BodyChange::exchange(State& state, AcDbObject* pObject, std::size_t entry) {
    if (state.bars.holds(pObject->objectId(), UndoPart::Body, entry)) {
        return false;
    }
    pObject->swapBody(*body);
    return true;
}

AcDbUndo::State::PropertiesChange::PropertiesChange(const AcDbEntity& entity)
    : attributes(entity.m_attributes), layer(entity.m_layer), color(entity.m_nColorIndex) {}

bool AcDbUndo::State::PropertiesChange::exchange(State& state, AcDbObject* pObject,
                                                 std::size_t entry) {
    auto& entity = static_cast<AcDbEntity&>(*pObject);
    const AcDbObjectId id = entity.objectId();
    const bool layerFree = !state.bars.holds(id, UndoPart::Layer, entry);
    if (layerFree) {
        std::swap(layer, entity.m_layer);
    }
    const bool colorFree = !state.bars.holds(id, UndoPart::Color, entry);
    if (colorFree) {
        std::swap(color, entity.m_nColorIndex);
    }
    return exchangeAttributes(state.bars, entity, entry) || layerFree || colorFree;
}

bool AcDbUndo::State::PropertiesChange::exchangeAttributes(const UndoBars& held, AcDbEntity& entity,
                                                           std::size_t entry) {
    AcDbAttributes present = std::exchange(entity.m_attributes, {});
    if (held.isEmpty()) {
        entity.m_attributes = std::exchange(attributes, std::move(present));
        return true;
    }
    const auto barred = [&](AcDbNameId name) {
        return held.holds(entity.objectId(), UndoPart::Attribute, entry, name);
    };
    AcDbAttributes& result = entity.m_attributes;
    bool changed = false;
    result.reserve(std::max(attributes.size(), present.size()));
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        const auto [name, value] = attributes.at(i);
        if (!barred(name)) {
            result.set(name, value);
            changed = true;
        } else if (present.has(name)) {
            result.set(name, present.get(name));
        }
    }
    for (std::size_t i = 0; i < present.size(); ++i) {
        const auto [name, value] = present.at(i);
        if (barred(name)) {
            result.set(name, value);
        }
    }
    attributes = std::move(present);
    return changed;
}

AcDbUndo::State::RecordChange::RecordChange(const AcDbDictionary& dictionary, const CString& record)
    : name(record) {
    if (const CString* const pText = dictionary.getAt(record)) {
        text = *pText;
    }
}

bool AcDbUndo::State::RecordChange::exchange(State& state, AcDbObject* pObject, std::size_t entry) {
    if (state.bars.holds(pObject->objectId(), name, entry)) {
        return false;
    }
    auto& records = static_cast<AcDbDictionary&>(*pObject).m_records;
    std::optional<CString> present;
    if (const auto hit = records.find(name); hit != records.end()) {
        present = std::move(hit->second);
        records.erase(hit);
    }
    if (text) {
        records.emplace(name, std::move(*text));
    }
    text = std::move(present);
    return true;
}

bool AcDbUndo::State::CoordinateSystemChange::exchange(State& state, AcDbObject*,
                                                       std::size_t entry) {
    if (state.bars.holds({}, UndoPart::CoordinateSystem, entry)) {
        return false;
    }
    std::swap(wkt, state.database.m_strCoordinateSystem);
    state.database.m_bHeaderUnsaved = true;
    return true;
}

std::size_t AcDbUndo::State::BodyChange::bytes() const {
    return sizeof(*this) + body->bodyBytes();
}

std::size_t AcDbUndo::State::PropertiesChange::bytes() const {
    return sizeof(*this) + attributes.bytes();
}

std::size_t AcDbUndo::State::RecordChange::bytes() const {
    const int letters = name.GetLength() + (text ? text->GetLength() : 0);
    return sizeof(*this) + static_cast<std::size_t>(letters) * sizeof(wchar_t);
}

std::size_t AcDbUndo::State::CoordinateSystemChange::bytes() const {
    return sizeof(*this) + static_cast<std::size_t>(wkt.GetLength()) * sizeof(wchar_t);
}
