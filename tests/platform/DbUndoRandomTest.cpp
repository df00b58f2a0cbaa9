// Random work on a drawing, with undo and redo, beside a model that knows nothing of how the
// history is kept: it sees what each step changed of the drawing's parts, and puts the old
// texts back.

#include <algorithm>
#include <random>
#include <set>

#include <gtest/gtest.h>

#include "tests/platform/DbDrawing.h"

namespace {

struct Edit {
    std::string part;
    std::string before; ///< empty: there was no such part
    std::string after;
};

class HistoryModel {
public:
    void Note(std::vector<Edit> edits, bool joins) {
        m_groups.resize(m_done);
        if (!joins) {
            m_groups.emplace_back();
        }
        m_done = m_groups.size();
        m_groups.back().insert(m_groups.back().end(), edits.begin(), edits.end());
    }
    void DropOldest(std::size_t count) {
        m_groups.erase(m_groups.begin(), m_groups.begin() + static_cast<std::ptrdiff_t>(count));
        m_done -= count;
    }
    void DropRedo() { m_groups.resize(m_done); }
    bool Names(const std::string& id) const {
        return std::any_of(m_groups.begin(), m_groups.end(), [&](const auto& group) {
            return std::any_of(group.begin(), group.end(),
                               [&](const Edit& edit) { return edit.part.starts_with(id + ' '); });
        });
    }
    /// The part was changed off the record.
    void Forget(const std::string& part) {
        for (auto& group : m_groups) {
            std::erase_if(group, [&](const Edit& edit) { return edit.part == part; });
        }
    }
    bool Undo(Parts& parts) {
        if (m_done == 0) {
            return false;
        }
        const auto& group = m_groups[--m_done];
        for (auto edit = group.rbegin(); edit != group.rend(); ++edit) {
            Put(parts, edit->part, edit->before);
        }
        return true;
    }
    bool Redo(Parts& parts) {
        if (m_done == m_groups.size()) {
            return false;
        }
        for (const Edit& edit : m_groups[m_done++]) {
            Put(parts, edit.part, edit.after);
        }
        return true;
    }

private:
    static void Put(Parts& parts, const std::string& part, const std::string& text) {
        text.empty() ? void(parts.erase(part)) : void(parts[part] = text);
    }
    std::vector<std::vector<Edit>> m_groups;
    std::size_t m_done = 0;
};

/// Texts of absent and of empty parts have to differ.
Parts Marked(Parts parts) {
    for (auto& [name, text] : parts) {
        text.insert(0, 1, '=');
    }
    return parts;
}

std::vector<Edit> Difference(const Parts& before, const Parts& after) {
    std::set<std::string> names;
    for (const Parts* const pParts : {&before, &after}) {
        for (const auto& [name, text] : *pParts) {
            names.insert(name);
        }
    }
    const auto textOf = [](const Parts& parts, const std::string& name) {
        const auto hit = parts.find(name);
        return hit == parts.end() ? std::string() : hit->second;
    };
    std::vector<Edit> edits;
    for (const std::string& name : names) {
        Edit edit{name, textOf(before, name), textOf(after, name)};
        if (edit.before != edit.after) {
            edits.push_back(edit);
        }
    }
    return edits;
}

/// Knows the drawing by hearsay alone.
class Mirror final : public AcDbDatabaseReactor {
public:
    void objectAppended(const AcDbDatabase*, const AcDbObject* pObject) override {
        m_appended.insert(pObject->objectId());
        Learn(*pObject);
    }
    void objectModified(const AcDbDatabase*, const AcDbObject* pObject) override {
        Learn(*pObject);
    }
    void objectErased(const AcDbDatabase*, const AcDbObject* pObject, bool bErased) override {
        EXPECT_EQ(m_objects.contains(pObject->objectId()), bErased);
        m_objects.erase(pObject->objectId());
        if (!bErased) {
            Learn(*pObject);
        }
    }
    std::map<AcDbObjectId, Parts> m_objects;
    std::set<AcDbObjectId> m_appended; ///< since the last look

private:
    void Learn(const AcDbObject& object) {
        Parts& parts = m_objects[object.objectId()];
        parts.clear();
        AddParts(object, parts, true);
    }
};

class RandomWork {
public:
    RandomWork(unsigned seed, bool offRecord) : m_random(seed), m_bOffRecord(offRecord) {
        m_database.addReactor(&m_mirror);
        m_parts = Read();
    }

