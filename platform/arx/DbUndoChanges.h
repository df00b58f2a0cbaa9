// The kinds of changes that the undo history keeps; seen by its own sources only.
#pragma once

#include "platform/arx/DbUndoState.h"

struct AcDbUndo::State::BodyChange final : Change {
    explicit BodyChange(const AcDbObject& object);
    bool exchange(State& state, AcDbObject* pObject, std::size_t entry) override;
    std::size_t bytes() const override;
    std::unique_ptr<AcDbObject> body;
};

struct AcDbUndo::State::PropertiesChange final : Change {
    explicit PropertiesChange(const AcDbEntity& entity);
    bool exchange(State& state, AcDbObject* pObject, std::size_t entry) override;
    std::size_t bytes() const override;

    AcDbAttributes attributes;
    AcDbObjectId layer;
    std::int16_t color;

private:
    bool exchangeAttributes(const UndoBars& held, AcDbEntity& entity, std::size_t entry);
};

struct AcDbUndo::State::RecordChange final : Change {
    RecordChange(const AcDbDictionary& dictionary, const CString& record);
    bool exchange(State& state, AcDbObject* pObject, std::size_t entry) override;
    std::size_t bytes() const override;

    CString name;
    std::optional<CString> text; ///< nothing: there is no such record
};

struct AcDbUndo::State::CoordinateSystemChange final : Change {
    explicit CoordinateSystemChange(CString text) : wkt(std::move(text)) {}
    bool exchange(State& state, AcDbObject* pObject, std::size_t entry) override;
    std::size_t bytes() const override;
    CString wkt;
};