    void Step() {
        const unsigned what = Pick(20);
        if (what == 0 && m_nDepth < 3) {
            BeginGroup();
        } else if (what <= 2 && m_nDepth > 0) {
            m_database.undo().endGroup();
            --m_nDepth;
        } else if (what <= 5) {
            TakeBack();
        } else {
            Work(m_bOffRecord && Pick(4) == 0);
        }
        m_model.DropOldest(m_database.undo().takeDropped());
        if (Pick(40) == 0) {
            m_nFirstUnstored = m_database.nextId();
            m_database.markSaved();
            FollowReleases();
            m_saved = m_parts;
        }
        FollowReleases();
        if (m_nDepth == 0 && !m_bOffRecord) {
            CheckKept();
        }
        Check();
    }

private:
    unsigned Pick(unsigned count) { return static_cast<unsigned>(m_random() % count); }
    double Number() { return ++m_nNumber; } // never the same: each change makes a difference
    Parts Read() const { return Marked(PartsOf(m_database, !m_bOffRecord)); }
    AcDbObjectId Any() { return AcDbObjectId(1 + Pick(m_database.nextId() - 1)); }
    static std::string IdOf(const std::string& part) { return part.substr(0, part.find(' ')); }

    /// Objects that are no more, or whose ids others have now, no step could bring back.
    void FollowReleases() {
        std::set<std::string> gone;
        for (const auto& [part, text] : m_parts) {
            if (!part.ends_with(" exists")) {
                continue;
            }
            const AcDbObjectId id(static_cast<std::uint32_t>(std::stoul(part)));
            if (!m_database.peek(id) || m_mirror.m_appended.contains(id)) {
                EXPECT_EQ(text, "=no") << part;
                EXPECT_FALSE(m_model.Names(IdOf(part))) << part;
                EXPECT_TRUE(!m_database.peek(id) || id.number() >= m_nFirstUnstored) << part;
                gone.insert(IdOf(part));
            }
        }
        m_mirror.m_appended.clear();
        for (Parts* const pParts : {&m_parts, &m_saved}) {
            std::erase_if(*pParts,
                          [&](const auto& part) { return gone.contains(IdOf(part.first)); });
        }
    }

    void CheckKept() const {
        for (const auto& [part, text] : m_parts) {
            const bool isErased = part.ends_with(" exists") && text == "=no";
            EXPECT_TRUE(!isErased || m_model.Names(IdOf(part)) ||
                        std::stoul(part) < m_nFirstUnstored)
                << part << " is kept for nothing";
        }
    }

    template <class T>
    T* OpenAny() {
        T* pObject = nullptr;
        acdbOpenObject(pObject, Any(), AcDb::kForWrite, Pick(10) == 0, &m_database);
        return pObject;
    }

    void BeginGroup() {
        m_database.undo().beginGroup(L"group");
        if (m_nDepth++ == 0) {
            m_bGroupBegun = false;
        }
    }

    void TakeBack() {
        const bool redo = Pick(2) == 0;
        const bool done = redo ? m_database.undo().redo() : m_database.undo().undo();
        const bool expected =
            m_nDepth == 0 && (redo ? m_model.Redo(m_parts) : m_model.Undo(m_parts));
        EXPECT_EQ(done, expected);
        if (m_bOffRecord) {
            BringBackLayers();
        }
    }

    /// An entity that came back stands on a layer that is there.
    void BringBackLayers() {
        for (const auto& [part, text] : Parts(m_parts)) {
            const std::string id = part.substr(0, part.find(' '));
            if (part == id + " layer" && m_parts[id + " exists"] == "=yes") {
                m_parts[text.substr(1) + " exists"] = "=yes";
            }
        }
    }

    void Work(bool offRecord) {
        const bool hasRedo = m_database.undo().redoName() != nullptr;
        m_database.disableUndoRecording(offRecord);
        m_needed.clear();
        switch (Pick(6)) {
        case 0:
            Add();
            break;
        case 1:
            Name();
            break;
        case 2:
            EraseAny();
            break;
        case 3:
            ChangeBody();
            break;
        case 4:
            ChangeDictionary();
            break;
        default:
            ChangeProperties();
        }
        m_database.disableUndoRecording(false);
        const bool losesRedo = hasRedo && !m_database.undo().redoName();
        if (losesRedo && !offRecord) {
            m_model.DropRedo();
        }
        m_model.DropOldest(m_database.undo().takeDropped());
        FollowReleases();
        const Parts now = Read();
        const std::vector<Edit> edits = WithoutNewParts(Difference(m_parts, now));
        m_parts = now;
        EXPECT_FALSE(losesRedo && edits.empty());
        if (offRecord) {
            Forget(edits);
        } else if (!edits.empty()) {
            m_model.Note(edits, m_nDepth > 0 && m_bGroupBegun);
            m_bGroupBegun = m_nDepth > 0;
        }
    }

    /// Of a new object only that it is there can be taken back.
    std::vector<Edit> WithoutNewParts(std::vector<Edit> edits) const {
        const auto numberOf = [](const std::string& part) {
            return part.substr(0, part.find(' '));
        };
        std::erase_if(edits, [&](const Edit& edit) {
            const std::string exists = numberOf(edit.part) + " exists";
            return edit.part != "coordinate system" && edit.part != exists &&
                   !m_parts.contains(exists);
        });
        for (Edit& edit : edits) {
            if (edit.part.ends_with(" exists") && edit.before.empty()) {
                edit.before = "=no";
            }
        }
        return edits;
    }

    void Forget(const std::vector<Edit>& edits) {
        for (const Edit& edit : edits) {
            m_model.Forget(edit.part);
        }
        for (const AcDbObjectId id : m_needed) {
            m_model.Forget(std::to_string(id.number()) + " exists");
        }
    }

    void Add() {
        std::unique_ptr<AcDbEntity> entity;
        const AcGePoint3d points[] = {{Number(), 0, 0}, {Number(), 0, 0}};
        switch (Pick(4)) {
        case 0:
            entity = std::make_unique<AcDbPoint>(points[0]);
            break;
        case 1:
            entity = std::make_unique<AcDbPolyline>(points);
            break;
        case 2:
            entity = std::make_unique<AcDbText>(points[0], "text");
            break;
        default:
            entity = std::make_unique<AcDbMPolygon>(
                std::vector<AcDbMPolygon::Ring>{{{points[0], points[1]}, true}});
        }
        const auto layers = m_database.layers();
        entity->setLayer(layers[Pick(static_cast<unsigned>(layers.size()))]);
        entity->setAttribute(AcDbIntern("a0"), Number());
        m_needed = {entity->layerId(), m_database.modelSpace()};
        m_database.appendEntity(std::move(entity));
    }

    void Name() {
        const std::wstring name(1, static_cast<wchar_t>(L'a' + Pick(5)));
        switch (Pick(5)) {
        case 0:
            m_database.setCoordinateSystem(std::to_wstring(Number()).c_str());
            break;
        case 1:
        case 2:
            m_database.layer(name.c_str());
            break;
        default:
            m_database.dictionary(name.c_str());
        }
    }

    void EraseAny() {
        AcDbObject* pObject = nullptr;
        acdbOpenAcDbObject(pObject, Any(), AcDb::kForWrite, true, &m_database);
        if (!pObject) {
            return;
        }
        const bool back = pObject->isErased();
        const auto* const pEntity = dynamic_cast<const AcDbEntity*>(pObject);
        if (pObject->erase(!back) == Acad::eOk && pEntity && back) {
            m_needed = {pEntity->layerId()};
        }
        pObject->close();
    }

    void ChangeBody() {
        const AcGePoint3d points[] = {{Number(), 0, 0}, {Number(), 0, 0}};
        if (auto* const pPoint = OpenAny<AcDbPoint>()) {
            pPoint->setPosition(points[0]);
            pPoint->close();
        } else if (auto* const pLine = OpenAny<AcDbPolyline>()) {
            pLine->setVertices(points);
            pLine->setClosed(!pLine->isClosed());
            pLine->close();
        }
    }

    // One opening a step, as that is one undo outside of groups; no part of it twice, as the
    // model sees but the difference that a step makes.
    void ChangeProperties() {
        auto* const pEntity = OpenAny<AcDbEntity>();
        if (!pEntity) {
            return;
        }
        for (unsigned i = Pick(2); i < 4; i += 1 + Pick(3)) {
            const AcDbNameId name = AcDbIntern("a" + std::to_string(i));
            const std::string text = "a text with number " + std::to_string(Number());
            Pick(3) == 0   ? void(pEntity->removeAttribute(name))
            : Pick(2) == 0 ? pEntity->setAttribute(name, std::string_view(text))
                           : pEntity->setAttribute(name, Number());
        }
        if (Pick(3) == 0) {
            const auto layers = m_database.layers();
            const AcDbObjectId layer = layers[Pick(static_cast<unsigned>(layers.size()))];
            if (layer != pEntity->layerId()) {
                pEntity->setLayer(layer);
                m_needed = {layer};
            }
        }
        pEntity->close();
    }

    void ChangeDictionary() {
        auto* const pDictionary = OpenAny<AcDbDictionary>();
        if (!pDictionary) {
            return;
        }
        for (unsigned i = Pick(2); i < 3; i += 1 + Pick(2)) {
            const std::wstring name(1, static_cast<wchar_t>(L'r' + i));
            if (Pick(3) > 0) {
                pDictionary->setAt(name.c_str(), std::to_wstring(Number()).c_str());
            } else if (pDictionary->remove(name.c_str()) != Acad::eOk) {
                continue;
            }
            m_needed = {pDictionary->objectId()};
        }
        pDictionary->close();
    }

    void Check() {
        ASSERT_EQ(Read(), m_parts);
        std::map<AcDbObjectId, Parts> present;
        std::size_t entities = 0;
        for (std::uint32_t id = 1; id < m_database.nextId(); ++id) {
            const AcDbObject* const pObject = m_database.peek(AcDbObjectId(id));
            if (!pObject || pObject->isErased()) {
                continue;
            }
            const AcDbObject& object = *pObject;
            AddParts(object, present[object.objectId()], true);
            if (const auto* const pEntity = dynamic_cast<const AcDbEntity*>(&object)) {
                ++entities;
                ASSERT_FALSE(m_database.peek(pEntity->layerId())->isErased());
            }
        }
        EXPECT_EQ(m_database.entityCount(), entities);
        // It has heard nothing of the two objects that were there before it.
        present.erase(AcDbObjectId(1));
        present.erase(AcDbObjectId(2));
        EXPECT_EQ(m_mirror.m_objects, present);
        CheckUnsaved();
    }

    void CheckUnsaved() {
        const auto unsaved = m_database.unsavedObjects();
        std::set<std::string> numbers;
        for (const AcDbObjectId id : unsaved) {
            EXPECT_TRUE(numbers.insert(std::to_string(id.number())).second);
        }
        for (const Edit& edit : Difference(m_saved, m_parts)) {
            const std::string id = edit.part.substr(0, edit.part.find(' '));
            EXPECT_TRUE(edit.part == "coordinate system" ? m_database.isHeaderUnsaved()
                                                         : numbers.contains(id))
                << edit.part;
        }
    }

    std::mt19937 m_random;
    bool m_bOffRecord;
    AcDbDatabase m_database;
    Mirror m_mirror;
    HistoryModel m_model;
    Parts m_parts;
    Parts m_saved = Read();
    std::vector<AcDbObjectId> m_needed; ///< what the last step's result stands on
    int m_nDepth = 0;
    bool m_bGroupBegun = false;
    int m_nNumber = 0;
    std::uint32_t m_nFirstUnstored = 3;
};

struct Variant {
    bool offRecord;
    std::size_t limit;
};

class UndoRandomTest : public testing::TestWithParam<Variant> {
protected:
    UndoRandomTest() { AcDbUndo::setMemoryLimit(GetParam().limit); }
    ~UndoRandomTest() override { AcDbUndo::setMemoryLimit(0); }
};

} // namespace

TEST_P(UndoRandomTest, EveryStateComesBack) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RandomWork work(seed, GetParam().offRecord);
        for (int step = 0; step < 250 && !testing::Test::HasFailure(); ++step) {
            SCOPED_TRACE("step " + std::to_string(step));
            work.Step();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(OnAndOffTheRecord, UndoRandomTest,
                         testing::Values(Variant{false, 0}, Variant{true, 0}, Variant{false, 3000},
                                         Variant{true, 3000}));
